// Constant shifts: LShiftC and RShiftC on 8u, 16u, 16s, 32s.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <vector>

#include "lane_check.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using lc::get;

template <class T> constexpr int kBits = int(sizeof(T) * 8);

// Plain references: left shifts drop the top bits, unsigned right shifts
// bring in zeros, signed right shifts copy the sign; at or above the width
// that is 0 or the sign in every bit.
template <class T> T ref_left(T x, int s)
{
    if (s >= kBits<T>) return T(0);
    return T(uint64_t(uint64_t(x) & ((uint64_t(1) << kBits<T>) - 1)) << s);
}
template <class T> T ref_right(T x, int s)
{
    if constexpr (std::is_signed_v<T>) {
        int64_t v = x;
        if (s >= kBits<T>) return T(v < 0 ? -1 : 0);
        return T(v < 0 ? ~(~v >> s) : v >> s);
    } else {
        if (s >= kBits<T>) return T(0);
        return T(uint64_t(x) >> s);
    }
}

template <class T, class Call, class CallI, class Ref> void shift_sweep(Call call, CallI callI, Ref ref)
{
    tt::Rng r(71 + sizeof(T));
    auto gen = [&]() { return r.element<T>(); };
    std::vector<int> shifts;
    for (int s = 1; s < kBits<T>; ++s) shifts.push_back(s);
    for (int s : {kBits<T>, kBits<T> + 1, 100, INT_MAX}) shifts.push_back(s);
    for (int s : shifts) {
        // Every offset for a few counts; the others take the same block code.
        const bool full = s == 1 || s == kBits<T> / 2 + 1 || s == kBits<T> - 1;
        lc::sweep<T>(gen, [&](const T* src, T* d, int n) { return call(src, s, d, n); },
                     [&](T* p, int n) { return callI(s, p, n); }, [&](T x) { return ref(x, s); },
                     full ? lc::kFull : lc::kLight);
    }
}

TEST(Shift, RandomAgainstReference)
{
    shift_sweep<Tav8u>(tavsLShiftC_8u, tavsLShiftC_8u_I, ref_left<Tav8u>);
    shift_sweep<Tav16u>(tavsLShiftC_16u, tavsLShiftC_16u_I, ref_left<Tav16u>);
    shift_sweep<Tav16s>(tavsLShiftC_16s, tavsLShiftC_16s_I, ref_left<Tav16s>);
    shift_sweep<Tav32s>(tavsLShiftC_32s, tavsLShiftC_32s_I, ref_left<Tav32s>);
    shift_sweep<Tav8u>(tavsRShiftC_8u, tavsRShiftC_8u_I, ref_right<Tav8u>);
    shift_sweep<Tav16u>(tavsRShiftC_16u, tavsRShiftC_16u_I, ref_right<Tav16u>);
    shift_sweep<Tav16s>(tavsRShiftC_16s, tavsRShiftC_16s_I, ref_right<Tav16s>);
    shift_sweep<Tav32s>(tavsRShiftC_32s, tavsRShiftC_32s_I, ref_right<Tav32s>);
}

// ---- edge cases --------------------------------------------------------------------------

TEST(Shift, Left16uByWidthAndByZero)
{
    Tav16u s[3] = {0xFFFF, 1, 0x8000}, d[3] = {7, 7, 7};
    ASSERT_EQ(tavsLShiftC_16u(s, 16, d, 3), StatusOk);
    for (Tav16u v : d) EXPECT_EQ(v, 0);
    ASSERT_EQ(tavsLShiftC_16u(s, 0, d, 3), StatusOk);
    EXPECT_EQ(std::memcmp(s, d, sizeof s), 0);
}

TEST(Shift, RightBeyondWidth)
{
    Tav16s s[2] = {-5, 5}, d[2];
    ASSERT_EQ(tavsRShiftC_16s(s, 20, d, 2), StatusOk);
    EXPECT_EQ(d[0], -1);
    EXPECT_EQ(d[1], 0);
    Tav16u u[2] = {0xFFFF, 5}, e[2] = {1, 1};
    ASSERT_EQ(tavsRShiftC_16u(u, 20, e, 2), StatusOk);
    EXPECT_EQ(e[0], 0);
    EXPECT_EQ(e[1], 0);
    Tav32s w[2] = {INT32_MIN, INT32_MAX};
    ASSERT_EQ(tavsRShiftC_32s_I(INT_MAX, w, 2), StatusOk);
    EXPECT_EQ(w[0], -1);
    EXPECT_EQ(w[1], 0);
}

TEST(Shift, NegativeCount)
{
    Tav8u s[2] = {1, 2};
    tt::Guarded<Tav8u> g(2);
    EXPECT_EQ(tavsRShiftC_8u(s, -1, g.data(), 2), ErrShift);
    EXPECT_EQ(tavsRShiftC_8u_I(-1, g.data(), 2), ErrShift);
    EXPECT_EQ(tavsLShiftC_8u(s, INT_MIN, g.data(), 2), ErrShift);
    EXPECT_TRUE(g.untouched());
}

TEST(Shift, ZeroCountIsTheCopy)
{
    Tav32s s[2] = {1, 2};
    EXPECT_EQ(tavsLShiftC_32s(s, 0, nullptr, 2), ErrNullPtr);
}

// ---- check order --------------------------------------------------------------------------

// Zero-filling forms: 0 copies, >= width zero-fills once src is there, else
// pointers, len, then a negative count.
template <class T, class Call, class CallI> void zero_fill_order(Call call, CallI callI)
{
    const int W = kBits<T>;
    T s[4] = {T(1), T(2), T(3), T(4)};
    tt::Guarded<T> g(4, 1);
    // Count 0: the copy's checks.
    EXPECT_EQ(call(nullptr, 0, g.data(), 4), ErrNullPtr);
    EXPECT_EQ(call(s, 0, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(call(s, 0, g.data(), 0), ErrSize);
    EXPECT_EQ(callI(0, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(callI(0, g.data(), -1), ErrSize);
    // At or above the width: src first, then the zero fill's checks.
    for (int sh : {W, W + 7, INT_MAX}) {
        EXPECT_EQ(call(nullptr, sh, nullptr, 0), ErrNullPtr);
        EXPECT_EQ(call(nullptr, sh, g.data(), 4), ErrNullPtr);
        EXPECT_EQ(call(s, sh, nullptr, 4), ErrNullPtr);
        EXPECT_EQ(call(s, sh, g.data(), 0), ErrSize);
        EXPECT_EQ(callI(sh, nullptr, 4), ErrNullPtr);
        EXPECT_EQ(callI(sh, g.data(), 0), ErrSize);
    }
    // A negative count comes after pointers and len.
    EXPECT_EQ(call(nullptr, -1, g.data(), 4), ErrNullPtr);
    EXPECT_EQ(call(s, -1, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(call(s, -1, g.data(), 0), ErrSize);
    EXPECT_EQ(call(s, -1, g.data(), 4), ErrShift);
    EXPECT_EQ(callI(-3, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(callI(-3, g.data(), 0), ErrSize);
    EXPECT_EQ(callI(-3, g.data(), 4), ErrShift);
    // In range: pointers, then len.
    EXPECT_EQ(call(nullptr, 1, g.data(), 4), ErrNullPtr);
    EXPECT_EQ(call(s, 1, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(call(s, 1, g.data(), 0), ErrSize);
    EXPECT_TRUE(g.untouched());
    // Zero fill and copy results.
    ASSERT_EQ(call(s, W, g.data(), 4), StatusOk);
    for (size_t i = 0; i < 4; ++i) EXPECT_EQ(get(g.data(), i), T(0));
    ASSERT_EQ(call(s, 0, g.data(), 4), StatusOk);
    EXPECT_EQ(std::memcmp(g.data(), s, sizeof s), 0);
    ASSERT_EQ(callI(W, g.data(), 4), StatusOk);
    for (size_t i = 0; i < 4; ++i) EXPECT_EQ(get(g.data(), i), T(0));
    EXPECT_TRUE(g.borders_intact());
}

TEST(Shift, ZeroFillingFormsCheckOrder)
{
    zero_fill_order<Tav8u>(tavsLShiftC_8u, tavsLShiftC_8u_I);
    zero_fill_order<Tav16u>(tavsLShiftC_16u, tavsLShiftC_16u_I);
    zero_fill_order<Tav16s>(tavsLShiftC_16s, tavsLShiftC_16s_I);
    zero_fill_order<Tav32s>(tavsLShiftC_32s, tavsLShiftC_32s_I);
    zero_fill_order<Tav8u>(tavsRShiftC_8u, tavsRShiftC_8u_I);
    zero_fill_order<Tav16u>(tavsRShiftC_16u, tavsRShiftC_16u_I);
}

// Signed right shifts: 0 copies; otherwise pointers, len, negative count;
// at or above the width the sign fill.
template <class T, class Call, class CallI> void signed_order(Call call, CallI callI)
{
    const int W = kBits<T>;
    T s[4] = {T(-9), T(9), T(0), std::numeric_limits<T>::min()};
    tt::Guarded<T> g(4, 2);
    EXPECT_EQ(call(nullptr, 0, g.data(), 4), ErrNullPtr);
    EXPECT_EQ(call(s, 0, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(call(s, 0, g.data(), 0), ErrSize);
    for (int sh : {W, W + 1, INT_MAX, -1, INT_MIN, 3}) {
        EXPECT_EQ(call(nullptr, sh, g.data(), 4), ErrNullPtr);
        EXPECT_EQ(call(s, sh, nullptr, 4), ErrNullPtr);
        EXPECT_EQ(call(nullptr, sh, nullptr, 0), ErrNullPtr);
        EXPECT_EQ(call(s, sh, g.data(), 0), ErrSize);
        EXPECT_EQ(callI(sh, nullptr, 4), ErrNullPtr);
        EXPECT_EQ(callI(sh, g.data(), 0), ErrSize);
    }
    EXPECT_EQ(call(s, -1, g.data(), 4), ErrShift);
    EXPECT_EQ(callI(-1, g.data(), 4), ErrShift);
    EXPECT_TRUE(g.untouched());
    ASSERT_EQ(call(s, W + 3, g.data(), 4), StatusOk);
    EXPECT_EQ(get(g.data(), 0), T(-1));
    EXPECT_EQ(get(g.data(), 1), T(0));
    EXPECT_EQ(get(g.data(), 2), T(0));
    EXPECT_EQ(get(g.data(), 3), T(-1));
    EXPECT_TRUE(g.borders_intact());
}

TEST(Shift, SignedRightCheckOrder)
{
    signed_order<Tav16s>(tavsRShiftC_16s, tavsRShiftC_16s_I);
    signed_order<Tav32s>(tavsRShiftC_32s, tavsRShiftC_32s_I);
}

TEST(Shift, Left16sSharesTheUnsignedBits)
{
    Tav16s s[3] = {-1, 0x4001, -32768}, d[3];
    ASSERT_EQ(tavsLShiftC_16s(s, 1, d, 3), StatusOk);
    EXPECT_EQ(d[0], -2);
    EXPECT_EQ(d[1], Tav16s(0x8002));
    EXPECT_EQ(d[2], 0);
}

TEST(Shift, OverlapIsAnAscendingPass)
{
    tt::Rng r(81);
    for (int len : {7, 20, 41, 70}) {
        std::vector<Tav16u> buf(size_t(len) + 3), ref;
        for (auto& v : buf) v = Tav16u(r.next());
        ref = buf;
        for (size_t i = 0; i < size_t(len); ++i) ref[i + 2] = Tav16u(ref[i] << 3);
        ASSERT_EQ(tavsLShiftC_16u(buf.data(), 3, buf.data() + 2, len), StatusOk);
        ASSERT_EQ(buf, ref) << len;
        std::vector<Tav32s> w(size_t(len) + 1), wref;
        for (auto& v : w) v = Tav32s(r.next());
        wref = w;
        for (size_t i = 0; i < size_t(len); ++i) wref[i + 1] = wref[i] >> 1;
        ASSERT_EQ(tavsRShiftC_32s(w.data(), 1, w.data() + 1, len), StatusOk);
        ASSERT_EQ(w, wref) << len;
    }
}

} // namespace
