// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/translations.h>

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

#include <memory>

// Outside of any namespace, as Qt wants it; a static library needs the call.
static void initTranslationResource()
{
    Q_INIT_RESOURCE(ceiechart_translations);
}

namespace ceiechart {

bool installTranslations(const QLocale &locale)
{
    static QPointer<QTranslator> installed;

    if (!QCoreApplication::instance()) {
        return false;
    }
    delete installed;
    initTranslationResource();
    auto translator = std::make_unique<QTranslator>();
    const QString directory = QStringLiteral(":/ceiechart/translations");
    if (!translator->load(locale, QStringLiteral("ceiechart"), QStringLiteral("_"), directory)
        && !translator->load(QStringLiteral("ceiechart_en"), directory)) {
        return false;
    }
    if (!QCoreApplication::installTranslator(translator.get())) {
        return false;
    }
    installed = translator.release();
    installed->setParent(QCoreApplication::instance());
    return true;
}

} // namespace ceiechart
