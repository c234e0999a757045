// Filtering through the records of floating data: 32f, 32fc, 64f, 64fc, and
// 64f taps over 32f data (64fc over 32fc). Block, in-place and one-sample
// forms.
#include "internal/body.h"
#include "internal/iir_run.h"

using namespace tavs::iir;

namespace {

// Order 0 has no delay: dst = b0*src, four samples a step when the vectors
// are long enough and do not overlap (the products are the same either way).
void order0_32f(const Tav32f* src, Tav32f* dst, int len, float b0)
{
    const uintptr_t s = reinterpret_cast<uintptr_t>(src), d = reinterpret_cast<uintptr_t>(dst);
    const uintptr_t bytes = uintptr_t(len) * sizeof(float);
    int i = 0;
    if (len >= 7 && (s + bytes <= d || d + bytes <= s)) {
        const __m128 vb = _mm_set1_ps(b0);
        for (; i + 4 <= len; i += 4)
            _mm_storeu_ps(dst + i, _mm_mul_ps(_mm_loadu_ps(src + i), vb));
    }
    for (; i < len; ++i)
        st<float>(dst, i, b0 * ld<float>(src, i));
}

// The 32f record: arbitrary order (order 0 a plain scale), biquad cascade,
// or direct form I section by section.
void kern_32f(Record* r, Layout l, const Tav32f* src, Tav32f* dst, int len)
{
    if (l == Layout::Df1) {
        run_df1_32f(static_cast<const float*>(r->taps), static_cast<float*>(r->dlyLine), r->numBq, src, dst,
                    len);
    } else if (l == Layout::Arb && r->dlyLen == 0) {
        order0_32f(src, dst, len, *static_cast<const float*>(r->taps));
    } else {
        run_data<float>(r, l, src, dst, len, [](float y) { return y; });
    }
}

void kern_32fc(Record* r, Layout l, const Tav32fc* src, Tav32fc* dst, int len)
{
    run_data<C32>(r, l, src, dst, len, [](C32 y) { return Tav32fc{y.re, y.im}; });
}

void kern_64f(Record* r, Layout l, const Tav64f* src, Tav64f* dst, int len)
{
    run_data<double>(r, l, src, dst, len, [](double y) { return y; });
}

void kern_64fc(Record* r, Layout l, const Tav64fc* src, Tav64fc* dst, int len)
{
    run_data<C64>(r, l, src, dst, len, [](C64 y) { return Tav64fc{y.re, y.im}; });
}

// 64f taps over 32f data: widened on the way in, rounded to 32f on the way out.
void kern_64f_32f(Record* r, Layout l, const Tav32f* src, Tav32f* dst, int len)
{
    run_data<double>(r, l, src, dst, len, [](double y) { return float(y); });
}

void kern_64fc_32fc(Record* r, Layout l, const Tav32fc* src, Tav32fc* dst, int len)
{
    run_data<C64>(r, l, src, dst, len, [](C64 y) { return Tav32fc{float(y.re), float(y.im)}; });
}

} // namespace

extern "C" {

Status tavsIIR_32f_body(const Tav32f* pSrc, Tav32f* pDst, int len, IIRState_32f* pState)
{
    return block(pSrc, pDst, len, pState, kern_32f);
}
Status tavsIIR_32f_I_body(Tav32f* pSrcDst, int len, IIRState_32f* pState)
{
    return tavsIIR_32f_body(pSrcDst, pSrcDst, len, pState);
}
Status tavsIIROne_32f_body(Tav32f src, Tav32f* pDstVal, IIRState_32f* pState)
{
    return one(src, pDstVal, pState, kern_32f);
}

Status tavsIIR_32fc_body(const Tav32fc* pSrc, Tav32fc* pDst, int len, IIRState_32fc* pState)
{
    return block(pSrc, pDst, len, pState, kern_32fc);
}
Status tavsIIR_32fc_I_body(Tav32fc* pSrcDst, int len, IIRState_32fc* pState)
{
    return tavsIIR_32fc_body(pSrcDst, pSrcDst, len, pState);
}
Status tavsIIROne_32fc_body(Tav32fc src, Tav32fc* pDstVal, IIRState_32fc* pState)
{
    return one(src, pDstVal, pState, kern_32fc);
}

Status tavsIIR_64f_body(const Tav64f* pSrc, Tav64f* pDst, int len, IIRState_64f* pState)
{
    return block(pSrc, pDst, len, pState, kern_64f);
}
Status tavsIIR_64f_I_body(Tav64f* pSrcDst, int len, IIRState_64f* pState)
{
    return tavsIIR_64f_body(pSrcDst, pSrcDst, len, pState);
}
Status tavsIIROne_64f_body(Tav64f src, Tav64f* pDstVal, IIRState_64f* pState)
{
    return one(src, pDstVal, pState, kern_64f);
}

Status tavsIIR_64fc_body(const Tav64fc* pSrc, Tav64fc* pDst, int len, IIRState_64fc* pState)
{
    return block(pSrc, pDst, len, pState, kern_64fc);
}
Status tavsIIR_64fc_I_body(Tav64fc* pSrcDst, int len, IIRState_64fc* pState)
{
    return tavsIIR_64fc_body(pSrcDst, pSrcDst, len, pState);
}
Status tavsIIROne_64fc_body(Tav64fc src, Tav64fc* pDstVal, IIRState_64fc* pState)
{
    return one(src, pDstVal, pState, kern_64fc);
}

Status tavsIIR64f_32f_body(const Tav32f* pSrc, Tav32f* pDst, int len, IIRState64f_32f* pState)
{
    return block(pSrc, pDst, len, pState, kern_64f_32f);
}
Status tavsIIR64f_32f_I_body(Tav32f* pSrcDst, int len, IIRState64f_32f* pState)
{
    return tavsIIR64f_32f_body(pSrcDst, pSrcDst, len, pState);
}
Status tavsIIROne64f_32f_body(Tav32f src, Tav32f* pDstVal, IIRState64f_32f* pState)
{
    return one(src, pDstVal, pState, kern_64f_32f);
}

Status tavsIIR64fc_32fc_body(const Tav32fc* pSrc, Tav32fc* pDst, int len, IIRState64fc_32fc* pState)
{
    return block(pSrc, pDst, len, pState, kern_64fc_32fc);
}
Status tavsIIR64fc_32fc_I_body(Tav32fc* pSrcDst, int len, IIRState64fc_32fc* pState)
{
    return tavsIIR64fc_32fc_body(pSrcDst, pSrcDst, len, pState);
}
Status tavsIIROne64fc_32fc_body(Tav32fc src, Tav32fc* pDstVal, IIRState64fc_32fc* pState)
{
    return one(src, pDstVal, pState, kern_64fc_32fc);
}

} // extern "C"
