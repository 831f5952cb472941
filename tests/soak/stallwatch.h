// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_SOAK_STALLWATCH_H
#define CEIECHART_TESTS_SOAK_STALLWATCH_H

#include <memory>

namespace soak {

/*!
 * \brief Prints the stack of the main thread when a step of it is long, ends the program with it when the step takes
 * too long, and says at any crash what was being done.
 *
 * A step takes too long when it computes for longer than a limit, or does not end for half a minute because it waits.
 * Time in which other programs had the processor, or the whole machine stood still, does not count. Does nothing where
 * the system is not POSIX.
 */
class StallWatch {
public:
    /*!
     * \brief Watches the calling thread: a step of more than \a named seconds is long, one of more than \a limit takes
     * too long. \a where points to a text of what is done, which may change at any time.
     */
    StallWatch(double named, double limit, const char *where);
    ~StallWatch();
    StallWatch(const StallWatch &) = delete;
    StallWatch &operator=(const StallWatch &) = delete;

    /*! \brief A step has ended and another one begins. */
    void beat();

private:
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace soak

#endif // CEIECHART_TESTS_SOAK_STALLWATCH_H
