// The documented size arithmetic of the FFT records, written out in the
// tests on their own so the library's numbers are checked against it.
#pragma once

#include <cstdint>

#include "tavs.h"

namespace fs {

struct Sizes {
    int64_t spec, init, work;
};

inline int64_t A(int64_t n) { return (n + 67) & ~int64_t(63); }
inline int64_t r64(int64_t n) { return (n + 63) & ~int64_t(63); }

struct Prec {
    bool wide; // 64-bit data
    int64_t B(int64_t n) const { return wide ? (16 * n + 79) & ~int64_t(63) : (8 * n + 71) & ~int64_t(63); }
    int64_t C(int64_t n) const { return wide ? ((4 * n + 63) & ~int64_t(63)) + 16448 : ((2 * n + 63) & ~int64_t(63)) + 8256; }
    int64_t col() const { return wide ? 64 : 32; }
    int64_t elem() const { return wide ? 16 : 8; }
    int ffb(int order) const
    {
        static const int f32[17] = {0, 0, 5, 6, 7, 8, 8, 8, 10, 10, 10, 10, 8, 8, 10, 10, 10};
        static const int f64[17] = {0, 4, 5, 6, 7, 7, 8, 9, 9, 9, 8, 8, 9, 9, 9, 9, 9};
        return wide ? f64[order - 11] : f32[order - 11];
    }
    Sizes core(int m) const
    {
        const int F = ffb(m);
        if (F == 0) return {C(int64_t(1) << m), 0, 0};
        const int M = m - F;
        const int64_t R = int64_t(1) << F;
        Sizes s = M > 10 ? core(M) : Sizes{B(int64_t(1) << M), 0, 0};
        s.spec += B(R) + elem() * (int64_t(1) << m);
        s.init += A(R) + col() * R;
        s.work = std::max(s.work, col() * R);
        return s;
    }
};

inline Sizes complex_sizes(int order, bool wide)
{
    const Prec p{wide};
    const int64_t N = int64_t(1) << order;
    if (order <= 5) return {208, 0, 0};
    if (order <= 10) return {p.B(N) + A(N) + 256, 0, 0};
    const Sizes c = p.core(order);
    const int64_t sine = wide ? (2 * N + 71) & ~int64_t(63) : A(N);
    return {c.spec + A(N) + 256, sine + c.init + 64, c.work > 0 ? c.work + 64 : 0};
}

inline Sizes real_sizes(int order, bool wide)
{
    const Prec p{wide};
    const int64_t N = int64_t(1) << order;
    if (order <= 5) return {208, 0, 0};
    int64_t T = (N / 4 * p.elem() + 63) & ~int64_t(63);
    if (!wide && order >= 19) T = (8 * (int64_t(1) << (order - 12)) + 8255) & ~int64_t(63);
    if (wide && order >= 18) T = (16 * (int64_t(1) << (order - 11)) + 8255) & ~int64_t(63);
    if (order == 6) return {2 * T + 256, 0, 0};
    const int m = order - 1;
    const int64_t M = int64_t(1) << m;
    const int64_t D = wide ? (2 * N + 71) & ~int64_t(63) : A(N);
    if (order <= 11) return {p.B(M) + A(M) + 2 * T + 256, order == 11 ? D + 64 : 0, 0};
    const Sizes c = p.core(m);
    return {c.spec + A(M) + 2 * T + 256, D + c.init + 64, c.work > 0 ? c.work + 64 : 0};
}

// 16-bit kinds: kind 0 C_16sc, 1 C_16s, 2 R_16s.
inline Sizes small_sizes(int kind, int order, int hint)
{
    const int64_t N = int64_t(1) << order;
    if (order == 0) return {136, 0, 0};
    if ((hint == 0 || hint == 1) && order < 9) {
        const int64_t init = ((N / 2 + 65) & ~int64_t(63)) + 64;
        if (kind == 2) return {r64(4 * N) + A(N / 2) + r64(8 * N) + 192, init, 4 * N + 72};
        return {r64(8 * N) + A(N) + 192, init, kind == 1 ? 12 * N + 64 : 8 * N + 64};
    }
    const Sizes f = kind == 2 ? real_sizes(order, false) : complex_sizes(order, false);
    return {f.spec + 192, f.init + 64, f.work + (kind == 2 ? 4 * N + 72 : 8 * N + 64)};
}

// Wide kinds: kind 0 C_32sc / C_32s, 1 R_32s, 2 R_16s32s.
inline Sizes wide_sizes(int kind, int order)
{
    const int64_t N = int64_t(1) << order;
    const Sizes f = kind == 0 ? complex_sizes(order, true) : kind == 1 ? real_sizes(order, true) : real_sizes(order, false);
    const int64_t extra = kind == 0 ? 16 * N : kind == 1 ? 8 * N + 16 : 4 * N + 8;
    const int64_t w = f.work + extra;
    return {f.spec + 128, f.init > 0 ? f.init + 64 : 0, w > 0 ? w + 64 : 0};
}

} // namespace fs
