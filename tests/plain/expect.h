// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef PLAIN_EXPECT_H
#define PLAIN_EXPECT_H

#include <cmath>
#include <cstdio>

/*! \brief Counts and prints the expectations that a test finds wrong. */
class Expectations {
public:
    /*! \brief Expects \a is to be true. */
    void expect(bool is, const char *what)
    {
        if (!is) {
            std::printf("FAIL: %s\n", what);
            ++m_failures;
        }
    }

    /*! \brief Expects \a found to differ from \a expected by at most \a tolerance. */
    void isNear(double found, double expected, double tolerance, const char *what)
    {
        if (!(std::fabs(found - expected) <= tolerance)) {
            std::printf("FAIL: %s: found %.10g, expected %.10g within %.3g\n", what, found, expected, tolerance);
            ++m_failures;
        }
    }

    /*! \brief The exit status of the test. */
    int status() const { return m_failures == 0 ? 0 : 1; }

private:
    int m_failures = 0;
};

#endif
