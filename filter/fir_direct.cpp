#include "internal/body.h"
#include "internal/fir_convert.h"
#include "internal/fir_int.h"

// The stateless _Direct forms over the caller's taps (natural order) and a
// ring of 2*tapsLen values with its index. Floating forms round each product
// to the taps' precision and sum in 64f over eight accumulators (four pairs,
// as the vector form would), narrowing once. The 32s/32sc forms reduce the
// taps to 16 bits and a power of two as their records do; the 16s form runs
// a temporary 32s_16s record with Q15 taps.
using tavs::any_null;
using namespace tavs::fir;

namespace {

template <class T> struct Parts {
    using F = T;
    static constexpr bool cx = false;
};
template <> struct Parts<Tav32fc> {
    using F = Tav32f;
    static constexpr bool cx = true;
};
template <> struct Parts<Tav64fc> {
    using F = Tav64f;
    static constexpr bool cx = true;
};

struct Acc8 {
    double a[8] = {0, 0, 0, 0, 0, 0, 0, 0};
    double fold() const { return ((a[0] + a[2]) + (a[4] + a[6])) + ((a[1] + a[3]) + (a[5] + a[7])); }
};

// One output of the ring window w (oldest first) against the unreversed taps.
template <class Tp, class D> Tp direct_sum(const Tp* taps, int n, const D* w)
{
    using F = typename Parts<Tp>::F;
    Acc8 re, im;
    auto add = [&](int i, int k) {
        const Tp h = taps[n - 1 - i];
        const Tp x = widen<Tp>(w[i]);
        if constexpr (Parts<Tp>::cx) {
            const F pr = h.re * x.re - h.im * x.im;
            const F pi = h.re * x.im + h.im * x.re;
            re.a[k] += pr;
            im.a[k] += pi;
        } else {
            const F p = h * x;
            re.a[k] += p;
        }
    };
    int i = 0;
    for (; i + 8 <= n; i += 8)
        for (int k = 0; k < 8; ++k) add(i + k, k);
    for (int k = 0; i < n; ++i, ++k) add(i, k);
    if constexpr (Parts<Tp>::cx) {
        Tp r;
        r.re = F(re.fold());
        r.im = F(im.fold());
        return r;
    } else {
        return F(re.fold());
    }
}

template <class D> inline void ring_put(D* dly, int n, int& idx, D x)
{
    dly[idx] = x;
    dly[idx + n] = x;
    idx = idx + 1 == n ? 0 : idx + 1;
}

// Checks of the block form: src, dst, len, taps, tapsLen, dly, dlyIndex.
template <class Tp, class D>
Status direct_block(const D* src, D* dst, int len, const Tp* taps, int n, D* dly, int* dlyIndex, int sf)
{
    if (any_null(src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    if (taps == nullptr) return ErrNullPtr;
    if (n < 1) return ErrFilterLen;
    if (any_null(dly, dlyIndex)) return ErrNullPtr;
    int idx = *dlyIndex;
    for (int j = 0; j < len; ++j) {
        ring_put(dly, n, idx, src[j]);
        const Tp y = direct_sum(taps, n, dly + idx);
        narrow_block(&y, dst + j, 1, sf);
    }
    *dlyIndex = idx;
    return StatusOk;
}

// Checks of the one-sample form: output, taps, tapsLen, dly, dlyIndex.
template <class Tp, class D> Status direct_one(D x, D* y, const Tp* taps, int n, D* dly, int* dlyIndex, int sf)
{
    if (y == nullptr || taps == nullptr) return ErrNullPtr;
    if (n < 1) return ErrFilterLen;
    if (any_null(dly, dlyIndex)) return ErrNullPtr;
    int idx = *dlyIndex;
    ring_put(dly, n, idx, x);
    const Tp r = direct_sum(taps, n, dly + idx);
    narrow_block(&r, y, 1, sf);
    *dlyIndex = idx;
    return StatusOk;
}

// 32s/32sc taps with their factor: 16-bit values and a shift, as the record.
template <class E> struct IntTaps {
    const void* taps;
    int n, sh, tf;
    Tav16s part(int i, int q) const
    {
        constexpr int k = IsCx<E>::value ? 2 : 1;
        return tap16_of(static_cast<const Tav32s*>(taps)[k * i + q], sh);
    }
};
template <class E> IntTaps<E> int_taps(const void* taps, int n, int f)
{
    constexpr int k = IsCx<E>::value ? 2 : 1;
    const int sh = shift_for_32s(static_cast<const Tav32s*>(taps), k * n);
    return {taps, n, sh, wrap_add(f, sh)};
}
inline Tav16s int_out(const IntTaps<Tav16s>& t, const Tav16s* w, int sf)
{
    uint32_t s = 0;
    for (int i = 0; i < t.n; ++i) s += uint32_t(int32_t(t.part(t.n - 1 - i, 0)) * int32_t(w[i]));
    return apply_shift(s, out_shift(t.tf, sf));
}
inline Tav16sc int_out(const IntTaps<Tav16sc>& t, const Tav16sc* w, int sf)
{
    uint32_t re = 0, im = 0;
    for (int i = 0; i < t.n; ++i) {
        const int32_t a = t.part(t.n - 1 - i, 0), b = t.part(t.n - 1 - i, 1), c = w[i].re, d = w[i].im;
        re += uint32_t(a * c) - uint32_t(b * d);
        im += uint32_t(a * d) + uint32_t(b * c);
    }
    const int sh = out_shift(t.tf, sf);
    return {apply_shift(re, sh), apply_shift(im, sh)};
}

template <class E, class T32>
Status int_direct_block(const E* src, E* dst, int len, const T32* taps, int n, int f, E* dly, int* dlyIndex, int sf)
{
    if (any_null(src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    if (taps == nullptr) return ErrNullPtr;
    if (n < 1) return ErrFilterLen;
    if (any_null(dly, dlyIndex)) return ErrNullPtr;
    const IntTaps<E> t = int_taps<E>(taps, n, f);
    int idx = *dlyIndex;
    for (int j = 0; j < len; ++j) {
        ring_put(dly, n, idx, src[j]);
        dst[j] = int_out(t, dly + idx, sf);
    }
    *dlyIndex = idx;
    return StatusOk;
}
template <class E, class T32>
Status int_direct_one(E x, E* y, const T32* taps, int n, int f, E* dly, int* dlyIndex, int sf)
{
    if (y == nullptr || taps == nullptr) return ErrNullPtr;
    if (n < 1) return ErrFilterLen;
    if (any_null(dly, dlyIndex)) return ErrNullPtr;
    const IntTaps<E> t = int_taps<E>(taps, n, f);
    int idx = *dlyIndex;
    ring_put(dly, n, idx, x);
    *y = int_out(t, dly + idx, sf);
    *dlyIndex = idx;
    return StatusOk;
}

// The 16s form: a temporary "FI09" record of the Q15 taps (factor -15), its
// delay taken newest first from dly + *dlyIndex; afterwards the delay goes
// back newest first to dly[0 ..) and *dlyIndex becomes 0.
template <class Run> Status q15_run(const Tav16s* taps, int n, Tav16s* dly, int* dlyIndex, Run run)
{
    const int64_t bytes = int_state_bytes(ICls::I32s_16s, n);
    if (bytes > INT_MAX) return ErrFilterLen;
    Tav8u* block = static_cast<Tav8u*>(tavs::alloc_bytes(int(bytes)));
    if (block == nullptr) return ErrMemAlloc;
    IntState* s = lay_int<Tav16s>(ICls::I32s_16s, n, block);
    Tav16s* rt = itaps<Tav16s>(s);
    for (int i = 0; i < n; ++i) rt[i] = taps[n - 1 - i];
    sync_taps2<Tav16s>(s);
    s->tapsFactor = -15;
    int_store_dly<Tav16s>(s, dly + *dlyIndex);
    s->tag = tag::I32s_16s;
    run(s);
    const Tav16s* ring = idly<Tav16s>(s) + s->dlyIndex;
    for (int i = 0; i < n; ++i) dly[i] = ring[n - 1 - i];
    *dlyIndex = 0;
    tavsFree_body(block);
    return StatusOk;
}

Status q15_block(const Tav16s* src, Tav16s* dst, int len, const Tav16s* taps, int n, Tav16s* dly, int* dlyIndex, int sf)
{
    if (any_null(src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    if (taps == nullptr) return ErrNullPtr;
    if (n < 1) return ErrFilterLen;
    if (any_null(dly, dlyIndex)) return ErrNullPtr;
    if (*dlyIndex < 0 || *dlyIndex >= n) return ErrDelayIndex;
    return q15_run(taps, n, dly, dlyIndex, [&](IntState* s) { int_block<Tav16s>(s, src, dst, len, sf, src == dst); });
}
Status q15_one(Tav16s x, Tav16s* y, const Tav16s* taps, int n, Tav16s* dly, int* dlyIndex, int sf)
{
    if (y == nullptr || taps == nullptr) return ErrNullPtr;
    if (n < 1) return ErrFilterLen;
    if (any_null(dly, dlyIndex)) return ErrNullPtr;
    if (*dlyIndex < 0 || *dlyIndex >= n) return ErrDelayIndex;
    return q15_run(taps, n, dly, dlyIndex, [&](IntState* s) { *y = int_one<Tav16s>(s, x, sf); });
}

} // namespace

// Four names per form: block, block in place, one sample, one sample in place.
#define TAVS_FIR_DIRECT(PRE, SUB, SUF, ISUF, Tp, D, SFP, SFA)                                                           \
    extern "C" Status tavsFIR##PRE##_Direct##SUB##SUF##_body(const D* pSrc, D* pDst, int len, const Tp* pTaps,        \
                                                             int tapsLen, D* pDlyLine, int* pDlyLineIndex SFP)         \
    {                                                                                                                  \
        return direct_block<Tp, D>(pSrc, pDst, len, pTaps, tapsLen, pDlyLine, pDlyLineIndex, SFA);                     \
    }                                                                                                                  \
    extern "C" Status tavsFIR##PRE##_Direct##SUB##ISUF##_body(D* pSrcDst, int len, const Tp* pTaps, int tapsLen,      \
                                                              D* pDlyLine, int* pDlyLineIndex SFP)                     \
    {                                                                                                                  \
        return direct_block<Tp, D>(pSrcDst, pSrcDst, len, pTaps, tapsLen, pDlyLine, pDlyLineIndex, SFA);               \
    }                                                                                                                  \
    extern "C" Status tavsFIROne##PRE##_Direct##SUB##SUF##_body(D src, D* pDstVal, const Tp* pTaps, int tapsLen,      \
                                                                D* pDlyLine, int* pDlyLineIndex SFP)                   \
    {                                                                                                                  \
        return direct_one<Tp, D>(src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, SFA);                          \
    }                                                                                                                  \
    extern "C" Status tavsFIROne##PRE##_Direct##SUB##ISUF##_body(D* pSrcDstVal, const Tp* pTaps, int tapsLen,         \
                                                                 D* pDlyLine, int* pDlyLineIndex SFP)                  \
    {                                                                                                                  \
        if (pSrcDstVal == nullptr) return ErrNullPtr;                                                                  \
        return direct_one<Tp, D>(*pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, SFA);               \
    }

#define TAVS_NOSF
#define TAVS_SF , int scaleFactor
TAVS_FIR_DIRECT(, _32f, , _I, Tav32f, Tav32f, TAVS_NOSF, 0)
TAVS_FIR_DIRECT(, _32fc, , _I, Tav32fc, Tav32fc, TAVS_NOSF, 0)
TAVS_FIR_DIRECT(, _64f, , _I, Tav64f, Tav64f, TAVS_NOSF, 0)
TAVS_FIR_DIRECT(, _64fc, , _I, Tav64fc, Tav64fc, TAVS_NOSF, 0)
TAVS_FIR_DIRECT(32f, _16s, _Sfs, _ISfs, Tav32f, Tav16s, TAVS_SF, scaleFactor)
TAVS_FIR_DIRECT(32fc, _16sc, _Sfs, _ISfs, Tav32fc, Tav16sc, TAVS_SF, scaleFactor)
TAVS_FIR_DIRECT(64f, _16s, _Sfs, _ISfs, Tav64f, Tav16s, TAVS_SF, scaleFactor)
TAVS_FIR_DIRECT(64f, _32f, , _I, Tav64f, Tav32f, TAVS_NOSF, 0)
TAVS_FIR_DIRECT(64f, _32s, _Sfs, _ISfs, Tav64f, Tav32s, TAVS_SF, scaleFactor)
TAVS_FIR_DIRECT(64fc, _16sc, _Sfs, _ISfs, Tav64fc, Tav16sc, TAVS_SF, scaleFactor)
TAVS_FIR_DIRECT(64fc, _32fc, , _I, Tav64fc, Tav32fc, TAVS_NOSF, 0)
TAVS_FIR_DIRECT(64fc, _32sc, _Sfs, _ISfs, Tav64fc, Tav32sc, TAVS_SF, scaleFactor)

// 32s and 32sc taps with their factor.
#define TAVS_FIR_DIRECT_INT(PRE, SUB, T32, E)                                                                          \
    extern "C" Status tavsFIR##PRE##_Direct##SUB##_Sfs_body(const E* pSrc, E* pDst, int len, const T32* pTaps,        \
                                                            int tapsLen, int tapsFactor, E* pDlyLine,                 \
                                                            int* pDlyLineIndex, int scaleFactor)                      \
    {                                                                                                                  \
        return int_direct_block<E>(pSrc, pDst, len, pTaps, tapsLen, tapsFactor, pDlyLine, pDlyLineIndex, scaleFactor); \
    }                                                                                                                  \
    extern "C" Status tavsFIR##PRE##_Direct##SUB##_ISfs_body(E* pSrcDst, int len, const T32* pTaps, int tapsLen,      \
                                                             int tapsFactor, E* pDlyLine, int* pDlyLineIndex,         \
                                                             int scaleFactor)                                         \
    {                                                                                                                  \
        return int_direct_block<E>(pSrcDst, pSrcDst, len, pTaps, tapsLen, tapsFactor, pDlyLine, pDlyLineIndex,        \
                                   scaleFactor);                                                                      \
    }                                                                                                                  \
    extern "C" Status tavsFIROne##PRE##_Direct##SUB##_Sfs_body(E src, E* pDstVal, const T32* pTaps, int tapsLen,      \
                                                               int tapsFactor, E* pDlyLine, int* pDlyLineIndex,       \
                                                               int scaleFactor)                                       \
    {                                                                                                                  \
        return int_direct_one<E>(src, pDstVal, pTaps, tapsLen, tapsFactor, pDlyLine, pDlyLineIndex, scaleFactor);     \
    }                                                                                                                  \
    extern "C" Status tavsFIROne##PRE##_Direct##SUB##_ISfs_body(E* pSrcDstVal, const T32* pTaps, int tapsLen,         \
                                                                int tapsFactor, E* pDlyLine, int* pDlyLineIndex,      \
                                                                int scaleFactor)                                      \
    {                                                                                                                  \
        if (pSrcDstVal == nullptr) return ErrNullPtr;                                                                  \
        return int_direct_one<E>(*pSrcDstVal, pSrcDstVal, pTaps, tapsLen, tapsFactor, pDlyLine, pDlyLineIndex,        \
                                 scaleFactor);                                                                        \
    }
TAVS_FIR_DIRECT_INT(32s, _16s, Tav32s, Tav16s)
TAVS_FIR_DIRECT_INT(32sc, _16sc, Tav32sc, Tav16sc)

// Q15 taps through a temporary record.
extern "C" Status tavsFIR_Direct_16s_Sfs_body(const Tav16s* pSrc, Tav16s* pDst, int len, const Tav16s* pTaps,
                                              int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor)
{
    return q15_block(pSrc, pDst, len, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}
extern "C" Status tavsFIR_Direct_16s_ISfs_body(Tav16s* pSrcDst, int len, const Tav16s* pTaps, int tapsLen,
                                               Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor)
{
    return q15_block(pSrcDst, pSrcDst, len, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}
extern "C" Status tavsFIROne_Direct_16s_Sfs_body(Tav16s src, Tav16s* pDstVal, const Tav16s* pTaps, int tapsLen,
                                                 Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor)
{
    return q15_one(src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}
extern "C" Status tavsFIROne_Direct_16s_ISfs_body(Tav16s* pSrcDstVal, const Tav16s* pTaps, int tapsLen,
                                                  Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor)
{
    if (pSrcDstVal == nullptr) return ErrNullPtr;
    return q15_one(*pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}
