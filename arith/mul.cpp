// tavsMul_*: dst = src1 * src2, in place srcDst = srcDst * src. Integer
// forms saturate; the _Sfs forms scale the exact product (a left shift
// saturates the product to the destination first). tavsMul_Low_32s_Sfs keeps
// the low 32 bits instead of rounding and saturating.
#include "internal/body.h"
#include "internal/arith_kernels.h"

using namespace tavs;

namespace {

// Scale limits {zero-fill from, sign-only up to}.
constexpr ScaleLimits kMul8u{17, -8};
constexpr ScaleLimits kMul16s{31, -16};
constexpr ScaleLimits kMul16u{33, -16};
constexpr ScaleLimits kMul16u16s{32, -15};
constexpr ScaleLimits kMul16s32s{31, -31};
constexpr ScaleLimits kMul16sc{32, -16};
constexpr ScaleLimits kMul32s{63, -32}; // also 32s32sc and Mul_Low
constexpr ScaleLimits kMul32sc{64, -32};

// Real times complex: both parts of b times the real a.
struct RealCplxMulOp {
    template <class M> void f(typename M::R& re, typename M::R& im, typename M::R a, const Parts<M>& b) const
    {
        re = M::mul(a, b.re);
        im = M::mul(a, b.im);
    }
};

// The 32fc product: re = b.re * a.re + (-a.im) * b.im, im = a.im * b.re +
// a.re * b.im, each product and each sum rounded on its own.
struct Cmul32Op {
    template <class M> void f(typename M::R& re, typename M::R& im, const Parts<M>& a, const Parts<M>& b) const
    {
        re = M::add(M::mul(b.re, a.re), M::mul(M::neg(a.im), b.im));
        im = M::add(M::mul(a.im, b.re), M::mul(a.re, b.im));
    }
};

// The 64fc product: re = a.re * b.re - a.im * b.im, im = a.im * b.re + a.re * b.im.
struct Cmul64Op {
    template <class M> void f(typename M::R& re, typename M::R& im, const Parts<M>& a, const Parts<M>& b) const
    {
        re = M::sub(M::mul(a.re, b.re), M::mul(a.im, b.im));
        im = M::add(M::mul(a.im, b.re), M::mul(a.re, b.im));
    }
};

template <class Op> Status cplx2(const Tav32fc* a, const Tav32fc* b, Tav32fc* d, int len, Op op)
{
    if (Status r = check_ptrs_len(len, a, b, d)) return r;
    cmap(parts(d), len, op, CplxSrc<float>{parts(a)}, CplxSrc<float>{parts(b)});
    return StatusOk;
}
template <class Op> Status cplx2(const Tav64fc* a, const Tav64fc* b, Tav64fc* d, int len, Op op)
{
    if (Status r = check_ptrs_len(len, a, b, d)) return r;
    cmap(parts(d), len, op, CplxSrc<double>{parts(a)}, CplxSrc<double>{parts(b)});
    return StatusOk;
}

// Complex integer product, both parts scaled alone.
template <class C> Status cmul_int(const C* a, const C* b, C* d, int len, int sf, ScaleLimits lim)
{
    if (Status r = check_ptrs_len(len, a, b, d)) return r;
    return scaled_c<Rule::Product>(d, len, sf, lim, [&](intptr_t i) { return cmul_exact(ld(a, i), ld(b, i)); });
}

// A 32s element times both parts of a 32sc element, each part scaled alone.
Status mul_32s32sc(const Tav32s* a, const Tav32sc* b, Tav32sc* d, int len, int sf)
{
    if (Status r = check_ptrs_len(len, a, b, d)) return r;
    return scaled_c<Rule::Product>(d, len, sf, kMul32s, [&](intptr_t i) {
        const int64_t x = ld(a, i);
        const Tav32sc y = ld(b, i);
        return CplxE{x * y.re, x * y.im};
    });
}

} // namespace

extern "C" {

// ---- float ---------------------------------------------------------------------------
Status tavsMul_32f_body(const Tav32f* a, const Tav32f* b, Tav32f* d, int len) { return float2(a, b, d, len, MulOp{}); }
Status tavsMul_32f_I_body(const Tav32f* s, Tav32f* sd, int len) { return float2(sd, s, sd, len, MulOp{}); }
Status tavsMul_64f_body(const Tav64f* a, const Tav64f* b, Tav64f* d, int len) { return float2(a, b, d, len, MulOp{}); }
Status tavsMul_64f_I_body(const Tav64f* s, Tav64f* sd, int len) { return float2(sd, s, sd, len, MulOp{}); }
Status tavsMul_16s32f_body(const Tav16s* a, const Tav16s* b, Tav32f* d, int len)
{
    return widen_16s32f(a, b, d, len, MulOp{});
}

Status tavsMul_32fc_body(const Tav32fc* a, const Tav32fc* b, Tav32fc* d, int len) { return cplx2(a, b, d, len, Cmul32Op{}); }
Status tavsMul_32fc_I_body(const Tav32fc* s, Tav32fc* sd, int len) { return cplx2(sd, s, sd, len, Cmul32Op{}); }
Status tavsMul_64fc_body(const Tav64fc* a, const Tav64fc* b, Tav64fc* d, int len) { return cplx2(a, b, d, len, Cmul64Op{}); }
Status tavsMul_64fc_I_body(const Tav64fc* s, Tav64fc* sd, int len) { return cplx2(sd, s, sd, len, Cmul64Op{}); }

Status tavsMul_32f32fc_body(const Tav32f* a, const Tav32fc* b, Tav32fc* d, int len)
{
    if (Status r = check_ptrs_len(len, a, b, d)) return r;
    cmap(parts(d), len, RealCplxMulOp{}, RealSrc<float>{a}, CplxSrc<float>{parts(b)});
    return StatusOk;
}
Status tavsMul_32f32fc_I_body(const Tav32f* s, Tav32fc* sd, int len) { return tavsMul_32f32fc_body(s, sd, sd, len); }

// ---- integer without scaling ----------------------------------------------------------
Status tavsMul_16s_body(const Tav16s* a, const Tav16s* b, Tav16s* d, int len)
{
    return int2<Rule::Product>(a, b, d, len, 0, kMul16s, IMul{}, true);
}
Status tavsMul_16s_I_body(const Tav16s* s, Tav16s* sd, int len)
{
    return int2<Rule::Product>(sd, s, sd, len, 0, kMul16s, IMul{}, true);
}
// Exact in the destination: 255 * 255 fits 16u.
Status tavsMul_8u16u_body(const Tav8u* a, const Tav8u* b, Tav16u* d, int len)
{
    return int2<Rule::Product>(a, b, d, len, 0, ScaleLimits{64, -64}, IMul{});
}

// ---- integer, scaled -------------------------------------------------------------------
Status tavsMul_8u_Sfs_body(const Tav8u* a, const Tav8u* b, Tav8u* d, int len, int sf)
{
    return int2<Rule::Product>(a, b, d, len, sf, kMul8u, IMul{});
}
Status tavsMul_8u_ISfs_body(const Tav8u* s, Tav8u* sd, int len, int sf)
{
    return int2<Rule::Product>(sd, s, sd, len, sf, kMul8u, IMul{});
}
Status tavsMul_16s_Sfs_body(const Tav16s* a, const Tav16s* b, Tav16s* d, int len, int sf)
{
    return int2<Rule::Product>(a, b, d, len, sf, kMul16s, IMul{}, true);
}
Status tavsMul_16s_ISfs_body(const Tav16s* s, Tav16s* sd, int len, int sf)
{
    return int2<Rule::Product>(sd, s, sd, len, sf, kMul16s, IMul{}, true);
}
Status tavsMul_16u_Sfs_body(const Tav16u* a, const Tav16u* b, Tav16u* d, int len, int sf)
{
    return int2_16u_zero_first<Rule::Product>(a, b, d, len, sf, kMul16u, IMul{});
}
Status tavsMul_16u_ISfs_body(const Tav16u* s, Tav16u* sd, int len, int sf)
{
    return int2<Rule::Product>(sd, s, sd, len, sf, kMul16u, IMul{}, len >= 7);
}
Status tavsMul_16u16s_Sfs_body(const Tav16u* a, const Tav16s* b, Tav16s* d, int len, int sf)
{
    return int2<Rule::Product>(a, b, d, len, sf, kMul16u16s, IMul{});
}
Status tavsMul_16s32s_Sfs_body(const Tav16s* a, const Tav16s* b, Tav32s* d, int len, int sf)
{
    return int2<Rule::Product>(a, b, d, len, sf, kMul16s32s, IMul{});
}
Status tavsMul_32s_Sfs_body(const Tav32s* a, const Tav32s* b, Tav32s* d, int len, int sf)
{
    return int2<Rule::Product>(a, b, d, len, sf, kMul32s, IMul{});
}
Status tavsMul_32s_ISfs_body(const Tav32s* s, Tav32s* sd, int len, int sf)
{
    return int2<Rule::Product>(sd, s, sd, len, sf, kMul32s, IMul{});
}

// The low 32 bits of the full 64-bit product: s = 0 keeps them, s > 0 keeps
// the low 32 bits of the product shifted right arithmetically (truncating),
// s < 0 those of the product shifted left. Only the two limits act as in
// tavsMul_32s_Sfs: zero fill, and the saturation by sign.
Status tavsMul_Low_32s_Sfs_body(const Tav32s* a, const Tav32s* b, Tav32s* d, int len, int sf)
{
    if (Status r = check_ptrs_len(len, a, b, d)) return r;
    const ScalePath path = scale_path(sf, kMul32s);
    if (path == ScalePath::Zero) return zero_fill(d, len);
    for (intptr_t i = 0; i < len; ++i) {
        const int64_t e = int64_t(ld(a, i)) * ld(b, i);
        Tav32s r;
        if (path == ScalePath::SignOnly) r = sign_sat<Tav32s>(e);
        else if (sf >= 0) r = Tav32s(uint32_t(uint64_t(e >> sf)));
        else r = Tav32s(uint32_t(uint64_t(e) << -sf));
        st(d, i, r);
    }
    return StatusOk;
}

// ---- complex integer ----------------------------------------------------------------------
Status tavsMul_16sc_ISfs_body(const Tav16sc* s, Tav16sc* sd, int len, int sf)
{
    return cmul_int(sd, s, sd, len, sf, kMul16sc);
}
Status tavsMul_16sc_Sfs_body(const Tav16sc* a, const Tav16sc* b, Tav16sc* d, int len, int sf)
{
    if (b == d) return tavsMul_16sc_ISfs_body(a, d, len, sf);
    return cmul_int(a, b, d, len, sf, kMul16sc);
}
Status tavsMul_32sc_ISfs_body(const Tav32sc* s, Tav32sc* sd, int len, int sf)
{
    return cmul_int(sd, s, sd, len, sf, kMul32sc);
}
Status tavsMul_32sc_Sfs_body(const Tav32sc* a, const Tav32sc* b, Tav32sc* d, int len, int sf)
{
    if (b == d) return tavsMul_32sc_ISfs_body(a, d, len, sf);
    return cmul_int(a, b, d, len, sf, kMul32sc);
}
Status tavsMul_32s32sc_Sfs_body(const Tav32s* a, const Tav32sc* b, Tav32sc* d, int len, int sf)
{
    return mul_32s32sc(a, b, d, len, sf);
}
Status tavsMul_32s32sc_ISfs_body(const Tav32s* s, Tav32sc* sd, int len, int sf) { return mul_32s32sc(s, sd, sd, len, sf); }

} // extern "C"
