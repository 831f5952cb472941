// SPDX-FileCopyrightText: 2026 the ceiechart authors
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
    const auto half = ceiechart::withLuminance(target, Vertex::White, 500.0, false);
    description = withTargetNamed(withEditedTarget(description, *half), QStringLiteral("Rec.709"), saved);
    QCOMPARE(description.gamut(description.target)->getTargets().white.Y, 500.0);
    QCOMPARE(description.gamut(QStringLiteral("Rec.2020"))->getTargets().white.Y, 1.0);
    description = withTargetNamed(description, QStringLiteral("wall"), saved);
    QCOMPARE(description.gamuts.size(), size_t(1));

    // Luminances that a file gives are those of the file.
    description.gamuts.push_back(
        Model::ColorGamut("Rec.709", *ceiechart::withLuminance(rec2020, Vertex::White, 100.0, false)));
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

void TargetEditsTest::diagramsConvertThereAndBack()
{
    // D65: u' = 0.1978, v' = 0.4683
    const QPointF uv = uvFromXy(QPointF(0.3127, 0.3290));
    QVERIFY(near(uv, QPointF(0.1978, 0.4683), 1e-4));
    QVERIFY(near(xyFromUv(uv), QPointF(0.3127, 0.3290), 1e-12));
}

QTEST_GUILESS_MAIN(TargetEditsTest)
#include "targeteditstest.moc"
