// tavsFlip_*: dst[i] = src[len-1-i]. Elements are moved whole (complex
// elements keep the order of their parts). The out-of-place form with
// src == dst is the in-place form, which swaps from both ends; other
// overlaps are not handled.
#include <cstring>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/movers_more.h"

namespace {
using tavs::bytes::load16;
using tavs::bytes::store16;
using tavs::bytes::store16a;

// The 16 bytes of v as 16 / E elements of E bytes in reverse order.
template <size_t E> inline __m128i reverse(__m128i v)
{
    if constexpr (E == 16)
        return v;
    else if constexpr (E == 8)
        return _mm_shuffle_epi32(v, 0x4E);
    else {
        v = _mm_shuffle_epi32(v, 0x1B);
        if constexpr (E <= 2) {
            v = _mm_shufflehi_epi16(_mm_shufflelo_epi16(v, 0xB1), 0xB1);
            if constexpr (E == 1) v = _mm_or_si128(_mm_slli_epi16(v, 8), _mm_srli_epi16(v, 8));
        }
        return v;
    }
}

template <size_t E> inline void move_elem(unsigned char* d, const unsigned char* s) { std::memcpy(d, s, E); }

template <size_t E> inline void swap_elems(unsigned char* a, unsigned char* b)
{
    unsigned char t[E];
    std::memcpy(t, a, E);
    std::memcpy(a, b, E);
    std::memcpy(b, t, E);
}

// In place: blocks of 16 bytes are taken from both ends, reversed and
// exchanged until fewer than 32 bytes remain in the middle.
template <size_t E> void flip_in_place(unsigned char* p, size_t n)
{
    size_t f = 0, b = n;
    // Elements from both ends until the front is on a 16-byte boundary (when
    // the vector is element-aligned), so half of the stores are aligned.
    if (reinterpret_cast<uintptr_t>(p) % E == 0)
        for (; (reinterpret_cast<uintptr_t>(p + f) & 15) != 0 && b - f >= 2 * E; f += E, b -= E)
            swap_elems<E>(p + f, p + b - E);
    for (; b - f >= 32; f += 16, b -= 16) {
        const __m128i lo = load16(p + f), hi = load16(p + b - 16);
        store16(p + f, reverse<E>(hi));
        store16(p + b - 16, reverse<E>(lo));
    }
    for (; b - f >= 2 * E; f += E, b -= E)
        swap_elems<E>(p + f, p + b - E);
}

// Out of place, the ranges apart: dst ascending, src descending.
template <size_t E> void flip_apart(const unsigned char* s, unsigned char* d, size_t n)
{
    size_t i = 0;
    // Elements until the destination is on a 16-byte boundary (when it is
    // element-aligned at all), then aligned stores.
    if (reinterpret_cast<uintptr_t>(d) % E == 0)
        for (; (reinterpret_cast<uintptr_t>(d + i) & 15) != 0 && i < n; i += E)
            move_elem<E>(d + i, s + n - i - E);
    if ((reinterpret_cast<uintptr_t>(d + i) & 15) == 0) {
        for (; n - i >= 32; i += 32) {
            const __m128i a = load16(s + n - i - 16), b = load16(s + n - i - 32);
            store16a(d + i, reverse<E>(a));
            store16a(d + i + 16, reverse<E>(b));
        }
    }
    for (; n - i >= 32; i += 32) {
        const __m128i a = load16(s + n - i - 16), b = load16(s + n - i - 32);
        store16(d + i, reverse<E>(a));
        store16(d + i + 16, reverse<E>(b));
    }
    for (; n - i >= 16; i += 16)
        store16(d + i, reverse<E>(load16(s + n - i - 16)));
    for (; i < n; i += E)
        move_elem<E>(d + i, s + n - i - E);
}

template <class T> Status flip_i(T* srcDst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, srcDst); st != StatusOk) return st;
    flip_in_place<sizeof(T)>(reinterpret_cast<unsigned char*>(srcDst), size_t(len) * sizeof(T));
    return StatusOk;
}

template <class T> Status flip(const T* src, T* dst, int len, Status (*inPlace)(T*, int))
{
    if (src == dst) return inPlace(dst, len);
    if (Status st = tavs::check_ptrs_len(len, src, dst); st != StatusOk) return st;
    flip_apart<sizeof(T)>(reinterpret_cast<const unsigned char*>(src), reinterpret_cast<unsigned char*>(dst),
                          size_t(len) * sizeof(T));
    return StatusOk;
}
} // namespace

extern "C" {
Status tavsFlip_8u_I_body(Tav8u* srcDst, int len) { return flip_i(srcDst, len); }
Status tavsFlip_16u_I_body(Tav16u* srcDst, int len) { return flip_i(srcDst, len); }
Status tavsFlip_32f_I_body(Tav32f* srcDst, int len) { return flip_i(srcDst, len); }
Status tavsFlip_32fc_I_body(Tav32fc* srcDst, int len) { return flip_i(srcDst, len); }
Status tavsFlip_64f_I_body(Tav64f* srcDst, int len) { return flip_i(srcDst, len); }
Status tavsFlip_64fc_I_body(Tav64fc* srcDst, int len) { return flip_i(srcDst, len); }

Status tavsFlip_8u_body(const Tav8u* src, Tav8u* dst, int len)
{
    return flip(src, dst, len, tavsFlip_8u_I_body);
}
Status tavsFlip_16u_body(const Tav16u* src, Tav16u* dst, int len)
{
    return flip(src, dst, len, tavsFlip_16u_I_body);
}
Status tavsFlip_32f_body(const Tav32f* src, Tav32f* dst, int len)
{
    return flip(src, dst, len, tavsFlip_32f_I_body);
}
Status tavsFlip_32fc_body(const Tav32fc* src, Tav32fc* dst, int len)
{
    return flip(src, dst, len, tavsFlip_32fc_I_body);
}
Status tavsFlip_64f_body(const Tav64f* src, Tav64f* dst, int len)
{
    return flip(src, dst, len, tavsFlip_64f_I_body);
}
Status tavsFlip_64fc_body(const Tav64fc* src, Tav64fc* dst, int len)
{
    return flip(src, dst, len, tavsFlip_64fc_I_body);
}
}
