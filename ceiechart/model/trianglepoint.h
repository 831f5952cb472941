// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_TRIANGLEPOINT_H
#define CEIECHART_MODEL_TRIANGLEPOINT_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/pointf.h>

#include <QObject>
#include <QPointF>

#include <vector>

/*!
 * \brief Chromaticities and luminances of one display's red, green and blue primaries and of its white point.
 *
 * Positions are CIE 1931 (x, y), luminances are in the host's units; values are stored as given.
 *
 * Although a QObject, it is copied by value: a copy is a fresh object without parent, name or dynamic properties
 * that takes over the eight fields only.
 */
class CEIECHART_EXPORT TrianglePoint : public QObject {
    Q_OBJECT

public:
    /*! \brief All positions and luminances zero. */
    TrianglePoint();
    /*! \brief The same with \a parent, which owns the object when it is not null. */
    explicit TrianglePoint(QObject *parent);
    /*! \brief Copies the eight fields; the copy has no parent. */
    TrianglePoint(const TrianglePoint &other);
    /*! \brief Takes over the eight fields of \a other. */
    TrianglePoint &operator=(const TrianglePoint &other);
    ~TrianglePoint() override;

    /*! \brief CIE 1931 (x, y) of the red primary. */
    const QPointF &redPos() const;
    /*! \brief The same, to change in place. */
    QPointF &redPos();
    /*! \brief Sets the position of the red primary. */
    void setRedPos(const QPointF &redPos);

    /*! \brief CIE 1931 (x, y) of the green primary. */
    const QPointF &greenPos() const;
    /*! \brief The same, to change in place. */
    QPointF &greenPos();
    /*! \brief Sets the position of the green primary. */
    void setGreenPos(const QPointF &greenPos);

    /*! \brief CIE 1931 (x, y) of the blue primary. */
    const QPointF &bluePos() const;
    /*! \brief The same, to change in place. */
    QPointF &bluePos();
    /*! \brief Sets the position of the blue primary. */
    void setBluePos(const QPointF &bluePos);

    /*! \brief CIE 1931 (x, y) of the white point. */
    const QPointF &whitePos() const;
    /*! \brief The same, to change in place. */
    QPointF &whitePos();
    /*! \brief Sets the position of the white point. */
    void setWhitePos(const QPointF &whitePos);

    /*! \brief Luminance of the red primary, in the host's unit. */
    double redLum() const;
    /*! \brief Sets the luminance of the red primary. */
    void setRedLum(const double &redLum);

    /*! \brief Luminance of the green primary, in the host's unit. */
    double greenLum() const;
    /*! \brief Sets the luminance of the green primary. */
    void setGreenLum(const double &greenLum);

    /*! \brief Luminance of the blue primary, in the host's unit. */
    double blueLum() const;
    /*! \brief Sets the luminance of the blue primary. */
    void setBlueLum(const double &blueLum);

    /*! \brief Luminance of the white point, in the host's unit. */
    double whiteLum() const;
    /*! \brief Sets the luminance of the white point. */
    void setWhiteLum(const double &whiteLum);

    /*! \brief True when all four positions are null points; luminances do not count. */
    bool isEmpty() const;

    /*! \brief \a point in single precision, each coordinate rounded to nearest. */
    PointF convertPointF(QPointF point);

    /*! \brief The three vertices in the order red, green, blue. */
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
