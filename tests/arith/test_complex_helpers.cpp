// Conj, ConjFlip, Real, Imag, CplxToReal, RealToCplx.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <vector>

#include "lane_check.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using lc::get;
using lc::put;

template <class C> using P = decltype(C{}.re);

// Random complex elements; float parts include NaNs with distinct payloads.
template <class C> C random_c(tt::Rng& r)
{
    using T = P<C>;
    auto part = [&]() -> T {
        if constexpr (std::is_floating_point_v<T>) {
            if (r.next() % 5 == 0) {
                // Any bit pattern: NaNs of every payload, infinities, zeros.
                T v;
                uint64_t bits = r.next();
                std::memcpy(&v, &bits, sizeof v);
                return v;
            }
            return lc::special_float<T>(r, T(1));
        } else {
            return r.element<T>();
        }
    };
    return C{part(), part()};
}

// The conjugate, bit by bit: 16sc negates with saturation, float forms flip
// the top bit of the imaginary part.
template <class C> C ref_conj(C x)
{
    if constexpr (std::is_same_v<C, Tav16sc>) {
        int v = -int(x.im);
        return C{x.re, Tav16s(v > 32767 ? 32767 : v)};
    } else {
        using T = P<C>;
        unsigned char b[sizeof(T)];
        std::memcpy(b, &x.im, sizeof b);
        b[sizeof b - 1] ^= 0x80;
        T im;
        std::memcpy(&im, b, sizeof b);
        return C{x.re, im};
    }
}

template <class C, class Call, class CallI> void conj_sweep(Call call, CallI callI)
{
    tt::Rng r(91 + sizeof(C));
    lc::sweep_exact<C>([&]() { return random_c<C>(r); }, call, callI, [](C x) { return ref_conj(x); });
    C s[2] = {};
    tt::Guarded<C> g(2);
    EXPECT_EQ(call(nullptr, g.data(), 2), ErrNullPtr);
    EXPECT_EQ(call(s, nullptr, 2), ErrNullPtr);
    EXPECT_EQ(call(nullptr, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(call(s, g.data(), 0), ErrSize);
    EXPECT_EQ(callI(nullptr, 2), ErrNullPtr);
    EXPECT_EQ(callI(g.data(), -1), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(ComplexHelpers, Conj)
{
    conj_sweep<Tav16sc>(tavsConj_16sc, tavsConj_16sc_I);
    conj_sweep<Tav32fc>(tavsConj_32fc, tavsConj_32fc_I);
    conj_sweep<Tav64fc>(tavsConj_64fc, tavsConj_64fc_I);
}

TEST(ComplexHelpers, Conj16scSaturates)
{
    Tav16sc s[2] = {{1, -32768}, {-32768, 32767}}, d[2];
    ASSERT_EQ(tavsConj_16sc(s, d, 2), StatusOk);
    EXPECT_EQ(d[0].re, 1);
    EXPECT_EQ(d[0].im, 32767);
    EXPECT_EQ(d[1].re, -32768);
    EXPECT_EQ(d[1].im, -32767);
    ASSERT_EQ(tavsConjFlip_16sc(s, d, 2), StatusOk);
    EXPECT_EQ(d[1].im, 32767);
    EXPECT_EQ(d[0].im, -32767);
}

TEST(ComplexHelpers, ConjFloatFlipsTheSignBit)
{
    const uint32_t payload = 0x7fa12345u;
    Tav32fc s[1];
    s[0].re = 0.0f;
    std::memcpy(&s[0].im, &payload, 4);
    Tav32fc d[1];
    ASSERT_EQ(tavsConj_32fc(s, d, 1), StatusOk);
    uint32_t bits;
    std::memcpy(&bits, &d[0].im, 4);
    EXPECT_EQ(bits, payload ^ 0x80000000u);
    Tav64fc z[1] = {{1.0, 0.0}};
    ASSERT_EQ(tavsConj_64fc_I(z, 1), StatusOk);
    EXPECT_TRUE(std::signbit(z[0].im));
    EXPECT_EQ(z[0].im, 0.0);
}

template <class C, class Call> void flip_sweep(Call call)
{
    tt::Rng r(101 + sizeof(C));
    for (int len = 1; len <= 70; ++len)
        for (size_t off = 0; off < 16; off += 3) {
            lc::RawVec s = lc::make_src<C>(size_t(len), (off + 5) % 16, [&]() { return random_c<C>(r); });
            tt::Guarded<C> g(size_t(len), off);
            ASSERT_EQ(call(s.as<C>(), g.data(), len), StatusOk);
            for (size_t i = 0; i < size_t(len); ++i)
                ASSERT_TRUE(tt::same_bits(get(g.data(), size_t(len) - 1 - i), ref_conj(get(s.as<C>(), i))));
            ASSERT_TRUE(g.borders_intact());
        }
    C s[2] = {};
    tt::Guarded<C> g(2);
    EXPECT_EQ(call(nullptr, g.data(), 2), ErrNullPtr);
    EXPECT_EQ(call(s, nullptr, 2), ErrNullPtr);
    EXPECT_EQ(call(s, g.data(), 0), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(ComplexHelpers, ConjFlip)
{
    flip_sweep<Tav16sc>(tavsConjFlip_16sc);
    flip_sweep<Tav32fc>(tavsConjFlip_32fc);
    flip_sweep<Tav64fc>(tavsConjFlip_64fc);
}

// Real, Imag and CplxToReal against the parts of the source.
template <class C, class Re, class Im, class Both> void parts_sweep(Re re, Im im, Both both)
{
    using T = P<C>;
    tt::Rng r(111 + sizeof(C));
    for (int len = 1; len <= 70; ++len)
        for (size_t off = 0; off < 16; off += 3) {
            lc::RawVec s = lc::make_src<C>(size_t(len), (off * 7 + 1) % 16, [&]() { return random_c<C>(r); });
            tt::Guarded<T> a(size_t(len), off), b(size_t(len), (off + 4) % 16), c(size_t(len), off / 2);
            ASSERT_EQ(re(s.as<C>(), a.data(), len), StatusOk);
            ASSERT_EQ(im(s.as<C>(), b.data(), len), StatusOk);
            for (size_t i = 0; i < size_t(len); ++i) {
                C x = get(s.as<C>(), i);
                ASSERT_TRUE(tt::same_bits(get(a.data(), i), x.re));
                ASSERT_TRUE(tt::same_bits(get(b.data(), i), x.im));
            }
            tt::Guarded<T> d(size_t(len), (off + 9) % 16);
            ASSERT_EQ(both(s.as<C>(), c.data(), d.data(), len), StatusOk);
            ASSERT_EQ(std::memcmp(c.data(), a.data(), size_t(len) * sizeof(T)), 0);
            ASSERT_EQ(std::memcmp(d.data(), b.data(), size_t(len) * sizeof(T)), 0);
            ASSERT_TRUE(a.borders_intact() && b.borders_intact() && c.borders_intact() && d.borders_intact());
        }
    C s[2] = {};
    tt::Guarded<T> g(2), h(2);
    EXPECT_EQ(re(nullptr, g.data(), 2), ErrNullPtr);
    EXPECT_EQ(re(s, nullptr, 2), ErrNullPtr);
    EXPECT_EQ(re(s, g.data(), 0), ErrSize);
    EXPECT_EQ(im(nullptr, g.data(), 2), ErrNullPtr);
    EXPECT_EQ(im(s, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(im(s, g.data(), -1), ErrSize);
    EXPECT_EQ(both(nullptr, g.data(), h.data(), 2), ErrNullPtr);
    EXPECT_EQ(both(s, nullptr, h.data(), 2), ErrNullPtr);
    EXPECT_EQ(both(s, g.data(), nullptr, 2), ErrNullPtr);
    EXPECT_EQ(both(s, g.data(), h.data(), 0), ErrSize);
    EXPECT_TRUE(g.untouched() && h.untouched());
}

TEST(ComplexHelpers, RealImagCplxToReal)
{
    parts_sweep<Tav16sc>(tavsReal_16sc, tavsImag_16sc, tavsCplxToReal_16sc);
    parts_sweep<Tav32fc>(tavsReal_32fc, tavsImag_32fc, tavsCplxToReal_32fc);
    parts_sweep<Tav64fc>(tavsReal_64fc, tavsImag_64fc, tavsCplxToReal_64fc);
}

template <class C, class Call> void join_sweep(Call call)
{
    using T = P<C>;
    tt::Rng r(121 + sizeof(C));
    const T zero = T(0);
    for (int len = 1; len <= 70; ++len)
        for (size_t off = 0; off < 16; off += 3) {
            auto gen = [&]() { return random_c<C>(r).re; };
            lc::RawVec a = lc::make_src<T>(size_t(len), (off + 3) % 16, gen);
            lc::RawVec b = lc::make_src<T>(size_t(len), (off * 5) % 16, gen);
            for (int mode = 0; mode < 3; ++mode) {
                const T* re = mode == 2 ? nullptr : a.as<T>();
                const T* im = mode == 1 ? nullptr : b.as<T>();
                tt::Guarded<C> g(size_t(len), off);
                ASSERT_EQ(call(re, im, g.data(), len), StatusOk);
                for (size_t i = 0; i < size_t(len); ++i) {
                    C x = get(g.data(), i);
                    ASSERT_TRUE(tt::same_bits(x.re, re ? get(re, i) : zero));
                    ASSERT_TRUE(tt::same_bits(x.im, im ? get(im, i) : zero));
                }
                ASSERT_TRUE(g.borders_intact());
            }
        }
    T s[2] = {};
    tt::Guarded<C> g(2);
    EXPECT_EQ(call(s, s, nullptr, 2), ErrNullPtr);
    EXPECT_EQ(call(nullptr, nullptr, g.data(), 2), ErrNullPtr);
    EXPECT_EQ(call(s, s, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(call(s, s, g.data(), 0), ErrSize);
    EXPECT_EQ(call(nullptr, s, g.data(), -1), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(ComplexHelpers, RealToCplx)
{
    join_sweep<Tav16sc>(tavsRealToCplx_16s);
    join_sweep<Tav32fc>(tavsRealToCplx_32f);
    join_sweep<Tav64fc>(tavsRealToCplx_64f);
}

TEST(ComplexHelpers, RealToCplxNullImaginary)
{
    float re[2] = {1.5f, -2.0f};
    Tav32fc d[2];
    ASSERT_EQ(tavsRealToCplx_32f(re, nullptr, d, 2), StatusOk);
    EXPECT_EQ(d[0].re, 1.5f);
    EXPECT_TRUE(tt::same_bits(d[0].im, 0.0f));
    EXPECT_EQ(d[1].re, -2.0f);
    EXPECT_TRUE(tt::same_bits(d[1].im, 0.0f));
}

TEST(ComplexHelpers, OverlapIsAnAscendingPass)
{
    // dst one element above src: each conjugate is conjugated again by the
    // next step, as in a plain element loop.
    for (int len : {7, 8, 30, 69}) {
        std::vector<Tav32fc> buf(size_t(len) + 1), ref;
        for (size_t i = 0; i < buf.size(); ++i) buf[i] = {float(i), float(i) + 0.5f};
        ref = buf;
        for (size_t i = 0; i < size_t(len); ++i) ref[i + 1] = {ref[i].re, -ref[i].im};
        ASSERT_EQ(tavsConj_32fc(buf.data(), buf.data() + 1, len), StatusOk);
        for (size_t i = 0; i < buf.size(); ++i) {
            ASSERT_TRUE(tt::same_bits(buf[i].re, ref[i].re)) << len << " " << i;
            ASSERT_TRUE(tt::same_bits(buf[i].im, ref[i].im)) << len << " " << i;
        }
        std::vector<Tav16sc> w(size_t(len) + 2), wref;
        for (size_t i = 0; i < w.size(); ++i) w[i] = {Tav16s(i), Tav16s(i == 0 ? -32768 : int(i) * 3)};
        wref = w;
        for (size_t i = 0; i < size_t(len); ++i) wref[i + 2] = ref_conj(wref[i]);
        ASSERT_EQ(tavsConj_16sc(w.data(), w.data() + 2, len), StatusOk);
        for (size_t i = 0; i < w.size(); ++i) ASSERT_TRUE(tt::same_bits(w[i], wref[i])) << len << " " << i;
    }
}

} // namespace
