// tavsSwapBytes_*: the bytes of each element in reverse order (2, 4 or 8
// bytes; the 3-byte form swaps the first and third byte and keeps the
// middle one). In-place forms run the same kernel with src == dst: every
// block is loaded before it is stored.
#include <cstring>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/movers_more.h"

namespace {
using tavs::bytes::load16;
using tavs::bytes::store16;

template <class T> inline T swap_scalar(T x)
{
    if constexpr (sizeof(T) == 2)
        return T(__builtin_bswap16(x));
    else if constexpr (sizeof(T) == 4)
        return __builtin_bswap32(x);
    else
        return __builtin_bswap64(x);
}

template <size_t E> inline __m128i swap_lanes(__m128i v)
{
    if constexpr (E == 4) v = _mm_shufflehi_epi16(_mm_shufflelo_epi16(v, 0xB1), 0xB1);
    if constexpr (E == 8) v = _mm_shufflehi_epi16(_mm_shufflelo_epi16(v, 0x1B), 0x1B);
    return _mm_or_si128(_mm_slli_epi16(v, 8), _mm_srli_epi16(v, 8));
}

template <class T> void swap_kernel(const T* src, T* dst, int len)
{
    const auto* s = reinterpret_cast<const unsigned char*>(src);
    auto* d = reinterpret_cast<unsigned char*>(dst);
    const size_t n = size_t(len) * sizeof(T);
    size_t i = 0;
    for (; n - i >= 32; i += 32) {
        const __m128i a = load16(s + i), b = load16(s + i + 16);
        store16(d + i, swap_lanes<sizeof(T)>(a));
        store16(d + i + 16, swap_lanes<sizeof(T)>(b));
    }
    for (; n - i >= 16; i += 16)
        store16(d + i, swap_lanes<sizeof(T)>(load16(s + i)));
    for (; i < n; i += sizeof(T)) {
        T x;
        std::memcpy(&x, s + i, sizeof(T));
        x = swap_scalar(x);
        std::memcpy(d + i, &x, sizeof(T));
    }
}

template <class T> Status swap_bytes(const T* src, T* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst); st != StatusOk) return st;
    swap_kernel(src, dst, len);
    return StatusOk;
}

// ---- 3-byte elements --------------------------------------------------
// In a block of 48 bytes (16 elements, three registers) byte b takes byte
// b + 2 when b % 3 == 0, byte b - 2 when b % 3 == 2, and stays when
// b % 3 == 1; no element crosses the block, so each block is done from its
// own three registers.
struct Masks24 {
    alignas(16) unsigned char up[48], down[48], keep[48];
    constexpr Masks24() : up(), down(), keep()
    {
        for (int b = 0; b < 48; ++b) {
            up[b] = b % 3 == 0 ? 0xFF : 0;
            keep[b] = b % 3 == 1 ? 0xFF : 0;
            down[b] = b % 3 == 2 ? 0xFF : 0;
        }
    }
};
constexpr Masks24 kMasks24;

inline __m128i mask24(const unsigned char (&m)[48], int r)
{
    return _mm_load_si128(reinterpret_cast<const __m128i*>(m + 16 * r));
}

inline __m128i pick24(__m128i plus2, __m128i x, __m128i minus2, int r)
{
    return _mm_or_si128(_mm_or_si128(_mm_and_si128(plus2, mask24(kMasks24.up, r)),
                                     _mm_and_si128(x, mask24(kMasks24.keep, r))),
                        _mm_and_si128(minus2, mask24(kMasks24.down, r)));
}

inline void swap24_elem(const unsigned char* s, unsigned char* d)
{
    const unsigned char b0 = s[0], b1 = s[1], b2 = s[2];
    d[0] = b2;
    d[1] = b1;
    d[2] = b0;
}

// Separate ranges, or src == dst: 48-byte blocks, then single elements.
void swap24_blocks(const unsigned char* s, unsigned char* d, size_t count)
{
    size_t i = 0;
    for (; count - i >= 16; i += 16) {
        const unsigned char* q = s + 3 * i;
        const __m128i a = load16(q), b = load16(q + 16), c = load16(q + 32);
        const __m128i ra =
            pick24(_mm_or_si128(_mm_srli_si128(a, 2), _mm_slli_si128(b, 14)), a, _mm_slli_si128(a, 2), 0);
        const __m128i rb = pick24(_mm_or_si128(_mm_srli_si128(b, 2), _mm_slli_si128(c, 14)), b,
                                  _mm_or_si128(_mm_slli_si128(b, 2), _mm_srli_si128(a, 14)), 1);
        const __m128i rc =
            pick24(_mm_srli_si128(c, 2), c, _mm_or_si128(_mm_slli_si128(c, 2), _mm_srli_si128(b, 14)), 2);
        unsigned char* p = d + 3 * i;
        store16(p, ra);
        store16(p + 16, rb);
        store16(p + 32, rc);
    }
    for (; i < count; ++i)
        swap24_elem(s + 3 * i, d + 3 * i);
}

// Overlapping ranges: one element at a time, each read whole before it is
// written, in the direction that reads every source byte before it is
// overwritten, so the result is as if the source had been copied first.
void swap24_overlap(const unsigned char* s, unsigned char* d, size_t count)
{
    if (d <= s)
        for (size_t i = 0; i < count; ++i)
            swap24_elem(s + 3 * i, d + 3 * i);
    else
        for (size_t i = count; i-- > 0;)
            swap24_elem(s + 3 * i, d + 3 * i);
}
} // namespace

extern "C" {
Status tavsSwapBytes_16u_body(const Tav16u* src, Tav16u* dst, int len) { return swap_bytes(src, dst, len); }
Status tavsSwapBytes_32u_body(const Tav32u* src, Tav32u* dst, int len) { return swap_bytes(src, dst, len); }
Status tavsSwapBytes_64u_body(const Tav64u* src, Tav64u* dst, int len) { return swap_bytes(src, dst, len); }
Status tavsSwapBytes_16u_I_body(Tav16u* srcDst, int len) { return swap_bytes(srcDst, srcDst, len); }
Status tavsSwapBytes_32u_I_body(Tav32u* srcDst, int len) { return swap_bytes(srcDst, srcDst, len); }
Status tavsSwapBytes_64u_I_body(Tav64u* srcDst, int len) { return swap_bytes(srcDst, srcDst, len); }

Status tavsSwapBytes_24u_body(const Tav8u* src, Tav8u* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst); st != StatusOk) return st;
    const size_t n = 3 * size_t(len);
    const uintptr_t s = reinterpret_cast<uintptr_t>(src), d = reinterpret_cast<uintptr_t>(dst);
    if (s != d && s < d + n && d < s + n)
        swap24_overlap(src, dst, size_t(len));
    else
        swap24_blocks(src, dst, size_t(len));
    return StatusOk;
}

Status tavsSwapBytes_24u_I_body(Tav8u* srcDst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, srcDst); st != StatusOk) return st;
    swap24_blocks(srcDst, srcDst, size_t(len));
    return StatusOk;
}
}
