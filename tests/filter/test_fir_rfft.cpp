// The real FFT operations of the FIR overlap-save path (forward to Perm
// order, the Perm product, inverse), seen through FIR records whose
// transform lengths cover the small, medium and large real FFT paths.
#include <gtest/gtest.h>

#include "fir_float_tests.h"

namespace {

template <class X> void through_orders()
{
    tt::Rng r(sizeof(X));
    for (int n : {64, 100, 300, 1000, 2100, 5000}) {
        const auto h = firt::rnd_vec<X>(r, size_t(n), 1.0 / std::sqrt(double(n)));
        const auto d = firt::rnd_vec<X>(r, size_t(n), 1.0);
        const int len = 3 * n + 17;
        const auto x = firt::rnd_vec<X>(r, size_t(len), 1.0);
        std::vector<Tav8u> blk;
        int sz = 0;
        void* st = nullptr;
        std::vector<X> y(static_cast<size_t>(len));
        if constexpr (std::is_same_v<X, Tav32f>) {
            ASSERT_EQ(tavsFIRGetStateSize_32f(n, &sz), StatusOk);
            blk.resize(size_t(sz));
            ASSERT_EQ(tavsFIRInit_32f(reinterpret_cast<FIRState_32f**>(&st), h.data(), n, d.data(), blk.data()), StatusOk);
            ASSERT_EQ(tavsFIR_32f(x.data(), y.data(), len, static_cast<FIRState_32f*>(st)), StatusOk);
        } else {
            ASSERT_EQ(tavsFIRGetStateSize_64f(n, &sz), StatusOk);
            blk.resize(size_t(sz));
            ASSERT_EQ(tavsFIRInit_64f(reinterpret_cast<FIRState_64f**>(&st), h.data(), n, d.data(), blk.data()), StatusOk);
            ASSERT_EQ(tavsFIR_64f(x.data(), y.data(), len, static_cast<FIRState_64f*>(st)), StatusOk);
        }
        EXPECT_GE(static_cast<tavs::fir::State*>(st)->fftLen, 2 * n);
        const auto ref = firt::reference(h, d, x);
        long double s = 0;
        for (auto v : h) s += std::fabs(v);
        const long double tol = s * (sizeof(X) == 4 ? 2e-6L : 1e-14L) * std::log2(double(4 * n));
        for (int j = 0; j < len; ++j) ASSERT_NEAR(double(y[size_t(j)]), double(ref[size_t(j)].real()), double(tol)) << n << " " << j;
    }
}

TEST(FirRfft, OverlapSaveAtEveryTransformSize)
{
    through_orders<Tav32f>();
    through_orders<Tav64f>();
}

} // namespace
