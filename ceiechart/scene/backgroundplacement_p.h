// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_BACKGROUNDPLACEMENT_P_H
#define CEIECHART_SCENE_BACKGROUNDPLACEMENT_P_H

#include <QRectF>
#include <QSize>

namespace ceiechart {

/*!
 * \brief Where a picture that fills \a scene is painted for a view of size \a view: unscaled and centred when the view
 * is taller than the scene, else scaled to the view's height and centred. An empty view gives an empty rectangle.
 */
QRectF backgroundPlacement(const QRectF &scene, const QSize &view) noexcept;

} // namespace ceiechart

#endif
