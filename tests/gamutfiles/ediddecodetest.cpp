// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "samplefiles.h"

#include <gamutfiles/edid.h>

#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

using namespace gamutfiles;

/*! \brief Holds readEdidDisplay() against the program edid-decode, an independent reader. */
class EdidDecodeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void agrees_data();
    void agrees();
    void readsItsDump();

private:
    QString decoded(const QByteArray &edid, const QStringList &options);

    QTemporaryDir m_folder;
};

namespace {

constexpr int randomEdids = 100;

//! The numbers in the first line of \a text that begins with \a label, after it.
QVector<double> numbers(const QString &text, const QString &label)
{
    QVector<double> found;
    const QRegularExpression line(
        QStringLiteral("^ *%1(.*)$").arg(QRegularExpression::escape(label)), QRegularExpression::MultilineOption);
    const QRegularExpression number(QStringLiteral("[0-9]+(\\.[0-9]+)?"));
    auto matches = number.globalMatch(line.match(text).captured(1));
    while (matches.hasNext()) {
        found += matches.next().captured().toDouble();
    }
    return found;
}

//! The lines below the one with \a title that are indented deeper than it.
QStringList linesBelow(const QString &text, const QString &title)
{
    const QStringList lines = text.split('\n');
    const auto indent
        = [](const QString &line) { return line.size() - QString(line).remove(QRegularExpression("^ +")).size(); };
    QStringList below;
    for (int i = 0; i < lines.size(); ++i) {
        if (lines[i].trimmed() == title) {
            for (int j = i + 1; j < lines.size() && indent(lines[j]) > indent(lines[i]); ++j) {
                below += lines[j].trimmed();
            }
        }
    }
    return below;
}

//! Names that differ between the two.
QStringList ourNames(QStringList names)
{
    const QMap<QString, QString> ours{{"Default", "default RGB"}, {"ST2113RGB", "DCI-P3"},
        {"Traditional gamma - SDR luminance range", "traditional gamma, SDR luminance"},
        {"Traditional gamma - HDR luminance range", "traditional gamma, HDR luminance"},
        {"SMPTE ST2084", "SMPTE ST 2084"}, {"Hybrid Log-Gamma", "hybrid log-gamma"}};
    for (QString &name : names) {
        name = ours.value(name, name);
    }
    return names;
}

bool isNear(double value, double printed, double tolerance)
{
    return std::fabs(value - printed) <= tolerance;
}

bool isNear(const QPointF &value, const QVector<double> &printed, double tolerance)
{
    return printed.size() == 2 && isNear(value.x(), printed[0], tolerance) && isNear(value.y(), printed[1], tolerance);
}

QByteArray randomEdid(QRandomGenerator &random)
{
    const auto upTo = [&random](int limit) { return random.bounded(limit + 1); };
    const auto chromaticity = [&](int x, int y) { return samplefiles::twelveBits(x + upTo(200), y + upTo(200)); };
    const QByteArray colors
        = chromaticity(2600, 1200) + chromaticity(800, 2700) + chromaticity(500, 150) + chromaticity(1200, 1250);

    QByteArray base = samplefiles::edid();
    for (const int at : {25, 26}) {
        base[at] = char(upTo(255));
    }
    base[16] = char(1 + upTo(50));
    base[17] = char(15 + upTo(20));
    base[23] = char(80 + upTo(100));
    base = samplefiles::withChecksum(base);

    QByteArray metadata = QByteArray(1, char(upTo(15))) + '\x01';
    const int luminances = upTo(3);
    for (int i = 0; i < luminances; ++i) {
        metadata += char(1 + upTo(254));
    }
    const QByteArray cta = samplefiles::ctaBlock(QByteArray("\x23\x09\x07\x07", 4)
        + samplefiles::ctaDataBlock(5, QByteArray(1, char(upTo(255))) + char(upTo(15) << 4))
        + samplefiles::ctaDataBlock(6, metadata));

    QByteArray displayId;
    if (upTo(1) == 0) {
        const auto half = [&](int exponent) { return quint16(exponent << 10 | upTo(1023)); };
        displayId = samplefiles::displayIdBlock(0x20,
            samplefiles::displayIdDataBlock(0x21, 0,
                samplefiles::displayIdParameters(colors, {half(22 + upTo(3)), half(23 + upTo(3)), half(5 + upTo(8))},
                    char(upTo(1) << 3), char(upTo(254)))));
    } else {
        displayId = samplefiles::displayIdBlock(0x13,
            samplefiles::displayIdDataBlock(1, 0, QByteArray(9, '\0') + char(upTo(254)) + QByteArray("\x4E\x77", 2))
                + samplefiles::displayIdDataBlock(2, 1, QByteArray("\x31") + colors));
    }
    return samplefiles::withExtensions(base, {cta, displayId});
}

} // namespace

QString EdidDecodeTest::decoded(const QByteArray &edid, const QStringList &options)
{
    QFile file(m_folder.filePath("edid.bin"));
    if (!file.open(QIODevice::WriteOnly) || file.write(edid) != edid.size()) {
        return {};
    }
    file.close();
    QProcess program;
    program.start(QStringLiteral("edid-decode"), options + QStringList(file.fileName()));
    return program.waitForFinished() ? QString::fromUtf8(program.readAllStandardOutput()) : QString();
}

void EdidDecodeTest::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QVERIFY2(decoded(samplefiles::edid(), {}).contains("Base EDID"), "edid-decode is not installed");
}

void EdidDecodeTest::agrees_data()
{
    QTest::addColumn<QByteArray>("edid");
    QRandomGenerator random(20260731);
    for (int i = 0; i < randomEdids; ++i) {
        QTest::newRow(qPrintable(QString::number(i))) << randomEdid(random);
    }
}

void EdidDecodeTest::agrees()
{
    QFETCH(QByteArray, edid);
    const QString text = decoded(edid, {"--skip-hex-dump"});
    const auto display = readEdidDisplay(edid);
    QVERIFY2(display, qPrintable(display.error()));

    QVERIFY(text.contains(QStringLiteral("Manufacturer: %1\n").arg(display->manufacturer)));
    QVERIFY(text.contains(QStringLiteral("Display Product Name: '%1'\n").arg(display->name)));
    QCOMPARE(numbers(text, "Made in: week").value(1), double(display->manufactureYear.value_or(0)));
    const Model::Targets &targets = display->gamut.getTargets();
    const auto isPrinted = [&text](const Model::Target &target, const char *label) {
        return isNear({target.x, target.y}, numbers(text, label), 0.0001); // it cuts off
    };
    QVERIFY(isPrinted(targets.red, "Red  :"));
    QVERIFY(isPrinted(targets.green, "Green:"));
    QVERIFY(isPrinted(targets.blue, "Blue :"));
    QVERIFY(isPrinted(targets.white, "White:"));

    QStringList colorimetries = ourNames(linesBelow(text, "Colorimetry Data Block:"));
    QCOMPARE(display->colorimetries, colorimetries);
    QCOMPARE(display->transferFunctions, ourNames(linesBelow(text, "Electro optical transfer functions:")));
    const EdidContentLuminance &content = display->contentLuminance;
    const auto isContent = [&text](const std::optional<double> &value, const QString &name) {
        const QVector<double> printed = numbers(text, "Desired content " + name + ":"); // the code, the luminance
        return value ? isNear(*value, printed.value(1, -1.0), 0.0006) : printed.isEmpty();
    };
    QVERIFY(isContent(content.maximum, "max luminance"));
    QVERIFY(isContent(content.maximumFrameAverage, "max frame-average luminance"));
    QVERIFY(isContent(content.minimum, "min luminance"));

    const bool second = text.contains("Version: 2.0");
    const EdidChromaticities colors = display->displayIdChromaticities.value_or(EdidChromaticities());
    const QStringList labels = second ? QStringList({"Primary #1:", "Primary #2:", "Primary #3:", "White Point:"})
                                      : QStringList({"Primary #0:", "Primary #1:", "Primary #2:", "White point #0:"});
    const double digits = second ? 0.0000006 : 0.00006;
    QVERIFY(isNear(colors.red, numbers(text, labels[0]), digits));
    QVERIFY(isNear(colors.green, numbers(text, labels[1]), digits));
    QVERIFY(isNear(colors.blue, numbers(text, labels[2]), digits));
    QVERIFY(isNear(colors.white, numbers(text, labels[3]), digits));
    if (second) {
        const EdidNativeLuminance &native = display->nativeLuminance;
        QVERIFY(isNear(*native.fullScreen, numbers(text, "Native Maximum Luminance (Full Coverage):").value(0), 1e-6));
        QVERIFY(isNear(
            *native.tenPercent, numbers(text, "Native Maximum Luminance (10% Rectangular Coverage):").value(0), 1e-6));
        QVERIFY(isNear(*native.minimum, numbers(text, "Native Minimum Luminance:").value(0), 1e-6));
        QCOMPARE(native.guaranteed, text.contains("Luminance Information: Minimum guaranteed value"));
        QVERIFY(isNear(*display->gamma, numbers(text, "Native Gamma EOTF:").value(0), 0.0051));
    } else {
        const int displayId = text.indexOf("DisplayID Extension Block:");
        QVERIFY(isNear(*display->gamma, numbers(text.mid(displayId), "Gamma:").value(0), 0.0051));
    }
}

void EdidDecodeTest::readsItsDump()
{
    QRandomGenerator random(4);
    const QByteArray edid = randomEdid(random);
    const auto dumped = edidFromHexDump(decoded(edid, {}).toUtf8());
    QVERIFY2(dumped, qPrintable(dumped.error()));
    QCOMPARE(*dumped, edid);
}

QTEST_GUILESS_MAIN(EdidDecodeTest)
#include "ediddecodetest.moc"
