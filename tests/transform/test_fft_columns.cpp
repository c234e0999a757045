// The column transforms of the two-factor step: every layout at the orders
// whose first level has columns of 16 to 128 points (odd and even orders of
// the column length, so with and without the span-8 stage), both
// directions, with a flag that scales both.
#include "fft_test_util.h"

namespace {

TEST(Columns, FirstLevelColumnLengths)
{
    for (int order : {12, 13, 14, 15})
        for (bool inv : {false, true}) ft::check_all_layouts(ft::make_case(order, inv), ScaleBothBySqrtLen);
}

} // namespace
