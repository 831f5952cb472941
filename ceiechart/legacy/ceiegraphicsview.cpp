// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/ceiegraphicsview.h>

#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/diagram/gamutstyle.h>
#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/model/gamutrecords.h>
#include <ceiechart/widgets/chartframe_p.h>

#include <QBoxLayout>

namespace {

/*!
 * \brief The gamut as it is put into the list. Kind and opacity remain those of a new object, which hosts see in the
 * list.
 */
ColorTriangleObject listedGamut(const Model::ColorGamutInfo &gamut, ceiechart::GamutKind kind)
{
    const ceiechart::GamutStyle style = ceiechart::legacyChartStyle(kind);
    ColorTriangleObject object;
    object.setTrianglePoint(ceiechart::gamutTriangle(gamut));
    object.setForeColor(style.color);
    object.setTrigleLineWidth(style.width);
    return object;
}

} // namespace

class Q_DECL_HIDDEN CEIEGraphicsView::Private : public ceiechart::ChartFrame::Private {
public:
    explicit Private(DrawCEIPicture::CEIEType diagramType)
        : type(diagramType)
    {
    }

    CEIEGraphicsScene *typedScene() const { return static_cast<CEIEGraphicsScene *>(scene.data()); }

    void groundChanged() override
    {
        // A style sheet of the host is left alone.
        if (scene && view->styleSheet() == innerStyleSheet) {
            setInnerGround(*view, scene->isLightGround() ? scene->pictureGround() : darkGround());
        }
    }

    /*! \brief Sets the colour that is seen where the inner view is larger than the picture. */
    void setInnerGround(QGraphicsView &innerView, const QColor &color)
    {
        innerStyleSheet = QStringLiteral("background: ") + color.name();
        innerView.setStyleSheet(innerStyleSheet);
    }

    static QColor darkGround() { return ceiechart::chartStyle(ceiechart::ChartKind::LegacyUv).ground; }

    DrawCEIPicture::CEIEType type;
    QString innerStyleSheet;
};

CEIEGraphicsView::CEIEGraphicsView(QWidget *parent, DrawCEIPicture::CEIEType type)
    : ChartFrame(std::make_unique<Private>(type), parent)
{
    buildUI(false, Qt::AlignBottom);
}

CEIEGraphicsView::CEIEGraphicsView(bool, QWidget *parent)
    : ChartFrame(std::make_unique<Private>(DrawCEIPicture::XyDiagram), parent)
{
    buildUI(true, Qt::AlignBottom);
}

CEIEGraphicsView::CEIEGraphicsView(bool, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent)
    : ChartFrame(std::make_unique<Private>(DrawCEIPicture::XyDiagram), parent)
{
    buildUI(true, alignment);
}

CEIEGraphicsView::~CEIEGraphicsView() = default;

CEIEGraphicsView::Private &CEIEGraphicsView::own() const
{
    return static_cast<Private &>(*d);
}

DrawCEIPicture::CEIEType CEIEGraphicsView::diagramType() const
{
    return own().type == DrawCEIPicture::UvDiagram ? DrawCEIPicture::UvDiagram : DrawCEIPicture::XyDiagram;
}

void CEIEGraphicsView::setColorGamut(const Model::ColorGamutInfo &target, const Model::ColorGamutInfo &original)
{
    setLsColorTriangleObject(
        {listedGamut(original, ceiechart::OriginalGamut), listedGamut(target, ceiechart::TargetGamut)});
    update();
}

void CEIEGraphicsView::colorGamutToTriangle(const Model::ColorGamutInfo &gamut, TrianglePoint &triangle)
{
    triangle = ceiechart::gamutTriangle(gamut);
}

void CEIEGraphicsView::setMeasureValuePoints(const QList<QPointF> &points)
{
    if (CEIEGraphicsScene *scene = own().typedScene()) {
        scene->setMeasureValuePoints(points);
    }
}

QList<QPointF> CEIEGraphicsView::getMeasureValuePoints() const
{
    CEIEGraphicsScene *scene = own().typedScene();
    return scene ? scene->getMeasureValuePoints() : QList<QPointF>();
}

void CEIEGraphicsView::setGraphColor(QColor first, QColor second)
{
    d->tell(&ceiechart::TargetScene::setGraphColor, first, second);
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

void CEIEGraphicsView::buildUI(bool showPoints, QFlags<Qt::AlignmentFlag> alignment)
{
    auto *innerView = new NQCEIEGraphicsView(this);
    own().setInnerGround(*innerView, Private::darkGround());
    d->setView(innerView);
    auto *scene = new CEIEGraphicsScene(own().type, d->triangles);
    d->setScene(scene);
    d->setLegend(new CEIELegend(showPoints, alignment, this));
    setLegendAlignamentCommon(alignment);
    if (own().type == DrawCEIPicture::XyDiagram) {
        // The connection is queued so that the cursor changes after the scene has handled its event.
        connect(scene, &CEIEGraphicsScene::signal_mouseCursorChange, innerView,
            &NQCEIEGraphicsView::slot_mouseCursorChange, Qt::QueuedConnection);
    }
    ceiechart::relaySignals(scene, this);
}

void CEIEGraphicsView::setLegendAlignamentCommon(QFlags<Qt::AlignmentFlag> alignment)
{
    d->arrange(this, alignment)->addStretch(0);
}

void CEIEGraphicsView::initData() { }
