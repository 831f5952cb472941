// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_FUZZ_PROMISES_H
#define CEIECHART_TESTS_FUZZ_PROMISES_H

#include <gamutfiles/displaydescription.h>
#include <gamutfiles/outcome.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/*!
 * \file
 * \brief What every reader promises, whatever a file contains. A broken promise ends the program, so that the fuzzer
 * keeps the file.
 */
namespace fuzz {

inline void require(bool kept, const char *promise)
{
    if (!kept) {
        std::fprintf(stderr, "broken: %s\n", promise);
        std::abort();
    }
}

/*! \brief The input as bytes, without a copy. */
inline QByteArray bytes(const std::uint8_t *data, std::size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
}

/*! \brief A message is one line of bearable length that says something. */
inline void requireMessage(const gamutfiles::Problem &problem)
{
    constexpr int longest = 1000;
    const QString message = problem.message();
    require(!problem.text.isEmpty(), "a message says something");
    require(message.size() <= longest, "a message is short");
    for (const QChar c : message) {
        require(c.category() != QChar::Other_Control && c.category() != QChar::Separator_Line
                && c.category() != QChar::Separator_Paragraph,
            "a message is one line");
    }
}

/*! \brief There is a value or a reason, and a bearable number of warnings. */
template <typename T>
void requireOutcome(const gamutfiles::Outcome<T> &outcome)
{
    constexpr int mostWarnings = 200;
    require(bool(outcome) == outcome.problem().text.isEmpty(), "there is a value or a reason, and not both");
    if (!outcome) {
        requireMessage(outcome.problem());
    }
    require(outcome.warnings().size() <= mostWarnings, "warnings are few");
    for (const gamutfiles::Problem &warning : outcome.warnings()) {
        requireMessage(warning);
    }
}

/*! \brief A colour has finite numbers, and a place on the diagrams. */
inline void requireColor(const Model::Target &color)
{
    require(std::isfinite(color.Y) && std::isfinite(color.x) && std::isfinite(color.y), "a colour is finite");
    require(color.x >= -1.0 && color.x <= 2.0 && color.y >= -1.0 && color.y <= 2.0 && color.y != 0.0,
        "a chromaticity is in range");
}

inline void requireGamut(const Model::ColorGamut &gamut)
{
    const Model::Targets &colors = gamut.getTargets();
    for (const Model::Target *color : {&colors.red, &colors.green, &colors.blue, &colors.white}) {
        requireColor(*color);
    }
}

} // namespace fuzz

#endif // CEIECHART_TESTS_FUZZ_PROMISES_H
