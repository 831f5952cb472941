// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "windowfixture.h"

#include "display/valuetexts.h"
#include "editing/gamutparts.h"
#include "editing/targetsession.h"
#include "panel/copytable.h"
#include "panel/groupedtable.h"
#include "panel/sidepanel.h"
#include "panel/targeteditor.h"
#include "window/comparepage.h"
#include "window/lens.h"

#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTableWidget>
#include <QtTest>

using namespace gamutviewer;

class TablesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tablesAreCopiedWhole();
    void zeroHasNoSign();
    void selectedCellsAreCopied();
    void dominantWavelengthsAreShown();
    void undefinedTemperatureIsTold();
    void comparePageTellsWhatIsLost();
    void largeTablesAreFilledWhenTheyAreShown();
    void groupsChangeInPlace();
    void cabinetsThatAreNotThereAreNotLeftOut();
};

void TablesTest::tablesAreCopiedWhole()
{
    WindowFixture f;
    f.show(f.window->comparePage());
    for (CopyTable *table : {f.window->comparePage()->table(), static_cast<CopyTable *>(f.window->panel()->values()),
             static_cast<CopyTable *>(f.window->panel()->coverage())}) {
        QApplication::clipboard()->clear();
        table->setFocus();
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), table->rowCount() + 1);
        const int rowHeaders = table == f.window->comparePage()->table();
        for (const QString &line : lines) {
            QCOMPARE(line.count(QLatin1Char('\t')), table->columnCount() - 1 + rowHeaders);
        }
        QVERIFY(lines.at(0).contains(table->horizontalHeaderItem(table->columnCount() - 1)->text()));
        QVERIFY(lines.last().endsWith(table->item(table->rowCount() - 1, table->columnCount() - 1)->text()));
        // And by the menu.
        QApplication::clipboard()->clear();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), table->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(table, &event);
        auto *menu = table->findChild<QMenu *>();
        QVERIFY(menu);
        menu->actions().first()->trigger();
        QCOMPARE(QApplication::clipboard()->text(), table->text());
        delete menu;
    }
}

void TablesTest::zeroHasNoSign()
{
    QCOMPARE(fixedText(-0.00004, 4), QStringLiteral("0.0000"));
    QCOMPARE(fixedText(-0.4, 0), QStringLiteral("0"));
    QCOMPARE(fixedText(-0.00006, 4), QStringLiteral("-0.0001"));
    WindowFixture f;
    QVERIFY(f.window->session()->setWhiteTemperature(6500, -0.00001));
    QCOMPARE(f.window->panel()->editor()->duv()->text(), QStringLiteral("0.0000"));
    const GroupedTable *values = f.window->panel()->values();
    for (int row = 0; row < values->rowCount(); ++row) {
        for (int column = 0; column < values->columnCount(); ++column) {
            QVERIFY(!values->item(row, column) || values->item(row, column)->text() != QLatin1String("-0.0000"));
        }
    }
}

void TablesTest::selectedCellsAreCopied()
{
    WindowFixture f;
    f.show(f.window->comparePage());
    CopyTable *table = f.window->comparePage()->table();
    QVERIFY(table->columnCount() > 1);
    table->selectColumn(1);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), table->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(table, &event);
    auto *menu = table->findChild<QMenu *>();
    QVERIFY(menu);
    menu->actions().at(1)->trigger();
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
    QCOMPARE(lines.first(), QLatin1Char('\t') + table->horizontalHeaderItem(1)->text());
    QCOMPARE(lines.at(1), table->verticalHeaderItem(0)->text() + QLatin1Char('\t') + table->item(0, 1)->text());
    menu->close();
}

void TablesTest::dominantWavelengthsAreShown()
{
    WindowFixture f;
    const GroupedTable *hues = f.window->panel()->hues();
    // The target comes first: its title with the reference white, red, green, blue and white.
    QVERIFY(hues->item(0, 0)->text().contains(QLatin1String("0.3127, 0.3290")));
    const auto hue = Model::dominantWavelength({0.265, 0.69}, {0.3127, 0.3290});
    QCOMPARE(hues->item(2, 1)->text(), QString::number(hue->wavelength, 'f', 1));
    QCOMPARE(hues->item(2, 2)->text(), QString::number(hue->purity, 'f', 3));
    QCOMPARE(hues->item(4, 1)->text(), QString::fromUtf8("–"));
    Q_EMIT f.window->diagramPage()->view()->hovered(QPointF(0.265, 0.69));
    QVERIFY(f.window->readout()->text().contains(hues->item(2, 1)->text()));
    // The white of the default target is not one that anybody has chosen.
    QVERIFY(f.window->closeDocument());
    Q_EMIT f.window->diagramPage()->view()->hovered(QPointF(0.265, 0.69));
    QVERIFY(f.window->readout()->text().startsWith(QLatin1String("x 0.2650")));
    QVERIFY(!f.window->readout()->text().contains(QStringLiteral("\u03BB")));
}

void TablesTest::undefinedTemperatureIsTold()
{
    WindowFixture f;
    QVERIFY(f.window->session()->setChromaticity(Vertex::White, QPointF(0.22, 0.329)));
    const QString none = QString::fromUtf8("–");
    // Everywhere in the same way: the lens, the table of the panel and that of the comparison.
    QVERIFY(f.window->diagramPage()->lens()->view()->accessibleDescription().contains(
        QLatin1String("no colour temperature")));
    f.show(f.window->comparePage());
    const QTableWidget *table = f.window->comparePage()->table();
    const int target = table->columnCount() - 1;
    int undefined = 0;
    for (int row = 0; row < table->rowCount(); ++row) {
        undefined += table->item(row, target)->text() == none;
    }
    QCOMPARE(undefined, 2);
    const GroupedTable *values = f.window->panel()->values();
    const int last = values->columnCount() - 1;
    for (int row = 0; row < values->rowCount(); ++row) {
        const QTableWidgetItem *temperature = values->item(row, last - 1);
        const QTableWidgetItem *duv = values->item(row, last);
        if (temperature && duv) {
            QCOMPARE(temperature->text() == none, duv->text() == none);
        }
    }
    // The target comes first: its title, red, green, blue and white.
    QCOMPARE(values->item(4, last)->text(), none);
}

void TablesTest::comparePageTellsWhatIsLost()
{
    WindowFixture f;
    f.show(f.window->comparePage());
    QCOMPARE(f.window->comparePage()->table()->columnCount(), 3);
    f.window->session()->reset(QStringLiteral("LED wall"));
    QVERIFY(f.window->comparePage()->loss()->text().contains(QLatin1String(" 0.0 %")));
    // Both lie inside of Rec.2020: of it Rec.709 gives up 1 - 0.1120 / 0.2119 of the area in x, y.
    const Model::Targets rec2020 = Model::rec2020().getTargets();
    QVERIFY(qAbs(lostShare(rec2020, Model::rec709().getTargets(), Model::Diagram::Cie1931) - 0.4711) < 1e-3);
    QVERIFY(qAbs(lostShare(Model::rec709().getTargets(), rec2020, Model::Diagram::Cie1976)) < 1e-9);
    QCOMPARE(lostShare(Model::Targets(), rec2020, Model::Diagram::Cie1931), 0.0);
}

void TablesTest::largeTablesAreFilledWhenTheyAreShown()
{
    constexpr int many = 600;
    WindowFixture f;
    DisplayDescription description = f.document().description();
    const int few = int(description.allStandards().size());
    for (int i = 0; i < many; ++i) {
        const QString name = QStringLiteral("standard %1").arg(i);
        description.gamuts.emplace_back(Model::ColorGamut(name.toStdString(), Model::rec709().getTargets()));
        description.standards.append(name);
    }
    const GroupedTable *table = f.window->panel()->coverage();
    const int before = table->rowCount();
    f.window->setDescription(description, QString());
    auto *tabs = f.window->panel()->findChild<QTabWidget *>();
    QVERIFY(tabs && tabs->currentWidget() != table);
    QCOMPARE(table->rowCount(), before);
    tabs->setCurrentWidget(f.window->panel()->coverage());
    const int groups = (before + few) / (few + 1); // each with a title; the last may be a title alone
    QVERIFY(table->rowCount() >= before + many * (groups - 1));
    QCOMPARE(table->item(1, 0)->text(), f.document().description().standards.first());
    // From then on it follows.
    const QString former = table->text();
    f.change();
    QVERIFY(table->text() != former);
}

// A table that has shown something else looks like a new one.
void TablesTest::groupsChangeInPlace()
{
    const QStringList header{QStringLiteral("a"), QStringLiteral("b")};
    const QStringList narrow{QStringLiteral("1"), QStringLiteral("2")};
    const QStringList wide{QStringLiteral("a long name"), QStringLiteral("100.0 %")};
    const QString title = QStringLiteral("a title that is wider than the columns");
    const QVector<QVector<GroupedTable::Group>> steps{{{title, {narrow, wide}}, {title, {narrow}}},
        {{title, {narrow, narrow}}, {title, {narrow}}}, {{title, {wide}}, {title, {wide, narrow}}},
        {{title, {}}, {title, {wide, narrow, narrow}}}, {{title, {narrow}}}, {}};
    GroupedTable table(header);
    for (const bool isLarge : {false, true}) {
        QFont font = table.font();
        font.setPointSizeF(font.pointSizeF() * (isLarge ? 2.0 : 1.0));
        table.setFont(font);
        for (const QVector<GroupedTable::Group> &step : steps) {
            table.setGroups(step);
            GroupedTable fresh(header);
            fresh.setFont(font);
            fresh.setGroups(step);
            QCOMPARE(table.text(), fresh.text());
            for (int column = 0; column < table.columnCount(); ++column) {
                QCOMPARE(table.columnWidth(column), fresh.columnWidth(column));
            }
            for (int row = 0; row < table.rowCount(); ++row) {
                const bool isTitle = table.item(row, 0)->text() == title;
                QCOMPARE(table.columnSpan(row, 0), isTitle ? 2 : 1);
                QCOMPARE(table.item(row, 0)->font().bold(), isTitle);
                QCOMPARE(table.item(row, 1) == nullptr, isTitle);
            }
        }
    }
}

void TablesTest::cabinetsThatAreNotThereAreNotLeftOut()
{
    WindowFixture f;
    f.window->session()->setLeftOut({0, 3, std::size_t(-1)}, true);
    QVERIFY(!f.document().isModified());
}

QTEST_MAIN(TablesTest)
#include "tablestest.moc"
