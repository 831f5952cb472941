// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/chromasets.h>
#include <ceiechart/model/chartenums.h>
#include <ceiechart/scene/containment_p.h>
#include <ceiechart/scene/handlesizes_p.h>
#include <ceiechart/scene/targetediting.h>

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace ceiechart {

namespace {

constexpr double lensRadius = 48.0; // scene pixels
constexpr double lensMagnification = 4.0;
constexpr double lensDistance = 72.0; // from the handle's centre to the lens's

//! Black under white: an outline that shows on every colour of the diagram.
void strokeLegibly(QPainter *painter, const QPainterPath &path)
{
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(Qt::black, 3));
    painter->drawPath(path);
    painter->setPen(QPen(Qt::white, 1));
    painter->drawPath(path);
}

QPainterPath circle(const QPointF &centre, double radius)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

//! Four ticks round \a centre that leave the middle free.
QPainterPath crosshair(const QPointF &centre, double from, double to)
{
    QPainterPath path;
    for (const QPointF &direction : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
        path.moveTo(centre + direction * from);
        path.lineTo(centre + direction * to);
    }
    return path;
}

} // namespace

void TargetEditing::DrawCenterEllipse(QPainter *painter)
{
    if (!hasTarget()) {
        return;
    }
    // refreshArea() may have cleared the white since: the handle stays where the white was.
    if (!targetPoints().whitePos().isNull()) {
        m_centreHandleChroma = targetPoints().whitePos();
    }
    if (m_centreHandleChroma.isNull()) {
        return;
    }
    m_centreHandlePoint = toScene(m_centreHandleChroma);
    m_centreHandleDrawn = true;

    const double radius = std::max(handleSide(centreHandleSize, m_zoom), 0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    QPainterPath sign = circle(m_centreHandlePoint, radius);
    sign.addPath(crosshair(m_centreHandlePoint, radius / 3, radius));
    strokeLegibly(painter, sign);
    painter->restore();

    const PointF shown = narrowed(m_centreHandleChroma);
    m_handleTemperature = 0;
    ChromaSets::GetColorTemperatureNew(double(shown.x), double(shown.y), m_handleTemperature);
    reportColorTemperature(m_handleTemperature);
}

bool TargetEditing::IsMagnifyEllispse(QPainter *painter)
{
    if (!m_magnifier || !hasTarget() || m_picture.isNull() || m_backgroundTarget.isEmpty()) {
        return false;
    }
    const QPointF handle = whiteHandlePosition();
    // Towards the middle of the picture, where there is room for the lens.
    const QPointF middle = m_backgroundTarget.center();
    const QPointF lens = handle
        + QPointF(handle.x() < middle.x() ? lensDistance : -lensDistance,
            handle.y() < middle.y() ? lensDistance : -lensDistance);

    const double scaleX = m_picture.size().width() / m_backgroundTarget.width();
    const double scaleY = m_picture.size().height() / m_backgroundTarget.height();
    const double reach = lensRadius / lensMagnification;
    const QPointF seen = handle - m_backgroundTarget.topLeft();
    const QRectF source(
        (seen.x() - reach) * scaleX, (seen.y() - reach) * scaleY, 2 * reach * scaleX, 2 * reach * scaleY);

    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, true);
    const QPainterPath rim = circle(lens, lensRadius);
    painter->setClipPath(rim, Qt::IntersectClip);
    painter->fillPath(rim, Qt::black);
    m_picture.drawPart(
        painter, QRectF(lens.x() - lensRadius, lens.y() - lensRadius, 2 * lensRadius, 2 * lensRadius), source);
    strokeLegibly(painter, crosshair(lens, 4, 12));
    painter->restore();

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    strokeLegibly(painter, rim);
    painter->restore();
    return true;
}

void TargetEditing::DrawOtherPoint(QPainter *painter)
{
    const double radius = std::max(handleSide(centreHandleSize, m_zoom), 0) / 2.0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    for (int i = 0; i < m_otherPoints.size(); ++i) {
        const QColor color = i < m_otherPointColors.size() ? m_otherPointColors.at(i) : QColor(Qt::white);
        const QPainterPath mark = circle(toScene(m_otherPoints.at(i)), radius);
        strokeLegibly(painter, mark);
        painter->fillPath(mark, color.isValid() ? color : QColor(Qt::white));
    }
    painter->restore();
}

void TargetEditing::DrawEllipseSignPosition(QPainter *painter)
{
    if (!hasTarget() || m_selectedVertex == NewCEIE::ColorAreaNone) {
        return;
    }
    const TrianglePoint &target = targetPoints();
    const QPointF chroma = m_selectedVertex == NewCEIE::ColorAreaRed ? target.redPos()
        : m_selectedVertex == NewCEIE::ColorAreaGreen                ? target.greenPos()
                                                                     : target.bluePos();
    const QPointF shown = toDiagram(chroma);
    const QString text = QStringLiteral("(%1, %2)").arg(round(shown.x())).arg(round(shown.y()));

    painter->save();
    const QFont font(QStringLiteral("Arial"), 9);
    painter->setFont(font);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing, true);

    // Beside the handle, on the side where the picture has room, clear of it at every zoom.
    const QFontMetrics metrics(font);
    const QSizeF box(metrics.horizontalAdvance(text) + 8, metrics.height() + 4);
    const double clearance = std::max(handleSide(vertexHandleSize, m_zoom), 0) / 2.0 + 6;
    const QPointF handle = toScene(chroma);
    const bool roomAtRight = handle.x() + clearance + box.width() <= m_imageWidth;
    const QRectF place(QPointF(roomAtRight ? handle.x() + clearance : handle.x() - clearance - box.width(),
                           handle.y() - box.height() / 2),
        box);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(0, 0, 0, 180));
    painter->drawRoundedRect(place, 3, 3);
    painter->setPen(Qt::white);
    painter->drawText(place, Qt::AlignCenter, text);
    painter->restore();
}

} // namespace ceiechart
