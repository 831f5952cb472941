// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "wallfixture.h"

#include "panel/cabinetmodel.h"
#include "panel/cabinettable.h"
#include "panel/verdict.h"
#include "panel/wallmap.h"
#include "panel/wallverdict.h"
#include "window/wallpage.h"

#include <QClipboard>
#include <QHeaderView>
#include <QPushButton>
#include <QToolButton>

using namespace gamutviewer;
using namespace wallfixture;

class CabinetTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tableIsSorted();
    void headersTakeTwoLines();
    void longNamesAreSeen();
    void selectedRowStaysInSight();
    void allColumnsAreSeen();
    void tableIsCopiedWhole();
};

void CabinetTableTest::tableIsSorted()
{
    DisplayDescription d = description(1, 12);
    dim(d.wall.cabinets[4], 0.8);
    WallFixture f(d);
    CabinetTable *table = f.page()->table();
    const auto name = [table](int row) { return table->model()->index(row, CabinetModel::Name).data().toString(); };
    QCOMPARE(name(0), QStringLiteral("✗ A5"));
    table->sortByColumn(CabinetModel::Name, Qt::DescendingOrder);
    QCOMPARE(name(0), QStringLiteral("✓ A12"));
    QCOMPARE(name(2), QStringLiteral("✓ A10"));
    QCOMPARE(name(3), QStringLiteral("✓ A9"));
    table->sortByColumn(CabinetModel::Headroom, Qt::AscendingOrder);
    QCOMPARE(name(0), QStringLiteral("✗ A5"));
    QCOMPARE(name(1), QStringLiteral("✓ A1"));
    // The selection stays with its cabinet.
    f.click(table, table->model()->index(1, 0));
    table->sortByColumn(CabinetModel::Headroom, Qt::DescendingOrder);
    QCOMPARE(f.selectedName(), QStringLiteral("A1"));
    QCOMPARE(name(table->currentIndex().row()), QStringLiteral("✓ A1"));
}

void CabinetTableTest::headersTakeTwoLines()
{
    WallFixture f(oneDim());
    CabinetTable *table = f.page()->table();
    QHeaderView *header = table->horizontalHeader();
    const QFontMetrics metrics(header->font());
    const auto width = [&](int column) { return header->sectionSize(column); };
    const auto isWhole = [&](int column) {
        const QString title = table->model()->headerData(column, Qt::Horizontal).toString();
        const QRect needed
            = metrics.boundingRect(QRect(0, 0, width(column), 1000), Qt::AlignLeft | Qt::TextWordWrap, title);
        const int value = metrics.horizontalAdvance(table->model()->index(0, column).data().toString());
        return needed.width() <= width(column) && needed.height() <= header->height() && value <= width(column);
    };
    for (int column = 0; column < CabinetModel::ColumnCount; ++column) {
        QVERIFY2(isWhole(column), qPrintable(QString::number(column)));
        const int flags = table->model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
        QVERIFY(flags & Qt::TextWordWrap);
    }
    for (const int column : {int(CabinetModel::LimitedBy), int(CabinetModel::UvBefore), int(CabinetModel::UvAfter)}) {
        const QString title = table->model()->headerData(column, Qt::Horizontal).toString();
        QVERIFY2(width(column) < metrics.horizontalAdvance(title), qPrintable(title));
    }
    // The unit is not broken at its slash, and copied as part of the title.
    QCOMPARE(
        table->model()->headerData(CabinetModel::White, Qt::Horizontal).toString(), QStringLiteral("white\ncd/m²"));
    table->copy();
    QVERIFY(QApplication::clipboard()->text().contains(QStringLiteral("\twhite cd/m²\t")));
    // The arrow of the column that is sorted by gets room of its own.
    const int before = width(CabinetModel::Headroom);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
        QPoint(header->sectionViewportPosition(CabinetModel::Headroom) + before / 2, header->height() / 2));
    QVERIFY(width(CabinetModel::Headroom) > before);
    table->sortByJudgement();
    QCOMPARE(width(CabinetModel::Headroom), before);
}

void CabinetTableTest::longNamesAreSeen()
{
    DisplayDescription d = oneDim();
    for (WallCabinet &cabinet : d.wall.cabinets) {
        cabinet.name.prepend(QStringLiteral("Stage-"));
    }
    d.wall.cabinets[5].isLeftOut = true;
    WallFixture f(d);
    CabinetTable *table = f.page()->table();
    const auto room = [table] {
        return table->columnWidth(CabinetModel::Name)
            - 2 * (table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, table) + 1);
    };
    const QFontMetrics metrics(table->font());
    const int row = table->cabinets()->rowOf(5);
    const QString leftOut = table->model()->index(row, CabinetModel::Name).data().toString();
    QVERIFY(leftOut.endsWith(QStringLiteral("Stage-B2 (left out)")));
    QVERIFY(room() >= metrics.horizontalAdvance(leftOut));
    // Names of any length are cut in the middle, as their ends differ; the tool tip has all of them.
    const QString longName = QStringLiteral("Stage-left-side-upper-row-cabinet-A1");
    d.wall.cabinets[0].name = longName;
    f.window->setDescription(d, QString());
    QVERIFY(room() < metrics.horizontalAdvance(longName));
    QCOMPARE(table->textElideMode(), Qt::ElideMiddle);
    const QModelIndex first = table->model()->index(table->cabinets()->rowOf(0), CabinetModel::Name);
    QVERIFY(first.data(Qt::ToolTipRole).toString().contains(longName));
    d.target.clear();
    f.window->setDescription(d, QString());
    QVERIFY(table->model()->index(0, 0).data(Qt::ToolTipRole).toString().contains(longName));
    f.window->setDescription(oneDim(), QString());
    QVERIFY(room() < metrics.horizontalAdvance(leftOut));
}

void CabinetTableTest::selectedRowStaysInSight()
{
    DisplayDescription d = description(8, 12);
    dim(d.wall.cabinets[1], 0.8);
    WallFixture f(d);
    CabinetTable *table = f.page()->table();
    f.click(table, table->model()->index(0, 1));
    QCOMPARE(f.selectedName(), QStringLiteral("A2"));
    QTest::mouseClick(f.page()->verdict()->withoutButton(), Qt::LeftButton);
    QCOMPARE(table->currentIndex().row(), 95);
    QTRY_VERIFY(table->viewport()->rect().contains(table->visualRect(table->currentIndex()).center()));
}

void CabinetTableTest::allColumnsAreSeen()
{
    const QFont before = QApplication::font();
    QFont usual = before;
    usual.setPointSize(9); // as on desktops
    QApplication::setFont(usual);
    const std::unique_ptr<const QFont, void (*)(const QFont *)> restored(
        &before, [](const QFont *font) { QApplication::setFont(*font); });
    WallFixture f(description(8, 12));
    f.window->resize(1024, 768);
    QTRY_COMPARE(f.window->size(), QSize(1024, 768));
    CabinetTable *table = f.page()->table();
    const auto areSeen = [table] { return table->horizontalHeader()->length() <= table->viewport()->width(); };
    QTRY_VERIFY(areSeen());
    table->sortByColumn(CabinetModel::Headroom, Qt::DescendingOrder); // with an arrow
    QTRY_VERIFY(areSeen());
    QVERIFY(f.page()->map()->width() > 200);
    QVERIFY(f.page()->map()->isVisible());
}

void CabinetTableTest::tableIsCopiedWhole()
{
    WallFixture f(oneDim());
    f.page()->table()->setFocus();
    QTest::keyClick(f.page()->table(), Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 13);
    QCOMPARE(lines.first(),
        QStringLiteral("cabinet\tlimited by\twhite cd/m²\theadroom\tΔu′v′ before\tΔu′v′ after\tΔu′v′ beside"));
    QCOMPARE(lines.at(1), QStringLiteral("✗ B2\tred\t880.8\t−12 %\t0.0000\t0.0000\t0.0000"));
}

QTEST_MAIN(CabinetTableTest)
#include "cabinettabletest.moc"
