// The stateless 16-bit direct forms. Taps are 16s lists whose a0 slot holds
// a shift s (the taps and the 32s delay values stand for multiples of
// 2^-s); the caller owns the delay line.
//
// Block forms run through a temporary record of 32f taps over 16s data:
// taps and delay scaled by 2^-s in 32f, the 32f_16s kernel at scale 0, and
// the delay scaled back by 2^s, rounded half away from zero to 32s. The
// one-sample forms run in wrapped 32-bit integers.
#include "internal/body.h"

#include <cmath>

#include "internal/convert.h"
#include "internal/fixed.h"
#include "internal/iir_state.h"

using namespace tavs::iir;
using tavs::wrap_add32;
using tavs::wrap_mul32;
using tavs::wrap_sub32;

namespace {

// A delay value of the 32f record back in the caller's 32s units: times
// 2^shift (exact in 64f), rounded half away from zero, saturated. A NaN
// delay (from NaN data) stores 0.
int32_t delay_back(float d, int shift)
{
    const double v = std::ldexp(double(d), shift);
    if (v != v) return 0;
    if (v >= 2147483647.0) return INT32_MAX;
    if (v <= -2147483648.0) return INT32_MIN;
    return tavs::cvt::cvt_rha_add(v);
}

// The rounding of the one-sample forms, as the integer unit computes it:
// (t + ((t >> s) & 1) + 2^((s+31) mod 32) - 1) >> s, wrapped, shift counts
// taken modulo 32. Ties to even for s >= 1; at s = 0 the constant is 2^31.
int32_t round_shift(int32_t t, int s)
{
    const int sh = s & 31;
    const uint32_t c = uint32_t(1) << ((sh + 31) & 31);
    const uint32_t sum = uint32_t(t) + (uint32_t(t >> sh) & 1u) + c - 1u;
    return int32_t(sum) >> sh;
}

// One sample through the arbitrary-order integer filter; returns the
// unsaturated output.
int32_t direct_step(int32_t x, const Tav16s* taps, int n, Tav32s* d)
{
    const Tav16s* b = taps;
    const Tav16s* a = taps + n + 1; // a[0] is the shift
    const int32_t t = wrap_add32(wrap_mul32(b[0], x), d[0]);
    const int32_t y = round_shift(t, a[0]);
    for (int i = 0; i <= n - 2; ++i)
        d[i] = wrap_add32(wrap_sub32(wrap_mul32(b[i + 1], x), wrap_mul32(a[i + 1], y)), d[i + 1]);
    d[n - 1] = wrap_sub32(wrap_mul32(b[n], x), wrap_mul32(a[n], y));
    return y;
}

// One sample through the integer biquad cascade: each section rounds with
// its own shift and hands its unsaturated output to the next.
int32_t biquad_step(int32_t x, const Tav16s* taps, int m, Tav32s* d)
{
    for (int k = 0; k < m; ++k) {
        const Tav16s* c = taps + 6 * k;
        Tav32s* s = d + 2 * k;
        const int32_t y = round_shift(wrap_add32(wrap_mul32(c[0], x), s[0]), c[3]);
        s[0] = wrap_add32(wrap_sub32(wrap_mul32(c[1], x), wrap_mul32(c[4], y)), s[1]);
        s[1] = wrap_sub32(wrap_mul32(c[2], x), wrap_mul32(c[5], y));
        x = y;
    }
    return x;
}

// A block for the temporary record with room behind it for the scaled taps
// and delay; null when the size passes the 32-bit range or memory is short.
Tav8u* temp_block(Layout l, int n, int64_t extraFloats)
{
    const int64_t bytes = state_bytes(Cls::F32, l, n) + 4 * extraFloats;
    if (bytes > INT32_MAX) return nullptr;
    return static_cast<Tav8u*>(tavs::alloc_bytes(int(bytes)));
}

} // namespace

extern "C" {

Status tavsIIR_Direct_16s_body(const Tav16s* pSrc, Tav16s* pDst, int len, const Tav16s* pTaps, int order,
                               Tav32s* pDlyLine)
{
    if (order < 1) return ErrFilterOrder;
    if (tavs::any_null(pSrc, pDst, pTaps, pDlyLine)) return ErrNullPtr;
    const int n = order;
    const int shift = pTaps[int64_t(n) + 1];
    if (shift < 0) return ErrBadState;
    if (len < 1) return ErrSize;
    Tav8u* blk = temp_block(Layout::Arb, n, 3 * int64_t(n) + 2);
    if (!blk) return ErrMemAlloc;

    float* taps = reinterpret_cast<float*>(blk + state_bytes(Cls::F32, Layout::Arb, n));
    float* dly = taps + 2 * n + 2;
    const float f = tavs::cvt::pow2_neg<float>(shift);
    for (int i = 0; i <= 2 * n + 1; ++i)
        taps[i] = float(pTaps[i]) * f;
    taps[n + 1] = 1.0f; // the shift, scaled, is an a0 of 1
    for (int i = 0; i < n; ++i)
        dly[i] = float(pDlyLine[i]) * f;

    IIRState32f_16s* rec = nullptr;
    Status s = tavsIIRInit32f_16s_body(&rec, taps, n, dly, blk);
    if (s == StatusOk) s = tavsIIR32f_16s_Sfs_body(pSrc, pDst, len, rec, 0);
    if (s == StatusOk) s = tavsIIRGetDlyLine32f_16s_body(rec, dly);
    if (s == StatusOk)
        for (int i = 0; i < n; ++i)
            pDlyLine[i] = delay_back(dly[i], shift);
    tavsFree_body(blk);
    return s;
}

Status tavsIIR_Direct_16s_I_body(Tav16s* pSrcDst, int len, const Tav16s* pTaps, int order, Tav32s* pDlyLine)
{
    return tavsIIR_Direct_16s_body(pSrcDst, pSrcDst, len, pTaps, order, pDlyLine);
}

Status tavsIIR_BiQuadDirect_16s_body(const Tav16s* pSrc, Tav16s* pDst, int len, const Tav16s* pTaps,
                                     int numBq, Tav32s* pDlyLine)
{
    if (numBq < 1) return ErrFilterOrder;
    if (tavs::any_null(pSrc, pDst, pTaps, pDlyLine)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    const int m = numBq;
    Tav8u* blk = temp_block(Layout::Bq, m, 8 * int64_t(m));
    if (!blk) return ErrMemAlloc;

    float* taps = reinterpret_cast<float*>(blk + state_bytes(Cls::F32, Layout::Bq, m));
    float* dly = taps + 6 * m;
    for (int k = 0; k < m; ++k) {
        const int shift = pTaps[6 * k + 3];
        if (shift < 0) {
            tavsFree_body(blk);
            return ErrBadState;
        }
        const float f = tavs::cvt::pow2_neg<float>(shift);
        for (int j = 0; j < 6; ++j)
            taps[6 * k + j] = j == 3 ? 1.0f : float(pTaps[6 * k + j]) * f;
        dly[2 * k] = float(pDlyLine[2 * k]) * f;
        dly[2 * k + 1] = float(pDlyLine[2 * k + 1]) * f;
    }

    // The record's tap step refuses a section whose scaled b0 is zero.
    IIRState32f_16s* rec = nullptr;
    Status s = tavsIIRInit32f_BiQuad_16s_body(&rec, taps, m, dly, blk);
    if (s == StatusOk) s = tavsIIR32f_16s_Sfs_body(pSrc, pDst, len, rec, 0);
    if (s == StatusOk) s = tavsIIRGetDlyLine32f_16s_body(rec, dly);
    if (s == StatusOk)
        for (int i = 0; i < 2 * m; ++i)
            pDlyLine[i] = delay_back(dly[i], pTaps[6 * (i / 2) + 3]);
    tavsFree_body(blk);
    return s;
}

Status tavsIIR_BiQuadDirect_16s_I_body(Tav16s* pSrcDst, int len, const Tav16s* pTaps, int numBq,
                                       Tav32s* pDlyLine)
{
    return tavsIIR_BiQuadDirect_16s_body(pSrcDst, pSrcDst, len, pTaps, numBq, pDlyLine);
}

Status tavsIIROne_Direct_16s_body(Tav16s src, Tav16s* pDstVal, const Tav16s* pTaps, int order,
                                  Tav32s* pDlyLine)
{
    if (order < 1) return ErrFilterOrder;
    if (tavs::any_null(pDstVal, pTaps, pDlyLine)) return ErrNullPtr;
    if (pTaps[int64_t(order) + 1] < 0) return ErrBadState;
    *pDstVal = tavs::sat<Tav16s>(direct_step(src, pTaps, order, pDlyLine));
    return StatusOk;
}

Status tavsIIROne_Direct_16s_I_body(Tav16s* pSrcDst, const Tav16s* pTaps, int order, Tav32s* pDlyLine)
{
    if (order < 1) return ErrFilterOrder;
    if (!pSrcDst) return ErrNullPtr;
    return tavsIIROne_Direct_16s_body(*pSrcDst, pSrcDst, pTaps, order, pDlyLine);
}

Status tavsIIROne_BiQuadDirect_16s_body(Tav16s src, Tav16s* pDstVal, const Tav16s* pTaps, int numBq,
                                        Tav32s* pDlyLine)
{
    if (numBq < 1) return ErrFilterOrder;
    if (tavs::any_null(pDstVal, pTaps, pDlyLine)) return ErrNullPtr;
    for (int k = 0; k < numBq; ++k)
        if (pTaps[6 * int64_t(k) + 3] < 0) return ErrBadState;
    *pDstVal = tavs::sat<Tav16s>(biquad_step(src, pTaps, numBq, pDlyLine));
    return StatusOk;
}

Status tavsIIROne_BiQuadDirect_16s_I_body(Tav16s* pSrcDst, const Tav16s* pTaps, int numBq, Tav32s* pDlyLine)
{
    if (numBq < 1) return ErrFilterOrder;
    if (!pSrcDst) return ErrNullPtr;
    return tavsIIROne_BiQuadDirect_16s_body(*pSrcDst, pSrcDst, pTaps, numBq, pDlyLine);
}

} // extern "C"
