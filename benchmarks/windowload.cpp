// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// What each kind of interaction with the gamut viewer's window takes when thousands of standards are open, or in a
// large window, in processor time, which does not count other programs.
#include "drawing/documentview.h"
#include "drawing/layerswitches.h"
#include "editing/document.h"
#include "editing/targetsession.h"
#include "panel/sidepanel.h"
#include "window/diagrampage.h"
#include "window/gamutsdialog.h"
#include "window/viewerwindow.h"

#include <gamutfiles/descriptionfile.h>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSettings>
#include <QSize>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QUndoStack>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <vector>

namespace {

using namespace gamutviewer;

DisplayDescription descriptionOf(int standards)
{
    DisplayDescription description;
    const auto add = [&description](const QString &name, double shift) {
        Model::Targets targets = Model::rec709().getTargets();
        const auto move = [shift](Model::Target &colour, double times) {
            colour.x += 0.02 * std::sin(times * shift);
            colour.y += 0.02 * std::cos(times * shift);
        };
        move(targets.red, 1.0);
        move(targets.green, 1.7);
        move(targets.blue, 2.3);
        move(targets.white, 0.3);
        description.gamuts.emplace_back(Model::ColorGamut(name.toStdString(), targets));
    };
    add(QStringLiteral("Target"), 0.0);
    description.target = QStringLiteral("Target");
    for (int i = 0; i < standards; ++i) {
        const QString name = QStringLiteral("Standard %1").arg(i);
        add(name, 1.0 + i);
        description.standards.append(name);
    }
    return description;
}

//! Until nothing is left to do, timers of up to a tenth of a second included.
void settle()
{
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < 100) {
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    }
}

const char *only = ""; // to measure what is called so

//! Prints the processor time of each of some \a steps, with all that follows from it.
void measure(const char *name, int steps, const std::function<void(int)> &step)
{
    if (!std::strstr(name, only)) {
        return;
    }
    std::vector<double> taken;
    for (int i = 0; i < steps; ++i) {
        settle();
        const std::clock_t begin = std::clock();
        step(i);
        // As long as there are events and no longer, as waiting takes time, too.
        for (int turn = 0; turn < 5; ++turn) {
            QApplication::sendPostedEvents();
            QApplication::processEvents();
        }
        taken.push_back(double(std::clock() - begin) * 1000.0 / CLOCKS_PER_SEC);
    }
    std::sort(taken.begin(), taken.end());
    std::printf("%-40s %9.1f %9.1f\n", name, taken[taken.size() / 2], taken.back());
    std::fflush(stdout);
}

void press(QWidget *widget, int key)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
}

void point(QWidget *widget, QEvent::Type type, const QPointF &at, bool isDown)
{
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, at, widget->mapToGlobal(at.toPoint()), isMove ? Qt::NoButton : Qt::LeftButton,
        isDown ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void turnWheel(QWidget *widget, const QPointF &at, int by)
{
    QWheelEvent event(at, QPointF(widget->mapToGlobal(at.toPoint())), QPoint(), QPoint(0, by), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const int count = argc > 1 ? QByteArray(argv[1]).toInt() : 10000;
    const QList<QByteArray> sides = QByteArray(argc > 3 ? argv[3] : "1280x900").split('x');
    const QSize size(sides.value(0).toInt(), sides.value(1).toInt());
    if (count < 0 || argc > 4 || sides.size() != 2 || size.isEmpty()) {
        std::puts("windowload [standards] [part of the name of what is measured] [size of the window, as 3840x2160]");
        return 2;
    }
    only = argc > 2 ? argv[2] : "";
    const DisplayDescription description = descriptionOf(count);
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path()); // files opened here are no one's
    const QString file = folder.filePath(QStringLiteral("standards.json"));
    const QString error = gamutfiles::writeDescription(description, file);
    if (!error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }
    std::printf("%-40s %9s %9s\n", "processor ms", "median", "longest");
    ViewerWindow window;
    window.resize(size);
    window.show();
    QApplication::setActiveWindow(&window);
    constexpr const char *opening = "file opened";
    if (!std::strstr(opening, only)) {
        window.openPath(file);
        settle();
    }
    measure(opening, 1, [&](int) { window.openPath(file); });

    DocumentView *view = window.diagramPage()->view();
    TargetSession *session = window.session();
    view->setFocus();
    session->select(Vertex::Green);
    const auto handle = [&](Vertex vertex) {
        return view->viewport().toPosition(xyOf(targetAt(window.document()->target()->getTargets(), vertex)));
    };
    measure("key step", 20, [&](int i) { press(view, i % 4 < 2 ? Qt::Key_Left : Qt::Key_Down); });
    const auto drag = [&](const char *name, Vertex vertex) {
        const QPointF from = handle(vertex);
        measure("press to drag", 1, [&](int) { point(view, QEvent::MouseButtonPress, from, true); });
        measure(name, 20, [&](int i) { point(view, QEvent::MouseMove, from + QPointF(9.0 + 2 * i, 9.0 + i), true); });
        measure("release of drag", 1,
            [&](int) { point(view, QEvent::MouseButtonRelease, from + QPointF(49.0, 29.0), false); });
    };
    drag("drag step, green", Vertex::Green);
    drag("drag step, white", Vertex::White);
    measure("undo and redo", 6,
        [&](int i) { i % 2 == 0 ? window.document()->history()->undo() : window.document()->history()->redo(); });
    measure("value typed", 6, [&](int i) { session->setChromaticity(Vertex::Red, {0.63 + 0.001 * i, 0.33}); });
    measure("hover", 20, [&](int i) { point(view, QEvent::MouseMove, QPointF(100.0 + 20 * i, 300.0), false); });
    measure("zoom", 20, [&](int i) { turnWheel(view, QPointF(300.0, 300.0), i % 10 < 5 ? 120 : -120); });
    measure("page change", 3 * window.pages()->count(),
        [&](int i) { window.pages()->setCurrentIndex((i + 1) % window.pages()->count()); });
    window.pages()->setCurrentWidget(window.diagramPage());
    LayerSwitches *switches = window.diagramPage()->switches();
    measure("colours", 6, [&](int i) { switches->setColors(ceiechart::HorseshoeColors(i % 3)); });
    measure("layer", 6, [&](int i) { switches->setShown(ceiechart::DiagramLayer::Names, i % 2 == 1); });
    measure(
        "layer of standards", 6, [&](int i) { switches->setShown(ceiechart::DiagramLayer::Standards, i % 2 == 1); });
    if (count > 0) {
        measure(
            "one standard", 6, [&](int i) { switches->setStandardShown(description.standards.first(), i % 2 == 1); });
    }
    measure("held white", 6, [&](int i) { session->setHoldWhite(i % 2 == 0); });
    measure("tolerances", 6,
        [&](int i) { session->setTolerances(i % 2 == 0 ? std::make_optional(Tolerances()) : std::nullopt); });
    measure("diagram", 6, [&](int i) { window.diagramPage()->diagrams()->actions().at((i + 1) % 3)->trigger(); });
    measure("lens", 6, [&](int) { window.diagramPage()->lensAction()->trigger(); });
    measure("resize", 6, [&](int i) { window.resize(size.width() - 10 * (i % 2), size.height()); });
    window.resize(size);
    const auto shows = [&window](const char *text) {
        for (auto *tabs : window.panel()->findChildren<QTabWidget *>()) {
            for (int i = 0; i < tabs->count(); ++i) {
                if (tabs->tabText(i).remove(QLatin1Char('&')) == QLatin1String(text)) {
                    tabs->setCurrentIndex(i);
                }
            }
        }
    };
    measure("coverage shown", 1, [&](int) { shows("Coverage"); });
    measure("value typed, coverage shown", 6, [&](int i) {
        session->setChromaticity(Vertex::Red, {0.62 + 0.001 * i, 0.33});
    });
    shows("Values");
    measure("list of gamuts shown", 1, [&](int) { window.showGamuts(); });
    measure("value typed, list of gamuts shown", 6, [&](int i) {
        session->setChromaticity(Vertex::Red, {0.63 + 0.001 * i, 0.33});
    });
    return 0;
}
