// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/render/dashedlines_p.h>
#include <ceiechart/render/enginepixels_p.h>

#include <QPen>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

/*! \brief The pixels after which the dashes of \a pen repeat; 0 for a pen that is not dashed, or not a thin one. */
int periodOf(const QPen &pen, int longest)
{
    const bool isThin = pen.widthF() <= 1.0 && pen.brush().style() == Qt::SolidPattern;
    if (!isThin || pen.style() < Qt::DashLine || pen.style() > Qt::DashDotDotLine || pen.dashOffset() != 0.0) {
        return 0;
    }
    double period = 0.0;
    const auto pattern = pen.dashPattern();
    for (const double part : pattern) {
        period += part;
    }
    return period == std::floor(period) && period <= longest ? int(period) : 0;
}

} // namespace

/*! \brief The place of the sample for the pixel \a i along the line. */
int RepeatedDashes::placeOf(int i) const
{
    if (i < 2 * m_period) {
        return i;
    }
    return i < (2 + m_leftOut) * m_period ? m_period + i % m_period : i - m_leftOut * m_period;
}

/*! \brief The pixels along the line that can be painted: the first, and that behind the last. */
std::pair<int, int> RepeatedDashes::along() const
{
    const int begin = m_first - m_step * before;
    const int end = m_first + m_step * (m_count - before + m_leftOut * m_period);
    return {std::max(m_step > 0 ? begin : end + 1, 0), std::min(m_step > 0 ? end : begin + 1, m_extent)};
}

int RepeatedDashes::top() const
{
    return m_isUpright ? along().first : m_firstSide;
}

int RepeatedDashes::bottom() const
{
    return m_isUpright ? along().second : m_firstSide + across;
}

int RepeatedDashes::left() const
{
    return m_isUpright ? m_firstSide : along().first;
}

int RepeatedDashes::right() const
{
    return m_isUpright ? m_firstSide + across : along().second;
}

void RepeatedDashes::drawRow(QRgb *line, int y) const
{
    const auto draw = [](QRgb &pixel, QRgb color) {
        if (color != 0) {
            pixel = color + multiplied(pixel, 255 - qAlpha(color));
        }
    };
    const auto placeAt = m_places.cbegin() + before;
    const auto [first, end] = along();
    if (m_isUpright) {
        if (y >= first && y < end) {
            const auto &place = placeAt[placeOf(m_step * (y - m_first))];
            for (std::size_t k = 0; k < across; ++k) {
                if (m_isPainted[k]) {
                    draw(line[m_firstSide + int(k)], place[k]);
                }
            }
        }
        return;
    }
    const auto k = std::size_t(y - m_firstSide);
    if (y < m_firstSide || k >= across || !m_isPainted[k]) {
        return;
    }
    const int repeatedEnd = (2 + m_leftOut) * m_period;
    int place = -before; // placeOf(i), without a division
    for (int i = -before; m_first + m_step * i >= first && m_first + m_step * i < end; ++i) {
        draw(line[m_first + m_step * i], placeAt[place][k]);
        ++place;
        if (place == 2 * m_period && i + 1 < repeatedEnd) {
            place = m_period;
        }
    }
}

void DashedLines::draw(QPainter &painter, const QPointF &from, const QPointF &to)
{
    const std::optional<RepeatedDashes> dashes = repeated(painter, from, to);
    if (!dashes) {
        painter.drawLine(from, to);
        return;
    }
    QImage *picture = paintedPicture(painter);
    uchar *bits = picture->bits();
    for (int y = dashes->top(); y < dashes->bottom(); ++y) {
        dashes->drawRow(reinterpret_cast<QRgb *>(bits + qsizetype(y) * picture->bytesPerLine()), y);
    }
}

std::optional<RepeatedDashes> DashedLines::repeated(const QPainter &painter, const QPointF &from, const QPointF &to)
{
    constexpr int margin = RepeatedDashes::margin;
    constexpr int sampleLength = RepeatedDashes::sampleLength;
    const QImage *picture = paintedPicture(painter);
    const int period = periodOf(painter.pen(), RepeatedDashes::longestPeriod);
    const bool isUpright = from.x() == to.x();
    if (picture == nullptr || period == 0 || isUpright == (from.y() == to.y())
        || !painter.deviceTransform().isIdentity() || !engineIsKnown()) {
        return std::nullopt;
    }

    // Along the line and perpendicular to it, in pixels.
    const double begin = isUpright ? from.y() : from.x();
    const double end = isUpright ? to.y() : to.x();
    const double side = isUpright ? from.x() : from.y();
    const int extent = isUpright ? picture->height() : picture->width();
    const int sideExtent = isUpright ? picture->width() : picture->height();
    const int step = end > begin ? 1 : -1;
    const int leftOut = int(std::min(std::fabs(end - begin), 1e6)) / period - RepeatedDashes::periods;
    if (!(begin >= margin) || !(begin < extent - margin) || !(side >= margin) || !(side < sideExtent - margin)
        || !(std::fabs(end) < 1e6) || leftOut <= 0) {
        return std::nullopt;
    }

    // The sample begins at the same fraction of a pixel, and so does its end.
    if (m_sample.isNull()) {
        m_sample = QImage(sampleLength, sampleLength, QImage::Format_ARGB32_Premultiplied);
        m_sample.fill(Qt::transparent);
        m_samplePainter.begin(&m_sample);
        m_samplePainter.setRenderHint(QPainter::Antialiasing);
    }
    const int first = int(begin);
    const int firstSide = int(side) - RepeatedDashes::across / 2;
    const int sampleFirst = step > 0 ? margin : sampleLength - 1 - margin;
    const double sampleBegin = begin - first + sampleFirst;
    const double sampleEnd = end - first + sampleFirst - double(step) * leftOut * period;
    const double sampleSide = side - firstSide;
    QPen pen = painter.pen();
    const QColor stated = pen.color();
    pen.setColor(Qt::white);
    m_samplePainter.setPen(pen);
    m_samplePainter.drawLine(isUpright ? QPointF(sampleSide, sampleBegin) : QPointF(sampleBegin, sampleSide),
        isUpright ? QPointF(sampleSide, sampleEnd) : QPointF(sampleEnd, sampleSide));
    m_samplePainter.setOpacity(painter.opacity());
    m_samplePainter.fillRect(0, 0, 1, 1, stated);
    m_samplePainter.setOpacity(1.0);
    auto *sample = reinterpret_cast<QRgb *>(m_sample.bits());
    const auto takeSample = [sample](int x, int y) { return std::exchange(sample[y * sampleLength + x], 0U); };
    const QRgb premultipliedColor = takeSample(0, 0);

    // What is painted at each place along the line, from a little before it to a little behind the end of the sample.
    RepeatedDashes dashes;
    dashes.m_isUpright = isUpright;
    dashes.m_extent = extent;
    dashes.m_first = first;
    dashes.m_step = step;
    dashes.m_firstSide = firstSide;
    dashes.m_period = period;
    dashes.m_leftOut = leftOut;
    dashes.m_count = int(std::fabs(sampleEnd - sampleBegin)) + RepeatedDashes::before + 3;
    for (int i = 0; i < dashes.m_count; ++i) {
        for (int k = 0; k < RepeatedDashes::across; ++k) {
            const int along = sampleFirst + step * (i - RepeatedDashes::before);
            const int coverage = qAlpha(isUpright ? takeSample(k, along) : takeSample(along, k));
            const QRgb color = multiplied(premultipliedColor, coverage);
            dashes.m_places[std::size_t(i)][std::size_t(k)] = color;
            dashes.m_isPainted[std::size_t(k)] |= color != 0;
        }
    }
    const auto second = dashes.m_places.cbegin() + RepeatedDashes::before + period;
    if (!std::equal(second, second + period, second + period)) {
        return std::nullopt;
    }
    return dashes;
}

} // namespace ceiechart
