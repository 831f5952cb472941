// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_DRAWCEIPICTURE_H
#define CEIECHART_RENDER_DRAWCEIPICTURE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/colortriangleobject.h>
#include <ceiechart/render/diagramrenderer.h>

#include <QPolygonF>
#include <QRectF>
#include <QVector>

namespace NewCEIE {

/*!
 * \brief Draws the CIE 1931 x, y chromaticity diagram, and the gamuts over it, into a new picture per call.
 *
 * A renderer is made once and reused for every redraw; it is a widget only for the sake of ownership and is never
 * shown. Chromaticities are CIE 1931 x, y (unitless); rectangles are in picture pixels, y growing downwards.
 *
 * \code
 * NewCEIE::DrawCEIPicture renderer(nullptr);
 * std::unique_ptr<QImage> picture(
 *     renderer.drawCEIPicture(800, 800, true, triangles, standards, common, false, QString()));
 * \endcode
 *
 * Both drawing forms return a picture that the caller owns and that shares no data with the renderer. A width or
 * height of 0 gives a null image, and so do a negative size and one that cannot be allocated.
 *
 * The Planckian curve and the outlines of the colour-temperature dots are drawn with the pen that the painter
 * holds when their layer begins, which after the layers below is the default: black, one pixel wide.
 *
 * GUI thread only; one renderer draws one picture at a time.
 */
class CEIECHART_EXPORT DrawCEIPicture : public ceiechart::DiagramRenderer {
    Q_OBJECT

public:
    /*! \param parent owns the renderer when not null. */
    explicit DrawCEIPicture(QWidget *parent);
    ~DrawCEIPicture() override;

    /*!
     * \brief The simple form: coloured horseshoe and locus edge, with axes when \a showCoordinate is set.
     *
     * The two flags after it are accepted and ignored. \a colourTemperaturePoints are kept and drawn by the next
     * gamut form. Each row is coloured between its first and last pixel with a red component above zero, so that
     * with the default picture colour the colours cover the whole picture, the axes and the edge included.
     */
    QImage *drawCEIPicture(int w, int h, bool showCoordinate, bool, bool, QList<QPointF> colourTemperaturePoints);

    /*!
     * \brief The gamut form: all layers.
     *
     * Bottom to top: picture colour, axes (when \a showCoordinate is set), wavelengths, locus edge, \a standards,
     * the coloured horseshoe on the background colour inside \a clipPolygon, \a triangles by kind, Planckian locus
     * with the colour-temperature points of the last simple form, measure points, CMY points.
     *
     * \param w, h        pixels
     * \param triangles   drawn as outlines: kinds 1, 2 and 3; any other kind is skipped
     * \param standards   drawn as tinted outlines, whatever their kind; an opacity of 1.0 tints nothing
     * \param clipPolygon where the horseshoe colours show, in picture pixels; when empty, nowhere
     * \param polygonFlag stored, not used
     * \param skipText    when not empty, the edge, the standards, the horseshoe and the triangles are left out
     */
    QImage *drawCEIPicture(int w, int h, bool showCoordinate, const QList<ColorTriangleObject> &triangles,
        const QList<ColorTriangleObject> &standards, const QPolygonF &clipPolygon, bool polygonFlag,
        const QString &skipText);

    /*! \brief The clip polygon of the last gamut form, in picture pixels. */
    QPolygonF intersectPolygon() const;

    using DiagramRenderer::CoordinateTransformation;

    /*! \a line colours the edge, the axes and the colour-temperature dots, \a picture fills the picture. */
    void setGraphColor(QColor line, QColor picture);
    /*! \brief The colour behind the horseshoe of the gamut form. With no red in it the horseshoe stays uncoloured. */
    void setBackgroudColor(const QColor &color);
    /*! \brief Where measure points are drawn: red, green, blue and white, further ones black, with a white outline. */
    void setPointData(const QList<QRectF> &rectangles);
    /*! \brief CMY points are drawn 16 × 16 pixels from each rectangle's top-left corner: cyan, magenta, yellow, black.
     */
    void setCMYPointData(const QList<QRectF> &rectangles);

private:
    class Private;
    Private &own() const;

    using DiagramRenderer::Clamp;
    using DiagramRenderer::DrawColorTempreturePoint;
    using DiagramRenderer::DrawEdgeCoordinates;
    using DiagramRenderer::DrawPointFToLine;
    using DiagramRenderer::GetCoordinateTransformationData;
    using DiagramRenderer::GetPointColorRGB;
    using DiagramRenderer::GetPointF;
    using DiagramRenderer::GetPointRGB;
    using DiagramRenderer::GetRGBValue;
    using DiagramRenderer::MapPixelToReal;
    using DiagramRenderer::mulDiv;
    using DiagramRenderer::paintCEIEdge;
    using DiagramRenderer::painterBBRLine;
    using DiagramRenderer::painterPixColor;
    using DiagramRenderer::painterWaveLength;
    using DiagramRenderer::ShowAnnotation;

    QPointF CoordinateTransformation();
    void updateTriangleOffsetPoint(QVector<QPointF> &pts);
    void GetPointRGB(int px, int py, double alphaFactor, QImage *picture);
    void GetPointColorRGB(int px, int py, double alphaFactor, QImage *picture);
    void painterCoordinate(QPainter &painter);
    void painterStandard(QPainter &painter, const QList<ColorTriangleObject> &standards);
    void painterTriangle(QPainter &painter, const QList<ColorTriangleObject> &triangles);
    void painterTargetTriangle(QPainter &painter, const ColorTriangleObject &triangle);
    void painterOriginalTriangle(QPainter &painter, const ColorTriangleObject &triangle);
    void painterInputTriangle(QPainter &painter, const ColorTriangleObject &triangle);
    void painterIntersectsTriangle(QPainter &painter);
    void drawCMYPoint(QPainter &painter);
};

} // namespace NewCEIE

#endif // CEIECHART_RENDER_DRAWCEIPICTURE_H
