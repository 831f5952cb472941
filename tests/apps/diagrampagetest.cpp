// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "diagramfixture.h"

#include "panel/layerkey.h"
#include "window/lens.h"

#include <QAction>
#include <QActionGroup>
#include <QButtonGroup>
#include <QtTest>

using namespace gamutviewer;
using namespace diagramfixture;

class DiagramPageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void diagramIsSwitched();
    void viewsOfTheDiagram();
    void colorsAreSwitched();
};

void DiagramPageTest::diagramIsSwitched()
{
    WindowFixture f;
    const QList<QAction *> diagrams = f.window->diagramPage()->diagrams()->actions();
    const Model::Diagram expected[] = {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960};
    QCOMPARE(diagrams.size(), 3);
    for (int i = 2; i >= 0; --i) {
        diagrams.at(i)->trigger();
        QCOMPARE(view(f)->diagram(), expected[i]);
        QCOMPARE(f.window->diagramPage()->lens()->view()->diagram(), expected[i]);
        QVERIFY(diagrams.at(i)->isChecked());
        // The lens covers no handle.
        const QRect lens = f.window->diagramPage()->lens()->geometry();
        for (const Vertex vertex : allVertices) {
            QVERIFY(!lens.contains(view(f)->viewport().toPosition(f.xy(vertex)).toPoint()));
        }
    }
}

void DiagramPageTest::viewsOfTheDiagram()
{
    WindowFixture f;
    const auto trigger = [&](const QString &text) {
        for (QAction *action : f.window->diagramPage()->actions()) {
            if (action->text() == text) {
                action->trigger();
            }
        }
    };
    trigger(QStringLiteral("White"));
    const double white = view(f)->zoomFactor();
    QVERIFY(white > 10.0);
    // There the lens has no more to show.
    QVERIFY(!f.window->diagramPage()->lens()->isVisible());
    trigger(QStringLiteral("Target"));
    QVERIFY(view(f)->zoomFactor() < white);
    trigger(QStringLiteral("White"));
    trigger(QStringLiteral("All"));
    QCOMPARE(view(f)->zoomFactor(), 1.0);
    QVERIFY(f.window->diagramPage()->lens()->isVisible());
}

void DiagramPageTest::colorsAreSwitched()
{
    WindowFixture f;
    using ceiechart::HorseshoeColors;
    for (const HorseshoeColors colors : {HorseshoeColors::Full, HorseshoeColors::None, HorseshoeColors::Dimmed}) {
        QTest::mouseClick(key(f)->colors()->button(int(colors)), Qt::LeftButton);
        QCOMPARE(view(f)->horseshoeColors(), colors);
        QVERIFY(key(f)->colors()->button(int(colors))->isChecked());
    }
}

QTEST_MAIN(DiagramPageTest)
#include "diagrampagetest.moc"
