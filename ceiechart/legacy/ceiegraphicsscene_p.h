// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_CEIEGRAPHICSSCENE_P_H
#define CEIECHART_LEGACY_CEIEGRAPHICSSCENE_P_H

#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/scene/scenesignals_p.h>

#include <QPoint>

class CEIEGraphicsScene::Private : public ceiechart::SceneSignals<CEIEGraphicsScene, ceiechart::TargetScene::Private> {
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

    // Mouse editing, in mouseediting.cpp
    bool isInsideOriginal(const QPointF &position);
    void rememberMousePosition(const QPointF &position);
    void showHoverCursor(const QPointF &position);
    /*! \brief Lets what was picked follow the pointer. False when the move needs no further repaint. */
    bool followPointer(const QPointF &position);

    DrawCEIPicture::CEIEType type;
    DrawCEIPicture renderer;
    QList<QPointF> measurePoints;

    bool buttonDown = false;
    bool leftButton = false;
    bool whiteInside = false;
    /*! \brief Would keep presses outside the original gamut to the colour regions. Nothing sets it. */
    bool regionGate = false;
    QPoint lastMousePosition;
    QPointF lastHoverPosition;
};

#endif // CEIECHART_LEGACY_CEIEGRAPHICSSCENE_P_H
