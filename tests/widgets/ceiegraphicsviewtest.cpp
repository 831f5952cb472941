// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/ceiegraphicsscene.h>
#include <ceiechart/widgets/ceiegraphicsview.h>

#include "chartviewtests.h"
#include <reference/viewstate.h>

using Legend = NewCEIE::CEIELegend;
using Scene = NewCEIE::CEIEGraphicsScene;
using View = NewCEIE::CEIEGraphicsView;
using Tests = ChartViewTests<View, Scene, NewCEIE::NQCEIEGraphicsView, Legend>;

static const QWidget *resizedByTheBase = nullptr;

// In place of Qt's own, which does nothing: only so can it be seen to be called.
void QWidget::resizeEvent(QResizeEvent *)
{
    resizedByTheBase = this;
}

class CEIEGraphicsViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hugeChromaticitiesHaveNoCommonGamut();
    void hostMayDeleteTheScene();
    void metaObject()
    {
        Tests::metaObject("NewCEIE::CEIEGraphicsView", "NewCEIE::MouseCursorStyle",
            QStringList({"imageSize", "imageWidth", "imageHeight", "isDrawCoordinate", "isDrawBBRLine",
                "isDrawWaveLength", "isShowStandard", "isShowTarget", "isShowOriginal", "isShowActual", "isShowMeasure",
                "gamutsKept", "graphLineColor", "graphPictureColor", "backgroudColor", "lightPicture",
                "paletteFollowed", "devicePixelRatioFollowed", "threadCount", "legendAlignament", "drawColorTPoint",
                "colorTempertureChecked", "RGBPointEnable", "useMouseOpertator"}));
    }
    void constructors();
    void innerView();
    void chartsBackground();
    void defaults() { Tests::defaults(View(nullptr)); }
    void layout_data() { LegendTests<Legend>::layout_data(); }
    void layout() { Tests::layout(false); }
    void rearranging_data() { LegendTests<Legend>::layout_data(); }
    void rearranging() { Tests::rearranging(false); }
    void legendPlace() { Tests::legendPlace(); }
    void informationLabel();

    void imageSize() { Tests::imageSize(); }
    void impossibleImageSize() { Tests::impossibleImageSize(); }
    void layerSwitches() { Tests::layerSwitches(); }
    void editSwitches() { Tests::editSwitches(); }
    void gamutList() { Tests::gamutList(); }
    void clearing() { Tests::clearing(); }
    void clearingKeepsTheStandards();
    void changedGamutsRepaintTheChart() { Tests::changedGamutsRepaintTheChart(); }
    void gamutVisibility() { Tests::gamutVisibility(); }
    void gamutVisibilityOutsideTheList() { Tests::gamutVisibilityOutsideTheList(); }
    void points() { Tests::points(); }

    void gamutToTriangle();
    void fourGamuts();
    void threeGamuts();
    void targetWithoutAName();
    void standardsByName();
    void standardsInTheirOrder();
    void standardsSwitchedOff();
    void switchesLeaveGamutsOut_data();
    void switchesLeaveGamutsOut();
    void switchesWaitForTheNextGamuts();
    void gamutsReplaceTheOnesBefore();
    void gamutsAreRenderedAnew();
    void commonAreaWithAMeasuredGamut();
    void commonAreaWithoutAMeasuredGamut();
    void commonAreaSwitchedOff();
    void intersection();
    void degenerateGamuts();

    void stateIsPushed();
    void textOverTheChart();
    void textIsCentredOnTheImage();
    void resizeHidesTheText();
    void resizePushesTheGamuts();
    void resizeGoesToTheBaseToo();
    void graphColors();
    void backgroundColor();
    void cmyPoints();
    void actualPosition();

    void relays();
    void relaysKeepTheOrder() { Tests::relaysKeepTheOrder(); }
    void cursorChangesAfterTheEvent() { Tests::cursorChangesAfterTheEvent(); }
    void cursorChangeOfADestroyedChart() { Tests::cursorChangeOfADestroyedChart(); }
    void operationsServeAsSlots() { Tests::operationsServeAsSlots(); }
    void ownership() { Tests::ownership(); }
    void innerViewThatOutlivesItsChart() { Tests::innerViewThatOutlivesItsChart(); }
    void manyCharts() { Tests::manyCharts(); }
    void libraryRegistersNoMetaType() { Tests::libraryRegistersNoMetaType(); }
};

namespace {

Model::ColorGamut gamut(const char *name, double shift)
{
    return Model::ColorGamut(name, distinctTargets(shift));
}

Model::ColorGamut gamut(const char *name, const QPointF &red, const QPointF &green, const QPointF &blue)
{
    return Model::ColorGamut(name,
        {Model::Target::fromYxy(200, red.x(), red.y()), Model::Target::fromYxy(600, green.x(), green.y()),
            Model::Target::fromYxy(60, blue.x(), blue.y()), Model::Target::fromYxy(860, 0.3127, 0.3290)});
}

// The original and the measured gamut do not overlap the target in the same area.
const Model::ColorGamut target = gamut("target", QPointF(0.64, 0.33), QPointF(0.30, 0.60), QPointF(0.15, 0.06));
const Model::ColorGamut original = gamut("original", QPointF(0.68, 0.31), QPointF(0.21, 0.71), QPointF(0.18, 0.12));
const Model::ColorGamut measured = gamut("measured", QPointF(0.60, 0.35), QPointF(0.25, 0.65), QPointF(0.14, 0.05));

const QColor green(13, 189, 73, 255);
const QColor orange(255, 163, 56, 255);

ColorTriangleObject listed(const Model::ColorGamut &gamut, const QColor &color, int type, bool shown = true)
{
    ColorTriangleObject object = gamutObject(gamut.getTargets(), color, 2);
    object.setType(type);
    object.setShow(shown);
    return object;
}

ColorTriangleObject standard(const Model::ColorGamut &gamut, int alpha, double opacity)
{
    ColorTriangleObject object = listed(gamut, QColor(255, 255, 255, alpha), 0);
    object.setOpacity(opacity);
    return object;
}

QImage pictureOf(const View &view)
{
    return paintedScene(*view.view()->scene());
}

/*! A scene, in a view as big as the chart's, that is told by hand what the chart should tell its own. */
class ExpectedScene {
public:
    explicit ExpectedScene(const View &chart)
    {
        scene.setImageWidth(chart.imageWidth());
        scene.setImageHeight(chart.imageHeight());
        m_view.setScene(&scene);
        m_view.resize(chart.view()->size());
    }

    QImage rendered(const QList<ColorTriangleObject> &gamuts, const QList<ColorTriangleObject> &standards,
        const TrianglePoint &first, const TrianglePoint &other, const QString &text = QString())
    {
        scene.setLsColorTriangleObject(gamuts, standards, first, other, true, text);
        return paintedScene(scene);
    }

    Scene scene{QList<ColorTriangleObject>()};

private:
    QGraphicsView m_view;
};

void resizeImage(View &view, int size = 200)
{
    view.setImageWidth(size);
    view.setImageHeight(size);
}

QLabel *labelOf(const View &view)
{
    return view.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

void CEIEGraphicsViewTest::constructors()
{
    QWidget parent;
    const View plain(&parent);
    QCOMPARE(plain.parentWidget(), &parent);
    QCOMPARE(legendLabels(*plain.getLegend()).size(), 3);
    Tests::verifyLayout(plain, false, false);
    // The flag is not consulted.
    for (const bool flag : {false, true}) {
        const View below(flag, &parent);
        QCOMPARE(below.parentWidget(), &parent);
        QCOMPARE(legendLabels(*below.getLegend()).size(), 6);
        Tests::verifyLayout(below, false, false);
        const View beside(flag, Qt::AlignRight, &parent);
        QCOMPARE(beside.parentWidget(), &parent);
        QCOMPARE(legendLabels(*beside.getLegend()).size(), 6);
        Tests::verifyLayout(beside, true, false);
    }
}

void CEIEGraphicsViewTest::innerView()
{
    View view(nullptr);
    Tests::innerView(view);
}

void CEIEGraphicsViewTest::chartsBackground()
{
    const View view(nullptr);
    QCOMPARE(view.view()->styleSheet(), QString());
}

void CEIEGraphicsViewTest::informationLabel()
{
    View view(nullptr);
    QCOMPARE(view.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
    const QLabel *label = labelOf(view);
    QCOMPARE(label->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QCOMPARE(label->minimumSize(), QSize(200, 400));
    QCOMPARE(label->maximumSize(), QSize(200, 400));
    QVERIFY(label->wordWrap());
    QVERIFY(label->isHidden());
    view.resize(800, 800);
    view.show();
    QVERIFY(label->isHidden());
    // Over the chart.
    QVERIFY(view.children().indexOf(view.view()) < view.children().indexOf(labelOf(view)));
}

void CEIEGraphicsViewTest::clearingKeepsTheStandards()
{
    View view(nullptr);
    resizeImage(view);
    view.setColorGamut(target, original, measured, {Model::rec709()});
    view.clear();
    QVERIFY(view.lsColorTriangleObject().isEmpty());
    view.updateLanGamut(true, QString());
    ExpectedScene expected(view);
    const QImage kept = expected.rendered(
        {}, {standard(Model::rec709(), 17, 0.07)}, triangleOf(target.getTargets()), triangleOf(original.getTargets()));
    COMPARE_PICTURES(pictureOf(view), kept);
}

void CEIEGraphicsViewTest::gamutToTriangle()
{
    View view(nullptr);
    TrianglePoint triangle;
    view.colorGamutToTriangle(gamut("any", 3), triangle);
    QCOMPARE(describe(triangle), describe(triangleOf(distinctTargets(3))));
    view.colorGamutToTriangle(Model::ColorGamut(), triangle);
    QCOMPARE(describe(triangle), describe(TrianglePoint()));
}

void CEIEGraphicsViewTest::fourGamuts()
{
    View view(nullptr);
    view.setColorGamut(gamut("a", 1), gamut("b", 2), gamut("c", 3), {});
    const QList<ColorTriangleObject> expected = {listed(gamut("b", 2), green, 2),
        listed(gamut("c", 3), QColor(27, 241, 255, 255), 3), listed(gamut("a", 1), orange, 1)};
    QCOMPARE(describe(view.lsColorTriangleObject()), describe(expected));
    QCOMPARE(describe(Tests::sceneOf(view)->getLsColorTriangleObject()), describe(expected));
    QVERIFY(reference::standardTriangles(view).isEmpty());
}

void CEIEGraphicsViewTest::threeGamuts()
{
    View view(nullptr);
    view.setColorGamut(gamut("a", 1), gamut("b", 2), {Model::rec709()});
    const QList<ColorTriangleObject> expected
        = {listed(gamut("b", 2), QColor(22, 241, 255, 255), 2), listed(gamut("a", 1), orange, 1)};
    QCOMPARE(describe(view.lsColorTriangleObject()), describe(expected));
    QCOMPARE(describe(Tests::sceneOf(view)->getLsColorTriangleObject()), describe(expected));
    QCOMPARE(describe(reference::standardTriangles(view)),
        describe(QList<ColorTriangleObject>({standard(Model::rec709(), 17, 0.07)})));
}

void CEIEGraphicsViewTest::targetWithoutAName()
{
    View view(nullptr);
    view.setColorGamut(gamut("", 1), gamut("", 2), gamut("", 3), {});
    QCOMPARE(describe(view.lsColorTriangleObject().at(2)), describe(listed(gamut("", 1), orange, 1, false)));
    QVERIFY(view.lsColorTriangleObject().at(0).isShow());
    QVERIFY(view.lsColorTriangleObject().at(1).isShow());
    view.setColorGamut(gamut("", 1), gamut("", 2), {});
    QCOMPARE(describe(view.lsColorTriangleObject().at(1)), describe(listed(gamut("", 1), orange, 1, false)));
}

void CEIEGraphicsViewTest::standardsByName()
{
    View view(nullptr);
    const QList<Model::ColorGamut> standards
        = {gamut("Rec.709", 1), gamut("Rec.2020", 2), gamut("DCI-P3(D65)", 3), gamut("NTSC", 4), gamut("rec.709", 5),
            gamut("Rec.709 ", 6), gamut("Rec.70", 7), gamut("DCI-P3", 8), gamut("", 9)};
    const QString expected = describe(QList<ColorTriangleObject>{
        standard(gamut("", 1), 17, 0.07), standard(gamut("", 2), 51, 0.1), standard(gamut("", 3), 25, 0.05)});
    view.setColorGamut(target, original, measured, standards);
    QCOMPARE(describe(reference::standardTriangles(view)), expected);
    view.setColorGamut(target, original, standards);
    QCOMPARE(describe(reference::standardTriangles(view)), expected);
}

void CEIEGraphicsViewTest::standardsInTheirOrder()
{
    View view(nullptr);
    view.setColorGamut(target, original, {gamut("DCI-P3(D65)", 3), gamut("Rec.709", 1), gamut("Rec.709", 2)});
    QCOMPARE(describe(reference::standardTriangles(view)),
        describe(QList<ColorTriangleObject>{
            standard(gamut("", 3), 25, 0.05), standard(gamut("", 1), 17, 0.07), standard(gamut("", 2), 17, 0.07)}));
}

void CEIEGraphicsViewTest::standardsSwitchedOff()
{
    View view(nullptr);
    view.setColorGamut(target, original, {Model::rec709()});
    view.setIsShowStandard(false);
    QCOMPARE(reference::standardTriangles(view).size(), 1);
    view.setColorGamut(target, original, {Model::rec709()});
    QVERIFY(reference::standardTriangles(view).isEmpty());
    view.setColorGamut(target, original, measured, {Model::rec709()});
    QVERIFY(reference::standardTriangles(view).isEmpty());
    QCOMPARE(view.lsColorTriangleObject().size(), 3);
}

void CEIEGraphicsViewTest::switchesLeaveGamutsOut_data()
{
    QTest::addColumn<bool>("showOriginal");
    QTest::addColumn<bool>("showMeasure");
    QTest::addColumn<bool>("showTarget");
    for (int i = 0; i < 8; ++i) {
        QTest::addRow("original %d, measured %d, target %d", i & 1, i >> 1 & 1, i >> 2 & 1)
            << bool(i & 1) << bool(i & 2) << bool(i & 4);
    }
}

void CEIEGraphicsViewTest::switchesLeaveGamutsOut()
{
    QFETCH(bool, showOriginal);
    QFETCH(bool, showMeasure);
    QFETCH(bool, showTarget);
    View view(nullptr);
    view.setIsShowOriginal(showOriginal);
    view.setIsShowMeasure(showMeasure);
    view.setIsShowTarget(showTarget);
    const auto types = [&view] {
        QList<int> result;
        for (const ColorTriangleObject &object : view.lsColorTriangleObject()) {
            result.append(object.type());
        }
        return result;
    };
    QList<int> four;
    QList<int> three;
    if (showOriginal) {
        four.append(2);
        three.append(2);
    }
    if (showMeasure) {
        four.append(3);
    }
    if (showTarget) {
        four.append(1);
        three.append(1);
    }
    view.setColorGamut(target, original, measured, {});
    QCOMPARE(types(), four);
    view.setColorGamut(target, original, {});
    QCOMPARE(types(), three);
    // The common area does not depend on what is listed.
    QCOMPARE(describe(reference::targetTriangle(view)), describe(triangleOf(target.getTargets())));
    QCOMPARE(describe(reference::originalTriangle(view)), describe(triangleOf(original.getTargets())));
}

void CEIEGraphicsViewTest::switchesWaitForTheNextGamuts()
{
    View view(nullptr);
    resizeImage(view);
    view.setColorGamut(target, original, measured, {Model::rec709()});
    const QString words = describe(view.lsColorTriangleObject());
    const QImage before = pictureOf(view);
    view.setIsShowStandard(false);
    view.setIsShowTarget(false);
    view.setIsShowOriginal(false);
    view.setIsShowActual(false);
    view.setIsShowMeasure(false);
    QCOMPARE(describe(view.lsColorTriangleObject()), words);
    COMPARE_PICTURES(pictureOf(view), before);
    view.updateLanGamut(true, QString());
    COMPARE_PICTURES(pictureOf(view), before);
    view.setColorGamut(target, original, measured, {Model::rec709()});
    QVERIFY(view.lsColorTriangleObject().isEmpty());
    QVERIFY(!reference::firstDifference(pictureOf(view), before).isEmpty());
}

void CEIEGraphicsViewTest::gamutsReplaceTheOnesBefore()
{
    View view(nullptr);
    view.setColorGamut(target, original, measured, {Model::rec709(), Model::rec2020()});
    view.setColorGamut(gamut("a", 1), gamut("b", 2), {Model::rec2020()});
    QCOMPARE(view.lsColorTriangleObject().size(), 2);
    QCOMPARE(reference::standardTriangles(view).size(), 1);
    view.setIsShowActual(false);
    view.setColorGamut(target, original, {});
    QVERIFY(reference::targetTriangle(view).isEmpty());
    QVERIFY(reference::originalTriangle(view).isEmpty());
}

// Rendering the background gives the scene its rectangle; drawing the gamuts over it does not.
void CEIEGraphicsViewTest::gamutsAreRenderedAnew()
{
    View view(nullptr);
    resizeImage(view, 100);
    QGraphicsScene *scene = view.view()->scene();
    const QRectF rectangle = scene->sceneRect();
    const QRectF other(0, 0, 1, 1);
    scene->setSceneRect(other);
    view.updateLanGamut(true, QString());
    view.setLsColorTriangleObject({});
    view.setColorGamutVisible(0, false);
    QCOMPARE(scene->sceneRect(), other);
    view.setColorGamut(target, original, measured, {});
    QCOMPARE(scene->sceneRect(), rectangle);
    scene->setSceneRect(other);
    view.setColorGamut(target, original, {});
    QCOMPARE(scene->sceneRect(), rectangle);
}

void CEIEGraphicsViewTest::commonAreaWithAMeasuredGamut()
{
    View view(nullptr);
    resizeImage(view);
    view.setColorGamut(target, original, measured, {});
    // The scene is given the original, not the measured gamut.
    QCOMPARE(describe(reference::targetTriangle(view)), describe(triangleOf(target.getTargets())));
    QCOMPARE(describe(reference::originalTriangle(view)), describe(triangleOf(original.getTargets())));

    ExpectedScene expected(view);
    const QImage withOriginal = expected.rendered(
        view.lsColorTriangleObject(), {}, triangleOf(target.getTargets()), triangleOf(original.getTargets()));
    const QImage withMeasured = expected.rendered(
        view.lsColorTriangleObject(), {}, triangleOf(target.getTargets()), triangleOf(measured.getTargets()));
    QVERIFY(!reference::firstDifference(withOriginal, withMeasured).isEmpty());
    COMPARE_PICTURES(pictureOf(view), withOriginal);
}

void CEIEGraphicsViewTest::commonAreaWithoutAMeasuredGamut()
{
    View view(nullptr);
    resizeImage(view);
    view.setColorGamut(target, original, {Model::rec709(), Model::rec2020()});
    ExpectedScene expected(view);
    const QImage picture = expected.rendered(view.lsColorTriangleObject(),
        {standard(Model::rec709(), 17, 0.07), standard(Model::rec2020(), 51, 0.1)}, triangleOf(target.getTargets()),
        triangleOf(original.getTargets()));
    COMPARE_PICTURES(pictureOf(view), picture);
}

void CEIEGraphicsViewTest::commonAreaSwitchedOff()
{
    View view(nullptr);
    resizeImage(view);
    view.setIsShowActual(false);
    for (const bool four : {false, true}) {
        if (four) {
            view.setColorGamut(target, original, measured, {});
        } else {
            view.setColorGamut(target, original, {});
        }
        ExpectedScene expected(view);
        const QImage without = expected.rendered(view.lsColorTriangleObject(), {}, TrianglePoint(), TrianglePoint());
        const QImage with = expected.rendered(
            view.lsColorTriangleObject(), {}, triangleOf(target.getTargets()), triangleOf(original.getTargets()));
        QVERIFY(!reference::firstDifference(with, without).isEmpty());
        COMPARE_PICTURES(pictureOf(view), without);
    }
}

void CEIEGraphicsViewTest::intersection()
{
    View view(nullptr);
    TrianglePoint a;
    a.setRedPos(QPointF(0, 0));
    a.setGreenPos(QPointF(2, 0));
    a.setBluePos(QPointF(0, 2));
    TrianglePoint b;
    b.setRedPos(QPointF(0, 0));
    b.setGreenPos(QPointF(1, 0));
    b.setBluePos(QPointF(0, 1));
    // Far away from everything: only red, green and blue count.
    b.setWhitePos(QPointF(50, 50));
    const QPolygonF common = view.getTargetOrgIntersected(a, b);
    QCOMPARE(common,
        QPolygonF({QPointF(0, 0), QPointF(2, 0), QPointF(0, 2)})
            .intersected(QPolygonF({QPointF(0, 0), QPointF(1, 0), QPointF(0, 1)})));
    QCOMPARE(common.boundingRect(), QRectF(0, 0, 1, 1));

    b.setRedPos(QPointF(5, 5));
    b.setGreenPos(QPointF(6, 5));
    b.setBluePos(QPointF(5, 6));
    QVERIFY(view.getTargetOrgIntersected(a, b).isEmpty());
}

void CEIEGraphicsViewTest::degenerateGamuts()
{
    const reference::QuietMessages quiet;
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    View view(nullptr);
    resizeImage(view, 100);
    view.resize(120, 160);
    view.show();
    const QList<Model::ColorGamut> odd
        = {Model::ColorGamut(), gamut("flat", QPointF(0.1, 0.1), QPointF(0.2, 0.2), QPointF(0.3, 0.3)),
            gamut("inverted", QPointF(0.15, 0.06), QPointF(0.3, 0.6), QPointF(0.64, 0.33)),
            gamut("not a number", QPointF(nan, nan), QPointF(0.3, nan), QPointF(nan, 0.06)),
            gamut("infinite", QPointF(infinity, 0.3), QPointF(-infinity, infinity), QPointF(0.15, 0.06)),
            gamut("Rec.709", QPointF(1e300, 1e300), QPointF(-1e300, 0), QPointF(0, 0))};
    for (const Model::ColorGamut &first : odd) {
        for (const Model::ColorGamut &second : odd) {
            view.setColorGamut(first, second, target, odd);
            view.setColorGamut(first, second, odd);
            QCOMPARE(view.lsColorTriangleObject().size(), 2);
        }
    }
}

void CEIEGraphicsViewTest::stateIsPushed()
{
    View view(nullptr);
    resizeImage(view);
    const QList<ColorTriangleObject> gamuts = {listed(target, Qt::red, 3)};
    view.setLsColorTriangleObject(gamuts);
    ExpectedScene expected(view);
    const QImage picture = expected.rendered(gamuts, {}, TrianglePoint(), TrianglePoint());
    QVERIFY(!reference::firstDifference(pictureOf(view), picture).isEmpty());
    for (const bool flag : {false, true}) {
        view.updateLanGamut(flag, QString());
        COMPARE_PICTURES(pictureOf(view), picture);
    }
    const QImage skipped = expected.rendered(gamuts, {}, TrianglePoint(), TrianglePoint(), QStringLiteral("text"));
    QVERIFY(!reference::firstDifference(picture, skipped).isEmpty());
    view.updateLanGamut(true, QStringLiteral("text"));
    COMPARE_PICTURES(pictureOf(view), skipped);
}

void CEIEGraphicsViewTest::textOverTheChart()
{
    View view(nullptr);
    view.resize(800, 800);
    view.show();
    QLabel *label = labelOf(view);
    view.updateLanGamut(true, QStringLiteral("no data"));
    QVERIFY(label->isVisible());
    QCOMPARE(label->text(), QStringLiteral("no data"));
    view.updateLanGamut(false, QString());
    QVERIFY(label->isHidden());
    QCOMPARE(label->text(), QString());
    view.updateMixInfo(QStringLiteral("again"));
    QVERIFY(label->isVisible());
    view.setColorGamut(target, original, {});
    QVERIFY(label->isHidden());
}

void CEIEGraphicsViewTest::textIsCentredOnTheImage()
{
    View view(nullptr);
    const QLabel *label = labelOf(view);
    view.updateMixInfo(QStringLiteral("text"));
    QCOMPARE(label->pos(), QPoint((512 - 200) / 2, (512 - 400) / 2));
    // Halves are cut off towards zero.
    view.setImageWidth(501);
    view.setImageHeight(301);
    view.updateMixInfo(QStringLiteral("text"));
    QCOMPARE(label->pos(), QPoint(150, -49));
    view.setImageWidth(-1);
    view.updateMixInfo(QString());
    QCOMPARE(label->pos(), QPoint(-100, -49));
}

void CEIEGraphicsViewTest::resizeHidesTheText()
{
    View view(nullptr);
    view.resize(700, 700);
    view.show();
    view.updateLanGamut(true, QStringLiteral("text"));
    QVERIFY(labelOf(view)->isVisible());
    view.resize(701, 700);
    QVERIFY(labelOf(view)->isHidden());
    QCOMPARE(labelOf(view)->text(), QString());
}

void CEIEGraphicsViewTest::resizeGoesToTheBaseToo()
{
    View view(nullptr);
    resizedByTheBase = nullptr;
    QResizeEvent event(QSize(5, 5), QSize(6, 6));
    QCoreApplication::sendEvent(&view, &event);
    QCOMPARE(resizedByTheBase, &view);
}

void CEIEGraphicsViewTest::resizePushesTheGamuts()
{
    View view(nullptr);
    resizeImage(view);
    view.resize(400, 400);
    view.show();
    view.setColorGamut(target, original, measured, {Model::rec709()});
    const QImage picture = pictureOf(view);
    // A layer switch renders the diagram without gamuts; the next resize brings them back.
    view.setIsDrawWaveLength(true);
    QVERIFY(!reference::firstDifference(pictureOf(view), picture).isEmpty());
    view.resize(401, 400);
    COMPARE_PICTURES(pictureOf(view), picture);
}

void CEIEGraphicsViewTest::graphColors()
{
    View view(nullptr);
    resizeImage(view);
    view.setGraphColor(QColor(10, 20, 30), QColor(200, 210, 220));
    QCOMPARE(view.view()->styleSheet(), QStringLiteral("background-color: white;"));
    view.setColorGamut(target, original, {});
    ExpectedScene expected(view);
    expected.scene.setGraphColor(QColor(10, 20, 30), QColor(200, 210, 220));
    COMPARE_PICTURES(pictureOf(view),
        expected.rendered(
            view.lsColorTriangleObject(), {}, triangleOf(target.getTargets()), triangleOf(original.getTargets())));
}

void CEIEGraphicsViewTest::backgroundColor()
{
    View view(nullptr);
    resizeImage(view);
    view.setColorGamut(target, original, {});
    const QImage before = pictureOf(view);
    // Without red behind them the horseshoe's pixels are not found, and stay.
    view.setBackgroudColor(QColor(0, 10, 90));
    COMPARE_PICTURES(pictureOf(view), before);
    view.setColorGamut(target, original, {});
    QVERIFY(!reference::firstDifference(pictureOf(view), before).isEmpty());
    ExpectedScene expected(view);
    expected.scene.setBackgroudColor(QColor(0, 10, 90));
    COMPARE_PICTURES(pictureOf(view),
        expected.rendered(
            view.lsColorTriangleObject(), {}, triangleOf(target.getTargets()), triangleOf(original.getTargets())));
}

void CEIEGraphicsViewTest::cmyPoints()
{
    View view(nullptr);
    resizeImage(view);
    view.setColorGamut(target, original, {});
    const QImage before = pictureOf(view);
    const QList<QPointF> points = {QPointF(0.2, 0.3), QPointF(0.35, 0.2), QPointF(0.4, 0.5), QPointF(0.3, 0.3)};
    view.setCMYPointData(points);
    COMPARE_PICTURES(pictureOf(view), before);
    view.updateLanGamut(true, QString());
    QVERIFY(!reference::firstDifference(pictureOf(view), before).isEmpty());
    ExpectedScene expected(view);
    expected.scene.setCMYPointData(points);
    COMPARE_PICTURES(pictureOf(view),
        expected.rendered(
            view.lsColorTriangleObject(), {}, triangleOf(target.getTargets()), triangleOf(original.getTargets())));
}

void CEIEGraphicsViewTest::actualPosition()
{
    View view(nullptr);
    resizeImage(view, 512);
    TrianglePoint triangle = triangleOf(distinctTargets());
    view.calcActualPos(triangle);
    // 512 pixels: the origin lies at (27, 483), and 540 pixels are one unit.
    const TrianglePoint chroma = triangleOf(distinctTargets());
    TrianglePoint expected = chroma;
    expected.setRedPos(QPointF(27 + 540 * chroma.redPos().x(), 483 - 540 * chroma.redPos().y()));
    expected.setGreenPos(QPointF(27 + 540 * chroma.greenPos().x(), 483 - 540 * chroma.greenPos().y()));
    expected.setBluePos(QPointF(27 + 540 * chroma.bluePos().x(), 483 - 540 * chroma.bluePos().y()));
    expected.setWhitePos(QPointF(27 + 540 * chroma.whitePos().x(), 483 - 540 * chroma.whitePos().y()));
    QCOMPARE(describe(triangle), describe(expected));
    view.initData();
    QVERIFY(view.lsColorTriangleObject().isEmpty());
}

void CEIEGraphicsViewTest::relays()
{
    View view(nullptr);
    Tests::relays(view);
    View beside(true, Qt::AlignLeft, nullptr);
    Tests::relays(beside);
}

void CEIEGraphicsViewTest::hugeChromaticitiesHaveNoCommonGamut()
{
    const auto at = [](double x, double y) {
        Model::Target target;
        target.x = x;
        target.y = y;
        return target;
    };
    NewCEIE::CEIEGraphicsView view(nullptr);
    const Model::ColorGamut target("far", {at(0.15, 0.1), at(0.15, 0.6), at(0, 1e155), at(0.3, 0.3)});
    const Model::ColorGamut original("farther", {at(0.1, -1e155), at(3.3e154, 3.3e154), at(0, 0), at(0.3, 0.3)});
    view.setColorGamut(target, original, {});
    QCOMPARE(view.lsColorTriangleObject().size(), 2);
}

void CEIEGraphicsViewTest::hostMayDeleteTheScene()
{
    auto view = std::make_unique<NewCEIE::CEIEGraphicsView>(nullptr);
    delete view->view()->scene();
    QVERIFY(!view->view()->scene());
    view.reset(); // does not delete it again
}

QTEST_MAIN(CEIEGraphicsViewTest)
#include "ceiegraphicsviewtest.moc"
