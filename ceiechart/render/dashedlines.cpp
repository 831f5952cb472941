// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/render/dashedlines_p.h>
#include <ceiechart/render/enginepixels_p.h>

#include <QPen>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace ceiechart {

namespace {

constexpr int periods = 5; //!< of the sample; one at each end may differ from those between them
constexpr int margin = 4; //!< pixels around the sample
constexpr int across = 4; //!< pixels of the sample perpendicular to the line
constexpr int before = 2; //!< pixels before the beginning that can be painted
constexpr int longestPeriod = 16; //!< in pixels
constexpr int sampleLength = (periods + 1) * longestPeriod + 2 * margin;

/*! \brief The pixels after which the dashes of \a pen repeat; 0 for a pen that is not dashed, or not a thin one. */
int periodOf(const QPen &pen)
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
    return period == std::floor(period) && period <= longestPeriod ? int(period) : 0;
}

//! What is painted of the pixels beside one another at a place along the line, premultiplied.
using Place = std::array<QRgb, across>;

/*! \brief The columns of \a places, of which \a count are set, that are painted anywhere. */
std::vector<int> paintedColumns(const std::array<Place, sampleLength> &places, int count)
{
    std::vector<int> columns;
    for (int k = 0; k < across; ++k) {
        const auto isPainted = [k](const Place &place) { return place[std::size_t(k)] != 0; };
        if (std::any_of(places.cbegin(), places.cbegin() + count, isPainted)) {
            columns.push_back(k);
        }
    }
    return columns;
}

} // namespace

void DashedLines::draw(QPainter &painter, const QPointF &from, const QPointF &to)
{
    if (!drawRepeated(painter, from, to)) {
        painter.drawLine(from, to);
    }
}

bool DashedLines::drawRepeated(QPainter &painter, const QPointF &from, const QPointF &to)
{
    QImage *picture = paintedPicture(painter);
    const int period = periodOf(painter.pen());
    const bool isUpright = from.x() == to.x();
    if (picture == nullptr || period == 0 || isUpright == (from.y() == to.y())
        || !painter.deviceTransform().isIdentity() || !engineIsKnown()) {
        return false;
    }

    // Along the line and perpendicular to it, in pixels.
    const double begin = isUpright ? from.y() : from.x();
    const double end = isUpright ? to.y() : to.x();
    const double side = isUpright ? from.x() : from.y();
    const int extent = isUpright ? picture->height() : picture->width();
    const int sideExtent = isUpright ? picture->width() : picture->height();
    const int step = end > begin ? 1 : -1;
    const int leftOut = int(std::min(std::fabs(end - begin), 1e6)) / period - periods;
    if (!(begin >= margin) || !(begin < extent - margin) || !(side >= margin) || !(side < sideExtent - margin)
        || !(std::fabs(end) < 1e6) || leftOut <= 0) {
        return false;
    }

    // The sample begins at the same fraction of a pixel, and so does its end.
    if (m_sample.isNull()) {
        m_sample = QImage(sampleLength, sampleLength, QImage::Format_ARGB32_Premultiplied);
        m_sample.fill(Qt::transparent);
        m_samplePainter.begin(&m_sample);
        m_samplePainter.setRenderHint(QPainter::Antialiasing);
    }
    const int first = int(begin);
    const int firstSide = int(side) - across / 2;
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
    const int count = int(std::fabs(sampleEnd - sampleBegin)) + before + 3;
    std::array<Place, sampleLength> places;
    for (int i = 0; i < count; ++i) {
        for (int k = 0; k < across; ++k) {
            const int along = sampleFirst + step * (i - before);
            const int coverage = qAlpha(isUpright ? takeSample(k, along) : takeSample(along, k));
            places[std::size_t(i)][std::size_t(k)] = multiplied(premultipliedColor, coverage);
        }
    }
    const auto placeAt = places.cbegin() + before;
    const auto second = placeAt + period;
    if (!std::equal(second, second + period, second + period)) {
        return false;
    }

    const std::vector<int> columns = paintedColumns(places, count);
    const qsizetype bytesPerLine = picture->bytesPerLine();
    const qsizetype bytesAlong = isUpright ? bytesPerLine : qsizetype(sizeof(QRgb));
    const qsizetype bytesAcross = isUpright ? qsizetype(sizeof(QRgb)) : bytesPerLine;
    uchar *sideBits = picture->bits() + firstSide * bytesAcross;
    const int repeatedEnd = (2 + leftOut) * period;
    int place = -before;
    for (int i = -before; i < count - before + leftOut * period; ++i) {
        const int along = first + step * i;
        if (along < 0 || along >= extent) {
            break;
        }
        for (const int k : columns) {
            const QRgb color = placeAt[place][std::size_t(k)];
            if (color != 0) {
                auto *pixel = reinterpret_cast<QRgb *>(sideBits + along * bytesAlong + k * bytesAcross);
                *pixel = color + multiplied(*pixel, 255 - qAlpha(color));
            }
        }
        ++place;
        if (place == 2 * period && i + 1 < repeatedEnd) {
            place = period;
        }
    }
    return true;
}

} // namespace ceiechart
