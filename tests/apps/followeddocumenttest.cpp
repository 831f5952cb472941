// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "followeddocument.h"
#include "editing/gamutroles.h"

#include <QSignalSpy>
#include <QtTest>

#include <new>

using namespace followeddocument;

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
    void noGamutIsShownForOneThatCouldNotBeRead();
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
