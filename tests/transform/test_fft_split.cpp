// Split forms: the same numbers as the interleaved forms, and each array
// placed on its own (one in place, the other not).
#include "fft_test_util.h"

namespace {

template <class Lsplit, class Linter> void same_as_interleaved()
{
    using S = typename Lsplit::S;
    for (int order : {0, 3, 5, 6, 9, 10, 11, 12, 13, 15}) {
        const size_t n = size_t(1) << order;
        ft::Record<Lsplit> rs(order, ScaleBothBySqrtLen);
        ft::Record<Linter> ri(order, ScaleBothBySqrtLen);
        tt::Rng rng(order);
        const std::vector<S> x = ft::random_signal<S>(rng, n);
        for (bool inv : {false, true}) {
            Status st;
            const std::vector<S> a = ft::transform<Lsplit>(rs.p, inv, false, x, nullptr, &st);
            const std::vector<S> b = ft::transform<Linter>(ri.p, inv, false, x, nullptr, &st);
            double num = 0, den = 0;
            for (size_t i = 0; i < 2 * n; ++i) {
                num += (double(a[i]) - double(b[i])) * (double(a[i]) - double(b[i]));
                den += double(b[i]) * double(b[i]);
            }
            EXPECT_LT(std::sqrt(num / den), ft::bound<S>(order)) << Lsplit::name << " " << order;
        }
    }
}

TEST(Split, SameNumbersAsInterleaved)
{
    same_as_interleaved<ft::L32f, ft::L32fc>();
    same_as_interleaved<ft::L64f, ft::L64fc>();
}

template <class S, class Spec, class Fwd>
void mixed_placement(int order, const Spec* spec, Fwd fwd)
{
    const size_t n = size_t(1) << order;
    tt::Rng rng(9);
    std::vector<S> re(n), im(n);
    for (size_t i = 0; i < n; ++i) re[i] = S(rng.uniform(-1, 1)), im[i] = S(rng.uniform(-1, 1));
    std::vector<S> r1 = re, i1 = im, r2(n), i2(n);
    ASSERT_EQ(fwd(re.data(), im.data(), r2.data(), i2.data(), spec, nullptr), StatusOk);
    // The real array in place, the imaginary one into a new array.
    std::vector<S> i3(n);
    ASSERT_EQ(fwd(r1.data(), i1.data(), r1.data(), i3.data(), spec, nullptr), StatusOk);
    EXPECT_EQ(r1, r2) << order;
    EXPECT_EQ(i3, i2) << order;
    EXPECT_EQ(i1, im) << order; // the source imaginary array is left alone
}

TEST(Split, EachArrayPlacedOnItsOwn)
{
    for (int order : {4, 6, 8, 11, 13}) {
        ft::Record<ft::L32f> r(order, ScaleNever);
        ft::Record<ft::L64f> d(order, ScaleNever);
        mixed_placement<float>(order, r.p, tavsFFTFwd_CToC_32f);
        mixed_placement<double>(order, d.p, tavsFFTInv_CToC_64f);
    }
}

} // namespace
