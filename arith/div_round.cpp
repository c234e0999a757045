// tavsDiv_Round_*: dst = src2 / src1 scaled by 2^-scaleFactor and rounded by
// rndMode: RoundTowardZero truncates, RoundHalfEven corrects a tie to the
// even neighbour, RoundHalfAway adds one half with the quotient's sign and
// truncates. Any other mode is ErrRoundMode, after the pointer and length
// checks. The quotient is taken in 64f; for 16-bit operands it never lies
// close enough to a rounding boundary to fall on the wrong side, so every
// mode gives the result of the exact quotient.
#include "internal/body.h"
#include "internal/constant_kernels.h"

using namespace tavs;

namespace {

// Scale limits: from zeroFrom up every quotient is below one half in
// magnitude (so 0 in every mode); at signTo and below every non-zero
// quotient is beyond the type and saturates by its sign.
struct RoundLimits {
    int zeroFrom;
    int signTo;
};

inline int64_t round_by_mode(double q, int rndMode)
{
    if (rndMode == RoundTowardZero) return static_cast<int64_t>(q);
    if (rndMode == RoundHalfEven) return round_even_exact(q);
    return static_cast<int64_t>(q + (q < 0 ? -0.5 : 0.5));
}

template <class T> Status round_member(const T* d, const T* n, T* dst, int len, int rndMode, int s, RoundLimits lim)
{
    if (Status st = check_ptrs_len(len, d, n, dst)) return st;
    if (rndMode != RoundTowardZero && rndMode != RoundHalfEven && rndMode != RoundHalfAway) return ErrRoundMode;
    bool z = false;
    const double f = pow2_steps<double>(s);
    // |q| stays below 2^47 between the limits, so the conversions are exact.
    for (int i = 0; i < len; ++i) {
        const int64_t a = n[i], b = d[i];
        if (b == 0) {
            z = true;
            dst[i] = int_div_by_zero<T>(a);
        } else if (s >= lim.zeroFrom) {
            dst[i] = 0;
        } else if (s <= lim.signTo) {
            dst[i] = sign_sat<T>(a == 0 ? 0 : ((a < 0) != (b < 0) ? -1 : 1));
        } else {
            dst[i] = sat<T>(round_by_mode(double(a) * f / double(b), rndMode));
        }
    }
    return z ? WarnDivByZero : StatusOk;
}

// 16s: 0 from 17, sign of dividend times sign of divisor below -30.
constexpr RoundLimits k16s{17, -31};
// 8u: 0 from 9, saturation below -15.
constexpr RoundLimits k8u{9, -16};
// 16u: 0 from 17. Below, any non-zero dividend reaches 65536 from -32 down
// (2^32 / 65535 > 65535.5); saturating there is exact and keeps the factor
// finite.
constexpr RoundLimits k16u{17, -32};

} // namespace

extern "C" {

Status tavsDiv_Round_16s_Sfs_body(const Tav16s* s1, const Tav16s* s2, Tav16s* dst, int len, int rndMode, int sf) { return round_member(s1, s2, dst, len, rndMode, sf, k16s); }
Status tavsDiv_Round_16s_ISfs_body(const Tav16s* src, Tav16s* sd, int len, int rndMode, int sf) { return tavsDiv_Round_16s_Sfs_body(src, sd, sd, len, rndMode, sf); }
Status tavsDiv_Round_16u_Sfs_body(const Tav16u* s1, const Tav16u* s2, Tav16u* dst, int len, int rndMode, int sf) { return round_member(s1, s2, dst, len, rndMode, sf, k16u); }
Status tavsDiv_Round_16u_ISfs_body(const Tav16u* src, Tav16u* sd, int len, int rndMode, int sf) { return tavsDiv_Round_16u_Sfs_body(src, sd, sd, len, rndMode, sf); }
Status tavsDiv_Round_8u_Sfs_body(const Tav8u* s1, const Tav8u* s2, Tav8u* dst, int len, int rndMode, int sf) { return round_member(s1, s2, dst, len, rndMode, sf, k8u); }
Status tavsDiv_Round_8u_ISfs_body(const Tav8u* src, Tav8u* sd, int len, int rndMode, int sf) { return tavsDiv_Round_8u_Sfs_body(src, sd, sd, len, rndMode, sf); }

} // extern "C"
