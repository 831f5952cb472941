// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "listoptions.h"
#include "promises.h"

#include <gamutfiles/measurementlist.h>

using namespace gamutfiles;

//! The first byte is for the options, the others are the list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const auto list = readMeasurementList(fuzz::bytes(data + 1, size - 1), fuzz::listOptions(data[0]));
    fuzz::requireOutcome(list);
    if (!list) {
        return 0;
    }
    int line = 0;
    for (const Measurement &measurement : list->measurements) {
        fuzz::require(measurement.line > line, "measurements are in the order of the file");
        line = measurement.line;
        fuzz::require(std::isfinite(measurement.luminance), "a luminance is finite");
        if (measurement.color) {
            fuzz::requireColor(*measurement.color);
        }
    }
    const QString name = QStringLiteral("list");
    if (const auto gamut = list->gamut(name)) {
        fuzz::requireGamut(*gamut);
        fuzz::require(list->others().size() + 4 - int(list->whiteIsSum) <= list->measurements.size()
                && list->others().size() < list->measurements.size(),
            "the others are those that the gamut does not use");
    }
    fuzz::require(!list->recognized.text().isEmpty(), "it is said how the list was understood");
    int measurements = 0;
    const auto cabinets = list->cabinets();
    for (const CabinetMeasurements &cabinet : cabinets) {
        measurements += int(cabinet.list.measurements.size());
    }
    fuzz::require(
        cabinets.isEmpty() || measurements == list->measurements.size(), "every measurement belongs to one cabinet");
    return 0;
}
