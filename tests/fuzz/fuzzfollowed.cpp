// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Measurement lists that come in pieces, as those do that are followed.
#include "listoptions.h"
#include "promises.h"

#include <gamutfiles/latestmeasurements.h>
#include <gamutfiles/measurementstream.h>

#include <QHash>

#include <algorithm>

using namespace gamutfiles;

namespace {

constexpr std::size_t choices = 2; // bytes before the list
constexpr int looks = 8; // at least, at the wall of a longer list so far: each takes as long as to read many pieces

bool isSameValue(const Measurement &a, const Measurement &b)
{
    return a.luminance == b.luminance && a.row == b.row && a.column == b.column
        && a.color.has_value() == b.color.has_value()
        && (!a.color || (a.color->x == b.color->x && a.color->y == b.color->y));
}

bool isSame(const Measurement &a, const Measurement &b)
{
    return a.name == b.name && a.part == b.part && a.line == b.line && a.isUnread == b.isUnread
        && a.cabinet == b.cabinet && isSameValue(a, b);
}

//! A line that was read as it came has the value that it has in \a list as a whole, where that can be read. Names are
//! not compared: which column has them, and how their letters are stored, can show later only.
void requireValuesOfWhole(const QVector<Measurement> &followed, const QByteArray &list, std::uint8_t stated)
{
    const auto whole = readMeasurementList(list, fuzz::listOptions(stated));
    if (!whole) {
        return;
    }
    QHash<int, Measurement> byLine;
    for (const Measurement &measurement : whole->measurements) {
        byLine.insert(measurement.line, measurement);
    }
    for (const Measurement &measurement : followed) {
        const auto found = byLine.constFind(measurement.line);
        fuzz::require(measurement.isUnread || found == byLine.constEnd() || isSameValue(measurement, *found),
            "a line has the same value, followed and as part of a whole");
    }
}

void requireMeasurement(const Measurement &measurement)
{
    fuzz::require(std::isfinite(measurement.luminance) && measurement.luminance >= 0.0, "a luminance is finite");
    fuzz::require(!measurement.isUnread || (!measurement.color && measurement.luminance == 0.0),
        "of what was not read no number is known");
    if (measurement.color) {
        fuzz::requireColor(*measurement.color);
    }
}

void requireWall(const std::optional<DisplayWall> &wall)
{
    if (!wall) {
        return;
    }
    fuzz::require(!wall->cabinets.empty() || !wall->incomplete.empty(), "a wall has cabinets");
    for (const WallCabinet &cabinet : wall->cabinets) {
        for (const Model::Target *color : {&cabinet.red, &cabinet.green, &cabinet.blue}) {
            fuzz::requireColor(*color);
        }
    }
    for (const IncompleteCabinet &cabinet : wall->incomplete) {
        fuzz::require(!cabinet.reason.isEmpty(), "it is said why nothing is known of a cabinet");
    }
}

//! Reads a list that comes in pieces of \a pieceBytes; what was read of it.
QVector<Measurement> readInPieces(const QByteArray &list, int pieceBytes, std::uint8_t stated)
{
    MeasurementStream stream(fuzz::listOptions(stated));
    LatestMeasurements latest(stated & 1);
    QVector<Measurement> found;
    const auto read = [&] {
        while (stream.hasLines()) {
            const auto measurements = stream.read(7);
            latest.setUnit(stream.state().unit);
            for (const Measurement &measurement : measurements) {
                requireMeasurement(measurement);
                latest.add(measurement);
            }
            found += measurements;
        }
    };
    const int between = list.size() / pieceBytes / looks;
    int pieces = 0;
    for (int at = 0; at < list.size(); at += pieceBytes) {
        stream.feed(list.mid(at, pieceBytes));
        read();
        if (pieces++ % std::max(1, between) == 0) {
            requireWall(latest.wallInProgress(stream.unfinished()));
        }
        fuzz::require(stream.state().heldBytes <= maximumStreamLineBytes + pieceBytes, "few bytes are held");
        fuzz::require(stream.state().heldLines <= maximumHeldLines, "few lines are held");
    }
    stream.finish(stated & 64 ? MeasurementStream::LastLine::MayBeCutOff : MeasurementStream::LastLine::IsWhole);
    read();
    requireWall(latest.wallInProgress(stream.unfinished()));

    const MeasurementStreamState &state = stream.state();
    fuzz::require(state.heldLines == 0 && state.heldBytes == 0, "nothing is held in the end");
    fuzz::require(state.measurements + state.notRead <= state.lines, "a line is counted once");
    if (state.notRead > 0) {
        fuzz::requireMessage(state.lastNotRead);
    }
    LatestMeasurements ended(latest);
    if (const auto unfinished = stream.unfinished()) {
        fuzz::require(unfinished->measurement.isUnread, "what has no end is not read");
        ended.addUnfinished(*unfinished);
    }
    requireWall(ended.wall());
    for (const Measurement &measurement : ended.list().measurements) {
        requireMeasurement(measurement);
    }
    if (const auto gamut = ended.list().gamut(QStringLiteral("list"))) {
        fuzz::requireGamut(*gamut);
    }
    return found;
}

} // namespace

//! The first byte is for the options, the second for the size of pieces, the others are the list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < choices) {
        return 0;
    }
    const QByteArray list = fuzz::bytes(data + choices, size - choices);
    const auto whole = readInPieces(list, std::max(int(list.size()), 1), data[0]);
    const auto inPieces = readInPieces(list, 1 + data[1] / 4, data[0]);
    fuzz::require(whole.size() == inPieces.size() && std::equal(whole.begin(), whole.end(), inPieces.begin(), isSame),
        "it makes no difference in what pieces a list comes");
    requireValuesOfWhole(whole, list, data[0]);
    return 0;
}
