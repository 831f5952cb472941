// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// What a step of dragging the target costs with a wall: the judgement of all cabinets, and the map that shows it.
#include "display/wallassessment.h"
#include "drawing/wallpainter.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <random>

namespace {

using namespace gamutviewer;

//! Of what is measured besides the primaries.
enum class Measured { Primaries, HalfOfTheBlacks, All };

DisplayWall wallOf(int columns, int rows, Measured measured = Measured::Primaries)
{
    std::mt19937 random(14);
    std::normal_distribution<double> xy(0.0, 0.003);
    std::normal_distribution<double> part(1.0, 0.04);
    const auto color = [&](double Y, double x, double y) {
        return Model::Target::fromYxy(Y * part(random), x + xy(random), y + xy(random));
    };
    DisplayWall wall;
    wall.unit = LuminanceUnit::CandelaPerSquareMetre;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            WallCabinet cabinet;
            cabinet.row = row;
            cabinet.column = column;
            cabinet.red = color(240, 0.700, 0.299);
            cabinet.green = color(634, 0.189, 0.718);
            cabinet.blue = color(126, 0.133, 0.075);
            if (measured == Measured::All || (measured == Measured::HalfOfTheBlacks && column % 2 == 0)) {
                cabinet.black = color(0.4, 0.30, 0.31);
            }
            if (measured == Measured::All) {
                cabinet.white = color(1000, 0.2829, 0.2971);
            }
            wall.cabinets.push_back(cabinet);
        }
    }
    return wall;
}

DisplayGamut target()
{
    Model::Targets of = Model::rec709().getTargets();
    for (Model::Target *color : {&of.red, &of.green, &of.blue, &of.white}) {
        *color = Model::Target::fromYxy(color->Y * 900.0, color->x, color->y);
    }
    return {Model::ColorGamut("target", of), LuminanceUnit::CandelaPerSquareMetre};
}

void assess(benchmark::State &state)
{
    const DisplayWall wall = wallOf(int(state.range(0)), int(state.range(1)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(assessWall(wall, target()));
    }
}

//! With blacks, and a target that not all show: what takes longest.
void assessOverBlacks(benchmark::State &state, Measured measured)
{
    const DisplayWall wall = wallOf(int(state.range(0)), int(state.range(1)), measured);
    Model::Targets wide = Model::dciP3D65().getTargets();
    for (Model::Target *color : {&wide.red, &wide.green, &wide.blue, &wide.white}) {
        *color = Model::Target::fromYxy(color->Y * 700.0, color->x, color->y);
    }
    const DisplayGamut exacting(Model::ColorGamut("target", wide), LuminanceUnit::CandelaPerSquareMetre);
    for (auto _ : state) {
        benchmark::DoNotOptimize(assessWall(wall, exacting));
    }
}

void paint(benchmark::State &state)
{
    WallPicture picture{wallOf(int(state.range(0)), int(state.range(1))), nullptr, WallQuantity::Headroom};
    picture.assessment = std::make_shared<const WallAssessment>(assessWall(picture.wall, target()));
    QImage image(1000, 800, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&image);
        paintWallPicture(&painter, image.rect(), picture);
    }
}

BENCHMARK(assess)->Args({12, 8})->Args({40, 25})->Args({100, 100})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(assessOverBlacks, all, Measured::All)
    ->Args({12, 8})
    ->Args({40, 25})
    ->Args({100, 100})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(assessOverBlacks, half, Measured::HalfOfTheBlacks)
    ->Args({12, 8})
    ->Args({40, 25})
    ->Args({100, 100})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(paint)->Args({12, 8})->Args({40, 25})->Args({100, 100})->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
