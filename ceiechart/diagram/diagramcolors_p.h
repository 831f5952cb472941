// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMCOLORS_P_H
#define CEIECHART_DIAGRAM_DIAGRAMCOLORS_P_H

#include <ceiechart/diagram/diagramcontent.h>
#include <ceiechart/diagram/diagramviewport.h>
#include <ceiechart/diagram/rowcoverage_p.h>

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QPolygonF>
#include <QRegion>

class QPainter;

namespace ceiechart {

class PixelPainter;

/*! \brief What the picture of a diagram's colours depends on. */
struct ColorsRequest {
    DiagramViewport viewport; //!< which part of the diagram
    qreal devicePixelRatio = 1.0; //!< device pixels per logical pixel
    HorseshoeColors colors = HorseshoeColors::Full; //!< how the horseshoe is coloured
    QColor ground; //!< opaque
    QPolygonF full; //!< what is not dimmed, in the diagram's own coordinates; convex, may be empty

    /*! \brief The picture's size in device pixels. */
    QSize size() const;
    /*! \brief The plot in device pixels of the picture. */
    QRect plot() const;
};

/*!
 * \brief A picture of a diagram's ground and horseshoe that is kept and repaired.
 *
 * The colour of a pixel is that of the chromaticity in its middle, as the pictures of the charts have it: in
 * x, y by the atlas's colour system, in the uniform diagrams by that of their own. A dimmed colour is the mean of the
 * colour and the ground. Edges are smooth by the area that they cover.
 */
class DiagramColors {
public:
    /*!
     * \brief The picture for \a request, by as little work as leads to it.
     *
     * \param changed receives the filled device pixels, after the scroll; may be null
     * \param scrolled receives the distance by which the plot was scrolled; may be null
     */
    const QImage &update(const ColorsRequest &request, QRegion *changed, QPoint *scrolled);
    /*!
     * \brief Paints the picture for \a request.
     *
     * A picture that is all new, as each is during a zoom, is painted in bands and not kept: to write it twice to the
     * memory and to read it once takes about as long as to compute it. It is kept when it is asked for again. One that
     * is scrolled is painted in bands, too.
     */
    void paint(QPainter *painter, const ColorsRequest &request);
    /*!
     * \brief Writes the picture for \a request, with its first pixel at the origin of \a pixels, and keeps nothing.
     *
     * \return whether that could be done: only where the picture ends between two pixels, as it begins between two
     */
    static bool write(const PixelPainter &pixels, const ColorsRequest &request);

private:
    void paintScrolled(QPainter *painter, const ColorsRequest &request, const QPoint &way);

    QImage m_image;
    ColorsRequest m_request; // the last one
    bool m_isKept = false; // whether the image is the one of the request
    RowCoverage m_locus; // as in the picture
    RowCoverage m_full;
};

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_DIAGRAMCOLORS_P_H
