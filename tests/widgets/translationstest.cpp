// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/gamutstyle.h>
#include <ceiechart/diagram/targetrules.h>
#include <ceiechart/legacy/ceielegend.h>
#include <ceiechart/widgets/ceielegend.h>
#include <ceiechart/widgets/translations.h>

#include "legendtests.h"

class TranslationsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void captionsInTheLanguageOf_data();
    void captionsInTheLanguageOf();
    void defaultLocale();
    void theLastLanguageHolds();
    void translatorsDoNotPileUp();
    void builtIntoTheLibrary();
    void textsOfTheDiagram();
};

static QStringList chineseCaptions()
{
    return LegendTests<NewCEIE::CEIELegend>::allCaptions();
}

static QStringList englishCaptions()
{
    return {QStringLiteral("Original gamut"), QStringLiteral("Target gamut"), QStringLiteral("Common gamut"),
        QStringLiteral("Target point"), QStringLiteral("Original point"), QStringLiteral("Managed point")};
}

static void verifyCaptions(const QStringList &expected)
{
    QCOMPARE(legendCaptions(NewCEIE::CEIELegend(true, nullptr)), expected);
    QCOMPARE(legendCaptions(CEIELegend(true, nullptr)), expected);
}

void TranslationsTest::cleanup()
{
    ceiechart::installTranslations(QLocale(QStringLiteral("zh_CN")));
    QLocale::setDefault(QLocale::c());
}

void TranslationsTest::captionsInTheLanguageOf_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("chinese");
    QTest::newRow("American English") << QStringLiteral("en_US") << false;
    QTest::newRow("British English") << QStringLiteral("en_GB") << false;
    QTest::newRow("C") << QStringLiteral("C") << false;
    QTest::newRow("a language without a translation") << QStringLiteral("de_DE") << false;
    QTest::newRow("Chinese of the mainland") << QStringLiteral("zh_CN") << true;
    QTest::newRow("Chinese of Taiwan") << QStringLiteral("zh_TW") << true;
    QTest::newRow("Chinese") << QStringLiteral("zh") << true;
}

void TranslationsTest::captionsInTheLanguageOf()
{
    QFETCH(QString, locale);
    QFETCH(bool, chinese);
    QVERIFY(ceiechart::installTranslations(QLocale(locale)));
    verifyCaptions(chinese ? chineseCaptions() : englishCaptions());
}

void TranslationsTest::defaultLocale()
{
    QLocale::setDefault(QLocale(QStringLiteral("zh_CN")));
    QVERIFY(ceiechart::installTranslations());
    verifyCaptions(chineseCaptions());
    QLocale::setDefault(QLocale(QStringLiteral("en_US")));
    QVERIFY(ceiechart::installTranslations());
    verifyCaptions(englishCaptions());
}

void TranslationsTest::theLastLanguageHolds()
{
    QVERIFY(ceiechart::installTranslations(QLocale(QLocale::English)));
    QVERIFY(ceiechart::installTranslations(QLocale(QLocale::English)));
    verifyCaptions(englishCaptions());
    QVERIFY(ceiechart::installTranslations(QLocale(QLocale::Chinese)));
    verifyCaptions(chineseCaptions());
}

void TranslationsTest::translatorsDoNotPileUp()
{
    ceiechart::installTranslations(QLocale(QLocale::Chinese));
    const int one = qApp->findChildren<QTranslator *>().size();
    for (int i = 0; i < 3; ++i) {
        ceiechart::installTranslations(QLocale(QLocale::English));
        QCOMPARE(qApp->findChildren<QTranslator *>().size(), one);
    }
    ceiechart::installTranslations(QLocale(QLocale::Chinese));
    QCOMPARE(qApp->findChildren<QTranslator *>().size(), one);
}

void TranslationsTest::builtIntoTheLibrary()
{
    ceiechart::installTranslations(QLocale(QLocale::English));
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/ceiechart/translations/ceiechart_en.qm")));
    QCOMPARE(translator.translate("NewCEIE::CEIELegend", "公共色域"), QStringLiteral("Common gamut"));
    QCOMPARE(translator.translate("CEIELegend", "公共色域"), QStringLiteral("Common gamut"));
}

void TranslationsTest::textsOfTheDiagram()
{
    ceiechart::installTranslations(QLocale(QLocale::Chinese));
    QCOMPARE(ceiechart::gamutRoleName(ceiechart::GamutRole::Target), QStringLiteral("目标"));
    QCOMPARE(ceiechart::gamutVertexName(ceiechart::GamutVertex::Green), QStringLiteral("绿"));
    ceiechart::installTranslations(QLocale(QLocale::English));
    QCOMPARE(ceiechart::gamutRoleName(ceiechart::GamutRole::Target), QStringLiteral("Target"));
    QCOMPARE(ceiechart::gamutVertexName(ceiechart::GamutVertex::Green), QStringLiteral("green"));
}

QTEST_MAIN(TranslationsTest)
#include "translationstest.moc"
