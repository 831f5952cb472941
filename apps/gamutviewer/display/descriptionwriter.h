// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DESCRIPTIONWRITER_H
#define GAMUTVIEWER_DESCRIPTIONWRITER_H

#include <QByteArray>
#include <QString>

namespace gamutviewer {

struct DisplayDescription;

/*!
 * \brief \a description as the JSON text that DescriptionReader reads.
 *
 * Reading it gives the same description again, every number to the last bit. What is empty is left out where the
 * format allows that. Of each colour Y, x and y are written; the rest derives from them.
 */
QByteArray descriptionText(const DisplayDescription &description);

/*!
 * \brief Writes \a description to \a fileName; the file is replaced only when the new one is complete.
 *
 * Returns what went wrong, or nothing.
 */
QString writeDescription(const DisplayDescription &description, const QString &fileName);

} // namespace gamutviewer

#endif
