// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// The loop of the fill, written three times: in plain C++, and with the vector instructions AVX2 and AVX-512. All three
// do the same operations in the same order, so that they give the same bits; horseshoefill.cpp says what they compute.
//
// The instructions are named by intrinsics, which all compilers know. GCC and clang want to be told for each function
// which instructions it may use; the compiler of Microsoft allows all of them everywhere. What the processor supports
// is asked by the same steps with all compilers, so that a test with one of them tests it for all.
#include <ceiechart/diagram/fillkernels_p.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

#if defined(__x86_64__) || defined(_M_X64)
#if defined(_MSC_VER) && !defined(__clang__)
#define CEIECHART_FILL_X86 1
#define CEIECHART_TARGET(instructions)
#include <intrin.h>
#elif defined(__GNUC__) && !defined(_WIN32)
// On Windows, GCC does not align what it puts on the stack for AVX (bug 54412 of GCC), and clang in the manner of
// Microsoft's compiler leaves out the intrinsics unless all code may use them. Both use the plain loop.
#define CEIECHART_FILL_X86 1
#define CEIECHART_TARGET(instructions) __attribute__((target(instructions)))
#include <cpuid.h>
#include <immintrin.h>
#ifndef __clang__
// What some intrinsics of GCC 12 leave undefined on purpose (bug 105593 of GCC).
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"
#endif
#endif
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

#ifdef CEIECHART_FILL_X86

// The maximum and the minimum of x86 give the second operand if one is not a number, as "a > b ? a : b" does.

CEIECHART_TARGET("avx2")
bool decideAvx2(const PixelRun &run, int count, unsigned *colors, unsigned *undecided)
{
    constexpr int lanes = 8;
    const __m256 first[] = {_mm256_set1_ps(run.red), _mm256_set1_ps(run.green), _mm256_set1_ps(run.blue)};
    const __m256 steps[] = {_mm256_set1_ps(run.redStep), _mm256_set1_ps(run.greenStep), _mm256_set1_ps(run.blueStep)};
    const __m256 zero = _mm256_setzero_ps();
    const __m256 one = _mm256_set1_ps(1.0F);
    const __m256 toWholes = _mm256_set1_ps(wholes);
    const __m256 sign = _mm256_set1_ps(-0.0F);
    const __m256 farthest = _mm256_set1_ps(0.5F - run.margin);
    const __m256i indexes = _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7);
    __m256i any = _mm256_setzero_si256();
    for (int k = 0; k < count; k += lanes) {
        const __m256 step = _mm256_cvtepi32_ps(_mm256_add_epi32(_mm256_set1_epi32(k), indexes));
        const __m256 sums[] = {_mm256_add_ps(first[0], _mm256_mul_ps(step, steps[0])),
            _mm256_add_ps(first[1], _mm256_mul_ps(step, steps[1])),
            _mm256_add_ps(first[2], _mm256_mul_ps(step, steps[2]))};
        const __m256 red = _mm256_min_ps(_mm256_max_ps(sums[0], zero), one);
        const __m256 green = _mm256_min_ps(_mm256_max_ps(sums[1], zero), one);
        const __m256 blue = _mm256_min_ps(_mm256_max_ps(sums[2], zero), one);
        const __m256 largest = _mm256_max_ps(blue, _mm256_max_ps(green, red));

        const __m256 scale = _mm256_div_ps(_mm256_set1_ps(255.0F), largest);
        const __m256 scaledRed = _mm256_mul_ps(red, scale);
        const __m256 scaledGreen = _mm256_mul_ps(green, scale);
        const __m256 scaledBlue = _mm256_mul_ps(blue, scale);
        const __m256 nearRed = _mm256_add_ps(scaledRed, toWholes);
        const __m256 nearGreen = _mm256_add_ps(scaledGreen, toWholes);
        const __m256 nearBlue = _mm256_add_ps(scaledBlue, toWholes);
        const __m256 offRed = _mm256_andnot_ps(sign, _mm256_sub_ps(scaledRed, _mm256_sub_ps(nearRed, toWholes)));
        const __m256 offGreen = _mm256_andnot_ps(sign, _mm256_sub_ps(scaledGreen, _mm256_sub_ps(nearGreen, toWholes)));
        const __m256 offBlue = _mm256_andnot_ps(sign, _mm256_sub_ps(scaledBlue, _mm256_sub_ps(nearBlue, toWholes)));
        const __m256 off = _mm256_max_ps(offBlue, _mm256_max_ps(offGreen, offRed));

        const __m256i isNear = _mm256_srli_epi32(_mm256_castps_si256(_mm256_cmp_ps(off, farthest, _CMP_GT_OQ)), 31);
        const __m256i upper = _mm256_add_epi32(
            _mm256_slli_epi32(_mm256_castps_si256(nearRed), 16), _mm256_slli_epi32(_mm256_castps_si256(nearGreen), 8));
        const __m256i color = _mm256_add_epi32(
            upper, _mm256_add_epi32(_mm256_castps_si256(nearBlue), _mm256_set1_epi32(static_cast<int>(opaque))));
        if (k + lanes <= count) {
            _mm256_storeu_si256(reinterpret_cast<__m256i *>(undecided + k), isNear);
            _mm256_storeu_si256(reinterpret_cast<__m256i *>(colors + k), color);
            any = _mm256_or_si256(any, isNear);
        } else {
            const __m256i there = _mm256_cmpgt_epi32(_mm256_set1_epi32(count - k), indexes);
            _mm256_maskstore_epi32(reinterpret_cast<int *>(undecided + k), there, isNear);
            _mm256_maskstore_epi32(reinterpret_cast<int *>(colors + k), there, color);
            any = _mm256_or_si256(any, _mm256_and_si256(isNear, there));
        }
    }
    return _mm256_testz_si256(any, any) == 0;
}

CEIECHART_TARGET("avx512f")
bool decideAvx512(const PixelRun &run, int count, unsigned *colors, unsigned *undecided)
{
    constexpr int lanes = 16;
    const __m512 first[] = {_mm512_set1_ps(run.red), _mm512_set1_ps(run.green), _mm512_set1_ps(run.blue)};
    const __m512 steps[] = {_mm512_set1_ps(run.redStep), _mm512_set1_ps(run.greenStep), _mm512_set1_ps(run.blueStep)};
    const __m512 zero = _mm512_setzero_ps();
    const __m512 one = _mm512_set1_ps(1.0F);
    const __m512 toWholes = _mm512_set1_ps(wholes);
    const __m512 farthest = _mm512_set1_ps(0.5F - run.margin);
    const __m512i indexes = _mm512_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
    __mmask16 any = 0;
    for (int k = 0; k < count; k += lanes) {
        const __m512 step = _mm512_cvtepi32_ps(_mm512_add_epi32(_mm512_set1_epi32(k), indexes));
        const __m512 sums[] = {_mm512_add_ps(first[0], _mm512_mul_ps(step, steps[0])),
            _mm512_add_ps(first[1], _mm512_mul_ps(step, steps[1])),
            _mm512_add_ps(first[2], _mm512_mul_ps(step, steps[2]))};
        const __m512 red = _mm512_min_ps(_mm512_max_ps(sums[0], zero), one);
        const __m512 green = _mm512_min_ps(_mm512_max_ps(sums[1], zero), one);
        const __m512 blue = _mm512_min_ps(_mm512_max_ps(sums[2], zero), one);
        const __m512 largest = _mm512_max_ps(blue, _mm512_max_ps(green, red));

        const __m512 scale = _mm512_div_ps(_mm512_set1_ps(255.0F), largest);
        const __m512 scaledRed = _mm512_mul_ps(red, scale);
        const __m512 scaledGreen = _mm512_mul_ps(green, scale);
        const __m512 scaledBlue = _mm512_mul_ps(blue, scale);
        const __m512 nearRed = _mm512_add_ps(scaledRed, toWholes);
        const __m512 nearGreen = _mm512_add_ps(scaledGreen, toWholes);
        const __m512 nearBlue = _mm512_add_ps(scaledBlue, toWholes);
        const __m512 offRed = _mm512_abs_ps(_mm512_sub_ps(scaledRed, _mm512_sub_ps(nearRed, toWholes)));
        const __m512 offGreen = _mm512_abs_ps(_mm512_sub_ps(scaledGreen, _mm512_sub_ps(nearGreen, toWholes)));
        const __m512 offBlue = _mm512_abs_ps(_mm512_sub_ps(scaledBlue, _mm512_sub_ps(nearBlue, toWholes)));
        const __m512 off = _mm512_max_ps(offBlue, _mm512_max_ps(offGreen, offRed));

        const __mmask16 isNear = _mm512_cmp_ps_mask(off, farthest, _CMP_GT_OQ);
        const __m512i upper = _mm512_add_epi32(
            _mm512_slli_epi32(_mm512_castps_si512(nearRed), 16), _mm512_slli_epi32(_mm512_castps_si512(nearGreen), 8));
        const __m512i color = _mm512_add_epi32(
            upper, _mm512_add_epi32(_mm512_castps_si512(nearBlue), _mm512_set1_epi32(static_cast<int>(opaque))));
        const __m512i flags = _mm512_maskz_set1_epi32(isNear, 1);
        if (k + lanes <= count) {
            _mm512_storeu_si512(undecided + k, flags);
            _mm512_storeu_si512(colors + k, color);
            any = static_cast<__mmask16>(any | isNear);
        } else {
            const auto there = static_cast<__mmask16>((1 << (count - k)) - 1);
            _mm512_mask_storeu_epi32(undecided + k, there, flags);
            _mm512_mask_storeu_epi32(colors + k, there, color);
            any = static_cast<__mmask16>(any | (isNear & there));
        }
    }
    return any != 0;
}

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

bool supports(unsigned instructions, unsigned registers)
{
    constexpr unsigned extensions = 7;
    return identification(0).a >= extensions && (identification(extensions).b & instructions) == instructions
        && (keptRegisters() & registers) == registers;
}

bool hasAvx2()
{
    return supports(1U << 5, 0x06); // the registers of SSE and AVX
}

bool hasAvx512()
{
    return supports(1U << 16, 0xe6); // and those of AVX-512: masks and both halves
}

#endif

} // namespace

const FillKernel fillKernels[] = {
#ifdef CEIECHART_FILL_X86
    {"AVX-512", hasAvx512, decideAvx512},
    {"AVX2", hasAvx2, decideAvx2},
#endif
    {"baseline", everywhere, decideAnywhere},
};

const int fillKernelCount = int(std::size(fillKernels));

const FillKernel &fastestFillKernel()
{
    static const FillKernel &fastest = *std::find_if(
        std::begin(fillKernels), std::end(fillKernels), [](const FillKernel &kernel) { return kernel.supported(); });
    return fastest;
}

} // namespace ceiechart
