// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "colornames_p.h"
#include "excerpt_p.h"
#include "gamutfromprimaries_p.h"
#include "measurementreader_p.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace gamutfiles {

namespace {

//! The most warnings about cabinets: further ones would say the same of others.
constexpr int mostWarnings = 20;
constexpr int mostNamedCabinets = 4;

constexpr std::array primaryParts{MeasurementPart::Red, MeasurementPart::Green, MeasurementPart::Blue};

QString joined(const QStringList &names)
{
    return names.join(QStringLiteral(", "));
}

} // namespace

bool MeasurementReader::assignParts()
{
    assignByName();
    if (!chooseCabinet() || !choose(m_options.red, MeasurementPart::Red)
        || !choose(m_options.green, MeasurementPart::Green) || !choose(m_options.blue, MeasurementPart::Blue)
        || !choose(m_options.white, MeasurementPart::White)) {
        return false;
    }
    for (const Measurement &measurement : std::as_const(m_list.measurements)) {
        if (measurement.part != MeasurementPart::None) {
            m_list.recognized.parts.append({measurement.part, measurement.name, measurement.line});
        }
    }
    m_list.whiteIsSum = m_options.whiteIsSum;
    return true;
}

void MeasurementReader::assignByName()
{
    QVector<ColorName> names;
    QVector<ColorLevel> levels;
    for (const Measurement &measurement : std::as_const(m_list.measurements)) {
        names.append(colorName(measurement.name));
        const ColorName &name = names.last();
        if (name.level && !name.level->full && name.part != MeasurementPart::Black) {
            levels.append(*name.level);
        }
    }
    const std::optional<double> common = commonFullLevel(levels);
    m_list.recognized.fullLevel = common;
    bool toldOfScale = false;
    for (int i = 0; i < names.size(); ++i) {
        const ColorName &name = names.at(i);
        Measurement &measurement = m_list.measurements[i];
        measurement.part = playedPart(name, common);
        const bool isScaleKnown = common || (name.level && name.level->full);
        if (name.part != MeasurementPart::Black && name.level && !isScaleKnown && !toldOfScale) {
            warn(tr("the full level of \"%1\" is not known: no level without a unit is taken as the full one")
                     .arg(excerpt(measurement.name)),
                place(measurement.line));
            toldOfScale = true;
        }
    }
}

//! The highest level is taken from the whole list, the colours from the chosen cabinet.
bool MeasurementReader::chooseCabinet()
{
    const QString wanted = m_options.cabinet.trimmed();
    if (wanted.isEmpty()) {
        return true;
    }
    const QVector<CabinetMeasurements> cabinets = m_list.cabinets();
    const auto chosen = [&](const auto &nameOf) {
        QVector<CabinetMeasurements> found;
        std::copy_if(
            cabinets.begin(), cabinets.end(), std::back_inserter(found), [&](const CabinetMeasurements &cabinet) {
                return nameOf(cabinet).compare(wanted, Qt::CaseInsensitive) == 0;
            });
        return found;
    };
    QVector<CabinetMeasurements> found = chosen([](const CabinetMeasurements &cabinet) { return cabinet.label(); });
    if (found.isEmpty()) {
        found = chosen([](const CabinetMeasurements &cabinet) { return cabinet.cabinet; });
    }
    if (found.isEmpty()) {
        return fail(tr("no cabinet is called \"%1\"").arg(excerpt(wanted)));
    }
    if (found.size() > 1) {
        return fail(tr("several cabinets are called \"%1\": %2 and %3, for example")
                        .arg(excerpt(wanted), excerpt(found.at(0).label()), excerpt(found.at(1).label())));
    }
    m_list.measurements = found.first().list.measurements;
    m_list.withoutNumbers.clear();
    return !m_list.measurements.isEmpty()
        || fail(tr("cabinet \"%1\" has no numbers").arg(excerpt(found.first().label())));
}

bool MeasurementReader::answersTo(const Measurement &measurement, const MeasurementChoice &choice)
{
    return choice.line > 0 ? measurement.line == choice.line
                           : measurement.name.compare(choice.name.trimmed(), Qt::CaseInsensitive) == 0;
}

bool MeasurementReader::choose(const MeasurementChoice &choice, MeasurementPart part)
{
    if (choice.isEmpty()) {
        return true;
    }
    const auto isChosen = [&choice](const Measurement &measurement) { return answersTo(measurement, choice); };
    QVector<Measurement> &all = m_list.measurements;
    const auto chosen = std::find_if(all.constBegin(), all.constEnd(), isChosen);
    if (chosen == all.constEnd()) {
        return fail(choice.line > 0 ? tr("line %1 has no measurement to choose").arg(choice.line)
                                    : tr("no measurement is called \"%1\"").arg(excerpt(choice.name)));
    }
    const Measurement first = *chosen;
    for (Measurement &measurement : all) {
        const bool sameCabinet = measurement.cabinet == first.cabinet && measurement.row == first.row
            && measurement.column == first.column;
        if (isChosen(measurement)) {
            measurement.part = part;
        } else if (measurement.part == part && (choice.line <= 0 || sameCabinet)) {
            measurement.part = MeasurementPart::None;
        }
    }
    return true;
}

bool MeasurementReader::checkGamut()
{
    const QVector<CabinetMeasurements> cabinets = m_list.cabinets();
    // A wall of one cabinet is a wall: its white need not be there.
    if (m_options.isWall && !cabinets.isEmpty()) {
        return true;
    }
    if (cabinets.size() <= 1) {
        warnOfParts(m_list, QString());
        return m_failure.text.isEmpty();
    }
    warnOfCabinets(cabinets);
    const int before = int(m_warnings.size());
    for (int i = 0; i < cabinets.size() && m_warnings.size() < before + mostWarnings; ++i) {
        if (cabinets.at(i).list.measurements.isEmpty()) {
            continue; // its lines have been warned of
        }
        const Measurement &first = cabinets.at(i).list.measurements.first();
        QString where = first.cabinet.isEmpty() ? QString() : tr("cabinet \"%1\"").arg(excerpt(first.cabinet));
        if (first.row && first.column) {
            const QString position = tr("row %1, column %2").arg(*first.row).arg(*first.column);
            where = where.isEmpty() ? position : where + QStringLiteral(", ") + position;
        }
        warnOfParts(cabinets.at(i).list, where);
    }
    if (m_warnings.size() >= before + mostWarnings) {
        warn(tr("further cabinets are not checked: there are too many warnings"));
    }
    return true;
}

//! Of white alone, as uniformity is measured, nobody expects a gamut.
void MeasurementReader::warnOfCabinets(const QVector<CabinetMeasurements> &cabinets)
{
    const QVector<Measurement> &all = m_list.measurements;
    const auto isPrimary = [](const Measurement &measurement) {
        return std::find(primaryParts.begin(), primaryParts.end(), measurement.part) != primaryParts.end();
    };
    if (std::none_of(all.begin(), all.end(), isPrimary)) {
        return;
    }
    QStringList names;
    for (const CabinetMeasurements &cabinet : cabinets.mid(0, mostNamedCabinets)) {
        names.append(cabinet.label().isEmpty() ? QStringLiteral("–") : excerpt(cabinet.label()));
    }
    if (cabinets.size() > mostNamedCabinets) {
        names.append(QStringLiteral("…"));
    }
    warn(tr("%1 cabinets (%2): there is no measured gamut of all of them; choose a cabinet")
             .arg(cabinets.size())
             .arg(joined(names)));
}

//! \a where names the cabinet; empty: the list has no more than one.
void MeasurementReader::warnOfParts(const MeasurementList &list, const QString &where)
{
    QStringList missing;
    bool isWhiteMissing = false;
    bool isUsable = true;
    std::array<int, 6> firstLines{};
    for (const Measurement &measurement : list.measurements) {
        int &first = firstLines[std::size_t(measurement.part)];
        if (measurement.part == MeasurementPart::None) {
            continue;
        }
        const QString name = measurementPartName(measurement.part);
        if (first > 0 && measurement.part != MeasurementPart::Black) {
            isUsable = false;
            warn(tr("%1 is there more than once, first in line %2: there is no gamut; choose the line or the name that "
                    "is %1")
                     .arg(name)
                     .arg(first),
                place(measurement.line));
            return;
        }
        if (first > 0) {
            warn(tr("black is there more than once, first in line %1: none is used").arg(first),
                place(measurement.line));
            break;
        }
        first = measurement.line;
        if (!measurement.color && measurement.part != MeasurementPart::Black) {
            isUsable = false;
            warn(tr("%1 has no chromaticity: there is no gamut").arg(name), place(measurement.line));
        }
        if (measurement.color && measurement.luminance == 0.0 && measurement.part != MeasurementPart::Black) {
            warn(tr("%1 has a chromaticity but a luminance of 0").arg(name), place(measurement.line));
        }
    }
    int present = 0;
    for (const MeasurementPart part : primaryParts) {
        if (firstLines[std::size_t(part)] > 0) {
            ++present;
        } else {
            missing.append(measurementPartName(part));
        }
    }
    isWhiteMissing = firstLines[std::size_t(MeasurementPart::White)] == 0;
    if (present == 3 && isWhiteMissing) {
        warn(m_options.whiteIsSum
                ? tr("white is missing: the sum of red, green and blue is taken as white")
                : tr("white is missing: there is no gamut; choose a measurement as white, or ask for the sum of red, "
                     "green and blue"),
            where);
    } else if (present == 0 && isWhiteMissing && where.isEmpty()) {
        // Any colours may have been measured: such a list needs no choice.
        if (!isNameless()) {
            warn(tr("there is no gamut, as no measurement is recognised as red, green, blue or white; lines or names "
                    "can be chosen as these colours"));
        }
    } else if (present == 2 || (present < 2 && where.isEmpty())) {
        missing += isWhiteMissing ? QStringList{measurementPartName(MeasurementPart::White)} : QStringList();
        warn(tr("there is no gamut; missing: %1; choose the lines or the names that are these colours")
                 .arg(joined(missing)),
            where);
    }
    const bool shouldHaveGamut = isUsable && present == 3 && (!isWhiteMissing || m_options.whiteIsSum);
    if (const auto gamut = list.gamut(QString())) {
        for (const Problem &warning : warningsOfTheTriangle(gamut->getTargets())) {
            warn(warning.text, where);
        }
        const int whiteLine = firstLines[std::size_t(MeasurementPart::White)];
        for (const Problem &warning : warningsOfTheWhite(gamut->getTargets())) {
            warn(warning.text, whiteLine > 0 ? place(whiteLine) : where);
        }
    } else if (shouldHaveGamut) {
        if (where.isEmpty()) {
            fail(noTriangleText());
        } else {
            warn(noTriangleText(), where);
        }
    }
}

} // namespace gamutfiles
