// FIR filters on 4096-sample blocks: FIR_32f with 16 to 1024 taps and
// FIR_32fc with 64 taps, against a plain direct loop and liquid-dsp's FIR
// filter (block execution) when installed. FIR_32f_I on 4096 samples always
// runs the direct path, so the pair FIR_32f / FIR_32f_I shows where the FFT
// path starts to pay.
#include <benchmark/benchmark.h>

#include <cmath>
#include <complex>
#include <vector>

#include "tavs.h"

#ifdef TAVS_HAVE_LIQUID
#include <liquid/liquid.h>
#endif

namespace {

std::vector<float> taps_32f(int n)
{
    std::vector<float> h(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) h[size_t(i)] = float(std::sin(0.37 * i + 0.1) / n);
    return h;
}
std::vector<float> signal_32f(size_t n)
{
    std::vector<float> v(n);
    for (size_t i = 0; i < n; ++i) v[i] = float(std::sin(0.01 * double(i)) + 0.25 * std::sin(0.9 * double(i)));
    return v;
}

// ---- FIR_32f ------------------------------------------------------------------

struct Rec32f {
    std::vector<Tav8u> mem;
    FIRState_32f* st = nullptr;
    explicit Rec32f(const std::vector<float>& h)
    {
        int size = 0;
        tavsFIRGetStateSize_32f(int(h.size()), &size);
        mem.resize(static_cast<size_t>(size));
        tavsFIRInit_32f(&st, h.data(), int(h.size()), nullptr, mem.data());
    }
};

void bm_fir_32f_tavs(benchmark::State& state, int taps)
{
    const int n = int(state.range(0));
    Rec32f r(taps_32f(taps));
    auto x = signal_32f(size_t(n));
    std::vector<float> y(x.size());
    for (auto _ : state) {
        tavsFIR_32f(x.data(), y.data(), n, r.st);
        benchmark::DoNotOptimize(y.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * n);
}

// In place on 4096 samples: the direct path at every tap count.
void bm_fir_32f_direct_tavs(benchmark::State& state, int taps)
{
    const int n = int(state.range(0));
    Rec32f r(taps_32f(taps));
    auto x = signal_32f(size_t(n));
    std::vector<float> y(x.size());
    for (auto _ : state) {
        y = x;
        tavsFIR_32f_I(y.data(), n, r.st);
        benchmark::DoNotOptimize(y.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * n);
}

// The loop a caller would write: history then block, one output at a time.
void bm_fir_32f_loop(benchmark::State& state, int taps)
{
    const int n = int(state.range(0));
    auto h = taps_32f(taps);
    auto x = signal_32f(size_t(n));
    std::vector<float> buf(size_t(taps - 1 + n), 0.0f), y(x.size());
    for (auto _ : state) {
        std::copy(buf.end() - (taps - 1), buf.end(), buf.begin());
        std::copy(x.begin(), x.end(), buf.begin() + (taps - 1));
        for (int k = 0; k < n; ++k) {
            float s = 0.0f;
            const float* p = buf.data() + k + taps - 1;
            for (int i = 0; i < taps; ++i) s += h[size_t(i)] * p[-i];
            y[size_t(k)] = s;
        }
        benchmark::DoNotOptimize(y.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * n);
}

#ifdef TAVS_HAVE_LIQUID
void bm_fir_32f_liquid(benchmark::State& state, int taps)
{
    const int n = int(state.range(0));
    auto h = taps_32f(taps);
    firfilt_rrrf q = firfilt_rrrf_create(h.data(), unsigned(taps));
    auto x = signal_32f(size_t(n));
    std::vector<float> y(x.size());
    for (auto _ : state) {
        firfilt_rrrf_execute_block(q, x.data(), unsigned(n), y.data());
        benchmark::DoNotOptimize(y.data());
        benchmark::ClobberMemory();
    }
    firfilt_rrrf_destroy(q);
    state.SetItemsProcessed(int64_t(state.iterations()) * n);
}
#endif

// ---- FIR_32fc, 64 taps ------------------------------------------------------------

constexpr int kCxTaps = 64;
std::vector<Tav32fc> taps_32fc()
{
    std::vector<Tav32fc> h(kCxTaps);
    for (int i = 0; i < kCxTaps; ++i) h[size_t(i)] = {float(std::sin(0.37 * i) / kCxTaps), float(std::cos(0.21 * i) / kCxTaps)};
    return h;
}
std::vector<Tav32fc> signal_32fc(size_t n)
{
    std::vector<Tav32fc> v(n);
    for (size_t i = 0; i < n; ++i) v[i] = {float(std::sin(0.01 * double(i))), float(std::cos(0.3 * double(i)))};
    return v;
}

void bm_fir_32fc_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto h = taps_32fc();
    int size = 0;
    tavsFIRGetStateSize_32fc(kCxTaps, &size);
    std::vector<Tav8u> mem(static_cast<size_t>(size));
    FIRState_32fc* st = nullptr;
    tavsFIRInit_32fc(&st, h.data(), kCxTaps, nullptr, mem.data());
    auto x = signal_32fc(size_t(n));
    std::vector<Tav32fc> y(x.size());
    for (auto _ : state) {
        tavsFIR_32fc(x.data(), y.data(), n, st);
        benchmark::DoNotOptimize(y.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * n);
}

void bm_fir_32fc_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto hv = taps_32fc();
    std::vector<std::complex<float>> h(kCxTaps), buf(static_cast<size_t>(kCxTaps - 1 + n)), y(static_cast<size_t>(n));
    for (int i = 0; i < kCxTaps; ++i) h[size_t(i)] = {hv[size_t(i)].re, hv[size_t(i)].im};
    auto xv = signal_32fc(size_t(n));
    for (auto _ : state) {
        std::copy(buf.end() - (kCxTaps - 1), buf.end(), buf.begin());
        for (int k = 0; k < n; ++k) buf[size_t(kCxTaps - 1 + k)] = {xv[size_t(k)].re, xv[size_t(k)].im};
        for (int k = 0; k < n; ++k) {
            std::complex<float> s = 0.0f;
            const std::complex<float>* p = buf.data() + k + kCxTaps - 1;
            for (int i = 0; i < kCxTaps; ++i) {
                const float re = h[size_t(i)].real() * p[-i].real() - h[size_t(i)].imag() * p[-i].imag();
                const float im = h[size_t(i)].real() * p[-i].imag() + h[size_t(i)].imag() * p[-i].real();
                s += std::complex<float>(re, im);
            }
            y[size_t(k)] = s;
        }
        benchmark::DoNotOptimize(y.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * n);
}

#ifdef TAVS_HAVE_LIQUID
void bm_fir_32fc_liquid(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto hv = taps_32fc();
    std::vector<liquid_float_complex> h(kCxTaps), x(static_cast<size_t>(n)), y(static_cast<size_t>(n));
    for (int i = 0; i < kCxTaps; ++i) h[size_t(i)] = {hv[size_t(i)].re, hv[size_t(i)].im};
    auto xv = signal_32fc(size_t(n));
    for (int k = 0; k < n; ++k) x[size_t(k)] = {xv[size_t(k)].re, xv[size_t(k)].im};
    firfilt_cccf q = firfilt_cccf_create(h.data(), kCxTaps);
    for (auto _ : state) {
        firfilt_cccf_execute_block(q, x.data(), unsigned(n), y.data());
        benchmark::DoNotOptimize(y.data());
        benchmark::ClobberMemory();
    }
    firfilt_cccf_destroy(q);
    state.SetItemsProcessed(int64_t(state.iterations()) * n);
}
#endif

} // namespace

#define TAVS_FIR_BENCH(T)                                                                                     \
    BENCHMARK_CAPTURE(bm_fir_32f_tavs, t##T, T)->Name("FIR_32f_" #T "taps/tavs")->Arg(4096);                 \
    BENCHMARK_CAPTURE(bm_fir_32f_direct_tavs, t##T, T)->Name("FIR_32f_I_" #T "taps/tavs")->Arg(4096);       \
    BENCHMARK_CAPTURE(bm_fir_32f_loop, t##T, T)->Name("FIR_32f_" #T "taps/loop")->Arg(4096);
TAVS_FIR_BENCH(16)
TAVS_FIR_BENCH(32)
TAVS_FIR_BENCH(64)
TAVS_FIR_BENCH(128)
TAVS_FIR_BENCH(256)
TAVS_FIR_BENCH(1024)
#ifdef TAVS_HAVE_LIQUID
BENCHMARK_CAPTURE(bm_fir_32f_liquid, t16, 16)->Name("FIR_32f_16taps/liquid")->Arg(4096);
BENCHMARK_CAPTURE(bm_fir_32f_liquid, t32, 32)->Name("FIR_32f_32taps/liquid")->Arg(4096);
BENCHMARK_CAPTURE(bm_fir_32f_liquid, t64, 64)->Name("FIR_32f_64taps/liquid")->Arg(4096);
BENCHMARK_CAPTURE(bm_fir_32f_liquid, t128, 128)->Name("FIR_32f_128taps/liquid")->Arg(4096);
BENCHMARK_CAPTURE(bm_fir_32f_liquid, t256, 256)->Name("FIR_32f_256taps/liquid")->Arg(4096);
BENCHMARK_CAPTURE(bm_fir_32f_liquid, t1024, 1024)->Name("FIR_32f_1024taps/liquid")->Arg(4096);
BENCHMARK(bm_fir_32fc_liquid)->Name("FIR_32fc_64taps/liquid")->Arg(4096);
#endif
BENCHMARK(bm_fir_32fc_tavs)->Name("FIR_32fc_64taps/tavs")->Arg(4096);
BENCHMARK(bm_fir_32fc_loop)->Name("FIR_32fc_64taps/loop")->Arg(4096);
