// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramsheet_p.h>
#include <ceiechart/diagram/diagramview_p.h>
#include <ceiechart/diagram/drawlist_p.h>
#include <ceiechart/diagram/polylines_p.h>
#include <ceiechart/diagram/textstyle_p.h>

#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

// All in logical pixels.
constexpr double radius = 7.0; // of a handle
constexpr double hoveredRadius = 8.5;
constexpr double lockedRadius = 5.0;
constexpr double crossReach = 12.0; // of the arms at the white
constexpr double labelPadding = 6.0;
constexpr double guideWidth = 1.5;
constexpr double guideRoom = 6.0; // round the plot, so that the ends of guides are not seen

constexpr int mostLabelTexts = 16; // that are kept: most are of one step of an edit only

double radiusOf(const DiagramOverlay::Handle &handle)
{
    return !handle.isMovable ? lockedRadius : handle.isHovered ? hoveredRadius : radius;
}

//! The shape of a handle: a circle, and a diamond with four arms for the white.
QPainterPath shapeOf(const DiagramOverlay::Handle &handle)
{
    const double r = radiusOf(handle);
    QPainterPath path;
    if (handle.vertex != GamutVertex::White) {
        path.addEllipse(handle.at, r, r);
        return path;
    }
    path.addPolygon(QPolygonF(QVector<QPointF>{handle.at - QPointF(0.0, r), handle.at + QPointF(r, 0.0),
        handle.at + QPointF(0.0, r), handle.at - QPointF(r, 0.0)}));
    path.closeSubpath();
    return path;
}

QPainterPath armsOf(const DiagramOverlay::Handle &handle)
{
    QPainterPath path;
    if (handle.vertex == GamutVertex::White) {
        const double r = radiusOf(handle);
        for (const QPointF &way : {QPointF(1.0, 0.0), QPointF(0.0, 1.0), QPointF(-1.0, 0.0), QPointF(0.0, -1.0)}) {
            path.moveTo(handle.at + way * r);
            path.lineTo(handle.at + way * crossReach);
        }
    }
    return path;
}

enum class Shape { Circle, Diamond, Plate };

//! What tells \a shape with further \a traits apart from others.
quint64 lookOf(Shape shape, const DiagramPalette &palette, unsigned traits = 0)
{
    // No two palettes have the same ground.
    return quint64(palette.ground.rgb()) << 32U | traits << 8U | unsigned(shape);
}

quint64 lookOf(const DiagramOverlay::Handle &handle, const DiagramPalette &palette)
{
    unsigned traits = 0;
    for (const bool trait : {handle.isMovable, handle.isSelected, handle.isHovered, handle.hasFocus}) {
        traits = traits << 1U | unsigned(trait);
    }
    return lookOf(handle.vertex == GamutVertex::White ? Shape::Diamond : Shape::Circle, palette, traits);
}

//! \a place moved by less than a pixel of the device, so that it begins at one: its edges are sharp then.
QRectF fromWholePixel(const QPainter &painter, const QRectF &place)
{
    const QTransform transform = painter.deviceTransform();
    const QPoint pixel = transform.map(place.topLeft()).toPoint();
    return QRectF(transform.inverted().map(QPointF(pixel)), place.size());
}

QFont boldOf(QFont font)
{
    font.setBold(true);
    return font;
}

} // namespace

LabelFonts::LabelFonts(const QFont &font, int dotsPerInch)
    : m_dotsPerInch(dotsPerInch)
    , m_first(boldOf(font), nullptr, 1.0, mostLabelTexts)
    , m_others(font, nullptr, 1.0, mostLabelTexts)
{
}

QRectF DiagramOverlay::bounds(const Handle &handle)
{
    return QRectF(handle.at.x() - handleExtent, handle.at.y() - handleExtent, 2.0 * handleExtent, 2.0 * handleExtent);
}

bool DiagramOverlay::Handle::operator==(const Handle &other) const
{
    return vertex == other.vertex && isExactly(at, other.at) && isMovable == other.isMovable
        && isSelected == other.isSelected && isHovered == other.isHovered && hasFocus == other.hasFocus;
}

QLineF DiagramOverlay::labelLine() const
{
    const QPointF at = handles.isEmpty() ? labelPlace.center() : handles.last().at;
    return QLineF(QPointF(std::clamp(at.x(), labelPlace.left(), labelPlace.right()),
                      std::clamp(at.y(), labelPlace.top(), labelPlace.bottom())),
        at);
}

bool DiagramOverlay::hasSameLabel(const DiagramOverlay &other) const
{
    return label == other.label
        && (label.isEmpty()
            || (isExactly(labelPlace.topLeft(), other.labelPlace.topLeft())
                && isExactly(labelPlace.bottomRight(), other.labelPlace.bottomRight())
                && isExactly(labelLine().p2(), other.labelLine().p2())));
}

QStringList DiagramOverlay::wrapped(const QStringList &lines, const LabelFonts &fonts, double width)
{
    QStringList result;
    for (int i = 0; i < lines.size(); ++i) {
        const TextStyle &style = fonts.ofLine(i);
        QString text = lines[i];
        text.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
        // Only the first line of all is bold: coordinates that do not fit stay in one.
        if (i == 0 || (!text.contains(QChar(QChar::LineSeparator)) && style.width(text) <= width)) {
            result.append(text.trimmed());
            continue;
        }
        QTextLayout layout(text, style.font());
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            result.append(text.mid(line.textStart(), line.textLength()).trimmed());
        }
        layout.endLayout();
    }
    return result;
}

QSizeF DiagramOverlay::labelSize(const QStringList &lines, const LabelFonts &fonts)
{
    double width = 0.0;
    for (int i = 0; i < lines.size(); ++i) {
        width = std::max(width, fonts.ofLine(i).width(lines[i]));
    }
    return QSizeF(std::ceil(width + 2.0 * labelPadding), std::ceil(fonts.lineHeight() * lines.size() + labelPadding));
}

void DiagramOverlay::paintHandle(QPainter &painter, const Handle &handle, const DiagramPalette &palette)
{
    const QColor line = DiagramPainter::gamutPen(GamutRole::Target).color();
    const QPainterPath shape = shapeOf(handle);
    const QPainterPath arms = armsOf(handle);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.casing, handleLine + 2.0));
    painter.drawPath(arms);
    painter.drawPath(shape);
    painter.setPen(QPen(line, handleLine));
    painter.drawPath(arms);
    painter.setBrush(handle.isMovable ? QColor(Qt::white) : palette.ground);
    painter.drawPath(shape);
    if (!handle.isMovable) {
        // Not only paler: a bar across says that it stays.
        const double r = lockedRadius * 0.7;
        painter.drawLine(handle.at - QPointF(r, r), handle.at + QPointF(r, r));
    }
    if (handle.isSelected) {
        painter.setBrush(Qt::NoBrush);
        const double width = handle.hasFocus ? handleLine : 1.0;
        painter.setPen(QPen(palette.casing, width + 2.0));
        painter.drawEllipse(handle.at, handleRing, handleRing);
        painter.setPen(QPen(palette.accent, width));
        painter.drawEllipse(handle.at, handleRing, handleRing);
    }
}

void DiagramOverlay::paintReadout(QPainter &painter, const DiagramPalette &palette) const
{
    if (readout.isEmpty()) {
        return;
    }
    // On whole pixels, and opaque: what is behind it need not be painted when only the numbers change.
    const QRect box = readoutPlace.toAlignedRect();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(box, palette.ground);
    // Letters are placed otherwise without it.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette.text);
    painter.drawText(box, Qt::AlignCenter, readout);
}

void DiagramOverlay::paint(QPainter &painter, const QRectF &plot, const DiagramPalette &palette,
    const LabelFonts &fonts, const QRegion &needed, ShapePictures &pictures) const
{
    if (!guides.isEmpty()) {
        painter.save();
        painter.setClipRect(plot, Qt::IntersectClip);
        painter.setBrush(Qt::NoBrush);
        const QPen line(palette.accent, guideWidth, Qt::DashLine, Qt::FlatCap);
        for (const QPolygonF &guide : guides) {
            if (guide.size() == 1) {
                const QRectF box(
                    guide.first().x() - guideReach, guide.first().y() - guideReach, 2.0 * guideReach, 2.0 * guideReach);
                painter.setPen(QPen(palette.casing, guideWidth + lineCasing));
                painter.drawRect(box);
                painter.setPen(line);
                painter.drawRect(box);
            } else {
                DrawList list;
                drawCased(list, guide, false, plot.adjusted(-guideRoom, -guideRoom, guideRoom, guideRoom), line,
                    palette.casing);
                list.paint(&painter, needed);
            }
        }
        painter.restore();
    }
    if (!label.isEmpty() && !handles.isEmpty()) {
        // From the label to the handle, short of both.
        const QLineF line = labelLine();
        const double length = line.length();
        if (length > handleExtent) {
            painter.setPen(QPen(palette.numbers, 1.0));
            painter.drawLine(line.p1(), line.p2() - (line.p2() - line.p1()) * (handleExtent / length));
        }
    }
    for (const Handle &handle : handles) {
        if (needed.intersects(bounds(handle).adjusted(-2.0, -2.0, 2.0, 2.0).toAlignedRect())) {
            pictures.paint(painter, lookOf(handle, palette), bounds(handle),
                [&](QPainter &to) { paintHandle(to, handle, palette); });
        }
    }
    if (!label.isEmpty() && needed.intersects(labelPlace.adjusted(-2.0, -2.0, 2.0, 2.0).toAlignedRect())) {
        paintLabel(painter, palette, fonts, pictures);
    }
    // To stroke it takes long even where the clip lets nothing of it through.
    if (showsFocusFrame && !needed.subtracted(plot.adjusted(3.0, 3.0, -3.0, -3.0).toRect()).isEmpty()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette.accent, 2.0));
        painter.drawRect(plot.adjusted(1.0, 1.0, -1.0, -1.0));
    }
}

void DiagramOverlay::paintLabel(
    QPainter &painter, const DiagramPalette &palette, const LabelFonts &fonts, ShapePictures &pictures) const
{
    const QRectF place = fromWholePixel(painter, labelPlace);
    pictures.paint(painter, lookOf(Shape::Plate, palette), place, [&](QPainter &to) {
        to.setPen(QPen(palette.frame, 1.0));
        to.setBrush(palette.ground);
        to.drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), 4.0, 4.0);
    });
    const bool isLeftToRight = direction == Qt::LeftToRight;
    double top = place.top() + labelPadding / 2.0;
    DrawList texts;
    for (int i = 0; i < label.size(); ++i) {
        const TextStyle &style = fonts.ofLine(i);
        const QPointF begin(
            isLeftToRight ? place.left() + labelPadding : place.right() - labelPadding - style.width(label[i]),
            top + (fonts.lineHeight() - style.height()) / 2.0 + style.ascent());
        texts.text(begin, label[i], style, i == 0 ? palette.text : palette.accent);
        top += fonts.lineHeight();
    }
    texts.paint(&painter);
}

} // namespace ceiechart
