// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/render/drawceipicture.h>
#include <ceiechart/scene/ceiegraphicsscene.h>

#include <reference/canvas.h>
#include <reference/picturedifference.h>
#include <reference/samplegamuts.h>
#include <reference/sceneevents.h>
#include <reference/scenemodel.h>
#include <reference/scenesignalfacts.h>
#include <reference/scenesignallog.h>
#include <reference/scenestate.h>

#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QMetaMethod>
#include <QPainter>
#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

// Qt's hook for tools that watch every signal: nobody can be connected to a scene while it is constructed.
struct QSignalSpyCallbackSet {
    using BeginCallback = void (*)(QObject *caller, int signalOrMethodIndex, void **arguments);
    using EndCallback = void (*)(QObject *caller, int signalOrMethodIndex);
    BeginCallback signalBegin, slotBegin;
    EndCallback signalEnd, slotEnd;
};
Q_CORE_EXPORT void qt_register_signal_spy_callbacks(QSignalSpyCallbackSet *callbacks);

using reference::describe;
using Scene = NewCEIE::CEIEGraphicsScene;
using SignalLog = reference::SceneSignalLog<Scene>;
using Setter = std::function<void(Scene &)>;
using Preparation = std::function<void(QPainter &)>;

Q_DECLARE_METATYPE(Setter)
Q_DECLARE_METATYPE(Preparation)
Q_DECLARE_METATYPE(ColorTriangleObject)

namespace {

QStringList *watched = nullptr;

QMetaMethod signalAt(const QMetaObject *meta, int signalIndex)
{
    for (int i = 0; i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal && signalIndex-- == 0) {
            return meta->method(i);
        }
    }
    return QMetaMethod();
}

void writeDown(QObject *caller, int signalIndex, void **arguments)
{
    const QByteArray name = signalAt(caller->metaObject(), signalIndex).name();
    if (name == "signal_triangleObjecIinitialized") {
        *watched << QString::fromLatin1(name) + QLatin1Char(' ')
                + describe(*static_cast<const TriangleObjecIinitializedEventArgs *>(arguments[1]));
    } else if (name.startsWith("signal_")) {
        *watched << QString::fromLatin1(name);
    }
}

QStringList signalsOfConstruction(const QList<ColorTriangleObject> &triangles)
{
    QStringList emitted;
    watched = &emitted;
    QSignalSpyCallbackSet callbacks{&writeDown, nullptr, nullptr, nullptr};
    qt_register_signal_spy_callbacks(&callbacks);
    {
        const Scene scene(triangles);
    }
    qt_register_signal_spy_callbacks(nullptr);
    watched = nullptr;
    return emitted;
}

QRectF squareAround(const QPointF &centre)
{
    return QRectF(centre.x() - 8, centre.y() - 8, 16, 16);
}

QPolygonF verticesIn(NewCEIE::DrawCEIPicture &renderer, const TrianglePoint &points)
{
    QPolygonF polygon;
    polygon << renderer.CoordinateTransformation(points.redPos())
            << renderer.CoordinateTransformation(points.greenPos())
            << renderer.CoordinateTransformation(points.bluePos());
    return polygon;
}

} // namespace

class CEIEGraphicsSceneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void derivesFromGraphicsScene();
    void declaresSixSignalsInOrder();
    void startsWithDefaults();
    void emptyListDrawsNoHandlesAndEmitsNothing();
    void oneTriangleEmitsNothing();
    void twoTrianglesEmitOnceDuringConstruction();
    void furtherTrianglesStayOutOfTheInitialReport();
    void initialReportNamesTheOffendingPrimary();
    void listSetterNeitherEmitsNorRenders();
    void setterKeepsTheListItIsGiven();
    void originalVerticesAreChromaticitiesAfterConstruction();
    void originalVerticesAreImagePositionsAfterTheListSetter();
    void emptyListKeepsTheOriginalVertices();
    void settersRenderAtOnce_data();
    void settersRenderAtOnce();
    void updatesAreThoseStated_data();
    void updatesAreThoseStated();
    void zoomScalesTheStoredImageSizeAtEveryRendering();
    void imageSizePassesThroughSinglePrecision();
    void sceneRectangleDoesNotFollowTheImage();
    void coordinatesFollowThePicture();
    void coordinatesAreSinglePrecision();
    void unitLengthIsTruncated();
    void coordinatesAndChromaticitiesConvertBothWays();
    void emptyPictureHasNoUnit();
    void roundKeepsThreeDecimals();
    void pointsAreNarrowedToNearest();
    void enablingPrimariesSetsTheEditMode();
    void setTargetItemVisableHasNoEffect();
    void mouseHandlersAreEmpty();
    void itemsGetNoMouseEvents()
    {
        Scene scene({});
        reference::verifyItemsGetNoMouseEvents(scene);
    }
    void simpleFormFollowsTheLayerFlags();
    void backgroundFollowsTheView_data();
    void backgroundFollowsTheView();
    void backgroundGoesByTheFirstView();
    void backgroundOfAMovedSceneRectangle();
    void backgroundIsTheSameForAnyPainter_data();
    void backgroundIsTheSameForAnyPainter();
    void backgroundFollowsTheNewestPicture();
    void backgroundLeavesThePainterAsItWas();
    void gamutFormGetsEverything_data();
    void gamutFormGetsEverything();
    void gamutFormMapsBeforeItDraws();
    void gamutFormKeepsTheCoordinates();
    void refreshAreaLeavesAWideWhitePen();
    void refreshAreaClearsTheWhiteOfTheTarget();
    void refreshAreaKeepsTheWhiteWhenNotAsked();
    void meaninglessInputIsSurvived();
    void renderingHandsOverNoColorTemperaturePoints_data();
    void renderingHandsOverNoColorTemperaturePoints();
    void emptyTargetHasNoVertexRectangles();
};

void CEIEGraphicsSceneTest::derivesFromGraphicsScene()
{
    const Scene scene({});
    QCOMPARE(scene.metaObject()->className(), "NewCEIE::CEIEGraphicsScene");
    QCOMPARE(scene.metaObject()->superClass(), &QGraphicsScene::staticMetaObject);
    QCOMPARE(scene.parent(), nullptr);
}

void CEIEGraphicsSceneTest::declaresSixSignalsInOrder()
{
    QCOMPARE(reference::declaredSignals(Scene::staticMetaObject), reference::sceneSignals());
}

void CEIEGraphicsSceneTest::startsWithDefaults()
{
    Scene scene({});
    QCOMPARE(scene.imageWidth(), 672);
    QCOMPARE(scene.imageHeight(), 728);
    QVERIFY(scene.isDrawCoordinate() && scene.isDrawBBRLine() && scene.isDrawWaveLength());
    QVERIFY(scene.isDrawColorTPoint());
    QVERIFY(scene.getIsMouseOper());
    QVERIFY(scene.getLsColorTempertureValuePoints().isEmpty());
    QVERIFY(scene.getOtherPoints().isEmpty() && scene.getOtherPointsColor().isEmpty());
    QCOMPARE(describe(reference::stateOf(scene)), describe(reference::SceneState()));
    // Nothing is rendered yet: the origin is the corner and a chromaticity of 1 spans 100 pixels.
    QCOMPARE(describe(scene.ChromaToCurCoordinate(QPointF(0.25, 0.5))), QStringLiteral("(25, -50)"));
    QVERIFY(scene.sceneRect().isNull());
}

void CEIEGraphicsSceneTest::emptyListDrawsNoHandlesAndEmitsNothing()
{
    QVERIFY(signalsOfConstruction({}).isEmpty());
    Scene scene({});
    SignalLog log(&scene);
    scene.SetCentreTriangle();
    scene.SetControlGraphData();
    QImage image(50, 50, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::darkCyan);
    const QImage untouched = image.copy();
    {
        QPainter painter(&image);
        QVERIFY(scene.refreshArea(&painter));
    }
    QCOMPARE(reference::firstDifference(image, untouched), QString());
    QVERIFY(log.takeSignals().isEmpty());
}

void CEIEGraphicsSceneTest::oneTriangleEmitsNothing()
{
    QVERIFY(signalsOfConstruction({reference::wideGamut()}).isEmpty());
    Scene scene({reference::wideGamut()});
    SignalLog log(&scene);
    scene.SetControlGraphData();
    QVERIFY(log.takeSignals().isEmpty());
}

void CEIEGraphicsSceneTest::twoTrianglesEmitOnceDuringConstruction()
{
    const QList<ColorTriangleObject> pair = reference::gamutPair();
    TriangleObjecIinitializedEventArgs report;
    report.setColorTriangleObjectList(pair);
    report.setIsEffectiveValue(true);
    const QStringList expected{QStringLiteral("signal_triangleObjecIinitialized ") + describe(report)};
    QCOMPARE(signalsOfConstruction(pair), expected);

    Scene scene(pair);
    SignalLog log(&scene);
    scene.SetControlGraphData();
    QCOMPARE(log.takeSignals(), expected);
}

void CEIEGraphicsSceneTest::furtherTrianglesStayOutOfTheInitialReport()
{
    const QList<ColorTriangleObject> pair = reference::gamutPair();
    QCOMPARE(signalsOfConstruction(pair + pair), signalsOfConstruction(pair));
}

void CEIEGraphicsSceneTest::initialReportNamesTheOffendingPrimary()
{
    ColorTriangleObject target = reference::narrowGamut();
    target.trianglePoint().setGreenPos(QPointF(0.5, 0.6));
    target.trianglePoint().setBluePos(QPointF(0.0, 0.0));
    TriangleObjecIinitializedEventArgs report;
    report.setColorTriangleObjectList({reference::wideGamut(), target});
    report.setIsEffectiveValue(false);
    report.setBeyondColorType(baseCommon::Green);
    QCOMPARE(signalsOfConstruction({reference::wideGamut(), target}),
        QStringList(QStringLiteral("signal_triangleObjecIinitialized ") + describe(report)));
}

void CEIEGraphicsSceneTest::listSetterNeitherEmitsNorRenders()
{
    Scene scene({});
    SignalLog log(&scene);
    scene.setLsColorTriangleObject(reference::gamutPair());
    QVERIFY(log.takeSignals().isEmpty());
    QVERIFY(log.takeUpdate());
    QVERIFY(scene.sceneRect().isNull());
    QCOMPARE(describe(scene.ChromaToCurCoordinate(QPointF(1, 1))), QStringLiteral("(100, -100)"));
}

void CEIEGraphicsSceneTest::setterKeepsTheListItIsGiven()
{
    Scene scene(reference::gamutPair());
    const QList<ColorTriangleObject> list{reference::narrowGamut(), reference::wideGamut(), reference::narrowGamut()};
    scene.setLsColorTriangleObject(list);
    QCOMPARE(describe(scene.getLsColorTriangleObject()), describe(list));
    scene.setLsColorTriangleObject({});
    QVERIFY(scene.getLsColorTriangleObject().isEmpty());

    const QList<QPointF> points{QPointF(0.3, 0.3), QPointF(std::numeric_limits<double>::quiet_NaN(), 1.0)};
    scene.setOtherPoints(points, {Qt::red});
    QCOMPARE(describe(scene.getOtherPoints()), describe(points));
    QCOMPARE(scene.getOtherPointsColor(), QList<QColor>{QColor(Qt::red)});
    scene.setOtherPoints({}, {Qt::blue, Qt::green});
    QVERIFY(scene.getOtherPoints().isEmpty());
    QCOMPARE(scene.getOtherPointsColor(), QList<QColor>({Qt::blue, Qt::green}));
    scene.setLsColorTempertureValuePoints(points);
    QCOMPARE(describe(scene.getLsColorTempertureValuePoints()), describe(points));
}

void CEIEGraphicsSceneTest::originalVerticesAreChromaticitiesAfterConstruction()
{
    Scene scene(reference::gamutPair());
    SignalLog log(&scene);
    reference::setRequestedPoint(scene, scene.ChromaToCurCoordinate(QPointF(0.6, 0.3)));
    scene.AddLedColorAndPoint();
    log.takeSignals();
    reference::setRequestedPoint(scene, scene.ChromaToCurCoordinate(QPointF(0.61, 0.3)));
    scene.MoveEllipseSign();
    QCOMPARE(log.takeSignals().size(), 1);
    QVERIFY(!reference::stateOf(scene).outOfBounds);
}

void CEIEGraphicsSceneTest::originalVerticesAreImagePositionsAfterTheListSetter()
{
    Scene scene(reference::gamutPair());
    scene.setImageWidth(300);
    scene.setImageHeight(300);
    scene.setLsColorTriangleObject(reference::gamutPair());
    SignalLog log(&scene);
    reference::setRequestedPoint(scene, scene.ChromaToCurCoordinate(QPointF(0.6, 0.3)));
    scene.AddLedColorAndPoint();
    log.takeSignals();
    scene.MoveEllipseSign();
    QVERIFY(log.takeSignals().isEmpty());
    QVERIFY(reference::stateOf(scene).outOfBounds);

    // A chromaticity as large as the image positions lies between them, in no fence: that is the region to keep.
    reference::setRequestedPoint(scene, scene.ChromaToCurCoordinate(QPointF(100.0, 200.0)));
    scene.AddLedColorAndPoint();
    log.takeSignals();
    scene.MoveEllipseSign();
    QCOMPARE(log.takeSignals().size(), 1);
}

void CEIEGraphicsSceneTest::emptyListKeepsTheOriginalVertices()
{
    Scene scene(reference::gamutPair());
    scene.setLsColorTriangleObject({});
    reference::setRequestedPoint(scene, scene.ChromaToCurCoordinate(QPointF(0.6, 0.3)));
    scene.MoveEllipseSign();
    QVERIFY(!reference::stateOf(scene).outOfBounds);
}

void CEIEGraphicsSceneTest::settersRenderAtOnce_data()
{
    QTest::addColumn<Setter>("set");
    QTest::newRow("width") << Setter([](Scene &scene) { scene.setImageWidth(90); });
    QTest::newRow("height") << Setter([](Scene &scene) { scene.setImageHeight(80); });
    QTest::newRow("coordinate") << Setter([](Scene &scene) { scene.setIsDrawCoordinate(false); });
    QTest::newRow("planckian locus") << Setter([](Scene &scene) { scene.setIsDrawBBRLine(false); });
    QTest::newRow("wavelengths") << Setter([](Scene &scene) { scene.setIsDrawWaveLength(false); });
    QTest::newRow("temperature points") << Setter([](Scene &scene) { scene.setLsColorTempertureValuePoints({}); });
    QTest::newRow("getBitMap") << Setter([](Scene &scene) { scene.getBitMap(); });
}

// Each rendering scales the stored size once, so that the size counts the renderings.
void CEIEGraphicsSceneTest::settersRenderAtOnce()
{
    QFETCH(Setter, set);
    Scene scene({});
    scene.setImageWidth(100);
    scene.setImageHeight(100);
    reference::setFunctionKeyMode(scene, 1);
    for (int i = 0; i < 5; ++i) {
        scene.SetFunctionKeyShortcuts(); // to one and a half
    }
    SignalLog log(&scene);
    set(scene);
    QVERIFY(scene.imageWidth() == 150 || scene.imageWidth() == 135);
    QVERIFY(scene.imageHeight() == 150 || scene.imageHeight() == 120);
    QVERIFY(log.takeUpdate());
    QVERIFY(log.takeSignals().isEmpty());
}

void CEIEGraphicsSceneTest::updatesAreThoseStated_data()
{
    QTest::addColumn<Setter>("set");
    QTest::addColumn<bool>("updates");
    QTest::newRow("other points") << Setter([](Scene &scene) { scene.setOtherPoints({}, {}); }) << true;
    QTest::newRow("temperature point") << Setter([](Scene &scene) { scene.setDrawColorTPoint(true); }) << true;
    QTest::newRow("mouse editing") << Setter([](Scene &scene) { scene.setIsMouseOper(false); }) << false;
    QTest::newRow("white held") << Setter([](Scene &scene) { scene.setColorTempertureChecked(true); }) << false;
    QTest::newRow("primaries locked") << Setter([](Scene &scene) { scene.setRGBPointEnable(false); }) << false;
    QTest::newRow("target shown") << Setter([](Scene &scene) { scene.setTargetItemVisable(false); }) << false;
    QTest::newRow("CMY points") << Setter([](Scene &scene) { scene.setCMYPointData({QPointF(0.3, 0.3)}); }) << false;
}

void CEIEGraphicsSceneTest::updatesAreThoseStated()
{
    QFETCH(Setter, set);
    QFETCH(bool, updates);
    Scene scene(reference::gamutPair());
    SignalLog log(&scene);
    set(scene);
    QCOMPARE(log.takeUpdate(), updates);
    QVERIFY(log.takeSignals().isEmpty());
}

void CEIEGraphicsSceneTest::zoomScalesTheStoredImageSizeAtEveryRendering()
{
    Scene scene({});
    reference::setFunctionKeyMode(scene, 1);
    scene.SetFunctionKeyShortcuts();
    QCOMPARE(reference::stateOf(scene).zoom, 1.1F);
    scene.getBitMap();
    QCOMPARE(QSize(scene.imageWidth(), scene.imageHeight()), QSize(739, 800));
    scene.getBitMap();
    QCOMPARE(QSize(scene.imageWidth(), scene.imageHeight()), QSize(812, 880));
}

void CEIEGraphicsSceneTest::imageSizePassesThroughSinglePrecision()
{
    Scene scene({});
    scene.setImageHeight(0); // no picture
    scene.setImageWidth(16777217);
    QCOMPARE(scene.imageWidth(), 16777216);
    scene.setImageWidth(-16777217);
    QCOMPARE(scene.imageWidth(), -16777216);
}

void CEIEGraphicsSceneTest::sceneRectangleDoesNotFollowTheImage()
{
    Scene scene({});
    scene.setImageWidth(100);
    QCOMPARE(scene.sceneRect(), QRectF(0, 0, 672, 728));
    scene.setImageHeight(-7);
    QCOMPARE(scene.sceneRect(), QRectF(0, 0, 672, 728));
}

void CEIEGraphicsSceneTest::coordinatesFollowThePicture()
{
    Scene scene({});
    scene.setImageWidth(512);
    scene.setImageHeight(256);
    QCOMPARE(describe(scene.ChromaToCurCoordinate(QPointF(0, 0))), QStringLiteral("(27, 241.5)"));
    QCOMPARE(describe(scene.ChromaToCurCoordinate(QPointF(1, 1))), QStringLiteral("(567, -298.5)"));
}

// 700001 * 27 / 512 is 36914.115...; with 24 bits it is 36914.1171875. The picture has no height and no pixels,
// but the check of the target goes by the stored size.
void CEIEGraphicsSceneTest::coordinatesAreSinglePrecision()
{
    Scene scene({});
    scene.setImageHeight(0);
    scene.setImageWidth(700001);
    baseCommon::LEDColorType beyond = baseCommon::None;
    scene.CheckOriginalAndTarget(reference::wideGamut(), reference::narrowGamut(), beyond);
    QCOMPARE(describe(scene.ChromaToCurCoordinate(QPointF(0, 0))), QStringLiteral("(36914.1171875, 0)"));

    // 124361 * 540 / 512 is 131161.99...; with 24 bits it is 131162.
    scene.setImageWidth(124361);
    scene.CheckOriginalAndTarget(reference::wideGamut(), reference::narrowGamut(), beyond);
    const QPointF origin = scene.ChromaToCurCoordinate(QPointF(0, 0));
    QCOMPARE(scene.ChromaToCurCoordinate(QPointF(0, 1)).y(), origin.y() - 131162.0);
}

void CEIEGraphicsSceneTest::unitLengthIsTruncated()
{
    Scene scene({});
    scene.setImageWidth(101); // 106.5
    scene.setImageHeight(101);
    QCOMPARE(scene.ChromaToCurCoordinate(QPointF(0, 0)).y() - scene.ChromaToCurCoordinate(QPointF(0, 1)).y(), 106.0);
    scene.setImageWidth(-101);
    baseCommon::LEDColorType beyond = baseCommon::None;
    scene.CheckOriginalAndTarget(reference::wideGamut(), reference::narrowGamut(), beyond);
    QCOMPARE(scene.ChromaToCurCoordinate(QPointF(0, 0)).y() - scene.ChromaToCurCoordinate(QPointF(0, 1)).y(), -106.0);
}

void CEIEGraphicsSceneTest::coordinatesAndChromaticitiesConvertBothWays()
{
    Scene scene({});
    scene.setImageWidth(512);
    scene.setImageHeight(512);
    QCOMPARE(describe(scene.ChromaToCurCoordinate(QPointF(0.25, 0.75))), QStringLiteral("(162, 78)"));
    QCOMPARE(describe(scene.CurCoordinateToChroma(QPointF(162, 78))), QStringLiteral("(0.25, 0.75)"));
    QCOMPARE(describe(scene.GetEllipsePoint(QPointF(0.25, 0.75))), QStringLiteral("(162, 78)"));
    QPointF point(0.25, 0.75);
    scene.chromaToCurCoordinate(point);
    QCOMPARE(describe(point), QStringLiteral("(162, 78)"));
}

void CEIEGraphicsSceneTest::emptyPictureHasNoUnit()
{
    Scene scene({});
    scene.setImageWidth(0);
    QCOMPARE(describe(scene.ChromaToCurCoordinate(QPointF(0.3, 0.4))), QStringLiteral("(0, 0)"));
    QVERIFY(std::isinf(scene.CurCoordinateToChroma(QPointF(5, 5)).x()));
}

void CEIEGraphicsSceneTest::roundKeepsThreeDecimals()
{
    Scene scene({});
    QCOMPARE(scene.round(0.31274), 0.313);
    QCOMPARE(scene.round(0.32949), 0.329);
    QCOMPARE(scene.round(-1.23456), -1.235);
    QCOMPARE(scene.round(1234567.8912), 1234567.891);
    QCOMPARE(scene.round(1.0005), 1.0); // the double lies below the tie
    QVERIFY(std::isnan(scene.round(std::numeric_limits<double>::quiet_NaN())));
}

void CEIEGraphicsSceneTest::pointsAreNarrowedToNearest()
{
    Scene scene({});
    const PointF narrow = scene.convertPointF(QPointF(0.3127, 0.3291));
    QCOMPARE(describe(static_cast<double>(narrow.x)), describe(static_cast<double>(0.3127F)));
    QCOMPARE(describe(static_cast<double>(narrow.y)), describe(static_cast<double>(0.3291F)));
}

void CEIEGraphicsSceneTest::enablingPrimariesSetsTheEditMode()
{
    Scene scene(reference::gamutPair());
    SignalLog log(&scene);
    reference::setRequestedPoint(scene, scene.ChromaToCurCoordinate(QPointF(0.6, 0.3)));
    scene.AddLedColorAndPoint();
    log.takeSignals();

    scene.setRGBPointEnable(false);
    scene.MoveEllipseSign();
    QVERIFY(log.takeSignals().isEmpty());
    // Two, not one: the white point stays editable.
    reference::setRequestedPoint(scene, scene.ChromaToCurCoordinate(QPointF(0.33, 0.34)));
    scene.MoveCentreTriangle();
    QCOMPARE(log.takeSignals().size(), 1);

    scene.setRGBPointEnable(true);
    reference::setRequestedPoint(scene, scene.ChromaToCurCoordinate(QPointF(0.6, 0.3)));
    scene.MoveEllipseSign();
    QCOMPARE(log.takeSignals().size(), 1);
}

void CEIEGraphicsSceneTest::setTargetItemVisableHasNoEffect()
{
    Scene scene(reference::gamutPair());
    scene.setImageWidth(100);
    scene.setImageHeight(100);
    SignalLog log(&scene);
    const QImage before = reference::backgroundOf(scene, QSize(672, 728), QSize(672, 728));
    scene.setTargetItemVisable(false);
    QCOMPARE(describe(scene.getLsColorTriangleObject()), describe(reference::gamutPair()));
    QCOMPARE(reference::firstDifference(reference::backgroundOf(scene, QSize(672, 728), QSize(672, 728)), before),
        QString());
    QVERIFY(log.takeSignals().isEmpty());
}

void CEIEGraphicsSceneTest::mouseHandlersAreEmpty()
{
    Scene scene(reference::gamutPair());
    scene.setImageWidth(300);
    scene.setImageHeight(300);
    SignalLog log(&scene);
    const QString before = describe(reference::stateOf(scene));
    const QPointF red = scene.ChromaToCurCoordinate(QPointF(0.64, 0.33));
    for (const QEvent::Type type : {QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseMove,
             QEvent::GraphicsSceneMouseRelease, QEvent::GraphicsSceneMouseMove}) {
        for (const bool accepted : {true, false}) {
            QGraphicsSceneMouseEvent event(type);
            event.setScenePos(red);
            event.setButton(Qt::LeftButton);
            event.setButtons(Qt::LeftButton);
            event.setAccepted(accepted);
            QCoreApplication::sendEvent(&scene, &event);
            QCOMPARE(event.isAccepted(), accepted);
        }
    }
    QVERIFY(log.takeSignals().isEmpty());
    QVERIFY(!log.takeUpdate());
    QCOMPARE(describe(reference::stateOf(scene)), before);
    QCOMPARE(describe(scene.getLsColorTriangleObject()), describe(reference::gamutPair()));
}

void CEIEGraphicsSceneTest::simpleFormFollowsTheLayerFlags()
{
    for (const bool coordinate : {true, false}) {
        Scene scene({});
        scene.setImageWidth(200);
        scene.setImageHeight(220);
        scene.setIsDrawBBRLine(!coordinate);
        scene.setIsDrawCoordinate(coordinate);
        scene.setGraphColor(Qt::yellow, QColor(0, 40, 80));
        scene.getBitMap();
        NewCEIE::DrawCEIPicture renderer(nullptr);
        renderer.setGraphColor(Qt::yellow, QColor(0, 40, 80));
        const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(200, 220, coordinate, coordinate, true, {}));
        QCOMPARE(reference::firstDifference(reference::backgroundOf(scene, QSize(672, 728), QSize(672, 728)),
                     reference::shownPicture(*picture, QRectF(0, 0, 672, 728), QSize(672, 728))),
            QString());
    }
}

void CEIEGraphicsSceneTest::backgroundFollowsTheView_data()
{
    QTest::addColumn<QSize>("view");
    QTest::addColumn<QRectF>("target");
    QTest::newRow("taller: centred unscaled") << QSize(700, 800) << QRectF(14, 36, 672, 728);
    QTest::newRow("shorter: scaled down") << QSize(500, 364) << QRectF(82, 0, 336, 364);
    const double slight = 728.0 / 700.0;
    QTest::newRow("a little shorter") << QSize(680, 700)
                                      << QRectF(std::trunc((680 - 672 / slight) * 0.5), 0, 672 / slight, 728 / slight);
}

void CEIEGraphicsSceneTest::backgroundFollowsTheView()
{
    QFETCH(QSize, view);
    QFETCH(QRectF, target);
    Scene scene(reference::gamutPair());
    scene.setImageWidth(160);
    scene.setImageHeight(120);
    NewCEIE::DrawCEIPicture renderer(nullptr);
    const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(160, 120, true, true, true, {}));
    const QSize canvas(760, 860);
    QCOMPARE(reference::firstDifference(
                 reference::backgroundOf(scene, view, canvas), reference::shownPicture(*picture, target, canvas)),
        QString());
}

void CEIEGraphicsSceneTest::backgroundGoesByTheFirstView()
{
    Scene scene({});
    scene.setImageWidth(160);
    scene.setImageHeight(120);
    NewCEIE::DrawCEIPicture renderer(nullptr);
    const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(160, 120, true, true, true, {}));
    QGraphicsView first(&scene);
    first.resize(500, 364);
    QGraphicsView last(&scene);
    last.resize(700, 800);
    const QSize canvas(720, 820);
    const QImage actual
        = reference::canvas(canvas, [&](QPainter &painter) { scene.drawBackground(&painter, QRectF()); });
    QCOMPARE(reference::firstDifference(actual, reference::shownPicture(*picture, QRectF(82, 0, 336, 364), canvas)),
        QString());
}

void CEIEGraphicsSceneTest::backgroundOfAMovedSceneRectangle()
{
    Scene scene({});
    scene.setImageWidth(160);
    scene.setImageHeight(120);
    scene.setSceneRect(10, 20, 300, 400);
    NewCEIE::DrawCEIPicture renderer(nullptr);
    const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(160, 120, true, true, true, {}));
    const QSize canvas(500, 600);
    QCOMPARE(reference::firstDifference(reference::backgroundOf(scene, QSize(340, 402), canvas),
                 reference::shownPicture(*picture, QRectF(30, 21, 300, 400), canvas)),
        QString());
}

void CEIEGraphicsSceneTest::backgroundIsTheSameForAnyPainter_data()
{
    QTest::addColumn<Preparation>("prepare");
    QTest::newRow("as it is") << Preparation([](QPainter &) {});
    QTest::newRow("translated") << Preparation([](QPainter &painter) { painter.translate(-40, 25); });
    QTest::newRow("translated by a fraction") << Preparation([](QPainter &painter) { painter.translate(0.3, 0.7); });
    QTest::newRow("scaled") << Preparation([](QPainter &painter) { painter.scale(1.25, 1.25); });
    QTest::newRow("scaled unevenly") << Preparation([](QPainter &painter) { painter.scale(0.5, 1.0); });
    QTest::newRow("mirrored") << Preparation([](QPainter &painter) {
        painter.translate(400, 0);
        painter.scale(-1.0, 1.0);
    });
    QTest::newRow("rotated") << Preparation([](QPainter &painter) { painter.rotate(10); });
    QTest::newRow("turned by a quarter") << Preparation([](QPainter &painter) {
        painter.translate(400, 0);
        painter.rotate(90);
    });
    QTest::newRow("translucent") << Preparation([](QPainter &painter) { painter.setOpacity(0.5); });
    QTest::newRow("clipped") << Preparation([](QPainter &painter) { painter.setClipRect(50, 60, 120, 110); });
    QTest::newRow("another mode") << Preparation(
        [](QPainter &painter) { painter.setCompositionMode(QPainter::CompositionMode_Multiply); });
    QTest::newRow("window and viewport") << Preparation([](QPainter &painter) { painter.setWindow(0, 0, 300, 350); });
}

// However often, after whatever, and with or without pixels to scale.
void CEIEGraphicsSceneTest::backgroundIsTheSameForAnyPainter()
{
    QFETCH(Preparation, prepare);
    const QSize canvas(420, 440);
    for (const QSize &size : {QSize(336, 364), QSize(160, 120), QSize(500, 500)}) {
        Scene scene({});
        scene.setImageWidth(size.width());
        scene.setImageHeight(size.height());
        QGraphicsView view(&scene);
        view.resize(400, 364); // half of the scene rectangle
        NewCEIE::DrawCEIPicture renderer(nullptr);
        const std::unique_ptr<QImage> picture(
            renderer.drawCEIPicture(size.width(), size.height(), true, true, true, {}));
        const QImage expected = reference::canvas(canvas, [&](QPainter &painter) {
            prepare(painter);
            painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
            painter.drawImage(QRectF(32, 0, 336, 364), *picture, QRectF(QPointF(0, 0), size));
        });
        for (const bool prepared : {true, false, true, true}) {
            const QImage actual = reference::canvas(canvas, [&](QPainter &painter) {
                if (prepared) {
                    prepare(painter);
                }
                scene.drawBackground(&painter, QRectF());
            });
            if (prepared) {
                QCOMPARE(reference::firstDifference(actual, expected), QString());
            }
        }
    }
}

void CEIEGraphicsSceneTest::backgroundFollowsTheNewestPicture()
{
    Scene scene({});
    scene.setImageWidth(160);
    scene.setImageHeight(120);
    NewCEIE::DrawCEIPicture renderer(nullptr);
    const QSize canvas(400, 364);
    for (const QColor &color : {QColor(0, 40, 80), QColor(80, 40, 0), QColor(80, 40, 0, 100), QColor(0, 40, 80)}) {
        scene.setGraphColor(Qt::yellow, color);
        scene.getBitMap();
        renderer.setGraphColor(Qt::yellow, color);
        const std::unique_ptr<QImage> simple(renderer.drawCEIPicture(160, 120, true, true, true, {}));
        QCOMPARE(reference::firstDifference(reference::backgroundOf(scene, canvas, canvas),
                     reference::shownPicture(*simple, QRectF(32, 0, 336, 364), canvas)),
            QString());
        scene.setLsColorTriangleObject({}, {}, TrianglePoint(), TrianglePoint(), true, QString());
        const std::unique_ptr<QImage> gamut(renderer.drawCEIPicture(160, 120, true, {}, {}, QPolygonF(), true, {}));
        QCOMPARE(reference::firstDifference(reference::backgroundOf(scene, canvas, canvas),
                     reference::shownPicture(*gamut, QRectF(32, 0, 336, 364), canvas)),
            QString());
    }
}

void CEIEGraphicsSceneTest::backgroundLeavesThePainterAsItWas()
{
    Scene scene(reference::gamutPair());
    scene.setImageWidth(60);
    scene.setImageHeight(60);
    QGraphicsView view(&scene);
    view.resize(100, 100);
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::blue, 7));
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, false);
    const QPainter::RenderHints hints = painter.renderHints();
    SignalLog log(&scene);
    scene.drawBackground(&painter, QRectF(3, 4, 5, 6));
    QCOMPARE(painter.pen(), QPen(Qt::blue, 7));
    QCOMPARE(painter.renderHints(), hints);
    QVERIFY(log.takeSignals().isEmpty()); // the handles are the host's to draw
}

void CEIEGraphicsSceneTest::gamutFormGetsEverything_data()
{
    QTest::addColumn<QList<ColorTriangleObject>>("triangles");
    QTest::addColumn<bool>("emptyReference");
    QTest::addColumn<QString>("text");
    ColorTriangleObject later = reference::wideGamut();
    later.setType(1);
    ColorTriangleObject measured = reference::wideGamut();
    measured.setType(3);
    QTest::newRow("pair") << reference::gamutPair() << false << QString();
    QTest::newRow("first target counts") << QList<ColorTriangleObject>{reference::wideGamut(), measured,
        reference::narrowGamut(), later} << false
                                         << QString();
    QTest::newRow("no target") << QList<ColorTriangleObject>{reference::wideGamut(), measured} << false << QString();
    QTest::newRow("no reference") << reference::gamutPair() << true << QString();
    QTest::newRow("text") << reference::gamutPair() << false << QStringLiteral("no data");
    QTest::newRow("nothing") << QList<ColorTriangleObject>() << false << QString();
}

void CEIEGraphicsSceneTest::gamutFormGetsEverything()
{
    QFETCH(QList<ColorTriangleObject>, triangles);
    QFETCH(bool, emptyReference);
    QFETCH(QString, text);
    ColorTriangleObject standard = reference::narrowGamut();
    standard.setType(0);
    standard.setShow(true);
    for (ColorTriangleObject &triangle : triangles) {
        triangle.setShow(true);
    }
    const TrianglePoint first = reference::narrowGamut().trianglePoint();
    const TrianglePoint other = emptyReference ? TrianglePoint() : reference::wideGamut().trianglePoint();
    const QList<QPointF> cmy{QPointF(0.2, 0.3), QPointF(0.4, 0.2), QPointF(0.4, 0.5)};

    Scene scene({});
    scene.setImageWidth(300);
    scene.setImageHeight(280);
    scene.setBackgroudColor(QColor(90, 60, 30));
    scene.setGraphColor(Qt::yellow, QColor(0, 40, 80));
    scene.setCMYPointData(cmy);
    scene.setLsColorTriangleObject(reference::gamutPair(), {}, first, first, false, QString()); // leaves no trace
    scene.setLsColorTriangleObject(triangles, {standard}, first, other, true, text);
    QCOMPARE(describe(scene.getLsColorTriangleObject()), describe(triangles));

    NewCEIE::DrawCEIPicture renderer(nullptr);
    delete renderer.drawCEIPicture(300, 280, true, true, true, {});
    renderer.setBackgroudColor(QColor(90, 60, 30));
    renderer.setGraphColor(Qt::yellow, QColor(0, 40, 80));
    QList<QRectF> squares;
    for (const QPointF &point : cmy) {
        squares << squareAround(renderer.CoordinateTransformation(point));
    }
    renderer.setCMYPointData(squares);
    QPolygonF common;
    if (!emptyReference) {
        common = verticesIn(renderer, first).intersected(verticesIn(renderer, other));
    }
    QList<QRectF> vertices;
    if (triangles.size() > 1 && triangles.last().type() == 1) {
        const TrianglePoint points = reference::narrowGamut().trianglePoint();
        for (const QPointF &point : {points.redPos(), points.greenPos(), points.bluePos(), points.whitePos()}) {
            vertices << squareAround(renderer.CoordinateTransformation(point));
        }
    }
    renderer.setPointData(vertices);
    const std::unique_ptr<QImage> picture(
        renderer.drawCEIPicture(300, 280, true, triangles, {standard}, common, true, text));
    const QSize canvas(672, 728);
    QCOMPARE(reference::firstDifference(reference::backgroundOf(scene, canvas, canvas),
                 reference::shownPicture(*picture, QRectF(0, 0, 672, 728), canvas)),
        QString());
}

// What is placed in the picture is mapped as the picture before it was: at first, all of it to one point.
void CEIEGraphicsSceneTest::gamutFormMapsBeforeItDraws()
{
    const TrianglePoint first = reference::narrowGamut().trianglePoint();
    const TrianglePoint other = reference::wideGamut().trianglePoint();
    Scene scene({});
    scene.setLsColorTriangleObject(reference::gamutPair(), {}, first, other, true, QString());
    scene.setSceneRect(0, 0, 672, 728);

    NewCEIE::DrawCEIPicture renderer(nullptr);
    const QPolygonF common = verticesIn(renderer, first).intersected(verticesIn(renderer, other));
    const QRectF square = squareAround(QPointF(4, 0));
    renderer.setPointData({square, square, square, square});
    const std::unique_ptr<QImage> picture(
        renderer.drawCEIPicture(672, 728, true, reference::gamutPair(), {}, common, true, QString()));
    const QSize canvas(672, 728);
    QCOMPARE(reference::firstDifference(reference::backgroundOf(scene, canvas, canvas),
                 reference::shownPicture(*picture, QRectF(0, 0, 672, 728), canvas)),
        QString());
}

void CEIEGraphicsSceneTest::gamutFormKeepsTheCoordinates()
{
    Scene scene({});
    SignalLog log(&scene);
    scene.setLsColorTriangleObject(
        reference::gamutPair(), {}, TrianglePoint(), TrianglePoint(), true, QStringLiteral("text"));
    QCOMPARE(describe(scene.ChromaToCurCoordinate(QPointF(1, 1))), QStringLiteral("(100, -100)"));
    QVERIFY(log.takeSignals().isEmpty());
    QVERIFY(log.takeUpdate());
}

void CEIEGraphicsSceneTest::refreshAreaLeavesAWideWhitePen()
{
    for (const QList<ColorTriangleObject> &triangles :
        {QList<ColorTriangleObject>(), QList<ColorTriangleObject>{reference::wideGamut()}, reference::gamutPair()}) {
        Scene scene(triangles);
        QVERIFY(!scene.refreshArea(nullptr));
        QImage image(50, 50, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setPen(QPen(Qt::blue, 7, Qt::DashLine));
        QCOMPARE(scene.refreshArea(&painter), triangles.size() != 1);
        QVERIFY(painter.testRenderHint(QPainter::Antialiasing));
        QCOMPARE(painter.pen(), QPen(QColor(255, 255, 255, 255), 3, Qt::DashLine));
    }
}

void CEIEGraphicsSceneTest::refreshAreaClearsTheWhiteOfTheTarget()
{
    Scene scene(reference::gamutPair());
    SignalLog log(&scene);
    QImage image(50, 50, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    QVERIFY(scene.refreshArea(&painter));
    QList<ColorTriangleObject> expected = reference::gamutPair();
    expected[1].trianglePoint().setWhiteLum(0.0);
    expected[1].trianglePoint().setWhitePos(QPointF(0, 0));
    QCOMPARE(describe(scene.getLsColorTriangleObject()), describe(expected));
    QVERIFY(log.takeSignals().isEmpty());
}

void CEIEGraphicsSceneTest::refreshAreaKeepsTheWhiteWhenNotAsked()
{
    Scene scene(reference::gamutPair());
    scene.setDrawColorTPoint(false);
    QVERIFY(!scene.isDrawColorTPoint());
    QImage image(50, 50, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    QVERIFY(scene.refreshArea(&painter));
    QCOMPARE(describe(scene.getLsColorTriangleObject()), describe(reference::gamutPair()));
}

void CEIEGraphicsSceneTest::meaninglessInputIsSurvived()
{
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double bad : {inf, -inf, nan, 1e300, -1e12}) {
        QList<ColorTriangleObject> triangles = reference::gamutPair();
        for (ColorTriangleObject &triangle : triangles) {
            triangle.setShow(true);
            triangle.trianglePoint().setRedPos(QPointF(bad, bad));
            triangle.trianglePoint().setWhitePos(QPointF(bad, 0.3));
            triangle.trianglePoint().setBlueLum(bad);
        }
        Scene scene(triangles);
        scene.setImageWidth(-300);
        scene.setImageHeight(120);
        scene.setImageWidth(120);
        const TrianglePoint points = triangles.first().trianglePoint();
        scene.setLsColorTriangleObject(triangles, triangles, points, points, false, QString());
        scene.setCMYPointData({QPointF(bad, bad)});
        scene.setLsColorTempertureValuePoints({QPointF(bad, bad)});
        scene.setLsColorTriangleObject(triangles, triangles, points, points, false, QString());
        for (const bool held : {false, true}) {
            scene.setColorTempertureChecked(held);
            reference::setRequestedPoint(scene, QPointF(bad, bad));
            scene.AddLedColorAndPoint();
            scene.MoveEllipseSign();
            scene.MoveCentreTriangle();
        }
        QImage image(120, 120, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        QPainter painter(&image);
        QVERIFY(scene.refreshArea(&painter));
        QCOMPARE(scene.getLsColorTriangleObject().size(), 2);
    }
}

void CEIEGraphicsSceneTest::renderingHandsOverNoColorTemperaturePoints_data()
{
    QTest::addColumn<bool>("locus");
    QTest::newRow("with the locus asked for") << true;
    QTest::newRow("without") << false;
}

// They are kept for the host: neither the points nor the flag reach a picture.
void CEIEGraphicsSceneTest::renderingHandsOverNoColorTemperaturePoints()
{
    QFETCH(bool, locus);
    const QList<QPointF> points{QPointF(0.3127, 0.329), QPointF(0.4, 0.4)};
    const QList<ColorTriangleObject> triangles = reference::gamutPair();
    const QSize canvas(672, 728);
    Scene scene({});
    scene.setImageWidth(300);
    scene.setImageHeight(280);
    scene.setLsColorTempertureValuePoints(points);
    scene.setIsDrawBBRLine(locus);
    scene.setLsColorTriangleObject(triangles, {}, TrianglePoint(), TrianglePoint(), true, QString());
    QCOMPARE(scene.getLsColorTempertureValuePoints(), points);
    QCOMPARE(scene.isDrawBBRLine(), locus);

    const auto expected = [&](const QList<QPointF> &handedOver) {
        NewCEIE::DrawCEIPicture renderer(nullptr);
        delete renderer.drawCEIPicture(300, 280, true, true, true, handedOver);
        QList<QRectF> vertices;
        const TrianglePoint target = triangles.at(1).trianglePoint();
        for (const QPointF &point : {target.redPos(), target.greenPos(), target.bluePos(), target.whitePos()}) {
            vertices << squareAround(renderer.CoordinateTransformation(point));
        }
        renderer.setPointData(vertices);
        const std::unique_ptr<QImage> picture(
            renderer.drawCEIPicture(300, 280, true, triangles, {}, QPolygonF(), true, QString()));
        return reference::shownPicture(*picture, QRectF(0, 0, 672, 728), canvas);
    };
    const QImage shown = reference::backgroundOf(scene, canvas, canvas);
    QCOMPARE(reference::firstDifference(shown, expected({})), QString());
    QVERIFY(!reference::firstDifference(shown, expected(points)).isEmpty());
}

void CEIEGraphicsSceneTest::emptyTargetHasNoVertexRectangles()
{
    ColorTriangleObject empty;
    empty.setType(1);
    QVERIFY(empty.trianglePoint().isEmpty());
    const QList<ColorTriangleObject> triangles{reference::wideGamut(), empty};
    const QSize canvas(672, 728);
    Scene scene({});
    scene.setImageWidth(300);
    scene.setImageHeight(280);
    // Those of a target before it go.
    scene.setLsColorTriangleObject(reference::gamutPair(), {}, TrianglePoint(), TrianglePoint(), true, QString());
    scene.setLsColorTriangleObject(triangles, {}, TrianglePoint(), TrianglePoint(), true, QString());

    NewCEIE::DrawCEIPicture renderer(nullptr);
    delete renderer.drawCEIPicture(300, 280, true, true, true, {});
    const std::unique_ptr<QImage> picture(
        renderer.drawCEIPicture(300, 280, true, triangles, {}, QPolygonF(), true, QString()));
    QCOMPARE(reference::firstDifference(reference::backgroundOf(scene, canvas, canvas),
                 reference::shownPicture(*picture, QRectF(0, 0, 672, 728), canvas)),
        QString());
}

QTEST_MAIN(CEIEGraphicsSceneTest)
#include "ceiegraphicsscenetest.moc"
