// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_DIAGRAMRENDERER_H
#define CEIECHART_RENDER_DIAGRAMRENDERER_H

#include <ceiechart/atlas/ceiatlasvalue.h>
#include <ceiechart/ceiechart_export.h>
#include <ceiechart/diagram/chartstyle.h>

#include <QColor>
#include <QList>
#include <QPointF>
#include <QString>
#include <QWidget>

#include <memory>

class QImage;
class QPainter;
class QRectF;

namespace ceiechart {

/*!
 * \brief The layers of a chromaticity diagram that the renderers of both generations draw.
 *
 * The base class of both `DrawCEIPicture` classes. Hosts use those classes and need not derive from this one. A
 * renderer is a widget only so that it can have a parent; it is never shown. Use it on the GUI thread.
 */
class CEIECHART_EXPORT DiagramRenderer : public QWidget {
public:
    ~DiagramRenderer() override;

    /*!
     * \brief The position of the chromaticity \a xy in the last picture, in whole pixels.
     *
     * \a xy is in the coordinates of the diagram: CIE 1931 x, y or CIE 1976 u′, v′. Before the first drawing, every
     * chromaticity maps to (4, 0). A picture that is 0 or 1 pixel wide or high has no extent to map: after it, the
     * scales remain those of the previous picture, and only the corner of the plot has moved.
     */
    QPointF CoordinateTransformation(const QPointF &xy);

    /*! \brief The kind of the pictures. */
    ChartKind chartKind() const;

    /*! \brief The colour of locus edge and axes that was set by setGraphColor(); white by default. */
    QColor graphLineColor() const;
    /*! \brief The background colour that was set by setGraphColor(), or its default. */
    QColor graphPictureColor() const;
    /*! \brief The colour that fills the next picture. It depends on setLightGround() and, with it off, on the diagram.
     */
    QColor pictureGround() const;

    /*!
     * \brief Sets whether the next pictures are drawn on a light ground, and legibly; false by default.
     *
     * The ground is graphPictureColor() if that is opaque and light, otherwise a near-white of the library's. Lines,
     * numbers and outlines keep their hue and are darkened until their contrast ratio with the ground is at least 3, of
     * text and axes 7 (WCAG 2.1). The horseshoe is coloured inside its outline only, also in pictures without gamuts.
     */
    void setLightGround(bool light);
    /*! \brief The switch of setLightGround(). */
    bool isLightGround() const;

    /*!
     * \brief Sets the device pixels for each pixel of the next pictures: 1 by default, at most 8.
     *
     * A picture then has as many times the width and height that are asked for, and \a ratio as its
     * QImage::devicePixelRatio(): lines and text have the same size in it, and more detail. Positions and rectangles
     * remain in pixels of the size that is asked for. Values below 1 and values that are not numbers count as 1.
     */
    void setPixelRatio(double ratio);
    /*! \brief The ratio of setPixelRatio(). */
    double pixelRatio() const;

    /*!
     * \brief Sets how many threads draw the next pictures, with the one that calls: 1 to 64, 1 by default. A count
     * below 1 counts as 1, and one above 64 as 64.
     *
     * Every count gives the same pixels. The threads fill the picture and draw gamuts and horseshoe, each some rows;
     * text and lines are drawn by the calling thread. It pays for large pictures only, and small ones are drawn by the
     * calling thread alone.
     *
     * With 1, no thread is ever started. Otherwise the renderer starts threads of its own when it first draws a large
     * picture; fewer if the system has no more. Between two pictures they wait and keep nothing of them. They end when
     * another count is set and with the renderer.
     */
    void setThreadCount(int count);
    /*! \brief The count of setThreadCount(). */
    int threadCount() const;

protected:
    class Private;

    DiagramRenderer(std::unique_ptr<Private> own, QWidget *parent);

    // Geometry
    double mulDiv(int a, int b, int c);
    double Clamp(double v, double lo, double hi);
    bool GetCoordinateTransformationData(const QRectF &plot, const QRectF &chroma);
    QPointF CoordinateTransformation();
    void MapPixelToReal(int px, int py);
    void GetPointF(const CEIAtlasValue::CEIAtlasCoordinate &c);

    // Horseshoe colouring
    void painterPixColor(QImage *picture);
    void GetPointRGB(int px, int py, QImage *picture);
    void GetRGBValue(const CEIAtlasValue::TColorSystem &cs, double x, double y, double z);
    void GetPointColorRGB(int px, int py, QImage *picture);

    // Locus edge
    void paintCEIEdge(QPainter &painter);
    QPointF DrawPointFToLine(QPainter &painter, const CEIAtlasValue::CEIAtlasCoordinate &row, const QPointF &previous);

    // Wavelength ticks and numbers
    void painterWaveLength(QPainter &painter);
    void DrawEdgeCoordinates(QPainter &painter, const CEIAtlasValue::CEIAtlasCoordinate &row);
    void ShowAnnotation(QPainter &painter, int x1, int y1, int x2, int y2, QString text);

    // Planckian locus
    void painterBBRLine(QPainter &painter);
    void DrawColorTempreturePoint(QPainter &painter, QList<QPointF> points, int size);

    const std::unique_ptr<Private> d;

private:
    friend class TargetScene; // which gives the memory of its former picture
    Q_DISABLE_COPY(DiagramRenderer)
};

} // namespace ceiechart

#endif // CEIECHART_RENDER_DIAGRAMRENDERER_H
