// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "assessedwall.h"

#include "display/textreport.h"
#include "editing/wallcommand.h"
#include "editing/wallcorrections.h"

#include <QtTest>

#include <cmath>

using namespace assessedwall;

class WallWhitesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whiteThatIsNotTheSum();
    void correctionsAreAsKnown();
    void whatRemainsOfACabinetThatIsTooDark();
    void primariesThatDoNotMix();
    void fittedLuminanceIsTheOneThatIsShown();
    void targetThatIsALittleTooBright();
    void whiteThatIsBelowTheSumAndTooDim();
    void measuredWhiteDecidesWhereItWasMeasured();
    void reachedLuminancesAreRoundedDown();
    void largestOfWhichItIsKnown();
    void whiteThatWasNotMeasured();
    void whiteThatWasNotMeasuredBesideDarkOnes();
};

void WallWhitesTest::whiteThatIsNotTheSum()
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

// Where one cabinet limits its power, others may.
void WallWhitesTest::whiteThatWasNotMeasured()
{
    const Model::Target d65 = Model::rec2020().getTargets().white;
    DisplayWall wall = wallOf(1);
    wall.cabinets.resize(3);
    QCOMPARE(assessWall(wall, targetOf(1000.0)).judgement, Judgement::Pass); // nothing speaks against the sum
    wall.cabinets[1].white = color(1100.0, d65.x, d65.y);
    QCOMPARE(assessWall(wall, targetOf(1000.0)).judgement, Judgement::Pass);
    wall.cabinets[2].white = color(900.0, d65.x, d65.y);
    const WallAssessment found = assessWall(wall, targetOf(800.0));
    QCOMPARE(found.cabinets[0].judgement, Judgement::NotKnown);
    QVERIFY(!found.cabinets[0].isAdditive && !found.cabinets[0].largestWhite && !found.cabinets[0].white);
    QCOMPARE(found.cabinets[1].judgement, Judgement::Pass);
    QVERIFY2(textOf(found).contains(QStringLiteral("? A1: its white was not measured, and that of A3 is not the sum of "
                                                   "its primaries: measure it.")),
        qPrintable(textOf(found)));
    // Of many it is said once, after what is wrong with that one.
    DisplayWall many = wallOf(1);
    many.cabinets[7].white = color(900.0, d65.x, d65.y);
    const QString text = textOf(assessWall(many, targetOf(800.0)));
    const QString ground = QStringLiteral("\n? A8: the white is 900.0 cd/m², the primaries add to 1100.0 cd/m²");
    const QString others
        = QStringLiteral("\n? The whites of 11 cabinets were not measured, and that of A8 is not the sum "
                         "of its primaries: measure them.");
    QVERIFY2(text.contains(ground) && text.indexOf(others) > text.indexOf(ground), qPrintable(text));
    QVERIFY2(!text.contains(QLatin1String("A1: ")), qPrintable(text));
    // What is too bright for the sum is too bright in any case, but not where another has more than the sum.
    QCOMPARE(assessWall(wall, targetOf(1200.0)).cabinets[0].judgement, Judgement::Fail);
    wall.cabinets[2].white = color(1300.0, d65.x, d65.y);
    QCOMPARE(assessWall(wall, targetOf(1200.0)).cabinets[0].judgement, Judgement::NotKnown);
    // One that is left out says as much of the others.
    wall.cabinets[2].isLeftOut = true;
    QCOMPARE(assessWall(wall, targetOf(1000.0)).judgement, Judgement::NotKnown);
}

// Within what counts as additive, it can be as far below the sum as others.
void WallWhitesTest::whiteThatWasNotMeasuredBesideDarkOnes()
{
    const Model::Target d65 = Model::rec2020().getTargets().white;
    DisplayWall wall = wallOf(1);
    for (WallCabinet &of : wall.cabinets) {
        of.white = color(1100.0, d65.x, d65.y);
    }
    wall.cabinets[0] = cabinet(QStringLiteral("A1"), 0, 0, 1050.0);
    wall.cabinets[3].white = color(1078.0, d65.x, d65.y); // 0.98 of the sum
    const WallAssessment found = assessWall(wall, targetOf(1040.0));
    QCOMPARE(found.cabinets[0].judgement, Judgement::NotKnown);
    QVERIFY(std::fabs(*found.cabinets[0].largestWhite - 1029.0) < 1e-6);
    QVERIFY2(textOf(found).contains(QStringLiteral(
                 "? A1: its white was not measured, and reaches 1029.0 cd/m² only, of 1040.0 cd/m², if it is as far "
                 "below the sum of the primaries as that of A4: measure it.")),
        qPrintable(textOf(found)));
    QCOMPARE(assessWall(wall, targetOf(1025.0)).cabinets[0].judgement, Judgement::Pass);
    // More than the sum, of which alone it is known.
    const DisplayGamut bright = targetOf(1055.0);
    const WallAssessment failing = assessWall(wall, bright);
    QCOMPARE(failing.cabinets[0].judgement, Judgement::Fail);
    QVERIFY2(textOf(failing).contains(QStringLiteral("✗ A1: white reaches 1050.0 cd/m² at most, of 1055.0 cd/m².")),
        qPrintable(textOf(failing)));
    // A fit leaves nothing open.
    const auto fitted = fittedToWall(bright, failing);
    QVERIFY(fitted);
    QVERIFY(std::fabs(fitted->white.Y - 1029.0) < 1e-6);
    QCOMPARE(assessWall(wall, {Model::ColorGamut("Fitted", *fitted), cd}).judgement, Judgement::Pass);
}

void WallWhitesTest::measuredWhiteDecidesWhereItWasMeasured()
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
void WallWhitesTest::correctionsAreAsKnown()
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
    // The chromaticities are the same, and nothing is said of them.
    QVERIFY2(
        textOf(found).contains(QStringLiteral("Measured whites are up to 1.4 % off the sums of the primaries (A5).")),
        qPrintable(textOf(found)));
    const Model::Correction &notAdditive = found.correction.corrections[5];
    QVERIFY(notAdditive.matrix);
    QVERIFY(!notAdditive.largestWhite && !notAdditive.shown && !notAdditive.remaining.whiteUv);
    QVERIFY(!found.cabinets[5].uvAfter);
    QCOMPARE(found.correction.largestWhite->cabinet, std::size_t(4));
    const auto saysWith = [&](double x, const char *text) {
        DisplayWall other = wall;
        other.cabinets[5].white = color(1100.2, x, d65.y);
        return textOf(assessWall(other, target)).contains(QString::fromUtf8(text));
    };
    QVERIFY(saysWith(d65.x + 0.0009, "Measured whites are up to 1.4 % and Δu′v′ 0.0006 off the sums"));
    wall.cabinets[4].white.reset();
    QVERIFY(saysWith(d65.x + 0.0009, "Measured whites are up to Δu′v′ 0.0006 off the sums of the primaries (A6)."));
    // Within what cannot be seen there is nothing to say.
    wall.cabinets[4].white = color(1100.0 * 1.0015, d65.x, d65.y);
    wall.cabinets[5].white.reset();
    QVERIFY(!textOf(assessWall(wall, target)).contains(QStringLiteral("Measured whites")));
}

// Of a cabinet that is too dark, what remains is what its clamped drives show.
void WallWhitesTest::whatRemainsOfACabinetThatIsTooDark()
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

void WallWhitesTest::primariesThatDoNotMix()
{
    const DisplayWall wall = wallOf(1);
    Model::Targets colors = targetOf(500.0).getTargets();
    colors.blue = color(colors.blue.Y * 1.05, colors.blue.x, colors.blue.y);
    const WallAssessment found = assessWall(wall, {Model::ColorGamut("Wanted", colors), cd});
    QVERIFY2(textOf(found).contains(
                 QStringLiteral("The luminances of the target's primaries do not mix to its white. A correction is for "
                                "those that do: red ")),
        qPrintable(textOf(found)));
    colors.blue = color(colors.blue.Y * 3.0, colors.blue.x, colors.blue.y);
    const QString text = textOf(assessWall(wall, {Model::ColorGamut("Wanted", colors), cd}));
    QVERIFY2(text.contains(QStringLiteral("the blue of the target is too bright for it")), qPrintable(text));
    colors = targetOf(500.0).getTargets();
    colors.blue = color(colors.blue.Y * 1.005, colors.blue.x, colors.blue.y); // as people round
    QVERIFY(
        !textOf(assessWall(wall, {Model::ColorGamut("Wanted", colors), cd})).contains(QStringLiteral("do not mix")));
}

void WallWhitesTest::fittedLuminanceIsTheOneThatIsShown()
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

// What is too bright by less than what four decimals of a white leave open passes, and the verdict says why.
void WallWhitesTest::targetThatIsALittleTooBright()
{
    DisplayWall wall = wallOf(1);
    dim(wall.cabinets[4], 0.95);
    const DisplayGamut target = targetOf(1046.5); // of 1045
    const WallAssessment found = assessWall(wall, target);
    QCOMPARE(found.judgement, Judgement::Pass);
    QVERIFY2(textOf(found).contains(QStringLiteral("✓ All reach a white of 1045.0 cd/m² (A5 is the limit, with ")),
        qPrintable(textOf(found)));
    const QString why
        = QStringLiteral("The target has 1046.5 cd/m². That is within 0.2 % of full drive, and counts as full.");
    QVERIFY2(textOf(found).contains(why), qPrintable(textOf(found)));
    const auto fitted = fittedToWall(target, found);
    QVERIFY(fitted);
    QVERIFY(std::fabs(fitted->white.Y - 1045.0) < 1e-9);
    const DisplayGamut after{Model::ColorGamut("Fitted", *fitted), cd};
    const WallAssessment passes = assessWall(wall, after);
    QCOMPARE(passes.judgement, Judgement::Pass);
    QVERIFY(!textOf(passes).contains(QLatin1String("counts as full")));
    QVERIFY(!fittedToWall(after, passes));
    // Where primaries have to move as well
    wall.cabinets[7].green = color(wall.cabinets[7].green.Y, 0.32, 0.56);
    const WallAssessment fails = assessWall(wall, target);
    QCOMPARE(fails.judgement, Judgement::Fail);
    const auto moved = fittedToWall(target, fails);
    QVERIFY(moved);
    QVERIFY(moved->white.Y <= *fails.notTooBright);
    // What was measured at the white of the target is reached, whatever the primaries add to.
    wall = wallOf(1);
    const Model::Target d65 = Model::rec2020().getTargets().white;
    for (WallCabinet &of : wall.cabinets) {
        of.white = color(1115.0, d65.x, d65.y);
    }
    const DisplayGamut bright = targetOf(1110.0);
    const WallAssessment reached = assessWall(wall, bright);
    QCOMPARE(reached.judgement, Judgement::Pass);
    QVERIFY(!textOf(reached).contains(QLatin1String("counts as full")));
    QVERIFY(!fittedToWall(bright, reached));
}

void WallWhitesTest::whiteThatIsBelowTheSumAndTooDim()
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

void WallWhitesTest::reachedLuminancesAreRoundedDown()
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

void WallWhitesTest::largestOfWhichItIsKnown()
{
    const Model::Target d65 = Model::rec2020().getTargets().white;
    for (const bool isIncomplete : {false, true}) {
        DisplayDescription description;
        description.wall = wallOf(1);
        if (isIncomplete) {
            description.wall.incomplete.push_back(
                {QStringLiteral("B1"), std::nullopt, QStringLiteral("blue is missing")});
        } else {
            for (WallCabinet &of : description.wall.cabinets) {
                of.white = color(1100.0, d65.x, d65.y);
            }
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

QTEST_GUILESS_MAIN(WallWhitesTest)
#include "wallwhitestest.moc"
