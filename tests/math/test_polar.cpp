// Polar to Cartesian: float forms bit for bit against the formula, the 16sc
// forms against their rounding and clamping rule, and 32sc with its
// fixed-point phase.
#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "math_test_util.h"
#include "tavs.h"
#include "test_util.h"

namespace {

TEST(PolarToCart, FloatForms)
{
    tt::Rng rng(91);
    for (int len : {1, 3, 4, 17, 70}) {
        std::vector<float> m(static_cast<size_t>(len)), p(static_cast<size_t>(len)),
            re(static_cast<size_t>(len)), im(static_cast<size_t>(len));
        std::vector<double> md(static_cast<size_t>(len)), pd(static_cast<size_t>(len)),
            red(static_cast<size_t>(len)), imd(static_cast<size_t>(len));
        std::vector<Tav32fc> c(static_cast<size_t>(len));
        std::vector<Tav64fc> cd(static_cast<size_t>(len));
        for (int i = 0; i < len; ++i) {
            m[size_t(i)] = float(rng.uniform(-100, 100)), p[size_t(i)] = float(rng.uniform(-20, 20));
            md[size_t(i)] = rng.uniform(-100, 100), pd[size_t(i)] = rng.uniform(-20, 20);
        }
        ASSERT_EQ(tavsPolarToCart_32f(m.data(), p.data(), re.data(), im.data(), len), StatusOk);
        ASSERT_EQ(tavsPolarToCart_32fc(m.data(), p.data(), c.data(), len), StatusOk);
        ASSERT_EQ(tavsPolarToCart_64f(md.data(), pd.data(), red.data(), imd.data(), len), StatusOk);
        ASSERT_EQ(tavsPolarToCart_64fc(md.data(), pd.data(), cd.data(), len), StatusOk);
        for (int i = 0; i < len; ++i) {
            const float fr = m[size_t(i)] * std::cos(p[size_t(i)]),
                        fi = m[size_t(i)] * std::sin(p[size_t(i)]);
            ASSERT_TRUE(tt::same_bits(re[size_t(i)], fr) && tt::same_bits(im[size_t(i)], fi));
            ASSERT_TRUE(tt::same_bits(c[size_t(i)].re, fr) && tt::same_bits(c[size_t(i)].im, fi));
            const double dr = md[size_t(i)] * std::cos(pd[size_t(i)]),
                         di = md[size_t(i)] * std::sin(pd[size_t(i)]);
            ASSERT_TRUE(tt::same_bits(red[size_t(i)], dr) && tt::same_bits(imd[size_t(i)], di));
            ASSERT_TRUE(tt::same_bits(cd[size_t(i)].re, dr) && tt::same_bits(cd[size_t(i)].im, di));
        }
    }
}

Tav16s ref_round_cap(double v)
{
    if (v > 0) return Tav16s(std::min(v + 0.5, 32767.0));
    return Tav16s(std::max(v - 0.5, -32768.0));
}

TEST(PolarToCart, Fixed16sc)
{
    tt::Rng rng(92);
    const int n = 3000;
    std::vector<Tav16s> m(n), p(n);
    for (int i = 0; i < n; ++i)
        m[size_t(i)] = rng.element<Tav16s>(), p[size_t(i)] = rng.element<Tav16s>();
    std::vector<Tav16sc> a(n), b(n);
    const std::pair<int, int> sfs[] = {{0, 0},    {0, 13},   {-2, 12}, {3, 14}, {INT_MIN, INT_MAX},
                                       {40, -40}, {-31, 31}, {5, 0}};
    for (auto [ms, ps] : sfs) {
        ASSERT_EQ(tavsPolarToCart_16sc_Sfs(m.data(), p.data(), a.data(), n, ms, ps), StatusOk);
        ASSERT_EQ(tavsPolarToCart_16sc(m.data(), p.data(), b.data(), n, ms, ps), StatusOk);
        const double sm = std::ldexp(1.0, -std::clamp(ms, -31, 31)),
                     sp = std::ldexp(1.0, -std::clamp(ps, -31, 31));
        for (int i = 0; i < n; ++i) {
            const double ang = double(p[size_t(i)]) * sp, mg = m[size_t(i)];
            ASSERT_EQ(a[size_t(i)].re, ref_round_cap(std::cos(ang) * sm * mg)) << i;
            ASSERT_EQ(a[size_t(i)].im, ref_round_cap(mg * sm * std::sin(ang))) << i;
            ASSERT_EQ(b[size_t(i)].re, a[size_t(i)].re);
            ASSERT_EQ(b[size_t(i)].im, a[size_t(i)].im);
        }
    }
    const Tav16s mm[1] = {100}, pp[1] = {0};
    Tav16sc o;
    ASSERT_EQ(tavsPolarToCart_16sc_Sfs(mm, pp, &o, 1, 0, 0), StatusOk);
    EXPECT_EQ(o.re, 100);
    EXPECT_EQ(o.im, 0);
}

TEST(PolarToCart, Fixed32sc)
{
    tt::Rng rng(93);
    const int n = 2000;
    std::vector<Tav32s> m(n), p(n);
    for (int i = 0; i < n; ++i)
        m[size_t(i)] = rng.element<Tav32s>(), p[size_t(i)] = rng.element<Tav32s>();
    m[0] = INT32_MIN, p[0] = 0;
    std::vector<Tav32sc> a(n);
    for (Tav32u fp : {0u, 1u, 16u, 29u, 31u}) {
        ASSERT_EQ(tavsPolarToCart_32sc(m.data(), p.data(), fp, a.data(), n), StatusOk);
        for (int i = 0; i < n; ++i) {
            const double ang = std::ldexp(double(p[size_t(i)]), -int(fp)), mg = m[size_t(i)];
            const double re = mg * std::cos(ang), im = mg * std::sin(ang);
            auto tr = [](double v) {
                return v >= 2147483647.0 ? INT32_MAX : (v <= -2147483648.0 ? INT32_MIN : Tav32s(v));
            };
            ASSERT_EQ(a[size_t(i)].re, tr(re)) << i;
            ASSERT_EQ(a[size_t(i)].im, tr(im)) << i;
        }
    }
    const Tav32s m1[1] = {1000}, p1[1] = {1 << 16}; // phase 1.0 with 16 fraction bits
    Tav32sc o;
    ASSERT_EQ(tavsPolarToCart_32sc(m1, p1, 16, &o, 1), StatusOk);
    EXPECT_EQ(o.re, 540); // 540.30, truncated
    EXPECT_EQ(o.im, 841); // 841.47, truncated
}

TEST(PolarToCart, Errors)
{
    tt::Guarded<Tav64fc> g(4), h(4);
    void* d = g.data();
    void* e = h.data();
    double s[8] = {};
    const void* p = s;
    EXPECT_EQ(tavsPolarToCart_32f(nullptr, (const float*)p, (float*)d, (float*)e, 4), ErrNullPtr);
    EXPECT_EQ(tavsPolarToCart_32f((const float*)p, (const float*)p, (float*)d, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(tavsPolarToCart_32f((const float*)p, (const float*)p, (float*)d, (float*)e, 0), ErrSize);
    EXPECT_EQ(tavsPolarToCart_64f((const double*)p, (const double*)p, (double*)d, (double*)e, -1), ErrSize);
    EXPECT_EQ(tavsPolarToCart_32fc((const float*)p, nullptr, (Tav32fc*)d, 4), ErrNullPtr);
    EXPECT_EQ(tavsPolarToCart_64fc((const double*)p, (const double*)p, (Tav64fc*)d, 0), ErrSize);
    EXPECT_EQ(tavsPolarToCart_16sc((const Tav16s*)p, (const Tav16s*)p, nullptr, 4, 0, 0), ErrNullPtr);
    EXPECT_EQ(tavsPolarToCart_16sc_Sfs((const Tav16s*)p, (const Tav16s*)p, (Tav16sc*)d, 0, 0, 0), ErrSize);
    EXPECT_EQ(tavsPolarToCart_32sc(nullptr, (const Tav32s*)p, 40, (Tav32sc*)d, 0), ErrNullPtr);
    EXPECT_EQ(tavsPolarToCart_32sc((const Tav32s*)p, (const Tav32s*)p, 40, (Tav32sc*)d, 0), ErrSize);
    EXPECT_EQ(tavsPolarToCart_32sc((const Tav32s*)p, (const Tav32s*)p, 32, (Tav32sc*)d, 4), ErrSize);
    EXPECT_EQ(tavsPolarToCart_32sc((const Tav32s*)p, (const Tav32s*)p, 0xFFFFFFFFu, (Tav32sc*)d, 4), ErrSize);
    EXPECT_TRUE(g.untouched() && h.untouched());
}

} // namespace
