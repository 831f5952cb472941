// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/chartlegend.h>

#include <ceiechart/widgets/legendentries_p.h>

namespace ceiechart {

ChartLegend::ChartLegend(bool showPoint, QWidget *parent)
    : QFrame(parent)
    , d(std::make_unique<LegendEntries>(this, showPoint))
{
    setFrameShape(QFrame::NoFrame);
}

ChartLegend::~ChartLegend() = default;

void ChartLegend::setLegendAlignament(QFlags<Qt::AlignmentFlag> alignment)
{
    d->arrange(alignment);
}

void ChartLegend::setShowOriginalText(const QString &text)
{
    d->setCaption(LegendEntry::OriginalGamut, text);
}

void ChartLegend::setShowTargetText(const QString &text)
{
    d->setCaption(LegendEntry::TargetGamut, text);
}

void ChartLegend::setshowPointText(const QString &target, const QString &original, const QString &managed)
{
    d->setPointCaptions(target, original, managed);
}

} // namespace ceiechart
