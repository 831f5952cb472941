// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_MIXEDWHITES_H
#define CEIECHART_TESTS_REFERENCE_MIXEDWHITES_H

#include <ceiechart/atlas/chromasets.h>
#include <ceiechart/model/trianglepoint.h>

namespace reference {

struct Luminances {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
};

/*! \brief The luminances with which the primaries mix to their gamut's white at the luminance \a white. */
inline Luminances luminancesFor(const TrianglePoint &points, double white)
{
    Luminances found;
    ChromaSets::RGBCxCyFromWhiteCxCy(found.red, points.redPos().x(), points.redPos().y(), found.green,
        points.greenPos().x(), points.greenPos().y(), found.blue, points.bluePos().x(), points.bluePos().y(), white,
        points.whitePos().x(), points.whitePos().y());
    return found;
}

struct White {
    double luminance = 0.0;
    double x = 0.0;
    double y = 0.0;
};

/*! \brief What the primaries mix to at their own luminances. */
inline White whiteOf(const TrianglePoint &points)
{
    White white;
    ChromaSets::rgbCxCyToWhiteCxCy(points.redLum(), points.redPos().x(), points.redPos().y(), points.greenLum(),
        points.greenPos().x(), points.greenPos().y(), points.blueLum(), points.bluePos().x(), points.bluePos().y(),
        white.luminance, white.x, white.y);
    return white;
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_MIXEDWHITES_H
