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
/* ---- widening -------------------------------------------------------- */
/* dst[i] = src[i] sign-extended. */
Status tavsConvert_8s16s(const Tav8s* src, Tav16s* dst, int len);
/* dst[i] = src[i] as 32f (exact). */
Status tavsConvert_8s32f(const Tav8s* src, Tav32f* dst, int len);
/* dst[i] = src[i] as 32f (exact). */
Status tavsConvert_8u32f(const Tav8u* src, Tav32f* dst, int len);
/* dst[i] = src[i] as 32f (exact). */
Status tavsConvert_16s32f(const Tav16s* src, Tav32f* dst, int len);
/* dst[i] = src[i] sign-extended. */
Status tavsConvert_16s32s(const Tav16s* src, Tav32s* dst, int len);
/* dst[i] = src[i] as 32f (exact). */
Status tavsConvert_16u32f(const Tav16u* src, Tav32f* dst, int len);
/* dst[i] = src[i] as 64f (exact). */
Status tavsConvert_32f64f(const Tav32f* src, Tav64f* dst, int len);
/* dst[i] = src[i] as 32f, rounded by the current rounding direction. */
Status tavsConvert_32s32f(const Tav32s* src, Tav32f* dst, int len);
/* dst[i] = src[i] as 64f (exact). */
Status tavsConvert_32s64f(const Tav32s* src, Tav64f* dst, int len);
/* dst[i] = src[i] as 64f by the current rounding direction; len is unsigned (0 is ErrSize). */
Status tavsConvert_64s64f(const Tav64s* src, Tav64f* dst, int len);

/* ---- 24-bit: three little-endian bytes per element ------------------- */
/* dst[i] = the signed 24-bit little-endian integer at src + 3i. */
Status tavsConvert_24s32s(const Tav8u* src, Tav32s* dst, int len);
/* dst[i] = the unsigned 24-bit little-endian integer at src + 3i. */
Status tavsConvert_24u32u(const Tav8u* src, Tav32u* dst, int len);
/* dst[i] = the signed 24-bit integer at src + 3i as 32f (its integer value). */
Status tavsConvert_24s32f(const Tav8u* src, Tav32f* dst, int len);
/* dst[i] = the unsigned 24-bit integer at src + 3i as 32f (its integer value). */
Status tavsConvert_24u32f(const Tav8u* src, Tav32f* dst, int len);
/* 24-bit dst[i] = src[i] * 2^-scaleFactor, ties to even, saturated; shift counts clamped at 31. */
Status tavsConvert_32s24s_Sfs(const Tav32s* src, Tav8u* dst, int len, int scaleFactor);
/* 24-bit dst[i] = src[i] * 2^-scaleFactor, ties to even, saturated; shift counts clamped at 31. */
Status tavsConvert_32u24u_Sfs(const Tav32u* src, Tav8u* dst, int len, int scaleFactor);
/* 24-bit dst[i] = src[i] * 2^-scaleFactor (scale clamped to -126..127), nearest even, saturated. */
Status tavsConvert_32f24s_Sfs(const Tav32f* src, Tav8u* dst, int len, int scaleFactor);
/* 24-bit dst[i] = src[i] * 2^-scaleFactor (scale clamped to -126..127), nearest even, saturated. */
Status tavsConvert_32f24u_Sfs(const Tav32f* src, Tav8u* dst, int len, int scaleFactor);

/* ---- narrowing -------------------------------------------------------- */
/* dst[i] = src[i] saturated to 16s. */
Status tavsConvert_32s16s(const Tav32s* src, Tav16s* dst, int len);
/* dst[i] = src[i] limited to +-3.4028234663852886e38, then narrowed to 32f. */
Status tavsConvert_64f32f(const Tav64f* src, Tav32f* dst, int len);
/* dst[i] = src[i] * 2^-scaleFactor, ties to even, saturated; counts clamped at 15 left, 31 right. */
Status tavsConvert_32s16s_Sfs(const Tav32s* src, Tav16s* dst, int len, int scaleFactor);
/* dst[i] = src[i] * 2^-scaleFactor rounded by rndMode, saturated; len is unsigned (0 is ErrSize). */
Status tavsConvert_16s8s_Sfs(const Tav16s* src, Tav8s* dst, int len, int rndMode, int scaleFactor);
/* dst[i] = src[i] * 2^-scaleFactor rounded by rndMode, saturated; counts clamped at 31 left, 63 right. */
Status tavsConvert_64s32s_Sfs(const Tav64s* src, Tav32s* dst, int len, int rndMode, int scaleFactor);

/* ---- integer to float with a scale ----------------------------------- */
/* dst[i] = src[i] * 2^-scaleFactor, the factor built by halving or doubling 1.0f. */
Status tavsConvert_16s32f_Sfs(const Tav16s* src, Tav32f* dst, int len, int scaleFactor);
/* dst[i] = src[i] * 2^-scaleFactor, the factor built by halving or doubling 1.0. */
Status tavsConvert_16s64f_Sfs(const Tav16s* src, Tav64f* dst, int len, int scaleFactor);
/* dst[i] = src[i] * 2^-scaleFactor, the factor built by halving or doubling 1.0f. */
Status tavsConvert_32s32f_Sfs(const Tav32s* src, Tav32f* dst, int len, int scaleFactor);
/* dst[i] = src[i] * 2^-scaleFactor, the factor built by halving or doubling 1.0. */
Status tavsConvert_32s64f_Sfs(const Tav32s* src, Tav64f* dst, int len, int scaleFactor);

/* ---- float to integer; rndMode 0 truncates, 1 the processor's
 * conversion, any other value half away ---------------------------------- */
/* dst[i] = src[i] * 2^-scaleFactor limited to -128..127, rounded by rndMode. */
Status tavsConvert_32f8s_Sfs(const Tav32f* src, Tav8s* dst, int len, int rndMode, int scaleFactor);
/* dst[i] = src[i] * 2^-scaleFactor limited to 0..255, rounded by rndMode. */
Status tavsConvert_32f8u_Sfs(const Tav32f* src, Tav8u* dst, int len, int rndMode, int scaleFactor);
/* dst[i] = src[i] * 2^-scaleFactor limited to -32768..32767, rounded by rndMode. */
Status tavsConvert_32f16s_Sfs(const Tav32f* src, Tav16s* dst, int len, int rndMode, int scaleFactor);
/* dst[i] = src[i] * 2^-scaleFactor limited to 0..65535, rounded by rndMode. */
Status tavsConvert_32f16u_Sfs(const Tav32f* src, Tav16u* dst, int len, int rndMode, int scaleFactor);
/* dst[i] = src[i] * 2^-scaleFactor limited to the 32s range, rounded by rndMode. */
Status tavsConvert_32f32s_Sfs(const Tav32f* src, Tav32s* dst, int len, int rndMode, int scaleFactor);
/* dst[i] = src[i] * 2^-scaleFactor limited to -32768..32767, rounded by rndMode. */
Status tavsConvert_64f16s_Sfs(const Tav64f* src, Tav16s* dst, int len, int rndMode, int scaleFactor);
/* dst[i] = src[i] * 2^-scaleFactor limited to the 32s range, rounded by rndMode. */
Status tavsConvert_64f32s_Sfs(const Tav64f* src, Tav32s* dst, int len, int rndMode, int scaleFactor);
/* dst[i] = src[i] * 2^-scaleFactor rounded by rndMode, saturated; len is unsigned (0 is ErrSize). */
Status tavsConvert_64f64s_Sfs(const Tav64f* src, Tav64s* dst, int len, int rndMode, int scaleFactor);

/* ---- half precision (IEEE binary16) ---------------------------------- */
/* dst[i] = the half src[i] as 32f (exact, NaN payloads kept). */
Status tavsConvert_16f32f(const Tav16f* src, Tav32f* dst, int len);
/* dst[i] = src[i] as a half: rndMode 1 nearest, 2 ErrRoundMode, others truncate. */
Status tavsConvert_32f16f(const Tav32f* src, Tav16f* dst, int len, int rndMode);
/* dst[i] = src[i] as a half: rndMode 1 nearest, 2 ErrRoundMode, others truncate. */
Status tavsConvert_16s16f(const Tav16s* src, Tav16f* dst, int len, int rndMode);
/* dst[i] = half src[i] * 2^-scaleFactor, saturated: rndMode 1 nearest, 2 ErrRoundMode, others truncate. */
Status tavsConvert_16f16s_Sfs(const Tav16f* src, Tav16s* dst, int len, int rndMode, int scaleFactor);

/* ---- channels: -1..1 floats and interleaved full-scale integers ------ */
/* dst[i * nChannels + c] = srcChannels[c][i] (-1..1) at 16s full scale. */
Status tavsJoinScaled_32f16s_D2L(const Tav32f* const* srcChannels, int nChannels, int chanLen, Tav16s* dst);
/* dst[i * nChannels + c] = srcChannels[c][i] (-1..1) at 24s full scale. */
Status tavsJoinScaled_32f24s_D2L(const Tav32f* const* srcChannels, int nChannels, int chanLen, Tav8u* dst);
/* dstChannels[c][i] = src[i * nChannels + c] mapped from 16s full scale to -1..1. */
Status tavsSplitScaled_16s32f_D2L(const Tav16s* src, Tav32f* const* dstChannels, int nChannels, int chanLen);
/* dstChannels[c][i] = src[i * nChannels + c] mapped from 24s full scale to -1..1. */
Status tavsSplitScaled_24s32f_D2L(const Tav8u* src, Tav32f* const* dstChannels, int nChannels, int chanLen);

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
