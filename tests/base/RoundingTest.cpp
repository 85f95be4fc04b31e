// Whole numbers from single precision and from doubles: ties, signs, and sizes near the limits of
// the types. Reading numbers from text is in formats/MapTextTest.cpp.
#include "base/Rounding.h"

#include <gtest/gtest.h>

namespace tumbledeep {

TEST(Rounding, TiesGoToEvenAtEverySize) {
    for (const auto& [value, whole] : {std::pair{2.5F, 2.0F},
                                       {3.5F, 4.0F},
                                       {-0.5F, 0.0F},
                                       {-1.5F, -2.0F},
                                       {0.49999997F, 0.0F},
                                       {4194304.5F, 4194304.0F},
                                       {4194305.5F, 4194306.0F},
                                       {-8388607.5F, -8388608.0F},
                                       {16777217.0F, 16777216.0F},
                                       {3e38F, 3e38F}}) {
        EXPECT_EQ(RoundToEven(value), whole) << value;
    }
    EXPECT_EQ(NearestTo16(1e39), 32767);
    EXPECT_EQ(NearestTo16(-40000), -32768);
    EXPECT_EQ(NearestTo16(2.5), 2);
}

TEST(Rounding, CounterStopsAtItsLimit) {
    std::int16_t counter = 32766;
    for (int i = 0; i < 3; ++i) CountUp(counter);
    EXPECT_EQ(counter, 32767);
}

} // namespace tumbledeep
