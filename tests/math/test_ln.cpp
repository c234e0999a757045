// Float logarithms and the sums of logarithms: special elements and the
// first-element warning rule, the math library's values, the batched
// Ln_64f32f, and SumLn's blocks of 512 and its stop rule.
#include <gtest/gtest.h>

#include <sys/mman.h>
#include <unistd.h>

#include <vector>

#include "math_test_util.h"
#include "tavs.h"
#include "test_util.h"

namespace {

TEST(Ln, NegativeZeroGivesNaNAndWarning)
{
    float x = -0.0f, y = 0;
    EXPECT_EQ(tavsLn_32f(&x, &y, 1), WarnLnNegative);
    EXPECT_EQ(mt::bits(y), 0xFFC00000u);
    double xd = -0.0, yd = 0;
    EXPECT_EQ(tavsLn_64f(&xd, &yd, 1), WarnLnNegative);
    EXPECT_EQ(mt::bits(yd), 0xFFF8000000000000ull);
}

TEST(Ln, FirstSpecialElementDecidesTheWarning)
{
    float a[4] = {2.0f, 0.0f, -1.0f, 3.0f}, y[4];
    EXPECT_EQ(tavsLn_32f(a, y, 4), WarnLnZero);
    EXPECT_EQ(y[1], -INFINITY);
    EXPECT_EQ(mt::bits(y[2]), 0xFFC00000u);
    EXPECT_EQ(y[3], float(std::log(3.0))); // the loop went on to the end
    float b[4] = {2.0f, -5.0f, 0.0f, 3.0f};
    EXPECT_EQ(tavsLn_32f(b, y, 4), WarnLnNegative);
    double c[5] = {1.0, 2.0, 0.0, -1.0, NAN}, yd[5];
    EXPECT_EQ(tavsLn_64f(c, yd, 5), WarnLnZero);
    float n[2] = {NAN, 4.0f};
    EXPECT_EQ(tavsLn_32f(n, y, 2), StatusOk); // a quiet NaN is no warning
    EXPECT_TRUE(std::isnan(y[0]));
    float neg_nan = mt::f32(0xFFC00001u);
    EXPECT_EQ(tavsLn_32f(&neg_nan, y, 1), WarnLnNegative);
    EXPECT_EQ(mt::bits(y[0]), 0xFFC00000u);
}

TEST(Ln, ValuesAreTheMathLibrarysAndInPlaceMatches)
{
    tt::Rng rng(21);
    for (int len = 1; len <= 40; ++len) {
        std::vector<float> x(static_cast<size_t>(len)), y(static_cast<size_t>(len));
        std::vector<double> xd(static_cast<size_t>(len)), yd(static_cast<size_t>(len));
        for (int i = 0; i < len; ++i) {
            x[size_t(i)] = mt::f32(uint32_t(rng.next() % 0x7F800000u));
            xd[size_t(i)] = mt::f64(rng.next() % 0x7FF0000000000000ull);
        }
        ASSERT_EQ(tavsLn_32f(x.data(), y.data(), len), StatusOk);
        ASSERT_EQ(tavsLn_64f(xd.data(), yd.data(), len), StatusOk);
        for (int i = 0; i < len; ++i) {
            ASSERT_TRUE(tt::same_bits(y[size_t(i)], float(std::log(double(x[size_t(i)])))));
            ASSERT_TRUE(tt::same_bits(yd[size_t(i)], std::log(xd[size_t(i)])));
        }
        ASSERT_EQ(tavsLn_32f_I(x.data(), len), StatusOk);
        ASSERT_EQ(tavsLn_64f_I(xd.data(), len), StatusOk);
        EXPECT_EQ(0, std::memcmp(x.data(), y.data(), x.size() * 4));
        EXPECT_EQ(0, std::memcmp(xd.data(), yd.data(), xd.size() * 8));
    }
    float inf = INFINITY, r;
    EXPECT_EQ(tavsLn_32f(&inf, &r, 1), StatusOk);
    EXPECT_EQ(r, INFINITY);
}

TEST(Ln64f32f, ShortCallsAreTheMathLibrarysInFloat)
{
    const double x[3] = {1e-310, 12.5, 0.0};
    float y[3];
    EXPECT_EQ(tavsLn_64f32f(x, y, 3), WarnLnZero);
    EXPECT_TRUE(tt::same_bits(y[0], float(std::log(1e-310)))); // a denormal is an ordinary element here
    EXPECT_TRUE(tt::same_bits(y[1], float(std::log(12.5))));
    EXPECT_EQ(y[2], -INFINITY);
}

TEST(Ln64f32f, BatchedWithin1UlpAndDenormalsAsZero)
{
    tt::Rng rng(22);
    const int n = 100000 / mt::kSlow;
    std::vector<double> x(static_cast<size_t>(n));
    for (auto& v : x) {
        const uint64_t exp = 1 + rng.next() % 2046;
        v = mt::f64((exp << 52) | (rng.next() & 0x000FFFFFFFFFFFFFull));
    }
    for (int i = 0; i < 64; ++i)
        x[size_t(i)] = 1.0 + rng.uniform(-1e-3, 1e-3); // near 1: relative accuracy
    std::vector<float> y(static_cast<size_t>(n));
    ASSERT_EQ(tavsLn_64f32f(x.data(), y.data(), n), StatusOk);
    double worst = 0;
    for (int i = 0; i < n; ++i)
        worst = std::max(worst, mt::ulp_error(y[size_t(i)], std::log((long double)x[size_t(i)])));
    std::printf("Ln_64f32f: max error %.3f ulp\n", worst);
    EXPECT_LE(worst, 1.0);

    for (int len = 4; len <= 9; ++len) { // tail elements follow the same rules
        std::vector<double> v(static_cast<size_t>(len), 2.0);
        v[size_t(len - 1)] = 4.9e-324;
        std::vector<float> out(static_cast<size_t>(len));
        EXPECT_EQ(tavsLn_64f32f(v.data(), out.data(), len), WarnLnZero);
        EXPECT_EQ(out[size_t(len - 1)], -INFINITY);
        EXPECT_TRUE(tt::same_bits(out[0], float(std::log(2.0))));
    }
    const double s[6] = {INFINITY, -2.0, 0.0, NAN, 1.0, -0.0};
    float o[6];
    EXPECT_EQ(tavsLn_64f32f(s, o, 6), WarnLnNegative);
    EXPECT_EQ(o[0], INFINITY);
    EXPECT_EQ(mt::bits(o[1]), 0xFFC00000u);
    EXPECT_EQ(o[2], -INFINITY);
    EXPECT_TRUE(std::isnan(o[3]));
    EXPECT_EQ(o[4], 0.0f);
    EXPECT_EQ(mt::bits(o[5]), 0xFFC00000u);
}

TEST(Ln, Errors)
{
    tt::Guarded<double> g(4);
    float f[4] = {1, 1, 1, 1};
    double d[4] = {1, 1, 1, 1};
    auto* gf = reinterpret_cast<float*>(g.data());
    EXPECT_EQ(tavsLn_32f(nullptr, gf, 4), ErrNullPtr);
    EXPECT_EQ(tavsLn_32f(f, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(tavsLn_32f(f, gf, 0), ErrSize);
    EXPECT_EQ(tavsLn_32f_I(nullptr, 0), ErrNullPtr);
    EXPECT_EQ(tavsLn_32f_I(gf, 0), ErrSize);
    EXPECT_EQ(tavsLn_64f(d, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(tavsLn_64f(d, g.data(), -3), ErrSize);
    EXPECT_EQ(tavsLn_64f_I(g.data(), 0), ErrSize);
    EXPECT_EQ(tavsLn_64f32f(nullptr, gf, 8), ErrNullPtr);
    EXPECT_EQ(tavsLn_64f32f(d, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(tavsLn_64f32f(d, gf, 0), ErrSize);
    EXPECT_TRUE(g.untouched());
}

// ---- SumLn --------------------------------------------------------------------------------
// The documented evaluation: exponent offsets summed as integers, mantissas
// multiplied in double, one log per block of at most 512.
template <class T> double ref_sumln(const std::vector<T>& x)
{
    double total = 0;
    for (size_t start = 0; start < x.size(); start += 512) {
        double prod = 1;
        int64_t es = 0;
        for (size_t i = start; i < std::min(x.size(), start + 512); ++i) {
            if constexpr (sizeof(T) == 4) {
                const uint32_t b = mt::bits(float(x[i]));
                es += int32_t(b - 0x3F000000u) >> 23;
                prod *= double(mt::f32((b & 0x7FFFFFu) | 0x3F000000u));
            } else {
                const uint64_t b = mt::bits(double(x[i]));
                es += int32_t(uint32_t(b >> 32) - 0x3FF00000u) >> 20;
                prod *= mt::f64((b & 0xFFFFFFFFFFFFFull) | 0x3FF0000000000000ull);
            }
        }
        total += std::log(prod) + double(es) * 0.6931471805599453;
    }
    return total;
}

TEST(SumLn, MatchesTheBlockEvaluationAndTheTrueSum)
{
    tt::Rng rng(23);
    for (int len : {1, 3, 511, 512, 513, 1500, 4000}) {
        std::vector<float> f(static_cast<size_t>(len));
        std::vector<double> d(static_cast<size_t>(len));
        std::vector<Tav16s> s(static_cast<size_t>(len));
        long double truth = 0, truthD = 0, truthS = 0;
        for (int i = 0; i < len; ++i) {
            f[size_t(i)] = float(std::exp(rng.uniform(-80, 80)));
            d[size_t(i)] = std::exp(rng.uniform(-700, 700));
            s[size_t(i)] = Tav16s(rng.range(1, 32767));
            truth += std::log((long double)f[size_t(i)]);
            truthD += std::log((long double)d[size_t(i)]);
            truthS += std::log((long double)s[size_t(i)]);
        }
        float sf = 0, s16 = 0;
        double sd = 0, sfd = 0;
        ASSERT_EQ(tavsSumLn_32f(f.data(), len, &sf), StatusOk);
        ASSERT_EQ(tavsSumLn_32f64f(f.data(), len, &sfd), StatusOk);
        ASSERT_EQ(tavsSumLn_64f(d.data(), len, &sd), StatusOk);
        ASSERT_EQ(tavsSumLn_16s32f(s.data(), len, &s16), StatusOk);
        EXPECT_TRUE(tt::same_bits(sf, float(ref_sumln(f))));
        EXPECT_TRUE(tt::same_bits(sfd, ref_sumln(f)));
        EXPECT_TRUE(tt::same_bits(sd, ref_sumln(d)));
        EXPECT_TRUE(tt::same_bits(s16, float(ref_sumln(s))));
        EXPECT_NEAR(double(sfd), double(truth), 1e-9 * len + 1e-12 * std::fabs(double(truth)));
        EXPECT_NEAR(sd, double(truthD), 1e-9 * len + 1e-12 * std::fabs(double(truthD)));
        EXPECT_NEAR(double(s16), double(truthS), 1e-6 * std::fabs(double(truthS)) + 1e-5);
    }
    // Without blocks 1500 factors of 1e-30 would leave the double range.
    std::vector<float> tiny(1500, 1e-30f);
    float sum = 0;
    ASSERT_EQ(tavsSumLn_32f(tiny.data(), 1500, &sum), StatusOk);
    EXPECT_NEAR(sum, 1500 * std::log(1e-30f), 0.05);
}

TEST(SumLn, StopsAtTheFirstSpecialElementWithoutReadingFurther)
{
    // 1, 0 at the end of a readable page; the -1 of the documented case
    // would lie on the next page, which cannot be read.
    const long page = sysconf(_SC_PAGESIZE);
    void* mem = mmap(nullptr, size_t(2 * page), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(mem, MAP_FAILED);
    ASSERT_EQ(mprotect(static_cast<char*>(mem) + page, size_t(page), PROT_NONE), 0);
    auto* end = reinterpret_cast<float*>(static_cast<char*>(mem) + page);
    end[-2] = 1.0f;
    end[-1] = 0.0f;
    float sum = 5;
    EXPECT_EQ(tavsSumLn_32f(end - 2, 3, &sum), WarnLnZero);
    EXPECT_EQ(sum, -INFINITY);
    munmap(mem, size_t(2 * page));

    const float neg[3] = {2.0f, -1.0f, 0.0f};
    EXPECT_EQ(tavsSumLn_32f(neg, 3, &sum), WarnLnNegative);
    EXPECT_EQ(mt::bits(sum), 0xFFC00000u);
    const float nan[3] = {2.0f, NAN, -1.0f};
    EXPECT_EQ(tavsSumLn_32f(nan, 3, &sum), StatusOk);
    EXPECT_TRUE(std::isnan(sum));
    const double d[2] = {-0.0, 0.0};
    double sd = 0;
    EXPECT_EQ(tavsSumLn_64f(d, 2, &sd), WarnLnNegative);
    EXPECT_EQ(mt::bits(sd), 0xFFF8000000000000ull);
    const Tav16s s[3] = {5, 0, -3};
    EXPECT_EQ(tavsSumLn_16s32f(s, 3, &sum), WarnLnZero);
    EXPECT_EQ(sum, -INFINITY);
    const float z[2] = {0.0f, -1.0f};
    EXPECT_EQ(tavsSumLn_32f64f(z, 2, &sd), WarnLnZero);
}

TEST(SumLn, Errors)
{
    float f[2] = {1, 2}, sum = 7;
    double d[2] = {1, 2}, sd = 7;
    Tav16s s[2] = {1, 2};
    EXPECT_EQ(tavsSumLn_32f(nullptr, 2, &sum), ErrNullPtr);
    EXPECT_EQ(tavsSumLn_32f(f, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsSumLn_32f(f, 0, &sum), ErrSize);
    EXPECT_EQ(tavsSumLn_64f(nullptr, 0, &sd), ErrNullPtr);
    EXPECT_EQ(tavsSumLn_64f(d, -1, &sd), ErrSize);
    EXPECT_EQ(tavsSumLn_32f64f(f, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsSumLn_16s32f(s, 0, &sum), ErrSize);
    EXPECT_EQ(sum, 7.0f);
    EXPECT_EQ(sd, 7.0);
}

} // namespace
