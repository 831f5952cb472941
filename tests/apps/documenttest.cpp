// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/document.h"
#include "display/knowndisplay.h"
#include "editing/targetsession.h"

#include <gamutmodel/drive.h>
#include <gamutmodel/gamutcoverage.h>

#include <QSignalSpy>
#include <QtTest>

using namespace gamutviewer;

Q_DECLARE_METATYPE(LuminanceUnit)

class DocumentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void changeIsUndoneAndRedone();
    void aDragIsOneStep();
    void aDragThatChangesNothingIsNoStep();
    void aCancelledDragIsNoStep();
    void stepsOfOneFieldMerge();
    void mergingEndsWithTheEdit();
    void savedDocumentIsNotModified();
    void openForgetsTheHistory();
    void trailFollowsTheWhiteAndTheHistory();
    void refusalSaysWhy();
    void lockedAndHeldAreRefused();
    void fitsToTheOriginal();
    void unitOfLuminancesIsChosen();
    void brightestWhiteIsKnownToBeReached_data();
    void brightestWhiteIsKnownToBeReached();
    void heldWhiteHasTheUnitOfTheOriginal();
    void whiteByTemperature();
};

namespace {

DisplayDescription description()
{
    DisplayDescription d;
    d.gamuts.push_back(Model::ColorGamut("Wall",
        {Model::Target::fromYxy(240, 0.700, 0.299), Model::Target::fromYxy(634, 0.189, 0.718),
            Model::Target::fromYxy(126, 0.133, 0.075), Model::Target::fromYxy(1000, 0.2829, 0.2971)}));
    d.original = QStringLiteral("Wall");
    d.target = QStringLiteral("Rec.709");
    return d;
}

struct Fixture {
    Fixture() { document.open(description(), QStringLiteral("wall.json")); }
    Model::Targets withRed(const QPointF &red)
    {
        return *ceiechart::withPrimary(document.target()->getTargets(), Vertex::Red, red);
    }
    QPointF xy(Vertex vertex) { return xyOf(targetAt(document.target()->getTargets(), vertex)); }

    Document document;
    TargetSession session{&document};
};

//! The same display, with luminances in cd/m².
struct MeasuredFixture : Fixture {
    MeasuredFixture()
    {
        DisplayDescription measured = description();
        for (DisplayGamut &gamut : measured.gamuts) {
            gamut.unit = LuminanceUnit::CandelaPerSquareMetre;
        }
        document.open(measured, QStringLiteral("wall.json"));
    }
};

} // namespace

void DocumentTest::changeIsUndoneAndRedone()
{
    Fixture f;
    QSignalSpy changed(&f.document, &Document::changed);
    QVERIFY(f.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(f.xy(Vertex::Red).x(), 0.66);
    QVERIFY(f.document.isModified());
    f.document.history()->undo();
    QCOMPARE(f.xy(Vertex::Red).x(), 0.64);
    QCOMPARE(f.document.description().target, QStringLiteral("Rec.709"));
    QVERIFY(!f.document.isModified());
    f.document.history()->redo();
    QCOMPARE(f.xy(Vertex::Red).x(), 0.66);
    QCOMPARE(f.document.description().target, QStringLiteral("Rec.709 (edited)"));
}

void DocumentTest::aDragIsOneStep()
{
    Fixture f;
    f.session.setSnaps(false);
    f.session.beginDrag(Vertex::Red);
    for (int i = 1; i <= 10; ++i) {
        f.session.dragTo(f.withRed(QPointF(0.64 + 0.002 * i, 0.33)));
    }
    QCOMPARE(f.document.history()->count(), 0);
    QCOMPARE(f.xy(Vertex::Red).x(), 0.66);
    f.session.endDrag();
    QCOMPARE(f.document.history()->count(), 1);
    f.document.history()->undo();
    QCOMPARE(f.xy(Vertex::Red).x(), 0.64);
    f.document.history()->redo();
    QCOMPARE(f.xy(Vertex::Red).x(), 0.66);
}

void DocumentTest::aDragThatChangesNothingIsNoStep()
{
    Fixture f;
    f.session.beginDrag(Vertex::Red);
    f.session.endDrag();
    QCOMPARE(f.document.history()->count(), 0);
    QVERIFY(!f.document.isModified());
}

void DocumentTest::aCancelledDragIsNoStep()
{
    Fixture f;
    f.session.beginDrag(Vertex::Red);
    f.session.dragTo(f.withRed(QPointF(0.66, 0.32)));
    f.session.cancelDrag();
    QCOMPARE(f.xy(Vertex::Red).x(), 0.64);
    QCOMPARE(f.document.history()->count(), 0);
    f.document.drag(DisplayDescription());
    QCOMPARE(f.document.description().target, QStringLiteral("Rec.709"));
    f.session.endDrag();
    QCOMPARE(f.document.history()->count(), 0);
}

void DocumentTest::stepsOfOneFieldMerge()
{
    Fixture f;
    f.session.setChromaticity(Vertex::Red, QPointF(0.641, 0.33), 1);
    f.session.setChromaticity(Vertex::Red, QPointF(0.642, 0.33), 1);
    f.session.setChromaticity(Vertex::Red, QPointF(0.642, 0.331), 2);
    QCOMPARE(f.document.history()->count(), 2);
    f.document.history()->undo();
    QCOMPARE(f.xy(Vertex::Red).x(), 0.642);
    f.document.history()->undo();
    QCOMPARE(f.xy(Vertex::Red).x(), 0.64);
}

void DocumentTest::mergingEndsWithTheEdit()
{
    Fixture f;
    f.session.setChromaticity(Vertex::Red, QPointF(0.641, 0.33), 1);
    f.document.breakMerging();
    f.session.setChromaticity(Vertex::Red, QPointF(0.642, 0.33), 1);
    QCOMPARE(f.document.history()->count(), 2);
}

void DocumentTest::savedDocumentIsNotModified()
{
    Fixture f;
    QSignalSpy modified(&f.document, &Document::modifiedChanged);
    f.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32), 1);
    QCOMPARE(modified.takeLast().at(0).toBool(), true);
    f.document.markSaved(QStringLiteral("other.json"));
    QCOMPARE(modified.takeLast().at(0).toBool(), false);
    QCOMPARE(f.document.fileName(), QStringLiteral("other.json"));
    // The same field again must not melt into what has been saved.
    f.session.setChromaticity(Vertex::Red, QPointF(0.67, 0.32), 1);
    QVERIFY(f.document.isModified());
    f.document.history()->undo();
    QVERIFY(!f.document.isModified());
}

void DocumentTest::openForgetsTheHistory()
{
    Fixture f;
    f.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32));
    QSignalSpy opened(&f.document, &Document::opened);
    f.document.open(description(), QString());
    QCOMPARE(opened.size(), 1);
    QCOMPARE(f.document.history()->count(), 0);
    QVERIFY(!f.document.isModified());
    QCOMPARE(f.document.whiteTrail().size(), 1);
}

void DocumentTest::trailFollowsTheWhiteAndTheHistory()
{
    Fixture f;
    QCOMPARE(f.document.whiteTrail().size(), 1);
    f.session.setChromaticity(Vertex::White, QPointF(0.31, 0.32));
    f.session.setChromaticity(Vertex::White, QPointF(0.30, 0.31));
    QCOMPARE(f.document.whiteTrail().size(), 3);
    QCOMPARE(f.document.whiteTrail().first().x(), 0.3127);
    QCOMPARE(f.document.whiteTrail().last().x(), 0.30);
    f.document.history()->undo();
    QCOMPARE(f.document.whiteTrail().size(), 2);
    for (int i = 0; i < 30; ++i) {
        f.session.setChromaticity(Vertex::White, QPointF(0.30 + 0.0005 * i, 0.32));
    }
    QVERIFY(f.document.whiteTrail().size() <= 12);
}

void DocumentTest::refusalSaysWhy()
{
    Fixture f;
    QSignalSpy refused(&f.session, &TargetSession::refused);
    QVERIFY(!f.session.setChromaticity(Vertex::Red, QPointF(0.7, 0.7)));
    QVERIFY(!f.session.setChromaticity(Vertex::White, QPointF(0.6, 0.39)));
    QVERIFY(!f.session.setLuminance(Vertex::Red, -1));
    QVERIFY(!f.session.setWhiteTemperature(100, 0));
    QCOMPARE(refused.size(), 4);
    for (const QList<QVariant> &reason : refused) {
        QVERIFY(!reason.at(0).toString().isEmpty());
    }
    QVERIFY(refused.at(0) != refused.at(1));
    QCOMPARE(f.document.history()->count(), 0);
}

void DocumentTest::lockedAndHeldAreRefused()
{
    Fixture f;
    f.session.setLockPrimaries(true);
    QVERIFY(!f.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    QVERIFY(f.session.setChromaticity(Vertex::White, QPointF(0.31, 0.32)));
    f.session.setLockPrimaries(false);
    f.session.setHoldWhite(true);
    QVERIFY(!f.session.setChromaticity(Vertex::White, QPointF(0.30, 0.32)));
    QVERIFY(f.session.setChromaticity(Vertex::Red, QPointF(0.66, 0.32)));
    QCOMPARE(f.xy(Vertex::White).x(), 0.31);
}

void DocumentTest::fitsToTheOriginal()
{
    Fixture f;
    QVERIFY(f.session.setChromaticity(Vertex::Green, QPointF(0.17, 0.78)));
    const auto outside = [&f](Vertex primary) {
        const auto of = outsideOf(f.document.description(), primary);
        return of ? of->distance : 0.0;
    };
    QVERIFY(outside(Vertex::Green) > 0.005);
    const int steps = f.document.history()->count();
    f.session.fitToDisplay();
    QCOMPARE(f.document.history()->count(), steps + 1);
    for (const Vertex primary : {Vertex::Red, Vertex::Green, Vertex::Blue}) {
        QCOMPARE(outside(primary), 0.0);
    }
    const auto original = f.document.original();
    QVERIFY(!Model::primariesOutside(f.document.target()->getTargets(), original->getTargets()).any());
    // At the decimals that are shown, and so what the verdict has proposed.
    QCOMPARE(f.xy(Vertex::Green).x(), QString::number(f.xy(Vertex::Green).x(), 'f', 4).toDouble());
}

void DocumentTest::unitOfLuminancesIsChosen()
{
    MeasuredFixture f;
    const auto unit = [&f] { return f.document.target()->unit; };
    const auto white = [&f] { return f.document.target()->getTargets().white.Y; };
    // A published target at the luminance of the brightest white that the display reaches.
    f.session.reset(QStringLiteral("Rec.709"));
    f.session.setLuminanceUnit(LuminanceUnit::Relative);
    QCOMPARE(unit(), LuminanceUnit::Relative);
    const double relative = white();
    const Model::DisplayDrive drive(f.document.original()->getTargets());
    const Model::Target at = f.document.target()->getTargets().white;
    const double brightest = drive.largestLuminance({at.x, at.y})->luminance;
    const int steps = f.document.history()->count();
    f.session.setLuminanceUnit(LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(f.document.history()->count(), steps + 1);
    QCOMPARE(unit(), LuminanceUnit::CandelaPerSquareMetre);
    QVERIFY(qAbs(white() - brightest) < 1e-9 * brightest);
    QVERIFY(qAbs(f.document.target()->getTargets().green.Y / white() - 0.7152) < 1e-3);
    f.session.setLuminanceUnit(LuminanceUnit::Relative);
    QVERIFY(qAbs(white() - 1.0) < 1e-12);
    // From and to a unit that is not known the numbers stay.
    f.session.setLuminanceUnit(LuminanceUnit::NotKnown);
    QVERIFY(qAbs(white() - 1.0) < 1e-12);
    f.session.setLuminanceUnit(LuminanceUnit::CandelaPerSquareMetre);
    QVERIFY(qAbs(white() - 1.0) < 1e-12);
    f.document.history()->undo();
    QCOMPARE(unit(), LuminanceUnit::NotKnown);
    QVERIFY(relative > 0.0);
}

void DocumentTest::brightestWhiteIsKnownToBeReached_data()
{
    QTest::addColumn<double>("originalPrimaries"); // the white that they add to, in cd/m²
    QTest::addColumn<double>("originalWhite");
    QTest::addColumn<double>("measuredPrimaries"); // 0: not measured
    QTest::addColumn<double>("measuredWhite");
    QTest::addColumn<LuminanceUnit>("measuredUnit");
    QTest::addColumn<double>("expected"); // 0: not known
    QTest::addColumn<QString>("target");
    constexpr auto absolute = LuminanceUnit::CandelaPerSquareMetre;
    constexpr auto relative = LuminanceUnit::Relative;
    QTest::newRow("original alone") << 1000.0 << 1000.0 << 0.0 << 0.0 << absolute << 1000.0
                                    << QStringLiteral("Rec.709");
    QTest::newRow("measured dimmer") << 1000.0 << 1000.0 << 600.0 << 600.0 << absolute << 600.0
                                     << QStringLiteral("Rec.709");
    QTest::newRow("measured brighter") << 1000.0 << 1000.0 << 1200.0 << 1200.0 << absolute << 1000.0
                                       << QStringLiteral("Rec.709");
    QTest::newRow("measured without a scale")
        << 1000.0 << 1000.0 << 1.0 << 1.0 << relative << 1000.0 << QStringLiteral("Rec.709");
    // At another white than the one that was measured:
    QTest::newRow("measured not additive")
        << 1000.0 << 1000.0 << 1000.0 << 400.0 << absolute << 0.0 << QStringLiteral("NTSC 1953");
    QTest::newRow("original not additive")
        << 1000.0 << 400.0 << 0.0 << 0.0 << absolute << 0.0 << QStringLiteral("NTSC 1953");
    QTest::newRow("original not additive, measured")
        << 1000.0 << 400.0 << 600.0 << 600.0 << absolute << 0.0 << QStringLiteral("NTSC 1953");
    // At that white:
    QTest::newRow("measured limited") << 1000.0 << 1000.0 << 1000.0 << 400.0 << absolute << 400.0
                                      << QStringLiteral("Rec.709");
    QTest::newRow("original limited") << 1000.0 << 400.0 << 0.0 << 0.0 << absolute << 400.0
                                      << QStringLiteral("Rec.709");
    QTest::newRow("original limited, measured")
        << 1000.0 << 400.0 << 600.0 << 600.0 << absolute << 400.0 << QStringLiteral("Rec.709");
}

void DocumentTest::brightestWhiteIsKnownToBeReached()
{
    QFETCH(double, originalPrimaries);
    QFETCH(double, originalWhite);
    QFETCH(double, measuredPrimaries);
    QFETCH(double, measuredWhite);
    QFETCH(LuminanceUnit, measuredUnit);
    QFETCH(double, expected);
    QFETCH(QString, target);
    // The white of Rec.2020 is the sum of its primaries.
    const Model::Targets t = Model::rec2020().getTargets();
    const auto gamut = [&t](const char *name, double primaries, double white, LuminanceUnit unit) {
        const auto at
            = [](const Model::Target &c, double factor) { return Model::Target::fromYxy(c.Y * factor, c.x, c.y); };
        return DisplayGamut(
            Model::ColorGamut(
                name, {at(t.red, primaries), at(t.green, primaries), at(t.blue, primaries), at(t.white, white)}),
            unit);
    };
    DisplayDescription d;
    d.gamuts.push_back(gamut("Wall", originalPrimaries, originalWhite, LuminanceUnit::CandelaPerSquareMetre));
    d.original = QStringLiteral("Wall");
    if (measuredPrimaries > 0.0) {
        d.gamuts.push_back(gamut("Meter", measuredPrimaries, measuredWhite, measuredUnit));
        d.measured = QStringLiteral("Meter");
    }
    d.target = target;
    Document document;
    document.open(d, QString());
    TargetSession session(&document);
    QSignalSpy refused(&session, &TargetSession::refused);
    session.setLuminanceUnit(LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(document.target()->unit, LuminanceUnit::CandelaPerSquareMetre);
    const double white = document.target()->getTargets().white.Y;
    QCOMPARE(refused.size(), expected > 0.0 ? 0 : 1);
    QVERIFY2(qAbs(white - (expected > 0.0 ? expected : 1.0)) < 1e-4 * white, qPrintable(QString::number(white)));
}

void DocumentTest::heldWhiteHasTheUnitOfTheOriginal()
{
    MeasuredFixture f;
    f.session.setLuminanceUnit(LuminanceUnit::Relative);
    QVERIFY(f.session.setChromaticity(Vertex::Green, QPointF(0.28, 0.62)));
    QCOMPARE(f.document.target()->unit, LuminanceUnit::Relative);
    f.session.setHoldWhite(true);
    QVERIFY(f.session.setChromaticity(Vertex::Green, QPointF(0.27, 0.63)));
    QVERIFY(f.document.target()->getTargets().white.Y > 100.0);
    QCOMPARE(f.document.target()->unit, LuminanceUnit::CandelaPerSquareMetre);
    f.session.setHoldWhite(false);
    f.session.setLuminanceUnit(LuminanceUnit::Relative);
    f.session.setHoldWhite(true);
    f.session.beginDrag(Vertex::Red);
    f.session.dragTo(Model::rec2020().getTargets());
    f.session.endDrag();
    QCOMPARE(f.document.target()->unit, LuminanceUnit::CandelaPerSquareMetre);
}

void DocumentTest::whiteByTemperature()
{
    Fixture f;
    QVERIFY(f.session.setWhiteTemperature(5000, 0.002));
    // On the daylight side of the 5000 K point of the Planckian locus, (0.3451, 0.3516).
    QVERIFY(qAbs(f.xy(Vertex::White).x() - 0.3451) < 0.005);
    QVERIFY(f.xy(Vertex::White).y() > 0.3516);
}

QTEST_GUILESS_MAIN(DocumentTest)
#include "documenttest.moc"
