/* tavcore.h - the companion core library: aligned memory and the processor
 * feature query. */
#ifndef TAVCORE_H
#define TAVCORE_H

#ifdef __cplusplus
extern "C" {
#endif

/* A block of `size` bytes aligned to 64 bytes, or NULL when size < 1 or
 * memory is short. */
void* tavMalloc(int size);
/* Releases a block from tavMalloc; NULL is accepted. */
void tavFree(void* ptr);
/* `ptr` advanced to the next multiple of `alignBytes` (a power of two). */
void* tavAlignPtr(void* ptr, int alignBytes);
/* Mask of enabled processor features, from CPUID and XGETBV. */
unsigned long long tavGetEnabledCpuFeatures(void);

#ifdef __cplusplus
}
#endif

#endif /* TAVCORE_H */
