#include "internal/body.h"
#include "internal/fir_fft.h"

// The real FFT operations of the overlap-save path: forward to Perm order,
// the Perm product with the transformed taps, inverse from Perm order.
namespace tavs::fir {

Status FftOps<Tav32f>::fwd(const Tav32f* in, Tav32f* out, const void* spec, Tav8u* buf)
{
    return tavsFFTFwd_RToPerm_32f_body(in, out, static_cast<const Spec*>(spec), buf);
}
Status FftOps<Tav32f>::inv(const Tav32f* in, Tav32f* out, const void* spec, Tav8u* buf)
{
    return tavsFFTInv_PermToR_32f_body(in, out, static_cast<const Spec*>(spec), buf);
}
Status FftOps<Tav32f>::mul(const Tav32f* taps, Tav32f* w, int n) { return tavsMulPerm_32f_I_body(taps, w, n); }

Status FftOps<Tav64f>::fwd(const Tav64f* in, Tav64f* out, const void* spec, Tav8u* buf)
{
    return tavsFFTFwd_RToPerm_64f_body(in, out, static_cast<const Spec*>(spec), buf);
}
Status FftOps<Tav64f>::inv(const Tav64f* in, Tav64f* out, const void* spec, Tav8u* buf)
{
    return tavsFFTInv_PermToR_64f_body(in, out, static_cast<const Spec*>(spec), buf);
}
Status FftOps<Tav64f>::mul(const Tav64f* taps, Tav64f* w, int n) { return tavsMulPerm_64f_I_body(taps, w, n); }

} // namespace tavs::fir
