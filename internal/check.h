// Argument checks. Every body reads as its check order: pointers, then the
// length, then selectors; the order is part of the behaviour.
#pragma once

#include "internal/types.h"

namespace tavs {

// True when any of the pointers is null.
template <class... P> inline bool any_null(const P*... p) { return ((p == nullptr) || ...); }

// The common head of an element-wise body: ErrNullPtr for any null pointer,
// then ErrSize for len below 1, else StatusOk.
template <class... P> inline Status check_ptrs_len(int len, const P*... p)
{
    if (any_null(p...)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    return StatusOk;
}

} // namespace tavs
