// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMTICKS_P_H
#define CEIECHART_DIAGRAM_DIAGRAMTICKS_P_H

#include <QString>
#include <QVector>

namespace ceiechart {

/*! \brief The distance of the ticks on an axis: 1, 2 or 5 times a power of ten. */
struct TickScale {
    int digit = 1; //!< 1, 2 or 5
    int exponent = 0; //!< of the power of ten

    /*! \brief The distance. */
    double step() const;
    /*! \brief The decimals that all ticks need, one or more. */
    int decimals() const;
    /*! \brief The value of the tick \a number; that of number 0 is 0. */
    double value(qint64 number) const;
    /*! \brief That value as text; never with a sign before nothing but zeros. */
    QString text(qint64 number) const;
    /*! \brief The numbers of the ticks from \a least to \a most, both included, ascending. */
    QVector<qint64> within(double least, double most) const;
};

/*! \brief The closest ticks that are at least \a least apart; \a least is above 0. */
TickScale ticksAtLeast(double least);

/*! \brief The least of 1, 2 or 5 times a power of ten that is not below \a least, which is above 0. */
double roundStep(double least);

/*!
 * \brief How round a multiple of a step is: the greater, the rounder.
 *
 * The exponent e of the greatest 10^e, 2·10^e or 5·10^e that divides \a value is counted in thirds: 3e, 3e + 1 and
 * 3e + 2. Of 0 it is the greatest.
 *
 * \param value what is looked at; decimals below 0.001 are not
 */
int roundness(double value);

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_DIAGRAMTICKS_P_H
