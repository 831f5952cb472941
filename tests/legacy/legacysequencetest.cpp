// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/ceiegraphicsscene.h>

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
#include <limits>
#include <memory>

using reference::describe;

namespace {

constexpr int sequencesPerRow = 15;
constexpr int stepsPerSequence = 120;

constexpr auto xyDiagram = static_cast<DrawCEIPicture::CEIEType>(0);
constexpr auto uvDiagram = static_cast<DrawCEIPicture::CEIEType>(1);

void sendMouse(CEIEGraphicsScene *scene, QEvent::Type type, const QPointF &position, Qt::MouseButton button,
    bool *accepted = nullptr)
{
    QGraphicsSceneMouseEvent event(type);
    event.setScenePos(position);
    event.setButton(button);
    event.setAccepted(false);
    QCoreApplication::sendEvent(scene, &event);
    if (accepted) {
        *accepted = event.isAccepted();
    }
}

void sendKey(CEIEGraphicsScene *scene, QEvent::Type type, int key, bool autoRepeat)
{
    QKeyEvent event(type, key, Qt::NoModifier, QString(), autoRepeat);
    QCoreApplication::sendEvent(scene, &event);
}

// The scene and its model, always doing the same.
class Twins {
public:
    explicit Twins(quint32 seed)
        : m_random(seed)
    {
        const QList<ColorTriangleObject> triangles = reference::randomGamuts(m_random);
        m_scene = std::make_unique<CEIEGraphicsScene>(xyDiagram, triangles);
        m_model = std::make_unique<reference::LegacySceneModel>(triangles);
        m_log = std::make_unique<reference::SceneSignalLog<CEIEGraphicsScene>>(m_scene.get());
        m_model->takeSignals(); // nobody can listen to a scene under construction
        m_model->takeUpdate();
        note(QStringLiteral("constructed from ") + describe(triangles));
        if (m_random.bounded(8) != 0) {
            const int width = 60 + m_random.bounded(120);
            setImageSize(width, 60 + m_random.bounded(120));
        }
    }

    // One step. Empty when both did the same, otherwise what differs.
    QString step()
    {
        act();
        return difference();
    }

    QString difference();
    QStringList history() const { return m_history.mid(qMax(0, m_history.size() - 12)); }

private:
    void act();
    void press();
    void press(Qt::MouseButton button, const QPointF &position);
    void drag();
    void move();
    void release();
    void useKeys();
    void holdSpace();
    void setFlag();
    void setModes();
    bool isRenderable() const;
    void setLists();
    void setImageSize(int width, int height);
    void paint();
    void checkHandles();
    QPointF somewhere();

    void note(const QString &what) { m_history << what; }
    void expect(const QString &what, const QString &actual, const QString &expected)
    {
        m_complaint += reference::difference(what, actual, expected);
    }
    void expectAccepted(bool accepted, bool expected)
    {
        expect(QStringLiteral("acceptance"), QString::number(accepted), QString::number(expected));
    }

    QRandomGenerator m_random;
    std::unique_ptr<CEIEGraphicsScene> m_scene;
    std::unique_ptr<reference::LegacySceneModel> m_model;
    std::unique_ptr<reference::SceneSignalLog<CEIEGraphicsScene>> m_log;
    QList<QPointF> m_measurePoints;
    QPointF m_pointer;
    QStringList m_history;
    QString m_complaint;
};

QString Twins::difference()
{
    expect(QStringLiteral("the signals"), m_log->takeSignals().join(QLatin1Char('\n')),
        m_model->takeSignals().join(QLatin1Char('\n')));
    expect(QStringLiteral("the update"), QString::number(m_log->takeUpdate()), QString::number(m_model->takeUpdate()));
    expect(QStringLiteral("the list"), describe(m_scene->getLsColorTriangleObject()), describe(m_model->triangles()));
    expect(QStringLiteral("the measure points"), describe(m_scene->getMeasureValuePoints()), describe(m_measurePoints));
    expect(QStringLiteral("the image size"),
        QStringLiteral("%1x%2").arg(m_scene->imageWidth()).arg(m_scene->imageHeight()),
        QStringLiteral("%1x%2").arg(m_model->imageWidth()).arg(m_model->imageHeight()));
    expect(QStringLiteral("the state"), describe(reference::stateOf(*m_scene)), describe(m_model->state()));
    expect(QStringLiteral("mouse editing"), QString::number(m_scene->getIsMouseOper()),
        QString::number(m_model->isMouseOper()));
    if (m_model->sceneRectangle().width() > 0 && m_model->sceneRectangle().height() > 0) {
        expect(QStringLiteral("the scene rectangle"), describe(m_scene->sceneRect().bottomRight()),
            describe(m_model->sceneRectangle().bottomRight()));
    }
    return m_complaint;
}

void Twins::act()
{
    switch (m_random.bounded(25)) {
    case 0:
    case 1:
    case 2:
    case 3:
        press();
        break;
    case 4:
    case 5:
    case 6:
    case 7:
    case 8:
    case 9:
        move();
        break;
    case 10:
    case 11:
        release();
        break;
    case 12:
    case 13:
        useKeys();
        break;
    case 14:
        holdSpace();
        break;
    case 15:
    case 16:
        setFlag();
        break;
    case 17:
        setLists();
        break;
    case 18:
        paint();
        break;
    case 19:
        checkHandles();
        break;
    case 20:
        setModes();
        break;
    default:
        drag();
        break;
    }
}

// What only the scene's owner would set.
void Twins::setModes()
{
    const int mode = qMax(0, m_random.bounded(9) - 4); // mostly none
    switch (m_random.bounded(3)) {
    case 0:
        note(QStringLiteral("edit mode %1").arg(mode % 3));
        reference::setEditMode(*m_scene, mode % 3);
        m_model->setEditMode(mode % 3);
        break;
    case 1:
        note(QStringLiteral("function-key mode %1").arg(mode));
        reference::setFunctionKeyMode(*m_scene, mode);
        m_model->setFunctionKeyMode(mode);
        break;
    default:
        note(QStringLiteral("SetFunctionKeyShortcuts"));
        m_scene->SetFunctionKeyShortcuts();
        m_model->SetFunctionKeyShortcuts();
        break;
    }
}

// Every rendering scales the stored size by the zoom again.
bool Twins::isRenderable() const
{
    const double growth = std::max(1.0, std::fabs(static_cast<double>(m_model->state().zoom)));
    return std::max(std::abs(m_model->imageWidth()), std::abs(m_model->imageHeight())) * growth * growth < 800.0;
}

// A quarter of the positions lie on the white point's handle or beside it, the others anywhere; a move goes a
// little way from where the pointer is as often as across the picture. Seldom it is nowhere at all.
QPointF Twins::somewhere()
{
    if (m_random.bounded(80) == 0) {
        return QPointF(std::numeric_limits<double>::quiet_NaN(), 30.0);
    }
    for (;;) {
        QPointF position = reference::randomPoint(
            m_random, QRectF(-20, -20, m_model->imageWidth() + 40, m_model->imageHeight() + 40));
        switch (m_random.bounded(6)) {
        case 0:
            if (m_model->triangles().size() >= 2) {
                position = m_model->whiteHandle() + reference::randomPoint(m_random, QRectF(-9, -9, 18, 18));
            }
            break;
        case 1:
        case 2:
            position = m_pointer + reference::randomPoint(m_random, QRectF(-9, -9, 18, 18));
            break;
        case 3:
            position = QPointF(std::floor(position.x()), std::floor(position.y()));
            break;
        default:
            break;
        }
        if (std::isfinite(position.x()) && std::isfinite(position.y())
            && m_model->pickWhite(position) != reference::SceneModel::Uncertain) {
            return position;
        }
        m_pointer = QPointF(1, 1);
    }
}

void Twins::press()
{
    const std::array<Qt::MouseButton, 5> buttons{
        Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    const Qt::MouseButton button = buttons.at(m_random.bounded(5U));
    press(button, somewhere());
}

void Twins::press(Qt::MouseButton button, const QPointF &position)
{
    m_pointer = position;
    note(QStringLiteral("press %1 at %2").arg(button).arg(describe(m_pointer)));
    sendMouse(m_scene.get(), QEvent::GraphicsSceneMousePress, m_pointer, button);
    m_model->mousePress(button, m_pointer);
}

// A drag as hosts see it, half of them by the white point, with nothing in between.
void Twins::drag()
{
    QPointF start = somewhere();
    if (m_model->triangles().size() >= 2 && m_random.bounded(2) == 0
        && m_model->pickWhite(m_model->whiteHandle()) == reference::SceneModel::Picked) {
        start = m_model->whiteHandle();
    }
    press(Qt::LeftButton, start);
    for (int i = m_random.bounded(4); i > 0; --i) {
        move();
    }
    note(QStringLiteral("release"));
    bool accepted = false;
    sendMouse(m_scene.get(), QEvent::GraphicsSceneMouseRelease, m_pointer, Qt::LeftButton, &accepted);
    expectAccepted(accepted, m_model->mouseRelease(Qt::LeftButton));
}

void Twins::move()
{
    if (m_random.bounded(8) != 0) {
        m_pointer = somewhere();
    }
    note(QStringLiteral("move to %1").arg(describe(m_pointer)));
    bool accepted = false;
    sendMouse(m_scene.get(), QEvent::GraphicsSceneMouseMove, m_pointer, Qt::NoButton, &accepted);
    expectAccepted(accepted, m_model->mouseMove(m_pointer));
}

void Twins::release()
{
    const std::array<Qt::MouseButton, 4> buttons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton};
    const Qt::MouseButton button = buttons.at(m_random.bounded(4U));
    note(QStringLiteral("release %1").arg(button));
    bool accepted = false;
    sendMouse(m_scene.get(), QEvent::GraphicsSceneMouseRelease, m_pointer, button, &accepted);
    expectAccepted(accepted, m_model->mouseRelease(button));
}

void Twins::useKeys()
{
    if (m_model->state().hand || (m_model->state().centreSelected && !m_model->state().vertexSelected)) {
        return; // other keys beside a held space bar, and a start from the white handle, are not laid down
    }
    const std::array<int, 5> keys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_A};
    const int key = keys.at(m_random.bounded(5U));
    const int count = 1 + m_random.bounded(m_random.bounded(3) == 0 ? 28 : 3);
    note(QStringLiteral("key 0x%1, %2 times").arg(key, 0, 16).arg(count));
    for (int i = 0; i < count; ++i) {
        sendKey(m_scene.get(), QEvent::KeyPress, key, i > 0);
        m_model->keyPress(key);
    }
    sendKey(m_scene.get(), QEvent::KeyRelease, key, false);
    m_model->keyRelease(key);
}

void Twins::holdSpace()
{
    const bool press = !m_model->state().hand || m_random.bounded(3) == 0;
    note(press ? QStringLiteral("space down") : QStringLiteral("space up"));
    if (press) {
        sendKey(m_scene.get(), QEvent::KeyPress, Qt::Key_Space, m_model->state().hand);
        m_model->keyPress(Qt::Key_Space);
    } else {
        sendKey(m_scene.get(), QEvent::KeyRelease, Qt::Key_Space, false);
        m_model->keyRelease(Qt::Key_Space);
    }
}

void Twins::setFlag()
{
    const bool on = m_random.bounded(3) != 0;
    const int which = m_random.bounded(6);
    if (which == 5 && !isRenderable()) {
        return;
    }
    note(QStringLiteral("flag %1 := %2").arg(which).arg(on));
    switch (which) {
    case 0:
        m_scene->setIsMouseOper(on);
        m_model->setIsMouseOper(on);
        break;
    case 1:
        m_scene->setRGBPointEnable(on);
        m_model->setRGBPointEnable(on);
        break;
    case 2:
    case 3:
        m_scene->setColorTempertureChecked(on);
        m_model->setColorTempertureChecked(on);
        break;
    case 4:
        m_scene->setDrawColorTPoint(on);
        m_model->setDrawColorTPoint(on);
        break;
    default:
        m_scene->setIsDrawCoordinate(on);
        m_model->getBitMap();
        break;
    }
}

void Twins::setLists()
{
    switch (m_random.bounded(6)) {
    case 0:
        m_measurePoints = {reference::randomChroma(m_random)};
        m_scene->setMeasureValuePoints(m_measurePoints);
        m_log->takeUpdate(); // the points show at the next rendering, whoever asks for it
        break;
    case 1: {
        const int choice = m_random.bounded(6);
        const int width = choice == 0 ? -3 : 40 + m_random.bounded(150);
        setImageSize(width, choice == 1 ? 1 : 40 + m_random.bounded(150));
        break;
    }
    case 2:
        m_scene->SetControlGraphData();
        m_model->SetControlGraphData();
        note(QStringLiteral("SetControlGraphData"));
        break;
    default: {
        const QList<ColorTriangleObject> triangles = reference::randomGamuts(m_random);
        note(QStringLiteral("triangles ") + describe(triangles));
        m_scene->setLsColorTriangleObject(triangles);
        m_model->setLsColorTriangleObject(triangles);
        break;
    }
    }
}

void Twins::setImageSize(int width, int height)
{
    if (std::fabs(static_cast<double>(m_model->state().zoom)) > 2.0) {
        return;
    }
    note(QStringLiteral("image %1x%2").arg(width).arg(height));
    m_scene->setImageWidth(width);
    m_model->setImageWidth(width);
    m_scene->setImageHeight(height);
    m_model->setImageHeight(height);
}

void Twins::paint()
{
    if (m_model->triangles().size() >= 2) {
        const QPointF white = m_model->triangles().at(1).trianglePoint().whitePos();
        if (white.x() == 0.0 && white.y() == 0.0) {
            return; // where the handle of a cleared white point goes is the scene's own choice
        }
    }
    note(QStringLiteral("refreshArea"));
    QImage image(80, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::darkCyan);
    QImage scratch = image.copy();
    bool result = false;
    bool resultExpected = false;
    {
        QPainter painter(&image);
        result = m_scene->refreshArea(&painter);
    }
    {
        QPainter painter(&scratch);
        resultExpected = m_model->refreshArea(painter);
    }
    expect(QStringLiteral("the result of refreshArea"), QString::number(result), QString::number(resultExpected));
}

void Twins::checkHandles()
{
    if (m_model->triangles().size() >= 2) {
        const TrianglePoint &points = m_model->triangles().at(1).trianglePoint();
        for (const QPointF &chroma : {points.redPos(), points.greenPos(), points.bluePos()}) {
            const QPointF p = m_model->toScene(chroma);
            if (!(std::fabs(p.x()) < 1e4 && std::fabs(p.y()) < 1e4)) {
                return;
            }
        }
    }
    note(QStringLiteral("DrawVertexSign"));
    QImage actual(200, 200, QImage::Format_ARGB32_Premultiplied);
    actual.fill(Qt::darkCyan);
    QImage expected = actual.copy();
    bool result = false;
    bool resultExpected = false;
    {
        QPainter painter(&actual);
        painter.setRenderHint(QPainter::Antialiasing);
        result = m_scene->DrawVertexSign(&painter);
    }
    {
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        resultExpected = m_model->DrawThreeEllipseSign(painter);
    }
    expect(QStringLiteral("the result of DrawVertexSign"), QString::number(result), QString::number(resultExpected));
    expect(QStringLiteral("the handles' picture"), reference::firstDifference(actual, expected), QString());
}

} // namespace

class LegacySequenceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sameAsModel_data();
    void sameAsModel();
    void survivesOnUniformChromaticityDiagram();
};

void LegacySequenceTest::sameAsModel_data()
{
    QTest::addColumn<int>("firstSeed");
    for (int row = 0; row < 30; ++row) {
        const int firstSeed = row * sequencesPerRow;
        QTest::newRow(qPrintable(QStringLiteral("seeds from %1").arg(firstSeed))) << firstSeed;
    }
}

void LegacySequenceTest::sameAsModel()
{
    QFETCH(int, firstSeed);
    for (int seed = firstSeed; seed < firstSeed + sequencesPerRow; ++seed) {
        Twins twins(static_cast<quint32>(seed));
        QString difference = twins.difference();
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

// What editing means on this diagram is the scene's own choice, but it survives anything and keeps its list's length.
void LegacySequenceTest::survivesOnUniformChromaticityDiagram()
{
    for (quint32 seed = 0; seed < 20; ++seed) {
        QRandomGenerator random(seed);
        CEIEGraphicsScene scene(uvDiagram, reference::randomGamuts(random));
        for (int step = 0; step < 100; ++step) {
            const QPointF position = reference::randomPoint(random, QRectF(-20, -20, 220, 220));
            switch (random.bounded(6)) {
            case 0:
                sendMouse(&scene, QEvent::GraphicsSceneMousePress, position, Qt::LeftButton);
                break;
            case 1:
                sendMouse(&scene, QEvent::GraphicsSceneMouseRelease, position, Qt::LeftButton);
                break;
            case 2:
                sendKey(&scene, QEvent::KeyPress, Qt::Key_Right, false);
                break;
            case 3:
                scene.setImageWidth(40 + random.bounded(150));
                break;
            case 4: {
                const QList<ColorTriangleObject> triangles = reference::randomGamuts(random);
                scene.setLsColorTriangleObject(triangles);
                QCOMPARE(scene.getLsColorTriangleObject().size(), triangles.size());
                break;
            }
            default:
                sendMouse(&scene, QEvent::GraphicsSceneMouseMove, position, Qt::NoButton);
                break;
            }
        }
    }
}

QTEST_MAIN(LegacySequenceTest)
#include "legacysequencetest.moc"
