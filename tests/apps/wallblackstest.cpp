// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "assessedwall.h"

#include "display/wallreport.h"

#include <QJsonArray>
#include <QtTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

using namespace assessedwall;

class WallBlacksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void blacksAreCorrected();
    void blackThatKeepsACabinetOff();
    void blackThatIsNotSeen();
    void blackThatWasNotMeasured();
    void blackWithoutChromaticity();
    void unknownBlackTakesLuminance();
    void darkerBlackOfAnotherColor();
    void colorsOutsideAreToldOverTheBlack();
    void darkContentOverABrightBlackIsNotJudged();
    void darkContentOverABlackOfUnknownChromaticity();
    void blackTooBrightForAnyTarget();
    void fittedTargetPassesOverBlacks();
};

namespace {

//! Primaries that are the cabinets' own, so that any black keeps them off.
DisplayGamut wantedAsShown()
{
    Model::Targets of = Model::rec2020().getTargets();
    for (Model::Target *t : {&of.red, &of.green, &of.blue, &of.white}) {
        *t = color(t->Y * 500.0, t->x, t->y);
    }
    return {Model::ColorGamut("Wanted", of), cd};
}

bool needsNegativeDrive(const DisplayWall &wall, const WallAssessment &assessment)
{
    for (std::size_t i = 0; i < wall.cabinets.size(); ++i) {
        for (const auto &row : assessment.correction.corrections[i].matrix->rows) {
            if (!wall.cabinets[i].isLeftOut && *std::min_element(row.begin(), row.end()) < -Model::driveRounding) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

void WallBlacksTest::blacksAreCorrected()
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

void WallBlacksTest::blackThatKeepsACabinetOff()
{
    DisplayWall wall = wallOf(1);
    for (WallCabinet &cabinet : wall.cabinets) {
        cabinet.black = Model::Target(); // no light
    }
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

void WallBlacksTest::blackThatIsNotSeen()
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

void WallBlacksTest::blackThatWasNotMeasured()
{
    const DisplayGamut target = wantedAsShown();
    DisplayWall wall = wallOf(1);
    QCOMPARE(assessWall(wall, target).judgement, Judgement::Pass); // none was measured
    for (WallCabinet &cabinet : wall.cabinets) {
        cabinet.black = color(2.0, 0.31, 0.33);
    }
    wall.cabinets[4].black.reset();
    wall.cabinets[7].black = color(3.0, 0.31, 0.33);
    const WallAssessment found = assessWall(wall, target);
    QCOMPARE(found.cabinets[4].judgement, Judgement::NotKnown);
    QCOMPARE(found.brightestBlack, std::make_optional(std::size_t(7)));
    QCOMPARE(found.cabinets[4].offByPossibleBlack, found.cabinets[7].offByBlack); // they are alike otherwise
    QCOMPARE(found.cabinets[4].offByBlack, (std::array<double, 4>{}));
    const QString text = cabinetText(wall, target, found, 4);
    QVERIFY2(text.startsWith(QStringLiteral("A5: its black was not measured, and one as bright as that of A8 can "
                                            "keep it off red by Δu′v′ ")),
        qPrintable(text));
    // A target that all show whose black is known is then not known to be shown by the wall.
    const auto fitted = fittedToWall(target, found);
    QVERIFY(fitted);
    WallAssessment after = assessWall(wall, {Model::ColorGamut("Fitted", *fitted), cd});
    QCOMPARE(after.judgement, Judgement::Pass); // A5 would show it over that black as well
    // What is left out hangs in the same light, and says as much of the others.
    for (std::size_t i = 0; i < wall.cabinets.size(); ++i) {
        wall.cabinets[i].isLeftOut = i != 4;
    }
    QCOMPARE(assessWall(wall, target).judgement, Judgement::NotKnown);
    // Nor do blacks that are too dark to be seen.
    for (WallCabinet &cabinet : wall.cabinets) {
        cabinet.isLeftOut = false;
        cabinet.black = color(0.02, 0.31, 0.33);
    }
    wall.cabinets[4].black.reset();
    QCOMPARE(assessWall(wall, target).judgement, Judgement::Pass);
}

void WallBlacksTest::blackWithoutChromaticity()
{
    const DisplayGamut target = wantedAsShown();
    DisplayWall wall = wallOf(1);
    wall.cabinets[4].blackLuminance = 3.0;
    const WallAssessment found = assessWall(wall, target);
    QCOMPARE(found.cabinets[4].judgement, Judgement::NotKnown);
    QString text = cabinetText(wall, target, found, 4);
    QVERIFY2(text.startsWith(QStringLiteral("A5: the chromaticity of its black is not known, and one of this luminance "
                                            "can keep it off red by Δu′v′ ")),
        qPrintable(text));
    // It is not known to be better than with any black that it is judged by.
    const WallCabinet &of = wall.cabinets[4];
    for (const Model::Target &chromaticity : {of.red, of.green, of.blue, color(3.0, 0.31, 0.33)}) {
        DisplayWall known = wall;
        known.cabinets[4].blackLuminance.reset();
        known.cabinets[4].black = color(3.0, chromaticity.x, chromaticity.y);
        const auto off = assessWall(known, target).cabinets[4].offByBlack;
        for (std::size_t i = 0; i < off.size(); ++i) {
            QVERIFY(found.cabinets[4].offByPossibleBlack[i] >= off[i]);
        }
    }
    // Of the others nothing was measured, and their blacks may be as bright as that.
    QCOMPARE(found.brightestBlack, std::make_optional(std::size_t(4)));
    text = cabinetText(wall, target, found, 3);
    QVERIFY2(text.startsWith(QStringLiteral("A4: its black was not measured, and one as bright as that of A5 can "
                                            "keep it off red by Δu′v′ ")),
        qPrintable(text));
    wall.cabinets[4].blackLuminance = 1000.0; // more than a primary: no drive takes that away
    QCOMPARE(assessWall(wall, target).cabinets[4].judgement, Judgement::NotKnown);
    wall.cabinets[4].blackLuminance = 0.02; // too dark to be seen
    QCOMPARE(assessWall(wall, target).judgement, Judgement::Pass);
}

void WallBlacksTest::unknownBlackTakesLuminance()
{
    const auto black = color(6.0, 0.31, 0.33);
    DisplayWall wall = wallOf(1);
    for (WallCabinet &of : wall.cabinets) {
        dim(of, 1.1); // so that A5 is the limit
        of.black = black;
    }
    wall.cabinets[4] = cabinet(QStringLiteral("A5"), 0, 4);
    DisplayWall known = wall;
    known.cabinets[4].black = black;
    const double least = *assessWall(known, targetOf(1000.0)).cabinets[4].largestWhite;
    QVERIFY(least < 1099.0);
    const auto judged = [&](double luminance) { return assessWall(wall, targetOf(luminance)); };
    // A black takes as much from it as from the others.
    const WallAssessment found = judged(1095.0);
    const CabinetAssessment &unknown = found.cabinets[4];
    QCOMPARE(unknown.judgement, Judgement::NotKnown);
    QVERIFY(!unknown.largestWhite && std::fabs(*unknown.leastWhite / least - 1.0) < 1e-9);
    QVERIFY(!found.isReachKnownOfAll);
    const QString text = cabinetText(wall, targetOf(1095.0), found, 4);
    QVERIFY2(text.startsWith(QStringLiteral("A5: its black was not measured, and over one as bright as that of A1 "
                                            "white can reach ")),
        qPrintable(text));
    QCOMPARE(judged(least * 0.999).judgement, Judgement::Pass);
    QCOMPARE(judged(1110.0).cabinets[4].judgement, Judgement::Fail); // without any black as well
    // The luminance of its own black counts before that of the others.
    wall.cabinets[4].blackLuminance = 0.1;
    QCOMPARE(judged(1095.0).judgement, Judgement::Pass);
    wall.cabinets[4].blackLuminance = 6.0;
    QCOMPARE(judged(1095.0).cabinets[4].judgement, Judgement::NotKnown);
}

// What a saturated black does is more than what the brightest does.
void WallBlacksTest::darkerBlackOfAnotherColor()
{
    const DisplayGamut target = wantedAsShown();
    DisplayWall wall = wallOf(1);
    wall.cabinets.resize(3);
    wall.cabinets[0].black = color(1.0, 0.31, 0.33);
    wall.cabinets[1].black = color(0.9, 0.17, 0.06);
    const auto shown = assessWall(wall, target);
    QVERIFY(shown.cabinets[1].offByBlack[std::size_t(Vertex::Red)]
        > shown.cabinets[0].offByBlack[std::size_t(Vertex::Red)] + 0.001);
    for (const Vertex vertex : ceiechart::allGamutVertices) {
        for (const std::size_t other : {0, 1}) {
            QVERIFY(shown.cabinets[2].offByPossibleBlack[std::size_t(vertex)]
                >= shown.cabinets[other].offByBlack[std::size_t(vertex)]);
        }
    }
    QCOMPARE(shown.cabinets[2].judgement, Judgement::NotKnown);
    // A cabinet may be too dark for a black that others have.
    wall.cabinets[0].black = color(80.0, 0.31, 0.33);
    for (Model::Target *of : {&wall.cabinets[2].red, &wall.cabinets[2].green, &wall.cabinets[2].blue}) {
        *of = color(of->Y, of->x, of->y);
    }
    QCOMPARE(assessWall(wall, target).cabinets[2].judgement, Judgement::NotKnown);
}

void WallBlacksTest::colorsOutsideAreToldOverTheBlack()
{
    Model::Targets of = Model::rec2020().getTargets();
    for (Model::Target *t : {&of.red, &of.green, &of.blue, &of.white}) {
        *t = color(t->Y * 500.0, t->x, t->y);
    }
    const DisplayGamut target{Model::ColorGamut("Wanted", of), cd};
    DisplayWall wall = wallOf(1);
    wall.cabinets[4].red = color(wall.cabinets[4].red.Y, 0.68, 0.31);
    const auto text = [&] { return cabinetText(wall, target, assessWall(wall, target), 4); };
    QVERIFY2(text().startsWith(QStringLiteral("A5: red reaches 0.6")) && text().contains(QStringLiteral(" only, Δ")),
        qPrintable(text()));
    wall.cabinets[4].black = color(3.0, 0.31, 0.33);
    const WallAssessment found = assessWall(wall, target);
    const Model::Correction &correction = found.correction.corrections[4];
    const Model::Target &red = correction.shown->red; // at full drive it is not
    QVERIFY(correction.matrix->at(Model::Primary::Red, Model::Primary::Red) < 1.0);
    const double off = *correction.remaining.redUv;
    QVERIFY(off > found.cabinets[4].outside[std::size_t(Vertex::Red)] + visibleUv); // the edge is nearer than that
    QVERIFY2(text().startsWith(QString::fromUtf8("A5: corrected, red is %1, %2 over the black, Δu′v′ %3 off")
                                   .arg(red.x, 0, 'f', 4)
                                   .arg(red.y, 0, 'f', 4)
                                   .arg(off, 0, 'f', 4)),
        qPrintable(text()));
    // Without luminances that compare, how much the black counts is not known.
    wall.unit = LuminanceUnit::Relative;
    QVERIFY2(text().contains(QStringLiteral(" at most, without its black, Δ")), qPrintable(text()));
    wall.cabinets[4].black = Model::Target(); // no light
    QVERIFY2(text().contains(QStringLiteral(" only, Δ")), qPrintable(text()));
}

void WallBlacksTest::darkContentOverABrightBlackIsNotJudged()
{
    DisplayWall wall = wallOf(1);
    wall.cabinets[4].black = color(2.0, 0.36, 0.38);
    const DisplayGamut target = targetOf(500.0);
    const WallAssessment found = assessWall(wall, target);
    QCOMPARE(found.judgement, Judgement::Pass);
    const QString remark = QStringLiteral("Content that is darker than the target is not judged: at a tenth of its "
                                          "luminance, the black of A5 shifts blue by ");
    QVERIFY2(textOf(found).contains(remark), qPrintable(textOf(found)));
    for (const WallLine &line : found.lines) {
        QCOMPARE(line.isWarning, line.text.startsWith(remark)); // command line and panel show no other remarks
    }
    // The light of a tenth of the target's blue, and of nine tenths of the black. W = K + Σ(P - K): the white less the
    // black is a mixture of the primaries less the black. Blue's part follows from determinants.
    const Model::Target &black = *wall.cabinets[4].black;
    const Model::Targets &wanted = target.getTargets();
    using Light = std::array<double, 3>;
    const auto lightOf = [](const Model::Target &t) { return Light{t.x / t.y, 1.0, (1.0 - t.x - t.y) / t.y}; };
    const auto determinant = [](const Light &a, const Light &b, const Light &c) {
        return a[0] * (b[1] * c[2] - b[2] * c[1]) - b[0] * (a[1] * c[2] - a[2] * c[1])
            + c[0] * (a[1] * b[2] - a[2] * b[1]);
    };
    // ΣP = W + 2 K, of which blue has this luminance
    Light sum = lightOf(wanted.white);
    const Light dark = lightOf(black);
    for (std::size_t i = 0; i < sum.size(); ++i) {
        sum[i] = sum[i] * wanted.white.Y + 2.0 * dark[i] * black.Y;
    }
    const Light r = lightOf(wanted.red);
    const Light g = lightOf(wanted.green);
    const double luminance = determinant(r, g, sum) / determinant(r, g, lightOf(wanted.blue));
    const Model::Target blue = Model::Target::fromYxy(luminance, wanted.blue.x, wanted.blue.y);
    QVERIFY(luminance > found.correction.target.blue.Y); // that is for a black without light
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

//! It may be that of any of the primaries, or that of what they mix to.
void WallBlacksTest::darkContentOverABlackOfUnknownChromaticity()
{
    DisplayWall wall = wallOf(1);
    WallCabinet &of = wall.cabinets[4];
    of.blackLuminance = 0.05;
    const DisplayGamut target = targetOf(500.0);
    const WallAssessment found = assessWall(wall, target);
    QCOMPARE(found.cabinets[4].judgement, Judgement::Pass);
    const auto &matrix = found.correction.corrections[4].matrix;
    QVERIFY(matrix);
    const Model::Targets &wanted = found.correction.target;
    const auto sum = [](double Model::Target::*part, const Model::Drive &drive, const WallCabinet &cabinet,
                         const Model::Target &black) {
        return black.*part + drive.red * (cabinet.red.*part - black.*part)
            + drive.green * (cabinet.green.*part - black.*part) + drive.blue * (cabinet.blue.*part - black.*part);
    };
    const Model::Target d65 = Model::rec2020().getTargets().white;
    const std::pair<Model::Drive, Vertex> contents[]
        = {{{0.1, 0.0, 0.0}, Vertex::Red}, {{0.0, 0.1, 0.0}, Vertex::Green}, {{0.0, 0.0, 0.1}, Vertex::Blue}};
    double most = 0.0;
    Vertex shifted = Vertex::White;
    for (const Model::Target &light : {of.red, of.green, of.blue, d65}) {
        const Model::Target black = color(0.05, light.x, light.y);
        for (const auto &[content, vertex] : contents) {
            Model::Drive drive = matrix->driveFor(content);
            for (double *value : {&drive.red, &drive.green, &drive.blue}) {
                *value = std::max(*value, 0.0);
            }
            const double X = sum(&Model::Target::X, drive, of, black);
            const double Y = sum(&Model::Target::Y, drive, of, black);
            const double Z = sum(&Model::Target::Z, drive, of, black);
            const double denominator = X + 15.0 * Y + 3.0 * Z;
            const Model::Target &is = ceiechart::targetAt(wanted, vertex);
            const double shift = std::hypot(4.0 * X / denominator - is.u, 9.0 * Y / denominator - is.v);
            if (shift > most) {
                most = shift;
                shifted = vertex;
            }
        }
    }
    QVERIFY(most > visibleUv);
    QVERIFY2(
        textOf(found).contains(QString::fromUtf8("at a tenth of its luminance, the black of A5, whose chromaticity is "
                                                 "not known, can shift %1 by up to Δu′v′ %2.")
                                   .arg(ceiechart::gamutVertexName(shifted))
                                   .arg(most, 0, 'f', 4)),
        qPrintable(textOf(found)));
}

void WallBlacksTest::blackTooBrightForAnyTarget()
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

void WallBlacksTest::fittedTargetPassesOverBlacks()
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
        // What passes is fitted only if it is too bright by very little, or needs drives that are hardly below 0.
        const bool passesAsFull = found.judgement == Judgement::Pass && luminance > found.largestWhite->luminance;
        QCOMPARE(bool(fitted), found.judgement == Judgement::Fail || passesAsFull || needsNegativeDrive(wall, found));
        if (!fitted) {
            continue;
        }
        failing += found.judgement == Judgement::Fail;
        const DisplayGamut after{Model::ColorGamut("Fitted", *fitted), cd};
        const WallAssessment passes = assessWall(wall, after);
        QVERIFY(!needsNegativeDrive(wall, passes));
        QVERIFY(fitted->white.Y <= passes.largestWhite->luminance * (1.0 + 1e-9));
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

QTEST_GUILESS_MAIN(WallBlacksTest)
#include "wallblackstest.moc"
