// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_COLUMNNAMES_P_H
#define GAMUTFILES_COLUMNNAMES_P_H

#include <gamutfiles/measurementoptions.h>

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace gamutfiles {

/*! \brief What a column of a measurement list gives. */
enum class ColumnPart {
    Name,
    Luminance, //!< named as luminance
    Y, //!< the luminance among the tristimulus values
    x,
    y,
    u, //!< CIE 1976 u'
    v, //!< CIE 1976 v'
    X,
    Z,
    Cabinet,
    Row,
    Column,
    Number, //!< a running number or an identifier, of a measurement or of a cabinet
    Note, //!< remarks, which can be the names of the colours
    Unit //!< the unit of the luminance, in each line
};
constexpr int columnPartCount = 15; //!< how many there are

/*! \brief How a column is called in messages, in their language. */
QString columnPartName(ColumnPart part);

/*! \brief What the header of a column says. */
struct ColumnName {
    ColumnPart part = ColumnPart::Name;
    MeasuredUnit unit = MeasuredUnit::NotStated; //!< of a luminance
    QString unitText; //!< as the header writes it; empty when it does not
    bool isUnitOnly = false; //!< whether the header is a unit and nothing else
};

/*! \brief Whether \a text is of digits, points and minus signs alone, as most fields of a list are: it names no column.
 */
bool isPlainNumber(const QString &text);

/*!
 * \brief What the header \a text names; nothing when it is none of the names in use.
 *
 * Case matters only between x and X, y and Y, z and Z.
 */
std::optional<ColumnName> columnName(const QString &text);

/*!
 * \brief Whether the header \a text names a coordinate or a tristimulus value of the CIE 1964 (10°) observer: "x10",
 * "Y10 (cd/m²)", "X (10°)".
 *
 * columnName() names nothing for it.
 */
bool isOfOtherObserver(const QString &text);

/*! \brief The \a headers of all columns as isTenthOfSeries() compares them. */
QSet<QString> comparedHeaders(const QStringList &headers);

/*!
 * \brief Whether the header \a text, such as "x10", only counts, as there is a ninth one among \a headers: "x9".
 *
 * Then it does not name the 10° observer. \a headers are those that comparedHeaders() gives.
 */
bool isTenthOfSeries(const QString &text, const QSet<QString> &headers);

/*! \brief Whether the line of text \a line says that the CIE 1964 (10°) observer was used: "Observer: 10°". */
bool statesOtherObserver(const QString &line);

/*! \brief The unit that \a text is; NotKnown when it is none. */
MeasuredUnit measuredUnit(const QString &text);

} // namespace gamutfiles

#endif
