// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/numbers_p.h>

#include <QLocale>
#include <QtTest>

#include <cmath>
#include <random>

using namespace gamutfiles;

Q_DECLARE_METATYPE(gamutfiles::DecimalEvidence)

class NumbersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void evidence_data();
    void evidence();
    void values_data();
    void values();
    void nearestDoubles();
    void notFinite();
    void partsOfTheNumber();
};

void NumbersTest::evidence_data()
{
    QTest::addColumn<DecimalEvidence>("evidence");
    const auto row = [](const char *text, DecimalEvidence evidence) { QTest::newRow(text) << evidence; };
    for (const char *text : {"1", "-12", "1234", "1 234", "1'234", "1’234", "1e5", "+3", "−3", " 7 ", "12 345 678"}) {
        row(text, DecimalEvidence::None);
    }
    for (const char *text : {"0.3", ".5", "5.", "1234.5", "1234.567", "0.123", "1.23", "1,234.5", "1,234,567",
             "1,234,567.8", "1 234.567", "1.234e2", "1.5e-3", "01.234"}) {
        row(text, DecimalEvidence::Point);
    }
    for (const char *text : {"0,3", ",5", "5,", "1234,5", "0,123", "1.234,5", "1.234.567", "1’234,567", "1,5e3"}) {
        row(text, DecimalEvidence::Comma);
    }
    for (const char *text : {"1,234", "12.345", "999,000", "-1,234"}) {
        row(text, DecimalEvidence::Ambiguous);
    }
    for (const char *text : {"", "x", "nan", "inf", "1.2.3", "1,2,3", "1,23,456", "12 34", "1 234 56", "0x10", "1e",
             "e5", "--1", ".", ",", "1,234 567", "1,234.567,8", "1.5 cd", "5%", "1'234,567.8", "1_000", "12:00", "٣"}) {
        row(text, DecimalEvidence::NotANumber);
    }
}

void NumbersTest::evidence()
{
    QFETCH(DecimalEvidence, evidence);
    QCOMPARE(decimalEvidence(QString::fromUtf8(QTest::currentDataTag())), evidence);
}

void NumbersTest::values_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("decimalSign");
    QTest::addColumn<double>("value");
    const auto row = [](const char *name, const QString &text, const char *sign, double value) {
        QTest::newRow(name) << text << QString::fromLatin1(sign) << value;
    };
    row("English", "1,234.5", ".", 1234.5);
    row("German", "1.234,5", ",", 1234.5);
    row("French", "1 234,5", ",", 1234.5);
    row("no-break space", QStringLiteral("1\u00A0234,5"), ",", 1234.5);
    row("narrow no-break space", QStringLiteral("1\u202F234,5"), ",", 1234.5);
    row("thin space", QStringLiteral("1\u2009234,5"), ",", 1234.5);
    row("Swiss", "1'234.5", ".", 1234.5);
    row("curved apostrophe", QStringLiteral("1’234.5"), ".", 1234.5);
    row("thousand with a point", "1,234", ".", 1234.0);
    row("thousand with a comma", "1,234", ",", 1.234);
    row("negative", "-1.5", ".", -1.5);
    row("typesetters' minus", QStringLiteral("−1.5"), ".", -1.5);
    row("exponent", "3127e-4", ".", 0.3127);
    row("exact", "0.30000000000000004", ".", 0.1 + 0.2);
    row("many digits", QString("0.") + QString(300, '3'), ".", 1.0 / 3.0);
}

void NumbersTest::values()
{
    QFETCH(QString, text);
    QFETCH(QString, decimalSign);
    QFETCH(double, value);
    const auto number = readNumber(text, decimalSign.at(0));
    QVERIFY(number);
    QVERIFY(number->value == value);
}

//! Of any number of digits before and behind the decimal sign, the nearest double.
void NumbersTest::nearestDoubles()
{
    std::mt19937 random(1);
    const auto upTo = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    const auto digits = [&](int count) {
        QString text;
        for (int i = 0; i < count; ++i) {
            text += QChar('0' + upTo(9));
        }
        return text;
    };
    for (int i = 0; i < 100000; ++i) {
        const QString text = (upTo(1) == 0 ? QStringLiteral("-") : QString()) + digits(1 + upTo(9)) + QLatin1Char('.')
            + digits(upTo(17));
        const auto number = readNumber(text, QLatin1Char('.'));
        const double nearest = QLocale::c().toDouble(text);
        QVERIFY2(number && number->value == nearest && std::signbit(number->value) == std::signbit(nearest),
            qPrintable(text));
    }
}

void NumbersTest::notFinite()
{
    for (const char *text : {"1e999", "nan", "inf", "-inf", "1,5"}) {
        QVERIFY2(!readNumber(QString::fromLatin1(text), QLatin1Char('.')), text);
    }
    QVERIFY(!readNumber("0." + QString(100000, QLatin1Char('1')), QLatin1Char('.')));
}

void NumbersTest::partsOfTheNumber()
{
    const auto number = readNumber(QStringLiteral("1.234,5"), QLatin1Char(','));
    QVERIFY(number && number->hasDecimals);
    QCOMPARE(number->thousandsSeparator, QChar('.'));
    const auto plain = readNumber(QStringLiteral("1234"), QLatin1Char(','));
    QVERIFY(plain && !plain->hasDecimals && plain->thousandsSeparator.isNull());
}

QTEST_GUILESS_MAIN(NumbersTest)
#include "numberstest.moc"
