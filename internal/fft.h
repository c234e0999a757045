// FFT records and the internal interface of the power-of-two FFT: record
// layouts, the size arithmetic behind every GetSize query, the table
// builders, and the complex transform cores that the real and fixed-point
// transforms reuse on their own records.
#pragma once

#include <cstdint>

#include "internal/record.h"
#include "internal/types.h"

namespace tavs::fft {

// ---- records ------------------------------------------------------------

// The scale slot is 8 bytes in both precisions so the two headers match.
template <class S> struct ScaleSlot;
template <> struct ScaleSlot<float> {
    float value;
    int32_t unused;
};
template <> struct ScaleSlot<double> {
    double value;
};

// Header of the floating records (complex and real, 32f and 64f). Every
// table pointer points into the record's own block. S is the part type.
template <class S> struct FloatSpec {
    int32_t tag;
    int32_t order;
    int32_t fwdScales;  // non-zero: the forward direction multiplies by scale
    int32_t invScales;  // non-zero: the inverse direction multiplies by scale
    ScaleSlot<S> scale; // 1/N or 1/sqrt N; 0 under ScaleNever
    int32_t hint;       // stored, not read by the floating path
    int32_t workSize;   // bytes of transform scratch, 0 if none
    int32_t allocated;  // 1 when the block came from InitAlloc
    void* base;         // the block to release (InitAlloc only)
    int32_t* swapList;  // bit reversal of the complex length
    S* radixFour;       // triples (W^k, W^2k, W^3k), length up to 1024
    S* merge;           // W_L^k for k < L/4, the blocked merge's table
    S* merge2;          // reserved for merges past 16384 points (never built)
    S* realFwd;         // real kinds: forward post-step twiddles
    S* realInv;         // real kinds: inverse pre-step twiddles
    S* levelRadixFour[3];
    S* levelColumns[3];
};
static_assert(sizeof(FloatSpec<float>) == 144 && sizeof(FloatSpec<double>) == 144);

// Header of the 16-bit records (C_16sc, C_16s, R_16s).
struct SmallFixedSpec {
    int32_t tag;
    int32_t order;
    int32_t fwdShift; // extra right shift on the forward output
    int32_t invShift;
    int32_t oddOrder; // 1: one multiplication by 1/sqrt 2 is owed
    int32_t hint;
    int32_t workSize;
    int32_t usesFloat; // 1: the transform runs on the nested floating record
    int32_t allocated;
    int32_t unused;
    int32_t* swapList;
    Tav16s* twiddles;  // Q14 (c, s, -s, c) entries
    Tav16s* twiddles2; // R_16s: the length-N table of the real step
    void* nested;      // FFTSpec_C_32fc, FFTSpec_C_32f or FFTSpec_R_32f
};
static_assert(sizeof(SmallFixedSpec) == 72);

// Header of the 32-bit fixed-point records and of R_16s32s.
struct WideFixedSpec {
    int32_t tag;
    int32_t order;
    int32_t hint;
    int32_t workSize;
    int32_t allocated;
    int32_t unused;
    void* nested; // FFTSpec_C_64fc, FFTSpec_C_64f, FFTSpec_R_64f or FFTSpec_R_32f
};
static_assert(sizeof(WideFixedSpec) == 32);

// ---- size arithmetic ------------------------------------------------------

constexpr int kOrderMax = 30; // the unsigned range test of every query

// Swap list of n/4 + 1 words.
constexpr int64_t sizeA(int64_t n) { return (n + 67) & ~int64_t(63); }

template <class S> struct Dims;
template <> struct Dims<float> {
    static constexpr int64_t B(int64_t n) { return (8 * n + 71) & ~int64_t(63); }
    static constexpr int64_t C(int64_t n) { return ((2 * n + 63) & ~int64_t(63)) + 8256; }
    static constexpr int64_t D(int64_t n) { return sizeA(n); } // QuarterSine of N/4 + 1 entries
    static constexpr int64_t Col = 32, Elem = 8;
    static constexpr int kComplexMax = 27, kRealMax = 28;
    static constexpr int kTwoLevelReal = 19; // first real order with the two-level table
    static constexpr int kRealBlock = 1024;
};
template <> struct Dims<double> {
    static constexpr int64_t B(int64_t n) { return (16 * n + 79) & ~int64_t(63); }
    static constexpr int64_t C(int64_t n) { return ((4 * n + 63) & ~int64_t(63)) + 16448; }
    static constexpr int64_t D(int64_t n) { return (2 * n + 71) & ~int64_t(63); }
    static constexpr int64_t Col = 64, Elem = 16;
    static constexpr int kComplexMax = 26, kRealMax = 27;
    static constexpr int kTwoLevelReal = 18;
    static constexpr int kRealBlock = 512;
};

// FirstFactorBits by order 11 .. 27: 0 means the blocked merge, F > 0 a
// split N = 2^F * 2^(order-F).
template <class S> int first_factor_bits(int order);

struct Sizes {
    int64_t spec, init, work; // work as a GetSize query reports it (slack included)
};

// Sizes of a floating complex or real record, order within the kind's range.
template <class S> Sizes complex_sizes(int order);
template <class S> Sizes real_sizes(int order);
// Bytes of one real twiddle table (forward or inverse) at a real order >= 6.
template <class S> int64_t real_table_bytes(int order);

// ---- tables ---------------------------------------------------------------

// The quarter-wave sine table of a circle of 2^t points (t >= 10), with the
// (cos, -sin) lookup of any exponent by quadrant folding.
template <class S> struct QuarterSine {
    const S* s;
    int64_t circle; // 2^t
    // W^e = exp(-2 pi i e / circle) as (cos, -sin), e taken modulo circle.
    void twiddle(int64_t e, S& re, S& im) const;
};

// The static 257-entry tables of the 1024-point circle.
extern const float kQuarterSine1024_32f[257];
extern const double kQuarterSine1024_64f[257];
extern const Tav16s kQuarterSineQ14[256];

// Builders. Each writes into memory carved from a record block.
void build_swap_list(int32_t* list, int m);
template <class S> void build_radix_four(S* t, int64_t L, const QuarterSine<S>& qs);
template <class S> void build_merge(S* t, int64_t L, const QuarterSine<S>& qs);
template <class S> void build_columns(S* t, int64_t R, int64_t M, const QuarterSine<S>& qs);
template <class S> void build_real_tables(S* fwd, S* inv, int order, const QuarterSine<S>& qs);
void build_q14_twiddles(Tav16s* t, int m);

// The quarter sine table for a circle of 2^order points: the static table
// for order <= 10, else computed into scratch (2^order/4 + 1 entries).
template <class S> QuarterSine<S> quarter_sine(int order, S* scratch);

// ---- record construction ----------------------------------------------------

// Builds the complex tables of order m (swap list, radix-4 or level tables)
// into the carver; returns the work bytes the transform needs (0 if none).
template <class S> int64_t carve_complex_tables(FloatSpec<S>* spec, Carver& c, int m, const QuarterSine<S>& qs);

// Init of a floating complex record (tag 4 or 7) and of a floating real
// record (tag 6 or 9), with the documented checks.
template <class S> Status init_complex(FloatSpec<S>** pp, int order, int flag, int hint, Tav8u* block, Tav8u* initBuf);
template <class S> Status init_real(FloatSpec<S>** pp, int order, int flag, int hint, Tav8u* block, Tav8u* initBuf);

// ---- transform cores --------------------------------------------------------

// Work area of a call: the caller's buffer aligned up to 64, or a block of
// the recorded size taken here and released by the destructor.
class WorkBuffer {
public:
    WorkBuffer() = default;
    WorkBuffer(const WorkBuffer&) = delete;
    WorkBuffer& operator=(const WorkBuffer&) = delete;
    ~WorkBuffer();
    // ErrMemAlloc when an allocation was needed and failed.
    Status acquire(Tav8u* wsp, int32_t size);
    unsigned char* get() const { return p_; }

private:
    unsigned char* p_ = nullptr;
    void* owned_ = nullptr;
};

// Complex transform of 2^m points over interleaved data, in place on dst
// after the bit-reversal permutation from src (src may equal dst). The
// record's tables must be those of order m (a real record carries them for
// its half length). scale is applied when scaled is set. work holds the
// record's work size when m needs it.
template <class S>
void complex_interleaved(const FloatSpec<S>* spec, int m, bool inverse, bool scaled, S scale, const S* src,
                         S* dst, unsigned char* work);
// The same on data that is already in bit-reversed order in d (m >= 6): a
// caller that produces its values anyway (the real inverse's pre-step) puts
// them straight into their reversed places and skips the permutation pass.
template <class S>
void complex_interleaved_reversed(const FloatSpec<S>* spec, int m, bool inverse, bool scaled, S scale, S* d,
                                  unsigned char* work);
// The same over split arrays.
template <class S>
void complex_split(const FloatSpec<S>* spec, int m, bool inverse, bool scaled, S scale, const S* srcRe,
                   const S* srcIm, S* dstRe, S* dstIm, unsigned char* work);

} // namespace tavs::fft
