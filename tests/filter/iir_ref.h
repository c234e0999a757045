// Plain models of the recursive filters for the tests, written from the
// equations: tap normalisation by a0, transposed direct form II with the
// two-sample pass, the biquad cascade, direct form I; stable random filters
// to drive them; a long-double model for accuracy checks.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "tavs.h"
#include "test_util.h"

namespace iirt {

// A complex value with the textbook product, in the part type F.
template <class F> struct Z {
    F re, im;
};
template <class F> Z<F> operator+(Z<F> a, Z<F> b) { return {a.re + b.re, a.im + b.im}; }
template <class F> Z<F> operator-(Z<F> a, Z<F> b) { return {a.re - b.re, a.im - b.im}; }
template <class F> Z<F> operator*(Z<F> a, Z<F> b)
{
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

template <class T> T one_over(T v) { return T(1) / v; }
// 1/v, dividing through by the larger part first.
template <class F> Z<F> one_over(Z<F> v)
{
    if (std::fabs(v.re) >= std::fabs(v.im)) {
        F t = v.im / v.re, den = v.re + v.im * t;
        return {F(1) / den, -t / den};
    }
    F t = v.re / v.im, den = v.re * t + v.im;
    return {t / den, F(-1) / den};
}
template <class T> bool is_zero(T v) { return v == T(0); }
template <class F> bool is_zero(Z<F> v) { return v.re == 0 && v.im == 0; }

template <class T> T zero() { return T{}; }

// Transposed direct form II of order n, built from the caller's tap list
// b0..bn, a0, a1..an. call() runs one block as the library's block form
// does (pairs from order 2 on); step() is the one-sample step.
template <class T> struct Arb {
    int n;
    std::vector<T> b, a, d; // a[0] unused; d has n+1 values, d[n] = 0
    Arb(const T* taps, int order)
        : n(order), b(size_t(order) + 1), a(size_t(order) + 1), d(size_t(order) + 1, T{})
    {
        const T r = one_over(taps[n + 1]);
        for (int i = 0; i <= n; ++i)
            b[size_t(i)] = taps[i] * r;
        for (int i = 1; i <= n; ++i)
            a[size_t(i)] = taps[n + 1 + i] * r;
    }
    T step(T x)
    {
        if (n == 0) return b[0] * x;
        T y = b[0] * x + d[0];
        for (int i = 0; i <= n - 2; ++i)
            d[size_t(i)] = b[size_t(i) + 1] * x - a[size_t(i) + 1] * y + d[size_t(i) + 1];
        d[size_t(n) - 1] = b[size_t(n)] * x - a[size_t(n)] * y;
        return y;
    }
    template <class In, class Out> void call(int len, In in, Out out)
    {
        int i = 0;
        if (n >= 2)
            for (; i + 1 < len; i += 2) {
                T x0 = in(i), x1 = in(i + 1);
                T y0 = b[0] * x0 + d[0];
                T y1 = b[0] * x1 + d[1] + b[1] * x0 - a[1] * y0;
                for (int k = 0; k <= n - 2; ++k) {
                    const size_t j = size_t(k);
                    d[j] = b[j + 1] * x1 - a[j + 1] * y1 + b[j + 2] * x0 - a[j + 2] * y0 + d[j + 2];
                }
                d[size_t(n) - 1] = b[size_t(n)] * x1 - a[size_t(n)] * y1;
                out(i, y0);
                out(i + 1, y1);
            }
        for (; i < len; ++i)
            out(i, step(in(i)));
    }
};

// Biquad cascade from b0 b1 b2 a0 a1 a2 per section.
template <class T> struct Bq {
    int m;
    std::vector<T> c, d;
    Bq(const T* taps, int sections) : m(sections), c(5 * size_t(sections)), d(2 * size_t(sections), T{})
    {
        for (int k = 0; k < m; ++k) {
            const T* s = taps + 6 * k;
            const T r = one_over(s[3]);
            T* h = &c[5 * size_t(k)];
            h[0] = s[0] * r, h[1] = s[1] * r, h[2] = s[2] * r, h[3] = s[4] * r, h[4] = s[5] * r;
        }
    }
    T step(T x)
    {
        for (int k = 0; k < m; ++k) {
            const T* h = &c[5 * size_t(k)];
            T* s = &d[2 * size_t(k)];
            T y = h[0] * x + s[0];
            s[0] = h[1] * x + s[1] - h[3] * y;
            s[1] = h[2] * x - h[4] * y;
            x = y;
        }
        return x;
    }
    template <class In, class Out> void call(int len, In in, Out out)
    {
        for (int i = 0; i < len; ++i)
            out(i, step(in(i)));
    }
};

// Held direct form I taps: copied when a0 is exactly 1, else divided.
template <class T> std::vector<T> df1_taps(const T* taps, int m)
{
    std::vector<T> c(5 * size_t(m));
    for (int k = 0; k < m; ++k) {
        const T* s = taps + 6 * k;
        T* h = &c[5 * size_t(k)];
        if (s[3] == T(1)) {
            h[0] = s[0], h[1] = s[1], h[2] = s[2], h[3] = s[4], h[4] = s[5];
        } else {
            const T r = T(1) / s[3];
            h[0] = s[0] * r, h[1] = s[1] * r, h[2] = s[2] * r, h[3] = s[4] * r, h[4] = s[5] * r;
        }
    }
    return c;
}

// Direct form I in 32f, section by section over the block.
struct Df1f {
    int m;
    std::vector<float> c, h; // h: x[-2] x[-1] y[-2] y[-1] per section
    Df1f(const float* taps, int sections)
        : m(sections), c(df1_taps(taps, sections)), h(4 * size_t(sections), 0.0f)
    {
    }
    void call(const float* src, float* dst, int len)
    {
        std::vector<float> cur(src, src + len);
        for (int k = 0; k < m; ++k) {
            const float* t = &c[5 * size_t(k)];
            float* s = &h[4 * size_t(k)];
            for (int i = 0; i < len; ++i) {
                float x = cur[size_t(i)];
                float y = t[0] * x + t[1] * s[1] + t[2] * s[0] - t[3] * s[3] - t[4] * s[2];
                s[0] = s[1], s[1] = x, s[2] = s[3], s[3] = y;
                cur[size_t(i)] = y;
            }
        }
        std::memcpy(dst, cur.data(), size_t(len) * sizeof(float));
    }
};

// ---- stable random filters ------------------------------------------------------

// A polynomial (in z^-1) from the roots of second-order factors: r e^{+-i
// theta} per factor, one real root for an odd degree.
inline std::vector<double> poly_from_roots(tt::Rng& g, int degree, double rmax)
{
    std::vector<double> p{1.0};
    auto mul = [&](std::vector<double> f) {
        std::vector<double> q(p.size() + f.size() - 1, 0.0);
        for (size_t i = 0; i < p.size(); ++i)
            for (size_t j = 0; j < f.size(); ++j)
                q[i + j] += p[i] * f[j];
        p = q;
    };
    for (int k = 0; k + 1 < degree; k += 2) {
        double r = g.uniform(0.2, rmax), th = g.uniform(0.1, 3.0);
        mul({1.0, -2.0 * r * std::cos(th), r * r});
    }
    if (degree % 2) mul({1.0, -g.uniform(-rmax, rmax)});
    return p;
}

// Caller's taps of a stable arbitrary-order filter: b0..bn, a0..an, scaled
// by a random a0 so that the division matters.
inline std::vector<double> arb_taps(tt::Rng& g, int n, double rmax = 0.9)
{
    std::vector<double> a = poly_from_roots(g, n, rmax);
    std::vector<double> t(2 * size_t(n) + 2);
    const double a0 = g.uniform(0.5, 2.0) * (g.next() & 1 ? 1 : -1);
    for (int i = 0; i <= n; ++i)
        t[size_t(i)] = g.uniform(-1.0, 1.0) * a0;
    for (int i = 0; i <= n; ++i)
        t[size_t(n) + 1 + size_t(i)] = a[size_t(i)] * a0;
    return t;
}

// Caller's taps of m stable sections, b0 away from zero.
inline std::vector<double> bq_taps(tt::Rng& g, int m, double rmax = 0.9)
{
    std::vector<double> t;
    for (int k = 0; k < m; ++k) {
        double r = g.uniform(0.2, rmax), th = g.uniform(0.1, 3.0);
        const double a0 = g.uniform(0.5, 2.0);
        double b0 = g.uniform(0.3, 1.0) * (g.next() & 1 ? 1 : -1);
        for (double v : {b0, g.uniform(-1.0, 1.0), g.uniform(-1.0, 1.0), 1.0, -2.0 * r * std::cos(th), r * r})
            t.push_back(v * a0);
    }
    return t;
}

// Complex taps: real ones rotated by random phases (numerator) and poles
// rotated as a whole (denominator coefficient k times e^{i k phi}), which
// keeps the poles inside the unit circle.
template <class F>
std::vector<Z<F>> complex_taps(tt::Rng& g, const std::vector<double>& real, int n, bool biquad)
{
    std::vector<Z<F>> t(real.size());
    const double phi = g.uniform(-3.0, 3.0);
    const int per = biquad ? 6 : int(real.size());
    for (size_t i = 0; i < real.size(); ++i) {
        const int pos = int(i) % per;
        const bool den = biquad ? pos >= 3 : pos > n;
        const int k = biquad ? (den ? pos - 3 : 0) : (den ? pos - n - 1 : 0);
        const double ang = den ? phi * k : g.uniform(-3.0, 3.0);
        t[i] = {F(real[i] * std::cos(ang)), F(real[i] * std::sin(ang))};
    }
    return t;
}

template <class T> std::vector<T> cast_vec(const std::vector<double>& v)
{
    std::vector<T> out(v.size());
    for (size_t i = 0; i < v.size(); ++i)
        out[i] = T(v[i]);
    return out;
}

inline std::vector<float> random_f(tt::Rng& g, int len, double amp = 1.0)
{
    std::vector<float> v(size_t(len > 0 ? len : 0));
    for (auto& x : v)
        x = float(g.uniform(-amp, amp));
    return v;
}

// Long-double one-sample model of the taps as given (no pairs), for the
// accuracy check.
struct LongArb {
    int n;
    std::vector<long double> b, a, d;
    template <class T>
    LongArb(const T* taps, int order) : n(order), b(size_t(n) + 1), a(size_t(n) + 1), d(size_t(n) + 1)
    {
        const long double a0 = taps[n + 1];
        for (int i = 0; i <= n; ++i)
            b[size_t(i)] = (long double)taps[i] / a0;
        for (int i = 1; i <= n; ++i)
            a[size_t(i)] = (long double)taps[n + 1 + i] / a0;
    }
    long double step(long double x)
    {
        long double y = b[0] * x + d[0];
        for (int i = 0; i <= n - 2; ++i)
            d[size_t(i)] = b[size_t(i) + 1] * x - a[size_t(i) + 1] * y + d[size_t(i) + 1];
        d[size_t(n) - 1] = b[size_t(n)] * x - a[size_t(n)] * y;
        return y;
    }
};

// Largest |got - want| over the block, against the largest |want|.
inline double rel_err(const std::vector<double>& got, const std::vector<long double>& want)
{
    long double e = 0, m = 0;
    for (size_t i = 0; i < got.size(); ++i) {
        e = std::max(e, std::fabs((long double)got[i] - want[i]));
        m = std::max(m, std::fabs(want[i]));
    }
    return double(e / (m + 1e-30L));
}

template <class T> bool same(const T& a, const T& b) { return std::memcmp(&a, &b, sizeof(T)) == 0; }

} // namespace iirt
