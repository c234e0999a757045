// The widened complex dot product of the 32fc and 32sc members: terms formed
// in double and summed per component in the eight-lane shape, so that the
// float and the integer members share one order of additions.
#pragma once

#include <emmintrin.h>

#include <cstdint>

#include "internal/stats_lanes.h"

namespace tavs::stats {

// Two 32-bit integers at p widened to a double pair, from any address.
inline __m128d widen2(const int32_t* p)
{
    return _mm_cvtepi32_pd(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
}

// Real and imaginary terms of element i of a (real or complex) times b
// (complex), widened: (ar br - ai bi) and (ar bi + ai br), or (a br), (a bi).
// E is the part type of both vectors (float or int32_t).
template <class E> struct WideCplx {
    const E* a;
    const E* b;
    bool realA;
    void at(int64_t i, double* re, double* im) const
    {
        double br = b[2 * i], bi = b[2 * i + 1];
        if (realA) {
            double x = a[i];
            *re = x * br;
            *im = x * bi;
        } else {
            double ar = a[2 * i], ai = a[2 * i + 1];
            *re = ar * br - ai * bi;
            *im = ar * bi + ai * br;
        }
    }
    // Terms of elements i and i+1 as pairs.
    void pair(int64_t i, __m128d* re, __m128d* im) const
    {
        __m128d b0 = widen2(b + 2 * i), b1 = widen2(b + 2 * i + 2);
        __m128d br = _mm_unpacklo_pd(b0, b1), bi = _mm_unpackhi_pd(b0, b1);
        if (realA) {
            __m128d x = widen2(a + i);
            *re = _mm_mul_pd(x, br);
            *im = _mm_mul_pd(x, bi);
        } else {
            __m128d a0 = widen2(a + 2 * i), a1 = widen2(a + 2 * i + 2);
            __m128d ar = _mm_unpacklo_pd(a0, a1), ai = _mm_unpackhi_pd(a0, a1);
            *re = _mm_sub_pd(_mm_mul_pd(ar, br), _mm_mul_pd(ai, bi));
            *im = _mm_add_pd(_mm_mul_pd(ar, bi), _mm_mul_pd(ai, br));
        }
    }
};

template <class E> void dot_wide_cplx(const WideCplx<E>& w, int64_t n, double* re, double* im)
{
    Lanes8 lr, li;
    int64_t i = 0;
    for (; i + 8 <= n; i += 8) {
        __m128d r[4], m[4];
        for (int k = 0; k < 4; ++k)
            w.pair(i + 2 * k, &r[k], &m[k]);
        lr.add(r[0], r[1], r[2], r[3]);
        li.add(m[0], m[1], m[2], m[3]);
    }
    double sr = lr.fold(), si = li.fold();
    for (; i < n; ++i) {
        double tr, ti;
        w.at(i, &tr, &ti);
        sr += tr;
        si += ti;
    }
    *re = sr;
    *im = si;
}

} // namespace tavs::stats
