// tavsThreshold_* of the complex element types (16sc, 32fc, 64fc). The level
// is a real magnitude: ErrThresholdNegative below zero. Elements compare by
// squared magnitude; the LT and GT forms keep the direction of an element
// and move its magnitude to the level.
#include "internal/body.h"

#include <cmath>
#include <cstdint>
#include <type_traits>

#include "internal/check.h"
#include "internal/lane_loop.h"
#include "internal/threshold.h"

namespace {

using tavs::any_null;
using tavs::part_t;
using tavs::thresh::map;

// Pointers, length, then the level as a magnitude.
template <class C, class P> Status head(const C* src, const C* dst, int len, P level)
{
    if (any_null(src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    if (level < 0) return ErrThresholdNegative;
    return StatusOk;
}

// ---- 32fc, 64fc ---------------------------------------------------------------
// The level squared in 64f; the element's squared magnitude in its own float
// type, then widened.
template <class C> double mag2(C x) { return double(part_t<C>(x.re * x.re + x.im * x.im)); }

// Both parts times sqrt(L^2 / |x|^2) in 64f, stored in the element type.
template <class C> C rescale(C x, double L2, double n)
{
    using P = part_t<C>;
    const double f = std::sqrt(L2 / n);
    return C{P(double(x.re) * f), P(double(x.im) * f)};
}

template <class C> void lt_float(const C* src, C* dst, int len, part_t<C> L)
{
    const double L2 = double(L) * double(L);
    map(src, dst, len, [=](C x) {
        const double n = mag2(x);
        if (n >= L2) return x;
        if (n != 0) return rescale(x, L2, n);
        return C{L, 0};
    });
}

// A zero level with a non-zero element gives a signed zero pair.
template <class C> void gt_float(const C* src, C* dst, int len, part_t<C> L)
{
    const double L2 = double(L) * double(L);
    map(src, dst, len, [=](C x) {
        const double n = mag2(x);
        return L2 >= n ? x : rescale(x, L2, n);
    });
}

// ---- 16sc ---------------------------------------------------------------------
// Each part scaled on its own in integers: |part| * L / |x| as an integer
// square root of L^2 * part^2 / |x|^2, corrected by one after the double
// estimate. LT rounds up so the level is reached, GT rounds down so it is
// not passed. Each part keeps the sign of its source part.
inline int64_t root_lt(uint64_t num, uint64_t n)
{
    const uint64_t a = num / n;
    uint64_t r = uint64_t(std::sqrt(double(a)));
    if (num != a * n) {
        if (r * r <= a) ++r;
    } else if (r * r < a) {
        ++r;
    }
    return int64_t(r);
}

inline int64_t root_gt(uint64_t num, uint64_t n)
{
    const uint64_t a = num / n;
    uint64_t r = uint64_t(std::sqrt(double(a)));
    if ((r + 1) * (r + 1) <= a) ++r;
    return int64_t(r);
}

inline Tav16s with_sign(int64_t r, Tav16s part) { return Tav16s(part < 0 ? -r : r); }

template <bool Low> void thresh_16sc(const Tav16sc* src, Tav16sc* dst, int len, Tav16s L)
{
    const uint64_t L2 = uint64_t(int64_t(L) * L);
    map(src, dst, len, [=](Tav16sc x) {
        const uint64_t re2 = uint64_t(int64_t(x.re) * x.re), im2 = uint64_t(int64_t(x.im) * x.im);
        const uint64_t n = re2 + im2;
        if (Low) {
            if (n >= L2) return x;
            if (n == 0) return Tav16sc{L, 0};
            return Tav16sc{with_sign(root_lt(L2 * re2, n), x.re), with_sign(root_lt(L2 * im2, n), x.im)};
        }
        if (n <= L2) return x;
        return Tav16sc{with_sign(root_gt(L2 * re2, n), x.re), with_sign(root_gt(L2 * im2, n), x.im)};
    });
}

// Sums of squares as 32-bit unsigned: (-32768)^2 * 2 is 2^31.
inline uint32_t mag2_16sc(Tav16sc x)
{
    return uint32_t(int32_t(x.re) * x.re) + uint32_t(int32_t(x.im) * x.im);
}

// ---- dispatch -----------------------------------------------------------------
template <bool Low, class C> void clamp(const C* src, C* dst, int len, part_t<C> L)
{
    if constexpr (std::is_same_v<C, Tav16sc>) thresh_16sc<Low>(src, dst, len, L);
    else if constexpr (Low) lt_float(src, dst, len, L);
    else gt_float(src, dst, len, L);
}

template <class C> Status thresh_sel(const C* src, C* dst, int len, part_t<C> level, int relOp)
{
    if (any_null(src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    if (relOp != CmpLess && relOp != CmpGreater) return ErrBadArg;
    if (level < 0) return ErrThresholdNegative;
    if (relOp == CmpLess) clamp<true>(src, dst, len, level);
    else clamp<false>(src, dst, len, level);
    return StatusOk;
}

// x stays when |x|^2 >= L^2 (Low) or L^2 >= |x|^2, else value.
template <bool Low, class C> Status thresh_val(const C* src, C* dst, int len, part_t<C> level, C value)
{
    if (Status s = head(src, dst, len, level)) return s;
    if constexpr (std::is_same_v<C, Tav16sc>)
        tavs::thresh::keep_or_value<Low>(src, dst, len, uint32_t(int32_t(level) * level), value, mag2_16sc);
    else
        tavs::thresh::keep_or_value<Low>(src, dst, len, double(level) * double(level), value, mag2<C>);
    return StatusOk;
}

// The conjugate reciprocal, limited in magnitude to 1/L. The zero-level test
// is on L*L in the element type, so a level that squares to 0 counts as 0.
template <class C> Status lt_inv(const C* src, C* dst, int len, part_t<C> L)
{
    using P = part_t<C>;
    if (Status s = head(src, dst, len, L)) return s;
    const P LL = L * L;
    if (LL == 0) {
        return tavs::thresh::map_inv_zero(src, dst, len, [](C x, bool& zero) {
            const P r = x.re * x.re + x.im * x.im;
            if (r == 0) {
                zero = true;
                return C{P(INFINITY), 0};
            }
            const P inv = P(1) / r;
            return C{x.re * inv, P(-x.im) * inv};
        });
    }
    const P v = P(1) / L;
    map(src, dst, len, [=](C x) {
        P r = x.re * x.re + x.im * x.im;
        if (r == 0) return C{v, 0};
        if (LL > r) r = std::sqrt(r) * L;
        const P s = P(1) / r;
        return C{x.re * s, P(-x.im) * s};
    });
    return StatusOk;
}

} // namespace

extern "C" {

// ---- selector form, LT and GT ------------------------------------------------
Status tavsThreshold_16sc_body(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level, int relOp)
{ return thresh_sel(src, dst, len, level, relOp); }
Status tavsThreshold_16sc_I_body(Tav16sc* srcDst, int len, Tav16s level, int relOp)
{ return tavsThreshold_16sc_body(srcDst, srcDst, len, level, relOp); }
Status tavsThreshold_32fc_body(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level, int relOp)
{ return thresh_sel(src, dst, len, level, relOp); }
Status tavsThreshold_32fc_I_body(Tav32fc* srcDst, int len, Tav32f level, int relOp)
{ return tavsThreshold_32fc_body(srcDst, srcDst, len, level, relOp); }
Status tavsThreshold_64fc_body(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level, int relOp)
{ return thresh_sel(src, dst, len, level, relOp); }
Status tavsThreshold_64fc_I_body(Tav64fc* srcDst, int len, Tav64f level, int relOp)
{ return tavsThreshold_64fc_body(srcDst, srcDst, len, level, relOp); }

Status tavsThreshold_LT_16sc_body(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level)
{ return tavsThreshold_16sc_body(src, dst, len, level, CmpLess); }
Status tavsThreshold_LT_16sc_I_body(Tav16sc* srcDst, int len, Tav16s level)
{ return tavsThreshold_16sc_I_body(srcDst, len, level, CmpLess); }
Status tavsThreshold_LT_32fc_body(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level)
{ return tavsThreshold_32fc_body(src, dst, len, level, CmpLess); }
Status tavsThreshold_LT_32fc_I_body(Tav32fc* srcDst, int len, Tav32f level)
{ return tavsThreshold_32fc_I_body(srcDst, len, level, CmpLess); }
Status tavsThreshold_LT_64fc_body(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level)
{ return tavsThreshold_64fc_body(src, dst, len, level, CmpLess); }
Status tavsThreshold_LT_64fc_I_body(Tav64fc* srcDst, int len, Tav64f level)
{ return tavsThreshold_64fc_I_body(srcDst, len, level, CmpLess); }

Status tavsThreshold_GT_16sc_body(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level)
{ return tavsThreshold_16sc_body(src, dst, len, level, CmpGreater); }
Status tavsThreshold_GT_16sc_I_body(Tav16sc* srcDst, int len, Tav16s level)
{ return tavsThreshold_16sc_I_body(srcDst, len, level, CmpGreater); }
Status tavsThreshold_GT_32fc_body(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level)
{ return tavsThreshold_32fc_body(src, dst, len, level, CmpGreater); }
Status tavsThreshold_GT_32fc_I_body(Tav32fc* srcDst, int len, Tav32f level)
{ return tavsThreshold_32fc_I_body(srcDst, len, level, CmpGreater); }
Status tavsThreshold_GT_64fc_body(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level)
{ return tavsThreshold_64fc_body(src, dst, len, level, CmpGreater); }
Status tavsThreshold_GT_64fc_I_body(Tav64fc* srcDst, int len, Tav64f level)
{ return tavsThreshold_64fc_I_body(srcDst, len, level, CmpGreater); }

// ---- replacement values ----------------------------------------------------------
Status tavsThreshold_LTVal_16sc_body(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level, Tav16sc value)
{ return thresh_val<true>(src, dst, len, level, value); }
Status tavsThreshold_LTVal_16sc_I_body(Tav16sc* srcDst, int len, Tav16s level, Tav16sc value)
{ return thresh_val<true, Tav16sc>(srcDst, srcDst, len, level, value); }
Status tavsThreshold_LTVal_32fc_body(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level, Tav32fc value)
{ return thresh_val<true>(src, dst, len, level, value); }
Status tavsThreshold_LTVal_32fc_I_body(Tav32fc* srcDst, int len, Tav32f level, Tav32fc value)
{ return thresh_val<true, Tav32fc>(srcDst, srcDst, len, level, value); }
Status tavsThreshold_LTVal_64fc_body(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level, Tav64fc value)
{ return thresh_val<true>(src, dst, len, level, value); }
Status tavsThreshold_LTVal_64fc_I_body(Tav64fc* srcDst, int len, Tav64f level, Tav64fc value)
{ return thresh_val<true, Tav64fc>(srcDst, srcDst, len, level, value); }

Status tavsThreshold_GTVal_16sc_body(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level, Tav16sc value)
{ return thresh_val<false>(src, dst, len, level, value); }
Status tavsThreshold_GTVal_16sc_I_body(Tav16sc* srcDst, int len, Tav16s level, Tav16sc value)
{ return thresh_val<false, Tav16sc>(srcDst, srcDst, len, level, value); }
Status tavsThreshold_GTVal_32fc_body(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level, Tav32fc value)
{ return thresh_val<false>(src, dst, len, level, value); }
Status tavsThreshold_GTVal_32fc_I_body(Tav32fc* srcDst, int len, Tav32f level, Tav32fc value)
{ return thresh_val<false, Tav32fc>(srcDst, srcDst, len, level, value); }
Status tavsThreshold_GTVal_64fc_body(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level, Tav64fc value)
{ return thresh_val<false>(src, dst, len, level, value); }
Status tavsThreshold_GTVal_64fc_I_body(Tav64fc* srcDst, int len, Tav64f level, Tav64fc value)
{ return thresh_val<false, Tav64fc>(srcDst, srcDst, len, level, value); }

// ---- limited reciprocal ----------------------------------------------------------
Status tavsThreshold_LTInv_32fc_body(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level)
{ return lt_inv(src, dst, len, level); }
Status tavsThreshold_LTInv_32fc_I_body(Tav32fc* srcDst, int len, Tav32f level)
{ return lt_inv<Tav32fc>(srcDst, srcDst, len, level); }
Status tavsThreshold_LTInv_64fc_body(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level)
{ return lt_inv(src, dst, len, level); }
Status tavsThreshold_LTInv_64fc_I_body(Tav64fc* srcDst, int len, Tav64f level)
{ return lt_inv<Tav64fc>(srcDst, srcDst, len, level); }

} // extern "C"
