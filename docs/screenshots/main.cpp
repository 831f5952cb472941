// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Pictures for the documents: the charts of both generations and the renderer's own picture, as a host gets them.
//
//     screenshots FOLDER          writes them
//     screenshots --screen FILE   writes what is on the screen
#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/diagram/diagramview.h>
#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/render/drawceipicture.h>
#include <ceiechart/widgets/ceiegraphicsview.h>
#include <ceiechart/widgets/translations.h>

#include <QApplication>
#include <QPixmap>
#include <QScreen>

#include <cstdio>
#include <memory>

using Model::Target;

namespace {

const Model::ColorGamut wall("LED wall",
    {Target::fromYxy(240, 0.700, 0.299), Target::fromYxy(634, 0.189, 0.718), Target::fromYxy(126, 0.133, 0.075),
        Target::fromYxy(1000, 0.2829, 0.2971)});

bool save(const QImage &picture, const QString &file)
{
    if (!picture.isNull() && picture.convertToFormat(QImage::Format_RGB32).save(file, "PNG", 0)) {
        return true;
    }
    std::fprintf(stderr, "screenshots: cannot write %s\n", qPrintable(file));
    return false;
}

bool grab(QWidget &window, const QString &file)
{
    window.show();
    QApplication::processEvents();
    const bool saved = save(window.grab().toImage(), file);
    window.hide();
    return saved;
}

bool currentChart(const QString &file)
{
    NewCEIE::CEIEGraphicsView chart(nullptr);
    chart.setImageWidth(672);
    chart.setImageHeight(728);
    chart.setColorGamut(Model::dciP3D65(), wall, {Model::rec709(), Model::rec2020()});
    return grab(chart, file);
}

bool diagram(const QString &file)
{
    ceiechart::DiagramView view;
    view.resize(760, 780);
    view.setOriginal(wall);
    view.setStandards({Model::rec709(), Model::rec2020()});
    view.setTarget(Model::dciP3D65());
    return grab(view, file);
}

bool legacyChart(DrawCEIPicture::CEIEType type, const QString &file)
{
    const Model::ColorGamutInfo original{
        wall.getTargets().red, wall.getTargets().green, wall.getTargets().blue, wall.getTargets().white};
    const Model::ColorGamut p3 = Model::dciP3D65();
    const Model::Targets &t = p3.getTargets();
    CEIEGraphicsView chart(nullptr, type);
    chart.setImageWidth(640);
    chart.setImageHeight(640);
    chart.setDrawColorTPoint(false);
    chart.setColorGamut({t.red, t.green, t.blue, t.white}, original);
    return grab(chart, file);
}

//! All colours of the diagram: clipped to the spectral locus.
bool bareDiagram(const QString &file)
{
    NewCEIE::DrawCEIPicture renderer(nullptr);
    const QSize size(480, 480);
    const auto draw = [&](const QPolygonF &clip) {
        return std::unique_ptr<QImage>(
            renderer.drawCEIPicture(size.width(), size.height(), true, {}, {}, clip, false, QString()));
    };
    const auto geometry = ceiechart::chartGeometry(ceiechart::ChartKind::CurrentXy, size.width(), size.height());
    QPolygonF locus;
    for (const QPointF &point : CEIAtlasValue().spectrumLocus) {
        locus.append(geometry.toPixel(point));
    }
    return save(*draw(locus), file);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("--screen")) {
        return save(QApplication::primaryScreen()->grabWindow(0).toImage(), arguments.at(2)) ? 0 : 1;
    }
    if (arguments.size() != 2) {
        std::fputs("usage: screenshots FOLDER | screenshots --screen FILE\n", stderr);
        return 2;
    }
    ceiechart::installTranslations(QLocale(QLocale::English));
    const QString folder = arguments.at(1) + QLatin1Char('/');
    return currentChart(folder + QStringLiteral("chart.png"))
            && legacyChart(DrawCEIPicture::XyDiagram, folder + QStringLiteral("legacy-xy.png"))
            && legacyChart(DrawCEIPicture::UvDiagram, folder + QStringLiteral("legacy-uv.png"))
            && diagram(folder + QStringLiteral("diagram.png"))
            && bareDiagram(folder + QStringLiteral("picture-layers.png"))
        ? 0
        : 1;
}
