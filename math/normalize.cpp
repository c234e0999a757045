// tavsNormalize_*: dst = (src - offset) / divisor, as a product with the
// reciprocal of the divisor.
#include <emmintrin.h>

#include <bit>
#include <cmath>

#include "internal/body.h"
#include "internal/check.h"

namespace {

// Float divisors below the smallest normal float in magnitude are refused.
const float kSmallestNormal = 1.1754944e-38f;

template <class T> Status normalize_real(const T* src, T* dst, int len, T offset, T divisor)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    if (std::fabs(divisor) < T(kSmallestNormal)) return ErrDivByZero;
    const T r = T(1) / divisor;
    for (int i = 0; i < len; ++i)
        dst[i] = (src[i] - offset) * r;
    return StatusOk;
}

// The complex forms take a real divisor; the reciprocal is in double (for
// 32fc too), the difference in the element's precision.
template <class C> Status normalize_complex(const C* src, C* dst, int len, C offset, double divisor)
{
    using P = tavs::part_t<C>;
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    if (std::fabs(divisor) < double(kSmallestNormal)) return ErrDivByZero;
    const double r = 1.0 / divisor;
    for (int i = 0; i < len; ++i) {
        const P re = src[i].re - offset.re, im = src[i].im - offset.im;
        dst[i].re = P(double(re) * r);
        dst[i].im = P(double(im) * r);
    }
    return StatusOk;
}

// ---- 16-bit integer forms -----------------------------------------------------------------
// r = (1 / divisor) 2^-sf in float, the power of two put into the exponent
// bits with the count taken modulo 128 (as -64..63, so it stays normal).
inline float int_reciprocal(int divisor, int sf)
{
    const int k = int((unsigned(sf) + 64u) & 127u) - 64;
    const float pow2 = std::bit_cast<float>(uint32_t(127 - k) << 23);
    return (1.0f / float(divisor)) * pow2;
}

// Saturated at 32767 and -32768, otherwise converted by the current rounding.
inline Tav16s to16(float v)
{
    if (v >= 32767.0f) return 32767;
    if (v <= -32768.0f) return -32768;
    return Tav16s(_mm_cvtss_si32(_mm_set_ss(v)));
}

Status normalize_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s offset, int divisor, int sf)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    if (divisor == 0) return ErrDivByZero;
    const float r = int_reciprocal(divisor, sf);
    for (int i = 0; i < len; ++i)
        dst[i] = to16(float(int32_t(src[i]) - offset) * r);
    return StatusOk;
}

Status normalize_16sc(const Tav16sc* src, Tav16sc* dst, int len, Tav16sc offset, int divisor, int sf)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    if (divisor == 0) return ErrDivByZero;
    const float r = int_reciprocal(divisor, sf);
    for (int i = 0; i < len; ++i) {
        const Tav16s re = to16(float(int32_t(src[i].re) - offset.re) * r);
        const Tav16s im = to16(float(int32_t(src[i].im) - offset.im) * r);
        dst[i].re = re;
        dst[i].im = im;
    }
    return StatusOk;
}

} // namespace

extern "C" {
Status tavsNormalize_32f_body(const Tav32f* src, Tav32f* dst, int len, Tav32f offset, Tav32f divisor)
{
    return normalize_real(src, dst, len, offset, divisor);
}
Status tavsNormalize_64f_body(const Tav64f* src, Tav64f* dst, int len, Tav64f offset, Tav64f divisor)
{
    return normalize_real(src, dst, len, offset, divisor);
}
Status tavsNormalize_32fc_body(const Tav32fc* src, Tav32fc* dst, int len, Tav32fc offset, Tav32f divisor)
{
    return normalize_complex(src, dst, len, offset, double(divisor));
}
Status tavsNormalize_64fc_body(const Tav64fc* src, Tav64fc* dst, int len, Tav64fc offset, Tav64f divisor)
{
    return normalize_complex(src, dst, len, offset, divisor);
}
Status tavsNormalize_16s_Sfs_body(const Tav16s* src, Tav16s* dst, int len, Tav16s offset, int divisor, int sf)
{
    return normalize_16s(src, dst, len, offset, divisor, sf);
}
Status tavsNormalize_16sc_Sfs_body(const Tav16sc* src, Tav16sc* dst, int len, Tav16sc offset, int divisor,
                                   int sf)
{
    return normalize_16sc(src, dst, len, offset, divisor, sf);
}
}
