// Planar filtering: one record per channel, each channel run in full, in
// channel order. A channel whose pointers are null or whose record's tag
// differs from the first channel's stops the call; the channels before it
// stay filtered.
#include "internal/body.h"
#include "internal/check.h"
#include "internal/iir.h"

using namespace tavs::iir;

namespace {

// Pointer arrays null, then len, then the channel count (the status for a
// bad count is the caller's: the two planar families differ), then the
// first record null and its tag among the accepted ones. run(c) filters
// channel c; the loop stops at a channel it cannot run.
template <class S, class D, class R, class Ok, class Run>
Status planar(const S* const* src, D* const* dst, int len, int numChannels, R* const* states, Status badCount,
              Ok accepted, Run run)
{
    if (tavs::any_null(src, dst, states)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    if (numChannels < 1) return badCount;
    if (!states[0]) return ErrNullPtr;
    const int32_t tag = states[0]->tag;
    if (!accepted(tag)) return ErrContextMismatch;
    for (int c = 0; c < numChannels; ++c) {
        if (tavs::any_null(src[c], dst[c], states[c])) return ErrNullPtr;
        if (states[c]->tag != tag) return ErrContextMismatch;
        run(c);
    }
    return StatusOk;
}

// Biquad and direct form I records only: the arbitrary-order tag is refused.
bool accepted_32f(int32_t tag)
{
    const Layout l = layout_of<IIRState_32f>(tag);
    return l == Layout::Bq || l == Layout::Df1;
}
bool accepted_64f_32s(int32_t tag) { return layout_of<IIRState64f_32s>(tag) != Layout::None; }

} // namespace

extern "C" {

Status tavsIIR_32f_P_body(const Tav32f** pSrc, Tav32f** pDst, int len, int numChannels,
                          IIRState_32f** ppState)
{
    return planar(pSrc, pDst, len, numChannels, ppState, ErrChannelCount, accepted_32f,
                  [&](int c) { tavsIIR_32f_body(pSrc[c], pDst[c], len, ppState[c]); });
}

Status tavsIIR_32f_IP_body(Tav32f** pSrcDst, int len, int numChannels, IIRState_32f** ppState)
{
    return tavsIIR_32f_P_body(const_cast<const Tav32f**>(pSrcDst), pSrcDst, len, numChannels, ppState);
}

Status tavsIIR64f_32s_PSfs_body(const Tav32s** pSrc, Tav32s** pDst, int len, int numChannels,
                                IIRState64f_32s** ppState, const int* pScaleFactor)
{
    if (!pScaleFactor) return ErrNullPtr;
    return planar(pSrc, pDst, len, numChannels, ppState, ErrChannelCountFixed, accepted_64f_32s, [&](int c) {
        tavsIIR64f_32s_Sfs_body(pSrc[c], pDst[c], len, ppState[c], pScaleFactor[c]);
    });
}

Status tavsIIR64f_32s_IPSfs_body(Tav32s** pSrcDst, int len, int numChannels, IIRState64f_32s** ppState,
                                 const int* pScaleFactor)
{
    return tavsIIR64f_32s_PSfs_body(const_cast<const Tav32s**>(pSrcDst), pSrcDst, len, numChannels, ppState,
                                    pScaleFactor);
}

} // extern "C"
