// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <widgets/exampleprogram.h>

#include <cmath>

// The example is the code under test.
#define main exampleMain
#include "../../examples/diagram/main.cpp"
#undef main

class DiagramExampleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isEdited();
};

static void inspect()
{
    QWidget *window = ExampleProgram::window();
    QVERIFY(window);
    auto *view = window->findChild<DiagramView *>();
    QVERIFY(view && view->isVisible());
    QCOMPARE(view->gamuts().size(), 4);
    const QStatusBar *report = window->findChild<QStatusBar *>();
    QVERIFY(report);
    QVERIFY(view->moveVertex(ceiechart::GamutVertex::White, QPointF(0.3457, 0.3585)));
    const auto white = ceiechart::colorTemperature(QPointF(0.3457, 0.3585));
    QVERIFY(white);
    QCOMPARE(report->currentMessage(), QStringLiteral("White at %1 K").arg(std::round(white->kelvin)));
    Q_EMIT view->editRefused(QStringLiteral("Because"));
    QCOMPARE(report->currentMessage(), QStringLiteral("Because"));
}

void DiagramExampleTest::isEdited()
{
    QVERIFY(ExampleProgram::run(&exampleMain, &inspect));
}

QTEST_APPLESS_MAIN(DiagramExampleTest)
#include "diagramexampletest.moc"
