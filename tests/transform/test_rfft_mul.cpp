// tavsMulPack_*, tavsMulPerm_*, tavsMulPackConj_*_I against references
// written here, bit for bit: every length 1 .. 70, out of place, in place
// and with a destination that is one of the sources; the 16s scale rules
// and the dropped second product at 2^30; the check order after the
// aliasing test.
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <cstring>
#include <vector>

#include "tavs.h"
#include "test_util.h"

namespace {

enum Lay { Pack, Perm };

// Index of the second real slot (-1: none) and of the first pair.
void slots(int l, int len, int& ny, int& first)
{
    if (len % 2) {
        ny = -1, first = 1;
        return;
    }
    ny = l == Pack ? len - 1 : 1;
    first = l == Pack ? 1 : 2;
}

// The exact 64-bit value scaled by 2^-sf and saturated: right shifts floor.
Tav16s ref_scale(int64_t v, int sf)
{
    int64_t r;
    if (sf >= 0) r = sf >= 63 ? (v < 0 ? -1 : 0) : (v >> sf);
    else {
        const int64_t n = -int64_t(sf);
        if (v == 0) r = 0;
        else if (n >= 20) r = v > 0 ? INT64_MAX : INT64_MIN;
        else r = v * (int64_t(1) << n);
    }
    return Tav16s(r > 32767 ? 32767 : r < -32768 ? -32768 : r);
}

// d = s * x with (a, b) from s and (c, e) from x.
std::vector<Tav16s> ref16(int l, const std::vector<Tav16s>& s, const std::vector<Tav16s>& x, int len, int sf)
{
    std::vector<Tav16s> d(static_cast<size_t>(len));
    int ny, first;
    slots(l, len, ny, first);
    d[0] = ref_scale(int64_t(s[0]) * x[0], sf);
    if (ny >= 0) d[size_t(ny)] = ref_scale(int64_t(s[size_t(ny)]) * x[size_t(ny)], sf);
    for (int j = first; j + 1 < len && !(ny == len - 1 && j == ny); j += 2) {
        const int64_t a = s[size_t(j)], b = s[size_t(j + 1)], c = x[size_t(j)], e = x[size_t(j + 1)];
        const int64_t re = a * c - b * e;
        const int64_t im = a * e == (int64_t(1) << 30) ? a * e : a * e + b * c;
        d[size_t(j)] = ref_scale(re, sf);
        d[size_t(j + 1)] = ref_scale(im, sf);
    }
    return d;
}

template <class S> std::vector<S> reff(int l, const std::vector<S>& s, const std::vector<S>& x, int len, bool conj)
{
    std::vector<S> d(static_cast<size_t>(len));
    int ny, first;
    slots(l, len, ny, first);
    d[0] = s[0] * x[0];
    if (ny >= 0) d[size_t(ny)] = s[size_t(ny)] * x[size_t(ny)];
    for (int j = first; j + 1 < len && !(ny == len - 1 && j == ny); j += 2) {
        const S a = s[size_t(j)], b = s[size_t(j + 1)], c = x[size_t(j)], e = x[size_t(j + 1)];
        d[size_t(j)] = conj ? a * c + b * e : a * c - b * e;
        d[size_t(j + 1)] = conj ? c * b - a * e : a * e + b * c;
    }
    return d;
}

Status mul16(int l, const Tav16s* a, const Tav16s* b, Tav16s* d, int n, int sf)
{
    return l == Pack ? tavsMulPack_16s_Sfs(a, b, d, n, sf) : tavsMulPerm_16s_Sfs(a, b, d, n, sf);
}
Status mul16i(int l, const Tav16s* a, Tav16s* d, int n, int sf)
{
    return l == Pack ? tavsMulPack_16s_ISfs(a, d, n, sf) : tavsMulPerm_16s_ISfs(a, d, n, sf);
}

TEST(MulPacked, Scaled16sEveryLengthAndScale)
{
    tt::Rng rng(3);
    for (int l : {Pack, Perm})
        for (int len = 1; len <= 70; ++len)
            for (int sf : {0, 1, 3, 15, 16, 30, 31, 40, -1, -3, -15, -16, -17, -40, INT_MIN, INT_MAX}) {
                std::vector<Tav16s> a(static_cast<size_t>(len)), b(static_cast<size_t>(len));
                for (auto& v : a) v = rng.element<Tav16s>();
                for (auto& v : b) v = rng.element<Tav16s>();
                if (len >= 4) a[1] = b[2] = -32768, a[2] = 1234, b[1] = -5; // pair at 1: ad = 2^30 in Pack
                const std::vector<Tav16s> want = ref16(l, a, b, len, sf);
                tt::Guarded<Tav16s> d{static_cast<size_t>(len)};
                ASSERT_EQ(mul16(l, a.data(), b.data(), d.data(), len, sf), StatusOk);
                EXPECT_TRUE(d.borders_intact());
                ASSERT_EQ(std::memcmp(d.data(), want.data(), want.size() * 2), 0) << l << " " << len << " " << sf;
                std::vector<Tav16s> io = b;
                ASSERT_EQ(mul16i(l, a.data(), io.data(), len, sf), StatusOk);
                EXPECT_EQ(io, want) << l << " " << len << " " << sf;
                // dst = src2: the in-place form with src1.
                io = b;
                ASSERT_EQ(mul16(l, a.data(), io.data(), io.data(), len, sf), StatusOk);
                EXPECT_EQ(io, want);
                // dst = src1: the in-place form with src2 as its source.
                io = a;
                ASSERT_EQ(mul16(l, io.data(), b.data(), io.data(), len, sf), StatusOk);
                EXPECT_EQ(io, ref16(l, b, a, len, sf)) << l << " " << len << " " << sf;
            }
}

// The pair (a, b) = (-32768, -32768) times (c, d) = (32767, -32768): ad is
// 2^30, so bc is dropped. With the destination on src1 the operands trade
// places and the first product is no longer 2^30: the result shows which.
TEST(MulPacked, DroppedSecondProduct)
{
    const Tav16s s1[3] = {1, -32768, -32768}, s2[3] = {1, 32767, -32768};
    Tav16s d[3];
    for (int l : {Pack, Perm}) {
        ASSERT_EQ(mul16(l, s1, s2, d, 3, 15), StatusOk);
        EXPECT_EQ(d[2], 32767) << l; // 2^30 >> 15, saturated
        EXPECT_EQ(d[1], (Tav16s)ref_scale(int64_t(-32768) * 32767 - int64_t(-32768) * -32768, 15));
        Tav16s io[3] = {1, -32768, -32768};
        ASSERT_EQ(mul16(l, io, s2, io, 3, 15), StatusOk);
        EXPECT_EQ(io[2], 1) << l; // (-1073709056 + 2^30) >> 15
        ASSERT_EQ(mul16(l, s1, s2, d, 3, 0), StatusOk);
        EXPECT_EQ(d[2], 32767);
        ASSERT_EQ(mul16(l, s1, s2, d, 3, -2), StatusOk);
        EXPECT_EQ(d[2], 32767);
        ASSERT_EQ(mul16(l, s1, s2, d, 3, 16), StatusOk);
        EXPECT_EQ(d[2], 16384);
    }
    // Scale rules: a right shift truncates toward minus infinity; a left
    // shift saturates; from 16 up every negative value gives -32768.
    const Tav16s m[1] = {-3}, n1[1] = {1}, p[1] = {3};
    ASSERT_EQ(tavsMulPack_16s_Sfs(m, n1, d, 1, 1), StatusOk);
    EXPECT_EQ(d[0], -2);
    ASSERT_EQ(tavsMulPerm_16s_Sfs(p, n1, d, 1, 1), StatusOk);
    EXPECT_EQ(d[0], 1);
    ASSERT_EQ(tavsMulPack_16s_Sfs(m, n1, d, 1, -16), StatusOk);
    EXPECT_EQ(d[0], -32768);
    ASSERT_EQ(tavsMulPack_16s_Sfs(p, n1, d, 1, -13), StatusOk);
    EXPECT_EQ(d[0], 24576);
    ASSERT_EQ(tavsMulPack_16s_Sfs(p, n1, d, 1, -14), StatusOk);
    EXPECT_EQ(d[0], 32767);
    Tav16s q[1] = {-1};
    ASSERT_EQ(tavsMulPerm_16s_ISfs(n1, q, 1, -15), StatusOk);
    EXPECT_EQ(q[0], -32768);
}

template <class S> struct F;
template <> struct F<float> {
    static Status mul(int l, const float* a, const float* b, float* d, int n)
    {
        return l == Pack ? tavsMulPack_32f(a, b, d, n) : tavsMulPerm_32f(a, b, d, n);
    }
    static Status muli(int l, const float* a, float* d, int n)
    {
        return l == Pack ? tavsMulPack_32f_I(a, d, n) : tavsMulPerm_32f_I(a, d, n);
    }
    static Status conj(const float* a, float* d, int n) { return tavsMulPackConj_32f_I(a, d, n); }
};
template <> struct F<double> {
    static Status mul(int l, const double* a, const double* b, double* d, int n)
    {
        return l == Pack ? tavsMulPack_64f(a, b, d, n) : tavsMulPerm_64f(a, b, d, n);
    }
    static Status muli(int l, const double* a, double* d, int n)
    {
        return l == Pack ? tavsMulPack_64f_I(a, d, n) : tavsMulPerm_64f_I(a, d, n);
    }
    static Status conj(const double* a, double* d, int n) { return tavsMulPackConj_64f_I(a, d, n); }
};

template <class S> struct MulFloat : ::testing::Test {};
using Floats = ::testing::Types<float, double>;
TYPED_TEST_SUITE(MulFloat, Floats);

TYPED_TEST(MulFloat, EveryLengthAllForms)
{
    using S = TypeParam;
    tt::Rng rng(9);
    for (int l : {Pack, Perm})
        for (int len = 1; len <= 70; ++len) {
            std::vector<S> a(static_cast<size_t>(len)), b(static_cast<size_t>(len));
            for (auto& v : a) v = S(rng.uniform(-10, 10));
            for (auto& v : b) v = S(rng.uniform(-10, 10));
            const std::vector<S> want = reff(l, a, b, len, false);
            tt::Guarded<S> d{static_cast<size_t>(len)};
            ASSERT_EQ(F<S>::mul(l, a.data(), b.data(), d.data(), len), StatusOk);
            EXPECT_TRUE(d.borders_intact());
            ASSERT_EQ(std::memcmp(d.data(), want.data(), want.size() * sizeof(S)), 0) << l << " " << len;
            std::vector<S> io = b;
            ASSERT_EQ(F<S>::muli(l, a.data(), io.data(), len), StatusOk);
            EXPECT_EQ(io, want);
            io = a;
            ASSERT_EQ(F<S>::mul(l, io.data(), b.data(), io.data(), len), StatusOk);
            EXPECT_EQ(io, want);
            io = b;
            ASSERT_EQ(F<S>::mul(l, a.data(), io.data(), io.data(), len), StatusOk);
            EXPECT_EQ(io, want);
            if (l == Pack) {
                io = b;
                ASSERT_EQ(F<S>::conj(a.data(), io.data(), len), StatusOk);
                EXPECT_EQ(io, reff(Pack, a, b, len, true)) << len;
            }
        }
    // src times the conjugate of srcDst, not the other way round.
    S s[3] = {2, 1, 2}, d[3] = {3, 3, 4};
    ASSERT_EQ(F<S>::conj(s, d, 3), StatusOk);
    EXPECT_EQ(d[0], S(6));
    EXPECT_EQ(d[1], S(11)); // 1*3 + 2*4
    EXPECT_EQ(d[2], S(2));  // 3*2 - 1*4
}

TYPED_TEST(MulFloat, ChecksAndUntouchedOutput)
{
    using S = TypeParam;
    std::vector<S> a(8, S(1));
    for (int l : {Pack, Perm}) {
        tt::Guarded<S> d(8);
        EXPECT_EQ(F<S>::mul(l, nullptr, a.data(), d.data(), 8), ErrNullPtr);
        EXPECT_EQ(F<S>::mul(l, a.data(), nullptr, d.data(), 8), ErrNullPtr);
        EXPECT_EQ(F<S>::mul(l, a.data(), a.data(), nullptr, 8), ErrNullPtr);
        EXPECT_EQ(F<S>::mul(l, a.data(), a.data(), d.data(), 0), ErrSize);
        EXPECT_EQ(F<S>::muli(l, nullptr, d.data(), 8), ErrNullPtr);
        EXPECT_EQ(F<S>::muli(l, a.data(), nullptr, 0), ErrNullPtr);
        EXPECT_EQ(F<S>::muli(l, a.data(), d.data(), -1), ErrSize);
        EXPECT_EQ(F<S>::conj(nullptr, d.data(), 8), ErrNullPtr);
        EXPECT_EQ(F<S>::conj(a.data(), d.data(), 0), ErrSize);
        // The aliasing test comes first: dst = src2 with a null src1 is the
        // in-place form with a null source.
        EXPECT_EQ(F<S>::mul(l, nullptr, d.data(), d.data(), 0), ErrNullPtr);
        EXPECT_EQ(F<S>::mul(l, d.data(), d.data(), d.data(), 0), ErrSize);
        EXPECT_TRUE(d.untouched());
    }
    tt::Guarded<Tav16s> e(4);
    const Tav16s x[4] = {1, 2, 3, 4};
    EXPECT_EQ(tavsMulPack_16s_Sfs(nullptr, x, e.data(), 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsMulPerm_16s_Sfs(x, x, e.data(), 0, 0), ErrSize);
    EXPECT_EQ(tavsMulPack_16s_ISfs(x, nullptr, 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsMulPerm_16s_ISfs(x, e.data(), 0, 0), ErrSize);
    EXPECT_EQ(tavsMulPerm_16s_Sfs(nullptr, e.data(), e.data(), 4, 0), ErrNullPtr);
    EXPECT_TRUE(e.untouched());
}

} // namespace
