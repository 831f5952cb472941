// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Descriptions of many gamuts: what it takes grows with their number, not with its square.
#include "allocationcount.h"

#include <gamutfiles/descriptionfile.h>
#include <gamutmodel/publishedgamuts.h>

#include <QtTest>

using namespace gamutfiles;

class ManyGamutsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readingGrowsWithTheirNumber();
    void standardsGrowWithTheirNumber();
    void unknownStandardsAreLeftOut();
    void placesFindWhatNamesFind();
};

namespace {

constexpr int few = 500;
constexpr int many = 2 * few;

QString longName(int number)
{
    return QStringLiteral("a name that is too long to be kept without an allocation, %1").arg(number);
}

//! Of \a count gamuts, all of which are standards.
DisplayDescription description(int count)
{
    DisplayDescription result;
    for (int i = 0; i < count; ++i) {
        result.gamuts.emplace_back(Model::ColorGamut(longName(i).toStdString(), Model::rec709().getTargets()));
        result.standards.append(longName(i));
    }
    return result;
}

template <typename Action>
void verifyLinear(const Action &action)
{
    action(description(few)); // what is made once is made now
    const auto of = [&action](int count) {
        const DisplayDescription all = description(count);
        return allocationsOf([&] { action(all); });
    };
    const long long fewer = of(few);
    const long long more = of(many);
    QVERIFY2(fewer > 0 && more < 2.5 * fewer, qPrintable(QStringLiteral("%1, then %2").arg(fewer).arg(more)));
}

} // namespace

void ManyGamutsTest::readingGrowsWithTheirNumber()
{
    verifyLinear([](const DisplayDescription &all) {
        const auto read = readDescription(descriptionText(all));
        QVERIFY2(read, qPrintable(read.error()));
        QCOMPARE(read->standards, all.standards);
    });
}

void ManyGamutsTest::standardsGrowWithTheirNumber()
{
    verifyLinear([](const DisplayDescription &all) {
        const auto standards = all.allStandards();
        QCOMPARE(standards.size(), all.gamuts.size() + Model::standardGamuts().size());
        const QStringList names = all.standardNames(all.gamutPlaces());
        QVERIFY(std::equal(standards.begin(), standards.end(), names.begin(), names.end(),
            [](const DisplayGamut &gamut, const QString &name) { return nameOf(gamut) == name; }));
    });
}

void ManyGamutsTest::unknownStandardsAreLeftOut()
{
    DisplayDescription all = description(2);
    all.standards = QStringList{QStringLiteral("none"), longName(1), QStringLiteral("Rec.2020")};
    QStringList names{longName(1), QStringLiteral("Rec.2020")};
    for (const Model::ColorGamut &standard : Model::standardGamuts()) {
        if (!names.contains(nameOf(standard))) {
            names.append(nameOf(standard));
        }
    }
    QCOMPARE(all.standardNames(all.gamutPlaces()), names);
    QCOMPARE(all.allStandards().size(), std::size_t(names.size()));
}

// With places and without, the same gamut is found: one's own before the published one, and the first of a name.
void ManyGamutsTest::placesFindWhatNamesFind()
{
    DisplayDescription all = description(3);
    all.gamuts.emplace_back(Model::ColorGamut("Rec.2020", Model::rec709().getTargets()));
    all.gamuts.emplace_back(Model::ColorGamut(longName(1).toStdString(), Model::rec2020().getTargets()));
    const QHash<QString, int> places = all.gamutPlaces();
    QCOMPARE(places.size(), 4);
    for (const QString &name : {longName(0), longName(1), longName(2), QStringLiteral("Rec.2020"),
             QStringLiteral("Rec.709"), QStringLiteral("sRGB"), QStringLiteral("none"), QString()}) {
        const auto byName = all.gamut(name);
        const auto byPlace = all.gamut(name, places);
        QCOMPARE(byPlace.has_value(), byName.has_value());
        QCOMPARE(all.ownGamut(name) != nullptr, places.contains(name));
        if (byName) {
            QCOMPARE(byPlace->colorGamutName(), name.toStdString());
            QCOMPARE(byPlace->getTargets().red.x, byName->getTargets().red.x);
            QCOMPARE(byPlace->unit, byName->unit);
        }
    }
    QCOMPARE(all.gamut(QStringLiteral("Rec.2020"))->getTargets().red.x, 0.64);
    QCOMPARE(all.gamut(longName(1), places)->getTargets().red.x, 0.64);
    QVERIFY(all.removeOwnGamut(QStringLiteral("Rec.2020")));
    QVERIFY(!all.removeOwnGamut(QStringLiteral("Rec.2020")));
    QCOMPARE(all.gamut(QStringLiteral("Rec.2020"))->getTargets().red.x, 0.708);
    all.ownGamut(longName(2))->unit = LuminanceUnit::Relative;
    QCOMPARE(all.gamut(longName(2))->unit, LuminanceUnit::Relative);
}

QTEST_APPLESS_MAIN(ManyGamutsTest)
#include "manygamutstest.moc"
