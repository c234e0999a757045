// tavsZero_*: all-zero bytes (+0 in float types). One body per element size.
#include <cstring>

#include "internal/body.h"
#include "internal/movers.h"

namespace {
Status zero_bytes(void* dst, int len, size_t elemSize)
{
    if (dst == nullptr) return ErrNullPtr;
    if (len < 1) return ErrSize;
    std::memset(dst, 0, size_t(len) * elemSize);
    return StatusOk;
}
} // namespace

extern "C" {
Status tavs_zero_1(void* dst, int len) { return zero_bytes(dst, len, 1); }
Status tavs_zero_2(void* dst, int len) { return zero_bytes(dst, len, 2); }
Status tavs_zero_4(void* dst, int len) { return zero_bytes(dst, len, 4); }
Status tavs_zero_8(void* dst, int len) { return zero_bytes(dst, len, 8); }
Status tavs_zero_16(void* dst, int len) { return zero_bytes(dst, len, 16); }
}
