// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_KNOWNDISPLAY_H
#define GAMUTVIEWER_KNOWNDISPLAY_H

#include "display/gamutfiles.h"

#include <ceiechart/diagram/targetrules.h>

#include <optional>
#include <vector>

/*!
 * \file
 * \brief The gamuts of a display that a target is held against.
 */
namespace gamutviewer {

/*! \brief The gamut that stands for what the display can show. */
struct KnownDisplay {
    DisplayGamut gamut;
    bool isMeasured = false; //!< whether it is the measured gamut; otherwise the original
    bool isOfCabinet = false; //!< whether it was measured of one cabinet, and is not known of the display
};

/*!
 * \brief The gamuts of \a description that a target is held against: the original, then the measured gamut.
 *
 * A gamut that has both parts is there once, as the original.
 */
std::vector<KnownDisplay> knownDisplays(const DisplayDescription &description);

/*! \brief The first of knownDisplays(). */
std::optional<KnownDisplay> knownDisplay(const DisplayDescription &description);

/*! \brief The first of knownDisplays() that a primary of the target lies outside of; nothing without such a one. */
std::optional<KnownDisplay> exceededDisplay(const DisplayDescription &description);

/*!
 * \brief By how much the chromaticity of \a primary lies outside of \a display, in Δu′v′; 0 when it does not.
 *
 * It lies outside by the rule of Model::primariesOutside().
 */
double distanceOutside(const Model::Targets &target, ceiechart::GamutVertex primary, const Model::Targets &display);

/*! \brief A gamut of the display that a primary lies outside of. */
struct OutsideOf {
    KnownDisplay display; //!< the gamut
    double distance = 0.0; //!< by how much: distanceOutside()
};

/*!
 * \brief The first of knownDisplays() that \a primary of the target lies outside of; nothing without such a one, and
 * without a target.
 */
std::optional<OutsideOf> outsideOf(const DisplayDescription &description, ceiechart::GamutVertex primary);

/*! \brief Whether luminances in the units \a a and \a b can be compared: both are in cd/m². */
bool luminancesCompare(LuminanceUnit a, LuminanceUnit b);

} // namespace gamutviewer

#endif
