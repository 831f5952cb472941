// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GAMUTOVERLAY_H
#define GAMUTVIEWER_GAMUTOVERLAY_H

#include "targetedits.h"

#include <QPointF>

#include <functional>

class QGraphicsScene;
class QPainterPath;
class QPen;

namespace gamutviewer {

/*!
 * \brief The outlines of a description's gamuts as items of a chart's scene, over its picture, for charts that draw
 * handles only.
 *
 * Each gamut has a line style of its own beside its colour, and every line a dark edge that shows on any ground.
 */
class GamutOverlay {
public:
    /*! \brief \a scene must outlive the overlay. */
    explicit GamutOverlay(QGraphicsScene *scene);

    /*! \brief Shows \a description; \a place gives the scene position of a CIE 1931 chromaticity. */
    void show(
        const DisplayDescription &description, Vertex selected, const std::function<QPointF(const QPointF &)> &place);

private:
    void add(const QPainterPath &path, const QPen &pen, qreal z);
    void addGamut(const std::optional<Model::ColorGamut> &gamut, const QPen &pen, qreal z,
        const std::function<QPointF(const QPointF &)> &place);

    QGraphicsScene *m_scene;
};

} // namespace gamutviewer

#endif
