// Constant forms and division: tavs against a plain loop, and MulC_32f
// against VOLK's scalar multiply when VOLK is installed.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

#include "bench_util.h"
#include "tavs.h"

#ifdef TAVS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace {

std::vector<float> ramp32f(size_t n, float base)
{
    std::vector<float> v(n);
    for (size_t i = 0; i < n; ++i) v[i] = base + 0.37f * float(i % 1013);
    return v;
}

// ---- MulC_32f ---------------------------------------------------------------------
void bm_mulc_32f_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto src = ramp32f(size_t(n), 1.0f);
    std::vector<float> dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] { tavsMulC_32f(src.data(), 1.5f, dst.data(), n); });
}

void bm_mulc_32f_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto src = ramp32f(size_t(n), 1.0f);
    std::vector<float> dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] {
        const float* s = src.data();
        float* d = dst.data();
        benchmark::DoNotOptimize(s);
        for (int i = 0; i < n; ++i) d[i] = s[i] * 1.5f;
    });
}

#ifdef TAVS_HAVE_VOLK
void bm_mulc_32f_volk(benchmark::State& state)
{
    const int n = int(state.range(0));
    const size_t align = volk_get_alignment();
    auto* src = static_cast<float*>(volk_malloc(size_t(n) * sizeof(float), align));
    auto* dst = static_cast<float*>(volk_malloc(size_t(n) * sizeof(float), align));
    auto init = ramp32f(size_t(n), 1.0f);
    for (int i = 0; i < n; ++i) src[i] = init[size_t(i)];
    bench::timed(state, dst, n, [&] { volk_32f_s32f_multiply_32f(dst, src, 1.5f, unsigned(n)); });
    volk_free(src);
    volk_free(dst);
}
#endif

// ---- AddC_16s_Sfs -----------------------------------------------------------------
std::vector<Tav16s> ramp16s(size_t n)
{
    std::vector<Tav16s> v(n);
    for (size_t i = 0; i < n; ++i) v[i] = Tav16s(int(i * 7919 % 65536) - 32768);
    return v;
}

void bm_addc_16s_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto src = ramp16s(size_t(n));
    std::vector<Tav16s> dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] { tavsAddC_16s_Sfs(src.data(), 1234, dst.data(), n, 1); });
}

// The same rule written plainly: exact sum, ties to even at scale 1, saturation.
void bm_addc_16s_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto src = ramp16s(size_t(n));
    std::vector<Tav16s> dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] {
        const Tav16s* s = src.data();
        Tav16s* d = dst.data();
        benchmark::DoNotOptimize(s);
        for (int i = 0; i < n; ++i) {
            const int e = s[i] + 1234;
            int r = (e + ((e >> 1) & 1)) >> 1;
            r = r > 32767 ? 32767 : r < -32768 ? -32768 : r;
            d[i] = Tav16s(r);
        }
    });
}

// ---- Div_32f ------------------------------------------------------------------------
void bm_div_32f_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto a = ramp32f(size_t(n), 1.0f), b = ramp32f(size_t(n), -200.0f);
    std::vector<float> dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] { tavsDiv_32f(a.data(), b.data(), dst.data(), n); });
}

// Plain loop with the same zero-divisor rule (no zero occurs in the data).
void bm_div_32f_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto a = ramp32f(size_t(n), 1.0f), b = ramp32f(size_t(n), -200.0f);
    std::vector<float> dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] {
        const float* s1 = a.data();
        const float* s2 = b.data();
        float* d = dst.data();
        benchmark::DoNotOptimize(s1);
        bool zero = false;
        for (int i = 0; i < n; ++i) {
            if (s1[i] == 0.0f) {
                zero = true;
                d[i] = s2[i] > 0 ? __builtin_inff() : s2[i] < 0 ? -__builtin_inff() : -__builtin_nanf("");
            } else {
                d[i] = s2[i] / s1[i];
            }
        }
        benchmark::DoNotOptimize(zero);
    });
}

} // namespace

BENCHMARK(bm_mulc_32f_tavs)->Name("MulC_32f/tavs")->Arg(4096);
BENCHMARK(bm_mulc_32f_loop)->Name("MulC_32f/loop")->Arg(4096);
#ifdef TAVS_HAVE_VOLK
BENCHMARK(bm_mulc_32f_volk)->Name("MulC_32f/volk")->Arg(4096);
#endif
BENCHMARK(bm_addc_16s_tavs)->Name("AddC_16s_Sfs/tavs")->Arg(4096);
BENCHMARK(bm_addc_16s_loop)->Name("AddC_16s_Sfs/loop")->Arg(4096);
BENCHMARK(bm_div_32f_tavs)->Name("Div_32f/tavs")->Arg(4096);
BENCHMARK(bm_div_32f_loop)->Name("Div_32f/loop")->Arg(4096);
