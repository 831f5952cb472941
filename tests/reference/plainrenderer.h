// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_PLAINRENDERER_H
#define CEIECHART_TESTS_REFERENCE_PLAINRENDERER_H

#include <ceiechart/atlas/ceiatlasvalue.h>
#include <ceiechart/model/colortriangleobject.h>
#include <reference/mapping.h>

#include <QColor>
#include <QFont>
#include <QImage>
#include <QList>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QString>

class QPainter;

/*!
 * \brief The renderer's definition, written down as plainly as possible: what every picture is compared with.
 *
 * Nothing here is shared with the library's renderer and nothing is made fast: one pixel, one line and one
 * painter call at a time, in the order in which the picture is defined.
 */
namespace reference {

/*! \brief \a low when it is above \a value, else the smaller of \a high and \a value (\a high for NaN). */
double clamp(double value, double low, double high);

/*! \brief The colour that the horseshoe shows for a chromaticity. */
QColor horseshoeColor(const CEIAtlasValue::TColorSystem &colorSystem, const QPointF &xy, double gamma);

/*! \brief Colours the first \a width × \a height pixels of \a picture, row by row between its red pixels. */
void fillPlain(QImage &picture, int width, int height, const Mapping &mapping,
    const CEIAtlasValue::TColorSystem &colorSystem, double gamma);

/*! \brief Draws the diagrams of NewCEIE::DrawCEIPicture, keeping the same state from drawing to drawing. */
class PlainRenderer {
public:
    /*! \brief Ranges and colours of the CIE 1931 diagram. */
    PlainRenderer();

    /*! \brief Other ranges, or horseshoe colours from other primaries. */
    PlainRenderer(const ChromaRange &range, const CEIAtlasValue::TColorSystem &colorSystem);

    QImage drawCEIPicture(int w, int h, bool showCoordinate, const QList<QPointF> &colorTemperaturePoints);
    QImage drawCEIPicture(int w, int h, bool showCoordinate, const QList<ColorTriangleObject> &triangles,
        const QList<ColorTriangleObject> &standards, const QPolygonF &clipPolygon, const QString &skipText);

    void setGraphColor(const QColor &line, const QColor &picture);
    void setBackgroudColor(const QColor &color);
    void setPointData(const QList<QRectF> &rectangles);
    void setCMYPointData(const QList<QRectF> &rectangles);

    /*!
     * \brief Takes the picture's size and derives the mapping from it, as at the start of every drawing.
     *
     * The percentages are those of the plot's near and far edges.
     */
    void setPictureSize(int w, int h, int nearPercent = 5, int farPercent = 95);
    const Mapping &mapping() const { return m_mapping; }

    // The layers, each drawing in the state in which it finds the painter.
    void paintCEIEdge(QPainter &painter) const;
    void painterWaveLength(QPainter &painter) const;
    void painterCoordinate(QPainter &painter) const;
    void painterCoordinate(QPainter &painter, Qt::PenStyle gridStyle, const QFont &numberFont) const; //!< no titles
    void painterBBRLine(QPainter &painter) const;
    void painterStandard(QPainter &painter, const QList<ColorTriangleObject> &standards) const;
    void painterTriangle(QPainter &painter, const QList<ColorTriangleObject> &triangles) const;
    void painterMeasurePoints(QPainter &painter) const;
    void drawCMYPoint(QPainter &painter) const;
    void painterPixColor(QImage &picture) const;

private:
    void paintGridLine(QPainter &painter, Qt::PenStyle style, const QPointF &from, const QPointF &to) const;
    void paintHorizontalNumber(QPainter &painter, const QFont &font, int k) const;
    void paintVerticalNumber(QPainter &painter, const QFont &font, int j) const;
    void paintLabelledTick(QPainter &painter, int x1, int y1, int x2, int y2, const QString &text) const;
    void paintColorTemperaturePoints(QPainter &painter) const;
    QPolygonF trianglePolygon(const ColorTriangleObject &triangle) const;

    CEIAtlasValue m_atlas;
    ChromaRange m_range;
    CEIAtlasValue::TColorSystem m_colorSystem;
    Mapping m_mapping;
    int m_width = 0;
    int m_height = 0;
    QList<QPointF> m_colorTemperaturePoints;
    QList<QRectF> m_measurePoints;
    QList<QRectF> m_cmyPoints;
    QColor m_backgroundColor{23, 23, 26, 255};
    QColor m_lineColor{255, 255, 255, 255};
    QColor m_pictureColor{23, 23, 26, 255};
};

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_PLAINRENDERER_H
