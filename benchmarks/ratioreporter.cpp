// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "ratioreporter.h"

#include <cstdio>

void RatioReporter::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs) {
        if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") {
            const bool isByTheClock = run.run_name.time_type == "real_time";
            const double time = isByTheClock ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
            m_medians[run.run_name.function_name] = time / benchmark::GetTimeUnitMultiplier(run.time_unit);
        }
    }
}

void RatioReporter::Finalize()
{
    std::puts("\nTimes faster than the plain definition, by medians:");
    for (const auto &[name, seconds] : m_medians) {
        const auto plain = m_medians.find(name.substr(0, name.find_last_of('/')) + "/plain");
        if (plain != m_medians.end() && plain->first != name) {
            const double ratio = plain->second / seconds;
            std::printf("%-44s %8.2f ms %9.2f ms %8.*f x\n", name.c_str(), plain->second * 1e3, seconds * 1e3,
                ratio < 1.0 ? 3 : 1, ratio);
        }
    }
}
