// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_BENCHMARKS_RATIOREPORTER_H
#define CEIECHART_BENCHMARKS_RATIOREPORTER_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/*!
 * \brief Prints the benchmarks as usual and, after them, how much faster each is than its plain definition.
 *
 * Times differ between machines and between runs; the ratios of a run are comparable. "<work>/<what>" is compared with
 * "<work>/plain" by the median times.
 */
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    std::map<std::string, double> m_medians; //!< median times in seconds, by name
};

#endif
