// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/diagram/horseshoefill_p.h>
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/render/picture_p.h>

#include <gamutmodel/diagram.h>

#include <QPainter>
#include <QPolygonF>

namespace {

ceiechart::ChartKind chartKind(DrawCEIPicture::CEIEType type)
{
    return type == DrawCEIPicture::UvDiagram ? ceiechart::ChartKind::LegacyUv : ceiechart::ChartKind::LegacyXy;
}

} // namespace

DrawCEIPicture::DrawCEIPicture(DrawCEIPicture::CEIEType type, QWidget *parent)
    : QWidget(parent)
    , DiagramLayers(chartKind(type))
    , m_type(type)
    , m_xTitle(QString::fromUtf8(ceiechart::chartStyle(chartKind(type)).xTitle))
    , m_yTitle(QString::fromUtf8(ceiechart::chartStyle(chartKind(type)).yTitle))
    , m_backgroundColor(ceiechart::chartStyle(chartKind(type)).horseshoeGround)
{
    setAttribute(Qt::WA_TranslucentBackground);
    if (type == UvDiagram) {
        xy2uv(m_atlas.spectrumLocus, m_uvLocus);
        m_atlas.spectrumLocus = m_uvLocus;
        m_atlas.colorSystem = ceiechart::uvColorSystem;
    }
}

DrawCEIPicture::~DrawCEIPicture() = default;

DrawCEIPicture::CEIEType DrawCEIPicture::type()
{
    return m_type;
}

QImage *DrawCEIPicture::drawCEIPicture(
    int width, int height, bool drawCoordinate, bool drawBBRLine, bool drawWaveLength, QList<QPointF> points)
{
    m_colorTemperaturePoints = points;
    constexpr auto kind = ceiechart::ChartKind::LegacyXy;
    const ceiechart::ChartStyle &style = ceiechart::chartStyle(kind);
    beginDrawing(width, height, style.marginPercent);
    auto picture = ceiechart::newPicture(width, height, style.ground);
    if (picture->isNull()) {
        return ceiechart::finished(std::move(picture));
    }

    QPainter painter(picture.get());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(picture->rect(), style.ground);
    paintCEIEdge(painter);
    painterPixColor(picture.get());
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
    m_colorTemperaturePoints = points;
    constexpr auto kind = ceiechart::ChartKind::LegacyUv;
    const ceiechart::ChartStyle &style = ceiechart::chartStyle(kind);
    beginDrawing(width, height, style.marginPercent);
    auto picture = ceiechart::newPicture(width, height, m_backgroundColor);
    if (picture->isNull()) {
        return ceiechart::finished(std::move(picture));
    }

    QPainter painter(picture.get());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(picture->rect(), m_backgroundColor);

    QPolygonF locus;
    locus.reserve(int(m_uvLocus.size()));
    for (const QPointF &point : m_uvLocus) {
        locus.append(CoordinateTransformation(point));
    }
    drawHorseshoeWithin(*picture, locus, ClipOutline::Drawn, style.horseshoeGround);

    if (drawCoordinate) {
        painterCoordinate(style.gridStyle, ceiechart::chartNumberFont(kind, height), painter);
    }
    painterPoints(painter, m_measurePoints);
    painter.end();
    return ceiechart::finished(std::move(picture));
}

QImage DrawCEIPicture::getColorImage()
{
    QImage colors(m_pictureWidth, m_pictureHeight, QImage::Format_ARGB32);
    colors.fill(ceiechart::chartStyle(chartKind(m_type)).horseshoeGround);
    painterPixColor(&colors);
    return colors;
}

void DrawCEIPicture::setMeasurePoints(const QList<QPointF> &points)
{
    m_measurePoints = points;
}

void DrawCEIPicture::setXTitle(const QString &title)
{
    m_xTitle = title;
}

void DrawCEIPicture::setYTitle(const QString &title)
{
    m_yTitle = title;
}

void DrawCEIPicture::setGraphColor(QColor line, QColor background)
{
    m_lineColor = line;
    m_backgroundColor = background;
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
    drawAxes(painter, {style, font, m_xTitle, m_yTitle});
}

QPointF DrawCEIPicture::CurCoordinateToChroma(const QPointF &position)
{
    return m_geometry.toChroma(position.x(), position.y());
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
