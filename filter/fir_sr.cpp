#include "internal/body.h"
#include "internal/fir_convert.h"
#include "internal/fir_kernel.h"

// The SR forms: a read-only block of the reversed taps, and calls that take
// the delay in and give it out as separate arrays, oldest first, tapsLen-1
// values each. The block lies at the caller's block aligned up to 64 bytes:
// a 64-byte header, then the taps.
#include <climits>

#include "internal/check.h"
#include "internal/fir.h"

using tavs::any_null;
using namespace tavs::fir;

namespace {

struct SrSpec {
    int32_t tapsLen;
    int32_t dataType;
    void* taps;
};
static_assert(sizeof(SrSpec) <= 64);

template <class X> constexpr int type_sel()
{
    if constexpr (std::is_same_v<X, Tav32f>) return TypeSel32f;
    else if constexpr (std::is_same_v<X, Tav32fc>) return TypeSel32fc;
    else if constexpr (std::is_same_v<X, Tav64f>) return TypeSel64f;
    else return TypeSel64fc;
}

int64_t spec_bytes(int sel, int64_t n)
{
    const int64_t e = sel == TypeSel32f ? 4 : sel == TypeSel64fc ? 16 : 8;
    return ((e * n + 63) & ~int64_t(63)) + 127;
}
int64_t buf_bytes(int sel, int64_t n)
{
    switch (sel) {
    case TypeSel32f: return ((8 * n + 63) & ~int64_t(63)) + ((8 * n + 55) & ~int64_t(63)) + 32768;
    case TypeSel64f:
    case TypeSel32fc: return ((16 * n + 63) & ~int64_t(63)) + ((16 * n + 47) & ~int64_t(63)) + 32768;
    default: return ((32 * n + 63) & ~int64_t(63)) + 64 * (n / 2) + 32768;
    }
}

template <class X> const SrSpec* valid_spec(const void* p)
{
    const SrSpec* s = tavs::align64(static_cast<const SrSpec*>(p));
    const unsigned char* tapsAt = reinterpret_cast<const unsigned char*>(s) + 64;
    if (s->tapsLen < 1 || s->taps != tapsAt || s->dataType != type_sel<X>()) return nullptr;
    return s;
}

template <class X> Status sr_init(const X* taps, int n, int alg, void* spec)
{
    if (n <= 0) return ErrSize;
    if (any_null(taps, spec)) return ErrNullPtr;
    if (alg < 0 || alg > 2) return ErrAlgType;
    SrSpec* s = tavs::align64(static_cast<SrSpec*>(spec));
    X* rt = reinterpret_cast<X*>(reinterpret_cast<unsigned char*>(s) + 64);
    for (int i = 0; i < n; ++i) rt[i] = taps[n - 1 - i];
    s->tapsLen = n;
    s->dataType = type_sel<X>();
    s->taps = rt;
    return StatusOk;
}

// One call out of place: A holds the delay then the first m samples.
template <class X>
void sr_core(const X* rt, int n, const X* src, X* dst, int len, const X* dlySrc, X* dlyDst, X* A)
{
    const int d = n - 1, m = d < len ? d : len;
    if (dlySrc) copy_n(dlySrc, A, d);
    else zero_n(A, d);
    copy_n(src, A + d, m);
    correlate(rt, n, A, dst, m);
    if (len > m) correlate(rt, n, src + m - d, dst + m, len - m);
    if (dlyDst) {
        const int keep = d - len > 0 ? d - len : 0;
        move_n(A + d - keep, dlyDst, keep);
        copy_n(src + len - (d - keep), dlyDst + keep, d - keep);
    }
}

// Scratch of a call: A (2n-2 values), the running delay (n-1) and the rest
// for chunks of at most cap samples, each of `per` values.
template <class X> struct SrBuf {
    X *A, *dly, *chunk;
    int cnt;
};
template <class X> SrBuf<X> carve(Tav8u* buffer, int n, int per, int cap)
{
    const int64_t total = buf_bytes(type_sel<X>(), n);
    Tav8u* p = tavs::align64(buffer);
    const int64_t a = tavs::a16((2 * int64_t(n) - 2) * sizeof(X)), d = tavs::a16((int64_t(n) - 1) * sizeof(X));
    SrBuf<X> b;
    b.A = reinterpret_cast<X*>(p);
    b.dly = reinterpret_cast<X*>(p + a);
    b.chunk = reinterpret_cast<X*>(p + a + d);
    const int64_t room = (total - 63 - a - d) / (int64_t(sizeof(X)) * per);
    b.cnt = int(room < cap ? room : cap);
    return b;
}

// The checks of every SR call, in order: pointers, length, the block.
template <class X>
Status sr_checks(const void* spec, const void* src, const void* dst, const Tav8u* buffer, int len, const SrSpec*& s)
{
    if (any_null(spec, src, dst, buffer)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    s = valid_spec<X>(spec);
    return s ? StatusOk : ErrContextMismatch;
}

template <class X>
Status sr_run(const X* src, X* dst, int len, const void* spec, const X* dlySrc, X* dlyDst, Tav8u* buffer, int cap)
{
    const SrSpec* s = nullptr;
    if (const Status st = sr_checks<X>(spec, src, dst, buffer, len, s); st != StatusOk) return st;
    const int n = s->tapsLen;
    const X* rt = static_cast<const X*>(s->taps);
    if (src != dst && dst != dlySrc) {
        sr_core(rt, n, src, dst, len, dlySrc, dlyDst, tavs::align64(reinterpret_cast<X*>(buffer)));
        return StatusOk;
    }
    // In place: chunks through the buffer; the delay carried in its own area.
    SrBuf<X> b = carve<X>(buffer, n, 1, cap);
    if (dlySrc) copy_n(dlySrc, b.dly, n - 1);
    else zero_n(b.dly, n - 1);
    for (int p = 0; p < len; p += b.cnt) {
        const int c = len - p < b.cnt ? len - p : b.cnt;
        sr_core(rt, n, src + p, b.chunk, c, b.dly, b.dly, b.A);
        copy_n(b.chunk, dst + p, c);
    }
    if (dlyDst) copy_n(b.dly, dlyDst, n - 1);
    return StatusOk;
}

// 16s and 16sc data on a 32f or 32fc SR block: widened in chunks, filtered,
// converted out with rounding mode 1 and scale 0.
template <class X, class D>
Status sr_int(const D* src, D* dst, int len, const void* spec, const D* dlySrc, D* dlyDst, Tav8u* buffer, int cap)
{
    const SrSpec* s = nullptr;
    if (const Status st = sr_checks<X>(spec, src, dst, buffer, len, s); st != StatusOk) return st;
    const int n = s->tapsLen;
    const X* rt = static_cast<const X*>(s->taps);
    SrBuf<X> b = carve<X>(buffer, n, 2, cap);
    X* in = b.chunk;
    X* out = b.chunk + b.cnt;
    for (int i = 0; i < n - 1; ++i) b.dly[i] = dlySrc ? widen<X>(dlySrc[i]) : X{};
    for (int p = 0; p < len; p += b.cnt) {
        const int c = len - p < b.cnt ? len - p : b.cnt;
        for (int j = 0; j < c; ++j) in[j] = widen<X>(src[p + j]);
        sr_core(rt, n, in, out, c, b.dly, b.dly, b.A);
        narrow_block(out, dst + p, c, 0);
    }
    if (dlyDst) narrow_block(b.dly, dlyDst, n - 1, 0);
    return StatusOk;
}

} // namespace

extern "C" Status tavsFIRSRGetSize_body(int tapsLen, int dataType, int* pSpecSize, int* pBufSize)
{
    if (tapsLen < 1) return ErrSize;
    if (dataType != TypeSel32f && dataType != TypeSel32fc && dataType != TypeSel64f && dataType != TypeSel64fc)
        return ErrDataType;
    if (any_null(pSpecSize, pBufSize)) return ErrNullPtr;
    const int64_t sp = spec_bytes(dataType, tapsLen), bb = buf_bytes(dataType, tapsLen);
    if (sp > INT_MAX || bb > INT_MAX) return ErrSize;
    *pSpecSize = int(sp);
    *pBufSize = int(bb);
    return StatusOk;
}

#define TAVS_FIR_SR(T, X, CAP)                                                                                     \
    extern "C" Status tavsFIRSRInit_##T##_body(const X* pTaps, int tapsLen, int algSelect, FIRSRSpec_##T* pSpec) \
    {                                                                                                             \
        return sr_init<X>(pTaps, tapsLen, algSelect, pSpec);                                                      \
    }                                                                                                             \
    extern "C" Status tavsFIRSR_##T##_body(const X* pSrc, X* pDst, int len, const FIRSRSpec_##T* pSpec,          \
                                           const X* pDlySrc, X* pDlyDst, Tav8u* pBuffer)                          \
    {                                                                                                             \
        return sr_run<X>(pSrc, pDst, len, pSpec, pDlySrc, pDlyDst, pBuffer, CAP);                                 \
    }
TAVS_FIR_SR(32f, Tav32f, 8192)
TAVS_FIR_SR(32fc, Tav32fc, 4096)
TAVS_FIR_SR(64f, Tav64f, 4096)
TAVS_FIR_SR(64fc, Tav64fc, 2048)

extern "C" Status tavsFIRSR_16s_body(const Tav16s* pSrc, Tav16s* pDst, int len, const FIRSRSpec_32f* pSpec,
                                     const Tav16s* pDlySrc, Tav16s* pDlyDst, Tav8u* pBuffer)
{
    return sr_int<Tav32f>(pSrc, pDst, len, pSpec, pDlySrc, pDlyDst, pBuffer, 4096);
}
extern "C" Status tavsFIRSR_16sc_body(const Tav16sc* pSrc, Tav16sc* pDst, int len, const FIRSRSpec_32fc* pSpec,
                                      const Tav16sc* pDlySrc, Tav16sc* pDlyDst, Tav8u* pBuffer)
{
    return sr_int<Tav32fc>(pSrc, pDst, len, pSpec, pDlySrc, pDlyDst, pBuffer, 2048);
}
