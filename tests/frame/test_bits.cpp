#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <vector>

#include "tavs.h"
#include "test_util.h"

namespace {

using BitCopy = Status (*)(const Tav8u*, int, Tav8u*, int, int);

// Bit k of byte b of a bit string, counted from the most or the least
// significant bit of each byte.
bool get_bit(const std::vector<Tav8u>& v, size_t k, bool msbFirst)
{
    const unsigned m = msbFirst ? 0x80u >> (k & 7) : 1u << (k & 7);
    return (v[k >> 3] & m) != 0;
}
void set_bit(std::vector<Tav8u>& v, size_t k, bool bit, bool msbFirst)
{
    const unsigned m = msbFirst ? 0x80u >> (k & 7) : 1u << (k & 7);
    v[k >> 3] = Tav8u(bit ? (v[k >> 3] | m) : (v[k >> 3] & ~m));
}

std::vector<Tav8u> random_bytes(tt::Rng& r, size_t n)
{
    std::vector<Tav8u> v(n);
    for (auto& b : v)
        b = static_cast<Tav8u>(r.next());
    return v;
}

// Random offsets 0..20 (only their low three bits count) and lengths
// 1..200 against a bit-by-bit reference. Both vectors have exactly the
// bytes the run touches, so a read or write past them shows under ASan;
// every byte of dst is compared, so bits outside the run must keep.
void check_bit_copy(BitCopy fn, bool msbFirst)
{
    tt::Rng r(msbFirst ? 51 : 52);
    for (int iter = 0; iter < 6000; ++iter) {
        const int so = int(r.range(0, 20)), dof = int(r.range(0, 20)), len = int(r.range(1, 200));
        const size_t sp = size_t(so & 7), dp = size_t(dof & 7);
        const auto src = random_bytes(r, (sp + size_t(len) + 7) / 8);
        auto dst = random_bytes(r, (dp + size_t(len) + 7) / 8);
        auto want = dst;
        for (size_t i = 0; i < size_t(len); ++i)
            set_bit(want, dp + i, get_bit(src, sp + i, msbFirst), msbFirst);
        ASSERT_EQ(fn(src.data(), so, dst.data(), dof, len), StatusOk);
        ASSERT_EQ(dst, want) << "src offset " << so << " dst offset " << dof << " len " << len;
    }
}

void check_bit_copy_errors(BitCopy fn)
{
    Tav8u src[4] = {1, 2, 3, 4};
    tt::Guarded<Tav8u> g(4);
    EXPECT_EQ(fn(nullptr, 0, g.data(), 0, 8), ErrNullPtr);
    EXPECT_EQ(fn(src, 0, nullptr, 0, 8), ErrNullPtr);
    EXPECT_EQ(fn(nullptr, -1, nullptr, -1, 0), ErrNullPtr); // pointers first
    EXPECT_EQ(fn(src, -1, g.data(), 0, 8), ErrSize);
    EXPECT_EQ(fn(src, 0, g.data(), -1, 8), ErrSize);
    EXPECT_EQ(fn(src, INT_MIN, g.data(), INT_MIN, 8), ErrSize);
    EXPECT_EQ(fn(src, 0, g.data(), 0, 0), ErrSize);
    EXPECT_EQ(fn(src, 0, g.data(), 0, -1), ErrSize);
    EXPECT_EQ(fn(src, 0, g.data(), 0, INT_MIN), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(CopyBits, MostSignificantFirstAgainstReference)
{
    check_bit_copy(tavsCopy_1u, true);
    check_bit_copy(tavsCopyLE_1u, true);
}

TEST(CopyBits, LeastSignificantFirstAgainstReference) { check_bit_copy(tavsCopyBE_1u, false); }

TEST(CopyBits, ErrorsInOrderAndNothingWritten)
{
    check_bit_copy_errors(tavsCopy_1u);
    check_bit_copy_errors(tavsCopyLE_1u);
    check_bit_copy_errors(tavsCopyBE_1u);
}

TEST(CopyBits, OffsetEightReadsTheFirstBitOfTheFirstByte)
{
    // The offset is not a byte step: 8 acts as 0 and the pointer stays.
    const Tav8u src[2] = {0xA5, 0x00};
    Tav8u dst[1] = {0x00};
    ASSERT_EQ(tavsCopy_1u(src, 8, dst, 0, 8), StatusOk);
    EXPECT_EQ(dst[0], 0xA5);
    const Tav8u one[1] = {0x80};
    Tav8u d2[1] = {0x00};
    ASSERT_EQ(tavsCopy_1u(one, 8, d2, 0, 1), StatusOk);
    EXPECT_EQ(d2[0], 0x80);
    // 9 acts as 1 on both sides.
    Tav8u d3[1] = {0x00};
    ASSERT_EQ(tavsCopy_1u(src, 9, d3, 9, 7), StatusOk);
    EXPECT_EQ(d3[0], 0x25);
}

TEST(CopyBits, TopBitAgainstLowestBit)
{
    const Tav8u src[1] = {0x80};
    Tav8u le[1] = {0x00};
    ASSERT_EQ(tavsCopyLE_1u(src, 0, le, 0, 1), StatusOk);
    EXPECT_EQ(le[0], 0x80);
    Tav8u be[1] = {0xFF};
    ASSERT_EQ(tavsCopyBE_1u(src, 0, be, 0, 1), StatusOk);
    EXPECT_EQ(be[0], 0xFE);
    Tav8u be2[1] = {0x00};
    const Tav8u low[1] = {0x01};
    ASSERT_EQ(tavsCopyBE_1u(low, 0, be2, 0, 1), StatusOk);
    EXPECT_EQ(be2[0], 0x01);
}

// ---- PackBits ---------------------------------------------------------

struct Packed {
    std::vector<Tav8u> dst;
    Tav32s total;
    Status status;
};

// Reference bit writer: clamps each count, writes its low bits most
// significant first from bit (offset & 7) of dst[0]; other bits keep.
Packed pack_reference(const std::vector<Tav32u>& src, const std::vector<Tav32s>& counts,
                      std::vector<Tav8u> dst, int offset)
{
    size_t pos = size_t(offset & 7);
    int64_t total = 0;
    Status st = StatusOk;
    for (size_t i = 0; i < src.size(); ++i) {
        int c = counts[i];
        if (c > 32) c = 32, st = WarnBitCount;
        if (c < 0) c = 0, st = WarnBitCount;
        for (int j = c - 1; j >= 0; --j)
            set_bit(dst, pos++, ((src[i] >> j) & 1u) != 0, true);
        total += c;
    }
    return {dst, Tav32s(total), st};
}

Tav32s random_count(tt::Rng& r)
{
    switch (r.next() % 10) {
    case 0:
        return Tav32s(r.range(33, 40));
    case 1:
        return Tav32s(r.range(-3, -1));
    case 2:
        return r.next() % 2 ? INT32_MAX : INT32_MIN;
    case 3:
        return 0;
    case 4:
        return 32;
    default:
        return Tav32s(r.range(1, 31));
    }
}

TEST(PackBits, AgainstReferenceBitWriter)
{
    tt::Rng r(61);
    for (int iter = 0; iter < 3000; ++iter) {
        const int len = int(r.range(1, 60));
        const int offset = int(r.range(0, 20));
        const bool clampAll = iter % 4 != 0; // a quarter of the runs have no clamped count
        std::vector<Tav32u> src(static_cast<size_t>(len));
        std::vector<Tav32s> counts(static_cast<size_t>(len));
        int64_t bits = 0;
        for (int i = 0; i < len; ++i) {
            src[size_t(i)] = Tav32u(r.next());
            counts[size_t(i)] = clampAll ? random_count(r) : Tav32s(r.range(0, 32));
            const int c = counts[size_t(i)];
            bits += c > 32 ? 32 : c < 0 ? 0 : c;
        }
        // Exactly the bytes the run touches (at least one).
        const size_t bytes = std::max<size_t>(1, (size_t(offset & 7) + size_t(bits) + 7) / 8);
        std::vector<Tav8u> dst = random_bytes(r, bytes);
        const Packed want = pack_reference(src, counts, dst, offset);
        Tav32s total = -12345;
        const Status st = tavsPackBits_32u8u(src.data(), counts.data(), len, dst.data(), offset, &total);
        ASSERT_EQ(st, want.status) << iter;
        ASSERT_EQ(total, want.total) << iter;
        ASSERT_EQ(dst, want.dst) << "iter " << iter << " len " << len << " offset " << offset;
    }
}

TEST(PackBits, KeepsLeadingAndTrailingBits)
{
    // Offset 3: the top three bits of the first byte stay; 7 bits packed end
    // two bits into the second byte, whose low six bits stay.
    Tav8u dst[2] = {0xFF, 0xFF};
    const Tav32u src[2] = {0x0, 0x0};
    const Tav32s counts[2] = {4, 3};
    Tav32s total = 0;
    ASSERT_EQ(tavsPackBits_32u8u(src, counts, 2, dst, 3, &total), StatusOk);
    EXPECT_EQ(total, 7);
    EXPECT_EQ(dst[0], 0xE0);
    EXPECT_EQ(dst[1], 0x3F);
    // Offset 11 counts as 3: the pointer is not advanced.
    Tav8u d2[1] = {0x00};
    const Tav32u ones[1] = {0xFFFFFFFFu};
    const Tav32s two[1] = {2};
    ASSERT_EQ(tavsPackBits_32u8u(ones, two, 1, d2, 11, &total), StatusOk);
    EXPECT_EQ(d2[0], 0x18);
    EXPECT_EQ(total, 2);
}

TEST(PackBits, CountAboveThirtyTwoPacksThirtyTwo)
{
    const Tav32u src[2] = {0x89ABCDEFu, 0x1u};
    const Tav32s counts[2] = {40, 1};
    Tav8u dst[5] = {0, 0, 0, 0, 0x55};
    Tav32s total = 0;
    EXPECT_EQ(tavsPackBits_32u8u(src, counts, 2, dst, 0, &total), WarnBitCount);
    EXPECT_EQ(total, 33);
    const Tav8u want[5] = {0x89, 0xAB, 0xCD, 0xEF, 0xD5};
    EXPECT_EQ(std::memcmp(dst, want, 5), 0);
}

TEST(PackBits, NegativeCountAppendsNothingAndWarns)
{
    const Tav32u src[3] = {0x5u, 0xFFu, 0x3u};
    const Tav32s counts[3] = {3, -7, 2};
    Tav8u dst[1] = {0x07};
    Tav32s total = 0;
    EXPECT_EQ(tavsPackBits_32u8u(src, counts, 3, dst, 0, &total), WarnBitCount);
    EXPECT_EQ(total, 5);
    EXPECT_EQ(dst[0], 0xBF); // 101 11, then the low three bits kept
}

TEST(PackBits, ZeroCountsWriteNothing)
{
    const Tav32u src[2] = {0xFFu, 0xFFu};
    const Tav32s counts[2] = {0, 0};
    tt::Guarded<Tav8u> g(1);
    Tav32s total = -1;
    EXPECT_EQ(tavsPackBits_32u8u(src, counts, 2, g.data(), 5, &total), StatusOk);
    EXPECT_EQ(total, 0);
    EXPECT_TRUE(g.untouched());
}

TEST(PackBits, ErrorsInOrderAndNothingWritten)
{
    const Tav32u src[1] = {1};
    const Tav32s counts[1] = {40};
    tt::Guarded<Tav8u> g(4);
    tt::Guarded<Tav32s> t(1);
    Tav8u* d = g.data();
    Tav32s* tb = t.data();
    EXPECT_EQ(tavsPackBits_32u8u(nullptr, counts, 1, d, 0, tb), ErrNullPtr);
    EXPECT_EQ(tavsPackBits_32u8u(src, nullptr, 1, d, 0, tb), ErrNullPtr);
    EXPECT_EQ(tavsPackBits_32u8u(src, counts, 1, nullptr, 0, tb), ErrNullPtr);
    EXPECT_EQ(tavsPackBits_32u8u(src, counts, 1, d, 0, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsPackBits_32u8u(nullptr, counts, 0, d, -1, tb), ErrNullPtr); // pointers first
    EXPECT_EQ(tavsPackBits_32u8u(src, counts, 0, d, 0, tb), ErrSize);
    EXPECT_EQ(tavsPackBits_32u8u(src, counts, -1, d, 0, tb), ErrSize);
    EXPECT_EQ(tavsPackBits_32u8u(src, counts, INT_MIN, d, 0, tb), ErrSize);
    EXPECT_EQ(tavsPackBits_32u8u(src, counts, 1, d, -1, tb), ErrSize);
    EXPECT_EQ(tavsPackBits_32u8u(src, counts, 1, d, INT_MIN, tb), ErrSize);
    EXPECT_TRUE(g.untouched());
    EXPECT_TRUE(t.untouched());
}

} // namespace
