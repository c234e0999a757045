// Bodies of the move family, shared by every element size, a typed helper
// that reaches them from other families, and the 16-byte load and store
// helpers of the set, flip and swap kernels. The set, flip and swap bodies
// have one name each (tavsSet_16s_body, tavsFlip_32f_I_body, ...) and are
// declared with the exported prototypes in tavs_bodies.h.
#pragma once

#include <emmintrin.h>

#include <cstdint>

#include "internal/types.h"

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
    if constexpr (sizeof(T) == 1)
        return tavs_move_1(src, dst, len);
    else if constexpr (sizeof(T) == 2)
        return tavs_move_2(src, dst, len);
    else if constexpr (sizeof(T) == 4)
        return tavs_move_4(src, dst, len);
    else if constexpr (sizeof(T) == 8)
        return tavs_move_8(src, dst, len);
    else
        return tavs_move_16(src, dst, len);
}
} // namespace tavs

namespace tavs::bytes {
inline __m128i load16(const unsigned char* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
inline void store16(unsigned char* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
// p on a 16-byte boundary.
inline void store16a(unsigned char* p, __m128i v) { _mm_store_si128(reinterpret_cast<__m128i*>(p), v); }
} // namespace tavs::bytes
