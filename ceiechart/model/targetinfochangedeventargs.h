// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_TARGETINFOCHANGEDEVENTARGS_H
#define CEIECHART_MODEL_TARGETINFOCHANGEDEVENTARGS_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/colortriangleobject.h>
#include <ceiechart/model/ledcolortype.h>

#include <QObject>

/*!
 * \brief Payload of signal_targetInfoChanged(): the target gamut as it stands.
 *
 * Copied by value: a copy is a fresh object without parent that takes over the payload only. The library
 * registers no meta-type for it: a host that receives it through a queued connection does so itself.
 */
class CEIECHART_EXPORT TargetInfoChangedEventArgs : public QObject {
    Q_OBJECT

public:
    /*! \brief A default triangle, 0 K, no primary outside, not reasonable. */
    TargetInfoChangedEventArgs();
    /*! \brief The same with \a parent, which owns the object when it is not null. */
    explicit TargetInfoChangedEventArgs(QObject *parent);
    /*! \brief Takes over the payload of \a other, not its parent. */
    TargetInfoChangedEventArgs(const TargetInfoChangedEventArgs &other);
    /*! \brief Takes over the payload of \a other. */
    TargetInfoChangedEventArgs &operator=(const TargetInfoChangedEventArgs &other);
    ~TargetInfoChangedEventArgs() override;

    /*! \brief The target gamut. */
    ColorTriangleObject colorTriangleObject() const;
    /*! \brief Sets the target gamut. */
    void setColorTriangleObject(const ColorTriangleObject &colorTriangleObject);

    /*! \brief Correlated colour temperature of the target's white, a whole number of kelvin. */
    double colourTemperature() const;
    /*! \brief Sets the temperature, in kelvin. */
    void setColourTemperature(double colourTemperature);

    /*! \brief The primary that lies outside the original gamut. The scenes leave it at None: see isReasonableData(). */
    baseCommon::LEDColorType beyondColorType() const;
    /*! \brief Sets the primary that lies outside. */
    void setBeyondColorType(const baseCommon::LEDColorType &beyondColorType);

    /*! \brief True when every primary of the target lies inside the original gamut. */
    bool isReasonableData() const;
    /*! \brief Sets whether every primary lies inside. */
    void setIsReasonableData(bool isReasonableData);

private:
    ColorTriangleObject m_colorTriangleObject;
    double m_colourTemperature = 0.0;
    baseCommon::LEDColorType m_beyondColorType;
    bool m_isReasonableData = false;
};

#endif // CEIECHART_MODEL_TARGETINFOCHANGEDEVENTARGS_H
