// The full spectrum from a packed one: tavsConjPack_*, tavsConjPerm_*,
// tavsConjCcs_*. dst[k] takes X[k] and dst[len - k] its conjugate. The
// in-place forms hold the packed reals at the front of the complex buffer,
// so the pairs go from the highest index down and X[0] is written last:
// nothing is overwritten before it is read. The 16sc negation wraps
// (-(-32768) stays -32768).
#include "internal/body.h"
#include "internal/check.h"

#include <cstdint>

namespace {

enum class Packed { Pack, Perm, CCS };

template <class T> inline T negate(T x) { return -x; }
template <> inline Tav16s negate<Tav16s>(Tav16s x) { return Tav16s(uint16_t(0u - uint16_t(x))); }

// src and dst may be the same memory (the _I forms).
template <Packed L, class T, class C> void expand(const T* src, C* dst, int len)
{
    const int h = len / 2;
    const bool even = (len & 1) == 0;
    const T re0 = src[0];
    const T im0 = L == Packed::CCS ? src[1] : T(0);
    if (even && len >= 2) {
        const T ny = L == Packed::Pack ? src[len - 1] : L == Packed::Perm ? src[1] : src[len];
        const T nyi = L == Packed::CCS ? src[len + 1] : T(0);
        dst[h].re = ny;
        dst[h].im = nyi;
    }
    // Pair k sits at src[2k - 1] (Pack, and Perm of odd len) or src[2k].
    const int first = (L == Packed::Pack || (L == Packed::Perm && !even)) ? 1 : 0;
    for (int k = even ? h - 1 : h; k >= 1; --k) {
        const T a = src[2 * k - first], b = src[2 * k + 1 - first];
        dst[len - k].re = a;
        dst[len - k].im = negate(b);
        dst[k].re = a;
        dst[k].im = b;
    }
    dst[0].re = re0;
    dst[0].im = im0;
}

template <Packed L, class T, class C> Status conj_i(C* srcDst, int len)
{
    if (const Status st = tavs::check_ptrs_len(len, srcDst); st != StatusOk) return st;
    expand<L>(reinterpret_cast<const T*>(srcDst), srcDst, len);
    return StatusOk;
}

template <Packed L, class T, class C> Status conj(const T* src, C* dst, int len)
{
    if (static_cast<const void*>(src) == static_cast<const void*>(dst)) return conj_i<L, T>(dst, len);
    if (const Status st = tavs::check_ptrs_len(len, src, dst); st != StatusOk) return st;
    expand<L>(src, dst, len);
    return StatusOk;
}

} // namespace

#define TAVS_CONJ(STEM, L, T, C, TOK)                                                                          \
    extern "C" Status tavs##STEM##_##TOK##_body(const T* src, C* dst, int len) { return conj<L>(src, dst, len); } \
    extern "C" Status tavs##STEM##_##TOK##_I_body(C* srcDst, int len) { return conj_i<L, T>(srcDst, len); }

TAVS_CONJ(ConjPack, Packed::Pack, Tav16s, Tav16sc, 16sc)
TAVS_CONJ(ConjPack, Packed::Pack, Tav32f, Tav32fc, 32fc)
TAVS_CONJ(ConjPack, Packed::Pack, Tav64f, Tav64fc, 64fc)
TAVS_CONJ(ConjPerm, Packed::Perm, Tav16s, Tav16sc, 16sc)
TAVS_CONJ(ConjPerm, Packed::Perm, Tav32f, Tav32fc, 32fc)
TAVS_CONJ(ConjPerm, Packed::Perm, Tav64f, Tav64fc, 64fc)
TAVS_CONJ(ConjCcs, Packed::CCS, Tav16s, Tav16sc, 16sc)
TAVS_CONJ(ConjCcs, Packed::CCS, Tav32f, Tav32fc, 32fc)
TAVS_CONJ(ConjCcs, Packed::CCS, Tav64f, Tav64fc, 64fc)
