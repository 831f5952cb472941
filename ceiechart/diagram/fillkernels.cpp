// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// The loop of the fill: in plain C++ for every processor, and in vector instructions, which are SSE2, AVX2 and AVX-512
// of x86-64 and NEON of 64-bit ARM. All do the same operations in the same order, so that they give the same bits;
// horseshoefill.cpp says what they compute. The loop in vector instructions is written once, in fillkernelloop_p.h,
// with operations that a class for each set of instructions defines here.
//
// The instructions are named by intrinsics, which all compilers know. Every x86-64 processor supports SSE2, and every
// 64-bit ARM processor NEON. GCC and clang want to be told for each function which instructions it may use beyond
// these; the compiler of Microsoft allows all of them everywhere. What the processor supports is asked by the same
// steps with all compilers, so that a test with one of them tests it for all.
#include <ceiechart/diagram/fillkernels_p.h>

#include <algorithm>
#include <cstring>
#include <iterator>

#if defined(__x86_64__) || defined(_M_X64)
#define CEIECHART_FILL_SSE2 1
#include <emmintrin.h>
#if defined(_MSC_VER) && !defined(__clang__)
#define CEIECHART_FILL_AVX 1
#define CEIECHART_TARGET(instructions)
#include <intrin.h>
#elif defined(__GNUC__) && !defined(_WIN32)
// On Windows, GCC aligns what it puts on the stack enough for SSE2 but not for AVX (bug 54412 of GCC), and clang in the
// manner of Microsoft's compiler leaves out the intrinsics of AVX unless all code may use them.
#define CEIECHART_FILL_AVX 1
#define CEIECHART_TARGET(instructions) __attribute__((target(instructions)))
#include <cpuid.h>
#include <immintrin.h>
#ifndef __clang__
// What some intrinsics of GCC 12 leave undefined on purpose (bug 105593 of GCC).
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"
#endif
#endif
#elif defined(__aarch64__) || defined(_M_ARM64)
#define CEIECHART_FILL_NEON 1
#include <arm_neon.h>
#endif

namespace ceiechart {

namespace {

constexpr unsigned fractionMask = (1U << PixelRun::fractionBits) - 1;

// What is added to a channel. With 256 it has its whole part in the 8 bits below the exponent, and its fraction below
// them. A half rounds it to nearest. With the margin, the fractions near a rounding boundary are those below twice the
// margin.
float offsetOf(const PixelRun &run)
{
    return 256.5F + static_cast<float>(run.margin) / static_cast<float>(1U << PixelRun::fractionBits);
}

// The two channels that are not the largest.
template <int largest>
struct Others {
    static constexpr int first = largest == 0 ? 1 : 0;
    static constexpr int second = largest == 2 ? 1 : 2;
};

constexpr int shiftOf(int channel)
{
    return 16 - 8 * channel;
}

constexpr unsigned maskOf(int channel)
{
    return 0xffU << shiftOf(channel);
}

constexpr unsigned opaque = 0xff000000U;

inline unsigned bitsOf(float value)
{
    unsigned bits;
    static_assert(sizeof bits == sizeof value, "bits of a float");
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

template <int channel>
unsigned placedPlain(unsigned bits)
{
    return bits >> PixelRun::fractionBits << shiftOf(channel) & maskOf(channel);
}

template <int largest>
int decidePlain(const PixelRun &run, int count, unsigned *colors, int *undecided)
{
    constexpr int first = Others<largest>::first;
    constexpr int second = Others<largest>::second;
    constexpr int block = 64; // pixels: the loop that colours them has no branches, to be vectorised
    const float offset = offsetOf(run);
    const auto nearest = static_cast<unsigned>(2 * run.margin);
    int found = 0;
    for (int begin = 0; begin < count; begin += block) {
        const int length = std::min(block, count - begin);
        unsigned isNear[block];
        unsigned any = 0;
        for (int k = 0; k < length; ++k) {
            const auto at = static_cast<float>(begin + k);
            const float scale = 255.0F / (run.amounts[largest] + at * run.steps[largest]);
            const unsigned a = bitsOf((run.amounts[first] + at * run.steps[first]) * scale + offset);
            const unsigned b = bitsOf((run.amounts[second] + at * run.steps[second]) * scale + offset);
            colors[begin + k] = opaque | maskOf(largest) | placedPlain<first>(a) | placedPlain<second>(b);
            isNear[k] = unsigned(std::min(a & fractionMask, b & fractionMask) < nearest);
            any |= isNear[k];
        }
        for (int k = 0; any != 0 && k < length; ++k) {
            undecided[found] = begin + k;
            found += static_cast<int>(isNear[k]);
        }
    }
    return found;
}

int decideAnywhere(const PixelRun &run, int count, unsigned *colors, int *undecided)
{
    switch (run.largest) {
    case 0:
        return decidePlain<0>(run, count, colors, undecided);
    case 1:
        return decidePlain<1>(run, count, colors, undecided);
    default:
        return decidePlain<2>(run, count, colors, undecided);
    }
}

bool everywhere()
{
    return true;
}

// smaller() and isBelow() are given numbers of 15 bits.

#ifdef CEIECHART_FILL_SSE2

struct Sse2 {
    using Floats = __m128;
    using Words = __m128i;
    using Choice = __m128i;
    static constexpr int lanes = 4;

    static Floats all(float value) { return _mm_set1_ps(value); }
    static Floats indexes() { return _mm_setr_ps(0, 1, 2, 3); }
    static Floats sum(Floats a, Floats b) { return _mm_add_ps(a, b); }
    static Floats product(Floats a, Floats b) { return _mm_mul_ps(a, b); }
    static Floats quotient(Floats a, Floats b) { return _mm_div_ps(a, b); }

    static Words bits(Floats a) { return _mm_castps_si128(a); }
    static Words allWords(unsigned value) { return _mm_set1_epi32(static_cast<int>(value)); }
    static Words both(Words a, Words b) { return _mm_and_si128(a, b); }
    static Words either(Words a, Words b) { return _mm_or_si128(a, b); }
    template <int places>
    static Words up(Words a)
    {
        return _mm_slli_epi32(a, places);
    }
    template <int places>
    static Words down(Words a)
    {
        return _mm_srli_epi32(a, places);
    }
    static void store(unsigned *to, Words a) { _mm_storeu_si128(reinterpret_cast<__m128i *>(to), a); }

    static Words smaller(Words a, Words b) { return _mm_min_epi16(a, b); }
    static Choice isBelow(Words a, Words b) { return _mm_cmplt_epi32(a, b); }
    static unsigned chosen(Choice a) { return static_cast<unsigned>(_mm_movemask_ps(_mm_castsi128_ps(a))); }

#define CEIECHART_FILL_TARGET
#include <ceiechart/diagram/fillkernelloop_p.h>
#undef CEIECHART_FILL_TARGET
};

#endif

#ifdef CEIECHART_FILL_NEON

struct Neon {
    using Floats = float32x4_t;
    using Words = uint32x4_t;
    using Choice = uint32x4_t;
    static constexpr int lanes = 4;
    static constexpr float firstIndexes[] = {0, 1, 2, 3};
    static constexpr unsigned laneBits[] = {1, 2, 4, 8};

    static Floats all(float value) { return vdupq_n_f32(value); }
    static Floats indexes() { return vld1q_f32(firstIndexes); }
    static Floats sum(Floats a, Floats b) { return vaddq_f32(a, b); }
    static Floats product(Floats a, Floats b) { return vmulq_f32(a, b); }
    static Floats quotient(Floats a, Floats b) { return vdivq_f32(a, b); }

    static Words bits(Floats a) { return vreinterpretq_u32_f32(a); }
    static Words allWords(unsigned value) { return vdupq_n_u32(value); }
    static Words both(Words a, Words b) { return vandq_u32(a, b); }
    static Words either(Words a, Words b) { return vorrq_u32(a, b); }
    template <int places>
    static Words up(Words a)
    {
        return vshlq_n_u32(a, places);
    }
    template <int places>
    static Words down(Words a)
    {
        return vshrq_n_u32(a, places);
    }
    static void store(unsigned *to, Words a) { vst1q_u32(to, a); }

    static Words smaller(Words a, Words b) { return vminq_u32(a, b); }
    static Choice isBelow(Words a, Words b) { return vcltq_u32(a, b); }
    static unsigned chosen(Choice a) { return vaddvq_u32(vandq_u32(a, vld1q_u32(laneBits))); }

#define CEIECHART_FILL_TARGET
#include <ceiechart/diagram/fillkernelloop_p.h>
#undef CEIECHART_FILL_TARGET
};

#endif

#ifdef CEIECHART_FILL_AVX

#define CEIECHART_FILL_TARGET CEIECHART_TARGET("avx2")

struct Avx2 {
    using Floats = __m256;
    using Words = __m256i;
    using Choice = __m256i;
    static constexpr int lanes = 8;

    CEIECHART_FILL_TARGET static Floats all(float value) { return _mm256_set1_ps(value); }
    CEIECHART_FILL_TARGET static Floats indexes() { return _mm256_setr_ps(0, 1, 2, 3, 4, 5, 6, 7); }
    CEIECHART_FILL_TARGET static Floats sum(Floats a, Floats b) { return _mm256_add_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats product(Floats a, Floats b) { return _mm256_mul_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats quotient(Floats a, Floats b) { return _mm256_div_ps(a, b); }

    CEIECHART_FILL_TARGET static Words bits(Floats a) { return _mm256_castps_si256(a); }
    CEIECHART_FILL_TARGET static Words allWords(unsigned value) { return _mm256_set1_epi32(static_cast<int>(value)); }
    CEIECHART_FILL_TARGET static Words both(Words a, Words b) { return _mm256_and_si256(a, b); }
    CEIECHART_FILL_TARGET static Words either(Words a, Words b) { return _mm256_or_si256(a, b); }
    template <int places>
    CEIECHART_FILL_TARGET static Words up(Words a)
    {
        return _mm256_slli_epi32(a, places);
    }
    template <int places>
    CEIECHART_FILL_TARGET static Words down(Words a)
    {
        return _mm256_srli_epi32(a, places);
    }
    CEIECHART_FILL_TARGET static void store(unsigned *to, Words a)
    {
        _mm256_storeu_si256(reinterpret_cast<__m256i *>(to), a);
    }

    CEIECHART_FILL_TARGET static Words smaller(Words a, Words b) { return _mm256_min_epi32(a, b); }
    CEIECHART_FILL_TARGET static Choice isBelow(Words a, Words b) { return _mm256_cmpgt_epi32(b, a); }
    CEIECHART_FILL_TARGET static unsigned chosen(Choice a)
    {
        return static_cast<unsigned>(_mm256_movemask_ps(_mm256_castsi256_ps(a)));
    }

#include <ceiechart/diagram/fillkernelloop_p.h>
};

#undef CEIECHART_FILL_TARGET
#define CEIECHART_FILL_TARGET CEIECHART_TARGET("avx512f")

struct Avx512 {
    using Floats = __m512;
    using Words = __m512i;
    using Choice = __mmask16;
    static constexpr int lanes = 16;

    CEIECHART_FILL_TARGET static Floats all(float value) { return _mm512_set1_ps(value); }
    CEIECHART_FILL_TARGET static Floats indexes()
    {
        return _mm512_setr_ps(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
    }
    CEIECHART_FILL_TARGET static Floats sum(Floats a, Floats b) { return _mm512_add_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats product(Floats a, Floats b) { return _mm512_mul_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats quotient(Floats a, Floats b) { return _mm512_div_ps(a, b); }

    CEIECHART_FILL_TARGET static Words bits(Floats a) { return _mm512_castps_si512(a); }
    CEIECHART_FILL_TARGET static Words allWords(unsigned value) { return _mm512_set1_epi32(static_cast<int>(value)); }
    CEIECHART_FILL_TARGET static Words both(Words a, Words b) { return _mm512_and_si512(a, b); }
    CEIECHART_FILL_TARGET static Words either(Words a, Words b) { return _mm512_or_si512(a, b); }
    template <int places>
    CEIECHART_FILL_TARGET static Words up(Words a)
    {
        return _mm512_slli_epi32(a, places);
    }
    template <int places>
    CEIECHART_FILL_TARGET static Words down(Words a)
    {
        return _mm512_srli_epi32(a, places);
    }
    CEIECHART_FILL_TARGET static void store(unsigned *to, Words a) { _mm512_storeu_si512(to, a); }

    CEIECHART_FILL_TARGET static Words smaller(Words a, Words b) { return _mm512_min_epi32(a, b); }
    CEIECHART_FILL_TARGET static Choice isBelow(Words a, Words b) { return _mm512_cmplt_epi32_mask(a, b); }
    CEIECHART_FILL_TARGET static unsigned chosen(Choice a) { return a; }

#include <ceiechart/diagram/fillkernelloop_p.h>
};

#undef CEIECHART_FILL_TARGET

// What follows is from the Intel 64 and IA-32 Architectures Software Developer's Manual, volume 1, 13.2, 14.7 and 15.2:
// the processor must know the instructions, and the operating system must keep their registers for each thread.

struct Identification {
    unsigned a, b, c, d;
};

Identification identification(unsigned leaf)
{
#ifdef _MSC_VER
    int values[4];
    __cpuidex(values, static_cast<int>(leaf), 0);
    return {unsigned(values[0]), unsigned(values[1]), unsigned(values[2]), unsigned(values[3])};
#else
    Identification id{};
    __cpuid_count(leaf, 0, id.a, id.b, id.c, id.d);
    return id;
#endif
}

unsigned keptRegisters()
{
    constexpr unsigned osxsave = 1U << 27;
    if ((identification(1).c & osxsave) == 0) {
        return 0;
    }
#ifdef _MSC_VER
    return static_cast<unsigned>(_xgetbv(0));
#else
    unsigned low = 0;
    unsigned high = 0;
    __asm__("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return low;
#endif
}

constexpr unsigned avxRegisters = 0x06; // those of SSE, and their upper halves
constexpr unsigned avx512Registers = 0xe6; // and masks, the halves above, and the registers from the 17th on

bool hasAvx()
{
    constexpr unsigned avx = 1U << 28;
    return (identification(1).c & avx) != 0 && (keptRegisters() & avxRegisters) == avxRegisters;
}

bool supports(unsigned instructions, unsigned registers)
{
    constexpr unsigned extensions = 7;
    return identification(0).a >= extensions && (identification(extensions).b & instructions) == instructions
        && (keptRegisters() & registers) == registers;
}

bool hasAvx2()
{
    return supports(1U << 5, avxRegisters);
}

bool hasAvx512()
{
    return supports(1U << 16, avx512Registers);
}

CEIECHART_TARGET("avx") void clearUpperHalves()
{
    _mm256_zeroupper();
}

#endif

#ifdef CEIECHART_FILL_SSE2

int decideSse2(const PixelRun &run, int count, unsigned *colors, int *undecided)
{
#ifdef CEIECHART_FILL_AVX
    // Other code may have left numbers in the upper halves of the registers, as Qt 5.15 does when it fills a picture.
    // Instructions of SSE leave them there, for which they wait for what was last done with the register. This can take
    // three times as long.
    static const bool hasUpperHalves = hasAvx();
    if (hasUpperHalves) {
        clearUpperHalves();
    }
#endif
    return Sse2::decide(run, count, colors, undecided);
}

#endif

} // namespace

const FillKernel fillKernels[] = {
#ifdef CEIECHART_FILL_AVX
    {"AVX-512", hasAvx512, Avx512::decide},
    {"AVX2", hasAvx2, Avx2::decide},
#endif
#ifdef CEIECHART_FILL_SSE2
    {"SSE2", everywhere, decideSse2},
#endif
#ifdef CEIECHART_FILL_NEON
    {"NEON", everywhere, Neon::decide},
#endif
    {"portable", everywhere, decideAnywhere},
};

const int fillKernelCount = int(std::size(fillKernels));

const FillKernel &fastestFillKernel()
{
    static const FillKernel &fastest = *std::find_if(
        std::begin(fillKernels), std::end(fillKernels), [](const FillKernel &kernel) { return kernel.supported(); });
    return fastest;
}

} // namespace ceiechart
