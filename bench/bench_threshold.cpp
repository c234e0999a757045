// Threshold_LT_32f, And_8u and Conj_32fc at 4096 elements, against the
// plain loops a caller would otherwise write (and VOLK's conjugate when it
// is installed).
#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

#include "bench_util.h"
#include "tavs.h"

#ifdef TAVS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace {

std::vector<float> ramp_f(size_t n)
{
    std::vector<float> v(n);
    for (size_t i = 0; i < n; ++i) v[i] = float(int(i % 97) - 48) * 0.25f;
    return v;
}

void bm_threshold_lt_32f_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    std::vector<float> src = ramp_f(size_t(n)), dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] { tavsThreshold_LT_32f(src.data(), dst.data(), n, 1.0f); });
}

void bm_threshold_lt_32f_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    std::vector<float> src = ramp_f(size_t(n)), dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] {
        const float* s = src.data();
        float* d = dst.data();
        for (int i = 0; i < n; ++i) d[i] = s[i] > 1.0f ? s[i] : 1.0f;
    });
}

void bm_and_8u_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    std::vector<Tav8u> a(static_cast<size_t>(n)), b(static_cast<size_t>(n)), d(static_cast<size_t>(n));
    for (size_t i = 0; i < a.size(); ++i) {
        a[i] = Tav8u(i * 7);
        b[i] = Tav8u(i * 13 + 1);
    }
    bench::timed(state, d.data(), n, [&] { tavsAnd_8u(a.data(), b.data(), d.data(), n); });
}

void bm_and_8u_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    std::vector<Tav8u> a(static_cast<size_t>(n)), b(static_cast<size_t>(n)), d(static_cast<size_t>(n));
    for (size_t i = 0; i < a.size(); ++i) {
        a[i] = Tav8u(i * 7);
        b[i] = Tav8u(i * 13 + 1);
    }
    bench::timed(state, d.data(), n, [&] {
        const Tav8u* x = a.data();
        const Tav8u* y = b.data();
        Tav8u* z = d.data();
        for (int i = 0; i < n; ++i) z[i] = Tav8u(x[i] & y[i]);
    });
}

std::vector<Tav32fc> ramp_c(size_t n)
{
    std::vector<Tav32fc> v(n);
    for (size_t i = 0; i < n; ++i) v[i] = {float(i) * 0.5f, -float(i) * 0.25f};
    return v;
}

void bm_conj_32fc_tavs(benchmark::State& state)
{
    const int n = int(state.range(0));
    std::vector<Tav32fc> src = ramp_c(size_t(n)), dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] { tavsConj_32fc(src.data(), dst.data(), n); });
}

void bm_conj_32fc_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    std::vector<Tav32fc> src = ramp_c(size_t(n)), dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] {
        const Tav32fc* s = src.data();
        Tav32fc* d = dst.data();
        for (int i = 0; i < n; ++i) d[i] = {s[i].re, -s[i].im};
    });
}

#ifdef TAVS_HAVE_VOLK
void bm_conj_32fc_volk(benchmark::State& state)
{
    const int n = int(state.range(0));
    std::vector<Tav32fc> src = ramp_c(size_t(n)), dst(static_cast<size_t>(n));
    bench::timed(state, dst.data(), n, [&] {
        volk_32fc_conjugate_32fc(reinterpret_cast<lv_32fc_t*>(dst.data()),
                                 reinterpret_cast<const lv_32fc_t*>(src.data()), unsigned(n));
    });
}
BENCHMARK(bm_conj_32fc_volk)->Name("Conj_32fc/volk")->Arg(4096);
#endif

BENCHMARK(bm_threshold_lt_32f_tavs)->Name("Threshold_LT_32f/tavs")->Arg(4096);
BENCHMARK(bm_threshold_lt_32f_loop)->Name("Threshold_LT_32f/loop")->Arg(4096);
BENCHMARK(bm_and_8u_tavs)->Name("And_8u/tavs")->Arg(4096);
BENCHMARK(bm_and_8u_loop)->Name("And_8u/loop")->Arg(4096);
BENCHMARK(bm_conj_32fc_tavs)->Name("Conj_32fc/tavs")->Arg(4096);
BENCHMARK(bm_conj_32fc_loop)->Name("Conj_32fc/loop")->Arg(4096);

} // namespace
