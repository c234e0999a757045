// Pieces shared by the conversion bodies: unaligned element access, the
// driver that splits a vector into a scalar head, an aligned SSE2 body and a
// scalar tail, the power-of-two scale factor, and the float-to-integer
// rounding steps in scalar and vector form.
#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "internal/check.h"
#include "internal/fixed.h"
#include "internal/types.h"

namespace tavs::cvt {

// Vectors carry no alignment promise, so scalar code reads and writes
// elements through memcpy (a plain move once compiled).
template <class T> inline T ld(const void* p, size_t i)
{
    T v;
    std::memcpy(&v, static_cast<const unsigned char*>(p) + i * sizeof(T), sizeof(T));
    return v;
}
template <class T> inline void st(void* p, size_t i, T v)
{
    std::memcpy(static_cast<unsigned char*>(p) + i * sizeof(T), &v, sizeof(T));
}

// 24-bit elements: three little-endian bytes at p + 3i.
inline uint32_t read24(const Tav8u* p, size_t i)
{
    p += 3 * i;
    return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16;
}
inline int32_t read24s(const Tav8u* p, size_t i) { return int32_t(read24(p, i) ^ 0x800000u) - 0x800000; }
// Stores the low 24 bits of v.
inline void write24(Tav8u* p, size_t i, int64_t v)
{
    const uint32_t u = uint32_t(v);
    p += 3 * i;
    p[0] = Tav8u(u);
    p[1] = Tav8u(u >> 8);
    p[2] = Tav8u(u >> 16);
}

// The head of the members that read len as an unsigned count: ErrNullPtr for
// a null pointer, then ErrSize for 0 only (a negative count is a huge one).
template <class... P> inline Status check_ptrs_ulen(int len, const P*... p)
{
    if (any_null(p...)) return ErrNullPtr;
    if (len == 0) return ErrSize;
    return StatusOk;
}

// Runs scalar(i), vec(i) (W elements from i, destination 16-byte aligned)
// and narrow(i) (W2 elements, W2 <= W, for what the wide steps leave) over n
// elements. Short vectors and destinations that are not aligned to their
// element size stay scalar; otherwise scalar steps bring the destination to
// a 16-byte boundary first. All paths give the same bits.
template <size_t W, size_t W2, class D, class S, class V, class V2>
inline void drive(const D* dst, size_t n, size_t minVec, S&& scalar, V&& vec, V2&& narrow)
{
    static_assert(W2 <= W);
    size_t i = 0;
    const uintptr_t addr = reinterpret_cast<uintptr_t>(dst);
    if (n >= minVec && n >= W2 && addr % sizeof(D) == 0) {
        size_t head = ((16 - addr % 16) % 16) / sizeof(D);
        for (; i < head && i < n; ++i)
            scalar(i);
        for (; n - i >= W; i += W)
            vec(i);
        if constexpr (W2 < W)
            for (; n - i >= W2; i += W2)
                narrow(i);
    }
    for (; i < n; ++i)
        scalar(i);
}

// The same with one vector width.
template <size_t W, class D, class S, class V>
inline void drive(const D* dst, size_t n, size_t minVec, S&& scalar, V&& vec)
{
    drive<W, W>(dst, n, minVec, scalar, vec, [](size_t) {});
}

// 2^-sf in F, built by halving or doubling 1.0 |sf| times so that every step
// is the float operation under the caller's rounding state. Once a step no
// longer changes the value (zero, infinity, or the largest finite value under
// a directed rounding) the remaining steps cannot change it either.
template <class F> inline F pow2_neg(int sf)
{
    F f = F(1);
    const F step = sf > 0 ? F(0.5) : F(2);
    int64_t n = sf > 0 ? int64_t(sf) : -int64_t(sf);
    for (int64_t k = 0; k < n; ++k) {
        F next = f * step;
        if (next == f) break;
        f = next;
    }
    return f;
}

// ---- scalar rounding of a value already limited to the int32 range --------
// The processor's conversion (caller's rounding direction), truncation, and
// half away from zero as trunc(2|x|) + 1 shifted right once.
inline int32_t cvt_rhe(float x) { return _mm_cvtss_si32(_mm_set_ss(x)); }
inline int32_t cvt_rtz(float x) { return _mm_cvttss_si32(_mm_set_ss(x)); }
inline int32_t cvt_rha(float x)
{
    float a = x < 0.0f ? -x : x;
    int32_t r = (cvt_rtz(a + a) + 1) >> 1;
    return x < 0.0f ? -r : r;
}
inline int32_t cvt_rhe(double x) { return _mm_cvtsd_si32(_mm_set_sd(x)); }
inline int32_t cvt_rtz(double x) { return _mm_cvttsd_si32(_mm_set_sd(x)); }
// Half away for 64f sources: +-0.5 by the sign, then truncation.
inline int32_t cvt_rha_add(double x) { return cvt_rtz(x < 0.0 ? x - 0.5 : x + 0.5); }

// e * 2^-s for 1 <= s <= 63 by rndMode: 1 ties to even, 0 truncation toward
// zero, any other value half away from zero on the magnitude.
inline int64_t rshift_mode(int64_t e, int s, int rndMode)
{
    if (rndMode == RoundHalfEven) return rshift_rne(e, s);
    const bool neg = e < 0;
    uint64_t mag = neg ? 0ull - uint64_t(e) : uint64_t(e);
    if (rndMode != RoundTowardZero) mag += uint64_t(1) << (s - 1);
    const uint64_t q = mag >> s; // at most 2^62 + 1, so the negation below fits
    return neg ? -int64_t(q) : int64_t(q);
}

// e * 2^-sf with the left count clamped at leftMax and the right count at
// rightMax, rounded by rndMode, clamped to the range of D (an element type or
// a 24-bit tag).
template <class D> inline int64_t scale_narrow(int64_t e, int sf, int leftMax, int rightMax, int rndMode)
{
    if (sf < 0) {
        const int n = sf < -leftMax ? leftMax : -sf;
        return clamp_to<D>(lshift_sat64(e, n));
    }
    if (sf > 0) {
        const int s = sf > rightMax ? rightMax : sf;
        return clamp_to<D>(rshift_mode(e, s, rndMode));
    }
    return clamp_to<D>(e);
}

// Limiting as the vector path does it (maxps, then minps): a NaN becomes lo.
template <class F> inline F limit(F x, F lo, F hi)
{
    x = x > lo ? x : lo;
    return x < hi ? x : hi;
}

// ---- the same steps on four lanes ------------------------------------------
inline __m128i vcvt_rha(__m128 x)
{
    const __m128 signBit = _mm_set1_ps(-0.0f);
    __m128 a = _mm_andnot_ps(signBit, x);
    __m128i r = _mm_srai_epi32(_mm_add_epi32(_mm_cvttps_epi32(_mm_add_ps(a, a)), _mm_set1_epi32(1)), 1);
    __m128i neg = _mm_castps_si128(_mm_cmplt_ps(x, _mm_setzero_ps()));
    return _mm_sub_epi32(_mm_xor_si128(r, neg), neg);
}

// Rounds four limited lanes by rndMode (0 truncation, 1 conversion, other
// half away).
inline __m128i vcvt_mode(__m128 x, int rndMode)
{
    if (rndMode == RoundTowardZero) return _mm_cvttps_epi32(x);
    if (rndMode == RoundHalfEven) return _mm_cvtps_epi32(x);
    return vcvt_rha(x);
}
inline int32_t cvt_mode(float x, int rndMode)
{
    if (rndMode == RoundTowardZero) return cvt_rtz(x);
    if (rndMode == RoundHalfEven) return cvt_rhe(x);
    return cvt_rha(x);
}

// Sign-extends eight 16-bit lanes into two vectors of four 32-bit lanes.
inline void widen_16s(__m128i v, __m128i& lo, __m128i& hi)
{
    const __m128i sign = _mm_cmplt_epi16(v, _mm_setzero_si128());
    lo = _mm_unpacklo_epi16(v, sign);
    hi = _mm_unpackhi_epi16(v, sign);
}

// Packs the low 16 bits of each 32-bit lane of a and b (bit patterns kept).
inline __m128i pack_low16(__m128i a, __m128i b)
{
    a = _mm_srai_epi32(_mm_slli_epi32(a, 16), 16);
    b = _mm_srai_epi32(_mm_slli_epi32(b, 16), 16);
    return _mm_packs_epi32(a, b);
}

} // namespace tavs::cvt
