// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "ratioreporter.h"
#include "repeatedbenchmark.h"
#include "samplegamuts.h"

#include <ceiechart/diagram/horseshoefill_p.h>
#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/render/drawceipicture.h>
#include <ceiechart/scene/ceiegraphicsscene.h>
#include <reference/plainrenderer.h>

#include <QApplication>
#include <QGraphicsView>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <memory>

namespace {

const CEIAtlasValue &atlas()
{
    static const CEIAtlasValue values;
    return values;
}

QImage blank(const QSize &size)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(QColor(23, 23, 26));
    return picture;
}

void plainFill(benchmark::State &state, QSize size)
{
    reference::Mapping mapping;
    mapping.set(plotOf(size), chroma);
    QImage picture = blank(size);
    for (auto _ : state) {
        reference::fillPlain(picture, size.width(), size.height(), mapping, atlas().colorSystem, 1.0);
        benchmark::DoNotOptimize(picture.bits());
    }
}

void kernelFill(benchmark::State &state, QSize size, const ceiechart::FillKernel *kernel)
{
    ceiechart::DiagramGeometry geometry;
    geometry.set(plotOf(size), chroma);
    QImage picture = blank(size);
    for (auto _ : state) {
        ceiechart::fillHorseshoe(picture, size.width(), size.height(), {geometry, atlas().colorSystem, 1.0}, *kernel);
        benchmark::DoNotOptimize(picture.bits());
    }
}

void plainGamutForm(benchmark::State &state, QSize size)
{
    const Gamuts gamuts;
    reference::PlainRenderer renderer;
    for (auto _ : state) {
        const QImage picture = renderer.drawCEIPicture(
            size.width(), size.height(), true, gamuts.triangles, gamuts.standards, gamuts.clip(size), QString());
        benchmark::DoNotOptimize(picture.constBits());
    }
}

void gamutForm(benchmark::State &state, QSize size)
{
    const Gamuts gamuts;
    NewCEIE::DrawCEIPicture renderer(nullptr);
    for (auto _ : state) {
        const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(size.width(), size.height(), true,
            gamuts.triangles, gamuts.standards, gamuts.clip(size), false, QString()));
        benchmark::DoNotOptimize(picture->constBits());
    }
}

/*! \brief The limit of all forms: a new picture in one colour, as they return one. */
void newPicture(benchmark::State &state, QSize size)
{
    for (auto _ : state) {
        const QImage picture = blank(size);
        benchmark::DoNotOptimize(picture.constBits());
    }
}

void plainUvPicture(benchmark::State &state, QSize size)
{
    // The definition fills the whole picture pixel by pixel and draws it inside the locus.
    DrawCEIPicture renderer(DrawCEIPicture::UvDiagram, nullptr);
    std::unique_ptr<QImage>(renderer.drawCEIEPicture(size.width(), size.height(), true, false, false, {}));
    std::vector<QPointF> uv;
    DrawCEIPicture::xy2uv(atlas().spectrumLocus, uv);
    reference::Mapping mapping;
    mapping.set(QRectF(reference::mulDiv(size.width(), 15, 100), reference::mulDiv(size.height(), 15, 100),
                    reference::mulDiv(size.width(), 85, 100), reference::mulDiv(size.height(), 85, 100)),
        QRectF(0.0, 0.0, double(0.65F), double(0.68F)));
    CEIAtlasValue::TColorSystem colors{0.5222F, 0.5222F, 0.0111F, 0.7888F, 0.1888F, 0.1555F, 0.2333F, 0.4777F};
    for (auto _ : state) {
        QImage picture(size, QImage::Format_ARGB32);
        QPainter painter(&picture);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.fillRect(picture.rect(), QColor(0x32, 0x32, 0x38));
        painter.save();
        QPolygonF locus;
        for (const QPointF &point : uv) {
            locus.append(mapping.toWholePixel(point));
        }
        QPainterPath path;
        path.addPolygon(locus);
        painter.setClipPath(path, Qt::ReplaceClip);
        painter.drawPath(path);
        QImage colored(size, QImage::Format_ARGB32);
        colored.fill(QColor(0x32, 0x32, 0x38));
        reference::fillPlain(colored, size.width(), size.height(), mapping, colors, 1.0);
        painter.drawImage(picture.rect(), colored);
        painter.restore();
        QFont font(QStringLiteral("Lexend Deca,Microsoft YaHei"));
        font.setWeight(QFont::DemiBold);
        font.setPixelSize(12);
        renderer.painterCoordinate(Qt::DashLine, font, painter);
        benchmark::DoNotOptimize(picture.constBits());
    }
}

void uvPicture(benchmark::State &state, QSize size)
{
    DrawCEIPicture renderer(DrawCEIPicture::UvDiagram, nullptr);
    for (auto _ : state) {
        const std::unique_ptr<QImage> picture(
            renderer.drawCEIEPicture(size.width(), size.height(), true, false, false, {}));
        benchmark::DoNotOptimize(picture->constBits());
    }
}

/*! \brief A chart of \a size in a visible view, repainted as for a drag or a move of the mouse. */
template <typename Scene>
void repaintScene(benchmark::State &state, Scene &scene, const QSize &size)
{
    scene.setImageWidth(size.width());
    scene.setImageHeight(size.height());
    QGraphicsView view(&scene);
    view.setFrameShape(QFrame::NoFrame);
    view.resize(size);
    QImage screen(size, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&screen);
        scene.render(&painter, QRectF(QPointF(), size), QRectF(QPointF(), size));
        benchmark::DoNotOptimize(screen.constBits());
    }
}

void repaintReadyPixmap(benchmark::State &state, QSize size)
{
    const QPixmap ready = QPixmap::fromImage(blank(size));
    QGraphicsScene scene;
    scene.addPixmap(ready);
    QImage screen(size, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&screen);
        scene.render(&painter, QRectF(QPointF(), size), QRectF(QPointF(), size));
        benchmark::DoNotOptimize(screen.constBits());
    }
}

void repaintChart(benchmark::State &state, QSize size)
{
    NewCEIE::CEIEGraphicsScene scene(Gamuts().triangles);
    repaintScene(state, scene, size);
}

void repaintLegacyChart(benchmark::State &state, QSize size)
{
    CEIEGraphicsScene scene(DrawCEIPicture::XyDiagram, Gamuts().triangles);
    repaintScene(state, scene, size);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    for (const QSize &size : {QSize(800, 800), QSize(1920, 1080), QSize(3840, 2160)}) {
        const std::string dimensions = std::to_string(size.width()) + "x" + std::to_string(size.height());
        addRepeated("fill " + dimensions + "/plain", plainFill, size);
        for (int i = 0; i < ceiechart::fillKernelCount; ++i) {
            if (ceiechart::fillKernels[i].supported()) {
                addRepeated("fill " + dimensions + "/" + ceiechart::fillKernels[i].name, kernelFill, size,
                    &ceiechart::fillKernels[i]);
            }
        }
        addRepeated("gamut form " + dimensions + "/plain", plainGamutForm, size);
        addRepeated("gamut form " + dimensions + "/library", gamutForm, size);
        addRepeated("gamut form " + dimensions + "/new picture", newPicture, size);
    }
    const QSize fullHd(1920, 1080);
    addRepeated("u'v' picture 1920x1080/plain", plainUvPicture, fullHd);
    addRepeated("u'v' picture 1920x1080/library", uvPicture, fullHd);
    addRepeated("repaint 1920x1080/plain", repaintReadyPixmap, fullHd);
    addRepeated("repaint 1920x1080/chart", repaintChart, fullHd);
    addRepeated("repaint 1920x1080/legacy chart", repaintLegacyChart, fullHd);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
