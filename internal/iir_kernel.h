// The recursive filter's kernels, one template each, over the taps'
// precision T (float, double or their complex pairs). `in(i)` reads sample i
// as T, `out(i, y)` stores output i; a kernel reads sample i before it
// stores output i, so the same vector may be source and destination.
#pragma once

#include <emmintrin.h>

#include <cstdint>
#include <cstring>

#include "internal/iir.h"

namespace tavs::iir {

// Vectors carry no alignment promise beyond what the caller gives, so
// elements move through memcpy (a plain load or store once compiled).
template <class T> inline T ld(const void* p, int i)
{
    T v;
    std::memcpy(&v, static_cast<const unsigned char*>(p) + size_t(i) * sizeof(T), sizeof(T));
    return v;
}
template <class T> inline void st(void* p, int i, T v)
{
    std::memcpy(static_cast<unsigned char*>(p) + size_t(i) * sizeof(T), &v, sizeof(T));
}

// Transposed direct form II of order n over b[0..n], a[1..n] and the delay
// d[0..n] (d[n] stays 0). From order 2 on, samples go in pairs; an odd last
// sample takes the one-sample step. N > 0 fixes the order at compile time,
// so that the compiler can keep taps and delay in registers; N = 0 reads it
// from n.
template <int N, class T, class In, class Out>
inline void arb_steps(const T* b, const T* a, T* d, int n, int len, In in, Out out)
{
    if constexpr (N > 0) n = N;
    int i = 0;
    if (n >= 2) {
        for (; i + 1 < len; i += 2) {
            const T x0 = in(i), x1 = in(i + 1);
            const T y0 = b[0] * x0 + d[0];
            const T y1 = b[0] * x1 + d[1] + b[1] * x0 - a[1] * y0;
#pragma GCC unroll 16
            for (int k = 0; k <= n - 2; ++k)
                d[k] = b[k + 1] * x1 - a[k + 1] * y1 + b[k + 2] * x0 - a[k + 2] * y0 + d[k + 2];
            d[n - 1] = b[n] * x1 - a[n] * y1;
            out(i, y0);
            out(i + 1, y1);
        }
    }
    for (; i < len; ++i) {
        const T x = in(i);
        const T y = b[0] * x + d[0];
#pragma GCC unroll 16
        for (int k = 0; k <= n - 2; ++k)
            d[k] = b[k + 1] * x - a[k + 1] * y + d[k + 1];
        d[n - 1] = b[n] * x - a[n] * y;
        out(i, y);
    }
}

// Order N fixed: taps and delay copied to locals, the delay copied back.
template <int N, class T, class In, class Out>
inline void arb_fixed(const T* taps, T* dly, int len, In in, Out out)
{
    T b[N + 1], a[N + 1], d[N + 1];
#pragma GCC unroll 16
    for (int i = 0; i <= N; ++i) {
        b[i] = taps[i];
        a[i] = i ? taps[N + i] : T{};
        d[i] = dly[i];
    }
    arb_steps<N>(b, a, d, N, len, in, out);
#pragma GCC unroll 16
    for (int i = 0; i < N; ++i)
        dly[i] = d[i];
}

// Order n over held taps b[0..n], a[i] at taps[n+i]. Order 0 is a plain
// scale by b0.
template <class T, class In, class Out>
inline void run_arb(const T* taps, T* d, int n, int len, In in, Out out)
{
    switch (n) {
    case 0: {
        const T b0 = taps[0];
        for (int i = 0; i < len; ++i)
            out(i, b0 * in(i));
        return;
    }
    case 1:
        return arb_fixed<1>(taps, d, len, in, out);
    case 2:
        return arb_fixed<2>(taps, d, len, in, out);
    case 3:
        return arb_fixed<3>(taps, d, len, in, out);
    case 4:
        return arb_fixed<4>(taps, d, len, in, out);
    case 5:
        return arb_fixed<5>(taps, d, len, in, out);
    case 6:
        return arb_fixed<6>(taps, d, len, in, out);
    case 7:
        return arb_fixed<7>(taps, d, len, in, out);
    case 8:
        return arb_fixed<8>(taps, d, len, in, out);
    default:
        return arb_steps<0>(taps, taps + n, d, n, len, in, out);
    }
}

// M second-order sections in transposed direct form II, held taps b0 b1 b2
// a1 a2 and delay d0 d1 per section, every section of one sample before the
// next sample; taps and delay in locals.
template <int M, class T, class In, class Out>
inline void bq_fixed(const T* taps, T* dly, int len, In in, Out out)
{
    T c[5 * M], s[2 * M];
#pragma GCC unroll 20
    for (int i = 0; i < 5 * M; ++i)
        c[i] = taps[i];
#pragma GCC unroll 8
    for (int i = 0; i < 2 * M; ++i)
        s[i] = dly[i];
    for (int i = 0; i < len; ++i) {
        T x = in(i);
#pragma GCC unroll 4
        for (int k = 0; k < M; ++k) {
            const T y = c[5 * k] * x + s[2 * k];
            s[2 * k] = c[5 * k + 1] * x + s[2 * k + 1] - c[5 * k + 3] * y;
            s[2 * k + 1] = c[5 * k + 2] * x - c[5 * k + 4] * y;
            x = y;
        }
        out(i, x);
    }
#pragma GCC unroll 8
    for (int i = 0; i < 2 * M; ++i)
        dly[i] = s[i];
}

template <class T, class In, class Out>
inline void bq_group(int m, const T* taps, T* d, int len, In in, Out out)
{
    switch (m) {
    case 1:
        return bq_fixed<1>(taps, d, len, in, out);
    case 2:
        return bq_fixed<2>(taps, d, len, in, out);
    case 3:
        return bq_fixed<3>(taps, d, len, in, out);
    default:
        return bq_fixed<4>(taps, d, len, in, out);
    }
}

// Cascade of m sections. Up to four run sample by sample in one pass. A
// longer cascade runs in groups of four over chunks of samples held in a
// local buffer: every section still sees the same inputs in the same order,
// so each output is the one of the sample-by-sample cascade. All inputs of a
// chunk are read before its outputs are stored, so in place works.
template <class T, class In, class Out>
inline void run_bq(const T* taps, T* d, int m, int len, In in, Out out)
{
    if (m <= 4) return bq_group(m, taps, d, len, in, out);
    constexpr int kChunk = 128;
    T buf[kChunk];
    auto from_buf = [&buf](int i) { return buf[i]; };
    auto to_buf = [&buf](int i, T y) { buf[i] = y; };
    for (int i0 = 0; i0 < len; i0 += kChunk) {
        const int cnt = len - i0 < kChunk ? len - i0 : kChunk;
        bq_fixed<4>(
            taps, d, cnt, [&](int i) { return in(i0 + i); }, to_buf);
        int k = 4;
        for (; m - k > 4; k += 4)
            bq_fixed<4>(taps + 5 * k, d + 2 * k, cnt, from_buf, to_buf);
        bq_group(m - k, taps + 5 * k, d + 2 * k, cnt, from_buf, [&](int i, T y) { out(i0 + i, y); });
    }
}

// Runs the arbitrary-order or biquad layout of a record.
template <class T, class In, class Out> inline void run_tdf2(Record* r, Layout l, int len, In in, Out out)
{
    T* taps = static_cast<T*>(r->taps);
    T* d = static_cast<T*>(r->dlyLine);
    if (l == Layout::Arb)
        run_arb(taps, d, r->dlyLen, len, in, out);
    else
        run_bq(taps, d, r->numBq, len, in, out);
}

// Direct form I in 32f, one section over the whole block, then the next
// section over its output in dst. History per section: x[-2] x[-1] y[-2]
// y[-1].
inline void run_df1_32f(const float* taps, float* h, int m, const float* src, float* dst, int len)
{
    for (int k = 0; k < m; ++k) {
        const float* c = taps + 5 * k;
        float* s = h + 4 * k;
        const float b0 = c[0], b1 = c[1], b2 = c[2], a1 = c[3], a2 = c[4];
        float x2 = s[0], x1 = s[1], y2 = s[2], y1 = s[3];
        const float* from = k == 0 ? src : dst;
        for (int i = 0; i < len; ++i) {
            const float x = ld<float>(from, i);
            const float y = b0 * x + b1 * x1 + b2 * x2 - a1 * y1 - a2 * y2;
            x2 = x1;
            x1 = x;
            y2 = y1;
            y1 = y;
            st<float>(dst, i, y);
        }
        s[0] = x2;
        s[1] = x1;
        s[2] = y2;
        s[3] = y1;
    }
}

// The 32s limits, then the processor's conversion (ties to even under the
// caller's rounding state). NaN passes the limits and converts to the
// integer indefinite value.
inline int32_t round_32s(double v)
{
    if (v > 2147483647.0)
        v = 2147483647.0;
    else if (v < -2147483648.0)
        v = -2147483648.0;
    return _mm_cvtsd_si32(_mm_set_sd(v));
}
inline Tav16s round_16s(double v)
{
    if (v > 32767.0)
        v = 32767.0;
    else if (v < -32768.0)
        v = -32768.0;
    return Tav16s(_mm_cvtsd_si32(_mm_set_sd(v)));
}
inline Tav16s round_16s(float v)
{
    if (v > 32767.0f)
        v = 32767.0f;
    else if (v < -32768.0f)
        v = -32768.0f;
    return Tav16s(_mm_cvtss_si32(_mm_set_ss(v)));
}

// Direct form I of 64f taps over 32s data. Each section runs over the whole
// block and leaves its output in dst as 32s, rounded and limited, where the
// next section reads it; its history holds those 32s samples. The last
// section's output is scaled by f before it is rounded; its history keeps
// the unscaled value.
inline void run_df1_64f_32s(const double* taps, int32_t* h, int m, const Tav32s* src, Tav32s* dst, int len,
                            double f)
{
    for (int k = 0; k < m; ++k) {
        const double* c = taps + 5 * k;
        int32_t* s = h + 4 * k;
        const double b0 = c[0], b1 = c[1], b2 = c[2], a1 = c[3], a2 = c[4];
        int32_t x2 = s[0], x1 = s[1], y2 = s[2], y1 = s[3];
        const Tav32s* from = k == 0 ? src : dst;
        const bool last = k == m - 1;
        for (int i = 0; i < len; ++i) {
            const int32_t x = ld<int32_t>(from, i);
            const double y =
                b0 * double(x) + b1 * double(x1) + b2 * double(x2) - a1 * double(y1) - a2 * double(y2);
            const int32_t r = round_32s(y);
            x2 = x1;
            x1 = x;
            y2 = y1;
            y1 = r;
            st<int32_t>(dst, i, last ? round_32s(y * f) : r);
        }
        s[0] = x2;
        s[1] = x1;
        s[2] = y2;
        s[3] = y1;
    }
}

// 2^-sf for the 32f kernels of integer data: a float whose exponent field
// is built from the low seven bits of the scale, read as a signed 7-bit
// count (-64..63), so every scale gives an exact power of two.
inline float sfs_factor_32f(int sf)
{
    const int s7 = ((sf & 0x7F) ^ 0x40) - 0x40;
    const uint32_t bits = uint32_t(127 - s7) << 23;
    float f;
    std::memcpy(&f, &bits, sizeof f);
    return f;
}

} // namespace tavs::iir
