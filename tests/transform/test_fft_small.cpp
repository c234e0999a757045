// Orders 0 to 5: the direct kernels with the scale folded in.
#include "fft_test_util.h"

namespace {

template <class L> class Direct : public ::testing::Test {};
TYPED_TEST_SUITE(Direct, ft::Layouts);

TEST(Direct, EveryOrderEveryFlagBothDirections)
{
    for (int order = 0; order <= 5; ++order)
        for (bool inv : {false, true}) {
            const ft::Case c = ft::make_case(order, inv);
            for (int flag : {ScaleFwdByLen, ScaleInvByLen, ScaleBothBySqrtLen, ScaleNever}) ft::check_all_layouts(c, flag);
        }
}

// Length 1 copies (or scales: 1/N = 1 here); length 2 is one butterfly.
TYPED_TEST(Direct, LengthsOneAndTwoAreExact)
{
    using S = typename TypeParam::S;
    ft::Record<TypeParam> r0(0, ScaleFwdByLen), r1(1, ScaleNever), r1s(1, ScaleFwdByLen);
    Status st = -1;
    const std::vector<S> one = {S(3.5), S(-0.25)};
    EXPECT_EQ(ft::transform<TypeParam>(r0.p, false, false, one, nullptr, &st), one);
    EXPECT_EQ(st, StatusOk);
    const std::vector<S> two = {S(1), S(2), S(5), S(-7)};
    const std::vector<S> sum = {S(6), S(-5), S(-4), S(9)};
    EXPECT_EQ(ft::transform<TypeParam>(r1.p, false, false, two, nullptr, &st), sum);
    EXPECT_EQ(ft::transform<TypeParam>(r1.p, true, true, two, nullptr, &st), sum);
    const std::vector<S> half = {S(3), S(-2.5), S(-2), S(4.5)};
    EXPECT_EQ(ft::transform<TypeParam>(r1s.p, false, false, two, nullptr, &st), half);
}

// Length 4 on integers is exact: X = (x0+x1+x2+x3, ...), with the inverse
// turning the other way round.
TYPED_TEST(Direct, LengthFourOnIntegersIsExact)
{
    using S = typename TypeParam::S;
    ft::Record<TypeParam> r(2, ScaleNever);
    const std::vector<S> x = {S(1), S(0), S(2), S(0), S(3), S(0), S(4), S(0)};
    Status st = -1;
    const std::vector<S> fwd = {S(10), S(0), S(-2), S(2), S(-2), S(0), S(-2), S(-2)};
    const std::vector<S> inv = {S(10), S(0), S(-2), S(-2), S(-2), S(0), S(-2), S(2)};
    EXPECT_EQ(ft::transform<TypeParam>(r.p, false, false, x, nullptr, &st), fwd);
    EXPECT_EQ(ft::transform<TypeParam>(r.p, true, false, x, nullptr, &st), inv);
}

// The reference itself agrees with the plain O(N^2) sum.
TEST(Direct, ReferenceMatchesPlainDft)
{
    tt::Rng rng(7);
    for (size_t n : {1u, 2u, 8u, 64u}) {
        std::vector<ft::cld> x(n);
        for (auto& v : x) v = ft::cld(rng.uniform(-1, 1), rng.uniform(-1, 1));
        for (bool inv : {false, true}) {
            std::vector<ft::cld> a = x;
            ft::ref_fft(a, inv);
            const std::vector<ft::cld> b = ft::ref_dft(x, inv);
            for (size_t k = 0; k < n; ++k) EXPECT_LT(double(std::abs(a[k] - b[k])), 1e-15);
        }
    }
}

} // namespace
