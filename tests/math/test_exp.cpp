// Float exponentials: the triage on bits, the batched evaluation against a
// plain reference of the same steps (bit for bit), the ulp error over a
// sweep of every 97th float in [-90, 90], the short-vector path through the
// math library, and the floating-point settings of the batch.
#include <gtest/gtest.h>

#include <cstdio>
#include <vector>

#include "math_test_util.h"
#include "tavs.h"
#include "test_util.h"

namespace {

// ---- references written from the rules ----------------------------------------
const double kShift = 6755399441055744.0; // 1.5 * 2^52

// Triage of Exp_32f; true when x is special and out holds its result.
bool ref_special32(float x, float& out)
{
    const uint32_t b = mt::bits(x), mag = b & 0x7FFFFFFFu;
    if (mag < 0x00800000u) return out = 1.0f, true;
    if (b >> 31) {
        if (b < 0xC2AEAC50u) return false;
        out = mag > 0x7F800000u ? mt::f32(0xFFC00000u) : 0.0f;
        return true;
    }
    if (b < 0x42B17218u) return false;
    out = mag > 0x7F800000u ? mt::f32(b | 0x00400000u) : INFINITY;
    return true;
}

// One group of four: Pade (B + A)/(B - A), one shared division, numerator
// and reciprocal rounded to float, n added to the exponent bits.
void ref_group32(const float* x, float* out)
{
    double t[4], N[4], D[4];
    for (int k = 0; k < 4; ++k) {
        t[k] = double(x[k]) * 1.4426950408889634 + kShift;
        const double n = t[k] - kShift;
        const double r = double(x[k]) - n * 0.6931471805599453, q = r * r;
        const double A = r * (60.0 + q), B = 12.0 * (q + 10.0);
        N[k] = B + A;
        D[k] = B - A;
    }
    const double p01 = D[0] * D[1], p23 = D[2] * D[3], I = 1.0 / (p01 * p23);
    const double rec[4] = {I * D[1] * p23, I * D[0] * p23, I * D[3] * p01, I * D[2] * p01};
    for (int k = 0; k < 4; ++k) {
        const float y = float(N[k]) * float(rec[k]);
        const uint32_t n = uint32_t(mt::bits(t[k]));
        out[k] = mt::f32(mt::bits(y) + (n << 23));
    }
}

std::vector<float> ref_exp32(const std::vector<float>& x)
{
    const int len = int(x.size());
    std::vector<float> y(x.size());
    if (len < 4) {
        for (int i = 0; i < len; ++i) {
            float s;
            y[i] = ref_special32(x[i], s) ? s : float(std::exp(double(x[i])));
        }
        return y;
    }
    float g[4];
    int gi[4], cnt = 0;
    for (int i = len - 1; i >= 0; --i) {
        float s;
        if (ref_special32(x[i], s)) {
            y[i] = s;
            continue;
        }
        g[cnt] = x[i];
        gi[cnt++] = i;
        if (cnt == 4) {
            float o[4];
            ref_group32(g, o);
            for (int k = 0; k < 4; ++k)
                y[gi[k]] = o[k];
            cnt = 0;
        }
    }
    for (int k = 0; k < cnt; ++k)
        y[gi[k]] = float(std::exp(double(g[k])));
    return y;
}

// Exp_64f: triage, then the reduction with split ln 2, c = r - q P(q), the
// shared division of 2 - c, n into the exponent field.
bool ref_special64(double x, double& out)
{
    const uint64_t b = mt::bits(x), mag = b & 0x7FFFFFFFFFFFFFFFull;
    if (mag < 0x4086232BDD7ABCD2ull) return false;
    if (mag > 0x7FF0000000000000ull) return out = mt::f64(b | 0x0008000000000000ull), true;
    if (b >> 63) return out = 0.0, true;
    if (b < 0x40862E42FEFA39E6ull) return false;
    return out = INFINITY, true;
}

void ref_group64(const double* x, double* out)
{
    double t[4], hi[4], lo[4], r[4], c[4], D[4];
    for (int k = 0; k < 4; ++k) {
        t[k] = x[k] * 1.4426950408889634 + kShift;
        const double n = t[k] - kShift;
        hi[k] = x[k] - n * 0.6931471803691238;
        lo[k] = n * 1.9082149292705877e-10;
        r[k] = hi[k] - lo[k];
        const double q = r[k] * r[k];
        const double P =
            0.16666666666666602 +
            q * (-0.0027777777777015593 +
                 q * (6.613756321437934e-5 + q * (-1.6533902205465252e-6 + q * 4.1381367970572385e-8)));
        c[k] = r[k] - q * P;
        D[k] = 2.0 - c[k];
    }
    const double p01 = D[0] * D[1], p23 = D[2] * D[3], I = 1.0 / (p01 * p23);
    const double rec[4] = {I * D[1] * p23, I * D[0] * p23, I * D[3] * p01, I * D[2] * p01};
    for (int k = 0; k < 4; ++k) {
        const double y = ((hi[k] + 1.0) - lo[k]) + r[k] * c[k] * rec[k];
        const uint64_t n = mt::bits(t[k]) - mt::bits(kShift);
        out[k] = mt::f64(mt::bits(y) + (n << 52));
    }
}

std::vector<double> ref_exp64(const std::vector<double>& x)
{
    const int len = int(x.size());
    std::vector<double> y(x.size());
    if (len < 4) {
        for (int i = 0; i < len; ++i)
            y[i] = std::exp(x[i]);
        return y;
    }
    double g[4];
    int gi[4], cnt = 0;
    for (int i = len - 1; i >= 0; --i) {
        double s;
        if (ref_special64(x[i], s)) {
            y[i] = s;
            continue;
        }
        g[cnt] = x[i];
        gi[cnt++] = i;
        if (cnt == 4) {
            double o[4];
            ref_group64(g, o);
            for (int k = 0; k < 4; ++k)
                y[gi[k]] = o[k];
            cnt = 0;
        }
    }
    for (int k = 0; k < cnt; ++k)
        y[gi[k]] = std::exp(g[k]);
    return y;
}

// Inputs that reach every path: ordinary values, zeros, denormals, the
// thresholds and their neighbours, infinities and NaNs.
float pick32(tt::Rng& r)
{
    static const uint32_t specials[] = {0x00000000u, 0x80000000u, 0x00000001u, 0x807FFFFFu,
                                        0xC2AEAC50u, 0xC2AEAC4Fu, 0x42B17218u, 0x42B17217u,
                                        0x7F800000u, 0xFF800000u, 0x7FC00000u, 0xFFC00001u,
                                        0x7F800001u, 0x00800000u, 0x3F800000u, 0xBF800000u};
    if (r.next() % 6 == 0) return mt::f32(specials[r.next() % (sizeof specials / 4)]);
    return float(r.uniform(-95.0, 95.0));
}

double pick64(tt::Rng& r)
{
    static const uint64_t specials[] = {0x4086232BDD7ABCD2ull, 0xC086232BDD7ABCD2ull, 0xC086232BDD7ABCD1ull,
                                        0x40862E42FEFA39E6ull, 0x40862E42FEFA39E5ull, 0x7FF0000000000000ull,
                                        0xFFF0000000000000ull, 0x7FF8000000000000ull, 0xFFF0000000000001ull,
                                        0x0000000000000001ull, 0x8000000000000000ull, 0x0ull};
    if (r.next() % 6 == 0) return mt::f64(specials[r.next() % (sizeof specials / 8)]);
    return r.uniform(-760.0, 760.0);
}

template <class T> bool same(const std::vector<T>& a, const T* b)
{
    for (size_t i = 0; i < a.size(); ++i)
        if (!tt::same_bits(a[i], b[i])) return false;
    return true;
}

// ---- Exp_32f --------------------------------------------------------------------------------
TEST(Exp32f, DocumentedEdges)
{
    for (int len : {1, 4, 9}) {
        std::vector<float> x(size_t(len), 1e-40f), y(static_cast<size_t>(len));
        x[0] = 1e-40f;
        if (len > 1) x[1] = -87.4f, x[2] = 88.8f;
        ASSERT_EQ(tavsExp_32f(x.data(), y.data(), len), StatusOk);
        EXPECT_EQ(y[0], 1.0f);
        if (len > 1) {
            EXPECT_TRUE(mt::bits(y[1]) == 0u) << y[1];
            EXPECT_EQ(y[2], INFINITY);
        }
    }
    float one = -87.4f, r = 1;
    ASSERT_EQ(tavsExp_32f(&one, &r, 1), StatusOk);
    EXPECT_EQ(r, 0.0f);
}

TEST(Exp32f, TriageThresholdsAndNaNs)
{
    const float x[8] = {mt::f32(0xC2AEAC50u),
                        mt::f32(0xC2AEAC4Fu),
                        mt::f32(0x42B17218u),
                        mt::f32(0x42B17217u),
                        mt::f32(0xFFC01234u),
                        mt::f32(0x7FC01234u),
                        -INFINITY,
                        mt::f32(0x807FFFFFu)};
    float y[8];
    ASSERT_EQ(tavsExp_32f(x, y, 8), StatusOk);
    EXPECT_EQ(y[0], 0.0f);
    EXPECT_GE(y[1], 1.1754942e-38f); // ordinary: a normal result, not a broken exponent
    EXPECT_EQ(y[2], INFINITY);
    EXPECT_TRUE(std::isfinite(y[3]));
    EXPECT_GT(y[3], 3.4e38f);
    EXPECT_EQ(mt::bits(y[4]), 0xFFC00000u);
    EXPECT_TRUE(std::isnan(y[5]));
    EXPECT_FALSE(std::signbit(y[5]));
    EXPECT_EQ(y[6], 0.0f);
    EXPECT_EQ(y[7], 1.0f);
}

TEST(Exp32f, BitExactAgainstTheStepsAllLengthsAndOffsets)
{
    tt::Rng rng(11);
    for (int len = 0; len <= 70; ++len)
        for (int off = 0; off < 16; ++off) {
            std::vector<float> x(static_cast<size_t>(len));
            for (auto& v : x)
                v = pick32(rng);
            tt::Guarded<float> dst(size_t(len), size_t(off) * 4);
            const float one = 1.0f;
            const Status st = tavsExp_32f(len ? x.data() : &one, dst.data(), len);
            if (len == 0) {
                EXPECT_EQ(st, ErrSize);
                EXPECT_TRUE(dst.untouched());
                continue;
            }
            ASSERT_EQ(st, StatusOk);
            ASSERT_TRUE(same(ref_exp32(x), dst.data())) << "len " << len;
            EXPECT_TRUE(dst.borders_intact());
            std::vector<float> io = x; // in place equals out of place
            ASSERT_EQ(tavsExp_32f_I(io.data(), len), StatusOk);
            ASSERT_TRUE(same(io, dst.data()));
        }
}

TEST(Exp32f, SweepEvery97thFloatWithin2Ulp)
{
    const uint32_t stride = 97u * mt::kSlow;
    std::vector<float> x, y;
    x.reserve(1 << 16);
    double worst = 0;
    float worstX = 0;
    long count = 0;
    auto flush = [&] {
        y.resize(x.size());
        ASSERT_EQ(tavsExp_32f(x.data(), y.data(), int(x.size())), StatusOk);
        for (size_t i = 0; i < x.size(); ++i) {
            // exp in double is exact far below a float ulp
            const double e = mt::ulp_error(y[i], static_cast<long double>(std::exp(double(x[i]))));
            if (e > worst) worst = e, worstX = x[i];
        }
        count += long(x.size());
        x.clear();
    };
    for (uint32_t sign : {0u, 0x80000000u})
        for (uint32_t b = 0x00800000u; b <= 0x42B40000u; b += stride) {
            const float v = mt::f32(b | sign);
            if (v <= -87.3365478515625f || v >= 88.72283935546875f) continue; // the triaged ends
            x.push_back(v);
            if (x.size() == (1u << 16)) flush();
        }
    flush();
    std::printf("Exp_32f: %ld values, max error %.3f ulp at %.9g\n", count, worst, double(worstX));
    ::testing::Test::RecordProperty("exp32f_max_ulp", std::to_string(worst));
    EXPECT_LE(worst, 2.0);
}

TEST(Exp32f, ShortVectorsUseTheMathLibrary)
{
    for (float v : {-3.25f, 0.1f, 80.0f, -87.0f}) {
        float y = 0;
        ASSERT_EQ(tavsExp_32f(&v, &y, 1), StatusOk);
        EXPECT_TRUE(tt::same_bits(y, float(std::exp(double(v)))));
    }
}

TEST(Exp32f, OwnRoundingInsideCallersStateKept)
{
    tt::Rng rng(5);
    std::vector<float> x(64);
    for (auto& v : x)
        v = float(rng.uniform(-80, 80));
    std::vector<float> a(64), b(64);
    ASSERT_EQ(tavsExp_32f(x.data(), a.data(), 64), StatusOk);
    for (int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO})
        mt::with_rounding(mode, [&] {
            ASSERT_EQ(tavsExp_32f(x.data(), b.data(), 64), StatusOk);
            EXPECT_EQ(std::fegetround(), mode);
        });
    // The batch runs with its own settings, so the caller's direction does
    // not move a bit of the grouped results (the last 1..3 are libm's).
    for (int i = 3; i < 64; ++i)
        EXPECT_TRUE(tt::same_bits(a[i], b[i])) << i;
}

TEST(Exp32f, Errors)
{
    tt::Guarded<float> g(8);
    float src[8] = {};
    EXPECT_EQ(tavsExp_32f(nullptr, g.data(), 8), ErrNullPtr);
    EXPECT_EQ(tavsExp_32f(src, nullptr, 8), ErrNullPtr);
    EXPECT_EQ(tavsExp_32f(nullptr, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(tavsExp_32f(src, g.data(), 0), ErrSize);
    EXPECT_EQ(tavsExp_32f(src, g.data(), -4), ErrSize);
    EXPECT_EQ(tavsExp_32f_I(nullptr, 4), ErrNullPtr);
    EXPECT_EQ(tavsExp_32f_I(g.data(), 0), ErrSize);
    EXPECT_TRUE(g.untouched());
}

// ---- Exp_64f, Exp_32f64f ---------------------------------------------------------------------
TEST(Exp64f, DocumentedEdges)
{
    double x3[3] = {-710.0, 0.0, 1.0}, y3[3];
    ASSERT_EQ(tavsExp_64f(x3, y3, 3), StatusOk);
    EXPECT_GT(y3[0], 0.0);
    EXPECT_LT(y3[0], 2.2250738585072014e-308); // a denormal from the math library
    double x4[4] = {-710.0, 0.0, 1.0, 2.0}, y4[4];
    ASSERT_EQ(tavsExp_64f(x4, y4, 4), StatusOk);
    EXPECT_EQ(mt::bits(y4[0]), 0u); // exactly 0 from the batched path
}

TEST(Exp64f, TriageAndBoundaries)
{
    const double x[8] = {mt::f64(0x40862E42FEFA39E6ull),
                         mt::f64(0x40862E42FEFA39E5ull),
                         mt::f64(0xC086232BDD7ABCD2ull),
                         mt::f64(0xC086232BDD7ABCD1ull),
                         mt::f64(0xFFF0000000001234ull),
                         mt::f64(0x7FF0000000001234ull),
                         709.0,
                         -INFINITY};
    double y[8];
    ASSERT_EQ(tavsExp_64f(x, y, 8), StatusOk);
    EXPECT_EQ(y[0], INFINITY);
    EXPECT_TRUE(std::isfinite(y[1]));
    EXPECT_GT(y[1], 1.79e308);
    EXPECT_EQ(y[2], 0.0);
    EXPECT_GE(y[3], 2.2250738585072014e-308); // normal, never a broken exponent
    EXPECT_TRUE(std::isnan(y[4]) && std::signbit(y[4]));
    EXPECT_EQ(mt::bits(y[4]), 0xFFF8000000001234ull);
    EXPECT_TRUE(std::isnan(y[5]) && !std::signbit(y[5]));
    EXPECT_NEAR(y[6], 8.218407461554972e307, 1e293);
    EXPECT_EQ(y[7], 0.0);
}

TEST(Exp64f, BitExactAgainstTheStepsAllLengthsAndOffsets)
{
    tt::Rng rng(12);
    for (int len = 1; len <= 70; ++len)
        for (int off = 0; off < 16; ++off) {
            std::vector<double> x(static_cast<size_t>(len));
            for (auto& v : x)
                v = pick64(rng);
            tt::Guarded<double> dst(size_t(len), size_t(off) * 8);
            ASSERT_EQ(tavsExp_64f(x.data(), dst.data(), len), StatusOk);
            ASSERT_TRUE(same(ref_exp64(x), dst.data())) << "len " << len;
            EXPECT_TRUE(dst.borders_intact());
            std::vector<double> io = x;
            ASSERT_EQ(tavsExp_64f_I(io.data(), len), StatusOk);
            ASSERT_TRUE(same(io, dst.data()));
        }
}

TEST(Exp64f, AccuracyWithin1p5Ulp)
{
    tt::Rng rng(13);
    const int n = 200000 / mt::kSlow;
    std::vector<double> x(static_cast<size_t>(n)), y(static_cast<size_t>(n));
    for (auto& v : x)
        v = rng.uniform(-708.39, 709.78);
    for (int i = 0; i < 64; ++i)
        x[size_t(i)] = rng.uniform(-1e-3, 1e-3);
    ASSERT_EQ(tavsExp_64f(x.data(), y.data(), n), StatusOk);
    double worst = 0;
    for (int i = 0; i < n; ++i)
        worst = std::max(worst, mt::ulp_error(y[size_t(i)], std::exp((long double)x[size_t(i)])));
    std::printf("Exp_64f: max error %.3f ulp\n", worst);
    ::testing::Test::RecordProperty("exp64f_max_ulp", std::to_string(worst));
    EXPECT_LE(worst, 1.5); // the shared reciprocal adds a fraction of an ulp
}

TEST(Exp32f64f, IsThe64fEvaluationOfWidenedInputs)
{
    tt::Rng rng(14);
    for (int len : {1, 2, 3, 4, 5, 17, 64}) {
        std::vector<float> x(static_cast<size_t>(len));
        for (auto& v : x)
            v = pick32(rng);
        std::vector<double> wide(x.begin(), x.end()), ref(static_cast<size_t>(len)),
            y(static_cast<size_t>(len));
        ASSERT_EQ(tavsExp_64f(wide.data(), ref.data(), len), StatusOk);
        ASSERT_EQ(tavsExp_32f64f(x.data(), y.data(), len), StatusOk);
        for (int i = 0; i < len; ++i)
            EXPECT_TRUE(tt::same_bits(y[size_t(i)], ref[size_t(i)])) << i;
    }
}

TEST(Exp64f, Errors)
{
    tt::Guarded<double> g(8);
    double src[8] = {};
    float fsrc[8] = {};
    EXPECT_EQ(tavsExp_64f(nullptr, g.data(), 8), ErrNullPtr);
    EXPECT_EQ(tavsExp_64f(src, nullptr, 8), ErrNullPtr);
    EXPECT_EQ(tavsExp_64f(src, g.data(), 0), ErrSize);
    EXPECT_EQ(tavsExp_64f_I(nullptr, 0), ErrNullPtr);
    EXPECT_EQ(tavsExp_64f_I(g.data(), -1), ErrSize);
    EXPECT_EQ(tavsExp_32f64f(nullptr, g.data(), 3), ErrNullPtr);
    EXPECT_EQ(tavsExp_32f64f(fsrc, g.data(), 0), ErrSize);
    EXPECT_TRUE(g.untouched());
}

} // namespace
