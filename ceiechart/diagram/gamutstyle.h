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
 * \brief The roles that gamuts play and what each of them looks like, on the charts of both generations and on
 *        diagrams of a program's own.
 */
namespace ceiechart {

/*! \brief The role of a gamut. */
enum class GamutRole {
    Standard, //!< a published gamut to compare with
    Target, //!< the gamut that is asked for, and edited
    Original, //!< what the display can show
    Measured, //!< what a measurement has found
    Declared //!< what the display says of itself
};

/*! \brief How the outline and the area of a gamut are drawn. */
struct GamutStyle {
    QColor color; //!< of the outline; its tint has the same red, green and blue
    int width; //!< of the outline, in pixels
    double opacity; //!< of the tint within the outline; 0 for none
    Qt::PenStyle line; //!< of the outline
};

/*! \brief The name of \a role for a key or a table, in the language of the interface. */
CEIECHART_EXPORT QString gamutRoleName(GamutRole role);

/*!
 * \brief The style of \a role on a diagram that tells roles apart by colour and by line style.
 *
 * The charts of the two generations have styles of their own: see currentChartStyle() and legacyChartStyle().
 */
CEIECHART_EXPORT GamutStyle gamutStyle(GamutRole role);

/*!
 * \brief The style that NewCEIE::CEIEGraphicsView gives to a gamut of \a kind.
 *
 * \param besideMeasured whether there is a measured gamut too, which takes the original's cyan
 */
CEIECHART_EXPORT GamutStyle currentChartStyle(GamutKind kind, bool besideMeasured);

/*! \brief The style that NewCEIE::CEIEGraphicsView gives to the standard \a name; none for one that it leaves out. */
CEIECHART_EXPORT std::optional<GamutStyle> currentChartStandardStyle(const std::string &name);

/*! \brief The style that the legacy CEIEGraphicsView gives to the original and to the target. */
CEIECHART_EXPORT GamutStyle legacyChartStyle(GamutKind kind);

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_GAMUTSTYLE_H
