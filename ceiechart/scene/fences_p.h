// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_FENCES_P_H
#define CEIECHART_SCENE_FENCES_P_H

#include <ceiechart/model/pointf.h>

namespace ceiechart {

/*! \brief The colour regions; each primary stays inside its own. */
enum Region { RedRegion = 0, GreenRegion = 1, BlueRegion = 2, NoRegion = 3 };

/*!
 * \brief The colour region that contains \a chroma, tested in the order red, green, blue; NoRegion if there is none.
 */
Region regionOf(const PointF &chroma) noexcept;

} // namespace ceiechart

#endif
