// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/wallassessment.h"
#include "followeddocument.h"

#include <QSignalSpy>
#include <QtTest>

using namespace followeddocument;

class FollowedWallTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsAWallInPlaceOfTheOneBefore();
    void noWallIsShownBeforeTheOneThatIsFollowed();
    void editsTakeNothingOfAWallOver();
    void keepsAWallAsOneStep();
    void cabinetsThatAreLeftOutStaySo();
    void cabinetThatIsBeingMeasuredIsKept();
    void replacesAWallThatIsFollowed();
    void removedWallIsTheDescriptions();
    void selectionStaysWithItsCabinet();
};

void FollowedWallTest::showsAWallInPlaceOfTheOneBefore()
{
    Fixture f;
    f.open(wall({"old"}));
    f.document.showFollowed(measurement(pointOnly(), wall({"A1", "A2"})));
    QCOMPARE(f.cabinets(), QStringLiteral("A1 A2"));
    QCOMPARE(f.points(), QStringLiteral("grey"));
    QCOMPARE(f.document.description().measured, QStringLiteral("Before")); // a wall is no gamut
    QVERIFY(f.document.hasUnkept());
    QVERIFY(!f.document.isModified());
    QCOMPARE(f.document.own().wall.cabinets.front().name, QStringLiteral("old"));
    QVERIFY(f.session.assessment().wall);
    QCOMPARE(f.session.assessment().wall->cabinets.size(), std::size_t(2));
    f.document.showFollowed(std::nullopt);
    QCOMPARE(f.cabinets(), QStringLiteral("old"));
    QVERIFY(!f.document.hasUnkept());
}

void FollowedWallTest::noWallIsShownBeforeTheOneThatIsFollowed()
{
    Fixture f;
    f.open(wall({"old", "older"}));
    FollowedMeasurement first = measurement(followed(0.69), std::nullopt, QStringLiteral("A1"));
    first.isOfCabinets = true;
    f.document.showFollowed(first);
    // Its verdict would not be on what is measured.
    QCOMPARE(f.cabinets(), QString());
    QVERIFY(!f.session.assessment().wall);
    QVERIFY(f.document.awaitsWall());
    QCOMPARE(namesOf(f.document.withHidden().wall), QStringLiteral("old older")); // what files are added to
    QVERIFY(f.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    QCOMPARE(f.cabinets(), QString());
    QCOMPARE(f.ownCabinets(), QStringLiteral("old older"));
    f.document.keepFollowed(QStringLiteral("keep"));
    QCOMPARE(f.ownCabinets(), QStringLiteral("old older"));
    first.wall = wall({"A1", "A2"});
    f.document.showFollowed(first);
    QCOMPARE(f.cabinets(), QStringLiteral("A1 A2"));
    QVERIFY(!f.document.awaitsWall());
    f.document.showFollowed(std::nullopt);
    QCOMPARE(f.cabinets(), QStringLiteral("old older"));
}

void FollowedWallTest::editsTakeNothingOfAWallOver()
{
    Fixture alone;
    QVERIFY(alone.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    Fixture f;
    f.document.showFollowed(measurement(pointOnly(), wall({"A1", "A2"})));
    QVERIFY(f.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    QVERIFY(f.ownIs(alone.document.description()));
    QCOMPARE(f.cabinets(), QStringLiteral("A1 A2"));
    f.session.fitToWall();
    QVERIFY(f.document.own().wall.cabinets.empty());
}

void FollowedWallTest::keepsAWallAsOneStep()
{
    Fixture f;
    f.open(wall({"old"}));
    const DisplayDescription before = f.document.own();
    f.document.showFollowed(measurement(pointOnly(), wall({"A1", "A2"})));
    f.document.keepFollowed(QStringLiteral("keep meter"));
    QCOMPARE(f.document.history()->count(), 1);
    QVERIFY(!f.document.hasUnkept());
    f.document.showFollowed(measurement(pointOnly(), wall({"A1", "A2", "A3"})));
    QVERIFY(f.document.hasUnkept());
    f.document.showFollowed(std::nullopt);
    QCOMPARE(f.cabinets(), QStringLiteral("A1 A2"));
    f.document.history()->undo();
    QVERIFY(f.ownIs(before));
    QCOMPARE(f.cabinets(), QStringLiteral("old"));
}

void FollowedWallTest::cabinetsThatAreLeftOutStaySo()
{
    Fixture f;
    f.document.showFollowed(measurement(pointOnly(), wall({"A1", "A2"})));
    f.session.setLeftOut({1}, true);
    QCOMPARE(f.document.history()->count(), 1);
    QCOMPARE(f.leftOut(), QStringLiteral("A2"));
    QCOMPARE(f.document.own().wall.cabinets.size(), std::size_t(2)); // as it is then
    f.document.showFollowed(measurement(pointOnly(), wall({"A0", "A1", "A2"})));
    QCOMPARE(f.leftOut(), QStringLiteral("A2"));
    QVERIFY(f.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    QCOMPARE(f.document.own().wall.cabinets.size(), std::size_t(2));
    f.session.setLeftOut({0, 1, 2}, false);
    QCOMPARE(f.leftOut(), QString());
    f.document.history()->undo();
    QCOMPARE(f.leftOut(), QStringLiteral("A2"));
    f.document.history()->undo();
    f.document.history()->undo();
    QVERIFY(f.ownIs(description()));
    QCOMPARE(f.leftOut(), QString());
}

void FollowedWallTest::removedWallIsTheDescriptions()
{
    Fixture f;
    f.document.showFollowed(measurement(pointOnly(), wall({"A1", "A2"})));
    f.session.removeWall();
    QVERIFY(f.ownIs(description()));
    QCOMPARE(f.cabinets(), QStringLiteral("A1 A2"));
    QCOMPARE(f.document.history()->count(), 0); // there was nothing to remove
    f.open(wall({"old"}));
    f.session.removeWall();
    QCOMPARE(f.document.own().wall.cabinets.size(), std::size_t(1));
    QCOMPARE(f.document.history()->count(), 0);
    f.document.showFollowed(std::nullopt);
    f.session.removeWall();
    QVERIFY(f.document.own().wall.cabinets.empty());
    QCOMPARE(f.document.history()->count(), 1);
}

void FollowedWallTest::selectionStaysWithItsCabinet()
{
    Fixture f;
    f.document.showFollowed(measurement(pointOnly(), wall({"A2", "A3"})));
    f.session.selectCabinet(1);
    QSignalSpy selected(&f.session, &TargetSession::selectedCabinetChanged);
    f.document.showFollowed(measurement(pointOnly(), wall({"A2", "A3", "A4"})));
    QVERIFY(selected.isEmpty());
    f.document.showFollowed(measurement(pointOnly(), wall({"A1", "A2", "A3", "A4"}))); // of which A1 is complete now
    QCOMPARE(f.session.selectedCabinet(), std::optional<std::size_t>(2));
    QCOMPARE(selected.size(), 1);
    f.document.showFollowed(measurement(pointOnly(), wall({"A1", "A2", "A4"})));
    QVERIFY(!f.session.selectedCabinet());
    // It was measured again, and is selected again when that is complete.
    f.document.showFollowed(measurement(pointOnly(), wall({"A1", "A2", "A4", "A3"})));
    QCOMPARE(f.session.selectedCabinet(), std::optional<std::size_t>(3));
    f.session.selectCabinet(std::nullopt);
    f.document.showFollowed(measurement(pointOnly(), wall({"A3", "A4"})));
    QVERIFY(!f.session.selectedCabinet());
}

//! It is not shown among the others while it may change, but what is kept has it.
void FollowedWallTest::cabinetThatIsBeingMeasuredIsKept()
{
    const FollowedMeasurement shown = measurement(followed(0.69, QStringLiteral("A3 Red")), wall({"A1", "A2"}));
    const FollowedMeasurement ended = measurement(pointOnly(), wall({"A1", "A2", "A3"}));
    const auto toKeep = [&ended] { return ended; };
    Fixture f;
    f.document.showFollowed(shown, toKeep);
    QCOMPARE(f.cabinets(), QStringLiteral("A1 A2"));
    f.session.setLeftOut({1}, true);
    QCOMPARE(f.ownCabinets(), QStringLiteral("A1 A2 A3"));
    QCOMPARE(f.ownLeftOut(), QStringLiteral("A2"));
    QCOMPARE(f.cabinets(), QStringLiteral("A1 A2"));
    QCOMPARE(f.leftOut(), QStringLiteral("A2"));
    f.document.keepFollowed(QStringLiteral("keep meter"));
    QCOMPARE(f.ownCabinets(), QStringLiteral("A1 A2 A3"));
    QCOMPARE(f.document.own().measurePoints.size(), 1);
    QCOMPARE(f.document.own().measurePoints.first().name, QStringLiteral("grey"));
    QVERIFY(!f.document.hasUnkept()); // though another wall is shown
    f.document.showFollowed(shown, toKeep);
    QVERIFY(!f.document.hasUnkept());
    QCOMPARE(f.points(), QStringLiteral("A3 Red"));

    // What is left out and being measured again stays left out, whatever is done to others meanwhile.
    f.document.showFollowed(measurement(pointOnly(), wall({"A1", "A3"})), toKeep);
    QCOMPARE(f.leftOut(), QString());
    f.session.setLeftOut({0}, true);
    QCOMPARE(f.ownLeftOut(), QStringLiteral("A1 A2"));
    f.session.setLeftOut({0, 1}, false);
    QCOMPARE(f.ownLeftOut(), QStringLiteral("A2"));
    f.document.showFollowed(ended);
    QCOMPARE(f.leftOut(), QStringLiteral("A2"));
}

void FollowedWallTest::replacesAWallThatIsFollowed()
{
    Fixture f;
    f.document.showFollowed(measurement(pointOnly(), wall({"A1", "A2"})));
    DisplayDescription added = f.document.description();
    added.wall = wall({"B1", "B2", "B3"});
    f.document.change(added, QStringLiteral("add"));
    QCOMPARE(f.ownCabinets(), QStringLiteral("B1 B2 B3"));
    QCOMPARE(f.cabinets(), QStringLiteral("A1 A2"));
}

QTEST_GUILESS_MAIN(FollowedWallTest)
#include "followedwalltest.moc"
