// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/wallscale.h"

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <set>

using namespace gamutviewer;

namespace {

std::vector<CabinetAssessment> cabinetsOf(const std::vector<double> &luminances)
{
    std::vector<CabinetAssessment> cabinets(luminances.size());
    for (std::size_t i = 0; i < luminances.size(); ++i) {
        cabinets[i].largestWhite = luminances[i];
    }
    return cabinets;
}

//! The step of each cabinet, from the least.
std::vector<int> stepsOf(const std::vector<double> &luminances)
{
    const std::vector<CabinetAssessment> cabinets = cabinetsOf(luminances);
    const WallScale scale(WallQuantity::Luminance, cabinets, LuminanceUnit::CandelaPerSquareMetre);
    std::vector<int> steps;
    for (const CabinetAssessment &cabinet : cabinets) {
        int step = 0;
        while (scale.steps().at(step).color != scale.color(cabinet)) {
            ++step;
        }
        steps.push_back(step);
    }
    return steps;
}

//! 804 to 996 cd/m², as cabinets of one batch.
std::vector<double> batch()
{
    std::vector<double> luminances;
    for (int i = 0; i < 25; ++i) {
        luminances.push_back(804.0 + 8.0 * i);
    }
    return luminances;
}

} // namespace

class WallScaleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cabinetsOfABatchAreToldApart();
    void aDarkCabinetIsAlone();
    void limitsDifferWithoutColour();
};

void WallScaleTest::cabinetsOfABatchAreToldApart()
{
    const std::vector<int> steps = stepsOf(batch());
    QVERIFY(std::is_sorted(steps.begin(), steps.end()));
    QVERIFY(std::set<int>(steps.begin(), steps.end()).size() >= 4); // of eight
}

void WallScaleTest::aDarkCabinetIsAlone()
{
    std::vector<double> luminances = batch();
    luminances.push_back(342.0);
    const std::vector<int> steps = stepsOf(luminances);
    QCOMPARE(steps.back(), 0);
    QCOMPARE(std::count(steps.begin(), steps.end(), 0), std::ptrdiff_t(1));
    QCOMPARE(*std::max_element(steps.begin(), steps.end()), 7);
    QVERIFY(std::set<int>(steps.begin(), steps.end()).size() >= 5);
}

// As WCAG 2.1 counts contrast.
void WallScaleTest::limitsDifferWithoutColour()
{
    const auto linear
        = [](double value) { return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4); };
    const WallScale scale(WallQuantity::Limit, {}, LuminanceUnit::CandelaPerSquareMetre);
    std::vector<double> luminances;
    for (const WallScale::Step &step : scale.steps()) {
        luminances.push_back(0.05 + 0.2126 * linear(step.color.redF()) + 0.7152 * linear(step.color.greenF())
            + 0.0722 * linear(step.color.blueF()));
    }
    QCOMPARE(luminances.size(), std::size_t(4));
    std::sort(luminances.begin(), luminances.end());
    for (std::size_t i = 1; i < luminances.size(); ++i) {
        QVERIFY(luminances[i] >= 1.5 * luminances[i - 1]);
    }
}

QTEST_APPLESS_MAIN(WallScaleTest)
#include "wallscaletest.moc"
