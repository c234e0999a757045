#pragma once

namespace tt {

template <class Fn> int for_each_alloc_failure(Fn fn)
{
    for (int n = 1; n < 1000; ++n) {
        const long liveBefore = live_blocks();
        const long callsBefore = alloc_calls();
        fail_alloc_at(n);
        const bool failed = fn();
        const long calls = alloc_calls() - callsBefore;
        fail_alloc_at(0);
        if (calls < n) return failed ? -1 : n - 1; // the n-th allocation never happened
        if (!failed) return -1;                   // success although an allocation failed
        if (live_blocks() != liveBefore) return -1;
    }
    return -1;
}

} // namespace tt
