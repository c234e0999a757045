// Conversion kernels side by side: tavs, VOLK's 16-bit integer/float
// kernels, and a plain loop, on the same 64-byte aligned buffers.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "bench_util.h"
#include "tavs.h"

#ifdef TAVS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace {

void fill(Tav16s* v, size_t n)
{
    uint32_t s = 12345;
    for (size_t i = 0; i < n; ++i)
        v[i] = Tav16s(bench::lcg_next(s) >> 16);
}
// Floats in [-scale, scale).
template <int Scale> void fill(Tav32f* v, size_t n)
{
    uint32_t s = 54321;
    for (size_t i = 0; i < n; ++i)
        v[i] = (float(bench::lcg_next(s) >> 8) / 16777216.0f * 2.0f - 1.0f) * float(Scale);
}

// A source of S filled by fill and a destination of D, both 64-byte
// aligned, and f(src, dst, n) timed on them.
template <class S, class D, class F> void convert(benchmark::State& state, void (*fill)(S*, size_t), F f)
{
    const int n = int(state.range(0));
    bench::Buffer<S> s{size_t(n)};
    bench::Buffer<D> d{size_t(n)};
    fill(s.p, size_t(n));
    bench::timed(state, d.p, n, [&] { f(s.p, d.p, n); });
}

// ---- 16s to 32f ------------------------------------------------------------------

void bm_16s32f_tavs(benchmark::State& state)
{
    convert<Tav16s, Tav32f>(state, fill,
                            [](const Tav16s* s, Tav32f* d, int n) { tavsConvert_16s32f(s, d, n); });
}
void bm_16s32f_loop(benchmark::State& state)
{
    convert<Tav16s, Tav32f>(state, fill, [](const Tav16s* s, Tav32f* d, int n) {
        for (int i = 0; i < n; ++i)
            d[i] = float(s[i]);
    });
}
#ifdef TAVS_HAVE_VOLK
void bm_16s32f_volk(benchmark::State& state)
{
    convert<Tav16s, Tav32f>(state, fill, [](const Tav16s* s, Tav32f* d, int n) {
        volk_16i_s32f_convert_32f(d, s, 1.0f, unsigned(n));
    });
}
#endif

// ---- 32f to 16s, nearest, no scale ----------------------------------------------------

void bm_32f16s_tavs(benchmark::State& state)
{
    convert<Tav32f, Tav16s>(state, fill<40000>, [](const Tav32f* s, Tav16s* d, int n) {
        tavsConvert_32f16s_Sfs(s, d, n, RoundHalfEven, 0);
    });
}
void bm_32f16s_loop(benchmark::State& state)
{
    convert<Tav32f, Tav16s>(state, fill<40000>, [](const Tav32f* s, Tav16s* d, int n) {
        for (int i = 0; i < n; ++i) {
            float v = s[i];
            v = v < -32768.0f ? -32768.0f : (v > 32767.0f ? 32767.0f : v);
            d[i] = Tav16s(std::lrintf(v));
        }
    });
}
#ifdef TAVS_HAVE_VOLK
void bm_32f16s_volk(benchmark::State& state)
{
    convert<Tav32f, Tav16s>(state, fill<40000>, [](const Tav32f* s, Tav16s* d, int n) {
        volk_32f_s32f_convert_16i(d, s, 1.0f, unsigned(n));
    });
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
    convert<Tav32f, Tav16f>(state, fill<1>, [](const Tav32f* s, Tav16f* d, int n) {
        tavsConvert_32f16f(s, d, n, RoundHalfEven);
    });
}
void bm_32f16f_loop(benchmark::State& state)
{
    convert<Tav32f, Tav16f>(state, fill<1>, [](const Tav32f* s, Tav16f* d, int n) {
        for (int i = 0; i < n; ++i)
            d[i].bits = half_nearest(s[i]);
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
