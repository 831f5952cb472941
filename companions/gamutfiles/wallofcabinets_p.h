// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_WALLOFCABINETS_P_H
#define GAMUTFILES_WALLOFCABINETS_P_H

#include <gamutfiles/displaywall.h>
#include <gamutfiles/measurementlist.h>

namespace gamutfiles {

/*! \brief wallFromMeasurements() of a list in \a unit whose MeasurementList::cabinets() are \a cabinets. */
Outcome<DisplayWall> wallOfCabinets(const QVector<CabinetMeasurements> &cabinets, LuminanceUnit unit);
/*! \brief The light of a measured \a black: none where its luminance is 0; nothing where it has no chromaticity. */
std::optional<Model::Target> lightOfBlack(const Measurement &black);
/*! \brief The luminance above 0 of a measured \a black that has no chromaticity; nothing otherwise. */
std::optional<double> luminanceOfBlack(const Measurement &black);

} // namespace gamutfiles

#endif
