// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_TOLERANCESFILE_H
#define GAMUTFILES_TOLERANCESFILE_H

#include <gamutfiles/gamutfiles_export.h>
#include <gamutfiles/outcome.h>
#include <gamutmodel/diagram.h>
#include <gamutmodel/tolerances.h>

#include <QByteArray>
#include <QString>
#include <QVector>

namespace gamutfiles {

/*! \brief How much of a standard a display has to cover. */
struct StandardCoverage {
    QString standard; //!< name of the gamut
    Model::Diagram diagram = Model::Diagram::Cie1976; //!< on which areas are compared: Cie1931 or Cie1976
    double coverage = 0.0; //!< the smallest part of the standard's area, from 0 to 1
};

/*! \brief Limits that a display is to keep to, with what a user must know of them. */
struct Tolerances {
    QString name; //!< for people
    QString source; //!< where the numbers come from
    Model::Tolerances limits; //!< between what is measured and the target
    Model::Diagram coverageDiagram = Model::Diagram::Cie1976; //!< of limits.coverage: Cie1931 or Cie1976
    QVector<StandardCoverage> standards; //!< each pair of standard and diagram once
};

/*! \brief Longer tolerance files are refused: one is some hundred bytes. */
constexpr int maximumTolerancesBytes = 1024 * 1024;

/*!
 * \brief Reads tolerances: JSON (RFC 8259) in UTF-8, with or without a byte order mark, as docs/tolerances.md describes
 * it.
 *
 * The file is taken whole or not at all; the failure names the first thing that is wrong and where it stands. A file
 * without any limit is refused.
 */
GAMUTFILES_EXPORT Outcome<Tolerances> readTolerances(const QByteArray &utf8);

/*! \brief Reads the tolerances in the file \a fileName. */
GAMUTFILES_EXPORT Outcome<Tolerances> readTolerancesFile(const QString &fileName);

/*!
 * \brief \a tolerances as the JSON text that readTolerances() reads.
 *
 * Reading it gives the same tolerances again, every number to the last bit. What is not set is left out.
 */
GAMUTFILES_EXPORT QByteArray tolerancesText(const Tolerances &tolerances);

} // namespace gamutfiles

#endif // GAMUTFILES_TOLERANCESFILE_H
