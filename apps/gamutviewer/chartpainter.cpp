// SPDX-License-Identifier: MIT
#include "chartpainter.h"

#include "whitepoint.h"

#include <ceiechart/atlas/ceiatlasvalue.h>
#include <ceiechart/render/diagramgeometry.h>
#include <ceiechart/render/drawceipicture.h>

#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <memory>

namespace gamutviewer {

namespace {

// What the library's renderer shows, and where.
constexpr ceiechart::ChromaRange shownRange{0.0F, 0.84F, 0.0F, 0.94F};
constexpr int marginPercent = 5;
const QColor backgroundColor(23, 23, 26);
const QColor lineColor(Qt::white);

constexpr double gridStep = 0.1;
constexpr double tickLength = 0.0168; // in chromaticity units
constexpr double markSize = 16.0;
constexpr int wavelengthFontSize = 11;
constexpr int highestMired = 999; // 1001 K
constexpr int lowestMired = 67; // 14 925 K

QPen outlinePen(const QColor &color, double width)
{
    return QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

//! The renderer's, but smaller where its numbers would not fit into the margins of a small chart.
QFont axisFont(const QSize &size)
{
    QFont font(QStringLiteral("Lexend Deca,Microsoft YaHei"));
    font.setPixelSize(qBound(6, int(std::min(size.width() * 0.03, size.height() * 0.04)), 16));
    return font;
}

QFont wavelengthFont()
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(wavelengthFontSize);
    return font;
}

QPointF chromaticity(const CEIAtlasValue::CEIAtlasCoordinate &row)
{
    const double sum = row.X + row.Y + row.Z;
    return {row.X / sum, row.Y / sum};
}

class ChartPainter {
public:
    ChartPainter(QPainter &painter, const ChartScene &scene, const QSize &size, qreal imageScale)
        : m_painter(painter)
        , m_scene(scene)
        , m_size(size)
        , m_imageScale(imageScale)
    {
        m_geometry.setPicture(size.width(), size.height(), marginPercent, shownRange);
    }

    void paint()
    {
        m_painter.save();
        m_painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform
            | QPainter::LosslessImageRendering);
        m_painter.fillRect(QRectF(QPointF(), m_size), backgroundColor);
        paintAxes();
        paintWavelengths();
        paintLocus();
        for (ColorTriangleObject standard : m_scene.standards) {
            paintStandard(standard);
        }
        paintHorseshoe();
        for (ColorTriangleObject triangle : m_scene.triangles) {
            m_painter.setPen(outlinePen(triangle.foreColor(), triangle.trigleLineWidth()));
            m_painter.setBrush(Qt::NoBrush);
            m_painter.drawPolygon(polygon(triangle.trianglePoint()));
        }
        paintPlanckianLocus();
        paintMarks(m_scene.measurePoints, Qt::white, {Qt::red, Qt::green, Qt::blue, Qt::white});
        paintMarks(m_scene.cmyPoints, Qt::magenta, {Qt::cyan, Qt::magenta, Qt::yellow});
        m_painter.restore();
    }

private:
    QPointF map(double x, double y) const { return m_geometry.toExactPixel(x, y); }
    QPointF map(const QPointF &xy) const { return map(xy.x(), xy.y()); }

    QPolygonF polygon(const TrianglePoint &triangle) const
    {
        return QPolygonF({map(triangle.redPos()), map(triangle.greenPos()), map(triangle.bluePos())});
    }

    void text(const QString &text, const QRectF &place, Qt::Alignment alignment)
    {
        QTextOption option(alignment);
        option.setWrapMode(QTextOption::NoWrap);
        m_painter.drawText(place, text, option);
    }

    void paintAxes()
    {
        QColor gridColor = lineColor;
        gridColor.setAlphaF(80.0 / 255.0 * 0.3);
        m_painter.setFont(axisFont(m_size));
        const double height = QFontMetricsF(axisFont(m_size), m_painter.device()).height();
        const double gap = std::min(8.0, m_size.width() * 0.01);
        const QPointF origin = map(0.0, 0.0);
        for (int tick = 0; tick * gridStep < double(shownRange.xMax); ++tick) {
            const QPointF foot = map(tick * gridStep, 0.0);
            m_painter.setPen(QPen(gridColor, 1.0, Qt::DashLine));
            m_painter.drawLine(foot, map(tick * gridStep, double(shownRange.yMax)));
            m_painter.setPen(lineColor);
            text(QString::number(tick * gridStep),
                QRectF(foot.x() - 30.0, std::min(foot.y() + 15.0, m_size.height() - height), 60.0, height),
                Qt::AlignHCenter);
        }
        for (int tick = 0; tick * gridStep < double(shownRange.yMax); ++tick) {
            const QPointF foot = map(0.0, tick * gridStep);
            m_painter.setPen(QPen(gridColor, 1.0, Qt::DashLine));
            m_painter.drawLine(foot, map(double(shownRange.xMax), tick * gridStep));
            m_painter.setPen(lineColor);
            text(QString::number(tick * gridStep), QRectF(foot.x() - gap - 60.0, foot.y() - height / 2.0, 60.0, height),
                Qt::AlignRight | Qt::AlignVCenter);
        }
        m_painter.setPen(outlinePen(lineColor, 1.0));
        m_painter.drawLine(QPointF(origin.x(), 10.0), origin);
        m_painter.drawLine(origin, QPointF(m_size.width(), origin.y()));
    }

    void paintWavelengths()
    {
        m_painter.setFont(wavelengthFont());
        const QFontMetricsF metrics(wavelengthFont(), m_painter.device());
        for (int i = 1; i < m_atlas.atlasCoordinates.size(); ++i) {
            const int wavelength = m_atlas.atlasCoordinates[i].waveLength;
            // The ends of the locus are too crowded for ticks.
            const bool shown = (wavelength == 420 || wavelength == 680 || (wavelength >= 450 && wavelength <= 630))
                && wavelength % 5 == 0;
            if (!shown) {
                continue;
            }
            const bool numbered = wavelength % 10 == 0;
            const QPointF at = chromaticity(m_atlas.atlasCoordinates[i]);
            const QPointF step = at - chromaticity(m_atlas.atlasCoordinates[i - 1]);
            const QPointF outwards = QPointF(-step.y(), step.x()) / std::hypot(step.x(), step.y());
            const QPointF foot = map(at);
            const QPointF tip = map(at + outwards * tickLength * (numbered ? 1.0 : 0.5));
            m_painter.setPen(QPen(lineColor, numbered ? 1.0 : m_size.height() * 0.002 + 0.5));
            m_painter.drawLine(foot, tip);
            if (numbered) {
                const QString number = QString::number(wavelength);
                const QSizeF box(metrics.horizontalAdvance(number) + 4.0, metrics.height());
                const QPointF way = (tip - foot) / std::hypot(tip.x() - foot.x(), tip.y() - foot.y());
                const QPointF center = tip + QPointF(way.x() * box.width(), way.y() * box.height()) / 2.0;
                QRectF place(center - QPointF(box.width(), box.height()) / 2.0, box);
                place.moveLeft(std::max(place.left(), 0.0));
                text(number, place, Qt::AlignCenter);
            }
        }
    }

    void paintLocus()
    {
        QPolygonF locus;
        for (const CEIAtlasValue::CEIAtlasCoordinate &row : qAsConst(m_atlas.atlasCoordinates)) {
            locus.append(map(chromaticity(row)));
        }
        m_painter.setPen(outlinePen(lineColor, 2.0));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPolygon(locus);
    }

    void paintStandard(ColorTriangleObject &standard)
    {
        const QPolygonF outline = polygon(standard.trianglePoint());
        QColor fill = standard.foreColor();
        fill.setAlpha(int(standard.opacity() * 256.0));
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(fill);
        m_painter.drawPolygon(outline);
        m_painter.setPen(outlinePen(standard.foreColor(), standard.trigleLineWidth()));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPolygon(outline);
    }

    //! The colours where original and target overlap. Not every format can clip, so the image brings its shape along.
    void paintHorseshoe()
    {
        if (m_scene.original.isEmpty() || m_scene.target.isEmpty()) {
            return;
        }
        const QPolygonF common = polygon(m_scene.original).intersected(polygon(m_scene.target));
        const QTransform scaling = QTransform::fromScale(m_imageScale, m_imageScale);
        const QSize pixels(qRound(m_size.width() * m_imageScale), qRound(m_size.height() * m_imageScale));
        const QRect part = scaling.mapRect(common.boundingRect()).toAlignedRect().intersected(QRect(QPoint(), pixels));
        if (part.isEmpty()) {
            return;
        }
        NewCEIE::DrawCEIPicture renderer(nullptr);
        // On the default picture colour the simple form colours the whole picture, and the edge can be left out.
        renderer.setGraphColor(Qt::transparent, backgroundColor);
        const std::unique_ptr<QImage> colors(
            renderer.drawCEIPicture(pixels.width(), pixels.height(), false, false, false, {}));
        QImage image = colors->copy(part).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QImage mask(image.size(), QImage::Format_ARGB32_Premultiplied);
        if (image.isNull() || mask.isNull()) {
            return;
        }
        mask.fill(Qt::transparent);
        QPainter maskPainter(&mask);
        maskPainter.setRenderHint(QPainter::Antialiasing);
        maskPainter.translate(-part.topLeft());
        maskPainter.setPen(Qt::NoPen);
        maskPainter.setBrush(Qt::black);
        maskPainter.drawPolygon(scaling.map(common));
        maskPainter.end();
        QPainter imagePainter(&image);
        imagePainter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        imagePainter.drawImage(0, 0, mask);
        imagePainter.end();
        m_painter.drawImage(QRectF(QPointF(part.topLeft()) / m_imageScale, QSizeF(part.size()) / m_imageScale), image);
    }

    void paintPlanckianLocus()
    {
        // The library's own rows have three decimals, which shows once the lines are vectors.
        QPolygonF locus;
        for (int mired = highestMired; mired >= lowestMired; mired -= 4) {
            if (const auto xy = chromaticityAt(1e6 / mired, 0.0)) {
                locus.append(map(*xy));
            }
        }
        m_painter.setPen(QPen(Qt::black, 1.0));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPolyline(locus);
        m_painter.setBrush(lineColor);
        const double radius = m_size.height() * 0.01;
        for (const QPointF &point : m_scene.colorTemperaturePoints) {
            m_painter.drawEllipse(map(point), radius, radius);
        }
    }

    void paintMarks(const QList<QPointF> &points, const QColor &outline, const QList<QColor> &colors)
    {
        m_painter.setPen(QPen(outline, 1.0));
        for (int i = 0; i < points.size(); ++i) {
            m_painter.setBrush(colors.value(i, Qt::black));
            m_painter.drawEllipse(map(points[i]), markSize / 2.0, markSize / 2.0);
        }
    }

    QPainter &m_painter;
    const ChartScene &m_scene;
    QSize m_size;
    qreal m_imageScale;
    ceiechart::DiagramGeometry m_geometry;
    CEIAtlasValue m_atlas;
};

} // namespace

void paintChart(QPainter &painter, const ChartScene &scene, const QSize &size, qreal imageScale)
{
    if (!size.isEmpty() && imageScale > 0.0) {
        ChartPainter(painter, scene, size, imageScale).paint();
    }
}

} // namespace gamutviewer
