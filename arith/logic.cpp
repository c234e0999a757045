// tavsAnd/Or/Xor, their constant forms AndC/OrC/XorC, and Not, on 8u, 16u and
// 32u. A constant of 0 changes the call, and so the checks a caller sees:
// AndC by 0 is the zero fill of the width, OrC and XorC by 0 are its copy.
// Not is XorC with all ones, so it never takes that shortcut.
#include "internal/body.h"

#include "internal/check.h"
#include "internal/lane_loop.h"
#include "internal/movers.h"

namespace {

using tavs::any_null;
using tavs::lanes::ld;
using tavs::lanes::ld128;
using tavs::lanes::st;
using tavs::lanes::st128;

enum class Op { And, Or, Xor };

template <Op O, class T> inline T apply(T a, T b)
{
    if constexpr (O == Op::And) return T(a & b);
    else if constexpr (O == Op::Or) return T(a | b);
    else return T(a ^ b);
}

template <Op O> inline __m128i apply(__m128i a, __m128i b)
{
    if constexpr (O == Op::And) return _mm_and_si128(a, b);
    else if constexpr (O == Op::Or) return _mm_or_si128(a, b);
    else return _mm_xor_si128(a, b);
}

template <class T> inline __m128i splat(T v)
{
    if constexpr (sizeof(T) == 1) return _mm_set1_epi8(char(v));
    else if constexpr (sizeof(T) == 2) return _mm_set1_epi16(short(v));
    else return _mm_set1_epi32(int(v));
}

template <Op O, class T> Status binary(const T* src1, const T* src2, T* dst, int len)
{
    if (any_null(src1, src2, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    const size_t n = size_t(len);
    const bool ok = tavs::lanes::block_safe(src1, dst, n) && tavs::lanes::block_safe(src2, dst, n);
    tavs::lanes::drive(
        dst, n, ok, [=](size_t i) { st(dst, i, apply<O>(ld(src1, i), ld(src2, i))); },
        [=](size_t i) {
            const size_t b = i * sizeof(T);
            st128(dst, b, apply<O>(ld128(src1, b), ld128(src2, b)));
        });
    return StatusOk;
}

template <Op O, class T> Status constant(const T* src, T value, T* dst, int len)
{
    if (value == 0) {
        if constexpr (O == Op::And) {
            // The zero fill tests dst and len; src is tested here, first.
            if (src == nullptr) return ErrNullPtr;
            return tavs::zero_fill(dst, len);
        } else {
            return tavs::copy_elems(src, dst, len);
        }
    }
    if (any_null(src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    const size_t n = size_t(len);
    const __m128i v = splat(value);
    tavs::lanes::drive(
        dst, n, tavs::lanes::block_safe(src, dst, n), [=](size_t i) { st(dst, i, apply<O>(ld(src, i), value)); },
        [=](size_t i) {
            const size_t b = i * sizeof(T);
            st128(dst, b, apply<O>(ld128(src, b), v));
        });
    return StatusOk;
}

} // namespace

extern "C" {

// ---- vector with vector --------------------------------------------------------
Status tavsAnd_8u_body(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len)
{ return binary<Op::And>(src1, src2, dst, len); }
Status tavsAnd_8u_I_body(const Tav8u* src, Tav8u* srcDst, int len)
{ return binary<Op::And>(src, srcDst, srcDst, len); }
Status tavsAnd_16u_body(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len)
{ return binary<Op::And>(src1, src2, dst, len); }
Status tavsAnd_16u_I_body(const Tav16u* src, Tav16u* srcDst, int len)
{ return binary<Op::And>(src, srcDst, srcDst, len); }
Status tavsAnd_32u_body(const Tav32u* src1, const Tav32u* src2, Tav32u* dst, int len)
{ return binary<Op::And>(src1, src2, dst, len); }
Status tavsAnd_32u_I_body(const Tav32u* src, Tav32u* srcDst, int len)
{ return binary<Op::And>(src, srcDst, srcDst, len); }

Status tavsOr_8u_body(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len)
{ return binary<Op::Or>(src1, src2, dst, len); }
Status tavsOr_8u_I_body(const Tav8u* src, Tav8u* srcDst, int len)
{ return binary<Op::Or>(src, srcDst, srcDst, len); }
Status tavsOr_16u_body(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len)
{ return binary<Op::Or>(src1, src2, dst, len); }
Status tavsOr_16u_I_body(const Tav16u* src, Tav16u* srcDst, int len)
{ return binary<Op::Or>(src, srcDst, srcDst, len); }
Status tavsOr_32u_body(const Tav32u* src1, const Tav32u* src2, Tav32u* dst, int len)
{ return binary<Op::Or>(src1, src2, dst, len); }
Status tavsOr_32u_I_body(const Tav32u* src, Tav32u* srcDst, int len)
{ return binary<Op::Or>(src, srcDst, srcDst, len); }

Status tavsXor_8u_body(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len)
{ return binary<Op::Xor>(src1, src2, dst, len); }
Status tavsXor_8u_I_body(const Tav8u* src, Tav8u* srcDst, int len)
{ return binary<Op::Xor>(src, srcDst, srcDst, len); }
Status tavsXor_16u_body(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len)
{ return binary<Op::Xor>(src1, src2, dst, len); }
Status tavsXor_16u_I_body(const Tav16u* src, Tav16u* srcDst, int len)
{ return binary<Op::Xor>(src, srcDst, srcDst, len); }
Status tavsXor_32u_body(const Tav32u* src1, const Tav32u* src2, Tav32u* dst, int len)
{ return binary<Op::Xor>(src1, src2, dst, len); }
Status tavsXor_32u_I_body(const Tav32u* src, Tav32u* srcDst, int len)
{ return binary<Op::Xor>(src, srcDst, srcDst, len); }

// ---- vector with a constant ---------------------------------------------------
Status tavsAndC_8u_body(const Tav8u* src, Tav8u value, Tav8u* dst, int len)
{ return constant<Op::And>(src, value, dst, len); }
Status tavsAndC_8u_I_body(Tav8u value, Tav8u* srcDst, int len)
{ return constant<Op::And, Tav8u>(srcDst, value, srcDst, len); }
Status tavsAndC_16u_body(const Tav16u* src, Tav16u value, Tav16u* dst, int len)
{ return constant<Op::And>(src, value, dst, len); }
Status tavsAndC_16u_I_body(Tav16u value, Tav16u* srcDst, int len)
{ return constant<Op::And, Tav16u>(srcDst, value, srcDst, len); }
Status tavsAndC_32u_body(const Tav32u* src, Tav32u value, Tav32u* dst, int len)
{ return constant<Op::And>(src, value, dst, len); }
Status tavsAndC_32u_I_body(Tav32u value, Tav32u* srcDst, int len)
{ return constant<Op::And, Tav32u>(srcDst, value, srcDst, len); }

Status tavsOrC_8u_body(const Tav8u* src, Tav8u value, Tav8u* dst, int len)
{ return constant<Op::Or>(src, value, dst, len); }
Status tavsOrC_8u_I_body(Tav8u value, Tav8u* srcDst, int len)
{ return constant<Op::Or, Tav8u>(srcDst, value, srcDst, len); }
Status tavsOrC_16u_body(const Tav16u* src, Tav16u value, Tav16u* dst, int len)
{ return constant<Op::Or>(src, value, dst, len); }
Status tavsOrC_16u_I_body(Tav16u value, Tav16u* srcDst, int len)
{ return constant<Op::Or, Tav16u>(srcDst, value, srcDst, len); }
Status tavsOrC_32u_body(const Tav32u* src, Tav32u value, Tav32u* dst, int len)
{ return constant<Op::Or>(src, value, dst, len); }
Status tavsOrC_32u_I_body(Tav32u value, Tav32u* srcDst, int len)
{ return constant<Op::Or, Tav32u>(srcDst, value, srcDst, len); }

Status tavsXorC_8u_body(const Tav8u* src, Tav8u value, Tav8u* dst, int len)
{ return constant<Op::Xor>(src, value, dst, len); }
Status tavsXorC_8u_I_body(Tav8u value, Tav8u* srcDst, int len)
{ return constant<Op::Xor, Tav8u>(srcDst, value, srcDst, len); }
Status tavsXorC_16u_body(const Tav16u* src, Tav16u value, Tav16u* dst, int len)
{ return constant<Op::Xor>(src, value, dst, len); }
Status tavsXorC_16u_I_body(Tav16u value, Tav16u* srcDst, int len)
{ return constant<Op::Xor, Tav16u>(srcDst, value, srcDst, len); }
Status tavsXorC_32u_body(const Tav32u* src, Tav32u value, Tav32u* dst, int len)
{ return constant<Op::Xor>(src, value, dst, len); }
Status tavsXorC_32u_I_body(Tav32u value, Tav32u* srcDst, int len)
{ return constant<Op::Xor, Tav32u>(srcDst, value, srcDst, len); }

// ---- not: exclusive or with all ones --------------------------------------------
Status tavsNot_8u_body(const Tav8u* src, Tav8u* dst, int len) { return tavsXorC_8u_body(src, 0xFFu, dst, len); }
Status tavsNot_8u_I_body(Tav8u* srcDst, int len) { return tavsXorC_8u_I_body(0xFFu, srcDst, len); }
Status tavsNot_16u_body(const Tav16u* src, Tav16u* dst, int len) { return tavsXorC_16u_body(src, 0xFFFFu, dst, len); }
Status tavsNot_16u_I_body(Tav16u* srcDst, int len) { return tavsXorC_16u_I_body(0xFFFFu, srcDst, len); }
Status tavsNot_32u_body(const Tav32u* src, Tav32u* dst, int len)
{ return tavsXorC_32u_body(src, 0xFFFFFFFFu, dst, len); }
Status tavsNot_32u_I_body(Tav32u* srcDst, int len) { return tavsXorC_32u_I_body(0xFFFFFFFFu, srcDst, len); }

} // extern "C"
