// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "samplegamuts.h"

#include <array>
#include <limits>
#include <utility>

namespace reference {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

template <typename T, std::size_t Size>
T oneOf(QRandomGenerator &random, const std::array<T, Size> &choices)
{
    return choices.at(random.bounded(static_cast<quint32>(Size)));
}

/*!
 * \brief A random luminance. Finite values are either small, so that few steps of 10 are needed, or so large that a
 * step does not change them.
 */
double randomLuminance(QRandomGenerator &random)
{
    switch (random.bounded(12)) {
    case 0:
        return oneOf<double>(random, std::array<double, 7>{0.0, -0.0, -5.0, 1e18, 1e300, infinity, notANumber});
    case 1:
        return randomReal(random, 0.0, 1e5);
    case 2:
        return randomReal(random, -50.0, 50.0);
    default:
        return randomReal(random, 0.5, 400.0);
    }
}

QPointF jittered(QRandomGenerator &random, const QPointF &point, double reach)
{
    return point + randomPoint(random, QRectF(-reach, -reach, 2.0 * reach, 2.0 * reach));
}

/*! \brief The corners of the red, green and blue colour regions; an edge leads from each corner to the next. */
const std::array<QPointF, 13> fenceCorners{QPointF(0.427, 0.109), QPointF(0.33, 0.33), QPointF(0.493, 0.517),
    QPointF(0.744, 0.262), QPointF(0.427, 0.109), QPointF(0.118, 0.83), QPointF(0.22, 0.77), QPointF(0.493, 0.517),
    QPointF(0.33, 0.33), QPointF(0.041, 0.309), QPointF(0.041, 0.291), QPointF(0.33, 0.33), QPointF(0.433, 0.113)};

} // namespace

ColorTriangleObject sampleGamut(const QPointF &red, const QPointF &green, const QPointF &blue, double redLum,
    double greenLum, double blueLum, int type)
{
    TrianglePoint points;
    points.setRedPos(red);
    points.setGreenPos(green);
    points.setBluePos(blue);
    points.setWhitePos(QPointF(0.3127, 0.3290));
    points.setRedLum(redLum);
    points.setGreenLum(greenLum);
    points.setBlueLum(blueLum);
    points.setWhiteLum(redLum + greenLum + blueLum);
    ColorTriangleObject gamut;
    gamut.setTrianglePoint(points);
    gamut.setType(type);
    return gamut;
}

ColorTriangleObject wideGamut()
{
    ColorTriangleObject gamut
        = sampleGamut(QPointF(0.708, 0.292), QPointF(0.170, 0.797), QPointF(0.131, 0.046), 262.7, 678.0, 59.3, 2);
    gamut.setForeColor(QColor(13, 189, 73));
    gamut.setTrigleLineWidth(2);
    gamut.setGamutName("wide");
    return gamut;
}

ColorTriangleObject narrowGamut()
{
    ColorTriangleObject gamut
        = sampleGamut(QPointF(0.64, 0.33), QPointF(0.30, 0.60), QPointF(0.15, 0.06), 212.6, 715.2, 72.2, 1);
    gamut.setForeColor(QColor(255, 163, 56, 200));
    gamut.setOpacity(0.25);
    gamut.setShow(false);
    gamut.setGamutName("narrow");
    return gamut;
}

QList<ColorTriangleObject> gamutPair()
{
    return {wideGamut(), narrowGamut()};
}

double randomReal(QRandomGenerator &random, double low, double high)
{
    return low + (high - low) * random.generateDouble();
}

QPointF closeTo(QRandomGenerator &random, const QPointF &point)
{
    constexpr std::array<double, 8> distances{0.0, 0.0005, 0.00101, 0.00102, -0.0005, -0.00101, -0.00102, 0.0};
    const double dx = oneOf(random, distances);
    return point + QPointF(dx, oneOf(random, distances));
}

// The coordinates are generated in this order with every compiler.
QPointF randomPoint(QRandomGenerator &random, const QRectF &area)
{
    const double x = randomReal(random, area.left(), area.right());
    return QPointF(x, randomReal(random, area.top(), area.bottom()));
}

QPointF randomChroma(QRandomGenerator &random)
{
    switch (random.bounded(10)) {
    case 0:
        return randomPoint(random, QRectF(-0.5, -0.5, 2.0, 2.0));
    case 1: {
        const double x = oneOf<double>(random, std::array<double, 5>{0.0, 0.33, 1e9, -infinity, notANumber});
        return QPointF(x, oneOf<double>(random, std::array<double, 5>{0.0, 0.33, -1e9, infinity, notANumber}));
    }
    case 2:
        return closeTo(random, oneOf(random, fenceCorners));
    case 3: { // on an edge, apart from rounding
        const quint32 corner = random.bounded(static_cast<quint32>(fenceCorners.size() - 1));
        const QPointF start = fenceCorners.at(corner);
        const double along = random.generateDouble();
        return jittered(random, start + along * (fenceCorners.at(corner + 1) - start), 1e-7);
    }
    default:
        return randomPoint(random, QRectF(0.0, 0.0, 0.75, 0.85));
    }
}

ColorTriangleObject randomGamut(QRandomGenerator &random, int type)
{
    ColorTriangleObject gamut = type == 1 ? narrowGamut() : wideGamut();
    TrianglePoint &points = gamut.trianglePoint();
    switch (random.bounded(8)) {
    case 0: // anything
        points.setRedPos(randomChroma(random));
        points.setGreenPos(randomChroma(random));
        points.setBluePos(randomChroma(random));
        points.setWhitePos(randomChroma(random));
        break;
    case 1: // inverted
        std::swap(points.redPos(), points.bluePos());
        break;
    case 2: // a point or a line
        points.setGreenPos(points.redPos());
        if (random.bounded(2) == 0) {
            points.setBluePos(points.redPos());
        }
        break;
    case 3: // empty
        points = TrianglePoint();
        break;
    default:
        points.setRedPos(jittered(random, points.redPos(), 0.03));
        points.setGreenPos(jittered(random, points.greenPos(), 0.03));
        points.setBluePos(jittered(random, points.bluePos(), 0.03));
        break;
    }
    if (random.bounded(2) == 0) {
        points.setRedLum(randomLuminance(random));
        points.setGreenLum(randomLuminance(random));
        points.setBlueLum(randomLuminance(random));
        points.setWhiteLum(randomLuminance(random));
    }
    gamut.setType(type);
    return gamut;
}

QList<ColorTriangleObject> randomGamuts(QRandomGenerator &random)
{
    QList<ColorTriangleObject> gamuts;
    switch (random.bounded(10)) {
    case 0:
        break;
    case 1:
        gamuts << randomGamut(random, 2);
        break;
    case 2:
        gamuts << randomGamut(random, 2) << randomGamut(random, 3) << randomGamut(random, 1);
        break;
    case 3:
        gamuts << narrowGamut() << narrowGamut();
        break;
    case 4:
    case 5:
        gamuts << randomGamut(random, 2) << randomGamut(random, 1);
        break;
    default:
        gamuts = gamutPair();
        gamuts[1].trianglePoint().setRedPos(jittered(random, gamuts[1].trianglePoint().redPos(), 0.02));
        gamuts[1].trianglePoint().setGreenPos(jittered(random, gamuts[1].trianglePoint().greenPos(), 0.02));
        break;
    }
    return gamuts;
}

} // namespace reference
