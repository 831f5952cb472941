// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/chromasets.h>
#include <ceiechart/legacy/ceiegraphicsscene.h>

#include <reference/canvas.h>
#include <reference/picturedifference.h>
#include <reference/samplegamuts.h>
#include <reference/sceneevents.h>
#include <reference/scenestate.h>

#include <QHash>
#include <QPainter>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <functional>

using Scene = CEIEGraphicsScene;

namespace {

constexpr auto xyDiagram = static_cast<DrawCEIPicture::CEIEType>(0);
constexpr auto uvDiagram = static_cast<DrawCEIPicture::CEIEType>(1);
constexpr int side = 800;

QList<ColorTriangleObject> withRed(const QPointF &red)
{
    QList<ColorTriangleObject> gamuts = reference::gamutPair();
    gamuts[1].trianglePoint().setRedPos(red);
    return gamuts;
}

struct Bench {
    Scene scene;

    explicit Bench(
        const QList<ColorTriangleObject> &gamuts = reference::gamutPair(), DrawCEIPicture::CEIEType type = xyDiagram)
        : scene(type, gamuts)
    {
        scene.setImageWidth(side);
        scene.setImageHeight(side);
        scene.setDrawColorTPoint(false);
    }

    QPointF handle(const QPointF &chroma) { return scene.GetEllipsePoint(chroma); }
    TrianglePoint target() { return scene.getLsColorTriangleObject().at(1).trianglePoint(); }

    void click(const QPointF &position)
    {
        for (const auto type : {QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseRelease}) {
            reference::sendMouse(scene, type, position, Qt::LeftButton);
        }
    }
};

QImage painted(const QColor &background, const std::function<void(QPainter *)> &paint, int width = side)
{
    return reference::canvas(
        QSize(width, side), [&paint](QPainter &painter) { paint(&painter); }, background);
}

QImage label(Scene &scene, const QColor &background = Qt::magenta, int width = side)
{
    return painted(
        background, [&scene](QPainter *painter) { scene.DrawEllipseSignPosition(painter); }, width);
}

QRect paintedPart(const QImage &image, const QColor &background = Qt::magenta)
{
    QImage blank(image.size(), image.format());
    blank.fill(background);
    return reference::changedPixels(image, blank);
}

// WCAG 2.1, relative luminance and contrast ratio
double luminance(QRgb pixel)
{
    const auto linear = [](int value) {
        const double v = value / 255.0;
        return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(pixel)) + 0.7152 * linear(qGreen(pixel)) + 0.0722 * linear(qBlue(pixel));
}

double contrast(QRgb one, QRgb other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QRgb commonest(const QImage &image)
{
    QHash<QRgb, int> counts;
    QRgb found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (++counts[image.pixel(x, y)] > counts.value(found)) {
                found = image.pixel(x, y);
            }
        }
    }
    return found;
}

} // namespace

class MarksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void labelOnlyForASelectedVertex();
    void labelStandsAtTheSelectedVertex();
    void backgroundShowsTheLabel();
    void labelIsRoundedToThreeDecimals();
    void labelNumbersAreThoseOfTheDiagram();
    void labelLeavesTheHandleFree_data();
    void labelLeavesTheHandleFree();
    void labelTurnsLeftWhereThePictureEnds();
    void labelIsLegible_data();
    void labelIsLegible();
    void magnifierOnlyWhenAsked();
    void magnifierShowsWhatIsUnderTheWhite();
    void otherPointsInTheirColors();
    void pointsWithoutColorAreWhite();
    void furtherColorsAreLeftOver();
    void whiteHandleReportsAndStandsAtTheWhite();
    void whiteHandleFollowsTheWhite();
    void noTargetNoMarks();
};

void MarksTest::labelOnlyForASelectedVertex()
{
    Bench bench;
    QVERIFY(paintedPart(label(bench.scene)).isEmpty());
    bench.click(bench.handle(bench.target().redPos()));
    QVERIFY(!paintedPart(label(bench.scene)).isEmpty());
}

void MarksTest::labelStandsAtTheSelectedVertex()
{
    for (const int area : {LegacyColorAreaRed, LegacyColorAreaGreen, LegacyColorAreaBlue}) {
        Bench bench;
        reference::selectVertex(bench.scene, area);
        const TrianglePoint points = bench.target();
        const QPointF handle = bench.handle(area == LegacyColorAreaRed ? points.redPos()
                : area == LegacyColorAreaGreen                         ? points.greenPos()
                                                                       : points.bluePos());
        const QRect place = paintedPart(label(bench.scene));
        QVERIFY(!place.isEmpty());
        QVERIFY(place.top() < handle.y() && place.bottom() > handle.y());
        QVERIFY(place.left() > handle.x() && place.left() < handle.x() + 30);
    }
}

void MarksTest::backgroundShowsTheLabel()
{
    Bench bench(withRed(QPointF(0.4, 0.33))); // with the label on the horseshoe
    reference::selectVertex(bench.scene, LegacyColorAreaRed);
    const QRect place = paintedPart(label(bench.scene));
    const QImage with = reference::backgroundOf(bench.scene);
    reference::selectVertex(bench.scene, LegacyColorAreaNone);
    const QRect difference = reference::changedPixels(with, reference::backgroundOf(bench.scene));
    // Nearly: the box is the colour of the picture where its rim is faint.
    QVERIFY(difference.contains(place.adjusted(2, 2, -2, -2)));
}

void MarksTest::labelIsRoundedToThreeDecimals()
{
    const auto labelOf = [](const QPointF &red) {
        Bench bench(withRed(red));
        reference::selectVertex(bench.scene, LegacyColorAreaRed);
        return qMakePair(bench.handle(red), label(bench.scene));
    };
    const auto [place, shown] = labelOf(QPointF(0.64040, 0.33040));
    const auto expectSame = [place = place, shown = shown, &labelOf](const QPointF &red, bool same) {
        const auto [otherPlace, otherShown] = labelOf(red);
        // Whatever differs is the text's.
        QVERIFY(place.x() == otherPlace.x() && place.y() == otherPlace.y());
        QCOMPARE(shown == otherShown, same);
    };
    expectSame(QPointF(0.64042, 0.33038), true);
    expectSame(QPointF(0.64049, 0.33049), true);
    expectSame(QPointF(0.64051, 0.33040), false);
    expectSame(QPointF(0.64040, 0.33051), false);
}

void MarksTest::labelNumbersAreThoseOfTheDiagram()
{
    // 0.64, 0.33 in u', v' is 0.45070…, 0.52289…: the text is that of a label that says so.
    const auto textOf = [](const QList<ColorTriangleObject> &gamuts, DrawCEIPicture::CEIEType type) {
        Bench bench(gamuts, type);
        reference::selectVertex(bench.scene, LegacyColorAreaRed);
        const QImage image = label(bench.scene);
        return image.copy(paintedPart(image));
    };
    const QImage uniform = textOf(withRed(QPointF(0.64, 0.33)), uvDiagram);
    QVERIFY(!uniform.isNull());
    QCOMPARE(uniform, textOf(withRed(QPointF(0.451, 0.523)), xyDiagram));
    QVERIFY(uniform != textOf(withRed(QPointF(0.64, 0.33)), xyDiagram));
}

void MarksTest::labelLeavesTheHandleFree_data()
{
    QTest::addColumn<float>("zoom");
    for (const float zoom : {1.0F, 1.1F, 1.2F, 1.3F, 1.4F, 1.5F}) {
        QTest::addRow("zoom %.1f", double(zoom)) << zoom;
    }
}

// The handle is as wide as it is hit, int(12 × zoom).
void MarksTest::labelLeavesTheHandleFree()
{
    QFETCH(float, zoom);
    for (const QPointF &red : {QPointF(0.4, 0.33), QPointF(0.64, 0.33), QPointF(0.83, 0.2), QPointF(0.8399, 0.2)}) {
        Bench bench(withRed(red));
        reference::setZoom(bench.scene, zoom);
        reference::selectVertex(bench.scene, LegacyColorAreaRed);
        reference::selectTab(bench.scene, LegacyTabSelectedRed);
        const QRect place = paintedPart(label(bench.scene));
        const QImage handle
            = painted(Qt::magenta, [&bench](QPainter *painter) { bench.scene.DrawVertexSign(painter); });
        const QPointF centre = bench.handle(red);
        const int reach = 20;
        const QRect around(centre.toPoint() - QPoint(reach, reach), QSize(2 * reach + 1, 2 * reach + 1));
        QImage blank = handle.copy(around);
        blank.fill(Qt::magenta);
        const QRect drawn = reference::changedPixels(handle.copy(around), blank).translated(around.topLeft());
        QVERIFY(!place.isEmpty());
        QVERIFY(drawn.width() >= static_cast<int>(12.0F * zoom));
        QVERIFY(!place.intersects(drawn));
    }
}

void MarksTest::labelTurnsLeftWhereThePictureEnds()
{
    int right = 0;
    int left = 0;
    for (double x = 0.6; x < 0.84; x += 0.01) {
        const QPointF red(x, 0.2);
        Bench bench(withRed(red));
        reference::selectVertex(bench.scene, LegacyColorAreaRed);
        const QRect place = paintedPart(label(bench.scene, Qt::magenta, side + 200));
        QVERIFY(place.right() < side);
        const bool onTheRight = place.left() > bench.handle(red).x();
        QVERIFY(onTheRight || place.right() < bench.handle(red).x());
        // Once it has turned it stays there.
        QVERIFY(!onTheRight || left == 0);
        ++(onTheRight ? right : left);
    }
    QVERIFY(right > 0 && left > 0);
}

void MarksTest::labelIsLegible_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("on white") << QColor(Qt::white);
    QTest::newRow("on black") << QColor(Qt::black);
    QTest::newRow("on grey") << QColor(128, 128, 128);
    QTest::newRow("on red") << QColor(Qt::red);
}

void MarksTest::labelIsLegible()
{
    QFETCH(QColor, color);
    Bench bench;
    reference::selectVertex(bench.scene, LegacyColorAreaRed);
    const QRect place = paintedPart(label(bench.scene));
    const QImage text = label(bench.scene, color).copy(place.adjusted(3, 3, -3, -3));
    const QRgb paper = commonest(text);
    double best = 0.0;
    for (int y = 0; y < text.height(); ++y) {
        for (int x = 0; x < text.width(); ++x) {
            best = std::max(best, contrast(text.pixel(x, y), paper));
        }
    }
    QVERIFY2(best >= 4.5, qPrintable(QString::number(best)));
}

void MarksTest::magnifierOnlyWhenAsked()
{
    Bench bench;
    const QImage without = reference::backgroundOf(bench.scene);
    bool drawn = true;
    const QImage untouched
        = painted(Qt::magenta, [&](QPainter *painter) { drawn = bench.scene.IsMagnifyEllispse(painter); });
    QVERIFY(!drawn);
    QVERIFY(paintedPart(untouched).isEmpty());

    reference::setMagnifier(bench.scene, true);
    const QRect lens = reference::changedPixels(reference::backgroundOf(bench.scene), without);
    QVERIFY(lens.width() > 60 && lens.height() > 60);
    QVERIFY(QRect(0, 0, side, side).contains(lens));
    // It covers neither the handle nor what is around it.
    const QPoint handle = bench.handle(bench.target().whitePos()).toPoint();
    QVERIFY(std::hypot(lens.center().x() - handle.x(), lens.center().y() - handle.y()) > lens.width() / 2.0 + 6);

    reference::setMagnifier(bench.scene, false);
    QVERIFY(reference::changedPixels(reference::backgroundOf(bench.scene), without).isEmpty());
}

void MarksTest::magnifierShowsWhatIsUnderTheWhite()
{
    Bench bench;
    const QImage picture = [] {
        Bench empty(QList<ColorTriangleObject>{});
        return reference::backgroundOf(empty.scene);
    }();
    reference::backgroundOf(bench.scene);
    reference::setMagnifier(bench.scene, true);
    const QImage lens = painted(Qt::magenta, [&bench](QPainter *painter) { bench.scene.IsMagnifyEllispse(painter); });
    const QPoint centre = paintedPart(lens).center();
    const QPoint handle = bench.handle(bench.target().whitePos()).toPoint();
    const QColor seen = lens.pixelColor(centre);
    const QColor under = picture.pixelColor(handle);
    QVERIFY(std::abs(seen.red() - under.red()) <= 3 && std::abs(seen.green() - under.green()) <= 3
        && std::abs(seen.blue() - under.blue()) <= 3);
}

void MarksTest::otherPointsInTheirColors()
{
    const QList<QPointF> points{QPointF(0.2, 0.3), QPointF(0.4, 0.5), QPointF(0.6, 0.3)};
    const QList<QColor> colors{QColor(255, 0, 0), QColor(12, 200, 34), QColor(0, 0, 0)};
    Bench bench;
    bench.scene.setOtherPoints(points, colors);
    const QImage marks = painted(Qt::magenta, [&bench](QPainter *painter) { bench.scene.DrawOtherPoint(painter); });
    const QImage shown = reference::backgroundOf(bench.scene);
    for (int i = 0; i < points.size(); ++i) {
        const QPoint centre = bench.handle(points.at(i)).toPoint();
        QCOMPARE(marks.pixelColor(centre), colors.at(i));
        QCOMPARE(shown.pixelColor(centre), colors.at(i));
        for (const QPoint &away : {QPoint(12, 0), QPoint(-12, 0), QPoint(0, 12), QPoint(0, -12)}) {
            QCOMPARE(marks.pixelColor(centre + away), QColor(Qt::magenta));
        }
    }
}

void MarksTest::pointsWithoutColorAreWhite()
{
    const QList<QPointF> points{QPointF(0.2, 0.3), QPointF(0.4, 0.5), QPointF(0.6, 0.3)};
    Bench bench;
    bench.scene.setOtherPoints(points, {QColor(255, 0, 0), QColor()});
    const QImage marks = painted(Qt::magenta, [&bench](QPainter *painter) { bench.scene.DrawOtherPoint(painter); });
    QCOMPARE(marks.pixelColor(bench.handle(points.at(0)).toPoint()), QColor(255, 0, 0));
    QCOMPARE(marks.pixelColor(bench.handle(points.at(1)).toPoint()), QColor(255, 255, 255));
    QCOMPARE(marks.pixelColor(bench.handle(points.at(2)).toPoint()), QColor(255, 255, 255));
}

void MarksTest::furtherColorsAreLeftOver()
{
    Bench bench;
    bench.scene.setOtherPoints({QPointF(0.2, 0.3)}, {QColor(1, 2, 3), QColor(4, 5, 6)});
    const QImage marks = painted(Qt::magenta, [&bench](QPainter *painter) { bench.scene.DrawOtherPoint(painter); });
    const QPoint centre = bench.handle(QPointF(0.2, 0.3)).toPoint();
    QCOMPARE(marks.pixelColor(centre), QColor(1, 2, 3));
    QVERIFY(QRect(centre - QPoint(12, 12), QSize(25, 25)).contains(paintedPart(marks)));
}

void MarksTest::whiteHandleReportsAndStandsAtTheWhite()
{
    Bench bench;
    QSignalSpy temperature(&bench.scene, &Scene::signal_colorTempertrueValueChang);
    const QImage handle = painted(Qt::magenta, [&bench](QPainter *painter) { bench.scene.DrawCenterEllipse(painter); });
    const QPointF white = bench.target().whitePos();
    int kelvin = 0;
    ChromaSets::GetColorTemperatureNew(
        static_cast<double>(static_cast<float>(white.x())), static_cast<double>(static_cast<float>(white.y())), kelvin);
    QCOMPARE(temperature.count(), 1);
    QVERIFY(kelvin > 6000 && kelvin < 7000);
    QCOMPARE(temperature.first().first().toDouble(), double(kelvin));

    const QPoint centre = bench.handle(white).toPoint();
    const QRect place = paintedPart(handle);
    QVERIFY(place.width() >= 12 && place.width() <= 20);
    QVERIFY(std::abs(centre.x() - place.left() - (place.right() + 1 - centre.x())) <= 1);
    QVERIFY(std::abs(centre.y() - place.top() - (place.bottom() + 1 - centre.y())) <= 1);
}

void MarksTest::whiteHandleFollowsTheWhite()
{
    QList<ColorTriangleObject> gamuts = reference::gamutPair();
    gamuts[1].trianglePoint().setWhitePos(QPointF(0.4, 0.38));
    Bench bench(gamuts);
    QSignalSpy temperature(&bench.scene, &Scene::signal_colorTempertrueValueChang);
    const QImage handle = painted(Qt::magenta, [&bench](QPainter *painter) { bench.scene.DrawCenterEllipse(painter); });
    const QPoint centre = bench.handle(QPointF(0.4, 0.38)).toPoint();
    QVERIFY((paintedPart(handle).center() - centre).manhattanLength() <= 2);
    QCOMPARE(temperature.count(), 1);
    const double kelvin = temperature.first().first().toDouble();
    QVERIFY(kelvin > 3300 && kelvin < 3700 && kelvin == std::floor(kelvin));
}

void MarksTest::noTargetNoMarks()
{
    Bench bench(reference::gamutPair().mid(0, 1));
    reference::setMagnifier(bench.scene, true);
    reference::selectVertex(bench.scene, LegacyColorAreaRed);
    reference::backgroundOf(bench.scene);
    QSignalSpy temperature(&bench.scene, &Scene::signal_colorTempertrueValueChang);
    const QImage marks = painted(Qt::magenta, [&bench](QPainter *painter) {
        bench.scene.DrawEllipseSignPosition(painter);
        bench.scene.DrawCenterEllipse(painter);
        QVERIFY(!bench.scene.IsMagnifyEllispse(painter));
    });
    QVERIFY(paintedPart(marks).isEmpty());
    QVERIFY(temperature.isEmpty());
}

QTEST_MAIN(MarksTest)
#include "markstest.moc"
