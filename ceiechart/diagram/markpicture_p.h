// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_MARKPICTURE_P_H
#define CEIECHART_DIAGRAM_MARKPICTURE_P_H

#include <ceiechart/diagram/pixelpainter_p.h>

#include <QImage>
#include <QPainterPath>
#include <QPointF>
#include <QTransform>
#include <QVector>

#include <optional>

class QPainter;

namespace ceiechart {

constexpr double markRadius = 4.0; // logical pixels
constexpr double markReach = 8.0; // logical pixels from the middle of a mark to the edge of all that it covers

/*! \brief A mark at its place. */
struct PlacedMark {
    enum class Shape { Disc, Diamond, Square };

    QPointF at; // logical pixels
    Shape shape;
    QRgb color; // of the filling
};

/*! \brief Paints \a mark exactly at its place; \a pixels are those of \a painter, if they can be written. */
void paintMark(QPainter &painter, const std::optional<PixelPainter> &pixels, const PlacedMark &mark);

/*!
 * \brief The picture of \a marks on \a area, a rectangle of pixels, to which \a transform takes them: it scales and
 * moves.
 *
 * Each kind of mark is painted a few times only, at places between the pixels, and its pixels are laid over the picture
 * wherever it is: within a quarter of a pixel of its place, and many times faster than by its outline.
 */
QImage markPicture(const QVector<PlacedMark> &marks, const QTransform &transform, const QRect &area);

} // namespace ceiechart

#endif
