// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/arithmetic_p.h>
#include <ceiechart/atlas/chromasets.h>
#include <ceiechart/scene/backgroundplacement_p.h>
#include <ceiechart/scene/containment_p.h>
#include <ceiechart/scene/targetediting.h>

#include <QPainter>

namespace ceiechart {

namespace {

//! Where the axes lie in a picture, in 512ths of its width or height.
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

TargetEditing::TargetEditing() = default;

TargetEditing::~TargetEditing() = default;

void TargetEditing::begin(const QList<ColorTriangleObject> &triangles)
{
    m_triangles = triangles;
    if (!m_triangles.isEmpty()) {
        const TrianglePoint &original = qAsConst(m_triangles).first().trianglePoint();
        m_originalVertices.setRedPos(original.redPos());
        m_originalVertices.setGreenPos(original.greenPos());
        m_originalVertices.setBluePos(original.bluePos());
    }
    SetCentreTriangle();
    SetControlGraphData();
}

void TargetEditing::setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles)
{
    m_triangles = triangles;
    m_centreHandleDrawn = false;
    m_centreHandleChroma = QPointF();
    repaint();
    if (m_triangles.isEmpty()) {
        return;
    }
    const TrianglePoint &original = qAsConst(m_triangles).first().trianglePoint();
    m_originalVertices.setRedPos(toImage(original.redPos()));
    m_originalVertices.setGreenPos(toImage(original.greenPos()));
    m_originalVertices.setBluePos(toImage(original.bluePos()));
}

QList<ColorTriangleObject> TargetEditing::getLsColorTriangleObject()
{
    return m_triangles;
}

void TargetEditing::setLsColorTempertureValuePoints(const QList<QPointF> &points)
{
    m_colorTemperaturePoints = points;
    getBitMap();
}

QList<QPointF> TargetEditing::getLsColorTempertureValuePoints()
{
    return m_colorTemperaturePoints;
}

void TargetEditing::setOtherPoints(const QList<QPointF> &points, const QList<QColor> &colours)
{
    m_otherPoints = points;
    m_otherPointColors = colours;
    repaint();
}

QList<QPointF> TargetEditing::getOtherPoints()
{
    return m_otherPoints;
}

QList<QColor> TargetEditing::getOtherPointsColor()
{
    return m_otherPointColors;
}

void TargetEditing::setImageWidth(int width)
{
    m_imageWidth = width;
    getBitMap();
}

void TargetEditing::setImageHeight(int height)
{
    m_imageHeight = height;
    getBitMap();
}

int TargetEditing::imageWidth()
{
    return m_imageWidth;
}

int TargetEditing::imageHeight()
{
    return m_imageHeight;
}

void TargetEditing::setIsDrawCoordinate(bool draw)
{
    m_drawCoordinate = draw;
    getBitMap();
}

void TargetEditing::setIsDrawBBRLine(bool draw)
{
    m_drawPlanckianLocus = draw;
    getBitMap();
}

void TargetEditing::setIsDrawWaveLength(bool draw)
{
    m_drawWavelengths = draw;
    getBitMap();
}

bool TargetEditing::isDrawCoordinate()
{
    return m_drawCoordinate;
}

bool TargetEditing::isDrawBBRLine()
{
    return m_drawPlanckianLocus;
}

bool TargetEditing::isDrawWaveLength()
{
    return m_drawWavelengths;
}

void TargetEditing::getBitMap()
{
    m_picture.reset();
    m_imageWidth = zoomed(m_imageWidth, m_zoom);
    m_imageHeight = zoomed(m_imageHeight, m_zoom);
    m_picture.reset(renderPicture());
    CoordinateTransformation();
    repaint();
}

void TargetEditing::CoordinateTransformation()
{
    if (m_picture.isSet()) {
        const AxesPlacement axes = axesPlacement(m_picture.size().width(), m_picture.size().height());
        m_originX = axes.originX;
        m_originY = axes.originY;
        m_unitLength = axes.unitLength;
    }
}

void TargetEditing::drawPicture(QPainter *painter, const QRectF &sceneRect, const QSize &viewSize)
{
    m_backgroundTarget = backgroundPlacement(sceneRect, viewSize);
    if (!m_picture.isNull() && !m_backgroundTarget.isEmpty()) {
        m_picture.draw(painter, m_backgroundTarget);
    }
}

void TargetEditing::setDrawColorTPoint(bool draw)
{
    m_drawColorTPoint = draw;
    repaint();
}

bool TargetEditing::isDrawColorTPoint()
{
    return m_drawColorTPoint;
}

void TargetEditing::setIsMouseOper(bool allowed)
{
    m_mouseAllowed = allowed;
}

bool TargetEditing::getIsMouseOper()
{
    return m_mouseAllowed;
}

void TargetEditing::setColorTempertureChecked(bool checked)
{
    m_whiteHeld = checked;
}

void TargetEditing::setRGBPointEnable(bool enable)
{
    m_editMode = enable ? EverythingEditable : VerticesLocked;
}

void TargetEditing::setWhitePointEnable(bool enable)
{
    m_editMode = enable ? EverythingEditable : WhiteLocked;
}

void TargetEditing::setFunctionKeyMode(int mode)
{
    m_functionKeyMode = mode;
}

bool TargetEditing::refreshArea(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing, true);
    QPen pen = painter->pen();
    pen.setColor(QColor(255, 255, 255, 255));
    pen.setWidth(3);
    painter->setPen(pen);
    if (m_triangles.isEmpty()) {
        return true;
    }
    if (!DrawVertexSign(painter)) {
        return false;
    }
    drawFurtherSigns(painter);
    if (m_drawColorTPoint && hasTarget()) {
        targetPoints().setWhiteLum(0);
        targetPoints().setWhitePos(QPointF(0, 0));
    }
    return true;
}

void TargetEditing::SetCentreTriangle()
{
    if (hasTarget()) {
        const TrianglePoint &target = targetPoints();
        m_targetVertices.setBluePos(target.bluePos());
        m_targetVertices.setGreenPos(target.greenPos());
        m_targetVertices.setRedPos(target.redPos());
    }
}

void TargetEditing::SetControlGraphData()
{
    if (!hasTarget()) {
        return;
    }
    SetCentreTriangle();
    baseCommon::LEDColorType beyond = baseCommon::None;
    TriangleObjecIinitializedEventArgs report;
    report.setIsEffectiveValue(
        checkTarget(m_triangles.at(0), m_triangles.at(1), beyond) && CompareSetBrightValueIsValid());
    report.setColorTriangleObjectList({m_triangles.at(0), m_triangles.at(1)});
    report.setBeyondColorType(beyond);
    reportInitialized(report);
}

bool TargetEditing::checkTarget(
    const ColorTriangleObject &original, const ColorTriangleObject &target, baseCommon::LEDColorType &beyond)
{
    const AxesPlacement axes = axesPlacement(m_imageWidth, m_imageHeight);
    m_originX = axes.originX;
    m_originY = axes.originY;
    m_unitLength = axes.unitLength;

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

void TargetEditing::refreshTargetReport()
{
    baseCommon::LEDColorType beyond = baseCommon::None;
    m_targetReport.setColorTriangleObject(m_triangles.at(1));
    m_targetReport.setColourTemperature(GetColourTemperatureValue(targetPoints().whitePos()));
    m_targetReport.setIsReasonableData(checkTarget(m_triangles.at(0), m_triangles.at(1), beyond));
}

double TargetEditing::round(double value)
{
    return QString::number(value, 'f', 3).toDouble();
}

int TargetEditing::GetColourTemperatureValue(QPointF white) const
{
    int kelvin = 0;
    ChromaSets::GetColorTemperatureNew(white.x(), white.y(), kelvin);
    return kelvin;
}

void TargetEditing::GetOriginalWhiteLight() { }

bool TargetEditing::CompareBrightValue()
{
    return true;
}

bool TargetEditing::CompareSetBrightValueIsValid()
{
    return true;
}

} // namespace ceiechart
