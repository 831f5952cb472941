// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "windowfixture.h"

#include "window/gamutsdialog.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

using namespace gamutviewer;

class WindowEndTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void historyEndsInSilence();
    void listOfGamutsEndsBeforeTheDocument();
    void menuWithTheFocusEndsAfterItsEditor();
};

//! A window that goes with changes in its history does not follow the history to its end.
void WindowEndTest::historyEndsInSilence()
{
    WindowFixture f;
    DisplayDescription named = f.document().description();
    named.name = QStringLiteral("another name");
    f.document().change(named, QStringLiteral("name"));
    const auto actions = f.window->findChildren<QAction *>();
    const auto undo = std::find_if(actions.begin(), actions.end(),
        [](const QAction *action) { return action->shortcuts().contains(QKeySequence(QKeySequence::Undo)); });
    QVERIFY(undo != actions.end());
    QVERIFY((*undo)->isEnabled());
    int changes = 0;
    QObject::connect(*undo, &QAction::changed, [&changes] { ++changes; });
    bool modifiedTold = false;
    QObject::connect(&f.document(), &Document::modifiedChanged, [&modifiedTold] { modifiedTold = true; });
    f.window.reset();
    QCOMPARE(changes, 0);
    QVERIFY(!modifiedTold);
}

void WindowEndTest::listOfGamutsEndsBeforeTheDocument()
{
    WindowFixture f;
    QTest::keyClick(f.window.get(), Qt::Key_G, Qt::ControlModifier);
    auto *dialog = f.window->findChild<GamutsDialog *>();
    QVERIFY(dialog);
    QStringList order;
    QObject::connect(dialog, &QObject::destroyed, [&order] { order.append(QStringLiteral("dialog")); });
    QObject::connect(&f.document(), &QObject::destroyed, [&order] { order.append(QStringLiteral("document")); });
    f.window.reset();
    QCOMPARE(order.value(0), QStringLiteral("dialog"));
}

//! The focus leaves the menu when most of the editor that it belongs to has gone, which must not hear of it any more.
void WindowEndTest::menuWithTheFocusEndsAfterItsEditor()
{
    WindowFixture f;
    QMenu *menu = nullptr;
    for (const auto *button : f.window->findChildren<QToolButton *>()) {
        menu = button->text() == QLatin1String("&Reset to") ? button->menu() : menu;
    }
    QVERIFY(menu);
    menu->popup(f.window->mapToGlobal(QPoint(100, 100)));
    menu->setFocus();
    QCOMPARE(QApplication::focusWidget(), menu);
    bool hasLeft = false;
    QObject::connect(
        qApp, &QApplication::focusChanged, menu, [&](const QWidget *former) { hasLeft |= former == menu; });
    f.window.reset();
    QVERIFY(hasLeft);
}

QTEST_MAIN(WindowEndTest)
#include "windowendtest.moc"
