// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_FOLLOWING_H
#define GAMUTVIEWER_FOLLOWING_H

#include "display/followedmeasurement.h"
#include "display/gamutfiles.h"
#include "following/followedinput.h"

#include <gamutfiles/latestmeasurements.h>
#include <gamutfiles/measurementstream.h>

#include <QTimer>

#include <memory>
#include <optional>

namespace gamutviewer {

/*!
 * \brief Reads a measurement while it is made, a little in each turn of the event loop, and keeps what it has come to.
 *
 * Nothing that is kept grows with the number of lines.
 */
class Following : public QObject {
    Q_OBJECT

public:
    /*! \brief As many lines are read at most before other events have their turn. */
    static constexpr int linesPerTurn = 256;
    /*!
     * \brief measured() comes no sooner after the one before: 60 of them are a second. It comes later where its slots
     * take longer.
     */
    static constexpr int frameMilliseconds = 16;

    Following(std::unique_ptr<FollowedInput> input, const MeasurementOptions &options, QObject *parent = nullptr);

    const FollowedInput &input() const { return *m_input; }
    /*! \brief How far the present text has been read. */
    const MeasurementStreamState &state() const { return m_stream->state(); }
    /*! \brief What the measurement has come to, also by cabinets. */
    const LatestMeasurements &latest() const { return *m_latest; }
    /*!
     * \brief What the measurement has come to for who looks at it. Its wall is that of
     * LatestMeasurements::wallInProgress() until the input ends.
     */
    FollowedMeasurement inProgress() const;
    /*! \brief The same as if the input had ended: a last line that has no end may be cut off. */
    FollowedMeasurement asIfEnded() const;
    /*! \brief Reads at once what has come in and awaits its turn. */
    void readWhatCame();
    /*! \brief Whether the unit has changed, so that what had been measured before was forgotten. */
    bool hasOtherUnit() const { return m_hasOtherUnit; }
    /*! \brief Whether there was not enough memory to go on: latest() stays what it came to before. */
    bool isMemoryShort() const { return m_isMemoryShort; }
    /*! \brief Reads no further, as there is not enough memory to show what it comes to. */
    void breakOff();
    /*! \brief How many lines came in the last second. */
    int linesPerSecond() const { return m_linesPerSecond; }
    /*! \brief The most lines that were read in one turn of the event loop. */
    int mostLinesInATurn() const { return m_mostLines; }

Q_SIGNALS:
    /*! \brief latest() has changed since the last time. */
    void measured();
    /*! \brief state(), linesPerSecond() or what is known of the input may have changed: a few times a second. */
    void stateChanged();

private:
    FollowedMeasurement madeOf(const LatestMeasurements &latest, const std::optional<DisplayWall> &wall) const;
    template <typename Action>
    void whileMemoryLasts(const Action &action);
    void readLines();
    int takeLines(int most);
    void begin();
    bool readPiece();
    void countLines();

    std::unique_ptr<FollowedInput> m_input;
    MeasurementOptions m_options;
    std::unique_ptr<MeasurementStream> m_stream;
    std::unique_ptr<LatestMeasurements> m_latest;
    QTimer m_turn;
    QTimer m_frame;
    QTimer m_count;
    bool m_isFinished = false;
    bool m_isMemoryShort = false;
    std::optional<LuminanceUnit> m_unit; // of what was measured last
    bool m_hasOtherUnit = false;
    int m_mostLines = 0;
    QVector<int> m_lines{0}; // of the last second, in parts of it; the present part last
    int m_linesPerSecond = 0;
};

} // namespace gamutviewer

#endif
