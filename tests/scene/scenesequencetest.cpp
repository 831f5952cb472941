// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/ceiegraphicsscene.h>

#include <reference/scenetwins.h>

#include <QtTest>

#include <cmath>

using reference::describe;
using Scene = NewCEIE::CEIEGraphicsScene;

namespace {

#ifdef CEIECHART_SHORT_TESTS
constexpr int sequencesPerRow = 6;
#else
constexpr int sequencesPerRow = 20;
#endif
constexpr int stepsPerSequence = 80;

class Twins : public reference::SceneTwins<Scene, reference::SceneModel> {
public:
    explicit Twins(quint32 seed)
        : SceneTwins(seed, 400.0, [](const auto &triangles) { return std::make_unique<Scene>(triangles); })
    {
        if (m_random.bounded(4) != 0) {
            setImageSize();
        }
    }

private:
    bool act() override;
    void setImageSize();
    void setAllTriangles();
    void setState();
    QPointF somewhere();
    void setColorsAndMarks();
    void runPrivateOperation();
    void queryHelpers();
    void navigate();
    void pick();
    void useMouse();
};

bool Twins::act()
{
    switch (m_random.bounded(22)) {
    case 0:
        setImageSize();
        break;
    case 1:
        if (m_random.bounded(3) == 0) {
            setAllTriangles();
        } else {
            setGamuts();
        }
        break;
    case 2:
        setFlag();
        break;
    case 3:
        if (m_random.bounded(2) == 0) {
            setPoints();
        } else {
            setColorsAndMarks();
        }
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
        holdKey(oneOf<int>(
                    {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Space, Qt::Key_A, Qt::Key_Shift}),
            m_random.bounded(3) == 0 ? m_random.bounded(30) : 1 + m_random.bounded(3), m_random.bounded(3) != 0);
        break;
    case 11:
    case 12:
        navigate();
        break;
    case 13:
        refreshArea(handlesAreInReach());
        break;
    case 14:
        pick();
        return false; // what the hit tests repaint is their own affair
    case 15:
        useMouse();
        break;
    case 16:
    case 17:
        setMode();
        break;
    case 18:
        drawHandles();
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
            const QPointF corner = oneOf<QPointF>({points.redPos(), points.greenPos(), points.bluePos()});
            return m_model->toScene(reference::closeTo(m_random, corner));
        }
        break;
    default:
        break;
    }
    return m_model->toScene(reference::randomChroma(m_random));
}

// What the scene's mouse handling would set.
void Twins::setState()
{
    const QPointF point = somewhere();
    const int which = m_random.bounded(7);
    note(QStringLiteral("state %1 := %2").arg(which).arg(describe(point)));
    switch (which) {
    case 0:
        reference::restoreAtNextKey(*m_scene, point);
        m_model->restoreAtNextKey(point);
        break;
    case 1:
        reference::selectCentre(*m_scene, point);
        m_model->selectCentre(point);
        break;
    default:
        reference::setRequestedPoint(*m_scene, point);
        m_model->setRequestedPoint(point);
        break;
    }
}

// Small pictures: key steps of a tenth then reach across the whole diagram.
void Twins::setImageSize()
{
    const auto size = [this] {
        const int choice = m_random.bounded(12);
        return choice == 0 ? -m_random.bounded(200) : choice == 1 ? m_random.bounded(3) : 4 + m_random.bounded(60);
    };
    const int width = size();
    SceneTwins::setImageSize(width, size());
}

void Twins::setAllTriangles()
{
    if (!isRenderable()) {
        return;
    }
    const QList<ColorTriangleObject> triangles = reference::randomGamuts(m_random);
    const QList<ColorTriangleObject> standards = reference::randomGamuts(m_random);
    const TrianglePoint first = reference::randomGamut(m_random, 1).trianglePoint();
    const TrianglePoint other = reference::randomGamut(m_random, 2).trianglePoint();
    const QString text = m_random.bounded(2) == 0 ? QString() : QStringLiteral("no data");
    note(QStringLiteral("all triangles ") + describe(triangles));
    m_scene->setLsColorTriangleObject(triangles, standards, first, other, m_random.bounded(2) == 0, text);
    m_model->setAllTriangles(triangles);
}

// None of these shows before the next rendering.
void Twins::setColorsAndMarks()
{
    const int which = m_random.bounded(4);
    note(QStringLiteral("colours and marks %1").arg(which));
    switch (which) {
    case 0:
        m_scene->setCMYPointData({reference::randomChroma(m_random), reference::randomChroma(m_random)});
        break;
    case 1:
        m_scene->setGraphColor(Qt::yellow, Qt::darkBlue);
        break;
    case 2:
        m_scene->setTargetItemVisable(m_random.bounded(2) == 0);
        break;
    default:
        m_scene->setBackgroudColor(Qt::darkRed);
        break;
    }
}

void Twins::runPrivateOperation()
{
    const int which = m_random.bounded(10);
    note(QStringLiteral("operation %1").arg(which));
    switch (which) {
    case 0:
        both([](auto &one) { one.MoveEllipseSign(); });
        break;
    case 1:
        both([](auto &one) { one.RefreshEllipseSignPosition(); });
        break;
    case 2:
    case 3:
        both([](auto &one) { one.AddLedColorAndPoint(); });
        break;
    case 4:
    case 5:
        both([](auto &one) { one.MoveCentreTriangle(); });
        break;
    case 6:
        both([](auto &one) { one.SetCentreTriangle(); });
        break;
    case 7:
        both([](auto &one) { one.SetControlGraphData(); });
        break;
    case 8:
        both([](auto &one) { one.ClearSpeedUpStep(); });
        break;
    default:
        if (m_model->hasPicture()) {
            both([](auto &one) { one.CoordinateTransformation(); });
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
    expect(QStringLiteral("the position"), describe(m_scene->ChromaToCurCoordinate(point)),
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

    const auto key = oneOf<Qt::Key>({Qt::Key_Left, Qt::Key_Up, Qt::Key_A});
    float step = 0.25F;
    float stepExpected = 0.25F;
    m_scene->SpeedUpThePace(step, key);
    m_model->SpeedUpThePace(stepExpected, key);
    expect(
        QStringLiteral("the step"), describe(static_cast<double>(step)), describe(static_cast<double>(stepExpected)));
}

// Walks the requested point to a chromaticity: each step is placed, so that the next key starts from it.
void Twins::navigate()
{
    const QPointF goal = m_model->toScene(reference::randomPoint(m_random, QRectF(0.0, 0.0, 0.7, 0.8)));
    note(QStringLiteral("walk to ") + describe(goal));
    if (!(std::fabs(goal.x()) < 200.0 && std::fabs(goal.y()) < 200.0)) {
        return;
    }
    const auto place = [this] { both([](auto &one) { one.AddLedColorAndPoint(); }); };
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
        place();
    }
    place();
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
    both([&position](auto &one) { one.MouseClickAire(position); });
    both([&position](auto &one) { one.MouseSelectedPoint(position); });
}

void Twins::useMouse()
{
    const auto type = oneOf<QEvent::Type>(
        {QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseMove, QEvent::GraphicsSceneMouseRelease});
    note(QStringLiteral("mouse event %1").arg(type));
    reference::sendMouse(*m_scene, type, reference::randomPoint(m_random, QRectF(0, 0, 80, 80)), Qt::LeftButton);
}

} // namespace

class SceneSequenceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sameAsModel_data() { reference::addSequenceRows(20, sequencesPerRow); }
    void sameAsModel() { reference::compareSequences<Twins>(sequencesPerRow, stepsPerSequence); }
};

QTEST_MAIN(SceneSequenceTest)
#include "scenesequencetest.moc"
