#include <gtest/gtest.h>

#include "arith_check.h"

using namespace ar;

namespace {

constexpr Lim kMul8u{zero_above(16), sign_at_or_below(-8)};
constexpr Lim kMul16s{zero_above(30), sign_below(-15)};
constexpr Lim kMul16u{zero_from(33), sign_below(-15)};
constexpr Lim kMul16u16s{zero_from(32), sign_below(-14)};
constexpr Lim kMul16s32s{zero_above(30), sign_below(-30)};
constexpr Lim kMul16sc{zero_above(31), sign_below(-15)};
constexpr Lim kMul32s{zero_above(62), sign_below(-31)};
constexpr Lim kMul32sc{zero_above(63), sign_below(-31)};
const std::vector<int> kNoScale{0};

template <class D> auto mul_ref(Lim lim)
{
    return [lim](auto a, auto b, D, int s) { return scale_ref<D>(i128(a) * i128(b), s, lim); };
}
// Exact complex product, both parts scaled alone.
template <class C> auto cmul_ref(Lim lim)
{
    return [lim](C a, C b, C, int s) {
        using P = decltype(a.re);
        const i128 re = i128(a.re) * b.re - i128(a.im) * b.im, im = i128(a.re) * b.im + i128(a.im) * b.re;
        return C{scale_ref<P>(re, s, lim), scale_ref<P>(im, s, lim)};
    };
}
auto mul32s32sc_ref = [](Tav32s a, Tav32sc b, Tav32sc, int s) {
    return Tav32sc{scale_ref<Tav32s>(i128(a) * b.re, s, kMul32s), scale_ref<Tav32s>(i128(a) * b.im, s, kMul32s)};
};
// The low 32 bits of floor(e / 2^s), or of e * 2^-s; the limits as in Mul_32s.
auto mul_low_ref = [](Tav32s a, Tav32s b, Tav32s, int s) -> Tav32s {
    const i128 e = i128(a) * b;
    if (s >= kMul32s.zeroFrom || s <= kMul32s.signTo) return scale_ref<Tav32s>(e, s, kMul32s);
    i128 v = e;
    if (s > 0) {
        const i128 p = i128(1) << s;
        v = e / p;
        if (e % p < 0) v -= 1;
    } else if (s < 0) {
        v = e * (i128(1) << -s);
    }
    return Tav32s(uint32_t(uint64_t(v)));
};

template <class F> auto fmul = [](F a, F b, F, int) { return F(a * b); };
// The 32fc product in its documented order.
auto cmul32 = [](Tav32fc a, Tav32fc b, Tav32fc, int) {
    Tav32fc r;
    const float nai = -a.im;
    r.re = b.re * a.re + nai * b.im;
    r.im = a.im * b.re + a.re * b.im;
    return r;
};
auto cmul64 = [](Tav64fc a, Tav64fc b, Tav64fc, int) {
    Tav64fc r;
    r.re = a.re * b.re - a.im * b.im;
    r.im = a.im * b.re + a.re * b.im;
    return r;
};
auto rcmul = [](Tav32f a, Tav32fc b, Tav32fc, int) { return Tav32fc{a * b.re, a * b.im}; };

TEST(Mul, EdgeCases)
{
    // All four factors -32768: re = 0, im = 2^31 which saturates to 32767.
    Tav16sc m{-32768, -32768}, r16{1, 1};
    ASSERT_EQ(tavsMul_16sc_Sfs(&m, &m, &r16, 1, 0), StatusOk);
    EXPECT_EQ(r16.re, 0);
    EXPECT_EQ(r16.im, 32767);
    ASSERT_EQ(tavsMul_16sc_Sfs(&m, &m, &r16, 1, 31), StatusOk);
    EXPECT_EQ(r16.im, 1);
    ASSERT_EQ(tavsMul_16sc_Sfs(&m, &m, &r16, 1, 32), StatusOk);
    EXPECT_EQ(r16.im, 0);
    Tav32sc m32{INT32_MIN, INT32_MIN}, r32{1, 1};
    ASSERT_EQ(tavsMul_32sc_Sfs(&m32, &m32, &r32, 1, 0), StatusOk);
    EXPECT_EQ(r32.re, 0);
    EXPECT_EQ(r32.im, INT32_MAX);
    ASSERT_EQ(tavsMul_32sc_Sfs(&m32, &m32, &r32, 1, 63), StatusOk);
    EXPECT_EQ(r32.im, 1);
    ASSERT_EQ(tavsMul_32sc_Sfs(&m32, &m32, &r32, 1, 64), StatusOk);
    EXPECT_EQ(r32.im, 0);

    // Ties to even: 3/2 -> 2, 1/2 -> 0.
    Tav32s a = 3, b = 1, d = 9;
    ASSERT_EQ(tavsMul_32s_Sfs(&a, &b, &d, 1, 1), StatusOk);
    EXPECT_EQ(d, 2);
    a = 1;
    ASSERT_EQ(tavsMul_32s_Sfs(&a, &b, &d, 1, 1), StatusOk);
    EXPECT_EQ(d, 0);

    // Mul_Low keeps the low 32 bits where Mul saturates.
    a = 65536;
    b = 65536;
    ASSERT_EQ(tavsMul_Low_32s_Sfs(&a, &b, &d, 1, 0), StatusOk);
    EXPECT_EQ(d, 0);
    ASSERT_EQ(tavsMul_32s_Sfs(&a, &b, &d, 1, 0), StatusOk);
    EXPECT_EQ(d, INT32_MAX);
    a = 3;
    b = 1 << 30;
    ASSERT_EQ(tavsMul_Low_32s_Sfs(&a, &b, &d, 1, 0), StatusOk);
    EXPECT_EQ(d, int32_t(0xC0000000u));
    ASSERT_EQ(tavsMul_Low_32s_Sfs(&a, &b, &d, 1, 1), StatusOk);
    EXPECT_EQ(d, 0x60000000);
    a = -3;
    b = 1;
    ASSERT_EQ(tavsMul_Low_32s_Sfs(&a, &b, &d, 1, 1), StatusOk);
    EXPECT_EQ(d, -2); // truncating shift, no rounding
    a = INT32_MAX;
    ASSERT_EQ(tavsMul_Low_32s_Sfs(&a, &b, &d, 1, -1), StatusOk);
    EXPECT_EQ(d, -2); // no saturation in the working range
    ASSERT_EQ(tavsMul_Low_32s_Sfs(&a, &b, &d, 1, -32), StatusOk);
    EXPECT_EQ(d, INT32_MAX);
    ASSERT_EQ(tavsMul_Low_32s_Sfs(&a, &b, &d, 1, 63), StatusOk);
    EXPECT_EQ(d, 0);

    // A product is saturated before the left shift: 100000 -> 32767.
    Tav16s x = 400, y = 250, z = 0;
    ASSERT_EQ(tavsMul_16s_Sfs(&x, &y, &z, 1, -1), StatusOk);
    EXPECT_EQ(z, 32767);
    // Scale factor 0 saturates without rounding.
    x = 200;
    y = 200;
    ASSERT_EQ(tavsMul_16s_Sfs(&x, &y, &z, 1, 0), StatusOk);
    EXPECT_EQ(z, 32767);
    ASSERT_EQ(tavsMul_16s(&x, &y, &z, 1), StatusOk);
    EXPECT_EQ(z, 32767);
    x = -3;
    y = 5;
    ASSERT_EQ(tavsMul_16s_Sfs(&x, &y, &z, 1, 0), StatusOk);
    EXPECT_EQ(z, -15);
    ASSERT_EQ(tavsMul_16s_Sfs(&x, &y, &z, 1, -11), StatusOk);
    EXPECT_EQ(z, -15 * 2048);
    ASSERT_EQ(tavsMul_16s_Sfs(&x, &y, &z, 1, -12), StatusOk);
    EXPECT_EQ(z, -32768);
    ASSERT_EQ(tavsMul_16s_Sfs(&x, &y, &z, 1, -16), StatusOk);
    EXPECT_EQ(z, -32768);
    ASSERT_EQ(tavsMul_16s_Sfs(&x, &y, &z, 1, INT32_MIN), StatusOk);
    EXPECT_EQ(z, -32768);

    // Mixed and widening members.
    Tav16u u = 65535;
    Tav16s sv = -32768, out = 0;
    ASSERT_EQ(tavsMul_16u16s_Sfs(&u, &sv, &out, 1, 0), StatusOk);
    EXPECT_EQ(out, -32768);
    ASSERT_EQ(tavsMul_16u16s_Sfs(&u, &sv, &out, 1, 31), StatusOk);
    EXPECT_EQ(out, -1);
    ASSERT_EQ(tavsMul_16u16s_Sfs(&u, &sv, &out, 1, 32), StatusOk);
    EXPECT_EQ(out, 0);
    Tav32s w = 0;
    ASSERT_EQ(tavsMul_16s32s_Sfs(&sv, &sv, &w, 1, 0), StatusOk);
    EXPECT_EQ(w, 1 << 30);
    ASSERT_EQ(tavsMul_16s32s_Sfs(&sv, &sv, &w, 1, -1), StatusOk);
    EXPECT_EQ(w, INT32_MAX);
    Tav8u c = 255;
    Tav16u p = 0;
    ASSERT_EQ(tavsMul_8u16u(&c, &c, &p, 1), StatusOk);
    EXPECT_EQ(p, 65025);
    Tav16u uu = 65535, ud = 0;
    ASSERT_EQ(tavsMul_16u_Sfs(&uu, &uu, &ud, 1, 32), StatusOk);
    EXPECT_EQ(ud, 1);
    ASSERT_EQ(tavsMul_16u_Sfs(&uu, &uu, &ud, 1, 33), StatusOk);
    EXPECT_EQ(ud, 0);
    Tav32f f = 0;
    ASSERT_EQ(tavsMul_16s32f(&sv, &sv, &f, 1), StatusOk);
    EXPECT_EQ(f, 1073741824.0f);
}

// The 32fc product forms re as b.re * a.re + (-a.im) * b.im: a NaN in a.im
// reaches re with its sign flipped, where the 64fc difference keeps it.
TEST(Mul, ComplexOrderOfOperations)
{
    const float qnan = std::numeric_limits<float>::quiet_NaN();
    for (int len : {1, 5, 16, 37}) {
        std::vector<Tav32fc> a(size_t(len), Tav32fc{1.0f, qnan}), b(size_t(len), Tav32fc{1.0f, 1.0f});
        std::vector<Tav32fc> d(static_cast<size_t>(len));
        ASSERT_EQ(tavsMul_32fc(a.data(), b.data(), d.data(), len), StatusOk);
        for (auto& v : d) {
            EXPECT_TRUE(std::isnan(v.re));
            EXPECT_TRUE(std::signbit(v.re));
            EXPECT_TRUE(std::isnan(v.im));
        }
    }
    Tav64fc a{1.0, std::numeric_limits<double>::quiet_NaN()}, b{1.0, 1.0}, d{};
    ASSERT_EQ(tavsMul_64fc(&a, &b, &d, 1), StatusOk);
    EXPECT_TRUE(std::isnan(d.re));
    EXPECT_FALSE(std::signbit(d.re));
    // Plain values: (1 + 2i)(3 + 4i) = -5 + 10i.
    Tav32fc x{1, 2}, y{3, 4}, z{};
    ASSERT_EQ(tavsMul_32fc(&x, &y, &z, 1), StatusOk);
    EXPECT_EQ(z.re, -5.0f);
    EXPECT_EQ(z.im, 10.0f);
}

// The out-of-place complex integer products go to the in-place form when
// src2 is dst; the result is the same product.
TEST(Mul, ComplexIntegerSecondSourceIsDestination)
{
    tt::Rng r(11);
    for (int s : {-20, -3, 0, 1, 5, 17, 31, 40}) {
        auto a = any_vec<Tav16sc>(r, 23), b = any_vec<Tav16sc>(r, 23);
        std::vector<Tav16sc> ref(23);
        ASSERT_EQ(tavsMul_16sc_Sfs(a.data(), b.data(), ref.data(), 23, s), StatusOk);
        ASSERT_EQ(tavsMul_16sc_Sfs(a.data(), b.data(), b.data(), 23, s), StatusOk);
        for (size_t i = 0; i < 23; ++i) EXPECT_TRUE(same(b[i], ref[i]));
        auto a2 = any_vec<Tav32sc>(r, 23), b2 = any_vec<Tav32sc>(r, 23);
        std::vector<Tav32sc> ref2(23);
        ASSERT_EQ(tavsMul_32sc_Sfs(a2.data(), b2.data(), ref2.data(), 23, s), StatusOk);
        ASSERT_EQ(tavsMul_32sc_Sfs(a2.data(), b2.data(), b2.data(), 23, s), StatusOk);
        for (size_t i = 0; i < 23; ++i) EXPECT_TRUE(same(b2[i], ref2[i]));
    }
    Tav16sc v[2] = {};
    EXPECT_EQ(tavsMul_16sc_Sfs(nullptr, v, v, 2, 0), ErrNullPtr);
    EXPECT_EQ(tavsMul_16sc_Sfs(v, v, v, 0, 0), ErrSize);
    EXPECT_EQ(tavsMul_16sc_Sfs(v, nullptr, nullptr, 2, 0), ErrNullPtr);
}

TEST(Mul, IntegerAgainstReference)
{
    const auto sc = all_scales();
    random2<Tav8u, Tav8u, Tav8u>(AR_SFS2(tavsMul_8u_Sfs), mul_ref<Tav8u>(kMul8u), sc, 101);
    random2<Tav16s, Tav16s, Tav16s>(AR_SFS2(tavsMul_16s_Sfs), mul_ref<Tav16s>(kMul16s), sc, 102);
    random2<Tav16u, Tav16u, Tav16u>(AR_SFS2(tavsMul_16u_Sfs), mul_ref<Tav16u>(kMul16u), sc, 103);
    random2<Tav16u, Tav16s, Tav16s>(AR_SFS2(tavsMul_16u16s_Sfs), mul_ref<Tav16s>(kMul16u16s), sc, 104);
    random2<Tav16s, Tav16s, Tav32s>(AR_SFS2(tavsMul_16s32s_Sfs), mul_ref<Tav32s>(kMul16s32s), sc, 105);
    random2<Tav32s, Tav32s, Tav32s>(AR_SFS2(tavsMul_32s_Sfs), mul_ref<Tav32s>(kMul32s), sc, 106);
    random2<Tav32s, Tav32s, Tav32s>(AR_SFS2(tavsMul_Low_32s_Sfs), mul_low_ref, sc, 107);
    random2<Tav16sc, Tav16sc, Tav16sc>(AR_SFS2(tavsMul_16sc_Sfs), cmul_ref<Tav16sc>(kMul16sc), sc, 108);
    random2<Tav32sc, Tav32sc, Tav32sc>(AR_SFS2(tavsMul_32sc_Sfs), cmul_ref<Tav32sc>(kMul32sc), sc, 109);
    random2<Tav32s, Tav32sc, Tav32sc>(AR_SFS2(tavsMul_32s32sc_Sfs), mul32s32sc_ref, sc, 110);
    random2<Tav16s, Tav16s, Tav16s>(AR_PLAIN2(tavsMul_16s), mul_ref<Tav16s>(kMul16s), kNoScale, 111, 40);
    random2<Tav8u, Tav8u, Tav16u>(AR_PLAIN2(tavsMul_8u16u), mul_ref<Tav16u>(kMul16u), kNoScale, 112, 40);
}

TEST(Mul, FloatAgainstReference)
{
    random2<Tav32f, Tav32f, Tav32f>(AR_PLAIN2(tavsMul_32f), fmul<float>, kNoScale, 121, 60);
    random2<Tav64f, Tav64f, Tav64f>(AR_PLAIN2(tavsMul_64f), fmul<double>, kNoScale, 122, 60);
    random2<Tav32fc, Tav32fc, Tav32fc>(AR_PLAIN2(tavsMul_32fc), cmul32, kNoScale, 123, 60);
    random2<Tav64fc, Tav64fc, Tav64fc>(AR_PLAIN2(tavsMul_64fc), cmul64, kNoScale, 124, 60);
    random2<Tav32f, Tav32fc, Tav32fc>(AR_PLAIN2(tavsMul_32f32fc), rcmul, kNoScale, 125, 60);
    random2<Tav16s, Tav16s, Tav32f>(
        AR_PLAIN2(tavsMul_16s32f), [](Tav16s a, Tav16s b, Tav32f, int) { return float(a) * float(b); }, kNoScale, 126,
        60);
}

TEST(Mul, LengthsAndOffsets)
{
    const auto sc = sweep_scales();
    sweep2<Tav32f, Tav32f, Tav32f>(AR_PLAIN2(tavsMul_32f), fmul<float>, kNoScale, 131);
    sweep2<Tav64f, Tav64f, Tav64f>(AR_PLAIN2(tavsMul_64f), fmul<double>, kNoScale, 132);
    sweep2<Tav32fc, Tav32fc, Tav32fc>(AR_PLAIN2(tavsMul_32fc), cmul32, kNoScale, 133);
    sweep2<Tav64fc, Tav64fc, Tav64fc>(AR_PLAIN2(tavsMul_64fc), cmul64, kNoScale, 134);
    sweep2<Tav32f, Tav32fc, Tav32fc>(AR_PLAIN2(tavsMul_32f32fc), rcmul, kNoScale, 135);
    sweep2<Tav16s, Tav16s, Tav16s>(AR_PLAIN2(tavsMul_16s), mul_ref<Tav16s>(kMul16s), kNoScale, 136);
    sweep2<Tav16s, Tav16s, Tav16s>(AR_SFS2(tavsMul_16s_Sfs), mul_ref<Tav16s>(kMul16s), sc, 137);
    sweep2<Tav16u, Tav16u, Tav16u>(AR_SFS2(tavsMul_16u_Sfs), mul_ref<Tav16u>(kMul16u), sc, 138);
}

TEST(Mul, InPlaceEqualsOutOfPlace)
{
    const auto sc = all_scales();
    inplace2<Tav8u, Tav8u>(AR_SFSI(tavsMul_8u_ISfs), AR_SFS2(tavsMul_8u_Sfs), sc, 141);
    inplace2<Tav16s, Tav16s>(AR_SFSI(tavsMul_16s_ISfs), AR_SFS2(tavsMul_16s_Sfs), sc, 142);
    inplace2<Tav16u, Tav16u>(AR_SFSI(tavsMul_16u_ISfs), AR_SFS2(tavsMul_16u_Sfs), sc, 143);
    inplace2<Tav32s, Tav32s>(AR_SFSI(tavsMul_32s_ISfs), AR_SFS2(tavsMul_32s_Sfs), sc, 144);
    inplace2<Tav16sc, Tav16sc>(AR_SFSI(tavsMul_16sc_ISfs), AR_SFS2(tavsMul_16sc_Sfs), sc, 145);
    inplace2<Tav32sc, Tav32sc>(AR_SFSI(tavsMul_32sc_ISfs), AR_SFS2(tavsMul_32sc_Sfs), sc, 146);
    inplace2<Tav32s, Tav32sc>(AR_SFSI(tavsMul_32s32sc_ISfs), AR_SFS2(tavsMul_32s32sc_Sfs), sc, 147);
    inplace2<Tav16s, Tav16s>(AR_PLAINI(tavsMul_16s_I), AR_PLAIN2(tavsMul_16s), kNoScale, 148);
    for (int k = 0; k < 20; ++k) {
        inplace2<Tav32f, Tav32f>(AR_PLAINI(tavsMul_32f_I), AR_PLAIN2(tavsMul_32f), kNoScale, 150 + 100 * k);
        inplace2<Tav64f, Tav64f>(AR_PLAINI(tavsMul_64f_I), AR_PLAIN2(tavsMul_64f), kNoScale, 151 + 100 * k);
        inplace2<Tav32fc, Tav32fc>(AR_PLAINI(tavsMul_32fc_I), AR_PLAIN2(tavsMul_32fc), kNoScale, 152 + 100 * k);
        inplace2<Tav64fc, Tav64fc>(AR_PLAINI(tavsMul_64fc_I), AR_PLAIN2(tavsMul_64fc), kNoScale, 153 + 100 * k);
        inplace2<Tav32f, Tav32fc>(AR_PLAINI(tavsMul_32f32fc_I), AR_PLAIN2(tavsMul_32f32fc), kNoScale, 154 + 100 * k);
    }
}

TEST(Mul, OverlappingVectorsOf16uWorkInOrder)
{
    tt::Rng r(78);
    for (int shift : {-8, -1, 1, 3, 7, 8, 9})
        for (int len : {7, 8, 9, 16, 31})
            for (int s : {0, 2, 16, -1}) {
                std::vector<Tav16u> buf(size_t(len) + 40), b = any_vec<Tav16u>(r, size_t(len));
                for (auto& x : buf) x = any<Tav16u>(r);
                auto want = buf;
                const size_t src = 20, dst = size_t(20 + shift);
                for (size_t i = 0; i < size_t(len); ++i)
                    want[dst + i] = scale_ref<Tav16u>(i128(want[src + i]) * b[i], s, kMul16u);
                ASSERT_EQ(tavsMul_16u_Sfs(buf.data() + src, b.data(), buf.data() + dst, len, s), StatusOk);
                EXPECT_EQ(buf, want) << "shift " << shift << " len " << len << " s " << s;
            }
}

TEST(Mul, Errors)
{
    errors_2src<Tav8u, Tav8u, Tav8u>(tavsMul_8u_Sfs);
    errors_2src<Tav8u, Tav8u, Tav16u>(tavsMul_8u16u);
    errors_2src<Tav16s, Tav16s, Tav16s>(tavsMul_16s_Sfs);
    errors_2src<Tav16s, Tav16s, Tav16s>(tavsMul_16s);
    errors_2src<Tav16s, Tav16s, Tav32f>(tavsMul_16s32f);
    errors_2src<Tav16s, Tav16s, Tav32s>(tavsMul_16s32s_Sfs);
    errors_2src<Tav16u, Tav16u, Tav16u>(tavsMul_16u_Sfs);
    errors_2src<Tav16u, Tav16s, Tav16s>(tavsMul_16u16s_Sfs);
    errors_2src<Tav32s, Tav32s, Tav32s>(tavsMul_32s_Sfs);
    errors_2src<Tav32s, Tav32s, Tav32s>(tavsMul_Low_32s_Sfs);
    errors_2src<Tav16sc, Tav16sc, Tav16sc>(tavsMul_16sc_Sfs);
    errors_2src<Tav32sc, Tav32sc, Tav32sc>(tavsMul_32sc_Sfs);
    errors_2src<Tav32s, Tav32sc, Tav32sc>(tavsMul_32s32sc_Sfs);
    errors_2src<Tav32f, Tav32f, Tav32f>(tavsMul_32f);
    errors_2src<Tav64f, Tav64f, Tav64f>(tavsMul_64f);
    errors_2src<Tav32fc, Tav32fc, Tav32fc>(tavsMul_32fc);
    errors_2src<Tav64fc, Tav64fc, Tav64fc>(tavsMul_64fc);
    errors_2src<Tav32f, Tav32fc, Tav32fc>(tavsMul_32f32fc);
    errors_1src<Tav8u, Tav8u>(tavsMul_8u_ISfs);
    errors_1src<Tav16s, Tav16s>(tavsMul_16s_ISfs);
    errors_1src<Tav16s, Tav16s>(tavsMul_16s_I);
    errors_1src<Tav16u, Tav16u>(tavsMul_16u_ISfs);
    errors_1src<Tav32s, Tav32s>(tavsMul_32s_ISfs);
    errors_1src<Tav16sc, Tav16sc>(tavsMul_16sc_ISfs);
    errors_1src<Tav32sc, Tav32sc>(tavsMul_32sc_ISfs);
    errors_1src<Tav32s, Tav32sc>(tavsMul_32s32sc_ISfs);
    errors_1src<Tav32f, Tav32f>(tavsMul_32f_I);
    errors_1src<Tav64f, Tav64f>(tavsMul_64f_I);
    errors_1src<Tav32fc, Tav32fc>(tavsMul_32fc_I);
    errors_1src<Tav64fc, Tav64fc>(tavsMul_64fc_I);
    errors_1src<Tav32f, Tav32fc>(tavsMul_32f32fc_I);
}

// In the zero-fill path of Mul_16u_Sfs the sources come first, then the zero
// body's tests of dst and len.
TEST(Mul, ZeroFillPathOf16u)
{
    Tav16u a[3] = {65535, 2, 3}, b[3] = {65535, 6, 7};
    tt::Guarded<Tav16u> g(3);
    EXPECT_EQ(tavsMul_16u_Sfs(nullptr, b, nullptr, 0, 33), ErrNullPtr);
    EXPECT_EQ(tavsMul_16u_Sfs(a, b, nullptr, 0, 33), ErrNullPtr);
    EXPECT_EQ(tavsMul_16u_Sfs(a, b, g.data(), 0, 33), ErrSize);
    EXPECT_TRUE(g.untouched());
    ASSERT_EQ(tavsMul_16u_Sfs(a, b, g.data(), 3, 33), StatusOk);
    for (size_t i = 0; i < 3; ++i) EXPECT_EQ(get<Tav16u>(g.data(), i), 0);
}

} // namespace
