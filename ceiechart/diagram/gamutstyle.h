// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_GAMUTSTYLE_H
#define CEIECHART_DIAGRAM_GAMUTSTYLE_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/gamutkind.h>

#include <QColor>
#include <QString>

#include <optional>
#include <string>

/*!
 * \file
 * \brief The roles of gamuts and the appearance of each role on the charts and on other diagrams.
 */
namespace ceiechart {

/*! \brief The role of a gamut. */
enum class GamutRole {
    Standard, //!< a published gamut, for comparison
    Target, //!< the gamut that the display shall have after calibration
    Original, //!< the gamut of the display before calibration
    Measured, //!< the gamut that was measured
    Declared //!< the gamut that the display declares, for example in its EDID
};

/*! \brief The appearance of the outline and the area of a gamut. */
struct GamutStyle {
    QColor color; //!< colour of the outline and, apart from its alpha, of the tint
    int width; //!< width of the outline in pixels
    double opacity; //!< opacity of the tint inside the outline, below 1; 0 or 1 for no tint
    Qt::PenStyle line; //!< pen style of the outline
};

/*! \brief The translated name of \a role, for legends and tables; empty if \a role is not a GamutRole. */
CEIECHART_EXPORT QString gamutRoleName(GamutRole role);

/*!
 * \brief The style of \a role on a diagram that distinguishes roles by colour and by line style.
 *
 * The charts of the two generations have styles of their own: see currentChartStyle() and legacyChartStyle().
 */
CEIECHART_EXPORT GamutStyle gamutStyle(GamutRole role);

/*!
 * \brief The style of a gamut of \a kind on the chart NewCEIE::CEIEGraphicsView.
 *
 * \param kind the original, measured or target gamut; any other value gives the style of the target. For standards see
 * currentChartStandardStyle().
 * \param besideMeasured whether the chart also shows a measured gamut. The original gamut is then green instead of
 * cyan.
 */
CEIECHART_EXPORT GamutStyle currentChartStyle(GamutKind kind, bool besideMeasured);

/*!
 * \brief The style of the standard \a name on the chart NewCEIE::CEIEGraphicsView; none if the chart does not show it.
 */
CEIECHART_EXPORT std::optional<GamutStyle> currentChartStandardStyle(const std::string &name);

/*! \brief The style of a gamut on the legacy chart; any \a kind other than OriginalGamut gives that of the target. */
CEIECHART_EXPORT GamutStyle legacyChartStyle(GamutKind kind);

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_GAMUTSTYLE_H
