// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/ceiegraphicsview_p.h>

#include <ceiechart/diagram/contrast_p.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/diagram/gamutstyle.h>
#include <ceiechart/model/gamutrecords.h>
#include <ceiechart/widgets/texthalo_p.h>

#include <QLabel>

namespace NewCEIE {

namespace {

QPolygonF vertices(const TrianglePoint &triangle)
{
    return QPolygonF({triangle.redPos(), triangle.greenPos(), triangle.bluePos()});
}

int centred(int outer, int inner)
{
    return static_cast<int>((static_cast<qint64>(outer) - inner) / 2);
}

ColorTriangleObject drawnGamut(
    const TrianglePoint &triangle, ceiechart::GamutKind kind, const ceiechart::GamutStyle &style)
{
    ColorTriangleObject object;
    object.setTrianglePoint(triangle);
    object.setForeColor(style.color);
    object.setTrigleLineWidth(style.width);
    object.setType(kind);
    object.setOpacity(style.opacity);
    return object;
}

} // namespace

void CEIEGraphicsView::Private::beginGamuts(const QList<Model::ColorGamut> &standards)
{
    triangles.clear();
    standardTriangles.clear();
    targetTriangle = TrianglePoint();
    originalTriangle = TrianglePoint();
    tell(&ceiechart::TargetScene::getBitMap);
    if (!showStandard) {
        return;
    }
    for (const Model::ColorGamut &standard : standards) {
        if (const auto style = ceiechart::currentChartStandardStyle(standard.colorGamutName())) {
            standardTriangles.append(
                drawnGamut(ceiechart::gamutTriangle(standard.getTargets()), ceiechart::StandardGamut, *style));
        }
    }
}

void CEIEGraphicsView::Private::addGamut(const TrianglePoint &triangle, ceiechart::GamutKind kind, bool besideMeasured)
{
    triangles.append(drawnGamut(triangle, kind, ceiechart::currentChartStyle(kind, besideMeasured)));
}

void CEIEGraphicsView::Private::addTarget(
    const Model::ColorGamut &target, const TrianglePoint &triangle, bool besideMeasured)
{
    if (showTarget) {
        addGamut(triangle, ceiechart::TargetGamut, besideMeasured);
        triangles.last().setShow(!target.colorGamutName().empty());
    }
}

void CEIEGraphicsView::Private::colorMessage()
{
    if (!scene || mixInfoLabel->text().isEmpty()) {
        return;
    }
    // The palette's own text colour is made for the ground of windows. The picture can be translucent.
    const QWidget *below = view->viewport();
    const QColor ground
        = ceiechart::composited(scene->pictureGround(), below->palette().color(below->backgroundRole()));
    QPalette palette = mixInfoLabel->palette();
    palette.setColor(QPalette::WindowText, ceiechart::textColorOn(ground));
    mixInfoLabel->setPalette(palette);
    // A host can have given the label another effect.
    if (auto *halo = dynamic_cast<ceiechart::TextHalo *>(mixInfoLabel->graphicsEffect())) {
        halo->setColor(ground);
    }
}

void CEIEGraphicsView::Private::sizeChanged()
{
    // Otherwise the picture has no message any more, and the label stays where it is until the next updateLanGamut().
    const CEIEGraphicsScene *chartScene = typedScene();
    if (chartScene && chartScene->isGamutsKept()) {
        placeMessage();
    }
}

void CEIEGraphicsView::Private::placeMessage()
{
    mixInfoLabel->move(centred(imageWidth, mixInfoLabel->width()), centred(imageHeight, mixInfoLabel->height()));
}

CEIEGraphicsView::CEIEGraphicsView(QWidget *parent)
    : ChartFrame(std::make_unique<Private>(), parent)
{
    buildUI(false, Qt::AlignBottom);
}

CEIEGraphicsView::CEIEGraphicsView(bool, QWidget *parent)
    : ChartFrame(std::make_unique<Private>(), parent)
{
    buildUI(true, Qt::AlignBottom);
}

CEIEGraphicsView::CEIEGraphicsView(bool, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent)
    : ChartFrame(std::make_unique<Private>(), parent)
{
    buildUI(true, alignment);
}

CEIEGraphicsView::~CEIEGraphicsView() = default;

CEIEGraphicsView::Private &CEIEGraphicsView::own() const
{
    return static_cast<Private &>(*d);
}

void CEIEGraphicsView::setColorGamut(const Model::ColorGamut &target, const Model::ColorGamut &original,
    const Model::ColorGamut &measured, const QList<Model::ColorGamut> &standards)
{
    Private &chart = own();
    const TrianglePoint targetTriangle = ceiechart::gamutTriangle(target.getTargets());
    const TrianglePoint originalTriangle = ceiechart::gamutTriangle(original.getTargets());
    chart.beginGamuts(standards);
    if (chart.showOriginal) {
        chart.addGamut(originalTriangle, ceiechart::OriginalGamut, true);
    }
    if (chart.showMeasure) {
        chart.addGamut(ceiechart::gamutTriangle(measured.getTargets()), ceiechart::MeasuredGamut, true);
    }
    chart.addTarget(target, targetTriangle, true);
    if (chart.showActual) {
        chart.targetTriangle = targetTriangle;
        chart.originalTriangle = originalTriangle;
    }
    updateLanGamut(true, QString());
}

void CEIEGraphicsView::setColorGamut(
    const Model::ColorGamut &target, const Model::ColorGamut &original, const QList<Model::ColorGamut> &standards)
{
    Private &chart = own();
    const TrianglePoint targetTriangle = ceiechart::gamutTriangle(target.getTargets());
    const TrianglePoint originalTriangle = ceiechart::gamutTriangle(original.getTargets());
    chart.beginGamuts(standards);
    if (chart.showOriginal) {
        chart.addGamut(originalTriangle, ceiechart::OriginalGamut, false);
    }
    chart.addTarget(target, targetTriangle, false);
    if (chart.showActual) {
        chart.targetTriangle = targetTriangle;
        chart.originalTriangle = originalTriangle;
    }
    updateLanGamut(true, QString());
}

void CEIEGraphicsView::colorGamutToTriangle(const Model::ColorGamut &gamut, TrianglePoint &triangle)
{
    triangle = ceiechart::gamutTriangle(gamut.getTargets());
}

void CEIEGraphicsView::updateLanGamut(bool flag, const QString &text)
{
    const Private &chart = own();
    if (CEIEGraphicsScene *scene = chart.typedScene()) {
        scene->setLsColorTriangleObject(
            chart.triangles, chart.standardTriangles, chart.targetTriangle, chart.originalTriangle, flag, text);
        scene->setTargetItemVisable(chart.showTarget);
    }
    updateMixInfo(text);
}

QString CEIEGraphicsView::message() const
{
    return own().mixInfoLabel->text();
}

QList<ColorTriangleObject> CEIEGraphicsView::lsStandardTriangleObject() const
{
    return own().standardTriangles;
}

void CEIEGraphicsView::setCMYPointData(const QList<QPointF> &points)
{
    if (CEIEGraphicsScene *scene = own().typedScene()) {
        scene->setCMYPointData(points);
    }
}

QList<QPointF> CEIEGraphicsView::CMYPointData() const
{
    const CEIEGraphicsScene *scene = own().typedScene();
    return scene ? scene->CMYPointData() : QList<QPointF>();
}

void CEIEGraphicsView::setBackgroudColor(const QColor &color)
{
    if (CEIEGraphicsScene *scene = own().typedScene()) {
        scene->setBackgroudColor(color);
    }
}

void CEIEGraphicsView::setGraphColor(QColor first, QColor second)
{
    d->tell(&ceiechart::TargetScene::setGraphColor, first, second);
    d->view->setStyleSheet(QStringLiteral("background-color: white;"));
}

QColor CEIEGraphicsView::backgroudColor() const
{
    const CEIEGraphicsScene *scene = own().typedScene();
    return scene ? scene->backgroudColor() : QColor();
}

void CEIEGraphicsView::setGamutsKept(bool kept)
{
    if (CEIEGraphicsScene *scene = own().typedScene()) {
        scene->setGamutsKept(kept);
    }
}

bool CEIEGraphicsView::isGamutsKept() const
{
    const CEIEGraphicsScene *scene = own().typedScene();
    return scene && scene->isGamutsKept();
}

void CEIEGraphicsView::setIsShowStandard(bool show)
{
    own().showStandard = show;
}

void CEIEGraphicsView::setIsShowTarget(bool show)
{
    own().showTarget = show;
}

void CEIEGraphicsView::setIsShowOriginal(bool show)
{
    own().showOriginal = show;
}

void CEIEGraphicsView::setIsShowActual(bool show)
{
    own().showActual = show;
}

void CEIEGraphicsView::setIsShowMeasure(bool show)
{
    own().showMeasure = show;
}

bool CEIEGraphicsView::isShowStandard() const
{
    return own().showStandard;
}

bool CEIEGraphicsView::isShowTarget() const
{
    return own().showTarget;
}

bool CEIEGraphicsView::isShowOriginal() const
{
    return own().showOriginal;
}

bool CEIEGraphicsView::isShowActual() const
{
    return own().showActual;
}

bool CEIEGraphicsView::isShowMeasure() const
{
    return own().showMeasure;
}

void CEIEGraphicsView::setLegendAlignament(QFlags<Qt::AlignmentFlag> alignment)
{
    setLegendAlignamentCommon(alignment);
    getLegend()->setLegendAlignament(alignment);
}

CEIELegend *CEIEGraphicsView::getLegend() const
{
    return static_cast<CEIELegend *>(d->legend);
}

NQCEIEGraphicsView *CEIEGraphicsView::view() const
{
    return static_cast<NQCEIEGraphicsView *>(d->view);
}

void CEIEGraphicsView::resizeEvent(QResizeEvent *event)
{
    updateLanGamut(true, QString());
    QFrame::resizeEvent(event);
}

void CEIEGraphicsView::buildUI(bool showPoints, QFlags<Qt::AlignmentFlag> alignment)
{
    d->setView(new NQCEIEGraphicsView(this));
    auto *scene = new CEIEGraphicsScene(d->triangles);
    d->setScene(scene);
    d->setLegend(new CEIELegend(showPoints, alignment, this));

    QLabel *label = own().mixInfoLabel = new QLabel(this);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    label->setFixedWidth(200);
    label->setFixedHeight(400);
    label->setWordWrap(true);
    label->setGraphicsEffect(new ceiechart::TextHalo(label));
    label->hide();

    setLegendAlignamentCommon(alignment);
    // The connection is queued so that the cursor changes after the scene has handled its event.
    connect(scene, &CEIEGraphicsScene::signal_mouseCursorChange, view(), &NQCEIEGraphicsView::slot_mouseCursorChange,
        Qt::QueuedConnection);
    ceiechart::relaySignals(scene, this);
}

void CEIEGraphicsView::setLegendAlignamentCommon(QFlags<Qt::AlignmentFlag> alignment)
{
    d->arrange(this, alignment);
}

void CEIEGraphicsView::updateMixInfo(const QString &text)
{
    QLabel *label = own().mixInfoLabel;
    label->setVisible(!text.isEmpty());
    label->setText(text);
    own().colorMessage();
    own().placeMessage();
}

QPolygonF CEIEGraphicsView::getTargetOrgIntersected(const TrianglePoint &a, const TrianglePoint &b)
{
    const QPolygonF first = vertices(a);
    const QPolygonF second = vertices(b);
    return ceiechart::canBeClipped(first) && ceiechart::canBeClipped(second) ? first.intersected(second) : QPolygonF();
}

void CEIEGraphicsView::calcActualPos(TrianglePoint &triangle)
{
    if (CEIEGraphicsScene *scene = own().typedScene()) {
        for (QPointF *position :
            {&triangle.redPos(), &triangle.greenPos(), &triangle.bluePos(), &triangle.whitePos()}) {
            scene->chromaToCurCoordinate(*position);
        }
    }
}

void CEIEGraphicsView::initData() { }

} // namespace NewCEIE
