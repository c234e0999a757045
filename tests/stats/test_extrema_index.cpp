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

template <class T, class F> void check_index(F fn, bool isMax, int seed)
{
    tt::Rng r{uint64_t(seed)};
    sref::sweep([&](int n, int off) {
        auto v = xref::data<T>(r, size_t(n + 16));
        const T* p = v.data() + off;
        size_t at = xref::walk(p, size_t(n), ident<T>, isMax);
        T got{}, alone{};
        int idx = -1;
        ASSERT_EQ(fn(p, n, &got, &idx), StatusOk);
        ASSERT_TRUE(tt::same_bits(got, p[at])) << "n=" << n << " off=" << off;
        ASSERT_EQ(idx, int(at)) << "n=" << n << " off=" << off;
        ASSERT_EQ(fn(p, n, &alone, nullptr), StatusOk); // a null index is allowed
        ASSERT_TRUE(tt::same_bits(alone, got));
    });
}

TEST(ExtremaIndex, FirstIndexOfTheExtremum)
{
    check_index<Tav16s>(tavsMaxIndx_16s, true, 1);
    check_index<Tav32s>(tavsMaxIndx_32s, true, 2);
    check_index<Tav32f>(tavsMaxIndx_32f, true, 3);
    check_index<Tav64f>(tavsMaxIndx_64f, true, 4);
    check_index<Tav16s>(tavsMinIndx_16s, false, 5);
    check_index<Tav32s>(tavsMinIndx_32s, false, 6);
    check_index<Tav32f>(tavsMinIndx_32f, false, 7);
    check_index<Tav64f>(tavsMinIndx_64f, false, 8);
}

// Magnitudes clamped to the positive maximum before comparing.
template <class T, class F> void check_abs_index(F fn, bool isMax, int seed)
{
    tt::Rng r{uint64_t(seed)};
    auto mag = [](T x) {
        return x == std::numeric_limits<T>::min() ? std::numeric_limits<T>::max() : T(x < 0 ? -x : x);
    };
    sref::sweep([&](int n, int off) {
        auto v = xref::data<T>(r, size_t(n + 16));
        const T* p = v.data() + off;
        size_t at = xref::walk(p, size_t(n), mag, isMax);
        T got{}, alone{};
        int idx = -1;
        ASSERT_EQ(fn(p, n, &got, &idx), StatusOk);
        ASSERT_EQ(got, mag(p[at]));
        ASSERT_EQ(idx, int(at)) << "n=" << n;
        ASSERT_EQ(fn(p, n, &alone, nullptr), StatusOk);
        ASSERT_EQ(alone, got);
    });
}

TEST(ExtremaIndex, AbsFormsClampBeforeComparing)
{
    check_abs_index<Tav16s>(tavsMaxAbsIndx_16s, true, 11);
    check_abs_index<Tav32s>(tavsMaxAbsIndx_32s, true, 12);
    check_abs_index<Tav16s>(tavsMinAbsIndx_16s, false, 13);
    check_abs_index<Tav32s>(tavsMinAbsIndx_32s, false, 14);
}

template <class T, class F> void check_min_max_index(F fn, int seed)
{
    tt::Rng r{uint64_t(seed)};
    sref::sweep([&](int n, int off) {
        auto v = xref::data<T>(r, size_t(n + 16));
        const T* p = v.data() + off;
        size_t lo = xref::walk(p, size_t(n), ident<T>, false), hi = xref::walk(p, size_t(n), ident<T>, true);
        T a{}, b{};
        int ia = -1, ib = -1;
        ASSERT_EQ(fn(p, n, &a, &ia, &b, &ib), StatusOk);
        ASSERT_TRUE(tt::same_bits(a, p[lo]));
        ASSERT_TRUE(tt::same_bits(b, p[hi]));
        ASSERT_EQ(ia, int(lo)) << "n=" << n;
        ASSERT_EQ(ib, int(hi)) << "n=" << n;
    });
}

TEST(ExtremaIndex, MinMaxIndxEveryType)
{
    check_min_max_index<Tav8u>(tavsMinMaxIndx_8u, 21);
    check_min_max_index<Tav16u>(tavsMinMaxIndx_16u, 22);
    check_min_max_index<Tav32u>(tavsMinMaxIndx_32u, 23);
    check_min_max_index<Tav16s>(tavsMinMaxIndx_16s, 24);
    check_min_max_index<Tav32s>(tavsMinMaxIndx_32s, 25);
    check_min_max_index<Tav32f>(tavsMinMaxIndx_32f, 26);
    check_min_max_index<Tav64f>(tavsMinMaxIndx_64f, 27);
}

TEST(ExtremaIndex, DocumentedCases)
{
    float a[3] = {1, 3, 3}, m = 0;
    int i = -1;
    ASSERT_EQ(tavsMaxIndx_32f(a, 3, &m, &i), StatusOk);
    EXPECT_EQ(m, 3.0f);
    EXPECT_EQ(i, 1);
    float b[3] = {NAN, 1, 2};
    ASSERT_EQ(tavsMaxIndx_32f(b, 3, &m, &i), StatusOk);
    EXPECT_TRUE(std::isnan(m));
    EXPECT_EQ(i, 0);
    float c[3] = {1, NAN, 0.5f};
    ASSERT_EQ(tavsMaxIndx_32f(c, 3, &m, &i), StatusOk);
    EXPECT_EQ(m, 1.0f);
    EXPECT_EQ(i, 0);
    // A NaN seed in a long vector: lanes keep it and the index search is skipped.
    std::vector<double> d(50, 7.0);
    d[0] = NAN;
    d[30] = 99.0;
    double dm = 0;
    ASSERT_EQ(tavsMaxIndx_64f(d.data(), 50, &dm, &i), StatusOk);
    EXPECT_TRUE(std::isnan(dm));
    EXPECT_EQ(i, 0);
    ASSERT_EQ(tavsMinIndx_64f(d.data() + 1, 49, &dm, &i), StatusOk);
    EXPECT_EQ(dm, 7.0);
    EXPECT_EQ(i, 0);
    // Constant vector: both indices 0.
    std::vector<Tav32s> k(37, -12);
    Tav32s lo = 0, hi = 0;
    int il = -1, ih = -1;
    ASSERT_EQ(tavsMinMaxIndx_32s(k.data(), 37, &lo, &il, &hi, &ih), StatusOk);
    EXPECT_EQ(lo, -12);
    EXPECT_EQ(hi, -12);
    EXPECT_EQ(il, 0);
    EXPECT_EQ(ih, 0);
    // 32767 then -32768: they tie after the clamp, index 0 stays.
    Tav16s t[2] = {32767, -32768}, v = 0;
    ASSERT_EQ(tavsMaxAbsIndx_16s(t, 2, &v, &i), StatusOk);
    EXPECT_EQ(v, 32767);
    EXPECT_EQ(i, 0);
    Tav16s t2[3] = {5, -32768, 32767};
    ASSERT_EQ(tavsMaxAbsIndx_16s(t2, 3, &v, &i), StatusOk);
    EXPECT_EQ(i, 1);
    ASSERT_EQ(tavsMaxAbs_16s(t, 2, &v), StatusOk);
    EXPECT_EQ(v, 32767);
    Tav32s w[3] = {4, INT32_MIN, INT32_MAX}, wv = 0;
    ASSERT_EQ(tavsMaxAbsIndx_32s(w, 3, &wv, &i), StatusOk);
    EXPECT_EQ(wv, INT32_MAX);
    EXPECT_EQ(i, 1);
    ASSERT_EQ(tavsMinAbsIndx_32s(w, 3, &wv, &i), StatusOk);
    EXPECT_EQ(wv, 4);
    EXPECT_EQ(i, 0);
    Tav16s only[1] = {-32768};
    ASSERT_EQ(tavsMinAbsIndx_16s(only, 1, &v, &i), StatusOk);
    EXPECT_EQ(v, 32767);
    EXPECT_EQ(i, 0);
    // The earlier of two zeros keeps the index and its sign.
    float z[7] = {-1, -0.0f, -1, 0.0f, -2, -3, -4};
    ASSERT_EQ(tavsMaxIndx_32f(z, 7, &m, &i), StatusOk);
    EXPECT_EQ(i, 1);
    EXPECT_TRUE(std::signbit(m));
}

TEST(ExtremaIndexErrors, PointersThenLength)
{
    tt::Guarded<Tav64f> g(4);
    auto* o = g.data();
    int* oi = reinterpret_cast<int*>(o + 2);
    Tav16s s16[2] = {};
    Tav32s s32[2] = {};
    Tav32f f[2] = {};
    Tav64f d[2] = {};
    Tav8u b[2] = {};
    Tav16u u16[2] = {};
    Tav32u u32[2] = {};
    EXPECT_EQ(tavsMaxIndx_16s(nullptr, 0, reinterpret_cast<Tav16s*>(o), oi), ErrNullPtr);
    EXPECT_EQ(tavsMaxIndx_16s(s16, 2, nullptr, oi), ErrNullPtr);
    EXPECT_EQ(tavsMaxIndx_32s(s32, 0, reinterpret_cast<Tav32s*>(o), oi), ErrSize);
    EXPECT_EQ(tavsMaxIndx_32f(f, 0, reinterpret_cast<Tav32f*>(o), nullptr), ErrSize);
    EXPECT_EQ(tavsMaxIndx_64f(d, 0, o, oi), ErrSize);
    EXPECT_EQ(tavsMinIndx_16s(s16, -3, reinterpret_cast<Tav16s*>(o), oi), ErrSize);
    EXPECT_EQ(tavsMinIndx_32s(nullptr, 2, reinterpret_cast<Tav32s*>(o), oi), ErrNullPtr);
    EXPECT_EQ(tavsMinIndx_32f(f, 2, nullptr, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsMinIndx_64f(d, 0, o, oi), ErrSize);
    EXPECT_EQ(tavsMaxAbsIndx_16s(s16, 0, reinterpret_cast<Tav16s*>(o), oi), ErrSize);
    EXPECT_EQ(tavsMaxAbsIndx_32s(s32, 2, nullptr, oi), ErrNullPtr);
    EXPECT_EQ(tavsMinAbsIndx_16s(nullptr, 2, reinterpret_cast<Tav16s*>(o), oi), ErrNullPtr);
    EXPECT_EQ(tavsMinAbsIndx_32s(s32, 0, reinterpret_cast<Tav32s*>(o), oi), ErrSize);
    // MinMaxIndx needs all four outputs.
    auto* o8 = reinterpret_cast<Tav8u*>(o);
    EXPECT_EQ(tavsMinMaxIndx_8u(b, 2, o8, oi, o8 + 1, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsMinMaxIndx_8u(b, 2, o8, nullptr, o8 + 1, oi), ErrNullPtr);
    EXPECT_EQ(tavsMinMaxIndx_8u(b, 0, o8, oi, o8 + 1, oi + 1), ErrSize);
    auto* o16 = reinterpret_cast<Tav16u*>(o);
    EXPECT_EQ(tavsMinMaxIndx_16u(u16, 0, o16, oi, o16 + 1, oi + 1), ErrSize);
    auto* o32 = reinterpret_cast<Tav32u*>(o);
    EXPECT_EQ(tavsMinMaxIndx_32u(u32, 2, nullptr, oi, o32 + 1, oi + 1), ErrNullPtr);
    auto* os = reinterpret_cast<Tav16s*>(o);
    EXPECT_EQ(tavsMinMaxIndx_16s(nullptr, 2, os, oi, os + 1, oi + 1), ErrNullPtr);
    auto* ow = reinterpret_cast<Tav32s*>(o);
    EXPECT_EQ(tavsMinMaxIndx_32s(s32, 0, ow, oi, ow + 1, oi + 1), ErrSize);
    auto* of = reinterpret_cast<Tav32f*>(o);
    EXPECT_EQ(tavsMinMaxIndx_32f(f, 2, of, oi, nullptr, oi + 1), ErrNullPtr);
    EXPECT_EQ(tavsMinMaxIndx_64f(d, 0, o, oi, o + 1, oi + 1), ErrSize);
    EXPECT_TRUE(g.untouched());
}

} // namespace
