// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_DRAWCEIPICTURE_H
#define CEIECHART_LEGACY_DRAWCEIPICTURE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/render/diagramrenderer.h>

#include <QFont>
#include <QImage>

#include <vector>

/*!
 * \brief Draws the CIE 1931 x, y or the CIE 1976 u′, v′ chromaticity diagram into a new picture per call.
 *
 * The diagram type is chosen once, at construction. It draws no gamuts: the scene puts the
 * target's handles over the picture.
 *
 * \code
 * DrawCEIPicture renderer(DrawCEIPicture::UvDiagram, nullptr);
 * renderer.setMeasurePoints({QPointF(0.1978, 0.4683)});
 * std::unique_ptr<QImage> picture(renderer.drawCEIEPicture(800, 800, true, false, false, {}));
 * \endcode
 *
 * Both drawing forms return a picture that the caller owns. A width or height of 0 gives a null image, and so do a
 * negative size and one that cannot be allocated. GUI thread only.
 */
class CEIECHART_EXPORT DrawCEIPicture : public ceiechart::DiagramRenderer {
    Q_OBJECT

public:
    /*! \brief Any value other than UvDiagram makes an x, y renderer. */
    enum CEIEType : int { XyDiagram = 0, UvDiagram = 1 };

    /*! \param parent owns the renderer when not null. */
    DrawCEIPicture(DrawCEIPicture::CEIEType type, QWidget *parent);
    ~DrawCEIPicture() override;

    /*! \brief As given to the constructor. */
    DrawCEIPicture::CEIEType type();

    /*!
     * \brief The x, y picture on black: locus edge and horseshoe, and what the flags ask for.
     *
     * \a points are the colour-temperature points (CIE 1931 x, y), dots on the Planckian locus. On a renderer of the
     * u′, v′ diagram it draws the same layers in that diagram's range, with the locus rows taken for u′, v′: a picture
     * that means nothing.
     */
    QImage *drawCEIPicture(
        int width, int height, bool drawCoordinate, bool drawBBRLine, bool drawWaveLength, QList<QPointF> points);

    /*!
     * \brief The u′, v′ picture: horseshoe inside the spectral locus, axes when \a drawCoordinate is set, and the
     * measure points.
     *
     * \a drawBBRLine, \a drawWaveLength and \a points are accepted and ignored. A renderer of the x, y diagram has no
     * u′, v′ locus: there the picture shows axes and measure points, but no horseshoe.
     */
    QImage *drawCEIEPicture(
        int width, int height, bool drawCoordinate, bool drawBBRLine, bool drawWaveLength, QList<QPointF> points);

    /*! \brief The horseshoe colours of the last drawing's size and geometry, on "#323238"; null before the first. */
    QImage getColorImage();

    /*! \brief Chromaticities in the diagram's own coordinates, drawn by the u′, v′ picture. */
    void setMeasurePoints(const QList<QPointF> &points);
    /*! \brief At the ends of the axes; an empty title is not drawn. "X" and "Y", or "u" and "v", until set. */
    void setXTitle(const QString &title);
    /*! \copydoc setXTitle */
    void setYTitle(const QString &title);
    /*! \a line colours the edge, the axes and the dots, \a background the u′, v′ picture. */
    void setGraphColor(QColor line, QColor background);

    /*! \brief Measure points: a black dot of radius 2 pixels on a translucent white one of radius 4. */
    void painterPoints(QPainter &painter, QList<QPointF> points);
    /*! \brief Axes, grid in \a style, numbers and titles in \a font. */
    void painterCoordinate(Qt::PenStyle style, const QFont &font, QPainter &painter);

    using DiagramRenderer::CoordinateTransformation;
    /*! \brief Picture position to chromaticity; the x offset of the forward mapping is not taken off. */
    QPointF CurCoordinateToChroma(const QPointF &position);

    /*!
     * \name CIE 1931 x, y to CIE 1976 u′, v′
     * In single or double precision, one point or many. u′ = 4x / d, v′ = 9y / d with d = −2x + 12y + 3 (CIE
     * 15:2004, 8.2.1.1). d = 0 gives infinities or NaN.
     * The list conversions read their input while they write: input and output must be different containers.
     * @{
     */
    static void xy2uv(const float &x, const float &y, float &u, float &v);
    static void xyconvertuv(const double &x, const double &y, double &u, double &v);
    /*! \brief Replaces what \a uv holds. */
    static void xy2uv(const std::vector<QPointF> &xy, std::vector<QPointF> &uv);
    /*! \brief Appends to \a us and \a vs. \a ys must be at least as long as \a xs. */
    static void xy2uvList(
        std::vector<float> &xs, std::vector<float> &ys, std::vector<float> &us, std::vector<float> &vs);
    /*! @} */

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
};

#endif // CEIECHART_LEGACY_DRAWCEIPICTURE_H
