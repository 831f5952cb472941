// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_TARGETINFOCHANGEDEVENTARGS_H
#define CEIECHART_MODEL_TARGETINFOCHANGEDEVENTARGS_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/colortriangleobject.h>
#include <ceiechart/model/ledcolortype.h>

#include <QObject>

/*!
 * \brief Payload of signal_targetInfoChanged(): the current target gamut.
 *
 * Although the class is a QObject, it is copied by value: a copy is a new object without parent that has the same
 * payload. The library does not register a meta-type for it. A host that receives it through a queued connection must
 * register it.
 */
class CEIECHART_EXPORT TargetInfoChangedEventArgs : public QObject {
    Q_OBJECT

public:
    /*! \brief Creates a payload with an empty target, 0 K, baseCommon::None, and isReasonableData() false. */
    TargetInfoChangedEventArgs();
    /*! \brief Creates the same payload. \a parent owns the object if it is not null. */
    explicit TargetInfoChangedEventArgs(QObject *parent);
    /*! \brief Copies the payload of \a other, but not its parent. */
    TargetInfoChangedEventArgs(const TargetInfoChangedEventArgs &other);
    /*! \brief Copies the payload of \a other. */
    TargetInfoChangedEventArgs &operator=(const TargetInfoChangedEventArgs &other);
    ~TargetInfoChangedEventArgs() override;

    /*! \brief The target gamut. */
    ColorTriangleObject colorTriangleObject() const;
    /*! \brief Sets the target gamut. */
    void setColorTriangleObject(const ColorTriangleObject &colorTriangleObject);

    /*!
     * \brief The correlated colour temperature of the target's white point: a whole number of kelvin, 0 if it has none.
     */
    double colourTemperature() const;
    /*! \brief Sets the correlated colour temperature in kelvin. */
    void setColourTemperature(double colourTemperature);

    /*!
     * \brief The primary that lies outside the original gamut.
     *
     * The scenes always report baseCommon::None here. Use isReasonableData() instead.
     */
    baseCommon::LEDColorType beyondColorType() const;
    /*! \brief Sets the primary that lies outside the original gamut. */
    void setBeyondColorType(const baseCommon::LEDColorType &beyondColorType);

    /*! \brief Whether every primary of the target lies inside the original gamut. */
    bool isReasonableData() const;
    /*! \brief Sets whether every primary of the target lies inside the original gamut. */
    void setIsReasonableData(bool isReasonableData);

private:
    ColorTriangleObject m_colorTriangleObject;
    double m_colourTemperature = 0.0;
    baseCommon::LEDColorType m_beyondColorType;
    bool m_isReasonableData = false;
};

#endif // CEIECHART_MODEL_TARGETINFOCHANGEDEVENTARGS_H
