// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_COMPANIONS_COLORTEMPERATUREORACLE_H
#define CEIECHART_TESTS_COMPANIONS_COLORTEMPERATUREORACLE_H

#include <vector>

namespace reference {

/*! \brief A point in the CIE 1960 chromaticity diagram. */
struct Uv {
    long double u;
    long double v;
};

/*! \brief A CIE 1931 chromaticity. */
struct Xy {
    double x;
    double y;
};

Uv toUv(Xy chromaticity);
Xy toXy(Uv chromaticity);
long double distance(Uv a, Uv b);

/*! \brief The second radiation constant of CODATA 2018, in m K. */
constexpr long double codataC2 = 1.438776877e-2L;
/*! \brief The second radiation constant that most published colour temperatures rest on, in m K. */
constexpr long double conventionalC2 = 1.4388e-2L;

/*! \brief The Planckian locus, summed anew from the colour-matching functions for each point asked for. */
class PlanckianLocus {
public:
    /*! \brief A coordinate and its derivatives with respect to the reciprocal temperature in mired. */
    struct Coordinate {
        long double value;
        long double first;
        long double second;
    };
    struct Point {
        Coordinate u;
        Coordinate v;

        Uv uv() const { return {u.value, v.value}; }
        /*! \brief What lies at \a duv above this point, on the normal through it. */
        Uv offset(long double duv) const;
    };
    struct Foot {
        long double kelvin;
        long double distance;
    };

    /*! \brief Reads the colour-matching functions; aborts the test program if they are not there. */
    explicit PlanckianLocus(long double c2 = codataC2);

    Point at(long double mired) const;
    Uv atKelvin(long double kelvin) const { return at(1e6L / kelvin).uv(); }

    /*!
     * \brief The nearest point of the locus between \a fromMired and \a toMired.
     *
     * It is the nearest of a dense row of samples, and from there a bisection for the zero of the derivative. Of two
     * minima within two mireds it finds any one.
     */
    Foot nearest(Uv chromaticity, int fromMired = 10, int toMired = 1000) const;

private:
    struct Line {
        long double decay; // c2 / wavelength, per mired
        long double x, y, z; // colour-matching functions times wavelength^-5
    };
    std::vector<Line> m_lines;
    std::vector<Uv> m_samples; // one a mired
};

} // namespace reference

#endif
