// Integer logarithms and decibels: every 16-bit input at every scale factor
// that has a branch of its own, the ladders against the documented
// thresholds, random 32-bit inputs, warnings and the check order.
#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "math_test_util.h"
#include "tavs.h"
#include "test_util.h"

namespace {

// round(ln x), from the long double logarithm (no x lies near a half).
int ladder(uint64_t x) { return int(std::lround(std::log((long double)x))); }

int64_t widened(long double lnScaled, double maxv)
{
    const double v = double(lnScaled) + 0.5;
    return v > maxv ? int64_t(maxv) : int64_t(v);
}

// Ln_16s_Sfs for x > 0, from its documented branches.
int ref_ln16(int x, int sf)
{
    if (sf >= 1) return int(std::lround(std::log((long double)x) / std::ldexp(1.0L, sf)));
    if (sf == 0) return ladder(uint64_t(x));
    if (sf == -1) {
        if (x <= 181) return ladder(uint64_t(x) * uint64_t(x));
        int k = 0;
        while ((x >> k) > 181)
            ++k;
        const uint64_t h = uint64_t(x >> k);
        return ladder(h * h) + ladder(uint64_t(1) << (2 * k));
    }
    if (sf >= -13) return int(widened(std::pow(2.0, -sf) * std::log(double(x)), 32767.0));
    if (sf == -14) {
        static const int t[8] = {0, 0, 11357, 18000, 22713, 26369, 29356, 31882};
        return x <= 7 ? t[x] : 32767;
    }
    if (sf == -15) return x == 1 ? 0 : (x == 2 ? 22713 : 32767);
    return x == 1 ? 0 : 32767;
}

TEST(LnInt, DocumentedLadderThresholds)
{
    const int64_t from[22] = {0,       2,        5,        13,        34,        91,       245,    666,
                              1809,    4915,     13360,    36316,     98716,     268338,   729417, 1982760,
                              5389699, 14650720, 39824785, 108254988, 294267567, 799902178};
    std::vector<Tav32s> x;
    for (int k = 1; k <= 21; ++k)
        x.push_back(Tav32s(from[k] - 1)), x.push_back(Tav32s(from[k]));
    std::vector<Tav32s> y(x.size());
    ASSERT_EQ(tavsLn_32s_Sfs(x.data(), y.data(), int(x.size()), 0), StatusOk);
    for (int k = 1; k <= 21; ++k) {
        EXPECT_EQ(y[size_t(2 * k - 2)], k - 1) << from[k];
        EXPECT_EQ(y[size_t(2 * k - 1)], k) << from[k];
    }
    std::vector<Tav16s> y16(x.size());
    ASSERT_EQ(tavsLn_32s16s_Sfs(x.data(), y16.data(), int(x.size()), 0), StatusOk);
    for (size_t i = 0; i < x.size(); ++i)
        EXPECT_EQ(y16[i], y[i]);
    // scale factor 1 of the 16-bit form: 0 below 3, 1 below 21, 2 below 149,
    // 3 below 1097, 4 below 8104, 5 from there on; 3: 1 from 55; 4: 1 from 2981
    const Tav16s s[12] = {2, 3, 20, 21, 148, 149, 1096, 1097, 8103, 8104, 32767, 1};
    Tav16s o[12];
    ASSERT_EQ(tavsLn_16s_Sfs(s, o, 12, 1), StatusOk);
    const Tav16s want[12] = {0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 0};
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(o[i], want[i]) << s[i];
    const Tav16s t3[4] = {54, 55, 2980, 2981};
    ASSERT_EQ(tavsLn_16s_Sfs(t3, o, 4, 3), StatusOk);
    EXPECT_EQ(o[0], 0);
    EXPECT_EQ(o[1], 1);
    ASSERT_EQ(tavsLn_16s_Sfs(t3, o, 4, 4), StatusOk);
    EXPECT_EQ(o[2], 0);
    EXPECT_EQ(o[3], 1);
}

TEST(LnInt, DocumentedEdges)
{
    Tav32s x = 1, y = 9;
    ASSERT_EQ(tavsLn_32s_Sfs(&x, &y, 1, 0), StatusOk);
    EXPECT_EQ(y, 0);
    x = 5;
    ASSERT_EQ(tavsLn_32s_Sfs(&x, &y, 1, 1), StatusOk);
    EXPECT_EQ(y, 1);
}

TEST(LnInt, Every16sInput)
{
    std::vector<Tav16s> x(65536), y(65536);
    for (int i = 0; i < 65536; ++i)
        x[size_t(i)] = Tav16s(i - 32768);
    for (int sf : {INT_MIN, -40, -16, -15, -14, -13, -8, -2, -1, 0, 1, 2, 3, 4, 5, 6, 31, INT_MAX}) {
        const Status st = tavsLn_16s_Sfs(x.data(), y.data(), 65536, sf);
        EXPECT_EQ(st, WarnLnNegative); // -32768 comes first
        for (int i = 0; i < 65536; ++i) {
            const int xv = i - 32768;
            ASSERT_EQ(y[size_t(i)], xv <= 0 ? -32768 : ref_ln16(xv, sf)) << "x " << xv << " sf " << sf;
        }
    }
    std::vector<Tav16s> io = x;
    EXPECT_EQ(tavsLn_16s_ISfs(io.data(), 65536, -1), WarnLnNegative);
    EXPECT_EQ(tavsLn_16s_Sfs(x.data(), y.data(), 65536, -1), WarnLnNegative);
    EXPECT_EQ(io, y);
    io = x;
    EXPECT_EQ(tavsLn_16s_Sfs(io.data(), io.data(), 65536, -1),
              WarnLnNegative); // equal pointers: the in-place form
    EXPECT_EQ(io, y);
}

TEST(LnInt, Ln32sAnd32s16sRandom)
{
    tt::Rng rng(31);
    std::vector<Tav32s> x(4000);
    for (auto& v : x)
        v = rng.next() % 3 ? Tav32s(rng.range(1, INT32_MAX)) : Tav32s(rng.range(1, 100000));
    x[0] = INT32_MAX;
    x[1] = 1;
    std::vector<Tav32s> y(x.size());
    std::vector<Tav16s> y16(x.size());
    const int n = int(x.size());
    for (int sf : {INT_MIN, -40, -31, -20, -14, -13, -1, 0, 1, 2, 3, 5, 6, 7, 31, 32, 33, INT_MAX}) {
        ASSERT_EQ(tavsLn_32s_Sfs(x.data(), y.data(), n, sf), StatusOk);
        ASSERT_EQ(tavsLn_32s16s_Sfs(x.data(), y16.data(), n, sf), StatusOk);
        for (int i = 0; i < n; ++i) {
            const Tav32s v = x[size_t(i)];
            const long double l = std::log((long double)v);
            int64_t r32;
            if (sf < 0)
                r32 = v == 1 ? 0 : widened(std::log(double(v)) * std::pow(2.0, -double(sf)), 2147483647.0);
            else
                r32 = ladder(uint64_t(v)) >> (sf & 31);
            ASSERT_EQ(y[size_t(i)], r32) << v << " sf " << sf;
            int64_t r16;
            if (sf >= 1)
                r16 = std::lround(l / std::ldexp(1.0L, sf > 40 ? 40 : sf));
            else if (sf == 0)
                r16 = ladder(uint64_t(v));
            else if (sf >= -14)
                r16 = widened(std::pow(2.0, -sf) * std::log(double(v)), 32767.0);
            else if (sf == -15)
                r16 = v == 1 ? 0 : (v == 2 ? 22713 : 32767);
            else
                r16 = v == 1 ? 0 : 32767;
            ASSERT_EQ(y16[size_t(i)], r16) << v << " sf " << sf;
        }
    }
    std::vector<Tav32s> io = x;
    ASSERT_EQ(tavsLn_32s_ISfs(io.data(), n, -3), StatusOk);
    ASSERT_EQ(tavsLn_32s_Sfs(x.data(), y.data(), n, -3), StatusOk);
    EXPECT_EQ(io, y);
}

TEST(LnInt, WarningsAndMinimum)
{
    Tav32s x[4] = {3, 0, -7, 1}, y[4];
    EXPECT_EQ(tavsLn_32s_Sfs(x, y, 4, 0), WarnLnZero);
    EXPECT_EQ(y[1], INT32_MIN);
    EXPECT_EQ(y[2], INT32_MIN);
    EXPECT_EQ(y[3], 0);
    Tav16s y16[4];
    Tav32s x2[3] = {-1, 0, 5};
    EXPECT_EQ(tavsLn_32s16s_Sfs(x2, y16, 3, -2), WarnLnNegative);
    EXPECT_EQ(y16[0], -32768);
    EXPECT_EQ(y16[1], -32768);
    EXPECT_EQ(tavs10Log10_32s_Sfs(x, y, 4, -1), WarnLnZero);
    EXPECT_EQ(y[2], INT32_MIN);
}

// ---- 10Log10 --------------------------------------------------------------------------------
int ref_db(Tav32s x)
{
    static const int small[15] = {0, 0, 3, 5, 6, 7, 8, 9, 9, 10, 10, 10, 11, 11, 11};
    if (x <= 14) return small[x];
    static const std::vector<long double> above = [] { // 10^((k - 0.5)/10) for k = 14, 16, ... 92, 93
        std::vector<long double> v;
        for (int j = 14; j <= 92; j += 2)
            v.push_back(std::pow(10.0L, (j - 0.5L) / 10));
        v.push_back(std::pow(10.0L, 9.25L));
        return v;
    }();
    int k = 12;
    for (size_t j = 0; j + 1 < above.size(); ++j)
        if ((long double)x > above[j]) k = 14 + 2 * int(j);
    if ((long double)x > above.back()) k = 93;
    return k;
}

TEST(Decibel, DocumentedLadder)
{
    const Tav32s x[14] = {1000, 2000, 22,         23,         35,         36,         57,
                          90,   142,  1412537544, 1412537545, 1778279410, 1778279411, 7};
    const Tav32s want[14] = {30, 32, 12, 14, 14, 16, 18, 20, 22, 90, 92, 92, 93, 9};
    Tav32s y[14];
    ASSERT_EQ(tavs10Log10_32s_Sfs(x, y, 14, 0), StatusOk);
    for (int i = 0; i < 14; ++i)
        EXPECT_EQ(y[i], want[i]) << x[i];
    Tav32s small[14], ys[14];
    for (int i = 0; i < 14; ++i)
        small[i] = i + 1;
    ASSERT_EQ(tavs10Log10_32s_Sfs(small, ys, 14, 0), StatusOk);
    const Tav32s wantSmall[14] = {0, 3, 5, 6, 7, 8, 9, 9, 10, 10, 10, 11, 11, 11};
    for (int i = 0; i < 14; ++i)
        EXPECT_EQ(ys[i], wantSmall[i]);
}

TEST(Decibel, RandomAgainstTheRule)
{
    tt::Rng rng(41);
    std::vector<Tav32s> x(5000);
    for (auto& v : x)
        v = Tav32s(rng.next() % 2 ? rng.range(1, INT32_MAX) : std::exp(rng.uniform(0, 21.4)));
    x[0] = INT32_MAX;
    const int n = int(x.size());
    std::vector<Tav32s> y(x.size());
    for (int sf : {INT_MIN, -40, -20, -1, 0, 1, 3, 31, 32, 35}) {
        ASSERT_EQ(tavs10Log10_32s_Sfs(x.data(), y.data(), n, sf), StatusOk);
        for (int i = 0; i < n; ++i) {
            const Tav32s v = x[size_t(i)];
            int64_t r;
            if (sf < 0)
                r = v == 1 ? 0
                           : widened(4.342944819032518 * std::pow(2.0, -double(sf)) * std::log(double(v)),
                                     2147483647.0);
            else
                r = ref_db(v) >> (sf & 31);
            ASSERT_EQ(y[size_t(i)], r) << v << " sf " << sf;
        }
    }
    std::vector<Tav32s> io = x;
    ASSERT_EQ(tavs10Log10_32s_ISfs(io.data(), n, 1), StatusOk);
    ASSERT_EQ(tavs10Log10_32s_Sfs(x.data(), y.data(), n, 1), StatusOk);
    EXPECT_EQ(io, y);
}

TEST(LnInt, ErrorsAndCheckOrder)
{
    tt::Guarded<Tav32s> g(4);
    Tav32s s32[4] = {1, 2, 3, 4};
    Tav16s s16[4] = {1, 2, 3, 4};
    auto* d16 = reinterpret_cast<Tav16s*>(g.data());
    // equal pointers go to the in-place form first, which tests for null
    EXPECT_EQ(tavsLn_16s_Sfs(nullptr, nullptr, 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsLn_32s_Sfs(nullptr, nullptr, 0, 0), ErrNullPtr);
    EXPECT_EQ(tavsLn_32s16s_Sfs(nullptr, nullptr, 1, 0), ErrNullPtr);
    EXPECT_EQ(tavsLn_16s_Sfs(s16, nullptr, 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsLn_16s_Sfs(s16, d16, 0, 0), ErrSize);
    EXPECT_EQ(tavsLn_16s_ISfs(nullptr, 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsLn_16s_ISfs(d16, 0, 0), ErrSize);
    EXPECT_EQ(tavsLn_32s_Sfs(nullptr, g.data(), 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsLn_32s_Sfs(s32, g.data(), -2, 0), ErrSize);
    EXPECT_EQ(tavsLn_32s_ISfs(g.data(), 0, 0), ErrSize);
    EXPECT_EQ(tavsLn_32s16s_Sfs(s32, d16, 0, 0), ErrSize);
    EXPECT_EQ(tavs10Log10_32s_Sfs(s32, nullptr, 4, 0), ErrNullPtr);
    EXPECT_EQ(tavs10Log10_32s_Sfs(s32, g.data(), 0, 0), ErrSize);
    EXPECT_EQ(tavs10Log10_32s_ISfs(nullptr, 4, 0), ErrNullPtr);
    EXPECT_TRUE(g.untouched());
}

} // namespace
