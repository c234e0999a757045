// The bit reversal: every impulse position lands on the right phases, in
// place (swap list) and out of place (blocks, or fused with the first pass).
#include "fft_test_util.h"

namespace {

template <class L> class Permute : public ::testing::Test {};
TYPED_TEST_SUITE(Permute, ft::Layouts);

TYPED_TEST(Permute, EveryImpulsePositionBothPlacements)
{
    using S = typename TypeParam::S;
    for (int order : {6, 7, 11, 13}) {
        const size_t n = size_t(1) << order;
        ft::Record<TypeParam> rec(order, ScaleNever);
        const size_t stepP = order > 7 ? (size_t(1) << (order - 5)) + 1 : 1; // 32 positions above order 7
        for (size_t p = 0; p < n; p += stepP)
            for (bool inPlace : {false, true}) {
                std::vector<S> x(2 * n, S(0));
                x[2 * p] = S(1);
                Status st = -1;
                const std::vector<S> y = ft::transform<TypeParam>(rec.p, true, inPlace, x, nullptr, &st);
                ASSERT_EQ(st, StatusOk);
                const double tol = sizeof(S) == 4 ? 4e-6 : 8e-15;
                for (size_t k = 0; k < n; k += (order > 7 ? 5 : 1)) {
                    const long double t = 2 * 3.141592653589793238L * (long double)((p * k) % n) / (long double)n;
                    ASSERT_NEAR(double(y[2 * k]), double(cosl(t)), tol) << order << " " << p << " " << k;
                    ASSERT_NEAR(double(y[2 * k + 1]), double(sinl(t)), tol) << order << " " << p << " " << k;
                }
            }
    }
}

} // namespace
