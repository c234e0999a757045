// Checks shared by every floating FIR record kind: a kind is a table of its
// exported functions; each check runs against a long-double convolution
// written here.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <functional>
#include <string>
#include <vector>

#include "alloc_fault.h"
#include "internal/fir.h"
#include "internal/fir_kernel.h"
#include "tavs.h"
#include "test_util.h"

namespace firt {

using LD = std::complex<long double>;
inline LD ld(Tav16s v) { return LD(v, 0); }
inline LD ld(Tav32s v) { return LD(v, 0); }
inline LD ld(Tav32f v) { return LD(v, 0); }
inline LD ld(Tav64f v) { return LD(v, 0); }
inline LD ld(Tav16sc v) { return LD(v.re, v.im); }
inline LD ld(Tav32sc v) { return LD(v.re, v.im); }
inline LD ld(Tav32fc v) { return LD(v.re, v.im); }
inline LD ld(Tav64fc v) { return LD(v.re, v.im); }

template <class T> struct Info {
    static constexpr bool cx = false, integer = false;
};
template <> struct Info<Tav16s> {
    static constexpr bool cx = false, integer = true;
};
template <> struct Info<Tav32s> {
    static constexpr bool cx = false, integer = true;
};
template <> struct Info<Tav32fc> {
    static constexpr bool cx = true, integer = false;
};
template <> struct Info<Tav64fc> {
    static constexpr bool cx = true, integer = false;
};
template <> struct Info<Tav16sc> {
    static constexpr bool cx = true, integer = true;
};
template <> struct Info<Tav32sc> {
    static constexpr bool cx = true, integer = true;
};

// Random values: taps in [-1, 1], floating data in [-1, 1], integer data
// in [-amp, amp].
template <class T> T rnd(tt::Rng& r, double amp)
{
    auto part = [&]() { return r.uniform(-amp, amp); };
    if constexpr (Info<T>::cx) {
        T v;
        using P = decltype(v.re);
        v.re = P(Info<T>::integer ? std::lround(part()) : part());
        v.im = P(Info<T>::integer ? std::lround(part()) : part());
        return v;
    } else {
        return T(Info<T>::integer ? double(std::lround(part())) : part());
    }
}
template <class T> std::vector<T> rnd_vec(tt::Rng& r, size_t n, double amp)
{
    std::vector<T> v(n);
    for (auto& x : v) x = rnd<T>(r, amp);
    return v;
}

// y[k] = sum taps[i] x[k-i], x[-1-j] = dly[j] (newest first).
template <class Tp, class D>
std::vector<LD> reference(const std::vector<Tp>& taps, const std::vector<D>& dly, const std::vector<D>& x)
{
    const int n = int(taps.size());
    std::vector<LD> y(x.size());
    for (size_t k = 0; k < x.size(); ++k) {
        LD s = 0;
        for (int i = 0; i < n; ++i) {
            const long kk = long(k) - i;
            const LD v = kk >= 0 ? ld(x[size_t(kk)]) : (size_t(-kk - 1) < dly.size() ? ld(dly[size_t(-kk - 1)]) : LD(0));
            s += ld(taps[size_t(i)]) * v;
        }
        y[k] = s;
    }
    return y;
}

template <class Tp, class D> struct Kind {
    std::string name;
    int cls;     // 0 32f, 1 32fc, 2 64f, 3 64fc (the record's element)
    bool sfs;    // integer data with a scale factor
    bool stream; // "FI33"-style stream init exists for this kind (tested elsewhere)
    std::function<Status(int, int*)> size;
    std::function<Status(void**, const Tp*, int, const D*, Tav8u*)> init;
    std::function<Status(void**, const Tp*, int, const D*)> initAlloc;
    std::function<Status(void*)> free;
    std::function<Status(const void*, Tp*)> getTaps;
    std::function<Status(const Tp*, void*)> setTaps;
    std::function<Status(const void*, D*)> getDly;
    std::function<Status(void*, const D*)> setDly;
    std::function<Status(const D*, D*, int, void*, int)> fir;
    std::function<Status(D*, int, void*, int)> firI;
    std::function<Status(D, D*, void*, int)> one;
};

inline int64_t a16(int64_t v) { return (v + 15) & ~int64_t(15); }
inline int64_t a32(int64_t v) { return (v + 31) & ~int64_t(31); }

// The documented state size, with the FFT sizes from the FFT queries.
inline int64_t expected_size(int cls, int64_t n)
{
    const int from[] = {64, 16, 32, 16};
    int64_t L = 0, S = 0;
    if (n >= from[cls]) {
        int b = 2;
        while ((int64_t(1) << b) <= n) ++b;
        const int order = b + 1;
        int s1 = 0, s2 = 0, s3 = 0;
        Status st = StatusOk;
        switch (cls) {
        case 0: st = tavsFFTGetSize_R_32f(order, 2, 0, &s1, &s2, &s3); break;
        case 1: st = tavsFFTGetSize_C_32fc(order, 2, 0, &s1, &s2, &s3); break;
        case 2: st = tavsFFTGetSize_R_64f(order, 2, 0, &s1, &s2, &s3); break;
        default: st = tavsFFTGetSize_C_64fc(order, 2, 0, &s1, &s2, &s3); break;
        }
        if (st == StatusOk) {
            L = int64_t(1) << order;
            S = int64_t(s1) + s2 + s3;
        }
    }
    switch (cls) {
    case 0: return a16(4 * n) + a16(12 * n + 16) + 2 * a16(4 * L) + S + 16576;
    case 1: return a16(8 * n) + a16(24 * n + 32) + 2 * a16(8 * L) + S + 32960;
    case 2: return a32(8 * n) + a32(24 * n + 32) + 2 * a16(8 * L) + S + 33024;
    default: return a32(16 * n) + a32(48 * n + 64) + 32 * L + S + 65744;
    }
}

// A record in a block of exactly its size, at a given misalignment.
template <class Tp, class D> struct Rec {
    std::vector<Tav8u> block;
    void* st = nullptr;
    Rec(const Kind<Tp, D>& k, const std::vector<Tp>& taps, const D* dly, int offset = 0)
    {
        int sz = 0;
        EXPECT_EQ(k.size(int(taps.size()), &sz), StatusOk);
        block.assign(size_t(sz) + size_t(offset) + 64, 0xCD);
        EXPECT_EQ(k.init(&st, taps.data(), int(taps.size()), dly, block.data() + offset), StatusOk);
        for (size_t i = size_t(sz) + size_t(offset); i < block.size(); ++i)
            if (block[i] != 0xCD) {
                ADD_FAILURE() << k.name << ": Init wrote past the state size";
                break;
            }
    }
    tavs::fir::State* rec() const { return static_cast<tavs::fir::State*>(st); }
};

// Error bound of one output: relative to sum |h| * max |x| (delay included).
template <class Tp, class D> long double bound(const Kind<Tp, D>& k, const std::vector<Tp>& taps, long double xmax)
{
    long double s = 0;
    for (auto& t : taps) s += std::abs(ld(t));
    const bool single = k.cls == 0 || k.cls == 1 || std::is_same_v<D, Tav32f> || std::is_same_v<D, Tav32fc>;
    const long double rel = single ? 2e-5L : 1e-12L;
    return rel * s * xmax + 1e-30L;
}

template <class D> void expect_close(const std::string& what, const std::vector<D>& out, const std::vector<LD>& ref,
                                     long double tol, int sf)
{
    const long double scale = std::ldexp(1.0L, -sf);
    int bad = 0;
    for (size_t j = 0; j < out.size() && bad < 5; ++j) {
        const LD r = ref[j] * scale;
        const LD o = ld(out[j]);
        long double lim = tol * scale;
        if (Info<D>::integer) lim += 1.0L; // one rounding to an integer
        if (!(std::abs(o.real() - r.real()) <= lim && std::abs(o.imag() - r.imag()) <= lim)) {
            ADD_FAILURE() << what << " output " << j << ": " << double(o.real()) << "," << double(o.imag())
                          << " vs " << double(r.real()) << "," << double(r.imag());
            ++bad;
        }
    }
}

template <class Tp, class D> double data_amp() { return Info<D>::integer ? 1000.0 : 1.0; }

// Block outputs against the reference for the given tap counts and lengths.
template <class Tp, class D>
void check_blocks(const Kind<Tp, D>& k, const std::vector<int>& taps, const std::vector<int>& lens, uint64_t seed)
{
    tt::Rng r(seed);
    const double amp = data_amp<Tp, D>();
    for (int n : taps)
        for (int len : lens)
            for (int inPlace = 0; inPlace < 2; ++inPlace) {
                const auto h = rnd_vec<Tp>(r, size_t(n), 1.0 / std::sqrt(double(n)));
                const auto dly = rnd_vec<D>(r, size_t(n), amp);
                const auto x = rnd_vec<D>(r, size_t(len), amp);
                const int sf = Info<D>::integer ? int(r.range(-1, 2)) : 0;
                Rec<Tp, D> rc(k, h, dly.data(), int(r.range(0, 15)));
                std::vector<D> out(static_cast<size_t>(len));
                Status st;
                if (inPlace) {
                    out = x;
                    st = k.firI(out.data(), len, rc.st, sf);
                } else {
                    st = k.fir(x.data(), out.data(), len, rc.st, sf);
                }
                ASSERT_EQ(st, StatusOk) << k.name;
                const auto ref = reference(h, dly, x);
                expect_close(k.name + " n=" + std::to_string(n) + " len=" + std::to_string(len) +
                                 (inPlace ? " in place" : ""),
                             out, ref, bound(k, h, amp), sf);
                EXPECT_EQ(rc.rec()->dlyIndex, 0);
            }
}

// Pieces, one-sample calls and Get/Set of the delay continue one signal.
template <class Tp, class D> void check_stream(const Kind<Tp, D>& k, int n, uint64_t seed)
{
    tt::Rng r(seed);
    const double amp = data_amp<Tp, D>();
    const auto h = rnd_vec<Tp>(r, size_t(n), 1.0 / std::sqrt(double(n)));
    const auto dly = rnd_vec<D>(r, size_t(n), amp);
    const int total = 3000;
    const auto x = rnd_vec<D>(r, total, amp);
    const auto ref = reference(h, dly, x);
    Rec<Tp, D> rc(k, h, dly.data());
    std::vector<D> out(total);
    int p = 0;
    int step = 0;
    const int pieces[] = {1, 7, 300, 1, 1, 600, 3, 1000, 2, 530};
    while (p < total) {
        int c = pieces[step % 10];
        if (c > total - p) c = total - p;
        if (step % 3 == 1) {
            for (int j = 0; j < c; ++j) ASSERT_EQ(k.one(x[size_t(p + j)], &out[size_t(p + j)], rc.st, 0), StatusOk);
        } else if (step % 3 == 2) {
            std::copy(x.begin() + p, x.begin() + p + c, out.begin() + p);
            ASSERT_EQ(k.firI(out.data() + p, c, rc.st, 0), StatusOk);
        } else {
            ASSERT_EQ(k.fir(x.data() + p, out.data() + p, c, rc.st, 0), StatusOk);
        }
        if (step % 4 == 3) {
            // Get then Set of the delay line changes nothing.
            std::vector<D> d(static_cast<size_t>(n));
            ASSERT_EQ(k.getDly(rc.st, d.data()), StatusOk);
            ASSERT_EQ(k.setDly(rc.st, d.data()), StatusOk);
            EXPECT_EQ(rc.rec()->dlyIndex, 0);
        }
        p += c;
        ++step;
    }
    expect_close(k.name + " pieces", out, ref, bound(k, h, amp), 0);
    // The delay line holds the last n inputs, newest first.
    std::vector<D> d(static_cast<size_t>(n));
    ASSERT_EQ(k.getDly(rc.st, d.data()), StatusOk);
    for (int i = 0; i < n; ++i) EXPECT_TRUE(tt::same_bits(d[size_t(i)], x[size_t(total - 1 - i)])) << k.name << " " << i;
}

// Errors in their order, outputs untouched; tags; Init limits; InitAlloc.
template <class Tp, class D> void check_errors(const Kind<Tp, D>& k, void* foreign)
{
    const int n = 20;
    tt::Rng r(7);
    const auto h = rnd_vec<Tp>(r, n, 0.5);
    Rec<Tp, D> rc(k, h, nullptr);
    void* st = rc.st;
    std::vector<D> x(8);
    tt::Guarded<D> g(8);
    EXPECT_EQ(k.fir(x.data(), g.data(), 8, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(k.fir(nullptr, g.data(), 8, st, 0), ErrNullPtr);
    EXPECT_EQ(k.fir(x.data(), nullptr, 8, st, 0), ErrNullPtr);
    EXPECT_EQ(k.fir(nullptr, g.data(), 0, st, 0), ErrNullPtr);
    EXPECT_EQ(k.fir(x.data(), g.data(), 0, st, 0), ErrSize);
    EXPECT_EQ(k.fir(x.data(), g.data(), -1, foreign, 0), ErrSize);
    EXPECT_EQ(k.fir(x.data(), g.data(), 8, foreign, 0), ErrContextMismatch);
    EXPECT_EQ(k.firI(g.data(), 8, foreign, 0), ErrContextMismatch);
    EXPECT_EQ(k.firI(nullptr, 8, st, 0), ErrNullPtr);
    EXPECT_EQ(k.firI(g.data(), 0, st, 0), ErrSize);
    EXPECT_EQ(k.one(x[0], g.data(), nullptr, 0), ErrNullPtr);
    EXPECT_EQ(k.one(x[0], nullptr, st, 0), ErrNullPtr);
    EXPECT_EQ(k.one(x[0], g.data(), foreign, 0), ErrContextMismatch);
    EXPECT_EQ(k.getDly(foreign, g.data()), ErrContextMismatch);
    EXPECT_EQ(k.getDly(st, nullptr), ErrNullPtr);
    EXPECT_EQ(k.getDly(nullptr, g.data()), ErrNullPtr);
    EXPECT_TRUE(g.untouched()) << k.name;
    tt::Guarded<Tp> gt(n);
    EXPECT_EQ(k.getTaps(foreign, gt.data()), ErrContextMismatch);
    EXPECT_EQ(k.getTaps(nullptr, gt.data()), ErrNullPtr);
    EXPECT_EQ(k.getTaps(st, nullptr), ErrNullPtr);
    EXPECT_TRUE(gt.untouched());
    EXPECT_EQ(k.setTaps(h.data(), foreign), ErrContextMismatch);
    EXPECT_EQ(k.setTaps(nullptr, st), ErrNullPtr);
    EXPECT_EQ(k.setTaps(h.data(), nullptr), ErrNullPtr);
    EXPECT_EQ(k.setDly(foreign, x.data()), ErrContextMismatch);
    EXPECT_EQ(k.setDly(nullptr, x.data()), ErrNullPtr);
    EXPECT_EQ(k.free(foreign), ErrContextMismatch);
    std::vector<unsigned char> zeroed(4096, 0);
    EXPECT_EQ(k.free(zeroed.data()), ErrContextMismatch);
    EXPECT_EQ(k.free(nullptr), ErrNullPtr);
    // Free of an Init record does nothing and succeeds.
    EXPECT_EQ(k.free(st), StatusOk);
    EXPECT_EQ(k.fir(x.data(), g.data(), 8, st, 0), StatusOk);

    int sz = 0;
    EXPECT_EQ(k.size(0, &sz), ErrFilterLen);
    EXPECT_EQ(k.size(-1, &sz), ErrFilterLen);
    EXPECT_EQ(k.size(5, nullptr), ErrNullPtr);
    std::vector<Tav8u> blk(200000);
    void* out = reinterpret_cast<void*>(0x1);
    EXPECT_EQ(k.init(nullptr, h.data(), n, nullptr, blk.data()), ErrNullPtr);
    EXPECT_EQ(k.init(&out, nullptr, n, nullptr, blk.data()), ErrNullPtr);
    EXPECT_EQ(k.init(&out, h.data(), n, nullptr, nullptr), ErrNullPtr);
    EXPECT_EQ(k.init(&out, nullptr, 0, nullptr, blk.data()), ErrNullPtr);
    EXPECT_EQ(k.init(&out, h.data(), 0, nullptr, blk.data()), ErrFilterLen);
    EXPECT_EQ(out, reinterpret_cast<void*>(0x1));
    EXPECT_EQ(k.initAlloc(nullptr, h.data(), n, nullptr), ErrNullPtr);
    EXPECT_EQ(k.initAlloc(&out, h.data(), 0, nullptr), ErrFilterLen);

    // InitAlloc: allocation failure leaves the out pointer, leaks nothing.
    const auto h100 = rnd_vec<Tp>(r, 100, 0.1);
    const int fails = tt::for_each_alloc_failure([&]() {
        void* p = reinterpret_cast<void*>(0x1);
        const Status s = k.initAlloc(&p, h100.data(), 100, nullptr);
        if (s == ErrMemAlloc) {
            EXPECT_EQ(p, reinterpret_cast<void*>(0x1));
            return true;
        }
        EXPECT_EQ(s, StatusOk);
        EXPECT_EQ(static_cast<tavs::fir::State*>(p)->isAllocated, 1);
        std::vector<D> y(600), xx(600);
        EXPECT_EQ(k.fir(xx.data(), y.data(), 600, p, 0), StatusOk);
        EXPECT_EQ(k.free(p), StatusOk);
        return false;
    });
    EXPECT_GE(fails, 1) << k.name;
}

// Taps: Get returns what Init took; Set changes the filter (and its FFT).
template <class Tp, class D> void check_taps(const Kind<Tp, D>& k, int n, int len)
{
    tt::Rng r(uint64_t(n) * 31 + 5);
    const double amp = data_amp<Tp, D>();
    const auto h = rnd_vec<Tp>(r, size_t(n), 0.2);
    const auto h2 = rnd_vec<Tp>(r, size_t(n), 0.2);
    const auto dly = rnd_vec<D>(r, size_t(n), amp);
    Rec<Tp, D> rc(k, h, dly.data());
    std::vector<Tp> got(static_cast<size_t>(n));
    ASSERT_EQ(k.getTaps(rc.st, got.data()), StatusOk);
    for (int i = 0; i < n; ++i) EXPECT_TRUE(tt::same_bits(got[size_t(i)], h[size_t(i)])) << k.name;
    ASSERT_EQ(k.setTaps(h2.data(), rc.st), StatusOk);
    ASSERT_EQ(k.getTaps(rc.st, got.data()), StatusOk);
    for (int i = 0; i < n; ++i) EXPECT_TRUE(tt::same_bits(got[size_t(i)], h2[size_t(i)])) << k.name;
    const auto x = rnd_vec<D>(r, size_t(len), amp);
    std::vector<D> out(static_cast<size_t>(len));
    ASSERT_EQ(k.fir(x.data(), out.data(), len, rc.st, 0), StatusOk);
    expect_close(k.name + " after SetTaps", out, reference(h2, dly, x), bound(k, h2, amp), 0);
}

// Null delay at Init and at Set gives silence.
template <class Tp, class D> void check_silence(const Kind<Tp, D>& k, int n)
{
    tt::Rng r(99);
    const auto h = rnd_vec<Tp>(r, size_t(n), 0.5);
    const auto dly = rnd_vec<D>(r, size_t(n), data_amp<Tp, D>());
    Rec<Tp, D> rc(k, h, nullptr);
    std::vector<D> zero(700), out(700);
    ASSERT_EQ(k.fir(zero.data(), out.data(), 700, rc.st, 0), StatusOk);
    for (auto& v : out) EXPECT_EQ(std::abs(ld(v)), 0.0L);
    ASSERT_EQ(k.setDly(rc.st, dly.data()), StatusOk);
    ASSERT_EQ(k.setDly(rc.st, nullptr), StatusOk);
    ASSERT_EQ(k.fir(zero.data(), out.data(), 700, rc.st, 0), StatusOk);
    for (auto& v : out) EXPECT_EQ(std::abs(ld(v)), 0.0L);
}

// State sizes: tap counts 1..300 and a few large ones; Init stays inside.
template <class Tp, class D> void check_sizes(const Kind<Tp, D>& k)
{
    std::vector<int> ns;
    for (int n = 1; n <= 300; ++n) ns.push_back(n);
    for (int n : {511, 512, 1000, 4095, 70000, 1 << 20}) ns.push_back(n);
    for (int n : ns) {
        int sz = 0;
        ASSERT_EQ(k.size(n, &sz), StatusOk);
        EXPECT_EQ(int64_t(sz), expected_size(k.cls, n)) << k.name << " n=" << n;
    }
    tt::Rng r(3);
    for (int n : {1, 2, 15, 16, 17, 31, 32, 63, 64, 65, 300}) {
        const auto h = rnd_vec<Tp>(r, size_t(n), 0.5);
        for (int off = 0; off < 16; off += 5) Rec<Tp, D> rc(k, h, nullptr, off);
    }
}

} // namespace firt
