// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/ceielegend.h>

#include <ceiechart/widgets/legendentries_p.h>

namespace NewCEIE {

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
    d->addGamuts(tr("公共色域"), tr("目标色域"), tr("原始色域"), alignment);
}

void CEIELegend::drawQCPoint(QFlags<Qt::AlignmentFlag> alignment)
{
    d->addPoints(tr("目标点"), tr("原始点"), tr("管理后点"), alignment);
}

} // namespace NewCEIE
