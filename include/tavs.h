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

/* ==== Elementary functions =============================================== */

/* @@MATH@@ */

/* ---- exponential: dst[i] = e^src[i] ------------------------------------ */
/* Float forms: zero and denormals give 1, overflow +Inf, deep underflow 0. */
Status tavsExp_32f(const Tav32f* src, Tav32f* dst, int len);
Status tavsExp_32f_I(Tav32f* srcDst, int len);
Status tavsExp_64f(const Tav64f* src, Tav64f* dst, int len);
Status tavsExp_64f_I(Tav64f* srcDst, int len);
/* e^x of float inputs, evaluated and stored in double. */
Status tavsExp_32f64f(const Tav32f* src, Tav64f* dst, int len);
/* Integer forms: floor(e^x * 2^-scaleFactor + 0.5), saturated. */
Status tavsExp_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, int scaleFactor);
Status tavsExp_16s_ISfs(Tav16s* srcDst, int len, int scaleFactor);
Status tavsExp_32s_Sfs(const Tav32s* src, Tav32s* dst, int len, int scaleFactor);
Status tavsExp_32s_ISfs(Tav32s* srcDst, int len, int scaleFactor);
Status tavsExp_64s_Sfs(const Tav64s* src, Tav64s* dst, int len, int scaleFactor);
Status tavsExp_64s_ISfs(Tav64s* srcDst, int len, int scaleFactor);

/* ---- natural logarithm: dst[i] = ln(src[i]) ---------------------------- */
/* The first zero or negative element decides WarnLnZero / WarnLnNegative. */
Status tavsLn_32f(const Tav32f* src, Tav32f* dst, int len);
Status tavsLn_32f_I(Tav32f* srcDst, int len);
Status tavsLn_64f(const Tav64f* src, Tav64f* dst, int len);
Status tavsLn_64f_I(Tav64f* srcDst, int len);
/* ln of double inputs stored as float. */
Status tavsLn_64f32f(const Tav64f* src, Tav32f* dst, int len);
/* Integer forms: ln(x) scaled by 2^-scaleFactor; x <= 0 gives the minimum. */
Status tavsLn_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, int scaleFactor);
Status tavsLn_16s_ISfs(Tav16s* srcDst, int len, int scaleFactor);
Status tavsLn_32s_Sfs(const Tav32s* src, Tav32s* dst, int len, int scaleFactor);
Status tavsLn_32s_ISfs(Tav32s* srcDst, int len, int scaleFactor);
Status tavsLn_32s16s_Sfs(const Tav32s* src, Tav16s* dst, int len, int scaleFactor);

/* ---- sum of logarithms: *sum = ln(src[0]) + ... + ln(src[len-1]) -------- */
/* Stops at the first zero, negative or NaN element. */
Status tavsSumLn_32f(const Tav32f* src, int len, Tav32f* sum);
Status tavsSumLn_64f(const Tav64f* src, int len, Tav64f* sum);
Status tavsSumLn_32f64f(const Tav32f* src, int len, Tav64f* sum);
Status tavsSumLn_16s32f(const Tav16s* src, int len, Tav32f* sum);

/* ---- decibels: dst[i] = 10 * log10(src[i]), scaled ---------------------- */
Status tavs10Log10_32s_Sfs(const Tav32s* src, Tav32s* dst, int len, int scaleFactor);
Status tavs10Log10_32s_ISfs(Tav32s* srcDst, int len, int scaleFactor);

/* ---- square root: dst[i] = sqrt(src[i]); negatives give WarnSqrtNegative */
Status tavsSqrt_32f(const Tav32f* src, Tav32f* dst, int len);
Status tavsSqrt_32f_I(Tav32f* srcDst, int len);
Status tavsSqrt_64f(const Tav64f* src, Tav64f* dst, int len);
Status tavsSqrt_64f_I(Tav64f* srcDst, int len);
/* Principal complex square root. */
Status tavsSqrt_32fc(const Tav32fc* src, Tav32fc* dst, int len);
Status tavsSqrt_32fc_I(Tav32fc* srcDst, int len);
Status tavsSqrt_64fc(const Tav64fc* src, Tav64fc* dst, int len);
Status tavsSqrt_64fc_I(Tav64fc* srcDst, int len);
/* Integer forms: round(sqrt(x) * 2^-scaleFactor), saturated. */
Status tavsSqrt_8u_Sfs(const Tav8u* src, Tav8u* dst, int len, int scaleFactor);
Status tavsSqrt_8u_ISfs(Tav8u* srcDst, int len, int scaleFactor);
Status tavsSqrt_16u_Sfs(const Tav16u* src, Tav16u* dst, int len, int scaleFactor);
Status tavsSqrt_16u_ISfs(Tav16u* srcDst, int len, int scaleFactor);
Status tavsSqrt_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, int scaleFactor);
Status tavsSqrt_16s_ISfs(Tav16s* srcDst, int len, int scaleFactor);
Status tavsSqrt_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, int scaleFactor);
Status tavsSqrt_16sc_ISfs(Tav16sc* srcDst, int len, int scaleFactor);
Status tavsSqrt_32s16s_Sfs(const Tav32s* src, Tav16s* dst, int len, int scaleFactor);
Status tavsSqrt_64s16s_Sfs(const Tav64s* src, Tav16s* dst, int len, int scaleFactor);
Status tavsSqrt_64s_Sfs(const Tav64s* src, Tav64s* dst, int len, int scaleFactor);
Status tavsSqrt_64s_ISfs(Tav64s* srcDst, int len, int scaleFactor);

/* ---- cube root and arctangent ------------------------------------------ */
Status tavsCubrt_32f(const Tav32f* src, Tav32f* dst, int len);
/* cbrt(x) * 2^-scaleFactor, rounded (truncated for -14..-1), saturated. */
Status tavsCubrt_32s16s_Sfs(const Tav32s* src, Tav16s* dst, int len, int scaleFactor);
Status tavsArctan_32f(const Tav32f* src, Tav32f* dst, int len);
Status tavsArctan_32f_I(Tav32f* srcDst, int len);
Status tavsArctan_64f(const Tav64f* src, Tav64f* dst, int len);
Status tavsArctan_64f_I(Tav64f* srcDst, int len);

/* ---- magnitude: dst[i] = sqrt(re^2 + im^2) ------------------------------ */
Status tavsMagnitude_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dst, int len);
Status tavsMagnitude_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dst, int len);
Status tavsMagnitude_16s_Sfs(const Tav16s* srcRe, const Tav16s* srcIm, Tav16s* dst, int len, int scaleFactor);
Status tavsMagnitude_16s32f(const Tav16s* srcRe, const Tav16s* srcIm, Tav32f* dst, int len);
Status tavsMagnitude_32fc(const Tav32fc* src, Tav32f* dst, int len);
Status tavsMagnitude_64fc(const Tav64fc* src, Tav64f* dst, int len);
Status tavsMagnitude_16sc_Sfs(const Tav16sc* src, Tav16s* dst, int len, int scaleFactor);
Status tavsMagnitude_16sc32f(const Tav16sc* src, Tav32f* dst, int len);
Status tavsMagnitude_32sc_Sfs(const Tav32sc* src, Tav32s* dst, int len, int scaleFactor);

/* ---- squared magnitude and power spectrum: dst[i] = re^2 + im^2 -------- */
Status tavsMagSquared_32fc64f(const Tav32fc* src, Tav64f* dst, int len);
Status tavsMagSquared_32sc32s_Sfs(const Tav32sc* src, Tav32s* dst, int len, int scaleFactor);
Status tavsPowerSpectr_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dst, int len);
Status tavsPowerSpectr_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dst, int len);
Status tavsPowerSpectr_16s_Sfs(const Tav16s* srcRe, const Tav16s* srcIm, Tav16s* dst, int len, int scaleFactor);
Status tavsPowerSpectr_16s32f(const Tav16s* srcRe, const Tav16s* srcIm, Tav32f* dst, int len);
Status tavsPowerSpectr_32fc(const Tav32fc* src, Tav32f* dst, int len);
Status tavsPowerSpectr_64fc(const Tav64fc* src, Tav64f* dst, int len);
Status tavsPowerSpectr_16sc_Sfs(const Tav16sc* src, Tav16s* dst, int len, int scaleFactor);
Status tavsPowerSpectr_16sc32f(const Tav16sc* src, Tav32f* dst, int len);

/* ---- phase: dst[i] = atan2(im, re) -------------------------------------- */
Status tavsPhase_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dst, int len);
Status tavsPhase_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dst, int len);
Status tavsPhase_16s_Sfs(const Tav16s* srcRe, const Tav16s* srcIm, Tav16s* dst, int len, int scaleFactor);
Status tavsPhase_16s32f(const Tav16s* srcRe, const Tav16s* srcIm, Tav32f* dst, int len);
Status tavsPhase_32fc(const Tav32fc* src, Tav32f* dst, int len);
Status tavsPhase_64fc(const Tav64fc* src, Tav64f* dst, int len);
Status tavsPhase_16sc_Sfs(const Tav16sc* src, Tav16s* dst, int len, int scaleFactor);
Status tavsPhase_16sc32f(const Tav16sc* src, Tav32f* dst, int len);
Status tavsPhase_32sc_Sfs(const Tav32sc* src, Tav32s* dst, int len, int scaleFactor);

/* ---- Cartesian to polar: magnitude and phase ---------------------------- */
Status tavsCartToPolar_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dstMagn, Tav32f* dstPhase, int len);
Status tavsCartToPolar_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dstMagn, Tav64f* dstPhase, int len);
Status tavsCartToPolar_32fc(const Tav32fc* src, Tav32f* dstMagn, Tav32f* dstPhase, int len);
Status tavsCartToPolar_64fc(const Tav64fc* src, Tav64f* dstMagn, Tav64f* dstPhase, int len);
Status tavsCartToPolar_16sc_Sfs(const Tav16sc* src, Tav16s* dstMagn, Tav16s* dstPhase, int len, int magnScaleFactor,
                                int phaseScaleFactor);

/* ---- polar to Cartesian: re = magn*cos(phase), im = magn*sin(phase) ----- */
Status tavsPolarToCart_32f(const Tav32f* srcMagn, const Tav32f* srcPhase, Tav32f* dstRe, Tav32f* dstIm, int len);
Status tavsPolarToCart_64f(const Tav64f* srcMagn, const Tav64f* srcPhase, Tav64f* dstRe, Tav64f* dstIm, int len);
Status tavsPolarToCart_32fc(const Tav32f* srcMagn, const Tav32f* srcPhase, Tav32fc* dst, int len);
Status tavsPolarToCart_64fc(const Tav64f* srcMagn, const Tav64f* srcPhase, Tav64fc* dst, int len);
Status tavsPolarToCart_16sc(const Tav16s* srcMagn, const Tav16s* srcPhase, Tav16sc* dst, int len, int magnScaleFactor,
                            int phaseScaleFactor);
Status tavsPolarToCart_16sc_Sfs(const Tav16s* srcMagn, const Tav16s* srcPhase, Tav16sc* dst, int len,
                                int magnScaleFactor, int phaseScaleFactor);
/* phaseFixedPoint: fraction bits of the phase, below 32. */
Status tavsPolarToCart_32sc(const Tav32s* srcMagn, const Tav32s* srcPhase, Tav32u phaseFixedPoint, Tav32sc* dst,
                            int len);

/* ---- normalize: dst[i] = (src[i] - offset) / divisor -------------------- */
Status tavsNormalize_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f offset, Tav32f divisor);
Status tavsNormalize_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f offset, Tav64f divisor);
Status tavsNormalize_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32fc offset, Tav32f divisor);
Status tavsNormalize_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64fc offset, Tav64f divisor);
Status tavsNormalize_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, Tav16s offset, int divisor, int scaleFactor);
Status tavsNormalize_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, Tav16sc offset, int divisor,
                              int scaleFactor);

/* ==== Statistics ========================================================= */

/* @@STATS@@ (sums, means, deviations, extrema, norms, dot products) */

#ifdef __cplusplus
}
#endif

#endif /* TAVS_H */
