// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_FUZZ_LISTOPTIONS_H
#define CEIECHART_TESTS_FUZZ_LISTOPTIONS_H

#include <gamutfiles/measurementlist.h>

#include <cstdint>

namespace fuzz {

/*! \brief What a user can state beside a list, out of the bits of \a choice. */
inline gamutfiles::MeasurementOptions listOptions(std::uint8_t choice)
{
    gamutfiles::MeasurementOptions stated;
    stated.whiteIsSum = choice & 1;
    if (choice & 2) {
        stated.decimalSign = QLatin1Char(choice & 4 ? ',' : '.');
    }
    if (choice & 8) {
        stated.unit = gamutfiles::MeasuredUnit::CandelaPerSquareMetre;
    }
    if (choice & 16) {
        stated.red.line = 2;
    }
    if (choice & 32) {
        stated.cabinet = QStringLiteral("A1");
    }
    return stated;
}

} // namespace fuzz

#endif // CEIECHART_TESTS_FUZZ_LISTOPTIONS_H
