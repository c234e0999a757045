// Norms of the difference src1 - src2: Inf, L1, L2 and the squared L2 of
// 16-bit data. Float forms widen both elements before they subtract and sum
// in double; 16-bit forms sum exactly and scale once.
#include "internal/body.h"

#include "internal/check.h"
#include "internal/stats_norms.h"

using namespace tavs;
using namespace tavs::stats;

namespace {

template <class T> DiffTerms<T> re(const T* a, const T* b) { return {a, b}; }
template <class C> DiffTerms<part_t<C>> parts(const C* a, const C* b)
{
    return {reinterpret_cast<const part_t<C>*>(a), reinterpret_cast<const part_t<C>*>(b)};
}
Int16Terms ints(const Tav16s* a, const Tav16s* b) { return {a, b}; }

} // namespace

// ---- Inf -----------------------------------------------------------------------------
extern "C" Status tavsNormDiff_Inf_32f_body(const Tav32f* src1, const Tav32f* src2, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = float(inf_terms(AbsTerms<DiffTerms<float>>{re(src1, src2)}, len));
    return StatusOk;
}
extern "C" Status tavsNormDiff_Inf_64f_body(const Tav64f* src1, const Tav64f* src2, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = inf_terms(AbsTerms<DiffTerms<double>>{re(src1, src2)}, len);
    return StatusOk;
}
extern "C" Status tavsNormDiff_Inf_16s32f_body(const Tav16s* src1, const Tav16s* src2, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = float(inf_exact(ints(src1, src2), len));
    return StatusOk;
}
extern "C" Status tavsNormDiff_Inf_16s32s_Sfs_body(const Tav16s* src1, const Tav16s* src2, int len, Tav32s* norm, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = scale_sum<Tav32s>(inf_exact(ints(src1, src2), len), scaleFactor);
    return StatusOk;
}
extern "C" Status tavsNormDiff_Inf_32fc32f_body(const Tav32fc* src1, const Tav32fc* src2, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = float(inf_terms(MagTerms<DiffTerms<float>>{parts(src1, src2)}, len));
    return StatusOk;
}
extern "C" Status tavsNormDiff_Inf_64fc64f_body(const Tav64fc* src1, const Tav64fc* src2, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = inf_terms(MagTerms<DiffTerms<double>>{parts(src1, src2)}, len);
    return StatusOk;
}

// ---- L1 ------------------------------------------------------------------------------
extern "C" Status tavsNormDiff_L1_32f_body(const Tav32f* src1, const Tav32f* src2, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = float(sum8_terms(AbsTerms<DiffTerms<float>>{re(src1, src2)}, len));
    return StatusOk;
}
extern "C" Status tavsNormDiff_L1_64f_body(const Tav64f* src1, const Tav64f* src2, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = sum8_terms(AbsTerms<DiffTerms<double>>{re(src1, src2)}, len);
    return StatusOk;
}
extern "C" Status tavsNormDiff_L1_16s32f_body(const Tav16s* src1, const Tav16s* src2, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = float(l1_exact(ints(src1, src2), len));
    return StatusOk;
}
extern "C" Status tavsNormDiff_L1_16s32s_Sfs_body(const Tav16s* src1, const Tav16s* src2, int len, Tav32s* norm, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = scale_sum<Tav32s>(l1_exact(ints(src1, src2), len), scaleFactor);
    return StatusOk;
}
extern "C" Status tavsNormDiff_L1_16s64s_Sfs_body(const Tav16s* src1, const Tav16s* src2, int len, Tav64s* norm, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = scale_sum<Tav64s>(l1_exact(ints(src1, src2), len), scaleFactor);
    return StatusOk;
}
extern "C" Status tavsNormDiff_L1_32fc64f_body(const Tav32fc* src1, const Tav32fc* src2, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = sum8_terms(MagTerms<DiffTerms<float>>{parts(src1, src2)}, len);
    return StatusOk;
}
extern "C" Status tavsNormDiff_L1_64fc64f_body(const Tav64fc* src1, const Tav64fc* src2, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = sum8_terms(MagTerms<DiffTerms<double>>{parts(src1, src2)}, len);
    return StatusOk;
}

// ---- L2 ------------------------------------------------------------------------------
extern "C" Status tavsNormDiff_L2_32f_body(const Tav32f* src1, const Tav32f* src2, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = float(std::sqrt(sum8_terms(SqTerms<DiffTerms<float>>{re(src1, src2)}, len)));
    return StatusOk;
}
extern "C" Status tavsNormDiff_L2_64f_body(const Tav64f* src1, const Tav64f* src2, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = std::sqrt(sum8_terms(SqTerms<DiffTerms<double>>{re(src1, src2)}, len));
    return StatusOk;
}
extern "C" Status tavsNormDiff_L2_16s32f_body(const Tav16s* src1, const Tav16s* src2, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = float(std::sqrt(double(l2sqr_exact(ints(src1, src2), len))));
    return StatusOk;
}
extern "C" Status tavsNormDiff_L2_16s32s_Sfs_body(const Tav16s* src1, const Tav16s* src2, int len, Tav32s* norm, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = l2_scaled(l2sqr_exact(ints(src1, src2), len), scaleFactor);
    return StatusOk;
}
// Complex L2: the sum of squares of the differences of the parts, taken as one real vector of
// 2 len elements.
extern "C" Status tavsNormDiff_L2_32fc64f_body(const Tav32fc* src1, const Tav32fc* src2, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = std::sqrt(sum8_terms(SqTerms<DiffTerms<float>>{parts(src1, src2)}, 2 * int64_t(len)));
    return StatusOk;
}
extern "C" Status tavsNormDiff_L2_64fc64f_body(const Tav64fc* src1, const Tav64fc* src2, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = std::sqrt(sum8_terms(SqTerms<DiffTerms<double>>{parts(src1, src2)}, 2 * int64_t(len)));
    return StatusOk;
}
extern "C" Status tavsNormDiff_L2Sqr_16s64s_Sfs_body(const Tav16s* src1, const Tav16s* src2, int len, Tav64s* norm, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src1, src2, norm)) return st;
    *norm = l2sqr_scaled(l2sqr_exact(ints(src1, src2), len), scaleFactor);
    return StatusOk;
}
