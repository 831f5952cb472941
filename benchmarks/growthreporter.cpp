// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "growthreporter.h"

#include <algorithm>
#include <cstdio>

std::string GrowthReporter::nameOf(int width, int height, const std::string &what)
{
    return "growth " + std::to_string(width) + "x" + std::to_string(height) + "/" + what;
}

void GrowthReporter::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs) {
        const std::string &name = run.run_name.function_name;
        long width = 0;
        long height = 0;
        if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "median"
            || std::sscanf(name.c_str(), "growth %ldx%ld/", &width, &height) != 2) {
            continue;
        }
        const std::string work = name.substr(name.find('/') + 1);
        if (std::find(m_works.cbegin(), m_works.cend(), work) == m_works.cend()) {
            m_works.push_back(work);
        }
        m_medians[width * height][work] = run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
    }
}

void GrowthReporter::Finalize()
{
    const auto printTable = [this](const char *title, const auto &print) {
        std::printf("\n%s\n%-28s", title, "megapixels");
        for (const auto &[pixels, medians] : m_medians) {
            std::printf("%18.1f", double(pixels) / 1e6);
        }
        std::puts("");
        for (const std::string &work : m_works) {
            std::printf("%-28s", work.c_str());
            for (const auto &[pixels, medians] : m_medians) {
                const auto found = medians.find(work);
                if (found == medians.end()) {
                    std::printf("%18s", "-");
                } else {
                    print(pixels, medians, found->second);
                }
            }
            std::puts("");
        }
    };
    printTable("Milliseconds, and the share of the whole, by medians:",
        [](long, const std::map<std::string, double> &medians, double seconds) {
            const auto all = medians.find(whole);
            if (all == medians.end()) {
                std::printf("%18.3f", seconds * 1e3);
            } else {
                std::printf("%12.3f %3.0f %%", seconds * 1e3, seconds / all->second * 100.0);
            }
        });
    printTable(
        "Nanoseconds for a thousand pixels:", [](long pixels, const std::map<std::string, double> &, double seconds) {
            std::printf("%18.1f", seconds * 1e12 / double(pixels));
        });
}
