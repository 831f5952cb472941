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
    void makerAndYear();
    void gammaOfTheBaseBlock();
    void hdrStaticMetadata();
    void contentLuminancesMayBeMissing();
    void contentLuminanceIsNotThatOfTheDisplay();
    void nativeLuminances();
    void displayIdOfTheFirstVersion();
    void displayIdInUniformCoordinates();
    void displayIdWithoutBasePrimaries();
    void dataBlocksInsideOfDisplayId();
    void moreExtensionsThanTheBaseBlockCounts();
    void halfPrecision_data();
    void halfPrecision();
    void damagedExtensions_data();
    void damagedExtensions();
    void extensionsDamagedAnywhere();
    void extensionsTruncatedAnywhere();
    void copiedStandards_data();
    void copiedStandards();
    void primaryThatNoLightHas();
    void primariesWithinTheLocus();
    void contradictions();
    void hexDumps_data();
    void hexDumps();
    void noHexDumps();
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

//! DCI-P3 with the white D65, each coordinate in 4096ths.
QByteArray displayP3()
{
    return samplefiles::twelveBits(2785, 1311) + samplefiles::twelveBits(1085, 2826) + samplefiles::twelveBits(614, 246)
        + samplefiles::twelveBits(1281, 1348);
}

//! 700, 1000 and 1/256 cd/m², as binary16.
const QList<quint16> halves{0x6178, 0x63D0, 0x1C00};

QByteArray nativeDisplay(char flags, const QList<quint16> &luminances = halves)
{
    return samplefiles::withExtensions(samplefiles::edid(),
        {samplefiles::displayIdBlock(0x20,
            samplefiles::displayIdDataBlock(
                0x21, 0, samplefiles::displayIdParameters(displayP3(), luminances, flags)))});
}

QByteArray hdrDisplay(const QByteArray &luminances)
{
    return samplefiles::withExtensions(samplefiles::edid(),
        {samplefiles::ctaBlock(samplefiles::ctaDataBlock(5, QByteArray("\xC0\x80", 2))
            + samplefiles::ctaDataBlock(6, QByteArray("\x05\x01", 2) + luminances))});
}

QStringList messages(const QVector<Problem> &problems)
{
    QStringList texts;
    for (const Problem &problem : problems) {
        texts += problem.message();
    }
    return texts;
}

const QString stampedSrgb = QStringLiteral("the EDID states exactly sRGB: many makers write this without measuring");

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

void EdidFileTest::makerAndYear()
{
    const auto dated = [](char week, char year) {
        QByteArray block = samplefiles::edid();
        block[16] = week;
        block[17] = year;
        return readEdidDisplay(samplefiles::withChecksum(block));
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
    QVERIFY(readEdidDisplay(samplefiles::edid())->gamma == 2.2);
    const auto without = readEdidDisplay(samplefiles::withChecksum(samplefiles::edid().replace(23, 1, "\xFF")));
    QVERIFY(!without->gamma);
}

// 50 * 2^(138 / 32) and so on; edid-decode prints the same.
void EdidFileTest::hdrStaticMetadata()
{
    const auto display = readEdidDisplay(hdrDisplay(QByteArray("\x8A\x6A\x02", 3)));
    QVERIFY2(display, qPrintable(display.error()));
    QVERIFY(std::fabs(*display->contentLuminance.maximum - 993.486) < 0.001);
    QVERIFY(std::fabs(*display->contentLuminance.maximumFrameAverage - 496.743) < 0.001);
    QVERIFY(std::fabs(*display->contentLuminance.minimum - 0.000611) < 0.000001);
    QCOMPARE(display->colorimetries, QStringList({"BT2020YCC", "BT2020RGB", "DCI-P3"}));
    QCOMPARE(display->transferFunctions, QStringList({"traditional gamma, SDR luminance", "SMPTE ST 2084"}));
    QCOMPARE(messages(display.warnings()),
        QStringList(stampedSrgb
            + QStringLiteral(", and this display also takes signals of a wider gamut (BT2020YCC, BT2020RGB, DCI-P3)")));
}

void EdidFileTest::contentLuminancesMayBeMissing()
{
    const auto luminance = [](const QByteArray &bytes) { return readEdidDisplay(hdrDisplay(bytes))->contentLuminance; };
    QVERIFY(!luminance("").maximum && !luminance("").maximumFrameAverage && !luminance("").minimum);
    QVERIFY(luminance("\x20").maximum == 100.0);
    QVERIFY(!luminance("\x20").maximumFrameAverage && !luminance("\x20").minimum);
    QVERIFY(luminance("\x40\x20").maximumFrameAverage == 100.0);
    QVERIFY(!luminance(QByteArray("\x00\x20\x20", 3)).maximum);
    QVERIFY(!luminance(QByteArray("\x00\x20\x20", 3)).minimum); // it is a share of the maximum
    QVERIFY(!luminance(QByteArray("\x20\x00\x00", 3)).minimum);
}

void EdidFileTest::contentLuminanceIsNotThatOfTheDisplay()
{
    const auto gamut = readEdid(hdrDisplay("\x8A\x6A\x02"));
    QVERIFY(gamut->unit == LuminanceUnit::Relative);
    QVERIFY(gamut->getTargets().white.Y == 1.0);
}

void EdidFileTest::nativeLuminances()
{
    const auto display = readEdidDisplay(nativeDisplay('\x00'));
    QVERIFY2(display, qPrintable(display.error()));
    QVERIFY(display->nativeLuminance.fullScreen == 700.0);
    QVERIFY(display->nativeLuminance.tenPercent == 1000.0);
    QVERIFY(display->nativeLuminance.minimum == 1.0 / 256.0);
    QVERIFY(display->nativeLuminance.guaranteed);
    QVERIFY(display->gamma == 2.2);
    QVERIFY(display->displayIdChromaticities->green == QPointF(1085 / 4096.0, 2826 / 4096.0));
    QVERIFY(display->gamut.unit == LuminanceUnit::CandelaPerSquareMetre);
    const Model::Targets &targets = display->gamut.getTargets();
    QVERIFY(targets.white.Y == 700.0);
    QVERIFY(std::fabs(targets.red.Y + targets.green.Y + targets.blue.Y - 700.0) < 1e-9);
    QVERIFY(isExactly(targets.red, 655, 338)); // those of the base block

    // Guidance for the source and a reserved value promise nothing of the display.
    for (const char flags : {'\x08', '\x10', '\x18'}) {
        const auto guidance = readEdidDisplay(nativeDisplay(flags));
        QVERIFY(!guidance->nativeLuminance.guaranteed);
        QVERIFY(guidance->nativeLuminance.fullScreen == 700.0);
        QVERIFY(guidance->gamut.unit == LuminanceUnit::Relative);
        QVERIFY(guidance->gamut.getTargets().white.Y == 1.0);
    }
    for (const quint16 none : {quint16(0x8000), quint16(0), quint16(0x7C00), quint16(0x7E00), quint16(0xD000)}) {
        const auto unknown = readEdidDisplay(nativeDisplay('\x00', {none, 0x63D0, 0x1C00}));
        QVERIFY(unknown->gamut.unit == LuminanceUnit::Relative);
        QVERIFY(unknown->gamut.getTargets().white.Y == 1.0);
    }
}

void EdidFileTest::displayIdOfTheFirstVersion()
{
    QByteArray parameters(12, '\0');
    parameters[9] = char(140);
    const auto display = readEdidDisplay(samplefiles::withExtensions(samplefiles::edid(),
        {samplefiles::displayIdBlock(0x13,
            samplefiles::displayIdDataBlock(1, 0, parameters)
                + samplefiles::displayIdDataBlock(2, 1, QByteArray("\x31") + displayP3()))}));
    QVERIFY2(display, qPrintable(display.error()));
    QVERIFY(display->gamma == 2.4);
    QVERIFY(display->displayIdChromaticities->red == QPointF(2785 / 4096.0, 1311 / 4096.0));
    QVERIFY(display->displayIdChromaticities->white == QPointF(1281 / 4096.0, 1348 / 4096.0));
    QVERIFY(display->gamut.unit == LuminanceUnit::Relative);
}

// u', v' of D65: 0.1978, 0.4683.
void EdidFileTest::displayIdInUniformCoordinates()
{
    const QByteArray colors = samplefiles::twelveBits(2031, 2155) + samplefiles::twelveBits(405, 2363)
        + samplefiles::twelveBits(718, 647) + samplefiles::twelveBits(810, 1918);
    const auto display = readEdidDisplay(samplefiles::withExtensions(samplefiles::edid(),
        {samplefiles::displayIdBlock(0x20,
            samplefiles::displayIdDataBlock(
                0x21, 0, samplefiles::displayIdParameters(colors, {0x8000, 0x8000, 0x8000}, '\x40')))}));
    QVERIFY2(display, qPrintable(display.error()));
    const QPointF white = display->displayIdChromaticities->white;
    QVERIFY(std::fabs(white.x() - 0.3127) < 0.0005 && std::fabs(white.y() - 0.3290) < 0.0005);
}

void EdidFileTest::displayIdWithoutBasePrimaries()
{
    const auto gamut = readEdid(samplefiles::withExtensions(samplefiles::edidOf(QByteArray(10, '\0')),
        {samplefiles::displayIdBlock(
            0x20, samplefiles::displayIdDataBlock(0x21, 0, samplefiles::displayIdParameters(displayP3(), halves)))}));
    QVERIFY2(gamut, qPrintable(gamut.error()));
    QVERIFY(gamut->getTargets().red.x == 2785 / 4096.0);
    QVERIFY(gamut->getTargets().white.Y == 700.0);
}

void EdidFileTest::dataBlocksInsideOfDisplayId()
{
    const auto display = readEdidDisplay(samplefiles::withExtensions(samplefiles::edid(),
        {samplefiles::displayIdBlock(0x20,
            samplefiles::displayIdDataBlock(0x81, 0, samplefiles::ctaDataBlock(6, QByteArray("\x08\x01\x40", 3))))}));
    QVERIFY(display->contentLuminance.maximum == 200.0);
    QCOMPARE(display->transferFunctions, QStringList("hybrid log-gamma"));
}

// HDMI 2.1 has the number of extensions in the first of them, as old sources take no more than one.
void EdidFileTest::moreExtensionsThanTheBaseBlockCounts()
{
    const QByteArray override = samplefiles::ctaBlock(samplefiles::ctaDataBlock(0x78, "\x02"));
    const QByteArray second = samplefiles::ctaBlock(samplefiles::ctaDataBlock(6, QByteArray("\x08\x01\x40", 3)));
    QVERIFY(
        readEdidDisplay(samplefiles::withExtensions(samplefiles::edid(), {override}) + second)->contentLuminance.maximum
        == 200.0);
    const auto unannounced
        = readEdidDisplay(samplefiles::withExtensions(samplefiles::edid(), {samplefiles::ctaBlock("")}) + second);
    QVERIFY(!unannounced->contentLuminance.maximum);
    QVERIFY(messages(unannounced.warnings())
                .contains("extension block 2: is not read, number of extension blocks announced: 1"));
}

// IEEE 754-2019, binary16.
void EdidFileTest::halfPrecision_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<double>("value");
    QTest::newRow("one") << 0x3C00 << 1.0;
    QTest::newRow("least") << 0x0001 << 5.9604644775390625e-08;
    QTest::newRow("greatest subnormal") << 0x03FF << 6.097555160522461e-05;
    QTest::newRow("least normal") << 0x0400 << 6.103515625e-05;
    QTest::newRow("greatest") << 0x7BFF << 65504.0;
    QTest::newRow("third") << 0x3555 << 0.333251953125;
}

void EdidFileTest::halfPrecision()
{
    QFETCH(int, bits);
    QFETCH(double, value);
    QVERIFY(
        readEdidDisplay(nativeDisplay('\x00', {quint16(bits), 0x63D0, 0x1C00}))->nativeLuminance.fullScreen == value);
}

void EdidFileTest::damagedExtensions_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *name, const QByteArray &bytes, const char *warning) {
        QTest::newRow(name) << bytes << QString::fromUtf8(warning);
    };
    const auto extension = [&row](const char *name, const QByteArray &block, const char *warning) {
        row(name, samplefiles::withExtensions(samplefiles::edid(), {block}), warning);
    };
    const QByteArray whole = hdrDisplay("\x8A\x6A\x02");
    row("missing", whole.left(128), "extension block 1: is missing, number of extension blocks announced: 1");
    row("truncated", whole.left(200), "extension block 1: is truncated: 72 bytes instead of 128");
    row("checksum", QByteArray(whole).replace(140, 1, "\x55"),
        "extension block 1: is damaged, and not read: its checksum is wrong");
    row("second of two",
        samplefiles::withExtensions(
            samplefiles::edid(), {whole.mid(128), QByteArray(128, '\x01').replace(0, 1, "\x02")}),
        "extension block 2: is damaged, and not read: its checksum is wrong");
    extension("timings before the data blocks",
        samplefiles::withChecksum(samplefiles::ctaBlock("").replace(2, 1, "\x03")),
        "extension block 1, byte 2: the data blocks end at byte 3, which is not inside of the block");
    extension("timings behind the end", samplefiles::withChecksum(samplefiles::ctaBlock("").replace(2, 1, "\x80")),
        "extension block 1, byte 2: the data blocks end at byte 128, which is not inside of the block");
    extension("data block beyond the end", samplefiles::ctaBlock("\xE3\x05"),
        "extension block 1, byte 4: the data block has 3 bytes, of which only 1 lie before the end");
    extension("short colorimetry", samplefiles::ctaBlock(samplefiles::ctaDataBlock(5, "\x80")),
        "extension block 1, byte 6: the colorimetry data block has 1 bytes instead of at least 2");
    extension("short HDR metadata", samplefiles::ctaBlock(QByteArray("\x20", 1) + samplefiles::ctaDataBlock(6, "")),
        "extension block 1, byte 7: the HDR static metadata data block has 0 bytes instead of at least 2");
    extension("average above the maximum",
        samplefiles::ctaBlock(samplefiles::ctaDataBlock(6, QByteArray("\x05\x01\x20\x40", 4))),
        "extension block 1, byte 6: the HDR metadata state an average of a frame above its maximum: 200 and 100 cd/m²");
    QByteArray long_ = samplefiles::displayIdBlock(0x20, "");
    extension("long section", samplefiles::withChecksum(long_.replace(2, 1, "\x7A")),
        "extension block 1, byte 2: the DisplayID section has 122 bytes, which is more than its block");
    extension("checksum of the section",
        samplefiles::withChecksum(samplefiles::displayIdBlock(0x20, "").replace(126, 1, "\x01")),
        "extension block 1, byte 126: is damaged, and not read: the checksum of the DisplayID section is wrong");
    extension("DisplayID data block beyond the end", samplefiles::displayIdBlock(0x20, QByteArray("\x21\x00\x77", 3)),
        "extension block 1, byte 5: the data block has 119 bytes, of which only 118 lie before the end");
    extension("short parameters",
        samplefiles::displayIdBlock(0x20, samplefiles::displayIdDataBlock(0x21, 0, QByteArray(28, '\0'))),
        "extension block 1, byte 8: the display parameters data block has 28 bytes instead of at least 29");
    extension("short first parameters",
        samplefiles::displayIdBlock(0x13, samplefiles::displayIdDataBlock(1, 0, QByteArray(11, '\0'))),
        "extension block 1, byte 8: the display parameters data block has 11 bytes instead of at least 12");
    extension("fewer colours than counted",
        samplefiles::displayIdBlock(0x13, samplefiles::displayIdDataBlock(2, 1, QByteArray("\x3F") + displayP3())),
        "extension block 1, byte 8: the color characteristics data block has 13 bytes instead of at least 55");
}

void EdidFileTest::damagedExtensions()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, warning);
    const auto gamut = readEdid(bytes);
    QVERIFY2(gamut, qPrintable(gamut.error()));
    QVERIFY(isExactly(gamut->getTargets().red, 655, 338));
    QVERIFY2(messages(gamut.warnings()).contains(warning), qPrintable(messages(gamut.warnings()).join('\n')));
}

namespace {

//! What may come of an EDID whose extensions hold anything.
bool isSound(const Outcome<EdidDisplay> &display)
{
    const auto isPositive
        = [](const std::optional<double> &value) { return !value || (std::isfinite(*value) && *value >= 0.0); };
    return display && isExactly(display->gamut.getTargets().red, 655, 338)
        && isPositive(display->contentLuminance.maximum) && isPositive(display->contentLuminance.maximumFrameAverage)
        && isPositive(display->contentLuminance.minimum) && isPositive(display->nativeLuminance.fullScreen)
        && isPositive(display->nativeLuminance.tenPercent) && isPositive(display->nativeLuminance.minimum)
        && std::isfinite(display->gamut.getTargets().white.Y) && isPositive(display->gamma);
}

QByteArray everyExtension()
{
    return samplefiles::withExtensions(samplefiles::edid(),
        {hdrDisplay("\x8A\x6A\x02").mid(128), nativeDisplay('\x00').mid(128),
            samplefiles::displayIdBlock(
                0x13, samplefiles::displayIdDataBlock(2, 1, QByteArray("\x31") + displayP3()))});
}

} // namespace

void EdidFileTest::extensionsDamagedAnywhere()
{
    const QByteArray whole = everyExtension();
    for (int block = 1; block <= 3; ++block) {
        for (int at = 0; at < 127; ++at) {
            for (int byte = 0; byte < 256; ++byte) {
                QByteArray damaged = whole.mid(block * 128, 128);
                damaged[at] = char(byte);
                if (damaged[0] == '\x70' && at != 126) { // with a section that is right again
                    damaged = samplefiles::withChecksum(damaged, 1, qMin(126, 5 + quint8(damaged[2])));
                }
                damaged = samplefiles::withChecksum(damaged);
                QVERIFY(isSound(readEdidDisplay(QByteArray(whole).replace(block * 128, 128, damaged))));
            }
        }
    }
}

void EdidFileTest::extensionsTruncatedAnywhere()
{
    const QByteArray whole = everyExtension();
    QVERIFY(messages(readEdid(whole).warnings()).filter("extension block").isEmpty());
    for (int size = 128; size < whole.size(); ++size) {
        const auto display = readEdidDisplay(whole.left(size));
        QVERIFY(isSound(display));
        QCOMPARE(messages(display.warnings()).filter("extension block").size(), 1);
    }
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
    const auto gamut = readEdid(samplefiles::edidOf(colors));
    QVERIFY2(gamut, qPrintable(gamut.error()));
    QCOMPARE(messages(gamut.warnings()).join('\n'), warning);
}

// The distance by a script from the table of the colour-matching functions at 1 nm.
void EdidFileTest::primaryThatNoLightHas()
{
    const auto gamut
        = readEdid(samplefiles::edidOf(QByteArray("\xEE\x81\xA3\x54\x4C\x99\x19\x05\x50\x54", 10))); // blue 102, 20
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
    const auto gamut = readEdid(samplefiles::edidOf(QByteArray("\x38\x81\xAF\x4E\x3E\xAF\x25\x0F\x50\x54", 10)));
    QVERIFY2(gamut, qPrintable(gamut.error()));
    QVERIFY(isExactly(gamut->getTargets().red, 700, 315));
    QCOMPARE(messages(gamut.warnings()).join('\n'), QString());
}

void EdidFileTest::contradictions()
{
    const auto display = readEdidDisplay(nativeDisplay('\x00'));
    QCOMPARE(messages(display.warnings()),
        QStringList({stampedSrgb,
            "the base block states another gamut than the DisplayID extension: red at 0.6396, 0.3301 instead of "
            "0.6799, 0.3201; that of the base block is used"}));
}

void EdidFileTest::hexDumps_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("warning");
    const QByteArray edid = hdrDisplay("\x8A\x6A\x02");
    const auto lines = [&edid](const QByteArray &indent, char separator, bool addresses) {
        QByteArray text;
        for (int at = 0; at < edid.size(); at += 16) {
            text += indent + (addresses ? QByteArray::number(at, 16).rightJustified(8, '0') + ": " : QByteArray());
            text += (separator == '\0' ? edid.mid(at, 16).toHex() : edid.mid(at, 16).toHex(separator)) + '\n';
        }
        return text;
    };
    const auto row = [](const char *name, const QByteArray &text, const QString &warning = {}) {
        QTest::newRow(name) << text << warning;
    };
    row("one line", edid.toHex());
    row("lines", lines("", ' ', false));
    row("capitals, other line ends", lines("", ' ', false).toUpper().replace('\n', "\r\n"));
    row("addresses", lines("", ' ', true));
    row("0x", "0x" + edid.toHex(',').replace(",", ", 0x"));
    row("properties of an output",
        "HDMI-1 connected\n\tCTM: 0 1\n\tEDID: \n" + lines("\t\t", '\0', false)
            + "\tGAMMA_LUT_SIZE: 4096 \n\tlink-status: Good\n");
    row("decoded", "edid-decode (hex):\n\n" + lines("", ' ', false) + "\n----------------\n\n10\n");
    const QString several = QStringLiteral("holds 2 EDIDs, of which only the first is read");
    row("two displays", "first:\n" + lines("  ", '\0', false) + "second:\n" + lines("  ", '\0', false), several);
    row("two without a word", lines("  ", '\0', false) + lines("  ", '\0', false), several);
}

void EdidFileTest::hexDumps()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, warning);
    const auto edid = edidFromHexDump(text);
    QVERIFY2(edid, qPrintable(edid.error()));
    QCOMPARE(*edid, hdrDisplay("\x8A\x6A\x02"));
    QCOMPARE(messages(edid.warnings()).join('\n'), warning);
}

void EdidFileTest::noHexDumps()
{
    QVERIFY(!edidFromHexDump(""));
    QVERIFY(!edidFromHexDump("name,Y,x,y\nred,1,0.6,0.3\n"));
    QVERIFY(!edidFromHexDump(samplefiles::edid().left(127).toHex()));
    QVERIFY(!edidFromHexDump(samplefiles::edid().toHex().replace(100, 1, "g")));
    QVERIFY(!edidFromHexDump(QByteArray(256, 'a')));
    QVERIFY(!edidFromHexDump(samplefiles::edid().toHex().leftJustified(maximumHexDumpBytes + 1)));
    QVERIFY(edidFromHexDump(samplefiles::edid().toHex().leftJustified(maximumHexDumpBytes)));
}

// The low two bits of each coordinate stand apart from the high eight.
void EdidFileTest::tenBitsOfEveryCoordinate()
{
    QByteArray colors("\x1B\x2D\xA3\x54\x4C\x99\x26\x0F\x50\x54", 10);
    const auto gamut = readEdid(samplefiles::edidOf(colors));
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
    row("no primaries", samplefiles::edidOf(QByteArray(10, '\0')), "is an EDID without primaries");
    row("a white and no primaries", samplefiles::edidOf(QByteArray("\x00\x01\x00\x00\x00\x00\x00\x00\x50\x54", 10)),
        "is an EDID without primaries");
    row("equal primaries", samplefiles::edidOf(QByteArray("\x00\x00\x54\x54\x54\x54\x54\x54\x54\x54", 10)),
        "is an EDID without usable primaries: the primaries do not form a triangle");
    row("white outside", samplefiles::edidOf(QByteArray("\xEE\x91\xA3\x54\x4C\x99\x26\x0F\x10\x14", 10)),
        "is an EDID without usable primaries: the white point lies outside the triangle of the primaries");
    row("beyond the diagram", samplefiles::edidOf(QByteArray(10, '\xFF')),
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
