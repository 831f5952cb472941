// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/textstyle_p.h>

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

constexpr double pointsPerInch = 72.0;
constexpr size_t mostPicturesOfText = 2; // in different colours

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

//! Paints \a runs with their base line at \a at, one over the other.
void putGlyphs(QPainter &painter, const QList<QGlyphRun> &runs, const QPointF &at, const QColor &color)
{
    painter.setPen(color);
    for (const QGlyphRun &run : runs) {
        painter.drawGlyphRun(at, run);
    }
}

TextPicture pictureOf(const QList<QGlyphRun> &runs, const QColor &color, const QColor &casing, double scale)
{
    QRectF bounds;
    for (const QGlyphRun &run : runs) {
        bounds |= run.boundingRect();
    }
    constexpr double room = casingWidth + 1.0; // for hinted glyphs too
    constexpr double longest = 1000.0; // pixels on a side: of more, a picture costs more memory than it saves time
    const QRectF place = QTransform::fromScale(scale, scale).mapRect(bounds.adjusted(-room, -room, room, room));
    if (!(place.width() <= longest && place.height() <= longest)) {
        return {color, casing, scale, QImage(), QPoint()};
    }
    const QRect pixels = place.toAlignedRect();
    TextPicture picture{
        color, casing, scale, QImage(pixels.size(), QImage::Format_ARGB32_Premultiplied), -pixels.topLeft()};
    if (picture.pixels.isNull()) {
        return picture;
    }
    picture.pixels.fill(Qt::transparent);
    QPainter painter(&picture.pixels);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(picture.origin);
    painter.scale(scale, scale);
    putCasedGlyphs(painter, runs, QPointF(), color, casing, scale);
    return picture;
}

} // namespace

QFont designed(QFont font)
{
    font.setPixelSize(designPixelSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void putCasedGlyphs(QPainter &painter, const QList<QGlyphRun> &runs, const QPointF &at, const QColor &color,
    const QColor &casing, double scale)
{
    constexpr double reach = casingWidth / 2.0;
    constexpr double aslant = reach * 0.7;
    // Glyphs stand on whole pixels: without rounding, casings would be wider on one side.
    const auto onPixels = [scale](double way) { return double(std::lround(way * scale)) / scale; };
    for (const QPointF &way : {QPointF(reach, 0.0), QPointF(-reach, 0.0), QPointF(0.0, reach), QPointF(0.0, -reach),
             QPointF(aslant, aslant), QPointF(-aslant, aslant), QPointF(aslant, -aslant), QPointF(-aslant, -aslant)}) {
        if (casing.isValid()) {
            putGlyphs(painter, runs, at + QPointF(onPixels(way.x()), onPixels(way.y())), casing);
        }
    }
    putGlyphs(painter, runs, at, color);
}

TextStyle::TextStyle(const QFont &font, const QPaintDevice *device, double unit, int mostKept)
    : m_font(font)
    , m_shapedFont(device ? QFont(font, device) : font)
    , m_metrics(metricsOf(font, device))
    , m_unit(unit)
    , m_pixelSize(font.pointSizeF() * dotsPerInch(device) / pointsPerInch / unit)
    , m_mostKept(mostKept)
    , m_known(std::make_shared<QHash<QString, Known>>())
{
}

TextStyle::Known &TextStyle::known(const QString &text) const
{
    const auto found = m_known->find(text);
    if (found != m_known->end()) {
        return *found;
    }
    if (m_known->size() >= m_mostKept) {
        m_known->clear();
    }
    Known fresh; // kept only if there is memory for all of it
    QTextLayout layout(text, m_shapedFont);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    if (!line.isValid()) {
        return *m_known->insert(text, fresh); // it is empty
    }
    fresh.advance = line.horizontalAdvance();
    fresh.glyphs = line.glyphRuns();
    const QPointF begin(line.position().x(), line.position().y() + line.ascent());
    for (QGlyphRun &run : fresh.glyphs) {
        const QRectF bounds = run.boundingRect();
        QVector<QPointF> positions = run.positions();
        for (QPointF &position : positions) {
            position -= begin;
        }
        run.setPositions(positions);
        run.setBoundingRect(bounds.translated(-begin));
    }
    return *m_known->insert(text, fresh);
}

double TextStyle::width(const QString &text) const
{
    return known(text).advance / m_unit;
}

QList<QGlyphRun> TextStyle::glyphs(const QString &text) const
{
    return known(text).glyphs;
}

TextPicture TextStyle::picture(const QString &text, const QColor &color, const QColor &casing, double scale) const
{
    Known &shaped = known(text);
    std::vector<TextPicture> &pictures = shaped.pictures;
    const auto found = std::find_if(pictures.begin(), pictures.end(), [&](const TextPicture &picture) {
        return picture.scale == scale && picture.color == color && picture.casing == casing;
    });
    if (found != pictures.end()) {
        return *found;
    }
    TextPicture picture = pictureOf(shaped.glyphs, color, casing, scale);
    if (!picture.pixels.isNull()) {
        if (pictures.size() == mostPicturesOfText) {
            pictures.clear();
        }
        pictures.push_back(picture);
    }
    return picture;
}

QSizeF TextStyle::designedSize(const QString &text) const
{
    const QFontMetricsF metrics(designed(m_font));
    return QSizeF(metrics.horizontalAdvance(text), metrics.ascent() + metrics.descent())
        * (m_pixelSize / designPixelSize);
}

} // namespace ceiechart
