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
/* ---- threshold, selector form: relOp CmpLess acts as LT, CmpGreater as GT;
 * any other selector is ErrBadArg. Complex forms take a real magnitude level
 * (ErrThresholdNegative below zero). --------------------------------- */
/* dst = LT or GT by relOp (complex: by magnitude) */
Status tavsThreshold_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level, int relOp);
Status tavsThreshold_16s_I(Tav16s* srcDst, int len, Tav16s level, int relOp);
Status tavsThreshold_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level, int relOp);
Status tavsThreshold_32f_I(Tav32f* srcDst, int len, Tav32f level, int relOp);
Status tavsThreshold_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level, int relOp);
Status tavsThreshold_64f_I(Tav64f* srcDst, int len, Tav64f level, int relOp);
Status tavsThreshold_16sc(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level, int relOp);
Status tavsThreshold_16sc_I(Tav16sc* srcDst, int len, Tav16s level, int relOp);
Status tavsThreshold_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level, int relOp);
Status tavsThreshold_32fc_I(Tav32fc* srcDst, int len, Tav32f level, int relOp);
Status tavsThreshold_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level, int relOp);
Status tavsThreshold_64fc_I(Tav64fc* srcDst, int len, Tav64f level, int relOp);
/* x not above level becomes level (complex: magnitude raised to level) */
Status tavsThreshold_LT_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level);
Status tavsThreshold_LT_16s_I(Tav16s* srcDst, int len, Tav16s level);
Status tavsThreshold_LT_32s(const Tav32s* src, Tav32s* dst, int len, Tav32s level);
Status tavsThreshold_LT_32s_I(Tav32s* srcDst, int len, Tav32s level);
Status tavsThreshold_LT_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level);
Status tavsThreshold_LT_32f_I(Tav32f* srcDst, int len, Tav32f level);
Status tavsThreshold_LT_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level);
Status tavsThreshold_LT_64f_I(Tav64f* srcDst, int len, Tav64f level);
Status tavsThreshold_LT_16sc(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level);
Status tavsThreshold_LT_16sc_I(Tav16sc* srcDst, int len, Tav16s level);
Status tavsThreshold_LT_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level);
Status tavsThreshold_LT_32fc_I(Tav32fc* srcDst, int len, Tav32f level);
Status tavsThreshold_LT_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level);
Status tavsThreshold_LT_64fc_I(Tav64fc* srcDst, int len, Tav64f level);
/* x not below level becomes level (complex: magnitude lowered to level) */
Status tavsThreshold_GT_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level);
Status tavsThreshold_GT_16s_I(Tav16s* srcDst, int len, Tav16s level);
Status tavsThreshold_GT_32s(const Tav32s* src, Tav32s* dst, int len, Tav32s level);
Status tavsThreshold_GT_32s_I(Tav32s* srcDst, int len, Tav32s level);
Status tavsThreshold_GT_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level);
Status tavsThreshold_GT_32f_I(Tav32f* srcDst, int len, Tav32f level);
Status tavsThreshold_GT_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level);
Status tavsThreshold_GT_64f_I(Tav64f* srcDst, int len, Tav64f level);
Status tavsThreshold_GT_16sc(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level);
Status tavsThreshold_GT_16sc_I(Tav16sc* srcDst, int len, Tav16s level);
Status tavsThreshold_GT_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level);
Status tavsThreshold_GT_32fc_I(Tav32fc* srcDst, int len, Tav32f level);
Status tavsThreshold_GT_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level);
Status tavsThreshold_GT_64fc_I(Tav64fc* srcDst, int len, Tav64f level);
/* |x| below level becomes level with the sign of x; level >= 0 */
Status tavsThreshold_LTAbs_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level);
Status tavsThreshold_LTAbs_16s_I(Tav16s* srcDst, int len, Tav16s level);
Status tavsThreshold_LTAbs_32s(const Tav32s* src, Tav32s* dst, int len, Tav32s level);
Status tavsThreshold_LTAbs_32s_I(Tav32s* srcDst, int len, Tav32s level);
Status tavsThreshold_LTAbs_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level);
Status tavsThreshold_LTAbs_32f_I(Tav32f* srcDst, int len, Tav32f level);
Status tavsThreshold_LTAbs_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level);
Status tavsThreshold_LTAbs_64f_I(Tav64f* srcDst, int len, Tav64f level);
/* |x| above level becomes level with the sign of x; level >= 0 */
Status tavsThreshold_GTAbs_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level);
Status tavsThreshold_GTAbs_16s_I(Tav16s* srcDst, int len, Tav16s level);
Status tavsThreshold_GTAbs_32s(const Tav32s* src, Tav32s* dst, int len, Tav32s level);
Status tavsThreshold_GTAbs_32s_I(Tav32s* srcDst, int len, Tav32s level);
Status tavsThreshold_GTAbs_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level);
Status tavsThreshold_GTAbs_32f_I(Tav32f* srcDst, int len, Tav32f level);
Status tavsThreshold_GTAbs_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level);
Status tavsThreshold_GTAbs_64f_I(Tav64f* srcDst, int len, Tav64f level);
/* x below level becomes value (complex: by magnitude) */
Status tavsThreshold_LTVal_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level, Tav16s value);
Status tavsThreshold_LTVal_16s_I(Tav16s* srcDst, int len, Tav16s level, Tav16s value);
Status tavsThreshold_LTVal_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level, Tav32f value);
Status tavsThreshold_LTVal_32f_I(Tav32f* srcDst, int len, Tav32f level, Tav32f value);
Status tavsThreshold_LTVal_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level, Tav64f value);
Status tavsThreshold_LTVal_64f_I(Tav64f* srcDst, int len, Tav64f level, Tav64f value);
Status tavsThreshold_LTVal_16sc(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level, Tav16sc value);
Status tavsThreshold_LTVal_16sc_I(Tav16sc* srcDst, int len, Tav16s level, Tav16sc value);
Status tavsThreshold_LTVal_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level, Tav32fc value);
Status tavsThreshold_LTVal_32fc_I(Tav32fc* srcDst, int len, Tav32f level, Tav32fc value);
Status tavsThreshold_LTVal_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level, Tav64fc value);
Status tavsThreshold_LTVal_64fc_I(Tav64fc* srcDst, int len, Tav64f level, Tav64fc value);
/* x above level becomes value (complex: by magnitude) */
Status tavsThreshold_GTVal_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level, Tav16s value);
Status tavsThreshold_GTVal_16s_I(Tav16s* srcDst, int len, Tav16s level, Tav16s value);
Status tavsThreshold_GTVal_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level, Tav32f value);
Status tavsThreshold_GTVal_32f_I(Tav32f* srcDst, int len, Tav32f level, Tav32f value);
Status tavsThreshold_GTVal_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level, Tav64f value);
Status tavsThreshold_GTVal_64f_I(Tav64f* srcDst, int len, Tav64f level, Tav64f value);
Status tavsThreshold_GTVal_16sc(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level, Tav16sc value);
Status tavsThreshold_GTVal_16sc_I(Tav16sc* srcDst, int len, Tav16s level, Tav16sc value);
Status tavsThreshold_GTVal_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level, Tav32fc value);
Status tavsThreshold_GTVal_32fc_I(Tav32fc* srcDst, int len, Tav32f level, Tav32fc value);
Status tavsThreshold_GTVal_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level, Tav64fc value);
Status tavsThreshold_GTVal_64fc_I(Tav64fc* srcDst, int len, Tav64f level, Tav64fc value);
/* below lowLevel: lowValue, else above highLevel: highValue; ErrThresholdOrder when lowLevel > highLevel */
Status tavsThreshold_LTValGTVal_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s lowLevel, Tav16s lowValue, Tav16s highLevel, Tav16s highValue);
Status tavsThreshold_LTValGTVal_16s_I(Tav16s* srcDst, int len, Tav16s lowLevel, Tav16s lowValue, Tav16s highLevel, Tav16s highValue);
Status tavsThreshold_LTValGTVal_32s(const Tav32s* src, Tav32s* dst, int len, Tav32s lowLevel, Tav32s lowValue, Tav32s highLevel, Tav32s highValue);
Status tavsThreshold_LTValGTVal_32s_I(Tav32s* srcDst, int len, Tav32s lowLevel, Tav32s lowValue, Tav32s highLevel, Tav32s highValue);
Status tavsThreshold_LTValGTVal_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f lowLevel, Tav32f lowValue, Tav32f highLevel, Tav32f highValue);
Status tavsThreshold_LTValGTVal_32f_I(Tav32f* srcDst, int len, Tav32f lowLevel, Tav32f lowValue, Tav32f highLevel, Tav32f highValue);
Status tavsThreshold_LTValGTVal_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f lowLevel, Tav64f lowValue, Tav64f highLevel, Tav64f highValue);
Status tavsThreshold_LTValGTVal_64f_I(Tav64f* srcDst, int len, Tav64f lowLevel, Tav64f lowValue, Tav64f highLevel, Tav64f highValue);
/* 1/x limited in magnitude to 1/level; level 0: plain 1/x, +Inf and WarnInvZero for zero elements */
Status tavsThreshold_LTInv_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level);
Status tavsThreshold_LTInv_32f_I(Tav32f* srcDst, int len, Tav32f level);
Status tavsThreshold_LTInv_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level);
Status tavsThreshold_LTInv_64f_I(Tav64f* srcDst, int len, Tav64f level);
Status tavsThreshold_LTInv_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level);
Status tavsThreshold_LTInv_32fc_I(Tav32fc* srcDst, int len, Tav32f level);
Status tavsThreshold_LTInv_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level);
Status tavsThreshold_LTInv_64fc_I(Tav64fc* srcDst, int len, Tav64f level);

/* @@ARITH26@@ (logic, shifts, complex helpers) */
/* dst = src1 & src2 */
Status tavsAnd_8u(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len);
Status tavsAnd_8u_I(const Tav8u* src, Tav8u* srcDst, int len);
Status tavsAnd_16u(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len);
Status tavsAnd_16u_I(const Tav16u* src, Tav16u* srcDst, int len);
Status tavsAnd_32u(const Tav32u* src1, const Tav32u* src2, Tav32u* dst, int len);
Status tavsAnd_32u_I(const Tav32u* src, Tav32u* srcDst, int len);
/* dst = src1 | src2 */
Status tavsOr_8u(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len);
Status tavsOr_8u_I(const Tav8u* src, Tav8u* srcDst, int len);
Status tavsOr_16u(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len);
Status tavsOr_16u_I(const Tav16u* src, Tav16u* srcDst, int len);
Status tavsOr_32u(const Tav32u* src1, const Tav32u* src2, Tav32u* dst, int len);
Status tavsOr_32u_I(const Tav32u* src, Tav32u* srcDst, int len);
/* dst = src1 ^ src2 */
Status tavsXor_8u(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len);
Status tavsXor_8u_I(const Tav8u* src, Tav8u* srcDst, int len);
Status tavsXor_16u(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len);
Status tavsXor_16u_I(const Tav16u* src, Tav16u* srcDst, int len);
Status tavsXor_32u(const Tav32u* src1, const Tav32u* src2, Tav32u* dst, int len);
Status tavsXor_32u_I(const Tav32u* src, Tav32u* srcDst, int len);
/* dst = src & value; value 0 is a zero fill */
Status tavsAndC_8u(const Tav8u* src, Tav8u value, Tav8u* dst, int len);
Status tavsAndC_8u_I(Tav8u value, Tav8u* srcDst, int len);
Status tavsAndC_16u(const Tav16u* src, Tav16u value, Tav16u* dst, int len);
Status tavsAndC_16u_I(Tav16u value, Tav16u* srcDst, int len);
Status tavsAndC_32u(const Tav32u* src, Tav32u value, Tav32u* dst, int len);
Status tavsAndC_32u_I(Tav32u value, Tav32u* srcDst, int len);
/* dst = src | value; value 0 is a copy */
Status tavsOrC_8u(const Tav8u* src, Tav8u value, Tav8u* dst, int len);
Status tavsOrC_8u_I(Tav8u value, Tav8u* srcDst, int len);
Status tavsOrC_16u(const Tav16u* src, Tav16u value, Tav16u* dst, int len);
Status tavsOrC_16u_I(Tav16u value, Tav16u* srcDst, int len);
Status tavsOrC_32u(const Tav32u* src, Tav32u value, Tav32u* dst, int len);
Status tavsOrC_32u_I(Tav32u value, Tav32u* srcDst, int len);
/* dst = src ^ value; value 0 is a copy */
Status tavsXorC_8u(const Tav8u* src, Tav8u value, Tav8u* dst, int len);
Status tavsXorC_8u_I(Tav8u value, Tav8u* srcDst, int len);
Status tavsXorC_16u(const Tav16u* src, Tav16u value, Tav16u* dst, int len);
Status tavsXorC_16u_I(Tav16u value, Tav16u* srcDst, int len);
Status tavsXorC_32u(const Tav32u* src, Tav32u value, Tav32u* dst, int len);
Status tavsXorC_32u_I(Tav32u value, Tav32u* srcDst, int len);
/* dst = ~src */
Status tavsNot_8u(const Tav8u* src, Tav8u* dst, int len);
Status tavsNot_8u_I(Tav8u* srcDst, int len);
Status tavsNot_16u(const Tav16u* src, Tav16u* dst, int len);
Status tavsNot_16u_I(Tav16u* srcDst, int len);
Status tavsNot_32u(const Tav32u* src, Tav32u* dst, int len);
Status tavsNot_32u_I(Tav32u* srcDst, int len);
/* dst = src << shift; shift 0 copies, shift >= width zero-fills, negative is ErrShift */
Status tavsLShiftC_8u(const Tav8u* src, int shift, Tav8u* dst, int len);
Status tavsLShiftC_8u_I(int shift, Tav8u* srcDst, int len);
Status tavsLShiftC_16u(const Tav16u* src, int shift, Tav16u* dst, int len);
Status tavsLShiftC_16u_I(int shift, Tav16u* srcDst, int len);
Status tavsLShiftC_16s(const Tav16s* src, int shift, Tav16s* dst, int len);
Status tavsLShiftC_16s_I(int shift, Tav16s* srcDst, int len);
Status tavsLShiftC_32s(const Tav32s* src, int shift, Tav32s* dst, int len);
Status tavsLShiftC_32s_I(int shift, Tav32s* srcDst, int len);
/* dst = src >> shift: logical for unsigned, arithmetic for signed; shift >= width
 * gives zeros (unsigned) or the sign (signed); negative is ErrShift */
Status tavsRShiftC_8u(const Tav8u* src, int shift, Tav8u* dst, int len);
Status tavsRShiftC_8u_I(int shift, Tav8u* srcDst, int len);
Status tavsRShiftC_16u(const Tav16u* src, int shift, Tav16u* dst, int len);
Status tavsRShiftC_16u_I(int shift, Tav16u* srcDst, int len);
Status tavsRShiftC_16s(const Tav16s* src, int shift, Tav16s* dst, int len);
Status tavsRShiftC_16s_I(int shift, Tav16s* srcDst, int len);
Status tavsRShiftC_32s(const Tav32s* src, int shift, Tav32s* dst, int len);
Status tavsRShiftC_32s_I(int shift, Tav32s* srcDst, int len);
/* dst = (re, -im); 16sc saturates -32768 to 32767, float forms flip the sign bit */
Status tavsConj_16sc(const Tav16sc* src, Tav16sc* dst, int len);
Status tavsConj_16sc_I(Tav16sc* srcDst, int len);
Status tavsConj_32fc(const Tav32fc* src, Tav32fc* dst, int len);
Status tavsConj_32fc_I(Tav32fc* srcDst, int len);
Status tavsConj_64fc(const Tav64fc* src, Tav64fc* dst, int len);
Status tavsConj_64fc_I(Tav64fc* srcDst, int len);
/* dst[len-1-i] = conj(src[i]); dst must not overlap src */
Status tavsConjFlip_16sc(const Tav16sc* src, Tav16sc* dst, int len);
Status tavsConjFlip_32fc(const Tav32fc* src, Tav32fc* dst, int len);
Status tavsConjFlip_64fc(const Tav64fc* src, Tav64fc* dst, int len);
/* dstRe = re(src) */
Status tavsReal_16sc(const Tav16sc* src, Tav16s* dstRe, int len);
Status tavsReal_32fc(const Tav32fc* src, Tav32f* dstRe, int len);
Status tavsReal_64fc(const Tav64fc* src, Tav64f* dstRe, int len);
/* dstIm = im(src) */
Status tavsImag_16sc(const Tav16sc* src, Tav16s* dstIm, int len);
Status tavsImag_32fc(const Tav32fc* src, Tav32f* dstIm, int len);
Status tavsImag_64fc(const Tav64fc* src, Tav64f* dstIm, int len);
/* both parts of src */
Status tavsCplxToReal_16sc(const Tav16sc* src, Tav16s* dstRe, Tav16s* dstIm, int len);
Status tavsCplxToReal_32fc(const Tav32fc* src, Tav32f* dstRe, Tav32f* dstIm, int len);
Status tavsCplxToReal_64fc(const Tav64fc* src, Tav64f* dstRe, Tav64f* dstIm, int len);
/* dst = (srcRe, srcIm); a null part stores zero, both null is ErrNullPtr */
Status tavsRealToCplx_16s(const Tav16s* srcRe, const Tav16s* srcIm, Tav16sc* dst, int len);
Status tavsRealToCplx_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32fc* dst, int len);
Status tavsRealToCplx_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64fc* dst, int len);

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
