// SPDX-License-Identifier: MIT
#include "panel/verdict.h"

#include "display/wallassessment.h"
#include "editing/document.h"
#include "editing/targetsession.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace gamutviewer {

namespace {

constexpr int vertexRole = Qt::UserRole;
constexpr int shownLines = 6; // of text; the others are scrolled to

} // namespace

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
    m_verdict->setTextFormat(Qt::PlainText);
    m_verdict->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_verdict->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(m_verdict);
    m_lines = new QListWidget(this);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    m_lines->setFont(small);
    m_lines->setFrameShape(NoFrame);
    m_lines->setWordWrap(true);
    m_lines->setTextElideMode(Qt::ElideNone);
    m_lines->setResizeMode(QListView::Adjust);
    m_lines->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_lines->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_lines->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_lines->setAccessibleName(tr("Grounds of the verdict"));
    m_lines->setAccessibleDescription(tr("Return shows the mark of a line on the diagram"));
    // Always as high: what is below must not jump in the middle of a drag.
    m_lines->setFixedHeight(shownLines * QFontMetrics(small).lineSpacing() + 4);
    QPalette flat = m_lines->palette();
    flat.setColor(QPalette::Base, palette().color(QPalette::Window));
    m_lines->setPalette(flat);
    layout->addWidget(m_lines);
    m_fit = new QPushButton(tr("&Move inside the original"), this);
    m_fit->setToolTip(tr("Moves each primary that lies outside to the nearest colour that the display can show"));
    layout->addWidget(m_fit, 0, Qt::AlignLeft);
    connect(m_fit, &QPushButton::clicked, this, [this] {
        if (m_fitsWall) {
            m_session->fitToWall();
        } else {
            m_session->fitToDisplay();
        }
    });
    connect(m_lines, &QListWidget::itemClicked, this, &Verdict::pointOut);
    connect(m_lines, &QListWidget::itemActivated, this, &Verdict::pointOut);
    connect(session->document(), &Document::changed, this, &Verdict::refresh);
    connect(session, &TargetSession::tolerancesChanged, this, &Verdict::refresh);
    refresh();
}

QString Verdict::text() const
{
    QStringList lines(m_verdict->text());
    for (int row = 0; row < m_lines->count(); ++row) {
        lines.append(m_lines->item(row)->text());
    }
    return lines.join(QLatin1Char('\n'));
}

void Verdict::refresh()
{
    const QString before = text();
    show(m_session->assessment());
    if (text() != before) {
        // A screen reader says it as it changes.
        setAccessibleName(text());
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void Verdict::show(const Assessment &assessment)
{
    m_verdict->setText(judgementMark(assessment.judgement()) + QLatin1Char(' ') + assessment.headline());
    m_verdict->setToolTip(m_verdict->text());
    while (m_lines->count() > assessment.lines.size()) {
        delete m_lines->takeItem(m_lines->count() - 1);
    }
    // What fails is seen without scrolling.
    QVector<AssessmentLine> lines;
    for (const Judgement judgement : {Judgement::Fail, Judgement::NotKnown, Judgement::Pass}) {
        std::copy_if(assessment.lines.begin(), assessment.lines.end(), std::back_inserter(lines),
            [judgement](const AssessmentLine &line) { return line.judgement == judgement; });
    }
    for (int row = 0; row < lines.size(); ++row) {
        const AssessmentLine &line = lines.at(row);
        if (row == m_lines->count()) {
            m_lines->addItem(QString());
        }
        QListWidgetItem *item = m_lines->item(row);
        const QString text = judgementMark(line.judgement) + QLatin1Char(' ') + line.text;
        // Setting what is there already would lay the list out again, in every step of a drag.
        if (item->text() != text) {
            item->setText(text);
        }
        item->setData(vertexRole, line.vertex ? QVariant(int(*line.vertex)) : QVariant());
        item->setToolTip(line.mark.isEmpty() ? QString() : tr("On the diagram: %1").arg(line.mark));
    }
    const auto &description = m_session->document()->description();
    const auto exceeded = exceededDisplay(description);
    const auto into = exceeded ? exceeded : knownDisplay(description);
    // What the display's gamuts have nothing against, the cabinets of its wall may have.
    m_fitsWall = !exceeded && assessment.wall && (!into || assessment.wall->judgement == Judgement::Fail);
    m_fit->setText(m_fitsWall          ? tr("F&it target to the wall")
            : into && into->isMeasured ? tr("&Move inside the measured gamut")
                                       : tr("&Move inside the original"));
    m_fit->setEnabled(exceeded || (m_fitsWall && assessment.wall->judgement == Judgement::Fail));
}

void Verdict::pointOut(const QListWidgetItem *item)
{
    const QVariant vertex = item->data(vertexRole);
    if (vertex.isValid()) {
        m_session->pointOut(Vertex(vertex.toInt()));
    }
}

} // namespace gamutviewer
