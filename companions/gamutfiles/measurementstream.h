// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_MEASUREMENTSTREAM_H
#define GAMUTFILES_MEASUREMENTSTREAM_H

#include <gamutfiles/gamutfiles_export.h>
#include <gamutfiles/measurementlist.h>
#include <gamutfiles/measurementoptions.h>
#include <gamutfiles/outcome.h>

#include <QByteArray>
#include <QVector>

#include <memory>

namespace gamutfiles {

/*! \brief Longer lines of a list that is followed are not read. */
constexpr int maximumStreamLineBytes = 64 * 1024;
/*! \brief As many lines are kept at most until it is clear how a list that is followed is to be read. */
constexpr int maximumHeldLines = 32;

/*! \brief How far a measurement list that is still being written has been read. */
struct MeasurementStreamState {
    qint64 lines = 0; //!< that have come, of every kind
    qint64 measurements = 0; //!< that were read
    qint64 notRead = 0; //!< lines that should have been measurements and could not be read
    Problem lastNotRead; //!< why the last of them could not be read, and where it stands; without a text: none yet
    /*!
     * \brief What is wanting to read the lines that are held: their header, say. Without a text: nothing is held.
     */
    Problem waitsFor;
    int heldLines = 0; //!< kept until it is clear how they are to be read; at most maximumHeldLines
    int heldBytes = 0; //!< that have been fed and not been read
    MeasurementRecognition recognized; //!< how lines are understood at present; without the parts
    LuminanceUnit unit = LuminanceUnit::NotKnown; //!< of the luminances at present
    QVector<Problem> warnings; //!< what a user must know of the present header
};

/*! \brief What a line says that has no end yet, and may end in the middle of a name or a number. */
struct UnfinishedMeasurement {
    Measurement measurement; //!< isUnread, without a part; what is known of the name and the cabinet
    QVector<MeasurementPart> parts; //!< the parts that it may play; empty: none
    bool isColorKnown = false; //!< whether the line has its whole name: there is one part then, or none
    bool isCabinetKnown = false; //!< whether it has the whole cabinet, row and column, as far as the list has them
};

/*!
 * \brief Reads a measurement list as it is written, line by line.
 *
 * What is understood is what readMeasurementList() understands; but a line is a record, so no field has a line break
 * in it, and what the whole of a list would tell is taken from the lines up to now:
 * - The separator and the columns are those of the first lines that have a header, or else of the first line that
 *   reads as name, Y, x, y. A further header, as a tool writes it when it is started again, begins anew.
 * - The decimal sign is decided by the first line that tells it; until then lines that could be read in two ways are
 *   held.
 * - The full level of levels without a unit is decided by the highest up to now.
 * - A column that only counts ("No.", "id") is not taken for that of a cabinet.
 *
 * Lines that cannot be read are counted and passed over. No line is kept after it has been read; the memory that is
 * needed does not grow with their number.
 */
class GAMUTFILES_EXPORT MeasurementStream {
public:
    /*! \brief What \a options state is not recognised. A decimal sign other than point and comma is no statement. */
    explicit MeasurementStream(const MeasurementOptions &options = MeasurementOptions());
    ~MeasurementStream();

    /*! \brief Takes \a bytes, which begin and end anywhere in a line or in a character. */
    void feed(const QByteArray &bytes);
    /*! \brief What is made of a last line that has no line end. */
    enum class LastLine {
        IsWhole, //!< it is a line like the others
        MayBeCutOff //!< it is not read: what wrote it may have ended in the middle of a number
    };
    /*! \brief Tells that no more bytes come. */
    void finish(LastLine lastLine = LastLine::IsWhole);
    /*!
     * \brief Reads at most \a most further lines of what was fed; the measurements in them, in their order.
     *
     * A line that cannot be read, but names a colour, gives one that isUnread. A line without numbers, such as n/a,
     * that names a colour of a cabinet gives one without a part: there is such a cabinet.
     *
     * All of them are in the unit that state() tells then.
     */
    QVector<Measurement> read(int most);
    /*! \brief Whether read() has lines to read. */
    bool hasLines() const;
    /*!
     * \brief The last line, where it has no end: the one that is being written, or after finish() the one that may be
     * cut off. Nothing without such a line, and in a list without names.
     */
    std::optional<UnfinishedMeasurement> unfinished() const;
    /*!
     * \brief The colours of the lines that are held, as of lines that are not read: what they are if nothing more
     * comes.
     */
    QVector<Measurement> held() const;
    /*! \brief How far the list has been read. */
    const MeasurementStreamState &state() const;

private:
    Q_DISABLE_COPY(MeasurementStream)
    class GAMUTFILES_NO_EXPORT Private;
    std::unique_ptr<Private> d;
};

} // namespace gamutfiles

#endif // GAMUTFILES_MEASUREMENTSTREAM_H
