// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/legendentries_p.h>

#include <ceiechart/widgets/legendplacement_p.h>
#include <ceiechart/widgets/legendswatches_p.h>

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
}

void LegendEntries::addGamuts(
    const QString &common, const QString &target, const QString &original, Qt::Alignment alignment)
{
    add(LegendEntry::CommonGamut, common, alignment);
    add(LegendEntry::TargetGamut, target, alignment);
    add(LegendEntry::OriginalGamut, original, alignment);
}

void LegendEntries::addPoints(
    const QString &target, const QString &original, const QString &managed, Qt::Alignment alignment)
{
    add(LegendEntry::TargetPoint, target, alignment);
    add(LegendEntry::OriginalPoint, original, alignment);
    add(LegendEntry::ManagedPoint, managed, alignment);
}

void LegendEntries::arrange(Qt::Alignment alignment)
{
    const bool wasBesideChart = m_besideChart;
    m_besideChart = standsBesideChart(alignment);

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
        const Labels &shown = labels(entry);
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
    const int index = static_cast<int>(entry);
    if (index < 0 || index >= static_cast<int>(m_labels.size()) || !labels(entry).caption) {
        return;
    }
    labels(entry).caption->setVisible(visible);
    labels(entry).swatch->setVisible(visible);
}

void LegendEntries::setCaption(LegendEntry entry, const QString &text)
{
    Labels &changed = labels(entry);
    if (changed.caption) {
        changed.caption->setText(text);
        changed.verticalCaption = QString();
    }
}

void LegendEntries::setPointCaptions(const QString &target, const QString &original, const QString &managed)
{
    setCaption(LegendEntry::TargetPoint, target);
    setCaption(LegendEntry::OriginalPoint, original);
    setCaption(LegendEntry::ManagedPoint, managed);
}

void LegendEntries::add(LegendEntry entry, const QString &caption, Qt::Alignment alignment)
{
    Labels &made = labels(entry);
    made.swatch = new QLabel(m_legend);
    made.swatch->setPixmap(legendSwatch(entry));
    made.caption = new QLabel(caption, m_legend);
    if (standsBesideChart(alignment)) {
        made.verticalCaption = caption;
        made.caption->setText(writtenDownwards(caption));
    }
}

LegendEntries::Labels &LegendEntries::labels(LegendEntry entry)
{
    return m_labels[static_cast<std::size_t>(entry)];
}

void LegendEntries::styleCaption(const Labels &labels, bool besideChart) const
{
    labels.caption->setWordWrap(besideChart);
    labels.caption->setAlignment(besideChart ? Qt::AlignHCenter | Qt::AlignTop : Qt::AlignLeft | Qt::AlignVCenter);
    if (!labels.verticalCaption.isNull()) {
        labels.caption->setText(besideChart ? writtenDownwards(labels.verticalCaption) : labels.verticalCaption);
    }
}

} // namespace ceiechart
