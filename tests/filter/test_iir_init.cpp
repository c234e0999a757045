// Init and InitAlloc of every record: the header fields and where taps and
// delay lie in the block, the held taps, the delay (given or zeroed, plus
// the extra zero of the arbitrary order), the check order, nothing written
// for refused taps, allocation and its failures.
#include <gtest/gtest.h>

#include <climits>

#include "alloc_fault.h"
#include "iir_rows.h"

namespace {

using namespace iirt;
using tavs::iir::Record;

uintptr_t up(uintptr_t v, uintptr_t a) { return (v + a - 1) & ~(a - 1); }

// Header, placement and contents of a record laid out in buf.
void check_record(const Row& r, const Record* rec, const Tav8u* buf, int n,
                  const std::vector<unsigned char>& held, const std::vector<unsigned char>* dly,
                  int allocated)
{
    const uintptr_t base = up(reinterpret_cast<uintptr_t>(buf), 32);
    const uintptr_t al = r.cls == Cls::C32 ? 32 : 16;
    ASSERT_EQ(reinterpret_cast<uintptr_t>(rec), base) << r.name;
    EXPECT_EQ(rec->tag, r.tag) << r.name;
    EXPECT_EQ(rec->dlyLen, int(dly_count(r, n))) << r.name;
    EXPECT_EQ(rec->numBq, r.layout == Layout::Arb ? 0 : n) << r.name;
    EXPECT_EQ(rec->isAllocated, allocated) << r.name;
    const uintptr_t taps = reinterpret_cast<uintptr_t>(rec->taps);
    EXPECT_EQ(taps, up(base + 40, al)) << r.name;
    EXPECT_EQ(reinterpret_cast<uintptr_t>(rec->dlyLine), up(taps + held_count(r, n) * r.heldBytes, al))
        << r.name;
    ASSERT_EQ(held.size(), held_count(r, n) * r.heldBytes);
    EXPECT_EQ(std::memcmp(rec->taps, held.data(), held.size()), 0) << r.name << " taps, n " << n;
    const size_t dbytes = dly_count(r, n) * r.dlyBytes;
    std::vector<unsigned char> zeros(dbytes + r.dlyBytes, 0);
    const auto* d = static_cast<const unsigned char*>(rec->dlyLine);
    if (dly)
        EXPECT_EQ(std::memcmp(d, dly->data(), dbytes), 0) << r.name;
    else
        EXPECT_EQ(std::memcmp(d, zeros.data(), dbytes), 0) << r.name;
    if (r.layout == Layout::Arb) EXPECT_EQ(std::memcmp(d + dbytes, zeros.data(), r.dlyBytes), 0) << r.name;
}

TEST(IirInit, EveryRecordIsLaidOutAsSized)
{
    tt::Rng g(2101);
    for (const Row& r : rows())
        for (int n : {1, 2, 3, 7})
            for (size_t off : {size_t(0), size_t(1), size_t(13), size_t(31), size_t(40), size_t(63)}) {
                int size = 0;
                ASSERT_EQ(r.size(n, &size), StatusOk);
                auto given = row_taps(g, r, n);
                auto taps = tap_bytes(r, given);
                auto dly = dly_bytes(g, r, n);
                const bool withDly = off % 2 == 0;
                tt::Guarded<Tav8u> buf(size_t(size), off);
                void* st = nullptr;
                ASSERT_EQ(r.init(&st, taps.data(), n, withDly ? dly.data() : nullptr, buf.data()), StatusOk)
                    << r.name;
                ASSERT_TRUE(buf.borders_intact()) << r.name << " wrote outside its size, n " << n;
                check_record(r, static_cast<Record*>(st), buf.data(), n, held_bytes(r, given, n),
                             withDly ? &dly : nullptr, 0);
                // Free of an Init record succeeds and leaves it usable.
                EXPECT_EQ(r.free_(st), StatusOk);
                EXPECT_EQ(static_cast<Record*>(st)->tag, r.tag);
            }
}

TEST(IirInit, ChecksInOrderAndWritesNothingOnError)
{
    tt::Rng g(2202);
    for (const Row& r : rows()) {
        const int n = 2;
        auto given = row_taps(g, r, n);
        auto taps = tap_bytes(r, given);
        int size = 0;
        ASSERT_EQ(r.size(n, &size), StatusOk);
        tt::Guarded<Tav8u> buf(static_cast<size_t>(size));
        void* st = &buf; // must stay as it is on every error
        void* const before = st;
        EXPECT_EQ(r.init(&st, nullptr, 0, nullptr, buf.data()), ErrNullPtr) << r.name;
        EXPECT_EQ(r.init(nullptr, taps.data(), 0, nullptr, buf.data()), ErrNullPtr) << r.name;
        EXPECT_EQ(r.init(&st, taps.data(), 0, nullptr, nullptr), ErrNullPtr) << r.name;
        EXPECT_EQ(r.init(&st, taps.data(), 0, nullptr, buf.data()), ErrFilterOrder) << r.name;
        EXPECT_EQ(r.init(&st, taps.data(), -3, nullptr, buf.data()), ErrFilterOrder) << r.name;
        EXPECT_EQ(r.init(&st, taps.data(), INT_MAX, nullptr, buf.data()), ErrFilterOrder) << r.name;
        // a0 = 0 (the last section's, for the cascades): ErrDivByZero, and
        // the refused taps leave the block and the pointer as they were.
        auto bad = given;
        const size_t a0 = r.layout == Layout::Arb ? size_t(n) + 1 : 6 * size_t(n - 1) + 3;
        bad[a0] = {0.0, 0.0};
        auto badTaps = tap_bytes(r, bad);
        EXPECT_EQ(r.init(&st, badTaps.data(), n, nullptr, buf.data()), ErrDivByZero) << r.name;
        // b0 = 0 is refused by the biquad layout only.
        auto b0 = given;
        b0[r.layout == Layout::Arb ? 0 : 6] = {0.0, 0.0};
        auto b0Taps = tap_bytes(r, b0);
        const Status b0Status = r.init(&st, b0Taps.data(), n, nullptr, buf.data());
        if (r.layout == Layout::Bq) {
            EXPECT_EQ(b0Status, ErrDivByZero) << r.name;
            EXPECT_TRUE(buf.untouched()) << r.name;
            EXPECT_EQ(st, before);
        } else {
            EXPECT_EQ(b0Status, StatusOk) << r.name;
            check_record(r, static_cast<Record*>(st), buf.data(), n, held_bytes(r, b0, n), nullptr, 0);
        }
        if (r.layout == Layout::Bq) continue;
        tt::Guarded<Tav8u> clean(static_cast<size_t>(size));
        void* st2 = before;
        EXPECT_EQ(r.init(&st2, badTaps.data(), n, nullptr, clean.data()), ErrDivByZero) << r.name;
        EXPECT_TRUE(clean.untouched()) << r.name;
        EXPECT_EQ(st2, before);
    }
}

// Direct form I copies a section whose a0 is exactly 1 as given.
TEST(IirInit, DirectFormICopiesWhenA0IsOne)
{
    for (const Row& r : rows()) {
        if (r.layout != Layout::Df1) continue;
        std::vector<Z<double>> v = {{0.1, 0}, {0.2, 0}, {0.3, 0}, {1.0, 0}, {0.4, 0}, {0.05, 0}};
        auto taps = tap_bytes(r, v);
        std::vector<Tav8u> mem(1024);
        void* st = nullptr;
        ASSERT_EQ(r.init(&st, taps.data(), 1, nullptr, mem.data()), StatusOk);
        const auto* rec = static_cast<Record*>(st);
        for (int j = 0; j < 5; ++j) {
            const int from = j < 3 ? j : j + 1;
            EXPECT_EQ(std::memcmp(static_cast<const char*>(rec->taps) + j * r.heldBytes,
                                  taps.data() + from * r.tapBytes, r.heldBytes),
                      0)
                << r.name << " " << j;
        }
    }
}

TEST(IirInitAlloc, EveryRecordAllocatesAndFrees)
{
    tt::Rng g(2303);
    for (const Row& r : rows())
        for (int n : {1, 4}) {
            auto given = row_taps(g, r, n);
            auto taps = tap_bytes(r, given);
            auto dly = dly_bytes(g, r, n);
            const long live = tt::live_blocks();
            void* st = nullptr;
            ASSERT_EQ(r.alloc(&st, taps.data(), n, dly.data()), StatusOk) << r.name;
            EXPECT_EQ(tt::live_blocks(), live + 1) << r.name << ": only the record stays allocated";
            check_record(r, static_cast<Record*>(st), static_cast<Tav8u*>(st), n, held_bytes(r, given, n),
                         &dly, 1);
            EXPECT_EQ(r.free_(st), StatusOk) << r.name;
            EXPECT_EQ(tt::live_blocks(), live) << r.name;
        }
}

TEST(IirInitAlloc, ChecksAndFailures)
{
    tt::Rng g(2404);
    for (const Row& r : rows()) {
        const int n = 3;
        auto given = row_taps(g, r, n);
        auto taps = tap_bytes(r, given);
        void* st = &g;
        const long live = tt::live_blocks();
        EXPECT_EQ(r.alloc(&st, nullptr, 0, nullptr), ErrNullPtr) << r.name;
        EXPECT_EQ(r.alloc(nullptr, taps.data(), 0, nullptr), ErrNullPtr) << r.name;
        EXPECT_EQ(r.alloc(&st, taps.data(), 0, nullptr), ErrFilterOrder) << r.name;
        EXPECT_EQ(r.alloc(&st, taps.data(), INT_MAX, nullptr), ErrFilterOrder) << r.name;
        auto bad = given;
        bad[r.layout == Layout::Arb ? size_t(n) + 1 : 9] = {0.0, 0.0};
        auto badTaps = tap_bytes(r, bad);
        EXPECT_EQ(r.alloc(&st, badTaps.data(), n, nullptr), ErrDivByZero) << r.name;
        EXPECT_EQ(st, static_cast<void*>(&g));
        EXPECT_EQ(tt::live_blocks(), live) << r.name;
        // Every allocation failing in turn: ErrMemAlloc, nothing kept.
        const int fails = tt::for_each_alloc_failure([&]() {
            void* p = nullptr;
            const Status s = r.alloc(&p, taps.data(), n, nullptr);
            if (s == ErrMemAlloc) return true;
            EXPECT_EQ(s, StatusOk);
            EXPECT_EQ(r.free_(p), StatusOk);
            return false;
        });
        EXPECT_EQ(fails, r.factor ? 2 : 1) << r.name;
        // The 32s forms over the caller's block take one temporary.
        if (r.factor) {
            int size = 0;
            ASSERT_EQ(r.size(n, &size), StatusOk);
            tt::Guarded<Tav8u> buf(static_cast<size_t>(size));
            EXPECT_EQ(tt::for_each_alloc_failure([&]() {
                          void* p = nullptr;
                          const Status s = r.init(&p, taps.data(), n, nullptr, buf.data());
                          if (s == ErrMemAlloc) {
                              EXPECT_TRUE(buf.untouched());
                              return true;
                          }
                          return false;
                      }),
                      1)
                << r.name;
        }
    }
}

} // namespace
