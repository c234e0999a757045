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

#include "bench_util.h"
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

// Input field F of the shared inputs through fn(in, out) once per
// iteration, with Out results; the row also records the maximum ulp error of
// one run's output against ref.
template <class Out, class In, class Fn, class Ref>
void run(benchmark::State& s, std::vector<In> Inputs::*field, Fn fn, Ref ref)
{
    const auto& in = inputs(int(s.range(0))).*field;
    std::vector<Out> out(in.size());
    bench::timed(s, out.data(), int64_t(out.size()), [&] { fn(in, out); });
    double worst = 0;
    for (size_t i = 0; i < out.size(); ++i)
        worst = std::max(worst, ulp_error(out[i], ref(i)));
    s.counters["max_ulp"] = worst;
}

// The plain loop a caller would write: out[i] = f(in[i]).
template <class F> auto each(F f)
{
    return [f](const auto& in, auto& out) {
        for (size_t i = 0; i < in.size(); ++i)
            out[i] = f(in[i]);
    };
}

// ---- references --------------------------------------------------------------------------
long double ref_exp32(size_t i) { return std::exp((long double)inputs(4096).expIn[i]); }
long double ref_ln32(size_t i) { return std::log((long double)inputs(4096).lnIn[i]); }
long double ref_exp64(size_t i) { return std::exp((long double)inputs(4096).exp64In[i]); }
long double ref_mag(size_t i)
{
    const auto& c = inputs(4096).cplx[i];
    return std::sqrt((long double)c.re * c.re + (long double)c.im * c.im);
}
long double ref_phase(size_t i)
{
    const auto& c = inputs(4096).cplx[i];
    return std::atan2((long double)c.im, (long double)c.re);
}

// ---- tavs and plain loops ----------------------------------------------------------------
void bm_exp32f_tavs(benchmark::State& s)
{
    run<float>(
        s, &Inputs::expIn, [](auto& in, auto& out) { tavsExp_32f(in.data(), out.data(), int(in.size())); },
        ref_exp32);
}
void bm_exp32f_loop(benchmark::State& s)
{
    run<float>(s, &Inputs::expIn, each([](float x) { return std::exp(x); }), ref_exp32);
}
void bm_ln32f_tavs(benchmark::State& s)
{
    run<float>(
        s, &Inputs::lnIn, [](auto& in, auto& out) { tavsLn_32f(in.data(), out.data(), int(in.size())); },
        ref_ln32);
}
void bm_ln32f_loop(benchmark::State& s)
{
    run<float>(s, &Inputs::lnIn, each([](float x) { return std::log(x); }), ref_ln32);
}
void bm_exp64f_tavs(benchmark::State& s)
{
    run<double>(
        s, &Inputs::exp64In, [](auto& in, auto& out) { tavsExp_64f(in.data(), out.data(), int(in.size())); },
        ref_exp64);
}
void bm_exp64f_loop(benchmark::State& s)
{
    run<double>(s, &Inputs::exp64In, each([](double x) { return std::exp(x); }), ref_exp64);
}
void bm_mag_tavs(benchmark::State& s)
{
    run<float>(
        s, &Inputs::cplx,
        [](auto& in, auto& out) { tavsMagnitude_32fc(in.data(), out.data(), int(in.size())); }, ref_mag);
}
void bm_mag_loop(benchmark::State& s)
{
    run<float>(s, &Inputs::cplx, each([](Tav32fc c) { return std::hypot(c.re, c.im); }), ref_mag);
}
void bm_phase_tavs(benchmark::State& s)
{
    run<float>(
        s, &Inputs::cplx, [](auto& in, auto& out) { tavsPhase_32fc(in.data(), out.data(), int(in.size())); },
        ref_phase);
}
void bm_phase_loop(benchmark::State& s)
{
    run<float>(s, &Inputs::cplx, each([](Tav32fc c) { return std::atan2(c.im, c.re); }), ref_phase);
}
BENCHMARK(bm_exp32f_tavs)->Name("Exp_32f/tavs")->Arg(4096);
BENCHMARK(bm_exp32f_loop)->Name("Exp_32f/loop")->Arg(4096);
BENCHMARK(bm_ln32f_tavs)->Name("Ln_32f/tavs")->Arg(4096);
BENCHMARK(bm_ln32f_loop)->Name("Ln_32f/loop")->Arg(4096);
BENCHMARK(bm_exp64f_tavs)->Name("Exp_64f/tavs")->Arg(4096);
BENCHMARK(bm_exp64f_loop)->Name("Exp_64f/loop")->Arg(4096);
BENCHMARK(bm_mag_tavs)->Name("Magnitude_32fc/tavs")->Arg(4096);
BENCHMARK(bm_mag_loop)->Name("Magnitude_32fc/loop")->Arg(4096);
BENCHMARK(bm_phase_tavs)->Name("Phase_32fc/tavs")->Arg(4096);
BENCHMARK(bm_phase_loop)->Name("Phase_32fc/loop")->Arg(4096);

#ifdef TAVS_HAVE_SLEEF
// SLEEF's SSE2 functions, 1.0-ulp variants (hypot: 0.5 ulp), four floats or
// two doubles a call.
template <class F> auto sleef_f4(F f)
{
    return [f](const std::vector<float>& in, std::vector<float>& out) {
        for (size_t i = 0; i < in.size(); i += 4)
            _mm_storeu_ps(&out[i], f(_mm_loadu_ps(&in[i])));
    };
}
// Four complex elements a call, split into real and imaginary vectors.
template <class F> auto sleef_c4(F f)
{
    return [f](const std::vector<Tav32fc>& in, std::vector<float>& out) {
        const float* p = &in[0].re;
        for (size_t i = 0; i < in.size(); i += 4) {
            const __m128 a = _mm_loadu_ps(p + 2 * i), b = _mm_loadu_ps(p + 2 * i + 4);
            const __m128 re = _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)),
                         im = _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1));
            _mm_storeu_ps(&out[i], f(re, im));
        }
    };
}
void bm_exp32f_sleef(benchmark::State& s)
{
    run<float>(s, &Inputs::expIn, sleef_f4([](__m128 x) { return Sleef_expf4_u10sse2(x); }), ref_exp32);
}
void bm_ln32f_sleef(benchmark::State& s)
{
    run<float>(s, &Inputs::lnIn, sleef_f4([](__m128 x) { return Sleef_logf4_u10sse2(x); }), ref_ln32);
}
void bm_exp64f_sleef(benchmark::State& s)
{
    run<double>(
        s, &Inputs::exp64In,
        [](const std::vector<double>& in, std::vector<double>& out) {
            for (size_t i = 0; i < in.size(); i += 2)
                _mm_storeu_pd(&out[i], Sleef_expd2_u10sse2(_mm_loadu_pd(&in[i])));
        },
        ref_exp64);
}
void bm_mag_sleef(benchmark::State& s)
{
    run<float>(s, &Inputs::cplx, sleef_c4([](__m128 re, __m128 im) { return Sleef_hypotf4_u05sse2(re, im); }),
               ref_mag);
}
void bm_phase_sleef(benchmark::State& s)
{
    run<float>(s, &Inputs::cplx, sleef_c4([](__m128 re, __m128 im) { return Sleef_atan2f4_u10sse2(im, re); }),
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
    run<float>(
        s, &Inputs::expIn,
        [](auto& in, auto& out) { volk_32f_exp_32f(out.data(), in.data(), unsigned(in.size())); }, ref_exp32);
}
void bm_ln32f_volk(benchmark::State& s)
{
    run<float>(
        s, &Inputs::lnIn,
        [](auto& in, auto& out) {
            volk_32f_log2_32f(out.data(), in.data(), unsigned(in.size()));
            volk_32f_s32f_multiply_32f(out.data(), out.data(), 0.6931471805599453f, unsigned(in.size()));
        },
        ref_ln32);
}
void bm_mag_volk(benchmark::State& s)
{
    run<float>(
        s, &Inputs::cplx,
        [](auto& in, auto& out) {
            volk_32fc_magnitude_32f(out.data(), reinterpret_cast<const lv_32fc_t*>(in.data()),
                                    unsigned(in.size()));
        },
        ref_mag);
}
void bm_phase_volk(benchmark::State& s)
{
    run<float>(
        s, &Inputs::cplx,
        [](auto& in, auto& out) {
            volk_32fc_s32f_atan2_32f(out.data(), reinterpret_cast<const lv_32fc_t*>(in.data()), 1.0f,
                                     unsigned(in.size()));
        },
        ref_phase);
}
BENCHMARK(bm_exp32f_volk)->Name("Exp_32f/volk")->Arg(4096);
BENCHMARK(bm_ln32f_volk)->Name("Ln_32f/volk")->Arg(4096);
BENCHMARK(bm_mag_volk)->Name("Magnitude_32fc/volk")->Arg(4096);
BENCHMARK(bm_phase_volk)->Name("Phase_32fc/volk")->Arg(4096);
#endif

} // namespace
