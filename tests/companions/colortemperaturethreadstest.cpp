// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <colortemperature/colortemperature.h>

#include <QtTest>

#include <array>
#include <atomic>
#include <random>
#include <thread>
#include <vector>

namespace {

// Every result of the library for one chromaticity, as the three functions hand it out.
using Results = std::array<double, 8>;

Results resultsFor(double x, double y)
{
    Results found{};
    found[0] = GetColorTemperatureFromXY(x, y, &found[1]);
    RGBCxCyToWhiteCxCy(20.0 + x, 0.64, 0.33, 70.0 + y, x, 0.6, 10.0, 0.15, y, &found[2], &found[3], &found[4]);
    RGBCxCyFromWhiteCxCy(&found[5], 0.7, 0.29, &found[6], 0.17, 0.8, &found[7], 0.13, 0.04, 100.0 * x, x, y);
    return found;
}

struct Case {
    double x;
    double y;
    Results expected;
};

// Over the whole plane: some with the nearest point of the locus next to them, some with several near ones.
std::vector<Case> casesOf(unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> x(0.01, 0.8);
    std::uniform_real_distribution<double> y(0.01, 0.9);
    std::vector<Case> cases(500);
    for (Case &one : cases) {
        one.x = x(random);
        one.y = y(random);
        one.expected = resultsFor(one.x, one.y);
    }
    return cases;
}

} // namespace

class ColorTemperatureThreadsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void threadsDoNotDisturbEachOther();
};

// Each with chromaticities of its own, and all of them for as long as the scheduler needs to interrupt them often.
void ColorTemperatureThreadsTest::threadsDoNotDisturbEachOther()
{
    constexpr unsigned threadCount = 4;
    std::vector<std::vector<Case>> cases;
    for (unsigned i = 0; i < threadCount; ++i) {
        cases.push_back(casesOf(i));
    }
    std::atomic<bool> go{false};
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (const std::vector<Case> &own : cases) {
        threads.emplace_back([&own, &go, &wrong] {
            while (!go) {
                std::this_thread::yield();
            }
            for (int turn = 0; turn < 400; ++turn) {
                for (const Case &one : own) {
                    wrong += resultsFor(one.x, one.y) == one.expected ? 0 : 1;
                }
            }
        });
    }
    go = true;
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(wrong.load(), 0);
}

QTEST_APPLESS_MAIN(ColorTemperatureThreadsTest)
#include "colortemperaturethreadstest.moc"
