// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_CSV_P_H
#define GAMUTFILES_CSV_P_H

#include <gamutfiles/outcome.h>

#include <QByteArray>
#include <QStringList>
#include <QVector>

namespace gamutfiles {

/*! \brief One record of a CSV text. */
struct CsvRow {
    int line = 1; //!< where it begins
    QStringList fields;
};

/*! \brief The records of a CSV text, without empty lines and lines that begin with #. */
struct CsvTable {
    QChar separator;
    QVector<CsvRow> rows;
};

/*!
 * \brief Reads \a utf8 by RFC 4180, with or without a byte order mark, with any line ends.
 *
 * Fields are separated by tabs, semicolons or commas: the first of the three, in this order, that the first record has
 * outside of quotes. Refused are text that is not UTF-8, and a quote that is never closed.
 */
Outcome<CsvTable> readCsv(const QByteArray &utf8);

} // namespace gamutfiles

#endif
