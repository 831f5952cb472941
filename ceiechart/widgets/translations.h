// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_TRANSLATIONS_H
#define CEIECHART_WIDGETS_TRANSLATIONS_H

#include <ceiechart/ceiechart_export.h>

#include <QLocale>

/*! \brief What both generations share, and what the library offers besides the charts. */
namespace ceiechart {

/*!
 * \brief Gives the library's captions the language of \a locale.
 *
 * A locale whose first user-interface language is Chinese gets Chinese captions, any other locale English ones. A
 * legend makes its captions at construction: call this function before the first chart is constructed.
 *
 * \code
 * QApplication app(argc, argv);
 * ceiechart::installTranslations();
 * \endcode
 *
 * The translations are built into the library. A later call replaces the translator that an earlier call installed; the
 * application owns the translator. Installed beside the library, in share/ceiechart/translations, the same files
 * serve hosts that load translations themselves.
 *
 * \return whether a translation has been installed; false without an application object.
 */
CEIECHART_EXPORT bool installTranslations(const QLocale &locale = QLocale());

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_TRANSLATIONS_H
