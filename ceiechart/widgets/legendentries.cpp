// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/legendentries_p.h>

#include <ceiechart/widgets/legendplacement_p.h>
#include <ceiechart/widgets/legendswatches_p.h>

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QStringList>
#include <QVBoxLayout>

namespace ceiechart {

namespace {

constexpr LegendEntry displayOrder[] = {LegendEntry::OriginalGamut, LegendEntry::TargetGamut, LegendEntry::CommonGamut,
    LegendEntry::TargetPoint, LegendEntry::OriginalPoint, LegendEntry::ManagedPoint};

bool isPoint(LegendEntry entry)
{
    return entry >= LegendEntry::TargetPoint;
}

QString writtenDownwards(const QString &text)
{
    return text.split(QString(), Qt::SkipEmptyParts).join(QLatin1Char('\n'));
}

} // namespace

LegendEntries::LegendEntries(QFrame *legend, bool withPoints)
    : m_legend(legend)
    , m_withPoints(withPoints)
{
    // A legend has no handlers of events of its own.
    legend->installEventFilter(this);
}

void LegendEntries::addGamuts(Translate translate, Qt::Alignment alignment)
{
    add(LegendEntry::CommonGamut, translate, alignment);
    add(LegendEntry::TargetGamut, translate, alignment);
    add(LegendEntry::OriginalGamut, translate, alignment);
}

void LegendEntries::addPoints(Translate translate, Qt::Alignment alignment)
{
    add(LegendEntry::TargetPoint, translate, alignment);
    add(LegendEntry::OriginalPoint, translate, alignment);
    add(LegendEntry::ManagedPoint, translate, alignment);
}

void LegendEntries::arrange(Qt::Alignment alignment)
{
    const bool wasBesideChart = m_besideChart;
    m_besideChart = standsBesideChart(alignment);
    m_alignment = alignment;

    // A widget does not accept a second layout.
    delete m_legend->layout();
    QBoxLayout *layout = nullptr;
    if (m_besideChart) {
        layout = new QVBoxLayout;
    } else {
        layout = new QHBoxLayout;
    }
    // A visible legend is laid out only if its layout is set before entries are added.
    m_legend->setLayout(layout);
    layout->setContentsMargins(8, 8, 0, 8);
    layout->setSpacing(8);

    for (const LegendEntry entry : displayOrder) {
        Labels &shown = labels(entry);
        if (!shown.caption || (isPoint(entry) && !m_withPoints)) {
            continue;
        }
        if (m_besideChart || wasBesideChart) {
            styleCaption(shown, m_besideChart);
        }
        if (layout->count() > 0) {
            layout->addSpacing(16);
        }
        layout->addWidget(shown.swatch, 0, Qt::AlignHCenter);
        layout->addWidget(shown.caption, 0, Qt::AlignHCenter);
    }
    layout->addStretch(0);
}

void LegendEntries::setVisible(LegendEntry entry, bool visible)
{
    if (const Labels *shown = created(entry)) {
        shown->caption->setVisible(visible);
        shown->swatch->setVisible(visible);
    }
}

bool LegendEntries::isShown(LegendEntry entry) const
{
    const Labels *shown = created(entry);
    return shown && !shown->caption->isHidden();
}

QString LegendEntries::caption(LegendEntry entry) const
{
    const Labels *shown = created(entry);
    if (!shown) {
        return QString();
    }
    return shown->verticalCaption.isNull() ? shown->caption->text() : shown->verticalCaption;
}

void LegendEntries::setCaption(LegendEntry entry, const QString &text)
{
    Labels &changed = labels(entry);
    if (changed.caption) {
        changed.caption->setText(text);
        changed.verticalCaption = QString();
        changed.translated = QString();
    }
}

void LegendEntries::setPointCaptions(const QString &target, const QString &original, const QString &managed)
{
    setCaption(LegendEntry::TargetPoint, target);
    setCaption(LegendEntry::OriginalPoint, original);
    setCaption(LegendEntry::ManagedPoint, managed);
}

bool LegendEntries::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_legend && event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    return false;
}

void LegendEntries::add(LegendEntry entry, Translate translate, Qt::Alignment alignment)
{
    m_translate = translate;
    const QString caption = translate(entry);
    Labels &made = labels(entry);
    made.swatch = new QLabel(m_legend);
    made.swatch->setPixmap(legendSwatch(entry));
    made.caption = new QLabel(m_legend);
    if (standsBesideChart(alignment)) {
        made.verticalCaption = caption;
    }
    made.translated = standsBesideChart(alignment) ? writtenDownwards(caption) : caption;
    made.caption->setText(made.translated);
}

void LegendEntries::retranslate()
{
    for (const LegendEntry entry : displayOrder) {
        Labels &shown = labels(entry);
        // A host can have changed the label itself.
        if (!shown.caption || shown.translated.isNull() || shown.caption->text() != shown.translated) {
            continue;
        }
        const QString caption = m_translate(entry);
        if (!shown.verticalCaption.isNull()) {
            shown.verticalCaption = caption;
        }
        write(shown, !shown.verticalCaption.isNull() && m_besideChart ? writtenDownwards(caption) : caption);
    }
}

void LegendEntries::write(Labels &labels, const QString &text)
{
    labels.caption->setText(text);
    if (!labels.translated.isNull()) {
        labels.translated = text;
    }
}

const LegendEntries::Labels *LegendEntries::created(LegendEntry entry) const
{
    const int index = static_cast<int>(entry);
    if (index < 0 || index >= static_cast<int>(m_labels.size())) {
        return nullptr;
    }
    const Labels &found = m_labels[static_cast<std::size_t>(index)];
    return found.caption ? &found : nullptr;
}

LegendEntries::Labels &LegendEntries::labels(LegendEntry entry)
{
    return m_labels[static_cast<std::size_t>(entry)];
}

void LegendEntries::styleCaption(Labels &labels, bool besideChart) const
{
    labels.caption->setWordWrap(besideChart);
    labels.caption->setAlignment(besideChart ? Qt::AlignHCenter | Qt::AlignTop : Qt::AlignLeft | Qt::AlignVCenter);
    if (!labels.verticalCaption.isNull()) {
        write(labels, besideChart ? writtenDownwards(labels.verticalCaption) : labels.verticalCaption);
    }
}

} // namespace ceiechart
