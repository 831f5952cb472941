// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/exchangedprimaries.h>
#include <gamutmodel/publishedgamuts.h>

#include <QTest>

#include <array>
#include <limits>
#include <random>

using namespace Model;

Q_DECLARE_METATYPE(Model::Primary)

class ExchangedPrimariesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void publishedGamutsAreNamedRight();
    void displaysOfASpreadAreNamedRight();
    void exchangesAreFound_data();
    void exchangesAreFound();
    void whatIsNotClear();
};

namespace {

Target color(double x, double y)
{
    return Target::fromYxy(1.0, x, y);
}

Targets exchanged(const Targets &of, Primary red, Primary green, Primary blue)
{
    const Target colors[] = {of.red, of.green, of.blue};
    return {colors[int(red)], colors[int(green)], colors[int(blue)], of.white};
}

} // namespace

void ExchangedPrimariesTest::publishedGamutsAreNamedRight()
{
    for (const PublishedGamut &published : publishedGamuts()) {
        QVERIFY2(!exchangedPrimaries(published.gamut.getTargets()), published.gamut.colorGamutName().c_str());
    }
}

void ExchangedPrimariesTest::displaysOfASpreadAreNamedRight()
{
    std::mt19937 random(5);
    std::uniform_real_distribution<double> any(-0.03, 0.03);
    for (int i = 0; i < 100000; ++i) {
        const auto near = [&](double x, double y) { return color(x + any(random), y + any(random)); };
        QVERIFY(!exchangedPrimaries({near(0.69, 0.305), near(0.19, 0.72), near(0.14, 0.065), color(0.31, 0.33)}));
        QVERIFY(!exchangedPrimaries({near(0.64, 0.33), near(0.30, 0.60), near(0.15, 0.06), color(0.31, 0.33)}));
    }
}

void ExchangedPrimariesTest::exchangesAreFound_data()
{
    QTest::addColumn<Primary>("red");
    QTest::addColumn<Primary>("green");
    QTest::addColumn<Primary>("blue");
    QTest::newRow("red and green") << Primary::Green << Primary::Red << Primary::Blue;
    QTest::newRow("red and blue") << Primary::Blue << Primary::Green << Primary::Red;
    QTest::newRow("green and blue") << Primary::Red << Primary::Blue << Primary::Green;
    QTest::newRow("forwards") << Primary::Green << Primary::Blue << Primary::Red;
    QTest::newRow("backwards") << Primary::Blue << Primary::Red << Primary::Green;
}

void ExchangedPrimariesTest::exchangesAreFound()
{
    QFETCH(Primary, red);
    QFETCH(Primary, green);
    QFETCH(Primary, blue);
    std::mt19937 random(6);
    std::uniform_real_distribution<double> any(-0.02, 0.02);
    for (int i = 0; i < 1000; ++i) {
        const auto near = [&](double x, double y) { return color(x + any(random), y + any(random)); };
        const Targets honest{near(0.69, 0.305), near(0.19, 0.71), near(0.14, 0.06), color(0.31, 0.33)};
        const auto found = exchangedPrimaries(exchanged(honest, red, green, blue));
        QVERIFY(found);
        QCOMPARE(found->red, red);
        QCOMPARE(found->green, green);
        QCOMPARE(found->blue, blue);
    }
}

void ExchangedPrimariesTest::whatIsNotClear()
{
    // All green, all white, two of a kind, and no chromaticity
    QVERIFY(!exchangedPrimaries({color(0.05, 0.40), color(0.10, 0.80), color(0.04, 0.55), color(0.05, 0.5)}));
    QVERIFY(!exchangedPrimaries({color(0.31, 0.33), color(0.31, 0.33), color(0.31, 0.33), color(0.31, 0.33)}));
    QVERIFY(!exchangedPrimaries({color(0.30, 0.60), color(0.30, 0.60), color(0.15, 0.06), color(0.31, 0.33)}));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(!exchangedPrimaries({color(0.17, 0.72), color(0.69, 0.31), color(nan, nan), color(0.31, 0.33)}));
}

QTEST_APPLESS_MAIN(ExchangedPrimariesTest)
#include "exchangedprimariestest.moc"
