// Internal allocation: every block of the library comes from these bodies
// (the ones behind tavsMalloc_*) and returns through tavsFree_body.
#pragma once

extern "C" {
// Blocks of len elements of 1, 2, 4, 8 or 16 bytes; null for len < 1 or when
// memory is short.
TAVS_BODY void* tavs_malloc_1(int len);
TAVS_BODY void* tavs_malloc_2(int len);
TAVS_BODY void* tavs_malloc_4(int len);
TAVS_BODY void* tavs_malloc_8(int len);
TAVS_BODY void* tavs_malloc_16(int len);
}

namespace tavs {
// A byte block for internal scratch, the body of tavsMalloc_8u.
inline void* alloc_bytes(int bytes) { return tavs_malloc_1(bytes); }
} // namespace tavs
