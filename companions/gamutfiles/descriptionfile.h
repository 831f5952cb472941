// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_DESCRIPTIONFILE_H
#define GAMUTFILES_DESCRIPTIONFILE_H

#include <gamutfiles/displaydescription.h>
#include <gamutfiles/outcome.h>

#include <QByteArray>
#include <QString>

namespace gamutfiles {

/*! \brief Longer display descriptions are refused: one is a few kilobytes, unless it has many points. */
constexpr int maximumDescriptionBytes = 16 * 1024 * 1024;

/*! \brief Descriptions of more gamuts are refused: to draw and to compare them would take seconds. */
constexpr int maximumDescriptionGamuts = 20000;

/*!
 * \brief Reads a display description: JSON (RFC 8259) in UTF-8, with or without a byte order mark.
 *
 * It is taken whole or not at all; the failure names the first thing that is wrong and where it stands.
 */
GAMUTFILES_EXPORT Outcome<DisplayDescription> readDescription(const QByteArray &utf8);

/*! \brief Reads the display description in the file \a fileName. */
GAMUTFILES_EXPORT Outcome<DisplayDescription> readDescriptionFile(const QString &fileName);

/*!
 * \brief \a description as the JSON text that readDescription() reads.
 *
 * Reading it gives the same description again, every number to the last bit. What is empty is left out. Of each colour
 * Y, x and y are written; the rest derives from them. The lines are indented, unless that would make it longer than
 * maximumDescriptionBytes.
 */
GAMUTFILES_EXPORT QByteArray descriptionText(const DisplayDescription &description);

/*!
 * \brief Writes \a description to \a fileName; the file is replaced only when the new one is complete.
 *
 * A description that is too large to be read again is not written.
 *
 * Returns what went wrong, or nothing.
 */
GAMUTFILES_EXPORT QString writeDescription(const DisplayDescription &description, const QString &fileName);

} // namespace gamutfiles

#endif // GAMUTFILES_DESCRIPTIONFILE_H
