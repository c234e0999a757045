#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "norm_check.h"
#include "tavs.h"
#include "test_util.h"

namespace {

// Adapters to the shared checks: the second vector is subtracted.
#define TWO(F) [](auto a, auto b, int n, auto out) { return F(a, b, n, out); }
#define TWO_SFS(F) [](auto a, auto b, int n, auto out, int sf) { return F(a, b, n, out, sf); }

TEST(NormDiff, RealFloat)
{
    ncheck::check_real<Tav32f, Tav32f>(TWO(tavsNormDiff_Inf_32f), TWO(tavsNormDiff_L1_32f), TWO(tavsNormDiff_L2_32f), true, 1);
    ncheck::check_real<Tav64f, Tav64f>(TWO(tavsNormDiff_Inf_64f), TWO(tavsNormDiff_L1_64f), TWO(tavsNormDiff_L2_64f), true, 2);
}

TEST(NormDiff, ComplexFloat)
{
    ncheck::check_complex<Tav32fc, Tav32f>(TWO(tavsNormDiff_Inf_32fc32f), TWO(tavsNormDiff_L1_32fc64f), TWO(tavsNormDiff_L2_32fc64f),
                                           true, 3);
    ncheck::check_complex<Tav64fc, Tav64f>(TWO(tavsNormDiff_Inf_64fc64f), TWO(tavsNormDiff_L1_64fc64f), TWO(tavsNormDiff_L2_64fc64f),
                                           true, 4);
}

TEST(NormDiff, Int16)
{
    ncheck::check_int_pair(TWO(tavsNormDiff_Inf_16s32f), TWO_SFS(tavsNormDiff_Inf_16s32s_Sfs), 0, true, 5);
    ncheck::check_int_pair(TWO(tavsNormDiff_L1_16s32f), TWO_SFS(tavsNormDiff_L1_16s32s_Sfs), 1, true, 6);
    ncheck::check_int_pair(TWO(tavsNormDiff_L2_16s32f), TWO_SFS(tavsNormDiff_L2_16s32s_Sfs), 2, true, 7);
    ncheck::check_int64(TWO_SFS(tavsNormDiff_L1_16s64s_Sfs), TWO_SFS(tavsNormDiff_L2Sqr_16s64s_Sfs), true, 8);
}

TEST(NormDiff, DocumentedCases)
{
    Tav16s a[1] = {3}, b[1] = {2};
    Tav64s s = 0;
    ASSERT_EQ(tavsNormDiff_L2Sqr_16s64s_Sfs(a, b, 1, &s, -63), StatusOk);
    EXPECT_EQ(s, INT64_MAX); // a sum of 1 saturates
    ASSERT_EQ(tavsNormDiff_L2Sqr_16s64s_Sfs(a, b, 1, &s, -62), StatusOk);
    EXPECT_EQ(s, int64_t(1) << 62);
    // The largest differences: 65535 squared, summed exactly.
    std::vector<Tav16s> hi(1000, 32767), lo(1000, -32768);
    ASSERT_EQ(tavsNormDiff_L2Sqr_16s64s_Sfs(hi.data(), lo.data(), 1000, &s, 0), StatusOk);
    EXPECT_EQ(s, int64_t(65535) * 65535 * 1000);
    Tav32s r = 0;
    ASSERT_EQ(tavsNormDiff_Inf_16s32s_Sfs(lo.data(), hi.data(), 1000, &r, 0), StatusOk);
    EXPECT_EQ(r, 65535);
    ASSERT_EQ(tavsNormDiff_L1_16s32s_Sfs(lo.data(), hi.data(), 1000, &r, 0), StatusOk);
    EXPECT_EQ(r, 65535000);
    ASSERT_EQ(tavsNormDiff_L1_16s32s_Sfs(lo.data(), hi.data(), 1000, &r, -6), StatusOk);
    EXPECT_EQ(r, INT32_MAX);
    // NaN after the first difference is skipped by Inf.
    float x[3] = {1.0f, NAN, 5.0f}, y[3] = {0.0f, 0.0f, 1.0f}, n = 0;
    ASSERT_EQ(tavsNormDiff_Inf_32f(x, y, 3, &n), StatusOk);
    EXPECT_EQ(n, 4.0f);
    double xd[2] = {NAN, 1.0}, yd[2] = {0.0, 0.0}, nd = 0;
    ASSERT_EQ(tavsNormDiff_Inf_64f(xd, yd, 2, &nd), StatusOk);
    EXPECT_TRUE(std::isnan(nd));
    // The difference of the widened elements: exact where float would round.
    float p[1] = {16777216.0f}, q[1] = {-1.0f};
    double l1 = 0;
    Tav32f l1f = 0;
    ASSERT_EQ(tavsNormDiff_L1_32f(p, q, 1, &l1f), StatusOk);
    EXPECT_EQ(l1f, float(16777217.0)); // rounded once at the end
    Tav32fc c1[1] = {{3.0f, 0.0f}}, c2[1] = {{0.0f, -4.0f}};
    ASSERT_EQ(tavsNormDiff_L1_32fc64f(c1, c2, 1, &l1), StatusOk);
    EXPECT_EQ(l1, 5.0);
}

TEST(NormDiffErrors, PointersThenLength)
{
    tt::Guarded<Tav64f> g(1);
    Tav16s s16[2] = {};
    Tav32f f[2] = {};
    Tav64f d[2] = {};
    Tav32fc fc[2] = {};
    Tav64fc dc[2] = {};
    auto of = reinterpret_cast<Tav32f*>(g.data());
    auto oi = reinterpret_cast<Tav32s*>(g.data());
    auto ol = reinterpret_cast<Tav64s*>(g.data());
    auto* o = g.data();
    EXPECT_EQ(tavsNormDiff_Inf_32f(nullptr, f, 0, of), ErrNullPtr);
    EXPECT_EQ(tavsNormDiff_Inf_32f(f, nullptr, 2, of), ErrNullPtr);
    EXPECT_EQ(tavsNormDiff_Inf_32f(f, f, 0, of), ErrSize);
    EXPECT_EQ(tavsNormDiff_Inf_64f(d, d, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsNormDiff_Inf_16s32f(s16, s16, 0, of), ErrSize);
    EXPECT_EQ(tavsNormDiff_Inf_16s32s_Sfs(s16, s16, -1, oi, 0), ErrSize);
    EXPECT_EQ(tavsNormDiff_Inf_32fc32f(fc, nullptr, 2, of), ErrNullPtr);
    EXPECT_EQ(tavsNormDiff_Inf_64fc64f(dc, dc, 0, o), ErrSize);
    EXPECT_EQ(tavsNormDiff_L1_32f(f, f, 0, of), ErrSize);
    EXPECT_EQ(tavsNormDiff_L1_64f(nullptr, d, 2, o), ErrNullPtr);
    EXPECT_EQ(tavsNormDiff_L1_16s32f(s16, s16, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsNormDiff_L1_16s32s_Sfs(s16, s16, 0, oi, 3), ErrSize);
    EXPECT_EQ(tavsNormDiff_L1_16s64s_Sfs(s16, nullptr, 0, ol, 3), ErrNullPtr);
    EXPECT_EQ(tavsNormDiff_L1_32fc64f(fc, fc, 0, o), ErrSize);
    EXPECT_EQ(tavsNormDiff_L1_64fc64f(dc, dc, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsNormDiff_L2_32f(f, f, 0, of), ErrSize);
    EXPECT_EQ(tavsNormDiff_L2_64f(d, d, 0, o), ErrSize);
    EXPECT_EQ(tavsNormDiff_L2_16s32f(nullptr, s16, 2, of), ErrNullPtr);
    EXPECT_EQ(tavsNormDiff_L2_16s32s_Sfs(s16, s16, 0, oi, 0), ErrSize);
    EXPECT_EQ(tavsNormDiff_L2_32fc64f(fc, fc, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsNormDiff_L2_64fc64f(dc, dc, 0, o), ErrSize);
    EXPECT_EQ(tavsNormDiff_L2Sqr_16s64s_Sfs(s16, s16, 0, ol, 0), ErrSize);
    EXPECT_EQ(tavsNormDiff_L2Sqr_16s64s_Sfs(s16, nullptr, 2, ol, 0), ErrNullPtr);
    EXPECT_TRUE(g.untouched());
}

} // namespace
