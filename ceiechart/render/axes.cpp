// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/diagram/pens_p.h>
#include <ceiechart/render/dashedlines_p.h>
#include <ceiechart/render/diagramrenderer_p.h>
#include <ceiechart/render/enginepixels_p.h>

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QTextOption>

#include <algorithm>
#include <optional>
#include <utility>

namespace ceiechart {

namespace {

constexpr int numberDrop = 15; //!< distance of the numbers below the x axis, in pixels
constexpr int axisTop = 10; //!< distance of the y axis from the top edge of the picture, in pixels
constexpr int titleGap = 6; //!< distance between an axis line and its title, in pixels

QString numberText(int tick)
{
    return QString::number(tick * chartTickStep, 'g', 6);
}

/*! \brief Draws the axes of a picture. The members are common to grid, axis lines, numbers and titles. */
class AxesPainter {
public:
    AxesPainter(QPainter &painter, const AxesStyle &style, const QColor &color)
        : m_painter(painter)
        , m_style(style)
        , m_color(color)
        , m_metrics(style.numberFont)
        , m_numberHeight(m_metrics.height())
        , m_numberWidth(m_metrics.horizontalAdvance(QStringLiteral("0.0")))
        , m_zeroWidth(m_metrics.horizontalAdvance(QStringLiteral("0")))
    {
    }

    void gridLine(const QPointF &from, const QPointF &to)
    {
        beginGridLine();
        m_gridLines.draw(m_painter, from, to);
        m_painter.restore();
    }

    /*! \brief The pixels of a line of the grid, if they are known. */
    std::optional<RepeatedDashes> gridDashes(const QPointF &from, const QPointF &to)
    {
        beginGridLine();
        std::optional<RepeatedDashes> dashes = m_gridLines.repeated(m_painter, from, to);
        m_painter.restore();
        return dashes;
    }

    /*! \brief Whether the ticks of an x axis without title leave pixels that are more than \a room above it as they
     * are, apart from the axis line. */
    bool xTicksStayBelow(int room) const
    {
        const int top = m_metrics.tightBoundingRect(QStringLiteral("0123456789.")).top();
        return m_style.yTitle.isEmpty() && numberDrop + m_metrics.ascent() + top > room;
    }

    void xTick(int tick, int tx, int ty)
    {
        beginTick();
        m_painter.setFont(m_style.numberFont);
        if (tick == 0) {
            text(QStringLiteral("0"), QRect(tx, ty + numberDrop, m_zeroWidth, m_numberHeight), Qt::AlignRight);
            m_painter.setPen(solidPen(m_color, 1.0));
            m_painter.drawLine(tx, axisTop, tx, ty);
            title(m_style.yTitle, QPoint(tx + titleGap, axisTop));
        } else {
            text(numberText(tick), QRect(tx - m_numberWidth / 2, ty + numberDrop, m_numberWidth + 12, m_numberHeight));
        }
        m_painter.restore();
    }

    void yTick(int tick, int tx, int ty, int pictureWidth)
    {
        beginTick();
        m_painter.setFont(m_style.numberFont);
        if (tick == 0) {
            m_painter.setPen(solidPen(m_color, 1.0));
            m_painter.drawLine(tx, ty, pictureWidth, ty);
            const int titleWidth = m_metrics.horizontalAdvance(m_style.xTitle);
            title(m_style.xTitle, QPoint(pictureWidth - titleWidth - titleGap, ty - m_numberHeight - titleGap));
            text(QStringLiteral("0"),
                QRect(tx - m_zeroWidth - numberDrop, ty - 3 * m_numberHeight / 4, m_zeroWidth, m_numberHeight));
        } else {
            text(numberText(tick),
                QRect(tx - 10 - m_numberWidth, ty - m_numberHeight / 2, m_numberWidth + 12, m_numberHeight),
                Qt::AlignLeft | Qt::AlignVCenter);
        }
        m_painter.restore();
    }

private:
    void beginGridLine()
    {
        m_painter.save();
        m_painter.setOpacity(0.3);
        QPen pen = m_painter.pen();
        pen.setColor(QColor(m_color.red(), m_color.green(), m_color.blue(), 80));
        pen.setStyle(m_style.gridStyle);
        m_painter.setPen(pen);
        m_painter.setBrush(QBrush(m_color));
    }

    void beginTick()
    {
        m_painter.save();
        m_painter.setRenderHint(QPainter::TextAntialiasing, true);
        QPen pen = m_painter.pen();
        pen.setColor(m_color);
        pen.setStyle(Qt::SolidLine);
        m_painter.setPen(pen);
    }

    void text(const QString &text, const QRect &place, Qt::Alignment alignment = Qt::AlignLeft)
    {
        m_painter.drawText(QRectF(place), text, QTextOption(alignment));
    }

    /*! \brief Draws a title at the end of its axis, on the side opposite to the numbers. */
    void title(const QString &title, const QPoint &corner)
    {
        if (!title.isEmpty()) {
            text(title, QRect(corner, QSize(m_metrics.horizontalAdvance(title) + 1, m_numberHeight)));
        }
    }

    QPainter &m_painter;
    DashedLines m_gridLines;
    const AxesStyle &m_style;
    QColor m_color;
    QFontMetrics m_metrics;
    int m_numberHeight;
    int m_numberWidth;
    int m_zeroWidth;
};

} // namespace

std::vector<RepeatedDashes> DiagramRenderer::Private::uprightGrid(QPainter &painter, const AxesStyle &style)
{
    constexpr int room = 4; // pixels between a line and what is drawn beside it
    AxesPainter axes(painter, style, drawnLineColor());
    const auto [xMin, xMax, yMin, yMax] = chartStyle(kind).range;
    std::vector<RepeatedDashes> lines;
    for (int k = 0; k < (xMax - xMin) / chartTickStep; ++k) {
        const QPointF low = map(k * chartTickStep, double(yMin));
        const std::optional<RepeatedDashes> dashes = axes.gridDashes(low, map(k * chartTickStep, double(yMax)));
        const bool isApart = dashes && dashes->bottom() <= truncated(low.y()) + room
            && (lines.empty() || dashes->left() >= lines.front().right() + room);
        if (!isApart) {
            return {};
        }
        lines.push_back(*dashes);
    }
    return axes.xTicksStayBelow(2 * room) ? lines : std::vector<RepeatedDashes>();
}

void DiagramRenderer::Private::drawGround(
    QPainter &painter, QImage &picture, const QRect &rect, const QColor &ground, const AxesStyle *axes)
{
    uprightGridIsDrawn = false;
    if (picture.format() != QImage::Format_ARGB32_Premultiplied || !engineIsKnown()) {
        if (pixelRatio != 1.0) {
            picture.fill(ground); // also where a part of a pixel is outside of the rectangle
        }
        painter.fillRect(rect, ground);
        return;
    }
    std::vector<RepeatedDashes> lines;
    if (axes != nullptr) {
        lines = uprightGrid(painter, *axes);
        uprightGridIsDrawn = !lines.empty();
    }
    uchar *bits = picture.bits();
    const qsizetype bytesPerLine = picture.bytesPerLine();
    const int width = picture.width();
    const QRgb color = premultiplied(ground);
    runInBands(threadsFor(picture), 0, picture.height(), [&](int top, int bottom) {
        for (int y = top; y < bottom; ++y) {
            auto *line = reinterpret_cast<QRgb *>(bits + qsizetype(y) * bytesPerLine);
            paintOver(line, width, color, 255);
            for (const RepeatedDashes &dashes : lines) {
                dashes.drawRow(line, y);
            }
        }
    });
}

void DiagramRenderer::Private::drawAxes(QPainter &painter, const AxesStyle &style)
{
    AxesPainter axes(painter, style, drawnLineColor());
    const auto [xMin, xMax, yMin, yMax] = chartStyle(kind).range;
    const bool hasUprightGrid = std::exchange(uprightGridIsDrawn, false);

    for (int k = 0; k < (xMax - xMin) / chartTickStep; ++k) {
        const QPointF low = map(k * chartTickStep, double(yMin));
        const QPointF high = map(k * chartTickStep, double(yMax));
        if (!hasUprightGrid) {
            axes.gridLine(low, high);
        }
        axes.xTick(k, truncated(low.x()), truncated(low.y()));
    }
    for (int j = 0; j < (yMax - yMin) / chartTickStep; ++j) {
        const QPointF left = map(double(xMin), j * chartTickStep);
        axes.gridLine(left, map(double(xMax), j * chartTickStep));
        axes.yTick(j, truncated(left.x()), truncated(left.y()), pictureWidth);
    }
}

} // namespace ceiechart
