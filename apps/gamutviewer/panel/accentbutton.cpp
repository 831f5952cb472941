// SPDX-FileCopyrightText: 2026 the ceiechart authors
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
        // Styles keep what they paint by the palette: a new one every time would fill their cache.
        if (m_accentOf != palette().cacheKey()) {
            m_accentOf = palette().cacheKey();
            m_accent = palette();
            m_accent.setColor(QPalette::Button, palette().color(QPalette::Highlight));
            m_accent.setColor(QPalette::ButtonText, palette().color(QPalette::HighlightedText));
        }
        const QPalette::ColorGroup group = option.palette.currentColorGroup();
        option.palette = m_accent;
        option.palette.setCurrentColorGroup(group);
        // The style would darken it as one that is pressed.
        option.state &= ~(QStyle::State_On | QStyle::State_Sunken);
        option.state |= QStyle::State_Raised;
    }
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

} // namespace gamutviewer
