// Copy, Set and Flip of 32f vectors against memcpy and plain loops, in cache
// (4096 elements) and beyond it (1048576 elements).
#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

#include "bench_util.h"
#include "tavs.h"

namespace {

std::vector<float> ramp(size_t n)
{
    std::vector<float> v(n);
    for (size_t i = 0; i < n; ++i)
        v[i] = float(i) * 0.25f;
    return v;
}

void bm_copy_32f_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto src = ramp(size_t(n));
    std::vector<float> dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] { tavsCopy_32f(src.data(), dst.data(), n); });
}

void bm_copy_32f_memcpy(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto src = ramp(size_t(n));
    std::vector<float> dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n,
                 [&] { std::memcpy(dst.data(), src.data(), size_t(n) * sizeof(float)); });
}

void bm_set_32f_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    std::vector<float> dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] { tavsSet_32f(1.5f, dst.data(), n); });
}

void bm_set_32f_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    std::vector<float> dst(static_cast<size_t>(n));
    float* d = dst.data();
    bench::timed(state, dst.data(), n, [&] {
        for (int i = 0; i < n; ++i)
            d[i] = 1.5f;
    });
}

void bm_flip_32f_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto src = ramp(size_t(n));
    std::vector<float> dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] { tavsFlip_32f(src.data(), dst.data(), n); });
}

void bm_flip_32f_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto src = ramp(size_t(n));
    std::vector<float> dst(static_cast<size_t>(n));
    const float* s = src.data();
    float* d = dst.data();
    bench::timed(state, dst.data(), n, [&] {
        for (int i = 0; i < n; ++i)
            d[i] = s[n - 1 - i];
    });
}

} // namespace

BENCHMARK(bm_copy_32f_tavs)->Name("Copy_32f/tavs")->Arg(4096)->Arg(1048576);
BENCHMARK(bm_copy_32f_memcpy)->Name("Copy_32f/memcpy")->Arg(4096)->Arg(1048576);
BENCHMARK(bm_set_32f_tavs)->Name("Set_32f/tavs")->Arg(4096)->Arg(1048576);
BENCHMARK(bm_set_32f_loop)->Name("Set_32f/loop")->Arg(4096)->Arg(1048576);
BENCHMARK(bm_flip_32f_tavs)->Name("Flip_32f/tavs")->Arg(4096)->Arg(1048576);
BENCHMARK(bm_flip_32f_loop)->Name("Flip_32f/loop")->Arg(4096)->Arg(1048576);
