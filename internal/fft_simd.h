// SSE2 helpers of the FFT kernels: complex products, the rotation by -i
// (or +i), the 4-point butterfly, and twiddles prepared for products.
// Interleaved 32f registers hold [re0 im0 re1 im1], 64f registers [re im].
#pragma once

#include <emmintrin.h>

#include <cstdint>

namespace tavs::fft::simd {

// ---- SSE2 complex helpers, 32f: [re0 im0 re1 im1] -------------------------

inline __m128 swap_ri(__m128 x) { return _mm_shuffle_ps(x, x, _MM_SHUFFLE(2, 3, 0, 1)); }
inline __m128 sign_even() { return _mm_castsi128_ps(_mm_set_epi32(0, int(0x80000000u), 0, int(0x80000000u))); }
inline __m128 sign_odd() { return _mm_castsi128_ps(_mm_set_epi32(int(0x80000000u), 0, int(0x80000000u), 0)); }

// x * w, or x * conj(w) for the inverse direction.
template <bool Inv> inline __m128 cmul(__m128 x, __m128 w)
{
    const __m128 wr = _mm_shuffle_ps(w, w, _MM_SHUFFLE(2, 2, 0, 0));
    const __m128 wi = _mm_shuffle_ps(w, w, _MM_SHUFFLE(3, 3, 1, 1));
    const __m128 t = _mm_mul_ps(swap_ri(x), wi);
    return _mm_add_ps(_mm_mul_ps(x, wr), _mm_xor_ps(t, Inv ? sign_odd() : sign_even()));
}
// -i x (forward) or +i x (inverse).
template <bool Inv> inline __m128 rot(__m128 x) { return _mm_xor_ps(swap_ri(x), Inv ? sign_even() : sign_odd()); }

inline __m128 load2(const float* a, const float* b)
{
    return _mm_loadh_pi(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(a))),
                        reinterpret_cast<const __m64*>(b));
}

// Four registers of four floats transposed: row k of the input becomes
// column k of the output.
inline void transpose4(__m128& r0, __m128& r1, __m128& r2, __m128& r3)
{
    const __m128 t0 = _mm_unpacklo_ps(r0, r1), t1 = _mm_unpacklo_ps(r2, r3);
    const __m128 t2 = _mm_unpackhi_ps(r0, r1), t3 = _mm_unpackhi_ps(r2, r3);
    r0 = _mm_movelh_ps(t0, t1);
    r1 = _mm_movehl_ps(t1, t0);
    r2 = _mm_movelh_ps(t2, t3);
    r3 = _mm_movehl_ps(t3, t2);
}

// Real and imaginary parts of the radix-4 table entries k .. k+3 (stride
// floats apart), for stages that run four k side by side in SSE2 lanes. The
// entry k = 0 is not read when first is set: lane 0 then repeats entry 1,
// and the stage does not use that lane's product (the butterfly of k = 0 is
// not multiplied). Both directions take the entries as they are; the
// inverse conjugates inside its products.
inline void twiddle4(const float* t, int64_t stride, bool first, __m128& wr, __m128& wi)
{
    const __m128 c01 = load2(first ? t + stride : t, t + stride);
    const __m128 c23 = load2(t + 2 * stride, t + 3 * stride);
    wr = _mm_shuffle_ps(c01, c23, _MM_SHUFFLE(2, 0, 2, 0));
    wi = _mm_shuffle_ps(c01, c23, _MM_SHUFFLE(3, 1, 3, 1));
}

// ---- 64f: [re im] ---------------------------------------------------------

inline __m128d swap_ri(__m128d x) { return _mm_shuffle_pd(x, x, 1); }
inline __m128d sign_lo() { return _mm_castsi128_pd(_mm_set_epi64x(0, int64_t(0x8000000000000000ull))); }
inline __m128d sign_hi() { return _mm_castsi128_pd(_mm_set_epi64x(int64_t(0x8000000000000000ull), 0)); }

template <bool Inv> inline __m128d cmul(__m128d x, __m128d w)
{
    const __m128d wr = _mm_unpacklo_pd(w, w);
    const __m128d wi = _mm_unpackhi_pd(w, w);
    const __m128d t = _mm_mul_pd(swap_ri(x), wi);
    return _mm_add_pd(_mm_mul_pd(x, wr), _mm_xor_pd(t, Inv ? sign_hi() : sign_lo()));
}
template <bool Inv> inline __m128d rot(__m128d x) { return _mm_xor_pd(swap_ri(x), Inv ? sign_lo() : sign_hi()); }

// The 4-point butterfly on already twiddled quarters: a, b (from the second
// quarter, the x[4n+2] sub-transform), c, d.
template <bool Inv, class V> inline void bfly4(V a, V b, V c, V d, V& x0, V& x1, V& x2, V& x3)
{
    const V t0 = a + b, t1 = a - b, t2 = c + d, t3 = rot<Inv>(c - d);
    x0 = t0 + t2;
    x2 = t0 - t2;
    x1 = t1 + t3;
    x3 = t1 - t3;
}

// A twiddle ready for products: its real part in both lanes of each value,
// its imaginary part with the sign of the product folded in, so that
// x * w = x * wr + swap(x) * wi (conjugated w in the inverse direction).
struct Tw32 {
    __m128 wr, wi;
};
template <bool Inv> inline Tw32 prep(__m128 w)
{
    return {_mm_shuffle_ps(w, w, _MM_SHUFFLE(2, 2, 0, 0)),
            _mm_xor_ps(_mm_shuffle_ps(w, w, _MM_SHUFFLE(3, 3, 1, 1)), Inv ? sign_odd() : sign_even())};
}
inline __m128 mul(__m128 x, Tw32 w) { return _mm_add_ps(_mm_mul_ps(x, w.wr), _mm_mul_ps(swap_ri(x), w.wi)); }

struct Tw64 {
    __m128d wr, wi;
};
template <bool Inv> inline Tw64 prep(__m128d w)
{
    return {_mm_unpacklo_pd(w, w), _mm_xor_pd(_mm_unpackhi_pd(w, w), Inv ? sign_hi() : sign_lo())};
}
inline __m128d mul(__m128d x, Tw64 w) { return _mm_add_pd(_mm_mul_pd(x, w.wr), _mm_mul_pd(swap_ri(x), w.wi)); }

// Bit reversal of the 4-bit index of a block of 16.
constexpr int8_t kRev16[16] = {0, 8, 4, 12, 2, 10, 6, 14, 1, 9, 5, 13, 3, 11, 7, 15};

} // namespace tavs::fft::simd
