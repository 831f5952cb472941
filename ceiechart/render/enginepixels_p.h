// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_ENGINEPIXELS_P_H
#define CEIECHART_RENDER_ENGINEPIXELS_P_H

#include <QRgb>

class QColor;
class QImage;
class QPainter;

namespace ceiechart {

/*!
 * \brief Whether the paint engine computes coverage and colours as EngineCoverage and the functions below do.
 *
 * This is tried once, on a few small pictures. If the engine computes differently, it has to draw itself.
 */
bool engineIsKnown();

/*!
 * \brief The picture that \a painter paints over with antialiasing and without a clip; null if it does anything else.
 *
 * The opacity of the painter and a scale of its coordinates are left to the caller.
 */
QImage *paintedPicture(const QPainter &painter);

/*! \brief The pixel of \a color in Format_ARGB32_Premultiplied. */
QRgb premultiplied(const QColor &color);

/*! \brief \a pixel × \a share / 255, in each channel. A fraction of a half is rounded down. */
inline QRgb multiplied(QRgb pixel, int share)
{
    // Two channels at a time, with 16 bits each.
    constexpr QRgb channels = 0x00ff00ffU;
    const auto scaled = [share](QRgb two) {
        const QRgb product = two * QRgb(share);
        return ((product + ((product >> 8) & channels) + 0x00800080U) >> 8) & channels;
    };
    return scaled(pixel & channels) | (scaled((pixel >> 8) & channels) << 8);
}

/*! \brief Paints the premultiplied \a color over \a count premultiplied pixels, of which it covers \a coverage / 255.
 */
void paintOver(QRgb *line, int count, QRgb color, int coverage);

/*!
 * \brief Draws \a count opaque \a pixels over those of \a line, as a painter on a picture in Format_ARGB32 does whose
 * clip covers \a coverage / 255 of them.
 */
void drawWithinClip(QRgb *line, const QRgb *pixels, int count, int coverage);

} // namespace ceiechart

#endif // CEIECHART_RENDER_ENGINEPIXELS_P_H
