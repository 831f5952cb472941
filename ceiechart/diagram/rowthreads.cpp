// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/rowthreads_p.h>

#include <algorithm>
#include <new>
#include <system_error>
#include <utility>

namespace ceiechart {

namespace {

constexpr int bandHeight = 64; //!< rows: few enough for threads to end at nearly the same time

} // namespace

RowThreads::~RowThreads()
{
    end();
}

void RowThreads::setCount(int count)
{
    count = std::clamp(count, 1, most);
    if (count != m_count) {
        end();
        m_count = count;
    }
}

void RowThreads::start()
{
    m_isStarted = true;
    try {
        m_threads.reserve(std::size_t(m_count - 1));
        while (int(m_threads.size()) < m_count - 1) {
            m_threads.emplace_back(&RowThreads::waitForWork, this);
        }
    } catch (const std::system_error &) {
        // The system has no further one. Those that have been started do the work.
    } catch (const std::bad_alloc &) {
        // The same.
    }
}

void RowThreads::end()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isEnding = true;
    }
    m_begun.notify_all();
    for (std::thread &thread : m_threads) {
        thread.join();
    }
    m_threads.clear();
    m_isEnding = false;
    m_isStarted = false;
}

void RowThreads::waitForWork()
{
    unsigned turn = 0;
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_begun.wait(lock, [&] { return m_isEnding || m_turn != turn; });
        if (m_isEnding) {
            return;
        }
        turn = m_turn;
        if (m_work == nullptr) {
            continue; // the others were faster
        }
        ++m_working;
        const std::function<void(int)> &work = *m_work;
        const int parts = m_parts;
        lock.unlock();
        takeParts(work, parts);
        lock.lock();
        --m_working;
        m_ended.notify_one();
    }
}

void RowThreads::takeParts(const std::function<void(int)> &work, int parts) noexcept
{
    try {
        for (int part = m_next++; part < parts; part = m_next++) {
            work(part);
        }
    } catch (...) {
        m_next = parts;
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_failure) {
            m_failure = std::current_exception();
        }
    }
}

void RowThreads::begin(int parts, const std::function<void(int)> &work)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_work = &work;
        m_parts = parts;
        m_next = 0;
        ++m_turn;
    }
    m_begun.notify_all();
}

void RowThreads::waitForOthers(std::unique_lock<std::mutex> &lock)
{
    m_work = nullptr;
    m_ended.wait(lock, [this] { return m_working == 0; });
}

void RowThreads::run(int parts, const std::function<void(int)> &work)
{
    if (m_count > 1 && parts > 1 && !m_isStarted) {
        start();
    }
    if (m_threads.empty() || parts <= 1) {
        for (int part = 0; part < parts; ++part) {
            work(part);
        }
        return;
    }
    begin(parts, work);
    takeParts(work, parts);
    std::unique_lock<std::mutex> lock(m_mutex);
    waitForOthers(lock);
    if (m_failure) {
        std::rethrow_exception(std::exchange(m_failure, nullptr));
    }
}

void RowThreads::beginAhead(int parts, std::function<void(int)> work)
{
    if (m_count > 1 && !m_isStarted) {
        start();
    }
    m_ahead = std::move(work);
    if (!m_threads.empty()) {
        begin(parts, m_ahead);
    }
}

void RowThreads::endAhead()
{
    if (!m_threads.empty()) {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_next = m_parts;
        waitForOthers(lock);
        m_failure = nullptr;
    }
    m_ahead = nullptr;
}

void runParts(RowThreads *threads, int parts, const std::function<void(int)> &work)
{
    if (threads != nullptr) {
        threads->run(parts, work);
        return;
    }
    for (int part = 0; part < parts; ++part) {
        work(part);
    }
}

int RowBands::count() const
{
    return top < bottom ? (bottom - top + bandHeight - 1) / bandHeight : 0;
}

std::pair<int, int> RowBands::rows(int band) const
{
    const int first = top + band * bandHeight;
    return {first, std::min(first + bandHeight, bottom)};
}

void runInBands(RowThreads *threads, int top, int bottom, const std::function<void(int, int)> &work)
{
    const RowBands bands{top, bottom};
    runParts(threads, bands.count(), [&](int band) {
        const auto [first, end] = bands.rows(band);
        work(first, end);
    });
}

} // namespace ceiechart
