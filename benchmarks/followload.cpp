// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// What the gamut viewer does while it follows a measurement: a thread appends lines to a file, or writes them to a
// pipe, at a steady rate, of a gamut or of the cabinets of a wall, and the program tells every few seconds how much
// memory it has and how long its event loop was away.
#include "editing/document.h"
#include "editing/targetedits.h"
#include "following/following.h"
#include "program/streaminput.h"
#include "window/followmenu.h"
#include "window/viewerwindow.h"
#include "window/wallpage.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <thread>
#include <vector>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <sys/types.h>
#endif

namespace {

//! In KiB; 0 where the system does not tell.
long residentMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                return line.mid(6).replace("kB", "").trimmed().toLong();
            }
        }
    }
    return 0;
}

QByteArray measured(int i)
{
    static const struct {
        const char *name;
        double Y, x, y;
    } colors[] = {{"Red", 196.8, 0.7031, 0.2960}, {"Green", 608.6, 0.1954, 0.7142}, {"Blue", 123.5, 0.1304, 0.0798},
        {"White", 928.9, 0.2727, 0.3031}};
    if (i % 100 == 99) {
        return "Red,#DIV/0!,0.7,0.3\n";
    }
    const double noise = (i * 7919 % 1000 - 500) / 500.0;
    const auto &color = colors[i % 4];
    const QByteArray name = i % 2 == 0 ? QByteArray(color.name) : "patch " + QByteArray::number(i % 1000);
    return name + ',' + QByteArray::number(color.Y + noise, 'f', 2) + ','
        + QByteArray::number(color.x + 0.002 * noise, 'f', 4) + ','
        + QByteArray::number(color.y - 0.002 * noise, 'f', 4) + '\n';
}

//! Of a wall of 25 × 40 cabinets that is measured again and again.
QByteArray measuredOfWall(int i)
{
    constexpr int cabinets = 1000;
    constexpr int inRow = 40;
    static const struct {
        const char *name;
        double Y, x, y;
    } colors[] = {{"Red", 311.7, 0.7000, 0.2996}, {"Green", 597.1, 0.1916, 0.7582}, {"Blue", 91.95, 0.1331, 0.0520},
        {"Black", 0.4406, 0.3800, 0.3800}};
    const double noise = (i * 7919 % 1000 - 500) / 500.0;
    const auto &color = colors[i % 4];
    const int cabinet = i / 4 % cabinets;
    const auto number = [](double value, int decimals) { return ',' + QByteArray::number(value, 'f', decimals); };
    return 'C' + QByteArray::number(cabinet) + number(cabinet / inRow, 0) + number(cabinet % inRow, 0) + ','
        + color.name + number(color.Y * (1.0 + 0.1 * noise), 4) + number(color.x + 0.002 * noise, 4)
        + number(color.y - 0.002 * noise, 4) + '\n';
}

//! Something to judge the wall by.
gamutviewer::DisplayDescription descriptionWithTarget()
{
    gamutviewer::DisplayDescription description;
    description.target = QStringLiteral("DCI-P3(D65)");
    return gamutviewer::withLuminanceUnit(description, gamutviewer::LuminanceUnit::CandelaPerSquareMetre, 500.0);
}

void append(const QString &fileName, int linesPerSecond, int seconds, bool isWall)
{
    using Clock = std::chrono::steady_clock;
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return;
    }
    file.write(isWall ? "cabinet,row,column,name,Y (cd/m2),x,y\n" : "name,Y (cd/m2),x,y\n");
    const auto begin = Clock::now();
    for (qint64 i = 0; i < qint64(linesPerSecond) * seconds; ++i) {
        std::this_thread::sleep_until(begin + std::chrono::microseconds(i * 1000000 / linesPerSecond));
        file.write(isWall ? measuredOfWall(int(i)) : measured(int(i)));
    }
}

bool makePipe(const QString &fileName)
{
#ifdef Q_OS_UNIX
    return mkfifo(QFile::encodeName(fileName).constData(), S_IRUSR | S_IWUSR) == 0;
#else
    Q_UNUSED(fileName);
    return false;
#endif
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const int linesPerSecond = argc > 1 ? QByteArray(argv[1]).toInt() : 1000;
    const int seconds = argc > 2 ? QByteArray(argv[2]).toInt() : 60;
    const bool isPipe = argc > 3 && QByteArray(argv[3]) == "pipe";
    const bool isWall = argc > 3 && QByteArray(argv[3]) == "wall";
    if (linesPerSecond <= 0 || seconds <= 0 || (argc > 3 && !isPipe && !isWall)) {
        std::puts("followload [lines per second] [seconds] [pipe|wall]");
        return 2;
    }
    QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("wall.csv"));
    if (isPipe && !makePipe(fileName)) {
        std::puts("there is no pipe");
        return 1;
    }
    gamutviewer::ViewerWindow window;
    window.setOpened({});
    if (isWall) {
        window.setDescription(descriptionWithTarget(), QString());
        window.pages()->setCurrentWidget(window.wallPage());
    }
    window.resize(1280, 900);
    window.show();
    window.followMenu()->follow(gamutviewer::inputToFollow(fileName).input);
    std::thread instrument(append, fileName, linesPerSecond, seconds, isWall);

    // What waits for its turn waits as long as this timer.
    QTimer beat;
    beat.setTimerType(Qt::PreciseTimer);
    beat.setInterval(1);
    QElapsedTimer sinceBeat;
    std::clock_t busySince = std::clock();
    std::vector<qint64> gaps;
    std::vector<double> busy; // the time of the processor, which does not count that of other programs
    QObject::connect(&beat, &QTimer::timeout, [&] {
        gaps.push_back(sinceBeat.nsecsElapsed() / 1000);
        busy.push_back(double(std::clock() - busySince) * 1000.0 / CLOCKS_PER_SEC);
        sinceBeat.start();
        busySince = std::clock();
    });
    int updates = 0;
    QObject::connect(window.document(), &gamutviewer::Document::changed, [&updates] { ++updates; });
    QTimer tell;
    QElapsedTimer time;
    time.start();
    std::puts("      s     lines  not read   updates/s   RSS KiB   gap ms: median   99.9 %   longest   over 16 ms   "
              "processor ms: 99.9 %   longest");
    const int between = std::max(1, std::min(10, seconds / 6));
    QObject::connect(&tell, &QTimer::timeout, [&] {
        std::sort(gaps.begin(), gaps.end());
        std::sort(busy.begin(), busy.end());
        const auto at = [&](double part) { return double(gaps[std::size_t(part * double(gaps.size() - 1))]) / 1000.0; };
        const auto over = std::count_if(gaps.begin(), gaps.end(), [](qint64 gap) { return gap > 16667; });
        const auto &state = window.followMenu()->following()->state();
        std::printf("%7.1f %9lld %9lld %11.1f %9ld %16.2f %8.2f %9.2f %12ld %23.2f %9.2f\n",
            double(time.elapsed()) / 1000.0, static_cast<long long>(state.lines), static_cast<long long>(state.notRead),
            double(updates) / between, residentMemory(), at(0.5), at(0.999), at(1.0), long(over),
            busy[std::size_t(0.999 * double(busy.size() - 1))], busy.back());
        std::fflush(stdout);
        gaps.clear();
        busy.clear();
        updates = 0;
        if (time.elapsed() >= seconds * 1000LL) {
            QApplication::quit();
        }
    });
    QTimer::singleShot(1000, [&] { // when the window has come up
        sinceBeat.start();
        busySince = std::clock();
        beat.start();
        tell.start(between * 1000);
    });
    const int status = QApplication::exec();
    instrument.join();
    return status;
}
