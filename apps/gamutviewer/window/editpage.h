// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_EDITPAGE_H
#define GAMUTVIEWER_EDITPAGE_H

#include "drawing/diagramframe.h"
#include "drawing/gamutoverlay.h"
#include "window/page.h"

#include <ceiechart/legacy/ceiegraphicsview.h>

#include <memory>
#include <optional>

class QKeyEvent;
class QMouseEvent;

namespace gamutviewer {

class DiagramKey;
class LayerRow;
class TargetSession;

/*!
 * \brief The legacy chart, on which the target is edited with mouse and keyboard, on the x, y or the u', v' diagram.
 *
 * The chart shows the colours and the handles of the target; lines, digits and points are drawn over it, sharp at every
 * device pixel ratio and with a switch for each layer.
 *
 * The chart moves a primary and reports it; the page makes an edit of the document of that, which snaps and rounds,
 * and hands the result back. The chart itself keeps the white where it is, so a drag of the white is made here of the
 * chart's reports and the place of the pointer.
 */
class EditPage : public Page {
    Q_OBJECT

public:
    EditPage(TargetSession *session, LayerSwitches *switches, DrawCEIPicture::CEIEType type, QWidget *parent = nullptr);

    CEIEGraphicsView *chart() const { return m_chart; }
    DiagramKey *key() const { return m_key; }
    /*! \brief Where on the chart's viewport the CIE 1931 chromaticity \a xy is shown. */
    QPoint viewportPosition(const QPointF &xy) const;

protected:
    void refresh() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Pointer { Up, Down, Cancelled };

    void buildSwitches(QLayout *layout);
    void fit();
    void applyRules();
    void pushGamuts();
    QPointF scenePosition(const QPointF &xy) const;
    QPointF chromaticityAt(const QPointF &position) const;
    void dragTo(Vertex vertex, const QPointF &xy);

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
    LayerSwitches *m_switches;
    Model::Diagram m_diagram;
    QVector<LayerRow *> m_rows;
    ChartBox *m_box;
    CEIEGraphicsView *m_chart;
    DiagramKey *m_key;
    std::unique_ptr<GamutOverlay> m_overlay;
    DiagramFrame m_frame;
    Pointer m_pointer = Pointer::Up;
    bool m_pointerHasMoved = false;
    QPointF m_pointerXy;
    std::optional<Vertex> m_grabbed; // the handle under the press
    QPointF m_grabOffset; // from the pointer to its middle, in pixels
    bool m_forwarding = false;
};

} // namespace gamutviewer

#endif
