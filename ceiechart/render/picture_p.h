// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_PICTURE_P_H
#define CEIECHART_RENDER_PICTURE_P_H

#include <QColor>
#include <QImage>

#include <algorithm>
#include <memory>

namespace ceiechart {

/*!
 * \brief Creates a picture to draw into; a null image if the size is empty or negative or cannot be allocated.
 *
 * The caller must first fill it with \a background. If that colour is opaque, every pixel remains opaque, so that the
 * straight and the premultiplied format hold the same values. The picture then has the premultiplied format, in which
 * the paint engine draws several times faster. The engine cannot fill a picture beyond the range of its coordinates;
 * such a picture is transparent there and has the straight format.
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

/*! \brief Releases a finished picture to the caller, in Format_ARGB32. */
inline QImage *finished(std::unique_ptr<QImage> picture)
{
    picture->reinterpretAsFormat(QImage::Format_ARGB32);
    return picture.release();
}

} // namespace ceiechart

#endif
