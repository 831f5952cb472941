// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramviewfixture.h"

#include <ceiechart/diagram/diagramsheet_p.h>
#include <ceiechart/diagram/spectrum_p.h>
#include <ceiechart/diagram/whitepoint.h>
#include <ceiechart/widgets/translations.h>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace diagramtests;

class DiagramViewLabelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void labelShowsWhatIsEdited();
    void labelCoversNothingOfIt_data();
    void labelCoversNothingOfIt();
    void labelGoes();
    void editNoteIsShown();
    void editNoteKeepsItsLines();
    void editNoteKeepsSnapAndReason();
    void labelFollowsTheTarget();
    void labelHasRoomInSmallViews();
    void readoutGivesWayToHands();
    void readoutLeavesWhatItDescribes_data();
    void readoutLeavesWhatItDescribes();
    void readoutStandsOnFreeGround();
    void minusZeroNeverShows();
    void digitsFollowTheZoom();
    void labelsFollowTheLanguage();
    void slowStepsAreSeen_data();
    void slowStepsAreSeen();
    void isothermsAreNamed_data();
    void isothermsAreNamed();
    void editLabelsLeaveNamesWhereThereIsRoom();
    void hoverTells();
    void hoverTellsChromaticitiesOnly();
    void readoutStandsOnTheOtherSideFromRightToLeft();
    void labelBeginsWhereTheLanguageDoes_data();
    void labelBeginsWhereTheLanguageDoes();
};

void DiagramViewLabelsTest::labelShowsWhatIsEdited()
{
    View view;
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    QVERIFY(view.d->overlay.label.isEmpty());
    view.drag(start + QPointF(20, -10));
    const QPointF xy = view.xy(GamutVertex::Green);
    QCOMPARE(view.d->overlay.label.first(),
        QStringLiteral("green: x %1  y %2").arg(xy.x(), 0, 'f', 4).arg(xy.y(), 0, 'f', 4));
    view.release(start + QPointF(20, -10));
}

void DiagramViewLabelsTest::labelCoversNothingOfIt_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Model::Diagram>("diagram");
    QTest::newRow("800 x 700, x, y") << QSize(800, 700) << Model::Diagram::Cie1931;
    QTest::newRow("800 x 700, u', v'") << QSize(800, 700) << Model::Diagram::Cie1976;
    QTest::newRow("420 x 420, u, v") << QSize(420, 420) << Model::Diagram::Cie1960;
    QTest::newRow("1600 x 1200, x, y") << QSize(1600, 1200) << Model::Diagram::Cie1931;
}

void DiagramViewLabelsTest::labelCoversNothingOfIt()
{
    QFETCH(QSize, size);
    QFETCH(Model::Diagram, diagram);
    View view;
    view.setDiagram(diagram);
    view.resize(size);
    view.setEditNote(QStringLiteral("outside by 0.0041"));
    for (const GamutVertex vertex : allGamutVertices) {
        const QPointF start = view.at(vertex);
        view.press(start);
        view.drag(start + QPointF(30, 0)); // to begin with
        for (double angle = 0.35; angle < 12.5; angle += 0.35) {
            view.drag(start + QPointF(std::cos(angle), std::sin(angle)) * 4.0 * angle);
            const QRectF label = view.d->overlay.labelPlace;
            QVERIFY(!view.d->overlay.label.isEmpty());
            QVERIFY(QRectF(view.rect()).contains(label));
            const QPointF handle = view.at(vertex);
            QVERIFY(!label.adjusted(-7, -7, 7, 7).contains(handle));
            if (vertex == GamutVertex::White) {
                continue;
            }
            for (const GamutVertex other : {GamutVertex::Red, GamutVertex::Green, GamutVertex::Blue}) {
                for (int i = 0; i <= 500; ++i) {
                    const QPointF onLine = handle + (view.at(other) - handle) * (i / 500.0);
                    QVERIFY2(!label.contains(onLine),
                        qPrintable(QStringLiteral("%1 at angle %2").arg(gamutVertexName(vertex)).arg(angle)));
                }
            }
        }
        view.release(start);
        view.setTarget(Model::rec709());
    }
}

void DiagramViewLabelsTest::labelGoes()
{
    View view;
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    QVERIFY(!view.d->overlay.label.isEmpty());
    view.release(start + QPointF(20, -10));
    QVERIFY(view.d->overlay.label.isEmpty());
    QTest::keyClick(&view, Qt::Key_Right);
    QVERIFY(!view.d->overlay.label.isEmpty()); // to be read
    QTRY_VERIFY(view.d->overlay.label.isEmpty());
    QTest::keyClick(&view, Qt::Key_Right);
    view.setSelectedVertex(GamutVertex::Blue);
    QVERIFY(view.d->overlay.label.isEmpty());
}

void DiagramViewLabelsTest::editNoteIsShown()
{
    View view;
    connect(&view, &DiagramView::targetEdited, &view, [&] { view.setEditNote(QStringLiteral("outside by 0.004")); });
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    QCOMPARE(view.d->overlay.label.value(1), QStringLiteral("outside by 0.004"));
    view.setEditNote(QString());
    QCOMPARE(view.d->overlay.label.size(), 1);
    view.release(start);
}

void DiagramViewLabelsTest::editNoteKeepsItsLines()
{
    for (const QChar separator : {QChar(u'\n'), QChar(QChar::LineSeparator)}) {
        View view;
        view.setEditNote(QStringLiteral("one") + separator + QStringLiteral("two"));
        const QPointF start = view.at(GamutVertex::Green);
        view.press(start);
        view.drag(start + QPointF(20, -10));
        QCOMPARE(view.d->overlay.label.mid(1), QStringList({QStringLiteral("one"), QStringLiteral("two")}));
        view.release(start);
    }
}

void DiagramViewLabelsTest::editNoteKeepsSnapAndReason()
{
    View view;
    auto rules = std::make_shared<StandardTargetRules>();
    rules->setStaysInsideOriginal(true);
    view.setRules(rules);
    connect(&view, &DiagramView::targetEdited, &view, [&] { view.setEditNote(QStringLiteral("outside by 0.004")); });
    const QPointF start = view.at(GamutVertex::Green);
    const QPointF corner = view.at(xyOf(wall().getTargets().green));
    view.press(start);
    view.drag(start + (corner - start) + QPointF(2, 1));
    QCOMPARE(view.d->overlay.label.mid(1),
        QStringList({QStringLiteral("outside by 0.004"), QStringLiteral("original green")}));
    view.setEditNote(QStringLiteral("and another"));
    QCOMPARE(
        view.d->overlay.label.mid(1), QStringList({QStringLiteral("and another"), QStringLiteral("original green")}));
    view.release(start);
}

void DiagramViewLabelsTest::labelFollowsTheTarget()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    QTest::keyClick(&view, Qt::Key_Right);
    view.setTarget(Model::dciP3D65());
    QVERIFY(view.d->overlay.label.first().endsWith(view.coordinatesText(xyOf(Model::dciP3D65().getTargets().green))));
    view.setDiagram(Model::Diagram::Cie1976);
    QVERIFY(view.d->overlay.label.first().endsWith(view.coordinatesText(xyOf(Model::dciP3D65().getTargets().green))));
}

void DiagramViewLabelsTest::labelHasRoomInSmallViews()
{
    View view;
    view.resize(300, 250);
    view.setEditNote(QStringLiteral("a note that is long enough to be broken where there is no room for it"));
    for (const GamutVertex vertex : allGamutVertices) {
        const QPointF start = view.at(vertex);
        view.press(start);
        view.drag(start + QPointF(13, 9));
        const QStringList label = view.d->overlay.label;
        QVERIFY(!label.isEmpty());
        QVERIFY(view.d->labelEntries().first() == label.first());
        // All of the note, or none.
        const QString rest = label.mid(1).join(QLatin1Char(' '));
        QVERIFY2(rest.isEmpty() || rest == view.editNote(), qPrintable(rest));
        QVERIFY(!view.d->overlay.labelPlace.contains(view.at(vertex)));
        view.release(start);
        view.setTarget(Model::rec709());
    }
}

void DiagramViewLabelsTest::readoutGivesWayToHands()
{
    View view;
    Model::Targets t = Model::rec709().getTargets();
    // Close enough that there is a chromaticity in that corner.
    view.setZoomFactor(4.0);
    view.hover(view.viewport().plot().center());
    const QPointF corner = view.d->overlay.readoutPlace.center();
    const QPointF under = view.viewport().toChromaticity(corner);
    t.green = Model::Target::fromYxy(t.green.Y, under.x(), under.y());
    view.setTarget(Model::ColorGamut("in the corner", t));
    QCOMPARE(view.d->overlay.handles.isEmpty(), false);
    QVERIFY(!view.d->overlay.readout.isEmpty());
    for (const DiagramOverlay::Handle &handle : view.d->overlay.handles) {
        QVERIFY(!DiagramOverlay::bounds(handle).intersects(view.d->overlay.readoutPlace));
    }
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(-10, 10));
    QVERIFY(view.d->overlay.readout.isEmpty());
    view.release(start + QPointF(-10, 10));
    QVERIFY(!view.d->overlay.readout.isEmpty());
}

void DiagramViewLabelsTest::readoutLeavesWhatItDescribes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Model::Diagram>("diagram");
    QTest::addColumn<double>("zoom");
    for (const QSize &size : {QSize(300, 250), QSize(250, 300), QSize(500, 420), QSize(1600, 900)}) {
        for (const Model::Diagram diagram :
            {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960}) {
            for (const double zoom : {1.0, 3.0}) {
                QTest::addRow("%d x %d, %s, %g", size.width(), size.height(), Model::diagramTraits(diagram).name, zoom)
                    << size << diagram << zoom;
            }
        }
    }
}

void DiagramViewLabelsTest::readoutLeavesWhatItDescribes()
{
    QFETCH(QSize, size);
    QFETCH(Model::Diagram, diagram);
    QFETCH(double, zoom);
    View view;
    view.setDiagram(diagram);
    view.resize(size);
    view.setZoomFactor(zoom);
    view.paintAll();
    const DiagramViewport &seen = view.viewport();
    const QRectF plot = seen.plot();
    QVector<QPointF> places;
    for (double x = plot.left() + 1.0; x < plot.right(); x += plot.width() / 17.0) {
        for (double y = plot.top() + 1.0; y < plot.bottom(); y += plot.height() / 17.0) {
            places.append(QPointF(x, y));
        }
    }
    QPolygonF locus;
    for (const QPointF &point : spectralLocusIn(diagram, 1)) {
        locus.append(seen.fromPoint(point));
    }
    for (const QPointF &point : locus) {
        if (plot.contains(point)) {
            places.append(point);
        }
    }
    for (const QPointF &place : places) {
        view.hover(place);
        const QRectF readout = view.d->overlay.readoutPlace;
        QVERIFY(readout.width() > plot.width() ? QRectF(view.rect()).contains(readout) : plot.contains(readout));
        const double room = std::min(30.0, plot.height() / 2.0 - readout.height() - 6.0);
        QVERIFY2(!readout.adjusted(-room, -room, room, room).contains(place),
            qPrintable(QStringLiteral("%1, %2").arg(place.x()).arg(place.y())));
        for (const QPointF &point : locus) {
            QVERIFY(length(point - place) > room || !readout.contains(point));
        }
    }
}

void DiagramViewLabelsTest::readoutStandsOnFreeGround()
{
    for (const Model::Diagram diagram : {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960}) {
        for (const QSize &size : {QSize(320, 320), QSize(420, 340), QSize(700, 900), QSize(1600, 900)}) {
            for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                View view;
                view.setLayoutDirection(direction);
                view.setDiagram(diagram);
                view.resize(size);
                view.paintAll();
                view.hover(view.at(QPointF(0.33, 0.33)));
                const QRectF readout = view.d->overlay.readoutPlace;
                QVERIFY(!readout.isEmpty());
                QPolygonF locus;
                for (const QPointF &point : spectralLocusIn(diagram, 10)) {
                    locus.append(view.viewport().fromPoint(point));
                    QVERIFY2(!readout.contains(locus.last()),
                        qPrintable(
                            QStringLiteral("%1 x %2 %3").arg(size.width()).arg(size.height()).arg(int(diagram))));
                }
                QVERIFY(!locus.containsPoint(readout.center(), Qt::WindingFill));
            }
        }
    }
}

void DiagramViewLabelsTest::minusZeroNeverShows()
{
    QCOMPARE(coordinateText(-0.00001, 4), QStringLiteral("0.0000"));
    QCOMPARE(coordinateText(-0.0, 2), QStringLiteral("0.00"));
    QCOMPARE(coordinateText(-0.0001, 4), QStringLiteral("-0.0001"));
    View view;
    QVERIFY(!view.coordinatesText(QPointF(-1e-9, 0.3)).contains(QLatin1Char('-')));
}

void DiagramViewLabelsTest::digitsFollowTheZoom()
{
    View view;
    QCOMPARE(view.coordinatesText(QPointF(0.3127, 0.329)), QStringLiteral("x 0.3127  y 0.3290"));
    view.setZoomFactor(100.0);
    QCOMPARE(view.coordinatesText(QPointF(0.3127, 0.329)), QStringLiteral("x 0.31270  y 0.32900"));
    view.setDigits(3);
    QCOMPARE(view.coordinatesText(QPointF(0.3127, 0.329)), QStringLiteral("x 0.313  y 0.329"));
    view.setDiagram(Model::Diagram::Cie1976);
    QCOMPARE(view.coordinatesText(QPointF(0.3127, 0.329)), QStringLiteral("u′ 0.198  v′ 0.468"));
}

void DiagramViewLabelsTest::labelsFollowTheLanguage()
{
    View view;
    view.setFocus();
    view.setSelectedVertex(GamutVertex::White);
    QTest::keyPress(&view, Qt::Key_Right);
    const QString former = view.d->overlay.label.first();
    installTranslations(QLocale(QStringLiteral("zh_CN")));
    QCoreApplication::processEvents();
    const QString chinese = view.d->overlay.label.first();
    installTranslations(QLocale(QLocale::English));
    QCoreApplication::processEvents();
    QVERIFY2(chinese.contains(QString::fromUtf8("白")), qPrintable(chinese));
    QCOMPARE(view.d->overlay.label.first(), former);
    QTest::keyRelease(&view, Qt::Key_Right);
}

void DiagramViewLabelsTest::slowStepsAreSeen_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<int>("digits");
    for (const double zoom : {1.0, 10.0, 100.0, 2000.0}) {
        QTest::addRow("%g", zoom) << zoom << DiagramView::automaticDigits;
    }
    QTest::newRow("chosen digits") << 10.0 << 3;
}

void DiagramViewLabelsTest::slowStepsAreSeen()
{
    QFETCH(double, zoom);
    QFETCH(int, digits);
    View view;
    view.setFocus();
    view.setDigits(digits);
    view.setSelectedVertex(GamutVertex::White);
    view.setCentre(view.xy(GamutVertex::White));
    view.setZoomFactor(zoom);
    const int usual = view.shownDigits();
    const int slow = digits == DiagramView::automaticDigits ? usual + 1 : digits;
    QString before;
    for (int i = 0; i < 3; ++i) {
        const QPointF at = view.xy(GamutVertex::White);
        QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
        QVERIFY(view.xy(GamutVertex::White).x() > at.x());
        const QString label = view.d->overlay.label.first();
        QCOMPARE(label != before, i == 0 || digits == DiagramView::automaticDigits);
        QVERIFY(label.endsWith(view.coordinatesText(view.xy(GamutVertex::White))));
        QCOMPARE(int(label.size() - label.lastIndexOf(QLatin1Char('.')) - 1), slow);
        before = label;
    }
    QCOMPARE(view.shownDigits(), slow);
    QTest::keyClick(&view, Qt::Key_Right);
    QCOMPARE(view.shownDigits(), usual);
    QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&view, Qt::Key_Escape); // nothing is selected, so the label goes
    QVERIFY(view.d->overlay.label.isEmpty());
    QCOMPARE(view.shownDigits(), usual);
}

void DiagramViewLabelsTest::isothermsAreNamed_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Model::Diagram>("diagram");
    for (const QSize &size : {QSize(200, 200), QSize(300, 250), QSize(400, 300), QSize(600, 500), QSize(1600, 900)}) {
        for (const Model::Diagram diagram :
            {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960}) {
            QTest::addRow("%d x %d, %s", size.width(), size.height(), Model::diagramTraits(diagram).name)
                << size << diagram;
        }
    }
}

void DiagramViewLabelsTest::isothermsAreNamed()
{
    QFETCH(QSize, size);
    QFETCH(Model::Diagram, diagram);
    int drawn = 0;
    for (const double zoom : {0.0, 1.0, 2.0, 4.0, 8.0, 40.0, 200.0}) {
        for (const int marks : {0, 4, 40}) {
            View view;
            view.setDiagram(diagram);
            view.resize(size);
            QVector<DiagramMark> points{{QPointF(0.3127, 0.3290), QStringLiteral("D65"), QColor()},
                {QPointF(0.3457, 0.3585), QStringLiteral("D50"), QColor()}};
            // More and more of them along the Planckian locus.
            for (int i = 0; i < marks; ++i) {
                points.append({*chromaticityAt(2000.0 + 20000.0 * i / marks, 0.01 * (i % 3 - 1)), QString(), QColor()});
            }
            view.setColorTemperaturePoints(points);
            if (zoom == 0.0) {
                view.showWhite();
            } else {
                view.setZoomFactor(zoom);
                view.setCentre(view.xy(GamutVertex::White));
            }
            const DiagramSheet sheet{
                view.content(), view.viewport(), DiagramFonts(view.d->painter->font(), nullptr, 1.0)};
            const QVector<PendingNumber> isotherms = scaleStep(sheet).isotherms;
            for (const PendingNumber &isotherm : isotherms) {
                // Not so short as to be taken for a mark, unless the edge cuts it.
                const QRectF inside = view.viewport().plot().adjusted(1.0, 1.0, -1.0, -1.0);
                QVERIFY(isotherm.line.length() >= 10.0 || !inside.contains(isotherm.line.p1())
                    || !inside.contains(isotherm.line.p2()));
            }
            if (isotherms.isEmpty()) {
                continue;
            }
            ++drawn;
            QVector<DiagramLabel> named;
            for (const DiagramLabel &label : view.d->painter->labels()) {
                if (label.kind == DiagramLabel::Kind::Isotherm) {
                    named.append(label);
                }
            }
            QVERIFY2(!named.isEmpty(), qPrintable(QStringLiteral("zoom %1, %2 marks").arg(zoom).arg(marks)));
            for (const DiagramLabel &label : qAsConst(named)) {
                for (const DiagramMark &mark : qAsConst(points)) {
                    QVERIFY(!label.place.contains(view.at(mark.xy)));
                }
                QVERIFY(!label.place.contains(view.at(GamutVertex::White)));
            }
        }
    }
    QVERIFY(drawn > 0);
}

void DiagramViewLabelsTest::editLabelsLeaveNamesWhereThereIsRoom()
{
    View view;
    view.setStandards({Model::rec709(), Model::rec2020(), Model::dciP3D65()});
    int labels = 0;
    int covered = 0;
    for (const GamutVertex vertex : {GamutVertex::Red, GamutVertex::Green, GamutVertex::White}) {
        const QPointF start = view.at(vertex);
        view.press(start);
        for (int i = -8; i <= 8; ++i) {
            view.drag(start + QPointF(6.0 * i, 4.0 * i + (i == 0 ? 1.0 : 0.0)));
            const QRectF place = view.d->overlay.labelPlace;
            if (place.isEmpty()) {
                continue;
            }
            ++labels;
            QVERIFY(view.viewport().plot().contains(place));
            for (const DiagramLabel &name : view.d->painter->labels()) {
                covered += name.place.intersects(place) ? 1 : 0;
            }
        }
        QTest::keyClick(&view, Qt::Key_Escape);
        view.release(start);
    }
    QVERIFY(labels > 40);
    QCOMPARE(covered, 0);
}

void DiagramViewLabelsTest::hoverTells()
{
    View view;
    QSignalSpy hovered(&view, &DiagramView::hovered);
    QSignalSpy ended(&view, &DiagramView::hoverEnded);
    const QPointF position = view.at(QPointF(0.4, 0.4));
    view.hover(position);
    QCOMPARE(hovered.count(), 1);
    QVERIFY(length(hovered.at(0).at(0).toPointF() - QPointF(0.4, 0.4)) < 1e-9);
    view.hover(QPointF(2, 2)); // beside the plot
    QCOMPARE(hovered.count(), 1);
    QCOMPARE(ended.count(), 1);
    view.hover(position);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view, &leave);
    QCOMPARE(ended.count(), 2);
    QVERIFY(view.d->overlay.readout.isEmpty());
}

void DiagramViewLabelsTest::hoverTellsChromaticitiesOnly()
{
    View view;
    view.setDiagram(Model::Diagram::Cie1976);
    QSignalSpy hovered(&view, &DiagramView::hovered);
    QSignalSpy ended(&view, &DiagramView::hoverEnded);
    view.hover(view.at(QPointF(0.3, 0.3)));
    QCOMPARE(hovered.count(), 1);
    // Above the horseshoe there is nothing that x and y could say.
    view.d->pan(QPointF(0, 280));
    view.hover(view.viewport().fromPoint(QPointF(0.1, 0.85)));
    QVERIFY(view.viewport().plot().contains(view.viewport().fromPoint(QPointF(0.1, 0.85))));
    QCOMPARE(hovered.count(), 1);
    QCOMPARE(ended.count(), 1);
    QVERIFY(!view.d->overlay.readout.isEmpty());
}

void DiagramViewLabelsTest::readoutStandsOnTheOtherSideFromRightToLeft()
{
    View view;
    view.resize(1200, 600); // with free ground on both sides
    view.paintAll();
    view.hover(view.viewport().plot().center());
    QVERIFY(view.d->overlay.readoutPlace.center().x() > view.width() / 2.0);
    view.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(view.d->overlay.readoutPlace.center().x() < view.width() / 2.0);
    QVERIFY(view.viewport().plot().contains(view.d->overlay.readoutPlace));
}

void DiagramViewLabelsTest::labelBeginsWhereTheLanguageDoes_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void DiagramViewLabelsTest::labelBeginsWhereTheLanguageDoes()
{
    QFETCH(Qt::LayoutDirection, direction);
    View view;
    view.setLayoutDirection(direction);
    view.setEditNote(QStringLiteral("short"));
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    QCOMPARE(view.d->overlay.label.size(), 2);
    const QImage picture = view.grab().toImage();
    const QRgb ground = diagramPalette(view.content().ground).ground.rgb();
    // The note is in the lower half, in from the frame.
    const double ratio = picture.devicePixelRatio();
    const QRectF place = view.d->overlay.labelPlace.adjusted(4.0, 4.0, -4.0, -4.0);
    const QRect label = QRectF(place.topLeft() * ratio, place.size() * ratio).toAlignedRect();
    int left = 0;
    int right = 0;
    for (int y = label.center().y() + int(3.0 * ratio); y <= label.bottom(); ++y) {
        for (int x = label.left(); x <= label.right(); ++x) {
            const bool isText = picture.pixel(x, y) != ground;
            (x < label.center().x() ? left : right) += isText ? 1 : 0;
        }
    }
    const bool isOnTheLeft = direction == Qt::LeftToRight;
    QVERIFY2((isOnTheLeft ? left : right) > 20 && (isOnTheLeft ? right : left) == 0,
        qPrintable(QStringLiteral("%1 pixels on the left, %2 on the right").arg(left).arg(right)));
    view.release(start);
}

QTEST_MAIN(DiagramViewLabelsTest)
#include "diagramviewlabelstest.moc"
