// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_CHARTPICTURE_P_H
#define CEIECHART_SCENE_CHARTPICTURE_P_H

#include <QImage>
#include <QSize>

class QPainter;

namespace ceiechart {

/*!
 * \brief The rendered picture, cached for repeated painting.
 *
 * While the user drags or moves the mouse, an unchanged picture is painted repeatedly. The conversion and scaling that
 * the paint engine would repeat each time are done once.
 */
class ChartPicture {
public:
    /*!
     * \brief Replaces the picture and takes ownership of \a picture, which can be null.
     *
     * \param isKnownAsOpaque saves looking at each pixel
     */
    void reset(QImage *picture = nullptr, bool isKnownAsOpaque = false);

    /*!
     * \brief Gives up the picture, for the next one to take its memory, if it is large and nobody else holds it.
     *
     * New memory of a small one costs nothing worth mentioning: of these, nothing is given, so that they are still
     * shown if the next drawing fails.
     */
    QImage takeLarge();

    /*! \brief Whether a picture has been set, even a null image. */
    bool isSet() const { return m_set; }
    /*! \brief Whether there is no picture or the picture is a null image. */
    bool isNull() const { return m_image.isNull(); }
    /*! \brief The size of the picture in its own pixels, of the device that it was rendered for. */
    QSize size() const { return m_image.size(); }
    /*! \brief The size of the picture in pixels of the scene: what was asked for when it was rendered. */
    QSize sceneSize() const { return (QSizeF(m_image.size()) / m_pixelRatio).toSize(); }
    /*! \brief The picture with its ratio of pixels; a null image if there is none. */
    QImage image() const;

    /*! \brief Draws the whole picture, smoothly scaled to \a target. */
    void draw(QPainter *painter, const QRectF &target);
    /*! \brief Draws the part \a source of the picture, smoothly scaled to \a target. */
    void drawPart(QPainter *painter, const QRectF &target, const QRectF &source);

private:
    /*! \brief The picture, sharing its data, in the format that is painted fastest with the same result. */
    QImage readyFor(const QPainter &painter) const;

    QImage m_image;
    QImage m_scaled;
    bool m_set = false;
    bool m_opaque = false;
    double m_pixelRatio = 1.0;
};

/*! \brief Keeps a large picture where a renderer takes it from, and releases it in the end if it has not been taken. */
class GivenMemory {
public:
    GivenMemory(QImage &place, QImage picture)
        : m_place(place)
    {
        m_place.swap(picture);
    }
    ~GivenMemory() { m_place = QImage(); }
    GivenMemory(const GivenMemory &) = delete;
    GivenMemory &operator=(const GivenMemory &) = delete;

private:
    QImage &m_place;
};

} // namespace ceiechart

#endif
