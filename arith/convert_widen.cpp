// Widening conversions: integers to wider integers and to float, 32f to 64f,
// and the integer-to-float forms with a power-of-two scale.
#include <type_traits>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/convert.h"

using namespace tavs;
using namespace tavs::cvt;

namespace {

template <class D, class V> inline void st_elem(D* dst, size_t i, V v) { st<D>(dst, i, D(v)); }

// One element-wise pass: checks, then scalar/vector driver. cvt(s) is the
// per-element step, vec(s, d) converts W elements to an aligned destination.
template <size_t W, class S, class D, class Cvt, class Vec>
Status widen(const S* src, D* dst, int len, Cvt cvt, Vec vec)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    drive<W>(
        dst, size_t(len), 8, [&](size_t i) { st_elem(dst, i, cvt(ld<S>(src, i))); },
        [&](size_t i) { vec(src + i, dst + i); });
    return StatusOk;
}

// Four int32 lanes stored as 32f or, in two halves, as 64f.
inline void put_f32(Tav32f* d, __m128i v) { _mm_store_ps(d, _mm_cvtepi32_ps(v)); }
inline void put_f64(Tav64f* d, __m128i v)
{
    _mm_store_pd(d, _mm_cvtepi32_pd(v));
    _mm_store_pd(d + 2, _mm_cvtepi32_pd(_mm_shuffle_epi32(v, _MM_SHUFFLE(1, 0, 3, 2))));
}
inline __m128i load16(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }

// Sixteen 8-bit lanes widened to four vectors of 32-bit lanes.
template <bool Signed> inline void widen_8(__m128i v, __m128i out[4])
{
    __m128i lo, hi;
    if constexpr (Signed) {
        lo = _mm_srai_epi16(_mm_unpacklo_epi8(v, v), 8);
        hi = _mm_srai_epi16(_mm_unpackhi_epi8(v, v), 8);
        widen_16s(lo, out[0], out[1]);
        widen_16s(hi, out[2], out[3]);
    } else {
        const __m128i z = _mm_setzero_si128();
        lo = _mm_unpacklo_epi8(v, z);
        hi = _mm_unpackhi_epi8(v, z);
        out[0] = _mm_unpacklo_epi16(lo, z);
        out[1] = _mm_unpackhi_epi16(lo, z);
        out[2] = _mm_unpacklo_epi16(hi, z);
        out[3] = _mm_unpackhi_epi16(hi, z);
    }
}

template <bool Signed> Status bytes_to_32f(const void* src, Tav32f* dst, int len)
{
    using S = std::conditional_t<Signed, Tav8s, Tav8u>;
    return widen<16>(
        static_cast<const S*>(src), dst, len, [](S v) { return Tav32f(v); },
        [](const S* s, Tav32f* d) {
            __m128i q[4];
            widen_8<Signed>(load16(s), q);
            for (int k = 0; k < 4; ++k)
                put_f32(d + 4 * k, q[k]);
        });
}

// Eight 16-bit lanes widened to two vectors of 32-bit lanes.
template <bool Signed> inline void widen_16(__m128i v, __m128i& lo, __m128i& hi)
{
    if constexpr (Signed) {
        widen_16s(v, lo, hi);
    } else {
        lo = _mm_unpacklo_epi16(v, _mm_setzero_si128());
        hi = _mm_unpackhi_epi16(v, _mm_setzero_si128());
    }
}

// Eight 16s or 32s elements as two vectors of 32-bit lanes.
inline void load8_32s(const Tav16s* s, __m128i& a, __m128i& b) { widen_16s(load16(s), a, b); }
inline void load8_32s(const Tav32s* s, __m128i& a, __m128i& b)
{
    a = load16(s);
    b = load16(s + 4);
}

// Integer to float with dst = src * 2^-scaleFactor: conversion, then one
// multiply by the factor built in the destination type.
template <class S, class F> Status scaled_to_float(const S* src, F* dst, int len, int scaleFactor)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    const F f = pow2_neg<F>(scaleFactor);
    auto scalar = [&](size_t i) { st<F>(dst, i, F(ld<S>(src, i)) * f); };
    if constexpr (sizeof(F) == 4) {
        const __m128 vf = _mm_set1_ps(f);
        drive<8>(dst, size_t(len), 8, scalar, [&](size_t i) {
            __m128i a, b;
            load8_32s(src + i, a, b);
            _mm_store_ps(dst + i, _mm_mul_ps(_mm_cvtepi32_ps(a), vf));
            _mm_store_ps(dst + i + 4, _mm_mul_ps(_mm_cvtepi32_ps(b), vf));
        });
    } else {
        const __m128d vf = _mm_set1_pd(f);
        drive<8>(dst, size_t(len), 8, scalar, [&](size_t i) {
            __m128i v[2];
            load8_32s(src + i, v[0], v[1]);
            for (int k = 0; k < 2; ++k) {
                __m128i hiPair = _mm_shuffle_epi32(v[k], _MM_SHUFFLE(1, 0, 3, 2));
                _mm_store_pd(dst + i + 4 * k, _mm_mul_pd(_mm_cvtepi32_pd(v[k]), vf));
                _mm_store_pd(dst + i + 4 * k + 2, _mm_mul_pd(_mm_cvtepi32_pd(hiPair), vf));
            }
        });
    }
    return StatusOk;
}

} // namespace

extern "C" {

Status tavsConvert_8s16s_body(const Tav8s* src, Tav16s* dst, int len)
{
    return widen<16>(
        src, dst, len, [](Tav8s v) { return Tav16s(v); },
        [](const Tav8s* s, Tav16s* d) {
            __m128i v = load16(s);
            _mm_store_si128(reinterpret_cast<__m128i*>(d), _mm_srai_epi16(_mm_unpacklo_epi8(v, v), 8));
            _mm_store_si128(reinterpret_cast<__m128i*>(d + 8), _mm_srai_epi16(_mm_unpackhi_epi8(v, v), 8));
        });
}

Status tavsConvert_8s32f_body(const Tav8s* src, Tav32f* dst, int len)
{
    return bytes_to_32f<true>(src, dst, len);
}
Status tavsConvert_8u32f_body(const Tav8u* src, Tav32f* dst, int len)
{
    return bytes_to_32f<false>(src, dst, len);
}

Status tavsConvert_16s32f_body(const Tav16s* src, Tav32f* dst, int len)
{
    return widen<16>(
        src, dst, len, [](Tav16s v) { return Tav32f(v); },
        [](const Tav16s* s, Tav32f* d) {
            for (int k = 0; k < 2; ++k) {
                __m128i a, b;
                widen_16<true>(load16(s + 8 * k), a, b);
                put_f32(d + 8 * k, a);
                put_f32(d + 8 * k + 4, b);
            }
        });
}

Status tavsConvert_16u32f_body(const Tav16u* src, Tav32f* dst, int len)
{
    return widen<8>(
        src, dst, len, [](Tav16u v) { return Tav32f(v); },
        [](const Tav16u* s, Tav32f* d) {
            __m128i a, b;
            widen_16<false>(load16(s), a, b);
            put_f32(d, a);
            put_f32(d + 4, b);
        });
}

Status tavsConvert_16s32s_body(const Tav16s* src, Tav32s* dst, int len)
{
    return widen<8>(
        src, dst, len, [](Tav16s v) { return Tav32s(v); },
        [](const Tav16s* s, Tav32s* d) {
            __m128i a, b;
            widen_16s(load16(s), a, b);
            _mm_store_si128(reinterpret_cast<__m128i*>(d), a);
            _mm_store_si128(reinterpret_cast<__m128i*>(d + 4), b);
        });
}

// The integer-to-float instruction, so the caller's rounding direction
// decides inexact results.
Status tavsConvert_32s32f_body(const Tav32s* src, Tav32f* dst, int len)
{
    return widen<8>(
        src, dst, len, [](Tav32s v) { return Tav32f(v); },
        [](const Tav32s* s, Tav32f* d) {
            put_f32(d, load16(s));
            put_f32(d + 4, load16(s + 4));
        });
}

Status tavsConvert_32s64f_body(const Tav32s* src, Tav64f* dst, int len)
{
    return widen<4>(
        src, dst, len, [](Tav32s v) { return Tav64f(v); },
        [](const Tav32s* s, Tav64f* d) { put_f64(d, load16(s)); });
}

Status tavsConvert_32f64f_body(const Tav32f* src, Tav64f* dst, int len)
{
    return widen<4>(
        src, dst, len, [](Tav32f v) { return Tav64f(v); },
        [](const Tav32f* s, Tav64f* d) {
            __m128 v = _mm_loadu_ps(s);
            _mm_store_pd(d, _mm_cvtps_pd(v));
            _mm_store_pd(d + 2, _mm_cvtps_pd(_mm_movehl_ps(v, v)));
        });
}

// len is an unsigned count here: only 0 is rejected.
Status tavsConvert_64s64f_body(const Tav64s* src, Tav64f* dst, int len)
{
    if (Status chk = check_ptrs_ulen(len, src, dst); chk != StatusOk) return chk;
    const size_t n = uint32_t(len);
    for (size_t i = 0; i < n; ++i)
        st<Tav64f>(dst, i, Tav64f(ld<Tav64s>(src, i)));
    return StatusOk;
}

Status tavsConvert_16s32f_Sfs_body(const Tav16s* src, Tav32f* dst, int len, int scaleFactor)
{
    return scaled_to_float(src, dst, len, scaleFactor);
}
Status tavsConvert_16s64f_Sfs_body(const Tav16s* src, Tav64f* dst, int len, int scaleFactor)
{
    return scaled_to_float(src, dst, len, scaleFactor);
}
Status tavsConvert_32s32f_Sfs_body(const Tav32s* src, Tav32f* dst, int len, int scaleFactor)
{
    return scaled_to_float(src, dst, len, scaleFactor);
}
Status tavsConvert_32s64f_Sfs_body(const Tav32s* src, Tav64f* dst, int len, int scaleFactor)
{
    return scaled_to_float(src, dst, len, scaleFactor);
}

} // extern "C"
