// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_DRAWCEIPICTURE_H
#define CEIECHART_LEGACY_DRAWCEIPICTURE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/render/diagramrenderer.h>

#include <QFont>
#include <QImage>

#include <vector>

/*!
 * \brief Draws the CIE 1931 x, y or the CIE 1976 u′, v′ chromaticity diagram. Each call draws a new picture.
 *
 * The diagram is chosen in the constructor. The renderer draws no gamuts: the scene draws the handles of the target
 * over the picture. Create a renderer once and use it for all pictures.
 *
 * \code
 * DrawCEIPicture renderer(DrawCEIPicture::UvDiagram, nullptr);
 * renderer.setMeasurePoints({QPointF(0.1978, 0.4683)});
 * std::unique_ptr<QImage> picture(renderer.drawCEIEPicture(800, 800, true, false, false, {}));
 * \endcode
 *
 * Both drawing functions return a picture that the caller owns and that shares no data with the renderer. If the width
 * or height is 0 or negative, or the picture cannot be allocated, the picture is a null image; the pointer never is
 * null. Sizes are in pixels, with y growing downwards. Use a renderer on the GUI thread only.
 */
class CEIECHART_EXPORT DrawCEIPicture : public ceiechart::DiagramRenderer {
    Q_OBJECT

public:
    /*! \brief The diagram of a renderer. Any value other than UvDiagram gives the x, y diagram. */
    enum CEIEType : int { XyDiagram = 0, UvDiagram = 1 };

    /*! \brief Creates a renderer for the diagram \a type. \a parent owns it if it is not null. */
    DrawCEIPicture(DrawCEIPicture::CEIEType type, QWidget *parent);
    ~DrawCEIPicture() override;

    /*! \brief The diagram that was passed to the constructor. Not const, like CurCoordinateToChroma(). */
    DrawCEIPicture::CEIEType type();

    /*!
     * \brief Draws the x, y picture on a black background: the locus edge, the horseshoe and the layers of the flags.
     *
     * For a renderer of the x, y diagram. A renderer of the u′, v′ diagram plots the x, y data of these layers on the
     * axes of u′, v′: such a picture is wrong.
     *
     * \param width, height size of the picture in pixels
     * \param drawCoordinate whether axes and grid are drawn
     * \param drawBBRLine whether the Planckian locus and \a points are drawn
     * \param drawWaveLength whether the wavelengths are drawn
     * \param points colour-temperature points (CIE 1931 x, y), drawn as dots
     */
    QImage *drawCEIPicture(
        int width, int height, bool drawCoordinate, bool drawBBRLine, bool drawWaveLength, QList<QPointF> points);

    /*!
     * \brief Draws the u′, v′ picture: the horseshoe inside the spectral locus, and the measurement points.
     *
     * For a renderer of the u′, v′ diagram. A renderer of the x, y diagram has no u′, v′ locus: it draws no horseshoe,
     * but axes and measurement points, both in x, y.
     *
     * \param width, height size of the picture in pixels
     * \param drawCoordinate whether axes and grid are drawn
     * \param drawBBRLine, drawWaveLength, points are ignored
     */
    QImage *drawCEIEPicture(
        int width, int height, bool drawCoordinate, bool drawBBRLine, bool drawWaveLength, QList<QPointF> points);

    /*!
     * \brief The colours of the horseshoe, on the background "#323238", in the size and mapping of the last picture.
     *
     * A null image before the first picture.
     */
    QImage getColorImage();

    /*! \brief Sets the measurement points of the u′, v′ picture, in the coordinates of the diagram. */
    void setMeasurePoints(const QList<QPointF> &points);
    /*!
     * \brief Sets the title at the end of the first axis. An empty title is not drawn.
     *
     * "X" by default, "u" on a u′, v′ diagram.
     */
    void setXTitle(const QString &title);
    /*!
     * \brief Sets the title at the end of the second axis. An empty title is not drawn.
     *
     * "Y" by default, "v" on a u′, v′ diagram.
     */
    void setYTitle(const QString &title);
    /*!
     * \brief Sets the colours of the next pictures.
     *
     * \param line colour of the locus edge, the axes and the colour-temperature points; white by default
     * \param background colour that fills the u′, v′ picture; "#323238" by default. The x, y picture has a black
     * background.
     */
    void setGraphColor(QColor line, QColor background);

    /*!
     * \brief Draws \a points, in the coordinates of the diagram: black dots of radius 2 pixels on translucent white
     * ones of radius 4.
     */
    void painterPoints(QPainter &painter, QList<QPointF> points);
    /*!
     * \brief Draws the axes, the grid in \a style, and the numbers and titles in \a font, in the mapping of the last
     * picture.
     */
    void painterCoordinate(Qt::PenStyle style, const QFont &font, QPainter &painter);

    using DiagramRenderer::CoordinateTransformation;
    /*!
     * \brief The chromaticity, in the coordinates of the diagram, at \a position in the last picture. The x offset of
     * CoordinateTransformation() is not subtracted.
     */
    QPointF CurCoordinateToChroma(const QPointF &position);

    /*!
     * \name CIE 1931 x, y to CIE 1976 u′, v′
     * u′ = 4x / d and v′ = 9y / d with d = −2x + 12y + 3 (ISO 11664-5:2009). If d is 0 the results are infinite or NaN.
     *
     * The list conversions read their input while they write: input and output must be different containers.
     * @{
     */
    /*! \brief Converts a chromaticity in single precision. */
    static void xy2uv(const float &x, const float &y, float &u, float &v);
    /*! \brief Converts a chromaticity in double precision. */
    static void xyconvertuv(const double &x, const double &y, double &u, double &v);
    /*! \brief Converts a list in double precision. Replaces the contents of \a uv. */
    static void xy2uv(const std::vector<QPointF> &xy, std::vector<QPointF> &uv);
    /*!
     * \brief Converts lists in single precision. Appends to \a us and \a vs. \a ys must be at least as long as \a xs.
     */
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
