// SPDX-License-Identifier: MIT
#include "window/lenspage.h"

#include "drawing/lenswidget.h"
#include "editing/document.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace gamutviewer {

LensPage::LensPage(Document *document, QWidget *parent)
    : Page(document, parent)
{
    auto *layout = new QVBoxLayout(this);
    auto *row = new QHBoxLayout;
    layout->addLayout(row);
    m_lens = new LensWidget(this);
    const auto addButton = [&](const QString &text, const QString &explanation) {
        auto *button = new QToolButton(this);
        button->setText(text);
        button->setToolTip(explanation);
        button->setAccessibleName(explanation);
        button->setFocusPolicy(Qt::TabFocus);
        row->addWidget(button);
        return button;
    };
    connect(addButton(QStringLiteral("+"), tr("Zoom in (+)")), &QToolButton::clicked, m_lens,
        [this] { m_lens->zoom(0.8); });
    connect(addButton(QStringLiteral("−"), tr("Zoom out (−)")), &QToolButton::clicked, m_lens,
        [this] { m_lens->zoom(1.25); });
    connect(addButton(tr("All"), tr("Show all white points (0)")), &QToolButton::clicked, m_lens, &LensWidget::showAll);
    row->addStretch();
    auto *explanation = new QLabel(tr("Rings: Δu′v′ 0.001, 0.003, 0.005"), this);
    explanation->setToolTip(
        tr("Distance from the target's white point. The dotted line joins its positions before the last edits."));
    row->addWidget(explanation);
    layout->addWidget(m_lens, 1);
    setFocusProxy(m_lens);
    connect(m_lens, &LensWidget::pointedAt, this, &Page::pointedAt);
}

void LensPage::refresh()
{
    m_lens->setWhites(gamutParts(document()->description()), document()->whiteTrail());
}

} // namespace gamutviewer
