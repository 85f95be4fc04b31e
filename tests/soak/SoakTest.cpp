// A short soak; tumbledeep-soak is for the long ones.
#include "soak/Soak.h"

#include <gtest/gtest.h>

namespace tumbledeep {

TEST(Soak, RandomMapsHoldTogether) {
    for (std::uint32_t seed = 1; seed <= 60; ++seed) EXPECT_EQ(Soak(seed, 400), "");
}

} // namespace tumbledeep
