// The SR forms: sizes, the SR block at any alignment, delay in and delay out in
// time order, in place through the buffer, 16-bit data on a 32f SR block.
#include <gtest/gtest.h>

#include <functional>

#include "fir_float_tests.h"

namespace {

using firt::ld;
using firt::LD;

int64_t a64(int64_t v) { return (v + 63) & ~int64_t(63); }

TEST(FirSR, Sizes)
{
    for (int n = 1; n <= 300; ++n) {
        int s = 0, b = 0;
        ASSERT_EQ(tavsFIRSRGetSize(n, TypeSel32f, &s, &b), StatusOk);
        EXPECT_EQ(s, a64(4 * n) + 127);
        EXPECT_EQ(b, a64(8 * n) + ((8 * n + 55) & ~63) + 32768);
        ASSERT_EQ(tavsFIRSRGetSize(n, TypeSel64f, &s, &b), StatusOk);
        EXPECT_EQ(s, a64(8 * n) + 127);
        EXPECT_EQ(b, a64(16 * n) + ((16 * n + 47) & ~63) + 32768);
        ASSERT_EQ(tavsFIRSRGetSize(n, TypeSel32fc, &s, &b), StatusOk);
        EXPECT_EQ(s, a64(8 * n) + 127);
        EXPECT_EQ(b, a64(16 * n) + ((16 * n + 47) & ~63) + 32768);
        ASSERT_EQ(tavsFIRSRGetSize(n, TypeSel64fc, &s, &b), StatusOk);
        EXPECT_EQ(s, a64(16 * n) + 127);
        EXPECT_EQ(b, a64(32 * n) + 64 * (n / 2) + 32768);
    }
    int s = 0, b = 0;
    EXPECT_EQ(tavsFIRSRGetSize(0, 99, nullptr, &b), ErrSize);
    EXPECT_EQ(tavsFIRSRGetSize(3, 99, nullptr, &b), ErrDataType);
    EXPECT_EQ(tavsFIRSRGetSize(3, 12, &s, &b), ErrDataType);
    EXPECT_EQ(tavsFIRSRGetSize(3, TypeSel32f, nullptr, &b), ErrNullPtr);
    EXPECT_EQ(tavsFIRSRGetSize(3, TypeSel32f, &s, nullptr), ErrNullPtr);
}

template <class X, class D> struct SrKind {
    int sel;
    std::function<Status(const X*, int, int, void*)> init;
    std::function<Status(const D*, D*, int, const void*, const D*, D*, Tav8u*)> run;
};
const SrKind<Tav32f, Tav32f> s32f = {
    TypeSel32f, [](const Tav32f* t, int n, int a, void* s) { return tavsFIRSRInit_32f(t, n, a, static_cast<FIRSRSpec_32f*>(s)); },
    [](const Tav32f* x, Tav32f* y, int l, const void* s, const Tav32f* a, Tav32f* b, Tav8u* w) {
        return tavsFIRSR_32f(x, y, l, static_cast<const FIRSRSpec_32f*>(s), a, b, w);
    }};
const SrKind<Tav64f, Tav64f> s64f = {
    TypeSel64f, [](const Tav64f* t, int n, int a, void* s) { return tavsFIRSRInit_64f(t, n, a, static_cast<FIRSRSpec_64f*>(s)); },
    [](const Tav64f* x, Tav64f* y, int l, const void* s, const Tav64f* a, Tav64f* b, Tav8u* w) {
        return tavsFIRSR_64f(x, y, l, static_cast<const FIRSRSpec_64f*>(s), a, b, w);
    }};
const SrKind<Tav32fc, Tav32fc> s32fc = {
    TypeSel32fc, [](const Tav32fc* t, int n, int a, void* s) { return tavsFIRSRInit_32fc(t, n, a, static_cast<FIRSRSpec_32fc*>(s)); },
    [](const Tav32fc* x, Tav32fc* y, int l, const void* s, const Tav32fc* a, Tav32fc* b, Tav8u* w) {
        return tavsFIRSR_32fc(x, y, l, static_cast<const FIRSRSpec_32fc*>(s), a, b, w);
    }};
const SrKind<Tav64fc, Tav64fc> s64fc = {
    TypeSel64fc, [](const Tav64fc* t, int n, int a, void* s) { return tavsFIRSRInit_64fc(t, n, a, static_cast<FIRSRSpec_64fc*>(s)); },
    [](const Tav64fc* x, Tav64fc* y, int l, const void* s, const Tav64fc* a, Tav64fc* b, Tav8u* w) {
        return tavsFIRSR_64fc(x, y, l, static_cast<const FIRSRSpec_64fc*>(s), a, b, w);
    }};
const SrKind<Tav32f, Tav16s> s16s = {
    TypeSel32f, [](const Tav32f* t, int n, int a, void* s) { return tavsFIRSRInit_32f(t, n, a, static_cast<FIRSRSpec_32f*>(s)); },
    [](const Tav16s* x, Tav16s* y, int l, const void* s, const Tav16s* a, Tav16s* b, Tav8u* w) {
        return tavsFIRSR_16s(x, y, l, static_cast<const FIRSRSpec_32f*>(s), a, b, w);
    }};
const SrKind<Tav32fc, Tav16sc> s16sc = {
    TypeSel32fc, [](const Tav32fc* t, int n, int a, void* s) { return tavsFIRSRInit_32fc(t, n, a, static_cast<FIRSRSpec_32fc*>(s)); },
    [](const Tav16sc* x, Tav16sc* y, int l, const void* s, const Tav16sc* a, Tav16sc* b, Tav8u* w) {
        return tavsFIRSR_16sc(x, y, l, static_cast<const FIRSRSpec_32fc*>(s), a, b, w);
    }};

// Blocks of exactly the queried sizes at an offset, with a guard after.
struct Blocks {
    std::vector<Tav8u> spec, buf;
    int ss = 0, bs = 0, off;
    Blocks(int sel, int n, int offset) : off(offset)
    {
        EXPECT_EQ(tavsFIRSRGetSize(n, sel, &ss, &bs), StatusOk);
        spec.assign(size_t(ss + off + 64), 0xCD);
        buf.assign(size_t(bs + off + 64), 0xCD);
    }
    Tav8u* s() { return spec.data() + off; }
    Tav8u* b() { return buf.data() + off; }
    bool guards() const
    {
        for (size_t i = size_t(ss + off); i < spec.size(); ++i)
            if (spec[i] != 0xCD) return false;
        for (size_t i = size_t(bs + off); i < buf.size(); ++i)
            if (buf[i] != 0xCD) return false;
        return true;
    }
};

template <class X, class D> void run_sr(const SrKind<X, D>& k, uint64_t seed)
{
    tt::Rng r(seed);
    const bool integer = firt::Info<D>::integer;
    const double amp = integer ? 1000.0 : 1.0;
    for (int n : {1, 2, 7, 64, 300})
        for (int len : {1, 5, 299, 300, 2000, 20000})
            for (int mode = 0; mode < 4; ++mode) { // out of place, src == dst, dst == dlySrc, null delays
                if (int64_t(n) * len > 700000) continue;
                const auto h = firt::rnd_vec<X>(r, size_t(n), 1.0 / std::sqrt(double(n)));
                auto dlySrc = firt::rnd_vec<D>(r, size_t(n - 1 + len), amp); // room for dst == dlySrc
                const auto x = firt::rnd_vec<D>(r, size_t(len), amp);
                Blocks bl(k.sel, n, int(r.range(0, 63)));
                ASSERT_EQ(k.init(h.data(), n, int(r.range(0, 2)), bl.s()), StatusOk);
                std::vector<D> y(static_cast<size_t>(len)), dlyDst(size_t(n), D{});
                const std::vector<D> dlyIn(dlySrc.begin(), dlySrc.begin() + (n - 1));
                Status st;
                if (mode == 1) {
                    y = x;
                    st = k.run(y.data(), y.data(), len, bl.s(), dlySrc.data(), dlyDst.data(), bl.b());
                } else if (mode == 2) {
                    st = k.run(x.data(), dlySrc.data(), len, bl.s(), dlySrc.data(), dlyDst.data(), bl.b());
                    y.assign(dlySrc.begin(), dlySrc.begin() + len);
                } else {
                    st = k.run(x.data(), y.data(), len, bl.s(), mode == 3 ? nullptr : dlySrc.data(),
                               mode == 3 ? nullptr : dlyDst.data(), bl.b());
                }
                ASSERT_EQ(st, StatusOk);
                EXPECT_TRUE(bl.guards()) << n << " " << len;
                // Reference with the delay reversed to newest first.
                std::vector<D> nf(static_cast<size_t>(n));
                for (int j = 0; j < n - 1; ++j) nf[size_t(j)] = mode == 3 ? D{} : dlyIn[size_t(n - 2 - j)];
                const auto ref = firt::reference(h, nf, x);
                long double s = 0;
                for (auto& v : h) s += std::abs(ld(v));
                const bool single = std::is_same_v<X, Tav32f> || std::is_same_v<X, Tav32fc>;
                const long double tol = s * amp * (single ? 1e-6L : 1e-14L) + (integer ? 0.5L + 1e-6L : 0.0L);
                for (size_t j = 0; j < y.size(); ++j) {
                    const LD o = ld(y[j]);
                    ASSERT_LE(std::abs(o.real() - ref[j].real()), tol) << n << " " << len << " " << mode << " " << j;
                    ASSERT_LE(std::abs(o.imag() - ref[j].imag()), tol) << n << " " << len << " " << mode << " " << j;
                }
                if (mode != 3) {
                    // dlyDst: the last n-1 inputs after the delay, in time order.
                    for (int j = 0; j < n - 1; ++j) {
                        const long t = long(len) - (n - 1) + j;
                        const D want = t >= 0 ? x[size_t(t)] : dlyIn[size_t(t + n - 1)];
                        ASSERT_TRUE(tt::same_bits(dlyDst[size_t(j)], want)) << n << " " << len << " " << j;
                    }
                }
            }
}

TEST(FirSR, OutputsAndDelays)
{
    run_sr(s32f, 1);
    run_sr(s64f, 2);
    run_sr(s32fc, 3);
    run_sr(s64fc, 4);
    run_sr(s16s, 5);
    run_sr(s16sc, 6);
}

TEST(FirSR, Errors)
{
    alignas(64) static Tav8u spec[1024];
    alignas(64) static Tav8u buf[70000];
    const Tav32f t[3] = {1, 2, 3};
    EXPECT_EQ(tavsFIRSRInit_32f(nullptr, 0, 9, nullptr), ErrSize);
    EXPECT_EQ(tavsFIRSRInit_32f(nullptr, 3, 9, reinterpret_cast<FIRSRSpec_32f*>(spec)), ErrNullPtr);
    EXPECT_EQ(tavsFIRSRInit_32f(t, 3, 9, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFIRSRInit_32f(t, 3, 3, reinterpret_cast<FIRSRSpec_32f*>(spec)), ErrAlgType);
    EXPECT_EQ(tavsFIRSRInit_32f(t, 3, -1, reinterpret_cast<FIRSRSpec_32f*>(spec)), ErrAlgType);
    EXPECT_EQ(tavsFIRSRInit_64f(nullptr, -4, 0, nullptr), ErrSize);
    EXPECT_EQ(tavsFIRSRInit_32fc(nullptr, 2, 0, reinterpret_cast<FIRSRSpec_32fc*>(spec)), ErrNullPtr);
    EXPECT_EQ(tavsFIRSRInit_64fc(nullptr, 2, 0, reinterpret_cast<FIRSRSpec_64fc*>(spec)), ErrNullPtr);
    // A zeroed block or the SR block of another type is refused.
    Tav32f x[4] = {1, 2, 3, 4};
    tt::Guarded<Tav32f> g(4);
    auto* sp = reinterpret_cast<FIRSRSpec_32f*>(spec);
    EXPECT_EQ(tavsFIRSR_32f(x, g.data(), 4, sp, nullptr, nullptr, buf), ErrContextMismatch);
    ASSERT_EQ(tavsFIRSRInit_64f(reinterpret_cast<const Tav64f*>(t), 1, 0, reinterpret_cast<FIRSRSpec_64f*>(spec)), StatusOk);
    EXPECT_EQ(tavsFIRSR_32f(x, g.data(), 4, sp, nullptr, nullptr, buf), ErrContextMismatch);
    ASSERT_EQ(tavsFIRSRInit_32f(t, 3, 0, sp), StatusOk);
    EXPECT_EQ(tavsFIRSR_32f(x, g.data(), 4, nullptr, nullptr, nullptr, buf), ErrNullPtr);
    EXPECT_EQ(tavsFIRSR_32f(nullptr, g.data(), 4, sp, nullptr, nullptr, buf), ErrNullPtr);
    EXPECT_EQ(tavsFIRSR_32f(x, nullptr, 4, sp, nullptr, nullptr, buf), ErrNullPtr);
    EXPECT_EQ(tavsFIRSR_32f(x, g.data(), 4, sp, nullptr, nullptr, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFIRSR_32f(x, g.data(), 0, sp, nullptr, nullptr, buf), ErrSize);
    Tav16s xs[2] = {1, 2}, ys[2];
    EXPECT_EQ(tavsFIRSR_16s(xs, ys, 2, nullptr, nullptr, nullptr, buf), ErrNullPtr);
    EXPECT_EQ(tavsFIRSR_16s(xs, ys, -1, sp, nullptr, nullptr, buf), ErrSize);
    EXPECT_TRUE(g.untouched());
    Tav64f xd[1] = {1}, yd[1];
    EXPECT_EQ(tavsFIRSR_64f(xd, yd, 1, reinterpret_cast<const FIRSRSpec_64f*>(sp), nullptr, nullptr, buf), ErrContextMismatch);
    Tav64fc xz[1] = {}, yz[1];
    EXPECT_EQ(tavsFIRSR_64fc(xz, yz, 1, nullptr, nullptr, nullptr, buf), ErrNullPtr);
    Tav32fc xc[1] = {}, yc[1];
    EXPECT_EQ(tavsFIRSR_32fc(xc, yc, 0, reinterpret_cast<const FIRSRSpec_32fc*>(sp), nullptr, nullptr, buf), ErrSize);
    Tav16sc xsc[1] = {}, ysc[1];
    EXPECT_EQ(tavsFIRSR_16sc(xsc, ysc, 1, reinterpret_cast<const FIRSRSpec_32fc*>(sp), nullptr, nullptr, buf),
              ErrContextMismatch);
}

} // namespace
