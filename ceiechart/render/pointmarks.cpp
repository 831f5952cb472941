// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/contrast_p.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/render/drawceipicture_p.h>

#include <QPainter>

namespace NewCEIE {

namespace {

/*!
 * \brief The colour at \a index; beyond the last one a default-constructed colour, which a solid brush paints opaque
 * black.
 */
template <std::size_t N>
QColor colorAt(const QColor (&colors)[N], int index)
{
    return index < int(N) ? colors[index] : QColor();
}

} // namespace

void DrawCEIPicture::Private::drawMeasurePoints(QPainter &painter) const
{
    const QColor colors[] = {QColor(255, 0, 0), QColor(0, 255, 0), QColor(0, 0, 255), QColor(255, 255, 255)};
    for (int i = 0; i < measureRectangles.size(); ++i) {
        painter.save();
        painter.setPen(drawn(QColor(255, 255, 255, 255), ceiechart::leastLineContrast));
        painter.setBrush(QBrush(colorAt(colors, i)));
        if (ceiechart::isFinite(measureRectangles.at(i))) {
            painter.drawEllipse(measureRectangles.at(i));
        }
        painter.restore();
    }
}

void DrawCEIPicture::drawCMYPoint(QPainter &painter)
{
    const QColor colors[]
        = {QColor(QStringLiteral("#00FFFF")), QColor(QStringLiteral("#FF00FF")), QColor(QStringLiteral("#FFFF00"))};
    for (int i = 0; i < own().cmyRectangles.size(); ++i) {
        const QRectF &rectangle = own().cmyRectangles.at(i);
        painter.save();
        painter.setPen(QColor(QStringLiteral("#FF00FF")));
        painter.setBrush(QBrush(colorAt(colors, i)));
        if (ceiechart::isFinite(rectangle.topLeft())) {
            painter.drawEllipse(QRectF(rectangle.x(), rectangle.y(), 16.0, 16.0));
        }
        painter.restore();
    }
}

} // namespace NewCEIE
