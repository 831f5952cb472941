// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/measurementlist.h>

#include "excerpt_p.h"
#include "incompletereasons_p.h"
#include "wallofcabinets_p.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace gamutfiles {

namespace {

struct WallText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::Wall)
};

//! Cabinets of which one warning speaks together.
class NamedCabinets {
public:
    void add(const QString &label)
    {
        if (m_count++ < mostNamed) {
            m_names.append(label.isEmpty() ? WallText::tr("one without a name") : excerpt(label));
        }
    }
    bool isEmpty() const { return m_count == 0; }
    QString text() const
    {
        const QString names = m_names.join(QStringLiteral(", "));
        return m_count > mostNamed
            ? WallText::tr("%1 and %2 more", "names of cabinets and a number").arg(names).arg(m_count - mostNamed)
            : names;
    }

private:
    static constexpr int mostNamed = 4; // more are not read
    QStringList m_names;
    int m_count = 0;
};

struct Colors {
    std::array<const Measurement *, 6> of{}; // by MeasurementPart; null: there is none
    std::array<bool, 6> isAmbiguous{}; // by MeasurementPart; whether the colour is there more than once

    const Measurement *operator[](MeasurementPart part) const { return of[std::size_t(part)]; }
};

Colors colorsOf(const MeasurementList &list)
{
    Colors colors;
    for (const Measurement &measurement : list.measurements) {
        if (measurement.part == MeasurementPart::None) {
            continue;
        }
        const Measurement *&found = colors.of[std::size_t(measurement.part)];
        bool &isAmbiguous = colors.isAmbiguous[std::size_t(measurement.part)];
        isAmbiguous = isAmbiguous || found;
        found = &measurement;
    }
    return colors;
}

//! Whether no two of \a cabinets stand in the same row and column.
bool haveDifferentPlaces(const QVector<CabinetMeasurements> &cabinets)
{
    QSet<std::pair<int, int>> places;
    for (const CabinetMeasurements &cabinet : cabinets) {
        if (!cabinet.row || !cabinet.column) {
            continue;
        }
        const std::pair<int, int> place(*cabinet.row, *cabinet.column);
        if (places.contains(place)) {
            return false;
        }
        places.insert(place);
    }
    return true;
}

constexpr std::pair<MeasurementPart, const char *> partNames[]
    = {{MeasurementPart::Red, "red"}, {MeasurementPart::Green, "green"}, {MeasurementPart::Blue, "blue"},
        {MeasurementPart::White, "white"}, {MeasurementPart::Black, "black"}};

bool isPrimary(MeasurementPart part)
{
    return part == MeasurementPart::Red || part == MeasurementPart::Green || part == MeasurementPart::Blue;
}

/*!
 * \brief What keeps \a colors from being those of a cabinet, as IncompleteCabinet::reason; empty: nothing.
 *
 * A white need not be measured, but one that was may say that the cabinet shows less than its primaries add to.
 */
QStringList missingColors(const Colors &colors)
{
    QStringList reasons;
    for (const auto &of : partNames) {
        const Measurement *measurement = colors[of.first];
        const bool isNeeded = isPrimary(of.first) || (of.first == MeasurementPart::White && measurement);
        if (measurement && measurement->isUnread) {
            reasons.append(QLatin1String(of.second) + QLatin1String(" could not be read"));
        } else if (isNeeded && !(measurement && measurement->color)) {
            reasons.append(
                QLatin1String(of.second) + QLatin1String(measurement ? " has no chromaticity" : " is missing"));
        }
    }
    return reasons;
}

QStringList ambiguousColors(const Colors &colors)
{
    QStringList reasons;
    for (const auto &of : partNames) {
        if (colors.isAmbiguous[std::size_t(of.first)]) {
            reasons.append(QLatin1String(of.second) + QLatin1String(" is there more than once"));
        }
    }
    return reasons;
}

/*!
 * \brief The cabinets without a name of their own, which differ in nothing that people could call them by.
 *
 * Only those of which a colour was measured: a line without a cabinet may be of the room.
 */
void addUnnamed(DisplayWall &wall, int count, QSet<QString> labels)
{
    int number = 1;
    for (int i = 0; i < count; ++i) {
        QString name;
        do {
            name = number > 1 ? QStringLiteral("? %1").arg(number) : QStringLiteral("?");
            ++number;
        } while (labels.contains(name));
        labels.insert(name);
        wall.incomplete.push_back({name, std::nullopt, QStringLiteral("it has no name of its own")});
    }
}

} // namespace

// Where there is no light, nothing has a chromaticity.
std::optional<Model::Target> lightOfBlack(const Measurement &black)
{
    return !black.color && black.luminance == 0.0 ? std::make_optional(Model::Target()) : black.color;
}

std::optional<double> luminanceOfBlack(const Measurement &black)
{
    return !black.color && black.luminance > 0.0 ? std::make_optional(black.luminance) : std::nullopt;
}

Outcome<DisplayWall> wallFromMeasurements(const MeasurementList &list)
{
    using Failure = Outcome<DisplayWall>;
    const QVector<CabinetMeasurements> cabinets = list.cabinets();
    if (cabinets.isEmpty()) {
        return Failure::failure(
            WallText::tr("names no cabinets: a wall needs a column with the cabinet, or one with the row and one with "
                         "the column"));
    }
    return wallOfCabinets(cabinets, list.unit);
}

Outcome<DisplayWall> wallOfCabinets(const QVector<CabinetMeasurements> &cabinets, LuminanceUnit unit)
{
    using Failure = Outcome<DisplayWall>;
    const bool hasPlaces = haveDifferentPlaces(cabinets);
    DisplayWall wall;
    wall.unit = unit;
    NamedCabinets incomplete;
    NamedCabinets ambiguous;
    NamedCabinets unnamed;
    NamedCabinets withoutBlack;
    QSet<QString> labels;
    QHash<QString, int> names;
    for (const CabinetMeasurements &measured : cabinets) {
        ++names[measured.cabinet];
    }
    int unnamedCount = 0;
    for (const CabinetMeasurements &measured : cabinets) {
        const QString label = measured.label();
        // As short as it is clear for people: with row and column only where another has the same name.
        const bool isClear = !measured.cabinet.isEmpty() && names.value(measured.cabinet) == 1;
        const QString &called = isClear ? measured.cabinet : label;
        const Colors colors = colorsOf(measured.list);
        if (label.trimmed().isEmpty() || labels.contains(label)) {
            unnamed.add(label);
            const bool hasColor
                = std::any_of(colors.of.begin(), colors.of.end(), [](const Measurement *of) { return of; });
            unnamedCount += hasColor ? 1 : 0;
            continue;
        }
        labels.insert(label);
        const QString name = hasPlaces ? measured.cabinet : label;
        const auto position = hasPlaces && measured.row && measured.column
            ? std::make_optional(Model::GridPosition{*measured.row, *measured.column})
            : std::nullopt;
        const QStringList missing = missingColors(colors);
        const QStringList twice = ambiguousColors(colors);
        if (!missing.isEmpty() || !twice.isEmpty()) {
            (missing.isEmpty() ? ambiguous : incomplete).add(called);
            wall.incomplete.push_back({name, position, (missing + twice).join(reasonSeparator())});
            continue;
        }
        WallCabinet cabinet;
        cabinet.name = name;
        if (position) {
            cabinet.row = position->row;
            cabinet.column = position->column;
        }
        cabinet.red = *colors[MeasurementPart::Red]->color;
        cabinet.green = *colors[MeasurementPart::Green]->color;
        cabinet.blue = *colors[MeasurementPart::Blue]->color;
        if (const Measurement *white = colors[MeasurementPart::White]) {
            cabinet.white = white->color;
        }
        if (const Measurement *black = colors[MeasurementPart::Black]) {
            cabinet.black = lightOfBlack(*black);
            cabinet.blackLuminance = luminanceOfBlack(*black);
        }
        if (cabinet.blackLuminance) {
            withoutBlack.add(called);
        }
        wall.cabinets.push_back(cabinet);
    }
    if (wall.cabinets.empty()) {
        return Failure::failure(
            WallText::tr("no cabinet was measured well enough: each needs a name, and red, green and blue once"));
    }
    addUnnamed(wall, unnamedCount, labels);
    QVector<Problem> warnings;
    const auto warn = [&warnings](const QString &text) { warnings.append({text, {}, 0, 0}); };
    if (!unnamed.isEmpty()) {
        warn(WallText::tr("cabinets of which nothing is known, as they have no name of their own: %1")
                 .arg(unnamed.text()));
    }
    if (!incomplete.isEmpty()) {
        warn(WallText::tr(
            "cabinets of which nothing is known, as red, green or blue is missing, or a colour has no chromaticity: %1")
                 .arg(incomplete.text()));
    }
    if (!ambiguous.isEmpty()) {
        warn(WallText::tr("cabinets of which nothing is known, as a colour is there more than once: %1")
                 .arg(ambiguous.text()));
    }
    if (!withoutBlack.isEmpty()) {
        warn(WallText::tr("cabinets whose black does not count in corrections, as it has no chromaticity: %1")
                 .arg(withoutBlack.text()));
    }
    if (!hasPlaces) {
        warn(WallText::tr(
            "several cabinets have the same row and column: they are parts of the names, and no place is known"));
    }
    return {wall, warnings};
}

} // namespace gamutfiles
