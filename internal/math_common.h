// Helpers shared by the elementary functions: bit access to floats, the
// floating-point scope of the batched evaluations, the first-warning rule,
// and the arctangent kernels used by Arctan and the phase families.
#pragma once

#include <xmmintrin.h>

#include <bit>
#include <cmath>
#include <cstdint>

#include "internal/math_gen.h"
#include "internal/types.h"

namespace tavs::math {

inline uint32_t bits_of(float f) { return std::bit_cast<uint32_t>(f); }
inline uint64_t bits_of(double d) { return std::bit_cast<uint64_t>(d); }
inline float float_of(uint32_t b) { return std::bit_cast<float>(b); }
inline double double_of(uint64_t b) { return std::bit_cast<double>(b); }

// The negative quiet NaN that the float families write for a domain error.
inline constexpr uint32_t kNegQNaN32 = 0xFFC00000u;
inline constexpr uint64_t kNegQNaN64 = 0xFFF8000000000000ull;
template <class T> inline T neg_qnan()
{
    if constexpr (sizeof(T) == 4)
        return std::bit_cast<T>(kNegQNaN32);
    else
        return std::bit_cast<T>(kNegQNaN64);
}

// The batched evaluations (exponential, logarithm, arctangent) are
// mathematical routines with their own settings: round to nearest, no
// flush-to-zero, no denormals-are-zero, exceptions masked. The caller's
// control bits come back on exit; status flags raised inside are kept, as
// the math library keeps them.
class MathFpScope {
  public:
    MathFpScope() : saved_(_mm_getcsr()) { _mm_setcsr(kOwn | (saved_ & kFlags)); }
    ~MathFpScope() { _mm_setcsr(saved_ | (_mm_getcsr() & kFlags)); }
    MathFpScope(const MathFpScope&) = delete;
    MathFpScope& operator=(const MathFpScope&) = delete;

  private:
    static constexpr unsigned kOwn = 0x1F80u; // all exceptions masked, nearest, no FTZ/DAZ
    static constexpr unsigned kFlags = 0x3Fu;
    unsigned saved_;
};

// The logarithm families report the first special element met, in index
// order; later ones do not change the status.
struct FirstWarning {
    Status st = StatusOk;
    void note(Status w)
    {
        if (st == StatusOk) st = w;
    }
};

// ---- arctangent -------------------------------------------------------------
// atan(t) for t in [0, 1]. Below 1/16 the odd series of t itself; above, t
// is moved next to c = k/64 (k = round(64 t)) with atan(t) = atan(c) +
// atan(u), u = (t - c) / (1 + t c), |u| <= 1/128, so that the rounding of u
// stays far below the result's last place. atan(k/64) comes as a hi + lo
// pair from compile time. Dbl selects the series lengths for double results
// (cut-off terms below 2^-56 relative), otherwise for float results.
inline constexpr mathgen::AtanTable kAtan = mathgen::make_atan_table();

struct AtanCoefs {
    double c[8];
};
constexpr AtanCoefs make_atan_coefs()
{
    AtanCoefs a{};
    for (int j = 0; j < 8; ++j)
        a.c[j] = ((j & 1) ? -1.0 : 1.0) / double(2 * j + 1);
    return a;
}
inline constexpr AtanCoefs kAtanCoef = make_atan_coefs();

template <int Terms> inline double atan_series(double u)
{
    static_assert(Terms >= 2 && Terms <= 8);
    const double q = u * u;
    double p = kAtanCoef.c[Terms - 1];
    for (int j = Terms - 2; j >= 1; --j)
        p = kAtanCoef.c[j] + q * p;
    return u + u * (q * p);
}

// atan(t) for t in [0, 1] (not NaN), or its complement pi/2 - atan(t); each
// ends in one rounding of a table pair and the series.
template <bool Dbl> inline double atan_unit(double t, bool complement)
{
    int k = 0;
    double s;
    if (t < 0.0625) {
        s = atan_series < Dbl ? 8 : 4 > (t);
    } else {
        k = int(t * double(mathgen::kAtanSteps) + 0.5);
        const double c = double(k) * (1.0 / mathgen::kAtanSteps);
        s = atan_series < Dbl ? 4 : 2 > ((t - c) / (1.0 + t * c)); // t - c is exact: c/2 <= t <= 2c
    }
    return complement ? kAtan.chi[k] + (kAtan.clo[k] - s) : kAtan.hi[k] + (kAtan.lo[k] + s);
}

// atan(x) for any double: atan(1/|x|) complemented above 1.
template <bool Dbl> inline double atan_eval(double x)
{
    if (x != x) return x + x;
    const double ax = std::fabs(x);
    const double r = ax <= 1.0 ? atan_unit<Dbl>(ax, false) : atan_unit<Dbl>(1.0 / ax, true);
    return std::copysign(r, x);
}

// atan2(y, x) of float arguments, to be rounded to float: the quadrant rules
// of the math library's atan2 (signed zeros and infinities included).
inline double atan2_for_float(float yf, float xf)
{
    const double y = yf, x = xf;
    if (x != x || y != y) return x + y;
    const double ax = std::fabs(x), ay = std::fabs(y);
    double a;
    if (ay <= ax)
        a = atan_unit<false>(ax == 0.0 ? 0.0 : (ay == ax ? 1.0 : ay / ax), false);
    else
        a = atan_unit<false>(ax / ay, true); // ay > ax: never 0/0 nor inf/inf
    if (std::signbit(x)) a = (2.0 * kAtan.pio2_hi - a) + 2.0 * kAtan.pio2_lo;
    return std::copysign(a, y);
}

// ---- exact rounded square roots --------------------------------------------
using u128 = unsigned __int128;

inline uint64_t isqrt_u128(u128 v)
{
    uint64_t k = uint64_t(std::sqrt(static_cast<long double>(v)));
    while (u128(k) * k > v)
        --k;
    while (u128(k + 1) * (k + 1) <= v)
        ++k;
    return k;
}

// round(sqrt(x) 2^-sf) with ties to even, exact, saturated to max.
inline int64_t round_sqrt_exact(uint64_t x, int sf, int64_t max)
{
    if (x == 0 || sf > 32) return 0; // sqrt(x) < 2^32
    if (sf < -63) return max;        // sqrt(x) 2^63 and more
    if (sf <= 0) {
        const int s = -sf;
        const int bitsX = 64 - __builtin_clzll(x);
        if (s >= 63 || bitsX + 2 * s > 126) return max;
        const u128 v = u128(x) << (2 * s);
        uint64_t k = isqrt_u128(v);
        if (v - u128(k) * k > k) ++k; // sqrt(v) >= k + 1/2; never a tie
        return k > uint64_t(max) ? max : int64_t(k);
    }
    // floor(sqrt(x) / 2^sf), then the half point (2r + 1)^2 4^(sf - 1).
    // r < 2^(32 - sf), so the half point stays below 2^64.
    uint64_t r = isqrt_u128(x) >> sf;
    const u128 half = (u128(2 * r + 1) * (2 * r + 1)) << (2 * (sf - 1));
    if (u128(x) > half || (u128(x) == half && (r & 1))) ++r;
    return r > uint64_t(max) ? max : int64_t(r);
}

} // namespace tavs::math
