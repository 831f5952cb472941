// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/textreport.h"
#include "display/wallassessmenttexts.h"
#include "display/wallreport.h"
#include "editing/wallcommand.h"

#include <ceiechart/diagram/targetrules.h>
#include <gamutmodel/nearestinside.h>

#include <QtTest>

#include <QJsonArray>

#include <cmath>
#include <random>

using namespace gamutviewer;
using Vertex = ceiechart::GamutVertex;

Q_DECLARE_METATYPE(LuminanceUnit)

class WallAssessmentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void equalCabinets();
    void oneDimCabinet();
    void oneNarrowCabinet();
    void twoBadCabinetsAreNamed();
    void manyBadCabinetsAreCounted();
    void allBadCabinets();
    void headroomAgainstCramersRule();
    void luminancesThatDoNotCompare_data();
    void luminancesThatDoNotCompare();
    void targetWithoutLuminance();
    void nearlySingularCabinet();
    void cabinetWithoutLight();
    void whiteThatIsNotTheSum();
    void correctionsAreAsKnown();
    void whatRemainsOfACabinetThatIsTooDark();
    void primariesThatDoNotMix();
    void fittedLuminanceIsTheOneThatIsShown();
    void whiteThatIsBelowTheSumAndTooDim();
    void measuredWhiteDecidesWhereItWasMeasured();
    void nothingInCommon();
    void whiteOutsideOfTheWall();
    void fittedTargetIsShownByAll();
    void leftOutCabinetDoesNotCount();
    void neighbors();
    void blacksAreCorrected();
    void blackThatKeepsACabinetOff();
    void blackThatIsNotSeen();
    void darkContentOverABrightBlackIsNotJudged();
    void blackTooBrightForAnyTarget();
    void fittedTargetPassesOverBlacks();
    void reachedLuminancesAreRoundedDown();
    void largestOfWhichItIsKnown();
    void exchangedPrimariesAreTold();
    void exchangedPrimariesOfManyAreCounted();
    void incompleteCabinetsAreNotKnown();
    void manyIncompleteCabinetsAreCounted();
    void oneCabinet();
    void namesStandOnOneLine();
    void namesThatAreThereTwiceHaveTheirPlace();
    void wallStandsForTheDisplay();
    void wallAndOriginalAreBothGrounds();
    void wallWithoutATarget();
};

namespace {

constexpr LuminanceUnit cd = LuminanceUnit::CandelaPerSquareMetre;

Model::Target color(double Y, double x, double y)
{
    return Model::Target::fromYxy(Y, x, y);
}

//! Primaries of Rec.2020 that mix to a D65 of \a luminance.
WallCabinet cabinet(const QString &name, int row, int column, double luminance = 1100.0)
{
    const Model::Targets of = Model::rec2020().getTargets();
    WallCabinet result;
    result.name = name;
    result.row = row;
    result.column = column;
    result.red = color(of.red.Y * luminance, of.red.x, of.red.y);
    result.green = color(of.green.Y * luminance, of.green.x, of.green.y);
    result.blue = color(of.blue.Y * luminance, of.blue.x, of.blue.y);
    return result;
}

//! \a rows of 12 cabinets, "A1" at the top left.
DisplayWall wallOf(int rows, LuminanceUnit unit = cd)
{
    DisplayWall wall;
    wall.unit = unit;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < 12; ++column) {
            wall.cabinets.push_back(cabinet(QStringLiteral("%1%2").arg(QChar('A' + row)).arg(column + 1), row, column));
        }
    }
    return wall;
}

constexpr std::size_t f9 = 5 * 12 + 8;
constexpr std::size_t c4 = 2 * 12 + 3;

DisplayGamut targetOf(double luminance, LuminanceUnit unit = cd)
{
    Model::Targets of = Model::rec709().getTargets();
    for (Model::Target *t : {&of.red, &of.green, &of.blue, &of.white}) {
        *t = color(t->Y * luminance, t->x, t->y);
    }
    return {Model::ColorGamut("Wanted", of), unit};
}

QString textOf(const WallAssessment &assessment)
{
    QStringList lines(judgementMark(assessment.judgement) + QLatin1Char(' ') + assessment.headline);
    for (const WallLine &line : assessment.lines) {
        lines.append(
            (line.judgement ? judgementMark(*line.judgement) : QStringLiteral("-")) + QLatin1Char(' ') + line.text);
    }
    return lines.join(QLatin1Char('\n'));
}

void dim(WallCabinet &of, double factor)
{
    for (Model::Target *t : {&of.red, &of.green, &of.blue}) {
        *t = color(t->Y * factor, t->x, t->y);
    }
}

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
        narrow.headline, QStringLiteral("1 of 24 cabinets do not show this target; of the others it is not known"));
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

void WallAssessmentTest::cabinetWithoutLight()
{
    DisplayWall wall = wallOf(2);
    wall.cabinets[4].blue = color(0.0, 0.131, 0.046);
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    QCOMPARE(found.judgement, Judgement::NotKnown);
    QVERIFY(textOf(found).contains(QStringLiteral("? A5: blue has no luminance of its own.")));
}

void WallAssessmentTest::whiteThatIsNotTheSum()
{
    DisplayWall wall = wallOf(2);
    const Model::Target d65 = Model::rec2020().getTargets().white;
    wall.cabinets[4].white = color(1050.0, d65.x, d65.y); // a power limit
    wall.cabinets[5].white = color(1095.0, d65.x, d65.y); // within what instruments repeat
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    QCOMPARE(found.cabinets[4].judgement, Judgement::NotKnown);
    QVERIFY(!found.cabinets[4].isAdditive);
    QVERIFY(std::fabs(*found.cabinets[4].headroom - 1.05) < 1e-12); // it was measured at the white of the target
    QVERIFY(!found.cabinets[4].uvAfter);
    QCOMPARE(found.cabinets[5].judgement, Judgement::Pass);
    QVERIFY2(textOf(found).contains(QStringLiteral("? A5: the white is 1050.0 cd/m², the primaries add to 1100.0 "
                                                   "cd/m²: what it shows with its correction cannot be worked out.")),
        qPrintable(textOf(found)));
    // Elsewhere nothing tells what it reaches.
    wall.cabinets[4].white = color(1050.0, d65.x + 0.001, d65.y);
    const WallAssessment other = assessWall(wall, targetOf(1000.0));
    QCOMPARE(other.cabinets[4].judgement, Judgement::NotKnown);
    QVERIFY(!other.cabinets[4].headroom);
    QVERIFY2(textOf(other).contains(QStringLiteral("? A5: the white is 1050.0 cd/m², the primaries add to 1100.0 "
                                                   "cd/m²: what it reaches cannot be worked out.")),
        qPrintable(textOf(other)));
}

void WallAssessmentTest::measuredWhiteDecidesWhereItWasMeasured()
{
    const Model::Target d65 = Model::rec2020().getTargets().white;
    DisplayWall wall = wallOf(1);
    wall.cabinets[4].white = color(1085.0, d65.x, d65.y); // additive within the tolerance
    const DisplayGamut bright = targetOf(1095.0);
    const WallAssessment found = assessWall(wall, bright);
    QVERIFY(found.cabinets[4].isAdditive);
    QCOMPARE(found.cabinets[4].judgement, Judgement::Fail);
    QVERIFY(std::fabs(*found.cabinets[4].largestWhite - 1085.0) < 1e-9);
    QVERIFY2(textOf(found).contains(QStringLiteral("✗ A5: white reaches 1085.0 cd/m² only, of 1095.0 cd/m²")),
        qPrintable(textOf(found)));
    const auto fitted = fittedToWall(bright, found);
    QVERIFY(fitted);
    QVERIFY(std::fabs(fitted->white.Y - 1085.0) < 1e-9);
    QCOMPARE(assessWall(wall, {Model::ColorGamut("Fitted", *fitted), cd}).judgement, Judgement::Pass);
    // As of a single display
    DisplayDescription display;
    Model::Targets colors{wall.cabinets[4].red, wall.cabinets[4].green, wall.cabinets[4].blue, *wall.cabinets[4].white};
    display.gamuts = {{Model::ColorGamut("Measured", colors), cd}, bright};
    display.measured = QStringLiteral("Measured");
    display.target = QStringLiteral("Wanted");
    const Assessment single = assess(display);
    QCOMPARE(single.judgement(), Judgement::Fail);
    QVERIFY(std::fabs(single.displays.front().largestWhite->luminance - *found.cabinets[4].largestWhite) < 1e-9);
    // At another white it has no more than its part of the sum, and never more than the sum.
    for (const double measured : {1085.0, 1115.0}) {
        wall.cabinets[4].white = color(measured, d65.x + 0.0008, d65.y);
        const auto sum = Model::DisplayDrive(colors).largestLuminance({d65.x, d65.y});
        const double reached = *assessWall(wall, bright).cabinets[4].largestWhite;
        QVERIFY(measured < 1100.0 ? reached < sum->luminance - 1.0 : std::fabs(reached - sum->luminance) < 1e-9);
    }
    // Of one that is not additive, the measured white alone fails it, and the fit goes by it.
    wall.cabinets[4].white = color(600.0, d65.x, d65.y);
    const DisplayGamut target = targetOf(900.0);
    const WallAssessment limited = assessWall(wall, target);
    QCOMPARE(limited.cabinets[4].judgement, Judgement::Fail);
    QVERIFY2(textOf(limited).contains(QStringLiteral("✗ A5: white reaches 600.0 cd/m² only, of 900.0 cd/m².")),
        qPrintable(textOf(limited)));
    const auto dimmed = fittedToWall(target, limited);
    QVERIFY(dimmed);
    QCOMPARE(dimmed->white.Y, 600.0);
    QCOMPARE(assessWall(wall, {Model::ColorGamut("Fitted", *dimmed), cd}).judgement, Judgement::NotKnown);
}

// What a correction leaves follows from the primaries, and is known no better than the measured white is their sum.
void WallAssessmentTest::correctionsAreAsKnown()
{
    const Model::Target d65 = Model::rec2020().getTargets().white;
    DisplayWall wall = wallOf(1);
    wall.cabinets[4].white = color(1085.0, d65.x, d65.y); // additive within the tolerance
    wall.cabinets[5].white = color(600.0, d65.x + 0.01, d65.y); // not additive
    const DisplayGamut target = targetOf(1095.0);
    const WallAssessment found = assessWall(wall, target);
    const Model::WallCorrection plain = Model::wallCorrection(wall.modelCabinets(), target.getTargets(), 1095.0);
    const Model::Correction &measured = found.correction.corrections[4];
    QVERIFY(std::fabs(measured.largestWhite->luminance - 1085.0) < 1e-9);
    QCOMPARE(measured.shown->white.Y, plain.corrections[4].shown->white.Y);
    QCOMPARE(*measured.remaining.whiteUv, *plain.corrections[4].remaining.whiteUv);
    QVERIFY(std::fabs(found.cabinets[4].offSum->luminance - (1085.0 / 1100.0 - 1.0)) < 1e-9);
    QVERIFY2(textOf(found).contains(QStringLiteral("Measured whites are up to 1.4 % and Δu′v′ ")),
        qPrintable(textOf(found)));
    QVERIFY2(textOf(found).contains(QStringLiteral("off the sums of the primaries (A5).")), qPrintable(textOf(found)));
    const Model::Correction &notAdditive = found.correction.corrections[5];
    QVERIFY(notAdditive.matrix);
    QVERIFY(!notAdditive.largestWhite && !notAdditive.shown && !notAdditive.remaining.whiteUv);
    QVERIFY(!found.cabinets[5].uvAfter);
    QCOMPARE(found.correction.largestWhite->cabinet, std::size_t(4));
    // Within what cannot be seen there is nothing to say.
    wall.cabinets[4].white = color(1100.0 * 1.0015, d65.x, d65.y);
    wall.cabinets[5].white.reset();
    QVERIFY(!textOf(assessWall(wall, target)).contains(QStringLiteral("Measured whites")));
}

// Of a cabinet that is too dark, what remains is what its clamped drives show.
void WallAssessmentTest::whatRemainsOfACabinetThatIsTooDark()
{
    DisplayWall wall = wallOf(1);
    wall.cabinets[4].green = color(300.0, 0.26, 0.66);
    const DisplayGamut target = targetOf(500.0);
    const WallAssessment found = assessWall(wall, target);
    const Model::Correction &correction = found.correction.corrections[4];
    const Model::Drive drive = correction.matrix->driveFor({1.0, 1.0, 1.0});
    const auto possible = [](double of) { return std::clamp(of, 0.0, 1.0); };
    const WallCabinet &of = wall.cabinets[4];
    const double shown
        = possible(drive.red) * of.red.Y + possible(drive.green) * of.green.Y + possible(drive.blue) * of.blue.Y;
    QVERIFY(shown < 490.0);
    QVERIFY(std::fabs(*correction.remaining.luminance - (shown / 500.0 - 1.0)) < 1e-12);
    QVERIFY(std::fabs(found.after.luminance->difference - (1.0 - shown / 500.0)) < 1e-9);
}

void WallAssessmentTest::primariesThatDoNotMix()
{
    const DisplayWall wall = wallOf(1);
    Model::Targets colors = targetOf(500.0).getTargets();
    colors.blue = color(colors.blue.Y * 1.05, colors.blue.x, colors.blue.y);
    const WallAssessment found = assessWall(wall, {Model::ColorGamut("Wanted", colors), cd});
    QVERIFY2(textOf(found).contains(
                 QStringLiteral("The luminances of the target's primaries do not mix to its white. A correction is for "
                                "those that do: red ")),
        qPrintable(textOf(found)));
    colors = targetOf(500.0).getTargets();
    colors.blue = color(colors.blue.Y * 1.005, colors.blue.x, colors.blue.y); // as people round
    QVERIFY(
        !textOf(assessWall(wall, {Model::ColorGamut("Wanted", colors), cd})).contains(QStringLiteral("do not mix")));
}

void WallAssessmentTest::fittedLuminanceIsTheOneThatIsShown()
{
    DisplayWall wall = wallOf(1);
    dim(wall.cabinets[7], 0.81127);
    const DisplayGamut target = targetOf(1000.0);
    const WallAssessment found = assessWall(wall, target);
    const auto fitted = fittedToWall(target, found);
    QVERIFY(fitted);
    QVERIFY(fitted->white.Y <= found.largestWhite->luminance);
    QVERIFY(fitted->white.Y > found.largestWhite->luminance - 0.1);
    QCOMPARE(fitted->white.Y, QString::number(fitted->white.Y, 'f', 1).toDouble());
}

void WallAssessmentTest::whiteThatIsBelowTheSumAndTooDim()
{
    DisplayWall wall = wallOf(2);
    const Model::Target d65 = Model::rec2020().getTargets().white;
    wall.cabinets[4].white = color(1050.0, d65.x, d65.y);
    const WallAssessment found = assessWall(wall, targetOf(1200.0));
    QCOMPARE(found.cabinets[4].judgement, Judgement::Fail); // it shows no more than its primaries do
    // The fit goes by what it shows at the most.
    wall.cabinets[4].white = color(1050.0, d65.x + 0.001, d65.y);
    const WallAssessment limited = assessWall(wall, targetOf(1200.0));
    QCOMPARE(limited.cabinets[4].judgement, Judgement::Fail);
    const auto fitted = fittedToWall(targetOf(1200.0), limited);
    QVERIFY(fitted);
    QCOMPARE(assessWall(wall, {Model::ColorGamut("Fitted", *fitted), cd}).judgement, Judgement::NotKnown);
    wall.cabinets[4].white = color(1500.0, d65.x, d65.y); // more than they do, by a white LED
    QCOMPARE(assessWall(wall, targetOf(1200.0)).cabinets[4].judgement, Judgement::NotKnown);
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
    const WallAssessment nothing = assessWall(wall, targetOf(1000.0));
    QCOMPARE(nothing.judgement, Judgement::NotKnown);
    QCOMPARE(nothing.headline, QStringLiteral("Nothing is judged: all cabinets are left out"));
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

void WallAssessmentTest::blacksAreCorrected()
{
    DisplayWall wall = wallOf(1);
    for (WallCabinet &of : wall.cabinets) {
        of.black = color(0.5, 0.30, 0.31);
    }
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    QCOMPARE(found.judgement, Judgement::Pass);
    QVERIFY(*found.cabinets[0].uvAfter < 1e-9);
    QVERIFY(*found.cabinets[0].largestWhite < 1100.0); // the black is in each of the primaries, and once in the white
}

void WallAssessmentTest::blackThatKeepsACabinetOff()
{
    DisplayWall wall = wallOf(1);
    wall.cabinets[4].black = color(3.0, 0.31, 0.33);
    Model::Targets of = Model::rec2020().getTargets(); // the cabinets' own
    for (Model::Target *t : {&of.red, &of.green, &of.blue, &of.white}) {
        *t = color(t->Y * 500.0, t->x, t->y);
    }
    const DisplayGamut target{Model::ColorGamut("Wanted", of), cd};
    const WallAssessment found = assessWall(wall, target);
    const CabinetAssessment &cabinet = found.cabinets[4];
    QCOMPARE(found.judgement, Judgement::Fail);
    QCOMPARE(cabinet.judgement, Judgement::Fail);
    QCOMPARE(cabinet.gamut, Judgement::Pass);
    QCOMPARE(cabinet.luminance, Judgement::Pass);
    QCOMPARE(found.headline, QStringLiteral("11 of 12 cabinets show this target; A5 does not"));
    const Model::DeviationValues &remaining = found.correction.corrections[4].remaining;
    const std::optional<double> off[] = {remaining.redUv, remaining.greenUv, remaining.blueUv};
    double most = 0.0;
    for (const Vertex vertex : {Vertex::Red, Vertex::Green, Vertex::Blue}) {
        const double distance = cabinet.offByBlack[std::size_t(vertex)];
        QVERIFY(distance > visibleUv);
        QVERIFY(std::fabs(distance - *off[int(vertex)]) < 1e-12);
        most = std::max(most, distance);
    }
    QCOMPARE(cabinet.offByBlack[std::size_t(Vertex::White)], 0.0);
    QCOMPARE(cabinet.offByBlack[std::size_t(*cabinet.limit)], most);
    const QString line = found.lines.first().text;
    QVERIFY2(line.startsWith(QStringLiteral("A5: the black is too bright, and keeps it off red by Δu′v′ ")
                 + QString::number(*off[0], 'f', 4) + QStringLiteral(", green by Δu′v′ ")),
        qPrintable(line));
    QVERIFY(line.contains(QStringLiteral("measure the black without stray light")));
    QVERIFY2(textOf(found).contains(QStringLiteral("- Without A5, all show the target.")), qPrintable(textOf(found)));
    const QJsonArray reported = wallReport(wall, &found).value(QStringLiteral("cabinets")).toArray();
    const auto blackOf
        = [&](int i) { return reported.at(i).toObject().value(QStringLiteral("offByBlack")).toObject(); };
    QCOMPARE(blackOf(4).value(QStringLiteral("red")).toDouble(), cabinet.offByBlack[std::size_t(Vertex::Red)]);
    QVERIFY(!blackOf(4).contains(QStringLiteral("white")) && blackOf(3).isEmpty());
    const auto fitted = fittedToWall(target, found);
    QVERIFY(fitted);
    QCOMPARE(fitted->white.Y, 500.0);
    QCOMPARE(found.fit.red.limit, std::make_optional(std::size_t(4)));
    QCOMPARE(assessWall(wall, {Model::ColorGamut("Fitted", *fitted), cd}).judgement, Judgement::Pass);
    // Without luminances that compare it is not known.
    wall.unit = LuminanceUnit::Relative;
    QCOMPARE(assessWall(wall, target).judgement, Judgement::NotKnown);
}

void WallAssessmentTest::blackThatIsNotSeen()
{
    DisplayWall wall = wallOf(1);
    Model::Targets of = Model::rec2020().getTargets();
    for (Model::Target *t : {&of.red, &of.green, &of.blue, &of.white}) {
        *t = color(t->Y * 500.0, t->x, t->y);
    }
    for (WallCabinet &cabinet : wall.cabinets) {
        cabinet.black = color(0.02, 0.31, 0.33);
    }
    const WallAssessment found = assessWall(wall, {Model::ColorGamut("Wanted", of), cd});
    QVERIFY(*found.correction.corrections[0].remaining.blueUv > 1e-6);
    QVERIFY(*found.correction.corrections[0].remaining.blueUv < visibleUv);
    QCOMPARE(found.judgement, Judgement::Pass);
}

void WallAssessmentTest::darkContentOverABrightBlackIsNotJudged()
{
    DisplayWall wall = wallOf(1);
    wall.cabinets[4].black = color(0.05, 0.36, 0.38);
    const DisplayGamut target = targetOf(500.0);
    const WallAssessment found = assessWall(wall, target);
    QCOMPARE(found.judgement, Judgement::Pass);
    const QString remark = QStringLiteral("Content that is darker than the target is not judged: at 10.0 % of its "
                                          "luminance, the black of A5 shifts blue by ");
    QVERIFY2(textOf(found).contains(remark), qPrintable(textOf(found)));
    // The light of a tenth of the target's blue, and of nine tenths of the black.
    const Model::Target &blue = found.correction.target.blue;
    const Model::Target &black = *wall.cabinets[4].black;
    const double X = 0.1 * blue.X + 0.9 * black.X;
    const double Y = 0.1 * blue.Y + 0.9 * black.Y;
    const double Z = 0.1 * blue.Z + 0.9 * black.Z;
    const double denominator = X + 15.0 * Y + 3.0 * Z;
    const double shift = std::hypot(4.0 * X / denominator - blue.u, 9.0 * Y / denominator - blue.v);
    QVERIFY(shift > visibleUv);
    QVERIFY2(textOf(found).contains(remark + QString::fromUtf8("Δu′v′ %1.").arg(shift, 0, 'f', 4)),
        qPrintable(textOf(found)));
    wall.cabinets[4].black = color(0.0005, 0.36, 0.38); // too little to be seen
    QVERIFY(!textOf(assessWall(wall, target)).contains(QLatin1String("darker")));
    wall.cabinets[4].black = color(0.05, 0.36, 0.38);
    wall.cabinets[4].isLeftOut = true;
    QVERIFY(!textOf(assessWall(wall, target)).contains(QLatin1String("darker")));
}

void WallAssessmentTest::blackTooBrightForAnyTarget()
{
    DisplayWall wall = wallOf(1);
    wall.cabinets[4].black = color(30.0, 0.30, 0.31);
    const DisplayGamut target = targetOf(20.0);
    const WallAssessment found = assessWall(wall, target);
    QCOMPARE(found.cabinets[4].judgement, Judgement::Fail);
    QVERIFY(!fittedToWall(target, found));
    QCOMPARE(fitProblem(wall, found),
        QStringLiteral(
            "The target cannot be fitted: its white is too dark over the black of A5. Raise the luminance of "
            "the white, or measure the black again without stray light."));
}

void WallAssessmentTest::fittedTargetPassesOverBlacks()
{
    std::mt19937 random(14);
    std::uniform_real_distribution<double> any(-1.0, 1.0);
    std::uniform_real_distribution<double> part(0.0, 1.0);
    int failing = 0;
    int byBlack = 0;
    for (int i = 0; i < 2000; ++i) {
        DisplayWall wall = wallOf(1 + i % 2);
        wall.cabinets.resize(std::size_t(2 + i % 12));
        const double black = 20.0 * std::pow(part(random), 4.0);
        for (WallCabinet &of : wall.cabinets) {
            for (Model::Target *t : {&of.red, &of.green, &of.blue}) {
                *t = color(t->Y * (1.0 + 0.1 * any(random)), t->x + 0.01 * any(random), t->y + 0.01 * any(random));
            }
            of.black = color(black * (0.5 + part(random)), 0.30 + 0.02 * any(random), 0.31 + 0.02 * any(random));
            of.isLeftOut = part(random) < 0.1;
            if (i % 4 == 0) {
                const Model::Target sum
                    = *Model::DisplayDrive({of.red, of.green, of.blue, {}}, of.black).lightAt({1.0, 1.0, 1.0});
                of.white = color(sum.Y * (1.0 + 0.019 * any(random)), sum.x, sum.y);
            }
        }
        wall.cabinets.front().isLeftOut = false;
        Model::Targets wish = i % 3 == 0 ? Model::rec709().getTargets() : Model::rec2020().getTargets();
        const double luminance = 200.0 + 1100.0 * part(random);
        for (Model::Target *t : {&wish.red, &wish.green, &wish.blue, &wish.white}) {
            *t = color(t->Y * luminance, t->x, t->y);
        }
        if (i % 5 == 0) { // at a measured white
            wish.white = color(luminance, wall.cabinets.front().white.value_or(wish.white).x,
                wall.cabinets.front().white.value_or(wish.white).y);
        }
        const DisplayGamut target{Model::ColorGamut("Wanted", wish), cd};
        const WallAssessment found = assessWall(wall, target);
        const auto fitted = fittedToWall(target, found);
        QCOMPARE(bool(fitted), found.judgement == Judgement::Fail);
        if (!fitted) {
            continue;
        }
        ++failing;
        const DisplayGamut after{Model::ColorGamut("Fitted", *fitted), cd};
        const WallAssessment passes = assessWall(wall, after);
        QVERIFY2(passes.judgement == Judgement::Pass, qPrintable(QString::number(i) + textOf(passes)));
        // Without the blacks the fit would not do.
        DisplayWall dark = wall;
        for (WallCabinet &of : dark.cabinets) {
            of.black.reset();
        }
        const auto blind = fittedToWall(target, assessWall(dark, target));
        byBlack += blind && assessWall(wall, {Model::ColorGamut("Blind", *blind), cd}).judgement == Judgement::Fail;
    }
    QVERIFY(failing > 1500);
    QVERIFY(byBlack > 500);
}

void WallAssessmentTest::reachedLuminancesAreRoundedDown()
{
    DisplayDescription description;
    description.wall = wallOf(1);
    dim(description.wall.cabinets[4], 935.08 / 1100.0);
    description.gamuts.push_back(targetOf(1000.0));
    description.target = QStringLiteral("Wanted");
    const QString report = QString::fromUtf8(textReport(description));
    QVERIFY2(report.contains(QStringLiteral("white reaches 935.0 cd/m² only")), qPrintable(report));
    QVERIFY2(!report.contains(QStringLiteral("935.1")), qPrintable(report));
    const auto fitted = withTargetFittedToWall(description);
    QVERIFY(fitted);
    const QString notes = fitted->notes.join(QLatin1Char('\n'));
    QVERIFY2(notes.contains(QStringLiteral("a white of 935.0 cd/m² instead of 1000.0 cd/m²")), qPrintable(notes));
    // Of a relative target as well
    description.gamuts = {targetOf(1.0, LuminanceUnit::Relative)};
    const auto relative = withTargetFittedToWall(description);
    QVERIFY(relative);
    QVERIFY2(relative->notes.first().contains(QStringLiteral("at 935.0 cd/m², the largest that all cabinets reach")),
        qPrintable(relative->notes.first()));
    QVERIFY(!relative->notes.first().contains(QStringLiteral("of which it is known")));
    const auto made = corrections(description, QString(), QStringLiteral("c.csv"));
    QVERIFY(made);
    QVERIFY2(
        made->notes.first().contains(QStringLiteral("a white of 935.0 cd/m², the largest that all cabinets reach, ")),
        qPrintable(made->notes.first()));
}

void WallAssessmentTest::largestOfWhichItIsKnown()
{
    const Model::Target d65 = Model::rec2020().getTargets().white;
    for (const bool isIncomplete : {false, true}) {
        DisplayDescription description;
        description.wall = wallOf(1);
        if (isIncomplete) {
            description.wall.incomplete.push_back(
                {QStringLiteral("B1"), std::nullopt, QStringLiteral("blue is missing")});
        } else {
            description.wall.cabinets[4].white = color(800.0, d65.x + 0.001, d65.y); // less than the sum
        }
        description.gamuts.push_back(targetOf(1.0, LuminanceUnit::Relative));
        description.target = QStringLiteral("Wanted");
        const QString known = QStringLiteral("the largest that all cabinets reach of which it is known");
        const auto made = corrections(description, QString(), QStringLiteral("c.csv"));
        QVERIFY(made);
        QVERIFY2(made->notes.first().contains(known), qPrintable(made->notes.first()));
        const auto fitted = withTargetFittedToWall(description);
        QVERIFY(fitted);
        QVERIFY2(fitted->notes.first().contains(known), qPrintable(fitted->notes.first()));
        const QString text = textOf(assessWall(description.wall, targetOf(1.0, LuminanceUnit::Relative)));
        QVERIFY2(text.contains(QStringLiteral("All of which it is known reach a white of ")), qPrintable(text));
    }
}

void WallAssessmentTest::exchangedPrimariesAreTold()
{
    const QString warning
        = QStringLiteral("A3: red and green seem to be exchanged. Check the measurement: a correction drives the "
                         "primaries as they are named.");
    DisplayDescription description;
    description.wall = wallOf(1);
    description.gamuts.push_back(targetOf(1000.0));
    description.target = QStringLiteral("Wanted");
    QVERIFY(exchangeTexts(description.wall).isEmpty());
    QVERIFY(!textOf(assessWall(description.wall, targetOf(1000.0))).contains(QStringLiteral("exchanged")));
    std::swap(description.wall.cabinets[2].red, description.wall.cabinets[2].green);
    const WallAssessment found = assessWall(description.wall, targetOf(1000.0));
    QCOMPARE(found.judgement, Judgement::Pass); // by its triangle it shows the target
    QCOMPARE(found.lines.size(), 2);
    QCOMPARE(found.lines.last().text, warning);
    QVERIFY(found.lines.last().isWarning);
    QVERIFY(!found.lines.last().judgement);
    QCOMPARE(QString::fromUtf8(verdictText(assess(description))).count(QStringLiteral("warning: ") + warning), 1);
    QCOMPARE(QString::fromUtf8(textReport(description)).count(warning), 1);
    const auto made = corrections(description, QString(), QStringLiteral("c.csv"));
    QVERIFY(made);
    QVERIFY2(made->notes.contains(warning), qPrintable(made->notes.join(QLatin1Char('\n'))));
    // Where something fails, the warning comes before what is no ground.
    dim(description.wall.cabinets[7], 0.5);
    const WallAssessment fails = assessWall(description.wall, targetOf(1000.0));
    QCOMPARE(fails.lines.at(1).text, warning);
}

void WallAssessmentTest::exchangedPrimariesOfManyAreCounted()
{
    DisplayWall wall = wallOf(2);
    for (WallCabinet &of : wall.cabinets) {
        std::swap(of.red, of.blue);
    }
    std::swap(wall.cabinets[3].red, wall.cabinets[3].green);
    const QStringList texts = exchangeTexts(wall);
    QCOMPARE(texts.size(), 2);
    QVERIFY2(texts.at(0).startsWith(QStringLiteral("A1 and 22 others: red and blue seem to be exchanged.")),
        qPrintable(texts.at(0)));
    QVERIFY2(texts.at(1).startsWith(QStringLiteral("A4: red, green and blue seem to be exchanged.")),
        qPrintable(texts.at(1)));
}

void WallAssessmentTest::incompleteCabinetsAreNotKnown()
{
    DisplayDescription description;
    description.wall = wallOf(1);
    description.wall.cabinets.resize(3);
    description.wall.incomplete.push_back(
        {QStringLiteral("A4"), Model::GridPosition{0, 3}, QStringLiteral("blue is missing")});
    description.gamuts.push_back(targetOf(1000.0));
    description.target = QStringLiteral("Wanted");
    const WallAssessment found = assessWall(description.wall, targetOf(1000.0));
    QCOMPARE(textOf(found),
        QStringLiteral("? 3 of 4 cabinets show this target; of 1 it is not known\n"
                       "? A4: blue is missing.\n"
                       "- All of which it is known reach a white of 1100.0 cd/m² (A1 is the limit, with red at full "
                       "drive)."));
    QCOMPARE(assess(description).judgement(), Judgement::NotKnown);
    const QString report = QString::fromUtf8(textReport(description));
    QVERIFY2(report.contains(QStringLiteral("\nA4 (blue is missing)  "))
            && report.contains(QStringLiteral("A4: blue is missing.")),
        qPrintable(report));
    const QJsonArray reported = wallReport(description.wall, &found).value(QStringLiteral("cabinets")).toArray();
    QVERIFY(!description.wall.cabinets[0].white);
    QVERIFY(reported.at(0).toObject().value(QStringLiteral("additive")).isNull()); // no white was measured
    const QJsonArray listed = wallReport(description.wall, &found).value(QStringLiteral("incomplete")).toArray();
    QCOMPARE(listed.size(), 1);
    QCOMPARE(listed.first().toObject().value(QStringLiteral("cabinet")).toString(), QStringLiteral("A4 0/3"));
    QCOMPARE(listed.first().toObject().value(QStringLiteral("column")).toInt(), 3);
    QCOMPARE(listed.first().toObject().value(QStringLiteral("reason")).toString(), QStringLiteral("blue is missing"));
    // One that fails decides.
    dim(description.wall.cabinets[0], 0.5);
    const WallAssessment fails = assessWall(description.wall, targetOf(1000.0));
    QCOMPARE(fails.judgement, Judgement::Fail);
    QCOMPARE(fails.headline, QStringLiteral("2 of 4 cabinets show this target; A1 does not; of 1 it is not known"));
    QVERIFY(!textOf(fails).contains(QStringLiteral("Without A1")));
    description.wall.cabinets.resize(1);
    QCOMPARE(assessWall(description.wall, targetOf(1000.0)).headline,
        QStringLiteral("1 of 2 cabinets do not show this target; of the others it is not known"));
}

void WallAssessmentTest::manyIncompleteCabinetsAreCounted()
{
    DisplayWall wall = wallOf(1);
    for (int i = 0; i < 9; ++i) {
        wall.incomplete.push_back(
            {QStringLiteral("B%1").arg(i), std::nullopt, QStringLiteral("red is there more than once")});
    }
    const QString text = textOf(assessWall(wall, targetOf(1000.0)));
    QVERIFY2(text.contains(QStringLiteral("? B2: red is there more than once.\n? Of 6 other cabinets it is not known "
                                          "either.")),
        qPrintable(text));
    QVERIFY(!text.contains(QStringLiteral("B3")));
    QVERIFY(text.startsWith(QStringLiteral("? 12 of 21 cabinets show this target; of 9 it is not known")));
}

void WallAssessmentTest::oneCabinet()
{
    DisplayWall wall = wallOf(1);
    wall.cabinets.resize(1);
    QCOMPARE(assessWall(wall, targetOf(1000.0)).headline, QStringLiteral("The cabinet A1 shows this target"));
    QVERIFY(
        assessWall(wall, targetOf(1000.0)).lines.last().text.startsWith(QLatin1String("It reaches a white of 1100")));
    QCOMPARE(assessWall(wall, targetOf(2000.0)).headline, QStringLiteral("The cabinet A1 does not show this target"));
    DisplayDescription description;
    description.wall = wall;
    description.gamuts = {targetOf(1000.0)};
    description.target = nameOf(targetOf(1000.0));
    QCOMPARE(assess(description).headline(), QStringLiteral("The cabinet A1 can show the target"));
    wall.unit = LuminanceUnit::NotKnown;
    QCOMPARE(assessWall(wall, targetOf(1000.0)).headline,
        QStringLiteral("Not known whether the cabinet A1 shows this target"));
}

void WallAssessmentTest::namesStandOnOneLine()
{
    DisplayWall wall = wallOf(1);
    wall.cabinets[2].name = QStringLiteral("left\nstage <b>");
    dim(wall.cabinets[2], 0.5);
    const WallAssessment found = assessWall(wall, targetOf(1000.0));
    QVERIFY(!found.headline.contains(QLatin1Char('\n')));
    QVERIFY(found.headline.contains(QStringLiteral("<b>")));
}

void WallAssessmentTest::namesThatAreThereTwiceHaveTheirPlace()
{
    DisplayWall wall = wallOf(1);
    wall.cabinets[1].name = wall.cabinets[0].name;
    wall.cabinets[2].name.clear();
    const std::vector<QString> names = cabinetNames(wall);
    QCOMPARE(names[0], QStringLiteral("A1 0/0"));
    QCOMPARE(names[1], QStringLiteral("A1 0/1"));
    QCOMPARE(names[2], QStringLiteral("0/2"));
    QCOMPARE(names[3], QStringLiteral("A4"));
    for (std::size_t i = 0; i < names.size(); ++i) {
        QCOMPARE(cabinetName(wall, i), names[i]);
    }
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
