#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "error_number.h"
#include "platform/convert.h"
#include "platform/runtime_error.h"

namespace platform {
namespace {

using testing::ErrorNumberOf;

TEST(RoundHalfEven, SendsTiesToTheEvenNeighbour) {
    const struct {
        double value;
        int decimals;
        double rounded;
    } cases[] = {
        {2.5, 0, 2},         {3.5, 0, 4},        {-2.5, 0, -2},       {0.5, 0, 0},
        {1.5, 0, 2},         {2.4999, 0, 2},     {2.5001, 0, 3},      {0.125, 2, 0.12},
        {0.375, 2, 0.38},    {-0.125, 2, -0.12}, {1234.5678, 2, 1234.57},
        // ties as the figures read, whatever their binary neighbour
        {2.675, 2, 2.68},    {1.005, 2, 1.0},    {1.015, 2, 1.02},
        {0.1 + 0.2, 2, 0.3}, {9.995, 2, 10.0},   {0.0049, 2, 0.0},    {12.0, 3, 12.0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(RoundHalfEven(c.value, c.decimals), c.rounded) << c.value << " to " << c.decimals;
    EXPECT_EQ(ErrorNumberOf([] { RoundHalfEven(1.5, -1); }), err::InvalidCall);
}

TEST(CInt, RoundsHalfToEvenWithinSixteenBits) {
    const struct {
        double value;
        int result;
    } cases[] = {
        {2.5, 2},          {3.5, 4},          {-2.5, -2},      {-3.5, -4},           {0.5, 0},
        {1.5, 2},          {2.4999, 2},       {-0.4, 0},       {32767.4, 32767},     {-32768.5, -32768},
    };
    for (const auto& c : cases) EXPECT_EQ(CInt(c.value), c.result) << c.value;
    for (double outside : {32767.5, -32768.51, 40000.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(ErrorNumberOf([=] { CInt(outside); }), err::Overflow) << outside;
}

TEST(CLng, RoundsHalfToEvenWithinThirtyTwoBits) {
    EXPECT_EQ(CLng(2.5), 2);
    EXPECT_EQ(CLng(-3.5), -4);
    EXPECT_EQ(CLng(2147483647.4), 2147483647);
    EXPECT_EQ(CLng(-2147483648.5), -2147483648LL);
    EXPECT_EQ(ErrorNumberOf([] { CLng(2147483647.5); }), err::Overflow);
    EXPECT_EQ(ErrorNumberOf([] { CLng(-2147483649.0); }), err::Overflow);
}

TEST(IntAndFix, DifferOnlyForNegatives) {
    EXPECT_EQ(Int(2.7), 2.0);
    EXPECT_EQ(Fix(2.7), 2.0);
    EXPECT_EQ(Int(-2.5), -3.0);
    EXPECT_EQ(Fix(-2.5), -2.0);
    EXPECT_EQ(Int(-3.0), -3.0);
}

}  // namespace
}  // namespace platform
