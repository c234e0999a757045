// The forward real transform of orders 7 to 11 in 32f, with the post-step
// reading the half-length kernel's result in the kernel's own blocks of four
// values ([re x4, im x4] at the addresses of the interleaved values). The
// kernel then skips its final interleave, the post-step its deinterleave of
// the data, and each output is interleaved once, on its way to Perm order.
// Every value goes through the same operations as on the interleaved path.
#include "internal/body.h"
#include "internal/fft_kernels.h"
#include "internal/rfft.h"
#include "internal/rfft_lanes.h"

#include <emmintrin.h>

namespace tavs::fft {

namespace {

using lanes::F4;

// The post-step on M complex values held as M/4 blocks. Group j is the pairs
// k = 4j .. 4j+3 (block j); their mirrors M - k are lane 0 of block M/4 - j
// and lanes 3, 2, 1 of block M/4 - j - 1. The mirror outputs of group j
// land on those two blocks in Perm order, so each block is read into
// registers before: block M/4 - j - 1 is read by group j and carried to
// group j + 1, whose lane-0 mirror it holds. Group 0 has no block M/4: its
// lane 0 (k = 0) gives X[0] and X[N/2] instead, and the carried block at the
// end holds the middle value M/2 in lane 0.
void post_step_blocks(const float* tw, float* d, int64_t M)
{
    const float z0 = d[0], z1 = d[4];
    __m128 nr = _mm_setzero_ps(), ni = _mm_setzero_ps();
    for (int64_t j = 0; j < M / 8; ++j) {
        const float* pb = d + 8 * (M / 4 - j - 1);
        const __m128 pr = _mm_loadu_ps(pb), pi = _mm_loadu_ps(pb + 4);
        const __m128 c = _mm_move_ss(_mm_shuffle_ps(pr, pr, _MM_SHUFFLE(1, 2, 3, 0)), nr);
        const __m128 e = _mm_move_ss(_mm_shuffle_ps(pi, pi, _MM_SHUFFLE(1, 2, 3, 0)), ni);
        nr = pr;
        ni = pi;
        float* pa = d + 8 * j;
        const __m128 a = _mm_loadu_ps(pa), b = _mm_loadu_ps(pa + 4);
        const __m128 t0 = _mm_load_ps(tw + 8 * j), t1 = _mm_load_ps(tw + 8 * j + 4);
        const F4 p{_mm_shuffle_ps(t0, t1, _MM_SHUFFLE(2, 0, 2, 0))}, q{_mm_shuffle_ps(t0, t1, _MM_SHUFFLE(3, 1, 3, 1))};
        F4 f4r, f4i, m4r, m4i;
        lanes::post_pair(F4{a}, F4{b}, F4{c}, F4{e}, p, q, f4r, f4i, m4r, m4i);
        const __m128 fr = f4r.v, fi = f4i.v, mr = m4r.v, mi = m4i.v;
        _mm_storeu_ps(pa, _mm_unpacklo_ps(fr, fi));
        _mm_storeu_ps(pa + 4, _mm_unpackhi_ps(fr, fi));
        // Mirror lanes i at complex M - 4j - i: lanes (1, 0), then (3, 2).
        const __m128 l01 = _mm_unpacklo_ps(mr, mi), l23 = _mm_unpackhi_ps(mr, mi);
        float* pm = d + 2 * (M - 4 * j);
        const __m128 h10 = _mm_shuffle_ps(l01, l01, _MM_SHUFFLE(1, 0, 3, 2));
        if (j == 0) _mm_storel_pi(reinterpret_cast<__m64*>(pm - 2), h10); // lane 0 has no place
        else _mm_storeu_ps(pm - 2, h10);
        _mm_storeu_ps(pm - 6, _mm_shuffle_ps(l23, l23, _MM_SHUFFLE(1, 0, 3, 2)));
    }
    d[0] = z0 + z1; // X[0]
    d[1] = z0 - z1; // X[N/2]
    // k = M/2: the real part is already in place (lane 0 of block M/8 sits at
    // d[M]); the imaginary part changes sign.
    d[M + 1] = -_mm_cvtss_f32(ni);
}

} // namespace

bool real_forward_blocks(const FloatSpec<float>* spec, bool scaled, float scale, const float* src, float* dst)
{
    const int order = spec->order;
    if (order < 7 || order > 11) return false;
    const int64_t M = int64_t(1) << (order - 1);
    const bool fused = src != dst;
    if (fused) permute_first_pass<float, false>(src, dst, M, M, spec->radixFour);
    else permute_in_place(reinterpret_cast<Tav32fc*>(dst), spec->swapList, M);
    radix4_fwd_blocks_32f(dst, M, spec->radixFour, fused);
    if (scaled) scale_values(dst, 2 * M, scale);
    post_step_blocks(spec->realFwd, dst, M);
    return true;
}

} // namespace tavs::fft
