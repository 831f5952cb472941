// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_ATLAS_BLACKBODY_P_H
#define CEIECHART_ATLAS_BLACKBODY_P_H

#include <ceiechart/atlas/ceiatlasvalue.h>

namespace ceiechart {

/*!
 * \brief Chromaticities of black bodies, rounded to three decimals.
 *
 * Planck's radiator with c2 = 1.438776877e-2 m K (CODATA 2018), summed with the CIE 1931 colour-matching functions
 * (ISO/CIE 11664-1) from 360 nm to 830 nm in steps of 1 nm. The temperatures rise in steps of 200 K up to 1400 K, 100 K
 * up to 5000 K, 200 K up to 6000 K, and in wider steps above. 3250 K and 9300 K are added because they are common
 * whites.
 */
inline constexpr CEIAtlasValue::CEITemperatureCoordinate blackBodies[] = {
    {1000, 0.653, 0.344},
    {1200, 0.625, 0.367},
    {1400, 0.599, 0.386},
    {1500, 0.586, 0.393},
    {1600, 0.573, 0.399},
    {1700, 0.561, 0.404},
    {1800, 0.549, 0.408},
    {1900, 0.538, 0.411},
    {2000, 0.527, 0.413},
    {2100, 0.516, 0.415},
    {2200, 0.506, 0.415},
    {2300, 0.496, 0.415},
    {2400, 0.486, 0.415},
    {2500, 0.477, 0.414},
    {2600, 0.468, 0.412},
    {2700, 0.46, 0.411},
    {2800, 0.452, 0.409},
    {2900, 0.444, 0.406},
    {3000, 0.437, 0.404},
    {3100, 0.43, 0.402},
    {3200, 0.423, 0.399},
    {3250, 0.42, 0.398},
    {3300, 0.417, 0.396},
    {3400, 0.411, 0.394},
    {3500, 0.405, 0.391},
    {3600, 0.4, 0.388},
    {3700, 0.395, 0.385},
    {3800, 0.39, 0.382},
    {3900, 0.385, 0.38},
    {4000, 0.38, 0.377},
    {4100, 0.376, 0.374},
    {4200, 0.372, 0.371},
    {4300, 0.368, 0.369},
    {4400, 0.364, 0.366},
    {4500, 0.361, 0.364},
    {4600, 0.357, 0.361},
    {4700, 0.354, 0.359},
    {4800, 0.351, 0.356},
    {4900, 0.348, 0.354},
    {5000, 0.345, 0.352},
    {5200, 0.34, 0.347},
    {5400, 0.335, 0.343},
    {5600, 0.33, 0.339},
    {5800, 0.326, 0.335},
    {6000, 0.322, 0.332},
    {6500, 0.314, 0.324},
    {7000, 0.306, 0.317},
    {7500, 0.3, 0.31},
    {8000, 0.295, 0.305},
    {8500, 0.291, 0.3},
    {9000, 0.287, 0.296},
    {9300, 0.285, 0.293},
    {10000, 0.281, 0.288},
    {15000, 0.264, 0.267},
};

} // namespace ceiechart

#endif // CEIECHART_ATLAS_BLACKBODY_P_H
