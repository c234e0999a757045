// The FFT operations of the overlap-save path, one set per record element:
// complex records use the complex FFT with a pointwise complex product, real
// records the real FFT in Perm order with the Perm product. Every record is
// built with scaling flag 2 (the inverse divides by the length) and hint 0.
#pragma once

#include "internal/body.h"

namespace tavs::fir {

template <class X> struct FftOps;

template <> struct FftOps<Tav32fc> {
    using Spec = FFTSpec_C_32fc;
    static Status get_size(int order, int* s1, int* s2, int* s3)
    {
        return tavsFFTGetSize_C_32fc_body(order, ScaleInvByLen, HintNone, s1, s2, s3);
    }
    static Status init(void** spec, int order, Tav8u* block, Tav8u* initBuf)
    {
        return tavsFFTInit_C_32fc_body(reinterpret_cast<Spec**>(spec), order, ScaleInvByLen, HintNone, block, initBuf);
    }
    static Status free(void* spec) { return tavsFFTFree_C_32fc_body(static_cast<Spec*>(spec)); }
    static Status fwd(const Tav32fc* in, Tav32fc* out, const void* spec, Tav8u* buf)
    {
        return tavsFFTFwd_CToC_32fc_body(in, out, static_cast<const Spec*>(spec), buf);
    }
    static Status inv(const Tav32fc* in, Tav32fc* out, const void* spec, Tav8u* buf)
    {
        return tavsFFTInv_CToC_32fc_body(in, out, static_cast<const Spec*>(spec), buf);
    }
    static Status mul(const Tav32fc* taps, Tav32fc* w, int n) { return tavsMul_32fc_I_body(taps, w, n); }
};

template <> struct FftOps<Tav64fc> {
    using Spec = FFTSpec_C_64fc;
    static Status get_size(int order, int* s1, int* s2, int* s3)
    {
        return tavsFFTGetSize_C_64fc_body(order, ScaleInvByLen, HintNone, s1, s2, s3);
    }
    static Status init(void** spec, int order, Tav8u* block, Tav8u* initBuf)
    {
        return tavsFFTInit_C_64fc_body(reinterpret_cast<Spec**>(spec), order, ScaleInvByLen, HintNone, block, initBuf);
    }
    static Status free(void* spec) { return tavsFFTFree_C_64fc_body(static_cast<Spec*>(spec)); }
    static Status fwd(const Tav64fc* in, Tav64fc* out, const void* spec, Tav8u* buf)
    {
        return tavsFFTFwd_CToC_64fc_body(in, out, static_cast<const Spec*>(spec), buf);
    }
    static Status inv(const Tav64fc* in, Tav64fc* out, const void* spec, Tav8u* buf)
    {
        return tavsFFTInv_CToC_64fc_body(in, out, static_cast<const Spec*>(spec), buf);
    }
    static Status mul(const Tav64fc* taps, Tav64fc* w, int n) { return tavsMul_64fc_I_body(taps, w, n); }
};

// Real records: sizes and records from the FFT record family; the
// transforms and the Perm product are defined in fir_rfft.cpp.
template <> struct FftOps<Tav32f> {
    using Spec = FFTSpec_R_32f;
    static Status get_size(int order, int* s1, int* s2, int* s3)
    {
        return tavsFFTGetSize_R_32f_body(order, ScaleInvByLen, HintNone, s1, s2, s3);
    }
    static Status init(void** spec, int order, Tav8u* block, Tav8u* initBuf)
    {
        return tavsFFTInit_R_32f_body(reinterpret_cast<Spec**>(spec), order, ScaleInvByLen, HintNone, block, initBuf);
    }
    static Status free(void* spec) { return tavsFFTFree_R_32f_body(static_cast<Spec*>(spec)); }
    static Status fwd(const Tav32f* in, Tav32f* out, const void* spec, Tav8u* buf);
    static Status inv(const Tav32f* in, Tav32f* out, const void* spec, Tav8u* buf);
    static Status mul(const Tav32f* taps, Tav32f* w, int n);
};

template <> struct FftOps<Tav64f> {
    using Spec = FFTSpec_R_64f;
    static Status get_size(int order, int* s1, int* s2, int* s3)
    {
        return tavsFFTGetSize_R_64f_body(order, ScaleInvByLen, HintNone, s1, s2, s3);
    }
    static Status init(void** spec, int order, Tav8u* block, Tav8u* initBuf)
    {
        return tavsFFTInit_R_64f_body(reinterpret_cast<Spec**>(spec), order, ScaleInvByLen, HintNone, block, initBuf);
    }
    static Status free(void* spec) { return tavsFFTFree_R_64f_body(static_cast<Spec*>(spec)); }
    static Status fwd(const Tav64f* in, Tav64f* out, const void* spec, Tav8u* buf);
    static Status inv(const Tav64f* in, Tav64f* out, const void* spec, Tav8u* buf);
    static Status mul(const Tav64f* taps, Tav64f* w, int n);
};

} // namespace tavs::fir
