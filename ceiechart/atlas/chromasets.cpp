// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/chromasets.h>

#include <colortemperature/colortemperature.h>

int ChromaSets::GetColorTemperatureNew(double x, double y, int &colorTemperature)
{
    double temperature = 0.0;
    const double result = GetColorTemperatureFromXY(x, y, &temperature);
    colorTemperature = static_cast<int>(temperature);
    return static_cast<int>(result);
}

void ChromaSets::rgbCxCyToWhiteCxCy(double redLum, double redX, double redY, double greenLum, double greenX,
    double greenY, double blueLum, double blueX, double blueY, double &whiteLum, double &whiteX, double &whiteY)
{
    RGBCxCyToWhiteCxCy(
        redLum, redX, redY, greenLum, greenX, greenY, blueLum, blueX, blueY, &whiteLum, &whiteX, &whiteY);
}

void ChromaSets::RGBCxCyFromWhiteCxCy(double &redLum, double redX, double redY, double &greenLum, double greenX,
    double greenY, double &blueLum, double blueX, double blueY, double whiteLum, double whiteX, double whiteY)
{
    ::RGBCxCyFromWhiteCxCy(
        &redLum, redX, redY, &greenLum, greenX, greenY, &blueLum, blueX, blueY, whiteLum, whiteX, whiteY);
}
