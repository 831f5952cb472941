// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "edidblock_p.h"

#include <QCoreApplication>

namespace gamutfiles {

Outcome<EdidBlock> readEdidBlock(const QByteArray &)
{
    return Outcome<EdidBlock>::failure(QCoreApplication::translate(
        "gamutfiles::Edid", "is an EDID, which cannot be read here: the program was built without colord"));
}

} // namespace gamutfiles
