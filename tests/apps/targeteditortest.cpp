// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "windowfixture.h"

#include "display/chromaticity.h"
#include "editing/targetsession.h"
#include "panel/groupedtable.h"
#include "panel/sidepanel.h"
#include "panel/targeteditor.h"
#include "panel/verdict.h"

#include <gamutmodel/drive.h>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStatusBar>
#include <QtTest>

#include <cmath>

using namespace gamutviewer;

class TargetEditorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typedValueMovesThePrimary();
    void undoAndRedoFromAField_data();
    void undoAndRedoFromAField();
    void undoWhileATextIsTyped();
    void refusedValueGivesWay();
    void pairIsTypedInEitherOrder_data();
    void pairIsTypedInEitherOrder();
    void waitingCoordinateIsDropped_data();
    void waitingCoordinateIsDropped();
    void pastedPairIsTaken_data();
    void pastedPairIsTaken();
    void anyNumberCanBeTyped_data();
    void anyNumberCanBeTyped();
    void whiteWithoutATemperature_data();
    void whiteWithoutATemperature();
    void otherCoordinateKeepsItsDigits();
    void uvIsEditedAsWell();
    void luminanceIsEdited();
    void whiteByTemperatureAndDuv();
    void stepsAreOneStepOfTheHistory();
    void shiftTakesATenth();
    void resetToAStandard();
    void editedTargetSaysSo();
    void unitOfLuminancesIsShownAndChosen();
    void validityNamesThePrimary();
};

namespace {

//! Goes where the keyboard goes.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void enter(StepBox *box, const QString &text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
}

void type(StepBox *box, const QString &text)
{
    enter(box, text);
    QTest::keyClick(box, Qt::Key_Return);
}

TargetEditor *editor(WindowFixture &f)
{
    return f.window->panel()->editor();
}

} // namespace

void TargetEditorTest::typedValueMovesThePrimary()
{
    WindowFixture f;
    type(editor(f)->firstCoordinate(Vertex::Green), QStringLiteral("0.3"));
    QCOMPARE(f.xy(Vertex::Green).x(), 0.3);
    QCOMPARE(f.xy(Vertex::Green).y(), 0.69);
    QCOMPARE(f.window->session()->selected(), std::make_optional(Vertex::Green));
    QCOMPARE(f.document().history()->count(), 1);
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(f.xy(Vertex::Green).x(), 0.265);
    QCOMPARE(editor(f)->firstCoordinate(Vertex::Green)->value(), 0.265);
}

void TargetEditorTest::undoAndRedoFromAField_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::Key>("redo");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers both = Qt::ControlModifier | Qt::ShiftModifier;
    QTest::newRow("Ctrl+Shift+Z") << "0.3" << Qt::Key_Z << both;
    QTest::newRow("Ctrl+Y") << "0.3" << Qt::Key_Y << Qt::KeyboardModifiers(Qt::ControlModifier);
    // The text is not replaced when the number is complete.
    QTest::newRow("all decimals") << "0.3000" << Qt::Key_Z << both;
}

void TargetEditorTest::undoAndRedoFromAField()
{
    QFETCH(QString, text);
    QFETCH(Qt::Key, redo);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    WindowFixture f;
    StepBox *box = editor(f)->firstCoordinate(Vertex::Green);
    type(box, text);
    QVERIFY(box->hasFocus());
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(f.xy(Vertex::Green).x(), 0.265);
    press(redo, modifiers);
    QCOMPARE(f.xy(Vertex::Green).x(), 0.3);
    QCOMPARE(box->value(), 0.3);
    // There is nothing to do, and the text stays.
    press(redo, modifiers);
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(box->text(), QStringLiteral("0.2650"));
    QVERIFY(box->hasFocus());
}

void TargetEditorTest::undoWhileATextIsTyped()
{
    WindowFixture f;
    StepBox *box = editor(f)->firstCoordinate(Vertex::Green);
    type(box, QStringLiteral("0.3"));
    enter(box, QStringLiteral("0.4"));
    press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(box->text() != QLatin1String("0.4"));
    QCOMPARE(f.xy(Vertex::Green).x(), 0.3);
    press(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(f.xy(Vertex::Green).x(), 0.3);
    press(Qt::Key_Escape);
    QCOMPARE(box->text(), QStringLiteral("0.3000"));
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(f.xy(Vertex::Green).x(), 0.265);
}

void TargetEditorTest::refusedValueGivesWay()
{
    WindowFixture f;
    StepBox *box = editor(f)->firstCoordinate(Vertex::Green);
    type(box, QStringLiteral("0.9"));
    QCOMPARE(f.xy(Vertex::Green).x(), 0.265);
    QVERIFY(!f.window->statusBar()->currentMessage().isEmpty());
    QCOMPARE(f.document().history()->count(), 0);
    // It waits in its field, and says so, until the row is left.
    QCOMPARE(box->value(), 0.9);
    QVERIFY(box->isDoubted());
    QVERIFY(!box->toolTip().isEmpty());
    QCOMPARE(box->accessibleDescription(), box->toolTip());
    press(Qt::Key_Tab);
    QVERIFY(editor(f)->secondCoordinate(Vertex::Green)->hasFocus());
    QCOMPARE(box->value(), 0.9);
    press(Qt::Key_Tab);
    QCOMPARE(box->value(), 0.265);
    QVERIFY(!box->isDoubted());
    QVERIFY(box->toolTip().isEmpty());
    QVERIFY(!f.window->statusBar()->currentMessage().isEmpty());
    QCOMPARE(f.document().history()->count(), 0);
}

void TargetEditorTest::pairIsTypedInEitherOrder_data()
{
    QTest::addColumn<bool>("uv");
    QTest::addColumn<bool>("secondFirst");
    QTest::addColumn<int>("vertex");
    QTest::addColumn<QPointF>("first");
    QTest::addColumn<QPointF>("second");
    QTest::addColumn<int>("steps");
    // 0.708 + 0.32 is more than 1.
    QTest::newRow("x, y") << false << false << int(Vertex::Red) << QPointF(0.680, 0.320) << QPointF(0.708, 0.292) << 1;
    QTest::newRow("y, x") << false << true << int(Vertex::Red) << QPointF(0.708, 0.292) << QPointF(0.640, 0.330) << 1;
    QTest::newRow("u', v'") << true << false << int(Vertex::Red) << QPointF(0.45, 0.52) << QPointF(0.60, 0.507) << 1;
    QTest::newRow("white") << false << false << int(Vertex::White) << QPointF(0.21, 0.15) << QPointF(0.58, 0.37) << 1;
}

void TargetEditorTest::pairIsTypedInEitherOrder()
{
    QFETCH(bool, uv);
    QFETCH(bool, secondFirst);
    QFETCH(int, vertex);
    QFETCH(QPointF, first);
    QFETCH(QPointF, second);
    QFETCH(int, steps);
    WindowFixture f;
    const auto target = Vertex(vertex);
    QVERIFY(f.window->session()->setChromaticity(target, uv ? xyFromUv(first) : first));
    editor(f)->coordinates()->setCurrentIndex(uv ? 1 : 0);
    const int before = f.document().history()->count();
    StepBox *x = editor(f)->firstCoordinate(target);
    StepBox *y = editor(f)->secondCoordinate(target);
    enter(secondFirst ? y : x, QString::number(secondFirst ? second.y() : second.x()));
    press(secondFirst ? Qt::Key_Backtab : Qt::Key_Tab, secondFirst ? Qt::ShiftModifier : Qt::NoModifier);
    QVERIFY((secondFirst ? y : x)->isDoubted());
    QCOMPARE(f.document().history()->count(), before);
    QTest::keyClicks(QApplication::focusWidget(), QString::number(secondFirst ? second.x() : second.y()));
    press(Qt::Key_Return);
    const QPointF now = uv ? uvFromXy(f.xy(target)) : f.xy(target);
    QVERIFY(std::fabs(now.x() - second.x()) < 1e-12 && std::fabs(now.y() - second.y()) < 1e-12);
    QVERIFY(!x->isDoubted() && !y->isDoubted());
    QCOMPARE(f.document().history()->count(), before + steps);
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(f.xy(target), uv ? xyFromUv(first) : first);
}

void TargetEditorTest::waitingCoordinateIsDropped_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Esc") << Qt::Key_Escape << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("undo") << Qt::Key_Z << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("typed back") << Qt::Key_0 << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("focus") << Qt::Key_Backtab << Qt::KeyboardModifiers(Qt::ShiftModifier);
}

void TargetEditorTest::waitingCoordinateIsDropped()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    WindowFixture f;
    type(editor(f)->luminance(Vertex::White), QStringLiteral("800"));
    StepBox *x = editor(f)->firstCoordinate(Vertex::Red);
    type(x, QStringLiteral("0.75"));
    QVERIFY(x->isDoubted());
    if (key == Qt::Key_0) {
        type(x, QStringLiteral("0.68"));
    } else {
        press(key, modifiers);
    }
    QVERIFY(!x->isDoubted());
    QCOMPARE(x->value(), 0.68);
    QCOMPARE(f.xy(Vertex::Red), QPointF(0.68, 0.32));
    // The edit before it is still there.
    QCOMPARE(f.document().target()->getTargets().white.Y, 800.0);
}

void TargetEditorTest::pastedPairIsTaken_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("comma") << "0.708, 0.292";
    QTest::newRow("tab") << "0.708\t0.292\n";
    QTest::newRow("blank") << " 0.708 0.292";
    QTest::newRow("semicolon") << "0.708;0.292";
}

void TargetEditorTest::pastedPairIsTaken()
{
    QFETCH(QString, text);
    WindowFixture f;
    QApplication::clipboard()->setText(text);
    editor(f)->firstCoordinate(Vertex::Red)->setFocus();
    press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(f.xy(Vertex::Red), QPointF(0.708, 0.292));
    QCOMPARE(f.document().history()->count(), 1);
    // One number is text as ever.
    QApplication::clipboard()->setText(QStringLiteral("0.64"));
    editor(f)->firstCoordinate(Vertex::Red)->selectAll();
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_Return);
    QCOMPARE(f.xy(Vertex::Red).x(), 0.64);
}

void TargetEditorTest::anyNumberCanBeTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("luminance");
    QTest::newRow("exponent") << "1e3" << 1000.0;
    QTest::newRow("fraction and exponent") << "1.5E+2" << 150.0;
    QTest::newRow("many digits") << "123.456789" << 123.46;
    QTest::newRow("beyond the range") << "5000000" << 1e6;
    QTest::newRow("beyond the numbers") << "1e999" << 1e6;
    QTest::newRow("begun") << "5e" << 1000.0;
}

void TargetEditorTest::anyNumberCanBeTyped()
{
    QFETCH(QString, text);
    QFETCH(double, luminance);
    WindowFixture f;
    type(editor(f)->luminance(Vertex::White), QStringLiteral("1000"));
    enter(editor(f)->luminance(Vertex::White), text);
    QCOMPARE(editor(f)->luminance(Vertex::White)->text(), text);
    press(Qt::Key_Return);
    QCOMPARE(editor(f)->luminance(Vertex::White)->value(), luminance);
    QCOMPARE(f.document().target()->getTargets().white.Y, luminance);
}

void TargetEditorTest::whiteWithoutATemperature_data()
{
    QTest::addColumn<QPointF>("white");
    QTest::newRow("too far above") << QPointF(0.22, 0.329);
    QTest::newRow("beyond the end of the locus") << QPointF(0.66, 0.325);
}

void TargetEditorTest::whiteWithoutATemperature()
{
    QFETCH(QPointF, white);
    WindowFixture f;
    const auto setWhite = [&] { QVERIFY(f.window->session()->setChromaticity(Vertex::White, white)); };
    setWhite();
    const QString none = QString::fromUtf8("–");
    QCOMPARE(editor(f)->temperature()->text(), none);
    QCOMPARE(editor(f)->duv()->text(), none);
    // Typed or stepped to, it is repaired.
    type(editor(f)->temperature(), QStringLiteral("6500"));
    QCOMPARE(editor(f)->temperature()->value(), 6500.0);
    QCOMPARE(editor(f)->duv()->text(), QStringLiteral("0.0000"));
    setWhite();
    type(editor(f)->duv(), QStringLiteral("0.003"));
    QCOMPARE(editor(f)->temperature()->value(), 6500.0);
    QCOMPARE(editor(f)->duv()->value(), 0.003);
    setWhite();
    editor(f)->temperature()->setFocus();
    press(Qt::Key_Down);
    QCOMPARE(editor(f)->temperature()->value(), 6500.0);
    press(Qt::Key_Up);
    QCOMPARE(editor(f)->temperature()->value(), 6510.0);
    // With the mouse in the field and no text selected, too
    setWhite();
    QTest::mouseClick(editor(f)->temperature()->findChild<QLineEdit *>(), Qt::LeftButton);
    QTest::keyClicks(editor(f)->temperature(), QStringLiteral("7000"));
    press(Qt::Key_Return);
    QCOMPARE(editor(f)->temperature()->value(), 7000.0);
}

void TargetEditorTest::otherCoordinateKeepsItsDigits()
{
    WindowFixture f;
    f.window->session()->setChromaticity(Vertex::Red, QPointF(0.6512345678, 0.3298765432));
    type(editor(f)->secondCoordinate(Vertex::Red), QStringLiteral("0.32"));
    QCOMPARE(f.xy(Vertex::Red).x(), 0.6512345678);
    QCOMPARE(f.xy(Vertex::Red).y(), 0.32);
}

void TargetEditorTest::uvIsEditedAsWell()
{
    WindowFixture f;
    editor(f)->coordinates()->setCurrentIndex(1);
    const QPointF before = uvFromXy(f.xy(Vertex::Red));
    QVERIFY(std::fabs(editor(f)->firstCoordinate(Vertex::Red)->value() - before.x()) < 5e-5);
    type(editor(f)->firstCoordinate(Vertex::Red), QStringLiteral("0.48"));
    const QPointF after = uvFromXy(f.xy(Vertex::Red));
    QVERIFY(std::fabs(after.x() - 0.48) < 1e-12);
    QVERIFY(std::fabs(after.y() - before.y()) < 1e-12);
}

void TargetEditorTest::luminanceIsEdited()
{
    WindowFixture f;
    type(editor(f)->luminance(Vertex::White), QStringLiteral("800"));
    QCOMPARE(f.document().target()->getTargets().white.Y, 800.0);
    const double before = f.document().target()->getTargets().red.Y;
    QVERIFY(before > 100);
    type(editor(f)->luminance(Vertex::Red), QStringLiteral("100"));
    QCOMPARE(f.document().target()->getTargets().red.Y, 100.0);
    QVERIFY(std::fabs(f.document().target()->getTargets().white.Y - (800 - before + 100)) < 1e-6);
}

void TargetEditorTest::whiteByTemperatureAndDuv()
{
    WindowFixture f;
    type(editor(f)->temperature(), QStringLiteral("5000"));
    QCOMPARE(editor(f)->temperature()->value(), 5000.0);
    QVERIFY(std::fabs(editor(f)->duv()->value() - 0.0032) < 1e-9);
    type(editor(f)->duv(), QStringLiteral("0"));
    QCOMPARE(editor(f)->temperature()->value(), 5000.0);
    QVERIFY(std::fabs(f.xy(Vertex::White).x() - 0.3451) < 1e-4);
    QVERIFY(std::fabs(f.xy(Vertex::White).y() - 0.3516) < 1e-4);
}

void TargetEditorTest::stepsAreOneStepOfTheHistory()
{
    WindowFixture f;
    StepBox *box = editor(f)->firstCoordinate(Vertex::Red);
    box->setFocus();
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(box, Qt::Key_Down);
    }
    QVERIFY(std::fabs(f.xy(Vertex::Red).x() - 0.677) < 1e-9);
    QCOMPARE(f.document().history()->count(), 1);
    QTest::keyClick(box, Qt::Key_Return);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(f.document().history()->count(), 2);
}

void TargetEditorTest::shiftTakesATenth()
{
    WindowFixture f;
    StepBox *box = editor(f)->firstCoordinate(Vertex::Red);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(std::fabs(f.xy(Vertex::Red).x() - 0.6799) < 1e-9);
    QTest::keyClick(box, Qt::Key_Down, Qt::ControlModifier);
    QVERIFY(std::fabs(f.xy(Vertex::Red).x() - 0.6699) < 1e-9);
}

void TargetEditorTest::resetToAStandard()
{
    WindowFixture f;
    type(editor(f)->firstCoordinate(Vertex::Green), QStringLiteral("0.3"));
    type(editor(f)->luminance(Vertex::White), QStringLiteral("800"));
    QMenu *menu = editor(f)->resetMenu();
    QMetaObject::invokeMethod(menu, "aboutToShow");
    QAction *rec2020 = nullptr;
    for (QAction *action : menu->actions()) {
        if (action->text() == QLatin1String("Rec.2020")) {
            rec2020 = action;
        }
    }
    QVERIFY(rec2020);
    rec2020->trigger();
    QCOMPARE(f.document().description().target, QStringLiteral("Rec.2020"));
    QCOMPARE(f.xy(Vertex::Green).x(), 0.17);
    // At the luminance that the target had
    QCOMPARE(f.document().target()->getTargets().white.Y, 800.0);
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(f.xy(Vertex::Green).x(), 0.3);
}

void TargetEditorTest::editedTargetSaysSo()
{
    WindowFixture f;
    const auto says = [&] {
        for (const QLabel *label : editor(f)->findChildren<QLabel *>()) {
            if (label->text() == QLatin1String("DCI-P3(D65) (edited)")) {
                return true;
            }
        }
        return false;
    };
    QVERIFY(!says());
    type(editor(f)->firstCoordinate(Vertex::Green), QStringLiteral("0.3"));
    QVERIFY(says());
}

void TargetEditorTest::unitOfLuminancesIsShownAndChosen()
{
    WindowFixture f;
    QComboBox *unit = editor(f)->luminanceUnit();
    QVERIFY(unit->currentText().contains(QLatin1String("relative")));
    QVERIFY(unit->accessibleName().contains(QLatin1String("relative")));
    const auto said = [&f] {
        const GroupedTable *values = f.window->panel()->values();
        return values->item(0, 0)->text();
    };
    QVERIFY(said().contains(QLatin1String("relative")));
    unit->setFocus();
    QTest::keyClick(unit, Qt::Key_Up);
    QVERIFY(unit->currentText().contains(QString::fromUtf8("cd/m²")));
    QVERIFY(f.document().target()->unit == LuminanceUnit::CandelaPerSquareMetre);
    // The sample has been measured dimmer than its original.
    const auto largest = [&f](const DisplayGamut &gamut) {
        const Model::Target white = f.document().target()->getTargets().white;
        return Model::DisplayDrive(gamut.getTargets()).largestLuminance({white.x, white.y})->luminance;
    };
    const double measured = largest(*f.document().measured());
    QVERIFY(measured < largest(*f.document().original()) - 1.0);
    QVERIFY(qAbs(editor(f)->luminance(Vertex::White)->value() - measured) < 0.01);
    QVERIFY(said().contains(QString::fromUtf8("cd/m²")));
    f.document().history()->undo();
    QVERIFY(unit->currentText().contains(QLatin1String("relative")));
    f.window->session()->setLuminanceUnit(LuminanceUnit::NotKnown);
    QVERIFY(said().contains(QLatin1String("unit not known")));
    QVERIFY(f.window->panel()->verdict()->text().contains(QLatin1String("unit that is not known")));
}

void TargetEditorTest::validityNamesThePrimary()
{
    WindowFixture f;
    f.forgetMeasuredGamut();
    f.window->session()->reset(QStringLiteral("LED wall"));
    const Verdict *verdict = f.window->panel()->verdict();
    QVERIFY(verdict->text().startsWith(QString::fromUtf8("✓")));
    type(editor(f)->firstCoordinate(Vertex::Green), QStringLiteral("0.15"));
    QVERIFY(verdict->text().startsWith(QString::fromUtf8("✗")));
    const QStringList outside = verdict->text().split(QLatin1Char('\n')).filter(QLatin1String("outside"));
    QCOMPARE(outside.size(), 1);
    QVERIFY(outside.first().contains(QLatin1String("Green")));
}

QTEST_MAIN(TargetEditorTest)
#include "targeteditortest.moc"
