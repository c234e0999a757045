#include <gtest/gtest.h>

#include "arith_check.h"

using namespace ar;

namespace {

constexpr Lim kSqr8u{zero_above(16), sign_below(-7)};
constexpr Lim kSqr16s{zero_above(30), sign_below(-14)};
constexpr Lim kSqr16u{zero_above(32), sign_below(-15)};
constexpr Lim kSqr16sc{zero_above(31), sign_below(-14)};
const std::vector<int> kNoScale{0};

template <class D> auto sqr_ref(Lim lim)
{
    return [lim](D a, int s) { return scale_ref<D>(i128(a) * a, s, lim); };
}
auto csqr16_ref = [](Tav16sc a, int s) {
    const i128 re = i128(a.re) * a.re - i128(a.im) * a.im, im = i128(a.re) * a.im + i128(a.im) * a.re;
    return Tav16sc{scale_ref<Tav16s>(re, s, kSqr16sc), scale_ref<Tav16s>(im, s, kSqr16sc)};
};
template <class F> auto fsqr = [](F a, int) { return F(a * a); };
// The complex square as the product of the element with itself, in the
// order of each type's product.
auto csqr32 = [](Tav32fc a, int) {
    const float nai = -a.im;
    return Tav32fc{a.re * a.re + nai * a.im, a.im * a.re + a.re * a.im};
};
auto csqr64 = [](Tav64fc a, int) { return Tav64fc{a.re * a.re - a.im * a.im, a.im * a.re + a.re * a.im}; };
// Abs of a float: the sign bit cleared, nothing else.
template <class F> auto fabs_bits = [](F a, int) {
    using U = std::conditional_t<sizeof(F) == 4, uint32_t, uint64_t>;
    U u;
    std::memcpy(&u, &a, sizeof u);
    u &= ~(U(1) << (sizeof(F) * 8 - 1));
    std::memcpy(&a, &u, sizeof u);
    return a;
};
template <class T> auto iabs = [](T a, int) { return sat_ref<T>(a < 0 ? -i128(a) : i128(a)); };

TEST(Sqr, EdgeCases)
{
    Tav16s v[6] = {181, 182, -182, -32768, 0, -1}, d[6];
    ASSERT_EQ(tavsSqr_16s_Sfs(v, d, 6, 0), StatusOk);
    EXPECT_EQ(d[0], 32761);
    EXPECT_EQ(d[1], 32767);
    EXPECT_EQ(d[2], 32767);
    EXPECT_EQ(d[3], 32767);
    EXPECT_EQ(d[4], 0);
    EXPECT_EQ(d[5], 1);
    // Below the sign limit a non-zero element gives the maximum.
    ASSERT_EQ(tavsSqr_16s_Sfs(v, d, 6, -15), StatusOk);
    EXPECT_EQ(d[0], 32767);
    EXPECT_EQ(d[4], 0);
    EXPECT_EQ(d[5], 32767);
    ASSERT_EQ(tavsSqr_16s_Sfs(v, d, 6, -14), StatusOk);
    EXPECT_EQ(d[5], 16384);
    ASSERT_EQ(tavsSqr_16s_Sfs(v, d, 6, 30), StatusOk);
    EXPECT_EQ(d[3], 1); // 2^30 / 2^30
    ASSERT_EQ(tavsSqr_16s_Sfs(v, d, 6, 31), StatusOk);
    EXPECT_EQ(d[3], 0); // 2^30 / 2^31 ties to the even 0
    Tav16u u[4] = {255, 256, 65535, 3}, ud[4];
    ASSERT_EQ(tavsSqr_16u_Sfs(u, ud, 4, 0), StatusOk);
    EXPECT_EQ(ud[0], 65025);
    EXPECT_EQ(ud[1], 65535);
    EXPECT_EQ(ud[2], 65535);
    EXPECT_EQ(ud[3], 9);
    ASSERT_EQ(tavsSqr_16u_Sfs(u, ud, 4, 32), StatusOk);
    EXPECT_EQ(ud[2], 1);
    ASSERT_EQ(tavsSqr_16u_Sfs(u, ud, 4, 33), StatusOk);
    EXPECT_EQ(ud[2], 0);
    Tav8u b[3] = {15, 16, 255}, bd[3];
    ASSERT_EQ(tavsSqr_8u_Sfs(b, bd, 3, 0), StatusOk);
    EXPECT_EQ(bd[0], 225);
    EXPECT_EQ(bd[1], 255);
    EXPECT_EQ(bd[2], 255);
    ASSERT_EQ(tavsSqr_8u_Sfs(b, bd, 3, -8), StatusOk);
    EXPECT_EQ(bd[0], 255);
    // (-32768 - 32768i)^2 = 0 + 2^31 i: the imaginary part saturates.
    Tav16sc c{-32768, -32768}, cd{};
    ASSERT_EQ(tavsSqr_16sc_Sfs(&c, &cd, 1, 0), StatusOk);
    EXPECT_EQ(cd.re, 0);
    EXPECT_EQ(cd.im, 32767);
    ASSERT_EQ(tavsSqr_16sc_Sfs(&c, &cd, 1, 31), StatusOk);
    EXPECT_EQ(cd.im, 1);
    // Below the sign limit each part goes by its sign: (1 + 2i)^2 = -3 + 4i.
    Tav16sc e{1, 2};
    ASSERT_EQ(tavsSqr_16sc_Sfs(&e, &cd, 1, -15), StatusOk);
    EXPECT_EQ(cd.re, -32768);
    EXPECT_EQ(cd.im, 32767);
    ASSERT_EQ(tavsSqr_16sc_Sfs(&e, &cd, 1, 0), StatusOk);
    EXPECT_EQ(cd.re, -3);
    EXPECT_EQ(cd.im, 4);
}

TEST(Abs, EdgeCases)
{
    Tav16s s16[3] = {-32768, -5, 32767}, d16[3];
    ASSERT_EQ(tavsAbs_16s(s16, d16, 3), StatusOk);
    EXPECT_EQ(d16[0], 32767);
    EXPECT_EQ(d16[1], 5);
    EXPECT_EQ(d16[2], 32767);
    Tav32s s32[2] = {INT32_MIN, -7}, d32[2];
    ASSERT_EQ(tavsAbs_32s(s32, d32, 2), StatusOk);
    EXPECT_EQ(d32[0], INT32_MAX);
    EXPECT_EQ(d32[1], 7);
    // Floats: the sign bit is cleared and nothing else, so a signalling NaN
    // stays signalling with its payload.
    const uint32_t in[4] = {0xff800001u, 0xffc12345u, 0x80000000u, 0xff800000u};
    const uint32_t out[4] = {0x7f800001u, 0x7fc12345u, 0x00000000u, 0x7f800000u};
    Tav32f f[4], g[4];
    std::memcpy(f, in, sizeof f);
    ASSERT_EQ(tavsAbs_32f(f, g, 4), StatusOk);
    EXPECT_EQ(std::memcmp(g, out, sizeof g), 0);
    ASSERT_EQ(tavsAbs_32f_I(f, 4), StatusOk);
    EXPECT_EQ(std::memcmp(f, out, sizeof f), 0);
    const uint64_t din = 0xfff0000000000001ull, dout = 0x7ff0000000000001ull;
    Tav64f x, y;
    std::memcpy(&x, &din, 8);
    ASSERT_EQ(tavsAbs_64f(&x, &y, 1), StatusOk);
    EXPECT_EQ(std::memcmp(&y, &dout, 8), 0);
}

TEST(Sqr, IntegerAgainstReference)
{
    const auto sc = all_scales();
    random1<Tav8u, Tav8u>(AR_SFSI(tavsSqr_8u_Sfs), sqr_ref<Tav8u>(kSqr8u), sc, 301);
    random1<Tav16s, Tav16s>(AR_SFSI(tavsSqr_16s_Sfs), sqr_ref<Tav16s>(kSqr16s), sc, 302);
    random1<Tav16u, Tav16u>(AR_SFSI(tavsSqr_16u_Sfs), sqr_ref<Tav16u>(kSqr16u), sc, 303);
    random1<Tav16sc, Tav16sc>(AR_SFSI(tavsSqr_16sc_Sfs), csqr16_ref, sc, 304);
    random1<Tav16s, Tav16s>(AR_PLAINI(tavsAbs_16s), iabs<Tav16s>, kNoScale, 305);
    random1<Tav32s, Tav32s>(AR_PLAINI(tavsAbs_32s), iabs<Tav32s>, kNoScale, 306);
}

TEST(Sqr, FloatAgainstReference)
{
    for (uint64_t k = 0; k < 20; ++k) {
        random1<Tav32f, Tav32f>(AR_PLAINI(tavsSqr_32f), fsqr<float>, kNoScale, 311 + k);
        random1<Tav64f, Tav64f>(AR_PLAINI(tavsSqr_64f), fsqr<double>, kNoScale, 312 + k);
        random1<Tav32fc, Tav32fc>(AR_PLAINI(tavsSqr_32fc), csqr32, kNoScale, 313 + k);
        random1<Tav64fc, Tav64fc>(AR_PLAINI(tavsSqr_64fc), csqr64, kNoScale, 314 + k);
        random1<Tav32f, Tav32f>(AR_PLAINI(tavsAbs_32f), fabs_bits<float>, kNoScale, 315 + k, true);
        random1<Tav64f, Tav64f>(AR_PLAINI(tavsAbs_64f), fabs_bits<double>, kNoScale, 316 + k, true);
    }
}

TEST(Sqr, LengthsAndOffsets)
{
    const auto sc = sweep_scales();
    sweep1<Tav32f, Tav32f>(AR_PLAINI(tavsSqr_32f), fsqr<float>, kNoScale, 321);
    sweep1<Tav64f, Tav64f>(AR_PLAINI(tavsSqr_64f), fsqr<double>, kNoScale, 322);
    sweep1<Tav32fc, Tav32fc>(AR_PLAINI(tavsSqr_32fc), csqr32, kNoScale, 323);
    sweep1<Tav64fc, Tav64fc>(AR_PLAINI(tavsSqr_64fc), csqr64, kNoScale, 324);
    sweep1<Tav16s, Tav16s>(AR_SFSI(tavsSqr_16s_Sfs), sqr_ref<Tav16s>(kSqr16s), sc, 325);
    sweep1<Tav16u, Tav16u>(AR_SFSI(tavsSqr_16u_Sfs), sqr_ref<Tav16u>(kSqr16u), sc, 326);
    sweep1<Tav32f, Tav32f>(AR_PLAINI(tavsAbs_32f), fabs_bits<float>, kNoScale, 327, true);
    sweep1<Tav64f, Tav64f>(AR_PLAINI(tavsAbs_64f), fabs_bits<double>, kNoScale, 328, true);
    sweep1<Tav16s, Tav16s>(AR_PLAINI(tavsAbs_16s), iabs<Tav16s>, kNoScale, 329);
}

TEST(Sqr, InPlaceEqualsOutOfPlace)
{
    const auto sc = all_scales();
    inplace1<Tav8u>(AR_SFS0(tavsSqr_8u_ISfs), AR_SFSI(tavsSqr_8u_Sfs), sc, 331);
    inplace1<Tav16s>(AR_SFS0(tavsSqr_16s_ISfs), AR_SFSI(tavsSqr_16s_Sfs), sc, 332);
    inplace1<Tav16u>(AR_SFS0(tavsSqr_16u_ISfs), AR_SFSI(tavsSqr_16u_Sfs), sc, 333);
    inplace1<Tav16sc>(AR_SFS0(tavsSqr_16sc_ISfs), AR_SFSI(tavsSqr_16sc_Sfs), sc, 334);
    for (int k = 0; k < 20; ++k) {
        inplace1<Tav32f>(AR_PLAIN0(tavsSqr_32f_I), AR_PLAINI(tavsSqr_32f), kNoScale, 335 + 100 * k);
        inplace1<Tav64f>(AR_PLAIN0(tavsSqr_64f_I), AR_PLAINI(tavsSqr_64f), kNoScale, 336 + 100 * k);
        inplace1<Tav32fc>(AR_PLAIN0(tavsSqr_32fc_I), AR_PLAINI(tavsSqr_32fc), kNoScale, 337 + 100 * k);
        inplace1<Tav64fc>(AR_PLAIN0(tavsSqr_64fc_I), AR_PLAINI(tavsSqr_64fc), kNoScale, 338 + 100 * k);
        inplace1<Tav16s>(AR_PLAIN0(tavsAbs_16s_I), AR_PLAINI(tavsAbs_16s), kNoScale, 339 + 100 * k);
        inplace1<Tav32s>(AR_PLAIN0(tavsAbs_32s_I), AR_PLAINI(tavsAbs_32s), kNoScale, 340 + 100 * k);
        inplace1<Tav32f>(AR_PLAIN0(tavsAbs_32f_I), AR_PLAINI(tavsAbs_32f), kNoScale, 341 + 100 * k);
        inplace1<Tav64f>(AR_PLAIN0(tavsAbs_64f_I), AR_PLAINI(tavsAbs_64f), kNoScale, 342 + 100 * k);
    }
}

TEST(Sqr, Errors)
{
    errors_1src<Tav8u, Tav8u>(tavsSqr_8u_Sfs);
    errors_1src<Tav16s, Tav16s>(tavsSqr_16s_Sfs);
    errors_1src<Tav16u, Tav16u>(tavsSqr_16u_Sfs);
    errors_1src<Tav16sc, Tav16sc>(tavsSqr_16sc_Sfs);
    errors_1src<Tav32f, Tav32f>(tavsSqr_32f);
    errors_1src<Tav64f, Tav64f>(tavsSqr_64f);
    errors_1src<Tav32fc, Tav32fc>(tavsSqr_32fc);
    errors_1src<Tav64fc, Tav64fc>(tavsSqr_64fc);
    errors_1src<Tav16s, Tav16s>(tavsAbs_16s);
    errors_1src<Tav32s, Tav32s>(tavsAbs_32s);
    errors_1src<Tav32f, Tav32f>(tavsAbs_32f);
    errors_1src<Tav64f, Tav64f>(tavsAbs_64f);
    errors_0src<Tav8u>(tavsSqr_8u_ISfs);
    errors_0src<Tav16s>(tavsSqr_16s_ISfs);
    errors_0src<Tav16u>(tavsSqr_16u_ISfs);
    errors_0src<Tav16sc>(tavsSqr_16sc_ISfs);
    errors_0src<Tav32f>(tavsSqr_32f_I);
    errors_0src<Tav64f>(tavsSqr_64f_I);
    errors_0src<Tav32fc>(tavsSqr_32fc_I);
    errors_0src<Tav64fc>(tavsSqr_64fc_I);
    errors_0src<Tav16s>(tavsAbs_16s_I);
    errors_0src<Tav32s>(tavsAbs_32s_I);
    errors_0src<Tav32f>(tavsAbs_32f_I);
    errors_0src<Tav64f>(tavsAbs_64f_I);
}

} // namespace
