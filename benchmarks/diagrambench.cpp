// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// What the diagram costs at the size of a screen: a step of the hands against showing a ready picture, a step of the
// view against filling the horseshoe pixel by pixel.
#include "ratioreporter.h"
#include "repeatedbenchmark.h"

#include <ceiechart/diagram/diagramview.h>
#include <gamutmodel/colorgamut.h>
#include <reference/plainrenderer.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

void fillPlain(benchmark::State &state, const QSize &screen)
{
    static const CEIAtlasValue atlas;
    reference::Mapping mapping;
    mapping.set(QRectF(QPointF(), QSizeF(screen)), QRectF(0.0, 0.0, double(0.84F), double(0.94F)));
    QImage picture(screen, QImage::Format_ARGB32);
    picture.fill(QColor(23, 23, 26)); // a ground without red would stay as it is
    for (auto _ : state) {
        reference::fillPlain(picture, picture.width(), picture.height(), mapping, atlas.colorSystem, 1.0);
        benchmark::DoNotOptimize(picture.bits());
    }
}

//! Shows a ready picture, and nothing else.
class Picture : public QWidget {
public:
    explicit Picture(const QSize &size)
        : m_pixmap(size)
    {
        m_pixmap.fill(Qt::darkCyan);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).drawPixmap(0, 0, m_pixmap); }

private:
    QPixmap m_pixmap;
};

void paintWhatIsDue()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void showReady(QWidget &widget, const QSize &screen)
{
    widget.resize(screen);
    widget.show();
    paintWhatIsDue();
}

void showPicture(benchmark::State &state, const QSize &screen)
{
    Picture picture(screen);
    showReady(picture, screen);
    for (auto _ : state) {
        picture.update();
        paintWhatIsDue();
    }
}

//! A view with the gamuts of a wall, a target and two standards, and hands to work it.
class Desk {
public:
    explicit Desk(const QSize &screen, ceiechart::HorseshoeColors colors = ceiechart::HorseshoeColors::Dimmed)
    {
        m_view.setHorseshoeColors(colors);
        m_view.setOriginal(Model::ColorGamut("LED wall",
            {Model::Target::fromYxy(240, 0.700, 0.299), Model::Target::fromYxy(634, 0.189, 0.718),
                Model::Target::fromYxy(126, 0.133, 0.075), Model::Target::fromYxy(1000, 0.2829, 0.2971)}));
        m_view.setStandards({Model::rec709(), Model::rec2020()});
        m_view.setTarget(Model::dciP3D65());
        showReady(m_view, screen);
    }

    ceiechart::DiagramView &view() { return m_view; }

    void mouse(QEvent::Type type, const QPointF &at, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, at, m_view.mapToGlobal(at.toPoint()), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&m_view, &event);
    }

    void wheel(const QPointF &at, int notches)
    {
        QWheelEvent event(at, m_view.mapToGlobal(at.toPoint()), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&m_view, &event);
    }

private:
    ceiechart::DiagramView m_view;
};

void hover(benchmark::State &state, const QSize &screen)
{
    Desk desk(screen);
    int step = 0;
    for (auto _ : state) {
        desk.mouse(QEvent::MouseMove, QPointF(screen.width() / 3 + step++ % 400, screen.height() / 2), Qt::NoButton,
            Qt::NoButton);
        paintWhatIsDue();
    }
}

//! Names on all sides of \a xy, so that the label at what is dragged there has to be looked for a place.
void crowd(ceiechart::DiagramView &view, const QPointF &xy)
{
    QVector<ceiechart::DiagramMark> marks;
    constexpr int reach = 2;
    for (int row = -reach; row <= reach; ++row) {
        for (int column = -reach; column <= reach; ++column) {
            const QPointF way(90.0 * column, 35.0 * row); // logical pixels
            marks.append({xy + way / view.viewport().scale(), QStringLiteral("cabinet")});
        }
    }
    view.setMeasurePoints(marks);
}

void drag(benchmark::State &state, const QSize &screen, ceiechart::HorseshoeColors colors,
    ceiechart::GamutVertex vertex, bool isCrowded)
{
    Desk desk(screen, colors);
    const Model::Targets targets = Model::dciP3D65().getTargets();
    const QPointF held = ceiechart::xyOf(ceiechart::targetAt(targets, vertex));
    const QPointF start = desk.view().viewport().toPosition(held);
    if (isCrowded) {
        crowd(desk.view(), held);
        paintWhatIsDue();
    }
    desk.mouse(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    int step = 0;
    for (auto _ : state) {
        // Some ten pixels from event to event, as a quick hand does it.
        const double angle = 0.2 * step++;
        const QPointF at = start + QPointF(50.0 * std::cos(angle), 50.0 * std::sin(angle));
        desk.mouse(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
        paintWhatIsDue();
    }
    desk.mouse(QEvent::MouseButtonRelease, start, Qt::LeftButton, Qt::NoButton);
}

void pan(benchmark::State &state, const QSize &screen, double zoom)
{
    Desk desk(screen);
    desk.view().setZoomFactor(zoom);
    paintWhatIsDue();
    QPointF at(300, 300);
    desk.mouse(QEvent::MouseButtonPress, at, Qt::MiddleButton, Qt::MiddleButton);
    int step = 0;
    for (auto _ : state) {
        at += step++ % 60 < 30 ? QPointF(13, 7) : QPointF(-13, -7);
        desk.mouse(QEvent::MouseMove, at, Qt::NoButton, Qt::MiddleButton);
        paintWhatIsDue();
    }
}

void zoom(benchmark::State &state, const QSize &screen, int deepest)
{
    Desk desk(screen);
    const QPointF white = desk.view().viewport().toPosition(QPointF(0.3127, 0.3290));
    int step = 0;
    for (auto _ : state) {
        desk.wheel(white, step++ % (2 * deepest) < deepest ? 1 : -1);
        paintWhatIsDue();
    }
}

/*!
 * Has each picture begin at the same place of a page, as those of a program that has just been started do.
 *
 * Otherwise the C library would place some a little farther than others. From such a place some processors copy at a
 * tenth of the speed, which would make the ready picture look slow.
 */
void placePicturesAlike()
{
#ifdef __GLIBC__
    constexpr int smallestPicture = 1 << 20; // bytes
    mallopt(M_MMAP_THRESHOLD, smallestPicture);
    // Setting the first threshold fixes the second one as well, at its initial 128 KiB, and the library would then
    // return memory to the system in each step. Twice the first threshold is the value it would otherwise choose.
    mallopt(M_TRIM_THRESHOLD, 2 * smallestPicture);
#endif
}

template <typename... Arguments>
void add(const QString &name, Arguments... arguments)
{
    addRepeated(name.toStdString(), arguments...);
}

} // namespace

int main(int argc, char **argv)
{
    placePicturesAlike();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    using ceiechart::GamutVertex;
    using ceiechart::HorseshoeColors;
    // The goals: a half or more for the hands, 15 or more for the view.
    for (const QSize &screen : {QSize(1920, 1080), QSize(3840, 2160)}) {
        const QString size = QStringLiteral("%1x%2").arg(screen.width()).arg(screen.height());
        const QString hands = QStringLiteral("hands %1/").arg(size);
        add(hands + "plain", showPicture, screen);
        add(hands + "hover", hover, screen);
        add(hands + "drag green, dimmed", drag, screen, HorseshoeColors::Dimmed, GamutVertex::Green, false);
        add(hands + "drag green, full", drag, screen, HorseshoeColors::Full, GamutVertex::Green, false);
        add(hands + "drag white", drag, screen, HorseshoeColors::Dimmed, GamutVertex::White, false);
        add(hands + "drag green, crowded", drag, screen, HorseshoeColors::Dimmed, GamutVertex::Green, true);
        const QString view = QStringLiteral("view %1/").arg(size);
        add(view + "plain", fillPlain, screen);
        add(view + "pan", pan, screen, 1.0);
        add(view + "pan, zoomed 5", pan, screen, 5.0);
        add(view + "pan, zoomed 500", pan, screen, 500.0);
        add(view + "zoom", zoom, screen, 20);
    }
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
