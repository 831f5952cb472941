// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_TEXTREPORT_H
#define GAMUTVIEWER_TEXTREPORT_H

#include "display/assessment.h"
#include "display/gamutfiles.h"
#include "display/report.h"

#include <QByteArray>

#include <optional>

namespace gamutviewer {

/*! \brief The verdict and its grounds: a line each, with the judgement in front. */
QByteArray verdictText(const Assessment &assessment);

/*!
 * \brief The report for people: the gamuts of \a description, what they cover of the standards, the verdict, a table of
 * the cabinets of a wall, those first that fail, and \a notes. In UTF-8, with a line end at the end.
 */
QByteArray textReport(const DisplayDescription &description, const std::optional<Tolerances> &tolerances = std::nullopt,
    const ReportNotes &notes = ReportNotes());

} // namespace gamutviewer

#endif
