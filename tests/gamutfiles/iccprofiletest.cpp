// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "samplefiles.h"

#include <gamutfiles/iccprofile.h>

#include <QtEndian>
#include <QtTest>

#include <cmath>

using namespace gamutfiles;

class IccProfileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void unadaptsByTheTag();
    void unadaptsByBradford();
    void adaptationTagGoesBeforeMediaWhite();
    void d50DisplayStaysAsItIs();
    void otherAdaptationThanBradford();
    void anyPrimariesSurvive();
    void name();
    void nameMayBeMissing();
    void relativeLuminances();
    void absoluteLuminances();
    void refusals_data();
    void refusals();
    void truncatedAnywhere();
    void damagedAnywhere();
    void recognisedByItsSignature();
    void colorSpaceWithImaginaryPrimaries();
    void colorSpaceThatIsNoEnumerator();
    void shortAdaptationTag();
    void tagsThatCannotBeRead();
    void tableBesideColorants();
    void luminanceOfTheTag();
    void metadata();
    void damagedMetadata();
    void overlappingMetadata();
    void metadataThatDenyAMeasurement_data();
    void metadataThatDenyAMeasurement();
    void videoCardTable();
    void copiesOfStandards_data();
    void copiesOfStandards();
    void nameThatCannotBeRead();
};

namespace {

const QString copyOfSrgb
    = QStringLiteral("the profile states exactly sRGB: that is a standard, not a measurement of a display");

//! The warnings but the one that the sample profiles have for being copies of sRGB.
template <typename Read>
QVector<Problem> otherWarnings(const Outcome<Read> &outcome)
{
    QVector<Problem> warnings;
    for (const Problem &warning : outcome.warnings()) {
        if (warning.text != copyOfSrgb) {
            warnings.append(warning);
        }
    }
    return warnings;
}

bool isNear(const Model::Target &target, double x, double y, double tolerance)
{
    return std::fabs(target.x - x) <= tolerance && std::fabs(target.y - y) <= tolerance;
}

void verifySrgb(const QByteArray &bytes)
{
    const auto gamut = readIccProfile(bytes);
    QVERIFY2(gamut, qPrintable(gamut.error()));
    const Model::Targets &targets = gamut->getTargets();
    QVERIFY(isNear(targets.red, 0.64, 0.33, 0.0001));
    QVERIFY(isNear(targets.green, 0.30, 0.60, 0.0001));
    QVERIFY(isNear(targets.blue, 0.15, 0.06, 0.0001));
    QVERIFY(isNear(targets.white, 0.3127, 0.3290, 0.0001));
}

cmsCIExyYTRIPLE triple(double rx, double ry, double gx, double gy, double bx, double by)
{
    return {{rx, ry, 1.0}, {gx, gy, 1.0}, {bx, by, 1.0}};
}

//! As Little CMS makes display profiles: with an adaptation tag.
QByteArray made(const cmsCIExyY &white, const cmsCIExyYTRIPLE &primaries)
{
    cmsToneCurve *curve = cmsBuildGamma(nullptr, 2.2);
    cmsToneCurve *curves[] = {curve, curve, curve};
    const cmsHPROFILE profile = cmsCreateRGBProfile(&white, &primaries, curves);
    cmsFreeToneCurve(curve);
    return samplefiles::saved(profile);
}

} // namespace

void IccProfileTest::unadaptsByTheTag()
{
    verifySrgb(samplefiles::version4Profile());
}

void IccProfileTest::unadaptsByBradford()
{
    verifySrgb(samplefiles::version2Profile());
}

void IccProfileTest::adaptationTagGoesBeforeMediaWhite()
{
    // A media white of no display: nothing may come of it.
    verifySrgb(samplefiles::version4Profile([](cmsHPROFILE profile) {
        const cmsCIEXYZ white{0.5, 1.0, 0.5};
        cmsWriteTag(profile, cmsSigMediaWhitePointTag, &white);
    }));
}

void IccProfileTest::d50DisplayStaysAsItIs()
{
    const auto gamut = readIccProfile(samplefiles::version2Profile(
        [](cmsHPROFILE profile) { cmsWriteTag(profile, cmsSigMediaWhitePointTag, cmsD50_XYZ()); }));
    QVERIFY(gamut);
    const double sum = 0.4360747 + 0.2225045 + 0.0139322;
    QVERIFY(isNear(gamut->getTargets().red, 0.4360747 / sum, 0.2225045 / sum, 0.0001));
    QVERIFY(isNear(gamut->getTargets().white, 0.3457, 0.3585, 0.0001));
}

// The tag may hold any adaptation: here one that scales XYZ.
void IccProfileTest::otherAdaptationThanBradford()
{
    const auto gamut = readIccProfile(samplefiles::version4Profile([](cmsHPROFILE profile) {
        const cmsCIEXYZ rows[] = {{0.5, 0, 0}, {0, 1, 0}, {0, 0, 2}};
        cmsWriteTag(profile, cmsSigChromaticAdaptationTag, rows);
    }));
    QVERIFY(gamut);
    const double X = 0.3850649 / 0.5;
    const double Y = 0.7168786;
    const double Z = 0.0971045 / 2.0;
    QVERIFY(isNear(gamut->getTargets().green, X / (X + Y + Z), Y / (X + Y + Z), 0.0001));
}

void IccProfileTest::anyPrimariesSurvive()
{
    for (const auto &primaries : {triple(0.708, 0.292, 0.17, 0.797, 0.131, 0.046),
             triple(0.68, 0.32, 0.265, 0.69, 0.15, 0.06), triple(0.7347, 0.2653, 0.1596, 0.8404, 0.0366, 0.001)}) {
        for (const cmsCIExyY &white : {cmsCIExyY{0.3127, 0.329, 1.0}, cmsCIExyY{0.2829, 0.2971, 1.0},
                 cmsCIExyY{0.314, 0.351, 1.0}, cmsCIExyY{0.3457, 0.3585, 1.0}}) {
            const auto gamut = readIccProfile(made(white, primaries));
            QVERIFY2(gamut, qPrintable(gamut.error()));
            const Model::Targets &targets = gamut->getTargets();
            QVERIFY(isNear(targets.red, primaries.Red.x, primaries.Red.y, 0.0003));
            QVERIFY(isNear(targets.green, primaries.Green.x, primaries.Green.y, 0.0003));
            QVERIFY(isNear(targets.blue, primaries.Blue.x, primaries.Blue.y, 0.0003));
            QVERIFY(isNear(targets.white, white.x, white.y, 0.0003));
        }
    }
}

void IccProfileTest::name()
{
    QCOMPARE(readIccProfile(samplefiles::version2Profile())->colorGamutName(), std::string("Studio 27 calibrated"));
    const auto chinese = readIccProfile(samplefiles::version4Profile(
        [](cmsHPROFILE profile) { samplefiles::describe(profile, L"\u663E\u793A\u5668"); }));
    QCOMPARE(QString::fromStdString(chinese->colorGamutName()), QString::fromUtf8("显示器"));
}

void IccProfileTest::nameMayBeMissing()
{
    const auto gamut = readIccProfile(samplefiles::version2Profile(
        [](cmsHPROFILE profile) { cmsWriteTag(profile, cmsSigProfileDescriptionTag, nullptr); }));
    QVERIFY(gamut);
    QCOMPARE(gamut->colorGamutName(), std::string());
}

void IccProfileTest::relativeLuminances()
{
    const Model::Targets targets = readIccProfile(samplefiles::version4Profile())->getTargets();
    QVERIFY(targets.white.Y == 1.0);
    QVERIFY(std::fabs(targets.red.Y - 0.2126) < 0.0003);
    QVERIFY(std::fabs(targets.green.Y - 0.7152) < 0.0003);
    QVERIFY(std::fabs(targets.blue.Y - 0.0722) < 0.0003);
}

void IccProfileTest::absoluteLuminances()
{
    const auto withLuminance = [](double luminance) {
        return readIccProfile(samplefiles::version2Profile([luminance](cmsHPROFILE profile) {
            const cmsCIEXYZ value{0.0, luminance, 0.0};
            cmsWriteTag(profile, cmsSigLuminanceTag, &value);
        }));
    };
    const auto gamut = withLuminance(250.0);
    QVERIFY(std::fabs(gamut->getTargets().white.Y - 250.0) < 0.001);
    QVERIFY(std::fabs(gamut->getTargets().green.Y - 0.7152 * 250.0) < 0.1);
    QVERIFY(withLuminance(0.0)->getTargets().white.Y == 1.0);
    QVERIFY(withLuminance(-5.0)->getTargets().white.Y == 1.0);
}

void IccProfileTest::refusals_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QByteArray &bytes, const char *error) {
        QTest::newRow(name) << bytes << QString::fromUtf8(error);
    };
    const auto changed = [&row](const char *name, const samplefiles::EditProfile &edit, const char *error) {
        row(name, samplefiles::version2Profile(edit), error);
    };
    row("empty", "", "is a truncated ICC profile: the header is incomplete");
    row("wrong signature", samplefiles::version2Profile().replace("acsp", "acsq"), "is not an ICC profile");
    row("grey", samplefiles::greyProfile(), "has no primaries: it is a grey profile");
    changed(
        "CMYK", [](cmsHPROFILE profile) { cmsSetColorSpace(profile, cmsSigCmykData); },
        "has no primaries: it is a CMYK profile");
    changed(
        "Lab", [](cmsHPROFILE profile) { cmsSetColorSpace(profile, cmsSigLabData); },
        "has no primaries: it is a Lab profile");
    changed(
        "YCbCr", [](cmsHPROFILE profile) { cmsSetColorSpace(profile, cmsSigYCbCrData); },
        "has no primaries: it is not an RGB profile");
    changed(
        "no green", [](cmsHPROFILE profile) { cmsWriteTag(profile, cmsSigGreenColorantTag, nullptr); },
        "has no primaries: the ICC profile has no colorant tags");
    changed(
        "black red",
        [](cmsHPROFILE profile) {
            const cmsCIEXYZ black{0.0, 0.0, 0.0};
            cmsWriteTag(profile, cmsSigRedColorantTag, &black);
        },
        "is an ICC profile without usable primaries: the red primary has no chromaticity");
    changed(
        "two equal primaries",
        [](cmsHPROFILE profile) {
            const cmsCIEXYZ green{0.3850649, 0.7168786, 0.0971045};
            cmsWriteTag(profile, cmsSigRedColorantTag, &green);
        },
        "is an ICC profile without usable primaries: the primaries do not form a triangle");
    changed(
        "dark media white",
        [](cmsHPROFILE profile) {
            const cmsCIEXYZ black{0.0, 0.0, 0.0};
            cmsWriteTag(profile, cmsSigMediaWhitePointTag, &black);
        },
        "is an ICC profile without usable primaries: the red primary has no chromaticity");
    row("adaptation without inverse", samplefiles::version4Profile([](cmsHPROFILE profile) {
        const cmsCIEXYZ rows[] = {{1, 1, 1}, {1, 1, 1}, {1, 1, 1}};
        cmsWriteTag(profile, cmsSigChromaticAdaptationTag, rows);
    }),
        "is an ICC profile without usable primaries: the red primary has no chromaticity");
}

void IccProfileTest::refusals()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    const auto gamut = readIccProfile(bytes);
    QVERIFY(!gamut);
    QCOMPARE(gamut.error(), error);
}

void IccProfileTest::truncatedAnywhere()
{
    const QByteArray whole = samplefiles::version4Profile();
    for (int size = 0; size < whole.size(); ++size) {
        const auto gamut = readIccProfile(whole.left(size));
        QVERIFY(!gamut);
        QVERIFY2(gamut.error().startsWith("is a truncated ICC profile: "), qPrintable(gamut.error()));
    }
}

//! Nothing but a gamut or a reason may come of a damaged profile.
void IccProfileTest::damagedAnywhere()
{
    const QByteArray whole = samplefiles::version4Profile();
    for (int at = 0; at < whole.size(); ++at) {
        for (const char byte : {'\x00', '\x7F', '\xFF'}) {
            QByteArray damaged = whole;
            damaged[at] = byte;
            const auto gamut = readIccProfile(damaged);
            if (!gamut) {
                QVERIFY(!gamut.error().isEmpty() && !gamut.error().contains('\n'));
                continue;
            }
            for (const Model::Target &target :
                {gamut->getTargets().red, gamut->getTargets().green, gamut->getTargets().blue}) {
                // Those of a colour space may lie beyond the chromaticities of light.
                QVERIFY(std::fabs(target.x) <= 2.0 && std::fabs(target.y) <= 2.0 && target.Y / target.y >= 0.0);
                QVERIFY(std::isfinite(target.X) && std::isfinite(target.Z));
                QVERIFY(std::isfinite(target.u) && std::isfinite(target.v));
            }
        }
    }
}

void IccProfileTest::recognisedByItsSignature()
{
    QVERIFY(isIccProfile(samplefiles::greyProfile()));
    QVERIFY(isIccProfile(samplefiles::version2Profile().left(40)));
    QVERIFY(!isIccProfile(samplefiles::version2Profile().left(39)));
    QVERIFY(!isIccProfile(samplefiles::edid()));
    QVERIFY(!isIccProfile(QByteArray()));
}

// As programs for grading have them: the blue of ACES2065-1 has y < 0.
void IccProfileTest::colorSpaceWithImaginaryPrimaries()
{
    for (const auto &[white, primaries] :
        {std::make_pair(cmsCIExyY{0.32168, 0.33767, 1.0}, triple(0.7347, 0.2653, 0.0, 1.0, 0.0001, -0.077)),
            std::make_pair(cmsCIExyY{0.32168, 0.33767, 1.0}, triple(0.713, 0.293, 0.165, 0.83, 0.128, 0.044)),
            std::make_pair(cmsCIExyY{0.3127, 0.329, 1.0}, triple(0.7347, 0.2653, 0.1596, 1.14, 0.0366, -0.1))}) {
        const auto gamut = readIccProfile(made(white, primaries));
        QVERIFY2(gamut, qPrintable(gamut.error()));
        const Model::Targets &targets = gamut->getTargets();
        QVERIFY(isNear(targets.red, primaries.Red.x, primaries.Red.y, 0.0006));
        QVERIFY(isNear(targets.green, primaries.Green.x, primaries.Green.y, 0.0006));
        QVERIFY(isNear(targets.blue, primaries.Blue.x, primaries.Blue.y, 0.0006));
        QVERIFY(isNear(targets.white, white.x, white.y, 0.0003));
        QVERIFY(std::fabs(targets.red.X + targets.green.X + targets.blue.X - targets.white.X) < 1e-9);
        QVERIFY(std::fabs(targets.red.Y + targets.green.Y + targets.blue.Y - 1.0) < 1e-9);
        QVERIFY(std::fabs(targets.red.Z + targets.green.Z + targets.blue.Z - targets.white.Z) < 1e-9);
        QVERIFY(otherWarnings(gamut).last().text.startsWith("the blue primary at "));
        QVERIFY(otherWarnings(gamut).last().text.endsWith("no light has this colour"));
    }
}

void IccProfileTest::colorSpaceThatIsNoEnumerator()
{
    for (const char *space : {"\xFF\xFF\xFF\xFF", "\x80\x00\x00\x00", "\x00\x00\x00\x00", "RGBx"}) {
        const auto gamut = readIccProfile(samplefiles::version2Profile().replace(16, 4, space, 4));
        QVERIFY(!gamut);
        QCOMPARE(gamut.error(), QStringLiteral("has no primaries: it is not an RGB profile"));
    }
}

// Nine numbers are read. With fewer, the white of the display is not known, whatever the media white point says.
void IccProfileTest::shortAdaptationTag()
{
    const auto shortened = [](int size) {
        QByteArray bytes = samplefiles::version4Profile(
            [](cmsHPROFILE profile) { cmsWriteTag(profile, cmsSigMediaWhitePointTag, cmsD50_XYZ()); });
        const int entry = bytes.indexOf("chad", 128);
        return bytes.replace(entry + 8, 4, QByteArray("\x00\x00\x00", 3) + char(size));
    };
    QVERIFY(isNear(readIccProfile(shortened(44))->getTargets().white, 0.3127, 0.3290, 0.0001));
    for (const int size : {43, 40, 20, 8, 0}) {
        const auto gamut = readIccProfile(shortened(size));
        QVERIFY2(!gamut, qPrintable(QString::number(size)));
        QVERIFY2(gamut.error().startsWith("is a damaged ICC profile"), qPrintable(gamut.error()));
    }
}

void IccProfileTest::tagsThatCannotBeRead()
{
    const QByteArray adapted = samplefiles::version4Profile();
    const QByteArray beyondTheEnd("\x7F\x00\x00\x00", 4);
    QByteArray damaged = adapted;
    damaged.replace(damaged.indexOf("chad", 128) + 4, 4, beyondTheEnd);
    QCOMPARE(readIccProfile(damaged).error(), QStringLiteral("is a damaged ICC profile: its white cannot be read"));
    damaged = adapted;
    damaged.replace(damaged.indexOf("sf32"), 4, "what");
    QCOMPARE(readIccProfile(damaged).error(), QStringLiteral("is a damaged ICC profile: its white cannot be read"));
    damaged = samplefiles::version2Profile();
    damaged.replace(damaged.indexOf("wtpt", 128) + 4, 4, beyondTheEnd);
    QCOMPARE(readIccProfile(damaged).error(), QStringLiteral("is a damaged ICC profile: its white cannot be read"));

    damaged = samplefiles::version4Profile([](cmsHPROFILE profile) {
        const cmsCIEXYZ value{0.0, 250.0, 0.0};
        cmsWriteTag(profile, cmsSigLuminanceTag, &value);
    });
    QVERIFY(otherWarnings(readIccDisplay(damaged)).isEmpty());
    damaged.replace(damaged.indexOf("lumi", 128) + 4, 4, beyondTheEnd);
    const auto display = readIccDisplay(damaged);
    QVERIFY2(display, qPrintable(display.error()));
    QVERIFY(!display->whiteLuminance);
    QCOMPARE(otherWarnings(display).size(), 1);
    QCOMPARE(otherWarnings(display).first().message(),
        QStringLiteral("lumi: the luminance of white cannot be read: luminances are relative"));
}

void IccProfileTest::tableBesideColorants()
{
    for (const char *name : {"A2B0", "A2B1"}) {
        // What the table holds does not matter, only that it is there.
        QByteArray bytes = samplefiles::version4Profile(
            [](cmsHPROFILE profile) { cmsWriteTag(profile, cmsSigMediaBlackPointTag, cmsD50_XYZ()); });
        bytes.replace(bytes.indexOf("bkpt", 128), 4, name);
        const auto gamut = readIccProfile(bytes);
        QVERIFY2(gamut, qPrintable(gamut.error()));
        QCOMPARE(otherWarnings(gamut).size(), 1);
        QCOMPARE(otherWarnings(gamut).first().message(),
            name
                + QStringLiteral(": the colours of the profile follow a table: its colorants, which are read, need not "
                                 "be the primaries of the display"));
    }
}

void IccProfileTest::luminanceOfTheTag()
{
    const auto display = readIccDisplay(samplefiles::version4Profile([](cmsHPROFILE profile) {
        const cmsCIEXYZ value{0.0, 120.5, 0.0};
        cmsWriteTag(profile, cmsSigLuminanceTag, &value);
    }));
    QVERIFY(display->whiteLuminance && std::fabs(*display->whiteLuminance - 120.5) < 0.001);
    QVERIFY(display->gamut.unit == LuminanceUnit::CandelaPerSquareMetre);
    QVERIFY(!readIccDisplay(samplefiles::version4Profile())->whiteLuminance);
    QVERIFY(readIccDisplay(samplefiles::version4Profile())->gamut.unit == LuminanceUnit::Relative);
}

namespace {

samplefiles::EditProfile withMetadata(const QVector<QPair<QString, QString>> &entries)
{
    return [entries](cmsHPROFILE profile) {
        const cmsHANDLE dictionary = cmsDictAlloc(nullptr);
        for (const auto &entry : entries) {
            cmsDictAddEntry(
                dictionary, entry.first.toStdWString().c_str(), entry.second.toStdWString().c_str(), nullptr, nullptr);
        }
        cmsWriteTag(profile, cmsSigMetaTag, dictionary);
        cmsDictFree(dictionary);
    };
}

} // namespace

void IccProfileTest::metadata()
{
    const auto display = readIccDisplay(samplefiles::version4Profile(withMetadata(
        {{"EDID_model", "Studio 27"}, {"MEASUREMENT_device", "meter \u4E8C"}, {"DATA_source", "calib"}, {"", ""}})));
    QVERIFY2(display, qPrintable(display.error()));
    QVERIFY(otherWarnings(display).isEmpty());
    QMap<QString, QString> values;
    for (const IccMetadata &entry : display->metadata) {
        values.insert(entry.name, entry.value);
    }
    QCOMPARE(values.value("EDID_model"), QStringLiteral("Studio 27"));
    QCOMPARE(values.value("MEASUREMENT_device"), QString::fromUtf8("meter 二"));
    QCOMPARE(values.value("DATA_source"), QStringLiteral("calib"));
    QVERIFY(readIccDisplay(samplefiles::version4Profile())->metadata.isEmpty());

    QVector<QPair<QString, QString>> many;
    for (int i = 0; i < 400; ++i) {
        many.append({QString::number(i), "x"});
    }
    QCOMPARE(readIccDisplay(samplefiles::version4Profile(withMetadata(many)))->metadata.size(), 256);
}

// Counts, offsets and sizes that point anywhere give fewer or other entries, never more than there is room for.
void IccProfileTest::damagedMetadata()
{
    const QByteArray whole = samplefiles::version4Profile(withMetadata({{"a", "b"}, {"DATA_source", "calib"}}));
    const int begin = whole.indexOf("dict");
    QCOMPARE(readIccDisplay(whole)->metadata.size(), 2);
    for (int at = begin; at < begin + 48; ++at) {
        for (int byte = 0; byte < 256; ++byte) {
            QByteArray damaged = whole;
            damaged[at] = char(byte);
            const auto display = readIccDisplay(damaged);
            QVERIFY2(display, qPrintable(display.error()));
            QVERIFY(display->metadata.size() <= 6);
            for (const IccMetadata &entry : display->metadata) {
                QVERIFY(entry.name.size() + entry.value.size() < whole.size());
            }
        }
    }
    QVERIFY(readIccDisplay(QByteArray(whole).replace(begin + 8, 4, "\xFF\xFF\xFF\xFF"))->metadata.size() <= 6);
}

// Many records that all point at the same long value would take many times the memory of the profile.
void IccProfileTest::overlappingMetadata()
{
    constexpr int length = 5000;
    constexpr int count = 200;
    QVector<QPair<QString, QString>> entries{{QStringLiteral("long"), QString(length, QLatin1Char('x'))}};
    for (int i = 1; i < count; ++i) {
        entries.append({QStringLiteral("short"), QStringLiteral("y")});
    }
    QByteArray bytes = samplefiles::version4Profile(withMetadata(entries));
    QCOMPARE(readIccDisplay(bytes)->metadata.size(), count);
    QVERIFY(otherWarnings(readIccDisplay(bytes)).isEmpty());

    const int records = bytes.indexOf("dict") + 16;
    const auto recordLength = qFromBigEndian<qint32>(bytes.constData() + records - 4);
    const QByteArray value = [&] {
        for (int i = 0; i < count; ++i) {
            const QByteArray place = bytes.mid(records + i * recordLength + 8, 8);
            if (qFromBigEndian<qint32>(place.constData() + 4) >= 2 * length) {
                return place;
            }
        }
        return QByteArray();
    }();
    QCOMPARE(value.size(), 8);
    for (int i = 0; i < count; ++i) {
        bytes.replace(records + i * recordLength + 8, 8, value);
    }
    const auto display = readIccDisplay(bytes);
    QVERIFY2(display, qPrintable(display.error()));
    int characters = 0;
    for (const IccMetadata &entry : display->metadata) {
        characters += int(entry.name.size() + entry.value.size());
    }
    QVERIFY2(2 * characters <= bytes.size(), qPrintable(QString::number(characters)));
    QCOMPARE(display->metadata.size(), 1);
    QCOMPARE(otherWarnings(display).size(), 1);
    QCOMPARE(otherWarnings(display).first().message(),
        QStringLiteral("meta: the metadata are larger than their tag: the further ones are left out"));
}

void IccProfileTest::metadataThatDenyAMeasurement_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("warning");
    QTest::newRow("EDID") << "edid"
                          << "DATA_source: the profile says that it was made from an EDID, not from a measurement";
    QTest::newRow("standard")
        << "standard"
        << "DATA_source: the profile says that it was made from a standard, not from a measurement";
}

void IccProfileTest::metadataThatDenyAMeasurement()
{
    QFETCH(QString, source);
    QFETCH(QString, warning);
    const auto gamut = readIccProfile(samplefiles::version4Profile(withMetadata({{"DATA_source", source}})));
    QVERIFY(gamut);
    QCOMPARE(otherWarnings(gamut).size(), 1);
    QCOMPARE(otherWarnings(gamut).first().message(), warning);
}

void IccProfileTest::videoCardTable()
{
    QVERIFY(!readIccDisplay(samplefiles::version4Profile())->hasVideoCardTable);
    QVERIFY(readIccDisplay(samplefiles::version4Profile([](cmsHPROFILE profile) {
        cmsToneCurve *curve = cmsBuildGamma(nullptr, 1.1);
        cmsToneCurve *curves[] = {curve, curve, curve};
        cmsWriteTag(profile, cmsSigVcgtTag, curves);
        cmsFreeToneCurve(curve);
    }))->hasVideoCardTable);
}

void IccProfileTest::copiesOfStandards_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    const cmsCIExyY d65{0.3127, 0.329, 1.0};
    QTest::newRow("version 2") << samplefiles::version2Profile() << QStringLiteral("sRGB");
    QTest::newRow("version 4") << samplefiles::version4Profile() << QStringLiteral("sRGB");
    QTest::newRow("P3") << made(d65, triple(0.68, 0.32, 0.265, 0.69, 0.15, 0.06)) << QStringLiteral("DCI-P3(D65)");
    QTest::newRow("Adobe RGB") << made(d65, triple(0.64, 0.33, 0.21, 0.71, 0.15, 0.06))
                               << QStringLiteral("Adobe RGB (1998)");
    QTest::newRow("another white") << made({0.3137, 0.3315, 1.0}, triple(0.64, 0.33, 0.3, 0.6, 0.15, 0.06))
                                   << QString();
    QTest::newRow("a display") << made(d65, triple(0.645, 0.332, 0.301, 0.612, 0.151, 0.058)) << QString();
}

void IccProfileTest::copiesOfStandards()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    const auto gamut = readIccProfile(bytes);
    QVERIFY2(gamut, qPrintable(gamut.error()));
    QStringList told;
    for (const Problem &warning : gamut.warnings()) {
        told += warning.message();
    }
    QCOMPARE(told, name.isEmpty() ? QStringList() : QStringList(QString(copyOfSrgb).replace("sRGB", name)));
}

void IccProfileTest::nameThatCannotBeRead()
{
    QByteArray bytes = samplefiles::version4Profile();
    bytes.replace(bytes.indexOf("mluc"), 4, "what");
    const auto gamut = readIccProfile(bytes);
    QVERIFY2(gamut, qPrintable(gamut.error()));
    QCOMPARE(gamut->colorGamutName(), std::string());
    QCOMPARE(otherWarnings(gamut).size(), 1);
    QCOMPARE(otherWarnings(gamut).first().message(), QStringLiteral("desc: the name of the profile cannot be read"));
}

QTEST_GUILESS_MAIN(IccProfileTest)
#include "iccprofiletest.moc"
