// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/render/picture_p.h>

#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace {

constexpr ceiechart::ChromaRange xyRange{0.0F, 0.84F, 0.0F, 0.94F};
constexpr ceiechart::ChromaRange uvRange{0.0F, 0.65F, 0.0F, 0.68F};
constexpr int xyMarginPercent = 5;
constexpr int uvMarginPercent = 15;

//! What colours the u′, v′ diagram: chosen to look right there, not converted from the x, y primaries.
constexpr CEIAtlasValue::TColorSystem uvColorSystem{
    0.5222F, 0.5222F, 0.0111F, 0.7888F, 0.1888F, 0.1555F, 0.2333F, 0.4777F};

QColor colorImageBackground()
{
    return QColor(QStringLiteral("#323238"));
}

template <typename Real>
void toUv(Real x, Real y, Real &u, Real &v)
{
    const Real d = -2 * x + 12 * y + 3;
    u = 4 * x / d;
    v = 9 * y / d;
}

} // namespace

DrawCEIPicture::DrawCEIPicture(DrawCEIPicture::CEIEType type, QWidget *parent)
    : QWidget(parent)
    , DiagramLayers(type == UvDiagram ? uvRange : xyRange)
    , m_type(type)
    , m_xTitle(type == UvDiagram ? QStringLiteral("u") : QStringLiteral("X"))
    , m_yTitle(type == UvDiagram ? QStringLiteral("v") : QStringLiteral("Y"))
    , m_backgroundColor(colorImageBackground())
{
    setAttribute(Qt::WA_TranslucentBackground);
    if (type == UvDiagram) {
        xy2uv(m_atlas.spectrumLocus, m_uvLocus);
        m_atlas.spectrumLocus = m_uvLocus;
        m_atlas.colorSystem = uvColorSystem;
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
    beginDrawing(width, height, xyMarginPercent);
    const QColor margins(0, 0, 0);
    auto picture = ceiechart::newPicture(width, height, margins);
    if (picture->isNull()) {
        return ceiechart::finished(std::move(picture));
    }

    QPainter painter(picture.get());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(picture->rect(), margins);
    paintCEIEdge(painter);
    painterPixColor(picture.get());
    if (drawCoordinate) {
        painterCoordinate(Qt::SolidLine,
            QFont(QStringLiteral("Arial"), std::max(ceiechart::truncated(mulDiv(height, 2, 100)), 1)), painter);
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
    beginDrawing(width, height, uvMarginPercent);
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
    drawHorseshoeWithin(*picture, locus, ClipOutline::Drawn, colorImageBackground());

    if (drawCoordinate) {
        QFont font(QStringLiteral("Lexend Deca,Microsoft YaHei"));
        font.setWeight(QFont::DemiBold);
        font.setPixelSize(12);
        painterCoordinate(Qt::DashLine, font, painter);
    }
    painterPoints(painter, m_measurePoints);
    painter.end();
    return ceiechart::finished(std::move(picture));
}

QImage DrawCEIPicture::getColorImage()
{
    QImage colors(m_pictureWidth, m_pictureHeight, QImage::Format_ARGB32);
    colors.fill(colorImageBackground());
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
    drawAxes(painter, {style, font, font, m_xTitle, m_yTitle});
}

QPointF DrawCEIPicture::CurCoordinateToChroma(const QPointF &position)
{
    return m_geometry.toChroma(position.x(), position.y());
}

void DrawCEIPicture::xy2uv(const float &x, const float &y, float &u, float &v)
{
    toUv(x, y, u, v);
}

void DrawCEIPicture::xyconvertuv(const double &x, const double &y, double &u, double &v)
{
    toUv(x, y, u, v);
}

void DrawCEIPicture::xy2uv(const std::vector<QPointF> &xy, std::vector<QPointF> &uv)
{
    uv.clear();
    uv.reserve(xy.size());
    for (const QPointF &point : xy) {
        double u = 0.0;
        double v = 0.0;
        toUv(point.x(), point.y(), u, v);
        uv.emplace_back(u, v);
    }
}

void DrawCEIPicture::xy2uvList(
    std::vector<float> &xs, std::vector<float> &ys, std::vector<float> &us, std::vector<float> &vs)
{
    for (std::size_t i = 0; i < xs.size(); ++i) {
        float u = 0.0F;
        float v = 0.0F;
        toUv(xs[i], ys[i], u, v);
        us.push_back(u);
        vs.push_back(v);
    }
}
