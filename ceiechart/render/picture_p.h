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
 * It has the memory of \a former if that is a picture of the same size that nobody else holds.
 *
 * The caller must first fill it with \a background. If that colour is opaque, every pixel remains opaque, so that the
 * straight and the premultiplied format hold the same values. The picture then has the premultiplied format, in which
 * the paint engine draws several times faster. The engine cannot fill a picture beyond the range of its coordinates;
 * such a picture is transparent there and has the straight format.
 */
inline std::unique_ptr<QImage> newPicture(int width, int height, const QColor &background, QImage former)
{
    constexpr int engineReach = 32767;
    const bool opaque = background.isValid() && background.alpha() == 255 && std::max(width, height) <= engineReach;
    const auto format = opaque ? QImage::Format_ARGB32_Premultiplied : QImage::Format_ARGB32;
    auto picture = std::make_unique<QImage>();
    if (former.size() == QSize(width, height) && former.isDetached() && former.reinterpretAsFormat(format)) {
        picture->swap(former);
        // As a new one has them: the sizes of texts depend on them.
        const QImage smallest(1, 1, format);
        picture->setDotsPerMeterX(smallest.dotsPerMeterX());
        picture->setDotsPerMeterY(smallest.dotsPerMeterY());
    } else {
        former = QImage(); // first, so that both never need memory at once
        *picture = QImage(width, height, format);
    }
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
