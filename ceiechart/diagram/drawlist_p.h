// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DRAWLIST_P_H
#define CEIECHART_DIAGRAM_DRAWLIST_P_H

#include <ceiechart/diagram/markpicture_p.h>

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QImage>
#include <QLineF>
#include <QList>
#include <QPainterPath>
#include <QPen>
#include <QPoint>
#include <QPolygonF>
#include <QRegion>
#include <QString>

#include <memory>
#include <optional>
#include <variant>
#include <vector>

class QPaintDevice;
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

/*! \brief A text as pixels, for a certain scale. */
struct TextPicture {
    QColor color;
    QColor casing;
    double scale; //!< pixels for each logical pixel
    QImage pixels; //!< premultiplied; null for want of memory, and of what is too large
    QPoint origin; //!< the pixel right below and to the right of the left end of the base line
};

/*! \brief A font and its measures in logical pixels. */
class TextStyle {
public:
    /*!
     * \param font  sized in points
     * \param device  what is painted on; null for the screen
     * \param unit  device pixels of the device's own coordinates per logical pixel
     */
    TextStyle(const QFont &font, const QPaintDevice *device, double unit);

    const QFont &font() const { return m_font; }
    double unit() const { return m_unit; }
    double width(const QString &text) const;
    double ascent() const { return m_metrics.ascent() / m_unit; }
    double height() const { return (m_metrics.ascent() + m_metrics.descent()) / m_unit; }
    QSizeF size(const QString &text) const { return QSizeF(width(text), height()); }
    //! \a text, with its end replaced by an ellipsis when it is wider than \a width.
    QString elided(const QString &text, double width) const
    {
        return m_metrics.elidedText(text, Qt::ElideRight, width * m_unit);
    }
    //! The size of an em in logical pixels.
    double pixelSize() const { return m_pixelSize; }
    //! The size of \a text as designed, which is the same on every device: hinting plays no part.
    QSizeF designedSize(const QString &text) const;
    //! The glyphs of \a text, with the left end of its base line at the origin.
    QList<QGlyphRun> glyphs(const QString &text) const;
    /*!
     * \a text in \a color on its \a casing, which is left out if it is no colour, with \a scale pixels for each
     * logical pixel.
     */
    TextPicture picture(const QString &text, const QColor &color, const QColor &casing, double scale) const;

private:
    //! What has been found out about a text: to shape its glyphs and to case them takes longer than to paint them.
    struct Known {
        std::optional<double> advance;
        QList<QGlyphRun> glyphs;
        std::vector<TextPicture> pictures;
    };
    Known &known(const QString &text) const;

    QFont m_font;
    QFont m_shapedFont; // has the size in points at the resolution of the device, which need not be the screen's
    QFontMetricsF m_metrics;
    double m_unit;
    double m_pixelSize;
    std::shared_ptr<QHash<QString, Known>> m_known; // of all copies
};

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
