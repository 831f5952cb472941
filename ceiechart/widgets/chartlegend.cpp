// SPDX-FileCopyrightText: 2026 the ceiechart authors
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

QFlags<Qt::AlignmentFlag> ChartLegend::legendAlignament() const
{
    return d->alignment();
}

QString ChartLegend::showOriginalText() const
{
    return d->caption(LegendEntry::OriginalGamut);
}

QString ChartLegend::showTargetText() const
{
    return d->caption(LegendEntry::TargetGamut);
}

QString ChartLegend::targetPointText() const
{
    return d->caption(LegendEntry::TargetPoint);
}

QString ChartLegend::originalPointText() const
{
    return d->caption(LegendEntry::OriginalPoint);
}

QString ChartLegend::managedPointText() const
{
    return d->caption(LegendEntry::ManagedPoint);
}

void ChartLegend::setTargetPointText(const QString &text)
{
    d->setCaption(LegendEntry::TargetPoint, text);
}

void ChartLegend::setOriginalPointText(const QString &text)
{
    d->setCaption(LegendEntry::OriginalPoint, text);
}

void ChartLegend::setManagedPointText(const QString &text)
{
    d->setCaption(LegendEntry::ManagedPoint, text);
}

bool ChartLegend::isCommonGamutVisible() const
{
    return d->isShown(LegendEntry::CommonGamut);
}

bool ChartLegend::isTargetGamutVisible() const
{
    return d->isShown(LegendEntry::TargetGamut);
}

bool ChartLegend::isOriginalGamutVisible() const
{
    return d->isShown(LegendEntry::OriginalGamut);
}

bool ChartLegend::isTargetPointVisible() const
{
    return d->isShown(LegendEntry::TargetPoint);
}

bool ChartLegend::isOriginalPointVisible() const
{
    return d->isShown(LegendEntry::OriginalPoint);
}

bool ChartLegend::isManagedPointVisible() const
{
    return d->isShown(LegendEntry::ManagedPoint);
}

void ChartLegend::setCommonGamutVisible(bool visible)
{
    d->setVisible(LegendEntry::CommonGamut, visible);
}

void ChartLegend::setTargetGamutVisible(bool visible)
{
    d->setVisible(LegendEntry::TargetGamut, visible);
}

void ChartLegend::setOriginalGamutVisible(bool visible)
{
    d->setVisible(LegendEntry::OriginalGamut, visible);
}

void ChartLegend::setTargetPointVisible(bool visible)
{
    d->setVisible(LegendEntry::TargetPoint, visible);
}

void ChartLegend::setOriginalPointVisible(bool visible)
{
    d->setVisible(LegendEntry::OriginalPoint, visible);
}

void ChartLegend::setManagedPointVisible(bool visible)
{
    d->setVisible(LegendEntry::ManagedPoint, visible);
}

} // namespace ceiechart
