// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_BACKGROUNDPLACEMENT_P_H
#define CEIECHART_SCENE_BACKGROUNDPLACEMENT_P_H

#include <QRectF>
#include <QSize>

namespace ceiechart {

/*!
 * \brief The rectangle in which a picture that fills \a scene is painted in a view of size \a view.
 *
 * If the view is taller than the scene, the picture is centred and not scaled. Otherwise it is scaled to the height of
 * the view and centred. For an empty view the rectangle is empty.
 */
QRectF backgroundPlacement(const QRectF &scene, const QSize &view) noexcept;

} // namespace ceiechart

#endif
