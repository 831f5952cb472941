// SPDX-FileCopyrightText: 2026 the ceiechart authors
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
 * \brief Draws the CIE 1931 x, y chromaticity diagram and the gamuts on it. Each call draws a new picture.
 *
 * Create a renderer once and use it for all pictures. It is a widget only so that it can have a parent; it is never
 * shown. Chromaticities are CIE 1931 x, y (unitless). Rectangles and polygons are in pixels of the picture, with y
 * growing downwards.
 *
 * \code
 * NewCEIE::DrawCEIPicture renderer(nullptr);
 * std::unique_ptr<QImage> picture(
 *     renderer.drawCEIPicture(800, 800, true, triangles, standards, common, false, QString()));
 * \endcode
 *
 * Both drawing functions return a picture that the caller owns and that shares no data with the renderer. If the width
 * or height is 0 or negative, or the picture cannot be allocated, the picture is a null image; the pointer never is
 * null.
 *
 * The Planckian locus and the outlines of the colour-temperature points are drawn with the pen that the painter has
 * after the layers below: black, one pixel wide.
 *
 * Use a renderer on the GUI thread only, for one picture at a time.
 */
class CEIECHART_EXPORT DrawCEIPicture : public ceiechart::DiagramRenderer {
    Q_OBJECT

public:
    /*! \brief Creates a renderer. \a parent owns it if it is not null. */
    explicit DrawCEIPicture(QWidget *parent);
    ~DrawCEIPicture() override;

    /*!
     * \brief The simple form: draws the coloured horseshoe and the locus edge, and the axes if \a showCoordinate is
     * set.
     *
     * The two unnamed flags are ignored. \a colourTemperaturePoints are drawn by the gamut form, until the next call.
     *
     * Each row is filled between its first and last pixel whose red component is above zero; with the default picture
     * colour this is the whole picture, including axes and edge.
     *
     * \param w, h width and height of the picture in pixels
     */
    QImage *drawCEIPicture(int w, int h, bool showCoordinate, bool, bool, QList<QPointF> colourTemperaturePoints);

    /*!
     * \brief The gamut form: draws all layers.
     *
     * The layers from bottom to top: picture colour, axes, wavelengths, locus edge, \a standards, coloured horseshoe,
     * \a triangles, Planckian locus, colour-temperature points of the last simple form, measurement points, CMY points.
     *
     * \param w, h width and height of the picture in pixels
     * \param showCoordinate whether the axes are drawn
     * \param triangles gamuts, drawn as outlines: kinds 1, 2 and 3. Gamuts of any other kind are ignored.
     * \param standards gamuts of any kind, drawn as tinted outlines. With an opacity of 1.0 there is no tint.
     * \param clipPolygon where the horseshoe is coloured, in pixels of the picture. If it is empty, the horseshoe is
     * not drawn.
     * \param polygonFlag is ignored
     * \param skipText if it is not empty, the locus edge, the standards, the horseshoe and the triangles are not drawn
     */
    QImage *drawCEIPicture(int w, int h, bool showCoordinate, const QList<ColorTriangleObject> &triangles,
        const QList<ColorTriangleObject> &standards, const QPolygonF &clipPolygon, bool polygonFlag,
        const QString &skipText);

    /*! \brief The clip polygon of the last picture of the gamut form, in pixels of the picture. */
    QPolygonF intersectPolygon() const;

    using DiagramRenderer::CoordinateTransformation;

    /*!
     * \brief Sets the colours of the next pictures.
     *
     * \param line colour of the locus edge, the axes and the colour-temperature points; white by default
     * \param picture colour that fills the picture; rgb(23, 23, 26) by default
     */
    void setGraphColor(QColor line, QColor picture);
    /*!
     * \brief Sets the background colour of the horseshoe in the next pictures of the gamut form; rgb(23, 23, 26) by
     * default.
     *
     * If its red component is 0, the horseshoe is not coloured.
     */
    void setBackgroudColor(const QColor &color);
    /*! \brief The background colour of the horseshoe that was set by setBackgroudColor(). */
    QColor backgroudColor() const;
    /*!
     * \brief Sets the measurement points of the next pictures of the gamut form, in pixels of the picture.
     *
     * Each is drawn as an ellipse in its rectangle: red, green, blue and white in this order, further ones black, all
     * with a white outline. Rectangles with values that are not finite are ignored.
     */
    void setPointData(const QList<QRectF> &rectangles);
    /*!
     * \brief Sets the CMY points of the next pictures of the gamut form, in pixels of the picture.
     *
     * Each is drawn as a disc of 16 × 16 pixels at the top-left corner of its rectangle: cyan, magenta and yellow in
     * this order, further ones black, all with a magenta outline. Points with a corner that is not finite are ignored.
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
