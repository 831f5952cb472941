// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_MAPPING_H
#define CEIECHART_TESTS_REFERENCE_MAPPING_H

#include <QPointF>
#include <QRectF>
#include <QtGlobal>

#include <limits>

namespace reference {

/*! \brief Toward zero; the smallest int for what an int cannot hold. */
inline int truncateToInt(double value)
{
    if (value > -2147483649.0 && value < 2147483648.0) {
        return static_cast<int>(value);
    }
    return std::numeric_limits<int>::min();
}

/*! \brief a·b in 32 bits that wrap, divided by c in integers, plus one half. */
inline double mulDiv(int a, int b, int c)
{
    const auto product = static_cast<qint32>(static_cast<quint32>(a) * static_cast<quint32>(b));
    return static_cast<double>(product / c) + 0.5;
}

/*! \brief The chromaticities shown: single precision, as the renderer keeps them. */
struct ChromaRange {
    float xMin = 0.0F;
    float xMax = 0.84F;
    float yMin = 0.0F;
    float yMax = 0.94F;
};

/*! \brief The two rectangles of a drawing and the scales between them. */
struct Mapping {
    static constexpr int xPixelOffset = 4;

    QRectF plot;
    QRectF chroma;
    double pixelSpanX = 0.0;
    double pixelSpanY = 0.0;
    double chromaSpanX = 0.0;
    double chromaSpanY = 0.0;
    double pixelsPerUnitX = 0.0;
    double pixelsPerUnitY = 0.0;
    double unitsPerPixelX = 0.0;
    double unitsPerPixelY = 0.0;

    /*! \brief Takes both rectangles; a zero span returns false and leaves the four scales as they were. */
    bool set(const QRectF &plotRectangle, const QRectF &chromaRectangle)
    {
        plot = plotRectangle;
        chroma = chromaRectangle;
        pixelSpanX = plot.width() - plot.left();
        pixelSpanY = plot.height() - plot.top();
        chromaSpanX = chroma.right() - chroma.left();
        chromaSpanY = chroma.bottom() - chroma.top();
        if (pixelSpanX == 0.0 || pixelSpanY == 0.0 || chromaSpanX == 0.0 || chromaSpanY == 0.0) {
            return false;
        }
        pixelsPerUnitX = pixelSpanX / chromaSpanX;
        pixelsPerUnitY = pixelSpanY / chromaSpanY;
        unitsPerPixelX = chromaSpanX / pixelSpanX;
        unitsPerPixelY = chromaSpanY / pixelSpanY;
        return true;
    }

    /*! \brief Takes the size of a drawing; the percentages are those of the plot's near and far edges. */
    bool setPicture(int w, int h, const ChromaRange &range = {}, int nearPercent = 5, int farPercent = 95)
    {
        return set(QRectF(mulDiv(w, nearPercent, 100), mulDiv(h, nearPercent, 100), mulDiv(w, farPercent, 100),
                       mulDiv(h, farPercent, 100)),
            QRectF(static_cast<double>(range.xMin), static_cast<double>(range.yMin), static_cast<double>(range.xMax),
                static_cast<double>(range.yMax)));
    }

    /*! \brief Chromaticity to whole pixels. */
    QPointF toWholePixel(const QPointF &xy) const
    {
        const int column = truncateToInt(plot.left() + (xy.x() - chroma.left()) * pixelsPerUnitX);
        const int row = truncateToInt(plot.top() - (xy.y() - chroma.bottom()) * pixelsPerUnitY);
        return QPointF(static_cast<qint32>(static_cast<quint32>(column) + quint32(xPixelOffset)), row);
    }

    /*! \brief Chromaticity to pixels without truncation. */
    QPointF toPixel(const QPointF &xy) const
    {
        return QPointF(xPixelOffset + plot.left() + (xy.x() - chroma.left()) * pixelsPerUnitX,
            plot.top() - (xy.y() - chroma.bottom()) * pixelsPerUnitY);
    }

    /*! \brief Pixel to chromaticity; does not undo the pixel offset of the forward mappings. */
    QPointF toChroma(double px, double py) const
    {
        return QPointF(
            chroma.left() + (px - plot.left()) * unitsPerPixelX, chroma.bottom() - (py - plot.top()) * unitsPerPixelY);
    }
};

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_MAPPING_H
