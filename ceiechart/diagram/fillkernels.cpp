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
#include <cmath>
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

// A sum with this number has the nearest whole number in its lowest bits.
constexpr float wholes = 12582912.0F; // 1.5 * 2^23
constexpr unsigned wholesBits = 0x4b400000U;
// What is above the lowest byte of each channel is the same for all pixels, or shifted out.
constexpr unsigned opaque = 0xff000000U - (wholesBits << 8) - wholesBits;

inline unsigned bitsOf(float value)
{
    unsigned bits;
    static_assert(sizeof bits == sizeof value, "bits of a float");
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

bool decideAnywhere(const PixelRun &run, int count, unsigned *colors, unsigned *undecided)
{
    const float farthest = 0.5F - run.margin;
    unsigned any = 0;
    for (int k = 0; k < count; ++k) {
        const auto step = static_cast<float>(k);
        float red = run.red + step * run.redStep;
        float green = run.green + step * run.greenStep;
        float blue = run.blue + step * run.blueStep;
        red = red > 0.0F ? red : 0.0F;
        green = green > 0.0F ? green : 0.0F;
        blue = blue > 0.0F ? blue : 0.0F;
        red = red < 1.0F ? red : 1.0F;
        green = green < 1.0F ? green : 1.0F;
        blue = blue < 1.0F ? blue : 1.0F;
        float largest = green > red ? green : red;
        largest = blue > largest ? blue : largest;

        const float scale = 255.0F / largest;
        red *= scale;
        green *= scale;
        blue *= scale;
        const float nearRed = red + wholes;
        const float nearGreen = green + wholes;
        const float nearBlue = blue + wholes;
        const float offRed = std::fabs(red - (nearRed - wholes));
        const float offGreen = std::fabs(green - (nearGreen - wholes));
        const float offBlue = std::fabs(blue - (nearBlue - wholes));
        float off = offGreen > offRed ? offGreen : offRed;
        off = offBlue > off ? offBlue : off;

        const auto isNear = unsigned(off > farthest);
        undecided[k] = isNear;
        any |= isNear;
        colors[k] = (bitsOf(nearRed) << 16) + (bitsOf(nearGreen) << 8) + bitsOf(nearBlue) + opaque;
    }
    return any != 0;
}

bool everywhere()
{
    return true;
}

// larger() and smaller() give the second operand if one is not a number, as "a > b ? a : b" and "a < b ? a : b" do.

#ifdef CEIECHART_FILL_SSE2

// The maximum and the minimum of x86 do so.

struct Sse2 {
    using Floats = __m128;
    using Words = __m128i;
    using Choice = __m128;
    static constexpr int lanes = 4;

    static Floats all(float value) { return _mm_set1_ps(value); }
    static Floats sum(Floats a, Floats b) { return _mm_add_ps(a, b); }
    static Floats difference(Floats a, Floats b) { return _mm_sub_ps(a, b); }
    static Floats product(Floats a, Floats b) { return _mm_mul_ps(a, b); }
    static Floats quotient(Floats a, Floats b) { return _mm_div_ps(a, b); }
    static Floats larger(Floats a, Floats b) { return _mm_max_ps(a, b); }
    static Floats smaller(Floats a, Floats b) { return _mm_min_ps(a, b); }
    static Floats magnitude(Floats a) { return _mm_andnot_ps(_mm_set1_ps(-0.0F), a); }

    static Choice none() { return _mm_setzero_ps(); }
    static Choice greater(Floats a, Floats b) { return _mm_cmpgt_ps(a, b); }
    static Choice either(Choice a, Choice b) { return _mm_or_ps(a, b); }
    static bool isAny(Choice a) { return _mm_movemask_ps(a) != 0; }
    static Words ones(Choice a) { return _mm_srli_epi32(_mm_castps_si128(a), 31); }

    static Words bits(Floats a) { return _mm_castps_si128(a); }
    static Words allWords(unsigned value) { return _mm_set1_epi32(static_cast<int>(value)); }
    static Words indexes() { return _mm_setr_epi32(0, 1, 2, 3); }
    static Floats numbers(Words a) { return _mm_cvtepi32_ps(a); }
    static Words wordSum(Words a, Words b) { return _mm_add_epi32(a, b); }
    template <int places>
    static Words shifted(Words a)
    {
        return _mm_slli_epi32(a, places);
    }
    static void store(unsigned *to, Words a) { _mm_storeu_si128(reinterpret_cast<__m128i *>(to), a); }

#define CEIECHART_FILL_TARGET
#include <ceiechart/diagram/fillkernelloop_p.h>
#undef CEIECHART_FILL_TARGET
};

#endif

#ifdef CEIECHART_FILL_NEON

// The maximum and the minimum of NEON do not, so that these compare and select.

struct Neon {
    using Floats = float32x4_t;
    using Words = uint32x4_t;
    using Choice = uint32x4_t;
    static constexpr int lanes = 4;
    static constexpr unsigned firstIndexes[] = {0, 1, 2, 3};

    static Floats all(float value) { return vdupq_n_f32(value); }
    static Floats sum(Floats a, Floats b) { return vaddq_f32(a, b); }
    static Floats difference(Floats a, Floats b) { return vsubq_f32(a, b); }
    static Floats product(Floats a, Floats b) { return vmulq_f32(a, b); }
    static Floats quotient(Floats a, Floats b) { return vdivq_f32(a, b); }
    static Floats larger(Floats a, Floats b) { return vbslq_f32(vcgtq_f32(a, b), a, b); }
    static Floats smaller(Floats a, Floats b) { return vbslq_f32(vcltq_f32(a, b), a, b); }
    static Floats magnitude(Floats a) { return vabsq_f32(a); }

    static Choice none() { return vdupq_n_u32(0); }
    static Choice greater(Floats a, Floats b) { return vcgtq_f32(a, b); }
    static Choice either(Choice a, Choice b) { return vorrq_u32(a, b); }
    static bool isAny(Choice a) { return vmaxvq_u32(a) != 0; }
    static Words ones(Choice a) { return vshrq_n_u32(a, 31); }

    static Words bits(Floats a) { return vreinterpretq_u32_f32(a); }
    static Words allWords(unsigned value) { return vdupq_n_u32(value); }
    static Words indexes() { return vld1q_u32(firstIndexes); }
    static Floats numbers(Words a) { return vcvtq_f32_u32(a); }
    static Words wordSum(Words a, Words b) { return vaddq_u32(a, b); }
    template <int places>
    static Words shifted(Words a)
    {
        return vshlq_n_u32(a, places);
    }
    static void store(unsigned *to, Words a) { vst1q_u32(to, a); }

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
    using Choice = __m256;
    static constexpr int lanes = 8;

    CEIECHART_FILL_TARGET static Floats all(float value) { return _mm256_set1_ps(value); }
    CEIECHART_FILL_TARGET static Floats sum(Floats a, Floats b) { return _mm256_add_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats difference(Floats a, Floats b) { return _mm256_sub_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats product(Floats a, Floats b) { return _mm256_mul_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats quotient(Floats a, Floats b) { return _mm256_div_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats larger(Floats a, Floats b) { return _mm256_max_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats smaller(Floats a, Floats b) { return _mm256_min_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats magnitude(Floats a) { return _mm256_andnot_ps(_mm256_set1_ps(-0.0F), a); }

    CEIECHART_FILL_TARGET static Choice none() { return _mm256_setzero_ps(); }
    CEIECHART_FILL_TARGET static Choice greater(Floats a, Floats b) { return _mm256_cmp_ps(a, b, _CMP_GT_OQ); }
    CEIECHART_FILL_TARGET static Choice either(Choice a, Choice b) { return _mm256_or_ps(a, b); }
    CEIECHART_FILL_TARGET static bool isAny(Choice a) { return _mm256_movemask_ps(a) != 0; }
    CEIECHART_FILL_TARGET static Words ones(Choice a) { return _mm256_srli_epi32(_mm256_castps_si256(a), 31); }

    CEIECHART_FILL_TARGET static Words bits(Floats a) { return _mm256_castps_si256(a); }
    CEIECHART_FILL_TARGET static Words allWords(unsigned value) { return _mm256_set1_epi32(static_cast<int>(value)); }
    CEIECHART_FILL_TARGET static Words indexes() { return _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7); }
    CEIECHART_FILL_TARGET static Floats numbers(Words a) { return _mm256_cvtepi32_ps(a); }
    CEIECHART_FILL_TARGET static Words wordSum(Words a, Words b) { return _mm256_add_epi32(a, b); }
    template <int places>
    CEIECHART_FILL_TARGET static Words shifted(Words a)
    {
        return _mm256_slli_epi32(a, places);
    }
    CEIECHART_FILL_TARGET static void store(unsigned *to, Words a)
    {
        _mm256_storeu_si256(reinterpret_cast<__m256i *>(to), a);
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
    CEIECHART_FILL_TARGET static Floats sum(Floats a, Floats b) { return _mm512_add_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats difference(Floats a, Floats b) { return _mm512_sub_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats product(Floats a, Floats b) { return _mm512_mul_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats quotient(Floats a, Floats b) { return _mm512_div_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats larger(Floats a, Floats b) { return _mm512_max_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats smaller(Floats a, Floats b) { return _mm512_min_ps(a, b); }
    CEIECHART_FILL_TARGET static Floats magnitude(Floats a) { return _mm512_abs_ps(a); }

    CEIECHART_FILL_TARGET static Choice none() { return 0; }
    CEIECHART_FILL_TARGET static Choice greater(Floats a, Floats b) { return _mm512_cmp_ps_mask(a, b, _CMP_GT_OQ); }
    CEIECHART_FILL_TARGET static Choice either(Choice a, Choice b) { return static_cast<Choice>(a | b); }
    CEIECHART_FILL_TARGET static bool isAny(Choice a) { return a != 0; }
    CEIECHART_FILL_TARGET static Words ones(Choice a) { return _mm512_maskz_set1_epi32(a, 1); }

    CEIECHART_FILL_TARGET static Words bits(Floats a) { return _mm512_castps_si512(a); }
    CEIECHART_FILL_TARGET static Words allWords(unsigned value) { return _mm512_set1_epi32(static_cast<int>(value)); }
    CEIECHART_FILL_TARGET static Words indexes()
    {
        return _mm512_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
    }
    CEIECHART_FILL_TARGET static Floats numbers(Words a) { return _mm512_cvtepi32_ps(a); }
    CEIECHART_FILL_TARGET static Words wordSum(Words a, Words b) { return _mm512_add_epi32(a, b); }
    template <int places>
    CEIECHART_FILL_TARGET static Words shifted(Words a)
    {
        return _mm512_slli_epi32(a, places);
    }
    CEIECHART_FILL_TARGET static void store(unsigned *to, Words a) { _mm512_storeu_si512(to, a); }

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

bool decideSse2(const PixelRun &run, int count, unsigned *colors, unsigned *undecided)
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
