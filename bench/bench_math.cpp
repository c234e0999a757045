// Elementary functions at 4096 elements: tavs against a plain libm loop,
// SLEEF's SSE2 vector functions and VOLK's kernels. Each row also carries
// the maximum error of its implementation over the benchmark's input, in
// ulps of the result type against a long double reference (max_ulp).
#include <benchmark/benchmark.h>

#include <cmath>
#include <complex>
#include <cstdint>
#include <random>
#include <vector>

#include "tavs.h"

#ifdef TAVS_HAVE_SLEEF
#include <emmintrin.h>
#include <sleef.h>
#endif
#ifdef TAVS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace {

template <class T> double ulp_error(T got, long double ref)
{
    if (std::isnan(ref) || std::isinf(ref))
        return got == ref || (std::isnan(got) && std::isnan(ref)) ? 0.0 : 1e9;
    int e = 0;
    std::frexp(ref, &e);
    e = std::max(e, std::numeric_limits<T>::min_exponent);
    return double(std::fabs((long double)got - ref) / std::ldexp(1.0L, e - std::numeric_limits<T>::digits));
}

struct Inputs {
    std::vector<float> expIn, lnIn;
    std::vector<double> exp64In;
    std::vector<Tav32fc> cplx;
    explicit Inputs(int n)
    {
        std::mt19937 g(7);
        std::uniform_real_distribution<float> ue(-80.0f, 80.0f), ul(-9.0f, 9.0f), uc(-100.0f, 100.0f);
        std::uniform_real_distribution<double> ud(-700.0, 700.0);
        for (int i = 0; i < n; ++i) {
            expIn.push_back(ue(g));
            lnIn.push_back(std::exp(ul(g)));
            exp64In.push_back(ud(g));
            cplx.push_back({uc(g), uc(g)});
        }
    }
};
const Inputs& inputs(int n)
{
    static const Inputs in(n);
    return in;
}

// Runs fn over the input, records the items processed and the maximum ulp
// error of one run's output against ref.
template <class Out, class Fn, class Ref>
void run(benchmark::State& state, std::vector<Out>& out, Fn fn, Ref ref)
{
    for (auto _ : state) {
        fn();
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * int64_t(out.size()));
    double worst = 0;
    for (size_t i = 0; i < out.size(); ++i)
        worst = std::max(worst, ulp_error(out[i], ref(i)));
    state.counters["max_ulp"] = worst;
}

// ---- Exp_32f -----------------------------------------------------------------------------
long double ref_exp32(size_t i) { return std::exp((long double)inputs(4096).expIn[i]); }

void bm_exp32f_tavs(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).expIn;
    std::vector<float> out(in.size());
    run(
        s, out, [&] { tavsExp_32f(in.data(), out.data(), int(in.size())); }, ref_exp32);
}
void bm_exp32f_loop(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).expIn;
    std::vector<float> out(in.size());
    run(
        s, out,
        [&] {
            for (size_t i = 0; i < in.size(); ++i)
                out[i] = std::exp(in[i]);
        },
        ref_exp32);
}
BENCHMARK(bm_exp32f_tavs)->Name("Exp_32f/tavs")->Arg(4096);
BENCHMARK(bm_exp32f_loop)->Name("Exp_32f/loop")->Arg(4096);

// ---- Ln_32f ------------------------------------------------------------------------------
long double ref_ln32(size_t i) { return std::log((long double)inputs(4096).lnIn[i]); }

void bm_ln32f_tavs(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).lnIn;
    std::vector<float> out(in.size());
    run(
        s, out, [&] { tavsLn_32f(in.data(), out.data(), int(in.size())); }, ref_ln32);
}
void bm_ln32f_loop(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).lnIn;
    std::vector<float> out(in.size());
    run(
        s, out,
        [&] {
            for (size_t i = 0; i < in.size(); ++i)
                out[i] = std::log(in[i]);
        },
        ref_ln32);
}
BENCHMARK(bm_ln32f_tavs)->Name("Ln_32f/tavs")->Arg(4096);
BENCHMARK(bm_ln32f_loop)->Name("Ln_32f/loop")->Arg(4096);

// ---- Exp_64f -----------------------------------------------------------------------------
long double ref_exp64(size_t i) { return std::exp((long double)inputs(4096).exp64In[i]); }

void bm_exp64f_tavs(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).exp64In;
    std::vector<double> out(in.size());
    run(
        s, out, [&] { tavsExp_64f(in.data(), out.data(), int(in.size())); }, ref_exp64);
}
void bm_exp64f_loop(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).exp64In;
    std::vector<double> out(in.size());
    run(
        s, out,
        [&] {
            for (size_t i = 0; i < in.size(); ++i)
                out[i] = std::exp(in[i]);
        },
        ref_exp64);
}
BENCHMARK(bm_exp64f_tavs)->Name("Exp_64f/tavs")->Arg(4096);
BENCHMARK(bm_exp64f_loop)->Name("Exp_64f/loop")->Arg(4096);

// ---- Magnitude_32fc ----------------------------------------------------------------------
long double ref_mag(size_t i)
{
    const auto& c = inputs(4096).cplx[i];
    return std::sqrt((long double)c.re * c.re + (long double)c.im * c.im);
}

void bm_mag_tavs(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).cplx;
    std::vector<float> out(in.size());
    run(
        s, out, [&] { tavsMagnitude_32fc(in.data(), out.data(), int(in.size())); }, ref_mag);
}
void bm_mag_loop(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).cplx;
    std::vector<float> out(in.size());
    run(
        s, out,
        [&] {
            for (size_t i = 0; i < in.size(); ++i)
                out[i] = std::hypot(in[i].re, in[i].im);
        },
        ref_mag);
}
BENCHMARK(bm_mag_tavs)->Name("Magnitude_32fc/tavs")->Arg(4096);
BENCHMARK(bm_mag_loop)->Name("Magnitude_32fc/loop")->Arg(4096);

// ---- Phase_32fc --------------------------------------------------------------------------
long double ref_phase(size_t i)
{
    const auto& c = inputs(4096).cplx[i];
    return std::atan2((long double)c.im, (long double)c.re);
}

void bm_phase_tavs(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).cplx;
    std::vector<float> out(in.size());
    run(
        s, out, [&] { tavsPhase_32fc(in.data(), out.data(), int(in.size())); }, ref_phase);
}
void bm_phase_loop(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).cplx;
    std::vector<float> out(in.size());
    run(
        s, out,
        [&] {
            for (size_t i = 0; i < in.size(); ++i)
                out[i] = std::atan2(in[i].im, in[i].re);
        },
        ref_phase);
}
BENCHMARK(bm_phase_tavs)->Name("Phase_32fc/tavs")->Arg(4096);
BENCHMARK(bm_phase_loop)->Name("Phase_32fc/loop")->Arg(4096);

#ifdef TAVS_HAVE_SLEEF
// SLEEF's SSE2 functions, 1.0-ulp variants (hypot: 0.5 ulp), four floats or
// two doubles a call.
void bm_exp32f_sleef(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).expIn;
    std::vector<float> out(in.size());
    run(
        s, out,
        [&] {
            for (size_t i = 0; i < in.size(); i += 4)
                _mm_storeu_ps(&out[i], Sleef_expf4_u10sse2(_mm_loadu_ps(&in[i])));
        },
        ref_exp32);
}
void bm_ln32f_sleef(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).lnIn;
    std::vector<float> out(in.size());
    run(
        s, out,
        [&] {
            for (size_t i = 0; i < in.size(); i += 4)
                _mm_storeu_ps(&out[i], Sleef_logf4_u10sse2(_mm_loadu_ps(&in[i])));
        },
        ref_ln32);
}
void bm_exp64f_sleef(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).exp64In;
    std::vector<double> out(in.size());
    run(
        s, out,
        [&] {
            for (size_t i = 0; i < in.size(); i += 2)
                _mm_storeu_pd(&out[i], Sleef_expd2_u10sse2(_mm_loadu_pd(&in[i])));
        },
        ref_exp64);
}
void bm_mag_sleef(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).cplx;
    std::vector<float> out(in.size());
    run(
        s, out,
        [&] {
            const float* p = &in[0].re;
            for (size_t i = 0; i < in.size(); i += 4) {
                const __m128 a = _mm_loadu_ps(p + 2 * i), b = _mm_loadu_ps(p + 2 * i + 4);
                const __m128 re = _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)),
                             im = _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1));
                _mm_storeu_ps(&out[i], Sleef_hypotf4_u05sse2(re, im));
            }
        },
        ref_mag);
}
void bm_phase_sleef(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).cplx;
    std::vector<float> out(in.size());
    run(
        s, out,
        [&] {
            const float* p = &in[0].re;
            for (size_t i = 0; i < in.size(); i += 4) {
                const __m128 a = _mm_loadu_ps(p + 2 * i), b = _mm_loadu_ps(p + 2 * i + 4);
                const __m128 re = _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)),
                             im = _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1));
                _mm_storeu_ps(&out[i], Sleef_atan2f4_u10sse2(im, re));
            }
        },
        ref_phase);
}
BENCHMARK(bm_exp32f_sleef)->Name("Exp_32f/sleef")->Arg(4096);
BENCHMARK(bm_ln32f_sleef)->Name("Ln_32f/sleef")->Arg(4096);
BENCHMARK(bm_exp64f_sleef)->Name("Exp_64f/sleef")->Arg(4096);
BENCHMARK(bm_mag_sleef)->Name("Magnitude_32fc/sleef")->Arg(4096);
BENCHMARK(bm_phase_sleef)->Name("Phase_32fc/sleef")->Arg(4096);
#endif

#ifdef TAVS_HAVE_VOLK
// VOLK has no double exponential and no natural logarithm: Ln is its log2
// kernel followed by its scaling kernel.
void bm_exp32f_volk(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).expIn;
    std::vector<float> out(in.size());
    run(
        s, out, [&] { volk_32f_exp_32f(out.data(), in.data(), unsigned(in.size())); }, ref_exp32);
}
void bm_ln32f_volk(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).lnIn;
    std::vector<float> out(in.size());
    run(
        s, out,
        [&] {
            volk_32f_log2_32f(out.data(), in.data(), unsigned(in.size()));
            volk_32f_s32f_multiply_32f(out.data(), out.data(), 0.6931471805599453f, unsigned(in.size()));
        },
        ref_ln32);
}
void bm_mag_volk(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).cplx;
    std::vector<float> out(in.size());
    const auto* c = reinterpret_cast<const lv_32fc_t*>(in.data());
    run(
        s, out, [&] { volk_32fc_magnitude_32f(out.data(), c, unsigned(in.size())); }, ref_mag);
}
void bm_phase_volk(benchmark::State& s)
{
    const auto& in = inputs(int(s.range(0))).cplx;
    std::vector<float> out(in.size());
    const auto* c = reinterpret_cast<const lv_32fc_t*>(in.data());
    run(
        s, out, [&] { volk_32fc_s32f_atan2_32f(out.data(), c, 1.0f, unsigned(in.size())); }, ref_phase);
}
BENCHMARK(bm_exp32f_volk)->Name("Exp_32f/volk")->Arg(4096);
BENCHMARK(bm_ln32f_volk)->Name("Ln_32f/volk")->Arg(4096);
BENCHMARK(bm_mag_volk)->Name("Magnitude_32fc/volk")->Arg(4096);
BENCHMARK(bm_phase_volk)->Name("Phase_32fc/volk")->Arg(4096);
#endif

} // namespace
