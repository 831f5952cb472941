// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLCOMMAND_H
#define GAMUTVIEWER_WALLCOMMAND_H

#include "display/gamutfiles.h"
#include "editing/openedfiles.h"

#include <QString>
#include <QStringList>

/*!
 * \file
 * \brief What window and command line do with a wall: read it, choose a target and fit that to it.
 *
 * Failures and notes are lines for the standard error stream, without the name of the program.
 */
namespace gamutviewer {

/*!
 * \brief \a opened with the wall in the file \a fileName: a measurement list with a column for the cabinet, read by
 * \a options without their cabinet, or a display description with a wall.
 *
 * A wall that was there gives way, with a warning. Of a description only the wall is taken.
 */
Outcome<OpenedFiles> withWall(const OpenedFiles &opened, const QString &fileName, MeasurementOptions options);

/*!
 * \brief The only one of \a fileNames that is a measurement list from which a wall of several cabinets can be made;
 * empty if none is, or if several are. Only what can be read twice is looked at: no standard input, no pipes.
 *
 * What has been read for it by \a options is added to \a read, if that is given: long lists take their time.
 */
QString wallAmong(const QStringList &fileNames, const MeasurementOptions &options, FilesRead *read = nullptr);

/*!
 * \brief \a description with the gamut \a gamutName for its target: one of its own, or a published one, in any case
 * of letters where that is clear.
 */
Outcome<DisplayDescription> withChosenTarget(const DisplayDescription &description, const QString &gamutName);

/*! \brief A description with a changed target, and what to tell of it. */
struct FittedTarget {
    DisplayDescription description; //!< with the target as it is now
    QStringList notes; //!< what became of the target
    Model::GamutFit fit{}; //!< what was lost of the one that there was
};

/*! \brief \a description with its target fitted to its wall. A failure without either, or if it cannot be fitted. */
Outcome<FittedTarget> withTargetFittedToWall(const DisplayDescription &description);

} // namespace gamutviewer

#endif
