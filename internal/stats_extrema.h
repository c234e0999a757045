// Lane-parallel extremum search. Every lane is seeded with element 0 and a
// candidate replaces a lane only when strictly better, with the candidate
// as the first operand of the select: a NaN candidate is never taken, and a
// NaN seed is never replaced. The first index of the extremum is found by
// a forward search for the first element equal to it, which gives the
// same index as the one-by-one walk (and the earlier of +0 and -0).
#pragma once

#include <emmintrin.h>

#include <cstdint>

#include "internal/types.h"

namespace tavs::stats::ext {

// ---- vector operations on keys ------------------------------------------------
// max(c, r) / min(c, r): c when strictly greater / less, else r.
// eq(a, b): one bit per lane, set where equal.
template <class K> struct V;

template <> struct V<uint8_t> {
    using R = __m128i;
    static constexpr int W = 16;
    static R set1(uint8_t v) { return _mm_set1_epi8(char(v)); }
    static R max(R c, R r) { return _mm_max_epu8(c, r); }
    static R min(R c, R r) { return _mm_min_epu8(c, r); }
    static unsigned eq(R a, R b) { return unsigned(_mm_movemask_epi8(_mm_cmpeq_epi8(a, b))); }
    static void store(uint8_t* d, R v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(d), v); }
};

template <> struct V<int16_t> {
    using R = __m128i;
    static constexpr int W = 8;
    static R set1(int16_t v) { return _mm_set1_epi16(v); }
    static R max(R c, R r) { return _mm_max_epi16(c, r); }
    static R min(R c, R r) { return _mm_min_epi16(c, r); }
    static unsigned eq(R a, R b)
    {
        return unsigned(_mm_movemask_epi8(_mm_packs_epi16(_mm_cmpeq_epi16(a, b), _mm_setzero_si128())));
    }
    static void store(int16_t* d, R v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(d), v); }
};

template <> struct V<uint16_t> {
    using R = __m128i;
    static constexpr int W = 8;
    static R set1(uint16_t v) { return _mm_set1_epi16(int16_t(v)); }
    static R max(R c, R r) { return _mm_adds_epu16(_mm_subs_epu16(c, r), r); }
    static R min(R c, R r) { return _mm_subs_epu16(c, _mm_subs_epu16(c, r)); }
    static unsigned eq(R a, R b) { return V<int16_t>::eq(a, b); }
    static void store(uint16_t* d, R v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(d), v); }
};

template <bool Unsigned> struct V32i {
    using R = __m128i;
    static constexpr int W = 4;
    static R bias(R v) { return Unsigned ? _mm_xor_si128(v, _mm_set1_epi32(INT32_MIN)) : v; }
    static R sel(R m, R a, R b) { return _mm_or_si128(_mm_and_si128(m, a), _mm_andnot_si128(m, b)); }
    static R max(R c, R r) { return sel(_mm_cmpgt_epi32(bias(c), bias(r)), c, r); }
    static R min(R c, R r) { return sel(_mm_cmpgt_epi32(bias(r), bias(c)), c, r); }
    static unsigned eq(R a, R b) { return unsigned(_mm_movemask_ps(_mm_castsi128_ps(_mm_cmpeq_epi32(a, b)))); }
};
template <> struct V<int32_t> : V32i<false> {
    static R set1(int32_t v) { return _mm_set1_epi32(v); }
    static void store(int32_t* d, R v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(d), v); }
};
template <> struct V<uint32_t> : V32i<true> {
    static R set1(uint32_t v) { return _mm_set1_epi32(int32_t(v)); }
    static void store(uint32_t* d, R v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(d), v); }
};

template <> struct V<float> {
    using R = __m128;
    static constexpr int W = 4;
    static R set1(float v) { return _mm_set1_ps(v); }
    static R max(R c, R r) { return _mm_max_ps(c, r); }
    static R min(R c, R r) { return _mm_min_ps(c, r); }
    static unsigned eq(R a, R b) { return unsigned(_mm_movemask_ps(_mm_cmpeq_ps(a, b))); }
    static void store(float* d, R v) { _mm_storeu_ps(d, v); }
};

template <> struct V<double> {
    using R = __m128d;
    static constexpr int W = 2;
    static R set1(double v) { return _mm_set1_pd(v); }
    static R max(R c, R r) { return _mm_max_pd(c, r); }
    static R min(R c, R r) { return _mm_min_pd(c, r); }
    static unsigned eq(R a, R b) { return unsigned(_mm_movemask_pd(_mm_cmpeq_pd(a, b))); }
    static void store(double* d, R v) { _mm_storeu_pd(d, v); }
};

// ---- sources: what is compared for each element -------------------------------------

// The element itself.
template <class T> struct Plain {
    using Elem = T;
    using K = T;
    static typename V<K>::R load(const T* p)
    {
        if constexpr (sizeof(T) == 4 && T(0.5) != T(0)) return _mm_loadu_ps(p);
        else if constexpr (sizeof(T) == 8) return _mm_loadu_pd(p);
        else return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    }
    static K one(T v) { return v; }
};

// Magnitude of a 16-bit element read as unsigned: -32768 counts as 32768.
struct AbsWide16 {
    using Elem = int16_t;
    using K = uint16_t;
    static __m128i load(const int16_t* p)
    {
        __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        __m128i s = _mm_srai_epi16(x, 15);
        return _mm_sub_epi16(_mm_xor_si128(x, s), s);
    }
    static K one(int16_t v) { return uint16_t(v < 0 ? 0u - uint32_t(v) : uint32_t(v)); }
};

// Magnitude of a 16-bit element clamped to 32767.
struct AbsClamp16 {
    using Elem = int16_t;
    using K = int16_t;
    static __m128i load(const int16_t* p)
    {
        __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        return _mm_max_epi16(x, _mm_subs_epi16(_mm_setzero_si128(), x));
    }
    static K one(int16_t v) { return v == INT16_MIN ? int16_t(32767) : int16_t(v < 0 ? -v : v); }
};

// Magnitude of a 32-bit element read as unsigned: -2^31 counts as 2^31.
struct AbsWide32 {
    using Elem = int32_t;
    using K = uint32_t;
    static __m128i load(const int32_t* p)
    {
        __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        __m128i s = _mm_srai_epi32(x, 31);
        return _mm_sub_epi32(_mm_xor_si128(x, s), s);
    }
    static K one(int32_t v) { return v < 0 ? 0u - uint32_t(v) : uint32_t(v); }
};

// Magnitude of a 32-bit element clamped to 2147483647.
struct AbsClamp32 {
    using Elem = int32_t;
    using K = int32_t;
    static __m128i load(const int32_t* p)
    {
        __m128i a = AbsWide32::load(p);
        return _mm_add_epi32(a, _mm_srai_epi32(a, 31)); // 0x80000000 - 1
    }
    static K one(int32_t v) { return v == INT32_MIN ? INT32_MAX : (v < 0 ? -v : v); }
};

// ---- the reductions ---------------------------------------------------------------------

// Smallest and/or largest key of p[0..n), by the strict first-operand rule.
template <class S, bool DoMin, bool DoMax>
void reduce(const typename S::Elem* p, int64_t n, typename S::K* mn, typename S::K* mx)
{
    using K = typename S::K;
    using Ops = V<K>;
    constexpr int W = Ops::W;
    const K first = S::one(p[0]);
    // Four groups of lanes, so the chains of selects overlap; which lane
    // takes an element does not change the extremum.
    typename Ops::R vmin[4], vmax[4];
    for (int g = 0; g < 4; ++g) vmin[g] = vmax[g] = Ops::set1(first);
    int64_t i = 0;
    for (; i + 4 * W <= n; i += 4 * W)
        for (int g = 0; g < 4; ++g) {
            auto v = S::load(p + i + g * W);
            if constexpr (DoMax) vmax[g] = Ops::max(v, vmax[g]);
            if constexpr (DoMin) vmin[g] = Ops::min(v, vmin[g]);
        }
    for (; i + W <= n; i += W) {
        auto v = S::load(p + i);
        if constexpr (DoMax) vmax[0] = Ops::max(v, vmax[0]);
        if constexpr (DoMin) vmin[0] = Ops::min(v, vmin[0]);
    }
    for (int g = 1; g < 4; ++g) {
        if constexpr (DoMax) vmax[0] = Ops::max(vmax[g], vmax[0]);
        if constexpr (DoMin) vmin[0] = Ops::min(vmin[g], vmin[0]);
    }
    K lanes[W];
    K lo = first, hi = first;
    if constexpr (DoMax) {
        Ops::store(lanes, vmax[0]);
        for (int k = 0; k < W; ++k)
            if (lanes[k] > hi) hi = lanes[k];
    }
    if constexpr (DoMin) {
        Ops::store(lanes, vmin[0]);
        for (int k = 0; k < W; ++k)
            if (lanes[k] < lo) lo = lanes[k];
    }
    for (; i < n; ++i) {
        K k = S::one(p[i]);
        if constexpr (DoMax)
            if (k > hi) hi = k;
        if constexpr (DoMin)
            if (k < lo) lo = k;
    }
    if constexpr (DoMin) *mn = lo;
    if constexpr (DoMax) *mx = hi;
}

// First index whose key equals key (which must occur).
template <class S> int64_t find_first(const typename S::Elem* p, int64_t n, typename S::K key)
{
    using Ops = V<typename S::K>;
    constexpr int W = Ops::W;
    const auto k = Ops::set1(key);
    int64_t i = 0;
    for (; i + W <= n; i += W)
        if (unsigned m = Ops::eq(S::load(p + i), k)) return i + __builtin_ctz(m);
    for (; i < n; ++i)
        if (S::one(p[i]) == key) return i;
    return 0;
}

template <class T> constexpr bool is_float = T(0.5) != T(0);

// The extremum delivered for a float key m found by reduce: NaN (the seed
// at index 0) stays; a zero is the first zero of the data, keeping its
// sign; anything else is m itself.
template <class T> T float_value(const T* p, int64_t n, T m)
{
    if (m == T(0)) return p[find_first<Plain<T>>(p, n, m)];
    return m;
}

// First index of the extremum m: 0 when m is NaN (the search is skipped).
template <class S> int64_t index_of(const typename S::Elem* p, int64_t n, typename S::K m)
{
    if (m != m) return 0;
    return find_first<S>(p, n, m);
}

} // namespace tavs::stats::ext
