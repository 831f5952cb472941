// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_ROWTHREADS_P_H
#define CEIECHART_DIAGRAM_ROWTHREADS_P_H

#include <QtGlobal>

#include <atomic>
#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace ceiechart {

/*!
 * \brief The threads that help to draw a picture, if a host asks for them.
 *
 * They are started when they are first needed, and wait until they are needed again. For one thread at a time.
 */
class RowThreads {
public:
    static constexpr int most = 64; //!< threads

    RowThreads() = default;
    ~RowThreads();

    /*!
     * \brief Sets how many threads draw at a time, with the one that calls: 1, the default, to most. Other counts are
     * taken as the nearest of these. Ends the threads that there are.
     */
    void setCount(int count);
    /*! \brief The count of setCount(). */
    int count() const { return m_count; }

    /*!
     * \brief Calls work(0) to work(\a parts - 1) once each, in any order and several at a time, and returns when all
     * have ended.
     *
     * If one throws, further parts may be left out, and the first exception is thrown again. If the system has fewer
     * threads, those that there are do all the work.
     */
    void run(int parts, const std::function<void(int)> &work);

    /*!
     * \brief Lets the other threads call work(0) to work(\a parts - 1) while the caller does something else. Nothing
     * else may be run before endAhead().
     */
    void beginAhead(int parts, std::function<void(int)> work);
    /*!
     * \brief Begins no further part of beginAhead(), and returns when those that have been begun have ended.
     *
     * None may have been begun, and the exceptions that they throw are lost: the caller has to see what has been done.
     */
    void endAhead();

private:
    Q_DISABLE_COPY(RowThreads)
    void start();
    void end();
    void begin(int parts, const std::function<void(int)> &work);
    void waitForOthers(std::unique_lock<std::mutex> &lock);
    void waitForWork();
    void takeParts(const std::function<void(int)> &work, int parts) noexcept;

    int m_count = 1;
    bool m_isStarted = false;
    std::vector<std::thread> m_threads; // others than the one that calls
    std::function<void(int)> m_ahead; // of beginAhead(), until endAhead()

    std::mutex m_mutex; // of all that follows
    std::condition_variable m_begun;
    std::condition_variable m_ended;
    const std::function<void(int)> *m_work = nullptr; // null if there is nothing to do
    int m_parts = 0;
    unsigned m_turn = 0; // counts the calls of run()
    int m_working = 0; // threads other than the one that calls
    bool m_isEnding = false;
    std::exception_ptr m_failure;
    std::atomic<int> m_next{0}; // the part that is to be taken next
};

/*! \brief Calls work(0) to work(\a parts - 1) as RowThreads::run() does; one after another if \a threads is null. */
void runParts(RowThreads *threads, int parts, const std::function<void(int)> &work);

/*! \brief The rows from top to before bottom, in bands that threads share out. */
struct RowBands {
    int top;
    int bottom;

    int count() const; //!< of bands
    std::pair<int, int> rows(int band) const; //!< the first row of \a band, and that behind the last
};

/*!
 * \brief Calls work(first, end) for bands that make up the rows from \a top to before \a bottom, as runParts()
 * does.
 */
void runInBands(RowThreads *threads, int top, int bottom, const std::function<void(int, int)> &work);

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_ROWTHREADS_P_H
