// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "promises.h"

#include <gamutfiles/iccprofile.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto display = gamutfiles::readIccDisplay(fuzz::bytes(data, size));
    fuzz::requireOutcome(display);
    if (!display) {
        return 0;
    }
    fuzz::requireGamut(display->gamut);
    fuzz::require(!display->whiteLuminance || (std::isfinite(*display->whiteLuminance) && *display->whiteLuminance > 0),
        "a luminance is above 0");
    return 0;
}
