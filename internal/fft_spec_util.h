// Shared steps of the FFT record queries: the argument checks of GetSize,
// the InitAlloc sequence, Free and GetBufSize, written once for every kind.
#pragma once

#include "internal/fft.h"
#include "internal/memory.h"

namespace tavs::fft {

inline bool order_out_of_range(int order) { return unsigned(order) > unsigned(kOrderMax); }
inline bool bad_flag(int flag) { return flag != ScaleNever && flag != ScaleBothBySqrtLen && flag != ScaleFwdByLen && flag != ScaleInvByLen; }

// GetSize: order (unsigned) first, then the three pointers, then the flag,
// then the kind's order limit. sizes(order) gives the three byte counts.
template <class SizeFn>
Status get_size(int order, int flag, int limit, int* specSize, int* initSize, int* workSize, SizeFn sizes)
{
    if (order_out_of_range(order)) return ErrFftOrder;
    if (!specSize || !initSize || !workSize) return ErrNullPtr;
    if (bad_flag(flag)) return ErrFftFlag;
    if (order > limit) return ErrFftOrder;
    const Sizes s = sizes(order);
    *specSize = int(s.spec);
    *initSize = int(s.init);
    *workSize = int(s.work);
    return StatusOk;
}

// InitAlloc: size, allocate the block and (if needed) the init scratch,
// run Init, release the scratch; on success the record is marked as
// allocated, on failure the block is released. getSize and init have the
// shapes of the kind's GetSize and Init bodies.
template <class Rec, class GetSizeFn, class InitFn, class MarkFn>
Status init_alloc(Rec** ppSpec, int order, int flag, int hint, GetSizeFn getSize, InitFn init, MarkFn mark)
{
    int specSize = 0, initSize = 0, workSize = 0;
    Status st = getSize(order, flag, hint, &specSize, &initSize, &workSize);
    if (st != StatusOk) return st;
    auto* block = static_cast<Tav8u*>(alloc_bytes(specSize));
    if (!block) return ErrMemAlloc;
    Tav8u* scratch = nullptr;
    if (initSize > 0) {
        scratch = static_cast<Tav8u*>(alloc_bytes(initSize));
        if (!scratch) {
            tavsFree_body(block);
            return ErrMemAlloc;
        }
    }
    Rec* rec = nullptr;
    st = init(ppSpec ? &rec : nullptr, order, flag, hint, block, scratch);
    tavsFree_body(scratch);
    if (st != StatusOk) {
        tavsFree_body(block);
        return st;
    }
    mark(rec, block);
    *ppSpec = rec;
    return StatusOk;
}

// Free: null, then the tag; the tag is cleared and an allocated block is
// released. blockOf gives the block to release.
template <class Hdr, class BlockFn> Status free_record(Hdr* h, int32_t expectTag, BlockFn blockOf)
{
    if (!h) return ErrNullPtr;
    if (h->tag != expectTag) return ErrContextMismatch;
    h->tag = 0;
    if (h->allocated == 1) tavsFree_body(blockOf(h));
    return StatusOk;
}

// GetBufSize: the stored work size plus 64 bytes of alignment slack, or 0.
template <class Hdr> Status get_buf_size(const Hdr* h, int* size, int32_t expectTag)
{
    if (!h || !size) return ErrNullPtr;
    if (h->tag != expectTag) return ErrContextMismatch;
    *size = h->workSize >= 1 ? h->workSize + 64 : 0;
    return StatusOk;
}

} // namespace tavs::fft

// The record types of the public header, laid out as the internal headers.
struct FFTSpec_C_32fc : tavs::fft::FloatSpec<float> {};
struct FFTSpec_C_32f : tavs::fft::FloatSpec<float> {};
struct FFTSpec_R_32f : tavs::fft::FloatSpec<float> {};
struct FFTSpec_C_64fc : tavs::fft::FloatSpec<double> {};
struct FFTSpec_C_64f : tavs::fft::FloatSpec<double> {};
struct FFTSpec_R_64f : tavs::fft::FloatSpec<double> {};
struct FFTSpec_C_16sc : tavs::fft::SmallFixedSpec {};
struct FFTSpec_C_16s : tavs::fft::SmallFixedSpec {};
struct FFTSpec_R_16s : tavs::fft::SmallFixedSpec {};
struct FFTSpec_C_32sc : tavs::fft::WideFixedSpec {};
struct FFTSpec_C_32s : tavs::fft::WideFixedSpec {};
struct FFTSpec_R_32s : tavs::fft::WideFixedSpec {};
struct FFTSpec_R_16s32s : tavs::fft::WideFixedSpec {};
