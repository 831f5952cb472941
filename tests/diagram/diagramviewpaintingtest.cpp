// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramviewfixture.h"

#include <QBackingStore>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <random>

using namespace diagramtests;

namespace {

//! What the window shows, of all the repaints so far.
QImage shownBy(const View &view)
{
    const auto *image = dynamic_cast<QImage *>(view.backingStore()->paintDevice());
    return image ? image->copy() : QImage();
}

/*!
 * What of two pictures differs by more than rounding does, in pixels: a soft pixel is rounded each time that something
 * is laid over it, and scale and gamuts are laid over the colours line by line or as one picture of their own.
 */
QRect difference(const QImage &one, const QImage &other)
{
    constexpr int rounding = 6; // levels of 255; 4 were seen
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

} // namespace

class DiagramViewPaintingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hoverRepaintsTheReadoutOnly();
    void dragRepaintsItsSurroundingsOnly();
    void dragLeavesEdgesAndHandlesThatStay();
    void partsOfGuidesAreThoseOfTheWhole();
    void handlesStandWhereTheyBelong_data();
    void handlesStandWhereTheyBelong();
    void partialRepaintsLeaveNothingBehind_data();
    void partialRepaintsLeaveNothingBehind();
    void movedRingsRepaintThemselvesOnly();
    void focusFramesComeAndGo();
    void dragPaintsTheScaleNoMore();
    void hiddenViewsKeepNoPictures();
    void followsThePalette();
    void imagesAreSharpAtEveryRatio_data();
    void imagesAreSharpAtEveryRatio();
    void imagesOfNoRatioAreNull();
    void imagesShowNoHands();
    void cursorsSayWhatAHandDoes();
    void hoverFollowsWhatChanges();
};

void DiagramViewPaintingTest::hoverRepaintsTheReadoutOnly()
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

void DiagramViewPaintingTest::dragRepaintsItsSurroundingsOnly()
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

void DiagramViewPaintingTest::dragLeavesEdgesAndHandlesThatStay()
{
    View view;
    constexpr GamutVertex primaries[] = {GamutVertex::Red, GamutVertex::Green, GamutVertex::Blue};
    for (const GamutVertex vertex : allGamutVertices) {
        const QPointF start = view.at(vertex);
        view.press(start);
        view.drag(start + QPointF(20, -10));
        view.takePainted();
        view.drag(start + QPointF(24, -13));
        const QRegion painted = view.takePainted();
        for (int i = 0; i < 3; ++i) {
            const GamutVertex from = primaries[i];
            const GamutVertex to = primaries[(i + 1) % 3];
            const QPoint inTheMiddle = ((view.at(from) + view.at(to)) / 2.0).toPoint();
            QCOMPARE(painted.contains(inTheMiddle), vertex == from || vertex == to);
            // At the handles of the other primaries, edges end that move with that of one.
            const QRect handle(view.at(from).toPoint() - QPoint(5, 5), QSize(10, 10));
            QCOMPARE(painted.intersects(handle), vertex != GamutVertex::White);
        }
        view.release(start);
    }
}

void DiagramViewPaintingTest::partsOfGuidesAreThoseOfTheWhole()
{
    const QSize size(500, 400);
    const QRect whole(QPoint(), size);
    const DiagramPalette &palette = diagramPalette(DiagramGround::Light);
    QPolygonF curve;
    for (int i = 0; i < 200; ++i) {
        curve.append(QPointF(2.5 * i, 200.0 + 150.0 * std::sin(0.03 * i)));
    }
    DiagramOverlay overlay;
    overlay.guides
        = {QPolygonF({QPointF(30.3, 350.2), QPointF(170.1, 20.7), QPointF(470.9, 300.4), QPointF(30.3, 350.2)}), curve};
    const LabelFonts fonts(QFont(), 96);
    ShapePictures pictures;
    std::mt19937 random(3);
    int seen = 0;
    for (int round = 0; round < 200; ++round) {
        QRegion needed;
        for (int i = 0; i < 3; ++i) {
            needed += QRect(int(random() % 480U), int(random() % 380U), 8 + int(random() % 30U), 8);
        }
        needed &= whole;
        const auto paint = [&](const QRegion &parts) {
            QImage image(size, QImage::Format_RGB32);
            image.fill(Qt::gray);
            QPainter painter(&image);
            painter.setClipRegion(needed);
            painter.setRenderHint(QPainter::Antialiasing);
            overlay.paint(painter, QRectF(whole), palette, fonts, parts, pictures);
            return image;
        };
        const QImage expected = paint(whole);
        QCOMPARE(paint(needed), expected);
        seen += expected.pixelColor(needed.begin()->center()) != QColor(Qt::gray) ? 1 : 0;
    }
    QVERIFY(seen > 0);
}

void DiagramViewPaintingTest::handlesStandWhereTheyBelong_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.5") << 1.5;
    QTest::newRow("2") << 2.0;
    QTest::newRow("too large to be kept") << 5.0;
}

void DiagramViewPaintingTest::handlesStandWhereTheyBelong()
{
    QFETCH(double, ratio);
    constexpr int side = 60;
    constexpr int parts = 4; // of a device pixel, to which a kept picture is rounded
    const auto painted = [ratio](const std::function<void(QPainter &)> &paint) {
        QImage image(QSize(side, side) * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::gray);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        paint(painter);
        return image;
    };
    const LabelFonts fonts(QFont(), 96);
    ShapePictures pictures;
    std::mt19937 random(8);
    for (int i = 0; i < 200; ++i) {
        const DiagramPalette &palette = diagramPalette(i % 2 ? DiagramGround::Light : DiagramGround::Dark);
        DiagramOverlay::Handle handle;
        handle.vertex = allGamutVertices[random() % 4U];
        handle.isMovable = random() % 4U > 0;
        handle.isSelected = random() % 2U > 0;
        handle.isHovered = random() % 2U > 0;
        handle.hasFocus = random() % 2U > 0;
        handle.at = QPointF(20.0 + 0.01 * double(random() % 2000U), 20.0 + 0.01 * double(random() % 2000U));
        DiagramOverlay overlay;
        overlay.handles = {handle};
        const QRect whole(0, 0, side, side);
        const QImage seen = painted(
            [&](QPainter &to) { overlay.paint(to, QRectF(whole), palette, fonts, QRegion(whole), pictures); });
        if (ratio <= 2.0) {
            const double unit = ratio * parts;
            handle.at = QPointF(std::round(handle.at.x() * unit), std::round(handle.at.y() * unit)) / unit;
        }
        const QImage expected = painted([&](QPainter &to) { DiagramOverlay::paintHandle(to, handle, palette); });
        QCOMPARE(difference(seen, expected), QRect());
    }
}

void DiagramViewPaintingTest::partialRepaintsLeaveNothingBehind_data()
{
    QTest::addColumn<HorseshoeColors>("colors");
    QTest::addColumn<Model::Diagram>("diagram");
    QTest::newRow("dimmed, x, y") << HorseshoeColors::Dimmed << Model::Diagram::Cie1931;
    QTest::newRow("dimmed, u', v'") << HorseshoeColors::Dimmed << Model::Diagram::Cie1976;
    QTest::newRow("full, x, y") << HorseshoeColors::Full << Model::Diagram::Cie1931;
    QTest::newRow("none, u, v") << HorseshoeColors::None << Model::Diagram::Cie1960;
}

void DiagramViewPaintingTest::partialRepaintsLeaveNothingBehind()
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
        // A label may go between the two, when its time is over. What is left behind stays.
        QRect others;
        for (int attempt = 0; attempt < 3 && (attempt == 0 || !others.isEmpty()); ++attempt) {
            view.paintAll();
            others = difference(shownBy(view), view.grab().toImage());
        }
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
    const Model::Targets turned = Model::rec709().getTargets();
    view.setTarget(Model::ColorGamut("t", {turned.green, turned.blue, turned.red, turned.white}));
    compare("equal, with other corners first");
    view.moveVertex(GamutVertex::Red, QPointF(0.31, 0.61));
    compare("not equal, with other corners first");
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(&view, i % 2 ? Qt::Key_Plus : Qt::Key_Right);
        compare("keys");
        view.press(freeGround(view), Qt::MiddleButton);
        view.drag(freeGround(view) + QPointF(17, 9), Qt::NoModifier, Qt::MiddleButton);
        view.release(freeGround(view), Qt::MiddleButton);
        compare("pan");
    }
}

void DiagramViewPaintingTest::movedRingsRepaintThemselvesOnly()
{
    View view;
    const DiagramRings white{view.xy(GamutVertex::White)};
    const DiagramRings green{view.xy(GamutVertex::Green), {0.01, 0.02}}; // with numbers
    const QPointF atRed = view.at(GamutVertex::Red);
    const auto looksAsAWhole = [&view] { return difference(shownBy(view), view.grab().toImage()).isEmpty(); };
    view.setRings({white, green});
    QVERIFY(view.takePainted().contains(view.at(GamutVertex::Green).toPoint()));
    QVERIFY(looksAsAWhole());

    view.takePainted();
    view.setRings({white, green});
    QVERIFY(view.takePainted().isEmpty());

    const QVector<QVector<DiagramRings>> steps{
        {white, {green.xy + QPointF(0.004, 0.002), green.radii}}, // moved
        {white, {green.xy + QPointF(0.004, 0.002), {0.03}}}, // other radii
        {{green.xy, {0.03}}, white, green}, // further ones, and in another order
        {white}, // fewer
        {white, {QPointF(1e308, 1e308), {0.01}}, {green.xy, {-1.0, 0.0}}}, // that are not drawn
        {white, {QPointF(1.0, 0.0), {0.01}}}, // outside
        {white, green}, // as before
        {}, // none
    };
    for (int i = 0; i < steps.size(); ++i) {
        const QVector<DiagramRings> &rings = steps[i];
        view.takePainted();
        view.setRings(rings);
        const QRegion painted = view.takePainted();
        QVERIFY2(!painted.contains(atRed.toPoint()), qPrintable(QString::number(i)));
        QVERIFY2(looksAsAWhole(), qPrintable(QString::number(i)));
        // That of the first two stays where it is.
        QVERIFY(i > 1 || !painted.contains(view.at(GamutVertex::White).toPoint()));
    }

    view.hide();
    view.setRings({white, green});
    view.show();
    view.paintAll();
    QVERIFY(looksAsAWhole());
    const QImage withRings = shownBy(view);
    view.setRings({});
    view.paintAll();
    QVERIFY(!difference(withRings, shownBy(view)).isEmpty());
}

void DiagramViewPaintingTest::focusFramesComeAndGo()
{
    View view;
    view.activateWindow();
    view.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    QVERIFY(view.hasFocus());
    view.setReadoutShown(false);
    view.setZoomFactor(4.0);
    view.setCentre(view.xy(GamutVertex::Red));
    view.setSelectedVertex(std::nullopt);
    view.update();
    const QPoint edge = view.viewport().plot().topLeft().toPoint() + QPoint(1, 40);
    QRgb framed = 0;
    const auto isFramed = [&](bool wanted) {
        view.paintAll();
        const QImage shown = shownBy(view);
        const QRgb color = shown.pixel(edge * view.devicePixelRatioF());
        framed = framed ? framed : color; // it is there at first
        return (color == framed) == wanted && difference(shown, view.grab().toImage()).isEmpty();
    };
    QVERIFY(isFramed(true));
    QTest::keyClick(&view, Qt::Key_R);
    QVERIFY(isFramed(false));
    QTest::keyClick(&view, Qt::Key_Escape);
    QVERIFY(isFramed(true));
    const QPointF red = view.at(GamutVertex::Red);
    view.press(red);
    view.release(red);
    QVERIFY(isFramed(false));
    // The handle that has the focus leaves what is seen, and comes back.
    const QPointF xy = view.xy(GamutVertex::Red);
    QVERIFY(view.moveVertex(GamutVertex::Red, QPointF(0.45, 0.3)));
    QVERIFY(!view.viewport().plot().contains(view.at(GamutVertex::Red)));
    QVERIFY(isFramed(true));
    QVERIFY(view.moveVertex(GamutVertex::Red, xy));
    QVERIFY(isFramed(false));
    // So it does in a drag, until that is taken back.
    view.press(red);
    view.drag(red + QPointF(-40.0, 0.0));
    QVERIFY(isFramed(false));
    view.drag(QPointF(-300.0, red.y()));
    QVERIFY(!view.viewport().plot().contains(view.at(GamutVertex::Red)));
    QVERIFY(isFramed(true));
    QTest::keyClick(&view, Qt::Key_Escape);
    QVERIFY(isFramed(false));
    view.release(red);
}

void DiagramViewPaintingTest::dragPaintsTheScaleNoMore()
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

void DiagramViewPaintingTest::hiddenViewsKeepNoPictures()
{
    View view;
    view.setFocusPolicy(Qt::NoFocus); // or else its frame might come with the second showing
    view.clearFocus();
    view.paintAll();
    view.hover(view.at(GamutVertex::Red));
    view.paintAll();
    QVERIFY(!view.d->lines.isNull());
    QRegion filled;
    view.d->painter->colors(view.devicePixelRatioF(), &filled);
    view.d->painter->colors(view.devicePixelRatioF(), &filled);
    QVERIFY(filled.isEmpty()); // as the picture of the colours was kept
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view, &leave);
    const QImage before = view.grab().toImage();
    view.hide();
    QVERIFY(view.d->lines.isNull());
    const QRect whole = view.d->painter->colors(view.devicePixelRatioF(), &filled).rect();
    QCOMPARE(filled, QRegion(whole));
    view.hide();
    view.show();
    view.paintAll();
    QCOMPARE(difference(view.grab().toImage(), before), QRect());
}

void DiagramViewPaintingTest::followsThePalette()
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

void DiagramViewPaintingTest::imagesAreSharpAtEveryRatio_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.5") << 1.5;
    QTest::newRow("2") << 2.0;
}

void DiagramViewPaintingTest::imagesAreSharpAtEveryRatio()
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

void DiagramViewPaintingTest::imagesOfNoRatioAreNull()
{
    View view;
    for (const double ratio : {0.0, -1.0, 1e-9, 0.01, std::numeric_limits<double>::quiet_NaN()}) {
        QVERIFY(view.toImage(QSize(100, 100), ratio).isNull());
    }
    QCOMPARE(view.toImage(QSize(100, 100), 0.5).size(), QSize(100, 100));
}

void DiagramViewPaintingTest::imagesShowNoHands()
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

void DiagramViewPaintingTest::cursorsSayWhatAHandDoes()
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

void DiagramViewPaintingTest::hoverFollowsWhatChanges()
{
    View view;
    const auto isOnRed = [&view](Qt::CursorShape shape) {
        const auto &handles = view.d->overlay.handles;
        return view.cursor().shape() == shape && view.d->hovered == GamutVertex::Red
            && std::count_if(handles.cbegin(), handles.cend(),
                   [](const DiagramOverlay::Handle &handle) { return handle.isHovered; })
            == 1;
    };
    const auto isOnNone = [&view] {
        const auto &handles = view.d->overlay.handles;
        return view.cursor().shape() == Qt::CrossCursor && !view.d->hovered
            && std::none_of(handles.cbegin(), handles.cend(),
                [](const DiagramOverlay::Handle &handle) { return handle.isHovered; });
    };
    // The pointer rests where red is.
    view.hover(view.at(GamutVertex::Red));
    QVERIFY(isOnRed(Qt::SizeAllCursor));
    Model::Targets moved = Model::rec709().getTargets();
    moved.red = Model::Target::fromYxy(moved.red.Y, 0.55, 0.40);
    view.takePainted();
    view.setTarget(Model::ColorGamut("moved", moved));
    QVERIFY(isOnNone());
    const QImage left = view.grab().toImage();
    view.hover(view.at(QPointF(0.45, 0.45)));
    view.hover(view.at(xyOf(Model::rec709().getTargets().red)));
    QCOMPARE(difference(view.grab().toImage(), left), QRect());
    view.setTarget(Model::rec709());
    QVERIFY(isOnRed(Qt::SizeAllCursor));
    auto rules = std::make_shared<StandardTargetRules>();
    rules->setLocksPrimaries(true);
    view.setRules(rules);
    QVERIFY(isOnRed(Qt::ForbiddenCursor));
    view.setRules(nullptr);
    QVERIFY(isOnRed(Qt::SizeAllCursor));
    view.setReadOnly(true);
    QVERIFY(isOnNone());
    view.setReadOnly(false);
    QVERIFY(isOnRed(Qt::SizeAllCursor));
    view.clearGamuts(GamutRole::Target);
    QVERIFY(isOnNone());
}

QTEST_MAIN(DiagramViewPaintingTest)
#include "diagramviewpaintingtest.moc"
