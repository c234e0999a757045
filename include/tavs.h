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

/* Operand order: Add dst = src1 + src2; Sub dst = src2 - src1 (in place:
 * srcDst = srcDst - src); Mul dst = src1 * src2; AddProduct dst += src1 * src2.
 * Integer forms saturate; _Sfs forms scale by 2^-scaleFactor with ties to even. */

/* ---- add ----------------------------------------------------------------- */
/* dst = sat(src1 + src2). */
Status tavsAdd_16s(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len);
/* srcDst = sat(src + srcDst). */
Status tavsAdd_16s_I(const Tav16s* src, Tav16s* srcDst, int len);
/* srcDst = sat((src + srcDst) * 2^-scaleFactor). */
Status tavsAdd_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor);
/* dst = sat((src1 + src2) * 2^-scaleFactor). */
Status tavsAdd_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
/* dst = (float)src1 + (float)src2. */
Status tavsAdd_16s32f(const Tav16s* src1, const Tav16s* src2, Tav32f* dst, int len);
/* srcDst = sat32(srcDst + src). */
Status tavsAdd_16s32s_I(const Tav16s* src, Tav32s* srcDst, int len);
/* Complex in-place scaled sum, parts independently; length tested first. */
Status tavsAdd_16sc_ISfs(const Tav16sc* src, Tav16sc* srcDst, int len, int scaleFactor);
/* Complex scaled sum, parts independently; length tested first. */
Status tavsAdd_16sc_Sfs(const Tav16sc* src1, const Tav16sc* src2, Tav16sc* dst, int len, int scaleFactor);
/* dst = sat(src1 + src2). */
Status tavsAdd_16u(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len);
/* srcDst = sat((src + srcDst) * 2^-scaleFactor). */
Status tavsAdd_16u_ISfs(const Tav16u* src, Tav16u* srcDst, int len, int scaleFactor);
/* dst = sat((src1 + src2) * 2^-scaleFactor). */
Status tavsAdd_16u_Sfs(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len, int scaleFactor);
/* dst = src1 + src2. */
Status tavsAdd_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
/* srcDst = src + srcDst. */
Status tavsAdd_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
/* Complex sum; length tested first. */
Status tavsAdd_32fc(const Tav32fc* src1, const Tav32fc* src2, Tav32fc* dst, int len);
/* Complex in-place sum; length tested first. */
Status tavsAdd_32fc_I(const Tav32fc* src, Tav32fc* srcDst, int len);
/* srcDst = sat((src + srcDst) * 2^-scaleFactor). */
Status tavsAdd_32s_ISfs(const Tav32s* src, Tav32s* srcDst, int len, int scaleFactor);
/* dst = sat((src1 + src2) * 2^-scaleFactor). */
Status tavsAdd_32s_Sfs(const Tav32s* src1, const Tav32s* src2, Tav32s* dst, int len, int scaleFactor);
/* Complex in-place scaled sum; length tested first. */
Status tavsAdd_32sc_ISfs(const Tav32sc* src, Tav32sc* srcDst, int len, int scaleFactor);
/* Complex scaled sum; length tested first. */
Status tavsAdd_32sc_Sfs(const Tav32sc* src1, const Tav32sc* src2, Tav32sc* dst, int len, int scaleFactor);
/* dst = min(src1 + src2, 4294967295). */
Status tavsAdd_32u(const Tav32u* src1, const Tav32u* src2, Tav32u* dst, int len);
/* dst = src1 + src2. */
Status tavsAdd_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
/* srcDst = src + srcDst. */
Status tavsAdd_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
/* Complex sum; length tested first. */
Status tavsAdd_64fc(const Tav64fc* src1, const Tav64fc* src2, Tav64fc* dst, int len);
/* Complex in-place sum; length tested first. */
Status tavsAdd_64fc_I(const Tav64fc* src, Tav64fc* srcDst, int len);
/* dst = saturating 64-bit sum, then scaled. */
Status tavsAdd_64s_Sfs(const Tav64s* src1, const Tav64s* src2, Tav64s* dst, int len, int scaleFactor);
/* dst = src1 + src2, exact in 16u. */
Status tavsAdd_8u16u(const Tav8u* src1, const Tav8u* src2, Tav16u* dst, int len);
/* srcDst = sat((src + srcDst) * 2^-scaleFactor). */
Status tavsAdd_8u_ISfs(const Tav8u* src, Tav8u* srcDst, int len, int scaleFactor);
/* dst = sat((src1 + src2) * 2^-scaleFactor). */
Status tavsAdd_8u_Sfs(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len, int scaleFactor);

/* ---- subtract: the second operand minus the first ------------------------ */
/* dst = sat(src2 - src1). */
Status tavsSub_16s(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len);
/* srcDst = sat(srcDst - src). */
Status tavsSub_16s_I(const Tav16s* src, Tav16s* srcDst, int len);
/* srcDst = sat((srcDst - src) * 2^-scaleFactor). */
Status tavsSub_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor);
/* dst = sat((src2 - src1) * 2^-scaleFactor). */
Status tavsSub_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
/* dst = (float)src2 - (float)src1. */
Status tavsSub_16s32f(const Tav16s* src1, const Tav16s* src2, Tav32f* dst, int len);
/* Complex in-place scaled difference; length tested first. */
Status tavsSub_16sc_ISfs(const Tav16sc* src, Tav16sc* srcDst, int len, int scaleFactor);
/* Complex scaled difference src2 - src1; length tested first. */
Status tavsSub_16sc_Sfs(const Tav16sc* src1, const Tav16sc* src2, Tav16sc* dst, int len, int scaleFactor);
/* srcDst = sat((srcDst - src) * 2^-scaleFactor). */
Status tavsSub_16u_ISfs(const Tav16u* src, Tav16u* srcDst, int len, int scaleFactor);
/* dst = sat((src2 - src1) * 2^-scaleFactor). */
Status tavsSub_16u_Sfs(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len, int scaleFactor);
/* dst = src2 - src1. */
Status tavsSub_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
/* srcDst = srcDst - src. */
Status tavsSub_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
/* Complex difference src2 - src1; length tested first. */
Status tavsSub_32fc(const Tav32fc* src1, const Tav32fc* src2, Tav32fc* dst, int len);
/* Complex in-place difference; length tested first. */
Status tavsSub_32fc_I(const Tav32fc* src, Tav32fc* srcDst, int len);
/* srcDst = sat((srcDst - src) * 2^-scaleFactor). */
Status tavsSub_32s_ISfs(const Tav32s* src, Tav32s* srcDst, int len, int scaleFactor);
/* dst = sat((src2 - src1) * 2^-scaleFactor). */
Status tavsSub_32s_Sfs(const Tav32s* src1, const Tav32s* src2, Tav32s* dst, int len, int scaleFactor);
/* Complex in-place scaled difference; length tested first. */
Status tavsSub_32sc_ISfs(const Tav32sc* src, Tav32sc* srcDst, int len, int scaleFactor);
/* Complex scaled difference src2 - src1; length tested first. */
Status tavsSub_32sc_Sfs(const Tav32sc* src1, const Tav32sc* src2, Tav32sc* dst, int len, int scaleFactor);
/* dst = src2 - src1. */
Status tavsSub_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
/* srcDst = srcDst - src. */
Status tavsSub_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
/* Complex difference src2 - src1; length tested first. */
Status tavsSub_64fc(const Tav64fc* src1, const Tav64fc* src2, Tav64fc* dst, int len);
/* Complex in-place difference; length tested first. */
Status tavsSub_64fc_I(const Tav64fc* src, Tav64fc* srcDst, int len);
/* srcDst = sat((srcDst - src) * 2^-scaleFactor). */
Status tavsSub_8u_ISfs(const Tav8u* src, Tav8u* srcDst, int len, int scaleFactor);
/* dst = sat((src2 - src1) * 2^-scaleFactor). */
Status tavsSub_8u_Sfs(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len, int scaleFactor);

/* ---- multiply -------------------------------------------------------------- */
/* dst = sat(src1 * src2). */
Status tavsMul_16s(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len);
/* dst = (float)src1 * (float)src2. */
Status tavsMul_16s32f(const Tav16s* src1, const Tav16s* src2, Tav32f* dst, int len);
/* 32s dst = sat(src1 * src2 * 2^-scaleFactor). */
Status tavsMul_16s32s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav32s* dst, int len, int scaleFactor);
/* srcDst = sat(srcDst * src). */
Status tavsMul_16s_I(const Tav16s* src, Tav16s* srcDst, int len);
/* srcDst = sat(srcDst * src * 2^-scaleFactor). */
Status tavsMul_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor);
/* dst = sat(src1 * src2 * 2^-scaleFactor). */
Status tavsMul_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
/* Complex in-place scaled product. */
Status tavsMul_16sc_ISfs(const Tav16sc* src, Tav16sc* srcDst, int len, int scaleFactor);
/* Complex scaled product; src2 == dst goes to the in-place form. */
Status tavsMul_16sc_Sfs(const Tav16sc* src1, const Tav16sc* src2, Tav16sc* dst, int len, int scaleFactor);
/* 16s dst = sat(16u src1 * 16s src2 * 2^-scaleFactor). */
Status tavsMul_16u16s_Sfs(const Tav16u* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
/* srcDst = sat(srcDst * src * 2^-scaleFactor). */
Status tavsMul_16u_ISfs(const Tav16u* src, Tav16u* srcDst, int len, int scaleFactor);
/* dst = sat(src1 * src2 * 2^-scaleFactor). */
Status tavsMul_16u_Sfs(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len, int scaleFactor);
/* dst = src1 * src2. */
Status tavsMul_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
/* dst[i] = src1[i] times both parts of src2[i]. */
Status tavsMul_32f32fc(const Tav32f* src1, const Tav32fc* src2, Tav32fc* dst, int len);
/* srcDst[i] = src[i] times both parts of srcDst[i]. */
Status tavsMul_32f32fc_I(const Tav32f* src, Tav32fc* srcDst, int len);
/* srcDst = srcDst * src. */
Status tavsMul_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
/* Complex product, re = b.re*a.re + (-a.im)*b.im, im = a.im*b.re + a.re*b.im. */
Status tavsMul_32fc(const Tav32fc* src1, const Tav32fc* src2, Tav32fc* dst, int len);
/* srcDst = srcDst * src, complex. */
Status tavsMul_32fc_I(const Tav32fc* src, Tav32fc* srcDst, int len);
/* srcDst[i] = srcDst[i] times the 32s src[i], each part scaled. */
Status tavsMul_32s32sc_ISfs(const Tav32s* src, Tav32sc* srcDst, int len, int scaleFactor);
/* dst[i] = src1[i] times both parts of src2[i], each part scaled. */
Status tavsMul_32s32sc_Sfs(const Tav32s* src1, const Tav32sc* src2, Tav32sc* dst, int len, int scaleFactor);
/* srcDst = sat(srcDst * src * 2^-scaleFactor). */
Status tavsMul_32s_ISfs(const Tav32s* src, Tav32s* srcDst, int len, int scaleFactor);
/* dst = sat(src1 * src2 * 2^-scaleFactor). */
Status tavsMul_32s_Sfs(const Tav32s* src1, const Tav32s* src2, Tav32s* dst, int len, int scaleFactor);
/* Complex in-place scaled product. */
Status tavsMul_32sc_ISfs(const Tav32sc* src, Tav32sc* srcDst, int len, int scaleFactor);
/* Complex scaled product; src2 == dst goes to the in-place form. */
Status tavsMul_32sc_Sfs(const Tav32sc* src1, const Tav32sc* src2, Tav32sc* dst, int len, int scaleFactor);
/* dst = src1 * src2. */
Status tavsMul_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
/* srcDst = srcDst * src. */
Status tavsMul_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
/* Complex product, re = a.re*b.re - a.im*b.im, im = a.im*b.re + a.re*b.im. */
Status tavsMul_64fc(const Tav64fc* src1, const Tav64fc* src2, Tav64fc* dst, int len);
/* srcDst = srcDst * src, complex. */
Status tavsMul_64fc_I(const Tav64fc* src, Tav64fc* srcDst, int len);
/* dst = src1 * src2, exact in 16u. */
Status tavsMul_8u16u(const Tav8u* src1, const Tav8u* src2, Tav16u* dst, int len);
/* srcDst = sat(srcDst * src * 2^-scaleFactor). */
Status tavsMul_8u_ISfs(const Tav8u* src, Tav8u* srcDst, int len, int scaleFactor);
/* dst = sat(src1 * src2 * 2^-scaleFactor). */
Status tavsMul_8u_Sfs(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len, int scaleFactor);
/* Low 32 bits of the 64-bit product shifted by scaleFactor, truncating, no saturation. */
Status tavsMul_Low_32s_Sfs(const Tav32s* src1, const Tav32s* src2, Tav32s* dst, int len, int scaleFactor);

/* ---- add product: dst is read as an accumulator ---------------------------- */
/* 32s dst = sat((dst + src1 * src2) * 2^-scaleFactor). */
Status tavsAddProduct_16s32s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav32s* dst, int len, int scaleFactor);
/* dst = sat((dst + src1 * src2) * 2^-scaleFactor). */
Status tavsAddProduct_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
/* dst = dst + src1 * src2. */
Status tavsAddProduct_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
/* dst += src1 * src2, complex: re = a.re*b.re - a.im*b.im + dst.re, im = a.re*b.im + b.re*a.im + dst.im. */
Status tavsAddProduct_32fc(const Tav32fc* src1, const Tav32fc* src2, Tav32fc* dst, int len);
/* dst = sat((dst + src1 * src2) * 2^-scaleFactor). */
Status tavsAddProduct_32s_Sfs(const Tav32s* src1, const Tav32s* src2, Tav32s* dst, int len, int scaleFactor);
/* dst = dst + src1 * src2. */
Status tavsAddProduct_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
/* dst += src1 * src2, complex, in the order of tavsAddProduct_32fc. */
Status tavsAddProduct_64fc(const Tav64fc* src1, const Tav64fc* src2, Tav64fc* dst, int len);
/* dst = dst + src * val. */
Status tavsAddProductC_32f(const Tav32f* src, Tav32f val, Tav32f* dst, int len);

/* ---- square -------------------------------------------------------------- */
/* srcDst = sat(srcDst^2 * 2^-scaleFactor). */
Status tavsSqr_16s_ISfs(Tav16s* srcDst, int len, int scaleFactor);
/* dst = sat(src^2 * 2^-scaleFactor). */
Status tavsSqr_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, int scaleFactor);
/* Complex square in place, scaled. */
Status tavsSqr_16sc_ISfs(Tav16sc* srcDst, int len, int scaleFactor);
/* Complex square, scaled. */
Status tavsSqr_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, int scaleFactor);
/* srcDst = sat(srcDst^2 * 2^-scaleFactor). */
Status tavsSqr_16u_ISfs(Tav16u* srcDst, int len, int scaleFactor);
/* dst = sat(src^2 * 2^-scaleFactor). */
Status tavsSqr_16u_Sfs(const Tav16u* src, Tav16u* dst, int len, int scaleFactor);
/* dst = src * src. */
Status tavsSqr_32f(const Tav32f* src, Tav32f* dst, int len);
/* srcDst = srcDst * srcDst. */
Status tavsSqr_32f_I(Tav32f* srcDst, int len);
/* Complex square as the complex product of the element with itself. */
Status tavsSqr_32fc(const Tav32fc* src, Tav32fc* dst, int len);
/* Complex square in place. */
Status tavsSqr_32fc_I(Tav32fc* srcDst, int len);
/* dst = src * src. */
Status tavsSqr_64f(const Tav64f* src, Tav64f* dst, int len);
/* srcDst = srcDst * srcDst. */
Status tavsSqr_64f_I(Tav64f* srcDst, int len);
/* Complex square as the complex product of the element with itself. */
Status tavsSqr_64fc(const Tav64fc* src, Tav64fc* dst, int len);
/* Complex square in place. */
Status tavsSqr_64fc_I(Tav64fc* srcDst, int len);
/* srcDst = sat(srcDst^2 * 2^-scaleFactor). */
Status tavsSqr_8u_ISfs(Tav8u* srcDst, int len, int scaleFactor);
/* dst = sat(src^2 * 2^-scaleFactor). */
Status tavsSqr_8u_Sfs(const Tav8u* src, Tav8u* dst, int len, int scaleFactor);

/* ---- absolute value: integers saturate, floats clear the sign bit -------- */
Status tavsAbs_16s(const Tav16s* src, Tav16s* dst, int len);
Status tavsAbs_16s_I(Tav16s* srcDst, int len);
Status tavsAbs_32f(const Tav32f* src, Tav32f* dst, int len);
Status tavsAbs_32f_I(Tav32f* srcDst, int len);
Status tavsAbs_32s(const Tav32s* src, Tav32s* dst, int len);
Status tavsAbs_32s_I(Tav32s* srcDst, int len);
Status tavsAbs_64f(const Tav64f* src, Tav64f* dst, int len);
Status tavsAbs_64f_I(Tav64f* srcDst, int len);

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

/* @@TRANSFORM33@@ (real FFT and packed spectra) */
/* 32f: forward real FFT of N = 2^order samples to the Perm layout (N values); _I in place; wsp may be null. */
Status tavsFFTFwd_RToPerm_32f(const Tav32f* src, Tav32f* dst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer);
Status tavsFFTFwd_RToPerm_32f_I(Tav32f* srcDst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer);
/* 64f: forward real FFT of N = 2^order samples to the Perm layout (N values); _I in place; wsp may be null. */
Status tavsFFTFwd_RToPerm_64f(const Tav64f* src, Tav64f* dst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer);
Status tavsFFTFwd_RToPerm_64f_I(Tav64f* srcDst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer);
/* 32f: forward real FFT of N = 2^order samples to the Pack layout (N values); _I in place; wsp may be null. */
Status tavsFFTFwd_RToPack_32f(const Tav32f* src, Tav32f* dst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer);
Status tavsFFTFwd_RToPack_32f_I(Tav32f* srcDst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer);
/* 64f: forward real FFT of N = 2^order samples to the Pack layout (N values); _I in place; wsp may be null. */
Status tavsFFTFwd_RToPack_64f(const Tav64f* src, Tav64f* dst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer);
Status tavsFFTFwd_RToPack_64f_I(Tav64f* srcDst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer);
/* 32f: forward real FFT of N = 2^order samples to the CCS layout (N + 2 values; the _I buffer holds N + 2); wsp may be null. */
Status tavsFFTFwd_RToCCS_32f(const Tav32f* src, Tav32f* dst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer);
Status tavsFFTFwd_RToCCS_32f_I(Tav32f* srcDst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer);
/* 64f: forward real FFT of N = 2^order samples to the CCS layout (N + 2 values; the _I buffer holds N + 2); wsp may be null. */
Status tavsFFTFwd_RToCCS_64f(const Tav64f* src, Tav64f* dst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer);
Status tavsFFTFwd_RToCCS_64f_I(Tav64f* srcDst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer);
/* 32f: inverse real FFT from the Perm layout to N = 2^order samples; _I in place; wsp may be null. */
Status tavsFFTInv_PermToR_32f(const Tav32f* src, Tav32f* dst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer);
Status tavsFFTInv_PermToR_32f_I(Tav32f* srcDst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer);
/* 64f: inverse real FFT from the Perm layout to N = 2^order samples; _I in place; wsp may be null. */
Status tavsFFTInv_PermToR_64f(const Tav64f* src, Tav64f* dst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer);
Status tavsFFTInv_PermToR_64f_I(Tav64f* srcDst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer);
/* 32f: inverse real FFT from the Pack layout to N = 2^order samples; _I in place; wsp may be null. */
Status tavsFFTInv_PackToR_32f(const Tav32f* src, Tav32f* dst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer);
Status tavsFFTInv_PackToR_32f_I(Tav32f* srcDst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer);
/* 64f: inverse real FFT from the Pack layout to N = 2^order samples; _I in place; wsp may be null. */
Status tavsFFTInv_PackToR_64f(const Tav64f* src, Tav64f* dst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer);
Status tavsFFTInv_PackToR_64f_I(Tav64f* srcDst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer);
/* 32f: inverse real FFT from the CCS layout (N + 2 values) to N = 2^order samples; _I in place; wsp may be null. */
Status tavsFFTInv_CCSToR_32f(const Tav32f* src, Tav32f* dst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer);
Status tavsFFTInv_CCSToR_32f_I(Tav32f* srcDst, const FFTSpec_R_32f* pSpec, Tav8u* pBuffer);
/* 64f: inverse real FFT from the CCS layout (N + 2 values) to N = 2^order samples; _I in place; wsp may be null. */
Status tavsFFTInv_CCSToR_64f(const Tav64f* src, Tav64f* dst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer);
Status tavsFFTInv_CCSToR_64f_I(Tav64f* srcDst, const FFTSpec_R_64f* pSpec, Tav8u* pBuffer);
/* 16sc: the full spectrum of len values from the Pack layout in src; _I: the packed reals at the front of srcDst. */
Status tavsConjPack_16sc(const Tav16s* src, Tav16sc* dst, int len);
Status tavsConjPack_16sc_I(Tav16sc* srcDst, int len);
/* 32fc: the full spectrum of len values from the Pack layout in src; _I: the packed reals at the front of srcDst. */
Status tavsConjPack_32fc(const Tav32f* src, Tav32fc* dst, int len);
Status tavsConjPack_32fc_I(Tav32fc* srcDst, int len);
/* 64fc: the full spectrum of len values from the Pack layout in src; _I: the packed reals at the front of srcDst. */
Status tavsConjPack_64fc(const Tav64f* src, Tav64fc* dst, int len);
Status tavsConjPack_64fc_I(Tav64fc* srcDst, int len);
/* 16sc: the full spectrum of len values from the Perm layout in src; _I: the packed reals at the front of srcDst. */
Status tavsConjPerm_16sc(const Tav16s* src, Tav16sc* dst, int len);
Status tavsConjPerm_16sc_I(Tav16sc* srcDst, int len);
/* 32fc: the full spectrum of len values from the Perm layout in src; _I: the packed reals at the front of srcDst. */
Status tavsConjPerm_32fc(const Tav32f* src, Tav32fc* dst, int len);
Status tavsConjPerm_32fc_I(Tav32fc* srcDst, int len);
/* 64fc: the full spectrum of len values from the Perm layout in src; _I: the packed reals at the front of srcDst. */
Status tavsConjPerm_64fc(const Tav64f* src, Tav64fc* dst, int len);
Status tavsConjPerm_64fc_I(Tav64fc* srcDst, int len);
/* 16sc: the full spectrum of len values from the CCS layout in src; _I: the packed reals at the front of srcDst. */
Status tavsConjCcs_16sc(const Tav16s* src, Tav16sc* dst, int len);
Status tavsConjCcs_16sc_I(Tav16sc* srcDst, int len);
/* 32fc: the full spectrum of len values from the CCS layout in src; _I: the packed reals at the front of srcDst. */
Status tavsConjCcs_32fc(const Tav32f* src, Tav32fc* dst, int len);
Status tavsConjCcs_32fc_I(Tav32fc* srcDst, int len);
/* 64fc: the full spectrum of len values from the CCS layout in src; _I: the packed reals at the front of srcDst. */
Status tavsConjCcs_64fc(const Tav64f* src, Tav64fc* dst, int len);
Status tavsConjCcs_64fc_I(Tav64fc* srcDst, int len);
/* 16s: product of two spectra in the Pack layout, 32-bit products scaled by shifts and saturated; a destination equal to a source runs the _I form. */
Status tavsMulPack_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
Status tavsMulPack_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor);
/* 32f: product of two spectra in the Pack layout; a destination equal to a source runs the _I form. */
Status tavsMulPack_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
Status tavsMulPack_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
/* 64f: product of two spectra in the Pack layout; a destination equal to a source runs the _I form. */
Status tavsMulPack_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
Status tavsMulPack_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
/* 16s: product of two spectra in the Perm layout, 32-bit products scaled by shifts and saturated; a destination equal to a source runs the _I form. */
Status tavsMulPerm_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
Status tavsMulPerm_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor);
/* 32f: product of two spectra in the Perm layout; a destination equal to a source runs the _I form. */
Status tavsMulPerm_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
Status tavsMulPerm_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
/* 64f: product of two spectra in the Perm layout; a destination equal to a source runs the _I form. */
Status tavsMulPerm_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
Status tavsMulPerm_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
/* 32f: srcDst = src times the conjugate of srcDst, spectra in the Pack layout. */
Status tavsMulPackConj_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
/* 64f: srcDst = src times the conjugate of srcDst, spectra in the Pack layout. */
Status tavsMulPackConj_64f_I(const Tav64f* src, Tav64f* srcDst, int len);

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

/* ==== Filtering ========================================================== */

/* @@FIR@@ (single-rate FIR filters) */
/* FIR filter records, one kind per taps/data pair. Taps are given in natural
 * order (y[k] = sum of taps[i] * x[k-i]); delay lines at Init, Get and Set are
 * newest first (pDlyLine[0] is x[-1]). The block comes from the caller (Init,
 * sized by GetStateSize) or from InitAlloc, which Free releases. Long filters
 * run block calls through the FFT (overlap-save). */
typedef struct FIRState_32f FIRState_32f;
typedef struct FIRState_32fc FIRState_32fc;
typedef struct FIRState32f_16s FIRState32f_16s;
typedef struct FIRState32fc_16sc FIRState32fc_16sc;
typedef struct FIRState32s_16s FIRState32s_16s;
typedef struct FIRState32sc_16sc FIRState32sc_16sc;
typedef struct FIRState_64f FIRState_64f;
typedef struct FIRState_64fc FIRState_64fc;
typedef struct FIRState64f_32f FIRState64f_32f;
typedef struct FIRState64fc_32fc FIRState64fc_32fc;
typedef struct FIRState64f_32s FIRState64f_32s;
typedef struct FIRState_32s FIRState_32s;
typedef struct FIRState64fc_32sc FIRState64fc_32sc;
typedef struct FIRState64f_16s FIRState64f_16s;
typedef struct FIRState64fc_16sc FIRState64fc_16sc;
typedef struct FIRState_16s FIRState_16s;
/* SR blocks: the caller's block, aligned up to 64 bytes inside
 * at every use; tavsFIRSR_16s and tavsFIRSR_16sc take the 32f and 32fc specs. */
typedef struct FIRSRSpec_32f FIRSRSpec_32f;
typedef struct FIRSRSpec_32fc FIRSRSpec_32fc;
typedef struct FIRSRSpec_64f FIRSRSpec_64f;
typedef struct FIRSRSpec_64fc FIRSRSpec_64fc;


/* ---- FIRState_32f: 32f taps over 32f data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize_32f(int tapsLen, int* pBufferSize);
/* Lays a record in pBuffer: taps, the delay line (newest first; null gives zeros) and, for long filters, the FFT. */
Status tavsFIRInit_32f(FIRState_32f** ppState, const Tav32f* pTaps, int tapsLen, const Tav32f* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc_32f(FIRState_32f** ppState, const Tav32f* pTaps, int tapsLen, const Tav32f* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree_32f(FIRState_32f* pState);
/* Copies the tapsLen taps out in the order Init took them. */
Status tavsFIRGetTaps_32f(const FIRState_32f* pState, Tav32f* pTaps);
/* Stores new taps (and their transform); the delay line is kept. */
Status tavsFIRSetTaps_32f(const Tav32f* pTaps, FIRState_32f* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine_32f(const FIRState_32f* pState, Tav32f* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine_32f(FIRState_32f* pState, const Tav32f* pDlyLine);
/* Filters len samples through the record, carrying its delay line on. */
Status tavsFIR_32f(const Tav32f* pSrc, Tav32f* pDst, int len, FIRState_32f* pState);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR_32f_I(Tav32f* pSrcDst, int len, FIRState_32f* pState);
/* Filters one sample through the record. */
Status tavsFIROne_32f(Tav32f src, Tav32f* pDstVal, FIRState_32f* pState);

/* ---- FIRState_32fc: 32fc taps over 32fc data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize_32fc(int tapsLen, int* pBufferSize);
/* Lays a record in pBuffer: taps, the delay line (newest first; null gives zeros) and, for long filters, the FFT. */
Status tavsFIRInit_32fc(FIRState_32fc** ppState, const Tav32fc* pTaps, int tapsLen, const Tav32fc* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc_32fc(FIRState_32fc** ppState, const Tav32fc* pTaps, int tapsLen, const Tav32fc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree_32fc(FIRState_32fc* pState);
/* Copies the tapsLen taps out in the order Init took them. */
Status tavsFIRGetTaps_32fc(const FIRState_32fc* pState, Tav32fc* pTaps);
/* Stores new taps (and their transform); the delay line is kept. */
Status tavsFIRSetTaps_32fc(const Tav32fc* pTaps, FIRState_32fc* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine_32fc(const FIRState_32fc* pState, Tav32fc* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine_32fc(FIRState_32fc* pState, const Tav32fc* pDlyLine);
/* Filters len samples through the record, carrying its delay line on. */
Status tavsFIR_32fc(const Tav32fc* pSrc, Tav32fc* pDst, int len, FIRState_32fc* pState);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR_32fc_I(Tav32fc* pSrcDst, int len, FIRState_32fc* pState);
/* Filters one sample through the record. */
Status tavsFIROne_32fc(Tav32fc src, Tav32fc* pDstVal, FIRState_32fc* pState);

/* ---- FIRState32f_16s: 32f taps over 16s data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize32f_16s(int tapsLen, int* pBufferSize);
/* Lays a record in pBuffer: taps, the delay line (newest first; null gives zeros) and, for long filters, the FFT. */
Status tavsFIRInit32f_16s(FIRState32f_16s** ppState, const Tav32f* pTaps, int tapsLen, const Tav16s* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc32f_16s(FIRState32f_16s** ppState, const Tav32f* pTaps, int tapsLen, const Tav16s* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree32f_16s(FIRState32f_16s* pState);
/* Copies the tapsLen taps out in the order Init took them. */
Status tavsFIRGetTaps32f_16s(const FIRState32f_16s* pState, Tav32f* pTaps);
/* Stores new taps (and their transform); the delay line is kept. */
Status tavsFIRSetTaps32f_16s(const Tav32f* pTaps, FIRState32f_16s* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine32f_16s(const FIRState32f_16s* pState, Tav16s* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine32f_16s(FIRState32f_16s* pState, const Tav16s* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, rounded to nearest even, limited. */
Status tavsFIR32f_16s_Sfs(const Tav16s* pSrc, Tav16s* pDst, int len, FIRState32f_16s* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR32f_16s_ISfs(Tav16s* pSrcDst, int len, FIRState32f_16s* pState, int scaleFactor);
/* Filters one sample; the output scaled and rounded as the block form. */
Status tavsFIROne32f_16s_Sfs(Tav16s src, Tav16s* pDstVal, FIRState32f_16s* pState, int scaleFactor);

/* ---- FIRState32fc_16sc: 32fc taps over 16sc data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize32fc_16sc(int tapsLen, int* pBufferSize);
/* Lays a record in pBuffer: taps, the delay line (newest first; null gives zeros) and, for long filters, the FFT. */
Status tavsFIRInit32fc_16sc(FIRState32fc_16sc** ppState, const Tav32fc* pTaps, int tapsLen, const Tav16sc* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc32fc_16sc(FIRState32fc_16sc** ppState, const Tav32fc* pTaps, int tapsLen, const Tav16sc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree32fc_16sc(FIRState32fc_16sc* pState);
/* Copies the tapsLen taps out in the order Init took them. */
Status tavsFIRGetTaps32fc_16sc(const FIRState32fc_16sc* pState, Tav32fc* pTaps);
/* Stores new taps (and their transform); the delay line is kept. */
Status tavsFIRSetTaps32fc_16sc(const Tav32fc* pTaps, FIRState32fc_16sc* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine32fc_16sc(const FIRState32fc_16sc* pState, Tav16sc* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine32fc_16sc(FIRState32fc_16sc* pState, const Tav16sc* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, rounded to nearest even, limited. */
Status tavsFIR32fc_16sc_Sfs(const Tav16sc* pSrc, Tav16sc* pDst, int len, FIRState32fc_16sc* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR32fc_16sc_ISfs(Tav16sc* pSrcDst, int len, FIRState32fc_16sc* pState, int scaleFactor);
/* Filters one sample; the output scaled and rounded as the block form. */
Status tavsFIROne32fc_16sc_Sfs(Tav16sc src, Tav16sc* pDstVal, FIRState32fc_16sc* pState, int scaleFactor);

/* ---- FIRState_64f: 64f taps over 64f data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize_64f(int tapsLen, int* pBufferSize);
/* Lays a record in pBuffer: taps, the delay line (newest first; null gives zeros) and, for long filters, the FFT. */
Status tavsFIRInit_64f(FIRState_64f** ppState, const Tav64f* pTaps, int tapsLen, const Tav64f* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc_64f(FIRState_64f** ppState, const Tav64f* pTaps, int tapsLen, const Tav64f* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree_64f(FIRState_64f* pState);
/* Copies the tapsLen taps out in the order Init took them. */
Status tavsFIRGetTaps_64f(const FIRState_64f* pState, Tav64f* pTaps);
/* Stores new taps (and their transform); the delay line is kept. */
Status tavsFIRSetTaps_64f(const Tav64f* pTaps, FIRState_64f* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine_64f(const FIRState_64f* pState, Tav64f* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine_64f(FIRState_64f* pState, const Tav64f* pDlyLine);
/* Filters len samples through the record, carrying its delay line on. */
Status tavsFIR_64f(const Tav64f* pSrc, Tav64f* pDst, int len, FIRState_64f* pState);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR_64f_I(Tav64f* pSrcDst, int len, FIRState_64f* pState);
/* Filters one sample through the record. */
Status tavsFIROne_64f(Tav64f src, Tav64f* pDstVal, FIRState_64f* pState);

/* ---- FIRState_64fc: 64fc taps over 64fc data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize_64fc(int tapsLen, int* pBufferSize);
/* Lays a record in pBuffer: taps, the delay line (newest first; null gives zeros) and, for long filters, the FFT. */
Status tavsFIRInit_64fc(FIRState_64fc** ppState, const Tav64fc* pTaps, int tapsLen, const Tav64fc* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc_64fc(FIRState_64fc** ppState, const Tav64fc* pTaps, int tapsLen, const Tav64fc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree_64fc(FIRState_64fc* pState);
/* Copies the tapsLen taps out in the order Init took them. */
Status tavsFIRGetTaps_64fc(const FIRState_64fc* pState, Tav64fc* pTaps);
/* Stores new taps (and their transform); the delay line is kept. */
Status tavsFIRSetTaps_64fc(const Tav64fc* pTaps, FIRState_64fc* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine_64fc(const FIRState_64fc* pState, Tav64fc* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine_64fc(FIRState_64fc* pState, const Tav64fc* pDlyLine);
/* Filters len samples through the record, carrying its delay line on. */
Status tavsFIR_64fc(const Tav64fc* pSrc, Tav64fc* pDst, int len, FIRState_64fc* pState);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR_64fc_I(Tav64fc* pSrcDst, int len, FIRState_64fc* pState);
/* Filters one sample through the record. */
Status tavsFIROne_64fc(Tav64fc src, Tav64fc* pDstVal, FIRState_64fc* pState);

/* ---- FIRState64f_32f: 64f taps over 32f data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize64f_32f(int tapsLen, int* pBufferSize);
/* Lays a record in pBuffer: taps, the delay line (newest first; null gives zeros) and, for long filters, the FFT. */
Status tavsFIRInit64f_32f(FIRState64f_32f** ppState, const Tav64f* pTaps, int tapsLen, const Tav32f* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc64f_32f(FIRState64f_32f** ppState, const Tav64f* pTaps, int tapsLen, const Tav32f* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree64f_32f(FIRState64f_32f* pState);
/* Copies the tapsLen taps out in the order Init took them. */
Status tavsFIRGetTaps64f_32f(const FIRState64f_32f* pState, Tav64f* pTaps);
/* Stores new taps (and their transform); the delay line is kept. */
Status tavsFIRSetTaps64f_32f(const Tav64f* pTaps, FIRState64f_32f* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine64f_32f(const FIRState64f_32f* pState, Tav32f* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine64f_32f(FIRState64f_32f* pState, const Tav32f* pDlyLine);
/* Filters len samples through the record, carrying its delay line on. */
Status tavsFIR64f_32f(const Tav32f* pSrc, Tav32f* pDst, int len, FIRState64f_32f* pState);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR64f_32f_I(Tav32f* pSrcDst, int len, FIRState64f_32f* pState);
/* Filters one sample through the record. */
Status tavsFIROne64f_32f(Tav32f src, Tav32f* pDstVal, FIRState64f_32f* pState);

/* ---- FIRState64fc_32fc: 64fc taps over 32fc data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize64fc_32fc(int tapsLen, int* pBufferSize);
/* Lays a record in pBuffer: taps, the delay line (newest first; null gives zeros) and, for long filters, the FFT. */
Status tavsFIRInit64fc_32fc(FIRState64fc_32fc** ppState, const Tav64fc* pTaps, int tapsLen, const Tav32fc* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc64fc_32fc(FIRState64fc_32fc** ppState, const Tav64fc* pTaps, int tapsLen, const Tav32fc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree64fc_32fc(FIRState64fc_32fc* pState);
/* Copies the tapsLen taps out in the order Init took them. */
Status tavsFIRGetTaps64fc_32fc(const FIRState64fc_32fc* pState, Tav64fc* pTaps);
/* Stores new taps (and their transform); the delay line is kept. */
Status tavsFIRSetTaps64fc_32fc(const Tav64fc* pTaps, FIRState64fc_32fc* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine64fc_32fc(const FIRState64fc_32fc* pState, Tav32fc* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine64fc_32fc(FIRState64fc_32fc* pState, const Tav32fc* pDlyLine);
/* Filters len samples through the record, carrying its delay line on. */
Status tavsFIR64fc_32fc(const Tav32fc* pSrc, Tav32fc* pDst, int len, FIRState64fc_32fc* pState);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR64fc_32fc_I(Tav32fc* pSrcDst, int len, FIRState64fc_32fc* pState);
/* Filters one sample through the record. */
Status tavsFIROne64fc_32fc(Tav32fc src, Tav32fc* pDstVal, FIRState64fc_32fc* pState);

/* ---- FIRState64f_32s: 64f taps over 32s data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize64f_32s(int tapsLen, int* pBufferSize);
/* Lays a record in pBuffer: taps, the delay line (newest first; null gives zeros) and, for long filters, the FFT. */
Status tavsFIRInit64f_32s(FIRState64f_32s** ppState, const Tav64f* pTaps, int tapsLen, const Tav32s* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc64f_32s(FIRState64f_32s** ppState, const Tav64f* pTaps, int tapsLen, const Tav32s* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree64f_32s(FIRState64f_32s* pState);
/* Copies the tapsLen taps out in the order Init took them. */
Status tavsFIRGetTaps64f_32s(const FIRState64f_32s* pState, Tav64f* pTaps);
/* Stores new taps (and their transform); the delay line is kept. */
Status tavsFIRSetTaps64f_32s(const Tav64f* pTaps, FIRState64f_32s* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine64f_32s(const FIRState64f_32s* pState, Tav32s* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine64f_32s(FIRState64f_32s* pState, const Tav32s* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, rounded to nearest even, limited. */
Status tavsFIR64f_32s_Sfs(const Tav32s* pSrc, Tav32s* pDst, int len, FIRState64f_32s* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR64f_32s_ISfs(Tav32s* pSrcDst, int len, FIRState64f_32s* pState, int scaleFactor);
/* Filters one sample; the output scaled and rounded as the block form. */
Status tavsFIROne64f_32s_Sfs(Tav32s src, Tav32s* pDstVal, FIRState64f_32s* pState, int scaleFactor);

/* ---- FIRState64fc_32sc: 64fc taps over 32sc data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize64fc_32sc(int tapsLen, int* pBufferSize);
/* Lays a record in pBuffer: taps, the delay line (newest first; null gives zeros) and, for long filters, the FFT. */
Status tavsFIRInit64fc_32sc(FIRState64fc_32sc** ppState, const Tav64fc* pTaps, int tapsLen, const Tav32sc* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc64fc_32sc(FIRState64fc_32sc** ppState, const Tav64fc* pTaps, int tapsLen, const Tav32sc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree64fc_32sc(FIRState64fc_32sc* pState);
/* Copies the tapsLen taps out in the order Init took them. */
Status tavsFIRGetTaps64fc_32sc(const FIRState64fc_32sc* pState, Tav64fc* pTaps);
/* Stores new taps (and their transform); the delay line is kept. */
Status tavsFIRSetTaps64fc_32sc(const Tav64fc* pTaps, FIRState64fc_32sc* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine64fc_32sc(const FIRState64fc_32sc* pState, Tav32sc* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine64fc_32sc(FIRState64fc_32sc* pState, const Tav32sc* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, rounded to nearest even, limited. */
Status tavsFIR64fc_32sc_Sfs(const Tav32sc* pSrc, Tav32sc* pDst, int len, FIRState64fc_32sc* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR64fc_32sc_ISfs(Tav32sc* pSrcDst, int len, FIRState64fc_32sc* pState, int scaleFactor);
/* Filters one sample; the output scaled and rounded as the block form. */
Status tavsFIROne64fc_32sc_Sfs(Tav32sc src, Tav32sc* pDstVal, FIRState64fc_32sc* pState, int scaleFactor);

/* ---- FIRState64f_16s: 64f taps over 16s data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize64f_16s(int tapsLen, int* pBufferSize);
/* Lays a record in pBuffer: taps, the delay line (newest first; null gives zeros) and, for long filters, the FFT. */
Status tavsFIRInit64f_16s(FIRState64f_16s** ppState, const Tav64f* pTaps, int tapsLen, const Tav16s* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc64f_16s(FIRState64f_16s** ppState, const Tav64f* pTaps, int tapsLen, const Tav16s* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree64f_16s(FIRState64f_16s* pState);
/* Copies the tapsLen taps out in the order Init took them. */
Status tavsFIRGetTaps64f_16s(const FIRState64f_16s* pState, Tav64f* pTaps);
/* Stores new taps (and their transform); the delay line is kept. */
Status tavsFIRSetTaps64f_16s(const Tav64f* pTaps, FIRState64f_16s* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine64f_16s(const FIRState64f_16s* pState, Tav16s* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine64f_16s(FIRState64f_16s* pState, const Tav16s* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, rounded to nearest even, limited. */
Status tavsFIR64f_16s_Sfs(const Tav16s* pSrc, Tav16s* pDst, int len, FIRState64f_16s* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR64f_16s_ISfs(Tav16s* pSrcDst, int len, FIRState64f_16s* pState, int scaleFactor);
/* Filters one sample; the output scaled and rounded as the block form. */
Status tavsFIROne64f_16s_Sfs(Tav16s src, Tav16s* pDstVal, FIRState64f_16s* pState, int scaleFactor);

/* ---- FIRState64fc_16sc: 64fc taps over 16sc data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize64fc_16sc(int tapsLen, int* pBufferSize);
/* Lays a record in pBuffer: taps, the delay line (newest first; null gives zeros) and, for long filters, the FFT. */
Status tavsFIRInit64fc_16sc(FIRState64fc_16sc** ppState, const Tav64fc* pTaps, int tapsLen, const Tav16sc* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc64fc_16sc(FIRState64fc_16sc** ppState, const Tav64fc* pTaps, int tapsLen, const Tav16sc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree64fc_16sc(FIRState64fc_16sc* pState);
/* Copies the tapsLen taps out in the order Init took them. */
Status tavsFIRGetTaps64fc_16sc(const FIRState64fc_16sc* pState, Tav64fc* pTaps);
/* Stores new taps (and their transform); the delay line is kept. */
Status tavsFIRSetTaps64fc_16sc(const Tav64fc* pTaps, FIRState64fc_16sc* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine64fc_16sc(const FIRState64fc_16sc* pState, Tav16sc* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine64fc_16sc(FIRState64fc_16sc* pState, const Tav16sc* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, rounded to nearest even, limited. */
Status tavsFIR64fc_16sc_Sfs(const Tav16sc* pSrc, Tav16sc* pDst, int len, FIRState64fc_16sc* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR64fc_16sc_ISfs(Tav16sc* pSrcDst, int len, FIRState64fc_16sc* pState, int scaleFactor);
/* Filters one sample; the output scaled and rounded as the block form. */
Status tavsFIROne64fc_16sc_Sfs(Tav16sc src, Tav16sc* pDstVal, FIRState64fc_16sc* pState, int scaleFactor);

/* ---- FIRState_32s: 32s taps (held as 64f) over 32s data ---- */
/* Bytes a record of tapsLen 32s taps needs; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize_32s(int tapsLen, int* pBufferSize);
/* Lays a record of 32s taps, widened to 64f, with its delay line (newest first; null gives zeros). */
Status tavsFIRInit_32s(FIRState_32s** ppState, const Tav32s* pTaps, int tapsLen, const Tav32s* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc_32s(FIRState_32s** ppState, const Tav32s* pTaps, int tapsLen, const Tav32s* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree_32s(FIRState_32s* pState);
/* Copies the taps out as 32s, rounded to nearest even and limited. */
Status tavsFIRGetTaps_32s(const FIRState_32s* pState, Tav32s* pTaps);
/* Stores new 32s taps; the delay line is kept. */
Status tavsFIRSetTaps_32s(const Tav32s* pTaps, FIRState_32s* pState);
/* Filters len samples in 64f; each output times 2^-scaleFactor, rounded to nearest even, limited. */
Status tavsFIR_32s_Sfs(const Tav32s* pSrc, Tav32s* pDst, int len, FIRState_32s* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR_32s_ISfs(Tav32s* pSrcDst, int len, FIRState_32s* pState, int scaleFactor);
/* Filters one sample; the same function as tavsFIROne64f_32s_Sfs. */
Status tavsFIROne_32s_Sfs(Tav32s src, Tav32s* pDstVal, FIRState_32s* pState, int scaleFactor);

/* ---- FIRState_16s: 16s taps times 2^tapsFactor over 16s data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize_16s(int tapsLen, int* pBufferSize);
/* Lays a record of 16-bit taps times 2^tapsFactor, with its delay line (newest first; null gives zeros). */
Status tavsFIRInit_16s(FIRState_16s** ppState, const Tav16s* pTaps, int tapsLen, int tapsFactor, const Tav16s* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc_16s(FIRState_16s** ppState, const Tav16s* pTaps, int tapsLen, int tapsFactor, const Tav16s* pDlyLine);
/* Copies the held 16-bit tap values out in caller order, and their power of two. */
Status tavsFIRGetTaps_16s(const FIRState_16s* pState, Tav16s* pTaps, int* pTapsFactor);
/* Stores new taps times 2^tapsFactor as 16-bit values and a power of two; the delay line is kept. */
Status tavsFIRSetTaps_16s(const Tav16s* pTaps, FIRState_16s* pState, int tapsFactor);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree_16s(FIRState_16s* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine_16s(const FIRState_16s* pState, Tav16s* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine_16s(FIRState_16s* pState, const Tav16s* pDlyLine);
/* Filters len samples with 32-bit sums; shifted by tapsFactor - scaleFactor, rounded, limited. */
Status tavsFIR_16s_Sfs(const Tav16s* pSrc, Tav16s* pDst, int len, FIRState_16s* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR_16s_ISfs(Tav16s* pSrcDst, int len, FIRState_16s* pState, int scaleFactor);
/* Filters one sample, scaled and rounded as the block form. */
Status tavsFIROne_16s_Sfs(Tav16s src, Tav16s* pDstVal, FIRState_16s* pState, int scaleFactor);

/* ---- FIRState32s_16s: 32s taps held as 16s values and a power of two, over 16s data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize32s_16s(int tapsLen, int* pBufferSize);
/* Lays a record of 16-bit tap values and a power of two chosen from the taps, with its delay line (newest first; null gives zeros). */
Status tavsFIRInit32s_16s(FIRState32s_16s** ppState, const Tav32s* pTaps, int tapsLen, int tapsFactor, const Tav16s* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc32s_16s(FIRState32s_16s** ppState, const Tav32s* pTaps, int tapsLen, int tapsFactor, const Tav16s* pDlyLine);
/* Copies the held 16-bit tap values out in caller order, and their power of two. */
Status tavsFIRGetTaps32s_16s(const FIRState32s_16s* pState, Tav32s* pTaps, int* pTapsFactor);
/* Stores new taps times 2^tapsFactor as 16-bit values and a power of two; the delay line is kept. */
Status tavsFIRSetTaps32s_16s(const Tav32s* pTaps, FIRState32s_16s* pState, int tapsFactor);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree32s_16s(FIRState32s_16s* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine32s_16s(const FIRState32s_16s* pState, Tav16s* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine32s_16s(FIRState32s_16s* pState, const Tav16s* pDlyLine);
/* Filters len samples with 32-bit sums; shifted by tapsFactor - scaleFactor, rounded, limited. */
Status tavsFIR32s_16s_Sfs(const Tav16s* pSrc, Tav16s* pDst, int len, FIRState32s_16s* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR32s_16s_ISfs(Tav16s* pSrcDst, int len, FIRState32s_16s* pState, int scaleFactor);
/* Filters one sample, scaled and rounded as the block form. */
Status tavsFIROne32s_16s_Sfs(Tav16s src, Tav16s* pDstVal, FIRState32s_16s* pState, int scaleFactor);

/* ---- FIRState32s_16s from 32f taps ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize32s_16s32f(int tapsLen, int* pBufferSize);
/* Lays a record of 16-bit tap values and a power of two chosen from the taps, with its delay line (newest first; null gives zeros). */
Status tavsFIRInit32s_16s32f(FIRState32s_16s** ppState, const Tav32f* pTaps, int tapsLen, const Tav16s* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc32s_16s32f(FIRState32s_16s** ppState, const Tav32f* pTaps, int tapsLen, const Tav16s* pDlyLine);
/* Copies the taps out as held value times 2^tapsFactor. */
Status tavsFIRGetTaps32s_16s32f(const FIRState32s_16s* pState, Tav32f* pTaps);
/* Stores new taps scaled to use all 16 bits, with their power of two; the delay line is kept. */
Status tavsFIRSetTaps32s_16s32f(const Tav32f* pTaps, FIRState32s_16s* pState);

/* ---- FIRState32sc_16sc: 32sc taps held as 16sc values and a power of two, over 16sc data ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize32sc_16sc(int tapsLen, int* pBufferSize);
/* Lays a record of 16-bit tap values and a power of two chosen from the taps, with its delay line (newest first; null gives zeros). */
Status tavsFIRInit32sc_16sc(FIRState32sc_16sc** ppState, const Tav32sc* pTaps, int tapsLen, int tapsFactor, const Tav16sc* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc32sc_16sc(FIRState32sc_16sc** ppState, const Tav32sc* pTaps, int tapsLen, int tapsFactor, const Tav16sc* pDlyLine);
/* Copies the held 16-bit tap values out in caller order, and their power of two. */
Status tavsFIRGetTaps32sc_16sc(const FIRState32sc_16sc* pState, Tav32sc* pTaps, int* pTapsFactor);
/* Stores new taps times 2^tapsFactor as 16-bit values and a power of two; the delay line is kept. */
Status tavsFIRSetTaps32sc_16sc(const Tav32sc* pTaps, FIRState32sc_16sc* pState, int tapsFactor);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsFIRFree32sc_16sc(FIRState32sc_16sc* pState);
/* Copies the tapsLen delay values out, newest first. */
Status tavsFIRGetDlyLine32sc_16sc(const FIRState32sc_16sc* pState, Tav16sc* pDlyLine);
/* Stores tapsLen delay values, newest first; null gives zeros. */
Status tavsFIRSetDlyLine32sc_16sc(FIRState32sc_16sc* pState, const Tav16sc* pDlyLine);
/* Filters len samples with 32-bit sums; shifted by tapsFactor - scaleFactor, rounded, limited. */
Status tavsFIR32sc_16sc_Sfs(const Tav16sc* pSrc, Tav16sc* pDst, int len, FIRState32sc_16sc* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR32sc_16sc_ISfs(Tav16sc* pSrcDst, int len, FIRState32sc_16sc* pState, int scaleFactor);
/* Filters one sample, scaled and rounded as the block form. */
Status tavsFIROne32sc_16sc_Sfs(Tav16sc src, Tav16sc* pDstVal, FIRState32sc_16sc* pState, int scaleFactor);

/* ---- FIRState32sc_16sc from 32fc taps ---- */
/* Bytes a record of tapsLen taps needs in the Init block; ErrFilterLen for a count below 1. */
Status tavsFIRGetStateSize32sc_16sc32fc(int tapsLen, int* pBufferSize);
/* Lays a record of 16-bit tap values and a power of two chosen from the taps, with its delay line (newest first; null gives zeros). */
Status tavsFIRInit32sc_16sc32fc(FIRState32sc_16sc** ppState, const Tav32fc* pTaps, int tapsLen, const Tav16sc* pDlyLine, Tav8u* pBuffer);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsFIRInitAlloc32sc_16sc32fc(FIRState32sc_16sc** ppState, const Tav32fc* pTaps, int tapsLen, const Tav16sc* pDlyLine);
/* Copies the taps out as held value times 2^tapsFactor. */
Status tavsFIRGetTaps32sc_16sc32fc(const FIRState32sc_16sc* pState, Tav32fc* pTaps);
/* Stores new taps scaled to use all 16 bits, with their power of two; the delay line is kept. */
Status tavsFIRSetTaps32sc_16sc32fc(const Tav32fc* pTaps, FIRState32sc_16sc* pState);

/* ---- stream records: no delay line, src offers len + tapsLen - 1 samples ---- */
/* Bytes a stream record of tapsLen taps needs; ErrFilterLen for a count below 1. */
Status tavsFIRStreamGetStateSize_32f(int tapsLen, int* pBufferSize);
/* Lays a stream record: tavsFIR_32f then reads len + tapsLen - 1 source samples and keeps no delay line. */
Status tavsFIRStreamInit_32f(FIRState_32f** ppState, const Tav32f* pTaps, int tapsLen, Tav8u* pBuffer);
/* As the Init form, in a block of its own that tavsFIRFree_32f releases. */
Status tavsFIRStreamInitAlloc_32f(FIRState_32f** ppState, const Tav32f* pTaps, int tapsLen);
/* Bytes a 16-bit stream record of tapsLen taps needs; ErrFilterLen for a count below 1. */
Status tavsFIRStreamGetStateSize_16s(int tapsLen, int* pBufferSize);
/* Lays a 16-bit stream record; roundMode (0, 1 or 2) rounds the right shift of each output. */
Status tavsFIRStreamInit_16s(FIRState_16s** ppState, const Tav16s* pTaps, int tapsLen, int tapsFactor, int roundMode, Tav8u* pBuffer);
/* As the Init form, in a block of its own that tavsFIRFree_16s releases. */
Status tavsFIRStreamInitAlloc_16s(FIRState_16s** ppState, const Tav16s* pTaps, int tapsLen, int tapsFactor, int roundMode);

/* ---- stateless forms over the caller's taps and delay ring ---- */
/* Filters len samples with the caller's taps and ring of 2*tapsLen values at *pDlyLineIndex; products summed in 64f. */
Status tavsFIR_Direct_32f(const Tav32f* pSrc, Tav32f* pDst, int len, const Tav32f* pTaps, int tapsLen, Tav32f* pDlyLine, int* pDlyLineIndex);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR_Direct_32f_I(Tav32f* pSrcDst, int len, const Tav32f* pTaps, int tapsLen, Tav32f* pDlyLine, int* pDlyLineIndex);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne_Direct_32f(Tav32f src, Tav32f* pDstVal, const Tav32f* pTaps, int tapsLen, Tav32f* pDlyLine, int* pDlyLineIndex);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne_Direct_32f_I(Tav32f* pSrcDstVal, const Tav32f* pTaps, int tapsLen, Tav32f* pDlyLine, int* pDlyLineIndex);
/* Filters len samples with the caller's taps and ring of 2*tapsLen values at *pDlyLineIndex; products summed in 64f. */
Status tavsFIR_Direct_32fc(const Tav32fc* pSrc, Tav32fc* pDst, int len, const Tav32fc* pTaps, int tapsLen, Tav32fc* pDlyLine, int* pDlyLineIndex);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR_Direct_32fc_I(Tav32fc* pSrcDst, int len, const Tav32fc* pTaps, int tapsLen, Tav32fc* pDlyLine, int* pDlyLineIndex);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne_Direct_32fc(Tav32fc src, Tav32fc* pDstVal, const Tav32fc* pTaps, int tapsLen, Tav32fc* pDlyLine, int* pDlyLineIndex);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne_Direct_32fc_I(Tav32fc* pSrcDstVal, const Tav32fc* pTaps, int tapsLen, Tav32fc* pDlyLine, int* pDlyLineIndex);
/* Filters len samples with the caller's taps and ring of 2*tapsLen values at *pDlyLineIndex; products summed in 64f. */
Status tavsFIR_Direct_64f(const Tav64f* pSrc, Tav64f* pDst, int len, const Tav64f* pTaps, int tapsLen, Tav64f* pDlyLine, int* pDlyLineIndex);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR_Direct_64f_I(Tav64f* pSrcDst, int len, const Tav64f* pTaps, int tapsLen, Tav64f* pDlyLine, int* pDlyLineIndex);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne_Direct_64f(Tav64f src, Tav64f* pDstVal, const Tav64f* pTaps, int tapsLen, Tav64f* pDlyLine, int* pDlyLineIndex);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne_Direct_64f_I(Tav64f* pSrcDstVal, const Tav64f* pTaps, int tapsLen, Tav64f* pDlyLine, int* pDlyLineIndex);
/* Filters len samples with the caller's taps and ring of 2*tapsLen values at *pDlyLineIndex; products summed in 64f. */
Status tavsFIR_Direct_64fc(const Tav64fc* pSrc, Tav64fc* pDst, int len, const Tav64fc* pTaps, int tapsLen, Tav64fc* pDlyLine, int* pDlyLineIndex);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR_Direct_64fc_I(Tav64fc* pSrcDst, int len, const Tav64fc* pTaps, int tapsLen, Tav64fc* pDlyLine, int* pDlyLineIndex);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne_Direct_64fc(Tav64fc src, Tav64fc* pDstVal, const Tav64fc* pTaps, int tapsLen, Tav64fc* pDlyLine, int* pDlyLineIndex);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne_Direct_64fc_I(Tav64fc* pSrcDstVal, const Tav64fc* pTaps, int tapsLen, Tav64fc* pDlyLine, int* pDlyLineIndex);
/* Filters len samples with Q15 taps and the caller's delay line (2*tapsLen values, newest first at *pDlyLineIndex); ErrDelayIndex outside [0, tapsLen). */
Status tavsFIR_Direct_16s_Sfs(const Tav16s* pSrc, Tav16s* pDst, int len, const Tav16s* pTaps, int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR_Direct_16s_ISfs(Tav16s* pSrcDst, int len, const Tav16s* pTaps, int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters one sample with Q15 taps and the caller's delay line, as the block form. */
Status tavsFIROne_Direct_16s_Sfs(Tav16s src, Tav16s* pDstVal, const Tav16s* pTaps, int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne_Direct_16s_ISfs(Tav16s* pSrcDstVal, const Tav16s* pTaps, int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters len samples with the caller's taps and ring of 2*tapsLen values at *pDlyLineIndex; products summed in 64f. */
Status tavsFIR32f_Direct_16s_Sfs(const Tav16s* pSrc, Tav16s* pDst, int len, const Tav32f* pTaps, int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR32f_Direct_16s_ISfs(Tav16s* pSrcDst, int len, const Tav32f* pTaps, int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne32f_Direct_16s_Sfs(Tav16s src, Tav16s* pDstVal, const Tav32f* pTaps, int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne32f_Direct_16s_ISfs(Tav16s* pSrcDstVal, const Tav32f* pTaps, int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters len samples with the caller's taps and ring of 2*tapsLen values at *pDlyLineIndex; products summed in 64f. */
Status tavsFIR32fc_Direct_16sc_Sfs(const Tav16sc* pSrc, Tav16sc* pDst, int len, const Tav32fc* pTaps, int tapsLen, Tav16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR32fc_Direct_16sc_ISfs(Tav16sc* pSrcDst, int len, const Tav32fc* pTaps, int tapsLen, Tav16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne32fc_Direct_16sc_Sfs(Tav16sc src, Tav16sc* pDstVal, const Tav32fc* pTaps, int tapsLen, Tav16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne32fc_Direct_16sc_ISfs(Tav16sc* pSrcDstVal, const Tav32fc* pTaps, int tapsLen, Tav16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters len samples with taps times 2^tapsFactor over the caller's ring of 2*tapsLen values; 32-bit sums, shifted, rounded, limited. */
Status tavsFIR32s_Direct_16s_Sfs(const Tav16s* pSrc, Tav16s* pDst, int len, const Tav32s* pTaps, int tapsLen, int tapsFactor, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR32s_Direct_16s_ISfs(Tav16s* pSrcDst, int len, const Tav32s* pTaps, int tapsLen, int tapsFactor, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne32s_Direct_16s_Sfs(Tav16s src, Tav16s* pDstVal, const Tav32s* pTaps, int tapsLen, int tapsFactor, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne32s_Direct_16s_ISfs(Tav16s* pSrcDstVal, const Tav32s* pTaps, int tapsLen, int tapsFactor, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters len samples with taps times 2^tapsFactor over the caller's ring of 2*tapsLen values; 32-bit sums, shifted, rounded, limited. */
Status tavsFIR32sc_Direct_16sc_Sfs(const Tav16sc* pSrc, Tav16sc* pDst, int len, const Tav32sc* pTaps, int tapsLen, int tapsFactor, Tav16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR32sc_Direct_16sc_ISfs(Tav16sc* pSrcDst, int len, const Tav32sc* pTaps, int tapsLen, int tapsFactor, Tav16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne32sc_Direct_16sc_Sfs(Tav16sc src, Tav16sc* pDstVal, const Tav32sc* pTaps, int tapsLen, int tapsFactor, Tav16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne32sc_Direct_16sc_ISfs(Tav16sc* pSrcDstVal, const Tav32sc* pTaps, int tapsLen, int tapsFactor, Tav16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters len samples with the caller's taps and ring of 2*tapsLen values at *pDlyLineIndex; products summed in 64f. */
Status tavsFIR64f_Direct_16s_Sfs(const Tav16s* pSrc, Tav16s* pDst, int len, const Tav64f* pTaps, int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR64f_Direct_16s_ISfs(Tav16s* pSrcDst, int len, const Tav64f* pTaps, int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne64f_Direct_16s_Sfs(Tav16s src, Tav16s* pDstVal, const Tav64f* pTaps, int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne64f_Direct_16s_ISfs(Tav16s* pSrcDstVal, const Tav64f* pTaps, int tapsLen, Tav16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters len samples with the caller's taps and ring of 2*tapsLen values at *pDlyLineIndex; products summed in 64f. */
Status tavsFIR64f_Direct_32f(const Tav32f* pSrc, Tav32f* pDst, int len, const Tav64f* pTaps, int tapsLen, Tav32f* pDlyLine, int* pDlyLineIndex);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR64f_Direct_32f_I(Tav32f* pSrcDst, int len, const Tav64f* pTaps, int tapsLen, Tav32f* pDlyLine, int* pDlyLineIndex);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne64f_Direct_32f(Tav32f src, Tav32f* pDstVal, const Tav64f* pTaps, int tapsLen, Tav32f* pDlyLine, int* pDlyLineIndex);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne64f_Direct_32f_I(Tav32f* pSrcDstVal, const Tav64f* pTaps, int tapsLen, Tav32f* pDlyLine, int* pDlyLineIndex);
/* Filters len samples with the caller's taps and ring of 2*tapsLen values at *pDlyLineIndex; products summed in 64f. */
Status tavsFIR64f_Direct_32s_Sfs(const Tav32s* pSrc, Tav32s* pDst, int len, const Tav64f* pTaps, int tapsLen, Tav32s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR64f_Direct_32s_ISfs(Tav32s* pSrcDst, int len, const Tav64f* pTaps, int tapsLen, Tav32s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne64f_Direct_32s_Sfs(Tav32s src, Tav32s* pDstVal, const Tav64f* pTaps, int tapsLen, Tav32s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne64f_Direct_32s_ISfs(Tav32s* pSrcDstVal, const Tav64f* pTaps, int tapsLen, Tav32s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters len samples with the caller's taps and ring of 2*tapsLen values at *pDlyLineIndex; products summed in 64f. */
Status tavsFIR64fc_Direct_16sc_Sfs(const Tav16sc* pSrc, Tav16sc* pDst, int len, const Tav64fc* pTaps, int tapsLen, Tav16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR64fc_Direct_16sc_ISfs(Tav16sc* pSrcDst, int len, const Tav64fc* pTaps, int tapsLen, Tav16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne64fc_Direct_16sc_Sfs(Tav16sc src, Tav16sc* pDstVal, const Tav64fc* pTaps, int tapsLen, Tav16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne64fc_Direct_16sc_ISfs(Tav16sc* pSrcDstVal, const Tav64fc* pTaps, int tapsLen, Tav16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters len samples with the caller's taps and ring of 2*tapsLen values at *pDlyLineIndex; products summed in 64f. */
Status tavsFIR64fc_Direct_32fc(const Tav32fc* pSrc, Tav32fc* pDst, int len, const Tav64fc* pTaps, int tapsLen, Tav32fc* pDlyLine, int* pDlyLineIndex);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR64fc_Direct_32fc_I(Tav32fc* pSrcDst, int len, const Tav64fc* pTaps, int tapsLen, Tav32fc* pDlyLine, int* pDlyLineIndex);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne64fc_Direct_32fc(Tav32fc src, Tav32fc* pDstVal, const Tav64fc* pTaps, int tapsLen, Tav32fc* pDlyLine, int* pDlyLineIndex);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne64fc_Direct_32fc_I(Tav32fc* pSrcDstVal, const Tav64fc* pTaps, int tapsLen, Tav32fc* pDlyLine, int* pDlyLineIndex);
/* Filters len samples with the caller's taps and ring of 2*tapsLen values at *pDlyLineIndex; products summed in 64f. */
Status tavsFIR64fc_Direct_32sc_Sfs(const Tav32sc* pSrc, Tav32sc* pDst, int len, const Tav64fc* pTaps, int tapsLen, Tav32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsFIR64fc_Direct_32sc_ISfs(Tav32sc* pSrcDst, int len, const Tav64fc* pTaps, int tapsLen, Tav32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* Filters one sample with the caller's taps and ring, as the block form. */
Status tavsFIROne64fc_Direct_32sc_Sfs(Tav32sc src, Tav32sc* pDstVal, const Tav64fc* pTaps, int tapsLen, Tav32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
/* The sample is read from and the output written to *pSrcDstVal. */
Status tavsFIROne64fc_Direct_32sc_ISfs(Tav32sc* pSrcDstVal, const Tav64fc* pTaps, int tapsLen, Tav32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);

/* ---- SR forms: delay in and delay out as separate arrays, oldest first ---- */
/* Bytes of the SR block and of the work buffer for tapsLen taps of dataType (13, 14, 19, 20). */
Status tavsFIRSRGetSize(int tapsLen, int dataType, int* pSpecSize, int* pBufSize);
/* Lays the taps in the SR block; algSelect must be 0, 1 or 2. */
Status tavsFIRSRInit_32f(const Tav32f* pTaps, int tapsLen, int algSelect, FIRSRSpec_32f* pSpec);
/* Lays the taps in the SR block; algSelect must be 0, 1 or 2. */
Status tavsFIRSRInit_32fc(const Tav32fc* pTaps, int tapsLen, int algSelect, FIRSRSpec_32fc* pSpec);
/* Lays the taps in the SR block; algSelect must be 0, 1 or 2. */
Status tavsFIRSRInit_64f(const Tav64f* pTaps, int tapsLen, int algSelect, FIRSRSpec_64f* pSpec);
/* Lays the taps in the SR block; algSelect must be 0, 1 or 2. */
Status tavsFIRSRInit_64fc(const Tav64fc* pTaps, int tapsLen, int algSelect, FIRSRSpec_64fc* pSpec);
/* Filters len samples after the tapsLen-1 samples of pDlySrc (oldest first; null gives zeros); pDlyDst, if given, gets the last tapsLen-1 inputs. */
Status tavsFIRSR_32f(const Tav32f* pSrc, Tav32f* pDst, int len, const FIRSRSpec_32f* pSpec, const Tav32f* pDlySrc, Tav32f* pDlyDst, Tav8u* pBuffer);
/* Filters len samples after the tapsLen-1 samples of pDlySrc (oldest first; null gives zeros); pDlyDst, if given, gets the last tapsLen-1 inputs. */
Status tavsFIRSR_32fc(const Tav32fc* pSrc, Tav32fc* pDst, int len, const FIRSRSpec_32fc* pSpec, const Tav32fc* pDlySrc, Tav32fc* pDlyDst, Tav8u* pBuffer);
/* Filters len samples after the tapsLen-1 samples of pDlySrc (oldest first; null gives zeros); pDlyDst, if given, gets the last tapsLen-1 inputs. */
Status tavsFIRSR_64f(const Tav64f* pSrc, Tav64f* pDst, int len, const FIRSRSpec_64f* pSpec, const Tav64f* pDlySrc, Tav64f* pDlyDst, Tav8u* pBuffer);
/* Filters len samples after the tapsLen-1 samples of pDlySrc (oldest first; null gives zeros); pDlyDst, if given, gets the last tapsLen-1 inputs. */
Status tavsFIRSR_64fc(const Tav64fc* pSrc, Tav64fc* pDst, int len, const FIRSRSpec_64fc* pSpec, const Tav64fc* pDlySrc, Tav64fc* pDlyDst, Tav8u* pBuffer);
/* Filters len samples after the tapsLen-1 samples of pDlySrc (oldest first; null gives zeros); pDlyDst, if given, gets the last tapsLen-1 inputs. */
Status tavsFIRSR_16s(const Tav16s* pSrc, Tav16s* pDst, int len, const FIRSRSpec_32f* pSpec, const Tav16s* pDlySrc, Tav16s* pDlyDst, Tav8u* pBuffer);
/* Filters len samples after the tapsLen-1 samples of pDlySrc (oldest first; null gives zeros); pDlyDst, if given, gets the last tapsLen-1 inputs. */
Status tavsFIRSR_16sc(const Tav16sc* pSrc, Tav16sc* pDst, int len, const FIRSRSpec_32fc* pSpec, const Tav16sc* pDlySrc, Tav16sc* pDlyDst, Tav8u* pBuffer);

/* @@IIR@@ (recursive filters) */
/* Recursive filter records, one kind per taps/data pair. Each holds the taps
 * divided by a0 and the delay line; the block comes from the caller (Init, sized
 * by GetStateSize) or from InitAlloc, which Free releases. Arbitrary order n:
 * taps b0..bn, a0, a1..an, delay of n values. Biquad cascade of numBq sections:
 * b0 b1 b2 a0 a1 a2 per section, delay of 2 values each. Direct form I: the
 * biquad taps, delay x[-2] x[-1] y[-2] y[-1] per section. */
typedef struct IIRState_32f IIRState_32f;
typedef struct IIRState_32fc IIRState_32fc;
typedef struct IIRState32f_16s IIRState32f_16s;
typedef struct IIRState32fc_16sc IIRState32fc_16sc;
typedef struct IIRState32s_16s IIRState32s_16s;
typedef struct IIRState32sc_16sc IIRState32sc_16sc;
typedef struct IIRState_64f IIRState_64f;
typedef struct IIRState_64fc IIRState_64fc;
typedef struct IIRState64f_32f IIRState64f_32f;
typedef struct IIRState64fc_32fc IIRState64fc_32fc;
typedef struct IIRState64f_32s IIRState64f_32s;
typedef struct IIRState64fc_32sc IIRState64fc_32sc;
typedef struct IIRState64f_16s IIRState64f_16s;
typedef struct IIRState64fc_16sc IIRState64fc_16sc;

/* ---- IIRState_32f ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize_32f(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit_32f(IIRState_32f** ppState, const Tav32f* pTaps, int order, const Tav32f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc_32f(IIRState_32f** ppState, const Tav32f* pTaps, int order, const Tav32f* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize_BiQuad_32f(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit_BiQuad_32f(IIRState_32f** ppState, const Tav32f* pTaps, int numBq, const Tav32f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc_BiQuad_32f(IIRState_32f** ppState, const Tav32f* pTaps, int numBq, const Tav32f* pDlyLine);
/* Bytes for Init of a direct form I record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize_BiQuad_DF1_32f(int numBq, int* pBufferSize);
/* Lays a direct form I record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit_BiQuad_DF1_32f(IIRState_32f** ppState, const Tav32f* pTaps, int numBq, const Tav32f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc_BiQuad_DF1_32f(IIRState_32f** ppState, const Tav32f* pTaps, int numBq, const Tav32f* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree_32f(IIRState_32f* pState);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps_32f(const Tav32f* pTaps, IIRState_32f* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine_32f(const IIRState_32f* pState, Tav32f* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine_32f(IIRState_32f* pState, const Tav32f* pDlyLine);
/* Filters len samples through the record, carrying its delay line on. */
Status tavsIIR_32f(const Tav32f* pSrc, Tav32f* pDst, int len, IIRState_32f* pState);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR_32f_I(Tav32f* pSrcDst, int len, IIRState_32f* pState);
/* Filters one sample through the record. */
Status tavsIIROne_32f(Tav32f src, Tav32f* pDstVal, IIRState_32f* pState);
/* One record per channel, channels in order (biquad and direct form I records). */
Status tavsIIR_32f_P(const Tav32f** pSrc, Tav32f** pDst, int len, int numChannels, IIRState_32f** ppState);
/* One record per channel, channels in order (biquad and direct form I records). */
Status tavsIIR_32f_IP(Tav32f** pSrcDst, int len, int numChannels, IIRState_32f** ppState);

/* ---- IIRState_32fc ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize_32fc(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit_32fc(IIRState_32fc** ppState, const Tav32fc* pTaps, int order, const Tav32fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc_32fc(IIRState_32fc** ppState, const Tav32fc* pTaps, int order, const Tav32fc* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize_BiQuad_32fc(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit_BiQuad_32fc(IIRState_32fc** ppState, const Tav32fc* pTaps, int numBq, const Tav32fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc_BiQuad_32fc(IIRState_32fc** ppState, const Tav32fc* pTaps, int numBq, const Tav32fc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree_32fc(IIRState_32fc* pState);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps_32fc(const Tav32fc* pTaps, IIRState_32fc* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine_32fc(const IIRState_32fc* pState, Tav32fc* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine_32fc(IIRState_32fc* pState, const Tav32fc* pDlyLine);
/* Filters len samples through the record, carrying its delay line on. */
Status tavsIIR_32fc(const Tav32fc* pSrc, Tav32fc* pDst, int len, IIRState_32fc* pState);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR_32fc_I(Tav32fc* pSrcDst, int len, IIRState_32fc* pState);
/* Filters one sample through the record. */
Status tavsIIROne_32fc(Tav32fc src, Tav32fc* pDstVal, IIRState_32fc* pState);

/* ---- IIRState32f_16s ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize32f_16s(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit32f_16s(IIRState32f_16s** ppState, const Tav32f* pTaps, int order, const Tav32f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc32f_16s(IIRState32f_16s** ppState, const Tav32f* pTaps, int order, const Tav32f* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize32f_BiQuad_16s(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit32f_BiQuad_16s(IIRState32f_16s** ppState, const Tav32f* pTaps, int numBq, const Tav32f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc32f_BiQuad_16s(IIRState32f_16s** ppState, const Tav32f* pTaps, int numBq, const Tav32f* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree32f_16s(IIRState32f_16s* pState);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps32f_16s(const Tav32f* pTaps, IIRState32f_16s* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine32f_16s(const IIRState32f_16s* pState, Tav32f* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine32f_16s(IIRState32f_16s* pState, const Tav32f* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, limited, rounded to nearest even. */
Status tavsIIR32f_16s_Sfs(const Tav16s* pSrc, Tav16s* pDst, int len, IIRState32f_16s* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR32f_16s_ISfs(Tav16s* pSrcDst, int len, IIRState32f_16s* pState, int scaleFactor);
/* Filters one sample; the output times 2^-scaleFactor, limited, rounded. */
Status tavsIIROne32f_16s_Sfs(Tav16s src, Tav16s* pDstVal, IIRState32f_16s* pState, int scaleFactor);

/* ---- IIRState32fc_16sc ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize32fc_16sc(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit32fc_16sc(IIRState32fc_16sc** ppState, const Tav32fc* pTaps, int order, const Tav32fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc32fc_16sc(IIRState32fc_16sc** ppState, const Tav32fc* pTaps, int order, const Tav32fc* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize32fc_BiQuad_16sc(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit32fc_BiQuad_16sc(IIRState32fc_16sc** ppState, const Tav32fc* pTaps, int numBq, const Tav32fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc32fc_BiQuad_16sc(IIRState32fc_16sc** ppState, const Tav32fc* pTaps, int numBq, const Tav32fc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree32fc_16sc(IIRState32fc_16sc* pState);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps32fc_16sc(const Tav32fc* pTaps, IIRState32fc_16sc* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine32fc_16sc(const IIRState32fc_16sc* pState, Tav32fc* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine32fc_16sc(IIRState32fc_16sc* pState, const Tav32fc* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, limited, rounded to nearest even. */
Status tavsIIR32fc_16sc_Sfs(const Tav16sc* pSrc, Tav16sc* pDst, int len, IIRState32fc_16sc* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR32fc_16sc_ISfs(Tav16sc* pSrcDst, int len, IIRState32fc_16sc* pState, int scaleFactor);
/* Filters one sample; the output times 2^-scaleFactor, limited, rounded. */
Status tavsIIROne32fc_16sc_Sfs(Tav16sc src, Tav16sc* pDstVal, IIRState32fc_16sc* pState, int scaleFactor);

/* ---- IIRState32s_16s ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize32s_16s(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf (32s taps times 2^-tapsFactor): delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit32s_16s(IIRState32s_16s** ppState, const Tav32s* pTaps, int order, int tapsFactor, const Tav32f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc32s_16s(IIRState32s_16s** ppState, const Tav32s* pTaps, int order, int tapsFactor, const Tav32f* pDlyLine);
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize32s_16s32f(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit32s_16s32f(IIRState32s_16s** ppState, const Tav32f* pTaps, int order, const Tav32f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc32s_16s32f(IIRState32s_16s** ppState, const Tav32f* pTaps, int order, const Tav32f* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize32s_BiQuad_16s(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf (32s taps times 2^-tapsFactor): delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit32s_BiQuad_16s(IIRState32s_16s** ppState, const Tav32s* pTaps, int numBq, int tapsFactor, const Tav32f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc32s_BiQuad_16s(IIRState32s_16s** ppState, const Tav32s* pTaps, int numBq, int tapsFactor, const Tav32f* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize32s_BiQuad_16s32f(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit32s_BiQuad_16s32f(IIRState32s_16s** ppState, const Tav32f* pTaps, int numBq, const Tav32f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc32s_BiQuad_16s32f(IIRState32s_16s** ppState, const Tav32f* pTaps, int numBq, const Tav32f* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree32s_16s(IIRState32s_16s* pState);
/* Stores new taps over a0 (32s taps times 2^-tapsFactor); the delay line is kept. */
Status tavsIIRSetTaps32s_16s(const Tav32s* pTaps, IIRState32s_16s* pState, int tapsFactor);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps32s_16s32f(const Tav32f* pTaps, IIRState32s_16s* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine32s_16s(const IIRState32s_16s* pState, Tav32f* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine32s_16s(IIRState32s_16s* pState, const Tav32f* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, limited, rounded to nearest even. */
Status tavsIIR32s_16s_Sfs(const Tav16s* pSrc, Tav16s* pDst, int len, IIRState32s_16s* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR32s_16s_ISfs(Tav16s* pSrcDst, int len, IIRState32s_16s* pState, int scaleFactor);
/* Filters one sample; the output times 2^-scaleFactor, limited, rounded. */
Status tavsIIROne32s_16s_Sfs(Tav16s src, Tav16s* pDstVal, IIRState32s_16s* pState, int scaleFactor);

/* ---- IIRState32sc_16sc ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize32sc_16sc(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf (32s taps times 2^-tapsFactor): delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit32sc_16sc(IIRState32sc_16sc** ppState, const Tav32sc* pTaps, int order, int tapsFactor, const Tav32fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc32sc_16sc(IIRState32sc_16sc** ppState, const Tav32sc* pTaps, int order, int tapsFactor, const Tav32fc* pDlyLine);
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize32sc_16sc32fc(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit32sc_16sc32fc(IIRState32sc_16sc** ppState, const Tav32fc* pTaps, int order, const Tav32fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc32sc_16sc32fc(IIRState32sc_16sc** ppState, const Tav32fc* pTaps, int order, const Tav32fc* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize32sc_BiQuad_16sc(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf (32s taps times 2^-tapsFactor): delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit32sc_BiQuad_16sc(IIRState32sc_16sc** ppState, const Tav32sc* pTaps, int numBq, int tapsFactor, const Tav32fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc32sc_BiQuad_16sc(IIRState32sc_16sc** ppState, const Tav32sc* pTaps, int numBq, int tapsFactor, const Tav32fc* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize32sc_BiQuad_16sc32fc(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit32sc_BiQuad_16sc32fc(IIRState32sc_16sc** ppState, const Tav32fc* pTaps, int numBq, const Tav32fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc32sc_BiQuad_16sc32fc(IIRState32sc_16sc** ppState, const Tav32fc* pTaps, int numBq, const Tav32fc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree32sc_16sc(IIRState32sc_16sc* pState);
/* Stores new taps over a0 (32s taps times 2^-tapsFactor); the delay line is kept. */
Status tavsIIRSetTaps32sc_16sc(const Tav32sc* pTaps, IIRState32sc_16sc* pState, int tapsFactor);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps32sc_16sc32fc(const Tav32fc* pTaps, IIRState32sc_16sc* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine32sc_16sc(const IIRState32sc_16sc* pState, Tav32fc* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine32sc_16sc(IIRState32sc_16sc* pState, const Tav32fc* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, limited, rounded to nearest even. */
Status tavsIIR32sc_16sc_Sfs(const Tav16sc* pSrc, Tav16sc* pDst, int len, IIRState32sc_16sc* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR32sc_16sc_ISfs(Tav16sc* pSrcDst, int len, IIRState32sc_16sc* pState, int scaleFactor);
/* Filters one sample; the output times 2^-scaleFactor, limited, rounded. */
Status tavsIIROne32sc_16sc_Sfs(Tav16sc src, Tav16sc* pDstVal, IIRState32sc_16sc* pState, int scaleFactor);

/* ---- IIRState_64f ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize_64f(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit_64f(IIRState_64f** ppState, const Tav64f* pTaps, int order, const Tav64f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc_64f(IIRState_64f** ppState, const Tav64f* pTaps, int order, const Tav64f* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize_BiQuad_64f(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit_BiQuad_64f(IIRState_64f** ppState, const Tav64f* pTaps, int numBq, const Tav64f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc_BiQuad_64f(IIRState_64f** ppState, const Tav64f* pTaps, int numBq, const Tav64f* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree_64f(IIRState_64f* pState);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps_64f(const Tav64f* pTaps, IIRState_64f* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine_64f(const IIRState_64f* pState, Tav64f* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine_64f(IIRState_64f* pState, const Tav64f* pDlyLine);
/* Filters len samples through the record, carrying its delay line on. */
Status tavsIIR_64f(const Tav64f* pSrc, Tav64f* pDst, int len, IIRState_64f* pState);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR_64f_I(Tav64f* pSrcDst, int len, IIRState_64f* pState);
/* Filters one sample through the record. */
Status tavsIIROne_64f(Tav64f src, Tav64f* pDstVal, IIRState_64f* pState);

/* ---- IIRState_64fc ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize_64fc(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit_64fc(IIRState_64fc** ppState, const Tav64fc* pTaps, int order, const Tav64fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc_64fc(IIRState_64fc** ppState, const Tav64fc* pTaps, int order, const Tav64fc* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize_BiQuad_64fc(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit_BiQuad_64fc(IIRState_64fc** ppState, const Tav64fc* pTaps, int numBq, const Tav64fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc_BiQuad_64fc(IIRState_64fc** ppState, const Tav64fc* pTaps, int numBq, const Tav64fc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree_64fc(IIRState_64fc* pState);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps_64fc(const Tav64fc* pTaps, IIRState_64fc* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine_64fc(const IIRState_64fc* pState, Tav64fc* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine_64fc(IIRState_64fc* pState, const Tav64fc* pDlyLine);
/* Filters len samples through the record, carrying its delay line on. */
Status tavsIIR_64fc(const Tav64fc* pSrc, Tav64fc* pDst, int len, IIRState_64fc* pState);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR_64fc_I(Tav64fc* pSrcDst, int len, IIRState_64fc* pState);
/* Filters one sample through the record. */
Status tavsIIROne_64fc(Tav64fc src, Tav64fc* pDstVal, IIRState_64fc* pState);

/* ---- IIRState64f_32f ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64f_32f(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64f_32f(IIRState64f_32f** ppState, const Tav64f* pTaps, int order, const Tav64f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64f_32f(IIRState64f_32f** ppState, const Tav64f* pTaps, int order, const Tav64f* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64f_BiQuad_32f(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64f_BiQuad_32f(IIRState64f_32f** ppState, const Tav64f* pTaps, int numBq, const Tav64f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64f_BiQuad_32f(IIRState64f_32f** ppState, const Tav64f* pTaps, int numBq, const Tav64f* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree64f_32f(IIRState64f_32f* pState);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps64f_32f(const Tav64f* pTaps, IIRState64f_32f* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine64f_32f(const IIRState64f_32f* pState, Tav64f* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine64f_32f(IIRState64f_32f* pState, const Tav64f* pDlyLine);
/* Filters len samples through the record, carrying its delay line on. */
Status tavsIIR64f_32f(const Tav32f* pSrc, Tav32f* pDst, int len, IIRState64f_32f* pState);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR64f_32f_I(Tav32f* pSrcDst, int len, IIRState64f_32f* pState);
/* Filters one sample through the record. */
Status tavsIIROne64f_32f(Tav32f src, Tav32f* pDstVal, IIRState64f_32f* pState);

/* ---- IIRState64fc_32fc ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64fc_32fc(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64fc_32fc(IIRState64fc_32fc** ppState, const Tav64fc* pTaps, int order, const Tav64fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64fc_32fc(IIRState64fc_32fc** ppState, const Tav64fc* pTaps, int order, const Tav64fc* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64fc_BiQuad_32fc(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64fc_BiQuad_32fc(IIRState64fc_32fc** ppState, const Tav64fc* pTaps, int numBq, const Tav64fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64fc_BiQuad_32fc(IIRState64fc_32fc** ppState, const Tav64fc* pTaps, int numBq, const Tav64fc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree64fc_32fc(IIRState64fc_32fc* pState);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps64fc_32fc(const Tav64fc* pTaps, IIRState64fc_32fc* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine64fc_32fc(const IIRState64fc_32fc* pState, Tav64fc* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine64fc_32fc(IIRState64fc_32fc* pState, const Tav64fc* pDlyLine);
/* Filters len samples through the record, carrying its delay line on. */
Status tavsIIR64fc_32fc(const Tav32fc* pSrc, Tav32fc* pDst, int len, IIRState64fc_32fc* pState);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR64fc_32fc_I(Tav32fc* pSrcDst, int len, IIRState64fc_32fc* pState);
/* Filters one sample through the record. */
Status tavsIIROne64fc_32fc(Tav32fc src, Tav32fc* pDstVal, IIRState64fc_32fc* pState);

/* ---- IIRState64f_32s ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64f_32s(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64f_32s(IIRState64f_32s** ppState, const Tav64f* pTaps, int order, const Tav64f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64f_32s(IIRState64f_32s** ppState, const Tav64f* pTaps, int order, const Tav64f* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64f_BiQuad_32s(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64f_BiQuad_32s(IIRState64f_32s** ppState, const Tav64f* pTaps, int numBq, const Tav64f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64f_BiQuad_32s(IIRState64f_32s** ppState, const Tav64f* pTaps, int numBq, const Tav64f* pDlyLine);
/* Bytes for Init of a direct form I record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64f_BiQuad_DF1_32s(int numBq, int* pBufferSize);
/* Lays a direct form I record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64f_BiQuad_DF1_32s(IIRState64f_32s** ppState, const Tav64f* pTaps, int numBq, const Tav32s* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64f_BiQuad_DF1_32s(IIRState64f_32s** ppState, const Tav64f* pTaps, int numBq, const Tav32s* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree64f_32s(IIRState64f_32s* pState);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps64f_32s(const Tav64f* pTaps, IIRState64f_32s* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine64f_32s(const IIRState64f_32s* pState, Tav64f* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine64f_32s(IIRState64f_32s* pState, const Tav64f* pDlyLine);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine64f_DF1_32s(const IIRState64f_32s* pState, Tav32s* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine64f_DF1_32s(IIRState64f_32s* pState, const Tav32s* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, limited, rounded to nearest even. */
Status tavsIIR64f_32s_Sfs(const Tav32s* pSrc, Tav32s* pDst, int len, IIRState64f_32s* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR64f_32s_ISfs(Tav32s* pSrcDst, int len, IIRState64f_32s* pState, int scaleFactor);
/* Filters one sample; the output times 2^-scaleFactor, limited, rounded. */
Status tavsIIROne64f_32s_Sfs(Tav32s src, Tav32s* pDstVal, IIRState64f_32s* pState, int scaleFactor);
/* One record and one scale per channel, channels in order (biquad and direct form I). */
Status tavsIIR64f_32s_PSfs(const Tav32s** pSrc, Tav32s** pDst, int len, int numChannels, IIRState64f_32s** ppState, const int* pScaleFactor);
/* One record and one scale per channel, channels in order (biquad and direct form I). */
Status tavsIIR64f_32s_IPSfs(Tav32s** pSrcDst, int len, int numChannels, IIRState64f_32s** ppState, const int* pScaleFactor);

/* ---- IIRState64fc_32sc ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64fc_32sc(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64fc_32sc(IIRState64fc_32sc** ppState, const Tav64fc* pTaps, int order, const Tav64fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64fc_32sc(IIRState64fc_32sc** ppState, const Tav64fc* pTaps, int order, const Tav64fc* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64fc_BiQuad_32sc(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64fc_BiQuad_32sc(IIRState64fc_32sc** ppState, const Tav64fc* pTaps, int numBq, const Tav64fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64fc_BiQuad_32sc(IIRState64fc_32sc** ppState, const Tav64fc* pTaps, int numBq, const Tav64fc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree64fc_32sc(IIRState64fc_32sc* pState);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps64fc_32sc(const Tav64fc* pTaps, IIRState64fc_32sc* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine64fc_32sc(const IIRState64fc_32sc* pState, Tav64fc* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine64fc_32sc(IIRState64fc_32sc* pState, const Tav64fc* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, limited, rounded to nearest even. */
Status tavsIIR64fc_32sc_Sfs(const Tav32sc* pSrc, Tav32sc* pDst, int len, IIRState64fc_32sc* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR64fc_32sc_ISfs(Tav32sc* pSrcDst, int len, IIRState64fc_32sc* pState, int scaleFactor);
/* Filters one sample; the output times 2^-scaleFactor, limited, rounded. */
Status tavsIIROne64fc_32sc_Sfs(Tav32sc src, Tav32sc* pDstVal, IIRState64fc_32sc* pState, int scaleFactor);

/* ---- IIRState64f_16s ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64f_16s(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64f_16s(IIRState64f_16s** ppState, const Tav64f* pTaps, int order, const Tav64f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64f_16s(IIRState64f_16s** ppState, const Tav64f* pTaps, int order, const Tav64f* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64f_BiQuad_16s(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64f_BiQuad_16s(IIRState64f_16s** ppState, const Tav64f* pTaps, int numBq, const Tav64f* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64f_BiQuad_16s(IIRState64f_16s** ppState, const Tav64f* pTaps, int numBq, const Tav64f* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree64f_16s(IIRState64f_16s* pState);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps64f_16s(const Tav64f* pTaps, IIRState64f_16s* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine64f_16s(const IIRState64f_16s* pState, Tav64f* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine64f_16s(IIRState64f_16s* pState, const Tav64f* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, limited, rounded to nearest even. */
Status tavsIIR64f_16s_Sfs(const Tav16s* pSrc, Tav16s* pDst, int len, IIRState64f_16s* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR64f_16s_ISfs(Tav16s* pSrcDst, int len, IIRState64f_16s* pState, int scaleFactor);
/* Filters one sample; the output times 2^-scaleFactor, limited, rounded. */
Status tavsIIROne64f_16s_Sfs(Tav16s src, Tav16s* pDstVal, IIRState64f_16s* pState, int scaleFactor);

/* ---- IIRState64fc_16sc ---- */
/* Bytes for Init of an arbitrary-order record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64fc_16sc(int order, int* pBufferSize);
/* Lays an arbitrary-order record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64fc_16sc(IIRState64fc_16sc** ppState, const Tav64fc* pTaps, int order, const Tav64fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64fc_16sc(IIRState64fc_16sc** ppState, const Tav64fc* pTaps, int order, const Tav64fc* pDlyLine);
/* Bytes for Init of a biquad-cascade record; ErrFilterOrder for a count below 1. */
Status tavsIIRGetStateSize64fc_BiQuad_16sc(int numBq, int* pBufferSize);
/* Lays a biquad-cascade record in pBuf: delay from pDlyLine or zeros, taps over a0. */
Status tavsIIRInit64fc_BiQuad_16sc(IIRState64fc_16sc** ppState, const Tav64fc* pTaps, int numBq, const Tav64fc* pDlyLine, Tav8u* pBuf);
/* As the Init form, in a block of its own that the Free form releases. */
Status tavsIIRInitAlloc64fc_BiQuad_16sc(IIRState64fc_16sc** ppState, const Tav64fc* pTaps, int numBq, const Tav64fc* pDlyLine);
/* Releases a record made by InitAlloc; a record made by Init is left alone. */
Status tavsIIRFree64fc_16sc(IIRState64fc_16sc* pState);
/* Stores new taps over a0; the delay line is kept. */
Status tavsIIRSetTaps64fc_16sc(const Tav64fc* pTaps, IIRState64fc_16sc* pState);
/* Copies the record's dlyLen delay values to pDlyLine. */
Status tavsIIRGetDlyLine64fc_16sc(const IIRState64fc_16sc* pState, Tav64fc* pDlyLine);
/* Copies dlyLen delay values from pDlyLine into the record. */
Status tavsIIRSetDlyLine64fc_16sc(IIRState64fc_16sc* pState, const Tav64fc* pDlyLine);
/* Filters len samples; each output times 2^-scaleFactor, limited, rounded to nearest even. */
Status tavsIIR64fc_16sc_Sfs(const Tav16sc* pSrc, Tav16sc* pDst, int len, IIRState64fc_16sc* pState, int scaleFactor);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR64fc_16sc_ISfs(Tav16sc* pSrcDst, int len, IIRState64fc_16sc* pState, int scaleFactor);
/* Filters one sample; the output times 2^-scaleFactor, limited, rounded. */
Status tavsIIROne64fc_16sc_Sfs(Tav16sc src, Tav16sc* pDstVal, IIRState64fc_16sc* pState, int scaleFactor);

/* ---- 16-bit direct forms: taps and a 32s delay line owned by the caller ---- */
/* Filters len samples; taps b..a with a0 the shift, delay in 32s, no record kept. */
Status tavsIIR_Direct_16s(const Tav16s* pSrc, Tav16s* pDst, int len, const Tav16s* pTaps, int order, Tav32s* pDlyLine);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR_Direct_16s_I(Tav16s* pSrcDst, int len, const Tav16s* pTaps, int order, Tav32s* pDlyLine);
/* One sample in wrapped 32-bit integers; the tap list's a0 slot is the shift. */
Status tavsIIROne_Direct_16s(Tav16s src, Tav16s* pDstVal, const Tav16s* pTaps, int order, Tav32s* pDlyLine);
/* As the form without _I, the sample read from and written to *pSrcDst. */
Status tavsIIROne_Direct_16s_I(Tav16s* pSrcDst, const Tav16s* pTaps, int order, Tav32s* pDlyLine);
/* Filters len samples; taps b..a with a0 the shift, delay in 32s, no record kept. */
Status tavsIIR_BiQuadDirect_16s(const Tav16s* pSrc, Tav16s* pDst, int len, const Tav16s* pTaps, int numBq, Tav32s* pDlyLine);
/* In place: as the out-of-place form on pSrcDst. */
Status tavsIIR_BiQuadDirect_16s_I(Tav16s* pSrcDst, int len, const Tav16s* pTaps, int numBq, Tav32s* pDlyLine);
/* One sample in wrapped 32-bit integers; the tap list's a0 slot is the shift. */
Status tavsIIROne_BiQuadDirect_16s(Tav16s src, Tav16s* pDstVal, const Tav16s* pTaps, int numBq, Tav32s* pDlyLine);
/* As the form without _I, the sample read from and written to *pSrcDst. */
Status tavsIIROne_BiQuadDirect_16s_I(Tav16s* pSrcDst, const Tav16s* pTaps, int numBq, Tav32s* pDlyLine);

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
