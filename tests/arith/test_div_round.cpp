#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "constdiv_support.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using cd::i128;

// n * 2^-s / d (d != 0) rounded by mode on the exact rational: 0 toward
// zero, 1 half to even, 2 half away from zero. Far beyond every range the
// result is +-2^100.
i128 ref_mode(i128 n, i128 d, int s, int mode)
{
    if (n == 0) return 0;
    if (s <= -80) return ((n < 0) != (d < 0)) ? -(i128(1) << 100) : (i128(1) << 100);
    if (s >= 80) return 0;
    i128 num = s < 0 ? n * (i128(1) << -s) : n;
    i128 den = s > 0 ? d * (i128(1) << s) : d;
    if (den < 0) {
        num = -num;
        den = -den;
    }
    const bool neg = num < 0;
    const i128 mag = neg ? -num : num;
    i128 q = mag / den;
    const i128 r2 = 2 * (mag % den);
    if (mode == 1) {
        if (r2 > den || (r2 == den && (q & 1))) q += 1;
    } else if (mode == 2) {
        if (r2 >= den) q += 1;
    }
    return neg ? -q : q;
}

template <class T> T zero_div(i128 n) { return n > 0 ? std::numeric_limits<T>::max() : n < 0 ? std::numeric_limits<T>::min() : T(0); }

template <class T> void sweep(Status (*oop)(const T*, const T*, T*, int, int, int), Status (*ip)(const T*, T*, int, int, int), uint64_t seed)
{
    tt::Rng r(seed);
    const int n = 64;
    for (int s : cd::sweep_scales())
        for (int mode : {0, 1, 2}) {
            std::vector<T> d(n), a(n), out(n);
            for (auto& x : d) x = r.next() % 8 == 0 ? T(0) : r.next() % 3 == 0 ? T(r.range(-4, 4)) : r.element<T>();
            for (auto& x : a) x = r.element<T>();
            auto sd = a;
            bool z = false;
            for (T x : d) z |= x == 0;
            ASSERT_EQ(oop(d.data(), a.data(), out.data(), n, mode, s), z ? WarnDivByZero : StatusOk);
            ASSERT_EQ(ip(d.data(), sd.data(), n, mode, s), z ? WarnDivByZero : StatusOk);
            for (int i = 0; i < n; ++i) {
                const T want = d[i] == 0 ? zero_div<T>(a[i]) : cd::sat<T>(ref_mode(a[i], d[i], s, mode));
                ASSERT_EQ(out[i], want) << +a[i] << " / " << +d[i] << " s=" << s << " mode=" << mode;
                ASSERT_EQ(sd[i], want);
            }
        }
}

TEST(DivRound, EveryModeMatchesTheExactQuotient)
{
    sweep<Tav16s>(tavsDiv_Round_16s_Sfs, tavsDiv_Round_16s_ISfs, 1);
    sweep<Tav16u>(tavsDiv_Round_16u_Sfs, tavsDiv_Round_16u_ISfs, 2);
    sweep<Tav8u>(tavsDiv_Round_8u_Sfs, tavsDiv_Round_8u_ISfs, 3);
}

TEST(DivRound, AllSmallPairsAtEveryScaleBetweenTheLimits)
{
    std::vector<Tav8u> d(65536), a(65536), out(65536);
    for (int i = 0; i < 65536; ++i) {
        d[size_t(i)] = Tav8u(i >> 8);
        a[size_t(i)] = Tav8u(i & 255);
    }
    for (int mode : {0, 1, 2})
        for (int s = -17; s <= 10; s += 3) {
            ASSERT_EQ(tavsDiv_Round_8u_Sfs(d.data(), a.data(), out.data(), 65536, mode, s), WarnDivByZero);
            for (int i = 0; i < 65536; ++i) {
                const Tav8u want = d[size_t(i)] == 0 ? zero_div<Tav8u>(a[size_t(i)]) : cd::sat<Tav8u>(ref_mode(a[size_t(i)], d[size_t(i)], s, mode));
                ASSERT_EQ(out[size_t(i)], want);
            }
        }
}

TEST(DivRound, Modes)
{
    const Tav16s two[3] = {2, 2, 2}, n[3] = {5, -5, 7};
    Tav16s q[3];
    ASSERT_EQ(tavsDiv_Round_16s_Sfs(two, n, q, 3, RoundTowardZero, 0), StatusOk);
    EXPECT_EQ(q[0], 2);
    EXPECT_EQ(q[1], -2);
    EXPECT_EQ(q[2], 3);
    ASSERT_EQ(tavsDiv_Round_16s_Sfs(two, n, q, 3, RoundHalfEven, 0), StatusOk);
    EXPECT_EQ(q[0], 2);
    EXPECT_EQ(q[1], -2);
    EXPECT_EQ(q[2], 4);
    ASSERT_EQ(tavsDiv_Round_16s_Sfs(two, n, q, 3, RoundHalfAway, 0), StatusOk);
    EXPECT_EQ(q[0], 3);
    EXPECT_EQ(q[1], -3);
    EXPECT_EQ(q[2], 4);
    // Scale 16: 32768 / 65536 is one half, so only half-away gives 1; from 17 every mode gives 0.
    const Tav16s one = 1, mn = -32768, zero = 0;
    Tav16s r;
    ASSERT_EQ(tavsDiv_Round_16s_Sfs(&one, &mn, &r, 1, RoundHalfAway, 16), StatusOk);
    EXPECT_EQ(r, -1);
    ASSERT_EQ(tavsDiv_Round_16s_Sfs(&one, &mn, &r, 1, RoundHalfAway, 17), StatusOk);
    EXPECT_EQ(r, 0);
    ASSERT_EQ(tavsDiv_Round_16s_Sfs(&zero, &mn, &r, 1, RoundHalfAway, 17), WarnDivByZero);
    EXPECT_EQ(r, -32768);
    // Below -30: the sign of the dividend times that of the divisor.
    const Tav16s m1 = -1, p3 = 3;
    ASSERT_EQ(tavsDiv_Round_16s_Sfs(&m1, &p3, &r, 1, RoundTowardZero, -31), StatusOk);
    EXPECT_EQ(r, -32768);
    ASSERT_EQ(tavsDiv_Round_16s_Sfs(&m1, &mn, &r, 1, RoundTowardZero, INT_MIN), StatusOk);
    EXPECT_EQ(r, 32767);
}

TEST(DivRound, ErrorsInTheirOrder)
{
    for (int mode : {0, 1, 2, 3, -1, 100, INT_MIN})
        for (int s : {0, 20, -40}) {
            cd::expect_two_src_errors<Tav16s, Tav16s, Tav16s>(
                [&](const Tav16s* a, const Tav16s* b, Tav16s* d, int n) { return tavsDiv_Round_16s_Sfs(a, b, d, n, mode, s); });
            cd::expect_two_src_errors<Tav16u, Tav16u, Tav16u>(
                [&](const Tav16u* a, const Tav16u* b, Tav16u* d, int n) { return tavsDiv_Round_16u_Sfs(a, b, d, n, mode, s); });
            cd::expect_two_src_errors<Tav8u, Tav8u, Tav8u>(
                [&](const Tav8u* a, const Tav8u* b, Tav8u* d, int n) { return tavsDiv_Round_8u_Sfs(a, b, d, n, mode, s); });
            cd::expect_src_sd_errors<Tav16s, Tav16s>([&](const Tav16s* a, Tav16s* d, int n) { return tavsDiv_Round_16s_ISfs(a, d, n, mode, s); });
            cd::expect_src_sd_errors<Tav16u, Tav16u>([&](const Tav16u* a, Tav16u* d, int n) { return tavsDiv_Round_16u_ISfs(a, d, n, mode, s); });
            cd::expect_src_sd_errors<Tav8u, Tav8u>([&](const Tav8u* a, Tav8u* d, int n) { return tavsDiv_Round_8u_ISfs(a, d, n, mode, s); });
        }
    // A mode outside 0, 1, 2 is refused after the pointers and the length, and nothing is written.
    for (int mode : {3, -1, 100, INT_MIN, INT_MAX}) {
        const Tav16s a[2] = {0, 1}, b[2] = {1, 2};
        tt::Guarded<Tav16s> g(2);
        EXPECT_EQ(tavsDiv_Round_16s_Sfs(a, b, g.data(), 2, mode, 0), ErrRoundMode);
        EXPECT_EQ(tavsDiv_Round_16s_ISfs(a, g.data(), 2, mode, 0), ErrRoundMode);
        const Tav16u ua[2] = {0, 1};
        tt::Guarded<Tav16u> h(2);
        EXPECT_EQ(tavsDiv_Round_16u_Sfs(ua, ua, h.data(), 2, mode, 5), ErrRoundMode);
        EXPECT_EQ(tavsDiv_Round_16u_ISfs(ua, h.data(), 2, mode, 5), ErrRoundMode);
        const Tav8u ba[2] = {0, 1};
        tt::Guarded<Tav8u> k(2);
        EXPECT_EQ(tavsDiv_Round_8u_Sfs(ba, ba, k.data(), 2, mode, -20), ErrRoundMode);
        EXPECT_EQ(tavsDiv_Round_8u_ISfs(ba, k.data(), 2, mode, -20), ErrRoundMode);
        EXPECT_TRUE(g.untouched() && h.untouched() && k.untouched());
        EXPECT_EQ(tavsDiv_Round_16s_Sfs(a, b, nullptr, 2, mode, 0), ErrNullPtr);
        EXPECT_EQ(tavsDiv_Round_16s_Sfs(a, b, g.data(), 0, mode, 0), ErrSize);
    }
    const Tav16s a = 1, b = 1;
    Tav16s d;
    EXPECT_EQ(tavsDiv_Round_16s_Sfs(&a, &b, &d, 1, 3, 0), -213);
}

} // namespace
