// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_TRANSLATIONS_H
#define GAMUTFILES_TRANSLATIONS_H

#include <gamutfiles/gamutfiles_export.h>

#include <QLocale>
#include <QString>

namespace gamutfiles {

/*!
 * \brief The file with the messages of this library in the language of \a locale, for QTranslator::load().
 *
 * Messages are English. If the first user-interface language of \a locale is Chinese, there is a translation, which is
 * built into the library; otherwise the result is empty.
 */
GAMUTFILES_EXPORT QString translationFile(const QLocale &locale = QLocale());

} // namespace gamutfiles

#endif // GAMUTFILES_TRANSLATIONS_H
