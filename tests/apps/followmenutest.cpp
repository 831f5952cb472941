// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/followmenu.h"
#include "apps/windowfixture.h"
#include "editing/targetsession.h"
#include "following/followedfile.h"
#include "following/following.h"
#include "panel/cabinettable.h"
#include "panel/sidepanel.h"
#include "panel/stepbox.h"
#include "panel/targeteditor.h"
#include "panel/verdict.h"
#include "panel/wallmap.h"
#include "panel/wallverdict.h"
#include "window/gamutsdialog.h"
#include "window/wallpage.h"

#include <QLineEdit>
#include <QStatusBar>

using namespace gamutviewer;

namespace {

const QByteArray gamut = QByteArrayLiteral("name,Y (cd/m2),x,y\nRed,240,0.7,0.299\nGreen,634,0.189,0.718\n"
                                           "Blue,126,0.133,0.075\nWhite,1000,0.2829,0.2971\n");

const QByteArray cabinetHeader = QByteArrayLiteral("cabinet,row,column,name,Y (cd/m2),x,y\n");

//! The lines of a cabinet without a white, which begin with \a columns.
QByteArray cabinet(const QByteArray &columns, const QByteArray &red)
{
    return columns + "Red,240," + red + '\n' + columns + "Green,634,0.3,0.6\n" + columns + "Blue,126,0.15,0.06\n";
}

//! What cannot be read again, as from standard input.
class Pipe : public FollowedInput {
public:
    Pipe()
        : FollowedInput(QStringLiteral("-"))
    {
    }
    QByteArray read(int most) override
    {
        const QByteArray piece = bytes.left(most);
        bytes.remove(0, piece.size());
        return piece;
    }
    bool isThere() const override { return true; }
    bool hasEnded() const override { return ended; }
    bool isRepeatable() const override { return false; }

    QByteArray bytes;
    bool ended = false;
};

struct FollowFixture : WindowFixture {
    FollowFixture() { menu = window->followMenu(); }
    void followFile(const QByteArray &bytes)
    {
        append(bytes);
        menu->follow(std::make_unique<FollowedFile>(path));
    }
    //! A display of which nothing else is known.
    void openWithTarget()
    {
        Model::Targets target{Model::Target::fromYxy(85, 0.63, 0.335), Model::Target::fromYxy(286, 0.31, 0.59),
            Model::Target::fromYxy(29, 0.155, 0.07), Model::Target::fromYxy(400, 0.3127, 0.329)};
        target = *ceiechart::withWhite(target, QPointF(0.3127, 0.329));
        DisplayDescription description;
        description.gamuts.emplace_back(Model::ColorGamut("Wanted", target), LuminanceUnit::CandelaPerSquareMetre);
        description.target = QStringLiteral("Wanted");
        window->setDescription(description, QString());
    }
    void append(const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::Append) && file.write(bytes) == bytes.size());
    }
    double measuredRed() { return document().measured() ? document().measured()->getTargets().red.x : -1.0; }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("meter.csv"));
    FollowMenu *menu;
};

} // namespace

class FollowMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsWhatIsMeasured();
    void saysHowFarItIs();
    void saysWhyALineIsNotRead();
    void saysThatAnotherUnitBeginsAnew();
    void keepsInOneStep();
    void stopsWithWhatThereIs();
    void followsAnother();
    void savesWithoutWhatIsFollowed();
    void asksBeforeWhatCannotBeReadAgainIsLost();
    void asksNothingOfAFile();
    void messagesStay();
    void typingIsNotDisturbed();
    void showsAWallAsItIsMeasured();
    void keepsAWall();
    void followedWallIsNotRemoved();
    void namesTheGamutAfterTheOnlyCabinet();
    void namingIsNotDisturbed();
};

void FollowMenuTest::showsWhatIsMeasured()
{
    FollowFixture f;
    QVERIFY(!f.menu->following());
    QVERIFY(!f.menu->keepAction()->isEnabled() && !f.menu->stopAction()->isEnabled());
    QVERIFY(!f.menu->label()->isVisible());
    f.followFile(gamut);
    QTRY_COMPARE(f.document().description().measured, QStringLiteral("meter"));
    QVERIFY(f.menu->keepAction()->isEnabled() && f.menu->stopAction()->isEnabled());
    QVERIFY(f.menu->label()->isVisible());
    const auto measuredOnDiagram = [&f] {
        const auto *shown = f.window->diagramPage()->view()->content().find(ceiechart::GamutRole::Measured);
        return shown ? shown->gamut.getTargets().red.x : -1.0;
    };
    QCOMPARE(measuredOnDiagram(), 0.7);
    const QString before = f.window->panel()->verdict()->text();
    f.append("Red,240,0.5,0.33\nskin,100,0.4,0.36\n");
    QTRY_COMPARE(measuredOnDiagram(), 0.5);
    QVERIFY(f.window->panel()->verdict()->text() != before);
    const auto points = f.window->diagramPage()->view()->content().measurePoints;
    QCOMPARE(points.size(), 1);
    QCOMPARE(points.first().name, QStringLiteral("skin"));
    QVERIFY(!f.document().isModified());
}

void FollowMenuTest::saysHowFarItIs()
{
    FollowFixture f;
    f.menu->follow(std::make_unique<FollowedFile>(f.path));
    QTRY_COMPARE(f.menu->label()->text(), QStringLiteral("Waiting for meter.csv"));
    f.append(gamut + "Red,#N/A,0,0\n");
    QTRY_COMPARE(f.menu->label()->text(), QStringLiteral("Following meter.csv: 6 lines, 1 not read, 6 a second"));
    QTRY_COMPARE(f.menu->label()->text(), QStringLiteral("Following meter.csv: 6 lines, 1 not read, 0 a second"));
    QVERIFY(f.menu->label()->isVisible());

    auto pipe = std::make_unique<Pipe>();
    pipe->bytes = gamut;
    pipe->ended = true;
    f.menu->follow(std::move(pipe));
    QTRY_COMPARE(f.menu->label()->text(), QStringLiteral("Standard input has ended: 5 lines, 0 not read"));
    auto single = std::make_unique<Pipe>();
    single->bytes = gamut.left(gamut.indexOf('\n') + 1);
    single->ended = true;
    f.menu->follow(std::move(single));
    QTRY_COMPARE(f.menu->label()->text(), QStringLiteral("Standard input has ended: 1 line, 1 not read"));
    pipe = std::make_unique<Pipe>();
    pipe->bytes = gamut;
    pipe->ended = true;
    f.menu->follow(std::move(pipe));
    QCOMPARE(f.document().description().measured, QStringLiteral("standard input"));
}

void FollowMenuTest::saysWhyALineIsNotRead()
{
    FollowFixture f;
    f.followFile(gamut + "Red,<b>12</b>,0.7,0.3\n");
    const QString why
        = QStringLiteral("The last line that was not read: line 6, column Y (cd/m2): not a number: \"<b>12</b>\"");
    QTRY_COMPARE(f.menu->label()->accessibleDescription(), why);
    // The text of the list is no markup.
    QVERIFY(f.menu->label()->toolTip().contains(QStringLiteral("&lt;b&gt;12")));
    f.menu->stop();
    QVERIFY(f.menu->label()->toolTip().isEmpty());
}

void FollowMenuTest::saysThatAnotherUnitBeginsAnew()
{
    FollowFixture f;
    f.followFile(gamut);
    QTRY_COMPARE(f.measuredRed(), 0.7);
    const QString anew = QStringLiteral("the unit has changed: without what came before it");
    QVERIFY(!f.menu->label()->text().contains(anew));
    f.append("name,Y,x,y\nRed,0.3,0.63,0.335\n");
    QTRY_VERIFY2(f.menu->label()->text().endsWith(anew), qPrintable(f.menu->label()->text()));
    QTRY_VERIFY(f.measuredRed() != 0.7);
}

void FollowMenuTest::keepsInOneStep()
{
    FollowFixture f;
    f.followFile(gamut);
    QTRY_COMPARE(f.measuredRed(), 0.7);
    f.menu->keepAction()->trigger();
    QCOMPARE(f.document().history()->count(), 1);
    QCOMPARE(f.document().history()->undoText(), QStringLiteral("keep meter.csv"));
    QCOMPARE(f.document().own().measured, QStringLiteral("meter"));
    QVERIFY(f.menu->following());
    f.append("Red,240,0.69,0.3\n");
    QTRY_COMPARE(f.measuredRed(), 0.69);
    QCOMPARE(f.document().own().gamut(QStringLiteral("meter"))->getTargets().red.x, 0.7);
}

void FollowMenuTest::stopsWithWhatThereIs()
{
    FollowFixture f;
    const QByteArray before = descriptionText(f.document().description());
    f.followFile(gamut);
    QTRY_COMPARE(f.measuredRed(), 0.7);
    f.menu->stopAction()->trigger();
    QVERIFY(!f.menu->following());
    QVERIFY(!f.menu->label()->isVisible());
    QVERIFY(!f.menu->stopAction()->isEnabled());
    QCOMPARE(f.measuredRed(), 0.7);
    QCOMPARE(f.document().history()->count(), 1);
    f.append("Red,240,0.69,0.3\n");
    QTest::qWait(100);
    QCOMPARE(f.measuredRed(), 0.7);
    f.document().history()->undo();
    QCOMPARE(descriptionText(f.document().description()), before);
}

void FollowMenuTest::followsAnother()
{
    FollowFixture f;
    f.followFile(gamut);
    QTRY_COMPARE(f.measuredRed(), 0.7);
    f.path = f.folder.filePath(QStringLiteral("other.csv"));
    f.followFile(QByteArray(gamut).replace("0.7,0.299", "0.6,0.33"));
    QTRY_COMPARE(f.measuredRed(), 0.6);
    QCOMPARE(f.document().description().measured, QStringLiteral("other"));
    QVERIFY(f.document().own().gamut(QStringLiteral("meter")));
}

void FollowMenuTest::savesWithoutWhatIsFollowed()
{
    FollowFixture f;
    const QByteArray before = descriptionText(f.document().description());
    f.followFile(gamut);
    QTRY_COMPARE(f.measuredRed(), 0.7);
    const QString saved = f.folder.filePath(QStringLiteral("wall.json"));
    QVERIFY(f.window->saveTo(saved));
    QFile file(saved);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), before);
    QVERIFY(f.window->statusBar()->currentMessage().endsWith(QStringLiteral("without the measurement in progress")));
    f.menu->keep();
    QVERIFY(f.window->saveTo(saved));
    QVERIFY(!f.window->statusBar()->currentMessage().contains(QStringLiteral("without")));
    const auto read = readDescriptionFile(saved);
    QVERIFY(read);
    QCOMPARE(read->measured, QStringLiteral("meter"));
}

void FollowMenuTest::asksBeforeWhatCannotBeReadAgainIsLost()
{
    FollowFixture f;
    auto pipe = std::make_unique<Pipe>();
    pipe->bytes = gamut;
    f.menu->follow(std::move(pipe));
    QTRY_COMPARE(f.measuredRed(), 0.7);
    {
        Answer cancel(QMessageBox::Cancel);
        QVERIFY(!f.window->close());
        QVERIFY(!cancel.text().isEmpty());
    }
    QCOMPARE(f.document().history()->count(), 1);
    QVERIFY(f.menu->following());
    Answer discard(QMessageBox::Discard);
    QVERIFY(f.window->close());
}

void FollowMenuTest::asksNothingOfAFile()
{
    FollowFixture f;
    f.followFile(gamut);
    QTRY_COMPARE(f.measuredRed(), 0.7);
    QVERIFY(f.window->close());
}

void FollowMenuTest::messagesStay()
{
    FollowFixture f;
    f.followFile(gamut);
    QTRY_COMPARE(f.measuredRed(), 0.7);
    f.window->statusBar()->showMessage(QStringLiteral("to be read"));
    f.append("Red,240,0.69,0.3\n");
    QTRY_COMPARE(f.measuredRed(), 0.69);
    QCOMPARE(f.window->statusBar()->currentMessage(), QStringLiteral("to be read"));
    QVERIFY(f.window->session()->setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    QVERIFY(f.window->statusBar()->currentMessage().isEmpty());
}

void FollowMenuTest::typingIsNotDisturbed()
{
    FollowFixture f;
    f.followFile(gamut);
    QTRY_COMPARE(f.measuredRed(), 0.7);
    StepBox *box = f.window->panel()->editor()->firstCoordinate(Vertex::Red);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, QStringLiteral("0.6"));
    auto *line = box->findChild<QLineEdit *>();
    const QString typed = line->text();
    f.append("Red,240,0.69,0.3\n");
    QTRY_COMPARE(f.measuredRed(), 0.69);
    QCOMPARE(line->text(), typed);
}

void FollowMenuTest::showsAWallAsItIsMeasured()
{
    FollowFixture f;
    f.openWithTarget();
    f.show(f.window->wallPage());
    auto *map = f.window->wallPage()->map();
    auto *verdict = f.window->wallPage()->verdict();
    QVERIFY(!map->isVisible());
    f.followFile(cabinetHeader + cabinet("A1,1,1,", "0.64,0.33") + "A2,1,2,Red,240,0.64,0.33\n");
    QTRY_VERIFY(map->isVisible());
    QCOMPARE(map->model()->columnCount(), 2);
    const auto &wall = f.document().description().wall;
    QCOMPARE(wall.cabinets.size(), std::size_t(1));
    QCOMPARE(wall.incomplete.size(), std::size_t(1));
    // What is not complete is not known, and no gamut says so of the display.
    QVERIFY(f.document().description().measured.isEmpty());
    QCOMPARE(f.window->session()->assessment().judgement(), Judgement::NotKnown);
    QCOMPARE(f.document().description().measurePoints.size(), 1);
    QCOMPARE(f.document().description().measurePoints.first().name, QStringLiteral("A2 1/2 Red"));
    f.append("A2,1,2,Green,634,0.3,0.6\nA2,1,2,Blue,126,0.15,0.06\n");
    QTRY_COMPARE(f.window->session()->assessment().judgement(), Judgement::Pass);
    QVERIFY2(verdict->text().contains(QStringLiteral("✓")), qPrintable(verdict->text()));
    QCOMPARE(wall.cabinets.size(), std::size_t(2));
    // The last one is good, but the one before it is not.
    f.append(cabinet("A3,1,3,", "0.5,0.33") + cabinet("A4,1,4,", "0.64,0.33"));
    QTRY_COMPARE(wall.cabinets.size(), std::size_t(4));
    QCOMPARE(f.window->session()->assessment().judgement(), Judgement::Fail);
    QVERIFY2(verdict->text().contains(QStringLiteral("A3")), qPrintable(verdict->text()));
    QCOMPARE(map->model()->columnCount(), 4);
    QCOMPARE(f.window->wallPage()->table()->model()->rowCount(), 4);
    f.append("A3,1,3,Red,240,0.64,0.33\n");
    QTRY_COMPARE(f.window->session()->assessment().judgement(), Judgement::Pass);
    QVERIFY(!f.document().isModified());
}

void FollowMenuTest::keepsAWall()
{
    FollowFixture f;
    f.openWithTarget();
    const QByteArray before = descriptionText(f.document().description());
    f.followFile(cabinetHeader + cabinet("A1,1,1,", "0.64,0.33") + cabinet("A2,1,2,", "0.65,0.33"));
    QTRY_COMPARE(f.document().description().wall.cabinets.size(), std::size_t(2));
    QVERIFY(f.document().own().wall.cabinets.empty());
    f.menu->stopAction()->trigger();
    QCOMPARE(f.document().history()->count(), 1);
    const auto whole = readGamutFile(f.path);
    QVERIFY(whole);
    DisplayDescription expected = *readDescription(before);
    expected.wall = *wallFromMeasurements(whole->measurements);
    QCOMPARE(descriptionText(f.document().own()), descriptionText(expected));
    f.document().history()->undo();
    QCOMPARE(descriptionText(f.document().description()), before);
}

void FollowMenuTest::followedWallIsNotRemoved()
{
    FollowFixture f;
    const auto offersRemoval = [&f] {
        for (const QAction *action : f.window->findChildren<QAction *>()) {
            if (action->text() == QLatin1String("&Remove the wall")) {
                return action->isEnabled();
            }
        }
        return false;
    };
    f.followFile(cabinetHeader + cabinet("A1,1,1,", "0.64,0.33") + cabinet("A2,1,2,", "0.65,0.33"));
    QTRY_COMPARE(f.document().description().wall.cabinets.size(), std::size_t(2));
    QVERIFY(!offersRemoval());
    f.menu->stop();
    QVERIFY(offersRemoval());
}

void FollowMenuTest::namesTheGamutAfterTheOnlyCabinet()
{
    FollowFixture f;
    f.openWithTarget();
    f.followFile(cabinetHeader + cabinet("A1,1,1,", "0.64,0.33"));
    QTRY_VERIFY(!f.menu->following()->inProgress().file.measurements.measurements.isEmpty());
    QTRY_COMPARE(f.menu->following()->state().measurements, 3);
    QVERIFY(f.document().description().measured.isEmpty());
    QCOMPARE(f.window->session()->assessment().judgement(), Judgement::NotKnown);
    f.append("A1,1,1,White,1000,0.3127,0.329\n");
    QTRY_COMPARE(f.document().description().measured, QStringLiteral("meter: A1"));
    // Which says nothing of a wall.
    QCOMPARE(f.window->session()->assessment().headline(), QStringLiteral("Cabinet A1 can show the target"));
    QVERIFY(f.window->session()->assessment().lines.first().text.contains(QString::fromUtf8("gamut “meter: A1”")));
    f.append("A2,1,2,Red,240,0.64,0.33\n");
    QTRY_VERIFY(f.document().description().measured.isEmpty());
    QVERIFY(!f.document().description().gamut(QStringLiteral("meter: A1")));
}

void FollowMenuTest::namingIsNotDisturbed()
{
    FollowFixture f;
    f.followFile(gamut);
    QTRY_COMPARE(f.measuredRed(), 0.7);
    GamutsDialog *dialog = f.window->showGamuts();
    auto *name = dialog->findChild<QLineEdit *>();
    name->setText(QStringLiteral("Hall"));
    f.append("Red,240,0.69,0.3\n");
    QTRY_COMPARE(f.measuredRed(), 0.69);
    QCOMPARE(name->text(), QStringLiteral("Hall"));
    // A part that changes hands is shown.
    f.menu->stop();
    QVERIFY(name->text() != QStringLiteral("Hall"));
}

QTEST_MAIN(FollowMenuTest)
#include "followmenutest.moc"
