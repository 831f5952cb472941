// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/accentbutton.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace gamutviewer {

namespace {

constexpr double cornerRadius = 3.0;

} // namespace

void AccentButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    if (!isChecked()) {
        painter.drawComplexControl(QStyle::CC_ToolButton, option);
        return;
    }
    // Flat: styles lighten a button, and its text could not be read on that.
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QColor text = palette().color(group, QPalette::HighlightedText);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(group, QPalette::Highlight));
    painter.drawRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
    if (hasFocus()) {
        constexpr double inset = 2.5;
        painter.setPen(text);
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
    }
    painter.setFont(font());
    painter.setPen(text);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, this->text());
}

} // namespace gamutviewer
