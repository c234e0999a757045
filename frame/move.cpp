// tavsMove_*: copy with overlap handled, one body per element size. The
// bytes land as if copied through a temporary: memmove picks the direction
// of the copy from the two addresses.
#include <cstring>

#include "internal/body.h"
#include "internal/movers_more.h"

namespace {
Status move_bytes(const void* src, void* dst, int len, size_t elemSize)
{
    if (src == nullptr || dst == nullptr) return ErrNullPtr;
    if (len < 1) return ErrSize;
    std::memmove(dst, src, size_t(len) * elemSize);
    return StatusOk;
}
} // namespace

extern "C" {
Status tavs_move_1(const void* src, void* dst, int len) { return move_bytes(src, dst, len, 1); }
Status tavs_move_2(const void* src, void* dst, int len) { return move_bytes(src, dst, len, 2); }
Status tavs_move_4(const void* src, void* dst, int len) { return move_bytes(src, dst, len, 4); }
Status tavs_move_8(const void* src, void* dst, int len) { return move_bytes(src, dst, len, 8); }
Status tavs_move_16(const void* src, void* dst, int len) { return move_bytes(src, dst, len, 16); }
}
