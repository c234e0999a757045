// tavsPhase_* (atan2(im, re)) and tavsCartToPolar_* (magnitude, then phase).
#include <cmath>

#include "internal/body.h"
#include "internal/math_common.h"
#include "internal/math_pairs.h"
#include "internal/movers.h"

namespace {

using namespace tavs::math;

// ---- float results ------------------------------------------------------------------------
// atan2 evaluated inline in double and rounded to float. With ZeroTest a
// pair of exact zeros (of either sign) gives +0 without evaluation.
template <bool ZeroTest, class Pairs> Status phase_to32f(Pairs src, Tav32f* dst, int len)
{
    if (Status st = src.check(len, dst)) return st;
    MathFpScope scope;
    for (int i = 0; i < len; ++i) {
        const float re = float(src.r(i)), im = float(src.m(i));
        dst[i] = (ZeroTest && re == 0.0f && im == 0.0f) ? 0.0f : float(atan2_for_float(im, re));
    }
    return StatusOk;
}

// 32fc: chunks of 128 are split into real and imaginary parts, then the
// batched atan2 runs over the parts; no zero-pair test in this form.
constexpr int kPhaseChunk = 128;

Status phase_32fc(const Tav32fc* src, Tav32f* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    MathFpScope scope;
    float re[kPhaseChunk], im[kPhaseChunk];
    for (int base = 0; base < len; base += kPhaseChunk) {
        const int n = len - base < kPhaseChunk ? len - base : kPhaseChunk;
        for (int k = 0; k < n; ++k) {
            re[k] = src[base + k].re;
            im[k] = src[base + k].im;
        }
        for (int k = 0; k < n; ++k)
            dst[base + k] = float(atan2_for_float(im[k], re[k]));
    }
    return StatusOk;
}

// 64f and 64fc: the math library's atan2 after the zero-pair test (its
// atan2 would give pi for a negative zero real part).
template <class Pairs> Status phase_64f(Pairs src, Tav64f* dst, int len)
{
    if (Status st = src.check(len, dst)) return st;
    for (int i = 0; i < len; ++i) {
        const double re = src.r(i), im = src.m(i);
        dst[i] = (re == 0.0 && im == 0.0) ? 0.0 : std::atan2(im, re);
    }
    return StatusOk;
}

// ---- fixed point ----------------------------------------------------------------------------
// sf above 1: zeros, no arithmetic (the range of atan2 is rounded away).
// Otherwise s = 2^-sf as a float; atan2 in double rounded to float, times s,
// 0.5 added (subtracted below 0), clamped to the destination's range in
// float, truncated. A zero angle stays 0 whatever the scale.
template <class D> inline D phase_fixed_one(double re, double im, float s)
{
    const float a = float(std::atan2(im, re));
    float v = a == 0.0f ? 0.0f : a * s;
    v = v >= 0.0f ? v + 0.5f : v - 0.5f;
    if constexpr (sizeof(D) == 2) {
        v = v > 32767.0f ? 32767.0f : (v < -32768.0f ? -32768.0f : v);
        return D(v);
    } else {
        if (v >= 2147483648.0f) return INT32_MAX;
        if (v <= -2147483648.0f) return INT32_MIN;
        return D(v);
    }
}

template <class Pairs, class D> Status phase_fixed(Pairs src, D* dst, int len, int sf)
{
    if (Status st = src.check(len, dst)) return st;
    if (sf > 1) return tavs::zero_fill(dst, len);
    const float s = float(std::pow(2.0, -double(sf)));
    for (int i = 0; i < len; ++i)
        dst[i] = phase_fixed_one<D>(src.r(i), src.m(i), s);
    return StatusOk;
}

// ---- Cartesian to polar ----------------------------------------------------------------------
// The Magnitude body, then the Phase body of the same types; the first
// non-zero status wins. Every pointer and the length are tested first, so
// an error leaves both destinations untouched.
inline Status first_of(Status a, Status b) { return a != StatusOk ? a : b; }

} // namespace

extern "C" {
Status tavsPhase_32f_body(const Tav32f* re, const Tav32f* im, Tav32f* dst, int len)
{
    return phase_to32f<true>(pairs(re, im), dst, len);
}
Status tavsPhase_64f_body(const Tav64f* re, const Tav64f* im, Tav64f* dst, int len)
{
    return phase_64f(pairs(re, im), dst, len);
}
Status tavsPhase_16s_Sfs_body(const Tav16s* re, const Tav16s* im, Tav16s* dst, int len, int sf)
{
    return phase_fixed(pairs(re, im), dst, len, sf);
}
Status tavsPhase_16s32f_body(const Tav16s* re, const Tav16s* im, Tav32f* dst, int len)
{
    return phase_to32f<true>(pairs(re, im), dst, len);
}
Status tavsPhase_32fc_body(const Tav32fc* src, Tav32f* dst, int len) { return phase_32fc(src, dst, len); }
Status tavsPhase_64fc_body(const Tav64fc* src, Tav64f* dst, int len)
{
    return phase_64f(pairs(src), dst, len);
}
Status tavsPhase_16sc_Sfs_body(const Tav16sc* src, Tav16s* dst, int len, int sf)
{
    return phase_fixed(pairs(src), dst, len, sf);
}
Status tavsPhase_16sc32f_body(const Tav16sc* src, Tav32f* dst, int len)
{
    return phase_to32f<false>(pairs(src), dst, len);
}
Status tavsPhase_32sc_Sfs_body(const Tav32sc* src, Tav32s* dst, int len, int sf)
{
    return phase_fixed(pairs(src), dst, len, sf);
}

Status tavsCartToPolar_32f_body(const Tav32f* re, const Tav32f* im, Tav32f* magn, Tav32f* phase, int len)
{
    if (Status st = tavs::check_ptrs_len(len, re, im, magn, phase)) return st;
    const Status magnSt = tavsMagnitude_32f_body(re, im, magn, len);
    return first_of(magnSt, tavsPhase_32f_body(re, im, phase, len));
}
Status tavsCartToPolar_64f_body(const Tav64f* re, const Tav64f* im, Tav64f* magn, Tav64f* phase, int len)
{
    if (Status st = tavs::check_ptrs_len(len, re, im, magn, phase)) return st;
    const Status magnSt = tavsMagnitude_64f_body(re, im, magn, len);
    return first_of(magnSt, tavsPhase_64f_body(re, im, phase, len));
}
Status tavsCartToPolar_32fc_body(const Tav32fc* src, Tav32f* magn, Tav32f* phase, int len)
{
    if (Status st = tavs::check_ptrs_len(len, src, magn, phase)) return st;
    const Status magnSt = tavsMagnitude_32fc_body(src, magn, len);
    return first_of(magnSt, tavsPhase_32fc_body(src, phase, len));
}
Status tavsCartToPolar_64fc_body(const Tav64fc* src, Tav64f* magn, Tav64f* phase, int len)
{
    if (Status st = tavs::check_ptrs_len(len, src, magn, phase)) return st;
    const Status magnSt = tavsMagnitude_64fc_body(src, magn, len);
    return first_of(magnSt, tavsPhase_64fc_body(src, phase, len));
}
Status tavsCartToPolar_16sc_Sfs_body(const Tav16sc* src, Tav16s* magn, Tav16s* phase, int len, int magnSf,
                                     int phaseSf)
{
    if (Status st = tavs::check_ptrs_len(len, src, magn, phase)) return st;
    const Status magnSt = tavsMagnitude_16sc_Sfs_body(src, magn, len, magnSf);
    return first_of(magnSt, tavsPhase_16sc_Sfs_body(src, phase, len, phaseSf));
}
}
