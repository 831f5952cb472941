// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/chartframe_p.h>
#include <ceiechart/widgets/legendplacement_p.h>

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>

namespace ceiechart {

namespace {

/*!
 * \brief The fixed width or height of an inner view for a picture of \a extent pixels, within the limits of widgets.
 */
int viewExtent(int extent)
{
    return static_cast<int>(std::clamp<qint64>(static_cast<qint64>(extent) + 2, 0, QWIDGETSIZE_MAX));
}

} // namespace

ChartFrame::Private::~Private()
{
    delete scene;
}

void ChartFrame::Private::setView(QGraphicsView *innerView)
{
    view = innerView;
    view->setAttribute(Qt::WA_MouseTracking, true);
    view->setProperty("class", QStringLiteral("CEIEGraphicsView"));
}

void ChartFrame::Private::setScene(TargetScene *innerScene)
{
    scene = innerScene;
    view->setScene(innerScene);
}

void ChartFrame::Private::setLegend(ChartLegend *chartLegend)
{
    legend = chartLegend;
}

QBoxLayout *ChartFrame::Private::arrange(QFrame *frame, Qt::Alignment alignment)
{
    // A widget does not accept a second layout.
    delete frame->layout();
    QBoxLayout *layout = nullptr;
    if (standsBesideChart(alignment)) {
        layout = new QHBoxLayout;
    } else {
        layout = new QVBoxLayout;
    }
    // Set before anything else is done to it: a layout asks a shown frame only once to be laid out, and before it has a
    // frame it asks nobody.
    frame->setLayout(layout);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
    layout->addWidget(legend);
    return layout;
}

ChartFrame::ChartFrame(std::unique_ptr<Private> own, QWidget *parent)
    : QFrame(parent)
    , d(std::move(own))
{
}

ChartFrame::~ChartFrame() = default;

void ChartFrame::clear()
{
    d->triangles.clear();
    d->tell(&TargetScene::setLsColorTriangleObject, d->triangles);
    update();
}

void ChartFrame::setColorGamutVisible(int index, bool shown)
{
    if (index < 0 || index >= d->triangles.size()) {
        return;
    }
    d->triangles[index].setShow(shown);
    d->tell(&TargetScene::setLsColorTriangleObject, d->triangles);
    update();
}

void ChartFrame::setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles)
{
    d->triangles = triangles;
    d->tell(&TargetScene::setLsColorTriangleObject, d->triangles);
}

QList<ColorTriangleObject> ChartFrame::lsColorTriangleObject() const
{
    return d->triangles;
}

void ChartFrame::setLsColorTempertureValuePoints(const QList<QPointF> &points)
{
    d->colorTemperaturePoints = points;
    d->tell(&TargetScene::setLsColorTempertureValuePoints, d->colorTemperaturePoints);
}

QList<QPointF> ChartFrame::lsColorTempertureValuePoints() const
{
    return d->colorTemperaturePoints;
}

void ChartFrame::setOtherPoints(QList<QPointF> points, QList<QColor> colors)
{
    d->tell(&TargetScene::setOtherPoints, points, colors);
}

QList<QPointF> ChartFrame::getOtherPoints() const
{
    return d->scene ? d->scene->getOtherPoints() : QList<QPointF>();
}

QList<QColor> ChartFrame::getOtherPointsColor() const
{
    return d->scene ? d->scene->getOtherPointsColor() : QList<QColor>();
}

void ChartFrame::setImageWidth(int width)
{
    d->imageWidth = width;
    d->view->setFixedWidth(viewExtent(width));
    d->tell(&TargetScene::setImageWidth, width);
}

void ChartFrame::setImageHeight(int height)
{
    d->imageHeight = height;
    d->view->setFixedHeight(viewExtent(height));
    d->tell(&TargetScene::setImageHeight, height);
}

int ChartFrame::imageWidth() const
{
    return d->imageWidth;
}

int ChartFrame::imageHeight() const
{
    return d->imageHeight;
}

void ChartFrame::setIsDrawCoordinate(bool draw)
{
    d->drawCoordinate = draw;
    d->tell(&TargetScene::setIsDrawCoordinate, draw);
}

void ChartFrame::setIsDrawBBRLine(bool draw)
{
    d->drawPlanckianLocus = draw;
    d->tell(&TargetScene::setIsDrawBBRLine, draw);
}

void ChartFrame::setIsDrawWaveLength(bool draw)
{
    d->drawWavelengths = draw;
    d->tell(&TargetScene::setIsDrawWaveLength, draw);
}

bool ChartFrame::isDrawCoordinate() const
{
    return d->drawCoordinate;
}

bool ChartFrame::isDrawBBRLine() const
{
    return d->drawPlanckianLocus;
}

bool ChartFrame::isDrawWaveLength() const
{
    return d->drawWavelengths;
}

void ChartFrame::setDrawColorTPoint(bool draw)
{
    d->tell(&TargetScene::setDrawColorTPoint, draw);
}

bool ChartFrame::isDrawColorTPoint() const
{
    return d->scene && d->scene->isDrawColorTPoint();
}

void ChartFrame::setColorTempertureChecked(bool checked)
{
    d->tell(&TargetScene::setColorTempertureChecked, checked);
}

void ChartFrame::setRGBPointEnable(bool enable)
{
    d->tell(&TargetScene::setRGBPointEnable, enable);
}

void ChartFrame::setUseMouseOpertator(bool enable)
{
    d->tell(&TargetScene::setIsMouseOper, enable);
}

} // namespace ceiechart
