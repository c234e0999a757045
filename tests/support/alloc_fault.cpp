#include "alloc_fault.h"

#include <dlfcn.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace {
std::atomic<int> g_failAt{0};
std::atomic<long> g_live{0};
std::atomic<long> g_calls{0};

using MallocFn = void* (*)(int);
using FreeFn = void (*)(void*);

MallocFn real_malloc()
{
    static MallocFn fn = reinterpret_cast<MallocFn>(dlsym(RTLD_NEXT, "tavMalloc"));
    if (!fn) {
        std::fprintf(stderr, "alloc_fault: tavMalloc not found in libtavcore\n");
        std::abort();
    }
    return fn;
}
FreeFn real_free()
{
    static FreeFn fn = reinterpret_cast<FreeFn>(dlsym(RTLD_NEXT, "tavFree"));
    if (!fn) {
        std::fprintf(stderr, "alloc_fault: tavFree not found in libtavcore\n");
        std::abort();
    }
    return fn;
}
} // namespace

extern "C" __attribute__((visibility("default"))) void* tavMalloc(int size)
{
    const long call = ++g_calls;
    (void)call;
    const int at = g_failAt.load();
    if (at > 0) {
        g_failAt = at - 1;
        if (at == 1) return nullptr;
    }
    void* p = real_malloc()(size);
    if (p) ++g_live;
    return p;
}

extern "C" __attribute__((visibility("default"))) void tavFree(void* ptr)
{
    if (ptr) --g_live;
    real_free()(ptr);
}

namespace tt {
void fail_alloc_at(int n) { g_failAt = n; }
long live_blocks() { return g_live.load(); }
long alloc_calls() { return g_calls.load(); }
} // namespace tt
