// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/verdict.h"

#include "display/wallassessment.h"
#include "editing/document.h"
#include "editing/targetsession.h"

#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace gamutviewer {

namespace {

constexpr int linesWithoutScrolling = 6;

} // namespace

Verdict::Verdict(TargetSession *session, QWidget *parent)
    : VerdictFrame(linesWithoutScrolling, parent)
    , m_session(session)
{
    lines()->setAccessibleName(tr("Grounds of the verdict"));
    lines()->setAccessibleDescription(tr("Return shows the mark of a line on the diagram"));
    m_fit = new QPushButton(tr("&Move inside the original"), this);
    m_fit->setToolTip(tr("Moves each primary that lies outside to the nearest colour that the display can show"));
    column()->addWidget(m_fit, 0, Qt::AlignLeft);
    connect(m_fit, &QPushButton::clicked, this, [this] {
        if (m_fitsWall) {
            m_session->fitToWall();
        } else {
            m_session->fitToDisplay();
        }
    });
    connect(
        this, &Verdict::chosen, this, [this](const QVariant &vertex) { m_session->pointOut(Vertex(vertex.toInt())); });
    connect(session->document(), &Document::changed, this, &Verdict::refresh);
    connect(session, &TargetSession::tolerancesChanged, this, &Verdict::refresh);
    refresh();
}

void Verdict::refresh()
{
    const Assessment &assessment = m_session->assessment();
    // What fails is seen without scrolling.
    QVector<VerdictLine> shown;
    for (const Judgement judgement : {Judgement::Fail, Judgement::NotKnown, Judgement::Pass}) {
        for (const AssessmentLine &line : assessment.lines) {
            if (line.judgement == judgement) {
                shown.append({judgementMark(judgement) + QLatin1Char(' ') + line.text,
                    line.vertex ? QVariant(int(*line.vertex)) : QVariant(),
                    line.mark.isEmpty() ? QString() : tr("On the diagram: %1").arg(line.mark)});
            }
        }
    }
    if (assessment.wall) {
        for (const WallLine &line : assessment.wall->lines) {
            if (line.isWarning) {
                shown.append({QStringLiteral("! ") + line.text, QVariant(), QString()});
            }
        }
    }
    showVerdict(assessment.judgement(), assessment.headline(), shown);
    const auto &description = m_session->document()->description();
    const auto exceeded = exceededDisplay(description);
    const auto into = exceeded ? exceeded : knownDisplay(description);
    // What the display's gamuts have nothing against, the cabinets of its wall may have.
    const bool offersWall = m_session->offersFitToWall();
    m_fitsWall = !exceeded && assessment.wall && (!into || offersWall);
    m_fit->setText(m_fitsWall          ? tr("F&it target to the wall")
            : into && into->isMeasured ? tr("&Move inside the measured gamut")
                                       : tr("&Move inside the original"));
    m_fit->setEnabled(exceeded || (m_fitsWall && offersWall));
}

} // namespace gamutviewer
