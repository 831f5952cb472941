// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// How fast a measurement list is read line by line while it is written, against reading it as a whole.
#include "ratioreporter.h"
#include "repeatedbenchmark.h"

#include <gamutfiles/latestmeasurements.h>
#include <gamutfiles/measurementstream.h>

namespace {

using namespace gamutfiles;

constexpr int lineCount = 10000;
//! What is read in one turn of the viewer's event loop.
constexpr int linesPerTurn = 256;
constexpr int pieceBytes = 16 * 1024;

QByteArray list()
{
    const char *const lines[] = {"Red 100 %,240.31,0.7003,0.2991\n", "Green 100 %,634.20,0.1889,0.7181\n",
        "Blue 100 %,126.05,0.1331,0.0752\n", "White 100 %,1000.70,0.2829,0.2971\n"};
    QByteArray bytes = "name,Y (cd/m2),x,y\n";
    for (int i = 0; i < lineCount; ++i) {
        bytes += lines[i % 4];
    }
    return bytes;
}

QByteArray brokenList()
{
    QByteArray bytes = "name,Y (cd/m2),x,y\nRed,240.31,0.7003,0.2991\n";
    for (int i = 0; i < lineCount; ++i) {
        bytes += "instrument is not ready yet\n";
    }
    return bytes;
}

void readWhole(benchmark::State &state)
{
    const QByteArray bytes = list();
    for (auto _ : state) {
        benchmark::DoNotOptimize(readMeasurementList(bytes));
    }
}

void readByLines(benchmark::State &state, const QByteArray &bytes, int mostPiece)
{
    for (auto _ : state) {
        MeasurementStream stream;
        LatestMeasurements latest;
        for (int i = 0; i < bytes.size(); i += mostPiece) {
            stream.feed(bytes.mid(i, mostPiece));
            while (stream.hasLines()) {
                for (const Measurement &measurement : stream.read(linesPerTurn)) {
                    latest.add(measurement);
                }
            }
        }
        benchmark::DoNotOptimize(latest.list());
    }
    state.counters["lines/s"] = benchmark::Counter(double(lineCount), benchmark::Counter::kIsIterationInvariantRate);
}

} // namespace

int main(int argc, char **argv)
{
    // The goal: 1000 lines a second next to everything else, so no more than a few microseconds for a line.
    addRepeated("list of 10000 lines/plain", readWhole);
    addRepeated("list of 10000 lines/as it grows", readByLines, list(), pieceBytes);
    addRepeated("list of 10000 lines/line by line", readByLines, list(), 32);
    addRepeated("list of 10000 lines/broken lines", readByLines, brokenList(), pieceBytes);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
