// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_PICTURE_P_H
#define CEIECHART_RENDER_PICTURE_P_H

#include <QColor>
#include <QImage>

#include <algorithm>
#include <memory>

namespace ceiechart {

/*!
 * \brief A picture to draw into, null when the size is empty, negative or cannot be allocated; it is going to be filled
 * with \a background first.
 *
 * With an opaque background every pixel stays opaque, so that the straight and the premultiplied format hold the
 * same values: drawing in the premultiplied one, which the paint engine is at home in, is several times as fast. The
 * engine fills no farther than its coordinates reach; what lies beyond stays transparent.
 */
inline std::unique_ptr<QImage> newPicture(int width, int height, const QColor &background)
{
    constexpr int engineReach = 32767;
    const bool opaque = background.isValid() && background.alpha() == 255 && std::max(width, height) <= engineReach;
    auto picture
        = std::make_unique<QImage>(width, height, opaque ? QImage::Format_ARGB32_Premultiplied : QImage::Format_ARGB32);
    if (!opaque) {
        picture->fill(Qt::transparent);
    }
    return picture;
}

/*! \brief Hands out a picture that is no longer drawn into, in Format_ARGB32. */
inline QImage *finished(std::unique_ptr<QImage> picture)
{
    picture->reinterpretAsFormat(QImage::Format_ARGB32);
    return picture.release();
}

} // namespace ceiechart

#endif
