// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "stallwatch.h"

#ifdef __unix__

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <thread>

#include <execinfo.h>
#include <pthread.h>
#include <unistd.h>

namespace soak {

namespace {

const char *shownWhere = "";

// Of what may be called in a signal handler only.
void say(const char *text)
{
    const auto written = ::write(STDERR_FILENO, text, std::strlen(text));
    static_cast<void>(written);
}

void sayStack(const char *what)
{
    constexpr int most = 100;
    void *frames[most]; // NOLINT: the interface of backtrace()
    say("\nsoak: ");
    say(what);
    say(" during ");
    say(shownWhere);
    say("\n");
    ::backtrace_symbols_fd(frames, ::backtrace(frames, most), STDERR_FILENO);
}

void onLongStep(int)
{
    sayStack("a long step");
}

void onStall(int)
{
    sayStack("a step takes too long");
    ::_exit(EXIT_FAILURE);
}

void onCrash(int signal)
{
    sayStack("a crash");
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

double seconds(clockid_t clock)
{
    timespec time{};
    ::clock_gettime(clock, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

} // namespace

class StallWatch::Private {
public:
    Private(double named, double limit)
        : m_named(named)
        , m_limit(limit)
        , m_watched(::pthread_self())
    {
        ::pthread_getcpuclockid(m_watched, &m_clock);
        m_thread = std::thread([this] { watch(); });
    }
    ~Private()
    {
        m_ends = true;
        m_thread.join();
    }
    void beat() { m_beats.fetch_add(1, std::memory_order_relaxed); }

private:
    void watch()
    {
        constexpr double longestWait = 30.0;
        constexpr double leastShare = 0.01; // of the time, for a program that waits only for the processor
        constexpr double mostAtOnce
            = 0.5; // of a look: more passes while the machine stands still, or this thread waits
        constexpr std::chrono::milliseconds interval(50);
        unsigned last = 0;
        double computed = seconds(m_clock);
        double passed = seconds(CLOCK_MONOTONIC);
        double busy = 0.0;
        double idle = 0.0;
        bool isNamed = false;
        while (!m_ends) {
            std::this_thread::sleep_for(interval);
            const double computedNow = seconds(m_clock);
            const double passedNow = seconds(CLOCK_MONOTONIC);
            const double more = std::min(computedNow - computed, mostAtOnce);
            busy += more;
            idle += std::clamp(passedNow - passed - more, 0.0, mostAtOnce);
            computed = computedNow;
            passed = passedNow;
            const unsigned now = m_beats.load(std::memory_order_relaxed);
            if (now != last) {
                last = now;
                busy = 0.0;
                idle = 0.0;
                isNamed = false;
            } else if (busy > m_named && !isNamed) {
                isNamed = true;
                ::pthread_kill(m_watched, SIGUSR1);
            } else if (busy > m_limit || (idle > longestWait && busy < leastShare * idle)) {
                ::pthread_kill(m_watched, SIGUSR2);
                return;
            }
        }
    }

    double m_named;
    double m_limit;
    pthread_t m_watched;
    clockid_t m_clock{};
    std::atomic<unsigned> m_beats{0};
    std::atomic<bool> m_ends{false};
    std::thread m_thread;
};

StallWatch::StallWatch(double named, double limit, const char *where)
    : d((shownWhere = where, std::make_unique<Private>(named, limit)))
{
    void *frame = nullptr;
    ::backtrace(&frame, 1); // loads what it needs, which a signal handler must not
    std::signal(SIGUSR1, &onLongStep);
    std::signal(SIGUSR2, &onStall);
    std::signal(SIGABRT, &onCrash);
#ifndef SOAK_SANITIZED // which tells of these itself, and then aborts
    std::signal(SIGSEGV, &onCrash);
    std::signal(SIGFPE, &onCrash);
#endif
}

#else

namespace soak {

class StallWatch::Private {
public:
    void beat() { }
};

StallWatch::StallWatch(double, double, const char *)
    : d(std::make_unique<Private>())
{
}

#endif

StallWatch::~StallWatch() = default;

void StallWatch::beat()
{
    d->beat();
}

} // namespace soak
