// 24-bit conversions: three little-endian bytes per element, widened to 32-bit
// integers or to 32f (the integer value, not a fraction of full scale), and
// narrowed from 32-bit integers and 32f with a scale.
#include <climits>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/convert.h"
#include "internal/fixed.h"

using namespace tavs;
using namespace tavs::cvt;

namespace {

template <class D, class Read> Status widen24(const Tav8u* src, D* dst, int len, Read read)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    for (size_t i = 0; i < size_t(len); ++i)
        st<D>(dst, i, D(read(src, i)));
    return StatusOk;
}

// Integer to 24 bits: both shift counts clamped at 31, ties to even.
template <class Tag, class S> Status int_to_24(const S* src, Tav8u* dst, int len, int scaleFactor)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    for (size_t i = 0; i < size_t(len); ++i)
        write24(dst, i, scale_narrow<Tag>(int64_t(ld<S>(src, i)), scaleFactor, 31, 31, RoundHalfEven));
    return StatusOk;
}

// 32f to 24 bits: at scale 0 the element itself, otherwise its 32f product
// with a factor written straight into the exponent field of 1.0f (the scale
// clamped to -126..127, so 127 gives a zero factor), widened to 64f. Limited,
// then rounded to nearest with the tie found by comparing the fraction, so
// the caller's rounding direction plays no part after the multiply.
template <class Tag> Status f32_to_24(const Tav32f* src, Tav8u* dst, int len, int scaleFactor)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    const double lo = double(Limits<Tag>::min), hi = double(Limits<Tag>::max);
    const int s = scaleFactor < -126 ? -126 : (scaleFactor > 127 ? 127 : scaleFactor);
    const float factor = [&] {
        const uint32_t bits = uint32_t(127 - s) << 23;
        float f;
        std::memcpy(&f, &bits, 4);
        return f;
    }();
    for (size_t i = 0; i < size_t(len); ++i) {
        float x = ld<Tav32f>(src, i);
        if (scaleFactor != 0) x *= factor;
        const double d = limit(double(x), lo, hi);
        const int64_t t = cvt_rtz(d);
        const double frac = d - double(t);
        int64_t r = t;
        if (frac > 0.5 || (frac == 0.5 && (t & 1) != 0))
            r = t + 1;
        else if (frac < -0.5 || (frac == -0.5 && (t & 1) != 0))
            r = t - 1;
        write24(dst, i, r);
    }
    return StatusOk;
}

} // namespace

extern "C" {

Status tavsConvert_24s32s_body(const Tav8u* src, Tav32s* dst, int len)
{
    return widen24(src, dst, len, read24s);
}
Status tavsConvert_24u32u_body(const Tav8u* src, Tav32u* dst, int len)
{
    return widen24(src, dst, len, read24);
}
Status tavsConvert_24s32f_body(const Tav8u* src, Tav32f* dst, int len)
{
    return widen24(src, dst, len, read24s);
}
Status tavsConvert_24u32f_body(const Tav8u* src, Tav32f* dst, int len)
{
    return widen24(src, dst, len, read24);
}

Status tavsConvert_32s24s_Sfs_body(const Tav32s* src, Tav8u* dst, int len, int scaleFactor)
{
    return int_to_24<Int24s>(src, dst, len, scaleFactor);
}
Status tavsConvert_32u24u_Sfs_body(const Tav32u* src, Tav8u* dst, int len, int scaleFactor)
{
    return int_to_24<Int24u>(src, dst, len, scaleFactor);
}
Status tavsConvert_32f24s_Sfs_body(const Tav32f* src, Tav8u* dst, int len, int scaleFactor)
{
    return f32_to_24<Int24s>(src, dst, len, scaleFactor);
}
Status tavsConvert_32f24u_Sfs_body(const Tav32f* src, Tav8u* dst, int len, int scaleFactor)
{
    return f32_to_24<Int24u>(src, dst, len, scaleFactor);
}

} // extern "C"
