#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "stats_ref.h"
#include "tavs.h"
#include "test_util.h"

namespace {

// ---- references --------------------------------------------------------------------------

// Four lanes in the data's precision, folded (l0+l2)+(l1+l3), then singles.
template <class T> T ref_dot4(const T* a, const T* b, int n)
{
    T L[4] = {0, 0, 0, 0};
    int i = 0;
    for (; i + 4 <= n; i += 4)
        for (int k = 0; k < 4; ++k) L[k] += a[i + k] * b[i + k];
    T s = (L[0] + L[2]) + (L[1] + L[3]);
    for (; i < n; ++i) s += a[i] * b[i];
    return s;
}

// Complex product in precision T; a real first operand when ai is absent.
template <class T> void cmul(T ar, T ai, T br, T bi, bool realA, T* re, T* im)
{
    if (realA) {
        *re = ar * br;
        *im = ar * bi;
    } else {
        *re = ar * br - ai * bi;
        *im = ar * bi + ai * br;
    }
}

// Two complex lanes (even and odd elements), added, then a last element.
template <class T> void ref_dot_cplx(const T* a, const T* b, int n, bool realA, T* re, T* im)
{
    T er = 0, ei = 0, orr = 0, oi = 0, pr, pi;
    int i = 0;
    auto prod = [&](int k) {
        T ar = realA ? a[k] : a[2 * k], ai = realA ? T(0) : a[2 * k + 1];
        cmul(ar, ai, b[2 * k], b[2 * k + 1], realA, &pr, &pi);
    };
    for (; i + 2 <= n; i += 2) {
        prod(i);
        er += pr;
        ei += pi;
        prod(i + 1);
        orr += pr;
        oi += pi;
    }
    T sr = er + orr, si = ei + oi;
    if (i < n) {
        prod(i);
        sr += pr;
        si += pi;
    }
    *re = sr;
    *im = si;
}

// Widened complex products summed per component in eight lanes.
void ref_dot_wide(const float* a, const float* b, int n, bool realA, double* re, double* im)
{
    std::vector<double> r, m;
    for (int k = 0; k < n; ++k) {
        double ar = realA ? a[k] : a[2 * k], ai = realA ? 0.0 : a[2 * k + 1], pr, pi;
        cmul<double>(ar, ai, b[2 * k], b[2 * k + 1], realA, &pr, &pi);
        r.push_back(pr);
        m.push_back(pi);
    }
    *re = sref::sum8(r);
    *im = sref::sum8(m);
}

TEST(DotProd, SamePrecisionLanes)
{
    tt::Rng r(1);
    sref::sweep([&](int n, int off) {
        auto f1 = sref::floats<float>(r, size_t(2 * n + 32), 10), f2 = sref::floats<float>(r, size_t(2 * n + 32), 10);
        auto d1 = sref::floats<double>(r, size_t(2 * n + 32), 30), d2 = sref::floats<double>(r, size_t(2 * n + 32), 30);
        const int o2 = 15 - off;
        Tav32f f = 0;
        ASSERT_EQ(tavsDotProd_32f(f1.data() + off, f2.data() + o2, n, &f), StatusOk);
        ASSERT_TRUE(tt::same_bits(f, ref_dot4(f1.data() + off, f2.data() + o2, n))) << n;
        Tav64f d = 0;
        ASSERT_EQ(tavsDotProd_64f(d1.data() + off, d2.data() + o2, n, &d), StatusOk);
        ASSERT_TRUE(tt::same_bits(d, ref_dot4(d1.data() + off, d2.data() + o2, n))) << n;
        float wr, wi;
        Tav32fc fc{};
        auto* c1 = reinterpret_cast<const Tav32fc*>(f1.data()) + off;
        auto* c2 = reinterpret_cast<const Tav32fc*>(f2.data()) + o2;
        ASSERT_EQ(tavsDotProd_32fc(c1, c2, n, &fc), StatusOk);
        ref_dot_cplx(reinterpret_cast<const float*>(c1), reinterpret_cast<const float*>(c2), n, false, &wr, &wi);
        ASSERT_TRUE(tt::same_bits(fc.re, wr) && tt::same_bits(fc.im, wi)) << n;
        ASSERT_EQ(tavsDotProd_32f32fc(f1.data() + off, c2, n, &fc), StatusOk);
        ref_dot_cplx(f1.data() + off, reinterpret_cast<const float*>(c2), n, true, &wr, &wi);
        ASSERT_TRUE(tt::same_bits(fc.re, wr) && tt::same_bits(fc.im, wi)) << n;
        double vr, vi;
        Tav64fc dc{};
        auto* e1 = reinterpret_cast<const Tav64fc*>(d1.data()) + off;
        auto* e2 = reinterpret_cast<const Tav64fc*>(d2.data()) + o2;
        ASSERT_EQ(tavsDotProd_64fc(e1, e2, n, &dc), StatusOk);
        ref_dot_cplx(reinterpret_cast<const double*>(e1), reinterpret_cast<const double*>(e2), n, false, &vr, &vi);
        ASSERT_TRUE(tt::same_bits(dc.re, vr) && tt::same_bits(dc.im, vi)) << n;
        ASSERT_EQ(tavsDotProd_64f64fc(d1.data() + off, e2, n, &dc), StatusOk);
        ref_dot_cplx(d1.data() + off, reinterpret_cast<const double*>(e2), n, true, &vr, &vi);
        ASSERT_TRUE(tt::same_bits(dc.re, vr) && tt::same_bits(dc.im, vi)) << n;
    });
}

TEST(DotProd, WidenedToDouble)
{
    tt::Rng r(2);
    sref::sweep([&](int n, int off) {
        auto f1 = sref::floats<float>(r, size_t(2 * n + 32), 30), f2 = sref::floats<float>(r, size_t(2 * n + 32), 30);
        const int o2 = 15 - off;
        std::vector<double> prods;
        for (int i = 0; i < n; ++i) prods.push_back(double(f1[size_t(off + i)]) * double(f2[size_t(o2 + i)]));
        Tav64f d = 0;
        ASSERT_EQ(tavsDotProd_32f64f(f1.data() + off, f2.data() + o2, n, &d), StatusOk);
        ASSERT_TRUE(tt::same_bits(d, sref::sum8(prods))) << n;
        auto* c1 = reinterpret_cast<const Tav32fc*>(f1.data()) + off;
        auto* c2 = reinterpret_cast<const Tav32fc*>(f2.data()) + o2;
        Tav64fc dc{};
        double wr, wi;
        ASSERT_EQ(tavsDotProd_32fc64fc(c1, c2, n, &dc), StatusOk);
        ref_dot_wide(reinterpret_cast<const float*>(c1), reinterpret_cast<const float*>(c2), n, false, &wr, &wi);
        ASSERT_TRUE(tt::same_bits(dc.re, wr) && tt::same_bits(dc.im, wi)) << n;
        ASSERT_EQ(tavsDotProd_32f32fc64fc(f1.data() + off, c2, n, &dc), StatusOk);
        ref_dot_wide(f1.data() + off, reinterpret_cast<const float*>(c2), n, true, &wr, &wi);
        ASSERT_TRUE(tt::same_bits(dc.re, wr) && tt::same_bits(dc.im, wi)) << n;
    });
}

TEST(DotProd, NoConjugation)
{
    Tav32fc a[1] = {{0.0f, 1.0f}}, b[1] = {{0.0f, 1.0f}}, r{};
    ASSERT_EQ(tavsDotProd_32fc(a, b, 1, &r), StatusOk);
    EXPECT_EQ(r.re, -1.0f); // i * i
    EXPECT_EQ(r.im, 0.0f);
    Tav64fc c[1] = {{1.0, 2.0}}, d[1] = {{3.0, 4.0}}, s{};
    ASSERT_EQ(tavsDotProd_64fc(c, d, 1, &s), StatusOk);
    EXPECT_EQ(s.re, -5.0);
    EXPECT_EQ(s.im, 10.0);
    ASSERT_EQ(tavsDotProd_32fc64fc(reinterpret_cast<Tav32fc*>(a), b, 1, &s), StatusOk);
    EXPECT_EQ(s.re, -1.0);
}

TEST(DotProdErrors, PointersThenLength)
{
    tt::Guarded<Tav64fc> g(1);
    Tav32f f[2] = {};
    Tav64f d[2] = {};
    Tav32fc fc[2] = {};
    Tav64fc dc[2] = {};
    auto of = reinterpret_cast<Tav32f*>(g.data());
    auto ofc = reinterpret_cast<Tav32fc*>(g.data());
    auto od = reinterpret_cast<Tav64f*>(g.data());
    EXPECT_EQ(tavsDotProd_32f(nullptr, f, 0, of), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_32f(f, nullptr, 2, of), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_32f(f, f, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_32f(f, f, 0, of), ErrSize);
    EXPECT_EQ(tavsDotProd_32fc(fc, fc, 0, ofc), ErrSize);
    EXPECT_EQ(tavsDotProd_32f32fc(f, nullptr, 2, ofc), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_32f64f(f, f, -2, od), ErrSize);
    EXPECT_EQ(tavsDotProd_32fc64fc(fc, fc, 0, g.data()), ErrSize);
    EXPECT_EQ(tavsDotProd_32f32fc64fc(nullptr, fc, 2, g.data()), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_64f(d, d, 0, od), ErrSize);
    EXPECT_EQ(tavsDotProd_64fc(dc, dc, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsDotProd_64f64fc(d, dc, 0, g.data()), ErrSize);
    EXPECT_TRUE(g.untouched());
}

} // namespace
