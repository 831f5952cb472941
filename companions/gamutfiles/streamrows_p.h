// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_STREAMROWS_P_H
#define GAMUTFILES_STREAMROWS_P_H

#include "measurementreader_p.h"

#include <gamutfiles/measurementstream.h>

#include <QString>
#include <QVector>

#include <functional>
#include <utility>

namespace gamutfiles {

/*! \brief A line of text. */
struct NumberedLine {
    qint64 number = 0; //!< from 1
    QString text;
};

/*! \brief The lines below one header, read as they come by the steps that read a whole list. */
class StreamRows : public MeasurementReader {
public:
    /*! \brief Takes the line of a row that cannot be read, and why. */
    using Refusal = std::function<void(qint64, const Problem &)>;

    using MeasurementReader::MeasurementReader;

    //! Finds the header in \a lines; false where there is none, where what follows it is wanting, and where a quote is
    //! open. Measurements above it are told to \a refuse.
    bool begin(const QVector<NumberedLine> &lines, const Refusal &refuse);
    //! Whether \a line is a header by itself.
    bool isHeader(const NumberedLine &line);
    //! Reads \a row, or else the rows that it decides how to read. What cannot be read is told to \a refuse.
    QVector<Measurement> take(const CsvRow &row, const Refusal &refuse);
    //! The rows that no later one can decide any more are refused.
    void refuseHeld(const Refusal &refuse);

    QChar separator() const { return m_table.separator; }
    const Problem &failure() const { return m_failure; }
    const QVector<Problem> &warnings() const { return m_warnings; }
    LuminanceUnit unit() const { return m_list.unit; }
    const MeasurementRecognition &recognized() const { return m_list.recognized; }
    int heldRows() const { return int(m_held.size()); }
    //! What is known of the rows that are held.
    QVector<Measurement> heldUnread();
    //! The rows below the header that begin() was given.
    QVector<CsvRow> takeFirstRows() { return std::exchange(m_firstRows, {}); }

    //! Keeps what is known of \a row, which is not read, for takeUnread().
    void keepUnread(const CsvRow &row);
    //! What is known of \a row, which has no end; nothing in a list without names.
    std::optional<UnfinishedMeasurement> unfinished(const CsvRow &row);
    //! What is known of rows that are not read, since the last call.
    QVector<Measurement> takeUnread() { return std::exchange(m_unread, {}); }

    static QString placeOf(qint64 line) { return place(int(line)); }
    //! Why a line whose quote is never closed is not read.
    static QString unterminatedQuote();
    static bool isChosen(const Measurement &measurement, const MeasurementChoice &choice)
    {
        return answersTo(measurement, choice);
    }

private:
    Measurement unread(const CsvRow &row);
    bool contradictsItself(const CsvRow &row) const;
    void read(const CsvRow &row, QVector<Measurement> &found, const Refusal &refuse);

    QVector<CsvRow> m_firstRows;
    QVector<Measurement> m_unread;
    QVector<CsvRow> m_held; // until the decimal sign is known
};

} // namespace gamutfiles

#endif
