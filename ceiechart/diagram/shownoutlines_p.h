// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_SHOWNOUTLINES_P_H
#define CEIECHART_DIAGRAM_SHOWNOUTLINES_P_H

#include <ceiechart/diagram/diagramsheet_p.h>

#include <QPolygonF>
#include <QRectF>

#include <vector>

namespace ceiechart {

/*! \brief The outline of a gamut that is seen. */
struct ShownOutline {
    int index; //!< of the gamut in the content
    GamutRole role;
    QPolygonF corners;
    QRectF bounds{}; //!< of the corners
    bool isCovered = false; //!< by the equal outline of another gamut of the role, which looks the same
    std::vector<size_t> equals{}; //!< those that are not covered and equal this one, from bottom to top
};

/*! \brief The outlines of some gamuts, and which of them fall on one another. */
struct ShownOutlines {
    std::vector<ShownOutline> all; //!< from bottom to top: first standards, last targets
    size_t standards = 0; //!< how many of them are standards

    /*!
     * \brief Whether there are too many standards to tell one from another.
     *
     * They are drawn plainly then. Only standards whose corners lie in the same squares of a logical pixel
     * count as equal to one another, for which no two have to be compared.
     */
    bool areStandardsPlain() const { return standards > size_t(mostCasedStandards); }
};

/*! \brief The outlines of \a sheet that no edit of a target changes: those of all gamuts but targets. */
ShownOutlines shownOutlines(const DiagramSheet &sheet);

/*! \brief \a outlines, which are those of shownOutlines(), and those of the targets of \a sheet. */
ShownOutlines withTargets(ShownOutlines outlines, const DiagramSheet &sheet);

} // namespace ceiechart

#endif
