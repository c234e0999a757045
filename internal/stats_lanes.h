// Lane shapes of the statistics reductions. The order of float additions
// decides the last bit of every float sum, so each shape is written once
// here and every family that uses it calls the same code.
#pragma once

#include <emmintrin.h>

#include <cstdint>
#include <cstring>

#include "internal/types.h"

namespace tavs::stats {

// Element load that tolerates any address: the sums accept vectors that are
// not even element-aligned (their fast paths depend on the address).
template <class T> inline T ld(const T* p, int64_t i)
{
    T v;
    std::memcpy(&v, reinterpret_cast<const unsigned char*>(p) + i * int64_t(sizeof(T)), sizeof(T));
    return v;
}

inline __m128d pair_of(double a, double b) { return _mm_set_pd(b, a); }
inline double lo(__m128d v) { return _mm_cvtsd_f64(v); }
inline double hi(__m128d v) { return _mm_cvtsd_f64(_mm_unpackhi_pd(v, v)); }

// Two floats at p widened to a double pair, from any address.
inline __m128d widen2(const float* p)
{
    return _mm_cvtps_pd(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))));
}
// Two doubles at p, from any address.
inline __m128d load2(const double* p) { return _mm_loadu_pd(p); }

// The eight-lane shape: four double pairs Q0..Q3; element 8r+e of a round
// goes to pair e/2, lane e%2. The pairs fold as ((Q0+Q1)+(Q2+Q3)), then the
// two lanes are added (low + high), then the remaining elements one by one.
struct Lanes8 {
    __m128d q0 = _mm_setzero_pd(), q1 = _mm_setzero_pd(), q2 = _mm_setzero_pd(), q3 = _mm_setzero_pd();
    void add(__m128d a, __m128d b, __m128d c, __m128d d)
    {
        q0 = _mm_add_pd(q0, a);
        q1 = _mm_add_pd(q1, b);
        q2 = _mm_add_pd(q2, c);
        q3 = _mm_add_pd(q3, d);
    }
    double fold() const
    {
        __m128d c = _mm_add_pd(_mm_add_pd(q0, q1), _mm_add_pd(q2, q3));
        return lo(c) + hi(c);
    }
};

// Sum of v(0..n-1) in the eight-lane shape. pair(i) gives (v(i), v(i+1)),
// one(i) gives v(i); both must give the same bits for the same element.
template <class Pair, class One> inline double sum8(int64_t n, Pair pair, One one)
{
    Lanes8 l;
    int64_t i = 0;
    for (; i + 8 <= n; i += 8) l.add(pair(i), pair(i + 2), pair(i + 4), pair(i + 6));
    double s = l.fold();
    for (; i < n; ++i) s += one(i);
    return s;
}

// The sixteen-lane shape: eight double pairs P0..P7 take whole runs of 16
// (element 16r+e into pair e/2, lane e%2), P0 starting from p0; they combine
// lane by lane as ((P0+P1)+(P2+P3))+((P4+P5)+(P6+P7)). Returns that
// combined pair; *done is the count of elements taken.
template <class Pair> inline __m128d lanes16(int64_t n, Pair pair, __m128d p0, int64_t* done)
{
    __m128d p[8] = {p0, _mm_setzero_pd(), _mm_setzero_pd(), _mm_setzero_pd(),
                    _mm_setzero_pd(), _mm_setzero_pd(), _mm_setzero_pd(), _mm_setzero_pd()};
    int64_t i = 0;
    for (; i + 16 <= n; i += 16)
        for (int k = 0; k < 8; ++k) p[k] = _mm_add_pd(p[k], pair(i + 2 * k));
    *done = i;
    return _mm_add_pd(_mm_add_pd(_mm_add_pd(p[0], p[1]), _mm_add_pd(p[2], p[3])),
                      _mm_add_pd(_mm_add_pd(p[4], p[5]), _mm_add_pd(p[6], p[7])));
}

// The sixteen-lane sum: after the runs of 16, remaining pairs of elements
// are added into the combined pair, a last odd element into a separate
// scalar; the result is (low + high) + scalar. Does not depend on the
// address of the data.
template <class Pair, class One> inline double sum16(int64_t n, Pair pair, One one)
{
    int64_t i = 0;
    __m128d c = lanes16(n, pair, _mm_setzero_pd(), &i);
    for (; i + 2 <= n; i += 2) c = _mm_add_pd(c, pair(i));
    double scalar = 0.0;
    if (i < n) scalar += one(i);
    return (lo(c) + hi(c)) + scalar;
}

// Exact sums of 16-bit values in 32-bit lanes. The values are taken in
// chunks of 65536, so no 32-bit lane can overflow, and each chunk is
// flushed into 64-bit totals. even/odd receive the sums of the values at
// even and odd positions (the real and imaginary parts of complex data).
inline void sum_16s_exact(const int16_t* p, int64_t n, int64_t* even, int64_t* odd)
{
    int64_t e = 0, o = 0, i = 0;
    while (n - i >= 8) {
        int64_t end = i + 65536 < n ? i + 65536 : n;
        __m128i acc = _mm_setzero_si128();
        for (; i + 8 <= end; i += 8) {
            __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + i));
            acc = _mm_add_epi32(acc, _mm_srai_epi32(_mm_unpacklo_epi16(v, v), 16));
            acc = _mm_add_epi32(acc, _mm_srai_epi32(_mm_unpackhi_epi16(v, v), 16));
        }
        alignas(16) int32_t l[4];
        _mm_store_si128(reinterpret_cast<__m128i*>(l), acc);
        e += int64_t(l[0]) + l[2];
        o += int64_t(l[1]) + l[3];
    }
    for (; i < n; ++i) ((i & 1) ? o : e) += ld(p, i);
    *even = e;
    *odd = o;
}

} // namespace tavs::stats
