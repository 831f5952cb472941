// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// What hosts do with the classes beyond using them: connect to their operations, derive from them, keep values of them.

// As X11's headers do, which a host may include before.
#define None 0L
#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>
#include <ceiechart/render/drawceipicture.h>
#include <ceiechart/scene/ceiegraphicsscene.h>
#include <ceiechart/widgets/ceiegraphicsview.h>
#undef None

#include <QApplication>
#include <QCheckBox>
#include <QSlider>
#include <QTimer>

#include <cstdio>
#include <type_traits>

namespace {

int failures = 0;

void check(bool holds, const char *what)
{
    if (!holds) {
        std::printf("failed: %s\n", what);
        ++failures;
    }
}

TrianglePoint emptyPoint()
{
    return {};
}

struct Settings {
    TrianglePoint points;
    TargetInfoChangedEventArgs target;
    TriangleObjecIinitializedEventArgs start;
};

//! A subclass with names of its own, which must neither override anything nor be called by the library.
template <typename Base>
class HostScene : public Base {
public:
    using Base::Base;

    void repaint() { ++calls; }
    int toScene(const QPointF &) { return ++calls; }
    QPointF toChroma(const QPointF &position)
    {
        ++calls;
        return position;
    }
    void reportTarget(const TargetInfoChangedEventArgs &) { ++calls; }

    //! Whether a subclass may call the operation that \a Call tries.
    template <typename Self>
    static auto mayMove(Self *self) -> decltype(self->MoveEllipseSign(), std::true_type());
    static std::false_type mayMove(...);

    int calls = 0;
};

template <typename Base>
class HostRenderer : public Base {
public:
    using Base::Base;

    template <typename Self>
    static auto mayMultiply(Self *self) -> decltype(self->mulDiv(1, 2, 3), std::true_type());
    static std::false_type mayMultiply(...);
};

template <typename Base>
constexpr bool keepsItsOwn()
{
    using Scene = HostScene<Base>;
    return !decltype(Scene::mayMove(static_cast<Scene *>(nullptr)))::value;
}

template <typename Base>
constexpr bool keepsItsArithmetic()
{
    using Renderer = HostRenderer<Base>;
    return !decltype(Renderer::mayMultiply(static_cast<Renderer *>(nullptr)))::value;
}

static_assert(keepsItsOwn<NewCEIE::CEIEGraphicsScene>());
static_assert(keepsItsOwn<CEIEGraphicsScene>());
static_assert(keepsItsArithmetic<NewCEIE::DrawCEIPicture>());
static_assert(keepsItsArithmetic<DrawCEIPicture>());

//! Every public operation of a scene serves as a slot.
template <typename Scene>
void checkSlots(Scene &scene)
{
    QCheckBox box;
    box.setChecked(true);
    QObject::connect(&box, &QCheckBox::toggled, &scene, &Scene::setIsDrawCoordinate);
    QObject::connect(&box, &QCheckBox::toggled, &scene, &Scene::setIsDrawBBRLine);
    QObject::connect(&box, &QCheckBox::toggled, &scene, &Scene::setIsDrawWaveLength);
    QObject::connect(&box, &QCheckBox::toggled, &scene, &Scene::setDrawColorTPoint);
    QObject::connect(&box, &QCheckBox::toggled, &scene, &Scene::setIsMouseOper);
    QObject::connect(&box, &QCheckBox::toggled, &scene, &Scene::setColorTempertureChecked);
    QObject::connect(&box, &QCheckBox::toggled, &scene, &Scene::setRGBPointEnable);
    QSlider slider;
    slider.setRange(0, 500);
    QObject::connect(&slider, &QSlider::valueChanged, &scene, &Scene::setImageWidth);
    box.setChecked(false);
    slider.setValue(120);
    check(!scene.isDrawCoordinate() && !scene.isDrawBBRLine() && !scene.isDrawWaveLength(), "layer switches as slots");
    check(!scene.isDrawColorTPoint() && !scene.getIsMouseOper(), "editing switches as slots");
    check(scene.imageWidth() == 120, "size as a slot");

    check(QMetaObject::invokeMethod(&scene, &Scene::getBitMap), "getBitMap() invoked by its pointer");
    bool rendered = false;
    QTimer::singleShot(0, &scene, &Scene::getBitMap);
    QTimer::singleShot(0, &scene, [&rendered] { rendered = true; });
    QCoreApplication::processEvents();
    check(rendered, "timer");
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);

    TrianglePoint point = {};
    Settings settings{};
    ColorTriangleObject gamut;
    gamut.setTrianglePoint({});
    check(point.isEmpty() && settings.points.isEmpty() && emptyPoint().isEmpty(), "values without arguments");

    const QList<ColorTriangleObject> gamuts{gamut, gamut};
    HostScene<NewCEIE::CEIEGraphicsScene> current(gamuts);
    HostScene<CEIEGraphicsScene> legacy(DrawCEIPicture::UvDiagram, gamuts);
    checkSlots(current);
    checkSlots(legacy);
    current.setOtherPoints({}, {});
    legacy.setLsColorTriangleObject(gamuts);
    check(current.calls == 0 && legacy.calls == 0, "a subclass's own operations are not called");
    check(NewCEIE::CEIEGraphicsScene::staticMetaObject.superClass() == &QGraphicsScene::staticMetaObject
            && CEIEGraphicsScene::staticMetaObject.superClass() == &QGraphicsScene::staticMetaObject,
        "super class of the scenes");
    check(NewCEIE::CEIEGraphicsView::staticMetaObject.superClass() == &QFrame::staticMetaObject
            && CEIEGraphicsView::staticMetaObject.superClass() == &QFrame::staticMetaObject,
        "super class of the views");
    check(DrawCEIPicture::staticMetaObject.superClass() == &QWidget::staticMetaObject, "super class of the renderer");

    NewCEIE::CEIEGraphicsView chart(nullptr);
    QCheckBox axes;
    QObject::connect(&axes, &QCheckBox::toggled, &chart, &NewCEIE::CEIEGraphicsView::setIsDrawCoordinate);
    axes.setChecked(true);
    axes.setChecked(false);
    check(!chart.isDrawCoordinate(), "slot of a view");
    return failures;
}
