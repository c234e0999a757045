// Integer exponentials: floor(e^x 2^-sf + 0.5), saturated, checked against
// powers of e computed here in quadruple precision (an independent
// derivation of the library's compile-time tables), every 16-bit input, and
// the double paths outside the tables as written.
#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "math_test_util.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using quad = __float128;

// e^x for x in [-60, 80] in 113-bit precision.
struct QuadPowers {
    quad pos[81], neg[61];
    QuadPowers()
    {
        quad e = 1, term = 1;
        for (int n = 1; n < 45; ++n) {
            term /= n;
            e += term;
        }
        pos[0] = neg[0] = 1;
        for (int k = 1; k <= 80; ++k)
            pos[k] = pos[k - 1] * e;
        for (int k = 1; k <= 60; ++k)
            neg[k] = neg[k - 1] / e;
    }
    quad at(int x) const { return x >= 0 ? pos[x] : neg[-x]; }
};
const QuadPowers& qp()
{
    static const QuadPowers p;
    return p;
}

// The rule for |sf| <= 40 and x within the computed powers.
int64_t rule(int x, int sf, int64_t maxv)
{
    quad v = qp().at(x);
    for (int i = 0; i < sf; ++i)
        v /= 2;
    for (int i = 0; i < -sf; ++i)
        v *= 2;
    v += quad(0.5);
    if (v >= quad(maxv) + 1) return maxv;
    return int64_t(v);
}

// The documented double path outside the tables (16s and 32s).
int64_t double_path(int64_t x, int sf, int64_t maxv)
{
    const double v = std::exp(double(x)) * std::pow(2.0, -double(sf));
    return v < double(maxv) ? int64_t(v + 0.5) : maxv;
}

TEST(ExpInt, DocumentedEdges)
{
    Tav16s x = 0, y = -1;
    ASSERT_EQ(tavsExp_16s_Sfs(&x, &y, 1, 1), StatusOk);
    EXPECT_EQ(y, 1); // 0.5 rounds up
    ASSERT_EQ(tavsExp_16s_Sfs(&x, &y, 1, 2), StatusOk);
    EXPECT_EQ(y, 0);
}

TEST(ExpInt, Every16sInputEveryTableRowAndTheDoublePath)
{
    std::vector<Tav16s> x(65536), y(65536);
    for (int i = 0; i < 65536; ++i)
        x[size_t(i)] = Tav16s(i - 32768);
    std::vector<int> sfs;
    for (int sf = -16; sf <= 16; ++sf)
        sfs.push_back(sf);
    for (int sf : {-17, -20, -40, -1100, INT_MIN, 17, 20, 40, 1100, INT_MAX})
        sfs.push_back(sf);
    for (int sf : sfs) {
        ASSERT_EQ(tavsExp_16s_Sfs(x.data(), y.data(), 65536, sf), StatusOk);
        const bool table = sf >= -16 && sf <= 16;
        for (int i = 0; i < 65536; i += (table ? 1 : 7)) {
            const int xv = i - 32768;
            int64_t ref;
            if (table)
                ref = xv > 60 ? 32767 : (xv < -45 ? 0 : rule(xv, sf, 32767));
            else
                ref = double_path(xv, sf, 32767);
            ASSERT_EQ(y[size_t(i)], ref) << "x " << xv << " sf " << sf;
        }
    }
    std::vector<Tav16s> io = x;
    ASSERT_EQ(tavsExp_16s_ISfs(io.data(), 65536, 3), StatusOk);
    ASSERT_EQ(tavsExp_16s_Sfs(x.data(), y.data(), 65536, 3), StatusOk);
    EXPECT_EQ(io, y);
}

TEST(ExpInt, Exp32sTableDomainAndOutside)
{
    std::vector<Tav32s> x;
    for (int v = -60; v <= 80; ++v)
        x.push_back(v);
    for (Tav32s v : {INT32_MIN, INT32_MIN + 1, -100000, 100000, INT32_MAX})
        x.push_back(v);
    tt::Rng rng(3);
    for (int i = 0; i < 200; ++i)
        x.push_back(rng.element<Tav32s>());
    const int len = int(x.size());
    std::vector<Tav32s> y(x.size());
    for (int sf = -40; sf <= 40; ++sf) {
        ASSERT_EQ(tavsExp_32s_Sfs(x.data(), y.data(), len, sf), StatusOk);
        const bool table = sf >= -31 && sf <= 31;
        for (int i = 0; i < len; ++i) {
            const int64_t xv = x[size_t(i)];
            int64_t ref;
            if (table)
                ref = xv > 80 ? INT32_MAX : (xv < -60 ? 0 : rule(int(xv), sf, INT32_MAX));
            else
                ref = double_path(xv, sf, INT32_MAX);
            ASSERT_EQ(y[size_t(i)], ref) << "x " << xv << " sf " << sf;
        }
    }
    for (int sf : {INT_MIN, -1100, 1100, INT_MAX}) {
        ASSERT_EQ(tavsExp_32s_Sfs(x.data(), y.data(), len, sf), StatusOk);
        for (int i = 0; i < len; ++i)
            ASSERT_EQ(y[size_t(i)], double_path(x[size_t(i)], sf, INT32_MAX));
    }
    std::vector<Tav32s> io = x;
    ASSERT_EQ(tavsExp_32s_ISfs(io.data(), len, -5), StatusOk);
    ASSERT_EQ(tavsExp_32s_Sfs(x.data(), y.data(), len, -5), StatusOk);
    EXPECT_EQ(io, y);
}

TEST(ExpInt, Exp64sRowsAndTheTruncatingPath)
{
    std::vector<Tav64s> x;
    for (int v = -50; v <= 60; ++v)
        x.push_back(v);
    for (Tav64s v : {Tav64s(INT64_MIN), Tav64s(-1000000), Tav64s(1000000), Tav64s(INT64_MAX)})
        x.push_back(v);
    const int len = int(x.size());
    std::vector<Tav64s> y(x.size());
    auto row = [](int64_t k) { return rule(int(k), 0, INT64_MAX); };
    // scale factor 0: round(e^k), saturated from k = 44 on
    ASSERT_EQ(tavsExp_64s_Sfs(x.data(), y.data(), len, 0), StatusOk);
    for (int i = 0; i < len; ++i) {
        const int64_t xv = x[size_t(i)];
        ASSERT_EQ(y[size_t(i)], xv < 0 ? 0 : (xv > 44 ? INT64_MAX : row(xv))) << xv;
    }
    EXPECT_EQ(y[size_t(50 + 44)], INT64_MAX);
    EXPECT_EQ(y[size_t(50 + 43)], 4727839468229346561LL);
    // scale factor 1: the row halved by (v + 1) >> 1, with its own value at 44
    ASSERT_EQ(tavsExp_64s_Sfs(x.data(), y.data(), len, 1), StatusOk);
    for (int i = 0; i < len; ++i) {
        const int64_t xv = x[size_t(i)];
        int64_t ref = xv < 0 ? 0 : (xv > 44 ? INT64_MAX : 0);
        if (xv >= 0 && xv < 44) ref = (row(xv) + 1) >> 1;
        if (xv == 44) ref = 0x592D071B4DE0C7FALL;
        ASSERT_EQ(y[size_t(i)], ref) << xv;
    }
    EXPECT_EQ(rule(44, 1, INT64_MAX), 0x592D071B4DE0C7FALL); // the documented value is the rule's
    // scale factor -1: the row doubled up to 42
    ASSERT_EQ(tavsExp_64s_Sfs(x.data(), y.data(), len, -1), StatusOk);
    for (int i = 0; i < len; ++i) {
        const int64_t xv = x[size_t(i)];
        ASSERT_EQ(y[size_t(i)], xv < 0 ? 0 : (xv > 42 ? INT64_MAX : 2 * row(xv))) << xv;
    }
    // any other scale factor: exp * pow without the 0.5, truncated
    for (int sf : {INT_MIN, -70, -2, 2, 5, 30, 70, INT_MAX}) {
        ASSERT_EQ(tavsExp_64s_Sfs(x.data(), y.data(), len, sf), StatusOk);
        for (int i = 0; i < len; ++i) {
            const double v = std::exp(double(x[size_t(i)])) * std::pow(2.0, -double(sf));
            ASSERT_EQ(y[size_t(i)], v < 9223372036854775808.0 ? int64_t(v) : INT64_MAX) << sf;
        }
    }
    std::vector<Tav64s> io = x;
    ASSERT_EQ(tavsExp_64s_ISfs(io.data(), len, 1), StatusOk);
    ASSERT_EQ(tavsExp_64s_Sfs(x.data(), y.data(), len, 1), StatusOk);
    EXPECT_EQ(io, y);
}

TEST(ExpInt, Errors)
{
    tt::Guarded<Tav64s> g(4);
    Tav16s s16[4] = {};
    Tav32s s32[4] = {};
    Tav64s s64[4] = {};
    auto* d16 = reinterpret_cast<Tav16s*>(g.data());
    auto* d32 = reinterpret_cast<Tav32s*>(g.data());
    EXPECT_EQ(tavsExp_16s_Sfs(nullptr, d16, 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsExp_16s_Sfs(s16, nullptr, 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsExp_16s_Sfs(nullptr, nullptr, 0, 0), ErrNullPtr);
    EXPECT_EQ(tavsExp_16s_Sfs(s16, d16, 0, 0), ErrSize);
    EXPECT_EQ(tavsExp_16s_ISfs(nullptr, 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsExp_16s_ISfs(d16, -1, 0), ErrSize);
    EXPECT_EQ(tavsExp_32s_Sfs(s32, nullptr, 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsExp_32s_Sfs(s32, d32, 0, 0), ErrSize);
    EXPECT_EQ(tavsExp_32s_ISfs(d32, 0, 0), ErrSize);
    EXPECT_EQ(tavsExp_64s_Sfs(nullptr, g.data(), 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsExp_64s_Sfs(s64, g.data(), 0, 0), ErrSize);
    EXPECT_EQ(tavsExp_64s_ISfs(nullptr, 0, 0), ErrNullPtr);
    EXPECT_TRUE(g.untouched());
}

} // namespace
