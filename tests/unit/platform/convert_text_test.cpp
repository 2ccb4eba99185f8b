#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/convert.h"

namespace platform {
namespace {

using Pieces = std::vector<std::string>;

TEST(TextFunctions, TrimCaseSplitAndReplaceAsTheRuntimeDid) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("     "), "");
    EXPECT_EQ(Trim("\ta\t"), "\ta\t");  // spaces only
    EXPECT_EQ(LTrim("  a  "), "a  ");
    EXPECT_EQ(RTrim("  a  "), "  a");

    // é <-> É; the multiplication and division signs are no letters; the rupee sign passes untouched
    EXPECT_EQ(UCase("abc 1 caf\xC3\xA9 \xC3\xB7 \xE2\x82\xB9"), "ABC 1 CAF\xC3\x89 \xC3\xB7 \xE2\x82\xB9");
    EXPECT_EQ(LCase("ABC 1 CAF\xC3\x89 \xC3\x97"), "abc 1 caf\xC3\xA9 \xC3\x97");

    EXPECT_EQ(Split("", ","), Pieces{});
    EXPECT_EQ(Split("a,b,", ","), (Pieces{"a", "b", ""}));
    EXPECT_EQ(Split(",", ","), (Pieces{"", ""}));
    EXPECT_EQ(Split("a,,b", ","), (Pieces{"a", "", "b"}));
    EXPECT_EQ(Split("a, b, c", ", "), (Pieces{"a", "b", "c"}));
    EXPECT_EQ(Split("a,b", ""), Pieces{"a,b"});

    EXPECT_EQ(Replace("O'Brien's", "'", "''"), "O''Brien''s");
    EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
    EXPECT_EQ(Replace("abc", "", "x"), "abc");
    EXPECT_EQ(Replace("abcabc", "bc", ""), "aa");
}

}  // namespace
}  // namespace platform
