// The FFT's kernels by role: direct kernels of lengths 1 to 32, the radix-4
// in-place kernel, the bit-reversal permutations and the scale pass, each
// for interleaved and split data in 32f and 64f.
#pragma once

#include <cstdint>

namespace tavs::fft {

// Reversal of the low `bits` bits of x (0 <= bits <= 62).
inline int64_t rev_bits(int64_t x, int bits)
{
    if (bits == 0) return 0;
    uint64_t v = uint64_t(x);
    v = ((v >> 1) & 0x5555555555555555ull) | ((v & 0x5555555555555555ull) << 1);
    v = ((v >> 2) & 0x3333333333333333ull) | ((v & 0x3333333333333333ull) << 2);
    v = ((v >> 4) & 0x0F0F0F0F0F0F0F0Full) | ((v & 0x0F0F0F0F0F0F0F0Full) << 4);
    v = ((v >> 8) & 0x00FF00FF00FF00FFull) | ((v & 0x00FF00FF00FF00FFull) << 8);
    v = ((v >> 16) & 0x0000FFFF0000FFFFull) | ((v & 0x0000FFFF0000FFFFull) << 16);
    v = (v >> 32) | (v << 32);
    return int64_t(v >> (64 - bits));
}

// cos(2 pi e / 32) for e = 0 .. 8: the inline constants of the direct
// kernels, complex and real.
inline constexpr double kCos32[9] = {1.0,
                                     0.98078528040323044912618223613424,
                                     0.92387953251128675612818318939679,
                                     0.83146961230254523707878837761791,
                                     0.70710678118654752440084436210485,
                                     0.55557023301960222474283081394853,
                                     0.38268343236508977172845998403040,
                                     0.19509032201612826784828486847702,
                                     0.0};

// Direct transform of 2^m points, m <= 5, natural order in and out. Every
// input is read before any output is written, so src may equal dst.
template <class S> void direct_interleaved(int m, bool inverse, bool scaled, S scale, const S* src, S* dst);
template <class S>
void direct_split(int m, bool inverse, bool scaled, S scale, const S* srcRe, const S* srcIm, S* dstRe, S* dstIm);

// Radix-4 decimation in time, in place over bit-reversed input, with the
// RadixFourTwiddles table of length N (N a power of two, N >= 4).
template <class S, bool Inverse> void radix4_interleaved(S* d, int64_t N, const S* tw);
template <class S, bool Inverse> void radix4_split(S* re, S* im, int64_t N, const S* tw);

// Four transforms of length R side by side: d holds R rows of four complex
// values (64-byte aligned), column j of the rows being transform j (64f).
template <bool Inverse> void radix4_rows4(double* d, int64_t R, const double* tw);
// The same in 32f with each row held as [re0 re1 re2 re3 im0 im1 im2 im3]:
// the four transforms then run in SSE2 lanes without shuffles.
template <bool Inverse> void radix4_rows4_soa(float* d, int64_t R, const float* tw);

// The rows of the two-factor step in 32f, R = N / M rows of length M
// (M <= kSoaRowsMax), four side by side in SSE2 lanes (radix4_rows4_soa on a
// local block of kSoaRowsFloats), scaled when scaled is set. The same
// operations on every value as the one-row kernel and the scale pass.
// From the source: the rows read through the bit reversal, written to dst.
// In place: on rows already in bit-reversed order.
constexpr int64_t kSoaRowsFloats = 4096; // 16 KB of stack
constexpr int64_t kSoaRowsMax = kSoaRowsFloats / 8;
template <bool Inverse>
void rows_soa_from_src(const float* src, float* dst, int64_t N, int64_t M, const float* tw, bool scaled, float scale);
template <bool Inverse> void rows_soa_in_place(float* d, int64_t N, int64_t M, const float* tw, bool scaled, float scale);

// The interleaved kernel split in two: its first pass (stage one with the
// span-8 or span-16 stage, by the parity of the order of L) fused with the
// out-of-place bit reversal of all N values, and the stages after it. For
// data made of kernels of length L (rows or blocks), permute_first_pass then
// radix4_after_first on each piece equals permute_copy then radix4.
template <class S, bool Inverse> void permute_first_pass(const S* src, S* dst, int64_t N, int64_t L, const S* tw);
template <class S, bool Inverse> void radix4_after_first(S* d, int64_t N, const S* tw);
// The forward 32f kernel (first pass included unless firstDone) with its
// result left in blocks of four values, [re0 re1 re2 re3 im0 im1 im2 im3]
// at the addresses of the interleaved values, for a caller that reads them
// in that form: the same operations, without the final interleave.
void radix4_fwd_blocks_32f(float* d, int64_t N, const float* tw, bool firstDone);

// Bit reversal of N elements through the swap list of N: in place, or from
// src into dst (src untouched, every element of dst written once).
template <class E> void permute_in_place(E* a, const int32_t* list, int64_t N);
template <class E> void permute_copy(const E* src, E* dst, const int32_t* list, int64_t N);

// p[i] *= s for i < n.
template <class S> void scale_values(S* p, int64_t n, S s);

} // namespace tavs::fft
