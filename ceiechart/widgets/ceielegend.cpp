// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/ceielegend.h>

#include <ceiechart/widgets/legendentries_p.h>

namespace NewCEIE {

namespace {

QString translatedCaption(ceiechart::LegendEntry entry)
{
    switch (entry) {
    case ceiechart::LegendEntry::CommonGamut:
        return CEIELegend::tr("公共色域");
    case ceiechart::LegendEntry::TargetGamut:
        return CEIELegend::tr("目标色域");
    case ceiechart::LegendEntry::OriginalGamut:
        return CEIELegend::tr("原始色域");
    case ceiechart::LegendEntry::TargetPoint:
        return CEIELegend::tr("目标点");
    case ceiechart::LegendEntry::OriginalPoint:
        return CEIELegend::tr("原始点");
    case ceiechart::LegendEntry::ManagedPoint:
        return CEIELegend::tr("管理后点");
    }
    return QString();
}

} // namespace

CEIELegend::CEIELegend(QWidget *parent)
    : CEIELegend(false, Qt::AlignBottom, parent)
{
}

CEIELegend::CEIELegend(bool showPoint, QWidget *parent)
    : CEIELegend(showPoint, Qt::AlignBottom, parent)
{
}

CEIELegend::CEIELegend(bool showPoint, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent)
    : ChartLegend(showPoint, parent)
{
    initUI(alignment);
}

CEIELegend::~CEIELegend() = default;

void CEIELegend::setLegendVisible(legendType type, bool visible)
{
    // NoEntry is between the gamuts and the points.
    if (type != NoEntry) {
        d->setVisible(static_cast<ceiechart::LegendEntry>(type < NoEntry ? type : type - 1), visible);
    }
}

bool CEIELegend::isLegendVisible(legendType type) const
{
    return type != NoEntry && d->isShown(static_cast<ceiechart::LegendEntry>(type < NoEntry ? type : type - 1));
}

void CEIELegend::initUI(QFlags<Qt::AlignmentFlag> alignment)
{
    drawColorLegend(alignment);
    if (d->withPoints()) {
        drawQCPoint(alignment);
    }
    setLegendAlignament(alignment);
}

void CEIELegend::drawColorLegend(QFlags<Qt::AlignmentFlag> alignment)
{
    d->addGamuts(&translatedCaption, alignment);
}

void CEIELegend::drawQCPoint(QFlags<Qt::AlignmentFlag> alignment)
{
    d->addPoints(&translatedCaption, alignment);
}

} // namespace NewCEIE
