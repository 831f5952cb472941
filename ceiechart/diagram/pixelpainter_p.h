// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_PIXELPAINTER_P_H
#define CEIECHART_DIAGRAM_PIXELPAINTER_P_H

#include <QColor>
#include <QLineF>
#include <QPointF>
#include <QRectF>
#include <QRegion>

#include <cstdint>
#include <optional>

class QImage;
class QPainter;

namespace ceiechart {

/*!
 * \brief Paints lines, circles and rectangles with soft edges, and pictures, straight into the pixels that a painter
 * paints on.
 *
 * A pixel is covered as far as the shape reaches over it along the normal of the edge, which differs by a few
 * hundredths from the area that the raster engine computes, and takes a small part of the time. Positions and widths
 * are those of the painter unless said otherwise.
 */
class PixelPainter {
public:
    /*!
     * \brief The pixels of \a painter, as they are clipped now; nothing where they cannot be written: they are no
     * picture in the memory, or the painter rotates, blends or clips in another way than to whole pixels.
     *
     * Valid as long as the painter paints on the same picture with the same transformation and clip.
     */
    static std::optional<PixelPainter> on(const QPainter &painter);

    double scale() const { return m_scale; } //!< pixels for one of the painter's units
    QPointF origin() const { return m_origin; } //!< the painter's, in pixels of the picture
    QRect bounds() const { return m_clip.boundingRect(); } //!< which pixels of the picture can be painted on

    /*! \brief A line with flat ends. */
    void line(const QLineF &line, double width, const QColor &color) const;
    /*! \brief A full circle. */
    void disc(const QPointF &centre, double radius, const QColor &color) const;
    /*! \brief A rectangle whose corners are rounded to \a radius, but to half a pixel at least. */
    void roundedRectangle(const QRectF &rectangle, double radius, const QColor &color) const;
    /*! \brief A circle of \a radius, drawn with a line of \a width. */
    void ring(const QPointF &centre, double radius, double width, const QColor &color) const;
    /*!
     * \brief \a picture, whose format is RGB32 or premultiplied ARGB32, with the pixel \a origin of it at \a at.
     *
     * Its pixels become those of the device, at the nearest whole ones.
     */
    void picture(const QPointF &at, const QImage &picture, const QPoint &origin) const;

private:
    PixelPainter(const QImage &pixels, const QPointF &origin, double scale, const QRegion &clip);

    void fetchAhead(int y, double x, int lastRow) const;
    template <typename IsBeyond, typename Paint>
    void forRows(double top, double bottom, const IsBeyond &isBeyond, const Paint &paint) const;
    template <typename Shares>
    void paintRow(const QRect &part, int y, double left, double right, std::uint32_t color, const Shares &shares) const;
    QPointF onPixels(const QPointF &at) const { return at * m_scale + m_origin; }

    std::uint32_t *m_pixels;
    int m_width; // pixels
    std::ptrdiff_t m_stride; // pixels from row to row, which may be more
    QPointF m_origin; // of the painter, in pixels
    double m_scale;
    QRegion m_clip; // pixels
};

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_PIXELPAINTER_P_H
