// SPDX-License-Identifier: MIT
#include "display/openfile.h"

#include "display/descriptionreader.h"
#include "display/edidfile.h"
#include "display/filebytes.h"
#include "display/iccprofile.h"
#include "display/messages.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace gamutviewer {

namespace {

// What becomes of a list must fit into a display description.
constexpr int maximumMeasurementBytes = 1024 * 1024;

enum class Format { Description, Measurements, IccProfile, Edid, Unknown };

struct OpenText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::OpenedFile)
};

bool isText(const QByteArray &bytes)
{
    return !bytes.contains('\0') && !QString::fromUtf8(bytes).contains(QChar::ReplacementCharacter);
}

//! By the suffix, for content that gives no hint: damaged files, mostly.
Format expectedFormat(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix == QLatin1String("json")) {
        return Format::Description;
    }
    if (suffix == QLatin1String("csv")) {
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
    const QByteArray firstLine = trimmed.left(trimmed.indexOf('\n'));
    const bool hasFields
        = firstLine.contains(',') || firstLine.contains(';') || firstLine.contains('\t') || firstLine.startsWith('#');
    return hasFields && isText(bytes) ? Format::Measurements : Format::Unknown;
}

Outcome<OpenedFile> withFile(const QString &fileName, const QString &reason)
{
    return Outcome<OpenedFile>::failure(oneLine(fileName + QStringLiteral(": ") + reason));
}

Outcome<OpenedFile> declared(const Outcome<Model::ColorGamut> &gamut, OpenedFile file, const QString &fileName)
{
    if (!gamut) {
        return withFile(fileName, gamut.error());
    }
    file.content = OpenedFile::Content::DeclaredGamut;
    const std::string name = gamut->colorGamutName();
    file.gamut = Model::ColorGamut(name.empty() ? file.name.toStdString() : name, gamut->getTargets());
    return file;
}

bool same(const Model::Target &a, const Model::Target &b)
{
    return a.Y == b.Y && a.x == b.x && a.y == b.y;
}

bool same(const Model::Targets &a, const Model::Targets &b)
{
    return same(a.red, b.red) && same(a.green, b.green) && same(a.blue, b.blue) && same(a.white, b.white);
}

//! Returns the name by which \a description has \a gamut, which is added unless it is there already.
QString addGamut(DisplayDescription &description, const Model::ColorGamut &gamut)
{
    const QString wanted = QString::fromStdString(gamut.colorGamutName());
    const QString base = wanted.trimmed().isEmpty() ? OpenText::tr("Gamut") : wanted;
    QString name = base;
    for (int number = 2; const auto taken = description.gamut(name); ++number) {
        if (same(taken->getTargets(), gamut.getTargets())) {
            return name;
        }
        name = QStringLiteral("%1 (%2)").arg(base).arg(number);
    }
    description.gamuts.emplace_back(name.toStdString(), gamut.getTargets());
    return name;
}

void completeEmpty(DisplayDescription &description, const QString &original, const QString &name)
{
    if (!description.original.isEmpty()) {
        return;
    }
    description.name = description.name.isEmpty() ? name : description.name;
    description.original = original;
    description.target = QString::fromStdString(Model::rec709().colorGamutName());
    for (const Model::ColorGamut &standard : Model::standardGamuts()) {
        description.standards.append(QString::fromStdString(standard.colorGamutName()));
    }
}

} // namespace

DisplayDescription OpenedFile::appliedTo(const DisplayDescription &open) const
{
    DisplayDescription result = open;
    switch (content) {
    case Content::Description:
        return description;
    case Content::DeclaredGamut:
        result.declared = addGamut(result, gamut);
        completeEmpty(result, result.declared, result.declared);
        break;
    case Content::Measurements:
        if (const auto measured = measurements.gamut(name)) {
            result.measured = addGamut(result, *measured);
            completeEmpty(result, result.measured, name);
        } else {
            completeEmpty(result, QString::fromStdString(Model::rec709().colorGamutName()), name);
        }
        result.measurePoints.clear();
        for (const Measurement &point : measurements.others()) {
            result.measurePoints.append({point.name, {point.color.x, point.color.y}});
        }
        break;
    }
    return result;
}

Outcome<OpenedFile> openFile(const QString &fileName)
{
    const Outcome<QByteArray> bytes = readBytes(fileName, maximumFileBytes);
    if (!bytes) {
        return withFile(fileName, bytes.error());
    }
    OpenedFile file;
    file.name = QFileInfo(fileName).completeBaseName();
    if (bytes->isEmpty()) {
        return withFile(fileName, OpenText::tr("is empty"));
    }
    switch (format(*bytes, fileName)) {
    case Format::Description: {
        DescriptionReader reader;
        const auto description = reader.read(*bytes);
        if (!description) {
            return Outcome<OpenedFile>::failure(reader.error().message(fileName));
        }
        file.description = *description;
        return file;
    }
    case Format::Measurements: {
        if (bytes->size() > maximumMeasurementBytes) {
            return withFile(fileName,
                OpenText::tr("is too large for a measurement list (more than %1 KiB)")
                    .arg(maximumMeasurementBytes / 1024));
        }
        const auto measurements = readMeasurementList(*bytes);
        if (!measurements) {
            return withFile(fileName, measurements.error());
        }
        file.content = OpenedFile::Content::Measurements;
        file.measurements = *measurements;
        return file;
    }
    case Format::IccProfile:
        return declared(readIccProfile(*bytes), file, fileName);
    case Format::Edid:
        return declared(readEdid(*bytes), file, fileName);
    case Format::Unknown:
        break;
    }
    return withFile(
        fileName, OpenText::tr("is not a display description (JSON), measurement list (CSV), ICC profile or EDID"));
}

Outcome<OpenedFiles> openFiles(const QStringList &fileNames)
{
    OpenedFiles opened;
    QVector<OpenedFile> additions;
    for (const QString &fileName : fileNames) {
        const Outcome<OpenedFile> file = openFile(fileName);
        if (!file) {
            return Outcome<OpenedFiles>::failure(file.error());
        }
        if (file->content != OpenedFile::Content::Description) {
            additions.append(*file);
            continue;
        }
        if (!opened.descriptionFile.isEmpty()) {
            return Outcome<OpenedFiles>::failure(
                oneLine(OpenText::tr("%1: is a second display description; the first is %2")
                            .arg(fileName, opened.descriptionFile)));
        }
        opened.descriptionFile = fileName;
        opened.description = file->description;
    }
    for (const OpenedFile &addition : qAsConst(additions)) {
        opened.description = addition.appliedTo(opened.description);
    }
    return opened;
}

QStringList openFilePatterns()
{
    return {QStringLiteral("*.json"), QStringLiteral("*.csv"), QStringLiteral("*.icc"), QStringLiteral("*.icm"),
        QStringLiteral("*.edid"), QStringLiteral("*.bin")};
}

} // namespace gamutviewer
