// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_HORSESHOEFILL_P_H
#define CEIECHART_DIAGRAM_HORSESHOEFILL_P_H

#include <ceiechart/atlas/ceiatlasvalue.h>
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/diagram/diagramgeometry.h>

#include <QRgb>

class QColor;
class QImage;
class QPainter;
class QPolygonF;

namespace ceiechart {

//! Three channel values: linear amounts of the primaries, or what becomes of them on the way to a colour.
struct Channels {
    double red, green, blue;
};

/*!
 * The amounts of the three primaries of \a system that mix to chromaticity (x, y, z), by Cramer's rule. There is
 * no white-point normalisation; x + y + z = 1 makes the amounts sum to 1. A singular system gives NaN or infinities.
 */
Channels primaryAmounts(const CEIAtlasValue::TColorSystem &system, double x, double y, double z) noexcept;

/*!
 * The primaries and the white that colour a CIE 1976 u′, v′ diagram, in u′, v′: chosen to look right there, not
 * converted from those of the x, y diagram.
 */
constexpr CEIAtlasValue::TColorSystem uvColorSystem{
    0.5222F, 0.5222F, 0.0111F, 0.7888F, 0.1888F, 0.1555F, 0.2333F, 0.4777F};

/*! Clamps \a amounts to [0, 1] and scales them so that the largest is 255; \a gamma shapes the others. */
Channels fullBrightness(const Channels &amounts, double gamma) noexcept;

/*! Half away from zero for what is not negative; NaN gives the smallest int. */
inline int rounded(double channel) noexcept
{
    return truncated(channel + 0.5);
}

/*! What every pixel of a fill has in common. */
struct HorseshoeFill {
    DiagramGeometry geometry;
    CEIAtlasValue::TColorSystem colorSystem;
    double gamma;
};

/*! A run of pixels: amounts at its first pixel, their steps from pixel to pixel, and the margin of decision. */
struct PixelRun {
    float red, green, blue;
    float redStep, greenStep, blueStep;
    float margin;
};

/*!
 * How a run of pixels is decided at once; see horseshoefill.cpp. Every kernel gives the same colours, and the fill
 * takes the fastest that the processor has.
 */
struct FillKernel {
    const char *name;
    bool (*supported)();
    //! Colours \a count pixels; true when any is left \a undecided.
    bool (*decide)(const PixelRun &run, int count, QRgb *colors, unsigned *undecided);
};

//! The margin by which a channel has to miss a rounding boundary, when no amount on the row exceeds \a magnitude.
double decisionMargin(double magnitude);

//! All kernels, the fastest first; the last one runs everywhere.
extern const FillKernel fillKernels[];
extern const int fillKernelCount;
const FillKernel &fastestFillKernel();

/*!
 * Colours each row of \a picture, in the first \a width columns and \a height rows, from its first to its last
 * pixel whose red is above zero. Column 0 counts as first but not as last.
 */
void fillHorseshoe(
    QImage &picture, int width, int height, const HorseshoeFill &fill, const FillKernel &kernel = fastestFillKernel());

/*! \brief Colours rows of pixels, whatever they lie in. */
class RowFill {
public:
    //! Both must outlive the object.
    RowFill(const HorseshoeFill &fill, const FillKernel &kernel);

    /*!
     * Colours row \a y of the diagram from column \a left to \a right inclusive; \a line begins at column \a left.
     * Of a singular colour system, pixels that have no colour are left as they are.
     */
    void color(QRgb *line, int left, int right, int y) const;

private:
    void exact(QRgb &pixel, int x, int y) const;

    const HorseshoeFill &m_fill;
    const FillKernel &m_kernel;
    bool m_fast;
};

/*!
 * Draws what fillHorseshoe() makes of a \a width × \a height picture in \a background, as far as it can show inside
 * \a clip, to which \a painter is clipped. It is made in bands, so that it takes little memory.
 */
void drawHorseshoe(QPainter &painter, const QPolygonF &clip, int width, int height, const HorseshoeFill &fill,
    const QColor &background);

} // namespace ceiechart

#endif
