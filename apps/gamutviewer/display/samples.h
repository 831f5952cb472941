// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_SAMPLES_H
#define GAMUTVIEWER_SAMPLES_H

#include <QString>

namespace gamutviewer {

/*!
 * \brief The sample description: beside the program in a build tree, or else where it is installed relative to
 * the program.
 */
QString sampleFile();

} // namespace gamutviewer

#endif
