// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_SAMPLES_H
#define GAMUTVIEWER_SAMPLES_H

#include <QString>
#include <QStringList>

namespace gamutviewer {

/*!
 * \brief The sample description: beside the program in a build tree, or else where it is installed relative to
 * the program.
 */
QString sampleFile();

/*! \brief The measurement list of a simulated wall that comes with the program. */
QString sampleWallFile();

/*! \brief The files of tolerances that come with the program, in the order of their names. */
QStringList shippedTolerances();

} // namespace gamutviewer

#endif
