// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_FILENOTES_H
#define GAMUTVIEWER_FILENOTES_H

#include "display/gamutfiles.h"

#include <QString>
#include <QVector>

namespace gamutviewer {

/*! \brief Something that a file says of a display besides its gamut. */
struct FileFact {
    QString fileName; //!< as it was given
    DisplayFact fact; //!< what it says
};

/*! \brief How a measurement list was understood. */
struct FileRecognition {
    QString fileName; //!< as it was given
    MeasurementRecognition recognized; //!< what was recognised
};

/*! \brief What is known of files besides the gamuts that they bring. */
struct FileNotes {
    QVector<FileFact> facts; //!< in the order of the files
    QVector<FileRecognition> lists; //!< of the measurement lists, in the order of the files

    bool isEmpty() const { return facts.isEmpty() && lists.isEmpty(); }
    FileNotes &operator+=(const FileNotes &other);
};

/*! \brief \a notes for people: below the name of each file a line for each statement. */
QString fileNotesText(const FileNotes &notes);

} // namespace gamutviewer

#endif
