// SPDX-License-Identifier: MIT
#include "editing/targetedits.h"
#include "display/chromaticity.h"

#include <colortemperature/colortemperature.h>

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace gamutviewer;

Q_DECLARE_METATYPE(Model::Targets)

class TargetEditsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void movedPrimaryMixesAnotherWhite();
    void heldWhiteExceedsNoPrimary_data();
    void heldWhiteExceedsNoPrimary();
    void heldWhiteOfTheOriginalStays();
    void movedWhiteRebalancesThePrimaries();
    void whiteOutsideTheTriangleIsRefused();
    void primariesOnALineAreRefused();
    void badChromaticitiesAreRefused_data();
    void badChromaticitiesAreRefused();
    void luminanceOfAPrimaryMixesAnotherWhite();
    void luminanceOfTheWhiteScalesAll();
    void luminanceScalesAllWhileTheWhiteIsHeld();
    void editOfANamedGamutSaysSo();
    void secondEditKeepsTheName();
    void editLeavesAGamutOfThatNameAlone_data();
    void editLeavesAGamutOfThatNameAlone();
    void editOfAGamutWithTwoPartsLeavesTheOther();
    void editedNamesAreTold_data();
    void editedNamesAreTold();
    void resetTakesTheEditedGamutAway();
    void resetKeepsASavedEditedGamut();
    void resetTakesTheLuminanceOfTheTarget();
    void resetLeavesOtherPartsAsTheyAre();
    void resetKeepsAnEditedGamutThatIsReferredTo();
    void snapsToStandardsAndTheOriginal();
    void nearestTakesTheNearestInReach();
    void roundsToFourDecimals();
    void diagramsConvertThereAndBack();
};

namespace {

Model::Targets wall()
{
    return {Model::Target::fromYxy(240, 0.700, 0.299), Model::Target::fromYxy(634, 0.189, 0.718),
        Model::Target::fromYxy(126, 0.133, 0.075), Model::Target::fromYxy(1000, 0.2829, 0.2971)};
}

QPointF mixture(const Model::Targets &t)
{
    double Y = 0.0;
    double x = 0.0;
    double y = 0.0;
    RGBCxCyToWhiteCxCy(
        t.red.Y, t.red.x, t.red.y, t.green.Y, t.green.x, t.green.y, t.blue.Y, t.blue.x, t.blue.y, &Y, &x, &y);
    return QPointF(x, y);
}

bool near(const QPointF &a, const QPointF &b, double tolerance = 1e-9)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y()) < tolerance;
}

} // namespace

void TargetEditsTest::movedPrimaryMixesAnotherWhite()
{
    const Model::Targets before = Model::rec709().getTargets();
    const auto after = withPrimary(before, Vertex::Red, QPointF(0.66, 0.32), false, wall());
    QVERIFY(after);
    QVERIFY(near(xyOf(after->red), QPointF(0.66, 0.32)));
    QCOMPARE(after->red.Y, before.red.Y);
    QVERIFY(near(xyOf(after->white), mixture(*after)));
    QVERIFY(!near(xyOf(after->white), xyOf(before.white), 1e-4));
    QCOMPARE(after->white.Y, before.red.Y + before.green.Y + before.blue.Y);
}

void TargetEditsTest::heldWhiteExceedsNoPrimary_data()
{
    QTest::addColumn<Model::Targets>("original");
    QTest::addColumn<Model::Targets>("target");
    QTest::addColumn<int>("primary");
    QTest::addColumn<QPointF>("xy");
    const Model::Targets rec709 = Model::rec709().getTargets();
    QTest::newRow("1000 cd/m², red") << wall() << rec709 << int(Vertex::Red) << QPointF(0.66, 0.32);
    QTest::newRow("1000 cd/m², green") << wall() << rec709 << int(Vertex::Green) << QPointF(0.32, 0.59);
    QTest::newRow("relative, red") << rec709 << rec709 << int(Vertex::Red) << QPointF(0.62, 0.34);
    QTest::newRow("relative, green") << rec709 << rec709 << int(Vertex::Green) << QPointF(0.32, 0.59);
    QTest::newRow("relative, blue") << rec709 << rec709 << int(Vertex::Blue) << QPointF(0.16, 0.07);
    Model::Targets dim = rec709;
    dim.blue = Model::Target::fromYxy(1e-4, dim.blue.x, dim.blue.y);
    QTest::newRow("hardly any blue") << dim << rec709 << int(Vertex::Green) << QPointF(0.32, 0.59);
}

void TargetEditsTest::heldWhiteExceedsNoPrimary()
{
    QFETCH(Model::Targets, original);
    QFETCH(Model::Targets, target);
    QFETCH(int, primary);
    QFETCH(QPointF, xy);
    const auto after = withPrimary(target, Vertex(primary), xy, true, original);
    QVERIFY(after);
    QCOMPARE(after->white.x, target.white.x);
    QCOMPARE(after->white.y, target.white.y);
    QVERIFY(near(mixture(*after), xyOf(after->white)));
    // One primary is at its limit, and none beyond.
    double most = 0.0;
    for (const Vertex vertex : {Vertex::Red, Vertex::Green, Vertex::Blue}) {
        most = std::max(most, targetAt(*after, vertex).Y / targetAt(original, vertex).Y);
    }
    QVERIFY2(std::fabs(most - 1.0) < 2e-9, qPrintable(QString::number(most)));
}

void TargetEditsTest::heldWhiteOfTheOriginalStays()
{
    Model::Targets original = wall();
    original.white = Model::Target::fromYxy(1000, mixture(original).x(), mixture(original).y());
    const auto after = withPrimary(original, Vertex::Red, xyOf(original.red), true, original);
    QVERIFY(after);
    QCOMPARE(after->white.Y, 1000.0);
    QVERIFY(std::fabs(after->red.Y - 240) < 1e-6);
}

void TargetEditsTest::movedWhiteRebalancesThePrimaries()
{
    const Model::Targets before = Model::rec709().getTargets();
    const auto after = withWhite(before, QPointF(0.30, 0.31));
    QVERIFY(after);
    QVERIFY(near(mixture(*after), QPointF(0.30, 0.31)));
    QCOMPARE(after->white.Y, before.white.Y);
    QVERIFY(after->blue.Y > before.blue.Y);
    QVERIFY(near(xyOf(after->red), xyOf(before.red)));
}

void TargetEditsTest::whiteOutsideTheTriangleIsRefused()
{
    QVERIFY(!withWhite(Model::rec709().getTargets(), QPointF(0.6, 0.39)));
    QVERIFY(!withPrimary(Model::rec709().getTargets(), Vertex::Green, QPointF(0.5, 0.2), true, wall()));
}

void TargetEditsTest::primariesOnALineAreRefused()
{
    const Model::Targets rec709 = Model::rec709().getTargets();
    QVERIFY(!withPrimary(rec709, Vertex::Red, xyOf(rec709.green), false, wall()));
    QVERIFY(!withPrimary(rec709, Vertex::Red, (xyOf(rec709.green) + xyOf(rec709.blue)) / 2, false, wall()));
}

void TargetEditsTest::badChromaticitiesAreRefused_data()
{
    QTest::addColumn<QPointF>("xy");
    QTest::newRow("y 0") << QPointF(0.3, 0.0);
    QTest::newRow("negative x") << QPointF(-0.01, 0.3);
    QTest::newRow("sum above 1") << QPointF(0.6, 0.41);
    QTest::newRow("NaN") << QPointF(std::numeric_limits<double>::quiet_NaN(), 0.3);
    QTest::newRow("infinite") << QPointF(0.3, std::numeric_limits<double>::infinity());
}

void TargetEditsTest::badChromaticitiesAreRefused()
{
    QFETCH(QPointF, xy);
    QVERIFY(!withPrimary(wall(), Vertex::Red, xy, false, wall()));
    QVERIFY(!withWhite(wall(), xy));
}

void TargetEditsTest::luminanceOfAPrimaryMixesAnotherWhite()
{
    const auto after = withLuminance(wall(), Vertex::Blue, 200, false);
    QVERIFY(after);
    QCOMPARE(after->blue.Y, 200.0);
    QCOMPARE(after->red.Y, 240.0);
    QCOMPARE(after->white.Y, 1074.0);
    QVERIFY(near(xyOf(after->white), mixture(*after)));
    QVERIFY(!withLuminance(wall(), Vertex::Blue, -1, false));
    QVERIFY(!withLuminance(wall(), Vertex::Blue, std::numeric_limits<double>::infinity(), false));
}

void TargetEditsTest::luminanceOfTheWhiteScalesAll()
{
    const auto after = withLuminance(wall(), Vertex::White, 500, false);
    QVERIFY(after);
    QCOMPARE(after->white.Y, 500.0);
    QCOMPARE(after->red.Y, 120.0);
    QCOMPARE(after->green.Y, 317.0);
    QCOMPARE(after->white.x, wall().white.x);
}

void TargetEditsTest::luminanceScalesAllWhileTheWhiteIsHeld()
{
    const auto after = withLuminance(wall(), Vertex::Red, 120, true);
    QVERIFY(after);
    QCOMPARE(after->green.Y, 317.0);
    QCOMPARE(after->white.Y, 500.0);
    QVERIFY(!withLuminance(Model::Targets(), Vertex::White, 1, false));
}

void TargetEditsTest::editOfANamedGamutSaysSo()
{
    DisplayDescription description;
    description.target = QStringLiteral("Rec.709");
    const DisplayDescription edited = withEditedTarget(description, wall());
    QCOMPARE(edited.target, QStringLiteral("Rec.709 (edited)"));
    QVERIFY(isEditedName(edited.target));
    QCOMPARE(plainName(edited.target), QStringLiteral("Rec.709"));
    QVERIFY(sameTargets(edited.gamut(edited.target)->getTargets(), wall()));
    QVERIFY(sameTargets(edited.gamut(QStringLiteral("Rec.709"))->getTargets(), Model::rec709().getTargets()));
}

void TargetEditsTest::secondEditKeepsTheName()
{
    DisplayDescription description;
    description.target = QStringLiteral("Rec.709");
    description = withEditedTarget(description, wall());
    description = withEditedTarget(description, Model::rec2020().getTargets());
    QCOMPARE(description.target, QStringLiteral("Rec.709 (edited)"));
    QCOMPARE(description.gamuts.size(), size_t(1));
    QVERIFY(sameTargets(description.gamut(description.target)->getTargets(), Model::rec2020().getTargets()));
}

void TargetEditsTest::editLeavesAGamutOfThatNameAlone_data()
{
    QTest::addColumn<QString>("part");
    QTest::newRow("measured") << QStringLiteral("measured");
    QTest::newRow("original") << QStringLiteral("original");
    QTest::newRow("none") << QString();
}

void TargetEditsTest::editLeavesAGamutOfThatNameAlone()
{
    QFETCH(QString, part);
    const QString taken = QStringLiteral("Rec.709 (edited)");
    DisplayDescription description;
    description.gamuts.push_back(Model::ColorGamut(taken.toStdString(), wall()));
    description.measured = part == QLatin1String("measured") ? taken : QString();
    description.original = part == QLatin1String("original") ? taken : QString();
    description.target = QStringLiteral("Rec.709");
    description = withEditedTarget(description, Model::rec2020().getTargets());
    QCOMPARE(description.target, QStringLiteral("Rec.709 (edited 2)"));
    description = withEditedTarget(description, Model::rec709().getTargets());
    QCOMPARE(description.target, QStringLiteral("Rec.709 (edited 2)"));
    QVERIFY(sameTargets(description.gamut(taken)->getTargets(), wall()));
    description = withTargetNamed(description, QStringLiteral("Rec.2020"));
    QVERIFY(sameTargets(description.gamut(taken)->getTargets(), wall()));
    QVERIFY(!description.gamut(QStringLiteral("Rec.709 (edited 2)")));
}

void TargetEditsTest::editOfAGamutWithTwoPartsLeavesTheOther()
{
    DisplayDescription description;
    description.target = QStringLiteral("Rec.709");
    description = withEditedTarget(description, wall());
    description.measured = description.target;
    description = withEditedTarget(description, Model::rec2020().getTargets());
    QCOMPARE(description.target, QStringLiteral("Rec.709 (edited 2)"));
    QVERIFY(sameTargets(description.gamut(description.measured)->getTargets(), wall()));
}

void TargetEditsTest::editedNamesAreTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<int>("number");
    QTest::newRow("plain") << "Rec.709"
                           << "Rec.709" << 1;
    QTest::newRow("edited") << "Rec.709 (edited)"
                            << "Rec.709" << 1;
    QTest::newRow("second") << "Rec.709 (edited 2)"
                            << "Rec.709" << 2;
    QTest::newRow("placeholder") << "%1 (edited 12)"
                                 << "%1" << 12;
    QTest::newRow("two lines") << "a\nb (edited)"
                               << "a\nb" << 1;
    QTest::newRow("in between") << "a (edited) b"
                                << "a (edited) b" << 1;
}

void TargetEditsTest::editedNamesAreTold()
{
    QFETCH(QString, name);
    QFETCH(QString, plain);
    QFETCH(int, number);
    QCOMPARE(plainName(name), plain);
    QCOMPARE(isEditedName(name), name != plain);
    QCOMPARE(editNumber(name), number);
}

void TargetEditsTest::resetTakesTheEditedGamutAway()
{
    DisplayDescription description;
    description.target = QStringLiteral("Rec.709");
    description
        = withTargetNamed(withEditedTarget(description, Model::dciP3D65().getTargets()), QStringLiteral("Rec.2020"));
    QCOMPARE(description.target, QStringLiteral("Rec.2020"));
    QVERIFY(description.gamuts.empty());
}

void TargetEditsTest::resetKeepsASavedEditedGamut()
{
    DisplayDescription saved;
    saved.target = QStringLiteral("Rec.709");
    saved = withEditedTarget(saved, Model::dciP3D65().getTargets());
    const DisplayDescription reset = withTargetNamed(saved, QStringLiteral("Rec.2020"), saved);
    QVERIFY(reset.gamut(QStringLiteral("Rec.709 (edited)")));
}

void TargetEditsTest::resetTakesTheLuminanceOfTheTarget()
{
    DisplayDescription description;
    description.gamuts.push_back(Model::ColorGamut("wall", wall()));
    description.original = description.target = QStringLiteral("wall");
    description.standards = QStringList{QStringLiteral("Rec.2020")};
    const DisplayDescription saved = description;

    description = withTargetNamed(description, QStringLiteral("Rec.2020"), saved);
    QCOMPARE(description.target, QStringLiteral("Rec.2020"));
    const Model::Targets rec2020 = Model::rec2020().getTargets();
    const Model::Targets target = description.gamut(description.target)->getTargets();
    QCOMPARE(target.white.Y, 1000.0);
    QCOMPARE(target.red.Y, 1000.0 * rec2020.red.Y);
    QCOMPARE(target.red.x, rec2020.red.x);
    QVERIFY(near(mixture(target), xyOf(target.white)));

    // From one standard to another, at another luminance, and back: nothing is left behind.
    const auto half = withLuminance(target, Vertex::White, 500.0, false);
    description = withTargetNamed(withEditedTarget(description, *half), QStringLiteral("Rec.709"), saved);
    QCOMPARE(description.gamut(description.target)->getTargets().white.Y, 500.0);
    QCOMPARE(description.gamut(QStringLiteral("Rec.2020"))->getTargets().white.Y, 1.0);
    description = withTargetNamed(description, QStringLiteral("wall"), saved);
    QCOMPARE(description.gamuts.size(), size_t(1));

    // Luminances that a file gives are those of the file.
    description.gamuts.push_back(Model::ColorGamut("Rec.709", *withLuminance(rec2020, Vertex::White, 100.0, false)));
    description = withTargetNamed(description, QStringLiteral("Rec.709"), description);
    QCOMPARE(description.gamut(description.target)->getTargets().white.Y, 100.0);
}

void TargetEditsTest::resetLeavesOtherPartsAsTheyAre()
{
    DisplayDescription description;
    description.gamuts.push_back(Model::ColorGamut("wall", wall()));
    description.target = QStringLiteral("wall");
    description.original = QStringLiteral("Rec.709");
    description = withTargetNamed(description, QStringLiteral("Rec.709"), description);
    QCOMPARE(description.gamut(description.original)->getTargets().white.Y, 1.0);
}

void TargetEditsTest::resetKeepsAnEditedGamutThatIsReferredTo()
{
    DisplayDescription description;
    description.target = QStringLiteral("Rec.709");
    description = withEditedTarget(description, Model::dciP3D65().getTargets());
    description.measured = description.target;
    description = withTargetNamed(description, QStringLiteral("Rec.2020"));
    QCOMPARE(description.gamuts.size(), size_t(1));
}

void TargetEditsTest::snapsToStandardsAndTheOriginal()
{
    DisplayDescription description;
    description.gamuts.push_back(Model::ColorGamut("wall", wall()));
    Model::Targets own = Model::rec709().getTargets();
    own.red = Model::Target::fromYxy(0.3, 0.63, 0.34);
    description.gamuts.push_back(Model::ColorGamut("house", own));
    description.original = QStringLiteral("wall");
    description.standards = QStringList{QStringLiteral("house"), QStringLiteral("Rec.709")};
    description.target = QStringLiteral("Rec.709");
    const auto contains = [&](const QPointF &xy) {
        const QVector<QPointF> points = snapPoints(description, Vertex::Red);
        return std::count(points.begin(), points.end(), xy) == 1;
    };
    QVERIFY(contains(QPointF(0.700, 0.299)));
    QVERIFY(contains(QPointF(0.63, 0.34)));
    QVERIFY(contains(QPointF(0.64, 0.33)));
    QVERIFY(contains(QPointF(0.708, 0.292)));
    // What is dragged does not stick to itself.
    own.red = Model::Target::fromYxy(0.3, 0.61, 0.35);
    description = withEditedTarget(description, own);
    description.standards.append(description.target);
    QVERIFY(!contains(QPointF(0.61, 0.35)));
}

void TargetEditsTest::nearestTakesTheNearestInReach()
{
    const QVector<QPointF> candidates{QPointF(0.64, 0.33), QPointF(0.68, 0.32)};
    QCOMPARE(nearest(QPointF(0.642, 0.33), candidates, 0.01)->x(), 0.64);
    QCOMPARE(nearest(QPointF(0.675, 0.32), candidates, 0.1)->x(), 0.68);
    QVERIFY(!nearest(QPointF(0.66, 0.33), candidates, 0.01));
}

void TargetEditsTest::roundsToFourDecimals()
{
    const QPointF rounded = roundedXy(QPointF(0.64004999, 0.32995001));
    QCOMPARE(rounded.x(), 0.64);
    QCOMPARE(rounded.y(), 0.33);
}

void TargetEditsTest::diagramsConvertThereAndBack()
{
    // D65: u' = 0.1978, v' = 0.4683
    const QPointF uv = uvFromXy(QPointF(0.3127, 0.3290));
    QVERIFY(near(uv, QPointF(0.1978, 0.4683), 1e-4));
    QVERIFY(near(xyFromUv(uv), QPointF(0.3127, 0.3290), 1e-12));
}

QTEST_GUILESS_MAIN(TargetEditsTest)
#include "targeteditstest.moc"
