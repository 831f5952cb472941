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

private:
    Q_DISABLE_COPY(RowThreads)
    void start();
    void end();
    void waitForWork();
    void takeParts(const std::function<void(int)> &work, int parts) noexcept;

    int m_count = 1;
    bool m_isStarted = false;
    std::vector<std::thread> m_threads; // others than the one that calls

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

/*!
 * \brief Calls work(first, end) for bands that make up the rows from \a top to before \a bottom, by \a threads as
 * RowThreads::run() does; one after another if \a threads is null.
 */
void runInBands(RowThreads *threads, int top, int bottom, const std::function<void(int, int)> &work);

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_ROWTHREADS_P_H
