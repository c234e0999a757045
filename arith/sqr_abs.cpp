// tavsSqr_*: the square of each element (complex: the element times itself);
// tavsAbs_*: the magnitude, saturated in integer types, the sign bit cleared
// in float types (a NaN keeps its payload).
//
// Integer squares saturate at the type's maximum. At scaleFactor 0 the
// squares of 16s elements beyond -181..181, 16u beyond 255 and 8u beyond 15
// all saturate; the exact square saturated gives those results directly.
#include "internal/body.h"
#include "internal/arith_kernels.h"

using namespace tavs;

namespace {

constexpr ScaleLimits kSqr8u{17, -8};
constexpr ScaleLimits kSqr16s{31, -15};
constexpr ScaleLimits kSqr16u{33, -16};
constexpr ScaleLimits kSqr16sc{32, -15};
constexpr ScaleLimits kNoScale{64, -64};

struct ISqr {
    // A 16u square needs all 32 bits of a lane.
    template <class T> static constexpr bool unsignedE = std::is_same_v<T, Tav16u>;
    int64_t operator()(int64_t a) const { return a * a; }
    template <class T> void lanes(__m128i& lo, __m128i& hi, __m128i a) const { mul16<T>(a, a, lo, hi); }
};

struct IAbs {
    template <class T> static constexpr bool unsignedE = false;
    int64_t operator()(int64_t a) const { return a < 0 ? -a : a; }
    template <class T> void lanes(__m128i& lo, __m128i& hi, __m128i a) const
    {
        widen16<T>(a, lo, hi);
        const __m128i ml = _mm_srai_epi32(lo, 31), mh = _mm_srai_epi32(hi, 31);
        lo = _mm_sub_epi32(_mm_xor_si128(lo, ml), ml);
        hi = _mm_sub_epi32(_mm_xor_si128(hi, mh), mh);
    }
};

// The complex square as the product of the element with itself.
struct CSqr32Op {
    template <class M> void f(typename M::R& re, typename M::R& im, const Parts<M>& a) const
    {
        re = M::add(M::mul(a.re, a.re), M::mul(M::neg(a.im), a.im));
        im = M::add(M::mul(a.im, a.re), M::mul(a.re, a.im));
    }
};
struct CSqr64Op {
    template <class M> void f(typename M::R& re, typename M::R& im, const Parts<M>& a) const
    {
        re = M::sub(M::mul(a.re, a.re), M::mul(a.im, a.im));
        im = M::add(M::mul(a.im, a.re), M::mul(a.re, a.im));
    }
};

template <class T, class C, class Op> Status cplx1(const C* a, C* d, int len, Op op)
{
    if (Status r = check_ptrs_len(len, a, d)) return r;
    cmap(parts(d), len, op, CplxSrc<T>{parts(a)});
    return StatusOk;
}

template <class T> Status int_sqr(const T* a, T* d, int len, int sf, ScaleLimits lim)
{
    return int_checked<Rule::Product>(d, len, sf, lim, ISqr{}, true, a);
}

Status sqr_16sc(const Tav16sc* a, Tav16sc* d, int len, int sf)
{
    if (Status r = check_ptrs_len(len, a, d)) return r;
    return scaled_c<Rule::Product>(d, len, sf, kSqr16sc, [&](intptr_t i) {
        const Tav16sc x = ld(a, i);
        return cmul_exact(x, x);
    });
}

} // namespace

extern "C" {

// ---- square ------------------------------------------------------------------------------
Status tavsSqr_32f_body(const Tav32f* s, Tav32f* d, int len) { return float1(s, d, len, SqrOp{}); }
Status tavsSqr_32f_I_body(Tav32f* sd, int len) { return float1(sd, sd, len, SqrOp{}); }
Status tavsSqr_64f_body(const Tav64f* s, Tav64f* d, int len) { return float1(s, d, len, SqrOp{}); }
Status tavsSqr_64f_I_body(Tav64f* sd, int len) { return float1(sd, sd, len, SqrOp{}); }
Status tavsSqr_32fc_body(const Tav32fc* s, Tav32fc* d, int len) { return cplx1<float>(s, d, len, CSqr32Op{}); }
Status tavsSqr_32fc_I_body(Tav32fc* sd, int len) { return cplx1<float>(sd, sd, len, CSqr32Op{}); }
Status tavsSqr_64fc_body(const Tav64fc* s, Tav64fc* d, int len) { return cplx1<double>(s, d, len, CSqr64Op{}); }
Status tavsSqr_64fc_I_body(Tav64fc* sd, int len) { return cplx1<double>(sd, sd, len, CSqr64Op{}); }

Status tavsSqr_8u_Sfs_body(const Tav8u* s, Tav8u* d, int len, int sf) { return int_sqr(s, d, len, sf, kSqr8u); }
Status tavsSqr_8u_ISfs_body(Tav8u* sd, int len, int sf) { return int_sqr(sd, sd, len, sf, kSqr8u); }
Status tavsSqr_16s_Sfs_body(const Tav16s* s, Tav16s* d, int len, int sf) { return int_sqr(s, d, len, sf, kSqr16s); }
Status tavsSqr_16s_ISfs_body(Tav16s* sd, int len, int sf) { return int_sqr(sd, sd, len, sf, kSqr16s); }
Status tavsSqr_16u_Sfs_body(const Tav16u* s, Tav16u* d, int len, int sf) { return int_sqr(s, d, len, sf, kSqr16u); }
Status tavsSqr_16u_ISfs_body(Tav16u* sd, int len, int sf) { return int_sqr(sd, sd, len, sf, kSqr16u); }
Status tavsSqr_16sc_Sfs_body(const Tav16sc* s, Tav16sc* d, int len, int sf) { return sqr_16sc(s, d, len, sf); }
Status tavsSqr_16sc_ISfs_body(Tav16sc* sd, int len, int sf) { return sqr_16sc(sd, sd, len, sf); }

// ---- absolute value ----------------------------------------------------------------------
Status tavsAbs_32f_body(const Tav32f* s, Tav32f* d, int len) { return float1(s, d, len, AbsOp{}); }
Status tavsAbs_32f_I_body(Tav32f* sd, int len) { return float1(sd, sd, len, AbsOp{}); }
Status tavsAbs_64f_body(const Tav64f* s, Tav64f* d, int len) { return float1(s, d, len, AbsOp{}); }
Status tavsAbs_64f_I_body(Tav64f* sd, int len) { return float1(sd, sd, len, AbsOp{}); }
Status tavsAbs_16s_body(const Tav16s* s, Tav16s* d, int len)
{
    return int_checked<Rule::Sum>(d, len, 0, kNoScale, IAbs{}, true, s);
}
Status tavsAbs_16s_I_body(Tav16s* sd, int len) { return int_checked<Rule::Sum>(sd, len, 0, kNoScale, IAbs{}, true, sd); }
Status tavsAbs_32s_body(const Tav32s* s, Tav32s* d, int len)
{
    return int_checked<Rule::Sum>(d, len, 0, kNoScale, IAbs{}, false, s);
}
Status tavsAbs_32s_I_body(Tav32s* sd, int len) { return int_checked<Rule::Sum>(sd, len, 0, kNoScale, IAbs{}, false, sd); }

} // extern "C"
