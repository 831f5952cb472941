// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_CHARTFRAME_P_H
#define CEIECHART_WIDGETS_CHARTFRAME_P_H

#include <ceiechart/scene/targetscene.h>
#include <ceiechart/widgets/chartframe.h>
#include <ceiechart/widgets/chartlegend.h>

#include <QGraphicsView>
#include <QPointer>

#include <utility>

class QBoxLayout;

namespace ceiechart {

/*!
 * \brief The parts of a chart, and the lists and switches that it keeps beside its scene.
 *
 * The scene is deleted before the frame deletes its children: the inner view is then left without a scene, never with a
 * dead one.
 */
class ChartFrame::Private {
public:
    Private() = default;
    virtual ~Private();

    // Building, in this order; the frame's subclass makes the parts
    void setView(QGraphicsView *innerView);
    void setScene(TargetScene *innerScene);
    void setLegend(ChartLegend *chartLegend);
    /*! \brief Puts inner view and legend into a new layout of \a frame, in place of the one it may have. */
    QBoxLayout *arrange(QFrame *frame, Qt::Alignment alignment);

    /*! \brief Calls \a operation of the scene, unless a host has deleted it. */
    template <typename... Parameters, typename... Arguments>
    void tell(void (TargetScene::*operation)(Parameters...), Arguments &&...arguments)
    {
        if (scene) {
            (scene->*operation)(std::forward<Arguments>(arguments)...);
        }
    }

    QPointer<TargetScene> scene;
    QGraphicsView *view = nullptr;
    ChartLegend *legend = nullptr;
    int imageWidth = 512;
    int imageHeight = 512;
    bool drawCoordinate = true;
    bool drawPlanckianLocus = true;
    bool drawWavelengths = true;
    QList<ColorTriangleObject> triangles;
    QList<QPointF> colorTemperaturePoints;
};

/*! \brief Relays the signals of \a scene to those of \a view that have the same names. */
template <class Scene, class View>
void relaySignals(const Scene *scene, View *view)
{
    QObject::connect(scene, &Scene::signal_colorTempertrueValueChang, view, &View::signal_colorTempertrueValueChang);
    QObject::connect(scene, &Scene::signal_targetInfoChanged, view, &View::signal_targetInfoChanged);
    QObject::connect(scene, &Scene::signal_triangleObjecIinitialized, view, &View::signal_triangleObjecIinitialized);
    QObject::connect(scene, &Scene::signal_colorGamutValueChanged, view, &View::signal_colorGamutValueChanged);
    QObject::connect(scene, &Scene::signal_colorGamutWhiteChanged, view, &View::signal_colorGamutWhiteChanged);
}

/*! \brief Copies chromaticities and luminances of a gamut record with the members red, green, blue and white. */
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

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_CHARTFRAME_P_H
