// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_TEXTSTYLE_P_H
#define CEIECHART_DIAGRAM_TEXTSTYLE_P_H

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QImage>
#include <QList>
#include <QPoint>
#include <QSizeF>
#include <QString>

#include <memory>
#include <vector>

class QPaintDevice;
class QPainter;

namespace ceiechart {

constexpr double casingWidth = 3.0; // of texts, logical pixels

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
     * \param mostKept  how many texts are kept as they are shaped and painted
     */
    TextStyle(const QFont &font, const QPaintDevice *device, double unit, int mostKept = 1000);

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
        double advance = 0.0; // in units of the device
        QList<QGlyphRun> glyphs;
        std::vector<TextPicture> pictures;
    };
    Known &known(const QString &text) const;

    QFont m_font;
    QFont m_shapedFont; // has the size in points at the resolution of the device, which need not be the screen's
    QFontMetricsF m_metrics;
    double m_unit;
    double m_pixelSize;
    int m_mostKept;
    std::shared_ptr<QHash<QString, Known>> m_known; // of all copies
};

/*!
 * \brief Paints \a runs on their \a casing, which is left out if it is no colour.
 *
 * The glyphs are kept as pictures: to put them down eight times is faster than to stroke their outlines once.
 *
 * \param scale pixels for one of the units of \a painter
 */
void putCasedGlyphs(QPainter &painter, const QList<QGlyphRun> &runs, const QPointF &at, const QColor &color,
    const QColor &casing, double scale);

/*! \brief \a font as texts are designed: large, and not hinted. */
QFont designed(QFont font);
constexpr int designPixelSize = 100; // large enough for rounding to play no part

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_TEXTSTYLE_P_H
