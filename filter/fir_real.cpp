#include "internal/body.h"
#include "internal/fir_entry.h"

// The real floating records: overlap-save through the real FFT in Perm
// order. Also the "FI21" record made from 32s taps, which never prepares the
// FFT, and the 32f stream record "FI33".
namespace tag = tavs::fir::tag;
using tavs::fir::State;

TAVS_FIR_FLOAT_KIND(_32f, FIRState_32f, Tav32f, Tav32f, tag::F32, tag::S32f)
TAVS_FIR_FLOAT_KIND(_64f, FIRState_64f, Tav64f, Tav64f, tag::F64, 0)
TAVS_FIR_FLOAT_KIND(64f_32f, FIRState64f_32f, Tav64f, Tav32f, tag::F64_32f, 0)
TAVS_FIR_FLOAT_KIND_SFS(32f_16s, FIRState32f_16s, Tav32f, Tav16s, tag::F32_16s)
TAVS_FIR_FLOAT_KIND_SFS(64f_16s, FIRState64f_16s, Tav64f, Tav16s, tag::F64_16s)
TAVS_FIR_FLOAT_KIND_SFS(64f_32s, FIRState64f_32s, Tav64f, Tav32s, tag::F64_32s)

// FIRState_32s: the same tag as FIRState64f_32s, with 32s taps widened to
// 64f and no FFT.
extern "C" Status tavsFIRGetStateSize_32s_body(int tapsLen, int* pBufferSize)
{
    return tavs::fir::get_state_size<Tav64f>(tapsLen, pBufferSize, false);
}
extern "C" Status tavsFIRInit_32s_body(FIRState_32s** ppState, const Tav32s* pTaps, int tapsLen, const Tav32s* pDlyLine,
                                       Tav8u* pBuffer)
{
    return tavs::fir::init_float<Tav64f, Tav32s>(reinterpret_cast<State**>(ppState), pTaps, tapsLen, pDlyLine, pBuffer,
                                                 tag::F64_32s, false);
}
extern "C" Status tavsFIRInitAlloc_32s_body(FIRState_32s** ppState, const Tav32s* pTaps, int tapsLen,
                                            const Tav32s* pDlyLine)
{
    return tavs::fir::init_alloc(
        reinterpret_cast<State**>(ppState),
        [&](int* b) -> Status {
            if (pTaps == nullptr) return ErrNullPtr;
            return tavs::fir::get_state_size<Tav64f>(tapsLen, b, false);
        },
        [&](State** s, Tav8u* blk) -> Status {
            return tavs::fir::init_float<Tav64f, Tav32s>(s, pTaps, tapsLen, pDlyLine, blk, tag::F64_32s, false);
        });
}
extern "C" Status tavsFIRFree_32s_body(FIRState_32s* pState)
{
    return tavs::fir::free_float<Tav64f>(tavs::fir::st_of(pState), tag::F64_32s, 0);
}
extern "C" Status tavsFIRGetTaps_32s_body(const FIRState_32s* pState, Tav32s* pTaps)
{
    return tavs::fir::get_taps<Tav64f>(tavs::fir::st_of(pState), pTaps, tag::F64_32s);
}
extern "C" Status tavsFIRSetTaps_32s_body(const Tav32s* pTaps, FIRState_32s* pState)
{
    return tavs::fir::set_taps<Tav64f>(tavs::fir::st_of(pState), pTaps, tag::F64_32s);
}
extern "C" Status tavsFIR_32s_Sfs_body(const Tav32s* pSrc, Tav32s* pDst, int len, FIRState_32s* pState, int scaleFactor)
{
    return tavsFIR64f_32s_Sfs_body(pSrc, pDst, len, reinterpret_cast<FIRState64f_32s*>(pState), scaleFactor);
}
extern "C" Status tavsFIR_32s_ISfs_body(Tav32s* pSrcDst, int len, FIRState_32s* pState, int scaleFactor)
{
    return tavsFIR64f_32s_ISfs_body(pSrcDst, len, reinterpret_cast<FIRState64f_32s*>(pState), scaleFactor);
}
extern "C" Status tavsFIROne_32s_Sfs_body(Tav32s src, Tav32s* pDstVal, FIRState_32s* pState, int scaleFactor)
{
    return tavsFIROne64f_32s_Sfs_body(src, pDstVal, reinterpret_cast<FIRState64f_32s*>(pState), scaleFactor);
}

// The stream record: Init of a "FI01" record (the FFT is prepared too) with
// the tag "FI33"; tavsFIR_32f then reads len + tapsLen - 1 samples.
extern "C" Status tavsFIRStreamGetStateSize_32f_body(int tapsLen, int* pBufferSize)
{
    return tavs::fir::get_state_size<Tav32f>(tapsLen, pBufferSize);
}
extern "C" Status tavsFIRStreamInit_32f_body(FIRState_32f** ppState, const Tav32f* pTaps, int tapsLen, Tav8u* pBuffer)
{
    return tavs::fir::init_float<Tav32f, Tav32f>(reinterpret_cast<State**>(ppState), pTaps, tapsLen,
                                                 static_cast<const Tav32f*>(nullptr), pBuffer, tag::S32f);
}
extern "C" Status tavsFIRStreamInitAlloc_32f_body(FIRState_32f** ppState, const Tav32f* pTaps, int tapsLen)
{
    return tavs::fir::init_alloc(
        reinterpret_cast<State**>(ppState),
        [&](int* b) -> Status {
            if (pTaps == nullptr) return ErrNullPtr;
            return tavs::fir::get_state_size<Tav32f>(tapsLen, b);
        },
        [&](State** s, Tav8u* blk) -> Status {
            return tavs::fir::init_float<Tav32f, Tav32f>(s, pTaps, tapsLen, static_cast<const Tav32f*>(nullptr), blk,
                                                         tag::S32f);
        });
}
