// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/diagram/horseshoefill_p.h>
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/render/diagramrenderer_p.h>
#include <ceiechart/render/picture_p.h>

#include <gamutmodel/diagram.h>

#include <QPainter>
#include <QPolygonF>

namespace {

ceiechart::ChartKind kindOf(DrawCEIPicture::CEIEType type)
{
    return type == DrawCEIPicture::UvDiagram ? ceiechart::ChartKind::LegacyUv : ceiechart::ChartKind::LegacyXy;
}

} // namespace

class Q_DECL_HIDDEN DrawCEIPicture::Private : public ceiechart::DiagramRenderer::Private {
public:
    explicit Private(CEIEType diagramType)
        : ceiechart::DiagramRenderer::Private(kindOf(diagramType))
        , type(diagramType)
        , xTitle(QString::fromUtf8(ceiechart::chartStyle(kind).xTitle))
        , yTitle(QString::fromUtf8(ceiechart::chartStyle(kind).yTitle))
    {
        if (type == UvDiagram) {
            xy2uv(atlas.spectrumLocus, uvLocus);
            atlas.spectrumLocus = uvLocus;
            atlas.colorSystem = ceiechart::uvColorSystem;
        }
    }

    CEIEType type;
    QString xTitle;
    QString yTitle;
    std::vector<QPointF> uvLocus;
    QList<QPointF> measurePoints;
};

DrawCEIPicture::DrawCEIPicture(DrawCEIPicture::CEIEType type, QWidget *parent)
    : DiagramRenderer(std::make_unique<Private>(type), parent)
{
}

DrawCEIPicture::Private &DrawCEIPicture::own() const
{
    return static_cast<Private &>(*d);
}

QPointF DrawCEIPicture::CoordinateTransformation()
{
    return DiagramRenderer::CoordinateTransformation();
}

DrawCEIPicture::~DrawCEIPicture() = default;

DrawCEIPicture::CEIEType DrawCEIPicture::type()
{
    return own().type;
}

QImage *DrawCEIPicture::drawCEIPicture(
    int width, int height, bool drawCoordinate, bool drawBBRLine, bool drawWaveLength, QList<QPointF> points)
{
    d->colorTemperaturePoints = points;
    constexpr auto kind = ceiechart::ChartKind::LegacyXy;
    const ceiechart::ChartStyle &style = ceiechart::chartStyle(kind);
    d->beginDrawing(width, height, style.marginPercent);
    const QColor ground = d->ground(style.ground);
    auto picture = d->newPicture(ground);
    if (picture->isNull()) {
        return ceiechart::finished(std::move(picture));
    }

    QPainter painter(picture.get());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    d->drawGround(painter, *picture, picture->rect(), ground);
    if (d->lightGround) {
        d->drawHorseshoeWithin(*picture, d->locusPolygon(), ceiechart::ClipOutline::Hidden, ground);
    }
    paintCEIEdge(painter);
    if (!d->lightGround) {
        painterPixColor(picture.get());
    }
    if (drawCoordinate) {
        painterCoordinate(style.gridStyle, ceiechart::chartNumberFont(kind, height), painter);
    }
    if (drawWaveLength) {
        painterWaveLength(painter);
    }
    if (drawBBRLine) {
        painterBBRLine(painter);
    }
    painter.end();
    return ceiechart::finished(std::move(picture));
}

QImage *DrawCEIPicture::drawCEIEPicture(int width, int height, bool drawCoordinate, bool, bool, QList<QPointF> points)
{
    d->colorTemperaturePoints = points;
    constexpr auto kind = ceiechart::ChartKind::LegacyUv;
    const ceiechart::ChartStyle &style = ceiechart::chartStyle(kind);
    d->beginDrawing(width, height, style.marginPercent);
    const QColor ground = d->ground(d->groundColor);
    auto picture = d->newPicture(ground);
    if (picture->isNull()) {
        return ceiechart::finished(std::move(picture));
    }

    QPainter painter(picture.get());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    d->drawGround(painter, *picture, picture->rect(), ground);

    QPolygonF locus;
    locus.reserve(int(own().uvLocus.size()));
    for (const QPointF &point : own().uvLocus) {
        locus.append(CoordinateTransformation(point));
    }
    d->drawHorseshoeWithin(*picture, locus, ceiechart::ClipOutline::Drawn, d->ground(style.horseshoeGround));

    if (drawCoordinate) {
        painterCoordinate(style.gridStyle, ceiechart::chartNumberFont(kind, height), painter);
    }
    painterPoints(painter, own().measurePoints);
    painter.end();
    return ceiechart::finished(std::move(picture));
}

QImage DrawCEIPicture::getColorImage()
{
    QImage colors(d->devicePixels(d->pictureWidth), d->devicePixels(d->pictureHeight), QImage::Format_ARGB32);
    colors.setDevicePixelRatio(d->pixelRatio);
    colors.fill(ceiechart::chartStyle(d->kind).horseshoeGround);
    painterPixColor(&colors);
    return colors;
}

void DrawCEIPicture::setMeasurePoints(const QList<QPointF> &points)
{
    own().measurePoints = points;
}

void DrawCEIPicture::setXTitle(const QString &title)
{
    own().xTitle = title;
}

void DrawCEIPicture::setYTitle(const QString &title)
{
    own().yTitle = title;
}

void DrawCEIPicture::setGraphColor(QColor line, QColor background)
{
    d->lineColor = line;
    d->groundColor = background;
}

void DrawCEIPicture::painterPoints(QPainter &painter, QList<QPointF> points)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    for (const QPointF &point : qAsConst(points)) {
        const QPointF centre = CoordinateTransformation(point);
        painter.setBrush(QColor(255, 255, 255, 76));
        painter.drawEllipse(centre, 4, 4);
        painter.setBrush(QColor(0, 0, 0));
        painter.drawEllipse(centre, 2, 2);
    }
    painter.restore();
}

void DrawCEIPicture::painterCoordinate(Qt::PenStyle style, const QFont &font, QPainter &painter)
{
    d->drawAxes(painter, {style, font, own().xTitle, own().yTitle});
}

QPointF DrawCEIPicture::CurCoordinateToChroma(const QPointF &position)
{
    return d->geometry.toChroma(position.x(), position.y());
}

void DrawCEIPicture::xy2uv(const float &x, const float &y, float &u, float &v)
{
    Model::uvFromXy(x, y, u, v);
}

void DrawCEIPicture::xyconvertuv(const double &x, const double &y, double &u, double &v)
{
    Model::uvFromXy(x, y, u, v);
}

void DrawCEIPicture::xy2uv(const std::vector<QPointF> &xy, std::vector<QPointF> &uv)
{
    uv.clear();
    uv.reserve(xy.size());
    for (const QPointF &point : xy) {
        double u = 0.0;
        double v = 0.0;
        Model::uvFromXy(point.x(), point.y(), u, v);
        uv.emplace_back(u, v);
    }
}

void DrawCEIPicture::xy2uvList(
    std::vector<float> &xs, std::vector<float> &ys, std::vector<float> &us, std::vector<float> &vs)
{
    for (std::size_t i = 0; i < xs.size(); ++i) {
        float u = 0.0F;
        float v = 0.0F;
        Model::uvFromXy(xs[i], ys[i], u, v);
        us.push_back(u);
        vs.push_back(v);
    }
}
