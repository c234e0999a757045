// Carving records out of caller blocks: alignment of pointers and sizes to
// 64 (or 16/32) bytes, and the tags that mark each record kind. Sizes are
// computed in 64 bits and only narrowed once a query reports them.
#pragma once

#include <cstdint>

namespace tavs {

// Size helpers: n rounded up to a multiple of 16, 32 or 64 bytes.
constexpr int64_t a16(int64_t n) { return (n + 15) & ~int64_t(15); }
constexpr int64_t a32(int64_t n) { return (n + 31) & ~int64_t(31); }
constexpr int64_t a64(int64_t n) { return (n + 63) & ~int64_t(63); }

// p moved up to the next multiple of 64 bytes: p + ((-p) & 63).
template <class T> inline T* align64(T* p)
{
    const uintptr_t u = reinterpret_cast<uintptr_t>(p);
    return reinterpret_cast<T*>(u + ((0 - u) & 63u));
}
template <class T> inline T* align_up(T* p, uintptr_t a)
{
    const uintptr_t u = reinterpret_cast<uintptr_t>(p);
    return reinterpret_cast<T*>(u + ((0 - u) & (a - 1)));
}

// A bump allocator over a caller block that hands out 64-byte aligned pieces.
class Carver {
public:
    explicit Carver(void* p) : cur_(align64(static_cast<unsigned char*>(p))) {}
    unsigned char* here() const { return cur_; }
    template <class T> T* take(int64_t bytes)
    {
        T* r = reinterpret_cast<T*>(cur_);
        cur_ = align64(cur_ + bytes);
        return r;
    }

private:
    unsigned char* cur_;
};

// Record tags: the first 32-bit word of every record. A zero tag marks a
// freed record or one whose Init failed.
namespace tag {
constexpr int32_t FFT_C_16sc = 1;
constexpr int32_t FFT_C_16s = 2;
constexpr int32_t FFT_R_16s = 3;
constexpr int32_t FFT_C_32fc = 4;
constexpr int32_t FFT_C_32f = 5;
constexpr int32_t FFT_R_32f = 6;
constexpr int32_t FFT_C_64fc = 7;
constexpr int32_t FFT_C_64f = 8;
constexpr int32_t FFT_R_64f = 9;
// Four-character words, little-endian: "LAMC", "MAMC", "NAMC", "OAMC".
constexpr int32_t FFT_C_32sc = 0x434D414C;
constexpr int32_t FFT_C_32s = 0x434D414D;
constexpr int32_t FFT_R_32s = 0x434D414E;
constexpr int32_t FFT_R_16s32s = 0x434D414F;
} // namespace tag

} // namespace tavs
