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

/* ---- sums: float forms accumulate in double (Sum_32f with HintFast: float blocks of 1024) */
/* sum of src; hint HintFast selects the single-precision block path */
Status tavsSum_32f(const Tav32f* src, int len, Tav32f* sum, int hint);
/* sum of src in double lanes */
Status tavsSum_64f(const Tav64f* src, int len, Tav64f* sum);
/* sum of src per component in double, rounded to float */
Status tavsSum_32fc(const Tav32fc* src, int len, Tav32fc* sum);
/* sum of src per component */
Status tavsSum_64fc(const Tav64fc* src, int len, Tav64fc* sum);
/* scaled sum clamped to 16 bits */
Status tavsSum_16s_Sfs(const Tav16s* src, int len, Tav16s* sum, int scaleFactor);
/* exact sum, scaled and saturated to 32 bits */
Status tavsSum_16s32s_Sfs(const Tav16s* src, int len, Tav32s* sum, int scaleFactor);
/* scaled sum per component, clamped to 16 bits */
Status tavsSum_16sc_Sfs(const Tav16sc* src, int len, Tav16sc* sum, int scaleFactor);
/* exact sum per component, scaled and saturated to 32 bits */
Status tavsSum_16sc32sc_Sfs(const Tav16sc* src, int len, Tav32sc* sum, int scaleFactor);
/* exact 64-bit sum, scaled and saturated to 32 bits */
Status tavsSum_32s_Sfs(const Tav32s* src, int len, Tav32s* sum, int scaleFactor);

/* ---- means */
/* mean in double, rounded to float */
Status tavsMean_32f(const Tav32f* src, int len, Tav32f* mean);
/* mean in double */
Status tavsMean_64f(const Tav64f* src, int len, Tav64f* mean);
/* mean per component in double, rounded to float */
Status tavsMean_32fc(const Tav32fc* src, int len, Tav32fc* mean);
/* sum per component times 1/len */
Status tavsMean_64fc(const Tav64fc* src, int len, Tav64fc* mean);
/* scaled mean, half to even, clamped to 16 bits */
Status tavsMean_16s_Sfs(const Tav16s* src, int len, Tav16s* mean, int scaleFactor);
/* scaled mean per component */
Status tavsMean_16sc_Sfs(const Tav16sc* src, int len, Tav16sc* mean, int scaleFactor);
/* integer mean, half to even, then scaled */
Status tavsMean_32s_Sfs(const Tav32s* src, int len, Tav32s* mean, int scaleFactor);

/* ---- standard deviation (divisor len-1; len >= 2) */
/* sample standard deviation, rounded to float */
Status tavsStdDev_32f(const Tav32f* src, int len, Tav32f* stdDev);
/* sample standard deviation */
Status tavsStdDev_64f(const Tav64f* src, int len, Tav64f* stdDev);
/* scaled deviation, half to even, upper clamp */
Status tavsStdDev_16s32s_Sfs(const Tav16s* src, int len, Tav32s* stdDev, int scaleFactor);
/* scaled deviation clamped to 16 bits */
Status tavsStdDev_16s_Sfs(const Tav16s* src, int len, Tav16s* stdDev, int scaleFactor);
/* mean and sample deviation in one pass */
Status tavsMeanStdDev_32f(const Tav32f* src, int len, Tav32f* mean, Tav32f* stdDev);
/* mean and sample deviation in one pass */
Status tavsMeanStdDev_64f(const Tav64f* src, int len, Tav64f* mean, Tav64f* stdDev);
/* scaled mean (half away) and deviation (half even) */
Status tavsMeanStdDev_16s32s_Sfs(const Tav16s* src, int len, Tav32s* mean, Tav32s* stdDev, int scaleFactor);
/* as the 32-bit form, clamped to 16 bits */
Status tavsMeanStdDev_16s_Sfs(const Tav16s* src, int len, Tav16s* mean, Tav16s* stdDev, int scaleFactor);

/* ---- extrema: first index of the extremum; float NaN at index 0 stays, elsewhere skipped */
/* largest element */
Status tavsMax_16s(const Tav16s* src, int len, Tav16s* max);
/* largest element */
Status tavsMax_32s(const Tav32s* src, int len, Tav32s* max);
/* largest element */
Status tavsMax_32f(const Tav32f* src, int len, Tav32f* max);
/* largest element */
Status tavsMax_64f(const Tav64f* src, int len, Tav64f* max);
/* smallest element */
Status tavsMin_16s(const Tav16s* src, int len, Tav16s* min);
/* smallest element */
Status tavsMin_32s(const Tav32s* src, int len, Tav32s* min);
/* smallest element */
Status tavsMin_32f(const Tav32f* src, int len, Tav32f* min);
/* smallest element */
Status tavsMin_64f(const Tav64f* src, int len, Tav64f* min);
/* largest element and its first index (index may be NULL) */
Status tavsMaxIndx_16s(const Tav16s* src, int len, Tav16s* max, int* index);
/* largest element and its first index (index may be NULL) */
Status tavsMaxIndx_32s(const Tav32s* src, int len, Tav32s* max, int* index);
/* largest element and its first index (index may be NULL) */
Status tavsMaxIndx_32f(const Tav32f* src, int len, Tav32f* max, int* index);
/* largest element and its first index (index may be NULL) */
Status tavsMaxIndx_64f(const Tav64f* src, int len, Tav64f* max, int* index);
/* smallest element and its first index (index may be NULL) */
Status tavsMinIndx_16s(const Tav16s* src, int len, Tav16s* min, int* index);
/* smallest element and its first index (index may be NULL) */
Status tavsMinIndx_32s(const Tav32s* src, int len, Tav32s* min, int* index);
/* smallest element and its first index (index may be NULL) */
Status tavsMinIndx_32f(const Tav32f* src, int len, Tav32f* min, int* index);
/* smallest element and its first index (index may be NULL) */
Status tavsMinIndx_64f(const Tav64f* src, int len, Tav64f* min, int* index);
/* largest magnitude (-32768 counts as 32768), clamped to 32767 */
Status tavsMaxAbs_16s(const Tav16s* src, int len, Tav16s* maxAbs);
/* largest magnitude, clamped to 2147483647 */
Status tavsMaxAbs_32s(const Tav32s* src, int len, Tav32s* maxAbs);
/* smallest magnitude (-32768 counts as 32768), clamped to 32767 */
Status tavsMinAbs_16s(const Tav16s* src, int len, Tav16s* minAbs);
/* smallest magnitude, clamped to 2147483647 */
Status tavsMinAbs_32s(const Tav32s* src, int len, Tav32s* minAbs);
/* largest magnitude clamped before comparing, first index */
Status tavsMaxAbsIndx_16s(const Tav16s* src, int len, Tav16s* maxAbs, int* index);
/* largest magnitude clamped before comparing, first index */
Status tavsMaxAbsIndx_32s(const Tav32s* src, int len, Tav32s* maxAbs, int* index);
/* smallest magnitude clamped before comparing, first index */
Status tavsMinAbsIndx_16s(const Tav16s* src, int len, Tav16s* minAbs, int* index);
/* smallest magnitude clamped before comparing, first index */
Status tavsMinAbsIndx_32s(const Tav32s* src, int len, Tav32s* minAbs, int* index);
/* smallest and largest element */
Status tavsMinMax_8u(const Tav8u* src, int len, Tav8u* min, Tav8u* max);
/* smallest and largest element */
Status tavsMinMax_16u(const Tav16u* src, int len, Tav16u* min, Tav16u* max);
/* smallest and largest element */
Status tavsMinMax_32u(const Tav32u* src, int len, Tav32u* min, Tav32u* max);
/* smallest and largest element */
Status tavsMinMax_16s(const Tav16s* src, int len, Tav16s* min, Tav16s* max);
/* smallest and largest element */
Status tavsMinMax_32s(const Tav32s* src, int len, Tav32s* min, Tav32s* max);
/* smallest and largest element */
Status tavsMinMax_32f(const Tav32f* src, int len, Tav32f* min, Tav32f* max);
/* smallest and largest element */
Status tavsMinMax_64f(const Tav64f* src, int len, Tav64f* min, Tav64f* max);
/* extremes and their first indices */
Status tavsMinMaxIndx_8u(const Tav8u* src, int len, Tav8u* min, int* minIndx, Tav8u* max, int* maxIndx);
/* extremes and their first indices */
Status tavsMinMaxIndx_16u(const Tav16u* src, int len, Tav16u* min, int* minIndx, Tav16u* max, int* maxIndx);
/* extremes and their first indices */
Status tavsMinMaxIndx_32u(const Tav32u* src, int len, Tav32u* min, int* minIndx, Tav32u* max, int* maxIndx);
/* extremes and their first indices */
Status tavsMinMaxIndx_16s(const Tav16s* src, int len, Tav16s* min, int* minIndx, Tav16s* max, int* maxIndx);
/* extremes and their first indices */
Status tavsMinMaxIndx_32s(const Tav32s* src, int len, Tav32s* min, int* minIndx, Tav32s* max, int* maxIndx);
/* extremes and their first indices */
Status tavsMinMaxIndx_32f(const Tav32f* src, int len, Tav32f* min, int* minIndx, Tav32f* max, int* maxIndx);
/* extremes and their first indices */
Status tavsMinMaxIndx_64f(const Tav64f* src, int len, Tav64f* min, int* minIndx, Tav64f* max, int* maxIndx);

/* ---- element-wise extremes; the out-of-place forms take an unsigned length */
/* dst = max(src1, src2) */
Status tavsMaxEvery_8u(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, Tav32u len);
/* dst = max(src1, src2) */
Status tavsMaxEvery_16u(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, Tav32u len);
/* dst = src1 > src2 ? src1 : src2 */
Status tavsMaxEvery_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, Tav32u len);
/* dst = src1 > src2 ? src1 : src2 */
Status tavsMaxEvery_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, Tav32u len);
/* dst = min(src1, src2) */
Status tavsMinEvery_8u(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, Tav32u len);
/* dst = min(src1, src2) */
Status tavsMinEvery_16u(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, Tav32u len);
/* dst = src1 < src2 ? src1 : src2 */
Status tavsMinEvery_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, Tav32u len);
/* dst = src1 < src2 ? src1 : src2 */
Status tavsMinEvery_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, Tav32u len);
/* srcDst = max(src, srcDst) */
Status tavsMaxEvery_8u_I(const Tav8u* src, Tav8u* srcDst, int len);
/* srcDst = max(src, srcDst) */
Status tavsMaxEvery_16u_I(const Tav16u* src, Tav16u* srcDst, int len);
/* srcDst = max(src, srcDst) */
Status tavsMaxEvery_16s_I(const Tav16s* src, Tav16s* srcDst, int len);
/* srcDst = max(src, srcDst) */
Status tavsMaxEvery_32s_I(const Tav32s* src, Tav32s* srcDst, int len);
/* srcDst = src > srcDst ? src : srcDst */
Status tavsMaxEvery_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
/* srcDst = src > srcDst ? src : srcDst */
Status tavsMaxEvery_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
/* srcDst = min(src, srcDst) */
Status tavsMinEvery_8u_I(const Tav8u* src, Tav8u* srcDst, int len);
/* srcDst = min(src, srcDst) */
Status tavsMinEvery_16u_I(const Tav16u* src, Tav16u* srcDst, int len);
/* srcDst = min(src, srcDst) */
Status tavsMinEvery_16s_I(const Tav16s* src, Tav16s* srcDst, int len);
/* srcDst = min(src, srcDst) */
Status tavsMinEvery_32s_I(const Tav32s* src, Tav32s* srcDst, int len);
/* srcDst = src < srcDst ? src : srcDst */
Status tavsMinEvery_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
/* srcDst = src < srcDst ? src : srcDst */
Status tavsMinEvery_64f_I(const Tav64f* src, Tav64f* srcDst, int len);

/* ---- look-up in an ascending table, and counting */
/* nearest table entry of each element (ties to the lower index) */
Status tavsFindNearest_16u(const Tav16u* src, Tav16u* val, int* indx, int len, const Tav16u* table, int tableLen);
/* nearest table entry of one value (ties to the lower index) */
Status tavsFindNearestOne_16u(Tav16u input, Tav16u* val, int* indx, const Tav16u* table, int tableLen);
/* count of elements strictly between the bounds */
Status tavsCountInRange_32s(const Tav32s* src, int len, int* count, Tav32s lowerBound, Tav32s upperBound);

/* ---- norms: float forms sum in double, integer forms exactly in 64 bits */
/* largest magnitude */
Status tavsNorm_Inf_32f(const Tav32f* src, int len, Tav32f* norm);
/* largest magnitude */
Status tavsNorm_Inf_64f(const Tav64f* src, int len, Tav64f* norm);
/* largest magnitude */
Status tavsNorm_Inf_16s32f(const Tav16s* src, int len, Tav32f* norm);
/* largest magnitude, scaled */
Status tavsNorm_Inf_16s32s_Sfs(const Tav16s* src, int len, Tav32s* norm, int scaleFactor);
/* largest complex magnitude */
Status tavsNorm_Inf_32fc32f(const Tav32fc* src, int len, Tav32f* norm);
/* largest complex magnitude */
Status tavsNorm_Inf_64fc64f(const Tav64fc* src, int len, Tav64f* norm);
/* sum of magnitudes */
Status tavsNorm_L1_32f(const Tav32f* src, int len, Tav32f* norm);
/* sum of magnitudes */
Status tavsNorm_L1_64f(const Tav64f* src, int len, Tav64f* norm);
/* sum of magnitudes */
Status tavsNorm_L1_16s32f(const Tav16s* src, int len, Tav32f* norm);
/* sum of magnitudes, scaled */
Status tavsNorm_L1_16s32s_Sfs(const Tav16s* src, int len, Tav32s* norm, int scaleFactor);
/* sum of magnitudes, scaled to 64 bits */
Status tavsNorm_L1_16s64s_Sfs(const Tav16s* src, int len, Tav64s* norm, int scaleFactor);
/* sum of complex magnitudes */
Status tavsNorm_L1_32fc64f(const Tav32fc* src, int len, Tav64f* norm);
/* sum of complex magnitudes */
Status tavsNorm_L1_64fc64f(const Tav64fc* src, int len, Tav64f* norm);
/* square root of the sum of squares */
Status tavsNorm_L2_32f(const Tav32f* src, int len, Tav32f* norm);
/* square root of the sum of squares */
Status tavsNorm_L2_64f(const Tav64f* src, int len, Tav64f* norm);
/* square root of the sum of squares */
Status tavsNorm_L2_16s32f(const Tav16s* src, int len, Tav32f* norm);
/* square root of the sum of squares, scaled and truncated */
Status tavsNorm_L2_16s32s_Sfs(const Tav16s* src, int len, Tav32s* norm, int scaleFactor);
/* square root of the sum of squared magnitudes */
Status tavsNorm_L2_32fc64f(const Tav32fc* src, int len, Tav64f* norm);
/* square root of the sum of squared magnitudes */
Status tavsNorm_L2_64fc64f(const Tav64fc* src, int len, Tav64f* norm);
/* sum of squares, scaled */
Status tavsNorm_L2Sqr_16s64s_Sfs(const Tav16s* src, int len, Tav64s* norm, int scaleFactor);
/* largest magnitude of src1 - src2 */
Status tavsNormDiff_Inf_32f(const Tav32f* src1, const Tav32f* src2, int len, Tav32f* norm);
/* largest magnitude of src1 - src2 */
Status tavsNormDiff_Inf_64f(const Tav64f* src1, const Tav64f* src2, int len, Tav64f* norm);
/* largest magnitude of src1 - src2 */
Status tavsNormDiff_Inf_16s32f(const Tav16s* src1, const Tav16s* src2, int len, Tav32f* norm);
/* largest magnitude of src1 - src2, scaled */
Status tavsNormDiff_Inf_16s32s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav32s* norm, int scaleFactor);
/* largest complex magnitude of src1 - src2 */
Status tavsNormDiff_Inf_32fc32f(const Tav32fc* src1, const Tav32fc* src2, int len, Tav32f* norm);
/* largest complex magnitude of src1 - src2 */
Status tavsNormDiff_Inf_64fc64f(const Tav64fc* src1, const Tav64fc* src2, int len, Tav64f* norm);
/* sum of magnitudes of src1 - src2 */
Status tavsNormDiff_L1_32f(const Tav32f* src1, const Tav32f* src2, int len, Tav32f* norm);
/* sum of magnitudes of src1 - src2 */
Status tavsNormDiff_L1_64f(const Tav64f* src1, const Tav64f* src2, int len, Tav64f* norm);
/* sum of magnitudes of src1 - src2 */
Status tavsNormDiff_L1_16s32f(const Tav16s* src1, const Tav16s* src2, int len, Tav32f* norm);
/* sum of magnitudes of src1 - src2, scaled */
Status tavsNormDiff_L1_16s32s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav32s* norm, int scaleFactor);
/* sum of magnitudes of src1 - src2, scaled to 64 bits */
Status tavsNormDiff_L1_16s64s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav64s* norm, int scaleFactor);
/* sum of complex magnitudes of src1 - src2 */
Status tavsNormDiff_L1_32fc64f(const Tav32fc* src1, const Tav32fc* src2, int len, Tav64f* norm);
/* sum of complex magnitudes of src1 - src2 */
Status tavsNormDiff_L1_64fc64f(const Tav64fc* src1, const Tav64fc* src2, int len, Tav64f* norm);
/* L2 norm of src1 - src2 */
Status tavsNormDiff_L2_32f(const Tav32f* src1, const Tav32f* src2, int len, Tav32f* norm);
/* L2 norm of src1 - src2 */
Status tavsNormDiff_L2_64f(const Tav64f* src1, const Tav64f* src2, int len, Tav64f* norm);
/* L2 norm of src1 - src2 */
Status tavsNormDiff_L2_16s32f(const Tav16s* src1, const Tav16s* src2, int len, Tav32f* norm);
/* L2 norm of src1 - src2, scaled and truncated */
Status tavsNormDiff_L2_16s32s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav32s* norm, int scaleFactor);
/* L2 norm of src1 - src2 */
Status tavsNormDiff_L2_32fc64f(const Tav32fc* src1, const Tav32fc* src2, int len, Tav64f* norm);
/* L2 norm of src1 - src2 */
Status tavsNormDiff_L2_64fc64f(const Tav64fc* src1, const Tav64fc* src2, int len, Tav64f* norm);
/* sum of squares of src1 - src2, scaled */
Status tavsNormDiff_L2Sqr_16s64s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav64s* norm, int scaleFactor);

/* ---- dot products: sum of src1[i] * src2[i], no conjugation */
/* four float lanes */
Status tavsDotProd_32f(const Tav32f* src1, const Tav32f* src2, int len, Tav32f* dp);
/* complex lanes in float */
Status tavsDotProd_32fc(const Tav32fc* src1, const Tav32fc* src2, int len, Tav32fc* dp);
/* real times complex, lanes in float */
Status tavsDotProd_32f32fc(const Tav32f* src1, const Tav32fc* src2, int len, Tav32fc* dp);
/* widened, summed in double */
Status tavsDotProd_32f64f(const Tav32f* src1, const Tav32f* src2, int len, Tav64f* dp);
/* widened, summed in double */
Status tavsDotProd_32fc64fc(const Tav32fc* src1, const Tav32fc* src2, int len, Tav64fc* dp);
/* widened, summed in double */
Status tavsDotProd_32f32fc64fc(const Tav32f* src1, const Tav32fc* src2, int len, Tav64fc* dp);
/* four double lanes */
Status tavsDotProd_64f(const Tav64f* src1, const Tav64f* src2, int len, Tav64f* dp);
/* complex lanes in double */
Status tavsDotProd_64fc(const Tav64fc* src1, const Tav64fc* src2, int len, Tav64fc* dp);
/* real times complex, lanes in double */
Status tavsDotProd_64f64fc(const Tav64f* src1, const Tav64fc* src2, int len, Tav64fc* dp);
/* exact 64-bit sum converted to float */
Status tavsDotProd_16s32f(const Tav16s* src1, const Tav16s* src2, int len, Tav32f* dp);
/* exact 64-bit sums converted to float */
Status tavsDotProd_16sc32fc(const Tav16sc* src1, const Tav16sc* src2, int len, Tav32fc* dp);
/* exact 64-bit sums converted to float */
Status tavsDotProd_16s16sc32fc(const Tav16s* src1, const Tav16sc* src2, int len, Tav32fc* dp);
/* exact 64-bit sum */
Status tavsDotProd_16s64s(const Tav16s* src1, const Tav16s* src2, int len, Tav64s* dp);
/* exact 64-bit sums */
Status tavsDotProd_16sc64sc(const Tav16sc* src1, const Tav16sc* src2, int len, Tav64sc* dp);
/* exact 64-bit sums */
Status tavsDotProd_16s16sc64sc(const Tav16s* src1, const Tav16sc* src2, int len, Tav64sc* dp);
/* exact sum, scaled and saturated to 16 bits */
Status tavsDotProd_16s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav16s* dp, int scaleFactor);
/* exact sums, scaled and saturated to 16 bits */
Status tavsDotProd_16sc_Sfs(const Tav16sc* src1, const Tav16sc* src2, int len, Tav16sc* dp, int scaleFactor);
/* exact sum, scaled and saturated to 32 bits */
Status tavsDotProd_16s32s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav32s* dp, int scaleFactor);
/* exact sums, scaled and saturated to 32 bits */
Status tavsDotProd_16sc32sc_Sfs(const Tav16sc* src1, const Tav16sc* src2, int len, Tav32sc* dp, int scaleFactor);
/* exact sums, scaled and saturated to 16 bits */
Status tavsDotProd_16s16sc_Sfs(const Tav16s* src1, const Tav16sc* src2, int len, Tav16sc* dp, int scaleFactor);
/* exact sums, scaled and saturated to 32 bits */
Status tavsDotProd_16s16sc32sc_Sfs(const Tav16s* src1, const Tav16sc* src2, int len, Tav32sc* dp, int scaleFactor);
/* 64-bit sum, scaled and saturated to 32 bits */
Status tavsDotProd_16s32s32s_Sfs(const Tav16s* src1, const Tav32s* src2, int len, Tav32s* dp, int scaleFactor);
/* sum in double, scaled, rounded, saturated */
Status tavsDotProd_32s_Sfs(const Tav32s* src1, const Tav32s* src2, int len, Tav32s* dp, int scaleFactor);
/* sums in double, scaled, rounded, saturated */
Status tavsDotProd_32sc_Sfs(const Tav32sc* src1, const Tav32sc* src2, int len, Tav32sc* dp, int scaleFactor);
/* sums in double, scaled, rounded, saturated */
Status tavsDotProd_32s32sc_Sfs(const Tav32s* src1, const Tav32sc* src2, int len, Tav32sc* dp, int scaleFactor);

#ifdef __cplusplus
}
#endif

#endif /* TAVS_H */
