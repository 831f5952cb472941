// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "following/following.h"

#include <QElapsedTimer>

#include <algorithm>
#include <new>
#include <numeric>

namespace gamutviewer {

namespace {

constexpr int pieceBytes = 16 * 1024;
//! So long a turn may last before it is broken off: lines that cannot be read take longer than others.
constexpr int turnMilliseconds = 4;
//! Between two looks at the clock.
constexpr int linesPerLook = 16;
constexpr int countMilliseconds = 250;
constexpr int countsPerSecond = 1000 / countMilliseconds;
//! What measured() brings about may take a third of the time, as for a wall of many cabinets.
constexpr int pausePerTimeTaken = 2;
constexpr int longestPauseMilliseconds = 1000;

} // namespace

Following::Following(std::unique_ptr<FollowedInput> input, const MeasurementOptions &options, QObject *parent)
    : QObject(parent)
    , m_input(std::move(input))
    , m_options(options)
{
    begin();
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, [this] { whileMemoryLasts([this] { readLines(); }); });
    m_frame.setSingleShot(true);
    m_frame.setTimerType(Qt::PreciseTimer);
    m_frame.setInterval(frameMilliseconds);
    connect(&m_frame, &QTimer::timeout, this, [this] {
        QElapsedTimer time;
        time.start();
        Q_EMIT measured();
        const int pause = int(std::min<qint64>(pausePerTimeTaken * time.elapsed(), longestPauseMilliseconds));
        m_frame.setInterval(std::max(pause, frameMilliseconds));
    });
    m_count.setInterval(countMilliseconds);
    connect(&m_count, &QTimer::timeout, this, &Following::countLines);
    connect(m_input.get(), &FollowedInput::arrived, this, [this] { m_turn.start(0); });
    connect(m_input.get(), &FollowedInput::restarted, this, [this] {
        whileMemoryLasts([this] {
            begin();
            m_frame.start();
        });
    });
    m_count.start();
    m_turn.start(0);
}

void Following::begin()
{
    m_stream = std::make_unique<MeasurementStream>(m_options);
    m_latest = std::make_unique<LatestMeasurements>(m_options.whiteIsSum);
    m_unit.reset();
    m_hasOtherUnit = false;
}

FollowedMeasurement Following::inProgress() const
{
    return m_isFinished ? asIfEnded() : madeOf(*m_latest, m_latest->wallInProgress(m_stream->unfinished()));
}

FollowedMeasurement Following::asIfEnded() const
{
    const auto line = m_stream->unfinished();
    const auto held = m_stream->held();
    if (!line && held.isEmpty()) {
        return madeOf(*m_latest, m_latest->wall());
    }
    LatestMeasurements ended(*m_latest); // the lines may be read after all
    for (const Measurement &measurement : held) {
        ended.add(measurement);
    }
    if (line) {
        ended.addUnfinished(*line);
    }
    return madeOf(ended, ended.wall());
}

FollowedMeasurement Following::madeOf(const LatestMeasurements &latest, const std::optional<DisplayWall> &wall) const
{
    FollowedMeasurement result;
    GamutFile &file = result.file;
    file.content = GamutFile::Content::Measurements;
    file.name = nameByFile(m_input->fileName());
    if (wall) {
        file.measurements = latest.listBeside(*wall);
    } else {
        file.measurements = latest.list();
        result.cabinet = latest.listedCabinet();
        if (!result.cabinet.isEmpty()) {
            file.name = QStringLiteral("%1: %2").arg(file.name, result.cabinet); // it is not that of the display
        }
    }
    file.measurements.recognized = m_stream->state().recognized;
    result.wall = wall;
    result.isOfCabinets = m_options.cabinet.isEmpty() && latest.namesCabinets();
    return result;
}

//! Whether there was a piece to read.
bool Following::readPiece()
{
    const QByteArray piece = m_input->read(pieceBytes);
    if (!piece.isEmpty()) {
        m_stream->feed(piece);
        if (!piece.endsWith('\n') && !m_frame.isActive()) {
            m_frame.start(); // what a line measures that is being written is awaited
        }
        return true;
    }
    if (m_input->hasEnded() && !m_isFinished) {
        m_isFinished = true;
        m_stream->finish(MeasurementStream::LastLine::MayBeCutOff);
        m_frame.start(); // what was being measured will not change any more
        return true;
    }
    return false;
}

//! Of the lines that were being read when memory was short, some may be lost: nothing may be made of what follows them.
template <typename Action>
void Following::whileMemoryLasts(const Action &action)
{
    if (m_isMemoryShort) {
        return;
    }
    try {
        action();
    } catch (const std::bad_alloc &) {
        breakOff();
    }
}

void Following::breakOff()
{
    m_isMemoryShort = true;
    m_frame.stop();
}

//! How many lines were read.
int Following::takeLines(int most)
{
    const qint64 before = m_stream->state().lines;
    const auto measurements = m_stream->read(most);
    const LuminanceUnit unit = m_stream->state().unit;
    m_latest->setUnit(unit);
    if (!measurements.isEmpty()) {
        m_hasOtherUnit = m_hasOtherUnit || (m_unit && *m_unit != unit);
        m_unit = unit;
    }
    for (const Measurement &measurement : measurements) {
        m_latest->add(measurement);
    }
    if (!measurements.isEmpty() && !m_frame.isActive()) {
        m_frame.start();
    }
    return int(m_stream->state().lines - before);
}

void Following::readWhatCame()
{
    whileMemoryLasts([this] {
        while (m_stream->hasLines()) {
            takeLines(linesPerLook);
        }
    });
}

void Following::readLines()
{
    QElapsedTimer time;
    time.start();
    int lines = 0;
    bool hasMore = true;
    while (lines < linesPerTurn && time.elapsed() < turnMilliseconds) {
        hasMore = m_stream->hasLines() || readPiece();
        if (!hasMore) {
            break;
        }
        lines += takeLines(std::min(linesPerLook, linesPerTurn - lines));
    }
    m_mostLines = std::max(m_mostLines, lines);
    m_lines.last() += lines;
    if (hasMore) {
        m_turn.start(0);
    }
}

void Following::countLines()
{
    whileMemoryLasts([this] {
        m_linesPerSecond = std::accumulate(m_lines.begin(), m_lines.end(), 0);
        m_lines.append(0);
        m_lines = m_lines.mid(std::max(0, int(m_lines.size()) - countsPerSecond));
    });
    Q_EMIT stateChanged();
}

} // namespace gamutviewer
