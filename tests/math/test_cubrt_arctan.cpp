// Cube roots (the digit-by-digit integer root against an integer search,
// the double path as written) and arctangents (ulp bounds against long
// double, the tail through the math library).
#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "math_test_util.h"
#include "tavs.h"
#include "test_util.h"

namespace {

// floor(cbrt(v)) by search.
uint64_t icbrt(uint64_t v)
{
    uint64_t lo = 0, hi = 1 << 22;
    while (lo < hi) {
        const uint64_t mid = (lo + hi + 1) / 2;
        if (mid * mid * mid <= v)
            lo = mid;
        else
            hi = mid - 1;
    }
    return lo;
}

int64_t ref_cubrt(int32_t x, int sf)
{
    const bool neg = x < 0;
    const uint64_t mag = neg ? uint64_t(-int64_t(x)) : uint64_t(x);
    if (sf >= -14 && sf <= -1) {
        const int sh = -3 * sf;
        if ((unsigned __int128)(mag) << sh >= (unsigned __int128)(1) << 45) return neg ? -32768 : 32767;
        const int64_t r = int64_t(icbrt(mag << sh));
        return neg ? -r : r;
    }
    const double v = std::nearbyint(std::ldexp(std::cbrt(double(mag)), -std::clamp(sf, -64, 64)));
    if (neg) return v >= 32768.0 ? -32768 : -int64_t(v);
    return v >= 32767.0 ? 32767 : int64_t(v);
}

TEST(Cubrt, DocumentedEdge)
{
    Tav32s x = 27;
    Tav16s y = 0;
    ASSERT_EQ(tavsCubrt_32s16s_Sfs(&x, &y, 1, -1), StatusOk);
    EXPECT_EQ(y, 6); // the root of 216
}

TEST(Cubrt, IntegerAgainstReference)
{
    tt::Rng rng(61);
    std::vector<Tav32s> x(4000);
    for (auto& v : x)
        v = rng.next() % 2 ? rng.element<Tav32s>() : Tav32s(rng.range(-100000, 100000));
    for (int i = 0; i < 64; ++i)
        x[size_t(i)] = i * i * i + (i % 3) - 1; // around perfect cubes
    x[64] = 0;
    x[65] = INT32_MIN;
    const int n = int(x.size());
    std::vector<Tav16s> y(x.size());
    for (int sf : {INT_MIN, -20, -15, -14, -10, -5, -1, 0, 1, 3, 10, 40, INT_MAX}) {
        ASSERT_EQ(tavsCubrt_32s16s_Sfs(x.data(), y.data(), n, sf), StatusOk);
        for (int i = 0; i < n; ++i)
            ASSERT_EQ(y[size_t(i)], ref_cubrt(x[size_t(i)], sf)) << x[size_t(i)] << " sf " << sf;
    }
    const Tav32s sat[2] = {1 << 3, -(1 << 3)}; // 8 << 42 = 2^45: saturates by sign
    Tav16s o[2];
    ASSERT_EQ(tavsCubrt_32s16s_Sfs(sat, o, 2, -14), StatusOk);
    EXPECT_EQ(o[0], 32767);
    EXPECT_EQ(o[1], -32768);
}

TEST(Cubrt, FloatKeepsTheSign)
{
    tt::Rng rng(62);
    std::vector<float> x(500), y(500);
    for (auto& v : x)
        v = float(rng.uniform(-1e6, 1e6));
    x[0] = -27.0f;
    ASSERT_EQ(tavsCubrt_32f(x.data(), y.data(), 500), StatusOk);
    EXPECT_EQ(y[0], -3.0f);
    for (int i = 0; i < 500; ++i)
        EXPECT_LE(mt::ulp_error(y[size_t(i)], std::cbrt((long double)x[size_t(i)])), 0.5001);
}

TEST(Arctan, FloatSweepWithin1Ulp)
{
    std::vector<float> x;
    for (uint32_t b = 0; b < 0x7F800000u; b += 4099u * mt::kSlow)
        x.push_back(mt::f32(b)), x.push_back(-mt::f32(b));
    std::vector<float> y(x.size());
    ASSERT_EQ(tavsArctan_32f(x.data(), y.data(), int(x.size())), StatusOk);
    double worst = 0;
    for (size_t i = 0; i < x.size(); ++i) // atan in double is exact far below a float ulp
        worst = std::max(worst, mt::ulp_error(y[i], static_cast<long double>(std::atan(double(x[i])))));
    std::printf("Arctan_32f: %zu values, max error %.3f ulp\n", x.size(), worst);
    EXPECT_LE(worst, 1.0);
}

TEST(Arctan, DoubleWithin1Ulp)
{
    tt::Rng rng(63);
    const int n = 100000 / mt::kSlow;
    std::vector<double> x(static_cast<size_t>(n)), y(static_cast<size_t>(n));
    for (auto& v : x)
        v = std::ldexp(rng.uniform(-1, 1), int(rng.range(-30, 30)));
    ASSERT_EQ(tavsArctan_64f(x.data(), y.data(), n), StatusOk);
    double worst = 0;
    for (int i = 0; i < n; ++i)
        worst = std::max(worst, mt::ulp_error(y[size_t(i)], std::atan((long double)x[size_t(i)])));
    std::printf("Arctan_64f: max error %.3f ulp\n", worst);
    EXPECT_LE(worst, 1.0);
}

TEST(Arctan, SpecialValuesShortCallsAndTail)
{
    const float x[8] = {INFINITY, -INFINITY, NAN, 0.0f, -0.0f, 1.0f, 1e30f, -1e-30f};
    float y[8];
    ASSERT_EQ(tavsArctan_32f(x, y, 8), StatusOk);
    EXPECT_EQ(y[0], float(M_PI / 2));
    EXPECT_EQ(y[1], -float(M_PI / 2));
    EXPECT_TRUE(std::isnan(y[2]));
    EXPECT_EQ(mt::bits(y[3]), 0u);
    EXPECT_EQ(mt::bits(y[4]), 0x80000000u);
    EXPECT_EQ(y[5], float(M_PI / 4));
    EXPECT_EQ(y[7], -1e-30f);
    for (int len = 1; len <= 11; ++len) {
        std::vector<double> v(static_cast<size_t>(len)), o(static_cast<size_t>(len));
        for (int i = 0; i < len; ++i)
            v[size_t(i)] = 0.37 * (i + 1) - 1.3;
        ASSERT_EQ(tavsArctan_64f(v.data(), o.data(), len), StatusOk);
        const int grouped = len >= 4 ? len & ~3 : 0;
        for (int i = grouped; i < len; ++i)
            EXPECT_TRUE(tt::same_bits(o[size_t(i)], std::atan(v[size_t(i)])));
        for (int i = 0; i < grouped; ++i)
            EXPECT_LE(mt::ulp_error(o[size_t(i)], std::atan((long double)v[size_t(i)])), 1.0);
        std::vector<double> io = v;
        ASSERT_EQ(tavsArctan_64f_I(io.data(), len), StatusOk);
        EXPECT_EQ(0, std::memcmp(io.data(), o.data(), size_t(len) * 8));
        std::vector<float> f(v.begin(), v.end()), fo(static_cast<size_t>(len));
        ASSERT_EQ(tavsArctan_32f(f.data(), fo.data(), len), StatusOk);
        for (int i = grouped; i < len; ++i)
            EXPECT_TRUE(tt::same_bits(fo[size_t(i)], float(std::atan(double(f[size_t(i)])))));
        ASSERT_EQ(tavsArctan_32f_I(f.data(), len), StatusOk);
        EXPECT_EQ(0, std::memcmp(f.data(), fo.data(), size_t(len) * 4));
    }
}

TEST(CubrtArctan, Errors)
{
    tt::Guarded<double> g(4);
    double s[4] = {};
    EXPECT_EQ(tavsCubrt_32f(nullptr, (float*)g.data(), 4), ErrNullPtr);
    EXPECT_EQ(tavsCubrt_32f((const float*)s, (float*)g.data(), 0), ErrSize);
    EXPECT_EQ(tavsCubrt_32s16s_Sfs((const Tav32s*)s, nullptr, 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsCubrt_32s16s_Sfs((const Tav32s*)s, (Tav16s*)g.data(), 0, -1), ErrSize);
    EXPECT_EQ(tavsArctan_32f((const float*)s, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(tavsArctan_32f_I((float*)g.data(), 0), ErrSize);
    EXPECT_EQ(tavsArctan_64f(nullptr, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(tavsArctan_64f(s, g.data(), -1), ErrSize);
    EXPECT_EQ(tavsArctan_64f_I(nullptr, 4), ErrNullPtr);
    EXPECT_TRUE(g.untouched());
}

} // namespace

namespace {

// The batched evaluations run with their own rounding; the caller's
// direction is back in place afterwards.
TEST(Arctan, OwnRoundingInsideCallersStateKept)
{
    tt::Rng rng(64);
    std::vector<double> x(64), a(64), b(64);
    std::vector<float> xf(64), af(64), bf(64);
    for (int i = 0; i < 64; ++i)
        x[size_t(i)] = rng.uniform(-30, 30), xf[size_t(i)] = float(x[size_t(i)]);
    std::vector<Tav32fc> c(64);
    for (int i = 0; i < 64; ++i)
        c[size_t(i)] = {xf[size_t(i)], xf[size_t(63 - i)]};
    std::vector<float> pa(64), pb(64);
    ASSERT_EQ(tavsArctan_64f(x.data(), a.data(), 64), StatusOk);
    ASSERT_EQ(tavsArctan_32f(xf.data(), af.data(), 64), StatusOk);
    ASSERT_EQ(tavsPhase_32fc(c.data(), pa.data(), 64), StatusOk);
    for (int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO})
        mt::with_rounding(mode, [&] {
            ASSERT_EQ(tavsArctan_64f(x.data(), b.data(), 64), StatusOk);
            ASSERT_EQ(tavsArctan_32f(xf.data(), bf.data(), 64), StatusOk);
            ASSERT_EQ(tavsPhase_32fc(c.data(), pb.data(), 64), StatusOk);
            EXPECT_EQ(std::fegetround(), mode);
            EXPECT_EQ(0, std::memcmp(a.data(), b.data(), 64 * 8)) << mode;
            EXPECT_EQ(0, std::memcmp(af.data(), bf.data(), 64 * 4)) << mode;
            EXPECT_EQ(0, std::memcmp(pa.data(), pb.data(), 64 * 4)) << mode;
        });
}

} // namespace
