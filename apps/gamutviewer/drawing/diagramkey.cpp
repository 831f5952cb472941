// SPDX-License-Identifier: MIT
#include "drawing/diagramkey.h"

#include "drawing/gamutcolors.h"
#include "drawing/gamutoverlay.h"
#include "drawing/pointmarks.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr QSize sampleSize(36, 14);
constexpr int nameGap = 6;
constexpr int entryGap = 16;

QString text(const char *source)
{
    return QCoreApplication::translate("gamutviewer", source);
}

KeyEntry lineEntry(const QString &name, const QPen &pen, KeyStyle style)
{
    KeyEntry entry;
    entry.name = name;
    entry.pen = pen;
    if (style == KeyStyle::Overlay) {
        entry.edge = GamutOverlay::edgeColor(pen.color());
    }
    return entry;
}

KeyEntry discEntry(const QString &name, const QColor &outline, const QColor &fill)
{
    KeyEntry entry;
    entry.name = name;
    entry.shape = KeyEntry::Shape::Disc;
    entry.pen = QPen(outline, 1.0);
    entry.fill = fill;
    return entry;
}

KeyEntry areaEntry(const QString &name, const QPen &pen, const QBrush &fill)
{
    KeyEntry entry;
    entry.name = name;
    entry.shape = KeyEntry::Shape::Area;
    entry.pen = pen;
    entry.fill = fill;
    return entry;
}

KeyEntry commonAreaEntry()
{
    QLinearGradient colors(0.0, 0.0, 1.0, 0.0);
    colors.setCoordinateMode(QGradient::ObjectMode);
    colors.setColorAt(0.0, QColor(80, 80, 255));
    colors.setColorAt(0.5, QColor(80, 230, 120));
    colors.setColorAt(1.0, QColor(255, 90, 80));
    return areaEntry(text(QT_TRANSLATE_NOOP("gamutviewer", "Common area")), Qt::NoPen, colors);
}

KeyEntry standardsEntry(KeyStyle style)
{
    const QString name = text(QT_TRANSLATE_NOOP("gamutviewer", "Standards"));
    if (style == KeyStyle::Overlay) {
        return lineEntry(name, GamutOverlay::standardPen(), style);
    }
    // Of those in a picture the plainest.
    const StandardStyle standard = standardStyle(QStringLiteral("Rec.2020"));
    return areaEntry(name, QPen(standard.outline, 2.0), standard.fill());
}

} // namespace

QVector<KeyEntry> keyEntries(const DisplayDescription &description, Layers shown, KeyStyle style)
{
    const Layers layers = shown & layersOf(description);
    const bool besideMeasured = description.gamut(description.measured).has_value();
    QVector<KeyEntry> entries;
    for (const GamutPart &part : gamutParts(description)) {
        if (layers.testFlag(layerOf(part.role))) {
            const QPen pen = style == KeyStyle::Overlay ? GamutOverlay::pen(part.role, besideMeasured)
                                                        : QPen(chartColor(part.role, besideMeasured), 2.0);
            entries.append(lineEntry(part.roleName(), pen, style));
        }
    }
    if (layers.testFlag(Layer::Standards)) {
        entries.append(standardsEntry(style));
    }
    if (layers.testFlag(Layer::CommonArea)) {
        entries.append(commonAreaEntry());
    }
    if (layers.testFlag(Layer::MeasurePoints)) {
        entries.append(discEntry(
            text(QT_TRANSLATE_NOOP("gamutviewer", "Measured points")), measureMarkOutline, QColor(Qt::black)));
    }
    if (layers.testFlag(Layer::ColorTemperaturePoints)) {
        entries.append(
            discEntry(text(QT_TRANSLATE_NOOP("gamutviewer", "CCT points")), QColor(Qt::black), QColor(Qt::white)));
    }
    if (layers.testFlag(Layer::CmyPoints)) {
        entries.append(
            discEntry(text(QT_TRANSLATE_NOOP("gamutviewer", "CMY points")), cmyMarkOutline, QColor(Qt::cyan)));
    }
    return entries;
}

void paintKeySample(QPainter &painter, const QRectF &place, const KeyEntry &entry)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF left(place.left() + 2.0, place.center().y());
    const QPointF right(place.right() - 2.0, place.center().y());
    switch (entry.shape) {
    case KeyEntry::Shape::Line:
        if (entry.edge.isValid()) {
            painter.setPen(QPen(entry.edge, entry.pen.widthF() + GamutOverlay::edgeWidth, Qt::SolidLine, Qt::FlatCap));
            painter.drawLine(left, right);
        }
        painter.setPen(entry.pen);
        painter.drawLine(left, right);
        break;
    case KeyEntry::Shape::Area:
        painter.setPen(entry.pen);
        painter.setBrush(entry.fill);
        painter.drawRect(place.adjusted(4.0, 2.0, -4.0, -2.0));
        break;
    case KeyEntry::Shape::Disc: {
        const double radius = place.height() / 2.0 - 2.0;
        painter.setPen(entry.pen);
        painter.setBrush(entry.fill);
        painter.drawEllipse(place.center(), radius, radius);
        break;
    }
    }
    painter.restore();
}

DiagramKey::DiagramKey(QWidget *parent)
    : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAccessibleName(tr("Key"));
}

void DiagramKey::setEntries(const QVector<KeyEntry> &entries, const QColor &ground)
{
    m_entries = entries;
    m_ground = ground;
    QStringList names;
    for (const KeyEntry &entry : entries) {
        names.append(entry.name);
    }
    setAccessibleDescription(names.join(QStringLiteral(", ")));
    updateGeometry();
    update();
}

int DiagramKey::entryWidth(const KeyEntry &entry) const
{
    return sampleSize.width() + nameGap + fontMetrics().horizontalAdvance(entry.name);
}

int DiagramKey::lineHeight() const
{
    return std::max(sampleSize.height(), fontMetrics().height()) + 4;
}

int DiagramKey::lineWidth(const QVector<KeyEntry> &line) const
{
    int width = 0;
    for (const KeyEntry &entry : line) {
        width += entryWidth(entry) + entryGap;
    }
    return std::max(0, width - entryGap);
}

QVector<QVector<KeyEntry>> DiagramKey::lines(int width) const
{
    QVector<QVector<KeyEntry>> result;
    for (const KeyEntry &entry : m_entries) {
        if (result.isEmpty() || lineWidth(result.last()) + entryGap + entryWidth(entry) > width) {
            result.append(QVector<KeyEntry>());
        }
        result.last().append(entry);
    }
    return result;
}

int DiagramKey::heightForWidth(int width) const
{
    return int(lines(width).size()) * lineHeight();
}

QSize DiagramKey::sizeHint() const
{
    return QSize(lineWidth(m_entries), lineHeight());
}

QSize DiagramKey::minimumSizeHint() const
{
    int widest = 0;
    for (const KeyEntry &entry : m_entries) {
        widest = std::max(widest, entryWidth(entry));
    }
    return QSize(widest, lineHeight());
}

void DiagramKey::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    int top = 0;
    for (const QVector<KeyEntry> &line : lines(width())) {
        int left = std::max(0, (width() - lineWidth(line)) / 2);
        for (const KeyEntry &entry : line) {
            const QRect sample(QPoint(left, top + (lineHeight() - sampleSize.height()) / 2), sampleSize);
            if (m_ground.isValid()) {
                painter.setPen(Qt::NoPen);
                painter.setBrush(m_ground);
                painter.drawRoundedRect(sample, 2.0, 2.0);
            }
            paintKeySample(painter, sample, entry);
            painter.setPen(palette().color(QPalette::WindowText));
            painter.drawText(
                QRect(sample.right() + 1 + nameGap, top, fontMetrics().horizontalAdvance(entry.name) + 1, lineHeight()),
                Qt::AlignLeft | Qt::AlignVCenter, entry.name);
            left += entryWidth(entry) + entryGap;
        }
        top += lineHeight();
    }
}

} // namespace gamutviewer
