/* tavs.h - every exported function of the tavs library, grouped by family.
 * Compiles as C99 and as C++. Vectors are never required to be aligned;
 * `len` is a 32-bit signed element count (complex elements for complex
 * types). Functions return a Status: 0 success, negative error (output
 * untouched), positive warning (output complete). */
#ifndef TAVS_H
#define TAVS_H

#include "tavsdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Library frame ===================================================== */

/* The static version record; the same pointer on every call. */
const TavLibVersion* tavsGetLibVersion(void);

/* ---- aligned memory: len elements, NULL for len < 1 or when short ------ */
Tav8u* tavsMalloc_8u(int len);
Tav8s* tavsMalloc_8s(int len);
Tav16u* tavsMalloc_16u(int len);
Tav16s* tavsMalloc_16s(int len);
Tav8sc* tavsMalloc_8sc(int len);
Tav32u* tavsMalloc_32u(int len);
Tav32s* tavsMalloc_32s(int len);
Tav32f* tavsMalloc_32f(int len);
Tav16sc* tavsMalloc_16sc(int len);
Tav32fc* tavsMalloc_32fc(int len);
Tav32sc* tavsMalloc_32sc(int len);
Tav64s* tavsMalloc_64s(int len);
Tav64f* tavsMalloc_64f(int len);
Tav64fc* tavsMalloc_64fc(int len);
Tav64sc* tavsMalloc_64sc(int len);
/* Releases a block from tavsMalloc_*; NULL is accepted. */
void tavsFree(void* ptr);

/* ---- copy: dst[i] = src[i]; overlapping vectors are not handled ------- */
Status tavsCopy_8u(const Tav8u* src, Tav8u* dst, int len);
Status tavsCopy_16s(const Tav16s* src, Tav16s* dst, int len);
Status tavsCopy_16sc(const Tav16sc* src, Tav16sc* dst, int len);
Status tavsCopy_32f(const Tav32f* src, Tav32f* dst, int len);
Status tavsCopy_32s(const Tav32s* src, Tav32s* dst, int len);
Status tavsCopy_32fc(const Tav32fc* src, Tav32fc* dst, int len);
Status tavsCopy_32sc(const Tav32sc* src, Tav32sc* dst, int len);
Status tavsCopy_64f(const Tav64f* src, Tav64f* dst, int len);
Status tavsCopy_64s(const Tav64s* src, Tav64s* dst, int len);
Status tavsCopy_64fc(const Tav64fc* src, Tav64fc* dst, int len);
Status tavsCopy_64sc(const Tav64sc* src, Tav64sc* dst, int len);

/* ---- zero: dst[i] = all-zero bytes (+0 in float types) --------------- */
Status tavsZero_8u(Tav8u* dst, int len);
Status tavsZero_16s(Tav16s* dst, int len);
Status tavsZero_16sc(Tav16sc* dst, int len);
Status tavsZero_32f(Tav32f* dst, int len);
Status tavsZero_32s(Tav32s* dst, int len);
Status tavsZero_32fc(Tav32fc* dst, int len);
Status tavsZero_32sc(Tav32sc* dst, int len);
Status tavsZero_64f(Tav64f* dst, int len);
Status tavsZero_64s(Tav64s* dst, int len);
Status tavsZero_64fc(Tav64fc* dst, int len);
Status tavsZero_64sc(Tav64sc* dst, int len);

/* @@MOVERS@@ (copy, move, set, flip, swap bytes, bit copies) */

/* ==== Element-wise arithmetic =========================================== */

/* @@ARITH21@@ (add, subtract, multiply, add product, square, abs) */

/* @@ARITH22@@ (constant forms) */

/* @@ARITH23@@ (division) */

/* @@ARITH24@@ (conversion) */

/* @@ARITH25@@ (thresholds) */

/* @@ARITH26@@ (logic, shifts, complex helpers) */

/* ==== Transforms ========================================================= */

/* @@TRANSFORM31@@ (FFT records) */
/* FFT records: opaque, built by tavsFFTInit_* in a caller block
 * sized by tavsFFTGetSize_* (or by tavsFFTInitAlloc_*), tag first. */
typedef struct FFTSpec_C_16s FFTSpec_C_16s;
typedef struct FFTSpec_C_16sc FFTSpec_C_16sc;
typedef struct FFTSpec_C_32f FFTSpec_C_32f;
typedef struct FFTSpec_C_32fc FFTSpec_C_32fc;
typedef struct FFTSpec_C_32s FFTSpec_C_32s;
typedef struct FFTSpec_C_32sc FFTSpec_C_32sc;
typedef struct FFTSpec_C_64f FFTSpec_C_64f;
typedef struct FFTSpec_C_64fc FFTSpec_C_64fc;
typedef struct FFTSpec_R_16s FFTSpec_R_16s;
typedef struct FFTSpec_R_16s32s FFTSpec_R_16s32s;
typedef struct FFTSpec_R_32f FFTSpec_R_32f;
typedef struct FFTSpec_R_32s FFTSpec_R_32s;
typedef struct FFTSpec_R_64f FFTSpec_R_64f;

/* C_16s: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_C_16s(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* C_16s: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_C_16s(FFTSpec_C_16s** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* C_16s: allocates and builds a record; release it with tavsFFTFree_C_16s. */
Status tavsFFTInitAlloc_C_16s(FFTSpec_C_16s** ppSpec, int order, int flag, int hint);
/* C_16s: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_C_16s(FFTSpec_C_16s* pSpec);
/* C_16s: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_C_16s(const FFTSpec_C_16s* pSpec, int* workBufSize);
/* C_16sc: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_C_16sc(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* C_16sc: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_C_16sc(FFTSpec_C_16sc** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* C_16sc: allocates and builds a record; release it with tavsFFTFree_C_16sc. */
Status tavsFFTInitAlloc_C_16sc(FFTSpec_C_16sc** ppSpec, int order, int flag, int hint);
/* C_16sc: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_C_16sc(FFTSpec_C_16sc* pSpec);
/* C_16sc: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_C_16sc(const FFTSpec_C_16sc* pSpec, int* workBufSize);
/* C_32f: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_C_32f(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* C_32f: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_C_32f(FFTSpec_C_32f** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* C_32f: allocates and builds a record; release it with tavsFFTFree_C_32f. */
Status tavsFFTInitAlloc_C_32f(FFTSpec_C_32f** ppSpec, int order, int flag, int hint);
/* C_32f: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_C_32f(FFTSpec_C_32f* pSpec);
/* C_32f: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_C_32f(const FFTSpec_C_32f* pSpec, int* workBufSize);
/* C_32fc: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_C_32fc(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* C_32fc: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_C_32fc(FFTSpec_C_32fc** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* C_32fc: allocates and builds a record; release it with tavsFFTFree_C_32fc. */
Status tavsFFTInitAlloc_C_32fc(FFTSpec_C_32fc** ppSpec, int order, int flag, int hint);
/* C_32fc: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_C_32fc(FFTSpec_C_32fc* pSpec);
/* C_32fc: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_C_32fc(const FFTSpec_C_32fc* pSpec, int* workBufSize);
/* C_32s: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_C_32s(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* C_32s: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_C_32s(FFTSpec_C_32s** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* C_32s: allocates and builds a record; release it with tavsFFTFree_C_32s. */
Status tavsFFTInitAlloc_C_32s(FFTSpec_C_32s** ppSpec, int order, int flag, int hint);
/* C_32s: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_C_32s(FFTSpec_C_32s* pSpec);
/* C_32s: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_C_32s(const FFTSpec_C_32s* pSpec, int* workBufSize);
/* C_32sc: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_C_32sc(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* C_32sc: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_C_32sc(FFTSpec_C_32sc** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* C_32sc: allocates and builds a record; release it with tavsFFTFree_C_32sc. */
Status tavsFFTInitAlloc_C_32sc(FFTSpec_C_32sc** ppSpec, int order, int flag, int hint);
/* C_32sc: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_C_32sc(FFTSpec_C_32sc* pSpec);
/* C_32sc: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_C_32sc(const FFTSpec_C_32sc* pSpec, int* workBufSize);
/* C_64f: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_C_64f(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* C_64f: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_C_64f(FFTSpec_C_64f** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* C_64f: allocates and builds a record; release it with tavsFFTFree_C_64f. */
Status tavsFFTInitAlloc_C_64f(FFTSpec_C_64f** ppSpec, int order, int flag, int hint);
/* C_64f: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_C_64f(FFTSpec_C_64f* pSpec);
/* C_64f: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_C_64f(const FFTSpec_C_64f* pSpec, int* workBufSize);
/* C_64fc: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_C_64fc(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* C_64fc: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_C_64fc(FFTSpec_C_64fc** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* C_64fc: allocates and builds a record; release it with tavsFFTFree_C_64fc. */
Status tavsFFTInitAlloc_C_64fc(FFTSpec_C_64fc** ppSpec, int order, int flag, int hint);
/* C_64fc: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_C_64fc(FFTSpec_C_64fc* pSpec);
/* C_64fc: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_C_64fc(const FFTSpec_C_64fc* pSpec, int* workBufSize);
/* R_16s: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_R_16s(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* R_16s: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_R_16s(FFTSpec_R_16s** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* R_16s: allocates and builds a record; release it with tavsFFTFree_R_16s. */
Status tavsFFTInitAlloc_R_16s(FFTSpec_R_16s** ppSpec, int order, int flag, int hint);
/* R_16s: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_R_16s(FFTSpec_R_16s* pSpec);
/* R_16s: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_R_16s(const FFTSpec_R_16s* pSpec, int* workBufSize);
/* R_16s32s: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_R_16s32s(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* R_16s32s: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_R_16s32s(FFTSpec_R_16s32s** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* R_16s32s: allocates and builds a record; release it with tavsFFTFree_R_16s32s. */
Status tavsFFTInitAlloc_R_16s32s(FFTSpec_R_16s32s** ppSpec, int order, int flag, int hint);
/* R_16s32s: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_R_16s32s(FFTSpec_R_16s32s* pSpec);
/* R_16s32s: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_R_16s32s(const FFTSpec_R_16s32s* pSpec, int* workBufSize);
/* R_32f: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_R_32f(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* R_32f: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_R_32f(FFTSpec_R_32f** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* R_32f: allocates and builds a record; release it with tavsFFTFree_R_32f. */
Status tavsFFTInitAlloc_R_32f(FFTSpec_R_32f** ppSpec, int order, int flag, int hint);
/* R_32f: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_R_32f(FFTSpec_R_32f* pSpec);
/* R_32f: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_R_32f(const FFTSpec_R_32f* pSpec, int* workBufSize);
/* R_32s: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_R_32s(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* R_32s: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_R_32s(FFTSpec_R_32s** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* R_32s: allocates and builds a record; release it with tavsFFTFree_R_32s. */
Status tavsFFTInitAlloc_R_32s(FFTSpec_R_32s** ppSpec, int order, int flag, int hint);
/* R_32s: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_R_32s(FFTSpec_R_32s* pSpec);
/* R_32s: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_R_32s(const FFTSpec_R_32s* pSpec, int* workBufSize);
/* R_64f: sizes of the record block, of the Init scratch and of the work buffer. */
Status tavsFFTGetSize_R_64f(int order, int flag, int hint, int* specSize, int* initBufSize, int* workBufSize);
/* R_64f: builds the record in specBlock (aligned up to 64 inside); initBuf is scratch. */
Status tavsFFTInit_R_64f(FFTSpec_R_64f** ppSpec, int order, int flag, int hint, Tav8u* specBlock, Tav8u* initBuf);
/* R_64f: allocates and builds a record; release it with tavsFFTFree_R_64f. */
Status tavsFFTInitAlloc_R_64f(FFTSpec_R_64f** ppSpec, int order, int flag, int hint);
/* R_64f: clears the tag; releases the block of an InitAlloc record. */
Status tavsFFTFree_R_64f(FFTSpec_R_64f* pSpec);
/* R_64f: bytes of work buffer a transform on this record takes (0: none). */
Status tavsFFTGetBufSize_R_64f(const FFTSpec_R_64f* pSpec, int* workBufSize);

/* @@TRANSFORM32@@ (complex FFT) */
/* forward, exponent -2 pi i n k / N complex FFT, interleaved 32fc; wsp may be null. */
Status tavsFFTFwd_CToC_32fc(const Tav32fc* src, Tav32fc* dst, const FFTSpec_C_32fc* pSpec, Tav8u* pBuffer);
Status tavsFFTFwd_CToC_32fc_I(Tav32fc* srcDst, const FFTSpec_C_32fc* pSpec, Tav8u* pBuffer);
/* forward, exponent -2 pi i n k / N complex FFT, interleaved 64fc; wsp may be null. */
Status tavsFFTFwd_CToC_64fc(const Tav64fc* src, Tav64fc* dst, const FFTSpec_C_64fc* pSpec, Tav8u* pBuffer);
Status tavsFFTFwd_CToC_64fc_I(Tav64fc* srcDst, const FFTSpec_C_64fc* pSpec, Tav8u* pBuffer);
/* forward, exponent -2 pi i n k / N complex FFT, split re/im 32f arrays; wsp may be null. */
Status tavsFFTFwd_CToC_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dstRe, Tav32f* dstIm, const FFTSpec_C_32f* pSpec, Tav8u* pBuffer);
Status tavsFFTFwd_CToC_32f_I(Tav32f* srcDstRe, Tav32f* srcDstIm, const FFTSpec_C_32f* pSpec, Tav8u* pBuffer);
/* forward, exponent -2 pi i n k / N complex FFT, split re/im 64f arrays; wsp may be null. */
Status tavsFFTFwd_CToC_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dstRe, Tav64f* dstIm, const FFTSpec_C_64f* pSpec, Tav8u* pBuffer);
Status tavsFFTFwd_CToC_64f_I(Tav64f* srcDstRe, Tav64f* srcDstIm, const FFTSpec_C_64f* pSpec, Tav8u* pBuffer);
/* inverse, exponent +2 pi i n k / N complex FFT, interleaved 32fc; wsp may be null. */
Status tavsFFTInv_CToC_32fc(const Tav32fc* src, Tav32fc* dst, const FFTSpec_C_32fc* pSpec, Tav8u* pBuffer);
Status tavsFFTInv_CToC_32fc_I(Tav32fc* srcDst, const FFTSpec_C_32fc* pSpec, Tav8u* pBuffer);
/* inverse, exponent +2 pi i n k / N complex FFT, interleaved 64fc; wsp may be null. */
Status tavsFFTInv_CToC_64fc(const Tav64fc* src, Tav64fc* dst, const FFTSpec_C_64fc* pSpec, Tav8u* pBuffer);
Status tavsFFTInv_CToC_64fc_I(Tav64fc* srcDst, const FFTSpec_C_64fc* pSpec, Tav8u* pBuffer);
/* inverse, exponent +2 pi i n k / N complex FFT, split re/im 32f arrays; wsp may be null. */
Status tavsFFTInv_CToC_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dstRe, Tav32f* dstIm, const FFTSpec_C_32f* pSpec, Tav8u* pBuffer);
Status tavsFFTInv_CToC_32f_I(Tav32f* srcDstRe, Tav32f* srcDstIm, const FFTSpec_C_32f* pSpec, Tav8u* pBuffer);
/* inverse, exponent +2 pi i n k / N complex FFT, split re/im 64f arrays; wsp may be null. */
Status tavsFFTInv_CToC_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dstRe, Tav64f* dstIm, const FFTSpec_C_64f* pSpec, Tav8u* pBuffer);
Status tavsFFTInv_CToC_64f_I(Tav64f* srcDstRe, Tav64f* srcDstIm, const FFTSpec_C_64f* pSpec, Tav8u* pBuffer);

/* ==== Statistics ========================================================= */

/* @@STATS@@ (sums, means, deviations, extrema, norms, dot products) */

#ifdef __cplusplus
}
#endif

#endif /* TAVS_H */
