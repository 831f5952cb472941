// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_DIAGRAMVIEW_H
#define CEIECHART_DIAGRAM_DIAGRAMVIEW_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/diagram/diagramcontent.h>
#include <ceiechart/diagram/diagramviewport.h>
#include <ceiechart/diagram/targetrules.h>

#include <QImage>
#include <QWidget>

#include <memory>
#include <optional>

namespace ceiechart {

/*!
 * \brief A chromaticity diagram to look at and to work on: gamuts over the horseshoe, and a target that is edited with
 *        mouse, keyboard and touch.
 *
 * The diagram is CIE 1931 x, y, CIE 1976 u′, v′ or CIE 1960 u, v, at equal scales on both axes. Records go in, records
 * come out; everything is in CIE 1931 x, y, whatever the diagram. Light or dark ground follows the widget's palette.
 *
 * \code
 * auto *view = new ceiechart::DiagramView(this);
 * view->setOriginal(wall);
 * view->setStandards({Model::rec709(), Model::rec2020()});
 * view->setTarget(Model::dciP3D65());
 * connect(view, &ceiechart::DiagramView::targetEdited, this, &Host::useTarget);
 * \endcode
 *
 * | hand | what it does |
 * |---|---|
 * | wheel, pinch, + and − | zoom about the pointer |
 * | drag on free ground, middle button, two-finger scroll, Alt and arrows | pan |
 * | double click on free ground, 0, Home | all of the diagram |
 * | double tap on free ground | closer, about the finger; all of the diagram when it is not all seen |
 * | click on free ground | no handle is selected |
 * | click on a handle, or within 24 pixels of it | select it |
 * | drag of a handle, or from within 24 pixels of it | move a primary or the white |
 * | Tab; R, G, B, W | the next handle; a certain one |
 * | arrows | move the handle that is selected; without one, pan |
 * | Shift | slow: a tenth of the way |
 * | Ctrl | stay on the line through the white; the white itself stays at its colour temperature |
 * | Alt, while a handle is dragged | stay on an axis |
 * | Ctrl and Alt together, while a handle is dragged | do not snap |
 * | Esc | cancel the drag or the move by keys; without either, no handle is selected |
 *
 * A press becomes a drag when the pointer is farther away from it than QStyleHints::startDragDistance(): within that, a
 * handle is selected and nothing moves. Then the handle sets out from its place without a jump, slow drags too, and
 * has caught up with the pointer after half as much again in the same direction. Only Esc and a click on free ground
 * let go of the handle that is selected: looking elsewhere does not.
 *
 * A view that is hidden or disabled lets go of everything: a drag is cancelled, a move by keys ends. Its signals come
 * when the event loop runs again, or before the next one that is emitted, so that slots may delete the view.
 *
 * Handles are shown unless the view is read-only or has no target. Each handle and each gamut is an accessible object.
 */
class CEIECHART_EXPORT DiagramView : public QWidget {
    Q_OBJECT
    /*! \brief The diagram whose coordinates are drawn; Cie1931 by default. */
    Q_PROPERTY(DiagramKind diagram READ diagramKind WRITE setDiagram NOTIFY diagramChanged)
    /*! \brief The layers that are shown; all by default. */
    Q_PROPERTY(
        ceiechart::diagramlayers::ShownLayers layers READ layers WRITE setLayers NOTIFY layersChanged DESIGNABLE false)
    /*! \brief How the horseshoe is coloured; dimmed outside of the common area by default. */
    Q_PROPERTY(ceiechart::diagramlayers::HorseshoeColors horseshoeColors READ horseshoeColors WRITE setHorseshoeColors
            NOTIFY horseshoeColorsChanged DESIGNABLE false)
    /*! \brief 1 when the whole horseshoe just fits, up to DiagramViewport::closest. */
    Q_PROPERTY(double zoomFactor READ zoomFactor WRITE setZoomFactor NOTIFY viewChanged)
    /*! \brief The CIE 1931 x, y in the middle of the plot. */
    Q_PROPERTY(QPointF centre READ centre WRITE setCentre NOTIFY viewChanged DESIGNABLE false)
    /*! \brief Whether the target cannot be edited; false by default. */
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged)
    /*! \brief The decimals of coordinates, 0 to 10, or automaticDigits, the default. */
    Q_PROPERTY(int digits READ digits WRITE setDigits NOTIFY digitsChanged)
    /*! \brief Whether a corner shows the coordinates under the pointer; true by default. */
    Q_PROPERTY(bool readoutShown READ isReadoutShown WRITE setReadoutShown NOTIFY readoutShownChanged)
    /*! \brief A text of the host in the label of the handle that is edited; empty by default. */
    Q_PROPERTY(QString editNote READ editNote WRITE setEditNote NOTIFY editNoteChanged DESIGNABLE false)

public:
    /*! \brief The diagrams, as a property can have them. */
    enum DiagramKind {
        Cie1931 = int(Model::Diagram::Cie1931), //!< x, y
        Cie1976 = int(Model::Diagram::Cie1976), //!< u′, v′
        Cie1960 = int(Model::Diagram::Cie1960) //!< u, v
    };
    Q_ENUM(DiagramKind)

    /*! \brief The distance within which a handle is hit, in logical pixels. */
    static constexpr double handleReach = 24.0;
    /*! \brief For digits(): as many decimals as the zoom tells apart. */
    static constexpr int automaticDigits = -1;

    /*!
     * \brief All of the CIE 1931 x, y diagram, without a gamut.
     * \param parent owns the view when not null
     */
    explicit DiagramView(QWidget *parent = nullptr);
    ~DiagramView() override;

    Model::Diagram diagram() const; //!< whose coordinates are drawn
    DiagramKind diagramKind() const; //!< diagram() as the property has it
    ShownLayers layers() const; //!< what is switched on; all of it by default
    bool isLayerShown(DiagramLayer layer) const; //!< whether \a layer is switched on
    HorseshoeColors
    horseshoeColors() const; //!< how the horseshoe is coloured; dimmed outside of the common area by default

    /*! \brief Zoom: 1 when the whole horseshoe just fits, up to DiagramViewport::closest. */
    double zoomFactor() const;
    /*! \brief The CIE 1931 x, y in the middle of the plot. */
    QPointF centre() const;
    /*! \brief The part of the diagram that is seen, with the way from positions on the widget to chromaticities. */
    const DiagramViewport &viewport() const;

    bool isReadOnly() const; //!< whether the target cannot be edited here; false by default
    /*!
     * \brief The number of decimals of coordinates in readout and labels; automaticDigits by default.
     *
     * Positions of a drag are rounded to as many.
     */
    int digits() const;
    /*!
     * \brief The decimals that coordinates have now: digits(), or as many as the zoom tells apart.
     *
     * One more than that while the label shows a slow step.
     */
    int shownDigits() const;
    bool isReadoutShown() const; //!< whether the coordinates under the pointer stand in a corner; true by default
    /*! \brief A line of the host's below the coordinates of what is being edited, "outside by 0.004"; empty by default.
     */
    QString editNote() const;

    /*! \brief All that is shown, as one value. Its ground is what the palette gives. */
    const DiagramContent &content() const;
    /*! \brief The gamuts, in the order in which they are drawn. */
    const QVector<DiagramGamut> &gamuts() const;
    /*! \brief The first gamut of \a role; nothing without one. */
    std::optional<Model::ColorGamut> gamut(GamutRole role) const;
    /*! \brief The rules of editing, never null; by default a StandardTargetRules of its own. */
    std::shared_ptr<const TargetRules> rules() const;

    /*!
     * \brief \a xy in the coordinates of the diagram, as readout and labels show it: "x 0.3127  y 0.3290".
     *
     * "not known" for what has no finite coordinates there.
     */
    QString coordinatesText(const QPointF &xy) const;

    /*! \brief Which handle the keyboard moves; nothing for none. */
    std::optional<GamutVertex> selectedVertex() const;
    /*! \brief Whether a drag of a handle is under way. */
    bool isEditing() const;

    /*! \brief Replaces all that is shown. The ground stays what the palette gives. */
    void setContent(const DiagramContent &content);
    void setGamuts(const QVector<DiagramGamut> &gamuts); //!< Replaces all gamuts.
    /*!
     * \brief Replaces the target, which is what is edited; a target that was switched off stays so.
     *
     * During a drag the handle that is dragged stays where it is, and the others become those of \a gamut.
     */
    void setTarget(const Model::ColorGamut &gamut);
    void setOriginal(const Model::ColorGamut &gamut); //!< What the display can show.
    void setMeasured(const Model::ColorGamut &gamut); //!< What a measurement has found.
    void setDeclared(const Model::ColorGamut &gamut); //!< What the display says of itself.
    void setStandards(const std::vector<Model::ColorGamut> &gamuts); //!< Published gamuts to compare with.
    void clearGamuts(GamutRole role); //!< Takes all gamuts of \a role away.
    void setMeasurePoints(const QVector<DiagramMark> &points); //!< Points of measurements.
    void setColorTemperaturePoints(const QVector<DiagramMark> &points); //!< Points of colour temperatures.
    void setCmyPoints(const QVector<DiagramMark> &points); //!< Cyan, magenta, yellow and so on.
    void setRings(const QVector<DiagramRings> &rings); //!< Tolerances round white points.
    void setTrail(const QVector<QPointF> &trail); //!< Where a point has been, the oldest first, in CIE 1931 x, y.
    /*! \brief Replaces the rules of editing, also of a drag under way; null brings the library's own back. */
    void setRules(std::shared_ptr<const TargetRules> rules);
    /*! \brief Selects a handle for the keyboard. Ignored for one that is not shown, and while the hand holds one. */
    void setSelectedVertex(std::optional<GamutVertex> vertex);

    /*!
     * \brief Moves \a vertex of the target to the CIE 1931 chromaticity \a xy as the rules allow, as an edit of its
     * own.
     *
     * Returns whether the target has changed. Snaps to nothing. Refused while a drag is under way, without a target
     * that is shown and when read-only.
     */
    bool moveVertex(GamutVertex vertex, const QPointF &xy);

    /*!
     * \brief Paints the view into \a place of \a painter with the same look, without handles and readout.
     *
     * The colours are one image, everything else is vectors: for SVG, PDF and printing. See DiagramPainter::paint().
     */
    void paint(QPainter *painter, const QRectF &place) const;
    /*!
     * \brief The view without handles and readout as a picture of \a size device pixels.
     *
     * Null for an empty size or a \a devicePixelRatio below 0.1.
     */
    QImage toImage(const QSize &size, qreal devicePixelRatio = 1.0) const;

    QSize sizeHint() const override; //!< A square that is comfortable to work on.
    QSize minimumSizeHint() const override; //!< A square in which the diagram is still readable.

public Q_SLOTS:
    void setDiagram(Model::Diagram diagram); //!< Keeps the chromaticity in the middle and the zoom; all stays all.
    void setDiagram(DiagramKind diagram); //!< \overload
    void setLayers(ceiechart::ShownLayers layers); //!< Switches layers.
    void setLayerShown(ceiechart::DiagramLayer layer, bool shown); //!< Switches \a layer.
    void setHorseshoeColors(ceiechart::HorseshoeColors colors); //!< How the horseshoe is coloured.
    void setZoomFactor(double factor); //!< Zooms about the middle; clamped, and ignored for what is no number.
    void setCentre(const QPointF &xy); //!< Moves the CIE 1931 chromaticity \a xy into the middle.
    void setReadOnly(bool readOnly); //!< Whether the target can be edited; cancels a drag.
    void setDigits(int digits); //!< 0 to 10 decimals, or automaticDigits for anything else.
    void setReadoutShown(bool shown); //!< Whether the coordinates under the pointer stand in a corner.
    void setEditNote(const QString &note); //!< The second line of the label at what is being edited.

    void zoomIn(); //!< One step closer, about the pointer when it is over the view.
    void zoomOut(); //!< One step away.
    void showAll(); //!< All of the diagram.
    void showTarget(); //!< The target; without one, all.
    void showWhite(); //!< The white of the target, closely; without a target that of the display, else all.
    void cancelEditing(); //!< Ends a drag and brings back the target that was there before it.

Q_SIGNALS:
    void diagramChanged(); //!< diagram() has changed.
    void layersChanged(); //!< layers() have changed.
    void horseshoeColorsChanged(); //!< horseshoeColors() has changed.
    void gamutsChanged(); //!< gamuts() have changed, by a host or by an edit.
    void viewChanged(); //!< The part of the diagram that is seen has changed: diagram, zoom, centre or size.
    void readOnlyChanged(); //!< isReadOnly() has changed.
    void digitsChanged(); //!< digits() has changed.
    void readoutShownChanged(); //!< isReadoutShown() has changed.
    void editNoteChanged(); //!< editNote() has changed.
    void selectedVertexChanged(); //!< selectedVertex() has changed.

    /*! \brief The first step of a drag or of a run of keys is about to be made. */
    void editingStarted();
    /*! \brief The user has moved a primary or the white; \a gamut is the target now, under its former name. */
    void targetEdited(const Model::ColorGamut &gamut);
    /*! \brief The drag has ended, or the key is up. Also after editingCanceled(). */
    void editingFinished();
    /*! \brief The drag or the move by keys was cancelled; targetEdited() has told of the former target. */
    void editingCanceled();
    /*! \brief A step was not made, or not all of it; \a reason is for people. */
    void editRefused(const QString &reason);

    /*!
     * \brief The pointer is over the CIE 1931 chromaticity \a xy: it has moved, or the view has moved below it.
     *
     * In the second case it comes after viewChanged() and before diagramChanged(), and also when \a xy is what it was:
     * coordinatesText() may be another.
     */
    void hovered(const QPointF &xy);
    /*! \brief The pointer has left the diagram, or is over what is no chromaticity; also as the view moves below it. */
    void hoverEnded();

protected:
    /*!
     * \brief Paints what a derived view adds to the diagram, below target, handles and labels; nothing by default.
     *
     * Called whenever the view is painted, with \a painter in logical pixels of the view and clipped to what is needed.
     * paint() and toImage() do not have it.
     */
    virtual void paintBelowTarget(QPainter *painter);

    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_DIAGRAMVIEW_H
