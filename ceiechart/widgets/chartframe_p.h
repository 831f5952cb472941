// SPDX-FileCopyrightText: 2026 the ceiechart authors
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

    /*! \brief The ground of the picture has changed. */
    virtual void groundChanged() { }
    /*! \brief The size of the picture has been set. */
    virtual void sizeChanged() { }

    /*! \brief Switches the light ground as setLightPicture() and, if it is followed, the palette of \a frame demand. */
    void applyGround(const QFrame &frame);
    /*! \brief The way from positions in the picture to positions in the viewport. There must be a scene. */
    QTransform pictureToView() const;
    /*! \brief Has the picture rendered with the pixels of the inner view's screen, if they are followed. */
    void applyPixelRatio();

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
    Qt::Alignment legendAlignment = Qt::AlignBottom;
    bool lightPicture = false;
    std::unique_ptr<QObject> paletteFollower; //!< null while the palette is not followed
    std::unique_ptr<QObject> pixelRatioFollower; //!< null while the device pixel ratio is not followed
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

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_CHARTFRAME_P_H
