// tavsSet_*: the value in every element. Every element size divides 16, so
// the 16 bytes that start at any element boundary are the same pattern; the
// kernel stores that pattern with the destination on 16-byte boundaries.
#include <cstring>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/movers_more.h"

namespace {
using tavs::bytes::load16;
using tavs::bytes::store16;
using tavs::bytes::store16a;

// n bytes of dst from the 32-byte pattern pat (the value repeated, period
// dividing 16): byte i of dst is pat[i & 15], pat[r .. r + 16) is the same
// pattern seen from byte r.
void fill(unsigned char* d, size_t n, const unsigned char* pat)
{
    if (n < 16) {
        for (size_t i = 0; i < n; ++i)
            d[i] = pat[i & 15];
        return;
    }
    store16(d, load16(pat));
    const size_t off = size_t(-reinterpret_cast<uintptr_t>(d)) & 15;
    const __m128i v = load16(pat + off);
    unsigned char* p = d + off;
    size_t m = n - off;
    for (; m >= 64; m -= 64, p += 64) {
        store16a(p, v);
        store16a(p + 16, v);
        store16a(p + 32, v);
        store16a(p + 48, v);
    }
    for (; m >= 16; m -= 16, p += 16)
        store16a(p, v);
    if (m) store16(d + n - 16, load16(pat + ((n - 16) & 15)));
}

template <class T> Status set_elems(const T& val, T* dst, int len)
{
    static_assert(16 % sizeof(T) == 0);
    if (Status st = tavs::check_ptrs_len(len, dst); st != StatusOk) return st;
    unsigned char pat[32];
    for (size_t i = 0; i < sizeof pat; i += sizeof(T))
        std::memcpy(pat + i, &val, sizeof(T));
    fill(reinterpret_cast<unsigned char*>(dst), size_t(len) * sizeof(T), pat);
    return StatusOk;
}
} // namespace

extern "C" {
Status tavsSet_8u_body(Tav8u val, Tav8u* dst, int len) { return set_elems(val, dst, len); }
Status tavsSet_16s_body(Tav16s val, Tav16s* dst, int len) { return set_elems(val, dst, len); }
Status tavsSet_16sc_body(Tav16sc val, Tav16sc* dst, int len) { return set_elems(val, dst, len); }
Status tavsSet_32f_body(Tav32f val, Tav32f* dst, int len) { return set_elems(val, dst, len); }
Status tavsSet_32s_body(Tav32s val, Tav32s* dst, int len) { return set_elems(val, dst, len); }
Status tavsSet_32fc_body(Tav32fc val, Tav32fc* dst, int len) { return set_elems(val, dst, len); }
Status tavsSet_32sc_body(Tav32sc val, Tav32sc* dst, int len) { return set_elems(val, dst, len); }
Status tavsSet_64f_body(Tav64f val, Tav64f* dst, int len) { return set_elems(val, dst, len); }
Status tavsSet_64s_body(Tav64s val, Tav64s* dst, int len) { return set_elems(val, dst, len); }
Status tavsSet_64fc_body(Tav64fc val, Tav64fc* dst, int len) { return set_elems(val, dst, len); }
Status tavsSet_64sc_body(Tav64sc val, Tav64sc* dst, int len) { return set_elems(val, dst, len); }
}
