// Allocation failure on demand. The test binaries define tavMalloc and
// tavFree themselves (and export them), so libtavs reaches these instead of
// the core's; they forward to the core and count.
#pragma once

namespace tt {

// The n-th tavMalloc from now fails (n >= 1); 0 turns failure off.
void fail_alloc_at(int n);
// Blocks taken through tavMalloc and not yet given back.
long live_blocks();
// Calls of tavMalloc since the start.
long alloc_calls();

// Runs fn with the n-th allocation failing, for n = 1, 2, ... until fn
// succeeds without a failure being injected. fn returns true when the call
// reported ErrMemAlloc (it must also have released what it took), false when
// it succeeded. Returns the number of failing runs, or -1 when a run broke
// the rules (success while an allocation failed, or blocks left over).
template <class Fn> int for_each_alloc_failure(Fn fn);

} // namespace tt

#include "alloc_fault_impl.h"
