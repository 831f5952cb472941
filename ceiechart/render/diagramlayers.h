// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_DIAGRAMLAYERS_H
#define CEIECHART_RENDER_DIAGRAMLAYERS_H

#include <ceiechart/atlas/ceiatlasvalue.h>
#include <ceiechart/ceiechart_export.h>
#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/diagram/diagramgeometry.h>

#include <QColor>
#include <QFont>
#include <QLineF>
#include <QList>
#include <QPointF>
#include <QString>

class QImage;
class QPainter;
class QPolygonF;

namespace ceiechart {

/*! \brief How the axes are drawn where the two generations differ. */
struct AxesStyle {
    Qt::PenStyle gridStyle; //!< of the grid lines
    QFont numberFont; //!< also gives the metrics that place the numbers
    QString xTitle; //!< none when empty
    QString yTitle; //!< none when empty
};

/*!
 * \brief The layers of a chromaticity diagram that both renderers draw, with the scratch state that they share.
 *
 * The base of both `DrawCEIPicture` classes, and theirs alone: a host finds nothing here to call. A layer reads the
 * geometry of the drawing under way and leaves the painter as it found it, unless it says otherwise.
 */
class CEIECHART_EXPORT DiagramLayers {
protected:
    explicit DiagramLayers(ChartKind kind);
    DiagramLayers(const DiagramLayers &) = delete;
    DiagramLayers &operator=(const DiagramLayers &) = delete;
    ~DiagramLayers() = default;

    // Geometry, in diagramlayers.cpp
    double mulDiv(int a, int b, int c);
    double Clamp(double v, double lo, double hi);
    bool GetCoordinateTransformationData(const QRectF &plot, const QRectF &chroma);
    QPointF CoordinateTransformation(const QPointF &xy);
    //! Maps the current chromaticity, without truncation, to the current pixel point.
    QPointF CoordinateTransformation();
    //! Makes the chromaticity of a pixel the current one; the third coordinate is left alone.
    void MapPixelToReal(int px, int py);
    //! Makes the chromaticity of a locus row the current one; the third coordinate is left alone.
    void GetPointF(const CEIAtlasValue::CEIAtlasCoordinate &c);

    // Horseshoe colouring, in horseshoe.cpp
    void painterPixColor(QImage *picture);
    void GetPointRGB(int px, int py, QImage *picture);
    void GetRGBValue(const CEIAtlasValue::TColorSystem &cs, double x, double y, double z);
    void GetPointColorRGB(int px, int py, QImage *picture);

    // Locus edge, in locusedge.cpp
    void paintCEIEdge(QPainter &painter);
    QPointF DrawPointFToLine(QPainter &painter, const CEIAtlasValue::CEIAtlasCoordinate &row, const QPointF &previous);

    // Wavelength ticks and numbers, in wavelengths.cpp
    void painterWaveLength(QPainter &painter);
    //! One tick, with its number where the wavelength is a multiple of 10 nm. May leave a wider pen on the painter.
    void DrawEdgeCoordinates(QPainter &painter, const CEIAtlasValue::CEIAtlasCoordinate &row);
    void ShowAnnotation(QPainter &painter, int x1, int y1, int x2, int y2, QString text);

    // Planckian locus, in planckianlocus.cpp
    /*!
     * The Planckian locus as a polyline and the colour-temperature points as dots. Neither sets a pen: both take
     * the one that the painter holds, black and one pixel wide after the layers that come before.
     */
    void painterBBRLine(QPainter &painter);
    void DrawColorTempreturePoint(QPainter &painter, QList<QPointF> points, int size);

    // What drawings are made of
    //! Grid, axis lines, numbers and titles, in axes.cpp.
    void drawAxes(QPainter &painter, const AxesStyle &style);
    //! Takes the size of a new drawing, derives the geometry and refreshes the locus rows from the atlas.
    void beginDrawing(int width, int height, int marginPercent);
    /*!
     * Draws into \a picture what painterPixColor() makes of one in \a background, clipped to \a clip; under it, where
     * asked for, the clip's own outline in the painter's default pen.
     */
    enum class ClipOutline { None, Drawn };
    void drawHorseshoeWithin(QImage &picture, const QPolygonF &clip, ClipOutline outline, const QColor &background);
    //! Makes the first locus row current and maps it, as every drawing does once.
    void loadFirstLocusRow();
    //! Clamps and scales the current amounts and returns the colour they give with \a alpha, perhaps invalid.
    QColor colorOfCurrentAmounts(int alpha);
    void makeColorOfPixelCurrent(int px, int py);

    ChartKind m_kind;
    DiagramGeometry m_geometry;
    CEIAtlasValue m_atlas;
    int m_pictureWidth = 0;
    int m_pictureHeight = 0;
    double m_gamma = 1.0;
    QColor m_lineColor = chartLineColor();
    QList<QPointF> m_colorTemperaturePoints;
    QList<CEIAtlasValue::CEIAtlasCoordinate> m_locus;
    QList<CEIAtlasValue::CEITemperatureCoordinate> m_planckianPoints;

private:
    struct Chromaticity {
        double x = 0.0, y = 0.0, z = 0.0;
    };

    double m_xyzSum = 0.0;
    Chromaticity m_current;
    QPointF m_currentPixel;
    double m_red = 0.0;
    double m_green = 0.0;
    double m_blue = 0.0;
    QLineF m_pendingLine;
    QPointF m_previousLocusPoint;
    double m_tickWeight = 0.0;
};

} // namespace ceiechart

#endif
