// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_FENCES_P_H
#define CEIECHART_SCENE_FENCES_P_H

#include <ceiechart/model/pointf.h>

namespace ceiechart {

/*! \brief The colour region that a primary is kept in. */
enum Region { RedRegion = 0, GreenRegion = 1, BlueRegion = 2, NoRegion = 3 };

/*! \brief The first of the red, green and blue fences that contains \a chroma, or NoRegion. */
Region regionOf(const PointF &chroma) noexcept;

} // namespace ceiechart

#endif
