// SPDX-License-Identifier: MIT
#include "panel/accentbutton.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace gamutviewer {

void AccentButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    if (isChecked()) {
        const QColor accent = palette().color(QPalette::Highlight);
        option.palette.setColor(QPalette::Button, accent);
        option.palette.setColor(QPalette::ButtonText, palette().color(QPalette::HighlightedText));
        // The style would darken it as one that is pressed.
        option.state &= ~(QStyle::State_On | QStyle::State_Sunken);
        option.state |= QStyle::State_Raised;
    }
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

} // namespace gamutviewer
