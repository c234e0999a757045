// The FIR summation kernels: dst[j] = sum over i in [0, n) of h[i] * x[j+i],
// each output summed in the element type in the order i = 0, 1, ..., n-1.
// The SSE2 forms make several outputs at a time, one output per lane, so
// every lane sums in exactly the order of the scalar form: the two give the
// same bits. Also the 32-bit wrapping integer sums of the 16-bit records.
#pragma once

#include <emmintrin.h>

#include <cstdint>
#include <cstring>

#include "internal/simd.h"
#include "internal/types.h"

namespace tavs::fir {

// Reference forms, one output at a time.
inline void correlate_scalar(const Tav32f* h, int n, const Tav32f* x, Tav32f* dst, int cnt)
{
    for (int j = 0; j < cnt; ++j) {
        float s = 0.0f;
        for (int i = 0; i < n; ++i) s += h[i] * x[j + i];
        dst[j] = s;
    }
}
inline void correlate_scalar(const Tav64f* h, int n, const Tav64f* x, Tav64f* dst, int cnt)
{
    for (int j = 0; j < cnt; ++j) {
        double s = 0.0;
        for (int i = 0; i < n; ++i) s += h[i] * x[j + i];
        dst[j] = s;
    }
}
template <class C> inline void correlate_cx_scalar(const C* h, int n, const C* x, C* dst, int cnt)
{
    using F = decltype(h->re);
    for (int j = 0; j < cnt; ++j) {
        F re = 0, im = 0;
        for (int i = 0; i < n; ++i) {
            const C a = h[i], b = x[j + i];
            const F tr = a.re * b.re - a.im * b.im;
            const F ti = a.re * b.im + a.im * b.re;
            re += tr;
            im += ti;
        }
        dst[j].re = re;
        dst[j].im = im;
    }
}
inline void correlate_scalar(const Tav32fc* h, int n, const Tav32fc* x, Tav32fc* dst, int cnt)
{
    correlate_cx_scalar(h, n, x, dst, cnt);
}
inline void correlate_scalar(const Tav64fc* h, int n, const Tav64fc* x, Tav64fc* dst, int cnt)
{
    correlate_cx_scalar(h, n, x, dst, cnt);
}

// Real data: four registers of outputs a step (16 in 32f, 8 in 64f), then
// one register, one output per lane; the rest one at a time.
template <class T> inline void correlate_lanes(const T* h, int n, const T* x, T* dst, int cnt)
{
    using V = simd::Vec<T>;
    constexpr int L = V::lanes;
    int j = 0;
    for (; j + 4 * L <= cnt; j += 4 * L) {
        typename V::R a0 = V::set1(T(0)), a1 = a0, a2 = a0, a3 = a0;
        const T* p = x + j;
        for (int i = 0; i < n; ++i) {
            const typename V::R t = V::set1(h[i]);
            a0 = V::add(a0, V::mul(t, V::load(p + i)));
            a1 = V::add(a1, V::mul(t, V::load(p + i + L)));
            a2 = V::add(a2, V::mul(t, V::load(p + i + 2 * L)));
            a3 = V::add(a3, V::mul(t, V::load(p + i + 3 * L)));
        }
        V::storeu(dst + j, a0);
        V::storeu(dst + j + L, a1);
        V::storeu(dst + j + 2 * L, a2);
        V::storeu(dst + j + 3 * L, a3);
    }
    for (; j + L <= cnt; j += L) {
        typename V::R a0 = V::set1(T(0));
        const T* p = x + j;
        for (int i = 0; i < n; ++i) a0 = V::add(a0, V::mul(V::set1(h[i]), V::load(p + i)));
        V::storeu(dst + j, a0);
    }
    if (j < cnt) correlate_scalar(h, n, x + j, dst + j, cnt - j);
}

inline void correlate(const Tav32f* h, int n, const Tav32f* x, Tav32f* dst, int cnt)
{
    correlate_lanes(h, n, x, dst, cnt);
}

inline void correlate(const Tav64f* h, int n, const Tav64f* x, Tav64f* dst, int cnt)
{
    correlate_lanes(h, n, x, dst, cnt);
}

// 32fc: two outputs a register; (hr*xr - hi*xi, hr*xi + hi*xr) is formed as
// hr*x plus (-hi, hi)*swap(x), which rounds exactly as the scalar form.
inline __m128 cmul_terms(__m128 hr, __m128 his, __m128 v)
{
    return _mm_add_ps(_mm_mul_ps(hr, v), _mm_mul_ps(his, _mm_shuffle_ps(v, v, _MM_SHUFFLE(2, 3, 0, 1))));
}
inline void correlate(const Tav32fc* h, int n, const Tav32fc* x, Tav32fc* dst, int cnt)
{
    const float* xf = reinterpret_cast<const float*>(x);
    float* df = reinterpret_cast<float*>(dst);
    int j = 0;
    for (; j + 8 <= cnt; j += 8) {
        __m128 a0 = _mm_setzero_ps(), a1 = a0, a2 = a0, a3 = a0;
        const float* p = xf + 2 * j;
        for (int i = 0; i < n; ++i) {
            const __m128 hr = _mm_set1_ps(h[i].re), his = _mm_setr_ps(-h[i].im, h[i].im, -h[i].im, h[i].im);
            const float* q = p + 2 * i;
            a0 = _mm_add_ps(a0, cmul_terms(hr, his, _mm_loadu_ps(q)));
            a1 = _mm_add_ps(a1, cmul_terms(hr, his, _mm_loadu_ps(q + 4)));
            a2 = _mm_add_ps(a2, cmul_terms(hr, his, _mm_loadu_ps(q + 8)));
            a3 = _mm_add_ps(a3, cmul_terms(hr, his, _mm_loadu_ps(q + 12)));
        }
        _mm_storeu_ps(df + 2 * j, a0);
        _mm_storeu_ps(df + 2 * j + 4, a1);
        _mm_storeu_ps(df + 2 * j + 8, a2);
        _mm_storeu_ps(df + 2 * j + 12, a3);
    }
    for (; j + 2 <= cnt; j += 2) {
        __m128 a0 = _mm_setzero_ps();
        const float* p = xf + 2 * j;
        for (int i = 0; i < n; ++i) {
            const __m128 hr = _mm_set1_ps(h[i].re), his = _mm_setr_ps(-h[i].im, h[i].im, -h[i].im, h[i].im);
            a0 = _mm_add_ps(a0, cmul_terms(hr, his, _mm_loadu_ps(p + 2 * i)));
        }
        _mm_storeu_ps(df + 2 * j, a0);
    }
    if (j < cnt) correlate_scalar(h, n, x + j, dst + j, cnt - j);
}

// 64fc: one output a register, four at a time.
inline __m128d cmul_terms(__m128d hr, __m128d his, __m128d v)
{
    return _mm_add_pd(_mm_mul_pd(hr, v), _mm_mul_pd(his, _mm_shuffle_pd(v, v, 1)));
}
inline void correlate(const Tav64fc* h, int n, const Tav64fc* x, Tav64fc* dst, int cnt)
{
    const double* xf = reinterpret_cast<const double*>(x);
    double* df = reinterpret_cast<double*>(dst);
    int j = 0;
    for (; j + 4 <= cnt; j += 4) {
        __m128d a0 = _mm_setzero_pd(), a1 = a0, a2 = a0, a3 = a0;
        const double* p = xf + 2 * j;
        for (int i = 0; i < n; ++i) {
            const __m128d hr = _mm_set1_pd(h[i].re), his = _mm_setr_pd(-h[i].im, h[i].im);
            const double* q = p + 2 * i;
            a0 = _mm_add_pd(a0, cmul_terms(hr, his, _mm_loadu_pd(q)));
            a1 = _mm_add_pd(a1, cmul_terms(hr, his, _mm_loadu_pd(q + 2)));
            a2 = _mm_add_pd(a2, cmul_terms(hr, his, _mm_loadu_pd(q + 4)));
            a3 = _mm_add_pd(a3, cmul_terms(hr, his, _mm_loadu_pd(q + 6)));
        }
        _mm_storeu_pd(df + 2 * j, a0);
        _mm_storeu_pd(df + 2 * j + 2, a1);
        _mm_storeu_pd(df + 2 * j + 4, a2);
        _mm_storeu_pd(df + 2 * j + 6, a3);
    }
    if (j < cnt) correlate_scalar(h, n, x + j, dst + j, cnt - j);
}

// 32-bit wrapping sums of 16x16 products: the integer records. Wrapping
// addition is associative, so any order gives the same bits.
inline uint32_t dot_wrap(const Tav16s* h, const Tav16s* x, int n)
{
    uint32_t s = 0;
    for (int i = 0; i < n; ++i) s += uint32_t(int32_t(h[i]) * int32_t(x[i]));
    return s;
}
struct Wrap2 {
    uint32_t re, im;
};
inline Wrap2 dot_wrap(const Tav16sc* h, const Tav16sc* x, int n)
{
    uint32_t re = 0, im = 0;
    for (int i = 0; i < n; ++i) {
        const int32_t a = h[i].re, b = h[i].im, c = x[i].re, d = x[i].im;
        re += uint32_t(a * c) - uint32_t(b * d);
        im += uint32_t(a * d) + uint32_t(b * c);
    }
    return {re, im};
}

} // namespace tavs::fir
