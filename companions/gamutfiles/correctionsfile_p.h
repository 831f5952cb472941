// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_CORRECTIONSFILE_P_H
#define GAMUTFILES_CORRECTIONSFILE_P_H

#include <gamutfiles/correctionsfile.h>

#include <QSet>
#include <QString>

namespace gamutfiles {

constexpr int correctionsVersion = 1;

/*! \brief \a value with the fewest digits that are read back as the same double. */
QString exactText(double value);

/*! \brief \a text as a JSON string with its quotes, in one line. */
QString jsonString(const QString &text);

/*! \brief How files write \a unit: as a display description, or "unknown". */
QString correctionsUnitName(LuminanceUnit unit);
/*! \brief The unit that correctionsUnitName() writes as \a name; nothing if there is none. */
std::optional<LuminanceUnit> correctionsUnit(const QString &name);

/*! \brief What the matrices of \a corrections are for, as CSV texts say it: a line each, without "# ". */
QStringList targetLines(const WallCorrections &corrections);

/*! \brief What keeps \a cabinet from standing in a list after cabinets that are called \a labels; empty: nothing. */
QString whyNotListed(const CabinetCorrection &cabinet, const QSet<QString> &labels);

/*! \brief The corrections in a CSV text. */
Outcome<WallCorrections> readCorrectionsCsv(const QByteArray &utf8);
/*! \brief The corrections in a JSON text. */
Outcome<WallCorrections> readCorrectionsJson(const QByteArray &utf8);

} // namespace gamutfiles

#endif
