// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_COLORTRIANGLEOBJECT_H
#define CEIECHART_MODEL_COLORTRIANGLEOBJECT_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/trianglepoint.h>

#include <QColor>

#include <string>

/*!
 * \brief A gamut and its appearance on the chart.
 *
 * A value type: copies are independent, and the triangle never has a parent object. Setters store their argument
 * without checking it. foreColor() and gamutName() are not const.
 *
 * \code
 * ColorTriangleObject target;
 * target.setType(1); // the target
 * target.setForeColor(QColor(255, 163, 56));
 * target.trianglePoint().setRedPos(QPointF(0.64, 0.33));
 * \endcode
 *
 * The library does not register a meta-type for the class. A host that receives it through a queued connection must
 * register it.
 */
class CEIECHART_EXPORT ColorTriangleObject {
public:
    /*!
     * \brief Creates an empty triangle: opaque white, one pixel wide, shown, opacity 1.0, without a name.
     *
     * The kind is 0, standard. Call setType() for any other.
     */
    ColorTriangleObject();
    /*! \brief Copies all fields of \a other. The triangle of the copy has no parent object. */
    ColorTriangleObject(const ColorTriangleObject &other);
    /*! \brief Copies all fields of \a other. */
    ColorTriangleObject &operator=(const ColorTriangleObject &other);
    ~ColorTriangleObject();

    /*! \brief The chromaticities and luminances of the gamut. */
    TrianglePoint &trianglePoint();
    /*! \brief The chromaticities and luminances of the gamut. */
    const TrianglePoint &trianglePoint() const;
    /*! \brief Copies the eight fields of \a trianglePoint. Its parent object is not copied. */
    void setTrianglePoint(const TrianglePoint &trianglePoint);

    /*! \brief The colour of the outline and of the tint. */
    QColor foreColor();
    /*! \brief Sets the colour of the outline and of the tint. */
    void setForeColor(const QColor &foreColor);

    /*! \brief The width of the outline in pixels. 0 gives a line one pixel wide; negative values are invalid. */
    int trigleLineWidth() const;
    /*! \brief Sets the width of the outline in pixels, 0 or more. */
    void setTrigleLineWidth(int trigleLineWidth);

    /*!
     * \brief Whether the host marks the gamut as shown. The renderers ignore this: they draw all gamuts that they are
     * given.
     */
    bool isShow() const;
    /*! \brief Sets whether the host marks the gamut as shown. */
    void setShow(bool isShow);

    /*!
     * \brief The kind of gamut: 0 standard, 1 target, 2 original, 3 measured (see ceiechart::GamutKind).
     *
     * The renderer draws a list of gamuts by kind. It ignores standards, which have a list of their own, and gamuts of
     * any other kind.
     */
    int type() const;
    /*! \brief Sets the kind of gamut; see type(). */
    void setType(int type);

    /*!
     * \brief The opacity of the tint of a standard, from 0.0 to below 1.0, in steps of 1/256.
     *
     * With 1.0 and above, and with negative values, there is no tint.
     */
    double opacity() const;
    /*! \brief Sets the opacity of the tint; see opacity(). */
    void setOpacity(double opacity);

    /*! \brief A copy of the name, for example that of a standard. */
    std::string gamutName();
    /*! \brief Sets the name. */
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
