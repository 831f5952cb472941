// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/legacy/ceiegraphicsview.h>
// Both generations fit into one translation unit.
#include <ceiechart/widgets/ceiegraphicsview.h>

#include <reference/hasmember.h>
#include <widgets/chartviewtests.h>

#include <QPushButton>

using Tests = ChartViewTests<CEIEGraphicsView, CEIEGraphicsScene, NQCEIEGraphicsView, CEIELegend>;

class LegacyCEIEGraphicsViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void metaObject()
    {
        Tests::metaObject("CEIEGraphicsView", "MouseCursorStyle",
            QStringList({"imageSize", "imageWidth", "imageHeight", "isDrawCoordinate", "isDrawBBRLine",
                "isDrawWaveLength", "graphLineColor", "graphPictureColor", "lightPicture", "paletteFollowed",
                "devicePixelRatioFollowed", "threadCount", "legendAlignament", "drawColorTPoint",
                "colorTempertureChecked", "RGBPointEnable", "useMouseOpertator"}));
    }
    void constructors();
    void diagramType();
    void innerView();
    void chartsBackground();
    void noInformationLabel();
    void absentOperations();
    void defaults() { Tests::defaults(CEIEGraphicsView(nullptr, DrawCEIPicture::XyDiagram)); }
    void layout_data() { LegendTests<CEIELegend>::layout_data(); }
    void layout() { Tests::layout(true); }
    void rearranging_data() { LegendTests<CEIELegend>::layout_data(); }
    void rearranging() { Tests::rearranging(true); }
    void legendPlace() { Tests::legendPlace(); }

    void imageSize() { Tests::imageSize(); }
    void impossibleImageSize() { Tests::impossibleImageSize(); }
    void layerSwitches() { Tests::layerSwitches(); }
    void editSwitches() { Tests::editSwitches(); }
    void gamutList() { Tests::gamutList(); }
    void clearing() { Tests::clearing(); }
    void gamutVisibility() { Tests::gamutVisibility(); }
    void gamutVisibilityOutsideTheList() { Tests::gamutVisibilityOutsideTheList(); }
    void points() { Tests::points(); }
    void measurePoints();

    void gamutToTriangle();
    void changedGamutsRepaintTheChart();
    void twoGamuts();
    void graphColors();
    void planckianLocusComesWithTheAxes();

    void relays();
    void relaysKeepTheOrder() { Tests::relaysKeepTheOrder(); }
    void relaysWhatTheMouseDoes();
    void functionKeys();
    void cursorChangesAfterTheEvent() { Tests::cursorChangesAfterTheEvent(); }
    void cursorStaysOverOtherDiagrams();
    void cursorChangeOfADestroyedChart() { Tests::cursorChangeOfADestroyedChart(); }
    void operationsServeAsSlots() { Tests::operationsServeAsSlots(); }
    void ownership() { Tests::ownership(); }
    void innerViewThatOutlivesItsChart() { Tests::innerViewThatOutlivesItsChart(); }
    void manyCharts() { Tests::manyCharts(); }
    void libraryRegistersNoMetaType() { Tests::libraryRegistersNoMetaType(); }
    void bothGenerationsTogether();
};

namespace {

Model::ColorGamutInfo info(const Model::Targets &targets)
{
    return {targets.red, targets.green, targets.blue, targets.white};
}

QImage pictureOf(const CEIEGraphicsView &view)
{
    return paintedScene(*view.view()->scene());
}

// A picture as the scene shows it in a view that is two pixels larger: centred, unscaled.
QImage rendered(DrawCEIPicture &renderer, bool coordinates, bool waveLengths)
{
    const bool uv = renderer.type() == DrawCEIPicture::UvDiagram;
    const std::unique_ptr<QImage> picture(uv
            ? renderer.drawCEIEPicture(200, 200, coordinates, coordinates, waveLengths, {})
            : renderer.drawCEIPicture(200, 200, coordinates, coordinates, waveLengths, {}));
    QImage shown(200, 200, QImage::Format_ARGB32_Premultiplied);
    shown.fill(Qt::transparent);
    QPainter painter(&shown);
    painter.drawImage(1, 1, *picture);
    return shown;
}

void resizeImage(CEIEGraphicsView &view)
{
    view.setImageWidth(200);
    view.setImageHeight(200);
}

} // namespace

void LegacyCEIEGraphicsViewTest::constructors()
{
    QWidget parent;
    const CEIEGraphicsView typed(&parent, DrawCEIPicture::XyDiagram);
    QCOMPARE(typed.parentWidget(), &parent);
    QCOMPARE(legendLabels(*typed.getLegend()).size(), 3);
    Tests::verifyLayout(typed, false, true);
    // The flag is not consulted.
    for (const bool flag : {false, true}) {
        const CEIEGraphicsView below(flag, &parent);
        QCOMPARE(below.parentWidget(), &parent);
        QCOMPARE(legendLabels(*below.getLegend()).size(), 6);
        Tests::verifyLayout(below, false, true);
        const CEIEGraphicsView beside(flag, Qt::AlignRight, &parent);
        QCOMPARE(beside.parentWidget(), &parent);
        QCOMPARE(legendLabels(*beside.getLegend()).size(), 6);
        Tests::verifyLayout(beside, true, true);
    }
}

void LegacyCEIEGraphicsViewTest::diagramType()
{
    DrawCEIPicture xy(DrawCEIPicture::XyDiagram, nullptr);
    DrawCEIPicture uv(DrawCEIPicture::UvDiagram, nullptr);
    const QImage xyPicture = rendered(xy, true, true);
    const QImage uvPicture = rendered(uv, true, true);
    QVERIFY(!reference::firstDifference(xyPicture, uvPicture).isEmpty());

    CEIEGraphicsView xyView(nullptr, DrawCEIPicture::XyDiagram);
    CEIEGraphicsView uvView(nullptr, DrawCEIPicture::UvDiagram);
    CEIEGraphicsView below(true, nullptr);
    CEIEGraphicsView beside(true, Qt::AlignLeft, nullptr);
    for (CEIEGraphicsView *view : {&xyView, &uvView, &below, &beside}) {
        resizeImage(*view);
        COMPARE_PICTURES(pictureOf(*view), view == &uvView ? uvPicture : xyPicture);
    }
}

void LegacyCEIEGraphicsViewTest::innerView()
{
    CEIEGraphicsView xyView(nullptr, DrawCEIPicture::XyDiagram);
    Tests::innerView(xyView);
    CEIEGraphicsView uvView(nullptr, DrawCEIPicture::UvDiagram);
    Tests::innerView(uvView);
}

void LegacyCEIEGraphicsViewTest::chartsBackground()
{
    CEIEGraphicsView view(nullptr, DrawCEIPicture::XyDiagram);
    QCOMPARE(view.view()->styleSheet(), QStringLiteral("background: #323238"));
    view.setGraphColor(Qt::black, Qt::white);
    QCOMPARE(view.view()->styleSheet(), QStringLiteral("background: #323238"));
}

void LegacyCEIEGraphicsViewTest::noInformationLabel()
{
    const CEIEGraphicsView view(nullptr, DrawCEIPicture::XyDiagram);
    QVERIFY(view.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly).isEmpty());
}

DEFINE_HAS_MEMBER(setIsShowStandard)
DEFINE_HAS_MEMBER(setIsShowTarget)
DEFINE_HAS_MEMBER(setIsShowOriginal)
DEFINE_HAS_MEMBER(setIsShowActual)
DEFINE_HAS_MEMBER(setIsShowMeasure)
DEFINE_HAS_MEMBER(updateLanGamut)
DEFINE_HAS_MEMBER(updateMixInfo)
DEFINE_HAS_MEMBER(getTargetOrgIntersected)
DEFINE_HAS_MEMBER(calcActualPos)
DEFINE_HAS_MEMBER(setBackgroudColor)
DEFINE_HAS_MEMBER(setCMYPointData)

template <class T, class... Arguments>
using TakesGamuts = decltype(std::declval<T &>().setColorGamut(std::declval<const Arguments &>()...));

void LegacyCEIEGraphicsViewTest::absentOperations()
{
    using Legacy = CEIEGraphicsView;
    using Current = NewCEIE::CEIEGraphicsView;
    ONLY_IN_THE_CURRENT_CLASS(setIsShowStandard, Current, Legacy);
    ONLY_IN_THE_CURRENT_CLASS(setIsShowTarget, Current, Legacy);
    ONLY_IN_THE_CURRENT_CLASS(setIsShowOriginal, Current, Legacy);
    ONLY_IN_THE_CURRENT_CLASS(setIsShowActual, Current, Legacy);
    ONLY_IN_THE_CURRENT_CLASS(setIsShowMeasure, Current, Legacy);
    ONLY_IN_THE_CURRENT_CLASS(updateLanGamut, Current, Legacy);
    ONLY_IN_THE_CURRENT_CLASS(updateMixInfo, Current, Legacy);
    ONLY_IN_THE_CURRENT_CLASS(getTargetOrgIntersected, Current, Legacy);
    ONLY_IN_THE_CURRENT_CLASS(calcActualPos, Current, Legacy);
    ONLY_IN_THE_CURRENT_CLASS(setBackgroudColor, Current, Legacy);
    ONLY_IN_THE_CURRENT_CLASS(setCMYPointData, Current, Legacy);
    static_assert(std::is_same_v<decltype(&Legacy::resizeEvent), decltype(&QFrame::resizeEvent)>);
    static_assert(!std::is_same_v<decltype(&Current::resizeEvent), decltype(&QFrame::resizeEvent)>);

    using Gamut = Model::ColorGamut;
    using Gamuts = QList<Model::ColorGamut>;
    using Info = Model::ColorGamutInfo;
    static_assert(reference::isDetected<TakesGamuts, Legacy, Info, Info>);
    static_assert(!reference::isDetected<TakesGamuts, Legacy, Gamut, Gamut, Gamuts>);
    static_assert(!reference::isDetected<TakesGamuts, Legacy, Gamut, Gamut, Gamut, Gamuts>);
    static_assert(reference::isDetected<TakesGamuts, Current, Gamut, Gamut, Gamuts>);
    static_assert(reference::isDetected<TakesGamuts, Current, Gamut, Gamut, Gamut, Gamuts>);
    static_assert(!std::is_constructible_v<Legacy, QWidget *>);
    static_assert(!std::is_constructible_v<Current, QWidget *, DrawCEIPicture::CEIEType>);
}

void LegacyCEIEGraphicsViewTest::measurePoints()
{
    CEIEGraphicsView view(nullptr, DrawCEIPicture::UvDiagram);
    const QList<QPointF> points = {QPointF(0.1978, 0.4683), QPointF(0.45, 0.52)};
    view.setMeasureValuePoints(points);
    QCOMPARE(view.getMeasureValuePoints(), points);
    QCOMPARE(Tests::sceneOf(view)->getMeasureValuePoints(), points);
    Tests::sceneOf(view)->setMeasureValuePoints({});
    QVERIFY(view.getMeasureValuePoints().isEmpty());

    view.setMeasureValuePoints(points);
    resizeImage(view);
    DrawCEIPicture renderer(DrawCEIPicture::UvDiagram, nullptr);
    const QImage without = rendered(renderer, true, true);
    renderer.setMeasurePoints(points);
    COMPARE_PICTURES(pictureOf(view), rendered(renderer, true, true));
    QVERIFY(!reference::firstDifference(pictureOf(view), without).isEmpty());
}

void LegacyCEIEGraphicsViewTest::gamutToTriangle()
{
    CEIEGraphicsView view(true, nullptr);
    TrianglePoint triangle;
    view.colorGamutToTriangle(info(distinctTargets(3)), triangle);
    QCOMPARE(describe(triangle), describe(triangleOf(distinctTargets(3))));
    view.colorGamutToTriangle(Model::ColorGamutInfo(), triangle);
    QCOMPARE(describe(triangle), describe(TrianglePoint()));
}

void LegacyCEIEGraphicsViewTest::changedGamutsRepaintTheChart()
{
    Tests::changedGamutsRepaintTheChart();
    CEIEGraphicsView view(true, nullptr);
    QVERIFY(Tests::isRepaintedBy(view,
        [](CEIEGraphicsView &shown) { shown.setColorGamut(info(distinctTargets(1)), info(distinctTargets(2))); }));
}

void LegacyCEIEGraphicsViewTest::twoGamuts()
{
    CEIEGraphicsView view(true, nullptr);
    view.setLsColorTriangleObject(threeGamuts());
    view.setColorGamut(info(distinctTargets(1)), info(distinctTargets(2)));
    const QList<ColorTriangleObject> list = view.lsColorTriangleObject();
    QCOMPARE(describe(list),
        describe(QList<ColorTriangleObject>{gamutObject(distinctTargets(2), QColor(255, 255, 255, 255), 2),
            gamutObject(distinctTargets(1), QColor(0, 0, 0, 255), 1)}));
    QCOMPARE(describe(Tests::sceneOf(view)->getLsColorTriangleObject()), describe(list));
    view.setColorGamut(info(distinctTargets(3)), info(distinctTargets(4)));
    QCOMPARE(view.lsColorTriangleObject().size(), 2);
}

void LegacyCEIEGraphicsViewTest::graphColors()
{
    CEIEGraphicsView view(nullptr, DrawCEIPicture::UvDiagram);
    view.setGraphColor(QColor(10, 20, 30), QColor(200, 210, 220));
    resizeImage(view);
    DrawCEIPicture renderer(DrawCEIPicture::UvDiagram, nullptr);
    renderer.setGraphColor(QColor(10, 20, 30), QColor(200, 210, 220));
    COMPARE_PICTURES(pictureOf(view), rendered(renderer, true, true));
}

void LegacyCEIEGraphicsViewTest::planckianLocusComesWithTheAxes()
{
    CEIEGraphicsView view(nullptr, DrawCEIPicture::XyDiagram);
    resizeImage(view);
    DrawCEIPicture renderer(DrawCEIPicture::XyDiagram, nullptr);
    const QImage everything = rendered(renderer, true, true);
    COMPARE_PICTURES(pictureOf(view), everything);
    view.setIsDrawBBRLine(false);
    COMPARE_PICTURES(pictureOf(view), everything);
    view.setIsDrawBBRLine(true);
    view.setIsDrawCoordinate(false);
    COMPARE_PICTURES(pictureOf(view), rendered(renderer, false, true));
    view.setIsDrawCoordinate(true);
    view.setIsDrawWaveLength(false);
    COMPARE_PICTURES(pictureOf(view), rendered(renderer, true, false));
}

void LegacyCEIEGraphicsViewTest::relays()
{
    CEIEGraphicsView xyView(nullptr, DrawCEIPicture::XyDiagram);
    Tests::relays(xyView);
    CEIEGraphicsView uvView(nullptr, DrawCEIPicture::UvDiagram);
    Tests::relays(uvView);
}

// The pointer's way through view and scene, and the report's way back to the host.
void LegacyCEIEGraphicsViewTest::relaysWhatTheMouseDoes()
{
    CEIEGraphicsView view(nullptr, DrawCEIPicture::XyDiagram);
    view.setImageWidth(500);
    view.setImageHeight(500);
    const Model::Targets original = {Model::Target::fromYxy(240, 0.70, 0.29), Model::Target::fromYxy(634, 0.18, 0.74),
        Model::Target::fromYxy(126, 0.13, 0.04), Model::Target::fromYxy(1000, 0.3127, 0.3290)};
    const Model::Targets target = {Model::Target::fromYxy(181, 0.64, 0.33), Model::Target::fromYxy(608, 0.30, 0.60),
        Model::Target::fromYxy(61, 0.15, 0.06), Model::Target::fromYxy(850, 0.3127, 0.3290)};
    view.setColorGamut(info(target), info(original));
    view.show();
    DrawCEIPicture renderer(DrawCEIPicture::XyDiagram, nullptr);
    delete renderer.drawCEIPicture(500, 500, true, true, true, {});
    const auto at = [&view, &renderer](double x, double y) {
        return view.view()->mapFromScene(renderer.CoordinateTransformation(QPointF(x, y)));
    };

    const auto send = [&view](
                          QEvent::Type type, const QPoint &position, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, position, view.view()->viewport()->mapToGlobal(position), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(view.view()->viewport(), &event);
    };

    Tests::SignalLog log(view);
    send(QEvent::MouseButtonPress, at(0.64, 0.33), Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseMove, at(0.63, 0.33), Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseMove, at(0.62, 0.335), Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, at(0.62, 0.335), Qt::LeftButton, Qt::NoButton);
    const QStringList entries = log.take();
    QVERIFY(!entries.filter(QStringLiteral("value ")).isEmpty());
    QCOMPARE(entries.filter(QStringLiteral("target ")).size(), 1);
    const TrianglePoint edited = Tests::sceneOf(view)->getLsColorTriangleObject().at(1).trianglePoint();
    QVERIFY(edited.redPos().x() < 0.635);
    QVERIFY(entries.filter(QStringLiteral("target ")).constFirst().contains(describe(edited)));
}

// It follows the scene over the type XyDiagram only, though any other than UvDiagram shows x, y.
// What a host's buttons for zoom and magnifier do, on a chart that is shown.
void LegacyCEIEGraphicsViewTest::functionKeys()
{
    CEIEGraphicsView view(nullptr, DrawCEIPicture::XyDiagram);
    resizeImage(view);
    const Model::ColorGamut published = Model::dciP3D65();
    view.setColorGamut(info(published.getTargets()), info(published.getTargets()));
    view.setDrawColorTPoint(false);
    auto *scene = qobject_cast<CEIEGraphicsScene *>(view.view()->scene());
    int placed = 0; // not a signal spy, which would register the type
    QObject::connect(&view, &CEIEGraphicsView::signal_colorGamutValueChanged, &view, [&placed] { ++placed; });
    const QImage plain = pictureOf(view);

    QPushButton zoomIn;
    QObject::connect(&zoomIn, &QPushButton::clicked, scene, [scene] {
        scene->setFunctionKeyMode(CEIEGraphicsScene::ZoomIn);
        scene->applyFunctionKey();
    });
    zoomIn.click();
    const QImage magnified = pictureOf(view);
    QVERIFY(magnified != plain);

    // While the magnifier is on a press repeats the step, which makes the handles larger, and edits nothing.
    view.show();
    QTest::mouseClick(view.view()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(80, 80));
    QCOMPARE(placed, 0);
    QVERIFY(pictureOf(view) != magnified);

    scene->setFunctionKeyMode(CEIEGraphicsScene::ZoomOut);
    scene->applyFunctionKey();
    scene->applyFunctionKey();
    scene->setFunctionKeyMode(CEIEGraphicsScene::NoFunction);
    scene->applyFunctionKey();
    QCOMPARE(reference::firstDifference(pictureOf(view), plain), QString());
    scene->setFunctionKeyMode(42);
    scene->applyFunctionKey();
    QCOMPARE(reference::firstDifference(pictureOf(view), plain), QString());
}

void LegacyCEIEGraphicsViewTest::cursorStaysOverOtherDiagrams()
{
    for (const int type : {1, 2, -1}) {
        const CEIEGraphicsView view(nullptr, static_cast<DrawCEIPicture::CEIEType>(type));
        Q_EMIT Tests::sceneOf(view)->signal_mouseCursorChange(QCursor(Qt::OpenHandCursor));
        QCoreApplication::sendPostedEvents();
        QVERIFY(!view.view()->testAttribute(Qt::WA_SetCursor));
        QCOMPARE(view.view()->cursor().shape(), Qt::ArrowCursor);
    }
}

void LegacyCEIEGraphicsViewTest::bothGenerationsTogether()
{
    QWidget window;
    CEIEGraphicsView legacy(true, &window);
    NewCEIE::CEIEGraphicsView current(true, &window);
    legacy.setColorGamut(info(distinctTargets(1)), info(distinctTargets(2)));
    current.setColorGamut(Model::rec709(), Model::rec2020(), {});
    QCOMPARE(legacy.lsColorTriangleObject().size(), 2);
    QCOMPARE(current.lsColorTriangleObject().size(), 2);
    QVERIFY(static_cast<QFrame *>(legacy.getLegend()) != static_cast<QFrame *>(current.getLegend()));
    QVERIFY(!qobject_cast<NewCEIE::CEIEGraphicsView *>(static_cast<QObject *>(&legacy)));
    QVERIFY(!qobject_cast<CEIEGraphicsView *>(static_cast<QObject *>(&current)));
}

QTEST_MAIN(LegacyCEIEGraphicsViewTest)
#include "legacyceiegraphicsviewtest.moc"
