// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/drawlist_p.h>

#include <QGuiApplication>
#include <QPaintEngine>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

constexpr double pointsPerInch = 72.0;
constexpr double casingWidth = 3.0; // of texts, logical pixels
constexpr double pathPixelSize = 100.0; // at which hinting plays no part

double dotsPerInch(const QPaintDevice *device)
{
    if (device) {
        return device->logicalDpiY();
    }
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchY() : 96.0;
}

QFontMetricsF metricsOf(const QFont &font, const QPaintDevice *device)
{
    // Not all versions of Qt take a device that is constant.
    return device ? QFontMetricsF(font, const_cast<QPaintDevice *>(device)) : QFontMetricsF(font);
}

//! Whether positions on the device are whole pixels of a picture that is looked at as it is.
bool hasPixels(const QPainter &painter)
{
    switch (painter.paintEngine()->type()) {
    case QPaintEngine::SVG:
    case QPaintEngine::Pdf:
    case QPaintEngine::Picture:
    case QPaintEngine::PostScript:
    case QPaintEngine::MacPrinter:
        return false;
    default:
        return painter.deviceTransform().type() <= QTransform::TxScale;
    }
}

} // namespace

TextStyle::TextStyle(const QFont &font, const QPaintDevice *device, double unit)
    : m_font(font)
    , m_metrics(metricsOf(font, device))
    , m_unit(unit)
    , m_pixelSize(font.pointSizeF() * dotsPerInch(device) / pointsPerInch / unit)
{
}

void DrawList::hairline(const QLineF &line, const QColor &color)
{
    m_items.push_back(Hairline{line, color});
}

void DrawList::line(const QPolygonF &points, bool closed, const QPen &pen)
{
    m_items.push_back(Line{points, closed, pen});
}

void DrawList::shape(const QPainterPath &path, const QPen &pen, const QBrush &brush)
{
    m_items.push_back(Shape{path, pen, brush});
}

void DrawList::ellipse(const QPointF &centre, double radiusX, double radiusY, const QPen &pen, const QBrush &brush)
{
    m_items.push_back(Ellipse{centre, radiusX, radiusY, pen, brush});
}

void DrawList::text(
    const QPointF &at, const QString &text, const TextStyle &style, const QColor &color, const QColor &casing)
{
    m_items.push_back(Text{at, text, style.font(), style.unit(), style.pixelSize(), color, casing});
}

void DrawList::textIn(
    const QRectF &place, const QString &text, const TextStyle &style, const QColor &color, const QColor &casing)
{
    this->text(QPointF(place.left(), place.top() + style.ascent()), text, style, color, casing);
}

void DrawList::paint(QPainter *painter) const
{
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const auto &item : m_items) {
        std::visit([painter](const auto &which) { paintItem(painter, which); }, item);
    }
    painter->restore();
}

void DrawList::paintItem(QPainter *painter, const Hairline &item)
{
    if (!hasPixels(*painter)) {
        painter->setPen(QPen(item.color, 1.0, Qt::SolidLine, Qt::FlatCap));
        painter->drawLine(item.line);
        return;
    }
    const QTransform transform = painter->deviceTransform();
    const bool isLevel = std::fabs(item.line.dy()) < std::fabs(item.line.dx());
    const double scale = std::fabs(isLevel ? transform.m22() : transform.m11());
    const double thickness = std::max(1.0, std::floor(scale));
    const QRectF along = transform.mapRect(QRectF(item.line.p1(), item.line.p2()).normalized());
    QRectF pixels;
    if (isLevel) {
        const double left = std::round(along.left());
        pixels = QRectF(left, std::floor(along.center().y() - (thickness - 1.0) / 2.0),
            std::round(along.right()) - left, thickness);
    } else {
        const double top = std::round(along.top());
        pixels = QRectF(
            std::floor(along.center().x() - (thickness - 1.0) / 2.0), top, thickness, std::round(along.bottom()) - top);
    }
    painter->fillRect(transform.inverted().mapRect(pixels), item.color);
}

void DrawList::paintItem(QPainter *painter, const Line &item)
{
    painter->setPen(item.pen);
    painter->setBrush(Qt::NoBrush);
    if (item.closed) {
        painter->drawPolygon(item.points);
    } else {
        painter->drawPolyline(item.points);
    }
}

void DrawList::paintItem(QPainter *painter, const Shape &item)
{
    painter->setPen(item.pen);
    painter->setBrush(item.brush);
    painter->drawPath(item.path);
}

void DrawList::paintItem(QPainter *painter, const Ellipse &item)
{
    painter->setPen(item.pen);
    painter->setBrush(item.brush);
    painter->drawEllipse(item.centre, item.radiusX, item.radiusY);
}

void DrawList::paintItem(QPainter *painter, const Text &item)
{
    if (item.casing.isValid()) {
        QFont font = item.font;
        font.setPixelSize(int(pathPixelSize));
        QPainterPath glyphs;
        glyphs.addText(QPointF(), font, item.text);
        const double scale = item.pixelSize / pathPixelSize;
        const QTransform place(scale, 0.0, 0.0, scale, item.at.x(), item.at.y());
        painter->setPen(QPen(item.casing, casingWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(Qt::NoBrush);
        painter->drawPath(place.map(glyphs));
    }
    painter->setPen(item.color);
    painter->setFont(item.font);
    if (item.unit == 1.0) {
        painter->drawText(item.at, item.text);
        return;
    }
    painter->save();
    painter->translate(item.at);
    painter->scale(1.0 / item.unit, 1.0 / item.unit);
    painter->drawText(QPointF(), item.text);
    painter->restore();
}

} // namespace ceiechart
