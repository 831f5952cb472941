// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/model/gamutkind.h>
#include <ceiechart/render/drawceipicture.h>
#include <ceiechart/scene/ceiegraphicsscene.h>
#include <ceiechart/scene/scenesignals_p.h>

#include <QKeyEvent>
#include <QPolygonF>

#include <algorithm>
#include <optional>

namespace NewCEIE {

namespace {

QRectF markAround(const QPointF &position)
{
    return QRectF(position.x() - 8, position.y() - 8, 16, 16);
}

} // namespace

class Q_DECL_HIDDEN CEIEGraphicsScene::Private
    : public ceiechart::SceneSignals<CEIEGraphicsScene, ceiechart::TargetScene::Private> {
public:
    QPointF toScene(const QPointF &chroma) override
    {
        return QPointF(originX + unitLength * chroma.x(), originY - unitLength * chroma.y());
    }

    QPointF toChroma(const QPointF &position) override
    {
        return QPointF((position.x() - originX) / unitLength, (originY - position.y()) / unitLength);
    }

    QPointF toImage(const QPointF &chroma) override
    {
        return ahead ? ahead->toPixel(chroma) : renderer.CoordinateTransformation(chroma);
    }

    ceiechart::DiagramRenderer &diagramRenderer() override { return renderer; }

    QImage *renderPicture() override
    {
        QImage *rendered = nullptr;
        if (gamutsKept && gamuts) {
            rendered = renderGamutsAgain();
        } else {
            gamutsShown = false;
            rendered = renderer.drawCEIPicture(
                imageWidth, imageHeight, drawCoordinate, drawCoordinate, drawWavelengths, QList<QPointF>());
        }
        q->setSceneRect(0, 0, ceiechart::defaultPictureSize.width(), ceiechart::defaultPictureSize.height());
        return rendered;
    }

    QImage *renderShown() override { return gamutsShown ? renderGamutsAgain() : renderPicture(); }

    void gamutsReplaced() override
    {
        if (gamuts) {
            gamuts->triangles = triangles;
        }
    }

    /*! \brief Renders \a gamuts with positions by the mapping of the last picture. There must be gamuts. */
    QImage *renderGamuts();
    /*! \brief Renders \a gamuts and the CMY points in the stored size, which the last picture need not have. */
    QImage *renderGamutsAgain();
    void passCmyPoints();

    void setGraphColor(const QColor &line, const QColor &ground) override { renderer.setGraphColor(line, ground); }

    QPolygonF imagePolygon(const TrianglePoint &triangle)
    {
        return QPolygonF({toImage(triangle.redPos()), toImage(triangle.greenPos()), toImage(triangle.bluePos())});
    }

    /*! \brief What the last picture of gamuts was rendered from. */
    struct Gamuts {
        QList<ColorTriangleObject> triangles;
        TrianglePoint first;
        TrianglePoint other;
        bool flag;
        QString text;
    };

    DrawCEIPicture renderer{nullptr};
    QList<ColorTriangleObject> standards;
    std::optional<Gamuts> gamuts;
    bool gamutsShown = false; //!< whether the picture that is shown is one of gamuts
    bool gamutsKept = false;
    QList<QPointF> cmyPoints;
    std::optional<ceiechart::DiagramGeometry> ahead; //!< the mapping of a picture that is about to be rendered
    QList<QRectF> vertexRectangles;
};

CEIEGraphicsScene::CEIEGraphicsScene(QList<ColorTriangleObject> triangles)
    : TargetScene(std::make_unique<Private>())
{
    d->begin(triangles);
}

CEIEGraphicsScene::~CEIEGraphicsScene() = default;

CEIEGraphicsScene::Private &CEIEGraphicsScene::own() const
{
    return static_cast<Private &>(*d);
}

void CEIEGraphicsScene::setLsColorTriangleObject(const QList<ColorTriangleObject> &triangles,
    const QList<ColorTriangleObject> &second, const TrianglePoint &first, const TrianglePoint &other, bool flag,
    const QString &text)
{
    Private &scene = own();
    scene.standards = second;
    setLsColorTriangleObject(triangles);
    scene.gamuts = Private::Gamuts{triangles, first, other, flag, text};
    const ceiechart::GivenMemory given = scene.giveMemory();
    scene.takePicture(scene.renderGamuts());
}

QImage *CEIEGraphicsScene::Private::renderGamuts()
{
    QPolygonF common;
    if (!gamuts->first.isEmpty() && !gamuts->other.isEmpty()) {
        // Positions are whole pixels within the range of int, which the clipper can take.
        common = imagePolygon(gamuts->first).intersected(imagePolygon(gamuts->other));
    }

    vertexRectangles.clear();
    const QList<ColorTriangleObject> &shown = gamuts->triangles;
    const auto target = std::find_if(shown.cbegin(), shown.cend(),
        [](const ColorTriangleObject &triangle) { return triangle.type() == ceiechart::TargetGamut; });
    if (target != shown.cend() && !target->trianglePoint().isEmpty()) {
        const TrianglePoint &points = target->trianglePoint();
        for (const QPointF &position : {points.redPos(), points.greenPos(), points.bluePos(), points.whitePos()}) {
            vertexRectangles.append(markAround(toImage(position)));
        }
    }
    renderer.setPointData(vertexRectangles);
    gamutsShown = true;
    return renderer.drawCEIPicture(
        imageWidth, imageHeight, drawCoordinate, shown, standards, common, gamuts->flag, gamuts->text);
}

QImage *CEIEGraphicsScene::Private::renderGamutsAgain()
{
    ahead = ceiechart::chartGeometry(renderer.chartKind(), imageWidth, imageHeight);
    passCmyPoints();
    QImage *rendered = renderGamuts();
    ahead.reset();
    return rendered;
}

void CEIEGraphicsScene::Private::passCmyPoints()
{
    QList<QRectF> marks;
    for (const QPointF &point : qAsConst(cmyPoints)) {
        marks.append(markAround(toImage(point)));
    }
    renderer.setCMYPointData(marks);
}

void CEIEGraphicsScene::setCMYPointData(const QList<QPointF> &points)
{
    own().cmyPoints = points;
    own().passCmyPoints();
}

QList<QPointF> CEIEGraphicsScene::CMYPointData() const
{
    return own().cmyPoints;
}

void CEIEGraphicsScene::setGamutsKept(bool kept)
{
    own().gamutsKept = kept;
}

bool CEIEGraphicsScene::isGamutsKept() const
{
    return own().gamutsKept;
}

QColor CEIEGraphicsScene::backgroudColor() const
{
    return own().renderer.backgroudColor();
}

void CEIEGraphicsScene::setBackgroudColor(const QColor &color)
{
    own().renderer.setBackgroudColor(color);
}

void CEIEGraphicsScene::setTargetItemVisable(bool) { }

void CEIEGraphicsScene::chromaToCurCoordinate(QPointF &p)
{
    p = d->toScene(p);
}

QPointF CEIEGraphicsScene::ChromaToCurCoordinate(QPointF chroma)
{
    return d->toScene(chroma);
}

QPointF CEIEGraphicsScene::CurCoordinateToChroma(QPointF position)
{
    return d->toChroma(position);
}

bool CEIEGraphicsScene::CheckOriginalAndTarget(
    ColorTriangleObject original, ColorTriangleObject target, baseCommon::LEDColorType &beyond)
{
    return d->checkTarget(original, target, beyond);
}

bool CEIEGraphicsScene::SetEllipseDieplay(
    QPainter *painter, QPointF chroma, QSize size, NewCEIE::TabSelectedType tab, NewCEIE::ColorArea area)
{
    return d->displayEllipse(painter, chroma, size, ceiechart::handleOfTab(tab), ceiechart::handleOfArea(area));
}

void CEIEGraphicsScene::keyPressEvent(QKeyEvent *event)
{
    d->keyPressed(event->key());
}

void CEIEGraphicsScene::keyReleaseEvent(QKeyEvent *event)
{
    d->keyReleased(event->key());
}

void CEIEGraphicsScene::mousePressEvent(QGraphicsSceneMouseEvent *) { }

void CEIEGraphicsScene::mouseMoveEvent(QGraphicsSceneMouseEvent *) { }

void CEIEGraphicsScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *) { }

void CEIEGraphicsScene::drawBackground(QPainter *painter, const QRectF &)
{
    d->drawPicture(painter);
}

} // namespace NewCEIE
