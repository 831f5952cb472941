// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramviewfixture.h"

#include <QAccessible>
#include <QApplication>

#include <cmath>

using namespace diagramtests;

namespace {

QVector<QPair<QAccessible::Event, QString>> heard;

void listen(QAccessibleEvent *event)
{
    QAccessibleInterface *about = event->accessibleInterface();
    heard.append({event->type(), about ? about->text(QAccessible::Name) : QString()});
}

} // namespace

class DiagramViewAccessibilityTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void gamutsAndHandlesAreAccessible();
    void handlesAreMovedByAccessibleValues();
    void handlesAreMovedByAccessibleActions();
    void accessiblePartsOfDisabledViewsDoNothing();
    void focusIsAccessible();
    void movesByKeyboardAreAnnounced();
    void accessiblePartsFollowTheView();
};

void DiagramViewAccessibilityTest::gamutsAndHandlesAreAccessible()
{
    View view;
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&view);
    QVERIFY(accessible);
    QVERIFY(accessible->text(QAccessible::Name).contains(QStringLiteral("CIE 1931")));
    QCOMPARE(accessible->childCount(), 3 + 4);
    QStringList names;
    for (int i = 0; i < accessible->childCount(); ++i) {
        QAccessibleInterface *child = accessible->child(i);
        QVERIFY(child && child->isValid());
        QCOMPARE(child->parent(), accessible);
        QCOMPARE(accessible->indexOfChild(child), i);
        QCOMPARE(accessible->child(i), child);
        QVERIFY(!child->rect().isEmpty());
        QVERIFY(!child->state().invisible);
        names.append(child->text(QAccessible::Name));
        QVERIFY(!child->text(QAccessible::Description).isEmpty());
    }
    QVERIFY(names.contains(QStringLiteral("LED wall, Original")));
    QVERIFY(names.contains(QStringLiteral("Rec.709, Target")));
    QVERIFY(names.contains(QStringLiteral("Target: green primary")));
    QVERIFY(names.contains(QStringLiteral("Target: white point")));
    QAccessibleInterface *green = accessible->child(names.indexOf(QStringLiteral("Target: green primary")));
    QCOMPARE(green->text(QAccessible::Value), QStringLiteral("x 0.3000  y 0.6000"));
    QCOMPARE(green->role(), QAccessible::Slider);
    QVERIFY(green->state().focusable && green->state().movable);
    const QPoint place = view.mapToGlobal(view.at(GamutVertex::Green).toPoint());
    QCOMPARE(accessible->childAt(place.x(), place.y()), green);
    view.setAccessibleName(QStringLiteral("Wall"));
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Wall"));
}

void DiagramViewAccessibilityTest::handlesAreMovedByAccessibleValues()
{
    View view;
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&view);
    QAccessibleInterface *green = accessible->child(accessible->childCount() - 3);
    QCOMPARE(green->childCount(), 2);
    QAccessibleInterface *x = green->child(0);
    QAccessibleInterface *y = green->child(1);
    QCOMPARE(x->parent(), green);
    QCOMPARE(x->text(QAccessible::Name), QStringLiteral("Target: green primary, x"));
    QVERIFY(std::fabs(y->valueInterface()->currentValue().toDouble() - 0.6) < 1e-12);
    y->valueInterface()->setCurrentValue(0.62);
    QVERIFY(length(view.xy(GamutVertex::Green) - QPointF(0.3, 0.62)) < 1e-12);
    x->valueInterface()->setCurrentValue(0.28);
    QVERIFY(length(view.xy(GamutVertex::Green) - QPointF(0.28, 0.62)) < 1e-12);
    QCOMPARE(edited.count(), 2);
    QCOMPARE(x->text(QAccessible::Value), QStringLiteral("0.2800"));
    QVERIFY(x->valueInterface()->minimumStepSize().toDouble() > 0.0);
    // What is no number moves nothing.
    x->valueInterface()->setCurrentValue(QStringLiteral("far"));
    QCOMPARE(edited.count(), 2);
}

void DiagramViewAccessibilityTest::handlesAreMovedByAccessibleActions()
{
    View view;
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&view);
    QAccessibleInterface *blue = accessible->child(accessible->childCount() - 2);
    QAccessibleActionInterface *actions = blue->actionInterface();
    QVERIFY(actions);
    const QPointF before = view.xy(GamutVertex::Blue);
    actions->doAction(QAccessibleActionInterface::increaseAction());
    QVERIFY(length(view.xy(GamutVertex::Blue) - before - QPointF(0.001, 0)) < 1e-9);
    actions->doAction(QAccessibleActionInterface::decreaseAction());
    QVERIFY(length(view.xy(GamutVertex::Blue) - before) < 1e-9);
    QVERIFY(actions->actionNames().contains(QStringLiteral("MoveUp")));
    actions->doAction(QStringLiteral("MoveUp"));
    QVERIFY(length(view.xy(GamutVertex::Blue) - before - QPointF(0, 0.001)) < 1e-9);
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(*view.selectedVertex(), GamutVertex::Blue);
}

void DiagramViewAccessibilityTest::accessiblePartsOfDisabledViewsDoNothing()
{
    View view;
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&view);
    QAccessibleInterface *red = nullptr;
    for (int i = 0; i < accessible->childCount() && !red; ++i) {
        if (accessible->child(i)->valueInterface()) {
            red = accessible->child(i);
        }
    }
    QVERIFY(red);
    view.setSelectedVertex(GamutVertex::Red);
    QApplication::setActiveWindow(&view);
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.setFocus();
    QVERIFY(red->state().focused);
    QVERIFY(!red->child(0)->state().focused);
    QVERIFY(!red->child(1)->state().focused);
    const QPointF xy = view.xy(GamutVertex::Red);
    for (const bool isDisabled : {true, false}) {
        view.setEnabled(!isDisabled);
        view.setVisible(isDisabled);
        red->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
        red->valueInterface()->setCurrentValue(0.6);
        QCOMPARE(view.xy(GamutVertex::Red), xy);
    }
    view.show();
    red->valueInterface()->setCurrentValue(0.6);
    QCOMPARE(view.xy(GamutVertex::Red).x(), 0.6);
}

void DiagramViewAccessibilityTest::focusIsAccessible()
{
    View view;
    view.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.setFocus();
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&view);
    heard.clear();
    sendAccessibilityEvent = listen;
    view.setSelectedVertex(GamutVertex::Red);
    sendAccessibilityEvent = QAccessible::updateAccessibility;
    QVERIFY(heard.contains({QAccessible::Focus, QStringLiteral("Target: red primary")}));
    QAccessibleInterface *red = accessible->child(accessible->childCount() - 4);
    QCOMPARE(accessible->focusChild(), red);
    QVERIFY(red->state().focused && red->state().selected);
    QVERIFY(!accessible->child(accessible->childCount() - 3)->state().focused);
    // It is seen, too: the picture with the focus on another handle is another.
    const QImage before = view.grab().toImage();
    view.setSelectedVertex(GamutVertex::Green);
    QVERIFY(view.grab().toImage() != before);
}

void DiagramViewAccessibilityTest::movesByKeyboardAreAnnounced()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    heard.clear();
    sendAccessibilityEvent = listen;
    QTest::keyClick(&view, Qt::Key_Right);
    sendAccessibilityEvent = QAccessible::updateAccessibility;
    QVERIFY(heard.contains({QAccessible::ValueChanged, QStringLiteral("Target: green primary")}));
    QVERIFY(heard.contains({QAccessible::ValueChanged, QStringLiteral("Target: green primary, x")}));
}

void DiagramViewAccessibilityTest::accessiblePartsFollowTheView()
{
    auto view = std::make_unique<View>();
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(view.get());
    QAccessibleInterface *handle = accessible->child(accessible->childCount() - 1);
    view->setReadOnly(true);
    QCOMPARE(accessible->childCount(), 3);
    QVERIFY(!handle->isValid());
    view->setLayerShown(DiagramLayer::Standards, false);
    QCOMPARE(accessible->childCount(), 2);
    view->setGamuts({});
    QCOMPARE(accessible->childCount(), 0);
    QVERIFY(!accessible->child(0));
    view.reset(); // and takes its parts along
}

QTEST_MAIN(DiagramViewAccessibilityTest)
#include "diagramviewaccessibilitytest.moc"
