// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Many gamuts in the viewer: what it takes grows with their number, not with its square.
#include "allocationcount.h"

#include "drawing/layerswitches.h"
#include "editing/document.h"
#include "editing/openedfiles.h"
#include "window/gamutsdialog.h"

#include <QTableView>
#include <QtTest>

using namespace gamutviewer;

class ManyOpenedGamutsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void addingGrowsWithTheirNumber();
    void remarksGrowWithTheirNumber();
    void drawnStandardsGrowWithTheirNumber();
    void listOfGamutsGrowsWithTheirNumber();
};

namespace {

constexpr int few = 300;
constexpr int many = 2 * few;

//! Of \a count gamuts that are standards, with names that hold \a word.
DisplayDescription description(const QString &word, int count)
{
    DisplayDescription result;
    result.name = QStringLiteral("Wall");
    for (int i = 0; i < count; ++i) {
        const QString name = QStringLiteral("a name that is too long to be kept in its place, %1 %2").arg(word).arg(i);
        result.gamuts.emplace_back(Model::ColorGamut(name.toStdString(), Model::rec709().getTargets()));
        result.standards.append(name);
    }
    return result;
}

GamutFile file(int count)
{
    GamutFile result;
    result.content = GamutFile::Content::Description;
    result.description = description(QStringLiteral("added"), count);
    return result;
}

//! \a action is given how many gamuts there are.
template <typename Action>
void verifyLinear(const Action &action)
{
    action(few); // what is made once is made now
    const long long fewer = allocationsOf([&] { action(few); });
    const long long more = allocationsOf([&] { action(many); });
    QVERIFY2(fewer > 0 && more < 2.5 * fewer, qPrintable(QStringLiteral("%1, then %2").arg(fewer).arg(more)));
}

} // namespace

void ManyOpenedGamutsTest::addingGrowsWithTheirNumber()
{
    verifyLinear([](int count) {
        const DisplayDescription result
            = withFile(description(QStringLiteral("open"), count), file(count), std::nullopt);
        QCOMPARE(int(result.gamuts.size()), 2 * count);
    });
}

void ManyOpenedGamutsTest::remarksGrowWithTheirNumber()
{
    verifyLinear([](int count) {
        const ReadFile read{QStringLiteral("file.json"), file(count), {}, std::nullopt};
        QCOMPARE(remarksOnAdding(description(QStringLiteral("open"), count), read).size(), 1);
    });
}

void ManyOpenedGamutsTest::drawnStandardsGrowWithTheirNumber()
{
    const LayerSwitches switches;
    verifyLinear([&switches](int count) {
        const ceiechart::DiagramContent content = switches.content(description(QStringLiteral("open"), count));
        QCOMPARE(content.gamuts.size(), count + 1);
    });
}

void ManyOpenedGamutsTest::listOfGamutsGrowsWithTheirNumber()
{
    verifyLinear([](int count) {
        Document document;
        document.open(description(QStringLiteral("open"), count), QString());
        GamutsDialog dialog(&document);
        QVERIFY(dialog.table()->model()->rowCount() > count);
    });
}

QTEST_MAIN(ManyOpenedGamutsTest)
#include "manyopenedgamutstest.moc"
