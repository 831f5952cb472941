// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GAMUTOVERLAY_H
#define GAMUTVIEWER_GAMUTOVERLAY_H

#include "drawing/diagramframe.h"
#include "drawing/layers.h"
#include "drawing/pointmarks.h"
#include "editing/gamutparts.h"
#include "editing/targetedits.h"

#include <QList>
#include <QPen>

class QGraphicsItem;
class QGraphicsScene;
class QPainterPath;

namespace gamutviewer {

/*!
 * \brief What the program adds to a chart, as items of the chart's scene over its picture.
 *
 * On a bare diagram it is everything, each gamut in a line style of its own beside its colour, and every line with an
 * edge that shows on any ground. To the chart that draws gamuts itself it is what that leaves out, in the same look.
 */
class GamutOverlay {
public:
    static constexpr double edgeWidth = 1.6; // pixels, of both edges of a line

    static QPen pen(GamutPart::Role role, bool besideMeasured);
    static QPen standardPen();
    static QColor edgeColor(const QColor &lineColor);

    /*! \brief \a scene must outlive the overlay. */
    explicit GamutOverlay(QGraphicsScene *scene);

    /*! \brief Shows the layers \a shown of \a description on a bare diagram, with rings round the handles, two round \a
     * selected. */
    void showOnBareDiagram(
        const DisplayDescription &description, Layers shown, Vertex selected, const DiagramFrame &frame);
    /*!
     * \brief Shows of the layers \a shown what the current chart does not draw.
     *
     * The chart shows the picture of \a frame with \a scale of its pixels for each of the scene.
     */
    void showOnChart(const DisplayDescription &description, Layers shown, const DiagramFrame &frame, double scale);

private:
    void clear();
    void take(QGraphicsItem *item, qreal z);
    void addLine(const QPainterPath &path, const QPen &pen, qreal z);
    void addMarks(const QVector<PointMark> &marks, const QPen &outline, double radius, qreal z);

    QGraphicsScene *m_scene;
    QList<QGraphicsItem *> m_items;
};

} // namespace gamutviewer

#endif
