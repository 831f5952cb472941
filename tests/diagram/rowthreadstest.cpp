// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/rowthreads_p.h>

#include <QDeadlineTimer>
#include <QtTest>

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>
#include <thread>

using ceiechart::RowThreads;

namespace {

//! As often as it takes for the scheduler to interrupt threads in many places.
constexpr int turns = 300;

//! The numbers of threads that do the parts of a run in which each waits until all of them are there.
int threadsOf(RowThreads &threads, int expected)
{
    std::atomic<int> here{0};
    std::mutex mutex;
    std::vector<std::thread::id> seen;
    threads.run(expected, [&](int) {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            if (std::find(seen.begin(), seen.end(), std::this_thread::get_id()) == seen.end()) {
                seen.push_back(std::this_thread::get_id());
            }
        }
        ++here;
        QDeadlineTimer limit(20000);
        while (here < expected && !limit.hasExpired()) {
            std::this_thread::yield();
        }
    });
    return int(seen.size());
}

} // namespace

class RowThreadsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void counts();
    void everyPartOnce();
    void everyRowOnce();
    void atTheSameTime();
    void oneThreadIsTheCallers();
    void anotherCount();
    void exceptions_data();
    void exceptions();
    void othersWorkAhead();
    void nothingGoesOnBehindTheEnd();
    void failuresAhead();
};

void RowThreadsTest::counts()
{
    RowThreads threads;
    QCOMPARE(threads.count(), 1);
    for (const auto &[set, expected] :
        {std::pair(0, 1), std::pair(-5, 1), std::pair(std::numeric_limits<int>::min(), 1), std::pair(3, 3),
            std::pair(64, 64), std::pair(65, 64), std::pair(std::numeric_limits<int>::max(), 64)}) {
        threads.setCount(set);
        QCOMPARE(threads.count(), expected);
    }
}

void RowThreadsTest::everyPartOnce()
{
    for (const int count : {1, 2, 3, 7}) {
        RowThreads threads;
        threads.setCount(count);
        for (int turn = 0; turn < turns; ++turn) {
            const int parts = turn % 40;
            std::vector<int> done(std::size_t(parts), 0); // each written by one thread, and read after all have ended
            threads.run(parts, [&done](int part) { ++done[std::size_t(part)]; });
            QCOMPARE(done, std::vector<int>(std::size_t(parts), 1));
        }
    }
}

void RowThreadsTest::everyRowOnce()
{
    RowThreads several;
    several.setCount(3);
    for (RowThreads *threads : {static_cast<RowThreads *>(nullptr), &several}) {
        for (const auto &[top, bottom] : {std::pair(0, 0), std::pair(5, 2), std::pair(0, 1), std::pair(0, 16),
                 std::pair(3, 1000), std::pair(7, 24)}) {
            std::vector<int> drawn(1001, 0);
            ceiechart::runInBands(threads, top, bottom, [&drawn](int first, int end) {
                for (int y = first; y < end; ++y) {
                    ++drawn[std::size_t(y)];
                }
            });
            for (int y = 0; y < int(drawn.size()); ++y) {
                QCOMPARE(drawn[std::size_t(y)], y >= top && y < bottom ? 1 : 0);
            }
        }
    }
}

void RowThreadsTest::atTheSameTime()
{
    for (const int count : {2, 5}) {
        RowThreads threads;
        threads.setCount(count);
        QCOMPARE(threadsOf(threads, count), count);
        QCOMPARE(threadsOf(threads, count), count); // they wait for more
    }
}

void RowThreadsTest::oneThreadIsTheCallers()
{
    RowThreads threads;
    const std::thread::id caller = std::this_thread::get_id();
    threads.run(20, [caller](int) { QVERIFY(std::this_thread::get_id() == caller); });
    threads.setCount(4);
    threads.setCount(1);
    threads.run(20, [caller](int) { QVERIFY(std::this_thread::get_id() == caller); });
}

void RowThreadsTest::anotherCount()
{
    RowThreads threads;
    for (const int count : {3, 1, 2, 4, 4, 2}) {
        threads.setCount(count);
        QCOMPARE(threadsOf(threads, count), count);
    }
    for (int turn = 0; turn < turns / 10; ++turn) {
        // Ended while they begin to wait, or before they have begun.
        threads.setCount(2 + turn % 3);
        threads.run(turn % 4, [](int) {});
    }
}

void RowThreadsTest::exceptions_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("one thread") << 1;
    QTest::newRow("three threads") << 3;
}

//! The macro for it has another name in Qt 6.
template <typename Exception, typename Run>
static bool throws(const Run &run)
{
    try {
        run();
    } catch (const Exception &) {
        return true;
    }
    return false;
}

void RowThreadsTest::exceptions()
{
    QFETCH(int, count);
    RowThreads threads;
    threads.setCount(count);
    for (const int failing : {0, 50, 99}) {
        const auto fail = [failing](int part) {
            if (part == failing) {
                throw std::bad_alloc();
            }
        };
        QVERIFY(throws<std::bad_alloc>([&] { threads.run(100, fail); }));
        QVERIFY(throws<std::runtime_error>([&] { threads.run(100, [](int) { throw std::runtime_error("each"); }); }));

        std::atomic<int> done{0};
        threads.run(100, [&done](int) { ++done; });
        QCOMPARE(done.load(), 100);
    }
}

void RowThreadsTest::othersWorkAhead()
{
    for (const int count : {2, 4}) {
        RowThreads threads;
        threads.setCount(count);
        const std::thread::id caller = std::this_thread::get_id();
        std::vector<std::thread::id> done(100);
        std::atomic<int> left{100};
        threads.beginAhead(100, [&](int part) {
            done[std::size_t(part)] = std::this_thread::get_id();
            --left;
        });
        QDeadlineTimer limit(20000);
        while (left > 0 && !limit.hasExpired()) { // the caller does something else
            std::this_thread::yield();
        }
        threads.endAhead();
        QVERIFY(std::find(done.cbegin(), done.cend(), caller) == done.cend());
        QVERIFY(std::find(done.cbegin(), done.cend(), std::thread::id()) == done.cend());
    }

    RowThreads alone;
    alone.beginAhead(100, [](int) { QFAIL("there is no other thread"); });
    alone.endAhead();
}

void RowThreadsTest::nothingGoesOnBehindTheEnd()
{
    RowThreads threads;
    threads.setCount(3);
    for (int turn = 0; turn < turns; ++turn) {
        std::vector<int> done(40, 0); // gone when the next turn begins
        threads.beginAhead(int(done.size()), [&done](int part) { ++done[std::size_t(part)]; });
        for (int i = 0; i < turn % 50; ++i) {
            std::this_thread::yield();
        }
        threads.endAhead();
        const auto first = std::find(done.cbegin(), done.cend(), 0); // of those that have not been begun
        QCOMPARE(int(std::count(done.cbegin(), done.cend(), 1)), int(first - done.cbegin()));

        // The rest, and no part twice.
        const int begun = int(first - done.cbegin());
        threads.run(int(done.size()) - begun, [&](int part) { ++done[std::size_t(begun + part)]; });
        QCOMPARE(done, std::vector<int>(done.size(), 1));
    }
}

void RowThreadsTest::failuresAhead()
{
    RowThreads threads;
    threads.setCount(3);
    for (int turn = 0; turn < turns / 10; ++turn) {
        threads.beginAhead(20, [](int) { throw std::bad_alloc(); });
        threads.endAhead();
        std::atomic<int> done{0};
        threads.run(100, [&done](int) { ++done; });
        QCOMPARE(done.load(), 100);
    }
}

QTEST_APPLESS_MAIN(RowThreadsTest)

#include "rowthreadstest.moc"
