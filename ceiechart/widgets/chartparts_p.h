// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_CHARTPARTS_P_H
#define CEIECHART_WIDGETS_CHARTPARTS_P_H

#include <ceiechart/widgets/chartparts.h>
#include <ceiechart/widgets/legendplacement_p.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>

namespace ceiechart {

/*! The fixed extent of an inner view that shows a picture of \a extent pixels, within what widgets can have. */
inline int viewExtent(int extent)
{
    return static_cast<int>(std::clamp<qint64>(static_cast<qint64>(extent) + 2, 0, QWIDGETSIZE_MAX));
}

/*! Copies chromaticities and luminances of a gamut record with the members red, green, blue and white. */
template <class Record>
void copyGamut(const Record &gamut, TrianglePoint &triangle)
{
    triangle.setRedPos(QPointF(gamut.red.x, gamut.red.y));
    triangle.setGreenPos(QPointF(gamut.green.x, gamut.green.y));
    triangle.setBluePos(QPointF(gamut.blue.x, gamut.blue.y));
    triangle.setWhitePos(QPointF(gamut.white.x, gamut.white.y));
    triangle.setRedLum(gamut.red.Y);
    triangle.setGreenLum(gamut.green.Y);
    triangle.setBlueLum(gamut.blue.Y);
    triangle.setWhiteLum(gamut.white.Y);
}

/*! \a triangle with what every gamut of a view is given: colour and outline width. */
inline ColorTriangleObject gamutObject(const TrianglePoint &triangle, const QColor &color, int lineWidth)
{
    ColorTriangleObject object;
    object.setTrianglePoint(triangle);
    object.setForeColor(color);
    object.setTrigleLineWidth(lineWidth);
    return object;
}

template <class Scene, class InnerView, class Legend>
ChartParts<Scene, InnerView, Legend>::ChartParts(QFrame *frame)
    : m_frame(frame)
{
}

template <class Scene, class InnerView, class Legend>
ChartParts<Scene, InnerView, Legend>::~ChartParts()
{
    delete m_scene;
}

template <class Scene, class InnerView, class Legend>
InnerView *ChartParts<Scene, InnerView, Legend>::makeView()
{
    m_view = new InnerView(m_frame);
    return m_view;
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::prepareView()
{
    m_view->setAttribute(Qt::WA_MouseTracking, true);
    m_view->setProperty("class", QStringLiteral("CEIEGraphicsView"));
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setScene(std::unique_ptr<Scene> scene)
{
    m_scene = scene.release();
    m_view->setScene(m_scene);
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::makeLegend(bool showPoints, Qt::Alignment alignment)
{
    m_legend = new Legend(showPoints, alignment, m_frame);
}

template <class Scene, class InnerView, class Legend>
QBoxLayout *ChartParts<Scene, InnerView, Legend>::arrange(Qt::Alignment alignment)
{
    // A widget refuses a second layout.
    delete m_frame->layout();
    QBoxLayout *layout = nullptr;
    if (standsBesideChart(alignment)) {
        layout = new QHBoxLayout;
    } else {
        layout = new QVBoxLayout;
    }
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    layout->addWidget(m_legend);
    m_frame->setLayout(layout);
    return layout;
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::connectCursor()
{
    // Queued: the cursor changes after the scene has handled its event.
    QObject::connect(m_scene.data(), &Scene::signal_mouseCursorChange, m_view, &InnerView::slot_mouseCursorChange,
        Qt::QueuedConnection);
}

template <class Scene, class InnerView, class Legend>
template <class View>
void ChartParts<Scene, InnerView, Legend>::relaySignals(View *view)
{
    const Scene *scene = m_scene.data();
    QObject::connect(scene, &Scene::signal_colorTempertrueValueChang, view, &View::signal_colorTempertrueValueChang);
    QObject::connect(scene, &Scene::signal_targetInfoChanged, view, &View::signal_targetInfoChanged);
    QObject::connect(scene, &Scene::signal_triangleObjecIinitialized, view, &View::signal_triangleObjecIinitialized);
    QObject::connect(scene, &Scene::signal_colorGamutValueChanged, view, &View::signal_colorGamutValueChanged);
    QObject::connect(scene, &Scene::signal_colorGamutWhiteChanged, view, &View::signal_colorGamutWhiteChanged);
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::clear()
{
    m_triangles.clear();
    m_scene->setLsColorTriangleObject(m_triangles);
    m_frame->update();
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setTriangleVisible(int index, bool shown)
{
    if (index < 0 || index >= m_triangles.size()) {
        return;
    }
    m_triangles[index].setShow(shown);
    m_scene->setLsColorTriangleObject(m_triangles);
    m_frame->update();
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setTriangles(const QList<ColorTriangleObject> &triangles)
{
    m_triangles = triangles;
    m_scene->setLsColorTriangleObject(m_triangles);
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setColorTemperaturePoints(const QList<QPointF> &points)
{
    m_colorTemperaturePoints = points;
    m_scene->setLsColorTempertureValuePoints(m_colorTemperaturePoints);
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setOtherPoints(const QList<QPointF> &points, const QList<QColor> &colors)
{
    m_scene->setOtherPoints(points, colors);
}

template <class Scene, class InnerView, class Legend>
QList<QPointF> ChartParts<Scene, InnerView, Legend>::otherPoints() const
{
    return m_scene->getOtherPoints();
}

template <class Scene, class InnerView, class Legend>
QList<QColor> ChartParts<Scene, InnerView, Legend>::otherPointColors() const
{
    return m_scene->getOtherPointsColor();
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setGraphColor(const QColor &line, const QColor &picture)
{
    m_scene->setGraphColor(line, picture);
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setImageWidth(int width)
{
    m_imageWidth = width;
    m_view->setFixedWidth(viewExtent(width));
    m_scene->setImageWidth(width);
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setImageHeight(int height)
{
    m_imageHeight = height;
    m_view->setFixedHeight(viewExtent(height));
    m_scene->setImageHeight(height);
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setIsDrawCoordinate(bool draw)
{
    m_isDrawCoordinate = draw;
    m_scene->setIsDrawCoordinate(draw);
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setIsDrawBBRLine(bool draw)
{
    m_isDrawBBRLine = draw;
    m_scene->setIsDrawBBRLine(draw);
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setIsDrawWaveLength(bool draw)
{
    m_isDrawWaveLength = draw;
    m_scene->setIsDrawWaveLength(draw);
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setDrawColorTPoint(bool draw)
{
    m_scene->setDrawColorTPoint(draw);
}

template <class Scene, class InnerView, class Legend>
bool ChartParts<Scene, InnerView, Legend>::isDrawColorTPoint() const
{
    return m_scene->isDrawColorTPoint();
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setColorTempertureChecked(bool checked)
{
    m_scene->setColorTempertureChecked(checked);
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setRGBPointEnable(bool enable)
{
    m_scene->setRGBPointEnable(enable);
}

template <class Scene, class InnerView, class Legend>
void ChartParts<Scene, InnerView, Legend>::setMouseEditing(bool enable)
{
    m_scene->setIsMouseOper(enable);
}

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_CHARTPARTS_P_H
