// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// A host with one chart to edit. Writes a line for each signal that it receives; ends with its standard input.
#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/legacy/ceiegraphicsview.h>

#include <gamutmodel/colorgamut.h>

#include <QApplication>
#include <QSocketNotifier>

#include <cstdio>
#include <unistd.h>

namespace {

Model::ColorGamutInfo gamut(const Model::ColorGamut &source)
{
    const Model::Targets &targets = source.getTargets();
    return {targets.red, targets.green, targets.blue, targets.white};
}

void printRed(const char *what, const QPointF &red)
{
    std::printf("%s %.17g %.17g\n", what, red.x(), red.y());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    CEIEGraphicsView view(nullptr, static_cast<DrawCEIPicture::CEIEType>(0));
    view.setImageWidth(600);
    view.setImageHeight(600);
    view.setColorGamut(gamut(Model::rec709()), gamut(Model::rec2020()));

    // The white point's temperature is told when its handle is drawn: the window is on the screen.
    bool shown = false;
    QObject::connect(&view, &CEIEGraphicsView::signal_colorTempertrueValueChang, &view, [&view, &shown](double kelvin) {
        std::printf("temperature %g\n", kelvin);
        if (!shown && view.isVisible()) {
            shown = true;
            for (const QPointF &corner : {QPointF(0, 0), QPointF(600, 600)}) {
                const QPoint pixel = view.view()->viewport()->mapToGlobal(view.view()->mapFromScene(corner));
                std::printf("corner %d %d\n", pixel.x(), pixel.y());
            }
        }
        std::fflush(stdout);
    });
    QObject::connect(&view, &CEIEGraphicsView::signal_colorGamutValueChanged, &view,
        [](const ColorTriangleObject &triangle) { printRed("value", triangle.trianglePoint().redPos()); });
    QObject::connect(
        &view, &CEIEGraphicsView::signal_targetInfoChanged, &view, [&view](const TargetInfoChangedEventArgs &report) {
            printRed("info", report.colorTriangleObject().trianglePoint().redPos());
            std::printf("pointer %d\n", view.view()->cursor().shape());
            std::fflush(stdout);
        });

    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [] {
        char byte = 0;
        if (read(STDIN_FILENO, &byte, 1) < 1) {
            QApplication::quit();
        }
    });
    view.move(20, 30);
    view.show();
    return QApplication::exec();
}
