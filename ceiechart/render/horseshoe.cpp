// SPDX-License-Identifier: MIT
#include <ceiechart/render/diagramlayers.h>
#include <ceiechart/render/horseshoe_p.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <cmath>

namespace ceiechart {

Channels primaryAmounts(const CEIAtlasValue::TColorSystem &system, double x, double y, double z) noexcept
{
    const double xR = system.xRed;
    const double yR = system.yRed;
    const double xG = system.xGreen;
    const double yG = system.yGreen;
    const double xB = system.xBlue;
    const double yB = system.yBlue;
    const double zR = 1 - xR - yR;
    const double zG = 1 - xG - yG;
    const double zB = 1 - xB - yB;

    const double d = zR * (xG * yB - xB * yG) - zG * (xR * yB - xB * yR) + zB * (xR * yG - xG * yR);
    return {(z * (xG * yB - xB * yG) - zG * (x * yB - xB * y) + zB * (x * yG - xG * y)) / d,
        (zR * (x * yB - xB * y) - z * (xR * yB - xB * yR) + zB * (xR * y - x * yR)) / d,
        (zR * (xG * y - x * yG) - zG * (xR * y - x * yR) + z * (xR * yG - xG * yR)) / d};
}

Channels fullBrightness(const Channels &amounts, double gamma) noexcept
{
    const double red = clamp(amounts.red, 0.0, 1.0);
    const double green = clamp(amounts.green, 0.0, 1.0);
    const double blue = clamp(amounts.blue, 0.0, 1.0);
    double largest = green > red ? green : red;
    largest = blue > largest ? blue : largest;
    if (std::abs(gamma - 1) < 0.001) {
        return {red * 255 / largest, green * 255 / largest, blue * 255 / largest};
    }
    return {std::pow(red / largest, gamma) * 255, std::pow(green / largest, gamma) * 255,
        std::pow(blue / largest, gamma) * 255};
}

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
