// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/chromasets.h>
#include <colortemperature/colortemperature.h>

#include <cstdio>

int main()
{
    int kelvin = 0;
    const int result = ChromaSets::GetColorTemperatureNew(3.0, 2.0, kelvin);
    double direct = 0.0;
    GetColorTemperatureFromXY(3.0, 2.0, &direct);
    std::printf("%d K, result %d, %g K\n", kelvin, result, direct);
    return kelvin == 3200 && result == 7 && direct == 3200.0 ? 0 : 1;
}
