// Interleaving of -1..1 float channels into full-scale 16-bit or 24-bit
// integers (element i of channel c at i * nChannels + c) and the way back.
#include "internal/body.h"
#include "internal/check.h"
#include "internal/convert.h"

using namespace tavs;
using namespace tavs::cvt;

namespace {

// Sizes before the channel array: the interleaved vector is checked first,
// then both counts, then the array and each of its pointers.
template <class V, class C> Status check_channels(const V* vec, C* const* chans, int nChannels, int chanLen)
{
    if (vec == nullptr) return ErrNullPtr;
    if (nChannels < 1 || chanLen < 1) return ErrSize;
    if (chans == nullptr) return ErrNullPtr;
    for (int c = 0; c < nChannels; ++c)
        if (chans[c] == nullptr) return ErrNullPtr;
    return StatusOk;
}

// Nearest with ties to even: +-0.5 by the sign and truncation, then a value
// whose fraction was exactly one half moves back to the even neighbour.
template <class F> inline int64_t round_even_by_half(F y)
{
    const bool neg = y < F(0);
    int64_t r = cvt_rtz(y + (neg ? F(-0.5) : F(0.5)));
    const F frac = y - F(cvt_rtz(y));
    if ((frac == F(0.5) || frac == F(-0.5)) && (r & 1) != 0) r += neg ? 1 : -1;
    return r;
}

// x above 1.0 stores the maximum, below -1.0 the minimum; otherwise
// (max + 0.5) * x - 0.5 in F, rounded to nearest even.
template <class F> inline int64_t join_sample(float x, F scale, int64_t lo, int64_t hi)
{
    if (x > 1.0f) return hi;
    if (x < -1.0f) return lo;
    return round_even_by_half(scale * F(x) - F(0.5));
}

} // namespace

extern "C" {

Status tavsJoinScaled_32f16s_D2L_body(const Tav32f* const* srcChannels, int nChannels, int chanLen,
                                      Tav16s* dst)
{
    if (Status chk = check_channels(dst, srcChannels, nChannels, chanLen); chk != StatusOk) return chk;
    const size_t nc = size_t(nChannels);
    for (size_t c = 0; c < nc; ++c)
        for (size_t i = 0; i < size_t(chanLen); ++i)
            st<Tav16s>(dst, i * nc + c,
                       Tav16s(join_sample(ld<Tav32f>(srcChannels[c], i), 32767.5f, -32768, 32767)));
    return StatusOk;
}

Status tavsJoinScaled_32f24s_D2L_body(const Tav32f* const* srcChannels, int nChannels, int chanLen,
                                      Tav8u* dst)
{
    if (Status chk = check_channels(dst, srcChannels, nChannels, chanLen); chk != StatusOk) return chk;
    const size_t nc = size_t(nChannels);
    for (size_t c = 0; c < nc; ++c)
        for (size_t i = 0; i < size_t(chanLen); ++i)
            write24(dst, i * nc + c,
                    join_sample(ld<Tav32f>(srcChannels[c], i), 8388607.5, -8388608, 8388607));
    return StatusOk;
}

// x * 2/(2^16 - 1) + 1/(2^16 - 1) in 32f.
Status tavsSplitScaled_16s32f_D2L_body(const Tav16s* src, Tav32f* const* dstChannels, int nChannels,
                                       int chanLen)
{
    if (Status chk = check_channels(src, dstChannels, nChannels, chanLen); chk != StatusOk) return chk;
    const size_t nc = size_t(nChannels);
    for (size_t c = 0; c < nc; ++c)
        for (size_t i = 0; i < size_t(chanLen); ++i)
            st<Tav32f>(dstChannels[c], i, float(ld<Tav16s>(src, i * nc + c)) * 3.0518044e-5f + 1.5259022e-5f);
    return StatusOk;
}

// x * 2/(2^24 - 1) + 1/(2^24 - 1) in 64f, rounded once to 32f.
Status tavsSplitScaled_24s32f_D2L_body(const Tav8u* src, Tav32f* const* dstChannels, int nChannels,
                                       int chanLen)
{
    if (Status chk = check_channels(src, dstChannels, nChannels, chanLen); chk != StatusOk) return chk;
    const size_t nc = size_t(nChannels);
    for (size_t c = 0; c < nc; ++c)
        for (size_t i = 0; i < size_t(chanLen); ++i)
            st<Tav32f>(dstChannels[c], i,
                       float(double(read24s(src, i * nc + c)) * 1.19209296656209e-07 + 5.96046483281045e-08));
    return StatusOk;
}

} // extern "C"
