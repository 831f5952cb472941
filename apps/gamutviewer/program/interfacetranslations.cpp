// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "program/interfacetranslations.h"

#include <ceiechart/widgets/translations.h>
#include <gamutfiles/translations.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>

// Outside of any namespace, as Qt wants it; a static library needs the call.
static void initTranslationResource()
{
    Q_INIT_RESOURCE(gamutviewer_translations);
}

namespace gamutviewer {

namespace {

//! What the interface is to be in, which can differ from the locale of numbers and dates.
QLocale language(const QLocale &locale)
{
    const QStringList languages = locale.uiLanguages();
    return languages.isEmpty() ? locale : QLocale(languages.first());
}

bool install(QPointer<QTranslator> &installed, const QString &name, const QString &directory)
{
    installed = new QTranslator(QCoreApplication::instance());
    if (installed->load(name, directory)) {
        QCoreApplication::installTranslator(installed);
        return true;
    }
    delete installed;
    return false;
}

} // namespace

void installInterfaceTranslations(const QLocale &locale)
{
    static QPointer<QTranslator> interface;
    static QPointer<QTranslator> messages;
    static QPointer<QTranslator> toolkit;

    ceiechart::installTranslations(locale);
    delete interface;
    delete messages;
    delete toolkit;
    const QLocale translated = language(locale);
    if (translated.language() == QLocale::Chinese) {
        initTranslationResource();
        install(interface, QStringLiteral("gamutviewer_zh"), QStringLiteral(":/gamutviewer/translations"));
        install(messages, gamutfiles::translationFile(locale), QString());
        // The toolkit's own, where the system has it.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        const QString toolkitTranslations = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
        const QString toolkitTranslations = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
        // There is one for mainland China and one for Taiwan: Hong Kong, say, reads the latter.
        const bool isTraditional = translated.script() == QLocale::TraditionalHanScript;
        if (!install(toolkit, QStringLiteral("qtbase_") + translated.name(), toolkitTranslations)) {
            install(toolkit, isTraditional ? QStringLiteral("qtbase_zh_TW") : QStringLiteral("qtbase_zh_CN"),
                toolkitTranslations);
        }
    }
}

} // namespace gamutviewer
