// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "givenfiles.h"

#include "editing/targetsession.h"
#include "panel/copytable.h"
#include "panel/groupedtable.h"
#include "panel/layerkey.h"
#include "panel/sidepanel.h"
#include "panel/stepbox.h"
#include "panel/targeteditor.h"
#include "panel/verdict.h"
#include "window/comparepage.h"
#include "window/librarypage.h"

#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QtTest>

using namespace gamutviewer;
using namespace givenfiles;

class UnknownPartsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void defaultTargetIsShownAsSuch();
    void defaultTargetIsNotSaved();
    void nothingIsSaidWithoutAnOriginal();
};

namespace {

QString text(const QTableWidget *table)
{
    QString all;
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            const QTableWidgetItem *cell = table->item(row, column);
            all += (cell ? cell->text() : QString()) + QLatin1Char('\t');
        }
        all += QLatin1Char('\n');
    }
    return all;
}

} // namespace

void UnknownPartsTest::defaultTargetIsShownAsSuch()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    QVERIFY(f.window->openPath(monitor(f)));
    const QString name = QStringLiteral("Rec.709 (default)");
    QVERIFY(f.document().targetIsDefault());
    // Where it is edited.
    const auto says = [&f](const QString &text) {
        const QList<QLabel *> labels = f.window->panel()->editor()->findChildren<QLabel *>();
        return std::any_of(
            labels.begin(), labels.end(), [&text](const QLabel *label) { return label->text() == text; });
    };
    QVERIFY(says(name));
    QVERIFY(f.window->diagramPage()->key()->entry(name));
    const auto shown = f.window->diagramPage()->view()->gamut(ceiechart::GamutRole::Target);
    QVERIFY(shown);
    QCOMPARE(shown->colorGamutName(), name.toStdString());
    QVERIFY(f.window->panel()->editor()->isEnabled());
    // And nowhere else.
    QVERIFY(!text(f.window->panel()->values()).contains(QLatin1String("Rec.709")));
    f.show(f.window->comparePage());
    for (const DocumentView *view : f.window->comparePage()->findChildren<DocumentView *>()) {
        QVERIFY(!view->gamut(ceiechart::GamutRole::Target));
    }
    for (int column = 0; column < f.window->comparePage()->table()->columnCount(); ++column) {
        QVERIFY(!f.window->comparePage()->table()->horizontalHeaderItem(column)->text().contains(name));
    }
    QVERIFY(!f.window->comparePage()->picture().content.find(ceiechart::GamutRole::Target));
    f.show(f.window->libraryPage());
    QVERIFY(!f.window->libraryPage()->picture().content.find(ceiechart::GamutRole::Target));
    f.show(f.window->diagramPage());
    // Once edited, by hand, it is the user's.
    QWidget *red = f.window->panel()->editor()->firstCoordinate(Vertex::Red);
    red->setFocus();
    QTest::keyClick(red, Qt::Key_Up);
    QVERIFY(!f.document().targetIsDefault());
    QCOMPARE(f.document().description().target, QStringLiteral("Rec.709 (edited)"));
    QVERIFY(says(QStringLiteral("Rec.709 (edited)")));
    QVERIFY(text(f.window->panel()->values()).contains(QLatin1String("Rec.709 (edited)")));
    QTest::keyClick(f.window.get(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(f.document().targetIsDefault());
    QVERIFY(says(name));
    // Also by a drag.
    DiagramPointer pointer(f.window->diagramPage()->view());
    pointer.drag(f.xy(Vertex::Green), QPointF(0.32, 0.55));
    QCOMPARE(f.document().description().target, QStringLiteral("Rec.709 (edited)"));
    QVERIFY(f.window->diagramPage()->key()->entry(QStringLiteral("Rec.709 (edited)")));
}

void UnknownPartsTest::defaultTargetIsNotSaved()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    QVERIFY(f.window->openPath(monitor(f)));
    const QString file = f.settings.filePath(QStringLiteral("saved.json"));
    QVERIFY(f.window->saveTo(file));
    const auto read = readDescriptionFile(file);
    QVERIFY2(read, qPrintable(read.error()));
    QCOMPARE(parts(*read), (QStringList{"", "", "Studio 27", ""}));
    QVERIFY(read->standards.isEmpty());
    // Chosen by name, it is.
    f.window->session()->reset(QStringLiteral("Rec.709"));
    QVERIFY(!f.document().targetIsDefault());
    QVERIFY(f.window->saveTo(file));
    QCOMPARE(readDescriptionFile(file)->target, QStringLiteral("Rec.709"));
}

void UnknownPartsTest::nothingIsSaidWithoutAnOriginal()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    QVERIFY(f.window->openPath(monitor(f)));
    f.window->session()->reset(QStringLiteral("Rec.2020"));
    const auto isSilent = [&f] {
        const QString verdict = f.window->panel()->verdict()->text();
        return !verdict.contains(QString::fromUtf8("✓")) && !verdict.contains(QString::fromUtf8("✗"));
    };
    QVERIFY(isSilent());
    QVERIFY(text(f.window->panel()->values()).contains(QLatin1String("Original: not known")));
    QVERIFY(text(f.window->panel()->coverage()).contains(QLatin1String("Original: not known")));
    f.show(f.window->comparePage());
    const QTableWidget *table = f.window->comparePage()->table();
    const int last = table->columnCount() - 1;
    QCOMPARE(table->horizontalHeaderItem(last)->text(), QStringLiteral("Original: not known"));
    for (int row = 0; row < table->rowCount(); ++row) {
        QCOMPARE(table->item(row, last)->text(), QString::fromUtf8("–"));
    }
    QVERIFY(f.window->comparePage()->loss()->text().contains(QLatin1String("not known")));
    // Nor of a target that nobody has chosen.
    DisplayDescription known = f.document().description();
    known.original = QStringLiteral("Studio 27");
    known.target.clear();
    f.document().change(known, QString());
    QVERIFY(isSilent());
    QVERIFY(text(f.window->panel()->values()).contains(QLatin1String("Target: not known")));
    f.show(f.window->diagramPage());
    const auto hatches = [&f] {
        return f.window->diagramPage()->view()->content().layers.testFlag(ceiechart::DiagramLayer::LostArea);
    };
    QVERIFY(!hatches());
    known.target = QStringLiteral("Rec.2020");
    f.document().change(known, QString());
    QVERIFY(!isSilent());
    QVERIFY(hatches());
}

QTEST_MAIN(UnknownPartsTest)
#include "unknownpartstest.moc"
