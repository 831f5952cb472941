// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "soak.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLoggingCategory>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>

/*!
 * \file
 * \brief soaktest [--seconds N | --events N] [--seed N] current|legacy|diagram|window: random use until the time is
 * over or as many steps and events have been made.
 *
 * Each round has a seed of its own. Without --seed, half of the rounds have the same ones at each run, and half others.
 * A round that ended the program is repeated by its seed; with --seed, the only round is that one.
 */
namespace {

constexpr int stepsPerRound = 400;

#ifdef SOAK_SANITIZED
constexpr double slowness = 5.0; // the share of the sanitizers
#else
constexpr double slowness = 1.0;
#endif
// Seconds. On a slow machine, a step may take longer than it should.
constexpr double longStep = 1.0 * slowness;
constexpr double longestStep = 3.0 * slowness;

using Use = void (*)(soak::Round &round);

Use useOf(const char *part)
{
    if (std::strcmp(part, "current") == 0) {
        return &soak::useCurrentChart;
    }
    if (std::strcmp(part, "legacy") == 0) {
        return &soak::useLegacyChart;
    }
    if (std::strcmp(part, "diagram") == 0) {
        return &soak::useDiagram;
    }
#ifdef SOAK_WINDOW
    if (std::strcmp(part, "window") == 0) {
        return &soak::useWindow;
    }
#endif
    return nullptr;
}

} // namespace

int main(int argc, char **argv)
{
    // What the offscreen platform cannot do is not of interest; QT_LOGGING_RULES brings it back.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    double seconds = 2.0;
    long events = 0;
    unsigned seed = 0;
    bool isRepeated = false;
    Use use = nullptr;
    const char *part = "";
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--seconds") == 0 && i + 1 < argc) {
            seconds = std::atof(argv[++i]);
        } else if (std::strcmp(argv[i], "--events") == 0 && i + 1 < argc) {
            events = std::atol(argv[++i]);
        } else if (std::strcmp(argv[i], "--seed") == 0 && i + 1 < argc) {
            seed = unsigned(std::strtoul(argv[++i], nullptr, 10));
            isRepeated = true;
        } else {
            part = argv[i];
            use = useOf(part);
        }
    }
    if (!use) {
        std::fprintf(stderr, "soaktest [--seconds N | --events N] [--seed N] current|legacy|diagram|window\n");
        return EXIT_FAILURE;
    }

    static char where[100];
    soak::StallWatch watch(longStep, longestStep, where);
    long rounds = 0;
    long steps = 0;
    const auto run = [&](unsigned which) {
        std::snprintf(where, sizeof where, "%s --seed %u, after %ld steps and events", part, which, steps);
        soak::Round round(which, stepsPerRound, &watch);
        use(round);
        ++rounds;
        steps += round.steps();
    };
    if (isRepeated) {
        run(seed);
    } else {
        const unsigned other = std::random_device()();
        std::printf("%s: seeds from 1 and from %u\n", part, other);
        std::fflush(stdout);
        constexpr qint64 saidEvery = 60000; // milliseconds
        qint64 said = 0;
        QElapsedTimer timer;
        timer.start();
        for (unsigned i = 1; events > 0 ? steps < events : double(timer.elapsed()) < seconds * 1000.0; ++i) {
            run(i);
            run(other + i);
            if (timer.elapsed() - said >= saidEvery) {
                said = timer.elapsed();
                std::printf("%s: %ld steps and events so far\n", part, steps);
                std::fflush(stdout);
            }
        }
    }
    std::printf("%s: %ld rounds, %ld steps and events\n", part, rounds, steps);
    return EXIT_SUCCESS;
}
