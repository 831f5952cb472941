// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/model/trianglepoint.h>

TrianglePoint::TrianglePoint()
    : TrianglePoint(nullptr)
{
}

TrianglePoint::TrianglePoint(QObject *parent)
    : QObject(parent)
{
}

TrianglePoint::TrianglePoint(const TrianglePoint &other)
    : QObject(nullptr)
    , m_redPos(other.m_redPos)
    , m_greenPos(other.m_greenPos)
    , m_bluePos(other.m_bluePos)
    , m_whitePos(other.m_whitePos)
    , m_redLum(other.m_redLum)
    , m_greenLum(other.m_greenLum)
    , m_blueLum(other.m_blueLum)
    , m_whiteLum(other.m_whiteLum)
{
}

TrianglePoint &TrianglePoint::operator=(const TrianglePoint &other)
{
    if (this != &other) {
        m_redPos = other.m_redPos;
        m_greenPos = other.m_greenPos;
        m_bluePos = other.m_bluePos;
        m_whitePos = other.m_whitePos;
        m_redLum = other.m_redLum;
        m_greenLum = other.m_greenLum;
        m_blueLum = other.m_blueLum;
        m_whiteLum = other.m_whiteLum;
    }
    return *this;
}

TrianglePoint::~TrianglePoint() = default;

const QPointF &TrianglePoint::redPos() const
{
    return m_redPos;
}

QPointF &TrianglePoint::redPos()
{
    return m_redPos;
}

void TrianglePoint::setRedPos(const QPointF &redPos)
{
    m_redPos = redPos;
}

const QPointF &TrianglePoint::greenPos() const
{
    return m_greenPos;
}

QPointF &TrianglePoint::greenPos()
{
    return m_greenPos;
}

void TrianglePoint::setGreenPos(const QPointF &greenPos)
{
    m_greenPos = greenPos;
}

const QPointF &TrianglePoint::bluePos() const
{
    return m_bluePos;
}

QPointF &TrianglePoint::bluePos()
{
    return m_bluePos;
}

void TrianglePoint::setBluePos(const QPointF &bluePos)
{
    m_bluePos = bluePos;
}

const QPointF &TrianglePoint::whitePos() const
{
    return m_whitePos;
}

QPointF &TrianglePoint::whitePos()
{
    return m_whitePos;
}

void TrianglePoint::setWhitePos(const QPointF &whitePos)
{
    m_whitePos = whitePos;
}

double TrianglePoint::redLum() const
{
    return m_redLum;
}

void TrianglePoint::setRedLum(const double &redLum)
{
    m_redLum = redLum;
}

double TrianglePoint::greenLum() const
{
    return m_greenLum;
}

void TrianglePoint::setGreenLum(const double &greenLum)
{
    m_greenLum = greenLum;
}

double TrianglePoint::blueLum() const
{
    return m_blueLum;
}

void TrianglePoint::setBlueLum(const double &blueLum)
{
    m_blueLum = blueLum;
}

double TrianglePoint::whiteLum() const
{
    return m_whiteLum;
}

void TrianglePoint::setWhiteLum(const double &whiteLum)
{
    m_whiteLum = whiteLum;
}

bool TrianglePoint::isEmpty() const
{
    return m_redPos.isNull() && m_greenPos.isNull() && m_bluePos.isNull() && m_whitePos.isNull();
}

PointF TrianglePoint::convertPointF(QPointF point)
{
    return {static_cast<float>(point.x()), static_cast<float>(point.y())};
}

std::vector<PointF> TrianglePoint::toArray()
{
    return {convertPointF(m_redPos), convertPointF(m_greenPos), convertPointF(m_bluePos)};
}
