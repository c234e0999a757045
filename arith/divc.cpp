// tavsDivC_*: dst = src / value, and tavsDivCRev_*: dst = value / src.
// A zero constant is ErrDivByZero (after the pointer and length checks) and
// writes nothing, except in tavsDivC_64s_ISfs, which saturates and warns.
// The constant is turned into a reciprocal once: tavsDivC_32f multiplies
// through tavsMulC_32f, the 16-bit integer forms multiply by the scaled
// reciprocal in float, tavsDivC_64s_ISfs through tavsMulC_64s_ISfs.
#include <climits>

#include "internal/body.h"
#include "internal/constant_kernels.h"

using namespace tavs;

namespace {

// ---- 8u, 16s, 16u: the scaled reciprocal in float ----------------------------------
// r = 1 / (value * 2^s), the power built by halving or doubling; each result
// is src * r in float, limited to the type in float, rounded to nearest with
// ties to even on the float itself. A NaN product (0 times an infinite
// reciprocal) stores 0, the exact quotient. When |r| < 1 nothing can
// saturate and the plain loop runs.
template <class T> inline float recip_scaled(T value, int s)
{
    // 2^s; the most negative s takes one step less, which reaches the same
    // fixed point of the halving.
    const float p = pow2_steps<float>(s == INT_MIN ? INT_MAX : -s);
    return 1.0f / (float(value) * p);
}

template <class T> void recip_kernel(const T* src, float r, T* dst, int len)
{
    const float lo = float(lim_min<T>), hi = float(lim_max<T>);
    if (std::fabs(r) < 1.0f) {
        for (int i = 0; i < len; ++i) dst[i] = T(round_even_exact(float(src[i]) * r));
        return;
    }
    for (int i = 0; i < len; ++i) {
        float p = float(src[i]) * r;
        if (p != p) {
            dst[i] = 0;
            continue;
        }
        if (p < lo) p = lo;
        if (p > hi) p = hi;
        dst[i] = T(round_even_exact(p));
    }
}

template <class T> Status recip_member(const T* src, T value, T* dst, int len, int s)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    if (value == 0) return ErrDivByZero;
    recip_kernel(src, recip_scaled(value, s), dst, len);
    return StatusOk;
}

// 16u: scale 17 and up is a zero fill, scale 0 with a constant of 1 a copy,
// and below -31 the vector is filled with 65535.
Status recip16u_member(const Tav16u* src, Tav16u value, Tav16u* dst, int len, int s)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    if (value == 0) return ErrDivByZero;
    if (s >= 17) return zero_fill(dst, len);
    if (s == 0 && value == 1) return copy_shortcut(src, dst, len);
    if (s < -31) return fill_elems(dst, len, Tav16u(65535));
    recip_kernel(src, recip_scaled(value, s), dst, len);
    return StatusOk;
}

// ---- floats -----------------------------------------------------------------------
// 64f divides: the reciprocal route is the documented behaviour of 32f
// only, and the true quotient is the more exact choice.
struct Div64Op {
    double v;
    __m128d vv;
    explicit Div64Op(double value) : v(value), vv(_mm_set1_pd(value)) {}
    double scalar(double x) const { return x / v; }
    __m128d vec(__m128d x) const { return _mm_div_pd(x, vv); }
};

// Complex constants: the division formula of tavsDiv_32fc and tavsDiv_64fc
// with the constant as every divisor (m = |value|^2, r = 1 / m taken once),
// so DivC agrees bit for bit with Div on a vector of the constant. An m that
// underflows to zero counts as a zero constant, as it does there.
template <class C> Status cplx_member(const C* src, C v, C* dst, int len)
{
    using F = part_t<C>;
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    const F m = v.re * v.re + v.im * v.im;
    if (m == F(0)) return ErrDivByZero;
    const F r = F(1) / m;
    for (int i = 0; i < len; ++i) {
        const C b = src[i];
        dst[i].re = (v.re * b.re + v.im * b.im) * r;
        dst[i].im = r * (v.re * b.im - v.im * b.re);
    }
    return StatusOk;
}

// 16sc: exact quotient, as tavsDiv_16sc_Sfs with the constant as divisor.
Status cplx16_member(const Tav16sc* src, Tav16sc v, Tav16sc* dst, int len, int s)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    if (v.re == 0 && v.im == 0) return ErrDivByZero;
    bool unused = false;
    for (int i = 0; i < len; ++i) dst[i] = cdiv16sc_exact(src[i], v, s, unused);
    return StatusOk;
}

// ---- DivCRev -------------------------------------------------------------------------
// value / x as a 16.16 fixed-point quotient v = (value << 16) / x, truncated,
// stored as (v + ((v & 0x10000) >> 15) + 32767) >> 16. A zero element gives
// 65535 for a non-zero value and 0 for a zero value (0 / 0 follows the rule
// of a zero dividend), with WarnDivByZero.
Status divcrev16u_member(const Tav16u* src, Tav16u value, Tav16u* dst, int len)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    bool z = false;
    const uint32_t num = uint32_t(value) << 16;
    for (int i = 0; i < len; ++i) {
        const uint32_t x = src[i];
        if (x == 0) {
            z = true;
            dst[i] = value != 0 ? Tav16u(65535) : Tav16u(0);
            continue;
        }
        const uint64_t v = num / x;
        const uint64_t r = (v + ((v & 0x10000) >> 15) + 32767) >> 16;
        dst[i] = r > 65535 ? Tav16u(65535) : Tav16u(r);
    }
    return z ? WarnDivByZero : StatusOk;
}

Status divcrev32f_member(const Tav32f* src, Tav32f value, Tav32f* dst, int len)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    bool z = false;
    for (int i = 0; i < len; ++i) {
        const float x = src[i];
        if (x == 0.0f) {
            z = true;
            dst[i] = float_div_by_zero(value);
        } else {
            dst[i] = value / x;
        }
    }
    return z ? WarnDivByZero : StatusOk;
}

} // namespace

extern "C" {

Status tavsDivC_32f_body(const Tav32f* src, Tav32f v, Tav32f* dst, int len)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    if (v == 0.0f) return ErrDivByZero;
    return tavsMulC_32f_body(src, 1.0f / v, dst, len);
}
Status tavsDivC_32f_I_body(Tav32f v, Tav32f* sd, int len)
{
    if (Status st = check_ptrs_len(len, sd)) return st;
    if (v == 0.0f) return ErrDivByZero;
    return tavsMulC_32f_I_body(1.0f / v, sd, len);
}
Status tavsDivC_64f_body(const Tav64f* src, Tav64f v, Tav64f* dst, int len)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    if (v == 0.0) return ErrDivByZero;
    f64_const_loop(src, dst, len, Div64Op(v));
    return StatusOk;
}
Status tavsDivC_64f_I_body(Tav64f v, Tav64f* sd, int len) { return tavsDivC_64f_body(sd, v, sd, len); }
Status tavsDivC_32fc_body(const Tav32fc* src, Tav32fc v, Tav32fc* dst, int len) { return cplx_member(src, v, dst, len); }
Status tavsDivC_32fc_I_body(Tav32fc v, Tav32fc* sd, int len) { return cplx_member(sd, v, sd, len); }
Status tavsDivC_64fc_body(const Tav64fc* src, Tav64fc v, Tav64fc* dst, int len) { return cplx_member(src, v, dst, len); }
Status tavsDivC_64fc_I_body(Tav64fc v, Tav64fc* sd, int len) { return cplx_member(sd, v, sd, len); }

Status tavsDivC_8u_Sfs_body(const Tav8u* src, Tav8u v, Tav8u* dst, int len, int sf) { return recip_member(src, v, dst, len, sf); }
Status tavsDivC_8u_ISfs_body(Tav8u v, Tav8u* sd, int len, int sf) { return recip_member(sd, v, sd, len, sf); }
Status tavsDivC_16s_Sfs_body(const Tav16s* src, Tav16s v, Tav16s* dst, int len, int sf) { return recip_member(src, v, dst, len, sf); }
Status tavsDivC_16s_ISfs_body(Tav16s v, Tav16s* sd, int len, int sf) { return recip_member(sd, v, sd, len, sf); }
Status tavsDivC_16u_Sfs_body(const Tav16u* src, Tav16u v, Tav16u* dst, int len, int sf) { return recip16u_member(src, v, dst, len, sf); }
Status tavsDivC_16u_ISfs_body(Tav16u v, Tav16u* sd, int len, int sf) { return recip16u_member(sd, v, sd, len, sf); }
Status tavsDivC_16sc_Sfs_body(const Tav16sc* src, Tav16sc v, Tav16sc* dst, int len, int sf) { return cplx16_member(src, v, dst, len, sf); }
Status tavsDivC_16sc_ISfs_body(Tav16sc v, Tav16sc* sd, int len, int sf) { return cplx16_member(sd, v, sd, len, sf); }

// A zero constant saturates every non-zero element by its sign and warns; 1
// and -1 take a short path (the exact scaled value or its negation); any
// other constant becomes a reciprocal mantissa R = round(2^(63 + k) / |value|)
// by long division, with k = ceil(log2 |value|) - 1 so that R lies in
// [2^62, 2^63), and tavsMulC_64s_ISfs multiplies by +-R at scale
// scaleFactor + k + 63. R is rounded to nearest, not truncated: the more
// exact of the two.
Status tavsDivC_64s_ISfs_body(Tav64s v, Tav64s* sd, int len, int sf)
{
    if (Status st = check_ptrs_len(len, sd)) return st;
    if (v == 0) {
        for (int i = 0; i < len; ++i)
            if (sd[i] != 0) sd[i] = sd[i] > 0 ? INT64_MAX : INT64_MIN;
        return WarnDivByZero;
    }
    if (v == 1 || v == -1) return tavsMulC_64s_ISfs_body(v, sd, len, sf);
    const uint64_t mag = v < 0 ? 0 - uint64_t(v) : uint64_t(v);
    const int k = 63 - __builtin_clzll(mag - 1); // ceil(log2 mag) - 1, mag >= 2
    // Long division of 2^(64 + k) by mag, one quotient bit per step; the
    // extra bit rounds.
    unsigned __int128 rem = 0, q = 0;
    for (int bit = 64 + k; bit >= 0; --bit) {
        rem = (rem << 1) | (bit == 64 + k ? 1u : 0u);
        q <<= 1;
        if (rem >= mag) {
            rem -= mag;
            q |= 1;
        }
    }
    const int64_t r = int64_t((q + 1) >> 1);
    const int64_t scale = int64_t(sf) + k + 63;
    return tavsMulC_64s_ISfs_body(v < 0 ? -r : r, sd, len, scale > INT32_MAX ? INT32_MAX : int(scale));
}

Status tavsDivCRev_16u_body(const Tav16u* src, Tav16u v, Tav16u* dst, int len) { return divcrev16u_member(src, v, dst, len); }
Status tavsDivCRev_16u_I_body(Tav16u v, Tav16u* sd, int len) { return divcrev16u_member(sd, v, sd, len); }
Status tavsDivCRev_32f_body(const Tav32f* src, Tav32f v, Tav32f* dst, int len) { return divcrev32f_member(src, v, dst, len); }
Status tavsDivCRev_32f_I_body(Tav32f v, Tav32f* sd, int len) { return divcrev32f_member(sd, v, sd, len); }

} // extern "C"
