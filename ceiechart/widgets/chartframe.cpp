// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/contrast_p.h>
#include <ceiechart/widgets/chartframe_p.h>
#include <ceiechart/widgets/legendplacement_p.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QTransform>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>
#include <functional>

namespace ceiechart {

namespace {

/*!
 * \brief The fixed width or height of an inner view for a picture of \a extent pixels, within the limits of widgets.
 */
int viewExtent(int extent)
{
    return static_cast<int>(std::clamp<qint64>(static_cast<qint64>(extent) + 2, 0, QWIDGETSIZE_MAX));
}

/*! \brief Calls a function before an object receives an event of one type. */
class EventFollower : public QObject {
public:
    EventFollower(QObject *watched, QEvent::Type type, std::function<void()> follow)
        : m_type(type)
        , m_follow(std::move(follow))
    {
        watched->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == m_type) {
            m_follow();
        }
        return false;
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_follow;
};

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
    legendAlignment = alignment;
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

void ChartFrame::Private::applyGround(const QFrame &frame)
{
    const bool light = paletteFollower ? isLight(frame.palette().color(QPalette::Window)) : lightPicture;
    if (scene && scene->isLightGround() != light) {
        scene->setLightGround(light);
        groundChanged();
    }
}

QTransform ChartFrame::Private::pictureToView() const
{
    const QRectF shown = scene->pictureRect();
    const QSize size = scene->pictureSize();
    if (size.isEmpty()) {
        return QTransform();
    }
    return QTransform::fromScale(shown.width() / size.width(), shown.height() / size.height())
        * QTransform::fromTranslate(shown.x(), shown.y()) * view->viewportTransform();
}

void ChartFrame::Private::applyPixelRatio()
{
    tell(&TargetScene::setPixelRatio, pixelRatioFollower ? view->devicePixelRatioF() : 1.0);
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
    d->sizeChanged();
}

void ChartFrame::setImageHeight(int height)
{
    d->imageHeight = height;
    d->view->setFixedHeight(viewExtent(height));
    d->tell(&TargetScene::setImageHeight, height);
    d->sizeChanged();
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

bool ChartFrame::isColorTempertureChecked() const
{
    return d->scene && d->scene->isColorTempertureChecked();
}

bool ChartFrame::isRGBPointEnable() const
{
    return d->scene && d->scene->isRGBPointEnable();
}

bool ChartFrame::isUseMouseOpertator() const
{
    return d->scene && d->scene->getIsMouseOper();
}

QFlags<Qt::AlignmentFlag> ChartFrame::legendAlignament() const
{
    return d->legendAlignment;
}

QColor ChartFrame::graphLineColor() const
{
    return d->scene ? d->scene->graphLineColor() : QColor();
}

QColor ChartFrame::graphPictureColor() const
{
    return d->scene ? d->scene->graphPictureColor() : QColor();
}

QSize ChartFrame::imageSize() const
{
    return QSize(d->imageWidth, d->imageHeight);
}

void ChartFrame::setImageSize(const QSize &size)
{
    d->imageWidth = size.width();
    d->imageHeight = size.height();
    d->view->setFixedSize(viewExtent(size.width()), viewExtent(size.height()));
    d->tell(&TargetScene::setImageSize, size);
    d->sizeChanged();
}

void ChartFrame::setGraphLineColor(const QColor &color)
{
    d->tell(&TargetScene::setGraphColor, color, graphPictureColor());
    d->tell(&TargetScene::renderAgain);
}

void ChartFrame::setGraphPictureColor(const QColor &color)
{
    d->tell(&TargetScene::setGraphColor, graphLineColor(), color);
    d->tell(&TargetScene::renderAgain);
    d->groundChanged();
}

void ChartFrame::setLightPicture(bool light)
{
    d->lightPicture = light;
    d->applyGround(*this);
}

bool ChartFrame::isLightPicture() const
{
    return d->lightPicture;
}

void ChartFrame::setPaletteFollowed(bool followed)
{
    d->paletteFollower.reset();
    if (followed) {
        d->paletteFollower
            = std::make_unique<EventFollower>(this, QEvent::PaletteChange, [this] { d->applyGround(*this); });
    }
    d->applyGround(*this);
}

bool ChartFrame::isPaletteFollowed() const
{
    return d->paletteFollower != nullptr;
}

void ChartFrame::setDevicePixelRatioFollowed(bool followed)
{
    d->pixelRatioFollower.reset();
    if (followed) {
        // There is no event for another screen that all versions of Qt have, but none is seen without being painted.
        d->pixelRatioFollower
            = std::make_unique<EventFollower>(d->view->viewport(), QEvent::Paint, [this] { d->applyPixelRatio(); });
    }
    d->applyPixelRatio();
}

bool ChartFrame::isDevicePixelRatioFollowed() const
{
    return d->pixelRatioFollower != nullptr;
}

void ChartFrame::setThreadCount(int count)
{
    d->tell(&TargetScene::setThreadCount, count);
}

int ChartFrame::threadCount() const
{
    return d->scene ? d->scene->threadCount() : 1;
}

QImage ChartFrame::toImage() const
{
    return d->scene ? d->scene->toImage() : QImage();
}

std::optional<QPointF> ChartFrame::picturePosition(const QPointF &xy) const
{
    return d->scene ? d->scene->picturePosition(xy) : std::nullopt;
}

std::optional<QPointF> ChartFrame::chromaticityInPicture(const QPointF &position) const
{
    return d->scene ? d->scene->chromaticityInPicture(position) : std::nullopt;
}

std::optional<QPointF> ChartFrame::viewPosition(const QPointF &xy) const
{
    const std::optional<QPointF> position = picturePosition(xy);
    return position ? std::optional<QPointF>(d->pictureToView().map(*position)) : std::nullopt;
}

std::optional<QPointF> ChartFrame::chromaticityInView(const QPointF &position) const
{
    if (!d->scene) {
        return std::nullopt;
    }
    bool invertible = false;
    const QTransform toPicture = d->pictureToView().inverted(&invertible);
    return invertible ? chromaticityInPicture(toPicture.map(position)) : std::nullopt;
}

} // namespace ceiechart
