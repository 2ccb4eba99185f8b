#include <gtest/gtest.h>

#include <limits>

#include "error_number.h"
#include "platform/convert.h"

namespace platform {
namespace {

using testing::ErrorNumberOf;

TEST(RoundHalfEven, SendsTiesAsTheFiguresReadToTheEvenNeighbour) {
    const struct {
        double value;
        int decimals;
        double rounded;
    } cases[] = {
        {2.5, 0, 2},      {3.5, 0, 4},       {-2.5, 0, -2},   {0.5, 0, 0},         {2.5001, 0, 3},
        {0.125, 2, 0.12}, {0.375, 2, 0.38},  {-0.125, 2, -0.12}, {2.675, 2, 2.68}, {1.005, 2, 1.0},
        {1.015, 2, 1.02}, {0.1 + 0.2, 2, 0.3}, {9.995, 2, 10.0}, {0.0049, 2, 0.0}, {12.0, 3, 12.0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(RoundHalfEven(c.value, c.decimals), c.rounded) << c.value << " to " << c.decimals;
    EXPECT_EQ(ErrorNumberOf([] { RoundHalfEven(1.5, -1); }), err::InvalidCall);
}

TEST(CIntCLngIntFix, RoundOrCutWithinTheirRange) {
    const struct {
        double value;
        long long cint, clng;
        double intPart, fixPart;
    } cases[] = {
        {2.5, 2, 2, 2, 2},         {3.5, 4, 4, 3, 3},          {-2.5, -2, -2, -3, -2},
        {-3.5, -4, -4, -4, -3},    {2.4999, 2, 2, 2, 2},       {-0.4, 0, 0, -1, -0},
        {2.7, 3, 3, 2, 2},         {-3.0, -3, -3, -3, -3},     {32767.4, 32767, 32767, 32767, 32767},
        {-32768.5, -32768, -32768, -32769, -32768},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.value);
        EXPECT_EQ(CInt(c.value), c.cint);
        EXPECT_EQ(CLng(c.value), c.clng);
        EXPECT_EQ(Int(c.value), c.intPart);
        EXPECT_EQ(Fix(c.value), c.fixPart);
    }
    for (double outside : {32767.5, -32768.51, 40000.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(ErrorNumberOf([=] { CInt(outside); }), err::Overflow) << outside;
    EXPECT_EQ(CLng(2147483647.4), 2147483647);
    EXPECT_EQ(CLng(-2147483648.5), -2147483648LL);
    for (double outside : {2147483647.5, -2147483649.0})
        EXPECT_EQ(ErrorNumberOf([=] { CLng(outside); }), err::Overflow) << outside;
}

}  // namespace
}  // namespace platform
