// SPDX-License-Identifier: MIT
#include "drawing/gamutoverlay.h"

#include "drawing/diagrampainter.h"
#include "drawing/gamutcolors.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr double lineWidth = 2.0;
constexpr qreal handleRadius = 6.0; // scene pixels
constexpr qreal selectionRadius = 10.0;
constexpr double markRadius = 4.0; // on a bare diagram
constexpr double chartOutlineWidth = 2.0; // of the library's gamuts, in pixels of its picture

// From bottom to top
enum Height : int { GroundHeight, StandardHeight, GamutHeight, MarkHeight = GamutHeight + 4, HandleHeight };

//! Axes, digits and edge of a bare diagram, which as vectors are sharp at every device pixel ratio.
class Ground : public QGraphicsItem {
public:
    Ground(Layers shown, const DiagramFrame &frame)
        : m_shown(shown)
        , m_frame(frame)
    {
    }

    QRectF boundingRect() const override { return QRectF(QPointF(), m_frame.size()); }

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *) override
    {
        painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        paintSpectralLocus(*painter, m_frame);
        if (m_shown.testFlag(Layer::Axes)) {
            paintAxes(*painter, m_frame, true);
        }
        if (m_shown.testFlag(Layer::Wavelengths)) {
            paintWavelengths(*painter, m_frame, m_shown.testFlag(Layer::Axes));
        }
        if (m_shown.testFlag(Layer::PlanckianLocus)) {
            paintPlanckianLocus(*painter, m_frame);
        }
    }

private:
    Layers m_shown;
    DiagramFrame m_frame;
};

QPolygonF triangle(const Model::ColorGamut &gamut, const DiagramFrame &frame, double scale = 1.0)
{
    const Model::Targets &t = gamut.getTargets();
    return QPolygonF(
        {frame.fromXy(xyOf(t.red)) / scale, frame.fromXy(xyOf(t.green)) / scale, frame.fromXy(xyOf(t.blue)) / scale});
}

QPainterPath closed(const QPolygonF &polygon)
{
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

//! The chart shows the published standards only.
bool isShownByTheChart(const QString &standard)
{
    const auto published = Model::standardGamuts();
    return std::any_of(published.begin(), published.end(),
        [name = standard.toStdString()](const Model::ColorGamut &gamut) { return gamut.colorGamutName() == name; });
}

QVector<PointMark> dots(const QVector<NamedPoint> &points)
{
    QVector<PointMark> marks;
    for (const NamedPoint &point : points) {
        marks.append({point.xy, Qt::white});
    }
    return marks;
}

QVector<PointMark> placed(QVector<PointMark> marks, const DiagramFrame &frame, double scale = 1.0)
{
    for (PointMark &mark : marks) {
        mark.xy = frame.fromXy(mark.xy) / scale;
    }
    return marks;
}

} // namespace

QPen GamutOverlay::pen(GamutPart::Role role, bool besideMeasured)
{
    return QPen(chartColor(role, besideMeasured), lineWidth, lineStyle(role), Qt::FlatCap);
}

QPen GamutOverlay::standardPen()
{
    return QPen(QColor(220, 220, 220), 1.2, Qt::DotLine, Qt::FlatCap);
}

QColor GamutOverlay::edgeColor(const QColor &lineColor)
{
    return lineColor.lightness() > 100 ? QColor(0, 0, 0, 130) : QColor(255, 255, 255, 130);
}

GamutOverlay::GamutOverlay(QGraphicsScene *scene)
    : m_scene(scene)
{
}

void GamutOverlay::clear()
{
    qDeleteAll(m_items);
    m_items.clear();
}

void GamutOverlay::take(QGraphicsItem *item, qreal z)
{
    item->setZValue(z);
    if (!item->scene()) {
        m_scene->addItem(item);
    }
    m_items.append(item);
}

void GamutOverlay::addLine(const QPainterPath &path, const QPen &pen, qreal z)
{
    const QPen edge(edgeColor(pen.color()), pen.widthF() + edgeWidth);
    take(m_scene->addPath(path, edge), z);
    take(m_scene->addPath(path, pen), z + 0.5);
}

void GamutOverlay::addMarks(const QVector<PointMark> &marks, const QPen &outline, double radius, qreal z)
{
    for (const PointMark &mark : marks) {
        take(m_scene->addEllipse(
                 mark.xy.x() - radius, mark.xy.y() - radius, 2 * radius, 2 * radius, outline, QBrush(mark.color)),
            z);
    }
}

void GamutOverlay::showOnBareDiagram(
    const DisplayDescription &description, Layers shown, Vertex selected, const DiagramFrame &frame)
{
    clear();
    const Layers layers = shown & layersOf(description);
    take(new Ground(layers, frame), GroundHeight);
    if (layers.testFlag(Layer::Standards)) {
        for (const QString &name : description.standards) {
            if (const auto standard = description.gamut(name)) {
                addLine(closed(triangle(*standard, frame)), standardPen(), StandardHeight);
            }
        }
    }
    const bool besideMeasured = description.gamut(description.measured).has_value();
    for (const GamutPart &part : gamutParts(description)) {
        if (layers.testFlag(layerOf(part.role))) {
            addLine(closed(triangle(part.gamut, frame)), pen(part.role, besideMeasured), GamutHeight + int(part.role));
        }
    }
    if (layers.testFlag(Layer::MeasurePoints)) {
        addMarks(placed(measureMarks(description.measurePoints), frame), measureMarkOutline, markRadius, MarkHeight);
    }
    if (layers.testFlag(Layer::ColorTemperaturePoints)) {
        addMarks(placed(dots(description.colorTemperaturePoints), frame), QPen(Qt::black), markRadius, MarkHeight);
    }
    if (layers.testFlag(Layer::CmyPoints)) {
        addMarks(placed(cmyMarks(positions(description.cmyPoints)), frame), cmyMarkOutline, markRadius, MarkHeight);
    }
    if (const auto target = description.gamut(description.target)) {
        // Round the chart's own handles, which marks may cover.
        QPainterPath rings;
        for (const Vertex vertex : allVertices) {
            const QPointF at = frame.fromXy(xyOf(targetAt(target->getTargets(), vertex)));
            rings.addEllipse(at, handleRadius, handleRadius);
            if (vertex == selected) {
                rings.addEllipse(at, selectionRadius, selectionRadius);
            }
        }
        addLine(rings, QPen(Qt::white, 1.5), HandleHeight);
    }
}

void GamutOverlay::showOnChart(
    const DisplayDescription &description, Layers shown, const DiagramFrame &frame, double scale)
{
    clear();
    const Layers layers = shown & layersOf(description);
    if (layers.testFlag(Layer::Standards)) {
        for (const QString &name : description.standards) {
            const auto standard = description.gamut(name);
            if (standard && !isShownByTheChart(name)) {
                const StandardStyle style = standardStyle(name);
                take(m_scene->addPolygon(triangle(*standard, frame, scale),
                         outlinePen(style.outline, chartOutlineWidth / scale), style.fill()),
                    StandardHeight);
            }
        }
    }
    const auto declared = description.gamut(description.declared);
    if (declared && layers.testFlag(Layer::Declared)) {
        take(m_scene->addPolygon(triangle(*declared, frame, scale),
                 outlinePen(chartColor(GamutPart::Role::Declared, false), chartOutlineWidth / scale)),
            GamutHeight);
    }
    const double radius = markSize / 2.0 / scale;
    if (layers.testFlag(Layer::ColorTemperaturePoints)) {
        addMarks(placed(dots(description.colorTemperaturePoints), frame, scale), QPen(Qt::black, 1.0 / scale),
            frame.size().height() * colorTemperatureDotSize / 2.0 / scale, MarkHeight);
    }
    if (layers.testFlag(Layer::MeasurePoints)) {
        addMarks(placed(measureMarks(description.measurePoints), frame, scale), QPen(measureMarkOutline, 1.0 / scale),
            radius, MarkHeight);
    }
}

} // namespace gamutviewer
