// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "promises.h"

#include <gamutfiles/edid.h>

namespace {

void read(const QByteArray &bytes)
{
    const auto display = gamutfiles::readEdidDisplay(bytes);
    fuzz::requireOutcome(display);
    if (display) {
        fuzz::requireGamut(display->gamut);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = fuzz::bytes(data, size);
    read(bytes);
    const auto fromText = gamutfiles::edidFromHexDump(bytes);
    fuzz::requireOutcome(fromText);
    if (fromText) {
        fuzz::require(gamutfiles::isEdid(*fromText), "what a text holds is an EDID");
        read(*fromText);
    }
    return 0;
}
