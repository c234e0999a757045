// Pieces shared by the constant forms (AddC, SubC, SubCRev, MulC) and the
// division families: the float scale factor built step by step, an exact
// ties-to-even rounding of a float value, the zero-divisor results, fills and
// the copy shortcut, and the SSE2 loop shape of the float constant forms.
#pragma once

#include <emmintrin.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "internal/check.h"
#include "internal/fixed.h"
#include "internal/movers.h"

namespace tavs {

// 2^-s in F, built by halving (s > 0) or doubling (s < 0) 1.0 one step at a
// time, so it is exact while representable and then under- or overflows the
// way the repeated product does under the caller's rounding state. Every
// sequence has reached a fixed point (0, the smallest denormal, the largest
// finite value or Inf) well before 1100 steps, so the loop stops there with
// the same value.
template <class F> inline F pow2_steps(int s)
{
    F f = F(1);
    const int kSteps = 1100;
    if (s > 0) {
        const int n = s < kSteps ? s : kSteps;
        for (int i = 0; i < n; ++i) f *= F(0.5);
    } else if (s < 0) {
        const int n = s > -kSteps ? -s : kSteps;
        for (int i = 0; i < n; ++i) f *= F(2);
    }
    return f;
}

// Nearest integer to q with ties to even, decided on q itself and not on the
// floating-point control state. q must be finite with |q| < 2^62. The
// fractional part q - trunc(q) is exact in binary floating point.
template <class F> inline int64_t round_even_exact(F q)
{
    int64_t r = static_cast<int64_t>(q); // truncation, exactly representable again
    const F frac = q - static_cast<F>(r);
    if (frac > F(0.5) || (frac == F(0.5) && (r & 1))) ++r;
    else if (frac < F(-0.5) || (frac == F(-0.5) && (r & 1))) --r;
    return r;
}

// The negative quiet NaN a division by zero stores for 0/0 and NaN/0.
inline float neg_qnan_32f()
{
    const uint32_t bits = 0xffc00000u;
    float f;
    std::memcpy(&f, &bits, sizeof f);
    return f;
}
inline double neg_qnan_64f()
{
    const uint64_t bits = 0xfff8000000000000ull;
    double d;
    std::memcpy(&d, &bits, sizeof d);
    return d;
}
template <class F> inline F neg_qnan()
{
    if constexpr (sizeof(F) == 4) return neg_qnan_32f();
    else return neg_qnan_64f();
}

// Float result for a zero divisor: the sign of the dividend picks +-Inf,
// a zero or NaN dividend gives the negative quiet NaN (the sign of the zero
// divisor plays no part).
template <class F> inline F float_div_by_zero(F dividend)
{
    if (dividend > F(0)) return std::numeric_limits<F>::infinity();
    if (dividend < F(0)) return -std::numeric_limits<F>::infinity();
    return neg_qnan<F>();
}

// Integer result for a zero divisor: the type's limit by the dividend's sign,
// 0 for a zero dividend.
template <class T> inline T int_div_by_zero(int64_t dividend) { return sign_sat<T>(dividend); }

// dst[0 .. len) = v; ErrNullPtr for null dst, then ErrSize for len < 1 (the
// fill shortcuts store a type's maximum this way).
template <class T> inline Status fill_elems(T* dst, int len, T v)
{
    if (dst == nullptr) return ErrNullPtr;
    if (len < 1) return ErrSize;
    for (int i = 0; i < len; ++i) dst[i] = v;
    return StatusOk;
}

// The copy shortcut of an out-of-place form, after its own checks. A caller
// who passes the same vector twice already has the result in place, and the
// copy body must not see overlapping vectors.
template <class T> inline Status copy_shortcut(const T* src, T* dst, int len)
{
    if (src == dst) return StatusOk;
    return copy_elems(src, dst, len);
}

// ---- exact rational rounding ------------------------------------------------
// n / d rounded to nearest with ties to even, d > 0.
inline __int128 div_rne128(__int128 n, __int128 d)
{
    __int128 q = n / d, r = n % d;
    if (r < 0) {
        q -= 1;
        r += d;
    }
    const __int128 twice = 2 * r;
    if (twice > d || (twice == d && (q & 1))) q += 1;
    return q;
}

// Complex 16sc quotient n / d scaled by 2^-s, formed exactly: with
// m = |d|^2 the parts are (n.re*d.re + n.im*d.im) / m and
// (n.im*d.re - n.re*d.im) / m, each rounded once with ties to even and
// saturated. The numerators are below 2^32 in magnitude and m at most 2^31,
// so from s = 32 every part rounds to 0 and from s = -47 down any non-zero
// part saturates. A zero d gives each part the limit by the sign of the
// dividend's part (0 for 0) and sets divByZero.
inline Tav16sc cdiv16sc_exact(Tav16sc n, Tav16sc d, int s, bool& divByZero)
{
    const int64_t m = int64_t(d.re) * d.re + int64_t(d.im) * d.im;
    if (m == 0) {
        divByZero = true;
        return Tav16sc{sign_sat<Tav16s>(n.re), sign_sat<Tav16s>(n.im)};
    }
    const int64_t nr = int64_t(n.re) * d.re + int64_t(n.im) * d.im;
    const int64_t ni = int64_t(n.im) * d.re - int64_t(n.re) * d.im;
    if (s >= 32) return Tav16sc{0, 0};
    if (s <= -47) return Tav16sc{sign_sat<Tav16s>(nr), sign_sat<Tav16s>(ni)};
    const __int128 num = s < 0 ? __int128(1) << -s : 1;
    const __int128 den = s > 0 ? (__int128(m) << s) : __int128(m);
    auto part = [&](int64_t x) {
        const __int128 q = div_rne128(__int128(x) * num, den);
        return q > 32767 ? Tav16s(32767) : q < -32768 ? Tav16s(-32768) : Tav16s(q);
    };
    return Tav16sc{part(nr), part(ni)};
}

// ---- SSE2 loop shape of the real float constant forms -----------------------
// Op provides scalar(F x) and vec(V x). Scalar steps bring dst to a 16-byte
// boundary (when dst is element-aligned), aligned stores follow, and the
// tail is scalar again; each element sees the same single IEEE operation in
// every path, so the bits do not depend on length or alignment. Element i is
// read before it is written, so src == dst works.
template <class Op> inline void f32_const_loop(const float* src, float* dst, int len, const Op& op)
{
    int i = 0;
    if ((reinterpret_cast<uintptr_t>(dst) & 3) == 0)
        for (; i < len && (reinterpret_cast<uintptr_t>(dst + i) & 15) != 0; ++i) dst[i] = op.scalar(src[i]);
    if ((reinterpret_cast<uintptr_t>(dst + i) & 15) == 0) {
        for (; i + 8 <= len; i += 8) {
            __m128 a = _mm_loadu_ps(src + i);
            __m128 b = _mm_loadu_ps(src + i + 4);
            _mm_store_ps(dst + i, op.vec(a));
            _mm_store_ps(dst + i + 4, op.vec(b));
        }
        for (; i + 4 <= len; i += 4) _mm_store_ps(dst + i, op.vec(_mm_loadu_ps(src + i)));
    }
    for (; i < len; ++i) dst[i] = op.scalar(src[i]);
}

template <class Op> inline void f64_const_loop(const double* src, double* dst, int len, const Op& op)
{
    int i = 0;
    if ((reinterpret_cast<uintptr_t>(dst) & 7) == 0)
        for (; i < len && (reinterpret_cast<uintptr_t>(dst + i) & 15) != 0; ++i) dst[i] = op.scalar(src[i]);
    if ((reinterpret_cast<uintptr_t>(dst + i) & 15) == 0) {
        for (; i + 4 <= len; i += 4) {
            __m128d a = _mm_loadu_pd(src + i);
            __m128d b = _mm_loadu_pd(src + i + 2);
            _mm_store_pd(dst + i, op.vec(a));
            _mm_store_pd(dst + i + 2, op.vec(b));
        }
        for (; i + 2 <= len; i += 2) _mm_store_pd(dst + i, op.vec(_mm_loadu_pd(src + i)));
    }
    for (; i < len; ++i) dst[i] = op.scalar(src[i]);
}

// The loop above for either float type.
template <class F, class Op> inline void float_const_loop(const F* src, F* dst, int len, const Op& op)
{
    if constexpr (sizeof(F) == 4) f32_const_loop(src, dst, len, op);
    else f64_const_loop(src, dst, len, op);
}

// SSE2 forms of the four operations with a constant, for F = float/double.
template <class F> struct VecOf;
template <> struct VecOf<float> {
    using V = __m128;
    static V set1(float v) { return _mm_set1_ps(v); }
    static V add(V a, V b) { return _mm_add_ps(a, b); }
    static V sub(V a, V b) { return _mm_sub_ps(a, b); }
    static V mul(V a, V b) { return _mm_mul_ps(a, b); }
};
template <> struct VecOf<double> {
    using V = __m128d;
    static V set1(double v) { return _mm_set1_pd(v); }
    static V add(V a, V b) { return _mm_add_pd(a, b); }
    static V sub(V a, V b) { return _mm_sub_pd(a, b); }
    static V mul(V a, V b) { return _mm_mul_pd(a, b); }
};

} // namespace tavs
