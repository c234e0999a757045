// Fixed-point rules shared by every integer form: saturation, the scale
// rule (ties-to-even right shift, saturating left shift, and the zero-fill
// and sign-only limits of each family), the three rounding modes, and
// wrapping arithmetic written on unsigned types so it is never undefined.
#pragma once

#include <cmath>
#include <cstdint>

#include "internal/types.h"

namespace tavs {

// ---- wrapping arithmetic ------------------------------------------------
inline int32_t wrap_add32(int32_t a, int32_t b) { return int32_t(uint32_t(a) + uint32_t(b)); }
inline int32_t wrap_sub32(int32_t a, int32_t b) { return int32_t(uint32_t(a) - uint32_t(b)); }
inline int32_t wrap_mul32(int32_t a, int32_t b) { return int32_t(uint32_t(a) * uint32_t(b)); }
inline int32_t wrap_neg32(int32_t a) { return int32_t(0u - uint32_t(a)); }
inline int32_t wrap_shl32(int32_t a, int n) { return int32_t(uint32_t(a) << n); }
inline int64_t wrap_add64(int64_t a, int64_t b) { return int64_t(uint64_t(a) + uint64_t(b)); }
inline int64_t wrap_sub64(int64_t a, int64_t b) { return int64_t(uint64_t(a) - uint64_t(b)); }
inline int64_t wrap_mul64(int64_t a, int64_t b) { return int64_t(uint64_t(a) * uint64_t(b)); }
inline int64_t wrap_neg64(int64_t a) { return int64_t(0ull - uint64_t(a)); }
inline int64_t wrap_shl64(int64_t a, int n) { return int64_t(uint64_t(a) << n); }

// ---- saturation -----------------------------------------------------------
template <class T> constexpr int64_t lim_min = Limits<T>::min;
template <class T> constexpr int64_t lim_max = Limits<T>::max;

// v clamped to the range of T (T an integer element type or a 24-bit tag).
template <class T> inline int64_t clamp_to(int64_t v)
{
    return v < lim_min<T> ? lim_min<T> : (v > lim_max<T> ? lim_max<T> : v);
}
template <class T> inline T sat(int64_t v) { return static_cast<T>(clamp_to<T>(v)); }

// Saturating 64-bit sum and difference.
inline int64_t sat_add64(int64_t a, int64_t b)
{
    int64_t r;
    if (__builtin_add_overflow(a, b, &r)) return a < 0 ? INT64_MIN : INT64_MAX;
    return r;
}
inline int64_t sat_sub64(int64_t a, int64_t b)
{
    int64_t r;
    if (__builtin_sub_overflow(a, b, &r)) return a < 0 ? INT64_MIN : INT64_MAX;
    return r;
}

// ---- the scale rule ---------------------------------------------------------
// e * 2^-s rounded to nearest with ties to even, for s >= 1. Equal to
// (e + 2^(s-1) - 1 + ((e >> s) & 1)) >> s, computed without overflow for
// every 64-bit e. For s >= 64 every value rounds to 0 (|e| <= 2^63 and the
// tie at -2^63 goes to the even 0).
inline int64_t rshift_rne(int64_t e, int s)
{
    if (s >= 64) return 0;
    int64_t q = e >> s;
    uint64_t rem = uint64_t(e) & ((uint64_t(1) << s) - 1);
    uint64_t half = uint64_t(1) << (s - 1);
    if (rem > half || (rem == half && (q & 1))) q += 1;
    return q;
}

// e * 2^n for n >= 0, saturated to the 64-bit range.
inline int64_t lshift_sat64(int64_t e, int n)
{
    if (e == 0 || n == 0) return e;
    if (n >= 63) return e > 0 ? INT64_MAX : INT64_MIN;
    if (e > (INT64_MAX >> n)) return INT64_MAX;
    if (e < (INT64_MIN >> n)) return INT64_MIN;
    return wrap_shl64(e, n);
}

// Limits of a family's scale factor: at s >= zeroFrom every result rounds
// to zero and the destination is zero-filled; at s <= signTo a non-zero e
// saturates by its sign alone.
struct ScaleLimits {
    int zeroFrom;
    int signTo;
};

enum class ScalePath { Zero, SignOnly, Shift };

inline ScalePath scale_path(int s, ScaleLimits lim)
{
    if (s >= lim.zeroFrom) return ScalePath::Zero;
    if (s <= lim.signTo) return ScalePath::SignOnly;
    return ScalePath::Shift;
}

// The sign-only result: the maximum for positive e, the minimum for
// negative e, 0 for 0. Unsigned types give the maximum for any non-zero e.
template <class T> inline T sign_sat(int64_t e)
{
    if (e == 0) return T(0);
    if (lim_min<T> == 0) return static_cast<T>(lim_max<T>);
    return static_cast<T>(e > 0 ? lim_max<T> : lim_min<T>);
}

// Scale of an exact sum or difference: e * 2^-s, the left shift done on e
// itself, then one saturation to T.
template <class T> inline T scale_sum(int64_t e, int s)
{
    if (s > 0) return sat<T>(rshift_rne(e, s));
    if (s < 0) return sat<T>(lshift_sat64(e, -s));
    return sat<T>(e);
}

// Scale of an exact product: for s < 0 the product is saturated to T
// first, then shifted, then saturated again.
template <class T> inline T scale_product(int64_t e, int s)
{
    if (s > 0) return sat<T>(rshift_rne(e, s));
    if (s < 0) return sat<T>(lshift_sat64(clamp_to<T>(e), -s));
    return sat<T>(e);
}

// ---- rounding modes of float-to-integer conversion ------------------------
// RoundTowardZero: truncation. RoundHalfEven: the processor's conversion
// under the caller's rounding state. RoundHalfAway: trunc(2|x|) + 1 shifted
// right by one, sign put back. The argument must already lie within the
// range of int64.
inline int64_t round_toward_zero(double x) { return static_cast<int64_t>(x); }
inline int64_t round_half_even(double x) { return std::llrint(x); }
inline int64_t round_half_away(double x)
{
    double a = std::fabs(x);
    int64_t r = (static_cast<int64_t>(2.0 * a) + 1) >> 1;
    return x < 0 ? -r : r;
}

inline int64_t round_mode(double x, int rndMode)
{
    if (rndMode == RoundTowardZero) return round_toward_zero(x);
    if (rndMode == RoundHalfEven) return round_half_even(x);
    return round_half_away(x);
}

} // namespace tavs
