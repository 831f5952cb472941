// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_FOURPIXELS_P_H
#define CEIECHART_DIAGRAM_FOURPIXELS_P_H

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

#if defined(__x86_64__) || defined(_M_X64)
#define CEIECHART_FOUR_SSE2 1
#include <emmintrin.h>
#endif

namespace ceiechart {

/*!
 * \brief What four neighbouring pixels need to be painted with soft edges, in plain C++.
 *
 * FourBySse2 does the same operations in the same order, so that both give the same bits.
 */
struct FourPlain {
    using Floats = std::array<float, 4>;

    static Floats all(float value) { return {value, value, value, value}; }
    //! first, first + 1, first + 2, first + 3
    static Floats from(float first) { return {first, first + 1.0F, first + 2.0F, first + 3.0F}; }
    static Floats add(const Floats &a, const Floats &b)
    {
        return each(a, b, [](float x, float y) { return x + y; });
    }
    static Floats subtract(const Floats &a, const Floats &b)
    {
        return each(a, b, [](float x, float y) { return x - y; });
    }
    static Floats multiply(const Floats &a, const Floats &b)
    {
        return each(a, b, [](float x, float y) { return x * y; });
    }
    static Floats least(const Floats &a, const Floats &b)
    {
        return each(a, b, [](float x, float y) { return x < y ? x : y; });
    }
    static Floats most(const Floats &a, const Floats &b)
    {
        return each(a, b, [](float x, float y) { return x > y ? x : y; });
    }
    static Floats absolute(const Floats &a)
    {
        return each(a, a, [](float x, float) { return std::fabs(x); });
    }
    static Floats root(const Floats &a)
    {
        return each(a, a, [](float x, float) { return std::sqrt(x); });
    }
    //! \a values of which the first \a begin and those from \a end on are 0.
    static Floats only(const Floats &values, int begin, int end)
    {
        Floats result = values;
        for (int i = 0; i < 4; ++i) {
            result[std::size_t(i)] = i < begin || i >= end ? 0.0F : result[std::size_t(i)];
        }
        return result;
    }

    //! Has \a pixel brought into the cache, where the processor can be told to.
    static void fetch(const std::uint32_t * /*pixel*/) { }
    //! Moves each channel of \a pixels towards that of \a color by the whole part of \a shares, in 1/256.
    static void blend(std::uint32_t *pixels, std::uint32_t color, const Floats &shares)
    {
        for (std::size_t i = 0; i < 4; ++i) {
            const auto share = std::uint32_t(shares[i]);
            pixels[i] = eachChannel(pixels[i], color, [share](std::uint32_t former, std::uint32_t latter) {
                return (former * (256 - share) + latter * share + 128) >> 8;
            });
        }
    }

    //! Whether nothing is seen of four \a pictured pixels.
    static bool areClear(const std::uint32_t *pictured)
    {
        return (pictured[0] | pictured[1] | pictured[2] | pictured[3]) == 0;
    }

    //! Whether nothing is seen through four \a pictured pixels.
    static bool areOpaque(const std::uint32_t *pictured)
    {
        return (pictured[0] & pictured[1] & pictured[2] & pictured[3]) >= 0xff000000U;
    }

    //! Puts four \a pictured pixels, which are premultiplied, over \a pixels.
    static void putOver(std::uint32_t *pixels, const std::uint32_t *pictured)
    {
        for (std::size_t i = 0; i < 4; ++i) {
            const std::uint32_t left = 255 - (pictured[i] >> 24);
            pixels[i] = eachChannel(pixels[i], pictured[i], [left](std::uint32_t former, std::uint32_t latter) {
                const std::uint32_t product = former * left + 128;
                return latter + ((product + (product >> 8)) >> 8);
            });
        }
    }

private:
    template <typename Operation>
    static Floats each(const Floats &a, const Floats &b, const Operation &operation)
    {
        return {operation(a[0], b[0]), operation(a[1], b[1]), operation(a[2], b[2]), operation(a[3], b[3])};
    }
    template <typename Operation>
    static std::uint32_t eachChannel(std::uint32_t a, std::uint32_t b, const Operation &operation)
    {
        std::uint32_t result = 0;
        for (int shift = 0; shift < 32; shift += 8) {
            result |= operation((a >> shift) & 0xffU, (b >> shift) & 0xffU) << shift;
        }
        return result;
    }
};

#ifdef CEIECHART_FOUR_SSE2
/*! \brief The same in the vector instructions that every x86-64 processor has. */
struct FourBySse2 {
    using Floats = __m128;

    static Floats all(float value) { return _mm_set1_ps(value); }
    static Floats from(float first) { return _mm_add_ps(_mm_set1_ps(first), _mm_setr_ps(0.0F, 1.0F, 2.0F, 3.0F)); }
    static Floats add(Floats a, Floats b) { return _mm_add_ps(a, b); }
    static Floats subtract(Floats a, Floats b) { return _mm_sub_ps(a, b); }
    static Floats multiply(Floats a, Floats b) { return _mm_mul_ps(a, b); }
    static Floats least(Floats a, Floats b) { return _mm_min_ps(a, b); }
    static Floats most(Floats a, Floats b) { return _mm_max_ps(a, b); }
    static Floats absolute(Floats a) { return _mm_andnot_ps(_mm_set1_ps(-0.0F), a); }
    static Floats root(Floats a) { return _mm_sqrt_ps(a); }
    static Floats only(Floats values, int begin, int end)
    {
        const __m128i at = _mm_setr_epi32(0, 1, 2, 3);
        const __m128i beyond
            = _mm_or_si128(_mm_cmplt_epi32(at, _mm_set1_epi32(begin)), _mm_cmpgt_epi32(at, _mm_set1_epi32(end - 1)));
        return _mm_andnot_ps(_mm_castsi128_ps(beyond), values);
    }

    static void fetch(const std::uint32_t *pixel) { _mm_prefetch(reinterpret_cast<const char *>(pixel), _MM_HINT_T0); }
    static void blend(std::uint32_t *pixels, std::uint32_t color, Floats shares)
    {
        // Each share four times: for the channels of its pixel
        const __m128i whole = _mm_cvttps_epi32(shares);
        const __m128i packed = _mm_packs_epi32(whole, whole);
        const __m128i twice = _mm_unpacklo_epi16(packed, packed);
        const __m128i colors = _mm_unpacklo_epi8(_mm_set1_epi32(int(color)), _mm_setzero_si128());
        auto *const at = reinterpret_cast<__m128i *>(pixels);
        const __m128i former = _mm_loadu_si128(at);
        // former * 256 + 128 + (color - former) * share: what leaves the 16 bits on the way comes back.
        const __m128i halves = _mm_set1_epi8(char(128));
        const auto moved = [&](__m128i channels, __m128i scaled, __m128i by) {
            return _mm_srli_epi16(_mm_add_epi16(scaled, _mm_mullo_epi16(_mm_sub_epi16(colors, channels), by)), 8);
        };
        const __m128i low = moved(_mm_unpacklo_epi8(former, _mm_setzero_si128()), _mm_unpacklo_epi8(halves, former),
            _mm_unpacklo_epi32(twice, twice));
        const __m128i high = moved(_mm_unpackhi_epi8(former, _mm_setzero_si128()), _mm_unpackhi_epi8(halves, former),
            _mm_unpackhi_epi32(twice, twice));
        _mm_storeu_si128(at, _mm_packus_epi16(low, high));
    }

    static bool areClear(const std::uint32_t *pictured)
    {
        const __m128i source = _mm_loadu_si128(reinterpret_cast<const __m128i *>(pictured));
        return _mm_movemask_epi8(_mm_cmpeq_epi32(source, _mm_setzero_si128())) == 0xffff;
    }

    static bool areOpaque(const std::uint32_t *pictured)
    {
        const __m128i source = _mm_loadu_si128(reinterpret_cast<const __m128i *>(pictured));
        const __m128i others = _mm_or_si128(source, _mm_set1_epi32(0x00ffffff));
        return _mm_movemask_epi8(_mm_cmpeq_epi32(others, _mm_set1_epi32(-1))) == 0xffff;
    }

    static void putOver(std::uint32_t *pixels, const std::uint32_t *pictured)
    {
        const __m128i source = _mm_loadu_si128(reinterpret_cast<const __m128i *>(pictured));
        auto *const at = reinterpret_cast<__m128i *>(pixels);
        const __m128i former = _mm_loadu_si128(at);
        const __m128i zero = _mm_setzero_si128();
        const auto over = [](__m128i channels, __m128i above) {
            const __m128i alpha = _mm_shufflehi_epi16(_mm_shufflelo_epi16(above, 0xff), 0xff);
            const __m128i product = _mm_add_epi16(
                _mm_mullo_epi16(channels, _mm_sub_epi16(_mm_set1_epi16(255), alpha)), _mm_set1_epi16(128));
            return _mm_add_epi16(above, _mm_srli_epi16(_mm_add_epi16(product, _mm_srli_epi16(product, 8)), 8));
        };
        _mm_storeu_si128(at,
            _mm_packus_epi16(over(_mm_unpacklo_epi8(former, zero), _mm_unpacklo_epi8(source, zero)),
                over(_mm_unpackhi_epi8(former, zero), _mm_unpackhi_epi8(source, zero))));
    }
};
#endif

} // namespace ceiechart

#endif // CEIECHART_DIAGRAM_FOURPIXELS_P_H
