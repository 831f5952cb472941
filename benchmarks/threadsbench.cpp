// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Measures by the clock, and therefore needs processors that have nothing else to do.
#include "ratioreporter.h"
#include "samplegamuts.h"

#include <ceiechart/render/drawceipicture.h>

#include <QApplication>

#include <memory>

namespace {

void gamutForm(benchmark::State &state, QSize size, int threads)
{
    const Gamuts gamuts;
    NewCEIE::DrawCEIPicture renderer(nullptr);
    renderer.setThreadCount(threads);
    for (auto _ : state) {
        const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(size.width(), size.height(), true,
            gamuts.triangles, gamuts.standards, gamuts.clip(size), false, QString()));
        benchmark::DoNotOptimize(picture->constBits());
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    for (const QSize &size : {QSize(800, 800), QSize(1920, 1080), QSize(3840, 2160)}) {
        const std::string name = "gamut form " + std::to_string(size.width()) + "x" + std::to_string(size.height());
        for (const auto &[suffix, threads] : {std::pair("/plain", 1), std::pair("/2 threads", 2)}) {
            benchmark::RegisterBenchmark((name + suffix).c_str(), gamutForm, size, threads)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime()
                ->MinTime(0.1)
                ->Repetitions(15)
                ->ReportAggregatesOnly();
        }
    }
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
