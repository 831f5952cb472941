// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_TRIANGLEOBJECIINITIALIZEDEVENTARGS_H
#define CEIECHART_MODEL_TRIANGLEOBJECIINITIALIZEDEVENTARGS_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/colortriangleobject.h>
#include <ceiechart/model/ledcolortype.h>

#include <QList>
#include <QObject>

/*!
 * \brief Payload of signal_triangleObjecIinitialized(): a scene has been constructed with gamuts.
 *
 * Copied by value: a copy is a fresh object without parent that takes over the payload only. The library
 * registers no meta-type for it: a host that receives it through a queued connection does so itself.
 */
class CEIECHART_EXPORT TriangleObjecIinitializedEventArgs : public QObject {
    Q_OBJECT

public:
    /*! \brief An empty list and no primary outside. Call setIsEffectiveValue() before use. */
    TriangleObjecIinitializedEventArgs();
    /*! \brief The same with \a parent, which owns the object when it is not null. */
    explicit TriangleObjecIinitializedEventArgs(QObject *parent);
    /*! \brief Takes over the payload of \a other, not its parent. */
    TriangleObjecIinitializedEventArgs(const TriangleObjecIinitializedEventArgs &other);
    /*! \brief Takes over the payload of \a other. */
    TriangleObjecIinitializedEventArgs &operator=(const TriangleObjecIinitializedEventArgs &other);
    ~TriangleObjecIinitializedEventArgs() override;

    /*! \brief The triangles as the scene now holds them. */
    QList<ColorTriangleObject> colorTriangleObjectList() const;
    /*! \brief Sets the list of triangles. */
    void setColorTriangleObjectList(const QList<ColorTriangleObject> &colorTriangleObjectList);

    /*! \brief True when every primary of the target lies inside the original gamut. */
    bool isEffectiveValue() const;
    /*! \brief Sets whether every primary lies inside. */
    void setIsEffectiveValue(bool isEffectiveValue);

    /*! \brief The first primary of the target that lies outside the original gamut. */
    baseCommon::LEDColorType beyondColorType() const;
    /*! \brief Sets the primary that lies outside. */
    void setBeyondColorType(const baseCommon::LEDColorType &beyondColorType);

private:
    QList<ColorTriangleObject> m_colorTriangleObjectList;
    bool m_isEffectiveValue = false;
    baseCommon::LEDColorType m_beyondColorType;
};

#endif // CEIECHART_MODEL_TRIANGLEOBJECIINITIALIZEDEVENTARGS_H
