// tavsPolarToCart_*: re = magn cos(phase), im = magn sin(phase).
#include <cmath>

#include "internal/body.h"
#include "internal/check.h"

namespace {

// ---- float --------------------------------------------------------------------------------
// One cos and one sin per element in the element's precision (cosf and sinf
// for 32f), times the magnitude.
inline void polar_one(float m, float p, float& re, float& im)
{
    re = m * std::cos(p);
    im = m * std::sin(p);
}
inline void polar_one(double m, double p, double& re, double& im)
{
    re = m * std::cos(p);
    im = m * std::sin(p);
}

template <class T> Status polar_split(const T* magn, const T* phase, T* re, T* im, int len)
{
    if (Status st = tavs::check_ptrs_len(len, magn, phase, re, im)) return st;
    for (int i = 0; i < len; ++i)
        polar_one(magn[i], phase[i], re[i], im[i]);
    return StatusOk;
}

template <class T, class C> Status polar_packed(const T* magn, const T* phase, C* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, magn, phase, dst)) return st;
    for (int i = 0; i < len; ++i) {
        T re, im;
        polar_one(magn[i], phase[i], re, im);
        dst[i].re = re;
        dst[i].im = im;
    }
    return StatusOk;
}

// ---- 16sc ---------------------------------------------------------------------------------
// Scale factors clamped to -31..31, m = 2^-magnSf and p = 2^-phaseSf in
// double; a = phase p, re = cos(a) m magn, im = magn m sin(a); 0.5 added
// above 0 (capped at 32767), subtracted otherwise (floored at -32768), then
// truncated.
inline Tav16s round_cap16(double v)
{
    if (v > 0.0) {
        v += 0.5;
        return Tav16s(v > 32767.0 ? 32767.0 : v);
    }
    v -= 0.5;
    return Tav16s(v < -32768.0 ? -32768.0 : v);
}

Status polar_16sc(const Tav16s* magn, const Tav16s* phase, Tav16sc* dst, int len, int magnSf, int phaseSf)
{
    if (Status st = tavs::check_ptrs_len(len, magn, phase, dst)) return st;
    const int ms = magnSf < -31 ? -31 : (magnSf > 31 ? 31 : magnSf);
    const int ps = phaseSf < -31 ? -31 : (phaseSf > 31 ? 31 : phaseSf);
    const double m = std::ldexp(1.0, -ms), p = std::ldexp(1.0, -ps);
    for (int i = 0; i < len; ++i) {
        const double a = double(phase[i]) * p, mg = magn[i];
        dst[i].re = round_cap16(std::cos(a) * m * mg);
        dst[i].im = round_cap16(mg * m * std::sin(a));
    }
    return StatusOk;
}

// ---- 32sc ---------------------------------------------------------------------------------
// phaseFixedPoint fraction bits (below 32); values in double, truncated
// without adding 0.5, held to the 32-bit range.
inline Tav32s trunc32(double v)
{
    if (v >= 2147483647.0) return INT32_MAX;
    if (v <= -2147483648.0) return INT32_MIN;
    return Tav32s(v);
}

Status polar_32sc(const Tav32s* magn, const Tav32s* phase, Tav32u fixedPoint, Tav32sc* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, magn, phase, dst)) return st;
    if (fixedPoint >= 32) return ErrSize;
    const double p = std::ldexp(1.0, -int(fixedPoint));
    for (int i = 0; i < len; ++i) {
        const double a = double(phase[i]) * p, mg = magn[i];
        dst[i].re = trunc32(mg * std::cos(a));
        dst[i].im = trunc32(mg * std::sin(a));
    }
    return StatusOk;
}

} // namespace

extern "C" {
Status tavsPolarToCart_32f_body(const Tav32f* magn, const Tav32f* phase, Tav32f* re, Tav32f* im, int len)
{
    return polar_split(magn, phase, re, im, len);
}
Status tavsPolarToCart_64f_body(const Tav64f* magn, const Tav64f* phase, Tav64f* re, Tav64f* im, int len)
{
    return polar_split(magn, phase, re, im, len);
}
Status tavsPolarToCart_32fc_body(const Tav32f* magn, const Tav32f* phase, Tav32fc* dst, int len)
{
    return polar_packed(magn, phase, dst, len);
}
Status tavsPolarToCart_64fc_body(const Tav64f* magn, const Tav64f* phase, Tav64fc* dst, int len)
{
    return polar_packed(magn, phase, dst, len);
}
Status tavsPolarToCart_16sc_body(const Tav16s* magn, const Tav16s* phase, Tav16sc* dst, int len, int magnSf,
                                 int phaseSf)
{
    return polar_16sc(magn, phase, dst, len, magnSf, phaseSf);
}
Status tavsPolarToCart_16sc_Sfs_body(const Tav16s* magn, const Tav16s* phase, Tav16sc* dst, int len,
                                     int magnSf, int phaseSf)
{
    return polar_16sc(magn, phase, dst, len, magnSf, phaseSf);
}
Status tavsPolarToCart_32sc_body(const Tav32s* magn, const Tav32s* phase, Tav32u fixedPoint, Tav32sc* dst,
                                 int len)
{
    return polar_32sc(magn, phase, fixedPoint, dst, len);
}
}
