// Direct real FFT kernels of 1 to 32 points. Lengths 1 and 2 are written
// out; from 4 up the samples are read as N/2 complex values, run through the
// direct complex kernel of that length, and split with the post-step (or
// prepared with the pre-step, inverse) with the twiddles as inline
// constants. The scale, when the record asks for it, is folded into the
// outputs. Every input is read before any output is written.
#include "internal/body.h"
#include "internal/fft_kernels.h"
#include "internal/rfft.h"

namespace tavs::fft {

namespace {

// cos and sin of 2 pi e / 32 for e = 0 .. 8, in double.
constexpr double cos32(int e) { return kCos32[e]; }
constexpr double sin32(int e) { return kCos32[8 - e]; }

template <int N> constexpr int log2_of() { return N <= 1 ? 0 : 1 + log2_of<N / 2>(); }

template <int N, class S, bool Scaled> void fwd_kernel(const S* src, S* dst, S scale)
{
    if constexpr (N == 1) {
        dst[0] = Scaled ? src[0] * scale : src[0];
    } else if constexpr (N == 2) {
        const S a = src[0], b = src[1];
        dst[0] = Scaled ? (a + b) * scale : a + b;
        dst[1] = Scaled ? (a - b) * scale : a - b;
    } else {
        constexpr int M = N / 2; // complex values
        S z[N], out[N];
        direct_interleaved<S>(log2_of<M>(), false, false, S(0), src, z);
        out[0] = z[0] + z[1];
        out[1] = z[0] - z[1];
#pragma GCC unroll 8
        for (int k = 1; k < M / 2; ++k) {
            const int e = k * (32 / N); // t = 2 pi k / N
            const S p = S(0.5 * cos32(e)), q = S(0.5 - 0.5 * sin32(e));
            const int m = 2 * (M - k);
            const S a = z[2 * k], b = z[2 * k + 1], c = z[m], d = z[m + 1];
            const S u = a - c, v = b + d, w = p * v + q * u, x = v * q - u * p;
            out[2 * k] = c + w;
            out[2 * k + 1] = x - d;
            out[m] = a - w;
            out[m + 1] = x - b;
        }
        out[M] = z[M];
        out[M + 1] = -z[M + 1];
        for (int i = 0; i < N; ++i) dst[i] = Scaled ? out[i] * scale : out[i];
    }
}

template <int N, class S, bool Scaled> void inv_kernel(S* d, S scale)
{
    if constexpr (N == 1) {
        d[0] = Scaled ? d[0] * scale : d[0];
    } else if constexpr (N == 2) {
        const S a = d[0], b = d[1];
        d[0] = Scaled ? (a + b) * scale : a + b;
        d[1] = Scaled ? (a - b) * scale : a - b;
    } else {
        constexpr int M = N / 2;
        S z[N];
        z[0] = d[0] + d[1];
        z[1] = d[0] - d[1];
#pragma GCC unroll 8
        for (int k = 1; k < M / 2; ++k) {
            const int e = k * (32 / N);
            const S p = S(cos32(e)), q = S(-sin32(e));
            const int m = 2 * (M - k);
            const S a = d[2 * k], b = d[2 * k + 1], c = d[m], e2 = d[m + 1];
            const S u = a - c, v = b + e2;
            const S g = q * u - p * v, h = p * u + q * v;
            z[2 * k] = a + c + g;
            z[2 * k + 1] = b - e2 + h;
            z[m] = a + c - g;
            z[m + 1] = h - (b - e2);
        }
        z[M] = S(2) * d[M];
        z[M + 1] = S(-2) * d[M + 1];
        direct_interleaved<S>(log2_of<M>(), true, Scaled, scale, z, d);
    }
}

template <class S> using FwdFn = void (*)(const S*, S*, S);
template <class S> using InvFn = void (*)(S*, S);

// The real rows: unscaled and scaled, lengths 1 .. 32.
template <class S, bool Scaled> struct FwdRow {
    static constexpr FwdFn<S> k[6] = {fwd_kernel<1, S, Scaled>,  fwd_kernel<2, S, Scaled>,
                                      fwd_kernel<4, S, Scaled>,  fwd_kernel<8, S, Scaled>,
                                      fwd_kernel<16, S, Scaled>, fwd_kernel<32, S, Scaled>};
};
template <class S, bool Scaled> struct InvRow {
    static constexpr InvFn<S> k[6] = {inv_kernel<1, S, Scaled>,  inv_kernel<2, S, Scaled>,
                                      inv_kernel<4, S, Scaled>,  inv_kernel<8, S, Scaled>,
                                      inv_kernel<16, S, Scaled>, inv_kernel<32, S, Scaled>};
};

} // namespace

template <class S> void real_direct_fwd(int order, bool scaled, S scale, const S* src, S* dst)
{
    (scaled ? FwdRow<S, true>::k : FwdRow<S, false>::k)[order](src, dst, scale);
}
template void real_direct_fwd<float>(int, bool, float, const float*, float*);
template void real_direct_fwd<double>(int, bool, double, const double*, double*);

template <class S> void real_direct_inv(int order, bool scaled, S scale, S* d)
{
    (scaled ? InvRow<S, true>::k : InvRow<S, false>::k)[order](d, scale);
}
template void real_direct_inv<float>(int, bool, float, float*);
template void real_direct_inv<double>(int, bool, double, double*);

} // namespace tavs::fft
