// tavsSqrt_*: float, complex and integer square roots. A negative element
// (for float types: one that is not at or above zero, so NaN too) is a
// warning, WarnSqrtNegative, and the loop goes on.
#include <emmintrin.h>

#include <cmath>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/math_common.h"

namespace {

using namespace tavs::math;

// ---- float --------------------------------------------------------------------------
template <class T> Status sqrt_float(const T* src, T* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    Status st = StatusOk;
    for (int i = 0; i < len; ++i) {
        const T x = src[i];
        if (x >= T(0)) {
            dst[i] = std::sqrt(x); // -0 passes and stays -0
        } else {
            dst[i] = neg_qnan<T>();
            st = WarnSqrtNegative;
        }
    }
    return st;
}

// ---- complex --------------------------------------------------------------------------
// The principal root from the halved parts a = re/2, b = im/2 (so that the
// sum of squares keeps its range): t = sqrt(sqrt(a^2 + b^2) + |a|); for
// re >= 0 the root is (t, b/t), otherwise (|b|/t, t with the sign of im).
inline void csqrt_parts(double re, double im, double& outRe, double& outIm)
{
    if (re == 0.0 && im == 0.0) {
        outRe = 0.0;
        outIm = 0.0;
        return;
    }
    const double a = re * 0.5, b = im * 0.5;
    const double t = std::sqrt(std::sqrt(a * a + b * b) + std::fabs(a));
    if (re >= 0.0) {
        outRe = t;
        outIm = b / t;
    } else {
        outRe = std::fabs(b) / t;
        outIm = std::copysign(t, im);
    }
}

template <class C> Status sqrt_complex(const C* src, C* dst, int len)
{
    using P = tavs::part_t<C>;
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    for (int i = 0; i < len; ++i) {
        double re, im;
        csqrt_parts(src[i].re, src[i].im, re, im); // float parts in double: no overflow
        dst[i].re = P(re);
        dst[i].im = P(im);
    }
    return StatusOk;
}

// ---- integer, through float sqrt --------------------------------------------------------
// round(sqrt(x) 2^-sf), saturated to Max, for sources of up to 32 bits:
//   sf above High: 0;  sf below Low: 0 stays 0, anything else Max;
//   sf <= 0: x 2^(-2 sf), replaced by Max^2 - 1 past that value, sqrt in
//            float, conversion by the current rounding;
//   sf >= 1: sqrt in float scaled by 2^-sf, rounded to nearest even.
struct SqrtLimits {
    int64_t max;
    int low, high;
};

inline int64_t rne_nonneg(float v)
{
    const float f = std::floor(v);
    const float d = v - f;
    int64_t r = int64_t(f);
    if (d > 0.5f || (d == 0.5f && (r & 1))) ++r;
    return r;
}

inline int64_t sqrt_int_float(int64_t x, int sf, SqrtLimits lim)
{
    if (sf > lim.high) return 0;
    if (sf < lim.low) return x == 0 ? 0 : lim.max;
    int64_t r;
    if (sf <= 0) {
        const uint64_t clampV = uint64_t(lim.max) * uint64_t(lim.max) - 1;
        const int s2 = -2 * sf;
        const uint64_t v = uint64_t(x) > (clampV >> s2) ? clampV : uint64_t(x) << s2;
        r = _mm_cvtss_si32(_mm_set_ss(std::sqrt(float(v))));
    } else {
        r = rne_nonneg(std::ldexp(std::sqrt(float(x)), -sf));
    }
    return r > lim.max ? lim.max : r;
}

template <class S, class D> Status sqrt_int(const S* src, D* dst, int len, int sf, SqrtLimits lim)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    Status st = StatusOk;
    for (int i = 0; i < len; ++i) {
        const int64_t x = src[i];
        if (x < 0) {
            dst[i] = 0;
            st = WarnSqrtNegative;
        } else {
            dst[i] = D(sqrt_int_float(x, sf, lim));
        }
    }
    return st;
}

constexpr SqrtLimits k8u{255, -7, 4}, k16u{65535, -15, 8}, k16s{32767, -14, 8}, k32s16s{32767, -14, 16};

// ---- integer, 64-bit sources: exact (round_sqrt_exact) ----------------------------------
template <class D> Status sqrt_int64(const Tav64s* src, D* dst, int len, int sf, int64_t max)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    Status st = StatusOk;
    for (int i = 0; i < len; ++i) {
        const Tav64s x = src[i];
        if (x < 0) {
            dst[i] = 0;
            st = WarnSqrtNegative;
        } else {
            dst[i] = D(round_sqrt_exact(uint64_t(x), sf, max));
        }
    }
    return st;
}

// ---- 16sc -----------------------------------------------------------------------------------
// The complex formula in double; each part times 2^-sf, rounded by the
// current rounding and saturated. Below -7 every non-zero part saturates by
// its sign (|root| * 2^8 can pass 32767).
inline Tav16s scale_part16(double v, int sf)
{
    if (sf < -7) return v > 0 ? 32767 : (v < 0 ? -32768 : 0);
    const double s = std::nearbyint(std::ldexp(v, -(sf > 64 ? 64 : sf)));
    if (s > 32767.0) return 32767;
    if (s < -32768.0) return -32768;
    return Tav16s(s);
}

Status sqrt_16sc(const Tav16sc* src, Tav16sc* dst, int len, int sf)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    for (int i = 0; i < len; ++i) {
        double re, im;
        csqrt_parts(src[i].re, src[i].im, re, im);
        dst[i].re = scale_part16(re, sf);
        dst[i].im = scale_part16(im, sf);
    }
    return StatusOk;
}

} // namespace

extern "C" {
Status tavsSqrt_32f_body(const Tav32f* src, Tav32f* dst, int len) { return sqrt_float(src, dst, len); }
Status tavsSqrt_32f_I_body(Tav32f* srcDst, int len) { return sqrt_float<Tav32f>(srcDst, srcDst, len); }
Status tavsSqrt_64f_body(const Tav64f* src, Tav64f* dst, int len) { return sqrt_float(src, dst, len); }
Status tavsSqrt_64f_I_body(Tav64f* srcDst, int len) { return sqrt_float<Tav64f>(srcDst, srcDst, len); }
Status tavsSqrt_32fc_body(const Tav32fc* src, Tav32fc* dst, int len) { return sqrt_complex(src, dst, len); }
Status tavsSqrt_32fc_I_body(Tav32fc* srcDst, int len) { return sqrt_complex<Tav32fc>(srcDst, srcDst, len); }
Status tavsSqrt_64fc_body(const Tav64fc* src, Tav64fc* dst, int len) { return sqrt_complex(src, dst, len); }
Status tavsSqrt_64fc_I_body(Tav64fc* srcDst, int len) { return sqrt_complex<Tav64fc>(srcDst, srcDst, len); }

Status tavsSqrt_8u_Sfs_body(const Tav8u* src, Tav8u* dst, int len, int sf)
{
    return sqrt_int(src, dst, len, sf, k8u);
}
Status tavsSqrt_8u_ISfs_body(Tav8u* srcDst, int len, int sf)
{
    return sqrt_int<Tav8u, Tav8u>(srcDst, srcDst, len, sf, k8u);
}
Status tavsSqrt_16u_Sfs_body(const Tav16u* src, Tav16u* dst, int len, int sf)
{
    return sqrt_int(src, dst, len, sf, k16u);
}
Status tavsSqrt_16u_ISfs_body(Tav16u* srcDst, int len, int sf)
{
    return sqrt_int<Tav16u, Tav16u>(srcDst, srcDst, len, sf, k16u);
}
Status tavsSqrt_16s_Sfs_body(const Tav16s* src, Tav16s* dst, int len, int sf)
{
    return sqrt_int(src, dst, len, sf, k16s);
}
Status tavsSqrt_16s_ISfs_body(Tav16s* srcDst, int len, int sf)
{
    return sqrt_int<Tav16s, Tav16s>(srcDst, srcDst, len, sf, k16s);
}
Status tavsSqrt_32s16s_Sfs_body(const Tav32s* src, Tav16s* dst, int len, int sf)
{
    return sqrt_int(src, dst, len, sf, k32s16s);
}
Status tavsSqrt_16sc_Sfs_body(const Tav16sc* src, Tav16sc* dst, int len, int sf)
{
    return sqrt_16sc(src, dst, len, sf);
}
Status tavsSqrt_16sc_ISfs_body(Tav16sc* srcDst, int len, int sf)
{
    return sqrt_16sc(srcDst, srcDst, len, sf);
}
Status tavsSqrt_64s16s_Sfs_body(const Tav64s* src, Tav16s* dst, int len, int sf)
{
    return sqrt_int64(src, dst, len, sf, 32767);
}
Status tavsSqrt_64s_Sfs_body(const Tav64s* src, Tav64s* dst, int len, int sf)
{
    return sqrt_int64(src, dst, len, sf, INT64_MAX);
}
Status tavsSqrt_64s_ISfs_body(Tav64s* srcDst, int len, int sf)
{
    return sqrt_int64<Tav64s>(srcDst, srcDst, len, sf, INT64_MAX);
}
}
