// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_CHARTPARTS_H
#define CEIECHART_WIDGETS_CHARTPARTS_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/model/colortriangleobject.h>

#include <QColor>
#include <QList>
#include <QPointF>
#include <QPointer>

#include <memory>

class QBoxLayout;
class QFrame;

namespace ceiechart {

/*!
 * \brief What both generations' chart views are made of: a frame's inner view, scene and legend, and the lists and
 *        switches that the frame keeps beside its scene.
 *
 * Not a class for hosts: each `CEIEGraphicsView` holds one and passes its operations on to it. It is instantiated
 * in the library, once for each generation's scene, inner view and legend.
 *
 * The scene belongs to the parts and goes with them, which is before the frame deletes its children: the inner
 * view is then left without a scene, never with a dead one. Inner view and legend are children of the frame.
 */
template <class Scene, class InnerView, class Legend>
class CEIECHART_EXPORT ChartParts {
public:
    explicit ChartParts(QFrame *frame);
    ~ChartParts();
    ChartParts(const ChartParts &) = delete;
    ChartParts &operator=(const ChartParts &) = delete;

    // Building, in this order
    InnerView *makeView();
    void prepareView();
    void setScene(std::unique_ptr<Scene> scene);
    void makeLegend(bool showPoints, Qt::Alignment alignment);
    /*! Puts inner view and legend into a new layout of the frame, in place of the one it may have. */
    QBoxLayout *arrange(Qt::Alignment alignment);
    void connectCursor();
    template <class View>
    void relaySignals(View *view);

    Scene *scene() const { return m_scene; }
    InnerView *view() const { return m_view; }
    Legend *legend() const { return m_legend; }

    // Gamuts and points
    QList<ColorTriangleObject> &triangles() { return m_triangles; }
    const QList<ColorTriangleObject> &triangles() const { return m_triangles; }
    void clear();
    void setTriangleVisible(int index, bool shown);
    void setTriangles(const QList<ColorTriangleObject> &triangles);
    void setColorTemperaturePoints(const QList<QPointF> &points);
    const QList<QPointF> &colorTemperaturePoints() const { return m_colorTemperaturePoints; }
    void setOtherPoints(const QList<QPointF> &points, const QList<QColor> &colors);
    QList<QPointF> otherPoints() const;
    QList<QColor> otherPointColors() const;

    // Picture
    void setGraphColor(const QColor &line, const QColor &picture);
    void setImageWidth(int width);
    void setImageHeight(int height);
    int imageWidth() const { return m_imageWidth; }
    int imageHeight() const { return m_imageHeight; }
    void setIsDrawCoordinate(bool draw);
    void setIsDrawBBRLine(bool draw);
    void setIsDrawWaveLength(bool draw);
    bool isDrawCoordinate() const { return m_isDrawCoordinate; }
    bool isDrawBBRLine() const { return m_isDrawBBRLine; }
    bool isDrawWaveLength() const { return m_isDrawWaveLength; }

    // Editing
    void setDrawColorTPoint(bool draw);
    bool isDrawColorTPoint() const;
    void setColorTempertureChecked(bool checked);
    void setRGBPointEnable(bool enable);
    void setMouseEditing(bool enable);

private:
    QFrame *m_frame;
    QPointer<Scene> m_scene; // deleted with the parts, unless a host has done so
    InnerView *m_view = nullptr;
    Legend *m_legend = nullptr;
    int m_imageWidth = 512;
    int m_imageHeight = 512;
    bool m_isDrawCoordinate = true;
    bool m_isDrawBBRLine = true;
    bool m_isDrawWaveLength = true;
    QList<ColorTriangleObject> m_triangles;
    QList<QPointF> m_colorTemperaturePoints;
};

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_CHARTPARTS_H
