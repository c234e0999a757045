// The recursive filter's records: one header for every record kind, told
// apart by the tag; the three tap layouts (arbitrary order, biquad cascade,
// direct form I cascade); the state sizes; the traits that tie each public
// record type to its tap precision, delay type and tags.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "internal/record.h"
#include "internal/types.h"

namespace tavs::iir {

// The header every record starts with. Taps and delay line follow it in the
// same block; the pointers are absolute, so a record cannot be moved.
struct Record {
    int32_t tag;
    void* taps;      // held taps, already divided by a0
    void* dlyLine;   // delay values
    int dlyLen;      // order, 2*numBq or 4*numBq
    int numBq;       // 0 for the arbitrary-order layout
    int isAllocated; // 1 when InitAlloc made the block
};
static_assert(offsetof(Record, tag) == 0 && offsetof(Record, taps) == 8 && offsetof(Record, dlyLine) == 16 &&
              offsetof(Record, dlyLen) == 24 && offsetof(Record, numBq) == 28 &&
              offsetof(Record, isAllocated) == 32 && sizeof(Record) == 40);

// A complex value in the taps' precision; the same bytes as Tav32fc/Tav64fc.
template <class F> struct Cx {
    F re, im;
};
template <class F> inline Cx<F> operator+(Cx<F> a, Cx<F> b) { return {a.re + b.re, a.im + b.im}; }
template <class F> inline Cx<F> operator-(Cx<F> a, Cx<F> b) { return {a.re - b.re, a.im - b.im}; }
template <class F> inline Cx<F> operator*(Cx<F> a, Cx<F> b)
{
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
static_assert(sizeof(Cx<float>) == sizeof(Tav32fc) && sizeof(Cx<double>) == sizeof(Tav64fc));

template <class T> struct IsCx {
    static constexpr bool value = false;
};
template <class F> struct IsCx<Cx<F>> {
    static constexpr bool value = true;
};

// Four ASCII letters read big-endian: "II01" is 0x49493031.
constexpr int32_t word(const char (&s)[5])
{
    return int32_t(uint32_t(uint8_t(s[0])) << 24 | uint32_t(uint8_t(s[1])) << 16 |
                   uint32_t(uint8_t(s[2])) << 8 | uint32_t(uint8_t(s[3])));
}
static_assert(word("II01") == 0x49493031 && word("II30") == 0x49493330);

enum class Layout { Arb, Bq, Df1, None };

// Size classes of the state-size table.
enum class Cls { F32, C32, F64, C64 };

// Bytes a record of order n (or n sections) needs, including the slack
// that aligning the caller's block up to 32 bytes may take. Computed in 64
// bits; the caller rejects values above the 32-bit range.
constexpr int64_t state_bytes(Cls c, Layout l, int64_t n)
{
    switch (c) {
    case Cls::F32:
        if (l == Layout::Arb) return a16(4 * n + 4) + a16(8 * n + 4) + 128;
        if (l == Layout::Bq) return a16(8 * n) + a16(20 * n) + 128;
        return a16(20 * n) + 16 * n + 128;
    case Cls::C32:
        if (l == Layout::Arb) return a32(8 * n + 8) + a32(16 * n + 8) + 128;
        return a32(16 * n) + a32(40 * n) + 160;
    case Cls::F64:
        if (l == Layout::Arb) return a16(8 * n + 8) + a16(16 * n + 8) + 128;
        if (l == Layout::Bq) return a16(40 * n) + 16 * n + 96;
        return a16(40 * n) + 48 * n + 96;
    case Cls::C64:
        if (l == Layout::Arb) return 48 * n + 160;
        return 112 * n + 128;
    }
    return 0;
}

// Held taps: 2n+1 for the arbitrary order, 5 per section otherwise. Caller's
// taps: 2n+2, or 6 per section. Delay values: n+1 (the last one stays 0),
// 2 or 4 per section.
constexpr int64_t held_taps(Layout l, int64_t n) { return l == Layout::Arb ? 2 * n + 1 : 5 * n; }
constexpr int64_t given_taps(Layout l, int64_t n) { return l == Layout::Arb ? 2 * n + 2 : 6 * n; }
constexpr int64_t dly_values(Layout l, int64_t n)
{
    return l == Layout::Arb ? n + 1 : (l == Layout::Bq ? 2 * n : 4 * n);
}
constexpr int dly_len(Layout l, int n) { return l == Layout::Arb ? n : (l == Layout::Bq ? 2 * n : 4 * n); }

// Each public record type: its tap precision (also the element type of its
// delay line, except in the direct form I of 32s data), its size class and
// its three tags (0 where a layout does not exist; no record carries tag 0).
template <class R> struct Traits;

#define TAVS_IIR_TRAITS(REC, TAP, CLS, ARB, BQ, DF1)                                                         \
    template <> struct Traits<REC> {                                                                         \
        using Tap = TAP;                                                                                     \
        static constexpr Cls cls = Cls::CLS;                                                                 \
        static constexpr int32_t arb = ARB, bq = BQ, df1 = DF1;                                              \
    };

} // namespace tavs::iir

// The public record types: the same header, each a distinct C type.
struct IIRState_32f : tavs::iir::Record {};
struct IIRState_32fc : tavs::iir::Record {};
struct IIRState32f_16s : tavs::iir::Record {};
struct IIRState32fc_16sc : tavs::iir::Record {};
struct IIRState32s_16s : tavs::iir::Record {};
struct IIRState32sc_16sc : tavs::iir::Record {};
struct IIRState_64f : tavs::iir::Record {};
struct IIRState_64fc : tavs::iir::Record {};
struct IIRState64f_32f : tavs::iir::Record {};
struct IIRState64fc_32fc : tavs::iir::Record {};
struct IIRState64f_32s : tavs::iir::Record {};
struct IIRState64fc_32sc : tavs::iir::Record {};
struct IIRState64f_16s : tavs::iir::Record {};
struct IIRState64fc_16sc : tavs::iir::Record {};

namespace tavs::iir {
using C32 = Cx<float>;
using C64 = Cx<double>;
TAVS_IIR_TRAITS(IIRState_32f, float, F32, word("II01"), word("II02"), word("II29"))
TAVS_IIR_TRAITS(IIRState_32fc, C32, C32, word("II03"), word("II04"), 0)
TAVS_IIR_TRAITS(IIRState32f_16s, float, F32, word("II05"), word("II06"), 0)
TAVS_IIR_TRAITS(IIRState32fc_16sc, C32, C32, word("II07"), word("II08"), 0)
TAVS_IIR_TRAITS(IIRState32s_16s, float, F32, word("II09"), word("II10"), 0)
TAVS_IIR_TRAITS(IIRState32sc_16sc, C32, C32, word("II11"), word("II12"), 0)
TAVS_IIR_TRAITS(IIRState_64f, double, F64, word("II13"), word("II14"), 0)
TAVS_IIR_TRAITS(IIRState_64fc, C64, C64, word("II15"), word("II16"), 0)
TAVS_IIR_TRAITS(IIRState64f_32f, double, F64, word("II17"), word("II18"), 0)
TAVS_IIR_TRAITS(IIRState64fc_32fc, C64, C64, word("II19"), word("II20"), 0)
TAVS_IIR_TRAITS(IIRState64f_32s, double, F64, word("II21"), word("II22"), word("II30"))
TAVS_IIR_TRAITS(IIRState64fc_32sc, C64, C64, word("II23"), word("II24"), 0)
TAVS_IIR_TRAITS(IIRState64f_16s, double, F64, word("II25"), word("II26"), 0)
TAVS_IIR_TRAITS(IIRState64fc_16sc, C64, C64, word("II27"), word("II28"), 0)
#undef TAVS_IIR_TRAITS

// The layout a tag stands for in record type R, or None for a foreign tag.
template <class R> constexpr Layout layout_of(int32_t tag)
{
    using Tr = Traits<R>;
    if (tag == Tr::arb) return Layout::Arb;
    if (tag == Tr::bq) return Layout::Bq;
    if (Tr::df1 != 0 && tag == Tr::df1) return Layout::Df1;
    return Layout::None;
}
template <class R> constexpr int32_t tag_of(Layout l)
{
    return l == Layout::Arb ? Traits<R>::arb : (l == Layout::Bq ? Traits<R>::bq : Traits<R>::df1);
}

} // namespace tavs::iir

// Bodies shared by several exported names (the same size formula, the same
// tap store).
extern "C" {
TAVS_BODY Status tavs_iir_size_32s_16s(int order, int* pBufferSize);
TAVS_BODY Status tavs_iir_size_32s_bq_16s(int numBq, int* pBufferSize);
TAVS_BODY Status tavs_iir_size_32sc_16sc(int order, int* pBufferSize);
TAVS_BODY Status tavs_iir_size_32sc_bq_16sc(int numBq, int* pBufferSize);
// SetTaps of 32fc taps, for the 32fc records and the 32sc_16sc records.
TAVS_BODY Status tavs_iir_settaps_32fc(const Tav32fc* pTaps, tavs::iir::Record* pState);
}
