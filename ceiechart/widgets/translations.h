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
 * The captions of legends are Chinese in the source, all other texts are English. A locale gets the translation into
 * its language, which is complete for Chinese and English, or, where there is none, into English. Captions of legends
 * are made once: call this before the first legend is.
 *
 * \code
 * QApplication app(argc, argv);
 * ceiechart::installTranslations();
 * \endcode
 *
 * The translations are built into the library. A later call takes back what the one before has installed; the
 * application owns the translator. Installed beside the library, in share/ceiechart/translations, the same files
 * serve hosts that load translations themselves.
 *
 * \return true when a translation has been installed; false without an application object.
 */
CEIECHART_EXPORT bool installTranslations(const QLocale &locale = QLocale());

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_TRANSLATIONS_H
