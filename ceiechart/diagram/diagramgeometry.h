// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMGEOMETRY_H
#define CEIECHART_DIAGRAM_DIAGRAMGEOMETRY_H

#include <ceiechart/ceiechart_export.h>

#include <QPointF>
#include <QRectF>

namespace ceiechart {

/*! \brief What part of the chromaticity plane a diagram shows. Single precision is part of the arithmetic. */
struct ChromaRange {
    float xMin; //!< at the left edge
    float xMax; //!< at the right edge
    float yMin; //!< at the bottom edge
    float yMax; //!< at the top edge
};

/*!
 * \brief The mapping between chromaticities (unitless, CIE 1931 x, y or CIE 1976 u′, v′) and picture pixels
 * (y growing downwards).
 *
 * The plot and chroma rectangles carry their right and bottom edges in the width and height places of QRectF,
 * and the pixel spans subtract left and top from them again. Forward mapping adds xOffset pixels to x, backward
 * mapping does not take them off: the coloured fill and the outlines over it are placed by that pairing.
 */
class CEIECHART_EXPORT DiagramGeometry {
public:
    //! Added to every forward-mapped x, in pixels.
    static constexpr int xOffset = 4;

    /*!
     * Takes both rectangles and derives the spans and scales. When a span is zero it returns false and leaves the
     * four scales as they were; on a fresh object they are zero, so that every chromaticity maps to the plot's
     * corner.
     */
    bool set(const QRectF &plot, const QRectF &chroma) noexcept;

    /*! Plot from \a percent % to 100 − \a percent % of a \a width × \a height picture, showing \a range. */
    bool setPicture(int width, int height, int percent, const ChromaRange &range) noexcept;

    /*! Chromaticity to whole pixels (truncated toward zero), offset added. */
    QPointF toPixel(const QPointF &chroma) const noexcept;
    /*! Chromaticity to pixels without truncation, offset added. */
    QPointF toExactPixel(double x, double y) const noexcept;
    /*! Picture position to chromaticity, offset not subtracted. */
    QPointF toChroma(double px, double py) const noexcept;

    //! Pixels; right and bottom edge in the place of width and height.
    const QRectF &plot() const noexcept { return m_plot; }
    //! Chromaticities; the maxima in the place of width and height.
    const QRectF &chroma() const noexcept { return m_chroma; }
    //! What one pixel is in chromaticity; 0 before the first drawing.
    double unitsPerPixelX() const noexcept { return m_unitsPerPixelX; }
    //! \copydoc unitsPerPixelX
    double unitsPerPixelY() const noexcept { return m_unitsPerPixelY; }

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
