// SPDX-License-Identifier: MIT
#include "program/interfacetranslations.h"

#include <ceiechart/widgets/translations.h>

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

bool isChinese(const QLocale &locale)
{
    const QStringList languages = locale.uiLanguages();
    return (languages.isEmpty() ? locale : QLocale(languages.first())).language() == QLocale::Chinese;
}

void install(QPointer<QTranslator> &installed, const QString &name, const QString &directory)
{
    installed = new QTranslator(QCoreApplication::instance());
    if (installed->load(name, directory)) {
        QCoreApplication::installTranslator(installed);
    } else {
        delete installed;
    }
}

} // namespace

void installInterfaceTranslations(const QLocale &locale)
{
    static QPointer<QTranslator> interface;
    static QPointer<QTranslator> toolkit;

    ceiechart::installTranslations(locale);
    delete interface;
    delete toolkit;
    if (isChinese(locale)) {
        initTranslationResource();
        install(interface, QStringLiteral("gamutviewer_zh"), QStringLiteral(":/gamutviewer/translations"));
        // The toolkit's own, where the system has it.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        const QString toolkitTranslations = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
        const QString toolkitTranslations = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
        install(toolkit, QStringLiteral("qtbase_") + locale.name(), toolkitTranslations);
    }
}

} // namespace gamutviewer
