// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/gamutroles.h"
#include "editing/targetedits.h"

#include <QtTest>

using namespace gamutviewer;

class GamutRolesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void partIsGivenAndTaken_data();
    void partIsGivenAndTaken();
    void imaginaryGamutIsDeclaredOrAStandard();
    void gamutCanPlaySeveralParts();
    void newTargetTakesTheEditedOneAway();
    void removedGamutLosesItsParts();
    void publishedGamutTakesNoPartOver();
    void renamedGamutKeepsItsParts();
    void namesThatCannotBe_data();
    void namesThatCannotBe();
    void defaultTargetIsNobodys();
};

namespace {

DisplayDescription wall()
{
    DisplayDescription description;
    description.gamuts.emplace_back(Model::ColorGamut("Native", Model::rec2020().getTargets()));
    description.gamuts.emplace_back(Model::ColorGamut("Meter", Model::dciP3D65().getTargets()));
    return description;
}

} // namespace

void GamutRolesTest::partIsGivenAndTaken_data()
{
    QTest::addColumn<int>("role");
    for (const GamutRole role : allGamutRoles) {
        QTest::newRow(qPrintable(gamutRolePhrase(role))) << int(role);
    }
}

void GamutRolesTest::partIsGivenAndTaken()
{
    QFETCH(int, role);
    const auto given = GamutRole(role);
    const QString native = QStringLiteral("Native");
    const DisplayDescription with = withRole(wall(), native, given, true);
    for (const GamutRole other : allGamutRoles) {
        QCOMPARE(playsRole(with, native, other), other == given);
    }
    const DisplayDescription without = withRole(with, native, given, false);
    for (const GamutRole other : allGamutRoles) {
        QVERIFY(!playsRole(without, native, other));
    }
    // One at a time, but for standards; and what another does not play cannot be taken from it.
    const DisplayDescription next = withRole(with, QStringLiteral("Meter"), given, true);
    QCOMPARE(playsRole(next, native, given), given == GamutRole::Standard);
    QVERIFY(playsRole(withRole(next, QStringLiteral("Rec.709"), given, false), QStringLiteral("Meter"), given));
    QCOMPARE(next.gamuts.size(), std::size_t(2));
}

void GamutRolesTest::imaginaryGamutIsDeclaredOrAStandard()
{
    DisplayDescription description = wall();
    const QString aces = QStringLiteral("ACES2065-1");
    const Model::Targets targets = description.gamut(aces)->getTargets();
    description.gamuts.emplace_back(Model::ColorGamut("Own", targets));
    for (const GamutRole role : allGamutRoles) {
        const bool isPossible = role == GamutRole::Declared || role == GamutRole::Standard;
        QCOMPARE(whyNotInRole(targets, role).isEmpty(), isPossible);
        QVERIFY(whyNotInRole(Model::rec2020().getTargets(), role).isEmpty());
        for (const QString &name : {aces, QStringLiteral("Own")}) {
            const DisplayDescription with = withRole(description, name, role, true);
            QCOMPARE(playsRole(with, name, role), isPossible);
            if (!isPossible) {
                continue;
            }
            // What can be given can be saved and read again.
            DisplayDescription saved = with;
            if (name == aces) {
                saved.gamuts.pop_back();
            }
            QTemporaryDir folder;
            const QString file = folder.filePath(QStringLiteral("wall.json"));
            QCOMPARE(writeDescription(saved, file), QString());
            const auto read = readDescriptionFile(file);
            QVERIFY2(read, qPrintable(read.error()));
        }
    }
}

void GamutRolesTest::gamutCanPlaySeveralParts()
{
    DisplayDescription description = withRole(wall(), QStringLiteral("Native"), GamutRole::Original, true);
    description = withRole(description, QStringLiteral("Native"), GamutRole::Measured, true);
    QCOMPARE(description.original, QStringLiteral("Native"));
    QCOMPARE(description.measured, QStringLiteral("Native"));
}

void GamutRolesTest::newTargetTakesTheEditedOneAway()
{
    Model::Targets targets = Model::rec709().getTargets();
    targets.red = Model::Target::fromYxy(targets.red.Y, 0.6, 0.33);
    const DisplayDescription edited = withEditedTarget(wall(), targets);
    const QString name = QStringLiteral("Rec.709 (edited)");
    QCOMPARE(edited.target, name);
    QVERIFY(!hasOwnGamut(withRole(edited, QStringLiteral("Native"), GamutRole::Target, true), name));
    // What the file has stays.
    QVERIFY(hasOwnGamut(withRole(edited, QStringLiteral("Native"), GamutRole::Target, true, edited), name));
}

void GamutRolesTest::removedGamutLosesItsParts()
{
    DisplayDescription description = wall();
    for (const GamutRole role : allGamutRoles) {
        description = withRole(description, QStringLiteral("Native"), role, true);
    }
    description = withRole(description, QStringLiteral("Meter"), GamutRole::Measured, true);
    const DisplayDescription without = withoutGamut(description, QStringLiteral("Native"));
    QCOMPARE(without.gamuts.size(), std::size_t(1));
    QVERIFY(without.original.isEmpty() && without.declared.isEmpty() && without.target.isEmpty());
    QVERIFY(without.standards.isEmpty());
    QCOMPARE(without.measured, QStringLiteral("Meter"));
    QCOMPARE(withoutGamut(description, QStringLiteral("Rec.709")).gamuts.size(), std::size_t(2));
}

void GamutRolesTest::publishedGamutTakesNoPartOver()
{
    DisplayDescription description = wall();
    description.gamuts.emplace_back(Model::ColorGamut("Rec.709", Model::dciP3D65().getTargets()));
    description.original = QStringLiteral("Rec.709");
    QVERIFY(withoutGamut(description, QStringLiteral("Rec.709")).original.isEmpty());
}

void GamutRolesTest::renamedGamutKeepsItsParts()
{
    DisplayDescription description = wall();
    for (const GamutRole role : allGamutRoles) {
        description = withRole(description, QStringLiteral("Native"), role, true);
    }
    description.standards.append(QStringLiteral("Meter"));
    description.ownGamut(QStringLiteral("Native"))->black = Model::Target::fromYxy(0.5, 0.3, 0.31);
    const QString name = QStringLiteral("Stage left");
    const DisplayDescription renamed = withGamutRenamed(description, QStringLiteral("Native"), name);
    QVERIFY(!hasOwnGamut(renamed, QStringLiteral("Native")));
    for (const GamutRole role : allGamutRoles) {
        QVERIFY(playsRole(renamed, name, role));
    }
    QCOMPARE(renamed.standards, (QStringList{name, "Meter"}));
    QVERIFY(sameTargets(renamed.gamut(name)->getTargets(), Model::rec2020().getTargets()));
    QVERIFY(sameBlacks(renamed.gamut(name)->black, description.gamut(QStringLiteral("Native"))->black));
}

void GamutRolesTest::namesThatCannotBe_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("isPossible");
    QTest::newRow("free") << "Native"
                          << "Wall" << true;
    QTest::newRow("its own") << "Native"
                             << "Native" << true;
    QTest::newRow("none") << "Native"
                          << "  " << false;
    QTest::newRow("another's") << "Native"
                               << "Meter" << false;
    QTest::newRow("a published one's") << "Native"
                                       << "Rec.709" << false;
    QTest::newRow("of a published one") << "Rec.709"
                                        << "Wall" << false;
}

void GamutRolesTest::namesThatCannotBe()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(bool, isPossible);
    QCOMPARE(whyNotRenamed(wall(), from, to).isEmpty(), isPossible);
    QCOMPARE(hasOwnGamut(withGamutRenamed(wall(), from, to), to), isPossible || to == QLatin1String("Meter"));
}

void GamutRolesTest::defaultTargetIsNobodys()
{
    const DisplayDescription description = wall();
    QVERIFY(description.target.isEmpty());
    const auto target = targetToEdit(description);
    QVERIFY(target);
    QVERIFY(sameTargets(target->getTargets(), Model::rec709().getTargets()));
    QVERIFY(target->unit == LuminanceUnit::Relative);
    DisplayDescription broken = description;
    broken.target = QStringLiteral("nothing");
    QVERIFY(!targetToEdit(broken));
    // An edit makes a target of it.
    const DisplayDescription edited = withEditedTarget(description, Model::dciP3D65().getTargets());
    QCOMPARE(edited.target, QStringLiteral("Rec.709 (edited)"));
    QVERIFY(edited.gamut(edited.target)->unit == LuminanceUnit::Relative);
}

QTEST_GUILESS_MAIN(GamutRolesTest)
#include "gamutrolestest.moc"
