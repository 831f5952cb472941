// SPDX-License-Identifier: MIT
#include "drawing/chartpainter.h"

#include "drawing/chartkeypainter.h"
#include "drawing/diagramframe.h"
#include "drawing/diagrampainter.h"
#include "drawing/gamutcolors.h"

#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/render/drawceipicture.h>

#include <QPainter>

#include <memory>

namespace gamutviewer {

namespace {

const QColor dotColor(Qt::white);

class ChartPainter {
public:
    ChartPainter(QPainter &painter, const ChartScene &scene, const QSize &size, qreal imageScale)
        : m_painter(painter)
        , m_scene(scene)
        , m_size(size)
        , m_imageScale(imageScale)
        , m_frame(scene.diagram, size)
    {
    }

    void paint()
    {
        m_painter.save();
        m_painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform
            | QPainter::LosslessImageRendering);
        const bool isXy = m_scene.diagram == Model::Diagram::Cie1931;
        m_painter.fillRect(QRectF(QPointF(), m_size), chartGround(m_scene.diagram));
        if (!isXy) {
            paintUvHorseshoe();
        }
        paintGround(isXy);
        for (const ColorTriangleObject &standard : m_scene.standards) {
            paintStandard(standard);
        }
        if (isXy) {
            paintCommonArea();
        }
        for (const ColorTriangleObject &triangle : m_scene.triangles) {
            m_painter.setPen(outlinePen(ColorTriangleObject(triangle).foreColor(), triangle.trigleLineWidth()));
            m_painter.setBrush(Qt::NoBrush);
            m_painter.drawPolygon(polygon(triangle.trianglePoint()));
        }
        if (m_scene.planckianLocus) {
            paintPlanckianLocus(m_painter, m_frame);
        }
        paintDots();
        paintMarks(m_scene.measurePoints, measureMarkOutline);
        paintMarks(cmyMarks(m_scene.cmyPoints.toVector()), cmyMarkOutline);
        paintChartKey(m_painter, m_scene.key, m_frame);
        m_painter.restore();
    }

private:
    QPolygonF polygon(const TrianglePoint &triangle) const
    {
        return QPolygonF({m_frame.fromXy(triangle.redPos()), m_frame.fromXy(triangle.greenPos()),
            m_frame.fromXy(triangle.bluePos())});
    }

    QSize imageSize() const
    {
        return QSize(qRound(m_size.width() * m_imageScale), qRound(m_size.height() * m_imageScale));
    }

    void paintGround(bool isXy)
    {
        if (m_scene.axes) {
            paintAxes(m_painter, m_frame, !isXy);
        }
        if (m_scene.wavelengths) {
            paintWavelengths(m_painter, m_frame, m_scene.axes);
        }
        paintSpectralLocus(m_painter, m_frame);
    }

    void paintStandard(ColorTriangleObject standard)
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

    //! The u', v' chart is coloured as a whole, and the library's picture of it brings its own ground.
    void paintUvHorseshoe()
    {
        ::DrawCEIPicture renderer(::DrawCEIPicture::UvDiagram, nullptr);
        const std::unique_ptr<QImage> colors(
            renderer.drawCEIEPicture(imageSize().width(), imageSize().height(), false, false, false, {}));
        m_painter.drawImage(QRectF(QPointF(), m_size), *colors);
    }

    //! The colours where original and target overlap. Not every format can clip, so the image brings its shape along.
    void paintCommonArea()
    {
        if (m_scene.original.isEmpty() || m_scene.target.isEmpty()) {
            return;
        }
        const QPolygonF common = polygon(m_scene.original).intersected(polygon(m_scene.target));
        const QTransform scaling = QTransform::fromScale(m_imageScale, m_imageScale);
        const QSize pixels = imageSize();
        const QRect part = scaling.mapRect(common.boundingRect()).toAlignedRect().intersected(QRect(QPoint(), pixels));
        if (part.isEmpty()) {
            return;
        }
        NewCEIE::DrawCEIPicture renderer(nullptr);
        // On the default picture colour the simple form colours the whole picture, and the edge can be left out.
        renderer.setGraphColor(Qt::transparent, chartGround(m_scene.diagram));
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

    void paintDots()
    {
        m_painter.setPen(QPen(Qt::black, 1.0));
        m_painter.setBrush(dotColor);
        const double radius = m_size.height() * colorTemperatureDotSize / 2.0;
        for (const QPointF &point : m_scene.colorTemperaturePoints) {
            m_painter.drawEllipse(m_frame.fromXy(point), radius, radius);
        }
    }

    void paintMarks(const QVector<PointMark> &marks, const QColor &outline)
    {
        m_painter.setPen(QPen(outline, 1.0));
        for (const PointMark &mark : marks) {
            m_painter.setBrush(mark.color);
            m_painter.drawEllipse(m_frame.fromXy(mark.xy), markSize / 2.0, markSize / 2.0);
        }
    }

    QPainter &m_painter;
    const ChartScene &m_scene;
    QSize m_size;
    qreal m_imageScale;
    DiagramFrame m_frame;
};

} // namespace

void paintChart(QPainter &painter, const ChartScene &scene, const QSize &size, qreal imageScale)
{
    if (!size.isEmpty() && imageScale > 0.0) {
        ChartPainter(painter, scene, size, imageScale).paint();
    }
}

} // namespace gamutviewer
