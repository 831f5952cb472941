// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramview.h>
#include <ceiechart/diagram/diagramview_p.h>
#include <ceiechart/diagram/whitepoint.h>
#include <gamutmodel/gamutcoverage.h>

#include <QAccessible>
#include <QApplication>
#include <QBackingStore>
#include <QGestureEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <random>

using namespace ceiechart;

Q_DECLARE_METATYPE(Model::ColorGamut)
Q_DECLARE_METATYPE(Model::Diagram)
Q_DECLARE_METATYPE(std::optional<GamutVertex>)

namespace {

Model::ColorGamut wall()
{
    return Model::ColorGamut("LED wall",
        {Model::Target::fromYxy(240, 0.700, 0.299), Model::Target::fromYxy(634, 0.189, 0.718),
            Model::Target::fromYxy(126, 0.133, 0.075), Model::Target::fromYxy(1000, 0.2829, 0.2971)});
}

//! A view that notes what it is asked to paint.
class View : public DiagramView {
public:
    View()
    {
        setOriginal(wall());
        setStandards({Model::rec2020()});
        setTarget(Model::rec709());
        // So that a hand moves as far as it says; tests of snapping take the library's own rules.
        auto rules = std::make_shared<StandardTargetRules>();
        rules->setSnaps(false);
        setRules(rules);
        resize(800, 700);
        show();
        paintAll();
    }

    void paintAll()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    QRegion takePainted()
    {
        paintAll();
        const QRegion result = m_painted;
        m_painted = QRegion();
        return result;
    }

    QPointF at(const QPointF &xy) const { return viewport().toPosition(xy); }
    QPointF at(GamutVertex vertex) const { return at(xy(vertex)); }
    QPointF xy(GamutVertex vertex) const { return xyOf(targetAt(gamut(GamutRole::Target)->getTargets(), vertex)); }

    void mouse(QEvent::Type type, const QPointF &position, Qt::MouseButton button, Qt::MouseButtons buttons,
        Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QMouseEvent event(
            type, position, position, QPointF(mapToGlobal(QPoint())) + position, button, buttons, modifiers);
        QCoreApplication::sendEvent(this, &event);
    }
    void press(const QPointF &position, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonPress, position, button, button);
    }
    void drag(const QPointF &position, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
        Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseMove, position, Qt::NoButton, button, modifiers);
    }
    void release(const QPointF &position, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonRelease, position, button, Qt::NoButton);
    }
    void hover(const QPointF &position) { mouse(QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton); }

    void wheel(const QPointF &position, const QPoint &angle, const QPoint &pixels = QPoint(),
        Qt::KeyboardModifiers modifiers = Qt::NoModifier, Qt::ScrollPhase phase = Qt::NoScrollPhase)
    {
        QWheelEvent event(
            position, QPointF(mapToGlobal(QPoint())) + position, pixels, angle, Qt::NoButton, modifiers, phase, false);
        QCoreApplication::sendEvent(this, &event);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        m_painted += event->region();
        DiagramView::paintEvent(event);
    }

private:
    QRegion m_painted;
};

double length(const QPointF &way)
{
    return std::hypot(way.x(), way.y());
}

//! What the window shows, of all the repaints so far.
QImage shownBy(const View &view)
{
    const auto *image = dynamic_cast<QImage *>(view.backingStore()->paintDevice());
    return image ? image->copy() : QImage();
}

/*!
 * What of two pictures differs by more than rounding does, in pixels: of lines that a clip cuts, of lines that were
 * painted on a picture of their own, and of texts whose glyphs were drawn at another ratio before.
 */
QRect difference(const QImage &one, const QImage &other)
{
    constexpr int rounding = 40;
    if (one.size() != other.size()) {
        return other.rect();
    }
    const QImage a = one.convertToFormat(QImage::Format_RGB32);
    const QImage b = other.convertToFormat(QImage::Format_RGB32);
    QRect where;
    for (int y = 0; y < a.height(); ++y) {
        const auto *p = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const auto *q = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x) {
            if (p[x] != q[x]
                && std::max({std::abs(qRed(p[x]) - qRed(q[x])), std::abs(qGreen(p[x]) - qGreen(q[x])),
                       std::abs(qBlue(p[x]) - qBlue(q[x]))})
                    > rounding) {
                where |= QRect(x, y, 1, 1);
            }
        }
    }
    return where;
}

//! A pan goes by whole pixels of the device: how far it may be from the hand.
double panTolerance(const View &view)
{
    const double ratio = view.devicePixelRatioF();
    return ratio == std::floor(ratio) ? 1e-6 : 0.71 / ratio;
}

//! Where nothing lies that could be dragged or snapped to.
QPointF freeGround(const View &view)
{
    return view.viewport().plot().topRight() + QPointF(-60.0, 120.0);
}

//! Deletes a view in answer to a signal.
class Deleter : public QObject {
    Q_OBJECT

public:
    explicit Deleter(View *view)
        : m_view(view)
    {
    }

public Q_SLOTS:
    void run() { delete m_view.data(); }

private:
    QPointer<View> m_view;
};

} // namespace

class DiagramViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    // Properties and records
    void propertiesNotify_data();
    void propertiesNotify();
    void settingsThatStayTellNothing();
    void badSettingsAreIgnored();
    void recordsGoInAndComeOut();
    void layersAreSwitched();

    // The view
    void showsAllAtFirst();
    void scalesAreEqualAtEverySize();
    void wheelZoomsAboutThePointer_data();
    void wheelZoomsAboutThePointer();
    void anchorDoesNotDrift_data();
    void anchorDoesNotDrift();
    void zoomEnds();
    void keysZoom();
    void fingersOnAPadPan();
    void fingersWithoutPixelsPan();
    void wheelsWithPixelsZoom();
    void middleButtonPans();
    void freeGroundPans();
    void panKeepsWhatIsLeft();
    void arrowsPanWithoutAHandle();
    void doubleClickShowsAll();
    void views();
    void nativeGesturesZoom();
    void pinchesOnAPadZoomAndPan();
    void twoFingersZoomAndPan();
    void oneFingerDragsAHandle();
    void secondFingerTakesADragBack();
    void otherFingersBeginAnew();
    void tapsOfAFingerMoveNothing();
    void resizeKeepsWhatIsSeen();

    // Editing
    void handlesAreHitWithin_data();
    void handlesAreHitWithin();
    void nearestHandleIsHit();
    void pressMovesNothing();
    void dragKeepsTheGrip();
    void dragTellsItsHost();
    void escapeBringsTheTargetBack();
    void lostReleaseEndsTheDrag();
    void shiftIsSlow();
    void controlStaysOnTheLineThroughTheWhite();
    void controlKeepsTheTemperatureOfTheWhite();
    void altStaysOnAnAxis_data();
    void altStaysOnAnAxis();
    void snapsWithAGuide();
    void controlAndAltDoNotSnap();
    void dragStopsWhereTheRulesSay();
    void lockedHandlesSayWhy();
    void readOnlyDoesNotEdit();
    void hiddenTargetIsNotEdited();
    void hostsMayReplaceTheTargetInADrag();
    void hostsMayEndADrag();
    void positionsAreRoundedToWhatIsShown();
    void arrowsMoveTheHandle_data();
    void arrowsMoveTheHandle();
    void shiftAndArrowsMoveATenth();
    void controlAndArrowsMoveAlongTheLine();
    void editingFinishesWithTheKey();
    void tabGoesFromHandleToHandleAndOn();
    void lettersSelect();
    void shortcutsOfTheWindowDoNotTakeItsKeys();
    void moveVertexIsAnEdit();
    void refusedKeysAreNoEdit();
    void twoArrowsAreOneEdit();
    void unseenHandlesAreBroughtIntoView();
    void clickOnFreeGroundSelectsNothing();
    void keysDoNotChangeTheHandleInADrag();
    void escapeWithAHeldHandleIsTakenByTheView();
    void hidingLetsGo();
    void slotsMayDeleteTheView_data();
    void slotsMayDeleteTheView();
    void slotsMayTakeTheTargetAway_data();
    void slotsMayTakeTheTargetAway();
    void losingTheTargetEndsTheDrag_data();
    void losingTheTargetEndsTheDrag();
    void contentMayBeReplacedInADrag();
    void invisibleTargetsStayInvisible();
    void equalGamutsTellNothing();

    // Labels and readout
    void labelShowsWhatIsEdited();
    void labelCoversNothingOfIt_data();
    void labelCoversNothingOfIt();
    void labelGoes();
    void editNoteIsShown();
    void editNoteKeepsSnapAndReason();
    void labelFollowsTheTarget();
    void labelHasRoomInSmallViews();
    void readoutGivesWayToHands();
    void minusZeroNeverShows();
    void digitsFollowTheZoom();
    void hoverTells();
    void hoverTellsChromaticitiesOnly();

    // Painting
    void hoverRepaintsTheReadoutOnly();
    void dragRepaintsItsSurroundingsOnly();
    void partialRepaintsLeaveNothingBehind_data();
    void partialRepaintsLeaveNothingBehind();
    void dragPaintsTheScaleNoMore();
    void hiddenViewsKeepNoPictures();
    void followsThePalette();
    void imagesAreSharpAtEveryRatio_data();
    void imagesAreSharpAtEveryRatio();
    void imagesOfNoRatioAreNull();
    void imagesShowNoHands();
    void readoutStandsOnTheOtherSideFromRightToLeft();
    void cursorsSayWhatAHandDoes();

    // Accessibility
    void gamutsAndHandlesAreAccessible();
    void handlesAreMovedByAccessibleValues();
    void handlesAreMovedByAccessibleActions();
    void accessiblePartsOfDisabledViewsDoNothing();
    void focusIsAccessible();
    void movesByKeyboardAreAnnounced();
    void accessiblePartsFollowTheView();
};

void DiagramViewTest::initTestCase()
{
    qRegisterMetaType<Model::ColorGamut>("Model::ColorGamut");
}

// Properties and records

void DiagramViewTest::propertiesNotify_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("diagram") << QByteArray("diagram") << QVariant::fromValue(DiagramView::Cie1960);
    QTest::newRow("layers") << QByteArray("layers") << QVariant::fromValue(ShownLayers(DiagramLayer::Locus));
    QTest::newRow("horseshoeColors") << QByteArray("horseshoeColors") << QVariant::fromValue(HorseshoeColors::None);
    QTest::newRow("zoomFactor") << QByteArray("zoomFactor") << QVariant(4.0);
    QTest::newRow("readOnly") << QByteArray("readOnly") << QVariant(true);
    QTest::newRow("digits") << QByteArray("digits") << QVariant(6);
    QTest::newRow("readoutShown") << QByteArray("readoutShown") << QVariant(false);
    QTest::newRow("editNote") << QByteArray("editNote") << QVariant(QStringLiteral("outside"));
    QTest::newRow("centre") << QByteArray("centre") << QVariant(QPointF(0.3, 0.35));
}

void DiagramViewTest::propertiesNotify()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);
    View view;
    const QMetaObject *meta = view.metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(name));
    QVERIFY(property.isValid());
    QVERIFY(property.hasNotifySignal());
    QSignalSpy spy(&view, property.notifySignal());
    QVERIFY(property.write(&view, value));
    QVERIFY(spy.count() >= 1);
    const QVariant now = property.read(&view);
    if (name == "centre") {
        QVERIFY(length(now.toPointF() - value.toPointF()) < 1e-9);
    } else if (name == "zoomFactor") {
        QVERIFY(std::fabs(now.toDouble() - value.toDouble()) < 1e-9);
    } else if (name == "diagram") {
        QCOMPARE(now.toInt(), value.toInt());
    } else if (name == "layers") {
        QCOMPARE(view.layers(), ShownLayers(DiagramLayer::Locus));
    } else if (name == "horseshoeColors") {
        QCOMPARE(view.horseshoeColors(), HorseshoeColors::None);
    } else {
        QCOMPARE(now, value);
    }
}

void DiagramViewTest::settingsThatStayTellNothing()
{
    View view;
    QSignalSpy diagram(&view, &DiagramView::diagramChanged);
    QSignalSpy layers(&view, &DiagramView::layersChanged);
    QSignalSpy changed(&view, &DiagramView::viewChanged);
    view.setDiagram(Model::Diagram::Cie1931);
    view.setLayers(view.layers());
    view.showAll();
    view.setZoomFactor(1.0);
    QCOMPARE(diagram.count() + layers.count() + changed.count(), 0);
}

void DiagramViewTest::badSettingsAreIgnored()
{
    View view;
    const DiagramViewport before = view.viewport();
    view.setZoomFactor(std::numeric_limits<double>::quiet_NaN());
    view.setZoomFactor(-1.0);
    view.setZoomFactor(std::numeric_limits<double>::infinity());
    view.setCentre(QPointF(std::numeric_limits<double>::quiet_NaN(), 0.3));
    QVERIFY(view.viewport() == before);
    view.setDigits(99);
    QCOMPARE(view.digits(), DiagramView::automaticDigits);
    QVERIFY(view.toImage(QSize()).isNull());
    QVERIFY(view.toImage(QSize(100, 100), 0.0).isNull());
    QVERIFY(!view.moveVertex(GamutVertex::Red, QPointF(std::numeric_limits<double>::quiet_NaN(), 0.3)));
    view.setRules(nullptr);
    QVERIFY(view.rules());
}

void DiagramViewTest::recordsGoInAndComeOut()
{
    View view;
    QSignalSpy spy(&view, &DiagramView::gamutsChanged);
    view.setMeasured(Model::dciP3D65());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(view.gamut(GamutRole::Measured)->colorGamutName(), std::string("DCI-P3(D65)"));
    QCOMPARE(view.gamut(GamutRole::Original)->colorGamutName(), std::string("LED wall"));
    QVERIFY(!view.gamut(GamutRole::Declared));
    view.setStandards({Model::rec709(), Model::rec2020(), Model::dciP3D65()});
    QCOMPARE(std::count_if(view.gamuts().begin(), view.gamuts().end(),
                 [](const DiagramGamut &gamut) { return gamut.role == GamutRole::Standard; }),
        3);
    view.clearGamuts(GamutRole::Standard);
    QVERIFY(!view.gamut(GamutRole::Standard));
    QVERIFY(view.gamut(GamutRole::Target));
    view.setTrail({QPointF(0.3, 0.3), QPointF(0.31, 0.3)});
    QCOMPARE(view.content().trail.size(), 2);
    view.setRings({DiagramRings{QPointF(0.3127, 0.329), {0.002}}});
    QCOMPARE(view.content().rings.size(), 1);
    view.setMeasurePoints({DiagramMark{QPointF(0.3, 0.3), QStringLiteral("1"), QColor()}});
    QCOMPARE(view.content().measurePoints.size(), 1);
}

void DiagramViewTest::layersAreSwitched()
{
    View view;
    const QImage before = view.grab().toImage();
    QVERIFY(view.isLayerShown(DiagramLayer::Colors));
    view.setLayerShown(DiagramLayer::Colors, false);
    QVERIFY(!view.isLayerShown(DiagramLayer::Colors));
    QVERIFY(view.isLayerShown(DiagramLayer::Locus));
    QVERIFY(view.grab().toImage() != before);
    view.setLayerShown(DiagramLayer::Colors, true);
    QCOMPARE(view.grab().toImage(), before);
}

// The view

void DiagramViewTest::showsAllAtFirst()
{
    View view;
    QVERIFY(view.viewport().showsAll());
    QCOMPARE(view.zoomFactor(), 1.0);
    QCOMPARE(view.diagram(), Model::Diagram::Cie1931);
}

void DiagramViewTest::scalesAreEqualAtEverySize()
{
    View view;
    for (const QSize &size : {QSize(300, 900), QSize(900, 300), QSize(500, 500), QSize(161, 160)}) {
        view.resize(size);
        const QPointF origin = view.viewport().fromPoint(QPointF(0.2, 0.2));
        const double right = view.viewport().fromPoint(QPointF(0.3, 0.2)).x() - origin.x();
        const double up = origin.y() - view.viewport().fromPoint(QPointF(0.2, 0.3)).y();
        QVERIFY(std::fabs(right - up) < 1e-9);
        QVERIFY(view.viewport().showsAll());
    }
}

void DiagramViewTest::wheelZoomsAboutThePointer_data()
{
    QTest::addColumn<Model::Diagram>("diagram");
    QTest::newRow("x, y") << Model::Diagram::Cie1931;
    QTest::newRow("u', v'") << Model::Diagram::Cie1976;
    QTest::newRow("u, v") << Model::Diagram::Cie1960;
}

void DiagramViewTest::wheelZoomsAboutThePointer()
{
    QFETCH(Model::Diagram, diagram);
    View view;
    view.setDiagram(diagram);
    const QPointF pointer = view.viewport().plot().center() + QPointF(60.5, -40.25);
    const QPointF xy = view.viewport().toChromaticity(pointer);
    double last = view.zoomFactor();
    for (int i = 0; i < 20; ++i) {
        view.wheel(pointer, QPoint(0, 120));
        QVERIFY(view.zoomFactor() > last);
        last = view.zoomFactor();
        QVERIFY(length(view.at(xy) - pointer) < 0.5);
    }
    QVERIFY(last > 50.0);
}

void DiagramViewTest::anchorDoesNotDrift_data()
{
    wheelZoomsAboutThePointer_data();
}

void DiagramViewTest::anchorDoesNotDrift()
{
    QFETCH(Model::Diagram, diagram);
    View view;
    view.setDiagram(diagram);
    const QPointF pointer = view.at(QPointF(0.3127, 0.3290));
    const QPointF xy = view.viewport().toChromaticity(pointer);
    std::mt19937 random(5);
    double worst = 0.0;
    // Up and down between the whole and the closest, never quite to the ends, where a zoom has to stop.
    int level = 0;
    for (int i = 0; i < 1000; ++i) {
        const bool in = level <= 1 || (level < 32 && random() % 2 == 0);
        level += in ? 1 : -1;
        view.wheel(pointer, QPoint(0, in ? 120 : -120));
        worst = std::max(worst, length(view.at(xy) - pointer));
    }
    QVERIFY2(worst <= 0.5, qPrintable(QString::number(worst)));
}

void DiagramViewTest::zoomEnds()
{
    View view;
    const QPointF pointer = view.at(QPointF(0.3127, 0.3290));
    for (int i = 0; i < 60; ++i) {
        view.wheel(pointer, QPoint(0, 120));
    }
    QCOMPARE(view.zoomFactor(), DiagramViewport::closest);
    QVERIFY(length(view.at(QPointF(0.3127, 0.3290)) - pointer) < 0.5);
    for (int i = 0; i < 80; ++i) {
        view.wheel(pointer, QPoint(0, -120));
    }
    QCOMPARE(view.zoomFactor(), 1.0);
}

void DiagramViewTest::keysZoom()
{
    View view;
    QTest::keyClick(&view, Qt::Key_Plus);
    const double closer = view.zoomFactor();
    QVERIFY(closer > 1.0);
    QTest::keyClick(&view, Qt::Key_Equal);
    QVERIFY(view.zoomFactor() > closer);
    QTest::keyClick(&view, Qt::Key_Minus);
    QVERIFY(std::fabs(view.zoomFactor() - closer) < 1e-9);
    // About the pointer, where there is one.
    const QPointF pointer = view.viewport().plot().center() + QPointF(100.0, 80.0);
    view.hover(pointer);
    const QPointF xy = view.viewport().toChromaticity(pointer);
    QTest::keyClick(&view, Qt::Key_Plus);
    QVERIFY(length(view.at(xy) - pointer) < 0.5);
    QTest::keyClick(&view, Qt::Key_0);
    QVERIFY(view.viewport().showsAll());
}

void DiagramViewTest::fingersOnAPadPan()
{
    View view;
    view.setZoomFactor(10.0);
    const QPointF xy(0.3, 0.35);
    const QPointF before = view.at(xy);
    view.wheel(QPointF(300, 300), QPoint(0, -50), QPoint(12, -30), Qt::NoModifier, Qt::ScrollUpdate);
    QVERIFY(length(view.at(xy) - before - QPointF(12, -30)) < 1e-6);
    QCOMPARE(view.zoomFactor(), 10.0);
    // With Ctrl they zoom.
    view.wheel(QPointF(300, 300), QPoint(0, 50), QPoint(0, 30), Qt::ControlModifier, Qt::ScrollUpdate);
    QVERIFY(view.zoomFactor() > 10.0);
}

void DiagramViewTest::fingersWithoutPixelsPan()
{
    View view;
    view.setZoomFactor(10.0);
    const QPointF xy(0.3, 0.35);
    const QPointF before = view.at(xy);
    view.wheel(QPointF(300, 300), QPoint(120, 0));
    const QPointF sideways = view.at(xy) - before;
    QVERIFY(sideways.x() > 10.0);
    QCOMPARE(sideways.y() + 1.0, 1.0);
    view.wheel(QPointF(300, 300), QPoint(0, -40), QPoint(), Qt::NoModifier, Qt::ScrollUpdate);
    QVERIFY(view.at(xy).y() < before.y() - 5.0);
    QCOMPARE(view.zoomFactor(), 10.0);
}

void DiagramViewTest::wheelsWithPixelsZoom()
{
    View view;
    // Some platforms give pixels for the notches of a wheel.
    view.wheel(QPointF(300, 300), QPoint(0, 120), QPoint(0, 120));
    QVERIFY(view.zoomFactor() > 1.0);
}

void DiagramViewTest::middleButtonPans()
{
    View view;
    view.setZoomFactor(10.0);
    // Even on a handle.
    view.setCentre(view.xy(GamutVertex::White));
    const QPointF start = view.at(GamutVertex::White);
    const QPointF xy = view.xy(GamutVertex::White);
    view.press(start, Qt::MiddleButton);
    view.drag(start + QPointF(40, 25), Qt::NoModifier, Qt::MiddleButton);
    view.release(start + QPointF(40, 25), Qt::MiddleButton);
    QCOMPARE(view.xy(GamutVertex::White), xy);
    QVERIFY(length(view.at(xy) - start - QPointF(40, 25)) < panTolerance(view));
}

void DiagramViewTest::freeGroundPans()
{
    View view;
    view.setZoomFactor(5.0);
    view.setCentre(QPointF(0.25, 0.45));
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    const QPointF xy = view.centre();
    const QPointF start = view.at(xy);
    view.press(start);
    QCOMPARE(view.cursor().shape(), Qt::ClosedHandCursor);
    view.drag(start + QPointF(30, -20));
    view.drag(start + QPointF(50, -35));
    QVERIFY(length(view.at(xy) - start - QPointF(50, -35)) < panTolerance(view));
    view.release(start + QPointF(50, -35));
    view.hover(start);
    QVERIFY(length(view.at(xy) - start - QPointF(50, -35)) < panTolerance(view));
    QCOMPARE(edited.count(), 0);
}

void DiagramViewTest::panKeepsWhatIsLeft()
{
    View view;
    view.setZoomFactor(20.0);
    const QPointF xy = view.centre();
    const QPointF start = view.at(xy);
    view.press(start, Qt::MiddleButton);
    for (int i = 1; i <= 90; ++i) {
        view.drag(start + QPointF(0.3 * i, 0.2 * i), Qt::NoModifier, Qt::MiddleButton);
    }
    // Less than half a pixel of the device is left over, however small the steps.
    const QPointF away = view.at(xy) - start - QPointF(27.0, 18.0);
    QVERIFY2(length(away) < 0.71, qPrintable(QString::number(length(away))));
}

void DiagramViewTest::arrowsPanWithoutAHandle()
{
    View view;
    view.setZoomFactor(10.0);
    view.setSelectedVertex(std::nullopt);
    const QPointF before = view.centre();
    QTest::keyClick(&view, Qt::Key_Right);
    QVERIFY(view.centre().x() > before.x());
    QTest::keyClick(&view, Qt::Key_Up);
    QVERIFY(view.centre().y() > before.y());
    // With Alt also while one is selected.
    view.setSelectedVertex(GamutVertex::Red);
    const QPointF red = view.xy(GamutVertex::Red);
    const double x = view.centre().x();
    QTest::keyClick(&view, Qt::Key_Left, Qt::AltModifier);
    QVERIFY(view.centre().x() < x);
    QCOMPARE(view.xy(GamutVertex::Red), red);
}

void DiagramViewTest::doubleClickShowsAll()
{
    View view;
    view.setZoomFactor(5.0);
    view.setCentre(QPointF(0.25, 0.45));
    view.mouse(QEvent::MouseButtonDblClick, view.viewport().plot().center(), Qt::LeftButton, Qt::LeftButton);
    view.release(view.viewport().plot().center());
    QVERIFY(view.viewport().showsAll());
    // On a handle it is one more press.
    view.setZoomFactor(5.0);
    view.setCentre(view.xy(GamutVertex::White));
    view.mouse(QEvent::MouseButtonDblClick, view.at(GamutVertex::White), Qt::LeftButton, Qt::LeftButton);
    QVERIFY(!view.viewport().showsAll());
}

void DiagramViewTest::views()
{
    View view;
    view.showTarget();
    for (const GamutVertex vertex : allGamutVertices) {
        QVERIFY(view.viewport().plot().contains(view.at(vertex)));
    }
    QVERIFY(view.zoomFactor() > 1.0);
    view.showWhite();
    QVERIFY(view.zoomFactor() > 10.0);
    QVERIFY(length(view.at(GamutVertex::White) - view.viewport().plot().center()) < 1e-3);
    view.showAll();
    QVERIFY(view.viewport().showsAll());
    view.clearGamuts(GamutRole::Target);
    view.showWhite();
    QVERIFY(length(view.centre() - xyOf(wall().getTargets().white)) < 1e-9);
    view.setGamuts({});
    view.showTarget();
    QVERIFY(view.viewport().showsAll());
}

void DiagramViewTest::nativeGesturesZoom()
{
    View view;
    const QPointF pointer = view.viewport().plot().center() + QPointF(50, 50);
    const QPointF xy = view.viewport().toChromaticity(pointer);
    const QPointF global = view.mapToGlobal(pointer.toPoint());
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QNativeGestureEvent event(Qt::ZoomNativeGesture, nullptr, pointer, pointer, global, 0.5, 0, 0);
#else
    QNativeGestureEvent event(
        Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, pointer, pointer, global, 0.5, QPointF());
#endif
    QCoreApplication::sendEvent(&view, &event);
    QCOMPARE(view.zoomFactor(), 1.5);
    QVERIFY(length(view.at(xy) - pointer) < 0.5);
}

void DiagramViewTest::pinchesOnAPadZoomAndPan()
{
    View view;
    const QPoint middle = view.viewport().plot().center().toPoint() + QPoint(40, -30);
    const QPointF xy = view.viewport().toChromaticity(middle);
    const QPointF global = view.mapToGlobal(middle);
    QPinchGesture pinch;
    pinch.setCenterPoint(global);
    pinch.setLastCenterPoint(global);
    pinch.setScaleFactor(1.6);
    pinch.setChangeFlags(QPinchGesture::ScaleFactorChanged);
    QGestureEvent event({&pinch});
    event.setWidget(&view);
    QCoreApplication::sendEvent(&view, &event);
    QVERIFY(std::fabs(view.zoomFactor() - 1.6) < 1e-9);
    QVERIFY(length(view.at(xy) - middle) < 1.0);
}

void DiagramViewTest::twoFingersZoomAndPan()
{
    auto *device = QTest::createTouchDevice();
    View view;
    const QPoint middle = view.viewport().plot().center().toPoint();
    const QPointF xy = view.viewport().toChromaticity(middle);
    QTest::touchEvent(&view, device).press(0, middle - QPoint(50, 0), &view).press(1, middle + QPoint(50, 0), &view);
    QTest::touchEvent(&view, device).move(0, middle - QPoint(80, 0), &view).move(1, middle + QPoint(80, 0), &view);
    QTest::touchEvent(&view, device).move(0, middle - QPoint(100, 0), &view).move(1, middle + QPoint(100, 0), &view);
    QVERIFY2(std::fabs(view.zoomFactor() - 2.0) < 0.01, qPrintable(QString::number(view.zoomFactor())));
    QVERIFY(length(view.at(xy) - middle) < 1.0);
    const QPoint moved = middle + QPoint(30, 20);
    QTest::touchEvent(&view, device).move(0, moved - QPoint(100, 0), &view).move(1, moved + QPoint(100, 0), &view);
    QVERIFY(length(view.at(xy) - moved) < 1.0);
    QTest::touchEvent(&view, device)
        .release(0, moved - QPoint(100, 0), &view)
        .release(1, moved + QPoint(100, 0), &view);
    QVERIFY(std::fabs(view.zoomFactor() - 2.0) < 0.01);
}

void DiagramViewTest::oneFingerDragsAHandle()
{
    auto *device = QTest::createTouchDevice();
    View view;
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    const QPointF before = view.at(GamutVertex::Green);
    // A finger is not as exact as a mouse.
    const QPoint finger = before.toPoint() + QPoint(14, -12);
    QTest::touchEvent(&view, device).press(0, finger, &view);
    QTest::touchEvent(&view, device).move(0, finger + QPoint(20, -30), &view);
    QVERIFY(edited.count() > 0);
    QVERIFY(length(view.at(GamutVertex::Green) - before - QPointF(20, -30)) < 1.0);
    QTest::touchEvent(&view, device).release(0, finger + QPoint(20, -30), &view);
    QCOMPARE(finished.count(), 1);
}

void DiagramViewTest::secondFingerTakesADragBack()
{
    auto *device = QTest::createTouchDevice();
    View view;
    const QPointF xy = view.xy(GamutVertex::Green);
    const QPoint finger = view.at(GamutVertex::Green).toPoint();
    QTest::touchEvent(&view, device).press(0, finger, &view);
    QTest::touchEvent(&view, device).move(0, finger + QPoint(20, -30), &view);
    QVERIFY(view.xy(GamutVertex::Green) != xy);
    QTest::touchEvent(&view, device).move(0, finger + QPoint(20, -30), &view).press(1, finger + QPoint(120, 0), &view);
    QCOMPARE(view.xy(GamutVertex::Green), xy);
    QTest::touchEvent(&view, device).release(0, finger, &view).release(1, finger, &view);
    QVERIFY(!view.isEditing());
}

void DiagramViewTest::otherFingersBeginAnew()
{
    auto *device = QTest::createTouchDevice();
    View view;
    const QPoint middle = view.viewport().plot().center().toPoint();
    const QPoint left = middle - QPoint(100, 0);
    const QPoint right = middle + QPoint(100, 0);
    const QPoint third = middle + QPoint(20, 90);
    QTest::touchEvent(&view, device).press(0, left, &view).press(1, right, &view).press(2, third, &view);
    QTest::touchEvent(&view, device).move(0, left - QPoint(50, 0), &view).move(1, right, &view).move(2, third, &view);
    const double zoom = view.zoomFactor();
    const QPointF centre = view.centre();
    QVERIFY(zoom > 1.0);
    QTest::touchEvent(&view, device).release(0, left, &view).move(1, right, &view).move(2, third, &view);
    QTest::touchEvent(&view, device).move(1, right, &view).move(2, third, &view);
    QCOMPARE(view.zoomFactor(), zoom);
    QCOMPARE(view.centre(), centre);
    QTest::touchEvent(&view, device).release(1, right, &view).release(2, third, &view);
}

void DiagramViewTest::tapsOfAFingerMoveNothing()
{
    auto *device = QTest::createTouchDevice();
    View view;
    QSignalSpy started(&view, &DiagramView::editingStarted);
    const QPoint finger = view.at(GamutVertex::Red).toPoint();
    QTest::touchEvent(&view, device).press(0, finger, &view);
    QTest::touchEvent(&view, device).move(0, finger + QPoint(2, 1), &view);
    QTest::touchEvent(&view, device).release(0, finger + QPoint(2, 1), &view);
    QCOMPARE(started.count(), 0);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Red);
}

void DiagramViewTest::resizeKeepsWhatIsSeen()
{
    View view;
    view.setZoomFactor(30.0);
    view.setCentre(QPointF(0.31, 0.33));
    view.resize(500, 400);
    QCOMPARE(view.zoomFactor(), 30.0);
    QVERIFY(length(view.centre() - QPointF(0.31, 0.33)) < 1e-6);
}

// Editing

void DiagramViewTest::handlesAreHitWithin_data()
{
    QTest::addColumn<double>("distance");
    QTest::addColumn<bool>("hit");
    QTest::newRow("on it") << 0.0 << true;
    QTest::newRow("12 pixels") << 12.0 << true;
    QTest::newRow("23.9 pixels") << 23.9 << true;
    QTest::newRow("24.1 pixels") << 24.1 << false;
    QTest::newRow("40 pixels") << 40.0 << false;
}

void DiagramViewTest::handlesAreHitWithin()
{
    QFETCH(double, distance);
    QFETCH(bool, hit);
    for (const double angle : {0.3, 1.9, 3.4, 5.2}) {
        View view;
        const QPointF xy = view.xy(GamutVertex::Green);
        const QPointF grip = view.at(GamutVertex::Green) + QPointF(std::cos(angle), std::sin(angle)) * distance;
        view.press(grip);
        view.drag(grip + QPointF(9, 5));
        view.release(grip + QPointF(9, 5));
        QCOMPARE(view.xy(GamutVertex::Green) != xy, hit);
    }
}

void DiagramViewTest::nearestHandleIsHit()
{
    View view;
    Model::Targets t = Model::rec709().getTargets();
    const double unit = 1.0 / view.viewport().scale();
    t.red = Model::Target::fromYxy(0.2, 0.5, 0.35);
    t.green = Model::Target::fromYxy(0.7, 0.5 + 30.0 * unit, 0.35);
    view.setTarget(Model::ColorGamut("narrow", t));
    const QPointF red = view.at(GamutVertex::Red);
    view.press(red + QPointF(13, 0));
    QCOMPARE(*view.selectedVertex(), GamutVertex::Red);
    view.release(red + QPointF(13, 0));
    view.press(red + QPointF(17, 0));
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
    view.release(red + QPointF(17, 0));
}

void DiagramViewTest::pressMovesNothing()
{
    View view;
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QSignalSpy started(&view, &DiagramView::editingStarted);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    const QPointF grip = view.at(GamutVertex::Blue) + QPointF(10, -10);
    view.press(grip);
    view.release(grip);
    QCOMPARE(edited.count() + started.count() + finished.count(), 0);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Blue);
}

void DiagramViewTest::dragKeepsTheGrip()
{
    View view;
    const QPointF before = view.at(GamutVertex::Green);
    const QPointF grip = before + QPointF(11, 7);
    view.press(grip);
    view.drag(grip + QPointF(1, 0));
    QVERIFY(length(view.at(GamutVertex::Green) - before) < 1.6); // by a pixel, and rounded to four decimals
    view.drag(grip + QPointF(30, -17));
    QVERIFY(length(view.at(GamutVertex::Green) - before - QPointF(30, -17)) < 0.2);
    view.release(grip + QPointF(30, -17));
    QVERIFY(length(view.at(GamutVertex::Green) - before - QPointF(30, -17)) < 0.2);
}

void DiagramViewTest::dragTellsItsHost()
{
    View view;
    QStringList order;
    connect(&view, &DiagramView::editingStarted, [&] { order.append(QStringLiteral("started")); });
    connect(&view, &DiagramView::targetEdited, [&](const Model::ColorGamut &gamut) {
        order.append(QString::fromStdString(gamut.colorGamutName()));
        QVERIFY(sameTargets(gamut.getTargets(), view.gamut(GamutRole::Target)->getTargets()));
    });
    connect(&view, &DiagramView::editingFinished, [&] { order.append(QStringLiteral("finished")); });
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -15));
    QVERIFY(view.isEditing());
    view.drag(start + QPointF(25, -15));
    // No change, nothing to tell.
    view.drag(start + QPointF(25, -15));
    view.release(start + QPointF(25, -15));
    QVERIFY(!view.isEditing());
    QCOMPARE(order,
        QStringList({QStringLiteral("started"), QStringLiteral("Rec.709"), QStringLiteral("Rec.709"),
            QStringLiteral("finished")}));
}

void DiagramViewTest::escapeBringsTheTargetBack()
{
    View view;
    const Model::Targets before = view.gamut(GamutRole::Target)->getTargets();
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QSignalSpy canceled(&view, &DiagramView::editingCanceled);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    const QPointF start = view.at(GamutVertex::Red);
    view.press(start);
    view.drag(start + QPointF(-30, -20));
    QVERIFY(!sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
    QTest::keyClick(&view, Qt::Key_Escape);
    QVERIFY(sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
    QCOMPARE(canceled.count(), 1);
    QCOMPARE(finished.count(), 1);
    QVERIFY(sameTargets(edited.last().at(0).value<Model::ColorGamut>().getTargets(), before));
    // What the hand does until the button is up is nothing.
    const DiagramViewport viewport = view.viewport();
    view.drag(start + QPointF(-60, -60));
    view.release(start + QPointF(-60, -60));
    QVERIFY(sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
    QVERIFY(view.viewport() == viewport);
    QCOMPARE(finished.count(), 1);
}

void DiagramViewTest::lostReleaseEndsTheDrag()
{
    View view;
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(10, -10));
    const QPointF xy = view.xy(GamutVertex::Green);
    view.hover(start + QPointF(50, -50));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(view.xy(GamutVertex::Green), xy);
}

void DiagramViewTest::shiftIsSlow()
{
    View view;
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(50, -40), Qt::ShiftModifier);
    QVERIFY(length(view.at(GamutVertex::Green) - start - QPointF(5, -4)) < 0.2);
    // Without a jump when it is let go.
    view.drag(start + QPointF(60, -40));
    QVERIFY(length(view.at(GamutVertex::Green) - start - QPointF(15, -4)) < 0.2);
    view.release(start + QPointF(60, -40));
}

void DiagramViewTest::controlStaysOnTheLineThroughTheWhite()
{
    View view;
    const QPointF white = view.xy(GamutVertex::White);
    const QPointF green = view.xy(GamutVertex::Green);
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(25, 40), Qt::ControlModifier);
    view.release(start + QPointF(25, 40));
    const QPointF moved = view.xy(GamutVertex::Green);
    QVERIFY(length(moved - green) > 0.01);
    const QPointF line = green - white;
    const double aside = (line.x() * (moved - white).y() - line.y() * (moved - white).x()) / length(line);
    QVERIFY2(std::fabs(aside) < 1e-9, qPrintable(QString::number(aside)));
}

void DiagramViewTest::controlKeepsTheTemperatureOfTheWhite()
{
    for (const Model::Diagram diagram : {Model::Diagram::Cie1931, Model::Diagram::Cie1976}) {
        View view;
        view.setDiagram(diagram);
        view.showWhite();
        const auto before = colorTemperature(view.xy(GamutVertex::White));
        const QPointF start = view.at(GamutVertex::White);
        view.press(start);
        view.drag(start + QPointF(35, 60), Qt::ControlModifier);
        view.release(start + QPointF(35, 60));
        const auto after = colorTemperature(view.xy(GamutVertex::White));
        QVERIFY(after);
        QVERIFY(std::fabs(after->duv - before->duv) > 1e-4);
        QVERIFY2(std::fabs(after->kelvin - before->kelvin) < 0.01, qPrintable(QString::number(after->kelvin)));
    }
}

void DiagramViewTest::altStaysOnAnAxis_data()
{
    QTest::addColumn<QPointF>("way");
    QTest::addColumn<bool>("horizontal");
    QTest::newRow("across") << QPointF(40, 15) << true;
    QTest::newRow("up") << QPointF(12, -30) << false;
}

void DiagramViewTest::altStaysOnAnAxis()
{
    QFETCH(QPointF, way);
    QFETCH(bool, horizontal);
    View view;
    const QPointF xy = view.xy(GamutVertex::Green);
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + way, Qt::AltModifier);
    const QPointF moved = view.xy(GamutVertex::Green);
    if (horizontal) {
        QCOMPARE(moved.y(), xy.y());
        QVERIFY(std::fabs(moved.x() - xy.x() - way.x() / view.viewport().scale()) < 1e-4);
    } else {
        QCOMPARE(moved.x(), xy.x());
        QVERIFY(std::fabs(moved.y() - xy.y() + way.y() / view.viewport().scale()) < 1e-4);
    }
    // Let go, it goes to the pointer.
    view.drag(start + way + QPointF(1, 1));
    QVERIFY(length(view.at(GamutVertex::Green) - start - way - QPointF(1, 1)) < 0.2);
    view.release(start + way);
}

void DiagramViewTest::snapsWithAGuide()
{
    View view;
    view.setRules(nullptr);
    const QPointF start = view.at(GamutVertex::Green);
    const QPointF corner = view.at(xyOf(wall().getTargets().green));
    view.press(start);
    view.drag(start + QPointF(-10, -10));
    QVERIFY(view.d->overlay.guides.isEmpty());
    view.drag(corner + QPointF(4, -3));
    QCOMPARE(view.xy(GamutVertex::Green), QPointF(0.189, 0.718));
    QCOMPARE(view.d->overlay.guides.size(), 1);
    QVERIFY(view.d->overlay.label.join(QString()).contains(QStringLiteral("original")));
    // An edge of the original, too.
    const QPointF edge = view.at((xyOf(wall().getTargets().green) + xyOf(wall().getTargets().red)) / 2.0);
    view.drag(edge + QPointF(3, 3));
    const QPointF xy = view.xy(GamutVertex::Green);
    const QPointF line = xyOf(wall().getTargets().red) - xyOf(wall().getTargets().green);
    const QPointF way = xy - xyOf(wall().getTargets().green);
    QVERIFY(std::fabs(line.x() * way.y() - line.y() * way.x()) < 1e-12);
    view.release(edge);
    QVERIFY(view.d->overlay.guides.isEmpty());
}

void DiagramViewTest::controlAndAltDoNotSnap()
{
    View view;
    view.setRules(nullptr);
    const QPointF start = view.at(GamutVertex::Green);
    const QPointF aim = view.at(xyOf(wall().getTargets().green)) + QPointF(4, -3);
    view.press(start);
    view.drag(aim, Qt::ControlModifier | Qt::AltModifier);
    QVERIFY(length(view.at(GamutVertex::Green) - aim) < 0.2);
    QVERIFY(view.d->overlay.guides.isEmpty());
    view.release(aim);
}

void DiagramViewTest::dragStopsWhereTheRulesSay()
{
    View view;
    QSignalSpy refused(&view, &DiagramView::editRefused);
    const QPointF start = view.at(GamutVertex::White);
    // In one step from the middle to far below the triangle.
    view.press(start);
    view.drag(view.at(QPointF(0.3127, 0.01)));
    QVERIFY(refused.count() == 1);
    const double edge = 0.060 + (0.3127 - 0.150) * (0.330 - 0.060) / (0.640 - 0.150);
    QVERIFY2(std::fabs(view.xy(GamutVertex::White).y() - edge) < 0.001,
        qPrintable(QString::number(view.xy(GamutVertex::White).y())));
    // And back with the pointer.
    view.drag(start + QPointF(0, 10));
    QVERIFY(length(view.at(GamutVertex::White) - start - QPointF(0, 10)) < 0.2);
    view.release(start);

    auto rules = std::make_shared<StandardTargetRules>();
    rules->setStaysInsideOriginal(true);
    view.setRules(rules);
    const QPointF green = view.at(GamutVertex::Green);
    view.press(green);
    view.drag(green + QPointF(200, -200));
    QVERIFY(!Model::primariesOutside(view.gamut(GamutRole::Target)->getTargets(), wall().getTargets()).green);
    view.release(green);
}

void DiagramViewTest::lockedHandlesSayWhy()
{
    View view;
    auto rules = std::make_shared<StandardTargetRules>();
    rules->setLocksPrimaries(true);
    view.setRules(rules);
    QSignalSpy refused(&view, &DiagramView::editRefused);
    const QPointF xy = view.xy(GamutVertex::Red);
    const QPointF start = view.at(GamutVertex::Red);
    const DiagramViewport viewport = view.viewport();
    view.press(start);
    view.drag(start + QPointF(20, 20));
    view.release(start + QPointF(20, 20));
    QCOMPARE(view.xy(GamutVertex::Red), xy);
    QVERIFY(view.viewport() == viewport);
    QCOMPARE(refused.count(), 1);
    QVERIFY(!refused.at(0).at(0).toString().isEmpty());
    QTest::keyClick(&view, Qt::Key_Right);
    QCOMPARE(view.xy(GamutVertex::Red), xy);
    QCOMPARE(refused.count(), 2);
}

void DiagramViewTest::readOnlyDoesNotEdit()
{
    View view;
    view.setSelectedVertex(GamutVertex::Red);
    view.setReadOnly(true);
    QVERIFY(!view.selectedVertex());
    QVERIFY(view.d->overlay.handles.isEmpty());
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    const QPointF start = view.at(GamutVertex::Red);
    view.press(start);
    view.drag(start + QPointF(-20, -20));
    view.release(start + QPointF(-20, -20));
    QVERIFY(!view.moveVertex(GamutVertex::Red, QPointF(0.6, 0.33)));
    view.setSelectedVertex(GamutVertex::Red);
    QVERIFY(!view.selectedVertex());
    QTest::keyClick(&view, Qt::Key_R);
    QVERIFY(!view.selectedVertex());
    QCOMPARE(edited.count(), 0);
}

void DiagramViewTest::hiddenTargetIsNotEdited()
{
    View view;
    view.setSelectedVertex(GamutVertex::Red);
    view.setLayerShown(DiagramLayer::Targets, false);
    QVERIFY(!view.selectedVertex());
    QVERIFY(view.d->overlay.handles.isEmpty());
}

void DiagramViewTest::hostsMayReplaceTheTargetInADrag()
{
    View view;
    const Model::Targets before = view.gamut(GamutRole::Target)->getTargets();
    // As a host does that gives every edited gamut a name.
    connect(&view, &DiagramView::targetEdited, &view, [&](const Model::ColorGamut &gamut) {
        if (gamut.colorGamutName() != "edited") {
            view.setTarget(Model::ColorGamut("edited", gamut.getTargets()));
        }
    });
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    view.drag(start + QPointF(30, -20));
    QCOMPARE(view.gamut(GamutRole::Target)->colorGamutName(), std::string("edited"));
    QVERIFY(view.isEditing());
    QVERIFY(length(view.at(GamutVertex::Green) - start - QPointF(30, -20)) < 0.2);
    QTest::keyClick(&view, Qt::Key_Escape);
    QVERIFY(sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
    view.release(start);
}

void DiagramViewTest::hostsMayEndADrag()
{
    View view;
    connect(&view, &DiagramView::targetEdited, &view, [&] { view.clearGamuts(GamutRole::Target); });
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    QVERIFY(!view.gamut(GamutRole::Target));
    view.drag(start + QPointF(30, -10));
    view.release(start + QPointF(30, -10));
    QVERIFY(!view.isEditing());

    View other;
    connect(&other, &DiagramView::editingStarted, &other, [&] { other.cancelEditing(); });
    const QPointF xy = other.xy(GamutVertex::Green);
    other.press(start);
    other.drag(start + QPointF(20, -10));
    other.release(start + QPointF(20, -10));
    QCOMPARE(other.xy(GamutVertex::Green), xy);
}

void DiagramViewTest::positionsAreRoundedToWhatIsShown()
{
    View view;
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(21.37, -11.71));
    view.release(start + QPointF(21.37, -11.71));
    const QPointF xy = view.xy(GamutVertex::Green);
    QCOMPARE(xy.x(), QString::number(xy.x(), 'f', 4).toDouble());
    QCOMPARE(xy.y(), QString::number(xy.y(), 'f', 4).toDouble());
    // Closer, there are more of them.
    view.setZoomFactor(DiagramViewport::closest);
    view.setCentre(xy);
    const QPointF close = view.at(GamutVertex::Green);
    view.press(close);
    view.drag(close + QPointF(0, 60));
    view.release(close + QPointF(0, 60));
    QVERIFY(length(view.at(GamutVertex::Green) - close - QPointF(0, 60)) < 1.0);
}

void DiagramViewTest::arrowsMoveTheHandle_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QPointF>("way");
    QTest::newRow("left") << int(Qt::Key_Left) << QPointF(-0.001, 0);
    QTest::newRow("right") << int(Qt::Key_Right) << QPointF(0.001, 0);
    QTest::newRow("up") << int(Qt::Key_Up) << QPointF(0, 0.001);
    QTest::newRow("down") << int(Qt::Key_Down) << QPointF(0, -0.001);
}

void DiagramViewTest::arrowsMoveTheHandle()
{
    QFETCH(int, key);
    QFETCH(QPointF, way);
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    const QPointF before = view.xy(GamutVertex::Green);
    QTest::keyClick(&view, Qt::Key(key));
    QVERIFY(length(view.xy(GamutVertex::Green) - before - way) < 1e-9);
    QTest::keyClick(&view, Qt::Key(key));
    QVERIFY(length(view.xy(GamutVertex::Green) - before - 2 * way) < 1e-9);
    // Closer, the steps are finer.
    view.setZoomFactor(100.0);
    view.setCentre(view.xy(GamutVertex::Green));
    const QPointF close = view.xy(GamutVertex::Green);
    QTest::keyClick(&view, Qt::Key(key));
    QVERIFY(length(view.xy(GamutVertex::Green) - close - way / 100.0) < 1e-10);
}

void DiagramViewTest::shiftAndArrowsMoveATenth()
{
    View view;
    view.setSelectedVertex(GamutVertex::Blue);
    const QPointF before = view.xy(GamutVertex::Blue);
    QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
    QVERIFY(length(view.xy(GamutVertex::Blue) - before - QPointF(0.0001, 0)) < 1e-9);
}

void DiagramViewTest::controlAndArrowsMoveAlongTheLine()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    const QPointF white = view.xy(GamutVertex::White);
    const QPointF before = view.xy(GamutVertex::Green);
    QTest::keyClick(&view, Qt::Key_Up, Qt::ControlModifier);
    const QPointF after = view.xy(GamutVertex::Green);
    QVERIFY(after.y() > before.y());
    const QPointF line = before - white;
    const QPointF way = after - before;
    QVERIFY(std::fabs(line.x() * way.y() - line.y() * way.x()) < 1e-10);
}

void DiagramViewTest::editingFinishesWithTheKey()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    QSignalSpy started(&view, &DiagramView::editingStarted);
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    QTest::keyPress(&view, Qt::Key_Right);
    for (int i = 0; i < 4; ++i) {
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(&view, &repeat);
        QKeyEvent up(QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(&view, &up);
    }
    QCOMPARE(started.count(), 1);
    QCOMPARE(edited.count(), 5);
    QCOMPARE(finished.count(), 0);
    QTest::keyRelease(&view, Qt::Key_Right);
    QCOMPARE(finished.count(), 1);
}

void DiagramViewTest::tabGoesFromHandleToHandleAndOn()
{
    QWidget window;
    auto *before = new QLineEdit(&window);
    auto *view = new DiagramView(&window);
    auto *after = new QLineEdit(&window);
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(before);
    layout->addWidget(view);
    layout->addWidget(after);
    view->setTarget(Model::rec709());
    window.resize(500, 600);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    before->setFocus();
    for (const GamutVertex vertex : allGamutVertices) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(view->hasFocus());
        QCOMPARE(*view->selectedVertex(), vertex);
    }
    QTest::keyClick(view, Qt::Key_Tab);
    QVERIFY(after->hasFocus());
    QTest::keyClick(after, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(view->hasFocus());
    QCOMPARE(*view->selectedVertex(), GamutVertex::White);
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(view, Qt::Key_Backtab, Qt::ShiftModifier);
    }
    QCOMPARE(*view->selectedVertex(), GamutVertex::Red);
    QTest::keyClick(view, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(before->hasFocus());
    // Without handles there is only the view.
    view->setReadOnly(true);
    QTest::keyClick(before, Qt::Key_Tab);
    QVERIFY(view->hasFocus());
    QTest::keyClick(view, Qt::Key_Tab);
    QVERIFY(after->hasFocus());
}

void DiagramViewTest::lettersSelect()
{
    View view;
    QTest::keyClick(&view, Qt::Key_W);
    QCOMPARE(*view.selectedVertex(), GamutVertex::White);
    QTest::keyClick(&view, Qt::Key_B);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Blue);
}

void DiagramViewTest::shortcutsOfTheWindowDoNotTakeItsKeys()
{
    View view;
    const auto takes = [&view](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::ShortcutOverride, key, modifiers);
        event.ignore();
        QCoreApplication::sendEvent(&view, &event);
        return event.isAccepted();
    };
    QVERIFY(takes(Qt::Key_Plus));
    QVERIFY(takes(Qt::Key_Left));
    QVERIFY(takes(Qt::Key_R));
    QVERIFY(!takes(Qt::Key_Escape)); // until there is something to cancel
    QVERIFY(!takes(Qt::Key_S, Qt::ControlModifier));
    QVERIFY(!takes(Qt::Key_R, Qt::ControlModifier));
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(10, -10));
    QVERIFY(takes(Qt::Key_Escape));
    view.release(start);
}

void DiagramViewTest::moveVertexIsAnEdit()
{
    View view;
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    QVERIFY(view.moveVertex(GamutVertex::Red, QPointF(0.65, 0.32)));
    QCOMPARE(view.xy(GamutVertex::Red), QPointF(0.65, 0.32));
    QCOMPARE(edited.count(), 1);
    QCOMPARE(finished.count(), 1);
    QVERIFY(!view.moveVertex(GamutVertex::Red, QPointF(0.65, 0.32)));
    QCOMPARE(edited.count(), 1);
}

void DiagramViewTest::refusedKeysAreNoEdit()
{
    View view;
    view.setSelectedVertex(GamutVertex::Red);
    QSignalSpy started(&view, &DiagramView::editingStarted);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    QSignalSpy refused(&view, &DiagramView::editRefused);
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    // A rule that allows nothing at all, but does not lock the handle.
    class Nothing : public StandardTargetRules {
    public:
        TargetMove move(const TargetContext &, GamutVertex, const QPointF &) const override
        {
            return {std::nullopt, QStringLiteral("no")};
        }
    };
    view.setRules(std::make_shared<Nothing>());
    for (int i = 1; i <= 2; ++i) {
        QTest::keyClick(&view, Qt::Key_Right);
        QCOMPARE(refused.count(), i);
    }
    QCOMPARE(edited.count(), 0);
    QCOMPARE(started.count(), 0);
    QCOMPARE(finished.count(), 0);
}

void DiagramViewTest::twoArrowsAreOneEdit()
{
    View view;
    view.setSelectedVertex(GamutVertex::Red);
    QSignalSpy started(&view, &DiagramView::editingStarted);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    QTest::keyPress(&view, Qt::Key_Left);
    QTest::keyPress(&view, Qt::Key_Up);
    QTest::keyRelease(&view, Qt::Key_Left);
    QCOMPARE(finished.count(), 0);
    QTest::keyPress(&view, Qt::Key_Up);
    QTest::keyRelease(&view, Qt::Key_Up);
    QCOMPARE(started.count(), 1);
    QCOMPARE(finished.count(), 1);
}

void DiagramViewTest::unseenHandlesAreBroughtIntoView()
{
    View view;
    QApplication::setActiveWindow(&view);
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.setFocus();
    const auto isSeen = [&view](GamutVertex vertex) { return view.viewport().plot().contains(view.at(vertex)); };
    view.setZoomFactor(20.0);
    view.setCentre(QPointF(0.31, 0.33));
    view.setSelectedVertex(GamutVertex::Red);
    QVERIFY(!isSeen(GamutVertex::Red));
    QVERIFY(view.d->overlay.showsFocusFrame);
    QTest::keyClick(&view, Qt::Key_Left);
    QVERIFY(isSeen(GamutVertex::Red));
    QVERIFY(!view.d->overlay.showsFocusFrame);
    QVERIFY(!view.d->overlay.label.isEmpty());
    QTest::keyClick(&view, Qt::Key_B);
    QVERIFY(isSeen(GamutVertex::Blue));
    QTest::keyClick(&view, Qt::Key_Tab);
    QVERIFY(isSeen(GamutVertex::White));
    QCOMPARE(view.zoomFactor(), 20.0);
}

void DiagramViewTest::clickOnFreeGroundSelectsNothing()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    const QPointF ground = freeGround(view);
    view.press(ground);
    view.drag(ground + QPointF(10, 10));
    view.release(ground + QPointF(10, 10));
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green); // as that was a pan
    view.press(ground, Qt::MiddleButton);
    view.release(ground, Qt::MiddleButton);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
    view.press(ground);
    view.release(ground);
    QVERIFY(!view.selectedVertex());
}

void DiagramViewTest::keysDoNotChangeTheHandleInADrag()
{
    View view;
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    QTest::keyClick(&view, Qt::Key_B);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
    view.drag(start + QPointF(20, -10));
    QTest::keyClick(&view, Qt::Key_B);
    view.setSelectedVertex(std::nullopt);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Green);
    view.release(start + QPointF(20, -10));
    QTest::keyClick(&view, Qt::Key_B);
    QCOMPARE(*view.selectedVertex(), GamutVertex::Blue);
}

void DiagramViewTest::escapeWithAHeldHandleIsTakenByTheView()
{
    View view;
    QSignalSpy started(&view, &DiagramView::editingStarted);
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
    shortcut.ignore();
    QCoreApplication::sendEvent(&view, &shortcut);
    QVERIFY(shortcut.isAccepted());
    QCoreApplication::sendEvent(&view, &escape);
    QVERIFY(escape.isAccepted());
    view.drag(start + QPointF(20, -10));
    view.release(start + QPointF(20, -10));
    QCOMPARE(started.count(), 0);
}

void DiagramViewTest::hidingLetsGo()
{
    View view;
    view.setZoomFactor(3.0);
    view.press(freeGround(view));
    view.hide();
    view.show();
    view.paintAll();
    view.showTarget();
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(10, 10));
    QVERIFY(view.isEditing());
    view.release(start + QPointF(10, 10));
}

void DiagramViewTest::slotsMayDeleteTheView_data()
{
    QTest::addColumn<QByteArray>("signal");
    for (const char *signal :
        {SIGNAL(editingStarted()), SIGNAL(targetEdited(Model::ColorGamut)), SIGNAL(gamutsChanged()),
            SIGNAL(editingFinished()), SIGNAL(editingCanceled()), SIGNAL(editRefused(QString)),
            SIGNAL(hovered(QPointF)), SIGNAL(hoverEnded()), SIGNAL(selectedVertexChanged()), SIGNAL(viewChanged())}) {
        QTest::newRow(signal + 1) << QByteArray(signal);
    }
}

void DiagramViewTest::slotsMayDeleteTheView()
{
    QFETCH(QByteArray, signal);
    using Hands = std::function<void(View &, const QPointer<View> &)>;
    const auto drag = [](View &view, const QPointer<View> &alive, bool cancels) {
        const QPointF start = view.at(GamutVertex::Green);
        view.press(start);
        // The third step is refused: it is no chromaticity.
        for (const QPointF &way : {QPointF(15, 10), QPointF(20, 15), QPointF(-900, 900)}) {
            if (alive) {
                view.drag(start + way);
            }
        }
        if (alive && cancels) {
            QTest::keyClick(&view, Qt::Key_Escape);
        }
        if (alive) {
            view.release(start);
        }
    };
    const Hands all[] = {
        [&](View &view, const QPointer<View> &alive) { drag(view, alive, false); },
        [&](View &view, const QPointer<View> &alive) { drag(view, alive, true); },
        [](View &view, const QPointer<View> &alive) {
            view.setSelectedVertex(GamutVertex::Green);
            for (const int key : {Qt::Key_Right, Qt::Key_R, Qt::Key_Tab}) {
                if (alive) {
                    QTest::keyClick(&view, Qt::Key(key));
                }
            }
        },
        [](View &view, const QPointer<View> &alive) {
            view.setZoomFactor(40.0);
            if (alive) {
                view.setSelectedVertex(GamutVertex::Blue);
            }
            if (alive) {
                QTest::keyClick(&view, Qt::Key_Left);
            }
        },
        [](View &view, const QPointer<View> &) { view.moveVertex(GamutVertex::Red, QPointF(0.65, 0.32)); },
        [](View &view, const QPointer<View> &) { view.moveVertex(GamutVertex::Red, QPointF(2.0, 0.32)); },
        [](View &view, const QPointer<View> &alive) {
            view.hover(view.viewport().plot().center());
            if (alive) {
                view.wheel(view.viewport().plot().center(), QPoint(0, 120));
            }
            if (alive) {
                QEvent leave(QEvent::Leave);
                QCoreApplication::sendEvent(&view, &leave);
            }
        },
        [&](View &view, const QPointer<View> &alive) {
            auto rules = std::make_shared<StandardTargetRules>();
            rules->setLocksPrimaries(true);
            view.setRules(rules);
            drag(view, alive, false);
        },
        [](View &view, const QPointer<View> &alive) {
            const QPointF start = view.at(GamutVertex::Green);
            view.press(start);
            if (alive) {
                view.drag(start + QPointF(15, 10));
            }
            if (alive) {
                view.clearGamuts(GamutRole::Target);
            }
        },
    };
    int deletions = 0;
    for (const Hands &hands : all) {
        auto *view = new View;
        const QPointer<View> alive(view);
        Deleter deleter(view);
        QVERIFY(QObject::connect(view, signal.constData(), &deleter, SLOT(run())));
        hands(*view, alive);
        deletions += alive ? 0 : 1;
        delete alive.data();
    }
    QVERIFY(deletions > 0);
}

void DiagramViewTest::slotsMayTakeTheTargetAway_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("cleared") << false;
    QTest::newRow("read-only") << true;
}

void DiagramViewTest::slotsMayTakeTheTargetAway()
{
    QFETCH(bool, readOnly);
    using Connector = std::function<void(View &, const std::function<void()> &)>;
    const Connector connectors[] = {
        [](View &view, const std::function<void()> &f) { connect(&view, &DiagramView::editingStarted, &view, f); },
        [](View &view, const std::function<void()> &f) { connect(&view, &DiagramView::targetEdited, &view, f); },
        [](View &view, const std::function<void()> &f) { connect(&view, &DiagramView::editRefused, &view, f); },
        [](View &view, const std::function<void()> &f) {
            connect(&view, &DiagramView::selectedVertexChanged, &view, f);
        },
    };
    for (const bool locks : {false, true}) {
        for (const Connector &connector : connectors) {
            for (int hands = 0; hands < 4; ++hands) {
                View view;
                if (locks) {
                    auto rules = std::make_shared<StandardTargetRules>();
                    rules->setLocksPrimaries(true);
                    view.setRules(rules);
                }
                if (hands == 1) {
                    view.setSelectedVertex(GamutVertex::Green);
                }
                QSignalSpy started(&view, &DiagramView::editingStarted);
                QSignalSpy finished(&view, &DiagramView::editingFinished);
                const QPointF start = view.at(GamutVertex::Green);
                connector(view, [&view, readOnly] {
                    if (readOnly) {
                        view.setReadOnly(true);
                    } else {
                        view.clearGamuts(GamutRole::Target);
                    }
                });
                if (hands == 0) {
                    view.press(start);
                    view.drag(start + QPointF(20, 10));
                    view.drag(start + QPointF(-900, 900));
                    view.release(start);
                } else if (hands == 1) {
                    QTest::keyClick(&view, Qt::Key_Right);
                } else {
                    view.moveVertex(GamutVertex::Green, hands == 2 ? QPointF(0.31, 0.62) : QPointF(3.0, 0.6));
                }
                QVERIFY(!view.isEditing());
                QCOMPARE(started.count(), finished.count());
            }
        }
    }
}

void DiagramViewTest::losingTheTargetEndsTheDrag_data()
{
    QTest::addColumn<bool>("isCleared");
    QTest::newRow("cleared") << true;
    QTest::newRow("switched off") << false;
}

void DiagramViewTest::losingTheTargetEndsTheDrag()
{
    QFETCH(bool, isCleared);
    View view;
    const Model::Targets before = view.gamut(GamutRole::Target)->getTargets();
    QSignalSpy canceled(&view, &DiagramView::editingCanceled);
    QSignalSpy finished(&view, &DiagramView::editingFinished);
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    if (isCleared) {
        view.clearGamuts(GamutRole::Target);
    } else {
        view.setLayerShown(DiagramLayer::Targets, false);
        QVERIFY(sameTargets(view.gamut(GamutRole::Target)->getTargets(), before));
    }
    QCOMPARE(canceled.count(), 1);
    QCOMPARE(finished.count(), 1);
    view.release(start);
    QCOMPARE(finished.count(), 1);
}

void DiagramViewTest::contentMayBeReplacedInADrag()
{
    for (const bool asContent : {false, true}) {
        View view;
        const QPointF start = view.at(GamutVertex::Green);
        view.press(start);
        view.drag(start + QPointF(20, -10));
        DiagramContent content = view.content();
        for (DiagramGamut &gamut : content.gamuts) {
            if (gamut.role == GamutRole::Target) {
                gamut.gamut = Model::dciP3D65();
            }
        }
        if (asContent) {
            view.setContent(content);
        } else {
            view.setGamuts(content.gamuts);
        }
        view.drag(start + QPointF(25, -15));
        QCOMPARE(view.xy(GamutVertex::Red), xyOf(Model::dciP3D65().getTargets().red));
        QVERIFY(length(view.at(GamutVertex::Green) - start - QPointF(25, -15)) < 0.2);
        view.release(start);
    }
}

void DiagramViewTest::invisibleTargetsStayInvisible()
{
    View view;
    DiagramContent content = view.content();
    for (DiagramGamut &gamut : content.gamuts) {
        gamut.visible = gamut.role != GamutRole::Target;
    }
    view.setContent(content);
    view.setTarget(Model::dciP3D65());
    QVERIFY(!view.content().find(GamutRole::Target)->visible);
    QCOMPARE(view.gamut(GamutRole::Target)->colorGamutName(), Model::dciP3D65().colorGamutName());
    QVERIFY(!view.moveVertex(GamutVertex::Red, QPointF(0.65, 0.32)));
}

void DiagramViewTest::equalGamutsTellNothing()
{
    View view;
    QSignalSpy changed(&view, &DiagramView::gamutsChanged);
    view.setOriginal(wall());
    view.setStandards({Model::rec2020()});
    view.clearGamuts(GamutRole::Measured);
    QCOMPARE(changed.count(), 0);
    view.setStandards({Model::rec709()});
    view.clearGamuts(GamutRole::Original);
    QCOMPARE(changed.count(), 2);
}

// Labels and readout

void DiagramViewTest::labelShowsWhatIsEdited()
{
    View view;
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    QVERIFY(view.d->overlay.label.isEmpty());
    view.drag(start + QPointF(20, -10));
    const QPointF xy = view.xy(GamutVertex::Green);
    QCOMPARE(view.d->overlay.label.first(),
        QStringLiteral("green: x %1  y %2").arg(xy.x(), 0, 'f', 4).arg(xy.y(), 0, 'f', 4));
    view.release(start + QPointF(20, -10));
}

void DiagramViewTest::labelCoversNothingOfIt_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Model::Diagram>("diagram");
    QTest::newRow("800 x 700, x, y") << QSize(800, 700) << Model::Diagram::Cie1931;
    QTest::newRow("800 x 700, u', v'") << QSize(800, 700) << Model::Diagram::Cie1976;
    QTest::newRow("420 x 420, u, v") << QSize(420, 420) << Model::Diagram::Cie1960;
    QTest::newRow("1600 x 1200, x, y") << QSize(1600, 1200) << Model::Diagram::Cie1931;
}

void DiagramViewTest::labelCoversNothingOfIt()
{
    QFETCH(QSize, size);
    QFETCH(Model::Diagram, diagram);
    View view;
    view.setDiagram(diagram);
    view.resize(size);
    view.setEditNote(QStringLiteral("outside by 0.0041"));
    for (const GamutVertex vertex : allGamutVertices) {
        const QPointF start = view.at(vertex);
        view.press(start);
        for (double angle = 0.35; angle < 12.5; angle += 0.35) {
            view.drag(start + QPointF(std::cos(angle), std::sin(angle)) * 4.0 * angle);
            const QRectF label = view.d->overlay.labelPlace;
            QVERIFY(!view.d->overlay.label.isEmpty());
            QVERIFY(QRectF(view.rect()).contains(label));
            const QPointF handle = view.at(vertex);
            QVERIFY(!label.adjusted(-7, -7, 7, 7).contains(handle));
            if (vertex == GamutVertex::White) {
                continue;
            }
            for (const GamutVertex other : {GamutVertex::Red, GamutVertex::Green, GamutVertex::Blue}) {
                for (int i = 0; i <= 500; ++i) {
                    const QPointF onLine = handle + (view.at(other) - handle) * (i / 500.0);
                    QVERIFY2(!label.contains(onLine),
                        qPrintable(QStringLiteral("%1 at angle %2").arg(gamutVertexName(vertex)).arg(angle)));
                }
            }
        }
        view.release(start);
        view.setTarget(Model::rec709());
    }
}

void DiagramViewTest::labelGoes()
{
    View view;
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    QVERIFY(!view.d->overlay.label.isEmpty());
    view.release(start + QPointF(20, -10));
    QVERIFY(view.d->overlay.label.isEmpty());
    QTest::keyClick(&view, Qt::Key_Right);
    QVERIFY(!view.d->overlay.label.isEmpty()); // to be read
    QTRY_VERIFY(view.d->overlay.label.isEmpty());
    QTest::keyClick(&view, Qt::Key_Right);
    view.setSelectedVertex(GamutVertex::Blue);
    QVERIFY(view.d->overlay.label.isEmpty());
}

void DiagramViewTest::editNoteIsShown()
{
    View view;
    connect(&view, &DiagramView::targetEdited, &view, [&] { view.setEditNote(QStringLiteral("outside by 0.004")); });
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    QCOMPARE(view.d->overlay.label.value(1), QStringLiteral("outside by 0.004"));
    view.setEditNote(QString());
    QCOMPARE(view.d->overlay.label.size(), 1);
    view.release(start);
}

void DiagramViewTest::minusZeroNeverShows()
{
    QCOMPARE(coordinateText(-0.00001, 4), QStringLiteral("0.0000"));
    QCOMPARE(coordinateText(-0.0, 2), QStringLiteral("0.00"));
    QCOMPARE(coordinateText(-0.0001, 4), QStringLiteral("-0.0001"));
    View view;
    QVERIFY(!view.coordinatesText(QPointF(-1e-9, 0.3)).contains(QLatin1Char('-')));
}

void DiagramViewTest::digitsFollowTheZoom()
{
    View view;
    QCOMPARE(view.coordinatesText(QPointF(0.3127, 0.329)), QStringLiteral("x 0.3127  y 0.3290"));
    view.setZoomFactor(100.0);
    QCOMPARE(view.coordinatesText(QPointF(0.3127, 0.329)), QStringLiteral("x 0.31270  y 0.32900"));
    view.setDigits(3);
    QCOMPARE(view.coordinatesText(QPointF(0.3127, 0.329)), QStringLiteral("x 0.313  y 0.329"));
    view.setDiagram(Model::Diagram::Cie1976);
    QCOMPARE(view.coordinatesText(QPointF(0.3127, 0.329)), QStringLiteral("u′ 0.198  v′ 0.468"));
}

void DiagramViewTest::hoverTells()
{
    View view;
    QSignalSpy hovered(&view, &DiagramView::hovered);
    QSignalSpy ended(&view, &DiagramView::hoverEnded);
    const QPointF position = view.at(QPointF(0.4, 0.4));
    view.hover(position);
    QCOMPARE(hovered.count(), 1);
    QVERIFY(length(hovered.at(0).at(0).toPointF() - QPointF(0.4, 0.4)) < 1e-9);
    view.hover(QPointF(2, 2)); // beside the plot
    QCOMPARE(hovered.count(), 1);
    QCOMPARE(ended.count(), 1);
    view.hover(position);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view, &leave);
    QCOMPARE(ended.count(), 2);
    QVERIFY(view.d->overlay.readout.isEmpty());
}

void DiagramViewTest::editNoteKeepsSnapAndReason()
{
    View view;
    auto rules = std::make_shared<StandardTargetRules>();
    rules->setStaysInsideOriginal(true);
    view.setRules(rules);
    connect(&view, &DiagramView::targetEdited, &view, [&] { view.setEditNote(QStringLiteral("outside by 0.004")); });
    const QPointF start = view.at(GamutVertex::Green);
    const QPointF corner = view.at(xyOf(wall().getTargets().green));
    view.press(start);
    view.drag(start + (corner - start) + QPointF(2, 1));
    QCOMPARE(view.d->overlay.label.mid(1),
        QStringList({QStringLiteral("outside by 0.004"), QStringLiteral("original green")}));
    view.setEditNote(QStringLiteral("and another"));
    QCOMPARE(
        view.d->overlay.label.mid(1), QStringList({QStringLiteral("and another"), QStringLiteral("original green")}));
    view.release(start);
}

void DiagramViewTest::labelFollowsTheTarget()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    QTest::keyClick(&view, Qt::Key_Right);
    view.setTarget(Model::dciP3D65());
    QVERIFY(view.d->overlay.label.first().endsWith(view.coordinatesText(xyOf(Model::dciP3D65().getTargets().green))));
    view.setDiagram(Model::Diagram::Cie1976);
    QVERIFY(view.d->overlay.label.first().endsWith(view.coordinatesText(xyOf(Model::dciP3D65().getTargets().green))));
}

void DiagramViewTest::labelHasRoomInSmallViews()
{
    View view;
    view.resize(300, 250);
    view.setEditNote(QStringLiteral("a note that is long enough to be broken where there is no room for it"));
    for (const GamutVertex vertex : allGamutVertices) {
        const QPointF start = view.at(vertex);
        view.press(start);
        view.drag(start + QPointF(3, 2));
        const QStringList label = view.d->overlay.label;
        QVERIFY(!label.isEmpty());
        QVERIFY(view.d->labelEntries().first() == label.first());
        // All of the note, or none.
        const QString rest = label.mid(1).join(QLatin1Char(' '));
        QVERIFY2(rest.isEmpty() || rest == view.editNote(), qPrintable(rest));
        QVERIFY(!view.d->overlay.labelPlace.contains(view.at(vertex)));
        view.release(start);
        view.setTarget(Model::rec709());
    }
}

void DiagramViewTest::readoutGivesWayToHands()
{
    View view;
    Model::Targets t = Model::rec709().getTargets();
    // Close enough that there is a chromaticity in that corner.
    view.setZoomFactor(4.0);
    view.hover(view.viewport().plot().center());
    const QPointF corner = view.d->overlay.readoutPlace.center();
    const QPointF under = view.viewport().toChromaticity(corner);
    t.green = Model::Target::fromYxy(t.green.Y, under.x(), under.y());
    view.setTarget(Model::ColorGamut("in the corner", t));
    QCOMPARE(view.d->overlay.handles.isEmpty(), false);
    QVERIFY(!view.d->overlay.readout.isEmpty());
    for (const DiagramOverlay::Handle &handle : view.d->overlay.handles) {
        QVERIFY(!DiagramOverlay::bounds(handle).intersects(view.d->overlay.readoutPlace));
    }
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(-10, 10));
    QVERIFY(view.d->overlay.readout.isEmpty());
    view.release(start + QPointF(-10, 10));
    QVERIFY(!view.d->overlay.readout.isEmpty());
}

void DiagramViewTest::hoverTellsChromaticitiesOnly()
{
    View view;
    view.setDiagram(Model::Diagram::Cie1976);
    QSignalSpy hovered(&view, &DiagramView::hovered);
    QSignalSpy ended(&view, &DiagramView::hoverEnded);
    view.hover(view.at(QPointF(0.3, 0.3)));
    QCOMPARE(hovered.count(), 1);
    // Above the horseshoe there is nothing that x and y could say.
    view.d->pan(QPointF(0, 280));
    view.hover(view.viewport().fromPoint(QPointF(0.1, 0.85)));
    QVERIFY(view.viewport().plot().contains(view.viewport().fromPoint(QPointF(0.1, 0.85))));
    QCOMPARE(hovered.count(), 1);
    QCOMPARE(ended.count(), 1);
    QVERIFY(!view.d->overlay.readout.isEmpty());
}

// Painting

void DiagramViewTest::hoverRepaintsTheReadoutOnly()
{
    View view;
    const QPointF free = freeGround(view);
    view.hover(free);
    view.takePainted();
    const QRect readout = view.d->overlay.readoutPlace.toAlignedRect();
    QVERIFY(!readout.isEmpty());
    for (int i = 1; i < 30; ++i) {
        view.hover(free + QPointF(-3.0 * i, 2.0 * i));
        const QRegion painted = view.takePainted();
        QVERIFY(!painted.isEmpty());
        QVERIFY(painted.subtracted(readout).isEmpty());
    }
    view.setReadoutShown(false);
    view.takePainted();
    view.hover(free);
    QVERIFY(view.takePainted().isEmpty());
}

void DiagramViewTest::dragRepaintsItsSurroundingsOnly()
{
    View view;
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    view.takePainted();
    view.drag(start + QPointF(24, -13));
    int painted = 0;
    for (const QRect &part : view.takePainted()) {
        painted += part.width() * part.height();
    }
    QVERIFY(painted > 0);
    QVERIFY2(painted < view.width() * view.height() / 4, qPrintable(QString::number(painted)));
    view.release(start);
}

void DiagramViewTest::partialRepaintsLeaveNothingBehind_data()
{
    QTest::addColumn<HorseshoeColors>("colors");
    QTest::addColumn<Model::Diagram>("diagram");
    QTest::newRow("dimmed, x, y") << HorseshoeColors::Dimmed << Model::Diagram::Cie1931;
    QTest::newRow("dimmed, u', v'") << HorseshoeColors::Dimmed << Model::Diagram::Cie1976;
    QTest::newRow("full, x, y") << HorseshoeColors::Full << Model::Diagram::Cie1931;
    QTest::newRow("none, u, v") << HorseshoeColors::None << Model::Diagram::Cie1960;
}

void DiagramViewTest::partialRepaintsLeaveNothingBehind()
{
    QFETCH(HorseshoeColors, colors);
    QFETCH(Model::Diagram, diagram);
    View view;
    view.setRules(nullptr);
    view.setHorseshoeColors(colors);
    view.setDiagram(diagram);
    view.setStandards({Model::rec709(), Model::rec2020()});
    view.setMeasured(wall());
    const auto compare = [&view](const char *when) {
        view.paintAll();
        const QRect others = difference(shownBy(view), view.grab().toImage());
        QVERIFY2(others.isEmpty(),
            qPrintable(QStringLiteral("%1: %2, %3, %4 x %5")
                           .arg(QString::fromLatin1(when))
                           .arg(others.x())
                           .arg(others.y())
                           .arg(others.width())
                           .arg(others.height())));
    };
    std::mt19937 random(11);
    for (const GamutVertex vertex : allGamutVertices) {
        const QPointF start = view.at(vertex);
        view.press(start);
        QPointF at = start;
        for (int i = 0; i < 12; ++i) {
            at += QPointF(double(random() % 41) - 20.0, double(random() % 41) - 20.0);
            const Qt::KeyboardModifiers modifiers = i % 4 == 3 ? Qt::ControlModifier
                : i % 4 == 1                                   ? Qt::AltModifier
                                                               : Qt::NoModifier;
            view.drag(at, modifiers);
            compare("drag");
            if (QTest::currentTestFailed()) {
                return;
            }
        }
        view.release(at);
        compare("release");
        view.hover(freeGround(view));
        compare("hover");
    }
    // Onto a standard, whose line is drawn otherwise then, and away from it.
    view.setTarget(Model::ColorGamut("t", Model::rec709().getTargets()));
    compare("equal");
    view.moveVertex(GamutVertex::Red, QPointF(0.6405, 0.33));
    compare("hardly equal");
    view.moveVertex(GamutVertex::Red, QPointF(0.66, 0.33));
    compare("not equal");
    view.moveVertex(GamutVertex::Red, xyOf(Model::rec709().getTargets().red));
    compare("equal again");
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(&view, i % 2 ? Qt::Key_Plus : Qt::Key_Right);
        compare("keys");
        view.press(freeGround(view), Qt::MiddleButton);
        view.drag(freeGround(view) + QPointF(17, 9), Qt::NoModifier, Qt::MiddleButton);
        view.release(freeGround(view), Qt::MiddleButton);
        compare("pan");
    }
}

void DiagramViewTest::dragPaintsTheScaleNoMore()
{
    View view;
    const QPointF start = view.at(GamutVertex::Green);
    view.press(start);
    view.drag(start + QPointF(20, -10));
    view.paintAll();
    const qint64 key = view.d->lines.cacheKey();
    view.drag(start + QPointF(40, -13));
    view.paintAll();
    QCOMPARE(view.d->lines.cacheKey(), key);
    view.release(start);
}

void DiagramViewTest::hiddenViewsKeepNoPictures()
{
    View view;
    view.setFocusPolicy(Qt::NoFocus); // or else its frame might come with the second showing
    view.clearFocus();
    view.paintAll();
    view.hover(view.at(GamutVertex::Red));
    view.paintAll();
    QVERIFY(!view.d->lines.isNull());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view, &leave);
    const QImage before = view.grab().toImage();
    view.hide();
    QVERIFY(view.d->lines.isNull());
    view.show();
    view.paintAll();
    QCOMPARE(difference(view.grab().toImage(), before), QRect());
}

void DiagramViewTest::followsThePalette()
{
    View view;
    QPalette dark = view.palette();
    dark.setColor(QPalette::Base, QColor(30, 30, 34));
    view.setPalette(dark);
    QCOMPARE(view.content().ground, DiagramGround::Dark);
    const QRgb corner = view.grab().toImage().pixel(1, 1);
    QVERIFY(qGray(corner) < 80);
    QPalette light = dark;
    light.setColor(QPalette::Base, Qt::white);
    view.setPalette(light);
    QCOMPARE(view.content().ground, DiagramGround::Light);
    QVERIFY(qGray(view.grab().toImage().pixel(1, 1)) > 200);
}

void DiagramViewTest::imagesAreSharpAtEveryRatio_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.5") << 1.5;
    QTest::newRow("2") << 2.0;
}

void DiagramViewTest::imagesAreSharpAtEveryRatio()
{
    QFETCH(double, ratio);
    View view;
    const QSize logical(600, 600);
    const QImage image = view.toImage(logical * ratio, ratio);
    QCOMPARE(image.size(), logical * ratio);
    QCOMPARE(image.devicePixelRatio(), ratio);
    // The same picture, of more pixels: brought back to the size of the plain one it differs by edges only.
    const QImage plain = view.toImage(logical, 1.0);
    QImage reduced = image.scaled(logical, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    qint64 apart = 0;
    for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x) {
            apart += std::abs(qGray(plain.pixel(x, y)) - qGray(reduced.pixel(x, y)));
        }
    }
    QVERIFY2(apart < 6LL * plain.width() * plain.height(), qPrintable(QString::number(apart)));
    // And sharper than that one enlarged.
    if (ratio > 1.0) {
        const auto edges = [](const QImage &picture) {
            qint64 sum = 0;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 1; x < picture.width(); ++x) {
                    const int step = qGray(picture.pixel(x, y)) - qGray(picture.pixel(x - 1, y));
                    sum += step * step;
                }
            }
            return sum;
        };
        QVERIFY(edges(image) > edges(plain.scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
    }
}

void DiagramViewTest::imagesOfNoRatioAreNull()
{
    View view;
    for (const double ratio : {0.0, -1.0, 1e-9, 0.01, std::numeric_limits<double>::quiet_NaN()}) {
        QVERIFY(view.toImage(QSize(100, 100), ratio).isNull());
    }
    QCOMPARE(view.toImage(QSize(100, 100), 0.5).size(), QSize(100, 100));
}

void DiagramViewTest::imagesShowNoHands()
{
    View view;
    const QImage before = view.toImage(QSize(500, 500));
    view.setSelectedVertex(GamutVertex::Red);
    view.hover(freeGround(view));
    QCOMPARE(difference(view.toImage(QSize(500, 500)), before), QRect());
    // As the widget shows itself, there are some.
    QVERIFY(!difference(
        view.grab().toImage(), view.toImage(view.size() * view.devicePixelRatioF(), view.devicePixelRatioF()))
                 .isEmpty());
    view.setReadOnly(true);
    QCOMPARE(difference(view.toImage(QSize(500, 500)), before), QRect());
}

void DiagramViewTest::readoutStandsOnTheOtherSideFromRightToLeft()
{
    View view;
    view.hover(view.viewport().plot().center());
    QVERIFY(view.d->overlay.readoutPlace.center().x() > view.width() / 2.0);
    view.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(view.d->overlay.readoutPlace.center().x() < view.width() / 2.0);
    QVERIFY(view.viewport().plot().contains(view.d->overlay.readoutPlace));
}

void DiagramViewTest::cursorsSayWhatAHandDoes()
{
    View view;
    view.hover(freeGround(view));
    QCOMPARE(view.cursor().shape(), Qt::CrossCursor);
    view.hover(view.at(GamutVertex::Red));
    QCOMPARE(view.cursor().shape(), Qt::SizeAllCursor);
    auto rules = std::make_shared<StandardTargetRules>();
    rules->setLocksPrimaries(true);
    view.setRules(rules);
    view.hover(view.at(GamutVertex::Red) + QPointF(1, 0));
    QCOMPARE(view.cursor().shape(), Qt::ForbiddenCursor);
    view.hover(QPointF(1, 1));
    QCOMPARE(view.cursor().shape(), Qt::ArrowCursor);
}

// Accessibility

void DiagramViewTest::gamutsAndHandlesAreAccessible()
{
    View view;
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&view);
    QVERIFY(accessible);
    QVERIFY(accessible->text(QAccessible::Name).contains(QStringLiteral("CIE 1931")));
    QCOMPARE(accessible->childCount(), 3 + 4);
    QStringList names;
    for (int i = 0; i < accessible->childCount(); ++i) {
        QAccessibleInterface *child = accessible->child(i);
        QVERIFY(child && child->isValid());
        QCOMPARE(child->parent(), accessible);
        QCOMPARE(accessible->indexOfChild(child), i);
        QCOMPARE(accessible->child(i), child);
        QVERIFY(!child->rect().isEmpty());
        QVERIFY(!child->state().invisible);
        names.append(child->text(QAccessible::Name));
        QVERIFY(!child->text(QAccessible::Description).isEmpty());
    }
    QVERIFY(names.contains(QStringLiteral("LED wall, Original")));
    QVERIFY(names.contains(QStringLiteral("Rec.709, Target")));
    QVERIFY(names.contains(QStringLiteral("Target: green primary")));
    QVERIFY(names.contains(QStringLiteral("Target: white point")));
    QAccessibleInterface *green = accessible->child(names.indexOf(QStringLiteral("Target: green primary")));
    QCOMPARE(green->text(QAccessible::Value), QStringLiteral("x 0.3000  y 0.6000"));
    QCOMPARE(green->role(), QAccessible::Slider);
    QVERIFY(green->state().focusable && green->state().movable);
    const QPoint place = view.mapToGlobal(view.at(GamutVertex::Green).toPoint());
    QCOMPARE(accessible->childAt(place.x(), place.y()), green);
    view.setAccessibleName(QStringLiteral("Wall"));
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Wall"));
}

void DiagramViewTest::handlesAreMovedByAccessibleValues()
{
    View view;
    QSignalSpy edited(&view, &DiagramView::targetEdited);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&view);
    QAccessibleInterface *green = accessible->child(accessible->childCount() - 3);
    QCOMPARE(green->childCount(), 2);
    QAccessibleInterface *x = green->child(0);
    QAccessibleInterface *y = green->child(1);
    QCOMPARE(x->parent(), green);
    QCOMPARE(x->text(QAccessible::Name), QStringLiteral("Target: green primary, x"));
    QVERIFY(std::fabs(y->valueInterface()->currentValue().toDouble() - 0.6) < 1e-12);
    y->valueInterface()->setCurrentValue(0.62);
    QVERIFY(length(view.xy(GamutVertex::Green) - QPointF(0.3, 0.62)) < 1e-12);
    x->valueInterface()->setCurrentValue(0.28);
    QVERIFY(length(view.xy(GamutVertex::Green) - QPointF(0.28, 0.62)) < 1e-12);
    QCOMPARE(edited.count(), 2);
    QCOMPARE(x->text(QAccessible::Value), QStringLiteral("0.2800"));
    QVERIFY(x->valueInterface()->minimumStepSize().toDouble() > 0.0);
    // What is no number moves nothing.
    x->valueInterface()->setCurrentValue(QStringLiteral("far"));
    QCOMPARE(edited.count(), 2);
}

void DiagramViewTest::handlesAreMovedByAccessibleActions()
{
    View view;
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&view);
    QAccessibleInterface *blue = accessible->child(accessible->childCount() - 2);
    QAccessibleActionInterface *actions = blue->actionInterface();
    QVERIFY(actions);
    const QPointF before = view.xy(GamutVertex::Blue);
    actions->doAction(QAccessibleActionInterface::increaseAction());
    QVERIFY(length(view.xy(GamutVertex::Blue) - before - QPointF(0.001, 0)) < 1e-9);
    actions->doAction(QAccessibleActionInterface::decreaseAction());
    QVERIFY(length(view.xy(GamutVertex::Blue) - before) < 1e-9);
    QVERIFY(actions->actionNames().contains(QStringLiteral("MoveUp")));
    actions->doAction(QStringLiteral("MoveUp"));
    QVERIFY(length(view.xy(GamutVertex::Blue) - before - QPointF(0, 0.001)) < 1e-9);
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(*view.selectedVertex(), GamutVertex::Blue);
}

namespace {

QVector<QPair<QAccessible::Event, QString>> heard;

void listen(QAccessibleEvent *event)
{
    QAccessibleInterface *about = event->accessibleInterface();
    heard.append({event->type(), about ? about->text(QAccessible::Name) : QString()});
}

} // namespace

void DiagramViewTest::accessiblePartsOfDisabledViewsDoNothing()
{
    View view;
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&view);
    QAccessibleInterface *red = nullptr;
    for (int i = 0; i < accessible->childCount() && !red; ++i) {
        if (accessible->child(i)->valueInterface()) {
            red = accessible->child(i);
        }
    }
    QVERIFY(red);
    view.setSelectedVertex(GamutVertex::Red);
    QApplication::setActiveWindow(&view);
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.setFocus();
    QVERIFY(red->state().focused);
    QVERIFY(!red->child(0)->state().focused);
    QVERIFY(!red->child(1)->state().focused);
    const QPointF xy = view.xy(GamutVertex::Red);
    for (const bool isDisabled : {true, false}) {
        view.setEnabled(!isDisabled);
        view.setVisible(isDisabled);
        red->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
        red->valueInterface()->setCurrentValue(0.6);
        QCOMPARE(view.xy(GamutVertex::Red), xy);
    }
    view.show();
    red->valueInterface()->setCurrentValue(0.6);
    QCOMPARE(view.xy(GamutVertex::Red).x(), 0.6);
}

void DiagramViewTest::focusIsAccessible()
{
    View view;
    view.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.setFocus();
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&view);
    heard.clear();
    sendAccessibilityEvent = listen;
    view.setSelectedVertex(GamutVertex::Red);
    sendAccessibilityEvent = QAccessible::updateAccessibility;
    QVERIFY(heard.contains({QAccessible::Focus, QStringLiteral("Target: red primary")}));
    QAccessibleInterface *red = accessible->child(accessible->childCount() - 4);
    QCOMPARE(accessible->focusChild(), red);
    QVERIFY(red->state().focused && red->state().selected);
    QVERIFY(!accessible->child(accessible->childCount() - 3)->state().focused);
    // It is seen, too: the picture with the focus on another handle is another.
    const QImage before = view.grab().toImage();
    view.setSelectedVertex(GamutVertex::Green);
    QVERIFY(view.grab().toImage() != before);
}

void DiagramViewTest::movesByKeyboardAreAnnounced()
{
    View view;
    view.setSelectedVertex(GamutVertex::Green);
    heard.clear();
    sendAccessibilityEvent = listen;
    QTest::keyClick(&view, Qt::Key_Right);
    sendAccessibilityEvent = QAccessible::updateAccessibility;
    QVERIFY(heard.contains({QAccessible::ValueChanged, QStringLiteral("Target: green primary")}));
    QVERIFY(heard.contains({QAccessible::ValueChanged, QStringLiteral("Target: green primary, x")}));
}

void DiagramViewTest::accessiblePartsFollowTheView()
{
    auto view = std::make_unique<View>();
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(view.get());
    QAccessibleInterface *handle = accessible->child(accessible->childCount() - 1);
    view->setReadOnly(true);
    QCOMPARE(accessible->childCount(), 3);
    QVERIFY(!handle->isValid());
    view->setLayerShown(DiagramLayer::Standards, false);
    QCOMPARE(accessible->childCount(), 2);
    view->setGamuts({});
    QCOMPARE(accessible->childCount(), 0);
    QVERIFY(!accessible->child(0));
    view.reset(); // and takes its parts along
}

QTEST_MAIN(DiagramViewTest)
#include "diagramviewtest.moc"
