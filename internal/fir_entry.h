// The entry shapes of the floating FIR records: each public name is one line
// that names its record element X, data type D and tags. The tag decides the
// path, so the multi-rate tags join these entries as further cases.
#pragma once

#include "internal/fir_float.h"

namespace tavs::fir {

template <class P> inline State* st_of(P* p) { return reinterpret_cast<State*>(p); }
template <class P> inline const State* st_of(const P* p) { return reinterpret_cast<const State*>(p); }

// Block call. Checks: state, src, dst, then len, then tag. A stream tag
// (nonzero stream) runs without a delay line and refuses in-place calls.
template <class X, class D>
Status fir_block(const D* src, D* dst, int len, State* s, int sf, int32_t sr, int32_t stream, bool inPlace)
{
    if (any_null(s, src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    inPlace = inPlace || static_cast<const void*>(src) == static_cast<const void*>(dst);
    if (s->tag == sr) {
        if constexpr (std::is_same_v<X, D>) return block_same<X>(s, src, dst, len, inPlace);
        else return block_convert<X, D>(s, src, dst, len, sf);
    }
    if (stream != 0 && s->tag == stream) {
        if constexpr (std::is_same_v<X, D>) {
            if (inPlace) return ErrContextMismatch;
            stream_block<X>(s, src, dst, len);
            return StatusOk;
        }
    }
    return ErrContextMismatch;
}

// One sample. Checks: state, output, then tag (single-rate only).
template <class X, class D> Status fir_one(D x, D* y, State* s, int sf, int32_t sr)
{
    if (any_null(s, y)) return ErrNullPtr;
    if (s->tag != sr) return ErrContextMismatch;
    const X r = one_step<X>(s, widen<X>(x));
    narrow_block(&r, y, 1, sf);
    return StatusOk;
}

} // namespace tavs::fir

// The record life of one floating kind: size, Init, InitAlloc, Free, taps
// and delay line. K is the name token, St the public record, X the record
// element, Tp the caller's taps, D the data, TAG its single-rate tag and
// ALT a second tag that Free accepts (the stream tag, or 0).
#define TAVS_FIR_FLOAT_LIFE(K, St, X, Tp, D, TAG, ALT)                                                            \
    extern "C" Status tavsFIRGetStateSize##K##_body(int tapsLen, int* pBufferSize)                                \
    {                                                                                                             \
        return tavs::fir::get_state_size<X>(tapsLen, pBufferSize);                                                \
    }                                                                                                             \
    extern "C" Status tavsFIRInit##K##_body(St** ppState, const Tp* pTaps, int tapsLen, const D* pDlyLine,        \
                                            Tav8u* pBuffer)                                                       \
    {                                                                                                             \
        return tavs::fir::init_float<X, D>(reinterpret_cast<tavs::fir::State**>(ppState), pTaps, tapsLen,         \
                                           pDlyLine, pBuffer, TAG);                                               \
    }                                                                                                             \
    extern "C" Status tavsFIRInitAlloc##K##_body(St** ppState, const Tp* pTaps, int tapsLen, const D* pDlyLine)   \
    {                                                                                                             \
        return tavs::fir::init_alloc(                                                                             \
            reinterpret_cast<tavs::fir::State**>(ppState),                                                        \
            [&](int* b) -> Status {                                                                                       \
                if (pTaps == nullptr) return ErrNullPtr;                                                          \
                return tavs::fir::get_state_size<X>(tapsLen, b);                                                  \
            },                                                                                                    \
            [&](tavs::fir::State** s, Tav8u* blk) -> Status {                                                               \
                return tavs::fir::init_float<X, D>(s, pTaps, tapsLen, pDlyLine, blk, TAG);                        \
            });                                                                                                   \
    }                                                                                                             \
    extern "C" Status tavsFIRFree##K##_body(St* pState)                                                           \
    {                                                                                                             \
        return tavs::fir::free_float<X>(tavs::fir::st_of(pState), TAG, ALT);                                      \
    }                                                                                                             \
    extern "C" Status tavsFIRGetTaps##K##_body(const St* pState, Tp* pTaps)                                       \
    {                                                                                                             \
        return tavs::fir::get_taps<X>(tavs::fir::st_of(pState), pTaps, TAG);                                     \
    }                                                                                                             \
    extern "C" Status tavsFIRSetTaps##K##_body(const Tp* pTaps, St* pState)                                       \
    {                                                                                                             \
        return tavs::fir::set_taps<X>(tavs::fir::st_of(pState), pTaps, TAG);                                     \
    }

#define TAVS_FIR_FLOAT_DLY(K, St, X, D, TAG)                                                                      \
    extern "C" Status tavsFIRGetDlyLine##K##_body(const St* pState, D* pDlyLine)                                  \
    {                                                                                                             \
        return tavs::fir::get_dly<X>(tavs::fir::st_of(pState), pDlyLine, TAG);                                   \
    }                                                                                                             \
    extern "C" Status tavsFIRSetDlyLine##K##_body(St* pState, const D* pDlyLine)                                  \
    {                                                                                                             \
        return tavs::fir::set_dly<X>(tavs::fir::st_of(pState), pDlyLine, TAG);                                   \
    }

// Block, in-place and one-sample entries of a kind whose data are floating.
#define TAVS_FIR_FLOAT_RUN(K, St, X, D, TAG, STREAM)                                                              \
    extern "C" Status tavsFIR##K##_body(const D* pSrc, D* pDst, int len, St* pState)                              \
    {                                                                                                             \
        return tavs::fir::fir_block<X, D>(pSrc, pDst, len, tavs::fir::st_of(pState), 0, TAG, STREAM, false);      \
    }                                                                                                             \
    extern "C" Status tavsFIR##K##_I_body(D* pSrcDst, int len, St* pState)                                        \
    {                                                                                                             \
        return tavs::fir::fir_block<X, D>(pSrcDst, pSrcDst, len, tavs::fir::st_of(pState), 0, TAG, STREAM, true); \
    }                                                                                                             \
    extern "C" Status tavsFIROne##K##_body(D src, D* pDstVal, St* pState)                                         \
    {                                                                                                             \
        return tavs::fir::fir_one<X, D>(src, pDstVal, tavs::fir::st_of(pState), 0, TAG);                         \
    }

// The same for integer data with a scale factor.
#define TAVS_FIR_FLOAT_RUN_SFS(K, St, X, D, TAG)                                                                  \
    extern "C" Status tavsFIR##K##_Sfs_body(const D* pSrc, D* pDst, int len, St* pState, int scaleFactor)         \
    {                                                                                                             \
        return tavs::fir::fir_block<X, D>(pSrc, pDst, len, tavs::fir::st_of(pState), scaleFactor, TAG, 0, false); \
    }                                                                                                             \
    extern "C" Status tavsFIR##K##_ISfs_body(D* pSrcDst, int len, St* pState, int scaleFactor)                    \
    {                                                                                                             \
        return tavs::fir::fir_block<X, D>(pSrcDst, pSrcDst, len, tavs::fir::st_of(pState), scaleFactor, TAG, 0,   \
                                          true);                                                                  \
    }                                                                                                             \
    extern "C" Status tavsFIROne##K##_Sfs_body(D src, D* pDstVal, St* pState, int scaleFactor)                    \
    {                                                                                                             \
        return tavs::fir::fir_one<X, D>(src, pDstVal, tavs::fir::st_of(pState), scaleFactor, TAG);               \
    }

// One floating kind whose taps come in the record's own element: its record
// life, delay line and filter calls, on floating data (STREAM as for
// TAVS_FIR_FLOAT_RUN) or on integer data with a scale factor (_SFS).
#define TAVS_FIR_FLOAT_KIND(K, St, X, D, TAG, STREAM)                                                             \
    TAVS_FIR_FLOAT_LIFE(K, St, X, X, D, TAG, STREAM)                                                              \
    TAVS_FIR_FLOAT_DLY(K, St, X, D, TAG)                                                                          \
    TAVS_FIR_FLOAT_RUN(K, St, X, D, TAG, STREAM)
#define TAVS_FIR_FLOAT_KIND_SFS(K, St, X, D, TAG)                                                                 \
    TAVS_FIR_FLOAT_LIFE(K, St, X, X, D, TAG, 0)                                                                   \
    TAVS_FIR_FLOAT_DLY(K, St, X, D, TAG)                                                                          \
    TAVS_FIR_FLOAT_RUN_SFS(K, St, X, D, TAG)
