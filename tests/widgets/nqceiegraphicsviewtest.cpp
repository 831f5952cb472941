// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/widgets/nqceiegraphicsview.h>

#include "innerviewtests.h"

#include <QScrollBar>

using Tests = InnerViewTests<NewCEIE::NQCEIEGraphicsView>;

class NQCEIEGraphicsViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void construction() { Tests::construction(); }
    void metaObject() { Tests::metaObject("NewCEIE::NQCEIEGraphicsView"); }
    void cursorUntilThePointerLeaves() { Tests::cursorUntilThePointerLeaves(); }
    void scrollBarsGoAtOnce() { Tests::scrollBarsGoAtOnce(); }
    void sceneRectangleFollowsTheSize();
    void sceneKeepsItsRectangle();
    void resizeAloneSetsTheSceneRectangle();
    void showAloneSetsTheSceneRectangle();
    void noScrollBars();
    void resizeIsHandledAlone();
};

void NQCEIEGraphicsViewTest::sceneRectangleFollowsTheSize()
{
    NewCEIE::NQCEIEGraphicsView view(nullptr);
    view.resize(300, 200);
    view.show();
    QCOMPARE(view.sceneRect(), QRectF(0, 0, 300, 200));
    view.resize(250, 400);
    QCOMPARE(view.sceneRect(), QRectF(0, 0, 250, 400));
    view.hide();
    view.setSceneRect(0, 0, 1, 1);
    view.show();
    QCOMPARE(view.sceneRect(), QRectF(0, 0, 250, 400));
}

void NQCEIEGraphicsViewTest::resizeAloneSetsTheSceneRectangle()
{
    NewCEIE::NQCEIEGraphicsView view(nullptr);
    view.resize(120, 90);
    view.setSceneRect(0, 0, 1, 1);
    QResizeEvent event(QSize(5, 5), QSize(6, 6));
    QCoreApplication::sendEvent(view.viewport(), &event);
    QCOMPARE(view.sceneRect(), QRectF(0, 0, 120, 90));
}

void NQCEIEGraphicsViewTest::showAloneSetsTheSceneRectangle()
{
    NewCEIE::NQCEIEGraphicsView view(nullptr);
    view.resize(120, 90);
    QShowEvent event;
    QCoreApplication::sendEvent(&view, &event);
    QCOMPARE(view.sceneRect(), QRectF(0, 0, 120, 90));
}

void NQCEIEGraphicsViewTest::sceneKeepsItsRectangle()
{
    QGraphicsScene scene;
    scene.setSceneRect(0, 0, 672, 728);
    NewCEIE::NQCEIEGraphicsView view(nullptr);
    view.setScene(&scene);
    view.resize(300, 200);
    view.show();
    QCOMPARE(scene.sceneRect(), QRectF(0, 0, 672, 728));
}

void NQCEIEGraphicsViewTest::noScrollBars()
{
    QGraphicsScene scene;
    scene.setSceneRect(0, 0, 672, 728);
    NewCEIE::NQCEIEGraphicsView view(nullptr);
    view.setScene(&scene);
    view.resize(300, 200);
    view.show();
    view.resize(310, 230);
    QCOMPARE(view.viewport()->size(), QSize(310, 230));
    QCOMPARE(view.horizontalScrollBar()->maximum(), view.horizontalScrollBar()->minimum());
    QCOMPARE(view.verticalScrollBar()->maximum(), view.verticalScrollBar()->minimum());
    QCOMPARE(view.mapToScene(0, 0), QPointF(0, 0));
}

// The handler of QGraphicsView would keep the centre where it is, as the anchor asks for.
void NQCEIEGraphicsViewTest::resizeIsHandledAlone()
{
    const auto scrolledAfterAResize = [](QGraphicsView &view) {
        QGraphicsScene scene;
        view.setScene(&scene);
        view.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setSceneRect(0, 0, 300, 200);
        view.scale(3, 3);
        view.resize(300, 200);
        view.show();
        view.horizontalScrollBar()->setValue(100);
        view.verticalScrollBar()->setValue(80);
        view.setResizeAnchor(QGraphicsView::AnchorViewCenter);
        view.resize(280, 190);
        const QPoint scrolled(view.horizontalScrollBar()->value(), view.verticalScrollBar()->value());
        view.setScene(nullptr);
        return scrolled;
    };
    QGraphicsView plain;
    plain.setFrameShape(QFrame::NoFrame);
    QVERIFY(scrolledAfterAResize(plain) != QPoint(100, 80));
    NewCEIE::NQCEIEGraphicsView view(nullptr);
    QCOMPARE(scrolledAfterAResize(view), QPoint(100, 80));
}

QTEST_MAIN(NQCEIEGraphicsViewTest)
#include "nqceiegraphicsviewtest.moc"
