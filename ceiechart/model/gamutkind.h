// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_GAMUTKIND_H
#define CEIECHART_MODEL_GAMUTKIND_H

namespace ceiechart {

/*! \brief What a gamut is to the chart: the values of ColorTriangleObject::type(). */
enum GamutKind : int {
    StandardGamut = 0, //!< drawn from the list of standards only
    TargetGamut = 1, //!< the gamut that is edited
    OriginalGamut = 2, //!< the gamut of the display as it is
    MeasuredGamut = 3 //!< a measured gamut beside the original
};

} // namespace ceiechart

#endif // CEIECHART_MODEL_GAMUTKIND_H
