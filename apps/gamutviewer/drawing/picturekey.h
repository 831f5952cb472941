// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_PICTUREKEY_H
#define GAMUTVIEWER_PICTUREKEY_H

#include <ceiechart/diagram/diagramcontent.h>
#include <ceiechart/diagram/diagramviewport.h>

#include <QFont>
#include <QImage>
#include <QRectF>
#include <QSizeF>
#include <QVector>

class QPainter;

namespace gamutviewer {

/*! \brief The resolution of all pictures, 96 dpi: texts and lines are the same on every screen. */
constexpr int pictureDotsPerMeter = 3780;

/*!
 * \brief The key of a picture: each gamut that is shown, with its line as drawn, its name and its role.
 *
 * Lengths are pixels of 1/96 inch, and so are the units of the painter.
 */
class PictureKey {
public:
    /*! \brief No key. */
    PictureKey() = default;
    /*! \brief A key of \a content in letters of \a pixelSize. */
    PictureKey(const ceiechart::DiagramContent &content, int pixelSize);

    bool isEmpty() const { return m_rows.isEmpty(); } //!< whether there is nothing to name
    QSizeF size() const { return m_size; } //!< of the whole
    /*! \brief Paints the key with its top left corner at \a at. */
    void paint(QPainter *painter, const QPointF &at) const;

private:
    struct Row {
        ceiechart::GamutRole role;
        QString name;
        QString roleName;
    };

    ceiechart::DiagramGround m_ground = ceiechart::DiagramGround::Light;
    QFont m_font;
    QVector<Row> m_rows;
    double m_rowHeight = 0.0;
    double m_nameWidth = 0.0;
    QSizeF m_size;
};

/*! \brief Where the diagram and its key stand on a picture, in pixels of 1/96 inch. */
struct PictureLayout {
    QRectF diagram; //!< all of the picture, or what a key beside the diagram leaves of it
    PictureKey key; //!< empty when there is no room for it, or nothing to name
    QPointF keyPlace; //!< its top left corner
    //! The diagram and its key, in one pixel for each of these, if the place was looked for in such a picture; or null.
    QImage painted;
};

/*!
 * \brief Finds the place for the key of \a content on a picture of \a size.
 *
 * Within the plot where nothing is drawn, otherwise beside or below the diagram, as long as that leaves the diagram
 * most of its size; in smaller letters where there is little room.
 */
PictureLayout layOutPicture(
    const ceiechart::DiagramContent &content, const ceiechart::DiagramViewport &view, const QSizeF &size);

} // namespace gamutviewer

#endif
