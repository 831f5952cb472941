// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// What single drawings of the gamut form take in a program that has drawn nothing before: processor time, and how often
// the system has to provide a page of memory.
#include "samplegamuts.h"

#include <ceiechart/render/drawceipicture.h>
#include <ceiechart/scene/ceiegraphicsscene.h>

#include <QApplication>
#include <QImage>

#include <cstdio>
#include <ctime>
#include <memory>

#include <sys/resource.h>

namespace {

struct Usage {
    double milliseconds = 0.0; // of the processor
    long pageFaults = 0;
};

Usage usage()
{
    rusage used{};
    ::getrusage(RUSAGE_SELF, &used);
    return {double(std::clock()) * 1000.0 / CLOCKS_PER_SEC, used.ru_minflt};
}

template <typename Drawing>
void measure(const char *name, Drawing drawing)
{
    const Usage before = usage();
    drawing();
    const Usage after = usage();
    std::printf("%-40s %9.1f ms %9ld page faults\n", name, after.milliseconds - before.milliseconds,
        after.pageFaults - before.pageFaults);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int width = arguments.size() > 1 ? arguments.at(1).toInt() : 3840;
    const int height = arguments.size() > 2 ? arguments.at(2).toInt() : 2160;
    if (arguments.size() > 3 || width < 1 || height < 1) {
        std::puts("drawonce [width] [height]");
        return 2;
    }
    const QSize size(width, height);
    const Gamuts gamuts;
    // What a program needs once, such as fonts and tables, is not what is measured.
    NewCEIE::DrawCEIPicture renderer(nullptr);
    const auto draw = [&](const QSize &which) {
        return std::unique_ptr<QImage>(renderer.drawCEIPicture(which.width(), which.height(), true, gamuts.triangles,
            gamuts.standards, gamuts.clip(which), false, QString()));
    };
    measure("small picture, first of the program", [&] { draw(QSize(100, 100)); });
    measure("new memory, written once", [&] { QImage(size, QImage::Format_ARGB32).fill(Qt::black); });
    for (const char *name : {"picture by a renderer, first", "picture by a renderer, next"}) {
        measure(name, [&] { draw(size); });
    }
    NewCEIE::CEIEGraphicsScene scene(gamuts.triangles);
    scene.setImageSize(QSize(100, 100));
    scene.setGamutsKept(true);
    scene.setLsColorTriangleObject(gamuts.triangles, gamuts.standards, gamuts.triangles.first().trianglePoint(),
        gamuts.triangles.last().trianglePoint(), false, QString());
    measure("picture of a scene, first", [&] { scene.setImageSize(size); });
    measure("picture of a scene, next", [&] {
        scene.setLsColorTriangleObject(gamuts.triangles, gamuts.standards, gamuts.triangles.first().trianglePoint(),
            gamuts.triangles.last().trianglePoint(), false, QString());
    });
    return 0;
}
