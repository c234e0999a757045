// The stateless _Direct forms: the caller's ring of 2*tapsLen values and
// its index, 64f summation of the floating forms, the 32s/32sc tap handling,
// the Q15 form with its temporary record and ErrDelayIndex.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "alloc_fault.h"
#include "fir_float_tests.h"
#include "fir_int_ref.h"

namespace {

using firt::ld;
using firt::LD;

template <class Tp, class D> struct DKind {
    std::string name;
    bool single;     // output in single precision
    bool tapsSingle; // products rounded to 32f
    std::function<Status(const D*, D*, int, const Tp*, int, D*, int*, int)> block;
    std::function<Status(const D*, int, const Tp*, int, D*, int*, int)> blockI;
    std::function<Status(const D&, D*, const Tp*, int, D*, int*, int)> one;
    std::function<Status(const D*, const Tp*, int, D*, int*, int)> oneI;
};

const DKind<Tav32f, Tav32f> d32f = {
    "_Direct_32f", true, true,
    [](const Tav32f* s, Tav32f* d, int l, const Tav32f* t, int n, Tav32f* dl, int* ix, int sf) { (void)sf; return tavsFIR_Direct_32f(s, d, l, t, n, dl, ix); },
    [](const Tav32f* s, int l, const Tav32f* t, int n, Tav32f* dl, int* ix, int sf) { (void)sf; return tavsFIR_Direct_32f_I(const_cast<Tav32f*>(s), l, t, n, dl, ix); },
    [](const Tav32f& x, Tav32f* y, const Tav32f* t, int n, Tav32f* dl, int* ix, int sf) { (void)sf; return tavsFIROne_Direct_32f(x, y, t, n, dl, ix); },
    [](const Tav32f* x, const Tav32f* t, int n, Tav32f* dl, int* ix, int sf) { (void)sf; return tavsFIROne_Direct_32f_I(const_cast<Tav32f*>(x), t, n, dl, ix); }};

const DKind<Tav32fc, Tav32fc> d32fc = {
    "_Direct_32fc", true, true,
    [](const Tav32fc* s, Tav32fc* d, int l, const Tav32fc* t, int n, Tav32fc* dl, int* ix, int sf) { (void)sf; return tavsFIR_Direct_32fc(s, d, l, t, n, dl, ix); },
    [](const Tav32fc* s, int l, const Tav32fc* t, int n, Tav32fc* dl, int* ix, int sf) { (void)sf; return tavsFIR_Direct_32fc_I(const_cast<Tav32fc*>(s), l, t, n, dl, ix); },
    [](const Tav32fc& x, Tav32fc* y, const Tav32fc* t, int n, Tav32fc* dl, int* ix, int sf) { (void)sf; return tavsFIROne_Direct_32fc(x, y, t, n, dl, ix); },
    [](const Tav32fc* x, const Tav32fc* t, int n, Tav32fc* dl, int* ix, int sf) { (void)sf; return tavsFIROne_Direct_32fc_I(const_cast<Tav32fc*>(x), t, n, dl, ix); }};

const DKind<Tav64f, Tav64f> d64f = {
    "_Direct_64f", false, false,
    [](const Tav64f* s, Tav64f* d, int l, const Tav64f* t, int n, Tav64f* dl, int* ix, int sf) { (void)sf; return tavsFIR_Direct_64f(s, d, l, t, n, dl, ix); },
    [](const Tav64f* s, int l, const Tav64f* t, int n, Tav64f* dl, int* ix, int sf) { (void)sf; return tavsFIR_Direct_64f_I(const_cast<Tav64f*>(s), l, t, n, dl, ix); },
    [](const Tav64f& x, Tav64f* y, const Tav64f* t, int n, Tav64f* dl, int* ix, int sf) { (void)sf; return tavsFIROne_Direct_64f(x, y, t, n, dl, ix); },
    [](const Tav64f* x, const Tav64f* t, int n, Tav64f* dl, int* ix, int sf) { (void)sf; return tavsFIROne_Direct_64f_I(const_cast<Tav64f*>(x), t, n, dl, ix); }};

const DKind<Tav64fc, Tav64fc> d64fc = {
    "_Direct_64fc", false, false,
    [](const Tav64fc* s, Tav64fc* d, int l, const Tav64fc* t, int n, Tav64fc* dl, int* ix, int sf) { (void)sf; return tavsFIR_Direct_64fc(s, d, l, t, n, dl, ix); },
    [](const Tav64fc* s, int l, const Tav64fc* t, int n, Tav64fc* dl, int* ix, int sf) { (void)sf; return tavsFIR_Direct_64fc_I(const_cast<Tav64fc*>(s), l, t, n, dl, ix); },
    [](const Tav64fc& x, Tav64fc* y, const Tav64fc* t, int n, Tav64fc* dl, int* ix, int sf) { (void)sf; return tavsFIROne_Direct_64fc(x, y, t, n, dl, ix); },
    [](const Tav64fc* x, const Tav64fc* t, int n, Tav64fc* dl, int* ix, int sf) { (void)sf; return tavsFIROne_Direct_64fc_I(const_cast<Tav64fc*>(x), t, n, dl, ix); }};

const DKind<Tav32f, Tav16s> d32f_16s = {
    "32f_Direct_16s", true, true,
    [](const Tav16s* s, Tav16s* d, int l, const Tav32f* t, int n, Tav16s* dl, int* ix, int sf) { (void)sf; return tavsFIR32f_Direct_16s_Sfs(s, d, l, t, n, dl, ix, sf); },
    [](const Tav16s* s, int l, const Tav32f* t, int n, Tav16s* dl, int* ix, int sf) { (void)sf; return tavsFIR32f_Direct_16s_ISfs(const_cast<Tav16s*>(s), l, t, n, dl, ix, sf); },
    [](const Tav16s& x, Tav16s* y, const Tav32f* t, int n, Tav16s* dl, int* ix, int sf) { (void)sf; return tavsFIROne32f_Direct_16s_Sfs(x, y, t, n, dl, ix, sf); },
    [](const Tav16s* x, const Tav32f* t, int n, Tav16s* dl, int* ix, int sf) { (void)sf; return tavsFIROne32f_Direct_16s_ISfs(const_cast<Tav16s*>(x), t, n, dl, ix, sf); }};

const DKind<Tav32fc, Tav16sc> d32fc_16sc = {
    "32fc_Direct_16sc", true, true,
    [](const Tav16sc* s, Tav16sc* d, int l, const Tav32fc* t, int n, Tav16sc* dl, int* ix, int sf) { (void)sf; return tavsFIR32fc_Direct_16sc_Sfs(s, d, l, t, n, dl, ix, sf); },
    [](const Tav16sc* s, int l, const Tav32fc* t, int n, Tav16sc* dl, int* ix, int sf) { (void)sf; return tavsFIR32fc_Direct_16sc_ISfs(const_cast<Tav16sc*>(s), l, t, n, dl, ix, sf); },
    [](const Tav16sc& x, Tav16sc* y, const Tav32fc* t, int n, Tav16sc* dl, int* ix, int sf) { (void)sf; return tavsFIROne32fc_Direct_16sc_Sfs(x, y, t, n, dl, ix, sf); },
    [](const Tav16sc* x, const Tav32fc* t, int n, Tav16sc* dl, int* ix, int sf) { (void)sf; return tavsFIROne32fc_Direct_16sc_ISfs(const_cast<Tav16sc*>(x), t, n, dl, ix, sf); }};

const DKind<Tav64f, Tav16s> d64f_16s = {
    "64f_Direct_16s", false, false,
    [](const Tav16s* s, Tav16s* d, int l, const Tav64f* t, int n, Tav16s* dl, int* ix, int sf) { (void)sf; return tavsFIR64f_Direct_16s_Sfs(s, d, l, t, n, dl, ix, sf); },
    [](const Tav16s* s, int l, const Tav64f* t, int n, Tav16s* dl, int* ix, int sf) { (void)sf; return tavsFIR64f_Direct_16s_ISfs(const_cast<Tav16s*>(s), l, t, n, dl, ix, sf); },
    [](const Tav16s& x, Tav16s* y, const Tav64f* t, int n, Tav16s* dl, int* ix, int sf) { (void)sf; return tavsFIROne64f_Direct_16s_Sfs(x, y, t, n, dl, ix, sf); },
    [](const Tav16s* x, const Tav64f* t, int n, Tav16s* dl, int* ix, int sf) { (void)sf; return tavsFIROne64f_Direct_16s_ISfs(const_cast<Tav16s*>(x), t, n, dl, ix, sf); }};

const DKind<Tav64f, Tav32f> d64f_32f = {
    "64f_Direct_32f", true, false,
    [](const Tav32f* s, Tav32f* d, int l, const Tav64f* t, int n, Tav32f* dl, int* ix, int sf) { (void)sf; return tavsFIR64f_Direct_32f(s, d, l, t, n, dl, ix); },
    [](const Tav32f* s, int l, const Tav64f* t, int n, Tav32f* dl, int* ix, int sf) { (void)sf; return tavsFIR64f_Direct_32f_I(const_cast<Tav32f*>(s), l, t, n, dl, ix); },
    [](const Tav32f& x, Tav32f* y, const Tav64f* t, int n, Tav32f* dl, int* ix, int sf) { (void)sf; return tavsFIROne64f_Direct_32f(x, y, t, n, dl, ix); },
    [](const Tav32f* x, const Tav64f* t, int n, Tav32f* dl, int* ix, int sf) { (void)sf; return tavsFIROne64f_Direct_32f_I(const_cast<Tav32f*>(x), t, n, dl, ix); }};

const DKind<Tav64f, Tav32s> d64f_32s = {
    "64f_Direct_32s", false, false,
    [](const Tav32s* s, Tav32s* d, int l, const Tav64f* t, int n, Tav32s* dl, int* ix, int sf) { (void)sf; return tavsFIR64f_Direct_32s_Sfs(s, d, l, t, n, dl, ix, sf); },
    [](const Tav32s* s, int l, const Tav64f* t, int n, Tav32s* dl, int* ix, int sf) { (void)sf; return tavsFIR64f_Direct_32s_ISfs(const_cast<Tav32s*>(s), l, t, n, dl, ix, sf); },
    [](const Tav32s& x, Tav32s* y, const Tav64f* t, int n, Tav32s* dl, int* ix, int sf) { (void)sf; return tavsFIROne64f_Direct_32s_Sfs(x, y, t, n, dl, ix, sf); },
    [](const Tav32s* x, const Tav64f* t, int n, Tav32s* dl, int* ix, int sf) { (void)sf; return tavsFIROne64f_Direct_32s_ISfs(const_cast<Tav32s*>(x), t, n, dl, ix, sf); }};

const DKind<Tav64fc, Tav16sc> d64fc_16sc = {
    "64fc_Direct_16sc", false, false,
    [](const Tav16sc* s, Tav16sc* d, int l, const Tav64fc* t, int n, Tav16sc* dl, int* ix, int sf) { (void)sf; return tavsFIR64fc_Direct_16sc_Sfs(s, d, l, t, n, dl, ix, sf); },
    [](const Tav16sc* s, int l, const Tav64fc* t, int n, Tav16sc* dl, int* ix, int sf) { (void)sf; return tavsFIR64fc_Direct_16sc_ISfs(const_cast<Tav16sc*>(s), l, t, n, dl, ix, sf); },
    [](const Tav16sc& x, Tav16sc* y, const Tav64fc* t, int n, Tav16sc* dl, int* ix, int sf) { (void)sf; return tavsFIROne64fc_Direct_16sc_Sfs(x, y, t, n, dl, ix, sf); },
    [](const Tav16sc* x, const Tav64fc* t, int n, Tav16sc* dl, int* ix, int sf) { (void)sf; return tavsFIROne64fc_Direct_16sc_ISfs(const_cast<Tav16sc*>(x), t, n, dl, ix, sf); }};

const DKind<Tav64fc, Tav32fc> d64fc_32fc = {
    "64fc_Direct_32fc", true, false,
    [](const Tav32fc* s, Tav32fc* d, int l, const Tav64fc* t, int n, Tav32fc* dl, int* ix, int sf) { (void)sf; return tavsFIR64fc_Direct_32fc(s, d, l, t, n, dl, ix); },
    [](const Tav32fc* s, int l, const Tav64fc* t, int n, Tav32fc* dl, int* ix, int sf) { (void)sf; return tavsFIR64fc_Direct_32fc_I(const_cast<Tav32fc*>(s), l, t, n, dl, ix); },
    [](const Tav32fc& x, Tav32fc* y, const Tav64fc* t, int n, Tav32fc* dl, int* ix, int sf) { (void)sf; return tavsFIROne64fc_Direct_32fc(x, y, t, n, dl, ix); },
    [](const Tav32fc* x, const Tav64fc* t, int n, Tav32fc* dl, int* ix, int sf) { (void)sf; return tavsFIROne64fc_Direct_32fc_I(const_cast<Tav32fc*>(x), t, n, dl, ix); }};

const DKind<Tav64fc, Tav32sc> d64fc_32sc = {
    "64fc_Direct_32sc", false, false,
    [](const Tav32sc* s, Tav32sc* d, int l, const Tav64fc* t, int n, Tav32sc* dl, int* ix, int sf) { (void)sf; return tavsFIR64fc_Direct_32sc_Sfs(s, d, l, t, n, dl, ix, sf); },
    [](const Tav32sc* s, int l, const Tav64fc* t, int n, Tav32sc* dl, int* ix, int sf) { (void)sf; return tavsFIR64fc_Direct_32sc_ISfs(const_cast<Tav32sc*>(s), l, t, n, dl, ix, sf); },
    [](const Tav32sc& x, Tav32sc* y, const Tav64fc* t, int n, Tav32sc* dl, int* ix, int sf) { (void)sf; return tavsFIROne64fc_Direct_32sc_Sfs(x, y, t, n, dl, ix, sf); },
    [](const Tav32sc* x, const Tav64fc* t, int n, Tav32sc* dl, int* ix, int sf) { (void)sf; return tavsFIROne64fc_Direct_32sc_ISfs(const_cast<Tav32sc*>(x), t, n, dl, ix, sf); }};

#define TAVS_ALL_DKINDS(F) F(d32f) F(d32fc) F(d64f) F(d64fc) F(d32f_16s) F(d32fc_16sc) F(d64f_16s) F(d64f_32f) F(d64f_32s) F(d64fc_16sc) F(d64fc_32fc) F(d64fc_32sc)

// The ring's delay, newest first, as the reference takes it.
template <class D> std::vector<D> ring_delay(const std::vector<D>& ring, int n, int idx)
{
    std::vector<D> d(static_cast<size_t>(n));
    for (int j = 0; j < n; ++j) d[size_t(j)] = ring[size_t(idx + n - 1 - j)];
    return d;
}

// Error bound: each product rounded once in the taps' precision, the sum
// in 64f, one final rounding to the output precision.
template <class Tp, class D>
long double dbound(const DKind<Tp, D>& k, const std::vector<Tp>& h, const std::vector<D>& dly, const std::vector<D>& x,
                   size_t j)
{
    const int n = int(h.size());
    long double s = 0;
    for (int i = 0; i < n; ++i) {
        const long kk = long(j) - i;
        const LD v = kk >= 0 ? ld(x[size_t(kk)]) : ld(dly[size_t(-kk - 1)]);
        s += std::abs(ld(h[size_t(i)])) * std::abs(v);
    }
    const long double prod = k.tapsSingle ? 0x1p-23L : 0x1p-51L;
    const long double out = k.single ? 0x1p-23L : 0x1p-51L;
    return s * (prod + out + 0x1p-50L) + 1e-300L;
}

template <class Tp, class D> void run_kind(const DKind<Tp, D>& k, uint64_t seed)
{
    tt::Rng r(seed);
    const double amp = firt::Info<D>::integer ? 1000.0 : 1.0;
    for (int n : {1, 2, 5, 8, 9, 17, 64})
        for (int inPlace = 0; inPlace < 2; ++inPlace) {
            const int len = 300;
            const auto h = firt::rnd_vec<Tp>(r, size_t(n), 1.0);
            auto ring = firt::rnd_vec<D>(r, size_t(2 * n), amp);
            // The caller keeps both halves of the ring equal.
            for (int i = 0; i < n; ++i) ring[size_t(i + n)] = ring[size_t(i)];
            int idx = int(r.range(0, n - 1));
            const auto dly = ring_delay(ring, n, idx);
            const auto x = firt::rnd_vec<D>(r, size_t(len), amp);
            const int sf = firt::Info<D>::integer ? int(r.range(-1, 3)) : 0;
            std::vector<D> y(static_cast<size_t>(len));
            // Block calls in three pieces, and one-sample calls between them.
            int p = 0;
            for (int piece : {1, 100, 60, 139}) {
                if (piece == 60) {
                    for (int j = 0; j < piece; ++j) {
                        if (inPlace) {
                            y[size_t(p + j)] = x[size_t(p + j)];
                            ASSERT_EQ(k.oneI(&y[size_t(p + j)], h.data(), n, ring.data(), &idx, sf), StatusOk);
                        } else {
                            ASSERT_EQ(k.one(x[size_t(p + j)], &y[size_t(p + j)], h.data(), n, ring.data(), &idx, sf),
                                      StatusOk);
                        }
                    }
                } else if (inPlace) {
                    std::copy(x.begin() + p, x.begin() + p + piece, y.begin() + p);
                    ASSERT_EQ(k.blockI(y.data() + p, piece, h.data(), n, ring.data(), &idx, sf), StatusOk);
                } else {
                    ASSERT_EQ(k.block(x.data() + p, y.data() + p, piece, h.data(), n, ring.data(), &idx, sf), StatusOk);
                }
                EXPECT_GE(idx, 0);
                EXPECT_LT(idx, n);
                p += piece;
            }
            const auto ref = firt::reference(h, dly, x);
            const long double scale = std::ldexp(1.0L, -sf);
            for (size_t j = 0; j < x.size(); ++j) {
                long double lim = dbound(k, h, dly, x, j) * scale;
                if (firt::Info<D>::integer) lim += 0.5L + 1e-9L;
                const LD o = ld(y[j]), e = ref[j] * scale;
                ASSERT_LE(std::abs(o.real() - e.real()), lim) << k.name << " n=" << n << " j=" << j;
                ASSERT_LE(std::abs(o.imag() - e.imag()), lim) << k.name << " n=" << n << " j=" << j;
            }
        }
    // Errors in order; outputs untouched.
    std::vector<Tp> h(4);
    std::vector<D> x(4), ring(8);
    int idx = 0;
    tt::Guarded<D> g(4);
    EXPECT_EQ(k.block(nullptr, g.data(), 4, h.data(), 4, ring.data(), &idx, 0), ErrNullPtr);
    EXPECT_EQ(k.block(x.data(), nullptr, 4, h.data(), 4, ring.data(), &idx, 0), ErrNullPtr);
    EXPECT_EQ(k.block(x.data(), g.data(), 0, nullptr, 4, ring.data(), &idx, 0), ErrSize);
    EXPECT_EQ(k.block(x.data(), g.data(), 4, nullptr, 0, ring.data(), &idx, 0), ErrNullPtr);
    EXPECT_EQ(k.block(x.data(), g.data(), 4, h.data(), 0, nullptr, &idx, 0), ErrFilterLen);
    EXPECT_EQ(k.block(x.data(), g.data(), 4, h.data(), 4, nullptr, &idx, 0), ErrNullPtr);
    EXPECT_EQ(k.block(x.data(), g.data(), 4, h.data(), 4, ring.data(), nullptr, 0), ErrNullPtr);
    EXPECT_EQ(k.blockI(nullptr, 4, h.data(), 4, ring.data(), &idx, 0), ErrNullPtr);
    EXPECT_EQ(k.blockI(g.data(), -1, h.data(), 4, ring.data(), &idx, 0), ErrSize);
    EXPECT_EQ(k.one(x[0], nullptr, h.data(), 4, ring.data(), &idx, 0), ErrNullPtr);
    EXPECT_EQ(k.one(x[0], g.data(), nullptr, 4, ring.data(), &idx, 0), ErrNullPtr);
    EXPECT_EQ(k.one(x[0], g.data(), h.data(), 0, ring.data(), &idx, 0), ErrFilterLen);
    EXPECT_EQ(k.one(x[0], g.data(), h.data(), 4, nullptr, &idx, 0), ErrNullPtr);
    EXPECT_EQ(k.one(x[0], g.data(), h.data(), 4, ring.data(), nullptr, 0), ErrNullPtr);
    EXPECT_EQ(k.oneI(nullptr, h.data(), 4, ring.data(), &idx, 0), ErrNullPtr);
    EXPECT_EQ(k.oneI(g.data(), h.data(), -2, ring.data(), &idx, 0), ErrFilterLen);
    EXPECT_TRUE(g.untouched()) << k.name;
}

TEST(FirDirect, FloatingFormsAgainstReference)
{
    uint64_t seed = 100;
#define TAVS_RUN(K) run_kind(K, seed++);
    TAVS_ALL_DKINDS(TAVS_RUN)
#undef TAVS_RUN
}

// 32s and 32sc taps: reduced to 16 bits and a power of two; bit-exact.
TEST(FirDirect, IntegerTapsBitExact)
{
    tt::Rng r(7);
    for (int cx = 0; cx < 2; ++cx)
        for (int n : {1, 3, 20})
            for (int inPlace = 0; inPlace < 2; ++inPlace) {
                const int k = cx ? 2 : 1;
                std::vector<Tav32s> t32(size_t(k * n));
                for (auto& v : t32) v = r.element<Tav32s>();
                auto ring = tt::random_vector<Tav16s>(r, size_t(2 * k * n));
                for (int i = 0; i < k * n; ++i) ring[size_t(i + k * n)] = ring[size_t(i)];
                int idx = int(r.range(0, n - 1));
                std::vector<Tav16s> dly(size_t(k * n));
                for (int j = 0; j < n; ++j)
                    for (int q = 0; q < k; ++q) dly[size_t(k * j + q)] = ring[size_t(k * (idx + n - 1 - j) + q)];
                const int len = 200, f = int(r.range(-10, 10)), sf = int(r.range(-5, 20));
                const auto x = tt::random_vector<Tav16s>(r, size_t(k * len));
                std::vector<Tav16s> y = x;
                for (int half = 0; half < 2; ++half) {
                    const int p = half * 100;
                    Tav16s* out = y.data() + k * p;
                    const Tav16s* in = inPlace ? out : x.data() + k * p;
                    Status st;
                    if (half == 1) {
                        // One sample at a time in the second half.
                        st = StatusOk;
                        for (int j = 0; j < 100 && st == StatusOk; ++j) {
                            if (cx) {
                                auto* o = reinterpret_cast<Tav16sc*>(out) + j;
                                st = inPlace ? tavsFIROne32sc_Direct_16sc_ISfs(o, reinterpret_cast<const Tav32sc*>(t32.data()), n, f,
                                                                            reinterpret_cast<Tav16sc*>(ring.data()), &idx, sf)
                                             : tavsFIROne32sc_Direct_16sc_Sfs(reinterpret_cast<const Tav16sc*>(in)[j], o,
                                                                           reinterpret_cast<const Tav32sc*>(t32.data()), n, f,
                                                                           reinterpret_cast<Tav16sc*>(ring.data()), &idx, sf);
                            } else {
                                st = inPlace ? tavsFIROne32s_Direct_16s_ISfs(out + j, t32.data(), n, f, ring.data(), &idx, sf)
                                             : tavsFIROne32s_Direct_16s_Sfs(in[j], out + j, t32.data(), n, f, ring.data(), &idx, sf);
                            }
                        }
                    } else if (cx) {
                        st = inPlace ? tavsFIR32sc_Direct_16sc_ISfs(reinterpret_cast<Tav16sc*>(out), 100,
                                                                    reinterpret_cast<const Tav32sc*>(t32.data()), n, f,
                                                                    reinterpret_cast<Tav16sc*>(ring.data()), &idx, sf)
                                     : tavsFIR32sc_Direct_16sc_Sfs(reinterpret_cast<const Tav16sc*>(in),
                                                                   reinterpret_cast<Tav16sc*>(out), 100,
                                                                   reinterpret_cast<const Tav32sc*>(t32.data()), n, f,
                                                                   reinterpret_cast<Tav16sc*>(ring.data()), &idx, sf);
                    } else {
                        st = inPlace ? tavsFIR32s_Direct_16s_ISfs(out, 100, t32.data(), n, f, ring.data(), &idx, sf)
                                     : tavsFIR32s_Direct_16s_Sfs(in, out, 100, t32.data(), n, f, ring.data(), &idx, sf);
                    }
                    ASSERT_EQ(st, StatusOk);
                }
                // The record's taps are the caller's, reversed: reference in caller order.
                std::vector<Tav32s> parts(t32);
                ASSERT_EQ(y, firi::ref_out(firi::held_from_32s(parts, f), cx, dly, x, sf)) << cx << " " << n;
            }
    Tav16s x[2] = {1, 2}, y[2], ring[4] = {};
    const Tav32s t[2] = {1, 1};
    int idx = 0;
    EXPECT_EQ(tavsFIR32s_Direct_16s_Sfs(x, y, 0, t, 2, 0, ring, &idx, 0), ErrSize);
    EXPECT_EQ(tavsFIR32s_Direct_16s_Sfs(x, y, 2, t, 0, 0, ring, &idx, 0), ErrFilterLen);
    EXPECT_EQ(tavsFIROne32s_Direct_16s_Sfs(1, y, t, 2, 0, nullptr, &idx, 0), ErrNullPtr);
    EXPECT_EQ(tavsFIROne32s_Direct_16s_ISfs(nullptr, t, 2, 0, ring, &idx, 0), ErrNullPtr);
    EXPECT_EQ(tavsFIR32s_Direct_16s_ISfs(x, 2, nullptr, 2, 0, ring, &idx, 0), ErrNullPtr);
    Tav16sc cx[1] = {{1, 1}}, cy[1];
    const Tav32sc ct[1] = {{1, 1}};
    EXPECT_EQ(tavsFIR32sc_Direct_16sc_Sfs(cx, cy, 1, ct, 1, 0, nullptr, &idx, 0), ErrNullPtr);
    EXPECT_EQ(tavsFIR32sc_Direct_16sc_ISfs(cx, 1, ct, 1, 0, reinterpret_cast<Tav16sc*>(ring), nullptr, 0), ErrNullPtr);
    EXPECT_EQ(tavsFIROne32sc_Direct_16sc_Sfs(cx[0], cy, ct, 0, 0, reinterpret_cast<Tav16sc*>(ring), &idx, 0), ErrFilterLen);
    EXPECT_EQ(tavsFIROne32sc_Direct_16sc_ISfs(cx, nullptr, 1, 0, reinterpret_cast<Tav16sc*>(ring), &idx, 0), ErrNullPtr);
}

// Q15 taps through a temporary record: the delay is read newest first at
// *dlyIndex and written back newest first at the start, index 0.
TEST(FirDirect, Q15FormWithTemporaryRecord)
{
    tt::Rng r(9);
    for (int n : {1, 4, 37})
        for (int inPlace = 0; inPlace < 2; ++inPlace) {
            const auto taps = tt::random_vector<Tav16s>(r, size_t(n));
            auto ring = tt::random_vector<Tav16s>(r, size_t(2 * n));
            int idx = int(r.range(0, n - 1));
            const std::vector<Tav16s> dly(ring.begin() + idx, ring.begin() + idx + n);
            const int len = 500, sf = int(r.range(-16, 3));
            const auto x = tt::random_vector<Tav16s>(r, size_t(len));
            std::vector<Tav16s> y = x;
            const long before = tt::live_blocks();
            // Block, then one sample at a time, then block again.
            ASSERT_EQ(inPlace ? tavsFIR_Direct_16s_ISfs(y.data(), 200, taps.data(), n, ring.data(), &idx, sf)
                              : tavsFIR_Direct_16s_Sfs(x.data(), y.data(), 200, taps.data(), n, ring.data(), &idx, sf),
                      StatusOk);
            EXPECT_EQ(idx, 0);
            for (int j = 200; j < 250; ++j)
                ASSERT_EQ(inPlace ? tavsFIROne_Direct_16s_ISfs(&y[size_t(j)], taps.data(), n, ring.data(), &idx, sf)
                                  : tavsFIROne_Direct_16s_Sfs(x[size_t(j)], &y[size_t(j)], taps.data(), n, ring.data(), &idx, sf),
                          StatusOk);
            ASSERT_EQ(inPlace ? tavsFIR_Direct_16s_ISfs(y.data() + 250, 250, taps.data(), n, ring.data(), &idx, sf)
                              : tavsFIR_Direct_16s_Sfs(x.data() + 250, y.data() + 250, 250, taps.data(), n, ring.data(), &idx, sf),
                      StatusOk);
            EXPECT_EQ(tt::live_blocks(), before);
            firi::Held h{taps, -15};
            ASSERT_EQ(y, firi::ref_out(h, false, dly, x, sf)) << n;
            for (int i = 0; i < n; ++i) EXPECT_EQ(ring[size_t(i)], x[size_t(len - 1 - i)]);
        }
    // Index outside [0, tapsLen): ErrDelayIndex, after the pointers and lengths.
    Tav16s x[2] = {1, 2}, y[2] = {9, 9}, ring[6] = {};
    const Tav16s t[3] = {1, 2, 3};
    for (int bad : {-1, 3, 100}) {
        int idx = bad;
        EXPECT_EQ(tavsFIR_Direct_16s_Sfs(x, y, 2, t, 3, ring, &idx, 0), ErrDelayIndex);
        EXPECT_EQ(tavsFIR_Direct_16s_ISfs(y, 2, t, 3, ring, &idx, 0), ErrDelayIndex);
        EXPECT_EQ(tavsFIROne_Direct_16s_Sfs(1, y, t, 3, ring, &idx, 0), ErrDelayIndex);
        EXPECT_EQ(tavsFIROne_Direct_16s_ISfs(y, t, 3, ring, &idx, 0), ErrDelayIndex);
        EXPECT_EQ(tavsFIR_Direct_16s_Sfs(x, y, 2, t, 0, ring, &idx, 0), ErrFilterLen);
        EXPECT_EQ(idx, bad);
    }
    EXPECT_EQ(y[0], 9);
    int idx = 0;
    EXPECT_EQ(tavsFIR_Direct_16s_Sfs(x, y, 0, t, 3, ring, &idx, 0), ErrSize);
    EXPECT_EQ(tavsFIR_Direct_16s_Sfs(x, y, 2, t, 3, ring, nullptr, 0), ErrNullPtr);
    // The temporary record: its allocation failure is ErrMemAlloc, nothing written.
    const int fails = tt::for_each_alloc_failure([&]() {
        Tav16s out[2] = {9, 9};
        int i2 = 1;
        const Status s = tavsFIR_Direct_16s_Sfs(x, out, 2, t, 3, ring, &i2, 0);
        if (s == ErrMemAlloc) {
            EXPECT_EQ(out[0], 9);
            EXPECT_EQ(i2, 1);
            return true;
        }
        EXPECT_EQ(i2, 0);
        return false;
    });
    EXPECT_EQ(fails, 1);
    EXPECT_EQ(tt::for_each_alloc_failure([&]() {
                  int i2 = 0;
                  return tavsFIROne_Direct_16s_Sfs(1, y, t, 3, ring, &i2, 0) == ErrMemAlloc;
              }),
              1);
}

} // namespace
