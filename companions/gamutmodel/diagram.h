// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_DIAGRAM_H
#define GAMUTMODEL_DIAGRAM_H

#include <gamutmodel/gamutmodel_export.h>

/*!
 * \file
 * \brief The chromaticity diagrams and the conversions between their coordinates.
 *
 * Every uniform diagram here is a projective transformation of CIE 1931 x, y with one common denominator,
 * d = -2x + 12y + 3: the first coordinate is 4x / d, the second a multiple of y / d.
 */
namespace Model {

/*! \brief A chromaticity diagram. */
enum class Diagram {
    Cie1931, //!< x, y (ISO/CIE 11664-1)
    Cie1976, //!< u' = 4x / d, v' = 9y / d (ISO 11664-5:2009)
    Cie1960 //!< u = 4x / d, v = 6y / d, in which colour temperature is defined (CIE 15:2018, 9.5)
};

/*! \brief A point of a diagram: x, y or u', v' or u, v. Unitless. */
struct DiagramPoint {
    double x = 0.0; //!< the first coordinate: x, u' or u
    double y = 0.0; //!< the second coordinate: y, v' or v
};

/*! \brief What tells one diagram from another. */
struct DiagramTraits {
    Diagram diagram; //!< which diagram it is
    const char *name; //!< "CIE 1931 x, y", UTF-8, not translated
    const char *xName; //!< of the first coordinate: "x", "u′" or "u", UTF-8
    const char *yName; //!< of the second coordinate: "y", "v′" or "v", UTF-8
    double yFactor; //!< k in k y / d, or 0 for the diagram of x, y itself
};

/*! \brief The traits of \a diagram; those of CIE 1931 for a value that is no diagram. */
GAMUTMODEL_EXPORT const DiagramTraits &diagramTraits(Diagram diagram);

/*! \brief The denominator d that the uniform diagrams share. */
template <typename Real>
constexpr Real uniformDenominator(Real x, Real y)
{
    return -2 * x + 12 * y + 3;
}

/*!
 * \brief CIE 1976 u', v' of the CIE 1931 chromaticity (\a x, \a y), in the precision of \a Real.
 *
 * A denominator of 0 gives infinities or NaN.
 */
template <typename Real>
constexpr void uvFromXy(Real x, Real y, Real &u, Real &v)
{
    const Real d = uniformDenominator(x, y);
    u = 4 * x / d;
    v = 9 * y / d;
}

/*! \brief The point of \a diagram at the CIE 1931 chromaticity \a xy. Not finite where the diagram has none. */
GAMUTMODEL_EXPORT DiagramPoint toDiagram(Diagram diagram, DiagramPoint xy);

/*!
 * \brief The CIE 1931 chromaticity at \a point of \a diagram: the inverse of toDiagram().
 *
 * With v' = 9v / k of the diagram's second coordinate, x = 9u' / (6u' - 16v' + 12) and y = 4v' / (6u' - 16v' + 12).
 * Not finite where the diagram has none.
 */
GAMUTMODEL_EXPORT DiagramPoint fromDiagram(Diagram diagram, DiagramPoint point);

} // namespace Model

#endif // GAMUTMODEL_DIAGRAM_H
