// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_SOAK_SOAK_H
#define CEIECHART_TESTS_SOAK_SOAK_H

#include "stallwatch.h"

#include <reference/repeatablerandom.h>

#include <QPointF>
#include <QString>

#include <functional>
#include <initializer_list>

namespace soak {

/*! \brief Where a round draws its numbers from, hostile ones among them, and where it says what it does. */
class Round {
public:
    /*! \param longest steps that the round has at most */
    Round(unsigned seed, int longest, StallWatch *watch)
        : m_random(seed)
        , m_left(longest)
        , m_watch(watch)
    {
    }

    /*! \brief Counts a step; false when the round is over. */
    bool next()
    {
        m_watch->beat();
        ++m_steps;
        return m_left-- > 0;
    }
    /*! \brief The number of steps and of events that were sent. */
    long steps() const { return m_steps; }
    /*! \brief Counts an event that is sent within a step. */
    void count() { ++m_steps; }
    /*! \brief A step does not end as long as a question is open; what is done there says so. */
    void beat() { m_watch->beat(); }

    int between(int low, int high) { return m_random.between(low, high); }
    bool chance(int percent) { return m_random.chance(percent); }
    bool toss() { return m_random.chance(50); }
    double real(double low, double high) { return m_random.real(low, high); }

    /*! \brief Mostly a coordinate, else whatever a double can be. */
    double number();
    /*! \brief Mostly a size in pixels, else whatever an int can be. */
    int integer();
    /*! \brief A side in pixels, mostly a short one: most of the time goes to drawing, which is the same for all sizes.
     */
    int side(int least, int most) { return between(least, chance(80) ? least + (most - least) / 5 : most); }
    /*! \brief Mostly a chromaticity. */
    QPointF point() { return chance(70) ? QPointF(real(0.0, 0.8), real(0.0, 0.9)) : anyPoint(); }
    QPointF anyPoint()
    {
        const double x = number();
        return {x, number()};
    }
    /*! \brief Markup, places for numbers, marks of direction, a long text, nothing. */
    QString text();
    /*! \brief A list of up to \a most, made by \a make. */
    template <typename List, typename Make>
    List list(int most, Make make)
    {
        List result;
        for (int i = between(0, most); i > 0; --i) {
            result.push_back(make());
        }
        return result;
    }
    /*! \brief Runs one of \a actions. */
    void oneOf(std::initializer_list<std::function<void()>> actions)
    {
        (actions.begin() + between(0, int(actions.size()) - 1))->operator()();
    }

private:
    reference::RepeatableRandom m_random;
    int m_left;
    long m_steps = 0;
    StallWatch *m_watch;
};

/*! \brief Random use of the charts of a generation, of the diagram, and of the window of the viewer. */
void useCurrentChart(Round &round);
void useLegacyChart(Round &round);
void useDiagram(Round &round);
void useWindow(Round &round);

} // namespace soak

#endif // CEIECHART_TESTS_SOAK_SOAK_H
