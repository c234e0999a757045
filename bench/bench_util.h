// What the benchmark files share: the timed loop that keeps a result alive
// and counts the items, 64-byte aligned buffers, and the pseudo-random
// sequence the inputs are drawn from.
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace bench {

// Runs body once per iteration; what out points at is kept alive and memory
// is clobbered after each pass, so no pass can be dropped or merged. Counts
// items elements per iteration.
template <class F> void timed(benchmark::State& state, const void* out, int64_t items, F body)
{
    for (auto _ : state) {
        body();
        benchmark::DoNotOptimize(out);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * items);
}

// For a body that returns its result (a sum, an index): the value is kept.
template <class F> void timed_value(benchmark::State& state, int64_t items, F body)
{
    for (auto _ : state) {
        auto v = body();
        benchmark::DoNotOptimize(v);
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * items);
}

// log2 of a power of two: the order of a transform of n points.
inline int order_of(int64_t n)
{
    int o = 0;
    while ((int64_t(1) << o) < n) ++o;
    return o;
}

// n elements on a 64-byte boundary, released with the buffer.
template <class T> struct Buffer {
    explicit Buffer(size_t n) : p(static_cast<T*>(std::aligned_alloc(64, (n * sizeof(T) + 63) / 64 * 64))) {}
    ~Buffer() { std::free(p); }
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;
    T* p;
};

// The next value of the linear congruential sequence seeded by s.
inline uint32_t lcg_next(uint32_t& s)
{
    s = s * 1664525u + 1013904223u;
    return s;
}

} // namespace bench
