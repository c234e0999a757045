// The movers' bodies, shared by every element size of their families and
// called directly by other families (the zero-fill path of the _Sfs forms).
#pragma once

#include "internal/types.h"

extern "C" {
// dst[0 .. len) = all-zero bytes, elements of 1, 2, 4, 8 or 16 bytes.
// ErrNullPtr for null dst, then ErrSize for len < 1.
TAVS_BODY Status tavs_zero_1(void* dst, int len);
TAVS_BODY Status tavs_zero_2(void* dst, int len);
TAVS_BODY Status tavs_zero_4(void* dst, int len);
TAVS_BODY Status tavs_zero_8(void* dst, int len);
TAVS_BODY Status tavs_zero_16(void* dst, int len);

// Forward copy of len elements of 1, 2, 4, 8 or 16 bytes; overlap is not
// handled. ErrNullPtr for a null pointer, then ErrSize for len < 1.
TAVS_BODY Status tavs_copy_1(const void* src, void* dst, int len);
TAVS_BODY Status tavs_copy_2(const void* src, void* dst, int len);
TAVS_BODY Status tavs_copy_4(const void* src, void* dst, int len);
TAVS_BODY Status tavs_copy_8(const void* src, void* dst, int len);
TAVS_BODY Status tavs_copy_16(const void* src, void* dst, int len);
}

namespace tavs {
// The zero body for elements of type T.
template <class T> inline Status zero_fill(T* dst, int len)
{
    if constexpr (sizeof(T) == 1) return tavs_zero_1(dst, len);
    else if constexpr (sizeof(T) == 2) return tavs_zero_2(dst, len);
    else if constexpr (sizeof(T) == 4) return tavs_zero_4(dst, len);
    else if constexpr (sizeof(T) == 8) return tavs_zero_8(dst, len);
    else return tavs_zero_16(dst, len);
}

// The copy body for elements of type T.
template <class T> inline Status copy_elems(const T* src, T* dst, int len)
{
    if constexpr (sizeof(T) == 1) return tavs_copy_1(src, dst, len);
    else if constexpr (sizeof(T) == 2) return tavs_copy_2(src, dst, len);
    else if constexpr (sizeof(T) == 4) return tavs_copy_4(src, dst, len);
    else if constexpr (sizeof(T) == 8) return tavs_copy_8(src, dst, len);
    else return tavs_copy_16(src, dst, len);
}
} // namespace tavs
