#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <limits>

#include "convert_check.h"
#include "tavs.h"
#include "test_util.h"

namespace {

template <class S, class D, class Fn> void check_plain(Fn fn)
{
    tt::Rng r(sizeof(S) * 31 + sizeof(D));
    auto pool = tt::random_vector<S>(r, 200);
    auto call = [&](const void* s, void* d, int len) {
        return fn(static_cast<const S*>(s), static_cast<D*>(d), len);
    };
    ct::check_errors<S, D>(call);
    ct::sweep<S, D>(pool, call, [](S v) { return D(v); });
    ct::bulk<S, D>(tt::random_vector<S>(r, 5000), call, [](S v) { return D(v); });
}

TEST(ConvertWiden, ExactWidenings)
{
    check_plain<Tav8s, Tav16s>(tavsConvert_8s16s);
    check_plain<Tav8s, Tav32f>(tavsConvert_8s32f);
    check_plain<Tav8u, Tav32f>(tavsConvert_8u32f);
    check_plain<Tav16s, Tav32f>(tavsConvert_16s32f);
    check_plain<Tav16s, Tav32s>(tavsConvert_16s32s);
    check_plain<Tav16u, Tav32f>(tavsConvert_16u32f);
    check_plain<Tav32s, Tav64f>(tavsConvert_32s64f);
    // Under round to nearest the two rounding members agree with a cast.
    check_plain<Tav32s, Tav32f>(tavsConvert_32s32f);
}

TEST(ConvertWiden, KnownValues)
{
    const Tav8u u8[4] = {0, 1, 128, 255};
    const Tav8s s8[4] = {-128, -1, 0, 127};
    const Tav16s s16[4] = {-32768, -1, 0, 32767};
    const Tav16u u16[4] = {0, 1, 32768, 65535};
    float f[4];
    Tav16s w[4];
    ASSERT_EQ(tavsConvert_8u32f(u8, f, 4), StatusOk);
    EXPECT_EQ(f[2], 128.0f);
    EXPECT_EQ(f[3], 255.0f);
    ASSERT_EQ(tavsConvert_8s32f(s8, f, 4), StatusOk);
    EXPECT_EQ(f[0], -128.0f);
    EXPECT_EQ(f[1], -1.0f);
    ASSERT_EQ(tavsConvert_8s16s(s8, w, 4), StatusOk);
    EXPECT_EQ(w[0], -128);
    EXPECT_EQ(w[3], 127);
    ASSERT_EQ(tavsConvert_16s32f(s16, f, 4), StatusOk);
    EXPECT_EQ(f[0], -32768.0f);
    ASSERT_EQ(tavsConvert_16u32f(u16, f, 4), StatusOk);
    EXPECT_EQ(f[3], 65535.0f);
}

TEST(ConvertWiden, Float32To64)
{
    tt::Rng r(7);
    std::vector<float> pool(300);
    for (auto& x : pool) {
        uint32_t b = uint32_t(r.next());
        std::memcpy(&x, &b, 4);
        if (std::isnan(x)) x = 1.0f; // a NaN compares by payload, which quieting may change
    }
    pool[3] = std::numeric_limits<float>::infinity();
    pool[4] = -0.0f;
    pool[5] = std::numeric_limits<float>::denorm_min();
    auto call = [](const void* s, void* d, int len) {
        return tavsConvert_32f64f(static_cast<const Tav32f*>(s), static_cast<Tav64f*>(d), len);
    };
    ct::check_errors<Tav32f, Tav64f>(call);
    ct::sweep<Tav32f, Tav64f>(pool, call, [](float v) { return double(v); });
}

// The integer-to-float members round by the caller's rounding direction.
TEST(ConvertWiden, RoundingFollowsCaller)
{
    const Tav32s s[8] = {16777217, 16777217, 16777217, 16777217, 16777217, 16777217, 16777217, -16777217};
    float f[8];
    const int old = std::fegetround();
    std::fesetround(FE_UPWARD);
    const Status st = tavsConvert_32s32f(s, f, 8);
    std::fesetround(old);
    ASSERT_EQ(st, StatusOk);
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(f[i], 16777218.0f);
    EXPECT_EQ(f[7], -16777216.0f);
    ASSERT_EQ(tavsConvert_32s32f(s, f, 8), StatusOk);
    EXPECT_EQ(f[0], 16777216.0f);

    const Tav64s big[2] = {(INT64_C(1) << 53) + 1, -((INT64_C(1) << 53) + 1)};
    double d[2];
    std::fesetround(FE_TOWARDZERO);
    Status st2 = tavsConvert_64s64f(big, d, 2);
    std::fesetround(FE_UPWARD);
    double up[2];
    Status st3 = tavsConvert_64s64f(big, up, 2);
    std::fesetround(old);
    ASSERT_EQ(st2, StatusOk);
    ASSERT_EQ(st3, StatusOk);
    EXPECT_EQ(d[0], 9007199254740992.0);
    EXPECT_EQ(d[1], -9007199254740992.0);
    EXPECT_EQ(up[0], 9007199254740994.0);
    EXPECT_EQ(up[1], -9007199254740992.0);
}

TEST(ConvertWiden, Int64ToFloat)
{
    tt::Rng r(11);
    auto pool = tt::random_vector<Tav64s>(r, 200);
    auto call = [](const void* s, void* d, int len) {
        return tavsConvert_64s64f(static_cast<const Tav64s*>(s), static_cast<Tav64f*>(d), len);
    };
    ct::check_errors<Tav64s, Tav64f>(call, true);
    ct::sweep<Tav64s, Tav64f>(pool, call, [](Tav64s v) { return double(v); });
}

// A negative count is read as a huge unsigned one: the call runs on past the
// end of the source and faults there instead of reporting ErrSize.
TEST(ConvertWidenDeathTest, NegativeLengthIsAHugeCount)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            ct::PageEnd<Tav64s> src(2);
            ct::PageEnd<Tav64f> dst(64);
            tavsConvert_64s64f(src.data(), dst.data(), -1);
        },
        "");
}

// ---- integer to float with a scale ---------------------------------------------

template <class S, class F, class Fn> void check_scaled(Fn fn)
{
    tt::Rng r(sizeof(S) * 5 + sizeof(F));
    auto pool = tt::random_vector<S>(r, 200);
    for (int sf : {-200, -130, -128, -127, -40, -17,  -1,   0,    1,    3,       15,     31,
                   126,  127,  149,  150,  151, 1022, 1074, 1075, 1100, INT_MAX, INT_MIN}) {
        const F factor = std::ldexp(F(1), sf == INT_MIN ? 100000 : (sf == INT_MAX ? -100000 : -sf));
        auto call = [&](const void* s, void* d, int len) {
            return fn(static_cast<const S*>(s), static_cast<F*>(d), len, sf);
        };
        auto ref = [&](S v) { return F(F(v) * factor); };
        ct::check_errors<S, F>(call);
        ct::sweep<S, F>(pool, call, ref, sf == 0 || sf == 3 ? 70 : 20);
        ct::bulk<S, F>(tt::random_vector<S>(r, 1000), call, ref);
    }
}

TEST(ConvertWiden, ScaledToFloat)
{
    check_scaled<Tav16s, Tav32f>(tavsConvert_16s32f_Sfs);
    check_scaled<Tav16s, Tav64f>(tavsConvert_16s64f_Sfs);
    check_scaled<Tav32s, Tav32f>(tavsConvert_32s32f_Sfs);
    check_scaled<Tav32s, Tav64f>(tavsConvert_32s64f_Sfs);
}

TEST(ConvertWiden, InPlace)
{
    tt::Rng r(1);
    const auto p32 = tt::random_vector<Tav32s>(r, 70);
    ct::in_place<Tav32s, Tav32f>(p32, [](const void* s, void* d, int len) {
        return tavsConvert_32s32f(static_cast<const Tav32s*>(s), static_cast<Tav32f*>(d), len);
    });
    ct::in_place<Tav32s, Tav32f>(p32, [](const void* s, void* d, int len) {
        return tavsConvert_32s32f_Sfs(static_cast<const Tav32s*>(s), static_cast<Tav32f*>(d), len, 7);
    });
    ct::in_place<Tav64s, Tav64f>(tt::random_vector<Tav64s>(r, 70), [](const void* s, void* d, int len) {
        return tavsConvert_64s64f(static_cast<const Tav64s*>(s), static_cast<Tav64f*>(d), len);
    });
}

TEST(ConvertWiden, ScaledKnownValues)
{
    const Tav16s s[3] = {3, -3, 0};
    float f[3];
    ASSERT_EQ(tavsConvert_16s32f_Sfs(s, f, 3, 1), StatusOk);
    EXPECT_EQ(f[0], 1.5f);
    EXPECT_EQ(f[1], -1.5f);
    ASSERT_EQ(tavsConvert_16s32f_Sfs(s, f, 3, -2), StatusOk);
    EXPECT_EQ(f[0], 12.0f);
    // 2^-149 is the last factor that is not zero.
    ASSERT_EQ(tavsConvert_16s32f_Sfs(s, f, 3, 149), StatusOk);
    EXPECT_EQ(f[0], 3 * std::numeric_limits<float>::denorm_min());
    ASSERT_EQ(tavsConvert_16s32f_Sfs(s, f, 3, 150), StatusOk);
    EXPECT_EQ(f[0], 0.0f);
    EXPECT_TRUE(std::signbit(f[1]));
    // The factor overflows to infinity past 2^127.
    ASSERT_EQ(tavsConvert_16s32f_Sfs(s, f, 3, -128), StatusOk);
    EXPECT_EQ(f[0], std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(f[2]));
    double d[3];
    const Tav32s big[1] = {INT32_MIN};
    ASSERT_EQ(tavsConvert_32s64f_Sfs(big, d, 1, 31), StatusOk);
    EXPECT_EQ(d[0], -1.0);
}

// Halving in 32f under an upward rounding direction stops at the smallest
// subnormal instead of reaching zero: the factor is built by the float steps.
TEST(ConvertWiden, FactorFollowsCallerRounding)
{
    const Tav16s s[1] = {1};
    float f[1];
    const int old = std::fegetround();
    std::fesetround(FE_UPWARD);
    const Status st = tavsConvert_16s32f_Sfs(s, f, 1, 400);
    std::fesetround(old);
    ASSERT_EQ(st, StatusOk);
    EXPECT_EQ(f[0], std::numeric_limits<float>::denorm_min());
}

} // namespace
