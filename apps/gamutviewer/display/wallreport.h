// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLREPORT_H
#define GAMUTVIEWER_WALLREPORT_H

#include "display/gamutfiles.h"

#include <gamutmodel/gamutfit.h>

#include <QJsonObject>

#include <optional>

namespace gamutviewer {

struct WallAssessment;

/*!
 * \brief The report on \a wall: what \a assessment says of it and of each cabinet; docs/gamut-viewer.md describes the
 * keys. Without an assessment, as where there is no target, only what is measured. \a done is the
 * fit that made the target what it is.
 */
QJsonObject wallReport(const DisplayWall &wall, const WallAssessment *assessment,
    const std::optional<Model::GamutFit> &done = std::nullopt);

} // namespace gamutviewer

#endif
