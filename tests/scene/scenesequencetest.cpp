// SPDX-License-Identifier: MIT
#include <ceiechart/scene/ceiegraphicsscene.h>

#include <reference/picturedifference.h>
#include <reference/samplegamuts.h>
#include <reference/scenemodel.h>
#include <reference/scenesignallog.h>
#include <reference/scenestate.h>

#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QtTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <memory>

using reference::describe;

namespace {

constexpr int sequencesPerRow = 20;
constexpr int stepsPerSequence = 80;

// The scene and its model, always doing the same.
class Twins {
public:
    explicit Twins(quint32 seed)
        : m_random(seed)
    {
        const QList<ColorTriangleObject> triangles = reference::randomGamuts(m_random);
        m_scene = std::make_unique<NewCEIE::CEIEGraphicsScene>(triangles);
        m_model = std::make_unique<reference::SceneModel>(triangles);
        m_log = std::make_unique<reference::SceneSignalLog<NewCEIE::CEIEGraphicsScene>>(m_scene.get());
        m_model->takeSignals(); // nobody can listen to a scene under construction
        m_model->takeUpdate();
        m_history << QStringLiteral("constructed from ") + describe(triangles);
        if (m_random.bounded(4) != 0) {
            setImageSize();
        }
    }

    // One step. Empty when both did the same, otherwise what differs.
    QString step()
    {
        const bool updatesAgree = act();
        return difference(updatesAgree);
    }

    QString difference(bool compareUpdates);
    QStringList history() const { return m_history.mid(qMax(0, m_history.size() - 12)); }

private:
    bool act();
    void setImageSize();
    void editList();
    void setFlag();
    void setState();
    QPointF somewhere();
    bool isRenderable() const;
    void setData();
    void runPrivateOperation();
    void queryHelpers();
    void pressKeys();
    void key(QEvent::Type type, int key);
    void navigate();
    void paint();
    void pick();
    void useMouse();

    void note(const QString &what) { m_history << what; }
    void expect(const QString &what, const QString &actual, const QString &expected)
    {
        m_complaint += reference::difference(what, actual, expected);
    }

    QRandomGenerator m_random;
    std::unique_ptr<NewCEIE::CEIEGraphicsScene> m_scene;
    std::unique_ptr<reference::SceneModel> m_model;
    std::unique_ptr<reference::SceneSignalLog<NewCEIE::CEIEGraphicsScene>> m_log;
    QList<QPointF> m_temperaturePoints;
    QList<QPointF> m_otherPoints;
    QList<QColor> m_otherColors;
    bool m_isDrawCoordinate = true;
    bool m_isDrawBBRLine = true;
    bool m_isDrawWaveLength = true;
    QStringList m_history;
    QString m_complaint;
};

QString Twins::difference(bool compareUpdates)
{
    expect(QStringLiteral("the signals"), m_log->takeSignals().join(QLatin1Char('\n')),
        m_model->takeSignals().join(QLatin1Char('\n')));
    const bool updated = m_log->takeUpdate();
    const bool updateExpected = m_model->takeUpdate();
    if (compareUpdates && updated != updateExpected) {
        m_complaint += updated ? QStringLiteral("an update too many\n") : QStringLiteral("the update is missing\n");
    }
    expect(QStringLiteral("the list"), describe(m_scene->getLsColorTriangleObject()), describe(m_model->triangles()));
    expect(QStringLiteral("the temperature points"), describe(m_scene->getLsColorTempertureValuePoints()),
        describe(m_temperaturePoints));
    expect(QStringLiteral("the other points"), describe(m_scene->getOtherPoints()), describe(m_otherPoints));
    if (m_scene->getOtherPointsColor() != m_otherColors) {
        m_complaint += QStringLiteral("the other points' colours differ\n");
    }
    expect(QStringLiteral("the image size"),
        QStringLiteral("%1x%2").arg(m_scene->imageWidth()).arg(m_scene->imageHeight()),
        QStringLiteral("%1x%2").arg(m_model->imageWidth()).arg(m_model->imageHeight()));
    const auto flags = [](bool a, bool b, bool c, bool d, bool e) {
        return QStringLiteral("%1%2%3%4%5").arg(a).arg(b).arg(c).arg(d).arg(e);
    };
    expect(QStringLiteral("the flags"),
        flags(m_scene->isDrawCoordinate(), m_scene->isDrawBBRLine(), m_scene->isDrawWaveLength(),
            m_scene->isDrawColorTPoint(), m_scene->getIsMouseOper()),
        flags(m_isDrawCoordinate, m_isDrawBBRLine, m_isDrawWaveLength, m_model->isDrawColorTPoint(),
            m_model->isMouseOper()));
    for (const QPointF &chroma : {QPointF(0.0, 0.0), QPointF(1.0, 1.0)}) {
        expect(QStringLiteral("the scene position of a chromaticity"), describe(m_scene->ChromaToCurCoordinate(chroma)),
            describe(m_model->toScene(chroma)));
    }
    expect(QStringLiteral("the state"), describe(reference::stateOf(*m_scene)), describe(m_model->state()));
    if (!m_model->sceneRectangle().isNull()) {
        expect(QStringLiteral("the scene rectangle"), describe(m_scene->sceneRect().bottomRight()),
            describe(m_model->sceneRectangle().bottomRight()));
    }
    return m_complaint;
}

// Every rendering scales the stored size by the zoom again.
bool Twins::isRenderable() const
{
    const double growth = std::max(1.0, std::fabs(static_cast<double>(m_model->state().zoom)));
    return std::max(std::abs(m_model->imageWidth()), std::abs(m_model->imageHeight())) * growth * growth < 400.0;
}

bool Twins::act()
{
    switch (m_random.bounded(20)) {
    case 0:
        setImageSize();
        break;
    case 1:
        editList();
        break;
    case 2:
        setFlag();
        break;
    case 3:
        setData();
        break;
    case 4:
    case 5:
    case 6:
        runPrivateOperation();
        break;
    case 7:
        queryHelpers();
        break;
    case 8:
    case 9:
    case 10:
        pressKeys();
        break;
    case 11:
    case 12:
        navigate();
        break;
    case 13:
        paint();
        break;
    case 14:
        pick();
        return false; // what the hit tests repaint is their own affair
    case 15:
        useMouse();
        break;
    default:
        setState();
        break;
    }
    return true;
}

// A position, of a chromaticity as often as not, and now and then at a corner of a gamut.
QPointF Twins::somewhere()
{
    const QList<ColorTriangleObject> &triangles = m_model->triangles();
    switch (m_random.bounded(4)) {
    case 0:
        return reference::randomPoint(m_random, QRectF(-50, -50, 100, 100));
    case 1:
        if (!triangles.isEmpty()) {
            const TrianglePoint &points = triangles.at(m_random.bounded(triangles.size())).trianglePoint();
            const std::array<QPointF, 3> corners{points.redPos(), points.greenPos(), points.bluePos()};
            return m_model->toScene(reference::closeTo(m_random, corners.at(m_random.bounded(3U))));
        }
        break;
    default:
        break;
    }
    return m_model->toScene(reference::randomChroma(m_random));
}

// What only the scene's owner or its mouse handling would set.
void Twins::setState()
{
    const QPointF point = somewhere();
    const int which = m_random.bounded(9);
    const int mode = m_random.bounded(5);
    note(QStringLiteral("state %1 := %2 or %3").arg(which).arg(mode).arg(describe(point)));
    switch (which) {
    case 0:
        reference::setEditMode(*m_scene, mode % 3);
        m_model->setEditMode(mode % 3);
        break;
    case 1:
        reference::setFunctionKeyMode(*m_scene, mode);
        m_model->setFunctionKeyMode(mode);
        break;
    case 2:
        reference::restoreAtNextKey(*m_scene, point);
        m_model->restoreAtNextKey(point);
        break;
    case 3:
        reference::selectCentre(*m_scene, point);
        m_model->selectCentre(point);
        break;
    default:
        reference::setRequestedPoint(*m_scene, point);
        m_model->setRequestedPoint(point);
        break;
    }
}

void Twins::setImageSize()
{
    if (std::fabs(static_cast<double>(m_model->state().zoom)) > 2.0) {
        return;
    }
    // Small pictures: key steps of a tenth then reach across the whole diagram.
    const auto size = [this] {
        const int choice = m_random.bounded(12);
        return choice == 0 ? -m_random.bounded(200) : choice == 1 ? m_random.bounded(3) : 4 + m_random.bounded(60);
    };
    const int width = size();
    const int height = size();
    note(QStringLiteral("image %1x%2").arg(width).arg(height));
    m_scene->setImageWidth(width);
    m_model->setImageWidth(width);
    m_scene->setImageHeight(height);
    m_model->setImageHeight(height);
}

void Twins::editList()
{
    const QList<ColorTriangleObject> triangles = reference::randomGamuts(m_random);
    if (m_random.bounded(3) == 0 && isRenderable()) {
        const QList<ColorTriangleObject> standards = reference::randomGamuts(m_random);
        const TrianglePoint first = reference::randomGamut(m_random, 1).trianglePoint();
        const TrianglePoint other = reference::randomGamut(m_random, 2).trianglePoint();
        const QString text = m_random.bounded(2) == 0 ? QString() : QStringLiteral("no data");
        note(QStringLiteral("all triangles ") + describe(triangles));
        m_scene->setLsColorTriangleObject(triangles, standards, first, other, m_random.bounded(2) == 0, text);
        m_model->setAllTriangles(triangles);
    } else {
        note(QStringLiteral("triangles ") + describe(triangles));
        m_scene->setLsColorTriangleObject(triangles);
        m_model->setLsColorTriangleObject(triangles);
    }
}

void Twins::setFlag()
{
    const bool on = m_random.bounded(2) == 0;
    const int which = m_random.bounded(9);
    if (which < 3 && !isRenderable()) {
        return;
    }
    note(QStringLiteral("flag %1 := %2").arg(which).arg(on));
    switch (which) {
    case 0:
        m_isDrawCoordinate = on;
        m_scene->setIsDrawCoordinate(on);
        m_model->getBitMap();
        break;
    case 1:
        m_isDrawBBRLine = on;
        m_scene->setIsDrawBBRLine(on);
        m_model->getBitMap();
        break;
    case 2:
        m_isDrawWaveLength = on;
        m_scene->setIsDrawWaveLength(on);
        m_model->getBitMap();
        break;
    case 3:
        m_scene->setDrawColorTPoint(on);
        m_model->setDrawColorTPoint(on);
        break;
    case 4:
        m_scene->setIsMouseOper(on);
        m_model->setIsMouseOper(on);
        break;
    case 5:
    case 6:
        m_scene->setColorTempertureChecked(on);
        m_model->setColorTempertureChecked(on);
        break;
    case 7:
        m_scene->setRGBPointEnable(on);
        m_model->setRGBPointEnable(on);
        break;
    default:
        m_scene->setTargetItemVisable(on);
        break;
    }
}

void Twins::setData()
{
    QList<QPointF> points;
    QList<QColor> colors;
    for (int i = m_random.bounded(4); i > 0; --i) {
        points << reference::randomChroma(m_random);
        colors << QColor::fromRgb(m_random.generate());
    }
    const int which = m_random.bounded(5);
    if (which == 0 && !isRenderable()) {
        return;
    }
    note(QStringLiteral("data %1 := %2").arg(which).arg(describe(points)));
    switch (which) {
    case 0:
        m_temperaturePoints = points;
        m_scene->setLsColorTempertureValuePoints(points);
        m_model->getBitMap();
        break;
    case 1:
        m_otherPoints = points;
        m_otherColors = colors;
        m_scene->setOtherPoints(points, colors);
        m_model->setOtherPoints();
        break;
    case 2:
        m_scene->setCMYPointData(points);
        break;
    case 3:
        m_scene->setGraphColor(Qt::yellow, Qt::darkBlue);
        break;
    default:
        m_scene->setBackgroudColor(Qt::darkRed);
        break;
    }
}

void Twins::runPrivateOperation()
{
    const int which = m_random.bounded(11);
    note(QStringLiteral("operation %1").arg(which));
    switch (which) {
    case 0:
        m_scene->MoveEllipseSign();
        m_model->MoveEllipseSign();
        break;
    case 1:
        m_scene->RefreshEllipseSignPosition();
        m_model->RefreshEllipseSignPosition();
        break;
    case 2:
    case 3:
        m_scene->AddLedColorAndPoint();
        m_model->AddLedColorAndPoint();
        break;
    case 4:
    case 5:
        m_scene->MoveCentreTriangle();
        m_model->MoveCentreTriangle();
        break;
    case 6:
        m_scene->SetCentreTriangle();
        m_model->SetCentreTriangle();
        break;
    case 7:
        m_scene->SetControlGraphData();
        m_model->SetControlGraphData();
        break;
    case 8:
        m_scene->ClearSpeedUpStep();
        m_model->ClearSpeedUpStep();
        break;
    case 9:
        m_scene->SetFunctionKeyShortcuts();
        m_model->SetFunctionKeyShortcuts();
        break;
    default:
        if (m_model->hasPicture()) {
            m_scene->CoordinateTransformation();
            m_model->CoordinateTransformation();
        }
        break;
    }
}

void Twins::queryHelpers()
{
    const QPointF point = reference::randomChroma(m_random);
    const QPointF position = reference::randomPoint(m_random, QRectF(-50, -50, 100, 100));
    note(QStringLiteral("helpers for ") + describe(point));
    expect(QStringLiteral("the chromaticity"), describe(m_scene->CurCoordinateToChroma(position)),
        describe(m_model->toChroma(position)));
    expect(QStringLiteral("the handle's point"), describe(m_scene->GetEllipsePoint(point)),
        describe(m_model->toScene(point)));
    QPointF converted = point;
    m_scene->chromaToCurCoordinate(converted);
    expect(QStringLiteral("the position in place"), describe(converted), describe(m_model->toScene(point)));
    expect(QStringLiteral("the temperature"), QString::number(m_scene->GetColourTemperatureValue(point)),
        QString::number(m_model->GetColourTemperatureValue(point)));

    const ColorTriangleObject original = reference::randomGamut(m_random, 2);
    const ColorTriangleObject target = reference::randomGamut(m_random, 1);
    baseCommon::LEDColorType beyond = baseCommon::Green;
    baseCommon::LEDColorType beyondExpected = baseCommon::Green;
    const bool inside = m_scene->CheckOriginalAndTarget(original, target, beyond);
    const bool insideExpected = m_model->CheckOriginalAndTarget(original, target, beyondExpected);
    expect(QStringLiteral("the check of %1 against %2").arg(describe(target), describe(original)),
        QStringLiteral("%1 beyond %2").arg(inside).arg(beyond),
        QStringLiteral("%1 beyond %2").arg(insideExpected).arg(beyondExpected));

    const std::array<Qt::Key, 3> keys{Qt::Key_Left, Qt::Key_Up, Qt::Key_A};
    const Qt::Key key = keys.at(m_random.bounded(3U));
    float step = 0.25F;
    float stepExpected = 0.25F;
    m_scene->SpeedUpThePace(step, key);
    m_model->SpeedUpThePace(stepExpected, key);
    expect(
        QStringLiteral("the step"), describe(static_cast<double>(step)), describe(static_cast<double>(stepExpected)));
}

void Twins::key(QEvent::Type type, int key)
{
    QKeyEvent event(type, key, Qt::NoModifier);
    QCoreApplication::sendEvent(m_scene.get(), &event);
    if (type == QEvent::KeyPress) {
        m_model->keyPress(key);
    } else {
        m_model->keyRelease(key);
    }
}

void Twins::pressKeys()
{
    const std::array<int, 7> keys{
        Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Space, Qt::Key_A, Qt::Key_Shift};
    const int pressed = keys.at(m_random.bounded(7U));
    const int count = m_random.bounded(3) == 0 ? m_random.bounded(30) : 1 + m_random.bounded(3);
    note(QStringLiteral("key 0x%1, %2 times").arg(pressed, 0, 16).arg(count));
    for (int i = 0; i < count; ++i) {
        key(QEvent::KeyPress, pressed);
    }
    if (m_random.bounded(3) != 0) {
        key(QEvent::KeyRelease, pressed);
    }
}

// Walks the requested point to a chromaticity: each step is placed, so that the next key starts from it.
void Twins::navigate()
{
    const QPointF goal = m_model->toScene(reference::randomPoint(m_random, QRectF(0.0, 0.0, 0.7, 0.8)));
    note(QStringLiteral("walk to ") + describe(goal));
    if (!(std::fabs(goal.x()) < 200.0 && std::fabs(goal.y()) < 200.0)) {
        return;
    }
    for (int i = 0; i < 100; ++i) {
        const QPointF rest = goal - m_model->state().current;
        if (std::fabs(rest.x()) < 0.6 && std::fabs(rest.y()) < 0.6) {
            break;
        }
        if (std::fabs(rest.x()) >= 0.6) {
            key(QEvent::KeyPress, rest.x() > 0 ? Qt::Key_Right : Qt::Key_Left);
        } else {
            key(QEvent::KeyPress, rest.y() > 0 ? Qt::Key_Down : Qt::Key_Up);
        }
        m_scene->AddLedColorAndPoint();
        m_model->AddLedColorAndPoint();
    }
    m_scene->AddLedColorAndPoint();
    m_model->AddLedColorAndPoint();
}

void Twins::paint()
{
    note(QStringLiteral("refreshArea"));
    bool paintable = true;
    if (m_model->triangles().size() >= 2) {
        const TrianglePoint &points = m_model->triangles().at(1).trianglePoint();
        for (const QPointF &chroma : {points.redPos(), points.greenPos(), points.bluePos()}) {
            const QPointF p = m_model->toScene(chroma);
            paintable = paintable && std::fabs(p.x()) < 1e4 && std::fabs(p.y()) < 1e4;
        }
    }
    QImage actual(80, 80, QImage::Format_ARGB32_Premultiplied);
    actual.fill(Qt::darkCyan);
    QImage expected = actual.copy();
    bool result = false;
    bool resultExpected = false;
    {
        QPainter painter(&actual);
        result = m_scene->refreshArea(&painter);
    }
    {
        QPainter painter(&expected);
        resultExpected = m_model->refreshArea(painter);
    }
    expect(QStringLiteral("the result of refreshArea"), QString::number(result), QString::number(resultExpected));
    if (paintable) {
        expect(QStringLiteral("the handles' picture"), reference::firstDifference(actual, expected), QString());
    }
}

void Twins::pick()
{
    const QPointF position = m_model->state().requested;
    const reference::SceneModel::Pick white = m_model->pickWhite(position);
    if (white == reference::SceneModel::Uncertain
        || (white == reference::SceneModel::Picked && m_model->state().vertexSelected)) {
        return; // a second selection beside the vertex is not laid down
    }
    note(QStringLiteral("pick ") + describe(position));
    m_scene->MouseClickAire(position);
    m_model->MouseClickAire(position);
    m_scene->MouseSelectedPoint(position);
    m_model->MouseSelectedPoint(position);
}

void Twins::useMouse()
{
    const std::array<QEvent::Type, 3> types{
        QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseMove, QEvent::GraphicsSceneMouseRelease};
    const QEvent::Type type = types.at(m_random.bounded(3U));
    note(QStringLiteral("mouse event %1").arg(type));
    QGraphicsSceneMouseEvent event(type);
    event.setScenePos(reference::randomPoint(m_random, QRectF(0, 0, 80, 80)));
    event.setButton(Qt::LeftButton);
    event.setButtons(Qt::LeftButton);
    QCoreApplication::sendEvent(m_scene.get(), &event);
}

} // namespace

class SceneSequenceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sameAsModel_data();
    void sameAsModel();
};

void SceneSequenceTest::sameAsModel_data()
{
    QTest::addColumn<int>("firstSeed");
    for (int row = 0; row < 20; ++row) {
        const int firstSeed = row * sequencesPerRow;
        QTest::newRow(qPrintable(QStringLiteral("seeds from %1").arg(firstSeed))) << firstSeed;
    }
}

void SceneSequenceTest::sameAsModel()
{
    QFETCH(int, firstSeed);
    for (int seed = firstSeed; seed < firstSeed + sequencesPerRow; ++seed) {
        Twins twins(static_cast<quint32>(seed));
        QString difference = twins.difference(false);
        for (int step = 0; step < stepsPerSequence && difference.isEmpty(); ++step) {
            difference = twins.step();
        }
        if (!difference.isEmpty()) {
            const QStringList history = twins.history();
            for (const QString &line : history) {
                qWarning("%s", qPrintable(line));
            }
            QFAIL(qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(difference)));
        }
    }
}

QTEST_MAIN(SceneSequenceTest)
#include "scenesequencetest.moc"
