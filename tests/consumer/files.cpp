// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/descriptionfile.h>
#include <gamutfiles/edid.h>
#include <gamutfiles/iccprofile.h>
#include <gamutfiles/measurementlist.h>
#include <gamutfiles/translations.h>

#include <cstdio>

namespace {

int failures = 0;

void check(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "failed: %s\n", what);
        ++failures;
    }
}

} // namespace

int main()
{
    const auto list = gamutfiles::readMeasurementList(
        "name,Y,x,y\nred,200,0.69,0.3\ngreen,600,0.18,0.72\nblue,80,0.13,0.07\nwhite,880,0.3,0.31\n");
    check(list && list->gamut(QStringLiteral("wall")).has_value(), "a measurement list holds a gamut");
    check(!gamutfiles::readEdid("no EDID") && !gamutfiles::readIccProfile("no profile"), "other bytes are refused");

    gamutfiles::DisplayDescription description;
    description.target = QStringLiteral("Rec.2020");
    const auto read = gamutfiles::readDescription(gamutfiles::descriptionText(description));
    check(read && read->target == description.target && read->original.isEmpty(), "a description is read again");
    check(!gamutfiles::translationFile(QLocale(QLocale::Chinese)).isEmpty(), "there is a translation");
    return failures;
}
