// Every test of the suite also checks that the library left the caller's
// floating-point control state alone: MXCSR and the x87 control word are
// read before and after each test and must agree.
#include <cstdio>
#include <cstdlib>

#include <gtest/gtest.h>
#include <xmmintrin.h>

namespace {

unsigned short x87_control_word()
{
    unsigned short cw;
    __asm__ volatile("fnstcw %0" : "=m"(cw));
    return cw;
}

class FpStateGuard : public ::testing::EmptyTestEventListener {
    unsigned mxcsr_ = 0;
    unsigned short cw_ = 0;

    void OnTestStart(const ::testing::TestInfo&) override
    {
        mxcsr_ = _mm_getcsr();
        cw_ = x87_control_word();
    }
    void OnTestEnd(const ::testing::TestInfo& info) override
    {
        // Status flags (the low six bits) may change; the control bits may not.
        const unsigned mask = ~0x3Fu;
        if ((_mm_getcsr() & mask) != (mxcsr_ & mask) || x87_control_word() != cw_) {
            std::fprintf(stderr, "floating-point control state changed during %s.%s\n",
                         info.test_suite_name(), info.name());
            changed_ = true;
        }
    }
    void OnTestProgramEnd(const ::testing::UnitTest&) override
    {
        if (changed_) std::exit(1);
    }
    bool changed_ = false;
};

struct Install {
    Install() { ::testing::UnitTest::GetInstance()->listeners().Append(new FpStateGuard); }
};

} // namespace

// Constructed after gtest's registry exists (static init of this TU runs
// before main, and GetInstance creates the registry on first use).
static Install g_install;
