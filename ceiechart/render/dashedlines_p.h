// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_DASHEDLINES_P_H
#define CEIECHART_RENDER_DASHEDLINES_P_H

#include <QImage>
#include <QPainter>
#include <QPointF>
#include <QRgb>

#include <array>
#include <optional>
#include <utility>

namespace ceiechart {

/*! \brief A dashed horizontal or vertical line of which all pixels are known. */
class RepeatedDashes {
public:
    /*! \brief The first row that is painted. */
    int top() const;
    /*! \brief The row behind the last that is painted. */
    int bottom() const;
    /*! \brief The first column that is painted. */
    int left() const;
    /*! \brief The column behind the last that is painted. */
    int right() const;
    /*! \brief Draws what is in row \a y of the premultiplied picture, of which \a line is that row. */
    void drawRow(QRgb *line, int y) const;

private:
    friend class DashedLines;
    static constexpr int before = 2; //!< pixels before the beginning that can be painted
    static constexpr int across = 4; //!< pixels perpendicular to the line, some of which are painted
    static constexpr int longestPeriod = 16; //!< in pixels
    static constexpr int periods = 5; //!< of the sample; one at each end may differ from those between them
    static constexpr int margin = 4; //!< pixels around the sample
    static constexpr int sampleLength = (periods + 1) * longestPeriod + 2 * margin;

    int placeOf(int i) const;
    std::pair<int, int> along() const;

    bool m_isUpright = false;
    int m_extent = 0; //!< of the picture, along the line
    int m_first = 0; //!< the pixel along the line in which it begins
    int m_step = 1; //!< 1, or -1 for a line that is drawn backwards
    int m_firstSide = 0; //!< the first pixel perpendicular to it
    int m_period = 1;
    int m_leftOut = 0; //!< periods that the sample has less
    int m_count = 0; //!< places of the sample
    std::array<bool, across> m_isPainted{}; //!< which of the pixels beside one another are painted anywhere
    //! What is painted of the pixels beside one another at a place along the sample, premultiplied.
    std::array<std::array<QRgb, across>, sampleLength> m_places{};
};

/*!
 * \brief Draws dashed horizontal and vertical lines with the pixels of the paint engine, but faster.
 *
 * The dashes of such a line repeat after a whole number of pixels. The engine draws a line of a few periods, from which
 * the other pixels are known.
 */
class DashedLines {
public:
    /*! \brief Draws exactly what painter.drawLine(from, to) draws. */
    void draw(QPainter &painter, const QPointF &from, const QPointF &to);

    /*! \brief What painter.drawLine(from, to) draws; nothing if that is not known. */
    std::optional<RepeatedDashes> repeated(const QPainter &painter, const QPointF &from, const QPointF &to);

private:
    QImage m_sample;
    QPainter m_samplePainter; // painting on m_sample, destroyed before it
};

} // namespace ceiechart

#endif // CEIECHART_RENDER_DASHEDLINES_P_H
