// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/render/drawceipicture.h>
#include <ceiechart/render/picture_p.h>

#include <QPainter>

namespace NewCEIE {

namespace {

constexpr auto kind = ceiechart::ChartKind::CurrentXy;

} // namespace

DrawCEIPicture::DrawCEIPicture(QWidget *parent)
    : QWidget(parent)
    , DiagramLayers(kind)
{
    setAttribute(Qt::WA_TranslucentBackground);
}

DrawCEIPicture::~DrawCEIPicture() = default;

QImage *DrawCEIPicture::drawCEIPicture(
    int w, int h, bool showCoordinate, bool, bool, QList<QPointF> colourTemperaturePoints)
{
    m_colorTemperaturePoints = colourTemperaturePoints;
    beginDrawing(w, h, ceiechart::chartStyle(kind).marginPercent);
    auto picture = ceiechart::newPicture(w, h, m_pictureColor);
    if (picture->isNull()) {
        return ceiechart::finished(std::move(picture));
    }

    QPainter painter(picture.get());
    painter.fillRect(QRect(0, 0, w, h), m_pictureColor);
    if (showCoordinate) {
        painterCoordinate(painter);
    }
    paintCEIEdge(painter);
    loadFirstLocusRow();
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, true);
    painterPixColor(picture.get());
    painter.restore();
    painter.end();
    return ceiechart::finished(std::move(picture));
}

QImage *DrawCEIPicture::drawCEIPicture(int w, int h, bool showCoordinate, const QList<ColorTriangleObject> &triangles,
    const QList<ColorTriangleObject> &standards, const QPolygonF &clipPolygon, bool polygonFlag,
    const QString &skipText)
{
    m_showCoordinates = showCoordinate;
    m_triangles = triangles;
    m_clipPolygon = clipPolygon;
    m_polygonFlag = polygonFlag;
    beginDrawing(w, h, ceiechart::chartStyle(kind).marginPercent);
    auto picture = ceiechart::newPicture(w, h, m_pictureColor);
    if (picture->isNull()) {
        return ceiechart::finished(std::move(picture));
    }

    QPainter painter(picture.get());
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.fillRect(QRect(0, 0, w, h), m_pictureColor);
    if (showCoordinate) {
        painterCoordinate(painter);
    }
    painterWaveLength(painter);
    if (skipText.isEmpty()) {
        paintCEIEdge(painter);
        loadFirstLocusRow();
        painterStandard(painter, standards);
        drawHorseshoeWithin(*picture, m_clipPolygon, ClipOutline::None, m_backgroundColor);
        painterTriangle(painter, triangles);
    }
    painterBBRLine(painter);
    drawMeasurePoints(painter);
    drawCMYPoint(painter);
    painter.end();
    return ceiechart::finished(std::move(picture));
}

QPolygonF DrawCEIPicture::intersectPolygon() const
{
    return m_clipPolygon;
}

void DrawCEIPicture::setGraphColor(QColor line, QColor picture)
{
    m_lineColor = line;
    m_pictureColor = picture;
}

void DrawCEIPicture::setBackgroudColor(const QColor &color)
{
    m_backgroundColor = color;
}

void DrawCEIPicture::setPointData(const QList<QRectF> &rectangles)
{
    m_measureRectangles = rectangles;
}

void DrawCEIPicture::setCMYPointData(const QList<QRectF> &rectangles)
{
    m_cmyRectangles = rectangles;
}

void DrawCEIPicture::updateTriangleOffsetPoint(QVector<QPointF> &pts)
{
    for (QPointF &point : pts) {
        point.rx() += ceiechart::DiagramGeometry::xOffset;
    }
}

void DrawCEIPicture::GetPointRGB(int px, int py, double alphaFactor, QImage *picture)
{
    makeColorOfPixelCurrent(px, py);
    GetPointColorRGB(px, py, alphaFactor, picture);
}

void DrawCEIPicture::GetPointColorRGB(int px, int py, double alphaFactor, QImage *picture)
{
    picture->setPixelColor(px, py, colorOfCurrentAmounts(ceiechart::truncated(alphaFactor * 256.0)));
}

void DrawCEIPicture::painterCoordinate(QPainter &painter)
{
    const QFont numberFont = ceiechart::chartNumberFont(kind, m_pictureHeight);
    drawAxes(painter, {ceiechart::chartStyle(kind).gridStyle, numberFont, QString(), QString()});
}

} // namespace NewCEIE
