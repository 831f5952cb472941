// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/closelook.h"

#include "display/valuetexts.h"
#include "display/wallassessment.h"
#include "display/wallassessmenttexts.h"
#include "editing/document.h"
#include "editing/targetsession.h"
#include "panel/ornothing.h"

#include <ceiechart/diagram/diagrampainter.h>

#include <QFocusEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

using ceiechart::DiagramLayer;
using ceiechart::DiagramViewport;

constexpr double leastReach = 0.004; // of a close look in x, y, on either side
constexpr double hitReach = 8.0; // pixels
constexpr int manyDots = 1500; // of which each is smaller
constexpr double handleRoom = 8.0; // pixels between a handle and the edge of the plot
constexpr double closer = 1.5; // how much closer a look has to get to be worth a move

QColor dotColor(Vertex vertex, ceiechart::DiagramGround ground)
{
    const bool isDark = ground == ceiechart::DiagramGround::Dark;
    switch (vertex) {
    case Vertex::Red:
        return isDark ? QColor(0xff, 0x7b, 0x72) : QColor(0xc6, 0x28, 0x28);
    case Vertex::Green:
        return isDark ? QColor(0x66, 0xbb, 0x6a) : QColor(0x2e, 0x7d, 0x32);
    case Vertex::White:
        return isDark ? QColor(0xb0, 0xb6, 0xbe) : QColor(0x60, 0x66, 0x70);
    case Vertex::Blue:
        break;
    }
    return isDark ? QColor(0x64, 0xb5, 0xf6) : QColor(0x15, 0x65, 0xc0);
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

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

CloseLook::CloseLook(TargetSession *session, Vertex vertex, QWidget *parent)
    : TargetView(session, parent)
    , m_vertex(vertex)
{
    const QString name = ceiechart::gamutVertexName(vertex);
    setAccessibleName(tr("Close look at %1 of all cabinets").arg(name));
    setAccessibleDescription(
        tr("The target's %1 is dragged with the mouse, or moved with the arrow keys; with Shift, slowly. A click on a "
           "dot selects its cabinet.")
            .arg(name));
    // A click on a dot leaves the focus where it is: arrow keys that go on through the wall must not move the target.
    setFocusPolicy(Qt::TabFocus);
    // One finger does what the mouse does, and two nothing.
    setAttribute(Qt::WA_AcceptTouchEvents, false);
    ungrabGesture(Qt::PinchGesture);
    setDiagram(Model::Diagram::Cie1976);
    connect(session, &TargetSession::selectedCabinetChanged, this, [this] { update(); });
    connect(this, &DiagramView::editingFinished, this, &CloseLook::refresh);
}

//! Not finite where it is not known.
QPointF CloseLook::dotOf(std::size_t cabinet) const
{
    const WallCabinet &of = session()->document()->description().wall.cabinets[cabinet];
    switch (m_vertex) {
    case Vertex::Red:
        return xyOf(of.red);
    case Vertex::Green:
        return xyOf(of.green);
    case Vertex::Blue:
        return xyOf(of.blue);
    case Vertex::White:
        break;
    }
    const auto &wall = session()->assessment().wall;
    const auto white = wall ? wall->cabinets[cabinet].white : of.white;
    return white ? xyOf(*white) : QPointF(qQNaN(), qQNaN());
}

//! Whether the dots are others than before.
bool CloseLook::takeDots()
{
    const DisplayWall &wall = session()->document()->description().wall;
    QPolygonF dots;
    dots.reserve(int(wall.cabinets.size()));
    for (std::size_t i = 0; i < wall.cabinets.size(); ++i) {
        dots.append(dotOf(i));
    }
    // Exactly: operator== of QPointF is fuzzy. What is not known is the same.
    const auto isSameValue = [](double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); };
    const bool isSame = dots.size() == m_dots.size()
        && std::equal(dots.cbegin(), dots.cend(), m_dots.cbegin(), [&isSameValue](const QPointF &a, const QPointF &b) {
               return isSameValue(a.x(), b.x()) && isSameValue(a.y(), b.y());
           });
    if (!isSame) {
        m_dots = dots;
        m_cloud = QPixmap();
    }
    return !isSame;
}

void CloseLook::refresh()
{
    const Document *document = session()->document();
    noteOutside();
    if (isEditing()) {
        followTarget();
    } else {
        ceiechart::DiagramContent shown;
        shown.colors = ceiechart::HorseshoeColors::None;
        shown.layers = DiagramLayer::Locus | DiagramLayer::Grid | DiagramLayer::Targets | DiagramLayer::Originals;
        shown.layers.setFlag(DiagramLayer::PlanckianLocus, m_vertex == Vertex::White);
        if (const auto original = document->original()) {
            shown.gamuts.append({*original, ceiechart::GamutRole::Original}); // the rules ask for it
        }
        if (const auto target = document->target()) {
            shown.gamuts.append({*target, ceiechart::GamutRole::Target});
        }
        setContent(shown);
        followSelection();
    }
    m_common.clear();
    if (const auto &wall = session()->assessment().wall) {
        for (const Model::DiagramPoint &corner : wall->common.corners) {
            m_common.append(QPointF(corner.x, corner.y));
        }
    }
    if (takeDots()) {
        fit();
    } else if (!isHeld()) { // nothing may move away under the hand
        const bool isInSight = viewport()
                                   .plot()
                                   .adjusted(handleRoom, handleRoom, -handleRoom, -handleRoom)
                                   .contains(viewport().toPosition(targetXy()));
        if (!isInSight || (!document->isDragging() && fitted().zoom() > closer * viewport().zoom())) {
            fit();
        }
    }
    update();
}

//! Whether the target is moved here, by mouse or keys.
bool CloseLook::isHeld() const
{
    return isEditing() || (hasFocus() && session()->document()->isDragging());
}

//! That of the target, which has no finite one where there is no target.
QPointF CloseLook::targetXy() const
{
    const auto target = session()->document()->target();
    return target ? xyOf(ceiechart::targetAt(target->getTargets(), m_vertex)) : QPointF(qQNaN(), qQNaN());
}

//! The view of all dots and of the target.
ceiechart::DiagramViewport CloseLook::fitted() const
{
    QPolygonF shown;
    std::copy_if(m_dots.cbegin(), m_dots.cend(), std::back_inserter(shown), isFinite);
    if (const QPointF target = targetXy(); isFinite(target)) {
        shown.append(target);
    }
    if (shown.isEmpty()) {
        return viewport();
    }
    QRectF bounds = shown.boundingRect();
    const double wider = std::max(leastReach - bounds.width() / 2.0, 0.0);
    const double higher = std::max(leastReach - bounds.height() / 2.0, 0.0);
    bounds.adjust(-wider, -higher, wider, higher);
    return viewport().fittedTo(
        QPolygonF({bounds.topLeft(), bounds.topRight(), bounds.bottomRight(), bounds.bottomLeft()}));
}

void CloseLook::fit()
{
    const DiagramViewport wanted = fitted();
    setZoomFactor(wanted.zoom());
    setCentre(wanted.centre());
}

void CloseLook::drawCloud()
{
    const double ratio = devicePixelRatioF();
    m_cloudViewport = viewport();
    m_cloudGround = content().ground;
    m_cloud = QPixmap((QSizeF(size()) * ratio).toSize());
    m_cloud.setDevicePixelRatio(ratio);
    m_cloud.fill(Qt::transparent);
    QPainter painter(&m_cloud);
    QColor color = dotColor(m_vertex, m_cloudGround);
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

void CloseLook::paintBelowTarget(QPainter *painter)
{
    if (m_cloud.isNull() || m_cloud.size() != (QSizeF(size()) * devicePixelRatioF()).toSize()
        || m_cloudViewport != viewport() || m_cloudGround != content().ground) {
        drawCloud();
    }
    const ceiechart::DiagramPalette &colors = ceiechart::diagramPalette(content().ground);
    painter->drawPixmap(0, 0, m_cloud);
    painter->setRenderHint(QPainter::Antialiasing);
    QPolygonF common;
    for (const QPointF &corner : qAsConst(m_common)) {
        common.append(viewport().toPosition(corner));
    }
    if (common.size() > 1 && std::all_of(common.cbegin(), common.cend(), isFinite)) {
        // What all can show: a thin line, dashed, that is no gamut's.
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(colors.text, 1.2, Qt::DashLine));
        painter->drawPolygon(common);
    }
    if (isHeld()) {
        paintSelected(painter); // not over the coordinates of what is moved
    }
    painter->setPen(colors.text);
    QFont bold = font();
    bold.setBold(true);
    painter->setFont(bold);
    const QString title = ceiechart::gamutVertexName(m_vertex);
    const QRectF corner(QPointF(6.0, 4.0), QFontMetricsF(bold).size(Qt::TextSingleLine, title));
    painter->fillRect(corner.adjusted(-2, -1, 2, 1), colors.casing);
    painter->drawText(corner, Qt::AlignCenter, title);
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(colors.frame);
    painter->drawRect(rect().adjusted(0, 0, -1, -1));
}

void CloseLook::paintEvent(QPaintEvent *event)
{
    TargetView::paintEvent(event);
    if (!isHeld()) {
        orNothing([this] {
            QPainter painter(this);
            painter.setRenderHint(QPainter::Antialiasing);
            paintSelected(&painter);
        });
    }
}

void CloseLook::paintSelected(QPainter *painter) const
{
    const auto selected = session()->selectedCabinet();
    if (!selected || *selected >= std::size_t(m_dots.size())) {
        return;
    }
    const QPointF at = viewport().toPosition(m_dots.at(int(*selected)));
    if (!isFinite(at) || !QRectF(rect()).contains(at)) {
        return;
    }
    const ceiechart::DiagramPalette &colors = ceiechart::diagramPalette(content().ground);
    painter->setPen(QPen(palette().color(QPalette::Base), 4.0));
    painter->setBrush(Qt::NoBrush);
    painter->drawEllipse(at, 5.0, 5.0);
    painter->setPen(QPen(palette().color(QPalette::Highlight), 2.0));
    painter->setBrush(dotColor(m_vertex, content().ground));
    painter->drawEllipse(at, 5.0, 5.0);
    const QRectF place = selectedLabel();
    painter->fillRect(place.adjusted(-2, 0, 2, 0), colors.casing);
    painter->setPen(colors.text);
    painter->setFont(font());
    painter->drawText(place, Qt::AlignCenter,
        QFontMetricsF(font()).elidedText(
            cabinetName(session()->document()->description().wall, *selected), Qt::ElideMiddle, place.width() + 1.0));
}

QRectF CloseLook::selectedLabel() const
{
    const auto selected = session()->selectedCabinet();
    const QPointF at = selected && *selected < std::size_t(m_dots.size())
        ? viewport().toPosition(m_dots.at(int(*selected)))
        : QPointF(qQNaN(), qQNaN());
    if (!isFinite(at) || !QRectF(rect()).contains(at)) {
        return QRectF();
    }
    const QRectF room = QRectF(rect()).adjusted(4.0, 2.0, -4.0, -2.0);
    const QFontMetricsF metrics(font());
    const QString name = metrics.elidedText(
        cabinetName(session()->document()->description().wall, *selected), Qt::ElideMiddle, room.width());
    const QSizeF size = metrics.size(Qt::TextSingleLine, name);
    QRectF place(at + QPointF(9.0, -size.height() / 2.0), size);
    const bool hidesHandle
        = place.adjusted(-handleRoom, -handleRoom, handleRoom, handleRoom).contains(viewport().toPosition(targetXy()));
    if (place.right() > room.right() || (hidesHandle && at.x() - 9.0 > size.width())) {
        place.moveRight(at.x() - 9.0);
    }
    if (place.left() < room.left()) {
        // Too long for either side: above the dot, or below it.
        place.moveLeft(std::clamp(at.x() - size.width() / 2.0, room.left(), room.right() - size.width()));
        place.moveBottom(at.y() - 9.0);
        if (place.top() < room.top()) {
            place.moveTop(at.y() + 9.0);
        }
    }
    place.moveTop(std::clamp(place.top(), room.top(), std::max(room.bottom() - size.height(), room.top())));
    return place;
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
    switch (event->type()) {
    case QEvent::ToolTip: {
        const auto *help = static_cast<QHelpEvent *>(event);
        const auto cabinet = cabinetAt(help->pos());
        const DisplayWall &wall = session()->document()->description().wall;
        if (cabinet && *cabinet < wall.cabinets.size()) {
            QToolTip::showText(help->globalPos(), plainToolTip(cabinetName(wall, *cabinet)), this);
        } else {
            QToolTip::hideText();
        }
        return true;
    }
    case QEvent::NativeGesture:
        return QWidget::event(event);
    case QEvent::ShortcutOverride: {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (isArrow(key)) {
            break;
        }
        if (key == Qt::Key_Escape
            && (m_pressed || session()->document()->isDragging() || session()->selectedCabinet())) {
            event->accept();
            return true;
        }
        return QWidget::event(event); // other keys do nothing here
    }
    default:
        break;
    }
    return TargetView::event(event);
}

void CloseLook::resizeEvent(QResizeEvent *event)
{
    TargetView::resizeEvent(event);
    if (!isEditing()) {
        fit();
    }
}

//! The reach of a handle's hit, as DiagramView has it.
bool CloseLook::isOnHandle(const QPointF &position) const
{
    const auto target = gamut(ceiechart::GamutRole::Target);
    return target
        && std::any_of(ceiechart::allGamutVertices.begin(), ceiechart::allGamutVertices.end(), [&](Vertex vertex) {
               const QPointF at = viewport().toPosition(xyOf(ceiechart::targetAt(target->getTargets(), vertex)));
               return viewport().plot().contains(at)
                   && std::hypot(at.x() - position.x(), at.y() - position.y()) <= handleReach;
           });
}

void CloseLook::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        return; // the view is not moved
    }
    if (isOnHandle(event->pos())) {
        m_pressed = event->pos();
        setFocus(Qt::MouseFocusReason);
        TargetView::mousePressEvent(event);
        return;
    }
    if (const auto cabinet = cabinetAt(event->pos())) {
        session()->selectCabinet(cabinet);
    }
}

void CloseLook::mouseReleaseEvent(QMouseEvent *event)
{
    const bool wasPressed = m_pressed && event->button() == Qt::LeftButton;
    const bool wasClick = wasPressed && !isEditing()
        && (event->pos() - *m_pressed).manhattanLength() <= QGuiApplication::styleHints()->startDragDistance();
    if (wasPressed) {
        m_pressed.reset();
    }
    TargetView::mouseReleaseEvent(event);
    // A handle must not hide the dots below it from the mouse.
    const auto cabinet = wasClick ? cabinetAt(event->pos()) : std::nullopt;
    if (cabinet) {
        session()->selectCabinet(cabinet);
    }
}

void CloseLook::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

void CloseLook::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

//! The arrow keys move what is selected, which has to be something that is seen here.
void CloseLook::selectSeenVertex()
{
    const auto target = gamut(ceiechart::GamutRole::Target);
    const auto selected = selectedVertex();
    const bool isSeen = target && selected
        && viewport().plot().contains(
            viewport().toPosition(xyOf(ceiechart::targetAt(target->getTargets(), *selected))));
    if (!isSeen) {
        setSelectedVertex(m_vertex);
    }
}

void CloseLook::keyPressEvent(QKeyEvent *event)
{
    if (isArrow(event->key())) {
        if (!session()->document()->isDragging()) {
            selectSeenVertex();
        }
        TargetView::keyPressEvent(event);
    } else if (event->key() == Qt::Key_Escape && (m_pressed || session()->document()->isDragging())) {
        TargetView::keyPressEvent(event);
    } else if (event->key() == Qt::Key_Escape && session()->selectedCabinet()) {
        session()->selectCabinet(std::nullopt);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void CloseLook::focusInEvent(QFocusEvent *event)
{
    selectSeenVertex();
    // By Tab, the view would go to the first of all handles.
    QFocusEvent other(event->type(), Qt::OtherFocusReason);
    TargetView::focusInEvent(&other);
}

bool CloseLook::focusNextPrevChild(bool next)
{
    return isEditing() || QWidget::focusNextPrevChild(next);
}

} // namespace gamutviewer
