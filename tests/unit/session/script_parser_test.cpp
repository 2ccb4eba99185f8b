// How a script's text becomes commands and typed words, and keys become characters.
#include "session/script_parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/convert.h"
#include "platform/key_codes.h"
#include "session/key_ascii.h"
#include "session/script_error.h"
#include "session/script_words.h"

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

ScriptCommand Command(std::vector<std::string> words) { return {7, std::move(words), "test"}; }

TEST(ScriptParser, SkipsBlankAndCommentLinesAndKeepsLineNumbers) {
    auto commands =
        ParseScript("# heading\n\n   \t\nopen dispatch 2\n  # indented comment\n  click cmdSave  \r\nshow\t#12");
    ASSERT_EQ(commands.size(), 3u);
    EXPECT_EQ(commands[0].line, 4);
    EXPECT_THAT(commands[0].words, ElementsAre("open", "dispatch", "2"));
    EXPECT_EQ(commands[1].line, 6);
    EXPECT_EQ(commands[1].source, "click cmdSave");
    EXPECT_THAT(commands[2].words, ElementsAre("show", "#12"));
}

TEST(ScriptParser, QuotedWordsKeepBlanksTakeTheThreeEscapesAndReadBackQuote) {
    EXPECT_THAT(SplitWords(R"(type txtRemarks "a \"b\"  c\\d\te" "" x)", 1),
                ElementsAre("type", "txtRemarks", "a \"b\"  c\\d\te", "", "x"));
    for (std::string text : {"", "two words", "say \"hi\"", "back\\slash", "tab\there", "\\\"\\"})
        EXPECT_THAT(SplitWords(Quote(text), 1), ElementsAre(text));
}

TEST(ScriptParser, BadQuotingIsAnErrorOfItsLine) {
    EXPECT_EQ(ErrorLine("show rows\ntype txtCustomer \"a\\nb\"\n"), 2);  // unknown escape
    EXPECT_EQ(ErrorLine("type txtCustomer \"ab\"cd\n"), 1);              // text after the quote
    EXPECT_EQ(ErrorLine("# fine\ntype txtCustomer ab\"cd\"\n"), 2);      // quote inside a word
    EXPECT_EQ(ErrorLine("type txtCustomer \"ends in a backslash\\"), 1);
}

TEST(ScriptWords, SignedNumbersAndDatesWithATimeAreReadAndMalformedWordsAreScriptErrorsOfTheirLine) {
    EXPECT_EQ(IntegerWord(Command({"key", "x", "-1"}), 2, "the key code"), -1);
    EXPECT_EQ(IntegerWord(Command({"key", "x", "+2"}), 2, "the key code"), 2);
    EXPECT_EQ(DateWord(Command({"open", "2026-11-01T10:30:00"}), 1), platform::DateTime(2026, 11, 1, 10, 30, 0));
    for (std::string word :
         {"cmdClose(", "cmdClose(x)", "cmdClose(-1)", "(1)", "cmd-Close", "1txt", "", "Frame1(0)x"}) {
        try {
            ControlWord(Command({"click", word}), 1);
            ADD_FAILURE() << word << " accepted";
        } catch (const ScriptError& e) {
            EXPECT_EQ(e.Line(), 7);
        }
    }
    for (std::string word : {"", "13a", "1.5", "+", " 3"})
        EXPECT_THROW(IntegerWord(Command({"key", "x", word}), 2, "the key code"), ScriptError) << word;
    for (std::string word : {"2026-11", "01/11/2026", "2026-13-01", "2026-11-01T10:30", "today"})
        EXPECT_THROW(DateWord(Command({"date", "dtFromDate", word}), 2), ScriptError) << word;
    EXPECT_THROW(RequireArguments(Command({"key", "a", "1", "2", "3"}), 2, 3, "usage"), ScriptError);
}

TEST(KeyAscii, CharacterOfEachKeyUnderShiftControlAndAlt) {
    namespace keys = platform::keys;
    const int shift = keys::ShiftMask, ctrl = keys::CtrlMask;
    struct Case {
        int code, mask, ascii;  // ascii 0: the key gives no character
    };
    for (const auto& c : std::vector<Case>{{13, 0, 13},       {13, shift, 13},   {27, 0, 27},
                                           {8, 0, 8},         {32, 0, ' '},      {'A', 0, 'a'},
                                           {'A', shift, 'A'}, {'C', ctrl, 3},    {'C', ctrl | shift, 3},
                                           {'5', 0, '5'},     {'5', shift, '%'}, {'0', shift, ')'},
                                           {96 + 7, 0, '7'},  {110, 0, '.'},     {190, 0, '.'},
                                           {186, shift, ':'}, {222, shift, '"'}, {114, 0, 0},
                                           {40, 0, 0},        {46, 0, 0},        {'A', keys::AltMask, 0},
                                           {'5', ctrl, 0}}) {
        SCOPED_TRACE(::testing::Message() << c.code << " mask " << c.mask);
        auto ascii = KeyAscii(c.code, c.mask);
        if (c.ascii == 0)
            EXPECT_FALSE(ascii);
        else
            EXPECT_EQ(ascii, c.ascii);
    }
}

}  // namespace
}  // namespace session
