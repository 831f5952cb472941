// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "sampleedids.h"

#include <QtTest>

#include <cmath>

using namespace gamutfiles;
using namespace samplefiles;

class EdidExtensionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void warningsAreLimited();
    void extensionBlocks();
    void hdrStaticMetadata();
    void contentLuminancesMayBeMissing();
    void contentLuminanceIsNotThatOfTheDisplay();
    void nativeLuminances();
    void nativeLuminancesThatAreEmpty();
    void nativeLuminancesThatContradict();
    void displayIdOfTheFirstVersion();
    void gammaOfTheFirstBlockThatStatesIt();
    void displayIdInUniformCoordinates();
    void displayIdWithoutBasePrimaries();
    void dataBlocksThatContradict();
    void dataBlocksThatAgree();
    void dataBlocksInsideOfDisplayId();
    void moreExtensionsThanTheBaseBlockCounts();
    void halfPrecision_data();
    void halfPrecision();
    void damagedExtensions_data();
    void damagedExtensions();
    void extensionsDamagedAnywhere();
    void extensionsTruncatedAnywhere();
};

void EdidExtensionsTest::extensionBlocks()
{
    QByteArray announced = edid();
    announced[126] = 1;
    announced = withChecksum(announced);
    QVERIFY(readEdid(announced)); // the block is missing
    QVERIFY(readEdid(announced + QByteArray(128, '\xFF')));
    QVERIFY(isExactly(readEdid(announced + QByteArray(128, '\xFF'))->getTargets().red, 655, 338));
}

// 50 * 2^(138 / 32) and so on; edid-decode prints the same.
void EdidExtensionsTest::hdrStaticMetadata()
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

void EdidExtensionsTest::contentLuminancesMayBeMissing()
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

void EdidExtensionsTest::contentLuminanceIsNotThatOfTheDisplay()
{
    const auto gamut = readEdid(hdrDisplay("\x8A\x6A\x02"));
    QVERIFY(gamut->unit == LuminanceUnit::Relative);
    QVERIFY(gamut->getTargets().white.Y == 1.0);
}

void EdidExtensionsTest::nativeLuminances()
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

void EdidExtensionsTest::nativeLuminancesThatAreEmpty()
{
    const auto native = [](const QList<quint16> &luminances) {
        return readEdidDisplay(nativeDisplay('\x00', luminances))->nativeLuminance;
    };
    // A white without light is none, and neither are the flags with it a promise.
    const EdidNativeLuminance none = native({0, 0, 0});
    QVERIFY(!none.fullScreen && !none.tenPercent && !none.minimum);
    const EdidNativeLuminance oneWhite = native({0, 0x63D0, 0});
    QVERIFY(!oneWhite.fullScreen && oneWhite.tenPercent == 1000.0 && oneWhite.minimum == 0.0);
    QVERIFY(native({0x6178, 0x8000, 0}).minimum == 0.0); // of a display that can be black
    QVERIFY(!native({0x8000, 0x8000, 0}).minimum);
}

void EdidExtensionsTest::nativeLuminancesThatContradict()
{
    const auto told = [](const QList<quint16> &luminances) {
        return messages(readEdidDisplay(nativeDisplay('\x00', luminances)).warnings()).filter("the display states");
    };
    QCOMPARE(told(halves), QStringList());
    QCOMPARE(told({0x63D0, 0x6178, 0x1C00}),
        QStringList("extension block 1, byte 8: the display states a white screen of 1000 cd/m², but white on 10 % of "
                    "it with 700 cd/m²"));
    QCOMPARE(told({0x6178, 0x63D0, 0x6178}),
        QStringList("extension block 1, byte 8: the display states a black of 700 cd/m² and a white of 700 cd/m²"));
}

void EdidExtensionsTest::displayIdOfTheFirstVersion()
{
    QByteArray parameters(12, '\0');
    parameters[9] = char(140);
    const auto display = readEdidDisplay(withExtensions(edid(),
        {displayIdBlock(
            0x13, displayIdDataBlock(1, 0, parameters) + displayIdDataBlock(2, 1, QByteArray("\x31") + displayP3()))}));
    QVERIFY2(display, qPrintable(display.error()));
    QVERIFY(display->gamma == 2.4);
    QVERIFY(display->displayIdChromaticities->red == QPointF(2785 / 4096.0, 1311 / 4096.0));
    QVERIFY(display->displayIdChromaticities->white == QPointF(1281 / 4096.0, 1348 / 4096.0));
    QVERIFY(display->gamut.unit == LuminanceUnit::Relative);
}

void EdidExtensionsTest::gammaOfTheFirstBlockThatStatesIt()
{
    const auto parameters = [](int code) {
        QByteArray bytes(12, '\0');
        bytes[9] = char(code);
        return displayIdDataBlock(1, 0, bytes);
    };
    const auto gamma = [&](int first, int second) {
        return readEdidDisplay(withExtensions(edid(), {displayIdBlock(0x13, parameters(first) + parameters(second))}))
            ->gamma;
    };
    QVERIFY(gamma(140, 0xFF) == 2.4);
    QVERIFY(gamma(0xFF, 140) == 2.4);
    QVERIFY(gamma(140, 100) == 2.4);
    QVERIFY(gamma(0xFF, 0xFF) == 2.2); // of the base block
}

// u', v' of D65: 0.1978, 0.4683.
void EdidExtensionsTest::displayIdInUniformCoordinates()
{
    const QByteArray colors
        = twelveBits(2031, 2155) + twelveBits(405, 2363) + twelveBits(718, 647) + twelveBits(810, 1918);
    const auto display = readEdidDisplay(withExtensions(edid(),
        {displayIdBlock(
            0x20, displayIdDataBlock(0x21, 0, displayIdParameters(colors, {0x8000, 0x8000, 0x8000}, '\x40')))}));
    QVERIFY2(display, qPrintable(display.error()));
    const QPointF white = display->displayIdChromaticities->white;
    QVERIFY(std::fabs(white.x() - 0.3127) < 0.0005 && std::fabs(white.y() - 0.3290) < 0.0005);
}

void EdidExtensionsTest::displayIdWithoutBasePrimaries()
{
    const auto gamut = readEdid(withExtensions(edidOf(QByteArray(10, '\0')),
        {displayIdBlock(0x20, displayIdDataBlock(0x21, 0, displayIdParameters(displayP3(), halves)))}));
    QVERIFY2(gamut, qPrintable(gamut.error()));
    QVERIFY(gamut->getTargets().red.x == 2785 / 4096.0);
    QVERIFY(gamut->getTargets().white.Y == 700.0);
}

void EdidExtensionsTest::dataBlocksThatContradict()
{
    const QByteArray second
        = twelveBits(2621, 1352) + twelveBits(1229, 2458) + twelveBits(614, 246) + twelveBits(1281, 1348);
    const auto display = readEdidDisplay(withExtensions(plainEdid(),
        {displayIdBlock(0x20,
            displayIdDataBlock(0x21, 0, displayIdParameters(displayP3(), halves))
                + displayIdDataBlock(0x21, 0, displayIdParameters(second, {0x6000, 0x63D0, 0x1C00}, '\x08')))}));
    QVERIFY2(display, qPrintable(display.error()));
    QVERIFY(display->displayIdChromaticities->red == QPointF(2785 / 4096.0, 1311 / 4096.0));
    QVERIFY(display->nativeLuminance.fullScreen == 700.0 && display->nativeLuminance.guaranteed);
    QCOMPARE(display->gamut.getTargets().white.Y, 700.0);
    QCOMPARE(messages(display.warnings()).filter("extension block"),
        (QStringList{"extension block 1, byte 40: two data blocks state different gamuts: red at 0.6799, 0.3201 and at "
                     "0.6399, 0.3301; that of the first is kept",
            "extension block 1, byte 40: two data blocks state different luminances of a white screen: 700 cd/m², "
            "guaranteed and 512 cd/m²; that of the first is kept"}));
}

void EdidExtensionsTest::dataBlocksThatAgree()
{
    const QByteArray parameters = displayIdDataBlock(0x21, 0, displayIdParameters(displayP3(), halves));
    const auto display = readEdidDisplay(
        withExtensions(plainEdid(), {displayIdBlock(0x20, parameters), displayIdBlock(0x20, parameters)}));
    QCOMPARE(messages(display.warnings()).filter("extension block"), QStringList());
    QVERIFY(display->nativeLuminance.fullScreen == 700.0);
}

void EdidExtensionsTest::dataBlocksInsideOfDisplayId()
{
    const auto display = readEdidDisplay(withExtensions(
        edid(), {displayIdBlock(0x20, displayIdDataBlock(0x81, 0, ctaDataBlock(6, QByteArray("\x08\x01\x40", 3))))}));
    QVERIFY(display->contentLuminance.maximum == 200.0);
    QCOMPARE(display->transferFunctions, QStringList("hybrid log-gamma"));
}

// HDMI 2.1 has the number of extensions in the first of them, as old sources take no more than one.
void EdidExtensionsTest::moreExtensionsThanTheBaseBlockCounts()
{
    const QByteArray override = ctaBlock(ctaDataBlock(0x78, "\x02"));
    const QByteArray second = ctaBlock(ctaDataBlock(6, QByteArray("\x08\x01\x40", 3)));
    QVERIFY(readEdidDisplay(withExtensions(edid(), {override}) + second)->contentLuminance.maximum == 200.0);
    const auto unannounced = readEdidDisplay(withExtensions(edid(), {ctaBlock("")}) + second);
    QVERIFY(!unannounced->contentLuminance.maximum);
    QVERIFY(messages(unannounced.warnings())
                .contains("extension block 2: is not read, number of extension blocks announced: 1"));
}

// IEEE 754-2019, binary16.
void EdidExtensionsTest::halfPrecision_data()
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

void EdidExtensionsTest::halfPrecision()
{
    QFETCH(int, bits);
    QFETCH(double, value);
    QVERIFY(
        readEdidDisplay(nativeDisplay('\x00', {quint16(bits), 0x63D0, 0x1C00}))->nativeLuminance.fullScreen == value);
}

void EdidExtensionsTest::damagedExtensions_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *name, const QByteArray &bytes, const char *warning) {
        QTest::newRow(name) << bytes << QString::fromUtf8(warning);
    };
    const auto extension = [&row](const char *name, const QByteArray &block, const char *warning) {
        row(name, withExtensions(edid(), {block}), warning);
    };
    const QByteArray whole = hdrDisplay("\x8A\x6A\x02");
    row("missing", whole.left(128), "extension block 1: is missing, number of extension blocks announced: 1");
    row("truncated", whole.left(200), "extension block 1: is truncated: 72 bytes instead of 128");
    row("checksum", QByteArray(whole).replace(140, 1, "\x55"),
        "extension block 1: is damaged, and not read: its checksum is wrong");
    row("second of two", withExtensions(edid(), {whole.mid(128), QByteArray(128, '\x01').replace(0, 1, "\x02")}),
        "extension block 2: is damaged, and not read: its checksum is wrong");
    extension("timings before the data blocks", withChecksum(ctaBlock("").replace(2, 1, "\x03")),
        "extension block 1, byte 2: the data blocks end at byte 3, which is not inside of the block");
    extension("timings behind the end", withChecksum(ctaBlock("").replace(2, 1, "\x80")),
        "extension block 1, byte 2: the data blocks end at byte 128, which is not inside of the block");
    extension("data block beyond the end", ctaBlock("\xE3\x05"),
        "extension block 1, byte 4: the data block has 3 bytes, of which only 1 lie before the end");
    extension("short colorimetry", ctaBlock(ctaDataBlock(5, "\x80")),
        "extension block 1, byte 6: the colorimetry data block has 1 bytes instead of at least 2");
    extension("short HDR metadata", ctaBlock(QByteArray("\x20", 1) + ctaDataBlock(6, "")),
        "extension block 1, byte 7: the HDR static metadata data block has 0 bytes instead of at least 2");
    extension("average above the maximum", ctaBlock(ctaDataBlock(6, QByteArray("\x05\x01\x20\x40", 4))),
        "extension block 1, byte 6: the HDR metadata state an average of a frame above its maximum: 200 and 100 cd/m²");
    QByteArray long_ = displayIdBlock(0x20, "");
    extension("long section", withChecksum(long_.replace(2, 1, "\x7A")),
        "extension block 1, byte 2: the DisplayID section has 122 bytes, which is more than its block");
    extension("checksum of the section", withChecksum(displayIdBlock(0x20, "").replace(126, 1, "\x01")),
        "extension block 1, byte 126: is damaged, and not read: the checksum of the DisplayID section is wrong");
    extension("DisplayID data block beyond the end", displayIdBlock(0x20, QByteArray("\x21\x00\x77", 3)),
        "extension block 1, byte 5: the data block has 119 bytes, of which only 118 lie before the end");
    extension("short parameters", displayIdBlock(0x20, displayIdDataBlock(0x21, 0, QByteArray(28, '\0'))),
        "extension block 1, byte 8: the display parameters data block has 28 bytes instead of at least 29");
    extension("short first parameters", displayIdBlock(0x13, displayIdDataBlock(1, 0, QByteArray(11, '\0'))),
        "extension block 1, byte 8: the display parameters data block has 11 bytes instead of at least 12");
    extension("fewer colours than counted",
        displayIdBlock(0x13, displayIdDataBlock(2, 1, QByteArray("\x3F") + displayP3())),
        "extension block 1, byte 8: the color characteristics data block has 13 bytes instead of at least 55");
}

void EdidExtensionsTest::damagedExtensions()
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
    return withExtensions(edid(),
        {hdrDisplay("\x8A\x6A\x02").mid(128), nativeDisplay('\x00').mid(128),
            displayIdBlock(0x13, displayIdDataBlock(2, 1, QByteArray("\x31") + displayP3()))});
}

} // namespace

void EdidExtensionsTest::extensionsDamagedAnywhere()
{
    const QByteArray whole = everyExtension();
    for (int block = 1; block <= 3; ++block) {
        for (int at = 0; at < 127; ++at) {
            for (int byte = 0; byte < 256; ++byte) {
                QByteArray damaged = whole.mid(block * 128, 128);
                damaged[at] = char(byte);
                if (damaged[0] == '\x70' && at != 126) { // with a section that is right again
                    damaged = withChecksum(damaged, 1, qMin(126, 5 + quint8(damaged[2])));
                }
                damaged = withChecksum(damaged);
                QVERIFY(isSound(readEdidDisplay(QByteArray(whole).replace(block * 128, 128, damaged))));
            }
        }
    }
}

void EdidExtensionsTest::extensionsTruncatedAnywhere()
{
    const QByteArray whole = everyExtension();
    QVERIFY(messages(readEdid(whole).warnings()).filter("extension block").isEmpty());
    for (int size = 128; size < whole.size(); ++size) {
        const auto display = readEdidDisplay(whole.left(size));
        QVERIFY(isSound(display));
        QCOMPARE(messages(display.warnings()).filter("extension block").size(), 1);
    }
}

// A block has room for dozens of faults, and a file for 255 blocks.
void EdidExtensionsTest::warningsAreLimited()
{
    QByteArray faults;
    for (int i = 0; i < 30; ++i) {
        faults += ctaDataBlock(5, "\x80");
    }
    const auto display = readEdidDisplay(withExtensions(edid(), {ctaBlock(faults), ctaBlock(faults)}));
    QVERIFY(display);
    const QStringList texts = messages(display.warnings()).filter(QStringLiteral("extension block"));
    QCOMPARE(texts.size(), 21);
    QCOMPARE(texts.first(),
        QStringLiteral("extension block 1, byte 6: the colorimetry data block has 1 bytes instead of at least 2"));
    QCOMPARE(texts.last(), QStringLiteral("extension block 1: there is more that is wrong"));
}

QTEST_GUILESS_MAIN(EdidExtensionsTest)
#include "edidextensionstest.moc"
