// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/chromasets.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/scene/containment_p.h>
#include <ceiechart/scene/handlesizes_p.h>
#include <ceiechart/scene/targetscene_p.h>

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace ceiechart {

namespace {

constexpr double lensRadius = 48.0; //!< in scene pixels
constexpr double lensMagnification = 4.0;
constexpr double lensDistance = 72.0; //!< distance between the centres of handle and lens, in scene pixels

/*! \brief Draws a white line on a wider black one, which is visible on every colour of the diagram. */
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
    if (isFinite(centre)) {
        path.addEllipse(centre, radius, radius);
    }
    return path;
}

/*! \brief Four ticks around \a centre, between the distances \a from and \a to. */
QPainterPath crosshair(const QPointF &centre, double from, double to)
{
    QPainterPath path;
    if (!isFinite(centre)) {
        return path;
    }
    for (const QPointF &direction : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
        path.moveTo(centre + direction * from);
        path.lineTo(centre + direction * to);
    }
    return path;
}

} // namespace

void TargetScene::DrawCenterEllipse(QPainter *painter)
{
    if (!d->hasTarget()) {
        return;
    }
    // The handle remains at the last white point if refreshArea() has reset the white point since.
    if (!d->targetPoints().whitePos().isNull()) {
        d->centreHandleChroma = d->targetPoints().whitePos();
    }
    if (d->centreHandleChroma.isNull()) {
        return;
    }
    d->centreHandlePoint = d->toScene(d->centreHandleChroma);
    d->centreHandleDrawn = true;

    const double radius = std::max(handleSide(centreHandleSize, d->zoom), 0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    QPainterPath sign = circle(d->centreHandlePoint, radius);
    sign.addPath(crosshair(d->centreHandlePoint, radius / 3, radius));
    strokeLegibly(painter, sign);
    painter->restore();

    const PointF shown = narrowed(d->centreHandleChroma);
    d->handleTemperature = 0;
    ChromaSets::GetColorTemperatureNew(double(shown.x), double(shown.y), d->handleTemperature);
    d->reportColorTemperature(d->handleTemperature);
}

bool TargetScene::IsMagnifyEllispse(QPainter *painter)
{
    if (!d->magnifier || !d->hasTarget() || d->picture.isNull() || d->backgroundTarget.isEmpty()) {
        return false;
    }
    const QPointF handle = d->whiteHandlePosition();
    // The lens is drawn towards the middle of the picture, where there is room for it.
    const QPointF middle = d->backgroundTarget.center();
    const QPointF lens = handle
        + QPointF(handle.x() < middle.x() ? lensDistance : -lensDistance,
            handle.y() < middle.y() ? lensDistance : -lensDistance);

    const double scaleX = d->picture.size().width() / d->backgroundTarget.width();
    const double scaleY = d->picture.size().height() / d->backgroundTarget.height();
    const double reach = lensRadius / lensMagnification;
    const QPointF seen = handle - d->backgroundTarget.topLeft();
    const QRectF source(
        (seen.x() - reach) * scaleX, (seen.y() - reach) * scaleY, 2 * reach * scaleX, 2 * reach * scaleY);

    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, true);
    const QPainterPath rim = circle(lens, lensRadius);
    painter->setClipPath(rim, Qt::IntersectClip);
    painter->fillPath(rim, Qt::black);
    d->picture.drawPart(
        painter, QRectF(lens.x() - lensRadius, lens.y() - lensRadius, 2 * lensRadius, 2 * lensRadius), source);
    strokeLegibly(painter, crosshair(lens, 4, 12));
    painter->restore();

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    strokeLegibly(painter, rim);
    painter->restore();
    return true;
}

void TargetScene::DrawOtherPoint(QPainter *painter)
{
    const double radius = std::max(handleSide(centreHandleSize, d->zoom), 0) / 2.0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    for (int i = 0; i < d->otherPoints.size(); ++i) {
        const QColor color = i < d->otherPointColors.size() ? d->otherPointColors.at(i) : QColor(Qt::white);
        const QPainterPath mark = circle(d->toScene(d->otherPoints.at(i)), radius);
        strokeLegibly(painter, mark);
        painter->fillPath(mark, color.isValid() ? color : QColor(Qt::white));
    }
    painter->restore();
}

void TargetScene::DrawEllipseSignPosition(QPainter *painter)
{
    if (!d->hasTarget() || d->selectedVertex == Handle::None) {
        return;
    }
    const QPointF chroma = d->targetPosition(d->selectedVertex);
    const QPointF shown = d->toDiagram(chroma);
    const QString text = QStringLiteral("(%1, %2)").arg(round(shown.x())).arg(round(shown.y()));

    painter->save();
    const QFont font(QStringLiteral("Arial"), 9);
    painter->setFont(font);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing, true);

    // The label is drawn beside the handle, on the side where the picture has room, and does not cover it at any zoom.
    const QFontMetrics metrics(font);
    const QSizeF box(metrics.horizontalAdvance(text) + 8, metrics.height() + 4);
    const double clearance = std::max(handleSide(vertexHandleSize, d->zoom), 0) / 2.0 + 6;
    const QPointF handle = d->toScene(chroma);
    if (!isFinite(handle)) {
        painter->restore();
        return;
    }
    const bool roomAtRight = handle.x() + clearance + box.width() <= d->imageWidth;
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
