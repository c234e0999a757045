// Helpers of the real FFT tests: one trait per precision with the twelve
// transforms, the three layouts written out from a full spectrum, and a
// long-double reference of the real transform in both directions.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <vector>

#include "fft_test_util.h"
#include "tavs.h"
#include "test_util.h"

namespace rt {

using ft::cld;

enum Layout { Perm = 0, Pack = 1, CCS = 2 };
inline const char* layout_name(int l) { return l == Perm ? "Perm" : l == Pack ? "Pack" : "CCS"; }

// Length of a layout for N real samples.
inline size_t layout_len(int l, size_t n) { return l == CCS ? (n == 1 ? 2 : n + 2) : n; }

#define RT_TRAIT(NAME, S_, T_)                                                                                  \
    struct NAME {                                                                                               \
        using S = S_;                                                                                           \
        using Spec = FFTSpec_R_##T_;                                                                            \
        static constexpr const char* name = #T_;                                                                \
        static Status alloc(Spec** p, int o, int f) { return tavsFFTInitAlloc_R_##T_(p, o, f, 0); }             \
        static Status free(Spec* p) { return tavsFFTFree_R_##T_(p); }                                           \
        static Status buf_size(const Spec* p, int* n) { return tavsFFTGetBufSize_R_##T_(p, n); }                \
        static Status fwd(int l, const S* s, S* d, const Spec* p, Tav8u* w)                                     \
        {                                                                                                       \
            return l == Perm ? tavsFFTFwd_RToPerm_##T_(s, d, p, w)                                              \
                   : l == Pack ? tavsFFTFwd_RToPack_##T_(s, d, p, w)                                            \
                               : tavsFFTFwd_RToCCS_##T_(s, d, p, w);                                            \
        }                                                                                                       \
        static Status fwd_i(int l, S* sd, const Spec* p, Tav8u* w)                                              \
        {                                                                                                       \
            return l == Perm ? tavsFFTFwd_RToPerm_##T_##_I(sd, p, w)                                            \
                   : l == Pack ? tavsFFTFwd_RToPack_##T_##_I(sd, p, w)                                          \
                               : tavsFFTFwd_RToCCS_##T_##_I(sd, p, w);                                          \
        }                                                                                                       \
        static Status inv(int l, const S* s, S* d, const Spec* p, Tav8u* w)                                     \
        {                                                                                                       \
            return l == Perm ? tavsFFTInv_PermToR_##T_(s, d, p, w)                                              \
                   : l == Pack ? tavsFFTInv_PackToR_##T_(s, d, p, w)                                            \
                               : tavsFFTInv_CCSToR_##T_(s, d, p, w);                                            \
        }                                                                                                       \
        static Status inv_i(int l, S* sd, const Spec* p, Tav8u* w)                                              \
        {                                                                                                       \
            return l == Perm ? tavsFFTInv_PermToR_##T_##_I(sd, p, w)                                            \
                   : l == Pack ? tavsFFTInv_PackToR_##T_##_I(sd, p, w)                                          \
                               : tavsFFTInv_CCSToR_##T_##_I(sd, p, w);                                          \
        }                                                                                                       \
    };

RT_TRAIT(R32, float, 32f)
RT_TRAIT(R64, double, 64f)
#undef RT_TRAIT

using Precisions = ::testing::Types<R32, R64>;

// An InitAlloc real record released at the end of the scope.
template <class P> struct Record {
    typename P::Spec* p = nullptr;
    Record(int order, int flag) { EXPECT_EQ(P::alloc(&p, order, flag), StatusOk) << order; }
    ~Record()
    {
        if (p) P::free(p);
    }
};

// The half spectrum X[0 .. N/2] written in a layout (X[0] and, for even N,
// X[N/2] taken as real).
template <class S> std::vector<S> to_layout(int l, const std::vector<cld>& X, size_t n)
{
    std::vector<S> v(layout_len(l, n), S(0));
    v[0] = S(X[0].real());
    if (n == 1) return v;
    const size_t h = n / 2;
    for (size_t k = 1; k < h; ++k) {
        const size_t i = l == Pack ? 2 * k - 1 : 2 * k;
        v[i] = S(X[k].real());
        v[i + 1] = S(X[k].imag());
    }
    if (l == Perm) v[1] = S(X[h].real());
    else if (l == Pack) v[n - 1] = S(X[h].real());
    else v[n] = S(X[h].real());
    return v;
}

// The half spectrum read back from a layout.
template <class S> std::vector<cld> from_layout(int l, const std::vector<S>& v, size_t n)
{
    std::vector<cld> X(n / 2 + 1);
    X[0] = cld(v[0], l == CCS ? v[1] : 0);
    if (n == 1) return X;
    const size_t h = n / 2;
    for (size_t k = 1; k < h; ++k) {
        const size_t i = l == Pack ? 2 * k - 1 : 2 * k;
        X[k] = cld(v[i], v[i + 1]);
    }
    X[h] = l == Perm ? cld(v[1], 0) : l == Pack ? cld(v[n - 1], 0) : cld(v[n], v[n + 1]);
    return X;
}

// cos and -sin of 2 pi k / n in long double, argument folded into [0, pi/4].
inline cld ref_twiddle(size_t k, size_t n)
{
    const long double pi = 3.141592653589793238462643383279502884L;
    k %= n;
    const size_t e8 = 8 * k;
    long double c, s;
    auto ang = [&](size_t j) { return 2 * pi * (long double)j / (long double)n; };
    if (e8 <= n) c = cosl(ang(k)), s = sinl(ang(k));
    else if (e8 <= 2 * n) c = sinl(ang(n / 4 - k)), s = cosl(ang(n / 4 - k));
    else if (e8 <= 3 * n) c = -sinl(ang(k - n / 4)), s = cosl(ang(k - n / 4));
    else c = -cosl(ang(n / 2 - k)), s = sinl(ang(n / 2 - k));
    return cld(c, -s);
}

// Reference forward transform of real x in long double: X[0 .. N/2]. Plain:
// the complex reference over N points with zero imaginary parts. Halved: the
// complex reference over N/2 points of (x[2n], x[2n+1]) and the split of its
// spectrum, written out in long double (the large orders use it: half the
// time, and the test checks it against the plain one).
inline std::vector<cld> ref_forward(const std::vector<double>& x, bool halved = true)
{
    const size_t n = x.size();
    if (!halved || n < 4096) {
        std::vector<cld> a(n);
        for (size_t i = 0; i < n; ++i) a[i] = cld(x[i], 0);
        ft::ref_fft(a, false);
        a.resize(n / 2 + 1);
        return a;
    }
    const size_t m = n / 2;
    std::vector<cld> z(m);
    for (size_t i = 0; i < m; ++i) z[i] = cld(x[2 * i], x[2 * i + 1]);
    ft::ref_fft(z, false);
    std::vector<cld> X(m + 1);
    for (size_t k = 0; k <= m; ++k) {
        const cld a = z[k % m], b = std::conj(z[(m - k) % m]);
        const cld e = (a + b) * 0.5L, o = (a - b) * cld(0, -0.5L);
        X[k] = e + ref_twiddle(k, n) * o;
    }
    return X;
}

// Reference unscaled inverse of a half spectrum (conjugate symmetry implied),
// plain or halved as above.
inline std::vector<long double> ref_inverse(const std::vector<cld>& Xin, size_t n, bool halved = true)
{
    std::vector<cld> X = Xin;
    X[0] = cld(X[0].real(), 0);
    if (n >= 2) X[n / 2] = cld(X[n / 2].real(), 0);
    std::vector<long double> y(n);
    if (!halved || n < 4096) {
        std::vector<cld> a(n);
        for (size_t k = 0; k <= n / 2; ++k) a[k] = X[k];
        for (size_t k = n / 2 + 1; k < n; ++k) a[k] = std::conj(X[n - k]);
        ft::ref_fft(a, true);
        for (size_t i = 0; i < n; ++i) y[i] = a[i].real();
        return y;
    }
    const size_t m = n / 2;
    std::vector<cld> z(m);
    for (size_t k = 0; k < m; ++k) {
        const cld a = X[k], b = std::conj(X[m - k]);
        z[k] = (a + b) + cld(0, 1) * std::conj(ref_twiddle(k, n)) * (a - b);
    }
    ft::ref_fft(z, true);
    for (size_t i = 0; i < m; ++i) y[2 * i] = z[i].real(), y[2 * i + 1] = z[i].imag();
    return y;
}

// Relative RMS error of a half spectrum against the reference (f: scale).
inline double spectrum_error(const std::vector<cld>& ref, const std::vector<cld>& got, long double f = 1)
{
    long double num = 0, den = 0;
    for (size_t k = 0; k < ref.size(); ++k) {
        const cld r = ref[k] * f;
        num += std::norm(got[k] - r);
        den += std::norm(r);
    }
    return double(den == 0 ? sqrtl(num) : sqrtl(num / den));
}

template <class S> double signal_error(const std::vector<long double>& ref, const S* got, long double f = 1)
{
    long double num = 0, den = 0;
    for (size_t i = 0; i < ref.size(); ++i) {
        const long double d = (long double)got[i] - ref[i] * f;
        num += d * d;
        den += ref[i] * f * ref[i] * f;
    }
    return double(den == 0 ? sqrtl(num) : sqrtl(num / den));
}

// A random real signal of N values that are exact in 32f.
inline std::vector<double> random_real(unsigned seed, size_t n)
{
    tt::Rng rng(seed);
    std::vector<double> x(n);
    for (auto& v : x) v = double(float(rng.uniform(-1.0, 1.0)));
    return x;
}

// A random half spectrum with values exact in 32f; X[0], X[N/2] real.
inline std::vector<cld> random_spectrum(unsigned seed, size_t n)
{
    tt::Rng rng(seed);
    std::vector<cld> X(n / 2 + 1);
    for (auto& v : X) v = cld(float(rng.uniform(-1.0, 1.0)), float(rng.uniform(-1.0, 1.0)));
    X[0] = cld(X[0].real(), 0);
    X[n / 2] = cld(X[n / 2].real(), 0);
    return X;
}

} // namespace rt
