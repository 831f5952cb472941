// SPDX-License-Identifier: MIT
#include "panel/verdict.h"

#include "display/valuetexts.h"
#include "editing/document.h"
#include "editing/targetsession.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace gamutviewer {

Verdict::Verdict(TargetSession *session, QWidget *parent)
    : QFrame(parent)
    , m_session(session)
{
    setFrameShape(StyledPanel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 6, 8, 6);
    layout->setSpacing(2);
    m_verdict = new QLabel(this);
    QFont bold = font();
    bold.setBold(true);
    m_verdict->setFont(bold);
    m_grounds = new QLabel(this);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    m_grounds->setFont(small);
    m_grounds->setMinimumHeight(2 * QFontMetrics(small).lineSpacing());
    m_grounds->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    for (QLabel *label : {m_verdict, m_grounds}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        layout->addWidget(label);
    }
    m_fit = new QPushButton(tr("&Move inside the original"), this);
    m_fit->setToolTip(tr("Moves each primary that lies outside to the nearest colour that the display can show"));
    layout->addWidget(m_fit, 0, Qt::AlignLeft);
    connect(m_fit, &QPushButton::clicked, session, &TargetSession::fitToOriginal);
    connect(session->document(), &Document::changed, this, &Verdict::refresh);
    refresh();
}

QString Verdict::text() const
{
    return m_verdict->text() + QLatin1Char('\n') + m_grounds->text();
}

void Verdict::refresh()
{
    const Document *document = m_session->document();
    // Always as many lines: what is below must not jump in the middle of a drag.
    QString verdict = tr("Nothing to compare");
    QString grounds;
    bool isOutside = false;
    if (!document->target() || document->targetIsDefault()) {
        grounds = tr("There is no target.");
    } else if (!document->original()) {
        grounds = tr("What the display can show is not known.");
    } else {
        QStringList outside;
        for (const Vertex primary : {Vertex::Red, Vertex::Green, Vertex::Blue}) {
            const double distance = m_session->distanceOutside(primary);
            if (distance > 0.0) {
                outside.append(
                    QStringLiteral("%1 %2").arg(ceiechart::gamutVertexName(primary), fixedText(distance, 4)));
            }
        }
        isOutside = !outside.isEmpty();
        verdict = isOutside ? tr("✗ The display cannot show the target") : tr("✓ The display can show the target");
        grounds = isOutside ? tr("Outside by Δu′v′: %1").arg(outside.join(tr(", ", "between names of colours")))
                            : tr("All primaries lie inside the original.");
    }
    const QString before = text();
    m_verdict->setText(verdict);
    m_grounds->setText(grounds);
    m_fit->setEnabled(isOutside);
    if (text() != before) {
        // A screen reader says it as it changes.
        setAccessibleName(text());
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace gamutviewer
