// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "iccmemory_p.h"

#include <lcms2_plugin.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace gamutfiles {

namespace {

constexpr std::size_t timesTheProfile = 8;
constexpr std::size_t inAnyCase = std::size_t(1024) * 1024;

//! In front of each piece; as large as the strictest alignment asks for.
struct alignas(std::max_align_t) Header {
    std::size_t size;
};

Header *headerOf(void *piece)
{
    return static_cast<Header *>(piece) - 1;
}

} // namespace

IccMemory::IccMemory(int profileSize)
    : m_limit(timesTheProfile * std::size_t(std::max(profileSize, 0)) + inAnyCase)
{
    cmsPluginMemHandler handler{};
    handler.base.Magic = cmsPluginMagicNumber;
    handler.base.ExpectedVersion = 2000;
    handler.base.Type = cmsPluginMemHandlerSig;
    handler.MallocPtr = allocate;
    handler.FreePtr = release;
    handler.ReallocPtr = reallocate;
    m_context = cmsCreateContext(&handler, this);
}

IccMemory::~IccMemory()
{
    if (m_context) {
        cmsDeleteContext(m_context);
    }
}

void *IccMemory::allocate(cmsContext context, cmsUInt32Number size)
{
    auto *memory = static_cast<IccMemory *>(cmsGetContextUserData(context));
    if (!memory || size > memory->m_limit - memory->m_used) {
        if (memory) {
            memory->m_refused = std::max(memory->m_refused, std::size_t(size));
        }
        return nullptr;
    }
    auto *header = static_cast<Header *>(std::malloc(sizeof(Header) + size));
    if (!header) {
        return nullptr;
    }
    header->size = size;
    memory->m_used += size;
    memory->m_peak = std::max(memory->m_peak, memory->m_used);
    return header + 1;
}

void *IccMemory::reallocate(cmsContext context, void *piece, cmsUInt32Number size)
{
    void *larger = allocate(context, size);
    if (larger && piece) {
        std::memcpy(larger, piece, std::min(headerOf(piece)->size, std::size_t(size)));
        release(context, piece);
    }
    return larger;
}

void IccMemory::release(cmsContext context, void *piece)
{
    if (!piece) {
        return;
    }
    if (auto *memory = static_cast<IccMemory *>(cmsGetContextUserData(context))) {
        memory->m_used -= headerOf(piece)->size;
    }
    std::free(headerOf(piece));
}

} // namespace gamutfiles
