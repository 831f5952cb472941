// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "exampleprogram.h"
#include "legendtests.h"

// The example is the code under test.
#define main exampleMain
#include "../../examples/chart/main.cpp"
#undef main

class ChartExampleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsItsGamuts();
};

static void inspect()
{
    const QWidget *window = ExampleProgram::window();
    QVERIFY(window);
    auto *chart = window->findChild<NewCEIE::CEIEGraphicsView *>();
    QVERIFY(chart && chart->isVisible());
    QCOMPARE(chart->lsColorTriangleObject().size(), 3);
    QCOMPARE(legendCaptions(*chart->getLegend()).at(OriginalGamut), QStringLiteral("Original gamut"));

    // What the target and the display have in common is coloured; green prevails near the green primary.
    const QImage picture = chart->view()->grab().toImage();
    const auto *scene = chart->view()->scene();
    QVERIFY(picture.width() >= scene->width() && picture.height() >= scene->height());
    int colourful = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            colourful += picture.pixelColor(x, y).saturation() > 200 ? 1 : 0;
        }
    }
    QVERIFY2(colourful > 10000, qPrintable(QString::number(colourful)));

    const auto labels = window->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(labels.size(), 1);
    QCOMPARE(labels.constFirst()->text(), QStringLiteral("Target gamut: Rec.709"));
}

void ChartExampleTest::showsItsGamuts()
{
    QVERIFY(ExampleProgram::run(&exampleMain, &inspect));
}

QTEST_APPLESS_MAIN(ChartExampleTest)
#include "chartexampletest.moc"
