// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/closelook.h"

#include "display/valuetexts.h"
#include "display/wallassessmenttexts.h"
#include "editing/document.h"
#include "editing/targetsession.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

using ceiechart::DiagramLayer;
using ceiechart::DiagramViewport;

constexpr double leastReach = 0.004; // of a close look in x, y, on either side
constexpr double hitReach = 8.0; // pixels
constexpr int manyDots = 1500; // of which each is smaller

QColor dotColor(Vertex primary, ceiechart::DiagramGround ground)
{
    const bool isDark = ground == ceiechart::DiagramGround::Dark;
    switch (primary) {
    case Vertex::Red:
        return isDark ? QColor(0xff, 0x7b, 0x72) : QColor(0xc6, 0x28, 0x28);
    case Vertex::Green:
        return isDark ? QColor(0x66, 0xbb, 0x6a) : QColor(0x2e, 0x7d, 0x32);
    case Vertex::Blue:
    case Vertex::White:
        break;
    }
    return isDark ? QColor(0x64, 0xb5, 0xf6) : QColor(0x15, 0x65, 0xc0);
}

const Model::Target &primaryOf(const WallCabinet &cabinet, Vertex primary)
{
    return primary == Vertex::Red ? cabinet.red : primary == Vertex::Green ? cabinet.green : cabinet.blue;
}

bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

//! A dot as it is stamped: antialiased once, for any number of cabinets.
QPixmap stamp(const QColor &color, double radius, double ratio)
{
    const int side = int(std::ceil((2.0 * radius + 2.0) * ratio));
    QPixmap dot(side, side);
    dot.fill(Qt::transparent);
    dot.setDevicePixelRatio(ratio);
    QPainter painter(&dot);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QPointF(side, side) / (2.0 * ratio), radius, radius);
    return dot;
}

} // namespace

CloseLook::CloseLook(TargetSession *session, Vertex primary, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
    , m_primary(primary)
{
    setAccessibleName(tr("Close look at %1 of all cabinets").arg(ceiechart::gamutVertexName(primary)));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_diagram.setViewport(DiagramViewport(Model::Diagram::Cie1976, QSizeF(sizeHint())));
    connect(session, &TargetSession::selectedCabinetChanged, this, [this] { update(); });
}

//! Whether the dots are others than before.
bool CloseLook::takeDots()
{
    const DisplayWall &wall = m_session->document()->description().wall;
    QPolygonF dots;
    dots.reserve(int(wall.cabinets.size()));
    for (const WallCabinet &cabinet : wall.cabinets) {
        dots.append(xyOf(primaryOf(cabinet, m_primary)));
    }
    // Exactly: operator== of QPointF is fuzzy.
    const bool isSame = dots.size() == m_dots.size()
        && std::equal(dots.cbegin(), dots.cend(), m_dots.cbegin(),
            [](const QPointF &a, const QPointF &b) { return a.x() == b.x() && a.y() == b.y(); });
    if (!isSame) {
        m_dots = dots;
    }
    return !isSame;
}

void CloseLook::refresh()
{
    const Document *document = m_session->document();
    const auto ground = palette().color(QPalette::Base).lightnessF() < 0.5 ? ceiechart::DiagramGround::Dark
                                                                           : ceiechart::DiagramGround::Light;
    ceiechart::DiagramContent content;
    content.colors = ceiechart::HorseshoeColors::None;
    content.ground = ground;
    content.layers = DiagramLayer::Locus | DiagramLayer::Grid | DiagramLayer::Targets;
    const auto target = document->target();
    if (target) {
        content.gamuts.append({*target, ceiechart::GamutRole::Target});
    }
    if (ground != m_diagram.content().ground) {
        m_cloud = QPixmap();
    }
    m_diagram.setContent(content);
    m_common.clear();
    if (const auto &wall = m_session->assessment().wall) {
        for (const Model::DiagramPoint &corner : wall->common.corners) {
            m_common.append(QPointF(corner.x, corner.y));
        }
    }
    const bool isAnother = takeDots();
    const bool isOutOfSight = target
        && !viewport().plot().contains(
            viewport().toPosition(xyOf(ceiechart::targetAt(target->getTargets(), m_primary))));
    if (isAnother || isOutOfSight || !document->isDragging()) {
        fit();
    }
    update();
}

void CloseLook::fit()
{
    QPolygonF shown;
    const auto add = [&shown](const QPointF &xy) {
        if (isFinite(xy)) {
            shown.append(xy);
        }
    };
    for (const QPointF &dot : qAsConst(m_dots)) {
        add(dot);
    }
    if (const auto target = m_session->document()->target()) {
        add(xyOf(ceiechart::targetAt(target->getTargets(), m_primary)));
    }
    if (shown.isEmpty()) {
        return;
    }
    QRectF bounds = shown.boundingRect();
    const double wider = std::max(leastReach - bounds.width() / 2.0, 0.0);
    const double higher = std::max(leastReach - bounds.height() / 2.0, 0.0);
    bounds.adjust(-wider, -higher, wider, higher);
    const DiagramViewport whole(Model::Diagram::Cie1976, QSizeF(size()));
    const DiagramViewport fitted
        = whole.fittedTo(QPolygonF({bounds.topLeft(), bounds.topRight(), bounds.bottomRight(), bounds.bottomLeft()}));
    if (fitted != viewport()) {
        m_diagram.setViewport(fitted);
        m_cloud = QPixmap();
    }
}

void CloseLook::drawCloud()
{
    const double ratio = devicePixelRatioF();
    m_cloud = QPixmap((QSizeF(size()) * ratio).toSize());
    m_cloud.setDevicePixelRatio(ratio);
    const ceiechart::DiagramPalette &colors = ceiechart::diagramPalette(m_diagram.content().ground);
    m_cloud.fill(colors.ground);
    QPainter painter(&m_cloud);
    painter.setRenderHint(QPainter::Antialiasing);
    m_diagram.paintScale(&painter);
    QColor color = dotColor(m_primary, m_diagram.content().ground);
    color.setAlphaF(m_dots.size() > manyDots ? 0.35 : 0.6);
    const double radius = m_dots.size() > manyDots ? 1.5 : 2.5;
    const QPixmap dot = stamp(color, radius, ratio);
    const QPointF middle = QPointF(dot.width(), dot.height()) / (2.0 * ratio);
    const QRectF all = QRectF(rect()).adjusted(-radius, -radius, radius, radius);
    for (const QPointF &xy : qAsConst(m_dots)) {
        const QPointF at = viewport().toPosition(xy);
        if (isFinite(at) && all.contains(at)) {
            painter.drawPixmap(at - middle, dot);
        }
    }
}

void CloseLook::paintEvent(QPaintEvent *)
{
    if (m_cloud.isNull() || m_cloud.size() != (QSizeF(size()) * devicePixelRatioF()).toSize()) {
        drawCloud();
    }
    const ceiechart::DiagramPalette &colors = ceiechart::diagramPalette(m_diagram.content().ground);
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_cloud);
    painter.setRenderHint(QPainter::Antialiasing);
    QPolygonF common;
    for (const QPointF &corner : qAsConst(m_common)) {
        common.append(viewport().toPosition(corner));
    }
    if (common.size() > 1 && std::all_of(common.cbegin(), common.cend(), isFinite)) {
        // What all can show: a thin line, dashed, that is no gamut's.
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colors.text, 1.2, Qt::DashLine));
        painter.drawPolygon(common);
    }
    m_diagram.paintEdited(&painter);
    const auto selected = m_session->selectedCabinet();
    if (selected && *selected < std::size_t(m_dots.size())) {
        const QPointF at = viewport().toPosition(m_dots.at(int(*selected)));
        if (isFinite(at) && QRectF(rect()).contains(at)) {
            painter.setPen(QPen(palette().color(QPalette::Base), 4.0));
            painter.setBrush(Qt::NoBrush);
            painter.drawEllipse(at, 5.0, 5.0);
            painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
            painter.setBrush(dotColor(m_primary, m_diagram.content().ground));
            painter.drawEllipse(at, 5.0, 5.0);
            const QString name = cabinetName(m_session->document()->description().wall, *selected);
            const QSizeF size = QFontMetricsF(font()).size(Qt::TextSingleLine, name);
            QRectF place(at + QPointF(9.0, -size.height() / 2.0), size);
            if (place.right() > width()) {
                place.moveRight(at.x() - 9.0);
            }
            painter.fillRect(place.adjusted(-2, 0, 2, 0), colors.casing);
            painter.setPen(colors.text);
            painter.drawText(place, Qt::AlignCenter, name);
        }
    }
    painter.setPen(colors.text);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    const QString title = ceiechart::gamutVertexName(m_primary);
    const QRectF corner(QPointF(6.0, 4.0), QFontMetricsF(bold).size(Qt::TextSingleLine, title));
    painter.fillRect(corner.adjusted(-2, -1, 2, 1), colors.casing);
    painter.drawText(corner, Qt::AlignCenter, title);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(colors.frame);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

std::optional<std::size_t> CloseLook::cabinetAt(const QPointF &position) const
{
    std::optional<std::size_t> nearest;
    double least = hitReach;
    for (int i = 0; i < m_dots.size(); ++i) {
        const QPointF way = viewport().toPosition(m_dots.at(i)) - position;
        const double distance = std::hypot(way.x(), way.y());
        if (distance < least) {
            least = distance;
            nearest = std::size_t(i);
        }
    }
    return nearest;
}

bool CloseLook::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const auto cabinet = cabinetAt(help->pos());
        const DisplayWall &wall = m_session->document()->description().wall;
        if (cabinet && *cabinet < wall.cabinets.size()) {
            QToolTip::showText(help->globalPos(), plainToolTip(cabinetName(wall, *cabinet)), this);
        } else {
            QToolTip::hideText();
        }
        return true;
    }
    return QWidget::event(event);
}

void CloseLook::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_cloud = QPixmap();
    fit();
}

void CloseLook::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        refresh();
    }
}

void CloseLook::mousePressEvent(QMouseEvent *event)
{
    const auto cabinet = event->button() == Qt::LeftButton ? cabinetAt(event->pos()) : std::nullopt;
    if (cabinet) {
        m_session->selectCabinet(cabinet);
    }
}

void CloseLook::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT pointedAt(viewport().toChromaticity(event->pos()));
}

void CloseLook::leaveEvent(QEvent *)
{
    Q_EMIT pointerLeft();
}

} // namespace gamutviewer
