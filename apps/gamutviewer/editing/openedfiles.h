// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_OPENEDFILES_H
#define GAMUTVIEWER_OPENEDFILES_H

#include "display/gamutfiles.h"

#include <QStringList>

namespace gamutviewer {

/*!
 * \brief What \a open becomes with \a file.
 *
 * - A description takes its place.
 * - A declared gamut becomes its declared gamut.
 * - Measurements called red, green, blue and white become its measured gamut, all others its measure points.
 *
 * A gamut whose name is taken by another, be it a published one, gets a number; the one that had the part before
 * stays in the list of gamuts. When \a open is empty (it has no original), the gamut that was added is also the
 * original, "Rec.709" the target, and every published gamut a standard.
 */
DisplayDescription withFile(const DisplayDescription &open, const GamutFile &file);

/*! \brief What several files make together. */
struct OpenedFiles {
    DisplayDescription description;
    QString descriptionFile; //!< the one that is a display description; empty when none is
};

/*! \brief Reads \a fileNames and applies each in turn, the description, of which there may be one, first. */
Outcome<OpenedFiles> openFiles(const QStringList &fileNames);

} // namespace gamutviewer

#endif
