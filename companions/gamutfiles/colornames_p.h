// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_COLORNAMES_P_H
#define GAMUTFILES_COLORNAMES_P_H

#include <gamutfiles/measurementoptions.h>

#include <QString>
#include <QVector>

#include <optional>

namespace gamutfiles {

/*! \brief The drive level in the name of a measurement. */
struct ColorLevel {
    double value = 0.0;
    std::optional<double> full; //!< the full level in the same unit: 100 for "50 %", 255 for "128/255"; else not stated
    bool hasDecimals = false; //!< "1.0", not "1"
};

/*! \brief A colour that the name of a measurement says, without regard to its level. */
struct ColorName {
    MeasurementPart part = MeasurementPart::None; //!< None: another colour, or something that is no colour
    std::optional<ColorLevel> level; //!< nothing: the name has none
};

/*!
 * \brief The colour in \a name: red, green, blue, white or black in English, German, French, Spanish, Italian,
 * Portuguese or Chinese, or its initial, with or without a level ("Red 100 %", "W 50", "R255", "blue 0,0,255"). A name
 * with anything else in it is another colour.
 */
ColorName colorName(const QString &name);

/*! \brief The colours of which \a beginning may be the beginning of a name, or the name; all for none. */
QVector<MeasurementPart> possibleParts(const QString &beginning);

/*!
 * \brief The full level that the levels \a levels without a stated one have in common: the largest of them if it is
 * 255, 1023, 4095 or 65535, if it is 100, or if it is 1 with decimals. Nothing otherwise: they could be on any scale.
 */
std::optional<double> commonFullLevel(const QVector<ColorLevel> &levels);

/*!
 * \brief The part that the measurement called \a name plays: that of its colour at the full level, that of black at
 * level 0. \a common is the full level of the levels without a stated one, if it is known.
 */
MeasurementPart playedPart(const ColorName &name, const std::optional<double> &common);

} // namespace gamutfiles

#endif
