// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_PLATFORM_H
#define GAMUTVIEWER_PLATFORM_H

namespace gamutviewer {

/*!
 * \brief Has Qt do without a display when there is none, or when the arguments ask for nothing that needs one.
 *
 * To be called before the application exists, since Qt ends the process when it finds no display. Returns whether
 * windows can be seen.
 */
bool choosePlatform(int argc, const char *const *argv);

} // namespace gamutviewer

#endif
