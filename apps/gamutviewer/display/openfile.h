// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_OPENFILE_H
#define GAMUTVIEWER_OPENFILE_H

#include "display/displaydescription.h"
#include "display/measurementlist.h"
#include "display/outcome.h"

#include <QStringList>

namespace gamutviewer {

/*! \brief What a file brings: a whole description, or something to add to one. */
struct OpenedFile {
    enum class Content {
        Description, //!< takes the place of what is open
        DeclaredGamut, //!< from an ICC profile or an EDID
        Measurements
    };

    Content content = Content::Description;
    QString name; //!< of the file, without folder and suffix
    DisplayDescription description;
    Model::ColorGamut gamut; //!< named after the display, or else the file
    MeasurementList measurements;

    /*!
     * \brief What \a open becomes with this file.
     *
     * - A description takes its place.
     * - A declared gamut becomes its declared gamut.
     * - Measurements called red, green, blue and white become its measured gamut, all others its measure points.
     *
     * A gamut whose name is taken by another, be it a published one, gets a number; the one that had the part before
     * stays in the list of gamuts. When \a open is empty (it has no original), the gamut that was added is also the
     * original, "Rec.709" the target, and every published gamut a standard.
     */
    DisplayDescription appliedTo(const DisplayDescription &open) const;
};

/*! \brief Longer files are refused unread. */
constexpr int maximumFileBytes = 32 * 1024 * 1024;

/*!
 * \brief Reads the file \a fileName, of whichever format its content is: display description (JSON), measurement list
 * (CSV), ICC profile or EDID.
 *
 * The error is one line that names the file and the reason.
 */
Outcome<OpenedFile> openFile(const QString &fileName);

/*! \brief What several files make together. */
struct OpenedFiles {
    DisplayDescription description;
    QString descriptionFile; //!< the one that is a display description; empty when none is
};

/*! \brief Opens \a fileNames and applies each in turn, the description, of which there may be one, first. */
Outcome<OpenedFiles> openFiles(const QStringList &fileNames);

/*! \brief File name patterns for a dialog, such as "*.json", of every format that openFile() reads. */
QStringList openFilePatterns();

} // namespace gamutviewer

#endif
