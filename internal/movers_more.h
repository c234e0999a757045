// Bodies of the move family, shared by every element size, and a typed
// helper that reaches them from other families. The set, flip and swap
// bodies have one name each (tavsSet_16s_body, tavsFlip_32f_I_body, ...) and
// are declared with the exported prototypes in tavs_bodies.h.
#pragma once

#include "internal/types.h"
#include "tavs_bodies.h"

extern "C" {
// dst[0 .. len) = src[0 .. len) as if copied through a temporary, elements of
// 1, 2, 4, 8 or 16 bytes. ErrNullPtr for a null pointer, then ErrSize for
// len < 1.
TAVS_BODY Status tavs_move_1(const void* src, void* dst, int len);
TAVS_BODY Status tavs_move_2(const void* src, void* dst, int len);
TAVS_BODY Status tavs_move_4(const void* src, void* dst, int len);
TAVS_BODY Status tavs_move_8(const void* src, void* dst, int len);
TAVS_BODY Status tavs_move_16(const void* src, void* dst, int len);
}

namespace tavs {
// The move body for elements of type T.
template <class T> inline Status move_elems(const T* src, T* dst, int len)
{
    if constexpr (sizeof(T) == 1) return tavs_move_1(src, dst, len);
    else if constexpr (sizeof(T) == 2) return tavs_move_2(src, dst, len);
    else if constexpr (sizeof(T) == 4) return tavs_move_4(src, dst, len);
    else if constexpr (sizeof(T) == 8) return tavs_move_8(src, dst, len);
    else return tavs_move_16(src, dst, len);
}
} // namespace tavs

#include <emmintrin.h>

#include <cstdint>
#include <cstring>

namespace tavs::bytes {

inline __m128i load16(const unsigned char* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
inline void store16(unsigned char* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
inline void store16a(unsigned char* p, __m128i v) { _mm_store_si128(reinterpret_cast<__m128i*>(p), v); }

// Up to 64 bytes: every byte is loaded before the first store, so the
// result is the same for any overlap of the two ranges.
inline void move_short(unsigned char* d, const unsigned char* s, size_t n)
{
    if (n >= 32) {
        __m128i a = load16(s), b = load16(s + 16), c = load16(s + n - 32), e = load16(s + n - 16);
        store16(d, a);
        store16(d + 16, b);
        store16(d + n - 32, c);
        store16(d + n - 16, e);
    } else if (n >= 16) {
        __m128i a = load16(s), e = load16(s + n - 16);
        store16(d, a);
        store16(d + n - 16, e);
    } else if (n >= 8) {
        uint64_t a, e;
        std::memcpy(&a, s, 8);
        std::memcpy(&e, s + n - 8, 8);
        std::memcpy(d, &a, 8);
        std::memcpy(d + n - 8, &e, 8);
    } else if (n >= 4) {
        uint32_t a, e;
        std::memcpy(&a, s, 4);
        std::memcpy(&e, s + n - 4, 4);
        std::memcpy(d, &a, 4);
        std::memcpy(d + n - 4, &e, 4);
    } else if (n >= 2) {
        uint16_t a, e;
        std::memcpy(&a, s, 2);
        std::memcpy(&e, s + n - 2, 2);
        std::memcpy(d, &a, 2);
        std::memcpy(d + n - 2, &e, 2);
    } else if (n == 1) {
        d[0] = s[0];
    }
}

// n > 64 bytes, ascending addresses. The first and last 16 source bytes are
// held in registers from the start and stored last; in between the
// destination runs on 16-byte boundaries, 64 bytes a step. Correct for any
// destination below the source or apart from it.
inline void move_up(unsigned char* d, const unsigned char* s, size_t n)
{
    const __m128i head = load16(s), tail = load16(s + n - 16);
    const size_t off = size_t(-reinterpret_cast<uintptr_t>(d)) & 15;
    unsigned char* p = d + off;
    const unsigned char* q = s + off;
    size_t m = n - off;
    for (; m >= 64; m -= 64, p += 64, q += 64) {
        __m128i a = load16(q), b = load16(q + 16), c = load16(q + 32), e = load16(q + 48);
        store16a(p, a);
        store16a(p + 16, b);
        store16a(p + 32, c);
        store16a(p + 48, e);
    }
    for (; m >= 16; m -= 16, p += 16, q += 16) store16a(p, load16(q));
    store16(d, head);
    store16(d + n - 16, tail);
}

// n > 64 bytes, descending addresses, for a destination above an
// overlapping source.
inline void move_down(unsigned char* d, const unsigned char* s, size_t n)
{
    const __m128i head = load16(s), tail = load16(s + n - 16);
    const size_t off = reinterpret_cast<uintptr_t>(d + n) & 15;
    unsigned char* p = d + n - off;
    const unsigned char* q = s + n - off;
    size_t m = n - off;
    for (; m >= 64; m -= 64) {
        p -= 64;
        q -= 64;
        __m128i a = load16(q), b = load16(q + 16), c = load16(q + 32), e = load16(q + 48);
        store16a(p + 48, e);
        store16a(p + 32, c);
        store16a(p + 16, b);
        store16a(p, a);
    }
    for (; m >= 16; m -= 16) {
        p -= 16;
        q -= 16;
        store16a(p, load16(q));
    }
    store16(d + n - 16, tail);
    store16(d, head);
}

// Forward copy of n bytes; the ranges must not overlap.
inline void copy(unsigned char* d, const unsigned char* s, size_t n)
{
    if (n <= 64) move_short(d, s, n);
    else move_up(d, s, n);
}

// n bytes as if copied through a temporary: the direction follows from the
// two addresses.
inline void move(unsigned char* d, const unsigned char* s, size_t n)
{
    if (n <= 64) move_short(d, s, n);
    else if (reinterpret_cast<uintptr_t>(d) - reinterpret_cast<uintptr_t>(s) >= n) move_up(d, s, n);
    else move_down(d, s, n);
}

} // namespace tavs::bytes
