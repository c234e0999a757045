// Products of packed spectra: tavsMulPack_*, tavsMulPerm_* (16s scaled, 32f,
// 64f, with in-place forms) and tavsMulPackConj_*_I. The real slots (X[0],
// and X[N/2] for even len) multiply as reals; every other pair as complex
// numbers. The out-of-place forms first look for a destination that is one
// of the sources and then run the in-place form with the other source;
// only then come the pointer and length checks.
#include "internal/body.h"
#include "internal/check.h"

#include <cstdint>

namespace {

enum class Packed { Pack, Perm };
enum class Op { Mul, MulConj };

// Slots of the layout: the second real slot (-1 if none) and the first
// index of the pairs.
struct Slots {
    int nyquist;
    int pairs;
    int count;
};
template <Packed L> Slots slots(int len)
{
    const bool even = (len & 1) == 0;
    if (!even) return {-1, 1, (len - 1) / 2};
    return {L == Packed::Pack ? len - 1 : 1, L == Packed::Pack ? 1 : 2, (len - 2) / 2};
}

// ---- floating forms: d = s * x, pairs (a, b) from s and (c, e) from x ------
// x may be d (the in-place forms): each pair is read before it is written.

template <Packed L, Op O, class S> void mul_float(const S* s, const S* x, S* d, int len)
{
    const Slots sl = slots<L>(len);
    d[0] = s[0] * x[0];
    if (sl.nyquist >= 0) d[sl.nyquist] = s[sl.nyquist] * x[sl.nyquist];
    for (int i = 0, j = sl.pairs; i < sl.count; ++i, j += 2) {
        const S a = s[j], b = s[j + 1], c = x[j], e = x[j + 1];
        if constexpr (O == Op::Mul) {
            d[j] = a * c - b * e;
            d[j + 1] = a * e + b * c;
        } else {
            // s times the conjugate of x.
            d[j] = a * c + b * e;
            d[j + 1] = c * b - a * e;
        }
    }
}

template <Packed L, Op O, class S> Status mul_float_i(const S* src, S* srcDst, int len)
{
    if (const Status st = tavs::check_ptrs_len(len, src, srcDst); st != StatusOk) return st;
    mul_float<L, O>(src, srcDst, srcDst, len);
    return StatusOk;
}

template <Packed L, class S> Status mul_float_oop(const S* src1, const S* src2, S* dst, int len)
{
    if (src2 == dst) return mul_float_i<L, Op::Mul>(src1, dst, len);
    if (src1 == dst) return mul_float_i<L, Op::Mul>(src2, dst, len);
    if (const Status st = tavs::check_ptrs_len(len, src1, src2, dst); st != StatusOk) return st;
    mul_float<L, Op::Mul>(src1, src2, dst, len);
    return StatusOk;
}

// ---- 16s scaled forms ------------------------------------------------------------

// A 32-bit value scaled and saturated to 16s: right shifts truncate toward
// minus infinity, left shifts saturate by testing before the shift.
inline Tav16s scale16(int32_t v, int sf)
{
    if (sf > 0) {
        const int32_t r = sf >= 31 ? (v < 0 ? -1 : 0) : (v >> sf);
        return Tav16s(r > 32767 ? 32767 : r < -32768 ? -32768 : r);
    }
    if (sf == 0) return Tav16s(v > 32767 ? 32767 : v < -32768 ? -32768 : v);
    const int64_t n = -int64_t(sf);
    const int32_t hi = n >= 15 ? 0 : (32767 >> n);
    const int32_t lo = n >= 16 ? 0 : -(32768 >> n);
    if (v > hi) return 32767;
    if (v < lo) return -32768;
    return Tav16s(v * (int32_t(1) << (n >= 16 ? 0 : n))); // |v| small enough here; v is 0 when n >= 16
}

inline int32_t prod(Tav16s x, Tav16s y) { return int32_t(x) * int32_t(y); }

// d = s * x as above. The real part wraps in 32 bits; the imaginary part
// drops the second product when the first is exactly 2^30 (both factors
// -32768).
template <Packed L> void mul_16s(const Tav16s* s, const Tav16s* x, Tav16s* d, int len, int sf)
{
    const Slots sl = slots<L>(len);
    d[0] = scale16(prod(s[0], x[0]), sf);
    if (sl.nyquist >= 0) d[sl.nyquist] = scale16(prod(s[sl.nyquist], x[sl.nyquist]), sf);
    for (int i = 0, j = sl.pairs; i < sl.count; ++i, j += 2) {
        const Tav16s a = s[j], b = s[j + 1], c = x[j], e = x[j + 1];
        const int32_t re = int32_t(uint32_t(prod(a, c)) - uint32_t(prod(b, e)));
        const int32_t ae = prod(a, e);
        const int32_t im = ae == (int32_t(1) << 30) ? ae : int32_t(uint32_t(ae) + uint32_t(prod(b, c)));
        d[j] = scale16(re, sf);
        d[j + 1] = scale16(im, sf);
    }
}

template <Packed L> Status mul_16s_i(const Tav16s* src, Tav16s* srcDst, int len, int sf)
{
    if (const Status st = tavs::check_ptrs_len(len, src, srcDst); st != StatusOk) return st;
    mul_16s<L>(src, srcDst, srcDst, len, sf);
    return StatusOk;
}

template <Packed L> Status mul_16s_oop(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int sf)
{
    if (src2 == dst) return mul_16s_i<L>(src1, dst, len, sf);
    if (src1 == dst) return mul_16s_i<L>(src2, dst, len, sf);
    if (const Status st = tavs::check_ptrs_len(len, src1, src2, dst); st != StatusOk) return st;
    mul_16s<L>(src1, src2, dst, len, sf);
    return StatusOk;
}

} // namespace

extern "C" {

Status tavsMulPack_16s_Sfs_body(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor)
{
    return mul_16s_oop<Packed::Pack>(src1, src2, dst, len, scaleFactor);
}
Status tavsMulPack_16s_ISfs_body(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor)
{
    return mul_16s_i<Packed::Pack>(src, srcDst, len, scaleFactor);
}
Status tavsMulPerm_16s_Sfs_body(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor)
{
    return mul_16s_oop<Packed::Perm>(src1, src2, dst, len, scaleFactor);
}
Status tavsMulPerm_16s_ISfs_body(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor)
{
    return mul_16s_i<Packed::Perm>(src, srcDst, len, scaleFactor);
}

Status tavsMulPack_32f_body(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len)
{
    return mul_float_oop<Packed::Pack>(src1, src2, dst, len);
}
Status tavsMulPack_32f_I_body(const Tav32f* src, Tav32f* srcDst, int len)
{
    return mul_float_i<Packed::Pack, Op::Mul>(src, srcDst, len);
}
Status tavsMulPack_64f_body(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len)
{
    return mul_float_oop<Packed::Pack>(src1, src2, dst, len);
}
Status tavsMulPack_64f_I_body(const Tav64f* src, Tav64f* srcDst, int len)
{
    return mul_float_i<Packed::Pack, Op::Mul>(src, srcDst, len);
}
Status tavsMulPerm_32f_body(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len)
{
    return mul_float_oop<Packed::Perm>(src1, src2, dst, len);
}
Status tavsMulPerm_32f_I_body(const Tav32f* src, Tav32f* srcDst, int len)
{
    return mul_float_i<Packed::Perm, Op::Mul>(src, srcDst, len);
}
Status tavsMulPerm_64f_body(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len)
{
    return mul_float_oop<Packed::Perm>(src1, src2, dst, len);
}
Status tavsMulPerm_64f_I_body(const Tav64f* src, Tav64f* srcDst, int len)
{
    return mul_float_i<Packed::Perm, Op::Mul>(src, srcDst, len);
}
Status tavsMulPackConj_32f_I_body(const Tav32f* src, Tav32f* srcDst, int len)
{
    return mul_float_i<Packed::Pack, Op::MulConj>(src, srcDst, len);
}
Status tavsMulPackConj_64f_I_body(const Tav64f* src, Tav64f* srcDst, int len)
{
    return mul_float_i<Packed::Pack, Op::MulConj>(src, srcDst, len);
}

} // extern "C"
