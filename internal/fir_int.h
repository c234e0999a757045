// The 16-bit integer FIR records ("FI09", "FI10", "FI29", "FI31"): how taps
// become 16-bit values and a power of two, the record layout, the output
// shift with its rounding, the direct block path on 32-bit wrapping sums.
#pragma once

#include <climits>
#include <cmath>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/fir.h"
#include "internal/fir_kernel.h"
#include "internal/memory.h"

namespace tavs::fir {

inline IntState* ist_of(void* p) { return static_cast<IntState*>(p); }
inline const IntState* ist_of(const void* p) { return static_cast<const IntState*>(p); }

inline int32_t wrap_add(int32_t a, int32_t b) { return int32_t(uint32_t(a) + uint32_t(b)); }

// ---- tap rules ----------------------------------------------------------

// 16s taps: a tap of -32768 halves all of them and raises the factor by one.
inline int32_t taps_from_16s(const Tav16s* taps, int n, int32_t f, Tav16s* rt)
{
    bool halve = false;
    for (int i = 0; i < n; ++i) halve = halve || taps[i] == -32768;
    for (int i = 0; i < n; ++i) rt[i] = halve ? Tav16s(taps[n - 1 - i] >> 1) : taps[n - 1 - i];
    return halve ? wrap_add(f, 1) : f;
}

// 32s taps (parts of each value for complex): the largest magnitude, with
// -2147483648 negated as it wraps, is halved down to 32766 or less; every
// tap is shifted right as often and keeps its low 16 bits.
inline int shift_for_32s(const Tav32s* parts, int count)
{
    int32_t m = 0;
    for (int i = 0; i < count; ++i) {
        const int32_t a = parts[i] < 0 ? int32_t(0u - uint32_t(parts[i])) : parts[i];
        if (a > m) m = a;
    }
    int s = 0;
    while (m > 32766) {
        m >>= 1;
        ++s;
    }
    return s;
}
inline Tav16s tap16_of(int32_t v, int s) { return Tav16s(int16_t(uint16_t(uint32_t(v >> s) & 0xFFFFu))); }

// 32f taps: the power of two that brings the largest magnitude into
// [16383.5, 32767], searched down to -32 or up to 32; values rounded half
// away from zero in 64f.
inline int exp_for_32f(const Tav32f* parts, int count, double& g)
{
    double m = 0.0;
    for (int i = 0; i < count; ++i) {
        uint32_t b;
        std::memcpy(&b, &parts[i], 4);
        b &= 0x7FFFFFFFu;
        float a;
        std::memcpy(&a, &b, 4);
        if (a > m) m = a;
    }
    g = 1.0;
    int e = 0;
    if (m > 32767.0) {
        do {
            ++e;
            m *= 0.5;
            g *= 0.5;
        } while (!(e > 31 || m <= 32767.0));
    } else if (2.0 * m < 32767.0) {
        double m2 = 2.0 * m;
        do {
            --e;
            g *= 2.0;
            m2 *= 2.0;
        } while (!(e < -31 || m2 >= 32767.0));
    }
    return e;
}
inline Tav16s tap16_of_float(float v, double g)
{
    const double p = double(v) * g;
    if (!(p == p)) return 0;
    const double r = std::trunc(p + (p < 0 ? -0.5 : 0.5));
    if (r > 32767.0) return 32767;
    if (r < -32768.0) return -32768;
    return Tav16s(r);
}

// ---- layout ---------------------------------------------------------------

template <class E> inline E* itaps(const IntState* s) { return static_cast<E*>(s->taps); }
template <class E> inline E* itaps2(const IntState* s) { return static_cast<E*>(s->taps2); }
template <class E> inline E* idly(const IntState* s) { return static_cast<E*>(s->dlyLine); }

inline Status int_state_size(ICls c, int n, int* size)
{
    if (size == nullptr) return ErrNullPtr;
    if (n < 1) return ErrFilterLen;
    const int64_t b = int_state_bytes(c, n);
    if (b > INT_MAX) return ErrFilterLen;
    *size = int(b);
    return StatusOk;
}

// Lays an integer record of element E (Tav16s or Tav16sc) in buf; the taps
// are filled by the caller afterwards.
template <class E> IntState* lay_int(ICls c, int n, Tav8u* buf)
{
    Bump b(buf);
    IntState* s = b.take<IntState>(sizeof(IntState));
    std::memset(static_cast<void*>(s), 0, sizeof(IntState));
    const int64_t tb = int64_t(n) * sizeof(E);
    if (c == ICls::Stream16s) {
        s->taps = b.take<E>(tb);
        s->taps2 = s->taps;
    } else if (c == ICls::I32sc_16sc) {
        // Both copies in one piece.
        E* t = b.take<E>(2 * tb);
        s->taps = t;
        s->taps2 = t + n;
        s->dlyLine = b.take<E>((3 * int64_t(n) + 4) * sizeof(E));
        s->inPlaceBuf = b.take<E>(4096 * int64_t(sizeof(E)));
    } else {
        s->taps = b.take<E>(tb);
        s->taps2 = b.take<E>(tb);
        s->dlyLine = b.take<E>((3 * int64_t(n) + 4) * sizeof(E));
        s->inPlaceBuf = b.take<E>(4096 * int64_t(sizeof(E)));
    }
    s->tapsLen = n;
    s->dlyLen = n;
    s->blockLimit = block_limit(IsCx<E>::value ? Cls::C32 : Cls::F32, n);
    s->upFactor = s->downFactor = 1;
    return s;
}

template <class E> void int_store_dly(IntState* s, const E* dly)
{
    E* d = idly<E>(s);
    const int n = s->dlyLen;
    if (dly == nullptr) zero_n(d, n);
    else
        for (int i = 0; i < n; ++i) d[i] = dly[n - 1 - i];
    s->dlyIndex = 0;
}

template <class E> void sync_taps2(IntState* s) { copy_n(itaps<E>(s), itaps2<E>(s), s->tapsLen); }

// ---- output rule -----------------------------------------------------------

inline int out_shift(int32_t tapsFactor, int sf)
{
    int64_t sh = int64_t(tapsFactor) - sf;
    if (sh > 31) sh = 31;
    if (sh < -31) sh = -31;
    return int(sh);
}
inline Tav16s sat16(int32_t v) { return Tav16s(v > 32767 ? 32767 : v < -32768 ? -32768 : v); }

// Block records: left shift wrapping; right shift by k with ties to even,
// where k = 0 still adds the low bit of an odd sum (kept as it is).
inline Tav16s apply_shift(uint32_t s, int sh)
{
    if (sh > 0) return sat16(int32_t(s << sh));
    const int k = -sh;
    const uint32_t c = k >= 1 ? (1u << (k - 1)) - 1u : 0u;
    const uint32_t odd = uint32_t(int32_t(s) >> k) & 1u;
    return sat16(int32_t(s + c + odd) >> k);
}

// Stream records: a shift at or above 0 is a left shift; below 0 rounds by
// roundMode: 0 truncates, 1 ties to even, 2 ties away from zero.
inline Tav16s apply_stream_shift(uint32_t u, int sh, int mode)
{
    if (sh >= 0) return sat16(int32_t(u << sh));
    const int k = -sh;
    const int64_t s = int32_t(u);
    int64_t r;
    if (mode == 0) {
        r = s >> k;
    } else if (mode == 1) {
        r = (s + ((int64_t(1) << (k - 1)) - 1) + ((s >> k) & 1)) >> k;
    } else if (s >= 0) {
        r = (s >> k) + ((s & (int64_t(1) << (k - 1))) >> (k - 1));
    } else {
        r = (s >> k) + (((int64_t(1) << (k - 1)) + (s & ((int64_t(1) << k) - 1)) - 1) >> k);
    }
    return Tav16s(r > 32767 ? 32767 : r < -32768 ? -32768 : r);
}

// Outputs for cnt windows starting at x: the record's rule.
struct ShiftRule {
    int sh;
    int mode; // -1: block rule; 0, 1, 2: stream modes
    Tav16s one(uint32_t s) const { return mode < 0 ? apply_shift(s, sh) : apply_stream_shift(s, sh, mode); }
};
inline void emit_int(const Tav16s* h, int n, const Tav16s* x, Tav16s* dst, int cnt, ShiftRule r)
{
    for (int j = 0; j < cnt; ++j) dst[j] = r.one(dot_wrap(h, x + j, n));
}
inline void emit_int(const Tav16sc* h, int n, const Tav16sc* x, Tav16sc* dst, int cnt, ShiftRule r)
{
    for (int j = 0; j < cnt; ++j) {
        const Wrap2 s = dot_wrap(h, x + j, n);
        dst[j].re = r.one(s.re);
        dst[j].im = r.one(s.im);
    }
}

// The direct block path of the integer records (out of place).
template <class E> void int_direct(IntState* s, const E* src, E* dst, int len, ShiftRule r)
{
    const int n = s->tapsLen, R = (n + 3) & ~3;
    E* const dl = idly<E>(s);
    E* D = dl + s->dlyIndex;
    const E* rt = itaps2<E>(s);
    s->dlyIndex = 0;
    if (len <= s->blockLimit) {
        copy_n(src, D + n, len);
        emit_int(rt, n, D + 1, dst, len, r);
        move_n(D + len, dl, n);
    } else {
        copy_n(src, D + n, s->blockLimit);
        emit_int(rt, n, D + 1, dst, R, r);
        copy_n(src + len - n, dl, n);
        emit_int(rt, n, src + R - n + 1, dst + R, len - R, r);
    }
}

// In place: chunks of 4096 through inPlaceBuf.
template <class E> void int_block(IntState* s, const E* src, E* dst, int len, int sf, bool inPlace)
{
    const ShiftRule r{out_shift(s->tapsFactor, sf), -1};
    if (!inPlace) {
        int_direct<E>(s, src, dst, len, r);
        return;
    }
    E* const tmp = static_cast<E*>(s->inPlaceBuf);
    for (int p = 0; p < len; p += 4096) {
        const int c = len - p < 4096 ? len - p : 4096;
        int_direct<E>(s, src + p, tmp, c, r);
        copy_n(tmp, dst + p, c);
    }
}

template <class E> E int_one(IntState* s, E x, int sf)
{
    const int n = s->tapsLen;
    E* d = idly<E>(s);
    int idx = s->dlyIndex;
    d[idx] = x;
    d[idx + n] = x;
    idx = idx + 1 == n ? 0 : idx + 1;
    s->dlyIndex = idx;
    E y;
    emit_int(itaps<E>(s), n, d + idx, &y, 1, ShiftRule{out_shift(s->tapsFactor, sf), -1});
    return y;
}

} // namespace tavs::fir
