// Conversion kernels side by side: tavs, VOLK's 16-bit integer/float
// kernels, and a plain loop, on the same 64-byte aligned buffers.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "tavs.h"

#ifdef TAVS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace {

template <class T> struct Buffer {
    explicit Buffer(size_t n) : p(static_cast<T*>(std::aligned_alloc(64, (n * sizeof(T) + 63) / 64 * 64))) {}
    ~Buffer() { std::free(p); }
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;
    T* p;
};

void fill_16s(Tav16s* v, size_t n)
{
    uint32_t s = 12345;
    for (size_t i = 0; i < n; ++i) {
        s = s * 1664525u + 1013904223u;
        v[i] = Tav16s(s >> 16);
    }
}
void fill_32f(Tav32f* v, size_t n, float scale)
{
    uint32_t s = 54321;
    for (size_t i = 0; i < n; ++i) {
        s = s * 1664525u + 1013904223u;
        v[i] = (float(s >> 8) / 16777216.0f * 2.0f - 1.0f) * scale;
    }
}

template <class F> void run(benchmark::State& state, F f)
{
    for (auto _ : state) {
        f();
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * state.range(0));
}

// ---- 16s to 32f ------------------------------------------------------------------

void bm_16s32f_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    Buffer<Tav16s> s{size_t(n)};
    Buffer<Tav32f> d{size_t(n)};
    fill_16s(s.p, size_t(n));
    run(state, [&] { tavsConvert_16s32f(s.p, d.p, n); });
}
void bm_16s32f_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    Buffer<Tav16s> s{size_t(n)};
    Buffer<Tav32f> d{size_t(n)};
    fill_16s(s.p, size_t(n));
    run(state, [&] {
        for (int i = 0; i < n; ++i)
            d.p[i] = float(s.p[i]);
    });
}
#ifdef TAVS_HAVE_VOLK
void bm_16s32f_volk(benchmark::State& state)
{
    const int n = int(state.range(0));
    Buffer<Tav16s> s{size_t(n)};
    Buffer<Tav32f> d{size_t(n)};
    fill_16s(s.p, size_t(n));
    run(state, [&] { volk_16i_s32f_convert_32f(d.p, s.p, 1.0f, unsigned(n)); });
}
#endif

// ---- 32f to 16s, nearest, no scale ----------------------------------------------------

void bm_32f16s_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    Buffer<Tav32f> s{size_t(n)};
    Buffer<Tav16s> d{size_t(n)};
    fill_32f(s.p, size_t(n), 40000.0f);
    run(state, [&] { tavsConvert_32f16s_Sfs(s.p, d.p, n, RoundHalfEven, 0); });
}
void bm_32f16s_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    Buffer<Tav32f> s{size_t(n)};
    Buffer<Tav16s> d{size_t(n)};
    fill_32f(s.p, size_t(n), 40000.0f);
    run(state, [&] {
        for (int i = 0; i < n; ++i) {
            float v = s.p[i];
            v = v < -32768.0f ? -32768.0f : (v > 32767.0f ? 32767.0f : v);
            d.p[i] = Tav16s(std::lrintf(v));
        }
    });
}
#ifdef TAVS_HAVE_VOLK
void bm_32f16s_volk(benchmark::State& state)
{
    const int n = int(state.range(0));
    Buffer<Tav32f> s{size_t(n)};
    Buffer<Tav16s> d{size_t(n)};
    fill_32f(s.p, size_t(n), 40000.0f);
    run(state, [&] { volk_32f_s32f_convert_16i(d.p, s.p, 1.0f, unsigned(n)); });
}
#endif

// ---- 32f to 16f, nearest ----------------------------------------------------------------

// A plain loop: round to nearest even on the bits, overflow to infinity.
uint16_t half_nearest(float f)
{
    uint32_t x;
    std::memcpy(&x, &f, 4);
    const uint32_t sign = (x >> 16) & 0x8000u, a = x & 0x7FFFFFFFu;
    if (a > 0x7F800000u) return 0x7DFF;
    if (a >= 0x477FF000u) return uint16_t(sign | 0x7C00u);
    if (a < 0x38800000u) {
        const float t = std::fabs(f) * 16777216.0f;
        return uint16_t(sign | uint32_t(std::nearbyint(t)));
    }
    const uint32_t r = a + 0xFFFu + ((a >> 13) & 1u) - 0x38000000u;
    return uint16_t(sign | (r >> 13));
}

void bm_32f16f_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    Buffer<Tav32f> s{size_t(n)};
    Buffer<Tav16f> d{size_t(n)};
    fill_32f(s.p, size_t(n), 1.0f);
    run(state, [&] { tavsConvert_32f16f(s.p, d.p, n, RoundHalfEven); });
}
void bm_32f16f_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    Buffer<Tav32f> s{size_t(n)};
    Buffer<Tav16f> d{size_t(n)};
    fill_32f(s.p, size_t(n), 1.0f);
    run(state, [&] {
        for (int i = 0; i < n; ++i)
            d.p[i].bits = half_nearest(s.p[i]);
    });
}

} // namespace

#define CONVERT_SIZES Arg(256)->Arg(4096)->Arg(65536)
BENCHMARK(bm_16s32f_tavs)->Name("Convert_16s32f/tavs")->CONVERT_SIZES;
#ifdef TAVS_HAVE_VOLK
BENCHMARK(bm_16s32f_volk)->Name("Convert_16s32f/volk")->CONVERT_SIZES;
#endif
BENCHMARK(bm_16s32f_loop)->Name("Convert_16s32f/loop")->CONVERT_SIZES;
BENCHMARK(bm_32f16s_tavs)->Name("Convert_32f16s_Sfs/tavs")->CONVERT_SIZES;
#ifdef TAVS_HAVE_VOLK
BENCHMARK(bm_32f16s_volk)->Name("Convert_32f16s_Sfs/volk")->CONVERT_SIZES;
#endif
BENCHMARK(bm_32f16s_loop)->Name("Convert_32f16s_Sfs/loop")->CONVERT_SIZES;
BENCHMARK(bm_32f16f_tavs)->Name("Convert_32f16f/tavs")->CONVERT_SIZES;
BENCHMARK(bm_32f16f_loop)->Name("Convert_32f16f/loop")->CONVERT_SIZES;
