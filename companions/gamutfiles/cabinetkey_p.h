// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_CABINETKEY_P_H
#define GAMUTFILES_CABINETKEY_P_H

#include <gamutfiles/measurementlist.h>

namespace gamutfiles {

/*! \brief What tells the cabinet of \a measurement from any other; the same for all of a list without cabinets. */
inline QString cabinetKey(const Measurement &measurement)
{
    const auto number = [](const std::optional<int> &value) { return value ? QString::number(*value) : QString(); };
    return measurement.cabinet + QChar(0) + number(measurement.row) + QChar(0) + number(measurement.column);
}

} // namespace gamutfiles

#endif
