// tavsLn_16s_Sfs, tavsLn_32s_Sfs, tavsLn_32s16s_Sfs, their in-place forms,
// and tavs10Log10_32s_Sfs.
//
// Results are small, so most scale factors need no floating point: ladders
// of thresholds (generated at compile time) give round(ln x), round(ln(x)
// 2^-sf) and the decibel steps. Scale factors that widen the result use
// ln(x) * 2^-sf + 0.5 in double, truncated. An element at or below 0 gives
// the type's minimum, and the first such element decides the warning.
#include <cmath>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/math_common.h"

namespace {

namespace gen = tavs::mathgen;
using tavs::math::FirstWarning;

constexpr auto kLnLadder = gen::make_ln_ladder(); // [k]: first x with round(ln x) >= k
constexpr auto kCeilEPow = gen::make_ceil_epow(); // [m]: first x with ln x >= m
constexpr auto kDbLadder = gen::make_db_ladder(); // first x of 12, 14, ... 92, then of 93

// round(ln x) for x >= 1.
inline int ln_ladder(uint64_t x)
{
    int k = 0;
    while (k < gen::kLnLadderTop && x >= kLnLadder[k + 1])
        ++k;
    return k;
}

// round(ln(x) * 2^-sf) for x >= 1 and sf >= 1: result j needs ln x >=
// (2j - 1) 2^(sf-1), an integer, so the thresholds are ceilings of powers
// of e.
inline int ln_round_scaled(uint64_t x, int sf)
{
    if (sf > 6) return 0; // 2^(sf-1) above 44 > ln of any 32-bit value
    const int unit = 1 << (sf - 1);
    int j = 0;
    for (int m = unit; m <= gen::kMaxPosPow && x >= kCeilEPow[m]; m += 2 * unit)
        ++j;
    return j;
}

// ln(x) * 2^-sf + 0.5 in double, truncated, saturated at maxv. The NaN of
// ln(1) times an infinite scale is the exact result 0.
inline int64_t ln_widened(double lnScaled, double maxv)
{
    const double v = lnScaled + 0.5;
    if (v > maxv) return int64_t(maxv);
    if (v != v) return 0;
    return int64_t(v);
}

// ---- Ln_16s and Ln_32s16s ----------------------------------------------------------
// sf >= 1: round(ln(x) 2^-sf); 0: the ladder; -1 (16s only): the ladder of
// x^2 with no floating point, x halved by shifts while above 181; down to
// -15 (from -1 for 32s16s): pow(2, -sf) ln x + 0.5; below -15: 0 for x = 1,
// 32767 otherwise.
inline Tav16s ln_to16(int32_t x, int sf, bool squareLadder)
{
    if (sf >= 1) return Tav16s(ln_round_scaled(uint64_t(x), sf));
    if (sf == 0) return Tav16s(ln_ladder(uint64_t(x)));
    if (sf == -1 && squareLadder) {
        if (x <= 181) return Tav16s(ln_ladder(uint64_t(x) * uint64_t(x)));
        int k = 0;
        while ((x >> k) > 181)
            ++k;
        const uint64_t h = uint64_t(x >> k);
        return Tav16s(ln_ladder(h * h) + ln_ladder(uint64_t(1) << (2 * k)));
    }
    if (sf >= -15) return Tav16s(ln_widened(std::pow(2.0, -double(sf)) * std::log(double(x)), 32767.0));
    return x == 1 ? 0 : 32767;
}

template <class S, class D, class F> Status ln_int(const S* src, D* dst, int len, F one)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    FirstWarning w;
    for (int i = 0; i < len; ++i) {
        const S x = src[i];
        if (x <= 0) {
            w.note(x == 0 ? WarnLnZero : WarnLnNegative);
            dst[i] = D(tavs::Limits<D>::min);
        } else {
            dst[i] = one(x);
        }
    }
    return w.st;
}

Status ln_16s_inplace(Tav16s* srcDst, int len, int sf)
{
    return ln_int(srcDst, srcDst, len, [sf](Tav16s x) { return ln_to16(x, sf, true); });
}

// Equal pointers run the in-place form; that test comes before the null test.
Status ln_16s(const Tav16s* src, Tav16s* dst, int len, int sf)
{
    if (src == dst) return ln_16s_inplace(dst, len, sf);
    return ln_int(src, dst, len, [sf](Tav16s x) { return ln_to16(x, sf, true); });
}

Status ln_32s16s(const Tav32s* src, Tav16s* dst, int len, int sf)
{
    // A forward element loop also serves equal pointers: element i is
    // written at bytes 2i..2i+1, below every element not yet read.
    return ln_int(src, dst, len, [sf](Tav32s x) { return ln_to16(x, sf, false); });
}

// ---- Ln_32s ------------------------------------------------------------------------
// sf < 0: pow(2, -sf) ln x + 0.5, truncated; sf >= 0: the rounded logarithm
// from the ladder shifted right by sf mod 32 (truncating).
inline Tav32s ln_32s_one(Tav32s x, int sf)
{
    if (sf < 0) return Tav32s(ln_widened(std::log(double(x)) * std::pow(2.0, -double(sf)), 2147483647.0));
    return Tav32s(ln_ladder(uint64_t(x)) >> (sf & 31));
}

Status ln_32s_inplace(Tav32s* srcDst, int len, int sf)
{
    return ln_int(srcDst, srcDst, len, [sf](Tav32s x) { return ln_32s_one(x, sf); });
}

Status ln_32s(const Tav32s* src, Tav32s* dst, int len, int sf)
{
    if (src == dst) return ln_32s_inplace(dst, len, sf);
    return ln_int(src, dst, len, [sf](Tav32s x) { return ln_32s_one(x, sf); });
}

// ---- 10Log10_32s -------------------------------------------------------------------
// sf >= 0: a ladder of steps (k >> sf, count mod 32): 0, 3, 5, 6, 7, 8, 9, 9,
// 10, 10, 10, 11, 11, 11 for x = 1..14, then only even k = 12 .. 92 (k holds
// above 10^((k - 0.5)/10)), and 93 at the top. The even steps are the
// ladder's own, not a rounded 10 log10 x.
constexpr Tav32s kDbSmall[15] = {0, 0, 3, 5, 6, 7, 8, 9, 9, 10, 10, 10, 11, 11, 11};

inline int db_ladder(Tav32s x)
{
    if (x <= 14) return kDbSmall[x];
    if (uint32_t(x) >= kDbLadder[gen::kDbSteps - 1]) return 93;
    int k = 12;
    for (int i = 1; i < gen::kDbSteps - 1 && uint32_t(x) >= kDbLadder[i]; ++i)
        k += 2;
    return k;
}

inline Tav32s db_one(Tav32s x, int sf)
{
    if (sf < 0)
        return Tav32s(
            ln_widened(4.342944819032518 * std::pow(2.0, -double(sf)) * std::log(double(x)), 2147483647.0));
    return Tav32s(db_ladder(x) >> (sf & 31));
}

Status db_32s(const Tav32s* src, Tav32s* dst, int len, int sf)
{
    return ln_int(src, dst, len, [sf](Tav32s x) { return db_one(x, sf); });
}

} // namespace

extern "C" {
Status tavsLn_16s_Sfs_body(const Tav16s* src, Tav16s* dst, int len, int sf)
{
    return ln_16s(src, dst, len, sf);
}
Status tavsLn_16s_ISfs_body(Tav16s* srcDst, int len, int sf) { return ln_16s_inplace(srcDst, len, sf); }
Status tavsLn_32s_Sfs_body(const Tav32s* src, Tav32s* dst, int len, int sf)
{
    return ln_32s(src, dst, len, sf);
}
Status tavsLn_32s_ISfs_body(Tav32s* srcDst, int len, int sf) { return ln_32s_inplace(srcDst, len, sf); }
Status tavsLn_32s16s_Sfs_body(const Tav32s* src, Tav16s* dst, int len, int sf)
{
    return ln_32s16s(src, dst, len, sf);
}
Status tavs10Log10_32s_Sfs_body(const Tav32s* src, Tav32s* dst, int len, int sf)
{
    return db_32s(src, dst, len, sf);
}
Status tavs10Log10_32s_ISfs_body(Tav32s* srcDst, int len, int sf) { return db_32s(srcDst, srcDst, len, sf); }
}
