// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/hintlabel.h"

#include <QEvent>

#include <algorithm>

namespace gamutviewer {

HintLabel::HintLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    // Its room does not depend on its text, which depends on its room.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void HintLabel::setForms(const QStringList &forms)
{
    m_forms = forms;
    setAccessibleName(forms.value(0));
    choose();
}

void HintLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    choose();
}

void HintLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        choose();
    }
}

void HintLabel::choose()
{
    const auto fits
        = [this](const QString &form) { return fontMetrics().horizontalAdvance(form) <= contentsRect().width(); };
    const auto found = std::find_if(m_forms.cbegin(), m_forms.cend(), fits);
    setText(found != m_forms.cend() ? *found : QString());
}

} // namespace gamutviewer
