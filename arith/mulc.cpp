// tavsMulC_*: dst = src * value. Integer products are exact in 64 bits (128
// for the 64s member) and scaled once: for s < 0 the product is saturated to
// the type, shifted, and saturated again. Shortcuts on the constant (1 is a
// copy, 0 a zero fill) are results: they pass NaN and signed zeros through a
// copy, and give +0 for every element of a float vector times 0.
#include <cfloat>

#include "internal/body.h"
#include "internal/constant_kernels.h"

using namespace tavs;

namespace {

constexpr ScaleLimits k8u{17, -8}, k16s{31, -16}, k16u{33, -16}, k32s{63, -32};
constexpr ScaleLimits k16sc{32, -16}, k32sc{64, -32};

// ---- real integer members ------------------------------------------------------
template <class T> void int_kernel(const T* src, T v, T* dst, int len, int s, ScalePath path)
{
    const int64_t m = v;
    if (path == ScalePath::SignOnly) {
        for (int i = 0; i < len; ++i) dst[i] = sign_sat<T>(int64_t(src[i]) * m);
        return;
    }
    for (int i = 0; i < len; ++i) dst[i] = scale_product<T>(int64_t(src[i]) * m, s);
}

// copyAtOne: value 1 at scale 0 is a copy (out-of-place forms). A value of 0
// fills with zero whatever the scale.
template <class T> Status int_member(const T* src, T v, T* dst, int len, int s, ScaleLimits lim, bool copyAtOne)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    if (v == 0) return zero_fill(dst, len);
    if (copyAtOne && v == 1 && s == 0) return copy_shortcut(src, dst, len);
    const ScalePath path = scale_path(s, lim);
    if (path == ScalePath::Zero) return zero_fill(dst, len);
    int_kernel(src, v, dst, len, s, path);
    return StatusOk;
}

// ---- complex integer members ---------------------------------------------------
// re = a.re*b.re - a.im*b.im, im = a.re*b.im + a.im*b.re. The one sum the
// intermediate width cannot hold (all four factors at the minimum, in im) is
// replaced by the largest value of that width before scaling.
inline void cmul(Tav16sc a, Tav16sc b, int64_t& re, int64_t& im)
{
    re = int64_t(a.re) * b.re - int64_t(a.im) * b.im;
    im = int64_t(a.re) * b.im + int64_t(a.im) * b.re;
    if (im > INT32_MAX) im = INT32_MAX;
}
inline void cmul(Tav32sc a, Tav32sc b, int64_t& re, int64_t& im)
{
    re = int64_t(a.re) * b.re - int64_t(a.im) * b.im; // within +-2^63 - 2^31
    const __int128 i = static_cast<__int128>(int64_t(a.re) * b.im) + int64_t(a.im) * b.re;
    im = i > INT64_MAX ? INT64_MAX : static_cast<int64_t>(i);
}

template <class C> Status cplx_member(const C* src, C v, C* dst, int len, int s, ScaleLimits lim)
{
    using P = part_t<C>;
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    const ScalePath path = scale_path(s, lim);
    if (path == ScalePath::Zero) return zero_fill(dst, len);
    for (int i = 0; i < len; ++i) {
        int64_t re, im;
        cmul(src[i], v, re, im);
        if (path == ScalePath::SignOnly) {
            dst[i].re = sign_sat<P>(re);
            dst[i].im = sign_sat<P>(im);
        } else {
            dst[i].re = scale_product<P>(re, s);
            dst[i].im = scale_product<P>(im, s);
        }
    }
    return StatusOk;
}

// ---- float members --------------------------------------------------------------
template <class F> struct MulOp {
    using VO = VecOf<F>;
    F v;
    typename VO::V vv;
    explicit MulOp(F value) : v(value), vv(VO::set1(value)) {}
    F scalar(F x) const { return x * v; }
    typename VO::V vec(typename VO::V x) const { return VO::mul(x, vv); }
};

template <class F> Status float_member(const F* src, F v, F* dst, int len)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    if (v == F(1)) return copy_shortcut(src, dst, len);
    if (v == F(0)) return zero_fill(dst, len);
    float_const_loop(src, dst, len, MulOp<F>(v));
    return StatusOk;
}

template <class F> Status float_member_inplace(F v, F* sd, int len)
{
    if (Status st = check_ptrs_len(len, sd)) return st;
    if (v == F(1)) return StatusOk; // nothing to do: even a signalling NaN stays as it is
    if (v == F(0)) return zero_fill(sd, len);
    float_const_loop(sd, sd, len, MulOp<F>(v));
    return StatusOk;
}

// b.re * a.re + (-a.im) * b.im and a.im * b.re + a.re * b.im: two roundings
// per product term and one per sum, no fused operation.
template <class C> Status fcplx_member(const C* src, C v, C* dst, int len)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    for (int i = 0; i < len; ++i) {
        const C a = src[i];
        dst[i].re = v.re * a.re + (-a.im) * v.im;
        dst[i].im = a.im * v.re + a.re * v.im;
    }
    return StatusOk;
}

// ---- 64s at 128-bit width --------------------------------------------------------
// e * 2^-s with ties to even for 1 <= s <= 126.
inline __int128 rshift_rne128(__int128 e, int s)
{
    const unsigned __int128 one = 1;
    __int128 q = e >> s;
    const unsigned __int128 rem = static_cast<unsigned __int128>(e) & ((one << s) - 1);
    const unsigned __int128 half = one << (s - 1);
    if (rem > half || (rem == half && (q & 1))) q += 1;
    return q;
}

inline int64_t sat64(__int128 v) { return v > INT64_MAX ? INT64_MAX : v < INT64_MIN ? INT64_MIN : static_cast<int64_t>(v); }

} // namespace

extern "C" {

// |product| <= 2^126, so from scale 127 on every result rounds to 0.
Status tavsMulC_64s_ISfs_body(Tav64s v, Tav64s* sd, int len, int sf)
{
    if (Status st = check_ptrs_len(len, sd)) return st;
    if (v == 0 || sf > 126) return zero_fill(sd, len);
    for (int i = 0; i < len; ++i) {
        const __int128 p = static_cast<__int128>(sd[i]) * v;
        if (sf > 0) sd[i] = sat64(rshift_rne128(p, sf));
        else if (sf < 0) sd[i] = lshift_sat64(sat64(p), sf < -64 ? 64 : -sf);
        else sd[i] = sat64(p);
    }
    return StatusOk;
}

// value = +-m * 2^(E - 1075) for a normal number (m with its hidden bit) and
// +-m * 2^-1074 for a denormal, so x * value * 2^-sf is the integer product
// x * (+-m) scaled by sf + 1075 - E (or sf + 1074): exact, rounded once.
// Scales beyond the int range are clamped; any scale above 126 already gives
// zero and any below -63 already saturates by sign, so nothing changes.
// Infinity and NaN take their own path: every non-zero element saturates by
// the sign of its product with the value (a NaN counts as positive) and zero
// elements stay zero, as if the scale were below the sign limit.
Status tavsMulC_64f64s_ISfs_body(Tav64f value, Tav64s* sd, int len, int sf)
{
    if (Status st = check_ptrs_len(len, sd)) return st;
    uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    const bool neg = (bits >> 63) != 0;
    const int e = int((bits >> 52) & 0x7ff);
    const uint64_t frac = bits & ((uint64_t(1) << 52) - 1);
    if (e == 0x7ff) {
        const bool flip = neg && frac == 0; // -Inf turns the signs round; a NaN does not
        for (int i = 0; i < len; ++i) {
            const int64_t x = sd[i];
            if (x != 0) sd[i] = ((x > 0) != flip) ? INT64_MAX : INT64_MIN;
        }
        return StatusOk;
    }
    const int64_t m = int64_t(e == 0 ? frac : (frac | (uint64_t(1) << 52)));
    const int64_t scale = int64_t(sf) + (e == 0 ? 1074 : 1075 - e);
    const int clamped = scale > INT32_MAX ? INT32_MAX : scale < INT32_MIN ? INT32_MIN : int(scale);
    return tavsMulC_64s_ISfs_body(neg ? -m : m, sd, len, clamped);
}

// dst = round(src * value * 2^-sf): the factor by halving or doubling, two
// float products in that order, the product limited to -32768..32767 in
// float. After the limit the value is rounded to nearest with ties to even,
// decided on the float itself (the rule of every scaled integer result, and
// independent of the caller's rounding state); a NaN product stores 0.
Status tavsMulC_32f16s_Sfs_body(const Tav32f* src, Tav32f v, Tav16s* dst, int len, int sf)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    const float f = pow2_steps<float>(sf);
    for (int i = 0; i < len; ++i) {
        float p = src[i] * v * f;
        if (p != p) {
            dst[i] = 0;
            continue;
        }
        if (p < -32768.0f) p = -32768.0f;
        if (p > 32767.0f) p = 32767.0f;
        dst[i] = Tav16s(round_even_exact(p));
    }
    return StatusOk;
}

// The product in float, moved by one float epsilon away from zero, then
// truncated. The nudge is applied to every product: an integral product
// keeps its integer part, and a product that fell a rounding step short of
// an integer (within the epsilon) truncates to that integer. Outside the
// working range the result saturates; a NaN product stores 0.
Status tavsMulC_Low_32f16s_body(const Tav32f* src, Tav32f v, Tav16s* dst, int len)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    for (int i = 0; i < len; ++i) {
        float p = src[i] * v;
        if (p != p) {
            dst[i] = 0;
            continue;
        }
        p = p + std::copysign(FLT_EPSILON, p);
        if (p < -32768.0f) p = -32768.0f;
        if (p > 32767.0f) p = 32767.0f;
        dst[i] = Tav16s(std::trunc(p));
    }
    return StatusOk;
}

Status tavsMulC_8u_Sfs_body(const Tav8u* src, Tav8u v, Tav8u* dst, int len, int sf) { return int_member(src, v, dst, len, sf, k8u, true); }
Status tavsMulC_8u_ISfs_body(Tav8u v, Tav8u* sd, int len, int sf) { return int_member(sd, v, sd, len, sf, k8u, false); }
// In place without scale: 1 leaves the vector as it is.
Status tavsMulC_16s_I_body(Tav16s v, Tav16s* sd, int len)
{
    if (Status st = check_ptrs_len(len, sd)) return st;
    if (v == 1) return StatusOk;
    return int_member(sd, v, sd, len, 0, k16s, false);
}
Status tavsMulC_16s_Sfs_body(const Tav16s* src, Tav16s v, Tav16s* dst, int len, int sf) { return int_member(src, v, dst, len, sf, k16s, true); }
Status tavsMulC_16s_ISfs_body(Tav16s v, Tav16s* sd, int len, int sf) { return int_member(sd, v, sd, len, sf, k16s, false); }
Status tavsMulC_16u_Sfs_body(const Tav16u* src, Tav16u v, Tav16u* dst, int len, int sf) { return int_member(src, v, dst, len, sf, k16u, true); }
Status tavsMulC_16u_ISfs_body(Tav16u v, Tav16u* sd, int len, int sf) { return int_member(sd, v, sd, len, sf, k16u, false); }
Status tavsMulC_32s_Sfs_body(const Tav32s* src, Tav32s v, Tav32s* dst, int len, int sf) { return int_member(src, v, dst, len, sf, k32s, false); }
Status tavsMulC_32s_ISfs_body(Tav32s v, Tav32s* sd, int len, int sf) { return int_member(sd, v, sd, len, sf, k32s, false); }

Status tavsMulC_16sc_ISfs_body(Tav16sc v, Tav16sc* sd, int len, int sf) { return cplx_member(sd, v, sd, len, sf, k16sc); }
Status tavsMulC_16sc_Sfs_body(const Tav16sc* src, Tav16sc v, Tav16sc* dst, int len, int sf)
{
    if (src != nullptr && src == dst) return tavsMulC_16sc_ISfs_body(v, dst, len, sf);
    return cplx_member(src, v, dst, len, sf, k16sc);
}
Status tavsMulC_32sc_ISfs_body(Tav32sc v, Tav32sc* sd, int len, int sf) { return cplx_member(sd, v, sd, len, sf, k32sc); }
Status tavsMulC_32sc_Sfs_body(const Tav32sc* src, Tav32sc v, Tav32sc* dst, int len, int sf)
{
    if (src != nullptr && src == dst) return tavsMulC_32sc_ISfs_body(v, dst, len, sf);
    return cplx_member(src, v, dst, len, sf, k32sc);
}

Status tavsMulC_32f_body(const Tav32f* src, Tav32f v, Tav32f* dst, int len) { return float_member(src, v, dst, len); }
Status tavsMulC_32f_I_body(Tav32f v, Tav32f* sd, int len) { return float_member_inplace(v, sd, len); }
Status tavsMulC_64f_body(const Tav64f* src, Tav64f v, Tav64f* dst, int len) { return float_member(src, v, dst, len); }
Status tavsMulC_64f_I_body(Tav64f v, Tav64f* sd, int len) { return float_member_inplace(v, sd, len); }
Status tavsMulC_32fc_body(const Tav32fc* src, Tav32fc v, Tav32fc* dst, int len) { return fcplx_member(src, v, dst, len); }
Status tavsMulC_32fc_I_body(Tav32fc v, Tav32fc* sd, int len) { return fcplx_member(sd, v, sd, len); }
Status tavsMulC_64fc_body(const Tav64fc* src, Tav64fc v, Tav64fc* dst, int len) { return fcplx_member(src, v, dst, len); }
Status tavsMulC_64fc_I_body(Tav64fc v, Tav64fc* sd, int len) { return fcplx_member(sd, v, sd, len); }

} // extern "C"
