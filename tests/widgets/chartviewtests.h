// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_WIDGETS_CHARTVIEWTESTS_H
#define CEIECHART_TESTS_WIDGETS_CHARTVIEWTESTS_H

#include "legendtests.h"

#include <ceiechart/model/colortriangleobject.h>
#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>
#include <reference/metatypefacts.h>
#include <reference/propertyfacts.h>
#include <reference/quietmessages.h>
#include <reference/scenemodel.h>
#include <reference/scenesignalfacts.h>

#include <gamutmodel/colorgamut.h>

#include <QBoxLayout>
#include <QCheckBox>
#include <QFrame>
#include <QGraphicsView>
#include <QLabel>
#include <QMetaMethod>
#include <QPaintEvent>
#include <QPointer>
#include <QSpinBox>
#include <QTest>

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>

// The library declares no meta-type, so that a host can do it for itself.
Q_DECLARE_METATYPE(ColorTriangleObject)
Q_DECLARE_METATYPE(TargetInfoChangedEventArgs)
Q_DECLARE_METATYPE(TriangleObjecIinitializedEventArgs)

using reference::describe;

/*! \brief Four distinct colours, so that no two of a gamut's values can be mistaken for each other. */
inline Model::Targets distinctTargets(double shift = 0.0)
{
    return {Model::Target::fromYxy(100 + shift, 0.64 + shift / 1000, 0.33),
        Model::Target::fromYxy(200 + shift, 0.30, 0.60 + shift / 1000),
        Model::Target::fromYxy(30 + shift, 0.15, 0.06 + shift / 1000),
        Model::Target::fromYxy(330 + shift, 0.3127, 0.3290)};
}

/*! \brief The triangle of a gamut record, written out. */
inline TrianglePoint triangleOf(const Model::Targets &targets)
{
    TrianglePoint triangle;
    triangle.setRedPos(QPointF(targets.red.x, targets.red.y));
    triangle.setGreenPos(QPointF(targets.green.x, targets.green.y));
    triangle.setBluePos(QPointF(targets.blue.x, targets.blue.y));
    triangle.setWhitePos(QPointF(targets.white.x, targets.white.y));
    triangle.setRedLum(targets.red.Y);
    triangle.setGreenLum(targets.green.Y);
    triangle.setBlueLum(targets.blue.Y);
    triangle.setWhiteLum(targets.white.Y);
    return triangle;
}

inline ColorTriangleObject gamutObject(const Model::Targets &targets, const QColor &color, int width)
{
    ColorTriangleObject object;
    object.setTrianglePoint(triangleOf(targets));
    object.setForeColor(color);
    object.setTrigleLineWidth(width);
    return object;
}

inline QList<ColorTriangleObject> threeGamuts()
{
    QList<ColorTriangleObject> gamuts;
    for (int i = 0; i < 3; ++i) {
        gamuts.append(gamutObject(distinctTargets(i), QColor(i, 2 * i, 3 * i), i + 1));
        gamuts.last().setType(i + 1);
    }
    return gamuts;
}

/*! \brief What a scene shows, as big as the scene. */
inline QImage paintedScene(QGraphicsScene &scene)
{
    QImage image(scene.sceneRect().size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    scene.render(&painter);
    return image;
}

#define COMPARE_PICTURES(actual, expected)                                                                             \
    do {                                                                                                               \
        const QString difference = reference::firstDifference(actual, expected);                                       \
        QVERIFY2(difference.isEmpty(), qPrintable(difference));                                                        \
    } while (false)

/*! \brief What the chart views of both generations have in common. */
template <class View, class Scene, class InnerView, class Legend>
struct ChartViewTests {
    static Scene *sceneOf(const View &view) { return qobject_cast<Scene *>(view.view()->scene()); }

    static void metaObject(const char *className, const char *cursorType, const QStringList &ownProperties)
    {
        static_assert(std::is_base_of_v<QFrame, View>);
        const QMetaObject &meta = View::staticMetaObject;
        QCOMPARE(meta.className(), className);
        QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
        QCOMPARE(reference::declaredProperties(meta), ownProperties);
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 6);
        QStringList expected = reference::sceneSignals();
        expected.replaceInStrings(QStringLiteral("QCursor"), QLatin1String(cursorType));
        QCOMPARE(reference::declaredSignals(meta), expected);
    }

    static void innerView(View &view)
    {
        InnerView *inner = view.view();
        QVERIFY(inner);
        QCOMPARE(inner->parentWidget(), &view);
        QVERIFY(inner->testAttribute(Qt::WA_MouseTracking));
        QVERIFY(inner->viewport()->hasMouseTracking());
        QCOMPARE(inner->property("class"), QVariant(QStringLiteral("CEIEGraphicsView")));
        QCOMPARE(view.getLegend()->parentWidget(), &view);
        QVERIFY(sceneOf(view));
        QCOMPARE(sceneOf(view)->parent(), nullptr);
        QVERIFY(sceneOf(view)->getLsColorTriangleObject().isEmpty());
        QCOMPARE(view.template findChildren<QGraphicsView *>().size(), 1);
        QCOMPARE(view.template findChildren<Legend *>().size(), 1);
    }

    static void defaults(const View &view)
    {
        QCOMPARE(view.imageWidth(), 512);
        QCOMPARE(view.imageHeight(), 512);
        QVERIFY(view.isDrawCoordinate());
        QVERIFY(view.isDrawBBRLine());
        QVERIFY(view.isDrawWaveLength());
        QVERIFY(view.isDrawColorTPoint());
        QVERIFY(view.lsColorTriangleObject().isEmpty());
        QVERIFY(view.lsColorTempertureValuePoints().isEmpty());
        QVERIFY(view.getOtherPoints().isEmpty());
        QVERIFY(view.getOtherPointsColor().isEmpty());
    }

    // stretch: whether an empty stretch follows the legend.
    static void verifyLayout(const View &view, bool besideChart, bool stretch)
    {
        auto *layout = qobject_cast<QBoxLayout *>(view.layout());
        QVERIFY(layout);
        QCOMPARE(bool(qobject_cast<QHBoxLayout *>(layout)), besideChart);
        QCOMPARE(bool(qobject_cast<QVBoxLayout *>(layout)), !besideChart);
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layout->count(), stretch ? 3 : 2);
        QCOMPARE(layout->itemAt(0)->widget(), view.view());
        QCOMPARE(layout->itemAt(1)->widget(), view.getLegend());
        for (int i = 0; i < layout->count(); ++i) {
            QCOMPARE(layout->stretch(i), 0);
            QCOMPARE(layout->itemAt(i)->alignment(), Qt::Alignment());
        }
        if (stretch) {
            QVERIFY(layout->itemAt(2)->spacerItem());
            QCOMPARE(layout->itemAt(2)->sizeHint(), QSize(0, 0));
            QCOMPARE(layout->itemAt(2)->expandingDirections(),
                Qt::Orientations(besideChart ? Qt::Horizontal : Qt::Vertical));
        }
        QCOMPARE(bool(qobject_cast<QVBoxLayout *>(view.getLegend()->layout())), besideChart);
        QCOMPARE(bool(qobject_cast<QHBoxLayout *>(view.getLegend()->layout())), !besideChart);
    }

    static void layout(bool stretch)
    {
        QFETCH(Qt::Alignment, alignment);
        QFETCH(bool, besideChart);
        const View view(false, alignment, nullptr);
        verifyLayout(view, besideChart, stretch);
        const QStringList captions = LegendTests<Legend>::allCaptions();
        QCOMPARE(legendCaptions(*view.getLegend()), besideChart ? LegendTests<Legend>::downwards(captions) : captions);
    }

    static void rearranging(bool stretch)
    {
        QFETCH(Qt::Alignment, alignment);
        QFETCH(bool, besideChart);
        View view(false, nullptr);
        const int objects = view.template findChildren<QObject *>().size();
        for (const Qt::Alignment other : {Qt::Alignment(Qt::AlignRight), Qt::Alignment(Qt::AlignBottom)}) {
            view.setLegendAlignament(other);
            const QPointer<QLayout> previous(view.layout());
            view.setLegendAlignament(alignment);
            QVERIFY(previous.isNull());
            verifyLayout(view, besideChart, stretch);
            QCOMPARE(view.template findChildren<QObject *>().size(), objects);
        }
    }

    // To the right and below, wherever the alignment points.
    static void legendPlace()
    {
        View view(true, nullptr);
        view.resize(1200, 900);
        view.show();
        const auto verifyPlace = [&view](bool right) {
            const QRect chart = view.view()->geometry();
            const QRect legend = view.getLegend()->geometry();
            QCOMPARE(chart.topLeft(), QPoint(0, 0));
            QCOMPARE(legend.topLeft(), right ? QPoint(chart.width(), 0) : QPoint(0, chart.height()));
        };
        verifyPlace(false);
        const QList<QPair<Qt::Alignment, bool>> places = {{Qt::AlignLeft, true}, {Qt::AlignTop, false},
            {Qt::AlignRight, true}, {Qt::AlignLeft | Qt::AlignTop, false}, {Qt::AlignLeft, true}};
        for (const auto &[alignment, right] : places) {
            view.setLegendAlignament(alignment);
            QCoreApplication::processEvents();
            verifyPlace(right);
        }
    }

    static void imageSize()
    {
        View view(true, nullptr);
        view.setImageWidth(600);
        QCOMPARE(view.imageWidth(), 600);
        QCOMPARE(view.imageHeight(), 512);
        QCOMPARE(view.view()->minimumWidth(), 602);
        QCOMPARE(view.view()->maximumWidth(), 602);
        QCOMPARE(view.view()->maximumHeight(), QWIDGETSIZE_MAX);
        QCOMPARE(sceneOf(view)->imageWidth(), 600);
        view.setImageHeight(500);
        QCOMPARE(view.imageHeight(), 500);
        QCOMPARE(view.view()->minimumHeight(), 502);
        QCOMPARE(view.view()->maximumHeight(), 502);
        QCOMPARE(view.view()->maximumWidth(), 602);
        QCOMPARE(sceneOf(view)->imageHeight(), 500);
        view.show();
        QCOMPARE(view.view()->size(), QSize(602, 502));
    }

    static void impossibleImageSize()
    {
        const reference::QuietMessages quiet;
        View view(true, nullptr);
        view.show();
        for (const int size : {0, -1, -2, -3, -512, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(),
                 std::numeric_limits<int>::max() - 1, 1}) {
            view.setImageWidth(size);
            QCOMPARE(view.imageWidth(), size);
            view.setImageHeight(size);
            QCOMPARE(view.imageHeight(), size);
            const int extent = static_cast<int>(std::clamp<qint64>(qint64(size) + 2, 0, QWIDGETSIZE_MAX));
            QCOMPARE(view.view()->maximumSize(), QSize(extent, extent));
        }
    }

    static void layerSwitches()
    {
        View view(true, nullptr);
        Scene *scene = sceneOf(view);
        for (const bool on : {false, true}) {
            view.setIsDrawCoordinate(on);
            QCOMPARE(view.isDrawCoordinate(), on);
            QCOMPARE(scene->isDrawCoordinate(), on);
            QCOMPARE(view.isDrawBBRLine(), !on);
            view.setIsDrawBBRLine(on);
            QCOMPARE(view.isDrawBBRLine(), on);
            QCOMPARE(scene->isDrawBBRLine(), on);
            QCOMPARE(view.isDrawWaveLength(), !on);
            view.setIsDrawWaveLength(on);
            QCOMPARE(view.isDrawWaveLength(), on);
            QCOMPARE(scene->isDrawWaveLength(), on);
            // For the second turn, in which the switches start on.
            view.setIsDrawCoordinate(false);
            view.setIsDrawBBRLine(false);
            view.setIsDrawWaveLength(false);
        }
        // The getters answer for the view, whatever the scene has been told.
        scene->setIsDrawCoordinate(true);
        scene->setIsDrawBBRLine(true);
        scene->setIsDrawWaveLength(true);
        QVERIFY(!view.isDrawCoordinate() && !view.isDrawBBRLine() && !view.isDrawWaveLength());
        scene->setImageWidth(100);
        scene->setImageHeight(100);
        QCOMPARE(view.imageWidth(), 512);
        QCOMPARE(view.imageHeight(), 512);
    }

    // Only the scene holds these switches.
    static void editSwitches()
    {
        View view(true, nullptr);
        Scene *scene = sceneOf(view);
        view.setDrawColorTPoint(false);
        QVERIFY(!scene->isDrawColorTPoint());
        QVERIFY(!view.isDrawColorTPoint());
        scene->setDrawColorTPoint(true);
        QVERIFY(view.isDrawColorTPoint());

        QVERIFY(scene->getIsMouseOper());
        view.setUseMouseOpertator(false);
        QVERIFY(!scene->getIsMouseOper());
        view.setUseMouseOpertator(true);
        QVERIFY(scene->getIsMouseOper());

        int placements = 0;
        QObject::connect(scene, &Scene::signal_colorGamutValueChanged, scene, [&placements] { ++placements; });
        const QPointF nowhere(-1000, -1000);
        for (const bool enable : {false, true}) {
            view.setLsColorTriangleObject(
                {gamutObject(distinctTargets(1), Qt::white, 1), gamutObject(distinctTargets(2), Qt::black, 1)});
            // Locked vertices are not placed.
            view.setRGBPointEnable(enable);
            placements = 0;
            scene->MouseSelectedPoint(nowhere);
            QCOMPARE(placements, enable ? 1 : 0);
        }
        for (const bool held : {false, true}) {
            view.setLsColorTriangleObject(
                {gamutObject(distinctTargets(1), Qt::white, 1), gamutObject(distinctTargets(2), Qt::black, 1)});
            // A held white stays; else a placement moves it to what the primaries mix to.
            const QPointF white = scene->getLsColorTriangleObject().at(1).trianglePoint().whitePos();
            view.setColorTempertureChecked(held);
            scene->AddLedColorAndPoint();
            const QPointF placed = scene->getLsColorTriangleObject().at(1).trianglePoint().whitePos();
            QCOMPARE(placed.x() == white.x() && placed.y() == white.y(), held);
        }
    }

    static void gamutList()
    {
        View view(true, nullptr);
        Scene *scene = sceneOf(view);
        QList<ColorTriangleObject> gamuts = threeGamuts();
        const QString words = describe(gamuts);
        view.setLsColorTriangleObject(gamuts);
        QCOMPARE(describe(view.lsColorTriangleObject()), words);
        QCOMPARE(describe(scene->getLsColorTriangleObject()), words);

        // Copies, going in and coming out.
        gamuts[0].setShow(false);
        QList<ColorTriangleObject> copy = view.lsColorTriangleObject();
        copy[1].setShow(false);
        copy.removeLast();
        QCOMPARE(describe(view.lsColorTriangleObject()), words);

        // The same data again still reaches the scene.
        scene->setLsColorTriangleObject({});
        view.setLsColorTriangleObject(view.lsColorTriangleObject());
        QCOMPARE(describe(scene->getLsColorTriangleObject()), words);
    }

    static void clearing()
    {
        View view(true, nullptr);
        view.setLsColorTriangleObject(threeGamuts());
        view.setLsColorTempertureValuePoints({QPointF(0.3, 0.3)});
        view.setOtherPoints({QPointF(0.2, 0.2)}, {Qt::red});
        view.clear();
        QVERIFY(view.lsColorTriangleObject().isEmpty());
        QVERIFY(sceneOf(view)->getLsColorTriangleObject().isEmpty());
        QCOMPARE(view.lsColorTempertureValuePoints().size(), 1);
        QCOMPARE(view.getOtherPoints().size(), 1);
        view.clear();
        QVERIFY(view.lsColorTriangleObject().isEmpty());
    }

    /*! Whether \a act has the whole view painted anew, not only the chart in it. */
    static bool isRepaintedBy(View &view, const std::function<void(View &)> &act)
    {
        class PaintedRegion : public QObject {
        public:
            QRegion region;

        protected:
            bool eventFilter(QObject *, QEvent *event) override
            {
                if (event->type() == QEvent::Paint) {
                    region += static_cast<QPaintEvent *>(event)->region();
                }
                return false;
            }
        };
        view.setImageWidth(60);
        view.setImageHeight(60);
        view.resize(500, 400);
        view.show();
        const auto settle = [] {
            for (int i = 0; i < 5; ++i) {
                QCoreApplication::processEvents();
                QCoreApplication::sendPostedEvents();
            }
        };
        settle();
        PaintedRegion painted;
        view.installEventFilter(&painted);
        act(view);
        settle();
        view.removeEventFilter(&painted);
        return painted.region.contains(view.rect().bottomRight());
    }

    static void changedGamutsRepaintTheChart()
    {
        View view(true, nullptr);
        view.setLsColorTriangleObject(threeGamuts());
        QVERIFY(isRepaintedBy(view, [](View &shown) { shown.setColorGamutVisible(1, false); }));
        QVERIFY(isRepaintedBy(view, [](View &shown) { shown.clear(); }));
        // The list alone goes to the scene, which repaints itself.
        QVERIFY(!isRepaintedBy(view, [](View &shown) { shown.setLsColorTriangleObject(threeGamuts()); }));
    }

    static void gamutVisibility()
    {
        View view(true, nullptr);
        Scene *scene = sceneOf(view);
        const QList<ColorTriangleObject> gamuts = threeGamuts();
        view.setLsColorTriangleObject(gamuts);
        for (int index = 0; index < 3; ++index) {
            view.setColorGamutVisible(index, false);
            for (int i = 0; i < 3; ++i) {
                QCOMPARE(view.lsColorTriangleObject().at(i).isShow(), i != index);
                QCOMPARE(scene->getLsColorTriangleObject().at(i).isShow(), i != index);
            }
            QVERIFY(gamuts.at(index).isShow());
            view.setColorGamutVisible(index, true);
            QCOMPARE(describe(view.lsColorTriangleObject()), describe(gamuts));
        }
    }

    // Neither the list nor what the scene holds is touched.
    static void gamutVisibilityOutsideTheList()
    {
        View view(true, nullptr);
        Scene *scene = sceneOf(view);
        view.setColorGamutVisible(0, false);
        const QString words = describe(threeGamuts());
        view.setLsColorTriangleObject(threeGamuts());
        scene->setLsColorTriangleObject({});
        for (const int index :
            {3, 5, std::numeric_limits<int>::max(), -1, -3, -1000, std::numeric_limits<int>::min()}) {
            view.setColorGamutVisible(index, false);
            QCOMPARE(describe(view.lsColorTriangleObject()), words);
            QVERIFY(scene->getLsColorTriangleObject().isEmpty());
        }
    }

    static void points()
    {
        View view(true, nullptr);
        Scene *scene = sceneOf(view);
        const QList<QPointF> temperatures = {QPointF(0.3127, 0.3290), QPointF(0.2831, 0.2970)};
        view.setLsColorTempertureValuePoints(temperatures);
        QCOMPARE(view.lsColorTempertureValuePoints(), temperatures);
        QCOMPARE(scene->getLsColorTempertureValuePoints(), temperatures);
        QList<QPointF> copy = view.lsColorTempertureValuePoints();
        copy.clear();
        QCOMPARE(view.lsColorTempertureValuePoints(), temperatures);

        const QList<QPointF> others = {QPointF(0.1, 0.2), QPointF(0.3, 0.4)};
        const QList<QColor> colors = {Qt::red, QColor(1, 2, 3, 4)};
        view.setOtherPoints(others, colors);
        QCOMPARE(scene->getOtherPoints(), others);
        QCOMPARE(scene->getOtherPointsColor(), colors);
        scene->setOtherPoints({QPointF(0.5, 0.5)}, {});
        QCOMPARE(view.getOtherPoints(), QList<QPointF>({QPointF(0.5, 0.5)}));
        QVERIFY(view.getOtherPointsColor().isEmpty());
    }

    /*! Notes what the view emits. */
    class SignalLog {
    public:
        explicit SignalLog(View &view)
        {
            QObject::connect(&view, &View::signal_colorGamutValueChanged, &m_context,
                [this](const ColorTriangleObject &gamut) { entries << QStringLiteral("value ") + describe(gamut); });
            QObject::connect(&view, &View::signal_colorGamutWhiteChanged, &m_context,
                [this](const ColorTriangleObject &gamut) { entries << QStringLiteral("white ") + describe(gamut); });
            QObject::connect(&view, &View::signal_colorTempertrueValueChang, &m_context,
                [this](double kelvin) { entries << QStringLiteral("temperature %1").arg(kelvin); });
            QObject::connect(&view, &View::signal_mouseCursorChange, &m_context,
                [this](auto style) { entries << QStringLiteral("cursor %1").arg(int(style)); });
            QObject::connect(
                &view, &View::signal_targetInfoChanged, &m_context, [this](const TargetInfoChangedEventArgs &info) {
                    entries << QStringLiteral("target ") + describe(info);
                });
            QObject::connect(&view, &View::signal_triangleObjecIinitialized, &m_context,
                [this](const TriangleObjecIinitializedEventArgs &info) {
                    entries << QStringLiteral("initialized ") + describe(info);
                });
        }
        Q_DISABLE_COPY(SignalLog)

        QStringList take()
        {
            QStringList taken;
            taken.swap(entries);
            return taken;
        }

        QStringList entries;

    private:
        QObject m_context;
    };

    // One signal of the view for one of the scene, at once, with the same payload; the cursor stays inside.
    static void relays(View &view)
    {
        Scene *scene = sceneOf(view);
        SignalLog log(view);
        const QList<ColorTriangleObject> gamuts = threeGamuts();

        Q_EMIT scene->signal_colorGamutValueChanged(gamuts.at(0));
        QCOMPARE(log.take(), QStringList(QStringLiteral("value ") + describe(gamuts.at(0))));

        Q_EMIT scene->signal_colorGamutWhiteChanged(gamuts.at(1));
        QCOMPARE(log.take(), QStringList(QStringLiteral("white ") + describe(gamuts.at(1))));

        Q_EMIT scene->signal_colorTempertrueValueChang(6504);
        QCOMPARE(log.take(), QStringList(QStringLiteral("temperature 6504")));

        TargetInfoChangedEventArgs changed;
        changed.setColorTriangleObject(gamuts.at(2));
        changed.setColourTemperature(9300);
        changed.setBeyondColorType(baseCommon::Green);
        changed.setIsReasonableData(true);
        Q_EMIT scene->signal_targetInfoChanged(changed);
        QCOMPARE(log.take(), QStringList(QStringLiteral("target ") + describe(changed)));

        TriangleObjecIinitializedEventArgs initialized;
        initialized.setColorTriangleObjectList(gamuts);
        initialized.setIsEffectiveValue(true);
        initialized.setBeyondColorType(baseCommon::Blue);
        Q_EMIT scene->signal_triangleObjecIinitialized(initialized);
        QCOMPARE(log.take(), QStringList(QStringLiteral("initialized ") + describe(initialized)));

        Q_EMIT scene->signal_mouseCursorChange(QCursor(Qt::OpenHandCursor));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(log.take(), QStringList());
    }

    static void relaysKeepTheOrder()
    {
        View view(true, nullptr);
        Scene *scene = sceneOf(view);
        SignalLog log(view);
        for (const int kelvin : {1, 2}) {
            Q_EMIT scene->signal_colorTempertrueValueChang(kelvin);
            Q_EMIT scene->signal_colorGamutValueChanged(ColorTriangleObject());
        }
        QStringList kinds;
        for (const QString &entry : log.take()) {
            kinds.append(entry.section(QLatin1Char(' '), 0, 0));
        }
        QCOMPARE(kinds.join(QLatin1Char(' ')), QStringLiteral("temperature value temperature value"));
    }

    static void cursorChangesAfterTheEvent()
    {
        const View view(true, nullptr);
        Q_EMIT sceneOf(view)->signal_mouseCursorChange(QCursor(Qt::OpenHandCursor));
        QCOMPARE(view.view()->cursor().shape(), Qt::ArrowCursor);
        Q_EMIT sceneOf(view)->signal_mouseCursorChange(QCursor(Qt::CrossCursor));
        QCOMPARE(view.view()->cursor().shape(), Qt::ArrowCursor);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(view.view()->cursor().shape(), Qt::CrossCursor);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(view.view(), &leave);
        QCOMPARE(view.view()->cursor().shape(), Qt::ArrowCursor);
    }

    // What has not been delivered when the chart goes is dropped.
    static void cursorChangeOfADestroyedChart()
    {
        auto view = std::make_unique<View>(true, nullptr);
        Q_EMIT sceneOf(*view)->signal_mouseCursorChange(QCursor(Qt::OpenHandCursor));
        view.reset();
        QCoreApplication::sendPostedEvents();
    }

    static void ownership()
    {
        QWidget parent;
        auto *view = new View(true, &parent);
        QCOMPARE(view->parentWidget(), &parent);
        view->show();
        parent.show();
        const QPointer<Scene> scene(sceneOf(*view));
        const QPointer<InnerView> inner(view->view());
        const QPointer<Legend> legend(view->getLegend());
        delete view;
        QVERIFY(scene.isNull());
        QVERIFY(inner.isNull());
        QVERIFY(legend.isNull());
    }

    // A host that takes the inner view elsewhere keeps a view without a scene.
    static void innerViewThatOutlivesItsChart()
    {
        auto view = std::make_unique<View>(true, nullptr);
        const std::unique_ptr<InnerView> inner(view->view());
        inner->setParent(nullptr);
        QGraphicsView second(sceneOf(*view));
        view.reset();
        QCOMPARE(inner->scene(), nullptr);
        QCOMPARE(second.scene(), nullptr);
        inner->show();
        second.show();
        QVERIFY(!inner->grab().isNull());
    }

    // For the leak checker.
    static void manyCharts()
    {
        for (int i = 0; i < 1000; ++i) {
            View view(true, i % 2 ? Qt::AlignLeft : Qt::AlignBottom, nullptr);
            view.setLsColorTriangleObject(threeGamuts());
            view.setOtherPoints({QPointF(0.3, 0.3)}, {Qt::red});
            view.setImageWidth(10 + i % 20);
            view.setImageHeight(10 + i % 20);
            view.setLegendAlignament(i % 3 ? Qt::AlignRight : Qt::AlignTop);
        }
    }

    static void libraryRegistersNoMetaType()
    {
        View view(true, nullptr);
        relays(view);
        for (const char *type : {"ColorTriangleObject", "TargetInfoChangedEventArgs",
                 "TriangleObjecIinitializedEventArgs", "NewCEIE::MouseCursorStyle", "MouseCursorStyle"}) {
            QVERIFY2(!reference::isRegistered(type), type);
        }
    }

    // A host connects its controls straight to the operations.
    static void operationsServeAsSlots()
    {
        View view(true, nullptr);
        QCheckBox box;
        QSpinBox size;
        size.setRange(1, 1000);
        QObject::connect(&box, &QCheckBox::toggled, &view, &View::setIsDrawWaveLength);
        QObject::connect(&size, QOverload<int>::of(&QSpinBox::valueChanged), &view, &View::setImageWidth);
        box.setChecked(true);
        box.setChecked(false);
        size.setValue(321);
        QVERIFY(!view.isDrawWaveLength());
        QCOMPARE(view.imageWidth(), 321);
    }
};

#endif // CEIECHART_TESTS_WIDGETS_CHARTVIEWTESTS_H
