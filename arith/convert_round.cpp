// Float to integer with a rounding mode and a power-of-two scale, and the
// 64f to 32f narrowing. The element is multiplied by 2^-scaleFactor (skipped
// at 0), limited to the destination range given as floats of the source type,
// then rounded: rndMode 0 truncates, 1 uses the processor's conversion under
// the caller's rounding direction, every other value rounds half away.
#include <climits>
#include <cmath>
#include <type_traits>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/convert.h"
#include "internal/fixed.h"

using namespace tavs;
using namespace tavs::cvt;

namespace {

// ---- 32f to 8s, 8u, 16s, 16u ------------------------------------------------

// Narrows int32 lanes with saturation and stores 16 bytes of results; the
// 16u form needs its lanes within 0..65535 already.
template <class D> inline void store_narrow(D* d, const __m128i* q)
{
    if constexpr (std::is_same_v<D, Tav16s>) {
        _mm_store_si128(reinterpret_cast<__m128i*>(d), _mm_packs_epi32(q[0], q[1]));
    } else if constexpr (std::is_same_v<D, Tav16u>) {
        // No unsigned 32-to-16 pack in SSE2: bias into the signed range.
        const __m128i bias = _mm_set1_epi32(32768);
        __m128i p = _mm_packs_epi32(_mm_sub_epi32(q[0], bias), _mm_sub_epi32(q[1], bias));
        _mm_store_si128(reinterpret_cast<__m128i*>(d), _mm_xor_si128(p, _mm_set1_epi16(short(0x8000))));
    } else if constexpr (std::is_same_v<D, Tav8s>) {
        __m128i a = _mm_packs_epi32(q[0], q[1]), b = _mm_packs_epi32(q[2], q[3]);
        _mm_store_si128(reinterpret_cast<__m128i*>(d), _mm_packs_epi16(a, b));
    } else {
        __m128i a = _mm_packs_epi32(q[0], q[1]), b = _mm_packs_epi32(q[2], q[3]);
        _mm_store_si128(reinterpret_cast<__m128i*>(d), _mm_packus_epi16(a, b));
    }
}

// Lanes from 65536.0 up (+Inf and positive NaNs too) are brought below
// 66048.0 by a signed 16-bit minimum on the high half of each lane, which
// every destination then saturates to its maximum. Negative lanes have
// negative high halves and every low half is at most 0x7FFF, so nothing else
// changes. The integer minimum runs beside the conversions, where a float
// minimum would compete with them for the same units.
inline __m128 clamp_high(__m128 x)
{
    return _mm_castsi128_ps(_mm_min_epi16(_mm_castps_si128(x), _mm_set1_epi32(0x47807FFF)));
}

// Half away from zero on four lanes already brought below 66048.0: with
// t = trunc(2x), a lane at or above zero gives (t + 1) >> 1 and a negative
// one t >> 1, which is the magnitude rule with the sign put back. 2x is
// exact at every magnitude that does not saturate anyway, and trunc(2x) is
// -trunc(2|x|) for negative x.
inline __m128i vcvt_rha_clamped(__m128 x)
{
    const __m128i t = _mm_cvttps_epi32(_mm_add_ps(x, x));
    const __m128i nonNeg = _mm_cmpgt_epi32(_mm_castps_si128(x), _mm_set1_epi32(-1));
    return _mm_srai_epi32(_mm_sub_epi32(t, nonNeg), 1);
}

template <class D, bool Scale, int Mode> void f32_small_kernel(const Tav32f* src, D* dst, size_t n, float f)
{
    // Sixteen elements a step: one 16-byte store of 8-bit results, two of
    // 16-bit ones, which finish with one eight-element step where it fits.
    constexpr size_t W = 16, perStore = 16 / sizeof(D);
    const float lo = float(Limits<D>::min), hi = float(Limits<D>::max);
    const __m128 vlo = _mm_set1_ps(lo), vf = _mm_set1_ps(f);
    // Truncation and the processor's conversion take anything below the
    // lower limit to a 32-bit value at or below it (or to the integer
    // indefinite 0x80000000), which the saturating packs take to the lower
    // limit, as limiting first would. Only the biased 16u pack cannot take
    // 0x80000000, so it limits the low side. Half away doubles the value and
    // halves the result, which keeps the indefinite negative.
    constexpr bool hiOnly = Mode != RoundHalfAway && !std::is_same_v<D, Tav16u>;
    // Converts and stores E elements from i (a whole number of stores).
    auto block = [&](size_t i, auto elems) {
        constexpr size_t E = decltype(elems)::value;
        __m128i q[E / 4];
        for (size_t k = 0; k < E / 4; ++k) {
            __m128 x = _mm_loadu_ps(src + i + 4 * k);
            if constexpr (Scale) x = _mm_mul_ps(x, vf);
            x = clamp_high(x);
            if constexpr (Mode == RoundHalfAway) {
                q[k] = vcvt_rha_clamped(x);
            } else {
                if constexpr (!hiOnly) x = _mm_max_ps(x, vlo);
                q[k] = vcvt_mode(x, Mode);
            }
        }
        for (size_t k = 0; k < E / perStore; ++k)
            store_narrow(dst + i + k * perStore, q + k * (perStore / 4));
    };
    drive<W, perStore>(
        dst, n, 8,
        [&](size_t i) {
            float x = ld<Tav32f>(src, i);
            if constexpr (Scale) x *= f;
            if constexpr (hiOnly)
                st<D>(dst, i, sat<D>(cvt_mode(x < hi ? x : hi, Mode)));
            else
                st<D>(dst, i, D(cvt_mode(limit(x, lo, hi), Mode)));
        },
        [&](size_t i) { block(i, std::integral_constant<size_t, W>{}); },
        [&](size_t i) { block(i, std::integral_constant<size_t, perStore>{}); });
}

template <class D, bool Scale> void f32_small_modes(const Tav32f* src, D* dst, size_t n, float f, int rndMode)
{
    if (rndMode == RoundTowardZero)
        f32_small_kernel<D, Scale, RoundTowardZero>(src, dst, n, f);
    else if (rndMode == RoundHalfEven)
        f32_small_kernel<D, Scale, RoundHalfEven>(src, dst, n, f);
    else
        f32_small_kernel<D, Scale, RoundHalfAway>(src, dst, n, f);
}

template <class D> Status f32_to_small(const Tav32f* src, D* dst, int len, int rndMode, int scaleFactor)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    // Any value other than 0 and 1 takes the half-away path.
    if (scaleFactor == 0)
        f32_small_modes<D, false>(src, dst, size_t(len), 1.0f, rndMode);
    else
        f32_small_modes<D, true>(src, dst, size_t(len), pow2_neg<float>(scaleFactor), rndMode);
    return StatusOk;
}

// ---- 32f to 32s -------------------------------------------------------------

// The ties-to-even path stays in 32f: the low side is limited to -2^31 and
// anything above 2147483520 (the largest 32f below 2^31) stores 0x7FFFFFFF.
constexpr float kBelow2p31 = 2147483520.0f;

template <bool Scale> void f32_32s_even(const Tav32f* src, Tav32s* dst, size_t n, float f)
{
    const __m128 vlo = _mm_set1_ps(-2147483648.0f), vtop = _mm_set1_ps(kBelow2p31), vf = _mm_set1_ps(f);
    const __m128i vmax = _mm_set1_epi32(INT32_MAX);
    drive<4>(
        dst, n, 8,
        [&](size_t i) {
            float x = ld<Tav32f>(src, i);
            if constexpr (Scale) x *= f;
            x = x > -2147483648.0f ? x : -2147483648.0f;
            st<Tav32s>(dst, i, x > kBelow2p31 ? INT32_MAX : cvt_rhe(x));
        },
        [&](size_t i) {
            __m128 x = _mm_loadu_ps(src + i);
            if constexpr (Scale) x = _mm_mul_ps(x, vf);
            x = _mm_max_ps(x, vlo);
            __m128i big = _mm_castps_si128(_mm_cmpgt_ps(x, vtop));
            __m128i r = _mm_cvtps_epi32(x);
            _mm_store_si128(reinterpret_cast<__m128i*>(dst + i),
                            _mm_or_si128(_mm_and_si128(big, vmax), _mm_andnot_si128(big, r)));
        });
}

// The other modes form the product in 64f and limit it to the 32s range.
inline int32_t f64_to_32s_rtz_rha(double x, int rndMode)
{
    x = limit(x, -2147483648.0, 2147483647.0);
    if (rndMode == RoundTowardZero) return cvt_rtz(x);
    return int32_t(round_half_away(x));
}

// ---- 64f sources ------------------------------------------------------------

// Limits as doubles, then truncation, the processor's conversion, or +-0.5
// by the sign of the limited value and truncation.
template <class D> inline D f64_round(double x, double lo, double hi, int rndMode)
{
    x = limit(x, lo, hi);
    if (rndMode == RoundTowardZero) return D(cvt_rtz(x));
    if (rndMode == RoundHalfEven) return D(cvt_rhe(x));
    return D(cvt_rha_add(x));
}

template <class D> Status f64_to_int(const Tav64f* src, D* dst, int len, int rndMode, int scaleFactor)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    const double lo = double(Limits<D>::min), hi = double(Limits<D>::max);
    const size_t n = size_t(len);
    if (scaleFactor == 0) {
        for (size_t i = 0; i < n; ++i)
            st<D>(dst, i, f64_round<D>(ld<Tav64f>(src, i), lo, hi, rndMode));
    } else {
        const double f = pow2_neg<double>(scaleFactor);
        for (size_t i = 0; i < n; ++i)
            st<D>(dst, i, f64_round<D>(ld<Tav64f>(src, i) * f, lo, hi, rndMode));
    }
    return StatusOk;
}

// ---- 64f to 64s -------------------------------------------------------------

// A NaN: exponent field all ones and a non-zero fraction.
inline bool is_nan64(double x)
{
    uint64_t b;
    std::memcpy(&b, &x, 8);
    return (b & 0x7FF0000000000000ull) == 0x7FF0000000000000ull && (b & 0x000FFFFFFFFFFFFFull) != 0;
}

constexpr double kTwo63 = 9223372036854775808.0;

// x * 2^-sf rounded by rndMode with the fraction tested directly, saturated
// to 64 bits. The scale goes in exact power-of-two steps; before each step
// the operand is tested against DBL_MIN / factor and DBL_MAX / factor, so no
// product under- or overflows: below the first every mode gives 0, above the
// second the result saturates by sign.
int64_t f64_to_64s(double x, int rndMode, int sf)
{
    if (is_nan64(x)) return 0;
    if (x > 1.7976931348623157e308) return INT64_MAX; // infinities saturate at once
    if (x < -1.7976931348623157e308) return INT64_MIN;
    int64_t rest = -int64_t(sf);
    while (rest != 0 && x != 0.0) {
        const int step = int(rest > 1000 ? 1000 : (rest < -1000 ? -1000 : rest));
        rest -= step;
        const double factor = std::ldexp(1.0, step);
        const double a = x < 0.0 ? -x : x;
        if (a > 1.7976931348623157e308 / factor) return x < 0.0 ? INT64_MIN : INT64_MAX;
        if (a < 2.2250738585072014e-308 / factor) return 0;
        x *= factor;
    }
    if (x >= kTwo63) return INT64_MAX;
    if (x <= -kTwo63) return INT64_MIN;
    const int64_t t = _mm_cvttsd_si64(_mm_set_sd(x));
    const double frac = x - double(t);
    const double af = frac < 0.0 ? -frac : frac;
    const int64_t away = frac < 0.0 ? -1 : 1;
    bool up;
    if (rndMode == RoundTowardZero)
        up = false;
    else if (rndMode == RoundHalfEven)
        up = af > 0.5 || (af == 0.5 && (t & 1) != 0);
    else
        up = af >= 0.5;
    return up ? t + away : t;
}

// ---- 64f to 32f ---------------------------------------------------------------

constexpr double kFltMax = 3.4028234663852886e38;

// min and max in the order that lets a NaN through unchanged.
inline double clamp_flt(double x)
{
    x = kFltMax < x ? kFltMax : x;
    return -kFltMax > x ? -kFltMax : x;
}

} // namespace

extern "C" {

Status tavsConvert_32f8s_Sfs_body(const Tav32f* src, Tav8s* dst, int len, int rndMode, int scaleFactor)
{
    return f32_to_small(src, dst, len, rndMode, scaleFactor);
}
Status tavsConvert_32f8u_Sfs_body(const Tav32f* src, Tav8u* dst, int len, int rndMode, int scaleFactor)
{
    return f32_to_small(src, dst, len, rndMode, scaleFactor);
}
Status tavsConvert_32f16s_Sfs_body(const Tav32f* src, Tav16s* dst, int len, int rndMode, int scaleFactor)
{
    return f32_to_small(src, dst, len, rndMode, scaleFactor);
}
Status tavsConvert_32f16u_Sfs_body(const Tav32f* src, Tav16u* dst, int len, int rndMode, int scaleFactor)
{
    return f32_to_small(src, dst, len, rndMode, scaleFactor);
}

Status tavsConvert_32f32s_Sfs_body(const Tav32f* src, Tav32s* dst, int len, int rndMode, int scaleFactor)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    const size_t n = size_t(len);
    const float f = scaleFactor == 0 ? 1.0f : pow2_neg<float>(scaleFactor);
    if (rndMode == RoundHalfEven) {
        if (scaleFactor == 0)
            f32_32s_even<false>(src, dst, n, f);
        else
            f32_32s_even<true>(src, dst, n, f);
        return StatusOk;
    }
    if (scaleFactor == 0) {
        for (size_t i = 0; i < n; ++i)
            st<Tav32s>(dst, i, f64_to_32s_rtz_rha(double(ld<Tav32f>(src, i)), rndMode));
    } else {
        const double fd = double(f);
        for (size_t i = 0; i < n; ++i)
            st<Tav32s>(dst, i, f64_to_32s_rtz_rha(double(ld<Tav32f>(src, i)) * fd, rndMode));
    }
    return StatusOk;
}

Status tavsConvert_64f16s_Sfs_body(const Tav64f* src, Tav16s* dst, int len, int rndMode, int scaleFactor)
{
    return f64_to_int(src, dst, len, rndMode, scaleFactor);
}
Status tavsConvert_64f32s_Sfs_body(const Tav64f* src, Tav32s* dst, int len, int rndMode, int scaleFactor)
{
    return f64_to_int(src, dst, len, rndMode, scaleFactor);
}

// len is an unsigned count here: only 0 is rejected.
Status tavsConvert_64f64s_Sfs_body(const Tav64f* src, Tav64s* dst, int len, int rndMode, int scaleFactor)
{
    if (Status chk = check_ptrs_ulen(len, src, dst); chk != StatusOk) return chk;
    const size_t n = uint32_t(len);
    for (size_t i = 0; i < n; ++i)
        st<Tav64s>(dst, i, f64_to_64s(ld<Tav64f>(src, i), rndMode, scaleFactor));
    return StatusOk;
}

// Limited to +-FLT_MAX first, so an infinite source gives the largest finite
// 32f; the narrowing follows the caller's rounding direction.
Status tavsConvert_64f32f_body(const Tav64f* src, Tav32f* dst, int len)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    const __m128d vmax = _mm_set1_pd(kFltMax), vmin = _mm_set1_pd(-kFltMax);
    drive<4>(
        dst, size_t(len), 8, [&](size_t i) { st<Tav32f>(dst, i, float(clamp_flt(ld<Tav64f>(src, i)))); },
        [&](size_t i) {
            __m128d a = _mm_max_pd(vmin, _mm_min_pd(vmax, _mm_loadu_pd(src + i)));
            __m128d b = _mm_max_pd(vmin, _mm_min_pd(vmax, _mm_loadu_pd(src + i + 2)));
            _mm_store_ps(dst + i, _mm_movelh_ps(_mm_cvtpd_ps(a), _mm_cvtpd_ps(b)));
        });
    return StatusOk;
}

} // extern "C"
