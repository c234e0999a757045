// Floating FFT records: C_32fc, C_32f, R_32f, C_64fc, C_64f, R_64f. Sizing,
// Init (carving the caller's block at 64 bytes), InitAlloc, Free, GetBufSize.
#include "internal/body.h"
#include "internal/fft.h"
#include "internal/fft_spec_util.h"

#include <cmath>
#include <cstring>

namespace tavs::fft {

template <class S> int64_t carve_complex_tables(FloatSpec<S>* spec, Carver& c, int m, const QuarterSine<S>& qs)
{
    using D = Dims<S>;
    if (m <= 5) return 0; // the direct kernels hold their constants inline
    const int64_t N = int64_t(1) << m;
    spec->swapList = c.take<int32_t>(sizeA(N));
    build_swap_list(spec->swapList, m);
    if (m <= 10) {
        spec->radixFour = c.take<S>(D::B(N));
        build_radix_four(spec->radixFour, N, qs);
        return 0;
    }
    int64_t work = 0;
    int cur = m;
    for (int level = 0;; ++level) {
        const int F = first_factor_bits<S>(cur);
        if (F == 0) {
            // Blocked merge over the whole row (2048 or 4096 points).
            const int64_t L = int64_t(1) << cur;
            spec->merge = c.take<S>(a64(L / 4 * D::Elem));
            build_merge(spec->merge, L, qs);
            spec->radixFour = c.take<S>(D::B(1024));
            build_radix_four(spec->radixFour, int64_t(1024), qs);
            break;
        }
        const int64_t R = int64_t(1) << F;
        const int64_t M = int64_t(1) << (cur - F);
        spec->levelRadixFour[level] = c.take<S>(D::B(R));
        build_radix_four(spec->levelRadixFour[level], R, qs);
        spec->levelColumns[level] = c.take<S>(D::Elem * (R * M));
        build_columns(spec->levelColumns[level], R, M, qs);
        if (D::Col * R > work) work = D::Col * R;
        cur -= F;
        if (cur <= 10) {
            spec->radixFour = c.take<S>(D::B(M));
            build_radix_four(spec->radixFour, M, qs);
            break;
        }
    }
    return work;
}
template int64_t carve_complex_tables<float>(FloatSpec<float>*, Carver&, int, const QuarterSine<float>&);
template int64_t carve_complex_tables<double>(FloatSpec<double>*, Carver&, int, const QuarterSine<double>&);

namespace {

// Scaling fields from the flag, for a transform of N = 2^order points. In
// 32f 1/N is a float division and 1/sqrt N a double one rounded once.
template <class S> void set_scaling(FloatSpec<S>* r, int order, int flag)
{
    const double N = double(int64_t(1) << order);
    r->fwdScales = (flag == ScaleFwdByLen || flag == ScaleBothBySqrtLen) ? 1 : 0;
    r->invScales = (flag == ScaleInvByLen || flag == ScaleBothBySqrtLen) ? 1 : 0;
    if (flag == ScaleFwdByLen || flag == ScaleInvByLen) r->scale.value = S(1) / static_cast<S>(N);
    else if (flag == ScaleBothBySqrtLen) r->scale.value = static_cast<S>(1.0 / std::sqrt(N));
}

// The checks and header common to both floating Inits, up to the tables.
template <class S>
Status init_head(FloatSpec<S>*& rec, int order, int limit, int flag, int hint, Tav8u* block, const Tav8u* initBuf,
                 const void* ppSpec)
{
    if (!ppSpec) return ErrNullPtr;
    if (order_out_of_range(order)) return ErrFftOrder;
    if (order > limit) return ErrFftOrder;
    if (!block) return ErrNullPtr;
    rec = align64(reinterpret_cast<FloatSpec<S>*>(block));
    std::memset(static_cast<void*>(rec), 0, sizeof(FloatSpec<S>));
    if (bad_flag(flag)) return ErrFftFlag;
    if (order > 10 && !initBuf) return ErrNullPtr;
    rec->order = order;
    rec->hint = hint;
    set_scaling(rec, order, flag);
    return StatusOk;
}

} // namespace

template <class S>
Status init_complex(FloatSpec<S>** pp, int order, int flag, int hint, Tav8u* block, Tav8u* initBuf)
{
    FloatSpec<S>* rec = nullptr;
    Status st = init_head(rec, order, Dims<S>::kComplexMax, flag, hint, block, initBuf, pp);
    if (st != StatusOk) return st;
    const QuarterSine<S> qs = quarter_sine<S>(order, order > 10 ? align64(reinterpret_cast<S*>(initBuf)) : nullptr);
    Carver c(rec);
    c.take<FloatSpec<S>>(sizeof(FloatSpec<S>));
    rec->workSize = int32_t(carve_complex_tables(rec, c, order, qs));
    rec->tag = sizeof(S) == 4 ? tag::FFT_C_32fc : tag::FFT_C_64fc;
    *pp = rec;
    return StatusOk;
}
template Status init_complex<float>(FloatSpec<float>**, int, int, int, Tav8u*, Tav8u*);
template Status init_complex<double>(FloatSpec<double>**, int, int, int, Tav8u*, Tav8u*);

template <class S>
Status init_real(FloatSpec<S>** pp, int order, int flag, int hint, Tav8u* block, Tav8u* initBuf)
{
    FloatSpec<S>* rec = nullptr;
    Status st = init_head(rec, order, Dims<S>::kRealMax, flag, hint, block, initBuf, pp);
    if (st != StatusOk) return st;
    const QuarterSine<S> qs = quarter_sine<S>(order, order > 10 ? align64(reinterpret_cast<S*>(initBuf)) : nullptr);
    Carver c(rec);
    c.take<FloatSpec<S>>(sizeof(FloatSpec<S>));
    if (order >= 7) rec->workSize = int32_t(carve_complex_tables(rec, c, order - 1, qs));
    if (order >= 6) {
        const int64_t T = real_table_bytes<S>(order);
        rec->realFwd = c.take<S>(T);
        rec->realInv = c.take<S>(T);
        build_real_tables(rec->realFwd, rec->realInv, order, qs);
    }
    rec->tag = sizeof(S) == 4 ? tag::FFT_R_32f : tag::FFT_R_64f;
    *pp = rec;
    return StatusOk;
}
template Status init_real<float>(FloatSpec<float>**, int, int, int, Tav8u*, Tav8u*);
template Status init_real<double>(FloatSpec<double>**, int, int, int, Tav8u*, Tav8u*);

} // namespace tavs::fft

using namespace tavs::fft;

namespace {

template <class Rec> void mark_allocated(Rec* rec, Tav8u* block)
{
    rec->allocated = 1;
    rec->base = block;
}

template <class Rec> void* block_of(Rec* rec) { return rec->base; }

} // namespace

// One kind's five bodies. SZ: the sizing function; INIT: the Init of the
// record family; TAG: its tag; RETAG: the tag written over the family's.
#define TAVS_FFT_FLOAT_KIND(K, S, SZ, LIMIT, INIT, TAG)                                                      \
    extern "C" Status tavsFFTGetSize_##K##_body(int order, int flag, int hint, int* specSize, int* initBufSize, \
                                               int* workBufSize)                                            \
    {                                                                                                         \
        (void)hint;                                                                                           \
        return get_size(order, flag, LIMIT, specSize, initBufSize, workBufSize, SZ<S>);                        \
    }                                                                                                         \
    extern "C" Status tavsFFTInit_##K##_body(FFTSpec_##K** ppSpec, int order, int flag, int hint,             \
                                            Tav8u* specBlock, Tav8u* initBuf)                                 \
    {                                                                                                         \
        if (!ppSpec) return ErrNullPtr;                                                                       \
        FloatSpec<S>* rec = nullptr;                                                                          \
        Status st = INIT<S>(&rec, order, flag, hint, specBlock, initBuf);                                     \
        if (st != StatusOk) return st;                                                                        \
        rec->tag = TAG;                                                                                       \
        *ppSpec = static_cast<FFTSpec_##K*>(rec);                                                             \
        return StatusOk;                                                                                      \
    }                                                                                                         \
    extern "C" Status tavsFFTInitAlloc_##K##_body(FFTSpec_##K** ppSpec, int order, int flag, int hint)        \
    {                                                                                                         \
        return init_alloc(ppSpec, order, flag, hint, tavsFFTGetSize_##K##_body, tavsFFTInit_##K##_body,        \
                          mark_allocated<FFTSpec_##K>);                                                       \
    }                                                                                                         \
    extern "C" Status tavsFFTFree_##K##_body(FFTSpec_##K* pSpec)                                              \
    {                                                                                                         \
        return free_record(pSpec, TAG, block_of<FFTSpec_##K>);                                                \
    }                                                                                                         \
    extern "C" Status tavsFFTGetBufSize_##K##_body(const FFTSpec_##K* pSpec, int* workBufSize)                \
    {                                                                                                         \
        return get_buf_size(pSpec, workBufSize, TAG);                                                         \
    }

TAVS_FFT_FLOAT_KIND(C_32fc, float, complex_sizes, 27, init_complex, tavs::tag::FFT_C_32fc)
TAVS_FFT_FLOAT_KIND(C_32f, float, complex_sizes, 27, init_complex, tavs::tag::FFT_C_32f)
TAVS_FFT_FLOAT_KIND(R_32f, float, real_sizes, 28, init_real, tavs::tag::FFT_R_32f)
TAVS_FFT_FLOAT_KIND(C_64fc, double, complex_sizes, 26, init_complex, tavs::tag::FFT_C_64fc)
TAVS_FFT_FLOAT_KIND(C_64f, double, complex_sizes, 26, init_complex, tavs::tag::FFT_C_64f)
TAVS_FFT_FLOAT_KIND(R_64f, double, real_sizes, 27, init_real, tavs::tag::FFT_R_64f)
