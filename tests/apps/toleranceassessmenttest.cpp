// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "assessmentfixture.h"

#include <QtTest>

using namespace assessmentfixture;

class ToleranceAssessmentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void toleranceAtItsLimit_data();
    void toleranceAtItsLimit();
    void tolerancesWithoutAMeasurement();
    void toleranceOfLuminanceNeedsUnits();
    void toleranceOfTheColourTemperature();
    void coverageOfAStandard();
    void valueIsToldApartFromItsLimit();
    void deviationEqualToItsLimit_data();
    void deviationEqualToItsLimit();
    void limitOfManyDecimals_data();
    void limitOfManyDecimals();
};

namespace {

//! What is said of a measured white that is \a deviation in u' off the target's, with \a limit for it.
AssessmentLine judgedWhite(double deviation, double limit)
{
    DisplayDescription d = wall(500);
    const Model::Target &white = d.gamuts[1].getTargets().white;
    const double sum = -2.0 * white.x + 12.0 * white.y + 3.0;
    const double u = 4.0 * white.x / sum + deviation;
    const double v = 9.0 * white.y / sum;
    const double back = 6.0 * u - 16.0 * v + 12.0;
    Model::Targets meter = d.gamuts[1].getTargets();
    meter.white = Model::Target::fromYxy(500, 9.0 * u / back, 4.0 * v / back);
    d.gamuts.push_back(named("Meter", meter, cd));
    d.measured = QStringLiteral("Meter");
    Tolerances tolerances;
    tolerances.limits.whiteUv = limit;
    return about(assess(d, tolerances), Subject::Tolerance).first();
}

} // namespace

void ToleranceAssessmentTest::toleranceAtItsLimit_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("limit");
    // The meter has u', v' of white and green shifted along u', a brighter white, and another colour temperature.
    QTest::newRow("white") << 0.003 << 0;
    QTest::newRow("green") << 0.005 << 1;
    QTest::newRow("luminance") << 0.2 << 2;
    QTest::newRow("coverage") << 1.0 << 3;
}

void ToleranceAssessmentTest::toleranceAtItsLimit()
{
    QFETCH(double, value);
    QFETCH(int, limit);
    const auto shifted = [](const Model::Target &t, double du, double Y) {
        const double d = -2 * t.x + 12 * t.y + 3;
        const double u = 4 * t.x / d + du;
        const double v = 9 * t.y / d;
        const double back = 6 * u - 16 * v + 12;
        return Model::Target::fromYxy(Y, 9 * u / back, 4 * v / back);
    };
    DisplayDescription d = wall(500);
    Model::Targets meter = d.gamuts[1].getTargets();
    meter.white = shifted(meter.white, 0.003, 600.0);
    meter.green = shifted(meter.green, limit == 3 ? 0.0 : -0.005, meter.green.Y);
    d.gamuts.push_back(named("Meter", meter, cd));
    d.measured = QStringLiteral("Meter");
    const auto judged = [&](double at) {
        Tolerances tolerances;
        std::optional<double> Model::Tolerances::*const limits[] = {&Model::Tolerances::whiteUv,
            &Model::Tolerances::primariesUv, &Model::Tolerances::luminance, &Model::Tolerances::coverage};
        tolerances.limits.*limits[limit] = at;
        const auto lines = about(assess(d, tolerances), Subject::Tolerance);
        return lines.at(limit == 1 ? 1 : 0).judgement; // of red, green and blue
    };
    QCOMPARE(judged(limit == 3 ? value - 1e-6 : value + 1e-6), Judgement::Pass);
    QCOMPARE(judged(limit == 3 ? value + 1e-6 : value - 1e-6), Judgement::Fail);
}

void ToleranceAssessmentTest::tolerancesWithoutAMeasurement()
{
    Tolerances tolerances;
    tolerances.limits.whiteUv = 0.004;
    tolerances.limits.primariesUv = 0.004;
    tolerances.standards.append({QStringLiteral("Rec.709"), Model::Diagram::Cie1976, 0.5});
    const Assessment a = assess(wall(500), tolerances);
    const auto lines = about(a, Subject::Tolerance);
    QCOMPARE(lines.size(), 5);
    for (const AssessmentLine &line : lines) {
        QCOMPARE(line.judgement, Judgement::NotKnown);
        QVERIFY(line.text.contains(QLatin1String("no measured gamut of the display is known")));
    }
    QCOMPARE(a.judgement(), Judgement::NotKnown);
    QCOMPARE(a.headline(), QStringLiteral("Not known whether it is in tolerance"));
}

void ToleranceAssessmentTest::toleranceOfLuminanceNeedsUnits()
{
    DisplayDescription d = wall(500);
    d.measured = QStringLiteral("Rec.709");
    Tolerances tolerances;
    tolerances.limits.luminance = 1e9;
    const auto lines = about(assess(d, tolerances), Subject::Tolerance);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first().judgement, Judgement::NotKnown);
    QVERIFY2(lines.first().text.startsWith(
                 QLatin1String("Measured luminance of the white: not known. The luminances cannot be compared: ")),
        qPrintable(lines.first().text));
}

void ToleranceAssessmentTest::toleranceOfTheColourTemperature()
{
    DisplayDescription d = wall(500);
    Model::Targets meter = d.gamuts[1].getTargets();
    // Illuminant A, 2856 K by its definition; D65 of the target has 6504 K (CIE 15:2018, tables T.3 and 9.5).
    meter.white = Model::Target::fromYxy(500, 0.44758, 0.40745);
    d.gamuts.push_back(named("Meter", meter, cd));
    d.measured = QStringLiteral("Meter");
    Tolerances tolerances;
    tolerances.limits.temperature = 6504.0 - 2856.0 + 2.0;
    QCOMPARE(about(assess(d, tolerances), Subject::Tolerance).first().judgement, Judgement::Pass);
    tolerances.limits.temperature = 6504.0 - 2856.0 - 2.0;
    const auto lines = about(assess(d, tolerances), Subject::Tolerance);
    QCOMPARE(lines.first().judgement, Judgement::Fail);
    QVERIFY(lines.first().text.contains(QLatin1String("-36")));
    targetsOf(d, 2).white = Model::Target::fromYxy(500, 0.3, 0.6);
    QCOMPARE(about(assess(d, tolerances), Subject::Tolerance).first().judgement, Judgement::NotKnown);
}

void ToleranceAssessmentTest::coverageOfAStandard()
{
    DisplayDescription d = wall(500);
    d.measured = QStringLiteral("Wall");
    // Rec.709 lies inside of Rec.2020: the areas are 0.11205 and 0.2118665 in x, y (shoelace formula).
    const double covered = 0.11205 / 0.2118665;
    targetsOf(d, 0) = scaled(Model::rec709().getTargets(), 1000.0);
    Tolerances tolerances;
    const auto judged = [&](double limit) {
        tolerances.standards = {{QStringLiteral("Rec.2020"), Model::Diagram::Cie1931, limit}};
        return about(assess(d, tolerances), Subject::Tolerance).first().judgement;
    };
    QCOMPARE(judged(covered - 1e-6), Judgement::Pass);
    QCOMPARE(judged(covered + 1e-6), Judgement::Fail);
    tolerances.standards = {{QStringLiteral("No such gamut"), Model::Diagram::Cie1931, 0.0}};
    const auto lines = about(assess(d, tolerances), Subject::Tolerance);
    QCOMPARE(lines.first().judgement, Judgement::NotKnown);
    QVERIFY(lines.first().text.contains(QLatin1String("no gamut of that name")));
}

void ToleranceAssessmentTest::valueIsToldApartFromItsLimit()
{
    DisplayDescription d = wall(500);
    d.gamuts.push_back(named("Meter", scaled(Model::rec709().getTargets(), 500.0 * 1.10001), cd));
    d.measured = QStringLiteral("Meter");
    Tolerances tolerances;
    tolerances.limits.luminance = 0.1;
    const QString text = about(assess(d, tolerances), Subject::Tolerance).first().text;
    const auto found = numbers(text);
    QVERIFY2(found.at(0) > found.at(1), qPrintable(text));
}

void ToleranceAssessmentTest::deviationEqualToItsLimit_data()
{
    QTest::addColumn<double>("beyond"); // what the deviation has more than the limit of 0.004
    QTest::addColumn<Judgement>("judgement");
    QTest::addColumn<QString>("text");
    const QString equal = QString::fromUtf8("Δu′v′ 0.0040 from the target, limit 0.0040.");
    QTest::newRow("equal") << 0.0 << Judgement::Pass << equal;
    QTest::newRow("less") << -1e-7 << Judgement::Pass << equal;
    QTest::newRow("by rounding") << 2e-13 << Judgement::Pass << equal;
    QTest::newRow("a billionth") << 1e-9 << Judgement::Fail
                                 << QString::fromUtf8("Δu′v′ beyond 0.0040 from the target, limit 0.0040.");
    QTest::newRow("two more decimals") << 2e-6 << Judgement::Fail
                                       << QString::fromUtf8("Δu′v′ 0.004002 from the target, limit 0.004000.");
    QTest::newRow("more") << 1e-3 << Judgement::Fail
                          << QString::fromUtf8("Δu′v′ 0.0050 from the target, limit 0.0040.");
}

void ToleranceAssessmentTest::deviationEqualToItsLimit()
{
    QFETCH(double, beyond);
    QFETCH(Judgement, judgement);
    QFETCH(QString, text);
    const AssessmentLine line = judgedWhite(0.004 + beyond, 0.004);
    QVERIFY2(line.judgement == judgement, qPrintable(line.text));
    QVERIFY2(line.text.contains(text), qPrintable(line.text));
}

void ToleranceAssessmentTest::limitOfManyDecimals_data()
{
    QTest::addColumn<double>("deviation");
    QTest::addColumn<double>("limit");
    QTest::addColumn<Judgement>("judgement");
    QTest::addColumn<QString>("text");
    const auto text = [](const char *value, const char *limit) {
        return QString::fromUtf8("Δu′v′ %1 from the target, limit %2.").arg(QLatin1String(value), QLatin1String(limit));
    };
    QTest::newRow("small, beyond") << 4e-10 << 1e-10 << Judgement::Fail << text("0.0000000004", "0.0000000001");
    QTest::newRow("small, within") << 1e-10 << 4e-10 << Judgement::Pass << text("0.0000000001", "0.0000000004");
    QTest::newRow("long, beyond") << 0.0041234568 << 0.0041234567 << Judgement::Fail
                                  << text("0.0041234568", "0.0041234567");
    QTest::newRow("long, equal") << 0.004123456789 << 0.004123456789 << Judgement::Pass
                                 << text("0.004123456789", "0.004123456789");
    QTest::newRow("five decimals") << 0.00406 << 0.00404 << Judgement::Fail << text("0.00406", "0.00404");
    QTest::newRow("five decimals, within") << 0.0040 << 0.00404 << Judgement::Pass << text("0.00400", "0.00404");
}

void ToleranceAssessmentTest::limitOfManyDecimals()
{
    QFETCH(double, deviation);
    QFETCH(double, limit);
    QFETCH(Judgement, judgement);
    QFETCH(QString, text);
    const AssessmentLine line = judgedWhite(deviation, limit);
    QVERIFY2(line.judgement == judgement, qPrintable(line.text));
    QVERIFY2(line.text.contains(text), qPrintable(line.text));
}

QTEST_GUILESS_MAIN(ToleranceAssessmentTest)
#include "toleranceassessmenttest.moc"
