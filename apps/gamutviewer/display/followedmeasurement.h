// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_FOLLOWEDMEASUREMENT_H
#define GAMUTVIEWER_FOLLOWEDMEASUREMENT_H

#include "display/gamutfiles.h"

#include <optional>

namespace gamutviewer {

/*! \brief What a measurement that is followed has come to. */
struct FollowedMeasurement {
    /*!
     * \brief The same as if a file had been read that has nothing but it, but for the wall: what that has is not in it.
     *
     * It is named after what is followed and, where it has the gamut of a cabinet, after the cabinet.
     */
    GamutFile file;
    /*! \brief The cabinets that have been measured so far; nothing for a list that is not of a wall, or not yet. */
    std::optional<DisplayWall> wall = std::nullopt;
    /*! \brief The cabinet whose gamut the file has, which others may follow; empty: it is that of the display. */
    QString cabinet = QString();
    /*! \brief Whether it names cabinets: one of a wall that is not known yet, if there is no wall. */
    bool isOfCabinets = false;
};

} // namespace gamutviewer

#endif
