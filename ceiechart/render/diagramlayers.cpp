// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/render/diagramlayers.h>

namespace ceiechart {

DiagramLayers::DiagramLayers(ChartKind kind)
    : m_kind(kind)
{
}

double DiagramLayers::mulDiv(int a, int b, int c)
{
    return ceiechart::mulDiv(a, b, c);
}

double DiagramLayers::Clamp(double v, double lo, double hi)
{
    return ceiechart::clamp(v, lo, hi);
}

bool DiagramLayers::GetCoordinateTransformationData(const QRectF &plot, const QRectF &chroma)
{
    return m_geometry.set(plot, chroma);
}

QPointF DiagramLayers::CoordinateTransformation(const QPointF &xy)
{
    return m_geometry.toPixel(xy);
}

QPointF DiagramLayers::CoordinateTransformation()
{
    m_currentPixel = m_geometry.toExactPixel(m_current.x, m_current.y);
    return m_currentPixel;
}

void DiagramLayers::MapPixelToReal(int px, int py)
{
    const QPointF chroma = m_geometry.toChroma(px, py);
    m_current.x = chroma.x();
    m_current.y = chroma.y();
}

void DiagramLayers::GetPointF(const CEIAtlasValue::CEIAtlasCoordinate &c)
{
    m_xyzSum = c.X + c.Y + c.Z;
    m_current.x = c.X / m_xyzSum;
    m_current.y = c.Y / m_xyzSum;
}

void DiagramLayers::beginDrawing(int width, int height, int marginPercent)
{
    m_pictureWidth = width;
    m_pictureHeight = height;
    m_geometry.setPicture(width, height, marginPercent, chartStyle(m_kind).range);
    m_locus = m_atlas.atlasCoordinates;
}

void DiagramLayers::loadFirstLocusRow()
{
    if (!m_locus.isEmpty()) {
        GetPointF(m_locus.constFirst());
        CoordinateTransformation();
    }
}

} // namespace ceiechart
