// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// Prints numbers of the companions, a name and the exact value on each line. Two systems agree if the lines are equal.
#include <colortemperature/colortemperature.h>
#include <gamutmodel/commongamut.h>
#include <gamutmodel/correction.h>
#include <gamutmodel/dominantwavelength.h>
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/gamutfit.h>
#include <gamutmodel/publishedgamuts.h>

#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

void print(const char *name, double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    std::printf("%s %016" PRIx64 " %.17g\n", name, bits, value);
}

//! Numbers from 0 to 1 that are the same everywhere; the distributions of the C++ library are not.
class Random {
public:
    double next()
    {
        m_state = m_state * 6364136223846793005U + 1442695040888963407U;
        return double(m_state >> 11) / 9007199254740992.0;
    }
    double about(double middle, double reach) { return middle + (2 * next() - 1) * reach; }

private:
    std::uint64_t m_state = 2026;
};

void colorTemperatures(Random &random)
{
    for (int i = 0; i < 2000; ++i) {
        double kelvin = 0.0;
        const double duv = GetColorTemperatureFromXY(random.next(), random.next(), &kelvin);
        print("kelvin", kelvin);
        print("duv", duv);
    }
}

void coverages()
{
    const auto &gamuts = Model::publishedGamuts();
    for (const auto &gamut : gamuts) {
        for (const auto &standard : gamuts) {
            for (const Model::Diagram diagram : {Model::Diagram::Cie1931, Model::Diagram::Cie1976}) {
                const auto found = Model::gamutCoverage(gamut.gamut.getTargets(), standard.gamut.getTargets(), diagram);
                print("coverage", found.coverage);
                print("ratio", found.areaRatio);
            }
        }
    }
}

void walls(Random &random)
{
    std::vector<Model::Cabinet> cabinets;
    for (int i = 0; i < 200; ++i) {
        Model::Cabinet cabinet;
        cabinet.colors.red
            = Model::Target::fromYxy(random.about(240, 20), random.about(0.700, 0.005), random.about(0.297, 0.003));
        cabinet.colors.green
            = Model::Target::fromYxy(random.about(634, 20), random.about(0.19, 0.01), random.about(0.715, 0.01));
        cabinet.colors.blue
            = Model::Target::fromYxy(random.about(126, 20), random.about(0.133, 0.003), random.about(0.065, 0.01));
        cabinet.black = Model::Target::fromYxy(random.about(0.5, 0.2), 0.30, 0.31);
        cabinets.push_back(cabinet);
    }
    const Model::CommonGamut common = Model::commonGamut(cabinets);
    for (const auto &corner : common.corners) {
        print("corner-x", corner.x);
        print("corner-y", corner.y);
    }
    const Model::GamutFit fit = Model::fittedTarget(common, Model::rec2020().getTargets());
    print("fitted-red", fit.target.red.x);
    print("fitted-green", fit.target.green.x);
    const Model::GamutFit largest
        = Model::largestTarget(common, Model::rec2020().getTargets(), Model::Diagram::Cie1976);
    print("largest", largest.costUv.area);
    const auto wall = Model::wallCorrection(cabinets, Model::rec709().getTargets());
    for (const auto &correction : wall.corrections) {
        for (const auto &row : correction.matrix.value_or(Model::CorrectionMatrix()).rows) {
            for (const double entry : row) {
                print("entry", entry);
            }
        }
    }
}

void wavelengths(Random &random)
{
    const Model::DiagramPoint white{0.3127, 0.3290};
    for (int i = 0; i < 500; ++i) {
        const auto found = Model::dominantWavelength({random.about(0.33, 0.1), random.about(0.33, 0.1)}, white);
        print("wavelength", found ? found->wavelength : 0.0);
        print("purity", found ? found->purity : 0.0);
    }
}

} // namespace

int main()
{
    Random random;
    colorTemperatures(random);
    coverages();
    walls(random);
    wavelengths(random);
    return 0;
}
