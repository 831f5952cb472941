// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/wallassessment.h"
#include "editing/document.h"
#include "editing/gamutroles.h"
#include "editing/targetsession.h"

#include <QSignalSpy>
#include <QtTest>

#include <new>

using namespace gamutviewer;

namespace {

Model::Targets targets(double redX)
{
    return {Model::Target::fromYxy(240, redX, 0.299), Model::Target::fromYxy(634, 0.189, 0.718),
        Model::Target::fromYxy(126, 0.133, 0.075), Model::Target::fromYxy(1000, 0.2829, 0.2971)};
}

DisplayDescription description()
{
    DisplayDescription d;
    d.gamuts.push_back({Model::ColorGamut("Wall", targets(0.700)), LuminanceUnit::CandelaPerSquareMetre});
    d.gamuts.push_back({Model::ColorGamut("Before", targets(0.698)), LuminanceUnit::CandelaPerSquareMetre});
    d.original = QStringLiteral("Wall");
    d.measured = QStringLiteral("Before");
    d.target = QStringLiteral("Rec.709");
    d.measurePoints = {{QStringLiteral("old"), QPointF(0.4, 0.4)}};
    return d;
}

//! As of a list called "meter" with a gamut and a point.
GamutFile followed(double redX, const QString &point = QStringLiteral("grey"))
{
    GamutFile file;
    file.content = GamutFile::Content::Measurements;
    file.name = QStringLiteral("meter");
    file.measurements.unit = LuminanceUnit::CandelaPerSquareMetre;
    const Model::Targets t = targets(redX);
    const std::pair<MeasurementPart, Model::Target> colors[] = {{MeasurementPart::Red, t.red},
        {MeasurementPart::Green, t.green}, {MeasurementPart::Blue, t.blue}, {MeasurementPart::White, t.white}};
    for (const auto &[part, color] : colors) {
        Measurement measurement;
        measurement.part = part;
        measurement.color = color;
        file.measurements.measurements.append(measurement);
    }
    Measurement other;
    other.name = point;
    other.color = Model::Target::fromYxy(100, 0.31, 0.33);
    file.measurements.measurements.append(other);
    return file;
}

//! Before a gamut is complete.
GamutFile pointOnly()
{
    GamutFile file = followed(0.7);
    file.measurements.measurements = file.measurements.measurements.mid(4);
    return file;
}

DisplayWall wall(const std::vector<const char *> &names)
{
    DisplayWall result;
    result.unit = LuminanceUnit::CandelaPerSquareMetre;
    const Model::Targets t = targets(0.69);
    for (const char *name : names) {
        WallCabinet cabinet;
        cabinet.name = QLatin1String(name);
        cabinet.red = t.red;
        cabinet.green = t.green;
        cabinet.blue = t.blue;
        result.cabinets.push_back(cabinet);
    }
    return result;
}

FollowedMeasurement measurement(
    const GamutFile &file, const std::optional<DisplayWall> &wall = std::nullopt, const QString &cabinet = QString())
{
    return {file, wall, cabinet, wall.has_value()};
}

QString namesOf(const DisplayWall &wall)
{
    QStringList names;
    for (const WallCabinet &cabinet : wall.cabinets) {
        names.append(cabinet.label());
    }
    return names.join(QLatin1Char(' '));
}

QString leftOutOf(const DisplayWall &wall)
{
    DisplayWall leftOut = wall;
    leftOut.cabinets.clear();
    std::copy_if(wall.cabinets.begin(), wall.cabinets.end(), std::back_inserter(leftOut.cabinets),
        [](const WallCabinet &cabinet) { return cabinet.isLeftOut; });
    return namesOf(leftOut);
}

struct Fixture {
    Fixture() { document.open(description(), QStringLiteral("wall.json")); }
    void open(const DisplayWall &before)
    {
        DisplayDescription opened = description();
        opened.wall = before;
        document.open(opened, QStringLiteral("wall.json"));
    }
    QString cabinets() const { return namesOf(document.description().wall); }
    QString leftOut() const { return leftOutOf(document.description().wall); }
    QString ownCabinets() const { return namesOf(document.own().wall); }
    QString ownLeftOut() const { return leftOutOf(document.own().wall); }
    double measuredRed() const { return document.measured() ? document.measured()->getTargets().red.x : -1.0; }
    QString points() const
    {
        QStringList names;
        for (const NamedPoint &point : document.description().measurePoints) {
            names.append(point.name);
        }
        return names.join(QLatin1Char(' '));
    }
    bool ownIs(const DisplayDescription &expected) const
    {
        return descriptionText(document.own()) == descriptionText(expected);
    }

    Document document;
    TargetSession session{&document};
};

} // namespace

class FollowedDocumentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsWhatIsFollowedWithoutAStep();
    void showsPointsBeforeThereIsAGamut();
    void editsTakeNothingOver();
    void dragsGoOnMeanwhile();
    void undoIsOfTheDescription();
    void keepsAsOneStep();
    void keepsNothingTwice();
    void keepsTheGamutThatGetsAnotherPart();
    void keepsTheGamutThatIsRenamed();
    void measuredPartThatIsTakenAwayComesBack();
    void addedPointsAreOfTheDescription();
    void savedIsTheDescription();
    void showsAWallInPlaceOfTheOneBefore();
    void noGamutIsShownForOneThatCouldNotBeRead();
    void noWallIsShownBeforeTheOneThatIsFollowed();
    void editsTakeNothingOfAWallOver();
    void keepsAWallAsOneStep();
    void cabinetsThatAreLeftOutStaySo();
    void cabinetThatIsBeingMeasuredIsKept();
    void replacesAWallThatIsFollowed();
    void removedWallIsTheDescriptions();
    void selectionStaysWithItsCabinet();
    void showsNothingByHalves();
    void showsAgainWhatWasShownByHalves();
    void keepsNothingByHalves();
};

namespace {

//! Whether there was not enough memory for \a action. The macros of Qt 5 and 6 for it differ.
template <typename Action>
bool lacksMemory(const Action &action)
{
    try {
        action();
        return false;
    } catch (const std::bad_alloc &) {
        return true;
    }
}

//! Hears of changes of a document; for some of them it has not enough memory.
class Hearer {
public:
    explicit Hearer(const Document &document)
    {
        QObject::connect(&document, &Document::changed, &m_context, [this, &document] {
            if (m_failures > 0) {
                --m_failures;
                throw std::bad_alloc();
            }
            m_shown = descriptionText(document.description());
        });
    }
    void failNext(int times) { m_failures = times; }
    const QByteArray &shown() const { return m_shown; }

private:
    QObject m_context;
    int m_failures = 0;
    QByteArray m_shown;
};

} // namespace

void FollowedDocumentTest::showsWhatIsFollowedWithoutAStep()
{
    Fixture f;
    QSignalSpy changed(&f.document, &Document::changed);
    QSignalSpy edited(&f.document, &Document::edited);
    f.document.showFollowed(measurement(followed(0.69)));
    QCOMPARE(changed.size(), 1);
    f.document.showFollowed(measurement(followed(0.68)));
    QCOMPARE(changed.size(), 2);
    QVERIFY(edited.isEmpty());
    QCOMPARE(f.document.description().measured, QStringLiteral("meter"));
    QCOMPARE(f.measuredRed(), 0.68);
    QCOMPARE(f.points(), QStringLiteral("grey"));
    QCOMPARE(f.document.description().gamuts.size(), std::size_t(3));
    QCOMPARE(f.document.history()->count(), 0);
    QVERIFY(!f.document.isModified());
    QVERIFY(f.document.hasUnkept());
    QVERIFY(f.ownIs(description()));
    f.document.showFollowed(std::nullopt);
    QCOMPARE(f.measuredRed(), 0.698);
    QCOMPARE(f.points(), QStringLiteral("old"));
    QVERIFY(!f.document.hasUnkept());
}

void FollowedDocumentTest::showsPointsBeforeThereIsAGamut()
{
    Fixture f;
    f.document.showFollowed(measurement(pointOnly()));
    QCOMPARE(f.points(), QStringLiteral("grey"));
    QCOMPARE(f.measuredRed(), 0.698); // until there is another
    QVERIFY(f.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    QCOMPARE(f.document.own().measurePoints.size(), 1);
    QCOMPARE(f.document.own().measurePoints.first().name, QStringLiteral("old"));
    QCOMPARE(f.document.own().measured, QStringLiteral("Before"));
}

void FollowedDocumentTest::editsTakeNothingOver()
{
    Fixture alone;
    QVERIFY(alone.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    Fixture f;
    f.document.showFollowed(measurement(followed(0.69)));
    QVERIFY(f.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    QVERIFY(f.ownIs(alone.document.description()));
    QCOMPARE(f.measuredRed(), 0.69);
    QCOMPARE(f.document.history()->count(), 1);
    f.document.showFollowed(measurement(followed(0.68)));
    QCOMPARE(f.measuredRed(), 0.68);
    f.document.history()->undo();
    QCOMPARE(f.measuredRed(), 0.68);
    QVERIFY(f.ownIs(description()));
}

void FollowedDocumentTest::dragsGoOnMeanwhile()
{
    Fixture alone;
    Fixture f;
    for (Fixture *fixture : {&alone, &f}) {
        fixture->session.beginDrag(Vertex::Red);
        const auto move = [fixture](double x) {
            fixture->session.dragTo(
                *ceiechart::withPrimary(fixture->document.target()->getTargets(), Vertex::Red, QPointF(x, 0.32)));
        };
        move(0.65);
        if (fixture == &f) {
            f.document.showFollowed(measurement(followed(0.69)));
        }
        move(0.66);
        fixture->session.endDrag();
    }
    QVERIFY(f.ownIs(alone.document.description()));
    QCOMPARE(f.document.history()->count(), 1);
    QCOMPARE(f.measuredRed(), 0.69);
    f.session.beginDrag(Vertex::Red);
    f.session.dragTo(*ceiechart::withPrimary(f.document.target()->getTargets(), Vertex::Red, QPointF(0.67, 0.32)));
    f.session.cancelDrag();
    QVERIFY(f.ownIs(alone.document.description()));
    f.session.beginDrag(Vertex::Red);
    f.session.endDrag();
    QCOMPARE(f.document.history()->count(), 1); // which changed nothing
}

void FollowedDocumentTest::undoIsOfTheDescription()
{
    Fixture f;
    QVERIFY(f.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    f.document.showFollowed(measurement(followed(0.69)));
    f.document.history()->undo();
    QVERIFY(f.ownIs(description()));
    QCOMPARE(f.measuredRed(), 0.69);
    f.document.showFollowed(std::nullopt);
    QCOMPARE(f.measuredRed(), 0.698);
    QVERIFY(f.document.history()->canRedo());
}

void FollowedDocumentTest::keepsAsOneStep()
{
    Fixture f;
    f.document.showFollowed(measurement(followed(0.69)));
    f.document.keepFollowed(QStringLiteral("keep meter"));
    QCOMPARE(f.document.history()->count(), 1);
    QCOMPARE(f.document.history()->undoText(), QStringLiteral("keep meter"));
    QVERIFY(f.document.isModified());
    QVERIFY(!f.document.hasUnkept());
    QCOMPARE(f.document.own().measured, QStringLiteral("meter"));
    QCOMPARE(f.document.own().measurePoints.first().name, QStringLiteral("grey"));
    // The one that was kept stays; what is followed goes on under a name of its own.
    f.document.showFollowed(measurement(followed(0.68)));
    QCOMPARE(f.measuredRed(), 0.68);
    QCOMPARE(f.document.description().measured, QStringLiteral("meter (2)"));
    QCOMPARE(f.document.own().gamut(QStringLiteral("meter"))->getTargets().red.x, 0.69);
    f.document.showFollowed(std::nullopt);
    QCOMPARE(f.measuredRed(), 0.69);
    f.document.history()->undo();
    QVERIFY(f.ownIs(description()));
    QVERIFY(!f.document.isModified());
}

void FollowedDocumentTest::keepsNothingTwice()
{
    Fixture f;
    f.document.keepFollowed(QStringLiteral("keep"));
    QCOMPARE(f.document.history()->count(), 0);
    f.document.showFollowed(measurement(followed(0.69)));
    f.document.keepFollowed(QStringLiteral("keep"));
    f.document.keepFollowed(QStringLiteral("keep"));
    QCOMPARE(f.document.history()->count(), 1);
    f.document.showFollowed(measurement(followed(0.69)));
    QVERIFY(!f.document.hasUnkept());
}

void FollowedDocumentTest::keepsTheGamutThatGetsAnotherPart()
{
    Fixture f;
    f.document.showFollowed(measurement(followed(0.69)));
    f.document.change(
        withRole(f.document.description(), QStringLiteral("meter"), GamutRole::Original, true), QStringLiteral("part"));
    QCOMPARE(f.document.own().original, QStringLiteral("meter"));
    QCOMPARE(f.document.own().measured, QStringLiteral("Before"));
    QVERIFY(hasOwnGamut(f.document.own(), QStringLiteral("meter")));
    f.document.showFollowed(measurement(followed(0.68)));
    QCOMPARE(f.document.original()->getTargets().red.x, 0.69);
    QCOMPARE(f.measuredRed(), 0.68);
}

void FollowedDocumentTest::keepsTheGamutThatIsRenamed()
{
    Fixture f;
    f.document.showFollowed(measurement(followed(0.69)));
    f.document.change(withGamutRenamed(f.document.description(), QStringLiteral("meter"), QStringLiteral("first run")),
        QStringLiteral("rename"));
    QCOMPARE(f.document.own().measured, QStringLiteral("first run"));
    f.document.showFollowed(measurement(followed(0.68)));
    QCOMPARE(f.document.description().measured, QStringLiteral("meter"));
    QCOMPARE(f.document.own().gamut(QStringLiteral("first run"))->getTargets().red.x, 0.69);
}

void FollowedDocumentTest::measuredPartThatIsTakenAwayComesBack()
{
    Fixture f;
    f.document.showFollowed(measurement(followed(0.69)));
    f.document.change(withoutGamut(f.document.description(), QStringLiteral("meter")), QStringLiteral("remove"));
    QVERIFY(f.ownIs(description()));
    QCOMPARE(f.measuredRed(), 0.69);
}

void FollowedDocumentTest::addedPointsAreOfTheDescription()
{
    Fixture f;
    f.document.showFollowed(measurement(followed(0.69)));
    DisplayDescription added = f.document.description();
    added.measurePoints = {{QStringLiteral("new"), QPointF(0.2, 0.2)}};
    f.document.change(added, QStringLiteral("add"));
    QCOMPARE(f.document.own().measurePoints.first().name, QStringLiteral("new"));
    QCOMPARE(f.points(), QStringLiteral("grey"));
}

void FollowedDocumentTest::savedIsTheDescription()
{
    Fixture f;
    f.document.showFollowed(measurement(followed(0.69)));
    f.document.markSaved(QStringLiteral("other.json"));
    QCOMPARE(descriptionText(f.document.saved()), descriptionText(description()));
    QVERIFY(f.document.hasUnkept());
    f.document.open(description(), QStringLiteral("again.json"));
    QCOMPARE(f.measuredRed(), 0.69);
    QVERIFY(f.ownIs(description()));
}

void FollowedDocumentTest::showsAWallInPlaceOfTheOneBefore()
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

void FollowedDocumentTest::noGamutIsShownForOneThatCouldNotBeRead()
{
    Fixture f;
    GamutFile broken = followed(0.69);
    broken.measurements.measurements.first().color.reset();
    broken.measurements.measurements.first().isUnread = true;
    f.document.showFollowed(measurement(broken));
    QCOMPARE(f.document.description().measured, QString()); // the former one is not what is measured
    QVERIFY(f.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    QCOMPARE(f.document.own().measured, QStringLiteral("Before"));
    QCOMPARE(f.document.withHidden().measured, QStringLiteral("Before")); // what files are added to
    f.document.keepFollowed(QStringLiteral("keep"));
    QCOMPARE(f.document.own().measured, QStringLiteral("Before"));
    // It keeps its part under another name, and there is none without it.
    f.document.change(withGamutRenamed(f.document.description(), QStringLiteral("Before"), QStringLiteral("After")),
        QStringLiteral("rename"));
    QCOMPARE(f.document.own().measured, QStringLiteral("After"));
    f.document.change(withoutGamut(f.document.description(), QStringLiteral("After")), QStringLiteral("remove"));
    QCOMPARE(f.document.own().measured, QString());
    f.document.history()->undo();
    f.document.history()->undo();
    f.document.showFollowed(measurement(followed(0.69)));
    QCOMPARE(f.document.description().measured, QStringLiteral("meter"));
    f.document.showFollowed(std::nullopt);
    QCOMPARE(f.document.description().measured, QStringLiteral("Before"));
}

void FollowedDocumentTest::noWallIsShownBeforeTheOneThatIsFollowed()
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

void FollowedDocumentTest::editsTakeNothingOfAWallOver()
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

void FollowedDocumentTest::keepsAWallAsOneStep()
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

void FollowedDocumentTest::cabinetsThatAreLeftOutStaySo()
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

void FollowedDocumentTest::removedWallIsTheDescriptions()
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

void FollowedDocumentTest::selectionStaysWithItsCabinet()
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
void FollowedDocumentTest::cabinetThatIsBeingMeasuredIsKept()
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

void FollowedDocumentTest::replacesAWallThatIsFollowed()
{
    Fixture f;
    f.document.showFollowed(measurement(pointOnly(), wall({"A1", "A2"})));
    DisplayDescription added = f.document.description();
    added.wall = wall({"B1", "B2", "B3"});
    f.document.change(added, QStringLiteral("add"));
    QCOMPARE(f.ownCabinets(), QStringLiteral("B1 B2 B3"));
    QCOMPARE(f.cabinets(), QStringLiteral("A1 A2"));
}

void FollowedDocumentTest::showsNothingByHalves()
{
    Fixture f;
    f.document.showFollowed(measurement(followed(0.71), wall({"A1"}), QStringLiteral("A1")));
    const QByteArray before = descriptionText(f.document.description());
    Hearer hearer(f.document);
    hearer.failNext(1);
    QVERIFY(lacksMemory([&] {
        f.document.showFollowed(measurement(followed(0.72), wall({"A1", "A2"}), QStringLiteral("A2")));
    }));
    QCOMPARE(descriptionText(f.document.description()), before);
    QCOMPARE(hearer.shown(), before);
    QCOMPARE(f.document.measuredCabinet(), QStringLiteral("A1"));
    QVERIFY(f.ownIs(description()));
    hearer.failNext(1);
    QVERIFY(lacksMemory([&] { f.document.showFollowed(std::nullopt); }));
    QCOMPARE(descriptionText(f.document.description()), before);
    f.document.showFollowed(std::nullopt);
    QCOMPARE(hearer.shown(), descriptionText(description()));
}

void FollowedDocumentTest::showsAgainWhatWasShownByHalves()
{
    Fixture f;
    Hearer hearer(f.document);
    f.document.showFollowed(measurement(followed(0.71)));
    const QByteArray before = hearer.shown();
    hearer.failNext(2); // what was there before cannot be shown, either
    QVERIFY(lacksMemory([&] { f.document.showFollowed(measurement(followed(0.72))); }));
    QSignalSpy changed(&f.document, &Document::changed);
    f.document.showAgain();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(hearer.shown(), before);
    f.document.showAgain(); // it has been shown everywhere
    QCOMPARE(changed.size(), 1);
}

void FollowedDocumentTest::keepsNothingByHalves()
{
    Fixture f;
    f.document.showFollowed(measurement(followed(0.71)));
    const QByteArray shown = descriptionText(f.document.description());
    const QVector<QPointF> trail = f.document.whiteTrail();
    Hearer hearer(f.document);
    hearer.failNext(1);
    QVERIFY(lacksMemory([&] { f.document.keepFollowed(QStringLiteral("keep")); }));
    QVERIFY(f.ownIs(description()));
    QVERIFY(f.document.hasUnkept());
    QVERIFY(!f.document.isModified());
    QCOMPARE(f.document.history()->count(), 0);
    QCOMPARE(hearer.shown(), shown);
    QCOMPARE(f.document.whiteTrail(), trail);
    f.document.keepFollowed(QStringLiteral("keep"));
    QVERIFY(f.document.isModified());
    QCOMPARE(descriptionText(f.document.own()), shown);
    f.document.history()->undo();
    QVERIFY(f.ownIs(description()));
}

QTEST_GUILESS_MAIN(FollowedDocumentTest)
#include "followeddocumenttest.moc"
