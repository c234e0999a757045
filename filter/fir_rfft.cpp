#include "internal/body.h"
#include "internal/fir_fft.h"

// The real FFT operations of the overlap-save path: forward to Perm order,
// the Perm product with the transformed taps, inverse from Perm order.
namespace tavs::fir {

namespace {
// w = taps * w in Perm order: two real slots (DC and Nyquist), then pairs.
template <class F> Status perm_mul(const F* t, F* w, int n)
{
    w[0] = t[0] * w[0];
    if (n > 1) w[1] = t[1] * w[1];
    for (int k = 2; k + 1 < n; k += 2) {
        const F a = t[k], b = t[k + 1], c = w[k], d = w[k + 1];
        w[k] = a * c - b * d;
        w[k + 1] = a * d + b * c;
    }
    return StatusOk;
}
} // namespace

Status FftOps<Tav32f>::fwd(const Tav32f* in, Tav32f* out, const void* spec, Tav8u* buf)
{
    return tavsFFTFwd_RToPerm_32f_body(in, out, static_cast<const Spec*>(spec), buf);
}
Status FftOps<Tav32f>::inv(const Tav32f* in, Tav32f* out, const void* spec, Tav8u* buf)
{
    return tavsFFTInv_PermToR_32f_body(in, out, static_cast<const Spec*>(spec), buf);
}
Status FftOps<Tav32f>::mul(const Tav32f* taps, Tav32f* w, int n) { return perm_mul(taps, w, n); }

Status FftOps<Tav64f>::fwd(const Tav64f* in, Tav64f* out, const void* spec, Tav8u* buf)
{
    return tavsFFTFwd_RToPerm_64f_body(in, out, static_cast<const Spec*>(spec), buf);
}
Status FftOps<Tav64f>::inv(const Tav64f* in, Tav64f* out, const void* spec, Tav8u* buf)
{
    return tavsFFTInv_PermToR_64f_body(in, out, static_cast<const Spec*>(spec), buf);
}
Status FftOps<Tav64f>::mul(const Tav64f* taps, Tav64f* w, int n) { return perm_mul(taps, w, n); }

} // namespace tavs::fir
