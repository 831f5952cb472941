// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_SHAPEPICTURES_P_H
#define CEIECHART_DIAGRAM_SHAPEPICTURES_P_H

#include <QImage>
#include <QRectF>

#include <functional>
#include <map>
#include <tuple>

class QPainter;

namespace ceiechart {

/*!
 * \brief Shapes that look the same from step to step, and are kept as pictures.
 *
 * The raster engine takes ten times as long to stroke the outline of a handle as to put down a picture of it.
 */
class ShapePictures {
public:
    /*!
     * \brief Paints the shape that \a paintShape paints within \a bounds, to a quarter of a pixel.
     *
     * \param look  tells shapes of the same size apart
     *
     * Painters that do not paint on pixels, or turn them, get the shape itself.
     */
    void paint(
        QPainter &painter, quint64 look, const QRectF &bounds, const std::function<void(QPainter &)> &paintShape);
    void forget() { m_pictures.clear(); }

private:
    //! The look, device pixels per logical pixel, the size, and by how much it is off whole pixels.
    using Key = std::tuple<quint64, double, double, double, double, double>;
    std::map<Key, QImage> m_pictures;
};

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_SHAPEPICTURES_P_H
