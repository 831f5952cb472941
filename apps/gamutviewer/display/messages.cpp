// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/messages.h"

#include <gamutfiles/oneline.h>

#include <cstdio>

namespace gamutviewer {

void printError(const QString &text)
{
    std::fprintf(stderr, "gamutviewer: %s\n", qPrintable(gamutfiles::oneLine(text)));
}

} // namespace gamutviewer
