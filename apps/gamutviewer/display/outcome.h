// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_OUTCOME_H
#define GAMUTVIEWER_OUTCOME_H

#include <QString>

#include <optional>
#include <utility>

namespace gamutviewer {

/*! \brief What an operation gave, or why it gave nothing: exactly one of the two. */
template <typename T>
class Outcome {
public:
    Outcome(T value)
        : m_value(std::move(value))
    {
    }
    /*! \brief No value; \a error is one sentence without a full stop that names the reason. */
    static Outcome failure(const QString &error)
    {
        Outcome outcome;
        outcome.m_error = error;
        return outcome;
    }

    explicit operator bool() const { return m_value.has_value(); }
    const T &operator*() const { return *m_value; }
    const T *operator->() const { return &*m_value; }
    /*! \brief Empty when there is a value. */
    const QString &error() const { return m_error; }

private:
    Outcome() = default;

    std::optional<T> m_value;
    QString m_error;
};

} // namespace gamutviewer

#endif
