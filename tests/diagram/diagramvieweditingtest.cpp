// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramviewfixture.h"

#include <ceiechart/diagram/diagramsheet_p.h>
#include <ceiechart/diagram/whitepoint.h>
#include <gamutmodel/gamutcoverage.h>

#include <cmath>
#include <memory>

using namespace diagramtests;

class DiagramViewEditingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void handlesAreHitWithin_data();
    void handlesAreHitWithin();
    void nearestHandleIsHit();
    void pressMovesNothing();
    void trembleMovesNothing();
    void dragsBeginWithoutAJump_data();
    void dragsBeginWithoutAJump();
    void handsThatTurnBackAreFollowed();
    void dragKeepsTheGrip();
    void dragTellsItsHost();
    void escapeBringsTheTargetBack();
    void lostReleaseEndsTheDrag();
    void resizedViewsKeepTheHandleUnderThePointer_data();
    void resizedViewsKeepTheHandleUnderThePointer();
    void shiftIsSlow();
    void controlStaysOnTheLineThroughTheWhite();
    void controlKeepsTheTemperatureOfTheWhite();
    void altStaysOnAnAxis_data();
    void altStaysOnAnAxis();
    void snapsWithAGuide();
    void controlAndAltDoNotSnap();
    void dragStopsWhereTheRulesSay();
    void lockedHandlesSayWhy();
    void positionsAreRoundedToWhatIsShown();
    void clickOnFreeGroundSelectsNothing();
    void trembleOnFreeGroundIsAClick();
};

void DiagramViewEditingTest::handlesAreHitWithin_data()
{
    QTest::addColumn<double>("distance");
    QTest::addColumn<bool>("hit");
    QTest::newRow("on it") << 0.0 << true;
    QTest::newRow("12 pixels") << 12.0 << true;
    QTest::newRow("23.9 pixels") << 23.9 << true;
    QTest::newRow("24.1 pixels") << 24.1 << false;
    QTest::newRow("40 pixels") << 40.0 << false;
}

void DiagramViewEditingTest::handlesAreHitWithin()
{
    QFETCH(double, distance);
    QFETCH(bool, hit);
    for (const double angle : {0.3, 1.9, 3.4, 5.2}) {
        View view;
        const QPointF xy = view.xy(GamutVertex::Green);
        const QPointF grip = view.at(GamutVertex::Green) + QPointF(std::cos(angle), std::sin(angle)) * distance;
        view.press(grip);
        view.drag(grip + QPointF(18, 10));
        view.release(grip + QPointF(18, 10));
        QCOMPARE(view.xy(GamutVertex::Green) != xy, hit);
    }
}

void DiagramViewEditingTest::nearestHandleIsHit()
{
    View view;
    Model::Targets t = Model::rec709().getTargets();
    const double unit = 1.0 / view.viewport().scale();
    t.red = Model::Target::fromYxy(0.2, 0.5, 0.35);
    t.green = Model::Target::fromYxy(0.7, 0.5 + 30.0 * unit, 0.35);
    view.setTarget(Model::ColorGamut("narrow", t));
    const QPointF red = view.at(GamutVertex::Red);
    view.press(red + QPointF(13, 0));
    QCOMPARE(*view.selectedVertex(), GamutVertex::Red);
    view.release(red + QPointF(13, 0));
    view.press(red + QPointF(17, 0));
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
    view.release(red + QPointF(17, 0));
}

void DiagramViewEditingTest::pressMovesNothing()
{
    View view;
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QSignalSpy started(&view, &DiagramView::editingStarted);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    const QPointF grip = view.at(GamutVertex::Blue) + QPointF(10, -10);
    view.press(grip);
    view.release(grip);
    QCOMPARE(edited.count() + started.count() + finished.count(), 0);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Blue);
}

void DiagramViewEditingTest::trembleMovesNothing()
{
    View view;
    const int threshold = QGuiApplication::styleHints()->startDragDistance();
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QSignalSpy started(&view, &DiagramView::editingStarted);
    const Model::Targets before = view.gamut(GamutRole::Target)->getTargets();
    const QPointF grip = view.at(GamutVertex::Green) + QPointF(3, 2);
    view.press(grip);
    for (const QPointF &way : {QPointF(1, 0), QPointF(2, -1), QPointF(0, threshold), QPointF(-threshold, 0)}) {
        view.drag(grip + way);
    }
    view.release(grip + QPointF(-threshold, 0));
    QCOMPARE(edited.count() + started.count(), 0);
    QVERIFY(sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
}

void DiagramViewEditingTest::dragsBeginWithoutAJump_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<double>("share");
    QTest::newRow("plain") << int(Qt::NoModifier) << 1.0;
    QTest::newRow("slow") << int(Qt::ShiftModifier) << 0.1;
}

void DiagramViewEditingTest::dragsBeginWithoutAJump()
{
    QFETCH(int, modifiers);
    QFETCH(double, share);
    View view;
    view.setDigits(10); // so that rounding plays no part
    view.setZoomFactor(50.0);
    view.setCentre(view.xy(GamutVertex::Green));
    const QPointF start = view.at(GamutVertex::Green);
    const QPointF grip = start + QPointF(7, -4);
    const int threshold = QGuiApplication::styleHints()->startDragDistance();
    view.press(grip);
    double last = 0.0;
    for (int i = 1; i <= 3 * threshold; ++i) {
        view.drag(grip + QPointF(i, 0), Qt::KeyboardModifiers(modifiers));
        const QPointF way = view.at(GamutVertex::Green) - start;
        QVERIFY(std::fabs(way.y()) < 0.01);
        if (i <= threshold) {
            QVERIFY(length(way) < 1e-6);
        }
        // A few pixels at most, and then the grip is what it was.
        QVERIFY2(way.x() - last < 3.0 * share + 0.01, qPrintable(QString::number(way.x() - last)));
        last = way.x();
        if (i >= 1.5 * threshold) {
            QVERIFY2(std::fabs(last - i * share) < 0.01, qPrintable(QString::number(last)));
        }
    }
    view.release(grip);
}

void DiagramViewEditingTest::handsThatTurnBackAreFollowed()
{
    View view;
    view.setDigits(10); // so that rounding plays no part
    view.setZoomFactor(50.0);
    view.setCentre(view.xy(GamutVertex::Green));
    const QPointF start = view.at(GamutVertex::Green);
    const int threshold = QGuiApplication::styleHints()->startDragDistance();
    QPointF hand = start;
    const auto wayOfHandle = [&](const QPointF &way) {
        const QPointF former = view.at(GamutVertex::Green);
        hand += way;
        view.drag(hand);
        return view.at(GamutVertex::Green) - former;
    };
    view.press(start);
    QVERIFY(wayOfHandle(QPointF(threshold + 1, 0)).x() > 1.5); // more than the hand beyond the threshold
    for (int i = 0; i < 4; ++i) {
        const QPointF back = wayOfHandle(QPointF(-1, 0));
        QVERIFY2(length(back - QPointF(-1, 0)) < 0.01, qPrintable(QString::number(back.x())));
    }
    QVERIFY(length(wayOfHandle(QPointF(0, -3)) - QPointF(0, -3)) < 0.01);
    QVERIFY(length(wayOfHandle(QPointF(-2, -2)) - QPointF(-2, -2)) < 0.01);
    // And where it goes on, it is caught up with.
    QVERIFY(wayOfHandle(QPointF(1, 1)).x() > 2.5);
    wayOfHandle(QPointF(threshold, 0));
    QVERIFY(length(view.at(GamutVertex::Green) - hand) < 0.01);
    view.release(hand);
}

void DiagramViewEditingTest::dragKeepsTheGrip()
{
    View view;
    const QPointF before = view.at(GamutVertex::Green);
    const QPointF grip = before + QPointF(11, 7);
    view.press(grip);
    view.drag(grip + QPointF(1, 0));
    QVERIFY(length(view.at(GamutVertex::Green) - before) < 1.6); // by a pixel, and rounded to four decimals
    view.drag(grip + QPointF(30, -17));
    QVERIFY(length(view.at(GamutVertex::Green) - before - QPointF(30, -17)) < 0.2);
    view.release(grip + QPointF(30, -17));
    QVERIFY(length(view.at(GamutVertex::Green) - before - QPointF(30, -17)) < 0.2);
}

void DiagramViewEditingTest::dragTellsItsHost()
{
    View view;
    QStringList order;
    connect(&view, &DiagramView::editingStarted, [&] { order.append(QStringLiteral("started")); });
    connect(&view, &DiagramView::targetEdited, [&](const Model::ColorGamut &gamut) {
        order.append(QString::fromStdString(gamut.colorGamutName()));
        QVERIFY(sameTargets(gamut.getTargets(), view.gamut(GamutRole::Target)->getTargets()));
    });
    connect(&view, &DiagramView::editingFinished, [&] { order.append(QStringLiteral("finished")); });
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -15));
    QVERIFY(view.isEditing());
    view.drag(start + QPointF(25, -15));
    // No change, nothing to tell.
    view.drag(start + QPointF(25, -15));
    view.release(start + QPointF(25, -15));
    QVERIFY(!view.isEditing());
    QCOMPARE(order,
        QStringList({QStringLiteral("started"), QStringLiteral("Rec.709"), QStringLiteral("Rec.709"),
            QStringLiteral("finished")}));
}

void DiagramViewEditingTest::escapeBringsTheTargetBack()
{
    View view;
    const Model::Targets before = view.gamut(GamutRole::Target)->getTargets();
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QSignalSpy canceled(&view, &DiagramView::editingCanceled);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    const QPointF start = view.at(GamutVertex::Red);
    view.press(start);
    view.drag(start + QPointF(-30, -20));
    QVERIFY(!sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
    QTest::keyClick(&view, Qt::Key_Escape);
    QVERIFY(sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
    QCOMPARE(canceled.count(), 1);
    QCOMPARE(finished.count(), 1);
    QVERIFY(sameTargets(edited.last().at(0).value<Model::ColorGamut>().getTargets(), before));
    // What the hand does until the button is up is nothing.
    const DiagramViewport viewport = view.viewport();
    view.drag(start + QPointF(-60, -60));
    view.release(start + QPointF(-60, -60));
    QVERIFY(sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
    QVERIFY(view.viewport() == viewport);
    QCOMPARE(finished.count(), 1);
}

void DiagramViewEditingTest::lostReleaseEndsTheDrag()
{
    View view;
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(10, -10));
    const QPointF xy = view.xy(GamutVertex::Green);
    view.hover(start + QPointF(50, -50));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(view.xy(GamutVertex::Green), xy);
}

void DiagramViewEditingTest::resizedViewsKeepTheHandleUnderThePointer_data()
{
    QTest::addColumn<bool>("isDragging");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("zoom");
    for (const bool isDragging : {true, false}) {
        const char *hand = isDragging ? "dragging" : "holding";
        QTest::addRow("%s, smaller", hand) << isDragging << QSize(740, 650) << 1.0;
        QTest::addRow("%s, larger", hand) << isDragging << QSize(860, 740) << 1.0;
        QTest::addRow("%s, closer", hand) << isDragging << QSize(700, 560) << 30.0;
    }
}

void DiagramViewEditingTest::resizedViewsKeepTheHandleUnderThePointer()
{
    QFETCH(bool, isDragging);
    QFETCH(QSize, size);
    QFETCH(double, zoom);
    View view;
    view.setDigits(10);
    if (zoom > 1.0) {
        view.setZoomFactor(zoom);
        view.setCentre(view.xy(GamutVertex::White));
    }
    QSignalSpy started(&view, &DiagramView::editingStarted);
    const QPointF start = view.at(GamutVertex::White);
    const QPointF grip(3, -2);
    QPointF pointer = start + grip;
    view.press(pointer);
    if (isDragging) {
        pointer += QPointF(20, 15);
        view.drag(pointer);
    }
    view.resize(size);
    view.paintAll();
    QCOMPARE(started.count(), isDragging ? 1 : 0);
    // The grip grows and shrinks with the view.
    const double most = 2.0 * length(grip);
    if (isDragging) {
        QVERIFY2(length(view.at(GamutVertex::White) - pointer) < most,
            qPrintable(QString::number(length(view.at(GamutVertex::White) - pointer))));
    }
    pointer += QPointF(-30, 5);
    view.drag(pointer);
    QVERIFY2(length(view.at(GamutVertex::White) - pointer) < most,
        qPrintable(QString::number(length(view.at(GamutVertex::White) - pointer))));
    view.release(pointer);
    QCOMPARE(started.count(), 1);
}

void DiagramViewEditingTest::shiftIsSlow()
{
    View view;
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(50, -40), Qt::ShiftModifier);
    QVERIFY(length(view.at(GamutVertex::Green) - start - QPointF(5, -4)) < 0.2);
    // Without a jump when it is let go.
    view.drag(start + QPointF(60, -40));
    QVERIFY(length(view.at(GamutVertex::Green) - start - QPointF(15, -4)) < 0.2);
    view.release(start + QPointF(60, -40));
}

void DiagramViewEditingTest::controlStaysOnTheLineThroughTheWhite()
{
    View view;
    const QPointF white = view.xy(GamutVertex::White);
    const QPointF green = view.xy(GamutVertex::Green);
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(25, 40), Qt::ControlModifier);
    view.release(start + QPointF(25, 40));
    const QPointF moved = view.xy(GamutVertex::Green);
    QVERIFY(length(moved - green) > 0.01);
    const QPointF line = green - white;
    const double aside = (line.x() * (moved - white).y() - line.y() * (moved - white).x()) / length(line);
    QVERIFY2(std::fabs(aside) < 1e-9, qPrintable(QString::number(aside)));
}

void DiagramViewEditingTest::controlKeepsTheTemperatureOfTheWhite()
{
    for (const Model::Diagram diagram : {Model::Diagram::Cie1931, Model::Diagram::Cie1976}) {
        View view;
        view.setDiagram(diagram);
        view.showWhite();
        const auto before = colorTemperature(view.xy(GamutVertex::White));
        const QPointF start = view.at(GamutVertex::White);
        view.press(start);
        view.drag(start + QPointF(35, 60), Qt::ControlModifier);
        view.release(start + QPointF(35, 60));
        const auto after = colorTemperature(view.xy(GamutVertex::White));
        QVERIFY(after);
        QVERIFY(std::fabs(after->duv - before->duv) > 1e-4);
        QVERIFY2(std::fabs(after->kelvin - before->kelvin) < 0.01, qPrintable(QString::number(after->kelvin)));
    }
}

void DiagramViewEditingTest::altStaysOnAnAxis_data()
{
    QTest::addColumn<QPointF>("way");
    QTest::addColumn<bool>("horizontal");
    QTest::newRow("across") << QPointF(40, 15) << true;
    QTest::newRow("up") << QPointF(12, -30) << false;
}

void DiagramViewEditingTest::altStaysOnAnAxis()
{
    QFETCH(QPointF, way);
    QFETCH(bool, horizontal);
    View view;
    const QPointF xy = view.xy(GamutVertex::Green);
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + way, Qt::AltModifier);
    const QPointF moved = view.xy(GamutVertex::Green);
    if (horizontal) {
        QCOMPARE(moved.y(), xy.y());
        QVERIFY(std::fabs(moved.x() - xy.x() - way.x() / view.viewport().scale()) < 1e-4);
    } else {
        QCOMPARE(moved.x(), xy.x());
        QVERIFY(std::fabs(moved.y() - xy.y() + way.y() / view.viewport().scale()) < 1e-4);
    }
    // Let go, it goes to the pointer.
    view.drag(start + way + QPointF(1, 1));
    QVERIFY(length(view.at(GamutVertex::Green) - start - way - QPointF(1, 1)) < 0.2);
    view.release(start + way);
}

void DiagramViewEditingTest::snapsWithAGuide()
{
    View view;
    view.setRules(nullptr);
    const QPointF start = view.at(GamutVertex::Green);
    const QPointF corner = view.at(xyOf(wall().getTargets().green));
    view.press(start);
    view.drag(start + QPointF(-10, -10));
    QVERIFY(view.d->overlay.guides.isEmpty());
    view.drag(corner + QPointF(4, -3));
    QCOMPARE(view.xy(GamutVertex::Green), QPointF(0.189, 0.718));
    QCOMPARE(view.d->overlay.guides.size(), 1);
    QVERIFY(view.d->overlay.label.join(QString()).contains(QStringLiteral("original")));
    // It stands round the handle that covers the corner.
    const QColor accent = diagramPalette(DiagramView::Private::groundOf(view.palette())).accent;
    const QImage picture = view.grab().toImage();
    const double ratio = picture.devicePixelRatio();
    int inAccent = 0;
    for (const double along : {-8.0, -6.0, -4.0, -2.0, 0.0, 2.0, 4.0, 6.0, 8.0}) {
        for (double away = handleExtent + 2.0; away < handleExtent + 6.0; away += 0.5) {
            const QPointF at = (corner + QPointF(along, -away)) * ratio;
            const QColor there = picture.pixelColor(at.toPoint());
            const int difference = std::abs(there.red() - accent.red()) + std::abs(there.green() - accent.green())
                + std::abs(there.blue() - accent.blue());
            inAccent += difference < 120 ? 1 : 0; // the line is smoothed
        }
    }
    QVERIFY(inAccent > 0);
    // An edge of the original, too.
    const QPointF edge = view.at((xyOf(wall().getTargets().green) + xyOf(wall().getTargets().red)) / 2.0);
    view.drag(edge + QPointF(3, 3));
    const QPointF xy = view.xy(GamutVertex::Green);
    const QPointF line = xyOf(wall().getTargets().red) - xyOf(wall().getTargets().green);
    const QPointF way = xy - xyOf(wall().getTargets().green);
    QVERIFY(std::fabs(line.x() * way.y() - line.y() * way.x()) < 1e-12);
    view.release(edge);
    QVERIFY(view.d->overlay.guides.isEmpty());
}

void DiagramViewEditingTest::controlAndAltDoNotSnap()
{
    View view;
    view.setRules(nullptr);
    const QPointF start = view.at(GamutVertex::Green);
    const QPointF aim = view.at(xyOf(wall().getTargets().green)) + QPointF(4, -3);
    view.press(start);
    view.drag(aim, Qt::ControlModifier | Qt::AltModifier);
    QVERIFY(length(view.at(GamutVertex::Green) - aim) < 0.2);
    QVERIFY(view.d->overlay.guides.isEmpty());
    view.release(aim);
}

void DiagramViewEditingTest::dragStopsWhereTheRulesSay()
{
    View view;
    QSignalSpy refused(&view, &DiagramView::editRefused);
    const QPointF start = view.at(GamutVertex::White);
    // In one step from the middle to far below the triangle.
    view.press(start);
    view.drag(view.at(QPointF(0.3127, 0.01)));
    QVERIFY(refused.count() == 1);
    const double edge = 0.060 + (0.3127 - 0.150) * (0.330 - 0.060) / (0.640 - 0.150);
    QVERIFY2(std::fabs(view.xy(GamutVertex::White).y() - edge) < 0.001,
        qPrintable(QString::number(view.xy(GamutVertex::White).y())));
    // And back with the pointer.
    view.drag(start + QPointF(0, 10));
    QVERIFY(length(view.at(GamutVertex::White) - start - QPointF(0, 10)) < 0.2);
    view.release(start);

    auto rules = std::make_shared<StandardTargetRules>();
    rules->setStaysInsideOriginal(true);
    view.setRules(rules);
    const QPointF green = view.at(GamutVertex::Green);
    view.press(green);
    view.drag(green + QPointF(200, -200));
    QVERIFY(!Model::primariesOutside(view.gamut(GamutRole::Target)->getTargets(), wall().getTargets()).green);
    view.release(green);
}

void DiagramViewEditingTest::lockedHandlesSayWhy()
{
    View view;
    auto rules = std::make_shared<StandardTargetRules>();
    rules->setLocksPrimaries(true);
    view.setRules(rules);
    QSignalSpy refused(&view, &DiagramView::editRefused);
    const QPointF xy = view.xy(GamutVertex::Red);
    const QPointF start = view.at(GamutVertex::Red);
    const DiagramViewport viewport = view.viewport();
    view.press(start);
    view.drag(start + QPointF(20, 20));
    view.release(start + QPointF(20, 20));
    QCOMPARE(view.xy(GamutVertex::Red), xy);
    QVERIFY(view.viewport() == viewport);
    QCOMPARE(refused.count(), 1);
    QVERIFY(!refused.at(0).at(0).toString().isEmpty());
    QTest::keyClick(&view, Qt::Key_Right);
    QCOMPARE(view.xy(GamutVertex::Red), xy);
    QCOMPARE(refused.count(), 2);
}

void DiagramViewEditingTest::positionsAreRoundedToWhatIsShown()
{
    View view;
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(21.37, -11.71));
    view.release(start + QPointF(21.37, -11.71));
    const QPointF xy = view.xy(GamutVertex::Green);
    QCOMPARE(xy.x(), QString::number(xy.x(), 'f', 4).toDouble());
    QCOMPARE(xy.y(), QString::number(xy.y(), 'f', 4).toDouble());
    // Closer, there are more of them.
    view.setZoomFactor(DiagramViewport::closest);
    view.setCentre(xy);
    const QPointF close = view.at(GamutVertex::Green);
    view.press(close);
    view.drag(close + QPointF(0, 60));
    view.release(close + QPointF(0, 60));
    QVERIFY(length(view.at(GamutVertex::Green) - close - QPointF(0, 60)) < 1.0);
}

void DiagramViewEditingTest::clickOnFreeGroundSelectsNothing()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    const QPointF ground = freeGround(view);
    view.press(ground);
    view.drag(ground + QPointF(10, 10));
    view.release(ground + QPointF(10, 10));
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green); // as that was a pan
    view.press(ground, Qt::MiddleButton);
    view.release(ground, Qt::MiddleButton);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
    view.press(ground);
    view.release(ground);
    QVERIFY(!view.selectedVertex());
}

void DiagramViewEditingTest::trembleOnFreeGroundIsAClick()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    const QPointF ground = freeGround(view);
    view.press(ground);
    view.drag(ground + QPointF(2, -1));
    view.release(ground + QPointF(2, -1));
    QVERIFY(!view.selectedVertex());
    QVERIFY(view.viewport().showsAll());
}

QTEST_MAIN(DiagramViewEditingTest)
#include "diagramvieweditingtest.moc"
