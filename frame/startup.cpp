// Start-up. When the module is attached it asks the core for the enabled
// processor features and records whether both bits 4 and 5 are set. The
// flag is a documented hook and nothing reads it: no result and no path
// depends on the processor beyond the SSE2 baseline.
#include "tavcore.h"

namespace {

// Written once at attach, never read.
[[maybe_unused]] volatile int g_cpuFlag = 0;

__attribute__((constructor)) void tavs_attach()
{
    const unsigned long long mask = tavGetEnabledCpuFeatures();
    const unsigned long long both = (1ull << 4) | (1ull << 5);
    g_cpuFlag = (mask & both) == both ? 1 : 0;
}

} // namespace
