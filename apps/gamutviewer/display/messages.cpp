// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/messages.h"

#include <gamutfiles/oneline.h>

#include <QCoreApplication>

#include <cstdio>

namespace gamutviewer {

void printError(const QString &text)
{
    std::fprintf(stderr, "gamutviewer: %s\n", qPrintable(gamutfiles::oneLine(text)));
}

QString memoryIsShort()
{
    return QCoreApplication::translate("gamutviewer::Messages", "there is not enough memory");
}

} // namespace gamutviewer
