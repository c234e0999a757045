// Kernels of the norms of one vector and of the difference of two. A term
// source gives the terms of the reduction as doubles, two at a time as a
// pair or one at a time, with the same bits either way; the Inf, L1 and L2
// reductions run over any source, so Norm and NormDiff share one code.
#pragma once

#include <emmintrin.h>

#include <cmath>
#include <cstdint>

#include "internal/fixed.h"
#include "internal/stats_lanes.h"
#include "internal/stats_scale.h"

namespace tavs::stats {

// ---- term sources ---------------------------------------------------------------

// Elements widened to double.
template <class T> struct RealTerms {
    const T* p;
    __m128d pair(int64_t i) const
    {
        if constexpr (sizeof(T) == 4) return widen2(p + i);
        else return _mm_loadu_pd(p + i);
    }
    double one(int64_t i) const { return double(p[i]); }
};

// Differences of the widened elements, a - b.
template <class T> struct DiffTerms {
    const T* a;
    const T* b;
    __m128d pair(int64_t i) const { return _mm_sub_pd(RealTerms<T>{a}.pair(i), RealTerms<T>{b}.pair(i)); }
    double one(int64_t i) const { return double(a[i]) - double(b[i]); }
};

// Magnitudes: the sign bit cleared.
template <class S> struct AbsTerms {
    S s;
    __m128d pair(int64_t i) const { return _mm_andnot_pd(_mm_set1_pd(-0.0), s.pair(i)); }
    double one(int64_t i) const { return std::fabs(s.one(i)); }
};

// Squares.
template <class S> struct SqTerms {
    S s;
    __m128d pair(int64_t i) const
    {
        __m128d v = s.pair(i);
        return _mm_mul_pd(v, v);
    }
    double one(int64_t i) const
    {
        double v = s.one(i);
        return v * v;
    }
};

// Complex magnitudes sqrt(re^2 + im^2) over a source of interleaved parts
// (element i is the values at 2i and 2i+1), in double.
template <class S> struct MagTerms {
    S s;
    __m128d pair(int64_t i) const
    {
        __m128d a = s.pair(2 * i), b = s.pair(2 * i + 2); // (re0, im0), (re1, im1)
        a = _mm_mul_pd(a, a);
        b = _mm_mul_pd(b, b);
        return _mm_sqrt_pd(_mm_add_pd(_mm_unpacklo_pd(a, b), _mm_unpackhi_pd(a, b)));
    }
    double one(int64_t i) const
    {
        double re = s.one(2 * i), im = s.one(2 * i + 1);
        return std::sqrt(re * re + im * im);
    }
};

// ---- reductions -----------------------------------------------------------------

// Largest term, seeded with term 0; a later term replaces it only when
// strictly greater, so a NaN after the first is skipped and a NaN first
// stays.
template <class S> double inf_terms(const S& s, int64_t n)
{
    const double first = s.one(0);
    __m128d r = _mm_set1_pd(first);
    int64_t i = 0;
    for (; i + 2 <= n; i += 2) r = _mm_max_pd(s.pair(i), r);
    double m = first;
    if (lo(r) > m) m = lo(r);
    if (hi(r) > m) m = hi(r);
    for (; i < n; ++i)
        if (double v = s.one(i); v > m) m = v;
    return m;
}

template <class S> double sum8_terms(const S& s, int64_t n)
{
    return sum8(n, [&s](int64_t i) { return s.pair(i); }, [&s](int64_t i) { return s.one(i); });
}

template <class S> double sum16_terms(const S& s, int64_t n)
{
    return sum16(n, [&s](int64_t i) { return s.pair(i); }, [&s](int64_t i) { return s.one(i); });
}

// ---- exact 16-bit kernels ------------------------------------------------------------
// Term t(i) of 16-bit data: the element, or the difference of two elements.

struct Int16Terms {
    const int16_t* a;
    const int16_t* b; // null for a norm of one vector
    int32_t at(int64_t i) const { return b ? int32_t(a[i]) - int32_t(b[i]) : int32_t(a[i]); }
};

inline int64_t inf_exact(const Int16Terms& t, int64_t n)
{
    int64_t m = 0;
    for (int64_t i = 0; i < n; ++i) {
        int64_t v = t.at(i);
        v = v < 0 ? -v : v;
        if (v > m) m = v;
    }
    return m;
}

inline int64_t l1_exact(const Int16Terms& t, int64_t n)
{
    int64_t s = 0;
    for (int64_t i = 0; i < n; ++i) {
        int64_t v = t.at(i);
        s += v < 0 ? -v : v;
    }
    return s;
}

// Sum of squares: below 2^63 for any 32-bit length (each square is at most
// 65535^2), so an unsigned 64-bit sum is exact.
inline uint64_t l2sqr_exact(const Int16Terms& t, int64_t n)
{
    if (!t.b) {
        // Pairs of squares fit an unsigned 32-bit lane (at most 2^31); they
        // are widened into two 64-bit lanes.
        const int16_t* p = t.a;
        __m128i acc = _mm_setzero_si128();
        int64_t i = 0;
        for (; i + 8 <= n; i += 8) {
            __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + i));
            __m128i sq = _mm_madd_epi16(v, v);
            acc = _mm_add_epi64(acc, _mm_unpacklo_epi32(sq, _mm_setzero_si128()));
            acc = _mm_add_epi64(acc, _mm_unpackhi_epi32(sq, _mm_setzero_si128()));
        }
        alignas(16) uint64_t l[2];
        _mm_store_si128(reinterpret_cast<__m128i*>(l), acc);
        uint64_t s = l[0] + l[1];
        for (; i < n; ++i) s += uint64_t(int64_t(p[i]) * p[i]);
        return s;
    }
    uint64_t s = 0;
    for (int64_t i = 0; i < n; ++i) {
        int64_t v = t.at(i);
        s += uint64_t(v * v);
    }
    return s;
}

// ---- scale rules of the integer norms ----------------------------------------------------

// The square root of the exact sum in double, divided (positive sf) or
// multiplied (negative sf) by 1 << (count mod 32) taken as a signed 32-bit
// number; saturated beyond the 32-bit range, else truncated.
inline int32_t l2_scaled(uint64_t sum, int sf)
{
    double r = std::sqrt(double(sum));
    if (sf > 0) r = r / double(int32_t(uint32_t(1) << (uint32_t(sf) & 31)));
    else if (sf < 0) r = r * double(int32_t(uint32_t(1) << ((0u - uint32_t(sf)) & 31)));
    if (r > 2147483647.0) return INT32_MAX;
    if (r < -2147483648.0) return INT32_MIN;
    return trunc32(r);
}

// The exact sum shifted right without rounding (count mod 64), or left
// with the count capped at 63 and saturation when the significant bits and
// the count reach 64.
inline int64_t l2sqr_scaled(uint64_t sum, int sf)
{
    if (sf > 0) return int64_t(sum >> (uint32_t(sf) & 63));
    if (sf < 0) {
        int64_t k = neg_count(sf);
        if (k > 63) k = 63;
        int bits = sum ? 64 - __builtin_clzll(sum) : 0;
        if (bits + k >= 64) return INT64_MAX;
        return int64_t(sum << k);
    }
    return int64_t(sum);
}

} // namespace tavs::stats
