// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_COLORTRIANGLEOBJECT_H
#define CEIECHART_MODEL_COLORTRIANGLEOBJECT_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/trianglepoint.h>

#include <QColor>

#include <string>

/*!
 * \brief A gamut and how it is drawn.
 *
 * A value type, copied memberwise; its triangle never has a parent. Setters store what they are given.
 *
 * The library registers no meta-type for it: a host that receives it through a queued connection does so itself.
 */
class CEIECHART_EXPORT ColorTriangleObject {
public:
    /*!
     * \brief An empty triangle, opaque white, one pixel wide, shown, fully opaque, without a name.
     *
     * Call setType() before use: there is no meaningful default kind.
     */
    ColorTriangleObject();
    /*! \brief Copies all fields; the copy's points have no parent object. */
    ColorTriangleObject(const ColorTriangleObject &other);
    /*! \brief Takes over every field of \a other. */
    ColorTriangleObject &operator=(const ColorTriangleObject &other);
    ~ColorTriangleObject();

    /*! \brief The gamut's points and luminances. */
    TrianglePoint &trianglePoint();
    /*! \brief The gamut's points and luminances. */
    const TrianglePoint &trianglePoint() const;
    /*! \brief Copies \a trianglePoint, but not who its parent is. */
    void setTrianglePoint(const TrianglePoint &trianglePoint);

    /*! \brief Pen and fill colour. */
    QColor foreColor();
    /*! \brief Sets pen and fill colour. */
    void setForeColor(const QColor &foreColor);

    /*! \brief Outline width in pixels. 0 is a line of one pixel; must not be negative. */
    int trigleLineWidth() const;
    /*! \brief Sets the outline width in pixels. */
    void setTrigleLineWidth(int trigleLineWidth);

    /*! \brief For the host's own lists: the renderers draw what they are given, shown or not. */
    bool isShow() const;
    /*! \brief Sets the host's mark. */
    void setShow(bool isShow);

    /*!
     * \brief Kind of gamut: 0 standard, 1 target, 2 original, 3 measured.
     *
     * Lists of triangles are painted by kind; elements of any other kind, and standards, which have a list of
     * their own, are skipped.
     */
    int type() const;
    /*! \brief Sets the kind of gamut. */
    void setType(int type);

    /*!
     * \brief Opacity of a standard's tint, 0.0 to below 1.0, in steps of 1/256.
     *
     * 1.0 and above, and negative values, tint nothing.
     */
    double opacity() const;
    /*! \brief Sets the fill opacity. */
    void setOpacity(double opacity);

    /*! \brief Display name, such as a standard's name; a copy. */
    std::string gamutName();
    /*! \brief Sets the display name. */
    void setGamutName(const std::string &gamutName);

private:
    TrianglePoint m_trianglePoint;
    QColor m_foreColor{255, 255, 255, 255};
    int m_trigleLineWidth = 1;
    bool m_isShow = true;
    int m_type = 0;
    double m_opacity = 1.0;
    std::string m_gamutName;
};

#endif // CEIECHART_MODEL_COLORTRIANGLEOBJECT_H
