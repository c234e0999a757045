#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "norm_check.h"
#include "tavs.h"
#include "test_util.h"

namespace {

// Adapters to the shared checks: the second vector is ignored.
#define ONE(F) [](auto a, auto, int n, auto out) { return F(a, n, out); }
#define ONE_SFS(F) [](auto a, auto, int n, auto out, int sf) { return F(a, n, out, sf); }

TEST(Norm, RealFloat)
{
    ncheck::check_real<Tav32f, Tav32f>(ONE(tavsNorm_Inf_32f), ONE(tavsNorm_L1_32f), ONE(tavsNorm_L2_32f), false, 1);
    ncheck::check_real<Tav64f, Tav64f>(ONE(tavsNorm_Inf_64f), ONE(tavsNorm_L1_64f), ONE(tavsNorm_L2_64f), false, 2);
}

TEST(Norm, ComplexFloat)
{
    ncheck::check_complex<Tav32fc, Tav32f>(ONE(tavsNorm_Inf_32fc32f), ONE(tavsNorm_L1_32fc64f), ONE(tavsNorm_L2_32fc64f),
                                           false, 3);
    ncheck::check_complex<Tav64fc, Tav64f>(ONE(tavsNorm_Inf_64fc64f), ONE(tavsNorm_L1_64fc64f), ONE(tavsNorm_L2_64fc64f),
                                           false, 4);
}

TEST(Norm, Int16)
{
    ncheck::check_int_pair(ONE(tavsNorm_Inf_16s32f), ONE_SFS(tavsNorm_Inf_16s32s_Sfs), 0, false, 5);
    ncheck::check_int_pair(ONE(tavsNorm_L1_16s32f), ONE_SFS(tavsNorm_L1_16s32s_Sfs), 1, false, 6);
    ncheck::check_int_pair(ONE(tavsNorm_L2_16s32f), ONE_SFS(tavsNorm_L2_16s32s_Sfs), 2, false, 7);
    ncheck::check_int64(ONE_SFS(tavsNorm_L1_16s64s_Sfs), ONE_SFS(tavsNorm_L2Sqr_16s64s_Sfs), false, 8);
}

TEST(Norm, DocumentedCases)
{
    Tav16s one[1] = {1};
    Tav64s s = 0;
    ASSERT_EQ(tavsNorm_L2Sqr_16s64s_Sfs(one, 1, &s, -63), StatusOk);
    EXPECT_EQ(s, INT64_MAX);
    ASSERT_EQ(tavsNorm_L2Sqr_16s64s_Sfs(one, 1, &s, -62), StatusOk);
    EXPECT_EQ(s, int64_t(1) << 62);
    ASSERT_EQ(tavsNorm_L2Sqr_16s64s_Sfs(one, 1, &s, INT32_MIN), StatusOk);
    EXPECT_EQ(s, INT64_MAX);
    Tav16s three[2] = {1, -1}; // sum 2
    ASSERT_EQ(tavsNorm_L2Sqr_16s64s_Sfs(three, 2, &s, 1), StatusOk);
    EXPECT_EQ(s, 1);
    ASSERT_EQ(tavsNorm_L2Sqr_16s64s_Sfs(three, 2, &s, 2), StatusOk);
    EXPECT_EQ(s, 0); // shifted without rounding
    ASSERT_EQ(tavsNorm_L2Sqr_16s64s_Sfs(three, 2, &s, 65), StatusOk);
    EXPECT_EQ(s, 1); // the count wraps mod 64
    Tav16s zero[3] = {0, 0, 0};
    ASSERT_EQ(tavsNorm_L2Sqr_16s64s_Sfs(zero, 3, &s, -63), StatusOk);
    EXPECT_EQ(s, 0);
    float f[4] = {1.0f, NAN, -3.0f, 2.0f}, n = 0;
    ASSERT_EQ(tavsNorm_Inf_32f(f, 4, &n), StatusOk);
    EXPECT_EQ(n, 3.0f);
    float g[3] = {NAN, -7.0f, 2.0f};
    ASSERT_EQ(tavsNorm_Inf_32f(g, 3, &n), StatusOk);
    EXPECT_TRUE(std::isnan(n));
    // L2 of 16-bit data: the count mod 32 makes 1 << 31 negative.
    Tav16s v[2] = {3, 4};
    Tav32s r = 0;
    ASSERT_EQ(tavsNorm_L2_16s32s_Sfs(v, 2, &r, 0), StatusOk);
    EXPECT_EQ(r, 5);
    ASSERT_EQ(tavsNorm_L2_16s32s_Sfs(v, 2, &r, 1), StatusOk);
    EXPECT_EQ(r, 2); // 2.5 truncated
    ASSERT_EQ(tavsNorm_L2_16s32s_Sfs(v, 2, &r, -30), StatusOk);
    EXPECT_EQ(r, INT32_MAX);
    ASSERT_EQ(tavsNorm_L2_16s32s_Sfs(v, 2, &r, -31), StatusOk);
    EXPECT_EQ(r, INT32_MIN); // times -2^31
    ASSERT_EQ(tavsNorm_L2_16s32s_Sfs(v, 2, &r, 32), StatusOk);
    EXPECT_EQ(r, 5); // divided by 1 << 0
    ASSERT_EQ(tavsNorm_L2_16s32s_Sfs(v, 2, &r, 31), StatusOk);
    EXPECT_EQ(r, 0);
    Tav16s m[2] = {-32768, 5};
    ASSERT_EQ(tavsNorm_Inf_16s32s_Sfs(m, 2, &r, 0), StatusOk);
    EXPECT_EQ(r, 32768);
    ASSERT_EQ(tavsNorm_Inf_16s32s_Sfs(m, 2, &r, 1), StatusOk);
    EXPECT_EQ(r, 16384);
    Tav32f fr = 0;
    ASSERT_EQ(tavsNorm_Inf_16s32f(m, 2, &fr), StatusOk);
    EXPECT_EQ(fr, 32768.0f);
}

TEST(NormErrors, PointersThenLength)
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
    EXPECT_EQ(tavsNorm_Inf_32f(nullptr, 0, of), ErrNullPtr);
    EXPECT_EQ(tavsNorm_Inf_32f(f, 0, of), ErrSize);
    EXPECT_EQ(tavsNorm_Inf_64f(d, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsNorm_Inf_16s32f(s16, 0, of), ErrSize);
    EXPECT_EQ(tavsNorm_Inf_16s32s_Sfs(s16, -1, oi, 0), ErrSize);
    EXPECT_EQ(tavsNorm_Inf_32fc32f(nullptr, 2, of), ErrNullPtr);
    EXPECT_EQ(tavsNorm_Inf_64fc64f(dc, 0, o), ErrSize);
    EXPECT_EQ(tavsNorm_L1_32f(f, 0, of), ErrSize);
    EXPECT_EQ(tavsNorm_L1_64f(nullptr, 2, o), ErrNullPtr);
    EXPECT_EQ(tavsNorm_L1_16s32f(s16, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsNorm_L1_16s32s_Sfs(s16, 0, oi, 3), ErrSize);
    EXPECT_EQ(tavsNorm_L1_16s64s_Sfs(nullptr, 0, ol, 3), ErrNullPtr);
    EXPECT_EQ(tavsNorm_L1_32fc64f(fc, 0, o), ErrSize);
    EXPECT_EQ(tavsNorm_L1_64fc64f(dc, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsNorm_L2_32f(f, 0, of), ErrSize);
    EXPECT_EQ(tavsNorm_L2_64f(d, 0, o), ErrSize);
    EXPECT_EQ(tavsNorm_L2_16s32f(nullptr, 2, of), ErrNullPtr);
    EXPECT_EQ(tavsNorm_L2_16s32s_Sfs(s16, 0, oi, 0), ErrSize);
    EXPECT_EQ(tavsNorm_L2_32fc64f(fc, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsNorm_L2_64fc64f(dc, 0, o), ErrSize);
    EXPECT_EQ(tavsNorm_L2Sqr_16s64s_Sfs(s16, 0, ol, 0), ErrSize);
    EXPECT_EQ(tavsNorm_L2Sqr_16s64s_Sfs(nullptr, 2, ol, 0), ErrNullPtr);
    EXPECT_TRUE(g.untouched());
}

} // namespace
