// SPDX-License-Identifier: MIT
#include <gamutfiles/gamutfile.h>

#include "textencoding_p.h"

#include <gamutfiles/descriptionfile.h>
#include <gamutfiles/edid.h>
#include <gamutfiles/filebytes.h>
#include <gamutfiles/iccprofile.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace gamutfiles {

namespace {

enum class Format { Description, Measurements, IccProfile, Edid, Unknown };

struct FileText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::GamutFile)
};

//! Whether a line near the beginning has fields, or says that it has.
bool isList(const QByteArray &start)
{
    constexpr int mostLines = 50;
    const auto decoded = decodeText(start);
    if (!decoded) {
        return false;
    }
    const QStringList lines = decoded->text.split(QLatin1Char('\n')).mid(0, mostLines);
    return std::any_of(lines.begin(), lines.end(), [](const QString &line) {
        return line.startsWith(QLatin1Char('#')) || line.contains(QLatin1Char(',')) || line.contains(QLatin1Char(';'))
            || line.contains(QLatin1Char('\t'));
    });
}

//! By the suffix, for content that gives no hint: damaged files, mostly.
Format expectedFormat(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix == QLatin1String("json")) {
        return Format::Description;
    }
    if (suffix == QLatin1String("csv") || suffix == QLatin1String("tsv")) {
        return Format::Measurements;
    }
    if (suffix == QLatin1String("icc") || suffix == QLatin1String("icm")) {
        return Format::IccProfile;
    }
    return suffix == QLatin1String("edid") ? Format::Edid : Format::Unknown;
}

Format format(const QByteArray &bytes, const QString &fileName)
{
    if (isEdid(bytes)) {
        return Format::Edid;
    }
    if (isIccProfile(bytes)) {
        return Format::IccProfile;
    }
    const QByteArray start = bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3, 4096) : bytes.left(4096);
    const QByteArray trimmed = start.trimmed();
    if (trimmed.startsWith('{') || trimmed.startsWith('[')) {
        return Format::Description;
    }
    const Format expected = expectedFormat(fileName);
    if (expected != Format::Unknown) {
        return expected;
    }
    return bytes.size() <= maximumMeasurementBytes && isList(bytes) ? Format::Measurements : Format::Unknown;
}

Outcome<GamutFile> declared(const Outcome<DisplayGamut> &gamut, GamutFile file)
{
    if (!gamut) {
        return Outcome<GamutFile>::failure(gamut.problem());
    }
    file.content = GamutFile::Content::DeclaredGamut;
    const std::string name = gamut->colorGamutName();
    file.gamut = DisplayGamut({name.empty() ? file.name.toStdString() : name, gamut->getTargets()}, gamut->unit);
    return {file, gamut.warnings()};
}

} // namespace

Outcome<GamutFile> readGamutFile(const QString &fileName, const MeasurementOptions &options)
{
    using Failure = Outcome<GamutFile>;
    const Outcome<QByteArray> bytes = readBytes(fileName, maximumFileBytes);
    if (!bytes) {
        return Failure::failure(bytes.problem());
    }
    if (bytes->isEmpty()) {
        return Failure::failure(FileText::tr("is empty"));
    }
    GamutFile file;
    file.name = QFileInfo(fileName).completeBaseName();
    switch (format(*bytes, fileName)) {
    case Format::Description: {
        const auto description = readDescription(*bytes);
        if (!description) {
            return Failure::failure(description.problem());
        }
        file.description = *description;
        return {file, description.warnings()};
    }
    case Format::Measurements: {
        const auto measurements = readMeasurementList(*bytes, options);
        if (!measurements) {
            return Failure::failure(measurements.problem());
        }
        file.content = GamutFile::Content::Measurements;
        file.measurements = *measurements;
        return {file, measurements.warnings()};
    }
    case Format::IccProfile:
        return declared(readIccProfile(*bytes), file);
    case Format::Edid:
        return declared(readEdid(*bytes), file);
    case Format::Unknown:
        break;
    }
    return Failure::failure(
        FileText::tr("is not a display description (JSON), measurement list (CSV), ICC profile or EDID"));
}

QStringList gamutFilePatterns()
{
    return {QStringLiteral("*.json"), QStringLiteral("*.csv"), QStringLiteral("*.tsv"), QStringLiteral("*.txt"),
        QStringLiteral("*.icc"), QStringLiteral("*.icm"), QStringLiteral("*.edid"), QStringLiteral("*.bin")};
}

} // namespace gamutfiles
