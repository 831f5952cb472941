// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_APPS_GIVENFILES_H
#define TESTS_APPS_GIVENFILES_H

#include "gamutfiles/samplefiles.h"
#include "windowfixture.h"

/*! \brief Files as a user has them, and what becomes of them in a window. */
namespace givenfiles {

using namespace gamutviewer;

inline const QByteArray meter
    = "name,Y (cd/m2),x,y\nred,190,0.69,0.30\ngreen,600,0.2,0.7\nblue,120,0.14,0.08\nwhite,910,0.28,0.30\n";
inline const QByteArray description
    = R"json({"version": 1, "name": "Wall", "gamuts": [], "original": "Rec.2020", "target": "DCI-P3(D65)"})json";

inline QString monitor(const WindowFixture &f, const char *name = "monitor.bin")
{
    return writeFile(f.settings, QLatin1String(name), samplefiles::edid());
}

/*! Original, measured, declared and target. */
inline QStringList parts(const DisplayDescription &d)
{
    return {d.original, d.measured, d.declared, d.target};
}

inline QStringList parts(WindowFixture &f)
{
    return parts(f.document().description());
}

} // namespace givenfiles

#endif
