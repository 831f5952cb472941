// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_DIAGRAMRENDERER_P_H
#define CEIECHART_RENDER_DIAGRAMRENDERER_P_H

#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/diagram/horseshoefill_p.h>
#include <ceiechart/diagram/rowthreads_p.h>
#include <ceiechart/render/diagramrenderer.h>

#include <QColor>
#include <QFont>
#include <QImage>
#include <QLineF>
#include <QVector>

#include <vector>

class QPolygonF;
class QRect;

namespace ceiechart {

class RepeatedDashes;
class RowLayers;

/*! \brief The appearance of the axes, which differs between the generations. */
struct AxesStyle {
    Qt::PenStyle gridStyle; //!< pen style of the grid lines
    QFont numberFont; //!< font of the numbers; its metrics also determine their positions
    QString xTitle; //!< title of the axis; empty for none
    QString yTitle; //!< title of the axis; empty for none
};

/*! \brief Whether the clip of the horseshoe is outlined under the colours, with the default pen of the painter. */
enum class ClipOutline { Hidden, Drawn };

/*!
 * \brief The state that the layers share, and the steps of a drawing that both renderers need.
 *
 * A layer reads the geometry of the current drawing. It restores the painter's state unless its comment says otherwise.
 */
class Q_DECL_HIDDEN DiagramRenderer::Private {
public:
    explicit Private(ChartKind chartKind)
        : kind(chartKind)
        , groundColor(chartStyle(chartKind).horseshoeGround)
    {
    }
    virtual ~Private();

    /*!
     * \brief Begins a drawing: stores its size, computes its geometry and copies the rows of the locus from the atlas.
     */
    void beginDrawing(int width, int height, int marginPercent);
    /*!
     * \brief The picture of the drawing that has begun, in the pixels of the device. The caller must first fill it with
     * \a ground, by drawGround().
     */
    std::unique_ptr<QImage> newPicture(const QColor &ground);
    /*! \brief The number of pixels of the device for \a extent pixels of the drawing. */
    int devicePixels(int extent) const;
    /*! \brief The threads that draw rows of \a picture; null if it is for the calling thread alone. */
    RowThreads *threadsFor(const QImage &picture);
    /*! \brief What fills the horseshoe of the drawing, with the mapping of the pixels of the device. */
    HorseshoeFill horseshoeFill() const;
    /*! \brief The colour that fills the picture: \a stated, or a light one on a light ground. */
    QColor ground(const QColor &stated) const;
    /*! \brief The colour that is drawn for \a stated: on a light ground, one with the contrast ratio \a contrast. */
    QColor drawn(const QColor &stated, double contrast) const;
    /*! \brief The colour in which locus edge and axes are drawn. */
    QColor drawnLineColor() const;
    /*! \brief The locus with the line of purples, in pixels of the drawing. The chromaticity of a row is current then.
     */
    QPolygonF locusPolygon();
    /*! \brief Makes the first row of the locus current and maps it, as every drawing does once. */
    void loadFirstLocusRow();
    /*! \brief Makes the chromaticity of \a row the current one. The third coordinate is not changed. */
    void makeCurrent(const CEIAtlasValue::CEIAtlasCoordinate &row);
    /*! \brief Makes the chromaticity of a pixel the current one. The third coordinate is not changed. */
    void makePixelCurrent(int px, int py);
    /*! \brief Maps the current chromaticity to the current pixel position, without truncation. */
    QPointF mapCurrent();
    /*! \brief Makes (\a x, \a y) the current chromaticity and maps it. */
    QPointF map(double x, double y);

    /*!
     * \brief Fills the new \a picture with \a ground: \a rect, in pixels of the drawing, which contains all of it.
     *
     * \param axes if it is not null, drawAxes() follows with that style. Lines of the grid that can be drawn in the
     * same pass over the picture are left out there.
     */
    void drawGround(
        QPainter &painter, QImage &picture, const QRect &rect, const QColor &ground, const AxesStyle *axes = nullptr);
    /*! \brief Draws grid, axis lines, numbers and titles. Implemented in axes.cpp, with drawGround(). */
    void drawAxes(QPainter &painter, const AxesStyle &style);
    /*!
     * \brief The upright lines of the grid, if nothing that drawAxes() draws between them meets them; otherwise none.
     */
    std::vector<RepeatedDashes> uprightGrid(QPainter &painter, const AxesStyle &style);

    /*!
     * \brief Draws the horseshoe inside \a clip: the part of a picture in \a background that painterPixColor() has
     * filled.
     */
    void drawHorseshoeWithin(QImage &picture, const QPolygonF &clip, ClipOutline outline, const QColor &background);
    /*! \brief Makes the amounts of the primaries at a pixel the current ones. */
    void makeColorOfPixelCurrent(int px, int py);
    /*!
     * \brief Makes the amounts of the primaries of \a system at the chromaticity (\a x, \a y, \a z) the current ones.
     */
    void makeAmountsCurrent(const CEIAtlasValue::TColorSystem &system, double x, double y, double z);
    /*! \brief The colour of the current amounts with \a alpha; it can be invalid. The amounts become its components. */
    QColor colorOfCurrentAmounts(int alpha);

    ChartKind kind;
    DiagramGeometry geometry;
    CEIAtlasValue atlas;
    int pictureWidth = 0;
    int pictureHeight = 0;
    double gamma = 1.0;
    QColor lineColor = chartLineColor();
    QColor groundColor; //!< set by setGraphColor()
    bool lightGround = false;
    double pixelRatio = 1.0;
    QImage former; //!< whose memory the next picture takes, if it can
    bool isOpaque = false; //!< whether the last picture is known to be
    RowThreads threads;
    qint64 fewestPixelsForThreads = 1 << 19; //!< of a picture: to wake threads takes longer than to draw a smaller one

    /*! \brief The last result of drawn(): the locus edge alone asks for the same one hundreds of times. */
    struct Drawn {
        QColor stated;
        QColor ground;
        double contrast = 0.0;
        QColor drawn;
    };
    mutable Drawn lastDrawn;

    QVector<QLineF> *edgeSegments = nullptr; //!< collects the segments of the locus edge, which are drawn together
    bool uprightGridIsDrawn = false; //!< by drawGround(), until drawAxes() is called
    RowLayers *layers = nullptr; //!< collects the layers that a drawing draws together, while it does so

    QList<QPointF> colorTemperaturePoints;
    QList<CEIAtlasValue::CEIAtlasCoordinate> locus;
    QList<CEIAtlasValue::CEITemperatureCoordinate> planckianPoints;

    // Results of an operation that the next one reads
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
