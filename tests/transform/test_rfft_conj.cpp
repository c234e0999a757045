// tavsConjPack_*, tavsConjPerm_*, tavsConjCcs_*: the full spectrum against a
// reference written here, bit for bit, for every length 1 .. 70, out of
// place and in place; the DC and Nyquist slots; the wrapping 16sc
// negation; the check order with nothing written on error.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "tavs.h"
#include "test_util.h"

namespace {

enum Lay { Pack, Perm, CCS };

// Reals of the layout for len: Pack and Perm len, CCS len + 2 (even) or len + 1 (odd).
size_t reals(int l, int len) { return l == CCS ? size_t(len) + ((len & 1) ? 1 : 2) : size_t(len); }

template <class T> T neg(T x) { return T(-x); }
template <> Tav16s neg<Tav16s>(Tav16s x) { return x == -32768 ? Tav16s(-32768) : Tav16s(-x); }

// X[k] for k = 0 .. len/2 read from the layout, the rest mirrored.
template <class T, class C> std::vector<C> reference(int l, const std::vector<T>& s, int len)
{
    std::vector<C> X(static_cast<size_t>(len));
    X[0].re = s[0];
    X[0].im = l == CCS ? s[1] : T(0);
    const bool even = len % 2 == 0;
    const int top = even ? len / 2 - 1 : (len - 1) / 2;
    for (int k = 1; k <= top; ++k) {
        size_t at;
        if (l == CCS) at = size_t(2 * k);
        else if (l == Pack || !even) at = size_t(2 * k - 1);
        else at = size_t(2 * k);
        X[size_t(k)].re = s[at];
        X[size_t(k)].im = s[at + 1];
        X[size_t(len - k)].re = s[at];
        X[size_t(len - k)].im = neg(s[at + 1]);
    }
    if (even) {
        const size_t h = size_t(len / 2);
        if (l == Pack) X[h].re = s[size_t(len - 1)], X[h].im = T(0);
        else if (l == Perm) X[h].re = s[1], X[h].im = T(0);
        else X[h].re = s[size_t(len)], X[h].im = s[size_t(len + 1)];
    }
    return X;
}

struct T16 {
    using T = Tav16s;
    using C = Tav16sc;
    static Status f(int l, const T* s, C* d, int n)
    {
        return l == Pack ? tavsConjPack_16sc(s, d, n) : l == Perm ? tavsConjPerm_16sc(s, d, n) : tavsConjCcs_16sc(s, d, n);
    }
    static Status fi(int l, C* d, int n)
    {
        return l == Pack ? tavsConjPack_16sc_I(d, n) : l == Perm ? tavsConjPerm_16sc_I(d, n) : tavsConjCcs_16sc_I(d, n);
    }
};
struct T32 {
    using T = Tav32f;
    using C = Tav32fc;
    static Status f(int l, const T* s, C* d, int n)
    {
        return l == Pack ? tavsConjPack_32fc(s, d, n) : l == Perm ? tavsConjPerm_32fc(s, d, n) : tavsConjCcs_32fc(s, d, n);
    }
    static Status fi(int l, C* d, int n)
    {
        return l == Pack ? tavsConjPack_32fc_I(d, n) : l == Perm ? tavsConjPerm_32fc_I(d, n) : tavsConjCcs_32fc_I(d, n);
    }
};
struct T64 {
    using T = Tav64f;
    using C = Tav64fc;
    static Status f(int l, const T* s, C* d, int n)
    {
        return l == Pack ? tavsConjPack_64fc(s, d, n) : l == Perm ? tavsConjPerm_64fc(s, d, n) : tavsConjCcs_64fc(s, d, n);
    }
    static Status fi(int l, C* d, int n)
    {
        return l == Pack ? tavsConjPack_64fc_I(d, n) : l == Perm ? tavsConjPerm_64fc_I(d, n) : tavsConjCcs_64fc_I(d, n);
    }
};

template <class P> struct ConjSpectrum : ::testing::Test {};
using Types = ::testing::Types<T16, T32, T64>;
TYPED_TEST_SUITE(ConjSpectrum, Types);

template <class T> T value(tt::Rng& r)
{
    if constexpr (sizeof(T) == 2) return r.element<T>();
    else return T(r.uniform(-100.0, 100.0));
}

TYPED_TEST(ConjSpectrum, EveryLengthBothPlacements)
{
    using P = TypeParam;
    using T = typename P::T;
    using C = typename P::C;
    tt::Rng rng(17);
    for (int l : {Pack, Perm, CCS})
        for (int len = 1; len <= 70; ++len) {
            std::vector<T> s(reals(l, len));
            for (auto& v : s) v = value<T>(rng);
            if (sizeof(T) == 2 && len > 3) s[3] = -32768; // a negation that wraps
            const std::vector<C> want = reference<T, C>(l, s, len);
            tt::Guarded<C> d{static_cast<size_t>(len)};
            ASSERT_EQ(P::f(l, s.data(), d.data(), len), StatusOk);
            EXPECT_TRUE(d.borders_intact()) << l << " " << len;
            EXPECT_EQ(std::memcmp(d.data(), want.data(), want.size() * sizeof(C)), 0) << l << " " << len;
            // In place: the reals at the front of a buffer of len complex
            // values (the CCS reals fit from len 1 up).
            tt::Guarded<C> io{static_cast<size_t>(len)};
            std::memcpy(io.data(), s.data(), s.size() * sizeof(T));
            ASSERT_EQ(P::fi(l, io.data(), len), StatusOk);
            EXPECT_TRUE(io.borders_intact());
            EXPECT_EQ(std::memcmp(io.data(), want.data(), want.size() * sizeof(C)), 0) << l << " in place " << len;
            // The out-of-place form on one buffer is the in-place form.
            tt::Guarded<C> same{static_cast<size_t>(len)};
            std::memcpy(same.data(), s.data(), s.size() * sizeof(T));
            ASSERT_EQ(P::f(l, reinterpret_cast<const T*>(same.data()), same.data(), len), StatusOk);
            EXPECT_EQ(std::memcmp(same.data(), want.data(), want.size() * sizeof(C)), 0) << l << " aliased " << len;
        }
}

TYPED_TEST(ConjSpectrum, ChecksAndUntouchedOutput)
{
    using P = TypeParam;
    using T = typename P::T;
    using C = typename P::C;
    std::vector<T> s(20, T(1));
    for (int l : {Pack, Perm, CCS}) {
        tt::Guarded<C> d(8);
        EXPECT_EQ(P::f(l, nullptr, d.data(), 8), ErrNullPtr);
        EXPECT_EQ(P::f(l, s.data(), nullptr, 8), ErrNullPtr);
        EXPECT_EQ(P::f(l, nullptr, d.data(), 0), ErrNullPtr);
        EXPECT_EQ(P::f(l, s.data(), d.data(), 0), ErrSize);
        EXPECT_EQ(P::f(l, s.data(), d.data(), -1), ErrSize);
        EXPECT_EQ(P::fi(l, nullptr, 0), ErrNullPtr);
        EXPECT_EQ(P::fi(l, d.data(), 0), ErrSize);
        EXPECT_EQ(P::f(l, reinterpret_cast<const T*>(d.data()), d.data(), 0), ErrSize);
        EXPECT_TRUE(d.untouched());
    }
}

// CCS copies the imaginary words of the DC and Nyquist slots; Pack and Perm
// write 0 there.
TEST(ConjSpectrum, DcAndNyquistSlots)
{
    const float ccs[6] = {1, 9, 2, 3, 4, -7};
    Tav32fc d[4];
    ASSERT_EQ(tavsConjCcs_32fc(ccs, d, 4), StatusOk);
    EXPECT_EQ(d[0].re, 1.0f);
    EXPECT_EQ(d[0].im, 9.0f);
    EXPECT_EQ(d[2].re, 4.0f);
    EXPECT_EQ(d[2].im, -7.0f);
    EXPECT_EQ(d[1].im, 3.0f);
    EXPECT_EQ(d[3].im, -3.0f);
    const float pack[4] = {1, 2, 3, 4};
    ASSERT_EQ(tavsConjPack_32fc(pack, d, 4), StatusOk);
    EXPECT_EQ(d[0].im, 0.0f);
    EXPECT_EQ(d[2].re, 4.0f);
    EXPECT_EQ(d[2].im, 0.0f);
    ASSERT_EQ(tavsConjPerm_32fc(pack, d, 4), StatusOk);
    EXPECT_EQ(d[0].im, 0.0f);
    EXPECT_EQ(d[2].re, 2.0f);
    EXPECT_EQ(d[1].re, 3.0f);
    EXPECT_EQ(d[1].im, 4.0f);
    EXPECT_EQ(d[3].im, -4.0f);
    // -(-32768) wraps in 16sc.
    const Tav16s w[4] = {5, 6, -32768, 8};
    Tav16sc e[4];
    ASSERT_EQ(tavsConjPack_16sc(w, e, 4), StatusOk);
    EXPECT_EQ(e[1].im, -32768);
    EXPECT_EQ(e[3].im, -32768);
}

} // namespace
