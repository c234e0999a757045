// tavsCubrt_32f, tavsCubrt_32s16s_Sfs and tavsArctan_*.
#include <cmath>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/math_common.h"

namespace {

using namespace tavs::math;

// ---- cube root ---------------------------------------------------------------------------
Status cubrt_32f(const Tav32f* src, Tav32f* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    for (int i = 0; i < len; ++i)
        dst[i] = float(std::cbrt(double(src[i]))); // the sign is kept
    return StatusOk;
}

// Truncated cube root of v < 2^45, digit by digit without floating point:
// each step doubles the root r (and quadruples q = r^2) and subtracts the
// trial (3 (2r + 4q) + 1) << k, which is (3 r'(r' + 1) + 1) << k for the
// doubled root r', when the remainder holds it.
inline uint32_t icbrt45(uint64_t v)
{
    uint64_t rem = v, r = 0, q = 0;
    for (int k = 60; k >= 0; k -= 3) {
        const uint64_t trial = (3 * (2 * r + 4 * q) + 1) << k;
        r *= 2;
        q *= 4;
        if (rem >= trial) {
            rem -= trial;
            q += 2 * r + 1;
            r += 1;
        }
    }
    return uint32_t(r);
}

// sf in -14..-1: |x| << 3|sf| (saturated by sign from 2^45 on) and the
// integer root, truncated; other scale factors: cbrt(|x|) 2^-sf in double,
// rounded, sign put back, saturated.
inline Tav16s cubrt_one(Tav32s x, int sf)
{
    const bool neg = x < 0;
    const uint64_t mag = neg ? uint64_t(-int64_t(x)) : uint64_t(x);
    if (sf >= -14 && sf <= -1) {
        const int sh = -3 * sf;
        if (mag >= (uint64_t(1) << (45 - sh))) return neg ? -32768 : 32767;
        const int32_t r = int32_t(icbrt45(mag << sh));
        return Tav16s(neg ? -r : r);
    }
    const int e = sf > 64 ? 64 : (sf < -64 ? -64 : sf);
    const double v = std::nearbyint(std::ldexp(std::cbrt(double(mag)), -e));
    if (neg) return v >= 32768.0 ? -32768 : Tav16s(-v);
    return v >= 32767.0 ? 32767 : Tav16s(v);
}

Status cubrt_32s16s(const Tav32s* src, Tav16s* dst, int len, int sf)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    for (int i = 0; i < len; ++i)
        dst[i] = cubrt_one(src[i], sf);
    return StatusOk;
}

// ---- arctangent --------------------------------------------------------------------------
// From len 4 on, groups of four go through the inline evaluation; the last
// one to three elements (and shorter calls) use the math library's atan.
template <class T, bool Dbl> Status arctan(const T* src, T* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    MathFpScope scope;
    const int grouped = len >= 4 ? len & ~3 : 0;
    for (int i = 0; i < grouped; i += 4) {
        T out[4];
        for (int k = 0; k < 4; ++k)
            out[k] = T(atan_eval<Dbl>(double(src[i + k])));
        for (int k = 0; k < 4; ++k)
            dst[i + k] = out[k];
    }
    for (int i = grouped; i < len; ++i)
        dst[i] = T(std::atan(double(src[i])));
    return StatusOk;
}

} // namespace

extern "C" {
Status tavsCubrt_32f_body(const Tav32f* src, Tav32f* dst, int len) { return cubrt_32f(src, dst, len); }
Status tavsCubrt_32s16s_Sfs_body(const Tav32s* src, Tav16s* dst, int len, int sf)
{
    return cubrt_32s16s(src, dst, len, sf);
}
Status tavsArctan_32f_body(const Tav32f* src, Tav32f* dst, int len)
{
    return arctan<Tav32f, false>(src, dst, len);
}
Status tavsArctan_32f_I_body(Tav32f* srcDst, int len) { return arctan<Tav32f, false>(srcDst, srcDst, len); }
Status tavsArctan_64f_body(const Tav64f* src, Tav64f* dst, int len)
{
    return arctan<Tav64f, true>(src, dst, len);
}
Status tavsArctan_64f_I_body(Tav64f* srcDst, int len) { return arctan<Tav64f, true>(srcDst, srcDst, len); }
}
