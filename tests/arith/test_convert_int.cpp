#include <gtest/gtest.h>

#include <climits>

#include "convert_check.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using ct::clamp128;
using ct::ref_scale;

// Random elements plus values on and beside the ties of the shift s.
template <class T> std::vector<T> narrow_pool(tt::Rng& r, size_t n, int s)
{
    auto v = tt::random_vector<T>(r, n);
    if (s >= 1 && s < int(8 * sizeof(T)) - 1) {
        for (size_t i = 0; i < n; i += 3) {
            const int64_t q = r.range(-5, 5);
            const int64_t tie = q * (INT64_C(1) << s) + (INT64_C(1) << (s - 1)) + r.range(-1, 1);
            v[i] = T(clamp128(tie, int64_t(std::numeric_limits<T>::min()),
                              int64_t(std::numeric_limits<T>::max())));
        }
    }
    return v;
}

TEST(ConvertInt, Saturate32sTo16s)
{
    tt::Rng r(3216);
    auto pool = tt::random_vector<Tav32s>(r, 200);
    auto call = [](const void* s, void* d, int len) {
        return tavsConvert_32s16s(static_cast<const Tav32s*>(s), static_cast<Tav16s*>(d), len);
    };
    auto ref = [](Tav32s v) { return Tav16s(v > 32767 ? 32767 : (v < -32768 ? -32768 : v)); };
    ct::check_errors<Tav32s, Tav16s>(call);
    ct::sweep<Tav32s, Tav16s>(pool, call, ref);
    ct::bulk<Tav32s, Tav16s>(tt::random_vector<Tav32s>(r, 3000), call, ref);
}

TEST(ConvertInt, Scaled32sTo16s)
{
    tt::Rng r(1632);
    for (int sf = -40; sf <= 70; ++sf) {
        auto call = [&](const void* s, void* d, int len) {
            return tavsConvert_32s16s_Sfs(static_cast<const Tav32s*>(s), static_cast<Tav16s*>(d), len, sf);
        };
        auto ref = [&](Tav32s v) { return Tav16s(ref_scale(v, sf, 15, 31, 1, -32768, 32767)); };
        if (sf == -40) ct::check_errors<Tav32s, Tav16s>(call);
        ct::bulk<Tav32s, Tav16s>(narrow_pool<Tav32s>(r, 400, sf), call, ref);
    }
    // The right count stops at 31: the extremes still round to +-1.
    const Tav32s src[4] = {INT32_MIN, INT32_MAX, 1 << 30, (1 << 30) + 1};
    Tav16s d[4];
    for (int sf : {31, 32, 70, INT_MAX}) {
        ASSERT_EQ(tavsConvert_32s16s_Sfs(src, d, 4, sf), StatusOk);
        EXPECT_EQ(d[0], -1);
        EXPECT_EQ(d[1], 1);
        EXPECT_EQ(d[2], 0); // one half, ties to the even 0
        EXPECT_EQ(d[3], 1);
    }
    // A left scale saturates by sign; INT_MIN is a legal factor.
    const Tav32s small[4] = {1, -1, 0, -2};
    ASSERT_EQ(tavsConvert_32s16s_Sfs(small, d, 4, INT_MIN), StatusOk);
    EXPECT_EQ(d[0], 32767);
    EXPECT_EQ(d[1], -32768);
    EXPECT_EQ(d[2], 0);
    EXPECT_EQ(d[3], -32768);
    // The documented examples of the scale rule.
    const Tav32s ex[4] = {5, 7, -5, -7};
    ASSERT_EQ(tavsConvert_32s16s_Sfs(ex, d, 4, 1), StatusOk);
    EXPECT_EQ(d[0], 2);
    EXPECT_EQ(d[1], 4);
    EXPECT_EQ(d[2], -2);
    EXPECT_EQ(d[3], -4);
    // Scale 0 saturates but does not round.
    const Tav32s sat[2] = {40000, -40000};
    ASSERT_EQ(tavsConvert_32s16s_Sfs(sat, d, 2, 0), StatusOk);
    EXPECT_EQ(d[0], 32767);
    EXPECT_EQ(d[1], -32768);
}

TEST(ConvertInt, Scaled64sTo32s)
{
    tt::Rng r(6432);
    for (int mode : {0, 1, 2, 5, -3}) {
        for (int sf = -40; sf <= 70; ++sf) {
            auto call = [&](const void* s, void* d, int len) {
                return tavsConvert_64s32s_Sfs(static_cast<const Tav64s*>(s), static_cast<Tav32s*>(d), len,
                                              mode, sf);
            };
            auto ref = [&](Tav64s v) { return Tav32s(ref_scale(v, sf, 31, 63, mode, INT32_MIN, INT32_MAX)); };
            if (sf == 1) ct::check_errors<Tav64s, Tav32s>(call);
            ct::bulk<Tav64s, Tav32s>(narrow_pool<Tav64s>(r, 300, sf), call, ref);
        }
    }
    // Right counts stop at 63, so INT64_MIN keeps giving -1 in the even mode.
    const Tav64s src[3] = {INT64_MIN, INT64_MAX, -3};
    Tav32s d[3];
    ASSERT_EQ(tavsConvert_64s32s_Sfs(src, d, 3, RoundHalfEven, 100), StatusOk);
    EXPECT_EQ(d[0], -1);
    EXPECT_EQ(d[1], 1);
    EXPECT_EQ(d[2], 0);
    ASSERT_EQ(tavsConvert_64s32s_Sfs(src, d, 3, RoundTowardZero, 1), StatusOk);
    EXPECT_EQ(d[2], -1); // -1.5 toward zero
    ASSERT_EQ(tavsConvert_64s32s_Sfs(src, d, 3, RoundHalfAway, 1), StatusOk);
    EXPECT_EQ(d[2], -2);
    ASSERT_EQ(tavsConvert_64s32s_Sfs(src, d, 3, RoundHalfEven, 1), StatusOk);
    EXPECT_EQ(d[2], -2);
    ASSERT_EQ(tavsConvert_64s32s_Sfs(src, d, 3, 9, INT_MIN), StatusOk);
    EXPECT_EQ(d[0], INT32_MIN);
    EXPECT_EQ(d[1], INT32_MAX);
    EXPECT_EQ(d[2], INT32_MIN);
}

// 16s to 8s by the exact value: no count clamps are visible in its range,
// and from scale 18 the destination is all zeros.
TEST(ConvertInt, Scaled16sTo8s)
{
    tt::Rng r(168);
    for (int mode : {0, 1, 2, 3}) {
        for (int sf = -40; sf <= 70; ++sf) {
            auto call = [&](const void* s, void* d, int len) {
                return tavsConvert_16s8s_Sfs(static_cast<const Tav16s*>(s), static_cast<Tav8s*>(d), len, mode,
                                             sf);
            };
            auto ref = [&](Tav16s v) {
                if (sf >= 18) return Tav8s(0);
                return Tav8s(ref_scale(v, sf, 64, 64, mode, -128, 127));
            };
            if (sf == 0 || sf == 20 || sf == -10) ct::check_errors<Tav16s, Tav8s>(call, true);
            ct::bulk<Tav16s, Tav8s>(narrow_pool<Tav16s>(r, 300, sf), call, ref);
        }
    }
    const Tav16s src[5] = {-1, 1, 0, -32768, 300};
    Tav8s d[5];
    // Below -6 every non-zero element saturates by its sign.
    ASSERT_EQ(tavsConvert_16s8s_Sfs(src, d, 5, RoundHalfEven, -7), StatusOk);
    EXPECT_EQ(d[0], -128);
    EXPECT_EQ(d[1], 127);
    EXPECT_EQ(d[2], 0);
    EXPECT_EQ(d[3], -128);
    ASSERT_EQ(tavsConvert_16s8s_Sfs(src, d, 5, RoundHalfEven, -6), StatusOk);
    EXPECT_EQ(d[0], -64);
    EXPECT_EQ(d[1], 64);
    // Scale 0 only saturates.
    ASSERT_EQ(tavsConvert_16s8s_Sfs(src, d, 5, RoundHalfAway, 0), StatusOk);
    EXPECT_EQ(d[3], -128);
    EXPECT_EQ(d[4], 127);
    // -32768 / 2^16 is minus one half: even gives 0, away -1, 17 gives 0.
    ASSERT_EQ(tavsConvert_16s8s_Sfs(src, d, 5, RoundHalfEven, 16), StatusOk);
    EXPECT_EQ(d[3], 0);
    ASSERT_EQ(tavsConvert_16s8s_Sfs(src, d, 5, RoundHalfAway, 16), StatusOk);
    EXPECT_EQ(d[3], -1);
    ASSERT_EQ(tavsConvert_16s8s_Sfs(src, d, 5, RoundHalfAway, 17), StatusOk);
    EXPECT_EQ(d[3], 0);
    // Zeros from 18 on, for any element, any mode.
    Tav16s full[64];
    for (int i = 0; i < 64; ++i)
        full[i] = Tav16s(i * 1000 - 32000);
    tt::Guarded<Tav8s> g(64);
    ASSERT_EQ(tavsConvert_16s8s_Sfs(full, g.data(), 64, 2, 18), StatusOk);
    for (int i = 0; i < 64; ++i)
        EXPECT_EQ(g.data()[i], 0);
    EXPECT_TRUE(g.borders_intact());
}

TEST(ConvertIntDeathTest, NegativeLengthIsAHugeCount)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            ct::PageEnd<Tav16s> src(3);
            ct::PageEnd<Tav8s> dst(64);
            tavsConvert_16s8s_Sfs(src.data(), dst.data(), -2, RoundHalfEven, 1);
        },
        "");
}

} // namespace
