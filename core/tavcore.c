/* The companion core: aligned blocks and the processor feature mask. */
#include "tavcore.h"

#include <cpuid.h>
#include <stdint.h>
#include <stdlib.h>

#define TAVCORE_EXPORT __attribute__((visibility("default")))

TAVCORE_EXPORT void* tavMalloc(int size)
{
    void* p = NULL;
    if (size < 1)
        return NULL;
    if (posix_memalign(&p, 64, (size_t)size) != 0)
        return NULL;
    return p;
}

TAVCORE_EXPORT void tavFree(void* ptr) { free(ptr); }

TAVCORE_EXPORT void* tavAlignPtr(void* ptr, int alignBytes)
{
    uintptr_t a = (uintptr_t)(alignBytes > 0 ? alignBytes : 1);
    uintptr_t p = (uintptr_t)ptr;
    return (void*)((p + a - 1) & ~(a - 1));
}

/* Bit layout of the mask:
 *   0 MMX   1 SSE    2 SSE2   3 SSE3    4 SSSE3   5 SSE4.1  6 SSE4.2
 *   7 MOVBE 8 POPCNT 9 AES   10 PCLMUL 11 AVX    12 F16C   13 RDRAND
 *  14 FMA  15 AVX2  16 BMI1  17 BMI2   18 AVX512F
 * AVX-class bits are reported only when the OS saves the YMM/ZMM state. */
TAVCORE_EXPORT unsigned long long tavGetEnabledCpuFeatures(void)
{
    unsigned int a, b, c, d;
    unsigned long long m = 0;
    if (!__get_cpuid(1, &a, &b, &c, &d))
        return 0;
    if (d & (1u << 23)) m |= 1ull << 0;
    if (d & (1u << 25)) m |= 1ull << 1;
    if (d & (1u << 26)) m |= 1ull << 2;
    if (c & (1u << 0)) m |= 1ull << 3;
    if (c & (1u << 9)) m |= 1ull << 4;
    if (c & (1u << 19)) m |= 1ull << 5;
    if (c & (1u << 20)) m |= 1ull << 6;
    if (c & (1u << 22)) m |= 1ull << 7;
    if (c & (1u << 23)) m |= 1ull << 8;
    if (c & (1u << 25)) m |= 1ull << 9;
    if (c & (1u << 1)) m |= 1ull << 10;
    if (c & (1u << 30)) m |= 1ull << 13;

    int osxsave = (c >> 27) & 1;
    unsigned long long xcr0 = 0;
    if (osxsave) {
        unsigned int lo, hi;
        __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
        xcr0 = ((unsigned long long)hi << 32) | lo;
    }
    int ymm = (xcr0 & 6) == 6;
    int zmm = (xcr0 & 0xe6) == 0xe6;
    if (ymm && (c & (1u << 28))) m |= 1ull << 11;
    if (ymm && (c & (1u << 29))) m |= 1ull << 12;
    if (ymm && (c & (1u << 12))) m |= 1ull << 14;

    unsigned int max = __get_cpuid_max(0, NULL);
    if (max >= 7) {
        __cpuid_count(7, 0, a, b, c, d);
        if (ymm && (b & (1u << 5))) m |= 1ull << 15;
        if (b & (1u << 3)) m |= 1ull << 16;
        if (b & (1u << 8)) m |= 1ull << 17;
        if (zmm && (b & (1u << 16))) m |= 1ull << 18;
    }
    return m;
}
