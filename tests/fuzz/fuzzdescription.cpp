// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "promises.h"

#include <gamutfiles/descriptionfile.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto description = gamutfiles::readDescription(fuzz::bytes(data, size));
    fuzz::requireOutcome(description);
    if (!description) {
        return 0;
    }
    for (const gamutfiles::DisplayGamut &gamut : description->gamuts) {
        fuzz::requireGamut(gamut);
    }
    for (const QString &part :
        {description->original, description->declared, description->measured, description->target}) {
        fuzz::require(part.isEmpty() || description->gamut(part), "a part is played by a gamut that exists");
    }
    for (const QString &standard : description->standards) {
        fuzz::require(description->gamut(standard).has_value(), "a standard exists");
    }
    const QByteArray text = gamutfiles::descriptionText(*description);
    const auto again = gamutfiles::readDescription(text);
    fuzz::require(bool(again), "what is written can be read");
    fuzz::require(gamutfiles::descriptionText(*again) == text, "writing and reading changes nothing");
    return 0;
}
