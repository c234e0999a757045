// Filtering integer data through floating taps: every _Sfs kind against the
// model of the same equations (bit for bit), the scale built on the
// exponent, the limits and ties to even, 32s taps with a factor, in place,
// one sample at a time, argument checks; direct form I over 32s data.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <vector>

#include "iir_kinds.h"

namespace {

using namespace iirt;

// 2^-sf as the 32f kernels build it: the low seven bits of the scale as a
// signed count.
float factor32(int sf)
{
    const int s7 = ((sf & 0x7F) ^ 0x40) - 0x40;
    return std::ldexp(1.0f, -s7);
}
// 2^-sf in 64f, zero or infinite beyond the range.
double factor64(int sf)
{
    if (sf > 1100) return 0.0;
    if (sf < -1100) return HUGE_VAL;
    return std::ldexp(1.0, -sf);
}
template <class F> Tav16s to16(F v)
{
    if (v > F(32767))
        v = F(32767);
    else if (v < F(-32768))
        v = F(-32768);
    return Tav16s(std::nearbyint(v));
}
Tav32s to32(double v)
{
    if (v > 2147483647.0)
        v = 2147483647.0;
    else if (v < -2147483648.0)
        v = -2147483648.0;
    return Tav32s(std::nearbyint(v));
}

constexpr int kTapsFactor = 3;

// The element type of a record's delay line, from the model's precision.
template <class M> struct ElemOf;
template <> struct ElemOf<float> {
    using type = Tav32f;
};
template <> struct ElemOf<double> {
    using type = Tav64f;
};
template <> struct ElemOf<Z<float>> {
    using type = Tav32fc;
};
template <> struct ElemOf<Z<double>> {
    using type = Tav64fc;
};

// Kinds: record, caller's tap type, data type, model precision, and the
// conversions of the model.
#define IIRT_IKIND(NAME, REC, TAPIN, DATA, MODEL, SIZE, SIZEBQ, INIT, INITBQ, FREE, TAPS, GET, RUN, RUNI,    \
                   ONE, OUT, TAPCONV)                                                                        \
    struct NAME {                                                                                            \
        using R = REC;                                                                                       \
        using TapIn = TAPIN;                                                                                 \
        using Data = DATA;                                                                                   \
        using Model = MODEL;                                                                                 \
        using Dly = typename ElemOf<MODEL>::type;                                                            \
        static constexpr bool complex = !std::is_arithmetic_v<DATA>;                                         \
        static constexpr auto size = SIZE;                                                                   \
        static constexpr auto size_bq = SIZEBQ;                                                              \
        static constexpr auto init = INIT;                                                                   \
        static constexpr auto init_bq = INITBQ;                                                              \
        static constexpr auto free_ = FREE;                                                                  \
        static constexpr auto set_taps = TAPS;                                                               \
        static constexpr auto get_dly = GET;                                                                 \
        static constexpr auto run = RUN;                                                                     \
        static constexpr auto run_i = RUNI;                                                                  \
        static constexpr auto one = ONE;                                                                     \
        static Data out(Model y, int sf) { return OUT; }                                                     \
        static Model tap(TapIn t) { return TAPCONV; }                                                        \
    };

#define OUT16R to16(y* factor32(sf))
#define OUT16C                                                                                               \
    Tav16sc { to16(y.re* factor32(sf)), to16(y.im* factor32(sf)) }
#define OUT16R64 to16(y* factor64(sf))
#define OUT16C64                                                                                             \
    Tav16sc { to16(y.re* factor64(sf)), to16(y.im* factor64(sf)) }
#define OUT32R to32(y* factor64(sf))
#define OUT32C                                                                                               \
    Tav32sc { to32(y.re* factor64(sf)), to32(y.im* factor64(sf)) }
#define TAP_SAME to_model<Model>(t)
#define TAP_32S float(t) * std::ldexp(1.0f, -kTapsFactor)
#define TAP_32SC                                                                                             \
    Model { float(t.re) * std::ldexp(1.0f, -kTapsFactor), float(t.im) * std::ldexp(1.0f, -kTapsFactor) }

IIRT_IKIND(K32f16s, IIRState32f_16s, Tav32f, Tav16s, float, tavsIIRGetStateSize32f_16s,
           tavsIIRGetStateSize32f_BiQuad_16s, tavsIIRInit32f_16s, tavsIIRInit32f_BiQuad_16s,
           tavsIIRFree32f_16s, tavsIIRSetTaps32f_16s, tavsIIRGetDlyLine32f_16s, tavsIIR32f_16s_Sfs,
           tavsIIR32f_16s_ISfs, tavsIIROne32f_16s_Sfs, OUT16R, TAP_SAME)
IIRT_IKIND(K32fc16sc, IIRState32fc_16sc, Tav32fc, Tav16sc, Z<float>, tavsIIRGetStateSize32fc_16sc,
           tavsIIRGetStateSize32fc_BiQuad_16sc, tavsIIRInit32fc_16sc, tavsIIRInit32fc_BiQuad_16sc,
           tavsIIRFree32fc_16sc, tavsIIRSetTaps32fc_16sc, tavsIIRGetDlyLine32fc_16sc, tavsIIR32fc_16sc_Sfs,
           tavsIIR32fc_16sc_ISfs, tavsIIROne32fc_16sc_Sfs, OUT16C, TAP_SAME)
IIRT_IKIND(K32s16s32f, IIRState32s_16s, Tav32f, Tav16s, float, tavsIIRGetStateSize32s_16s32f,
           tavsIIRGetStateSize32s_BiQuad_16s32f, tavsIIRInit32s_16s32f, tavsIIRInit32s_BiQuad_16s32f,
           tavsIIRFree32s_16s, tavsIIRSetTaps32s_16s32f, tavsIIRGetDlyLine32s_16s, tavsIIR32s_16s_Sfs,
           tavsIIR32s_16s_ISfs, tavsIIROne32s_16s_Sfs, OUT16R, TAP_SAME)
IIRT_IKIND(K32sc16sc32fc, IIRState32sc_16sc, Tav32fc, Tav16sc, Z<float>, tavsIIRGetStateSize32sc_16sc32fc,
           tavsIIRGetStateSize32sc_BiQuad_16sc32fc, tavsIIRInit32sc_16sc32fc, tavsIIRInit32sc_BiQuad_16sc32fc,
           tavsIIRFree32sc_16sc, tavsIIRSetTaps32sc_16sc32fc, tavsIIRGetDlyLine32sc_16sc,
           tavsIIR32sc_16sc_Sfs, tavsIIR32sc_16sc_ISfs, tavsIIROne32sc_16sc_Sfs, OUT16C, TAP_SAME)
IIRT_IKIND(K64f16s, IIRState64f_16s, Tav64f, Tav16s, double, tavsIIRGetStateSize64f_16s,
           tavsIIRGetStateSize64f_BiQuad_16s, tavsIIRInit64f_16s, tavsIIRInit64f_BiQuad_16s,
           tavsIIRFree64f_16s, tavsIIRSetTaps64f_16s, tavsIIRGetDlyLine64f_16s, tavsIIR64f_16s_Sfs,
           tavsIIR64f_16s_ISfs, tavsIIROne64f_16s_Sfs, OUT16R64, TAP_SAME)
IIRT_IKIND(K64fc16sc, IIRState64fc_16sc, Tav64fc, Tav16sc, Z<double>, tavsIIRGetStateSize64fc_16sc,
           tavsIIRGetStateSize64fc_BiQuad_16sc, tavsIIRInit64fc_16sc, tavsIIRInit64fc_BiQuad_16sc,
           tavsIIRFree64fc_16sc, tavsIIRSetTaps64fc_16sc, tavsIIRGetDlyLine64fc_16sc, tavsIIR64fc_16sc_Sfs,
           tavsIIR64fc_16sc_ISfs, tavsIIROne64fc_16sc_Sfs, OUT16C64, TAP_SAME)
IIRT_IKIND(K64f32s, IIRState64f_32s, Tav64f, Tav32s, double, tavsIIRGetStateSize64f_32s,
           tavsIIRGetStateSize64f_BiQuad_32s, tavsIIRInit64f_32s, tavsIIRInit64f_BiQuad_32s,
           tavsIIRFree64f_32s, tavsIIRSetTaps64f_32s, tavsIIRGetDlyLine64f_32s, tavsIIR64f_32s_Sfs,
           tavsIIR64f_32s_ISfs, tavsIIROne64f_32s_Sfs, OUT32R, TAP_SAME)
IIRT_IKIND(K64fc32sc, IIRState64fc_32sc, Tav64fc, Tav32sc, Z<double>, tavsIIRGetStateSize64fc_32sc,
           tavsIIRGetStateSize64fc_BiQuad_32sc, tavsIIRInit64fc_32sc, tavsIIRInit64fc_BiQuad_32sc,
           tavsIIRFree64fc_32sc, tavsIIRSetTaps64fc_32sc, tavsIIRGetDlyLine64fc_32sc, tavsIIR64fc_32sc_Sfs,
           tavsIIR64fc_32sc_ISfs, tavsIIROne64fc_32sc_Sfs, OUT32C, TAP_SAME)
// 32s taps with a factor: the Init and SetTaps calls take it last but one.
IIRT_IKIND(K32s16s, IIRState32s_16s, Tav32s, Tav16s, float, tavsIIRGetStateSize32s_16s,
           tavsIIRGetStateSize32s_BiQuad_16s,
           ([](IIRState32s_16s** p, const Tav32s* t, int n, const Tav32f* d, Tav8u* b) {
               return tavsIIRInit32s_16s(p, t, n, kTapsFactor, d, b);
           }),
           ([](IIRState32s_16s** p, const Tav32s* t, int n, const Tav32f* d, Tav8u* b) {
               return tavsIIRInit32s_BiQuad_16s(p, t, n, kTapsFactor, d, b);
           }),
           tavsIIRFree32s_16s,
           ([](const Tav32s* t, IIRState32s_16s* s) { return tavsIIRSetTaps32s_16s(t, s, kTapsFactor); }),
           tavsIIRGetDlyLine32s_16s, tavsIIR32s_16s_Sfs, tavsIIR32s_16s_ISfs, tavsIIROne32s_16s_Sfs, OUT16R,
           TAP_32S)
IIRT_IKIND(K32sc16sc, IIRState32sc_16sc, Tav32sc, Tav16sc, Z<float>, tavsIIRGetStateSize32sc_16sc,
           tavsIIRGetStateSize32sc_BiQuad_16sc,
           ([](IIRState32sc_16sc** p, const Tav32sc* t, int n, const Tav32fc* d, Tav8u* b) {
               return tavsIIRInit32sc_16sc(p, t, n, kTapsFactor, d, b);
           }),
           ([](IIRState32sc_16sc** p, const Tav32sc* t, int n, const Tav32fc* d, Tav8u* b) {
               return tavsIIRInit32sc_BiQuad_16sc(p, t, n, kTapsFactor, d, b);
           }),
           tavsIIRFree32sc_16sc, ([](const Tav32sc* t, IIRState32sc_16sc* s) {
               return tavsIIRSetTaps32sc_16sc(t, s, kTapsFactor);
           }),
           tavsIIRGetDlyLine32sc_16sc, tavsIIR32sc_16sc_Sfs, tavsIIR32sc_16sc_ISfs, tavsIIROne32sc_16sc_Sfs,
           OUT16C, TAP_32SC)

template <class K> class IirInt : public ::testing::Test {
};
using Kinds = ::testing::Types<K32f16s, K32fc16sc, K32s16s32f, K32sc16sc32fc, K64f16s, K64fc16sc, K64f32s,
                               K64fc32sc, K32s16s, K32sc16sc>;
TYPED_TEST_SUITE(IirInt, Kinds);

// Caller's taps of kind K: floats as they are, 32s taps as the given value
// times 2^kTapsFactor, rounded (so that the factor brings them back).
template <class K>
std::vector<typename K::TapIn> int_kind_taps(tt::Rng& g, const std::vector<double>& t, int n, bool bq)
{
    using T = typename K::TapIn;
    std::vector<T> out(t.size());
    auto z = complex_taps<double>(g, t, n, bq);
    for (size_t i = 0; i < t.size(); ++i) {
        if constexpr (std::is_same_v<T, Tav32s>)
            out[i] = Tav32s(std::lround(t[i] * 1000.0));
        else if constexpr (std::is_same_v<T, Tav32sc>)
            out[i] = Tav32sc{Tav32s(std::lround(z[i].re * 1000.0)), Tav32s(std::lround(z[i].im * 1000.0))};
        else if constexpr (std::is_arithmetic_v<T>)
            out[i] = T(t[i]);
        else
            out[i] = to_elem<T>(z[i]);
    }
    return out;
}

template <class E> E random_sample(tt::Rng& g)
{
    if constexpr (std::is_arithmetic_v<E>)
        return g.element<E>();
    else {
        using P = decltype(E::re);
        return E{g.element<P>(), g.element<P>()};
    }
}

int random_scale(tt::Rng& g)
{
    switch (g.range(0, 9)) {
    case 0:
        return int(g.range(-200, 200));
    case 1:
        return INT_MIN;
    case 2:
        return INT_MAX;
    case 3:
        return 64;
    default:
        return int(g.range(-4, 6));
    }
}

// Streams calls of every form through the record and the model and
// compares outputs bit for bit.
template <class K, class M> void int_stream(typename K::R* st, M& model, tt::Rng& g, int calls)
{
    using Data = typename K::Data;
    using Model = typename K::Model;
    for (int c = 0; c < calls; ++c) {
        const int len = c == 1 ? int(g.range(129, 300)) : int(g.range(1, 50));
        const int sf = random_scale(g);
        std::vector<Data> x(static_cast<size_t>(len));
        for (auto& v : x)
            v = random_sample<Data>(g);
        std::vector<Data> want(static_cast<size_t>(len));
        const int mode = int(g.range(0, 3));
        if (mode == 3) {
            for (int i = 0; i < len; ++i) {
                Data y;
                ASSERT_EQ(K::one(x[size_t(i)], &y, st, sf), StatusOk);
                ASSERT_TRUE(same(y, K::out(model.step(to_model<Model>(x[size_t(i)])), sf)))
                    << "one " << c << " " << i;
            }
            continue;
        }
        model.call(
            len, [&](int i) { return to_model<Model>(x[size_t(i)]); },
            [&](int i, Model y) { want[size_t(i)] = K::out(y, sf); });
        tt::Guarded<Data> out(static_cast<size_t>(len), size_t(g.range(0, 15)));
        if (mode == 2) {
            std::memcpy(out.data(), x.data(), size_t(len) * sizeof(Data));
            ASSERT_EQ(K::run_i(out.data(), len, st, sf), StatusOk);
        } else {
            ASSERT_EQ(K::run(x.data(), out.data(), len, st, sf), StatusOk);
        }
        ASSERT_EQ(std::memcmp(out.data(), want.data(), size_t(len) * sizeof(Data)), 0)
            << "call " << c << " len " << len << " sf " << sf;
        ASSERT_TRUE(out.borders_intact());
    }
}

template <class K> std::vector<typename K::Model> model_taps(const std::vector<typename K::TapIn>& t)
{
    std::vector<typename K::Model> m(t.size());
    for (size_t i = 0; i < t.size(); ++i)
        m[i] = K::tap(t[i]);
    return m;
}

template <class K> struct IRec {
    std::vector<Tav8u> mem;
    typename K::R* st = nullptr;
    IRec(const std::vector<typename K::TapIn>& taps, int n, bool bq, const typename K::Dly* dly)
    {
        int size = 0;
        EXPECT_EQ((bq ? K::size_bq : K::size)(n, &size), StatusOk);
        mem.assign(static_cast<size_t>(size), 0);
        EXPECT_EQ((bq ? K::init_bq : K::init)(&st, taps.data(), n, dly, mem.data()), StatusOk);
    }
};

TYPED_TEST(IirInt, ArbitraryOrderMatchesTheModelBitForBit)
{
    using K = TypeParam;
    using Model = typename K::Model;
    using DlyE = typename K::Dly;
    tt::Rng g(1101);
    for (int n = 1; n <= 9; ++n) {
        auto taps = int_kind_taps<K>(g, arb_taps(g, n), n, false);
        auto dly0 = kind_data<DlyE>(g, n, 100.0);
        IRec<K> rec(taps, n, false, dly0.data());
        auto mt = model_taps<K>(taps);
        Arb<Model> model(mt.data(), n);
        for (int i = 0; i < n; ++i)
            model.d[size_t(i)] = to_model<Model>(dly0[size_t(i)]);
        int_stream<K>(rec.st, model, g, 10);
        std::vector<DlyE> d(static_cast<size_t>(n));
        ASSERT_EQ(K::get_dly(rec.st, d.data()), StatusOk);
        for (int i = 0; i < n; ++i)
            ASSERT_TRUE(same(to_model<Model>(d[size_t(i)]), model.d[size_t(i)]));
    }
}

TYPED_TEST(IirInt, BiquadCascadeMatchesTheModelBitForBit)
{
    using K = TypeParam;
    using Model = typename K::Model;
    tt::Rng g(1202);
    for (int m : {1, 2, 3, 4, 5, 9}) {
        auto taps = int_kind_taps<K>(g, bq_taps(g, m), 2, true);
        IRec<K> rec(taps, m, true, nullptr);
        auto mt = model_taps<K>(taps);
        Bq<Model> model(mt.data(), m);
        int_stream<K>(rec.st, model, g, 10);
        // New taps in mid-stream keep the delay.
        auto taps2 = int_kind_taps<K>(g, bq_taps(g, m), 2, true);
        ASSERT_EQ(K::set_taps(taps2.data(), rec.st), StatusOk);
        auto mt2 = model_taps<K>(taps2);
        Bq<Model> model2(mt2.data(), m);
        model2.d = model.d;
        int_stream<K>(rec.st, model2, g, 4);
    }
}

TYPED_TEST(IirInt, ChecksInOrder)
{
    using K = TypeParam;
    using Data = typename K::Data;
    tt::Rng g(1303);
    auto taps = int_kind_taps<K>(g, arb_taps(g, 2), 2, false);
    IRec<K> rec(taps, 2, false, nullptr);
    std::vector<Data> x(4);
    tt::Guarded<Data> out(4);
    EXPECT_EQ(K::run(x.data(), out.data(), 0, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(K::run(nullptr, out.data(), 4, rec.st, 0), ErrNullPtr);
    EXPECT_EQ(K::run(x.data(), nullptr, 4, rec.st, 0), ErrNullPtr);
    EXPECT_EQ(K::run(x.data(), out.data(), 0, rec.st, 0), ErrSize);
    EXPECT_EQ(K::run_i(nullptr, 4, rec.st, 0), ErrNullPtr);
    EXPECT_EQ(K::run_i(out.data(), -5, rec.st, 0), ErrSize);
    EXPECT_EQ(K::one(x[0], nullptr, rec.st, 0), ErrNullPtr);
    EXPECT_EQ(K::one(x[0], out.data(), nullptr, 0), ErrNullPtr);
    std::vector<Tav8u> foreign(256, 0);
    auto* bad = reinterpret_cast<typename K::R*>(foreign.data());
    EXPECT_EQ(K::run(x.data(), out.data(), 4, bad, 0), ErrContextMismatch);
    EXPECT_EQ(K::run_i(out.data(), 4, bad, 0), ErrContextMismatch);
    EXPECT_EQ(K::one(x[0], out.data(), bad, 0), ErrContextMismatch);
    const int32_t arb32f = 0x49493031; // "II01"
    std::memcpy(foreign.data(), &arb32f, 4);
    EXPECT_EQ(K::run(x.data(), out.data(), 4, bad, 0), ErrContextMismatch);
    EXPECT_TRUE(out.untouched());
    EXPECT_EQ(K::free_(rec.st), StatusOk); // an Init record: nothing to release
}

// ---- the output rule on a pass-through filter (order 1, b0 = 1, a1 = 0) --------------

TEST(IirIntRule, ScaleLimitAndTiesToEven)
{
    const float t32[4] = {1.0f, 0.0f, 1.0f, 0.0f};
    std::vector<Tav8u> mem(512);
    IIRState32f_16s* st = nullptr;
    ASSERT_EQ(tavsIIRInit32f_16s(&st, t32, 1, nullptr, mem.data()), StatusOk);
    auto y16 = [&](Tav16s x, int sf) {
        Tav16s y = 0;
        EXPECT_EQ(tavsIIROne32f_16s_Sfs(x, &y, st, sf), StatusOk);
        return int(y);
    };
    EXPECT_EQ(y16(3, 1), 2);   // 1.5 to even
    EXPECT_EQ(y16(5, 1), 2);   // 2.5 to even
    EXPECT_EQ(y16(7, 1), 4);   // 3.5 to even
    EXPECT_EQ(y16(-3, 1), -2); // -1.5 to even
    EXPECT_EQ(y16(-5, 1), -2);
    EXPECT_EQ(y16(5, 0), 5);
    EXPECT_EQ(y16(20000, -1), 32767); // limited
    EXPECT_EQ(y16(-20000, -1), -32768);
    EXPECT_EQ(y16(3, 129), 2);         // only the low seven bits count
    EXPECT_EQ(y16(12345, 128), 12345); // 128 is 0
    EXPECT_EQ(y16(1, -64), 32767);     // -64: times 2^64
    EXPECT_EQ(y16(1, 64), 32767);      // 64 is read as -64 too
    EXPECT_EQ(y16(-32768, 63), 0);     // 2^-63

    const double t64[4] = {1.0, 0.0, 1.0, 0.0};
    IIRState64f_32s* s32 = nullptr;
    ASSERT_EQ(tavsIIRInit64f_32s(&s32, t64, 1, nullptr, mem.data()), StatusOk);
    auto y32 = [&](Tav32s x, int sf) {
        Tav32s y = 0;
        EXPECT_EQ(tavsIIROne64f_32s_Sfs(x, &y, s32, sf), StatusOk);
        return y;
    };
    EXPECT_EQ(y32(INT32_MAX, -1), INT32_MAX);
    EXPECT_EQ(y32(INT32_MIN, -1), INT32_MIN);
    EXPECT_EQ(y32(INT32_MAX, 0), INT32_MAX);
    EXPECT_EQ(y32(5, 1), 2);
    EXPECT_EQ(y32(-7, 1), -4);
    EXPECT_EQ(y32(1 << 20, 21), 0); // 0.5 to even
    EXPECT_EQ(y32(3 << 19, 20), 2); // 1.5 to even
    EXPECT_EQ(y32(1, 64), 0);       // the 64f scale is the whole count
    EXPECT_EQ(y32(1, -40), INT32_MAX);
    EXPECT_EQ(y32(-1, INT_MIN), INT32_MIN);
    EXPECT_EQ(y32(1, INT_MAX), 0);
}

// ---- direct form I over 32s data ----------------------------------------------------

// The model: each section over the block, its output rounded and limited to
// 32s for the next section and for its own history; the last section's
// output scaled before rounding.
struct Df1i {
    int m;
    std::vector<double> c;
    std::vector<Tav32s> h;
    Df1i(const double* taps, int sections)
        : m(sections), c(df1_taps(taps, sections)), h(4 * size_t(sections), 0)
    {
    }
    void call(const Tav32s* src, Tav32s* dst, int len, int sf)
    {
        std::vector<Tav32s> cur(src, src + len);
        for (int k = 0; k < m; ++k) {
            const double* t = &c[5 * size_t(k)];
            Tav32s* s = &h[4 * size_t(k)];
            for (int i = 0; i < len; ++i) {
                const Tav32s x = cur[size_t(i)];
                const double y = t[0] * x + t[1] * s[1] + t[2] * s[0] - t[3] * s[3] - t[4] * s[2];
                s[0] = s[1], s[1] = x, s[2] = s[3], s[3] = to32(y);
                cur[size_t(i)] = k == m - 1 ? to32(y * factor64(sf)) : s[3];
            }
        }
        std::memcpy(dst, cur.data(), size_t(len) * 4);
    }
};

TEST(IirDf1_32s, MatchesTheModel)
{
    tt::Rng g(1404);
    for (int m = 1; m <= 4; ++m) {
        auto taps = bq_taps(g, m);
        for (int k = 1; k < m; k += 2) { // some sections with a0 exactly 1, one with b0 = 0
            const double a0 = taps[size_t(6 * k + 3)];
            for (int j = 0; j < 6; ++j)
                taps[size_t(6 * k + j)] /= a0;
            taps[size_t(6 * k)] = 0.0;
        }
        std::vector<Tav32s> d0(4 * size_t(m));
        for (auto& v : d0)
            v = Tav32s(g.range(-1000, 1000));
        int size = 0;
        ASSERT_EQ(tavsIIRGetStateSize64f_BiQuad_DF1_32s(m, &size), StatusOk);
        std::vector<Tav8u> mem(static_cast<size_t>(size) + 17);
        IIRState64f_32s* st = nullptr;
        ASSERT_EQ(tavsIIRInit64f_BiQuad_DF1_32s(&st, taps.data(), m, d0.data(), mem.data() + 17), StatusOk);
        Df1i model(taps.data(), m);
        model.h = d0;
        for (int c = 0; c < 12; ++c) {
            const int len = int(g.range(1, 40));
            const int sf = int(g.range(-2, 3));
            std::vector<Tav32s> x(static_cast<size_t>(len)), want(static_cast<size_t>(len)),
                got(static_cast<size_t>(len));
            for (auto& v : x)
                v = g.next() % 4 ? Tav32s(g.range(-100000, 100000)) : g.element<Tav32s>();
            model.call(x.data(), want.data(), len, sf);
            if (c % 3 == 0) {
                ASSERT_EQ(tavsIIR64f_32s_Sfs(x.data(), got.data(), len, st, sf), StatusOk);
            } else if (c % 3 == 1) {
                got = x;
                ASSERT_EQ(tavsIIR64f_32s_ISfs(got.data(), len, st, sf), StatusOk);
            } else {
                for (int i = 0; i < len; ++i)
                    ASSERT_EQ(tavsIIROne64f_32s_Sfs(x[size_t(i)], &got[size_t(i)], st, sf), StatusOk);
            }
            ASSERT_EQ(got, want) << m << " " << c;
        }
        // The 32s history moves as plain copies, through the DF1 calls only.
        std::vector<Tav32s> d(4 * size_t(m));
        ASSERT_EQ(tavsIIRGetDlyLine64f_DF1_32s(st, d.data()), StatusOk);
        EXPECT_EQ(d, model.h);
        std::vector<double> dd(4 * size_t(m));
        EXPECT_EQ(tavsIIRGetDlyLine64f_32s(st, dd.data()), ErrContextMismatch);
        EXPECT_EQ(tavsIIRSetDlyLine64f_32s(st, dd.data()), ErrContextMismatch);
        for (auto& v : d)
            v = Tav32s(g.range(-5, 5));
        ASSERT_EQ(tavsIIRSetDlyLine64f_DF1_32s(st, d.data()), StatusOk);
        std::vector<Tav32s> back(d.size());
        ASSERT_EQ(tavsIIRGetDlyLine64f_DF1_32s(st, back.data()), StatusOk);
        EXPECT_EQ(back, d);
    }
}

} // namespace
