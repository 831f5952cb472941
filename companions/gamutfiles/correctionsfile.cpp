// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/correctionsfile.h>

#include "correctionsfile_p.h"
#include "descriptionreader_p.h"
#include "textencoding_p.h"
#include <gamutfiles/filebytes.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace gamutfiles {

namespace {

struct CorrectionsText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::Corrections)
};

QString primaryName(Model::Primary primary)
{
    return primary == Model::Primary::Red  ? QStringLiteral("red")
        : primary == Model::Primary::Green ? QStringLiteral("green")
                                           : QStringLiteral("blue");
}

//! For the file, which is the same in all languages.
QString faultText(const Model::Correction &correction)
{
    const QString primary
        = correction.faultyPrimary ? QStringLiteral(": ") + primaryName(*correction.faultyPrimary) : QString();
    switch (correction.fault) {
    case Model::DisplayFault::NotFinite:
        return QStringLiteral("a colour is not finite") + primary;
    case Model::DisplayFault::NoLight:
        return QStringLiteral("a primary has no more luminance than the black") + primary;
    case Model::DisplayFault::NearlySingular:
        return QStringLiteral("the primaries are nearly on a line") + primary;
    case Model::DisplayFault::None:
        break;
    }
    return QStringLiteral("a value is not finite");
}

QString faultText(Model::WallFault fault)
{
    switch (fault) {
    case Model::WallFault::NotFinite:
        return CorrectionsText::tr("a colour of the target is not finite");
    case Model::WallFault::NearlySingular:
        return CorrectionsText::tr("the primaries of the target lie nearly on a line");
    case Model::WallFault::WhiteOutside:
        return CorrectionsText::tr("the white of the target is not a mixture of its primaries");
    case Model::WallFault::NoLuminance:
        return CorrectionsText::tr("there is no luminance for the white of the target: no cabinet can show it");
    case Model::WallFault::None:
        break;
    }
    return {};
}

//! Files have one 0, as JSON and spreadsheets do not keep the sign of it.
Model::CorrectionMatrix withoutNegativeZeros(Model::CorrectionMatrix matrix)
{
    for (auto &row : matrix.rows) {
        for (double &entry : row) {
            entry = entry == 0.0 ? 0.0 : entry;
        }
    }
    return matrix;
}

//! Whether the row of \a a is above that of \a b, or its column before that of \a b in the same row.
template <typename Cabinet>
bool isBefore(const Cabinet &a, const Cabinet &b)
{
    return a.row && a.column && b.row && b.column && std::tie(*a.row, *a.column) < std::tie(*b.row, *b.column);
}

//! Whether the cabinets are listed row by row.
bool isInOrderOfPlaces(const DisplayWall &wall)
{
    return std::adjacent_find(wall.cabinets.begin(), wall.cabinets.end(),
               [](const WallCabinet &a, const WallCabinet &b) { return !isBefore(a, b); })
        == wall.cabinets.end();
}

} // namespace

QString exactText(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString jsonString(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

QString correctionsUnitName(LuminanceUnit unit)
{
    const QString name = luminanceUnitName(unit);
    return name.isEmpty() ? QStringLiteral("unknown") : name;
}

std::optional<LuminanceUnit> correctionsUnit(const QString &name)
{
    for (const LuminanceUnit unit :
        {LuminanceUnit::CandelaPerSquareMetre, LuminanceUnit::Relative, LuminanceUnit::NotKnown}) {
        if (name == correctionsUnitName(unit)) {
            return unit;
        }
    }
    return std::nullopt;
}

QString whyNotListed(const CabinetCorrection &cabinet, const QSet<QString> &labels)
{
    const QString label = cabinet.label();
    if (label.trimmed().isEmpty()) {
        return CorrectionsText::tr("a cabinet needs a name, or row and column");
    }
    if (!isStorable(label)) {
        return CorrectionsText::tr("a name has characters that cannot be stored");
    }
    if (!isStorable(cabinet.fault)) {
        return CorrectionsText::tr("a reason has characters that cannot be stored");
    }
    if (labels.contains(label)) {
        return CorrectionsText::tr("there is already a cabinet %1").arg(quoted(label));
    }
    if (cabinet.matrix && !cabinet.fault.isEmpty()) {
        return CorrectionsText::tr("there is a matrix, and a reason why there is none");
    }
    return !cabinet.matrix && cabinet.fault.trimmed().isEmpty()
        ? CorrectionsText::tr("there is neither a matrix nor a reason why there is none")
        : QString();
}

QString CabinetCorrection::label() const
{
    return cabinetLabel(name, row, column);
}

Outcome<WallCorrections> wallCorrections(
    const DisplayWall &wall, const Model::WallCorrection &solved, const QString &targetName)
{
    using Failure = Outcome<WallCorrections>;
    if (solved.fault != Model::WallFault::None) {
        return Failure::failure(faultText(solved.fault));
    }
    const auto point = [](const Model::Target &color) { return Model::DiagramPoint{color.x, color.y}; };
    WallCorrections result;
    result.unit = wall.unit;
    result.target = {targetName, point(solved.target.red), point(solved.target.green), point(solved.target.blue),
        point(solved.target.white), solved.target.white.Y};
    bool hasMatrix = false;
    for (std::size_t i = 0; i < wall.cabinets.size() && i < solved.corrections.size(); ++i) {
        const Model::Correction &correction = solved.corrections[i];
        CabinetCorrection cabinet;
        cabinet.name = wall.cabinets[i].name;
        cabinet.row = wall.cabinets[i].row;
        cabinet.column = wall.cabinets[i].column;
        if (correction.matrix) {
            cabinet.matrix = withoutNegativeZeros(*correction.matrix);
            hasMatrix = true;
        } else {
            cabinet.fault = faultText(correction);
        }
        if (correction.largestWhite) {
            cabinet.largestWhite = correction.largestWhite->luminance;
        }
        result.cabinets.push_back(cabinet);
    }
    if (!hasMatrix) {
        const QString none = CorrectionsText::tr("no cabinet has a matrix");
        return Failure::failure(result.cabinets.size() == 1
                ? CorrectionsText::tr("%1: %2", "that there is no matrix, and why").arg(none, result.cabinets[0].fault)
                : none);
    }
    const bool isByPlace = isInOrderOfPlaces(wall);
    for (const IncompleteCabinet &of : wall.incomplete) {
        CabinetCorrection cabinet;
        cabinet.name = of.name;
        if (of.position) {
            cabinet.row = of.position->row;
            cabinet.column = of.position->column;
        }
        cabinet.fault = of.reason;
        const auto next = std::find_if(result.cabinets.begin(), result.cabinets.end(),
            [&](const CabinetCorrection &other) { return isByPlace && of.position && isBefore(cabinet, other); });
        result.cabinets.insert(next, cabinet);
    }
    QSet<QString> labels;
    for (const CabinetCorrection &cabinet : result.cabinets) {
        const QString fault = whyNotListed(cabinet, labels);
        if (!fault.isEmpty()) {
            return Failure::failure(fault);
        }
        labels.insert(cabinet.label());
    }
    return result;
}

Outcome<WallCorrections> readCorrections(const QByteArray &utf8)
{
    using Failure = Outcome<WallCorrections>;
    if (utf8.size() > maximumCorrectionsBytes) {
        return Failure::failure(CorrectionsText::tr("is too large for a file of corrections (more than %1 KiB)")
                                    .arg(maximumCorrectionsBytes / 1024));
    }
    const QByteArray text = utf8.startsWith("\xEF\xBB\xBF") ? utf8.mid(3) : utf8;
    return text.left(4096).trimmed().startsWith('{') ? readCorrectionsJson(utf8) : readCorrectionsCsv(text);
}

Outcome<WallCorrections> readCorrectionsFile(const QString &fileName)
{
    const Outcome<QByteArray> bytes = readBytes(fileName, maximumCorrectionsBytes);
    return bytes ? readCorrections(*bytes) : Outcome<WallCorrections>::failure(bytes.problem());
}

} // namespace gamutfiles
