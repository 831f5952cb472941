// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// A minimal host: a chart with the gamuts of an LED display, and the name of the target.
#include <ceiechart/widgets/ceiegraphicsview.h>
#include <ceiechart/widgets/translations.h>

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

using Model::Target;

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    ceiechart::installTranslations();

    QWidget window;
    auto *chart = new NewCEIE::CEIEGraphicsView(&window);
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(chart);
    layout->addWidget(new QLabel(QStringLiteral("Target gamut: Rec.709"), &window));

    // The size at which the chart is not scaled.
    chart->setImageWidth(672);
    chart->setImageHeight(728);

    // The gamut of the display, and the gamut measured after it had warmed up.
    const Model::ColorGamut original("LED wall",
        {Target::fromYxy(240, 0.700, 0.299), Target::fromYxy(634, 0.189, 0.718), Target::fromYxy(126, 0.133, 0.075),
            Target::fromYxy(1000, 0.2829, 0.2971)});
    const Model::ColorGamut measured("LED wall, warm",
        {Target::fromYxy(197, 0.703, 0.296), Target::fromYxy(609, 0.195, 0.714), Target::fromYxy(124, 0.130, 0.080),
            Target::fromYxy(929, 0.2727, 0.3031)});
    chart->setColorGamut(Model::rec709(), original, measured, {Model::rec2020(), Model::dciP3D65()});

    window.setWindowTitle(QStringLiteral("Chromaticity chart"));
    window.show();
    return QApplication::exec();
}
