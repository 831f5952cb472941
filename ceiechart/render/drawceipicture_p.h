// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_DRAWCEIPICTURE_P_H
#define CEIECHART_RENDER_DRAWCEIPICTURE_P_H

#include <ceiechart/render/diagramrenderer_p.h>
#include <ceiechart/render/drawceipicture.h>

#include <QRectF>

namespace NewCEIE {

/*! \brief The gamuts, points and colours that the current renderer keeps in addition. */
class Q_DECL_HIDDEN DrawCEIPicture::Private : public ceiechart::DiagramRenderer::Private {
public:
    static constexpr auto chart = ceiechart::ChartKind::CurrentXy;

    Private()
        : ceiechart::DiagramRenderer::Private(chart)
    {
    }

    /*! \brief The appearance of the axes of the drawing. */
    ceiechart::AxesStyle axesStyle() const;
    /*! \brief The primaries of \a triangle in pixels of the picture. */
    QPolygonF trianglePolygon(const ColorTriangleObject &triangle) const;
    /*! \brief Draws the outline of \a triangle in its own colour and width. */
    void drawOutline(QPainter &painter, const ColorTriangleObject &triangle) const;
    void drawMeasurePoints(QPainter &painter) const;

    QList<QRectF> measureRectangles;
    QList<QRectF> cmyRectangles;
    QList<ColorTriangleObject> triangles;
    bool showCoordinates = false;
    QPolygonF clipPolygon;
    bool polygonFlag = false;
    QColor backgroundColor = ceiechart::chartStyle(chart).horseshoeGround;
};

} // namespace NewCEIE

#endif // CEIECHART_RENDER_DRAWCEIPICTURE_P_H
