// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/ceiatlasvalue.h>
#include <ceiechart/diagram/diagramviewport.h>

#include <QtTest>

#include <cmath>
#include <limits>

using ceiechart::DiagramViewport;

namespace {

constexpr Model::Diagram allDiagrams[] = {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960};
const QPointF d65(0.3127, 0.3290);

double distance(const QPointF &a, const QPointF &b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

QPolygonF spectrum()
{
    const CEIAtlasValue atlas;
    QPolygonF points;
    for (const CEIAtlasValue::CEIAtlasCoordinate &row : atlas.atlasCoordinates) {
        if (row.waveLength >= 380 && row.waveLength <= 699) {
            const double sum = row.X + row.Y + row.Z;
            points.append(QPointF(row.X / sum, row.Y / sum));
        }
    }
    return points;
}

//! Of the horseshoe, in the coordinates of the diagram.
QRectF boundsOf(const DiagramViewport &viewport)
{
    QPolygonF points;
    for (const QPointF &xy : spectrum()) {
        points.append(viewport.toPoint(viewport.toPosition(xy)));
    }
    return points.boundingRect();
}

} // namespace

class DiagramViewportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void bothAxesHaveOneScale_data();
    void bothAxesHaveOneScale();
    void allOfTheHorseshoeIsSeen_data() { bothAxesHaveOneScale_data(); }
    void allOfTheHorseshoeIsSeen();
    void positionsAndChromaticitiesAreInverse();
    void knownPointOfCie1960();
    void anchorStaysOverAThousandZooms();
    void zoomHasLimits();
    void oddFactorsChangeNothing();
    void panMovesByPixels();
    void panKeepsTheHorseshoeInReach();
    void noZoomLosesTheHorseshoe();
    void centresStayInReach();
    void fitsAPolygon();
    void fitsNothingAndAPoint();
    void fitsAWhite();
    void anotherSizeKeepsWhatIsSeen();
    void anotherDiagramKeepsTheMiddle();
    void noSizeIsNoFault();
    void chromaticityWithoutAPointIsNotFinite();
};

void DiagramViewportTest::bothAxesHaveOneScale_data()
{
    QTest::addColumn<int>("diagram");
    QTest::addColumn<QSizeF>("size");
    for (const Model::Diagram diagram : allDiagrams) {
        for (const QSizeF &size :
            {QSizeF(300, 250), QSizeF(1024, 768), QSizeF(250, 900), QSizeF(3840, 2160), QSizeF(801.5, 333.25)}) {
            QTest::addRow("%s %gx%g", Model::diagramTraits(diagram).name, size.width(), size.height())
                << int(diagram) << size;
        }
    }
}

void DiagramViewportTest::bothAxesHaveOneScale()
{
    QFETCH(int, diagram);
    QFETCH(QSizeF, size);
    DiagramViewport viewport(Model::Diagram(diagram), size, QMarginsF(50, 10, 12, 24));
    for (const double zoom : {1.0, 7.0, 2000.0}) {
        viewport = viewport.centredOn(d65, zoom);
        const double step = 1e-3 / zoom;
        const QPointF at = viewport.range().center();
        const QPointF origin = viewport.fromPoint(at);
        const QPointF other(0.1, 0.8);
        const QPolygonF both = viewport.fromPoints(QPolygonF() << at << other);
        QCOMPARE(both, QPolygonF() << origin << viewport.fromPoint(other));
        const double right = viewport.fromPoint(at + QPointF(step, 0)).x() - origin.x();
        const double up = origin.y() - viewport.fromPoint(at + QPointF(0, step)).y();
        QVERIFY(std::fabs(right - step * viewport.scale()) < 1e-8);
        QVERIFY(std::fabs(up - step * viewport.scale()) < 1e-8);
    }
}

void DiagramViewportTest::allOfTheHorseshoeIsSeen()
{
    QFETCH(int, diagram);
    QFETCH(QSizeF, size);
    const DiagramViewport viewport(Model::Diagram(diagram), size, QMarginsF(50, 10, 12, 24));
    QVERIFY(viewport.showsAll());
    QCOMPARE(viewport.zoom(), 1.0);
    QRectF bounds;
    QPolygonF positions;
    for (const QPointF &xy : spectrum()) {
        positions.append(viewport.toPosition(xy));
    }
    bounds = positions.boundingRect();
    QVERIFY(viewport.plot().contains(bounds));
    // One direction is used up but for the room of the wavelengths, and the rest is shared.
    const double roomX = viewport.plot().width() - bounds.width();
    const double roomY = viewport.plot().height() - bounds.height();
    QVERIFY(std::min(roomX, roomY) <= 72.001);
    QVERIFY(distance(bounds.center(), viewport.plot().center()) < 1e-6);
}

void DiagramViewportTest::positionsAndChromaticitiesAreInverse()
{
    for (const Model::Diagram diagram : allDiagrams) {
        for (const double zoom : {1.0, 33.0, 2000.0}) {
            const DiagramViewport viewport
                = DiagramViewport(diagram, QSizeF(1000, 700), QMarginsF(40, 8, 8, 20)).centredOn(d65, zoom);
            for (const QPointF &position : {QPointF(0, 0), QPointF(999, 1), QPointF(400.25, 650.75)}) {
                QVERIFY(distance(viewport.toPosition(viewport.toChromaticity(position)), position) < 1e-6);
            }
            QVERIFY(distance(viewport.toPosition(d65), viewport.plot().center()) < 1e-9);
            QVERIFY(distance(viewport.centre(), d65) < 1e-14);
        }
    }
}

void DiagramViewportTest::knownPointOfCie1960()
{
    // CIE 15:2018, table T.3: u', v' of D65 are 0.1978, 0.4683; v is two thirds of v'.
    const DiagramViewport viewport = DiagramViewport(Model::Diagram::Cie1960, QSizeF(500, 500)).centredOn(d65, 10.0);
    const QPointF point = viewport.toPoint(viewport.plot().center());
    QVERIFY(std::fabs(point.x() - 0.1978) < 5e-5);
    QVERIFY(std::fabs(point.y() - 0.4683 * 2.0 / 3.0) < 5e-5);
    const DiagramViewport other = DiagramViewport(Model::Diagram::Cie1976, QSizeF(500, 500)).centredOn(d65, 10.0);
    QVERIFY(std::fabs(other.toPoint(other.plot().center()).y() * 2.0 / 3.0 - point.y()) < 1e-15);
}

void DiagramViewportTest::anchorStaysOverAThousandZooms()
{
    for (const Model::Diagram diagram : allDiagrams) {
        DiagramViewport viewport(diagram, QSizeF(1280, 800), QMarginsF(50, 10, 12, 24));
        const QPointF anchor(437.5, 291.25);
        const QPointF xy = viewport.toChromaticity(anchor);
        double worst = 0.0;
        unsigned state = 7;
        for (int i = 0; i < 1000; ++i) {
            state = state * 1664525U + 1013904223U;
            viewport = viewport.zoomed(std::pow(2.0, (state >> 16) / 32768.0 - 0.98), anchor);
            worst = std::max(worst, distance(viewport.toPosition(xy), anchor));
        }
        QVERIFY2(worst < 1e-3, qPrintable(QString::number(worst)));
    }
}

void DiagramViewportTest::zoomHasLimits()
{
    const DiagramViewport whole(Model::Diagram::Cie1931, QSizeF(600, 600));
    QCOMPARE(whole.zoomed(0.1).zoom(), 1.0);
    QCOMPARE(whole.zoomed(1e9).zoom(), DiagramViewport::closest);
    QCOMPARE(whole.zoomed(1e9).scale(), whole.scale() * 2000.0);
    QVERIFY(whole.zoomed(1e9).zoomed(2.0) == whole.zoomed(1e9));
    QVERIFY(whole.zoomed(0.5) == whole);
}

void DiagramViewportTest::oddFactorsChangeNothing()
{
    const DiagramViewport whole(Model::Diagram::Cie1931, QSizeF(600, 600));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double factor : {0.0, -2.0, nan}) {
        QVERIFY(whole.zoomed(factor) == whole);
    }
    QVERIFY(whole.zoomed(2.0, QPointF(nan, 1.0)) == whole);
    QVERIFY(whole.panned(QPointF(nan, 1.0)) == whole);
    QVERIFY(whole.centredOn(QPointF(nan, 0.3), 2.0) == whole);
    QVERIFY(whole.centredOn(d65, nan) == whole);
}

void DiagramViewportTest::panMovesByPixels()
{
    const DiagramViewport viewport = DiagramViewport(Model::Diagram::Cie1976, QSizeF(640, 480)).centredOn(d65, 50.0);
    const QPointF moved = viewport.panned(QPointF(17, -9)).toPosition(d65) - viewport.toPosition(d65);
    QVERIFY(distance(moved, QPointF(17, -9)) < 1e-9);
}

void DiagramViewportTest::panKeepsTheHorseshoeInReach()
{
    const DiagramViewport whole(Model::Diagram::Cie1931, QSizeF(600, 600));
    for (const QPointF &way : {QPointF(1e6, 0), QPointF(-1e6, 0), QPointF(0, 1e6), QPointF(1e6, -1e6)}) {
        const QPointF centre = whole.panned(way).centre();
        QVERIFY(centre.x() > -0.01 && centre.x() < 0.75 && centre.y() > -0.01 && centre.y() < 0.85);
    }
    // A view whose middle is already beyond can come back but go no farther.
    const DiagramViewport beyond = whole.centredOn(QPointF(0.9, 0.3), 3.0);
    QVERIFY(beyond.panned(QPointF(-50, 0)).centre().x() <= 0.9 + 1e-12);
    QVERIFY(beyond.panned(QPointF(50, 0)).centre().x() < 0.9);
}

void DiagramViewportTest::noZoomLosesTheHorseshoe()
{
    for (const Model::Diagram diagram : allDiagrams) {
        const DiagramViewport whole(diagram, QSizeF(600, 400), QMarginsF(50, 10, 12, 24));
        const QRectF bounds = boundsOf(whole);
        const QRectF plot = whole.plot();
        for (const QPointF &corner : {plot.topLeft(), plot.topRight(), plot.bottomLeft(), plot.bottomRight()}) {
            // In at one corner and out at the opposite one, again and again.
            const QPointF opposite = plot.topLeft() + plot.bottomRight() - corner;
            DiagramViewport viewport = whole;
            for (int i = 0; i < 20; ++i) {
                viewport = viewport.zoomed(5.0, corner).zoomed(0.2, opposite);
            }
            QCOMPARE(viewport.zoom(), 1.0);
            QVERIFY(viewport.range().intersects(bounds));
            QVERIFY(std::fabs(viewport.range().center().x() - bounds.center().x()) < 0.751 * bounds.width());
            QVERIFY(std::fabs(viewport.range().center().y() - bounds.center().y()) < 0.751 * bounds.height());
        }
        // A corner of a gamut beyond the horseshoe can be looked at closely.
        const QPointF corner = whole.toPosition(QPointF(0.0001, -0.077));
        if (diagram == Model::Diagram::Cie1931) {
            QVERIFY(distance(whole.zoomed(1500.0, corner).toPosition(QPointF(0.0001, -0.077)), corner) < 1e-6);
            const DiagramViewport centred = whole.centredOn(QPointF(0.0001, -0.077), 1.0).zoomed(2000.0);
            QVERIFY(distance(centred.toPosition(QPointF(0.0001, -0.077)), plot.center()) < 1e-6);
        }
    }
}

void DiagramViewportTest::centresStayInReach()
{
    for (const Model::Diagram diagram : allDiagrams) {
        const DiagramViewport whole(diagram, QSizeF(600, 400));
        const QRectF bounds = boundsOf(whole);
        for (const QPointF &far : {QPointF(1e300, 1e300), QPointF(-1e300, 0.3), QPointF(0.3, 1e12)}) {
            for (const double zoom : {1.0, 3.0, 2000.0}) {
                for (const DiagramViewport &viewport :
                    {whole.centredOn(far, zoom), whole.fittedTo(QPolygonF() << far)}) {
                    const QPointF middle = viewport.range().center();
                    QVERIFY(std::fabs(middle.x()) < 1.3 && std::fabs(middle.y()) < 1.5);
                    const DiagramViewport back = viewport.zoomed(1e-9);
                    QVERIFY(back.zoom() == 1.0 && back.range().intersects(bounds));
                }
            }
        }
    }
}

void DiagramViewportTest::fitsAPolygon()
{
    const Model::Targets target = Model::dciP3D65().getTargets();
    for (const Model::Diagram diagram : allDiagrams) {
        const DiagramViewport viewport
            = DiagramViewport(diagram, QSizeF(900, 500), QMarginsF(50, 10, 12, 24)).fittedTo(target);
        const QRectF bounds = viewport.outline(target).boundingRect();
        QVERIFY(viewport.plot().contains(bounds));
        QVERIFY(distance(bounds.center(), viewport.plot().center()) < 1e-6);
        QVERIFY(std::max(bounds.width() / viewport.plot().width(), bounds.height() / viewport.plot().height()) > 0.7);
    }
}

void DiagramViewportTest::fitsNothingAndAPoint()
{
    const DiagramViewport whole(Model::Diagram::Cie1931, QSizeF(600, 600));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(whole.fittedTo(QPolygonF()) == whole);
    QVERIFY(whole.fittedTo(QPolygonF() << QPointF(nan, nan)) == whole);
    const DiagramViewport point = whole.fittedTo(QPolygonF() << d65);
    QCOMPARE(point.zoom(), DiagramViewport::closest);
    QVERIFY(distance(point.centre(), d65) < 1e-12);
}

void DiagramViewportTest::fitsAWhite()
{
    for (const Model::Diagram diagram : allDiagrams) {
        const DiagramViewport viewport = DiagramViewport(diagram, QSizeF(400, 300)).fittedToWhite(d65, 0.008);
        QVERIFY(distance(viewport.toPosition(d65), viewport.plot().center()) < 1e-6);
        const Model::DiagramPoint uv = Model::toDiagram(Model::Diagram::Cie1976, {d65.x(), d65.y()});
        for (const double angle : {0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0}) {
            const Model::DiagramPoint xy = Model::fromDiagram(
                Model::Diagram::Cie1976, {uv.x + 0.008 * std::cos(angle), uv.y + 0.008 * std::sin(angle)});
            QVERIFY(viewport.plot().contains(viewport.toPosition(QPointF(xy.x, xy.y))));
        }
    }
}

void DiagramViewportTest::anotherSizeKeepsWhatIsSeen()
{
    const DiagramViewport whole(Model::Diagram::Cie1931, QSizeF(600, 600), QMarginsF(50, 10, 10, 20));
    QVERIFY(whole.resized(QSizeF(1000, 300)).showsAll());
    QVERIFY(whole.withMargins(QMarginsF()).showsAll());
    const DiagramViewport close = whole.centredOn(d65, 12.0);
    const DiagramViewport resized = close.resized(QSizeF(1000, 300));
    QCOMPARE(resized.zoom(), 12.0);
    QVERIFY(distance(resized.centre(), d65) < 1e-14);
    QVERIFY(!resized.showsAll());
}

void DiagramViewportTest::anotherDiagramKeepsTheMiddle()
{
    const DiagramViewport whole(Model::Diagram::Cie1931, QSizeF(600, 500));
    QVERIFY(whole.withDiagram(Model::Diagram::Cie1960).showsAll());
    const DiagramViewport close = whole.centredOn(d65, 12.0).withDiagram(Model::Diagram::Cie1976);
    QCOMPARE(close.zoom(), 12.0);
    QVERIFY(distance(close.centre(), d65) < 1e-12);
    QCOMPARE(int(close.diagram()), int(Model::Diagram::Cie1976));
}

void DiagramViewportTest::noSizeIsNoFault()
{
    const DiagramViewport none;
    QVERIFY(none.plot().width() >= 1.0);
    QVERIFY(std::isfinite(none.toPosition(d65).x()));
    const DiagramViewport margins(Model::Diagram::Cie1976, QSizeF(10, 10), QMarginsF(50, 50, 50, 50));
    QVERIFY(margins.scale() > 0.0);
}

void DiagramViewportTest::chromaticityWithoutAPointIsNotFinite()
{
    // Where -2x + 12y + 3 is 0.
    const DiagramViewport viewport(Model::Diagram::Cie1976, QSizeF(500, 500));
    const QPointF position = viewport.toPosition(QPointF(1.5, 0.0));
    QVERIFY(!std::isfinite(position.x()) || !std::isfinite(position.y()));
}

QTEST_APPLESS_MAIN(DiagramViewportTest)
#include "diagramviewporttest.moc"
