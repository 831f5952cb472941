// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/ceiegraphicsscene.h>

#include <reference/scenetwins.h>

#include <QtTest>

#include <cmath>
#include <limits>

using reference::describe;

namespace {

#ifdef CEIECHART_SHORT_TESTS
constexpr int sequencesPerRow = 5;
#else
constexpr int sequencesPerRow = 15;
#endif
constexpr int stepsPerSequence = 120;

constexpr auto xyDiagram = static_cast<DrawCEIPicture::CEIEType>(0);
constexpr auto uvDiagram = static_cast<DrawCEIPicture::CEIEType>(1);

class Twins : public reference::SceneTwins<CEIEGraphicsScene, reference::LegacySceneModel> {
public:
    explicit Twins(quint32 seed)
        : SceneTwins(seed, 800.0,
            [](const auto &triangles) { return std::make_unique<CEIEGraphicsScene>(xyDiagram, triangles); })
    {
        if (m_random.bounded(8) != 0) {
            const int width = 60 + m_random.bounded(120);
            setImageSize(width, 60 + m_random.bounded(120));
        }
    }

private:
    bool act() override;
    void compareOwn() override
    {
        expect(QStringLiteral("the measure points"), describe(m_scene->getMeasureValuePoints()),
            describe(m_measurePoints));
    }
    void press();
    void press(Qt::MouseButton button, const QPointF &position);
    void drag();
    void move();
    void release(Qt::MouseButton button);
    void useKeys();
    void holdSpace();
    void setData();
    void paint();
    QPointF somewhere();

    QList<QPointF> m_measurePoints;
    QPointF m_pointer;
};

bool Twins::act()
{
    switch (m_random.bounded(26)) {
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
        release(oneOf<Qt::MouseButton>({Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton}));
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
        setData();
        break;
    case 18:
        paint();
        break;
    case 19:
        drawHandles();
        break;
    case 20:
        setMode();
        break;
    case 21:
        setPoints();
        break;
    default:
        drag();
        break;
    }
    return true;
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
    const auto button
        = oneOf<Qt::MouseButton>({Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton});
    press(button, somewhere());
}

void Twins::press(Qt::MouseButton button, const QPointF &position)
{
    m_pointer = position;
    note(QStringLiteral("press %1 at %2").arg(button).arg(describe(m_pointer)));
    reference::sendMouse(*m_scene, QEvent::GraphicsSceneMousePress, m_pointer, button);
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
    release(Qt::LeftButton);
}

void Twins::move()
{
    if (m_random.bounded(8) != 0) {
        m_pointer = somewhere();
    }
    note(QStringLiteral("move to %1").arg(describe(m_pointer)));
    const bool accepted = reference::sendMouse(*m_scene, QEvent::GraphicsSceneMouseMove, m_pointer, Qt::NoButton);
    expect(QStringLiteral("acceptance"), accepted, m_model->mouseMove(m_pointer));
}

void Twins::release(Qt::MouseButton button)
{
    note(QStringLiteral("release %1").arg(button));
    const bool accepted = reference::sendMouse(*m_scene, QEvent::GraphicsSceneMouseRelease, m_pointer, button);
    expect(QStringLiteral("acceptance"), accepted, m_model->mouseRelease(button));
}

void Twins::useKeys()
{
    if (m_model->state().hand || (m_model->state().centreSelected && !m_model->state().vertexSelected)) {
        return; // other keys beside a held space bar, and a start from the white handle, are not laid down
    }
    holdKey(oneOf<int>({Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_A}),
        1 + m_random.bounded(m_random.bounded(3) == 0 ? 28 : 3), true);
}

void Twins::holdSpace()
{
    const bool press = !m_model->state().hand || m_random.bounded(3) == 0;
    note(press ? QStringLiteral("space down") : QStringLiteral("space up"));
    if (press) {
        key(QEvent::KeyPress, Qt::Key_Space, m_model->state().hand);
    } else {
        key(QEvent::KeyRelease, Qt::Key_Space);
    }
}

void Twins::setData()
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
        note(QStringLiteral("SetControlGraphData"));
        both([](auto &one) { one.SetControlGraphData(); });
        break;
    default:
        setGamuts();
        break;
    }
}

// How the marks besides the handles look is the scene's own choice.
void Twins::paint()
{
    if (m_model->triangles().size() >= 2) {
        const QPointF white = m_model->triangles().at(1).trianglePoint().whitePos();
        if (white.x() == 0.0 && white.y() == 0.0) {
            return; // and so is where the handle of a cleared white point goes
        }
    }
    refreshArea(false);
}

} // namespace

class LegacySequenceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sameAsModel_data() { reference::addSequenceRows(30, sequencesPerRow); }
    void sameAsModel() { reference::compareSequences<Twins>(sequencesPerRow, stepsPerSequence); }
    void survivesOnUniformChromaticityDiagram();
};

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
                reference::sendMouse(scene, QEvent::GraphicsSceneMousePress, position, Qt::LeftButton);
                break;
            case 1:
                reference::sendMouse(scene, QEvent::GraphicsSceneMouseRelease, position, Qt::LeftButton);
                break;
            case 2:
                reference::sendKey(scene, QEvent::KeyPress, Qt::Key_Right);
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
                reference::sendMouse(scene, QEvent::GraphicsSceneMouseMove, position, Qt::NoButton);
                break;
            }
        }
    }
}

QTEST_MAIN(LegacySequenceTest)
#include "legacysequencetest.moc"
