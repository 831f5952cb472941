// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMVIEW_P_H
#define CEIECHART_DIAGRAM_DIAGRAMVIEW_P_H

#include <ceiechart/diagram/diagramedit_p.h>
#include <ceiechart/diagram/diagramhands_p.h>
#include <ceiechart/diagram/diagrampainter.h>
#include <ceiechart/diagram/diagramview.h>
#include <ceiechart/diagram/shapepictures_p.h>
#include <ceiechart/diagram/textstyle_p.h>

#include <QElapsedTimer>
#include <QPointer>
#include <QSet>
#include <QTimer>

#include <deque>
#include <functional>
#include <utility>

class QAccessibleEvent;
class QGestureEvent;
class QNativeGestureEvent;
class QTouchEvent;

namespace ceiechart {

class MarkGrid;

/*! The fonts of the label at what is edited. */
class LabelFonts {
public:
    //! \a font of a widget of so many \a dotsPerInch, which fonts know but do not compare.
    LabelFonts(const QFont &font, int dotsPerInch);

    bool areOf(const QFont &font, int dotsPerInch) const
    {
        return m_others.font() == font && m_dotsPerInch == dotsPerInch;
    }
    //! Of the \a line of a label: the first is bold.
    const TextStyle &ofLine(int line) const { return line == 0 ? m_first : m_others; }
    double lineHeight() const { return m_first.height(); }

private:
    int m_dotsPerInch;
    TextStyle m_first;
    TextStyle m_others;
};

/*! What lies over the diagram and comes and goes with hands and focus. */
struct DiagramOverlay {
    //! A handle as it is drawn.
    struct Handle {
        GamutVertex vertex = GamutVertex::Red;
        QPointF at;
        bool isMovable = true;
        bool isSelected = false;
        bool isHovered = false;
        bool hasFocus = false;

        bool operator==(const Handle &other) const;
    };
    QVector<Handle> handles; //!< from bottom to top; the label is that of the last
    QVector<QPolygonF> guides; //!< what was snapped to and what movement is locked to; a single point is a place
    QStringList label; //!< lines of the label at what is edited; empty for none
    QRectF labelPlace;
    Qt::LayoutDirection direction = Qt::LeftToRight; //!< in which the label is read
    QString readout; //!< empty for none
    QRectF readoutPlace;
    bool showsFocusFrame = false;

    //! What \a handle covers, with its ring.
    static QRectF bounds(const Handle &handle);
    //! The line from the label to what it belongs to, from the nearest place of the label to the middle of the handle.
    QLineF labelLine() const;
    //! Whether \a other shows the same label at the same place, or no label either.
    bool hasSameLabel(const DiagramOverlay &other) const;
    //! \a lines, the first as it is, the others broken where they are wider than \a width.
    static QStringList wrapped(const QStringList &lines, const LabelFonts &fonts, double width);
    static QSizeF labelSize(const QStringList &lines, const LabelFonts &fonts);
    static void paintHandle(QPainter &painter, const Handle &handle, const DiagramPalette &palette);
    void paintReadout(QPainter &painter, const DiagramPalette &palette) const;
    //! What can be seen of it within \a needed.
    void paint(QPainter &painter, const QRectF &plot, const DiagramPalette &palette, const LabelFonts &fonts,
        const QRegion &needed, ShapePictures &pictures) const;
    void paintLabel(
        QPainter &painter, const DiagramPalette &palette, const LabelFonts &fonts, ShapePictures &pictures) const;
};

class DiagramView::Private {
public:
    enum class Hand {
        Idle,
        Panning,
        Holding, //!< pressed on a handle that has not moved yet
        Dragging,
        Spent //!< the button is down, but what it did is over
    };

    //! The label at what is edited, but for its coordinates and the host's note.
    struct EditLabel {
        GamutVertex vertex = GamutVertex::Red;
        QString snap; //!< the name of what was snapped to
        QString reason; //!< why a step was not made
        bool isSlow = false; //!< whether the last step was a tenth of the way
    };

    explicit Private(DiagramView *view);

    /*!
     * Emits \a signal and says whether the view is still there, as a slot may delete it. Whoever calls a function that
     * emits and goes on afterwards looks too.
     *
     * What is told while Qt hides the view is kept until Qt has done with it, in order.
     */
    template <typename Signal, typename... Args>
    bool tell(Signal signal, const Args &...args)
    {
        if (isLettingGo) {
            untold.push_back([this, signal, args...] { Q_EMIT(q->*signal)(args...); });
            return true;
        }
        const QPointer<DiagramView> view(q);
        if (!tellUntold()) {
            return false;
        }
        Q_EMIT(q->*signal)(args...);
        return !view.isNull();
    }
    bool tellUntold();
    bool tellEdit();

    // Content
    const DiagramGamut *target() const;
    bool hasHandles() const;
    TargetContext context() const;
    void change(const DiagramContent &changed);
    //! Changes what no signal tells of.
    template <typename Part>
    void changePart(Part DiagramContent::*part, const Part &value)
    {
        DiagramContent changed = content;
        changed.*part = value;
        change(changed);
    }
    void replace(GamutRole role, const std::vector<Model::ColorGamut> &gamuts);
    void putTarget(const Model::Targets &targets);
    void putRings(const QVector<DiagramRings> &rings);
    static DiagramGround groundOf(const QPalette &palette);
    void followPalette();
    QFont textFont() const;
    //! Of coordinates; slow steps are seen in one more than the zoom tells apart.
    int decimals(bool isSlow) const;

    // The view
    //! Takes \a wanted, with the margins that its numbers need, so that what is at \a anchor stays there.
    void look(DiagramViewport wanted, const QPointF &anchor);
    void look(const DiagramViewport &wanted);
    void zoom(double factor, const QPointF &anchor);
    void pan(const QPointF &delta);
    QPointF zoomAnchor() const;

    // Painting
    //! Paints what of the view lies in \a region.
    void paintView(QPainter &p, const QRegion &region);
    void forgetPictures();
    const QImage &linesPicture();
    void refreshOverlay();
    //! Refreshes the overlay, and has what looks otherwise then painted again.
    void updateOverlay();
    //! Where \a some shows what \a other does not.
    QRegion overlayRegion(const DiagramOverlay &some, const DiagramOverlay &other) const;
    bool meetsAnother(const Model::Targets &targets) const;
    QRegion editedRegion(const Model::Targets &before, const Model::Targets &after) const;
    //! Where \a some are that \a others are not.
    QRegion ringRegion(const QVector<DiagramRings> &some, const QVector<DiagramRings> &others) const;
    //! Where one of \a former and \a latter has a name that the other has not.
    QRegion nameRegion(const QVector<DiagramLabel> &former, const QVector<DiagramLabel> &latter) const;
    void placeLabel();
    //! Of the widget's font.
    const LabelFonts &labelFonts();
    //! Where a label of \a size stands that belongs to \a at: on no box of \a avoid, and clear of \a corners.
    QRectF labelPlace(
        const QSizeF &size, const QPointF &at, const QVector<QRectF> &avoid, const MarkGrid &corners) const;
    //! The readout in the corner where it covers least, and not what it is about.
    void placeReadout();
    void weighReadoutCorners(const QSizeF &size);
    //! The entries of the label, each a line unless it is wrapped.
    QStringList labelEntries() const;

    // Hands
    std::optional<GamutVertex> handleAt(const QPointF &position) const;
    //! The handle that the pointer is over; that which it has hold of stays the one.
    std::optional<GamutVertex> handleBelowPointer() const;
    QPointF positionOf(GamutVertex vertex) const;
    void press(const QPointF &position, Qt::MouseButton button);
    void moveTo(const QPointF &position, Qt::KeyboardModifiers modifiers);
    void release(Qt::MouseButton button);
    void hover(const QPointF &position);
    //! Hovers where the pointer is, if it is over the widget, after something has changed below it.
    void hoverAgain();
    void endHover();
    void drag(const QPointF &way, Qt::KeyboardModifiers modifiers);
    //! The diagram has moved below the hand, which held on to \a point: what it drags comes along.
    void followHand(const QPointF &point);
    bool apply(const EditStep &step, bool isSlow);
    bool changesTarget(const TargetMove &move) const;
    //! Says why \a vertex cannot be moved, and whether the view is still there.
    bool refuseLocked(GamutVertex vertex);
    //! Brings the handle of \a vertex into the plot.
    void reveal(GamutVertex vertex);
    void selectByKey(GamutVertex vertex);
    //! Takes a drag back; the button or the finger has nothing in its hand any more.
    void endHand();
    //! Ends all that hands do, of a view that can be used no more. It is told later: Qt is not done with the view.
    void letGo();
    //! Ends an edit with the target that was there before it.
    void takeBack();
    void finishEditing();
    void finishKeys();
    bool escape();
    void dropLabel();
    void updateCursor();
    bool nudge(QKeyEvent *event);
    bool wants(const QKeyEvent &event) const;
    bool touch(QTouchEvent *event);
    //! From the whole to a close-up at \a position, and back: what two taps do.
    void zoomOrShowAll(const QPointF &position);
    bool gesture(QGestureEvent *event);
    bool nativeGesture(QNativeGestureEvent *event);

    DiagramView *const q;
    std::unique_ptr<DiagramPainter> painter;
    DiagramContent content;
    DiagramViewport viewport;
    std::shared_ptr<const TargetRules> rules;
    bool readOnly = false;
    int digits = automaticDigits;
    bool readoutShown = true;
    QString editNote;
    std::optional<GamutVertex> selected;

    QImage lines; //!< scale and gamuts, which no edit changes, on nothing; made for the first step of an edit
    bool linesAreReady = false;
    ShapePictures shapes; //!< of the overlay
    std::optional<LabelFonts> keptLabelFonts; //!< those of labelFonts(), once they have been needed
    bool isBlank = false; //!< there was not enough memory to paint it

    Hand hand = Hand::Idle;
    Qt::MouseButton button = Qt::NoButton;
    Grip grip;
    QPointF slipped; //!< by how much the diagram has moved below a hand that does not drag yet
    QPointF panRest; //!< what is left of a pan by whole device pixels
    std::optional<TargetEdit> edit;
    Model::Targets before; //!< what Esc brings back
    bool keysAreEditing = false;
    QSet<int> arrowsDown; //!< those that move a handle
    QString lastReason;
    std::optional<EditLabel> label;
    QVector<QPolygonF> guidesXy;
    QTimer labelTimer;

    std::optional<QPointF> pointer; //!< over the widget
    std::optional<GamutVertex> hovered;
    bool isHovering = false; //!< over the plot
    //! What was signalled, and of which view: in another one, its text is another.
    struct HoverTold {
        QPointF xy;
        DiagramViewport viewport;
    };
    std::optional<HoverTold> hoverTold; //!< nothing while the pointer is over no chromaticity
    bool touching = false;
    bool pinching = false;
    std::pair<int, int> pinchFingers;
    QPointF pinchMiddle;
    double pinchLength = 0.0;
    //! What a finger did last on free ground.
    struct Tap {
        QElapsedTimer since; //!< not running when it was no tap
        QPointF at;
        bool isSecond = false; //!< of the finger that is down
    };
    Tap tap;
    QElapsedTimer sinceScroll; //!< of fingers on a pad

    DiagramOverlay overlay;
    //! A corner where the readout may stand.
    struct ReadoutCorner {
        QRectF place;
        double cost; //!< of what it covers there, but for the pointer
    };
    QVector<ReadoutCorner> readoutCorners; //!< the usual one first; empty until they are needed

    bool isLettingGo = false;
    std::deque<std::function<void()>> untold; //!< the first is told first
};

//! Whether \a vertex is one of allGamutVertices; a host may have made it of any number.
inline bool isVertex(GamutVertex vertex)
{
    return vertex >= GamutVertex::Red && vertex <= GamutVertex::White;
}

//! Makes the view's accessible objects known; once is enough.
void installDiagramAccessibility();
//! The way of all events to accessibility clients. Tests listen here: without a client, Qt passes nothing on.
extern void (*sendAccessibilityEvent)(QAccessibleEvent *event);
//! Tells accessibility clients that the handle of \a vertex has got the focus, or has moved by keyboard.
void announceFocus(DiagramView *view, GamutVertex vertex);
void announceMove(DiagramView *view, GamutVertex vertex);
//! Tells them that the gamuts are others.
void announceGamuts(DiagramView *view);

} // namespace ceiechart

#endif
