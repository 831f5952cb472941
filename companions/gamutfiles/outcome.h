// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_OUTCOME_H
#define GAMUTFILES_OUTCOME_H

#include <gamutfiles/gamutfiles_export.h>

#include <QString>
#include <QVector>

#include <optional>
#include <utility>

/*! \brief Readers and writers of the files that displays, measuring instruments and profilers give. */
namespace gamutfiles {

/*! \brief One thing that is wrong with a file, or that a user must know of it, and where it stands. */
struct Problem {
    QString text; //!< one sentence without a full stop, for people
    QString place; //!< the value in question, for example "gamuts[1].red.x" or "line 3, column Y"; empty: all of it
    int line = 0; //!< of a text that cannot be parsed, from 1; 0 if there is none
    int column = 0; //!< in that line, in Unicode code points from 1; 0 if there is none

    /*!
     * \brief The problem as one line: \a fileName, the place and the text, for example "wall.json:2:5: is not JSON".
     *
     * Line ends and control characters are escaped as by oneLine().
     * An empty \a fileName is left out.
     */
    GAMUTFILES_EXPORT QString message(const QString &fileName = QString()) const;
};

/*! \brief What an operation gave, or why it gave nothing: exactly one of the two. With a value there may be warnings.
 */
template <typename T>
class Outcome {
public:
    /*! \brief A success: \a value, and \a warnings about it. */
    Outcome(T value, QVector<Problem> warnings = {})
        : m_value(std::move(value))
        , m_warnings(std::move(warnings))
    {
    }
    /*! \brief A failure for the reason \a problem. */
    static Outcome failure(Problem problem)
    {
        Outcome outcome;
        outcome.m_problem = std::move(problem);
        return outcome;
    }
    /*! \brief A failure of the whole: \a text is one sentence without a full stop that names the reason. */
    static Outcome failure(const QString &text) { return failure(Problem{text, {}, 0, 0}); }

    /*! \brief Whether there is a value. */
    explicit operator bool() const { return m_value.has_value(); }
    /*! \brief The value. Undefined after a failure. */
    const T &operator*() const { return *m_value; }
    /*! \brief A member of the value. Undefined after a failure. */
    const T *operator->() const { return &*m_value; }
    /*! \brief Why there is no value; without a text when there is one. */
    const Problem &problem() const { return m_problem; }
    /*! \brief Why there is no value, as one line without a file name; empty when there is one. */
    QString error() const { return m_value ? QString() : m_problem.message(); }
    /*! \brief What a user must know of the value, in the order of the file. */
    const QVector<Problem> &warnings() const { return m_warnings; }

private:
    Outcome() = default;

    std::optional<T> m_value;
    Problem m_problem;
    QVector<Problem> m_warnings;
};

} // namespace gamutfiles

#endif // GAMUTFILES_OUTCOME_H
