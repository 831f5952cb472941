// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <colortemperature/colortemperature.h>

#include "colortemperaturecinterface.h"

double temperatureFromC(double x, double y, double *duv)
{
    double kelvin = -1.0;
    *duv = GetColorTemperatureFromXY(x, y, &kelvin);
    return kelvin;
}

void whiteFromC(const double primaries[9], double white[3])
{
    RGBCxCyToWhiteCxCy(primaries[0], primaries[1], primaries[2], primaries[3], primaries[4], primaries[5], primaries[6],
        primaries[7], primaries[8], &white[0], &white[1], &white[2]);
}

void luminancesFromC(const double chromaticities[6], const double white[3], double luminances[3])
{
    RGBCxCyFromWhiteCxCy(&luminances[0], chromaticities[0], chromaticities[1], &luminances[1], chromaticities[2],
        chromaticities[3], &luminances[2], chromaticities[4], chromaticities[5], white[0], white[1], white[2]);
}
