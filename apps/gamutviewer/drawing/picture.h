// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_PICTURE_H
#define GAMUTVIEWER_PICTURE_H

#include <ceiechart/diagram/diagramcontent.h>
#include <ceiechart/diagram/diagramviewport.h>

#include <QImage>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>
#include <utility>

namespace gamutviewer {

struct WallPicture;

struct PictureLayout;

/*!
 * \brief What a picture for a file, the clipboard or paper shows.
 *
 * The diagram on one with a side of less than 350 pixels has no names and no isotherms, which would cover it, and with
 * one of less than 200 pixels no texts, as on an icon.
 */
struct Picture {
    ceiechart::DiagramContent content; //!< what is drawn
    ceiechart::DiagramViewport view; //!< which diagram and which part of it, on an area of any size
    bool hasKey = true; //!< whether the gamuts are named in a key, where there is room for one
    std::shared_ptr<const WallPicture> wall{}; //!< drawn instead of the diagram, whatever view and hasKey are; or null
    bool isLibraryChart = false; //!< whether it is libraryChart() of content instead, whatever view and hasKey are
    //! Where laidOut() has put diagram and key of the rest on a size; null to find it out when it is needed.
    std::shared_ptr<const std::pair<QSize, PictureLayout>> layout{};
};

/*! \brief The formats that a picture is written in. */
enum class PictureFormat {
    Png,
    Svg, //!< lines and texts as vectors, the colours as one image; not for a library chart
    Pdf //!< as SVG, on one page of the picture's size
};

/*! \brief How large a picture is. */
struct PictureExtent {
    QSize size{800, 800}; //!< in pixels at device pixel ratio 1, in pixels of 1/96 inch on paper
    qreal devicePixelRatio = 1.0; //!< pixels of a PNG for each of the above; 1 for a library chart
};

/*! \brief Longest side of a picture, in pixels. */
constexpr int maximumPictureSide = 8192;

/*! \brief The suffix of files in \a format: "png", "svg" or "pdf". */
QString pictureSuffix(PictureFormat format);

/*! \brief The format that the suffix of \a fileName stands for, in any case; nothing when it is none of them. */
std::optional<PictureFormat> pictureFormat(const QString &fileName);

/*!
 * \brief \a picture, whose layout on \a size is found out once for all that is done with it.
 *
 * To look for a place of the key takes as long as to paint the picture. The other members must stay as they are.
 */
Picture laidOut(Picture picture, const QSize &size);

/*!
 * \brief Whether \a picture is to have a key for which there is no room in \a size.
 *
 * It is left out then, rather than clipped or put over the diagram.
 */
bool lacksRoomForKey(const Picture &picture, const QSize &size);

/*!
 * \brief \a picture of size times device pixel ratio in pixels: what exportPicture() writes as PNG.
 *
 * A null image when there is no memory for it or a side is less than 1 or more than maximumPictureSide pixels.
 */
QImage pixelsOf(const Picture &picture, const PictureExtent &extent);

/*!
 * \brief Writes \a picture to \a fileName, which appears, or is replaced, only when it is complete.
 *
 * \a title becomes the title of an SVG or PDF document. Returns what went wrong, or nothing.
 */
QString exportPicture(const Picture &picture, const QString &title, const PictureExtent &extent, PictureFormat format,
    const QString &fileName);

} // namespace gamutviewer

#endif
