#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "extrema_ref.h"
#include "stats_ref.h"
#include "tavs.h"
#include "test_util.h"

namespace {

template <class T> T ident(T x) { return x; }

template <class T, class F> void check_extreme(F fn, bool isMax, int seed)
{
    tt::Rng r{uint64_t(seed)};
    sref::sweep([&](int n, int off) {
        auto v = xref::data<T>(r, size_t(n + 16));
        const T* p = v.data() + off;
        size_t at = xref::walk(p, size_t(n), ident<T>, isMax);
        T got{};
        ASSERT_EQ(fn(p, n, &got), StatusOk);
        ASSERT_TRUE(tt::same_bits(got, p[at])) << "n=" << n << " off=" << off;
    });
}

TEST(Extrema, MaxAndMinFollowTheStrictWalk)
{
    check_extreme<Tav16s>(tavsMax_16s, true, 1);
    check_extreme<Tav32s>(tavsMax_32s, true, 2);
    check_extreme<Tav32f>(tavsMax_32f, true, 3);
    check_extreme<Tav64f>(tavsMax_64f, true, 4);
    check_extreme<Tav16s>(tavsMin_16s, false, 5);
    check_extreme<Tav32s>(tavsMin_32s, false, 6);
    check_extreme<Tav32f>(tavsMin_32f, false, 7);
    check_extreme<Tav64f>(tavsMin_64f, false, 8);
}

template <class T, class F> void check_min_max(F fn, int seed)
{
    tt::Rng r{uint64_t(seed)};
    sref::sweep([&](int n, int off) {
        auto v = xref::data<T>(r, size_t(n + 16));
        const T* p = v.data() + off;
        size_t lo = xref::walk(p, size_t(n), ident<T>, false), hi = xref::walk(p, size_t(n), ident<T>, true);
        T a{}, b{};
        ASSERT_EQ(fn(p, n, &a, &b), StatusOk);
        ASSERT_TRUE(tt::same_bits(a, p[lo])) << "n=" << n;
        ASSERT_TRUE(tt::same_bits(b, p[hi])) << "n=" << n;
    });
}

TEST(Extrema, MinMaxEveryType)
{
    check_min_max<Tav8u>(tavsMinMax_8u, 11);
    check_min_max<Tav16u>(tavsMinMax_16u, 12);
    check_min_max<Tav32u>(tavsMinMax_32u, 13);
    check_min_max<Tav16s>(tavsMinMax_16s, 14);
    check_min_max<Tav32s>(tavsMinMax_32s, 15);
    check_min_max<Tav32f>(tavsMinMax_32f, 16);
    check_min_max<Tav64f>(tavsMinMax_64f, 17);
}

// Magnitudes read as unsigned, results clamped.
template <class T, class F> void check_abs(F fn, bool isMax, int seed)
{
    using U = std::make_unsigned_t<T>;
    tt::Rng r{uint64_t(seed)};
    auto mag = [](T x) { return x < 0 ? U(U(0) - U(x)) : U(x); };
    sref::sweep([&](int n, int off) {
        auto v = xref::data<T>(r, size_t(n + 16));
        const T* p = v.data() + off;
        U m = mag(p[xref::walk(p, size_t(n), mag, isMax)]);
        U top = U(std::numeric_limits<T>::max());
        T got{};
        ASSERT_EQ(fn(p, n, &got), StatusOk);
        ASSERT_EQ(got, T(m > top ? top : m)) << "n=" << n;
    });
}

TEST(Extrema, MaxAbsAndMinAbs)
{
    check_abs<Tav16s>(tavsMaxAbs_16s, true, 21);
    check_abs<Tav32s>(tavsMaxAbs_32s, true, 22);
    check_abs<Tav16s>(tavsMinAbs_16s, false, 23);
    check_abs<Tav32s>(tavsMinAbs_32s, false, 24);
}

TEST(Extrema, DocumentedCases)
{
    Tav16s only[1] = {-32768}, m = 0;
    ASSERT_EQ(tavsMinAbs_16s(only, 1, &m), StatusOk);
    EXPECT_EQ(m, 32767);
    ASSERT_EQ(tavsMaxAbs_16s(only, 1, &m), StatusOk);
    EXPECT_EQ(m, 32767);
    std::vector<Tav16s> all(40, -32768);
    ASSERT_EQ(tavsMaxAbs_16s(all.data(), 40, &m), StatusOk);
    EXPECT_EQ(m, 32767);
    // -32768 counts as 32768: it is the largest, and it is above 32767.
    Tav16s mix[3] = {32767, -32768, 5};
    ASSERT_EQ(tavsMaxAbs_16s(mix, 3, &m), StatusOk);
    EXPECT_EQ(m, 32767);
    Tav16s mix2[3] = {-32768, 32767, 32767};
    ASSERT_EQ(tavsMinAbs_16s(mix2, 3, &m), StatusOk);
    EXPECT_EQ(m, 32767); // 32767 is below 32768
    Tav32s w[2] = {INT32_MIN, 7}, wm = 0;
    ASSERT_EQ(tavsMaxAbs_32s(w, 2, &wm), StatusOk);
    EXPECT_EQ(wm, INT32_MAX);
    ASSERT_EQ(tavsMinAbs_32s(w, 2, &wm), StatusOk);
    EXPECT_EQ(wm, 7);
    // NaN at index 0 stays; elsewhere it is skipped.
    float f[5] = {NAN, 1, 2, 3, 4}, fm = 0, fx = 0;
    ASSERT_EQ(tavsMax_32f(f, 5, &fm), StatusOk);
    EXPECT_TRUE(std::isnan(fm));
    ASSERT_EQ(tavsMinMax_32f(f, 5, &fm, &fx), StatusOk);
    EXPECT_TRUE(std::isnan(fm) && std::isnan(fx));
    float g[6] = {1, NAN, 0.5f, NAN, 3, NAN};
    ASSERT_EQ(tavsMax_32f(g, 6, &fm), StatusOk);
    EXPECT_EQ(fm, 3.0f);
    ASSERT_EQ(tavsMin_32f(g, 6, &fm), StatusOk);
    EXPECT_EQ(fm, 0.5f);
    // Both zeros compare equal: the earlier one stays.
    float z[9] = {-5, 0.0f, -5, -5, -0.0f, -5, -5, -5, -0.0f};
    ASSERT_EQ(tavsMax_32f(z, 9, &fm), StatusOk);
    EXPECT_TRUE(tt::same_bits(fm, 0.0f));
    double zd[5] = {-0.0, 0.0, 0.0, -0.0, 0.0}, dm = 1;
    ASSERT_EQ(tavsMin_64f(zd, 5, &dm), StatusOk);
    EXPECT_TRUE(tt::same_bits(dm, -0.0));
    double dx = 0;
    ASSERT_EQ(tavsMinMax_64f(zd + 1, 4, &dm, &dx), StatusOk);
    EXPECT_TRUE(tt::same_bits(dm, 0.0));
    EXPECT_TRUE(tt::same_bits(dx, 0.0));
}

TEST(ExtremaErrors, PointersThenLength)
{
    tt::Guarded<Tav64f> g(2);
    Tav16s s16[2] = {};
    Tav32s s32[2] = {};
    Tav32f f[2] = {};
    Tav64f d[2] = {};
    Tav8u b[2] = {};
    Tav16u u16[2] = {};
    Tav32u u32[2] = {};
    auto o16 = reinterpret_cast<Tav16s*>(g.data());
    auto o32 = reinterpret_cast<Tav32s*>(g.data());
    auto of = reinterpret_cast<Tav32f*>(g.data());
    EXPECT_EQ(tavsMax_16s(nullptr, 0, o16), ErrNullPtr);
    EXPECT_EQ(tavsMax_16s(s16, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsMax_16s(s16, 0, o16), ErrSize);
    EXPECT_EQ(tavsMax_32s(s32, -1, o32), ErrSize);
    EXPECT_EQ(tavsMax_32f(f, 0, of), ErrSize);
    EXPECT_EQ(tavsMax_64f(d, 0, g.data()), ErrSize);
    EXPECT_EQ(tavsMin_16s(s16, 0, o16), ErrSize);
    EXPECT_EQ(tavsMin_32s(nullptr, 2, o32), ErrNullPtr);
    EXPECT_EQ(tavsMin_32f(f, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsMin_64f(d, 0, g.data()), ErrSize);
    EXPECT_EQ(tavsMaxAbs_16s(s16, 0, o16), ErrSize);
    EXPECT_EQ(tavsMaxAbs_32s(nullptr, 2, o32), ErrNullPtr);
    EXPECT_EQ(tavsMinAbs_16s(s16, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsMinAbs_32s(s32, 0, o32), ErrSize);
    EXPECT_EQ(tavsMinMax_8u(b, 0, reinterpret_cast<Tav8u*>(o16), reinterpret_cast<Tav8u*>(o16) + 1), ErrSize);
    EXPECT_EQ(tavsMinMax_8u(b, 2, nullptr, reinterpret_cast<Tav8u*>(o16)), ErrNullPtr);
    EXPECT_EQ(tavsMinMax_16u(u16, 2, reinterpret_cast<Tav16u*>(o16), nullptr), ErrNullPtr);
    EXPECT_EQ(tavsMinMax_32u(u32, 0, reinterpret_cast<Tav32u*>(o32), reinterpret_cast<Tav32u*>(o32) + 1), ErrSize);
    EXPECT_EQ(tavsMinMax_16s(nullptr, 2, o16, o16 + 1), ErrNullPtr);
    EXPECT_EQ(tavsMinMax_32s(s32, 0, o32, o32 + 1), ErrSize);
    EXPECT_EQ(tavsMinMax_32f(f, 0, of, of + 1), ErrSize);
    EXPECT_EQ(tavsMinMax_64f(nullptr, 0, g.data(), g.data() + 1), ErrNullPtr);
    EXPECT_TRUE(g.untouched());
}

} // namespace
