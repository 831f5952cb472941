// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_HORSESHOEFILL_P_H
#define CEIECHART_DIAGRAM_HORSESHOEFILL_P_H

#include <ceiechart/atlas/ceiatlasvalue.h>
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/diagram/diagramgeometry.h>
#include <ceiechart/diagram/fillkernels_p.h>

#include <QRgb>

class QColor;
class QImage;
class QPainter;
class QPolygonF;

namespace ceiechart {

class RowThreads;

/*! \brief Three channel values: amounts of the primaries, or the components of a colour. */
struct Channels {
    double red, green, blue;
};

/*!
 * \brief The amounts of the three primaries of \a system that mix to the chromaticity (x, y, z).
 *
 * They are computed by Cramer's rule, without normalisation to the white point. If x + y + z = 1, the sum of the
 * amounts is 1. If the primaries lie on a line, the amounts are infinite or NaN.
 */
Channels primaryAmounts(const CEIAtlasValue::TColorSystem &system, double x, double y, double z) noexcept;

/*!
 * \brief The primaries and the white that colour a CIE 1976 u′, v′ diagram, in u′, v′.
 *
 * They are chosen for the appearance of the diagram and are not converted from the primaries of the x, y diagram.
 */
constexpr CEIAtlasValue::TColorSystem uvColorSystem{
    0.5222F, 0.5222F, 0.0111F, 0.7888F, 0.1888F, 0.1555F, 0.2333F, 0.4777F};

/*!
 * \brief The components of the colour with \a amounts, from 0 to 255.
 *
 * The amounts are clamped to [0, 1] and scaled so that the largest becomes 255. \a gamma is applied to the scaled
 * amounts.
 */
Channels fullBrightness(const Channels &amounts, double gamma) noexcept;

/*!
 * \brief \a channel rounded to nearest, with halves rounded up; \a channel is not negative. NaN gives the smallest int.
 */
inline int rounded(double channel) noexcept
{
    return truncated(channel + 0.5);
}

/*! \brief The parameters of a fill, the same for all pixels. */
struct HorseshoeFill {
    DiagramGeometry geometry;
    CEIAtlasValue::TColorSystem colorSystem;
    double gamma;
};

/*!
 * \brief The margin of a PixelRun of a fill.
 * \param ratio the largest amount on the run divided by the least that is the largest of a pixel
 */
int decisionMargin(double ratio);

/*!
 * \brief Fills the horseshoe in the first \a width columns and \a height rows of \a picture.
 *
 * Each row is filled from its first to its last pixel whose red component is above zero. A row in which at most the
 * pixel of column 0 has such a red component is not filled. If \a threads is not null, they fill pictures of 32 bits.
 */
void fillHorseshoe(QImage &picture, int width, int height, const HorseshoeFill &fill,
    const FillKernel &kernel = fastestFillKernel(), RowThreads *threads = nullptr);

/*! \brief Fills parts of rows, in a picture or in a buffer. */
class RowFill {
public:
    /*! \brief Creates a fill. \a fill and \a kernel must outlive it. */
    RowFill(const HorseshoeFill &fill, const FillKernel &kernel);

    /*!
     * \brief Fills row \a y of the diagram from column \a left to column \a right inclusive.
     *
     * \a line points to the pixel of column \a left. Pixels that have no valid colour, which a colour system with
     * primaries on a line can give, are not changed.
     */
    void color(QRgb *line, int left, int right, int y) const;

private:
    /*! \brief Computes the colour of a pixel in double precision. */
    void exact(QRgb &pixel, int x, int y) const;

    const HorseshoeFill &m_fill;
    const FillKernel &m_kernel;
    Channels m_origin; // the amounts at the pixel in row 0 and column 0
    Channels m_columnStep;
    Channels m_rowStep;
    bool m_fast;
};

/*!
 * \brief Draws the horseshoe inside \a clip.
 *
 * The result is that of drawing a picture of \a width × \a height pixels, filled with \a background and then by
 * fillHorseshoe(), with a \a painter that is clipped to \a clip. To save memory, the picture is drawn in bands of rows.
 */
void drawHorseshoe(QPainter &painter, const QPolygonF &clip, int width, int height, const HorseshoeFill &fill,
    const QColor &background);

} // namespace ceiechart

#endif
