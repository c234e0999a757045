// Real FFT, 32f, out of place: forward to Perm and inverse from Perm,
// N = 2^6 .. 2^20, against FFTW's r2c and c2r plans (FFTW_MEASURE, out of
// place). Both sides unscaled. FFTW's c2r plan may overwrite its input (its
// default); it is run on whatever is left there, as the plan allows. Items
// processed: N real samples per call.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "bench_util.h"
#include "tavs.h"

#ifdef TAVS_HAVE_FFTW3F
#include <fftw3.h>
#endif

namespace {

using bench::order_of;

std::vector<float> real_signal(int64_t n)
{
    std::vector<float> x(static_cast<size_t>(n));
    for (int64_t i = 0; i < n; ++i) x[size_t(i)] = float(std::sin(0.1 * double(i)) + 0.25 * std::cos(0.37 * double(i)));
    return x;
}

template <bool Inverse> void bm_rfft_tavs(benchmark::State& state)
{
    const int64_t n = state.range(0);
    FFTSpec_R_32f* spec = nullptr;
    if (tavsFFTInitAlloc_R_32f(&spec, order_of(n), ScaleNever, 0) != StatusOk) {
        state.SkipWithError("init failed");
        return;
    }
    int bufSize = 0;
    tavsFFTGetBufSize_R_32f(spec, &bufSize);
    Tav8u* buf = bufSize ? tavsMalloc_8u(bufSize) : nullptr;
    Tav32f* src = tavsMalloc_32f(int(n));
    Tav32f* dst = tavsMalloc_32f(int(n));
    const auto x = real_signal(n);
    std::copy(x.begin(), x.end(), src);
    if (Inverse) {
        tavsFFTFwd_RToPerm_32f(src, dst, spec, buf); // a real spectrum as the source
        std::copy(dst, dst + n, src);
    }
    for (auto _ : state) {
        if (Inverse) tavsFFTInv_PermToR_32f(src, dst, spec, buf);
        else tavsFFTFwd_RToPerm_32f(src, dst, spec, buf);
        benchmark::DoNotOptimize(dst);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * n);
    tavsFree(src);
    tavsFree(dst);
    tavsFree(buf);
    tavsFFTFree_R_32f(spec);
}

#ifdef TAVS_HAVE_FFTW3F
template <bool Inverse> void bm_rfft_fftw(benchmark::State& state)
{
    const int n = int(state.range(0));
    float* real = fftwf_alloc_real(size_t(n));
    fftwf_complex* cplx = fftwf_alloc_complex(size_t(n / 2 + 1));
    fftwf_plan p = Inverse ? fftwf_plan_dft_c2r_1d(n, cplx, real, FFTW_MEASURE)
                           : fftwf_plan_dft_r2c_1d(n, real, cplx, FFTW_MEASURE);
    const auto x = real_signal(n);
    std::copy(x.begin(), x.end(), real);
    if (Inverse) {
        fftwf_plan f = fftwf_plan_dft_r2c_1d(n, real, cplx, FFTW_ESTIMATE);
        fftwf_execute(f);
        fftwf_destroy_plan(f);
    }
    for (auto _ : state) {
        fftwf_execute(p);
        benchmark::DoNotOptimize(real);
        benchmark::DoNotOptimize(cplx);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * n);
    fftwf_destroy_plan(p);
    fftwf_free(real);
    fftwf_free(cplx);
}
#endif

} // namespace

#define RFFT_SIZES RangeMultiplier(2)->Range(64, 1 << 20)

BENCHMARK(bm_rfft_tavs<false>)->Name("FFTFwd_RToPerm_32f/tavs")->RFFT_SIZES;
#ifdef TAVS_HAVE_FFTW3F
BENCHMARK(bm_rfft_fftw<false>)->Name("FFTFwd_RToPerm_32f/fftw")->RFFT_SIZES;
#endif
BENCHMARK(bm_rfft_tavs<true>)->Name("FFTInv_PermToR_32f/tavs")->RFFT_SIZES;
#ifdef TAVS_HAVE_FFTW3F
BENCHMARK(bm_rfft_fftw<true>)->Name("FFTInv_PermToR_32f/fftw")->RFFT_SIZES;
#endif
