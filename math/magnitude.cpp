// tavsMagnitude_*, tavsMagSquared_* and tavsPowerSpectr_*: magnitudes and
// squared magnitudes of complex values, split or interleaved.
#include <emmintrin.h>

#include <cmath>

#include "internal/body.h"
#include "internal/fixed.h"
#include "internal/math_common.h"
#include "internal/math_pairs.h"
#include "internal/movers.h"

namespace {

using namespace tavs::math;

// ---- float magnitude: sqrt(re^2 + im^2) in the element's precision ----------------------
// Squares and sum as they are (no scaled hypot), one sqrt per element.
template <class Pairs, class D> Status magnitude_float(Pairs src, D* dst, int len)
{
    if (Status st = src.check(len, dst)) return st;
    for (int i = 0; i < len; ++i) {
        const D re = D(src.r(i)), im = D(src.m(i));
        dst[i] = std::sqrt(re * re + im * im);
    }
    return StatusOk;
}

// The 32f forms, four elements a step: the same operations, so the same bits.
Status magnitude_32f(const Tav32f* re, const Tav32f* im, Tav32f* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, re, im, dst)) return st;
    int i = 0;
    for (; i + 4 <= len; i += 4) {
        const __m128 r = _mm_loadu_ps(re + i), m = _mm_loadu_ps(im + i);
        _mm_storeu_ps(dst + i, _mm_sqrt_ps(_mm_add_ps(_mm_mul_ps(r, r), _mm_mul_ps(m, m))));
    }
    for (; i < len; ++i)
        dst[i] = std::sqrt(re[i] * re[i] + im[i] * im[i]);
    return StatusOk;
}

Status magnitude_32fc(const Tav32fc* src, Tav32f* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    const float* s = &src[0].re;
    int i = 0;
    for (; i + 4 <= len; i += 4) {
        const __m128 a = _mm_loadu_ps(s + 2 * i), b = _mm_loadu_ps(s + 2 * i + 4);
        const __m128 r = _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0));
        const __m128 m = _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1));
        _mm_storeu_ps(dst + i, _mm_sqrt_ps(_mm_add_ps(_mm_mul_ps(r, r), _mm_mul_ps(m, m))));
    }
    for (; i < len; ++i)
        dst[i] = std::sqrt(src[i].re * src[i].re + src[i].im * src[i].im);
    return StatusOk;
}

// ---- 16-bit integer magnitude ----------------------------------------------------------
// re^2 + im^2 as a 32-bit pattern read unsigned (the one overflow, both parts
// -32768, gives 2^31). sf in -14..0: the sum times 4^-sf, replaced by
// 0x3FFF0000 past that value, sqrt in float, conversion by the current
// rounding; below -14 every non-zero sum saturates; sf >= 1: the rounded
// root, exactly (ties to even).
inline uint32_t sumsq16(int32_t re, int32_t im) { return uint32_t(re * re) + uint32_t(im * im); }

inline Tav16s magnitude16(uint32_t sum, int sf)
{
    if (sf >= 1) return Tav16s(round_sqrt_exact(sum, sf, 32767));
    if (sf < -14) return sum == 0 ? 0 : 32767;
    const int s2 = -2 * sf;
    const uint64_t v = sum > (0x3FFF0000u >> s2) ? 0x3FFF0000u : uint64_t(sum) << s2;
    const int r = _mm_cvtss_si32(_mm_set_ss(std::sqrt(float(v))));
    return Tav16s(r > 32767 ? 32767 : r);
}

template <class Pairs> Status magnitude_16s(Pairs src, Tav16s* dst, int len, int sf)
{
    if (Status st = src.check(len, dst)) return st;
    for (int i = 0; i < len; ++i)
        dst[i] = magnitude16(sumsq16(src.r(i), src.m(i)), sf);
    return StatusOk;
}

// Each square converted to float, the two floats added, sqrt in float.
template <class Pairs> Status magnitude_16s32f(Pairs src, Tav32f* dst, int len)
{
    if (Status st = src.check(len, dst)) return st;
    for (int i = 0; i < len; ++i) {
        const int32_t re = src.r(i), im = src.m(i);
        dst[i] = std::sqrt(float(re * re) + float(im * im));
    }
    return StatusOk;
}

// 32sc: in double, sqrt(re^2 + im^2) 2^-sf + 0.5, capped at 2147483647,
// truncated; from -31 down every non-zero pair saturates.
Status magnitude_32sc(const Tav32sc* src, Tav32s* dst, int len, int sf)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    const double scale = sf > -31 ? std::pow(2.0, -double(sf)) : 0.0;
    for (int i = 0; i < len; ++i) {
        const double re = src[i].re, im = src[i].im;
        if (sf <= -31) {
            dst[i] = (re == 0.0 && im == 0.0) ? 0 : INT32_MAX;
            continue;
        }
        const double v = std::sqrt(re * re + im * im) * scale + 0.5;
        dst[i] = v >= 2147483647.0 ? INT32_MAX : Tav32s(v);
    }
    return StatusOk;
}

// ---- squared magnitude and power spectrum ---------------------------------------------
template <class Pairs, class D> Status power_float(Pairs src, D* dst, int len)
{
    if (Status st = src.check(len, dst)) return st;
    for (int i = 0; i < len; ++i) {
        const D re = D(src.r(i)), im = D(src.m(i));
        dst[i] = re * re + im * im;
    }
    return StatusOk;
}

// Each square widened to float as an integer, then the floats added.
template <class Pairs> Status power_16s32f(Pairs src, Tav32f* dst, int len)
{
    if (Status st = src.check(len, dst)) return st;
    for (int i = 0; i < len; ++i) {
        const int32_t re = src.r(i), im = src.m(i);
        dst[i] = float(re * re) + float(im * im);
    }
    return StatusOk;
}

// The sum of squares in a 32-bit lane (read unsigned), scaled with ties to
// even and the right shift capped at 31; below -14 a branch of its own.
inline Tav16s power16(uint32_t sum, int sf)
{
    if (sf < -14) return sum == 0 ? 0 : 32767;
    int64_t v;
    if (sf <= 0)
        v = int64_t(uint64_t(sum) << -sf);
    else
        v = tavs::rshift_rne(int64_t(sum), sf > 31 ? 31 : sf);
    return Tav16s(v > 32767 ? 32767 : v);
}

template <class Pairs> Status power_16s(Pairs src, Tav16s* dst, int len, int sf)
{
    if (Status st = src.check(len, dst)) return st;
    for (int i = 0; i < len; ++i)
        dst[i] = power16(sumsq16(src.r(i), src.m(i)), sf);
    return StatusOk;
}

// 32sc: re^2 + im^2 exactly in 64 bits (up to 2^63, so unsigned).
Status magsquared_32sc(const Tav32sc* src, Tav32s* dst, int len, int sf)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    if (sf > 63) return tavs::zero_fill(dst, len);
    for (int i = 0; i < len; ++i) {
        const int64_t re = src[i].re, im = src[i].im;
        const uint64_t sum = uint64_t(re * re) + uint64_t(im * im);
        uint64_t v;
        if (sf >= 0)
            v = sum >> sf;
        else if (sf >= -30)
            v = sum >= (uint64_t(1) << 31) ? uint64_t(INT32_MAX) : sum << -sf;
        else
            v = sum == 0 ? 0 : uint64_t(INT32_MAX);
        dst[i] = v > uint64_t(INT32_MAX) ? INT32_MAX : Tav32s(v);
    }
    return StatusOk;
}

} // namespace

extern "C" {
Status tavsMagnitude_32f_body(const Tav32f* re, const Tav32f* im, Tav32f* dst, int len)
{
    return magnitude_32f(re, im, dst, len);
}
Status tavsMagnitude_64f_body(const Tav64f* re, const Tav64f* im, Tav64f* dst, int len)
{
    return magnitude_float(pairs(re, im), dst, len);
}
Status tavsMagnitude_16s_Sfs_body(const Tav16s* re, const Tav16s* im, Tav16s* dst, int len, int sf)
{
    return magnitude_16s(pairs(re, im), dst, len, sf);
}
Status tavsMagnitude_16s32f_body(const Tav16s* re, const Tav16s* im, Tav32f* dst, int len)
{
    return magnitude_16s32f(pairs(re, im), dst, len);
}
Status tavsMagnitude_32fc_body(const Tav32fc* src, Tav32f* dst, int len)
{
    return magnitude_32fc(src, dst, len);
}
Status tavsMagnitude_64fc_body(const Tav64fc* src, Tav64f* dst, int len)
{
    return magnitude_float(pairs(src), dst, len);
}
Status tavsMagnitude_16sc_Sfs_body(const Tav16sc* src, Tav16s* dst, int len, int sf)
{
    return magnitude_16s(pairs(src), dst, len, sf);
}
Status tavsMagnitude_16sc32f_body(const Tav16sc* src, Tav32f* dst, int len)
{
    return magnitude_16s32f(pairs(src), dst, len);
}
Status tavsMagnitude_32sc_Sfs_body(const Tav32sc* src, Tav32s* dst, int len, int sf)
{
    return magnitude_32sc(src, dst, len, sf);
}

Status tavsMagSquared_32fc64f_body(const Tav32fc* src, Tav64f* dst, int len)
{
    return power_float(pairs(src), dst, len);
}
Status tavsMagSquared_32sc32s_Sfs_body(const Tav32sc* src, Tav32s* dst, int len, int sf)
{
    return magsquared_32sc(src, dst, len, sf);
}

Status tavsPowerSpectr_32f_body(const Tav32f* re, const Tav32f* im, Tav32f* dst, int len)
{
    return power_float(pairs(re, im), dst, len);
}
Status tavsPowerSpectr_64f_body(const Tav64f* re, const Tav64f* im, Tav64f* dst, int len)
{
    return power_float(pairs(re, im), dst, len);
}
Status tavsPowerSpectr_16s_Sfs_body(const Tav16s* re, const Tav16s* im, Tav16s* dst, int len, int sf)
{
    return power_16s(pairs(re, im), dst, len, sf);
}
Status tavsPowerSpectr_16s32f_body(const Tav16s* re, const Tav16s* im, Tav32f* dst, int len)
{
    return power_16s32f(pairs(re, im), dst, len);
}
Status tavsPowerSpectr_32fc_body(const Tav32fc* src, Tav32f* dst, int len)
{
    return power_float(pairs(src), dst, len);
}
Status tavsPowerSpectr_64fc_body(const Tav64fc* src, Tav64f* dst, int len)
{
    return power_float(pairs(src), dst, len);
}
Status tavsPowerSpectr_16sc_Sfs_body(const Tav16sc* src, Tav16s* dst, int len, int sf)
{
    return power_16s(pairs(src), dst, len, sf);
}
Status tavsPowerSpectr_16sc32f_body(const Tav16sc* src, Tav32f* dst, int len)
{
    return power_16s32f(pairs(src), dst, len);
}
}
