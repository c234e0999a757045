// Bit strings addressed by a byte pointer and a bit offset, of which only
// the low three bits count (the pointer is never advanced by the offset).
// tavsCopy_1u (and tavsCopyLE_1u, which forwards to it) numbers the bits of
// a byte from the most significant; tavsCopyBE_1u from the least significant.
// tavsPackBits_32u8u appends bit fields most significant first.
#include <cstdint>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/movers.h"

namespace {

inline unsigned low_mask(unsigned k) { return (1u << k) - 1u; } // k <= 8

// Bit order inside a byte. Position p (0..7) of the run's first byte.
struct MsbFirst {
    // h bits (1..8) starting at position p (p + h <= 16) of s[0], s[1]; the
    // first bit ends up most significant. s[1] is read only when needed.
    static unsigned get(const Tav8u* s, unsigned p, unsigned h)
    {
        unsigned v = unsigned(s[0]) << 8;
        if (p + h > 8) v |= s[1];
        return (v >> (16 - p - h)) & low_mask(h);
    }
    // Stores h bits (first most significant) at positions p .. p + h - 1
    // of *d (p + h <= 8); the other bits keep.
    static void put(Tav8u* d, unsigned p, unsigned h, unsigned bits)
    {
        const unsigned shift = 8 - p - h;
        const unsigned m = low_mask(h) << shift;
        *d = Tav8u((*d & ~m) | (bits << shift));
    }
    // The whole byte that starts at position p (1..7) of s[0].
    static Tav8u byte(const Tav8u* s, unsigned p) { return Tav8u((unsigned(s[0]) << p) | (s[1] >> (8 - p))); }
};

struct LsbFirst {
    static unsigned get(const Tav8u* s, unsigned p, unsigned h)
    {
        unsigned v = s[0];
        if (p + h > 8) v |= unsigned(s[1]) << 8;
        return (v >> p) & low_mask(h);
    }
    static void put(Tav8u* d, unsigned p, unsigned h, unsigned bits)
    {
        const unsigned m = low_mask(h) << p;
        *d = Tav8u((*d & ~m) | (bits << p));
    }
    static Tav8u byte(const Tav8u* s, unsigned p) { return Tav8u((s[0] >> p) | (unsigned(s[1]) << (8 - p))); }
};

// len bits: a head up to the next destination byte, whole destination
// bytes, then a tail. With equal positions the whole bytes go through the
// byte copier. No byte outside the run is read or written.
template <class Order>
Status copy_bits(const Tav8u* src, int srcBitOffset, Tav8u* dst, int dstBitOffset, int len)
{
    if (tavs::any_null(src, dst)) return ErrNullPtr;
    if (srcBitOffset < 0 || dstBitOffset < 0 || len < 1) return ErrSize;
    unsigned sp = unsigned(srcBitOffset) & 7, dp = unsigned(dstBitOffset) & 7;
    size_t n = size_t(len);
    if (dp != 0) {
        const unsigned h = n < 8 - dp ? unsigned(n) : 8 - dp;
        Order::put(dst, dp, h, Order::get(src, sp, h));
        n -= h;
        sp += h;
        src += sp >> 3;
        sp &= 7;
        ++dst;
    }
    const size_t whole = n >> 3;
    if (whole != 0) {
        if (sp == 0) {
            // whole < 2^28, so the byte count fits the copier's length.
            tavs::copy_elems(src, dst, int(whole));
        } else {
            for (size_t i = 0; i < whole; ++i)
                dst[i] = Order::byte(src + i, sp);
        }
        src += whole;
        dst += whole;
        n &= 7;
    }
    if (n != 0) Order::put(dst, 0, unsigned(n), Order::get(src, sp, unsigned(n)));
    return StatusOk;
}

} // namespace

extern "C" {
Status tavsCopy_1u_body(const Tav8u* src, int srcBitOffset, Tav8u* dst, int dstBitOffset, int len)
{
    return copy_bits<MsbFirst>(src, srcBitOffset, dst, dstBitOffset, len);
}

// A body of its own that passes its arguments on: the two names are not a
// sharing group, only the same operation.
Status tavsCopyLE_1u_body(const Tav8u* src, int srcBitOffset, Tav8u* dst, int dstBitOffset, int len)
{
    return tavsCopy_1u_body(src, srcBitOffset, dst, dstBitOffset, len);
}

Status tavsCopyBE_1u_body(const Tav8u* src, int srcBitOffset, Tav8u* dst, int dstBitOffset, int len)
{
    return copy_bits<LsbFirst>(src, srcBitOffset, dst, dstBitOffset, len);
}

// The fields go through a 64-bit accumulator (right-aligned, nbits valid
// bits) that is emptied in whole bytes before a field would not fit.
Status tavsPackBits_32u8u_body(const Tav32u* src, const Tav32s* bitCounts, int len, Tav8u* dst,
                               int dstBitOffset, Tav32s* totalBits)
{
    if (tavs::any_null(src, bitCounts, dst, totalBits)) return ErrNullPtr;
    if (len < 1 || dstBitOffset < 0) return ErrSize;
    Status status = StatusOk;
    uint64_t acc = 0;
    unsigned nbits = 0;
    uint32_t total = 0; // wraps like the 32-bit result it becomes
    const unsigned k = unsigned(dstBitOffset) & 7;
    if (k != 0) {
        // The leading k bits of the first byte are kept.
        acc = dst[0] >> (8 - k);
        nbits = k;
    }
    for (int i = 0; i < len; ++i) {
        int32_t c = bitCounts[i];
        if (c > 32 || c < 0) {
            c = c > 32 ? 32 : 0;
            status = WarnBitCount;
        }
        if (c == 0) continue;
        if (nbits + unsigned(c) > 64) {
            for (; nbits >= 8; nbits -= 8)
                *dst++ = Tav8u(acc >> (nbits - 8));
            acc &= low_mask(nbits);
        }
        acc = (acc << c) | (uint64_t(src[i]) & ((uint64_t(1) << c) - 1));
        nbits += unsigned(c);
        total += uint32_t(c);
    }
    for (; nbits >= 8; nbits -= 8)
        *dst++ = Tav8u(acc >> (nbits - 8));
    if (nbits != 0) {
        // The last partial byte keeps the low bits already in dst.
        const unsigned m = low_mask(nbits) << (8 - nbits);
        *dst = Tav8u((unsigned(acc << (8 - nbits)) & m) | (*dst & ~m & 0xFFu));
    }
    *totalBits = Tav32s(total);
    return status;
}
}
