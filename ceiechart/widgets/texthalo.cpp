// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/texthalo_p.h>

#include <QPainter>
#include <QPixmap>

namespace ceiechart {

namespace {

constexpr int reach = 3; //!< of the halo, in logical pixels

} // namespace

TextHalo::TextHalo(QObject *parent)
    : QGraphicsEffect(parent)
{
}

void TextHalo::setColor(const QColor &color)
{
    m_color = color;
    update();
}

QRectF TextHalo::boundingRectFor(const QRectF &rect) const
{
    return rect.adjusted(-reach, -reach, reach, reach);
}

void TextHalo::draw(QPainter *painter)
{
    QPoint offset;
    const QPixmap text = sourcePixmap(Qt::DeviceCoordinates, &offset);
    if (text.isNull()) {
        return;
    }
    QPixmap halo = text;
    QPainter coloring(&halo);
    coloring.setCompositionMode(QPainter::CompositionMode_SourceIn);
    coloring.fillRect(halo.rect(), m_color);
    coloring.end();

    const QTransform transform = painter->worldTransform();
    painter->setWorldTransform(QTransform());
    for (int dy = -reach; dy <= reach; ++dy) {
        for (int dx = -reach; dx <= reach; ++dx) {
            if (dx * dx + dy * dy <= reach * reach) {
                painter->drawPixmap(offset + QPoint(dx, dy), halo);
            }
        }
    }
    painter->drawPixmap(offset, text);
    painter->setWorldTransform(transform);
}

} // namespace ceiechart
