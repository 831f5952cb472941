// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/diagram/diagramgeometry.h>

namespace ceiechart {

bool DiagramGeometry::set(const QRectF &plot, const QRectF &chroma) noexcept
{
    m_plot = plot;
    m_chroma = chroma;
    m_pixelSpanX = plot.width() - plot.left();
    m_pixelSpanY = plot.height() - plot.top();
    m_chromaSpanX = chroma.right() - chroma.left();
    m_chromaSpanY = chroma.bottom() - chroma.top();
    if (m_pixelSpanX == 0.0 || m_pixelSpanY == 0.0 || m_chromaSpanX == 0.0 || m_chromaSpanY == 0.0) {
        return false;
    }
    m_pixelsPerUnitX = m_pixelSpanX / m_chromaSpanX;
    m_pixelsPerUnitY = m_pixelSpanY / m_chromaSpanY;
    m_unitsPerPixelX = m_chromaSpanX / m_pixelSpanX;
    m_unitsPerPixelY = m_chromaSpanY / m_pixelSpanY;
    return true;
}

bool DiagramGeometry::setPicture(int width, int height, int percent, const ChromaRange &range) noexcept
{
    return set(QRectF(mulDiv(width, percent, 100), mulDiv(height, percent, 100), mulDiv(width, 100 - percent, 100),
                   mulDiv(height, 100 - percent, 100)),
        QRectF(double(range.xMin), double(range.yMin), double(range.xMax), double(range.yMax)));
}

QPointF DiagramGeometry::toPixel(const QPointF &chroma) const noexcept
{
    const double fx = m_plot.left() + (chroma.x() - m_chroma.left()) * m_pixelsPerUnitX;
    const double fy = m_plot.top() - (chroma.y() - m_chroma.bottom()) * m_pixelsPerUnitY;
    // The unsigned sum wraps at the end of the range of int, where a signed sum would be undefined.
    const auto px = static_cast<int>(static_cast<unsigned>(truncated(fx)) + unsigned(xOffset));
    return QPointF(px, truncated(fy));
}

QPointF DiagramGeometry::toExactPixel(double x, double y) const noexcept
{
    return QPointF(xOffset + m_plot.left() + (x - m_chroma.left()) * m_pixelsPerUnitX,
        m_plot.top() - (y - m_chroma.bottom()) * m_pixelsPerUnitY);
}

QPointF DiagramGeometry::toChroma(double px, double py) const noexcept
{
    return QPointF(m_chroma.left() + (px - m_plot.left()) * m_unitsPerPixelX,
        m_chroma.bottom() - (py - m_plot.top()) * m_unitsPerPixelY);
}

} // namespace ceiechart
