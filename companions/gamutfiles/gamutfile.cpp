// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/gamutfile.h>

#include "numbers_p.h"
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

int numbersBetweenSpaces(const QString &line)
{
    const QStringList fields = line.simplified().split(QLatin1Char(' '));
    return int(std::count_if(fields.begin(), fields.end(), isNumber));
}

//! Whether a line near the beginning has fields, or says that it has. The encoding is known from \a bytes as a whole.
bool isList(const QByteArray &bytes)
{
    constexpr int mostLines = 50;
    const auto decoded = decodeText(bytes);
    if (!decoded) {
        return false;
    }
    const QStringList lines = decoded->text.split(QLatin1Char('\n')).mid(0, mostLines);
    return std::any_of(lines.begin(), lines.end(), [](const QString &line) {
        return line.startsWith(QLatin1Char('#')) || line.contains(QLatin1Char(',')) || line.contains(QLatin1Char(';'))
            || line.contains(QLatin1Char('\t')) || numbersBetweenSpaces(line) >= 3;
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
    // The kernel names the EDID of each output so, without a suffix.
    const bool isEdidName = suffix == QLatin1String("edid") || QFileInfo(fileName).fileName() == QLatin1String("edid");
    return isEdidName ? Format::Edid : Format::Unknown;
}

//! Whether lists are saved under such names; some begin with a line such as "[Measurements]".
bool isTextName(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    return suffix == QLatin1String("csv") || suffix == QLatin1String("tsv") || suffix == QLatin1String("txt");
}

//! Whether text that begins with a bracket goes on as an object or an array of objects does.
bool isJson(const QByteArray &text)
{
    const QByteArray next = text.mid(1).trimmed().left(1);
    return text.startsWith('{') ? next == "\"" || next == "}" : next == "{" || next == "[" || next == "\"";
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
    const Format expected = expectedFormat(fileName);
    if ((trimmed.startsWith('{') || trimmed.startsWith('[')) && !(isTextName(fileName) && !isJson(trimmed))) {
        return Format::Description;
    }
    if (expected != Format::Unknown) {
        return expected;
    }
    return bytes.size() <= maximumMeasurementBytes && isList(bytes) ? Format::Measurements : Format::Unknown;
}

QString candelas(double luminance)
{
    return FileText::tr("%1 cd/m²").arg(luminance, 0, 'g', 4);
}

void add(QVector<DisplayFact> &facts, const QString &name, const QString &value)
{
    if (!value.isEmpty()) {
        facts.append({name, value});
    }
}

void add(QVector<DisplayFact> &facts, const QString &name, const std::optional<double> &luminance)
{
    if (luminance) {
        facts.append({name, candelas(*luminance)});
    }
}

//! A gamma of 1 is hardly ever meant: a field that nobody filled in says so.
QString gammaText(double gamma)
{
    const QString text = QString::number(gamma);
    return gamma == 1.0 ? FileText::tr("%1, as a field that was left empty also says").arg(text) : text;
}

QVector<DisplayFact> facts(const EdidDisplay &display)
{
    const QString list = QStringLiteral(", ");
    const auto year = [](const std::optional<int> &value) { return value ? QString::number(*value) : QString(); };
    const EdidNativeLuminance &native = display.nativeLuminance;
    const EdidContentLuminance &content = display.contentLuminance;
    QVector<DisplayFact> facts;
    add(facts, FileText::tr("manufacturer"), display.manufacturer);
    add(facts, FileText::tr("year of manufacture"), year(display.manufactureYear));
    add(facts, FileText::tr("year of the model"), year(display.modelYear));
    add(facts, FileText::tr("gamma"), display.gamma ? gammaText(*display.gamma) : QString());
    add(facts, FileText::tr("luminance of a white screen"), native.fullScreen);
    add(facts, FileText::tr("luminance of white on 10 % of the screen"), native.tenPercent);
    add(facts, FileText::tr("luminance of black"), native.minimum);
    if (native.fullScreen || native.tenPercent || native.minimum) {
        add(facts, FileText::tr("these luminances are"),
            native.guaranteed ? FileText::tr("guaranteed, by the display's own statement")
                              : FileText::tr("not guaranteed"));
    }
    add(facts, FileText::tr("desired maximum luminance of content"), content.maximum);
    add(facts, FileText::tr("desired maximum average of a frame"), content.maximumFrameAverage);
    add(facts, FileText::tr("desired minimum luminance of content"), content.minimum);
    add(facts, FileText::tr("takes signals of"), display.colorimetries.join(list));
    add(facts, FileText::tr("takes transfer functions"), display.transferFunctions.join(list));
    return facts;
}

QVector<DisplayFact> facts(const IccDisplay &display)
{
    QVector<DisplayFact> facts;
    add(facts, FileText::tr("luminance of white"), display.whiteLuminance);
    if (display.hasVideoCardTable) {
        add(facts, FileText::tr("calibration curves"),
            FileText::tr("in the profile; its gamut holds while they are loaded"));
    }
    for (const IccMetadata &entry : display.metadata) {
        add(facts, entry.name, entry.value);
    }
    return facts;
}

QString displayName(const EdidDisplay &display)
{
    return display.name;
}

QString displayName(const IccDisplay &display)
{
    const auto model = std::find_if(display.metadata.begin(), display.metadata.end(),
        [](const IccMetadata &entry) { return entry.name == QLatin1String("EDID_model"); });
    return model == display.metadata.end() ? QString() : model->value.trimmed();
}

template <typename Display>
Outcome<GamutFile> declared(const Outcome<Display> &display, GamutFile file)
{
    if (!display) {
        return Outcome<GamutFile>::failure(display.problem());
    }
    file.content = GamutFile::Content::DeclaredGamut;
    const DisplayGamut &gamut = display->gamut;
    const std::string name = gamut.colorGamutName();
    file.gamut = DisplayGamut({name.empty() ? file.name.toStdString() : name, gamut.getTargets()}, gamut.unit);
    file.displayName = displayName(*display);
    file.facts = facts(*display);
    return {file, display.warnings()};
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
    file.name = nameByFile(fileName);
    if (const auto dumped = edidFromHexDump(*bytes)) {
        const auto opened = declared(readEdidDisplay(*dumped), file);
        return opened ? Outcome<GamutFile>(*opened, dumped.warnings() + opened.warnings()) : opened;
    }
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
        return declared(readIccDisplay(*bytes), file);
    case Format::Edid:
        return declared(readEdidDisplay(*bytes), file);
    case Format::Unknown:
        break;
    }
    if (bytes->startsWith("PK\x03\x04")) { // ZIP, which spreadsheets are saved in
        return Failure::failure(
            FileText::tr("is a ZIP archive, as spreadsheets are: save the list as text, with the suffix csv"));
    }
    return Failure::failure(
        FileText::tr("is not a display description (JSON), measurement list (CSV), ICC profile or EDID"));
}

QString nameByFile(const QString &fileName)
{
    return isStandardInput(fileName) ? FileText::tr("standard input") : QFileInfo(fileName).completeBaseName();
}

QStringList gamutFilePatterns()
{
    return {QStringLiteral("*.json"), QStringLiteral("*.csv"), QStringLiteral("*.tsv"), QStringLiteral("*.txt"),
        QStringLiteral("*.icc"), QStringLiteral("*.icm"), QStringLiteral("edid"), QStringLiteral("*.edid"),
        QStringLiteral("*.bin"), QStringLiteral("*.dat")};
}

} // namespace gamutfiles
