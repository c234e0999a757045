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

/* @@TRANSFORM32@@ (complex FFT) */

/* ==== Statistics ========================================================= */

/* @@STATS@@ (sums, means, deviations, extrema, norms, dot products) */

#ifdef __cplusplus
}
#endif

#endif /* TAVS_H */
