// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/translations.h>

#include <QStringList>

/*! \brief Initialises the resource, as a static library must. Q_INIT_RESOURCE works outside of namespaces only. */
static void initTranslationResource()
{
    Q_INIT_RESOURCE(gamutfiles_translations);
}

namespace gamutfiles {

QString translationFile(const QLocale &locale)
{
    const QStringList languages = locale.uiLanguages();
    const QLocale language = languages.isEmpty() ? locale : QLocale(languages.first());
    if (language.language() != QLocale::Chinese) {
        return {};
    }
    initTranslationResource();
    return QStringLiteral(":/gamutfiles/translations/gamutfiles_zh.qm");
}

} // namespace gamutfiles
