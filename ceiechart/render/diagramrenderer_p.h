// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_DIAGRAMRENDERER_P_H
#define CEIECHART_RENDER_DIAGRAMRENDERER_P_H

#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/render/diagramrenderer.h>

#include <QColor>
#include <QFont>
#include <QLineF>

class QPolygonF;

namespace ceiechart {

/*! \brief How the axes are drawn where the two generations differ. */
struct AxesStyle {
    Qt::PenStyle gridStyle; //!< of the grid lines
    QFont numberFont; //!< also gives the metrics that place the numbers
    QString xTitle; //!< none when empty
    QString yTitle; //!< none when empty
};

/*! \brief Whether the clip of the horseshoe is outlined, in the painter's default pen, under the colours. */
enum class ClipOutline { Hidden, Drawn };

/*!
 * \brief The state that the layers share, and what drawings are made of.
 *
 * A layer reads the geometry of the drawing under way. It leaves the painter as it found it, unless it says otherwise.
 */
class DiagramRenderer::Private {
public:
    explicit Private(ChartKind chartKind)
        : kind(chartKind)
    {
    }
    virtual ~Private();

    /*! \brief Takes the size of a new drawing, derives the geometry and refreshes the locus rows from the atlas. */
    void beginDrawing(int width, int height, int marginPercent);
    /*! \brief Makes the first locus row current and maps it, as every drawing does once. */
    void loadFirstLocusRow();
    /*! \brief Makes the chromaticity of a locus row the current one; the third coordinate is left alone. */
    void makeCurrent(const CEIAtlasValue::CEIAtlasCoordinate &row);
    /*! \brief Makes the chromaticity of a pixel the current one; the third coordinate is left alone. */
    void makePixelCurrent(int px, int py);
    /*! \brief Maps the current chromaticity, without truncation, to the current pixel point. */
    QPointF mapCurrent();
    /*! \brief Makes (\a x, \a y) the current chromaticity and maps it. */
    QPointF map(double x, double y);

    /*! \brief Grid, axis lines, numbers and titles, in axes.cpp. */
    void drawAxes(QPainter &painter, const AxesStyle &style);

    /*! \brief Draws into \a picture what painterPixColor() makes of one in \a background, clipped to \a clip. */
    void drawHorseshoeWithin(QImage &picture, const QPolygonF &clip, ClipOutline outline, const QColor &background);
    void makeColorOfPixelCurrent(int px, int py);
    void makeAmountsCurrent(const CEIAtlasValue::TColorSystem &system, double x, double y, double z);
    /*! \brief Clamps and scales the current amounts and returns the colour they give with \a alpha, perhaps invalid. */
    QColor colorOfCurrentAmounts(int alpha);

    ChartKind kind;
    DiagramGeometry geometry;
    CEIAtlasValue atlas;
    int pictureWidth = 0;
    int pictureHeight = 0;
    double gamma = 1.0;
    QColor lineColor = chartLineColor();
    QList<QPointF> colorTemperaturePoints;
    QList<CEIAtlasValue::CEIAtlasCoordinate> locus;
    QList<CEIAtlasValue::CEITemperatureCoordinate> planckianPoints;

    // What one operation leaves for the next
    struct Chromaticity {
        double x = 0.0, y = 0.0, z = 0.0;
    };
    double xyzSum = 0.0;
    Chromaticity current;
    QPointF currentPixel;
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    QLineF pendingLine;
    QPointF previousLocusPoint;
    double tickWeight = 0.0;
};

} // namespace ceiechart

#endif // CEIECHART_RENDER_DIAGRAMRENDERER_P_H
