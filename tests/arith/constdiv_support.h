// Shared by the tests of the constant forms and the divisions: the exact
// scale rule written plainly on 128-bit integers, float data that reaches
// the special values, and the checks of the error statuses.
#pragma once

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

#include "tavs.h"
#include "test_util.h"

namespace cd {

using i128 = __int128;

// e * 2^-s rounded to nearest, ties to even, for any s. Results beyond every
// 64-bit range come back as +-2^100 (they saturate any destination).
inline i128 ref_round(i128 e, int s)
{
    const i128 huge = i128(1) << 100;
    if (s == 0 || e == 0) return e;
    if (s < 0) {
        const long n = -long(s);
        const i128 mag = e < 0 ? -e : e;
        if (n >= 70 || mag >= (i128(1) << (126 - n))) return e < 0 ? -huge : huge;
        return e * (i128(1) << n);
    }
    if (s >= 127) return 0; // every e used here is at most 2^126 in magnitude
    const i128 d = i128(1) << s;
    i128 q = e / d, r = e % d;
    if (r < 0) {
        q -= 1;
        r += d;
    }
    if (2 * r > d || (2 * r == d && (q & 1))) q += 1;
    return q;
}

// n / d rounded to nearest with ties to even (d != 0).
inline i128 ref_div_rne(i128 n, i128 d)
{
    if (d < 0) {
        n = -n;
        d = -d;
    }
    i128 q = n / d, r = n % d;
    if (r < 0) {
        q -= 1;
        r += d;
    }
    if (2 * r > d || (2 * r == d && (q & 1))) q += 1;
    return q;
}

template <class T> inline T sat(i128 v)
{
    if (v > i128(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
    if (v < i128(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
    return T(v);
}

// The exact scaled and saturated result of an exact integer e.
template <class T> inline T scaled(i128 e, int s) { return sat<T>(ref_round(e, s)); }

// Scale factors of the sweeps: every value from -70 to 140 and the ends of
// the int range.
inline std::vector<int> sweep_scales()
{
    std::vector<int> v;
    for (int s = -70; s <= 140; ++s) v.push_back(s);
    for (int s : {INT_MIN, INT_MIN + 1, -100000, -1100, 1100, 100000, INT_MAX - 1, INT_MAX}) v.push_back(s);
    return v;
}

// Random float of type F: ordinary values of every size, small integers,
// halves, zeros of both signs, infinities, NaN and denormals.
template <class F> inline F rand_float(tt::Rng& r)
{
    using L = std::numeric_limits<F>;
    switch (r.next() % 16) {
    case 0: return F(0);
    case 1: return -F(0);
    case 2: return L::infinity();
    case 3: return -L::infinity();
    case 4: return L::quiet_NaN();
    case 5: return L::denorm_min() * F(r.range(1, 1000));
    case 6: return F(r.range(-40, 40)) * F(0.5);
    case 7: return F(r.range(-100000, 100000));
    case 8: {
        uint64_t bits = r.next();
        F f;
        if constexpr (sizeof(F) == 4) {
            uint32_t b = uint32_t(bits);
            std::memcpy(&f, &b, 4);
        } else {
            std::memcpy(&f, &bits, 8);
        }
        return f;
    }
    default: return F(r.uniform(-1, 1)) * std::ldexp(F(1), int(r.range(-30, 30)));
    }
}

// Float equality bit for bit, any NaN matching any NaN (the sign and payload
// of a NaN from an arithmetic operation are not part of the contract).
template <class F> inline bool same_value(F a, F b)
{
    if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
    return tt::same_bits(a, b);
}

// ---- error statuses --------------------------------------------------------------
// Out of place: call(src, dst, len). Null pointers first (even with len 0),
// then a length below 1; nothing written in any case.
template <class S, class D, class Call> void expect_oop_errors(Call call)
{
    std::vector<S> src(8);
    std::memset(static_cast<void*>(src.data()), 0x11, src.size() * sizeof(S));
    tt::Guarded<D> g(8);
    EXPECT_EQ(call(nullptr, g.data(), 8), ErrNullPtr);
    EXPECT_EQ(call(src.data(), nullptr, 8), ErrNullPtr);
    EXPECT_EQ(call(nullptr, g.data(), 0), ErrNullPtr);
    EXPECT_EQ(call(src.data(), nullptr, -1), ErrNullPtr);
    EXPECT_EQ(call(src.data(), g.data(), 0), ErrSize);
    EXPECT_EQ(call(src.data(), g.data(), -1), ErrSize);
    EXPECT_EQ(call(src.data(), g.data(), INT_MIN), ErrSize);
    EXPECT_TRUE(g.untouched());
}

// In place: call(srcDst, len).
template <class T, class Call> void expect_ip_errors(Call call)
{
    tt::Guarded<T> g(8);
    EXPECT_EQ(call(nullptr, 8), ErrNullPtr);
    EXPECT_EQ(call(nullptr, 0), ErrNullPtr);
    EXPECT_EQ(call(g.data(), 0), ErrSize);
    EXPECT_EQ(call(g.data(), -1), ErrSize);
    EXPECT_EQ(call(g.data(), INT_MIN), ErrSize);
    EXPECT_TRUE(g.untouched());
}

// Two sources: call(src1, src2, dst, len).
template <class S1, class S2, class D, class Call> void expect_two_src_errors(Call call)
{
    std::vector<S1> a(8);
    std::vector<S2> b(8);
    std::memset(static_cast<void*>(a.data()), 0x11, a.size() * sizeof(S1));
    std::memset(static_cast<void*>(b.data()), 0x11, b.size() * sizeof(S2));
    tt::Guarded<D> g(8);
    EXPECT_EQ(call(nullptr, b.data(), g.data(), 8), ErrNullPtr);
    EXPECT_EQ(call(a.data(), nullptr, g.data(), 8), ErrNullPtr);
    EXPECT_EQ(call(a.data(), b.data(), nullptr, 8), ErrNullPtr);
    EXPECT_EQ(call(nullptr, nullptr, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(call(a.data(), b.data(), g.data(), 0), ErrSize);
    EXPECT_EQ(call(a.data(), b.data(), g.data(), -5), ErrSize);
    EXPECT_TRUE(g.untouched());
}

// A source and an in-place vector: call(src, srcDst, len).
template <class S, class T, class Call> void expect_src_sd_errors(Call call)
{
    std::vector<S> a(8);
    std::memset(static_cast<void*>(a.data()), 0x11, a.size() * sizeof(S));
    tt::Guarded<T> g(8);
    EXPECT_EQ(call(nullptr, g.data(), 8), ErrNullPtr);
    EXPECT_EQ(call(a.data(), nullptr, 8), ErrNullPtr);
    EXPECT_EQ(call(nullptr, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(call(a.data(), g.data(), 0), ErrSize);
    EXPECT_EQ(call(a.data(), g.data(), -5), ErrSize);
    EXPECT_TRUE(g.untouched());
}

// Memory that faults when touched: a shortcut that must not read its source
// is given a pointer into it.
class NoAccessPage {
public:
    NoAccessPage()
    {
        size_ = size_t(sysconf(_SC_PAGESIZE));
        p_ = mmap(nullptr, size_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    }
    ~NoAccessPage()
    {
        if (p_ != MAP_FAILED) munmap(p_, size_);
    }
    NoAccessPage(const NoAccessPage&) = delete;
    NoAccessPage& operator=(const NoAccessPage&) = delete;
    bool ok() const { return p_ != MAP_FAILED; }
    template <class T> const T* get() const { return static_cast<const T*>(p_); }

private:
    void* p_ = MAP_FAILED;
    size_t size_ = 0;
};

} // namespace cd
