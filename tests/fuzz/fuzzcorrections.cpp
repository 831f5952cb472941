// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "promises.h"

#include <gamutfiles/correctionsfile.h>

#include <algorithm>

namespace {

void requireFinite(const gamutfiles::WallCorrections &corrections)
{
    const gamutfiles::CorrectionTarget &target = corrections.target;
    for (const Model::DiagramPoint &xy : {target.red, target.green, target.blue, target.white}) {
        fuzz::require(std::isfinite(xy.x) && std::isfinite(xy.y), "a chromaticity is finite");
    }
    fuzz::require(std::isfinite(target.luminance) && target.luminance > 0.0, "the white has a luminance");
    fuzz::require(!corrections.cabinets.empty(), "there is a cabinet");
    for (const gamutfiles::CabinetCorrection &cabinet : corrections.cabinets) {
        fuzz::require(!cabinet.label().trimmed().isEmpty(), "a cabinet has a name");
        fuzz::require(cabinet.row.has_value() == cabinet.column.has_value(), "a place is a row and a column");
        fuzz::require(cabinet.matrix.has_value() == cabinet.fault.isEmpty(), "there is a matrix or a fault");
        fuzz::require(!cabinet.largestWhite || std::isfinite(*cabinet.largestWhite), "a luminance is finite");
        if (cabinet.matrix) {
            for (const auto &row : cabinet.matrix->rows) {
                for (const double entry : row) {
                    fuzz::require(std::isfinite(entry), "an entry is finite");
                }
            }
        }
    }
}

bool isSame(const Model::DiagramPoint &a, const Model::DiagramPoint &b)
{
    return a.x == b.x && a.y == b.y;
}

bool isSame(const gamutfiles::CabinetCorrection &a, const gamutfiles::CabinetCorrection &b)
{
    return a.name == b.name && a.row == b.row && a.column == b.column && a.fault == b.fault
        && a.largestWhite == b.largestWhite && a.matrix.has_value() == b.matrix.has_value()
        && (!a.matrix || a.matrix->rows == b.matrix->rows);
}

//! To the last bit of every number.
bool isSame(const gamutfiles::WallCorrections &a, const gamutfiles::WallCorrections &b)
{
    return a.unit == b.unit && a.target.name == b.target.name && isSame(a.target.red, b.target.red)
        && isSame(a.target.green, b.target.green) && isSame(a.target.blue, b.target.blue)
        && isSame(a.target.white, b.target.white) && a.target.luminance == b.target.luminance
        && std::equal(a.cabinets.begin(), a.cabinets.end(), b.cabinets.begin(), b.cabinets.end(),
            [](const auto &p, const auto &q) { return isSame(p, q); });
}

//! CSV has one line end, in which two names may become the same.
bool hasWhatCsvHasNot(const gamutfiles::WallCorrections &corrections)
{
    return std::any_of(
        corrections.cabinets.begin(), corrections.cabinets.end(), [](const gamutfiles::CabinetCorrection &cabinet) {
            const auto has = [](const QString &text) { return text.contains(QLatin1Char('\r')); };
            return has(cabinet.name) || has(cabinet.fault);
        });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto corrections = gamutfiles::readCorrections(fuzz::bytes(data, size));
    fuzz::requireOutcome(corrections);
    if (!corrections) {
        return 0;
    }
    requireFinite(*corrections);
    const QByteArray json = gamutfiles::correctionsJson(*corrections);
    const auto again = gamutfiles::readCorrections(json);
    fuzz::require(bool(again), "what is written as JSON can be read");
    fuzz::require(isSame(*again, *corrections), "writing and reading JSON changes nothing");
    if (hasWhatCsvHasNot(*corrections)) {
        return 0;
    }
    const QByteArray csv = gamutfiles::correctionsCsv(*corrections);
    const auto table = gamutfiles::readCorrections(csv);
    fuzz::require(bool(table), "what is written as CSV can be read");
    fuzz::require(isSame(*table, *corrections), "writing and reading CSV changes nothing");
    return 0;
}
