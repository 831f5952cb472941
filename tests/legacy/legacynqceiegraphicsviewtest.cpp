// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/nqceiegraphicsview.h>

#include <widgets/innerviewtests.h>

#include <type_traits>

using Tests = InnerViewTests<NQCEIEGraphicsView>;

class LegacyNQCEIEGraphicsViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void construction() { Tests::construction(); }
    void metaObject() { Tests::metaObject("NQCEIEGraphicsView"); }
    void cursorUntilThePointerLeaves() { Tests::cursorUntilThePointerLeaves(); }
    void scrollBarsGoAtOnce() { Tests::scrollBarsGoAtOnce(); }
    void sceneRectangleIsTheScenes();
};

void LegacyNQCEIEGraphicsViewTest::sceneRectangleIsTheScenes()
{
    // No override stands between the view and its base class.
    static_assert(std::is_same_v<decltype(&NQCEIEGraphicsView::showEvent), decltype(&QGraphicsView::showEvent)>);
    static_assert(std::is_same_v<decltype(&NQCEIEGraphicsView::resizeEvent), decltype(&QGraphicsView::resizeEvent)>);

    QGraphicsScene scene;
    scene.setSceneRect(0, 0, 512, 400);
    NQCEIEGraphicsView view(nullptr);
    view.setScene(&scene);
    view.resize(300, 200);
    view.show();
    view.resize(600, 500);
    QCOMPARE(view.sceneRect(), QRectF(0, 0, 512, 400));
    scene.setSceneRect(0, 0, 700, 600);
    QCOMPARE(view.sceneRect(), QRectF(0, 0, 700, 600));
}

QTEST_MAIN(LegacyNQCEIEGraphicsViewTest)
#include "legacynqceiegraphicsviewtest.moc"
