// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/model/targetinfochangedeventargs.h>

TargetInfoChangedEventArgs::TargetInfoChangedEventArgs()
    : TargetInfoChangedEventArgs(nullptr)
{
}

TargetInfoChangedEventArgs::TargetInfoChangedEventArgs(QObject *parent)
    : QObject(parent)
    , m_beyondColorType(baseCommon::None)
{
}

TargetInfoChangedEventArgs::TargetInfoChangedEventArgs(const TargetInfoChangedEventArgs &other)
    : QObject(nullptr)
    , m_colorTriangleObject(other.m_colorTriangleObject)
    , m_colourTemperature(other.m_colourTemperature)
    , m_beyondColorType(other.m_beyondColorType)
    , m_isReasonableData(other.m_isReasonableData)
{
}

TargetInfoChangedEventArgs &TargetInfoChangedEventArgs::operator=(const TargetInfoChangedEventArgs &other)
{
    if (this != &other) {
        m_colorTriangleObject = other.m_colorTriangleObject;
        m_colourTemperature = other.m_colourTemperature;
        m_beyondColorType = other.m_beyondColorType;
        m_isReasonableData = other.m_isReasonableData;
    }
    return *this;
}

TargetInfoChangedEventArgs::~TargetInfoChangedEventArgs() = default;

ColorTriangleObject TargetInfoChangedEventArgs::colorTriangleObject() const
{
    return m_colorTriangleObject;
}

void TargetInfoChangedEventArgs::setColorTriangleObject(const ColorTriangleObject &colorTriangleObject)
{
    m_colorTriangleObject = colorTriangleObject;
}

double TargetInfoChangedEventArgs::colourTemperature() const
{
    return m_colourTemperature;
}

void TargetInfoChangedEventArgs::setColourTemperature(double colourTemperature)
{
    m_colourTemperature = colourTemperature;
}

baseCommon::LEDColorType TargetInfoChangedEventArgs::beyondColorType() const
{
    return m_beyondColorType;
}

void TargetInfoChangedEventArgs::setBeyondColorType(const baseCommon::LEDColorType &beyondColorType)
{
    m_beyondColorType = beyondColorType;
}

bool TargetInfoChangedEventArgs::isReasonableData() const
{
    return m_isReasonableData;
}

void TargetInfoChangedEventArgs::setIsReasonableData(bool isReasonableData)
{
    m_isReasonableData = isReasonableData;
}
