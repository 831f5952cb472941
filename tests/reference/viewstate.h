// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_VIEWSTATE_H
#define CEIECHART_TESTS_REFERENCE_VIEWSTATE_H

#include <ceiechart/model/colortriangleobject.h>

#include <QList>
#include <QPolygonF>

namespace reference {

// White-box access to what a chart's view keeps: the one place that knows the names of its members.

template <typename View>
QList<ColorTriangleObject> standardTriangles(const View &view)
{
    return view.m_standardTriangles;
}

/*! \brief What target and original have in common, in pixels. */
template <typename View>
QPolygonF commonArea(const View &view)
{
    return view.m_targetOrgIntersected;
}

template <typename View>
TrianglePoint targetTriangle(const View &view)
{
    return view.m_targetTriangle;
}

template <typename View>
TrianglePoint originalTriangle(const View &view)
{
    return view.m_originalTriangle;
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_VIEWSTATE_H
