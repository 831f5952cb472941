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
 * \brief The parts of a chart, and the lists and switches that it keeps in addition to those of the scene.
 *
 * The scene is deleted before the children of the frame. The inner view then has no scene.
 */
class Q_DECL_HIDDEN ChartFrame::Private {
public:
    Private() = default;
    virtual ~Private();

    // Called in this order by the subclass of the frame, which creates the parts
    void setView(QGraphicsView *innerView);
    void setScene(TargetScene *innerScene);
    void setLegend(ChartLegend *chartLegend);
    /*! \brief Puts the inner view and the legend into a new layout of \a frame, which replaces the previous layout. */
    QBoxLayout *arrange(QFrame *frame, Qt::Alignment alignment);

    /*! \brief Calls \a operation of the scene, unless a host has deleted the scene. */
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

/*! \brief Connects the signals of \a scene to the signals of \a view with the same names. */
template <class Scene, class View>
void relaySignals(const Scene *scene, View *view)
{
    QObject::connect(scene, &Scene::signal_colorTempertrueValueChang, view, &View::signal_colorTempertrueValueChang);
    QObject::connect(scene, &Scene::signal_targetInfoChanged, view, &View::signal_targetInfoChanged);
    QObject::connect(scene, &Scene::signal_triangleObjecIinitialized, view, &View::signal_triangleObjecIinitialized);
    QObject::connect(scene, &Scene::signal_colorGamutValueChanged, view, &View::signal_colorGamutValueChanged);
    QObject::connect(scene, &Scene::signal_colorGamutWhiteChanged, view, &View::signal_colorGamutWhiteChanged);
}

/*! \brief Copies the chromaticities and luminances of a record with the members red, green, blue and white. */
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
