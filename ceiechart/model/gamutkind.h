// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_GAMUTKIND_H
#define CEIECHART_MODEL_GAMUTKIND_H

namespace ceiechart {

/*! \brief The kind of a gamut on the chart: the values of ColorTriangleObject::type(). */
enum GamutKind : int {
    StandardGamut = 0, //!< a published gamut; drawn only from the list of standards
    TargetGamut = 1, //!< the gamut that is edited
    OriginalGamut = 2, //!< the gamut of the display before calibration
    MeasuredGamut = 3 //!< a measured gamut, in addition to the original
};

} // namespace ceiechart

#endif // CEIECHART_MODEL_GAMUTKIND_H
