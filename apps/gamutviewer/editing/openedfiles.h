// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_OPENEDFILES_H
#define GAMUTVIEWER_OPENEDFILES_H

#include "display/filenotes.h"
#include "display/gamutfiles.h"
#include "editing/gamutroles.h"

#include <gamutmodel/gamutfit.h>

#include <QHash>
#include <QStringList>

#include <functional>
#include <optional>

namespace gamutviewer {

/*! \brief What a user must know of a file that was opened. */
struct FileWarning {
    QString fileName; //!< as it was given
    Problem problem; //!< what, and where in the file
    bool isRemark = false; //!< whether it tells what was done, and warns of nothing

    /*! \brief As one line: the file, the place and the text. */
    QString message() const { return problem.message(fileName); }
};

/*! \brief A file that has been read, and the part that its gamut is to play. */
struct ReadFile {
    QString fileName; //!< as it was given
    GamutFile file; //!< what it brings
    QVector<Problem> warnings; //!< of its reader
    std::optional<GamutRole> role; //!< of its gamut, if it has one; none: it is only added to the list of gamuts
    std::optional<DisplayWall> wall{}; //!< of the cabinets of a list, if they are to be the wall of the display
};

/*! \brief How one file is read. */
using FileReader = std::function<Outcome<GamutFile>(const QString &fileName)>;

/*!
 * \brief Reads \a fileNames by \a reader, each with its usual part; the display description, of which there may be one,
 * is first.
 */
Outcome<QVector<ReadFile>> readFiles(const QStringList &fileNames, const FileReader &reader);

/*!
 * \brief Whether \a file is a measurement list of which only the user can say what it means: one that has colours of a
 * gamut but does not make one, since a colour is there twice or is missing or there are several cabinets, or whose unit
 * is not known.
 */
bool needsChoice(const GamutFile &file);

/*! \brief The gamut that \a file brings; nothing for a description, and for measurements that make none. */
std::optional<DisplayGamut> gamutOf(const GamutFile &file);

/*! \brief The part of gamutOf() that follows from where it comes from: declared or measured. */
std::optional<GamutRole> usualRole(const GamutFile &file);

/*!
 * \brief \a open with \a file added, its gamut in \a role.
 *
 * Nothing else is assumed: a declared or measured gamut is neither the original nor the target. A gamut whose name is
 * taken by another, be it a published one, gets a number; the same numbers in another unit are another gamut, but a
 * unit that was not known is taken over. The gamut that had the part before stays in the list of gamuts. Measurements
 * other than those of the gamut take the place of the measure points. The gamuts of a description are added without a
 * part; where \a open is empty, the description takes its place.
 */
DisplayDescription withFile(const DisplayDescription &open, const GamutFile &file, std::optional<GamutRole> role);

/*!
 * \brief \a open with \a added: its wall in place of the one that was there, or else as withFile() of its file.
 *
 * The measurements of a wall are no points of the display besides.
 */
DisplayDescription withFile(const DisplayDescription &open, const ReadFile &added);

/*!
 * \brief \a file with the wall that its list makes; what the reader of walls warns of comes after the other warnings.
 * A failure for what makes none.
 */
Outcome<ReadFile> asWall(const ReadFile &file);

/*! \brief What a user must know before \a added becomes a part of \a open: that it is of another display, say. */
QVector<Problem> remarksOnAdding(const DisplayDescription &open, const ReadFile &added);

/*! \brief What several files make together. */
struct OpenedFiles {
    DisplayDescription description; //!< with everything
    QString descriptionFile; //!< the one that is a display description; empty when none is
    DisplayDescription inDescriptionFile; //!< what that one has, without the additions
    QStringList fileNames; //!< all of them
    QVector<FileWarning> warnings; //!< of their readers, and about what the additions change
    FileNotes notes; //!< what the files say besides their gamuts, and how lists were understood
    std::optional<Model::GamutFit> fit; //!< what the target has lost that was fitted to the wall after opening
    bool needsChoice = false; //!< as needsChoice() says of one of them
    bool hasLists = false; //!< whether one of them is a measurement list
};

/*! \brief What \a files, from readFiles(), make when nothing else is open. */
OpenedFiles openedAlone(const QVector<ReadFile> &files);

/*! \brief What \a open becomes with \a files. The warnings are those of the readers alone. */
OpenedFiles openedWith(const DisplayDescription &open, const QVector<ReadFile> &files);

/*! \brief What reading files has come to, by their names. */
using FilesRead = QHash<QString, Outcome<GamutFile>>;

/*!
 * \brief Reads \a fileNames, measurement lists by \a options, and opens them alone. What is in \a read has been read by
 * the same options, and is not read again.
 */
Outcome<OpenedFiles> openFiles(const QStringList &fileNames, const MeasurementOptions &options = MeasurementOptions(),
    const FilesRead &read = FilesRead());

} // namespace gamutviewer

#endif
