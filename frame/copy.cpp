// tavsCopy_*: a forward copy of len * elemSize bytes, one body per element
// size. Overlapping vectors are not handled (tavsMove_* is for that).
#include <cstring>

#include "internal/body.h"
#include "internal/movers.h"

namespace {
Status copy_bytes(const void* src, void* dst, int len, size_t elemSize)
{
    if (src == nullptr || dst == nullptr) return ErrNullPtr;
    if (len < 1) return ErrSize;
    if (src == dst) return StatusOk; // the in-place shortcuts of other families copy onto themselves
    std::memcpy(dst, src, size_t(len) * elemSize);
    return StatusOk;
}
} // namespace

extern "C" {
Status tavs_copy_1(const void* src, void* dst, int len) { return copy_bytes(src, dst, len, 1); }
Status tavs_copy_2(const void* src, void* dst, int len) { return copy_bytes(src, dst, len, 2); }
Status tavs_copy_4(const void* src, void* dst, int len) { return copy_bytes(src, dst, len, 4); }
Status tavs_copy_8(const void* src, void* dst, int len) { return copy_bytes(src, dst, len, 8); }
Status tavs_copy_16(const void* src, void* dst, int len) { return copy_bytes(src, dst, len, 16); }
}
