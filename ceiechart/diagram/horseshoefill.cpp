// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// The fill gives exactly the pixels of this definition:
//
//     amounts  = primaryAmounts(chromaticity of the pixel)        affine along a row
//     channels = fullBrightness(amounts)                          v = 255 c / L, L the largest amount
//     colour   = rounded(channels)                                trunc(v + 0.5)
//
// A row is divided where an amount becomes 0 or 1, or another one the largest. In each piece an amount is 0, 1 or not
// clamped, and the largest channel is 255. A kernel computes the other two in single precision. If one of them is
// nearer to a rounding boundary than the error of the computation, the kernel leaves the pixel undecided. Undecided
// pixels are computed in double precision, in the order of arithmetic of the definition.
//
// The error, where u = 2^-24:
//
// - An amount that is not clamped is base + k · step, of which both are at most A, the largest L of the piece. Rounding
//   the base gives an error of at most uA. Rounding the step and multiplying it give at most 2uA, and the addition
//   gives at most uA. The sum is 4uA; 5uA includes the terms of second order.
// - The sum of the amounts is 1, therefore L ≥ 1/3, and c ≤ L. An error e of the amounts changes v by at most
//   255 (e / L + c e / L²), which is at most 510 e / L.
// - The rounding of the quotient 255 / L and of its product with c gives less than 900u in total. Rounding v to 15 bits
//   behind the point gives at most 256u.
// - The errors of the definition in double precision, of the amounts counted from those of the first pixel of the
//   picture, and of the places where the row is divided are below 1e-9 if the colour system is well-conditioned and the
//   amounts are small. Otherwise the whole row is computed in double precision.
#include <ceiechart/diagram/horseshoefill_p.h>
#include <ceiechart/diagram/rowthreads_p.h>

#include <QColor>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace ceiechart {

namespace {

constexpr int runLength = 512; //!< pixels: more makes nothing faster
constexpr double roundingUnit = 1.0 / (1 << 24);
constexpr double largestMagnitude = 16.0; //!< of the amounts of a pixel up to which the error estimate holds
constexpr double largestOriginMagnitude = 128.0; //!< the same for the pixel from which amounts are counted

Channels amountsAt(const HorseshoeFill &fill, int x, int y)
{
    const QPointF chroma = fill.geometry.toChroma(x, y);
    return primaryAmounts(fill.colorSystem, chroma.x(), chroma.y(), 1 - chroma.x() - chroma.y());
}

Channels operator+(const Channels &a, const Channels &b)
{
    return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}

Channels operator*(const Channels &a, int factor)
{
    return {a.red * factor, a.green * factor, a.blue * factor};
}

/*! \brief The sum of the magnitudes; NaN if one of \a amounts is. */
double magnitudeOf(const Channels &amounts)
{
    return std::fabs(amounts.red) + std::fabs(amounts.green) + std::fabs(amounts.blue);
}

/*!
 * \brief The colour of a pixel by the definition. False if it has none because the colour system's primaries lie on a
 * line.
 */
bool exactColor(const HorseshoeFill &fill, int x, int y, QRgb &color)
{
    const Channels channels = fullBrightness(amountsAt(fill, x, y), fill.gamma);
    const QColor exact = QColor::fromRgb(rounded(channels.red), rounded(channels.green), rounded(channels.blue), 255);
    color = exact.rgba();
    return exact.isValid();
}

/*!
 * \brief How many of the next \a count pixels have the same amounts clamped and the same one as the largest.
 *
 * \param amounts at the first of them, with \a steps from pixel to pixel
 * \param run receives the clamped amounts and their steps
 */
int pieceOf(const double (&amounts)[3], const double (&steps)[3], int count, PixelRun &run)
{
    run.largest = amounts[1] > amounts[0] ? 1 : 0;
    run.largest = amounts[2] > amounts[run.largest] ? 2 : run.largest;
    double last = count - 1;
    const auto endAfter = [&last](double way, double step) {
        const double pixels = way / step; // not a number if neither changes
        last = pixels >= 0.0 && pixels < last ? pixels : last;
    };
    for (int i = 0; i < 3; ++i) {
        const double amount = amounts[i];
        const double clamped = std::clamp(amount, 0.0, 1.0);
        const bool isClamped = clamped != amount;
        run.amounts[i] = static_cast<float>(clamped);
        run.steps[i] = isClamped ? 0.0F : static_cast<float>(steps[i]);
        const double bound = isClamped ? clamped : steps[i] < 0.0 ? 0.0 : 1.0;
        endAfter(bound - amount, steps[i]);
        endAfter(amounts[run.largest] - amount, steps[i] - steps[run.largest]);
    }
    const int length = static_cast<int>(last) + 1;
    const double begin = double(run.amounts[run.largest]);
    const double end = begin + (length - 1) * double(run.steps[run.largest]);
    run.margin = decisionMargin(begin > end ? begin / end : end / begin);
    return length;
}

/*! \brief Whether the error of the definition in double precision can be neglected for \a system. */
bool wellConditioned(const CEIAtlasValue::TColorSystem &system)
{
    for (const float coordinate :
        {system.xRed, system.yRed, system.xGreen, system.yGreen, system.xBlue, system.yBlue}) {
        if (!(std::fabs(coordinate) <= 1.5F)) {
            return false;
        }
    }
    const double twiceArea = double(system.xGreen - system.xRed) * double(system.yBlue - system.yRed)
        - double(system.xBlue - system.xRed) * double(system.yGreen - system.yRed);
    return std::fabs(twiceArea) >= 1e-3;
}

/*! \brief The first and the last column to fill, or 0 and 0 for none. */
template <typename HasRed>
std::pair<int, int> columnsToColor(int width, HasRed hasRed)
{
    int left = 0;
    while (left < width && !hasRed(left)) {
        ++left;
    }
    int right = width - 1;
    while (right > 0 && !hasRed(right)) {
        --right;
    }
    return {left < width ? left : 0, right};
}

/*!
 * \brief Whether a pixel of \a format stores an opaque colour as its QRgb, and stores a red component above zero for
 * every colour that has one.
 */
bool holdsRgb(QImage::Format format)
{
    return format == QImage::Format_ARGB32 || format == QImage::Format_RGB32
        || format == QImage::Format_ARGB32_Premultiplied;
}

} // namespace

int decisionMargin(double ratio)
{
    const double error = (510.0 * 5.0 * ratio + 900.0 + 256.0) * roundingUnit + 1e-6;
    return static_cast<int>(error * (1 << PixelRun::fractionBits)) + 1;
}

RowFill::RowFill(const HorseshoeFill &fill, const FillKernel &kernel)
    : m_fill(fill)
    , m_kernel(kernel)
    , m_origin(amountsAt(fill, 0, 0))
{
    // Amounts are linear in x, y and z, so that their steps are those of the steps of the chromaticity.
    constexpr int far = 1024;
    const QPointF way = (fill.geometry.toChroma(far, far) - fill.geometry.toChroma(0, 0)) / far;
    m_columnStep = primaryAmounts(fill.colorSystem, way.x(), 0.0, -way.x());
    m_rowStep = primaryAmounts(fill.colorSystem, 0.0, way.y(), -way.y());
    m_fast = std::abs(fill.gamma - 1) < 0.001 && wellConditioned(fill.colorSystem)
        && magnitudeOf(m_origin) <= largestOriginMagnitude;
}

void RowFill::color(QRgb *line, int left, int right, int y) const
{
    const int count = right - left + 1;
    const Channels first = m_origin + m_rowStep * y + m_columnStep * left;
    const Channels last = first + m_columnStep * (count - 1);
    const bool isSmall = magnitudeOf(first) <= largestMagnitude && magnitudeOf(last) <= largestMagnitude;
    if (!m_fast || count < 2 || !isSmall) {
        for (int x = left; x <= right; ++x) {
            exact(line[x - left], x, y);
        }
        return;
    }

    const double steps[] = {m_columnStep.red, m_columnStep.green, m_columnStep.blue};
    int undecided[runLength];
    PixelRun run{};
    for (int begin = 0; begin < count;) {
        const double amounts[]
            = {first.red + begin * steps[0], first.green + begin * steps[1], first.blue + begin * steps[2]};
        const int length = pieceOf(amounts, steps, std::min(runLength, count - begin), run);
        const int found = m_kernel.decide(run, length, line + begin, undecided);
        for (int i = 0; i < found; ++i) {
            const int k = begin + undecided[i];
            exact(line[k], left + k, y);
        }
        begin += length;
    }
}

void RowFill::exact(QRgb &pixel, int x, int y) const
{
    QRgb color = 0;
    if (exactColor(m_fill, x, y, color)) {
        pixel = color;
    }
}

void fillHorseshoe(
    QImage &picture, int width, int height, const HorseshoeFill &fill, const FillKernel &kernel, RowThreads *threads)
{
    // There is nothing to fill outside the picture.
    width = std::min(width, picture.width());
    height = std::min(height, picture.height());
    if (width < 1 || height < 1) {
        return;
    }

    if (!holdsRgb(picture.format())) {
        for (int y = 0; y < height; ++y) {
            const auto [left, right] = columnsToColor(width, [&](int x) { return qRed(picture.pixel(x, y)) > 0; });
            QRgb color = 0;
            for (int x = left; x <= right && right > 0; ++x) {
                if (exactColor(fill, x, y, color)) {
                    picture.setPixelColor(x, y, QColor::fromRgba(color));
                }
            }
        }
        return;
    }

    const RowFill rows(fill, kernel);
    uchar *bits = picture.bits();
    const qsizetype bytesPerLine = picture.bytesPerLine();
    runInBands(threads, 0, height, [&rows, bits, bytesPerLine, width](int first, int end) {
        for (int y = first; y < end; ++y) {
            auto *line = reinterpret_cast<QRgb *>(bits + qsizetype(y) * bytesPerLine);
            const auto [left, right] = columnsToColor(width, [line](int x) { return qRed(line[x]) > 0; });
            if (right > 0) {
                rows.color(line + left, left, right, y);
            }
        }
    });
}

} // namespace ceiechart
