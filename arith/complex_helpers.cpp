// Moves between complex vectors and their parts: conjugation (plain and
// reversed), the real or imaginary part alone, both parts, and joining two
// real vectors into one complex vector.
#include "internal/body.h"

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "internal/check.h"
#include "internal/lane_loop.h"

namespace {

using tavs::any_null;
using tavs::part_t;
using tavs::lanes::ld;
using tavs::lanes::ld128;
using tavs::lanes::st;
using tavs::lanes::st128;

// 16sc negates with saturation, so -32768 becomes 32767. The float forms
// flip the sign bit alone: 0.0 becomes -0.0 and a NaN keeps its payload.
inline Tav16s conj_part(Tav16s im) { return im == -32768 ? Tav16s(32767) : Tav16s(-im); }
inline Tav32f conj_part(Tav32f im)
{
    uint32_t b;
    std::memcpy(&b, &im, 4);
    b ^= 0x80000000u;
    std::memcpy(&im, &b, 4);
    return im;
}
inline Tav64f conj_part(Tav64f im)
{
    uint64_t b;
    std::memcpy(&b, &im, 8);
    b ^= 0x8000000000000000ull;
    std::memcpy(&im, &b, 8);
    return im;
}
template <class C> inline C conj(C x) { return C{x.re, conj_part(x.im)}; }

// Sixteen bytes of conjugates. Parts lie real first, so the imaginary part
// is the upper half of each element.
template <class C> inline __m128i conj_block(__m128i x)
{
    if constexpr (std::is_same_v<C, Tav16sc>) {
        const __m128i imMask = _mm_set1_epi32(int(0xFFFF0000u));
        const __m128i neg = _mm_subs_epi16(_mm_setzero_si128(), x);
        return _mm_or_si128(_mm_andnot_si128(imMask, x), _mm_and_si128(imMask, neg));
    } else if constexpr (std::is_same_v<C, Tav32fc>) {
        return _mm_xor_si128(x, _mm_set1_epi64x(INT64_MIN));
    } else {
        return _mm_xor_si128(x, _mm_set_epi64x(INT64_MIN, 0));
    }
}

template <class C> Status conj_vec(const C* src, C* dst, int len)
{
    if (any_null(src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    const size_t n = size_t(len);
    tavs::lanes::drive(
        dst, n, tavs::lanes::block_safe(src, dst, n), [=](size_t i) { st(dst, i, conj(ld(src, i))); },
        [=](size_t i) {
            const size_t b = i * sizeof(C);
            st128(dst, b, conj_block<C>(ld128(src, b)));
        });
    return StatusOk;
}

// Reads src upward and writes dst downward from its end; the vectors must
// not overlap.
template <class C> Status conj_flip(const C* src, C* dst, int len)
{
    if (any_null(src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    const size_t n = size_t(len);
    for (size_t i = 0; i < n; ++i) st(dst, n - 1 - i, conj(ld(src, i)));
    return StatusOk;
}

// One part to a real vector, by a strided read. Im selects the imaginary part.
template <bool Im, class C> Status part(const C* src, part_t<C>* dst, int len)
{
    if (any_null(src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    for (size_t i = 0, n = size_t(len); i < n; ++i) {
        const C x = ld(src, i);
        st(dst, i, Im ? x.im : x.re);
    }
    return StatusOk;
}

template <class C> Status split(const C* src, part_t<C>* dstRe, part_t<C>* dstIm, int len)
{
    if (any_null(src, dstRe, dstIm)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    for (size_t i = 0, n = size_t(len); i < n; ++i) {
        const C x = ld(src, i);
        st(dstRe, i, x.re);
        st(dstIm, i, x.im);
    }
    return StatusOk;
}

// A missing part stores zero. With both parts missing there is nothing to
// join, and that is a null-pointer error like any other missing vector.
template <class C> Status join(const part_t<C>* srcRe, const part_t<C>* srcIm, C* dst, int len)
{
    using P = part_t<C>;
    if (dst == nullptr || (srcRe == nullptr && srcIm == nullptr)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    for (size_t i = 0, n = size_t(len); i < n; ++i) {
        const P re = srcRe ? ld(srcRe, i) : P(0);
        const P im = srcIm ? ld(srcIm, i) : P(0);
        st(dst, i, C{re, im});
    }
    return StatusOk;
}

} // namespace

extern "C" {

Status tavsConj_16sc_body(const Tav16sc* src, Tav16sc* dst, int len) { return conj_vec(src, dst, len); }
Status tavsConj_16sc_I_body(Tav16sc* srcDst, int len) { return conj_vec<Tav16sc>(srcDst, srcDst, len); }
Status tavsConj_32fc_body(const Tav32fc* src, Tav32fc* dst, int len) { return conj_vec(src, dst, len); }
Status tavsConj_32fc_I_body(Tav32fc* srcDst, int len) { return conj_vec<Tav32fc>(srcDst, srcDst, len); }
Status tavsConj_64fc_body(const Tav64fc* src, Tav64fc* dst, int len) { return conj_vec(src, dst, len); }
Status tavsConj_64fc_I_body(Tav64fc* srcDst, int len) { return conj_vec<Tav64fc>(srcDst, srcDst, len); }

Status tavsConjFlip_16sc_body(const Tav16sc* src, Tav16sc* dst, int len) { return conj_flip(src, dst, len); }
Status tavsConjFlip_32fc_body(const Tav32fc* src, Tav32fc* dst, int len) { return conj_flip(src, dst, len); }
Status tavsConjFlip_64fc_body(const Tav64fc* src, Tav64fc* dst, int len) { return conj_flip(src, dst, len); }

Status tavsReal_16sc_body(const Tav16sc* src, Tav16s* dstRe, int len) { return part<false>(src, dstRe, len); }
Status tavsReal_32fc_body(const Tav32fc* src, Tav32f* dstRe, int len) { return part<false>(src, dstRe, len); }
Status tavsReal_64fc_body(const Tav64fc* src, Tav64f* dstRe, int len) { return part<false>(src, dstRe, len); }
Status tavsImag_16sc_body(const Tav16sc* src, Tav16s* dstIm, int len) { return part<true>(src, dstIm, len); }
Status tavsImag_32fc_body(const Tav32fc* src, Tav32f* dstIm, int len) { return part<true>(src, dstIm, len); }
Status tavsImag_64fc_body(const Tav64fc* src, Tav64f* dstIm, int len) { return part<true>(src, dstIm, len); }

Status tavsCplxToReal_16sc_body(const Tav16sc* src, Tav16s* dstRe, Tav16s* dstIm, int len)
{ return split(src, dstRe, dstIm, len); }
Status tavsCplxToReal_32fc_body(const Tav32fc* src, Tav32f* dstRe, Tav32f* dstIm, int len)
{ return split(src, dstRe, dstIm, len); }
Status tavsCplxToReal_64fc_body(const Tav64fc* src, Tav64f* dstRe, Tav64f* dstIm, int len)
{ return split(src, dstRe, dstIm, len); }

Status tavsRealToCplx_16s_body(const Tav16s* srcRe, const Tav16s* srcIm, Tav16sc* dst, int len)
{ return join<Tav16sc>(srcRe, srcIm, dst, len); }
Status tavsRealToCplx_32f_body(const Tav32f* srcRe, const Tav32f* srcIm, Tav32fc* dst, int len)
{ return join<Tav32fc>(srcRe, srcIm, dst, len); }
Status tavsRealToCplx_64f_body(const Tav64f* srcRe, const Tav64f* srcIm, Tav64fc* dst, int len)
{ return join<Tav64fc>(srcRe, srcIm, dst, len); }

} // extern "C"
