// The post-step and the pre-step bit for bit: the half-length complex
// transform (the exported complex FFT on a record of order - 1 has the same
// tables as the real record's half-length part) followed by the post-step
// written out here one pair at a time from the record's real tables must
// give exactly the real forward transform; the pre-step written out here
// followed by the complex inverse exactly the real inverse. This covers the
// register lanes against the one-pair tail, the small tables and the
// two-level tables (from order 19 in 32f, 18 in 64f), and the tables' values
// against their formulas.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <type_traits>
#include <vector>

#include "internal/fft.h"
#include "rfft_test_util.h"

namespace {

template <class S> struct Cx;
template <> struct Cx<float> {
    using Spec = FFTSpec_C_32fc;
    static Status alloc(Spec** p, int o) { return tavsFFTInitAlloc_C_32fc(p, o, ScaleNever, 0); }
    static void release(Spec* p) { tavsFFTFree_C_32fc(p); }
    static Status fwd(const float* s, float* d, const Spec* p)
    {
        return tavsFFTFwd_CToC_32fc(reinterpret_cast<const Tav32fc*>(s), reinterpret_cast<Tav32fc*>(d), p, nullptr);
    }
    static Status inv(float* d, const Spec* p) { return tavsFFTInv_CToC_32fc_I(reinterpret_cast<Tav32fc*>(d), p, nullptr); }
};
template <> struct Cx<double> {
    using Spec = FFTSpec_C_64fc;
    static Status alloc(Spec** p, int o) { return tavsFFTInitAlloc_C_64fc(p, o, ScaleNever, 0); }
    static void release(Spec* p) { tavsFFTFree_C_64fc(p); }
    static Status fwd(const double* s, double* d, const Spec* p)
    {
        return tavsFFTFwd_CToC_64fc(reinterpret_cast<const Tav64fc*>(s), reinterpret_cast<Tav64fc*>(d), p, nullptr);
    }
    static Status inv(double* d, const Spec* p) { return tavsFFTInv_CToC_64fc_I(reinterpret_cast<Tav64fc*>(d), p, nullptr); }
};

// The twiddle (p, q) of pair k: the small tables directly; the two-level
// ones as outer entry of the block times inner entry.
template <class S> void twiddle(const S* t, bool twoLevel, int64_t k, S& p, S& q)
{
    if (!twoLevel) {
        p = t[2 * k], q = t[2 * k + 1];
        return;
    }
    const int64_t B = sizeof(S) == 4 ? 1024 : 512;
    const int64_t j = k / B, i = k % B;
    const S ip = t[2 * i], iq = t[2 * i + 1], s = t[2 * (B + j)], u = t[2 * (B + j) + 1];
    p = ip * s - iq * u;
    q = ip * u + iq * s;
}

// The post-step written out one pair at a time, in place on d.
template <class S> void post_step_model(const tavs::fft::FloatSpec<S>* fs, bool twoLevel, S* d, int64_t N)
{
    const int64_t M = N / 2;
    const S z0 = d[0], z1 = d[1];
    d[0] = z0 + z1;
    d[1] = z0 - z1;
    for (int64_t k = 1; k < M / 2; ++k) {
        const int64_t m = 2 * (M - k);
        const S a = d[2 * k], b = d[2 * k + 1], c = d[m], e = d[m + 1];
        S p, q;
        twiddle(fs->realFwd, twoLevel, k, p, q);
        if (!twoLevel) {
            const S u = a - c, v = b + e, w = p * v + q * u, xx = v * q - u * p;
            d[2 * k] = c + w, d[2 * k + 1] = xx - e, d[m] = a - w, d[m + 1] = xx - b;
        } else {
            const S g = p, h = q, hf = S(0.5);
            const S u = (a - c) * hf, v = (b + e) * hf, ee = (a + c) * hf, f = (b - e) * hf;
            const S w = h * u + g * v, xx = h * v - g * u;
            d[2 * k] = w + ee, d[2 * k + 1] = xx + f, d[m] = ee - w, d[m + 1] = xx - f;
        }
    }
    d[M + 1] = -d[M + 1];
}

// A real record of one order and flag, the complex record of half the
// length, a random signal x and its half-length complex spectrum z.
template <class P> struct StepCase {
    using S = typename P::S;
    using C = Cx<S>;
    int64_t N;
    bool twoLevel;
    rt::Record<P> rec;
    typename C::Spec* cx = nullptr;
    const tavs::fft::FloatSpec<S>* fs;
    std::vector<S> x, z;
    StepCase(int order, int flag, unsigned seed)
        : N(int64_t(1) << order), twoLevel(order >= (sizeof(S) == 4 ? 19 : 18)), rec(order, flag),
          fs(reinterpret_cast<const tavs::fft::FloatSpec<S>*>(rec.p)), z(static_cast<size_t>(N))
    {
        EXPECT_EQ(C::alloc(&cx, order - 1), StatusOk);
        const std::vector<double> xd = rt::random_real(seed, size_t(N));
        x.assign(xd.begin(), xd.end());
        EXPECT_EQ(C::fwd(x.data(), z.data(), cx), StatusOk);
    }
    StepCase(const StepCase&) = delete;
    StepCase& operator=(const StepCase&) = delete;
    ~StepCase()
    {
        if (cx) C::release(cx);
    }
};

template <class P> void check_steps(int order)
{
    using S = typename P::S;
    StepCase<P> t(order, ScaleNever, 600 + unsigned(order));
    const int64_t N = t.N, M = N / 2;
    const auto* fs = t.fs;
    const bool twoLevel = t.twoLevel;

    // Forward.
    std::vector<S> d = t.z, got(static_cast<size_t>(N));
    post_step_model(fs, twoLevel, d.data(), N);
    ASSERT_EQ(P::fwd(rt::Perm, t.x.data(), got.data(), t.rec.p, nullptr), StatusOk);
    EXPECT_EQ(std::memcmp(d.data(), got.data(), size_t(N) * sizeof(S)), 0) << P::name << " forward order " << order;

    // Inverse from the spectrum just computed.
    const std::vector<S> X = got;
    for (int64_t k = 1; k < M / 2; ++k) {
        const int64_t m = 2 * (M - k);
        const S a = X[2 * k], b = X[2 * k + 1], c = X[m], e = X[m + 1];
        S p, q;
        twiddle(fs->realInv, twoLevel, k, p, q);
        const S u = a - c, v = b + e, g = q * u - p * v, h = p * u + q * v;
        d[2 * k] = a + c + g, d[2 * k + 1] = b - e + h, d[m] = a + c - g, d[m + 1] = h - (b - e);
    }
    d[0] = X[0] + X[1];
    d[1] = X[0] - X[1];
    d[M] = S(2) * X[M];
    d[M + 1] = S(-2) * X[M + 1];
    ASSERT_EQ(Cx<S>::inv(d.data(), t.cx), StatusOk);
    ASSERT_EQ(P::inv(rt::Perm, X.data(), got.data(), t.rec.p, nullptr), StatusOk);
    EXPECT_EQ(std::memcmp(d.data(), got.data(), size_t(N) * sizeof(S)), 0) << P::name << " inverse order " << order;
}

template <class P> struct RealSteps : ::testing::Test {};
TYPED_TEST_SUITE(RealSteps, rt::Precisions);

TYPED_TEST(RealSteps, BitExactAgainstOnePairAtATime)
{
#if defined(__SANITIZE_ADDRESS__)
    const int top = 19;
#else
    const int top = 20;
#endif
    for (int order = 6; order <= top; ++order) check_steps<TypeParam>(order);
}

// The forward scaled and in place: the scale pass falls between the
// half-length transform and the post-step, and the in-place permutation
// must give the same values as the out-of-place one.
template <class P> void check_forward_scaled_in_place(int order)
{
    using S = typename P::S;
    StepCase<P> t(order, ScaleFwdByLen, 700 + unsigned(order));
    const size_t N = size_t(t.N);
    std::vector<S> want = t.z, got(N);
    for (S& v : want) v *= t.fs->scale.value;
    post_step_model(t.fs, t.twoLevel, want.data(), t.N);
    ASSERT_EQ(P::fwd(rt::Perm, t.x.data(), got.data(), t.rec.p, nullptr), StatusOk);
    EXPECT_EQ(std::memcmp(want.data(), got.data(), N * sizeof(S)), 0) << P::name << " order " << order;
    got = t.x;
    ASSERT_EQ(P::fwd(rt::Perm, got.data(), got.data(), t.rec.p, nullptr), StatusOk);
    EXPECT_EQ(std::memcmp(want.data(), got.data(), N * sizeof(S)), 0) << P::name << " in place order " << order;
}

TYPED_TEST(RealSteps, ForwardScaledAndInPlace)
{
    for (int order = 6; order <= 18; ++order) check_forward_scaled_in_place<TypeParam>(order);
}

// The real tables against their formulas: small forward (0.5 cos t,
// 0.5 - 0.5 sin t), small inverse and both two-level tables (cos t, -sin t).
TYPED_TEST(RealSteps, TablesHoldTheTwiddles)
{
    using P = TypeParam;
    using S = typename P::S;
    const double tol = sizeof(S) == 4 ? 6e-8 : 2e-16;
    const long double pi = 3.141592653589793238462643383279502884L;
    for (int order : {6, 10, 12, 17, 18, 19}) {
        const int64_t N = int64_t(1) << order;
        rt::Record<P> rec(order, ScaleNever);
        const auto* fs = reinterpret_cast<const tavs::fft::FloatSpec<S>*>(rec.p);
        const bool twoLevel = order >= (sizeof(S) == 4 ? 19 : 18);
        const int64_t B = sizeof(S) == 4 ? 1024 : 512;
        auto at = [&](int64_t e, double& c, double& s) {
            c = double(cosl(2 * pi * (long double)e / (long double)N));
            s = double(sinl(2 * pi * (long double)e / (long double)N));
        };
        double c, s;
        if (!twoLevel) {
            for (int64_t k = 0; k < N / 4; k += (N / 4 > 4096 ? 7 : 1)) {
                at(k, c, s);
                EXPECT_NEAR(fs->realFwd[2 * k], 0.5 * c, tol) << order << " " << k;
                EXPECT_NEAR(fs->realFwd[2 * k + 1], 0.5 - 0.5 * s, tol) << order << " " << k;
                EXPECT_NEAR(fs->realInv[2 * k], c, tol) << order << " " << k;
                EXPECT_NEAR(fs->realInv[2 * k + 1], -s, tol) << order << " " << k;
            }
        } else {
            for (int64_t k = 0; k < B; ++k) {
                at(k, c, s);
                EXPECT_NEAR(fs->realFwd[2 * k], c, tol);
                EXPECT_NEAR(fs->realFwd[2 * k + 1], -s, tol);
            }
            for (int64_t j = 0; j < (N / 4 + B - 1) / B; ++j) {
                at(j * B, c, s);
                EXPECT_NEAR(fs->realFwd[2 * (B + j)], c, tol);
                EXPECT_NEAR(fs->realFwd[2 * (B + j) + 1], -s, tol);
            }
            EXPECT_EQ(std::memcmp(fs->realFwd, fs->realInv, size_t(2 * (B + N / 4 / B)) * sizeof(S)), 0);
        }
    }
}

} // namespace
