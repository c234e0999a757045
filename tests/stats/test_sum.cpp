#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "stats_ref.h"
#include "tavs.h"
#include "test_util.h"

namespace {

// ---- references ---------------------------------------------------------------------

// One block of the single-precision path at address addr.
float ref_block_32f(const float* v, size_t n, uintptr_t addr)
{
    float s = 0.0f;
    size_t i = 0;
    size_t head = ((16 - addr % 16) % 16) / 4;
    if (addr % 4 != 0 || head > n || n - head < 32) {
        for (; i < n; ++i) s += v[i];
        return s;
    }
    for (; i < head; ++i) s += v[i];
    float G[32] = {};
    for (; i + 32 <= n; i += 32)
        for (int k = 0; k < 32; ++k) G[k] += v[i + k];
    float C[4];
    for (int j = 0; j < 4; ++j)
        C[j] = ((G[j] + G[4 + j]) + (G[8 + j] + G[12 + j])) + ((G[16 + j] + G[20 + j]) + (G[24 + j] + G[28 + j]));
    for (; i + 4 <= n; i += 4)
        for (int j = 0; j < 4; ++j) C[j] += v[i + j];
    for (; i < n; ++i) s += v[i];
    return ((C[0] + C[2]) + (C[1] + C[3])) + s;
}

float ref_sum32f_fast(const std::vector<float>& v, uintptr_t addr)
{
    double total = 0.0;
    size_t i = 0;
    for (; i + 1024 <= v.size(); i += 1024) total += double(ref_block_32f(v.data() + i, 1024, addr + 4 * i));
    if (i < v.size()) total += double(ref_block_32f(v.data() + i, v.size() - i, addr + 4 * i));
    return float(total);
}

float ref_sum32f_accurate(const std::vector<float>& v) { return float(sref::sum16(sref::widen(v))); }

double ref_sum64f(const std::vector<double>& v, uintptr_t addr)
{
    size_t n = v.size(), i = 0;
    double x = 0.0;
    if (addr % 8 != 0) {
        for (double e : v) x += e;
        return x;
    }
    size_t head = addr % 16 ? 1 : 0;
    if (head) x = v[0];
    i = head;
    if (n - head >= 16) {
        double L[16] = {};
        L[0] = x;
        size_t runs = (n - head) / 16;
        for (size_t k = 0; k < runs * 16; ++k) L[k % 16] += v[head + k];
        double lo = ((L[0] + L[2]) + (L[4] + L[6])) + ((L[8] + L[10]) + (L[12] + L[14]));
        double hi = ((L[1] + L[3]) + (L[5] + L[7])) + ((L[9] + L[11]) + (L[13] + L[15]));
        x = lo + hi;
        i += runs * 16;
    }
    if (n - i >= 2) {
        double lo = x, hi = 0.0;
        for (; i + 2 <= n; i += 2) {
            lo += v[i];
            hi += v[i + 1];
        }
        x = lo + hi;
    }
    for (; i < n; ++i) x += v[i];
    return x;
}

// The scale of Sum_32s_Sfs, written from its description.
int32_t ref_scale_32s(int64_t sum, int sf)
{
    __int128 v = sum;
    if (sf > 0) {
        int s = sf > 63 ? 63 : sf;
        v = (v + (__int128(1) << (s - 1)) - 1 + ((v >> s) & 1)) >> s;
    } else if (sf < 0) {
        int64_t k = -int64_t(sf) > 31 ? 31 : -int64_t(sf);
        if (sum > (int64_t(INT32_MAX) >> k)) v = INT32_MAX;
        else if (sum < (int64_t(INT32_MIN) >> k)) v = INT32_MIN;
        else v = __int128(sum) * (int64_t(1) << k);
    }
    return int32_t(v > INT32_MAX ? INT32_MAX : (v < INT32_MIN ? INT32_MIN : v));
}

// The scale of Sum_16s32s_Sfs, written from its description.
int32_t ref_scale_16s32s(int64_t sum, int sf)
{
    __int128 v = sum;
    if (sf >= 49) v = 0;
    else if (sf > 0) v = (v + (__int128(1) << (sf - 1)) - 1 + ((v >> sf) & 1)) >> sf;
    else if (sf < -31) v = sum > 0 ? INT32_MAX : (sum < 0 ? INT32_MIN : 0);
    else if (sf < 0) {
        int k = -sf;
        if (sum > (int64_t(INT32_MAX) >> k)) v = INT32_MAX;
        else if (sum < (int64_t(INT32_MIN) >> k)) v = INT32_MIN;
        else v = __int128(sum) * (int64_t(1) << k);
    }
    return int32_t(v > INT32_MAX ? INT32_MAX : (v < INT32_MIN ? INT32_MIN : v));
}

int16_t clamp16(int32_t v) { return int16_t(v > 32767 ? 32767 : (v < -32768 ? -32768 : v)); }

// ---- Sum_32f --------------------------------------------------------------------------

TEST(Sum32f, AccuratePathMatchesSixteenLanesAtEveryAddress)
{
    tt::Rng r(11);
    sref::sweep([&](int n, int off) {
        auto v = sref::floats<float>(r, size_t(n));
        sref::Placed<float> p(v, size_t(off)); // byte offsets: any address
        float want = ref_sum32f_accurate(v);
        for (int hint : {int(HintNone), int(HintAccurate), 7, -1}) {
            float got = -1.0f;
            ASSERT_EQ(tavsSum_32f(p.ptr(), n, &got, hint), StatusOk);
            ASSERT_TRUE(tt::same_bits(got, want)) << "n=" << n << " off=" << off << " hint=" << hint;
        }
    }, true);
}

TEST(Sum32f, FastPathMatchesBlockSchemeAtEveryAddress)
{
    tt::Rng r(12);
    sref::sweep([&](int n, int off) {
        auto v = sref::floats<float>(r, size_t(n));
        sref::Placed<float> p(v, size_t(off));
        float got = -1.0f;
        ASSERT_EQ(tavsSum_32f(p.ptr(), n, &got, HintFast), StatusOk);
        ASSERT_TRUE(tt::same_bits(got, ref_sum32f_fast(v, p.addr()))) << "n=" << n << " off=" << off;
    }, true);
}

TEST(Sum32f, FastPathDependsOnTheAddressAndKeepsFloatBlocks)
{
    // The same values at different addresses sum in different orders; in
    // float lanes that shows in the result for some data.
    tt::Rng r(13);
    int differing = 0, differsFromAccurate = 0;
    for (int trial = 0; trial < 20; ++trial) {
        auto v = sref::floats<float>(r, 1500, 30);
        std::vector<float> got(4);
        for (int off = 0; off < 4; ++off) {
            sref::Placed<float> p(v, size_t(4 * off));
            ASSERT_EQ(tavsSum_32f(p.ptr(), 1500, &got[size_t(off)], HintFast), StatusOk);
        }
        if (!tt::same_bits(got[0], got[1]) || !tt::same_bits(got[0], got[2]) || !tt::same_bits(got[0], got[3])) ++differing;
        if (!tt::same_bits(got[0], ref_sum32f_accurate(v))) ++differsFromAccurate;
    }
    EXPECT_GT(differing, 0);
    EXPECT_GT(differsFromAccurate, 0);
}

TEST(Sum32f, HintSevenBehavesAsAccurate)
{
    tt::Rng r(14);
    auto v = sref::floats<float>(r, 3000, 30);
    float a = 0, b = 0;
    ASSERT_EQ(tavsSum_32f(v.data(), 3000, &a, 7), StatusOk);
    ASSERT_EQ(tavsSum_32f(v.data(), 3000, &b, HintAccurate), StatusOk);
    EXPECT_TRUE(tt::same_bits(a, b));
}

TEST(Sum32f, SpecialValuesRunThroughTheArithmetic)
{
    float v[5] = {1.0f, INFINITY, 2.0f, -3.0f, 4.0f};
    float s = 0;
    ASSERT_EQ(tavsSum_32f(v, 5, &s, HintNone), StatusOk);
    EXPECT_EQ(s, INFINITY);
    v[3] = NAN;
    ASSERT_EQ(tavsSum_32f(v, 5, &s, HintFast), StatusOk);
    EXPECT_TRUE(std::isnan(s));
    // Large cancelling values: double accumulation keeps the small one.
    float w[3] = {1e30f, 1.0f, -1e30f};
    ASSERT_EQ(tavsSum_32f(w, 3, &s, HintNone), StatusOk);
    EXPECT_EQ(s, 0.0f); // lanes (1e30, 1) fold to 1e30 in double, then -1e30
}

// ---- Sum_64f --------------------------------------------------------------------------

TEST(Sum64f, MatchesLaneSchemeAtEveryAddress)
{
    tt::Rng r(21);
    sref::sweep([&](int n, int off) {
        auto v = sref::floats<double>(r, size_t(n), 60);
        sref::Placed<double> p(v, size_t(off));
        double got = -1.0;
        ASSERT_EQ(tavsSum_64f(p.ptr(), n, &got), StatusOk);
        ASSERT_TRUE(tt::same_bits(got, ref_sum64f(v, p.addr()))) << "n=" << n << " off=" << off;
    }, true);
}

// ---- complex --------------------------------------------------------------------------

template <class C, class F> void check_complex_sum(F fn, int seed)
{
    using P = decltype(C::re);
    tt::Rng r{uint64_t(seed)};
    sref::sweep([&](int n, int off) {
        auto parts = sref::floats<P>(r, size_t(2 * n), 30);
        std::vector<C> v(size_t(n + 16));
        std::vector<double> re, im;
        for (int i = 0; i < n; ++i) {
            v[size_t(off + i)] = C{parts[size_t(2 * i)], parts[size_t(2 * i + 1)]};
            re.push_back(parts[size_t(2 * i)]);
            im.push_back(parts[size_t(2 * i + 1)]);
        }
        C got{};
        ASSERT_EQ(fn(v.data() + off, n, &got), StatusOk);
        ASSERT_TRUE(tt::same_bits(got.re, P(sref::sum8(re)))) << n;
        ASSERT_TRUE(tt::same_bits(got.im, P(sref::sum8(im)))) << n;
    });
}

TEST(SumComplex, EightLanesPerComponent)
{
    check_complex_sum<Tav32fc>(tavsSum_32fc, 31);
    check_complex_sum<Tav64fc>(tavsSum_64fc, 32);
}

// ---- integer sums ----------------------------------------------------------------------

TEST(SumInt, Sum16sAllScalesAndLengths)
{
    tt::Rng r(41);
    sref::sweep([&](int n, int off) {
        auto v = sref::ints<Tav16s>(r, size_t(n + 16));
        int64_t exact = 0;
        for (int i = 0; i < n; ++i) exact += v[size_t(off + i)];
        for (int sf : sref::scales(n, off)) {
            Tav32s w = 0;
            Tav16s h = 0;
            ASSERT_EQ(tavsSum_16s32s_Sfs(v.data() + off, n, &w, sf), StatusOk);
            ASSERT_EQ(tavsSum_16s_Sfs(v.data() + off, n, &h, sf), StatusOk);
            ASSERT_EQ(w, ref_scale_16s32s(exact, sf)) << "n=" << n << " sf=" << sf;
            ASSERT_EQ(h, clamp16(ref_scale_16s32s(exact, sf)));
        }
    });
}

TEST(SumInt, Sum16scPerComponent)
{
    tt::Rng r(42);
    sref::sweep([&](int n, int off) {
        std::vector<Tav16sc> v(size_t(n + 16));
        int64_t re = 0, im = 0;
        for (auto& c : v) c = Tav16sc{r.element<Tav16s>(), r.element<Tav16s>()};
        for (int i = 0; i < n; ++i) {
            re += v[size_t(off + i)].re;
            im += v[size_t(off + i)].im;
        }
        for (int sf : sref::scales(n, off)) {
            Tav32sc w{};
            Tav16sc h{};
            ASSERT_EQ(tavsSum_16sc32sc_Sfs(v.data() + off, n, &w, sf), StatusOk);
            ASSERT_EQ(tavsSum_16sc_Sfs(v.data() + off, n, &h, sf), StatusOk);
            ASSERT_EQ(w.re, ref_scale_16s32s(re, sf));
            ASSERT_EQ(w.im, ref_scale_16s32s(im, sf));
            ASSERT_EQ(h.re, clamp16(ref_scale_16s32s(re, sf)));
            ASSERT_EQ(h.im, clamp16(ref_scale_16s32s(im, sf)));
        }
    });
}

TEST(SumInt, Sum32sAllScales)
{
    tt::Rng r(43);
    sref::sweep([&](int n, int off) {
        auto v = sref::ints<Tav32s>(r, size_t(n + 16));
        int64_t exact = 0;
        for (int i = 0; i < n; ++i) exact += v[size_t(off + i)];
        for (int sf : sref::scales(n, off)) {
            Tav32s w = 0;
            ASSERT_EQ(tavsSum_32s_Sfs(v.data() + off, n, &w, sf), StatusOk);
            ASSERT_EQ(w, ref_scale_32s(exact, sf)) << "n=" << n << " sf=" << sf;
        }
    });
    Tav32s w = 0, big[2] = {INT32_MAX, INT32_MAX};
    ASSERT_EQ(tavsSum_32s_Sfs(big, 2, &w, INT32_MAX), StatusOk);
    EXPECT_EQ(w, 0);
    ASSERT_EQ(tavsSum_32s_Sfs(big, 2, &w, INT32_MIN), StatusOk);
    EXPECT_EQ(w, INT32_MAX);
}

TEST(SumInt, DocumentedCases)
{
    std::vector<Tav16s> v(65537, 32767);
    Tav16s h = 0;
    ASSERT_EQ(tavsSum_16s_Sfs(v.data(), 65537, &h, 0), StatusOk);
    EXPECT_EQ(h, 32767);
    Tav16s one = 1;
    ASSERT_EQ(tavsSum_16s_Sfs(&one, 1, &h, -15), StatusOk);
    EXPECT_EQ(h, 32767);
    Tav32s w = 0;
    ASSERT_EQ(tavsSum_16s32s_Sfs(v.data(), 65537, &w, 0), StatusOk);
    EXPECT_EQ(w, 2147450879); // 65537 * 32767 still fits
    std::vector<Tav16s> m(65537, -32768);
    ASSERT_EQ(tavsSum_16s32s_Sfs(m.data(), 65537, &w, 0), StatusOk);
    EXPECT_EQ(w, INT32_MIN); // -2147516416 saturates
    ASSERT_EQ(tavsSum_16s32s_Sfs(m.data(), 65537, &w, 1), StatusOk);
    EXPECT_EQ(w, -1073758208);
    ASSERT_EQ(tavsSum_16s32s_Sfs(m.data(), 65537, &w, 16), StatusOk);
    EXPECT_EQ(w, -32768); // -32768.5 to even
    ASSERT_EQ(tavsSum_16s32s_Sfs(m.data(), 65537, &w, 48), StatusOk);
    EXPECT_EQ(w, 0);
    ASSERT_EQ(tavsSum_16s32s_Sfs(m.data(), 65537, &w, -40), StatusOk);
    EXPECT_EQ(w, INT32_MIN);
    Tav32s t[3] = {-1, -1, -1};
    ASSERT_EQ(tavsSum_32s_Sfs(t, 3, &w, 1), StatusOk);
    EXPECT_EQ(w, -2); // -1.5 to even
    Tav16s f[2] = {3, 2};
    ASSERT_EQ(tavsSum_16s32s_Sfs(f, 2, &w, 1), StatusOk);
    EXPECT_EQ(w, 2); // 2.5 to even
    ASSERT_EQ(tavsSum_16s32s_Sfs(f, 1, &w, 1), StatusOk);
    EXPECT_EQ(w, 2); // 1.5 to even
}

// ---- errors ----------------------------------------------------------------------------

template <class T, class R, class F> void check_errors(F call)
{
    T src[4] = {};
    tt::Guarded<R> out(1);
    EXPECT_EQ(call(static_cast<const T*>(nullptr), 0, out.data()), ErrNullPtr);
    EXPECT_EQ(call(src, 4, static_cast<R*>(nullptr)), ErrNullPtr);
    EXPECT_EQ(call(src, 0, out.data()), ErrSize);
    EXPECT_EQ(call(src, -5, out.data()), ErrSize);
    EXPECT_TRUE(out.untouched());
}

TEST(SumErrors, PointersThenLength)
{
    check_errors<Tav32f, Tav32f>([](const Tav32f* s, int n, Tav32f* d) { return tavsSum_32f(s, n, d, HintFast); });
    check_errors<Tav64f, Tav64f>([](const Tav64f* s, int n, Tav64f* d) { return tavsSum_64f(s, n, d); });
    check_errors<Tav32fc, Tav32fc>([](const Tav32fc* s, int n, Tav32fc* d) { return tavsSum_32fc(s, n, d); });
    check_errors<Tav64fc, Tav64fc>([](const Tav64fc* s, int n, Tav64fc* d) { return tavsSum_64fc(s, n, d); });
    check_errors<Tav16s, Tav16s>([](const Tav16s* s, int n, Tav16s* d) { return tavsSum_16s_Sfs(s, n, d, 0); });
    check_errors<Tav16s, Tav32s>([](const Tav16s* s, int n, Tav32s* d) { return tavsSum_16s32s_Sfs(s, n, d, 0); });
    check_errors<Tav16sc, Tav16sc>([](const Tav16sc* s, int n, Tav16sc* d) { return tavsSum_16sc_Sfs(s, n, d, 0); });
    check_errors<Tav16sc, Tav32sc>([](const Tav16sc* s, int n, Tav32sc* d) { return tavsSum_16sc32sc_Sfs(s, n, d, 0); });
    check_errors<Tav32s, Tav32s>([](const Tav32s* s, int n, Tav32s* d) { return tavsSum_32s_Sfs(s, n, d, 0); });
}

} // namespace
