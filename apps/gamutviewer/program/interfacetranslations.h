// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_INTERFACETRANSLATIONS_H
#define GAMUTVIEWER_INTERFACETRANSLATIONS_H

#include <QLocale>

namespace gamutviewer {

/*!
 * \brief Gives the interface, the charts' captions and the toolkit's dialogs the language of \a locale.
 *
 * English, or Chinese where that is the first language of the locale. To be called before the window is made. A later
 * call takes back what the one before has installed.
 */
void installInterfaceTranslations(const QLocale &locale = QLocale());

} // namespace gamutviewer

#endif
