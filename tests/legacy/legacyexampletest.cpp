// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <widgets/exampleprogram.h>
#include <widgets/legendtests.h>

// The example is the code under test.
#define main exampleMain
#include "../../examples/legacy/main.cpp"
#undef main

class LegacyExampleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsItsGamuts();
};

static void inspect()
{
    auto *window = qobject_cast<QMainWindow *>(ExampleProgram::window());
    QVERIFY(window);
    auto *chart = window->findChild<CEIEGraphicsView *>();
    QVERIFY(chart && chart->isVisible());
    QCOMPARE(chart->lsColorTriangleObject().size(), 2);
    QCOMPARE(legendCaptions(*chart->getLegend()).at(OriginalGamut), QStringLiteral("Original gamut"));

    const QImage picture = chart->view()->grab().toImage();
    int colourful = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            colourful += picture.pixelColor(x, y).saturation() > 200 ? 1 : 0;
        }
    }
    QVERIFY2(colourful > 10000, qPrintable(QString::number(colourful)));

    Q_EMIT chart->signal_targetInfoChanged(TargetInfoChangedEventArgs());
    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("out of reach")));
}

void LegacyExampleTest::showsItsGamuts()
{
    QVERIFY(ExampleProgram::run(&exampleMain, &inspect));
}

QTEST_APPLESS_MAIN(LegacyExampleTest)
#include "legacyexampletest.moc"
