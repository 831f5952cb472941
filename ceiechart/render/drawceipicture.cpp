// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/render/drawceipicture_p.h>
#include <ceiechart/render/picture_p.h>
#include <ceiechart/render/rowlayers_p.h>

#include <QPainter>
#include <QScopedValueRollback>

namespace NewCEIE {

DrawCEIPicture::DrawCEIPicture(QWidget *parent)
    : DiagramRenderer(std::make_unique<Private>(), parent)
{
}

DrawCEIPicture::~DrawCEIPicture() = default;

DrawCEIPicture::Private &DrawCEIPicture::own() const
{
    return static_cast<Private &>(*d);
}

QImage *DrawCEIPicture::drawCEIPicture(
    int w, int h, bool showCoordinate, bool, bool, QList<QPointF> colourTemperaturePoints)
{
    d->colorTemperaturePoints = colourTemperaturePoints;
    d->beginDrawing(w, h, ceiechart::chartStyle(Private::chart).marginPercent);
    const QColor ground = pictureGround();
    auto picture = d->newPicture(ground);
    if (picture->isNull()) {
        return ceiechart::finished(std::move(picture));
    }

    QPainter painter(picture.get());
    d->drawGround(painter, *picture, QRect(0, 0, w, h), ground);
    if (showCoordinate) {
        painterCoordinate(painter);
    }
    if (d->lightGround) {
        d->drawHorseshoeWithin(*picture, d->locusPolygon(), ceiechart::ClipOutline::Hidden, ground);
    }
    paintCEIEdge(painter);
    d->loadFirstLocusRow();
    if (!d->lightGround) {
        painter.save();
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, true);
        painterPixColor(picture.get());
        painter.restore();
    }
    painter.end();
    return ceiechart::finished(std::move(picture));
}

QImage *DrawCEIPicture::drawCEIPicture(int w, int h, bool showCoordinate, const QList<ColorTriangleObject> &triangles,
    const QList<ColorTriangleObject> &standards, const QPolygonF &clipPolygon, bool polygonFlag,
    const QString &skipText)
{
    own().showCoordinates = showCoordinate;
    own().triangles = triangles;
    own().clipPolygon = clipPolygon;
    own().polygonFlag = polygonFlag;
    d->beginDrawing(w, h, ceiechart::chartStyle(Private::chart).marginPercent);
    const QColor ground = pictureGround();
    auto picture = d->newPicture(ground);
    if (picture->isNull()) {
        return ceiechart::finished(std::move(picture));
    }

    QPainter painter(picture.get());
    painter.setRenderHint(QPainter::Antialiasing, true);
    const bool isWhole = skipText.isEmpty();
    ceiechart::RowLayers layers(d->threadsFor(*picture));
    const auto addLayers = [&] {
        const QScopedValueRollback<ceiechart::RowLayers *> collecting(d->layers, &layers);
        painterStandard(painter, standards);
        d->drawHorseshoeWithin(
            *picture, own().clipPolygon, ceiechart::ClipOutline::Hidden, d->ground(own().backgroundColor));
        painterTriangle(painter, triangles);
    };
    // The threads have something to do while the paint engine draws what lies below these layers.
    const bool isAhead = isWhole && layers.addAhead(addLayers);
    const ceiechart::AxesStyle axes = own().axesStyle();
    d->drawGround(painter, *picture, QRect(0, 0, w, h), ground, showCoordinate ? &axes : nullptr);
    if (isAhead) {
        layers.computeAhead();
    }
    if (showCoordinate) {
        painterCoordinate(painter);
    }
    painterWaveLength(painter);
    if (isWhole) {
        paintCEIEdge(painter);
        d->loadFirstLocusRow();
        if (!isAhead) {
            addLayers();
        }
        layers.draw();
    }
    painterBBRLine(painter);
    own().drawMeasurePoints(painter);
    drawCMYPoint(painter);
    painter.end();
    return ceiechart::finished(std::move(picture));
}

QPolygonF DrawCEIPicture::intersectPolygon() const
{
    return own().clipPolygon;
}

void DrawCEIPicture::setGraphColor(QColor line, QColor picture)
{
    d->lineColor = line;
    d->groundColor = picture;
}

void DrawCEIPicture::setBackgroudColor(const QColor &color)
{
    own().backgroundColor = color;
}

QColor DrawCEIPicture::backgroudColor() const
{
    return own().backgroundColor;
}

void DrawCEIPicture::setPointData(const QList<QRectF> &rectangles)
{
    own().measureRectangles = rectangles;
}

void DrawCEIPicture::setCMYPointData(const QList<QRectF> &rectangles)
{
    own().cmyRectangles = rectangles;
}

QPointF DrawCEIPicture::CoordinateTransformation()
{
    return DiagramRenderer::CoordinateTransformation();
}

void DrawCEIPicture::updateTriangleOffsetPoint(QVector<QPointF> &pts)
{
    for (QPointF &point : pts) {
        point.rx() += ceiechart::DiagramGeometry::xOffset;
    }
}

void DrawCEIPicture::GetPointRGB(int px, int py, double alphaFactor, QImage *picture)
{
    d->makeColorOfPixelCurrent(px, py);
    GetPointColorRGB(px, py, alphaFactor, picture);
}

void DrawCEIPicture::GetPointColorRGB(int px, int py, double alphaFactor, QImage *picture)
{
    picture->setPixelColor(px, py, d->colorOfCurrentAmounts(ceiechart::truncated(alphaFactor * 256.0)));
}

ceiechart::AxesStyle DrawCEIPicture::Private::axesStyle() const
{
    const QFont numberFont = ceiechart::chartNumberFont(chart, pictureHeight);
    return {ceiechart::chartStyle(chart).gridStyle, numberFont, QString(), QString()};
}

void DrawCEIPicture::painterCoordinate(QPainter &painter)
{
    d->drawAxes(painter, own().axesStyle());
}

} // namespace NewCEIE
