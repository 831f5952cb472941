// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Both generations and the diagram in one source file: renderers, charts, and a form made by Qt Designer.
#include "ui_charts.h"

#include <ceiechart/ceiechart_version.h>
#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/render/drawceipicture.h>
#include <ceiechart/scene/ceiegraphicsscene.h>
#include <ceiechart/widgets/translations.h>

#include <QApplication>
#include <QImage>

#include <cstdio>
#include <memory>

namespace {

int failures = 0;

void check(bool holds, const char *what)
{
    if (!holds) {
        std::printf("failed: %s\n", what);
        ++failures;
    }
}

bool isDrawn(const QImage &picture)
{
    return picture.size() == QSize(100, 100) && picture.pixelColor(40, 60) != picture.pixelColor(0, 0);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    check(CEIECHART_VERSION >= 0x010000, "version");
    check(ceiechart::installTranslations(QLocale(QLocale::English)), "translation");

    NewCEIE::DrawCEIPicture current(nullptr);
    check(isDrawn(*std::unique_ptr<QImage>(current.drawCEIPicture(100, 100, true, false, false, {}))), "x, y picture");
    DrawCEIPicture legacy(DrawCEIPicture::UvDiagram, nullptr);
    check(
        isDrawn(*std::unique_ptr<QImage>(legacy.drawCEIEPicture(100, 100, true, false, false, {}))), "u', v' picture");

    QWidget window;
    Ui::Charts form;
    form.setupUi(&window);
    check(form.chart->imageSize() == QSize(300, 320) && !form.chart->isShowStandard() && form.chart->isGamutsKept()
            && form.chart->graphLineColor() == QColor(10, 20, 30) && form.chart->legendAlignament() == Qt::AlignRight
            && !form.chart->isRGBPointEnable(),
        "current chart as the form has it");
    check(form.xyChart->toImage().size() == QSize(200, 210) && form.xyChart->isLightPicture(),
        "legacy chart as the form has it");
    check(form.legend->showTargetText() == QLatin1String("As set") && !form.legend->isCommonGamutVisible(),
        "legend as the form has it");
    form.chart->setImageWidth(672);
    form.chart->setImageHeight(728);
    form.chart->setColorGamut(Model::dciP3D65(), Model::rec2020(), {Model::rec709()});
    check(form.chart->lsColorTriangleObject().size() == 2, "current list of gamuts");
    check(qobject_cast<NewCEIE::CEIEGraphicsScene *>(form.chart->view()->scene()) != nullptr, "current scene");

    check(form.diagramView->diagram() == Model::Diagram::Cie1976 && form.diagramView->zoomFactor() == 2.0
            && form.diagramView->isReadOnly(),
        "diagram view as the form has it");
    form.diagramView->setTarget(Model::dciP3D65());
    check(!form.diagramView->toImage(QSize(200, 200)).isNull(), "picture of the diagram view");
    form.diagramView->setReadOnly(false);
    check(form.diagramView->moveVertex(ceiechart::GamutVertex::White, QPointF(0.31, 0.33)), "edit of the diagram view");

    const Model::ColorGamut published = Model::dciP3D65();
    const Model::Targets &p3 = published.getTargets();
    const Model::ColorGamutInfo gamut{p3.red, p3.green, p3.blue, p3.white};
    form.xyChart->setImageWidth(400);
    form.xyChart->setColorGamut(gamut, gamut);
    form.uvChart->setColorGamut(gamut, gamut);
    check(form.xyChart->lsColorTriangleObject().size() == 2, "legacy list of gamuts");
    check(qobject_cast<CEIEGraphicsScene *>(form.uvChart->view()->scene()) != nullptr, "legacy scene");
    return failures;
}
