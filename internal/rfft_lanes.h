// Lanes of the real FFT's post-step and pre-step. Those steps pair the value
// at index k with its mirror M - k, so a lane type reads W consecutive
// complex values upward from k ("fwd") and W values downward from M - k
// ("rev"), with real and imaginary parts in separate registers. The same
// step code runs on one scalar lane (the tails) and on SSE2 registers; each
// lane does the same IEEE operations, so both give the same bits.
#pragma once

#include <emmintrin.h>

#include <cstdint>

namespace tavs::fft::lanes {

// One lane of S.
template <class S> struct One {
    static constexpr int64_t W = 1;
    S v;
    static One splat(S x) { return {x}; }
    static void load_fwd(const S* p, One& re, One& im) { re.v = p[0], im.v = p[1]; }
    static void load_rev(const S* p, One& re, One& im) { re.v = p[0], im.v = p[1]; }
    static void store_fwd(S* p, One re, One im) { p[0] = re.v, p[1] = im.v; }
    static void store_rev(S* p, One re, One im) { p[0] = re.v, p[1] = im.v; }
    // Lane j to the complex slot at at(j) (scattered stores).
    template <class At> static void store_each(At at, One re, One im)
    {
        S* p = at(0);
        p[0] = re.v, p[1] = im.v;
    }
};
template <class S> inline One<S> operator+(One<S> a, One<S> b) { return {a.v + b.v}; }
template <class S> inline One<S> operator-(One<S> a, One<S> b) { return {a.v - b.v}; }
template <class S> inline One<S> operator*(One<S> a, One<S> b) { return {a.v * b.v}; }

// Four float lanes. fwd: p[0 .. 7] holds complex k .. k+3. rev: p points at
// complex M - k, lanes j = 0 .. 3 are complex M - k - j (p[-6 .. 1]).
struct F4 {
    static constexpr int64_t W = 4;
    __m128 v;
    static F4 splat(float x) { return {_mm_set1_ps(x)}; }
    static void load_fwd(const float* p, F4& re, F4& im)
    {
        const __m128 x0 = _mm_loadu_ps(p), x1 = _mm_loadu_ps(p + 4);
        re.v = _mm_shuffle_ps(x0, x1, _MM_SHUFFLE(2, 0, 2, 0));
        im.v = _mm_shuffle_ps(x0, x1, _MM_SHUFFLE(3, 1, 3, 1));
    }
    static void load_rev(const float* p, F4& re, F4& im)
    {
        const __m128 hi = _mm_loadu_ps(p - 2); // lanes 1, 0
        const __m128 lo = _mm_loadu_ps(p - 6); // lanes 3, 2
        re.v = _mm_shuffle_ps(hi, lo, _MM_SHUFFLE(0, 2, 0, 2));
        im.v = _mm_shuffle_ps(hi, lo, _MM_SHUFFLE(1, 3, 1, 3));
    }
    static void store_fwd(float* p, F4 re, F4 im)
    {
        _mm_storeu_ps(p, _mm_unpacklo_ps(re.v, im.v));
        _mm_storeu_ps(p + 4, _mm_unpackhi_ps(re.v, im.v));
    }
    static void store_rev(float* p, F4 re, F4 im)
    {
        const __m128 l01 = _mm_unpacklo_ps(re.v, im.v); // lane 0, lane 1
        const __m128 l23 = _mm_unpackhi_ps(re.v, im.v); // lane 2, lane 3
        _mm_storeu_ps(p - 2, _mm_shuffle_ps(l01, l01, _MM_SHUFFLE(1, 0, 3, 2)));
        _mm_storeu_ps(p - 6, _mm_shuffle_ps(l23, l23, _MM_SHUFFLE(1, 0, 3, 2)));
    }
    template <class At> static void store_each(At at, F4 re, F4 im)
    {
        const __m128 l01 = _mm_unpacklo_ps(re.v, im.v), l23 = _mm_unpackhi_ps(re.v, im.v);
        _mm_storel_pi(reinterpret_cast<__m64*>(at(0)), l01);
        _mm_storeh_pi(reinterpret_cast<__m64*>(at(1)), l01);
        _mm_storel_pi(reinterpret_cast<__m64*>(at(2)), l23);
        _mm_storeh_pi(reinterpret_cast<__m64*>(at(3)), l23);
    }
};
inline F4 operator+(F4 a, F4 b) { return {_mm_add_ps(a.v, b.v)}; }
inline F4 operator-(F4 a, F4 b) { return {_mm_sub_ps(a.v, b.v)}; }
inline F4 operator*(F4 a, F4 b) { return {_mm_mul_ps(a.v, b.v)}; }

// Two double lanes, the same shapes.
struct D2 {
    static constexpr int64_t W = 2;
    __m128d v;
    static D2 splat(double x) { return {_mm_set1_pd(x)}; }
    static void load_fwd(const double* p, D2& re, D2& im)
    {
        const __m128d x0 = _mm_loadu_pd(p), x1 = _mm_loadu_pd(p + 2);
        re.v = _mm_unpacklo_pd(x0, x1);
        im.v = _mm_unpackhi_pd(x0, x1);
    }
    static void load_rev(const double* p, D2& re, D2& im)
    {
        const __m128d x0 = _mm_loadu_pd(p), x1 = _mm_loadu_pd(p - 2);
        re.v = _mm_unpacklo_pd(x0, x1);
        im.v = _mm_unpackhi_pd(x0, x1);
    }
    static void store_fwd(double* p, D2 re, D2 im)
    {
        _mm_storeu_pd(p, _mm_unpacklo_pd(re.v, im.v));
        _mm_storeu_pd(p + 2, _mm_unpackhi_pd(re.v, im.v));
    }
    static void store_rev(double* p, D2 re, D2 im)
    {
        _mm_storeu_pd(p, _mm_unpacklo_pd(re.v, im.v));
        _mm_storeu_pd(p - 2, _mm_unpackhi_pd(re.v, im.v));
    }
    template <class At> static void store_each(At at, D2 re, D2 im)
    {
        _mm_storeu_pd(at(0), _mm_unpacklo_pd(re.v, im.v));
        _mm_storeu_pd(at(1), _mm_unpackhi_pd(re.v, im.v));
    }
};
inline D2 operator+(D2 a, D2 b) { return {_mm_add_pd(a.v, b.v)}; }
inline D2 operator-(D2 a, D2 b) { return {_mm_sub_pd(a.v, b.v)}; }
inline D2 operator*(D2 a, D2 b) { return {_mm_mul_pd(a.v, b.v)}; }

// The real inverse's pre-step on a group of pairs: (a, b) the values at k,
// (c, e) at M - k, (p, q) the twiddle (cos t, -sin t) of k; (fr, fi) goes to
// k, (mr, mi) to M - k. k is always the lower index of its pair (the
// twiddle table covers k < M / 2 only).
template <class V> inline void pre_pair(V a, V b, V c, V e, V p, V q, V& fr, V& fi, V& mr, V& mi)
{
    const V u = a - c, v = b + e;
    const V g = q * u - p * v, h = p * u + q * v;
    fr = a + c + g;
    fi = b - e + h;
    mr = a + c - g;
    mi = h - (b - e);
}

// The forward post-step on a group of pairs with the small table: (a, b)
// the values at k, (c, e) at M - k, (p, q) the table entry of k; (fr, fi)
// goes to k, (mr, mi) to M - k.
template <class V> inline void post_pair(V a, V b, V c, V e, V p, V q, V& fr, V& fi, V& mr, V& mi)
{
    const V u = a - c, v = b + e;
    const V w = p * v + q * u, x = v * q - u * p;
    fr = c + w;
    fi = x - e;
    mr = a - w;
    mi = x - b;
}

// The register lane type of S.
template <class S> struct Wide;
template <> struct Wide<float> {
    using T = F4;
};
template <> struct Wide<double> {
    using T = D2;
};

} // namespace tavs::fft::lanes
