#include "internal/body.h"
#include "internal/fir_int.h"

// The 16-bit integer FIR records: "FI29" (16s taps and a power of two),
// "FI09" (32s or 32f taps held as 16s values and a power of two), "FI10"
// (their complex twin) and the stream record "FI31".
using tavs::any_null;
using tavs::alloc_bytes;
namespace tag = tavs::fir::tag;
using namespace tavs::fir;

namespace {

// Init: state, taps, buffer, then tapsLen; fill stores taps and tapsFactor.
template <class E, class TapIn, class Fill>
Status init_int(void** pp, const TapIn* taps, int n, const E* dly, Tav8u* buf, ICls c, int32_t tagv, Fill fill)
{
    if (any_null(pp, taps, buf)) return ErrNullPtr;
    if (n < 1) return ErrFilterLen;
    if (int_state_bytes(c, n) > INT_MAX) return ErrFilterLen;
    IntState* s = lay_int<E>(c, n, buf);
    fill(s);
    if (c != ICls::Stream16s) {
        sync_taps2<E>(s);
        int_store_dly<E>(s, dly);
    }
    s->tag = tagv;
    *pp = s;
    return StatusOk;
}

template <class Init> Status alloc_int(void** pp, const void* taps, int n, ICls c, Init init)
{
    if (pp == nullptr || taps == nullptr) return ErrNullPtr;
    int bytes = 0;
    const Status st = int_state_size(c, n, &bytes);
    if (st != StatusOk) return st;
    Tav8u* block = static_cast<Tav8u*>(alloc_bytes(bytes));
    if (block == nullptr) return ErrMemAlloc;
    void* s = nullptr;
    const Status si = init(&s, block);
    if (si != StatusOk) {
        tavsFree_body(block);
        return si;
    }
    ist_of(s)->isAllocated = 1;
    *pp = s;
    return StatusOk;
}

Status free_int(void* p, int32_t t1, int32_t t2)
{
    if (p == nullptr) return ErrNullPtr;
    IntState* s = ist_of(p);
    if (s->tag != t1 && s->tag != t2) return ErrContextMismatch;
    if (!s->isAllocated) return StatusOk;
    s->tag = 0;
    tavsFree_body(s);
    return StatusOk;
}

// Taps from 16s values and a factor, 32s values and a factor, or 32f values.
auto fill16(const Tav16s* taps, int n, int f)
{
    return [=](IntState* s) { s->tapsFactor = taps_from_16s(taps, n, f, itaps<Tav16s>(s)); };
}
template <class E> auto fill32s(const Tav32s* parts, int n, int f)
{
    constexpr int k = IsCx<E>::value ? 2 : 1;
    return [=](IntState* s) {
        const int sh = shift_for_32s(parts, k * n);
        Tav16s* t = reinterpret_cast<Tav16s*>(s->taps);
        for (int i = 0; i < n; ++i)
            for (int q = 0; q < k; ++q) t[k * i + q] = tap16_of(parts[k * (n - 1 - i) + q], sh);
        s->tapsFactor = wrap_add(f, sh);
    };
}
template <class E> auto fill32f(const Tav32f* parts, int n)
{
    constexpr int k = IsCx<E>::value ? 2 : 1;
    return [=](IntState* s) {
        double g = 1.0;
        const int e = exp_for_32f(parts, k * n, g);
        Tav16s* t = reinterpret_cast<Tav16s*>(s->taps);
        for (int i = 0; i < n; ++i)
            for (int q = 0; q < k; ++q) t[k * i + q] = tap16_of_float(parts[k * (n - 1 - i) + q], g);
        s->tapsFactor = e;
    };
}

template <class Fill> Status set_int(void* p, const void* taps, int32_t tagv, bool cx, Fill fill)
{
    if (taps == nullptr || p == nullptr) return ErrNullPtr;
    IntState* s = ist_of(p);
    if (s->tag != tagv) return ErrContextMismatch;
    fill(s);
    if (cx) sync_taps2<Tav16sc>(s);
    else sync_taps2<Tav16s>(s);
    return StatusOk;
}

// Taps out as 16-bit values (E-sized parts) in caller order.
template <class Out> Status get_parts(const void* p, Out* taps, int32_t t1, int32_t t2, int k, float scale, bool scaled)
{
    const IntState* s = ist_of(p);
    if (s->tag != t1 && s->tag != t2) return ErrContextMismatch;
    const Tav16s* t = static_cast<const Tav16s*>(s->taps);
    const int n = s->tapsLen;
    for (int i = 0; i < n; ++i)
        for (int q = 0; q < k; ++q) {
            const Tav16s v = t[k * (n - 1 - i) + q];
            if (scaled) taps[k * i + q] = Out(float(v) * scale);
            else taps[k * i + q] = Out(v);
        }
    return StatusOk;
}

template <class E> Status get_dly_int(const void* p, E* dly, int32_t tagv)
{
    if (p == nullptr || dly == nullptr) return ErrNullPtr;
    const IntState* s = ist_of(p);
    if (s->tag != tagv) return ErrContextMismatch;
    const E* ring = idly<E>(s) + s->dlyIndex;
    const int n = s->dlyLen;
    for (int i = 0; i < n; ++i) dly[i] = ring[n - 1 - i];
    return StatusOk;
}
template <class E> Status set_dly_int(void* p, const E* dly, int32_t tagv)
{
    if (p == nullptr) return ErrNullPtr;
    IntState* s = ist_of(p);
    if (s->tag != tagv) return ErrContextMismatch;
    int_store_dly<E>(s, dly);
    return StatusOk;
}

// Block call: state, src, dst, len, tag. The stream tag runs without a
// delay line and refuses in-place calls.
template <class E> Status block_int(const E* src, E* dst, int len, void* p, int sf, int32_t tagv, bool inPlace)
{
    if (p == nullptr || src == nullptr || dst == nullptr) return ErrNullPtr;
    if (len < 1) return ErrSize;
    IntState* s = ist_of(p);
    inPlace = inPlace || src == dst;
    if (s->tag == tagv) {
        int_block<E>(s, src, dst, len, sf, inPlace);
        return StatusOk;
    }
    if constexpr (std::is_same_v<E, Tav16s>) {
        if (s->tag == tag::S16s) {
            if (inPlace) return ErrContextMismatch;
            emit_int(itaps<E>(s), s->tapsLen, src, dst, len, ShiftRule{out_shift(s->tapsFactor, sf), s->roundMode});
            return StatusOk;
        }
    }
    return ErrContextMismatch;
}

template <class E> Status one_int(E x, E* y, void* p, int sf, int32_t tagv)
{
    if (p == nullptr || y == nullptr) return ErrNullPtr;
    IntState* s = ist_of(p);
    if (s->tag != tagv) return ErrContextMismatch;
    *y = int_one<E>(s, x, sf);
    return StatusOk;
}

} // namespace

// ---- FIRState_16s ----------------------------------------------------------
extern "C" Status tavsFIRGetStateSize_16s_body(int tapsLen, int* pBufferSize)
{
    return int_state_size(ICls::I16s, tapsLen, pBufferSize);
}
extern "C" Status tavsFIRInit_16s_body(FIRState_16s** ppState, const Tav16s* pTaps, int tapsLen, int tapsFactor,
                                       const Tav16s* pDlyLine, Tav8u* pBuffer)
{
    return init_int<Tav16s>(reinterpret_cast<void**>(ppState), pTaps, tapsLen, pDlyLine, pBuffer, ICls::I16s, tag::I16s,
                            fill16(pTaps, tapsLen, tapsFactor));
}
extern "C" Status tavsFIRInitAlloc_16s_body(FIRState_16s** ppState, const Tav16s* pTaps, int tapsLen, int tapsFactor,
                                            const Tav16s* pDlyLine)
{
    return alloc_int(reinterpret_cast<void**>(ppState), pTaps, tapsLen, ICls::I16s, [&](void** s, Tav8u* b) {
        return tavsFIRInit_16s_body(reinterpret_cast<FIRState_16s**>(s), pTaps, tapsLen, tapsFactor, pDlyLine, b);
    });
}
extern "C" Status tavsFIRFree_16s_body(FIRState_16s* pState) { return free_int(pState, tag::I16s, tag::S16s); }
extern "C" Status tavsFIRGetTaps_16s_body(const FIRState_16s* pState, Tav16s* pTaps, int* pTapsFactor)
{
    if (pState == nullptr || pTaps == nullptr || pTapsFactor == nullptr) return ErrNullPtr;
    const Status st = get_parts(pState, pTaps, tag::I16s, tag::S16s, 1, 1.0f, false);
    if (st == StatusOk) *pTapsFactor = ist_of(pState)->tapsFactor;
    return st;
}
extern "C" Status tavsFIRSetTaps_16s_body(const Tav16s* pTaps, FIRState_16s* pState, int tapsFactor)
{
    const int n = pState ? ist_of(pState)->tapsLen : 0;
    return set_int(pState, pTaps, tag::I16s, false, [&](IntState* s) { fill16(pTaps, n, tapsFactor)(s); });
}
extern "C" Status tavsFIRGetDlyLine_16s_body(const FIRState_16s* pState, Tav16s* pDlyLine)
{
    return get_dly_int(pState, pDlyLine, tag::I16s);
}
extern "C" Status tavsFIRSetDlyLine_16s_body(FIRState_16s* pState, const Tav16s* pDlyLine)
{
    return set_dly_int(pState, pDlyLine, tag::I16s);
}
extern "C" Status tavsFIR_16s_Sfs_body(const Tav16s* pSrc, Tav16s* pDst, int len, FIRState_16s* pState, int scaleFactor)
{
    return block_int(pSrc, pDst, len, pState, scaleFactor, tag::I16s, false);
}
extern "C" Status tavsFIR_16s_ISfs_body(Tav16s* pSrcDst, int len, FIRState_16s* pState, int scaleFactor)
{
    return block_int(pSrcDst, pSrcDst, len, pState, scaleFactor, tag::I16s, true);
}
extern "C" Status tavsFIROne_16s_Sfs_body(Tav16s src, Tav16s* pDstVal, FIRState_16s* pState, int scaleFactor)
{
    return one_int(src, pDstVal, pState, scaleFactor, tag::I16s);
}

// ---- stream record "FI31" ---------------------------------------------------
extern "C" Status tavsFIRStreamGetStateSize_16s_body(int tapsLen, int* pBufferSize)
{
    return int_state_size(ICls::Stream16s, tapsLen, pBufferSize);
}
extern "C" Status tavsFIRStreamInit_16s_body(FIRState_16s** ppState, const Tav16s* pTaps, int tapsLen, int tapsFactor,
                                             int roundMode, Tav8u* pBuffer)
{
    if (any_null(ppState, pTaps, pBuffer)) return ErrNullPtr;
    if (tapsLen < 1) return ErrFilterLen;
    if (roundMode < 0 || roundMode > 2) return ErrRoundMode;
    return init_int<Tav16s>(reinterpret_cast<void**>(ppState), pTaps, tapsLen, nullptr, pBuffer, ICls::Stream16s,
                            tag::S16s, [&](IntState* s) {
                                fill16(pTaps, tapsLen, tapsFactor)(s);
                                s->roundMode = roundMode;
                            });
}
extern "C" Status tavsFIRStreamInitAlloc_16s_body(FIRState_16s** ppState, const Tav16s* pTaps, int tapsLen,
                                                  int tapsFactor, int roundMode)
{
    if (ppState == nullptr || pTaps == nullptr) return ErrNullPtr;
    if (tapsLen < 1) return ErrFilterLen;
    if (roundMode < 0 || roundMode > 2) return ErrRoundMode;
    return alloc_int(reinterpret_cast<void**>(ppState), pTaps, tapsLen, ICls::Stream16s, [&](void** s, Tav8u* b) {
        return tavsFIRStreamInit_16s_body(reinterpret_cast<FIRState_16s**>(s), pTaps, tapsLen, tapsFactor, roundMode,
                                          b);
    });
}

// ---- FIRState32s_16s and FIRState32sc_16sc ------------------------------------
#define TAVS_FIR_INT_KIND(K, St, E, T32, T32F, TAG, CX, ICLS)                                                          \
    extern "C" Status tavsFIRGetStateSize##K##_body(int tapsLen, int* pBufferSize)                                    \
    {                                                                                                                 \
        return int_state_size(ICLS, tapsLen, pBufferSize);                                                            \
    }                                                                                                                 \
    extern "C" Status tavsFIRGetStateSize##K##T32F##_body(int tapsLen, int* pBufferSize)                              \
    {                                                                                                                 \
        return int_state_size(ICLS, tapsLen, pBufferSize);                                                            \
    }                                                                                                                 \
    extern "C" Status tavsFIRInit##K##_body(St** ppState, const T32* pTaps, int tapsLen, int tapsFactor,              \
                                            const E* pDlyLine, Tav8u* pBuffer)                                        \
    {                                                                                                                 \
        return init_int<E>(reinterpret_cast<void**>(ppState), pTaps, tapsLen, pDlyLine, pBuffer, ICLS, TAG,           \
                           fill32s<E>(reinterpret_cast<const Tav32s*>(pTaps), tapsLen, tapsFactor));                  \
    }                                                                                                                 \
    extern "C" Status tavsFIRInit##K##T32F##_body(St** ppState, const Tav##T32F* pTaps, int tapsLen,                  \
                                                  const E* pDlyLine, Tav8u* pBuffer)                                  \
    {                                                                                                                 \
        return init_int<E>(reinterpret_cast<void**>(ppState), pTaps, tapsLen, pDlyLine, pBuffer, ICLS, TAG,           \
                           fill32f<E>(reinterpret_cast<const Tav32f*>(pTaps), tapsLen));                              \
    }                                                                                                                 \
    extern "C" Status tavsFIRInitAlloc##K##_body(St** ppState, const T32* pTaps, int tapsLen, int tapsFactor,         \
                                                 const E* pDlyLine)                                                   \
    {                                                                                                                 \
        return alloc_int(reinterpret_cast<void**>(ppState), pTaps, tapsLen, ICLS, [&](void** s, Tav8u* b) {           \
            return tavsFIRInit##K##_body(reinterpret_cast<St**>(s), pTaps, tapsLen, tapsFactor, pDlyLine, b);         \
        });                                                                                                           \
    }                                                                                                                 \
    extern "C" Status tavsFIRInitAlloc##K##T32F##_body(St** ppState, const Tav##T32F* pTaps, int tapsLen,             \
                                                       const E* pDlyLine)                                             \
    {                                                                                                                 \
        return alloc_int(reinterpret_cast<void**>(ppState), pTaps, tapsLen, ICLS, [&](void** s, Tav8u* b) {           \
            return tavsFIRInit##K##T32F##_body(reinterpret_cast<St**>(s), pTaps, tapsLen, pDlyLine, b);               \
        });                                                                                                           \
    }                                                                                                                 \
    extern "C" Status tavsFIRFree##K##_body(St* pState) { return free_int(pState, TAG, TAG); }                        \
    extern "C" Status tavsFIRGetTaps##K##_body(const St* pState, T32* pTaps, int* pTapsFactor)                        \
    {                                                                                                                 \
        if (pState == nullptr || pTaps == nullptr || pTapsFactor == nullptr) return ErrNullPtr;                       \
        const Status st =                                                                                             \
            get_parts(pState, reinterpret_cast<Tav32s*>(pTaps), TAG, TAG, (CX) ? 2 : 1, 1.0f, false);                 \
        if (st == StatusOk) *pTapsFactor = ist_of(pState)->tapsFactor;                                                \
        return st;                                                                                                    \
    }                                                                                                                 \
    extern "C" Status tavsFIRGetTaps##K##T32F##_body(const St* pState, Tav##T32F* pTaps)                              \
    {                                                                                                                 \
        if (pState == nullptr || pTaps == nullptr) return ErrNullPtr;                                                 \
        const float g = std::ldexp(1.0f, ist_of(pState)->tapsFactor);                                                 \
        return get_parts(pState, reinterpret_cast<Tav32f*>(pTaps), TAG, TAG, (CX) ? 2 : 1, g, true);                  \
    }                                                                                                                 \
    extern "C" Status tavsFIRSetTaps##K##_body(const T32* pTaps, St* pState, int tapsFactor)                          \
    {                                                                                                                 \
        const int n = pState ? ist_of(pState)->tapsLen : 0;                                                           \
        return set_int(pState, pTaps, TAG, CX, [&](IntState* s) {                                                     \
            fill32s<E>(reinterpret_cast<const Tav32s*>(pTaps), n, tapsFactor)(s);                                     \
        });                                                                                                           \
    }                                                                                                                 \
    extern "C" Status tavsFIRSetTaps##K##T32F##_body(const Tav##T32F* pTaps, St* pState)                              \
    {                                                                                                                 \
        const int n = pState ? ist_of(pState)->tapsLen : 0;                                                           \
        return set_int(pState, pTaps, TAG, CX,                                                                        \
                       [&](IntState* s) { fill32f<E>(reinterpret_cast<const Tav32f*>(pTaps), n)(s); });               \
    }                                                                                                                 \
    extern "C" Status tavsFIRGetDlyLine##K##_body(const St* pState, E* pDlyLine)                                      \
    {                                                                                                                 \
        return get_dly_int(pState, pDlyLine, TAG);                                                                    \
    }                                                                                                                 \
    extern "C" Status tavsFIRSetDlyLine##K##_body(St* pState, const E* pDlyLine)                                      \
    {                                                                                                                 \
        return set_dly_int(pState, pDlyLine, TAG);                                                                    \
    }                                                                                                                 \
    extern "C" Status tavsFIR##K##_Sfs_body(const E* pSrc, E* pDst, int len, St* pState, int scaleFactor)             \
    {                                                                                                                 \
        return block_int(pSrc, pDst, len, pState, scaleFactor, TAG, false);                                           \
    }                                                                                                                 \
    extern "C" Status tavsFIR##K##_ISfs_body(E* pSrcDst, int len, St* pState, int scaleFactor)                        \
    {                                                                                                                 \
        return block_int(pSrcDst, pSrcDst, len, pState, scaleFactor, TAG, true);                                      \
    }                                                                                                                 \
    extern "C" Status tavsFIROne##K##_Sfs_body(E src, E* pDstVal, St* pState, int scaleFactor)                        \
    {                                                                                                                 \
        return one_int(src, pDstVal, pState, scaleFactor, TAG);                                                       \
    }

TAVS_FIR_INT_KIND(32s_16s, FIRState32s_16s, Tav16s, Tav32s, 32f, tag::I32s_16s, false, ICls::I32s_16s)
TAVS_FIR_INT_KIND(32sc_16sc, FIRState32sc_16sc, Tav16sc, Tav32sc, 32fc, tag::I32sc_16sc, true, ICls::I32sc_16sc)
