// Shared checks of the norms of one vector and of a difference: the test
// files adapt each exported function to call(a, b, n, out), where b is
// ignored by the one-vector norms (diff false) and subtracted otherwise.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "extrema_ref.h"
#include "stats_ref.h"
#include "tavs.h"
#include "test_util.h"

namespace ncheck {

// ---- scale references -----------------------------------------------------------------

// The general rule: times 2^-sf, ties to even, saturated to [lo, hi].
inline int64_t scale_general(int64_t e, int sf, int64_t lo, int64_t hi)
{
    __int128 v = e;
    if (sf > 0) v = sf >= 100 ? 0 : (v + (__int128(1) << (sf - 1)) - 1 + ((v >> sf) & 1)) >> sf;
    else if (sf < 0) {
        for (int k = 0; k < -int64_t(sf) && v != 0 && v <= hi && v >= lo; ++k) v *= 2;
    }
    return int64_t(v > hi ? hi : (v < lo ? lo : v));
}

inline int32_t scale_l2(uint64_t sum, int sf)
{
    double r = std::sqrt(double(sum));
    if (sf > 0) r /= double(int32_t(uint32_t(1) << (sf % 32)));
    if (sf < 0) r *= double(int32_t(uint32_t(1) << ((-int64_t(sf)) % 32)));
    if (r > 2147483647.0) return INT32_MAX;
    if (r < -2147483648.0) return INT32_MIN;
    return int32_t(r);
}

inline int64_t scale_l2sqr(uint64_t sum, int sf)
{
    if (sf == 0) return int64_t(sum);
    if (sf > 0) return int64_t(sum >> (sf % 64));
    int k = -int64_t(sf) > 63 ? 63 : int(-sf);
    int bits = 0;
    for (uint64_t s = sum; s; s >>= 1) ++bits;
    return bits + k >= 64 ? INT64_MAX : int64_t(sum << k);
}

// ---- float references ---------------------------------------------------------------------

inline double inf_ref(const std::vector<double>& mags)
{
    double m = mags[0];
    for (double x : mags)
        if (x > m) m = x;
    return m;
}

template <class T> struct Data {
    std::vector<T> a, b;
};

// Terms of the reduction: elements, or differences of the widened elements.
template <class T> std::vector<double> terms(const T* a, const T* b, int n, bool diff)
{
    std::vector<double> t;
    for (int i = 0; i < n; ++i) t.push_back(diff ? double(a[i]) - double(b[i]) : double(a[i]));
    return t;
}

inline std::vector<double> mags(const std::vector<double>& v)
{
    std::vector<double> r;
    for (double x : v) r.push_back(std::fabs(x));
    return r;
}
inline std::vector<double> squares(const std::vector<double>& v)
{
    std::vector<double> r;
    for (double x : v) r.push_back(x * x);
    return r;
}
inline std::vector<double> cmags(const std::vector<double>& parts)
{
    std::vector<double> r;
    for (size_t i = 0; i + 1 < parts.size(); i += 2) r.push_back(std::sqrt(parts[i] * parts[i] + parts[i + 1] * parts[i + 1]));
    return r;
}

// Real float norms: Inf, L1 (sixteen lanes for one vector, eight for a
// difference), L2; result type R.
template <class T, class R, class CInf, class CL1, class CL2>
void check_real(CInf inf, CL1 l1, CL2 l2, bool diff, int seed)
{
    tt::Rng r{uint64_t(seed)};
    sref::sweep([&](int n, int off) {
        auto a = sref::floats<T>(r, size_t(n + 16), 30), b = sref::floats<T>(r, size_t(n + 16), 30);
        if (n % 7 == 0) a[size_t(off + n / 2)] = std::numeric_limits<T>::quiet_NaN(); // skipped by Inf
        const T* pa = a.data() + off;
        const T* pb = b.data() + (15 - off);
        auto t = terms(pa, pb, n, diff);
        R got{};
        ASSERT_EQ(inf(pa, pb, n, &got), StatusOk);
        ASSERT_TRUE(tt::same_bits(got, R(inf_ref(mags(t))))) << "inf n=" << n;
        if (n % 7 == 0) return; // the sums of a vector holding NaN are NaN
        ASSERT_EQ(l1(pa, pb, n, &got), StatusOk);
        ASSERT_TRUE(tt::same_bits(got, R(diff ? sref::sum8(mags(t)) : sref::sum16(mags(t))))) << "l1 n=" << n;
        ASSERT_EQ(l2(pa, pb, n, &got), StatusOk);
        ASSERT_TRUE(tt::same_bits(got, R(std::sqrt(sref::sum8(squares(t)))))) << "l2 n=" << n;
    });
}

// Complex float norms: Inf of magnitudes, L1 of magnitudes (eight lanes),
// L2 over the parts as one real vector.
template <class C, class RInf, class CInf, class CL1, class CL2>
void check_complex(CInf inf, CL1 l1, CL2 l2, bool diff, int seed)
{
    using P = decltype(C::re);
    tt::Rng r{uint64_t(seed)};
    sref::sweep([&](int n, int off) {
        auto a = sref::floats<P>(r, size_t(2 * n + 32), 20), b = sref::floats<P>(r, size_t(2 * n + 32), 20);
        const C* pa = reinterpret_cast<const C*>(a.data()) + off;
        const C* pb = reinterpret_cast<const C*>(b.data()) + (15 - off);
        auto t = terms(reinterpret_cast<const P*>(pa), reinterpret_cast<const P*>(pb), 2 * n, diff);
        RInf gi{};
        double g = 0;
        ASSERT_EQ(inf(pa, pb, n, &gi), StatusOk);
        ASSERT_TRUE(tt::same_bits(gi, RInf(inf_ref(cmags(t))))) << n;
        ASSERT_EQ(l1(pa, pb, n, &g), StatusOk);
        ASSERT_TRUE(tt::same_bits(g, sref::sum8(cmags(t)))) << n;
        ASSERT_EQ(l2(pa, pb, n, &g), StatusOk);
        ASSERT_TRUE(tt::same_bits(g, std::sqrt(sref::sum8(squares(t))))) << n;
    });
}

// 16-bit norms over all scale factors from -70 to 100.
template <class F32f, class Fsfs> void check_int_pair(F32f toFloat, Fsfs scaled, int kind, bool diff, int seed)
{
    tt::Rng r{uint64_t(seed)};
    sref::sweep([&](int n, int off) {
        auto a = sref::ints<Tav16s>(r, size_t(n + 16)), b = sref::ints<Tav16s>(r, size_t(n + 16));
        const Tav16s* pa = a.data() + off;
        const Tav16s* pb = b.data() + (15 - off);
        int64_t inf = 0, l1 = 0;
        uint64_t sq = 0;
        for (int i = 0; i < n; ++i) {
            int64_t t = diff ? int64_t(pa[i]) - pb[i] : pa[i];
            int64_t m = t < 0 ? -t : t;
            inf = m > inf ? m : inf;
            l1 += m;
            sq += uint64_t(t * t);
        }
        float f = 0;
        ASSERT_EQ(toFloat(pa, pb, n, &f), StatusOk);
        float want = kind == 0 ? float(inf) : (kind == 1 ? float(l1) : float(std::sqrt(double(sq))));
        ASSERT_TRUE(tt::same_bits(f, want)) << n;
        for (int sf : sref::scales(n, off)) {
            Tav32s s = 0;
            ASSERT_EQ(scaled(pa, pb, n, &s, sf), StatusOk);
            int64_t w = kind == 0 ? scale_general(inf, sf, INT32_MIN, INT32_MAX)
                                  : (kind == 1 ? scale_general(l1, sf, INT32_MIN, INT32_MAX) : scale_l2(sq, sf));
            ASSERT_EQ(s, w) << "n=" << n << " sf=" << sf;
        }
    });
}

// The 64-bit results: L1 scaled to 64 bits and the squared L2.
template <class FL1, class FSq> void check_int64(FL1 l1f, FSq sqf, bool diff, int seed)
{
    tt::Rng r{uint64_t(seed)};
    sref::sweep([&](int n, int off) {
        auto a = sref::ints<Tav16s>(r, size_t(n + 16)), b = sref::ints<Tav16s>(r, size_t(n + 16));
        const Tav16s* pa = a.data() + off;
        const Tav16s* pb = b.data() + (15 - off);
        int64_t l1 = 0;
        uint64_t sq = 0;
        for (int i = 0; i < n; ++i) {
            int64_t t = diff ? int64_t(pa[i]) - pb[i] : pa[i];
            l1 += t < 0 ? -t : t;
            sq += uint64_t(t * t);
        }
        for (int sf : sref::scales(n, off)) {
            Tav64s x = 0, y = 0;
            ASSERT_EQ(l1f(pa, pb, n, &x, sf), StatusOk);
            ASSERT_EQ(x, scale_general(l1, sf, INT64_MIN, INT64_MAX)) << "n=" << n << " sf=" << sf;
            ASSERT_EQ(sqf(pa, pb, n, &y, sf), StatusOk);
            ASSERT_EQ(y, scale_l2sqr(sq, sf)) << "n=" << n << " sf=" << sf;
        }
    });
}

} // namespace ncheck
