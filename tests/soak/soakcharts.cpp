// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "events.h"
#include "soak.h"

#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/scene/ceiegraphicsscene.h>
#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QApplication>
#include <QGraphicsSceneMouseEvent>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QVBoxLayout>

#include <memory>

namespace soak {

namespace {

Model::Targets targets(Round &round)
{
    const auto color = [&round] {
        const QPointF xy = round.point();
        return Model::Target::fromYxy(round.number(), xy.x(), xy.y());
    };
    return {color(), color(), color(), color()};
}

ColorTriangleObject triangle(Round &round)
{
    ColorTriangleObject made;
    TrianglePoint points;
    points.setRedPos(round.point());
    points.setGreenPos(round.point());
    points.setBluePos(round.point());
    points.setWhitePos(round.point());
    points.setRedLum(round.number());
    points.setGreenLum(round.number());
    points.setBlueLum(round.number());
    points.setWhiteLum(round.number());
    made.setTrianglePoint(points);
    made.setForeColor(QColor(round.between(0, 255), 100, 100));
    made.setTrigleLineWidth(round.chance(90) ? round.between(0, 5) : round.integer());
    made.setShow(round.chance(80));
    made.setType(round.chance(90) ? round.between(0, 6) : round.integer());
    made.setOpacity(round.number());
    made.setGamutName(round.text().toStdString());
    return made;
}

QList<ColorTriangleObject> triangles(Round &round)
{
    return round.list<QList<ColorTriangleObject>>(6, [&round] { return triangle(round); });
}

QList<QPointF> points(Round &round)
{
    return round.list<QList<QPointF>>(12, [&round] { return round.point(); });
}

QList<QColor> colors(Round &round)
{
    return round.list<QList<QColor>>(12, [&round] { return QColor(round.between(0, 255), 1, 1); });
}

//! Whether one side is longer than a screen: the other one must not become so, too.
bool isLong(const QSize &size)
{
    constexpr int most = 1000;
    return size.width() > most || size.height() > most;
}

//! A size of a picture: the host pays for what it asks for, so large ones are long and narrow.
QSize size(Round &round)
{
    constexpr int most = 600;
    const int side = round.side(-2, most);
    if (round.chance(90)) {
        return {side, round.side(-2, most)};
    }
    return round.toss() ? QSize(round.integer(), round.between(-2, 3)) : QSize(round.between(-2, 3), round.integer());
}

//! What one generation has and the other one has not.
struct Current {
    using View = NewCEIE::CEIEGraphicsView;
    using Scene = NewCEIE::CEIEGraphicsScene;

    static std::unique_ptr<Scene> scene(Round &round) { return std::make_unique<Scene>(triangles(round)); }
    static View *view(Round &round, QWidget *parent)
    {
        return round.toss() ? new View(parent) : new View(round.toss(), Qt::Alignment(round.between(0, 255)), parent);
    }
    static void set(Round &r, View &view)
    {
        const auto gamut
            = [&r] { return r.chance(30) ? Model::rec709() : Model::ColorGamut(r.text().toStdString(), targets(r)); };
        r.oneOf({
            [&] {
                const auto standards = r.list<QList<Model::ColorGamut>>(4, gamut);
                view.setColorGamut(gamut(), gamut(), gamut(), standards);
            },
            [&] {
                view.setColorGamut(gamut(), gamut(), {Model::rec2020(), Model::dciP3D65()});
            },
            [&] { view.updateLanGamut(r.toss(), r.toss() ? QString() : r.text()); },
            [&] { view.setCMYPointData(points(r)); },
            [&] { view.setBackgroudColor(QColor(1, r.between(0, 255), 1)); },
            [&] { view.setIsShowStandard(r.toss()); },
            [&] { view.setIsShowTarget(r.chance(80)); },
            [&] { view.setIsShowOriginal(r.chance(80)); },
            [&] { view.setIsShowActual(r.chance(80)); },
            [&] { view.setIsShowMeasure(r.chance(80)); },
            [&] { view.setGamutsKept(r.toss()); },
            [&] { view.getLegend()->setTargetPointText(r.text()); },
        });
    }
    static void set(Round &r, Scene &scene)
    {
        QPointF place = r.anyPoint();
        r.oneOf({
            [&] {
                scene.setLsColorTriangleObject(triangles(r), triangles(r), triangle(r).trianglePoint(),
                    triangle(r).trianglePoint(), r.toss(), r.toss() ? QString() : r.text());
            },
            [&] { scene.setCMYPointData(points(r)); },
            [&] { scene.setTargetItemVisable(r.toss()); },
            [&] { scene.chromaToCurCoordinate(place); },
            [&] { scene.setGamutsKept(r.toss()); },
        });
    }
};

struct Legacy {
    using View = ::CEIEGraphicsView;
    using Scene = ::CEIEGraphicsScene;

    static DrawCEIPicture::CEIEType type(Round &round) { return DrawCEIPicture::CEIEType(round.between(0, 1)); }
    static std::unique_ptr<Scene> scene(Round &round) { return std::make_unique<Scene>(type(round), triangles(round)); }
    static View *view(Round &round, QWidget *parent)
    {
        return round.toss() ? new View(parent, type(round))
                            : new View(round.toss(), Qt::Alignment(round.between(0, 255)), parent);
    }
    static void set(Round &r, View &view)
    {
        const auto gamut = [&r] {
            const Model::Targets made = r.chance(30) ? Model::rec709().getTargets() : targets(r);
            return Model::ColorGamutInfo{made.red, made.green, made.blue, made.white};
        };
        r.oneOf({
            [&] { view.setColorGamut(gamut(), gamut()); },
            [&] { view.setMeasureValuePoints(points(r)); },
            [&] { view.getLegend()->setTargetPointText(r.text()); },
            [&] { view.getLegend()->setLegendVisible(CEIELegend::legendType(r.between(-1, 7)), r.toss()); },
        });
    }
    static void set(Round &r, Scene &scene) { scene.setMeasureValuePoints(points(r)); }
};

template <typename Scene>
void setCommon(Round &r, Scene &scene)
{
    const QSize asked = size(r);
    r.oneOf({
        [&] { scene.setLsColorTriangleObject(triangles(r)); },
        [&] { scene.setLsColorTempertureValuePoints(points(r)); },
        [&] { scene.setOtherPoints(points(r), colors(r)); },
        [&] { scene.setImageSize(asked); },
        [&] { scene.setIsDrawCoordinate(r.chance(80)); },
        [&] { scene.setIsDrawBBRLine(r.chance(80)); },
        [&] { scene.setIsDrawWaveLength(r.chance(80)); },
        [&] { scene.setDrawColorTPoint(r.toss()); },
        [&] { scene.setColorTempertureChecked(r.toss()); },
        [&] { scene.setRGBPointEnable(r.chance(80)); },
        [&] { scene.picturePosition(r.anyPoint()); },
        [&] { scene.chromaticityInPicture(r.anyPoint()); },
        [&] { scene.toImage(); },
    });
}

//! A host that answers the signals of its chart by calling it again; it may delete scene, chart and parent at any time.
template <typename Generation>
class Host {
public:
    explicit Host(Round &round)
        : m_round(round)
        , m_parent(std::make_unique<QWidget>())
        , m_view(Generation::view(round, m_parent.get()))
    {
        using View = typename Generation::View;
        m_parent->resize(round.side(50, 700), round.side(50, 700));
        auto *layout = new QVBoxLayout(m_parent.get());
        layout->addWidget(m_view);
        const auto reply = [this] { answer(); };
        const View *view = m_view;
        QObject::connect(view, &View::signal_colorGamutValueChanged, m_parent.get(), reply);
        QObject::connect(view, &View::signal_colorGamutWhiteChanged, m_parent.get(), reply);
        QObject::connect(view, &View::signal_colorTempertrueValueChang, m_parent.get(), reply);
        QObject::connect(view, &View::signal_mouseCursorChange, m_parent.get(), reply);
        QObject::connect(view, &View::signal_targetInfoChanged, m_parent.get(), reply);
        QObject::connect(view, &View::signal_triangleObjecIinitialized, m_parent.get(), reply);
        m_parent->show();
    }

    bool isGone() const { return !m_view; }

    void step()
    {
        Round &r = m_round;
        switch (r.between(0, 11)) {
        case 0:
        case 1:
        case 2:
            set();
            break;
        case 3:
            if (auto *scene = qobject_cast<typename Generation::Scene *>(m_view->view()->scene())) {
                useScene(*scene);
            }
            break;
        case 4:
            if (r.chance(30)) {
                m_parent->resize(r.chance(95) ? r.side(1, 900) : r.between(1, 40000), r.side(1, 900));
            } else if (r.chance(30)) {
                m_parent->setVisible(r.chance(80));
            } else {
                destroy();
            }
            break;
        case 5:
            QApplication::processEvents();
            break;
        default:
            sendEvent(r, r.toss() ? m_view->view()->viewport() : someWidget(r, m_view));
            break;
        }
    }

private:
    void answer()
    {
        if (m_depth >= 2 || !m_view || m_round.chance(50)) {
            return;
        }
        ++m_depth;
        if (m_round.chance(2)) {
            m_view->deleteLater();
        } else {
            set();
        }
        --m_depth;
    }

    void destroy()
    {
        if (m_round.chance(4)) {
            delete m_view->view()->scene();
        } else if (m_round.chance(2)) {
            delete m_view.data();
        } else if (m_round.chance(2)) {
            m_parent.reset();
        } else if (m_round.chance(1)) {
            delete m_view->view();
            // A host that takes a part away has to take the rest away, too.
            delete m_view.data();
        }
    }

    void set()
    {
        Round &r = m_round;
        if (r.toss()) {
            Generation::set(r, *m_view);
            return;
        }
        if (r.toss()) {
            setCommonOfView();
            return;
        }
        r.oneOf({
            [&] { m_view->clear(); },
            [&] { m_view->setColorGamutVisible(r.chance(80) ? r.between(-1, 6) : r.integer(), r.toss()); },
            [&] { m_view->setGraphColor(Qt::red, r.toss() ? QColor(Qt::black) : QColor()); },
            [&] { m_view->setUseMouseOpertator(r.chance(80)); },
            [&] { m_view->setLightPicture(r.toss()); },
            [&] { m_view->setPaletteFollowed(r.toss()); },
            [&] { m_view->setDevicePixelRatioFollowed(r.toss()); },
            [&] { m_view->setLegendAlignament(Qt::Alignment(r.integer())); },
            [&] { m_view->viewPosition(r.anyPoint()); },
            [&] { m_view->chromaticityInView(r.anyPoint()); },
            [&] { setWidth(r.integer()); },
            [&] { setWidth(r.between(-3, 500)); },
            [&] { m_view->setImageHeight(r.between(-3, 500)); },
        });
    }

    //! A picture of some million pixels takes its time, which is the host's to give.
    void setWidth(int width)
    {
        constexpr int least = 3;
        constexpr int wide = 1000;
        if (width > wide) {
            m_view->setImageHeight(least);
            m_view->setImageWidth(width);
            m_view->setImageWidth(wide);
        } else {
            m_view->setImageWidth(width);
        }
    }

    void setCommonOfView()
    {
        setCommon(m_round, *m_view);
        if (isLong(m_view->imageSize())) {
            m_view->setImageSize(QSize(300, 300));
        }
    }

    template <typename Scene>
    void useScene(Scene &scene)
    {
        Round &r = m_round;
        const QPointer<Scene> kept(&scene);
        r.oneOf({
            [&] { Generation::set(r, scene); },
            [&] { setCommon(r, scene); },
            [&] { scene.setFunctionKeyMode(r.integer()); },
            [&] { scene.applyFunctionKey(); },
            [&] { scene.setPixelRatio(r.toss() ? r.real(0.5, 2.0) : r.number()); },
            [&] { scene.renderAgain(); },
            [&] { scene.getBitMap(); },
            [&] {
                QImage image(200, 200, QImage::Format_RGB32);
                QPainter painter(&image);
                scene.refreshArea(r.chance(80) ? &painter : nullptr);
            },
            [&] {
                QGraphicsSceneMouseEvent event(r.toss() ? QEvent::GraphicsSceneMousePress
                        : r.toss()                      ? QEvent::GraphicsSceneMouseMove
                                                        : QEvent::GraphicsSceneMouseRelease);
                event.setScenePos(r.chance(80) ? QPointF(r.between(0, 500), r.between(0, 500)) : r.anyPoint());
                event.setButton(Qt::LeftButton);
                QApplication::sendEvent(&scene, &event);
            },
        });
        if (kept && isLong(QSize(kept->imageWidth(), kept->imageHeight()))) {
            kept->setImageSize(QSize(200, 200));
        }
    }

    Round &m_round;
    std::unique_ptr<QWidget> m_parent;
    QPointer<typename Generation::View> m_view;
    int m_depth = 0;
};

template <typename Generation>
void use(Round &round)
{
    auto host = std::make_unique<Host<Generation>>(round);
    while (round.next()) {
        host->step();
        if (host->isGone()) {
            host = std::make_unique<Host<Generation>>(round);
            Generation::scene(round); // one without a view, too
        }
    }
}

} // namespace

void useCurrentChart(Round &round)
{
    use<Current>(round);
}

void useLegacyChart(Round &round)
{
    use<Legacy>(round);
}

} // namespace soak
