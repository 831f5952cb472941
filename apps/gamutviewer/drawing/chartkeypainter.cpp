// SPDX-License-Identifier: MIT
#include "drawing/chartkeypainter.h"

#include "drawing/diagrampainter.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr int fontSizes[] = {13, 11, 9, 7}; // pixels
constexpr double margin = 8.0; // to the edge of the picture
constexpr double wavelengthRoom = 44.0; // outside of the diagram's edge

//! What follows from the size of the letters.
struct KeyLook {
    explicit KeyLook(int fontSize)
        : lineHeight(fontSize * 1.5)
        , sample(fontSize * 2.8, fontSize * 1.15)
        , gap(fontSize * 0.5)
    {
        font.setPixelSize(fontSize);
    }

    QSizeF size(const QVector<KeyEntry> &entries) const
    {
        const QFontMetricsF metrics(font);
        double widest = 0.0;
        for (const KeyEntry &entry : entries) {
            widest = std::max(widest, metrics.horizontalAdvance(entry.name));
        }
        return QSizeF(sample.width() + gap + widest + 2.0, lineHeight * entries.size());
    }

    QFont font;
    double lineHeight;
    QSizeF sample;
    double gap;
};

struct KeyPlace {
    int fontSize = 0;
    QRectF place;
};

KeyPlace findPlace(const QVector<KeyEntry> &entries, const DiagramFrame &frame)
{
    if (entries.isEmpty()) {
        return {};
    }
    const QPolygonF diagram = spectralLocus(frame);
    const double axis = frame.fromPoint(QPointF()).y();
    const double axisTitle = frame.size().height() * 0.05;
    for (const int fontSize : fontSizes) {
        const QSizeF size = KeyLook(fontSize).size(entries);
        const double left = frame.size().width() - margin - size.width();
        for (const double top : {margin, axis - axisTitle - size.height()}) {
            const QRectF place(QPointF(left, top), size);
            const QRectF room
                = place.adjusted(-wavelengthRoom, top > margin ? -wavelengthRoom : 0.0, 0.0, wavelengthRoom);
            const bool isInside = left >= 0.0 && top >= margin && place.bottom() < axis;
            if (isInside && diagram.intersected(room).isEmpty()) {
                return {fontSize, place};
            }
        }
    }
    return {};
}

} // namespace

QRectF chartKeyPlace(const QVector<KeyEntry> &entries, const DiagramFrame &frame)
{
    return findPlace(entries, frame).place;
}

void paintChartKey(QPainter &painter, const QVector<KeyEntry> &entries, const DiagramFrame &frame)
{
    const auto [fontSize, place] = findPlace(entries, frame);
    if (place.isEmpty()) {
        return;
    }
    const KeyLook look(fontSize);
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setFont(look.font);
    double top = place.top();
    for (const KeyEntry &entry : entries) {
        const double sampleTop = top + (look.lineHeight - look.sample.height()) / 2.0;
        paintKeySample(painter, QRectF(QPointF(place.left(), sampleTop), look.sample), entry);
        const double nameLeft = place.left() + look.sample.width() + look.gap;
        painter.setPen(Qt::white);
        painter.drawText(QRectF(nameLeft, top, place.right() - nameLeft + 1.0, look.lineHeight),
            Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, entry.name);
        top += look.lineHeight;
    }
    painter.restore();
}

} // namespace gamutviewer
