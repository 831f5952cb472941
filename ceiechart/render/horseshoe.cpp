// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/horseshoefill_p.h>
#include <ceiechart/render/diagramlayers.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

namespace ceiechart {

void DiagramLayers::painterPixColor(QImage *picture)
{
    fillHorseshoe(*picture, m_pictureWidth, m_pictureHeight, {m_geometry, m_atlas.colorSystem, m_gamma});
}

void DiagramLayers::drawHorseshoeWithin(
    QImage &picture, const QPolygonF &clip, ClipOutline outline, const QColor &background)
{
    // The engine rounds what it blends at the edge of a clip differently per format. What the colours look like there
    // is defined for the straight format, so they are drawn into the picture seen as such.
    QImage straight(picture.bits(), picture.width(), picture.height(), picture.bytesPerLine(), QImage::Format_ARGB32);
    QPainter painter(&straight);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, true);
    QPainterPath path;
    path.addPolygon(clip);
    painter.setClipPath(path, Qt::ReplaceClip);
    if (outline == ClipOutline::Drawn) {
        painter.drawPath(path);
    }
    drawHorseshoe(
        painter, clip, m_pictureWidth, m_pictureHeight, {m_geometry, m_atlas.colorSystem, m_gamma}, background);
}

void DiagramLayers::makeColorOfPixelCurrent(int px, int py)
{
    MapPixelToReal(px, py);
    m_current.z = 1 - m_current.x - m_current.y;
    GetRGBValue(m_atlas.colorSystem, m_current.x, m_current.y, m_current.z);
}

void DiagramLayers::GetPointRGB(int px, int py, QImage *picture)
{
    makeColorOfPixelCurrent(px, py);
    GetPointColorRGB(px, py, picture);
}

void DiagramLayers::GetRGBValue(const CEIAtlasValue::TColorSystem &cs, double x, double y, double z)
{
    const Channels amounts = primaryAmounts(cs, x, y, z);
    m_red = amounts.red;
    m_green = amounts.green;
    m_blue = amounts.blue;
}

QColor DiagramLayers::colorOfCurrentAmounts(int alpha)
{
    const Channels channels = fullBrightness({m_red, m_green, m_blue}, m_gamma);
    m_red = channels.red;
    m_green = channels.green;
    m_blue = channels.blue;
    return QColor::fromRgb(rounded(m_red), rounded(m_green), rounded(m_blue), alpha);
}

void DiagramLayers::GetPointColorRGB(int px, int py, QImage *picture)
{
    picture->setPixelColor(px, py, colorOfCurrentAmounts(255));
}

} // namespace ceiechart
