// Filtering through the records of floating data: every kind against the
// model of the same equations in the same precision (bit for bit), against a
// long-double model (closely), streaming in pieces, in place, one sample at
// a time, argument checks; the 32f order-0 scale and direct form I.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "alloc_fault.h"
#include "iir_kinds.h"
#include "internal/iir.h"

namespace {

using namespace iirt;

template <class K> class IirFloat : public ::testing::Test {
};
using Kinds = ::testing::Types<K32f, K32fc, K64f, K64fc, K64f32f, K64fc32fc>;
TYPED_TEST_SUITE(IirFloat, Kinds);

// A record of K over the caller's taps in a block at a random misalignment.
template <class K> struct Rec {
    std::vector<Tav8u> mem;
    typename K::R* st = nullptr;
    Rec(const std::vector<typename K::Tap>& taps, int n, bool bq, const typename K::Tap* dly, size_t off)
    {
        int size = 0;
        EXPECT_EQ((bq ? K::size_bq : K::size)(n, &size), StatusOk);
        mem.assign(size_t(size) + off, 0);
        EXPECT_EQ((bq ? K::init_bq : K::init)(&st, taps.data(), n, dly, mem.data() + off), StatusOk);
    }
};

template <class K> bool same_elems(const typename K::Data* a, const typename K::Data* b, int len)
{
    return len <= 0 || std::memcmp(a, b, size_t(len) * sizeof(*a)) == 0;
}

// Runs the record and the model over the same calls (random lengths, odd
// ones included, some in place, some one sample at a time) and compares
// every output and the final delay line bit for bit.
template <class K, class M> void stream_check(typename K::R* st, M& model, tt::Rng& g, int calls)
{
    using Data = typename K::Data;
    using Model = typename K::Model;
    const long allocs = tt::alloc_calls(); // filtering never allocates
    for (int c = 0; c < calls; ++c) {
        // One long call crosses the chunks that long cascades run in.
        const int len = c == 1 ? int(g.range(129, 400)) : int(g.range(1, 70));
        auto x = kind_data<Data>(g, len);
        std::vector<Data> want(static_cast<size_t>(len));
        const int mode = int(g.range(0, 3));
        if (mode == 3) { // one sample at a time takes the one-sample step
            for (int i = 0; i < len; ++i) {
                Data y;
                ASSERT_EQ(K::one(x[size_t(i)], &y, st), StatusOk);
                want[size_t(i)] = to_elem<Data>(model.step(to_model<Model>(x[size_t(i)])));
                ASSERT_TRUE(same(y, want[size_t(i)])) << "one, call " << c << " i " << i;
            }
            continue;
        }
        model.call(
            len, [&](int i) { return to_model<Model>(x[size_t(i)]); },
            [&](int i, Model y) { want[size_t(i)] = to_elem<Data>(y); });
        tt::Guarded<Data> out(size_t(len), size_t(g.range(0, 15)));
        if (mode == 2) {
            std::memcpy(out.data(), x.data(), size_t(len) * sizeof(Data));
            ASSERT_EQ(K::run_i(out.data(), len, st), StatusOk);
        } else {
            ASSERT_EQ(K::run(x.data(), out.data(), len, st), StatusOk);
        }
        ASSERT_TRUE(same_elems<K>(out.data(), want.data(), len)) << "call " << c << " len " << len;
        ASSERT_TRUE(out.borders_intact());
    }
    EXPECT_EQ(tt::alloc_calls(), allocs);
}

TYPED_TEST(IirFloat, ArbitraryOrderMatchesTheModelBitForBit)
{
    using K = TypeParam;
    using Model = typename K::Model;
    tt::Rng g(101);
    for (int n = 1; n <= 12; ++n)
        for (int rep = 0; rep < 3; ++rep) {
            auto taps = kind_taps<K>(g, arb_taps(g, n), n, false);
            auto dly0 = kind_data<typename K::Tap>(g, n, 0.25);
            Rec<K> rec(taps, n, false, rep ? dly0.data() : nullptr, size_t(g.range(0, 63)));
            std::vector<Model> mt(taps.size());
            for (size_t i = 0; i < taps.size(); ++i)
                mt[i] = to_model<Model>(taps[i]);
            Arb<Model> model(mt.data(), n);
            if (rep)
                for (int i = 0; i < n; ++i)
                    model.d[size_t(i)] = to_model<Model>(dly0[size_t(i)]);
            stream_check<K>(rec.st, model, g, 12);
            std::vector<typename K::Tap> d(static_cast<size_t>(n));
            ASSERT_EQ(K::get_dly(rec.st, d.data()), StatusOk);
            for (int i = 0; i < n; ++i)
                ASSERT_TRUE(same(to_model<Model>(d[size_t(i)]), model.d[size_t(i)])) << n << " " << i;
        }
}

TYPED_TEST(IirFloat, BiquadCascadeMatchesTheModelBitForBit)
{
    using K = TypeParam;
    using Model = typename K::Model;
    tt::Rng g(202);
    for (int m : {1, 2, 3, 4, 5, 6, 8, 9}) {
        auto taps = kind_taps<K>(g, bq_taps(g, m), 2, true);
        auto dly0 = kind_data<typename K::Tap>(g, 2 * m, 0.25);
        Rec<K> rec(taps, m, true, dly0.data(), size_t(g.range(0, 63)));
        std::vector<Model> mt(taps.size());
        for (size_t i = 0; i < taps.size(); ++i)
            mt[i] = to_model<Model>(taps[i]);
        Bq<Model> model(mt.data(), m);
        for (int i = 0; i < 2 * m; ++i)
            model.d[size_t(i)] = to_model<Model>(dly0[size_t(i)]);
        stream_check<K>(rec.st, model, g, 12);
        std::vector<typename K::Tap> d(2 * size_t(m));
        ASSERT_EQ(K::get_dly(rec.st, d.data()), StatusOk);
        for (int i = 0; i < 2 * m; ++i)
            ASSERT_TRUE(same(to_model<Model>(d[size_t(i)]), model.d[size_t(i)]));
    }
}

// The same outputs within rounding of a long-double run of the same filter.
TYPED_TEST(IirFloat, CloseToLongDouble)
{
    using K = TypeParam;
    using Data = typename K::Data;
    using LD = std::conditional_t<K::complex, Z<long double>, long double>;
    const bool single = sizeof(Data) == 4 || sizeof(Data) == 8 && K::complex;
    const double tol = single ? 2e-4 : 1e-11;
    tt::Rng g(303);
    for (int n = 1; n <= 10; ++n) {
        auto taps = kind_taps<K>(g, arb_taps(g, n, 0.8), n, false);
        std::vector<LD> lt(taps.size());
        for (size_t i = 0; i < taps.size(); ++i)
            lt[i] = to_model<LD>(taps[i]);
        Arb<LD> ref(lt.data(), n);
        Rec<K> rec(taps, n, false, nullptr, 0);
        const int len = 301;
        auto x = kind_data<Data>(g, len);
        std::vector<Data> y(static_cast<size_t>(len));
        ASSERT_EQ(K::run(x.data(), y.data(), len, rec.st), StatusOk);
        std::vector<double> got;
        std::vector<long double> want;
        for (int i = 0; i < len; ++i) {
            LD w = ref.step(to_model<LD>(x[size_t(i)]));
            if constexpr (K::complex) {
                got.push_back(double(y[size_t(i)].re)), want.push_back(w.re);
                got.push_back(double(y[size_t(i)].im)), want.push_back(w.im);
            } else {
                got.push_back(double(y[size_t(i)])), want.push_back(w);
            }
        }
        EXPECT_LT(rel_err(got, want), tol) << "order " << n;
    }
}

// Small integer taps with a0 = 1 and integer data keep every value exact,
// so the two-sample pass and one-sample steps agree to the bit: an odd
// block ends with the one-sample step and leaves the delay as if every
// sample had taken it.
TYPED_TEST(IirFloat, PairsAndSingleStepsAgreeWhenExact)
{
    using K = TypeParam;
    using Data = typename K::Data;
    using Tap = typename K::Tap;
    tt::Rng g(404);
    for (int n = 1; n <= 6; ++n) {
        std::vector<double> t(2 * size_t(n) + 2);
        for (auto& v : t)
            v = double(g.range(-2, 2));
        t[size_t(n) + 1] = 1.0;
        auto taps = kind_taps<K>(g, t, n, false);
        if constexpr (K::complex) // integer parts keep the products exact
            for (auto& v : taps)
                v.re = decltype(v.re)(std::round(v.re * 2)), v.im = decltype(v.im)(std::round(v.im * 2));
        if constexpr (K::complex) taps[size_t(n) + 1] = Tap{1, 0};
        Rec<K> blockRec(taps, n, false, nullptr, 0), oneRec(taps, n, false, nullptr, 0);
        const int len = 7; // odd: three pairs and a single step
        std::vector<Data> x(len), y1(len), y2(len);
        for (auto& v : x) {
            if constexpr (K::complex)
                v = Data{decltype(v.re)(g.range(-3, 3)), decltype(v.re)(g.range(-3, 3))};
            else
                v = Data(g.range(-3, 3));
        }
        ASSERT_EQ(K::run(x.data(), y1.data(), len, blockRec.st), StatusOk);
        for (int i = 0; i < len; ++i)
            ASSERT_EQ(K::one(x[size_t(i)], &y2[size_t(i)], oneRec.st), StatusOk);
        EXPECT_TRUE(same_elems<K>(y1.data(), y2.data(), len)) << n;
        std::vector<Tap> d1(static_cast<size_t>(n)), d2(static_cast<size_t>(n));
        ASSERT_EQ(K::get_dly(blockRec.st, d1.data()), StatusOk);
        ASSERT_EQ(K::get_dly(oneRec.st, d2.data()), StatusOk);
        EXPECT_EQ(std::memcmp(d1.data(), d2.data(), d1.size() * sizeof(Tap)), 0) << n;
    }
}

// A NaN a0 is not zero: Init succeeds and the output turns NaN.
TYPED_TEST(IirFloat, NanA0PassesAndPoisonsTheOutput)
{
    using K = TypeParam;
    using Data = typename K::Data;
    tt::Rng g(505);
    auto taps = kind_taps<K>(g, arb_taps(g, 2), 2, false);
    const auto nan = std::numeric_limits<double>::quiet_NaN();
    if constexpr (K::complex)
        taps[3].re = decltype(taps[3].re)(nan);
    else
        taps[3] = typename K::Tap(nan);
    Rec<K> rec(taps, 2, false, nullptr, 0);
    auto x = kind_data<Data>(g, 4);
    std::vector<Data> y(4);
    ASSERT_EQ(K::run(x.data(), y.data(), 4, rec.st), StatusOk);
    for (auto v : y) {
        if constexpr (K::complex)
            EXPECT_TRUE(std::isnan(v.re) || std::isnan(v.im));
        else
            EXPECT_TRUE(std::isnan(v));
    }
}

// Checks: state, src, dst null, then len below 1, then the tag; nothing
// written and the delay left as it was.
TYPED_TEST(IirFloat, BlockChecksInOrder)
{
    using K = TypeParam;
    using Data = typename K::Data;
    tt::Rng g(606);
    auto taps = kind_taps<K>(g, arb_taps(g, 3), 3, false);
    auto dly0 = kind_data<typename K::Tap>(g, 3, 0.5);
    Rec<K> rec(taps, 3, false, dly0.data(), 0);
    auto x = kind_data<Data>(g, 8);
    tt::Guarded<Data> out(8);
    EXPECT_EQ(K::run(x.data(), out.data(), 0, nullptr), ErrNullPtr);
    EXPECT_EQ(K::run(nullptr, out.data(), 0, rec.st), ErrNullPtr);
    EXPECT_EQ(K::run(x.data(), nullptr, 8, rec.st), ErrNullPtr);
    EXPECT_EQ(K::run(x.data(), out.data(), 0, rec.st), ErrSize);
    EXPECT_EQ(K::run(x.data(), out.data(), -1, rec.st), ErrSize);
    EXPECT_EQ(K::run_i(nullptr, 8, rec.st), ErrNullPtr);
    EXPECT_EQ(K::run_i(out.data(), 8, nullptr), ErrNullPtr);
    EXPECT_EQ(K::run_i(out.data(), 0, rec.st), ErrSize);
    EXPECT_EQ(K::one(x[0], nullptr, rec.st), ErrNullPtr);
    EXPECT_EQ(K::one(x[0], out.data(), nullptr), ErrNullPtr);
    // A record of another kind (the 32f record carries "II01"; the others
    // get the 64f tag) and a zeroed one.
    std::vector<Tav8u> foreign(256, 0);
    auto* bad = reinterpret_cast<typename K::R*>(foreign.data());
    EXPECT_EQ(K::run(x.data(), out.data(), 0, bad), ErrSize); // len before the tag
    EXPECT_EQ(K::run(x.data(), out.data(), 8, bad), ErrContextMismatch);
    const int32_t other = std::is_same_v<K, K32f> ? 0x49493133 : 0x49493031;
    std::memcpy(foreign.data(), &other, 4);
    EXPECT_EQ(K::run(x.data(), out.data(), 8, bad), ErrContextMismatch);
    EXPECT_EQ(K::run_i(out.data(), 8, bad), ErrContextMismatch);
    EXPECT_EQ(K::one(x[0], out.data(), bad), ErrContextMismatch);
    EXPECT_TRUE(out.untouched());
    std::vector<typename K::Tap> d(3);
    ASSERT_EQ(K::get_dly(rec.st, d.data()), StatusOk);
    EXPECT_EQ(std::memcmp(d.data(), dly0.data(), 3 * sizeof(d[0])), 0);
}

// ---- 32f only: order 0 and direct form I ---------------------------------------

// Init refuses order 0, so the order-0 record is laid out by hand: the
// plain scale by b0, four samples a step when long and not overlapping,
// must give the products of the element loop at every length and offset.
TEST(Iir32f, OrderZeroIsAPlainScale)
{
    alignas(64) float taps[4] = {0.7f, 0.0f, 0.0f, 0.0f};
    alignas(64) float dly[4] = {};
    tavs::iir::Record r{};
    r.tag = 0x49493031; // "II01"
    r.taps = taps;
    r.dlyLine = dly;
    r.dlyLen = 0;
    r.numBq = 0;
    auto* st = reinterpret_cast<IIRState_32f*>(&r);
    tt::Rng g(707);
    for (int len = 1; len <= 70; ++len)
        for (size_t off = 0; off < 16; ++off) {
            auto x = random_f(g, len);
            tt::Guarded<float> out(size_t(len), off);
            ASSERT_EQ(tavsIIR_32f(x.data(), out.data(), len, st), StatusOk);
            for (int i = 0; i < len; ++i) {
                float got;
                std::memcpy(&got, reinterpret_cast<const char*>(out.data()) + 4 * i, 4);
                ASSERT_TRUE(same(got, 0.7f * x[size_t(i)])) << len << " " << off;
            }
            ASSERT_TRUE(out.borders_intact());
            // Overlapping vectors (in place, and shifted by one) take the element loop.
            std::vector<float> v(x);
            ASSERT_EQ(tavsIIR_32f_I(v.data(), len, st), StatusOk);
            for (int i = 0; i < len; ++i)
                ASSERT_TRUE(same(v[size_t(i)], 0.7f * x[size_t(i)]));
            std::vector<float> w(size_t(len) + 1, 0.0f);
            std::memcpy(w.data() + 1, x.data(), size_t(len) * 4);
            ASSERT_EQ(tavsIIR_32f(w.data() + 1, w.data(), len, st), StatusOk);
            for (int i = 0; i < len; ++i)
                ASSERT_TRUE(same(w[size_t(i)], 0.7f * x[size_t(i)]));
        }
    float y = 0;
    ASSERT_EQ(tavsIIROne_32f(2.0f, &y, st), StatusOk);
    EXPECT_EQ(y, 1.4f);
}

std::vector<float> df1_given(tt::Rng& g, int m)
{
    auto t = cast_vec<float>(bq_taps(g, m));
    for (int k = 0; k < m; k += 2) // every other section with a0 exactly 1 (the copy path)
        for (int j = 0; j < 6; ++j)
            t[size_t(6 * k + j)] = float(double(t[size_t(6 * k + j)]) / double(t[size_t(6 * k + 3)]));
    for (int k = 0; k < m; k += 2)
        t[size_t(6 * k + 3)] = 1.0f;
    return t;
}

TEST(Iir32f, DirectFormIMatchesTheModel)
{
    tt::Rng g(808);
    for (int m = 1; m <= 5; ++m) {
        auto taps = df1_given(g, m);
        auto d0 = random_f(g, 4 * m, 0.5);
        int size = 0;
        ASSERT_EQ(tavsIIRGetStateSize_BiQuad_DF1_32f(m, &size), StatusOk);
        std::vector<Tav8u> mem(static_cast<size_t>(size));
        IIRState_32f* st = nullptr;
        ASSERT_EQ(tavsIIRInit_BiQuad_DF1_32f(&st, taps.data(), m, d0.data(), mem.data()), StatusOk);
        Df1f model(taps.data(), m);
        model.h.assign(d0.begin(), d0.end());
        for (int c = 0; c < 10; ++c) {
            const int len = int(g.range(1, 40));
            auto x = random_f(g, len);
            std::vector<float> want(static_cast<size_t>(len)), got(static_cast<size_t>(len));
            model.call(x.data(), want.data(), len);
            if (c % 3 == 2) {
                for (int i = 0; i < len; ++i)
                    ASSERT_EQ(tavsIIROne_32f(x[size_t(i)], &got[size_t(i)], st), StatusOk);
            } else if (c % 3 == 1) {
                got = x;
                ASSERT_EQ(tavsIIR_32f_I(got.data(), len, st), StatusOk);
            } else {
                ASSERT_EQ(tavsIIR_32f(x.data(), got.data(), len, st), StatusOk);
            }
            ASSERT_EQ(std::memcmp(got.data(), want.data(), size_t(len) * 4), 0) << m << " " << c;
        }
        std::vector<float> d(4 * size_t(m));
        ASSERT_EQ(tavsIIRGetDlyLine_32f(st, d.data()), StatusOk);
        EXPECT_EQ(std::memcmp(d.data(), model.h.data(), d.size() * 4), 0);
    }
}

// b0 = 0 is refused by the biquad layout and accepted by direct form I.
TEST(Iir32f, DirectFormIAcceptsAZeroB0)
{
    const float taps[6] = {0.0f, 0.5f, 0.25f, 2.0f, -0.5f, 0.25f};
    int size = 0;
    ASSERT_EQ(tavsIIRGetStateSize_BiQuad_DF1_32f(1, &size), StatusOk);
    std::vector<Tav8u> mem(static_cast<size_t>(size));
    IIRState_32f* st = nullptr;
    ASSERT_EQ(tavsIIRInit_BiQuad_DF1_32f(&st, taps, 1, nullptr, mem.data()), StatusOk);
    const float x[4] = {1.0f, 0.0f, 0.0f, 0.0f};
    float y[4];
    ASSERT_EQ(tavsIIR_32f(x, y, 4, st), StatusOk);
    // Held: b = 0, 0.25, 0.125; a1 = -0.25, a2 = 0.125.
    EXPECT_EQ(y[0], 0.0f);
    EXPECT_EQ(y[1], 0.25f);
    EXPECT_EQ(y[2], 0.125f + 0.25f * 0.25f);
    IIRState_32f* bq = nullptr;
    ASSERT_EQ(tavsIIRGetStateSize_BiQuad_32f(1, &size), StatusOk);
    std::vector<Tav8u> mem2(size_t(size), 0xA5);
    EXPECT_EQ(tavsIIRInit_BiQuad_32f(&bq, taps, 1, nullptr, mem2.data()), ErrDivByZero);
    EXPECT_EQ(bq, nullptr);
}

} // namespace
