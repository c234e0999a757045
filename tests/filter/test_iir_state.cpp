// State sizes, Free, new taps and delay-line copies of every record.
#include <gtest/gtest.h>

#include <climits>

#include "alloc_fault.h"
#include "iir_rows.h"

namespace {

using namespace iirt;
using tavs::iir::Record;

// The size table, written out once more from the record description.
int64_t a16(int64_t v) { return (v + 15) / 16 * 16; }
int64_t a32(int64_t v) { return (v + 31) / 32 * 32; }
int64_t table_size(const Row& r, int64_t n)
{
    switch (r.cls) {
    case Cls::F32:
        if (r.layout == Layout::Arb) return a16(4 * n + 4) + a16(8 * n + 4) + 128;
        if (r.layout == Layout::Bq) return a16(8 * n) + a16(20 * n) + 128;
        return a16(20 * n) + 16 * n + 128;
    case Cls::C32:
        if (r.layout == Layout::Arb) return a32(8 * n + 8) + a32(16 * n + 8) + 128;
        return a32(16 * n) + a32(40 * n) + 160;
    case Cls::F64:
        if (r.layout == Layout::Arb) return a16(8 * n + 8) + a16(16 * n + 8) + 128;
        if (r.layout == Layout::Bq) return a16(40 * n) + 16 * n + 96;
        return a16(40 * n) + 48 * n + 96;
    case Cls::C64:
        return r.layout == Layout::Arb ? 48 * n + 160 : 112 * n + 128;
    }
    return -1;
}

TEST(IirStateSize, EveryRecordFollowsTheTable)
{
    for (const Row& r : rows()) {
        for (int n = 1; n <= 70; ++n) {
            int size = -1;
            ASSERT_EQ(r.size(n, &size), StatusOk) << r.name;
            ASSERT_EQ(size, table_size(r, n)) << r.name << " n " << n;
        }
        // The largest count whose size fits in 32 bits, and the next one.
        int64_t lo = 1, hi = INT_MAX;
        while (lo < hi) {
            const int64_t mid = (lo + hi + 1) / 2;
            if (table_size(r, mid) <= INT_MAX)
                lo = mid;
            else
                hi = mid - 1;
        }
        int size = -1;
        EXPECT_EQ(r.size(int(lo), &size), StatusOk) << r.name;
        EXPECT_EQ(size, table_size(r, lo)) << r.name;
        size = -1;
        EXPECT_EQ(r.size(int(lo) + 1, &size), ErrFilterOrder) << r.name;
        EXPECT_EQ(r.size(INT_MAX, &size), ErrFilterOrder) << r.name;
        EXPECT_EQ(size, -1);
        // Checks: size null first, then the count.
        EXPECT_EQ(r.size(0, nullptr), ErrNullPtr) << r.name;
        EXPECT_EQ(r.size(0, &size), ErrFilterOrder) << r.name;
        EXPECT_EQ(r.size(-1, &size), ErrFilterOrder) << r.name;
        EXPECT_EQ(r.size(INT_MIN, &size), ErrFilterOrder) << r.name;
        EXPECT_EQ(size, -1);
    }
}

// The sizes of the two 32s-tap forms of a record are one formula.
TEST(IirStateSize, SharedFormulas)
{
    for (int n = 1; n < 40; ++n) {
        int a = 0, b = 0;
        ASSERT_EQ(tavsIIRGetStateSize32s_16s(n, &a), StatusOk);
        ASSERT_EQ(tavsIIRGetStateSize32s_16s32f(n, &b), StatusOk);
        EXPECT_EQ(a, b);
        ASSERT_EQ(tavsIIRGetStateSize32sc_BiQuad_16sc(n, &a), StatusOk);
        ASSERT_EQ(tavsIIRGetStateSize32sc_BiQuad_16sc32fc(n, &b), StatusOk);
        EXPECT_EQ(a, b);
    }
}

// A record of row r, count n, in a block the caller holds.
struct Made {
    std::vector<Tav8u> mem;
    void* st = nullptr;
    Made(const Row& r, int n, const std::vector<unsigned char>& taps, const void* dly)
    {
        int size = 0;
        EXPECT_EQ(r.size(n, &size), StatusOk);
        mem.assign(static_cast<size_t>(size), 0);
        EXPECT_EQ(r.init(&st, taps.data(), n, dly, mem.data()), StatusOk) << r.name;
    }
    Record* rec() const { return static_cast<Record*>(st); }
};

std::vector<unsigned char> bytes_of(const void* p, size_t n)
{
    const auto* b = static_cast<const unsigned char*>(p);
    return std::vector<unsigned char>(b, b + n);
}

// A block that carries a tag of another record kind.
struct Foreign {
    std::vector<Tav8u> mem = std::vector<Tav8u>(512, 0);
    explicit Foreign(int32_t tag) { std::memcpy(mem.data(), &tag, 4); }
    void* p() { return mem.data(); }
};
// "II13" (a 64f record) for the 32f record's rows, "II01" (the 32f record) for the others.
int32_t other_tag(const Row& r)
{
    const bool of32f = r.tag == 0x49493031 || r.tag == 0x49493032 || r.tag == 0x49493239;
    return of32f ? 0x49493133 : 0x49493031;
}

TEST(IirFree, ChecksTheRecord)
{
    for (const Row& r : rows()) {
        EXPECT_EQ(r.free_(nullptr), ErrNullPtr) << r.name;
        Foreign f(other_tag(r)), z(0);
        EXPECT_EQ(r.free_(f.p()), ErrContextMismatch) << r.name;
        EXPECT_EQ(r.free_(z.p()), ErrContextMismatch) << r.name;
    }
}

TEST(IirSetTaps, ReplacesTheTapsAndKeepsTheDelay)
{
    tt::Rng g(3101);
    for (const Row& r : rows())
        for (int n : {1, 3}) {
            auto dly = dly_bytes(g, r, n);
            Made m(r, n, tap_bytes(r, row_taps(g, r, n)), dly.data());
            const Record head = *m.rec();
            const size_t heldSize = held_count(r, n) * r.heldBytes;
            auto given = row_taps(g, r, n);
            ASSERT_EQ(r.setTaps(tap_bytes(r, given).data(), m.st), StatusOk) << r.name;
            EXPECT_EQ(bytes_of(m.rec()->taps, heldSize), held_bytes(r, given, n)) << r.name;
            EXPECT_EQ(std::memcmp(m.rec()->dlyLine, dly.data(), dly.size()), 0) << r.name;
            EXPECT_EQ(std::memcmp(&head, m.rec(), sizeof head), 0) << r.name;

            // Errors leave the record as it is.
            const auto held = bytes_of(m.rec()->taps, heldSize);
            auto bad = given;
            bad[r.layout == Layout::Arb ? size_t(n) + 1 : 3] = {0.0, 0.0};
            EXPECT_EQ(r.setTaps(nullptr, m.st), ErrNullPtr) << r.name;
            EXPECT_EQ(r.setTaps(tap_bytes(r, bad).data(), nullptr), ErrNullPtr) << r.name;
            Foreign f(other_tag(r));
            const auto fBefore = f.mem;
            EXPECT_EQ(r.setTaps(tap_bytes(r, given).data(), f.p()), ErrContextMismatch) << r.name;
            EXPECT_EQ(f.mem, fBefore);
            EXPECT_EQ(r.setTaps(tap_bytes(r, bad).data(), m.st), ErrDivByZero) << r.name;
            EXPECT_EQ(bytes_of(m.rec()->taps, heldSize), held) << r.name;
        }
}

// A bad section stops the cascade's tap step with the sections before it
// stored and those after it as they were.
TEST(IirSetTaps, CascadeStopsAtTheBadSection)
{
    tt::Rng g(3202);
    for (const Row& r : rows()) {
        if (r.layout == Layout::Arb) continue;
        const int n = 3;
        Made m(r, n, tap_bytes(r, row_taps(g, r, n)), nullptr);
        const auto before = bytes_of(m.rec()->taps, held_count(r, n) * r.heldBytes);
        auto given = row_taps(g, r, n);
        const auto want = held_bytes(r, given, n);
        for (size_t slot : {size_t(9), size_t(6)}) { // a0, then b0, of section 1
            if (slot == 6 && r.layout == Layout::Df1) continue;
            auto bad = given;
            bad[slot] = {0.0, 0.0};
            std::memcpy(m.rec()->taps, before.data(), before.size());
            EXPECT_EQ(r.setTaps(tap_bytes(r, bad).data(), m.st), ErrDivByZero) << r.name;
            const auto now = bytes_of(m.rec()->taps, before.size());
            const size_t sec = 5 * r.heldBytes;
            EXPECT_TRUE(std::equal(now.begin(), now.begin() + long(sec), want.begin())) << r.name;
            EXPECT_TRUE(std::equal(now.begin() + long(sec), now.end(), before.begin() + long(sec))) << r.name;
        }
    }
}

TEST(IirSetTaps, FactorFormsReleaseTheirTemporary)
{
    tt::Rng g(3303);
    for (const Row& r : rows()) {
        if (!r.factor) continue;
        Made m(r, 2, tap_bytes(r, row_taps(g, r, 2)), nullptr);
        const auto before = bytes_of(m.rec()->taps, held_count(r, 2) * r.heldBytes);
        auto taps = tap_bytes(r, row_taps(g, r, 2));
        EXPECT_EQ(tt::for_each_alloc_failure([&]() {
                      const Status s = r.setTaps(taps.data(), m.st);
                      if (s == ErrMemAlloc) {
                          EXPECT_EQ(bytes_of(m.rec()->taps, before.size()), before);
                          return true;
                      }
                      EXPECT_EQ(s, StatusOk);
                      return false;
                  }),
                  1)
            << r.name;
    }
}

// One tap store serves the 32fc records and the 32sc_16sc records.
TEST(IirSetTaps, The32fcStoreServesBothRecords)
{
    tt::Rng g(3404);
    for (const Row& r : rows()) {
        if (!(r.complex && !r.wide)) continue;
        const int n = 2;
        Made m(r, n, tap_bytes(r, row_taps(g, r, n)), nullptr);
        std::vector<Z<double>> given = row_taps(g, r, n);
        std::vector<Tav32fc> t(given.size());
        for (size_t i = 0; i < t.size(); ++i)
            t[i] = {float(given[i].re), float(given[i].im)};
        const bool served =
            r.tag == 0x49493033 || r.tag == 0x49493034 || r.tag == 0x49493131 || r.tag == 0x49493132;
        EXPECT_EQ(tavsIIRSetTaps_32fc(t.data(), static_cast<IIRState_32fc*>(m.st)),
                  served ? StatusOk : ErrContextMismatch)
            << r.name;
        EXPECT_EQ(tavsIIRSetTaps32sc_16sc32fc(t.data(), static_cast<IIRState32sc_16sc*>(m.st)),
                  served ? StatusOk : ErrContextMismatch)
            << r.name;
        if (served) {
            // The result equals the 32fc-tap form of the 32sc_16sc record's Init.
            std::vector<Z<double>> asGiven(t.size());
            for (size_t i = 0; i < t.size(); ++i)
                asGiven[i] = {t[i].re, t[i].im};
            Row plain = r;
            plain.factor = false;
            plain.tapBytes = sizeof(Tav32fc);
            EXPECT_EQ(bytes_of(m.rec()->taps, held_count(r, n) * r.heldBytes), held_bytes(plain, asGiven, n));
        }
    }
}

TEST(IirDlyLine, GetAndSetArePlainCopies)
{
    tt::Rng g(3505);
    for (const Row& r : rows())
        for (int n : {1, 2, 5}) {
            auto dly = dly_bytes(g, r, n);
            Made m(r, n, tap_bytes(r, row_taps(g, r, n)), dly.data());
            const size_t cnt = dly_count(r, n), bytes = cnt * r.dlyBytes;
            tt::Guarded<unsigned char> out(bytes);
            ASSERT_EQ(r.get(m.st, out.data()), StatusOk) << r.name;
            EXPECT_EQ(std::memcmp(out.data(), dly.data(), bytes), 0) << r.name;
            EXPECT_TRUE(out.borders_intact()) << r.name;
            auto dly2 = dly_bytes(g, r, n);
            ASSERT_EQ(r.set(m.st, dly2.data()), StatusOk) << r.name;
            EXPECT_EQ(std::memcmp(m.rec()->dlyLine, dly2.data(), bytes), 0) << r.name;
            if (r.layout == Layout::Arb) { // the extra element stays zero
                std::vector<unsigned char> zero(r.dlyBytes, 0);
                EXPECT_EQ(std::memcmp(static_cast<char*>(m.rec()->dlyLine) + bytes, zero.data(), r.dlyBytes),
                          0);
            }
            // Errors: nulls, then the tag; nothing written.
            tt::Guarded<unsigned char> none(bytes);
            EXPECT_EQ(r.get(nullptr, none.data()), ErrNullPtr) << r.name;
            EXPECT_EQ(r.get(m.st, nullptr), ErrNullPtr) << r.name;
            EXPECT_EQ(r.set(nullptr, dly.data()), ErrNullPtr) << r.name;
            EXPECT_EQ(r.set(m.st, nullptr), ErrNullPtr) << r.name;
            Foreign f(other_tag(r)), z(0);
            EXPECT_EQ(r.get(f.p(), none.data()), ErrContextMismatch) << r.name;
            EXPECT_EQ(r.get(z.p(), none.data()), ErrContextMismatch) << r.name;
            const auto fBefore = f.mem;
            EXPECT_EQ(r.set(f.p(), dly.data()), ErrContextMismatch) << r.name;
            EXPECT_EQ(f.mem, fBefore);
            EXPECT_TRUE(none.untouched()) << r.name;
        }
}

// The 64f-tap record over 32s data has separate calls for its direct form
// I history (32s samples) and its transposed layouts (64f values).
TEST(IirDlyLine, DirectFormIOf32sHasItsOwnCalls)
{
    const double bq[6] = {1, 0.5, 0.25, 1, 0.1, 0.2};
    std::vector<Tav8u> m1(1024), m2(1024);
    IIRState64f_32s *df1 = nullptr, *tdf2 = nullptr;
    ASSERT_EQ(tavsIIRInit64f_BiQuad_DF1_32s(&df1, bq, 1, nullptr, m1.data()), StatusOk);
    ASSERT_EQ(tavsIIRInit64f_BiQuad_32s(&tdf2, bq, 1, nullptr, m2.data()), StatusOk);
    Tav32s d32[4] = {1, 2, 3, 4};
    double d64[4] = {1, 2, 3, 4};
    EXPECT_EQ(tavsIIRSetDlyLine64f_DF1_32s(tdf2, d32), ErrContextMismatch);
    EXPECT_EQ(tavsIIRGetDlyLine64f_DF1_32s(tdf2, d32), ErrContextMismatch);
    EXPECT_EQ(tavsIIRSetDlyLine64f_32s(df1, d64), ErrContextMismatch);
    EXPECT_EQ(tavsIIRGetDlyLine64f_32s(df1, d64), ErrContextMismatch);
    EXPECT_EQ(tavsIIRSetDlyLine64f_DF1_32s(df1, d32), StatusOk);
    EXPECT_EQ(tavsIIRSetDlyLine64f_32s(tdf2, d64), StatusOk);
    // The 32f record's calls serve its direct form I too.
    const float f[6] = {1, 0.5f, 0.25f, 1, 0.1f, 0.2f};
    IIRState_32f* s = nullptr;
    ASSERT_EQ(tavsIIRInit_BiQuad_DF1_32f(&s, f, 1, nullptr, m1.data()), StatusOk);
    float fd[4] = {1, 2, 3, 4}, back[4] = {};
    EXPECT_EQ(tavsIIRSetDlyLine_32f(s, fd), StatusOk);
    EXPECT_EQ(tavsIIRGetDlyLine_32f(s, back), StatusOk);
    EXPECT_EQ(std::memcmp(fd, back, sizeof fd), 0);
}

} // namespace
