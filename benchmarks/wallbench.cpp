// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// What the maths of a wall costs, from the measurements to the corrections, against reading the measurements once.
#include "ratioreporter.h"
#include "repeatedbenchmark.h"

#include <gamutmodel/commongamut.h>
#include <gamutmodel/correction.h>
#include <gamutmodel/gamutfit.h>
#include <gamutmodel/uniformity.h>

#include <random>
#include <vector>

namespace {

//! A wall of cabinets of one series, four times as wide as high, with blacks.
std::vector<Model::Cabinet> wallOf(std::size_t count)
{
    std::mt19937 random(14);
    std::normal_distribution<double> xy(0.0, 0.003);
    std::normal_distribution<double> part(1.0, 0.04);
    const auto color = [&](double Y, double x, double y) {
        return Model::Target::fromYxy(Y * part(random), x + xy(random), y + xy(random));
    };
    std::vector<Model::Cabinet> cabinets(count);
    int columns = 1;
    while (std::size_t(columns) * std::size_t(columns) < 4 * count) {
        ++columns;
    }
    for (std::size_t i = 0; i < count; ++i) {
        Model::Cabinet &cabinet = cabinets[i];
        cabinet.colors = {
            color(240, 0.700, 0.299), color(634, 0.189, 0.718), color(126, 0.133, 0.075), color(1000, 0.2829, 0.2971)};
        cabinet.black = color(0.4, 0.30, 0.31);
        cabinet.position = Model::GridPosition{int(i) / columns, int(i) % columns};
    }
    return cabinets;
}

//! Every colour once, from x, y and Y to tristimulus values and u', v'
void readOnce(benchmark::State &state, std::size_t count)
{
    const auto cabinets = wallOf(count);
    for (auto _ : state) {
        for (const Model::Cabinet &cabinet : cabinets) {
            benchmark::DoNotOptimize(Model::targetsOf(cabinet.colors));
        }
    }
}

Model::Targets wish()
{
    Model::Targets targets = Model::dciP3D65().getTargets();
    targets.white = Model::Target::fromYxy(700.0, targets.white.x, targets.white.y); // so that the blacks count
    return targets;
}

void common(benchmark::State &state, std::size_t count)
{
    const auto cabinets = wallOf(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Model::commonGamut(cabinets));
    }
}

void fit(benchmark::State &state, std::size_t count)
{
    const auto gamut = Model::commonGamut(wallOf(count));
    for (auto _ : state) {
        benchmark::DoNotOptimize(Model::fittedTarget(gamut, wish()));
        benchmark::DoNotOptimize(Model::largestTarget(gamut, wish(), Model::Diagram::Cie1976));
    }
}

void fitOverBlacks(benchmark::State &state, std::size_t count)
{
    const auto cabinets = wallOf(count);
    const auto gamut = Model::commonGamut(cabinets);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Model::fittedTarget(gamut, wish(), cabinets));
    }
}

void corrections(benchmark::State &state, std::size_t count)
{
    const auto cabinets = wallOf(count);
    const auto target = Model::fittedTarget(Model::commonGamut(cabinets), wish()).target;
    for (auto _ : state) {
        benchmark::DoNotOptimize(Model::wallCorrection(cabinets, target));
    }
}

void uniformity(benchmark::State &state, std::size_t count)
{
    const auto cabinets = wallOf(count);
    const auto wall = Model::wallCorrection(cabinets, wish());
    for (auto _ : state) {
        const auto positions = Model::positionsOf(cabinets);
        benchmark::DoNotOptimize(Model::uniformity(Model::whitesBefore(wall), positions));
        benchmark::DoNotOptimize(Model::uniformity(Model::whitesAfter(wall), positions));
    }
}

//! What a step of dragging the target takes: all but the common gamut.
void drag(benchmark::State &state, std::size_t count)
{
    const auto cabinets = wallOf(count);
    const auto gamut = Model::commonGamut(cabinets);
    const auto positions = Model::positionsOf(cabinets);
    for (auto _ : state) {
        const auto target = Model::fittedTarget(gamut, wish(), cabinets).target;
        const auto wall = Model::wallCorrection(cabinets, target);
        benchmark::DoNotOptimize(Model::uniformity(Model::whitesAfter(wall), positions));
    }
}

void wholeChain(benchmark::State &state, std::size_t count)
{
    const auto cabinets = wallOf(count);
    for (auto _ : state) {
        const auto target = Model::fittedTarget(Model::commonGamut(cabinets), wish(), cabinets).target;
        const auto wall = Model::wallCorrection(cabinets, target);
        const auto positions = Model::positionsOf(cabinets);
        benchmark::DoNotOptimize(Model::uniformity(Model::whitesBefore(wall), positions));
        benchmark::DoNotOptimize(Model::uniformity(Model::whitesAfter(wall), positions));
    }
}

//! A cabinet that excludes all others, so that the pair that lies farthest apart is searched.
void nothingInCommon(benchmark::State &state, std::size_t count)
{
    auto cabinets = wallOf(count);
    cabinets[count / 2].colors.red = Model::Target::fromYxy(200.0, 0.05, 0.40);
    cabinets[count / 2].colors.green = Model::Target::fromYxy(200.0, 0.08, 0.70);
    cabinets[count / 2].colors.blue = Model::Target::fromYxy(200.0, 0.04, 0.30);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Model::commonGamut(cabinets));
    }
}

} // namespace

int main(int argc, char **argv)
{
    // The goals: 50 ms for the whole chain of 10 000 cabinets, a frame of 16 ms for a step with 1000.
    addRepeated("wall of 10000/plain", readOnce, 10000);
    addRepeated("wall of 10000/common gamut", common, 10000);
    addRepeated("wall of 10000/common gamut, nothing in common", nothingInCommon, 10000);
    addRepeated("wall of 10000/fit and largest triangle", fit, 10000);
    addRepeated("wall of 10000/fit over blacks", fitOverBlacks, 10000);
    addRepeated("wall of 10000/corrections", corrections, 10000);
    addRepeated("wall of 10000/uniformity before and after", uniformity, 10000);
    addRepeated("wall of 10000/whole chain", wholeChain, 10000);
    addRepeated("wall of 1000/plain", readOnce, 1000);
    addRepeated("wall of 1000/step of dragging the target", drag, 1000);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
