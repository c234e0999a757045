// Fixed-point FFT records. The 16-bit kinds (C_16sc, C_16s, R_16s) hold
// either the integer path's Q14 twiddles and swap list (order 1 to 8 with
// hint 0 or 1) or a nested floating record; the 32-bit kinds (C_32sc,
// C_32s, R_32s) and R_16s32s always nest a floating record after their
// 32-byte header.
#include "internal/body.h"
#include "internal/fft.h"
#include "internal/fft_spec_util.h"

#include <cstring>

using namespace tavs;
using namespace tavs::fft;

namespace {

// ---- the 16-bit kinds ---------------------------------------------------------

enum class Small { C16sc, C16s, R16s };

bool integer_path(int order, int hint) { return order == 0 || ((hint == 0 || hint == 1) && order <= 8); }

Sizes small_sizes(Small k, int order, int hint)
{
    const int64_t N = int64_t(1) << order;
    if (order == 0) return {136, 0, 0};
    if (integer_path(order, hint)) {
        const int64_t init = ((N / 2 + 65) & ~int64_t(63)) + 64;
        if (k == Small::R16s) return {a64(4 * N) + sizeA(N / 2) + a64(8 * N) + 192, init, 4 * N + 72};
        return {a64(8 * N) + sizeA(N) + 192, init, k == Small::C16s ? 12 * N + 64 : 8 * N + 64};
    }
    if (k == Small::R16s) {
        const Sizes f = real_sizes<float>(order);
        return {f.spec + 192, f.init + 64, f.work + 4 * N + 72};
    }
    const Sizes f = complex_sizes<float>(order);
    return {f.spec + 192, f.init + 64, f.work + 8 * N + 64};
}

constexpr int small_limit(Small k) { return k == Small::R16s ? Dims<float>::kRealMax : Dims<float>::kComplexMax; }
constexpr int32_t small_tag(Small k)
{
    return k == Small::C16sc ? tag::FFT_C_16sc : k == Small::C16s ? tag::FFT_C_16s : tag::FFT_R_16s;
}

Status small_get_size(Small k, int order, int flag, int hint, int* spec, int* init, int* work)
{
    return get_size(order, flag, small_limit(k), spec, init, work,
                    [&](int o) { return small_sizes(k, o, hint); });
}

Status small_init(Small k, SmallFixedSpec** pp, int order, int flag, int hint, Tav8u* block, Tav8u* initBuf)
{
    if (!pp) return ErrNullPtr;
    if (order_out_of_range(order)) return ErrFftOrder;
    if (order > small_limit(k)) return ErrFftOrder;
    if (!block) return ErrNullPtr;
    auto* rec = align64(reinterpret_cast<SmallFixedSpec*>(block));
    std::memset(static_cast<void*>(rec), 0, sizeof(SmallFixedSpec));
    if (bad_flag(flag)) return ErrFftFlag;
    Carver c(rec);
    c.take<SmallFixedSpec>(sizeof(SmallFixedSpec));
    const bool integer = integer_path(order, hint);
    if (!integer) {
        // The nested record is built with the same flag; its own Init checks
        // the init buffer.
        Status st;
        if (k == Small::R16s) {
            FloatSpec<float>* nested = nullptr;
            st = init_real<float>(&nested, order, flag, 0, c.here(), initBuf);
            rec->nested = nested;
        } else {
            FloatSpec<float>* nested = nullptr;
            st = init_complex<float>(&nested, order, flag, 0, c.here(), initBuf);
            // The split kind nests the split record, which shares every table.
            if (st == StatusOk && k == Small::C16s) nested->tag = tag::FFT_C_32f;
            rec->nested = nested;
        }
        if (st != StatusOk) {
            rec->nested = nullptr;
            return st;
        }
    } else if (order > 0) {
        const int64_t N = int64_t(1) << order;
        if (k == Small::R16s) {
            rec->twiddles = c.take<Tav16s>(a64(4 * N));
            build_q14_twiddles(rec->twiddles, order - 1);
            rec->swapList = c.take<int32_t>(sizeA(N / 2));
            build_swap_list(rec->swapList, order - 1);
            rec->twiddles2 = c.take<Tav16s>(a64(8 * N));
            build_q14_twiddles(rec->twiddles2, order);
        } else {
            rec->twiddles = c.take<Tav16s>(a64(8 * N));
            build_q14_twiddles(rec->twiddles, order);
            rec->swapList = c.take<int32_t>(sizeA(N));
            build_swap_list(rec->swapList, order);
        }
    }
    rec->order = order;
    rec->hint = hint;
    rec->usesFloat = integer ? 0 : 1;
    if (flag == ScaleFwdByLen) rec->fwdShift = order;
    if (flag == ScaleInvByLen) rec->invShift = order;
    if (flag == ScaleBothBySqrtLen) {
        rec->fwdShift = rec->invShift = order >> 1;
        rec->oddOrder = order & 1;
    }
    const Sizes s = small_sizes(k, order, hint);
    rec->workSize = int32_t(s.work > 0 ? s.work - 64 : 0);
    rec->tag = small_tag(k);
    *pp = rec;
    return StatusOk;
}

// ---- the wide kinds -------------------------------------------------------------

enum class Wide { C32sc, C32s, R32s, R16s32s };

Sizes wide_sizes(Wide k, int order)
{
    const int64_t N = int64_t(1) << order;
    Sizes f;
    int64_t extra;
    switch (k) {
    case Wide::C32sc:
    case Wide::C32s: f = complex_sizes<double>(order), extra = 16 * N; break;
    case Wide::R32s: f = real_sizes<double>(order), extra = 8 * N + 16; break;
    default: f = real_sizes<float>(order), extra = 4 * N + 8; break;
    }
    const int64_t w = f.work + extra;
    return {f.spec + 128, f.init > 0 ? f.init + 64 : 0, w > 0 ? w + 64 : 0};
}

constexpr int wide_limit(Wide k)
{
    return k == Wide::R16s32s ? Dims<float>::kRealMax : k == Wide::R32s ? Dims<double>::kRealMax : Dims<double>::kComplexMax;
}
constexpr int32_t wide_tag(Wide k)
{
    return k == Wide::C32sc ? tag::FFT_C_32sc : k == Wide::C32s ? tag::FFT_C_32s : k == Wide::R32s ? tag::FFT_R_32s : tag::FFT_R_16s32s;
}

Status wide_get_size(Wide k, int order, int flag, int* spec, int* init, int* work)
{
    return get_size(order, flag, wide_limit(k), spec, init, work, [&](int o) { return wide_sizes(k, o); });
}

// ppSpec, the order's unsigned range, the block; then the nested record
// (with its own checks) after the 32-byte header, flag passed, hint 0.
Status wide_init(Wide k, WideFixedSpec** pp, int order, int flag, int hint, Tav8u* block, Tav8u* initBuf)
{
    if (!pp) return ErrNullPtr;
    if (order_out_of_range(order)) return ErrFftOrder;
    if (!block) return ErrNullPtr;
    auto* rec = align64(reinterpret_cast<WideFixedSpec*>(block));
    std::memset(static_cast<void*>(rec), 0, sizeof(WideFixedSpec));
    Tav8u* nestedBlock = reinterpret_cast<Tav8u*>(rec) + sizeof(WideFixedSpec);
    Status st;
    void* nested = nullptr;
    if (k == Wide::R16s32s) {
        FloatSpec<float>* n = nullptr;
        st = init_real<float>(&n, order, flag, 0, nestedBlock, initBuf);
        nested = n;
    } else {
        FloatSpec<double>* n = nullptr;
        st = k == Wide::R32s ? init_real<double>(&n, order, flag, 0, nestedBlock, initBuf)
                             : init_complex<double>(&n, order, flag, 0, nestedBlock, initBuf);
        if (st == StatusOk && k == Wide::C32s) n->tag = tag::FFT_C_64f;
        nested = n;
    }
    if (st != StatusOk) return st;
    rec->order = order;
    rec->hint = hint;
    const Sizes s = wide_sizes(k, order);
    rec->workSize = int32_t(s.work > 0 ? s.work - 64 : 0);
    rec->nested = nested;
    rec->tag = wide_tag(k);
    *pp = rec;
    return StatusOk;
}

// The block of an InitAlloc record is the record itself: tavMalloc's blocks
// are 64-byte aligned, so carving starts at its first byte.
template <class Rec> void mark_allocated(Rec* rec, Tav8u*) { rec->allocated = 1; }
template <class Rec> void* block_of(Rec* rec) { return rec; }

} // namespace

#define TAVS_FFT_SMALL_KIND(K, KIND)                                                                          \
    extern "C" Status tavsFFTGetSize_##K##_body(int order, int flag, int hint, int* specSize, int* initBufSize, \
                                               int* workBufSize)                                            \
    {                                                                                                         \
        return small_get_size(KIND, order, flag, hint, specSize, initBufSize, workBufSize);                  \
    }                                                                                                         \
    extern "C" Status tavsFFTInit_##K##_body(FFTSpec_##K** ppSpec, int order, int flag, int hint,             \
                                            Tav8u* specBlock, Tav8u* initBuf)                                 \
    {                                                                                                         \
        return small_init(KIND, reinterpret_cast<SmallFixedSpec**>(ppSpec), order, flag, hint, specBlock,      \
                          initBuf);                                                                           \
    }                                                                                                         \
    extern "C" Status tavsFFTInitAlloc_##K##_body(FFTSpec_##K** ppSpec, int order, int flag, int hint)        \
    {                                                                                                         \
        return init_alloc(ppSpec, order, flag, hint, tavsFFTGetSize_##K##_body, tavsFFTInit_##K##_body,        \
                          mark_allocated<FFTSpec_##K>);                                                       \
    }                                                                                                         \
    extern "C" Status tavsFFTFree_##K##_body(FFTSpec_##K* pSpec)                                              \
    {                                                                                                         \
        return free_record(pSpec, small_tag(KIND), block_of<FFTSpec_##K>);                                    \
    }                                                                                                         \
    extern "C" Status tavsFFTGetBufSize_##K##_body(const FFTSpec_##K* pSpec, int* workBufSize)                \
    {                                                                                                         \
        return get_buf_size(pSpec, workBufSize, small_tag(KIND));                                             \
    }

#define TAVS_FFT_WIDE_KIND(K, KIND)                                                                           \
    extern "C" Status tavsFFTGetSize_##K##_body(int order, int flag, int hint, int* specSize, int* initBufSize, \
                                               int* workBufSize)                                            \
    {                                                                                                         \
        (void)hint;                                                                                           \
        return wide_get_size(KIND, order, flag, specSize, initBufSize, workBufSize);                         \
    }                                                                                                         \
    extern "C" Status tavsFFTInit_##K##_body(FFTSpec_##K** ppSpec, int order, int flag, int hint,             \
                                            Tav8u* specBlock, Tav8u* initBuf)                                 \
    {                                                                                                         \
        return wide_init(KIND, reinterpret_cast<WideFixedSpec**>(ppSpec), order, flag, hint, specBlock,        \
                         initBuf);                                                                            \
    }                                                                                                         \
    extern "C" Status tavsFFTInitAlloc_##K##_body(FFTSpec_##K** ppSpec, int order, int flag, int hint)        \
    {                                                                                                         \
        return init_alloc(ppSpec, order, flag, hint, tavsFFTGetSize_##K##_body, tavsFFTInit_##K##_body,        \
                          mark_allocated<FFTSpec_##K>);                                                       \
    }                                                                                                         \
    extern "C" Status tavsFFTFree_##K##_body(FFTSpec_##K* pSpec)                                              \
    {                                                                                                         \
        return free_record(pSpec, wide_tag(KIND), block_of<FFTSpec_##K>);                                     \
    }                                                                                                         \
    extern "C" Status tavsFFTGetBufSize_##K##_body(const FFTSpec_##K* pSpec, int* workBufSize)                \
    {                                                                                                         \
        return get_buf_size(pSpec, workBufSize, wide_tag(KIND));                                              \
    }

TAVS_FFT_SMALL_KIND(C_16sc, Small::C16sc)
TAVS_FFT_SMALL_KIND(C_16s, Small::C16s)
TAVS_FFT_SMALL_KIND(R_16s, Small::R16s)
TAVS_FFT_WIDE_KIND(C_32sc, Wide::C32sc)
TAVS_FFT_WIDE_KIND(C_32s, Wide::C32s)
TAVS_FFT_WIDE_KIND(R_32s, Wide::R32s)
TAVS_FFT_WIDE_KIND(R_16s32s, Wide::R16s32s)
