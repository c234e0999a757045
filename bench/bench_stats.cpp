// Statistics benchmarks: sums, dot product, index of the maximum, L2 norm
// and min/max, against VOLK's matching kernels and plain loops.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "tavs.h"

#ifdef TAVS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace {

std::vector<float> data_32f(size_t n, uint32_t seed)
{
    std::vector<float> v(n);
    uint32_t s = seed;
    for (auto& x : v) {
        s = s * 1664525u + 1013904223u;
        x = float(int32_t(s >> 8) - (1 << 23)) / float(1 << 23);
    }
    return v;
}

std::vector<Tav16s> data_16s(size_t n)
{
    std::vector<Tav16s> v(n);
    uint32_t s = 7;
    for (auto& x : v) {
        s = s * 1664525u + 1013904223u;
        x = Tav16s(s >> 16);
    }
    return v;
}

void items(benchmark::State& st) { st.SetItemsProcessed(int64_t(st.iterations()) * st.range(0)); }

// ---- Sum_32f ----------------------------------------------------------------------------
void bm_sum_accurate_tavs(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 1);
    float s = 0;
    for (auto _ : st) {
        tavsSum_32f(v.data(), int(v.size()), &s, HintAccurate);
        benchmark::DoNotOptimize(s);
    }
    items(st);
}
void bm_sum_fast_tavs(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 1);
    float s = 0;
    for (auto _ : st) {
        tavsSum_32f(v.data(), int(v.size()), &s, HintFast);
        benchmark::DoNotOptimize(s);
    }
    items(st);
}
void bm_sum_accurate_loop(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 1);
    for (auto _ : st) {
        double s = 0;
        for (float x : v) s += x;
        benchmark::DoNotOptimize(s);
    }
    items(st);
}
void bm_sum_fast_loop(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 1);
    for (auto _ : st) {
        float s = 0;
        for (float x : v) s += x;
        benchmark::DoNotOptimize(s);
    }
    items(st);
}
#ifdef TAVS_HAVE_VOLK
void bm_sum_volk(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 1);
    float s = 0;
    for (auto _ : st) {
        volk_32f_accumulator_s32f(&s, v.data(), unsigned(v.size()));
        benchmark::DoNotOptimize(s);
    }
    items(st);
}
#endif

// ---- DotProd_32f --------------------------------------------------------------------------
void bm_dot_tavs(benchmark::State& st)
{
    auto a = data_32f(size_t(st.range(0)), 1), b = data_32f(size_t(st.range(0)), 2);
    float s = 0;
    for (auto _ : st) {
        tavsDotProd_32f(a.data(), b.data(), int(a.size()), &s);
        benchmark::DoNotOptimize(s);
    }
    items(st);
}
void bm_dot_loop(benchmark::State& st)
{
    auto a = data_32f(size_t(st.range(0)), 1), b = data_32f(size_t(st.range(0)), 2);
    for (auto _ : st) {
        float s = 0;
        for (size_t i = 0; i < a.size(); ++i) s += a[i] * b[i];
        benchmark::DoNotOptimize(s);
    }
    items(st);
}
#ifdef TAVS_HAVE_VOLK
void bm_dot_volk(benchmark::State& st)
{
    auto a = data_32f(size_t(st.range(0)), 1), b = data_32f(size_t(st.range(0)), 2);
    float s = 0;
    for (auto _ : st) {
        volk_32f_x2_dot_prod_32f(&s, a.data(), b.data(), unsigned(a.size()));
        benchmark::DoNotOptimize(s);
    }
    items(st);
}
#endif

// ---- MaxIndx_32f -----------------------------------------------------------------------------
void bm_maxindx_tavs(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 3);
    float m = 0;
    int i = 0;
    for (auto _ : st) {
        tavsMaxIndx_32f(v.data(), int(v.size()), &m, &i);
        benchmark::DoNotOptimize(i);
    }
    items(st);
}
void bm_maxindx_loop(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 3);
    for (auto _ : st) {
        float m = v[0];
        size_t at = 0;
        for (size_t k = 1; k < v.size(); ++k)
            if (v[k] > m) {
                m = v[k];
                at = k;
            }
        benchmark::DoNotOptimize(at);
    }
    items(st);
}
#ifdef TAVS_HAVE_VOLK
void bm_maxindx_volk(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 3);
    uint32_t at = 0;
    for (auto _ : st) {
        volk_32f_index_max_32u(&at, v.data(), uint32_t(v.size()));
        benchmark::DoNotOptimize(at);
    }
    items(st);
}
#endif

// ---- Norm_L2_32f ------------------------------------------------------------------------------
void bm_l2_tavs(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 4);
    float n = 0;
    for (auto _ : st) {
        tavsNorm_L2_32f(v.data(), int(v.size()), &n);
        benchmark::DoNotOptimize(n);
    }
    items(st);
}
void bm_l2_loop(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 4);
    for (auto _ : st) {
        double s = 0;
        for (float x : v) s += double(x) * double(x);
        float n = float(std::sqrt(s));
        benchmark::DoNotOptimize(n);
    }
    items(st);
}
#ifdef TAVS_HAVE_VOLK
// VOLK has no norm kernel: its dot product of the vector with itself.
void bm_l2_volk(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 4);
    float s = 0;
    for (auto _ : st) {
        volk_32f_x2_dot_prod_32f(&s, v.data(), v.data(), unsigned(v.size()));
        float n = std::sqrt(s);
        benchmark::DoNotOptimize(n);
    }
    items(st);
}
#endif

// ---- MinMax_16s ---------------------------------------------------------------------------------
void bm_minmax_tavs(benchmark::State& st)
{
    auto v = data_16s(size_t(st.range(0)));
    Tav16s lo = 0, hi = 0;
    for (auto _ : st) {
        tavsMinMax_16s(v.data(), int(v.size()), &lo, &hi);
        benchmark::DoNotOptimize(lo);
        benchmark::DoNotOptimize(hi);
    }
    items(st);
}
void bm_minmax_loop(benchmark::State& st)
{
    auto v = data_16s(size_t(st.range(0)));
    for (auto _ : st) {
        Tav16s lo = v[0], hi = v[0];
        for (Tav16s x : v) {
            lo = x < lo ? x : lo;
            hi = x > hi ? x : hi;
        }
        benchmark::DoNotOptimize(lo);
        benchmark::DoNotOptimize(hi);
    }
    items(st);
}

} // namespace

#define STATS_BENCH(fn, name) BENCHMARK(fn)->Name(name)->Arg(4096)->Arg(1048576)
STATS_BENCH(bm_sum_accurate_tavs, "Sum_32f_Accurate/tavs");
STATS_BENCH(bm_sum_accurate_loop, "Sum_32f_Accurate/loop");
STATS_BENCH(bm_sum_fast_tavs, "Sum_32f_Fast/tavs");
STATS_BENCH(bm_sum_fast_loop, "Sum_32f_Fast/loop");
STATS_BENCH(bm_dot_tavs, "DotProd_32f/tavs");
STATS_BENCH(bm_dot_loop, "DotProd_32f/loop");
STATS_BENCH(bm_maxindx_tavs, "MaxIndx_32f/tavs");
STATS_BENCH(bm_maxindx_loop, "MaxIndx_32f/loop");
STATS_BENCH(bm_l2_tavs, "Norm_L2_32f/tavs");
STATS_BENCH(bm_l2_loop, "Norm_L2_32f/loop");
STATS_BENCH(bm_minmax_tavs, "MinMax_16s/tavs");
STATS_BENCH(bm_minmax_loop, "MinMax_16s/loop");
#ifdef TAVS_HAVE_VOLK
STATS_BENCH(bm_sum_volk, "Sum_32f_Accurate/volk");
STATS_BENCH(bm_sum_volk, "Sum_32f_Fast/volk");
STATS_BENCH(bm_dot_volk, "DotProd_32f/volk");
STATS_BENCH(bm_maxindx_volk, "MaxIndx_32f/volk");
STATS_BENCH(bm_l2_volk, "Norm_L2_32f/volk");
#endif
