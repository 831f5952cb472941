// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "sampleedids.h"

#include <QtTest>

#include <cmath>

using namespace gamutfiles;
using namespace samplefiles;

class EdidFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void primaries();
    void luminancesMixToTheWhite();
    void name();
    void nameMayBeMissing();
    void makerAndYear();
    void gammaOfTheBaseBlock();
    void copiedStandards_data();
    void copiedStandards();
    void primaryThatNoLightHas();
    void primariesWithinTheLocus();
    void contradictions();
    void sumsAboveOneByRounding();
    void tenBitsOfEveryCoordinate();
    void refusals_data();
    void refusals();
    void truncatedAnywhere();
    void damagedAnywhere();
};

void EdidFileTest::primaries()
{
    const auto gamut = readEdid(edid());
    QVERIFY2(gamut, qPrintable(gamut.error()));
    const Model::Targets &targets = gamut->getTargets();
    QVERIFY(isExactly(targets.red, 655, 338));
    QVERIFY(isExactly(targets.green, 307, 614));
    QVERIFY(isExactly(targets.blue, 154, 61));
    QVERIFY(isExactly(targets.white, 320, 337));
}

void EdidFileTest::luminancesMixToTheWhite()
{
    const Model::Targets targets = readEdid(edid())->getTargets();
    QVERIFY(targets.white.Y == 1.0);
    QVERIFY(std::fabs(targets.red.Y + targets.green.Y + targets.blue.Y - 1.0) < 1e-12);
    QVERIFY(std::fabs(targets.red.X + targets.green.X + targets.blue.X - targets.white.X) < 1e-12);
    QVERIFY(std::fabs(targets.green.Y - 0.715) < 0.01);
}

void EdidFileTest::name()
{
    QCOMPARE(readEdid(edid())->colorGamutName(), std::string("Studio 27"));
}

void EdidFileTest::nameMayBeMissing()
{
    const auto gamut = readEdid(withChecksum(edid().replace(72, 18, QByteArray(18, '\0'))));
    QVERIFY(gamut);
    QCOMPARE(gamut->colorGamutName(), std::string("ABC")); // the maker's letters
}

void EdidFileTest::makerAndYear()
{
    const auto dated = [](char week, char year) {
        QByteArray block = edid();
        block[16] = week;
        block[17] = year;
        return readEdidDisplay(withChecksum(block));
    };
    QCOMPARE(dated(10, 31)->manufacturer, QStringLiteral("ABC"));
    QCOMPARE(dated(10, 31)->name, QStringLiteral("Studio 27"));
    QVERIFY(dated(10, 31)->manufactureYear == 2021);
    QVERIFY(!dated(10, 31)->modelYear);
    QVERIFY(dated(char(0xFF), 32)->modelYear == 2022);
    QVERIFY(!dated(char(0xFF), 32)->manufactureYear);
    QVERIFY(!dated(0, 0)->manufactureYear);
}

void EdidFileTest::gammaOfTheBaseBlock()
{
    QVERIFY(readEdidDisplay(edid())->gamma == 2.2);
    // E-EDID 1.4: 00h to FEh are 1.00 to 3.54; with FFh an extension block states it.
    QVERIFY(readEdidDisplay(withChecksum(edid().replace(23, 1, QByteArray(1, '\0'))))->gamma == 1.0);
    QVERIFY(readEdidDisplay(withChecksum(edid().replace(23, 1, "\xFE")))->gamma == 3.54);
    const auto without = readEdidDisplay(withChecksum(edid().replace(23, 1, "\xFF")));
    QVERIFY(!without->gamma);
}

void EdidFileTest::copiedStandards_data()
{
    QTest::addColumn<QByteArray>("colors");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *name, const QByteArray &colors, const char *standard) {
        QTest::newRow(name) << colors
                            << (*standard == '\0' ? QString() : QString(stampedSrgb).replace("sRGB", standard));
    };
    row("sRGB rounded", QByteArray("\xEE\x91\xA3\x54\x4C\x99\x26\x0F\x50\x54", 10), "sRGB");
    row("sRGB cut off", QByteArray("\xDE\x50\xA3\x54\x4C\x99\x26\x0F\x50\x54", 10), "sRGB");
    row("two steps beside", QByteArray("\xAE\x91\xA4\x54\x4C\x99\x26\x0F\x50\x54", 10), "");
    // 696, 328; 271, 707; 154, 61; 320, 337
    row("Display P3", QByteArray("\x0F\x91\xAE\x52\x43\xB0\x26\x0F\x50\x54", 10), "DCI-P3(D65)");
}

void EdidFileTest::copiedStandards()
{
    QFETCH(QByteArray, colors);
    QFETCH(QString, warning);
    const auto gamut = readEdid(edidOf(colors));
    QVERIFY2(gamut, qPrintable(gamut.error()));
    QCOMPARE(messages(gamut.warnings()).join('\n'), warning);
}

// The distance by a script from the table of the colour-matching functions at 1 nm.
void EdidFileTest::primaryThatNoLightHas()
{
    const auto gamut = readEdid(edidOf(QByteArray("\xEE\x81\xA3\x54\x4C\x99\x19\x05\x50\x54", 10))); // blue 102, 20
    QVERIFY2(gamut, qPrintable(gamut.error()));
    QVERIFY(isExactly(gamut->getTargets().blue, 102, 20));
    QCOMPARE(messages(gamut.warnings()).join('\n'),
        QStringLiteral(
            "the blue primary at 0.0996, 0.0195 lies outside of the spectral locus by 0.0411 in x, y: no light "
            "has this colour"));
}

// Red 700, 315: the table's last steps before the red end turn this way and that by rounding.
void EdidFileTest::primariesWithinTheLocus()
{
    const auto gamut = readEdid(edidOf(QByteArray("\x38\x81\xAF\x4E\x3E\xAF\x25\x0F\x50\x54", 10)));
    QVERIFY2(gamut, qPrintable(gamut.error()));
    QVERIFY(isExactly(gamut->getTargets().red, 700, 315));
    QCOMPARE(messages(gamut.warnings()).join('\n'), QString());
}

void EdidFileTest::contradictions()
{
    const auto display = readEdidDisplay(nativeDisplay('\x00'));
    QCOMPARE(messages(display.warnings()),
        QStringList({stampedSrgb,
            "the base block states another gamut than the DisplayID extension: red at 0.6396, 0.3301 and at "
            "0.6799, 0.3201; that of the base block is used"}));
}

// The low two bits of each coordinate stand apart from the high eight.
void EdidFileTest::sumsAboveOneByRounding()
{
    // red 724, 301: x + y is 1025/1024
    const auto gamut = readEdid(edidOf(QByteArray("\x1E\x51\xB5\x4B\x4C\x99\x26\x0F\x50\x54", 10)));
    QVERIFY2(gamut, qPrintable(gamut.error()));
    QCOMPARE(gamut->getTargets().red.y, 301 / 1024.0);
    QCOMPARE(gamut->getTargets().red.x, 723 / 1024.0);
    QCOMPARE(messages(gamut.warnings()).first(),
        QStringLiteral(
            "red at 0.7070, 0.2939 has x + y above 1, as rounding can make it: it is read as 0.7061, 0.2939"));
    // 725, 301
    QCOMPARE(readEdid(edidOf(QByteArray("\x5E\x51\xB5\x4B\x4C\x99\x26\x0F\x50\x54", 10))).error(),
        QStringLiteral("is an EDID without usable primaries: the red primary is not a valid chromaticity: x 0.708008, "
                       "y 0.293945"));
}

void EdidFileTest::tenBitsOfEveryCoordinate()
{
    QByteArray colors("\x1B\x2D\xA3\x54\x4C\x99\x26\x0F\x50\x54", 10);
    const auto gamut = readEdid(edidOf(colors));
    QVERIFY2(gamut, qPrintable(gamut.error()));
    const Model::Targets &targets = gamut->getTargets();
    QVERIFY(isExactly(targets.red, 0xA3 * 4 + 0, 0x54 * 4 + 1));
    QVERIFY(isExactly(targets.green, 0x4C * 4 + 2, 0x99 * 4 + 3));
    QVERIFY(isExactly(targets.blue, 0x26 * 4 + 0, 0x0F * 4 + 2));
    QVERIFY(isExactly(targets.white, 0x50 * 4 + 3, 0x54 * 4 + 1));
}

void EdidFileTest::refusals_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QByteArray &bytes, const char *error) {
        QTest::newRow(name) << bytes << QString::fromUtf8(error);
    };
    row("empty", "", "is a truncated EDID: 0 bytes instead of at least 128");
    row("wrong header", edid().replace(0, 1, "\x01"), "is not an EDID");
    row("wrong checksum", edid().replace(30, 1, QByteArray(1, '\0')), "is a damaged EDID: its checksum is wrong");
    row("no primaries", edidOf(QByteArray(10, '\0')), "is an EDID without primaries");
    row("a white and no primaries", edidOf(QByteArray("\x00\x01\x00\x00\x00\x00\x00\x00\x50\x54", 10)),
        "is an EDID without primaries");
    row("equal primaries", edidOf(QByteArray("\x00\x00\x54\x54\x54\x54\x54\x54\x54\x54", 10)),
        "is an EDID without usable primaries: the primaries do not form a triangle");
    row("white outside", edidOf(QByteArray("\xEE\x91\xA3\x54\x4C\x99\x26\x0F\x10\x14", 10)),
        "is an EDID without usable primaries: the white point lies outside the triangle of the primaries");
    row("beyond the diagram", edidOf(QByteArray(10, '\xFF')),
        "is an EDID without usable primaries: the red primary is not a valid chromaticity: x 0.999023, y 0.999023");
}

void EdidFileTest::refusals()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    const auto gamut = readEdid(bytes);
    QVERIFY(!gamut);
    QCOMPARE(gamut.error(), error);
}

void EdidFileTest::truncatedAnywhere()
{
    for (int size = 0; size < 128; ++size) {
        const auto gamut = readEdid(edid().left(size));
        QVERIFY(!gamut);
        QVERIFY2(gamut.error().startsWith("is a truncated EDID: "), qPrintable(gamut.error()));
    }
}

void EdidFileTest::damagedAnywhere()
{
    for (int at = 8; at < 127; ++at) {
        for (const char byte : {'\x00', '\x7F', '\xFF'}) {
            const auto gamut = readEdid(withChecksum(edid().replace(at, 1, &byte, 1)));
            if (gamut) {
                QVERIFY(at < 25 || at >= 35 || gamut->getTargets().red.y > 0.0);
                QVERIFY(!gamut->colorGamutName().empty());
            } else {
                QVERIFY2(at >= 25 && at < 35, qPrintable(gamut.error()));
            }
        }
    }
}

QTEST_GUILESS_MAIN(EdidFileTest)
#include "edidfiletest.moc"
