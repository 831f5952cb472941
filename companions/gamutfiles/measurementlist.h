// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_MEASUREMENTLIST_H
#define GAMUTFILES_MEASUREMENTLIST_H

#include <gamutfiles/outcome.h>

#include <gamutmodel/colorgamut.h>

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

namespace gamutfiles {

/*! \brief One line of a measurement list. */
struct Measurement {
    QString name; //!< as the list calls it
    Model::Target color; //!< in the unit of the list
};

/*! \brief What a meter measured, in the order of the file. */
struct MeasurementList {
    QVector<Measurement> measurements; //!< every line, in this order

    /*!
     * \brief The gamut that the list holds, named \a gamutName: the measurements called red, green, blue and white, or
     * R, G, B and W, in any case; nothing unless each of the four is there once.
     */
    GAMUTFILES_EXPORT std::optional<Model::ColorGamut> gamut(const QString &gamutName) const;
    /*! \brief The measurements that gamut() does not use: all of them when there is no gamut. */
    GAMUTFILES_EXPORT QVector<Measurement> others() const;
};

/*!
 * \brief Reads a measurement list: CSV (RFC 4180) in UTF-8 with the columns name, Y, x, y.
 *
 * A header line that names the columns is optional; with one, the columns may stand in any order and there may be
 * others. Fields are separated by commas, semicolons or tabs, whichever the first line has; with semicolons and tabs
 * a decimal comma is understood too. Empty lines and lines that begin with # are skipped. Errors name line and column.
 * A list whose gamut() has primaries that span no triangle is refused.
 */
GAMUTFILES_EXPORT Outcome<MeasurementList> readMeasurementList(const QByteArray &utf8);

} // namespace gamutfiles

#endif // GAMUTFILES_MEASUREMENTLIST_H
