// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_CHARTPICTURE_P_H
#define CEIECHART_SCENE_CHARTPICTURE_P_H

#include <QImage>

class QPainter;

namespace ceiechart {

/*!
 * \brief The rendered picture, kept ready for being painted over and over.
 *
 * A drag or a hover repaints a picture that has not changed: what the paint engine would have to do each time,
 * converting the picture and scaling it, is done once.
 */
class ChartPicture {
public:
    /*! \brief Takes ownership of \a picture, which may be null. */
    void reset(QImage *picture = nullptr);

    /*! \brief False until a picture was set, even a null one. */
    bool isSet() const { return m_set; }
    bool isNull() const { return m_image.isNull(); }
    QSize size() const { return m_image.size(); }

    /*! \brief The whole picture, smoothly scaled to \a target. */
    void draw(QPainter *painter, const QRectF &target);
    /*! \brief The part \a source of the picture, smoothly scaled to \a target. */
    void drawPart(QPainter *painter, const QRectF &target, const QRectF &source);

private:
    /*! \brief The picture in the format that is painted fastest without changing a pixel; shares its data. */
    QImage readyFor(const QPainter &painter) const;

    QImage m_image;
    QImage m_scaled;
    bool m_set = false;
    bool m_opaque = false;
};

} // namespace ceiechart

#endif
