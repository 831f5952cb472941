// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_CANVAS_H
#define CEIECHART_TESTS_REFERENCE_CANVAS_H

#include <QGraphicsView>
#include <QImage>
#include <QPainter>

#include <functional>

namespace reference {

/*! \brief A picture of one colour with something painted on it. */
inline QImage canvas(const QSize &size, const std::function<void(QPainter &)> &paint, const QColor &color = Qt::magenta)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    QPainter painter(&image);
    paint(painter);
    return image;
}

/*! \brief A scene's background as a view of the given size shows it. */
template <class Scene>
QImage backgroundOf(Scene &scene, const QSize &viewSize, const QSize &canvasSize)
{
    QGraphicsView view(&scene);
    view.resize(viewSize);
    return canvas(canvasSize, [&scene](QPainter &painter) { scene.drawBackground(&painter, QRectF()); });
}

/*! \brief A scene's background in a view as big as the scene. */
template <class Scene>
QImage backgroundOf(Scene &scene)
{
    const QSize size(int(scene.width()), int(scene.height()));
    return backgroundOf(scene, size, size);
}

/*! \brief A picture drawn as scenes draw it. */
inline QImage shownPicture(const QImage &picture, const QRectF &target, const QSize &canvasSize)
{
    return canvas(canvasSize, [&](QPainter &painter) {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.drawImage(target, picture, QRectF(picture.rect()));
    });
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_CANVAS_H
