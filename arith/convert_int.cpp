// Integer narrowing: plain saturation and the scaled forms. A left scale
// saturates the exact shifted value (the count clamped where the family says,
// which changes no result); a right scale rounds after the shift with the
// count clamped, so large factors keep rounding the largest magnitudes to +-1
// instead of reaching zero.
#include "internal/body.h"
#include "internal/check.h"
#include "internal/convert.h"
#include "internal/fixed.h"
#include "internal/movers.h"

using namespace tavs;
using namespace tavs::cvt;

namespace {

// Shift counts past which 16s to 8s has a fixed answer: from 18 every result
// is zero, from -7 every non-zero element saturates by its sign.
constexpr ScaleLimits k16s8sLimits{18, -7};

} // namespace

extern "C" {

Status tavsConvert_32s16s_body(const Tav32s* src, Tav16s* dst, int len)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    drive<8>(
        dst, size_t(len), 8, [&](size_t i) { st<Tav16s>(dst, i, sat<Tav16s>(ld<Tav32s>(src, i))); },
        [&](size_t i) {
            __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + i));
            __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + i + 4));
            _mm_store_si128(reinterpret_cast<__m128i*>(dst + i), _mm_packs_epi32(a, b));
        });
    return StatusOk;
}

Status tavsConvert_32s16s_Sfs_body(const Tav32s* src, Tav16s* dst, int len, int scaleFactor)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    for (size_t i = 0; i < size_t(len); ++i)
        st<Tav16s>(dst, i,
                   Tav16s(scale_narrow<Tav16s>(ld<Tav32s>(src, i), scaleFactor, 15, 31, RoundHalfEven)));
    return StatusOk;
}

// len is an unsigned count here: only 0 is rejected.
Status tavsConvert_16s8s_Sfs_body(const Tav16s* src, Tav8s* dst, int len, int rndMode, int scaleFactor)
{
    if (Status chk = check_ptrs_ulen(len, src, dst); chk != StatusOk) return chk;
    const size_t n = uint32_t(len);
    switch (scale_path(scaleFactor, k16s8sLimits)) {
    case ScalePath::Zero:
        if (len > 0) return zero_fill(dst, len);
        for (size_t i = 0; i < n; ++i)
            st<Tav8s>(dst, i, 0);
        return StatusOk;
    case ScalePath::SignOnly:
        for (size_t i = 0; i < n; ++i)
            st<Tav8s>(dst, i, sign_sat<Tav8s>(ld<Tav16s>(src, i)));
        return StatusOk;
    case ScalePath::Shift:
        for (size_t i = 0; i < n; ++i)
            st<Tav8s>(dst, i, Tav8s(scale_narrow<Tav8s>(ld<Tav16s>(src, i), scaleFactor, 6, 17, rndMode)));
        return StatusOk;
    }
    return StatusOk;
}

Status tavsConvert_64s32s_Sfs_body(const Tav64s* src, Tav32s* dst, int len, int rndMode, int scaleFactor)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    for (size_t i = 0; i < size_t(len); ++i)
        st<Tav32s>(dst, i, Tav32s(scale_narrow<Tav32s>(ld<Tav64s>(src, i), scaleFactor, 31, 63, rndMode)));
    return StatusOk;
}

} // extern "C"
