// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/publishedgamuts.h>

#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <set>

using namespace Model;

class PublishedGamutsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void firstAreTheStandards();
    void coordinates_data();
    void coordinates();
    void luminances_data();
    void luminances();
    void primariesMixToTheWhite();
    void everyEntryHasItsOwnNameAndASource();
    void ownNames();
    void otherNames_data();
    void otherNames();
    void severalGamutsOfAName_data();
    void severalGamutsOfAName();
    void unknownNames();
    void equalGamuts();
    void equalWithinTheStepsOfAnEdid();
    void nothingEqualsWhatIsNoNumber();
};

namespace {

Targets targetsOf(const char *name)
{
    const auto found = publishedGamut(name);
    return found ? found->gamut.getTargets() : Targets();
}

QStringList namesOf(const std::vector<PublishedGamut> &gamuts)
{
    QStringList names;
    for (const PublishedGamut &published : gamuts) {
        names.append(QString::fromStdString(published.gamut.colorGamutName()));
    }
    return names;
}

bool same(const Target &a, const Target &b)
{
    return a.Y == b.Y && a.x == b.x && a.y == b.y && a.X == b.X && a.Z == b.Z && a.u == b.u && a.v == b.v;
}

} // namespace

void PublishedGamutsTest::firstAreTheStandards()
{
    const std::vector<ColorGamut> standards = standardGamuts();
    QVERIFY(publishedGamuts().size() > standards.size());
    for (std::size_t i = 0; i < standards.size(); ++i) {
        const ColorGamut &published = publishedGamuts()[i].gamut;
        QCOMPARE(published.colorGamutName(), standards[i].colorGamutName());
        QVERIFY(same(published.getTargets().red, standards[i].getTargets().red));
        QVERIFY(same(published.getTargets().green, standards[i].getTargets().green));
        QVERIFY(same(published.getTargets().blue, standards[i].getTargets().blue));
        QVERIFY(same(published.getTargets().white, standards[i].getTargets().white));
    }
}

// As Recommendation ITU-T H.273 lists them for its ColourPrimaries, and the documents of the others.
void PublishedGamutsTest::coordinates_data()
{
    QTest::addColumn<QVector<double>>("expected");
    const auto row = [](const char *name, const QVector<double> &expected) { QTest::newRow(name) << expected; };
    row("Rec.709", {0.640, 0.330, 0.300, 0.600, 0.150, 0.060, 0.3127, 0.3290});
    row("Rec.2020", {0.708, 0.292, 0.170, 0.797, 0.131, 0.046, 0.3127, 0.3290});
    row("DCI-P3(D65)", {0.680, 0.320, 0.265, 0.690, 0.150, 0.060, 0.3127, 0.3290});
    row("sRGB", {0.640, 0.330, 0.300, 0.600, 0.150, 0.060, 0.3127, 0.3290});
    row("Display P3", {0.680, 0.320, 0.265, 0.690, 0.150, 0.060, 0.3127, 0.3290});
    row("DCI-P3 (theatre)", {0.680, 0.320, 0.265, 0.690, 0.150, 0.060, 0.314, 0.351});
    row("Adobe RGB (1998)", {0.640, 0.330, 0.210, 0.710, 0.150, 0.060, 0.3127, 0.3290});
    row("Rec.601 (525)", {0.630, 0.340, 0.310, 0.595, 0.155, 0.070, 0.3127, 0.3290});
    row("Rec.601 (625)", {0.640, 0.330, 0.290, 0.600, 0.150, 0.060, 0.3127, 0.3290});
    row("NTSC 1953", {0.670, 0.330, 0.210, 0.710, 0.140, 0.080, 0.310, 0.316});
    row("ACEScg", {0.713, 0.293, 0.165, 0.830, 0.128, 0.044, 0.32168, 0.33767});
    row("ACES2065-1", {0.73470, 0.26530, 0.0, 1.0, 0.00010, -0.07700, 0.32168, 0.33767});
}

void PublishedGamutsTest::coordinates()
{
    QFETCH(QVector<double>, expected);
    const Targets t = targetsOf(QTest::currentDataTag());
    QCOMPARE(
        (QVector<double>{t.red.x, t.red.y, t.green.x, t.green.y, t.blue.x, t.blue.y, t.white.x, t.white.y}), expected);
}

// The second rows of the published matrices from RGB to XYZ: of IEC 61966-2-1, of the Adobe RGB (1998) document, of
// S-2014-004 and ST 2065-1; of the others as colorimetry libraries document them. For the last two these use a white of
// five decimals.
void PublishedGamutsTest::luminances_data()
{
    QTest::addColumn<double>("red");
    QTest::addColumn<double>("green");
    QTest::addColumn<double>("blue");
    QTest::addColumn<double>("tolerance");
    QTest::newRow("sRGB") << 0.2126 << 0.7152 << 0.0722 << 5e-5;
    QTest::newRow("Adobe RGB (1998)") << 0.29734 << 0.62736 << 0.07529 << 1e-5;
    QTest::newRow("ACEScg") << 0.2722287168 << 0.6740817658 << 0.0536895174 << 5e-11;
    QTest::newRow("ACES2065-1") << 0.3439664498 << 0.7281660966 << -0.0721325464 << 5e-11;
    QTest::newRow("Display P3") << 0.228974564 << 0.691738522 << 0.0792869141 << 1e-9;
    QTest::newRow("DCI-P3 (theatre)") << 0.209491678 << 0.721595254 << 0.0689130679 << 1e-9;
    QTest::newRow("Rec.601 (525)") << 0.212 << 0.701 << 0.087 << 5e-4;
    QTest::newRow("Rec.601 (625)") << 0.22204 << 0.70664 << 0.07132 << 5e-5;
    QTest::newRow("NTSC 1953") << 0.298903 << 0.586620 << 0.114477 << 2e-4;
}

void PublishedGamutsTest::luminances()
{
    QFETCH(double, red);
    QFETCH(double, green);
    QFETCH(double, blue);
    QFETCH(double, tolerance);
    const Targets t = targetsOf(QTest::currentDataTag());
    QVERIFY2(std::fabs(t.red.Y - red) <= tolerance, qPrintable(QString::number(t.red.Y, 'g', 12)));
    QVERIFY2(std::fabs(t.green.Y - green) <= tolerance, qPrintable(QString::number(t.green.Y, 'g', 12)));
    QVERIFY2(std::fabs(t.blue.Y - blue) <= tolerance, qPrintable(QString::number(t.blue.Y, 'g', 12)));
}

void PublishedGamutsTest::primariesMixToTheWhite()
{
    for (const PublishedGamut &published : publishedGamuts()) {
        const Targets &t = published.gamut.getTargets();
        QVERIFY(t.white.Y == 1.0);
        QVERIFY(std::fabs(t.red.X + t.green.X + t.blue.X - t.white.X) < 1e-15);
        QVERIFY(std::fabs(t.red.Y + t.green.Y + t.blue.Y - t.white.Y) < 1e-15);
        QVERIFY(std::fabs(t.red.Z + t.green.Z + t.blue.Z - t.white.Z) < 1e-15);
    }
}

void PublishedGamutsTest::everyEntryHasItsOwnNameAndASource()
{
    std::set<std::string> names;
    for (const PublishedGamut &published : publishedGamuts()) {
        names.insert(published.gamut.colorGamutName());
        QVERIFY(std::strlen(published.source) > 0);
    }
    QCOMPARE(names.size(), std::size_t(12));
    QCOMPARE(names.size(), publishedGamuts().size());
}

void PublishedGamutsTest::ownNames()
{
    for (const PublishedGamut &published : publishedGamuts()) {
        const QString name = QString::fromStdString(published.gamut.colorGamutName());
        for (const QString &written : {name, name.toUpper(), name.toLower(), QString(name).remove(' '),
                 QString(name).replace('.', ' ').replace('-', '_')}) {
            QCOMPARE(namesOf(publishedGamutsNamed(written.toStdString())), QStringList(name));
        }
    }
}

void PublishedGamutsTest::otherNames_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("BT.709") << "Rec.709";
    QTest::newRow("ITU-R BT.709") << "Rec.709";
    QTest::newRow("Rec. 709") << "Rec.709";
    QTest::newRow("bt2020") << "Rec.2020";
    QTest::newRow("Rec. 2100") << "Rec.2020";
    QTest::newRow("P3-D65") << "DCI-P3(D65)";
    QTest::newRow("DCI-P3 D65") << "DCI-P3(D65)";
    QTest::newRow("display-p3") << "Display P3";
    QTest::newRow("DCI-P3 theater") << "DCI-P3 (theatre)";
    QTest::newRow("P3-DCI") << "DCI-P3 (theatre)";
    QTest::newRow("IEC 61966-2-1") << "sRGB";
    QTest::newRow("Adobe RGB") << "Adobe RGB (1998)";
    QTest::newRow("AdobeRGB1998") << "Adobe RGB (1998)";
    QTest::newRow("SMPTE C") << "Rec.601 (525)";
    QTest::newRow("BT.601 525") << "Rec.601 (525)";
    QTest::newRow("PAL") << "Rec.601 (625)";
    QTest::newRow("EBU") << "Rec.601 (625)";
    QTest::newRow("NTSC (1953)") << "NTSC 1953";
    QTest::newRow("AP1") << "ACEScg";
    QTest::newRow("aces ap0") << "ACES2065-1";
}

void PublishedGamutsTest::otherNames()
{
    QFETCH(QString, expected);
    const auto found = publishedGamut(QTest::currentDataTag());
    QVERIFY(found);
    QCOMPARE(QString::fromStdString(found->gamut.colorGamutName()), expected);
}

void PublishedGamutsTest::severalGamutsOfAName_data()
{
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("Rec.601") << QStringList{"Rec.601 (525)", "Rec.601 (625)"};
    QTest::newRow("bt.601") << QStringList{"Rec.601 (525)", "Rec.601 (625)"};
    QTest::newRow("DCI-P3") << QStringList{"DCI-P3(D65)", "DCI-P3 (theatre)"};
    QTest::newRow("P3") << QStringList{"DCI-P3(D65)", "DCI-P3 (theatre)"};
    QTest::newRow("NTSC") << QStringList{"Rec.601 (525)", "NTSC 1953"};
}

void PublishedGamutsTest::severalGamutsOfAName()
{
    QFETCH(QStringList, expected);
    QCOMPARE(namesOf(publishedGamutsNamed(QTest::currentDataTag())), expected);
    QVERIFY(!publishedGamut(QTest::currentDataTag()));
}

void PublishedGamutsTest::unknownNames()
{
    for (const char *name : {"", " ", ";", "-", "Rec", "709", "Rec.70", "Rec.7099", "LED wall", "bt709;iturbt709",
             "\xE8\xAF\x86\xE5\x88\xAB"}) {
        QVERIFY2(publishedGamutsNamed(name).empty(), name);
    }
}

void PublishedGamutsTest::equalGamuts()
{
    QCOMPARE(namesOf(publishedGamutsEqualTo(targetsOf("sRGB"))), (QStringList{"Rec.709", "sRGB"}));
    QCOMPARE(namesOf(publishedGamutsEqualTo(targetsOf("Rec.709"))), (QStringList{"Rec.709", "sRGB"}));
    QCOMPARE(namesOf(publishedGamutsEqualTo(targetsOf("Display P3"))), (QStringList{"DCI-P3(D65)", "Display P3"}));
    // The white counts, the luminances do not.
    QCOMPARE(namesOf(publishedGamutsEqualTo(targetsOf("DCI-P3 (theatre)"))), QStringList("DCI-P3 (theatre)"));
    Targets bright = targetsOf("Rec.2020");
    bright.white.Y = 1000.0;
    bright.red.u = std::numeric_limits<double>::quiet_NaN();
    QCOMPARE(namesOf(publishedGamutsEqualTo(bright)), QStringList("Rec.2020"));
    bright.blue.y += 1e-6;
    QVERIFY(publishedGamutsEqualTo(bright).empty());
    QVERIFY(publishedGamutsEqualTo(Targets()).empty());
}

// Each coordinate as an EDID stores it: a multiple of 1/1024.
void PublishedGamutsTest::equalWithinTheStepsOfAnEdid()
{
    for (const PublishedGamut &published : publishedGamuts()) {
        Targets stored = published.gamut.getTargets();
        for (Target *target : {&stored.red, &stored.green, &stored.blue, &stored.white}) {
            target->x = std::round(target->x * 1024.0) / 1024.0;
            target->y = std::round(target->y * 1024.0) / 1024.0;
        }
        const QStringList names = namesOf(publishedGamutsEqualTo(stored, 0.0005));
        QVERIFY(names.contains(QString::fromStdString(published.gamut.colorGamutName())));
        QVERIFY(publishedGamutsEqualTo(stored).empty());
    }
}

void PublishedGamutsTest::nothingEqualsWhatIsNoNumber()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Targets bad = targetsOf("sRGB");
    bad.green.x = nan;
    QVERIFY(publishedGamutsEqualTo(bad, 10.0).empty());
    QVERIFY(publishedGamutsEqualTo(targetsOf("sRGB"), nan).empty());
    QVERIFY(publishedGamutsEqualTo(targetsOf("sRGB"), -1.0).empty());
}

QTEST_GUILESS_MAIN(PublishedGamutsTest)
#include "publishedgamutstest.moc"
