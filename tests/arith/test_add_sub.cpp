#include <gtest/gtest.h>
#include <xmmintrin.h>

#include "arith_check.h"

using namespace ar;

namespace {

// Limits as stated for each family.
constexpr Lim kAdd8u{zero_above(9), sign_at_or_below(-8)};
constexpr Lim kSub8u{zero_above(8), sign_at_or_below(-8)};
constexpr Lim kAdd16u{zero_from(18), sign_below(-15)};
constexpr Lim kSub16u{zero_from(17), sign_below(-15)};
constexpr Lim k16s{zero_above(16), sign_at_or_below(-16)};
constexpr Lim k32s{zero_above(32), sign_at_or_below(-31)};
constexpr Lim kAdd64s{zero_from(64), sign_below(-62)};

template <class D> auto add_ref(Lim lim)
{
    return [lim](auto a, auto b, D, int s) { return scale_ref<D>(i128(a) + i128(b), s, lim); };
}
template <class D> auto sub_ref(Lim lim)
{
    return [lim](auto a, auto b, D, int s) { return scale_ref<D>(i128(b) - i128(a), s, lim); };
}
template <class C> auto cadd_ref(Lim lim)
{
    return [lim](C a, C b, C, int s) {
        using P = decltype(a.re);
        return C{scale_ref<P>(i128(a.re) + b.re, s, lim), scale_ref<P>(i128(a.im) + b.im, s, lim)};
    };
}
template <class C> auto csub_ref(Lim lim)
{
    return [lim](C a, C b, C, int s) {
        using P = decltype(a.re);
        return C{scale_ref<P>(i128(b.re) - a.re, s, lim), scale_ref<P>(i128(b.im) - a.im, s, lim)};
    };
}
// The 64-bit member saturates the sum to 64 bits before it scales.
auto add64_ref = [](Tav64s a, Tav64s b, Tav64s, int s) {
    return scale_ref<Tav64s>(i128(sat_ref<Tav64s>(i128(a) + b)), s, kAdd64s);
};

template <class F> auto fadd = [](F a, F b, F, int) { return F(a + b); };
template <class F> auto fsub = [](F a, F b, F, int) { return F(b - a); };
template <class C> auto cfadd = [](C a, C b, C, int) { return C{a.re + b.re, a.im + b.im}; };
template <class C> auto cfsub = [](C a, C b, C, int) { return C{b.re - a.re, b.im - a.im}; };

const std::vector<int> kNoScale{0};

TEST(AddSub, EdgeCases)
{
    // Sub is the second argument minus the first.
    Tav32f one = 1, three = 3, out = 0;
    ASSERT_EQ(tavsSub_32f(&one, &three, &out, 1), StatusOk);
    EXPECT_EQ(out, 2.0f);

    Tav16s a[1], b[1], d[1];
    auto add16 = [&](int x, int y, int s) {
        a[0] = Tav16s(x);
        b[0] = Tav16s(y);
        d[0] = 12345;
        EXPECT_EQ(tavsAdd_16s_Sfs(a, b, d, 1, s), StatusOk);
        return int(d[0]);
    };
    // -65536 / 2^17 is the tie -0.5, which goes to the even 0 (as does the zero fill).
    EXPECT_EQ(add16(-32768, -32768, 17), 0);
    EXPECT_EQ(add16(-32768, -32768, 16), -1);
    // Sign only at s = -16.
    EXPECT_EQ(add16(1, 0, -16), 32767);
    EXPECT_EQ(add16(-1, 0, -16), -32768);
    EXPECT_EQ(add16(0, 0, -16), 0);
    EXPECT_EQ(add16(0, 0, INT32_MIN), 0);
    EXPECT_EQ(add16(-5, 2, INT32_MIN), -32768);
    EXPECT_EQ(add16(5, 2, INT32_MAX), 0);
    // Ties to even at s = 1: 3 -> 2, 5 -> 2, -1 -> 0, -3 -> -2.
    EXPECT_EQ(add16(1, 2, 1), 2);
    EXPECT_EQ(add16(2, 3, 1), 2);
    EXPECT_EQ(add16(-1, 0, 1), 0);
    EXPECT_EQ(add16(-1, -2, 1), -2);
    EXPECT_EQ(add16(3, 4, 1), 4);
    EXPECT_EQ(add16(-3, -4, 1), -4);
    // s = 0 saturates and does not round.
    EXPECT_EQ(add16(32767, 1, 0), 32767);
    EXPECT_EQ(add16(-32768, -1, 0), -32768);
    EXPECT_EQ(add16(3, 4, 0), 7);

    // 8u: 510 / 512 rounds up at s = 9, zero at s = 10.
    Tav8u u8a = 255, u8b = 255, u8d = 7;
    ASSERT_EQ(tavsAdd_8u_Sfs(&u8a, &u8b, &u8d, 1, 9), StatusOk);
    EXPECT_EQ(u8d, 1);
    ASSERT_EQ(tavsAdd_8u_Sfs(&u8a, &u8b, &u8d, 1, 10), StatusOk);
    EXPECT_EQ(u8d, 0);
    // Sub_8u: 255 / 512 at s = 9 is below half: zero.
    u8a = 0;
    u8d = 7;
    ASSERT_EQ(tavsSub_8u_Sfs(&u8a, &u8b, &u8d, 1, 8), StatusOk);
    EXPECT_EQ(u8d, 1);
    ASSERT_EQ(tavsSub_8u_Sfs(&u8a, &u8b, &u8d, 1, 9), StatusOk);
    EXPECT_EQ(u8d, 0);
    // In unsigned members the sign-only path gives the maximum for any
    // non-zero result, a negative difference included.
    u8a = 9;
    u8b = 3;
    ASSERT_EQ(tavsSub_8u_Sfs(&u8a, &u8b, &u8d, 1, -8), StatusOk);
    EXPECT_EQ(u8d, 255);
    ASSERT_EQ(tavsSub_8u_Sfs(&u8a, &u8b, &u8d, 1, -7), StatusOk);
    EXPECT_EQ(u8d, 0);
    Tav16u u16a = 9, u16b = 3, u16d = 1;
    ASSERT_EQ(tavsSub_16u_Sfs(&u16a, &u16b, &u16d, 1, -16), StatusOk);
    EXPECT_EQ(u16d, 65535);
    ASSERT_EQ(tavsSub_16u_Sfs(&u16a, &u16b, &u16d, 1, -15), StatusOk);
    EXPECT_EQ(u16d, 0);

    // 16u: 131070 / 2^17 rounds to 1; zero from 18.
    u16a = 65535;
    u16b = 65535;
    ASSERT_EQ(tavsAdd_16u_Sfs(&u16a, &u16b, &u16d, 1, 17), StatusOk);
    EXPECT_EQ(u16d, 1);
    ASSERT_EQ(tavsAdd_16u_Sfs(&u16a, &u16b, &u16d, 1, 18), StatusOk);
    EXPECT_EQ(u16d, 0);

    // Widening and unsaturated members.
    Tav8u x8 = 255, y8 = 255;
    Tav16u s16 = 0;
    ASSERT_EQ(tavsAdd_8u16u(&x8, &y8, &s16, 1), StatusOk);
    EXPECT_EQ(s16, 510);
    Tav32u x32 = 4294967295u, y32 = 1, s32 = 0;
    ASSERT_EQ(tavsAdd_32u(&x32, &y32, &s32, 1), StatusOk);
    EXPECT_EQ(s32, 4294967295u);
    Tav16s e16 = -32768;
    Tav32s acc = INT32_MIN;
    ASSERT_EQ(tavsAdd_16s32s_I(&e16, &acc, 1), StatusOk);
    EXPECT_EQ(acc, INT32_MIN);
    Tav16s p16 = 32767, q16 = 32767;
    Tav32f f32 = 0;
    ASSERT_EQ(tavsAdd_16s32f(&p16, &q16, &f32, 1), StatusOk);
    EXPECT_EQ(f32, 65534.0f);
    ASSERT_EQ(tavsSub_16s32f(&p16, &e16, &f32, 1), StatusOk);
    EXPECT_EQ(f32, -65535.0f);

    // The 64-bit member adds with saturation first: INT64_MAX + INT64_MAX
    // is INT64_MAX, whose half ties to the even 2^62.
    Tav64s m64 = INT64_MAX, r64 = 0;
    ASSERT_EQ(tavsAdd_64s_Sfs(&m64, &m64, &r64, 1, 1), StatusOk);
    EXPECT_EQ(r64, int64_t(1) << 62);
    ASSERT_EQ(tavsAdd_64s_Sfs(&m64, &m64, &r64, 1, 0), StatusOk);
    EXPECT_EQ(r64, INT64_MAX);
    Tav64s n64 = INT64_MIN;
    ASSERT_EQ(tavsAdd_64s_Sfs(&n64, &n64, &r64, 1, 63), StatusOk);
    EXPECT_EQ(r64, -1);
    ASSERT_EQ(tavsAdd_64s_Sfs(&n64, &n64, &r64, 1, 64), StatusOk);
    EXPECT_EQ(r64, 0);
    // Left shift only when the sum fits: 2^61 << 1 fits, 2^61 + 1 << 1 too,
    // but << 2 saturates; -63 is sign only.
    Tav64s p = int64_t(1) << 61, z = 0;
    ASSERT_EQ(tavsAdd_64s_Sfs(&p, &z, &r64, 1, -1), StatusOk);
    EXPECT_EQ(r64, int64_t(1) << 62);
    ASSERT_EQ(tavsAdd_64s_Sfs(&p, &z, &r64, 1, -2), StatusOk);
    EXPECT_EQ(r64, INT64_MAX);
    Tav64s one64 = 1;
    ASSERT_EQ(tavsAdd_64s_Sfs(&one64, &z, &r64, 1, -62), StatusOk);
    EXPECT_EQ(r64, int64_t(1) << 62);
    ASSERT_EQ(tavsAdd_64s_Sfs(&one64, &z, &r64, 1, -63), StatusOk);
    EXPECT_EQ(r64, INT64_MAX);
}

TEST(AddSub, ComplexMembersTestTheLengthFirst)
{
    // A null pointer with len 0 is a size error here, unlike the real members.
    EXPECT_EQ(tavsAdd_32fc(nullptr, nullptr, nullptr, 0), ErrSize);
    EXPECT_EQ(tavsAdd_32f(nullptr, nullptr, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(tavsSub_16sc_Sfs(nullptr, nullptr, nullptr, 0, 3), ErrSize);
    EXPECT_EQ(tavsSub_16s_Sfs(nullptr, nullptr, nullptr, 0, 3), ErrNullPtr);
    // The doubled length is a 32-bit product: 2^30 elements turn it negative.
    Tav32fc a[2] = {}, b[2] = {};
    tt::Guarded<Tav32fc> g(2);
    EXPECT_EQ(tavsAdd_32fc(a, b, g.data(), 1 << 30), ErrSize);
    EXPECT_EQ(tavsAdd_32fc(a, b, g.data(), INT32_MAX), ErrSize);
    EXPECT_EQ(tavsAdd_32fc(nullptr, b, g.data(), 1 << 30), ErrNullPtr);
    EXPECT_TRUE(g.untouched());
}

TEST(AddSub, IntegerAgainstReference)
{
    const auto sc = all_scales();
    random2<Tav8u, Tav8u, Tav8u>(AR_SFS2(tavsAdd_8u_Sfs), add_ref<Tav8u>(kAdd8u), sc, 1);
    random2<Tav8u, Tav8u, Tav8u>(AR_SFS2(tavsSub_8u_Sfs), sub_ref<Tav8u>(kSub8u), sc, 2);
    random2<Tav16u, Tav16u, Tav16u>(AR_SFS2(tavsAdd_16u_Sfs), add_ref<Tav16u>(kAdd16u), sc, 3);
    random2<Tav16u, Tav16u, Tav16u>(AR_SFS2(tavsSub_16u_Sfs), sub_ref<Tav16u>(kSub16u), sc, 4);
    random2<Tav16s, Tav16s, Tav16s>(AR_SFS2(tavsAdd_16s_Sfs), add_ref<Tav16s>(k16s), sc, 5);
    random2<Tav16s, Tav16s, Tav16s>(AR_SFS2(tavsSub_16s_Sfs), sub_ref<Tav16s>(k16s), sc, 6);
    random2<Tav32s, Tav32s, Tav32s>(AR_SFS2(tavsAdd_32s_Sfs), add_ref<Tav32s>(k32s), sc, 7);
    random2<Tav32s, Tav32s, Tav32s>(AR_SFS2(tavsSub_32s_Sfs), sub_ref<Tav32s>(k32s), sc, 8);
    random2<Tav64s, Tav64s, Tav64s>(AR_SFS2(tavsAdd_64s_Sfs), add64_ref, sc, 9);
    random2<Tav16sc, Tav16sc, Tav16sc>(AR_SFS2(tavsAdd_16sc_Sfs), cadd_ref<Tav16sc>(k16s), sc, 10);
    random2<Tav16sc, Tav16sc, Tav16sc>(AR_SFS2(tavsSub_16sc_Sfs), csub_ref<Tav16sc>(k16s), sc, 11);
    random2<Tav32sc, Tav32sc, Tav32sc>(AR_SFS2(tavsAdd_32sc_Sfs), cadd_ref<Tav32sc>(k32s), sc, 12);
    random2<Tav32sc, Tav32sc, Tav32sc>(AR_SFS2(tavsSub_32sc_Sfs), csub_ref<Tav32sc>(k32s), sc, 13);
    // Without a scale factor: saturated like scale factor 0.
    random2<Tav16s, Tav16s, Tav16s>(AR_PLAIN2(tavsAdd_16s), add_ref<Tav16s>(k16s), kNoScale, 14, 40);
    random2<Tav16s, Tav16s, Tav16s>(AR_PLAIN2(tavsSub_16s), sub_ref<Tav16s>(k16s), kNoScale, 15, 40);
    random2<Tav16u, Tav16u, Tav16u>(AR_PLAIN2(tavsAdd_16u), add_ref<Tav16u>(kAdd16u), kNoScale, 16, 40);
    random2<Tav32u, Tav32u, Tav32u>(AR_PLAIN2(tavsAdd_32u), add_ref<Tav32u>(kAdd16u), kNoScale, 17, 40);
    random2<Tav8u, Tav8u, Tav16u>(AR_PLAIN2(tavsAdd_8u16u), add_ref<Tav16u>(kAdd16u), kNoScale, 18, 40);
    // The 32s accumulator plus the 16s element.
    random2<Tav16s, Tav32s, Tav32s>(
        [](const Tav16s* a, const Tav32s* b, Tav32s* d, int len, int) {
            std::memcpy(d, b, sizeof(Tav32s) * size_t(len));
            return tavsAdd_16s32s_I(a, d, len);
        },
        add_ref<Tav32s>(k32s), kNoScale, 19, 40);
}

TEST(AddSub, FloatAgainstReference)
{
    random2<Tav32f, Tav32f, Tav32f>(AR_PLAIN2(tavsAdd_32f), fadd<float>, kNoScale, 21, 60);
    random2<Tav32f, Tav32f, Tav32f>(AR_PLAIN2(tavsSub_32f), fsub<float>, kNoScale, 22, 60);
    random2<Tav64f, Tav64f, Tav64f>(AR_PLAIN2(tavsAdd_64f), fadd<double>, kNoScale, 23, 60);
    random2<Tav64f, Tav64f, Tav64f>(AR_PLAIN2(tavsSub_64f), fsub<double>, kNoScale, 24, 60);
    random2<Tav32fc, Tav32fc, Tav32fc>(AR_PLAIN2(tavsAdd_32fc), cfadd<Tav32fc>, kNoScale, 25, 60);
    random2<Tav32fc, Tav32fc, Tav32fc>(AR_PLAIN2(tavsSub_32fc), cfsub<Tav32fc>, kNoScale, 26, 60);
    random2<Tav64fc, Tav64fc, Tav64fc>(AR_PLAIN2(tavsAdd_64fc), cfadd<Tav64fc>, kNoScale, 27, 60);
    random2<Tav64fc, Tav64fc, Tav64fc>(AR_PLAIN2(tavsSub_64fc), cfsub<Tav64fc>, kNoScale, 28, 60);
    random2<Tav16s, Tav16s, Tav32f>(
        AR_PLAIN2(tavsAdd_16s32f), [](Tav16s a, Tav16s b, Tav32f, int) { return float(a) + float(b); }, kNoScale, 29,
        60);
    random2<Tav16s, Tav16s, Tav32f>(
        AR_PLAIN2(tavsSub_16s32f), [](Tav16s a, Tav16s b, Tav32f, int) { return float(b) - float(a); }, kNoScale, 30,
        60);
}

// Every length and destination offset: the vector body and the element
// loop give the same bits.
TEST(AddSub, LengthsAndOffsets)
{
    const auto sc = sweep_scales();
    sweep2<Tav32f, Tav32f, Tav32f>(AR_PLAIN2(tavsAdd_32f), fadd<float>, kNoScale, 31);
    sweep2<Tav32f, Tav32f, Tav32f>(AR_PLAIN2(tavsSub_32f), fsub<float>, kNoScale, 32);
    sweep2<Tav64f, Tav64f, Tav64f>(AR_PLAIN2(tavsAdd_64f), fadd<double>, kNoScale, 33);
    sweep2<Tav64f, Tav64f, Tav64f>(AR_PLAIN2(tavsSub_64f), fsub<double>, kNoScale, 34);
    sweep2<Tav32fc, Tav32fc, Tav32fc>(AR_PLAIN2(tavsAdd_32fc), cfadd<Tav32fc>, kNoScale, 35);
    sweep2<Tav64fc, Tav64fc, Tav64fc>(AR_PLAIN2(tavsSub_64fc), cfsub<Tav64fc>, kNoScale, 36);
    sweep2<Tav16s, Tav16s, Tav16s>(AR_PLAIN2(tavsAdd_16s), add_ref<Tav16s>(k16s), kNoScale, 37);
    sweep2<Tav16s, Tav16s, Tav16s>(AR_PLAIN2(tavsSub_16s), sub_ref<Tav16s>(k16s), kNoScale, 38);
    sweep2<Tav16s, Tav16s, Tav16s>(AR_SFS2(tavsAdd_16s_Sfs), add_ref<Tav16s>(k16s), sc, 39);
    sweep2<Tav16s, Tav16s, Tav16s>(AR_SFS2(tavsSub_16s_Sfs), sub_ref<Tav16s>(k16s), sc, 40);
    sweep2<Tav16sc, Tav16sc, Tav16sc>(AR_SFS2(tavsAdd_16sc_Sfs), cadd_ref<Tav16sc>(k16s), sc, 41);
    sweep2<Tav16u, Tav16u, Tav16u>(AR_PLAIN2(tavsAdd_16u), add_ref<Tav16u>(kAdd16u), kNoScale, 42);
    sweep2<Tav16u, Tav16u, Tav16u>(AR_SFS2(tavsAdd_16u_Sfs), add_ref<Tav16u>(kAdd16u), sc, 43);
    sweep2<Tav16u, Tav16u, Tav16u>(AR_SFS2(tavsSub_16u_Sfs), sub_ref<Tav16u>(kSub16u), sc, 44);
}

TEST(AddSub, InPlaceEqualsOutOfPlace)
{
    const auto sc = all_scales();
    inplace2<Tav8u, Tav8u>(AR_SFSI(tavsAdd_8u_ISfs), AR_SFS2(tavsAdd_8u_Sfs), sc, 51);
    inplace2<Tav8u, Tav8u>(AR_SFSI(tavsSub_8u_ISfs), AR_SFS2(tavsSub_8u_Sfs), sc, 52);
    inplace2<Tav16u, Tav16u>(AR_SFSI(tavsAdd_16u_ISfs), AR_SFS2(tavsAdd_16u_Sfs), sc, 53);
    inplace2<Tav16u, Tav16u>(AR_SFSI(tavsSub_16u_ISfs), AR_SFS2(tavsSub_16u_Sfs), sc, 54);
    inplace2<Tav16s, Tav16s>(AR_SFSI(tavsAdd_16s_ISfs), AR_SFS2(tavsAdd_16s_Sfs), sc, 55);
    inplace2<Tav16s, Tav16s>(AR_SFSI(tavsSub_16s_ISfs), AR_SFS2(tavsSub_16s_Sfs), sc, 56);
    inplace2<Tav32s, Tav32s>(AR_SFSI(tavsAdd_32s_ISfs), AR_SFS2(tavsAdd_32s_Sfs), sc, 57);
    inplace2<Tav32s, Tav32s>(AR_SFSI(tavsSub_32s_ISfs), AR_SFS2(tavsSub_32s_Sfs), sc, 58);
    inplace2<Tav16sc, Tav16sc>(AR_SFSI(tavsAdd_16sc_ISfs), AR_SFS2(tavsAdd_16sc_Sfs), sc, 59);
    inplace2<Tav16sc, Tav16sc>(AR_SFSI(tavsSub_16sc_ISfs), AR_SFS2(tavsSub_16sc_Sfs), sc, 60);
    inplace2<Tav32sc, Tav32sc>(AR_SFSI(tavsAdd_32sc_ISfs), AR_SFS2(tavsAdd_32sc_Sfs), sc, 61);
    inplace2<Tav32sc, Tav32sc>(AR_SFSI(tavsSub_32sc_ISfs), AR_SFS2(tavsSub_32sc_Sfs), sc, 62);
    inplace2<Tav16s, Tav16s>(AR_PLAINI(tavsAdd_16s_I), AR_PLAIN2(tavsAdd_16s), kNoScale, 63);
    inplace2<Tav16s, Tav16s>(AR_PLAINI(tavsSub_16s_I), AR_PLAIN2(tavsSub_16s), kNoScale, 64);
    for (int k = 0; k < 20; ++k) {
        inplace2<Tav32f, Tav32f>(AR_PLAINI(tavsAdd_32f_I), AR_PLAIN2(tavsAdd_32f), kNoScale, 65 + 100 * k);
        inplace2<Tav32f, Tav32f>(AR_PLAINI(tavsSub_32f_I), AR_PLAIN2(tavsSub_32f), kNoScale, 66 + 100 * k);
        inplace2<Tav64f, Tav64f>(AR_PLAINI(tavsAdd_64f_I), AR_PLAIN2(tavsAdd_64f), kNoScale, 67 + 100 * k);
        inplace2<Tav64f, Tav64f>(AR_PLAINI(tavsSub_64f_I), AR_PLAIN2(tavsSub_64f), kNoScale, 68 + 100 * k);
        inplace2<Tav32fc, Tav32fc>(AR_PLAINI(tavsAdd_32fc_I), AR_PLAIN2(tavsAdd_32fc), kNoScale, 69 + 100 * k);
        inplace2<Tav32fc, Tav32fc>(AR_PLAINI(tavsSub_32fc_I), AR_PLAIN2(tavsSub_32fc), kNoScale, 70 + 100 * k);
        inplace2<Tav64fc, Tav64fc>(AR_PLAINI(tavsAdd_64fc_I), AR_PLAIN2(tavsAdd_64fc), kNoScale, 71 + 100 * k);
        inplace2<Tav64fc, Tav64fc>(AR_PLAINI(tavsSub_64fc_I), AR_PLAIN2(tavsSub_64fc), kNoScale, 72 + 100 * k);
    }
    // The source-and-destination operand of Sub_I is the minuend.
    Tav32f src = 1, sd = 3;
    ASSERT_EQ(tavsSub_32f_I(&src, &sd, 1), StatusOk);
    EXPECT_EQ(sd, 2.0f);
}

TEST(AddSub, Errors)
{
    errors_2src<Tav8u, Tav8u, Tav8u>(tavsAdd_8u_Sfs);
    errors_2src<Tav8u, Tav8u, Tav8u>(tavsSub_8u_Sfs);
    errors_2src<Tav16u, Tav16u, Tav16u>(tavsAdd_16u_Sfs);
    errors_2src<Tav16u, Tav16u, Tav16u>(tavsSub_16u_Sfs);
    errors_2src<Tav16u, Tav16u, Tav16u>(tavsAdd_16u);
    errors_2src<Tav16s, Tav16s, Tav16s>(tavsAdd_16s_Sfs);
    errors_2src<Tav16s, Tav16s, Tav16s>(tavsSub_16s_Sfs);
    errors_2src<Tav16s, Tav16s, Tav16s>(tavsAdd_16s);
    errors_2src<Tav16s, Tav16s, Tav16s>(tavsSub_16s);
    errors_2src<Tav32s, Tav32s, Tav32s>(tavsAdd_32s_Sfs);
    errors_2src<Tav32s, Tav32s, Tav32s>(tavsSub_32s_Sfs);
    errors_2src<Tav64s, Tav64s, Tav64s>(tavsAdd_64s_Sfs);
    errors_2src<Tav32u, Tav32u, Tav32u>(tavsAdd_32u);
    errors_2src<Tav8u, Tav8u, Tav16u>(tavsAdd_8u16u);
    errors_2src<Tav16s, Tav16s, Tav32f>(tavsAdd_16s32f);
    errors_2src<Tav16s, Tav16s, Tav32f>(tavsSub_16s32f);
    errors_2src<Tav32f, Tav32f, Tav32f>(tavsAdd_32f);
    errors_2src<Tav32f, Tav32f, Tav32f>(tavsSub_32f);
    errors_2src<Tav64f, Tav64f, Tav64f>(tavsAdd_64f);
    errors_2src<Tav64f, Tav64f, Tav64f>(tavsSub_64f);
    errors_1src<Tav8u, Tav8u>(tavsAdd_8u_ISfs);
    errors_1src<Tav8u, Tav8u>(tavsSub_8u_ISfs);
    errors_1src<Tav16u, Tav16u>(tavsAdd_16u_ISfs);
    errors_1src<Tav16u, Tav16u>(tavsSub_16u_ISfs);
    errors_1src<Tav16s, Tav16s>(tavsAdd_16s_ISfs);
    errors_1src<Tav16s, Tav16s>(tavsSub_16s_ISfs);
    errors_1src<Tav16s, Tav16s>(tavsAdd_16s_I);
    errors_1src<Tav16s, Tav16s>(tavsSub_16s_I);
    errors_1src<Tav32s, Tav32s>(tavsAdd_32s_ISfs);
    errors_1src<Tav32s, Tav32s>(tavsSub_32s_ISfs);
    errors_1src<Tav16s, Tav32s>(tavsAdd_16s32s_I);
    errors_1src<Tav32f, Tav32f>(tavsAdd_32f_I);
    errors_1src<Tav32f, Tav32f>(tavsSub_32f_I);
    errors_1src<Tav64f, Tav64f>(tavsAdd_64f_I);
    errors_1src<Tav64f, Tav64f>(tavsSub_64f_I);
    // The complex members test the length first.
    errors_2src<Tav16sc, Tav16sc, Tav16sc>(tavsAdd_16sc_Sfs, true);
    errors_2src<Tav16sc, Tav16sc, Tav16sc>(tavsSub_16sc_Sfs, true);
    errors_2src<Tav32sc, Tav32sc, Tav32sc>(tavsAdd_32sc_Sfs, true);
    errors_2src<Tav32sc, Tav32sc, Tav32sc>(tavsSub_32sc_Sfs, true);
    errors_2src<Tav32fc, Tav32fc, Tav32fc>(tavsAdd_32fc, true);
    errors_2src<Tav32fc, Tav32fc, Tav32fc>(tavsSub_32fc, true);
    errors_2src<Tav64fc, Tav64fc, Tav64fc>(tavsAdd_64fc, true);
    errors_2src<Tav64fc, Tav64fc, Tav64fc>(tavsSub_64fc, true);
    errors_1src<Tav16sc, Tav16sc>(tavsAdd_16sc_ISfs, true);
    errors_1src<Tav16sc, Tav16sc>(tavsSub_16sc_ISfs, true);
    errors_1src<Tav32sc, Tav32sc>(tavsAdd_32sc_ISfs, true);
    errors_1src<Tav32sc, Tav32sc>(tavsSub_32sc_ISfs, true);
    errors_1src<Tav32fc, Tav32fc>(tavsAdd_32fc_I, true);
    errors_1src<Tav32fc, Tav32fc>(tavsSub_32fc_I, true);
    errors_1src<Tav64fc, Tav64fc>(tavsAdd_64fc_I, true);
    errors_1src<Tav64fc, Tav64fc>(tavsSub_64fc_I, true);
}

// In the zero-fill path of the 16u members the sources are tested, then the
// zero body tests dst and len: the statuses stay those of the usual order.
TEST(AddSub, ZeroFillPathOf16u)
{
    Tav16u a[4] = {1, 2, 3, 4}, b[4] = {5, 6, 7, 8};
    tt::Guarded<Tav16u> g(4);
    for (int s : {18, 40, INT32_MAX}) {
        EXPECT_EQ(tavsAdd_16u_Sfs(nullptr, b, g.data(), 4, s), ErrNullPtr);
        EXPECT_EQ(tavsAdd_16u_Sfs(a, nullptr, g.data(), 0, s), ErrNullPtr);
        EXPECT_EQ(tavsAdd_16u_Sfs(a, b, nullptr, 4, s), ErrNullPtr);
        EXPECT_EQ(tavsAdd_16u_Sfs(a, b, nullptr, 0, s), ErrNullPtr);
        EXPECT_EQ(tavsAdd_16u_Sfs(a, b, g.data(), 0, s), ErrSize);
        EXPECT_EQ(tavsSub_16u_Sfs(a, b, nullptr, -1, s), ErrNullPtr);
        EXPECT_EQ(tavsSub_16u_Sfs(a, b, g.data(), -1, s), ErrSize);
    }
    EXPECT_TRUE(g.untouched());
    ASSERT_EQ(tavsAdd_16u_Sfs(a, b, g.data(), 4, 18), StatusOk);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(get<Tav16u>(g.data(), size_t(i)), 0);
    EXPECT_TRUE(g.borders_intact());
}

// The 16u vector path is kept from vectors that overlap dst closely: an
// in-order overlap gives the element-by-element results.
TEST(AddSub, OverlappingVectorsOf16uWorkInOrder)
{
    tt::Rng r(77);
    for (int shift : {-9, -8, -7, -3, -1, 1, 2, 3, 5, 7, 8, 9, 16})
        for (int len : {6, 7, 8, 9, 15, 16, 17, 33, 64})
            for (int s : {0, 1, 3, -2}) {
                std::vector<Tav16u> buf(size_t(len) + 40), b = any_vec<Tav16u>(r, size_t(len));
                for (auto& x : buf) x = any<Tav16u>(r);
                auto want = buf;
                const size_t src = 20, dst = size_t(20 + shift);
                for (size_t i = 0; i < size_t(len); ++i)
                    want[dst + i] = scale_ref<Tav16u>(i128(want[src + i]) + b[i], s, kAdd16u);
                ASSERT_EQ(tavsAdd_16u_Sfs(buf.data() + src, b.data(), buf.data() + dst, len, s), StatusOk);
                EXPECT_EQ(buf, want) << "shift " << shift << " len " << len << " s " << s;
            }
}

// A destination on an odd address gives the result of an aligned one.
TEST(AddSub, OddDestinationAddress)
{
    tt::Rng r(5);
    const int len = 61;
    auto a = any_vec<Tav32f>(r, len), b = any_vec<Tav32f>(r, len);
    std::vector<Tav32f> aligned(len);
    ASSERT_EQ(tavsAdd_32f(a.data(), b.data(), aligned.data(), len), StatusOk);
    for (size_t off : {1, 3, 7, 13}) {
        tt::Guarded<Tav32f> g(len, off);
        ASSERT_EQ(tavsAdd_32f(a.data(), b.data(), g.data(), len), StatusOk);
        EXPECT_EQ(std::memcmp(g.data(), aligned.data(), sizeof(Tav32f) * len), 0);
        EXPECT_TRUE(g.borders_intact());
    }
}

// Float sums follow the caller's rounding direction on every path (element
// loop and vector body alike); the library leaves the control state as is.
TEST(AddSub, FloatFollowsTheCallersRounding)
{
    const unsigned saved = _MM_GET_ROUNDING_MODE();
    for (int len : {3, 40}) {
        const size_t n = static_cast<size_t>(len);
        std::vector<Tav32f> a(n, 1.0f), b(n, 0x1p-30f), d(n);
        std::vector<Tav64f> x(n, 1.0), y(n, 0x1p-60), z(n);
        _MM_SET_ROUNDING_MODE(_MM_ROUND_UP);
        ASSERT_EQ(tavsAdd_32f(a.data(), b.data(), d.data(), len), StatusOk);
        ASSERT_EQ(tavsSub_64f(y.data(), x.data(), z.data(), len), StatusOk);
        EXPECT_EQ(_MM_GET_ROUNDING_MODE(), unsigned(_MM_ROUND_UP));
        _MM_SET_ROUNDING_MODE(saved);
        for (auto v : d) EXPECT_EQ(v, std::nextafter(1.0f, 2.0f));
        for (auto v : z) EXPECT_EQ(v, 1.0);
        _MM_SET_ROUNDING_MODE(_MM_ROUND_DOWN);
        ASSERT_EQ(tavsSub_64f(y.data(), x.data(), z.data(), len), StatusOk);
        _MM_SET_ROUNDING_MODE(saved);
        for (auto v : z) EXPECT_EQ(v, std::nextafter(1.0, 0.0));
    }
}

} // namespace
