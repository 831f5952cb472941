// SPDX-FileCopyrightText: 2026 the ceiechart authors
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
 * \brief The definition of the picture, written as plainly as possible. The tests compare every picture with it.
 *
 * Nothing here is shared with the renderer of the library, and nothing is optimised: pixels, lines and calls of the
 * painter follow each other one by one, in the order in which the picture is defined.
 */
namespace reference {

/*! \brief \a value limited to the range from \a low to \a high; \a high for NaN. */
double clamp(double value, double low, double high);

/*! \brief The colour of a chromaticity in the horseshoe. */
QColor horseshoeColor(const CEIAtlasValue::TColorSystem &colorSystem, const QPointF &xy, double gamma);

/*!
 * \brief Fills the first \a width × \a height pixels of \a picture, each row between its first and last pixel with red.
 */
void fillPlain(QImage &picture, int width, int height, const Mapping &mapping,
    const CEIAtlasValue::TColorSystem &colorSystem, double gamma);

/*! \brief Draws the diagrams of NewCEIE::DrawCEIPicture. It keeps the same state from picture to picture. */
class PlainRenderer {
public:
    /*! \brief Creates a renderer with the ranges and colours of the CIE 1931 diagram. */
    PlainRenderer();

    /*! \brief Creates a renderer with another range or other primaries for the horseshoe. */
    PlainRenderer(const ChromaRange &range, const CEIAtlasValue::TColorSystem &colorSystem);

    QImage drawCEIPicture(int w, int h, bool showCoordinate, const QList<QPointF> &colorTemperaturePoints);
    QImage drawCEIPicture(int w, int h, bool showCoordinate, const QList<ColorTriangleObject> &triangles,
        const QList<ColorTriangleObject> &standards, const QPolygonF &clipPolygon, const QString &skipText);

    void setGraphColor(const QColor &line, const QColor &picture);
    void setBackgroudColor(const QColor &color);
    void setPointData(const QList<QRectF> &rectangles);
    void setCMYPointData(const QList<QRectF> &rectangles);

    /*!
     * \brief Sets the size of the picture and computes its mapping, as at the start of every drawing.
     *
     * The percentages are the positions of the near and the far edges of the plot.
     */
    void setPictureSize(int w, int h, int nearPercent = 5, int farPercent = 95);
    const Mapping &mapping() const { return m_mapping; }

    // The layers. Each draws in the state in which it receives the painter.
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

/*! \brief The mapping of a picture of \a w by \a h pixels. */
inline Mapping mappingOf(int w, int h)
{
    PlainRenderer plain;
    plain.setPictureSize(w, h);
    return plain.mapping();
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_PLAINRENDERER_H
