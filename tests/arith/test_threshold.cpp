// Thresholds of the real element types: 16s, 32s, 32f, 64f.
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

constexpr float kNaNf = std::numeric_limits<float>::quiet_NaN();
constexpr float kInff = std::numeric_limits<float>::infinity();

template <class T> auto gen_for(tt::Rng& r, T near)
{
    return [&r, near]() {
        if constexpr (std::is_floating_point_v<T>) return lc::special_float<T>(r, near);
        else return lc::special_int<T>(r, near);
    };
}

// ---- edge cases -----------------------------------------------------------------

TEST(Threshold, NaNElementInLtLtAbsGtAbs)
{
    float x = kNaNf, d = 0;
    ASSERT_EQ(tavsThreshold_LT_32f(&x, &d, 1, 3.0f), StatusOk);
    EXPECT_EQ(d, 3.0f);
    ASSERT_EQ(tavsThreshold_LTAbs_32f(&x, &d, 1, 3.0f), StatusOk);
    EXPECT_TRUE(std::isnan(d));
    ASSERT_EQ(tavsThreshold_GTAbs_32f(&x, &d, 1, 3.0f), StatusOk);
    EXPECT_EQ(d, 3.0f);
    // GT stores the level too; the value forms store the value; the
    // two-sided form keeps the NaN.
    ASSERT_EQ(tavsThreshold_GT_32f(&x, &d, 1, 3.0f), StatusOk);
    EXPECT_EQ(d, 3.0f);
    ASSERT_EQ(tavsThreshold_LTVal_32f(&x, &d, 1, 3.0f, 7.0f), StatusOk);
    EXPECT_EQ(d, 7.0f);
    ASSERT_EQ(tavsThreshold_GTVal_32f(&x, &d, 1, 3.0f, 8.0f), StatusOk);
    EXPECT_EQ(d, 8.0f);
    ASSERT_EQ(tavsThreshold_LTValGTVal_32f(&x, &d, 1, -1.0f, -5.0f, 1.0f, 5.0f), StatusOk);
    EXPECT_TRUE(std::isnan(d));
}

TEST(Threshold, LtAbsNegativeZeroBecomesPlusLevel)
{
    float x[2] = {-0.0f, 0.0f}, d[2] = {};
    ASSERT_EQ(tavsThreshold_LTAbs_32f(x, d, 2, 2.5f), StatusOk);
    EXPECT_TRUE(same(d[0], 2.5f));
    EXPECT_TRUE(same(d[1], 2.5f));
    double y = -0.0, e = 0;
    ASSERT_EQ(tavsThreshold_LTAbs_64f_I(&y, 1, 0.25), StatusOk);
    EXPECT_TRUE(same(y, 0.25));
    ASSERT_EQ(tavsThreshold_LTAbs_64f(&y, &e, 1, 0.25), StatusOk);
    EXPECT_TRUE(same(e, 0.25));
}

TEST(Threshold, LtAbs16sKeepsRangeBottom)
{
    Tav16s x[3] = {-32768, -32767, 5}, d[3] = {};
    ASSERT_EQ(tavsThreshold_LTAbs_16s(x, d, 3, 32767), StatusOk);
    EXPECT_EQ(d[0], -32768);
    EXPECT_EQ(d[1], -32767);
    EXPECT_EQ(d[2], 32767);
}

TEST(Threshold, GtAbs32sAtRangeBottom)
{
    Tav32s x[4] = {INT32_MIN, INT32_MAX, -5, 0}, d[4] = {};
    ASSERT_EQ(tavsThreshold_GTAbs_32s(x, d, 4, 5), StatusOk);
    EXPECT_EQ(d[0], -5);
    EXPECT_EQ(d[1], 5);
    EXPECT_EQ(d[2], -5);
    EXPECT_EQ(d[3], 0);
}

TEST(Threshold, BadSelectorWritesNothing)
{
    float x[4] = {1, 2, 3, 4};
    tt::Guarded<float> g(4);
    for (int sel : {1, 2, 3, 5, -1, 8, INT32_MIN}) {
        EXPECT_EQ(tavsThreshold_32f(x, g.data(), 4, 2.0f, sel), ErrBadArg);
        EXPECT_EQ(tavsThreshold_32f_I(g.data(), 4, 2.0f, sel), ErrBadArg);
    }
    EXPECT_TRUE(g.untouched());
}

TEST(Threshold, LtInvZeroLevelWarnsAndFinishes)
{
    float x[4] = {4.0f, 0.0f, -0.0f, -2.0f}, d[4] = {};
    ASSERT_EQ(tavsThreshold_LTInv_32f(x, d, 4, 0.0f), WarnInvZero);
    EXPECT_EQ(d[0], 0.25f);
    EXPECT_EQ(d[1], kInff);
    EXPECT_EQ(d[2], kInff); // the sign of a zero does not matter
    EXPECT_EQ(d[3], -0.5f);
    // -0.0 is a zero level as well, and without zero elements no warning.
    float y[2] = {8.0f, -0.125f};
    ASSERT_EQ(tavsThreshold_LTInv_32f(y, d, 2, -0.0f), StatusOk);
    EXPECT_EQ(d[0], 0.125f);
    EXPECT_EQ(d[1], -8.0f);
    double z[3] = {0.0, 1e-300, 2.0};
    ASSERT_EQ(tavsThreshold_LTInv_64f_I(z, 3, 0.0), WarnInvZero);
    EXPECT_EQ(z[0], std::numeric_limits<double>::infinity());
    EXPECT_EQ(z[1], 1.0 / 1e-300);
    EXPECT_EQ(z[2], 0.5);
}

TEST(Threshold, LtInvLimitsMagnitude)
{
    float x[7] = {-1.0f, 2.0f, -2.0f, 4.0f, -0.0f, kNaNf, -8.0f}, d[7] = {};
    ASSERT_EQ(tavsThreshold_LTInv_32f(x, d, 7, 2.0f), StatusOk);
    EXPECT_EQ(d[0], -0.5f);
    EXPECT_EQ(d[1], 0.5f);
    EXPECT_EQ(d[2], -0.5f);
    EXPECT_EQ(d[3], 0.25f);
    EXPECT_TRUE(same(d[4], 0.5f)); // -0.0 is at or above 0
    EXPECT_EQ(d[5], -0.5f);        // NaN takes the negative branch
    EXPECT_EQ(d[6], -0.125f);
}

TEST(Threshold, LtValGtValOrder)
{
    float x[2] = {1, 2};
    tt::Guarded<float> g(2);
    EXPECT_EQ(tavsThreshold_LTValGTVal_32f(x, g.data(), 2, 3.0f, 0.0f, 2.0f, 0.0f), ErrThresholdOrder);
    EXPECT_EQ(tavsThreshold_LTValGTVal_32f_I(g.data(), 2, 3.0f, 0.0f, 2.0f, 0.0f), ErrThresholdOrder);
    EXPECT_TRUE(g.untouched());
    // Equal levels are in order.
    ASSERT_EQ(tavsThreshold_LTValGTVal_32f(x, g.data(), 2, 2.0f, -1.0f, 2.0f, 9.0f), StatusOk);
    EXPECT_EQ(g.data()[0], -1.0f);
    EXPECT_EQ(g.data()[1], 2.0f);
}

TEST(Threshold, StrictComparisonsAtTheLevel)
{
    Tav16s x[3] = {9, 10, 11}, d[3];
    ASSERT_EQ(tavsThreshold_LTVal_16s(x, d, 3, 10, -1), StatusOk);
    EXPECT_EQ(d[0], -1);
    EXPECT_EQ(d[1], 10);
    EXPECT_EQ(d[2], 11);
    ASSERT_EQ(tavsThreshold_GTVal_16s(x, d, 3, 10, -1), StatusOk);
    EXPECT_EQ(d[0], 9);
    EXPECT_EQ(d[1], 10);
    EXPECT_EQ(d[2], -1);
    // The level compares as signed.
    Tav32s y[2] = {-1, 1}, e[2];
    ASSERT_EQ(tavsThreshold_LT_32s(y, e, 2, 0), StatusOk);
    EXPECT_EQ(e[0], 0);
    EXPECT_EQ(e[1], 1);
    // Signed zeros: LT keeps x only when above the level.
    float z[2] = {-0.0f, 0.0f}, f[2];
    ASSERT_EQ(tavsThreshold_LT_32f(z, f, 2, 0.0f), StatusOk);
    EXPECT_TRUE(same(f[0], 0.0f));
    ASSERT_EQ(tavsThreshold_GT_32f(z, f, 2, -0.0f), StatusOk);
    EXPECT_TRUE(same(f[1], -0.0f));
}

TEST(Threshold, GtAbsFloatZeroLevel)
{
    // min(x, 0) then max(that, -0): the second operand wins on equality.
    float x[4] = {3.0f, -3.0f, 0.0f, -0.0f}, d[4];
    ASSERT_EQ(tavsThreshold_GTAbs_32f(x, d, 4, 0.0f), StatusOk);
    for (float v : d) EXPECT_TRUE(same(v, -0.0f));
    double y[3] = {0.5, -0.5, 7.0}, e[3];
    ASSERT_EQ(tavsThreshold_GTAbs_64f(y, e, 3, 1.0), StatusOk);
    EXPECT_EQ(e[0], 0.5);
    EXPECT_EQ(e[1], -0.5);
    EXPECT_EQ(e[2], 1.0);
}

// ---- check order ------------------------------------------------------------------

// Null pointers first (even with len 0 and bad parameters), then len.
template <class T, class Call, class CallI> void common_errors(Call call, CallI callI)
{
    T src[4] = {};
    tt::Guarded<T> g(4);
    EXPECT_EQ(call(nullptr, g.data(), 4), ErrNullPtr);
    EXPECT_EQ(call(src, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(call(nullptr, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(callI(nullptr, 4), ErrNullPtr);
    EXPECT_EQ(callI(nullptr, -3), ErrNullPtr);
    EXPECT_EQ(call(src, g.data(), 0), ErrSize);
    EXPECT_EQ(call(src, g.data(), INT32_MIN), ErrSize);
    EXPECT_EQ(callI(g.data(), 0), ErrSize);
    EXPECT_EQ(callI(g.data(), -1), ErrSize);
    EXPECT_TRUE(g.untouched());
}

#define PAIR(F, FI, T, ...)                                                                                    \
    common_errors<T>([&](const T* s, T* d, int n) { return F(s, d, n, __VA_ARGS__); },                   \
                     [&](T* p, int n) { return FI(p, n, __VA_ARGS__); })

TEST(Threshold, NullThenSize)
{
    // Bad selectors, negative or disordered levels do not come first.
    PAIR(tavsThreshold_16s, tavsThreshold_16s_I, Tav16s, Tav16s(1), 3);
    PAIR(tavsThreshold_32f, tavsThreshold_32f_I, Tav32f, 1.0f, 3);
    PAIR(tavsThreshold_64f, tavsThreshold_64f_I, Tav64f, 1.0, 3);
    PAIR(tavsThreshold_LT_16s, tavsThreshold_LT_16s_I, Tav16s, Tav16s(1));
    PAIR(tavsThreshold_LT_32s, tavsThreshold_LT_32s_I, Tav32s, 1);
    PAIR(tavsThreshold_LT_32f, tavsThreshold_LT_32f_I, Tav32f, 1.0f);
    PAIR(tavsThreshold_LT_64f, tavsThreshold_LT_64f_I, Tav64f, 1.0);
    PAIR(tavsThreshold_GT_16s, tavsThreshold_GT_16s_I, Tav16s, Tav16s(1));
    PAIR(tavsThreshold_GT_32s, tavsThreshold_GT_32s_I, Tav32s, 1);
    PAIR(tavsThreshold_GT_32f, tavsThreshold_GT_32f_I, Tav32f, 1.0f);
    PAIR(tavsThreshold_GT_64f, tavsThreshold_GT_64f_I, Tav64f, 1.0);
    PAIR(tavsThreshold_LTAbs_16s, tavsThreshold_LTAbs_16s_I, Tav16s, Tav16s(-1));
    PAIR(tavsThreshold_LTAbs_16s, tavsThreshold_LTAbs_16s_I, Tav16s, Tav16s(0));
    PAIR(tavsThreshold_LTAbs_32s, tavsThreshold_LTAbs_32s_I, Tav32s, -1);
    PAIR(tavsThreshold_LTAbs_32s, tavsThreshold_LTAbs_32s_I, Tav32s, 0);
    PAIR(tavsThreshold_LTAbs_32f, tavsThreshold_LTAbs_32f_I, Tav32f, -1.0f);
    PAIR(tavsThreshold_LTAbs_64f, tavsThreshold_LTAbs_64f_I, Tav64f, -1.0);
    PAIR(tavsThreshold_GTAbs_16s, tavsThreshold_GTAbs_16s_I, Tav16s, Tav16s(-1));
    PAIR(tavsThreshold_GTAbs_32s, tavsThreshold_GTAbs_32s_I, Tav32s, -1);
    PAIR(tavsThreshold_GTAbs_32f, tavsThreshold_GTAbs_32f_I, Tav32f, -1.0f);
    PAIR(tavsThreshold_GTAbs_64f, tavsThreshold_GTAbs_64f_I, Tav64f, -1.0);
    PAIR(tavsThreshold_LTVal_16s, tavsThreshold_LTVal_16s_I, Tav16s, Tav16s(1), Tav16s(2));
    PAIR(tavsThreshold_LTVal_32f, tavsThreshold_LTVal_32f_I, Tav32f, 1.0f, 2.0f);
    PAIR(tavsThreshold_LTVal_64f, tavsThreshold_LTVal_64f_I, Tav64f, 1.0, 2.0);
    PAIR(tavsThreshold_GTVal_16s, tavsThreshold_GTVal_16s_I, Tav16s, Tav16s(1), Tav16s(2));
    PAIR(tavsThreshold_GTVal_32f, tavsThreshold_GTVal_32f_I, Tav32f, 1.0f, 2.0f);
    PAIR(tavsThreshold_GTVal_64f, tavsThreshold_GTVal_64f_I, Tav64f, 1.0, 2.0);
    PAIR(tavsThreshold_LTValGTVal_16s, tavsThreshold_LTValGTVal_16s_I, Tav16s, Tav16s(5), Tav16s(0), Tav16s(1), Tav16s(0));
    PAIR(tavsThreshold_LTValGTVal_32s, tavsThreshold_LTValGTVal_32s_I, Tav32s, 5, 0, 1, 0);
    PAIR(tavsThreshold_LTValGTVal_32f, tavsThreshold_LTValGTVal_32f_I, Tav32f, 5.0f, 0.0f, 1.0f, 0.0f);
    PAIR(tavsThreshold_LTValGTVal_64f, tavsThreshold_LTValGTVal_64f_I, Tav64f, 5.0, 0.0, 1.0, 0.0);
    PAIR(tavsThreshold_LTInv_32f, tavsThreshold_LTInv_32f_I, Tav32f, -1.0f);
    PAIR(tavsThreshold_LTInv_64f, tavsThreshold_LTInv_64f_I, Tav64f, -1.0);
}

// After pointers and length: the one parameter error of each form.
template <class T, class Call, class CallI> void param_error(Call call, CallI callI, Status want)
{
    T src[3] = {T(1), T(2), T(3)};
    tt::Guarded<T> g(3);
    EXPECT_EQ(call(src, g.data(), 3), want);
    EXPECT_EQ(callI(g.data(), 3), want);
    EXPECT_TRUE(g.untouched());
}

#define PARAM(F, FI, T, WANT, ...)                                                                             \
    param_error<T>([&](const T* s, T* d, int n) { return F(s, d, n, __VA_ARGS__); },                     \
                   [&](T* p, int n) { return FI(p, n, __VA_ARGS__); }, WANT)

TEST(Threshold, ParameterErrors)
{
    PARAM(tavsThreshold_16s, tavsThreshold_16s_I, Tav16s, ErrBadArg, Tav16s(1), 1);
    PARAM(tavsThreshold_64f, tavsThreshold_64f_I, Tav64f, ErrBadArg, 1.0, -4);
    PARAM(tavsThreshold_LTAbs_16s, tavsThreshold_LTAbs_16s_I, Tav16s, ErrThresholdNegative, Tav16s(-1));
    PARAM(tavsThreshold_LTAbs_32s, tavsThreshold_LTAbs_32s_I, Tav32s, ErrThresholdNegative, INT32_MIN);
    PARAM(tavsThreshold_LTAbs_32f, tavsThreshold_LTAbs_32f_I, Tav32f, ErrThresholdNegative, -1e-30f);
    PARAM(tavsThreshold_LTAbs_64f, tavsThreshold_LTAbs_64f_I, Tav64f, ErrThresholdNegative, -kInff);
    PARAM(tavsThreshold_GTAbs_16s, tavsThreshold_GTAbs_16s_I, Tav16s, ErrThresholdNegative, Tav16s(-32768));
    PARAM(tavsThreshold_GTAbs_32s, tavsThreshold_GTAbs_32s_I, Tav32s, ErrThresholdNegative, -1);
    PARAM(tavsThreshold_GTAbs_32f, tavsThreshold_GTAbs_32f_I, Tav32f, ErrThresholdNegative, -2.0f);
    PARAM(tavsThreshold_GTAbs_64f, tavsThreshold_GTAbs_64f_I, Tav64f, ErrThresholdNegative, -2.0);
    PARAM(tavsThreshold_LTInv_32f, tavsThreshold_LTInv_32f_I, Tav32f, ErrThresholdNegative, -0.5f);
    PARAM(tavsThreshold_LTInv_64f, tavsThreshold_LTInv_64f_I, Tav64f, ErrThresholdNegative, -0.5);
    PARAM(tavsThreshold_LTValGTVal_16s, tavsThreshold_LTValGTVal_16s_I, Tav16s, ErrThresholdOrder, Tav16s(1), Tav16s(0), Tav16s(0), Tav16s(0));
    PARAM(tavsThreshold_LTValGTVal_32s, tavsThreshold_LTValGTVal_32s_I, Tav32s, ErrThresholdOrder, INT32_MAX, 0, INT32_MIN, 0);
    PARAM(tavsThreshold_LTValGTVal_64f, tavsThreshold_LTValGTVal_64f_I, Tav64f, ErrThresholdOrder, 1.0, 0.0, 0.5, 0.0);
}

TEST(Threshold, AnyLevelAllowedWhereNotAMagnitude)
{
    Tav16s x[2] = {-9, 3}, d[2];
    ASSERT_EQ(tavsThreshold_LT_16s(x, d, 2, -4), StatusOk);
    EXPECT_EQ(d[0], -4);
    EXPECT_EQ(d[1], 3);
    ASSERT_EQ(tavsThreshold_GTVal_16s(x, d, 2, -4, 100), StatusOk);
    EXPECT_EQ(d[0], -9);
    EXPECT_EQ(d[1], 100);
    // A NaN level is not below zero; |x| > NaN never holds, so the level's
    // reciprocal (NaN) is stored with the sign rule.
    float y[1] = {1.0f}, e[1];
    ASSERT_EQ(tavsThreshold_LTInv_32f(y, e, 1, kNaNf), StatusOk);
    EXPECT_TRUE(std::isnan(e[0]));
}

TEST(Threshold, LtAbsIntegerLevelZeroIsACopy)
{
    Tav32s x[5] = {INT32_MIN, -1, 0, 1, INT32_MAX};
    tt::Guarded<Tav32s> g(5, 1);
    ASSERT_EQ(tavsThreshold_LTAbs_32s(x, g.data(), 5, 0), StatusOk);
    EXPECT_EQ(std::memcmp(g.data(), x, sizeof x), 0);
    EXPECT_TRUE(g.borders_intact());
    Tav16s y[3] = {-32768, 0, 7};
    ASSERT_EQ(tavsThreshold_LTAbs_16s_I(y, 3, 0), StatusOk);
    EXPECT_EQ(y[0], -32768);
    EXPECT_EQ(y[1], 0);
    EXPECT_EQ(y[2], 7);
    // At level 1 a zero element becomes +1.
    ASSERT_EQ(tavsThreshold_LTAbs_16s_I(y, 3, 1), StatusOk);
    EXPECT_EQ(y[1], 1);
}

// ---- randomized against plain references ------------------------------------------

template <class T> T ref_lt(T x, T L) { return x > L ? x : L; }
template <class T> T ref_gt(T x, T L) { return x < L ? x : L; }

template <class T> T ref_lt_abs(T x, T L)
{
    if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(x) || !(std::fabs(x) < L)) return x;
        return std::signbit(x) && x != 0 ? -L : L;
    } else {
        int64_t v = x, l = L;
        if (v >= l || v <= -l) return x;
        return T(v < 0 ? -l : l);
    }
}

template <class T> T ref_gt_abs(T x, T L)
{
    if constexpr (std::is_floating_point_v<T>) {
        T t = x < L ? x : L; // a NaN element gives L here

        return t > -L ? t : -L;
    } else {
        int64_t v = x, l = L;
        if (v > l) return T(l);
        if (v < -l) return T(-l);
        return x;
    }
}

template <class T> T ref_lt_inv(T x, T L)
{
    if (L == 0) return x == 0 ? std::numeric_limits<T>::infinity() : T(1) / x;
    if (std::fabs(x) > L) return T(1) / x;
    T v = T(1) / L;
    return x >= 0 ? v : -v;
}

template <class T> std::vector<T> levels()
{
    if constexpr (std::is_floating_point_v<T>) return {T(1.5), T(0), T(-2.25), T(1e-3), std::numeric_limits<T>::quiet_NaN()};
    else return {T(0), T(1), T(-7), T(100), std::numeric_limits<T>::max(), std::numeric_limits<T>::min()};
}

TEST(Threshold, SelectorLtGtRandom)
{
    tt::Rng r(11);
    auto run = [&](auto tag, auto fn, auto fnI, auto fnLT, auto fnLTI, auto fnGT, auto fnGTI) {
        using T = decltype(tag);
        for (T L : levels<T>()) {
            auto gen = gen_for<T>(r, L);
            for (int sel : {CmpLess, CmpGreater}) {
                auto ref = [&](T x) { return sel == CmpLess ? ref_lt(x, L) : ref_gt(x, L); };
                lc::sweep<T>(gen, [&](const T* s, T* d, int n) { return fn(s, d, n, L, sel); },
                             [&](T* p, int n) { return fnI(p, n, L, sel); }, ref, lc::kLight);
            }
            lc::sweep<T>(gen, [&](const T* s, T* d, int n) { return fnLT(s, d, n, L); },
                         [&](T* p, int n) { return fnLTI(p, n, L); }, [&](T x) { return ref_lt(x, L); });
            lc::sweep<T>(gen, [&](const T* s, T* d, int n) { return fnGT(s, d, n, L); },
                         [&](T* p, int n) { return fnGTI(p, n, L); }, [&](T x) { return ref_gt(x, L); });
        }
    };
    run(Tav16s(), tavsThreshold_16s, tavsThreshold_16s_I, tavsThreshold_LT_16s, tavsThreshold_LT_16s_I,
        tavsThreshold_GT_16s, tavsThreshold_GT_16s_I);
    run(Tav32f(), tavsThreshold_32f, tavsThreshold_32f_I, tavsThreshold_LT_32f, tavsThreshold_LT_32f_I,
        tavsThreshold_GT_32f, tavsThreshold_GT_32f_I);
    run(Tav64f(), tavsThreshold_64f, tavsThreshold_64f_I, tavsThreshold_LT_64f, tavsThreshold_LT_64f_I,
        tavsThreshold_GT_64f, tavsThreshold_GT_64f_I);
    // 32s has LT and GT only.
    for (Tav32s L : levels<Tav32s>()) {
        auto gen = gen_for<Tav32s>(r, L);
        lc::sweep<Tav32s>(gen, [&](const Tav32s* s, Tav32s* d, int n) { return tavsThreshold_LT_32s(s, d, n, L); },
                          [&](Tav32s* p, int n) { return tavsThreshold_LT_32s_I(p, n, L); },
                          [&](Tav32s x) { return ref_lt(x, L); }, lc::kLight);
        lc::sweep<Tav32s>(gen, [&](const Tav32s* s, Tav32s* d, int n) { return tavsThreshold_GT_32s(s, d, n, L); },
                          [&](Tav32s* p, int n) { return tavsThreshold_GT_32s_I(p, n, L); },
                          [&](Tav32s x) { return ref_gt(x, L); }, lc::kLight);
    }
}

template <class T, class F, class FI, class G, class GI> void abs_forms(tt::Rng& r, F lt, FI ltI, G gt, GI gtI)
{
    for (T L : levels<T>()) {
        if (L < 0) continue;
        auto gen = gen_for<T>(r, L);
        lc::sweep<T>(gen, [&](const T* s, T* d, int n) { return lt(s, d, n, L); },
                     [&](T* p, int n) { return ltI(p, n, L); }, [&](T x) { return ref_lt_abs(x, L); }, lc::kLight);
        lc::sweep<T>(gen, [&](const T* s, T* d, int n) { return gt(s, d, n, L); },
                     [&](T* p, int n) { return gtI(p, n, L); }, [&](T x) { return ref_gt_abs(x, L); }, lc::kLight);
    }
}

TEST(Threshold, AbsFormsRandom)
{
    tt::Rng r(12);
    abs_forms<Tav16s>(r, tavsThreshold_LTAbs_16s, tavsThreshold_LTAbs_16s_I, tavsThreshold_GTAbs_16s,
                      tavsThreshold_GTAbs_16s_I);
    abs_forms<Tav32s>(r, tavsThreshold_LTAbs_32s, tavsThreshold_LTAbs_32s_I, tavsThreshold_GTAbs_32s,
                      tavsThreshold_GTAbs_32s_I);
    abs_forms<Tav32f>(r, tavsThreshold_LTAbs_32f, tavsThreshold_LTAbs_32f_I, tavsThreshold_GTAbs_32f,
                      tavsThreshold_GTAbs_32f_I);
    abs_forms<Tav64f>(r, tavsThreshold_LTAbs_64f, tavsThreshold_LTAbs_64f_I, tavsThreshold_GTAbs_64f,
                      tavsThreshold_GTAbs_64f_I);
}

template <class T, class F, class FI, class G, class GI> void val_forms(tt::Rng& r, F lt, FI ltI, G gt, GI gtI)
{
    for (T L : levels<T>()) {
        auto gen = gen_for<T>(r, L);
        const T v = gen();
        lc::sweep<T>(gen, [&](const T* s, T* d, int n) { return lt(s, d, n, L, v); },
                     [&](T* p, int n) { return ltI(p, n, L, v); }, [&](T x) { return x >= L ? x : v; }, lc::kLight);
        lc::sweep<T>(gen, [&](const T* s, T* d, int n) { return gt(s, d, n, L, v); },
                     [&](T* p, int n) { return gtI(p, n, L, v); }, [&](T x) { return L >= x ? x : v; }, lc::kLight);
    }
}

TEST(Threshold, ValueFormsRandom)
{
    tt::Rng r(13);
    val_forms<Tav16s>(r, tavsThreshold_LTVal_16s, tavsThreshold_LTVal_16s_I, tavsThreshold_GTVal_16s,
                      tavsThreshold_GTVal_16s_I);
    val_forms<Tav32f>(r, tavsThreshold_LTVal_32f, tavsThreshold_LTVal_32f_I, tavsThreshold_GTVal_32f,
                      tavsThreshold_GTVal_32f_I);
    val_forms<Tav64f>(r, tavsThreshold_LTVal_64f, tavsThreshold_LTVal_64f_I, tavsThreshold_GTVal_64f,
                      tavsThreshold_GTVal_64f_I);
}

template <class T, class F, class FI> void two_sided(tt::Rng& r, F fn, FI fnI)
{
    auto gen = gen_for<T>(r, T(40));
    for (int k = 0; k < 6; ++k) {
        T a = gen(), b = gen();
        if (std::isnan(double(a)) || std::isnan(double(b))) continue;
        T lo = a < b ? a : b, hi = a < b ? b : a;
        T lv = gen(), hv = gen();
        auto ref = [&](T x) {
            if (x < lo) return lv;
            if (x > hi) return hv;
            return x;
        };
        lc::sweep<T>(gen, [&](const T* s, T* d, int n) { return fn(s, d, n, lo, lv, hi, hv); },
                     [&](T* p, int n) { return fnI(p, n, lo, lv, hi, hv); }, ref, lc::kLight);
    }
}

TEST(Threshold, TwoSidedRandom)
{
    tt::Rng r(14);
    two_sided<Tav16s>(r, tavsThreshold_LTValGTVal_16s, tavsThreshold_LTValGTVal_16s_I);
    two_sided<Tav32s>(r, tavsThreshold_LTValGTVal_32s, tavsThreshold_LTValGTVal_32s_I);
    two_sided<Tav32f>(r, tavsThreshold_LTValGTVal_32f, tavsThreshold_LTValGTVal_32f_I);
    two_sided<Tav64f>(r, tavsThreshold_LTValGTVal_64f, tavsThreshold_LTValGTVal_64f_I);
}

template <class T, class F, class FI> void inv_forms(tt::Rng& r, F fn, FI fnI)
{
    for (T L : {T(2), T(0.75), T(1e-20), T(0)}) {
        auto raw = gen_for<T>(r, L);
        // Zero elements at level 0 raise the warning; that case has its own test.
        auto gen = [&]() {
            T x = raw();
            return (L == 0 && x == 0) ? T(3) : x;
        };
        lc::sweep<T>(gen, [&](const T* s, T* d, int n) { return fn(s, d, n, L); },
                     [&](T* p, int n) { return fnI(p, n, L); }, [&](T x) { return ref_lt_inv(x, L); }, lc::kLight);
    }
}

TEST(Threshold, LtInvRandom)
{
    tt::Rng r(15);
    inv_forms<Tav32f>(r, tavsThreshold_LTInv_32f, tavsThreshold_LTInv_32f_I);
    inv_forms<Tav64f>(r, tavsThreshold_LTInv_64f, tavsThreshold_LTInv_64f_I);
}

TEST(Threshold, OverlapIsAnAscendingPass)
{
    // dst one element above src: each result feeds the next comparison,
    // exactly as a plain element loop would.
    for (int len : {5, 16, 40, 67}) {
        std::vector<float> buf(size_t(len) + 1), ref;
        tt::Rng r{uint64_t(len)};
        for (auto& v : buf) v = float(r.uniform(-10, 10));
        ref = buf;
        for (int i = 0; i < len; ++i) ref[size_t(i) + 1] = ref[size_t(i)] > 1.0f ? ref[size_t(i)] : 1.0f;
        ASSERT_EQ(tavsThreshold_LT_32f(buf.data(), buf.data() + 1, len, 1.0f), StatusOk);
        for (size_t i = 0; i < buf.size(); ++i) ASSERT_TRUE(same(buf[i], ref[i])) << len << " " << i;
    }
}

} // namespace
