// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_CSV_P_H
#define GAMUTFILES_CSV_P_H

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace gamutfiles {

/*! \brief One record of a CSV text. */
struct CsvRow {
    int line = 1; //!< where it begins
    QStringList fields;
};

/*!
 * \brief The records of a CSV text, without empty lines and a line that names the separator; apart from them, the lines
 * that begin with #.
 */
struct CsvTable {
    QChar separator;
    QVector<CsvRow> rows;
    QVector<CsvRow> comments; //!< the lines that begin with #, without it
    int unterminatedLine = 0; //!< where the record begins, not among \a rows, that has a quote never closed; 0: none
};

/*!
 * \brief Reads \a text by RFC 4180, with any line ends.
 *
 * Fields are separated by \a separator, or else by the character that a first line such as "sep=;" names, or else by
 * tabs, semicolons or commas: the one that finds the most records with three numbers or more. If none finds any it is
 * the space if this does, any number of them counting as one; otherwise the first of the three, in this order, that the
 * first record has outside of quotes.
 */
CsvTable readCsv(const QString &text, std::optional<QChar> separator = {});

} // namespace gamutfiles

#endif
