// tavsThreshold_* of the real element types (16s, 32s, 32f, 64f).
// Every comparison is written exactly as the element rule states it, since
// the strict form decides what a NaN element becomes. The loops run in
// ascending element order; the LT and GT clamps of 16s, 32f and 64f have a
// 16-byte path whose instructions (max/min with the element first) give the
// same bits as the scalar comparison, NaN and signed zeros included.
#include "internal/body.h"

#include <cmath>
#include <type_traits>

#include "internal/check.h"
#include "internal/lane_loop.h"
#include "internal/movers.h"
#include "internal/threshold.h"

namespace {

using tavs::lanes::ld;
using tavs::lanes::st;
using tavs::thresh::map;

using tavs::check_ptrs_len;

// LT (Low) keeps x when x is above L, else stores L; GT keeps x when x is
// below L. The block forms: maxps(x, L) is "x > L ? x : L" and minps(x, L)
// is "x < L ? x : L", the second operand winning on NaN and on equality.
template <bool Low, class T> void clamp(const T* src, T* dst, int len, T L)
{
    auto elem = [=](size_t i) {
        T x = ld(src, i);
        st(dst, i, Low ? (x > L ? x : L) : (x < L ? x : L));
    };
    const size_t n = size_t(len);
    const bool ok = tavs::lanes::block_safe(src, dst, n);
    if constexpr (std::is_same_v<T, Tav32f>) {
        const __m128 l = _mm_set1_ps(L);
        tavs::lanes::drive(dst, n, ok, elem, [=](size_t i) {
            __m128 x = _mm_castsi128_ps(tavs::lanes::ld128(src, i * 4));
            __m128 r = Low ? _mm_max_ps(x, l) : _mm_min_ps(x, l);
            tavs::lanes::st128(dst, i * 4, _mm_castps_si128(r));
        });
    } else if constexpr (std::is_same_v<T, Tav64f>) {
        const __m128d l = _mm_set1_pd(L);
        tavs::lanes::drive(dst, n, ok, elem, [=](size_t i) {
            __m128d x = _mm_castsi128_pd(tavs::lanes::ld128(src, i * 8));
            __m128d r = Low ? _mm_max_pd(x, l) : _mm_min_pd(x, l);
            tavs::lanes::st128(dst, i * 8, _mm_castpd_si128(r));
        });
    } else if constexpr (std::is_same_v<T, Tav16s>) {
        const __m128i l = _mm_set1_epi16(L);
        tavs::lanes::drive(dst, n, ok, elem, [=](size_t i) {
            __m128i x = tavs::lanes::ld128(src, i * 2);
            tavs::lanes::st128(dst, i * 2, Low ? _mm_max_epi16(x, l) : _mm_min_epi16(x, l));
        });
    } else {
        for (size_t i = 0; i < n; ++i) elem(i);
    }
}

template <class T> Status thresh_sel(const T* src, T* dst, int len, T level, int relOp)
{
    if (Status s = check_ptrs_len(len, src, dst)) return s;
    if (relOp != CmpLess && relOp != CmpGreater) return ErrBadArg;
    if (relOp == CmpLess) clamp<true>(src, dst, len, level);
    else clamp<false>(src, dst, len, level);
    return StatusOk;
}

// 32s has no selector form; its LT and GT come here.
template <bool Low> Status thresh_32s(const Tav32s* src, Tav32s* dst, int len, Tav32s level)
{
    if (Status s = check_ptrs_len(len, src, dst)) return s;
    clamp<Low>(src, dst, len, level);
    return StatusOk;
}

// |x| below L becomes L with the sign of x.
template <class T> Status lt_abs(const T* src, T* dst, int len, T L)
{
    if (Status s = check_ptrs_len(len, src, dst)) return s;
    if (L < 0) return ErrThresholdNegative;
    if constexpr (std::is_floating_point_v<T>) {
        // x at or above 0 (so -0.0 too) takes +L; a NaN element stays.
        map(src, dst, len, [=](T x) { return L > std::fabs(x) ? (x >= 0 ? L : -L) : x; });
    } else {
        // At level 0 nothing changes: the plain copy of the type.
        if (L == 0) return tavs::copy_elems(src, dst, len);
        // Compared against -L rather than through |x|, so the bottom of the
        // range needs no absolute value.
        const int64_t l = L;
        map(src, dst, len, [=](T x) {
            int64_t v = x;
            return (v >= l || v <= -l) ? x : T(v >= 0 ? l : -l);
        });
    }
    return StatusOk;
}

// |x| above L becomes L with the sign of x.
template <class T> Status gt_abs(const T* src, T* dst, int len, T L)
{
    if (Status s = check_ptrs_len(len, src, dst)) return s;
    if (L < 0) return ErrThresholdNegative;
    if constexpr (std::is_floating_point_v<T>) {
        // min(x, L), then max(that, -L), the second operand winning on NaN
        // and equality, so a NaN element becomes L.
        const T nl = -L;
        map(src, dst, len, [=](T x) {
            T t = x < L ? x : L;
            return t > nl ? t : nl;
        });
    } else {
        const int64_t l = L;
        map(src, dst, len, [=](T x) {
            int64_t v = x;
            return (v > l || v < -l) ? T(v < 0 ? -l : l) : x;
        });
    }
    return StatusOk;
}

// x stays when x >= L (Low) or L >= x, else value; a NaN element takes value.
template <bool Low, class T> Status thresh_val(const T* src, T* dst, int len, T L, T value)
{
    if (Status s = check_ptrs_len(len, src, dst)) return s;
    tavs::thresh::keep_or_value<Low>(src, dst, len, L, value, [](T x) { return x; });
    return StatusOk;
}

// Neither comparison holds for NaN, so a NaN element stays.
template <class T> Status lt_val_gt_val(const T* src, T* dst, int len, T lo, T loVal, T hi, T hiVal)
{
    if (Status s = check_ptrs_len(len, src, dst)) return s;
    if (lo > hi) return ErrThresholdOrder;
    map(src, dst, len, [=](T x) { return x < lo ? loVal : (x > hi ? hiVal : x); });
    return StatusOk;
}

// 1/x limited in magnitude to 1/L. At level 0 a zero element (of either
// sign) gives +Inf and the warning.
template <class T> Status lt_inv(const T* src, T* dst, int len, T L)
{
    if (Status s = check_ptrs_len(len, src, dst)) return s;
    if (L < 0) return ErrThresholdNegative;
    if (L == 0) {
        return tavs::thresh::map_inv_zero(src, dst, len, [](T x, bool& zero) {
            if (x != 0) return T(1) / x;
            zero = true;
            return T(INFINITY);
        });
    }
    const T v = T(1) / L;
    // |x| equal to L stores the level's reciprocal with x's sign; NaN gives -v.
    map(src, dst, len, [=](T x) { return std::fabs(x) > L ? T(1) / x : (x >= 0 ? v : -v); });
    return StatusOk;
}

} // namespace

extern "C" {

// ---- selector form, LT and GT ------------------------------------------------
Status tavsThreshold_16s_body(const Tav16s* src, Tav16s* dst, int len, Tav16s level, int relOp)
{ return thresh_sel(src, dst, len, level, relOp); }
Status tavsThreshold_16s_I_body(Tav16s* srcDst, int len, Tav16s level, int relOp)
{ return tavsThreshold_16s_body(srcDst, srcDst, len, level, relOp); }
Status tavsThreshold_32f_body(const Tav32f* src, Tav32f* dst, int len, Tav32f level, int relOp)
{ return thresh_sel(src, dst, len, level, relOp); }
Status tavsThreshold_32f_I_body(Tav32f* srcDst, int len, Tav32f level, int relOp)
{ return tavsThreshold_32f_body(srcDst, srcDst, len, level, relOp); }
Status tavsThreshold_64f_body(const Tav64f* src, Tav64f* dst, int len, Tav64f level, int relOp)
{ return thresh_sel(src, dst, len, level, relOp); }
Status tavsThreshold_64f_I_body(Tav64f* srcDst, int len, Tav64f level, int relOp)
{ return tavsThreshold_64f_body(srcDst, srcDst, len, level, relOp); }

Status tavsThreshold_LT_16s_body(const Tav16s* src, Tav16s* dst, int len, Tav16s level)
{ return tavsThreshold_16s_body(src, dst, len, level, CmpLess); }
Status tavsThreshold_LT_16s_I_body(Tav16s* srcDst, int len, Tav16s level)
{ return tavsThreshold_16s_I_body(srcDst, len, level, CmpLess); }
Status tavsThreshold_LT_32s_body(const Tav32s* src, Tav32s* dst, int len, Tav32s level)
{ return thresh_32s<true>(src, dst, len, level); }
Status tavsThreshold_LT_32s_I_body(Tav32s* srcDst, int len, Tav32s level)
{ return thresh_32s<true>(srcDst, srcDst, len, level); }
Status tavsThreshold_LT_32f_body(const Tav32f* src, Tav32f* dst, int len, Tav32f level)
{ return tavsThreshold_32f_body(src, dst, len, level, CmpLess); }
Status tavsThreshold_LT_32f_I_body(Tav32f* srcDst, int len, Tav32f level)
{ return tavsThreshold_32f_I_body(srcDst, len, level, CmpLess); }
Status tavsThreshold_LT_64f_body(const Tav64f* src, Tav64f* dst, int len, Tav64f level)
{ return tavsThreshold_64f_body(src, dst, len, level, CmpLess); }
Status tavsThreshold_LT_64f_I_body(Tav64f* srcDst, int len, Tav64f level)
{ return tavsThreshold_64f_I_body(srcDst, len, level, CmpLess); }

Status tavsThreshold_GT_16s_body(const Tav16s* src, Tav16s* dst, int len, Tav16s level)
{ return tavsThreshold_16s_body(src, dst, len, level, CmpGreater); }
Status tavsThreshold_GT_16s_I_body(Tav16s* srcDst, int len, Tav16s level)
{ return tavsThreshold_16s_I_body(srcDst, len, level, CmpGreater); }
Status tavsThreshold_GT_32s_body(const Tav32s* src, Tav32s* dst, int len, Tav32s level)
{ return thresh_32s<false>(src, dst, len, level); }
Status tavsThreshold_GT_32s_I_body(Tav32s* srcDst, int len, Tav32s level)
{ return thresh_32s<false>(srcDst, srcDst, len, level); }
Status tavsThreshold_GT_32f_body(const Tav32f* src, Tav32f* dst, int len, Tav32f level)
{ return tavsThreshold_32f_body(src, dst, len, level, CmpGreater); }
Status tavsThreshold_GT_32f_I_body(Tav32f* srcDst, int len, Tav32f level)
{ return tavsThreshold_32f_I_body(srcDst, len, level, CmpGreater); }
Status tavsThreshold_GT_64f_body(const Tav64f* src, Tav64f* dst, int len, Tav64f level)
{ return tavsThreshold_64f_body(src, dst, len, level, CmpGreater); }
Status tavsThreshold_GT_64f_I_body(Tav64f* srcDst, int len, Tav64f level)
{ return tavsThreshold_64f_I_body(srcDst, len, level, CmpGreater); }

// ---- magnitude forms -------------------------------------------------------------
Status tavsThreshold_LTAbs_16s_body(const Tav16s* src, Tav16s* dst, int len, Tav16s level)
{ return lt_abs(src, dst, len, level); }
Status tavsThreshold_LTAbs_16s_I_body(Tav16s* srcDst, int len, Tav16s level)
{ return lt_abs<Tav16s>(srcDst, srcDst, len, level); }
Status tavsThreshold_LTAbs_32s_body(const Tav32s* src, Tav32s* dst, int len, Tav32s level)
{ return lt_abs(src, dst, len, level); }
Status tavsThreshold_LTAbs_32s_I_body(Tav32s* srcDst, int len, Tav32s level)
{ return lt_abs<Tav32s>(srcDst, srcDst, len, level); }
Status tavsThreshold_LTAbs_32f_body(const Tav32f* src, Tav32f* dst, int len, Tav32f level)
{ return lt_abs(src, dst, len, level); }
Status tavsThreshold_LTAbs_32f_I_body(Tav32f* srcDst, int len, Tav32f level)
{ return lt_abs<Tav32f>(srcDst, srcDst, len, level); }
Status tavsThreshold_LTAbs_64f_body(const Tav64f* src, Tav64f* dst, int len, Tav64f level)
{ return lt_abs(src, dst, len, level); }
Status tavsThreshold_LTAbs_64f_I_body(Tav64f* srcDst, int len, Tav64f level)
{ return lt_abs<Tav64f>(srcDst, srcDst, len, level); }

Status tavsThreshold_GTAbs_16s_body(const Tav16s* src, Tav16s* dst, int len, Tav16s level)
{ return gt_abs(src, dst, len, level); }
Status tavsThreshold_GTAbs_16s_I_body(Tav16s* srcDst, int len, Tav16s level)
{ return gt_abs<Tav16s>(srcDst, srcDst, len, level); }
Status tavsThreshold_GTAbs_32s_body(const Tav32s* src, Tav32s* dst, int len, Tav32s level)
{ return gt_abs(src, dst, len, level); }
Status tavsThreshold_GTAbs_32s_I_body(Tav32s* srcDst, int len, Tav32s level)
{ return gt_abs<Tav32s>(srcDst, srcDst, len, level); }
Status tavsThreshold_GTAbs_32f_body(const Tav32f* src, Tav32f* dst, int len, Tav32f level)
{ return gt_abs(src, dst, len, level); }
Status tavsThreshold_GTAbs_32f_I_body(Tav32f* srcDst, int len, Tav32f level)
{ return gt_abs<Tav32f>(srcDst, srcDst, len, level); }
Status tavsThreshold_GTAbs_64f_body(const Tav64f* src, Tav64f* dst, int len, Tav64f level)
{ return gt_abs(src, dst, len, level); }
Status tavsThreshold_GTAbs_64f_I_body(Tav64f* srcDst, int len, Tav64f level)
{ return gt_abs<Tav64f>(srcDst, srcDst, len, level); }

// ---- replacement values ----------------------------------------------------------
Status tavsThreshold_LTVal_16s_body(const Tav16s* src, Tav16s* dst, int len, Tav16s level, Tav16s value)
{ return thresh_val<true>(src, dst, len, level, value); }
Status tavsThreshold_LTVal_16s_I_body(Tav16s* srcDst, int len, Tav16s level, Tav16s value)
{ return thresh_val<true, Tav16s>(srcDst, srcDst, len, level, value); }
Status tavsThreshold_LTVal_32f_body(const Tav32f* src, Tav32f* dst, int len, Tav32f level, Tav32f value)
{ return thresh_val<true>(src, dst, len, level, value); }
Status tavsThreshold_LTVal_32f_I_body(Tav32f* srcDst, int len, Tav32f level, Tav32f value)
{ return thresh_val<true, Tav32f>(srcDst, srcDst, len, level, value); }
Status tavsThreshold_LTVal_64f_body(const Tav64f* src, Tav64f* dst, int len, Tav64f level, Tav64f value)
{ return thresh_val<true>(src, dst, len, level, value); }
Status tavsThreshold_LTVal_64f_I_body(Tav64f* srcDst, int len, Tav64f level, Tav64f value)
{ return thresh_val<true, Tav64f>(srcDst, srcDst, len, level, value); }

Status tavsThreshold_GTVal_16s_body(const Tav16s* src, Tav16s* dst, int len, Tav16s level, Tav16s value)
{ return thresh_val<false>(src, dst, len, level, value); }
Status tavsThreshold_GTVal_16s_I_body(Tav16s* srcDst, int len, Tav16s level, Tav16s value)
{ return thresh_val<false, Tav16s>(srcDst, srcDst, len, level, value); }
Status tavsThreshold_GTVal_32f_body(const Tav32f* src, Tav32f* dst, int len, Tav32f level, Tav32f value)
{ return thresh_val<false>(src, dst, len, level, value); }
Status tavsThreshold_GTVal_32f_I_body(Tav32f* srcDst, int len, Tav32f level, Tav32f value)
{ return thresh_val<false, Tav32f>(srcDst, srcDst, len, level, value); }
Status tavsThreshold_GTVal_64f_body(const Tav64f* src, Tav64f* dst, int len, Tav64f level, Tav64f value)
{ return thresh_val<false>(src, dst, len, level, value); }
Status tavsThreshold_GTVal_64f_I_body(Tav64f* srcDst, int len, Tav64f level, Tav64f value)
{ return thresh_val<false, Tav64f>(srcDst, srcDst, len, level, value); }

Status tavsThreshold_LTValGTVal_16s_body(const Tav16s* src, Tav16s* dst, int len, Tav16s lowLevel,
                                         Tav16s lowValue, Tav16s highLevel, Tav16s highValue)
{ return lt_val_gt_val(src, dst, len, lowLevel, lowValue, highLevel, highValue); }
Status tavsThreshold_LTValGTVal_16s_I_body(Tav16s* srcDst, int len, Tav16s lowLevel, Tav16s lowValue,
                                           Tav16s highLevel, Tav16s highValue)
{ return lt_val_gt_val<Tav16s>(srcDst, srcDst, len, lowLevel, lowValue, highLevel, highValue); }
Status tavsThreshold_LTValGTVal_32s_body(const Tav32s* src, Tav32s* dst, int len, Tav32s lowLevel,
                                         Tav32s lowValue, Tav32s highLevel, Tav32s highValue)
{ return lt_val_gt_val(src, dst, len, lowLevel, lowValue, highLevel, highValue); }
Status tavsThreshold_LTValGTVal_32s_I_body(Tav32s* srcDst, int len, Tav32s lowLevel, Tav32s lowValue,
                                           Tav32s highLevel, Tav32s highValue)
{ return lt_val_gt_val<Tav32s>(srcDst, srcDst, len, lowLevel, lowValue, highLevel, highValue); }
Status tavsThreshold_LTValGTVal_32f_body(const Tav32f* src, Tav32f* dst, int len, Tav32f lowLevel,
                                         Tav32f lowValue, Tav32f highLevel, Tav32f highValue)
{ return lt_val_gt_val(src, dst, len, lowLevel, lowValue, highLevel, highValue); }
Status tavsThreshold_LTValGTVal_32f_I_body(Tav32f* srcDst, int len, Tav32f lowLevel, Tav32f lowValue,
                                           Tav32f highLevel, Tav32f highValue)
{ return lt_val_gt_val<Tav32f>(srcDst, srcDst, len, lowLevel, lowValue, highLevel, highValue); }
Status tavsThreshold_LTValGTVal_64f_body(const Tav64f* src, Tav64f* dst, int len, Tav64f lowLevel,
                                         Tav64f lowValue, Tav64f highLevel, Tav64f highValue)
{ return lt_val_gt_val(src, dst, len, lowLevel, lowValue, highLevel, highValue); }
Status tavsThreshold_LTValGTVal_64f_I_body(Tav64f* srcDst, int len, Tav64f lowLevel, Tav64f lowValue,
                                           Tav64f highLevel, Tav64f highValue)
{ return lt_val_gt_val<Tav64f>(srcDst, srcDst, len, lowLevel, lowValue, highLevel, highValue); }

// ---- limited reciprocal ----------------------------------------------------------
Status tavsThreshold_LTInv_32f_body(const Tav32f* src, Tav32f* dst, int len, Tav32f level)
{ return lt_inv(src, dst, len, level); }
Status tavsThreshold_LTInv_32f_I_body(Tav32f* srcDst, int len, Tav32f level)
{ return lt_inv<Tav32f>(srcDst, srcDst, len, level); }
Status tavsThreshold_LTInv_64f_body(const Tav64f* src, Tav64f* dst, int len, Tav64f level)
{ return lt_inv(src, dst, len, level); }
Status tavsThreshold_LTInv_64f_I_body(Tav64f* srcDst, int len, Tav64f level)
{ return lt_inv<Tav64f>(srcDst, srcDst, len, level); }

} // extern "C"
