// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_VIEWSTATE_H
#define CEIECHART_TESTS_REFERENCE_VIEWSTATE_H

#include <ceiechart/widgets/ceiegraphicsview_p.h>

#include <QList>

namespace reference {

// Access to the state of the view of a chart. Only this file knows the names of the members.

inline QList<ColorTriangleObject> standardTriangles(const NewCEIE::CEIEGraphicsView &view)
{
    return view.own().standardTriangles;
}

inline TrianglePoint targetTriangle(const NewCEIE::CEIEGraphicsView &view)
{
    return view.own().targetTriangle;
}

inline TrianglePoint originalTriangle(const NewCEIE::CEIEGraphicsView &view)
{
    return view.own().originalTriangle;
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_VIEWSTATE_H
