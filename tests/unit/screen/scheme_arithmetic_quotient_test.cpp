// The slab count against the counting it stands for: repeated subtraction with every
// operand snapped through its text form, written out here step by step.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <random>
#include <string>

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "schemes/scheme_arithmetic_quotient.h"

namespace {

using schemes::CountBySubtraction;
using schemes::SnapThroughText;

double LiteralCount(double dividend, double divider) {
    double quotient = 0;
    while (SnapThroughText(divider) <= SnapThroughText(dividend)) {
        dividend = SnapThroughText(dividend) - SnapThroughText(divider);
        quotient = SnapThroughText(quotient) + 1;
    }
    return quotient;
}

// A decimal of 1 to 15 significant digits, as a clerk's or a slab's figure.
double RandomDecimal(std::mt19937_64& random, int exponentFrom, int exponentTo) {
    const int digits = std::uniform_int_distribution<int>(1, 15)(random);
    std::string mantissa = std::to_string(std::uniform_int_distribution<int>(1, 9)(random));
    for (int i = 1; i < digits; ++i) mantissa += std::to_string(std::uniform_int_distribution<int>(0, 9)(random));
    const int exponent = std::uniform_int_distribution<int>(exponentFrom, exponentTo)(random);
    return std::stod(mantissa + "e" + std::to_string(exponent - digits + 1));
}

TEST(SlabCount, AgreesWithTheCountingOnRandomFigures) {
    std::mt19937_64 random(20261122);
    for (int i = 0; i < 4000; ++i) {
        const double divider = RandomDecimal(random, -6, 6);
        // A dividend near a whole number of dividers, or anywhere up to a few thousand
        // of them: both ends of every slab are met.
        const int fits = std::uniform_int_distribution<int>(0, 400)(random);
        double dividend;
        switch (i % 4) {
            case 0: dividend = SnapThroughText(divider * fits); break;
            case 1: dividend = divider * fits; break;  // unsnapped: the product's own noise
            case 2: dividend = RandomDecimal(random, -6, 6); break;
            default: dividend = SnapThroughText(divider * fits + RandomDecimal(random, -20, 0)); break;
        }
        if (dividend / divider > 1000) continue;
        ASSERT_EQ(CountBySubtraction(dividend, divider), LiteralCount(dividend, divider))
            << platform::NumberToText(dividend) << " / " << platform::NumberToText(divider);
    }
}

// A divider with more digits than the dividend's fifteen reach takes a rounded step
// each time: the long stride must round it the way the counting does.
TEST(SlabCount, AgreesWhereTheDividerIsFinerThanTheDividend) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 30; ++i) {
        const double divider = RandomDecimal(random, 0, 0);   // 1 to 9.99..., up to 14 decimals
        const double dividend = RandomDecimal(random, 3, 4);  // 1000 to 99999, fewer decimals
        ASSERT_EQ(CountBySubtraction(dividend, divider), LiteralCount(dividend, divider))
            << platform::NumberToText(dividend) << " / " << platform::NumberToText(divider);
    }
    for (const auto& [dividend, divider] :
         {std::pair{123456.789012345, 1.00000000000001}, std::pair{99999.9999999999, 0.999999999999999},
          std::pair{20000.0, 1.00000000000005}}) {
        EXPECT_EQ(CountBySubtraction(dividend, divider), LiteralCount(dividend, divider))
            << platform::NumberToText(dividend) << " / " << platform::NumberToText(divider);
    }
}

TEST(SlabCount, TheFiguresTheSchemesDependOn) {
    EXPECT_EQ(CountBySubtraction(0.9, 0.3), 3);  // plain division of doubles gives 2
    EXPECT_EQ(CountBySubtraction(5, 5), 1);
    EXPECT_EQ(CountBySubtraction(4.99, 5), 0);
    EXPECT_EQ(CountBySubtraction(0, 5), 0);
    EXPECT_EQ(CountBySubtraction(-10, 5), 0);
    EXPECT_EQ(CountBySubtraction(-10, -5), 0);  // the divider does not fit at all
    EXPECT_EQ(CountBySubtraction(648, 500), 1);
    EXPECT_EQ(CountBySubtraction(1000, 0.1), 10000);
}

TEST(SlabCount, LargeCountsAnswerAtOnce) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(CountBySubtraction(1'000'000, 1), 1'000'000);
    EXPECT_EQ(CountBySubtraction(1e9, 1), 1e9);
    EXPECT_EQ(CountBySubtraction(1e9 + 0.5, 0.1), 10'000'000'005);
    EXPECT_EQ(CountBySubtraction(123456789012.345, 0.005), 24691357802469);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(200));
}

TEST(SlabCount, ACountThatCouldNeverEndIsRefused) {
    for (const auto& [dividend, divider] : {std::pair{5.0, 0.0}, std::pair{5.0, -1.0}, std::pair{1e20, 1.0}}) {
        try {
            CountBySubtraction(dividend, divider);
            ADD_FAILURE() << "no refusal for " << dividend << " / " << divider;
        } catch (const platform::RuntimeError& error) {
            EXPECT_EQ(error.Number(), platform::err::InvalidCall);
        }
    }
}

}  // namespace
