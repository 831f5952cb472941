// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_HANDLESIZES_P_H
#define CEIECHART_SCENE_HANDLESIZES_P_H

#include <ceiechart/diagram/arithmetic_p.h>

namespace ceiechart {

constexpr float vertexHandleSize = 12.0F; //!< diameter of a selected handle, in scene pixels before zoom
constexpr float centreHandleSize = 6.0F; //!< diameter of any other handle, in scene pixels before zoom

/*! \brief The diameter \a size multiplied by \a zoom, truncated to whole pixels. */
inline int handleSide(float size, float zoom)
{
    return truncated(double(size * zoom));
}

} // namespace ceiechart

#endif
