// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_DIAGRAMRENDERER_H
#define CEIECHART_RENDER_DIAGRAMRENDERER_H

#include <ceiechart/atlas/ceiatlasvalue.h>
#include <ceiechart/ceiechart_export.h>

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
    Q_DISABLE_COPY(DiagramRenderer)
};

} // namespace ceiechart

#endif // CEIECHART_RENDER_DIAGRAMRENDERER_H
