// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/latestmeasurements.h>

#include "cabinetkey_p.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <iterator>
#include <list>

namespace gamutfiles {

namespace {

constexpr std::array keptParts{MeasurementPart::Red, MeasurementPart::Green, MeasurementPart::Blue,
    MeasurementPart::White, MeasurementPart::Black};

//! Values by keys, of which those are forgotten that were set the longest ago.
template <typename Value>
class LatestByKey {
public:
    explicit LatestByKey(int most)
        : m_most(most)
    {
    }

    //! The value of \a key, the latest from now on; a new one when there was none.
    Value &touched(const QString &key)
    {
        const auto there = m_places.constFind(key);
        if (there != m_places.constEnd()) {
            m_values.splice(m_values.end(), m_values, *there);
        } else {
            m_values.push_back({key, Value()});
            m_places.insert(key, std::prev(m_values.end()));
            if (int(m_values.size()) > m_most) {
                m_places.remove(m_values.front().first);
                m_values.pop_front();
            }
        }
        return m_values.back().second;
    }
    const Value *find(const QString &key) const
    {
        const auto there = m_places.constFind(key);
        return there == m_places.constEnd() ? nullptr : &(*there)->second;
    }
    void clear()
    {
        m_places.clear();
        m_values.clear();
    }
    int size() const { return int(m_values.size()); }
    //! Keys and values, the latest last.
    const std::list<std::pair<QString, Value>> &all() const { return m_values; }

private:
    int m_most;
    std::list<std::pair<QString, Value>> m_values;
    QHash<QString, typename std::list<std::pair<QString, Value>>::iterator> m_places;
};

//! By MeasurementPart.
using PartMeasurements = std::array<std::optional<Measurement>, 6>;

QString colorKey(const Measurement &measurement)
{
    const QString cabinet = cabinetKey(measurement);
    if (measurement.part != MeasurementPart::None) {
        return cabinet + QChar(1) + QString::number(int(measurement.part));
    }
    // A nameless one is like no other.
    return measurement.name.isEmpty() ? cabinet + QChar(2) + QString::number(measurement.line)
                                      : cabinet + QChar(3) + measurement.name.simplified().toCaseFolded();
}

CabinetMeasurements cabinetOf(const Measurement &measurement)
{
    return {measurement.cabinet, measurement.row, measurement.column, {}};
}

//! \a measurement as it is shown among those of other cabinets.
Measurement pointOf(Measurement measurement)
{
    const QString label = cabinetOf(measurement).label();
    if (!label.isEmpty()) {
        measurement.name = measurement.name.isEmpty() ? label : label + QLatin1Char(' ') + measurement.name;
    }
    measurement.part = MeasurementPart::None;
    return measurement;
}

void forgetCabinet(Measurement &measurement)
{
    measurement.cabinet.clear();
    measurement.row.reset();
    measurement.column.reset();
}

} // namespace

class LatestMeasurements::Private {
public:
    MeasurementList listOf(const PartMeasurements &parts) const
    {
        MeasurementList list;
        list.unit = unit;
        list.whiteIsSum = whiteIsSum;
        for (const MeasurementPart part : keptParts) {
            if (const auto &measurement = parts[std::size_t(part)]) {
                list.measurements.append(*measurement);
            }
        }
        return list;
    }

    bool whiteIsSum = false;
    LuminanceUnit unit = LuminanceUnit::NotKnown;
    LatestByKey<Measurement> points{mostLatestPoints};
    LatestByKey<PartMeasurements> cabinets{mostLatestCabinets};
    QString shownCabinet; // the key of the last that has a gamut; null: none has
};

LatestMeasurements::LatestMeasurements(bool whiteIsSum)
    : d(std::make_unique<Private>())
{
    d->whiteIsSum = whiteIsSum;
}

LatestMeasurements::~LatestMeasurements() = default;

void LatestMeasurements::setUnit(LuminanceUnit unit)
{
    if (d->unit != unit) {
        d->unit = unit;
        clear();
    }
}

void LatestMeasurements::add(const Measurement &measurement)
{
    if (measurement.color) {
        d->points.touched(colorKey(measurement)) = measurement;
    }
    const bool isKept = measurement.part == MeasurementPart::Black
        || (measurement.part != MeasurementPart::None && measurement.color);
    if (!isKept) {
        return;
    }
    const QString cabinet = cabinetKey(measurement);
    PartMeasurements &parts = d->cabinets.touched(cabinet);
    parts[std::size_t(measurement.part)] = measurement;
    if (d->listOf(parts).gamut(QString())) {
        d->shownCabinet = cabinet;
    }
}

void LatestMeasurements::clear()
{
    d->points.clear();
    d->cabinets.clear();
    d->shownCabinet = QString();
}

MeasurementList LatestMeasurements::list() const
{
    const PartMeasurements *parts = d->cabinets.find(d->shownCabinet);
    QString shown = d->shownCabinet;
    if (!parts && d->cabinets.size() > 0) {
        shown = d->cabinets.all().back().first;
        parts = &d->cabinets.all().back().second;
    }
    MeasurementList list = d->listOf(parts ? *parts : PartMeasurements());
    for (const auto &[key, point] : d->points.all()) {
        const bool isShown = parts && point.part != MeasurementPart::None && cabinetKey(point) == shown;
        if (!isShown) {
            list.measurements.append(pointOf(point));
        }
    }
    std::for_each(list.measurements.begin(), list.measurements.end(), forgetCabinet);
    return list;
}

QVector<CabinetMeasurements> LatestMeasurements::cabinets() const
{
    QVector<CabinetMeasurements> result;
    bool hasNames = false;
    for (const auto &[key, parts] : d->cabinets.all()) {
        MeasurementList list = d->listOf(parts);
        CabinetMeasurements cabinet = cabinetOf(list.measurements.first());
        hasNames = hasNames || !cabinet.cabinet.isEmpty() || cabinet.row || cabinet.column;
        cabinet.list = std::move(list);
        result.append(cabinet);
    }
    return hasNames ? result : QVector<CabinetMeasurements>();
}

int LatestMeasurements::pointCount() const
{
    return d->points.size();
}

int LatestMeasurements::cabinetCount() const
{
    return d->cabinets.size();
}

} // namespace gamutfiles
