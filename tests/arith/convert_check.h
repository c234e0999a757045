// Checks shared by the conversion tests: the error statuses in their order
// with outputs untouched, and the sweep over lengths and destination offsets
// that compares every element, bit for bit, with a reference of the test.
#pragma once

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

#include "tavs.h"
#include "test_util.h"

namespace ct {

// A packed 24-bit element as the tests see it.
struct B3 {
    unsigned char b[3];
};
inline B3 make24(int64_t v)
{
    const uint32_t u = uint32_t(v);
    return B3{{static_cast<unsigned char>(u), static_cast<unsigned char>(u >> 8),
               static_cast<unsigned char>(u >> 16)}};
}
inline int32_t as24s(B3 e)
{
    return int32_t((uint32_t(e.b[0]) | uint32_t(e.b[1]) << 8 | uint32_t(e.b[2]) << 16) << 8) >> 8;
}
inline uint32_t as24u(B3 e) { return uint32_t(e.b[0]) | uint32_t(e.b[1]) << 8 | uint32_t(e.b[2]) << 16; }

template <class T> inline T get(const void* p, size_t i)
{
    T v;
    std::memcpy(&v, static_cast<const unsigned char*>(p) + i * sizeof(T), sizeof(T));
    return v;
}
template <class T> inline void put(void* p, size_t i, T v)
{
    std::memcpy(static_cast<unsigned char*>(p) + i * sizeof(T), &v, sizeof(T));
}

template <class T> inline uint64_t bits_of(const T& v)
{
    uint64_t b = 0;
    std::memcpy(&b, &v, sizeof(T));
    return b;
}

// n zeroed elements that end exactly where an inaccessible page begins, so a
// call that runs past them faults at once.
template <class T> class PageEnd {
  public:
    explicit PageEnd(size_t n) : page_(size_t(sysconf(_SC_PAGESIZE)))
    {
        const size_t room = (n * sizeof(T) + page_ - 1) / page_ * page_;
        size_ = room + page_;
        base_ = static_cast<unsigned char*>(
            mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        if (base_ == MAP_FAILED) std::abort();
        mprotect(base_ + room, page_, PROT_NONE);
        data_ = reinterpret_cast<T*>(base_ + room - n * sizeof(T));
    }
    ~PageEnd() { munmap(base_, size_); }
    PageEnd(const PageEnd&) = delete;
    PageEnd& operator=(const PageEnd&) = delete;
    T* data() { return data_; }

  private:
    size_t page_, size_ = 0;
    unsigned char* base_ = nullptr;
    T* data_ = nullptr;
};

// call(src, dst, len) with S and D storage types. Null pointers give
// ErrNullPtr before any length test, then len below 1 (or only 0 when
// unsignedLen) gives ErrSize; nothing is written in any of these cases.
template <class S, class D, class Call> void check_errors(Call call, bool unsignedLen = false)
{
    tt::Guarded<S> s(8);
    tt::Guarded<D> d(8);
    std::memset(s.data(), 0, 8 * sizeof(S));
    EXPECT_EQ(call(nullptr, d.data(), 8), ErrNullPtr);
    EXPECT_EQ(call(s.data(), nullptr, 8), ErrNullPtr);
    EXPECT_EQ(call(nullptr, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(call(nullptr, d.data(), -1), ErrNullPtr);
    EXPECT_EQ(call(s.data(), d.data(), 0), ErrSize);
    if (!unsignedLen) {
        EXPECT_EQ(call(s.data(), d.data(), -1), ErrSize);
        EXPECT_EQ(call(s.data(), d.data(), INT_MIN), ErrSize);
    }
    EXPECT_TRUE(d.untouched());
}

// For every len in 0..maxLen and every destination byte offset 0..15 (the
// source offset moves too), converts a slice of pool and compares each element
// with ref(src element) by its bytes; the bytes around the destination must
// stay as they were. Offsets that break element alignment run the scalar path,
// aligned ones the vector path with scalar head and tail.
template <class S, class D, class Call, class Ref>
void sweep(const std::vector<S>& pool, Call call, Ref ref, int maxLen = 70)
{
    ASSERT_GE(pool.size(), size_t(maxLen) + 16);
    for (int len = 0; len <= maxLen; ++len) {
        for (size_t off = 0; off < 16; ++off) {
            const size_t srcOff = (off * 7) % 16;
            tt::Guarded<S> s(size_t(len), srcOff);
            tt::Guarded<D> d(size_t(len), off);
            const size_t first = (size_t(len) * 3 + off) % 16;
            for (int i = 0; i < len; ++i)
                put<S>(s.data(), size_t(i), pool[first + size_t(i)]);
            const Status st = call(s.data(), d.data(), len);
            if (len == 0) {
                EXPECT_EQ(st, ErrSize);
                EXPECT_TRUE(d.untouched());
                continue;
            }
            ASSERT_EQ(st, StatusOk) << "len " << len << " offset " << off;
            for (int i = 0; i < len; ++i) {
                const D want = ref(pool[first + size_t(i)]);
                const D got = get<D>(d.data(), size_t(i));
                ASSERT_EQ(std::memcmp(&want, &got, sizeof(D)), 0)
                    << "len " << len << " offset " << off << " element " << i << ": got 0x" << std::hex
                    << bits_of(got) << " want 0x" << bits_of(want);
            }
            ASSERT_TRUE(d.borders_intact()) << "len " << len << " offset " << off;
        }
    }
}

// Members whose source and destination elements have one size work with one
// vector as both: the result equals the out-of-place one for every length
// and byte offset.
template <class S, class D, class Call> void in_place(const std::vector<S>& pool, Call call, int maxLen = 70)
{
    static_assert(sizeof(S) == sizeof(D));
    ASSERT_GE(pool.size(), size_t(maxLen));
    for (int len = 1; len <= maxLen; ++len) {
        for (size_t off = 0; off < 16; off += 3) {
            tt::Guarded<S> s(size_t(len), off);
            tt::Guarded<D> d(size_t(len), off);
            tt::Guarded<S> io(size_t(len), off);
            for (int i = 0; i < len; ++i) {
                put<S>(s.data(), size_t(i), pool[size_t(i)]);
                put<S>(io.data(), size_t(i), pool[size_t(i)]);
            }
            ASSERT_EQ(call(s.data(), d.data(), len), StatusOk);
            ASSERT_EQ(call(io.data(), io.data(), len), StatusOk);
            ASSERT_EQ(std::memcmp(d.data(), io.data(), size_t(len) * sizeof(D)), 0)
                << "len " << len << " offset " << off;
            ASSERT_TRUE(io.borders_intact());
        }
    }
}

// Converts all of src in one call (the vector path, with the result written
// at an aligned destination) and compares with ref element by element.
template <class S, class D, class Call, class Ref> void bulk(const std::vector<S>& src, Call call, Ref ref)
{
    std::vector<D> dst(src.size());
    ASSERT_EQ(call(src.data(), dst.data(), int(src.size())), StatusOk);
    for (size_t i = 0; i < src.size(); ++i) {
        const D want = ref(src[i]);
        ASSERT_EQ(std::memcmp(&want, &dst[i], sizeof(D)), 0)
            << "element " << i << ": got 0x" << std::hex << bits_of(dst[i]) << " want 0x" << bits_of(want)
            << " source 0x" << bits_of(src[i]);
    }
}

using i128 = __int128;

inline i128 clamp128(i128 v, int64_t lo, int64_t hi) { return v < lo ? lo : (v > hi ? hi : v); }

// e * 2^-sf with the shift counts clamped at leftMax and rightMax, rounded
// by mode (1 ties to even, 0 toward zero, other half away), in 128 bits.
inline int64_t ref_scale(int64_t e, int64_t sf, int leftMax, int rightMax, int mode, int64_t lo, int64_t hi)
{
    if (sf < 0) {
        const int n = int(-sf > leftMax ? leftMax : -sf);
        return int64_t(clamp128(i128(e) * (i128(1) << n), lo, hi));
    }
    if (sf == 0) return int64_t(clamp128(e, lo, hi));
    const int s = int(sf > rightMax ? rightMax : sf);
    const i128 div = i128(1) << s, half = div / 2;
    i128 q = i128(e) / div, rem = i128(e) % div; // toward zero
    if (rem < 0) {
        q -= 1;
        rem += div;
    } // now floor, 0 <= rem < div
    i128 r;
    if (mode == 1)
        r = q + ((rem > half || (rem == half && (q & 1) != 0)) ? 1 : 0);
    else if (mode == 0)
        r = (e < 0 && rem != 0) ? q + 1 : q;
    else {
        const i128 mag = e < 0 ? -i128(e) : i128(e);
        const i128 m = (mag + half) / div;
        r = e < 0 ? -m : m;
    }
    return int64_t(clamp128(r, lo, hi));
}

// Random floats of every magnitude that matters to a conversion: small
// integers and halves (ties), values near the limits, and log-uniform values.
inline std::vector<float> float_pool(tt::Rng& r, size_t n, float range)
{
    std::vector<float> v(n);
    for (auto& x : v) {
        switch (r.next() % 6) {
        case 0:
            x = float(r.range(-40, 40)) * 0.5f;
            break;
        case 1:
            x = float(r.range(-2, 2)) + (r.next() % 2 ? range : -range);
            break;
        case 2:
            x = float(r.range(-int64_t(range) * 2, int64_t(range) * 2)) + 0.5f;
            break;
        default: {
            const double mag = std::ldexp(r.uniform(1.0, 2.0), int(r.range(-30, 40)));
            x = float(r.next() % 2 ? mag : -mag);
        }
        }
    }
    return v;
}

} // namespace ct
