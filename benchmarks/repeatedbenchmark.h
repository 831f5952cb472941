// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_BENCHMARKS_REPEATEDBENCHMARK_H
#define CEIECHART_BENCHMARKS_REPEATEDBENCHMARK_H

#include <benchmark/benchmark.h>

#include <string>

/*! \brief Registers a benchmark, in milliseconds, of which the median of five repetitions counts. */
template <typename... Arguments>
void addRepeated(const std::string &name, Arguments... arguments)
{
    benchmark::RegisterBenchmark(name.c_str(), arguments...)
        ->Unit(benchmark::kMillisecond)
        ->MinTime(0.3)
        ->Repetitions(5)
        ->ReportAggregatesOnly();
}

#endif
