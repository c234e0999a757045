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
/* ---- constant forms: out of place (src, value, dst, len), in place (value, srcDst, len);
 * integer forms saturate, _Sfs forms scale by 2^-scaleFactor with ties to even ---- */
/* AddC: dst = src + value. Out of place, value 0 copies src (integer forms: at scale 0). */
Status tavsAddC_8u_Sfs(const Tav8u* src, Tav8u value, Tav8u* dst, int len, int scaleFactor);
Status tavsAddC_8u_ISfs(Tav8u value, Tav8u* srcDst, int len, int scaleFactor);
Status tavsAddC_16s_I(Tav16s value, Tav16s* srcDst, int len);
Status tavsAddC_16s_Sfs(const Tav16s* src, Tav16s value, Tav16s* dst, int len, int scaleFactor);
Status tavsAddC_16s_ISfs(Tav16s value, Tav16s* srcDst, int len, int scaleFactor);
Status tavsAddC_16u_Sfs(const Tav16u* src, Tav16u value, Tav16u* dst, int len, int scaleFactor);
Status tavsAddC_16u_ISfs(Tav16u value, Tav16u* srcDst, int len, int scaleFactor);
Status tavsAddC_32s_Sfs(const Tav32s* src, Tav32s value, Tav32s* dst, int len, int scaleFactor);
Status tavsAddC_32s_ISfs(Tav32s value, Tav32s* srcDst, int len, int scaleFactor);
Status tavsAddC_16sc_Sfs(const Tav16sc* src, Tav16sc value, Tav16sc* dst, int len, int scaleFactor);
Status tavsAddC_16sc_ISfs(Tav16sc value, Tav16sc* srcDst, int len, int scaleFactor);
Status tavsAddC_32sc_Sfs(const Tav32sc* src, Tav32sc value, Tav32sc* dst, int len, int scaleFactor);
Status tavsAddC_32sc_ISfs(Tav32sc value, Tav32sc* srcDst, int len, int scaleFactor);
Status tavsAddC_32f(const Tav32f* src, Tav32f value, Tav32f* dst, int len);
Status tavsAddC_32f_I(Tav32f value, Tav32f* srcDst, int len);
Status tavsAddC_64f(const Tav64f* src, Tav64f value, Tav64f* dst, int len);
Status tavsAddC_64f_I(Tav64f value, Tav64f* srcDst, int len);
Status tavsAddC_32fc(const Tav32fc* src, Tav32fc value, Tav32fc* dst, int len);
Status tavsAddC_32fc_I(Tav32fc value, Tav32fc* srcDst, int len);
Status tavsAddC_64fc(const Tav64fc* src, Tav64fc value, Tav64fc* dst, int len);
Status tavsAddC_64fc_I(Tav64fc value, Tav64fc* srcDst, int len);
/* Six arguments: only len == 0 is refused (len is read as unsigned); rndMode 0 truncates,
 * 1 rounds ties to even, any other value rounds half away from zero. */
Status tavsAddC_64s_Sfs(const Tav64s* src, Tav64s value, Tav64s* dst, int len, int scaleFactor, int rndMode);
Status tavsAddC_64u_Sfs(const Tav64u* src, Tav64u value, Tav64u* dst, int len, int scaleFactor, int rndMode);
/* SubC: dst = src - value. Out of place, value 0 copies src (integer forms: at scale 0). */
Status tavsSubC_8u_Sfs(const Tav8u* src, Tav8u value, Tav8u* dst, int len, int scaleFactor);
Status tavsSubC_8u_ISfs(Tav8u value, Tav8u* srcDst, int len, int scaleFactor);
Status tavsSubC_16s_I(Tav16s value, Tav16s* srcDst, int len);
Status tavsSubC_16s_Sfs(const Tav16s* src, Tav16s value, Tav16s* dst, int len, int scaleFactor);
Status tavsSubC_16s_ISfs(Tav16s value, Tav16s* srcDst, int len, int scaleFactor);
Status tavsSubC_16u_Sfs(const Tav16u* src, Tav16u value, Tav16u* dst, int len, int scaleFactor);
Status tavsSubC_16u_ISfs(Tav16u value, Tav16u* srcDst, int len, int scaleFactor);
Status tavsSubC_32s_Sfs(const Tav32s* src, Tav32s value, Tav32s* dst, int len, int scaleFactor);
Status tavsSubC_32s_ISfs(Tav32s value, Tav32s* srcDst, int len, int scaleFactor);
Status tavsSubC_16sc_Sfs(const Tav16sc* src, Tav16sc value, Tav16sc* dst, int len, int scaleFactor);
Status tavsSubC_16sc_ISfs(Tav16sc value, Tav16sc* srcDst, int len, int scaleFactor);
Status tavsSubC_32sc_Sfs(const Tav32sc* src, Tav32sc value, Tav32sc* dst, int len, int scaleFactor);
Status tavsSubC_32sc_ISfs(Tav32sc value, Tav32sc* srcDst, int len, int scaleFactor);
Status tavsSubC_32f(const Tav32f* src, Tav32f value, Tav32f* dst, int len);
Status tavsSubC_32f_I(Tav32f value, Tav32f* srcDst, int len);
Status tavsSubC_64f(const Tav64f* src, Tav64f value, Tav64f* dst, int len);
Status tavsSubC_64f_I(Tav64f value, Tav64f* srcDst, int len);
Status tavsSubC_32fc(const Tav32fc* src, Tav32fc value, Tav32fc* dst, int len);
Status tavsSubC_32fc_I(Tav32fc value, Tav32fc* srcDst, int len);
Status tavsSubC_64fc(const Tav64fc* src, Tav64fc value, Tav64fc* dst, int len);
Status tavsSubC_64fc_I(Tav64fc value, Tav64fc* srcDst, int len);
/* SubCRev: dst = value - src. */
Status tavsSubCRev_8u_Sfs(const Tav8u* src, Tav8u value, Tav8u* dst, int len, int scaleFactor);
Status tavsSubCRev_8u_ISfs(Tav8u value, Tav8u* srcDst, int len, int scaleFactor);
Status tavsSubCRev_16s_Sfs(const Tav16s* src, Tav16s value, Tav16s* dst, int len, int scaleFactor);
Status tavsSubCRev_16s_ISfs(Tav16s value, Tav16s* srcDst, int len, int scaleFactor);
Status tavsSubCRev_16u_Sfs(const Tav16u* src, Tav16u value, Tav16u* dst, int len, int scaleFactor);
Status tavsSubCRev_16u_ISfs(Tav16u value, Tav16u* srcDst, int len, int scaleFactor);
Status tavsSubCRev_32s_Sfs(const Tav32s* src, Tav32s value, Tav32s* dst, int len, int scaleFactor);
Status tavsSubCRev_32s_ISfs(Tav32s value, Tav32s* srcDst, int len, int scaleFactor);
Status tavsSubCRev_16sc_Sfs(const Tav16sc* src, Tav16sc value, Tav16sc* dst, int len, int scaleFactor);
Status tavsSubCRev_16sc_ISfs(Tav16sc value, Tav16sc* srcDst, int len, int scaleFactor);
Status tavsSubCRev_32sc_Sfs(const Tav32sc* src, Tav32sc value, Tav32sc* dst, int len, int scaleFactor);
Status tavsSubCRev_32sc_ISfs(Tav32sc value, Tav32sc* srcDst, int len, int scaleFactor);
Status tavsSubCRev_32f(const Tav32f* src, Tav32f value, Tav32f* dst, int len);
Status tavsSubCRev_32f_I(Tav32f value, Tav32f* srcDst, int len);
Status tavsSubCRev_64f(const Tav64f* src, Tav64f value, Tav64f* dst, int len);
Status tavsSubCRev_64f_I(Tav64f value, Tav64f* srcDst, int len);
Status tavsSubCRev_32fc(const Tav32fc* src, Tav32fc value, Tav32fc* dst, int len);
Status tavsSubCRev_32fc_I(Tav32fc value, Tav32fc* srcDst, int len);
Status tavsSubCRev_64fc(const Tav64fc* src, Tav64fc value, Tav64fc* dst, int len);
Status tavsSubCRev_64fc_I(Tav64fc value, Tav64fc* srcDst, int len);
/* MulC: dst = src * value. Real floats: value 1 copies (in place: nothing to do), value 0
 * stores +0 for every element, NaN and Inf included; integers: value 0 stores 0. */
Status tavsMulC_8u_Sfs(const Tav8u* src, Tav8u value, Tav8u* dst, int len, int scaleFactor);
Status tavsMulC_8u_ISfs(Tav8u value, Tav8u* srcDst, int len, int scaleFactor);
Status tavsMulC_16s_I(Tav16s value, Tav16s* srcDst, int len);
Status tavsMulC_16s_Sfs(const Tav16s* src, Tav16s value, Tav16s* dst, int len, int scaleFactor);
Status tavsMulC_16s_ISfs(Tav16s value, Tav16s* srcDst, int len, int scaleFactor);
Status tavsMulC_16u_Sfs(const Tav16u* src, Tav16u value, Tav16u* dst, int len, int scaleFactor);
Status tavsMulC_16u_ISfs(Tav16u value, Tav16u* srcDst, int len, int scaleFactor);
Status tavsMulC_32s_Sfs(const Tav32s* src, Tav32s value, Tav32s* dst, int len, int scaleFactor);
Status tavsMulC_32s_ISfs(Tav32s value, Tav32s* srcDst, int len, int scaleFactor);
Status tavsMulC_16sc_Sfs(const Tav16sc* src, Tav16sc value, Tav16sc* dst, int len, int scaleFactor);
Status tavsMulC_16sc_ISfs(Tav16sc value, Tav16sc* srcDst, int len, int scaleFactor);
Status tavsMulC_32sc_Sfs(const Tav32sc* src, Tav32sc value, Tav32sc* dst, int len, int scaleFactor);
Status tavsMulC_32sc_ISfs(Tav32sc value, Tav32sc* srcDst, int len, int scaleFactor);
Status tavsMulC_32f(const Tav32f* src, Tav32f value, Tav32f* dst, int len);
Status tavsMulC_32f_I(Tav32f value, Tav32f* srcDst, int len);
Status tavsMulC_64f(const Tav64f* src, Tav64f value, Tav64f* dst, int len);
Status tavsMulC_64f_I(Tav64f value, Tav64f* srcDst, int len);
Status tavsMulC_32fc(const Tav32fc* src, Tav32fc value, Tav32fc* dst, int len);
Status tavsMulC_32fc_I(Tav32fc value, Tav32fc* srcDst, int len);
Status tavsMulC_64fc(const Tav64fc* src, Tav64fc value, Tav64fc* dst, int len);
Status tavsMulC_64fc_I(Tav64fc value, Tav64fc* srcDst, int len);
/* In place at 128-bit width; scale above 126 or value 0 fills with zero. */
Status tavsMulC_64s_ISfs(Tav64s value, Tav64s* srcDst, int len, int scaleFactor);
/* The 64f value as integer mantissa and binary exponent, through tavsMulC_64s_ISfs. */
Status tavsMulC_64f64s_ISfs(Tav64f value, Tav64s* srcDst, int len, int scaleFactor);
/* dst = round(src * value * 2^-scaleFactor), clamped to the 16s range in float. */
Status tavsMulC_32f16s_Sfs(const Tav32f* src, Tav32f value, Tav16s* dst, int len, int scaleFactor);
/* dst = src * value nudged by one float epsilon away from zero, then truncated. */
Status tavsMulC_Low_32f16s(const Tav32f* src, Tav32f value, Tav16s* dst, int len);

/* @@ARITH23@@ (division) */
/* ---- Div: dst = src2 / src1 (src1 is the divisor); _I: srcDst = srcDst / src.
 * A zero divisor gives +-Inf or the negative quiet NaN (floats), the type's limit by the
 * dividend's sign or 0 (integers), and WarnDivByZero once the whole vector is done ---- */
Status tavsDiv_8u_Sfs(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len, int scaleFactor);
Status tavsDiv_8u_ISfs(const Tav8u* src, Tav8u* srcDst, int len, int scaleFactor);
Status tavsDiv_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
Status tavsDiv_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor);
Status tavsDiv_16u_Sfs(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len, int scaleFactor);
Status tavsDiv_16u_ISfs(const Tav16u* src, Tav16u* srcDst, int len, int scaleFactor);
Status tavsDiv_32s_Sfs(const Tav32s* src1, const Tav32s* src2, Tav32s* dst, int len, int scaleFactor);
Status tavsDiv_32s_ISfs(const Tav32s* src, Tav32s* srcDst, int len, int scaleFactor);
Status tavsDiv_16sc_Sfs(const Tav16sc* src1, const Tav16sc* src2, Tav16sc* dst, int len, int scaleFactor);
Status tavsDiv_16sc_ISfs(const Tav16sc* src, Tav16sc* srcDst, int len, int scaleFactor);
/* Divisor 16s, dividend 32s, result 16s. */
Status tavsDiv_32s16s_Sfs(const Tav16s* src1, const Tav32s* src2, Tav16s* dst, int len, int scaleFactor);
Status tavsDiv_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
Status tavsDiv_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
Status tavsDiv_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
Status tavsDiv_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
Status tavsDiv_32fc(const Tav32fc* src1, const Tav32fc* src2, Tav32fc* dst, int len);
Status tavsDiv_32fc_I(const Tav32fc* src, Tav32fc* srcDst, int len);
Status tavsDiv_64fc(const Tav64fc* src1, const Tav64fc* src2, Tav64fc* dst, int len);
Status tavsDiv_64fc_I(const Tav64fc* src, Tav64fc* srcDst, int len);
/* Div_Round: the quotient scaled, then rounded by rndMode (0, 1, 2; others ErrRoundMode). */
Status tavsDiv_Round_8u_Sfs(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len, int rndMode, int scaleFactor);
Status tavsDiv_Round_8u_ISfs(const Tav8u* src, Tav8u* srcDst, int len, int rndMode, int scaleFactor);
Status tavsDiv_Round_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int rndMode, int scaleFactor);
Status tavsDiv_Round_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int rndMode, int scaleFactor);
Status tavsDiv_Round_16u_Sfs(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len, int rndMode, int scaleFactor);
Status tavsDiv_Round_16u_ISfs(const Tav16u* src, Tav16u* srcDst, int len, int rndMode, int scaleFactor);
/* DivC: dst = src / value (32f: tavsMulC_32f by 1 / value; integer forms by the scaled
 * reciprocal in float); value 0 gives ErrDivByZero and writes nothing. */
Status tavsDivC_8u_Sfs(const Tav8u* src, Tav8u value, Tav8u* dst, int len, int scaleFactor);
Status tavsDivC_8u_ISfs(Tav8u value, Tav8u* srcDst, int len, int scaleFactor);
Status tavsDivC_16s_Sfs(const Tav16s* src, Tav16s value, Tav16s* dst, int len, int scaleFactor);
Status tavsDivC_16s_ISfs(Tav16s value, Tav16s* srcDst, int len, int scaleFactor);
Status tavsDivC_16u_Sfs(const Tav16u* src, Tav16u value, Tav16u* dst, int len, int scaleFactor);
Status tavsDivC_16u_ISfs(Tav16u value, Tav16u* srcDst, int len, int scaleFactor);
Status tavsDivC_16sc_Sfs(const Tav16sc* src, Tav16sc value, Tav16sc* dst, int len, int scaleFactor);
Status tavsDivC_16sc_ISfs(Tav16sc value, Tav16sc* srcDst, int len, int scaleFactor);
Status tavsDivC_32f(const Tav32f* src, Tav32f value, Tav32f* dst, int len);
Status tavsDivC_32f_I(Tav32f value, Tav32f* srcDst, int len);
Status tavsDivC_64f(const Tav64f* src, Tav64f value, Tav64f* dst, int len);
Status tavsDivC_64f_I(Tav64f value, Tav64f* srcDst, int len);
Status tavsDivC_32fc(const Tav32fc* src, Tav32fc value, Tav32fc* dst, int len);
Status tavsDivC_32fc_I(Tav32fc value, Tav32fc* srcDst, int len);
Status tavsDivC_64fc(const Tav64fc* src, Tav64fc value, Tav64fc* dst, int len);
Status tavsDivC_64fc_I(Tav64fc value, Tav64fc* srcDst, int len);
/* Value 0 saturates non-zero elements by sign and returns WarnDivByZero. */
Status tavsDivC_64s_ISfs(Tav64s value, Tav64s* srcDst, int len, int scaleFactor);
/* DivCRev: dst = value / src; a zero element follows the zero-divisor rule. */
Status tavsDivCRev_16u(const Tav16u* src, Tav16u value, Tav16u* dst, int len);
Status tavsDivCRev_16u_I(Tav16u value, Tav16u* srcDst, int len);
Status tavsDivCRev_32f(const Tav32f* src, Tav32f value, Tav32f* dst, int len);
Status tavsDivCRev_32f_I(Tav32f value, Tav32f* srcDst, int len);

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
