// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_DIAGRAM_FULLDIAGRAM_H
#define CEIECHART_TESTS_DIAGRAM_FULLDIAGRAM_H

#include <ceiechart/diagram/diagrampainter.h>

#include <QImage>
#include <QPainter>

#include <cstdlib>

// For the tests that look at what is painted.
namespace fulldiagram {

using namespace ceiechart;

inline constexpr Model::Diagram allDiagrams[]
    = {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960};
inline constexpr GamutRole allRoles[]
    = {GamutRole::Standard, GamutRole::Target, GamutRole::Original, GamutRole::Measured, GamutRole::Declared};
inline const QPointF d65(0.3127, 0.3290);

/*! \brief A gamut of equal luminances. */
inline Model::ColorGamut gamut(
    const char *name, const QPointF &red, const QPointF &green, const QPointF &blue, const QPointF &white = d65)
{
    const auto target = [](const QPointF &xy) { return Model::Target::fromYxy(1.0, xy.x(), xy.y()); };
    return Model::ColorGamut(name, {target(red), target(green), target(blue), target(white)});
}

/*! \brief Everything that a diagram can show. */
inline DiagramContent fullContent()
{
    DiagramContent content;
    content.gamuts = {{Model::rec709(), GamutRole::Standard}, {Model::rec2020(), GamutRole::Standard},
        {gamut("DCI-P3(D65) (edited)", {0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06}), GamutRole::Target},
        {gamut("LED wall", {0.70, 0.295}, {0.19, 0.715}, {0.13, 0.08}, {0.31, 0.32}), GamutRole::Original},
        {gamut("LED wall, warm", {0.69, 0.30}, {0.20, 0.71}, {0.135, 0.085}, {0.33, 0.335}), GamutRole::Measured},
        {gamut("\xE5\xB1\x8F", {0.67, 0.31}, {0.26, 0.68}, {0.149, 0.056}), GamutRole::Declared}};
    for (int i = 0; i < 12; ++i) {
        content.measurePoints.append({QPointF(0.25 + 0.03 * (i % 4), 0.3 + 0.05 * (i / 4)), QString::number(i)});
    }
    content.colorTemperaturePoints = {{QPointF(0.4234, 0.3990), QStringLiteral("3200")}};
    content.cmyPoints = {{QPointF(0.2246, 0.3287), QStringLiteral("C")}, {QPointF(0.3209, 0.1542), QStringLiteral("M")},
        {QPointF(0.4193, 0.5053), QStringLiteral("Y")}};
    content.rings = {{d65}};
    content.trail = {QPointF(0.31, 0.32), QPointF(0.311, 0.322), d65};
    return content;
}

/*! \brief Lets \a painter paint \a content round \a at. */
inline void prepare(DiagramPainter &painter, const DiagramContent &content, Model::Diagram diagram, const QSizeF &size,
    double zoom, const QPointF &at = d65)
{
    painter.setContent(content);
    DiagramViewport viewport(diagram, size, painter.margins());
    painter.setViewport(zoom == 1.0 ? viewport : viewport.centredOn(at, zoom));
}

/*! \brief What \a painter paints in its steps. */
inline QImage painted(DiagramPainter &painter, qreal ratio = 1.0)
{
    QImage image = painter.colors(ratio);
    QPainter onto(&image);
    painter.paintScale(&onto);
    painter.paintGamuts(&onto);
    painter.paintEdited(&onto);
    return image;
}

/*! \brief The pixels of \a image that are nearer to \a color than \a within. */
inline int countOf(const QImage &image, const QColor &color, int within = 24)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += std::abs(pixel.red() - color.red()) < within && std::abs(pixel.green() - color.green()) < within
                    && std::abs(pixel.blue() - color.blue()) < within
                ? 1
                : 0;
        }
    }
    return count;
}

} // namespace fulldiagram

#endif // CEIECHART_TESTS_DIAGRAM_FULLDIAGRAM_H
