// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/ceiatlasvalue.h>

#include "model/metaobjectfacts.h"

#include <QFile>
#include <QTest>

#include <cmath>
#include <cstddef>
#include <iterator>

using TColorSystem = CEIAtlasValue::TColorSystem;
using AtlasCoordinate = CEIAtlasValue::CEIAtlasCoordinate;
using TemperatureCoordinate = CEIAtlasValue::CEITemperatureCoordinate;

static_assert(std::is_same_v<decltype(CEIAtlasValue::colorSystem), TColorSystem>);
static_assert(std::is_same_v<decltype(CEIAtlasValue::temperatureCoordinates), QList<TemperatureCoordinate>>);
static_assert(std::is_same_v<decltype(CEIAtlasValue::atlasCoordinates), QList<AtlasCoordinate>>);
static_assert(std::is_same_v<decltype(CEIAtlasValue::spectrumLocus), std::vector<QPointF>>);
static_assert(std::is_same_v<decltype(&CEIAtlasValue::initData), void (CEIAtlasValue::*)()>);
static_assert(!std::is_copy_constructible_v<CEIAtlasValue> && !std::is_copy_assignable_v<CEIAtlasValue>);

// Eight floats in this order.
static_assert(std::is_aggregate_v<TColorSystem> && std::is_trivially_copyable_v<TColorSystem>);
static_assert(sizeof(TColorSystem) == 8 * sizeof(float));
static_assert(std::is_same_v<decltype(TColorSystem::xRed), float> && offsetof(TColorSystem, xRed) == 0);
static_assert(std::is_same_v<decltype(TColorSystem::yRed), float> && offsetof(TColorSystem, yRed) == 4);
static_assert(std::is_same_v<decltype(TColorSystem::xGreen), float> && offsetof(TColorSystem, xGreen) == 8);
static_assert(std::is_same_v<decltype(TColorSystem::yGreen), float> && offsetof(TColorSystem, yGreen) == 12);
static_assert(std::is_same_v<decltype(TColorSystem::xBlue), float> && offsetof(TColorSystem, xBlue) == 16);
static_assert(std::is_same_v<decltype(TColorSystem::yBlue), float> && offsetof(TColorSystem, yBlue) == 20);
static_assert(std::is_same_v<decltype(TColorSystem::xWhite), float> && offsetof(TColorSystem, xWhite) == 24);
static_assert(std::is_same_v<decltype(TColorSystem::yWhite), float> && offsetof(TColorSystem, yWhite) == 28);

static_assert(std::is_aggregate_v<AtlasCoordinate> && std::is_trivially_copyable_v<AtlasCoordinate>);
static_assert(sizeof(AtlasCoordinate) == 4 * sizeof(double));
static_assert(std::is_same_v<decltype(AtlasCoordinate::waveLength), qint32>);
static_assert(std::is_same_v<decltype(AtlasCoordinate::X), double> && offsetof(AtlasCoordinate, X) == 8);
static_assert(std::is_same_v<decltype(AtlasCoordinate::Y), double> && offsetof(AtlasCoordinate, Y) == 16);
static_assert(std::is_same_v<decltype(AtlasCoordinate::Z), double> && offsetof(AtlasCoordinate, Z) == 24);

static_assert(std::is_aggregate_v<TemperatureCoordinate> && std::is_trivially_copyable_v<TemperatureCoordinate>);
static_assert(sizeof(TemperatureCoordinate) == 3 * sizeof(double));
static_assert(std::is_same_v<decltype(TemperatureCoordinate::colorTemperature), qint32>);
static_assert(std::is_same_v<decltype(TemperatureCoordinate::x), double> && offsetof(TemperatureCoordinate, x) == 8);
static_assert(std::is_same_v<decltype(TemperatureCoordinate::y), double> && offsetof(TemperatureCoordinate, y) == 16);

namespace {

constexpr int expectedTemperatures[]
    = {1000, 1200, 1400, 1500, 1600, 1700, 1800, 1900, 2000, 2100, 2200, 2300, 2400, 2500, 2600, 2700, 2800, 2900, 3000,
        3100, 3200, 3250, 3300, 3400, 3500, 3600, 3700, 3800, 3900, 4000, 4100, 4200, 4300, 4400, 4500, 4600, 4700,
        4800, 4900, 5000, 5200, 5400, 5600, 5800, 6000, 6500, 7000, 7500, 8000, 8500, 9000, 9300, 10000, 15000};

// Not QPointF, so that nothing compares fuzzily.
struct Point {
    double x;
    double y;
};

constexpr Point expectedLocus[] = {{0.172787, 0.0048}, {0.170806, 0.005472}, {0.170085, 0.005976}, {0.160343, 0.014496},
    {0.146958, 0.026643}, {0.139149, 0.035211}, {0.133536, 0.042704}, {0.126688, 0.053441}, {0.11583, 0.073601},
    {0.109616, 0.086866}, {0.099146, 0.112037}, {0.09131, 0.132737}, {0.07813, 0.170464}, {0.068717, 0.200773},
    {0.054675, 0.254155}, {0.040763, 0.317049}, {0.027497, 0.387997}, {0.01627, 0.463035}, {0.008169, 0.538504},
    {0.004876, 0.587196}, {0.003983, 0.610526}, {0.003859, 0.654897}, {0.004646, 0.67597}, {0.007988, 0.715407},
    {0.01387, 0.750246}, {0.022244, 0.779682}, {0.027273, 0.792153}, {0.03282, 0.802971}, {0.038851, 0.812059},
    {0.045327, 0.81943}, {0.052175, 0.8252}, {0.059323, 0.82946}, {0.066713, 0.832306}, {0.074299, 0.833833},
    {0.089937, 0.833316}, {0.114155, 0.826231}, {0.138695, 0.814796}, {0.154714, 0.805884}, {0.192865, 0.781648},
    {0.229607, 0.754347}, {0.26576, 0.724342}, {0.301588, 0.692326}, {0.337346, 0.658867}, {0.373083, 0.62447},
    {0.408717, 0.589626}, {0.444043, 0.554734}, {0.478755, 0.520222}, {0.512467, 0.486611}, {0.544767, 0.454454},
    {0.575132, 0.424252}, {0.602914, 0.396516}, {0.627018, 0.37251}, {0.648215, 0.351413}, {0.665746, 0.334028},
    {0.680061, 0.319765}, {0.691487, 0.308359}, {0.700589, 0.299317}, {0.707901, 0.292044}, {0.714015, 0.285945},
    {0.719017, 0.280951}, {0.723016, 0.276964}, {0.734674, 0.265326}};

Point chromaticity(double X, double Y, double Z)
{
    return {X / (X + Y + Z), Y / (X + Y + Z)};
}

} // namespace

class CEIAtlasValueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void metaObjectIsBare();
    void membersStandInDeclarationOrder();
    void colorSystemIsTheNearestFloats();
    void temperatureRows();
    void temperaturesLieOnThePlanckianLocus();
    void colourMatchingRowsEqualThePublishedTable();
    void spectrumLocusPoints();
    void spectrumLocusFollowsTheColourMatchingFunctions();
    void spectrumLocusReservesExactlyItsPoints();
    void initDataAppends();
    void instancesShareNothing();
};

void CEIAtlasValueTest::metaObjectIsBare()
{
    verifyBareQObject<CEIAtlasValue>("CEIAtlasValue");
}

void CEIAtlasValueTest::membersStandInDeclarationOrder()
{
    const CEIAtlasValue atlas;
    const auto at = [](const auto &member) { return reinterpret_cast<quintptr>(&member); };
    QVERIFY(at(atlas.colorSystem) < at(atlas.temperatureCoordinates));
    QVERIFY(at(atlas.temperatureCoordinates) < at(atlas.atlasCoordinates));
    QVERIFY(at(atlas.atlasCoordinates) < at(atlas.spectrumLocus));
}

void CEIAtlasValueTest::colorSystemIsTheNearestFloats()
{
    const TColorSystem system = CEIAtlasValue().colorSystem;
    QVERIFY(system.xRed == 0.625F);
    QVERIFY(system.yRed == 0.34F);
    QVERIFY(system.xGreen == 0.275F);
    QVERIFY(system.yGreen == 0.605F);
    QVERIFY(system.xBlue == 0.15F);
    QVERIFY(system.yBlue == 0.065F);
    QVERIFY(system.xWhite == 0.3127F);
    QVERIFY(system.yWhite == 0.3291F);
    QVERIFY(static_cast<double>(system.xWhite) != 0.3127);
    QVERIFY(static_cast<double>(system.yWhite) != 0.3291);
}

void CEIAtlasValueTest::temperatureRows()
{
    const CEIAtlasValue atlas;
    QCOMPARE(atlas.temperatureCoordinates.size(), 54);
    QCOMPARE(std::size(expectedTemperatures), std::size_t(54));
    for (int i = 0; i < 54; ++i) {
        QCOMPARE(atlas.temperatureCoordinates.at(i).colorTemperature, expectedTemperatures[i]);
    }
}

// To three decimals.
void CEIAtlasValueTest::temperaturesLieOnThePlanckianLocus()
{
    const CEIAtlasValue atlas;
    for (const TemperatureCoordinate &row : atlas.temperatureCoordinates) {
        double X = 0.0;
        double Y = 0.0;
        double Z = 0.0;
        for (const AtlasCoordinate &c : atlas.atlasCoordinates) {
            const double waveLength = c.waveLength * 1e-9;
            const double radiance
                = std::pow(waveLength, -5.0) / std::expm1(1.438776877e-2 / (waveLength * row.colorTemperature));
            X += c.X * radiance;
            Y += c.Y * radiance;
            Z += c.Z * radiance;
        }
        const Point locus = chromaticity(X, Y, Z);
        QVERIFY2(row.x == std::round(locus.x * 1000) / 1000 && row.y == std::round(locus.y * 1000) / 1000,
            qPrintable(QString::number(row.colorTemperature)));
    }
}

void CEIAtlasValueTest::colourMatchingRowsEqualThePublishedTable()
{
    QFile file(QStringLiteral(CIE1931_CSV));
    QVERIFY2(file.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(file.errorString()));
    QCOMPARE(file.readLine().trimmed().split(',').size(), 4);

    const CEIAtlasValue atlas;
    QCOMPARE(atlas.atlasCoordinates.size(), 471);
    for (int i = 0; i < 471; ++i) {
        const AtlasCoordinate &row = atlas.atlasCoordinates.at(i);
        QCOMPARE(row.waveLength, 360 + i);

        const QList<QByteArray> fields = file.readLine().trimmed().split(',');
        QCOMPARE(fields.size(), 4);
        QCOMPARE(row.waveLength, fields.at(0).toInt());
        const double values[] = {row.X, row.Y, row.Z};
        for (int k = 0; k < 3; ++k) {
            bool ok = false;
            const double published = fields.at(k + 1).toDouble(&ok);
            QVERIFY(ok);
            QVERIFY2(values[k] == published, fields.at(0).constData());
        }
    }
    QVERIFY(file.readLine().trimmed().isEmpty());
}

void CEIAtlasValueTest::spectrumLocusPoints()
{
    const CEIAtlasValue atlas;
    QCOMPARE(atlas.spectrumLocus.size(), std::size_t(62));
    QCOMPARE(std::size(expectedLocus), std::size_t(62));
    for (std::size_t i = 0; i < 62; ++i) {
        QVERIFY2(atlas.spectrumLocus[i].x() == expectedLocus[i].x && atlas.spectrumLocus[i].y() == expectedLocus[i].y,
            qPrintable(QString::number(i + 1)));
    }
}

void CEIAtlasValueTest::spectrumLocusFollowsTheColourMatchingFunctions()
{
    const CEIAtlasValue atlas;
    int waveLength = 0;
    for (const QPointF &point : atlas.spectrumLocus) {
        double distance = 1.0;
        int nearest = 0;
        for (const AtlasCoordinate &row : atlas.atlasCoordinates) {
            const Point locus = chromaticity(row.X, row.Y, row.Z);
            const double d = std::hypot(locus.x - point.x(), locus.y - point.y());
            if (d < distance) {
                distance = d;
                nearest = row.waveLength;
            }
        }
        QVERIFY2(distance < 1e-4, qPrintable(QStringLiteral("%1 nm: %2").arg(nearest).arg(distance)));
        QVERIFY(nearest > waveLength);
        waveLength = nearest;
    }
}

void CEIAtlasValueTest::spectrumLocusReservesExactlyItsPoints()
{
    CEIAtlasValue atlas;
    QCOMPARE(atlas.spectrumLocus.capacity(), std::size_t(62));

    // A capacity that suffices is kept.
    atlas.spectrumLocus.clear();
    atlas.spectrumLocus.reserve(100);
    const std::size_t capacity = atlas.spectrumLocus.capacity();
    const QPointF *data = atlas.spectrumLocus.data();
    atlas.initData();
    QCOMPARE(atlas.spectrumLocus.capacity(), capacity);
    QCOMPARE(static_cast<const QPointF *>(atlas.spectrumLocus.data()), data);
}

void CEIAtlasValueTest::initDataAppends()
{
    CEIAtlasValue atlas;
    atlas.initData();
    QCOMPARE(atlas.temperatureCoordinates.size(), 2 * 54);
    QCOMPARE(atlas.atlasCoordinates.size(), 2 * 471);
    QCOMPARE(atlas.spectrumLocus.size(), std::size_t(2 * 62));
    QCOMPARE(atlas.temperatureCoordinates.at(54).colorTemperature, 1000);
    QCOMPARE(atlas.atlasCoordinates.at(471).waveLength, 360);
    QVERIFY(atlas.spectrumLocus[62].x() == 0.172787);
}

void CEIAtlasValueTest::instancesShareNothing()
{
    CEIAtlasValue changed;
    changed.colorSystem.xRed = 0.0F;
    changed.temperatureCoordinates[0].x = 0.0;
    changed.atlasCoordinates[0].X = 0.0;
    changed.spectrumLocus[0] = QPointF();

    const CEIAtlasValue fresh;
    QVERIFY(fresh.colorSystem.xRed == 0.625F);
    QVERIFY(fresh.temperatureCoordinates.at(0).x == 0.653);
    QVERIFY(fresh.atlasCoordinates.at(0).X == 0.0001299);
    QVERIFY(fresh.spectrumLocus[0].x() == 0.172787);
}

QTEST_GUILESS_MAIN(CEIAtlasValueTest)
#include "ceiatlasvaluetest.moc"
