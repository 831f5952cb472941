// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMGEOMETRY_H
#define CEIECHART_DIAGRAM_DIAGRAMGEOMETRY_H

#include <ceiechart/ceiechart_export.h>

#include <QPointF>
#include <QRectF>

namespace ceiechart {

/*! \brief The range of chromaticities that a diagram shows. The mapping depends on their single precision. */
struct ChromaRange {
    float xMin; //!< chromaticity at the left edge of the plot
    float xMax; //!< chromaticity at the right edge
    float yMin; //!< chromaticity at the bottom edge
    float yMax; //!< chromaticity at the top edge
};

/*!
 * \brief The mapping between chromaticities and picture pixels.
 *
 * Chromaticities are unitless, in the coordinates of the diagram: CIE 1931 x, y or CIE 1976 u′, v′. Pixels have y
 * growing downwards.
 *
 * The rectangle of the plot contains the right and bottom edges in place of width and height. The forward mapping adds
 * xOffset pixels to x, and the backward mapping does not subtract them. The colours of the horseshoe are positioned
 * with the backward mapping and the lines over it with the forward mapping.
 *
 * \code
 * ceiechart::DiagramGeometry geometry;
 * geometry.setPicture(800, 800, 5, {0.0F, 0.84F, 0.0F, 0.94F});
 * const QPointF d65 = geometry.toPixel(QPointF(0.3127, 0.3290));
 * \endcode
 */
class CEIECHART_EXPORT DiagramGeometry {
public:
    /*! \brief The number of pixels that the forward mapping adds to x. */
    static constexpr int xOffset = 4;

    /*!
     * \brief Sets both rectangles and computes the scales from them.
     *
     * If the plot or the range of chromaticities has no extent in x or y, the scales keep their previous values and the
     * function returns false. The scales of a new object are 0, so that every chromaticity maps to the corner of the
     * plot.
     *
     * \param plot the plot in pixels: left, top, right and bottom edge
     * \param chroma the chromaticities of the plot: x minimum, y minimum, x extent and y extent
     * \return whether the scales were computed
     */
    bool set(const QRectF &plot, const QRectF &chroma) noexcept;

    /*!
     * \brief Sets the mapping of a picture of \a width × \a height pixels.
     *
     * The plot extends from \a percent % to 100 − \a percent % of the width and of the height, and shows \a range. The
     * minima of \a range must be 0. See set() for pictures without an extent.
     * \return whether the scales were computed
     */
    bool setPicture(int width, int height, int percent, const ChromaRange &range) noexcept;

    /*! \brief The pixel position of \a chroma, truncated toward zero to whole pixels, including the offset. */
    QPointF toPixel(const QPointF &chroma) const noexcept;
    /*! \brief The pixel position of the chromaticity (\a x, \a y), not truncated, including the offset. */
    QPointF toExactPixel(double x, double y) const noexcept;
    /*! \brief The chromaticity at the pixel position (\a px, \a py). The offset is not subtracted. */
    QPointF toChroma(double px, double py) const noexcept;

    /*! \brief The plot in pixels. Width and height contain the right and bottom edges. */
    const QRectF &plot() const noexcept { return m_plot; }
    /*! \brief The chromaticities that the plot shows. */
    const QRectF &chroma() const noexcept { return m_chroma; }

private:
    QRectF m_plot;
    QRectF m_chroma;
    double m_pixelSpanX = 0.0;
    double m_pixelSpanY = 0.0;
    double m_chromaSpanX = 0.0;
    double m_chromaSpanY = 0.0;
    double m_pixelsPerUnitX = 0.0;
    double m_pixelsPerUnitY = 0.0;
    double m_unitsPerPixelX = 0.0;
    double m_unitsPerPixelY = 0.0;
};

} // namespace ceiechart

#endif
