// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_TRIANGLEPOINT_H
#define CEIECHART_MODEL_TRIANGLEPOINT_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/pointf.h>

#include <QObject>
#include <QPointF>

#include <vector>

/*!
 * \brief Chromaticities and luminances of the red, green and blue primaries and of the white point of a gamut.
 *
 * Chromaticities are CIE 1931 x, y (unitless). Luminances can have any unit, for example cd/m², but all must have the
 * same. Setters store their argument without checking it.
 *
 * Although the class is a QObject, it is copied by value: a copy is a new object without parent, name or dynamic
 * properties that has the same four chromaticities and four luminances. convertPointF() and toArray() are not const.
 */
class CEIECHART_EXPORT TrianglePoint : public QObject {
    Q_OBJECT

public:
    /*! \brief Creates a gamut whose chromaticities and luminances are all 0. */
    TrianglePoint();
    /*! \brief Creates the same gamut. \a parent owns the object if it is not null. */
    explicit TrianglePoint(QObject *parent);
    /*! \brief Copies the chromaticities and luminances of \a other. The copy has no parent. */
    TrianglePoint(const TrianglePoint &other);
    /*! \brief Copies the chromaticities and luminances of \a other. */
    TrianglePoint &operator=(const TrianglePoint &other);
    ~TrianglePoint() override;

    /*! \brief The chromaticity (CIE 1931 x, y) of the red primary. */
    const QPointF &redPos() const;
    /*! \brief The same chromaticity; it can be changed through the reference. */
    QPointF &redPos();
    /*! \brief Sets the chromaticity (CIE 1931 x, y) of the red primary. */
    void setRedPos(const QPointF &redPos);

    /*! \brief The chromaticity (CIE 1931 x, y) of the green primary. */
    const QPointF &greenPos() const;
    /*! \brief The same chromaticity; it can be changed through the reference. */
    QPointF &greenPos();
    /*! \brief Sets the chromaticity (CIE 1931 x, y) of the green primary. */
    void setGreenPos(const QPointF &greenPos);

    /*! \brief The chromaticity (CIE 1931 x, y) of the blue primary. */
    const QPointF &bluePos() const;
    /*! \brief The same chromaticity; it can be changed through the reference. */
    QPointF &bluePos();
    /*! \brief Sets the chromaticity (CIE 1931 x, y) of the blue primary. */
    void setBluePos(const QPointF &bluePos);

    /*! \brief The chromaticity (CIE 1931 x, y) of the white point. */
    const QPointF &whitePos() const;
    /*! \brief The same chromaticity; it can be changed through the reference. */
    QPointF &whitePos();
    /*! \brief Sets the chromaticity (CIE 1931 x, y) of the white point. */
    void setWhitePos(const QPointF &whitePos);

    /*! \brief The luminance of the red primary, in the host's unit. */
    double redLum() const;
    /*! \brief Sets the luminance of the red primary, in the host's unit. */
    void setRedLum(const double &redLum);

    /*! \brief The luminance of the green primary, in the host's unit. */
    double greenLum() const;
    /*! \brief Sets the luminance of the green primary, in the host's unit. */
    void setGreenLum(const double &greenLum);

    /*! \brief The luminance of the blue primary, in the host's unit. */
    double blueLum() const;
    /*! \brief Sets the luminance of the blue primary, in the host's unit. */
    void setBlueLum(const double &blueLum);

    /*! \brief The luminance of the white point, in the host's unit. */
    double whiteLum() const;
    /*! \brief Sets the luminance of the white point, in the host's unit. */
    void setWhiteLum(const double &whiteLum);

    /*! \brief Whether all four chromaticities are (0, 0). The luminances are not considered. */
    bool isEmpty() const;

    /*! \brief Converts \a point to single precision. Each coordinate is rounded to nearest. */
    PointF convertPointF(QPointF point);

    /*! \brief The chromaticities of the primaries in single precision, in the order red, green, blue. */
    std::vector<PointF> toArray();

private:
    QPointF m_redPos;
    QPointF m_greenPos;
    QPointF m_bluePos;
    QPointF m_whitePos;
    double m_redLum = 0.0;
    double m_greenLum = 0.0;
    double m_blueLum = 0.0;
    double m_whiteLum = 0.0;
};

#endif // CEIECHART_MODEL_TRIANGLEPOINT_H
