// Helpers of the FFT tests: a long-double reference transform, the error
// measure, and one trait per complex layout so every test runs on all four.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <vector>

#include "tavs.h"
#include "test_util.h"

namespace ft {

using cld = std::complex<long double>;

// One FFT record kind with its five functions named as they stand. The
// record tests of the floating and of the fixed-point kinds derive their
// kind tables from it, each adding the types it needs.
template <class Spec_> struct RecordKind {
    using Spec = Spec_;
    const char* name;
    int32_t tag;
    int limit;
    Status (*getSize)(int, int, int, int*, int*, int*);
    Status (*init)(Spec**, int, int, int, Tav8u*, Tav8u*);
    Status (*initAlloc)(Spec**, int, int, int);
    Status (*free)(Spec*);
    Status (*bufSize)(const Spec*, int*);
};

// Reference transform in long double: iterative radix-2 with every twiddle
// from cosl/sinl (one octant computed, the rest by symmetry), unscaled;
// exponent sign - forward, + inverse. Products are written out so no
// library call checks for infinities on every element.
inline void ref_fft(std::vector<cld>& a, bool inverse)
{
    const size_t n = a.size();
    if (n < 2) return;
    for (size_t i = 1, j = 0; i < n; ++i) {
        size_t bit = n >> 1;
        for (; j & bit; bit >>= 1) j ^= bit;
        j ^= bit;
        if (i < j) std::swap(a[i], a[j]);
    }
    const long double pi = 3.141592653589793238462643383279502884L;
    std::vector<long double> wr(n / 2), wi(n / 2);
    for (size_t k = 0; k < n / 2; ++k) {
        // cos and sin of 2 pi k / n with the argument folded into [0, pi/4].
        const size_t e8 = 8 * k; // in units of n/8
        long double c, s;
        if (e8 <= n) {
            const long double t = 2 * pi * (long double)k / (long double)n;
            c = cosl(t), s = sinl(t);
        } else if (e8 <= 2 * n) {
            const long double t = 2 * pi * (long double)(n / 4 - k) / (long double)n;
            c = sinl(t), s = cosl(t);
        } else if (e8 <= 3 * n) {
            const long double t = 2 * pi * (long double)(k - n / 4) / (long double)n;
            c = -sinl(t), s = cosl(t);
        } else {
            const long double t = 2 * pi * (long double)(n / 2 - k) / (long double)n;
            c = -cosl(t), s = sinl(t);
        }
        wr[k] = c;
        wi[k] = inverse ? s : -s;
    }
    std::vector<long double> re(n), im(n);
    for (size_t i = 0; i < n; ++i) re[i] = a[i].real(), im[i] = a[i].imag();
    for (size_t len = 2; len <= n; len <<= 1) {
        const size_t step = n / len, h = len / 2;
        for (size_t i = 0; i < n; i += len)
            for (size_t k = 0; k < h; ++k) {
                const long double c = wr[k * step], s = wi[k * step];
                const size_t p = i + k, q = p + h;
                const long double vr = re[q] * c - im[q] * s, vi = re[q] * s + im[q] * c;
                re[q] = re[p] - vr, im[q] = im[p] - vi;
                re[p] += vr, im[p] += vi;
            }
    }
    for (size_t i = 0; i < n; ++i) a[i] = cld(re[i], im[i]);
}

// Direct O(N^2) DFT in long double, to check the reference itself.
inline std::vector<cld> ref_dft(const std::vector<cld>& x, bool inverse)
{
    const size_t n = x.size();
    const long double pi = 3.141592653589793238462643383279502884L;
    std::vector<cld> y(n);
    for (size_t k = 0; k < n; ++k) {
        cld s = 0;
        for (size_t j = 0; j < n; ++j) {
            const long double t = 2 * pi * (long double)((j * k) % n) / (long double)n;
            s += x[j] * cld(cosl(t), inverse ? sinl(t) : -sinl(t));
        }
        y[k] = s;
    }
    return y;
}

// Relative RMS error of interleaved values against the reference.
template <class S> double rel_rms(const std::vector<cld>& ref, const std::vector<S>& got)
{
    long double num = 0, den = 0;
    for (size_t k = 0; k < ref.size(); ++k) {
        const long double dr = (long double)got[2 * k] - ref[k].real();
        const long double di = (long double)got[2 * k + 1] - ref[k].imag();
        num += dr * dr + di * di;
        den += std::norm(ref[k]);
    }
    if (den == 0) return double(std::sqrt(num));
    return double(std::sqrt(num / den));
}

// Error bound of the relative RMS error by precision: 1e-7 (32f) or 1e-16
// (64f) times log2 N, and never above 1e-6 (32f) or 1e-14 (64f).
template <class S> double bound(int order)
{
    const double lg = double(order + 1);
    return sizeof(S) == 4 ? std::min(1e-6, 1e-7 * lg) : std::min(1e-14, 1e-16 * lg);
}

template <class S> std::vector<S> random_signal(tt::Rng& r, size_t n)
{
    std::vector<S> v(2 * n);
    for (auto& x : v) x = S(r.uniform(-1.0, 1.0));
    return v;
}

template <class S> std::vector<cld> to_cld(const std::vector<S>& v)
{
    std::vector<cld> c(v.size() / 2);
    for (size_t k = 0; k < c.size(); ++k) c[k] = cld(v[2 * k], v[2 * k + 1]);
    return c;
}

// ---- one trait per layout ----------------------------------------------------

#define FT_COMMON(K, S_)                                                                                      \
    using S = S_;                                                                                             \
    using Spec = FFTSpec_##K;                                                                                 \
    static constexpr const char* name = #K;                                                                   \
    static Status get_size(int o, int f, int h, int* a, int* b, int* c) { return tavsFFTGetSize_##K(o, f, h, a, b, c); } \
    static Status init(Spec** p, int o, int f, int h, Tav8u* blk, Tav8u* ib) { return tavsFFTInit_##K(p, o, f, h, blk, ib); } \
    static Status alloc(Spec** p, int o, int f, int h) { return tavsFFTInitAlloc_##K(p, o, f, h); }           \
    static Status free(Spec* p) { return tavsFFTFree_##K(p); }                                                \
    static Status buf_size(const Spec* p, int* n) { return tavsFFTGetBufSize_##K(p, n); }

struct L32fc {
    FT_COMMON(C_32fc, float)
    static constexpr bool split = false;
    static Status fwd(const S* s, S* d, const Spec* p, Tav8u* w)
    {
        return tavsFFTFwd_CToC_32fc(reinterpret_cast<const Tav32fc*>(s), reinterpret_cast<Tav32fc*>(d), p, w);
    }
    static Status inv(const S* s, S* d, const Spec* p, Tav8u* w)
    {
        return tavsFFTInv_CToC_32fc(reinterpret_cast<const Tav32fc*>(s), reinterpret_cast<Tav32fc*>(d), p, w);
    }
    static Status fwd_i(S* sd, const Spec* p, Tav8u* w) { return tavsFFTFwd_CToC_32fc_I(reinterpret_cast<Tav32fc*>(sd), p, w); }
    static Status inv_i(S* sd, const Spec* p, Tav8u* w) { return tavsFFTInv_CToC_32fc_I(reinterpret_cast<Tav32fc*>(sd), p, w); }
};
struct L64fc {
    FT_COMMON(C_64fc, double)
    static constexpr bool split = false;
    static Status fwd(const S* s, S* d, const Spec* p, Tav8u* w)
    {
        return tavsFFTFwd_CToC_64fc(reinterpret_cast<const Tav64fc*>(s), reinterpret_cast<Tav64fc*>(d), p, w);
    }
    static Status inv(const S* s, S* d, const Spec* p, Tav8u* w)
    {
        return tavsFFTInv_CToC_64fc(reinterpret_cast<const Tav64fc*>(s), reinterpret_cast<Tav64fc*>(d), p, w);
    }
    static Status fwd_i(S* sd, const Spec* p, Tav8u* w) { return tavsFFTFwd_CToC_64fc_I(reinterpret_cast<Tav64fc*>(sd), p, w); }
    static Status inv_i(S* sd, const Spec* p, Tav8u* w) { return tavsFFTInv_CToC_64fc_I(reinterpret_cast<Tav64fc*>(sd), p, w); }
};
// Split layouts: a vector of 2N holds the N real parts, then the N imaginary parts.
struct L32f {
    FT_COMMON(C_32f, float)
    static constexpr bool split = true;
    static Status fwd(const S* s, S* d, const Spec* p, Tav8u* w, size_t n) { return tavsFFTFwd_CToC_32f(s, s + n, d, d + n, p, w); }
    static Status inv(const S* s, S* d, const Spec* p, Tav8u* w, size_t n) { return tavsFFTInv_CToC_32f(s, s + n, d, d + n, p, w); }
    static Status fwd_i(S* sd, const Spec* p, Tav8u* w, size_t n) { return tavsFFTFwd_CToC_32f_I(sd, sd + n, p, w); }
    static Status inv_i(S* sd, const Spec* p, Tav8u* w, size_t n) { return tavsFFTInv_CToC_32f_I(sd, sd + n, p, w); }
};
struct L64f {
    FT_COMMON(C_64f, double)
    static constexpr bool split = true;
    static Status fwd(const S* s, S* d, const Spec* p, Tav8u* w, size_t n) { return tavsFFTFwd_CToC_64f(s, s + n, d, d + n, p, w); }
    static Status inv(const S* s, S* d, const Spec* p, Tav8u* w, size_t n) { return tavsFFTInv_CToC_64f(s, s + n, d, d + n, p, w); }
    static Status fwd_i(S* sd, const Spec* p, Tav8u* w, size_t n) { return tavsFFTFwd_CToC_64f_I(sd, sd + n, p, w); }
    static Status inv_i(S* sd, const Spec* p, Tav8u* w, size_t n) { return tavsFFTInv_CToC_64f_I(sd, sd + n, p, w); }
};
#undef FT_COMMON

template <class S> std::vector<S> to_split(const std::vector<S>& v)
{
    const size_t n = v.size() / 2;
    std::vector<S> s(2 * n);
    for (size_t k = 0; k < n; ++k) {
        s[k] = v[2 * k];
        s[n + k] = v[2 * k + 1];
    }
    return s;
}
template <class S> std::vector<S> from_split(const std::vector<S>& s)
{
    const size_t n = s.size() / 2;
    std::vector<S> v(2 * n);
    for (size_t k = 0; k < n; ++k) {
        v[2 * k] = s[k];
        v[2 * k + 1] = s[n + k];
    }
    return v;
}

// Runs one transform of the layout on interleaved input x; the result comes
// back interleaved. inPlace selects the _I form. The status goes to *st.
template <class L>
std::vector<typename L::S> transform(const typename L::Spec* spec, bool inverse, bool inPlace,
                                     const std::vector<typename L::S>& x, Tav8u* wsp, Status* st)
{
    using S = typename L::S;
    const size_t n = x.size() / 2;
    if constexpr (L::split) {
        std::vector<S> in = to_split(x), out(2 * n, S(-7));
        if (inPlace) {
            *st = inverse ? L::inv_i(in.data(), spec, wsp, n) : L::fwd_i(in.data(), spec, wsp, n);
            return from_split(in);
        }
        const std::vector<S> keep = in;
        *st = inverse ? L::inv(in.data(), out.data(), spec, wsp, n) : L::fwd(in.data(), out.data(), spec, wsp, n);
        EXPECT_EQ(std::memcmp(keep.data(), in.data(), keep.size() * sizeof(S)), 0) << "source changed";
        return from_split(out);
    } else {
        std::vector<S> in = x, out(2 * n, S(-7));
        if (inPlace) {
            *st = inverse ? L::inv_i(in.data(), spec, wsp) : L::fwd_i(in.data(), spec, wsp);
            return in;
        }
        *st = inverse ? L::inv(in.data(), out.data(), spec, wsp) : L::fwd(in.data(), out.data(), spec, wsp);
        EXPECT_EQ(std::memcmp(x.data(), in.data(), x.size() * sizeof(S)), 0) << "source changed";
        return out;
    }
}

// An InitAlloc record released at the end of the scope.
template <class L> struct Record {
    typename L::Spec* p = nullptr;
    Record(int order, int flag, int hint = 0) { EXPECT_EQ(L::alloc(&p, order, flag, hint), StatusOk); }
    ~Record()
    {
        if (p) L::free(p);
    }
};

} // namespace ft

namespace ft {

// A random signal whose values are exact in 32f (so every layout transforms
// the same numbers) and its unscaled reference transform.
struct Case {
    int order;
    bool inverse;
    std::vector<double> x; // interleaved
    std::vector<cld> ref;
};

inline Case make_case(int order, bool inverse)
{
    tt::Rng rng(0x1234u + unsigned(order) * 7u);
    const size_t n = size_t(1) << order;
    Case c{order, inverse, std::vector<double>(2 * n), std::vector<cld>(n)};
    for (auto& v : c.x) v = double(float(rng.uniform(-1.0, 1.0)));
    for (size_t k = 0; k < n; ++k) c.ref[k] = cld(c.x[2 * k], c.x[2 * k + 1]);
    ref_fft(c.ref, false);
    // The unscaled inverse is the forward transform read backwards: X[N - k].
    if (inverse)
        for (size_t k = 1; k < n - k; ++k) std::swap(c.ref[k], c.ref[n - k]);
    return c;
}

// The other direction of a case: the same signal, the reference mirrored.
inline Case mirrored(const Case& c)
{
    Case m = c;
    m.inverse = !c.inverse;
    const size_t n = m.ref.size();
    for (size_t k = 1; k < n - k; ++k) std::swap(m.ref[k], m.ref[n - k]);
    return m;
}

// One transform of the case with the flag, out of place and (if asked) in
// place; the two placements must agree bit for bit. Returns the error.
template <class L> double check_case(const Case& c, int flag = ScaleNever, bool inPlaceToo = true)
{
    using S = typename L::S;
    const size_t n = size_t(1) << c.order;
    Record<L> rec(c.order, flag);
    if (!rec.p) return 1.0;
    const std::vector<S> x(c.x.begin(), c.x.end());
    const bool scaled = flag == ScaleBothBySqrtLen || (flag == ScaleFwdByLen && !c.inverse) ||
                        (flag == ScaleInvByLen && c.inverse);
    const long double f = !scaled ? 1.0L : flag == ScaleBothBySqrtLen ? 1.0L / sqrtl((long double)n) : 1.0L / (long double)n;
    Status st = -1;
    const std::vector<S> y = transform<L>(rec.p, c.inverse, false, x, nullptr, &st);
    EXPECT_EQ(st, StatusOk);
    long double num = 0, den = 0;
    for (size_t k = 0; k < n; ++k) {
        const cld r = c.ref[k] * f;
        const long double dr = (long double)y[2 * k] - r.real(), di = (long double)y[2 * k + 1] - r.imag();
        num += dr * dr + di * di;
        den += std::norm(r);
    }
    const double err = double(den == 0 ? sqrtl(num) : sqrtl(num / den));
    EXPECT_LT(err, bound<S>(c.order)) << L::name << " order " << c.order << " inverse " << c.inverse << " flag " << flag;
    if (inPlaceToo) {
        const std::vector<S> z = transform<L>(rec.p, c.inverse, true, x, nullptr, &st);
        EXPECT_EQ(st, StatusOk);
        EXPECT_EQ(std::memcmp(y.data(), z.data(), y.size() * sizeof(S)), 0)
            << L::name << " order " << c.order << ": in place differs from out of place";
    }
    return err;
}

// The four layouts on one case.
inline void check_all_layouts(const Case& c, int flag = ScaleNever, bool inPlaceToo = true)
{
    check_case<L32fc>(c, flag, inPlaceToo);
    check_case<L64fc>(c, flag, inPlaceToo);
    check_case<L32f>(c, flag, inPlaceToo);
    check_case<L64f>(c, flag, inPlaceToo);
}

using Layouts = ::testing::Types<L32fc, L64fc, L32f, L64f>;

#if defined(__SANITIZE_ADDRESS__)
constexpr int kMaxTestedOrder = 18; // the instrumented build is many times slower
#else
constexpr int kMaxTestedOrder = 22;
#endif

} // namespace ft
