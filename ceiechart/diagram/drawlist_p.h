// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DRAWLIST_P_H
#define CEIECHART_DIAGRAM_DRAWLIST_P_H

#include <ceiechart/diagram/markpicture_p.h>
#include <ceiechart/diagram/textstyle_p.h>

#include <QBrush>
#include <QColor>
#include <QLineF>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>
#include <QRegion>

#include <variant>
#include <vector>

class QPainter;

namespace ceiechart {

struct PaintTarget;

constexpr double pictureRatioOfFiles = 2.0; // pixels of a picture for each logical pixel of a file
constexpr double mostPicturePixels = 3e7;
constexpr int mostSmoothLines = 3000; // of more, the soft edges take longer than a step of the view may
constexpr int mostMarksByOutline = 2000; // in the plot: each takes as long as a line, and hundreds of bytes of a file

/*! \brief Whether \a painter paints on pixels, and does not turn. */
bool isRaster(const QPainter &painter);

/*! \brief Whether some of \a line with \a room on either side lies in \a needed; an empty region needs everything. */
bool isLineNeeded(const QLineF &line, double room, const QRegion &needed);

/*! \brief What is to be painted, in order, in logical pixels. */
class DrawList {
public:
    //! A level or upright line as thin as can be, on whole device pixels where the device has such.
    void hairline(const QLineF &line, const QColor &color);
    //! A line, or the outline of a polygon.
    void line(const QPolygonF &points, bool closed, const QPen &pen);
    //! Lines that do not hang together. More than mostSmoothLines become hairlines without soft edges on pictures.
    void lines(const QVector<QLineF> &lines, const QPen &pen);
    //! Any shape.
    void shape(const QPainterPath &path, const QPen &pen, const QBrush &brush);
    //! A rectangle with corners that are rounded to \a radius.
    void roundedRectangle(const QRectF &rectangle, double radius, const QColor &color);
    //! An ellipse with level and upright axes.
    void ellipse(const QPointF &centre, double radiusX, double radiusY, const QPen &pen, const QBrush &brush);
    //! A text with the left end of its base line at \a at; a \a casing that is no colour is left out.
    void text(const QPointF &at, const QString &text, const TextStyle &style, const QColor &color,
        const QColor &casing = QColor());
    //! A text that covers \a place.
    void textIn(const QRectF &place, const QString &text, const TextStyle &style, const QColor &color,
        const QColor &casing = QColor());

    //! Marks, from bottom to top. More than mostMarksByOutline become one picture.
    void marks(const QVector<PlacedMark> &marks);

    /*!
     * \brief Paints all of it, or what can be seen within \a needed.
     *
     * Nothing is clipped: what reaches beyond \a needed does so, on a painter that does not clip.
     */
    void paint(QPainter *painter, const QRegion &needed = QRegion()) const;

private:
    struct Hairline {
        QLineF line;
        QColor color;
    };
    struct Line {
        QPolygonF points;
        bool closed;
        QPen pen;
    };
    struct Lines {
        QVector<QLineF> lines;
        QPen pen;
    };
    struct Shape {
        QPainterPath path;
        QPen pen;
        QBrush brush;
    };
    struct RoundedRectangle {
        QRectF rectangle;
        double radius;
        QColor color;
    };
    struct Ellipse {
        QPointF centre;
        double radiusX;
        double radiusY;
        QPen pen;
        QBrush brush;
    };
    struct Text {
        QPointF at;
        QString text;
        TextStyle style;
        QColor color;
        QColor casing;
    };
    struct Marks {
        QVector<PlacedMark> marks;
    };
    struct Item {
        QRectF bounds; // with the width of the pen
        std::variant<Hairline, Line, Lines, Shape, RoundedRectangle, Ellipse, Text, Marks> what;
    };
    void addText(const QPointF &at, const QRectF &place, const QString &text, const TextStyle &style,
        const QColor &color, const QColor &casing);
    static void paintItem(const PaintTarget &target, const Hairline &item);
    static void paintItem(const PaintTarget &target, const Line &item);
    static void paintItem(const PaintTarget &target, const Lines &item);
    static void paintItem(const PaintTarget &target, const Shape &item);
    static void paintItem(const PaintTarget &target, const RoundedRectangle &item);
    static void paintItem(const PaintTarget &target, const Ellipse &item);
    static void paintItem(const PaintTarget &target, const Text &item);
    static void paintItem(const PaintTarget &target, const Marks &item);

    std::vector<Item> m_items;
};

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_DRAWLIST_P_H
