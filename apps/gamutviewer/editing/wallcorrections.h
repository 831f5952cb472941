// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLCORRECTIONS_H
#define GAMUTVIEWER_WALLCORRECTIONS_H

#include "display/gamutfiles.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/*!
 * \file
 * \brief The corrections of a wall or a display as window and command line write them.
 *
 * Failures and notes are lines for the standard error stream, without the name of the program.
 */
namespace gamutviewer {

/*! \brief How corrections are written. */
enum class CorrectionsFormat {
    Csv, //!< correctionsCsv()
    Json, //!< correctionsJson()
    Cube //!< a pair of tables, matrixCube() and gainsCube(), for one cabinet or display
};

/*! \brief The format that the suffix of \a fileName names; nothing if it names none. */
std::optional<CorrectionsFormat> correctionsFormat(const QString &fileName);

/*! \brief A file to write. */
struct CorrectionsOutput {
    QString fileName; //!< where to
    QByteArray bytes; //!< what
};

/*! \brief The files that corrections are written to, and what a user must know of them. */
struct CorrectionsOutputs {
    QVector<CorrectionsOutput> files; //!< one, or the two of a pair of tables
    QStringList notes; //!< for example, for which luminance they are
};

/*!
 * \brief The corrections with which the wall of \a description shows its target, or, without a wall, its measured gamut
 * or else its original.
 *
 * \param cabinet the only cabinet of the wall that is wanted, by its label or its name, in any case; empty: all
 * \param fileName names the format by its suffix. A pair of tables is written to two files beside it.
 */
Outcome<CorrectionsOutputs> corrections(
    const DisplayDescription &description, const QString &cabinet, const QString &fileName);

} // namespace gamutviewer

#endif
