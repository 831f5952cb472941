// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CHARTEXPORT_H
#define GAMUTVIEWER_CHARTEXPORT_H

#include "drawing/chartscene.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <optional>

namespace gamutviewer {

/*! \brief The formats that a chart is exported in. */
enum class ChartFormat {
    Png,
    Svg, //!< lines and texts as vectors, the colours of the horseshoe as an image
    Pdf //!< as SVG, on one page of the chart's size
};

/*! \brief How large an exported chart is. */
struct ChartExtent {
    QSize size{800, 800}; //!< in pixels at device pixel ratio 1, in pixels of 1/96 inch on paper
    qreal devicePixelRatio = 1.0; //!< pixels of a PNG, and of the image in the other formats, for each of the above
};

/*! \brief Longest side of a picture, in pixels. */
constexpr int maximumPictureSide = 8192;

/*! \brief The format that the suffix of \a fileName stands for, in any case; nothing when it is none of them. */
std::optional<ChartFormat> chartFormat(const QString &fileName);

/*!
 * \brief The chart as a picture, of size times device pixel ratio in pixels: what exportChart() writes as PNG.
 *
 * At ratio 1 it is the picture of the library's own renderer, with the key over it, unless that draws something else:
 * the u′, v′ diagram, or digits that do not fit into a small picture. A null image when there is no memory for it or a
 * side is less than 1 or more than maximumPictureSide pixels.
 */
QImage chartPicture(const ChartScene &scene, const ChartExtent &extent);

/*!
 * \brief Writes the chart to \a fileName, which appears, or is replaced, only when it is complete.
 *
 * \a title becomes the title of an SVG or PDF document. Returns what went wrong, or nothing.
 */
QString exportChart(const ChartScene &scene, const QString &title, const ChartExtent &extent, ChartFormat format,
    const QString &fileName);

} // namespace gamutviewer

#endif
