// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_TRANSLATIONS_H
#define CEIECHART_WIDGETS_TRANSLATIONS_H

#include <ceiechart/ceiechart_export.h>

#include <QLocale>

/*! \brief The classes that both generations of the chart share, and functions of the library besides the charts. */
namespace ceiechart {

/*!
 * \brief Installs the translations of the library for the language of \a locale.
 *
 * If the first user-interface language of \a locale is Chinese, captions are Chinese, otherwise English. Charts that
 * exist already follow when the event loop turns. Call this function before the first chart is constructed, so that
 * none is shown in another language.
 *
 * \code
 * QApplication app(argc, argv);
 * ceiechart::installTranslations();
 * \endcode
 *
 * The translations are built into the library. The application owns the translator; another call replaces it. For hosts
 * that load translations themselves, the same files are installed in share/ceiechart/translations.
 *
 * \return whether a translation has been installed; false if there is no application object
 */
CEIECHART_EXPORT bool installTranslations(const QLocale &locale = QLocale());

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_TRANSLATIONS_H
