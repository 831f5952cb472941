// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_RENDER_ROWLAYERS_P_H
#define CEIECHART_RENDER_ROWLAYERS_P_H

#include <ceiechart/diagram/horseshoefill_p.h>
#include <ceiechart/diagram/rowthreads_p.h>

#include <QPainterPath>
#include <QRgb>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QBrush;
class QColor;
class QImage;
class QPainter;

namespace ceiechart {

/*!
 * \brief Filled paths, with the colours of the horseshoe among them, which are drawn together.
 *
 * The pixels are those that the paint engine gives. But each row is finished before the next one is begun, so that it
 * stays in the cache, and what the horseshoe will hide is not drawn.
 */
class RowLayers {
public:
    /*! \brief Creates an empty set of layers. If \a threads is not null, they draw the rows. */
    explicit RowLayers(RowThreads *threads = nullptr);
    ~RowLayers();

    /*!
     * \brief Adds what painter.fillPath(path, brush) draws, over the layers that have been added before.
     *
     * \return false if it cannot be drawn here with the same pixels: if \a painter does not simply paint over an opaque
     * picture, or if the paint engine computes in a way that is not known. draw() has then been called, so that
     * \a painter can be used instead. While layers are added ahead it is true: addAhead() tells.
     */
    bool add(const QPainter &painter, const QPainterPath &path, const QBrush &brush);

    /*!
     * \brief Adds the colours of \a fill within \a clip, as a painter draws them on a picture in Format_ARGB32.
     *
     * \param picture the picture, opaque in Format_ARGB32_Premultiplied
     * \param background what the horseshoe is filled over; see fillHorseshoe()
     * \return false if that cannot be drawn here with the same pixels; see the other function
     */
    bool add(QImage &picture, const QPainterPath &clip, const HorseshoeFill &fill, const QColor &background);

    /*!
     * \brief Draws the layers that have been added, as the paint engine has to draw over them next.
     *
     * \return false if nothing may be drawn yet, as the layers are added ahead; these are then given up
     */
    bool engineDrawsNext();

    /*!
     * \brief Lets \a add add layers before what lies below them has been drawn.
     *
     * \return false if there are no threads for which that is of use, or if a layer cannot be drawn here. Nothing has
     * been added then.
     */
    bool addAhead(const std::function<void()> &add);
    /*! \brief Lets the other threads compute what the layers that were added ahead cover, until draw() is called. */
    void computeAhead();

    /*! \brief Draws the layers and forgets them. Without this call, what was added last is not drawn. */
    void draw();

private:
    Q_DISABLE_COPY(RowLayers)
    struct Layer {
        QPainterPath path; //!< in pixels of the picture
        QRgb color; //!< premultiplied; of the horseshoe, that of the background
        bool isHorseshoe;
    };
    class Band;
    void add(QImage &picture, Layer &&layer);
    RowBands bands() const;
    void endAhead();
    void forget();

    RowThreads *m_threads;
    bool m_isAddedAhead = false;
    bool m_isKnown = true; // what has been added ahead can be drawn here
    bool m_isComputing = false;
    std::vector<std::unique_ptr<Band>> m_bands; // computed ahead, or null
    QImage *m_picture = nullptr;
    std::vector<Layer> m_layers;
    std::optional<HorseshoeFill> m_fill;
};

} // namespace ceiechart

#endif // CEIECHART_RENDER_ROWLAYERS_P_H
