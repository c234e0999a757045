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
/* ---- move: dst[i] = src[i] as if through a temporary (overlap allowed) - */
Status tavsMove_8u(const Tav8u* src, Tav8u* dst, int len);
Status tavsMove_16s(const Tav16s* src, Tav16s* dst, int len);
Status tavsMove_16sc(const Tav16sc* src, Tav16sc* dst, int len);
Status tavsMove_32f(const Tav32f* src, Tav32f* dst, int len);
Status tavsMove_32s(const Tav32s* src, Tav32s* dst, int len);
Status tavsMove_32fc(const Tav32fc* src, Tav32fc* dst, int len);
Status tavsMove_32sc(const Tav32sc* src, Tav32sc* dst, int len);
Status tavsMove_64f(const Tav64f* src, Tav64f* dst, int len);
Status tavsMove_64s(const Tav64s* src, Tav64s* dst, int len);
Status tavsMove_64fc(const Tav64fc* src, Tav64fc* dst, int len);
Status tavsMove_64sc(const Tav64sc* src, Tav64sc* dst, int len);

/* ---- set: dst[i] = val (complex values real part first) --------------- */
Status tavsSet_8u(Tav8u val, Tav8u* dst, int len);
Status tavsSet_16s(Tav16s val, Tav16s* dst, int len);
Status tavsSet_16sc(Tav16sc val, Tav16sc* dst, int len);
Status tavsSet_32f(Tav32f val, Tav32f* dst, int len);
Status tavsSet_32s(Tav32s val, Tav32s* dst, int len);
Status tavsSet_32fc(Tav32fc val, Tav32fc* dst, int len);
Status tavsSet_32sc(Tav32sc val, Tav32sc* dst, int len);
Status tavsSet_64f(Tav64f val, Tav64f* dst, int len);
Status tavsSet_64s(Tav64s val, Tav64s* dst, int len);
Status tavsSet_64fc(Tav64fc val, Tav64fc* dst, int len);
Status tavsSet_64sc(Tav64sc val, Tav64sc* dst, int len);

/* ---- flip: dst[i] = src[len-1-i]; complex elements move whole --------- */
Status tavsFlip_8u(const Tav8u* src, Tav8u* dst, int len);
Status tavsFlip_8u_I(Tav8u* srcDst, int len);
Status tavsFlip_16u(const Tav16u* src, Tav16u* dst, int len);
Status tavsFlip_16u_I(Tav16u* srcDst, int len);
Status tavsFlip_32f(const Tav32f* src, Tav32f* dst, int len);
Status tavsFlip_32f_I(Tav32f* srcDst, int len);
Status tavsFlip_32fc(const Tav32fc* src, Tav32fc* dst, int len);
Status tavsFlip_32fc_I(Tav32fc* srcDst, int len);
Status tavsFlip_64f(const Tav64f* src, Tav64f* dst, int len);
Status tavsFlip_64f_I(Tav64f* srcDst, int len);
Status tavsFlip_64fc(const Tav64fc* src, Tav64fc* dst, int len);
Status tavsFlip_64fc_I(Tav64fc* srcDst, int len);

/* ---- swap bytes: reverses the bytes of each element; 24u vectors are
 * packed 3-byte elements (len counts elements) and may overlap ---------- */
Status tavsSwapBytes_16u(const Tav16u* src, Tav16u* dst, int len);
Status tavsSwapBytes_16u_I(Tav16u* srcDst, int len);
Status tavsSwapBytes_24u(const Tav8u* src, Tav8u* dst, int len);
Status tavsSwapBytes_24u_I(Tav8u* srcDst, int len);
Status tavsSwapBytes_32u(const Tav32u* src, Tav32u* dst, int len);
Status tavsSwapBytes_32u_I(Tav32u* srcDst, int len);
Status tavsSwapBytes_64u(const Tav64u* src, Tav64u* dst, int len);
Status tavsSwapBytes_64u_I(Tav64u* srcDst, int len);

/* ---- bit strings: len bits from bit srcBitOffset to bit dstBitOffset;
 * only the low three bits of an offset count, other dst bits keep ------ */
/* Bit k of a byte is the mask 0x80 >> k (most significant first). */
Status tavsCopy_1u(const Tav8u* src, int srcBitOffset, Tav8u* dst, int dstBitOffset, int len);
/* The same operation as tavsCopy_1u. */
Status tavsCopyLE_1u(const Tav8u* src, int srcBitOffset, Tav8u* dst, int dstBitOffset, int len);
/* Bit k of a byte is the mask 1 << k (least significant first). */
Status tavsCopyBE_1u(const Tav8u* src, int srcBitOffset, Tav8u* dst, int dstBitOffset, int len);
/* Appends the low bitCounts[i] bits of src[i] to dst, most significant
 * first, from bit dstBitOffset; counts are clamped to 0..32 (WarnBitCount);
 * *totalBits receives the sum of the applied counts. */
Status tavsPackBits_32u8u(const Tav32u* src, const Tav32s* bitCounts, int len, Tav8u* dst, int dstBitOffset,
                          Tav32s* totalBits);

/* ==== Element-wise arithmetic =========================================== */

/* @@ARITH21@@ (add, subtract, multiply, add product, square, abs) */

/* @@ARITH22@@ (constant forms) */

/* @@ARITH23@@ (division) */

/* @@ARITH24@@ (conversion) */

/* @@ARITH25@@ (thresholds) */

/* @@ARITH26@@ (logic, shifts, complex helpers) */

/* ==== Transforms ========================================================= */

/* @@TRANSFORM31@@ (FFT records) */

/* @@TRANSFORM32@@ (complex FFT) */

/* ==== Statistics ========================================================= */

/* @@STATS@@ (sums, means, deviations, extrema, norms, dot products) */

#ifdef __cplusplus
}
#endif

#endif /* TAVS_H */
