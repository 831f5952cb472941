// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_CEIEGRAPHICSSCENE_P_H
#define CEIECHART_LEGACY_CEIEGRAPHICSSCENE_P_H

#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/scene/scenesignals_p.h>

#include <QPoint>

/*! \brief The mapping and the rendering of the legacy scene, and the state of mouse editing. */
class Q_DECL_HIDDEN CEIEGraphicsScene::Private
    : public ceiechart::SceneSignals<CEIEGraphicsScene, ceiechart::TargetScene::Private> {
public:
    explicit Private(DrawCEIPicture::CEIEType diagramType)
        : type(diagramType)
        , renderer(diagramType, nullptr)
    {
    }

    QPointF toScene(const QPointF &chroma) override { return toImage(chroma); }
    QPointF toChroma(const QPointF &position) override;
    QPointF toImage(const QPointF &chroma) override;
    QPointF toDiagram(const QPointF &chroma) override;
    QImage *renderPicture() override;
    void setGraphColor(const QColor &line, const QColor &ground) override { renderer.setGraphColor(line, ground); }
    void drawFurtherSigns(QPainter *painter) override;
    QPointF fromDiagram(const QPointF &shown) override;
    void drawOver(QPainter *painter) override;
    ceiechart::DiagramRenderer &diagramRenderer() override { return renderer; }

    // Mouse editing, in mouseediting.cpp
    /*! \brief Whether the chromaticity at \a position lies inside the original gamut. */
    bool isInsideOriginal(const QPointF &position);
    /*! \brief Stores \a position, truncated to whole pixels. */
    void rememberMousePosition(const QPointF &position);
    /*! \brief Emits the cursor for \a position if the pointer has moved. */
    void showHoverCursor(const QPointF &position);
    /*! \brief Moves the selected point to \a position, if it can be moved. False if no further repaint is needed. */
    bool followPointer(const QPointF &position);

    DrawCEIPicture::CEIEType type;
    DrawCEIPicture renderer;
    QList<QPointF> measurePoints;

    bool buttonDown = false;
    bool leftButton = false;
    bool whiteInside = false;
    /*! \brief Would restrict presses outside the original gamut to the colour regions. It is never set. */
    bool regionGate = false;
    QPoint lastMousePosition;
    QPointF lastHoverPosition;
};

#endif // CEIECHART_LEGACY_CEIEGRAPHICSSCENE_P_H
