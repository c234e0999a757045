#include <gtest/gtest.h>

#include "arith_check.h"

using namespace ar;

namespace {

constexpr Lim kAP16s{zero_above(31), sign_at_or_below(-15)};
constexpr Lim kAP32s{zero_above(62), sign_at_or_below(-31)};
constexpr Lim kAP16s32s{zero_above(32), sign_at_or_below(-31)};
const std::vector<int> kNoScale{0};

template <class D> auto ap_ref(Lim lim)
{
    return [lim](auto a, auto b, D d, int s) { return scale_ref<D>(i128(d) + i128(a) * i128(b), s, lim); };
}
template <class F> auto fap = [](F a, F b, F d, int) { return F(d + a * b); };
// re = a.re*b.re - a.im*b.im + d.re, im = a.re*b.im + b.re*a.im + d.im, in that order.
template <class C> auto cap = [](C a, C b, C d, int) {
    C r;
    r.re = (a.re * b.re - a.im * b.im) + d.re;
    r.im = (a.re * b.im + b.re * a.im) + d.im;
    return r;
};

TEST(AddProduct, EdgeCases)
{
    Tav16s a = 1, b = 1, d = 1;
    ASSERT_EQ(tavsAddProduct_16s_Sfs(&a, &b, &d, 1, 1), StatusOk);
    EXPECT_EQ(d, 1); // 2 / 2
    b = 2;
    d = 1;
    ASSERT_EQ(tavsAddProduct_16s_Sfs(&a, &b, &d, 1, 1), StatusOk);
    EXPECT_EQ(d, 2); // 3 / 2 ties to even
    // Product saturated, then shifted: sign-only from -15 on.
    a = 3;
    b = 5;
    d = -14;
    ASSERT_EQ(tavsAddProduct_16s_Sfs(&a, &b, &d, 1, -14), StatusOk);
    EXPECT_EQ(d, 16384);
    d = -14;
    ASSERT_EQ(tavsAddProduct_16s_Sfs(&a, &b, &d, 1, -15), StatusOk);
    EXPECT_EQ(d, 32767);
    d = -15;
    ASSERT_EQ(tavsAddProduct_16s_Sfs(&a, &b, &d, 1, INT32_MIN), StatusOk);
    EXPECT_EQ(d, 0);
    // The accumulator and the product sum exactly before the scaling.
    Tav16s m = -32768;
    Tav32s acc = INT32_MIN;
    ASSERT_EQ(tavsAddProduct_16s32s_Sfs(&m, &m, &acc, 1, 0), StatusOk);
    EXPECT_EQ(acc, INT32_MIN + (1 << 30));
    acc = INT32_MAX;
    ASSERT_EQ(tavsAddProduct_16s32s_Sfs(&m, &m, &acc, 1, 32), StatusOk);
    EXPECT_EQ(acc, 1); // (2^31 - 1 + 2^30) / 2^32 = 0.75
    acc = INT32_MAX;
    ASSERT_EQ(tavsAddProduct_16s32s_Sfs(&m, &m, &acc, 1, 33), StatusOk);
    EXPECT_EQ(acc, 0);
    Tav32s x = INT32_MIN, y = INT32_MIN, z = -1;
    ASSERT_EQ(tavsAddProduct_32s_Sfs(&x, &y, &z, 1, 31), StatusOk);
    EXPECT_EQ(z, INT32_MAX); // (2^62 - 1) / 2^31 rounds to 2^31, which saturates
    z = 7;
    ASSERT_EQ(tavsAddProduct_32s_Sfs(&x, &y, &z, 1, 63), StatusOk);
    EXPECT_EQ(z, 0);

    // Float: dst + src1 * src2 and dst + src * val.
    Tav32f fa[2] = {2, 3}, fb[2] = {4, 5}, fd[2] = {1, -15};
    ASSERT_EQ(tavsAddProduct_32f(fa, fb, fd, 2), StatusOk);
    EXPECT_EQ(fd[0], 9.0f);
    EXPECT_EQ(fd[1], 0.0f);
    ASSERT_EQ(tavsAddProductC_32f(fa, 0.5f, fd, 2), StatusOk);
    EXPECT_EQ(fd[0], 10.0f);
    EXPECT_EQ(fd[1], 1.5f);
}

// AddProduct_32fc adds the destination last: (p - p) + 1 = 1, where other
// orders of the same terms give 0.
TEST(AddProduct, ComplexOrderOfAdditions)
{
    for (int len : {1, 4, 9, 32}) {
        std::vector<Tav32fc> a(size_t(len), Tav32fc{1e10f, 1e10f}), d(size_t(len), Tav32fc{1.0f, 1.0f});
        ASSERT_EQ(tavsAddProduct_32fc(a.data(), a.data(), d.data(), len), StatusOk);
        for (auto& v : d) {
            EXPECT_EQ(v.re, 1.0f);
            EXPECT_EQ(v.im, 2.0f * (1e10f * 1e10f));
        }
    }
    Tav64fc p{1e100, 1e100}, q{1.0, 1.0};
    ASSERT_EQ(tavsAddProduct_64fc(&p, &p, &q, 1), StatusOk);
    EXPECT_EQ(q.re, 1.0);
}

TEST(AddProduct, IntegerAgainstReference)
{
    const auto sc = all_scales();
    random2<Tav16s, Tav16s, Tav16s>(AR_SFS2(tavsAddProduct_16s_Sfs), ap_ref<Tav16s>(kAP16s), sc, 201);
    random2<Tav32s, Tav32s, Tav32s>(AR_SFS2(tavsAddProduct_32s_Sfs), ap_ref<Tav32s>(kAP32s), sc, 202);
    random2<Tav16s, Tav16s, Tav32s>(AR_SFS2(tavsAddProduct_16s32s_Sfs), ap_ref<Tav32s>(kAP16s32s), sc, 203);
}

TEST(AddProduct, FloatAgainstReference)
{
    random2<Tav32f, Tav32f, Tav32f>(AR_PLAIN2(tavsAddProduct_32f), fap<float>, kNoScale, 211, 60);
    random2<Tav64f, Tav64f, Tav64f>(AR_PLAIN2(tavsAddProduct_64f), fap<double>, kNoScale, 212, 60);
    random2<Tav32fc, Tav32fc, Tav32fc>(AR_PLAIN2(tavsAddProduct_32fc), cap<Tav32fc>, kNoScale, 213, 60);
    random2<Tav64fc, Tav64fc, Tav64fc>(AR_PLAIN2(tavsAddProduct_64fc), cap<Tav64fc>, kNoScale, 214, 60);
    for (float val : {0.0f, -0.0f, 1.5f, -3e-40f, 7e30f, INFINITY}) {
        random2<Tav32f, Tav32f, Tav32f>(
            [val](const Tav32f* a, const Tav32f*, Tav32f* d, int len, int) { return tavsAddProductC_32f(a, val, d, len); },
            [val](Tav32f a, Tav32f, Tav32f d, int) { return d + a * val; }, kNoScale, 215, 20);
    }
}

TEST(AddProduct, LengthsAndOffsets)
{
    sweep2<Tav32f, Tav32f, Tav32f>(AR_PLAIN2(tavsAddProduct_32f), fap<float>, kNoScale, 221);
    sweep2<Tav64f, Tav64f, Tav64f>(AR_PLAIN2(tavsAddProduct_64f), fap<double>, kNoScale, 222);
    sweep2<Tav32fc, Tav32fc, Tav32fc>(AR_PLAIN2(tavsAddProduct_32fc), cap<Tav32fc>, kNoScale, 223);
    sweep2<Tav64fc, Tav64fc, Tav64fc>(AR_PLAIN2(tavsAddProduct_64fc), cap<Tav64fc>, kNoScale, 224);
    sweep2<Tav16s, Tav16s, Tav16s>(AR_SFS2(tavsAddProduct_16s_Sfs), ap_ref<Tav16s>(kAP16s), sweep_scales(), 225);
    sweep2<Tav32f, Tav32f, Tav32f>(
        [](const Tav32f* a, const Tav32f*, Tav32f* d, int len, int) { return tavsAddProductC_32f(a, -2.5f, d, len); },
        [](Tav32f a, Tav32f, Tav32f d, int) { return d + a * -2.5f; }, kNoScale, 226);
}

TEST(AddProduct, Errors)
{
    errors_2src<Tav16s, Tav16s, Tav16s>(tavsAddProduct_16s_Sfs);
    errors_2src<Tav32s, Tav32s, Tav32s>(tavsAddProduct_32s_Sfs);
    errors_2src<Tav16s, Tav16s, Tav32s>(tavsAddProduct_16s32s_Sfs);
    errors_2src<Tav32f, Tav32f, Tav32f>(tavsAddProduct_32f);
    errors_2src<Tav64f, Tav64f, Tav64f>(tavsAddProduct_64f);
    errors_2src<Tav32fc, Tav32fc, Tav32fc>(tavsAddProduct_32fc);
    errors_2src<Tav64fc, Tav64fc, Tav64fc>(tavsAddProduct_64fc);
    errors_1src<Tav32f, Tav32f>([](const Tav32f* s, Tav32f* d, int len) { return tavsAddProductC_32f(s, 2.0f, d, len); });
}

} // namespace
