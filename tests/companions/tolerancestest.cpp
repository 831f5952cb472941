// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/nearestinside.h>
#include <gamutmodel/tolerances.h>

#include <QTest>

#include <cmath>
#include <limits>

using namespace Model;

class TolerancesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void deviationsOfTheSame();
    void deviationsOfAnother();
    void luminanceOnlyInTheSameUnit();
    void whatIsNotKnown();
    void onlySetLimitsAreJudged();
    void eachLimit_data();
    void eachLimit();
    void orderOfResults();
    void valuesThatAreNoNumbers();
    void limitsThatAreNone();
    void overall();
};

namespace {

const Targets standard709 = rec709().getTargets();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

Target moved(const Target &target, double dx, double dy, double factor = 1.0)
{
    return Target::fromYxy(target.Y * factor, target.x + dx, target.y + dy);
}

Tolerances allLimits()
{
    Tolerances limits;
    limits.whiteUv = limits.primariesUv = limits.luminance = limits.temperature = limits.coverage = 0.5;
    return limits;
}

DeviationValues allValues()
{
    DeviationValues values;
    values.whiteUv = values.redUv = values.greenUv = values.blueUv = values.luminance = values.temperature
        = values.coverage = 0.5;
    return values;
}

} // namespace

void TolerancesTest::deviationsOfTheSame()
{
    const DeviationValues values = deviations(standard709, standard709, LuminanceUnits::Same);
    QVERIFY(values.whiteUv == 0.0 && values.redUv == 0.0 && values.greenUv == 0.0 && values.blueUv == 0.0);
    QVERIFY(values.luminance == 0.0);
    QVERIFY(values.coverage == 1.0);
    QVERIFY(!values.temperature); // is left to the caller
}

void TolerancesTest::deviationsOfAnother()
{
    Targets shown = standard709;
    shown.white = moved(shown.white, 0.001, -0.002, 0.9);
    shown.red = moved(shown.red, -0.01, 0.0);
    shown.green = moved(shown.green, 0.0, -0.02);
    shown.blue = moved(shown.blue, 0.003, 0.003);
    for (const Diagram diagram : {Diagram::Cie1931, Diagram::Cie1976}) {
        const DeviationValues values = deviations(shown, standard709, LuminanceUnits::Same, diagram);
        QVERIFY(values.whiteUv == uvDifference(shown.white, standard709.white));
        QVERIFY(values.redUv == uvDifference(shown.red, standard709.red));
        QVERIFY(values.greenUv == uvDifference(shown.green, standard709.green));
        QVERIFY(values.blueUv == uvDifference(shown.blue, standard709.blue));
        QVERIFY(std::fabs(*values.luminance + 0.1) < 1e-15);
        QVERIFY(values.coverage == gamutCoverage(shown, standard709, diagram).coverage);
        QVERIFY(*values.coverage < 1.0);
    }
}

void TolerancesTest::luminanceOnlyInTheSameUnit()
{
    Targets bright = standard709;
    bright.white = moved(bright.white, 0.0, 0.0, 1000.0);
    QVERIFY(!deviations(bright, standard709).luminance);
    QVERIFY(!deviations(bright, standard709, LuminanceUnits::Different).luminance);
    QCOMPARE(*deviations(bright, standard709, LuminanceUnits::Same).luminance, 999.0);
    bright.white.Y = 0.0;
    QVERIFY(!deviations(bright, standard709, LuminanceUnits::Same).luminance);
    QVERIFY(!deviations(standard709, bright, LuminanceUnits::Same).luminance);
    bright.white.Y = notANumber;
    QVERIFY(!deviations(bright, standard709, LuminanceUnits::Same).luminance);
    QVERIFY(!deviations(standard709, bright, LuminanceUnits::Same).luminance);
}

void TolerancesTest::whatIsNotKnown()
{
    Targets partly = standard709;
    partly.white = Target();
    partly.blue = Target();
    const DeviationValues values = deviations(partly, standard709, LuminanceUnits::Same);
    QVERIFY(!values.whiteUv && !values.blueUv && !values.luminance && !values.coverage);
    QVERIFY(values.redUv == 0.0 && values.greenUv == 0.0);
    partly = standard709;
    partly.green.y = notANumber;
    QVERIFY(!deviations(partly, standard709).coverage);
    QVERIFY(!deviations(standard709, partly).coverage);
    // A target that has no area can not be covered; a display without one covers nothing.
    partly = standard709;
    partly.green = partly.red;
    QVERIFY(!deviations(standard709, partly).coverage);
    QVERIFY(deviations(partly, standard709).coverage == 0.0);
}

void TolerancesTest::onlySetLimitsAreJudged()
{
    QVERIFY(judged(allValues(), Tolerances()).empty());
    Tolerances limits;
    limits.primariesUv = 0.6;
    const auto results = judged(allValues(), limits);
    QCOMPARE(results.size(), std::size_t(3));
    QCOMPARE(results[1].subject, ToleranceSubject::GreenUv);
    QVERIFY(results[1].value == 0.5 && results[1].limit == 0.6);
    QCOMPARE(results[1].verdict, ToleranceVerdict::Passed);
}

void TolerancesTest::eachLimit_data()
{
    QTest::addColumn<int>("subject");
    QTest::addColumn<double>("limit");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("verdict");
    const auto rows = [](const char *name, ToleranceSubject subject, double limit, double sign) {
        const bool isLeast = subject == ToleranceSubject::Coverage;
        const auto row = [&](const char *which, double factor, ToleranceVerdict verdict) {
            QTest::addRow("%s, %s", name, which) << int(subject) << limit << sign * limit * factor << int(verdict);
        };
        const ToleranceVerdict more = isLeast ? ToleranceVerdict::Passed : ToleranceVerdict::Failed;
        const ToleranceVerdict less = isLeast ? ToleranceVerdict::Failed : ToleranceVerdict::Passed;
        row("equal", 1.0, ToleranceVerdict::Passed);
        row("by rounding more", 1.0 + 1e-12, ToleranceVerdict::Passed);
        row("by rounding less", 1.0 - 1e-12, ToleranceVerdict::Passed);
        row("more", 1.0 + 1e-8, more);
        row("less", 1.0 - 1e-8, less);
        row("twice", 2.0, more);
        row("none", 0.0, less);
    };
    rows("white", ToleranceSubject::WhiteUv, 0.004, 1.0);
    rows("red", ToleranceSubject::RedUv, 0.006, 1.0);
    rows("green", ToleranceSubject::GreenUv, 0.006, 1.0);
    rows("blue", ToleranceSubject::BlueUv, 0.006, 1.0);
    rows("brighter", ToleranceSubject::Luminance, 0.1, 1.0);
    rows("darker", ToleranceSubject::Luminance, 0.1, -1.0);
    rows("bluer", ToleranceSubject::Temperature, 300.0, 1.0);
    rows("redder", ToleranceSubject::Temperature, 300.0, -1.0);
    rows("coverage", ToleranceSubject::Coverage, 0.95, 1.0);
    QTest::newRow("limit 0, value 0") << int(ToleranceSubject::WhiteUv) << 0.0 << 0.0 << int(ToleranceVerdict::Passed);
    QTest::newRow("limit 0, value more") << int(ToleranceSubject::WhiteUv) << 0.0 << 1e-12
                                         << int(ToleranceVerdict::Failed);
}

void TolerancesTest::eachLimit()
{
    QFETCH(int, subject);
    QFETCH(double, limit);
    QFETCH(double, value);
    QFETCH(int, verdict);
    Tolerances limits;
    DeviationValues values;
    switch (ToleranceSubject(subject)) {
    case ToleranceSubject::WhiteUv:
        limits.whiteUv = limit;
        values.whiteUv = value;
        break;
    case ToleranceSubject::RedUv:
        limits.primariesUv = limit;
        values.redUv = value;
        break;
    case ToleranceSubject::GreenUv:
        limits.primariesUv = limit;
        values.greenUv = value;
        break;
    case ToleranceSubject::BlueUv:
        limits.primariesUv = limit;
        values.blueUv = value;
        break;
    case ToleranceSubject::Luminance:
        limits.luminance = limit;
        values.luminance = value;
        break;
    case ToleranceSubject::Temperature:
        limits.temperature = limit;
        values.temperature = value;
        break;
    case ToleranceSubject::Coverage:
        limits.coverage = limit;
        values.coverage = value;
        break;
    }
    int found = 0;
    for (const ToleranceResult &result : judged(values, limits)) {
        if (int(result.subject) == subject) {
            ++found;
            QVERIFY(result.value == value && result.limit == limit);
            QCOMPARE(int(result.verdict), verdict);
        } else {
            QCOMPARE(result.verdict, ToleranceVerdict::NotKnown); // the other primaries
        }
    }
    QCOMPARE(found, 1);
}

void TolerancesTest::orderOfResults()
{
    const auto results = judged(DeviationValues(), allLimits());
    QCOMPARE(results.size(), std::size_t(7));
    for (std::size_t i = 0; i < results.size(); ++i) {
        QCOMPARE(std::size_t(results[i].subject), i);
        QVERIFY(!results[i].value);
        QCOMPARE(results[i].verdict, ToleranceVerdict::NotKnown);
    }
}

void TolerancesTest::valuesThatAreNoNumbers()
{
    for (const double bad : {notANumber, std::numeric_limits<double>::infinity()}) {
        DeviationValues values;
        values.whiteUv = values.coverage = bad;
        for (const ToleranceResult &result : judged(values, allLimits())) {
            QCOMPARE(result.verdict, ToleranceVerdict::NotKnown);
        }
    }
}

void TolerancesTest::limitsThatAreNone()
{
    for (const double bad : {notANumber, -0.001, -std::numeric_limits<double>::infinity()}) {
        Tolerances limits;
        limits.whiteUv = limits.coverage = bad;
        const auto results = judged(allValues(), limits);
        QCOMPARE(results.size(), std::size_t(2));
        QCOMPARE(results[0].verdict, ToleranceVerdict::NotKnown);
        QCOMPARE(results[1].verdict, ToleranceVerdict::NotKnown);
    }
}

void TolerancesTest::overall()
{
    const auto of = [](std::initializer_list<ToleranceVerdict> verdicts) {
        std::vector<ToleranceResult> results;
        for (const ToleranceVerdict verdict : verdicts) {
            results.push_back({ToleranceSubject::WhiteUv, 0.0, 0.0, verdict});
        }
        return overallVerdict(results);
    };
    using V = ToleranceVerdict;
    QCOMPARE(of({}), V::NotKnown);
    QCOMPARE(of({V::Passed}), V::Passed);
    QCOMPARE(of({V::Passed, V::NotKnown}), V::NotKnown);
    QCOMPARE(of({V::Failed, V::NotKnown}), V::Failed);
    QCOMPARE(of({V::NotKnown, V::Failed, V::Passed}), V::Failed);
}

QTEST_GUILESS_MAIN(TolerancesTest)
#include "tolerancestest.moc"
