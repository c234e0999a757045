// The complex FFT bodies: forward and inverse, interleaved and split, 32f
// and 64f, out of place and in place. Checks: record null, its tag, the data
// pointers; then the work buffer (taken from the caller or allocated).
#include "internal/body.h"
#include "internal/fft.h"
#include "internal/fft_spec_util.h"
#include "internal/memory.h"

namespace tavs::fft {

WorkBuffer::~WorkBuffer() { tavsFree_body(owned_); }

Status WorkBuffer::acquire(Tav8u* wsp, int32_t size)
{
    if (size <= 0) return StatusOk;
    if (wsp) {
        p_ = align64(wsp);
        return StatusOk;
    }
    owned_ = alloc_bytes(size);
    if (!owned_) return ErrMemAlloc;
    p_ = static_cast<unsigned char*>(owned_);
    return StatusOk;
}

} // namespace tavs::fft

using namespace tavs::fft;

namespace {

template <bool Inv, class S, class Rec>
Status interleaved(const S* src, S* dst, const Rec* spec, Tav8u* wsp, int32_t tag)
{
    if (!spec) return ErrNullPtr;
    if (spec->tag != tag) return ErrContextMismatch;
    if (!src || !dst) return ErrNullPtr;
    WorkBuffer wb;
    const Status st = wb.acquire(wsp, spec->workSize);
    if (st != StatusOk) return st;
    const bool scaled = (Inv ? spec->invScales : spec->fwdScales) != 0;
    complex_interleaved<S>(spec, spec->order, Inv, scaled, spec->scale.value, src, dst, wb.get());
    return StatusOk;
}

template <bool Inv, class S, class Rec>
Status split(const S* srcRe, const S* srcIm, S* dstRe, S* dstIm, const Rec* spec, Tav8u* wsp, int32_t tag)
{
    if (!spec) return ErrNullPtr;
    if (spec->tag != tag) return ErrContextMismatch;
    if (!srcRe || !srcIm || !dstRe || !dstIm) return ErrNullPtr;
    WorkBuffer wb;
    const Status st = wb.acquire(wsp, spec->workSize);
    if (st != StatusOk) return st;
    const bool scaled = (Inv ? spec->invScales : spec->fwdScales) != 0;
    complex_split<S>(spec, spec->order, Inv, scaled, spec->scale.value, srcRe, srcIm, dstRe, dstIm, wb.get());
    return StatusOk;
}

constexpr int32_t kTag32fc = tavs::tag::FFT_C_32fc, kTag64fc = tavs::tag::FFT_C_64fc;
constexpr int32_t kTag32f = tavs::tag::FFT_C_32f, kTag64f = tavs::tag::FFT_C_64f;

} // namespace

extern "C" {

Status tavsFFTFwd_CToC_32fc_body(const Tav32fc* src, Tav32fc* dst, const FFTSpec_C_32fc* pSpec, Tav8u* pBuffer)
{
    return interleaved<false>(reinterpret_cast<const float*>(src), reinterpret_cast<float*>(dst), pSpec, pBuffer,
                              kTag32fc);
}
Status tavsFFTInv_CToC_32fc_body(const Tav32fc* src, Tav32fc* dst, const FFTSpec_C_32fc* pSpec, Tav8u* pBuffer)
{
    return interleaved<true>(reinterpret_cast<const float*>(src), reinterpret_cast<float*>(dst), pSpec, pBuffer,
                             kTag32fc);
}
Status tavsFFTFwd_CToC_32fc_I_body(Tav32fc* srcDst, const FFTSpec_C_32fc* pSpec, Tav8u* pBuffer)
{
    return tavsFFTFwd_CToC_32fc_body(srcDst, srcDst, pSpec, pBuffer);
}
Status tavsFFTInv_CToC_32fc_I_body(Tav32fc* srcDst, const FFTSpec_C_32fc* pSpec, Tav8u* pBuffer)
{
    return tavsFFTInv_CToC_32fc_body(srcDst, srcDst, pSpec, pBuffer);
}

Status tavsFFTFwd_CToC_64fc_body(const Tav64fc* src, Tav64fc* dst, const FFTSpec_C_64fc* pSpec, Tav8u* pBuffer)
{
    return interleaved<false>(reinterpret_cast<const double*>(src), reinterpret_cast<double*>(dst), pSpec, pBuffer,
                              kTag64fc);
}
Status tavsFFTInv_CToC_64fc_body(const Tav64fc* src, Tav64fc* dst, const FFTSpec_C_64fc* pSpec, Tav8u* pBuffer)
{
    return interleaved<true>(reinterpret_cast<const double*>(src), reinterpret_cast<double*>(dst), pSpec, pBuffer,
                             kTag64fc);
}
Status tavsFFTFwd_CToC_64fc_I_body(Tav64fc* srcDst, const FFTSpec_C_64fc* pSpec, Tav8u* pBuffer)
{
    return tavsFFTFwd_CToC_64fc_body(srcDst, srcDst, pSpec, pBuffer);
}
Status tavsFFTInv_CToC_64fc_I_body(Tav64fc* srcDst, const FFTSpec_C_64fc* pSpec, Tav8u* pBuffer)
{
    return tavsFFTInv_CToC_64fc_body(srcDst, srcDst, pSpec, pBuffer);
}

Status tavsFFTFwd_CToC_32f_body(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dstRe, Tav32f* dstIm,
                                const FFTSpec_C_32f* pSpec, Tav8u* pBuffer)
{
    return split<false>(srcRe, srcIm, dstRe, dstIm, pSpec, pBuffer, kTag32f);
}
Status tavsFFTInv_CToC_32f_body(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dstRe, Tav32f* dstIm,
                                const FFTSpec_C_32f* pSpec, Tav8u* pBuffer)
{
    return split<true>(srcRe, srcIm, dstRe, dstIm, pSpec, pBuffer, kTag32f);
}
Status tavsFFTFwd_CToC_32f_I_body(Tav32f* srcDstRe, Tav32f* srcDstIm, const FFTSpec_C_32f* pSpec, Tav8u* pBuffer)
{
    return tavsFFTFwd_CToC_32f_body(srcDstRe, srcDstIm, srcDstRe, srcDstIm, pSpec, pBuffer);
}
Status tavsFFTInv_CToC_32f_I_body(Tav32f* srcDstRe, Tav32f* srcDstIm, const FFTSpec_C_32f* pSpec, Tav8u* pBuffer)
{
    return tavsFFTInv_CToC_32f_body(srcDstRe, srcDstIm, srcDstRe, srcDstIm, pSpec, pBuffer);
}

Status tavsFFTFwd_CToC_64f_body(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dstRe, Tav64f* dstIm,
                                const FFTSpec_C_64f* pSpec, Tav8u* pBuffer)
{
    return split<false>(srcRe, srcIm, dstRe, dstIm, pSpec, pBuffer, kTag64f);
}
Status tavsFFTInv_CToC_64f_body(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dstRe, Tav64f* dstIm,
                                const FFTSpec_C_64f* pSpec, Tav8u* pBuffer)
{
    return split<true>(srcRe, srcIm, dstRe, dstIm, pSpec, pBuffer, kTag64f);
}
Status tavsFFTFwd_CToC_64f_I_body(Tav64f* srcDstRe, Tav64f* srcDstIm, const FFTSpec_C_64f* pSpec, Tav8u* pBuffer)
{
    return tavsFFTFwd_CToC_64f_body(srcDstRe, srcDstIm, srcDstRe, srcDstIm, pSpec, pBuffer);
}
Status tavsFFTInv_CToC_64f_I_body(Tav64f* srcDstRe, Tav64f* srcDstIm, const FFTSpec_C_64f* pSpec, Tav8u* pBuffer)
{
    return tavsFFTInv_CToC_64f_body(srcDstRe, srcDstIm, srcDstRe, srcDstIm, pSpec, pBuffer);
}

} // extern "C"
