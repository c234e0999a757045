// Filtering integer data through floating taps (the _Sfs forms). The
// samples are widened to the taps' precision, the delay stays in floating
// form, and each output is scaled by 2^-scaleFactor, limited to the
// destination's range and rounded to nearest even by the conversion
// instruction.
#include "internal/body.h"
#include "internal/convert.h"
#include "internal/iir_run.h"

using namespace tavs::iir;

namespace {

// 32f taps (held as 32f for the 32s-tap records too) over 16s data; the
// scale is the 32f factor built from the low seven bits of scaleFactor.
auto kern_32f_16s(int sf)
{
    const float f = sfs_factor_32f(sf);
    return [f](Record* r, Layout l, const Tav16s* src, Tav16s* dst, int len) {
        run_data<float>(r, l, src, dst, len, [f](float y) { return round_16s(y * f); });
    };
}

auto kern_32fc_16sc(int sf)
{
    const float f = sfs_factor_32f(sf);
    return [f](Record* r, Layout l, const Tav16sc* src, Tav16sc* dst, int len) {
        run_data<C32>(r, l, src, dst, len, [f](C32 y) {
            return Tav16sc{round_16s(y.re * f), round_16s(y.im * f)};
        });
    };
}

// 64f taps: the scale is 2^-scaleFactor in 64f, built by halving or doubling.
auto kern_64f_16s(int sf)
{
    const double f = tavs::cvt::pow2_neg<double>(sf);
    return [f](Record* r, Layout l, const Tav16s* src, Tav16s* dst, int len) {
        run_data<double>(r, l, src, dst, len, [f](double y) { return round_16s(y * f); });
    };
}

auto kern_64fc_16sc(int sf)
{
    const double f = tavs::cvt::pow2_neg<double>(sf);
    return [f](Record* r, Layout l, const Tav16sc* src, Tav16sc* dst, int len) {
        run_data<C64>(r, l, src, dst, len, [f](C64 y) {
            return Tav16sc{round_16s(y.re * f), round_16s(y.im * f)};
        });
    };
}

// 64f taps over 32s data, including the direct form I cascade.
auto kern_64f_32s(int sf)
{
    const double f = tavs::cvt::pow2_neg<double>(sf);
    return [f](Record* r, Layout l, const Tav32s* src, Tav32s* dst, int len) {
        if (l == Layout::Df1)
            run_df1_64f_32s(static_cast<const double*>(r->taps), static_cast<int32_t*>(r->dlyLine), r->numBq,
                            src, dst, len, f);
        else
            run_data<double>(r, l, src, dst, len, [f](double y) { return round_32s(y * f); });
    };
}

auto kern_64fc_32sc(int sf)
{
    const double f = tavs::cvt::pow2_neg<double>(sf);
    return [f](Record* r, Layout l, const Tav32sc* src, Tav32sc* dst, int len) {
        run_data<C64>(r, l, src, dst, len, [f](C64 y) {
            return Tav32sc{round_32s(y.re * f), round_32s(y.im * f)};
        });
    };
}

} // namespace

extern "C" {

Status tavsIIR32f_16s_Sfs_body(const Tav16s* pSrc, Tav16s* pDst, int len, IIRState32f_16s* pState,
                               int scaleFactor)
{
    return block(pSrc, pDst, len, pState, kern_32f_16s(scaleFactor));
}
Status tavsIIR32f_16s_ISfs_body(Tav16s* pSrcDst, int len, IIRState32f_16s* pState, int scaleFactor)
{
    return tavsIIR32f_16s_Sfs_body(pSrcDst, pSrcDst, len, pState, scaleFactor);
}
Status tavsIIROne32f_16s_Sfs_body(Tav16s src, Tav16s* pDstVal, IIRState32f_16s* pState, int scaleFactor)
{
    return one(src, pDstVal, pState, kern_32f_16s(scaleFactor));
}

Status tavsIIR32s_16s_Sfs_body(const Tav16s* pSrc, Tav16s* pDst, int len, IIRState32s_16s* pState,
                               int scaleFactor)
{
    return block(pSrc, pDst, len, pState, kern_32f_16s(scaleFactor));
}
Status tavsIIR32s_16s_ISfs_body(Tav16s* pSrcDst, int len, IIRState32s_16s* pState, int scaleFactor)
{
    return tavsIIR32s_16s_Sfs_body(pSrcDst, pSrcDst, len, pState, scaleFactor);
}
Status tavsIIROne32s_16s_Sfs_body(Tav16s src, Tav16s* pDstVal, IIRState32s_16s* pState, int scaleFactor)
{
    return one(src, pDstVal, pState, kern_32f_16s(scaleFactor));
}

Status tavsIIR32fc_16sc_Sfs_body(const Tav16sc* pSrc, Tav16sc* pDst, int len, IIRState32fc_16sc* pState,
                                 int scaleFactor)
{
    return block(pSrc, pDst, len, pState, kern_32fc_16sc(scaleFactor));
}
Status tavsIIR32fc_16sc_ISfs_body(Tav16sc* pSrcDst, int len, IIRState32fc_16sc* pState, int scaleFactor)
{
    return tavsIIR32fc_16sc_Sfs_body(pSrcDst, pSrcDst, len, pState, scaleFactor);
}
Status tavsIIROne32fc_16sc_Sfs_body(Tav16sc src, Tav16sc* pDstVal, IIRState32fc_16sc* pState, int scaleFactor)
{
    return one(src, pDstVal, pState, kern_32fc_16sc(scaleFactor));
}

Status tavsIIR32sc_16sc_Sfs_body(const Tav16sc* pSrc, Tav16sc* pDst, int len, IIRState32sc_16sc* pState,
                                 int scaleFactor)
{
    return block(pSrc, pDst, len, pState, kern_32fc_16sc(scaleFactor));
}
Status tavsIIR32sc_16sc_ISfs_body(Tav16sc* pSrcDst, int len, IIRState32sc_16sc* pState, int scaleFactor)
{
    return tavsIIR32sc_16sc_Sfs_body(pSrcDst, pSrcDst, len, pState, scaleFactor);
}
Status tavsIIROne32sc_16sc_Sfs_body(Tav16sc src, Tav16sc* pDstVal, IIRState32sc_16sc* pState, int scaleFactor)
{
    return one(src, pDstVal, pState, kern_32fc_16sc(scaleFactor));
}

Status tavsIIR64f_16s_Sfs_body(const Tav16s* pSrc, Tav16s* pDst, int len, IIRState64f_16s* pState,
                               int scaleFactor)
{
    return block(pSrc, pDst, len, pState, kern_64f_16s(scaleFactor));
}
Status tavsIIR64f_16s_ISfs_body(Tav16s* pSrcDst, int len, IIRState64f_16s* pState, int scaleFactor)
{
    return tavsIIR64f_16s_Sfs_body(pSrcDst, pSrcDst, len, pState, scaleFactor);
}
Status tavsIIROne64f_16s_Sfs_body(Tav16s src, Tav16s* pDstVal, IIRState64f_16s* pState, int scaleFactor)
{
    return one(src, pDstVal, pState, kern_64f_16s(scaleFactor));
}

Status tavsIIR64fc_16sc_Sfs_body(const Tav16sc* pSrc, Tav16sc* pDst, int len, IIRState64fc_16sc* pState,
                                 int scaleFactor)
{
    return block(pSrc, pDst, len, pState, kern_64fc_16sc(scaleFactor));
}
Status tavsIIR64fc_16sc_ISfs_body(Tav16sc* pSrcDst, int len, IIRState64fc_16sc* pState, int scaleFactor)
{
    return tavsIIR64fc_16sc_Sfs_body(pSrcDst, pSrcDst, len, pState, scaleFactor);
}
Status tavsIIROne64fc_16sc_Sfs_body(Tav16sc src, Tav16sc* pDstVal, IIRState64fc_16sc* pState, int scaleFactor)
{
    return one(src, pDstVal, pState, kern_64fc_16sc(scaleFactor));
}

Status tavsIIR64f_32s_Sfs_body(const Tav32s* pSrc, Tav32s* pDst, int len, IIRState64f_32s* pState,
                               int scaleFactor)
{
    return block(pSrc, pDst, len, pState, kern_64f_32s(scaleFactor));
}
Status tavsIIR64f_32s_ISfs_body(Tav32s* pSrcDst, int len, IIRState64f_32s* pState, int scaleFactor)
{
    return tavsIIR64f_32s_Sfs_body(pSrcDst, pSrcDst, len, pState, scaleFactor);
}
Status tavsIIROne64f_32s_Sfs_body(Tav32s src, Tav32s* pDstVal, IIRState64f_32s* pState, int scaleFactor)
{
    return one(src, pDstVal, pState, kern_64f_32s(scaleFactor));
}

Status tavsIIR64fc_32sc_Sfs_body(const Tav32sc* pSrc, Tav32sc* pDst, int len, IIRState64fc_32sc* pState,
                                 int scaleFactor)
{
    return block(pSrc, pDst, len, pState, kern_64fc_32sc(scaleFactor));
}
Status tavsIIR64fc_32sc_ISfs_body(Tav32sc* pSrcDst, int len, IIRState64fc_32sc* pState, int scaleFactor)
{
    return tavsIIR64fc_32sc_Sfs_body(pSrcDst, pSrcDst, len, pState, scaleFactor);
}
Status tavsIIROne64fc_32sc_Sfs_body(Tav32sc src, Tav32sc* pDstVal, IIRState64fc_32sc* pState, int scaleFactor)
{
    return one(src, pDstVal, pState, kern_64fc_32sc(scaleFactor));
}

} // extern "C"
