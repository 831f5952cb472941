// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "windowfixture.h"

#include "editing/targetsession.h"
#include "window/gamutsdialog.h"

#include <gamutmodel/publishedgamuts.h>

#include <QAccessible>
#include <QLineEdit>
#include <QTableView>
#include <QtTest>

using namespace gamutviewer;

class GamutsDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listsGamutsAndParts();
    void partIsGivenByKeyboard();
    void partIsGivenByMouse();
    void eachChangeIsOneStep();
    void gamutIsRenamed();
    void refusedNameIsTold();
    void gamutIsRemoved_data();
    void gamutIsRemoved();
    void publishedGamutStays();
    void everyPublishedGamutCanBeAStandard();
    void displayIsNamed();
    void followsTheDocument();
    void everyCellHasAName();
};

namespace {

struct Dialog : WindowFixture {
    Dialog()
    {
        QTest::keyClick(window.get(), Qt::Key_G, Qt::ControlModifier);
        dialog = window->findChild<GamutsDialog *>();
        if (!dialog) {
            qFatal("there is no dialog");
        }
        activateDialog();
    }

    void activateDialog()
    {
        QApplication::setActiveWindow(dialog);
        if (!QTest::qWaitForWindowActive(dialog)) {
            qFatal("the dialog does not become active");
        }
    }

    QTableView *table() { return dialog->table(); }
    const QAbstractItemModel &model() { return *table()->model(); }
    QString header(int column) { return model().headerData(column, Qt::Horizontal).toString(); }
    QString name(int row) { return model().index(row, 0).data().toString(); }
    QModelIndex cell(const QString &gamut, const QString &part)
    {
        for (int row = 0; row < model().rowCount(); ++row) {
            for (int column = 0; column < model().columnCount(); ++column) {
                if (name(row) == gamut && header(column) == part) {
                    return model().index(row, column);
                }
            }
        }
        return QModelIndex();
    }
    bool isChecked(const QString &gamut, const QString &part)
    {
        return cell(gamut, part).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    void choose(const QString &gamut, const QString &part)
    {
        table()->setFocus();
        table()->setCurrentIndex(cell(gamut, part));
    }
    const DisplayDescription &description() { return document().description(); }

    GamutsDialog *dialog;
};

const QString wall = QStringLiteral("LED wall");
const QString warm = QStringLiteral("LED wall, warm");

void type(Dialog &d, const QString &name)
{
    d.choose(wall, QStringLiteral("Gamut"));
    QTest::keyClick(d.table(), Qt::Key_F2);
    auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(editor && d.table()->isAncestorOf(editor));
    editor->selectAll();
    QTest::keyClicks(editor, name);
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
}

} // namespace

void GamutsDialogTest::listsGamutsAndParts()
{
    Dialog d;
    QCOMPARE(d.name(0), wall);
    QCOMPARE(d.name(1), warm);
    QVERIFY(d.isChecked(wall, "Original"));
    QVERIFY(!d.isChecked(wall, "Measured"));
    QVERIFY(d.isChecked(warm, "Measured"));
    QVERIFY(d.isChecked("DCI-P3(D65)", "Target"));
    QVERIFY(d.isChecked("DCI-P3(D65)", "Standard"));
    QVERIFY(d.isChecked("Rec.709", "Standard"));
    QVERIFY(!d.isChecked("Rec.709", "Target"));
    QCOMPARE(d.model().rowCount(), 2 + int(Model::publishedGamuts().size()));
}

void GamutsDialogTest::partIsGivenByKeyboard()
{
    Dialog d;
    d.choose(warm, "Original");
    QTest::keyClick(d.table(), Qt::Key_Space);
    QCOMPARE(d.description().original, warm);
    QCOMPARE(d.description().measured, warm);
    QVERIFY(d.isChecked(warm, "Original"));
    QVERIFY(!d.isChecked(wall, "Original"));
    // And taken.
    QTest::keyClick(d.table(), Qt::Key_Space);
    QVERIFY(d.description().original.isEmpty());
}

void GamutsDialogTest::partIsGivenByMouse()
{
    Dialog d;
    const QModelIndex cell = d.cell(wall, "Declared");
    QStyleOptionViewItem option;
    option.initFrom(d.table());
    option.rect = d.table()->visualRect(cell);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box = d.table()->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, d.table());
    QTest::mouseClick(d.table()->viewport(), Qt::LeftButton, Qt::NoModifier, box.center());
    QCOMPARE(d.description().declared, wall);
}

void GamutsDialogTest::eachChangeIsOneStep()
{
    Dialog d;
    for (const char *part : {"Declared", "Target", "Standard", "Measured"}) {
        d.choose(wall, part);
        QTest::keyClick(d.table(), Qt::Key_Space);
    }
    QCOMPARE(d.document().history()->count(), 4);
    QCOMPARE(d.description().target, wall);
    // Undone in the dialog itself.
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(d.table(), Qt::Key_Z, Qt::ControlModifier);
    }
    QCOMPARE(d.document().history()->index(), 0);
    QVERIFY(d.description().declared.isEmpty());
    QCOMPARE(d.description().target, QStringLiteral("DCI-P3(D65)"));
    QVERIFY(d.isChecked("DCI-P3(D65)", "Target"));
    QVERIFY(d.isChecked(warm, "Measured"));
}

void GamutsDialogTest::gamutIsRenamed()
{
    Dialog d;
    type(d, QStringLiteral("Native"));
    QCOMPARE(d.description().original, QStringLiteral("Native"));
    QVERIFY(d.isChecked("Native", "Original"));
    QCOMPARE(d.document().history()->count(), 1);
    d.document().history()->undo();
    QCOMPARE(d.description().original, wall);
    QVERIFY(d.cell(wall, "Gamut").isValid());
}

void GamutsDialogTest::refusedNameIsTold()
{
    Dialog d;
    type(d, QStringLiteral("Rec.709"));
    QCOMPARE(d.dialog->message()->text(), QStringLiteral("There is already a gamut named \"Rec.709\"."));
    QCOMPARE(d.description().original, wall);
    QVERIFY(d.cell(wall, "Gamut").isValid());
    QCOMPARE(d.document().history()->count(), 0);
    type(d, QStringLiteral("Native"));
    QVERIFY(d.dialog->message()->text().isEmpty());
}

void GamutsDialogTest::gamutIsRemoved_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("Delete") << true;
}

void GamutsDialogTest::gamutIsRemoved()
{
    QFETCH(bool, byKey);
    Dialog d;
    d.choose(wall, "Original");
    if (byKey) {
        QTest::keyClick(d.table(), Qt::Key_Delete);
    } else {
        QTest::mouseClick(d.dialog->removeButton(), Qt::LeftButton);
    }
    QVERIFY(!hasOwnGamut(d.description(), wall));
    QVERIFY(d.description().original.isEmpty());
    QVERIFY(!d.cell(wall, "Gamut").isValid());
    QCOMPARE(d.document().history()->count(), 1);
    d.document().history()->undo();
    QCOMPARE(d.description().original, wall);
}

void GamutsDialogTest::publishedGamutStays()
{
    Dialog d;
    d.choose(QStringLiteral("Rec.2020"), "Gamut");
    QVERIFY(!d.dialog->removeButton()->isEnabled());
    QTest::keyClick(d.table(), Qt::Key_Delete);
    QTest::keyClick(d.table(), Qt::Key_F2);
    QVERIFY(!d.table()->findChild<QLineEdit *>());
    QCOMPARE(d.document().history()->count(), 0);
    d.choose(wall, "Gamut");
    QVERIFY(d.dialog->removeButton()->isEnabled());
    // No display can show these primaries.
    for (const char *part : {"Original", "Measured", "Target"}) {
        const QModelIndex cell = d.cell(QStringLiteral("ACES2065-1"), part);
        QVERIFY2(!(cell.flags() & Qt::ItemIsUserCheckable), part);
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(),
            QStringLiteral("No display can show it: it has primaries that no light has."));
    }
    QVERIFY(d.cell(QStringLiteral("ACES2065-1"), "Declared").flags() & Qt::ItemIsUserCheckable);
    QVERIFY(d.cell(QStringLiteral("Rec.2020"), "Original").data(Qt::ToolTipRole).toString().isEmpty());
    QVERIFY(d.cell(QStringLiteral("ACES2065-1"), "Standard").flags() & Qt::ItemIsUserCheckable);
}

void GamutsDialogTest::everyPublishedGamutCanBeAStandard()
{
    Dialog d;
    for (const Model::PublishedGamut &published : Model::publishedGamuts()) {
        const QString name = QString::fromStdString(published.gamut.colorGamutName());
        if (!d.isChecked(name, "Standard")) {
            d.choose(name, "Standard");
            QTest::keyClick(d.table(), Qt::Key_Space);
        }
        QVERIFY2(d.description().standards.contains(name), qPrintable(name));
    }
    QCOMPARE(d.description().allStandards().size(), Model::publishedGamuts().size());
}

void GamutsDialogTest::displayIsNamed()
{
    Dialog d;
    QLineEdit *field = d.dialog->displayName();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("Stage left"));
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(d.description().name, QStringLiteral("Stage left"));
    QCOMPARE(d.window->windowTitle(), QString::fromUtf8("Stage left[*] – Gamut viewer"));
    QCOMPARE(d.document().history()->count(), 1);
    QVERIFY(d.dialog->isVisible());
    d.document().history()->undo();
    QCOMPARE(field->text(), wall);
}

void GamutsDialogTest::followsTheDocument()
{
    Dialog d;
    QVERIFY(d.window->session()->setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    QVERIFY(d.isChecked("DCI-P3(D65) (edited)", "Target"));
    QVERIFY(!d.isChecked("DCI-P3(D65)", "Target"));
    d.document().history()->setClean();
    QVERIFY(d.window->closeDocument());
    QCOMPARE(d.model().rowCount(), int(Model::publishedGamuts().size()));
    QVERIFY(d.dialog->displayName()->text().isEmpty());
}

void GamutsDialogTest::everyCellHasAName()
{
    Dialog d;
    const QAccessibleInterface *table = QAccessible::queryAccessibleInterface(d.table());
    QVERIFY(table && !table->text(QAccessible::Name).isEmpty());
    for (int column = 1; column < d.model().columnCount(); ++column) {
        const QString name = d.model().index(0, column).data(Qt::AccessibleTextRole).toString();
        QVERIFY(name.contains(wall));
        QVERIFY(name.contains(d.header(column)));
    }
}

QTEST_MAIN(GamutsDialogTest)
#include "gamutsdialogtest.moc"
