// Scale rules of the integer statistics: each reduction forms an exact
// 64-bit value and applies its scale factor once, with the caps on the
// shift counts that each family keeps.
#pragma once

#include <emmintrin.h>

#include <cstdint>

#include "internal/fixed.h"

namespace tavs::stats {

// Left shift by k (0..31 or 0..15) with saturation to [lo, hi] by the
// sign: values beyond hi >> k or below lo >> k saturate, others shift.
inline int64_t lshift_sat_range(int64_t v, int k, int64_t lo, int64_t hi)
{
    if (v > (hi >> k)) return hi;
    if (v < (lo >> k)) return lo;
    return wrap_shl64(v, k);
}

// -sf as a 64-bit count, safe for sf = INT32_MIN.
inline int64_t neg_count(int sf) { return -int64_t(sf); }

// The sum rule: positive sf rounds half to even with the count capped at
// 63, negative sf shifts left with the count capped at 31 and saturates by
// sign; the result saturates to 32 bits.
inline int32_t scale_sum32(int64_t sum, int sf)
{
    if (sf > 0) return sat<Tav32s>(rshift_rne(sum, sf > 63 ? 63 : sf));
    if (sf < 0) {
        int64_t k = neg_count(sf);
        return int32_t(lshift_sat_range(sum, k > 31 ? 31 : int(k), INT32_MIN, INT32_MAX));
    }
    return sat<Tav32s>(sum);
}

// The dot product rule: both counts capped at 31 (the negative one at
// negCap), rounding half to even, saturation to [lo, hi].
inline int64_t scale_dot(int64_t sum, int sf, int negCap, int64_t lo, int64_t hi)
{
    int64_t r;
    if (sf > 0) r = rshift_rne(sum, sf > 31 ? 31 : sf);
    else if (sf < 0) {
        int64_t k = neg_count(sf);
        r = lshift_sat_range(sum, k > negCap ? negCap : int(k), lo, hi);
    } else r = sum;
    return r < lo ? lo : (r > hi ? hi : r);
}

// 2^-sf built by repeated doubling or halving of 1.0. Past 1100 steps the
// value no longer changes (it is infinite, or it has reached its fixed
// point at zero or the smallest denormal), so the loop stops there.
inline double pow2_steps(int sf)
{
    double f = 1.0;
    int64_t n = sf < 0 ? neg_count(sf) : int64_t(sf);
    if (n > 1100) n = 1100;
    for (int64_t i = 0; i < n; ++i) f = sf < 0 ? f * 2.0 : f * 0.5;
    return f;
}

// Truncation of a double to 32 bits as the processor does it: values out
// of range and NaN give -2147483648.
inline int32_t trunc32(double x) { return _mm_cvttsd_si32(_mm_set_sd(x)); }

// Round half to even of a non-negative value x + 0.5 already formed:
// 2147483647 at or above it, else the truncation, lowered by one when it is
// odd and x was exactly integral (a tie).
inline int32_t round_even_from_half(double x)
{
    if (x >= 2147483647.0) return INT32_MAX;
    int32_t t = trunc32(x);
    if ((t & 1) && x == double(t)) t -= 1;
    return t;
}

} // namespace tavs::stats
