// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DIAGRAMFRAME_H
#define GAMUTVIEWER_DIAGRAMFRAME_H

#include <ceiechart/diagram/diagramgeometry.h>
#include <gamutmodel/gamutcoverage.h>

#include <QPointF>
#include <QSize>

namespace gamutviewer {

/*! \brief Where the charts of the library show a chromaticity in a picture of some size. */
class DiagramFrame {
public:
    DiagramFrame() = default;
    DiagramFrame(Model::Diagram diagram, const QSize &size);

    /*! \brief What a chart of \a diagram shows. */
    static ceiechart::ChromaRange range(Model::Diagram diagram);
    static double aspect(Model::Diagram diagram);

    Model::Diagram diagram() const { return m_diagram; }
    const QSize &size() const { return m_size; }
    const ceiechart::DiagramGeometry &geometry() const { return m_geometry; }

    /*! \brief The picture position of a point of the diagram. */
    QPointF fromPoint(const QPointF &point) const { return m_geometry.toExactPixel(point.x(), point.y()); }
    /*! \brief The picture position of the CIE 1931 chromaticity \a xy. */
    QPointF fromXy(const QPointF &xy) const;
    /*! \brief The inverse of fromXy(). */
    QPointF toXy(const QPointF &position) const;

private:
    Model::Diagram m_diagram = Model::Diagram::Cie1931;
    QSize m_size;
    ceiechart::DiagramGeometry m_geometry;
};

} // namespace gamutviewer

#endif
