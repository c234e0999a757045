// Direct FFT kernels for 1 to 32 points: straight-line radix-2 flow graphs
// on local values, with the twiddles as inline constants of the element
// type, and the scale (when the record asks for it) folded into each output.
#include "internal/body.h"
#include "internal/fft_kernels.h"

namespace tavs::fft {

namespace {

// (cos, sin) of 2 pi e / 32 for e = 0 .. 15, rounded to S.
template <class S> constexpr S cos32(int e) { return e <= 8 ? S(kCos32[e]) : S(-kCos32[16 - e]); }
template <class S> constexpr S sin32(int e) { return e <= 8 ? S(kCos32[8 - e]) : S(kCos32[e - 8]); }

// In-place DFT of N values held in local arrays, natural order in and out.
template <int N, class S, bool Inv> __attribute__((always_inline)) inline void dft_local(S* re, S* im)
{
    if constexpr (N == 2) {
        const S ar = re[0], ai = im[0], br = re[1], bi = im[1];
        re[0] = ar + br;
        im[0] = ai + bi;
        re[1] = ar - br;
        im[1] = ai - bi;
    } else if constexpr (N > 2) {
        constexpr int H = N / 2;
        S er[H], ei[H], orr[H], oi[H];
#pragma GCC unroll 16
        for (int k = 0; k < H; ++k) {
            er[k] = re[2 * k];
            ei[k] = im[2 * k];
            orr[k] = re[2 * k + 1];
            oi[k] = im[2 * k + 1];
        }
        dft_local<H, S, Inv>(er, ei);
        dft_local<H, S, Inv>(orr, oi);
#pragma GCC unroll 16
        for (int k = 0; k < H; ++k) {
            S tr, ti;
            if (k == 0) {
                tr = orr[k];
                ti = oi[k];
            } else if (2 * k == H) {
                // W^(N/4) = -i forward, +i inverse: a swap and a negation.
                tr = Inv ? -oi[k] : oi[k];
                ti = Inv ? orr[k] : -orr[k];
            } else {
                const int e = k * (32 / N);
                const S c = cos32<S>(e);
                const S s = Inv ? sin32<S>(e) : -sin32<S>(e);
                tr = orr[k] * c - oi[k] * s;
                ti = orr[k] * s + oi[k] * c;
            }
            re[k] = er[k] + tr;
            im[k] = ei[k] + ti;
            re[k + H] = er[k] - tr;
            im[k + H] = ei[k] - ti;
        }
    }
}

template <int N, class S, bool Inv, bool Scaled> void kernel_interleaved(const S* src, S* dst, S scale)
{
    S re[N], im[N];
    for (int k = 0; k < N; ++k) {
        re[k] = src[2 * k];
        im[k] = src[2 * k + 1];
    }
    dft_local<N, S, Inv>(re, im);
    for (int k = 0; k < N; ++k) {
        dst[2 * k] = Scaled ? re[k] * scale : re[k];
        dst[2 * k + 1] = Scaled ? im[k] * scale : im[k];
    }
}

template <int N, class S, bool Inv, bool Scaled>
void kernel_split(const S* srcRe, const S* srcIm, S* dstRe, S* dstIm, S scale)
{
    S re[N], im[N];
    for (int k = 0; k < N; ++k) {
        re[k] = srcRe[k];
        im[k] = srcIm[k];
    }
    dft_local<N, S, Inv>(re, im);
    for (int k = 0; k < N; ++k) {
        dstRe[k] = Scaled ? re[k] * scale : re[k];
        dstIm[k] = Scaled ? im[k] * scale : im[k];
    }
}

template <class S> using InterFn = void (*)(const S*, S*, S);
template <class S> using SplitFn = void (*)(const S*, const S*, S*, S*, S);

// One row per (layout, scaled); a row holds the kernels of lengths 1 .. 32.
template <class S, bool Inv, bool Scaled> struct InterRow {
    static constexpr InterFn<S> k[6] = {
        kernel_interleaved<1, S, Inv, Scaled>,  kernel_interleaved<2, S, Inv, Scaled>,
        kernel_interleaved<4, S, Inv, Scaled>,  kernel_interleaved<8, S, Inv, Scaled>,
        kernel_interleaved<16, S, Inv, Scaled>, kernel_interleaved<32, S, Inv, Scaled>};
};
template <class S, bool Inv, bool Scaled> struct SplitRow {
    static constexpr SplitFn<S> k[6] = {kernel_split<1, S, Inv, Scaled>,  kernel_split<2, S, Inv, Scaled>,
                                        kernel_split<4, S, Inv, Scaled>,  kernel_split<8, S, Inv, Scaled>,
                                        kernel_split<16, S, Inv, Scaled>, kernel_split<32, S, Inv, Scaled>};
};

} // namespace

template <class S> void direct_interleaved(int m, bool inverse, bool scaled, S scale, const S* src, S* dst)
{
    const InterFn<S>* row = inverse ? (scaled ? InterRow<S, true, true>::k : InterRow<S, true, false>::k)
                                    : (scaled ? InterRow<S, false, true>::k : InterRow<S, false, false>::k);
    row[m](src, dst, scale);
}
template void direct_interleaved<float>(int, bool, bool, float, const float*, float*);
template void direct_interleaved<double>(int, bool, bool, double, const double*, double*);

template <class S>
void direct_split(int m, bool inverse, bool scaled, S scale, const S* srcRe, const S* srcIm, S* dstRe, S* dstIm)
{
    const SplitFn<S>* row = inverse ? (scaled ? SplitRow<S, true, true>::k : SplitRow<S, true, false>::k)
                                    : (scaled ? SplitRow<S, false, true>::k : SplitRow<S, false, false>::k);
    row[m](srcRe, srcIm, dstRe, dstIm, scale);
}
template void direct_split<float>(int, bool, bool, float, const float*, const float*, float*, float*);
template void direct_split<double>(int, bool, bool, double, const double*, const double*, double*, double*);

} // namespace tavs::fft
