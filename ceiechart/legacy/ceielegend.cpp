// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/ceielegend.h>

CEIELegend::CEIELegend(QWidget *parent)
    : CEIELegend(false, Qt::AlignBottom, parent)
{
}

CEIELegend::CEIELegend(bool showPoint, QWidget *parent)
    : CEIELegend(showPoint, Qt::AlignBottom, parent)
{
}

CEIELegend::CEIELegend(bool showPoint, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent)
    : QFrame(parent)
    , m_entries(this, showPoint)
{
    initUI(alignment);
}

CEIELegend::~CEIELegend() = default;

void CEIELegend::setLegendVisible(legendType type, bool visible)
{
    m_entries.setVisible(static_cast<ceiechart::LegendEntry>(type), visible);
}

void CEIELegend::initUI(QFlags<Qt::AlignmentFlag> alignment)
{
    setFrameShape(QFrame::NoFrame);
    drawColorLegend(alignment);
    if (m_entries.withPoints()) {
        drawQCPoint(alignment);
    }
    setLegendAlignament(alignment);
}

void CEIELegend::drawColorLegend(QFlags<Qt::AlignmentFlag> alignment)
{
    m_entries.addGamuts(tr("公共色域"), tr("目标色域"), tr("原始色域"), alignment);
}

void CEIELegend::drawQCPoint(QFlags<Qt::AlignmentFlag> alignment)
{
    m_entries.addPoints(tr("目标点"), tr("原始点"), tr("管理后点"), alignment);
}
