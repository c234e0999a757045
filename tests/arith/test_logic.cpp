// Bitwise And, Or, Xor, their constant forms and Not, on 8u, 16u, 32u.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "lane_check.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using lc::get;
using lc::put;

// ---- vector with vector: lengths 1..70, dst offsets 0..15 --------------------------

template <class T, class Call, class CallI, class Op> void binary_sweep(Call call, CallI callI, Op op)
{
    tt::Rng r(31 + sizeof(T));
    auto gen = [&]() { return r.element<T>(); };
    for (int len = 1; len <= 70; ++len)
        for (size_t off = 0; off < 16; ++off) {
            lc::RawVec a = lc::make_src<T>(size_t(len), (off * 3 + 1) % 16, gen);
            lc::RawVec b = lc::make_src<T>(size_t(len), (off * 7 + 2) % 16, gen);
            tt::Guarded<T> g(size_t(len), off);
            ASSERT_EQ(call(a.as<T>(), b.as<T>(), g.data(), len), StatusOk);
            for (size_t i = 0; i < size_t(len); ++i)
                ASSERT_EQ(get(g.data(), i), T(op(get(a.as<T>(), i), get(b.as<T>(), i)))) << len << " " << off;
            ASSERT_TRUE(g.borders_intact());
            // In place: srcDst = src op srcDst.
            tt::Guarded<T> h(size_t(len), off);
            std::memcpy(h.data(), b.as<T>(), size_t(len) * sizeof(T));
            ASSERT_EQ(callI(a.as<T>(), h.data(), len), StatusOk);
            ASSERT_EQ(std::memcmp(h.data(), g.data(), size_t(len) * sizeof(T)), 0);
            ASSERT_TRUE(h.borders_intact());
        }
    // Errors: every pointer, then len; nothing written.
    T s[4] = {};
    tt::Guarded<T> g(4);
    EXPECT_EQ(call(nullptr, s, g.data(), 4), ErrNullPtr);
    EXPECT_EQ(call(s, nullptr, g.data(), 4), ErrNullPtr);
    EXPECT_EQ(call(s, s, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(call(nullptr, nullptr, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(call(s, s, g.data(), 0), ErrSize);
    EXPECT_EQ(call(s, s, g.data(), -1), ErrSize);
    EXPECT_EQ(callI(nullptr, g.data(), 4), ErrNullPtr);
    EXPECT_EQ(callI(s, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(callI(s, g.data(), 0), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(Logic, VectorForms)
{
    auto and_ = [](auto a, auto b) { return a & b; };
    auto or_ = [](auto a, auto b) { return a | b; };
    auto xor_ = [](auto a, auto b) { return a ^ b; };
    binary_sweep<Tav8u>(tavsAnd_8u, tavsAnd_8u_I, and_);
    binary_sweep<Tav16u>(tavsAnd_16u, tavsAnd_16u_I, and_);
    binary_sweep<Tav32u>(tavsAnd_32u, tavsAnd_32u_I, and_);
    binary_sweep<Tav8u>(tavsOr_8u, tavsOr_8u_I, or_);
    binary_sweep<Tav16u>(tavsOr_16u, tavsOr_16u_I, or_);
    binary_sweep<Tav32u>(tavsOr_32u, tavsOr_32u_I, or_);
    binary_sweep<Tav8u>(tavsXor_8u, tavsXor_8u_I, xor_);
    binary_sweep<Tav16u>(tavsXor_16u, tavsXor_16u_I, xor_);
    binary_sweep<Tav32u>(tavsXor_32u, tavsXor_32u_I, xor_);
}

// ---- vector with a constant ----------------------------------------------------------

template <class T, class Call, class CallI, class Op> void constant_sweep(Call call, CallI callI, Op op)
{
    tt::Rng r(41 + sizeof(T));
    auto gen = [&]() { return r.element<T>(); };
    int k = 0;
    for (T v : {T(r.next() | 1), T(~T(0)), T(0x5A), T(1), T(T(1) << (sizeof(T) * 8 - 1))}) {
        lc::sweep<T>(gen, [&](const T* s, T* d, int n) { return call(s, v, d, n); },
                     [&](T* p, int n) { return callI(v, p, n); }, [&](T x) { return T(op(x, v)); },
                     k++ < 2 ? lc::kFull : lc::kLight);
        // Non-zero constants check pointers, then len.
        T s[2] = {};
        tt::Guarded<T> g(2);
        EXPECT_EQ(call(nullptr, v, g.data(), 2), ErrNullPtr);
        EXPECT_EQ(call(s, v, nullptr, 2), ErrNullPtr);
        EXPECT_EQ(call(nullptr, v, nullptr, 0), ErrNullPtr);
        EXPECT_EQ(call(s, v, g.data(), 0), ErrSize);
        EXPECT_EQ(callI(v, nullptr, 2), ErrNullPtr);
        EXPECT_EQ(callI(v, g.data(), -2), ErrSize);
        EXPECT_TRUE(g.untouched());
    }
}

TEST(Logic, ConstantForms)
{
    auto and_ = [](auto a, auto b) { return a & b; };
    auto or_ = [](auto a, auto b) { return a | b; };
    auto xor_ = [](auto a, auto b) { return a ^ b; };
    constant_sweep<Tav8u>(tavsAndC_8u, tavsAndC_8u_I, and_);
    constant_sweep<Tav16u>(tavsAndC_16u, tavsAndC_16u_I, and_);
    constant_sweep<Tav32u>(tavsAndC_32u, tavsAndC_32u_I, and_);
    constant_sweep<Tav8u>(tavsOrC_8u, tavsOrC_8u_I, or_);
    constant_sweep<Tav16u>(tavsOrC_16u, tavsOrC_16u_I, or_);
    constant_sweep<Tav32u>(tavsOrC_32u, tavsOrC_32u_I, or_);
    constant_sweep<Tav8u>(tavsXorC_8u, tavsXorC_8u_I, xor_);
    constant_sweep<Tav16u>(tavsXorC_16u, tavsXorC_16u_I, xor_);
    constant_sweep<Tav32u>(tavsXorC_32u, tavsXorC_32u_I, xor_);
}

// AndC by 0 is the zero fill: src is tested first, then the zero function
// tests dst and len.
template <class T, class Call, class CallI> void and_zero(Call call, CallI callI)
{
    T s[5] = {T(1), T(2), T(3), T(~T(0)), T(5)};
    tt::Guarded<T> g(5, 3);
    EXPECT_EQ(call(nullptr, T(0), g.data(), 5), ErrNullPtr);
    EXPECT_EQ(call(nullptr, T(0), nullptr, 0), ErrNullPtr);
    EXPECT_EQ(call(s, T(0), nullptr, 5), ErrNullPtr);
    EXPECT_EQ(call(s, T(0), g.data(), 0), ErrSize);
    EXPECT_EQ(call(s, T(0), g.data(), -1), ErrSize);
    EXPECT_EQ(callI(T(0), nullptr, 5), ErrNullPtr);
    EXPECT_EQ(callI(T(0), g.data(), 0), ErrSize);
    EXPECT_TRUE(g.untouched());
    ASSERT_EQ(call(s, T(0), g.data(), 5), StatusOk);
    for (size_t i = 0; i < 5; ++i) EXPECT_EQ(get(g.data(), i), T(0));
    EXPECT_TRUE(g.borders_intact());
    std::memcpy(g.data(), s, sizeof s);
    ASSERT_EQ(callI(T(0), g.data(), 5), StatusOk);
    for (size_t i = 0; i < 5; ++i) EXPECT_EQ(get(g.data(), i), T(0));
}

TEST(Logic, AndByZeroIsTheZeroFill)
{
    and_zero<Tav8u>(tavsAndC_8u, tavsAndC_8u_I);
    and_zero<Tav16u>(tavsAndC_16u, tavsAndC_16u_I);
    and_zero<Tav32u>(tavsAndC_32u, tavsAndC_32u_I);
}

// OrC and XorC by 0 are the copy, with the copy's checks.
template <class T, class Call, class CallI> void copy_zero(Call call, CallI callI)
{
    T s[5] = {T(1), T(2), T(3), T(~T(0)), T(5)};
    tt::Guarded<T> g(5, 1);
    EXPECT_EQ(call(nullptr, T(0), g.data(), 5), ErrNullPtr);
    EXPECT_EQ(call(s, T(0), nullptr, 5), ErrNullPtr);
    EXPECT_EQ(call(nullptr, T(0), nullptr, 0), ErrNullPtr);
    EXPECT_EQ(call(s, T(0), g.data(), 0), ErrSize);
    EXPECT_EQ(callI(T(0), nullptr, 3), ErrNullPtr);
    EXPECT_EQ(callI(T(0), g.data(), 0), ErrSize);
    EXPECT_TRUE(g.untouched());
    ASSERT_EQ(call(s, T(0), g.data(), 5), StatusOk);
    EXPECT_EQ(std::memcmp(g.data(), s, sizeof s), 0);
    EXPECT_TRUE(g.borders_intact());
    ASSERT_EQ(callI(T(0), g.data(), 5), StatusOk);
    EXPECT_EQ(std::memcmp(g.data(), s, sizeof s), 0);
}

TEST(Logic, OrXorByZeroIsTheCopy)
{
    copy_zero<Tav8u>(tavsOrC_8u, tavsOrC_8u_I);
    copy_zero<Tav16u>(tavsOrC_16u, tavsOrC_16u_I);
    copy_zero<Tav32u>(tavsOrC_32u, tavsOrC_32u_I);
    copy_zero<Tav8u>(tavsXorC_8u, tavsXorC_8u_I);
    copy_zero<Tav16u>(tavsXorC_16u, tavsXorC_16u_I);
    copy_zero<Tav32u>(tavsXorC_32u, tavsXorC_32u_I);
}

TEST(Logic, AndCZeroEdgeCases)
{
    Tav8u s[3] = {1, 2, 3}, d[3] = {9, 9, 9};
    EXPECT_EQ(tavsAndC_8u(nullptr, 0, d, 3), ErrNullPtr);
    EXPECT_EQ(tavsAndC_8u(s, 0, d, 0), ErrSize);
    EXPECT_EQ(d[0], 9);
}

// ---- not -------------------------------------------------------------------------------

template <class T, class Call, class CallI> void not_sweep(Call call, CallI callI)
{
    tt::Rng r(51 + sizeof(T));
    auto gen = [&]() { return r.element<T>(); };
    lc::sweep<T>(gen, call, callI, [](T x) { return T(~x); });
    T s[2] = {};
    tt::Guarded<T> g(2);
    EXPECT_EQ(call(nullptr, g.data(), 2), ErrNullPtr);
    EXPECT_EQ(call(s, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(call(s, g.data(), 0), ErrSize);
    EXPECT_EQ(callI(nullptr, 2), ErrNullPtr);
    EXPECT_EQ(callI(g.data(), 0), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(Logic, Not)
{
    not_sweep<Tav8u>(tavsNot_8u, tavsNot_8u_I);
    not_sweep<Tav16u>(tavsNot_16u, tavsNot_16u_I);
    not_sweep<Tav32u>(tavsNot_32u, tavsNot_32u_I);
}

// ---- overlapping operands: one ascending element pass ----------------------------------

// Runs the plain ascending loop on a byte buffer with the same layout.
template <class T, class Op>
void ascending(std::vector<unsigned char>& buf, size_t aOff, size_t bOff, size_t dOff, int len, Op op)
{
    for (size_t i = 0; i < size_t(len); ++i) {
        T a, b;
        std::memcpy(&a, buf.data() + aOff + i * sizeof(T), sizeof(T));
        std::memcpy(&b, buf.data() + bOff + i * sizeof(T), sizeof(T));
        T d = T(op(a, b));
        std::memcpy(buf.data() + dOff + i * sizeof(T), &d, sizeof(T));
    }
}

TEST(Logic, OverlapIsAnAscendingPass)
{
    tt::Rng r(61);
    for (int len : {7, 16, 33, 64, 70})
        for (size_t shift : {1u, 2u, 3u, 5u, 17u}) {
            // dst above src1 by a few bytes: results feed later elements.
            std::vector<unsigned char> buf(size_t(len) * 8 + 64), ref;
            for (auto& b : buf) b = static_cast<unsigned char>(r.next());
            ref = buf;
            const size_t a = 0, b = size_t(len) * 4 + 32, d = a + shift;
            ascending<Tav8u>(ref, a, b, d, len, [](auto x, auto y) { return x & y; });
            ASSERT_EQ(tavsAnd_8u(buf.data() + a, buf.data() + b, buf.data() + d, len), StatusOk);
            ASSERT_EQ(buf, ref) << len << " " << shift;

            for (auto& v : buf) v = static_cast<unsigned char>(r.next());
            ref = buf;
            ascending<Tav32u>(ref, a, a, d, len / 4, [](auto x, auto) { return x ^ 0x80000001u; });
            ASSERT_EQ(tavsXorC_32u(reinterpret_cast<const Tav32u*>(buf.data() + a), 0x80000001u,
                                   reinterpret_cast<Tav32u*>(buf.data() + d), len / 4),
                      StatusOk);
            ASSERT_EQ(buf, ref) << len << " " << shift;

            // dst below the source.
            for (auto& v : buf) v = static_cast<unsigned char>(r.next());
            ref = buf;
            ascending<Tav16u>(ref, shift * 2, shift * 2, 0, len, [](auto x, auto) { return ~x; });
            ASSERT_EQ(tavsNot_16u(reinterpret_cast<const Tav16u*>(buf.data() + shift * 2),
                                  reinterpret_cast<Tav16u*>(buf.data()), len),
                      StatusOk);
            ASSERT_EQ(buf, ref) << len << " " << shift;
        }
}

} // namespace
