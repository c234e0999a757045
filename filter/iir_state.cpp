// Sizes, Free, new taps and delay-line copies of the recursive-filter
// records: each body is the record's template with its layout.
#include "internal/body.h"

#include "internal/iir_state.h"

using namespace tavs::iir;

extern "C" {

// ---- state sizes --------------------------------------------------------------
Status tavsIIRGetStateSize_32f_body(int order, int* pBufferSize)
{
    return get_size<IIRState_32f>(Layout::Arb, order, pBufferSize);
}
Status tavsIIRGetStateSize_BiQuad_32f_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState_32f>(Layout::Bq, numBq, pBufferSize);
}
Status tavsIIRGetStateSize_BiQuad_DF1_32f_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState_32f>(Layout::Df1, numBq, pBufferSize);
}
Status tavsIIRGetStateSize_32fc_body(int order, int* pBufferSize)
{
    return get_size<IIRState_32fc>(Layout::Arb, order, pBufferSize);
}
Status tavsIIRGetStateSize_BiQuad_32fc_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState_32fc>(Layout::Bq, numBq, pBufferSize);
}
Status tavsIIRGetStateSize_64f_body(int order, int* pBufferSize)
{
    return get_size<IIRState_64f>(Layout::Arb, order, pBufferSize);
}
Status tavsIIRGetStateSize_BiQuad_64f_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState_64f>(Layout::Bq, numBq, pBufferSize);
}
Status tavsIIRGetStateSize_64fc_body(int order, int* pBufferSize)
{
    return get_size<IIRState_64fc>(Layout::Arb, order, pBufferSize);
}
Status tavsIIRGetStateSize_BiQuad_64fc_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState_64fc>(Layout::Bq, numBq, pBufferSize);
}
Status tavsIIRGetStateSize32f_16s_body(int order, int* pBufferSize)
{
    return get_size<IIRState32f_16s>(Layout::Arb, order, pBufferSize);
}
Status tavsIIRGetStateSize32f_BiQuad_16s_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState32f_16s>(Layout::Bq, numBq, pBufferSize);
}
Status tavsIIRGetStateSize32fc_16sc_body(int order, int* pBufferSize)
{
    return get_size<IIRState32fc_16sc>(Layout::Arb, order, pBufferSize);
}
Status tavsIIRGetStateSize32fc_BiQuad_16sc_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState32fc_16sc>(Layout::Bq, numBq, pBufferSize);
}
Status tavs_iir_size_32s_16s(int order, int* pBufferSize)
{
    return get_size<IIRState32s_16s>(Layout::Arb, order, pBufferSize);
}
Status tavs_iir_size_32s_bq_16s(int numBq, int* pBufferSize)
{
    return get_size<IIRState32s_16s>(Layout::Bq, numBq, pBufferSize);
}
Status tavs_iir_size_32sc_16sc(int order, int* pBufferSize)
{
    return get_size<IIRState32sc_16sc>(Layout::Arb, order, pBufferSize);
}
Status tavs_iir_size_32sc_bq_16sc(int numBq, int* pBufferSize)
{
    return get_size<IIRState32sc_16sc>(Layout::Bq, numBq, pBufferSize);
}
Status tavsIIRGetStateSize64f_16s_body(int order, int* pBufferSize)
{
    return get_size<IIRState64f_16s>(Layout::Arb, order, pBufferSize);
}
Status tavsIIRGetStateSize64f_BiQuad_16s_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState64f_16s>(Layout::Bq, numBq, pBufferSize);
}
Status tavsIIRGetStateSize64fc_16sc_body(int order, int* pBufferSize)
{
    return get_size<IIRState64fc_16sc>(Layout::Arb, order, pBufferSize);
}
Status tavsIIRGetStateSize64fc_BiQuad_16sc_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState64fc_16sc>(Layout::Bq, numBq, pBufferSize);
}
Status tavsIIRGetStateSize64f_32f_body(int order, int* pBufferSize)
{
    return get_size<IIRState64f_32f>(Layout::Arb, order, pBufferSize);
}
Status tavsIIRGetStateSize64f_BiQuad_32f_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState64f_32f>(Layout::Bq, numBq, pBufferSize);
}
Status tavsIIRGetStateSize64fc_32fc_body(int order, int* pBufferSize)
{
    return get_size<IIRState64fc_32fc>(Layout::Arb, order, pBufferSize);
}
Status tavsIIRGetStateSize64fc_BiQuad_32fc_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState64fc_32fc>(Layout::Bq, numBq, pBufferSize);
}
Status tavsIIRGetStateSize64f_32s_body(int order, int* pBufferSize)
{
    return get_size<IIRState64f_32s>(Layout::Arb, order, pBufferSize);
}
Status tavsIIRGetStateSize64f_BiQuad_32s_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState64f_32s>(Layout::Bq, numBq, pBufferSize);
}
Status tavsIIRGetStateSize64f_BiQuad_DF1_32s_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState64f_32s>(Layout::Df1, numBq, pBufferSize);
}
Status tavsIIRGetStateSize64fc_32sc_body(int order, int* pBufferSize)
{
    return get_size<IIRState64fc_32sc>(Layout::Arb, order, pBufferSize);
}
Status tavsIIRGetStateSize64fc_BiQuad_32sc_body(int numBq, int* pBufferSize)
{
    return get_size<IIRState64fc_32sc>(Layout::Bq, numBq, pBufferSize);
}

// ---- Free -------------------------------------------------------------------
Status tavsIIRFree_32f_body(IIRState_32f* pState) { return free_state(pState); }
Status tavsIIRFree_32fc_body(IIRState_32fc* pState) { return free_state(pState); }
Status tavsIIRFree_64f_body(IIRState_64f* pState) { return free_state(pState); }
Status tavsIIRFree_64fc_body(IIRState_64fc* pState) { return free_state(pState); }
Status tavsIIRFree32f_16s_body(IIRState32f_16s* pState) { return free_state(pState); }
Status tavsIIRFree32fc_16sc_body(IIRState32fc_16sc* pState) { return free_state(pState); }
Status tavsIIRFree32s_16s_body(IIRState32s_16s* pState) { return free_state(pState); }
Status tavsIIRFree32sc_16sc_body(IIRState32sc_16sc* pState) { return free_state(pState); }
Status tavsIIRFree64f_16s_body(IIRState64f_16s* pState) { return free_state(pState); }
Status tavsIIRFree64fc_16sc_body(IIRState64fc_16sc* pState) { return free_state(pState); }
Status tavsIIRFree64f_32f_body(IIRState64f_32f* pState) { return free_state(pState); }
Status tavsIIRFree64fc_32fc_body(IIRState64fc_32fc* pState) { return free_state(pState); }
Status tavsIIRFree64f_32s_body(IIRState64f_32s* pState) { return free_state(pState); }
Status tavsIIRFree64fc_32sc_body(IIRState64fc_32sc* pState) { return free_state(pState); }

// ---- new taps -----------------------------------------------------------------
Status tavsIIRSetTaps_32f_body(const Tav32f* pTaps, IIRState_32f* pState) { return set_taps(pTaps, pState); }
Status tavsIIRSetTaps_64f_body(const Tav64f* pTaps, IIRState_64f* pState) { return set_taps(pTaps, pState); }
Status tavsIIRSetTaps_64fc_body(const Tav64fc* pTaps, IIRState_64fc* pState)
{
    return set_taps(pTaps, pState);
}
Status tavsIIRSetTaps32f_16s_body(const Tav32f* pTaps, IIRState32f_16s* pState)
{
    return set_taps(pTaps, pState);
}
Status tavsIIRSetTaps32fc_16sc_body(const Tav32fc* pTaps, IIRState32fc_16sc* pState)
{
    return set_taps(pTaps, pState);
}
Status tavsIIRSetTaps32s_16s_body(const Tav32s* pTaps, IIRState32s_16s* pState, int tapsFactor)
{
    return set_taps_32s(pTaps, pState, tapsFactor);
}
Status tavsIIRSetTaps32s_16s32f_body(const Tav32f* pTaps, IIRState32s_16s* pState)
{
    return set_taps(pTaps, pState);
}
Status tavsIIRSetTaps32sc_16sc_body(const Tav32sc* pTaps, IIRState32sc_16sc* pState, int tapsFactor)
{
    return set_taps_32s(pTaps, pState, tapsFactor);
}
Status tavsIIRSetTaps64f_16s_body(const Tav64f* pTaps, IIRState64f_16s* pState)
{
    return set_taps(pTaps, pState);
}
Status tavsIIRSetTaps64fc_16sc_body(const Tav64fc* pTaps, IIRState64fc_16sc* pState)
{
    return set_taps(pTaps, pState);
}
Status tavsIIRSetTaps64f_32f_body(const Tav64f* pTaps, IIRState64f_32f* pState)
{
    return set_taps(pTaps, pState);
}
Status tavsIIRSetTaps64fc_32fc_body(const Tav64fc* pTaps, IIRState64fc_32fc* pState)
{
    return set_taps(pTaps, pState);
}
Status tavsIIRSetTaps64f_32s_body(const Tav64f* pTaps, IIRState64f_32s* pState)
{
    return set_taps(pTaps, pState);
}
Status tavsIIRSetTaps64fc_32sc_body(const Tav64fc* pTaps, IIRState64fc_32sc* pState)
{
    return set_taps(pTaps, pState);
}

// The 32fc tap store serves the 32fc records and the 32sc_16sc records,
// whose taps are held as 32fc too.
Status tavs_iir_settaps_32fc(const Tav32fc* pTaps, Record* pState)
{
    if (tavs::any_null(pTaps, pState)) return ErrNullPtr;
    if (layout_of<IIRState_32fc>(pState->tag) != Layout::None)
        return set_taps(pTaps, static_cast<IIRState_32fc*>(pState));
    return set_taps(pTaps, static_cast<IIRState32sc_16sc*>(pState));
}

// ---- delay lines -----------------------------------------------------------------
Status tavsIIRGetDlyLine_32f_body(const IIRState_32f* pState, Tav32f* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine_32f_body(IIRState_32f* pState, const Tav32f* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine_32fc_body(const IIRState_32fc* pState, Tav32fc* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine_32fc_body(IIRState_32fc* pState, const Tav32fc* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine_64f_body(const IIRState_64f* pState, Tav64f* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine_64f_body(IIRState_64f* pState, const Tav64f* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine_64fc_body(const IIRState_64fc* pState, Tav64fc* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine_64fc_body(IIRState_64fc* pState, const Tav64fc* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine32f_16s_body(const IIRState32f_16s* pState, Tav32f* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine32f_16s_body(IIRState32f_16s* pState, const Tav32f* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine32fc_16sc_body(const IIRState32fc_16sc* pState, Tav32fc* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine32fc_16sc_body(IIRState32fc_16sc* pState, const Tav32fc* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine32s_16s_body(const IIRState32s_16s* pState, Tav32f* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine32s_16s_body(IIRState32s_16s* pState, const Tav32f* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine32sc_16sc_body(const IIRState32sc_16sc* pState, Tav32fc* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine32sc_16sc_body(IIRState32sc_16sc* pState, const Tav32fc* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine64f_16s_body(const IIRState64f_16s* pState, Tav64f* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine64f_16s_body(IIRState64f_16s* pState, const Tav64f* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine64fc_16sc_body(const IIRState64fc_16sc* pState, Tav64fc* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine64fc_16sc_body(IIRState64fc_16sc* pState, const Tav64fc* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine64f_32f_body(const IIRState64f_32f* pState, Tav64f* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine64f_32f_body(IIRState64f_32f* pState, const Tav64f* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine64fc_32fc_body(const IIRState64fc_32fc* pState, Tav64fc* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine64fc_32fc_body(IIRState64fc_32fc* pState, const Tav64fc* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine64f_32s_body(const IIRState64f_32s* pState, Tav64f* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine64f_32s_body(IIRState64f_32s* pState, const Tav64f* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}
Status tavsIIRGetDlyLine64f_DF1_32s_body(const IIRState64f_32s* pState, Tav32s* pDlyLine)
{
    return get_dly(pState, pDlyLine, true);
}
Status tavsIIRSetDlyLine64f_DF1_32s_body(IIRState64f_32s* pState, const Tav32s* pDlyLine)
{
    return set_dly(pState, pDlyLine, true);
}
Status tavsIIRGetDlyLine64fc_32sc_body(const IIRState64fc_32sc* pState, Tav64fc* pDlyLine)
{
    return get_dly(pState, pDlyLine);
}
Status tavsIIRSetDlyLine64fc_32sc_body(IIRState64fc_32sc* pState, const Tav64fc* pDlyLine)
{
    return set_dly(pState, pDlyLine);
}

} // extern "C"
