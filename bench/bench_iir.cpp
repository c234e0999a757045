// Recursive filters on 4096 samples: a 4-section biquad cascade and an
// order-8 filter, in 32f and 64f, against the plain loop a caller would
// write and liquid-dsp's IIR filter (second-order sections) when installed.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "bench_util.h"
#include "tavs.h"

#ifdef TAVS_HAVE_LIQUID
#include <liquid/liquid.h>
#endif

namespace {

constexpr int kSections = 4;

// Four stable sections: b0 b1 b2 a0 a1 a2 each (a lowpass-like cascade).
std::vector<double> sections()
{
    std::vector<double> t;
    for (int k = 0; k < kSections; ++k) {
        const double r = 0.6 + 0.08 * k, th = 0.3 + 0.2 * k;
        for (double v : {0.2, 0.4, 0.2, 1.0, -2.0 * r * std::cos(th), r * r})
            t.push_back(v);
    }
    return t;
}

// The same filter as one order-8 list b0..b8, a0..a8 (products of the sections).
std::vector<double> order8()
{
    auto s = sections();
    std::vector<double> b{1.0}, a{1.0};
    auto mul = [](std::vector<double>& p, const double* f) {
        std::vector<double> q(p.size() + 2, 0.0);
        for (size_t i = 0; i < p.size(); ++i)
            for (size_t j = 0; j < 3; ++j)
                q[i + j] += p[i] * f[j];
        p = q;
    };
    for (int k = 0; k < kSections; ++k) {
        mul(b, &s[size_t(6 * k)]);
        mul(a, &s[size_t(6 * k + 3)]);
    }
    b.insert(b.end(), a.begin(), a.end());
    return b;
}

template <class T> std::vector<T> signal(size_t n)
{
    std::vector<T> v(n);
    for (size_t i = 0; i < n; ++i)
        v[i] = T(std::sin(0.01 * double(i)) + 0.25 * std::sin(0.9 * double(i)));
    return v;
}

template <class T> std::vector<T> cast(const std::vector<double>& v)
{
    return std::vector<T>(v.begin(), v.end());
}

// ---- tavs -----------------------------------------------------------------------------

// Sizes the state with getSize(&bytes), builds it in a caller block with
// init(&state, taps, mem) and times filter(x, y, n, state) on the signal.
template <class T, class State, class GetSize, class Init, class Filter>
void iir_tavs(benchmark::State& state, const std::vector<double>& taps, GetSize getSize, Init init,
              Filter filter)
{
    const int n = int(state.range(0));
    auto t = cast<T>(taps);
    int size = 0;
    getSize(&size);
    std::vector<Tav8u> mem(static_cast<size_t>(size));
    State* st = nullptr;
    init(&st, t.data(), mem.data());
    auto x = signal<T>(size_t(n));
    std::vector<T> y(x.size());
    bench::timed(state, y.data(), n, [&] { filter(x.data(), y.data(), n, st); });
}

void bm_biquad_32f_tavs(benchmark::State& state)
{
    iir_tavs<float, IIRState_32f>(
        state, sections(), [](int* size) { tavsIIRGetStateSize_BiQuad_32f(kSections, size); },
        [](IIRState_32f** st, const float* t, Tav8u* mem) {
            tavsIIRInit_BiQuad_32f(st, t, kSections, nullptr, mem);
        },
        tavsIIR_32f);
}

void bm_order8_32f_tavs(benchmark::State& state)
{
    iir_tavs<float, IIRState_32f>(
        state, order8(), [](int* size) { tavsIIRGetStateSize_32f(8, size); },
        [](IIRState_32f** st, const float* t, Tav8u* mem) { tavsIIRInit_32f(st, t, 8, nullptr, mem); },
        tavsIIR_32f);
}

void bm_biquad_64f_tavs(benchmark::State& state)
{
    iir_tavs<double, IIRState_64f>(
        state, sections(), [](int* size) { tavsIIRGetStateSize_BiQuad_64f(kSections, size); },
        [](IIRState_64f** st, const double* t, Tav8u* mem) {
            tavsIIRInit_BiQuad_64f(st, t, kSections, nullptr, mem);
        },
        tavsIIR_64f);
}

void bm_order8_64f_tavs(benchmark::State& state)
{
    iir_tavs<double, IIRState_64f>(
        state, order8(), [](int* size) { tavsIIRGetStateSize_64f(8, size); },
        [](IIRState_64f** st, const double* t, Tav8u* mem) { tavsIIRInit_64f(st, t, 8, nullptr, mem); },
        tavsIIR_64f);
}

// ---- plain loops ----------------------------------------------------------------------

// Transposed direct form II cascade, one sample through every section.
template <class T> void bm_biquad_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto s = sections();
    T c[kSections][5], d[kSections][2] = {};
    for (int k = 0; k < kSections; ++k) {
        const double* t = &s[size_t(6 * k)];
        c[k][0] = T(t[0] / t[3]), c[k][1] = T(t[1] / t[3]), c[k][2] = T(t[2] / t[3]);
        c[k][3] = T(t[4] / t[3]), c[k][4] = T(t[5] / t[3]);
    }
    auto x = signal<T>(size_t(n));
    std::vector<T> y(x.size());
    bench::timed(state, y.data(), n, [&] {
        for (int i = 0; i < n; ++i) {
            T v = x[size_t(i)];
            for (int k = 0; k < kSections; ++k) {
                const T o = c[k][0] * v + d[k][0];
                d[k][0] = c[k][1] * v + d[k][1] - c[k][3] * o;
                d[k][1] = c[k][2] * v - c[k][4] * o;
                v = o;
            }
            y[size_t(i)] = v;
        }
    });
}

// Transposed direct form II of order 8, one sample at a time.
template <class T> void bm_order8_loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto t = order8();
    T b[9], a[9], d[9] = {};
    for (int i = 0; i <= 8; ++i)
        b[i] = T(t[size_t(i)] / t[9]), a[i] = T(t[size_t(9 + i)] / t[9]);
    auto x = signal<T>(size_t(n));
    std::vector<T> y(x.size());
    bench::timed(state, y.data(), n, [&] {
        for (int i = 0; i < n; ++i) {
            const T v = x[size_t(i)];
            const T o = b[0] * v + d[0];
            for (int k = 0; k < 7; ++k)
                d[k] = b[k + 1] * v - a[k + 1] * o + d[k + 1];
            d[7] = b[8] * v - a[8] * o;
            y[size_t(i)] = o;
        }
    });
}

#ifdef TAVS_HAVE_LIQUID
// liquid-dsp's float IIR filter built from the same four sections.
void bm_sos_32f_liquid(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto s = sections();
    std::vector<float> B, A;
    for (int k = 0; k < kSections; ++k)
        for (int j = 0; j < 3; ++j) {
            B.push_back(float(s[size_t(6 * k + j)]));
            A.push_back(float(s[size_t(6 * k + 3 + j)]));
        }
    iirfilt_rrrf q = iirfilt_rrrf_create_sos(B.data(), A.data(), kSections);
    auto x = signal<float>(size_t(n));
    std::vector<float> y(x.size());
    bench::timed(state, y.data(), n, [&] { iirfilt_rrrf_execute_block(q, x.data(), unsigned(n), y.data()); });
    iirfilt_rrrf_destroy(q);
}
#endif

} // namespace

BENCHMARK(bm_biquad_32f_tavs)->Name("IIR_32f_BiQuad4/tavs")->Arg(4096);
BENCHMARK(bm_biquad_loop<float>)->Name("IIR_32f_BiQuad4/loop")->Arg(4096);
BENCHMARK(bm_order8_32f_tavs)->Name("IIR_32f_Order8/tavs")->Arg(4096);
BENCHMARK(bm_order8_loop<float>)->Name("IIR_32f_Order8/loop")->Arg(4096);
BENCHMARK(bm_biquad_64f_tavs)->Name("IIR_64f_BiQuad4/tavs")->Arg(4096);
BENCHMARK(bm_biquad_loop<double>)->Name("IIR_64f_BiQuad4/loop")->Arg(4096);
BENCHMARK(bm_order8_64f_tavs)->Name("IIR_64f_Order8/tavs")->Arg(4096);
BENCHMARK(bm_order8_loop<double>)->Name("IIR_64f_Order8/loop")->Arg(4096);
#ifdef TAVS_HAVE_LIQUID
// The order-8 filter is the same four sections, so liquid's cascade serves
// both 32f rows; it has no 64f real filter.
BENCHMARK(bm_sos_32f_liquid)->Name("IIR_32f_BiQuad4/liquid")->Arg(4096);
BENCHMARK(bm_sos_32f_liquid)->Name("IIR_32f_Order8/liquid")->Arg(4096);
#endif
