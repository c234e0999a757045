// The direct real kernels (1 to 32 points): the layouts of 1, 2 and 4
// points exactly, every kernel against the long-double reference, the scale
// folded into the outputs, and every one of the 24 transforms by name.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

#include "rfft_test_util.h"

namespace {

using rt::cld;

struct Rec32 {
    FFTSpec_R_32f* p = nullptr;
    Rec32(int order, int flag) { EXPECT_EQ(tavsFFTInitAlloc_R_32f(&p, order, flag, 0), StatusOk); }
    ~Rec32() { tavsFFTFree_R_32f(p); }
};
struct Rec64 {
    FFTSpec_R_64f* p = nullptr;
    Rec64(int order, int flag) { EXPECT_EQ(tavsFFTInitAlloc_R_64f(&p, order, flag, 0), StatusOk); }
    ~Rec64() { tavsFFTFree_R_64f(p); }
};

// N = 1: Perm and Pack [x0], CCS [x0, 0]; the inverse gives x0 back.
TEST(RealSmall, OnePoint)
{
    Rec32 r(0, ScaleNever);
    const float x[1] = {2.5f};
    float d[3] = {9, 9, 9};
    ASSERT_EQ(tavsFFTFwd_RToPerm_32f(x, d, r.p, nullptr), StatusOk);
    EXPECT_EQ(d[0], 2.5f);
    EXPECT_EQ(d[1], 9.0f);
    ASSERT_EQ(tavsFFTFwd_RToPack_32f(x, d, r.p, nullptr), StatusOk);
    EXPECT_EQ(d[0], 2.5f);
    EXPECT_EQ(d[1], 9.0f);
    ASSERT_EQ(tavsFFTFwd_RToCCS_32f(x, d, r.p, nullptr), StatusOk);
    EXPECT_EQ(d[0], 2.5f);
    EXPECT_EQ(d[1], 0.0f);
    EXPECT_EQ(d[2], 9.0f); // N + 1 values for one point
    const float c[2] = {-4.0f, 7.0f};
    float y[2] = {9, 9};
    ASSERT_EQ(tavsFFTInv_CCSToR_32f(c, y, r.p, nullptr), StatusOk);
    EXPECT_EQ(y[0], -4.0f);
    EXPECT_EQ(y[1], 9.0f);
    Rec64 s(0, ScaleNever);
    double io[2] = {3.0, 5.0};
    ASSERT_EQ(tavsFFTFwd_RToCCS_64f_I(io, s.p, nullptr), StatusOk);
    EXPECT_EQ(io[0], 3.0);
    EXPECT_EQ(io[1], 0.0);
    ASSERT_EQ(tavsFFTInv_PermToR_64f_I(io, s.p, nullptr), StatusOk);
    EXPECT_EQ(io[0], 3.0);
}

// N = 2: Perm = Pack = [x0 + x1, x0 - x1]; CCS [x0 + x1, 0, x0 - x1, 0].
TEST(RealSmall, TwoPoints)
{
    Rec64 r(1, ScaleNever);
    const double x[2] = {5.0, 3.0};
    double d[4];
    ASSERT_EQ(tavsFFTFwd_RToPerm_64f(x, d, r.p, nullptr), StatusOk);
    EXPECT_EQ(d[0], 8.0);
    EXPECT_EQ(d[1], 2.0);
    ASSERT_EQ(tavsFFTFwd_RToPack_64f(x, d, r.p, nullptr), StatusOk);
    EXPECT_EQ(d[0], 8.0);
    EXPECT_EQ(d[1], 2.0);
    std::memset(d, 0x55, sizeof d);
    ASSERT_EQ(tavsFFTFwd_RToCCS_64f(x, d, r.p, nullptr), StatusOk);
    EXPECT_EQ(d[0], 8.0);
    EXPECT_EQ(d[1], 0.0);
    EXPECT_FALSE(std::signbit(d[1]));
    EXPECT_EQ(d[2], 2.0);
    EXPECT_EQ(d[3], 0.0);
    // Inverse, unscaled: twice the input.
    double y[2];
    ASSERT_EQ(tavsFFTInv_CCSToR_64f(d, y, r.p, nullptr), StatusOk);
    EXPECT_EQ(y[0], 10.0);
    EXPECT_EQ(y[1], 6.0);
    const double pk[2] = {8.0, 2.0};
    ASSERT_EQ(tavsFFTInv_PackToR_64f(pk, y, r.p, nullptr), StatusOk);
    EXPECT_EQ(y[0], 10.0);
    EXPECT_EQ(y[1], 6.0);
    double io[2] = {8.0, 2.0};
    ASSERT_EQ(tavsFFTInv_PackToR_64f_I(io, r.p, nullptr), StatusOk);
    EXPECT_EQ(io[0], 10.0);
    EXPECT_EQ(io[1], 6.0);
}

// N = 4 in Pack: [X0, Re X1, Im X1, X2]; the others by their rules.
TEST(RealSmall, FourPoints)
{
    Rec32 r(2, ScaleNever);
    const float x[4] = {1, 2, 4, 8};
    // X0 = 15, X1 = (1 - 4) + i(8 - 2) = -3 + 6i, X2 = 1 - 2 + 4 - 8 = -5.
    float d[6];
    ASSERT_EQ(tavsFFTFwd_RToPack_32f(x, d, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::vector<float>(d, d + 4), (std::vector<float>{15, -3, 6, -5}));
    ASSERT_EQ(tavsFFTFwd_RToPerm_32f(x, d, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::vector<float>(d, d + 4), (std::vector<float>{15, -5, -3, 6}));
    ASSERT_EQ(tavsFFTFwd_RToCCS_32f(x, d, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::vector<float>(d, d + 6), (std::vector<float>{15, 0, -3, 6, -5, 0}));
    // In place, the CCS buffer of N + 2.
    float io[6] = {1, 2, 4, 8, 77, 77};
    ASSERT_EQ(tavsFFTFwd_RToCCS_32f_I(io, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::vector<float>(io, io + 6), (std::vector<float>{15, 0, -3, 6, -5, 0}));
    ASSERT_EQ(tavsFFTInv_CCSToR_32f_I(io, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::vector<float>(io, io + 4), (std::vector<float>{4, 8, 16, 32}));
    float pk[4] = {1, 2, 4, 8};
    ASSERT_EQ(tavsFFTFwd_RToPack_32f_I(pk, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::vector<float>(pk, pk + 4), (std::vector<float>{15, -3, 6, -5}));
    ASSERT_EQ(tavsFFTInv_PackToR_32f_I(pk, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::vector<float>(pk, pk + 4), (std::vector<float>{4, 8, 16, 32}));
    float pm[4] = {1, 2, 4, 8};
    ASSERT_EQ(tavsFFTFwd_RToPerm_32f_I(pm, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::vector<float>(pm, pm + 4), (std::vector<float>{15, -5, -3, 6}));
    float y[4];
    ASSERT_EQ(tavsFFTInv_PermToR_32f(pm, y, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::vector<float>(y, y + 4), (std::vector<float>{4, 8, 16, 32}));
    ASSERT_EQ(tavsFFTInv_PackToR_32f(std::vector<float>{15, -3, 6, -5}.data(), y, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::vector<float>(y, y + 4), (std::vector<float>{4, 8, 16, 32}));
    ASSERT_EQ(tavsFFTInv_PermToR_32f_I(pm, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::vector<float>(pm, pm + 4), (std::vector<float>{4, 8, 16, 32}));
}

// The 64f forms by name on 8 points: every layout and direction agrees with
// the 32f forms on values exact in both.
TEST(RealSmall, EveryFormByName)
{
    Rec64 r(3, ScaleNever);
    Rec32 f(3, ScaleNever);
    const double x[8] = {1, -2, 3, 0.5, -1, 4, 2, -3};
    const float xf[8] = {1, -2, 3, 0.5f, -1, 4, 2, -3};
    double a[10], b[10];
    float c[10];
    ASSERT_EQ(tavsFFTFwd_RToPerm_64f(x, a, r.p, nullptr), StatusOk);
    std::memcpy(b, x, sizeof x);
    ASSERT_EQ(tavsFFTFwd_RToPerm_64f_I(b, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::memcmp(a, b, 8 * sizeof(double)), 0);
    ASSERT_EQ(tavsFFTFwd_RToPerm_32f(xf, c, f.p, nullptr), StatusOk);
    for (int i = 0; i < 8; ++i) EXPECT_NEAR(c[i], a[i], 1e-5) << i;
    ASSERT_EQ(tavsFFTFwd_RToPack_64f(x, a, r.p, nullptr), StatusOk);
    std::memcpy(b, x, sizeof x);
    ASSERT_EQ(tavsFFTFwd_RToPack_64f_I(b, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::memcmp(a, b, 8 * sizeof(double)), 0);
    ASSERT_EQ(tavsFFTFwd_RToCCS_64f(x, a, r.p, nullptr), StatusOk);
    ASSERT_EQ(tavsFFTInv_CCSToR_64f(a, b, r.p, nullptr), StatusOk);
    for (int i = 0; i < 8; ++i) EXPECT_NEAR(b[i], 8 * x[i], 1e-13) << i;
    ASSERT_EQ(tavsFFTInv_CCSToR_64f_I(a, r.p, nullptr), StatusOk);
    EXPECT_EQ(std::memcmp(a, b, 8 * sizeof(double)), 0);
    ASSERT_EQ(tavsFFTFwd_RToPerm_64f(x, a, r.p, nullptr), StatusOk);
    ASSERT_EQ(tavsFFTInv_PermToR_64f(a, b, r.p, nullptr), StatusOk);
    for (int i = 0; i < 8; ++i) EXPECT_NEAR(b[i], 8 * x[i], 1e-13) << i;
    ASSERT_EQ(tavsFFTFwd_RToPack_64f(x, a, r.p, nullptr), StatusOk);
    ASSERT_EQ(tavsFFTInv_PackToR_64f(a, b, r.p, nullptr), StatusOk);
    for (int i = 0; i < 8; ++i) EXPECT_NEAR(b[i], 8 * x[i], 1e-13) << i;
}

// Every direct kernel (orders 0 .. 5) and the first table order against the
// reference, and the scale folded in: the scaled record's output is the
// unscaled output times the scale, bit for bit, in the forward direction.
template <class P> void direct_kernels()
{
    using S = typename P::S;
    for (int order = 0; order <= 6; ++order) {
        const size_t n = size_t(1) << order;
        const std::vector<double> x = rt::random_real(40 + unsigned(order), n);
        const std::vector<cld> ref = rt::ref_forward(x);
        rt::Record<P> plain(order, ScaleNever), scaled(order, ScaleFwdByLen);
        const std::vector<S> xs(x.begin(), x.end());
        std::vector<S> a(n), b(n);
        ASSERT_EQ(P::fwd(rt::Perm, xs.data(), a.data(), plain.p, nullptr), StatusOk);
        ASSERT_EQ(P::fwd(rt::Perm, xs.data(), b.data(), scaled.p, nullptr), StatusOk);
        EXPECT_LT(rt::spectrum_error(ref, rt::from_layout(rt::Perm, a, n)), ft::bound<S>(order)) << order;
        const S s = S(1) / S(n);
        if (order <= 5) // the direct kernels fold the scale into each output
            for (size_t i = 0; i < n; ++i) EXPECT_TRUE(tt::same_bits(S(a[i] * s), b[i])) << order << " " << i;
        const std::vector<cld> X = rt::random_spectrum(50 + unsigned(order), n);
        const std::vector<long double> y = rt::ref_inverse(X, n);
        const std::vector<S> in = rt::to_layout<S>(rt::Perm, X, n);
        std::vector<S> out(n);
        ASSERT_EQ(P::inv(rt::Perm, in.data(), out.data(), plain.p, nullptr), StatusOk);
        EXPECT_LT(rt::signal_error(y, out.data()), ft::bound<S>(order)) << order;
    }
}
TEST(RealSmall, DirectKernels32f) { direct_kernels<rt::R32>(); }
TEST(RealSmall, DirectKernels64f) { direct_kernels<rt::R64>(); }

} // namespace
