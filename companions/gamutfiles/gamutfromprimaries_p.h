// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_GAMUTFROMPRIMARIES_P_H
#define GAMUTFILES_GAMUTFROMPRIMARIES_P_H

#include <gamutfiles/outcome.h>

#include <gamutmodel/colorgamut.h>

#include <QPointF>
#include <QString>

namespace gamutfiles {

/*! \brief CIE 1931 chromaticities of a display. */
struct Primaries {
    QPointF red;
    QPointF green;
    QPointF blue;
    QPointF white;
};

/*! \brief How far a chromaticity may lie beyond a limit because a file has few digits of it. */
constexpr double chromaticityRounding = 0.0005;

/*! \brief Which chromaticities primaries may have. */
enum class PrimariesOf {
    Display, //!< those of light: x >= 0, y > 0, x + y <= 1
    /*!
     * \brief Also others, as colour spaces have them to encode every colour (ACES2065-1, for example).
     *
     * y is not 0, as the amount of such a colour cannot be stated by a luminance. The coordinates are from -1 to 2 and
     * have a place on the uniform diagrams, that is -2x + 12y + 3 > 0; no published space is near to these limits.
     */
    ColorSpace
};

/*! \brief Whether \a xy may be that of a primary. No tolerance is applied. */
bool isPrimary(const QPointF &xy, PrimariesOf kind);

/*!
 * \brief The gamut whose primaries mix to a white of luminance \a whiteLuminance, checked as a file may hold anything.
 *
 * A failure names what is not a chromaticity (as \a kind has it, of which rounding to a file's precision may have
 * taken less than \a rounding; the white is always that of a light), primaries that span no triangle, and a white
 * outside of it.
 */
Outcome<Model::ColorGamut> gamutFromPrimaries(const QString &name, Primaries primaries, double whiteLuminance,
    PrimariesOf kind = PrimariesOf::Display, double rounding = chromaticityRounding);

/*! \brief A warning for each primary of \a gamut that is so far outside of the spectral locus that no light has it. */
QVector<Problem> warningsOfTheLocus(const Model::Targets &gamut);

/*!
 * \brief Warnings of primaries that are clockwise, as when two of them are exchanged, and of a white outside of them.
 *
 * Nothing for primaries that span no triangle.
 */
QVector<Problem> warningsOfTheTriangle(const Model::Targets &gamut);

/*!
 * \brief A warning if the white of \a gamut is darker than one of its primaries, by more than rounding: only a slip
 * makes it so.
 */
QVector<Problem> warningsOfTheWhite(const Model::Targets &gamut);

/*!
 * \brief The published gamut that \a gamut is but for \a tolerance in each coordinate: "sRGB", of those of its numbers;
 * empty for none.
 */
QString standardEqualTo(const Model::Targets &gamut, double tolerance);

/*! \brief What to say of primaries that are too near to one line to mix anything. */
QString noTriangleText();

} // namespace gamutfiles

#endif
