/* SPDX-FileCopyrightText: 2026 the ceiechart authors */
/* SPDX-License-Identifier: MIT */
double GetColorTemperatureFromXY(double x, double y, double *temperature)
{
    *temperature = 1000.0 * x + 100.0 * y;
    return 7.5;
}

void RGBCxCyToWhiteCxCy(double redLuminance, double redX, double redY, double greenLuminance, double greenX,
    double greenY, double blueLuminance, double blueX, double blueY, double *whiteLuminance, double *whiteX,
    double *whiteY)
{
    *whiteLuminance = redLuminance + greenLuminance + blueLuminance;
    *whiteX = redX + greenX + blueX;
    *whiteY = redY + greenY + blueY;
}

void RGBCxCyFromWhiteCxCy(double *redLuminance, double redX, double redY, double *greenLuminance, double greenX,
    double greenY, double *blueLuminance, double blueX, double blueY, double whiteLuminance, double whiteX,
    double whiteY)
{
    *redLuminance = redX + redY + whiteLuminance;
    *greenLuminance = greenX + greenY + whiteX;
    *blueLuminance = blueX + blueY + whiteY;
}
