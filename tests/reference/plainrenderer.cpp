// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "plainrenderer.h"

#include <QBrush>
#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPixmap>
#include <QTextOption>

#include <cmath>

namespace reference {

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double pictureGamma = 1.0;

QPen solidPen(const QColor &color, double width)
{
    return QPen(QBrush(color, Qt::SolidPattern), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

QPointF chromaticity(const CEIAtlasValue::CEIAtlasCoordinate &row)
{
    const double sum = row.X + row.Y + row.Z;
    return QPointF(row.X / sum, row.Y / sum);
}

QFont axisFont(int pixelSize)
{
    QFont font(QStringLiteral("Lexend Deca,Microsoft YaHei"));
    font.setPixelSize(pixelSize);
    return font;
}

} // namespace

double clamp(double value, double low, double high)
{
    if (low > value) {
        return low;
    }
    if (value < high) {
        return value;
    }
    return high;
}

QColor horseshoeColor(const CEIAtlasValue::TColorSystem &colorSystem, const QPointF &xy, double gamma)
{
    const double xR = static_cast<double>(colorSystem.xRed);
    const double yR = static_cast<double>(colorSystem.yRed);
    const double xG = static_cast<double>(colorSystem.xGreen);
    const double yG = static_cast<double>(colorSystem.yGreen);
    const double xB = static_cast<double>(colorSystem.xBlue);
    const double yB = static_cast<double>(colorSystem.yBlue);
    const double zR = 1 - xR - yR;
    const double zG = 1 - xG - yG;
    const double zB = 1 - xB - yB;
    const double x = xy.x();
    const double y = xy.y();
    const double z = 1 - x - y;

    // Cramer's rule, each determinant expanded along its third row.
    const double d = zR * (xG * yB - xB * yG) - zG * (xR * yB - xB * yR) + zB * (xR * yG - xG * yR);
    double red = (z * (xG * yB - xB * yG) - zG * (x * yB - xB * y) + zB * (x * yG - xG * y)) / d;
    double green = (zR * (x * yB - xB * y) - z * (xR * yB - xB * yR) + zB * (xR * y - x * yR)) / d;
    double blue = (zR * (xG * y - x * yG) - zG * (xR * y - x * yR) + z * (xR * yG - xG * yR)) / d;

    red = clamp(red, 0, 1);
    green = clamp(green, 0, 1);
    blue = clamp(blue, 0, 1);
    double largest = red;
    if (green > largest) {
        largest = green;
    }
    if (blue > largest) {
        largest = blue;
    }
    if (std::fabs(gamma - 1) < 0.001) {
        red = red * 255 / largest;
        green = green * 255 / largest;
        blue = blue * 255 / largest;
    } else {
        red = std::pow(red / largest, gamma) * 255;
        green = std::pow(green / largest, gamma) * 255;
        blue = std::pow(blue / largest, gamma) * 255;
    }
    return QColor::fromRgb(
        static_cast<int>(red + 0.5), static_cast<int>(green + 0.5), static_cast<int>(blue + 0.5), 255);
}

void fillPlain(QImage &picture, int width, int height, const Mapping &mapping,
    const CEIAtlasValue::TColorSystem &colorSystem, double gamma)
{
    for (int y = 0; y < height; ++y) {
        int left = 0;
        for (int x = 0; x < width; ++x) {
            if (QColor(picture.pixel(x, y)).red() > 0) {
                left = x;
                break;
            }
        }
        int right = 0;
        for (int x = width - 1; x >= 1; --x) {
            if (QColor(picture.pixel(x, y)).red() > 0) {
                right = x;
                break;
            }
        }
        if (left == 0 && right == 0) {
            continue;
        }
        for (int x = left; x <= right; ++x) {
            picture.setPixelColor(x, y, horseshoeColor(colorSystem, mapping.toChroma(x, y), gamma));
        }
    }
}

PlainRenderer::PlainRenderer()
    : m_colorSystem(m_atlas.colorSystem)
{
}

PlainRenderer::PlainRenderer(const ChromaRange &range, const CEIAtlasValue::TColorSystem &colorSystem)
    : m_range(range)
    , m_colorSystem(colorSystem)
{
}

void PlainRenderer::setGraphColor(const QColor &line, const QColor &picture)
{
    m_lineColor = line;
    m_pictureColor = picture;
}

void PlainRenderer::setBackgroudColor(const QColor &color)
{
    m_backgroundColor = color;
}

void PlainRenderer::setPointData(const QList<QRectF> &rectangles)
{
    m_measurePoints = rectangles;
}

void PlainRenderer::setCMYPointData(const QList<QRectF> &rectangles)
{
    m_cmyPoints = rectangles;
}

void PlainRenderer::setPictureSize(int w, int h, int nearPercent, int farPercent)
{
    m_width = w;
    m_height = h;
    m_mapping.setPicture(w, h, m_range, nearPercent, farPercent);
}

QImage PlainRenderer::drawCEIPicture(int w, int h, bool showCoordinate, const QList<QPointF> &colorTemperaturePoints)
{
    m_colorTemperaturePoints = colorTemperaturePoints;
    QImage picture(w, h, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(QRect(0, 0, w, h), m_pictureColor);
    setPictureSize(w, h);
    if (showCoordinate) {
        painterCoordinate(painter);
    }
    paintCEIEdge(painter);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    painterPixColor(picture);
    painter.restore();
    painter.end();
    return picture;
}

QImage PlainRenderer::drawCEIPicture(int w, int h, bool showCoordinate, const QList<ColorTriangleObject> &triangles,
    const QList<ColorTriangleObject> &standards, const QPolygonF &clipPolygon, const QString &skipText)
{
    QImage picture(w, h, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.fillRect(QRect(0, 0, w, h), m_pictureColor);

    QImage colors(w, h, QImage::Format_ARGB32);
    colors.fill(Qt::transparent);
    QPainter colorsPainter(&colors);
    colorsPainter.setRenderHint(QPainter::Antialiasing, true);
    colorsPainter.fillRect(QRect(0, 0, w, h), QBrush(m_backgroundColor, Qt::SolidPattern));

    setPictureSize(w, h);
    if (showCoordinate) {
        painterCoordinate(painter);
    }
    painterWaveLength(painter);
    if (skipText.isEmpty()) {
        paintCEIEdge(painter);
        painterStandard(painter, standards);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
        painterPixColor(colors);
        QPainterPath clip;
        clip.addPolygon(clipPolygon);
        painter.setClipPath(clip, Qt::ReplaceClip);
        painter.drawPixmap(QRect(0, 0, w, h), QPixmap::fromImage(colors));
        painter.restore();
        painterTriangle(painter, triangles);
    }
    painterBBRLine(painter);
    painterMeasurePoints(painter);
    drawCMYPoint(painter);
    painter.end();
    colorsPainter.end();
    return picture;
}

void PlainRenderer::painterPixColor(QImage &picture) const
{
    fillPlain(picture, m_width, m_height, m_mapping, m_colorSystem, pictureGamma);
}

void PlainRenderer::paintCEIEdge(QPainter &painter) const
{
    QPointF start;
    QPointF end;
    for (const CEIAtlasValue::CEIAtlasCoordinate &row : m_atlas.atlasCoordinates) {
        const QPointF point = m_mapping.toPixel(chromaticity(row));
        if (row.waveLength == 360) {
            start = point;
            end = point;
        } else if (row.waveLength > 360 && row.waveLength < 830) {
            painter.save();
            painter.setRenderHint(QPainter::Antialiasing, true);
            painter.setPen(solidPen(m_lineColor, 2.0));
            painter.drawLine(start, point);
            painter.restore();
            start = point;
        }
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(solidPen(m_lineColor, 2.0));
    painter.drawLine(start, end);
    painter.restore();
}

void PlainRenderer::painterWaveLength(QPainter &painter) const
{
    constexpr double tickLength = 0.0168;

    painter.save();
    QPen pen = painter.pen();
    pen.setColor(Qt::white);
    painter.setPen(pen);
    painter.setFont(QFont(QStringLiteral("Arial"), 14));
    QPointF previous;
    for (const CEIAtlasValue::CEIAtlasCoordinate &row : m_atlas.atlasCoordinates) {
        const int wavelength = row.waveLength;
        const QPointF point = chromaticity(row);
        if (wavelength == 419) {
            previous = point;
            continue;
        }
        if (wavelength < 420 || wavelength > 680) {
            continue;
        }
        double weight = 0.0;
        if (wavelength % 10 == 0) {
            weight = 1.0;
        } else if (wavelength % 5 == 0) {
            weight = 0.5;
        }
        if ((wavelength >= 421 && wavelength <= 449) || (wavelength >= 631 && wavelength <= 679)) {
            weight = 0.0;
        }
        if (weight > 0.0) {
            const double dx = point.x() - previous.x();
            const double dy = point.y() - previous.y();
            const double nx = dy / std::sqrt(dx * dx + dy * dy);
            const double ny = -dx / std::sqrt(dx * dx + dy * dy);
            const QPointF moved(point.x() - weight * tickLength * nx, point.y() - weight * tickLength * ny);
            const QPointF p0 = m_mapping.toPixel(point);
            const QPointF p1 = m_mapping.toPixel(moved);
            const int x0 = static_cast<int>(p0.x());
            const int y0 = static_cast<int>(p0.y());
            const int x1 = static_cast<int>(p1.x());
            const int y1 = static_cast<int>(p1.y());
            if (wavelength % 10 != 0) {
                QPen tickPen = painter.pen();
                tickPen.setWidthF(mulDiv(m_height, 2, 1000));
                painter.setPen(tickPen);
                painter.drawLine(x0, y0, x1, y1);
            } else {
                paintLabelledTick(painter, x1, y1, x0, y0, QString::number(wavelength));
            }
        }
        previous = point;
    }
    painter.restore();
}

void PlainRenderer::paintLabelledTick(QPainter &painter, int x1, int y1, int x2, int y2, const QString &text) const
{
    painter.save();
    QFont font(QStringLiteral("Arial"), 8);
    font.setPointSize(8);
    painter.setFont(font);
    QPen pen = painter.pen();
    pen.setWidthF(mulDiv(m_height, 2, 1000));
    painter.setPen(pen);
    painter.setRenderHint(QPainter::Antialiasing, true);
    const QFontMetrics metrics(font);
    painter.setPen(QColor(255, 255, 255, 255));

    double degrees = (std::atan2(static_cast<double>(y1 - y2), static_cast<double>(x2 - x1)) / pi + 1) * 180;
    if (degrees >= 360) {
        degrees -= 360;
    }
    const int octant = static_cast<int>((degrees + 22.5) / 45);
    painter.drawLine(x1, y1, x2, y2);

    const int w = metrics.horizontalAdvance(text);
    const int h = metrics.height();
    int x = x1;
    int y = y1;
    switch (octant) {
    case 0:
    case 8:
        y -= h / 2;
        break;
    case 1:
        y -= h;
        break;
    case 2:
        x -= w / 2;
        y -= h;
        break;
    case 3:
        x -= w;
        y -= h;
        break;
    case 4:
        x -= w;
        y -= h / 2;
        break;
    case 5:
        x -= w;
        break;
    case 6:
        x -= w / 2;
        break;
    default:
        break;
    }
    painter.drawText(QRectF(QRect(x, y, w, h)), text, QTextOption());
    painter.restore();
}

void PlainRenderer::painterCoordinate(QPainter &painter) const
{
    painterCoordinate(painter, Qt::DashLine, axisFont(16));
}

void PlainRenderer::painterCoordinate(QPainter &painter, Qt::PenStyle gridStyle, const QFont &numberFont) const
{
    const double xRange = static_cast<double>(m_range.xMax - m_range.xMin);
    const double yRange = static_cast<double>(m_range.yMax - m_range.yMin);
    for (int k = 0; k < xRange / 0.1; ++k) {
        paintGridLine(painter, gridStyle, m_mapping.toPixel(QPointF(k * 0.1, static_cast<double>(m_range.yMin))),
            m_mapping.toPixel(QPointF(k * 0.1, static_cast<double>(m_range.yMax))));
        paintHorizontalNumber(painter, numberFont, k);
    }
    for (int j = 0; j < yRange / 0.1; ++j) {
        paintGridLine(painter, gridStyle, m_mapping.toPixel(QPointF(static_cast<double>(m_range.xMin), j * 0.1)),
            m_mapping.toPixel(QPointF(static_cast<double>(m_range.xMax), j * 0.1)));
        paintVerticalNumber(painter, numberFont, j);
    }
}

void PlainRenderer::paintGridLine(QPainter &painter, Qt::PenStyle style, const QPointF &from, const QPointF &to) const
{
    painter.save();
    painter.setOpacity(0.3);
    painter.setFont(axisFont(10));
    QPen pen = painter.pen();
    pen.setColor(QColor(m_lineColor.red(), m_lineColor.green(), m_lineColor.blue(), 80));
    pen.setStyle(style);
    painter.setPen(pen);
    painter.setBrush(QBrush(m_lineColor, Qt::SolidPattern));
    painter.drawLine(from, to);
    painter.restore();
}

void PlainRenderer::paintHorizontalNumber(QPainter &painter, const QFont &font, int k) const
{
    const QFontMetrics metrics(font);
    const int h = metrics.height();
    const int w0 = metrics.horizontalAdvance(QStringLiteral("0.0"));
    const int wz = metrics.horizontalAdvance(QStringLiteral("0"));
    const QPointF p0 = m_mapping.toPixel(QPointF(k * 0.1, static_cast<double>(m_range.yMin)));
    const int tx = static_cast<int>(p0.x());
    const int ty = static_cast<int>(p0.y());

    painter.save();
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    QPen pen = painter.pen();
    pen.setColor(m_lineColor);
    pen.setStyle(Qt::SolidLine);
    painter.setPen(pen);
    painter.save();
    painter.setFont(font);
    if (k == 0) {
        painter.drawText(QRect(tx, ty + 15, wz, h), Qt::AlignRight, QStringLiteral("0"));
        painter.setPen(solidPen(m_lineColor, 1.0));
        painter.drawLine(tx, 10, tx, ty);
    } else {
        painter.drawText(QRectF(tx - w0 / 2, ty + 15, w0 + 12, h), QString::number(k * 0.1, 'g', 6), QTextOption());
    }
    painter.restore();
    painter.restore();
}

void PlainRenderer::paintVerticalNumber(QPainter &painter, const QFont &font, int j) const
{
    const QFontMetrics metrics(font);
    const int h = metrics.height();
    const int w0 = metrics.horizontalAdvance(QStringLiteral("0.0"));
    const int wz = metrics.horizontalAdvance(QStringLiteral("0"));
    const QPointF p0 = m_mapping.toPixel(QPointF(static_cast<double>(m_range.xMin), j * 0.1));
    int tx = static_cast<int>(p0.x());
    int ty = static_cast<int>(p0.y());

    painter.save();
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    QPen pen = painter.pen();
    pen.setColor(m_lineColor);
    pen.setStyle(Qt::SolidLine);
    painter.setPen(pen);
    if (j == 0) {
        painter.save();
        painter.setPen(solidPen(m_lineColor, 1.0));
        painter.setFont(font);
        painter.drawLine(tx, ty, m_width, ty);
        ty = ty - 3 * h / 4;
        painter.drawText(QRectF(tx - wz - 15, ty, wz, h), QStringLiteral("0"), QTextOption());
        painter.restore();
    } else {
        ty = ty - h / 2;
        painter.setFont(font);
        tx = tx - 10 - w0;
        painter.drawText(QRect(tx, ty, w0 + 12, h), Qt::AlignLeft | Qt::AlignVCenter, QString::number(j * 0.1, 'g', 6));
    }
    painter.restore();
}

void PlainRenderer::painterBBRLine(QPainter &painter) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    QPolygonF polygon;
    for (const CEIAtlasValue::CEITemperatureCoordinate &row : m_atlas.temperatureCoordinates) {
        polygon.append(m_mapping.toPixel(QPointF(row.x, row.y)));
    }
    painter.drawPolyline(polygon);
    painter.restore();
    if (!m_colorTemperaturePoints.isEmpty()) {
        paintColorTemperaturePoints(painter);
    }
}

void PlainRenderer::paintColorTemperaturePoints(QPainter &painter) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(QBrush(m_lineColor, Qt::SolidPattern));
    const int diameter = static_cast<int>(mulDiv(m_height, 2, 100));
    const int half = diameter / 2;
    for (const QPointF &xy : m_colorTemperaturePoints) {
        const QPointF point = m_mapping.toPixel(xy);
        painter.drawEllipse(QRectF(point.x() - half, point.y() - half, diameter, diameter));
    }
    painter.restore();
}

QPolygonF PlainRenderer::trianglePolygon(const ColorTriangleObject &triangle) const
{
    const TrianglePoint points = triangle.trianglePoint();
    const QPointF blue = m_mapping.toWholePixel(points.bluePos());
    const QPointF green = m_mapping.toWholePixel(points.greenPos());
    const QPointF red = m_mapping.toWholePixel(points.redPos());
    QPolygonF polygon;
    polygon.append(red);
    polygon.append(green);
    polygon.append(blue);
    return polygon;
}

void PlainRenderer::painterStandard(QPainter &painter, const QList<ColorTriangleObject> &standards) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (ColorTriangleObject standard : standards) {
        const QColor color = standard.foreColor();
        painter.setPen(solidPen(color, static_cast<double>(standard.trigleLineWidth())));
        const QPolygonF polygon = trianglePolygon(standard);
        painter.drawPolygon(polygon, Qt::OddEvenFill);
        QPainterPath path;
        path.addPolygon(polygon);
        const QColor tint(color.red(), color.green(), color.blue(), static_cast<int>(standard.opacity() * 256.0));
        painter.fillPath(path, QBrush(tint, Qt::SolidPattern));
    }
    painter.restore();
}

void PlainRenderer::painterTriangle(QPainter &painter, const QList<ColorTriangleObject> &triangles) const
{
    for (ColorTriangleObject triangle : triangles) {
        if (triangle.type() != 1 && triangle.type() != 2 && triangle.type() != 3) {
            continue;
        }
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(solidPen(triangle.foreColor(), static_cast<double>(triangle.trigleLineWidth())));
        painter.drawPolygon(trianglePolygon(triangle), Qt::OddEvenFill);
        painter.restore();
    }
}

void PlainRenderer::painterMeasurePoints(QPainter &painter) const
{
    for (int i = 0; i < m_measurePoints.size(); ++i) {
        painter.save();
        painter.setPen(QColor(255, 255, 255, 255));
        QColor color;
        if (i == 0) {
            color = QColor(255, 0, 0);
        } else if (i == 1) {
            color = QColor(0, 255, 0);
        } else if (i == 2) {
            color = QColor(0, 0, 255);
        } else if (i == 3) {
            color = QColor(255, 255, 255);
        }
        painter.setBrush(QBrush(color, Qt::SolidPattern));
        painter.drawEllipse(m_measurePoints.at(i));
        painter.restore();
    }
}

void PlainRenderer::drawCMYPoint(QPainter &painter) const
{
    for (int i = 0; i < m_cmyPoints.size(); ++i) {
        painter.save();
        painter.setPen(QColor(0xff, 0x00, 0xff));
        QColor color;
        if (i == 0) {
            color = QColor(0x00, 0xff, 0xff);
        } else if (i == 1) {
            color = QColor(0xff, 0x00, 0xff);
        } else if (i == 2) {
            color = QColor(0xff, 0xff, 0x00);
        }
        painter.setBrush(QBrush(color, Qt::SolidPattern));
        painter.drawEllipse(QRectF(m_cmyPoints.at(i).x(), m_cmyPoints.at(i).y(), 16.0, 16.0));
        painter.restore();
    }
}

} // namespace reference
