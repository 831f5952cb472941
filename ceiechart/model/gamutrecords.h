// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_GAMUTRECORDS_H
#define CEIECHART_MODEL_GAMUTRECORDS_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/colortriangleobject.h>

#include <gamutmodel/colorgamut.h>

/*!
 * \file
 * \brief Conversions between the gamuts of the charts and the records of the gamut model.
 *
 * Chromaticities (CIE 1931 x, y) and luminances are copied without checks, in both directions to the last bit.
 *
 * \code
 * connect(chart, &CEIEGraphicsView::signal_targetInfoChanged, this, [this](TargetInfoChangedEventArgs info) {
 *     save(ceiechart::gamutRecord(info.colorTriangleObject()));
 * });
 * \endcode
 */
namespace ceiechart {

/*! \brief The chromaticities and luminances of \a targets. The values derived from them are ignored. */
CEIECHART_EXPORT TrianglePoint gamutTriangle(const Model::Targets &targets);
/*! \brief The chromaticities and luminances of \a gamut, the record of the legacy chart. */
CEIECHART_EXPORT TrianglePoint gamutTriangle(const Model::ColorGamutInfo &gamut);
/*!
 * \brief \a gamut as a list of a chart can have it: with its name and the kind \a type (see GamutKind), otherwise as a
 * new ColorTriangleObject is, opaque white and one pixel wide.
 */
CEIECHART_EXPORT ColorTriangleObject gamutObject(const Model::ColorGamut &gamut, int type);

/*! \brief The record of \a triangle; the derived values are computed by Model::Target::fromYxy(). */
CEIECHART_EXPORT Model::Targets gamutTargets(const TrianglePoint &triangle);
/*! \brief The record of \a gamut with its name. Its appearance and its kind have no place in a record. */
CEIECHART_EXPORT Model::ColorGamut gamutRecord(const ColorTriangleObject &gamut);
/*! \brief The record that the legacy chart takes. */
CEIECHART_EXPORT Model::ColorGamutInfo legacyGamutRecord(const ColorTriangleObject &gamut);

} // namespace ceiechart

#endif // CEIECHART_MODEL_GAMUTRECORDS_H
