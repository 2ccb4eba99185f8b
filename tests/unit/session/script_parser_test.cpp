#include "session/script_parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "session/script_error.h"

namespace session {
namespace {

using ::testing::ElementsAre;

int ErrorLine(std::string_view text) {
    try {
        ParseScript(text);
    } catch (const ScriptError& e) {
        return e.Line();
    }
    return 0;
}

TEST(ScriptParser, SkipsBlankAndCommentLinesAndKeepsLineNumbers) {
    auto commands = ParseScript("# heading\n\n   \t\nopen dispatch 2\n  # indented comment\n  click cmdSave  \n");
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0].line, 4);
    EXPECT_THAT(commands[0].words, ElementsAre("open", "dispatch", "2"));
    EXPECT_EQ(commands[1].line, 6);
    EXPECT_EQ(commands[1].source, "click cmdSave");
}

TEST(ScriptParser, AcceptsWindowsLineEndsAndAMissingLastNewline) {
    auto commands = ParseScript("show rows\r\nclose");
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_THAT(commands[0].words, ElementsAre("show", "rows"));
    EXPECT_THAT(commands[1].words, ElementsAre("close"));
}

TEST(ScriptParser, AHashInsideALineIsPartOfAWord) {
    auto commands = ParseScript("type txtref #12");
    EXPECT_THAT(commands[0].words, ElementsAre("type", "txtref", "#12"));
}

TEST(ScriptParser, QuotedWordsKeepBlanksAndTakeTheThreeEscapes) {
    auto words = SplitWords(R"(type txtRemarks "a \"b\"  c\\d\te" "" x)", 1);
    EXPECT_THAT(words, ElementsAre("type", "txtRemarks", "a \"b\"  c\\d\te", "", "x"));
}

TEST(ScriptParser, WordsAreSeparatedByTabsToo) {
    EXPECT_THAT(SplitWords("cell\t1\t6 \"3\"", 1), ElementsAre("cell", "1", "6", "3"));
}

TEST(ScriptParser, BadQuotingIsAnErrorOfItsLine) {
    EXPECT_EQ(ErrorLine("show rows\n\ntype txtCustomer \"ABC\n"), 3);        // unterminated
    EXPECT_EQ(ErrorLine("show rows\ntype txtCustomer \"a\\nb\"\n"), 2);      // unknown escape
    EXPECT_EQ(ErrorLine("type txtCustomer \"ab\"cd\n"), 1);                  // text after the quote
    EXPECT_EQ(ErrorLine("# fine\ntype txtCustomer ab\"cd\"\n"), 2);          // quote inside a word
    EXPECT_EQ(ErrorLine("type txtCustomer \"ends in a backslash\\"), 1);
}

TEST(ScriptParser, ErrorsSayWhatIsWrong) {
    try {
        ParseScript("type txtCustomer \"ABC");
        FAIL() << "no error";
    } catch (const ScriptError& e) {
        EXPECT_STREQ(e.what(), "unterminated quote");
    }
}

TEST(ScriptParser, QuoteIsReadBackAsTheSameText) {
    for (std::string text : {"", "plain", "two words", "say \"hi\"", "back\\slash", "tab\there", "\\\"\\"}) {
        auto words = SplitWords(Quote(text), 1);
        ASSERT_EQ(words.size(), 1u) << text;
        EXPECT_EQ(words[0], text);
    }
}

}  // namespace
}  // namespace session
