// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// How the time of each layer of the gamut form grows with the picture. A layer is drawn again and again over the same
// picture, which holds all that lies below it.
#include "growthreporter.h"
#include "repeatedbenchmark.h"
#include "samplegamuts.h"

#include <ceiechart/render/drawceipicture_p.h>
#include <ceiechart/render/largepaths_p.h>
#include <ceiechart/render/rowlayers_p.h>

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QScopedValueRollback>

#include <cstdio>
#include <cstring>
#include <memory>

#ifdef __GLIBC__
#include <malloc.h>
#endif
#ifdef Q_OS_UNIX
#include <sys/mman.h>
#endif

namespace {

using NewCEIE::DrawCEIPicture;

//! A new picture gets the memory that the last one has left. Otherwise the system clears that of a large one each time.
void keepFreedMemory()
{
#ifdef __GLIBC__
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
#endif
}

//! A drawing of the gamut form that has begun, as drawCEIPicture() begins it, and its layers.
class Drawing {
public:
    explicit Drawing(const QSize &size)
        : m_size(size)
        , m_clip(m_gamuts.clip(size))
    {
        m_renderer.own().showCoordinates = true;
        m_renderer.own().clipPolygon = m_clip;
        m_renderer.d->beginDrawing(
            size.width(), size.height(), ceiechart::chartStyle(DrawCEIPicture::Private::chart).marginPercent);
        m_picture = m_renderer.d->newPicture(m_renderer.pictureGround());
        m_painter.begin(m_picture.get());
        m_painter.setRenderHint(QPainter::Antialiasing, true);
    }

    void ground()
    {
        const ceiechart::AxesStyle axes = m_renderer.own().axesStyle();
        m_renderer.d->drawGround(m_painter, *m_picture, QRect(QPoint(), m_size), m_renderer.pictureGround(), &axes);
    }

    void axes()
    {
        m_renderer.d->uprightGridIsDrawn = true; // with the ground
        m_renderer.painterCoordinate(m_painter);
    }

    void wavelengths() { m_renderer.painterWaveLength(m_painter); }

    void edge()
    {
        m_renderer.paintCEIEdge(m_painter);
        m_renderer.d->loadFirstLocusRow();
    }

    void rowByRow()
    {
        ceiechart::RowLayers layers;
        const QScopedValueRollback<ceiechart::RowLayers *> collecting(m_renderer.d->layers, &layers);
        m_renderer.painterStandard(m_painter, m_gamuts.standards);
        addHorseshoe();
        m_renderer.painterTriangle(m_painter, m_gamuts.triangles);
        layers.draw();
    }

    void outlines()
    {
        ceiechart::RowLayers layers;
        const QScopedValueRollback<ceiechart::RowLayers *> collecting(m_renderer.d->layers, &layers);
        for (const ColorTriangleObject &gamut : m_gamuts.standards + m_gamuts.triangles) {
            m_renderer.own().drawOutline(m_painter, gamut);
        }
        layers.draw();
    }

    void tints()
    {
        ceiechart::RowLayers layers;
        for (const ColorTriangleObject &standard : m_gamuts.standards) {
            QPainterPath path;
            path.addPolygon(m_renderer.own().trianglePolygon(standard));
            ceiechart::fillLargePath(layers, m_painter, path, QColor(255, 255, 255, 17));
        }
        layers.draw();
    }

    void horseshoe()
    {
        ceiechart::RowLayers layers;
        const QScopedValueRollback<ceiechart::RowLayers *> collecting(m_renderer.d->layers, &layers);
        addHorseshoe();
        layers.draw();
    }

    void planckianLocus() { m_renderer.painterBBRLine(m_painter); }

    void all()
    {
        ground();
        axes();
        wavelengths();
        edge();
        rowByRow();
        planckianLocus();
    }

    QImage whole()
    {
        const std::unique_ptr<QImage> picture(m_renderer.drawCEIPicture(
            m_size.width(), m_size.height(), true, m_gamuts.triangles, m_gamuts.standards, m_clip, false, QString()));
        return *picture;
    }

    const QImage &picture() const { return *m_picture; }

private:
    void addHorseshoe()
    {
        m_renderer.d->drawHorseshoeWithin(
            *m_picture, m_clip, ceiechart::ClipOutline::Hidden, m_renderer.d->ground(m_renderer.own().backgroundColor));
    }

    const Gamuts m_gamuts;
    QSize m_size;
    QPolygonF m_clip;
    DrawCEIPicture m_renderer{nullptr};
    std::unique_ptr<QImage> m_picture;
    QPainter m_painter;
};

using Layer = void (Drawing::*)();

void drawLayer(benchmark::State &state, QSize size, Layer layer)
{
    Drawing drawing(size);
    drawing.all();
    for (auto _ : state) {
        (drawing.*layer)();
        benchmark::DoNotOptimize(drawing.picture().constBits());
    }
}

void drawWhole(benchmark::State &state, QSize size)
{
    Drawing drawing(size);
    for (auto _ : state) {
        benchmark::DoNotOptimize(drawing.whole().constBits());
    }
}

void fillMemory(benchmark::State &state, QSize size)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    uchar *bits = picture.bits();
    const auto bytes = std::size_t(picture.sizeInBytes());
    for (auto _ : state) {
        std::memset(bits, 23, bytes);
        benchmark::DoNotOptimize(bits);
        benchmark::ClobberMemory();
    }
}

#ifdef Q_OS_UNIX
//! Has the system provide the memory of a picture, which a drawing pays in addition that gets no memory used before.
void takeMemory(benchmark::State &state, QSize size)
{
    constexpr std::size_t page = 4096; // bytes
    const std::size_t bytes = std::size_t(size.width()) * std::size_t(size.height()) * sizeof(QRgb);
    for (auto _ : state) {
        void *memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) {
            state.SkipWithError("there is not enough memory");
            break;
        }
        for (std::size_t i = 0; i < bytes; i += page) {
            static_cast<volatile uchar *>(memory)[i] = 1;
        }
        munmap(memory, bytes);
    }
}
#endif

template <typename... Arguments>
void add(const QSize &size, const char *what, Arguments... arguments)
{
    addRepeated(GrowthReporter::nameOf(size.width(), size.height(), what), arguments...);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    keepFreedMemory();

    Drawing check(QSize(960, 540));
    check.all();
    if (check.whole() != check.picture().convertToFormat(QImage::Format_ARGB32)) {
        std::fputs("growthbench: the layers that are measured do not make up the gamut form\n", stderr);
        return 1;
    }

    // Each has four times as many pixels as the one before.
    for (const QSize &size : {QSize(960, 540), QSize(1920, 1080), QSize(3840, 2160), QSize(7680, 4320)}) {
        add(size, "ground, upright grid", drawLayer, size, &Drawing::ground);
        add(size, "axes, level grid", drawLayer, size, &Drawing::axes);
        add(size, "wavelengths", drawLayer, size, &Drawing::wavelengths);
        add(size, "locus edge", drawLayer, size, &Drawing::edge);
        add(size, "row by row", drawLayer, size, &Drawing::rowByRow);
        add(size, "Planckian locus", drawLayer, size, &Drawing::planckianLocus);
        add(size, GrowthReporter::whole, drawWhole, size);
        add(size, "alone: outlines", drawLayer, size, &Drawing::outlines);
        add(size, "alone: tints", drawLayer, size, &Drawing::tints);
        add(size, "alone: horseshoe", drawLayer, size, &Drawing::horseshoe);
        add(size, "limit: memset", fillMemory, size);
#ifdef Q_OS_UNIX
        add(size, "new memory", takeMemory, size);
#endif
    }
    benchmark::Initialize(&argc, argv);
    GrowthReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
