#include <gtest/gtest.h>

#include <cstring>

#include "tavs.h"

TEST(Version, RecordHoldsTheDocumentedValues)
{
    const TavLibVersion* v = tavsGetLibVersion();
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v->major, 8);
    EXPECT_EQ(v->minor, 2);
    EXPECT_EQ(v->majorBuild, 3);
    EXPECT_EQ(v->build, 48108);
    const char cpu[4] = {'m', 'x', 0, 0};
    EXPECT_EQ(std::memcmp(v->targetCpu, cpu, 4), 0);
    EXPECT_STREQ(v->name, "tavSP PX (mx)");
    EXPECT_STREQ(v->version, "8.2.3 (r48108)");
    EXPECT_STREQ(v->buildDate, "Jul 23 2015");
}

TEST(Version, SamePointerEveryCall) { EXPECT_EQ(tavsGetLibVersion(), tavsGetLibVersion()); }

TEST(Version, RecordLayout)
{
    EXPECT_EQ(offsetof(TavLibVersion, targetCpu), 16u);
    EXPECT_EQ(offsetof(TavLibVersion, name), 24u);
    EXPECT_EQ(offsetof(TavLibVersion, buildDate), 40u);
}
