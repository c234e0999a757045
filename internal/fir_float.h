// Life and paths of the floating FIR records, one template over the record's
// element X (32f, 32fc, 64f, 64fc) and the caller's data type D: size,
// Init, taps and delay copies, the direct block path, overlap-save through
// the FFT, the in-place chunking, the converting records, one sample.
#pragma once

#include <climits>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/fir.h"
#include "internal/fir_convert.h"
#include "internal/fir_fft.h"
#include "internal/fir_kernel.h"
#include "internal/memory.h"

namespace tavs::fir {

// The FFT sizes a record of n taps prepares; zeros when n is below the
// kind's limit or the FFT family refuses the order.
template <class X> FftSizes fft_sizes(int n)
{
    FftSizes f;
    if (n < fft_from(cls_of<X>())) return f;
    const int order = fft_order(n);
    int s1 = 0, s2 = 0, s3 = 0;
    if (FftOps<X>::get_size(order, &s1, &s2, &s3) != StatusOk) return f;
    f.order = order;
    f.L = int64_t(1) << order;
    f.s1 = s1;
    f.s2 = s2;
    f.s3 = s3;
    return f;
}

// Bytes of a record; withFft false for the "FI21" record of 32s taps.
template <class X> int64_t state_bytes(int n, bool withFft)
{
    if (!withFft) return f64_32s_state_bytes(n);
    return float_state_bytes(cls_of<X>(), n, fft_sizes<X>(n));
}

template <class X> Status get_state_size(int n, int* size, bool withFft = true)
{
    if (size == nullptr) return ErrNullPtr;
    if (n < 1) return ErrFilterLen;
    const int64_t b = state_bytes<X>(n, withFft);
    if (b > INT_MAX) return ErrFilterLen;
    *size = int(b);
    return StatusOk;
}

template <class X> inline X* taps_of(const State* s) { return static_cast<X*>(s->taps); }
template <class X> inline X* dly_of(const State* s) { return static_cast<X*>(s->dlyLine); }

// Caller taps (natural order) into the transform buffer, zero-padded to
// fftLen, and transformed in place.
template <class X> Status transform_taps(State* s, int L)
{
    X* ft = static_cast<X*>(s->fftTaps);
    const X* rt = taps_of<X>(s);
    const int n = s->tapsLen;
    for (int i = 0; i < n; ++i) ft[i] = rt[n - 1 - i];
    zero_n(ft + n, L - n);
    return FftOps<X>::fwd(ft, ft, s->fftSpec, static_cast<Tav8u*>(s->fftBuf));
}

template <class X, class D> void store_dly(State* s, const D* dly)
{
    X* d = dly_of<X>(s);
    const int n = s->dlyLen;
    if (dly == nullptr) {
        zero_n(d, n);
    } else {
        for (int i = 0; i < n; ++i) d[i] = widen<X>(dly[n - 1 - i]);
    }
    s->dlyIndex = 0;
}

// Lays the record in buf. Checks: state, taps, buffer, then tapsLen.
template <class X, class D, class TapIn>
Status init_float(State** pp, const TapIn* taps, int n, const D* dly, Tav8u* buf, int32_t tagv, bool withFft = true)
{
    if (any_null(pp, taps, buf)) return ErrNullPtr;
    if (n < 1) return ErrFilterLen;
    if (state_bytes<X>(n, withFft) > INT_MAX) return ErrFilterLen;
    const FftSizes f = withFft ? fft_sizes<X>(n) : FftSizes{};
    Bump b(buf);
    State* s = b.take<State>(sizeof(State));
    std::memset(static_cast<void*>(s), 0, sizeof(State));
    s->taps = b.take<X>(int64_t(n) * sizeof(X));
    s->dlyLine = b.take<X>((3 * int64_t(n) + 4) * sizeof(X));
    Tav8u *specBlock = nullptr, *initBuf = nullptr;
    if (f.L > 0) {
        s->fftTaps = b.take<X>(f.L * sizeof(X));
        s->fftWork = b.take<X>(f.L * sizeof(X));
        specBlock = b.take<Tav8u>(f.s1);
        initBuf = f.s2 > 0 ? b.take<Tav8u>(f.s2) : nullptr;
        s->fftBuf = f.s3 > 0 ? b.take<Tav8u>(f.s3) : nullptr;
        s->fftBufSize = int32_t(f.s3);
    }
    s->inPlaceBuf = b.take<X>(4096 * int64_t(sizeof(X)));
    s->tapsLen = n;
    s->dlyLen = n;
    s->blockLimit = block_limit(cls_of<X>(), n);
    s->upFactor = s->downFactor = 1;
    s->fftLen = -1;
    X* rt = taps_of<X>(s);
    for (int i = 0; i < n; ++i) rt[i] = widen<X>(taps[n - 1 - i]);
    store_dly<X>(s, dly);
    if (f.L > 0) {
        void* spec = nullptr;
        if (FftOps<X>::init(&spec, f.order, specBlock, initBuf) == StatusOk) {
            s->fftSpec = spec;
            if (transform_taps<X>(s, int(f.L)) == StatusOk) s->fftLen = int32_t(f.L);
        } else {
            // The filter runs direct.
            s->fftTaps = nullptr;
            s->fftBuf = nullptr;
            s->fftBufSize = 0;
        }
    }
    s->tag = tagv;
    *pp = s;
    return StatusOk;
}

// InitAlloc: sizes the block, allocates it, runs Init, marks it allocated.
template <class Size, class Init> Status init_alloc(State** pp, Size size_of, Init init)
{
    if (pp == nullptr) return ErrNullPtr;
    int bytes = 0;
    const Status st = size_of(&bytes);
    if (st != StatusOk) return st;
    Tav8u* block = static_cast<Tav8u*>(alloc_bytes(bytes));
    if (block == nullptr) return ErrMemAlloc;
    State* s = nullptr;
    const Status si = init(&s, block);
    if (si != StatusOk) {
        tavsFree_body(block);
        return si;
    }
    s->isAllocated = 1;
    *pp = s;
    return StatusOk;
}

template <class X> Status free_float(State* s, int32_t t1, int32_t t2, int32_t t3 = 0, int32_t t4 = 0)
{
    if (s == nullptr) return ErrNullPtr;
    const int32_t t = s->tag;
    if (t == 0 || (t != t1 && t != t2 && t != t3 && t != t4)) return ErrContextMismatch;
    if (!s->isAllocated) return StatusOk;
    if (s->fftSpec != nullptr) FftOps<X>::free(s->fftSpec);
    s->tag = 0;
    tavsFree_body(s);
    return StatusOk;
}

inline bool tag_is(const State* s, int32_t a, int32_t b = 0) { return s->tag == a || (b != 0 && s->tag == b); }

template <class X, class TapOut> Status get_taps(const State* s, TapOut* taps, int32_t sr)
{
    if (any_null(s, taps)) return ErrNullPtr;
    if (!tag_is(s, sr)) return ErrContextMismatch;
    const X* rt = taps_of<X>(s);
    const int n = s->tapsLen;
    for (int i = 0; i < n; ++i) taps[i] = narrow_tap<TapOut>(rt[n - 1 - i]);
    return StatusOk;
}

template <class X, class TapIn> Status set_taps(State* s, const TapIn* taps, int32_t sr)
{
    if (any_null(taps, s)) return ErrNullPtr;
    if (!tag_is(s, sr)) return ErrContextMismatch;
    X* rt = taps_of<X>(s);
    const int n = s->tapsLen;
    for (int i = 0; i < n; ++i) rt[i] = widen<X>(taps[n - 1 - i]);
    if (n >= fft_from(cls_of<X>()) && s->fftSpec != nullptr) {
        const int L = 1 << fft_order(n);
        const Status st = transform_taps<X>(s, L);
        if (st != StatusOk) {
            FftOps<X>::free(s->fftSpec);
            s->fftSpec = nullptr;
            s->fftLen = -1;
            return st;
        }
        s->fftLen = L;
    }
    return StatusOk;
}

template <class X, class D> Status get_dly(const State* s, D* dly, int32_t sr)
{
    if (any_null(s, dly)) return ErrNullPtr;
    if (!tag_is(s, sr)) return ErrContextMismatch;
    const X* ring = dly_of<X>(s) + s->dlyIndex;
    const int n = s->dlyLen;
    for (int i = 0; i < n; ++i) dly[i] = narrow_one<D>(ring[n - 1 - i]);
    return StatusOk;
}

template <class X, class D> Status set_dly(State* s, const D* dly, int32_t sr)
{
    if (s == nullptr) return ErrNullPtr;
    if (!tag_is(s, sr)) return ErrContextMismatch;
    store_dly<X>(s, dly);
    return StatusOk;
}

// Direct block path: the first outputs from the delay buffer, the rest
// straight from src. dst never overlaps src here.
template <class X> void direct_path(State* s, const X* src, X* dst, int len)
{
    const int n = s->tapsLen, R = (n + 3) & ~3;
    X* const dl = dly_of<X>(s);
    X* D = dl + s->dlyIndex;
    const X* rt = taps_of<X>(s);
    s->dlyIndex = 0;
    if (len <= s->blockLimit) {
        copy_n(src, D + n, len);
        correlate(rt, n, D + 1, dst, len);
        move_n(D + len, dl, n);
    } else {
        copy_n(src, D + n, s->blockLimit);
        correlate(rt, n, D + 1, dst, R);
        copy_n(src + len - n, dl, n);
        correlate(rt, n, src + R - n + 1, dst + R, len - R);
    }
}

// Overlap-save through the record's FFT; returns an FFT failure at once.
template <class X> Status ols_path(State* s, const X* src, X* dst, int len)
{
    using Ops = FftOps<X>;
    const int N = s->fftLen, n = s->tapsLen, B = N - n + 1;
    X* const W = static_cast<X*>(s->fftWork);
    X* const dl = dly_of<X>(s);
    const X* ft = static_cast<const X*>(s->fftTaps);
    const void* spec = s->fftSpec;
    Tav8u* buf = static_cast<Tav8u*>(s->fftBuf);
    copy_n(dl + s->dlyIndex + 1, W, n - 1);
    s->dlyIndex = 0;
    X* const Wp = W + n - 1;
    auto run = [&](const X* in) -> Status {
        Status st = Ops::fwd(in, W, spec, buf);
        if (st == StatusOk) st = Ops::mul(ft, W, N);
        if (st == StatusOk) st = Ops::inv(W, W, spec, buf);
        return st;
    };
    if (len <= B) {
        copy_n(src, Wp, len);
        copy_n(W + len - 1, dl, n);
        zero_n(Wp + len, N - (n - 1 + len));
        const Status st = run(W);
        if (st != StatusOk) return st;
        copy_n(Wp, dst, len);
        return StatusOk;
    }
    copy_n(src, Wp, B);
    Status st = run(W);
    if (st != StatusOk) return st;
    copy_n(Wp, dst, B);
    copy_n(src + len - n, dl, n);
    for (int p = B; p < len; p += B) {
        const int rest = len - p;
        const X* in = src + p - n + 1;
        if (rest >= N) {
            st = run(in);
            if (st != StatusOk) return st;
            copy_n(Wp, dst + p, B);
        } else {
            const int cnt = n - 1 + rest < N ? n - 1 + rest : N;
            copy_n(in, W, cnt);
            zero_n(W + cnt, N - cnt);
            st = run(W);
            if (st != StatusOk) return st;
            copy_n(Wp, dst + p, rest < B ? rest : B);
        }
    }
    return StatusOk;
}

template <class X> Status run_path(State* s, const X* src, X* dst, int len, bool fft)
{
    if (fft) return ols_path<X>(s, src, dst, len);
    direct_path<X>(s, src, dst, len);
    return StatusOk;
}

// Block call on a record whose data type is its element type. In place runs
// in chunks of 4096 through inPlaceBuf; the path test there is made on the
// remainder after the chunk, so a last chunk always runs direct.
template <class X> Status block_same(State* s, const X* src, X* dst, int len, bool inPlace)
{
    constexpr int thr = fft_threshold(cls_of<X>());
    if (!inPlace) return run_path<X>(s, src, dst, len, len >= thr && s->fftLen >= 1);
    X* const tmp = static_cast<X*>(s->inPlaceBuf);
    int rem = len, p = 0;
    while (rem > 0) {
        const int c = rem < 4096 ? rem : 4096;
        rem -= c;
        const Status st = run_path<X>(s, src + p, tmp, c, rem >= thr && s->fftLen >= 1);
        if (st != StatusOk) return st;
        copy_n(tmp, dst + p, c);
        p += c;
    }
    return StatusOk;
}

// Block call on a converting record: chunks of 2048 samples are widened into
// the first half of inPlaceBuf, filtered into the second half and converted
// out. Each chunk is read whole before its output is written, so src may
// equal dst. The direct outputs do not depend on the chunking.
template <class X, class D> Status block_convert(State* s, const D* src, D* dst, int len, int sf)
{
    constexpr int thr = fft_threshold(cls_of<X>());
    constexpr int CH = 2048;
    X* const a = static_cast<X*>(s->inPlaceBuf);
    X* const b = a + CH;
    for (int p = 0; p < len; p += CH) {
        const int c = len - p < CH ? len - p : CH;
        for (int j = 0; j < c; ++j) a[j] = widen<X>(src[p + j]);
        const Status st = run_path<X>(s, a, b, c, c >= thr && s->fftLen >= 1);
        if (st != StatusOk) return st;
        narrow_block(b, dst + p, c, sf);
    }
    return StatusOk;
}

// One sample through the ring: written at dlyIndex and dlyIndex + n, so
// the n values from the new dlyIndex are always in order.
template <class X> X one_step(State* s, X x)
{
    const int n = s->tapsLen;
    X* d = dly_of<X>(s);
    int idx = s->dlyIndex;
    d[idx] = x;
    d[idx + n] = x;
    idx = idx + 1 == n ? 0 : idx + 1;
    s->dlyIndex = idx;
    X y;
    correlate(taps_of<X>(s), n, d + idx, &y, 1);
    return y;
}

// Stream record: no delay line; src offers len + tapsLen - 1 samples.
template <class X> void stream_block(const State* s, const X* src, X* dst, int len)
{
    correlate(taps_of<X>(s), s->tapsLen, src, dst, len);
}

} // namespace tavs::fir
