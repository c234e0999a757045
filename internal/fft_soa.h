// The 32f radix-4 butterfly on rows of four values held as [re x4, im x4]
// (four transforms side by side in SSE2 lanes), shared by the kernel on
// such rows and by the passes that do its last stage on their way out.
#pragma once

#include <emmintrin.h>

#include <cstdint>

namespace tavs::fft::soa {

// The radix-4 butterfly on four lanes of split values: (a, b, c, d) with b
// from the second quarter, as bfly4 does on interleaved values.
struct Soa {
    __m128 r, i;
};
template <bool Inv> inline void bfly4_soa(Soa a, Soa b, Soa c, Soa d, Soa& x0, Soa& x1, Soa& x2, Soa& x3)
{
    const Soa t0{_mm_add_ps(a.r, b.r), _mm_add_ps(a.i, b.i)}, t1{_mm_sub_ps(a.r, b.r), _mm_sub_ps(a.i, b.i)};
    const Soa t2{_mm_add_ps(c.r, d.r), _mm_add_ps(c.i, d.i)}, t3{_mm_sub_ps(c.r, d.r), _mm_sub_ps(c.i, d.i)};
    x0 = {_mm_add_ps(t0.r, t2.r), _mm_add_ps(t0.i, t2.i)};
    x2 = {_mm_sub_ps(t0.r, t2.r), _mm_sub_ps(t0.i, t2.i)};
    // t3 rotated by -i (forward) or +i (inverse), added and subtracted.
    if (Inv) {
        x1 = {_mm_sub_ps(t1.r, t3.i), _mm_add_ps(t1.i, t3.r)};
        x3 = {_mm_add_ps(t1.r, t3.i), _mm_sub_ps(t1.i, t3.r)};
    } else {
        x1 = {_mm_add_ps(t1.r, t3.i), _mm_sub_ps(t1.i, t3.r)};
        x3 = {_mm_sub_ps(t1.r, t3.i), _mm_add_ps(t1.i, t3.r)};
    }
}
// x * w (x * conj(w) inverse) with w = (wr, wi) in every lane.
template <bool Inv> inline Soa mul_soa(Soa x, __m128 wr, __m128 wi)
{
    if (Inv) return {_mm_add_ps(_mm_mul_ps(x.r, wr), _mm_mul_ps(x.i, wi)), _mm_sub_ps(_mm_mul_ps(x.i, wr), _mm_mul_ps(x.r, wi))};
    return {_mm_sub_ps(_mm_mul_ps(x.r, wr), _mm_mul_ps(x.i, wi)), _mm_add_ps(_mm_mul_ps(x.r, wi), _mm_mul_ps(x.i, wr))};
}

// The last stage (span R) of the kernel on d, butterfly k: rows k, k + q,
// k + 2q, k + 3q (q = R / 4) into x0 .. x3; tw is the kernel's table.
template <bool Inv> inline void last_stage_bfly(const float* d, int64_t q, const float* tw, int64_t k, Soa& x0, Soa& x1,
                                                Soa& x2, Soa& x3)
{
    auto ld = [d](int64_t r) { return Soa{_mm_load_ps(d + 8 * r), _mm_load_ps(d + 8 * r + 4)}; };
    if (k == 0) {
        bfly4_soa<Inv>(ld(0), ld(q), ld(2 * q), ld(3 * q), x0, x1, x2, x3);
        return;
    }
    // x * w, w = t[0 .. 1] in every lane.
    auto mul = [](Soa x, const float* t) { return mul_soa<Inv>(x, _mm_set1_ps(t[0]), _mm_set1_ps(t[1])); };
    const float* t = tw + 6 * k;
    bfly4_soa<Inv>(ld(k), mul(ld(k + q), t + 2), mul(ld(k + 2 * q), t), mul(ld(k + 3 * q), t + 4), x0, x1, x2, x3);
}

} // namespace tavs::fft::soa

namespace tavs::fft {

// radix4_rows4_soa without its first stage (a butterfly on each four
// consecutive rows), which the caller did on its way in, on two blocks of
// R rows at once (the same bits as on each alone).
template <bool Inverse> void radix4_rows4_soa_after_first(float* d0, float* d1, int64_t R, const float* tw);

} // namespace tavs::fft
