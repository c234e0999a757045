// Statistics benchmarks: sums, dot product, index of the maximum, L2 norm
// and min/max, against VOLK's matching kernels and plain loops.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "bench_util.h"
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
        x = float(int32_t(bench::lcg_next(s) >> 8) - (1 << 23)) / float(1 << 23);
    }
    return v;
}

std::vector<Tav16s> data_16s(size_t n)
{
    std::vector<Tav16s> v(n);
    uint32_t s = 7;
    for (auto& x : v) {
        x = Tav16s(bench::lcg_next(s) >> 16);
    }
    return v;
}

// ---- Sum_32f ----------------------------------------------------------------------------
void bm_sum_accurate_tavs(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 1);
    float s = 0;
    bench::timed_value(st, st.range(0), [&] {
        tavsSum_32f(v.data(), int(v.size()), &s, HintAccurate);
        return s;
    });
}
void bm_sum_fast_tavs(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 1);
    float s = 0;
    bench::timed_value(st, st.range(0), [&] {
        tavsSum_32f(v.data(), int(v.size()), &s, HintFast);
        return s;
    });
}
void bm_sum_accurate_loop(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 1);
    bench::timed_value(st, st.range(0), [&] {
        double s = 0;
        for (float x : v) s += x;
        return s;
    });
}
void bm_sum_fast_loop(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 1);
    bench::timed_value(st, st.range(0), [&] {
        float s = 0;
        for (float x : v) s += x;
        return s;
    });
}
#ifdef TAVS_HAVE_VOLK
void bm_sum_volk(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 1);
    float s = 0;
    bench::timed_value(st, st.range(0), [&] {
        volk_32f_accumulator_s32f(&s, v.data(), unsigned(v.size()));
        return s;
    });
}
#endif

// ---- DotProd_32f --------------------------------------------------------------------------
void bm_dot_tavs(benchmark::State& st)
{
    auto a = data_32f(size_t(st.range(0)), 1), b = data_32f(size_t(st.range(0)), 2);
    float s = 0;
    bench::timed_value(st, st.range(0), [&] {
        tavsDotProd_32f(a.data(), b.data(), int(a.size()), &s);
        return s;
    });
}
void bm_dot_loop(benchmark::State& st)
{
    auto a = data_32f(size_t(st.range(0)), 1), b = data_32f(size_t(st.range(0)), 2);
    bench::timed_value(st, st.range(0), [&] {
        float s = 0;
        for (size_t i = 0; i < a.size(); ++i) s += a[i] * b[i];
        return s;
    });
}
#ifdef TAVS_HAVE_VOLK
void bm_dot_volk(benchmark::State& st)
{
    auto a = data_32f(size_t(st.range(0)), 1), b = data_32f(size_t(st.range(0)), 2);
    float s = 0;
    bench::timed_value(st, st.range(0), [&] {
        volk_32f_x2_dot_prod_32f(&s, a.data(), b.data(), unsigned(a.size()));
        return s;
    });
}
#endif

// ---- MaxIndx_32f -----------------------------------------------------------------------------
void bm_maxindx_tavs(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 3);
    float m = 0;
    int i = 0;
    bench::timed_value(st, st.range(0), [&] {
        tavsMaxIndx_32f(v.data(), int(v.size()), &m, &i);
        return i;
    });
}
void bm_maxindx_loop(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 3);
    bench::timed_value(st, st.range(0), [&] {
        float m = v[0];
        size_t at = 0;
        for (size_t k = 1; k < v.size(); ++k)
            if (v[k] > m) {
                m = v[k];
                at = k;
            }
        return at;
    });
}
#ifdef TAVS_HAVE_VOLK
void bm_maxindx_volk(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 3);
    uint32_t at = 0;
    bench::timed_value(st, st.range(0), [&] {
        volk_32f_index_max_32u(&at, v.data(), uint32_t(v.size()));
        return at;
    });
}
#endif

// ---- Norm_L2_32f ------------------------------------------------------------------------------
void bm_l2_tavs(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 4);
    float n = 0;
    bench::timed_value(st, st.range(0), [&] {
        tavsNorm_L2_32f(v.data(), int(v.size()), &n);
        return n;
    });
}
void bm_l2_loop(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 4);
    bench::timed_value(st, st.range(0), [&] {
        double s = 0;
        for (float x : v) s += double(x) * double(x);
        float n = float(std::sqrt(s));
        return n;
    });
}
#ifdef TAVS_HAVE_VOLK
// VOLK has no norm kernel: its dot product of the vector with itself.
void bm_l2_volk(benchmark::State& st)
{
    auto v = data_32f(size_t(st.range(0)), 4);
    float s = 0;
    bench::timed_value(st, st.range(0), [&] {
        volk_32f_x2_dot_prod_32f(&s, v.data(), v.data(), unsigned(v.size()));
        float n = std::sqrt(s);
        return n;
    });
}
#endif

// ---- MinMax_16s ---------------------------------------------------------------------------------
void bm_minmax_tavs(benchmark::State& st)
{
    auto v = data_16s(size_t(st.range(0)));
    Tav16s lo = 0, hi = 0;
    bench::timed_value(st, st.range(0), [&] {
        tavsMinMax_16s(v.data(), int(v.size()), &lo, &hi);
        return std::make_pair(lo, hi);
    });
}
void bm_minmax_loop(benchmark::State& st)
{
    auto v = data_16s(size_t(st.range(0)));
    bench::timed_value(st, st.range(0), [&] {
        Tav16s lo = v[0], hi = v[0];
        for (Tav16s x : v) {
            lo = x < lo ? x : lo;
            hi = x > hi ? x : hi;
        }
        return std::make_pair(lo, hi);
    });
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
