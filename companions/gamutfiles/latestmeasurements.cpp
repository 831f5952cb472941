// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/latestmeasurements.h>

#include "cabinetkey_p.h"
#include "wallofcabinets_p.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <iterator>
#include <list>
#include <vector>

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
    LatestByKey(const LatestByKey &other)
        : m_most(other.m_most)
        , m_values(other.m_values)
    {
        for (auto value = m_values.begin(); value != m_values.end(); ++value) {
            m_places.insert(value->first, value);
        }
    }
    LatestByKey &operator=(const LatestByKey &) = delete;

    //! The value of \a key, the latest from now on; a new one when there was none.
    Value &touched(const QString &key)
    {
        const auto there = m_places.constFind(key);
        if (there != m_places.constEnd()) {
            m_values.splice(m_values.end(), m_values, *there);
        } else {
            // Memory can be short: there is no value without its place.
            std::list<std::pair<QString, Value>> added{{key, Value()}};
            m_places.insert(key, added.begin());
            m_values.splice(m_values.end(), added);
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

struct KeptCabinet {
    CabinetMeasurements identity; // without its measurements
    qint64 number = 0; // in the order in which the cabinets came first, from 1
    PartMeasurements parts;
};

bool isPrimary(MeasurementPart part)
{
    return part == MeasurementPart::Red || part == MeasurementPart::Green || part == MeasurementPart::Blue;
}

bool hasPrimaries(const PartMeasurements &parts)
{
    return std::all_of(keptParts.begin(), keptParts.end(), [&parts](MeasurementPart part) {
        const auto &measurement = parts[std::size_t(part)];
        return !isPrimary(part) || (measurement && measurement->color);
    });
}

//! Whether both mean the same for a wall.
bool isSameColor(const Measurement &a, const Measurement &b)
{
    return a.luminance == b.luminance && a.isUnread == b.isUnread && a.color.has_value() == b.color.has_value()
        && (!a.color || (a.color->Y == b.color->Y && a.color->x == b.color->x && a.color->y == b.color->y));
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

    CabinetMeasurements withMeasurements(const KeptCabinet &cabinet) const
    {
        CabinetMeasurements result = cabinet.identity;
        result.list = listOf(cabinet.parts);
        return result;
    }

    std::optional<DisplayWall> madeWall() const
    {
        std::vector<const KeptCabinet *> kept;
        kept.reserve(std::size_t(cabinets.size()));
        int named = 0;
        bool isAnyComplete = false;
        for (const auto &[key, cabinet] : cabinets.all()) {
            kept.push_back(&cabinet);
            named += cabinet.identity.label().isEmpty() ? 0 : 1;
            isAnyComplete = isAnyComplete || hasPrimaries(cabinet.parts);
        }
        if (named < 2 || !isAnyComplete) {
            return std::nullopt;
        }
        std::sort(
            kept.begin(), kept.end(), [](const KeptCabinet *a, const KeptCabinet *b) { return a->number < b->number; });
        QVector<CabinetMeasurements> measured;
        measured.reserve(int(kept.size()));
        for (const KeptCabinet *cabinet : kept) {
            measured.append(withMeasurements(*cabinet));
        }
        const auto made = wallOfCabinets(measured, unit);
        return made ? std::make_optional(*made) : std::nullopt;
    }

    bool isAnyMeasured(MeasurementPart part) const
    {
        return std::any_of(cabinets.all().begin(), cabinets.all().end(),
            [part](const auto &cabinet) { return cabinet.second.parts[std::size_t(part)].has_value(); });
    }

    //! Whether \a cabinet lacks what another one has.
    bool isAwaited(const KeptCabinet &cabinet, MeasurementPart part) const
    {
        return !cabinet.parts[std::size_t(part)] && isAnyMeasured(part);
    }

    //! The cabinets of which a line may be that does not have all of the name.
    std::vector<CabinetMeasurements> cabinetsBeginningWith(const QString &name) const
    {
        std::vector<CabinetMeasurements> found;
        for (const auto &[key, cabinet] : cabinets.all()) {
            if (cabinet.identity.cabinet.startsWith(name, Qt::CaseInsensitive)) {
                found.push_back(cabinet.identity);
            }
        }
        return found;
    }

    bool whiteIsSum = false;
    LuminanceUnit unit = LuminanceUnit::NotKnown;
    LatestByKey<Measurement> points{mostLatestPoints};
    LatestByKey<KeptCabinet> cabinets{mostLatestCabinets};
    qint64 lastNumber = 0; // KeptCabinet::number
    QString shownCabinet; // the key of the last that has a gamut; null: none has
    std::optional<DisplayWall> wall; // of the cabinets, while isWallCurrent
    bool isWallCurrent = true;
};

LatestMeasurements::LatestMeasurements(bool whiteIsSum)
    : d(std::make_unique<Private>())
{
    d->whiteIsSum = whiteIsSum;
}

LatestMeasurements::LatestMeasurements(const LatestMeasurements &other)
    : d(std::make_unique<Private>(*other.d))
{
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
    const bool isNamed = !cabinetOf(measurement).label().isEmpty();
    if (measurement.part == MeasurementPart::None && !isNamed) {
        return;
    }
    const QString key = cabinetKey(measurement);
    KeptCabinet &cabinet = d->cabinets.touched(key);
    if (cabinet.number == 0) {
        cabinet.identity = cabinetOf(measurement);
        cabinet.number = ++d->lastNumber;
        d->isWallCurrent = false;
    }
    auto &kept = cabinet.parts[std::size_t(measurement.part)];
    if (measurement.part == MeasurementPart::None || (measurement.isUnread && kept)) {
        return;
    }
    d->isWallCurrent = d->isWallCurrent && kept && isSameColor(*kept, measurement);
    kept = measurement;
    if (d->listOf(cabinet.parts).gamut(QString())) {
        d->shownCabinet = key;
    }
}

void LatestMeasurements::addUnfinished(const UnfinishedMeasurement &line)
{
    const auto addTo = [&](const CabinetMeasurements &cabinet, MeasurementPart part) {
        Measurement measurement = line.measurement;
        measurement.cabinet = cabinet.cabinet;
        measurement.row = cabinet.row;
        measurement.column = cabinet.column;
        measurement.part = part;
        add(measurement);
    };
    if (line.isCabinetKnown) {
        addTo(cabinetOf(line.measurement), MeasurementPart::None); // also one that comes now
    }
    const auto cabinets = line.isCabinetKnown ? std::vector<CabinetMeasurements>{cabinetOf(line.measurement)}
                                              : d->cabinetsBeginningWith(line.measurement.cabinet);
    for (const CabinetMeasurements &cabinet : cabinets) {
        for (const MeasurementPart part : line.parts) {
            // Of which cabinet it is, is known, or it can only be what others have.
            if (line.isCabinetKnown || line.isColorKnown || d->isAnyMeasured(part)) {
                addTo(cabinet, part);
            }
        }
    }
}

void LatestMeasurements::clear()
{
    d->points.clear();
    d->cabinets.clear();
    d->shownCabinet = QString();
    d->isWallCurrent = false;
}

MeasurementList LatestMeasurements::list() const
{
    const KeptCabinet *cabinet = d->cabinets.find(d->shownCabinet);
    QString shown = d->shownCabinet;
    if (!cabinet && d->cabinets.size() > 0) {
        shown = d->cabinets.all().back().first;
        cabinet = &d->cabinets.all().back().second;
    }
    MeasurementList list = d->listOf(cabinet ? cabinet->parts : PartMeasurements());
    for (const auto &[key, point] : d->points.all()) {
        const bool isShown = cabinet && point.part != MeasurementPart::None && cabinetKey(point) == shown;
        if (!isShown) {
            list.measurements.append(pointOf(point));
        }
    }
    std::for_each(list.measurements.begin(), list.measurements.end(), forgetCabinet);
    return list;
}

QString LatestMeasurements::listedCabinet() const
{
    const KeptCabinet *cabinet = d->cabinets.find(d->shownCabinet);
    if (!cabinet || !d->listOf(cabinet->parts).gamut(QString())) {
        return QString(); // it has had one, but what was measured since makes none
    }
    const QString &name = cabinet->identity.cabinet;
    const auto &all = d->cabinets.all();
    const auto same = std::count_if(
        all.begin(), all.end(), [&name](const auto &other) { return other.second.identity.cabinet == name; });
    return !name.isEmpty() && same == 1 ? name : cabinet->identity.label();
}

const std::optional<DisplayWall> &LatestMeasurements::wall() const
{
    if (!d->isWallCurrent) {
        d->wall = d->madeWall();
        d->isWallCurrent = true;
    }
    return d->wall;
}

std::optional<DisplayWall> LatestMeasurements::wallInProgress(const std::optional<UnfinishedMeasurement> &line) const
{
    std::optional<DisplayWall> result = wall();
    const auto await = [&](const KeptCabinet &cabinet) {
        const auto inWall = std::find_if(result->cabinets.begin(), result->cabinets.end(),
            [label = cabinet.identity.label()](const WallCabinet &other) { return other.label() == label; });
        if (inWall == result->cabinets.end() || result->cabinets.size() < 2) {
            return;
        }
        const auto position = inWall->row && inWall->column
            ? std::make_optional(Model::GridPosition{*inWall->row, *inWall->column})
            : std::nullopt;
        result->incomplete.push_back({inWall->name, position, QStringLiteral("it is being measured")});
        result->cabinets.erase(inWall);
    };
    if (!result) {
        return result;
    }
    const KeptCabinet &last = d->cabinets.all().back().second;
    if (d->isAwaited(last, MeasurementPart::White) || d->isAwaited(last, MeasurementPart::Black)) {
        await(last);
    }
    const KeptCabinet *writing
        = line && line->isCabinetKnown ? d->cabinets.find(cabinetKey(line->measurement)) : nullptr;
    const auto mayCome = [&](MeasurementPart part) {
        return line->isColorKnown ? !writing->parts[std::size_t(part)] : d->isAwaited(*writing, part);
    };
    if (writing && std::any_of(line->parts.begin(), line->parts.end(), mayCome)) {
        await(*writing);
    }
    return result;
}

MeasurementList LatestMeasurements::listBeside(const DisplayWall &shown) const
{
    QSet<QString> complete;
    for (const WallCabinet &cabinet : shown.cabinets) {
        complete.insert(cabinet.label());
    }
    MeasurementList list = d->listOf(PartMeasurements());
    for (const auto &[key, point] : d->points.all()) {
        const KeptCabinet *cabinet = d->cabinets.find(cabinetKey(point));
        const bool isInWall
            = cabinet && point.part != MeasurementPart::None && complete.contains(cabinet->identity.label());
        if (!isInWall) {
            list.measurements.append(pointOf(point));
        }
    }
    std::for_each(list.measurements.begin(), list.measurements.end(), forgetCabinet);
    return list;
}

bool LatestMeasurements::namesCabinets() const
{
    const auto &all = d->cabinets.all();
    return std::any_of(
        all.begin(), all.end(), [](const auto &kept) { return !kept.second.identity.label().isEmpty(); });
}

QVector<CabinetMeasurements> LatestMeasurements::cabinets() const
{
    QVector<CabinetMeasurements> result;
    bool hasNames = false;
    for (const auto &[key, kept] : d->cabinets.all()) {
        const CabinetMeasurements cabinet = d->withMeasurements(kept);
        if (!cabinet.list.measurements.isEmpty()) {
            hasNames = hasNames || !cabinet.label().isEmpty();
            result.append(cabinet);
        }
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
