// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/translations.h>

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

#include <memory>

/*! \brief Initialises the resource, as a static library must. Q_INIT_RESOURCE works outside of namespaces only. */
static void initTranslationResource()
{
    Q_INIT_RESOURCE(ceiechart_translations);
}

namespace ceiechart {

namespace {

/*! \brief The language of the translations for \a locale. */
QString languageOf(const QLocale &locale)
{
    const QStringList languages = locale.uiLanguages();
    return (languages.isEmpty() ? locale : QLocale(languages.first())).language() == QLocale::Chinese
        ? QStringLiteral("zh")
        : QStringLiteral("en");
}

} // namespace

bool installTranslations(const QLocale &locale)
{
    static QPointer<QTranslator> installed;

    if (!QCoreApplication::instance()) {
        return false;
    }
    delete installed;
    initTranslationResource();
    auto translator = std::make_unique<QTranslator>();
    const QString name = QStringLiteral("ceiechart_") + languageOf(locale);
    if (!translator->load(name, QStringLiteral(":/ceiechart/translations"))
        || !QCoreApplication::installTranslator(translator.get())) {
        return false;
    }
    installed = translator.release();
    installed->setParent(QCoreApplication::instance());
    return true;
}

} // namespace ceiechart
