/* SPDX-FileCopyrightText: 2026 the ceiechart authors */
/* SPDX-License-Identifier: MIT */
#include <colortemperature/colortemperature.h>

int main(void)
{
    double kelvin = 0.0;
    GetColorTemperatureFromXY(0.3127, 0.3290, &kelvin);
    return kelvin > 6400.0 && kelvin < 6600.0 ? 0 : 1;
}
