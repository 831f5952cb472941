// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_EDITPAGE_H
#define GAMUTVIEWER_EDITPAGE_H

#include "gamutoverlay.h"
#include "page.h"

#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/render/diagramgeometry.h>

#include <memory>
#include <optional>

class QCheckBox;
class QKeyEvent;
class QMouseEvent;

namespace gamutviewer {

class TargetSession;

/*!
 * \brief The legacy chart, on which the target is edited with mouse and keyboard, on the x, y or the u', v' diagram.
 *
 * The chart moves a primary and reports it; the page makes an edit of the document of that, which snaps and rounds,
 * and hands the result back. The chart itself keeps the white where it is, so a drag of the white is made here of the
 * chart's reports and the place of the pointer.
 */
class EditPage : public Page {
    Q_OBJECT

public:
    EditPage(TargetSession *session, DrawCEIPicture::CEIEType type, QWidget *parent = nullptr);

    CEIEGraphicsView *chart() const { return m_chart; }
    /*! \brief Where on the chart's viewport the CIE 1931 chromaticity \a xy is shown. */
    QPoint viewportPosition(const QPointF &xy) const;

protected:
    void refresh() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Pointer { Up, Down, Cancelled };

    void fit();
    void applyRules();
    void pushGamuts();
    QPointF scenePosition(const QPointF &xy) const;
    QPointF chromaticityAt(const QPointF &position) const;
    double snapReach() const;

    bool handlePointer(QMouseEvent *event);
    void pointerPressed(const QMouseEvent &event);
    void pointerMoved(const QMouseEvent &event);
    void pointerReleased(const QMouseEvent &event);
    void grabHandle(const QPointF &position);
    void forward(QMouseEvent *event);
    bool keyPressed(QKeyEvent *event);
    bool nudge(QKeyEvent *event);
    void cancelDrag();

    void targetMoved(const ColorTriangleObject &target);
    void whiteRequested();

    TargetSession *m_session;
    DrawCEIPicture::CEIEType m_type;
    ChartBox *m_box;
    CEIEGraphicsView *m_chart;
    QCheckBox *m_axes;
    QCheckBox *m_wavelengths = nullptr;
    std::unique_ptr<GamutOverlay> m_overlay;
    ceiechart::DiagramGeometry m_geometry;
    QSize m_pictureSize;
    QVector<QPointF> m_shownPoints;
    Pointer m_pointer = Pointer::Up;
    bool m_pointerHasMoved = false;
    QPointF m_pointerXy;
    std::optional<Vertex> m_grabbed; // the handle under the press
    QPointF m_grabOffset; // from the pointer to its middle, in pixels
    bool m_forwarding = false;
};

} // namespace gamutviewer

#endif
