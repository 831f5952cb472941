// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "assessedwall.h"

#include "display/assessmenttexts.h"
#include "display/knowndisplay.h"
#include "display/wallreport.h"

#include <gamutmodel/nearestinside.h>

#include <QJsonArray>
#include <QtTest>

#include <cmath>

using namespace assessedwall;

Q_DECLARE_METATYPE(LuminanceUnit)

class WallAssessmentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void equalCabinets();
    void oneDimCabinet();
    void oneNarrowCabinet();
    void thoseThatFailWorstAreFirst();
    void twoCabinetsAreNotAll();
    void twoBadCabinetsAreNamed();
    void manyBadCabinetsAreCounted();
    void allBadCabinets();
    void headroomAgainstCramersRule();
    void luminancesThatDoNotCompare_data();
    void luminancesThatDoNotCompare();
    void targetWithoutLuminance();
    void nearlySingularCabinet();
    void fitWithoutTheUnknown();
    void cabinetWithoutLight();
    void nothingInCommon();
    void whiteOutsideOfTheWall();
    void fittedTargetIsShownByAll();
    void leftOutCabinetDoesNotCount();
    void targetThatIsNoMixture();
    void smallGamuts();
    void neighbors();
    void wallStandsForTheDisplay();
    void wallAndOriginalAreBothGrounds();
    void wallWithoutATarget();
};

namespace {

constexpr std::size_t f9 = 5 * 12 + 8;
constexpr std::size_t c4 = 2 * 12 + 3;

double determinant(const Model::Target &a, const Model::Target &b, const Model::Target &c)
{
    return a.X * (b.Y * c.Z - b.Z * c.Y) - b.X * (a.Y * c.Z - a.Z * c.Y) + c.X * (a.Y * b.Z - a.Z * b.Y);
}

//! The highest drive for a colour without a black, by Cramer's rule.
double highestDrive(const WallCabinet &of, const Model::Target &t)
{
    const double all = determinant(of.red, of.green, of.blue);
    return std::max({determinant(t, of.green, of.blue) / all, determinant(of.red, t, of.blue) / all,
        determinant(of.red, of.green, t) / all});
}

} // namespace

void WallAssessmentTest::equalCabinets()
{
    const DisplayWall wall = wallOf(8);
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    QCOMPARE(textOf(found),
        QStringLiteral("✓ All 96 cabinets show this target\n"
                       "✓ All reach a white of 1100.0 cd/m² (A1 is the limit, with red at full drive)."));
    QCOMPARE(found.cabinets.size(), std::size_t(96));
    for (const CabinetAssessment &of : found.cabinets) {
        QCOMPARE(of.judgement, Judgement::Pass);
        QVERIFY(std::fabs(*of.headroom - 1.1) < 1e-9);
        QVERIFY(std::fabs(*of.largestWhite - 1100.0) < 1e-6);
        QVERIFY(*of.uvBefore < 1e-9);
        QVERIFY(*of.uvAfter < 1e-9);
        QVERIFY(of.neighborBefore->uv < 1e-9);
    }
    QVERIFY(!fittedToWall(targetOf(1000.0), found));
}

void WallAssessmentTest::oneDimCabinet()
{
    DisplayWall wall = wallOf(8);
    dim(wall.cabinets[f9], 0.85);
    dim(wall.cabinets[c4], 0.92);
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    QCOMPARE(textOf(found),
        QStringLiteral("✗ 95 of 96 cabinets show this target; F9 does not\n"
                       "✗ F9: white reaches 935.0 cd/m² only, of 1000.0 cd/m² (red is the limit).\n"
                       "- All others reach a white of 1012.0 cd/m² (C4 is the limit, with red at full drive).\n"
                       "- Fitted to the wall, the target keeps 100.0 % of its area in u′, v′ and has a white of 935.0 "
                       "cd/m².\n"
                       "- Without F9, all show the target."));
    QCOMPARE(found.worstFirst.at(0), f9);
    QCOMPARE(found.worstFirst.at(1), c4);
    QCOMPARE(found.cabinets[f9].judgement, Judgement::Fail);
    QCOMPARE(found.cabinets[f9].gamut, Judgement::Pass);
    QVERIFY(std::fabs(*found.cabinets[f9].headroom - 0.935) < 1e-9);
    QCOMPARE(found.largestWhite->cabinet, f9);
    QCOMPARE(found.lines.first().cabinet, std::make_optional(f9));
}

void WallAssessmentTest::thoseThatFailWorstAreFirst()
{
    DisplayWall wall = wallOf(1);
    const auto narrow
        = [&](std::size_t i, double x) { wall.cabinets[i].green = color(wall.cabinets[i].green.Y, x, 0.55); };
    dim(wall.cabinets[2], 0.83); // with the least white, of those that miss a colour
    narrow(2, 0.31);
    narrow(5, 0.34);
    narrow(7, 0.325);
    // In luminances that do not compare, chromaticities alone fail.
    WallAssessment found = assessWall(wall, targetOf(900.0, LuminanceUnit::NotKnown));
    QCOMPARE(std::vector<std::size_t>(found.worstFirst.begin(), found.worstFirst.begin() + 3),
        (std::vector<std::size_t>{5, 7, 2}));
    QVERIFY(found.lines.first().text.startsWith(QStringLiteral("A6: green reaches ")));
    // Luminances that fail come before them, the least first.
    dim(wall.cabinets[9], 0.6);
    dim(wall.cabinets[10], 0.5);
    found = assessWall(wall, targetOf(720.0));
    QCOMPARE(found.worstFirst.at(0), std::size_t(10));
    QCOMPARE(found.worstFirst.at(1), std::size_t(9));
    QCOMPARE(found.worstFirst.at(2), std::size_t(5));
    QCOMPARE(found.worstFirst.at(3), std::size_t(7));
    QCOMPARE(found.worstFirst.at(4), std::size_t(2));
}

void WallAssessmentTest::twoCabinetsAreNotAll()
{
    DisplayWall wall = wallOf(1);
    wall.cabinets.resize(2);
    QCOMPARE(textOf(assessWall(wall, targetOf(1000.0))),
        QStringLiteral("✓ Both cabinets show this target\n"
                       "✓ Both reach a white of 1100.0 cd/m² (A1 is the limit, with red at full drive)."));
    dim(wall.cabinets[0], 0.5);
    const QString text = textOf(assessWall(wall, targetOf(1000.0)));
    QVERIFY2(text.contains(QStringLiteral("- The other reaches a white of 1100.0 cd/m² (A2 ")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("- Without A1, the other cabinet shows the target.")), qPrintable(text));
    dim(wall.cabinets[1], 0.5);
    QCOMPARE(assessWall(wall, targetOf(1000.0)).headline, QStringLiteral("Neither cabinet shows this target"));
}

void WallAssessmentTest::oneNarrowCabinet()
{
    DisplayWall wall = wallOf(8);
    WallCabinet &bad = wall.cabinets[f9];
    bad.green = color(bad.green.Y, 0.32, 0.55);
    const DisplayGamut target = targetOf(900.0);
    const WallAssessment found = assessWall(wall, target);
    QCOMPARE(found.judgement, Judgement::Fail);
    QCOMPARE(found.headline, QStringLiteral("95 of 96 cabinets show this target; F9 does not"));
    const CabinetAssessment &of = found.cabinets[f9];
    QCOMPARE(of.gamut, Judgement::Fail);
    QCOMPARE(of.limit, std::make_optional(Vertex::Green));
    const Model::Targets colors{bad.red, bad.green, bad.blue, {}};
    QCOMPARE(of.outside[std::size_t(Vertex::Green)],
        gamutviewer::distanceOutside(target.getTargets(), Vertex::Green, colors));
    QVERIFY(of.outside[std::size_t(Vertex::Green)] > 0.005);
    QCOMPARE(of.outside[std::size_t(Vertex::White)], 0.0);
    QVERIFY2(found.lines.first().text.startsWith(QStringLiteral("F9: green reaches 0.")),
        qPrintable(found.lines.first().text));
    QVERIFY(*of.uvAfter < 1e-9); // the white is still right
}

void WallAssessmentTest::twoBadCabinetsAreNamed()
{
    DisplayWall wall = wallOf(2);
    dim(wall.cabinets[3], 0.8);
    dim(wall.cabinets[5], 0.7);
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    QCOMPARE(found.headline, QStringLiteral("22 of 24 cabinets show this target; A6 and A4 do not"));
    QVERIFY(textOf(found).contains(QStringLiteral("- Without A6 and A4, all show the target.")));
}

void WallAssessmentTest::manyBadCabinetsAreCounted()
{
    DisplayWall wall = wallOf(2);
    for (int i = 0; i < 10; ++i) {
        dim(wall.cabinets[std::size_t(i)], 0.8 + 0.001 * i);
    }
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    QCOMPARE(found.headline, QStringLiteral("14 of 24 cabinets show this target; A1 and 9 others do not"));
    QVERIFY(textOf(found).contains(QStringLiteral("✗ A3: white reaches ")));
    QVERIFY(!textOf(found).contains(QStringLiteral("A4")));
    QVERIFY(textOf(found).contains(QStringLiteral("✗ 7 other cabinets do not show it either.")));
}

void WallAssessmentTest::allBadCabinets()
{
    const WallAssessment found = assessWall(wallOf(1), targetOf(2000.0));
    QCOMPARE(found.headline, QStringLiteral("None of the 12 cabinets shows this target"));
    QVERIFY(!textOf(found).contains(QStringLiteral("others reach")));
    QVERIFY(!textOf(found).contains(QStringLiteral("Without")));
}

void WallAssessmentTest::headroomAgainstCramersRule()
{
    DisplayWall wall = wallOf(2);
    for (std::size_t i = 0; i < wall.cabinets.size(); ++i) {
        WallCabinet &of = wall.cabinets[i];
        const double shift = 0.0004 * double(i);
        of.red = color(of.red.Y * (1.0 + shift), of.red.x - shift, of.red.y);
        of.blue = color(of.blue.Y, of.blue.x + shift, of.blue.y + shift);
    }
    const DisplayGamut target = targetOf(1000.0);
    const WallAssessment found = assessWall(wall, target);
    for (std::size_t i = 0; i < wall.cabinets.size(); ++i) {
        const double drive = highestDrive(wall.cabinets[i], target.getTargets().white);
        QVERIFY(std::fabs(*found.cabinets[i].headroom * drive - 1.0) < 1e-9);
        QCOMPARE(found.cabinets[i].luminance, drive > fullDrive ? Judgement::Fail : Judgement::Pass);
    }
}

void WallAssessmentTest::luminancesThatDoNotCompare_data()
{
    QTest::addColumn<LuminanceUnit>("ofWall");
    QTest::addColumn<LuminanceUnit>("ofTarget");
    QTest::newRow("wall not known") << LuminanceUnit::NotKnown << cd;
    QTest::newRow("wall relative") << LuminanceUnit::Relative << cd;
    QTest::newRow("target relative") << cd << LuminanceUnit::Relative;
    QTest::newRow("both relative") << LuminanceUnit::Relative << LuminanceUnit::Relative;
    QTest::newRow("neither known") << LuminanceUnit::NotKnown << LuminanceUnit::NotKnown;
}

void WallAssessmentTest::luminancesThatDoNotCompare()
{
    QFETCH(LuminanceUnit, ofWall);
    QFETCH(LuminanceUnit, ofTarget);
    DisplayWall wall = wallOf(2, ofWall);
    dim(wall.cabinets[3], 0.5);
    const WallAssessment found = assessWall(wall, targetOf(1.0, ofTarget));
    QCOMPARE(found.judgement, Judgement::NotKnown);
    QCOMPARE(found.headline, QStringLiteral("Not known whether the cabinets show this target"));
    QVERIFY(!found.luminancesCompare);
    for (const CabinetAssessment &of : found.cabinets) {
        QCOMPARE(of.judgement, Judgement::NotKnown);
        QCOMPARE(of.gamut, Judgement::Pass);
        QVERIFY(!of.headroom);
        QVERIFY(of.largestWhite);
    }
    const QString text = textOf(found);
    QCOMPARE(text.count(QStringLiteral("The luminances cannot be compared")), 1);
    QVERIFY(text.contains(QStringLiteral("- All reach a white of 550.0")));
    QVERIFY(text.contains(QStringLiteral("- The corrections are for a white of 550.0")));
    QVERIFY(!text.contains(QStringLiteral(": white reaches"))); // nothing of each cabinet
    // Chromaticities fail without luminances.
    wall.cabinets[3].green = color(10.0, 0.32, 0.55);
    const WallAssessment narrow = assessWall(wall, targetOf(1.0, ofTarget));
    QCOMPARE(narrow.judgement, Judgement::Fail);
    QCOMPARE(
        narrow.headline, QStringLiteral("1 of 24 cabinets does not show this target; of the others it is not known"));
}

void WallAssessmentTest::targetWithoutLuminance()
{
    const WallAssessment found = assessWall(wallOf(1), targetOf(0.0));
    QCOMPARE(found.judgement, Judgement::NotKnown);
    QVERIFY(textOf(found).contains(QStringLiteral("? The luminance of the target is not known")));
}

void WallAssessmentTest::nearlySingularCabinet()
{
    DisplayWall wall = wallOf(2);
    WallCabinet &bad = wall.cabinets[4];
    bad.green = color(bad.green.Y, bad.red.x - 0.00001, bad.red.y + 0.00001);
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    const QString text = textOf(found);
    QVERIFY2(text.contains(QStringLiteral("? A5: the primaries cannot be told apart")), qPrintable(text));
    QCOMPARE(found.headline, QStringLiteral("23 of 24 cabinets show this target; of 1 it is not known"));
    QCOMPARE(found.cabinets[4].judgement, Judgement::NotKnown);
    QVERIFY(!found.cabinets[4].headroom);
    QVERIFY(!found.correction.corrections[4].matrix);
    QCOMPARE(found.common.shape, Model::CommonShape::Area); // of the others
}

// What is said of all is not said where one is not known.
void WallAssessmentTest::fitWithoutTheUnknown()
{
    const DisplayGamut target = targetOf(1200.0);
    const auto without = [](const DisplayWall &wall, const WallAssessment &of) {
        return wallReport(wall, &of)
            .value(QStringLiteral("commonGamut"))
            .toObject()
            .value(QStringLiteral("without"))
            .toArray();
    };
    const QString ofAll = QStringLiteral("Fitted to the wall, the target keeps 100.0 % of its area");
    const QString ofSome
        = QStringLiteral("Fitted to the cabinets of which it is known, the target keeps 100.0 % of its area");
    DisplayWall wall = wallOf(2);
    const WallAssessment known = assessWall(wall, target);
    QVERIFY2(textOf(known).contains(ofAll), qPrintable(textOf(known)));
    QVERIFY(without(wall, known).isEmpty());

    wall.cabinets[4].green = wall.cabinets[4].red;
    const WallAssessment singular = assessWall(wall, target);
    QVERIFY2(textOf(singular).contains(ofSome), qPrintable(textOf(singular)));
    QCOMPARE(without(wall, singular), QJsonArray{wall.cabinets[4].label()});
    wall.cabinets[4].isLeftOut = true;
    const WallAssessment others = assessWall(wall, target);
    QVERIFY2(textOf(others).contains(ofAll), qPrintable(textOf(others)));
    QVERIFY(without(wall, others).isEmpty());

    wall.incomplete.push_back({QStringLiteral("C1"), std::nullopt, QStringLiteral("green is missing")});
    const WallAssessment incomplete = assessWall(wall, target);
    QVERIFY2(textOf(incomplete).contains(ofSome), qPrintable(textOf(incomplete)));
    QCOMPARE(without(wall, incomplete), QJsonArray{QStringLiteral("C1")});
}

void WallAssessmentTest::cabinetWithoutLight()
{
    DisplayWall wall = wallOf(2);
    wall.cabinets[4].blue = color(0.0, 0.131, 0.046);
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    QCOMPARE(found.judgement, Judgement::NotKnown);
    QVERIFY(textOf(found).contains(QStringLiteral("? A5: blue has no luminance of its own.")));
}

void WallAssessmentTest::nothingInCommon()
{
    DisplayWall wall = wallOf(1);
    WallCabinet &bad = wall.cabinets[7];
    bad.red = color(200.0, 0.05, 0.40);
    bad.green = color(200.0, 0.10, 0.80);
    bad.blue = color(200.0, 0.04, 0.55);
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    QCOMPARE(found.common.shape, Model::CommonShape::Empty);
    QVERIFY2(
        textOf(found).contains(QStringLiteral("✗ A1 and A8 have no colour in common: no target can be shown by all.")),
        qPrintable(textOf(found)));
    QVERIFY(!fittedToWall(targetOf(1000.0), found));
    QCOMPARE(
        fitProblem(wall, found), QStringLiteral("The target cannot be fitted: A1 and A8 have no colour in common."));
}

void WallAssessmentTest::whiteOutsideOfTheWall()
{
    DisplayWall wall = wallOf(1);
    WallCabinet &bad = wall.cabinets[7];
    bad.blue = color(bad.blue.Y, 0.40, 0.35);
    const DisplayGamut target = targetOf(1000.0);
    const WallAssessment found = assessWall(wall, target);
    QCOMPARE(found.cabinets[7].judgement, Judgement::Fail);
    QVERIFY(!found.cabinets[7].largestWhite);
    QVERIFY(found.cabinets[7].outside[std::size_t(Vertex::White)] > 0.0);
    QVERIFY2(textOf(found).contains(QStringLiteral("white reaches ")), qPrintable(textOf(found)));
    QVERIFY2(textOf(found).contains(QStringLiteral("not all cabinets can show its white (A8 is the limit)")),
        qPrintable(textOf(found)));
}

void WallAssessmentTest::fittedTargetIsShownByAll()
{
    DisplayWall wall = wallOf(8);
    dim(wall.cabinets[c4], 0.8);
    WallCabinet &bad = wall.cabinets[f9];
    bad.green = color(bad.green.Y, 0.32, 0.56);
    const DisplayGamut target = targetOf(1000.0);
    const auto fitted = fittedToWall(target, assessWall(wall, target));
    QVERIFY(fitted);
    const WallAssessment found = assessWall(wall, {Model::ColorGamut("Fitted", *fitted), cd});
    QCOMPARE(found.judgement, Judgement::Pass);
    QVERIFY(*found.cabinets[c4].headroom >= 1.0 - 1e-9);
    QCOMPARE(fitted->white.x, target.getTargets().white.x);
    QVERIFY(!fittedToWall({Model::ColorGamut("Fitted", *fitted), cd}, found));
}

void WallAssessmentTest::leftOutCabinetDoesNotCount()
{
    DisplayWall wall = wallOf(8);
    dim(wall.cabinets[f9], 0.5);
    wall.cabinets[f9].green = color(100.0, 0.32, 0.55);
    wall.cabinets[f9].isLeftOut = true;
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    QCOMPARE(textOf(found),
        QStringLiteral(
            "✓ 95 cabinets show this target; one is left out\n"
            "✓ All that are not left out reach a white of 1100.0 cd/m² (A1 is the limit, with red at full drive).\n"
            "- Left out of this verdict: F9."));
    QCOMPARE(found.cabinets[f9].judgement, Judgement::Fail);
    QCOMPARE(found.worstFirst.back(), f9);
    QVERIFY(found.correction.corrections[f9].matrix); // it is corrected as far as it can be
    QVERIFY(found.correction.largestWhite->cabinet != f9);
    QVERIFY(!found.before.chromaticity || found.before.chromaticity->difference < 1e-9);
    // Where luminances cannot be compared, the others decide on that of the corrections.
    wall.unit = LuminanceUnit::Relative;
    const WallAssessment relative = assessWall(wall, targetOf(1000.0));
    QVERIFY(std::fabs(relative.correction.target.white.Y - 1100.0) < 1e-6);
    for (WallCabinet &of : wall.cabinets) {
        of.isLeftOut = true;
    }
    wall.cabinets[0].isLeftOut = false;
    QCOMPARE(assessWall(wall, targetOf(500.0)).headline,
        QStringLiteral("Not known whether the cabinet A1 shows this target; 95 are left out"));
    DisplayWall alone = wall;
    alone.cabinets.resize(1);
    alone.cabinets.front().isLeftOut = true;
    alone.incomplete = {{QStringLiteral("A2"), std::nullopt, QStringLiteral("red is missing")}};
    QCOMPARE(assessWall(alone, targetOf(500.0)).headline,
        QStringLiteral("Not known whether the cabinet A2 shows this target; one is left out"));
    wall.cabinets[0].isLeftOut = true;
    const WallAssessment nothing = assessWall(wall, targetOf(1000.0));
    QCOMPARE(nothing.judgement, Judgement::NotKnown);
    QCOMPARE(nothing.headline, QStringLiteral("Nothing is judged: all cabinets are left out"));
}

// All of its chromaticities lie inside, but no correction shows it.
void WallAssessmentTest::targetThatIsNoMixture()
{
    Model::Targets of = targetOf(500.0).getTargets();
    of.white = color(500.0, 0.45, 0.5); // beyond red and green
    const DisplayGamut target{Model::ColorGamut("Wanted", of), cd};
    const WallAssessment found = assessWall(wallOf(1), target);
    QCOMPARE(found.correction.fault, Model::WallFault::WhiteOutside);
    QCOMPARE(found.cabinets[0].gamut, Judgement::Pass);
    QCOMPARE(found.judgement, Judgement::NotKnown);
    QCOMPARE(textOf(found),
        QStringLiteral("? Not known whether the cabinets show this target\n"
                       "? There are no corrections: the white of the target is not a mixture of its primaries.\n"
                       "- All reach a white of %1 (A1 is the limit, with red at full drive).")
            .arg(reachableText(found.largestWhite->luminance, cd)));
}

// The tolerance of the chart is an area, which reaches farther beside short sides.
void WallAssessmentTest::smallGamuts()
{
    DisplayWall wall;
    wall.unit = cd;
    wall.cabinets = {cabinet(QStringLiteral("A1"), 0, 0)};
    wall.cabinets[0].red = color(300.0, 0.345, 0.325);
    wall.cabinets[0].green = color(300.0, 0.315, 0.365);
    wall.cabinets[0].blue = color(300.0, 0.285, 0.295);
    const Model::Targets shown{wall.cabinets[0].red, wall.cabinets[0].green, wall.cabinets[0].blue, {}};
    const auto white = Model::DisplayDrive(shown).lightAt({1.0, 1.0, 1.0});
    const auto judged = [&](double greenY) {
        Model::Targets of = shown;
        of.green = color(300.0, 0.315, greenY);
        of.white = color(500.0, white->x, white->y);
        QVERIFY2(!Model::primariesOutside(of, shown).any(), "the chart takes it for inside");
        const DisplayGamut target{Model::ColorGamut("Wanted", of), cd};
        const double off = distanceOutside(of, Vertex::Green, shown);
        QCOMPARE(off > 0.0, greenY > 0.3655);
        QCOMPARE(assessWall(wall, target).cabinets[0].gamut, off > 0.0 ? Judgement::Fail : Judgement::Pass);
    };
    judged(0.3652);
    judged(0.3665);
}

void WallAssessmentTest::neighbors()
{
    DisplayWall wall = wallOf(2);
    wall.cabinets[4].red = color(wall.cabinets[4].red.Y * 1.2, 0.700, 0.295);
    wall.cabinets[20].row.reset();
    const WallAssessment found = assessWall(wall, targetOf(900.0));
    for (const std::size_t i : {std::size_t(3), std::size_t(5), std::size_t(16)}) {
        QCOMPARE(found.cabinets[i].neighborBefore->cabinet, std::size_t(4));
        QCOMPARE(found.cabinets[i].neighborBefore->uv,
            *Model::uvDifference(*found.cabinets[i].white, *found.cabinets[4].white));
        QVERIFY(found.cabinets[i].neighborAfter->uv < 1e-9);
    }
    QVERIFY(found.cabinets[0].neighborBefore->uv < 1e-9);
    QVERIFY(!found.cabinets[20].neighborBefore);
    QCOMPARE(found.before.neighborChromaticity->difference, found.cabinets[3].neighborBefore->uv);
}

void WallAssessmentTest::wallStandsForTheDisplay()
{
    DisplayDescription description;
    description.wall = wallOf(2);
    description.gamuts.push_back(targetOf(1000.0));
    description.target = QStringLiteral("Wanted");
    const Assessment found = assess(description);
    QCOMPARE(found.judgement(), Judgement::Pass);
    QCOMPARE(found.headline(), QStringLiteral("The display can show the target"));
    QCOMPARE(found.lines.first().text, QStringLiteral("All 24 cabinets show this target."));
    QCOMPARE(found.lines.first().subject, AssessmentLine::Subject::Wall);
    QVERIFY(found.wall);
    dim(description.wall.cabinets[3], 0.5);
    QCOMPARE(assess(description).judgement(), Judgement::Fail);
    description.wall.unit = LuminanceUnit::NotKnown;
    QCOMPARE(assess(description).judgement(), Judgement::NotKnown);
}

void WallAssessmentTest::wallAndOriginalAreBothGrounds()
{
    DisplayDescription description;
    description.wall = wallOf(2);
    description.gamuts.push_back(targetOf(1000.0));
    description.target = QStringLiteral("Wanted");
    DisplayGamut original = targetOf(900.0);
    description.gamuts.push_back({Model::ColorGamut("Data sheet", original.getTargets()), cd});
    description.original = QStringLiteral("Data sheet");
    const Assessment found = assess(description);
    QCOMPARE(found.judgement(), Judgement::Fail); // the data sheet has less
    QVERIFY(found.wall);
    QCOMPARE(found.wall->judgement, Judgement::Pass);
}

void WallAssessmentTest::wallWithoutATarget()
{
    DisplayDescription description;
    description.wall = wallOf(2);
    const Assessment found = assess(description);
    QCOMPARE(found.judgement(), Judgement::NotKnown);
    QCOMPARE(found.lines.size(), 1);
    QCOMPARE(found.lines.first().subject, AssessmentLine::Subject::Target);
    QVERIFY(!found.wall);
}

QTEST_GUILESS_MAIN(WallAssessmentTest)
#include "wallassessmenttest.moc"
