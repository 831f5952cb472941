// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_DIAGRAM_H
#define GAMUTMODEL_DIAGRAM_H

#include <gamutmodel/gamutmodel_export.h>

/*!
 * \file
 * \brief The chromaticity diagrams and the conversions between their coordinates.
 *
 * All uniform diagrams here are projective transformations of CIE 1931 x, y with the same denominator d = -2x + 12y +
 * 3: the first coordinate is 4x / d, the second a multiple of y / d.
 *
 * \code
 * const Model::DiagramPoint d65 = Model::toDiagram(Model::Diagram::Cie1976, {0.3127, 0.3290}); // 0.1978, 0.4683
 * \endcode
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

/*! \brief The properties of a diagram. */
struct DiagramTraits {
    Diagram diagram; //!< the diagram
    const char *name; //!< name, for example "CIE 1931 x, y"; UTF-8, not translated
    const char *xName; //!< name of the first coordinate: "x", "u′" or "u"; UTF-8
    const char *yName; //!< name of the second coordinate: "y", "v′" or "v"; UTF-8
    double yFactor; //!< k in the second coordinate k y / d; 0 for the x, y diagram
};

/*! \brief The properties of \a diagram; those of Diagram::Cie1931 if \a diagram is not a Diagram. */
GAMUTMODEL_EXPORT const DiagramTraits &diagramTraits(Diagram diagram);

/*! \brief The common denominator d of the uniform diagrams. */
template <typename Real>
constexpr Real uniformDenominator(Real x, Real y)
{
    return -2 * x + 12 * y + 3;
}

/*!
 * \brief Converts the CIE 1931 chromaticity (\a x, \a y) to CIE 1976 u', v' (ISO 11664-5:2009), in the precision of \a
 * Real.
 *
 * If the denominator is 0 the results are infinite or NaN.
 */
template <typename Real>
constexpr void uvFromXy(Real x, Real y, Real &u, Real &v)
{
    const Real d = uniformDenominator(x, y);
    u = 4 * x / d;
    v = 9 * y / d;
}

/*! \brief The point of \a diagram for the CIE 1931 chromaticity \a xy. Infinite or NaN if the denominator is 0. */
GAMUTMODEL_EXPORT DiagramPoint toDiagram(Diagram diagram, DiagramPoint xy);

/*!
 * \brief The CIE 1931 chromaticity of \a point of \a diagram: the inverse of toDiagram().
 *
 * x = 9u' / (6u' - 16v' + 12) and y = 4v' / (6u' - 16v' + 12), with v' = 9v / k for a diagram with the second
 * coordinate v = k y / d. The results are infinite or NaN if the denominator is 0.
 */
GAMUTMODEL_EXPORT DiagramPoint fromDiagram(Diagram diagram, DiagramPoint point);

} // namespace Model

#endif // GAMUTMODEL_DIAGRAM_H
