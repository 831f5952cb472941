// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// A few numbers of the companions against those of their sources. The tests that need Qt look at the companions more
// closely; this one tells that a build for another system computes the same.
#include "expect.h"

#include <colortemperature/colortemperature.h>
#include <gamutmodel/correction.h>
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/publishedgamuts.h>

#include <string>
#include <vector>

namespace {

void colorTemperatures(Expectations &expectations)
{
    // CIE 15:2004, table T.3. Illuminant A is Planck's radiator of 2848 K with c2 = 1.4350e-2 m K; D50 and D65 were
    // stated as 5000 K and 6500 K with c2 = 1.4380e-2 m K.
    constexpr double c2 = 1.438776877e-2;
    double kelvin = 0.0;
    double duv = GetColorTemperatureFromXY(0.44758, 0.40745, &kelvin);
    expectations.isNear(kelvin, 2848.0 * c2 / 1.4350e-2, 0.2, "illuminant A");
    expectations.isNear(duv, 0.0, 1e-5, "illuminant A, Duv");
    GetColorTemperatureFromXY(0.34567, 0.35850, &kelvin);
    expectations.isNear(kelvin, 5000.0 * c2 / 1.4380e-2, 1.5, "D50");
    GetColorTemperatureFromXY(0.31272, 0.32903, &kelvin);
    expectations.isNear(kelvin, 6500.0 * c2 / 1.4380e-2, 1.5, "D65");
    GetColorTemperatureFromXY(0.3, 0.0, &kelvin);
    expectations.expect(kelvin == 0.0, "no temperature where y is 0");
}

void coverage(Expectations &expectations)
{
    // Twice the areas by the corners: Rec.709 0.2241, Rec.2020 0.423733.
    const Model::Targets rec709 = Model::rec709().getTargets();
    const Model::Targets rec2020 = Model::rec2020().getTargets();
    const auto found = Model::gamutCoverage(rec709, rec2020, Model::Diagram::Cie1931);
    expectations.isNear(found.area, 0.2241 / 2, 1e-12, "area of Rec.709");
    expectations.isNear(found.standardArea, 0.423733 / 2, 1e-12, "area of Rec.2020");
    expectations.isNear(found.coverage, 0.2241 / 0.423733, 1e-12, "coverage of Rec.2020 by Rec.709, which it contains");
}

void correction(Expectations &expectations)
{
    // Recommendation ITU-R BT.2087-0: the conversion of BT.709 to BT.2020, which is the correction of a display with
    // the primaries of BT.2020 for a target of BT.709 with the same white.
    constexpr double expected[3][3] = {{0.6274, 0.3293, 0.0433}, {0.0691, 0.9195, 0.0114}, {0.0164, 0.0880, 0.8956}};
    Model::Cabinet cabinet;
    cabinet.colors = Model::rec2020().getTargets();
    const auto wall = Model::wallCorrection({cabinet}, Model::rec709().getTargets(), 1.0);
    expectations.expect(wall.corrections.size() == 1 && wall.corrections.front().matrix, "a matrix");
    if (wall.corrections.empty() || !wall.corrections.front().matrix) {
        return;
    }
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const std::string what = "matrix of BT.2087, " + std::to_string(row) + ", " + std::to_string(column);
            expectations.isNear(
                wall.corrections.front().matrix->rows[row][column], expected[row][column], 0.00005001, what.c_str());
        }
    }
}

} // namespace

int main()
{
    Expectations expectations;
    colorTemperatures(expectations);
    coverage(expectations);
    correction(expectations);
    expectations.expect(Model::publishedGamut("bt.2020").has_value(), "BT.2020 by its name");
    return expectations.status();
}
