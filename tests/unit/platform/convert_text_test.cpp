#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/convert.h"

namespace platform {
namespace {

using Pieces = std::vector<std::string>;

TEST(Trim, StripsSpacesOnlyAsTheRuntimeDid) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("     "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Trim("\ta\t"), "\ta\t");
    EXPECT_EQ(LTrim("  a  "), "a  ");
    EXPECT_EQ(RTrim("  a  "), "  a");
}

TEST(Case, ChangesLettersOfAsciiAndLatinOne) {
    EXPECT_EQ(UCase("abc xyz 123"), "ABC XYZ 123");
    EXPECT_EQ(LCase("ABC XYZ 123"), "abc xyz 123");
    // é <-> É; the multiplication and division signs are no letters
    EXPECT_EQ(UCase("caf\xC3\xA9 \xC3\xB7"), "CAF\xC3\x89 \xC3\xB7");
    EXPECT_EQ(LCase("CAF\xC3\x89 \xC3\x97"), "caf\xC3\xA9 \xC3\x97");
    // the rupee sign (three bytes) passes untouched
    EXPECT_EQ(UCase("\xE2\x82\xB9 rs"), "\xE2\x82\xB9 RS");
}

TEST(Split, CutsAsTheRuntimeDid) {
    EXPECT_EQ(Split("", ","), Pieces{});
    EXPECT_EQ(Split("a", ","), Pieces{"a"});
    EXPECT_EQ(Split("a,b,c", ","), (Pieces{"a", "b", "c"}));
    EXPECT_EQ(Split("a,b,", ","), (Pieces{"a", "b", ""}));
    EXPECT_EQ(Split(",", ","), (Pieces{"", ""}));
    EXPECT_EQ(Split("a,,b", ","), (Pieces{"a", "", "b"}));
    EXPECT_EQ(Split("a, b, c", ", "), (Pieces{"a", "b", "c"}));
    EXPECT_EQ(Split("a,b", ""), Pieces{"a,b"});
}

TEST(Replace, ReplacesEveryOccurrenceLeftToRight) {
    EXPECT_EQ(Replace("O'Brien's", "'", "''"), "O''Brien''s");
    EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
    EXPECT_EQ(Replace("abc", "", "x"), "abc");
    EXPECT_EQ(Replace("", "a", "b"), "");
    EXPECT_EQ(Replace("abcabc", "bc", ""), "aa");
}

}  // namespace
}  // namespace platform
