// Element loops of the threshold, logic, shift and complex-helper families.
// Vectors carry no alignment promise, so every element goes through memcpy
// (one plain move once optimised, and never a misaligned typed access).
// The loop driver runs 16-byte blocks only when the destination shares no
// bytes with a source (identical vectors of one element size are fine,
// since each block reads its elements before it writes them); otherwise it
// runs one ascending element pass, whose results callers may rely on.
#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tavs::lanes {

template <class T> inline T ld(const T* p, size_t i)
{
    T v;
    std::memcpy(&v, reinterpret_cast<const unsigned char*>(p) + i * sizeof(T), sizeof(T));
    return v;
}
template <class T> inline void st(T* p, size_t i, T v)
{
    std::memcpy(reinterpret_cast<unsigned char*>(p) + i * sizeof(T), &v, sizeof(T));
}

inline __m128i ld128(const void* p, size_t byteOff)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(static_cast<const unsigned char*>(p) + byteOff));
}
inline void st128(void* p, size_t byteOff, __m128i v)
{
    _mm_store_si128(reinterpret_cast<__m128i*>(static_cast<unsigned char*>(p) + byteOff), v);
}

// True when the destination of n D elements may take the block path against
// a source of n S elements: disjoint byte ranges, or the very same vector.
template <class S, class D> inline bool block_safe(const S* src, const D* dst, size_t n)
{
    uintptr_t s = reinterpret_cast<uintptr_t>(src), d = reinterpret_cast<uintptr_t>(dst);
    if (s == d && sizeof(S) == sizeof(D)) return true;
    return s + n * sizeof(S) <= d || d + n * sizeof(D) <= s;
}

// Below this many elements the block path does not pay.
constexpr size_t kMinBlockLen = 7;

// Runs elem(i) for i = 0 .. n-1 in ascending order, except that when
// blocksOk, n is large enough and dst can reach a 16-byte boundary by whole
// elements, the aligned middle runs as block(i) calls that each cover the
// 16 bytes of dst from element i on (16 / sizeof(D) elements).
template <class D, class Elem, class Block>
inline void drive(D* dst, size_t n, bool blocksOk, Elem elem, Block block)
{
    size_t i = 0;
    if (blocksOk && n >= kMinBlockLen) {
        constexpr size_t per = 16 / sizeof(D);
        static_assert(per >= 1 && 16 % sizeof(D) == 0, "destination elements must tile 16 bytes");
        auto misaligned = [&](size_t k) { return (reinterpret_cast<uintptr_t>(dst) + k * sizeof(D)) & 15; };
        while (i < n && i < per && misaligned(i)) elem(i++);
        if (!misaligned(i)) {
            // Four blocks a step keep loads and stores in flight together.
            for (; i + 4 * per <= n; i += 4 * per) {
                block(i);
                block(i + per);
                block(i + 2 * per);
                block(i + 3 * per);
            }
            for (; i + per <= n; i += per) block(i);
        }
    }
    for (; i < n; ++i) elem(i);
}

} // namespace tavs::lanes
