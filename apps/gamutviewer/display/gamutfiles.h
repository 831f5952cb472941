// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GAMUTFILES_H
#define GAMUTVIEWER_GAMUTFILES_H

#include <gamutfiles/descriptionfile.h>
#include <gamutfiles/filebytes.h>
#include <gamutfiles/gamutfile.h>
#include <gamutfiles/oneline.h>
#include <gamutfiles/tolerancesfile.h>

/*!
 * \file
 * \brief The records of the companion gamutfiles by their own names: the program is about them throughout.
 */
namespace gamutviewer {

using namespace gamutfiles;

} // namespace gamutviewer

#endif
