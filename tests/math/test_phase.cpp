// Phase and Cartesian-to-polar: float phases within 1 ulp of atan2, the
// zero-pair test of the split and 64f forms, the chunked 32fc form equal to
// the split one, the fixed-point scaling, and CartToPolar as Magnitude then
// Phase.
#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "math_test_util.h"
#include "tavs.h"
#include "test_util.h"

namespace {

TEST(Phase, Float32Within1UlpAndChunkedEqualsSplit)
{
    tt::Rng rng(81);
    const int n = 40000 / mt::kSlow;
    std::vector<float> re(static_cast<size_t>(n)), im(static_cast<size_t>(n)), a(static_cast<size_t>(n)),
        b(static_cast<size_t>(n));
    std::vector<Tav32fc> c(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) {
        re[size_t(i)] = float(std::ldexp(rng.uniform(-1, 1), int(rng.range(-40, 40))));
        im[size_t(i)] = float(std::ldexp(rng.uniform(-1, 1), int(rng.range(-40, 40))));
        c[size_t(i)] = {re[size_t(i)], im[size_t(i)]};
    }
    const float sp[][2] = {{INFINITY, INFINITY}, {-INFINITY, 1}, {1, -INFINITY}, {-1, 0},
                           {-1, -0.0f},          {0, 5},         {5, 0}};
    for (int i = 0; i < 7; ++i)
        re[size_t(i)] = sp[i][0], im[size_t(i)] = sp[i][1], c[size_t(i)] = {sp[i][0], sp[i][1]};
    ASSERT_EQ(tavsPhase_32f(re.data(), im.data(), a.data(), n), StatusOk);
    ASSERT_EQ(tavsPhase_32fc(c.data(), b.data(), n), StatusOk);
    double worst = 0;
    for (int i = 0; i < n; ++i) {
        worst = std::max(worst, mt::ulp_error(a[size_t(i)], std::atan2((long double)im[size_t(i)],
                                                                       (long double)re[size_t(i)])));
        ASSERT_TRUE(tt::same_bits(a[size_t(i)], b[size_t(i)])) << i;
    }
    std::printf("Phase_32f: max error %.3f ulp\n", worst);
    EXPECT_LE(worst, 1.0);
    EXPECT_TRUE(tt::same_bits(a[4], float(-M_PI))); // (-1, -0): the sign of zero counts
}

TEST(Phase, ZeroPairs)
{
    const double re[4] = {0.0, -0.0, -0.0, 0.0}, im[4] = {-0.0, 0.0, -0.0, 0.0};
    double y[4];
    ASSERT_EQ(tavsPhase_64f(re, im, y, 4), StatusOk);
    for (double v : y)
        EXPECT_EQ(mt::bits(v), 0u);
    Tav64fc c[2] = {{-0.0, 0.0}, {0.0, -0.0}};
    ASSERT_EQ(tavsPhase_64fc(c, y, 2), StatusOk);
    EXPECT_EQ(mt::bits(y[0]), 0u);
    EXPECT_EQ(mt::bits(y[1]), 0u);
    const float fr[2] = {-0.0f, -0.0f}, fi[2] = {0.0f, -0.0f};
    float fy[2];
    ASSERT_EQ(tavsPhase_32f(fr, fi, fy, 2), StatusOk);
    EXPECT_EQ(mt::bits(fy[0]), 0u);
    EXPECT_EQ(mt::bits(fy[1]), 0u);
    // 32fc has no zero-pair test: atan2's signed-zero rules stand
    Tav32fc fc[2] = {{-0.0f, 0.0f}, {-0.0f, -0.0f}};
    ASSERT_EQ(tavsPhase_32fc(fc, fy, 2), StatusOk);
    EXPECT_EQ(fy[0], float(M_PI));
    EXPECT_EQ(fy[1], -float(M_PI));
}

TEST(Phase, Double64IsTheMathLibrarys)
{
    tt::Rng rng(82);
    const int n = 2000;
    std::vector<double> re(n), im(n), a(n), b(n);
    std::vector<Tav64fc> c(n);
    for (int i = 0; i < n; ++i) {
        re[size_t(i)] = rng.uniform(-10, 10), im[size_t(i)] = rng.uniform(-10, 10);
        c[size_t(i)] = {re[size_t(i)], im[size_t(i)]};
    }
    ASSERT_EQ(tavsPhase_64f(re.data(), im.data(), a.data(), n), StatusOk);
    ASSERT_EQ(tavsPhase_64fc(c.data(), b.data(), n), StatusOk);
    for (int i = 0; i < n; ++i) {
        ASSERT_TRUE(tt::same_bits(a[size_t(i)], std::atan2(im[size_t(i)], re[size_t(i)])));
        ASSERT_TRUE(tt::same_bits(b[size_t(i)], a[size_t(i)]));
    }
}

TEST(Phase, Integer16sToFloat)
{
    tt::Rng rng(83);
    const int n = 3000;
    std::vector<Tav16s> re(n), im(n);
    std::vector<Tav16sc> c(n);
    for (int i = 0; i < n; ++i) {
        re[size_t(i)] = rng.element<Tav16s>(), im[size_t(i)] = rng.element<Tav16s>();
        c[size_t(i)] = {re[size_t(i)], im[size_t(i)]};
    }
    re[0] = im[0] = 0;
    c[0] = {0, 0};
    std::vector<float> a(n), b(n), ref(n);
    std::vector<float> fr(re.begin(), re.end()), fi(im.begin(), im.end());
    ASSERT_EQ(tavsPhase_16s32f(re.data(), im.data(), a.data(), n), StatusOk);
    ASSERT_EQ(tavsPhase_16sc32f(c.data(), b.data(), n), StatusOk);
    ASSERT_EQ(tavsPhase_32f(fr.data(), fi.data(), ref.data(), n), StatusOk);
    for (int i = 0; i < n; ++i) {
        ASSERT_TRUE(tt::same_bits(a[size_t(i)], ref[size_t(i)]));
        ASSERT_TRUE(tt::same_bits(b[size_t(i)], ref[size_t(i)]));
    }
    EXPECT_EQ(a[0], 0.0f);
}

// The fixed-point rule: sf above 1 gives zeros; otherwise atan2 in double,
// rounded to float, times the float scale, +-0.5, clamped, truncated.
template <class D> int64_t ref_phase_fixed(double re, double im, int sf)
{
    if (sf > 1) return 0;
    const float s = float(std::pow(2.0, -double(sf)));
    const float a = float(std::atan2(im, re));
    float v = a == 0.0f ? 0.0f : a * s;
    v = v >= 0.0f ? v + 0.5f : v - 0.5f;
    if (sizeof(D) == 2) return int64_t(std::clamp(v, -32768.0f, 32767.0f));
    if (v >= 2147483648.0f) return INT32_MAX;
    if (v <= -2147483648.0f) return INT32_MIN;
    return int64_t(v);
}

TEST(Phase, FixedPoint)
{
    tt::Rng rng(84);
    const int n = 3000;
    std::vector<Tav16s> re(n), im(n);
    std::vector<Tav16sc> c(n);
    std::vector<Tav32sc> c32(n);
    for (int i = 0; i < n; ++i) {
        re[size_t(i)] = rng.element<Tav16s>(), im[size_t(i)] = rng.element<Tav16s>();
        c[size_t(i)] = {re[size_t(i)], im[size_t(i)]};
        c32[size_t(i)] = {rng.element<Tav32s>(), rng.element<Tav32s>()};
    }
    std::vector<Tav16s> a(n), b(n);
    std::vector<Tav32s> d(n);
    for (int sf : {INT_MIN, -200, -31, -29, -20, -14, -13, -12, -1, 0, 1, 2, 3, INT_MAX}) {
        ASSERT_EQ(tavsPhase_16s_Sfs(re.data(), im.data(), a.data(), n, sf), StatusOk);
        ASSERT_EQ(tavsPhase_16sc_Sfs(c.data(), b.data(), n, sf), StatusOk);
        ASSERT_EQ(tavsPhase_32sc_Sfs(c32.data(), d.data(), n, sf), StatusOk);
        for (int i = 0; i < n; ++i) {
            ASSERT_EQ(a[size_t(i)], ref_phase_fixed<Tav16s>(re[size_t(i)], im[size_t(i)], sf))
                << i << " sf " << sf;
            ASSERT_EQ(b[size_t(i)], a[size_t(i)]);
            ASSERT_EQ(d[size_t(i)], ref_phase_fixed<Tav32s>(c32[size_t(i)].re, c32[size_t(i)].im, sf)) << sf;
        }
    }
    // scale factor 2: only zeros, success
    tt::Guarded<Tav16s> z(4);
    const Tav16s r4[4] = {-1, 1, -5, 0}, i4[4] = {1, 1, -1, 3};
    ASSERT_EQ(tavsPhase_16s_Sfs(r4, i4, z.data(), 4, 2), StatusOk);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(z.data()[i], 0);
    EXPECT_TRUE(z.borders_intact());
    ASSERT_EQ(tavsPhase_16s_Sfs(r4, i4, z.data(), 1, -13), StatusOk);
    EXPECT_EQ(z.data()[0], 19302); // 3 pi / 4 * 8192 = 19301.9
}

TEST(CartToPolar, IsMagnitudeThenPhase)
{
    tt::Rng rng(85);
    const int n = 333;
    std::vector<float> re(n), im(n), m(n), p(n), m2(n), p2(n);
    std::vector<double> red(n), imd(n), md(n), pd(n), md2(n), pd2(n);
    std::vector<Tav32fc> c(n);
    std::vector<Tav64fc> cd(n);
    std::vector<Tav16sc> cs(n);
    for (int i = 0; i < n; ++i) {
        re[size_t(i)] = float(rng.uniform(-5, 5)), im[size_t(i)] = float(rng.uniform(-5, 5));
        red[size_t(i)] = rng.uniform(-5, 5), imd[size_t(i)] = rng.uniform(-5, 5);
        c[size_t(i)] = {re[size_t(i)], im[size_t(i)]};
        cd[size_t(i)] = {red[size_t(i)], imd[size_t(i)]};
        cs[size_t(i)] = {rng.element<Tav16s>(), rng.element<Tav16s>()};
    }
    ASSERT_EQ(tavsCartToPolar_32f(re.data(), im.data(), m.data(), p.data(), n), StatusOk);
    ASSERT_EQ(tavsMagnitude_32f(re.data(), im.data(), m2.data(), n), StatusOk);
    ASSERT_EQ(tavsPhase_32f(re.data(), im.data(), p2.data(), n), StatusOk);
    EXPECT_EQ(m, m2);
    EXPECT_EQ(p, p2);
    ASSERT_EQ(tavsCartToPolar_32fc(c.data(), m.data(), p.data(), n), StatusOk);
    ASSERT_EQ(tavsMagnitude_32fc(c.data(), m2.data(), n), StatusOk);
    ASSERT_EQ(tavsPhase_32fc(c.data(), p2.data(), n), StatusOk);
    EXPECT_EQ(m, m2);
    EXPECT_EQ(p, p2);
    ASSERT_EQ(tavsCartToPolar_64f(red.data(), imd.data(), md.data(), pd.data(), n), StatusOk);
    ASSERT_EQ(tavsMagnitude_64f(red.data(), imd.data(), md2.data(), n), StatusOk);
    ASSERT_EQ(tavsPhase_64f(red.data(), imd.data(), pd2.data(), n), StatusOk);
    EXPECT_EQ(md, md2);
    EXPECT_EQ(pd, pd2);
    ASSERT_EQ(tavsCartToPolar_64fc(cd.data(), md.data(), pd.data(), n), StatusOk);
    ASSERT_EQ(tavsMagnitude_64fc(cd.data(), md2.data(), n), StatusOk);
    ASSERT_EQ(tavsPhase_64fc(cd.data(), pd2.data(), n), StatusOk);
    EXPECT_EQ(md, md2);
    EXPECT_EQ(pd, pd2);
    std::vector<Tav16s> ms(n), ps(n), ms2(n), ps2(n);
    for (auto [msf, psf] : {std::pair{0, -12}, std::pair{2, 3}, std::pair{-3, 0}}) {
        ASSERT_EQ(tavsCartToPolar_16sc_Sfs(cs.data(), ms.data(), ps.data(), n, msf, psf), StatusOk);
        ASSERT_EQ(tavsMagnitude_16sc_Sfs(cs.data(), ms2.data(), n, msf), StatusOk);
        ASSERT_EQ(tavsPhase_16sc_Sfs(cs.data(), ps2.data(), n, psf), StatusOk);
        EXPECT_EQ(ms, ms2);
        EXPECT_EQ(ps, ps2);
    }
}

TEST(Phase, Errors)
{
    tt::Guarded<double> g(8), h(8);
    void* d = g.data();
    void* e = h.data();
    double s[8] = {};
    const void* p = s;
    EXPECT_EQ(tavsPhase_32f(nullptr, (const float*)p, (float*)d, 4), ErrNullPtr);
    EXPECT_EQ(tavsPhase_32f((const float*)p, (const float*)p, (float*)d, 0), ErrSize);
    EXPECT_EQ(tavsPhase_64f((const double*)p, nullptr, (double*)d, 4), ErrNullPtr);
    EXPECT_EQ(tavsPhase_16s_Sfs((const Tav16s*)p, (const Tav16s*)p, (Tav16s*)d, 0, 5), ErrSize);
    EXPECT_EQ(tavsPhase_16s32f((const Tav16s*)p, (const Tav16s*)p, nullptr, 1), ErrNullPtr);
    EXPECT_EQ(tavsPhase_32fc((const Tav32fc*)p, (float*)d, 0), ErrSize);
    EXPECT_EQ(tavsPhase_64fc(nullptr, (double*)d, 0), ErrNullPtr);
    EXPECT_EQ(tavsPhase_16sc_Sfs((const Tav16sc*)p, nullptr, 4, 9), ErrNullPtr);
    EXPECT_EQ(tavsPhase_16sc32f((const Tav16sc*)p, (float*)d, -1), ErrSize);
    EXPECT_EQ(tavsPhase_32sc_Sfs((const Tav32sc*)p, (Tav32s*)d, 0, 0), ErrSize);
    // CartToPolar tests every pointer before writing anything
    EXPECT_EQ(tavsCartToPolar_32f((const float*)p, (const float*)p, (float*)d, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(tavsCartToPolar_64f((const double*)p, (const double*)p, (double*)d, (double*)e, 0), ErrSize);
    EXPECT_EQ(tavsCartToPolar_32fc((const Tav32fc*)p, nullptr, (float*)e, 4), ErrNullPtr);
    EXPECT_EQ(tavsCartToPolar_64fc((const Tav64fc*)p, (double*)d, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(tavsCartToPolar_16sc_Sfs((const Tav16sc*)p, (Tav16s*)d, nullptr, 4, 0, 0), ErrNullPtr);
    EXPECT_EQ(tavsCartToPolar_16sc_Sfs((const Tav16sc*)p, (Tav16s*)d, (Tav16s*)e, 0, 0, 0), ErrSize);
    EXPECT_TRUE(g.untouched() && h.untouched());
}

} // namespace
