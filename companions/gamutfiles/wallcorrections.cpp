// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// What is stored of the corrections that were computed for a wall.
#include <gamutfiles/correctionsfile.h>

#include "correctionsfile_p.h"

#include <QCoreApplication>

#include <algorithm>
#include <tuple>

namespace gamutfiles {

namespace {

struct SolvedText {
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
        return SolvedText::tr("a colour of the target is not finite");
    case Model::WallFault::NearlySingular:
        return SolvedText::tr("the primaries of the target lie nearly on a line");
    case Model::WallFault::WhiteOutside:
        return SolvedText::tr("the white of the target is not a mixture of its primaries");
    case Model::WallFault::NoLuminance:
        return SolvedText::tr("there is no luminance for the white of the target: no cabinet can show it");
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
        const QString none = SolvedText::tr("no cabinet has a matrix");
        return Failure::failure(result.cabinets.size() == 1
                ? SolvedText::tr("%1: %2", "that there is no matrix, and why").arg(none, result.cabinets[0].fault)
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

} // namespace gamutfiles
