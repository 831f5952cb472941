// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// A minimal host of the legacy chart: drag the target's primaries with the mouse.
#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/widgets/translations.h>

#include <QApplication>
#include <QMainWindow>
#include <QStatusBar>

using Model::Target;

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    ceiechart::installTranslations();

    QMainWindow window;
    auto *chart = new CEIEGraphicsView(&window, DrawCEIPicture::XyDiagram);
    window.setCentralWidget(chart);

    // Otherwise drawing the handles resets the white point.
    chart->setDrawColorTPoint(false);
    chart->setImageWidth(640);
    chart->setImageHeight(640);

    const Model::ColorGamutInfo original{Target::fromYxy(240, 0.700, 0.299), Target::fromYxy(634, 0.189, 0.718),
        Target::fromYxy(126, 0.133, 0.075), Target::fromYxy(1000, 0.2829, 0.2971)};
    const Model::ColorGamutInfo target{Target::fromYxy(181, 0.640, 0.330), Target::fromYxy(608, 0.300, 0.600),
        Target::fromYxy(61, 0.150, 0.060), Target::fromYxy(850, 0.3127, 0.3290)};
    chart->setColorGamut(target, original);

    QObject::connect(
        chart, &CEIEGraphicsView::signal_targetInfoChanged, &window, [&window](const TargetInfoChangedEventArgs &info) {
            window.statusBar()->showMessage(
                QStringLiteral("Target gamut: white at %1 K%2")
                    .arg(info.colourTemperature())
                    .arg(info.isReasonableData() ? QString() : QStringLiteral(", out of reach")));
        });

    window.statusBar()->showMessage(QStringLiteral("Drag a corner of the target gamut"));
    window.setWindowTitle(QStringLiteral("Chromaticity chart"));
    window.show();
    return QApplication::exec();
}
