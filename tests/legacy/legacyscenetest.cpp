// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/scene/ceiegraphicsscene.h>

#include <reference/canvas.h>
#include <reference/hasmember.h>
#include <reference/picturedifference.h>
#include <reference/samplegamuts.h>
#include <reference/sceneevents.h>
#include <reference/scenemodel.h>
#include <reference/scenesignalfacts.h>
#include <reference/scenesignallog.h>
#include <reference/scenestate.h>

#include <QGraphicsView>
#include <QPainter>
#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>
#include <type_traits>

using reference::describe;
using reference::stateOf;
using Scene = CEIEGraphicsScene;

namespace {

constexpr auto xyDiagram = static_cast<DrawCEIPicture::CEIEType>(0);
constexpr auto uvDiagram = static_cast<DrawCEIPicture::CEIEType>(1);

const QString valueChanged = QStringLiteral("signal_colorGamutValueChanged");
const QString temperature = QStringLiteral("signal_colorTempertrueValueChang");
const QString cursorChange = QStringLiteral("signal_mouseCursorChange");
const QString targetInfo = QStringLiteral("signal_targetInfoChanged");

// The x, y diagram on a picture of 800 × 800: 720 pixels show a chromaticity of 0.84 and of 0.94, from 40.5 on.
struct Bench {
    Scene scene;
    reference::SceneSignalLog<Scene> log;

    explicit Bench(const QList<ColorTriangleObject> &triangles = reference::gamutPair())
        : scene(xyDiagram, triangles)
        , log(&scene)
    {
        scene.setImageWidth(800);
        scene.setImageHeight(800);
        log.takeUpdate();
    }

    // Where a pointer has to be for a chromaticity.
    static QPointF at(const QPointF &chroma)
    {
        return QPointF(40.5 + chroma.x() * 720.0 / static_cast<double>(0.84F),
            40.5 + (static_cast<double>(0.94F) - chroma.y()) * 720.0 / static_cast<double>(0.94F));
    }

    static QPointF chromaAt(const QPointF &position)
    {
        return QPointF((position.x() - 40.5) * (static_cast<double>(0.84F) / 720.0),
            static_cast<double>(0.94F) - (position.y() - 40.5) * (static_cast<double>(0.94F) / 720.0));
    }

    // Where the handle of a chromaticity is painted.
    static QPointF handle(const QPointF &chroma)
    {
        const QPointF exact = at(chroma);
        return QPointF(std::trunc(exact.x()) + 4, std::trunc(exact.y()));
    }

    bool send(QEvent::Type type, const QPointF &position, Qt::MouseButton button)
    {
        return reference::sendMouse(scene, type, position, button);
    }
    void press(const QPointF &position, Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::GraphicsSceneMousePress, position, button);
    }
    bool move(const QPointF &position) { return send(QEvent::GraphicsSceneMouseMove, position, Qt::NoButton); }
    bool release(Qt::MouseButton button = Qt::LeftButton)
    {
        return send(QEvent::GraphicsSceneMouseRelease, QPointF(1, 1), button);
    }
    void key(QEvent::Type type, int code) { reference::sendKey(scene, type, code); }

    // The names of the signals since the last call.
    QStringList names()
    {
        QStringList found;
        const QStringList emitted = log.takeSignals();
        for (const QString &line : emitted) {
            found << line.section(QLatin1Char(' '), 0, 0);
        }
        return found;
    }

    QList<ColorTriangleObject> triangles() { return scene.getLsColorTriangleObject(); }
    TrianglePoint target() { return scene.getLsColorTriangleObject().at(1).trianglePoint(); }
    QPointF whiteHandle() { return handle(target().whitePos()); }
};

QImage shown(const QImage &picture)
{
    return reference::shownPicture(picture, picture.rect(), picture.size());
}

void paintHandles(Scene &scene)
{
    reference::canvas(QSize(100, 100), [&scene](QPainter &painter) { scene.refreshArea(&painter); });
}

// What the legacy scene must not have, not even by way of a base.
DEFINE_HAS_MEMBER(setTargetItemVisable)
DEFINE_HAS_MEMBER(setBackgroudColor)
DEFINE_HAS_MEMBER(setCMYPointData)
DEFINE_HAS_MEMBER(ChromaToCurCoordinate)
DEFINE_HAS_MEMBER(CurCoordinateToChroma)
DEFINE_HAS_MEMBER(chromaToCurCoordinate)
DEFINE_HAS_MEMBER(painterTriangle)

ONLY_IN_THE_CURRENT_CLASS(setTargetItemVisable, NewCEIE::CEIEGraphicsScene, Scene);
ONLY_IN_THE_CURRENT_CLASS(setBackgroudColor, NewCEIE::CEIEGraphicsScene, Scene);
ONLY_IN_THE_CURRENT_CLASS(setCMYPointData, NewCEIE::CEIEGraphicsScene, Scene);
ONLY_IN_THE_CURRENT_CLASS(ChromaToCurCoordinate, NewCEIE::CEIEGraphicsScene, Scene);
ONLY_IN_THE_CURRENT_CLASS(CurCoordinateToChroma, NewCEIE::CEIEGraphicsScene, Scene);
ONLY_IN_THE_CURRENT_CLASS(chromaToCurCoordinate, NewCEIE::CEIEGraphicsScene, Scene);
static_assert(!Has_painterTriangle<Scene>::value);

template <class T>
using GamutForm = decltype(std::declval<T &>().setLsColorTriangleObject(
    QList<ColorTriangleObject>(), QList<ColorTriangleObject>(), TrianglePoint(), TrianglePoint(), true, QString()));
static_assert(reference::isDetected<GamutForm, NewCEIE::CEIEGraphicsScene>);
static_assert(!reference::isDetected<GamutForm, Scene>);

} // namespace

class LegacySceneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void derivesFromGraphicsScene();
    void declaresTheSameSignals();
    void checkTakesConstantReferences();
    void planckianLocusFollowsTheAxes();
    void uniformDiagramShowsMeasurePoints();
    void renderingHandsOverNoColorTemperaturePoints();
    void backgroundGoesByTheFirstView();
    void backgroundDrawsTheHandles();
    void handlesStandWhereTheRendererMaps();
    void temperatureSignalNarrowsTheWhite();
    void pressPlacesThePrimaryOfItsFence_data();
    void pressPlacesThePrimaryOfItsFence();
    void otherButtonsDoNotEdit();
    void hoverComparesExactly();
    void hoverSetsTheTab();
    void hoverOrderIsRedGreenBlueWhite();
    void otherKeysEndTheHand();
    void whiteHandleIsASquareOfTwelve();
    void whiteHandleOfNewGamutsIsWhereItWillBe();
    void whiteHandleGrowsWithTheZoom();
    void arrowsStartFromThePaintedWhiteHandle();
    void itemsGetNoMouseEvents()
    {
        Bench bench;
        reference::verifyItemsGetNoMouseEvents(bench.scene);
    }
    void keyEventsKeepTheirAcceptance()
    {
        Bench bench;
        reference::verifyKeyEventsKeepTheirAcceptance(bench.scene);
    }
    void meaninglessInputIsSurvived();
};

void LegacySceneTest::derivesFromGraphicsScene()
{
    Bench bench;
    QCOMPARE(bench.scene.metaObject()->className(), "CEIEGraphicsScene");
    QCOMPARE(bench.scene.metaObject()->superClass(), &QGraphicsScene::staticMetaObject);
    QCOMPARE(bench.scene.parent(), nullptr);
}

void LegacySceneTest::declaresTheSameSignals()
{
    QCOMPARE(reference::declaredSignals(Scene::staticMetaObject), reference::sceneSignals());
}

void LegacySceneTest::checkTakesConstantReferences()
{
    Bench bench;
    const ColorTriangleObject original = reference::wideGamut();
    const ColorTriangleObject target = reference::narrowGamut();
    const baseCommon::LEDColorType beyond = baseCommon::None;
    bool (Scene::*check)(const ColorTriangleObject &, const ColorTriangleObject &, const baseCommon::LEDColorType &)
        = &Scene::CheckOriginalAndTarget;
    QVERIFY((bench.scene.*check)(original, target, beyond));
    QVERIFY(!(bench.scene.*check)(target, original, beyond));
}

void LegacySceneTest::planckianLocusFollowsTheAxes()
{
    for (const bool coordinate : {true, false}) {
        for (const bool locus : {true, false}) {
            Scene scene(xyDiagram, {});
            scene.setImageWidth(240);
            scene.setImageHeight(260);
            scene.setIsDrawBBRLine(locus);
            scene.setIsDrawCoordinate(coordinate);
            QCOMPARE(scene.isDrawBBRLine(), locus);
            DrawCEIPicture renderer(xyDiagram, nullptr);
            const std::unique_ptr<QImage> picture(
                renderer.drawCEIPicture(240, 260, coordinate, coordinate, true, QList<QPointF>()));
            const std::unique_ptr<QImage> otherPicture(
                renderer.drawCEIPicture(240, 260, coordinate, !coordinate, true, QList<QPointF>()));
            QVERIFY(!reference::firstDifference(shown(*picture), shown(*otherPicture)).isEmpty());
            QCOMPARE(reference::firstDifference(reference::backgroundOf(scene), shown(*picture)), QString());
        }
    }
}

void LegacySceneTest::uniformDiagramShowsMeasurePoints()
{
    const QList<QPointF> points{QPointF(0.2, 0.3), QPointF(0.3, 0.5)};
    Scene scene(uvDiagram, {});
    scene.setMeasureValuePoints(points);
    scene.setImageWidth(240);
    scene.setImageHeight(260);
    DrawCEIPicture renderer(uvDiagram, nullptr);
    renderer.setMeasurePoints(points);
    const std::unique_ptr<QImage> picture(renderer.drawCEIEPicture(240, 260, true, true, true, QList<QPointF>()));
    QCOMPARE(reference::firstDifference(reference::backgroundOf(scene), shown(*picture)), QString());

    scene.setMeasureValuePoints({});
    scene.getBitMap();
    QVERIFY(!reference::firstDifference(reference::backgroundOf(scene), shown(*picture)).isEmpty());
}

// They are kept for the host, and no picture shows them.
void LegacySceneTest::renderingHandsOverNoColorTemperaturePoints()
{
    const QList<QPointF> points{QPointF(0.3127, 0.329), QPointF(0.4, 0.4)};
    Scene scene(xyDiagram, {});
    scene.setImageWidth(240);
    scene.setImageHeight(260);
    scene.setLsColorTempertureValuePoints(points);
    QCOMPARE(scene.getLsColorTempertureValuePoints(), points);
    DrawCEIPicture renderer(xyDiagram, nullptr);
    const std::unique_ptr<QImage> without(renderer.drawCEIPicture(240, 260, true, true, true, {}));
    const std::unique_ptr<QImage> with(renderer.drawCEIPicture(240, 260, true, true, true, points));
    QVERIFY(!reference::firstDifference(*with, *without).isEmpty());
    QCOMPARE(reference::firstDifference(reference::backgroundOf(scene), shown(*without)), QString());
}

void LegacySceneTest::backgroundGoesByTheFirstView()
{
    Scene scene(xyDiagram, {});
    scene.setImageWidth(240);
    scene.setImageHeight(260);
    const auto drawn = [&scene] {
        return reference::canvas(
            QSize(400, 400), [&scene](QPainter &painter) { scene.drawBackground(&painter, QRectF()); });
    };
    QGraphicsView first(&scene);
    first.resize(300, 130);
    const QImage alone = drawn();
    QGraphicsView last(&scene);
    last.resize(300, 390);
    QCOMPARE(reference::firstDifference(drawn(), alone), QString());
    first.setScene(nullptr);
    QVERIFY(!reference::firstDifference(drawn(), alone).isEmpty());
}

void LegacySceneTest::backgroundDrawsTheHandles()
{
    Bench bench;
    bench.scene.setDrawColorTPoint(false);
    const QImage withHandles = reference::backgroundOf(bench.scene);
    QCOMPARE(bench.names(), QStringList(temperature));
    Bench empty(QList<ColorTriangleObject>{});
    const QImage without = reference::backgroundOf(empty.scene);
    QVERIFY(empty.names().isEmpty());
    const TrianglePoint points = bench.target();
    for (const QPointF &chroma : {points.redPos(), points.greenPos(), points.bluePos(), points.whitePos()}) {
        const QPoint centre = Bench::handle(chroma).toPoint();
        const QRect around(centre - QPoint(8, 8), QSize(17, 17));
        QVERIFY(withHandles.copy(around) != without.copy(around));
    }
}

void LegacySceneTest::handlesStandWhereTheRendererMaps()
{
    Bench bench;
    QCOMPARE(describe(Bench::handle(QPointF(0.3127, 0.3290))), QStringLiteral("(312, 508)"));
    QCOMPARE(describe(bench.scene.GetEllipsePoint(QPointF(0.3127, 0.3290))), QStringLiteral("(312, 508)"));

    QImage actual(800, 800, QImage::Format_ARGB32_Premultiplied);
    actual.fill(Qt::darkCyan);
    QImage expected = actual.copy();
    {
        QPainter painter(&actual);
        QVERIFY(bench.scene.DrawVertexSign(&painter));
    }
    {
        QPainter painter(&expected);
        const TrianglePoint points = bench.target();
        const auto sign = [&painter](const QPointF &centre, const QColor &cross) {
            const int x = int(centre.x());
            const int y = int(centre.y());
            painter.setPen(Qt::gray);
            painter.drawEllipse(x - 3, y - 3, 6, 6);
            painter.setPen(cross);
            painter.drawLine(x - 3, y, x + 3, y);
            painter.drawLine(x, y - 3, x, y + 3);
        };
        sign(Bench::handle(points.redPos()), QColor(0, 255, 0));
        sign(Bench::handle(points.greenPos()), QColor(255, 0, 0));
        sign(Bench::handle(points.bluePos()), QColor(0, 255, 0));
    }
    QCOMPARE(reference::firstDifference(actual, expected), QString());
}

// 5183 K as doubles, 5184 K as floats.
void LegacySceneTest::temperatureSignalNarrowsTheWhite()
{
    QList<ColorTriangleObject> pair = reference::gamutPair();
    pair[1].trianglePoint().setWhitePos(QPointF(0.3383, 0.3164));
    Bench bench(pair);
    paintHandles(bench.scene);
    QCOMPARE(bench.log.takeSignals(), QStringList(temperature + QStringLiteral(" 5184")));
}

void LegacySceneTest::pressPlacesThePrimaryOfItsFence_data()
{
    QTest::addColumn<QPointF>("chroma");
    QTest::addColumn<int>("region");
    QTest::newRow("corner of all fences is red") << QPointF(0.33, 0.33) << 0;
    QTest::newRow("red") << QPointF(0.5, 0.2) << 0;
    QTest::newRow("green") << QPointF(0.2, 0.6) << 1;
    QTest::newRow("blue") << QPointF(0.15, 0.05) << 2;
    QTest::newRow("none") << QPointF(0.6, 0.6) << 3;
}

// Wherever the handle is, and at once.
void LegacySceneTest::pressPlacesThePrimaryOfItsFence()
{
    QFETCH(QPointF, chroma);
    QFETCH(int, region);
    QList<ColorTriangleObject> pair = reference::gamutPair();
    pair[1].trianglePoint().setWhitePos(QPointF(0.4, 0.4)); // out of the way
    Bench bench(pair);
    const QPointF position = Bench::at(chroma);
    bench.press(position);
    QCOMPARE(bench.log.takeSignals(), QStringList(valueChanged + QLatin1Char(' ') + describe(bench.triangles().at(1))));
    const TrianglePoint before = reference::narrowGamut().trianglePoint();
    const TrianglePoint points = bench.target();
    const QPointF placed = Bench::chromaAt(position);
    QVERIFY(std::hypot(placed.x() - chroma.x(), placed.y() - chroma.y()) < 1e-12);
    const auto expected = [&](int primary, const QPointF &old) { return describe(primary == region ? placed : old); };
    QCOMPARE(describe(points.redPos()), expected(0, before.redPos()));
    QCOMPARE(describe(points.greenPos()), expected(1, before.greenPos()));
    QCOMPARE(describe(points.bluePos()), expected(2, before.bluePos()));
    QCOMPARE(stateOf(bench.scene).selectedRegion, region);
    QCOMPARE(stateOf(bench.scene).selectedVertex, (region + 1) % 4);
    QVERIFY(bench.log.takeUpdate());
}

void LegacySceneTest::otherButtonsDoNotEdit()
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::NoButton}) {
        Bench bench;
        const QPointF position = Bench::at(QPointF(0.5, 0.2));
        bench.press(position, button);
        QVERIFY(bench.names().isEmpty());
        QCOMPARE(describe(stateOf(bench.scene).requested), describe(position));
        bench.move(Bench::at(QPointF(0.52, 0.2)));
        QCOMPARE(bench.names(), QStringList(cursorChange));
        QCOMPARE(describe(bench.triangles()), describe(reference::gamutPair()));
    }
}

void LegacySceneTest::hoverComparesExactly()
{
    Bench bench;
    bench.move(QPointF(100, 50));
    bench.names();
    bench.move(QPointF(100 + 1e-12, 50));
    QCOMPARE(bench.names(), QStringList(cursorChange));
    bench.move(QPointF(100 + 1e-12, 50 - 1e-12));
    QCOMPARE(bench.names(), QStringList(cursorChange));
}

void LegacySceneTest::hoverSetsTheTab()
{
    Bench bench;
    const TrianglePoint points = bench.target();
    const QList<QPair<QPointF, int>> handles{
        {points.redPos(), 4}, {points.greenPos(), 1}, {points.bluePos(), 3}, {points.whitePos(), 2}};
    for (const auto &handle : handles) {
        const QPointF centre = Bench::handle(handle.first);
        for (const QPointF &offset : {QPointF(0, 0), QPointF(5, -5), QPointF(-5, 5)}) {
            bench.move(centre + offset);
            QCOMPARE(reference::hoverTab(bench.scene), handle.second);
        }
        for (const QPointF &offset : {QPointF(7, 0), QPointF(0, 7), QPointF(-7, 0), QPointF(0, -7)}) {
            bench.move(centre + offset);
            QCOMPARE(reference::hoverTab(bench.scene), 0);
        }
    }
    // Int of one and a half times twelve.
    reference::setFunctionKeyMode(bench.scene, 1);
    for (int i = 0; i < 5; ++i) {
        bench.scene.SetFunctionKeyShortcuts();
    }
    reference::setFunctionKeyMode(bench.scene, 0);
    bench.scene.SetFunctionKeyShortcuts();
    bench.move(Bench::handle(points.greenPos()) + QPointF(8, 8));
    QCOMPARE(reference::hoverTab(bench.scene), 1);
    bench.move(Bench::handle(points.greenPos()) + QPointF(10, 8));
    QCOMPARE(reference::hoverTab(bench.scene), 0);
}

void LegacySceneTest::hoverOrderIsRedGreenBlueWhite()
{
    const QPointF together(0.3, 0.3);
    QList<ColorTriangleObject> pair = reference::gamutPair();
    TrianglePoint &points = pair[1].trianglePoint();
    points.setRedPos(together);
    points.setGreenPos(together);
    points.setBluePos(together);
    points.setWhitePos(together);
    const QPointF away(0.6, 0.6);
    QList<int> found;
    for (int removed = 0; removed < 4; ++removed) {
        Bench bench(pair);
        bench.move(Bench::handle(together));
        found << reference::hoverTab(bench.scene);
        (removed == 0 ? points.redPos() : removed == 1 ? points.greenPos() : points.bluePos()) = away;
    }
    QCOMPARE(found, QList<int>({4, 1, 3, 2}));
}

void LegacySceneTest::otherKeysEndTheHand()
{
    for (const int code : {Qt::Key_A, Qt::Key_Shift, Qt::Key_Left}) {
        Bench bench;
        bench.key(QEvent::KeyPress, Qt::Key_Space);
        QVERIFY(stateOf(bench.scene).hand);
        bench.key(QEvent::KeyPress, code);
        QVERIFY(!stateOf(bench.scene).hand);
    }
}

void LegacySceneTest::whiteHandleIsASquareOfTwelve()
{
    for (const bool afterPainting : {false, true}) {
        for (const QPointF &offset : {QPointF(0, 0), QPointF(5.5, 5.5), QPointF(-5.5, 5.5), QPointF(5.5, -5.5)}) {
            Bench bench;
            const QPointF handle = bench.whiteHandle();
            if (afterPainting) {
                paintHandles(bench.scene);
                bench.names();
            }
            bench.press(handle + offset);
            QCOMPARE(bench.names(), QStringList(targetInfo));
            QVERIFY(stateOf(bench.scene).centreSelected);
        }
        for (const QPointF &offset : {QPointF(6.5, 0), QPointF(-6.5, 0), QPointF(0, 6.5), QPointF(0, -6.5)}) {
            Bench bench;
            const QPointF handle = bench.whiteHandle();
            if (afterPainting) {
                paintHandles(bench.scene);
                bench.names();
            }
            bench.press(handle + offset);
            QCOMPARE(bench.names(), QStringList(valueChanged));
            QVERIFY(!stateOf(bench.scene).centreSelected);
        }
    }
}

// Not where that of the gamuts before was painted.
void LegacySceneTest::whiteHandleOfNewGamutsIsWhereItWillBe()
{
    for (const bool atTheNewOne : {true, false}) {
        Bench bench;
        const QPointF before = bench.whiteHandle();
        paintHandles(bench.scene);
        QList<ColorTriangleObject> pair = reference::gamutPair();
        pair[1].trianglePoint().setWhitePos(QPointF(0.38, 0.38));
        bench.scene.setLsColorTriangleObject(pair);
        bench.names();
        bench.press(atTheNewOne ? bench.whiteHandle() : before);
        QCOMPARE(stateOf(bench.scene).centreSelected, atTheNewOne);
        QCOMPARE(bench.names(), QStringList(atTheNewOne ? targetInfo : valueChanged));
    }
}

// Int of one and a half times twelve, and of 1.1 times twelve.
void LegacySceneTest::whiteHandleGrowsWithTheZoom()
{
    const QList<QPair<int, double>> halves{{5, 9.0}, {1, 6.5}};
    for (const auto &half : halves) {
        for (const bool within : {true, false}) {
            Bench bench;
            reference::setFunctionKeyMode(bench.scene, 1);
            for (int i = 0; i < half.first; ++i) {
                bench.scene.SetFunctionKeyShortcuts();
            }
            reference::setFunctionKeyMode(bench.scene, 0);
            bench.scene.SetFunctionKeyShortcuts();
            const double away = half.second + (within ? -0.8 : 0.8);
            bench.press(bench.whiteHandle() + QPointF(away, -away));
            QCOMPARE(bench.names(), QStringList(within ? targetInfo : valueChanged));
        }
    }
}

void LegacySceneTest::arrowsStartFromThePaintedWhiteHandle()
{
    Bench bench;
    bench.scene.setDrawColorTPoint(false);
    paintHandles(bench.scene);
    bench.press(bench.whiteHandle());
    bench.names();
    bench.key(QEvent::KeyPress, Qt::Key_Left);
    QCOMPARE(bench.names(), QStringList(targetInfo));
    const QPointF away = stateOf(bench.scene).requested - bench.whiteHandle();
    QVERIFY(std::fabs(away.x()) < 2.0 && std::fabs(away.y()) < 2.0);
}

void LegacySceneTest::meaninglessInputIsSurvived()
{
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double bad : {inf, -inf, nan, 1e300, -1e12}) {
        QList<ColorTriangleObject> triangles = reference::gamutPair();
        for (ColorTriangleObject &triangle : triangles) {
            triangle.trianglePoint().setRedPos(QPointF(bad, bad));
            triangle.trianglePoint().setWhitePos(QPointF(bad, 0.3));
            triangle.trianglePoint().setBlueLum(bad);
        }
        for (const bool held : {false, true}) {
            Bench bench(triangles);
            bench.scene.setColorTempertureChecked(held);
            bench.scene.setMeasureValuePoints({QPointF(bad, 0.1)});
            bench.scene.setOtherPoints({QPointF(bad, bad), QPointF(0.3, 0.3)}, {Qt::red});
            for (const QPointF &position : {QPointF(bad, bad), QPointF(400, 400)}) {
                bench.press(position);
                bench.move(position + QPointF(3, 3));
                bench.move(QPointF(500, 600));
                bench.release();
                paintHandles(bench.scene);
            }
            bench.scene.setImageWidth(-5);
            bench.press(QPointF(400, 400));
            bench.move(QPointF(500, 600));
            QGraphicsView view(&bench.scene);
            view.resize(100, 100);
            QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::black);
            QPainter painter(&image);
            bench.scene.drawBackground(&painter, QRectF());
            QCOMPARE(bench.triangles().size(), 2);
        }
    }
}

QTEST_MAIN(LegacySceneTest)
#include "legacyscenetest.moc"
