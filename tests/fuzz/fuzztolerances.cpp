// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "promises.h"

#include <gamutfiles/tolerancesfile.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto tolerances = gamutfiles::readTolerances(fuzz::bytes(data, size));
    fuzz::requireOutcome(tolerances);
    if (!tolerances) {
        return 0;
    }
    const QByteArray text = gamutfiles::tolerancesText(*tolerances);
    const auto again = gamutfiles::readTolerances(text);
    fuzz::require(bool(again), "what is written can be read");
    fuzz::require(gamutfiles::tolerancesText(*again) == text, "writing and reading changes nothing");
    return 0;
}
