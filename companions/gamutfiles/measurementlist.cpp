// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/measurementlist.h>

#include "cabinetkey_p.h"
#include "wallofcabinets_p.h"

#include <gamutfiles/displaywall.h>

#include <gamutmodel/gamutcoverage.h>

#include <QHash>

#include <algorithm>
#include <array>
#include <iterator>

namespace gamutfiles {

namespace {

//! Red, green, blue and white: indices of measurements; -1: none.
using GamutIndices = std::array<int, 4>;

bool isOfSameCabinet(const Measurement &a, const Measurement &b)
{
    return a.cabinet == b.cabinet && a.row == b.row && a.column == b.column;
}

bool hasOneCabinet(const MeasurementList &list)
{
    const auto isOfFirst
        = [&list](const Measurement &measurement) { return isOfSameCabinet(measurement, list.measurements.first()); };
    return list.measurements.isEmpty()
        || (std::all_of(list.measurements.begin(), list.measurements.end(), isOfFirst)
            && std::all_of(list.withoutNumbers.begin(), list.withoutNumbers.end(), isOfFirst));
}

//! Nothing unless each is there once and all colours have been read; the white may be missing when it is the sum.
std::optional<GamutIndices> gamutIndices(const MeasurementList &list)
{
    GamutIndices indices{-1, -1, -1, -1};
    for (int i = 0; i < list.measurements.size(); ++i) {
        const Measurement &measurement = list.measurements.at(i);
        if (measurement.part != MeasurementPart::None && measurement.isUnread) {
            return std::nullopt;
        }
        const int role = int(measurement.part) - int(MeasurementPart::Red);
        if (role < 0 || role > 3) {
            continue;
        }
        int &index = indices[std::size_t(role)];
        if (index >= 0 || !measurement.color) {
            return std::nullopt;
        }
        index = i;
    }
    const bool hasPrimaries = indices[0] >= 0 && indices[1] >= 0 && indices[2] >= 0;
    return hasPrimaries && (indices[3] >= 0 || list.whiteIsSum) ? std::make_optional(indices) : std::nullopt;
}

//! Tristimulus values add up (Grassmann's laws).
Model::Target sum(const Model::Targets &targets)
{
    const double X = targets.red.X + targets.green.X + targets.blue.X;
    const double Y = targets.red.Y + targets.green.Y + targets.blue.Y;
    const double Z = targets.red.Z + targets.green.Z + targets.blue.Z;
    const double all = X + Y + Z;
    return all > 0.0 ? Model::Target::fromYxy(Y, X / all, Y / all) : Model::Target();
}

//! Nothing without a black that has a luminance.
std::optional<double> brightestBlack(const MeasurementList &list)
{
    double most = 0.0;
    for (const Measurement &measurement : list.measurements) {
        most = measurement.part == MeasurementPart::Black ? std::max(most, measurement.luminance) : most;
    }
    return most > 0.0 ? std::make_optional(most) : std::nullopt;
}

std::optional<Model::Targets> gamutTargets(const MeasurementList &list)
{
    if (!hasOneCabinet(list)) {
        return std::nullopt;
    }
    const auto indices = gamutIndices(list);
    if (!indices) {
        return std::nullopt;
    }
    const auto color = [&](std::size_t role) { return *list.measurements.at((*indices)[role]).color; };
    Model::Targets targets{color(0), color(1), color(2), {}};
    targets.white = (*indices)[3] >= 0 ? color(3) : sum(targets);
    return Model::spanTriangle(targets) ? std::make_optional(targets) : std::nullopt;
}

} // namespace

std::optional<DisplayGamut> MeasurementList::gamut(const QString &gamutName) const
{
    const auto targets = gamutTargets(*this);
    if (!targets) {
        return std::nullopt;
    }
    DisplayGamut result({gamutName.toStdString(), *targets}, unit);
    if (const auto measured = black()) {
        result.black = lightOfBlack(*measured);
        result.blackLuminance = luminanceOfBlack(*measured);
    } else {
        result.blackLuminance = brightestBlack(*this); // of several, which is right is not known
    }
    return result;
}

QVector<Measurement> MeasurementList::others() const
{
    if (!gamutTargets(*this)) {
        return measurements;
    }
    QVector<Measurement> result;
    result.reserve(measurements.size());
    std::copy_if(
        measurements.begin(), measurements.end(), std::back_inserter(result), [](const Measurement &measurement) {
            return measurement.part == MeasurementPart::None || measurement.part == MeasurementPart::Black;
        });
    return result;
}

std::optional<Measurement> MeasurementList::black() const
{
    const auto isBlack = [](const Measurement &measurement) { return measurement.part == MeasurementPart::Black; };
    const auto first = std::find_if(measurements.begin(), measurements.end(), isBlack);
    if (first == measurements.end() || std::any_of(std::next(first), measurements.end(), isBlack)) {
        return std::nullopt;
    }
    return *first;
}

QString CabinetMeasurements::label() const
{
    return cabinetLabel(cabinet, row, column);
}

QVector<CabinetMeasurements> MeasurementList::cabinets() const
{
    const auto hasPlace = [](const Measurement &measurement) {
        return !measurement.cabinet.isEmpty() || measurement.row || measurement.column;
    };
    if (std::none_of(measurements.begin(), measurements.end(), hasPlace)
        && std::none_of(withoutNumbers.begin(), withoutNumbers.end(), hasPlace)) {
        return {};
    }
    QVector<CabinetMeasurements> result;
    QHash<QString, int> indices;
    const auto indexOf = [&](const Measurement &measurement) {
        const QString key = cabinetKey(measurement);
        auto index = indices.constFind(key);
        if (index == indices.constEnd()) {
            index = indices.insert(key, int(result.size()));
            MeasurementList list;
            list.unit = unit;
            list.whiteIsSum = whiteIsSum;
            list.recognized = recognized;
            result.append({measurement.cabinet, measurement.row, measurement.column, list});
        }
        return *index;
    };
    for (const Measurement &measurement : measurements) {
        result[indexOf(measurement)].list.measurements.append(measurement);
    }
    for (const Measurement &measurement : withoutNumbers) {
        indexOf(measurement);
    }
    return result;
}

} // namespace gamutfiles
