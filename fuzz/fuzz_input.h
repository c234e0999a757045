// Reads typed values off the fuzzer's bytes; past the end it yields zeros.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

class FuzzInput {
public:
    FuzzInput(const uint8_t* data, size_t size) : p_(data), n_(size) {}
    template <class T> T take()
    {
        T v{};
        const size_t k = n_ < sizeof(T) ? n_ : sizeof(T);
        std::memcpy(&v, p_, k);
        p_ += k;
        n_ -= k;
        return v;
    }
    // An integer in [0, n).
    unsigned pick(unsigned n) { return n ? take<uint16_t>() % n : 0; }
    size_t left() const { return n_; }

private:
    const uint8_t* p_;
    size_t n_;
};

#define FUZZ_CHECK(cond)                                                                                     \
    do {                                                                                                     \
        if (!(cond)) {                                                                                       \
            __builtin_printf("check failed: %s (%s:%d)\n", #cond, __FILE__, __LINE__);                       \
            __builtin_trap();                                                                                \
        }                                                                                                    \
    } while (0)
