// The FIR filter's records: one header for the floating records and one for
// the 16-bit integer records, told apart by the tag; the tags of every
// kind (single-rate, multi-rate twin, stream); the state sizes; the element
// helpers the kernels share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "internal/record.h"
#include "internal/types.h"

namespace tavs::fir {

// Four ASCII letters read big-endian: "FI01" is 0x46493031.
constexpr int32_t word(const char (&s)[5])
{
    return int32_t(uint32_t(uint8_t(s[0])) << 24 | uint32_t(uint8_t(s[1])) << 16 |
                   uint32_t(uint8_t(s[2])) << 8 | uint32_t(uint8_t(s[3])));
}
static_assert(word("FI01") == 0x46493031 && word("FI34") == 0x46493334);

// Header of every floating record (taps in 32f, 32fc, 64f or 64fc). The
// multi-rate fields sit here too so that those tags use the same record.
struct State {
    int32_t tag;
    void* taps;        // taps reversed: taps[i] is the caller's taps[tapsLen-1-i]
    void* dlyLine;     // 3*tapsLen + 4 values, oldest first
    int32_t tapsLen;
    int32_t upFactor, downFactor, upPhase, downPhase; // multi-rate only
    int32_t blockLimit;
    int32_t tapsFactor; // integer-tap records only
    void* fftSpec;      // null when no FFT was prepared
    void* fftTaps;      // transformed taps, fftLen elements
    int32_t fftLen;     // -1 when the record has no FFT path
    int32_t dlyIndex;   // ring position in [0, tapsLen)
    int32_t dlyLen;     // values Get/SetDlyLine move
    void* fftWork;      // fftLen elements
    void* fftBuf;       // FFT scratch, null when it needs none
    int32_t fftBufSize;
    void* inPlaceBuf; // 4096 elements
    int32_t isAllocated;
    int32_t roundMode;
    int32_t kernelMode; // multi-rate table choice
    void* phaseTaps;    // multi-rate tables
    void* phaseIndex;
};
static_assert(offsetof(State, taps) == 8 && offsetof(State, tapsLen) == 24 && offsetof(State, blockLimit) == 44 &&
              offsetof(State, fftSpec) == 56 && offsetof(State, fftLen) == 72 && offsetof(State, inPlaceBuf) == 112 &&
              sizeof(State) == 152);

// Header of the 16-bit integer records ("FI09", "FI10", "FI29", "FI31" and
// their multi-rate twins): no FFT fields.
struct IntState {
    int32_t tag;
    void* taps; // 16-bit values, reversed
    void* dlyLine;
    int32_t tapsLen;
    int32_t blockLimit;
    int32_t tapsFactor;
    void* taps2; // second copy, same order, for the block kernel
    int32_t dlyIndex;
    int32_t isAllocated;
    void* inPlaceBuf;
    int32_t dlyLen;
    int32_t roundMode; // stream records: 0, 1 or 2
    int32_t upFactor, downFactor, upPhase, downPhase;
    int32_t kernelMode;
    void* phaseTaps;
    void* phaseIndex;
};
static_assert(sizeof(IntState) == 112);

// Tags: single-rate and the multi-rate twin of each record.
namespace tag {
constexpr int32_t F32 = word("FI01"), F32Mr = word("FI03");
constexpr int32_t C32 = word("FI02"), C32Mr = word("FI04");
constexpr int32_t F32_16s = word("FI05"), F32_16sMr = word("FI07");
constexpr int32_t C32_16sc = word("FI06"), C32_16scMr = word("FI08");
constexpr int32_t I32s_16s = word("FI09"), I32s_16sMr = word("FI11");
constexpr int32_t I32sc_16sc = word("FI10"), I32sc_16scMr = word("FI12");
constexpr int32_t F64 = word("FI13"), F64Mr = word("FI15");
constexpr int32_t C64 = word("FI14"), C64Mr = word("FI16");
constexpr int32_t F64_32f = word("FI17"), F64_32fMr = word("FI19");
constexpr int32_t C64_32fc = word("FI18"), C64_32fcMr = word("FI20");
constexpr int32_t F64_32s = word("FI21"), F64_32sMr = word("FI23");
constexpr int32_t C64_32sc = word("FI22"), C64_32scMr = word("FI24");
constexpr int32_t F64_16s = word("FI25"), F64_16sMr = word("FI27");
constexpr int32_t C64_16sc = word("FI26"), C64_16scMr = word("FI28");
constexpr int32_t I16s = word("FI29"), I16sMr = word("FI30");
constexpr int32_t S16s = word("FI31"), S16sMr = word("FI32");
constexpr int32_t S32f = word("FI33"), S32fMr = word("FI34");
} // namespace tag

// A complex value; the same bytes as Tav32fc/Tav64fc/Tav16sc/Tav32sc.
template <class F> struct Cx {
    F re, im;
};
template <class T> struct IsCx {
    static constexpr bool value = false;
};
template <class F> struct IsCx<Cx<F>> {
    static constexpr bool value = true;
};
template <> struct IsCx<Tav32fc> {
    static constexpr bool value = true;
};
template <> struct IsCx<Tav64fc> {
    static constexpr bool value = true;
};
template <> struct IsCx<Tav16sc> {
    static constexpr bool value = true;
};
template <> struct IsCx<Tav32sc> {
    static constexpr bool value = true;
};

// Size classes of the state-size table, by the record's element.
enum class Cls { F32, C32, F64, C64 };
template <class X> constexpr Cls cls_of()
{
    if constexpr (std::is_same_v<X, Tav32f>) return Cls::F32;
    else if constexpr (std::is_same_v<X, Tav32fc>) return Cls::C32;
    else if constexpr (std::is_same_v<X, Tav64f>) return Cls::F64;
    else return Cls::C64;
}
// Tap count from which a record prepares the FFT path.
constexpr int fft_from(Cls c) { return c == Cls::F32 ? 64 : c == Cls::F64 ? 32 : 16; }
// Block length from which the block call takes the FFT path.
constexpr int fft_threshold(Cls c) { return (c == Cls::F32 || c == Cls::F64) ? 512 : 256; }
constexpr bool is_real(Cls c) { return c == Cls::F32 || c == Cls::F64; }
// Elements the block path may run directly on: R + 1 for real, R for complex.
constexpr int block_limit(Cls c, int n) { return ((n + 3) & ~3) + (is_real(c) ? 1 : 0); }

// Order of the FFT for n taps: b + 1 with b the smallest integer of at least
// 2 such that 2^b > n.
inline int fft_order(int n)
{
    int b = 2;
    while (b < 31 && (int64_t(1) << b) <= n) ++b;
    return b + 1;
}

// FFT sizes of a record: L and the record, init and work bytes; all zero when
// the record has no FFT.
struct FftSizes {
    int order = 0;
    int64_t L = 0, s1 = 0, s2 = 0, s3 = 0;
};

// The state size of a floating record from the FFT sizes.
constexpr int64_t float_state_bytes(Cls c, int64_t n, const FftSizes& f)
{
    const int64_t s = f.s1 + f.s2 + f.s3, L = f.L;
    switch (c) {
    case Cls::F32: return a16(4 * n) + a16(12 * n + 16) + 2 * a16(4 * L) + s + 16576;
    case Cls::C32: return a16(8 * n) + a16(24 * n + 32) + 2 * a16(8 * L) + s + 32960;
    case Cls::F64: return a32(8 * n) + a32(24 * n + 32) + 2 * a16(8 * L) + s + 33024;
    case Cls::C64: return a32(16 * n) + a32(48 * n + 64) + 32 * L + s + 65744;
    }
    return 0;
}
// The "FI21" record made from 32s taps, which never has an FFT.
constexpr int64_t f64_32s_state_bytes(int64_t n) { return a16(24 * n + 32) + a16(8 * n) + 32975; }

// Integer records.
enum class ICls { I16s, I32s_16s, I32sc_16sc, Stream16s };
constexpr int64_t int_state_bytes(ICls c, int64_t n)
{
    switch (c) {
    case ICls::I16s: return a16(8 * n) + a16(6 * n + 8) + a16(2 * n) + 16512;
    case ICls::I32s_16s: return a16(8 * n) + a16(6 * n + 8) + a16(4 * n) + 16512;
    case ICls::I32sc_16sc: return a16(12 * n + 16) + a16(8 * n) + 16512;
    case ICls::Stream16s: return a16(2 * n) + 128;
    }
    return 0;
}

// A 16-byte aligned bump allocator over a record block.
class Bump {
public:
    explicit Bump(void* p) : cur_(align_up(static_cast<unsigned char*>(p), 16)) {}
    template <class T> T* take(int64_t bytes)
    {
        T* r = reinterpret_cast<T*>(cur_);
        cur_ = align_up(cur_ + bytes, 16);
        return r;
    }
    unsigned char* here() const { return cur_; }

private:
    unsigned char* cur_;
};

// Plain element moves inside records (the ranges never overlap unless the
// caller says so with move).
template <class T> inline void copy_n(const T* s, T* d, int64_t n)
{
    if (n > 0) std::memcpy(static_cast<void*>(d), static_cast<const void*>(s), size_t(n) * sizeof(T));
}
template <class T> inline void move_n(const T* s, T* d, int64_t n)
{
    if (n > 0) std::memmove(static_cast<void*>(d), static_cast<const void*>(s), size_t(n) * sizeof(T));
}
template <class T> inline void zero_n(T* d, int64_t n)
{
    if (n > 0) std::memset(static_cast<void*>(d), 0, size_t(n) * sizeof(T));
}

} // namespace tavs::fir
