// The few SSE2 helpers that element-wise kernels share. Sources are read
// with unaligned loads; destinations are stored aligned once a kernel has
// brought them to a 16-byte boundary. No helper changes a result: each one
// does, lane by lane, exactly what the scalar code of its kernel does.
#pragma once

#include <emmintrin.h>

#include <cstdint>

namespace tavs::simd {

// ---- float lanes ------------------------------------------------------------
// Vec<T>: the register type of T and its loads and stores.
template <class T> struct Vec;
template <> struct Vec<float> {
    using R = __m128;
    static constexpr int lanes = 4;
    static R load(const float* p) { return _mm_loadu_ps(p); }
    static void store(float* p, R v) { _mm_store_ps(p, v); }
    static void storeu(float* p, R v) { _mm_storeu_ps(p, v); }
    static R add(R a, R b) { return _mm_add_ps(a, b); }
    static R sub(R a, R b) { return _mm_sub_ps(a, b); }
    static R mul(R a, R b) { return _mm_mul_ps(a, b); }
    static R set1(float v) { return _mm_set1_ps(v); }
    // Everything but the sign bit.
    static R abs(R a) { return _mm_and_ps(a, _mm_castsi128_ps(_mm_set1_epi32(0x7fffffff))); }
    static R neg(R a) { return _mm_xor_ps(a, _mm_castsi128_ps(_mm_set1_epi32(INT32_MIN))); }
};
template <> struct Vec<double> {
    using R = __m128d;
    static constexpr int lanes = 2;
    static R load(const double* p) { return _mm_loadu_pd(p); }
    static void store(double* p, R v) { _mm_store_pd(p, v); }
    static void storeu(double* p, R v) { _mm_storeu_pd(p, v); }
    static R add(R a, R b) { return _mm_add_pd(a, b); }
    static R sub(R a, R b) { return _mm_sub_pd(a, b); }
    static R mul(R a, R b) { return _mm_mul_pd(a, b); }
    static R set1(double v) { return _mm_set1_pd(v); }
    static R abs(R a) { return _mm_and_pd(a, _mm_castsi128_pd(_mm_set1_epi64x(INT64_MAX))); }
    static R neg(R a) { return _mm_xor_pd(a, _mm_castsi128_pd(_mm_set1_epi64x(INT64_MIN))); }
};

// Four interleaved complex floats (two registers) split into parts and back.
inline void deinterleave(__m128 x0, __m128 x1, __m128& re, __m128& im)
{
    re = _mm_shuffle_ps(x0, x1, _MM_SHUFFLE(2, 0, 2, 0));
    im = _mm_shuffle_ps(x0, x1, _MM_SHUFFLE(3, 1, 3, 1));
}
inline void interleave(__m128 re, __m128 im, __m128& x0, __m128& x1)
{
    x0 = _mm_unpacklo_ps(re, im);
    x1 = _mm_unpackhi_ps(re, im);
}

// ---- 16-bit integer lanes in 32-bit arithmetic --------------------------------
inline __m128i load_i(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
inline void store_i(void* p, __m128i v) { _mm_store_si128(static_cast<__m128i*>(p), v); }

// Eight 16-bit lanes widened to two registers of four 32-bit lanes.
inline void widen_s16(__m128i v, __m128i& lo, __m128i& hi)
{
    lo = _mm_srai_epi32(_mm_unpacklo_epi16(v, v), 16);
    hi = _mm_srai_epi32(_mm_unpackhi_epi16(v, v), 16);
}
inline void widen_u16(__m128i v, __m128i& lo, __m128i& hi)
{
    lo = _mm_unpacklo_epi16(v, _mm_setzero_si128());
    hi = _mm_unpackhi_epi16(v, _mm_setzero_si128());
}

// Full 32-bit products of eight 16-bit lane pairs.
inline void mul_s16(__m128i a, __m128i b, __m128i& lo, __m128i& hi)
{
    __m128i l = _mm_mullo_epi16(a, b), h = _mm_mulhi_epi16(a, b);
    lo = _mm_unpacklo_epi16(l, h);
    hi = _mm_unpackhi_epi16(l, h);
}
inline void mul_u16(__m128i a, __m128i b, __m128i& lo, __m128i& hi)
{
    __m128i l = _mm_mullo_epi16(a, b), h = _mm_mulhi_epu16(a, b);
    lo = _mm_unpacklo_epi16(l, h);
    hi = _mm_unpackhi_epi16(l, h);
}

// The constants of a right shift by s (1 <= s <= 31) with ties to even.
struct RneShift {
    __m128i count, mask, halfMinus1;
    bool small; // s <= 16: e + 2^(s-1) cannot overflow a lane of the 16-bit kernels
    explicit RneShift(int s)
        : count(_mm_cvtsi32_si128(s)), mask(_mm_set1_epi32(int32_t((uint32_t(1) << s) - 1))),
          halfMinus1(_mm_set1_epi32(int32_t((uint32_t(1) << (s - 1)) - 1))), small(s <= 16)
    {
    }
};

// e * 2^-s, ties to even. For small s the rule itself,
// (e + 2^(s-1) - 1 + ((e >> s) & 1)) >> s, whose sum stays inside the lane
// for every exact result of the 16-bit kernels (|e| < 2^30 + 2^16 signed,
// e < 2^32 - 2^17 + 2 unsigned). For larger s, without overflow: q = e >> s,
// plus one when the dropped bits r satisfy r + 2^(s-1) - 1 + (q & 1) >= 2^s
// (a sum below 2^(s+1), which an unsigned lane holds). Unsigned lanes shift
// logically, signed lanes arithmetically.
template <bool Unsigned> inline __m128i rne_shift(__m128i e, const RneShift& k)
{
    auto shr = [&](__m128i v) { return Unsigned ? _mm_srl_epi32(v, k.count) : _mm_sra_epi32(v, k.count); };
    const __m128i one = _mm_set1_epi32(1);
    if (k.small) {
        const __m128i odd = _mm_and_si128(shr(e), one);
        return shr(_mm_add_epi32(_mm_add_epi32(e, k.halfMinus1), odd));
    }
    const __m128i q = shr(e);
    const __m128i t = _mm_add_epi32(_mm_add_epi32(_mm_and_si128(e, k.mask), k.halfMinus1), _mm_and_si128(q, one));
    return _mm_add_epi32(q, _mm_srl_epi32(t, k.count));
}

// Unsigned 32-bit lanes clamped to 65535 (the result fits a signed lane).
inline __m128i clamp_u32_to_u16(__m128i e)
{
    __m128i fits = _mm_cmpeq_epi32(_mm_srli_epi32(e, 16), _mm_setzero_si128());
    return _mm_or_si128(_mm_and_si128(fits, e), _mm_andnot_si128(fits, _mm_set1_epi32(0xffff)));
}

// Signed 32-bit lanes saturated to 16 bits and packed, eight results.
inline __m128i pack_sat_s16(__m128i lo, __m128i hi) { return _mm_packs_epi32(lo, hi); }
// Signed 32-bit lanes (above INT32_MIN + 32768) saturated to 0..65535:
// biased into the signed 16-bit range, packed with saturation, unbiased.
inline __m128i pack_sat_u16(__m128i lo, __m128i hi)
{
    const __m128i bias = _mm_set1_epi32(32768);
    __m128i p = _mm_packs_epi32(_mm_sub_epi32(lo, bias), _mm_sub_epi32(hi, bias));
    return _mm_xor_si128(p, _mm_set1_epi16(INT16_MIN));
}

} // namespace tavs::simd
