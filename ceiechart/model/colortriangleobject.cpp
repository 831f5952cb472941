// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/model/colortriangleobject.h>

ColorTriangleObject::ColorTriangleObject() = default;
ColorTriangleObject::ColorTriangleObject(const ColorTriangleObject &other) = default;
ColorTriangleObject &ColorTriangleObject::operator=(const ColorTriangleObject &other) = default;
ColorTriangleObject::~ColorTriangleObject() = default;

TrianglePoint &ColorTriangleObject::trianglePoint()
{
    return m_trianglePoint;
}

const TrianglePoint &ColorTriangleObject::trianglePoint() const
{
    return m_trianglePoint;
}

void ColorTriangleObject::setTrianglePoint(const TrianglePoint &trianglePoint)
{
    m_trianglePoint = trianglePoint;
}

QColor ColorTriangleObject::foreColor()
{
    return m_foreColor;
}

void ColorTriangleObject::setForeColor(const QColor &foreColor)
{
    m_foreColor = foreColor;
}

int ColorTriangleObject::trigleLineWidth() const
{
    return m_trigleLineWidth;
}

void ColorTriangleObject::setTrigleLineWidth(int trigleLineWidth)
{
    m_trigleLineWidth = trigleLineWidth;
}

bool ColorTriangleObject::isShow() const
{
    return m_isShow;
}

void ColorTriangleObject::setShow(bool isShow)
{
    m_isShow = isShow;
}

int ColorTriangleObject::type() const
{
    return m_type;
}

void ColorTriangleObject::setType(int type)
{
    m_type = type;
}

double ColorTriangleObject::opacity() const
{
    return m_opacity;
}

void ColorTriangleObject::setOpacity(double opacity)
{
    m_opacity = opacity;
}

std::string ColorTriangleObject::gamutName()
{
    return m_gamutName;
}

void ColorTriangleObject::setGamutName(const std::string &gamutName)
{
    m_gamutName = gamutName;
}
