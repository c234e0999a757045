#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "stats_ref.h"
#include "tavs.h"
#include "test_util.h"

namespace {

// The 16-bit dot product rule: counts capped at 31 (negative at cap),
// ties to even, saturation to [lo, hi].
int64_t ref_scale(int64_t sum, int sf, int cap, int64_t lo, int64_t hi)
{
    __int128 v = sum;
    if (sf > 0) {
        int s = sf > 31 ? 31 : sf;
        v = (v + (__int128(1) << (s - 1)) - 1 + ((v >> s) & 1)) >> s;
    } else if (sf < 0) {
        int k = -int64_t(sf) > cap ? cap : int(-sf);
        if (sum > (hi >> k)) v = hi;
        else if (sum < (lo >> k)) v = lo;
        else v = __int128(sum) * (int64_t(1) << k);
    }
    return int64_t(v > hi ? hi : (v < lo ? lo : v));
}
int32_t s32(int64_t s, int sf) { return int32_t(ref_scale(s, sf, 31, INT32_MIN, INT32_MAX)); }
int16_t s16(int64_t s, int sf) { return int16_t(ref_scale(s, sf, 15, INT16_MIN, INT16_MAX)); }

// The 32-bit rule: the double sum times 2^-sf (sf within -31..93), rounded
// to nearest and saturated.
int32_t ref_round(double sum, int sf)
{
    int s = sf < -31 ? -31 : (sf > 93 ? 93 : sf);
    double v = sum * std::ldexp(1.0, -s);
    double r = std::nearbyint(v);
    if (r >= 2147483647.0) return INT32_MAX;
    if (r <= -2147483648.0) return INT32_MIN;
    return int32_t(r);
}

struct Sums {
    int64_t re = 0, im = 0;
};

TEST(DotProdInt, SixteenBitExactAndScaled)
{
    tt::Rng r(1);
    sref::sweep([&](int n, int off) {
        auto a = sref::ints<Tav16s>(r, size_t(2 * n + 32)), b = sref::ints<Tav16s>(r, size_t(2 * n + 32));
        auto w = sref::ints<Tav32s>(r, size_t(n + 16));
        const int o2 = 15 - off;
        const Tav16s* pa = a.data() + off;
        const Tav16s* pb = b.data() + o2;
        auto* ca = reinterpret_cast<const Tav16sc*>(a.data()) + off;
        auto* cb = reinterpret_cast<const Tav16sc*>(b.data()) + o2;
        int64_t real = 0, mixed = 0;
        Sums cc, rc;
        for (int i = 0; i < n; ++i) {
            real += int64_t(pa[i]) * pb[i];
            mixed += int64_t(pa[i]) * w[size_t(o2 + i)];
            cc.re += int64_t(ca[i].re) * cb[i].re - int64_t(ca[i].im) * cb[i].im;
            cc.im += int64_t(ca[i].re) * cb[i].im + int64_t(ca[i].im) * cb[i].re;
            rc.re += int64_t(pa[i]) * cb[i].re;
            rc.im += int64_t(pa[i]) * cb[i].im;
        }
        Tav64s x = 0;
        Tav64sc xc{};
        Tav32f f = 0;
        Tav32fc fc{};
        ASSERT_EQ(tavsDotProd_16s64s(pa, pb, n, &x), StatusOk);
        ASSERT_EQ(x, real) << n;
        ASSERT_EQ(tavsDotProd_16sc64sc(ca, cb, n, &xc), StatusOk);
        ASSERT_TRUE(xc.re == cc.re && xc.im == cc.im);
        ASSERT_EQ(tavsDotProd_16s16sc64sc(pa, cb, n, &xc), StatusOk);
        ASSERT_TRUE(xc.re == rc.re && xc.im == rc.im);
        ASSERT_EQ(tavsDotProd_16s32f(pa, pb, n, &f), StatusOk);
        ASSERT_TRUE(tt::same_bits(f, float(real)));
        ASSERT_EQ(tavsDotProd_16sc32fc(ca, cb, n, &fc), StatusOk);
        ASSERT_TRUE(tt::same_bits(fc.re, float(cc.re)) && tt::same_bits(fc.im, float(cc.im)));
        ASSERT_EQ(tavsDotProd_16s16sc32fc(pa, cb, n, &fc), StatusOk);
        ASSERT_TRUE(tt::same_bits(fc.re, float(rc.re)) && tt::same_bits(fc.im, float(rc.im)));
        for (int sf : sref::scales(n, off)) {
            Tav32s y = 0;
            Tav16s h = 0;
            Tav32sc yc{};
            Tav16sc hc{};
            ASSERT_EQ(tavsDotProd_16s32s_Sfs(pa, pb, n, &y, sf), StatusOk);
            ASSERT_EQ(y, s32(real, sf)) << "n=" << n << " sf=" << sf;
            ASSERT_EQ(tavsDotProd_16s_Sfs(pa, pb, n, &h, sf), StatusOk);
            ASSERT_EQ(h, s16(real, sf)) << "n=" << n << " sf=" << sf;
            ASSERT_EQ(tavsDotProd_16sc32sc_Sfs(ca, cb, n, &yc, sf), StatusOk);
            ASSERT_TRUE(yc.re == s32(cc.re, sf) && yc.im == s32(cc.im, sf));
            ASSERT_EQ(tavsDotProd_16sc_Sfs(ca, cb, n, &hc, sf), StatusOk);
            ASSERT_TRUE(hc.re == s16(cc.re, sf) && hc.im == s16(cc.im, sf));
            ASSERT_EQ(tavsDotProd_16s16sc32sc_Sfs(pa, cb, n, &yc, sf), StatusOk);
            ASSERT_TRUE(yc.re == s32(rc.re, sf) && yc.im == s32(rc.im, sf));
            ASSERT_EQ(tavsDotProd_16s16sc_Sfs(pa, cb, n, &hc, sf), StatusOk);
            ASSERT_TRUE(hc.re == s16(rc.re, sf) && hc.im == s16(rc.im, sf));
            ASSERT_EQ(tavsDotProd_16s32s32s_Sfs(pa, w.data() + o2, n, &y, sf), StatusOk);
            ASSERT_EQ(y, s32(mixed, sf)) << "n=" << n << " sf=" << sf;
        }
    });
}

TEST(DotProdInt, ThirtyTwoBitInDouble)
{
    tt::Rng r(2);
    sref::sweep([&](int n, int off) {
        auto a = sref::ints<Tav32s>(r, size_t(2 * n + 32)), b = sref::ints<Tav32s>(r, size_t(2 * n + 32));
        if (n % 3 == 0)
            for (auto& x : a) x = Tav32s(r.range(-3000, 3000));
        const int o2 = 15 - off;
        const Tav32s* pa = a.data() + off;
        const Tav32s* pb = b.data() + o2;
        auto* ca = reinterpret_cast<const Tav32sc*>(a.data()) + off;
        auto* cb = reinterpret_cast<const Tav32sc*>(b.data()) + o2;
        std::vector<double> real, cr, ci, rr, ri;
        for (int i = 0; i < n; ++i) {
            real.push_back(double(pa[i]) * double(pb[i]));
            double ar = ca[i].re, ai = ca[i].im, br = cb[i].re, bi = cb[i].im;
            cr.push_back(ar * br - ai * bi);
            ci.push_back(ar * bi + ai * br);
            rr.push_back(double(pa[i]) * br);
            ri.push_back(double(pa[i]) * bi);
        }
        double sr = sref::sum8(real), scr = sref::sum8(cr), sci = sref::sum8(ci), srr = sref::sum8(rr), sri = sref::sum8(ri);
        for (int sf : sref::scales(n, off)) {
            Tav32s y = 0;
            Tav32sc yc{};
            ASSERT_EQ(tavsDotProd_32s_Sfs(pa, pb, n, &y, sf), StatusOk);
            ASSERT_EQ(y, ref_round(sr, sf)) << "n=" << n << " sf=" << sf;
            ASSERT_EQ(tavsDotProd_32sc_Sfs(ca, cb, n, &yc, sf), StatusOk);
            ASSERT_TRUE(yc.re == ref_round(scr, sf) && yc.im == ref_round(sci, sf)) << n << " " << sf;
            ASSERT_EQ(tavsDotProd_32s32sc_Sfs(pa, cb, n, &yc, sf), StatusOk);
            ASSERT_TRUE(yc.re == ref_round(srr, sf) && yc.im == ref_round(sri, sf)) << n << " " << sf;
        }
    });
}

TEST(DotProdInt, DocumentedCases)
{
    Tav16s a[2] = {1, 1}, b3[2] = {1, 2}, b5[2] = {2, 3};
    Tav32s r = 0;
    ASSERT_EQ(tavsDotProd_16s32s_Sfs(a, b3, 2, &r, 1), StatusOk);
    EXPECT_EQ(r, 2); // 1.5 to even
    ASSERT_EQ(tavsDotProd_16s32s_Sfs(a, b5, 2, &r, 1), StatusOk);
    EXPECT_EQ(r, 2); // 2.5 to even
    // Pairs of (-32768)^2 need the full unsigned 32-bit range of a lane.
    std::vector<Tav16s> m(67, -32768);
    Tav64s x = 0;
    ASSERT_EQ(tavsDotProd_16s64s(m.data(), m.data(), 67, &x), StatusOk);
    EXPECT_EQ(x, int64_t(67) << 30);
    // Negative counts cap at 15 in the 16-bit form and at 31 in the 32-bit one.
    Tav16s one[1] = {1}, h = 0;
    ASSERT_EQ(tavsDotProd_16s_Sfs(one, one, 1, &h, -14), StatusOk);
    EXPECT_EQ(h, 16384);
    ASSERT_EQ(tavsDotProd_16s_Sfs(one, one, 1, &h, -15), StatusOk);
    EXPECT_EQ(h, 32767);
    Tav16s neg[1] = {-1};
    ASSERT_EQ(tavsDotProd_16s_Sfs(one, neg, 1, &h, -15), StatusOk);
    EXPECT_EQ(h, -32768);
    ASSERT_EQ(tavsDotProd_16s_Sfs(one, neg, 1, &h, INT32_MIN), StatusOk);
    EXPECT_EQ(h, -32768);
    ASSERT_EQ(tavsDotProd_16s32s_Sfs(one, neg, 1, &r, -31), StatusOk);
    EXPECT_EQ(r, INT32_MIN);
    ASSERT_EQ(tavsDotProd_16s32s_Sfs(one, one, 1, &r, -30), StatusOk);
    EXPECT_EQ(r, 1 << 30);
    // Positive counts cap at 31: a large sum still rounds to 1 at 2^31.
    std::vector<Tav16s> big(8, 32767);
    ASSERT_EQ(tavsDotProd_16s32s_Sfs(big.data(), big.data(), 8, &r, 90), StatusOk);
    EXPECT_EQ(r, 4); // 8 * 32767^2 / 2^31 = 3.99...
    // 32-bit forms: the scale factor is capped to -31..93.
    Tav32s p[1] = {INT32_MAX}, q[1] = {INT32_MAX};
    ASSERT_EQ(tavsDotProd_32s_Sfs(p, q, 1, &r, 1000), StatusOk);
    EXPECT_EQ(r, 0); // 2^62 / 2^93
    ASSERT_EQ(tavsDotProd_32s_Sfs(p, q, 1, &r, 31), StatusOk);
    EXPECT_EQ(r, 2147483646); // the product rounds to 2^62 - 2^32 in double
    ASSERT_EQ(tavsDotProd_32s_Sfs(p, q, 1, &r, 30), StatusOk);
    EXPECT_EQ(r, INT32_MAX);
    Tav32s u[1] = {1}, v[1] = {-1};
    ASSERT_EQ(tavsDotProd_32s_Sfs(u, v, 1, &r, -1000), StatusOk);
    EXPECT_EQ(r, INT32_MIN); // -2^31
    ASSERT_EQ(tavsDotProd_32s_Sfs(u, u, 1, &r, -1000), StatusOk);
    EXPECT_EQ(r, INT32_MAX); // 2^31 saturates
    Tav32s t3[1] = {3};
    ASSERT_EQ(tavsDotProd_32s_Sfs(t3, u, 1, &r, 1), StatusOk);
    EXPECT_EQ(r, 2); // 1.5 to nearest even
    Tav32s t5[1] = {5};
    ASSERT_EQ(tavsDotProd_32s_Sfs(t5, u, 1, &r, 1), StatusOk);
    EXPECT_EQ(r, 2);
}

TEST(DotProdIntErrors, PointersThenLength)
{
    tt::Guarded<Tav64sc> g(1);
    Tav16s a[2] = {};
    Tav16sc c[2] = {};
    Tav32s w[2] = {};
    Tav32sc wc[2] = {};
    auto* o = g.data();
    auto* o64 = reinterpret_cast<Tav64s*>(o);
    auto* o32 = reinterpret_cast<Tav32s*>(o);
    auto* o16 = reinterpret_cast<Tav16s*>(o);
    auto* of = reinterpret_cast<Tav32f*>(o);
    auto* ofc = reinterpret_cast<Tav32fc*>(o);
    auto* o32c = reinterpret_cast<Tav32sc*>(o);
    auto* o16c = reinterpret_cast<Tav16sc*>(o);
    EXPECT_EQ(tavsDotProd_16s64s(nullptr, a, 0, o64), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_16s64s(a, a, 0, o64), ErrSize);
    EXPECT_EQ(tavsDotProd_16sc64sc(c, nullptr, 2, o), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_16s16sc64sc(a, c, 0, o), ErrSize);
    EXPECT_EQ(tavsDotProd_16s32f(a, a, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_16sc32fc(c, c, -1, ofc), ErrSize);
    EXPECT_EQ(tavsDotProd_16s16sc32fc(nullptr, c, 2, ofc), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_16s32s_Sfs(a, a, 0, o32, 0), ErrSize);
    EXPECT_EQ(tavsDotProd_16s_Sfs(a, nullptr, 2, o16, 0), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_16sc32sc_Sfs(c, c, 0, o32c, 0), ErrSize);
    EXPECT_EQ(tavsDotProd_16sc_Sfs(c, c, 2, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_16s16sc32sc_Sfs(a, c, 0, o32c, 0), ErrSize);
    EXPECT_EQ(tavsDotProd_16s16sc_Sfs(nullptr, c, 2, o16c, 0), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_16s32s32s_Sfs(a, w, 0, o32, 0), ErrSize);
    EXPECT_EQ(tavsDotProd_16s32s32s_Sfs(a, nullptr, 2, o32, 0), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_32s_Sfs(w, w, 0, o32, 0), ErrSize);
    EXPECT_EQ(tavsDotProd_32sc_Sfs(wc, wc, 2, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_32s32sc_Sfs(w, wc, 0, o32c, 0), ErrSize);
    (void)of;
    EXPECT_TRUE(g.untouched());
}

} // namespace
