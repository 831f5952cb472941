// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// The smallest host of the diagram: drag the target's primaries and its white, zoom, and read what it says.
#include <ceiechart/diagram/diagramview.h>
#include <ceiechart/diagram/whitepoint.h>
#include <ceiechart/widgets/translations.h>

#include <QApplication>
#include <QMainWindow>
#include <QStatusBar>

using ceiechart::DiagramView;
using Model::Target;

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    ceiechart::installTranslations();

    QMainWindow window;
    auto *view = new DiagramView(&window);
    window.setCentralWidget(view);

    // What the display can show, what it is to show, and two standards to compare with.
    view->setOriginal(Model::ColorGamut("LED wall",
        {Target::fromYxy(240, 0.700, 0.299), Target::fromYxy(634, 0.189, 0.718), Target::fromYxy(126, 0.133, 0.075),
            Target::fromYxy(1000, 0.2829, 0.2971)}));
    view->setStandards({Model::rec709(), Model::rec2020()});
    view->setTarget(Model::dciP3D65());

    QObject::connect(view, &DiagramView::targetEdited, &window, [&window](const Model::ColorGamut &target) {
        const auto white = ceiechart::colorTemperature(ceiechart::xyOf(target.getTargets().white));
        window.statusBar()->showMessage(white ? QStringLiteral("White at %1 K").arg(white->kelvin, 0, 'f', 0)
                                              : QStringLiteral("White without a colour temperature"));
    });
    QObject::connect(view, &DiagramView::editRefused, &window,
        [&window](const QString &reason) { window.statusBar()->showMessage(reason); });

    window.statusBar()->showMessage(QStringLiteral("Drag a corner of the target, turn the wheel to zoom"));
    window.setWindowTitle(QStringLiteral("Chromaticity diagram"));
    window.resize(800, 820);
    window.show();
    return QApplication::exec();
}
