// tavsLShiftC_* and tavsRShiftC_* by a constant count. The count decides the
// path before anything else is tested: 0 is the copy of the width; at or
// above the width, the zero fill (left shifts and unsigned right shifts) or
// the sign fill (signed right shifts, after the usual checks); a negative
// count is ErrShift after the pointer and length checks.
#include "internal/body.h"

#include <type_traits>

#include "internal/check.h"
#include "internal/lane_loop.h"
#include "internal/movers.h"

namespace {

using tavs::any_null;
using tavs::lanes::ld;
using tavs::lanes::ld128;
using tavs::lanes::st;
using tavs::lanes::st128;

enum class Dir { Left, RightLogical, RightArith };

template <class T> constexpr int kWidth = int(sizeof(T) * 8);

// One element, 0 < s < width. Left shifts run on the unsigned type so the
// dropped top bits are defined; signed right shifts are arithmetic.
template <Dir D, class T> inline T shift_elem(T x, int s)
{
    using U = std::make_unsigned_t<T>;
    if constexpr (D == Dir::Left) return T(U(uint32_t(U(x)) << s));
    else if constexpr (D == Dir::RightLogical) return T(U(x) >> s);
    else return T(x >> s);
}

// Sixteen bytes. Bytes shift as 16-bit lanes with the bits that cross from
// the neighbouring byte masked off.
template <Dir D, class T> inline __m128i shift_block(__m128i x, __m128i cnt, __m128i byteMask)
{
    if constexpr (sizeof(T) == 1) {
        if constexpr (D == Dir::Left) return _mm_and_si128(_mm_sll_epi16(x, cnt), byteMask);
        else return _mm_and_si128(_mm_srl_epi16(x, cnt), byteMask);
    } else if constexpr (sizeof(T) == 2) {
        if constexpr (D == Dir::Left) return _mm_sll_epi16(x, cnt);
        else if constexpr (D == Dir::RightLogical) return _mm_srl_epi16(x, cnt);
        else return _mm_sra_epi16(x, cnt);
    } else {
        static_assert(D != Dir::RightLogical, "no 32-bit logical right shift is exported");
        if constexpr (D == Dir::Left) return _mm_sll_epi32(x, cnt);
        else return _mm_sra_epi32(x, cnt);
    }
}

template <Dir D, class T> void run(const T* src, T* dst, int len, int s)
{
    const size_t n = size_t(len);
    const __m128i cnt = _mm_cvtsi32_si128(s);
    const __m128i byteMask = _mm_set1_epi8(char(D == Dir::Left ? (0xFFu << s) & 0xFFu : 0xFFu >> s));
    tavs::lanes::drive(
        dst, n, tavs::lanes::block_safe(src, dst, n), [=](size_t i) { st(dst, i, shift_elem<D>(ld(src, i), s)); },
        [=](size_t i) {
            const size_t b = i * sizeof(T);
            st128(dst, b, shift_block<D, T>(ld128(src, b), cnt, byteMask));
        });
}

// Left shifts and unsigned right shifts: a count at or above the width
// zero-fills dst once src is known to be there.
template <Dir D, class T> Status shift_fill_zero(const T* src, int shift, T* dst, int len)
{
    if (shift == 0) return tavs::copy_elems(src, dst, len);
    if (shift >= kWidth<T>) {
        if (src == nullptr) return ErrNullPtr;
        return tavs::zero_fill(dst, len);
    }
    if (any_null(src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    if (shift < 0) return ErrShift;
    run<D>(src, dst, len, shift);
    return StatusOk;
}

// Signed right shifts: a count at or above the width leaves the sign in
// every bit, the same as a shift by width - 1.
template <class T> Status shift_right_signed(const T* src, int shift, T* dst, int len)
{
    if (shift == 0) return tavs::copy_elems(src, dst, len);
    if (any_null(src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    if (shift < 0) return ErrShift;
    run<Dir::RightArith>(src, dst, len, shift < kWidth<T> ? shift : kWidth<T> - 1);
    return StatusOk;
}

} // namespace

extern "C" {

// ---- left --------------------------------------------------------------------------
Status tavsLShiftC_8u_body(const Tav8u* src, int shift, Tav8u* dst, int len)
{ return shift_fill_zero<Dir::Left>(src, shift, dst, len); }
Status tavsLShiftC_8u_I_body(int shift, Tav8u* srcDst, int len)
{ return shift_fill_zero<Dir::Left, Tav8u>(srcDst, shift, srcDst, len); }
Status tavsLShiftC_16u_body(const Tav16u* src, int shift, Tav16u* dst, int len)
{ return shift_fill_zero<Dir::Left>(src, shift, dst, len); }
Status tavsLShiftC_16u_I_body(int shift, Tav16u* srcDst, int len)
{ return shift_fill_zero<Dir::Left, Tav16u>(srcDst, shift, srcDst, len); }
// The bits of a signed left shift are those of the unsigned one.
Status tavsLShiftC_16s_body(const Tav16s* src, int shift, Tav16s* dst, int len)
{ return tavsLShiftC_16u_body(reinterpret_cast<const Tav16u*>(src), shift, reinterpret_cast<Tav16u*>(dst), len); }
Status tavsLShiftC_16s_I_body(int shift, Tav16s* srcDst, int len)
{ return tavsLShiftC_16u_I_body(shift, reinterpret_cast<Tav16u*>(srcDst), len); }
Status tavsLShiftC_32s_body(const Tav32s* src, int shift, Tav32s* dst, int len)
{ return shift_fill_zero<Dir::Left>(src, shift, dst, len); }
Status tavsLShiftC_32s_I_body(int shift, Tav32s* srcDst, int len)
{ return shift_fill_zero<Dir::Left, Tav32s>(srcDst, shift, srcDst, len); }

// ---- right ---------------------------------------------------------------------------
Status tavsRShiftC_8u_body(const Tav8u* src, int shift, Tav8u* dst, int len)
{ return shift_fill_zero<Dir::RightLogical>(src, shift, dst, len); }
Status tavsRShiftC_8u_I_body(int shift, Tav8u* srcDst, int len)
{ return shift_fill_zero<Dir::RightLogical, Tav8u>(srcDst, shift, srcDst, len); }
Status tavsRShiftC_16u_body(const Tav16u* src, int shift, Tav16u* dst, int len)
{ return shift_fill_zero<Dir::RightLogical>(src, shift, dst, len); }
Status tavsRShiftC_16u_I_body(int shift, Tav16u* srcDst, int len)
{ return shift_fill_zero<Dir::RightLogical, Tav16u>(srcDst, shift, srcDst, len); }
Status tavsRShiftC_16s_body(const Tav16s* src, int shift, Tav16s* dst, int len)
{ return shift_right_signed(src, shift, dst, len); }
Status tavsRShiftC_16s_I_body(int shift, Tav16s* srcDst, int len)
{ return shift_right_signed<Tav16s>(srcDst, shift, srcDst, len); }
Status tavsRShiftC_32s_body(const Tav32s* src, int shift, Tav32s* dst, int len)
{ return shift_right_signed(src, shift, dst, len); }
Status tavsRShiftC_32s_I_body(int shift, Tav32s* srcDst, int len)
{ return shift_right_signed<Tav32s>(srcDst, shift, srcDst, len); }

} // extern "C"
