// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_HANDLESIZES_P_H
#define CEIECHART_SCENE_HANDLESIZES_P_H

#include <ceiechart/diagram/arithmetic_p.h>

namespace ceiechart {

// Diameters in scene pixels before zoom
constexpr float vertexHandleSize = 12.0F;
constexpr float centreHandleSize = 6.0F;

inline int handleSide(float size, float zoom)
{
    return truncated(double(size * zoom));
}

} // namespace ceiechart

#endif
