#include "baselib/base.h"
#include <gtest/gtest.h>

TEST(Base, FreshElementCountsAsEmptyAndTaggedOneAsAlive)
{
    EXPECT_FALSE(VrBaseCL().IsAliveM());
    VrBaseCL tagged(AliveTag);
    EXPECT_TRUE(tagged.IsAliveM());
    tagged.DelItemM();
    EXPECT_EQ(tagged.GetDeleteTagM(), 32);
}
