// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/commongamut.h>
#include <gamutmodel/correction.h>
#include <gamutmodel/dominantwavelength.h>
#include <gamutmodel/drive.h>
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/gamutfit.h>
#include <gamutmodel/nearestinside.h>
#include <gamutmodel/publishedgamuts.h>
#include <gamutmodel/tolerances.h>
#include <gamutmodel/uniformity.h>

#include <QtTest>

#include <algorithm>
#include <atomic>
#include <random>
#include <thread>
#include <vector>

namespace {

using Results = std::vector<double>;

void add(Results &results, const Model::Targets &targets)
{
    for (const Model::Target &color : {targets.red, targets.green, targets.blue, targets.white}) {
        results.insert(results.end(), {color.Y, color.x, color.y});
    }
}

//! One number or more of each function of the library, for gamuts that \a seed decides on.
Results resultsFor(unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> aside(-0.01, 0.01);
    const auto color = [&](double Y, double x, double y) {
        const double there = x + aside(random);
        return Model::Target::fromYxy(Y, there, y + aside(random));
    };
    std::vector<Model::Cabinet> cabinets;
    std::vector<Model::GamutTriangle> triangles;
    for (int i = 0; i < 6; ++i) {
        Model::Cabinet cabinet;
        cabinet.colors
            = {color(200.0, 0.68, 0.31), color(600.0, 0.2, 0.7), color(80.0, 0.14, 0.06), color(880.0, 0.3, 0.31)};
        cabinet.position = Model::GridPosition{i / 3, i % 3};
        triangles.push_back(Model::gamutTriangle(cabinet));
        cabinets.push_back(cabinet);
    }
    const Model::Targets &own = cabinets.front().colors;
    Results results;
    for (const Model::PublishedGamut &published : Model::publishedGamuts()) {
        const Model::Targets &other = published.gamut.getTargets();
        for (const Model::Diagram diagram :
            {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960}) {
            results.push_back(Model::gamutCoverage(own, other, diagram).coverage);
            const auto near = Model::nearestPoint(own, {other.green.x, other.green.y}, diagram);
            results.push_back(near ? near->x : -1.0);
        }
        const auto inside = Model::nearestInside(own, {other.red.x, other.red.y}, 4);
        results.push_back(inside ? inside->xy.x : -1.0);
        results.push_back(double(Model::publishedGamutsEqualTo(other).size()));
        results.push_back(Model::deviations(own, other).whiteUv.value_or(-1.0));
        const auto hue = Model::dominantWavelength({own.red.x, own.red.y}, {other.white.x, other.white.y});
        results.push_back(hue ? hue->wavelength : -1.0);
    }
    const Model::CommonGamut common = Model::commonGamut(triangles);
    results.push_back(Model::commonGamutArea(common, Model::Diagram::Cie1976));
    add(results, Model::fittedTarget(common, Model::rec709().getTargets()).target);
    add(results, Model::largestTarget(common, Model::rec709().getTargets(), Model::Diagram::Cie1931).target);
    const Model::WallCorrection correction = Model::wallCorrection(cabinets, Model::rec709().getTargets());
    add(results, correction.target);
    const auto uniformity = Model::uniformity(Model::whitesBefore(correction), Model::positionsOf(cabinets));
    results.push_back(uniformity.chromaticity ? uniformity.chromaticity->difference : -1.0);
    const auto drive = Model::DisplayDrive(own).driveOf(Model::rec709().getTargets().white);
    results.push_back(drive ? drive->red : -1.0);
    return results;
}

} // namespace

class GamutModelThreadsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void threadsDoNotDisturbEachOther();
};

// The threads come first: what is made at its first use must be made once by all of them.
void GamutModelThreadsTest::threadsDoNotDisturbEachOther()
{
    constexpr unsigned threadCount = 4;
    constexpr unsigned turns = 40;
    std::atomic<bool> go{false};
    std::vector<std::vector<Results>> found(threadCount);
    std::vector<std::thread> threads;
    for (std::vector<Results> &own : found) {
        threads.emplace_back([&own, &go] {
            while (!go) {
                std::this_thread::yield();
            }
            for (unsigned turn = 0; turn < turns; ++turn) {
                own.push_back(resultsFor(turn));
            }
        });
    }
    go = true;
    for (std::thread &thread : threads) {
        thread.join();
    }
    for (unsigned turn = 0; turn < turns; ++turn) {
        const Results expected = resultsFor(turn);
        QVERIFY(std::count_if(expected.begin(), expected.end(), [](double value) { return value > 0.0; }) > 30);
        for (const std::vector<Results> &own : found) {
            QVERIFY(own.at(turn) == expected);
        }
    }
}

QTEST_APPLESS_MAIN(GamutModelThreadsTest)
#include "gamutmodelthreadstest.moc"
