// Orders above 10: the blocked merge and the two-factor levels.
#include "fft_test_util.h"

namespace {

TEST(LargeOrders, ForwardAndInverseUpToOrder20)
{
    const int top = std::min(20, ft::kMaxTestedOrder);
    for (int order = 11; order <= top; ++order)
    {
        const ft::Case f = ft::make_case(order, false);
        ft::check_all_layouts(f);
        ft::check_all_layouts(ft::mirrored(f));
    }
}

// Above order 20 one transform each: forward for the interleaved layouts,
// inverse for the split ones.
TEST(LargeOrders, Orders21And22)
{
    for (int order = 21; order <= ft::kMaxTestedOrder; ++order) {
        const ft::Case f = ft::make_case(order, false);
        ft::check_case<ft::L32fc>(f, ScaleNever, false);
        ft::check_case<ft::L64fc>(f, ScaleNever, false);
        const ft::Case i = ft::mirrored(f);
        ft::check_case<ft::L32f>(i, ScaleNever, false);
        ft::check_case<ft::L64f>(i, ScaleNever, false);
    }
}

// The crossings between the paths, with every flag: 10 -> 11 (single level
// to blocked merge), 12 -> 13 in 32f and 11 -> 12 in 64f (blocked merge to
// two factors).
TEST(LargeOrders, PathCrossingsWithEveryFlag)
{
    for (int order : {10, 11, 12, 13})
        for (bool inv : {false, true}) {
            const ft::Case c = ft::make_case(order, inv);
            for (int flag : {ScaleFwdByLen, ScaleInvByLen, ScaleBothBySqrtLen}) ft::check_all_layouts(c, flag);
        }
}

} // namespace
