// Aligned allocation. All of the library's own blocks come from
// tavsMalloc_8u and go back through tavsFree; alignment is tavMalloc's.
#include "internal/body.h"
#include "internal/memory.h"
#include "tavcore.h"

namespace {
// len times the element size in 32 bits with no overflow test: a product
// that wraps reaches tavMalloc as it is.
void* malloc_elems(int len, unsigned elemSize)
{
    if (len < 1) return nullptr;
    return tavMalloc(static_cast<int>(static_cast<uint32_t>(len) * elemSize));
}
} // namespace

extern "C" {
TAVS_BODY void* tavs_malloc_1(int len) { return malloc_elems(len, 1); }
TAVS_BODY void* tavs_malloc_2(int len) { return malloc_elems(len, 2); }
TAVS_BODY void* tavs_malloc_4(int len) { return malloc_elems(len, 4); }
TAVS_BODY void* tavs_malloc_8(int len) { return malloc_elems(len, 8); }
TAVS_BODY void* tavs_malloc_16(int len) { return malloc_elems(len, 16); }

void tavsFree_body(void* ptr) { tavFree(ptr); }
}
