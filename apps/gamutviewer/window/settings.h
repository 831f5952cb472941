// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_SETTINGS_H
#define GAMUTVIEWER_SETTINGS_H

#include <QSettings>

namespace gamutviewer {

/*! \brief What the program remembers for the user: an INI file, wherever the program runs. */
class Settings : public QSettings {
public:
    Settings()
        : QSettings(IniFormat, UserScope, QStringLiteral("gamutviewer"), QStringLiteral("gamutviewer"))
    {
    }
};

} // namespace gamutviewer

#endif
