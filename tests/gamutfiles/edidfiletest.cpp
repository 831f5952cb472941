// SPDX-License-Identifier: MIT
#include "samplefiles.h"

#include <gamutfiles/edid.h>

#include <QtTest>

#include <cmath>

using namespace gamutfiles;

class EdidFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void primaries();
    void luminancesMixToTheWhite();
    void name();
    void nameMayBeMissing();
    void extensionBlocks();
    void tenBitsOfEveryCoordinate();
    void refusals_data();
    void refusals();
    void truncatedAnywhere();
    void damagedAnywhere();
};

namespace {

bool isExactly(const Model::Target &target, int x, int y)
{
    return target.x == x / 1024.0 && target.y == y / 1024.0;
}

QByteArray withColors(const QByteArray &tenBytes)
{
    return samplefiles::withChecksum(samplefiles::edid().replace(25, 10, tenBytes));
}

} // namespace

void EdidFileTest::primaries()
{
    const auto gamut = readEdid(samplefiles::edid());
    QVERIFY2(gamut, qPrintable(gamut.error()));
    const Model::Targets &targets = gamut->getTargets();
    QVERIFY(isExactly(targets.red, 655, 338));
    QVERIFY(isExactly(targets.green, 307, 614));
    QVERIFY(isExactly(targets.blue, 154, 61));
    QVERIFY(isExactly(targets.white, 320, 337));
}

void EdidFileTest::luminancesMixToTheWhite()
{
    const Model::Targets targets = readEdid(samplefiles::edid())->getTargets();
    QVERIFY(targets.white.Y == 1.0);
    QVERIFY(std::fabs(targets.red.Y + targets.green.Y + targets.blue.Y - 1.0) < 1e-12);
    QVERIFY(std::fabs(targets.red.X + targets.green.X + targets.blue.X - targets.white.X) < 1e-12);
    QVERIFY(std::fabs(targets.green.Y - 0.715) < 0.01);
}

void EdidFileTest::name()
{
    QCOMPARE(readEdid(samplefiles::edid())->colorGamutName(), std::string("Studio 27"));
}

void EdidFileTest::nameMayBeMissing()
{
    const auto gamut = readEdid(samplefiles::withChecksum(samplefiles::edid().replace(72, 18, QByteArray(18, '\0'))));
    QVERIFY(gamut);
    QCOMPARE(gamut->colorGamutName(), std::string("ABC")); // the maker's letters
}

void EdidFileTest::extensionBlocks()
{
    QByteArray announced = samplefiles::edid();
    announced[126] = 1;
    announced = samplefiles::withChecksum(announced);
    QVERIFY(readEdid(announced)); // the block is missing
    QVERIFY(readEdid(announced + QByteArray(128, '\xFF')));
    QVERIFY(isExactly(readEdid(announced + QByteArray(128, '\xFF'))->getTargets().red, 655, 338));
}

// The low two bits of each coordinate stand apart from the high eight.
void EdidFileTest::tenBitsOfEveryCoordinate()
{
    QByteArray colors("\x1B\x2D\xA3\x54\x4C\x99\x26\x0F\x50\x54", 10);
    const auto gamut = readEdid(withColors(colors));
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
    row("wrong header", samplefiles::edid().replace(0, 1, "\x01"), "is not an EDID");
    row("wrong checksum", samplefiles::edid().replace(30, 1, QByteArray(1, '\0')),
        "is a damaged EDID: its checksum is wrong");
    row("no primaries", withColors(QByteArray(10, '\0')), "is an EDID without primaries");
    row("a white and no primaries", withColors(QByteArray("\x00\x01\x00\x00\x00\x00\x00\x00\x50\x54", 10)),
        "is an EDID without primaries");
    row("equal primaries", withColors(QByteArray("\x00\x00\x54\x54\x54\x54\x54\x54\x54\x54", 10)),
        "is an EDID without usable primaries: the primaries do not form a triangle");
    row("white outside", withColors(QByteArray("\xEE\x91\xA3\x54\x4C\x99\x26\x0F\x10\x14", 10)),
        "is an EDID without usable primaries: the white point lies outside the triangle of the primaries");
    row("beyond the diagram", withColors(QByteArray(10, '\xFF')),
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
        const auto gamut = readEdid(samplefiles::edid().left(size));
        QVERIFY(!gamut);
        QVERIFY2(gamut.error().startsWith("is a truncated EDID: "), qPrintable(gamut.error()));
    }
}

void EdidFileTest::damagedAnywhere()
{
    for (int at = 8; at < 127; ++at) {
        for (const char byte : {'\x00', '\x7F', '\xFF'}) {
            const auto gamut = readEdid(samplefiles::withChecksum(samplefiles::edid().replace(at, 1, &byte, 1)));
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
