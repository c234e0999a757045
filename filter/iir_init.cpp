// Init and InitAlloc of every recursive-filter record.
#include "internal/body.h"
#include "internal/iir_state.h"

using namespace tavs::iir;

extern "C" {

// ---- Init over the caller's block ------------------------------------------------
Status tavsIIRInit_32f_body(IIRState_32f** ppState, const Tav32f* pTaps, int order, const Tav32f* pDlyLine,
                            Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit_BiQuad_32f_body(IIRState_32f** ppState, const Tav32f* pTaps, int numBq,
                                   const Tav32f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit_BiQuad_DF1_32f_body(IIRState_32f** ppState, const Tav32f* pTaps, int numBq,
                                       const Tav32f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Df1, pDlyLine, pBuf);
}
Status tavsIIRInit_32fc_body(IIRState_32fc** ppState, const Tav32fc* pTaps, int order,
                             const Tav32fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit_BiQuad_32fc_body(IIRState_32fc** ppState, const Tav32fc* pTaps, int numBq,
                                    const Tav32fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit_64f_body(IIRState_64f** ppState, const Tav64f* pTaps, int order, const Tav64f* pDlyLine,
                            Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit_BiQuad_64f_body(IIRState_64f** ppState, const Tav64f* pTaps, int numBq,
                                   const Tav64f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit_64fc_body(IIRState_64fc** ppState, const Tav64fc* pTaps, int order,
                             const Tav64fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit_BiQuad_64fc_body(IIRState_64fc** ppState, const Tav64fc* pTaps, int numBq,
                                    const Tav64fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit32f_16s_body(IIRState32f_16s** ppState, const Tav32f* pTaps, int order,
                               const Tav32f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit32f_BiQuad_16s_body(IIRState32f_16s** ppState, const Tav32f* pTaps, int numBq,
                                      const Tav32f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit32fc_16sc_body(IIRState32fc_16sc** ppState, const Tav32fc* pTaps, int order,
                                 const Tav32fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit32fc_BiQuad_16sc_body(IIRState32fc_16sc** ppState, const Tav32fc* pTaps, int numBq,
                                        const Tav32fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit32s_16s_body(IIRState32s_16s** ppState, const Tav32s* pTaps, int order, int tapsFactor,
                               const Tav32f* pDlyLine, Tav8u* pBuf)
{
    return init_32s(ppState, pTaps, order, Layout::Arb, tapsFactor, pDlyLine, pBuf);
}
Status tavsIIRInit32s_16s32f_body(IIRState32s_16s** ppState, const Tav32f* pTaps, int order,
                                  const Tav32f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit32s_BiQuad_16s_body(IIRState32s_16s** ppState, const Tav32s* pTaps, int numBq,
                                      int tapsFactor, const Tav32f* pDlyLine, Tav8u* pBuf)
{
    return init_32s(ppState, pTaps, numBq, Layout::Bq, tapsFactor, pDlyLine, pBuf);
}
Status tavsIIRInit32s_BiQuad_16s32f_body(IIRState32s_16s** ppState, const Tav32f* pTaps, int numBq,
                                         const Tav32f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit32sc_16sc_body(IIRState32sc_16sc** ppState, const Tav32sc* pTaps, int order, int tapsFactor,
                                 const Tav32fc* pDlyLine, Tav8u* pBuf)
{
    return init_32s(ppState, pTaps, order, Layout::Arb, tapsFactor, pDlyLine, pBuf);
}
Status tavsIIRInit32sc_16sc32fc_body(IIRState32sc_16sc** ppState, const Tav32fc* pTaps, int order,
                                     const Tav32fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit32sc_BiQuad_16sc_body(IIRState32sc_16sc** ppState, const Tav32sc* pTaps, int numBq,
                                        int tapsFactor, const Tav32fc* pDlyLine, Tav8u* pBuf)
{
    return init_32s(ppState, pTaps, numBq, Layout::Bq, tapsFactor, pDlyLine, pBuf);
}
Status tavsIIRInit32sc_BiQuad_16sc32fc_body(IIRState32sc_16sc** ppState, const Tav32fc* pTaps, int numBq,
                                            const Tav32fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit64f_16s_body(IIRState64f_16s** ppState, const Tav64f* pTaps, int order,
                               const Tav64f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit64f_BiQuad_16s_body(IIRState64f_16s** ppState, const Tav64f* pTaps, int numBq,
                                      const Tav64f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit64fc_16sc_body(IIRState64fc_16sc** ppState, const Tav64fc* pTaps, int order,
                                 const Tav64fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit64fc_BiQuad_16sc_body(IIRState64fc_16sc** ppState, const Tav64fc* pTaps, int numBq,
                                        const Tav64fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit64f_32f_body(IIRState64f_32f** ppState, const Tav64f* pTaps, int order,
                               const Tav64f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit64f_BiQuad_32f_body(IIRState64f_32f** ppState, const Tav64f* pTaps, int numBq,
                                      const Tav64f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit64fc_32fc_body(IIRState64fc_32fc** ppState, const Tav64fc* pTaps, int order,
                                 const Tav64fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit64fc_BiQuad_32fc_body(IIRState64fc_32fc** ppState, const Tav64fc* pTaps, int numBq,
                                        const Tav64fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit64f_32s_body(IIRState64f_32s** ppState, const Tav64f* pTaps, int order,
                               const Tav64f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit64f_BiQuad_32s_body(IIRState64f_32s** ppState, const Tav64f* pTaps, int numBq,
                                      const Tav64f* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}
Status tavsIIRInit64f_BiQuad_DF1_32s_body(IIRState64f_32s** ppState, const Tav64f* pTaps, int numBq,
                                          const Tav32s* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Df1, pDlyLine, pBuf);
}
Status tavsIIRInit64fc_32sc_body(IIRState64fc_32sc** ppState, const Tav64fc* pTaps, int order,
                                 const Tav64fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, order, Layout::Arb, pDlyLine, pBuf);
}
Status tavsIIRInit64fc_BiQuad_32sc_body(IIRState64fc_32sc** ppState, const Tav64fc* pTaps, int numBq,
                                        const Tav64fc* pDlyLine, Tav8u* pBuf)
{
    return init(ppState, pTaps, numBq, Layout::Bq, pDlyLine, pBuf);
}

// ---- InitAlloc ------------------------------------------------------------------
Status tavsIIRInitAlloc_32f_body(IIRState_32f** ppState, const Tav32f* pTaps, int order,
                                 const Tav32f* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc_BiQuad_32f_body(IIRState_32f** ppState, const Tav32f* pTaps, int numBq,
                                        const Tav32f* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc_BiQuad_DF1_32f_body(IIRState_32f** ppState, const Tav32f* pTaps, int numBq,
                                            const Tav32f* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Df1, pDlyLine);
}
Status tavsIIRInitAlloc_32fc_body(IIRState_32fc** ppState, const Tav32fc* pTaps, int order,
                                  const Tav32fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc_BiQuad_32fc_body(IIRState_32fc** ppState, const Tav32fc* pTaps, int numBq,
                                         const Tav32fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc_64f_body(IIRState_64f** ppState, const Tav64f* pTaps, int order,
                                 const Tav64f* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc_BiQuad_64f_body(IIRState_64f** ppState, const Tav64f* pTaps, int numBq,
                                        const Tav64f* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc_64fc_body(IIRState_64fc** ppState, const Tav64fc* pTaps, int order,
                                  const Tav64fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc_BiQuad_64fc_body(IIRState_64fc** ppState, const Tav64fc* pTaps, int numBq,
                                         const Tav64fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc32f_16s_body(IIRState32f_16s** ppState, const Tav32f* pTaps, int order,
                                    const Tav32f* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc32f_BiQuad_16s_body(IIRState32f_16s** ppState, const Tav32f* pTaps, int numBq,
                                           const Tav32f* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc32fc_16sc_body(IIRState32fc_16sc** ppState, const Tav32fc* pTaps, int order,
                                      const Tav32fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc32fc_BiQuad_16sc_body(IIRState32fc_16sc** ppState, const Tav32fc* pTaps, int numBq,
                                             const Tav32fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc32s_16s_body(IIRState32s_16s** ppState, const Tav32s* pTaps, int order, int tapsFactor,
                                    const Tav32f* pDlyLine)
{
    return init_alloc_32s(ppState, pTaps, order, Layout::Arb, tapsFactor, pDlyLine);
}
Status tavsIIRInitAlloc32s_16s32f_body(IIRState32s_16s** ppState, const Tav32f* pTaps, int order,
                                       const Tav32f* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc32s_BiQuad_16s_body(IIRState32s_16s** ppState, const Tav32s* pTaps, int numBq,
                                           int tapsFactor, const Tav32f* pDlyLine)
{
    return init_alloc_32s(ppState, pTaps, numBq, Layout::Bq, tapsFactor, pDlyLine);
}
Status tavsIIRInitAlloc32s_BiQuad_16s32f_body(IIRState32s_16s** ppState, const Tav32f* pTaps, int numBq,
                                              const Tav32f* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc32sc_16sc_body(IIRState32sc_16sc** ppState, const Tav32sc* pTaps, int order,
                                      int tapsFactor, const Tav32fc* pDlyLine)
{
    return init_alloc_32s(ppState, pTaps, order, Layout::Arb, tapsFactor, pDlyLine);
}
Status tavsIIRInitAlloc32sc_16sc32fc_body(IIRState32sc_16sc** ppState, const Tav32fc* pTaps, int order,
                                          const Tav32fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc32sc_BiQuad_16sc_body(IIRState32sc_16sc** ppState, const Tav32sc* pTaps, int numBq,
                                             int tapsFactor, const Tav32fc* pDlyLine)
{
    return init_alloc_32s(ppState, pTaps, numBq, Layout::Bq, tapsFactor, pDlyLine);
}
Status tavsIIRInitAlloc32sc_BiQuad_16sc32fc_body(IIRState32sc_16sc** ppState, const Tav32fc* pTaps, int numBq,
                                                 const Tav32fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc64f_16s_body(IIRState64f_16s** ppState, const Tav64f* pTaps, int order,
                                    const Tav64f* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc64f_BiQuad_16s_body(IIRState64f_16s** ppState, const Tav64f* pTaps, int numBq,
                                           const Tav64f* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc64fc_16sc_body(IIRState64fc_16sc** ppState, const Tav64fc* pTaps, int order,
                                      const Tav64fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc64fc_BiQuad_16sc_body(IIRState64fc_16sc** ppState, const Tav64fc* pTaps, int numBq,
                                             const Tav64fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc64f_32f_body(IIRState64f_32f** ppState, const Tav64f* pTaps, int order,
                                    const Tav64f* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc64f_BiQuad_32f_body(IIRState64f_32f** ppState, const Tav64f* pTaps, int numBq,
                                           const Tav64f* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc64fc_32fc_body(IIRState64fc_32fc** ppState, const Tav64fc* pTaps, int order,
                                      const Tav64fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc64fc_BiQuad_32fc_body(IIRState64fc_32fc** ppState, const Tav64fc* pTaps, int numBq,
                                             const Tav64fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc64f_32s_body(IIRState64f_32s** ppState, const Tav64f* pTaps, int order,
                                    const Tav64f* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc64f_BiQuad_32s_body(IIRState64f_32s** ppState, const Tav64f* pTaps, int numBq,
                                           const Tav64f* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}
Status tavsIIRInitAlloc64f_BiQuad_DF1_32s_body(IIRState64f_32s** ppState, const Tav64f* pTaps, int numBq,
                                               const Tav32s* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Df1, pDlyLine);
}
Status tavsIIRInitAlloc64fc_32sc_body(IIRState64fc_32sc** ppState, const Tav64fc* pTaps, int order,
                                      const Tav64fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, order, Layout::Arb, pDlyLine);
}
Status tavsIIRInitAlloc64fc_BiQuad_32sc_body(IIRState64fc_32sc** ppState, const Tav64fc* pTaps, int numBq,
                                             const Tav64fc* pDlyLine)
{
    return init_alloc(ppState, pTaps, numBq, Layout::Bq, pDlyLine);
}

} // extern "C"
