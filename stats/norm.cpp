// Norms of one vector: Inf (largest magnitude), L1 (sum of magnitudes), L2
// (square root of the sum of squares) and the squared L2 of 16-bit data.
// Float forms sum in double; 16-bit forms sum exactly and scale once.
#include "internal/body.h"

#include "internal/check.h"
#include "internal/stats_extrema.h"
#include "internal/stats_norms.h"

using namespace tavs;
using namespace tavs::stats;

namespace {

template <class T> RealTerms<T> re(const T* p) { return {p}; }
template <class C> RealTerms<part_t<C>> parts(const C* p) { return {reinterpret_cast<const part_t<C>*>(p)}; }
Int16Terms ints(const Tav16s* p) { return {p, nullptr}; }

} // namespace

// ---- Inf -----------------------------------------------------------------------------
extern "C" Status tavsNorm_Inf_32f_body(const Tav32f* src, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = float(inf_terms(AbsTerms<RealTerms<float>>{re(src)}, len));
    return StatusOk;
}
extern "C" Status tavsNorm_Inf_64f_body(const Tav64f* src, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = inf_terms(AbsTerms<RealTerms<double>>{re(src)}, len);
    return StatusOk;
}
extern "C" Status tavsNorm_Inf_16s32f_body(const Tav16s* src, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    uint16_t m;
    ext::reduce<ext::AbsWide16, false, true>(src, len, nullptr, &m);
    *norm = float(m);
    return StatusOk;
}
extern "C" Status tavsNorm_Inf_16s32s_Sfs_body(const Tav16s* src, int len, Tav32s* norm, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    uint16_t m;
    ext::reduce<ext::AbsWide16, false, true>(src, len, nullptr, &m);
    *norm = scale_sum<Tav32s>(m, scaleFactor);
    return StatusOk;
}
extern "C" Status tavsNorm_Inf_32fc32f_body(const Tav32fc* src, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = float(inf_terms(MagTerms<RealTerms<float>>{parts(src)}, len));
    return StatusOk;
}
extern "C" Status tavsNorm_Inf_64fc64f_body(const Tav64fc* src, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = inf_terms(MagTerms<RealTerms<double>>{parts(src)}, len);
    return StatusOk;
}

// ---- L1 ------------------------------------------------------------------------------
extern "C" Status tavsNorm_L1_32f_body(const Tav32f* src, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = float(sum16_terms(AbsTerms<RealTerms<float>>{re(src)}, len));
    return StatusOk;
}
extern "C" Status tavsNorm_L1_64f_body(const Tav64f* src, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = sum16_terms(AbsTerms<RealTerms<double>>{re(src)}, len);
    return StatusOk;
}
extern "C" Status tavsNorm_L1_16s32f_body(const Tav16s* src, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = float(l1_exact(ints(src), len));
    return StatusOk;
}
extern "C" Status tavsNorm_L1_16s32s_Sfs_body(const Tav16s* src, int len, Tav32s* norm, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = scale_sum<Tav32s>(l1_exact(ints(src), len), scaleFactor);
    return StatusOk;
}
extern "C" Status tavsNorm_L1_16s64s_Sfs_body(const Tav16s* src, int len, Tav64s* norm, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = scale_sum<Tav64s>(l1_exact(ints(src), len), scaleFactor);
    return StatusOk;
}
extern "C" Status tavsNorm_L1_32fc64f_body(const Tav32fc* src, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = sum8_terms(MagTerms<RealTerms<float>>{parts(src)}, len);
    return StatusOk;
}
extern "C" Status tavsNorm_L1_64fc64f_body(const Tav64fc* src, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = sum8_terms(MagTerms<RealTerms<double>>{parts(src)}, len);
    return StatusOk;
}

// ---- L2 ------------------------------------------------------------------------------
extern "C" Status tavsNorm_L2_32f_body(const Tav32f* src, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = float(std::sqrt(sum8_terms(SqTerms<RealTerms<float>>{re(src)}, len)));
    return StatusOk;
}
extern "C" Status tavsNorm_L2_64f_body(const Tav64f* src, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = std::sqrt(sum8_terms(SqTerms<RealTerms<double>>{re(src)}, len));
    return StatusOk;
}
extern "C" Status tavsNorm_L2_16s32f_body(const Tav16s* src, int len, Tav32f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = float(std::sqrt(double(l2sqr_exact(ints(src), len))));
    return StatusOk;
}
extern "C" Status tavsNorm_L2_16s32s_Sfs_body(const Tav16s* src, int len, Tav32s* norm, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = l2_scaled(l2sqr_exact(ints(src), len), scaleFactor);
    return StatusOk;
}
// Complex L2: the sum of squares of the parts, taken as one real vector of
// 2 len elements.
extern "C" Status tavsNorm_L2_32fc64f_body(const Tav32fc* src, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = std::sqrt(sum8_terms(SqTerms<RealTerms<float>>{parts(src)}, 2 * int64_t(len)));
    return StatusOk;
}
extern "C" Status tavsNorm_L2_64fc64f_body(const Tav64fc* src, int len, Tav64f* norm)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = std::sqrt(sum8_terms(SqTerms<RealTerms<double>>{parts(src)}, 2 * int64_t(len)));
    return StatusOk;
}
extern "C" Status tavsNorm_L2Sqr_16s64s_Sfs_body(const Tav16s* src, int len, Tav64s* norm, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, norm)) return st;
    *norm = l2sqr_scaled(l2sqr_exact(ints(src), len), scaleFactor);
    return StatusOk;
}
