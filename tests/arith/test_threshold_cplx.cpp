// Thresholds of the complex element types: 16sc, 32fc, 64fc.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "lane_check.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using lc::get;
using lc::same;

template <class C> bool same_c(C a, C b) { return same(a.re, b.re) && same(a.im, b.im); }

// ---- edge cases -----------------------------------------------------------------

TEST(ThresholdCplx, Lt16scRaisesToTheLevel)
{
    Tav16sc x[2] = {{0, 0}, {3, 4}}, d[2] = {};
    ASSERT_EQ(tavsThreshold_LT_16sc(x, d, 2, 100), StatusOk);
    EXPECT_EQ(d[0].re, 100);
    EXPECT_EQ(d[0].im, 0);
    EXPECT_EQ(d[1].re, 60);
    EXPECT_EQ(d[1].im, 80);
    // Signs follow the source parts.
    Tav16sc y[1] = {{-3, -4}};
    ASSERT_EQ(tavsThreshold_LT_16sc_I(y, 1, 100), StatusOk);
    EXPECT_EQ(y[0].re, -60);
    EXPECT_EQ(y[0].im, -80);
}

TEST(ThresholdCplx, NegativeLevel)
{
    Tav32fc x[2] = {{1, 2}, {3, 4}};
    tt::Guarded<Tav32fc> g(2);
    EXPECT_EQ(tavsThreshold_LT_32fc(x, g.data(), 2, -1.0f), ErrThresholdNegative);
    EXPECT_EQ(tavsThreshold_LT_32fc_I(g.data(), 2, -1.0f), ErrThresholdNegative);
    EXPECT_TRUE(g.untouched());
}

TEST(ThresholdCplx, GtZeroLevelGivesSignedZeros)
{
    Tav32fc x[2] = {{-3.0f, 4.0f}, {0.0f, 0.0f}}, d[2];
    ASSERT_EQ(tavsThreshold_GT_32fc(x, d, 2, 0.0f), StatusOk);
    EXPECT_TRUE(same(d[0].re, -0.0f));
    EXPECT_TRUE(same(d[0].im, 0.0f));
    EXPECT_TRUE(same_c(d[1], x[1]));
    Tav64fc y[1] = {{6.0, -8.0}};
    ASSERT_EQ(tavsThreshold_GT_64fc_I(y, 1, 5.0), StatusOk);
    EXPECT_EQ(y[0].re, 3.0);
    EXPECT_EQ(y[0].im, -4.0);
}

TEST(ThresholdCplx, LtZeroElementGetsLevelOnRealAxis)
{
    Tav64fc x[2] = {{0.0, -0.0}, {0.3, -0.4}}, d[2];
    ASSERT_EQ(tavsThreshold_LT_64fc(x, d, 2, 2.0), StatusOk);
    EXPECT_TRUE(same(d[0].re, 2.0));
    EXPECT_TRUE(same(d[0].im, 0.0));
    EXPECT_NEAR(d[1].re, 1.2, 1e-15);
    EXPECT_NEAR(d[1].im, -1.6, 1e-15);
}

TEST(ThresholdCplx, Val16scUsesUnsignedSums)
{
    // (-32768, -32768) has a squared magnitude of 2^31.
    Tav16sc x[2] = {{-32768, -32768}, {100, 0}}, d[2];
    const Tav16sc v{7, -7};
    ASSERT_EQ(tavsThreshold_GTVal_16sc(x, d, 2, 32767, v), StatusOk);
    EXPECT_EQ(d[0].re, 7);
    EXPECT_EQ(d[0].im, -7);
    EXPECT_EQ(d[1].re, 100);
    ASSERT_EQ(tavsThreshold_LTVal_16sc(x, d, 2, 32767, v), StatusOk);
    EXPECT_EQ(d[0].re, -32768);
    EXPECT_EQ(d[1].re, 7);
    // GT brings the corner inside the level, part by part.
    ASSERT_EQ(tavsThreshold_GT_16sc(x, d, 1, 32767), StatusOk);
    EXPECT_EQ(d[0].re, -23169);
    EXPECT_EQ(d[0].im, -23169);
}

TEST(ThresholdCplx, LtInvZeroLevel)
{
    Tav32fc x[3] = {{3.0f, 4.0f}, {0.0f, -0.0f}, {-1.0f, 0.0f}}, d[3];
    ASSERT_EQ(tavsThreshold_LTInv_32fc(x, d, 3, 0.0f), WarnInvZero);
    const float inv = 1.0f / 25.0f;
    EXPECT_TRUE(same(d[0].re, 3.0f * inv));
    EXPECT_TRUE(same(d[0].im, -4.0f * inv));
    EXPECT_EQ(d[1].re, std::numeric_limits<float>::infinity());
    EXPECT_TRUE(same(d[1].im, 0.0f));
    EXPECT_EQ(d[2].re, -1.0f);
    EXPECT_TRUE(same(d[2].im, -0.0f));
    // A level whose square is 0 in the element type counts as zero.
    Tav32fc z[1] = {{0.0f, 0.0f}};
    ASSERT_EQ(tavsThreshold_LTInv_32fc_I(z, 1, 1e-30f), WarnInvZero);
    EXPECT_EQ(z[0].re, std::numeric_limits<float>::infinity());
    Tav64fc w[2] = {{0.0, 0.0}, {2.0, 0.0}};
    ASSERT_EQ(tavsThreshold_LTInv_64fc_I(w, 2, 1e-200), WarnInvZero);
    EXPECT_EQ(w[0].re, std::numeric_limits<double>::infinity());
    EXPECT_EQ(w[1].re, 0.5);
    // No zero element, no warning.
    ASSERT_EQ(tavsThreshold_LTInv_64fc_I(w + 1, 1, 0.0), StatusOk);
    EXPECT_EQ(w[1].re, 2.0);
}

TEST(ThresholdCplx, LtInvLimitsMagnitude)
{
    Tav32fc x[3] = {{0.0f, 0.0f}, {0.1f, 0.0f}, {4.0f, 0.0f}}, d[3];
    ASSERT_EQ(tavsThreshold_LTInv_32fc(x, d, 3, 2.0f), StatusOk);
    EXPECT_TRUE(same(d[0].re, 0.5f));
    EXPECT_TRUE(same(d[0].im, 0.0f));
    EXPECT_NEAR(d[1].re, 0.5f, 1e-6f); // |1/x| = 10 is limited to 1/2
    EXPECT_TRUE(same(d[1].im, -0.0f));
    EXPECT_EQ(d[2].re, 0.25f);
}

// ---- check order ------------------------------------------------------------------

template <class C, class Call, class CallI> void errors(Call call, CallI callI, Status paramWant)
{
    C src[3] = {};
    tt::Guarded<C> g(3);
    EXPECT_EQ(call(nullptr, g.data(), 3), ErrNullPtr);
    EXPECT_EQ(call(src, nullptr, 3), ErrNullPtr);
    EXPECT_EQ(call(nullptr, nullptr, -1), ErrNullPtr);
    EXPECT_EQ(callI(nullptr, 0), ErrNullPtr);
    EXPECT_EQ(call(src, g.data(), 0), ErrSize);
    EXPECT_EQ(callI(g.data(), -5), ErrSize);
    EXPECT_EQ(call(src, g.data(), 3), paramWant);
    EXPECT_EQ(callI(g.data(), 3), paramWant);
    EXPECT_TRUE(g.untouched());
}

#define ERRS(F, FI, C, WANT, ...)                                                                          \
    errors<C>([&](const C* s, C* d, int n) { return F(s, d, n, __VA_ARGS__); },                          \
              [&](C* p, int n) { return FI(p, n, __VA_ARGS__); }, WANT)

TEST(ThresholdCplx, CheckOrder)
{
    // The selector is tested before the level.
    ERRS(tavsThreshold_16sc, tavsThreshold_16sc_I, Tav16sc, ErrBadArg, Tav16s(-1), 1);
    ERRS(tavsThreshold_32fc, tavsThreshold_32fc_I, Tav32fc, ErrBadArg, -1.0f, 2);
    ERRS(tavsThreshold_64fc, tavsThreshold_64fc_I, Tav64fc, ErrBadArg, -1.0, -4);
    ERRS(tavsThreshold_16sc, tavsThreshold_16sc_I, Tav16sc, ErrThresholdNegative, Tav16s(-1), CmpGreater);
    ERRS(tavsThreshold_32fc, tavsThreshold_32fc_I, Tav32fc, ErrThresholdNegative, -1.0f, CmpLess);
    ERRS(tavsThreshold_64fc, tavsThreshold_64fc_I, Tav64fc, ErrThresholdNegative, -1e-300, CmpLess);
    ERRS(tavsThreshold_LT_16sc, tavsThreshold_LT_16sc_I, Tav16sc, ErrThresholdNegative, Tav16s(-32768));
    ERRS(tavsThreshold_LT_32fc, tavsThreshold_LT_32fc_I, Tav32fc, ErrThresholdNegative, -2.0f);
    ERRS(tavsThreshold_LT_64fc, tavsThreshold_LT_64fc_I, Tav64fc, ErrThresholdNegative, -2.0);
    ERRS(tavsThreshold_GT_16sc, tavsThreshold_GT_16sc_I, Tav16sc, ErrThresholdNegative, Tav16s(-1));
    ERRS(tavsThreshold_GT_32fc, tavsThreshold_GT_32fc_I, Tav32fc, ErrThresholdNegative, -2.0f);
    ERRS(tavsThreshold_GT_64fc, tavsThreshold_GT_64fc_I, Tav64fc, ErrThresholdNegative, -2.0);
    ERRS(tavsThreshold_LTVal_16sc, tavsThreshold_LTVal_16sc_I, Tav16sc, ErrThresholdNegative, Tav16s(-1),
         Tav16sc{1, 1});
    ERRS(tavsThreshold_LTVal_32fc, tavsThreshold_LTVal_32fc_I, Tav32fc, ErrThresholdNegative, -1.0f,
         Tav32fc{1, 1});
    ERRS(tavsThreshold_LTVal_64fc, tavsThreshold_LTVal_64fc_I, Tav64fc, ErrThresholdNegative, -1.0,
         Tav64fc{1, 1});
    ERRS(tavsThreshold_GTVal_16sc, tavsThreshold_GTVal_16sc_I, Tav16sc, ErrThresholdNegative, Tav16s(-1),
         Tav16sc{1, 1});
    ERRS(tavsThreshold_GTVal_32fc, tavsThreshold_GTVal_32fc_I, Tav32fc, ErrThresholdNegative, -1.0f,
         Tav32fc{1, 1});
    ERRS(tavsThreshold_GTVal_64fc, tavsThreshold_GTVal_64fc_I, Tav64fc, ErrThresholdNegative, -1.0,
         Tav64fc{1, 1});
    ERRS(tavsThreshold_LTInv_32fc, tavsThreshold_LTInv_32fc_I, Tav32fc, ErrThresholdNegative, -1.0f);
    ERRS(tavsThreshold_LTInv_64fc, tavsThreshold_LTInv_64fc_I, Tav64fc, ErrThresholdNegative, -1.0);
}

// ---- 16sc LT and GT against exact integer roots ----------------------------------

// The smallest r >= 0 with r^2 * n >= p (LT), or the largest with r^2 * n <= p (GT).
int64_t root_ref(uint64_t p, uint64_t n, bool up)
{
    uint64_t lo = 0, hi = 65536;
    while (lo < hi) {
        uint64_t mid = (lo + hi) / 2;
        bool ok = up ? mid * mid * n >= p : mid * mid * n > p;
        if (ok) hi = mid;
        else lo = mid + 1;
    }
    return int64_t(up ? lo : lo - 1);
}

Tav16sc ref_16sc(Tav16sc x, Tav16s L, bool lt)
{
    const uint64_t re2 = uint64_t(int64_t(x.re) * x.re), im2 = uint64_t(int64_t(x.im) * x.im);
    const uint64_t n = re2 + im2, L2 = uint64_t(int64_t(L) * L);
    if (lt ? n >= L2 : n <= L2) return x;
    if (n == 0) return Tav16sc{L, 0};
    auto part = [&](Tav16s v, uint64_t v2) {
        int64_t r = root_ref(L2 * v2, n, lt);
        return Tav16s(v < 0 ? -r : r);
    };
    return Tav16sc{part(x.re, re2), part(x.im, im2)};
}

TEST(ThresholdCplx, Roots16scExactOnALargeSample)
{
    tt::Rng r(21);
    std::vector<Tav16sc> src(1000), dst(1000);
    long checked = 0;
    for (int round = 0; round < 300; ++round) {
        const Tav16s L = Tav16s(round % 3 == 0 ? r.range(0, 32767) : r.range(0, 400));
        for (auto& x : src) {
            if (r.next() % 4 == 0) x = {r.element<Tav16s>(), r.element<Tav16s>()};
            else {
                // Mostly near the level so that both branches are busy.
                const int64_t span = int64_t(L) * 2 + 3;
                x = {Tav16s(r.range(-span, span) % 32768), Tav16s(r.range(-span, span) % 32768)};
            }
        }
        ASSERT_EQ(tavsThreshold_LT_16sc(src.data(), dst.data(), 1000, L), StatusOk);
        for (size_t i = 0; i < src.size(); ++i) {
            Tav16sc w = ref_16sc(src[i], L, true);
            ASSERT_TRUE(dst[i].re == w.re && dst[i].im == w.im)
                << "LT L=" << L << " x=(" << src[i].re << "," << src[i].im << ")";
        }
        ASSERT_EQ(tavsThreshold_GT_16sc(src.data(), dst.data(), 1000, L), StatusOk);
        for (size_t i = 0; i < src.size(); ++i) {
            Tav16sc w = ref_16sc(src[i], L, false);
            ASSERT_TRUE(dst[i].re == w.re && dst[i].im == w.im)
                << "GT L=" << L << " x=(" << src[i].re << "," << src[i].im << ")";
        }
        checked += 2000;
    }
    EXPECT_EQ(checked, 600000);
}

TEST(ThresholdCplx, Selector16scRandom)
{
    tt::Rng r(22);
    auto gen = [&]() { return Tav16sc{lc::special_int<Tav16s>(r, 300), lc::special_int<Tav16s>(r, 300)}; };
    for (Tav16s L : {Tav16s(0), Tav16s(1), Tav16s(300), Tav16s(32767)}) {
        for (int sel : {CmpLess, CmpGreater}) {
            auto ref = [&](Tav16sc x) { return ref_16sc(x, L, sel == CmpLess); };
            lc::sweep<Tav16sc>(gen, [&](const Tav16sc* s, Tav16sc* d, int n) { return tavsThreshold_16sc(s, d, n, L, sel); },
                               [&](Tav16sc* p, int n) { return tavsThreshold_16sc_I(p, n, L, sel); }, ref, lc::kLight);
        }
        lc::sweep<Tav16sc>(gen, [&](const Tav16sc* s, Tav16sc* d, int n) { return tavsThreshold_LT_16sc(s, d, n, L); },
                           [&](Tav16sc* p, int n) { return tavsThreshold_LT_16sc_I(p, n, L); },
                           [&](Tav16sc x) { return ref_16sc(x, L, true); }, lc::kLight);
        lc::sweep<Tav16sc>(gen, [&](const Tav16sc* s, Tav16sc* d, int n) { return tavsThreshold_GT_16sc(s, d, n, L); },
                           [&](Tav16sc* p, int n) { return tavsThreshold_GT_16sc_I(p, n, L); },
                           [&](Tav16sc x) { return ref_16sc(x, L, false); }, lc::kLight);
        const Tav16sc v{Tav16s(r.next()), Tav16s(r.next())};
        const int64_t L2 = int64_t(L) * L;
        auto n2 = [](Tav16sc x) { return int64_t(x.re) * x.re + int64_t(x.im) * x.im; };
        lc::sweep<Tav16sc>(gen, [&](const Tav16sc* s, Tav16sc* d, int n) { return tavsThreshold_LTVal_16sc(s, d, n, L, v); },
                           [&](Tav16sc* p, int n) { return tavsThreshold_LTVal_16sc_I(p, n, L, v); },
                           [&](Tav16sc x) { return n2(x) >= L2 ? x : v; }, lc::kLight);
        lc::sweep<Tav16sc>(gen, [&](const Tav16sc* s, Tav16sc* d, int n) { return tavsThreshold_GTVal_16sc(s, d, n, L, v); },
                           [&](Tav16sc* p, int n) { return tavsThreshold_GTVal_16sc_I(p, n, L, v); },
                           [&](Tav16sc x) { return L2 >= n2(x) ? x : v; }, lc::kLight);
    }
}

// ---- 32fc, 64fc against the same arithmetic written plainly ------------------------

template <class C> using P = decltype(C{}.re);

// |x|^2 in the element type, then widened.
template <class C> double mag2(C x)
{
    P<C> s = x.re * x.re + x.im * x.im;
    return double(s);
}

template <class C> C ref_lt(C x, P<C> L)
{
    const double L2 = double(L) * double(L), n = mag2(x);
    if (n >= L2) return x;
    if (n == 0) return C{L, 0};
    const double f = std::sqrt(L2 / n);
    return C{P<C>(double(x.re) * f), P<C>(double(x.im) * f)};
}

template <class C> C ref_gt(C x, P<C> L)
{
    const double L2 = double(L) * double(L), n = mag2(x);
    if (L2 >= n) return x;
    const double f = std::sqrt(L2 / n);
    return C{P<C>(double(x.re) * f), P<C>(double(x.im) * f)};
}

template <class C> C ref_inv(C x, P<C> L)
{
    using T = P<C>;
    const T LL = L * L;
    T r = x.re * x.re + x.im * x.im;
    if (LL == 0) {
        if (r == 0) return C{std::numeric_limits<T>::infinity(), 0};
        const T inv = T(1) / r;
        return C{x.re * inv, -x.im * inv};
    }
    if (r == 0) return C{T(1) / L, 0};
    if (LL > r) r = std::sqrt(r) * L;
    const T s = T(1) / r;
    return C{x.re * s, -x.im * s};
}

template <class C, class F, class FI, class Lt, class LtI, class Gt, class GtI, class Lv, class LvI, class Gv,
          class GvI>
void float_forms(tt::Rng& r, F fn, FI fnI, Lt lt, LtI ltI, Gt gt, GtI gtI, Lv lv, LvI lvI, Gv gv, GvI gvI)
{
    using T = P<C>;
    for (T L : {T(1.5), T(0), T(1e-3), T(3e5)}) {
        auto gen = [&]() { return C{lc::special_float<T>(r, L), lc::special_float<T>(r, L)}; };
        for (int sel : {CmpLess, CmpGreater}) {
            lc::sweep<C>(gen, [&](const C* s, C* d, int n) { return fn(s, d, n, L, sel); },
                         [&](C* p, int n) { return fnI(p, n, L, sel); },
                         [&](C x) { return sel == CmpLess ? ref_lt(x, L) : ref_gt(x, L); }, lc::kLight);
        }
        lc::sweep<C>(gen, [&](const C* s, C* d, int n) { return lt(s, d, n, L); },
                     [&](C* p, int n) { return ltI(p, n, L); }, [&](C x) { return ref_lt(x, L); }, lc::kLight);
        lc::sweep<C>(gen, [&](const C* s, C* d, int n) { return gt(s, d, n, L); },
                     [&](C* p, int n) { return gtI(p, n, L); }, [&](C x) { return ref_gt(x, L); }, lc::kLight);
        const C v = gen();
        const double L2 = double(L) * double(L);
        lc::sweep<C>(gen, [&](const C* s, C* d, int n) { return lv(s, d, n, L, v); },
                     [&](C* p, int n) { return lvI(p, n, L, v); }, [&](C x) { return mag2(x) >= L2 ? x : v; }, lc::kLight);
        lc::sweep<C>(gen, [&](const C* s, C* d, int n) { return gv(s, d, n, L, v); },
                     [&](C* p, int n) { return gvI(p, n, L, v); }, [&](C x) { return L2 >= mag2(x) ? x : v; }, lc::kLight);
    }
}

TEST(ThresholdCplx, FloatFormsRandom)
{
    tt::Rng r(23);
    float_forms<Tav32fc>(r, tavsThreshold_32fc, tavsThreshold_32fc_I, tavsThreshold_LT_32fc, tavsThreshold_LT_32fc_I,
                         tavsThreshold_GT_32fc, tavsThreshold_GT_32fc_I, tavsThreshold_LTVal_32fc,
                         tavsThreshold_LTVal_32fc_I, tavsThreshold_GTVal_32fc, tavsThreshold_GTVal_32fc_I);
    float_forms<Tav64fc>(r, tavsThreshold_64fc, tavsThreshold_64fc_I, tavsThreshold_LT_64fc, tavsThreshold_LT_64fc_I,
                         tavsThreshold_GT_64fc, tavsThreshold_GT_64fc_I, tavsThreshold_LTVal_64fc,
                         tavsThreshold_LTVal_64fc_I, tavsThreshold_GTVal_64fc, tavsThreshold_GTVal_64fc_I);
}

template <class C, class F, class FI> void inv_forms(tt::Rng& r, F fn, FI fnI, P<C> tiny)
{
    using T = P<C>;
    for (T L : {T(2), T(0.5), T(0), tiny}) {
        auto gen = [&]() { return C{lc::special_float<T>(r, L), lc::special_float<T>(r, L)}; };
        // The warning comes when the level squares to 0 and some element does too.
        auto want = [&](const C* s, int n) {
            if (L * L != 0) return StatusOk;
            for (int i = 0; i < n; ++i) {
                C x = get(s, size_t(i));
                if (x.re * x.re + x.im * x.im == 0) return WarnInvZero;
            }
            return StatusOk;
        };
        lc::sweep_with<C>(gen, [&](const C* s, C* d, int n) { return fn(s, d, n, L); },
                          [&](C* p, int n) { return fnI(p, n, L); }, [&](C x) { return ref_inv(x, L); }, want, lc::kLight);
    }
}

TEST(ThresholdCplx, LtInvRandom)
{
    tt::Rng r(24);
    inv_forms<Tav32fc>(r, tavsThreshold_LTInv_32fc, tavsThreshold_LTInv_32fc_I, 1e-25f);
    inv_forms<Tav64fc>(r, tavsThreshold_LTInv_64fc, tavsThreshold_LTInv_64fc_I, 1e-170);
}

} // namespace
