// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/chromasets.h>
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/scene/containment_p.h>
#include <ceiechart/scene/targetscene_p.h>

#include <QPainter>

namespace ceiechart {

namespace {

/*! \brief The position of the axes in a picture, computed in 512ths of its width or height. */
struct AxesPlacement {
    double originX, originY;
    int unitLength;
};

AxesPlacement axesPlacement(int width, int height)
{
    const float perWidth = static_cast<float>(width) * (1.0F / 512.0F);
    const float perHeight = static_cast<float>(height) * (1.0F / 512.0F);
    return {double(perWidth * 27.0F), double(perHeight * 483.0F), truncated(double(perWidth * 540.0F))};
}

int zoomed(int size, float zoom)
{
    return truncated(double(static_cast<float>(size) * zoom));
}

} // namespace

TargetScene::Private::~Private() = default;

TargetScene::TargetScene(std::unique_ptr<Private> own)
    : d(std::move(own))
{
    d->q = this;
}

TargetScene::~TargetScene() = default;

void TargetScene::Private::begin(const QList<ColorTriangleObject> &initialTriangles)
{
    triangles = initialTriangles;
    if (!triangles.isEmpty()) {
        const TrianglePoint &original = qAsConst(triangles).first().trianglePoint();
        originalVertices.setRedPos(original.redPos());
        originalVertices.setGreenPos(original.greenPos());
        originalVertices.setBluePos(original.bluePos());
    }
    q->SetCentreTriangle();
    q->SetControlGraphData();
}

void TargetScene::setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles)
{
    d->triangles = triangles;
    d->centreHandleDrawn = false;
    d->centreHandleChroma = QPointF();
    d->gamutsReplaced();
    update();
    if (d->triangles.isEmpty()) {
        return;
    }
    const TrianglePoint &original = qAsConst(d->triangles).first().trianglePoint();
    d->originalVertices.setRedPos(d->toImage(original.redPos()));
    d->originalVertices.setGreenPos(d->toImage(original.greenPos()));
    d->originalVertices.setBluePos(d->toImage(original.bluePos()));
}

QList<ColorTriangleObject> TargetScene::getLsColorTriangleObject()
{
    return d->triangles;
}

void TargetScene::setLsColorTempertureValuePoints(const QList<QPointF> &points)
{
    d->colorTemperaturePoints = points;
    getBitMap();
}

QList<QPointF> TargetScene::getLsColorTempertureValuePoints()
{
    return d->colorTemperaturePoints;
}

void TargetScene::setOtherPoints(const QList<QPointF> &points, const QList<QColor> &colours)
{
    d->otherPoints = points;
    d->otherPointColors = colours;
    update();
}

QList<QPointF> TargetScene::getOtherPoints()
{
    return d->otherPoints;
}

QList<QColor> TargetScene::getOtherPointsColor()
{
    return d->otherPointColors;
}

void TargetScene::setGraphColor(QColor line, QColor picture)
{
    d->setGraphColor(line, picture);
}

void TargetScene::setImageWidth(int width)
{
    d->imageWidth = width;
    getBitMap();
}

void TargetScene::setImageHeight(int height)
{
    d->imageHeight = height;
    getBitMap();
}

int TargetScene::imageWidth()
{
    return d->imageWidth;
}

int TargetScene::imageHeight()
{
    return d->imageHeight;
}

void TargetScene::setIsDrawCoordinate(bool draw)
{
    d->drawCoordinate = draw;
    getBitMap();
}

void TargetScene::setIsDrawBBRLine(bool draw)
{
    d->drawPlanckianLocus = draw;
    getBitMap();
}

void TargetScene::setIsDrawWaveLength(bool draw)
{
    d->drawWavelengths = draw;
    getBitMap();
}

bool TargetScene::isDrawCoordinate()
{
    return d->drawCoordinate;
}

bool TargetScene::isDrawBBRLine()
{
    return d->drawPlanckianLocus;
}

bool TargetScene::isDrawWaveLength()
{
    return d->drawWavelengths;
}

void TargetScene::getBitMap()
{
    const GivenMemory given = d->giveMemory();
    d->picture.reset();
    d->imageWidth = zoomed(d->imageWidth, d->zoom);
    d->imageHeight = zoomed(d->imageHeight, d->zoom);
    d->showPicture(d->renderPicture());
}

void TargetScene::CoordinateTransformation()
{
    if (d->picture.isSet()) {
        const QSize size = d->picture.sceneSize();
        const AxesPlacement axes = axesPlacement(size.width(), size.height());
        d->originX = axes.originX;
        d->originY = axes.originY;
        d->unitLength = axes.unitLength;
    }
}

void TargetScene::Private::drawPicture(QPainter *painter)
{
    backgroundTarget = q->pictureRect();
    if (!picture.isNull() && !backgroundTarget.isEmpty()) {
        picture.draw(painter, backgroundTarget);
    }
}

void TargetScene::setDrawColorTPoint(bool draw)
{
    d->drawColorTPoint = draw;
    update();
}

bool TargetScene::isDrawColorTPoint()
{
    return d->drawColorTPoint;
}

void TargetScene::setIsMouseOper(bool allowed)
{
    d->mouseAllowed = allowed;
}

bool TargetScene::getIsMouseOper()
{
    return d->mouseAllowed;
}

void TargetScene::setColorTempertureChecked(bool checked)
{
    d->whiteHeld = checked;
}

bool TargetScene::isColorTempertureChecked() const
{
    return d->whiteHeld;
}

void TargetScene::setRGBPointEnable(bool enable)
{
    d->editMode = enable ? Private::EverythingEditable : Private::VerticesLocked;
}

bool TargetScene::isRGBPointEnable() const
{
    return d->editMode == Private::EverythingEditable;
}

void TargetScene::setFunctionKeyMode(int mode)
{
    d->functionKeyMode = mode;
}

void TargetScene::applyFunctionKey()
{
    SetFunctionKeyShortcuts();
}

bool TargetScene::refreshArea(QPainter *painter)
{
    if (!painter) {
        return false;
    }
    painter->setRenderHint(QPainter::Antialiasing, true);
    QPen pen = painter->pen();
    pen.setColor(QColor(255, 255, 255, 255));
    pen.setWidth(3);
    painter->setPen(pen);
    if (d->triangles.isEmpty()) {
        return true;
    }
    if (!DrawVertexSign(painter)) {
        return false;
    }
    d->drawFurtherSigns(painter);
    if (d->drawColorTPoint && d->hasTarget()) {
        d->targetPoints().setWhiteLum(0);
        d->targetPoints().setWhitePos(QPointF(0, 0));
    }
    return true;
}

void TargetScene::SetCentreTriangle()
{
    if (d->hasTarget()) {
        const TrianglePoint &target = d->targetPoints();
        d->targetVertices.setBluePos(target.bluePos());
        d->targetVertices.setGreenPos(target.greenPos());
        d->targetVertices.setRedPos(target.redPos());
    }
}

void TargetScene::SetControlGraphData()
{
    if (!d->hasTarget()) {
        return;
    }
    SetCentreTriangle();
    baseCommon::LEDColorType beyond = baseCommon::None;
    TriangleObjecIinitializedEventArgs report;
    report.setIsEffectiveValue(
        d->checkTarget(d->triangles.at(0), d->triangles.at(1), beyond) && CompareSetBrightValueIsValid());
    report.setColorTriangleObjectList({d->triangles.at(0), d->triangles.at(1)});
    report.setBeyondColorType(beyond);
    d->reportInitialized(report);
}

bool TargetScene::Private::checkTarget(
    const ColorTriangleObject &original, const ColorTriangleObject &target, baseCommon::LEDColorType &beyond)
{
    const AxesPlacement axes = axesPlacement(imageWidth, imageHeight);
    originX = axes.originX;
    originY = axes.originY;
    unitLength = axes.unitLength;

    beyond = baseCommon::None;
    const PointF red = narrowed(original.trianglePoint().redPos());
    const PointF green = narrowed(original.trianglePoint().greenPos());
    const PointF blue = narrowed(original.trianglePoint().bluePos());
    const auto outside
        = [&](const QPointF &position) { return !triangleContainsByArea(narrowed(position), red, green, blue); };
    if (outside(target.trianglePoint().redPos())) {
        beyond = baseCommon::Red;
    } else if (outside(target.trianglePoint().greenPos())) {
        beyond = baseCommon::Green;
    } else if (outside(target.trianglePoint().bluePos())) {
        beyond = baseCommon::Blue;
    }
    return beyond == baseCommon::None;
}

void TargetScene::Private::refreshTargetReport()
{
    baseCommon::LEDColorType beyond = baseCommon::None;
    targetReport.setColorTriangleObject(triangles.at(1));
    targetReport.setColourTemperature(q->GetColourTemperatureValue(targetPoints().whitePos()));
    targetReport.setIsReasonableData(checkTarget(triangles.at(0), triangles.at(1), beyond));
}

double TargetScene::round(double value)
{
    return QString::number(value, 'f', 3).toDouble();
}

QPointF TargetScene::Private::targetPosition(Handle handle)
{
    const TrianglePoint &target = targetPoints();
    switch (handle) {
    case Handle::Red:
        return target.redPos();
    case Handle::Green:
        return target.greenPos();
    case Handle::Blue:
        return target.bluePos();
    case Handle::White:
        return target.whitePos();
    case Handle::None:
        break;
    }
    return QPointF();
}

int TargetScene::GetColourTemperatureValue(QPointF white) const
{
    int kelvin = 0;
    ChromaSets::GetColorTemperatureNew(white.x(), white.y(), kelvin);
    return kelvin;
}

void TargetScene::GetOriginalWhiteLight() { }

bool TargetScene::CompareBrightValue()
{
    return true;
}

bool TargetScene::CompareSetBrightValueIsValid()
{
    return true;
}

} // namespace ceiechart
