// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_SHOWNMARKS_P_H
#define CEIECHART_DIAGRAM_SHOWNMARKS_P_H

#include <ceiechart/diagram/diagramsheet_p.h>
#include <ceiechart/diagram/markgrid_p.h>

#include <QVector>

namespace ceiechart {

/*! \brief The marks that are seen, and where. No edit of a target changes them. */
struct ShownMarks {
    QVector<PlacedMark> marks; //!< from bottom to top
    QVector<QString> names; //!< one of each mark, empty for none; empty where there are too many marks to name them
    MarkGrid places;
};

/*! \brief The marks of \a sheet that lie in the plot. */
ShownMarks shownMarks(const DiagramSheet &sheet);

} // namespace ceiechart

#endif
