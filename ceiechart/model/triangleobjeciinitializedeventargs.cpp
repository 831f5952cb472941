// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>

TriangleObjecIinitializedEventArgs::TriangleObjecIinitializedEventArgs()
    : TriangleObjecIinitializedEventArgs(nullptr)
{
}

TriangleObjecIinitializedEventArgs::TriangleObjecIinitializedEventArgs(QObject *parent)
    : QObject(parent)
    , m_beyondColorType(baseCommon::None)
{
}

TriangleObjecIinitializedEventArgs::TriangleObjecIinitializedEventArgs(const TriangleObjecIinitializedEventArgs &other)
    : QObject(nullptr)
    , m_colorTriangleObjectList(other.m_colorTriangleObjectList)
    , m_isEffectiveValue(other.m_isEffectiveValue)
    , m_beyondColorType(other.m_beyondColorType)
{
}

TriangleObjecIinitializedEventArgs &TriangleObjecIinitializedEventArgs::operator=(
    const TriangleObjecIinitializedEventArgs &other)
{
    if (this != &other) {
        m_colorTriangleObjectList = other.m_colorTriangleObjectList;
        m_isEffectiveValue = other.m_isEffectiveValue;
        m_beyondColorType = other.m_beyondColorType;
    }
    return *this;
}

TriangleObjecIinitializedEventArgs::~TriangleObjecIinitializedEventArgs() = default;

QList<ColorTriangleObject> TriangleObjecIinitializedEventArgs::colorTriangleObjectList() const
{
    return m_colorTriangleObjectList;
}

void TriangleObjecIinitializedEventArgs::setColorTriangleObjectList(
    const QList<ColorTriangleObject> &colorTriangleObjectList)
{
    m_colorTriangleObjectList = colorTriangleObjectList;
}

bool TriangleObjecIinitializedEventArgs::isEffectiveValue() const
{
    return m_isEffectiveValue;
}

void TriangleObjecIinitializedEventArgs::setIsEffectiveValue(bool isEffectiveValue)
{
    m_isEffectiveValue = isEffectiveValue;
}

baseCommon::LEDColorType TriangleObjecIinitializedEventArgs::beyondColorType() const
{
    return m_beyondColorType;
}

void TriangleObjecIinitializedEventArgs::setBeyondColorType(const baseCommon::LEDColorType &beyondColorType)
{
    m_beyondColorType = beyondColorType;
}
