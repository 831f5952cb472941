// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/ceiegraphicsview.h>

#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/widgets/chartparts_p.h>

template class ceiechart::ChartParts<CEIEGraphicsScene, NQCEIEGraphicsView, CEIELegend>;

CEIEGraphicsView::CEIEGraphicsView(QWidget *parent, DrawCEIPicture::CEIEType type)
    : QFrame(parent)
    , m_parts(this)
    , m_type(type)
{
    buildUI(false, Qt::AlignBottom);
}

CEIEGraphicsView::CEIEGraphicsView(bool, QWidget *parent)
    : QFrame(parent)
    , m_parts(this)
    , m_type(DrawCEIPicture::XyDiagram)
{
    buildUI(true, Qt::AlignBottom);
}

CEIEGraphicsView::CEIEGraphicsView(bool, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent)
    : QFrame(parent)
    , m_parts(this)
    , m_type(DrawCEIPicture::XyDiagram)
{
    buildUI(true, alignment);
}

CEIEGraphicsView::~CEIEGraphicsView() = default;

void CEIEGraphicsView::setColorGamut(const Model::ColorGamutInfo &target, const Model::ColorGamutInfo &original)
{
    TrianglePoint originalTriangle;
    colorGamutToTriangle(original, originalTriangle);
    TrianglePoint targetTriangle;
    colorGamutToTriangle(target, targetTriangle);
    // The colours of the legend's swatches.
    m_parts.setTriangles({ceiechart::gamutObject(originalTriangle, QColor(255, 255, 255, 255), 2),
        ceiechart::gamutObject(targetTriangle, QColor(0, 0, 0, 255), 1)});
    update();
}

void CEIEGraphicsView::colorGamutToTriangle(const Model::ColorGamutInfo &gamut, TrianglePoint &triangle)
{
    ceiechart::copyGamut(gamut, triangle);
}

void CEIEGraphicsView::setMeasureValuePoints(const QList<QPointF> &points)
{
    m_parts.scene()->setMeasureValuePoints(points);
}

QList<QPointF> CEIEGraphicsView::getMeasureValuePoints() const
{
    return m_parts.scene()->getMeasureValuePoints();
}

void CEIEGraphicsView::setLegendAlignament(QFlags<Qt::AlignmentFlag> alignment)
{
    setLegendAlignamentCommon(alignment);
    m_parts.legend()->setLegendAlignament(alignment);
}

void CEIEGraphicsView::buildUI(bool showPoints, QFlags<Qt::AlignmentFlag> alignment)
{
    m_parts.makeView()->setStyleSheet(QStringLiteral("background: #323238"));
    m_parts.prepareView();
    m_parts.setScene(std::make_unique<CEIEGraphicsScene>(m_type, m_parts.triangles()));
    m_parts.makeLegend(showPoints, alignment);
    setLegendAlignamentCommon(alignment);
    if (m_type == DrawCEIPicture::XyDiagram) {
        m_parts.connectCursor();
    }
    m_parts.relaySignals(this);
}

void CEIEGraphicsView::setLegendAlignamentCommon(QFlags<Qt::AlignmentFlag> alignment)
{
    m_parts.arrange(alignment)->addStretch(0);
}
