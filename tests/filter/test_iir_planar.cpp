// Planar filtering: each channel equals the single-channel call on a twin
// record; the checks, the two channel-count statuses, and a stop at the
// first channel that cannot run with the channels before it done.
#include <gtest/gtest.h>

#include <vector>

#include "iir_ref.h"

namespace {

using namespace iirt;

// A 32f record of the given layout ("II01", "II02" or "II29") and its twin.
struct Pair32f {
    std::vector<Tav8u> m1 = std::vector<Tav8u>(4096), m2 = std::vector<Tav8u>(4096);
    IIRState_32f *a = nullptr, *b = nullptr;
    Pair32f(tt::Rng& g, int kind)
    {
        if (kind == 0) {
            auto t = cast_vec<float>(arb_taps(g, 3));
            EXPECT_EQ(tavsIIRInit_32f(&a, t.data(), 3, nullptr, m1.data()), StatusOk);
            EXPECT_EQ(tavsIIRInit_32f(&b, t.data(), 3, nullptr, m2.data()), StatusOk);
        } else {
            auto t = cast_vec<float>(bq_taps(g, 2));
            auto init = kind == 1 ? tavsIIRInit_BiQuad_32f : tavsIIRInit_BiQuad_DF1_32f;
            EXPECT_EQ(init(&a, t.data(), 2, nullptr, m1.data()), StatusOk);
            EXPECT_EQ(init(&b, t.data(), 2, nullptr, m2.data()), StatusOk);
        }
    }
};

TEST(IirPlanar32f, EachChannelAsTheSingleCall)
{
    tt::Rng g(4101);
    for (int kind : {1, 2})
        for (int ch = 1; ch <= 4; ++ch) {
            std::vector<Pair32f> recs;
            for (int c = 0; c < ch; ++c)
                recs.emplace_back(g, kind);
            for (int call = 0; call < 3; ++call) {
                const int len = int(g.range(1, 60));
                std::vector<std::vector<float>> x(static_cast<size_t>(ch)), y(static_cast<size_t>(ch)),
                    want(static_cast<size_t>(ch));
                std::vector<const float*> src;
                std::vector<float*> dst;
                std::vector<IIRState_32f*> st;
                for (int c = 0; c < ch; ++c) {
                    x[size_t(c)] = random_f(g, len);
                    y[size_t(c)].assign(size_t(len), 0.0f);
                    want[size_t(c)].assign(size_t(len), 0.0f);
                    ASSERT_EQ(
                        tavsIIR_32f(x[size_t(c)].data(), want[size_t(c)].data(), len, recs[size_t(c)].b),
                        StatusOk);
                    src.push_back(x[size_t(c)].data());
                    dst.push_back(y[size_t(c)].data());
                    st.push_back(recs[size_t(c)].a);
                }
                if (call == 1) { // in place
                    for (int c = 0; c < ch; ++c) {
                        y[size_t(c)] = x[size_t(c)];
                        dst[size_t(c)] = y[size_t(c)].data();
                    }
                    ASSERT_EQ(tavsIIR_32f_IP(dst.data(), len, ch, st.data()), StatusOk);
                } else {
                    ASSERT_EQ(tavsIIR_32f_P(src.data(), dst.data(), len, ch, st.data()), StatusOk);
                }
                for (int c = 0; c < ch; ++c)
                    ASSERT_EQ(y[size_t(c)], want[size_t(c)]) << kind << " " << ch << " " << c;
            }
        }
}

TEST(IirPlanar32f, ChecksAndStops)
{
    tt::Rng g(4202);
    Pair32f p0(g, 1), p1(g, 1), p2(g, 2), arb(g, 0);
    std::vector<float> x0 = random_f(g, 8), x1 = random_f(g, 8), x2 = random_f(g, 8);
    std::vector<float> y0(8, 7.0f), y1(8, 7.0f), y2(8, 7.0f);
    const float* src[3] = {x0.data(), x1.data(), x2.data()};
    float* dst[3] = {y0.data(), y1.data(), y2.data()};
    IIRState_32f* st[3] = {p0.a, p1.a, p2.a};
    EXPECT_EQ(tavsIIR_32f_P(nullptr, dst, 0, 0, st), ErrNullPtr);
    EXPECT_EQ(tavsIIR_32f_P(src, nullptr, 8, 3, st), ErrNullPtr);
    EXPECT_EQ(tavsIIR_32f_P(src, dst, 8, 3, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsIIR_32f_P(src, dst, 0, 0, st), ErrSize);
    EXPECT_EQ(tavsIIR_32f_P(src, dst, 8, 0, st), ErrChannelCount);
    EXPECT_EQ(tavsIIR_32f_P(src, dst, 8, -2, st), ErrChannelCount);
    EXPECT_EQ(tavsIIR_32f_IP(nullptr, 8, 3, st), ErrNullPtr);
    EXPECT_EQ(tavsIIR_32f_IP(dst, 0, 3, st), ErrSize);
    EXPECT_EQ(tavsIIR_32f_IP(dst, 8, 0, st), ErrChannelCount);
    IIRState_32f* firstNull[3] = {nullptr, p1.a, p2.a};
    EXPECT_EQ(tavsIIR_32f_P(src, dst, 8, 3, firstNull), ErrNullPtr);
    // The arbitrary-order record is not taken, even alone.
    IIRState_32f* arbFirst[1] = {arb.a};
    EXPECT_EQ(tavsIIR_32f_P(src, dst, 8, 1, arbFirst), ErrContextMismatch);
    for (auto* v : {&y0, &y1, &y2})
        EXPECT_EQ(*v, std::vector<float>(8, 7.0f));

    // Channel 2 is a direct form I record behind two biquad ones: the first
    // two channels run, then the call stops.
    std::vector<float> w0(8), w1(8);
    ASSERT_EQ(tavsIIR_32f(x0.data(), w0.data(), 8, p0.b), StatusOk);
    ASSERT_EQ(tavsIIR_32f(x1.data(), w1.data(), 8, p1.b), StatusOk);
    EXPECT_EQ(tavsIIR_32f_P(src, dst, 8, 3, st), ErrContextMismatch);
    EXPECT_EQ(y0, w0);
    EXPECT_EQ(y1, w1);
    EXPECT_EQ(y2, std::vector<float>(8, 7.0f));
    // A null channel pointer stops the same way.
    const float* srcNull[2] = {x0.data(), nullptr};
    IIRState_32f* two[2] = {p0.a, p1.a};
    std::fill(y0.begin(), y0.end(), 7.0f);
    std::fill(y1.begin(), y1.end(), 7.0f);
    ASSERT_EQ(tavsIIR_32f(x0.data(), w0.data(), 8, p0.b), StatusOk);
    EXPECT_EQ(tavsIIR_32f_P(srcNull, dst, 8, 2, two), ErrNullPtr);
    EXPECT_EQ(y0, w0);
    EXPECT_EQ(y1, std::vector<float>(8, 7.0f));
}

// 64f taps over 32s data: "II21", "II22" and "II30" records, one scale per
// channel.
struct Rec64 {
    std::vector<Tav8u> m1 = std::vector<Tav8u>(4096), m2 = std::vector<Tav8u>(4096);
    IIRState64f_32s *a = nullptr, *b = nullptr;
    Rec64(tt::Rng& g, int kind)
    {
        auto t = kind == 0 ? arb_taps(g, 4) : bq_taps(g, 2);
        if (kind == 0) {
            EXPECT_EQ(tavsIIRInit64f_32s(&a, t.data(), 4, nullptr, m1.data()), StatusOk);
            EXPECT_EQ(tavsIIRInit64f_32s(&b, t.data(), 4, nullptr, m2.data()), StatusOk);
        } else {
            if (kind == 1) {
                EXPECT_EQ(tavsIIRInit64f_BiQuad_32s(&a, t.data(), 2, nullptr, m1.data()), StatusOk);
                EXPECT_EQ(tavsIIRInit64f_BiQuad_32s(&b, t.data(), 2, nullptr, m2.data()), StatusOk);
            } else {
                EXPECT_EQ(tavsIIRInit64f_BiQuad_DF1_32s(&a, t.data(), 2, nullptr, m1.data()), StatusOk);
                EXPECT_EQ(tavsIIRInit64f_BiQuad_DF1_32s(&b, t.data(), 2, nullptr, m2.data()), StatusOk);
            }
        }
    }
};

TEST(IirPlanar64f32s, EachChannelAsTheSingleCall)
{
    tt::Rng g(4303);
    for (int kind : {0, 1, 2})
        for (int ch = 1; ch <= 3; ++ch) {
            std::vector<Rec64> recs;
            for (int c = 0; c < ch; ++c)
                recs.emplace_back(g, kind);
            for (int call = 0; call < 3; ++call) {
                const int len = int(g.range(1, 40));
                std::vector<std::vector<Tav32s>> x(static_cast<size_t>(ch)), y(static_cast<size_t>(ch)),
                    want(static_cast<size_t>(ch));
                std::vector<const Tav32s*> src;
                std::vector<Tav32s*> dst;
                std::vector<IIRState64f_32s*> st;
                std::vector<int> sf;
                for (int c = 0; c < ch; ++c) {
                    for (int i = 0; i < len; ++i)
                        x[size_t(c)].push_back(g.element<Tav32s>());
                    y[size_t(c)].assign(size_t(len), 0);
                    want[size_t(c)].assign(size_t(len), 0);
                    sf.push_back(int(g.range(-2, 4)));
                    ASSERT_EQ(tavsIIR64f_32s_Sfs(x[size_t(c)].data(), want[size_t(c)].data(), len,
                                                 recs[size_t(c)].b, sf.back()),
                              StatusOk);
                    src.push_back(x[size_t(c)].data());
                    dst.push_back(y[size_t(c)].data());
                    st.push_back(recs[size_t(c)].a);
                }
                if (call == 2) {
                    for (int c = 0; c < ch; ++c) {
                        y[size_t(c)] = x[size_t(c)];
                        dst[size_t(c)] = y[size_t(c)].data();
                    }
                    ASSERT_EQ(tavsIIR64f_32s_IPSfs(dst.data(), len, ch, st.data(), sf.data()), StatusOk);
                } else {
                    ASSERT_EQ(tavsIIR64f_32s_PSfs(src.data(), dst.data(), len, ch, st.data(), sf.data()),
                              StatusOk);
                }
                for (int c = 0; c < ch; ++c)
                    ASSERT_EQ(y[size_t(c)], want[size_t(c)]) << kind << " " << ch << " " << c;
            }
        }
}

TEST(IirPlanar64f32s, ChecksAndStops)
{
    tt::Rng g(4404);
    Rec64 r0(g, 0), r1(g, 1);
    std::vector<Tav32s> x(8, 1000), y0(8, 7), y1(8, 7);
    const Tav32s* src[2] = {x.data(), x.data()};
    Tav32s* dst[2] = {y0.data(), y1.data()};
    IIRState64f_32s* st[2] = {r0.a, r1.a};
    const int sf[2] = {0, 0};
    EXPECT_EQ(tavsIIR64f_32s_PSfs(nullptr, dst, 0, 0, st, sf), ErrNullPtr);
    EXPECT_EQ(tavsIIR64f_32s_PSfs(src, dst, 8, 2, st, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsIIR64f_32s_PSfs(src, dst, 0, 0, st, sf), ErrSize);
    EXPECT_EQ(tavsIIR64f_32s_PSfs(src, dst, 8, 0, st, sf), ErrChannelCountFixed);
    EXPECT_EQ(tavsIIR64f_32s_IPSfs(dst, 8, -1, st, sf), ErrChannelCountFixed);
    EXPECT_EQ(tavsIIR64f_32s_IPSfs(dst, 8, 2, st, nullptr), ErrNullPtr);
    IIRState64f_32s* firstNull[2] = {nullptr, r1.a};
    EXPECT_EQ(tavsIIR64f_32s_PSfs(src, dst, 8, 2, firstNull, sf), ErrNullPtr);
    std::vector<Tav8u> foreign(512, 0);
    const int32_t tag01 = 0x49493031;
    std::memcpy(foreign.data(), &tag01, 4);
    IIRState64f_32s* bad[1] = {reinterpret_cast<IIRState64f_32s*>(foreign.data())};
    EXPECT_EQ(tavsIIR64f_32s_PSfs(src, dst, 8, 1, bad, sf), ErrContextMismatch);
    EXPECT_EQ(y0, std::vector<Tav32s>(8, 7));
    // "II21" then "II22": the first channel runs, the second stops the call.
    std::vector<Tav32s> w0(8);
    ASSERT_EQ(tavsIIR64f_32s_Sfs(x.data(), w0.data(), 8, r0.b, 0), StatusOk);
    EXPECT_EQ(tavsIIR64f_32s_PSfs(src, dst, 8, 2, st, sf), ErrContextMismatch);
    EXPECT_EQ(y0, w0);
    EXPECT_EQ(y1, std::vector<Tav32s>(8, 7));
}

} // namespace
