// The fixed-point rules, exhaustively over small ranges and against plain
// references (exact rational arithmetic in 128 bits) over random 64-bit values.
#include <gtest/gtest.h>

#include "internal/fixed.h"
#include "test_util.h"

using namespace tavs;

namespace {

// Reference: nearest integer to e / 2^s, ties to even, in 128-bit arithmetic.
int64_t ref_rne(int64_t e, int s)
{
    if (s >= 64) return 0;
    __int128 d = __int128(1) << s;
    __int128 q = e / d, r = e % d; // truncating division
    if (r < 0) { q -= 1; r += d; } // floor
    __int128 twice = 2 * r;
    if (twice > d || (twice == d && (q & 1))) q += 1;
    return int64_t(q);
}

// The documented formula, valid where e + 2^(s-1) does not overflow.
int64_t formula_rne(int64_t e, int s) { return (e + (int64_t(1) << (s - 1)) - 1 + ((e >> s) & 1)) >> s; }

TEST(Fixed, RshiftDocumentedExamples)
{
    EXPECT_EQ(rshift_rne(5, 1), 2);
    EXPECT_EQ(rshift_rne(7, 1), 4);
    EXPECT_EQ(rshift_rne(-5, 1), -2);
    EXPECT_EQ(rshift_rne(-7, 1), -4);
    EXPECT_EQ(rshift_rne(3, 1), 2);
    EXPECT_EQ(rshift_rne(-1, 1), 0);
    EXPECT_EQ(rshift_rne(-3, 1), -2);
    EXPECT_EQ(rshift_rne(-65536, 17), 0); // -0.5 goes to even
}

TEST(Fixed, RshiftExhaustiveSmall)
{
    for (int s = 1; s <= 20; ++s)
        for (int64_t e = -70000; e <= 70000; ++e) {
            ASSERT_EQ(rshift_rne(e, s), formula_rne(e, s)) << e << " " << s;
            ASSERT_EQ(rshift_rne(e, s), ref_rne(e, s)) << e << " " << s;
        }
}

TEST(Fixed, RshiftRandom64)
{
    tt::Rng r(1);
    for (int i = 0; i < 400000; ++i) {
        int64_t e = int64_t(r.next());
        if (i % 4 == 0) e >>= r.range(0, 62);
        int s = int(r.range(1, 70));
        ASSERT_EQ(rshift_rne(e, s), ref_rne(e, s)) << e << " " << s;
    }
    for (int s = 1; s <= 70; ++s) {
        EXPECT_EQ(rshift_rne(INT64_MAX, s), ref_rne(INT64_MAX, s));
        EXPECT_EQ(rshift_rne(INT64_MIN, s), ref_rne(INT64_MIN, s));
    }
}

TEST(Fixed, LshiftSaturates)
{
    tt::Rng r(2);
    for (int i = 0; i < 400000; ++i) {
        int64_t e = int64_t(r.next()) >> r.range(0, 63);
        int n = int(r.range(0, 70));
        __int128 exact = __int128(e) * (__int128(1) << std::min(n, 100));
        if (n >= 64 && e != 0) exact = e > 0 ? __int128(INT64_MAX) + 1 : __int128(INT64_MIN) - 1;
        int64_t want = exact > INT64_MAX ? INT64_MAX : exact < INT64_MIN ? INT64_MIN : int64_t(exact);
        ASSERT_EQ(lshift_sat64(e, n), want) << e << " " << n;
    }
}

TEST(Fixed, SaturationLimits)
{
    for (int64_t v = -70000; v <= 70000; ++v) {
        ASSERT_EQ(sat<Tav8u>(v), v < 0 ? 0 : v > 255 ? 255 : v);
        ASSERT_EQ(sat<Tav8s>(v), v < -128 ? -128 : v > 127 ? 127 : v);
        ASSERT_EQ(sat<Tav16u>(v), v < 0 ? 0 : v > 65535 ? 65535 : v);
        ASSERT_EQ(sat<Tav16s>(v), v < -32768 ? -32768 : v > 32767 ? 32767 : v);
    }
    EXPECT_EQ(sat<Tav32s>(int64_t(1) << 40), INT32_MAX);
    EXPECT_EQ(sat<Tav32s>(-(int64_t(1) << 40)), INT32_MIN);
    EXPECT_EQ(sat<Tav32u>(-1), 0u);
    EXPECT_EQ(sat<Tav32u>(int64_t(1) << 33), 4294967295u);
    EXPECT_EQ(clamp_to<Int24u>(1 << 25), 16777215);
    EXPECT_EQ(clamp_to<Int24s>(-(1 << 25)), -8388608);
    EXPECT_EQ(sat_add64(INT64_MAX, 1), INT64_MAX);
    EXPECT_EQ(sat_add64(INT64_MIN, -1), INT64_MIN);
    EXPECT_EQ(sat_sub64(INT64_MIN, 1), INT64_MIN);
    EXPECT_EQ(sat_sub64(INT64_MAX, -1), INT64_MAX);
    EXPECT_EQ(sat_sub64(5, 7), -2);
}

TEST(Fixed, SignOnly)
{
    EXPECT_EQ(sign_sat<Tav16s>(5), 32767);
    EXPECT_EQ(sign_sat<Tav16s>(-5), -32768);
    EXPECT_EQ(sign_sat<Tav16s>(0), 0);
    EXPECT_EQ(sign_sat<Tav8u>(-5), 255); // unsigned: any non-zero value gives the maximum
    EXPECT_EQ(sign_sat<Tav8u>(0), 0);
    EXPECT_EQ(sign_sat<Tav64s>(-1), INT64_MIN);
}

TEST(Fixed, ScalePaths)
{
    const ScaleLimits add16s{17, -16};
    EXPECT_EQ(scale_path(17, add16s), ScalePath::Zero);
    EXPECT_EQ(scale_path(16, add16s), ScalePath::Shift);
    EXPECT_EQ(scale_path(-15, add16s), ScalePath::Shift);
    EXPECT_EQ(scale_path(-16, add16s), ScalePath::SignOnly);
    EXPECT_EQ(scale_path(INT32_MIN, add16s), ScalePath::SignOnly);
    EXPECT_EQ(scale_path(INT32_MAX, add16s), ScalePath::Zero);
}

TEST(Fixed, SumAndProductScaling)
{
    // Sums shift the exact value; products saturate before a left shift.
    EXPECT_EQ(scale_sum<Tav16s>(3, 1), 2);
    EXPECT_EQ(scale_sum<Tav16s>(5, 1), 2);
    EXPECT_EQ(scale_sum<Tav16s>(-1, 1), 0);
    EXPECT_EQ(scale_sum<Tav16s>(-3, 1), -2);
    EXPECT_EQ(scale_sum<Tav16s>(40000, 0), 32767);
    EXPECT_EQ(scale_sum<Tav16s>(1, -15), 32767);
    EXPECT_EQ(scale_sum<Tav16s>(-1, -15), -32768);
    EXPECT_EQ(scale_sum<Tav16s>(1, -14), 16384);
    EXPECT_EQ(scale_product<Tav16s>(100000, -1), 32767);
    EXPECT_EQ(scale_product<Tav16s>(-100000, -1), -32768);
    EXPECT_EQ(scale_product<Tav16s>(100, -2), 400);
    tt::Rng r(3);
    for (int i = 0; i < 200000; ++i) {
        int64_t e = r.range(-(int64_t(1) << 40), int64_t(1) << 40);
        int s = int(r.range(-20, 45));
        int64_t ref;
        if (s > 0) ref = ref_rne(e, s);
        else ref = int64_t(std::max<__int128>(INT64_MIN, std::min<__int128>(INT64_MAX, __int128(e) << -s)));
        ASSERT_EQ(scale_sum<Tav32s>(e, s), sat<Tav32s>(ref));
    }
}

TEST(Fixed, RoundingModes)
{
    EXPECT_EQ(round_toward_zero(2.7), 2);
    EXPECT_EQ(round_toward_zero(-2.7), -2);
    EXPECT_EQ(round_half_even(2.5), 2);
    EXPECT_EQ(round_half_even(3.5), 4);
    EXPECT_EQ(round_half_even(-2.5), -2);
    EXPECT_EQ(round_half_away(2.5), 3);
    EXPECT_EQ(round_half_away(-2.5), -3);
    EXPECT_EQ(round_half_away(2.4999), 2);
    EXPECT_EQ(round_half_away(-0.5), -1);
    EXPECT_EQ(round_mode(2.5, 7), 3); // any value other than 0 and 1 rounds half away
    EXPECT_EQ(round_mode(2.5, 0), 2);
    EXPECT_EQ(round_mode(2.5, 1), 2);
    tt::Rng r(4);
    for (int i = 0; i < 200000; ++i) {
        double x = r.uniform(-1e6, 1e6);
        if (i % 3 == 0) x = std::round(x * 2) / 2; // many ties
        double a = std::fabs(x), f = std::floor(a);
        int64_t away = int64_t(a - f >= 0.5 ? f + 1 : f);
        ASSERT_EQ(round_half_away(x), x < 0 ? -away : away) << x;
        ASSERT_EQ(round_toward_zero(x), int64_t(std::trunc(x)));
        ASSERT_EQ(round_half_even(x), int64_t(std::nearbyint(x)));
    }
}

TEST(Fixed, WrappingHelpers)
{
    EXPECT_EQ(wrap_add32(INT32_MAX, 1), INT32_MIN);
    EXPECT_EQ(wrap_neg32(INT32_MIN), INT32_MIN);
    EXPECT_EQ(wrap_mul32(65536, 65536), 0);
    EXPECT_EQ(wrap_add64(INT64_MAX, 1), INT64_MIN);
    EXPECT_EQ(wrap_shl64(1, 63), INT64_MIN);
    EXPECT_EQ(wrap_sub64(INT64_MIN, 1), INT64_MAX);
}

} // namespace
