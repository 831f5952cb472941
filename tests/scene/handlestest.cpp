// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/ceiegraphicsscene.h>

#include <reference/canvas.h>
#include <reference/picturedifference.h>
#include <reference/samplegamuts.h>
#include <reference/scenemodel.h>
#include <reference/scenesignallog.h>
#include <reference/scenestate.h>

#include <QPainter>
#include <QtTest>

#include <functional>
#include <limits>

using reference::describe;
using Scene = NewCEIE::CEIEGraphicsScene;

namespace {

const QColor greenCross(0, 255, 0, 255);
const QColor redCross(255, 0, 0, 255);

// The pair on a picture of 200 × 200: 210 pixels to a chromaticity of 1.
struct Bench {
    Scene scene;

    explicit Bench(const QList<ColorTriangleObject> &triangles = reference::gamutPair())
        : scene(triangles)
    {
        scene.setImageWidth(200);
        scene.setImageHeight(200);
    }

    void select(const QPointF &chroma)
    {
        reference::setRequestedPoint(scene, scene.ChromaToCurCoordinate(chroma));
        scene.AddLedColorAndPoint();
    }

    void setZoomMode(int mode, int steps)
    {
        reference::setFunctionKeyMode(scene, mode);
        for (int i = 0; i < steps; ++i) {
            scene.SetFunctionKeyShortcuts();
        }
    }

    QPointF position(const QPointF &chroma) { return scene.ChromaToCurCoordinate(chroma); }
    TrianglePoint target() { return scene.getLsColorTriangleObject().at(1).trianglePoint(); }
};

QImage canvas(const std::function<void(QPainter &)> &paint)
{
    return reference::canvas(QSize(260, 260), paint, Qt::darkCyan);
}

// A handle as painted over a pen: circle and cross at a scene position.
void sign(QPainter &painter, const QPointF &p, int w, int h, const QColor &circle, const QColor &cross)
{
    const QPen before = painter.pen();
    QPen pen = before;
    pen.setColor(circle);
    painter.setPen(pen);
    painter.drawEllipse(int(p.x() - w / 2), int(p.y() - h / 2), w, h);
    pen.setColor(cross);
    painter.setPen(pen);
    painter.drawLine(int(p.x() - w / 2), int(p.y()), int(p.x() + w / 2), int(p.y()));
    painter.drawLine(int(p.x()), int(p.y() - h / 2), int(p.x()), int(p.y() + h / 2));
    painter.setPen(before);
}

struct Look {
    int size;
    QColor color;
};

// What refreshArea is to paint for a target in its own fences.
QImage handles(Bench &bench, const Look &red, const Look &green, const Look &blue)
{
    const TrianglePoint points = bench.target();
    return canvas([&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(255, 255, 255, 255), 1));
        sign(painter, bench.position(points.redPos()), red.size, red.size, red.color, greenCross);
        sign(painter, bench.position(points.greenPos()), green.size, green.size, green.color, redCross);
        sign(painter, bench.position(points.bluePos()), blue.size, blue.size, blue.color, greenCross);
    });
}

QImage refreshed(Scene &scene)
{
    return canvas([&](QPainter &painter) { scene.refreshArea(&painter); });
}

} // namespace

class HandlesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oneTriangleDrawsNothing();
    void noneSelectedAreSmallAndGrey();
    void selectedVertexIsLargeAndBlack_data();
    void selectedVertexIsLargeAndBlack();
    void sizesAtTheLargestZoom();
    void sizesAreTruncated();
    void zoomPastZeroIsSurvived();
    void selectedTabIsLargeAndBlack_data();
    void selectedTabIsLargeAndBlack();
    void crossFollowsTheFence_data();
    void crossFollowsTheFence();
    void primaryInNoFenceShowsARedCross();
    void onlyThePenColourChanges();
    void refreshAreaSetsThePenWidth();
    void handlesTakeThePaintersPen();
    void halvesAreIntegers();
    void positionsTruncateTowardZero();
    void painterIsRestored();
    void farAway();
    void drawingChangesNothing();
    void meaninglessPositionsAreSurvived();
};

void HandlesTest::oneTriangleDrawsNothing()
{
    Bench bench({reference::narrowGamut()});
    bool result = true;
    const QImage image = canvas([&](QPainter &painter) { result = bench.scene.refreshArea(&painter); });
    QVERIFY(!result);
    QCOMPARE(reference::firstDifference(image, canvas([](QPainter &) {})), QString());
    canvas([&](QPainter &painter) {
        QVERIFY(!bench.scene.DrawVertexSign(&painter));
        QVERIFY(!bench.scene.DrawThreeEllipseSign(&painter));
    });
}

void HandlesTest::noneSelectedAreSmallAndGrey()
{
    Bench bench;
    const Look grey{6, Qt::gray};
    QCOMPARE(reference::firstDifference(refreshed(bench.scene), handles(bench, grey, grey, grey)), QString());
}

void HandlesTest::selectedVertexIsLargeAndBlack_data()
{
    QTest::addColumn<QPointF>("chroma");
    QTest::addColumn<int>("vertex");
    QTest::newRow("red") << QPointF(0.55, 0.3) << 1;
    QTest::newRow("green") << QPointF(0.3, 0.55) << 2;
    QTest::newRow("blue") << QPointF(0.2, 0.1) << 3;
}

void HandlesTest::selectedVertexIsLargeAndBlack()
{
    QFETCH(QPointF, chroma);
    QFETCH(int, vertex);
    Bench bench;
    bench.select(chroma);
    QCOMPARE(reference::stateOf(bench.scene).selectedVertex, vertex);
    const auto look = [vertex](int area) { return area == vertex ? Look{12, Qt::black} : Look{6, Qt::gray}; };
    QCOMPARE(reference::firstDifference(refreshed(bench.scene), handles(bench, look(1), look(2), look(3))), QString());
}

void HandlesTest::sizesAtTheLargestZoom()
{
    Bench bench;
    bench.select(QPointF(0.3, 0.55));
    bench.setZoomMode(1, 9);
    QCOMPARE(reference::stateOf(bench.scene).zoom, 1.5000001F);
    QCOMPARE(reference::firstDifference(
                 refreshed(bench.scene), handles(bench, {9, Qt::gray}, {18, Qt::black}, {9, Qt::gray})),
        QString());
}

void HandlesTest::sizesAreTruncated()
{
    Bench bench;
    bench.select(QPointF(0.3, 0.55));
    bench.setZoomMode(1, 1); // 13.2 and 6.6
    QCOMPARE(reference::firstDifference(
                 refreshed(bench.scene), handles(bench, {6, Qt::gray}, {13, Qt::black}, {6, Qt::gray})),
        QString());
    bench.setZoomMode(2, 3); // 9.6 and 4.8
    QCOMPARE(reference::firstDifference(
                 refreshed(bench.scene), handles(bench, {4, Qt::gray}, {9, Qt::black}, {4, Qt::gray})),
        QString());
}

void HandlesTest::zoomPastZeroIsSurvived()
{
    Bench bench;
    bench.setZoomMode(2, 15);
    QVERIFY(reference::stateOf(bench.scene).zoom < -0.4F);
    canvas([&](QPainter &painter) { QVERIFY(bench.scene.refreshArea(&painter)); });
}

void HandlesTest::selectedTabIsLargeAndBlack_data()
{
    QTest::addColumn<QPointF>("click");
    QTest::addColumn<int>("area");
    QTest::newRow("red") << QPointF(0.5, 0.2) << 1;
    QTest::newRow("green") << QPointF(0.2, 0.6) << 2;
    QTest::newRow("blue") << QPointF(0.15, 0.05) << 3;
    QTest::newRow("none") << QPointF(0.6, 0.6) << 0;
}

void HandlesTest::selectedTabIsLargeAndBlack()
{
    QFETCH(QPointF, click);
    QFETCH(int, area);
    Bench bench;
    bench.scene.MouseClickAire(bench.position(click));
    bench.setZoomMode(1, 1); // int(1.1 × 12), not the size that comes with the vertex
    const auto look = [area](int handle) { return handle == area ? Look{13, Qt::black} : Look{6, Qt::gray}; };
    QCOMPARE(reference::firstDifference(refreshed(bench.scene), handles(bench, look(1), look(2), look(3))), QString());
}

void HandlesTest::crossFollowsTheFence_data()
{
    QTest::addColumn<QPointF>("chroma");
    QTest::addColumn<QColor>("cross");
    QTest::newRow("red fence") << QPointF(0.64, 0.33) << greenCross;
    QTest::newRow("green fence") << QPointF(0.2, 0.6) << redCross;
    QTest::newRow("blue fence") << QPointF(0.15, 0.05) << greenCross;
    QTest::newRow("no fence") << QPointF(0.6, 0.6) << redCross;
    QTest::newRow("corner of all fences") << QPointF(0.33, 0.33) << greenCross;
}

void HandlesTest::crossFollowsTheFence()
{
    QFETCH(QPointF, chroma);
    QFETCH(QColor, cross);
    Bench bench;
    bool result = false;
    const QImage actual = canvas([&](QPainter &painter) {
        painter.setPen(Qt::yellow);
        result = bench.scene.DrawEllipseSign(&painter, chroma, QSize(12, 12));
    });
    QVERIFY(result);
    const QImage expected
        = canvas([&](QPainter &painter) { sign(painter, bench.position(chroma), 12, 12, Qt::yellow, cross); });
    QCOMPARE(reference::firstDifference(actual, expected), QString());
}

void HandlesTest::primaryInNoFenceShowsARedCross()
{
    QList<ColorTriangleObject> pair = reference::gamutPair();
    pair[1].trianglePoint().setRedPos(QPointF(0.6, 0.6));
    Bench bench(pair);
    const TrianglePoint points = bench.target();
    const QImage expected = canvas([&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        sign(painter, bench.position(points.redPos()), 6, 6, Qt::gray, redCross);
        sign(painter, bench.position(points.greenPos()), 6, 6, Qt::gray, redCross);
        sign(painter, bench.position(points.bluePos()), 6, 6, Qt::gray, greenCross);
    });
    QCOMPARE(reference::firstDifference(refreshed(bench.scene), expected), QString());
}

void HandlesTest::onlyThePenColourChanges()
{
    Bench bench;
    const QPointF chroma(0.4, 0.25);
    const QPen wide(Qt::yellow, 5, Qt::DotLine, Qt::RoundCap);
    const QImage actual = canvas([&](QPainter &painter) {
        painter.setPen(wide);
        QVERIFY(bench.scene.SetEllipseDieplay(
            &painter, chroma, QSize(40, 40), NewCEIE::TabSelectedRed, NewCEIE::ColorAreaRed));
        QCOMPARE(painter.pen(), wide);
    });
    const QImage expected = canvas([&](QPainter &painter) {
        painter.setPen(wide);
        sign(painter, bench.position(chroma), 40, 40, Qt::gray, greenCross);
    });
    QCOMPARE(reference::firstDifference(actual, expected), QString());
}

// The pen that refreshArea leaves is three wide, the handles are drawn with one.
void HandlesTest::refreshAreaSetsThePenWidth()
{
    Bench bench;
    const Look grey{6, Qt::gray};
    const QImage actual = canvas([&](QPainter &painter) {
        painter.setPen(QPen(Qt::blue, 9));
        bench.scene.refreshArea(&painter);
        QCOMPARE(painter.pen().width(), 3);
    });
    QCOMPARE(reference::firstDifference(actual, handles(bench, grey, grey, grey)), QString());
    const QImage direct = canvas([&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::blue, 9));
        QVERIFY(bench.scene.DrawVertexSign(&painter));
        QCOMPARE(painter.pen(), QPen(Qt::blue, 9));
    });
    QCOMPARE(reference::firstDifference(direct, handles(bench, grey, grey, grey)), QString());
}

// In another colour and one pixel wide.
void HandlesTest::handlesTakeThePaintersPen()
{
    Bench bench;
    const TrianglePoint points = bench.target();
    QPen pen(QBrush(Qt::blue), 9, Qt::DotLine, Qt::RoundCap, Qt::RoundJoin);
    const QImage actual = canvas([&](QPainter &painter) {
        painter.setPen(pen);
        QVERIFY(bench.scene.DrawThreeEllipseSign(&painter));
    });
    pen.setWidth(1);
    const QImage expected = canvas([&](QPainter &painter) {
        painter.setPen(pen);
        sign(painter, bench.position(points.redPos()), 6, 6, Qt::gray, greenCross);
        sign(painter, bench.position(points.greenPos()), 6, 6, Qt::gray, redCross);
        sign(painter, bench.position(points.bluePos()), 6, 6, Qt::gray, greenCross);
    });
    QCOMPARE(reference::firstDifference(actual, expected), QString());
}

void HandlesTest::halvesAreIntegers()
{
    Bench bench;
    const QPointF chroma(0.4, 0.25);
    for (const QSize &size : {QSize(9, 7), QSize(1, 1), QSize(15, 40)}) {
        const QImage actual
            = canvas([&](QPainter &painter) { QVERIFY(bench.scene.DrawEllipseSign(&painter, chroma, size)); });
        const QImage expected = canvas([&](QPainter &painter) {
            sign(painter, bench.position(chroma), size.width(), size.height(), painter.pen().color(), greenCross);
        });
        QCOMPARE(reference::firstDifference(actual, expected), QString());
    }
}

void HandlesTest::positionsTruncateTowardZero()
{
    Bench bench;
    const QPointF chroma = bench.scene.CurCoordinateToChroma(QPointF(-2.4, -7.7));
    const QPointF p = bench.position(chroma);
    QVERIFY(p.x() < -2.3 && p.y() < -7.6);
    const QImage actual = canvas([&](QPainter &painter) {
        painter.translate(60, 60);
        QVERIFY(bench.scene.DrawEllipseSign(&painter, chroma, QSize(10, 12)));
    });
    const QImage expected = canvas([&](QPainter &painter) {
        painter.translate(60, 60);
        painter.drawEllipse(-7, -13, 10, 12);
        painter.setPen(redCross);
        painter.drawLine(-7, -7, 2, -7);
        painter.drawLine(-2, -13, -2, -1);
    });
    QCOMPARE(reference::firstDifference(actual, expected), QString());
}

void HandlesTest::painterIsRestored()
{
    Bench bench;
    canvas([&](QPainter &painter) {
        const QPen pen(Qt::yellow, 4, Qt::DashLine);
        const QBrush brush(Qt::blue, Qt::Dense4Pattern);
        painter.setPen(pen);
        painter.setBrush(brush);
        painter.translate(3, 4);
        const QTransform transform = painter.transform();
        const QPainter::RenderHints hints = painter.renderHints();
        QVERIFY(bench.scene.DrawThreeEllipseSign(&painter));
        QVERIFY(bench.scene.DrawEllipseSign(&painter, QPointF(0.4, 0.25), QSize(12, 12)));
        QCOMPARE(painter.pen(), pen);
        QCOMPARE(painter.brush(), brush);
        QCOMPARE(painter.transform(), transform);
        QCOMPARE(painter.renderHints(), hints);
    });
}

// Its other side would be beyond the integers, which the sanitizers see.
void HandlesTest::farAway()
{
    Bench bench;
    const QPointF origin = bench.position(QPointF(0.0, 0.0));
    const QPointF unit = bench.position(QPointF(1.0, 1.0)) - origin;
    for (const double far : {2147483640.0, -2147483640.0, 1e300}) {
        const QPointF chroma((far - origin.x()) / unit.x(), (100.0 - origin.y()) / unit.y());
        for (const int side : {12, -12}) {
            const QImage drawn = canvas(
                [&](QPainter &painter) { QVERIFY(bench.scene.DrawEllipseSign(&painter, chroma, QSize(side, side))); });
            QCOMPARE(drawn, canvas([](QPainter &) {}));
        }
    }
}

void HandlesTest::drawingChangesNothing()
{
    Bench bench;
    bench.select(QPointF(0.55, 0.3));
    bench.scene.setDrawColorTPoint(false);
    reference::SceneSignalLog<Scene> log(&bench.scene);
    const QString list = describe(bench.scene.getLsColorTriangleObject());
    const QString state = describe(reference::stateOf(bench.scene));
    refreshed(bench.scene);
    QCOMPARE(describe(bench.scene.getLsColorTriangleObject()), list);
    QCOMPARE(describe(reference::stateOf(bench.scene)), state);
    QVERIFY(log.takeSignals().isEmpty());
    QVERIFY(!log.takeUpdate());
}

void HandlesTest::meaninglessPositionsAreSurvived()
{
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double bad : {inf, -inf, nan, 1e300, 1e7}) {
        QList<ColorTriangleObject> pair = reference::gamutPair();
        pair[1].trianglePoint().setRedPos(QPointF(bad, 0.3));
        pair[1].trianglePoint().setGreenPos(QPointF(0.3, bad));
        pair[1].trianglePoint().setBluePos(QPointF(bad, bad));
        Bench bench(pair);
        canvas([&](QPainter &painter) { QVERIFY(bench.scene.refreshArea(&painter)); });
    }
}

QTEST_MAIN(HandlesTest)
#include "handlestest.moc"
