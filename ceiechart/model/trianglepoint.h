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
    explicit TrianglePoint(QObject *parent = nullptr);
    /*! \brief Copies the eight fields; the copy has no parent. */
    TrianglePoint(const TrianglePoint &other);
    TrianglePoint &operator=(const TrianglePoint &other);
    ~TrianglePoint() override;

    /*! \brief CIE 1931 (x, y) of the red primary. */
    const QPointF &redPos() const;
    QPointF &redPos();
    void setRedPos(const QPointF &redPos);

    /*! \brief CIE 1931 (x, y) of the green primary. */
    const QPointF &greenPos() const;
    QPointF &greenPos();
    void setGreenPos(const QPointF &greenPos);

    /*! \brief CIE 1931 (x, y) of the blue primary. */
    const QPointF &bluePos() const;
    QPointF &bluePos();
    void setBluePos(const QPointF &bluePos);

    /*! \brief CIE 1931 (x, y) of the white point. */
    const QPointF &whitePos() const;
    QPointF &whitePos();
    void setWhitePos(const QPointF &whitePos);

    /*! \brief Luminance of the red primary, in the host's unit. */
    double redLum() const;
    void setRedLum(const double &redLum);

    /*! \brief Luminance of the green primary, in the host's unit. */
    double greenLum() const;
    void setGreenLum(const double &greenLum);

    /*! \brief Luminance of the blue primary, in the host's unit. */
    double blueLum() const;
    void setBlueLum(const double &blueLum);

    /*! \brief Luminance of the white point, in the host's unit. */
    double whiteLum() const;
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
