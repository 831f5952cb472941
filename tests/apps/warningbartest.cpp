// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "givenfiles.h"

#include "editing/targetsession.h"
#include "panel/warningbar.h"

#include <QAccessible>
#include <QPlainTextEdit>
#include <QToolButton>
#include <QtTest>

using namespace gamutviewer;
using namespace givenfiles;

class WarningBarTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void warningsAreShown();
    void warningsAreDismissed_data();
    void warningsAreDismissed();
};

namespace {

OpenedFiles withWarnings(int count)
{
    OpenedFiles opened;
    for (int i = 1; i <= count; ++i) {
        opened.warnings.append({QStringLiteral("/some/folder/a.bin"),
            {QStringLiteral("is <b>odd</b>"), QStringLiteral("block %1").arg(i), 0, 0}});
    }
    return opened;
}

} // namespace

void WarningBarTest::warningsAreShown()
{
    WindowFixture f;
    WarningBar *bar = f.window->warnings();
    QVERIFY(!bar->isVisible());
    f.window->setOpened(withWarnings(2));
    QVERIFY(bar->isVisible());
    // One a line, as they are written, without the folders.
    QCOMPARE(
        bar->list()->toPlainText(), QStringLiteral("a.bin: block 1: is <b>odd</b>\na.bin: block 2: is <b>odd</b>"));
    QVERIFY(bar->list()->isReadOnly());
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(bar);
    QVERIFY(interface && interface->text(QAccessible::Name).contains(QLatin1String("block 2: is <b>odd</b>")));
    // The window stays as it is, and the rest keeps its room.
    f.window->setOpened(withWarnings(40));
    QCoreApplication::processEvents();
    QCOMPARE(f.window->size(), QSize(1024, 768));
    QVERIFY(bar->height() < 150);
    // Those of what was opened before go with it.
    f.window->setOpened(withWarnings(0));
    QVERIFY(!bar->isVisible());
    QVERIFY(bar->warnings().isEmpty());
}

void WarningBarTest::warningsAreDismissed_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("click") << false;
    QTest::newRow("Esc") << true;
}

void WarningBarTest::warningsAreDismissed()
{
    QFETCH(bool, byKey);
    WindowFixture f;
    WarningBar *bar = f.window->warnings();
    f.window->setOpened(withWarnings(1));
    if (byKey) {
        bar->list()->setFocus();
        QTest::keyClick(bar->list(), Qt::Key_Escape);
    } else {
        QTest::mouseClick(bar->dismissButton(), Qt::LeftButton);
    }
    QVERIFY(!bar->isVisible());
    // Reading on, it stays away; the next ones bring all of them back.
    QVERIFY(f.window->session()->setChromaticity(Vertex::Red, QPointF(0.62, 0.33)));
    QVERIFY(!bar->isVisible());
    bar->addWarnings({QStringLiteral("b.bin: is odd, too")});
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->warnings().size(), 2);
}

QTEST_MAIN(WarningBarTest)
#include "warningbartest.moc"
