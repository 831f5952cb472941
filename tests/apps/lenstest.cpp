// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramfixture.h"

#include "editing/targetsession.h"
#include "window/lens.h"

#include <ceiechart/diagram/diagrampainter.h>

#include <QAction>
#include <QtTest>

using namespace gamutviewer;
using namespace diagramfixture;

class LensTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lensMovesTheWhite();
    void lensFollowsTheWhite();
    void lensShowsTheRingsAfterAnEdit();
    void ringsMoveWithTheWhite();
    void lensMakesRoom();
    void fingersWorkInTheLens();
};

void LensTest::lensMovesTheWhite()
{
    WindowFixture f;
    f.window->session()->setSnaps(false);
    DocumentView *lens = f.window->diagramPage()->lens()->view();
    DiagramPointer pointer(lens);
    const QPointF white = f.xy(Vertex::White);
    const QPointF to = white + QPointF(0.004, 0.002);
    pointer.drag(white, to);
    // Far finer than in the diagram that it lies on.
    QVERIFY(pointer.pixel() < 0.2 * DiagramPointer(view(f)).pixel());
    QVERIFY(qAbs(f.xy(Vertex::White).x() - to.x()) < 2.0 * pointer.pixel() + 1e-4);
    QCOMPARE(f.document().history()->count(), 1);
    QCOMPARE(view(f)->gamut(GamutRole::Target)->getTargets().white.x, f.xy(Vertex::White).x());
    lens->setFocus();
    QTest::keyClick(lens, Qt::Key_W);
    const QPointF before = f.xy(Vertex::White);
    QTest::keyClick(lens, Qt::Key_Up);
    QVERIFY(f.xy(Vertex::White).y() > before.y());
}

void LensTest::lensFollowsTheWhite()
{
    WindowFixture f;
    const DocumentView *lens = f.window->diagramPage()->lens()->view();
    for (const double kelvin : {7000.0, 3500.0}) {
        QVERIFY(f.window->session()->setWhiteTemperature(kelvin, 0.0));
        QVERIFY(lens->viewport().plot().contains(lens->viewport().toPosition(f.xy(Vertex::White))));
        QVERIFY(lens->accessibleDescription().contains(QStringLiteral("%1 K").arg(kelvin)));
    }
}

void LensTest::lensShowsTheRingsAfterAnEdit()
{
    WindowFixture f;
    const DocumentView *lens = f.window->diagramPage()->lens()->view();
    // Near enough for the white itself to be seen still.
    const QPointF white = f.xy(Vertex::White) + QPointF(0.004, 0.004);
    QVERIFY(lens->viewport().plot().contains(lens->viewport().toPosition(white)));
    QVERIFY(f.window->session()->setChromaticity(Vertex::White, white));
    const QPolygonF ring = ceiechart::DiagramPainter::ring(lens->viewport(), f.xy(Vertex::White), 0.005);
    QVERIFY(lens->viewport().plot().contains(ring.boundingRect()));
}

void LensTest::ringsMoveWithTheWhite()
{
    WindowFixture f;
    f.window->session()->setSnaps(false);
    DocumentView *lens = f.window->diagramPage()->lens()->view();
    DiagramPointer pointer(lens);
    const QPointF white = f.xy(Vertex::White);
    pointer.press(white);
    pointer.move(white + QPointF(0.004, 0.002));
    QVERIFY(f.xy(Vertex::White) != white);
    for (const DocumentView *shown :
        {static_cast<const DocumentView *>(lens), static_cast<const DocumentView *>(view(f))}) {
        QCOMPARE(shown->content().rings.size(), 1);
        QCOMPARE(shown->content().rings.first().xy, f.xy(Vertex::White));
    }
    QTest::keyClick(lens, Qt::Key_Escape);
    QCOMPARE(lens->content().rings.first().xy, white);
}

void LensTest::lensMakesRoom()
{
    WindowFixture f;
    Lens *lens = f.window->diagramPage()->lens();
    DiagramPointer pointer(view(f));
    pointer.press(f.xy(Vertex::Green));
    pointer.move(QPointF(0.45, 0.75));
    QVERIFY(!lens->isVisible());
    pointer.release(QPointF(0.45, 0.75));
    QVERIFY(lens->isVisible());
    f.window->diagramPage()->lensAction()->trigger();
    QVERIFY(!lens->isVisible());
    pointer.drag(f.xy(Vertex::Green), QPointF(0.3, 0.6));
    QVERIFY(!lens->isVisible());
}

void LensTest::fingersWorkInTheLens()
{
    WindowFixture f;
    f.window->session()->setSnaps(false);
    auto *device = QTest::createTouchDevice();
    DocumentView *lens = f.window->diagramPage()->lens()->view();
    const double zoom = lens->zoomFactor();
    const double zoomOfPage = view(f)->zoomFactor();
    const QPointF white = f.xy(Vertex::White);
    const QPoint at = lens->viewport().toPosition(white).toPoint();
    const QPoint way(20, -14);
    QTest::touchEvent(lens, device).press(0, at, lens);
    QTest::touchEvent(lens, device).move(0, at + way, lens);
    QTest::touchEvent(lens, device).release(0, at + way, lens);
    QVERIFY(f.xy(Vertex::White).x() > white.x() && f.xy(Vertex::White).y() > white.y());
    QCOMPARE(f.document().history()->count(), 1);
    const QPointF moved = f.xy(Vertex::White);
    const QPoint middle = lens->viewport().plot().center().toPoint();
    QTest::touchEvent(lens, device).press(0, middle - QPoint(20, 0), lens).press(1, middle + QPoint(20, 0), lens);
    QTest::touchEvent(lens, device).move(0, middle - QPoint(30, 0), lens).move(1, middle + QPoint(30, 0), lens);
    QTest::touchEvent(lens, device).move(0, middle - QPoint(40, 0), lens).move(1, middle + QPoint(40, 0), lens);
    QTest::touchEvent(lens, device).release(0, middle - QPoint(40, 0), lens).release(1, middle + QPoint(40, 0), lens);
    QVERIFY(lens->zoomFactor() > 1.5 * zoom);
    QCOMPARE(view(f)->zoomFactor(), zoomOfPage);
    QCOMPARE(f.xy(Vertex::White), moved);
}

QTEST_MAIN(LensTest)
#include "lenstest.moc"
