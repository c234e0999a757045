// Forward complex FFT, out of place, interleaved 32fc and 64fc, N = 2^6 .. 2^20,
// against FFTW (plans made with FFTW_MEASURE) and KissFFT, same sizes and
// placement. Items processed: 5 N log2 N flops, so the reported rate reads
// as flops per second (mflops = rate / 1e6).
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "bench_util.h"
#include "tavs.h"

#ifdef TAVS_HAVE_FFTW3F
#include <fftw3.h>
#elif defined(TAVS_HAVE_FFTW3)
#include <fftw3.h>
#endif
#ifdef TAVS_HAVE_KISSFFT
#include <kiss_fft.h>
#endif

namespace {

using bench::order_of;

void set_flops(benchmark::State& state, int64_t n)
{
    const double flops = 5.0 * double(n) * double(order_of(n));
    state.SetItemsProcessed(int64_t(state.iterations() * flops));
}

template <class C> std::vector<C> signal(int64_t n)
{
    std::vector<C> x(static_cast<size_t>(n));
    for (int64_t i = 0; i < n; ++i) {
        x[size_t(i)].re = decltype(x[0].re)(std::sin(0.1 * double(i)) + 0.25 * std::cos(0.37 * double(i)));
        x[size_t(i)].im = decltype(x[0].re)(std::cos(0.05 * double(i)));
    }
    return x;
}

void bm_fft_32fc_tavs(benchmark::State& state)
{
    const int64_t n = state.range(0);
    FFTSpec_C_32fc* spec = nullptr;
    if (tavsFFTInitAlloc_C_32fc(&spec, order_of(n), ScaleNever, 0) != StatusOk) {
        state.SkipWithError("init failed");
        return;
    }
    int bufSize = 0;
    tavsFFTGetBufSize_C_32fc(spec, &bufSize);
    Tav8u* buf = bufSize ? tavsMalloc_8u(bufSize) : nullptr;
    Tav32fc* src = tavsMalloc_32fc(int(n));
    Tav32fc* dst = tavsMalloc_32fc(int(n));
    const auto x = signal<Tav32fc>(n);
    std::copy(x.begin(), x.end(), src);
    for (auto _ : state) {
        tavsFFTFwd_CToC_32fc(src, dst, spec, buf);
        benchmark::DoNotOptimize(dst);
        benchmark::ClobberMemory();
    }
    set_flops(state, n);
    tavsFree(src);
    tavsFree(dst);
    tavsFree(buf);
    tavsFFTFree_C_32fc(spec);
}

void bm_fft_64fc_tavs(benchmark::State& state)
{
    const int64_t n = state.range(0);
    FFTSpec_C_64fc* spec = nullptr;
    if (tavsFFTInitAlloc_C_64fc(&spec, order_of(n), ScaleNever, 0) != StatusOk) {
        state.SkipWithError("init failed");
        return;
    }
    int bufSize = 0;
    tavsFFTGetBufSize_C_64fc(spec, &bufSize);
    Tav8u* buf = bufSize ? tavsMalloc_8u(bufSize) : nullptr;
    Tav64fc* src = tavsMalloc_64fc(int(n));
    Tav64fc* dst = tavsMalloc_64fc(int(n));
    const auto x = signal<Tav64fc>(n);
    std::copy(x.begin(), x.end(), src);
    for (auto _ : state) {
        tavsFFTFwd_CToC_64fc(src, dst, spec, buf);
        benchmark::DoNotOptimize(dst);
        benchmark::ClobberMemory();
    }
    set_flops(state, n);
    tavsFree(src);
    tavsFree(dst);
    tavsFree(buf);
    tavsFFTFree_C_64fc(spec);
}

#ifdef TAVS_HAVE_FFTW3F
void bm_fft_32fc_fftw(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto* src = fftwf_alloc_complex(size_t(n));
    auto* dst = fftwf_alloc_complex(size_t(n));
    fftwf_plan p = fftwf_plan_dft_1d(n, src, dst, FFTW_FORWARD, FFTW_MEASURE);
    const auto x = signal<Tav32fc>(n);
    for (int i = 0; i < n; ++i) src[i][0] = x[size_t(i)].re, src[i][1] = x[size_t(i)].im;
    for (auto _ : state) {
        fftwf_execute(p);
        benchmark::DoNotOptimize(dst);
        benchmark::ClobberMemory();
    }
    set_flops(state, n);
    fftwf_destroy_plan(p);
    fftwf_free(src);
    fftwf_free(dst);
}
#endif

#ifdef TAVS_HAVE_FFTW3
void bm_fft_64fc_fftw(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto* src = fftw_alloc_complex(size_t(n));
    auto* dst = fftw_alloc_complex(size_t(n));
    fftw_plan p = fftw_plan_dft_1d(n, src, dst, FFTW_FORWARD, FFTW_MEASURE);
    const auto x = signal<Tav64fc>(n);
    for (int i = 0; i < n; ++i) src[i][0] = x[size_t(i)].re, src[i][1] = x[size_t(i)].im;
    for (auto _ : state) {
        fftw_execute(p);
        benchmark::DoNotOptimize(dst);
        benchmark::ClobberMemory();
    }
    set_flops(state, n);
    fftw_destroy_plan(p);
    fftw_free(src);
    fftw_free(dst);
}
#endif

#ifdef TAVS_HAVE_KISSFFT
void bm_fft_32fc_kissfft(benchmark::State& state)
{
    const int n = int(state.range(0));
    kiss_fft_cfg cfg = kiss_fft_alloc(n, 0, nullptr, nullptr);
    std::vector<kiss_fft_cpx> src(static_cast<size_t>(n)), dst(static_cast<size_t>(n));
    const auto x = signal<Tav32fc>(n);
    for (int i = 0; i < n; ++i) src[size_t(i)].r = x[size_t(i)].re, src[size_t(i)].i = x[size_t(i)].im;
    for (auto _ : state) {
        kiss_fft(cfg, src.data(), dst.data());
        benchmark::DoNotOptimize(dst.data());
        benchmark::ClobberMemory();
    }
    set_flops(state, n);
    kiss_fft_free(cfg);
}
#endif

} // namespace

#define FFT_SIZES RangeMultiplier(2)->Range(64, 1 << 20)

BENCHMARK(bm_fft_32fc_tavs)->Name("FFTFwd_CToC_32fc/tavs")->FFT_SIZES;
#ifdef TAVS_HAVE_FFTW3F
BENCHMARK(bm_fft_32fc_fftw)->Name("FFTFwd_CToC_32fc/fftw")->FFT_SIZES;
#endif
#ifdef TAVS_HAVE_KISSFFT
BENCHMARK(bm_fft_32fc_kissfft)->Name("FFTFwd_CToC_32fc/kissfft")->FFT_SIZES;
#endif
BENCHMARK(bm_fft_64fc_tavs)->Name("FFTFwd_CToC_64fc/tavs")->FFT_SIZES;
#ifdef TAVS_HAVE_FFTW3
BENCHMARK(bm_fft_64fc_fftw)->Name("FFTFwd_CToC_64fc/fftw")->FFT_SIZES;
#endif
