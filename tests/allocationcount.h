// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef ALLOCATIONCOUNT_H
#define ALLOCATIONCOUNT_H

#include <atomic>
#include <cstdlib>
#include <new>

/*!
 * \file
 * \brief Counts what a program allocates with operator new. One source of a test may include it.
 *
 * A std::string longer than a few characters is such an allocation, as is each copy of one. The count grows with the
 * number of names that are looked at, which tells a search through a list from a look-up on every machine alike.
 */

inline std::atomic<long long> &allocations()
{
    static std::atomic<long long> count{0};
    return count;
}

/*! \brief How many allocations \a action makes. */
template <typename Action>
long long allocationsOf(const Action &action)
{
    const long long before = allocations();
    action();
    return allocations() - before;
}

void *operator new(std::size_t size)
{
    ++allocations();
    if (void *piece = std::malloc(size == 0 ? 1 : size)) {
        return piece;
    }
    throw std::bad_alloc();
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    ++allocations();
    return std::malloc(size == 0 ? 1 : size);
}

void operator delete(void *piece) noexcept
{
    std::free(piece);
}

void operator delete(void *piece, std::size_t) noexcept
{
    std::free(piece);
}

#endif
