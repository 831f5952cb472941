// SPDX-License-Identifier: MIT
#include "windowfixture.h"

#include <gamutviewer/chromaticity.h>
#include <gamutviewer/sidepanel.h>
#include <gamutviewer/targeteditor.h>
#include <gamutviewer/targetsession.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QtTest>

#include <cmath>

using namespace gamutviewer;

class TargetEditorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typedValueMovesThePrimary();
    void refusedValueGivesWay();
    void otherCoordinateKeepsItsDigits();
    void uvIsEditedAsWell();
    void luminanceIsEdited();
    void whiteByTemperatureAndDuv();
    void stepsAreOneStepOfTheHistory();
    void shiftTakesATenth();
    void resetToAStandard();
    void editedTargetSaysSo();
    void validityNamesThePrimary();
};

namespace {

void type(StepBox *box, const QString &text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
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
    QCOMPARE(int(f.window->session()->selected()), int(Vertex::Green));
    QCOMPARE(f.document().history()->count(), 1);
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(f.xy(Vertex::Green).x(), 0.265);
    QCOMPARE(editor(f)->firstCoordinate(Vertex::Green)->value(), 0.265);
}

void TargetEditorTest::refusedValueGivesWay()
{
    WindowFixture f;
    type(editor(f)->firstCoordinate(Vertex::Green), QStringLiteral("0.9"));
    QCOMPARE(f.xy(Vertex::Green).x(), 0.265);
    QCOMPARE(editor(f)->firstCoordinate(Vertex::Green)->value(), 0.265);
    QVERIFY(!f.window->statusBar()->currentMessage().isEmpty());
    QCOMPARE(f.document().history()->count(), 0);
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
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
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

void TargetEditorTest::validityNamesThePrimary()
{
    WindowFixture f;
    f.window->session()->reset(QStringLiteral("LED wall"));
    QLabel *validity = f.window->panel()->validity();
    QVERIFY(validity->text().startsWith(QString::fromUtf8("✓")));
    type(editor(f)->firstCoordinate(Vertex::Green), QStringLiteral("0.15"));
    QVERIFY(validity->text().startsWith(QString::fromUtf8("✗")));
    QVERIFY(validity->text().contains(QLatin1String("green")));
    QVERIFY(!validity->text().contains(QLatin1String("red")));
}

QTEST_MAIN(TargetEditorTest)
#include "targeteditortest.moc"
