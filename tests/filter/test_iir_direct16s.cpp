// The stateless 16-bit direct forms: the block forms against a model of the
// temporary 32f record (taps and delay scaled by 2^-shift, the delay scaled
// back and rounded half away), the one-sample forms against a model in
// wrapped 32-bit integers; checks in their documented orders, allocation.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <vector>

#include "alloc_fault.h"
#include "iir_ref.h"

namespace {

using namespace iirt;

Tav16s to16(float v)
{
    if (v > 32767.0f)
        v = 32767.0f;
    else if (v < -32768.0f)
        v = -32768.0f;
    return Tav16s(std::nearbyint(v));
}
Tav32s back32(float d, int shift)
{
    const double v = std::ldexp(double(d), shift);
    if (std::isnan(v)) return 0;
    if (v >= 2147483647.0) return INT32_MAX;
    if (v <= -2147483648.0) return INT32_MIN;
    return Tav32s(std::trunc(v + std::copysign(0.5, v)));
}

// A stable order-n tap list in 16s with the shift s in the a0 slot.
std::vector<Tav16s> direct_taps(tt::Rng& g, int n, int s)
{
    auto t = arb_taps(g, n, 0.7);
    const double a0 = t[size_t(n) + 1];
    std::vector<Tav16s> out(t.size());
    for (size_t i = 0; i < t.size(); ++i)
        out[i] = Tav16s(std::lround(t[i] / a0 * std::ldexp(0.9, s)));
    out[size_t(n) + 1] = Tav16s(s);
    return out;
}

// The block form's model: the 32f record with taps and delay over 2^s.
void direct_model(const std::vector<Tav16s>& taps, int n, std::vector<Tav32s>& dly,
                  const std::vector<Tav16s>& x, std::vector<Tav16s>& y)
{
    const int s = taps[size_t(n) + 1];
    const float f = std::ldexp(1.0f, -s);
    std::vector<float> t(taps.size());
    for (size_t i = 0; i < t.size(); ++i)
        t[i] = float(taps[i]) * f;
    t[size_t(n) + 1] = 1.0f;
    Arb<float> m(t.data(), n);
    for (int i = 0; i < n; ++i)
        m.d[size_t(i)] = float(dly[size_t(i)]) * f;
    y.assign(x.size(), 0);
    m.call(
        int(x.size()), [&](int i) { return float(x[size_t(i)]); },
        [&](int i, float v) { y[size_t(i)] = to16(v * 1.0f); });
    for (int i = 0; i < n; ++i)
        dly[size_t(i)] = back32(m.d[size_t(i)], s);
}

TEST(IirDirect16s, BlockMatchesTheModel)
{
    tt::Rng g(5101);
    for (int n = 1; n <= 8; ++n)
        for (int s : {0, 3, 12, 14}) {
            auto taps = direct_taps(g, n, s);
            std::vector<Tav32s> dly(static_cast<size_t>(n)), mdly;
            for (auto& v : dly)
                v = Tav32s(g.range(-(1 << 20), 1 << 20));
            mdly = dly;
            for (int call = 0; call < 4; ++call) {
                const int len = int(g.range(1, 50));
                std::vector<Tav16s> x(static_cast<size_t>(len)), want;
                for (auto& v : x)
                    v = g.element<Tav16s>();
                direct_model(taps, n, mdly, x, want);
                std::vector<Tav16s> y(static_cast<size_t>(len));
                if (call % 2) {
                    y = x;
                    ASSERT_EQ(tavsIIR_Direct_16s_I(y.data(), len, taps.data(), n, dly.data()), StatusOk);
                } else {
                    ASSERT_EQ(tavsIIR_Direct_16s(x.data(), y.data(), len, taps.data(), n, dly.data()),
                              StatusOk);
                }
                ASSERT_EQ(y, want) << n << " " << s << " " << call;
                ASSERT_EQ(dly, mdly) << n << " " << s << " " << call;
            }
        }
}

TEST(IirDirect16s, BiQuadBlockMatchesTheModel)
{
    tt::Rng g(5202);
    for (int m = 1; m <= 4; ++m) {
        std::vector<Tav16s> taps;
        std::vector<int> shifts;
        for (int k = 0; k < m; ++k) {
            const int s = int(g.range(10, 14));
            auto t = bq_taps(g, 1, 0.8);
            for (int j = 0; j < 6; ++j)
                taps.push_back(j == 3 ? Tav16s(s)
                                      : Tav16s(std::lround(t[size_t(j)] / t[3] * std::ldexp(0.9, s))));
            shifts.push_back(s);
        }
        std::vector<Tav32s> dly(2 * size_t(m));
        for (auto& v : dly)
            v = Tav32s(g.range(-(1 << 18), 1 << 18));
        // Model: each section's taps and delay over its own 2^s.
        std::vector<float> t(taps.size());
        for (int k = 0; k < m; ++k)
            for (int j = 0; j < 6; ++j)
                t[size_t(6 * k + j)] =
                    j == 3 ? 1.0f : float(taps[size_t(6 * k + j)]) * std::ldexp(1.0f, -shifts[size_t(k)]);
        Bq<float> model(t.data(), m);
        for (int i = 0; i < 2 * m; ++i)
            model.d[size_t(i)] = float(dly[size_t(i)]) * std::ldexp(1.0f, -shifts[size_t(i / 2)]);
        for (int call = 0; call < 4; ++call) {
            const int len = int(g.range(1, 50));
            std::vector<Tav16s> x(static_cast<size_t>(len)), want(static_cast<size_t>(len)),
                y(static_cast<size_t>(len));
            for (auto& v : x)
                v = g.element<Tav16s>();
            for (int i = 0; i < len; ++i)
                want[size_t(i)] = to16(model.step(float(x[size_t(i)])) * 1.0f);
            if (call % 2) {
                y = x;
                ASSERT_EQ(tavsIIR_BiQuadDirect_16s_I(y.data(), len, taps.data(), m, dly.data()), StatusOk);
            } else {
                ASSERT_EQ(tavsIIR_BiQuadDirect_16s(x.data(), y.data(), len, taps.data(), m, dly.data()),
                          StatusOk);
            }
            ASSERT_EQ(y, want) << m << " " << call;
            for (int i = 0; i < 2 * m; ++i) {
                ASSERT_EQ(dly[size_t(i)], back32(model.d[size_t(i)], shifts[size_t(i / 2)])) << m << " " << i;
                // The next call starts from the caller's 32s delay again.
                model.d[size_t(i)] = float(dly[size_t(i)]) * std::ldexp(1.0f, -shifts[size_t(i / 2)]);
            }
        }
    }
}

// ---- one sample, wrapped 32-bit integers ---------------------------------------------

int32_t wrap(int64_t v) { return int32_t(uint32_t(uint64_t(v))); }
int32_t round_model(int32_t t, int s)
{
    s &= 31;
    const uint32_t c = uint32_t(1) << ((s + 31) % 32);
    const uint32_t sum = uint32_t(t) + ((uint32_t(t) >> s) & 1u) + c - 1u;
    return int32_t(sum) >> s; // arithmetic in C++20
}
int32_t one_model(int32_t x, const Tav16s* taps, int n, int32_t* d)
{
    const Tav16s* a = taps + n + 1;
    const int32_t y = round_model(wrap(int64_t(taps[0]) * x + d[0]), a[0]);
    for (int i = 0; i + 1 < n; ++i)
        d[i] = wrap(int64_t(taps[i + 1]) * x - int64_t(a[i + 1]) * y + d[i + 1]);
    d[n - 1] = wrap(int64_t(taps[n]) * x - int64_t(a[n]) * y);
    return y;
}
Tav16s sat16(int32_t v) { return Tav16s(v > 32767 ? 32767 : (v < -32768 ? -32768 : v)); }

TEST(IirDirect16s, OneSampleMatchesTheIntegerModel)
{
    tt::Rng g(5303);
    for (int n = 1; n <= 6; ++n)
        for (int rep = 0; rep < 20; ++rep) {
            std::vector<Tav16s> taps(2 * size_t(n) + 2);
            for (auto& v : taps)
                v = g.element<Tav16s>();
            taps[size_t(n) + 1] = Tav16s(rep < 4 ? rep : g.range(0, 40)); // shifts 0..3, and beyond 31
            std::vector<Tav32s> d(static_cast<size_t>(n)), md;
            for (auto& v : d)
                v = g.element<Tav32s>();
            md = d;
            for (int i = 0; i < 8; ++i) {
                const Tav16s x = g.element<Tav16s>();
                Tav16s y = 0;
                if (i % 2) {
                    y = x;
                    ASSERT_EQ(tavsIIROne_Direct_16s_I(&y, taps.data(), n, d.data()), StatusOk);
                } else {
                    ASSERT_EQ(tavsIIROne_Direct_16s(x, &y, taps.data(), n, d.data()), StatusOk);
                }
                ASSERT_EQ(y, sat16(one_model(x, taps.data(), n, md.data()))) << n << " " << rep << " " << i;
                ASSERT_EQ(d, md);
            }
        }
}

// Shift 0 adds 2^31 - 1 plus the low bit: a zero sum comes out as
// 0x7FFFFFFF, saturated to 32767, and feeds the delay as that value.
TEST(IirDirect16s, ShiftZeroAddsTwoToThe31)
{
    const Tav16s taps[4] = {0, 1, 0, 2}; // b0 = 0, b1 = 1, shift 0, a1 = 2
    Tav32s d[1] = {0};
    Tav16s y = 0;
    ASSERT_EQ(tavsIIROne_Direct_16s(5, &y, taps, 1, d), StatusOk);
    EXPECT_EQ(y, 32767);
    EXPECT_EQ(d[0], wrap(5 - 2 * int64_t(0x7FFFFFFF)));
    // An odd sum at shift 0 also gets its low bit added: 1 + 1 + 0x7FFFFFFF wraps.
    Tav32s d1[1] = {1};
    ASSERT_EQ(tavsIIROne_Direct_16s(0, &y, taps, 1, d1), StatusOk);
    EXPECT_EQ(y, -32768);
}

TEST(IirDirect16s, OneSampleBiQuadMatchesTheIntegerModel)
{
    tt::Rng g(5404);
    for (int m = 1; m <= 4; ++m)
        for (int rep = 0; rep < 20; ++rep) {
            std::vector<Tav16s> taps(6 * size_t(m));
            for (auto& v : taps)
                v = g.element<Tav16s>();
            for (int k = 0; k < m; ++k)
                taps[size_t(6 * k + 3)] = Tav16s(g.range(0, 33));
            std::vector<Tav32s> d(2 * size_t(m)), md;
            for (auto& v : d)
                v = g.element<Tav32s>();
            md = d;
            for (int i = 0; i < 6; ++i) {
                const Tav16s x = g.element<Tav16s>();
                // Model: each section rounds by its own shift; the
                // unsaturated output goes on.
                int32_t v = x;
                for (int k = 0; k < m; ++k) {
                    const Tav16s* c = &taps[size_t(6 * k)];
                    int32_t* s = &md[size_t(2 * k)];
                    const int32_t y = round_model(wrap(int64_t(c[0]) * v + s[0]), c[3]);
                    s[0] = wrap(int64_t(c[1]) * v - int64_t(c[4]) * y + s[1]);
                    s[1] = wrap(int64_t(c[2]) * v - int64_t(c[5]) * y);
                    v = y;
                }
                Tav16s y = 0;
                if (i % 2) {
                    y = x;
                    ASSERT_EQ(tavsIIROne_BiQuadDirect_16s_I(&y, taps.data(), m, d.data()), StatusOk);
                } else {
                    ASSERT_EQ(tavsIIROne_BiQuadDirect_16s(x, &y, taps.data(), m, d.data()), StatusOk);
                }
                ASSERT_EQ(y, sat16(v)) << m << " " << rep << " " << i;
                ASSERT_EQ(d, md);
            }
        }
}

// ---- checks ---------------------------------------------------------------------------

TEST(IirDirect16s, BlockChecksInOrder)
{
    Tav16s taps[4] = {100, 50, 8, -20}; // order 1, shift 8
    Tav16s x[4] = {1, 2, 3, 4};
    tt::Guarded<Tav16s> y(4);
    Tav32s d[1] = {77};
    EXPECT_EQ(tavsIIR_Direct_16s(nullptr, nullptr, 0, nullptr, 0, nullptr), ErrFilterOrder);
    EXPECT_EQ(tavsIIR_Direct_16s(x, y.data(), 4, taps, -1, d), ErrFilterOrder);
    EXPECT_EQ(tavsIIR_Direct_16s(nullptr, y.data(), 0, taps, 1, d), ErrNullPtr);
    EXPECT_EQ(tavsIIR_Direct_16s(x, nullptr, 4, taps, 1, d), ErrNullPtr);
    EXPECT_EQ(tavsIIR_Direct_16s(x, y.data(), 4, nullptr, 1, d), ErrNullPtr);
    EXPECT_EQ(tavsIIR_Direct_16s(x, y.data(), 4, taps, 1, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsIIR_Direct_16s_I(nullptr, 4, taps, 1, d), ErrNullPtr);
    taps[2] = -1; // the shift is checked before len
    EXPECT_EQ(tavsIIR_Direct_16s(x, y.data(), 0, taps, 1, d), ErrBadState);
    EXPECT_EQ(tavsIIR_Direct_16s(x, y.data(), 4, taps, 1, d), ErrBadState);
    EXPECT_EQ(tavsIIR_Direct_16s_I(x, 4, taps, 1, d), ErrBadState);
    taps[2] = 8;
    EXPECT_EQ(tavsIIR_Direct_16s(x, y.data(), 0, taps, 1, d), ErrSize);
    EXPECT_EQ(tavsIIR_Direct_16s_I(x, -4, taps, 1, d), ErrSize);
    EXPECT_TRUE(y.untouched());
    EXPECT_EQ(d[0], 77);
    EXPECT_EQ(x[0], 1);
    // Allocation last: on failure nothing is written and nothing kept.
    EXPECT_EQ(tt::for_each_alloc_failure([&]() {
                  const Status s = tavsIIR_Direct_16s(x, y.data(), 4, taps, 1, d);
                  if (s == ErrMemAlloc) {
                      EXPECT_TRUE(y.untouched());
                      EXPECT_EQ(d[0], 77);
                      return true;
                  }
                  EXPECT_EQ(s, StatusOk);
                  return false;
              }),
              1);
}

TEST(IirDirect16s, BiQuadBlockChecksInOrder)
{
    Tav16s taps[12] = {100, 50, 25, 8, -20, 10, 100, 50, 25, 8, -20, 10};
    Tav16s x[4] = {1, 2, 3, 4};
    tt::Guarded<Tav16s> y(4);
    Tav32s d[4] = {7, 7, 7, 7};
    const long live = tt::live_blocks();
    EXPECT_EQ(tavsIIR_BiQuadDirect_16s(nullptr, nullptr, 0, nullptr, 0, nullptr), ErrFilterOrder);
    EXPECT_EQ(tavsIIR_BiQuadDirect_16s(nullptr, y.data(), 0, taps, 2, d), ErrNullPtr);
    EXPECT_EQ(tavsIIR_BiQuadDirect_16s(x, y.data(), 4, taps, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsIIR_BiQuadDirect_16s_I(nullptr, 4, taps, 2, d), ErrNullPtr);
    taps[9] = -1; // second section's shift: checked after len and the allocation
    EXPECT_EQ(tavsIIR_BiQuadDirect_16s(x, y.data(), 0, taps, 2, d), ErrSize);
    tt::fail_alloc_at(1);
    EXPECT_EQ(tavsIIR_BiQuadDirect_16s(x, y.data(), 4, taps, 2, d), ErrMemAlloc);
    tt::fail_alloc_at(0);
    EXPECT_EQ(tavsIIR_BiQuadDirect_16s(x, y.data(), 4, taps, 2, d), ErrBadState);
    EXPECT_EQ(tavsIIR_BiQuadDirect_16s_I(x, 4, taps, 2, d), ErrBadState);
    EXPECT_EQ(tt::live_blocks(), live); // the temporary went back
    taps[9] = 8;
    // A zero b0 is refused by the record the block runs through.
    taps[6] = 0;
    EXPECT_EQ(tavsIIR_BiQuadDirect_16s(x, y.data(), 4, taps, 2, d), ErrDivByZero);
    EXPECT_EQ(tt::live_blocks(), live);
    EXPECT_TRUE(y.untouched());
    EXPECT_EQ(d[0], 7);
    EXPECT_EQ(d[3], 7);
    EXPECT_EQ(x[3], 4);
}

TEST(IirDirect16s, OneSampleChecks)
{
    Tav16s taps[6] = {100, 50, 25, 8, -20, 10};
    Tav16s y = 5;
    Tav32s d[2] = {3, 3};
    EXPECT_EQ(tavsIIROne_Direct_16s(1, nullptr, nullptr, 0, nullptr), ErrFilterOrder);
    EXPECT_EQ(tavsIIROne_Direct_16s_I(nullptr, nullptr, 0, nullptr), ErrFilterOrder);
    EXPECT_EQ(tavsIIROne_Direct_16s(1, nullptr, taps, 2, d), ErrNullPtr);
    EXPECT_EQ(tavsIIROne_Direct_16s(1, &y, nullptr, 2, d), ErrNullPtr);
    EXPECT_EQ(tavsIIROne_Direct_16s(1, &y, taps, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsIIROne_Direct_16s_I(nullptr, taps, 2, d), ErrNullPtr);
    const Tav16s negShift[4] = {1, 1, -3, 1};
    EXPECT_EQ(tavsIIROne_Direct_16s(1, &y, negShift, 1, d), ErrBadState);
    EXPECT_EQ(tavsIIROne_Direct_16s_I(&y, negShift, 1, d), ErrBadState);
    EXPECT_EQ(tavsIIROne_BiQuadDirect_16s(1, nullptr, nullptr, 0, nullptr), ErrFilterOrder);
    EXPECT_EQ(tavsIIROne_BiQuadDirect_16s_I(nullptr, taps, -1, d), ErrFilterOrder);
    EXPECT_EQ(tavsIIROne_BiQuadDirect_16s(1, &y, taps, 1, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsIIROne_BiQuadDirect_16s_I(nullptr, taps, 1, d), ErrNullPtr);
    Tav16s two[12] = {100, 50, 25, 8, -20, 10, 100, 50, 25, -8, -20, 10};
    Tav32s d4[4] = {3, 3, 3, 3};
    EXPECT_EQ(tavsIIROne_BiQuadDirect_16s(1, &y, two, 2, d4), ErrBadState); // nothing changed
    EXPECT_EQ(tavsIIROne_BiQuadDirect_16s_I(&y, two, 2, d4), ErrBadState);
    EXPECT_EQ(y, 5);
    EXPECT_EQ(d[0], 3);
    for (auto v : d4)
        EXPECT_EQ(v, 3);
}

} // namespace
