// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/scene/backgroundplacement_p.h>

namespace ceiechart {

QRectF backgroundPlacement(const QRectF &scene, const QSize &view) noexcept
{
    const double hs = scene.height();
    const double ws = scene.width();
    const double hv = view.height();
    const double wv = view.width();
    if (hv <= 0) {
        return QRectF();
    }
    const double ratio = hs / hv;
    if (ratio < 1.0) {
        return scene.translated(truncated((wv - ws) * 0.5), truncated((hv - hs) * 0.5));
    }
    const double w = ws / ratio;
    const double h = hs / ratio;
    return QRectF(0, 0, w, h).translated(truncated((wv - w) * 0.5), truncated((hv - h) * 0.5));
}

} // namespace ceiechart
