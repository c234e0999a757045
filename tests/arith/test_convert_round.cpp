#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "convert_check.h"
#include "tavs.h"
#include "test_util.h"

namespace {

constexpr int kModes[] = {0, 1, 2, 7, -1};

// Reference rounding of a value inside the destination range: truncation,
// nearest-even (the test runs under round to nearest), half away.
double ref_round(double v, int mode)
{
    if (mode == 0) return std::trunc(v);
    if (mode == 1) return std::nearbyint(v);
    return std::round(v);
}

double clampd(double v, double lo, double hi) { return v < lo ? lo : (v > hi ? hi : v); }

// 32f sources: product in 32f (none at scale 0), limit, round.
template <class D> D ref_f32(float x, int mode, int sf)
{
    const float p = sf == 0 ? x : x * std::ldexp(1.0f, -sf);
    return D(ref_round(
        clampd(p, double(std::numeric_limits<D>::min()), double(std::numeric_limits<D>::max())), mode));
}

template <class D, class Fn> void check_f32(Fn fn, float range)
{
    tt::Rng r{uint64_t(range)};
    const auto pool = ct::float_pool(r, 300, range);
    for (int mode : kModes) {
        for (int sf = -40; sf <= 40; ++sf) {
            auto call = [&](const void* s, void* d, int len) {
                return fn(static_cast<const Tav32f*>(s), static_cast<D*>(d), len, mode, sf);
            };
            auto ref = [&](float x) { return ref_f32<D>(x, mode, sf); };
            if (sf == 0 || sf == 3) {
                ct::check_errors<Tav32f, D>(call);
                ct::sweep<Tav32f, D>(pool, call, ref);
            }
            ct::bulk<Tav32f, D>(ct::float_pool(r, 300, range), call, ref);
        }
    }
}

TEST(ConvertRound, Float32ToSmallIntegers)
{
    check_f32<Tav8s>(tavsConvert_32f8s_Sfs, 128.0f);
    check_f32<Tav8u>(tavsConvert_32f8u_Sfs, 256.0f);
    check_f32<Tav16s>(tavsConvert_32f16s_Sfs, 32768.0f);
    check_f32<Tav16u>(tavsConvert_32f16u_Sfs, 65536.0f);
}

// Values at the edges of the vector path's limiting: infinities, the largest
// floats, the powers of two where the high half of a lane changes, values
// just either side of every destination limit and of half, zeros and
// subnormals. Every length and offset, the three modes, a few scales, and every
// rounding direction (the reference rounds in the same direction).
std::vector<float> edge_pool()
{
    const float inf = std::numeric_limits<float>::infinity(), big = std::numeric_limits<float>::max();
    std::vector<float> v;
    for (float m : {inf, big, 2147483648.0f, 2147483520.0f, 1e10f, 0.0f, 1e-45f, 1.1754942e-38f, 0.5f,
                    0.49999997f, 1.5f, 2.5f}) {
        v.push_back(m);
        v.push_back(-m);
    }
    for (float lim :
         {127.0f, 128.0f, 255.0f, 256.0f, 32767.0f, 32768.0f, 65535.0f, 65536.0f, 66048.0f, 33024.0f}) {
        for (float d : {-1.0f, -0.75f, -0.5f, -0.25f, 0.0f, 0.25f, 0.5f, 0.75f, 1.0f}) {
            v.push_back(lim + d);
            v.push_back(-(lim + d));
        }
        v.push_back(std::nextafter(lim, 0.0f));
        v.push_back(std::nextafter(lim, 2.0f * lim));
        v.push_back(-std::nextafter(lim, 0.0f));
        v.push_back(-std::nextafter(lim, 2.0f * lim));
    }
    // Each positive bit pattern from 0x4700FFFF to 0x4781FFFF in steps of
    // 0x8000 crosses a high half the limiting treats differently.
    for (uint32_t b = 0x4700FFFFu; b <= 0x4781FFFFu; b += 0x8000u) {
        float f;
        std::memcpy(&f, &b, 4);
        v.push_back(f);
        v.push_back(-f);
    }
    return v;
}

template <class D, class Fn> void check_f32_edges(Fn fn)
{
    const auto pool = edge_pool();
    const int old = std::fegetround();
    for (int dir : {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        for (int mode : {0, 1, 2}) {
            for (int sf : {0, 1, -1}) {
                auto call = [&](const void* s, void* d, int len) {
                    std::fesetround(dir);
                    const Status st = fn(static_cast<const Tav32f*>(s), static_cast<D*>(d), len, mode, sf);
                    std::fesetround(old);
                    return st;
                };
                auto ref = [&](float x) {
                    std::fesetround(dir);
                    const D r = ref_f32<D>(x, mode, sf);
                    std::fesetround(old);
                    return r;
                };
                // Three windows of the pool through every length and offset,
                // then all of it through the vector path and, at an odd
                // destination address, through the scalar path.
                for (size_t w = 0; w < 3; ++w) {
                    const size_t start = w * (pool.size() - 86) / 2;
                    ct::sweep<Tav32f, D>(
                        {pool.begin() + ptrdiff_t(start), pool.begin() + ptrdiff_t(start + 86)}, call, ref);
                }
                ct::bulk<Tav32f, D>(pool, call, ref);
                std::vector<unsigned char> odd((pool.size() + 1) * sizeof(D));
                ASSERT_EQ(call(pool.data(), odd.data() + 1, int(pool.size())), StatusOk);
                for (size_t i = 0; i < pool.size(); ++i) {
                    const D want = ref(pool[i]);
                    ASSERT_EQ(std::memcmp(&want, odd.data() + 1 + i * sizeof(D), sizeof(D)), 0)
                        << "element " << i << " mode " << mode << " sf " << sf;
                }
            }
        }
    }
}

TEST(ConvertRound, Float32ToSmallIntegersEdges)
{
    check_f32_edges<Tav8s>(tavsConvert_32f8s_Sfs);
    check_f32_edges<Tav8u>(tavsConvert_32f8u_Sfs);
    check_f32_edges<Tav16s>(tavsConvert_32f16s_Sfs);
    check_f32_edges<Tav16u>(tavsConvert_32f16u_Sfs);
}

TEST(ConvertRound, DocumentedValues16s)
{
    const float src[5] = {40000.0f, 0.5f, 1.5f, -0.5f, 2.5f};
    Tav16s d[5];
    ASSERT_EQ(tavsConvert_32f16s_Sfs(src, d, 5, RoundHalfEven, 0), StatusOk);
    EXPECT_EQ(d[0], 32767);
    EXPECT_EQ(d[1], 0);
    EXPECT_EQ(d[2], 2);
    EXPECT_EQ(d[3], 0);
    EXPECT_EQ(d[4], 2);
    ASSERT_EQ(tavsConvert_32f16s_Sfs(src, d, 5, RoundHalfAway, 0), StatusOk);
    EXPECT_EQ(d[0], 32767);
    EXPECT_EQ(d[1], 1);
    EXPECT_EQ(d[2], 2);
    EXPECT_EQ(d[3], -1);
    EXPECT_EQ(d[4], 3);
    // Any mode other than 0 and 1 rounds half away.
    ASSERT_EQ(tavsConvert_32f16s_Sfs(src, d, 5, 7, 0), StatusOk);
    EXPECT_EQ(d[1], 1);
    EXPECT_EQ(d[3], -1);
    ASSERT_EQ(tavsConvert_32f16s_Sfs(src, d, 5, RoundTowardZero, 0), StatusOk);
    EXPECT_EQ(d[2], 1);
    EXPECT_EQ(d[3], 0);
    // scaleFactor 1 halves before rounding: 2.5 -> 1.25 -> 1; 1.5 -> 0.75 -> 1.
    ASSERT_EQ(tavsConvert_32f16s_Sfs(src, d, 5, RoundHalfEven, 1), StatusOk);
    EXPECT_EQ(d[0], 20000);
    EXPECT_EQ(d[2], 1);
    EXPECT_EQ(d[4], 1);
    // Limits are applied before rounding and saturate silently.
    const float lim[3] = {-1e30f, 65535.6f, -0.6f};
    Tav16u u[3];
    ASSERT_EQ(tavsConvert_32f16u_Sfs(lim, u, 3, RoundHalfEven, 0), StatusOk);
    EXPECT_EQ(u[0], 0);
    EXPECT_EQ(u[1], 65535);
    EXPECT_EQ(u[2], 0);
}

// The ties-to-even path uses the processor's conversion, so it follows the
// caller's rounding direction; truncation and half away do not.
TEST(ConvertRound, EvenPathFollowsCaller)
{
    const float src[9] = {2.5f, 2.5f, 2.5f, 2.5f, 2.5f, 2.5f, 2.5f, 2.5f, -2.5f};
    Tav16s up[9], away[9];
    const int old = std::fegetround();
    std::fesetround(FE_UPWARD);
    const Status a = tavsConvert_32f16s_Sfs(src, up, 9, RoundHalfEven, 0);
    const Status b = tavsConvert_32f16s_Sfs(src, away, 9, RoundHalfAway, 0);
    std::fesetround(old);
    ASSERT_EQ(a, StatusOk);
    ASSERT_EQ(b, StatusOk);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(up[i], 3);
    EXPECT_EQ(up[8], -2);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(away[i], 3);
    EXPECT_EQ(away[8], -3);
}

// Past 2^127 the 32f factor is infinite: the product saturates, and zero
// times it is not a number (whose result is not promised, so not tested).
TEST(ConvertRound, HugeLeftScale)
{
    const float src[2] = {1e-30f, -1e-30f};
    Tav16s d[2];
    ASSERT_EQ(tavsConvert_32f16s_Sfs(src, d, 2, RoundHalfEven, -128), StatusOk);
    EXPECT_EQ(d[0], 32767);
    EXPECT_EQ(d[1], -32768);
    ASSERT_EQ(tavsConvert_32f16s_Sfs(src, d, 2, RoundHalfEven, INT_MIN), StatusOk);
    EXPECT_EQ(d[0], 32767);
    EXPECT_EQ(d[1], -32768);
    const float big[2] = {3e38f, -3e38f};
    ASSERT_EQ(tavsConvert_32f16s_Sfs(big, d, 2, RoundHalfAway, INT_MAX), StatusOk);
    EXPECT_EQ(d[0], 0);
    EXPECT_EQ(d[1], 0);
}

// ---- 32f to 32s -------------------------------------------------------------------

Tav32s ref_32f32s(float x, int mode, int sf)
{
    const float factor = std::ldexp(1.0f, -sf);
    if (mode == 1) {
        const float p = sf == 0 ? x : x * factor;
        if (p > 2147483520.0f) return INT32_MAX;
        if (p < -2147483648.0f) return INT32_MIN;
        return Tav32s(std::nearbyint(p));
    }
    const double p = sf == 0 ? double(x) : double(x) * double(factor);
    return Tav32s(ref_round(clampd(p, -2147483648.0, 2147483647.0), mode));
}

TEST(ConvertRound, Float32ToInt32)
{
    tt::Rng r(32);
    const auto pool = ct::float_pool(r, 300, 2147483648.0f);
    for (int mode : kModes) {
        for (int sf = -40; sf <= 40; ++sf) {
            auto call = [&](const void* s, void* d, int len) {
                return tavsConvert_32f32s_Sfs(static_cast<const Tav32f*>(s), static_cast<Tav32s*>(d), len,
                                              mode, sf);
            };
            auto ref = [&](float x) { return ref_32f32s(x, mode, sf); };
            if (sf == 0 || sf == -5) {
                ct::check_errors<Tav32f, Tav32s>(call);
                ct::sweep<Tav32f, Tav32s>(pool, call, ref);
            }
            ct::bulk<Tav32f, Tav32s>(ct::float_pool(r, 300, 2147483648.0f), call, ref);
        }
    }
}

TEST(ConvertRound, Float32ToInt32Limits)
{
    const float src[6] = {
        2147483520.0f, 2147483648.0f, -2147483648.0f, -3e9f, std::numeric_limits<float>::infinity(), 1e20f};
    Tav32s d[6];
    ASSERT_EQ(tavsConvert_32f32s_Sfs(src, d, 6, RoundHalfEven, 0), StatusOk);
    EXPECT_EQ(d[0], 2147483520);
    EXPECT_EQ(d[1], INT32_MAX);
    EXPECT_EQ(d[2], INT32_MIN);
    EXPECT_EQ(d[3], INT32_MIN);
    EXPECT_EQ(d[4], INT32_MAX);
    EXPECT_EQ(d[5], INT32_MAX);
    for (int mode : {0, 2}) {
        ASSERT_EQ(tavsConvert_32f32s_Sfs(src, d, 6, mode, 0), StatusOk);
        EXPECT_EQ(d[0], 2147483520);
        EXPECT_EQ(d[1], INT32_MAX);
        EXPECT_EQ(d[2], INT32_MIN);
        EXPECT_EQ(d[3], INT32_MIN);
        EXPECT_EQ(d[4], INT32_MAX);
    }
    // With a scale the product is formed in 64f: 16777215 / 2 is the tie
    // 8388607.5, which half away rounds up and truncation down.
    const float odd[1] = {16777215.0f};
    ASSERT_EQ(tavsConvert_32f32s_Sfs(odd, d, 1, RoundHalfAway, 1), StatusOk);
    EXPECT_EQ(d[0], 8388608);
    ASSERT_EQ(tavsConvert_32f32s_Sfs(odd, d, 1, RoundTowardZero, 1), StatusOk);
    EXPECT_EQ(d[0], 8388607);
}

// ---- 64f sources ----------------------------------------------------------------------

template <class D> D ref_f64(double x, int mode, int sf)
{
    const double p = sf == 0 ? x : x * std::ldexp(1.0, -sf);
    const double v = clampd(p, double(std::numeric_limits<D>::min()), double(std::numeric_limits<D>::max()));
    if (mode == 0) return D(std::trunc(v));
    if (mode == 1) return D(std::nearbyint(v));
    return D(std::trunc(v < 0 ? v - 0.5 : v + 0.5));
}

std::vector<double> double_pool(tt::Rng& r, size_t n, double range)
{
    std::vector<double> v(n);
    for (auto& x : v) {
        switch (r.next() % 5) {
        case 0:
            x = double(r.range(-40, 40)) * 0.5;
            break;
        case 1:
            x = double(r.range(-2, 2)) + (r.next() % 2 ? range : -range);
            break;
        default: {
            const double mag = std::ldexp(r.uniform(1.0, 2.0), int(r.range(-40, 70)));
            x = r.next() % 2 ? mag : -mag;
        }
        }
    }
    return v;
}

template <class D, class Fn> void check_f64(Fn fn, double range)
{
    tt::Rng r{uint64_t(range) + 1};
    const auto pool = double_pool(r, 300, range);
    for (int mode : kModes) {
        for (int sf = -40; sf <= 40; ++sf) {
            auto call = [&](const void* s, void* d, int len) {
                return fn(static_cast<const Tav64f*>(s), static_cast<D*>(d), len, mode, sf);
            };
            auto ref = [&](double x) { return ref_f64<D>(x, mode, sf); };
            if (sf == 0 || sf == 2) {
                ct::check_errors<Tav64f, D>(call);
                ct::sweep<Tav64f, D>(pool, call, ref, 20);
            }
            ct::bulk<Tav64f, D>(double_pool(r, 300, range), call, ref);
        }
    }
}

TEST(ConvertRound, Float64ToInt)
{
    check_f64<Tav16s>(tavsConvert_64f16s_Sfs, 32768.0);
    check_f64<Tav32s>(tavsConvert_64f32s_Sfs, 2147483648.0);
}

// Half away in the 64f members adds 0.5 and truncates, so the largest double
// below one half rounds up (the sum rounds to 1.0).
TEST(ConvertRound, Float64HalfAwayAddsHalf)
{
    const double src[4] = {0.49999999999999994, -0.49999999999999994, 2.5, -2.5};
    Tav32s d[4];
    ASSERT_EQ(tavsConvert_64f32s_Sfs(src, d, 4, RoundHalfAway, 0), StatusOk);
    EXPECT_EQ(d[0], 1);
    EXPECT_EQ(d[1], -1);
    EXPECT_EQ(d[2], 3);
    EXPECT_EQ(d[3], -3);
    Tav16s h[4];
    ASSERT_EQ(tavsConvert_64f16s_Sfs(src, h, 4, RoundHalfEven, 0), StatusOk);
    EXPECT_EQ(h[0], 0);
    EXPECT_EQ(h[2], 2);
    EXPECT_EQ(h[3], -2);
    const double lim[2] = {1e10, -1e10};
    ASSERT_EQ(tavsConvert_64f32s_Sfs(lim, d, 2, RoundHalfAway, 0), StatusOk);
    EXPECT_EQ(d[0], INT32_MAX);
    EXPECT_EQ(d[1], INT32_MIN);
}

// ---- 64f to 64s --------------------------------------------------------------------------

Tav64s ref_64s(double x, int mode, int sf)
{
    if (std::isnan(x)) return 0;
    const double y = std::ldexp(x, int(sf < -100000 ? 100000 : (sf > 100000 ? -100000 : -sf)));
    if (y >= 9223372036854775808.0) return INT64_MAX;
    if (y <= -9223372036854775808.0) return INT64_MIN;
    if (mode == 0) return Tav64s(std::trunc(y));
    if (mode == 1) return Tav64s(std::nearbyint(y));
    return Tav64s(std::round(y));
}

TEST(ConvertRound, Float64ToInt64)
{
    tt::Rng r(64);
    std::vector<double> pool(400);
    for (auto& x : pool) {
        switch (r.next() % 6) {
        case 0:
            x = double(r.range(-40, 40)) * 0.5;
            break;
        case 1:
            x = std::ldexp(double(r.range(-4, 4)) + 0.5, int(r.range(0, 30)));
            break;
        case 2:
            x = (r.next() % 2 ? 1 : -1) * std::ldexp(1.0 - std::ldexp(double(r.range(0, 3)), -53), 63);
            break;
        default: {
            const double mag = std::ldexp(r.uniform(1.0, 2.0), int(r.range(-1100, 1100)));
            x = r.next() % 2 ? mag : -mag;
        }
        }
    }
    pool[0] = std::numeric_limits<double>::infinity();
    pool[1] = -std::numeric_limits<double>::infinity();
    pool[2] = std::numeric_limits<double>::quiet_NaN();
    pool[3] = -std::numeric_limits<double>::quiet_NaN();
    pool[4] = std::numeric_limits<double>::denorm_min();
    pool[5] = 9223372036854775808.0;
    pool[6] = -9223372036854775808.0;
    pool[7] = 9223372036854774784.0;
    pool[8] = 2251799813685248.5; // 2^51 + 0.5, a tie
    pool[9] = -2251799813685249.5;
    for (int mode : kModes) {
        for (int sf : {INT_MIN, -2000, -1100, -1074, -1023, -64,  -63,  -3,   -1,   0,
                       1,       2,     52,    63,    64,    1022, 1023, 1075, 2000, INT_MAX}) {
            auto call = [&](const void* s, void* d, int len) {
                return tavsConvert_64f64s_Sfs(static_cast<const Tav64f*>(s), static_cast<Tav64s*>(d), len,
                                              mode, sf);
            };
            auto ref = [&](double x) { return ref_64s(x, mode, sf); };
            ct::check_errors<Tav64f, Tav64s>(call, true);
            ct::sweep<Tav64f, Tav64s>(pool, call, ref, sf == 0 ? 40 : 8);
            ct::bulk<Tav64f, Tav64s>(pool, call, ref);
        }
    }
}

// The tie is found by comparing the fraction, whatever the caller's rounding
// direction.
TEST(ConvertRound, Float64ToInt64TieIsExplicit)
{
    const double src[4] = {2.5, -2.5, 3.5, 0.5};
    Tav64s d[4];
    const int old = std::fegetround();
    std::fesetround(FE_UPWARD);
    const Status st = tavsConvert_64f64s_Sfs(src, d, 4, RoundHalfEven, 0);
    std::fesetround(old);
    ASSERT_EQ(st, StatusOk);
    EXPECT_EQ(d[0], 2);
    EXPECT_EQ(d[1], -2);
    EXPECT_EQ(d[2], 4);
    EXPECT_EQ(d[3], 0);
    const double big[3] = {1e300, -1e300, 3.0};
    ASSERT_EQ(tavsConvert_64f64s_Sfs(big, d, 3, RoundHalfEven, -1), StatusOk);
    EXPECT_EQ(d[0], INT64_MAX);
    EXPECT_EQ(d[1], INT64_MIN);
    EXPECT_EQ(d[2], 6);
}

TEST(ConvertRound, InPlace)
{
    tt::Rng r(2);
    const auto pf = ct::float_pool(r, 70, 2147483648.0f);
    for (int mode : {0, 1, 2}) {
        ct::in_place<Tav32f, Tav32s>(pf, [mode](const void* s, void* d, int len) {
            return tavsConvert_32f32s_Sfs(static_cast<const Tav32f*>(s), static_cast<Tav32s*>(d), len, mode,
                                          -2);
        });
        ct::in_place<Tav64f, Tav64s>(double_pool(r, 70, 1e18), [mode](const void* s, void* d, int len) {
            return tavsConvert_64f64s_Sfs(static_cast<const Tav64f*>(s), static_cast<Tav64s*>(d), len, mode,
                                          3);
        });
    }
}

TEST(ConvertRoundDeathTest, NegativeLengthIsAHugeCount)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            ct::PageEnd<Tav64f> src(2);
            ct::PageEnd<Tav64s> dst(64);
            tavsConvert_64f64s_Sfs(src.data(), dst.data(), -5, RoundHalfEven, 0);
        },
        "");
}

// ---- 64f to 32f ----------------------------------------------------------------------------

float ref_64f32f(double x)
{
    const double m = 3.4028234663852886e38;
    if (x > m) return float(m);
    if (x < -m) return float(-m);
    return float(x);
}

TEST(ConvertRound, Float64To32)
{
    tt::Rng r(6432);
    std::vector<double> pool(300);
    for (auto& x : pool) {
        const double mag = std::ldexp(r.uniform(1.0, 2.0), int(r.range(-160, 140)));
        x = r.next() % 2 ? mag : -mag;
    }
    pool[1] = 1e300;
    pool[2] = -std::numeric_limits<double>::infinity();
    pool[3] = 3.4028235677973366e38; // rounds to infinity without the limit
    auto call = [](const void* s, void* d, int len) {
        return tavsConvert_64f32f(static_cast<const Tav64f*>(s), static_cast<Tav32f*>(d), len);
    };
    ct::check_errors<Tav64f, Tav32f>(call);
    ct::sweep<Tav64f, Tav32f>(pool, call, ref_64f32f);
    ct::bulk<Tav64f, Tav32f>(pool, call, ref_64f32f);

    const double src[9] = {1e300, -1e300, std::numeric_limits<double>::infinity(), 1.0, 2.0, 3.0,
                           4.0,   5.0,    std::numeric_limits<double>::quiet_NaN()};
    float d[9];
    ASSERT_EQ(tavsConvert_64f32f(src, d, 9), StatusOk);
    EXPECT_EQ(d[0], 3.4028234663852886e38f);
    EXPECT_EQ(d[1], -3.4028234663852886e38f);
    EXPECT_EQ(d[2], std::numeric_limits<float>::max());
    EXPECT_TRUE(std::isnan(d[8]));
}

} // namespace
