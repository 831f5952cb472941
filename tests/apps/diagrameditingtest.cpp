// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramfixture.h"
#include "followeddocument.h"

#include "editing/targetsession.h"
#include "panel/layerkey.h"
#include "panel/sidepanel.h"
#include "panel/targeteditor.h"
#include "panel/verdict.h"
#include "window/lens.h"

#include <QAbstractSpinBox>
#include <QLabel>
#include <QStatusBar>
#include <QStyleHints>
#include <QtTest>

using namespace gamutviewer;
using namespace diagramfixture;

class DiagramEditingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDragIsOneStep();
    void theFirstDragKeepsTheHandleUnderThePointer();
    void theFirstKeyStepKeepsTheDiagram();
    void panelAndVerdictFollowADrag();
    void lensAndKeyFollowADrag();
    void noteTellsWhatThePrimaryIsOutsideOf();
    void noteTellsOfTheWall();
    void escapeCancelsADrag();
    void undoInADragEndsIt();
    void arrowKeysMove();
    void shiftIsSlow();
    void digitsFollowTheZoom();
    void heldAndLockedAreRefused();
    void selectionIsShared();
    void deselectionIsShared();
    void hiddenTargetsKeepTheSelection();
};

void DiagramEditingTest::aDragIsOneStep()
{
    WindowFixture f;
    f.window->session()->setSnaps(false);
    DiagramPointer pointer(view(f));
    const QPointF from = f.xy(Vertex::Green);
    pointer.drag(from, QPointF(0.30, 0.60));
    QVERIFY(qAbs(f.xy(Vertex::Green).x() - 0.30) < 2.0 * pointer.pixel());
    QVERIFY(qAbs(f.xy(Vertex::Green).y() - 0.60) < 2.0 * pointer.pixel());
    QCOMPARE(f.document().history()->count(), 1);
    // To the digits that are shown.
    QCOMPARE(QString::number(f.xy(Vertex::Green).x(), 'f', 4).toDouble(), f.xy(Vertex::Green).x());
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(f.xy(Vertex::Green), from);
    QVERIFY(!f.window->isWindowModified());
    QCOMPARE(view(f)->gamut(GamutRole::Target)->getTargets().green.x, from.x());
}

void DiagramEditingTest::theFirstDragKeepsTheHandleUnderThePointer()
{
    WindowFixture f;
    f.window->session()->setSnaps(false);
    const auto handle = [&] {
        const QPoint position = view(f)->viewport().toPosition(f.xy(Vertex::Green)).toPoint();
        return view(f)->mapTo(f.window.get(), position);
    };
    const int width = key(f)->width();
    const QPoint start = handle();
    const auto send = [&](QEvent::Type type, const QPoint &at, Qt::MouseButton button, Qt::MouseButtons buttons) {
        const QPoint position = view(f)->mapFrom(f.window.get(), at);
        QMouseEvent event(type, position, view(f)->mapToGlobal(position), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(view(f), &event);
        QCoreApplication::processEvents(); // the layout, too
    };
    send(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    QPoint pointer = start;
    const int threshold = QGuiApplication::styleHints()->startDragDistance();
    for (int step = 1; step <= 10; ++step) {
        pointer = start + QPoint(4, 3) * step; // 5 pixels
        send(QEvent::MouseMove, pointer, Qt::NoButton, Qt::LeftButton);
        if (5 * step <= threshold) {
            QCOMPARE(handle(), start);
        } else if (10 * step >= 3 * threshold) {
            QVERIFY((handle() - pointer).manhattanLength() <= 2);
        }
    }
    send(QEvent::MouseButtonRelease, pointer, Qt::LeftButton, Qt::NoButton);
    QVERIFY((handle() - pointer).manhattanLength() <= 2);
    QVERIFY(key(f)->entry(QStringLiteral("DCI-P3(D65) (edited)")));
    QCOMPARE(key(f)->width(), width);
}

void DiagramEditingTest::theFirstKeyStepKeepsTheDiagram()
{
    WindowFixture f;
    const QSize size = view(f)->size();
    view(f)->setFocus();
    QTest::keyClick(view(f), Qt::Key_B);
    QTest::keyClick(view(f), Qt::Key_Right);
    QCoreApplication::processEvents();
    QVERIFY(key(f)->entry(QStringLiteral("DCI-P3(D65) (edited)")));
    QCOMPARE(view(f)->size(), size);
}

void DiagramEditingTest::panelAndVerdictFollowADrag()
{
    WindowFixture f;
    f.forgetMeasuredGamut();
    f.window->session()->reset(QStringLiteral("LED wall"));
    QVERIFY(f.window->panel()->verdict()->text().startsWith(QString::fromUtf8("✓")));
    DiagramPointer pointer(view(f));
    pointer.press(f.xy(Vertex::Green));
    pointer.move(QPointF(0.10, 0.78));
    // Before the button is up.
    const Verdict *verdict = f.window->panel()->verdict();
    QVERIFY(verdict->text().startsWith(QString::fromUtf8("✗")));
    QVERIFY(verdict->text().contains(QLatin1String("green")));
    QCOMPARE(verdict->accessibleName(), verdict->text());
    QCOMPARE(f.window->panel()->editor()->firstCoordinate(Vertex::Green)->value(), f.xy(Vertex::Green).x());
    QVERIFY(view(f)->editNote().contains(QLatin1String("outside")));
    pointer.release(QPointF(0.10, 0.78));
}

//! What is not the target's is not sought again in each step, but shown when it changes in the middle of one.
void DiagramEditingTest::lensAndKeyFollowADrag()
{
    using ceiechart::DiagramLayer;
    WindowFixture f;
    const ceiechart::DiagramView *lens = f.window->diagramPage()->lens()->view();
    LayerSwitches *switches = f.window->diagramPage()->switches();
    const auto targetOf = [](const ceiechart::DiagramView *shown) {
        return shown->content().find(GamutRole::Target)->gamut.getTargets();
    };
    const auto isFollowed = [&] {
        const Model::Targets target = f.document().target()->getTargets();
        return ceiechart::sameTargets(targetOf(lens), target) && ceiechart::sameTargets(targetOf(view(f)), target);
    };
    const auto isShown = [&](const QString &name) {
        const auto &gamuts = lens->content().gamuts;
        return std::any_of(gamuts.begin(), gamuts.end(),
            [&name](const DiagramGamut &gamut) { return gamut.gamut.colorGamutName() == name.toStdString(); });
    };
    const QString standard = f.document().description().standards.value(0);
    QVERIFY(isShown(standard));
    DiagramPointer pointer(view(f));
    pointer.press(f.xy(Vertex::Green));
    pointer.move(QPointF(0.22, 0.64));
    QVERIFY(f.document().isDragging());
    QVERIFY(isFollowed());
    switches->setStandardShown(standard, false);
    QVERIFY(!isShown(standard));
    QCOMPARE(key(f)->entry(standard)->checkState(), Qt::Unchecked);
    switches->setShown(DiagramLayer::Rings, false);
    pointer.move(QPointF(0.21, 0.64));
    QVERIFY(isFollowed() && !isShown(standard));
    // A measurement that is followed.
    FollowedMeasurement measured;
    measured.file = followeddocument::followed(0.69, QStringLiteral("followed"));
    f.document().showFollowed(measured);
    const auto &points = lens->content().measurePoints;
    QVERIFY(std::any_of(points.begin(), points.end(),
        [](const ceiechart::DiagramMark &point) { return point.name.contains(QLatin1String("followed")); }));
    pointer.move(QPointF(0.20, 0.64));
    QVERIFY(isFollowed());
    pointer.release(QPointF(0.20, 0.64));
    QVERIFY(!f.document().isDragging() && isFollowed() && !isShown(standard));
    QVERIFY(isShown(f.document().description().target));
}

void DiagramEditingTest::noteTellsWhatThePrimaryIsOutsideOf()
{
    WindowFixture f;
    DisplayDescription d = f.document().description();
    // The meter has seen less green than the original has.
    Model::Targets measured = d.gamut(d.original)->getTargets();
    measured.green = Model::Target::fromYxy(measured.green.Y, 0.25, 0.65);
    d.gamuts.emplace_back(Model::ColorGamut("Meter", measured), LuminanceUnit::CandelaPerSquareMetre);
    d.measured = QStringLiteral("Meter");
    d.target = d.original;
    f.window->setDescription(d, QString());
    DiagramPointer pointer(view(f));
    pointer.press(f.xy(Vertex::Green));
    const auto noteAt = [&](const QPointF &xy) {
        pointer.move(xy);
        return view(f)->editNote();
    };
    const QString inside = noteAt(QPointF(0.26, 0.62));
    QVERIFY2(inside.isEmpty(), qPrintable(inside));
    const QString measuredNote = noteAt(QPointF(0.22, 0.68));
    QVERIFY2(measuredNote.startsWith(QLatin1String("outside of the measured gamut by ")), qPrintable(measuredNote));
    QVERIFY(f.window->panel()->verdict()->text().contains(QLatin1String("Green lies outside of the measured gamut")));
    const QString originalNote = noteAt(QPointF(0.10, 0.78));
    QVERIFY2(originalNote.startsWith(QLatin1String("outside of the original by ")), qPrintable(originalNote));
    pointer.release(QPointF(0.10, 0.78));
}

void DiagramEditingTest::noteTellsOfTheWall()
{
    WindowFixture f;
    DisplayDescription d;
    d.target = QStringLiteral("Rec.709");
    const Model::Targets of = Model::rec2020().getTargets();
    const auto add = [&](const char *name, const Model::Target &green) {
        WallCabinet cabinet;
        cabinet.name = QString::fromLatin1(name);
        cabinet.red = of.red;
        cabinet.green = green;
        cabinet.blue = of.blue;
        d.wall.cabinets.push_back(cabinet);
    };
    add("A1", of.green);
    add("A2", Model::Target::fromYxy(of.green.Y, 0.23, 0.68));
    add("A3", Model::Target::fromYxy(of.green.Y, 0.25, 0.65));
    f.window->setDescription(d, QString());
    DiagramPointer pointer(view(f));
    pointer.press(f.xy(Vertex::Green));
    const auto noteAt = [&](const QPointF &xy) {
        pointer.move(xy);
        return view(f)->editNote();
    };
    QCOMPARE(noteAt(QPointF(0.28, 0.60)), QString());
    const QString one = noteAt(QPointF(0.235, 0.67));
    QVERIFY2(one.startsWith(QString::fromUtf8("outside of the cabinet A3 by Δu′v′ 0.0")), qPrintable(one));
    const QString two = noteAt(QPointF(0.19, 0.74));
    QVERIFY2(two.startsWith(QString::fromUtf8("outside of 2 cabinets, of A3 by Δu′v′ 0.0")), qPrintable(two));
    pointer.release(QPointF(0.19, 0.74));
    d.wall.cabinets[2].isLeftOut = true;
    d.target = QStringLiteral("DCI-P3(D65)");
    f.window->setDescription(d, QString());
    pointer.press(f.xy(Vertex::Green));
    QVERIFY(!noteAt(QPointF(0.235, 0.67)).contains(QLatin1String("A3")));
    pointer.release(QPointF(0.235, 0.67));
}

void DiagramEditingTest::escapeCancelsADrag()
{
    WindowFixture f;
    view(f)->setFocus();
    const QPointF before = f.xy(Vertex::Green);
    DiagramPointer pointer(view(f));
    pointer.press(before);
    pointer.move(QPointF(0.3, 0.6));
    QVERIFY(f.xy(Vertex::Green) != before);
    QTest::keyClick(view(f), Qt::Key_Escape);
    QCOMPARE(f.xy(Vertex::Green), before);
    pointer.move(QPointF(0.35, 0.5));
    pointer.release(QPointF(0.35, 0.5));
    QCOMPARE(f.xy(Vertex::Green), before);
    QCOMPARE(f.document().history()->count(), 0);
    QVERIFY(!f.document().isDragging());
}

void DiagramEditingTest::undoInADragEndsIt()
{
    WindowFixture f;
    QVERIFY(f.window->session()->setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    const QPointF before = f.xy(Vertex::Green);
    DiagramPointer pointer(view(f));
    pointer.press(before);
    pointer.move(QPointF(0.3, 0.6));
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    // The drag is the last thing done; the step before it stays.
    QCOMPARE(f.xy(Vertex::Green), before);
    QCOMPARE(f.xy(Vertex::Red).x(), 0.66);
    QVERIFY(!view(f)->isEditing());
    pointer.move(QPointF(0.35, 0.5));
    pointer.release(QPointF(0.35, 0.5));
    QCOMPARE(f.xy(Vertex::Green), before);
    QCOMPARE(f.document().history()->count(), 1);
}

void DiagramEditingTest::arrowKeysMove()
{
    WindowFixture f;
    view(f)->setFocus();
    QTest::keyClick(view(f), Qt::Key_B);
    QCOMPARE(f.window->session()->selected(), std::make_optional(Vertex::Blue));
    const QPointF before = f.xy(Vertex::Blue);
    QTest::keyClick(view(f), Qt::Key_Right);
    QVERIFY(f.xy(Vertex::Blue).x() > before.x());
    QCOMPARE(f.xy(Vertex::Blue).y(), before.y());
    QCOMPARE(f.document().history()->count(), 1);
    f.document().history()->undo();
    QCOMPARE(f.xy(Vertex::Blue), before);
}

void DiagramEditingTest::shiftIsSlow()
{
    WindowFixture f;
    view(f)->setFocus();
    QTest::keyClick(view(f), Qt::Key_B);
    const double start = f.xy(Vertex::Blue).x();
    QTest::keyClick(view(f), Qt::Key_Right);
    const double step = f.xy(Vertex::Blue).x() - start;
    QTest::keyClick(view(f), Qt::Key_Right, Qt::ShiftModifier);
    QVERIFY(qAbs(f.xy(Vertex::Blue).x() - start - 1.1 * step) < 1e-9);
}

void DiagramEditingTest::digitsFollowTheZoom()
{
    WindowFixture f;
    f.window->session()->setSnaps(false);
    view(f)->setCentre(f.xy(Vertex::White));
    view(f)->setZoomFactor(500.0);
    const int decimals = view(f)->shownDigits();
    QVERIFY(decimals > 5);
    DiagramPointer pointer(view(f));
    const QPointF wanted = f.xy(Vertex::White) + QPointF(3e-4, -2e-4);
    pointer.drag(f.xy(Vertex::White), wanted);
    const QPointF moved = f.xy(Vertex::White);
    QVERIFY(qAbs(moved.x() - wanted.x()) < 2.0 * pointer.pixel());
    QVERIFY(qAbs(moved.y() - wanted.y()) < 2.0 * pointer.pixel());
    QCOMPARE(QString::number(moved.x(), 'f', decimals).toDouble(), moved.x());
    // The readout tells as much apart.
    pointer.move(moved, Qt::NoButton);
    const QString text = f.window->readout()->text();
    const QString number = text.section(QLatin1Char(' '), 1, 1);
    QCOMPARE(int(number.size() - number.indexOf(QLatin1Char('.')) - 1), decimals);
    QVERIFY2(qAbs(number.toDouble() - moved.x()) < 2.0 * pointer.pixel(), qPrintable(text));
    // Fields with fewer decimals that are only passed change nothing.
    const QList<QAbstractSpinBox *> fields = f.window->panel()->editor()->findChildren<QAbstractSpinBox *>();
    QVERIFY(fields.size() >= 8);
    for (QAbstractSpinBox *field : fields) {
        field->setFocus(Qt::TabFocusReason);
        QTest::keyClick(field, Qt::Key_Return);
    }
    view(f)->setFocus();
    QCOMPARE(f.xy(Vertex::White), moved);
}

void DiagramEditingTest::heldAndLockedAreRefused()
{
    WindowFixture f;
    f.window->session()->setLockPrimaries(true);
    DiagramPointer pointer(view(f));
    const QPointF green = f.xy(Vertex::Green);
    pointer.drag(green, QPointF(0.3, 0.6));
    QCOMPARE(f.xy(Vertex::Green), green);
    QVERIFY(!f.window->statusBar()->currentMessage().isEmpty());
    f.window->session()->setLockPrimaries(false);
    f.window->session()->setHoldWhite(true);
    const QPointF white = f.xy(Vertex::White);
    pointer.drag(white, QPointF(0.33, 0.36));
    QCOMPARE(f.xy(Vertex::White), white);
    // The white stays while a primary is moved.
    pointer.drag(green, QPointF(0.3, 0.6));
    QVERIFY(f.xy(Vertex::Green) != green);
    QVERIFY(qAbs(f.xy(Vertex::White).x() - white.x()) < 1e-9);
}

void DiagramEditingTest::selectionIsShared()
{
    WindowFixture f;
    f.window->panel()->editor()->firstCoordinate(Vertex::Blue)->setFocus();
    QCOMPARE(view(f)->selectedVertex(), std::make_optional(Vertex::Blue));
    view(f)->setFocus();
    QTest::keyClick(view(f), Qt::Key_W);
    QCOMPARE(f.window->session()->selected(), std::make_optional(Vertex::White));
    QCOMPARE(f.window->diagramPage()->lens()->view()->selectedVertex(), std::make_optional(Vertex::White));
}

void DiagramEditingTest::deselectionIsShared()
{
    WindowFixture f;
    DiagramView *lens = f.window->diagramPage()->lens()->view();
    TargetSession *session = f.window->session();
    const auto boldLabels = [&f] {
        QStringList bold;
        for (const QLabel *label : f.window->panel()->editor()->findChildren<QLabel *>()) {
            if (label->font().bold() && label->isVisibleTo(f.window->panel()->editor())) {
                bold.append(label->text());
            }
        }
        return bold;
    };
    session->select(std::nullopt);
    const QStringList always = boldLabels(); // such as the name of the target
    view(f)->setFocus();
    for (DiagramView *from : {static_cast<DiagramView *>(view(f)), lens}) {
        session->select(Vertex::Red);
        QCOMPARE(view(f)->selectedVertex(), std::make_optional(Vertex::Red));
        QCOMPARE(lens->selectedVertex(), std::make_optional(Vertex::Red));
        QCOMPARE(boldLabels().count(), always.count() + 1);
        QTest::keyClick(from, Qt::Key_Escape);
        QVERIFY(!session->selected());
        QCOMPARE(view(f)->selectedVertex(), std::optional<Vertex>());
        QCOMPARE(lens->selectedVertex(), std::optional<Vertex>());
        QCOMPARE(boldLabels(), always);
    }
    // An edit of the document selects nothing by itself.
    QVERIFY(session->setChromaticity(Vertex::Green, QPointF(0.27, 0.68)));
    QCOMPARE(view(f)->selectedVertex(), std::optional<Vertex>());
    session->select(Vertex::Red);
    QCOMPARE(view(f)->selectedVertex(), std::make_optional(Vertex::Red));
}

void DiagramEditingTest::hiddenTargetsKeepTheSelection()
{
    WindowFixture f;
    f.window->session()->select(Vertex::Blue);
    DiagramContent content = view(f)->content();
    for (DiagramGamut &gamut : content.gamuts) {
        gamut.visible = gamut.visible && gamut.role != GamutRole::Target;
    }
    view(f)->setContent(content);
    QCOMPARE(view(f)->selectedVertex(), std::optional<Vertex>());
    QCOMPARE(f.window->session()->selected(), std::make_optional(Vertex::Blue));
    view(f)->refresh();
    QCOMPARE(view(f)->selectedVertex(), std::make_optional(Vertex::Blue));
}

QTEST_MAIN(DiagramEditingTest)
#include "diagrameditingtest.moc"
