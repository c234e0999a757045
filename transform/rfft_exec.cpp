// The real FFT bodies: forward to Perm, Pack and CCS, inverse from each,
// 32f and 64f, out of place and in place. Checks: record null, its tag,
// the data pointers; then the work buffer. Orders up to 5 run the direct
// real kernels; above, the half-length complex transform with the post-step
// (forward) or the pre-step before it (inverse). The inverse avoids a
// separate bit-reversal pass: at small orders its pre-step goes to a stack
// scratch block that the complex inverse reads through its fused bit
// reversal; above, out of place, the pre-step writes straight into
// bit-reversed order. The layout steps move the two real values X[0],
// X[N/2] between the Perm slots and their places in Pack and CCS; the
// inverse reads Pack through an index offset instead of moving it, except
// in place at large orders.
#include "internal/body.h"
#include "internal/fft_spec_util.h"
#include "internal/rfft.h"

#include <cstring>

namespace tavs::fft {

namespace {

// Perm in d (N values) to the layout; CCS writes N + 2 values.
template <class S> void perm_to_layout(RealLayout lay, S* d, int64_t N)
{
    if (lay == RealLayout::Pack) {
        if (N <= 2) return;
        const S y = d[1];
        std::memmove(d + 1, d + 2, size_t(N - 2) * sizeof(S));
        d[N - 1] = y;
    } else if (lay == RealLayout::CCS) {
        if (N == 1) {
            d[1] = 0;
            return;
        }
        d[N] = d[1];
        d[N + 1] = 0;
        d[1] = 0;
    }
}

// Bytes of the stack scratch of the inverse at small orders: the half-length
// spectrum of 8192 floats (order 13) or 4096 doubles (order 12). Going from
// 16 KB to 32 KB made the inverse of order 13 in 32f (and of order 12 in
// 64f) about 10% faster: the scattered stores of the reversed pre-step are
// the cost it avoids.
constexpr int64_t kScratchBytes = 32768;

// Pack in src to Perm in d (src may equal d).
template <class S> void pack_to_perm(const S* src, S* d, int64_t N)
{
    const S x0 = src[0], y = src[N - 1];
    if (N > 2) std::memmove(d + 2, src + 1, size_t(N - 2) * sizeof(S));
    d[0] = x0;
    if (N >= 2) d[1] = y;
}

} // namespace

template <class S> Status real_forward(const FloatSpec<S>* spec, RealLayout lay, const S* src, S* dst, Tav8u* wsp)
{
    WorkBuffer wb;
    const Status st = wb.acquire(wsp, spec->workSize);
    if (st != StatusOk) return st;
    const int order = spec->order;
    const bool scaled = spec->fwdScales != 0;
    if (order <= 5) {
        real_direct_fwd<S>(order, scaled, spec->scale.value, src, dst);
    } else if (!real_forward_blocks(spec, scaled, spec->scale.value, src, dst)) {
        complex_interleaved<S>(spec, order - 1, false, scaled, spec->scale.value, src, dst, wb.get());
        real_post_step<S>(spec, dst);
    }
    perm_to_layout(lay, dst, int64_t(1) << order);
    return StatusOk;
}
template Status real_forward<float>(const FloatSpec<float>*, RealLayout, const float*, float*, Tav8u*);
template Status real_forward<double>(const FloatSpec<double>*, RealLayout, const double*, double*, Tav8u*);

template <class S> Status real_inverse(const FloatSpec<S>* spec, RealLayout lay, const S* src, S* dst, Tav8u* wsp)
{
    WorkBuffer wb;
    const Status st = wb.acquire(wsp, spec->workSize);
    if (st != StatusOk) return st;
    const int order = spec->order;
    const int64_t N = int64_t(1) << order;
    const bool scaled = spec->invScales != 0;
    if (order >= 7) {
        const int off = lay == RealLayout::Pack ? -1 : 0;
        const S s0 = src[0], s1 = lay == RealLayout::Pack ? src[N - 1] : lay == RealLayout::CCS ? src[N] : src[1];
        if (N * int64_t(sizeof(S)) <= kScratchBytes) {
            // Small orders: the pre-step in natural order into a scratch
            // block on the stack, then the complex inverse from there, whose
            // bit reversal is fused with its first pass. In place this is
            // safe too: the whole source is read before dst is written.
            alignas(64) S scratch[kScratchBytes / sizeof(S)];
            real_pre_step<S>(spec, s0, s1, src, off, scratch);
            complex_interleaved<S>(spec, order - 1, true, scaled, spec->scale.value, scratch, dst, wb.get());
            return StatusOk;
        }
        if constexpr (sizeof(S) == 4) {
            // Out of place where the rows fit the local blocks: the pre-step
            // is done as the rows are read in.
            if (src != dst && real_inverse_fused(spec, s0, s1, src, off, dst, wb.get())) return StatusOk;
        }
        if (src != dst) {
            // Out of place: the pre-step puts its values straight into their
            // bit-reversed places, so the complex inverse needs no
            // permutation pass.
            real_pre_step_reversed<S>(spec, s0, s1, src, off, dst);
            complex_interleaved_reversed<S>(spec, order - 1, true, scaled, spec->scale.value, dst, wb.get());
            return StatusOk;
        }
    }
    if (lay == RealLayout::Pack) {
        // Pack is read after a move into Perm order, in place on dst.
        pack_to_perm(src, dst, N);
        src = dst;
    }
    const S s0 = src[0];
    const S s1 = N == 1 ? S(0) : lay == RealLayout::CCS ? src[N] : src[1];
    if (order <= 5) {
        if (src != dst && N > 2) std::memcpy(dst + 2, src + 2, size_t(N - 2) * sizeof(S));
        dst[0] = s0;
        if (N >= 2) dst[1] = s1;
        real_direct_inv<S>(order, scaled, spec->scale.value, dst);
        return StatusOk;
    }
    real_pre_step<S>(spec, s0, s1, src, 0, dst);
    complex_interleaved<S>(spec, order - 1, true, scaled, spec->scale.value, dst, dst, wb.get());
    return StatusOk;
}
template Status real_inverse<float>(const FloatSpec<float>*, RealLayout, const float*, float*, Tav8u*);
template Status real_inverse<double>(const FloatSpec<double>*, RealLayout, const double*, double*, Tav8u*);

} // namespace tavs::fft

using namespace tavs::fft;

namespace {

template <bool Inv, class S, class Rec>
Status run(const S* src, S* dst, const Rec* spec, Tav8u* wsp, int32_t tag, RealLayout lay)
{
    if (!spec) return ErrNullPtr;
    if (spec->tag != tag) return ErrContextMismatch;
    if (!src || !dst) return ErrNullPtr;
    return Inv ? real_inverse<S>(spec, lay, src, dst, wsp) : real_forward<S>(spec, lay, src, dst, wsp);
}

} // namespace

// One transform in both precisions, out of place and in place.
#define TAVS_RFFT(NAME, INV, LAY)                                                                              \
    extern "C" Status tavs##NAME##_32f_body(const Tav32f* src, Tav32f* dst, const FFTSpec_R_32f* pSpec,         \
                                            Tav8u* pBuffer)                                                     \
    {                                                                                                          \
        return run<INV>(src, dst, pSpec, pBuffer, tavs::tag::FFT_R_32f, RealLayout::LAY);                       \
    }                                                                                                          \
    extern "C" Status tavs##NAME##_32f_I_body(Tav32f* srcDst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer)       \
    {                                                                                                          \
        return tavs##NAME##_32f_body(srcDst, srcDst, pSpec, pBuffer);                                          \
    }                                                                                                          \
    extern "C" Status tavs##NAME##_64f_body(const Tav64f* src, Tav64f* dst, const FFTSpec_R_64f* pSpec,         \
                                            Tav8u* pBuffer)                                                     \
    {                                                                                                          \
        return run<INV>(src, dst, pSpec, pBuffer, tavs::tag::FFT_R_64f, RealLayout::LAY);                       \
    }                                                                                                          \
    extern "C" Status tavs##NAME##_64f_I_body(Tav64f* srcDst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer)       \
    {                                                                                                          \
        return tavs##NAME##_64f_body(srcDst, srcDst, pSpec, pBuffer);                                          \
    }

TAVS_RFFT(FFTFwd_RToPerm, false, Perm)
TAVS_RFFT(FFTFwd_RToPack, false, Pack)
TAVS_RFFT(FFTFwd_RToCCS, false, CCS)
TAVS_RFFT(FFTInv_PermToR, true, Perm)
TAVS_RFFT(FFTInv_PackToR, true, Pack)
TAVS_RFFT(FFTInv_CCSToR, true, CCS)
