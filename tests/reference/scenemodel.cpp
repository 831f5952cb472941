// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "scenemodel.h"

#include <ceiechart/atlas/chromasets.h>

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace reference {

namespace {

// The variable is volatile so that the compiler does not optimise away the rounding to single precision.
float toFloat(double value)
{
    const volatile float result = static_cast<float>(value);
    return result;
}

float toFloat(int value)
{
    const volatile float result = static_cast<float>(value);
    return result;
}

bool coincide(float a, float b)
{
    return static_cast<double>(std::fabs(a - b)) < 0.0010123456789;
}

bool coincide(const PointF &a, const PointF &b)
{
    return coincide(a.x, b.x) && coincide(a.y, b.y);
}

double distance(const PointF &a, const PointF &b)
{
    return std::hypot(
        static_cast<double>(a.x) - static_cast<double>(b.x), static_cast<double>(a.y) - static_cast<double>(b.y));
}

double area(const PointF &x, const PointF &y, const PointF &z)
{
    const float sum = y.x * z.y + x.x * y.y + z.x * x.y - x.y * y.x - z.x * y.y - z.y * x.x;
    return static_cast<double>(0.5F * std::fabs(sum));
}

struct Proportions {
    float originX;
    float originY;
    int unitLength;
};

/*! \brief The position of the axes in a picture, in 512ths of its width or height. */
Proportions proportions(int width, int height)
{
    const float step = 1.0F / 512.0F;
    const float w = toFloat(width);
    const float h = toFloat(height);
    return {w * step * 27.0F, h * step * 483.0F, truncateToInt(static_cast<double>(w * step * 540.0F))};
}

bool exceeds(double luminance, double limit)
{
    return luminance - limit > 1e-9 * std::fabs(limit);
}

} // namespace

QString describe(double value)
{
    return std::isnan(value) ? QStringLiteral("nan") : QString::number(value, 'g', 17);
}

QString describe(const QPointF &point)
{
    return QStringLiteral("(%1, %2)").arg(describe(point.x()), describe(point.y()));
}

QString describe(const TrianglePoint &points)
{
    return QStringLiteral("red %1 %2, green %3 %4, blue %5 %6, white %7 %8")
        .arg(describe(points.redPos()), describe(points.redLum()), describe(points.greenPos()),
            describe(points.greenLum()), describe(points.bluePos()), describe(points.blueLum()),
            describe(points.whitePos()), describe(points.whiteLum()));
}

QString describe(const ColorTriangleObject &triangle)
{
    ColorTriangleObject copy(triangle);
    return QStringLiteral("{%1; %2, width %3, %4, kind %5, opacity %6, name '%7'}")
        .arg(describe(triangle.trianglePoint()), copy.foreColor().name(QColor::HexArgb))
        .arg(triangle.trigleLineWidth())
        .arg(triangle.isShow() ? QStringLiteral("shown") : QStringLiteral("hidden"))
        .arg(triangle.type())
        .arg(describe(triangle.opacity()), QString::fromStdString(copy.gamutName()));
}

QString describe(const QList<ColorTriangleObject> &triangles)
{
    QStringList parts;
    for (const ColorTriangleObject &triangle : triangles) {
        parts << describe(triangle);
    }
    return QStringLiteral("[%1]").arg(parts.join(QStringLiteral(", ")));
}

QString describe(const QList<QPointF> &points)
{
    QStringList parts;
    for (const QPointF &point : points) {
        parts << describe(point);
    }
    return QStringLiteral("[%1]").arg(parts.join(QStringLiteral(", ")));
}

QString describe(const TargetInfoChangedEventArgs &report)
{
    return QStringLiteral("%1, %2 K, beyond %3, %4")
        .arg(describe(report.colorTriangleObject()), describe(report.colourTemperature()))
        .arg(report.beyondColorType())
        .arg(report.isReasonableData() ? QStringLiteral("reasonable") : QStringLiteral("unreasonable"));
}

QString describe(const TriangleObjecIinitializedEventArgs &report)
{
    return QStringLiteral("%1, beyond %2, %3")
        .arg(describe(report.colorTriangleObjectList()))
        .arg(report.beyondColorType())
        .arg(report.isEffectiveValue() ? QStringLiteral("effective") : QStringLiteral("ineffective"));
}

QString describe(const QCursor &cursor)
{
    return QStringLiteral("shape %1").arg(cursor.shape());
}

QString describe(const SceneState &state)
{
    const QStringList points{QStringLiteral("requested ") + describe(state.requested),
        QStringLiteral("current ") + describe(state.current), QStringLiteral("saved ") + describe(state.saved)};
    const QStringList flags{QStringLiteral("vertex selected %1").arg(state.vertexSelected),
        QStringLiteral("centre selected %1").arg(state.centreSelected),
        QStringLiteral("white moved %1").arg(state.whiteMoved),
        QStringLiteral("out of bounds %1").arg(state.outOfBounds), QStringLiteral("hand %1").arg(state.hand),
        QStringLiteral("magnifier %1").arg(state.magnifier)};
    return QStringLiteral("%1, region %2, vertex %3, tab %4, %5, zoom %6")
        .arg(points.join(QStringLiteral(", ")))
        .arg(state.selectedRegion)
        .arg(state.selectedVertex)
        .arg(state.selectedTab)
        .arg(flags.join(QStringLiteral(", ")), describe(static_cast<double>(state.zoom)));
}

QString difference(const QString &what, const QString &actual, const QString &expected)
{
    if (actual == expected) {
        return QString();
    }
    int same = 0;
    while (same < actual.size() && same < expected.size() && actual.at(same) == expected.at(same)) {
        ++same;
    }
    const int from = qMax(0, same - 40);
    return QStringLiteral("%1: '...%2' instead of '...%3'\n").arg(what, actual.mid(from, 160), expected.mid(from, 160));
}

PointF narrowed(const QPointF &point)
{
    return {toFloat(point.x()), toFloat(point.y())};
}

bool isInsidePolygon(const PointF &p, const std::vector<PointF> &polygon)
{
    if (polygon.empty()) {
        return false;
    }
    for (std::size_t i = 0; i < 3; ++i) {
        if (coincide(p, polygon[i])) {
            return true;
        }
    }
    int crossings = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const PointF &a = polygon[i];
        const PointF &b = polygon[i + 1 < polygon.size() ? i + 1 : 0];
        if (a.y == b.y) {
            continue;
        }
        const bool within = (p.y >= a.y && b.y > p.y) || (p.y >= b.y && a.y > p.y);
        if (!within) {
            continue;
        }
        const float x = (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x;
        if (x > p.x) {
            ++crossings;
        }
    }
    if (crossings % 2 == 1) {
        return true;
    }
    const double nearest = std::min({distance(p, polygon[0]), distance(p, polygon[1]), distance(p, polygon[2])});
    return nearest < 1e-5;
}

bool isInsideTriangle(const PointF &p, const PointF &a, const PointF &b, const PointF &c)
{
    return std::fabs(area(a, b, c) - (area(p, b, c) + area(a, p, c) + area(a, b, p))) < 0.0001;
}

const std::vector<PointF> &fence(int region)
{
    static const std::array<std::vector<PointF>, 3> fences{{
        {{0.33F, 0.33F}, {0.493F, 0.517F}, {0.744F, 0.262F}, {0.427F, 0.109F}},
        {{0.33F, 0.33F}, {0.493F, 0.517F}, {0.22F, 0.77F}, {0.118F, 0.83F}, {0.073F, 0.84F}, {0.026F, 0.794F},
            {0.007F, 0.726F}, {0.004F, 0.598F}, {0.009F, 0.503F}, {0.028F, 0.361F}, {0.041F, 0.309F}},
        {{0.33F, 0.33F}, {0.433F, 0.113F}, {0.179F, 0.001F}, {0.16F, 0.002F}, {0.151F, 0.007F}, {0.145F, 0.014F},
            {0.123F, 0.043F}, {0.08F, 0.146F}, {0.041F, 0.291F}},
    }};
    return fences.at(static_cast<std::size_t>(region));
}

int fenceRegion(const PointF &point)
{
    for (int region = 0; region < 3; ++region) {
        if (isInsidePolygon(point, fence(region))) {
            return region;
        }
    }
    return 3;
}

SceneModel::SceneModel(const QList<ColorTriangleObject> &triangles)
    : m_triangles(triangles)
{
    if (!m_triangles.isEmpty()) {
        const TrianglePoint &original = m_triangles.at(0).trianglePoint();
        m_originalVertices.setRedPos(original.redPos());
        m_originalVertices.setGreenPos(original.greenPos());
        m_originalVertices.setBluePos(original.bluePos());
    }
    SetCentreTriangle();
    SetControlGraphData();
}

SceneModel::~SceneModel() = default;

QStringList SceneModel::takeSignals()
{
    QStringList taken;
    taken.swap(m_signals);
    return taken;
}

bool SceneModel::takeUpdate()
{
    return std::exchange(m_updated, false);
}

void SceneModel::record(const QString &signal, const QString &payload)
{
    m_signals << signal + QLatin1Char(' ') + payload;
}

void SceneModel::setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles)
{
    m_triangles = triangles;
    m_listReplacedSincePainting = true;
    update();
    if (m_triangles.isEmpty()) {
        return;
    }
    const TrianglePoint &original = m_triangles.at(0).trianglePoint();
    m_originalVertices.setRedPos(m_mapping.toWholePixel(original.redPos()));
    m_originalVertices.setGreenPos(m_mapping.toWholePixel(original.greenPos()));
    m_originalVertices.setBluePos(m_mapping.toWholePixel(original.bluePos()));
}

void SceneModel::setAllTriangles(const QList<ColorTriangleObject> &triangles)
{
    setLsColorTriangleObject(triangles);
    drawPicture();
}

void SceneModel::setImageWidth(int width)
{
    m_imageWidth = width;
    getBitMap();
}

void SceneModel::setImageHeight(int height)
{
    m_imageHeight = height;
    getBitMap();
}

void SceneModel::setDrawColorTPoint(bool on)
{
    m_isDrawColorTPoint = on;
    update();
}

void SceneModel::setRGBPointEnable(bool enable)
{
    m_editMode = enable ? 0 : 2;
}

void SceneModel::restoreAtNextKey(const QPointF &point)
{
    m_state.saved = point;
    m_restorePending = true;
}

void SceneModel::selectCentre(const QPointF &handle)
{
    m_centreHandle = handle;
    m_state.centreSelected = true;
    m_state.vertexSelected = false;
}

void SceneModel::scaleImage()
{
    m_imageWidth = truncateToInt(static_cast<double>(toFloat(m_imageWidth) * m_state.zoom));
    m_imageHeight = truncateToInt(static_cast<double>(toFloat(m_imageHeight) * m_state.zoom));
}

void SceneModel::drawPicture()
{
    m_hasPicture = true;
    m_mapping.setPicture(m_imageWidth, m_imageHeight);
    const bool exists = m_imageWidth > 0 && m_imageHeight > 0;
    m_pictureWidth = exists ? m_imageWidth : 0;
    m_pictureHeight = exists ? m_imageHeight : 0;
}

void SceneModel::getBitMap()
{
    scaleImage();
    drawPicture();
    m_sceneRectangle = QRectF(0, 0, 672, 728);
    CoordinateTransformation();
    update();
}

QPointF SceneModel::toScene(const QPointF &chroma) const
{
    return QPointF(m_originX + m_unitLength * chroma.x(), m_originY - m_unitLength * chroma.y());
}

QPointF SceneModel::toChroma(const QPointF &position) const
{
    return QPointF((position.x() - m_originX) / m_unitLength, (m_originY - position.y()) / m_unitLength);
}

void SceneModel::CoordinateTransformation()
{
    const Proportions found = proportions(m_pictureWidth, m_pictureHeight);
    m_originX = static_cast<double>(found.originX);
    m_originY = static_cast<double>(found.originY);
    m_unitLength = found.unitLength;
}

bool SceneModel::CheckOriginalAndTarget(
    const ColorTriangleObject &original, const ColorTriangleObject &target, baseCommon::LEDColorType &beyond)
{
    const Proportions found = proportions(m_imageWidth, m_imageHeight);
    m_originX = static_cast<double>(found.originX);
    m_originY = static_cast<double>(found.originY);
    m_unitLength = found.unitLength;

    beyond = baseCommon::None;
    const PointF a = narrowed(original.trianglePoint().redPos());
    const PointF b = narrowed(original.trianglePoint().greenPos());
    const PointF c = narrowed(original.trianglePoint().bluePos());
    if (!isInsideTriangle(narrowed(target.trianglePoint().redPos()), a, b, c)) {
        beyond = baseCommon::Red;
        return false;
    }
    if (!isInsideTriangle(narrowed(target.trianglePoint().greenPos()), a, b, c)) {
        beyond = baseCommon::Green;
        return false;
    }
    if (!isInsideTriangle(narrowed(target.trianglePoint().bluePos()), a, b, c)) {
        beyond = baseCommon::Blue;
        return false;
    }
    return true;
}

int SceneModel::GetColourTemperatureValue(const QPointF &white) const
{
    int temperature = 0;
    ChromaSets::GetColorTemperatureNew(white.x(), white.y(), temperature);
    return temperature;
}

void SceneModel::SetCentreTriangle()
{
    if (!isTargetReady()) {
        return;
    }
    m_targetReference.setBluePos(target().bluePos());
    m_targetReference.setGreenPos(target().greenPos());
    m_targetReference.setRedPos(target().redPos());
}

void SceneModel::SetControlGraphData()
{
    if (!isTargetReady()) {
        return;
    }
    TriangleObjecIinitializedEventArgs payload;
    baseCommon::LEDColorType beyond = baseCommon::None;
    SetCentreTriangle();
    payload.setIsEffectiveValue(CheckOriginalAndTarget(m_triangles.at(0), m_triangles.at(1), beyond));
    payload.setColorTriangleObjectList({m_triangles.at(0), m_triangles.at(1)});
    payload.setBeyondColorType(beyond);
    record(QStringLiteral("signal_triangleObjecIinitialized"), describe(payload));
}

bool SceneModel::isInsideOriginal(const QPointF &position) const
{
    TrianglePoint vertices(m_originalVertices);
    return isInsidePolygon(narrowed(toChroma(position)), vertices.toArray());
}

bool SceneModel::isInsideTarget(const QPointF &position) const
{
    TrianglePoint vertices(m_targetReference);
    return isInsidePolygon(narrowed(toChroma(position)), vertices.toArray());
}

void SceneModel::MoveEllipseSign()
{
    if (isInsideOriginal(m_state.requested) && m_editMode == 0) {
        m_state.outOfBounds = false;
        RefreshEllipseSignPosition();
    } else {
        m_state.outOfBounds = true;
        update();
    }
}

void SceneModel::RefreshEllipseSignPosition()
{
    const int region = fenceRegion(narrowed(toChroma(m_state.requested)));
    if (isTargetReady() && region == m_state.selectedRegion) {
        AddLedColorAndPoint();
    }
}

void SceneModel::AddLedColorAndPoint()
{
    const QPointF chroma = toChroma(m_state.requested);
    m_state.selectedRegion = fenceRegion(narrowed(chroma));
    m_state.current = m_state.requested;
    if (!isTargetReady()) {
        return;
    }
    m_state.vertexSelected = m_state.selectedRegion != 3;
    switch (m_state.selectedRegion) {
    case 0:
        target().setRedPos(chroma);
        m_state.selectedVertex = 1;
        break;
    case 1:
        target().setGreenPos(chroma);
        m_state.selectedVertex = 2;
        break;
    case 2:
        target().setBluePos(chroma);
        m_state.selectedVertex = 3;
        break;
    default:
        m_state.selectedVertex = 0;
        break;
    }
    rebalance();
    update();
    record(QStringLiteral("signal_colorGamutValueChanged"), describe(m_triangles.at(1)));
}

void SceneModel::rebalance()
{
    TrianglePoint &t = target();
    const TrianglePoint o(m_triangles.at(0).trianglePoint());
    double w = 0.0;
    double x = 0.0;
    double y = 0.0;
    if (!m_temperatureChecked) {
        ChromaSets::rgbCxCyToWhiteCxCy(t.redLum(), t.redPos().x(), t.redPos().y(), t.greenLum(), t.greenPos().x(),
            t.greenPos().y(), t.blueLum(), t.bluePos().x(), t.bluePos().y(), w, x, y);
        t.setWhiteLum(w);
        t.setWhitePos(QPointF(x, y));
        return;
    }
    ChromaSets::rgbCxCyToWhiteCxCy(o.redLum(), o.redPos().x(), o.redPos().y(), o.greenLum(), o.greenPos().x(),
        o.greenPos().y(), o.blueLum(), o.bluePos().x(), o.bluePos().y(), w, x, y);
    const QPointF white = t.whitePos();
    double r = 0.0;
    double g = 0.0;
    double b = 0.0;
    for (;;) {
        ChromaSets::RGBCxCyFromWhiteCxCy(r, t.redPos().x(), t.redPos().y(), g, t.greenPos().x(), t.greenPos().y(), b,
            t.bluePos().x(), t.bluePos().y(), w, white.x(), white.y());
        const bool negative = r < 0.0 || g < 0.0 || b < 0.0;
        if (!negative && !exceeds(r, o.redLum()) && !exceeds(g, o.greenLum()) && !exceeds(b, o.blueLum())) {
            break;
        }
        if (w < 10.0) {
            break;
        }
        if (!std::isfinite(w) || !(w - 10.0 < w)) {
            break;
        }
        w = w - 10.0;
    }
    t.setRedLum(r);
    t.setGreenLum(g);
    t.setBlueLum(b);
    t.setWhiteLum(w);
}

void SceneModel::refreshTargetReport()
{
    baseCommon::LEDColorType beyond = baseCommon::None;
    m_reportTriangle = m_triangles.at(1);
    m_reportTemperature = GetColourTemperatureValue(target().whitePos());
    m_reportReasonable = CheckOriginalAndTarget(m_triangles.at(0), m_triangles.at(1), beyond);
}

void SceneModel::emitTargetInfo()
{
    TargetInfoChangedEventArgs report; // its beyond-colour type is never set
    report.setColorTriangleObject(m_reportTriangle);
    report.setColourTemperature(m_reportTemperature);
    report.setIsReasonableData(m_reportReasonable);
    record(QStringLiteral("signal_targetInfoChanged"), describe(report));
}

void SceneModel::MoveCentreTriangle()
{
    if (m_editMode == 1) {
        m_state.whiteMoved = false;
        return;
    }
    SetCentreTriangle();
    const bool inside = isInsideTarget(m_state.requested);
    if (!isTargetReady()) {
        return;
    }
    m_state.whiteMoved = inside;
    if (inside) {
        update();
        refreshTargetReport();
        emitTargetInfo();
    }
}

void SceneModel::MouseClickAire(const QPointF &position)
{
    if (!isTargetReady()) {
        return;
    }
    constexpr std::array<int, 4> tabs{4, 1, 3, 0};
    m_state.selectedTab = tabs.at(static_cast<std::size_t>(fenceRegion(narrowed(toChroma(position)))));
}

QPointF SceneModel::whiteHandle() const
{
    return m_centreHandlePainted ? m_centreHandle : toScene(target().whitePos());
}

SceneModel::Pick SceneModel::pickWhite(const QPointF &position) const
{
    if (!isTargetReady()) {
        return Missed;
    }
    const QPointF white = target().whitePos();
    const bool cleared = white.x() == 0.0 && white.y() == 0.0;
    QList<QPointF> centres;
    if (m_centreHandlePainted) {
        centres << m_centreHandle << toScene(m_centreHandleChroma);
    }
    if (!m_centreHandlePainted || m_listReplacedSincePainting || !cleared) {
        centres << toScene(white);
    }
    const int side = truncateToInt(12.0 * static_cast<double>(m_state.zoom));
    const auto isWithin = [&](const QPointF &centre, double reach) {
        return std::fabs(position.x() - centre.x()) <= reach && std::fabs(position.y() - centre.y()) <= reach;
    };
    constexpr double edge = 2.0;
    int hits = 0;
    int nears = isWithin(toScene(white), side / 2.0 + edge) ? 1 : 0;
    for (const QPointF &centre : qAsConst(centres)) {
        hits += isWithin(centre, side / 2.0 - edge) ? 1 : 0;
        nears += isWithin(centre, side / 2.0 + edge) ? 1 : 0;
    }
    if (hits == centres.size()) {
        return Picked;
    }
    return nears == 0 ? Missed : Uncertain;
}

void SceneModel::MouseSelectedPoint(const QPointF &position)
{
    m_state.centreSelected = pickWhite(position) == Picked;
    if (m_state.centreSelected && m_editMode != 1) {
        MoveCentreTriangle();
        update();
    } else if (m_editMode == 0) {
        AddLedColorAndPoint();
    }
}

void SceneModel::nudge(int key, float step)
{
    const double distance = static_cast<double>(step);
    switch (key) {
    case Qt::Key_Left:
        m_state.requested = QPointF(m_state.current.x() - distance, m_state.current.y());
        break;
    case Qt::Key_Right:
        m_state.requested = QPointF(m_state.current.x() + distance, m_state.current.y());
        break;
    case Qt::Key_Up:
        m_state.requested = QPointF(m_state.current.x(), m_state.current.y() - distance);
        break;
    default:
        m_state.requested = QPointF(m_state.current.x(), m_state.current.y() + distance);
        break;
    }
}

void SceneModel::keyPress(int key)
{
    if (m_restorePending) {
        m_state.current = m_state.saved;
        m_restorePending = false;
    }
    float step = 0.1F;
    m_state.saved = m_state.current;
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        m_state.hand = false;
        SpeedUpThePace(step, key);
        m_lastKey = key;
        nudge(key, step);
        if (m_state.vertexSelected) {
            MoveEllipseSign();
        } else if (m_state.centreSelected) {
            m_state.current = m_centreHandle;
            nudge(key, step);
            MoveCentreTriangle();
        }
        break;
    case Qt::Key_Space:
        record(QStringLiteral("signal_mouseCursorChange"), describe(QCursor(Qt::OpenHandCursor)));
        m_state.hand = m_handOutlivesPress;
        update();
        break;
    default:
        m_state.hand = false;
        break;
    }
    ++m_pressCount;
}

void SceneModel::keyRelease(int key)
{
    if (key == Qt::Key_Space) {
        m_state.hand = false;
        update();
    } else if (m_state.outOfBounds) {
        m_state.outOfBounds = false;
        update();
    }
}

void SceneModel::SpeedUpThePace(float &step, int key)
{
    if (key != m_lastKey) {
        ClearSpeedUpStep();
        return;
    }
    if (m_pressCount <= 10) {
        return;
    }
    if (m_acceleration <= 10) {
        step *= static_cast<float>(m_acceleration + 1);
        ++m_acceleration;
    } else {
        step *= 11.0F;
    }
}

void SceneModel::ClearSpeedUpStep()
{
    m_pressCount = 0;
    m_acceleration = 0;
}

void SceneModel::SetFunctionKeyShortcuts()
{
    switch (m_functionKeyMode) {
    case 0:
        m_state.magnifier = false;
        m_state.hand = false;
        break;
    case 1:
        if (m_state.zoom <= m_zoomLimit) {
            m_state.zoom += m_zoomStep;
            m_state.magnifier = true;
            m_state.hand = false;
            update();
        }
        break;
    case 2:
        m_state.zoom -= m_zoomStep;
        m_state.magnifier = true;
        m_state.hand = false;
        update();
        break;
    case 3:
        m_state.magnifier = true;
        m_state.hand = true;
        break;
    default:
        break;
    }
}

bool SceneModel::refreshArea(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing, true);
    QPen pen = painter.pen();
    pen.setColor(QColor(255, 255, 255, 255));
    pen.setWidth(3);
    painter.setPen(pen);
    if (m_triangles.isEmpty()) {
        return true;
    }
    if (!DrawThreeEllipseSign(painter)) {
        return false;
    }
    paintWhiteHandle();
    if (m_isDrawColorTPoint && m_triangles.size() > 1) {
        target().setWhiteLum(0.0);
        target().setWhitePos(QPointF(0.0, 0.0));
    }
    return true;
}

void SceneModel::paintWhiteHandle() { }

bool SceneModel::DrawThreeEllipseSign(QPainter &painter) const
{
    if (!isTargetReady()) {
        return false;
    }
    painter.save();
    QPen pen = painter.pen();
    pen.setColor(QColor(255, 255, 255, 255));
    pen.setWidth(1);
    painter.setPen(pen);
    const int large = truncateToInt(static_cast<double>(12.0F * m_state.zoom));
    const int small = truncateToInt(static_cast<double>(6.0F * m_state.zoom));
    const TrianglePoint points(target());
    SetEllipseDieplay(painter, points.redPos(), m_state.selectedVertex == 1 ? large : small, 4, 1);
    SetEllipseDieplay(painter, points.greenPos(), m_state.selectedVertex == 2 ? large : small, 1, 2);
    SetEllipseDieplay(painter, points.bluePos(), m_state.selectedVertex == 3 ? large : small, 3, 3);
    painter.restore();
    return true;
}

bool SceneModel::SetEllipseDieplay(QPainter &painter, const QPointF &chroma, int size, int tab, int area) const
{
    const bool isPicked = tab == m_state.selectedTab;
    painter.save();
    QPen pen = painter.pen();
    pen.setColor(isPicked || area == m_state.selectedVertex ? Qt::black : Qt::gray);
    painter.setPen(pen);
    DrawEllipseSign(painter, chroma, isPicked ? truncateToInt(static_cast<double>(m_state.zoom) * 12.0) : size);
    painter.restore();
    return true;
}

void SceneModel::DrawEllipseSign(QPainter &painter, const QPointF &chroma, int size) const
{
    painter.save();
    const QPointF p = toScene(chroma);
    const int half = size / 2;
    const int x = truncateToInt(p.x());
    const int y = truncateToInt(p.y());
    const int left = truncateToInt(p.x() - half);
    const int right = truncateToInt(p.x() + half);
    const int top = truncateToInt(p.y() - half);
    const int bottom = truncateToInt(p.y() + half);
    painter.drawEllipse(left, top, size, size);
    const int region = fenceRegion(narrowed(chroma));
    QPen pen = painter.pen();
    pen.setColor(region == 0 || region == 2 ? QColor(0, 255, 0, 255) : QColor(255, 0, 0, 255));
    painter.setPen(pen);
    painter.drawLine(left, y, right, y);
    painter.drawLine(x, top, x, bottom);
    painter.restore();
}

LegacySceneModel::LegacySceneModel(const QList<ColorTriangleObject> &triangles)
    : SceneModel(triangles)
{
    m_handOutlivesPress = true;
}

QPointF LegacySceneModel::toScene(const QPointF &chroma) const
{
    return m_mapping.toWholePixel(chroma);
}

QPointF LegacySceneModel::toChroma(const QPointF &position) const
{
    return m_mapping.toChroma(position.x(), position.y());
}

void LegacySceneModel::getBitMap()
{
    scaleImage();
    drawPicture();
    m_sceneRectangle = QRectF(0, 0, m_imageWidth, m_imageHeight);
    CoordinateTransformation();
    update();
}

void LegacySceneModel::mousePress(Qt::MouseButton button, const QPointF &position)
{
    if (!m_mouseEditing) {
        return;
    }
    m_buttonDown = true;
    if (m_state.hand) {
        return;
    }
    if (m_state.magnifier) {
        SetFunctionKeyShortcuts();
        return;
    }
    m_state.requested = position;
    m_leftButton = button == Qt::LeftButton;
    if (!m_leftButton || m_triangles.isEmpty()) {
        return;
    }
    m_state.vertexSelected = false;
    m_state.saved = position;
    MouseClickAire(position);
    MouseSelectedPoint(position);
}

bool LegacySceneModel::mouseMove(const QPointF &position)
{
    if (m_buttonDown && m_state.hand) {
        update();
        return true;
    }
    if (m_state.magnifier) {
        return false;
    }
    if (position.x() != m_lastHover.x() || position.y() != m_lastHover.y()) {
        m_lastHover = position;
        record(QStringLiteral("signal_mouseCursorChange"),
            describe(QCursor(m_state.hand ? Qt::OpenHandCursor : Qt::CrossCursor)));
    }
    if (!m_triangles.isEmpty()) {
        m_state.requested = position;
        SetCentreTriangle();
        const bool whiteInside = isInsideTarget(m_state.requested) && m_leftButton;
        if (m_state.whiteMoved && whiteInside) {
            update();
        }
        if (m_leftButton && !drag()) {
            return false;
        }
    }
    update();
    return true;
}

bool LegacySceneModel::drag()
{
    if (m_state.centreSelected && m_editMode != 1) {
        if (m_state.whiteMoved) {
            MoveCentreTriangle();
        }
        return false;
    }
    m_state.centreSelected = false;
    if (m_editMode != 0) {
        return false;
    }
    m_state.vertexSelected = false;
    RefreshEllipseSignPosition();
    return true;
}

bool LegacySceneModel::mouseRelease(Qt::MouseButton button)
{
    m_buttonDown = false;
    m_state.vertexSelected = false;
    if (button == Qt::LeftButton) {
        if (isTargetReady()) {
            refreshTargetReport();
        }
        emitTargetInfo();
        if (m_state.centreSelected && m_temperatureChecked && isTargetReady()) {
            record(QStringLiteral("signal_colorGamutWhiteChanged"), describe(m_triangles.at(1)));
        }
    }
    update();
    m_leftButton = false;
    m_state.centreSelected = false;
    return true;
}

void LegacySceneModel::paintWhiteHandle()
{
    const PointF white = narrowed(target().whitePos());
    int temperature = 0;
    ChromaSets::GetColorTemperatureNew(static_cast<double>(white.x), static_cast<double>(white.y), temperature);
    m_centreHandle = toScene(target().whitePos());
    m_centreHandleChroma = target().whitePos();
    m_centreHandlePainted = true;
    m_listReplacedSincePainting = false;
    record(QStringLiteral("signal_colorTempertrueValueChang"), describe(static_cast<double>(temperature)));
}

} // namespace reference
