#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "tavs.h"
#include "test_util.h"

namespace {

template <class T, class F> void check_zero(F fn)
{
    for (int len : {1, 2, 7, 33, 100}) {
        tt::Guarded<T> g(size_t(len), 3);
        ASSERT_EQ(fn(g.data(), len), StatusOk);
        const auto* bytes = reinterpret_cast<const unsigned char*>(g.data());
        for (size_t i = 0; i < size_t(len) * sizeof(T); ++i) ASSERT_EQ(bytes[i], 0);
        EXPECT_TRUE(g.borders_intact());
    }
    tt::Guarded<T> g(4);
    EXPECT_EQ(fn(nullptr, 0), ErrNullPtr); // pointers are tested first
    EXPECT_EQ(fn(g.data(), 0), ErrSize);
    EXPECT_EQ(fn(g.data(), -1), ErrSize);
    EXPECT_EQ(fn(g.data(), INT32_MIN), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(Zero, EveryType)
{
    check_zero<Tav8u>(tavsZero_8u);
    check_zero<Tav16s>(tavsZero_16s);
    check_zero<Tav16sc>(tavsZero_16sc);
    check_zero<Tav32f>(tavsZero_32f);
    check_zero<Tav32s>(tavsZero_32s);
    check_zero<Tav32fc>(tavsZero_32fc);
    check_zero<Tav32sc>(tavsZero_32sc);
    check_zero<Tav64f>(tavsZero_64f);
    check_zero<Tav64s>(tavsZero_64s);
    check_zero<Tav64fc>(tavsZero_64fc);
    check_zero<Tav64sc>(tavsZero_64sc);
}

TEST(Zero, SharedBodyGivesPositiveZero)
{
    float f[3] = {-1.0f, NAN, -0.0f};
    Tav32s i[3] = {1, 2, 3};
    ASSERT_EQ(tavsZero_32f(f, 3), StatusOk);
    ASSERT_EQ(tavsZero_32s(i, 3), StatusOk);
    for (int k = 0; k < 3; ++k) {
        EXPECT_FALSE(std::signbit(f[k]));
        EXPECT_EQ(f[k], 0.0f);
        EXPECT_EQ(i[k], 0);
    }
}

} // namespace
