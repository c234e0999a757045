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

/* @@MOVERS@@ */

/* ==== Element-wise arithmetic =========================================== */

/* @@ARITH21@@ */

#ifdef __cplusplus
}
#endif

#endif /* TAVS_H */
