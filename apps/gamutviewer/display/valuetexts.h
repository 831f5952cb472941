// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_VALUETEXTS_H
#define GAMUTVIEWER_VALUETEXTS_H

#include <ceiechart/diagram/whitepoint.h>

#include <gamutfiles/displaydescription.h>
#include <gamutmodel/dominantwavelength.h>

#include <QString>

/*!
 * \file
 * \brief How the interface shows values: the same in panel, tables, status bar and pictures.
 */
namespace gamutviewer {

/*! \brief The decimals of the coordinates x, y and u′, v′. */
constexpr int chromaticityDecimals = 4;

/*! \brief \a value with \a decimals, and without a sign where all digits that are shown are 0. */
QString fixedText(double value, int decimals);

/*! \brief "6504 K". */
QString temperatureText(const ceiechart::ColorTemperature &temperature);
/*! \brief "0.0032". */
QString duvText(const ceiechart::ColorTemperature &temperature);
/*! \brief What is shown in the place of a value that is not defined. */
QString undefinedText();

/*! \brief \a value as a percentage with one decimal. */
QString percent(double value);

/*! \brief \a luminance with the decimals that a relative (a white of 1) or an absolute one needs. */
QString luminanceText(double luminance);
/*! \brief "cd/m²", "relative" or "unit not known". */
QString luminanceUnitText(gamutfiles::LuminanceUnit unit);
/*! \brief \a luminance with its unit: "1000.0 cd/m²". */
QString luminanceText(double luminance, gamutfiles::LuminanceUnit unit);

/*! \brief "532.1", in nm; of a purple the complementary wavelength, negative. */
QString wavelengthText(const Model::DominantWavelength &hue);
/*! \brief A tool tip of \a text as it is: a name may look like markup. */
QString plainToolTip(const QString &text);

/*! \brief The excitation purity, "0.95". */
QString purityText(const Model::DominantWavelength &hue);

} // namespace gamutviewer

#endif
