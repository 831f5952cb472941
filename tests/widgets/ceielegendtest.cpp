// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/ceielegend.h>

#include "legendtests.h"

#include <limits>

using Tests = LegendTests<NewCEIE::CEIELegend>;

class CEIELegendTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void constructors() { Tests::constructors(); }
    void metaObject() { Tests::metaObject("NewCEIE::CEIELegend"); }
    void captionsAreTranslated() { Tests::captionsAreTranslated("NewCEIE::CEIELegend"); }
    void captionsFollowTheLanguage() { Tests::captionsFollowTheLanguage(); }
    void getters() { Tests::getters(); }
    void swatches() { Tests::swatches(); }
    void layout_data() { Tests::layout_data(); }
    void layout() { Tests::layout(); }
    void entriesPackAtTheStart() { Tests::entriesPackAtTheStart(); }
    void texts() { Tests::texts(); }
    void textsWithoutPointEntries() { Tests::textsWithoutPointEntries(); }
    void rearranging() { Tests::rearranging(); }
    void captionsOfARearrangedLegend() { Tests::captionsOfARearrangedLegend(); }
    void pointsMadeByASubclass() { Tests::pointsMadeByASubclass(); }
    void rearrangingWhileShown() { Tests::rearrangingWhileShown(); }

    // Original, target and common gamut, then the points: the row does not follow the numbers.
    void visibility() { Tests::visibility({2, 1, 0, 4, 5, 6}); }
    void valueThreeHasNoEntry() { Tests::noEntryOfThatType({3}); }
    void valuesOutOfRangeHaveNoEntry()
    {
        Tests::noEntryOfThatType({7, 8, 100, -1, -2, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()});
    }
    void visibilityByProperties() { Tests::visibilityByProperties(); }
    void visibilityWithoutPointEntries() { Tests::visibilityWithoutPointEntries({3, 4, 5, 6, 7}); }
    void legendTypeValues();
};

void CEIELegendTest::legendTypeValues()
{
    using Legend = NewCEIE::CEIELegend;
    QCOMPARE(int(Legend::CommonGamut), 0);
    QCOMPARE(int(Legend::TargetGamut), 1);
    QCOMPARE(int(Legend::OriginalGamut), 2);
    QCOMPARE(int(Legend::NoEntry), 3);
    QCOMPARE(int(Legend::TargetPoint), 4);
    QCOMPARE(int(Legend::OriginalPoint), 5);
    QCOMPARE(int(Legend::ManagedPoint), 6);
}

QTEST_MAIN(CEIELegendTest)
#include "ceielegendtest.moc"
