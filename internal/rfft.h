// The real FFT over the floating real records (FFTSpec_R_32f, FFTSpec_R_64f):
// N = 2^order real samples are read as N/2 complex values, transformed with
// the complex machinery at half length, and split into the spectrum of the
// real signal by the post-step (the inverse undoes it with the pre-step
// before the half-length inverse). Orders up to 5 have their own direct
// kernels. The layouts: Perm (the kernels' own), Pack, CCS.
#pragma once

#include "internal/fft.h"

namespace tavs::fft {

enum class RealLayout { Perm, Pack, CCS };

// Direct real kernels, order <= 5. Forward: N real samples to Perm (src may
// equal dst). Inverse: Perm to N real samples, in place on d.
template <class S> void real_direct_fwd(int order, bool scaled, S scale, const S* src, S* dst);
template <class S> void real_direct_inv(int order, bool scaled, S scale, S* d);

// Post-step, in place on d: the half-length spectrum Z (N/2 complex values)
// becomes the Perm spectrum of the real signal. order >= 6.
template <class S> void real_post_step(const FloatSpec<S>* spec, S* d);

// Pre-step: the spectrum with X[0] = s0, X[N/2] = s1 and the pairs k = 1 ..
// N/2 - 1 at src[2k + off], src[2k + 1 + off] (off 0 for Perm and CCS, -1
// for Pack) becomes the doubled half-length spectrum in d. src may equal d
// when off is 0. order >= 6.
template <class S> void real_pre_step(const FloatSpec<S>* spec, S s0, S s1, const S* src, int off, S* d);
// The same for src distinct from d (no overlap), with every value written
// straight into its place in the bit reversal of the half length, ready for
// the complex inverse without a permutation pass. order >= 7.
template <class S> void real_pre_step_reversed(const FloatSpec<S>* spec, S s0, S s1, const S* src, int off, S* d);

// The forward transform of orders 7 to 11 in 32f with the post-step reading
// the half-length kernel's blocks directly (Perm in dst; the layout step is
// the caller's). False, with nothing done, at other orders and in 64f.
bool real_forward_blocks(const FloatSpec<float>* spec, bool scaled, float scale, const float* src, float* dst);
inline bool real_forward_blocks(const FloatSpec<double>*, bool, double, const double*, double*) { return false; }

// The transforms behind the exported bodies, after the argument checks:
// the work buffer, the transform, the layout step. The only failure is
// ErrMemAlloc (null wsp and the record needs work space); dst is then
// untouched.
template <class S> Status real_forward(const FloatSpec<S>* spec, RealLayout lay, const S* src, S* dst, Tav8u* wsp);
template <class S> Status real_inverse(const FloatSpec<S>* spec, RealLayout lay, const S* src, S* dst, Tav8u* wsp);

// The real inverse out of place in 32f where the half length runs the
// two-factor step with rows of at most 256 points (orders 14 to 17): the
// pre-step is done while the rows are read in, straight from src into the
// rows' local blocks, and the complex inverse goes on from there. Returns
// false (nothing written) at the orders it does not cover. src and dst do
// not overlap.
bool real_inverse_fused(const FloatSpec<float>* spec, float s0, float s1, const float* src, int off, float* dst,
                        unsigned char* work);
// Its row half: the pre-step of the real record's table rtw (one level) on
// src, the values taken in the bit-reversed order of the N-point complex
// inverse, its R = N / M rows of M points transformed (table tw) and
// written to dst. 16 * M <= kSoaRowsFloats, R >= 8.
void real_rows_from_pre(const float* src, int off, float s0, float s1, const float* rtw, float* dst, int64_t N,
                        int64_t M, const float* tw, bool scaled, float scale);

} // namespace tavs::fft
