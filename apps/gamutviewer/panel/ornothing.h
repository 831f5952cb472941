// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_ORNOTHING_H
#define GAMUTVIEWER_ORNOTHING_H

#include <new>

namespace gamutviewer {

/*!
 * \brief What \a action returns, or a value of that type that says nothing where there is not enough memory for it.
 *
 * For what the toolkit calls while it paints: it cannot pass an exception on, and would never paint again.
 */
template <typename Action>
auto orNothing(const Action &action) -> decltype(action())
{
    try {
        return action();
    } catch (const std::bad_alloc &) {
        return decltype(action())();
    }
}

} // namespace gamutviewer

#endif
