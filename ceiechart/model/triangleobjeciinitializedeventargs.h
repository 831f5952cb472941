// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_TRIANGLEOBJECIINITIALIZEDEVENTARGS_H
#define CEIECHART_MODEL_TRIANGLEOBJECIINITIALIZEDEVENTARGS_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/colortriangleobject.h>
#include <ceiechart/model/ledcolortype.h>

#include <QList>
#include <QObject>

/*!
 * \brief Payload of signal_triangleObjecIinitialized(): the gamuts with which a scene has been constructed.
 *
 * Although the class is a QObject, it is copied by value: a copy is a new object without parent that has the same
 * payload. The library does not register a meta-type for it. A host that receives it through a queued connection must
 * register it.
 */
class CEIECHART_EXPORT TriangleObjecIinitializedEventArgs : public QObject {
    Q_OBJECT

public:
    /*! \brief Creates a payload with an empty list, baseCommon::None, and isEffectiveValue() false. */
    TriangleObjecIinitializedEventArgs();
    /*! \brief Creates the same payload. \a parent owns the object if it is not null. */
    explicit TriangleObjecIinitializedEventArgs(QObject *parent);
    /*! \brief Copies the payload of \a other, but not its parent. */
    TriangleObjecIinitializedEventArgs(const TriangleObjecIinitializedEventArgs &other);
    /*! \brief Copies the payload of \a other. */
    TriangleObjecIinitializedEventArgs &operator=(const TriangleObjecIinitializedEventArgs &other);
    ~TriangleObjecIinitializedEventArgs() override;

    /*! \brief The gamuts that the scene holds: the original and the target. */
    QList<ColorTriangleObject> colorTriangleObjectList() const;
    /*! \brief Sets the list of gamuts. */
    void setColorTriangleObjectList(const QList<ColorTriangleObject> &colorTriangleObjectList);

    /*! \brief Whether every primary of the target lies inside the original gamut. */
    bool isEffectiveValue() const;
    /*! \brief Sets whether every primary of the target lies inside the original gamut. */
    void setIsEffectiveValue(bool isEffectiveValue);

    /*! \brief The first primary of the target that lies outside the original gamut, in the order red, green, blue. */
    baseCommon::LEDColorType beyondColorType() const;
    /*! \brief Sets the primary that lies outside the original gamut. */
    void setBeyondColorType(const baseCommon::LEDColorType &beyondColorType);

private:
    QList<ColorTriangleObject> m_colorTriangleObjectList;
    bool m_isEffectiveValue = false;
    baseCommon::LEDColorType m_beyondColorType;
};

#endif // CEIECHART_MODEL_TRIANGLEOBJECIINITIALIZEDEVENTARGS_H
