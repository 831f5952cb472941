// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/ceiegraphicsview.h>

#include <ceiechart/scene/ceiegraphicsscene.h>
#include <ceiechart/widgets/chartparts_p.h>

#include <QLabel>

#include <algorithm>
#include <cmath>

template class ceiechart::ChartParts<NewCEIE::CEIEGraphicsScene, NewCEIE::NQCEIEGraphicsView, NewCEIE::CEIELegend>;

namespace NewCEIE {

namespace {

enum GamutKind { StandardGamut = 0, TargetGamut = 1, OriginalGamut = 2, MeasuredGamut = 3 };

constexpr int outlineWidth = 2;

struct StandardStyle {
    const char *name;
    int alpha;
    double opacity;
};

constexpr StandardStyle standardStyles[] = {{"Rec.709", 17, 0.07}, {"Rec.2020", 51, 0.1}, {"DCI-P3(D65)", 25, 0.05}};

QPolygonF vertices(const TrianglePoint &triangle)
{
    return QPolygonF({triangle.redPos(), triangle.greenPos(), triangle.bluePos()});
}

//! Qt's clipper fails on coordinates that are no numbers, or so large that their squares are none.
bool canBeClipped(const QPolygonF &polygon)
{
    constexpr double farthest = 1e6;
    return std::all_of(polygon.cbegin(), polygon.cend(),
        [](const QPointF &point) { return std::fabs(point.x()) <= farthest && std::fabs(point.y()) <= farthest; });
}

int centred(int outer, int inner)
{
    return static_cast<int>((static_cast<qint64>(outer) - inner) / 2);
}

} // namespace

CEIEGraphicsView::CEIEGraphicsView(QWidget *parent)
    : QFrame(parent)
    , m_parts(this)
{
    buildUI(false, Qt::AlignBottom);
}

CEIEGraphicsView::CEIEGraphicsView(bool, QWidget *parent)
    : QFrame(parent)
    , m_parts(this)
{
    buildUI(true, Qt::AlignBottom);
}

CEIEGraphicsView::CEIEGraphicsView(bool, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent)
    : QFrame(parent)
    , m_parts(this)
{
    buildUI(true, alignment);
}

CEIEGraphicsView::~CEIEGraphicsView() = default;

void CEIEGraphicsView::setColorGamut(const Model::ColorGamut &target, const Model::ColorGamut &original,
    const Model::ColorGamut &measured, const QList<Model::ColorGamut> &standards)
{
    beginGamuts(standards);
    const TrianglePoint originalTriangle
        = addGamut(original, QColor(13, 189, 73, 255), OriginalGamut, m_isShowOriginal);
    const TrianglePoint measuredTriangle
        = addGamut(measured, QColor(27, 241, 255, 255), MeasuredGamut, m_isShowMeasure);
    const TrianglePoint targetTriangle = addTarget(target);
    if (m_isShowActual) {
        m_targetOrgIntersected = getTargetOrgIntersected(targetTriangle, measuredTriangle);
        m_targetTriangle = targetTriangle;
        m_originalTriangle = originalTriangle;
    }
    updateLanGamut(true, QString());
}

void CEIEGraphicsView::setColorGamut(
    const Model::ColorGamut &target, const Model::ColorGamut &original, const QList<Model::ColorGamut> &standards)
{
    beginGamuts(standards);
    const TrianglePoint originalTriangle
        = addGamut(original, QColor(22, 241, 255, 255), OriginalGamut, m_isShowOriginal);
    const TrianglePoint targetTriangle = addTarget(target);
    if (m_isShowActual) {
        m_targetOrgIntersected = getTargetOrgIntersected(targetTriangle, originalTriangle);
        m_targetTriangle = targetTriangle;
        m_originalTriangle = originalTriangle;
    }
    updateLanGamut(true, QString());
}

void CEIEGraphicsView::colorGamutToTriangle(const Model::ColorGamut &gamut, TrianglePoint &triangle)
{
    ceiechart::copyGamut(gamut.getTargets(), triangle);
}

void CEIEGraphicsView::updateLanGamut(bool flag, const QString &text)
{
    m_parts.scene()->setLsColorTriangleObject(
        m_parts.triangles(), m_standardTriangles, m_targetTriangle, m_originalTriangle, flag, text);
    m_parts.scene()->setTargetItemVisable(m_isShowTarget);
    updateMixInfo(text);
}

void CEIEGraphicsView::setCMYPointData(const QList<QPointF> &points)
{
    m_parts.scene()->setCMYPointData(points);
}

void CEIEGraphicsView::setBackgroudColor(const QColor &color)
{
    m_parts.scene()->setBackgroudColor(color);
}

void CEIEGraphicsView::setGraphColor(QColor first, QColor second)
{
    m_parts.setGraphColor(first, second);
    m_parts.view()->setStyleSheet(QStringLiteral("background-color: white;"));
}

void CEIEGraphicsView::setLegendAlignament(QFlags<Qt::AlignmentFlag> alignment)
{
    setLegendAlignamentCommon(alignment);
    m_parts.legend()->setLegendAlignament(alignment);
}

void CEIEGraphicsView::resizeEvent(QResizeEvent *event)
{
    updateLanGamut(true, QString());
    QFrame::resizeEvent(event);
}

void CEIEGraphicsView::buildUI(bool showPoints, QFlags<Qt::AlignmentFlag> alignment)
{
    m_parts.makeView();
    m_parts.prepareView();
    m_parts.setScene(std::make_unique<CEIEGraphicsScene>(m_parts.triangles()));
    m_parts.makeLegend(showPoints, alignment);

    m_mixInfoLabel = new QLabel(this);
    m_mixInfoLabel->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    m_mixInfoLabel->setFixedWidth(200);
    m_mixInfoLabel->setFixedHeight(400);
    m_mixInfoLabel->setWordWrap(true);
    m_mixInfoLabel->hide();

    setLegendAlignamentCommon(alignment);
    m_parts.connectCursor();
    m_parts.relaySignals(this);
}

void CEIEGraphicsView::setLegendAlignamentCommon(QFlags<Qt::AlignmentFlag> alignment)
{
    m_parts.arrange(alignment);
}

void CEIEGraphicsView::updateMixInfo(const QString &text)
{
    m_mixInfoLabel->setVisible(!text.isEmpty());
    m_mixInfoLabel->setText(text);
    m_mixInfoLabel->move(centred(m_parts.imageWidth(), m_mixInfoLabel->width()),
        centred(m_parts.imageHeight(), m_mixInfoLabel->height()));
}

QPolygonF CEIEGraphicsView::getTargetOrgIntersected(const TrianglePoint &a, const TrianglePoint &b)
{
    const QPolygonF first = vertices(a);
    const QPolygonF second = vertices(b);
    return canBeClipped(first) && canBeClipped(second) ? first.intersected(second) : QPolygonF();
}

void CEIEGraphicsView::calcActualPos(TrianglePoint &triangle)
{
    for (QPointF *position : {&triangle.redPos(), &triangle.greenPos(), &triangle.bluePos(), &triangle.whitePos()}) {
        m_parts.scene()->chromaToCurCoordinate(*position);
    }
}

void CEIEGraphicsView::beginGamuts(const QList<Model::ColorGamut> &standards)
{
    m_parts.triangles().clear();
    m_standardTriangles.clear();
    m_targetOrgIntersected.clear();
    m_targetTriangle = TrianglePoint();
    m_originalTriangle = TrianglePoint();
    m_parts.scene()->getBitMap();
    if (m_isShowStandard) {
        for (const Model::ColorGamut &standard : standards) {
            addStandard(standard);
        }
    }
}

void CEIEGraphicsView::addStandard(const Model::ColorGamut &standard)
{
    for (const StandardStyle &style : standardStyles) {
        if (standard.colorGamutName() == style.name) {
            TrianglePoint triangle;
            colorGamutToTriangle(standard, triangle);
            ColorTriangleObject object
                = ceiechart::gamutObject(triangle, QColor(255, 255, 255, style.alpha), outlineWidth);
            object.setType(StandardGamut);
            object.setOpacity(style.opacity);
            m_standardTriangles.append(object);
        }
    }
}

TrianglePoint CEIEGraphicsView::addGamut(
    const Model::ColorGamut &gamut, const QColor &color, int type, bool add, bool shown)
{
    TrianglePoint triangle;
    colorGamutToTriangle(gamut, triangle);
    if (add) {
        ColorTriangleObject object = ceiechart::gamutObject(triangle, color, outlineWidth);
        object.setType(type);
        object.setShow(shown);
        m_parts.triangles().append(object);
    }
    return triangle;
}

TrianglePoint CEIEGraphicsView::addTarget(const Model::ColorGamut &target)
{
    return addGamut(target, QColor(255, 163, 56, 255), TargetGamut, m_isShowTarget, !target.colorGamutName().empty());
}

} // namespace NewCEIE
