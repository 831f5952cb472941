// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CHROMATICITY_H
#define GAMUTVIEWER_CHROMATICITY_H

#include <ceiechart/diagram/targetrules.h>
#include <gamutmodel/drive.h>
#include <gamutmodel/gamutcoverage.h>

#include <QPointF>

namespace gamutviewer {

/*! \brief The vertex of a gamut at \a primary. */
constexpr ceiechart::GamutVertex vertexOf(Model::Primary primary)
{
    return primary == Model::Primary::Red  ? ceiechart::GamutVertex::Red
        : primary == Model::Primary::Green ? ceiechart::GamutVertex::Green
                                           : ceiechart::GamutVertex::Blue;
}

/*! \brief The CIE 1931 chromaticity of \a color. */
inline Model::DiagramPoint pointOf(const Model::Target &color)
{
    return {color.x, color.y};
}

/*! \brief The point of \a diagram at the CIE 1931 chromaticity \a xy; (0, 0) where the diagram has none. */
QPointF toDiagram(Model::Diagram diagram, const QPointF &xy);
/*! \brief The inverse of toDiagram(). */
QPointF fromDiagram(Model::Diagram diagram, const QPointF &point);

/*! \brief CIE 1931 x, y to CIE 1976 u', v'. */
inline QPointF uvFromXy(const QPointF &xy)
{
    return toDiagram(Model::Diagram::Cie1976, xy);
}
/*! \brief CIE 1976 u', v' to CIE 1931 x, y. */
inline QPointF xyFromUv(const QPointF &uv)
{
    return fromDiagram(Model::Diagram::Cie1976, uv);
}

} // namespace gamutviewer

#endif
