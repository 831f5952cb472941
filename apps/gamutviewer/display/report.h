// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_REPORT_H
#define GAMUTVIEWER_REPORT_H

#include "display/filenotes.h"
#include "display/gamutfiles.h"

#include <gamutmodel/gamutfit.h>

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace gamutviewer {

/*! \brief What is known of the files that were read, besides the description that they make. */
struct ReportNotes : FileNotes {
    QStringList warnings; //!< each as one line: the file, the place and the text
    QStringList remarks; //!< what was done, and nothing to be warned of; each as one line
    std::optional<Model::GamutFit> fit; //!< what the wished target lost when the present one was made of it
    bool needsChoice = false; //!< whether a measurement list leaves open what of it the display is judged by
};

/*!
 * \brief Everything that the viewer works out of \a description; docs/gamut-viewer.md describes its keys.
 *
 * Of each gamut: its colours with u', v', colour temperature and Duv, its areas, its coverage of and area ratio to
 * every standard, in x, y and in u', v'; whether the original can show the target, and what the target gives up; the
 * verdict, with \a tolerances where there are any; and \a notes.
 */
QJsonObject report(const DisplayDescription &description, const std::optional<Tolerances> &tolerances = std::nullopt,
    const ReportNotes &notes = ReportNotes());

/*! \brief The report as a JSON text in UTF-8 that ends with a line end. */
QByteArray reportText(const DisplayDescription &description, const std::optional<Tolerances> &tolerances = std::nullopt,
    const ReportNotes &notes = ReportNotes());

} // namespace gamutviewer

#endif
