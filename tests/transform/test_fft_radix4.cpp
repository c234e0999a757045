// Orders 6 to 10: permutation and the single-level radix-4 kernel.
#include "fft_test_util.h"

namespace {

template <class L> class Radix4 : public ::testing::Test {};
TYPED_TEST_SUITE(Radix4, ft::Layouts);

TEST(Radix4, EveryOrderEveryFlagBothDirections)
{
    for (int order = 6; order <= 10; ++order)
        for (bool inv : {false, true}) {
            const ft::Case c = ft::make_case(order, inv);
            for (int flag : {ScaleFwdByLen, ScaleInvByLen, ScaleBothBySqrtLen, ScaleNever}) ft::check_all_layouts(c, flag);
        }
}

// A unit impulse at position p transforms to W^(p k): this checks the
// permutation and the stage twiddles value by value.
TYPED_TEST(Radix4, ImpulsesGiveExactPhases)
{
    using S = typename TypeParam::S;
    for (int order : {6, 7, 10}) {
        const size_t n = size_t(1) << order;
        ft::Record<TypeParam> rec(order, ScaleNever);
        for (size_t p : {size_t(0), size_t(1), n / 2 - 1, n / 2, n - 1}) {
            std::vector<S> x(2 * n, S(0));
            x[2 * p] = S(1);
            Status st = -1;
            const std::vector<S> y = ft::transform<TypeParam>(rec.p, false, false, x, nullptr, &st);
            ASSERT_EQ(st, StatusOk);
            const double tol = sizeof(S) == 4 ? 2e-6 : 4e-15;
            for (size_t k = 0; k < n; ++k) {
                const long double t = -2 * 3.141592653589793238L * (long double)((p * k) % n) / (long double)n;
                EXPECT_NEAR(double(y[2 * k]), double(cosl(t)), tol) << order << " " << p << " " << k;
                EXPECT_NEAR(double(y[2 * k + 1]), double(sinl(t)), tol) << order << " " << p << " " << k;
            }
        }
    }
}

} // namespace
