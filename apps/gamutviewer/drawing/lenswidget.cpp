// SPDX-License-Identifier: MIT
#include "drawing/lenswidget.h"

#include "display/chromaticity.h"
#include "display/whitepoint.h"
#include "drawing/gamutdiagram.h"
#include "drawing/pointerevent.h"
#include "editing/targetedits.h"
#include "window/page.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

constexpr double ringRadii[] = {0.001, 0.003, 0.005};
constexpr double isotherms[] = {1500, 1800, 2000, 2200, 2500, 2700, 3000, 3200, 3500, 4000, 4500, 5000, 5500, 6000,
    6500, 7000, 7500, 8000, 9000, 9300, 10000, 12000, 15000, 20000, 30000};
constexpr double isothermDuv = 0.01; // of its ends
constexpr double closest = 0.002; // u', v'
constexpr double farthest = 0.2;
constexpr double room = 1.25; // around the whites
constexpr double zoomStep = 1.25;
constexpr double markSize = 6.0; // pixels from the middle

std::optional<QPointF> uvAtTemperature(double kelvin, double duv)
{
    const auto xy = chromaticityAt(kelvin, duv);
    return xy ? std::make_optional(uvFromXy(*xy)) : std::nullopt;
}

const QPolygonF &planckianLocus()
{
    static const QPolygonF locus = [] {
        QPolygonF points;
        for (double mired = 11.0; mired < 950.0; mired += 4.0) {
            if (const auto uv = uvAtTemperature(1e6 / mired, 0.0)) {
                points.append(*uv);
            }
        }
        return points;
    }();
    return locus;
}

struct Isotherm {
    double kelvin;
    QPointF below;
    QPointF above;
};

const QVector<Isotherm> &isothermLines()
{
    static const QVector<Isotherm> lines = [] {
        QVector<Isotherm> result;
        for (const double kelvin : isotherms) {
            const auto below = uvAtTemperature(kelvin, -isothermDuv);
            const auto above = uvAtTemperature(kelvin, isothermDuv);
            if (below && above) {
                result.append({kelvin, *below, *above});
            }
        }
        return result;
    }();
    return lines;
}

QPainterPath markShape(GamutPart::Role role, const QPointF &at)
{
    QPainterPath path;
    const double r = markSize;
    switch (role) {
    case GamutPart::Role::Target:
        path.addEllipse(at, r, r);
        path.moveTo(at - QPointF(r + 4, 0));
        path.lineTo(at + QPointF(r + 4, 0));
        path.moveTo(at - QPointF(0, r + 4));
        path.lineTo(at + QPointF(0, r + 4));
        break;
    case GamutPart::Role::Original:
        path.addRect(QRectF(at.x() - r, at.y() - r, 2 * r, 2 * r));
        break;
    case GamutPart::Role::Measured:
        path.addPolygon(QPolygonF({at - QPointF(0, r + 2), at + QPointF(r + 2, 0), at + QPointF(0, r + 2),
            at - QPointF(r + 2, 0), at - QPointF(0, r + 2)}));
        break;
    case GamutPart::Role::Declared:
        path.addPolygon(QPolygonF(
            {at + QPointF(0, -r - 2), at + QPointF(r + 1, r), at + QPointF(-r - 1, r), at + QPointF(0, -r - 2)}));
        break;
    }
    return path;
}

double distance(const QPointF &a, const QPointF &b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

constexpr int keyMarkWidth = 28; // pixels

double keyLineHeight(const QFontMetrics &metrics)
{
    return metrics.height() + 6;
}

QColor faded(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

} // namespace

LensWidget::LensWidget(QWidget *parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("White points, CIE 1976 u′, v′"));
}

const LensWidget::White *LensWidget::target() const
{
    const auto found = std::find_if(
        m_whites.begin(), m_whites.end(), [](const White &white) { return white.role == GamutPart::Role::Target; });
    return found == m_whites.end() ? nullptr : &*found;
}

void LensWidget::setWhites(const QVector<GamutPart> &parts, const QVector<QPointF> &trail)
{
    m_whites.clear();
    for (const GamutPart &part : parts) {
        const QPointF xy = xyOf(part.gamut.getTargets().white);
        if (isChromaticity(xy)) {
            m_whites.append({part.role, part.roleName(), xy, uvFromXy(xy)});
        }
    }
    m_trail.clear();
    for (const QPointF &xy : trail) {
        m_trail.append(uvFromXy(xy));
    }
    if (const White *white = target()) {
        m_centre = white->uv;
    } else if (!m_whites.isEmpty()) {
        m_centre = m_whites.first().uv;
    }
    if (m_showsAll) {
        showAll();
    }
    QStringList description;
    for (const White &white : qAsConst(m_whites)) {
        description.append(whiteText(white));
    }
    setAccessibleDescription(description.join(QStringLiteral("; ")));
    update();
}

void LensWidget::zoom(double factor)
{
    m_showsAll = false;
    m_reach = std::clamp(m_reach * factor, closest, farthest);
    update();
}

void LensWidget::showAll()
{
    m_showsAll = true;
    m_reach = 1.6 * ringRadii[2];
    for (const White &white : qAsConst(m_whites)) {
        m_reach = std::max(m_reach, room * distance(white.uv, m_centre));
    }
    m_reach = std::min(m_reach, farthest);
    update();
}

double LensWidget::pixelsPerUnit() const
{
    return std::min(width(), height()) / (2.0 * m_reach);
}

QPointF LensWidget::place(const QPointF &uv) const
{
    const double scale = pixelsPerUnit();
    return QPointF(width() / 2.0 + (uv.x() - m_centre.x()) * scale, height() / 2.0 - (uv.y() - m_centre.y()) * scale);
}

QPointF LensWidget::uvAt(const QPointF &position) const
{
    const double scale = pixelsPerUnit();
    return m_centre + QPointF(position.x() - width() / 2.0, height() / 2.0 - position.y()) / scale;
}

void LensWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().base());
    drawGrid(painter);
    drawAxisNames(painter);
    drawLocus(painter);
    drawIsotherms(painter);
    drawRings(painter);
    drawTrail(painter);
    drawWhites(painter);
    drawKey(painter);
    if (hasFocus()) {
        paintFocusFrame(painter, rect(), palette());
    }
}

void LensWidget::drawGrid(QPainter &painter) const
{
    // Lines at a round distance, some 80 pixels or more apart.
    double step = std::pow(10.0, std::ceil(std::log10(80.0 / pixelsPerUnit())));
    if (step * pixelsPerUnit() / 5 >= 80.0) {
        step /= 5;
    } else if (step * pixelsPerUnit() / 2 >= 80.0) {
        step /= 2;
    }
    const QColor text = palette().color(QPalette::Text);
    const QPointF least = uvAt(QPointF(0, height()));
    const QPointF most = uvAt(QPointF(width(), 0));
    const int textHeight = painter.fontMetrics().height();
    for (double u = std::ceil(least.x() / step) * step; u < most.x(); u += step) {
        const double x = place(QPointF(u, 0)).x();
        painter.setPen(faded(text, 30));
        painter.drawLine(QPointF(x, 0), QPointF(x, height()));
        painter.setPen(faded(text, 170));
        if (x > 24 && x < width() - 48) {
            painter.drawText(
                QRectF(x - 40, height() - textHeight - 2, 80, textHeight), Qt::AlignCenter, QString::number(u, 'f', 3));
        }
    }
    for (double v = std::ceil(least.y() / step) * step; v < most.y(); v += step) {
        const double y = place(QPointF(0, v)).y();
        painter.setPen(faded(text, 30));
        painter.drawLine(QPointF(0, y), QPointF(width(), y));
        // Clear of the numbers below.
        if (y > 2 * textHeight + 4 && y < height() - 2 * textHeight) {
            painter.setPen(faded(text, 170));
            painter.drawText(
                QRectF(4, y - textHeight, 80, textHeight), Qt::AlignLeft | Qt::AlignBottom, QString::number(v, 'f', 3));
        }
    }
}

void LensWidget::drawAxisNames(QPainter &painter) const
{
    painter.setPen(palette().color(QPalette::Text));
    const int textHeight = painter.fontMetrics().height();
    painter.drawText(QRectF(6, 4, 40, textHeight), Qt::AlignLeft, QStringLiteral("v′"));
    painter.drawText(
        QRectF(width() - 46, height() - textHeight - 2, 40, textHeight), Qt::AlignRight, QStringLiteral("u′"));
}

void LensWidget::drawLocus(QPainter &painter) const
{
    QPolygonF line;
    for (const QPointF &uv : planckianLocus()) {
        line.append(place(uv));
    }
    painter.setPen(QPen(palette().color(QPalette::Text), 1.6));
    painter.drawPolyline(line);
}

void LensWidget::drawIsotherms(QPainter &painter) const
{
    const QColor text = palette().color(QPalette::Text);
    const QFontMetrics metrics = painter.fontMetrics();
    painter.setPen(QPen(faded(text, 120), 1.0));
    for (const Isotherm &isotherm : isothermLines()) {
        painter.drawLine(place(isotherm.below), place(isotherm.above));
    }
    QVector<QRectF> taken = marked();
    const QRectF room = QRectF(rect()).adjusted(4, 2, -4, -2 - metrics.height());
    for (const Isotherm &isotherm : isothermLines()) {
        const QString label = tr("%1 K").arg(isotherm.kelvin, 0, 'f', 0);
        const QSizeF size(metrics.horizontalAdvance(label), metrics.height());
        // Beyond an end, clear of the lines beside it, or on the last part inside of a line that leaves the view.
        for (const double share : {1.0, 0.0, 0.9, 0.1}) {
            const QPointF above = place(isotherm.above);
            const QPointF below = place(isotherm.below);
            const QPointF at = below + (above - below) * share;
            const QPointF way = (share > 0.5 ? above - below : below - above) / distance(above, below);
            const QPointF centre = at + QPointF(way.x() * (size.width() / 2 + 5), way.y() * (size.height() / 2 + 3));
            const QRectF box(centre - QPointF(size.width(), size.height()) / 2, size);
            const bool isFree = std::none_of(taken.begin(), taken.end(),
                [&](const QRectF &other) { return other.adjusted(-6, 0, 6, 0).intersects(box); });
            if (isFree && room.contains(box)) {
                taken.append(box);
                painter.fillRect(box, faded(palette().color(QPalette::Base), 200));
                painter.setPen(faded(text, 220));
                painter.drawText(box, Qt::AlignCenter, label);
                break;
            }
        }
    }
}

//! Where no label must stand: key, whites, and the labels of the rings.
QVector<QRectF> LensWidget::marked() const
{
    QVector<QRectF> places{keyBox()};
    constexpr double reach = markSize + 4;
    for (const White &white : m_whites) {
        const QPointF at = place(white.uv);
        places.append(QRectF(at.x() - reach, at.y() - reach, 2 * reach, 2 * reach));
    }
    if (target()) {
        for (const double radius : ringRadii) {
            places.append(ringLabelBox(radius));
        }
    }
    return places;
}

QRectF LensWidget::ringLabelBox(double radius) const
{
    const QPointF centre = place(target()->uv);
    const double width = fontMetrics().horizontalAdvance(QStringLiteral("0.000")) + 4;
    return QRectF(centre.x() - width / 2, centre.y() + radius * pixelsPerUnit(), width, fontMetrics().height());
}

void LensWidget::drawRings(QPainter &painter) const
{
    const White *white = target();
    if (!white) {
        return;
    }
    const QPointF centre = place(white->uv);
    const QColor color = partPen(GamutPart::Role::Target, palette()).color();
    for (const double radius : ringRadii) {
        const double pixels = radius * pixelsPerUnit();
        painter.setPen(QPen(faded(color, 200), 1.0, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(centre, pixels, pixels);
        const QString label = QString::number(radius, 'f', 3);
        if (pixels > 1.6 * painter.fontMetrics().height()) {
            painter.setPen(palette().color(QPalette::Text));
            painter.fillRect(ringLabelBox(radius), faded(palette().color(QPalette::Base), 200));
            painter.drawText(ringLabelBox(radius), Qt::AlignHCenter | Qt::AlignTop, label);
        }
    }
}

void LensWidget::drawTrail(QPainter &painter) const
{
    const QColor color = partPen(GamutPart::Role::Target, palette()).color();
    for (int i = 0; i + 1 < m_trail.size(); ++i) {
        // The older, the fainter.
        const int alpha = 130 + 125 * (i + 1) / m_trail.size();
        painter.setPen(QPen(faded(color, alpha), 2.2, Qt::DotLine));
        painter.drawLine(place(m_trail.at(i)), place(m_trail.at(i + 1)));
        painter.setPen(Qt::NoPen);
        painter.setBrush(faded(color, alpha));
        painter.drawEllipse(place(m_trail.at(i)), 3.5, 3.5);
    }
}

void LensWidget::drawWhites(QPainter &painter) const
{
    for (const White &white : m_whites) {
        const QPainterPath mark = markShape(white.role, place(white.uv));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Base), 4.5));
        painter.drawPath(mark);
        QPen pen = partPen(white.role, palette());
        pen.setStyle(Qt::SolidLine);
        pen.setWidthF(2.0);
        painter.setPen(pen);
        painter.drawPath(mark);
    }
}

QString LensWidget::whiteText(const White &white)
{
    const auto temperature = colorTemperature(white.xy);
    return temperature ? tr("%1: %2, Duv %3").arg(white.name, temperatureText(*temperature), duvText(*temperature))
                       : tr("%1: no colour temperature").arg(white.name);
}

QStringList LensWidget::keyLines() const
{
    QStringList lines;
    const White *reference = target();
    for (const White &white : m_whites) {
        QString line = whiteText(white);
        if (reference && white.role != GamutPart::Role::Target) {
            line += tr(", Δu′v′ %1").arg(distance(white.uv, reference->uv), 0, 'f', 4);
        }
        lines.append(line);
    }
    return lines;
}

QRectF LensWidget::keyBox() const
{
    int widest = 0;
    const QStringList lines = keyLines();
    for (const QString &line : lines) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(line));
    }
    return QRectF(width() - widest - keyMarkWidth - 18, 8, widest + keyMarkWidth + 10,
        keyLineHeight(fontMetrics()) * lines.size() + 8);
}

void LensWidget::drawKey(QPainter &painter) const
{
    const QStringList lines = keyLines();
    if (lines.isEmpty()) {
        return;
    }
    const QRectF box = keyBox();
    const double lineHeight = keyLineHeight(fontMetrics());
    painter.setPen(faded(palette().color(QPalette::Text), 90));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(box, 4, 4);
    for (int i = 0; i < lines.size(); ++i) {
        const double y = box.top() + 4 + lineHeight * (i + 0.5);
        QPen pen = partPen(m_whites.at(i).role, palette());
        pen.setStyle(Qt::SolidLine);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        painter.save();
        painter.translate(box.left() + keyMarkWidth / 2.0, y);
        painter.scale(0.75, 0.75);
        painter.drawPath(markShape(m_whites.at(i).role, QPointF()));
        painter.restore();
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(QRectF(box.left() + keyMarkWidth, y - lineHeight / 2, box.width() - keyMarkWidth, lineHeight),
            Qt::AlignLeft | Qt::AlignVCenter, lines.at(i));
    }
}

void LensWidget::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT pointedAt(xyFromUv(uvAt(pointerPosition(*event))));
}

void LensWidget::wheelEvent(QWheelEvent *event)
{
    zoom(std::pow(zoomStep, -event->angleDelta().y() / 120.0));
    event->accept();
}

void LensWidget::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoom(1.0 / zoomStep);
        break;
    case Qt::Key_Minus:
        zoom(zoomStep);
        break;
    case Qt::Key_0:
        showAll();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace gamutviewer
