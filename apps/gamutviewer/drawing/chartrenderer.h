// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CHARTRENDERER_H
#define GAMUTVIEWER_CHARTRENDERER_H

#include "drawing/chartscene.h"

#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/render/drawceipicture.h>

#include <QImage>
#include <QSize>

namespace gamutviewer {

/*!
 * \brief Draws chart scenes on the x, y diagram into pictures of any size, without their keys.
 *
 * Clip polygon and marks are given to the library's renderer in picture pixels.
 */
class ChartRenderer {
public:
    ChartRenderer();

    /*! \brief \a scene as a picture of \a size pixels; a null image when there is no memory for one. */
    QImage draw(const ChartScene &scene, const QSize &size);

private:
    QPolygonF pixelTriangle(const TrianglePoint &triangle);
    QPolygonF commonArea(const TrianglePoint &a, const TrianglePoint &b);
    QList<QRectF> measureRectangles(const QVector<PointMark> &points);
    QList<QRectF> marks(const QList<QPointF> &points);

    NewCEIE::DrawCEIPicture m_renderer;
    ceiechart::DiagramGeometry m_geometry;
};

} // namespace gamutviewer

#endif
