// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Tests of hosts reach private operations either way: compiled with -fno-access-control, or through these macros.
#include <QApplication>
#include <QFrame>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPolygonF>

#include <memory>
#include <string>
#include <vector>

#ifdef HOST_DEFINES_PRIVATE
#define private public
#define protected public
#endif
#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/render/drawceipicture.h>
#include <ceiechart/scene/ceiegraphicsscene.h>
#include <ceiechart/widgets/ceiegraphicsview.h>

template <typename Scene>
bool works(Scene &scene)
{
    scene.MoveEllipseSign();
    scene.SetFunctionKeyShortcuts();
    return scene.CompareBrightValue() && scene.round(0.12345) == 0.123;
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    NewCEIE::CEIEGraphicsScene current({});
    CEIEGraphicsScene legacy(DrawCEIPicture::XyDiagram, {});
    NewCEIE::DrawCEIPicture renderer(nullptr);
    DrawCEIPicture legacyRenderer(DrawCEIPicture::XyDiagram, nullptr);
    NewCEIE::CEIEGraphicsView view(nullptr);
    view.updateMixInfo(QString());
    return works(current) && works(legacy) && renderer.mulDiv(801, 5, 100) == 40.5
            && legacyRenderer.Clamp(1.7, 0.0, 1.0) == 1.0
        ? 0
        : 1;
}
