// Shared checks of the element-wise tests: element access that never needs
// alignment (the vectors under test sit at every byte offset), random
// elements that favour the special values, and a sweep that runs an
// out-of-place call and its in-place twin over lengths 1..70 and byte
// offsets 0..15 against a per-element reference.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "tavs.h"
#include "test_util.h"

namespace lc {

template <class T> T get(const T* p, size_t i)
{
    T v;
    std::memcpy(&v, reinterpret_cast<const unsigned char*>(p) + i * sizeof(T), sizeof(T));
    return v;
}
template <class T> void put(T* p, size_t i, T v)
{
    std::memcpy(reinterpret_cast<unsigned char*>(p) + i * sizeof(T), &v, sizeof(T));
}

template <class T> std::string dump(const T& v)
{
    std::string s = " [";
    const unsigned char* b = reinterpret_cast<const unsigned char*>(&v);
    static const char* hex = "0123456789abcdef";
    for (size_t i = sizeof(T); i-- > 0;) {
        s += hex[b[i] >> 4];
        s += hex[b[i] & 15];
    }
    return s + "]";
}

// Equal bits, except that any NaN matches any NaN: which operand's payload
// an IEEE operation passes on depends on the operand order the compiler
// picks, and no result here promises a payload. (Moves that do promise it
// are checked bit for bit on their own.)
template <class T> bool same(const T& a, const T& b)
{
    if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(a) && std::isnan(b)) return true;
        return tt::same_bits(a, b);
    } else if constexpr (std::is_same_v<T, Tav32fc> || std::is_same_v<T, Tav64fc>) {
        return same(a.re, b.re) && same(a.im, b.im);
    } else {
        return tt::same_bits(a, b);
    }
}

// A random float that is often special: NaN, infinities, signed zeros,
// denormals, values around +-near (usually the level under test).
template <class F> F special_float(tt::Rng& r, F near)
{
    using L = std::numeric_limits<F>;
    switch (r.next() % 12) {
    case 0: return L::quiet_NaN();
    case 1: return -L::quiet_NaN();
    case 2: return L::infinity();
    case 3: return -L::infinity();
    case 4: return F(0);
    case 5: return -F(0);
    case 6: return L::denorm_min() * F(r.range(1, 100));
    case 7: return near;
    case 8: return -near;
    case 9: return std::nextafter(near, (r.next() & 1) ? L::infinity() : -L::infinity());
    default: return F(r.uniform(-4.0, 4.0) * double(near == 0 ? F(1) : std::fabs(near)) * 1.5);
    }
}

// A random integer element, often at the limits, near 0 or near +-near.
template <class T> T special_int(tt::Rng& r, T near)
{
    using L = std::numeric_limits<T>;
    auto clamped = [](int64_t v) { return T(std::clamp<int64_t>(v, int64_t(L::min()), int64_t(L::max()))); };
    switch (r.next() % 6) {
    case 0: return clamped(int64_t(near) + r.range(-2, 2));
    case 1: return clamped(-int64_t(near) + r.range(-2, 2));
    default: return r.element<T>();
    }
}

// Bytes of a random source vector of n elements at byte offset off.
struct RawVec {
    std::vector<unsigned char> bytes;
    size_t off;
    template <class T> T* as() { return reinterpret_cast<T*>(bytes.data() + off); }
};
template <class T, class Gen> RawVec make_src(size_t n, size_t off, Gen gen)
{
    RawVec v{std::vector<unsigned char>(n * sizeof(T) + off + 1), off};
    for (size_t i = 0; i < n; ++i) put(v.as<T>(), i, gen());
    return v;
}

// Out of place into a guarded dst at byte offsets 0..15 (source at another
// offset), checked element by element against ref(src element); then the
// in-place call on a copy of the source must give the same bytes and
// status. call(src, dst, len) and callI(srcDst, len) return the status,
// which must be want(src, len).
template <class T, class Gen, class Call, class CallI, class Ref, class Want, class Same>
void sweep_cmp(Gen gen, Call call, CallI callI, Ref ref, Want want, Same eq, size_t offStep)
{
    for (int len = 1; len <= 70; ++len)
        for (size_t off = 0; off < 16; off += offStep) {
            RawVec src = make_src<T>(size_t(len), (off * 5 + 3) % 16, gen);
            const Status st = want(src.as<T>(), len);
            tt::Guarded<T> g(size_t(len), off);
            ASSERT_EQ(call(src.as<T>(), g.data(), len), st) << "len " << len << " off " << off;
            for (size_t i = 0; i < size_t(len); ++i) {
                T want_i = ref(get(src.as<T>(), i));
                T got = get(g.data(), i);
                ASSERT_TRUE(eq(got, want_i)) << "len " << len << " off " << off << " i " << i << dump(got) << dump(want_i) << dump(get(src.as<T>(), i));
            }
            ASSERT_TRUE(g.borders_intact());
            tt::Guarded<T> h(size_t(len), off);
            std::memcpy(h.data(), src.as<T>(), size_t(len) * sizeof(T));
            ASSERT_EQ(callI(h.data(), len), st);
            ASSERT_EQ(std::memcmp(h.data(), g.data(), size_t(len) * sizeof(T)), 0) << "in place, len " << len;
            ASSERT_TRUE(h.borders_intact());
        }
}

// Offsets: every one of 0..15 (kFull) where a function has a 16-byte path
// whose head depends on the destination's alignment, every fifth (kLight)
// for plain element loops and for repeats of an already covered path.
constexpr size_t kFull = 1, kLight = 5;

template <class T, class Gen, class Call, class CallI, class Ref, class Want>
void sweep_with(Gen gen, Call call, CallI callI, Ref ref, Want want, size_t offStep = kFull)
{
    sweep_cmp<T>(gen, call, callI, ref, want, [](const T& a, const T& b) { return same(a, b); }, offStep);
}

template <class T, class Gen, class Call, class CallI, class Ref>
void sweep(Gen gen, Call call, CallI callI, Ref ref, size_t offStep = kFull)
{
    sweep_with<T>(gen, call, callI, ref, [](const T*, int) { return StatusOk; }, offStep);
}

// As sweep, bit for bit, NaN payloads included.
template <class T, class Gen, class Call, class CallI, class Ref>
void sweep_exact(Gen gen, Call call, CallI callI, Ref ref, size_t offStep = kFull)
{
    sweep_cmp<T>(gen, call, callI, ref, [](const T*, int) { return StatusOk; },
                 [](const T& a, const T& b) { return tt::same_bits(a, b); }, offStep);
}

} // namespace lc
