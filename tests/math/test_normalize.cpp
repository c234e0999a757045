// Normalize: (src - offset) / divisor as a product with the reciprocal, the
// refused divisors, and the 16-bit forms' scale built in the exponent bits.
#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "math_test_util.h"
#include "tavs.h"
#include "test_util.h"

namespace {

TEST(Normalize, FloatForms)
{
    tt::Rng rng(101);
    const int n = 257;
    std::vector<float> x(n), y(n);
    std::vector<double> xd(n), yd(n);
    std::vector<Tav32fc> c(n), cy(n);
    std::vector<Tav64fc> cd(n), cdy(n);
    for (int i = 0; i < n; ++i) {
        x[size_t(i)] = float(rng.uniform(-1e4, 1e4));
        xd[size_t(i)] = rng.uniform(-1e4, 1e4);
        c[size_t(i)] = {float(rng.uniform(-9, 9)), float(rng.uniform(-9, 9))};
        cd[size_t(i)] = {rng.uniform(-9, 9), rng.uniform(-9, 9)};
    }
    ASSERT_EQ(tavsNormalize_32f(x.data(), y.data(), n, 1.5f, 3.0f), StatusOk);
    ASSERT_EQ(tavsNormalize_64f(xd.data(), yd.data(), n, -2.5, 7.0), StatusOk);
    const Tav32fc off = {0.25f, -1.0f};
    const Tav64fc offd = {0.5, 2.0};
    ASSERT_EQ(tavsNormalize_32fc(c.data(), cy.data(), n, off, 3.0f), StatusOk);
    ASSERT_EQ(tavsNormalize_64fc(cd.data(), cdy.data(), n, offd, -6.0), StatusOk);
    const float r = 1.0f / 3.0f;
    for (int i = 0; i < n; ++i) {
        ASSERT_TRUE(tt::same_bits(y[size_t(i)], (x[size_t(i)] - 1.5f) * r));
        ASSERT_TRUE(tt::same_bits(yd[size_t(i)], (xd[size_t(i)] + 2.5) * (1.0 / 7.0)));
        const double rc = 1.0 / 3.0;
        ASSERT_TRUE(tt::same_bits(cy[size_t(i)].re, float(double(c[size_t(i)].re - off.re) * rc)));
        ASSERT_TRUE(tt::same_bits(cy[size_t(i)].im, float(double(c[size_t(i)].im - off.im) * rc)));
        ASSERT_TRUE(tt::same_bits(cdy[size_t(i)].re, (cd[size_t(i)].re - 0.5) * (1.0 / -6.0)));
        ASSERT_TRUE(tt::same_bits(cdy[size_t(i)].im, (cd[size_t(i)].im - 2.0) * (1.0 / -6.0)));
    }
    std::vector<float> io = x;
    ASSERT_EQ(tavsNormalize_32f(io.data(), io.data(), n, 1.5f, 3.0f), StatusOk);
    EXPECT_EQ(io, y);
}

TEST(Normalize, RefusedDivisors)
{
    tt::Guarded<double> g(4);
    const float x[4] = {1, 2, 3, 4};
    const double xd[4] = {1, 2, 3, 4};
    const Tav32fc c[2] = {{1, 2}, {3, 4}};
    const Tav64fc cd[2] = {{1, 2}, {3, 4}};
    const Tav16s s[4] = {1, 2, 3, 4};
    const Tav16sc sc[2] = {{1, 2}, {3, 4}};
    EXPECT_EQ(tavsNormalize_32f(x, (float*)g.data(), 4, 0.0f, 1e-39f), ErrDivByZero);
    EXPECT_EQ(tavsNormalize_32f(x, (float*)g.data(), 4, 0.0f, -1e-39f), ErrDivByZero);
    EXPECT_EQ(tavsNormalize_32f(x, (float*)g.data(), 4, 0.0f, 0.0f), ErrDivByZero);
    EXPECT_EQ(tavsNormalize_64f(xd, g.data(), 4, 0.0, 1e-39), ErrDivByZero);
    EXPECT_EQ(tavsNormalize_32fc(c, (Tav32fc*)g.data(), 2, Tav32fc{0, 0}, 1e-39f), ErrDivByZero);
    EXPECT_EQ(tavsNormalize_64fc(cd, (Tav64fc*)g.data(), 2, Tav64fc{0, 0}, 0.0), ErrDivByZero);
    EXPECT_EQ(tavsNormalize_16s_Sfs(s, (Tav16s*)g.data(), 4, 0, 0, 0), ErrDivByZero);
    EXPECT_EQ(tavsNormalize_16sc_Sfs(sc, (Tav16sc*)g.data(), 2, Tav16sc{0, 0}, 0, 0), ErrDivByZero);
    // pointers and length come first
    EXPECT_EQ(tavsNormalize_32f(nullptr, (float*)g.data(), 4, 0.0f, 0.0f), ErrNullPtr);
    EXPECT_EQ(tavsNormalize_32f(x, (float*)g.data(), 0, 0.0f, 0.0f), ErrSize);
    EXPECT_EQ(tavsNormalize_64f(xd, nullptr, 4, 0.0, 0.0), ErrNullPtr);
    EXPECT_EQ(tavsNormalize_32fc(c, (Tav32fc*)g.data(), -1, Tav32fc{0, 0}, 0.0f), ErrSize);
    EXPECT_EQ(tavsNormalize_64fc(nullptr, (Tav64fc*)g.data(), 2, Tav64fc{0, 0}, 0.0), ErrNullPtr);
    EXPECT_EQ(tavsNormalize_16s_Sfs(s, nullptr, 4, 0, 0, 0), ErrNullPtr);
    EXPECT_EQ(tavsNormalize_16sc_Sfs(sc, (Tav16sc*)g.data(), 0, Tav16sc{0, 0}, 0, 0), ErrSize);
    EXPECT_TRUE(g.untouched());
    float ok[4];
    EXPECT_EQ(tavsNormalize_32f(x, ok, 4, 0.0f, 1.1754944e-38f), StatusOk); // the smallest normal is accepted
}

// (float)(x - offset) * r with r = (1/divisor) * 2^-k, k = sf taken modulo
// 128 into -64..63; saturated, else converted by the current rounding.
Tav16s ref16(int x, int off, int divisor, int sf)
{
    const int k = int((unsigned(sf) + 64u) & 127u) - 64;
    const float r = (1.0f / float(divisor)) * std::ldexp(1.0f, -k);
    const float v = float(x - off) * r;
    if (v >= 32767.0f) return 32767;
    if (v <= -32768.0f) return -32768;
    return Tav16s(std::lrint(v));
}

TEST(Normalize, Fixed16)
{
    tt::Rng rng(102);
    const int n = 4000;
    std::vector<Tav16s> x(n), y(n);
    std::vector<Tav16sc> c(n), cy(n);
    for (int i = 0; i < n; ++i) {
        x[size_t(i)] = rng.element<Tav16s>();
        c[size_t(i)] = {rng.element<Tav16s>(), rng.element<Tav16s>()};
    }
    for (int divisor : {1, -1, 3, 7, -1000, 65536, INT32_MIN, INT32_MAX})
        for (int sf : {INT_MIN, -130, -64, -10, -1, 0, 1, 5, 63, 64, 127, 128, INT_MAX}) {
            ASSERT_EQ(tavsNormalize_16s_Sfs(x.data(), y.data(), n, -7, divisor, sf), StatusOk);
            ASSERT_EQ(tavsNormalize_16sc_Sfs(c.data(), cy.data(), n, Tav16sc{5, -32768}, divisor, sf),
                      StatusOk);
            for (int i = 0; i < n; ++i) {
                ASSERT_EQ(y[size_t(i)], ref16(x[size_t(i)], -7, divisor, sf)) << divisor << " sf " << sf;
                ASSERT_EQ(cy[size_t(i)].re, ref16(c[size_t(i)].re, 5, divisor, sf));
                ASSERT_EQ(cy[size_t(i)].im, ref16(c[size_t(i)].im, -32768, divisor, sf));
            }
        }
    const Tav16s v[3] = {100, -100, 7};
    Tav16s o[3];
    ASSERT_EQ(tavsNormalize_16s_Sfs(v, o, 3, 0, 4, -1), StatusOk); // 100 / 4 * 2 = 50
    EXPECT_EQ(o[0], 50);
    EXPECT_EQ(o[1], -50);
    EXPECT_EQ(o[2], 4);                                             // 3.5 goes to even
    ASSERT_EQ(tavsNormalize_16s_Sfs(v, o, 3, 0, 4, 127), StatusOk); // 127 is -1 modulo 128
    EXPECT_EQ(o[0], 50);
}

} // namespace
