// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/ceielegend.h>

#include <widgets/legendtests.h>

#include <limits>

using Tests = LegendTests<CEIELegend>;

class LegacyCEIELegendTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void constructors() { Tests::constructors(); }
    void metaObject() { Tests::metaObject("CEIELegend"); }
    void captionsAreTranslated() { Tests::captionsAreTranslated("CEIELegend"); }
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

    // Numbered without a gap between gamuts and points.
    void visibility() { Tests::visibility({2, 1, 0, 3, 4, 5}); }
    void valuesOutOfRangeHaveNoEntry()
    {
        Tests::noEntryOfThatType({6, 7, 100, -1, -2, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()});
    }
    void visibilityByProperties() { Tests::visibilityByProperties(); }
    void visibilityWithoutPointEntries() { Tests::visibilityWithoutPointEntries({3, 4, 5, 6}); }
    void legendTypeValues();
};

void LegacyCEIELegendTest::legendTypeValues()
{
    QCOMPARE(int(CEIELegend::CommonGamut), 0);
    QCOMPARE(int(CEIELegend::TargetGamut), 1);
    QCOMPARE(int(CEIELegend::OriginalGamut), 2);
    QCOMPARE(int(CEIELegend::TargetPoint), 3);
    QCOMPARE(int(CEIELegend::OriginalPoint), 4);
    QCOMPARE(int(CEIELegend::ManagedPoint), 5);
}

QTEST_MAIN(LegacyCEIELegendTest)
#include "legacyceielegendtest.moc"
