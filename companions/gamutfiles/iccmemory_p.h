// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_ICCMEMORY_P_H
#define GAMUTFILES_ICCMEMORY_P_H

#include <gamutfiles/iccprofile.h>

#include <lcms2.h>

#include <cstddef>
#include <memory>
#include <type_traits>

namespace gamutfiles {

/*!
 * \brief The memory of one reading of a profile, which is refused beyond a limit.
 *
 * Little CMS allocates what the counts of a profile ask for before it looks whether the file is as long.
 */
class IccMemory {
public:
    /*! \brief Enough for every profile of \a profileSize bytes whose counts are right: 8 times its size and 1 MiB. */
    explicit IccMemory(int profileSize);
    ~IccMemory();
    IccMemory(const IccMemory &) = delete;
    IccMemory &operator=(const IccMemory &) = delete;

    /*! \brief A context that allocates from this memory; null if there is no memory at all. */
    cmsContext context() const { return m_context; }

    std::size_t limit() const { return m_limit; } //!< bytes
    std::size_t peak() const { return m_peak; } //!< the most bytes that were in use together
    std::size_t refused() const { return m_refused; } //!< the largest piece that was not given, in bytes

private:
    static void *allocate(cmsContext context, cmsUInt32Number size);
    static void *reallocate(cmsContext context, void *piece, cmsUInt32Number size);
    static void release(cmsContext context, void *piece);

    std::size_t m_limit;
    std::size_t m_used = 0;
    std::size_t m_peak = 0;
    std::size_t m_refused = 0;
    cmsContext m_context = nullptr;
};

/*! \brief readIccDisplay() in \a memory. */
Outcome<IccDisplay> readIccDisplay(const QByteArray &bytes, const IccMemory &memory);

} // namespace gamutfiles

#endif
