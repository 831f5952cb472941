// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_BENCHMARKS_GROWTHREPORTER_H
#define CEIECHART_BENCHMARKS_GROWTHREPORTER_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/*!
 * \brief Prints the benchmarks as usual and, after them, how the time of each kind of work grows with the picture.
 *
 * By the median times: a table of milliseconds with the share of the whole, and one of nanoseconds for each thousand
 * pixels. What takes the same time for a pixel of each size grows as the pixels do.
 */
class GrowthReporter : public benchmark::ConsoleReporter {
public:
    static constexpr const char *whole = "whole"; //!< the work of which the others are shares

    /*! \brief The name of a benchmark of the work \a what on a picture of \a width × \a height pixels. */
    static std::string nameOf(int width, int height, const std::string &what);

    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    std::vector<std::string> m_works; //!< in the order of the benchmarks
    std::map<long, std::map<std::string, double>> m_medians; //!< seconds, by pixels and work
};

#endif // CEIECHART_BENCHMARKS_GROWTHREPORTER_H
